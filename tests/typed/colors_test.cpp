// Colours by name and by numbers, and the groups of formats that hold them.
#include "typed/typed_test_support.h"

#include "typed/masks.h"

namespace {

constexpr COLORREF unset = 0x12345678;

COLORREF ColorOf(const std::string& text)
{
    ExactBuffer exact(text);
    COLORREF    color = unset;
    const int   result = StringToColor(exact.Get(), &color);
    EXPECT_EQ(color != unset, result == 1) << text;
    return color;
}

struct Name {
    int      length;
    char     first;
    COLORREF color;
};

const Name names[] = {
    { 3, 'r', 0x0000FF }, { 4, 'b', 0xFF0000 }, { 4, 'c', 0xFFFF00 }, { 4, 'd', 0x7F7F00 },
    { 4, 'g', 0x7F7F7F }, { 5, 'b', 0x000000 }, { 5, 'd', 0x00007F }, { 5, 'g', 0x00FF00 },
    { 5, 'l', 0xC0C0C0 }, { 5, 'o', 0x007F7F }, { 5, 'w', 0xFFFFFF }, { 6, 'd', 0x7F0000 },
    { 6, 'p', 0x7F007F }, { 6, 'y', 0x00FFFF }, { 7, 'd', 0x007F00 }, { 7, 'm', 0xFF00FF },
};

COLORREF Expected(int length, char first)
{
    for (const Name& row : names) {
        if (row.length == length && row.first == first) {
            return row.color;
        }
    }
    return unset;
}

struct Prefix {
    const char* text;
    const char* rest;
    int         result;
    COLORREF    color;
    COLORREF    negative;
};

const Prefix prefixes[] = {
    { "[red]0.00;[blue]-0.00", "0.00;-0.00", 3, 0x0000FF, 0xFF0000 },
    { "[red]0.00", "0.00", 1, 0x0000FF, unset },
    { "0.00;[blue]-0.00", "0.00;-0.00", 2, unset, 0xFF0000 },
    { "0.00[red]", "0.00", 1, 0x0000FF, unset },
    { "0.00", "0.00", 0, unset, unset },
    { "[rouge]0.00", "0.00", 0, unset, unset },
    { "[1,2,3]45", "45", 1, 0x030201, unset },
    { "0;[rouge]1", "0;1", 0, unset, unset },
    { "[red]0;[rouge]1", "0;1", 1, 0x0000FF, unset },
    { "[1,2]45", "45", 1, 0x000201, unset },
    { "a;b;[red]c", "a;b;c", 0, unset, unset },
    { "[]x", "x", 0, unset, unset },
    // An unclosed group goes to the end and sets nothing.
    { "0[red", "0", 0, unset, unset },
    // The last group of the first section gives the result, each of the second adds to it.
    { "[red][rouge]x", "x", 0, 0x0000FF, unset },
    { "[rouge][red]x", "x", 1, 0x0000FF, unset },
    { ";[red][blue]x", ";x", 4, unset, 0xFF0000 },
    // An escape is dropped and doesn't protect; before other characters it stays.
    { "a\\;[red]b", "a;b", 2, unset, 0x0000FF },
    { "\\[red]b", "b", 1, 0x0000FF, unset },
    { "a\\b\\\\c\\", "a\\b\\\\c\\", 0, unset, unset },
    { "a\\\\;[red]", "a\\;", 2, unset, 0x0000FF },
    // Inside a group nothing counts but its end.
    { "[a;b[c\\]d;[red]", "d;", 2, unset, 0x0000FF },
    { "[red]", "", 1, 0x0000FF, unset },
    { "]x", "]x", 0, unset, unset },
};

} // namespace

TEST(StringToColor, KnowsColoursByLengthAndFirstLetterAlone)
{
    for (int length = 0; length <= 12; ++length) {
        for (char first = 'a'; first <= 'z'; ++first) {
            const std::string tail = length > 1 ? std::string(static_cast<size_t>(length) - 1, 'q') : "";
            const std::string word = length > 0 ? first + tail : "";
            const COLORREF    expected = length > 0 ? Expected(length, first) : unset;
            EXPECT_EQ(expected, ColorOf(word)) << word;
            EXPECT_EQ(expected, ColorOf("[" + word + "]")) << word;
            EXPECT_EQ(expected, ColorOf(word + " 12")) << word;
            if (length > 0) {
                const char upper = static_cast<char>(first - 'a' + 'A');
                EXPECT_EQ(expected, ColorOf(upper + tail)) << word;
            }
        }
    }
}

TEST(StringToColor, ReadsWordsAsTheyAreWritten)
{
    EXPECT_EQ(0x0000FFu, ColorOf("red"));
    EXPECT_EQ(0x0000FFu, ColorOf("[red]"));
    EXPECT_EQ(0x0000FFu, ColorOf("RED"));
    EXPECT_EQ(unset, ColorOf("rouge"));
    EXPECT_EQ(0x007F00u, ColorOf("dkgreen"));
    EXPECT_EQ(unset, ColorOf(""));
    EXPECT_EQ(unset, ColorOf("["));
    EXPECT_EQ(unset, ColorOf(" red"));
    EXPECT_EQ(unset, ColorOf("[[red]"));
}

TEST(StringToColor, ReadsUpToThreeNumbersOfOneByteEach)
{
    EXPECT_EQ(0x0A00FFu, ColorOf("[255,0,10]"));
    EXPECT_EQ(0x0A00FFu, ColorOf("255 0 10"));
    EXPECT_EQ(0x0A00FFu, ColorOf("255, ;0abc10"));
    EXPECT_EQ(0x000007u, ColorOf("7"));
    EXPECT_EQ(0x000207u, ColorOf("7,2"));
    EXPECT_EQ(0x030207u, ColorOf("7,2,3,4"));
    EXPECT_EQ(0x000001u, ColorOf("257"));
    EXPECT_EQ(0x0000FFu, ColorOf("4294967295,256"));
    EXPECT_EQ(0x000007u, ColorOf("7]"));
}

TEST(StringToColor, StoresNothingForMissingArguments)
{
    COLORREF color = unset;
    EXPECT_EQ(0, StringToColor(nullptr, &color));
    EXPECT_EQ(0, StringToColor("red", nullptr));
    EXPECT_EQ(unset, color);
}

TEST(ParseColorPrefix, TakesTheGroupsOutOfTheText)
{
    for (const Prefix& row : prefixes) {
        ExactBuffer text{ std::string(row.text) };
        COLORREF    color = unset, negative = unset;
        EXPECT_EQ(row.result, ParseColorPrefix(&color, &negative, text.Get())) << row.text;
        EXPECT_EQ(row.rest, text.Text()) << row.text;
        EXPECT_EQ(row.color, color) << row.text;
        EXPECT_EQ(row.negative, negative) << row.text;
    }
}

TEST(ParseColorPrefix, DropsTheSecondColourWhenNobodyWantsIt)
{
    ExactBuffer text{ std::string("[red]0;[blue]1") };
    COLORREF    color = unset;
    EXPECT_EQ(1, ParseColorPrefix(&color, nullptr, text.Get()));
    EXPECT_EQ("0;1", text.Text());
}

TEST(ParseColorPrefix, LeavesTheTextAloneForMissingArguments)
{
    ExactBuffer text{ std::string("[red]x") };
    COLORREF    color = unset;
    EXPECT_EQ(0, ParseColorPrefix(nullptr, &color, text.Get()));
    EXPECT_EQ("[red]x", text.Text());
    EXPECT_EQ(0, ParseColorPrefix(&color, nullptr, nullptr));
    ExactBuffer empty{ std::string() };
    EXPECT_EQ(0, ParseColorPrefix(&color, &color, empty.Get()));
    EXPECT_EQ(unset, color);
}

TEST(ParseColorPrefix, NeverLengthensAnyText)
{
    Random random(7);
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (unsigned i = random() % 14; i > 0; --i) {
            text += "[];\\r1"[random() % 6];
        }
        ExactBuffer exact(text);
        COLORREF    color, negative;
        ParseColorPrefix(&color, &negative, exact.Get());
        ASSERT_LE(exact.Text().size(), text.size()) << text;
        ASSERT_EQ(std::string::npos, exact.Text().find('[')) << text;
    }
}
