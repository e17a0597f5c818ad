// Moments as the standard library and the stored types have them.
#pragma once

#include <ctime>

inline short Short(int value)
{
    return static_cast<short>(value);
}

// Completed by the standard library, in local time.
inline std::tm Moment(int year, int month, int day, int hour, int minute, int second)
{
    std::tm moment = {};
    moment.tm_year = year - 1900;
    moment.tm_mon = month - 1;
    moment.tm_mday = day;
    moment.tm_hour = hour;
    moment.tm_min = minute;
    moment.tm_sec = second;
    _mktime64(&moment);
    return moment;
}

inline __int64 ClockOf(std::tm moment)
{
    return _mktime64(&moment);
}
