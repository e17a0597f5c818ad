// Julian day numbers and milliseconds of a day.
#include "typed/date_test_support.h"

#include <string>

namespace {

std::string DateOf(DWORD julian)
{
    int year = 0;
    int month = 0;
    int day = 0;
    JulianToDate(julian, &year, &month, &day);
    return std::to_string(year) + "-" + std::to_string(month) + "-" + std::to_string(day);
}

} // namespace

TEST(DateToJulian, CountsTheDayZeroOfTheStoredTypes)
{
    EXPECT_EQ(2415021u, DateToJulian(1900, 1, 1));
    EXPECT_EQ(2415019u, DateToJulian(1899, 12, 30));
}

TEST(DateToJulian, TakesNoYearForTheLeapYear1992)
{
    EXPECT_EQ(DateToJulian(1992, 1, 1), DateToJulian(0, 1, 1));
    EXPECT_EQ(DateToJulian(1992, 2, 29), DateToJulian(0, 2, 29));
    EXPECT_EQ(DateToJulian(1992, 12, 31), DateToJulian(0, 12, 31));
}

TEST(DateToJulian, HasNoYearBetweenMinusOneAndOne)
{
    EXPECT_EQ(1u, DateToJulian(1, 1, 1) - DateToJulian(-1, 12, 31));
    EXPECT_EQ(1u, DateToJulian(-1, 3, 1) - DateToJulian(-1, 2, 29)); // a leap year, as the year 0 would be
}

TEST(DateToJulian, GoesFromTheJulianToTheGregorianCalendarWithoutAGap)
{
    EXPECT_EQ(2299160u, DateToJulian(1582, 10, 4));
    EXPECT_EQ(2299161u, DateToJulian(1582, 10, 15));
}

TEST(DateToJulian, CountsTheDaysThatTheReformDroppedInTheJulianCalendar)
{
    EXPECT_EQ(2299161u, DateToJulian(1582, 10, 5));
    EXPECT_EQ(2299170u, DateToJulian(1582, 10, 14));
}

TEST(DateToJulian, BeginsOnTheFirstDayOfMinus4713)
{
    EXPECT_EQ(0u, DateToJulian(-4713, 1, 1));
    EXPECT_EQ(static_cast<DWORD>(-1), DateToJulian(-4714, 12, 31));
}

TEST(DateToJulian, LeavesLeapDaysOutInFullCenturies)
{
    EXPECT_EQ(1u, DateToJulian(1900, 3, 1) - DateToJulian(1900, 2, 28));
    EXPECT_EQ(2u, DateToJulian(2000, 3, 1) - DateToJulian(2000, 2, 28));
    EXPECT_EQ(2u, DateToJulian(1500, 3, 1) - DateToJulian(1500, 2, 28));
}

TEST(DateToJulian, GivesWeekdaysWithSundayAsZero)
{
    EXPECT_EQ(6u, (DateToJulian(2000, 1, 1) + 1) % 7);
    EXPECT_EQ(1u, (DateToJulian(1900, 1, 1) + 1) % 7);
    EXPECT_EQ(4u, (DateToJulian(2024, 2, 29) + 1) % 7);
}

TEST(JulianToDate, GivesTheDayZeroOfTheStoredTypes)
{
    EXPECT_EQ("1900-1-1", DateOf(2415021));
    EXPECT_EQ("1899-12-30", DateOf(2415019));
}

TEST(JulianToDate, SkipsTheDaysThatTheReformDropped)
{
    EXPECT_EQ("1582-10-4", DateOf(2299160));
    EXPECT_EQ("1582-10-15", DateOf(2299161));
}

TEST(JulianToDate, GivesTheYearBeforeOneAsMinusOne)
{
    EXPECT_EQ("1-1-1", DateOf(1721424));
    EXPECT_EQ("-1-12-31", DateOf(1721423));
    EXPECT_EQ("-4713-1-1", DateOf(0));
}

TEST(JulianToDate, ReadsDaysBeforeTheFirstAsNegative)
{
    EXPECT_EQ("-4714-12-31", DateOf(static_cast<DWORD>(-1)));
    EXPECT_EQ("-4714-1-1", DateOf(static_cast<DWORD>(-365)));
}

TEST(JulianToDate, CutsTheFarPastTowardsZero)
{
    EXPECT_EQ("-8000-1-2", DateOf(DateToJulian(-8001, 1, 1)));
}

TEST(JulianToDate, GivesTheEndsOfTheSixteenBitYears)
{
    EXPECT_EQ("32767-12-31", DateOf(DateToJulian(32767, 12, 31)));
    EXPECT_EQ("9999-12-31", DateOf(DateToJulian(9999, 12, 31)));
}

TEST(JulianToDate, CountsFarDaysInSinglePrecision)
{
    // From 2^24 days on a count can round to its neighbour, and the day before March falls into the wrong year.
    EXPECT_EQ("47901-2-27", DateOf(19216598));
    EXPECT_EQ("47902-2-31", DateOf(19216599));
    EXPECT_EQ("47901-3-1", DateOf(19216600));
}

TEST(JulianToDate, TakesTheHighestDayNumber)
{
    EXPECT_EQ("5874898-6-3", DateOf(0x7FFFFFFF));
}

TEST(TimeToMsec, CountsFromMidnight)
{
    EXPECT_EQ(0u, TimeToMsec(0, 0, 0, 0));
    EXPECT_EQ(45296789u, TimeToMsec(12, 34, 56, 789));
    EXPECT_EQ(86399999u, TimeToMsec(23, 59, 59, 999));
}

TEST(TimeToMsec, WrapsInThirtyTwoBits)
{
    EXPECT_EQ(static_cast<DWORD>(5000ull * 3600000ull), TimeToMsec(5000, 0, 0, 0));
    EXPECT_EQ(static_cast<DWORD>(-1), TimeToMsec(0, 0, 0, -1));
}

TEST(MsecToTime, SplitsACount)
{
    int hour = -1;
    int minute = -1;
    int second = -1;
    int msec = -1;
    MsecToTime(45296789, &hour, &minute, &second, &msec);
    EXPECT_EQ(12, hour);
    EXPECT_EQ(34, minute);
    EXPECT_EQ(56, second);
    EXPECT_EQ(789, msec);
}

TEST(MsecToTime, HasNoLimitAtADay)
{
    int hour = -1;
    MsecToTime(0xFFFFFFFF, &hour, nullptr, nullptr, nullptr);
    EXPECT_EQ(1193, hour);
}

TEST(MsecToTime, LeavesOutWhatIsNotAskedFor)
{
    int hour = -1;
    int minute = -1;
    int second = -1;
    int msec = -1;
    MsecToTime(45296789, nullptr, &minute, nullptr, &msec);
    EXPECT_EQ(34, minute);
    EXPECT_EQ(789, msec);
    MsecToTime(45296789, &hour, nullptr, &second, nullptr);
    EXPECT_EQ(12, hour);
    EXPECT_EQ(56, second);
    MsecToTime(45296789, nullptr, nullptr, nullptr, nullptr);
}
