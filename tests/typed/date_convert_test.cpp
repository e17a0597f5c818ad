// The stored types of dates and times, both ways.
#include "typed/date_test_support.h"

#include "foundation/memory.h"

#include <ctime>
#include <limits>
#include <string>
#include <vector>

namespace {

using Bytes = std::vector<BYTE>;

constexpr char allTypes[] = "DQTmqsuAadlIit";

struct StoredCase {
    const char* what;
    char        type;
    Bytes       bytes;
    DateTimeRec rec;
};

template <typename T>
Bytes BytesOf(T value)
{
    Bytes bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

Bytes DayAndMsec(int day, DWORD msec)
{
    Bytes bytes = BytesOf(day);
    for (const BYTE part : BytesOf(msec)) {
        bytes.push_back(part);
    }
    return bytes;
}

Bytes Words(std::initializer_list<int> words)
{
    Bytes bytes;
    for (const int word : words) {
        bytes.push_back(static_cast<BYTE>(word));
        bytes.push_back(static_cast<BYTE>(word >> 8));
    }
    return bytes;
}

Bytes Calendar(std::initializer_list<int> fields)
{
    Bytes bytes;
    for (const int field : fields) {
        for (const BYTE part : BytesOf(field)) {
            bytes.push_back(part);
        }
    }
    return bytes;
}

// Reads from an odd address, as a value in a row may have.
int Read(DateTimeRec* rec, const Bytes& bytes, char type)
{
    Bytes shifted(bytes.size() + 1);
    std::copy(bytes.begin(), bytes.end(), shifted.begin() + 1);
    return DataToDateTime(rec, shifted.data() + 1, type);
}

// Writes to an odd address between two marks; the result is what stands there, empty if the conversion failed.
Bytes Written(const DateTimeRec& rec, char type, size_t size, BYTE before = 0xEE)
{
    constexpr BYTE mark = 0xA5;
    Bytes          room(size + 2, before);
    room.front() = mark;
    room.back() = mark;
    const int done = DateTimeToData(&rec, room.data() + 1, type);
    EXPECT_EQ(mark, room.front()) << "type " << type;
    EXPECT_EQ(mark, room.back()) << "type " << type;
    return done ? Bytes(room.begin() + 1, room.end() - 1) : Bytes();
}

__time64_t ClockOf(const DateTimeRec& rec)
{
    __time64_t clock = -1;
    DateTimeToData(&rec, &clock, 'T');
    return clock;
}

// Stored values and records that stand for the same moment. A value ends where the conversion ends: type s has two
// bytes more in memory, type a two.
const StoredCase bothWays[] = {
    { "record", 'D', { 0xE8, 0x07, 2, 29, 23, 59, 58, 0, 0xE7, 0x03 }, Moment(2024, 2, 29, 23, 59, 58, 999) },
    { "record of zeros", 'D', Bytes(10), {} },
    { "day 0", 'Q', DayAndMsec(0, 0), Moment(1900, 1, 1) },
    { "day before it", 'Q', DayAndMsec(-1, 86399000), Moment(1899, 12, 31, 23, 59, 59) },
    { "leap day", 'Q', DayAndMsec(45349, 45296000), Moment(2024, 2, 29, 12, 34, 56) },
    { "Julian calendar", 'Q', DayAndMsec(2299160 - 2415021, 0), Moment(1582, 10, 4) },
    { "negative Julian day", 'Q', DayAndMsec(-365 - 2415021, 0), Moment(-4714, 1, 1) },
    { "day 0", 'q', Words({ 0, 0 }), Moment(1900, 1, 1) },
    { "last day", 'q', Words({ 65535, 1439 }), Moment(2079, 6, 6, 23, 59) },
    { "day 0", 'u', BytesOf(0.0), Moment(1899, 12, 30) },
    { "noon", 'u', BytesOf(1.5), Moment(1899, 12, 31, 12) },
    { "leap day", 'u', BytesOf(45351.25), Moment(2024, 2, 29, 6) },
    { "whole day before the origin", 'u', BytesOf(-2.0), Moment(1899, 12, 28) },
    { "all words", 's', Words({ 2024, 2, 29, 23, 59, 58, 999 }), Moment(2024, 2, 29, 23, 59, 58, 999) },
    { "negative year", 's', Words({ -44, 3, 15, 0, 0, 0, 0 }), Moment(-44, 3, 15) },
    { "first day", 'A', Words({ 0x0880 }), Moment(1980, 1, 1) },
    { "last day", 'A', Words({ 0xFE7F }), Moment(2107, 12, 31) },
    { "leap day", 'a', { 29, 2, 0xE8, 0x07 }, Moment(2024, 2, 29) },
    { "highest year", 'a', { 31, 12, 0xFF, 0x7F }, Moment(32767, 12, 31) },
    { "leap day", 'd', Words({ 2024, 2, 29 }), Moment(2024, 2, 29) },
    { "negative year", 'd', Words({ -44, 3, 15 }), Moment(-44, 3, 15) },
    { "no date", 'd', Words({ 0, 0, 0 }), {} },
    { "leap day", 'l', BytesOf(20240229), Moment(2024, 2, 29) },
    { "highest year", 'l', BytesOf(327671231), Moment(32767, 12, 31) },
    { "no date", 'l', BytesOf(0), {} },
    { "last moment", 'I', Words({ 23 | 59 << 5 | 29 << 11 }), Clock(23, 59, 58) },
    { "midnight", 'I', Words({ 0 }), {} },
    { "last moment", 'i', { 23, 59, 59, 99 }, Clock(23, 59, 59, 990) },
    { "last moment", 't', Words({ 23, 59, 59 }), Clock(23, 59, 59) },
};

// What a type cannot hold is cut.
const StoredCase writesOnly[] = {
    { "milliseconds are dropped", 'Q', DayAndMsec(0, 1000), Moment(1900, 1, 1, 0, 0, 1, 999) },
    { "seconds are dropped", 'q', Words({ 0, 754 }), Moment(1900, 1, 1, 12, 34, 59, 999) },
    { "days wrap at 65536", 'q', Words({ 0, 0 }), Moment(2079, 6, 7) },
    { "the day before the first wraps", 'q', Words({ 65535, 0 }), Moment(1899, 12, 31) },
    { "milliseconds are dropped", 'u', BytesOf(1.5), Moment(1899, 12, 31, 12, 0, 0, 999) },
    { "time is added to a day before the origin", 'u', BytesOf(-1.75), Moment(1899, 12, 28, 6) },
    { "years wrap at 128", 'A', Words({ 0x0880 }), Moment(2108, 1, 1) },
    { "a year before the first wraps", 'A', Words({ 0x08FF }), Moment(1979, 1, 1) },
    { "month and day are masked", 'A', Words({ 0xF800 | 4 << 7 }), Moment(1980, 0x14, 0xFF) },
    { "hour and minute are masked", 'I', Words({ 1 | 2 << 5 }), Clock(33, 66) },
    { "odd seconds are dropped", 'I', Words({ 29 << 11 }), Clock(0, 0, 59) },
    { "milliseconds are cut to hundredths", 'i', { 1, 2, 3, 45 }, Clock(1, 2, 3, 459) },
    { "a negative year subtracts", 'l', BytesOf(-439685), Moment(-44, 3, 15) },
    { "no year counts days from 1992", 'Q', DayAndMsec(33602, 0), Moment(0, 1, 1) },
};

const StoredCase readsOnly[] = {
    { "milliseconds count", 'Q', DayAndMsec(0, 45296789), Moment(1900, 1, 1, 12, 34, 56, 789) },
    { "minutes have no seconds", 'q', Words({ 1, 61 }), Moment(1900, 1, 2, 1, 1) },
    { "a fraction rounds to the nearest millisecond", 'u', BytesOf(0.4999999999), Moment(1899, 12, 30, 12) },
    { "half a millisecond rounds up", 'u', BytesOf(0.5 / 86400000.0), Moment(1899, 12, 30, 0, 0, 0, 1) },
    { "milliseconds count", 'u', BytesOf(2.0 + 1.0 / 86400000.0), Moment(1900, 1, 1, 0, 0, 0, 1) },
    // A negative fraction is a negative count of milliseconds: 4273367297 of them, 1187 hours modulo 256.
    { "a fraction before the origin is cut towards it", 'u', BytesOf(-1.25), Moment(1899, 12, 29, 163, 2, 47, 297) },
    { "a filler stays", 'D', { 0, 0, 0, 0, 0, 0, 0, 9, 0, 0 }, DateTimeRec{ 0, 0, 0, 0, 0, 0, 9, 0 } },
    { "a word gives its low byte", 's', Words({ 1, 0x102, 0x103, 0x104, 0x105, 0x106, 0xFFFF }),
      Moment(1, 2, 3, 4, 5, 6, 0xFFFF) },
    { "a word gives its low byte", 'd', Words({ 1, 0x102, 0x103 }), Moment(1, 2, 3) },
    { "a word gives its low byte", 't', Words({ 0x104, 0x105, 0x106 }), Clock(4, 5, 6) },
    { "a negative number splits with its sign", 'l', BytesOf(-20240131), Moment(-2024, -1, -31) },
    { "hundredths past 99 go on", 'i', { 1, 2, 3, 255 }, Clock(1, 2, 3, 2550) },
    { "every bit", 'A', Words({ 0xFFFF }), Moment(2107, 15, 31) },
    { "every bit", 'I', Words({ 0xFFFF }), Clock(31, 63, 62) },
    { "calendar record", 'm', Calendar({ 58, 59, 23, 29, 1, 124, 4, 59, 0 }), Moment(2024, 2, 29, 23, 59, 58) },
    { "a leap second", 'm', Calendar({ 60, 59, 23, 31, 11, 116, 6, 365, 0 }), Moment(2016, 12, 31, 23, 59, 0) },
    { "a year before 1900", 'm', Calendar({ 0, 0, 0, 1, 0, -100, 0, 0, 0 }), Moment(1800, 1, 1) },
};

class DateConvert : public DateTest {};

} // namespace

TEST_F(DateConvert, EveryTypeReadsWhatItStores)
{
    for (const StoredCase& test : bothWays) {
        DateTimeRec rec = Moment(1, 1, 1, 1, 1, 1, 1);
        EXPECT_EQ(1, Read(&rec, test.bytes, test.type)) << test.type << ": " << test.what;
        EXPECT_EQ(test.rec, rec) << test.type << ": " << test.what;
        EXPECT_EQ(test.bytes, Written(test.rec, test.type, test.bytes.size())) << test.type << ": " << test.what;
    }
}

TEST_F(DateConvert, WhatATypeCannotHoldIsCut)
{
    for (const StoredCase& test : writesOnly) {
        EXPECT_EQ(test.bytes, Written(test.rec, test.type, test.bytes.size())) << test.type << ": " << test.what;
    }
}

TEST_F(DateConvert, StoredValuesOfAnyKindAreRead)
{
    for (const StoredCase& test : readsOnly) {
        DateTimeRec rec = Moment(1, 1, 1, 1, 1, 1, 1);
        EXPECT_EQ(1, Read(&rec, test.bytes, test.type)) << test.type << ": " << test.what;
        EXPECT_EQ(test.rec, rec) << test.type << ": " << test.what;
    }
}

TEST_F(DateConvert, PackedDatesAndTimesSetEveryBitOfTheirWord)
{
    EXPECT_EQ(Words({ 0 }), Written(Moment(1980, 0, 0), 'A', 2, 0xFF));
    EXPECT_EQ(Words({ 0 }), Written(Clock(0, 0, 0), 'I', 2, 0xFF));
}

TEST_F(DateConvert, NullPointersAreRefused)
{
    DateTimeRec rec = {};
    Bytes       room(36);
    for (const char* type = allTypes; *type; ++type) {
        EXPECT_EQ(0, DataToDateTime(nullptr, room.data(), *type)) << *type;
        EXPECT_EQ(0, DataToDateTime(&rec, nullptr, *type)) << *type;
        EXPECT_EQ(0, DateTimeToData(nullptr, room.data(), *type)) << *type;
        EXPECT_EQ(0, DateTimeToData(&rec, nullptr, *type)) << *type;
    }
}

TEST_F(DateConvert, OnlyTheTypesOfDatesAndTimesConvert)
{
    const DateTimeRec rec = Moment(2024, 1, 2);
    for (int code = 0; code < 256; ++code) {
        const char  type = static_cast<char>(code);
        const bool  known = code != 0 && std::strchr(allTypes, type) != nullptr;
        Bytes       room(36);
        DateTimeRec read = rec;
        EXPECT_EQ(known ? 1 : 0, DataToDateTime(&read, room.data(), type)) << "character " << code;
        EXPECT_EQ(known ? 1 : 0, DateTimeToData(&rec, room.data(), type)) << "character " << code;
        if (!known) {
            EXPECT_EQ(Bytes(36), room) << "character " << code;
        }
    }
}

TEST_F(DateConvert, AnUnknownTypeStillClearsTheRecord)
{
    DateTimeRec rec = Moment(2024, 1, 2, 3, 4, 5, 6);
    const BYTE  data[16] = {};
    EXPECT_EQ(0, DataToDateTime(&rec, data, 'x'));
    EXPECT_EQ(DateTimeRec{}, rec);
}

TEST_F(DateConvert, DoublesThatNoDayNumberHoldsAreSafe)
{
    constexpr double values[] = { 1e300,
                                  -1e300,
                                  2147483648.0,
                                  -2147483649.0,
                                  2147483647.5,
                                  std::numeric_limits<double>::infinity(),
                                  std::numeric_limits<double>::quiet_NaN() };
    for (const double value : values) {
        DateTimeRec rec = {};
        EXPECT_EQ(1, DataToDateTime(&rec, &value, 'u')) << value;
    }
}

TEST_F(DateConvert, AClockValueIsSecondsOfLocalTime)
{
    constexpr __time64_t clocks[] = { 0, 86400, 951782400, 1709210096, 4102444800 };
    for (const __time64_t clock : clocks) {
        const tm    local = *_localtime64(&clock);
        DateTimeRec rec = {};
        EXPECT_EQ(1, Read(&rec, BytesOf(clock), 'T')) << clock;
        EXPECT_EQ(
            Moment(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec),
            rec)
            << clock;
    }
}

TEST_F(DateConvert, AClockValueComesBackFromItsRecord)
{
    for (int year = 1971; year < 2100; ++year) {
        const DateTimeRec rec = Moment(year, 1, 15, 12, 34, 56);
        const Bytes       bytes = Written(rec, 'T', 8);
        ASSERT_EQ(8u, bytes.size()) << year;
        DateTimeRec back = {};
        EXPECT_EQ(1, Read(&back, bytes, 'T')) << year;
        EXPECT_EQ(rec, back);
    }
}

TEST_F(DateConvert, ANegativeClockValueIsRefused)
{
    DateTimeRec rec = Moment(2024, 1, 2);
    EXPECT_EQ(0, Read(&rec, BytesOf(__time64_t{ -1 }), 'T'));
    EXPECT_EQ(DateTimeRec{}, rec);
    EXPECT_EQ(0, Read(&rec, BytesOf(std::numeric_limits<__time64_t>::min()), 'T'));
}

TEST_F(DateConvert, TimesBeforeTheClockBeginsAreRefusedAndStoreNothing)
{
    for (const char type : { 'T', 'm' }) {
        Bytes             room(36, 0xEE);
        const DateTimeRec rec = Moment(1950, 6, 1, 12);
        EXPECT_EQ(0, DateTimeToData(&rec, room.data(), type)) << type;
        EXPECT_EQ(Bytes(36, 0xEE), room) << type;
    }
}

TEST_F(DateConvert, TheCalendarRecordIsStoredAsNormalised)
{
    const Bytes bytes = Written(Moment(2023, 2, 31, 10, 59, 75), 'm', 36);
    ASSERT_EQ(36u, bytes.size());
    const Bytes expected = Calendar({ 15, 0, 11, 3, 2, 123, 5, 61, 0 });
    EXPECT_EQ(expected, bytes);
}

TEST_F(DateConvert, AMonthOfZeroNormalisesToTheDecemberBefore)
{
    DateTimeRec rec = {};
    const Bytes bytes = Written(Moment(2024, 0, 5), 'm', 36);
    ASSERT_EQ(36u, bytes.size());
    EXPECT_EQ(1, Read(&rec, bytes, 'm'));
    EXPECT_EQ(Moment(2023, 12, 5), rec);
}

TEST_F(DateConvert, TheCalendarRecordKeepsTheYearOfTheLastCallForAYearUpTo1900)
{
    for (const int year : { 0, -44, 1, 1899, 1900 }) {
        ClockOf(Moment(2005, 1, 10));
        EXPECT_EQ(ClockOf(Moment(2005, 1, 12)), (ClockOf(Moment(2005, 1, 10)), ClockOf(Moment(year, 1, 12)))) << year;
    }
}

TEST_F(DateConvert, TheRetainedYearIsTheNormalisedOne)
{
    ASSERT_NE(-1, ClockOf(Moment(2006, 0, 10))); // December 2005
    EXPECT_EQ(ClockOf(Moment(2005, 1, 12)), (ClockOf(Moment(2006, 0, 10)), ClockOf(Moment(0, 1, 12))));
}

TEST_F(DateConvert, BothCalendarTypesShareTheRetainedYear)
{
    ClockOf(Moment(2005, 1, 10));
    DateTimeRec rec = {};
    EXPECT_EQ(1, Read(&rec, Written(Moment(0, 1, 12), 'm', 36), 'm'));
    EXPECT_EQ(Moment(2005, 1, 12), rec);
}
