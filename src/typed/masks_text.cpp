// Masks: their positions, and texts laid out over them and taken out of them.
#include "typed/masks_internal.h"

#include <cctype>
#include <cstring>

namespace {

// The character classes are those of the current locale.
bool IsLetter(int ch)
{
    return std::isalpha(ch) != 0;
}

bool IsDigit(int ch)
{
    return std::isdigit(ch) != 0;
}

bool IsPunctuation(int ch)
{
    return std::ispunct(ch) != 0;
}

bool IsLetterOrDigit(int ch)
{
    return std::isalnum(ch) != 0;
}

bool IsPrintable(int ch)
{
    return std::isprint(ch) != 0;
}

struct Placeholder {
    char letter;
    bool (*fits)(int ch);
    char filler;
};
// clang-format off
constexpr Placeholder placeholders[] = {
    { '@', IsLetter,        ' ' },
    { '#', IsDigit,         '_' },
    { '!', IsPunctuation,   '-' },
    { '&', IsLetterOrDigit, ' ' },
    { '*', IsPrintable,     ' ' },
};
// clang-format on

const Placeholder* FindPlaceholder(char letter)
{
    for (const Placeholder& row : placeholders) {
        if (row.letter == letter) {
            return &row;
        }
    }
    return nullptr;
}

// Bounded: a group without its closing bracket reaches to the end of the mask.
const char* SkipGroups(const char* mask)
{
    while (*mask == '[') {
        const char* const closing = std::strchr(mask, ']');
        mask = closing ? closing + 1 : mask + std::strlen(mask);
    }
    return mask;
}

// The text that is being laid out or taken apart.
struct Conversion {
    const char* text; // the next character
    char*       out;
    int         room; // for characters, the terminator left out
    int         length;
};

void Put(Conversion* conversion, char ch)
{
    conversion->out[conversion->length++] = ch;
}

void ConsumeIf(Conversion* conversion, char ch)
{
    if (*conversion->text == ch) {
        ++conversion->text;
    }
}

void LayOutPlaceholder(Conversion* conversion, const MaskSpot& spot)
{
    while (*conversion->text && !FitsMask(spot, *conversion->text)) {
        ++conversion->text;
    }
    Put(conversion, *conversion->text ? *conversion->text++ : MaskFiller(spot));
}

// A text that holds its separators already comes out unchanged; letters and digits are never taken for separators.
void LayOutLiteral(Conversion* conversion, char literal)
{
    Put(conversion, literal);
    if (!IsLetterOrDigit(static_cast<unsigned char>(literal))) {
        ConsumeIf(conversion, literal);
    }
}

bool LayOut(Conversion* conversion, const MaskSpot& spot)
{
    if (spot.placeholder) {
        LayOutPlaceholder(conversion, spot);
    } else {
        LayOutLiteral(conversion, spot.ch);
    }
    return true;
}

// False at a character that doesn't fit, with which the text ends.
bool Strip(Conversion* conversion, const MaskSpot& spot)
{
    const char ch = *conversion->text;
    if (!spot.placeholder) {
        ConsumeIf(conversion, spot.ch);
        return true;
    }
    if (ch && !FitsMask(spot, ch)) {
        return false;
    }
    Put(conversion, ch ? *conversion->text++ : MaskFiller(spot));
    return true;
}

} // namespace

MaskSpot ReadMask(const char* mask)
{
    const char* at = SkipGroups(mask);
    const bool  escaped = *at == '\\';
    at += escaped ? 1 : 0;
    if (!*at) {
        return { true, false, 0, at };
    }
    return { false, !escaped && FindPlaceholder(*at), *at, at + 1 };
}

bool FitsMask(const MaskSpot& spot, char ch)
{
    return ch && spot.placeholder && FindPlaceholder(spot.ch)->fits(static_cast<unsigned char>(ch));
}

char MaskFiller(const MaskSpot& spot)
{
    return spot.placeholder ? FindPlaceholder(spot.ch)->filler : ' ';
}

int WINAPI MaskToString(const char* text, const char* mask, char* out, int outSize, int strip)
{
    if (!text || !out || outSize < 1) {
        return 0;
    }
    if (!mask || !*mask) {
        return _fstrnzcpy(out, text, outSize);
    }
    Conversion conversion = { text, out, outSize - 1, 0 };
    bool       goesOn = true;
    for (MaskSpot spot = ReadMask(mask); goesOn && !spot.atEnd && conversion.length < conversion.room;
         spot = ReadMask(spot.next)) {
        goesOn = strip ? Strip(&conversion, spot) : LayOut(&conversion, spot);
    }
    out[conversion.length] = 0;
    return conversion.length;
}
