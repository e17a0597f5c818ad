// Text helpers: what is copied, cut, filled, opened and closed, and the comparison without case.
#include "foundation/memory.h"
#include "support/guarded_memory.h"

#include <gtest/gtest.h>

namespace {

TEST(BoundedCopy, CopiesAtMostSizeLessOneAndTerminates)
{
    struct {
        const char* src;
        int         size;
        const char* expected;
        int         result;
    } const rows[] = {
        { "abc", 2, "a", 1 },   { "abc", 4, "abc", 3 }, { "abc", 3, "ab", 2 },   { "abc", 1, "", 0 },
        { "abc", 50, "abc", 3 }, { "", 5, "", 0 },       { "abc", -1, "abc", 3 }, { "abc", -100, "abc", 3 },
        { nullptr, 5, "", 0 },  { nullptr, -1, "", 0 },
    };
    for (const auto& row : rows) {
        char dest[64];
        std::memset(dest, 'x', sizeof dest);
        EXPECT_EQ(row.result, _fstrnzcpy(dest, row.src, row.size)) << row.expected << ' ' << row.size;
        EXPECT_STREQ(row.expected, dest);
        EXPECT_EQ('x', dest[row.result + 1]) << row.expected << ' ' << row.size;
    }
}

TEST(BoundedCopy, OfSizeZeroLeavesTheBufferAlone)
{
    char dest[4] = "xyz";
    EXPECT_EQ(0, _fstrnzcpy(dest, "abc", 0));
    EXPECT_STREQ("xyz", dest);
}

TEST(TextCopy, IsABlockOfItsOwn)
{
    const char  text[] = "hello";
    char* const copy = hstrdup(text);
    ASSERT_NE(nullptr, copy);
    EXPECT_NE(text, copy);
    EXPECT_STREQ(text, copy);
    EXPECT_EQ(sizeof text, BlockSize(copy));
    HBlockFree(copy);
}

TEST(TextCopy, OfNothingIsNothing)
{
    EXPECT_EQ(nullptr, hstrdup(nullptr));
}

TEST(TextCopy, WithoutMemoryIsNothing)
{
    FailAllocation(1);
    EXPECT_EQ(nullptr, hstrdup("abc"));
    FailAllocation(0);
}

TEST(TextReplacement, FreesTheOldTextAndStoresTheNew)
{
    const int live = LiveBlocks();
    char*     slot = hstrdup("old");
    char*     result = hstrdup2(&slot, "new");
    EXPECT_EQ(slot, result);
    EXPECT_STREQ("new", slot);
    EXPECT_EQ(live + 1, LiveBlocks());
    EXPECT_EQ(nullptr, hstrdup2(&slot, nullptr));
    EXPECT_EQ(nullptr, slot);
    EXPECT_EQ(live, LiveBlocks());
}

TEST(TextReplacement, FillsAnEmptySlot)
{
    char* slot = nullptr;
    EXPECT_STREQ("abc", hstrdup2(&slot, "abc"));
    HBlockFree(slot);
}

TEST(TextReplacement, WithPartOfTheOldTextKeepsThatPart)
{
    char* slot = hstrdup("abcdef");
    EXPECT_STREQ("def", hstrdup2(&slot, slot + 3));
    HBlockFree(slot);
}

TEST(TextReplacement, WithoutMemoryEmptiesTheSlot)
{
    char* slot = hstrdup("old");
    FailAllocation(1);
    EXPECT_EQ(nullptr, hstrdup2(&slot, "new"));
    FailAllocation(0);
    EXPECT_EQ(nullptr, slot);
}

TEST(Filling, MakesATextOfTheSameLength)
{
    char* const filled = HFillString("hello", '*');
    EXPECT_STREQ("*****", filled);
    HBlockFree(filled);
    char* const empty = HFillString("", '*');
    EXPECT_STREQ("", empty);
    HBlockFree(empty);
}

TEST(Filling, OfNothingOrWithoutMemoryIsNothing)
{
    EXPECT_EQ(nullptr, HFillString(nullptr, '*'));
    FailAllocation(1);
    EXPECT_EQ(nullptr, HFillString("abc", '*'));
    FailAllocation(0);
}

TEST(InsertingCharacters, OpensPlacesAndFillsThem)
{
    struct {
        const char* text;
        int         count;
        int         pos;
        const char* expected;
    } const rows[] = {
        { "abcd", 2, 1, "a__bcd" }, { "abcd", 1, 0, "_abcd" }, { "abcd", 3, 4, "abcd___" }, { "", 2, 0, "__" },
        { "abcd", 0, 1, "abcd" },   { "abcd", -1, 1, "abcd" }, { "abcd", 2, 9, "abcd__" },  { "abcd", 2, -1, "abcd" },
    };
    for (const auto& row : rows) {
        char buffer[16];
        std::strcpy(buffer, row.text);
        EXPECT_EQ(buffer, HInsertChars(buffer, '_', row.count, row.pos));
        EXPECT_STREQ(row.expected, buffer);
    }
}

TEST(RemovingCharacters, ClosesTheGapAndRemovesWhatIsThereOnly)
{
    struct {
        const char* text;
        int         count;
        int         pos;
        const char* expected;
    } const rows[] = {
        { "abcd", 2, 1, "ad" },  { "abcd", 1, 0, "bcd" },  { "abcd", 9, 2, "ab" },   { "abcd", 1, 4, "abcd" },
        { "abcd", 1, 7, "abcd" }, { "abcd", 0, 1, "abcd" }, { "abcd", -1, 1, "abcd" }, { "", 1, 0, "" },
    };
    for (const auto& row : rows) {
        char buffer[16];
        std::strcpy(buffer, row.text);
        EXPECT_EQ(buffer, HRemoveChars(buffer, row.count, row.pos));
        EXPECT_STREQ(row.expected, buffer);
    }
}

TEST(ComparingWithoutCase, OrdersTextsBothWays)
{
    struct {
        const char* a;
        const char* b;
        int         order;
    } const rows[] = {
        { "abc", "ABC", 0 },  { "abc", "abd", -1 }, { "ABD", "abc", 1 },        { "ab", "abc", -1 }, { "", "", 0 },
        { "", "a", -1 },      { "a_", "aB", -1 },   { "\xFE", "a", 1 },         { "a", nullptr, 1 },
        { nullptr, nullptr, 0 }, { "", nullptr, 1 },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.order, HCompareNoCase(row.a, row.b)) << (row.a ? row.a : "null") << ' ' << (row.b ? row.b : "null");
        EXPECT_EQ(-row.order, HCompareNoCase(row.b, row.a)) << (row.a ? row.a : "null");
    }
}

} // namespace
