// Stored numbers to and from doubles, and the reading of a number from a text.
#include "typed/numbers_internal.h"

#include "foundation/memory.h"
#include "typed/date_letters.h"
#include "typed/intl.h"

#include <cstdint>

namespace {

constexpr double highest = 4294967295.0;
constexpr double lowest = -2147483648.0;

bool IsFloatType(char dataType)
{
    return dataType == 'd' || dataType == 'f';
}

// What an integer type gets: the value cut towards zero, 0 for what 32 bits can't hold in any way.
int64_t CutToInteger(double value)
{
    const bool held = value >= lowest && value <= highest; // false for a not-a-number, too
    return held ? static_cast<int64_t>(value) : 0;
}

} // namespace

double WINAPI NumToDouble(const void* data, char dataType)
{
    if (!data) {
        return 0.0;
    }
    switch (dataType) {
    case 'W':
    case 'u': return LoadAs<uint32_t>(data);
    case 'b': return LoadAs<uint8_t>(data);
    case 'd': return LoadAs<double>(data);
    case 'f': return static_cast<double>(LoadAs<float>(data));
    case 'h': return LoadAs<int8_t>(data);
    case 'i':
    case 'l': return LoadAs<int32_t>(data);
    case 's': return LoadAs<int16_t>(data);
    case 'w': return LoadAs<uint16_t>(data);
    default: return 0.0;
    }
}

int WINAPI DoubleToNum(void* data, char dataType, double value)
{
    // Bounded: nowhere to store.
    if (!data) {
        return 0;
    }
    const int64_t integer = IsFloatType(dataType) ? 0 : CutToInteger(value);
    switch (dataType) {
    case 'W':
    case 'i':
    case 'l':
    case 'u': StoreAs(data, static_cast<uint32_t>(integer)); return 1;
    case 's':
    case 'w': StoreAs(data, static_cast<uint16_t>(integer)); return 1;
    case 'b':
    case 'h': StoreAs(data, static_cast<uint8_t>(integer)); return 1;
    case 'd': StoreAs(data, value); return 1;
    case 'f': StoreAs(data, static_cast<float>(value)); return 1;
    default: return 0;
    }
}

double WINAPI StringToDouble(const char* text)
{
    if (!text) {
        return 0.0;
    }
    // Bounded: what doesn't fit in the scratch buffer is cut.
    char* const end = gScratch + scratchSize - 1;
    char*       at = gScratch;
    for (; *text && at < end; ++text) {
        if (*text == gIntl.chDecimalSep) {
            *at++ = '.';
        } else if (IsDecimalDigit(*text) || *text == '-') {
            *at++ = *text;
        }
    }
    *at = 0;
    return FromDecimalText(gScratch);
}
