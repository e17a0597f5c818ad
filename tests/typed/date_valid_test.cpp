// Validation and repair of dates and times.
#include "typed/date_test_support.h"

#ifndef _WIN32
#include "native_platform.h"
#endif

namespace {

struct Checks {
    int year;
    int month;
    int day;
};

struct DateCase {
    DateTimeRec rec;
    int         repair;
    Checks      checks;
    int         result;
    DateTimeRec after;
};

struct TimeCase {
    DateTimeRec rec;
    int         repair;
    int         twelveHour;
    Checks      checks; // hour, minute, second
    int         result;
    DateTimeRec after;
};

constexpr Checks all = { 1, 1, 1 };

int Century()
{
    return Now().wYear / 100 * 100;
}

int YearAfterRepair(int year)
{
    DateTimeRec rec = Moment(year, 1, 1);
    EXPECT_EQ(1, ValidDate(&rec, 1, 1, 1, 1)) << year;
    return rec.year;
}

const DateCase dateCases[] = {
    { Moment(2024, 2, 29), 0, all, 1, Moment(2024, 2, 29) },
    { Moment(2023, 2, 28), 1, all, 1, Moment(2023, 2, 28) },
    { Moment(2023, 2, 29), 1, all, 0, Moment(2023, 2, 28) },
    { Moment(2023, 2, 29), 0, all, 0, Moment(2023, 2, 29) },
    { Moment(2023, 2, 0), 1, all, 0, Moment(2023, 2, 1) },
    { Moment(2024, 2, 30), 1, all, 0, Moment(2024, 2, 29) },
    { Moment(1900, 2, 29), 1, all, 0, Moment(1900, 2, 28) },
    { Moment(2000, 2, 29), 1, all, 1, Moment(2000, 2, 29) },
    { Moment(2024, 4, 31), 1, all, 0, Moment(2024, 4, 30) },
    { Moment(2024, 4, 31), 0, all, 0, Moment(2024, 4, 31) },
    { Moment(2024, 4, 0), 1, all, 0, Moment(2024, 4, 1) },
    { Moment(2024, 13, 31), 1, all, 0, Moment(2024, 12, 31) },
    { Moment(2024, 13, 31), 0, all, 0, Moment(2024, 13, 31) },
    { Moment(2024, 255, 255), 0, all, 0, Moment(2024, 255, 255) },
    { Moment(2024, 0, 40), 1, all, 0, Moment(2024, 1, 31) },
    { Moment(2024, 0, 0), 0, all, 0, Moment(2024, 0, 0) },
    { Moment(2024, 14, 2), 1, all, 0, Moment(2024, 12, 2) },
    // Fields that don't count are let alone.
    { Moment(2024, 13, 99), 1, { 0, 0, 0 }, 1, Moment(2024, 13, 99) },
    { Moment(24, 13, 99), 1, { 0, 1, 0 }, 0, Moment(24, 12, 99) },
    { Moment(24, 4, 31), 1, { 0, 0, 1 }, 0, Moment(24, 4, 30) },
    { Moment(2023, 2, 29), 0, { 0, 0, 1 }, 0, Moment(2023, 2, 29) },
    // Without a day field a date means the first of the month, whatever the result and the repair are.
    { Moment(2024, 5, 0), 0, { 1, 1, 0 }, 1, Moment(2024, 5, 1) },
    { Moment(2024, 5, 17), 1, { 1, 1, 0 }, 1, Moment(2024, 5, 1) },
    { Moment(2024, 13, 17), 0, { 1, 1, 0 }, 0, Moment(2024, 13, 1) },
    { Moment(2024, 5, 17), 0, { 1, 0, 0 }, 1, Moment(2024, 5, 17) },
    { Moment(2024, 5, 17), 0, { 0, 1, 0 }, 1, Moment(2024, 5, 17) },
    // A day is checked although the month isn't.
    { Moment(2024, 0, 31), 1, { 0, 0, 1 }, 1, Moment(2024, 0, 31) },
    { Moment(2024, 0, 32), 1, { 0, 0, 1 }, 0, Moment(2024, 0, 31) },
    { Moment(2024, 200, 0), 1, { 0, 0, 1 }, 0, Moment(2024, 200, 1) },
};

const TimeCase timeCases[] = {
    { Clock(0, 0, 0), 0, 0, all, 1, Clock(0, 0, 0) },
    { Clock(23, 59, 59), 0, 0, all, 1, Clock(23, 59, 59) },
    { Clock(24, 0, 0), 0, 0, all, 0, Clock(24, 0, 0) },
    { Clock(24, 0, 0), 1, 0, all, 0, Clock(23, 0, 0) },
    { Clock(200, 0, 0), 1, 0, all, 0, Clock(23, 0, 0) },
    { Clock(1, 0, 0), 0, 1, all, 1, Clock(1, 0, 0) },
    { Clock(12, 0, 0), 0, 1, all, 1, Clock(12, 0, 0) },
    { Clock(0, 0, 0), 0, 1, all, 0, Clock(0, 0, 0) },
    { Clock(0, 0, 0), 1, 1, all, 0, Clock(1, 0, 0) },
    { Clock(13, 0, 0), 1, 1, all, 0, Clock(12, 0, 0) },
    { Clock(13, 0, 0), 0, 1, all, 0, Clock(13, 0, 0) },
    { Clock(5, 60, 0), 0, 0, all, 0, Clock(5, 60, 0) },
    { Clock(24, 60, 60), 0, 0, { 0, 1, 0 }, 0, Clock(24, 60, 60) },
    { Clock(24, 60, 60), 1, 0, { 0, 1, 0 }, 0, Clock(24, 0, 60) }, // of the month
    { Clock(24, 59, 60), 1, 0, { 0, 1, 0 }, 1, Clock(24, 59, 60) },
    { Clock(5, 5, 60), 0, 0, all, 0, Clock(5, 5, 60) },
    { Clock(5, 5, 60), 1, 0, all, 0, Clock(5, 5, 59) },
    { Clock(99, 99, 99), 1, 0, { 0, 0, 0 }, 1, Clock(99, 99, 99) },
    { Clock(99, 99, 99), 1, 1, { 0, 0, 0 }, 1, Clock(99, 99, 99) },
    { Clock(99, 99, 99), 1, 0, { 0, 0, 1 }, 0, Clock(99, 99, 59) },
    { Clock(99, 99, 99), 1, 0, { 1, 0, 0 }, 0, Clock(23, 99, 99) },
    // The repair of a minute reads the month.
    { Moment(2024, 4, 1, 5, 75), 1, 0, all, 0, Moment(2024, 4, 1, 5, 4) },
    { Moment(2024, 200, 1, 5, 75), 1, 0, all, 0, Moment(2024, 200, 1, 5, 59) },
    { Moment(2024, 58, 1, 5, 60), 1, 0, all, 0, Moment(2024, 58, 1, 5, 58) },
    { Moment(2024, 59, 1, 5, 60), 1, 0, all, 0, Moment(2024, 59, 1, 5, 59) },
    { Clock(5, 75), 1, 0, all, 0, Clock(5, 0) },
    { Moment(2024, 4, 1, 5, 75), 0, 0, all, 0, Moment(2024, 4, 1, 5, 75) },
};

} // namespace

TEST(ValidDate, ChecksAndRepairsWhatCounts)
{
    for (const DateCase& test : dateCases) {
        DateTimeRec rec = test.rec;
        const int   row = static_cast<int>(&test - dateCases);
        EXPECT_EQ(test.result, ValidDate(&rec, test.repair, test.checks.year, test.checks.month, test.checks.day))
            << "row " << row;
        EXPECT_EQ(test.after, rec) << "row " << row;
    }
}

TEST(ValidDate, KnowsTheLengthOfEachMonth)
{
    constexpr int lengths[] = { 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
    for (int month = 1; month <= 12; ++month) {
        for (int day = 0; day <= 33; ++day) {
            DateTimeRec rec = Moment(2023, month, day);
            const bool  good = day >= 1 && day <= lengths[month - 1];
            EXPECT_EQ(good ? 1 : 0, ValidDate(&rec, 0, 1, 1, 1)) << month << "/" << day;
            EXPECT_EQ(Moment(2023, month, day), rec);
        }
    }
}

TEST(ValidDate, ANegativeLeapYearHasItsLeapDay)
{
    DateTimeRec rec = Moment(-4, 2, 29);
    EXPECT_EQ(1, ValidDate(&rec, 0, 1, 1, 1));
    rec = Moment(-5, 2, 29);
    EXPECT_EQ(0, ValidDate(&rec, 0, 1, 1, 1));
}

TEST(ValidDate, TwoDigitYearsUpTo40LieInTheCurrentCentury)
{
    ASSERT_GE(Century(), 2000);
    ASSERT_LT(Century(), 2100);
    EXPECT_EQ(Century(), YearAfterRepair(0));
    EXPECT_EQ(Century() + 40, YearAfterRepair(40));
    EXPECT_EQ(Century() - 100 + 41, YearAfterRepair(41));
    EXPECT_EQ(Century() - 100 + 99, YearAfterRepair(99));
}

#ifndef _WIN32
// The clock of the native platform can be set.
TEST(ValidDate, CenturiesFollowTheClockWithin1900To2099)
{
    Native().localTime.wYear = 1999;
    EXPECT_EQ(1940, YearAfterRepair(40));
    EXPECT_EQ(1941, YearAfterRepair(41)); // 1841, raised
    Native().localTime.wYear = 2199;
    EXPECT_EQ(2040, YearAfterRepair(40)); // 2140, lowered
    EXPECT_EQ(2041, YearAfterRepair(41));
    Native().localTime.wYear = 2000;
    EXPECT_EQ(2040, YearAfterRepair(40));
    EXPECT_EQ(1941, YearAfterRepair(41));
    NativeReset();
}
#endif

TEST(ValidDate, ARepairedYearLiesIn1900To2099)
{
    EXPECT_EQ(1900, YearAfterRepair(1900));
    EXPECT_EQ(2099, YearAfterRepair(2099));
    EXPECT_EQ(2000, YearAfterRepair(2100));
    EXPECT_EQ(2067, YearAfterRepair(32767));
    EXPECT_EQ(1999, YearAfterRepair(1899));
    EXPECT_EQ(1900, YearAfterRepair(100));
    EXPECT_EQ(1982, YearAfterRepair(1582));
    EXPECT_EQ(1856, YearAfterRepair(-44));
}

TEST(ValidDate, AYearIsExpandedOnlyInRepairAndOnlyIfItCounts)
{
    DateTimeRec rec = Moment(24, 1, 1);
    EXPECT_EQ(1, ValidDate(&rec, 0, 1, 1, 1));
    EXPECT_EQ(24, rec.year);
    EXPECT_EQ(1, ValidDate(&rec, 1, 0, 1, 1));
    EXPECT_EQ(24, rec.year);
}

TEST(ValidDate, TheExpandedYearDecidesOnTheLeapDay)
{
    DateTimeRec rec = Moment(4, 2, 29);
    EXPECT_EQ(1, ValidDate(&rec, 1, 1, 1, 1));
    EXPECT_EQ(Moment(Century() + 4, 2, 29), rec);
    rec = Moment(2100, 2, 29); // repaired to 2000
    EXPECT_EQ(1, ValidDate(&rec, 1, 1, 1, 1));
    EXPECT_EQ(Moment(2000, 2, 29), rec);
}

TEST(ValidTime, ChecksAndRepairsWhatCounts)
{
    for (const TimeCase& test : timeCases) {
        DateTimeRec rec = test.rec;
        const int   row = static_cast<int>(&test - timeCases);
        EXPECT_EQ(test.result,
                  ValidTime(&rec, test.repair, test.twelveHour, test.checks.year, test.checks.month, test.checks.day))
            << "row " << row;
        EXPECT_EQ(test.after, rec) << "row " << row;
    }
}

TEST(ValidDate, WithoutARecordDoesNotPass)
{
    for (const int repair : { 0, 1 }) {
        EXPECT_EQ(0, ValidDate(nullptr, repair, 1, 1, 1));
        EXPECT_EQ(0, ValidDate(nullptr, repair, 0, 0, 0));
        EXPECT_EQ(0, ValidTime(nullptr, repair, 0, 1, 1, 1));
        EXPECT_EQ(0, ValidTime(nullptr, repair, 0, 0, 0, 0));
    }
}
