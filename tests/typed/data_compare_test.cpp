// The order of stored values, pair by pair.
#include "typed/typed_test_support.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace {

// Images of stored values, least significant byte first.
class Image {
public:
    template <typename T>
    Image& Add(T value)
    {
        bytes_.append(reinterpret_cast<const char*>(&value), sizeof value);
        return *this;
    }
    operator std::string() const { return bytes_; }

private:
    std::string bytes_;
};

template <typename T>
std::string Value(T value)
{
    return Image().Add(value);
}

std::string Bytes(std::initializer_list<int> values)
{
    std::string bytes;
    for (const int value : values) {
        bytes += static_cast<char>(value);
    }
    return bytes;
}

std::string Words(std::initializer_list<int> values)
{
    Image image;
    for (const int value : values) {
        image.Add(static_cast<uint16_t>(value));
    }
    return image;
}

std::string Ints(std::initializer_list<int64_t> values)
{
    Image image;
    for (const int64_t value : values) {
        image.Add(static_cast<uint32_t>(value));
    }
    return image;
}

std::string Packed(int low, int middle, int high, int lowBits, int middleBits)
{
    return Words({ low | middle << lowBits | high << (lowBits + middleBits) });
}

std::string PackedDate(int year, int month, int day)
{
    return Packed(year, month, day, 7, 4);
}

std::string PackedTime(int hour, int minute, int second)
{
    return Packed(hour, minute, second, 5, 6);
}

struct Ascending {
    const char*              classes; // all that have this order
    const char*              types;
    std::vector<std::string> values; // each below the next
};

const double infinity = std::numeric_limits<double>::infinity();

const Ascending orders[] = {
    { "ms", "sxQ", { std::string(), "A", "abc", "ABD", "b", "B1" } },
    { "h", "hx", { Bytes({ 0x80 }), Bytes({ 0xFF }), Bytes({ 0 }), Bytes({ 'A' }), Bytes({ 'a' }), Bytes({ 0x7F }) } },
    { "ak",
      "D",
      { Bytes({ 0xFF, 0xFF, 12, 31, 23, 59, 59, 0, 0xE7, 3 }), Bytes({ 0, 0, 0, 0, 0, 0, 0, 0, 0, 0 }),
        Bytes({ 0, 7, 1, 200, 0, 0, 0, 0, 0, 0 }), Bytes({ 0, 7, 200, 1, 0, 0, 0, 0, 0, 0 }),
        Bytes({ 0, 7, 200, 2, 0, 0, 0, 0, 0, 0 }), Bytes({ 0, 7, 200, 2, 1, 0, 0, 0, 0, 0 }),
        Bytes({ 0, 7, 200, 2, 1, 1, 0, 0, 0, 0 }), Bytes({ 0, 7, 200, 2, 1, 1, 1, 0, 0, 0 }),
        Bytes({ 0, 7, 200, 2, 1, 1, 1, 0, 1, 0 }), Bytes({ 0, 7, 200, 2, 1, 1, 1, 0, 0, 0xFF }) } },
    { "ak",
      "Q",
      { Ints({ -2, 5 }), Ints({ -1, 5 }), Ints({ 3, -1 }), Ints({ 3, 0 }), Ints({ 3, 7 }), Ints({ 4, 0 }) } },
    { "ak", "T", { Value<int64_t>(0x80000000), Value<int64_t>(-1), Value<int64_t>(0), Value<int64_t>(0x7FFFFFFF) } },
    { "ak",
      "m",
      { Ints({ 9, 9, 9, 9, 9, -1, 9, 9, 9 }), Ints({ 0, 0, 0, 0, 0, 0, 0, 0, 0 }), Ints({ 0, 0, 0, 0, 1, 0, 0, 0, 0 }),
        Ints({ 0, 0, 0, 1, 1, 0, 0, 0, 0 }), Ints({ 0, 0, 1, 1, 1, 0, 0, 0, 0 }), Ints({ 0, 1, 1, 1, 1, 0, 0, 0, 0 }),
        Ints({ 1, 1, 1, 1, 1, 0, 0, 0, 0 }), Ints({ 0, 0, 0, 0, 0, 1, 0, 0, 0 }) } },
    { "ak", "q", { Words({ 0, 1 }), Words({ 0, 0xFFFF }), Words({ 1, 0 }), Words({ 0xFFFF, 0 }) } },
    { "ak",
      "s",
      { Words({ 0xFFFF, 9, 9, 9, 9, 9, 9, 9 }), Words({ 1, 0, 0, 0, 0, 0, 0, 0 }), Words({ 1, 0, 0, 0, 0, 0, 1, 0 }),
        Words({ 1, 0, 0, 0, 0, 0, 0, 1 }), Words({ 1, 0, 0, 0, 0, 0, 0, 0xFFFF }), Words({ 1, 0, 0, 0, 0, 1, 0, 0 }),
        Words({ 1, 0, 0, 0, 1, 0, 0, 0 }), Words({ 1, 0, 0, 1, 0, 0, 0, 0 }), Words({ 1, 0, 1, 0, 0, 0, 0, 0 }),
        Words({ 1, 1, 0, 0, 0, 0, 0, 0 }), Words({ 1, 0xFFFF, 0, 0, 0, 0, 0, 0 }) } },
    { "ak", "u", { Value(-infinity), Value(-1.5), Value(0.0), Value(1e-300), Value(2.5), Value(infinity) } },
    { "d",
      "A",
      { PackedDate(0, 0, 31), PackedDate(0, 1, 0), PackedDate(0, 1, 1), PackedDate(1, 0, 0), PackedDate(127, 15, 30),
        PackedDate(127, 15, 31) } },
    { "d",
      "a",
      { Bytes({ 0, 0, 0, 0, 9, 9 }), Bytes({ 200, 1, 0, 0, 0, 0 }), Bytes({ 1, 200, 0, 0, 0, 0 }),
        Bytes({ 2, 200, 0, 0, 0, 0 }), Bytes({ 1, 1, 0xFF, 0x7F, 0, 0 }), Bytes({ 1, 1, 0xFF, 0xFF, 0, 0 }) } },
    { "d",
      "d",
      { Words({ 0xFFFF, 12, 31 }), Words({ 0, 0, 0 }), Words({ 0, 1, 0xFFFF }), Words({ 0, 0xFFFF, 0 }),
        Words({ 0, 0xFFFF, 1 }), Words({ 1, 0, 0 }) } },
    { "d", "l", { Value(-1), Value(0), Value(20240229), Value(0x7FFFFFFF) } },
    { "t",
      "I",
      { PackedTime(0, 0, 31), PackedTime(0, 1, 0), PackedTime(0, 63, 5), PackedTime(1, 0, 0), PackedTime(31, 63, 30),
        PackedTime(31, 63, 31) } },
    { "t",
      "i",
      { Bytes({ 0, 0, 0, 1 }), Bytes({ 0, 0, 1, 0 }), Bytes({ 0, 1, 0, 0 }), Bytes({ 1, 0, 0, 0 }),
        Bytes({ 200, 0, 0, 0 }), Bytes({ 200, 0, 0, 200 }) } },
    { "t", "t", { Words({ 0, 0, 1 }), Words({ 0, 1, 0 }), Words({ 0, 0x8000, 0 }), Words({ 0x8000, 0, 0 }) } },
    { "bcnz", "M", { Ints({ 0, 5 }), Ints({ 0, 0xFFFFFFFF }), Ints({ 1, 0 }), Ints({ 0xFFFFFFFF, 0 }) } },
    { "bcnz", "Wu", { Value(0), Value(1), Value(0x7FFFFFFF), Value(-1) } },
    { "bcnz", "b", { Bytes({ 0 }), Bytes({ 0x7F }), Bytes({ 0x80 }), Bytes({ 0xFF }) } },
    { "bcnz", "d", { Value(-infinity), Value(-1e300), Value(0.0), Value(0.5), Value(infinity) } },
    { "bcnz", "f", { Value(-1e30f), Value(0.0f), Value(0.5f), Value(1e30f) } },
    { "bcnz", "h", { Bytes({ 0x80 }), Bytes({ 0xFF }), Bytes({ 0 }), Bytes({ 0x7F }) } },
    { "bcnz", "il", { Value(std::numeric_limits<int>::min()), Value(-1), Value(0), Value(0x7FFFFFFF) } },
    { "bcnz", "s", { Words({ 0x8000 }), Words({ 0xFFFF }), Words({ 0 }), Words({ 0x7FFF }) } },
    { "bcnz", "w", { Words({ 0 }), Words({ 0x7FFF }), Words({ 0x8000 }), Words({ 0xFFFF }) } },
};

// The values lie at odd addresses and end where their blocks end.
int CompareImages(HLLDATACOMPARE compare, const std::string& a, const std::string& b, bool text)
{
    const size_t terminator = text ? 1 : 0;
    ExactBuffer  first(a.size() + 1 + terminator), second(b.size() + 1 + terminator);
    std::memcpy(first.Get() + 1, a.c_str(), a.size() + terminator);
    std::memcpy(second.Get() + 1, b.c_str(), b.size() + terminator);
    return compare(first.Get() + 1, second.Get() + 1);
}

void ExpectAscending(const Ascending& order, char dataClass, char dataType)
{
    const HLLDATACOMPARE compare = GetDataCompare(dataClass, dataType);
    ASSERT_NE(nullptr, compare) << dataClass << dataType;
    const bool text = dataClass == 'm' || dataClass == 's';
    for (size_t i = 0; i < order.values.size(); ++i) {
        for (size_t j = 0; j < order.values.size(); ++j) {
            const int expected = i < j ? -1 : i > j ? 1 : 0;
            EXPECT_EQ(expected, CompareImages(compare, order.values[i], order.values[j], text))
                << dataClass << dataType << ", values " << i << " and " << j;
        }
    }
}

bool IsListed(char dataClass, char dataType)
{
    if (dataClass == 'm' || dataClass == 's' || dataClass == 'h') {
        return true;
    }
    for (const Ascending& order : orders) {
        if (std::strchr(order.classes, dataClass) && dataType && std::strchr(order.types, dataType)) {
            return true;
        }
    }
    return false;
}

} // namespace

TEST(GetDataCompare, OrdersEachPairFromTheMostSignificantFieldDown)
{
    for (const Ascending& order : orders) {
        for (const char dataClass : std::string(order.classes)) {
            for (const char dataType : std::string(order.types)) {
                ExpectAscending(order, dataClass, dataType);
            }
        }
    }
}

TEST(GetDataCompare, IsNullForEveryPairWithoutAnOrder)
{
    const std::string classes = "abcdhkmnstz";
    for (int pair = 0; pair < 0x10000; ++pair) {
        const char dataClass = static_cast<char>(pair >> 8);
        const char dataType = static_cast<char>(pair & 0xFF);
        const bool known = dataClass && classes.find(dataClass) != std::string::npos;
        EXPECT_EQ(known && IsListed(dataClass, dataType), GetDataCompare(dataClass, dataType) != nullptr) << pair;
    }
}

TEST(GetDataCompare, IgnoresTheCaseOfTexts)
{
    EXPECT_EQ(0, GetDataCompare('s', 's')("Straw", "sTRAW"));
    EXPECT_EQ(0, GetDataCompare('m', 's')("", ""));
}

TEST(GetDataCompare, LooksAtTheLowerHalfOfAClockValueOnly)
{
    const int64_t a = 5, b = 5 + (int64_t(1) << 32), c = 4 + (int64_t(9) << 32);
    EXPECT_EQ(0, GetDataCompare('a', 'T')(&a, &b));
    EXPECT_EQ(1, GetDataCompare('k', 'T')(&a, &c));
}

TEST(GetDataCompare, LeavesTheFillerOfABrokenDownDateOut)
{
    const std::string a = Bytes({ 0, 7, 1, 1, 1, 1, 1, 0, 0, 0 });
    const std::string b = Bytes({ 0, 7, 1, 1, 1, 1, 1, 99, 0, 0 });
    EXPECT_EQ(0, GetDataCompare('a', 'D')(a.data(), b.data()));
}

TEST(GetDataCompare, TakesANotANumberOnEitherSideForGreater)
{
    const double nan = std::numeric_limits<double>::quiet_NaN(), one = 1.0;
    const float  nanf = std::numeric_limits<float>::quiet_NaN(), onef = 1.0f;
    EXPECT_EQ(1, GetDataCompare('n', 'd')(&nan, &one));
    EXPECT_EQ(1, GetDataCompare('n', 'd')(&one, &nan));
    EXPECT_EQ(1, GetDataCompare('n', 'd')(&nan, &nan));
    EXPECT_EQ(1, GetDataCompare('z', 'f')(&nanf, &onef));
    EXPECT_EQ(1, GetDataCompare('z', 'f')(&onef, &nanf));
}
