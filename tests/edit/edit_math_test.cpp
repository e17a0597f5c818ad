// Indexes and pixels without a window.
#include "edit/edit_math.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <vector>

namespace {

constexpr int charWidth = 8;

int FixedWidth(const void*, int count)
{
    return count * charWidth;
}

// Widths of texts of the lengths 0, 1, 2 and so on.
int TableWidth(const void* context, int count)
{
    return (*static_cast<const std::vector<int>*>(context))[static_cast<size_t>(count)];
}

TEST(ClampIndex, NegativeIndexMeansTheEnd)
{
    EXPECT_EQ(5, ClampIndex(-1, 5));
}

TEST(ClampIndex, IndexPastTheEndMeansTheEnd)
{
    EXPECT_EQ(5, ClampIndex(0xFFFE, 5));
    EXPECT_EQ(5, ClampIndex(5, 5));
    EXPECT_EQ(4, ClampIndex(4, 5));
}

TEST(OrderedRange, PutsTheLowerIndexFirst)
{
    const TextRange range = OrderedRange(7, 2, 10);
    EXPECT_EQ(2, range.lo);
    EXPECT_EQ(7, range.hi);
}

TEST(OrderedRange, HoldsBothIndexesWithinTheText)
{
    const TextRange range = OrderedRange(20, 3, 10);
    EXPECT_EQ(3, range.lo);
    EXPECT_EQ(10, range.hi);
}

std::vector<bool> Marked(TextRange range, int size)
{
    std::vector<bool> marks(static_cast<size_t>(size));
    for (int i = range.lo; i < range.hi; ++i) {
        marks[static_cast<size_t>(i)] = true;
    }
    return marks;
}

TEST(RangeWithout, LeavesExactlyWhatTheOtherRangeDoesNotHold)
{
    constexpr int size = 7;
    for (int bits = 0; bits < size * size * size * size; ++bits) {
        const TextRange range = OrderedRange(bits % size, bits / size % size, size);
        const TextRange other = OrderedRange(bits / (size * size) % size, bits / (size * size * size), size);
        TextRange before = {};
        TextRange behind = {};
        RangeWithout(range, other, &before, &behind);
        const std::vector<bool> in = Marked(range, size);
        const std::vector<bool> out = Marked(other, size);
        const std::vector<bool> left = Marked(before, size);
        const std::vector<bool> right = Marked(behind, size);
        for (size_t i = 0; i < in.size(); ++i) {
            ASSERT_EQ(in[i] && (!out[i] || other.lo == other.hi), left[i] || right[i])
                << range.lo << ".." << range.hi << " without " << other.lo << ".." << other.hi << " at " << i;
        }
    }
}

TEST(NextWord, SkipsTheRestOfTheWordThenTheBlanks)
{
    EXPECT_EQ(4, NextWord("one two", 0));
    EXPECT_EQ(4, NextWord("one two", 3)) << "from the blank";
    EXPECT_EQ(7, NextWord("one two", 4)) << "the end";
    EXPECT_EQ(6, NextWord("one\t  two", 1));
    EXPECT_EQ(0, NextWord("", 0));
}

TEST(PreviousWord, StepsOverTheBlanksThenTheWord)
{
    EXPECT_EQ(4, PreviousWord("one two", 7));
    EXPECT_EQ(4, PreviousWord("one two", 5));
    EXPECT_EQ(0, PreviousWord("one two", 4));
    EXPECT_EQ(0, PreviousWord("   ", 2));
    EXPECT_EQ(0, PreviousWord("", 0));
}

TEST(NearestCount, TakesTheCountWhoseWidthIsNearer)
{
    EXPECT_EQ(2, NearestCount(FixedWidth, nullptr, 2 * charWidth + 3, 2, 10));
    EXPECT_EQ(3, NearestCount(FixedWidth, nullptr, 2 * charWidth + 5, 2, 10));
}

TEST(NearestCount, TakesTheLaterCountOnATie)
{
    EXPECT_EQ(3, NearestCount(FixedWidth, nullptr, 2 * charWidth + 4, 2, 10)) << "coming from below";
    EXPECT_EQ(2, NearestCount(FixedWidth, nullptr, 2 * charWidth + 4, 3, 10)) << "coming from above";
}

TEST(NearestCount, StaysWithinTheText)
{
    EXPECT_EQ(10, NearestCount(FixedWidth, nullptr, 1000, 125, 10));
    EXPECT_EQ(0, NearestCount(FixedWidth, nullptr, -50, -6, 10));
    EXPECT_EQ(0, NearestCount(FixedWidth, nullptr, 50, 6, 0));
}

TEST(NearestCount, FindsTheNearestWhateverTheEstimate)
{
    std::mt19937 random(7);
    std::uniform_int_distribution<int> widths(1, 15);
    std::vector<int> table = { 0 };
    while (table.size() < 31) {
        table.push_back(table.back() + widths(random));
    }
    for (int distance = -5; distance < table.back() + 5; ++distance) {
        for (int estimate = -2; estimate < 35; ++estimate) {
            const int found = NearestCount(TableWidth, &table, distance, estimate, 30);
            for (const int width : table) {
                ASSERT_LE(std::abs(distance - TableWidth(&table, found)), std::abs(distance - width))
                    << "distance " << distance << ", estimate " << estimate;
            }
        }
    }
}

TEST(ScrollForCaret, OpensAThirdOfAPageAheadOfACaretPastTheRightMargin)
{
    EXPECT_EQ(4, ScrollForCaret(71, 0, 80, 12, 5, 5));
    EXPECT_EQ(6, ScrollForCaret(71, 0, 80, 12, 5, 7)) << "and as far as the caret moved";
}

TEST(ScrollForCaret, LeavesTheTextWhileTheCaretStaysInsideTheMargins)
{
    EXPECT_EQ(0, ScrollForCaret(70, 0, 80, 12, 5, 7));
    EXPECT_EQ(0, ScrollForCaret(10, 0, 80, 12, 7, 5));
}

TEST(ScrollForCaret, ScrollsBackBeforeTheLeftMargin)
{
    EXPECT_EQ(-4, ScrollForCaret(9, 0, 80, 12, 5, 5));
    EXPECT_EQ(-6, ScrollForCaret(9, 0, 80, 12, 7, 5));
}

TEST(ScrollForCaret, NeverScrollsAgainstTheCaret)
{
    EXPECT_EQ(0, ScrollForCaret(71, 0, 80, 12, 20, 5)) << "a caret that moved back far";
    EXPECT_EQ(0, ScrollForCaret(9, 0, 80, 12, 5, 20)) << "a caret that moved on far";
}

TEST(ScrollForCaret, TakesAnEighthOfTheWidthAsMarginTruncated)
{
    EXPECT_EQ(0, ScrollForCaret(77, 0, 87, 12, 0, 0)) << "87 / 8 is 10";
    EXPECT_EQ(4, ScrollForCaret(78, 0, 87, 12, 0, 0));
    EXPECT_EQ(0, ScrollForCaret(10, 0, 87, 12, 0, 0));
    EXPECT_EQ(-4, ScrollForCaret(9, 0, 87, 12, 0, 0));
}

TEST(ScrollRange, IsNothingWhenAllFits)
{
    EXPECT_EQ(0, ScrollRange(0, 5, 20));
    EXPECT_EQ(0, ScrollRange(-2, 5, 20));
}

TEST(ScrollRange, LeavesThreeCharactersToSpare)
{
    EXPECT_EQ(8, ScrollRange(5, 0, 20));
}

TEST(ScrollRange, StaysWhenTheTextLosesAFewCharacters)
{
    EXPECT_EQ(8, ScrollRange(8, 8, 20));
    EXPECT_EQ(8, ScrollRange(7, 8, 20));
    EXPECT_EQ(8, ScrollRange(5, 8, 20));
    EXPECT_EQ(7, ScrollRange(4, 8, 20)) << "four fewer than the range set it anew";
    EXPECT_EQ(12, ScrollRange(9, 8, 20)) << "and so does one more";
}

TEST(ScrollRange, IsAtMostTheLength)
{
    EXPECT_EQ(6, ScrollRange(5, 0, 6));
}

TEST(ScrollAmount, IsHeldBetweenTheStartAndTheRange)
{
    EXPECT_EQ(3, ScrollAmount(3, 2, 10));
    EXPECT_EQ(8, ScrollAmount(20, 2, 10));
    EXPECT_EQ(-2, ScrollAmount(-20, 2, 10));
    EXPECT_EQ(0, ScrollAmount(1, 12, 10)) << "a position past the range goes no further";
}

TEST(HoldsOneLine, TwoLinesNeedMoreThanOnePointNineTextLines)
{
    EXPECT_TRUE(HoldsOneLine(20, 20));
    EXPECT_TRUE(HoldsOneLine(34, 20)) << "30 pixels for lines of 16";
    EXPECT_FALSE(HoldsOneLine(35, 20)) << "31 pixels are above 30.4";
    EXPECT_FALSE(HoldsOneLine(42, 24)) << "38 pixels aren't below 38";
}

} // namespace
