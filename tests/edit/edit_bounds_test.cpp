// Bounds of values in their two forms.
#include "edit_record.h"
#include "foundation/memory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstring>

namespace {

void Store(EditRecord* edit, double number)
{
    DoubleToNum(edit->ctl.pData, edit->ctl.cType, number);
}

TEST(BoundMinMax, MovesAValueToTheBoundThatItPasses)
{
    EditRecord edit("%nl|-10;10;|");
    Store(&edit, 11);
    BoundMinMax(&edit.ctl);
    EXPECT_EQ(10, edit.Number());
    Store(&edit, -11);
    BoundMinMax(&edit.ctl);
    EXPECT_EQ(-10, edit.Number());
}

TEST(BoundMinMax, LeavesValuesOnAndBetweenTheBounds)
{
    EditRecord edit("%nl|-10;10;|");
    for (const double value : { -10.0, 0.0, 10.0 }) {
        Store(&edit, value);
        BoundMinMax(&edit.ctl);
        EXPECT_EQ(value, edit.Number());
    }
}

TEST(BoundMinMax, LooksOnlyAtBoundsThatApply)
{
    EditRecord edit("%nl|-10;10;|");
    edit.ctl.wBounds = 0;
    Store(&edit, 11);
    BoundMinMax(&edit.ctl);
    EXPECT_EQ(11, edit.Number());
}

TEST(BoundMinMax, DoesNothingForAClassWithoutBounds)
{
    EditRecord edit("%zd");
    edit.ctl.wBounds = 3;
    edit.ctl.dMax = -1;
    Store(&edit, 5);
    BoundMinMax(&edit.ctl);
    EXPECT_EQ(5, edit.Number());
}

TEST(BoundMinMax, DoesNothingWithoutARecord)
{
    BoundMinMax(nullptr);
}

TEST(SetBound, SetsAndAppliesTheBoundFromAValue)
{
    EditRecord edit("%nl");
    Store(&edit, 50);
    const int max = 20;
    SetBound(&edit.ctl, 2, &max);
    EXPECT_EQ(2, +edit.ctl.wBounds);
    EXPECT_EQ(20, +edit.ctl.dMax);
    EXPECT_EQ(20, edit.Number());
    const int min = 30;
    SetBound(&edit.ctl, 1, &min);
    EXPECT_EQ(3, +edit.ctl.wBounds);
    EXPECT_EQ(30, edit.Number());
}

TEST(SetBound, NullClearsTheBoundAlone)
{
    EditRecord edit("%nl|1;2;|");
    SetBound(&edit.ctl, 2, nullptr);
    EXPECT_EQ(1, +edit.ctl.wBounds);
    SetBound(&edit.ctl, 1, nullptr);
    EXPECT_EQ(0, +edit.ctl.wBounds);
}

TEST(SetBound, ChangesNothingForAClassWithoutConversion)
{
    EditRecord edit("abc");
    SetBound(&edit.ctl, 1, "zzz");
    EXPECT_EQ(0, +edit.ctl.wBounds);
    EXPECT_EQ("abc", edit.Text());
}

TEST(ReadBound, GivesTheBoundInTheTypeOfTheControl)
{
    EditRecord edit("%nw|7;9;|");
    WORD value = 0;
    EXPECT_EQ(1, ReadBound(&edit.ctl, 1, &value));
    EXPECT_EQ(7, value);
    EXPECT_EQ(1, ReadBound(&edit.ctl, 2, &value));
    EXPECT_EQ(9, value);
}

TEST(ReadBound, GivesZeroForAClassWithoutConversion)
{
    EditRecord edit("abc");
    char buffer[8] = "keep";
    EXPECT_EQ(0, ReadBound(&edit.ctl, 1, buffer));
    EXPECT_STREQ("keep", buffer);
}

TEST(SetBound, ThreeWordsOfADateGoThroughTheDoubleUnchanged)
{
    EditRecord edit("%dd");
    const short date[3] = { 2024, 5, 17 };
    SetBound(&edit.ctl, 2, date);
    short back[3] = {};
    EXPECT_EQ(1, ReadBound(&edit.ctl, 2, back));
    EXPECT_EQ(2024, back[0]);
    EXPECT_EQ(5, back[1]);
    EXPECT_EQ(17, back[2]);
}

TEST(SetBound, BoundOfADateByMessageIsNoDayNumber)
{
    EditRecord edit("%dd");
    const short date[3] = { 2024, 5, 17 };
    SetBound(&edit.ctl, 2, date);
    EXPECT_LT(+edit.ctl.dMax, 1.0) << "the words lie in the bytes of the double";
}

TEST(ComparableValue, IsTheNumberItself)
{
    EditRecord edit("%nd");
    Store(&edit, 2.5);
    double value = 0;
    EXPECT_TRUE(ComparableValue(&edit.ctl, &value));
    EXPECT_EQ(2.5, value);
}

TEST(ComparableValue, IsTheDayNumberOfADate)
{
    EditRecord edit("%dl");
    StoreAs<int>(edit.ctl.pData, 19000101);
    double value = 0;
    EXPECT_TRUE(ComparableValue(&edit.ctl, &value));
    EXPECT_EQ(2.0, value);
}

TEST(ComparableValue, IsMissingForClassesWithoutBounds)
{
    double value = 0;
    for (const char* const text : { "abc", "%zd", "%kT", "%bb", "%ms##", "%hh" }) {
        const EditRecord edit(text);
        EXPECT_FALSE(ComparableValue(&edit.ctl, &value)) << text;
    }
}

TEST(StoreComparable, StoresDayNumbersAsDates)
{
    EditRecord edit("%dl");
    StoreComparable(&edit.ctl, 2.0);
    EXPECT_EQ(19000101, LoadAs<int>(edit.ctl.pData));
}

TEST(StoreComparable, LeavesClassesWithoutBoundsAlone)
{
    for (const char* const text : { "%ss20abc", "%zd", "%kT", "%ms##" }) {
        EditRecord        edit(text);
        const std::string before(static_cast<const char*>(edit.ctl.pData), static_cast<size_t>(+edit.ctl.cbData));
        StoreComparable(&edit.ctl, 45000.5);
        StoreUnmoved(&edit.ctl, 45000.5);
        EXPECT_EQ(before, std::string(static_cast<const char*>(edit.ctl.pData), before.size())) << text;
    }
}

TEST(StoreUnmoved, KeepsTheMillisecondsThatTheDoubleLacks)
{
    EditRecord        edit("%aD");
    const DateTimeRec rec = { 2024, 5, 17, 10, 20, 30, 0, 456 };
    std::memcpy(edit.ctl.pData, &rec, sizeof rec);
    double value = 0;
    ASSERT_TRUE(ComparableValue(&edit.ctl, &value));
    StoreUnmoved(&edit.ctl, value);
    EXPECT_EQ(0, std::memcmp(edit.ctl.pData, &rec, sizeof rec));
    StoreComparable(&edit.ctl, value);
    EXPECT_EQ(0, LoadAs<WORD>(static_cast<const BYTE*>(edit.ctl.pData) + offsetof(DateTimeRec, msec)));
}

// Settled: the bounds are day numbers, but BoundMinMax takes their bytes for year, month and day.
TEST(BoundMinMax, StartsADateWithTextBoundsAtTheWordsOfTheLowerOne)
{
    GetIntlSettings();
    const EditRecord edit("%dl|1.1.2020;31.12.2020;|");
    EXPECT_EQ(3, +edit.ctl.wBounds);
    EXPECT_EQ(43831.0, +edit.ctl.dMin);
    EXPECT_EQ(44196.0, +edit.ctl.dMax);
    // 43831.0 is the bytes 00 00, 00 00, E0 66, ...: the year 0, the month 0 and the day 0xE0.
    EXPECT_EQ(0xE0, LoadAs<int>(edit.ctl.pData));
}

} // namespace
