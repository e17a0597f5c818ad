// Typing into the text of a date or time.
#include "typed/date_test_support.h"

#include <cctype>

namespace {

class DateFilter : public DateTest {};

// What a typed character did: '|' marks the caret in both texts, and a refused one leaves "refused".
struct Typed {
    std::string text;
    int         advance;
    int         repaint;
};

struct FilterCase {
    const char* before;
    char        ch;
    const char* after; // null: refused
    int         advance;
    int         repaint;
};

enum Halves { dateOnly, timeOnly, dateAndTime };

void ExpectTyped(const FilterCase& test, const char* format, Halves halves)
{
    const std::string marked = test.before;
    const size_t      caret = marked.find('|');
    ASSERT_NE(std::string::npos, caret) << marked;
    const std::string plain = marked.substr(0, caret) + marked.substr(caret + 1);
    char              text[64];
    std::snprintf(text, sizeof text, "%s", plain.c_str());
    int       advance = 99;
    int       repaint = 99;
    const int refused = DateCharFilter(text, format, halves != timeOnly, halves != dateOnly, static_cast<int>(caret),
                                       test.ch, &advance, &repaint);
    const std::string what = marked + " with '" + test.ch + "'";
    EXPECT_EQ(test.after ? 0 : 1, refused) << what;
    EXPECT_EQ(test.after ? test.after : plain, text) << what;
    EXPECT_EQ(test.advance, advance) << what;
    EXPECT_EQ(test.repaint, repaint) << what;
}

template <size_t N>
void ExpectTyped(const FilterCase (&cases)[N], const char* format, Halves halves)
{
    for (const FilterCase& test : cases) {
        ExpectTyped(test, format, halves);
    }
}

// Types a whole line from the start of text, as an edit field would.
std::string TypeAll(std::string text, const char* keys, const char* format, Halves halves)
{
    char field[64] = {};
    int  caret = 0;
    std::snprintf(field, sizeof field, "%s", text.c_str());
    for (; *keys; ++keys) {
        int advance = 0;
        DateCharFilter(field, format, halves != timeOnly, halves != dateOnly, caret, *keys, &advance, nullptr);
        caret += advance;
    }
    return field;
}

} // namespace

TEST_F(DateFilter, ADigitOverwritesADigit)
{
    constexpr FilterCase cases[] = {
        { "|9.2.2024", '1', "1.2.2024", 1, 1 },   { "|19.2.2024", '2', "29.2.2024", 1, 1 },
        { "1|9.2.2024", '8', "18.2.2024", 1, 1 }, { "9.2.|2024", '1', "9.2.1024", 1, 1 },
        { "9.2.202|4", '5', "9.2.2025", 1, 1 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
}

TEST_F(DateFilter, ASecondDigitGrowsAFieldOfOneLetter)
{
    constexpr FilterCase cases[] = {
        { "9|.2.2024", '8', "98.2.2024", 1, 8 },
        { "9.2|.2024", '1', "9.21.2024", 1, 6 },
        { "19.2|.2024", '1', "19.21.2024", 1, 6 },
        { " |. .    ", '8', " 8. .    ", 1, 8 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
}

TEST_F(DateFilter, AThirdDigitGoesToTheNextField)
{
    constexpr FilterCase cases[] = {
        { "19|.2.2024", '8', "19.8.2024", 2, 2 },
        { "19.12|.2024", '8', "19.12.8024", 2, 2 },
        { "9.12|.2024", '8', "9.12.8024", 2, 2 },
        { "19|. .    ", '8', "19.8.    ", 2, 2 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
}

TEST_F(DateFilter, ADigitReplacesTheBlankOfAnEmptyField)
{
    constexpr FilterCase cases[] = {
        { "| . .    ", '8', "8. .    ", 1, 1 },
        { " .| .    ", '8', " .8.    ", 1, 1 },
        { " . .|    ", '2', " . .2   ", 1, 1 },
        { " . .   | ", '2', " . .   2", 1, 1 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
}

TEST_F(DateFilter, ADigitOnTheBlankBetweenTheHalvesGoesBehindIt)
{
    constexpr FilterCase cases[] = {
        { "9.2.2024| 5:07:03", '1', "9.2.2024 1:07:03", 2, 2 },
        { "19.12.2024| 15:07:03", '2', "19.12.2024 25:07:03", 2, 2 },
        { "9.2.2024 5|:07:03", '1', "9.2.2024 51:07:03", 1, 7 },
        { "19.12.2024 15|:07:03", '1', "19.12.2024 15:17:03", 2, 2 },
    };
    ExpectTyped(cases, nullptr, dateAndTime);
}

TEST_F(DateFilter, NothingButTheSecondDigitOfALastFieldFitsBehindTheText)
{
    constexpr FilterCase years[] = {
        { "9.2.2024|", '5', nullptr, 0, 0 },
        { "9.2.2024|", '.', nullptr, 0, 0 },
        { "9.2.2024|", ' ', nullptr, 0, 0 },
        { "9.2.2024|", 'a', nullptr, 0, 0 },
    };
    ExpectTyped(years, nullptr, dateOnly);
    ASSERT_EQ(1, SetDefDateFormat("yyyy/m/d"));
    constexpr FilterCase days[] = {
        { "2024.2.9|", '5', "2024.2.95", 1, 1 },
        { "2024.2.19|", '5', nullptr, 0, 0 },
        { "2024.2.9|", '.', nullptr, 0, 0 },
        { "2024.2.9|", ' ', nullptr, 0, 0 },
    };
    ExpectTyped(days, nullptr, dateOnly);
    constexpr FilterCase hours[] = { { "5|", '1', "51", 1, 1 }, { "15|", '1', nullptr, 0, 0 } };
    ExpectTyped(hours, "h", timeOnly);
}

TEST_F(DateFilter, PunctuationJumpsToTheNextField)
{
    constexpr FilterCase cases[] = {
        { "|19.2.2024", '.', "19.2.2024", 3, 1 }, { "1|9.2.2024", '.', "19.2.2024", 2, 1 },
        { "19|.2.2024", '.', "19.2.2024", 1, 1 }, { "19.|2.2024", '/', "19.2.2024", 2, 1 },
        { "19.2.2|024", '.', nullptr, 0, 0 },     { "| . .    ", ',', " . .    ", 2, 1 },
        { " . .|    ", '.', nullptr, 0, 0 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
    constexpr FilterCase both[] = {
        { "9.2.2024| 5:07:03", ':', "9.2.2024 5:07:03", 1, 1 },
        { "9.2.|2024 5:07:03", '.', "9.2.2024 5:07:03", 7, 1 },
        { "9.2.2024 5:07:|03", ':', nullptr, 0, 0 },
    };
    ExpectTyped(both, nullptr, dateAndTime);
}

TEST_F(DateFilter, ABlankRemovesOneOfTwoDigitsOfAFieldOfOneLetter)
{
    constexpr FilterCase cases[] = {
        { "|19.2.2024", ' ', "9.2.2024", 0, 9 },
        { "1|9.2.2024", ' ', "1.2.2024", 0, 8 },
        { "9.|12.2024", ' ', "9.2.2024", 0, 7 },
        { "19.1|2.2024", ' ', "19.1.2024", 0, 6 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
}

TEST_F(DateFilter, ABlankClearsAnyOtherDigit)
{
    constexpr FilterCase cases[] = {
        { "|9.2.2024", ' ', " .2.2024", 1, 1 },
        { "9.|2.2024", ' ', "9. .2024", 1, 1 },
        { "9.2.|2024", ' ', "9.2. 024", 1, 1 },
        { "9.2.202|4", ' ', "9.2.202 ", 1, 1 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
}

TEST_F(DateFilter, ABlankStepsOverSeparatorsAndBlanks)
{
    constexpr FilterCase cases[] = {
        { "9|.2.2024", ' ', "9.2.2024", 1, 1 },
        { "19|.2.2024", ' ', "19.2.2024", 1, 1 },
        { "| .2.2024", ' ', " .2.2024", 1, 1 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
    constexpr FilterCase both[] = { { "9.2.2024| 5:07:03", ' ', "9.2.2024 5:07:03", 1, 1 } };
    ExpectTyped(both, nullptr, dateAndTime);
}

TEST_F(DateFilter, FieldsOfTwoLettersKeepTheirPlaces)
{
    ASSERT_EQ(1, SetDefDateFormat("dd/mm/yyyy"));
    constexpr FilterCase cases[] = {
        { "|19.02.2024", ' ', " 9.02.2024", 1, 1 }, { "1|9.02.2024", ' ', "1 .02.2024", 1, 1 },
        { "19|.02.2024", '1', "19.12.2024", 2, 2 }, { "1| .02.2024", '8', "18.02.2024", 1, 1 },
        { "9|.2.2024", '1', "9.1.2024", 2, 2 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
    constexpr FilterCase clock[] = {
        { "|15:07", ' ', " 5:07", 1, 1 },
        { "15|:07", '3', "15:37", 2, 2 },
        { "15:0|7", '3', "15:03", 1, 1 },
        { "15:07|", '3', nullptr, 0, 0 },
    };
    ExpectTyped(clock, "hh:mm", timeOnly);
}

TEST_F(DateFilter, LettersAreTakenOnlyForAmAndPm)
{
    constexpr FilterCase cases[] = {
        { "01:30 |am", 'p', "01:30 pm", 1, 1 }, { "01:30 a|m", 'M', "01:30 aM", 1, 1 },
        { "01:30 |am", 'x', "01:30 xm", 1, 1 }, { "0|1:30 am", 'p', nullptr, 0, 0 },
        { "01|:30 am", 'p', nullptr, 0, 0 },    { "01:30| am", 'p', nullptr, 0, 0 },
        { "01:30 am|", 'p', nullptr, 0, 0 },    { "01:30 |am", '1', nullptr, 0, 0 },
        { "01:30| am", '1', nullptr, 0, 0 },    { "01:30 |am", ' ', "01:30 am", 1, 1 },
        { "01:30 |am", '.', nullptr, 0, 0 },
    };
    ExpectTyped(cases, "hh:mm ap", timeOnly);
    constexpr FilterCase capitals[] = { { "01:30 |AM", 'P', "01:30 PM", 1, 1 } };
    ExpectTyped(capitals, "hh:mm AP", timeOnly);
    constexpr FilterCase date[] = { { "|9.2.2024", 'a', nullptr, 0, 0 }, { "9|.2.2024", 'p', nullptr, 0, 0 } };
    ExpectTyped(date, nullptr, dateOnly);
}

TEST_F(DateFilter, AnythingElseIsRefused)
{
    for (int code = 0; code < 256; ++code) {
        const bool ascii = code < 128;
        if (ascii && (std::isdigit(code) || std::ispunct(code) || code == ' ')) {
            continue;
        }
        char text[16] = "9.2.2024";
        int  advance = 99;
        int  repaint = 99;
        if (!ascii && std::ispunct(code)) {
            continue; // the locale may know more punctuation
        }
        EXPECT_EQ(1, DateCharFilter(text, nullptr, true, false, 0, static_cast<char>(code), &advance, &repaint))
            << code;
        EXPECT_STREQ("9.2.2024", text) << code;
        EXPECT_EQ(0, advance) << code;
        EXPECT_EQ(0, repaint) << code;
    }
}

TEST_F(DateFilter, ACaretOutsideOfTheTextIsRefused)
{
    for (const int pos : { -1, -100, 9, 10, 1000 }) {
        for (const char ch : { '1', '.', ' ', 'a' }) {
            char text[] = "9.2.2024";
            int  advance = 99;
            int  repaint = 99;
            EXPECT_EQ(1, DateCharFilter(text, nullptr, true, false, pos, ch, &advance, &repaint)) << pos;
            EXPECT_STREQ("9.2.2024", text);
            EXPECT_EQ(0, advance);
            EXPECT_EQ(0, repaint);
        }
    }
}

TEST_F(DateFilter, WhatIsNotAskedForIsLeftOut)
{
    char text[16] = "9.2.2024";
    EXPECT_EQ(0, DateCharFilter(text, nullptr, true, false, 0, '1', nullptr, nullptr));
    EXPECT_STREQ("1.2.2024", text);
    EXPECT_EQ(1, DateCharFilter(text, nullptr, true, false, 0, 'x', nullptr, nullptr));
}

TEST_F(DateFilter, ADigitIsNotPutBehindASeparatorAtTheEnd)
{
    constexpr FilterCase cases[] = { { "19.2|.", '5', "19.25.", 1, 2 }, { "19.12|.", '5', nullptr, 0, 0 } };
    ExpectTyped(cases, "dd.mm", dateOnly);
}

TEST_F(DateFilter, AlignsThePictureWithFieldsOfTwoDigits)
{
    // Under each caret stands another field; the letter a shows which place of the picture the filter found.
    ASSERT_EQ(1, SetDefTimeFormat("h:mm a"));
    ASSERT_EQ(1, SetDefDateFormat("d/m/yyyy"));
    constexpr FilterCase cases[] = {
        { "9.2.2024 5:07 |x", 'q', "9.2.2024 5:07 q", 1, 1 },
        { "19.2.2024 5:07 |x", 'q', "19.2.2024 5:07 q", 1, 1 },
        { "19.12.2024 5:07 |x", 'q', "19.12.2024 5:07 q", 1, 1 },
        { "19.12.2024 15:07 |x", 'q', "19.12.2024 15:07 q", 1, 1 },
        { "19.12.2024 15:0|7 x", 'q', nullptr, 0, 0 },
        { "19.12.2024 15:07| x", 'q', nullptr, 0, 0 },
    };
    ExpectTyped(cases, nullptr, dateAndTime);
    // Here the blank stands behind a field of one digit or two.
    ASSERT_EQ(1, SetDefDateFormat("yyyy/m/d"));
    constexpr FilterCase dayLast[] = {
        { "2024.2.9 5:07 |x", 'q', "2024.2.9 5:07 q", 1, 1 },
        { "2024.2.19 5:07 |x", 'q', "2024.2.19 5:07 q", 1, 1 },
        { "2024.12.19 15:07 |x", 'q', "2024.12.19 15:07 q", 1, 1 },
        { "2024.12.9 15:07 |x", 'q', "2024.12.9 15:07 q", 1, 1 },
        { "2024.12.19| 15:07 x", '3', "2024.12.19 35:07 x", 2, 2 },
        { "2024.12.9| 15:07 x", '3', "2024.12.93 15:07 x", 1, 9 },
    };
    ExpectTyped(dayLast, nullptr, dateAndTime);
}

TEST_F(DateFilter, StepsOverBracketsAndEscapesOfThePicture)
{
    // A group and an escaped pair are one place of the text each.
    constexpr FilterCase group[] = { { "05:07x|y", 'q', "05:07xq", 1, 1 }, { "05:07|xy", 'q', nullptr, 0, 0 } };
    ExpectTyped(group, "hh:mm[ab]a", timeOnly);
    constexpr FilterCase escape[] = { { "05:07x|y", 'q', "05:07xq", 1, 1 }, { "05:07|xy", 'q', nullptr, 0, 0 } };
    ExpectTyped(escape, "hh:mm\\aa", timeOnly);
    constexpr FilterCase open[] = { { "05:07x|y", 'q', nullptr, 0, 0 } };
    ExpectTyped(open, "hh:mm[aa", timeOnly);
    constexpr FilterCase dangling[] = { { "05:07x|y", 'q', nullptr, 0, 0 } };
    ExpectTyped(dangling, "hh:mm\\", timeOnly);
}

TEST_F(DateFilter, SeparatorsThatTheSettingsMakeBlankStayBlank)
{
    ASSERT_EQ(1, SetDateSep(' '));
    constexpr FilterCase cases[] = {
        { "9| 2 2024", '1', "91 2 2024", 1, 8 },
        { "19| 2 2024", '1', "19 1 2024", 2, 2 },
        { "19| 2 2024", '.', "19 2 2024", 1, 1 },
        { "19| 2 2024", ' ', "19 2 2024", 1, 1 },
    };
    ExpectTyped(cases, nullptr, dateOnly);
    ASSERT_EQ(1, SetTimeSep(' '));
    constexpr FilterCase clock[] = {
        { "15| 07 03", '4', "15 47 03", 2, 2 },
        { "15 0|  03", '4', "15 04 03", 1, 1 }, // a cleared digit is no separator
        { "15 07| 03", '.', "15 07 03", 1, 1 },
    };
    ExpectTyped(clock, nullptr, timeOnly);
}

TEST_F(DateFilter, AWholeDateCanBeTyped)
{
    EXPECT_EQ("24.12.2025", TypeAll(" . .    ", "24122025", nullptr, dateOnly));
    EXPECT_EQ("24.12.2025", TypeAll(" . .    ", "24.12.2025", nullptr, dateOnly));
    EXPECT_EQ("4.2.2025", TypeAll(" . .    ", "4.2.2025", nullptr, dateOnly));
    EXPECT_EQ("4.2.2025", TypeAll("1.1.1999", "4.2.2025", nullptr, dateOnly));
    EXPECT_EQ("24.12.2025 17:05:00", TypeAll(" . .     0:00:00", "24122025 17:05", nullptr, dateAndTime));
    EXPECT_EQ("01:30 pm", TypeAll("00:00 am", "0130.p", "hh:mm ap", timeOnly));
}

TEST_F(DateFilter, AWholeDateCanBeTypedWhereTheDefaultFormatSpellsItsSeparators)
{
    struct Row {
        const char* format;
        char        separator;
        const char* empty;
        const char* typed;
        const char* text;
    };
    const Row rows[] = {
        { "d.m.yyyy", '.', " . .    ", "31122026", "31.12.2026" },
        { "d.m.yyyy", '.', " . .    ", "31.12.2026", "31.12.2026" },
        { "d.m.yyyy", '.', " . .    ", "1.2.2026", "1.2.2026" },
        { "d-m-yyyy", '-', " - -    ", "31-12-2026", "31-12-2026" },
        { "m-d-yyyy", '-', " - -    ", "12312026", "12-31-2026" },
        { "yyyy-m-d", '-', "    - - ", "2026-12-31", "2026-12-31" },
    };
    for (const Row& row : rows) {
        ASSERT_EQ(1, SetDefDateFormat(row.format));
        ASSERT_EQ(1, SetDateSep(row.separator));
        EXPECT_EQ(row.text, TypeAll(row.empty, row.typed, nullptr, dateOnly)) << row.format;
    }
}

TEST_F(DateFilter, BuildsItsPictureInTheScratchBuffer)
{
    char text[16] = "9.2.2024";
    std::memset(gScratch, 0, sizeof gScratch);
    DateCharFilter(text, nullptr, true, false, 0, '1', nullptr, nullptr);
    EXPECT_STREQ("d/m/yyyy", gScratch);
}
