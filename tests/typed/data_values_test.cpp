// Stored values copied and told apart as bytes.
#include "typed/data_types.h"

#include <gtest/gtest.h>

#include <cstring>

namespace {

TEST(CopyValue, MovesAsManyBytesAsThePairHas)
{
    const char from[9] = "abcdefgh";
    char       to[9] = "........";
    EXPECT_EQ(6, HCopyValue(to, from, 'd', 'a', 1));
    EXPECT_STREQ("abcdef..", to);
    EXPECT_EQ(0, HCopyValue(to, from, 'x', 'y', 4)) << "a pair that doesn't exist has no bytes";
}

TEST(CopyValue, CutsTextsOnly)
{
    char to[8];
    EXPECT_EQ(3, HCopyValue(to, "abcdef", 's', 's', 4));
    EXPECT_STREQ("abc", to);
    EXPECT_EQ(6, HCopyValue(to, "abcdef", 'm', 's', -1));
    EXPECT_STREQ("abcdef", to);
    EXPECT_EQ(0, HCopyValue(to, "", 's', 's', -1));
    EXPECT_STREQ("", to);
}

TEST(CopyValue, OfNothingOrToNowhereIsNothing)
{
    char to[4] = "xyz";
    EXPECT_EQ(0, HCopyValue(to, nullptr, 's', 's', -1));
    EXPECT_EQ(0, HCopyValue(nullptr, to, 's', 's', -1));
    EXPECT_EQ(0, HCopyValue(to, nullptr, 'n', 'h', -1));
    EXPECT_STREQ("xyz", to);
}

TEST(ValuesDiffer, InAnyByteOfAFixedSizeAndInTheCharactersOfATextOnly)
{
    struct {
        const char* a;
        const char* b;
        char        dataClass;
        char        dataType;
        int         expected;
    } const rows[] = {
        { "abcd", "abcd", 'n', 'l', 0 },     { "abcd", "abce", 'n', 'l', 1 },     { "abce", "abcd", 'n', 's', 0 },
        { "abcdef", "abcdeX", 'd', 'a', 1 }, { "abc", "abc", 's', 's', 0 },       { "abc", "ABC", 's', 's', 1 },
        { "abc", "abcd", 'm', 's', 1 },      { "abc\0x", "abc\0y", 's', 's', 0 }, { "a", "b", 'x', 'y', 0 },
        { nullptr, "a", 's', 's', 0 },       { "a", nullptr, 'n', 'h', 0 },       { nullptr, nullptr, 's', 's', 0 },
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.expected, HValuesDiffer(row.a, row.b, row.dataClass, row.dataType))
            << (row.a ? row.a : "null") << ' ' << (row.b ? row.b : "null") << ' ' << row.dataClass << row.dataType;
    }
}

} // namespace
