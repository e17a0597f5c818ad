// The vocabulary of typed values: which pairs of class and type exist, how long their stored forms are, and the
// descriptor that names one or two pairs at the head of a text.
#include "typed/data_types.h"

#include <cstring>
#include <span>

namespace {

constexpr int textSize = -1; // a zero-terminated text, as long as it is

struct TypeSize {
    char type;
    int  size;
};

// clang-format off
constexpr TypeSize dateTimeSizes[] = {
    { 'D', 10 }, // DateTimeRec
    { 'Q',  8 }, // day number and milliseconds
    { 'T',  8 }, // clock value
    { 'm', 36 }, // calendar record of the standard library
    { 'q',  4 }, // day number and minutes
    { 's', 16 }, // words of which the last isn't used
    { 'u',  8 }, // days in a double
};
constexpr TypeSize dateSizes[] = {
    { 'A', 2 },  // packed
    { 'a', 6 },  // Settled: two bytes longer than what the conversions touch
    { 'd', 6 },  // words
    { 'l', 4 },  // decimal
};
constexpr TypeSize timeSizes[] = {
    { 'I', 2 },  // packed
    { 'i', 4 },  // bytes
    { 't', 6 },  // words
};
constexpr TypeSize numberSizes[] = {
    { 'M', 8 },  // money, which nothing converts
    { 'W', 4 },
    { 'b', 1 },
    { 'd', 8 },
    { 'f', 4 },
    { 'h', 1 },
    { 'i', 4 },
    { 'l', 4 },
    { 's', 2 },
    { 'u', 4 },
    { 'w', 2 },
};
constexpr TypeSize characterSizes[] = {
    { 'h', 1 },
};

// Sizes go by a class's column whether or not the pair is valid.
struct ClassInfo {
    char                      dataClass;
    const char*               types; // valid with the class
    std::span<const TypeSize> sizes;
    int                       otherSize; // of a type that isn't in sizes
};
constexpr ClassInfo classes[] = {
    { 'a', "DQTmqsu",     dateTimeSizes,  0 },
    { 'b', "Wbhilsuw",    numberSizes,    0 },
    { 'c', "MWbdfhilsuw", numberSizes,    0 },
    { 'd', "Aadl",        dateSizes,      0 },
    { 'h', "h",           characterSizes, 0 },
    { 'k', "T",           dateTimeSizes,  0 },
    { 'm', "s",           {},             textSize },
    { 'n', "MWbdfhilsuw", numberSizes,    0 },
    { 's', "s",           {},             textSize },
    { 't', "Iit",         timeSizes,      0 },
    { 'z', "df",          numberSizes,    0 },
};
// clang-format on

constexpr char   textClass = 's';
constexpr char   textType = 's';
constexpr size_t pairLength = 3; // "%", class, type

const ClassInfo* FindClass(char dataClass)
{
    for (const ClassInfo& info : classes) {
        if (info.dataClass == dataClass) {
            return &info;
        }
    }
    return nullptr;
}

void StoreIf(char* out, char value)
{
    if (out) {
        *out = value;
    }
}

bool IsPair(const char* text, size_t length)
{
    return length >= pairLength && text[0] == '%' && ValidClass(text[1]) && ValidType(text[1], text[2]);
}

} // namespace

int WINAPI ValidClass(char dataClass)
{
    return FindClass(dataClass) ? 1 : 0;
}

int WINAPI ValidType(char dataClass, char dataType)
{
    const ClassInfo* const info = FindClass(dataClass);
    return info && dataType && std::strchr(info->types, dataType) ? 1 : 0;
}

int WINAPI GetDataSize(char dataClass, char dataType)
{
    const ClassInfo* const info = FindClass(dataClass);
    if (!info) {
        return 0;
    }
    for (const TypeSize& row : info->sizes) {
        if (row.type == dataType) {
            return row.size;
        }
    }
    return info->otherSize;
}

char* WINAPI GetDataTypes(const char* text, char* outClass, char* outType, char* outClass2, char* outType2)
{
    // Bounded: a missing text has no length to take and no descriptor.
    const size_t length = text ? std::strlen(text) : 0;
    char* const  start = const_cast<char*>(text);
    StoreIf(outClass, textClass);
    StoreIf(outType, textType);
    // Settled: without a second pair outType2 keeps what the caller had in it.
    StoreIf(outClass2, 0);
    if (!IsPair(text, length)) {
        return start;
    }
    StoreIf(outClass, text[1]);
    StoreIf(outType, text[2]);
    if (!IsPair(text + pairLength, length - pairLength)) {
        return start + pairLength;
    }
    StoreIf(outClass2, text[pairLength + 1]);
    StoreIf(outType2, text[pairLength + 2]);
    return start + 2 * pairLength;
}
