// The entry picture of a format.
#include "typed/date_test_support.h"

namespace {

class DatePicture : public DateTest {};

std::string Picture(const char* format, bool wantDate, bool wantTime)
{
    char picture[scratchSize];
    std::memset(picture, 'x', sizeof picture);
    NormalizeDateFormat(format, wantDate, wantTime, picture);
    return picture;
}

void UseFormats(const char* date, char dateSep, const char* time = "h:mm:ss", char timeSep = ':')
{
    ASSERT_EQ(1, SetDefDateFormat(date));
    ASSERT_EQ(1, SetDefTimeFormat(time));
    ASSERT_EQ(1, SetDateSep(dateSep));
    ASSERT_EQ(1, SetTimeSep(timeSep));
}

struct PictureCase {
    const char* format;
    const char* picture;
};

template <size_t N>
void ExpectPictures(const PictureCase (&cases)[N], bool wantDate, bool wantTime)
{
    for (const PictureCase& test : cases) {
        EXPECT_EQ(test.picture, Picture(test.format, wantDate, wantTime)) << test.format;
    }
}

} // namespace

TEST_F(DatePicture, WithoutAFormatIsThatOfTheDefaults)
{
    for (const char* const format : { static_cast<const char*>(nullptr), "" }) {
        EXPECT_EQ("d/m/yyyy", Picture(format, true, false));
        EXPECT_EQ("h:mm:ss", Picture(format, false, true));
        EXPECT_EQ("d/m/yyyy h:mm:ss", Picture(format, true, true));
        EXPECT_EQ("", Picture(format, false, false));
    }
}

TEST_F(DatePicture, OfTheDefaultsHasABlankOnlyBetweenTwoHalves)
{
    std::strcpy(gIntl.szDateFormat, "");
    EXPECT_EQ("h:mm:ss", Picture(nullptr, true, true));
    std::strcpy(gIntl.szDateFormat, "d");
    EXPECT_EQ("d h:mm:ss", Picture(nullptr, true, true));
}

TEST_F(DatePicture, HasOrderAndSeparatorsOfTheDefaultDateFormat)
{
    constexpr PictureCase cases[] = {
        { "dd.mm.yyyy", "d/m/yyyy" },         { "yyyy-mm-dd", "d/m/yyyy" }, { "DD MM YYYY", "d/m/yyyy" },
        { "dddd, d. mmmm yyyy", "d/m/yyyy" }, { "mdy", "d/m/yyyy" },
    };
    ExpectPictures(cases, true, false);
}

TEST_F(DatePicture, DropsTheFieldsThatTheFormatLacks)
{
    // The separator of the settings is a point, so the slashes of the default format are ordinary characters.
    constexpr PictureCase pointAsSeparator[] = {
        { "dd.mm", "d/m/" }, { "mm.yyyy", "/m/yyyy" }, { "dd.yyyy", "d//yyyy" },
        { "dd", "d//" },     { "mm", "/m/" },          { "yyyy", "//yyyy" },
    };
    ExpectPictures(pointAsSeparator, true, false);

    constexpr PictureCase slashAsSeparator[] = {
        { "dd.mm", "d/m" }, { "mm.yyyy", "m/yyyy" }, { "dd.yyyy", "d/yyyy" },
        { "dd", "d" },      { "mm", "m" },           { "yyyy", "yyyy" },
    };
    UseFormats("d/m/yyyy", '/');
    ExpectPictures(slashAsSeparator, true, false);
}

TEST_F(DatePicture, PutsAnotherCharacterInPlaceOfTheSeparatorBeforeADroppedField)
{
    UseFormats("d/m-yyyy", '/');
    constexpr PictureCase cases[] = {
        { "d yyyy", "d-yyyy" },
        { "m yyyy", "m-yyyy" },
        { "yyyy", "-yyyy" },
        { "d m", "d/m-" },
    };
    ExpectPictures(cases, true, false);
}

TEST_F(DatePicture, WritesShortDefaultYearsOutForAFormatWithALongYear)
{
    UseFormats("d/m/yy", '/');
    constexpr PictureCase cases[] = {
        { "d/m/yyyy", "d/m/yyyy" }, { "YYYY", "yyyy" }, { "d/m/yy", "d/m/yy" },
        { "d/m/yyy", "d/m/yy" },    { "y/yyyy", "yy" }, // only the first run of the year is looked at
    };
    ExpectPictures(cases, true, false);
}

TEST_F(DatePicture, KeepsLongDefaultYearsAsTheyAre)
{
    EXPECT_EQ("d/m/yyyy", Picture("d/m/yyyy", true, false));
    EXPECT_EQ("d/m/yyyy", Picture("d/m/yy", true, false));
}

TEST_F(DatePicture, HasTheFieldsOfTheTimeThatTheFormatNames)
{
    constexpr PictureCase cases[] = {
        { "h:mm:ss", "h:mm:ss" },
        { "h:mm", "h:mm" },
        { "h", "h" },
        { "H.MM", "h:mm" },
        { "mm:ss", "mm:ss" },
        { "mm", "mm" },
        { "ss", "ss" },
        { "h:m:s", "h" }, // minutes and seconds count in pairs
        { "hh", "h" },
        { "h ss", "h:ss" },
        { "ap", "" },
    };
    ExpectPictures(cases, false, true);
}

TEST_F(DatePicture, CopiesOtherCharactersOfTheTimeOnlyWithAnHour)
{
    UseFormats("d/m/yyyy", '/', "h:mm:ss ap");
    constexpr PictureCase cases[] = {
        { "h:mm:ss", "h:mm:ss ap" },
        { "h:mm", "h:mm ap" }, // the blank behind the dropped seconds takes the place of their separator
        { "mm:ss", "mm:ss" },
        { "mm", "mm " },
    };
    ExpectPictures(cases, false, true);
}

TEST_F(DatePicture, JoinsDateAndTimeByABlank)
{
    constexpr PictureCase cases[] = {
        { "dd.mm.yyyy hh:mm:ss", "d/m/yyyy h:mm:ss" },
        { "dd.mm.yyyy hh:mm", "d/m/yyyy h:mm" },
        { "dd.mm.yyyy", "d/m/yyyy" },
        { "h:mm:ss", "h:mm:ss" },
    };
    ExpectPictures(cases, true, true);
}

TEST_F(DatePicture, AMonthLetterBehindTheHourBelongsToTheTime)
{
    EXPECT_EQ("h:mm", Picture("h:mm", true, true));
    EXPECT_EQ("h:mm:ss", Picture("h:mm ss d", false, true));
    UseFormats("d/m/yyyy", '/');
    EXPECT_EQ("d h:mm", Picture("h:mm d", true, true));
    EXPECT_EQ("m h", Picture("m h", true, true));
    EXPECT_EQ("m", Picture("h m", true, false)); // without a time there is no such hour
}

TEST_F(DatePicture, MinutesOfADateWithTimeStandBehindATimeSeparator)
{
    UseFormats("d/m/yyyy", '/');
    EXPECT_EQ("m h", Picture("mm hh", true, true));
    EXPECT_EQ("m h:mm", Picture("mm hh:mm", true, true));
    EXPECT_EQ("d/m h", Picture("dd mm hh.mm", true, true));
    ASSERT_EQ(1, SetTimeSep('.'));
    EXPECT_EQ("d/m h:mm:", Picture("dd mm hh.mm", true, true)); // a dropped field leaves the colon, which isn't it now
    EXPECT_EQ("d/m h:mm:", Picture("dd mm hh:mm", true, true)); // though it stands for it in a format
}

TEST_F(DatePicture, OfMonthAndYearKeepsItsSlash)
{
    EXPECT_EQ("m|yyyy", Picture("mm|yyyy", true, false));
    EXPECT_EQ("m|yyyy", Picture("MM|YYYY", true, false));
    UseFormats("d/m/yyyy", '/');
    EXPECT_EQ("m|yyyy", Picture("mm|yyyy", true, false));
    UseFormats("yyyy-mm-dd", '-');
    EXPECT_EQ("yyyy-mm", Picture("mm|yyyy", true, false)); // no slash to be kept
}

TEST_F(DatePicture, OfAClockFormatIsTheFormatItself)
{
    EXPECT_EQ("hh:mm", Picture("hh:mm", false, true));
    EXPECT_EQ("HH:MM:SS Ap", Picture("HH:MM:SS Ap", false, true));
    EXPECT_EQ("hh:mm dd", Picture("hh:mm dd", true, true));
    EXPECT_EQ("hh:mm", Picture("hh:mm", true, false));
    EXPECT_EQ("h:mm", Picture("h:mm", false, true));
}

TEST_F(DatePicture, OfAnEndlessClockFormatFitsTheScratchBuffer)
{
    const std::string format = "hh:mm" + std::string(300, 'x');
    EXPECT_EQ(format.substr(0, scratchSize - 1), Picture(format.c_str(), false, true));
    EXPECT_EQ("d/m/yyyy", Picture(("dmy" + std::string(300, 'x')).c_str(), true, false));
}

TEST_F(DatePicture, OfDefaultsWithoutAnEndStopsAtTheEndOfTheirFields)
{
    std::memset(gIntl.szDateFormat, 'd', sizeof gIntl.szDateFormat);
    std::memset(gIntl.szTimeFormat, 'h', sizeof gIntl.szTimeFormat);
    EXPECT_EQ(std::string(16, 'd') + " " + std::string(16, 'h'), Picture(nullptr, true, true));
    EXPECT_EQ(std::string(16, 'd') + " " + std::string(16, 'h'), Picture("d h", true, true));
}

TEST_F(DatePicture, OfAFormatWithoutFieldsIsEmpty)
{
    EXPECT_EQ("", Picture("-", true, true));
    EXPECT_EQ("", Picture("d/m/yyyy", false, false));
    EXPECT_EQ("", Picture("d/y", false, true));
}

TEST_F(DatePicture, ABlankTimeSeparatorTakesTheBlankBetweenTheHalvesForItsOwn)
{
    UseFormats("d/m/yyyy", '/', "h mm ss", ' ');
    EXPECT_EQ("d/m mm ss", Picture("d mm ss", true, true));
    EXPECT_EQ("d h mm", Picture("h d mm", true, true));
}
