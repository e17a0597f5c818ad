// Records, settings and printing for the tests of dates and times.
#pragma once

#include "typed/date_time.h"
#include "typed/intl.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <ostream>
#include <string>

inline DateTimeRec Moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0, int msec = 0)
{
    DateTimeRec rec = {};
    rec.year = static_cast<short>(year);
    rec.month = static_cast<BYTE>(month);
    rec.day = static_cast<BYTE>(day);
    rec.hour = static_cast<BYTE>(hour);
    rec.minute = static_cast<BYTE>(minute);
    rec.second = static_cast<BYTE>(second);
    rec.msec = static_cast<WORD>(msec);
    return rec;
}

inline DateTimeRec Clock(int hour, int minute, int second = 0, int msec = 0)
{
    return Moment(0, 0, 0, hour, minute, second, msec);
}

inline bool operator==(const DateTimeRec& a, const DateTimeRec& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

inline void PrintTo(const DateTimeRec& rec, std::ostream* out)
{
    char text[64];
    std::snprintf(text, sizeof text, "%d-%d-%d %d:%d:%d.%d", rec.year, rec.month, rec.day, rec.hour, rec.minute,
                  rec.second, rec.msec);
    *out << text;
}

inline SYSTEMTIME Now()
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    return now;
}

// Each test begins with the start values and leaves them behind.
class DateTest : public testing::Test {
protected:
    void SetUp() override { GetIntlSettings(); }
    void TearDown() override { GetIntlSettings(); }
};
