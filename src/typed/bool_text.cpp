// Booleans: stored in any integer type, shown through a picture of two texts, typed by the first letter of either.
#include "typed/masks.h"

#include "foundation/memory.h"
#include "typed/date_letters.h"

#include <cstdint>
#include <cstring>

namespace {

char defaultPicture[] = "TRUE;FALSE";

const char* PictureOrDefault(const char* format)
{
    return format && *format ? format : defaultPicture;
}

// One of the two texts of a picture, which isn't terminated.
struct BoolText {
    const char* text;
    size_t      length;
};

// A picture without ";" has one text for both values.
BoolText TextOf(const char* picture, bool value)
{
    const char* const separator = std::strchr(picture, ';');
    if (!separator) {
        return { picture, std::strlen(picture) };
    }
    if (value) {
        return { picture, static_cast<size_t>(separator - picture) };
    }
    return { separator + 1, std::strlen(separator + 1) };
}

bool BeginsWith(const BoolText& text, char lower)
{
    return text.length > 0 && LowerLetter(text.text[0]) == lower;
}

bool IsSameNoCase(const char* a, const char* b, size_t length)
{
    for (size_t i = 0; i < length; ++i) {
        if (LowerLetter(a[i]) != LowerLetter(b[i])) {
            return false;
        }
    }
    return true;
}

constexpr int noValue = -1;

// The value that a typed character asks for.
int ValueFor(const char* text, const char* picture, char ch)
{
    const char lower = LowerLetter(ch);
    if (BeginsWith(TextOf(picture, true), lower)) {
        return 1;
    }
    if (BeginsWith(TextOf(picture, false), lower)) {
        return 0;
    }
    return ch == ' ' ? !BoolFromText(picture, text) : noValue;
}

// Bytes of an integer type; 0 for any other type.
int IntegerSize(char dataType)
{
    switch (dataType) {
    case 'b':
    case 'h': return 1;
    case 's':
    case 'w': return 2;
    case 'W':
    case 'i':
    case 'l':
    case 'u': return 4;
    default: return 0;
    }
}

} // namespace

int WINAPI BoolToString(int value, const char* format, char* out, int outSize)
{
    if (!out || outSize == 0) {
        return 0;
    }
    const BoolText text = TextOf(PictureOrDefault(format), value != 0);
    const int      size = static_cast<int>(text.length) + 1;
    return _fstrnzcpy(out, text.text, outSize < size ? outSize : size);
}

int BoolFromText(const char* format, const char* text)
{
    if (!text) {
        return 0;
    }
    const char* const picture = PictureOrDefault(format);
    if (!std::strchr(picture, ';')) {
        return 1;
    }
    // An empty text is true.
    const BoolText trueText = TextOf(picture, true);
    const size_t   length = std::strlen(text);
    return IsSameNoCase(text, trueText.text, length < trueText.length ? length : trueText.length) ? 1 : 0;
}

int BoolCharFilter(char* text, const char* format, char ch)
{
    if (!text) {
        return 1;
    }
    const char* const picture = PictureOrDefault(format);
    const int         value = ValueFor(text, picture, ch);
    if (value != noValue) {
        BoolToString(value, picture, text, static_cast<int>(std::strlen(picture)) + 1);
    }
    return 0;
}

int GetBoolValue(char dataType, const void* data)
{
    switch (data ? IntegerSize(dataType) : 0) {
    case 1: return LoadAs<uint8_t>(data) != 0;
    case 2: return LoadAs<uint16_t>(data) != 0;
    case 4: return LoadAs<uint32_t>(data) != 0;
    default: return 0;
    }
}

int SetBoolValue(char dataType, void* data, int value)
{
    switch (data ? IntegerSize(dataType) : 0) {
    case 1: StoreAs(data, static_cast<uint8_t>(value)); return 1;
    case 2: StoreAs(data, static_cast<uint16_t>(value)); return 1;
    case 4: StoreAs(data, static_cast<uint32_t>(value)); return 1;
    default: return 0;
    }
}
