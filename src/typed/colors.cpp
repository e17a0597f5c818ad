// Colours by name or by numbers, and the colour groups in the formats of controls.
#include "typed/date_letters.h"
#include "typed/masks.h"

#include <cctype>
#include <cstring>

namespace {

// Settled: length and first letter choose the colour, whatever the word's other letters are.
struct ColorName {
    int      length;
    char     first;
    COLORREF color;
};
// clang-format off
constexpr ColorName colorNames[] = {
    { 3, 'r', 0x0000FF }, // red
    { 4, 'b', 0xFF0000 }, // blue
    { 4, 'c', 0xFFFF00 }, // cyan
    { 4, 'd', 0x7F7F00 }, // dark cyan
    { 4, 'g', 0x7F7F7F }, // grey
    { 5, 'b', 0x000000 }, // black
    { 5, 'd', 0x00007F }, // dark red
    { 5, 'g', 0x00FF00 }, // green
    { 5, 'l', 0xC0C0C0 }, // light grey
    { 5, 'o', 0x007F7F }, // olive
    { 5, 'w', 0xFFFFFF }, // white
    { 6, 'd', 0x7F0000 }, // dark blue
    { 6, 'p', 0x7F007F }, // purple
    { 6, 'y', 0x00FFFF }, // yellow
    { 7, 'd', 0x007F00 }, // dark green
    { 7, 'm', 0xFF00FF }, // magenta
};
// clang-format on

bool IsLetter(char ch)
{
    return std::isalpha(static_cast<unsigned char>(ch)) != 0;
}

// Reads a decimal number, of which the low byte counts, and steps behind what separates it from the next.
BYTE ReadComponent(const char** text)
{
    unsigned int value = 0;
    for (; IsDecimalDigit(**text); ++*text) {
        value = value * 10 + static_cast<unsigned int>(**text - '0');
    }
    while (**text && !IsDecimalDigit(**text)) {
        ++*text;
    }
    return static_cast<BYTE>(value);
}

COLORREF ReadNumbers(const char* text)
{
    const COLORREF red = ReadComponent(&text);
    const COLORREF green = ReadComponent(&text);
    const COLORREF blue = ReadComponent(&text);
    return red | green << 8 | blue << 16;
}

const ColorName* FindName(const char* text)
{
    int length = 0;
    while (IsLetter(text[length])) {
        ++length;
    }
    const char first = LowerLetter(text[0]);
    for (const ColorName& row : colorNames) {
        if (row.length == length && row.first == first) {
            return &row;
        }
    }
    return nullptr;
}

// A format that loses its groups.
struct Sections {
    COLORREF* color;
    COLORREF* negative; // may be null
    int       section;
    int       found; // the result
};

// group is terminated.
void CloseGroup(Sections* sections, const char* group)
{
    if (sections->section == 0) {
        sections->found = StringToColor(group, sections->color);
    } else if (sections->section == 1 && sections->negative && StringToColor(group, sections->negative)) {
        sections->found += 2;
    }
}

// Gives the place behind the group that begins at text; one that isn't closed reaches to the end and sets nothing.
char* TakeGroup(Sections* sections, char* text)
{
    char* const closing = std::strchr(text, ']');
    if (!closing) {
        return text + std::strlen(text);
    }
    *closing = 0;
    CloseGroup(sections, text + 1);
    return closing + 1;
}

} // namespace

int WINAPI StringToColor(const char* text, COLORREF* outColor)
{
    if (!text || !outColor) {
        return 0;
    }
    const char* const start = *text == '[' ? text + 1 : text;
    if (IsDecimalDigit(*start)) {
        *outColor = ReadNumbers(start);
        return 1;
    }
    const ColorName* const name = FindName(start);
    if (!name) {
        return 0;
    }
    *outColor = name->color;
    return 1;
}

WORD ParseColorPrefix(COLORREF* outColor, COLORREF* outNegColor, char* text)
{
    if (!text || !*text || !outColor) {
        return 0;
    }
    Sections sections = { outColor, outNegColor, 0, 0 };
    char*    out = text;
    for (char* at = text; *at;) {
        // Settled: an escape is dropped and protects nothing.
        if (*at == '\\' && (at[1] == ';' || at[1] == '[')) {
            ++at;
        }
        if (*at == '[') {
            at = TakeGroup(&sections, at);
            continue;
        }
        sections.section += *at == ';' ? 1 : 0;
        *out++ = *at++;
    }
    *out = 0;
    return static_cast<WORD>(sections.found);
}
