// Numbers printed through pictures.
#include "typed/typed_test_support.h"

#include "typed/numbers.h"

#include <cmath>
#include <limits>
#include <random>

namespace {

struct Printed {
    double      value;
    const char* picture;
    const char* text;
};

class DoubleToStringTest : public NumberTest {};

// The text in a buffer that holds it and no more, and the result.
struct Result {
    std::string text;
    int         result;
};

Result Print(double value, const char* picture, int size, int editForm)
{
    ExactBuffer out(static_cast<size_t>(size));
    const int   result = DoubleToString(value, picture, out.Get(), size, editForm);
    return { out.Text(), result };
}

const Printed displayed[] = {
    { 12345.678, "#,##0.00", "12,345.68" },
    { 5.0, "0.##", "5" },
    { 0.0, "0.00", "0.00" },
    { -1.5, "0.0;(0.0)", "(1.5)" },
    { 1.5, "0.0;(0.0)", "1.5" },
    // The default picture.
    { 5.0, nullptr, "5" },
    { 5.0, "", "5" },
    { 0.0, nullptr, "0" },
    { -2.5, nullptr, "-2.5" },
    { 0.1, "", "0.1000000000000000055511151231257827021181583404541015625" },
    // Zero.
    { 0.0, "*0", "0" },
    { 0.0, "#", "" },
    { 0.0, "#.##", "" },
    { 0.0, "000", "000" },
    { -0.0, "0.0", "0.0" },
    // Required and optional digits.
    { 7.0, "000", "007" },
    { 7.0, "0#", "7" },
    { 7.0, "00##", "07" },
    { 1234.0, "0", "1234" },
    { 1234.0, "", "1234" },
    { 0.5, "#.0", ".5" },
    { 0.5, "0.0##", "0.5" },
    { 0.25, "0.0##", "0.25" },
    { 0.25, "0.0000", "0.2500" },
    { 1.0, "0.0*", "1.0" },
    { 1.25, "0.0*", "1.25" },
    // Rounding: away from zero at a half, and to whole numbers without a fraction side.
    { 0.125, "0.00", "0.13" },
    { -0.125, "0.00", "-0.13" },
    { 2.5, "0", "3" },
    { -2.5, "0", "-3" },
    { 9.99, "0.0", "10.0" },
    { 999.995, "0.00", "1000.00" },
    { 0.004, "0.00", "0.00" },
    { -0.004, "0.00", "-0.00" },
    // The sign.
    { -5.0, "0", "-5" },
    { -5.0, "0;", "5" },
    { -5.0, "0;-0", "-5" },
    { -5.0, "$0.00", "-$5.00" },
    { -12345.0, "#,##0", "-12,345" },
    { 5.0, ";0", "5" },
    // Grouping.
    { 123.0, "#,##0", "123" },
    { 1234.0, "#,##0", "1,234" },
    { 123456789.0, "#,##0", "123,456,789" },
    { 123456789.0, ",0", "123,456,789" },
    { 7.0, "0,000,000", "0,000,007" },
    { 0.0, "#,###", "" },
    { 1234.0, "*,0.0", "1,234.0" },
    // Literals stand where the picture has them; digits past its positions come in front of the first.
    { 12.0, "0-0", "1-2" },
    { 123.0, "0-0", "12-3" },
    { 5.0, "[red]0 kg", "5 kg" },
    { 1234567.0, "$ #,##0.00 USD", "$ 1,234,567.00 USD" },
    { 1.5, "0.0 kg", "1.5 kg" },
    { 1.25, "0.* kg", "1.25 kg" },
    { 12.0, "(0)", "(12)" },
    { 1.25, "0.0 x 0", "1.2 x 5" },
    // Once the digits are out, zeros and points of the picture are copied as literals.
    { 5.0, "$0#", "05" },
    { 5.0, "0.# kg", "5. kg" },
    { 5.0, "0.#.", "5.." },
    // Behind the point a comma is no literal that prints, though it counts.
    { 1.25, "0.0,0", "1.25" },
    // The largest and the smallest that keep the picture's layout.
    { 9999999999999997952.0, "0", "9999999999999997952" },
    { 1e-14, "0.*", "0.0000000000000099999999999999999881930935455989869713432907291639" },
};

const Printed scientific[] = {
    { 1e25, "#,##0.00 kg", "1.0000e25" }, { 1e19, "0", "1.0000e19" },       { -1e25, "0;(0)", "-1.0000e25" },
    { 1.23456e25, "0", "1.2345e25" },     { 1.99999e25, "0", "1.9999e25" }, { 1e23, "0", "9.9999e22" },
    { 1e300, nullptr, "1.0000e300" },     { 1e-16, "0.00", "9.9999e-17" },  { -1e-16, "0.00", "-9.9999e-17" },
    { 1.5e-20, nullptr, "1.5000e-20" },   { 2e-64, "0", "2.0000e-64" },
};

const Printed edited[] = {
    { -1.5, "0.0;(0.0)", "-1.5" },
    { 1.5, "0.0;(0.0)", "1.5" },
    { -1.5, "0.0;-0.0", "-1.5" },
    { -5.0, "0;", "-5" },
    { 12345.678, "#,##0.00", "12345.68" },
    { 1234567.0, "$ #,##0.00 USD", "1234567.00" },
    { 7.0, "000", "7" },
    { 0.0, "000.00", "0.00" },
    { 12.0, "0-0", "12" },
    { 5.0, "0.##", "5" },
    { 5.0, "*0.*", "5" },
    { 0.0, "#", "" },
    { 5.0, "0.# kg", "5." },
    { 1.5, "0.# kg", "1.5" },
    { -0.5, "(#.0)", "-.5" },
};

} // namespace

TEST_F(DoubleToStringTest, FollowsThePicture)
{
    for (const Printed& row : displayed) {
        EXPECT_EQ(row.text, Print(row.value, row.picture, 100, 0).text)
            << row.value << " through " << (row.picture ? row.picture : "null");
    }
}

TEST_F(DoubleToStringTest, PrintsVeryLargeAndVerySmallNumbersInScientificForm)
{
    for (const Printed& row : scientific) {
        for (const int editForm : { 0, 1 }) {
            const Result printed = Print(row.value, row.picture, 100, editForm);
            EXPECT_EQ(row.text, printed.text) << row.value;
            EXPECT_EQ(static_cast<int>(std::strlen(row.text)), printed.result) << row.value;
        }
    }
}

TEST_F(DoubleToStringTest, CutsTheScientificFormToTheBuffer)
{
    const std::string whole = "-1.2345e25";
    for (int size = 2; size < 12; ++size) {
        const Result printed = Print(-1.23456e25, "0", size, 0);
        EXPECT_EQ(whole.substr(0, static_cast<size_t>(size) - 1), printed.text) << size;
        EXPECT_EQ(static_cast<int>(printed.text.size()), printed.result) << size;
    }
}

TEST_F(DoubleToStringTest, DropsLiteralsAndGroupsInEditForm)
{
    for (const Printed& row : edited) {
        EXPECT_EQ(row.text, Print(row.value, row.picture, 100, 1).text) << row.value << " through " << row.picture;
    }
}

TEST_F(DoubleToStringTest, GivesTheLengthOfTheText)
{
    for (const Printed& row : displayed) {
        const Result printed = Print(row.value, row.picture, 100, 0);
        // The comma behind the point counts in the width without being printed.
        const int uncounted = row.picture && std::string(row.picture) == "0.0,0" ? 1 : 0;
        EXPECT_EQ(static_cast<int>(std::strlen(row.text)) + uncounted, printed.result) << row.text;
    }
}

TEST_F(DoubleToStringTest, LeavesTheSeparatorOutOfTheResultInEditForm)
{
    EXPECT_EQ(3, Print(-1.5, "0.0;(0.0)", 100, 1).result);
    EXPECT_EQ(7, Print(12345.678, "#,##0.00", 100, 1).result);
    EXPECT_EQ(1, Print(5.0, "0.##", 100, 1).result);
    EXPECT_EQ(5, Print(12345.0, "#,##0", 100, 1).result);
}

TEST_F(DoubleToStringTest, ShowsARowOfMarksWhereTheTextDoesNotFit)
{
    for (const Printed& row : displayed) {
        const int length = Print(row.value, row.picture, 100, 0).result;
        if (length < 2) {
            continue;
        }
        const Result fits = Print(row.value, row.picture, length + 1, 0);
        EXPECT_EQ(row.text, fits.text) << row.text;
        const Result over = Print(row.value, row.picture, length, 0);
        EXPECT_EQ(std::string(static_cast<size_t>(length) - 1, '#'), over.text) << row.text;
        EXPECT_EQ(0, over.result) << row.text;
    }
}

TEST_F(DoubleToStringTest, NeedsAPlaceForTheSeparatorInEditForm)
{
    EXPECT_EQ("-1.5", Print(-1.5, "0.0", 5, 1).text);
    const Result over = Print(-1.5, "0.0", 4, 1);
    EXPECT_EQ("###", over.text);
    EXPECT_EQ(0, over.result);
    EXPECT_EQ("15", Print(15.0, "0.#", 3, 1).text);
}

TEST_F(DoubleToStringTest, GivesNothingWithoutABuffer)
{
    char out[] = "?";
    EXPECT_EQ(0, DoubleToString(5.0, "0", nullptr, 100, 0));
    EXPECT_EQ(0, DoubleToString(5.0, "0", out, 1, 0));
    EXPECT_EQ(0, DoubleToString(5.0, "0", out, 0, 0));
    EXPECT_EQ(0, DoubleToString(5.0, "0", out, -5, 0));
    EXPECT_STREQ("?", out);
}

TEST_F(DoubleToStringTest, PrintsTheSeparatorsOfTheSettings)
{
    gIntl.chThousandSep = ' ';
    gIntl.chDecimalSep = ',';
    EXPECT_EQ("12 345,68", Print(12345.678, "#,##0.00", 100, 0).text);
    EXPECT_EQ("0,00", Print(0.0, "0.00", 100, 0).text);
    EXPECT_EQ("1,0000e25", Print(1e25, "0", 100, 0).text);
    EXPECT_EQ("-1,5", Print(-1.5, "0.0;(0.0)", 100, 1).text);
    // On the stretch behind the digits the picture's own point is copied.
    EXPECT_EQ("5. kg", Print(5.0, "0.# kg", 100, 0).text);
}

TEST_F(DoubleToStringTest, GroupsNothingWithoutAThousandsSeparator)
{
    gIntl.chThousandSep = 0;
    const Result printed = Print(1234567.5, "#,##0.00", 100, 0);
    EXPECT_EQ("1234567.50", printed.text);
    EXPECT_EQ(10, printed.result);
}

TEST_F(DoubleToStringTest, ShowsARowOfMarksForWhatIsNoNumber)
{
    for (const double value : { std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
                                std::numeric_limits<double>::quiet_NaN() }) {
        const Result printed = Print(value, "0.00", 6, 0);
        EXPECT_EQ("#####", printed.text);
        EXPECT_EQ(0, printed.result);
    }
}

TEST_F(DoubleToStringTest, DoesNotCutATinyNumberToThePlacesOfThePicture)
{
    // Below 1e-15 in size every digit counts, from there on the picture's do.
    EXPECT_EQ("9.5000e-16", Print(9.5e-16, "0.00", 100, 0).text);
    EXPECT_EQ("0.00", Print(1e-15, "0.00", 100, 0).text);
    EXPECT_EQ("-0.00", Print(-1e-15, "0.00", 100, 0).text);
}

TEST_F(DoubleToStringTest, TakesANumberTooSmallForAnyPlaceForZero)
{
    EXPECT_EQ("0.00", Print(5e-324, "0.00", 100, 0).text);
    EXPECT_EQ("0", Print(1e-80, nullptr, 100, 0).text);
}

TEST_F(DoubleToStringTest, FitsInTheLongestTextOfItsPicture)
{
    std::mt19937_64 random(4711);
    for (const char* const picture : { "", "0", "*0.0*", "#,##0", "#,##0.###", "0.0;(0.00) owed", "$ *#,##0.## net",
                                       "000,000,000,000,000,000,000,000.00", "[red]0.0*;[blue]-0.0#" }) {
        const int longest = LongestNumberText(picture);
        for (int i = 0; i < 2000; ++i) {
            const double size = std::ldexp(static_cast<double>(random() >> 11), static_cast<int>(random() % 140) - 70);
            const Result printed = Print(i % 2 ? -size : size, picture, longest + 1, i / 2 % 2);
            ASSERT_EQ(std::string::npos, printed.text.find('#')) << size << " through " << picture;
            ASSERT_LE(printed.text.size(), static_cast<size_t>(longest)) << size << " through " << picture;
        }
    }
}

TEST_F(DoubleToStringTest, NeedsTheLongestTextOfItsPicture)
{
    struct Row {
        const char* picture;
        double      value;
    };
    constexpr Row rows[] = {
        { "#,##0", -9e18 }, { "0.00", -1234567890123456768.0 }, { "#,##0.00 net", -9e18 }
    };
    for (const Row& row : rows) {
        const int longest = LongestNumberText(row.picture);
        EXPECT_EQ(static_cast<size_t>(longest), Print(row.value, row.picture, longest + 1, 0).text.size())
            << row.picture;
    }
}
