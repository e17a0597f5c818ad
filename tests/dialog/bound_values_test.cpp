// The common form of bounds.
#include "dialog/control_frame.h"

#include "foundation/memory.h"

#include <gtest/gtest.h>

namespace {

struct ThreeWords {
    short year;
    WORD  month;
    WORD  day;
};

TEST(HToCanon, MakesADoubleOfNumbers)
{
    const LONG number = -1234;
    for (const char dataClass : { 'c', 'n' }) {
        double canon = 0;
        EXPECT_EQ(1, HToCanon(&canon, &number, dataClass, 'l')) << dataClass;
        EXPECT_DOUBLE_EQ(-1234.0, canon) << dataClass;
    }
}

TEST(HFromCanon, StoresADoubleAsTheType)
{
    for (const char dataClass : { 'c', 'n' }) {
        const double canon = 77.9;
        LONG         number = 0;
        EXPECT_EQ(1, HFromCanon(&canon, &number, dataClass, 'l')) << dataClass;
        EXPECT_EQ(77, number) << dataClass << " cuts towards zero";
    }
}

TEST(HToCanon, MakesThreeWordsOfDates)
{
    const LONG date = 20240229;
    for (const char dataClass : { 'd', 'a', 't' }) {
        double canon = 1e300;
        EXPECT_EQ(1, HToCanon(&canon, &date, dataClass, 'l')) << dataClass;
        const ThreeWords words = LoadAs<ThreeWords>(&canon);
        EXPECT_EQ(2024, words.year) << dataClass;
        EXPECT_EQ(2, words.month) << dataClass;
        EXPECT_EQ(29, words.day) << dataClass;
    }
}

TEST(HToCanon, GivesEqualDatesEqualBytes)
{
    const LONG date = 20240229;
    double     a = 1e300;
    double     b = -7.25;
    HToCanon(&a, &date, 'd', 'l');
    HToCanon(&b, &date, 'd', 'l');
    EXPECT_EQ(0, std::memcmp(&a, &b, sizeof a));
}

TEST(HFromCanon, StoresThreeWordsAsTheType)
{
    for (const char dataClass : { 'd', 'a', 't' }) {
        double canon = 0;
        StoreAs(&canon, ThreeWords{ 1999, 12, 31 });
        LONG date = 0;
        EXPECT_EQ(1, HFromCanon(&canon, &date, dataClass, 'l')) << dataClass;
        EXPECT_EQ(19991231, date) << dataClass;
    }
}

TEST(HToCanon, GivesZeroForNullAndForAnotherClass)
{
    const LONG number = 1;
    double     canon = 5;
    EXPECT_EQ(0, HToCanon(nullptr, &number, 'n', 'l'));
    EXPECT_EQ(0, HToCanon(&canon, nullptr, 'n', 'l'));
    for (const char dataClass : { 's', 'm', 'b', 'h', 'k', 'z', 'x', '\0' }) {
        EXPECT_EQ(0, HToCanon(&canon, &number, dataClass, 'l')) << dataClass;
    }
    EXPECT_DOUBLE_EQ(5, canon);
}

TEST(HFromCanon, GivesZeroForNullAndForAnotherClass)
{
    const double canon = 5;
    LONG         number = 1;
    EXPECT_EQ(0, HFromCanon(nullptr, &number, 'n', 'l'));
    EXPECT_EQ(0, HFromCanon(&canon, nullptr, 'n', 'l'));
    for (const char dataClass : { 's', 'm', 'b', 'h', 'k', 'z', 'x', '\0' }) {
        EXPECT_EQ(0, HFromCanon(&canon, &number, dataClass, 'l')) << dataClass;
    }
    EXPECT_EQ(1, number);
}

} // namespace
