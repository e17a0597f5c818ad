// Texts laid out over masks and taken out of them.
#include "typed/typed_test_support.h"

#include <cctype>

namespace {

struct Conversion {
    const char* text;
    const char* mask;
    const char* result;
};

const Conversion layouts[] = {
    { "123", "##-##", "12-3_" },
    { "1234", "##-##", "12-34" },
    { "12345", "##-##", "12-34" },
    { "", "##-##", "__-__" },
    // Characters that don't fit are skipped.
    { "1x2 3", "##-##", "12-3_" },
    { "xyz", "##", "__" },
    // Each placeholder has its kind and its filler.
    { "1a.b", "@", "a" },
    { "1.", "@", " " },
    { "a1", "#", "1" },
    { "a", "#", "_" },
    { "a1.", "!", "." },
    { "a1", "!", "-" },
    { ".a", "&", "a" },
    { ".1", "&", "1" },
    { ".", "&", " " },
    { "\x01 ", "*", " " },
    { "\x01~", "*", "~" },
    { "\x01", "*", " " },
    // A separator that the text holds already is consumed, a letter or a digit of the mask isn't.
    { "12-34", "##-##", "12-34" },
    { "1-2-34", "##-##", "12-34" },
    { "12", "0##", "012" },
    { "012", "0##", "001" },
    { "x1", "x#", "x1" },
    { "A1", "A@", "AA" },
    { "AB", "A@", "AA" },
    { "(12)", "(##)", "(12)" },
    { "12", "(##)", "(12)" },
    // An escaped placeholder is a literal, an escaped letter stays one.
    { "12", "\\##", "#1" },
    { "#12", "\\##", "#1" },
    { "12", "#\\\\#", "1\\2" },
    { "12", "#\\[#]", "1[2]" },
    { "12", "#\\", "1" },
    // Groups in brackets take nothing.
    { "12", "[group]##", "12" },
    { "12", "#[-]#", "12" },
    { "12", "##[red]", "12" },
    { "12", "[a][b]#[c]#", "12" },
    { "12", "#]#", "1]2" },
    { "12", "#[never closed#", "1" },
    // Without a mask the text is copied.
    { "12-34", "", "12-34" },
    { "12-34", nullptr, "12-34" },
};

const Conversion strips[] = {
    { "12-34", "##-##", "1234" },
    { "1234", "##-##", "1234" },
    { "12-345", "##-##", "1234" },
    // A character that doesn't fit ends the result; the end of the text fills it up.
    { "12-3_", "##-##", "123" },
    { "__-__", "##-##", "" },
    { "1x", "##-##", "1" },
    { "12", "##-##", "12__" },
    { "12-", "##-##", "12__" },
    { "", "@#!&*", " _-  " },
    // A letter or a digit of the mask is consumed as any literal.
    { "012", "0##", "12" },
    { "A1", "A@", "" },
    { "AB", "A@", "B" },
    { "BC", "A@", "B" },
    { "(12)", "(##)", "12" },
    { "#12", "\\###", "12" },
    { "1\\2", "#\\\\#", "12" },
    { "12", "[group]##", "12" },
    { "1[2]", "#\\[#]", "12" },
    { "12", "#\\", "1" },
    { "12", "#[never closed#", "1" },
    { "12-34", "", "12-34" },
    { "12-34", nullptr, "12-34" },
};

void ExpectResult(const Conversion& row, int strip)
{
    const std::string named = std::string(row.text) + " under " + (row.mask ? row.mask : "null");
    ExactBuffer       text{ std::string(row.text) };
    ExactBuffer       out(std::strlen(row.result) + 1);
    const int         size = static_cast<int>(out.Size());
    const int         length = static_cast<int>(std::strlen(row.result));
    EXPECT_EQ(length, MaskToString(text.Get(), row.mask, out.Get(), size, strip)) << named;
    EXPECT_EQ(row.result, out.Text()) << named;
    char wide[64];
    EXPECT_EQ(length, MaskToString(text.Get(), row.mask, wide, sizeof wide, strip)) << named;
    EXPECT_STREQ(row.result, wide) << named;
}

} // namespace

TEST(MaskToString, LaysTheBareCharactersOutOverTheMask)
{
    for (const Conversion& row : layouts) {
        ExpectResult(row, 0);
    }
}

TEST(MaskToString, KeepsTheCharactersOfThePlaceholdersWhenItStrips)
{
    for (const Conversion& row : strips) {
        ExpectResult(row, 1);
    }
}

TEST(MaskToString, StopsWhereTheBufferHasRoomForTheTerminatorOnly)
{
    for (int size = 1; size <= 6; ++size) {
        ExactBuffer       out(static_cast<size_t>(size));
        const std::string whole = "12-34";
        EXPECT_EQ(size - 1, MaskToString("1234", "##-##", out.Get(), size, 0)) << size;
        EXPECT_EQ(whole.substr(0, static_cast<size_t>(size) - 1), out.Text()) << size;
    }
    ExactBuffer out(3);
    EXPECT_EQ(2, MaskToString("12-34", "##-##", out.Get(), 3, 1));
    EXPECT_EQ("12", out.Text());
}

TEST(MaskToString, CutsACopyWithoutAMaskToTheBuffer)
{
    ExactBuffer out(4);
    EXPECT_EQ(3, MaskToString("abcdef", "", out.Get(), 4, 0));
    EXPECT_EQ("abc", out.Text());
    EXPECT_EQ(3, MaskToString("uvwxyz", nullptr, out.Get(), 4, 1));
    EXPECT_EQ("uvw", out.Text());
}

TEST(MaskToString, GivesNothingForMissingArgumentsOrRoom)
{
    char out[8] = "keep";
    EXPECT_EQ(0, MaskToString(nullptr, "##", out, sizeof out, 0));
    EXPECT_EQ(0, MaskToString("12", "##", nullptr, 8, 0));
    EXPECT_EQ(0, MaskToString("12", "##", out, 0, 0));
    EXPECT_EQ(0, MaskToString("12", "##", out, -1, 1));
    EXPECT_STREQ("keep", out);
}

// Characters from 128 up are what the locale says of them.
TEST(MaskToString, TakesCharactersAbove127AsTheLocaleDoes)
{
    constexpr int letter = 0xE9;
    struct {
        const char* mask;
        bool        fits;
    } const rows[] = {
        { "@", std::isalpha(letter) != 0 },
        { "&", std::isalnum(letter) != 0 },
        { "!", std::ispunct(letter) != 0 },
        { "*", std::isprint(letter) != 0 },
        { "#", false },
    };
    for (const auto& row : rows) {
        char out[4] = "?";
        EXPECT_EQ(1, MaskToString("\xE9", row.mask, out, sizeof out, 0)) << row.mask;
        EXPECT_EQ(row.fits, out[0] == '\xE9') << row.mask;
    }
}
