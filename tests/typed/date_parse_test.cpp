// Reading of dates and times.
#include "typed/date_test_support.h"

namespace {

class DateParse : public DateTest {};

DateTimeRec Parsed(const char* text, const char* format, bool wantDate = true, bool wantTime = false)
{
    DateTimeRec rec = Moment(1, 1, 1, 1, 1, 1, 1);
    EXPECT_EQ(1, ParseDateTime(&rec, text, format, wantDate, wantTime)) << text;
    return rec;
}

DateTimeRec ParsedTime(const char* text, const char* format)
{
    return Parsed(text, format, false, true);
}

struct ParseCase {
    const char* format;
    const char* text;
    DateTimeRec rec;
};

template <size_t N>
void ExpectParsed(const ParseCase (&cases)[N], bool wantDate, bool wantTime)
{
    for (const ParseCase& test : cases) {
        EXPECT_EQ(test.rec, Parsed(test.text, test.format, wantDate, wantTime))
            << (test.format ? test.format : "(none)") << ": " << test.text;
    }
}

} // namespace

TEST_F(DateParse, ReadsFieldsOfOneLetterWithOneDigitOrTwo)
{
    const ParseCase cases[] = {
        { nullptr, "9.2.2024", Moment(2024, 2, 9) },
        { nullptr, "19.12.2024", Moment(2024, 12, 19) },
        { "", "9.12.2024", Moment(2024, 12, 9) },
        { "yyyy-mm-dd", "19.2.2024", Moment(2024, 2, 19) }, // the entry picture, not the format
        { nullptr, "9-2-2024", Moment(2024, 2, 9) },        // whatever stands between
        { nullptr, "99.99.9999", Moment(9999, 99, 99) },    // nothing is checked
        { nullptr, "9.2.24", Moment(24, 2, 9) },
        { nullptr, "09.02.0024", Moment(24, 2, 9) },
        { nullptr, "9.2.20245", Moment(20245, 2, 9) }, // a digit more behind the last field
        { nullptr, "9.2.202456", Moment(20245, 2, 9) },
        { nullptr, "199.2.2024", Moment(2024, Now().wMonth, 19) }, // only one: then the 9 stands for the point
    };
    ExpectParsed(cases, true, false);
}

TEST_F(DateParse, StopsAtTheEndOfTheText)
{
    EXPECT_EQ(Moment(0, 2, 31), Parsed("31.2", "d.m.yyyy"));
    EXPECT_EQ(Moment(0, 2, 31), Parsed("31.2.", "d.m.yyyy"));
    EXPECT_EQ(Moment(0, 0, 31), Parsed("31", nullptr));
    EXPECT_EQ(DateTimeRec{}, Parsed("", nullptr));
}

TEST_F(DateParse, AYearThatReadsZeroIsTheCurrentOne)
{
    EXPECT_EQ(Moment(Now().wYear, 2, 31), Parsed("31.2.0000", nullptr));
    EXPECT_EQ(Moment(Now().wYear, 2, 31), Parsed("31.2.    ", nullptr));
    EXPECT_EQ(Moment(Now().wYear, 0, 0), Parsed(" . .    ", nullptr));
    EXPECT_EQ(Moment(Now().wYear, 2, 31), Parsed("31.2. ", nullptr));
}

TEST_F(DateParse, AMonthThatReadsZeroBehindADayIsTheCurrentOne)
{
    EXPECT_EQ(Moment(2024, Now().wMonth, 31), Parsed("31. .2024", nullptr));
    EXPECT_EQ(Moment(2024, Now().wMonth, 31), Parsed("31.0.2024", nullptr));
    EXPECT_EQ(Moment(2024, 0, 0), Parsed(" . .2024", nullptr));
}

TEST_F(DateParse, AMonthInFrontOfTheDayStaysZero)
{
    ASSERT_EQ(1, SetDefDateFormat("m/d/yyyy"));
    EXPECT_EQ(Moment(2024, 0, 31), Parsed("0.31.2024", nullptr));
    EXPECT_EQ(Moment(2024, 12, 31), Parsed("12.31.2024", nullptr));
}

TEST_F(DateParse, TakesAsManyCharactersAsTheFieldHasLettersWhateverTheyAre)
{
    ASSERT_EQ(1, SetDefDateFormat("dd/mm/yyyy"));
    const ParseCase cases[] = {
        { nullptr, "09.02.2024", Moment(2024, 2, 9) },
        { nullptr, "9..2..2024", Moment(2024, 2, 9) },
        { nullptr, "xx.02.2024", Moment(2024, 2, 0) },
        { nullptr, " 9. 2.2024", Moment(2024, 2, 9) },
        { nullptr, "-1.+2.2024", Moment(2024, 2, 255) },
        { nullptr, "09.02.-044", Moment(-44, 2, 9) },
        { nullptr, "09.02.-1234", Moment(-1234, 2, 9) },
        { nullptr, "109.02.2024", Moment(2024, 2, 109) }, // a digit more
        { nullptr, "9.2.2024", Moment(0, 202, 9) },       // "9.2", "202", and the 4 stands for a separator
    };
    ExpectParsed(cases, true, false);
}

TEST_F(DateParse, FieldsThatTouchTakeNoDigitMore)
{
    ASSERT_EQ(1, SetDefDateFormat("yyyymmdd"));
    EXPECT_EQ(Moment(2024, 2, 9), Parsed("20240209", nullptr));
    EXPECT_EQ(Moment(2024, 2, 95), Parsed("202402095", nullptr)); // 095 at the end
    ASSERT_EQ(1, SetDefDateFormat("dmy"));
    EXPECT_EQ(Moment(34, 2, 1), Parsed("1234", nullptr));
}

TEST_F(DateParse, ReadsTimes)
{
    const ParseCase cases[] = {
        { nullptr, "5:07:03", Clock(5, 7, 3) },
        { nullptr, "15:07:03", Clock(15, 7, 3) },
        { "h:mm", "15:07", Clock(15, 7) },
        { "h:mm", "15:07:03", Clock(15, 7) },
        { "hh:mm", "15:07", Clock(15, 7) },
        { "hh:mm", "5:07", Clock(5, 0) }, // "5:0" reads 5, and the 7 stands for the colon
        { nullptr, "99:99:99", Clock(99, 99, 99) },
        { nullptr, "5", Clock(5, 0) },
        { nullptr, "5:7:3", Clock(5, 7, 0) },
    };
    ExpectParsed(cases, false, true);
}

TEST_F(DateParse, ReadsDateAndTime)
{
    const ParseCase cases[] = {
        { nullptr, "9.2.2024 5:07:03", Moment(2024, 2, 9, 5, 7, 3) },
        { nullptr, "19.12.2024 15:07:03", Moment(2024, 12, 19, 15, 7, 3) },
        { nullptr, "9.2.2024", Moment(2024, 2, 9) },
        { "dd.mm.yyyy hh:mm", "9.2.2024 5:07", Moment(2024, 2, 9, 5, 7) },
    };
    ExpectParsed(cases, true, true);
}

TEST_F(DateParse, AnMIsTheMinuteOnceAnHourWasRead)
{
    EXPECT_EQ(Moment(0, 59, 0, 0, 0, 58), ParsedTime("59:58", "mm:ss"));
    EXPECT_EQ(Moment(0, 0, 0, 5, 7), Parsed("05:07", "hh:mm", true, false));
    EXPECT_EQ(Moment(0, 0, 0, 5, 8), Parsed("05:07 08", "hh:mm mm", true, true));
}

TEST_F(DateParse, ReadsMillisecondsByTheirLowByte)
{
    EXPECT_EQ(Clock(5, 7, 0, 45), ParsedTime("05:07 45", "hh:mm ff"));
    EXPECT_EQ(Clock(5, 7, 0, 999 & 0xFF), ParsedTime("05:07 999", "hh:mm ff"));
}

TEST_F(DateParse, ReadsAmAndPm)
{
    const ParseCase cases[] = {
        { "hh:mm ap", "12:30 am", Clock(0, 30) },  { "hh:mm ap", "01:30 am", Clock(1, 30) },
        { "hh:mm ap", "12:30 pm", Clock(12, 30) }, { "hh:mm ap", "01:30 pm", Clock(13, 30) },
        { "hh:mm ap", "01:30 AM", Clock(1, 30) },  { "hh:mm ap", "01:30 xx", Clock(13, 30) },
        { "hh:mm ap", "13:30 pm", Clock(13, 30) }, { "hh:mm ap", "01:30", Clock(1, 30) },
        { "hh:mm AP", "01:30 PM", Clock(13, 30) },
    };
    ExpectParsed(cases, false, true);
}

TEST_F(DateParse, CapitalsOfAClockFormatAreNoFields)
{
    EXPECT_EQ(DateTimeRec{}, ParsedTime("05:07", "HH:MM"));
    EXPECT_EQ(Clock(5, 0), ParsedTime("05:07", "hh:MM"));
}

TEST_F(DateParse, ReadsMonthAndYear)
{
    EXPECT_EQ(Moment(2026, 5, 0), Parsed("5/2026", "mm|yyyy"));
    EXPECT_EQ(Moment(2026, 12, 0), Parsed("12/2026", "mm|yyyy"));
}

TEST_F(DateParse, ANumberTooLongForAnyFieldIsBounded)
{
    const std::string format = "hh:mm " + std::string(80, 'd');
    EXPECT_EQ(1, Parsed(("05:07 " + std::string(80, '9')).c_str(), format.c_str(), true, true).hour / 5);
    EXPECT_EQ(0xFF, Parsed(("05:07 " + std::string(80, '9')).c_str(), format.c_str(), true, true).day);
    EXPECT_EQ(1, Parsed(("05:07 -" + std::string(79, '9')).c_str(), format.c_str(), true, true).day);
}

TEST_F(DateParse, AnEmptyPictureLeavesTheRecordAlone)
{
    EXPECT_EQ(Moment(1, 1, 1, 1, 1, 1, 1), Parsed("9.2.2024", "-"));
    EXPECT_EQ(Moment(1, 1, 1, 1, 1, 1, 1), Parsed("9.2.2024", nullptr, false, false));
}
