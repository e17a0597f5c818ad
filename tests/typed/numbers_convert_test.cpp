// Stored numbers to doubles and back, and numbers read from texts.
#include "typed/typed_test_support.h"

#include "typed/numbers.h"

#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

const char integerTypes[] = "Wbhilsuw";

template <typename T>
double Widen(T value, char type)
{
    ExactBuffer data(sizeof value + 1);
    std::memcpy(data.Get() + 1, &value, sizeof value); // at an odd address
    return NumToDouble(data.Get() + 1, type);
}

// The stored bytes as a number without sign; the bytes that the type doesn't have stay as they are.
uint64_t Narrow(double value, char type)
{
    ExactBuffer data(static_cast<size_t>(GetDataSize('n', type)) + 1);
    EXPECT_EQ(1, DoubleToNum(data.Get() + 1, type, value)) << type << value;
    uint64_t stored = 0;
    std::memcpy(&stored, data.Get() + 1, data.Size() - 1);
    EXPECT_EQ('~', data.Get()[0]) << type;
    return stored;
}

struct Narrowing {
    double      value;
    const char* types;
    uint64_t    stored;
};

const Narrowing narrowings[] = {
    { 0.0, "Wbhilsuw", 0 },
    { -0.0, "Wbhilsuw", 0 },
    { 5.0, "Wbhilsuw", 5 },
    // Cut towards zero.
    { 5.999, "Wbhilsuw", 5 },
    { -0.9, "Wbhilsuw", 0 },
    { -5.999, "Wilu", 0xFFFFFFFB },
    { -5.999, "sw", 0xFFFB },
    { -5.999, "bh", 0xFB },
    // The edges of the range that is let through.
    { 4294967295.0, "Wilu", 0xFFFFFFFF },
    { 4294967295.0, "sw", 0xFFFF },
    { 4294967295.0, "bh", 0xFF },
    { 4294967294.9, "u", 0xFFFFFFFE },
    { 4294967295.5, "Wbhilsuw", 0 },
    { 4294967296.0, "Wbhilsuw", 0 },
    { 1e300, "Wbhilsuw", 0 },
    { -2147483648.0, "Wilu", 0x80000000 },
    { -2147483648.0, "bhsw", 0 },
    { -2147483647.9, "l", 0x80000001 },
    { -2147483648.5, "Wbhilsuw", 0 },
    { -1e300, "Wbhilsuw", 0 },
    // What a type can't hold keeps its low bits.
    { 2147483647.0, "Wilu", 0x7FFFFFFF },
    { 2147483648.0, "Wilu", 0x80000000 },
    { 3000000000.0, "Wilu", 3000000000u },
    { -1.0, "Wilu", 0xFFFFFFFF },
    { 65536.0, "sw", 0 },
    { 65537.0, "sw", 1 },
    { 40000.0, "sw", 40000 },
    { -32769.0, "sw", 0x7FFF },
    { 256.0, "bh", 0 },
    { 511.0, "bh", 0xFF },
    { -129.0, "bh", 0x7F },
    { std::numeric_limits<double>::infinity(), "Wbhilsuw", 0 },
    { -std::numeric_limits<double>::infinity(), "Wbhilsuw", 0 },
    { std::numeric_limits<double>::quiet_NaN(), "Wbhilsuw", 0 },
};

struct Reading {
    const char* text;
    double      value;
};

const Reading readings[] = {
    { "", 0.0 },
    { "0", 0.0 },
    { "42", 42.0 },
    { "-42", -42.0 },
    { "1.5", 1.5 },
    { ".5", 0.5 },
    { "5.", 5.0 },
    { "-.5", -0.5 },
    { ".", 0.0 },
    { "-", 0.0 },
    { "-.", 0.0 },
    { "abc", 0.0 },
    // Everything else is dropped.
    { "1,234.50", 1234.5 },
    { "$ 1,234.50 USD", 1234.5 },
    { "(5)", 5.0 },
    { "1 2 3", 123.0 },
    { "1e5", 15.0 },
    { "+7", 7.0 },
    { "0x10", 10.0 },
    { "inf", 0.0 },
    // Reading stops at a second separator and at a sign that isn't the first character.
    { "1.2.3", 1.2 },
    { "1-2", 1.0 },
    { "--5", 0.0 },
    { "-5-", -5.0 },
    { "1.-5", 1.0 },
    { "5 -", 5.0 },
    // The nearest double.
    { "0.1", 0.1 },
    { "0.3", 0.3 },
    { "123456789012345678", 123456789012345678.0 },
    { "9007199254740993", 9007199254740992.0 },
    { "9007199254740993.0000000000000000000001", 9007199254740994.0 },
    { "9007199254740995", 9007199254740996.0 },
    { "0.1000000000000000055511151231257827021181583404541015625", 0.1 },
    { "179769313486231570000000000000000000000", 1.7976931348623157e38 },
    { "0.000000000000000000000000000000000000000001", 1e-42 },
    { "00000000000000000000000000000000000000000000000012.5", 12.5 },
};

std::string RandomDigits(Random* random, unsigned most)
{
    std::string text;
    for (unsigned i = (*random)() % most; i > 0; --i) {
        text += static_cast<char>('0' + (*random)() % 10);
    }
    return text;
}

class NumToDoubleTest : public NumberTest {};
class StringToDoubleTest : public NumberTest {};

} // namespace

TEST_F(NumToDoubleTest, WidensEachTypeBySignAndSize)
{
    EXPECT_EQ(4294967295.0, Widen<uint32_t>(0xFFFFFFFF, 'W'));
    EXPECT_EQ(4294967295.0, Widen<uint32_t>(0xFFFFFFFF, 'u'));
    EXPECT_EQ(255.0, Widen<uint8_t>(0xFF, 'b'));
    EXPECT_EQ(-1.0, Widen<uint8_t>(0xFF, 'h'));
    EXPECT_EQ(-1.0, Widen<uint16_t>(0xFFFF, 's'));
    EXPECT_EQ(65535.0, Widen<uint16_t>(0xFFFF, 'w'));
    EXPECT_EQ(-1.0, Widen<uint32_t>(0xFFFFFFFF, 'i'));
    EXPECT_EQ(-1.0, Widen<uint32_t>(0xFFFFFFFF, 'l'));
    EXPECT_EQ(-2147483648.0, Widen<uint32_t>(0x80000000, 'l'));
    EXPECT_EQ(2.5, Widen(2.5f, 'f'));
    EXPECT_EQ(-1e300, Widen(-1e300, 'd'));
}

TEST_F(NumToDoubleTest, GivesZeroForNullAndForOtherTypes)
{
    const std::string types = "Wbdfhilsuw";
    for (int type = 0; type < 256; ++type) {
        const char letter = static_cast<char>(type);
        EXPECT_EQ(0.0, NumToDouble(nullptr, letter)) << type;
        if (!type || types.find(letter) == std::string::npos) {
            EXPECT_EQ(0.0, Widen<uint64_t>(0x0101010101010101, letter)) << type;
        }
    }
}

TEST(DoubleToNum, NarrowsIntoEachIntegerType)
{
    for (const Narrowing& row : narrowings) {
        for (const char type : std::string(row.types)) {
            EXPECT_EQ(row.stored, Narrow(row.value, type)) << row.value << " as " << type;
        }
    }
}

TEST(DoubleToNum, ClearsWhatIsOutOfRange)
{
    EXPECT_EQ(0u, Narrow(4294967296.0, 'l'));
    EXPECT_EQ(0xFFFFFFFFu, Narrow(4294967295.0, 'u'));
    EXPECT_EQ(0u, Narrow(-0.9, 's'));
}

TEST(DoubleToNum, StoresFloatsWithoutTheRange)
{
    double d = 0.0;
    EXPECT_EQ(1, DoubleToNum(&d, 'd', -1e300));
    EXPECT_EQ(-1e300, d);
    float f = 0.0f;
    EXPECT_EQ(1, DoubleToNum(&f, 'f', 1e30));
    EXPECT_EQ(1e30f, f);
    EXPECT_EQ(1, DoubleToNum(&f, 'f', 0.1));
    EXPECT_EQ(0.1f, f);
    EXPECT_EQ(1, DoubleToNum(&f, 'f', 16777217.0));
    EXPECT_EQ(16777216.0f, f);
}

TEST(DoubleToNum, StoresNothingForMoneyAndOtherTypes)
{
    const std::string types = "Wbdfhilsuw";
    for (int type = 0; type < 256; ++type) {
        if (!type || types.find(static_cast<char>(type)) == std::string::npos) {
            uint64_t data = 7;
            EXPECT_EQ(0, DoubleToNum(&data, static_cast<char>(type), 5.0)) << type;
            EXPECT_EQ(7u, data) << type;
        }
    }
    EXPECT_EQ(0, DoubleToNum(nullptr, 'd', 5.0));
}

TEST(DoubleToNum, BringsEveryStoredIntegerBack)
{
    Random random(4);
    for (int round = 0; round < 3000; ++round) {
        for (const char type : std::string(integerTypes)) {
            const size_t size = static_cast<size_t>(GetDataSize('n', type));
            uint64_t     stored = 0;
            const auto   bits = static_cast<uint32_t>(random());
            std::memcpy(&stored, &bits, size);
            ASSERT_EQ(stored, Narrow(NumToDouble(&stored, type), type)) << type << stored;
        }
    }
}

TEST_F(StringToDoubleTest, ReadsDigitsSeparatorAndSign)
{
    for (const Reading& row : readings) {
        EXPECT_EQ(row.value, StringToDouble(row.text)) << row.text;
    }
}

TEST_F(StringToDoubleTest, GivesZeroForNull)
{
    EXPECT_EQ(0.0, StringToDouble(nullptr));
}

TEST_F(StringToDoubleTest, KeepsTheSignOfZero)
{
    EXPECT_TRUE(std::signbit(StringToDouble("-0")));
    EXPECT_TRUE(std::signbit(StringToDouble("-.0")));
    EXPECT_FALSE(std::signbit(StringToDouble("0")));
}

TEST_F(StringToDoubleTest, GivesNoSignWithoutADigit)
{
    for (const char* const text : { "-", "-.", "--5", "-.-5", "abc-" }) {
        EXPECT_FALSE(std::signbit(StringToDouble(text))) << text;
    }
}

TEST_F(StringToDoubleTest, TakesTheSeparatorOfTheSettingsForThePoint)
{
    gIntl.chDecimalSep = ',';
    EXPECT_EQ(1234.5, StringToDouble("1 234,50 abc"));
    EXPECT_EQ(123450.0, StringToDouble("1 234.50 abc"));
    gIntl.chDecimalSep = '\'';
    EXPECT_EQ(1.5, StringToDouble("1'5"));
    gIntl.chDecimalSep = ' ';
    EXPECT_EQ(1.5, StringToDouble("1 5"));
}

TEST_F(StringToDoubleTest, AsksNoLocale)
{
    // Where the system knows none of these, the locale stays and the test is the same.
    for (const char* const locale : { "de_DE.UTF-8", "de-DE", "German", "C" }) {
        std::setlocale(LC_ALL, locale);
        EXPECT_EQ(1.5, StringToDouble("1.5")) << locale;
        EXPECT_EQ(15.0, StringToDouble("1,5")) << locale;
    }
}

TEST_F(StringToDoubleTest, CollectsItsCharactersInTheScratchBuffer)
{
    std::memset(gScratch, 'x', sizeof gScratch);
    EXPECT_EQ(-12.5, StringToDouble("a -1b2.5 c"));
    EXPECT_STREQ("-12.5", gScratch);
}

TEST_F(StringToDoubleTest, CutsATextThatFillsTheScratchBuffer)
{
    std::string nines(127, '9');
    EXPECT_EQ(1e127, StringToDouble(nines.c_str()));
    EXPECT_EQ(1e127, StringToDouble((nines + "99999").c_str()));
    EXPECT_EQ(1e127, StringToDouble(("x" + nines + std::string(1000, '9')).c_str()));
}

TEST_F(StringToDoubleTest, GivesTheNearestDoubleOfRandomTexts)
{
    Random random(5);
    for (int round = 0; round < 10000; ++round) {
        const std::string text =
            (random() % 2 ? "-" : "") + RandomDigits(&random, 25) + "." + RandomDigits(&random, 40);
        double expected = 0.0;
        std::from_chars(text.data(), text.data() + text.size(), expected);
        ASSERT_EQ(expected, StringToDouble(text.c_str())) << text;
    }
}

TEST_F(StringToDoubleTest, RoundsTextsHalfwayBetweenTwoDoublesToEven)
{
    Random random(6);
    for (int round = 0; round < 2000; ++round) {
        // An odd number of 54 bits lies halfway between two doubles; a digit more or less decides.
        const uint64_t half = (1ull << 53 | (static_cast<uint64_t>(random()) << 21 ^ random())) | 1;
        const double   low = static_cast<double>(half - 1), high = static_cast<double>(half + 1);
        const double   even = half / 2 % 2 ? high : low;
        const auto     text = std::to_string(half);
        ASSERT_EQ(even, StringToDouble(text.c_str())) << text;
        ASSERT_EQ(high, StringToDouble((text + ".00000000000000000000000000001").c_str())) << text;
        ASSERT_EQ(low, StringToDouble((std::to_string(half - 1) + ".99999999999999999999").c_str())) << text;
    }
}
