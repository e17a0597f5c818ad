// The analysis of one section of a numeric picture.
#include "typed/numbers.h"

#include <cstring>

namespace {

constexpr BYTE unlimited = 255;
constexpr int  longestSection = 255; // its length is one byte of the analysis

void CountMost(BYTE* most)
{
    if (*most != unlimited) {
        ++*most;
    }
}

void CountInteger(NumPicture* picture, char ch, bool editForm)
{
    switch (ch) {
    case '#':
        ++picture->cIntDigits;
        CountMost(&picture->cIntMax);
        break;
    case '*':
        ++picture->cIntDigits;
        picture->cIntMax = unlimited;
        break;
    case ',': picture->wFlags |= numGrouped; break;
    case '0':
        // An edited value has no leading zeros, so one is enough.
        if (!editForm || picture->cIntZeros == 0) {
            ++picture->cIntDigits;
            ++picture->cIntZeros;
        }
        CountMost(&picture->cIntMax);
        break;
    default: ++picture->cIntLits; break;
    }
}

void CountFraction(NumPicture* picture, char ch)
{
    switch (ch) {
    case '#':
        ++picture->cFracDigits;
        CountMost(&picture->cFracMax);
        break;
    case '*':
        ++picture->cFracDigits;
        picture->cFracMax = unlimited;
        break;
    case '0':
        ++picture->cFracDigits;
        ++picture->cFracZeros;
        CountMost(&picture->cFracMax);
        break;
    default: ++picture->cFracLits; break;
    }
}

const char* FindSection(const char* picture, bool negative, NumPicture* outPicture)
{
    if (!negative) {
        return picture;
    }
    // A section of its own spells the sign of negative values.
    const char* const separator = std::strchr(picture, ';');
    if (!separator) {
        outPicture->wFlags = numMinus;
        return picture;
    }
    return separator + 1;
}

const char* SkipBracket(const char* section)
{
    const char* const closing = *section == '[' ? std::strchr(section, ']') : nullptr;
    return closing ? closing + 1 : section;
}

} // namespace

const char* ParseNumPicture(const char* picture, bool negative, bool editForm, NumPicture* outPicture)
{
    *outPicture = {};
    const char* const section = SkipBracket(FindSection(picture, negative, outPicture));
    // Bounded: a section longer than its counters is cut.
    int length = 0;
    for (; length < longestSection && !std::strchr(";.", section[length]); ++length) {
        CountInteger(outPicture, section[length], editForm);
    }
    const int point = length;
    if (section[point] == '.') {
        for (; length < longestSection && !std::strchr(";", section[length]); ++length) {
            CountFraction(outPicture, section[length]);
        }
    }
    outPicture->cbInt = static_cast<BYTE>(point);
    outPicture->cbFrac = static_cast<BYTE>(length - point);
    outPicture->cbTotal = static_cast<BYTE>(length);
    return section;
}
