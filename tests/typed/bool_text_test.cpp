// Booleans as two texts: shown, read and typed.
#include "typed/typed_test_support.h"

#include "typed/masks.h"

#include <cstdint>

namespace {

// The field holds as much as its picture.
std::string TypeInto(const char* text, const char* format, char ch)
{
    ExactBuffer field(std::strlen(format && *format ? format : "TRUE;FALSE") + 1);
    std::strcpy(field.Get(), text);
    EXPECT_EQ(0, BoolCharFilter(field.Get(), format, ch)) << text << ch;
    return field.Text();
}

} // namespace

TEST(BoolToString, WritesTheTextOfTheValue)
{
    const struct {
        int         value;
        const char* format;
        const char* text;
    } cases[] = {
        { 1, "Yes;No", "Yes" }, { 0, "Yes;No", "No" },  { -5, "Yes;No", "Yes" }, { 0, "Yes", "Yes" },
        { 1, "Yes", "Yes" },    { 1, nullptr, "TRUE" }, { 0, nullptr, "FALSE" }, { 1, "", "TRUE" },
        { 0, "", "FALSE" },     { 0, "a;b;c", "b;c" },  { 1, "a;b;c", "a" },     { 1, ";off", "" },
        { 0, "on;", "" },
    };
    for (const auto& row : cases) {
        ExactBuffer out(std::strlen(row.text) + 1);
        EXPECT_EQ(static_cast<int>(std::strlen(row.text)), BoolToString(row.value, row.format, out.Get(), 100))
            << row.text;
        EXPECT_EQ(row.text, out.Text());
    }
}

TEST(BoolToString, CutsTheTextToTheBuffer)
{
    ExactBuffer out(3);
    EXPECT_EQ(2, BoolToString(0, nullptr, out.Get(), 3));
    EXPECT_EQ("FA", out.Text());
    ExactBuffer one(1);
    EXPECT_EQ(0, BoolToString(0, nullptr, one.Get(), 1));
    EXPECT_EQ("", one.Text());
}

TEST(BoolToString, GivesNothingWithoutABuffer)
{
    char out[] = "?";
    EXPECT_EQ(0, BoolToString(1, nullptr, nullptr, 10));
    EXPECT_EQ(0, BoolToString(1, nullptr, out, 0));
    EXPECT_STREQ("?", out);
}

TEST(BoolFromText, ComparesWithTheTrueTextOverTheShorterLength)
{
    const struct {
        const char* format;
        const char* text;
        int         value;
    } cases[] = {
        { "Yes;No", "Yes", 1 },  { "Yes;No", "YES", 1 }, { "Yes;No", "y", 1 },     { "Yes;No", "yesterday", 1 },
        { "Yes;No", "No", 0 },   { "Yes;No", "yet", 0 }, { "Yes;No", "", 1 },      { nullptr, "true", 1 },
        { nullptr, "false", 0 }, { "", "t", 1 },         { "", "f", 0 },           { "Yes", "No", 1 },
        { "Yes", "", 1 },        { ";No", "No", 1 },     { "Yes;No", nullptr, 0 }, { "Yes", nullptr, 0 },
    };
    for (const auto& row : cases) {
        EXPECT_EQ(row.value, BoolFromText(row.format, row.text))
            << (row.format ? row.format : "null") << " " << (row.text ? row.text : "null");
    }
}

TEST(BoolCharFilter, TakesTheFirstLetterOfEitherText)
{
    EXPECT_EQ("No", TypeInto("Yes", "Yes;No", 'n'));
    EXPECT_EQ("No", TypeInto("Yes", "Yes;No", 'N'));
    EXPECT_EQ("Yes", TypeInto("No", "Yes;No", 'y'));
    EXPECT_EQ("Yes", TypeInto("Yes", "Yes;No", 'Y'));
    EXPECT_EQ("FALSE", TypeInto("TRUE", nullptr, 'f'));
    EXPECT_EQ("TRUE", TypeInto("FALSE", "", 't'));
}

TEST(BoolCharFilter, PrefersTheTrueTextWhereBothBeginAlike)
{
    EXPECT_EQ("on", TypeInto("off", "on;off", 'o'));
    EXPECT_EQ("Yes", TypeInto("No", "Yes", 'y'));
}

TEST(BoolCharFilter, TogglesAtABlank)
{
    EXPECT_EQ("No", TypeInto("Yes", "Yes;No", ' '));
    EXPECT_EQ("Yes", TypeInto("No", "Yes;No", ' '));
    EXPECT_EQ("No", TypeInto("", "Yes;No", ' '));
    EXPECT_EQ("FALSE", TypeInto("TRUE", nullptr, ' '));
}

TEST(BoolCharFilter, LeavesTheTextAloneForAnythingElse)
{
    for (const char ch : std::string("xes;1") + '\0') {
        EXPECT_EQ("No", TypeInto("No", "Yes;No", ch)) << ch;
    }
    EXPECT_EQ("off", TypeInto("off", ";off", ';'));
}

TEST(BoolCharFilter, RefusesAMissingText)
{
    EXPECT_EQ(1, BoolCharFilter(nullptr, "Yes;No", 'y'));
}

TEST(BoolValue, IsStoredAndReadInEveryIntegerType)
{
    const struct {
        char   type;
        size_t size;
    } types[] = { { 'W', 4 }, { 'b', 1 }, { 'h', 1 }, { 'i', 4 }, { 'l', 4 }, { 's', 2 }, { 'u', 4 }, { 'w', 2 } };
    for (const auto& row : types) {
        ExactBuffer data(row.size, '\x55');
        EXPECT_EQ(1, GetBoolValue(row.type, data.Get())) << row.type;
        EXPECT_EQ(1, SetBoolValue(row.type, data.Get(), 0)) << row.type;
        EXPECT_EQ(std::string(row.size, 0), data.Bytes()) << row.type;
        EXPECT_EQ(0, GetBoolValue(row.type, data.Get())) << row.type;
        EXPECT_EQ(1, SetBoolValue(row.type, data.Get(), 1)) << row.type;
        EXPECT_EQ(1, GetBoolValue(row.type, data.Get())) << row.type;
        EXPECT_EQ(1.0, NumToDouble(data.Get(), row.type)) << row.type;
        // The highest byte alone makes it true.
        data.Get()[0] = 0;
        data.Get()[row.size - 1] = '\x80';
        EXPECT_EQ(1, GetBoolValue(row.type, data.Get())) << row.type;
    }
}

TEST(BoolValue, OfAnyOtherTypeIsFalseAndNotStored)
{
    const std::string integers = "Wbhilsuw";
    for (int type = 0; type < 256; ++type) {
        if (type && integers.find(static_cast<char>(type)) != std::string::npos) {
            continue;
        }
        int64_t data = -1;
        EXPECT_EQ(0, GetBoolValue(static_cast<char>(type), &data)) << type;
        EXPECT_EQ(0, SetBoolValue(static_cast<char>(type), &data, 0)) << type;
        EXPECT_EQ(-1, data) << type;
    }
}

TEST(BoolValue, OfAMissingValueIsFalse)
{
    EXPECT_EQ(0, GetBoolValue('i', nullptr));
    EXPECT_EQ(0, SetBoolValue('i', nullptr, 1));
}
