// The analysis of numeric pictures.
#include "typed/numbers.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

bool operator==(const NumPicture& a, const NumPicture& b)
{
    return a.cbTotal == b.cbTotal && a.cbInt == b.cbInt && a.cIntDigits == b.cIntDigits && a.cIntZeros == b.cIntZeros &&
           a.cIntMax == b.cIntMax && a.cIntLits == b.cIntLits && a.cbFrac == b.cbFrac &&
           a.cFracDigits == b.cFracDigits && a.cFracZeros == b.cFracZeros && a.cFracMax == b.cFracMax &&
           a.cFracLits == b.cFracLits && a.wFlags == b.wFlags;
}

void PrintTo(const NumPicture& picture, std::ostream* out)
{
    for (const int field : { +picture.cbTotal, +picture.cbInt, +picture.cIntDigits, +picture.cIntZeros,
                             +picture.cIntMax, +picture.cIntLits, +picture.cbFrac, +picture.cFracDigits,
                             +picture.cFracZeros, +picture.cFracMax, +picture.cFracLits, +picture.wFlags }) {
        *out << field << " ";
    }
}

namespace {

constexpr bool display = false, edit = true, plus = false, minus = true;

struct Case {
    const char* picture;
    bool        negative;
    bool        editForm;
    int         start; // of the section
    NumPicture  parsed;
};

// Total; integer side: characters, digits, zeros, most, literals; fraction side alike; flags.
const Case cases[] = {
    { "", plus, display, 0, { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 } },
    { "0", plus, display, 0, { 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0 } },
    { "#,##0.00", plus, display, 0, { 8, 5, 4, 1, 4, 0, 3, 2, 2, 2, 1, numGrouped } },
    { "*0.*", plus, display, 0, { 4, 2, 2, 1, 255, 0, 2, 1, 0, 255, 1, 0 } },
    { "*0.0*", plus, display, 0, { 5, 2, 2, 1, 255, 0, 3, 2, 1, 255, 1, 0 } },
    { "0*#", plus, display, 0, { 3, 3, 3, 1, 255, 0, 0, 0, 0, 0, 0, 0 } },
    { "$ 0.0 kg", plus, display, 0, { 8, 3, 1, 1, 1, 2, 5, 1, 1, 1, 4, 0 } },
    { ".5#", plus, display, 0, { 3, 0, 0, 0, 0, 0, 3, 1, 0, 1, 2, 0 } },
    // Behind the first point a point or a comma is a literal.
    { "0.0.0,0", plus, display, 0, { 7, 1, 1, 1, 1, 0, 6, 3, 3, 3, 3, 0 } },
    // In edit form only the first zero of the integer side counts.
    { "000.00", plus, display, 0, { 6, 3, 3, 3, 3, 0, 3, 2, 2, 2, 1, 0 } },
    { "000.00", plus, edit, 0, { 6, 3, 1, 1, 3, 0, 3, 2, 2, 2, 1, 0 } },
    { "#00*0", plus, edit, 0, { 5, 5, 3, 1, 255, 0, 0, 0, 0, 0, 0, 0 } },
    // Sections: the negative one spells its own sign, without one the sign must be printed.
    { "0.0;(0.0)", plus, display, 0, { 3, 1, 1, 1, 1, 0, 2, 1, 1, 1, 1, 0 } },
    { "0.0;(0.0)", minus, display, 4, { 5, 2, 1, 1, 1, 1, 3, 1, 1, 1, 2, 0 } },
    { "0.0", minus, display, 0, { 3, 1, 1, 1, 1, 0, 2, 1, 1, 1, 1, numMinus } },
    { "#,#", minus, display, 0, { 3, 3, 2, 0, 2, 0, 0, 0, 0, 0, 0, numGrouped | numMinus } },
    { "0;", minus, display, 2, { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 } },
    { ";0", plus, display, 0, { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 } },
    { "0;00;000", minus, display, 2, { 2, 2, 2, 2, 2, 0, 0, 0, 0, 0, 0, 0 } },
    // A group in brackets at the head of a section is skipped.
    { "[red]0", plus, display, 5, { 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, 0 } },
    { "[red]0;[blue]#", minus, display, 13, { 1, 1, 1, 0, 1, 0, 0, 0, 0, 0, 0, 0 } },
    { "[red]0", minus, display, 5, { 1, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0, numMinus } },
    { "0[red]", plus, display, 0, { 6, 6, 1, 1, 1, 5, 0, 0, 0, 0, 0, 0 } },
    { "[0", plus, display, 0, { 2, 2, 1, 1, 1, 1, 0, 0, 0, 0, 0, 0 } },
};

} // namespace

TEST(ParseNumPicture, CountsWhatASectionHolds)
{
    for (const Case& row : cases) {
        NumPicture        parsed;
        const char* const section = ParseNumPicture(row.picture, row.negative, row.editForm, &parsed);
        EXPECT_EQ(row.start, section - row.picture) << row.picture;
        EXPECT_EQ(row.parsed, parsed) << row.picture << (row.negative ? " negative" : "")
                                      << (row.editForm ? " edit" : "");
    }
}

TEST(ParseNumPicture, CutsASectionToWhatItsCountersHold)
{
    NumPicture parsed;
    ParseNumPicture(std::string(300, 'x').c_str(), false, false, &parsed);
    EXPECT_EQ(255, parsed.cbTotal);
    EXPECT_EQ(255, parsed.cIntLits);
    ParseNumPicture((std::string(200, '#') + "." + std::string(200, '0')).c_str(), false, false, &parsed);
    EXPECT_EQ(255, parsed.cbTotal);
    EXPECT_EQ(200, parsed.cIntMax);
    EXPECT_EQ(55, parsed.cbFrac);
    EXPECT_EQ(54, parsed.cFracZeros);
}
