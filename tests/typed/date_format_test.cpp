// Printing of dates and times.
#include "typed/date_test_support.h"

#include <vector>

namespace {

class DateFormat : public DateTest {};

const DateTimeRec friday = Moment(2024, 2, 9, 5, 7, 3, 45);

std::string Printed(const DateTimeRec& rec, const char* format, bool editForm = false, bool wantDate = true,
                    bool wantTime = true)
{
    char      out[200];
    const int length = FormatDateTime(&rec, format, out, sizeof out, editForm, wantDate, wantTime);
    EXPECT_EQ(std::strlen(out), static_cast<size_t>(length)) << (format ? format : "(none)");
    return out;
}

struct PrintCase {
    const char* format;
    const char* text;
};

template <size_t N>
void ExpectPrinted(const DateTimeRec& rec, const PrintCase (&cases)[N])
{
    for (const PrintCase& test : cases) {
        EXPECT_EQ(test.text, Printed(rec, test.format)) << test.format;
    }
}

} // namespace

TEST_F(DateFormat, PrintsEachPictureLetter)
{
    // clang-format off
    constexpr PrintCase cases[] = {
        { "d", "9" },
        { "dd", "09" },
        { "ddd", "fri" },
        { "dddd", "friday" },
        { "m", "2" },
        { "mm", "02" },
        { "mmm", "feb" },
        { "mmmm", "february" },
        { "y", "y" },
        { "yy", "24" },
        { "yyy", "24y" },
        { "yyyy", "2024" },
        { "h", "5" },
        { "hh", "05" },
        { "h:mm", "5:07" },
        { "s", "s" },
        { "ss", "03" },
        { "f", "f" },
        { "ff", "45" },
        { "ap", "am" },
        { "/", "." },
        { ":", ":" },
        { "|", "/" },
        { "[red]d", "9" },
        { "-, x\\_;", "-, x\\_;" },
    };
    // clang-format on
    ExpectPrinted(friday, cases);
}

TEST_F(DateFormat, ChoosesTheMeaningOfALetterIgnoringItsCase)
{
    // clang-format off
    constexpr PrintCase cases[] = {
        { "D", "9" },
        { "DD.MM.YYYY", "09.02.2024" },
        { "Y", "Y" },
        { "yyY", "24Y" },
        { "HH:MM:SS FF", "05:07:03 45" },
        { "S", "S" },
        { "F", "F" },
        { "dD", "09" },
    };
    // clang-format on
    ExpectPrinted(friday, cases);
}

TEST_F(DateFormat, CountsRunsUpToTheLimitOfTheirLetter)
{
    // clang-format off
    constexpr PrintCase cases[] = {
        { "ddddd", "friday9" },
        { "dddddd", "friday09" },
        { "mmmmm", "february2" },
        { "yyyyy", "2024y" },
        { "yyyyyy", "202424" },
        { "hhh", "055" },
        { "sss", "03s" },
        { "ffff", "4545" },
    };
    // clang-format on
    ExpectPrinted(friday, cases);
}

TEST_F(DateFormat, TakesTheCaseOfANameFromTheFirstTwoLetters)
{
    // clang-format off
    constexpr PrintCase cases[] = {
        { "dddd", "monday" }, { "Dddd", "Monday" }, { "DDDD", "MONDAY" }, { "dDDD", "mONDAY" }, { "DDdd", "MONDAY" },
        { "Ddd", "Mon" },     { "DDD", "MON" },     { "Mmm", "Apr" },     { "Mmmm", "April" },  { "MMMM", "APRIL" },
        { "d Dddd", "1 Monday" }, { "d. MMM dddd", "1. APR monday" },
    };
    // clang-format on
    ExpectPrinted(Moment(2024, 4, 1), cases);
}

TEST_F(DateFormat, PrintsEveryName)
{
    constexpr const char* months[] = { "january", "february", "march",     "april",   "may",      "june",
                                       "july",    "august",   "september", "october", "november", "december" };
    constexpr const char* weekdays[] = { "sunday", "monday", "tuesday", "wednesday", "thursday", "friday", "saturday" };
    for (int month = 1; month <= 12; ++month) {
        EXPECT_EQ(months[month - 1], Printed(Moment(2024, month, 1), "mmmm"));
        EXPECT_EQ(std::string(months[month - 1]).substr(0, 3), Printed(Moment(2024, month, 1), "mmm"));
    }
    for (int day = 0; day < 7; ++day) {
        EXPECT_EQ(weekdays[day], Printed(Moment(2024, 9, 1 + day), "dddd"));
        EXPECT_EQ(std::string(weekdays[day]).substr(0, 3), Printed(Moment(2024, 9, 1 + day), "ddd"));
    }
}

TEST_F(DateFormat, GivesAnUnsetYearTheWeekdaysOf1992)
{
    EXPECT_EQ("wednesday", Printed(Moment(0, 1, 1), "dddd"));
    EXPECT_EQ("saturday", Printed(Moment(0, 2, 29), "dddd"));
}

TEST_F(DateFormat, AnMBehindAnHourIsTheMinute)
{
    // clang-format off
    constexpr PrintCase cases[] = {
        { "hh:mm", "05:07" },
        { "hhmm", "0507" },
        { "hmm", "507" },
        { "HHMM", "0507" },
        { "h:m", "5:m" },             // one letter alone stands for itself
        { "h:M", "5:M" },
        { "h:mmm", "5:072" },         // two letters of the minute, then one of the month
        { "hh - mm", "05 - 02" },     // too far behind the hour
        { "h. mm", "5. 02" },
        { "mm hh", "02 05" },         // before it
        { "mm.hh.mm mm", "02.05.07 02" },
        { "d.m.yyyy h:mm", "9.2.2024 5:07" },
        { "[h]mm", "02" },            // a skipped hour is none
    };
    // clang-format on
    ExpectPrinted(friday, cases);
}

TEST_F(DateFormat, PrintsTwelveHoursWhereThePictureTellsAmFromPm)
{
    constexpr struct {
        int         hour;
        const char* text;
    } cases[] = { { 0, "12:00 am" },  { 1, "1:00 am" },  { 11, "11:00 am" },
                  { 12, "12:00 pm" }, { 13, "1:00 pm" }, { 23, "11:00 pm" } };
    for (const auto& test : cases) {
        EXPECT_EQ(test.text, Printed(Clock(test.hour, 0), "h:mm ap")) << test.hour;
    }
}

TEST_F(DateFormat, TakesTheCaseOfAmAndPmFromThePicture)
{
    EXPECT_EQ("AM", Printed(Clock(1, 0), "AP"));
    EXPECT_EQ("PM", Printed(Clock(13, 0), "AP"));
    EXPECT_EQ("Pm", Printed(Clock(13, 0), "Ap"));
    EXPECT_EQ("pM", Printed(Clock(13, 0), "aP"));
    EXPECT_EQ("a p", Printed(Clock(13, 0), "a p"));
    EXPECT_EQ("1 a am", Printed(Clock(1, 0), "h a ap"));
}

TEST_F(DateFormat, FindsTheMarkerAnywhereInThePicture)
{
    EXPECT_EQ("pm 1", Printed(Clock(13, 0), "ap h"));
    EXPECT_EQ("1", Printed(Clock(13, 0), "h[ap]"));
    EXPECT_EQ("13", Printed(Clock(13, 0), "h"));
}

TEST_F(DateFormat, PrintsBlanksForWhatADateLacks)
{
    // clang-format off
    constexpr PrintCase cases[] = {
        { "d", " " },      { "dd", " " },    { "dddd", " " }, { "m", " " },       { "mm", " " },
        { "mmmm", " " },   { "yy", "  " },   { "yyy", "   " }, { "yyyy", "    " }, { "y", " " },
        { "dd/mm/yyyy", " . .    " },
    };
    // clang-format on
    ExpectPrinted(DateTimeRec{}, cases);
    EXPECT_EQ("9. .2024", Printed(Moment(2024, 0, 9), "d/m/yyyy"));
    EXPECT_EQ(" .2.2024", Printed(Moment(2024, 2, 0), "d/m/yyyy"));
    EXPECT_EQ("9.2.    ", Printed(Moment(0, 2, 9), "d/m/yyyy"));
}

TEST_F(DateFormat, PrintsTheTimeOfAnEmptyRecordAsMidnight)
{
    EXPECT_EQ("0:00:00", Printed({}, nullptr, true, false, true));
    EXPECT_EQ("00 00 00 0", Printed({}, "hh mm ss ff"));
}

TEST_F(DateFormat, TheEditFormOfAnEmptyDateShowsBlanksBetweenTheSeparators)
{
    EXPECT_EQ(" . .    ", Printed({}, "dd.mm.yyyy", true, true, false));
}

TEST_F(DateFormat, TheEditFormHasTheOrderOfTheDefaultFormat)
{
    EXPECT_EQ("2024-02-09", Printed(friday, "yyyy-mm-dd", false, true, false));
    EXPECT_EQ("9.2.2024", Printed(friday, "yyyy-mm-dd", true, true, false));
    EXPECT_EQ("5:07", Printed(friday, "h:mm ap", true, false, true));
    EXPECT_EQ("05:07 am", Printed(friday, "hh:mm ap", true, false, true));
}

TEST_F(DateFormat, WithoutAFormatPrintsTheDefaultsInEitherForm)
{
    for (const bool editForm : { false, true }) {
        EXPECT_EQ("9.2.2024 5:07:03", Printed(friday, nullptr, editForm));
        EXPECT_EQ("9.2.2024 5:07:03", Printed(friday, "", editForm));
        EXPECT_EQ("9.2.2024", Printed(friday, nullptr, editForm, true, false));
        EXPECT_EQ("5:07:03", Printed(friday, nullptr, editForm, false, true));
        EXPECT_EQ("", Printed(friday, nullptr, editForm, false, false));
    }
}

TEST_F(DateFormat, MidnightWithoutAFormatIsABareDate)
{
    const DateTimeRec midnight = Moment(2024, 2, 9);
    EXPECT_EQ("9.2.2024", Printed(midnight, nullptr));
    EXPECT_EQ("9.2.2024", Printed(midnight, "", true));
    EXPECT_EQ("9.2.2024 0:00:00", Printed(midnight, "d/m/yyyy h:mm:ss", true));
    EXPECT_EQ("0:00:00", Printed(midnight, nullptr, false, false, true));
    EXPECT_EQ("9.2.2024 0:00:00", Printed(Moment(2024, 2, 9, 0, 0, 0, 1), nullptr));
    EXPECT_EQ("9.2.2024 0:00:01", Printed(Moment(2024, 2, 9, 0, 0, 1), nullptr));
    EXPECT_EQ("9.2.2024 0:01:00", Printed(Moment(2024, 2, 9, 0, 1), nullptr));
    EXPECT_EQ("9.2.2024 1:00:00", Printed(Moment(2024, 2, 9, 1), nullptr));
}

TEST_F(DateFormat, MonthAndYearKeepTheirSlash)
{
    for (const char separator : { '.', '/', '-' }) {
        ASSERT_EQ(1, SetDateSep(separator));
        EXPECT_EQ("05/2026", Printed(Moment(2026, 5, 1), "mm|yyyy", false, true, false)) << separator;
        EXPECT_EQ("5/2026", Printed(Moment(2026, 5, 1), "mm|yyyy", true, true, false)) << separator;
    }
}

TEST_F(DateFormat, UsesTheSeparatorsOfTheSettings)
{
    ASSERT_EQ(1, SetDateSep('-'));
    ASSERT_EQ(1, SetTimeSep(','));
    EXPECT_EQ("9-2-2024 5,07.", Printed(friday, "d/m/yyyy h:mm."));
}

TEST_F(DateFormat, SkipsBracketsToTheirEnd)
{
    EXPECT_EQ("9!", Printed(friday, "[dmy]d[]!"));
    EXPECT_EQ("9", Printed(friday, "d[never closed d"));
    EXPECT_EQ("9]", Printed(friday, "d]"));
}

TEST_F(DateFormat, PrintsYearsOfAnyLength)
{
    EXPECT_EQ("0033 33", Printed(Moment(33, 1, 1), "yyyy yy"));
    EXPECT_EQ("32767 67", Printed(Moment(32767, 1, 1), "yyyy yy"));
    EXPECT_EQ("05", Printed(Moment(2005, 1, 1), "yy"));
    EXPECT_EQ("-044 -44", Printed(Moment(-44, 1, 1), "yyyy yy"));
    EXPECT_EQ("-32768", Printed(Moment(-32768, 1, 1), "yyyy"));
}

TEST_F(DateFormat, PrintsFieldsThatAreOutOfRange)
{
    EXPECT_EQ("255/99", Printed(Moment(2024, 99, 255), "d|m"));
    EXPECT_EQ("december", Printed(Moment(2024, 99, 1), "mmmm"));
    EXPECT_EQ("200:250:99 65535", Printed(Clock(200, 250, 99, 65535), "hh:mm:ss ff"));
}

TEST_F(DateFormat, CutsTheTextToItsRoom)
{
    const std::string whole = "friday, 09. february 2024";
    // Where the pieces of the picture end: the one that meets the end of the room counts whole in the result.
    constexpr int ends[] = { 6, 7, 8, 10, 11, 12, 20, 21, 25 };
    for (int size = 1; size <= 40; ++size) {
        std::vector<char> out(static_cast<size_t>(size) + 1, '#');
        const int         length = FormatDateTime(&friday, "dddd, dd. mmmm yyyy", out.data(), size, false, true, false);
        EXPECT_EQ(whole.substr(0, static_cast<size_t>(size) - 1), out.data()) << size;
        const int* const end = std::lower_bound(std::begin(ends), std::end(ends), size);
        EXPECT_EQ(end == std::end(ends) ? 25 : *end, length) << size;
        EXPECT_EQ('#', out.back()) << size;
    }
}

TEST_F(DateFormat, WritesNothingWithoutRoom)
{
    char out[] = "#";
    EXPECT_EQ(0, FormatDateTime(&friday, "d", out, 0, false, true, true));
    EXPECT_EQ(0, FormatDateTime(&friday, "d", out, -1, false, true, true));
    EXPECT_STREQ("#", out);
}

TEST_F(DateFormat, BuildsTheEditFormInTheScratchBuffer)
{
    std::memset(gScratch, 0, sizeof gScratch);
    Printed(friday, "dddd");
    EXPECT_STREQ("", gScratch);
    Printed(friday, "yyyy-mm-dd", true, true, false);
    EXPECT_STREQ("d/m/yyyy", gScratch);
}
