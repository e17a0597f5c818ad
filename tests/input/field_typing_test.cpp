// Every class of value typed into a field by the real keyboard: what is shown, told and stored.
#include "input/input_field.h"

#include "input/moment.h"

#include <optional>
#include <vector>

namespace {

// Keys, and what they leave. In a second run the value is asked for after each row that has one.
struct TypedRow {
    const char*                keys;
    const char*                shown;
    const char*                told;
    std::optional<std::string> value = std::nullopt;
};

// A field that the user enters by a click, types into, and leaves by another click.
struct TypedField {
    const char*           text; // of the window
    DWORD                 style;
    const char*           entered; // shown after the first click
    std::vector<TypedRow> rows;
    const char*           left; // the text afterwards
    const char*           told; // on leaving
    std::string           value;
};

class FieldTyping : public InputField {
protected:
    void TypeRows(const TypedField& test, bool asks)
    {
        std::string keys;
        for (const TypedRow& row : test.rows) {
            keys += row.keys;
            Type(row.keys);
            EXPECT_EQ(row.shown, Shown()) << test.text << " by " << keys;
            EXPECT_EQ(row.told, Told()) << test.text << " by " << keys;
            if (asks && row.value) {
                EXPECT_EQ(Hex(*row.value), Hex(Stored())) << test.text << " by " << keys;
                EXPECT_EQ(row.shown, Shown()) << test.text << " asked for its value after " << keys;
                Told();
            }
        }
    }
    void Run(const TypedField& test, bool asks)
    {
        Make(test.text, test.style | HES_AUTOHSCROLL);
        Enter();
        EXPECT_EQ(field, GetFocus()) << test.text;
        EXPECT_EQ(test.entered, Shown()) << test.text;
        EXPECT_EQ("F", Told()) << test.text;
        TypeRows(test, asks);
        Leave();
        EXPECT_EQ(button, GetFocus()) << test.text;
        EXPECT_EQ(test.left, Text()) << test.text;
        const std::string told = Told();
        EXPECT_EQ(Hex(test.value), Hex(Stored())) << test.text;
        if (!asks) {
            EXPECT_EQ(test.told, told) << test.text;
        }
    }
    void RunAll(const std::vector<TypedField>& tests)
    {
        for (const TypedField& test : tests) {
            Run(test, false);
            Run(test, true);
        }
    }
};

// clang-format off
TEST_F(FieldTyping, Texts)
{
    RunAll({
        { "%ssabc", 0, "[abc]", {
            { "x",           "x|",     "UC",       "x" },
            { "Y z!",        "xY z!|", "UCUCUCUC", "xY z!" },
            { "{Back}",      "xY z|",  "UC",       "xY z" },
            { "{Home}{Del}", "|Y z",   "UC",       "Y z" },
            { "{Right}{Del}", "Y|z",   "UC",       "Yz" },
        }, "Yz", "K", "Yz" },
        { "%ss3", 0, "|", {
            { "ab", "ab|",  "UCUC", "ab" },
            { "c",  "abc|", "UC",   "abc" },
            { "d",  "abc|", "M",    "abc" },
        }, "abc", "K", "abc" },
        { "plain", HES_UPPERCASE, "[plain]", {
            { "aB1", "AB1|", "UCUCUC", "AB1" },
        }, "AB1", "K", "AB1" },
        { "", HES_LOWERCASE, "|", {
            { "aB1", "ab1|", "UCUCUC", "ab1" },
        }, "ab1", "K", "ab1" },
    });
}

TEST_F(FieldTyping, SingleCharacters)
{
    RunAll({
        { "%hh", 0, "|", {
            { "x",      "|x", "UC", Raw('x') },
            { "y",      "|y", "UC", Raw('y') },
            { "{End}",  "y|", "" },
            { "{Back}", "| ", "UC", Raw(' ') },
            { "7",      "|7", "UC", Raw('7') },
        }, "7", "K", Raw('7') },
    });
}

TEST_F(FieldTyping, TruthValues)
{
    RunAll({
        { "%blyes;no", 0, "[no]", {
            { "y", "|yes", "UC", Raw(1) },
            { "n", "|no",  "UC", Raw(0) },
            { " ", "|yes", "UC", Raw(1) },
            { "x", "|yes", "UC", Raw(1) },
        }, "yes", "K", Raw(1) },
        { "%bb", 0, "[FALSE]", {
            { "T", "|TRUE", "UC", Raw('\1') },
        }, "TRUE", "K", Raw('\1') },
    });
}

TEST_F(FieldTyping, Masks)
{
    RunAll({
        { "%ms##-##", 0, "[__-__]", {
            { "1",      "1|_-__", "UC",   "1" },
            { "x",      "1|_-__", "",     "1" },
            { "2",      "12|-__", "UC",   "12" },
            { "34",     "12-34|", "UCUC", "1234" },
            { "5",      "12-34|", "UC",   "1234" },
            { "{Back}", "12-3|_", "UC",   "123" },
        }, "12-3_", "K", "123" },
    });
}

TEST_F(FieldTyping, Numbers)
{
    RunAll({
        { "%nl", 0, "[0]", {
            { "5",           "5|",    "UC",   Raw(5) },
            { "x",           "5|",    "",     Raw(5) },
            { "12",          "512|",  "UCUC", Raw(512) },
            { "{Home}-",     "-|512", "UC",   Raw(-512) },
            { "{Del}",       "-|12",  "UC",   Raw(-12) },
            { "{End}{Back}", "-1|",   "UC",   Raw(-1) },
            { "7",           "-17|",  "UC",   Raw(-17) },
        }, "-17", "K", Raw(-17) },
        { "%nd#,##0.00", 0, "[0.00]", {
            { "1234", "1234|.00", "UCUCUCUC", Raw(1234.0) },
            { ".",    "1234.|00", "UC",       Raw(1234.0) },
            { "5",    "1234.5|0", "UC",       Raw(1234.5) },
            { "67",   "1234.56|", "UC",       Raw(1234.56) },
        }, "1,234.56", "K", Raw(1234.56) },
        { "%nf0.0", 0, "[0.0]", { { "2.5", "2.5|", "UCUCUC" } }, "2.5", "K", Raw(2.5f) },
        { "%ns", 0, "[0]", { { "-32768", "-32768|", "UCUCUCUCUCUC" } }, "-32768", "K", Raw(Short(-32768)) },
        { "%nw", 0, "[0]", { { "65535", "65535|", "UCUCUCUCUC" } }, "65535", "K", Raw(Short(-1)) },
        { "%nb", 0, "[0]", { { "200", "200|", "UCUCUC" } }, "200", "K", Raw('\xC8') },
        { "%nh", 0, "[0]", { { "-5", "-5|", "UCUC" } }, "-5", "K", Raw('\xFB') },
        { "%nu", 0, "[0]", { { "4294967295", "4294967295|", "UCUCUCUCUCUCUCUCUCUC" } }, "4294967295", "K", Raw(-1) },
    });
}

TEST_F(FieldTyping, NumbersWithBounds)
{
    RunAll({
        { "%nl|0;100;|*0",  0, "[0]",  { { "101", "101|", "UCUCUC" } }, "100", ">K", Raw(100) },
        { "%nl|10;100;|*0", 0, "[10]", { { "9",   "9|",   "UC" } },     "10",  "<K", Raw(10) },
        { "%nl|0;100;|*0",  0, "[0]",  { { "100", "100|", "UCUCUC" } }, "100", "K",  Raw(100) },
    });
}

TEST_F(FieldTyping, NumbersOfClassC)
{
    RunAll({
        { "%cl", 0, "[0]", {
            { "42",          "42|", "UCUC", Raw(42) },
            { "a",           "42|", "",     Raw(42) },
            { "{Home}{Del}", "|2",  "UC",   Raw(2) },
        }, "2", "K", Raw(2) },
        { "%cd#,##0.0", 0, "[0.0]", { { "9876.5", "9876.5|", "UCUCUCUCUCUC" } }, "9,876.5", "K", Raw(9876.5) },
    });
}

TEST_F(FieldTyping, CalculatorNumbers)
{
    RunAll({
        { "%zd0.00", 0, "[0.00]", {
            { "{End}1", "0.01|",  "UC", Raw(0.01) },
            { "2",      "0.12|",  "UC", Raw(0.12) },
            { "5",      "1.25|",  "UC", Raw(1.25) },
            { "-",      "-1.25|", "UC", Raw(-1.25) },
            { "{Back}", "-0.12|", "UC", Raw(-0.12) },
        }, "-0.12", "K", Raw(-0.12) },
    });
}

TEST_F(FieldTyping, Dates)
{
    RunAll({
        { "%dldd/mm/yyyy", 0, "[ . .    ]", {
            { "1705",           "17.05|.    ", "UCUCUCUC" },
            { "2024",           "17.05.2024|", "UCUCUCUC", Raw(20240517) },
            { "9",              "17.05.2024|", "" },
            { "{Home}3",        "3|7.05.2024", "UC" },
            { "{Right}{Left}1", "31|.05.2024", "UC",       Raw(20240531) },
        }, "31.05.2024", "K", Raw(20240531) },
        { "%dayyyy-mm-dd", 0, "[ . .    ]", {
            { "3.4.1999", "3.4.1999|", "UCUCUCUCUCUCUCUC" },
        }, "1999-04-03", "K", Raw('\3', '\4', Short(1999), Short(0)) },
        // A date without a format of its own shows as month, day, year.
        { "%dd", 0, "[ . .    ]", {
            { "29.2.2000", "29.2.2000|", "UCUCUCUCUCUCUCUCUC" },
        }, "02.29.2000", "K", Raw(Short(2000), Short(2), Short(29)) },
        { "%dAd.m.yy", 0, "[ . .1980]", {
            { "5.6.2001", "5.6.2001|", "UCUCUCUCUCUCUCUC" },
        }, "5.6.01", "K", Raw(Short(21 | (6 << 7) | (5 << 11))) },
        // No such day: that is told, and the nearest one taken.
        { "%dldd/mm/yyyy", 0, "[ . .    ]", {
            { "31.4.2024", "31.4.2024|", "UCUCUCUCUCUCUCUCUC" },
        }, "30.04.2024", "BK", Raw(20240430) },
    });
}

TEST_F(FieldTyping, Times)
{
    RunAll({
        { "%tt", 0, "[00:00:00]", {
            { "1239", "12:39|:  ", "UCUCUCUC" },
            { "07",   "12:39:07|", "UCUC", Raw(Short(12), Short(39), Short(7)) },
        }, "12:39:07", "K", Raw(Short(12), Short(39), Short(7)) },
        { "%ti", 0, "[00:00:00]", {
            { "235958", "23:59:58|", "UCUCUCUCUCUC" },
        }, "23:59:58", "K", Raw('\x17', '\x3B', '\x3A', '\0') },
        { "%tIhh:mm ap", 0, "[12:00 am]", {
            { "0345", "03:45| am", "UCUCUCUC" },
            { " p",   "03:45 p|m", "UCUC" },
        }, "03:45 pm", "K", Raw(Short(15 | (45 << 5))) },
    });
}

TEST_F(FieldTyping, DatesWithTimes)
{
    const std::vector<TypedRow> typed = {
        { "21.1.2026153045", "21.1.2026 15:30:45|", "UCUCUCUCUCUCUCUCUCUCUCUCUCUCUC" },
    };
    constexpr char left[] = "01.21.2026 15:30:45";
    const std::tm  moment = Moment(2026, 1, 21, 15, 30, 45);
    constexpr int  day = 46041; // from 1 January 1900
    constexpr int  seconds = (15 * 60 + 30) * 60 + 45;
    RunAll({
        { "%as", 0, "[ . .     0:00:00]", typed, left, "K",
          Raw(Short(2026), Short(1), Short(21), Short(15), Short(30), Short(45), Short(0), Short(0)) },
        { "%aD", 0, "[ . .     0:00:00]", typed, left, "K",
          Raw(Short(2026), '\1', '\x15', '\xF', '\x1E', '\x2D', '\0', Short(0)) },
        { "%aQ", 0, "[1.1.1900 0:00:00]", typed, left, "K", Raw(day, seconds * 1000) },
        { "%aq", 0, "[1.1.1900 0:00:00]", typed, "01.21.2026 15:30:00", "K", Raw(Short(day), Short(seconds / 60)) },
        { "%au", 0, "[30.12.1899 0:00:00]", typed, left, "K", Raw(seconds / 86400.0 + (day + 2)) },
        { "%am", 0, "[ .1.1900 0:00:00]", typed, left, "K", Raw(moment) },
        { "%aT", 0, "[1.1.1970 0:00:00]", typed, left, "K", Raw(ClockOf(moment)) },
    });
}

TEST_F(FieldTyping, StoppedClocks)
{
    RunAll({
        { "%kTdd.mm.yyyy", 0, "[1.1.1970]", {
            { "21.1.2026", "21.1.2026|", "UCUCUCUCUCUCUCUCUC" },
        }, "21.01.2026", "K", Raw(ClockOf(Moment(2026, 1, 21, 0, 0, 0))) },
    });
}
// clang-format on

} // namespace
