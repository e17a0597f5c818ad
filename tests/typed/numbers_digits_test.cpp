// Exact decimal digits of doubles.
#include "typed/numbers_internal.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace {

// "digits in front of the point.digits behind it, e exponent", zeros at the end left out.
std::string Digits(double value, int places)
{
    DecimalDigits digits;
    ToDecimalDigits(value, places, &digits);
    std::string text(digits.szDigits, static_cast<size_t>(digits.cDigits));
    text.insert(static_cast<size_t>(digits.cInt), ".");
    while (text.back() == '0') {
        text.pop_back();
    }
    return (digits.minus ? "-" : "") + text + " e" + std::to_string(digits.iExponent);
}

// The model: the whole expansion as the standard library prints it, then rounded digit by digit.
std::string ModelDigits(double value, int places)
{
    char        buffer[1600];
    const auto  end = std::to_chars(buffer, std::end(buffer), std::fabs(value), std::chars_format::fixed, 1100).ptr;
    std::string text(buffer, end);
    std::string whole = text.substr(0, text.find('.')), behind = text.substr(text.find('.') + 1);
    const bool  up = behind[static_cast<size_t>(places)] >= '5';
    std::string kept = "0" + whole + behind.substr(0, static_cast<size_t>(places));
    for (size_t i = kept.size(); up && i-- > 0;) {
        if (++kept[i] <= '9') {
            break;
        }
        kept[i] = '0';
    }
    whole = kept.substr(0, whole.size() + 1);
    behind = kept.substr(whole.size());
    whole.erase(0, whole.find_first_not_of('0'));
    behind.erase(behind.find_last_not_of('0') + 1);
    const size_t zeros = behind.find_first_not_of('0');
    const int    exponent = !whole.empty()               ? static_cast<int>(whole.size())
                            : zeros == std::string::npos ? 0
                                                         : -static_cast<int>(zeros);
    return (std::signbit(value) ? "-" : "") + whole + "." + behind + " e" + std::to_string(exponent);
}

struct Case {
    double      value;
    int         places;
    const char* digits;
};

const Case cases[] = {
    { 0.0, 2, ". e0" },
    { -0.0, 64, "-. e0" },
    { 1.0, 0, "1. e1" },
    { 12345.678, 2, "12345.68 e5" },
    { 9.99, 1, "10. e2" },
    { 999.5, 0, "1000. e4" },
    { 0.96, 1, "1. e1" },
    { 0.06, 1, ".1 e0" },
    { 0.04, 1, ". e0" },
    { 0.5, 0, "1. e1" },
    { 0.4999, 0, ". e0" },
    { 0.00123, 5, ".00123 e-2" },
    { 0.0999, 3, ".1 e0" },
    // Halves that a double holds exactly go away from zero; a double below a half goes down.
    { 0.125, 2, ".13 e0" },
    { -0.125, 2, "-.13 e0" },
    { 2.5, 0, "3. e1" },
    { 1.005, 2, "1. e1" },
    { 2.675, 2, "2.67 e1" },
    { 0.1, 64, ".1000000000000000055511151231257827021181583404541015625 e0" },
    { 1e15, 64, "1000000000000000. e16" },
    { 1e23, 0, "99999999999999991611392. e23" },
    { 1e25, 2, "10000000000000000905969664. e26" },
    { 5e-324, 64, ". e0" },
    { 1e-63, 64, ".000000000000000000000000000000000000000000000000000000000000001 e-62" },
};

} // namespace

TEST(DecimalDigits, AreExactAndRoundedAwayFromZero)
{
    for (const Case& row : cases) {
        EXPECT_EQ(row.digits, Digits(row.value, row.places)) << row.value << " at " << row.places;
    }
}

TEST(DecimalDigits, HoldTheLargestDoubleAndTheMostPlaces)
{
    EXPECT_EQ(ModelDigits(std::numeric_limits<double>::max(), maxFractionDigits),
              Digits(std::numeric_limits<double>::max(), maxFractionDigits));
    EXPECT_EQ(ModelDigits(0.1, maxFractionDigits), Digits(0.1, maxFractionDigits));
    EXPECT_EQ(ModelDigits(std::nextafter(1e15, 0.0), maxFractionDigits),
              Digits(std::nextafter(1e15, 0.0), maxFractionDigits));
}

TEST(DecimalDigits, EqualTheModelForRandomBits)
{
    std::mt19937_64 random(8);
    for (int round = 0; round < 4000; ++round) {
        const double value = std::bit_cast<double>(random());
        const int    places = static_cast<int>(random() % (maxFractionDigits + 1));
        if (std::isfinite(value)) {
            ASSERT_EQ(ModelDigits(value, places), Digits(value, places)) << value << " at " << places;
        }
    }
}

TEST(DecimalDigits, EqualTheModelForOrdinaryNumbers)
{
    std::mt19937_64 random(9);
    for (int round = 0; round < 10000; ++round) {
        const double value = std::ldexp(static_cast<double>(random() >> 11), -static_cast<int>(random() % 110));
        const int    places = static_cast<int>(random() % 20);
        ASSERT_EQ(ModelDigits(value, places), Digits(value, places)) << value << " at " << places;
    }
}

TEST(DecimalDigits, EqualTheModelForExactHalves)
{
    std::mt19937_64 random(10);
    for (int round = 0; round < 10000; ++round) {
        const int    places = static_cast<int>(random() % 6);
        const double value =
            (static_cast<double>(random() % 100000) + 0.5) / std::pow(2.0, static_cast<int>(random() % 8));
        ASSERT_EQ(ModelDigits(value, places), Digits(value, places)) << value << " at " << places;
    }
}

TEST(FromDecimalText, ReadsWhatBelongsToANumber)
{
    EXPECT_EQ(-12.5, FromDecimalText("-12.5x"));
    EXPECT_EQ(12.5, FromDecimalText("12.5.7"));
    EXPECT_EQ(0.0, FromDecimalText(""));
    EXPECT_EQ(0.0, FromDecimalText("x1"));
}

TEST(FromDecimalText, BringsEveryDoubleBackFromItsDigits)
{
    std::mt19937_64 random(11);
    for (int round = 0; round < 5000; ++round) {
        const double value = std::ldexp(static_cast<double>(random() >> 11), -static_cast<int>(random() % 110));
        char         text[128];
        *std::to_chars(text, std::end(text) - 1, value, std::chars_format::fixed).ptr = 0;
        ASSERT_EQ(value, FromDecimalText(text)) << text;
    }
}
