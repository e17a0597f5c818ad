// Prints a number through a numeric picture: the digits are exact, their layout is the picture's.
#include "typed/numbers_internal.h"

#include "typed/intl.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <iterator>

namespace {

constexpr BYTE   unlimited = 255;
constexpr int    unlimitedPlaces = 64;
constexpr double tiny = 1e-15; // a value nearer to zero isn't cut to the picture's places
constexpr int    longestInteger = 19;
constexpr int    mostLeadingZeros = 14;
constexpr int    groupLength = 3;
constexpr int    shownDigits = 5;        // of a number in scientific form
constexpr int    longestScientific = 12; // -1.2345e-308

// A number between its analysis and its text.
struct Layout {
    const char*    section; // of the picture
    NumPicture     picture;
    DecimalDigits* digits;
    int            fracCount; // digits behind the point without the trailing zeros
    int            intWidth;
    int            total;
    bool           editForm;
};

// One side of a picture on its way to the text. The integer side is walked from its end, leftward.
struct Walk {
    const char* picture;
    int         pictureAt; // the next character of the side
    int         pictureLeft;
    const char* digits;
    int         digitAt; // the next digit
    int         digitsLeft;
    int         positionsLeft;
    int         zerosLeft;
    int         literalsLeft;
    bool        grouped;
    int         written; // digits and required zeros
    char*       out;
    int         outAt; // the next place
    int         step;  // 1 or -1
};

void Put(Walk* walk, char ch)
{
    walk->out[walk->outAt] = ch;
    walk->outAt += walk->step;
}

// Counts a digit that was written, and separates it from the next group.
void EndDigit(Walk* walk)
{
    ++walk->written;
    if (walk->grouped && walk->written % groupLength == 0 && (walk->digitsLeft > 0 || walk->zerosLeft > 0)) {
        Put(walk, gIntl.chThousandSep);
    }
}

void PutDigit(Walk* walk)
{
    Put(walk, walk->digits[walk->digitAt]);
    walk->digitAt += walk->step;
    --walk->digitsLeft;
}

void PutOptional(Walk* walk)
{
    if (walk->digitsLeft == 0) {
        return;
    }
    PutDigit(walk);
    --walk->positionsLeft;
    walk->zerosLeft -= walk->zerosLeft > 0 ? 1 : 0;
    EndDigit(walk);
}

void PutRequired(Walk* walk)
{
    if (walk->digitsLeft == 0 && walk->zerosLeft > 0) {
        Put(walk, '0');
        --walk->zerosLeft;
        EndDigit(walk);
    }
    PutOptional(walk);
}

void PutLiteral(Walk* walk, char ch)
{
    if (walk->literalsLeft > 0) {
        Put(walk, ch);
        --walk->literalsLeft;
    }
}

char NextOfPicture(Walk* walk)
{
    const char ch = walk->picture[walk->pictureAt];
    walk->pictureAt += walk->step;
    --walk->pictureLeft;
    return ch;
}

void PutByPicture(Walk* walk)
{
    const char ch = NextOfPicture(walk);
    switch (ch) {
    case '#':
    case '*': PutOptional(walk); break;
    case '0': PutRequired(walk); break;
    case ',': break;
    case '.': PutLiteral(walk, gIntl.chDecimalSep); break;
    default: PutLiteral(walk, ch); break;
    }
}

// Settled: once the digits are out, a "0" or "." of the picture is a literal like any other.
void PutRestOfPicture(Walk* walk)
{
    while (walk->literalsLeft > 0 && walk->pictureLeft > 0) {
        const char ch = NextOfPicture(walk);
        if (ch != '#' && ch != '*' && ch != ',') {
            PutLiteral(walk, ch);
        }
    }
}

void WalkSide(Walk* walk)
{
    while (walk->pictureLeft > 0 && ((walk->digitsLeft > 0 && walk->positionsLeft > 0) || walk->zerosLeft > 0)) {
        PutByPicture(walk);
    }
    while (walk->digitsLeft > 0) {
        PutDigit(walk);
        EndDigit(walk);
    }
    PutRestOfPicture(walk);
}

int CountPlaces(double value, const NumPicture& picture)
{
    return (value > -tiny && value < tiny) || picture.cFracMax == unlimited ? unlimitedPlaces : picture.cFracMax;
}

// Trailing zeros behind the point don't count.
int CountFraction(const DecimalDigits& digits)
{
    int count = digits.cDigits - digits.cInt;
    while (count > 0 && digits.szDigits[digits.cInt + count - 1] == '0') {
        --count;
    }
    return count;
}

void Measure(Layout* layout)
{
    NumPicture* const picture = &layout->picture;
    const int         intDigits = std::max<int>(layout->digits->cInt, picture->cIntZeros);
    layout->fracCount = CountFraction(*layout->digits);
    // A whole number doesn't end in a bare separator.
    if (layout->fracCount == 0 && picture->cFracZeros == 0 && picture->cFracLits == 1) {
        picture->cFracLits = 0;
    }
    layout->intWidth = intDigits + (picture->wFlags & numMinus ? 1 : 0);
    layout->total = std::max<int>(layout->fracCount, picture->cFracZeros);
    if (!layout->editForm) {
        layout->intWidth += picture->cIntLits;
        layout->intWidth += picture->wFlags & numGrouped ? (intDigits - 1) / groupLength : 0;
        layout->total += picture->cFracLits;
    }
    layout->total += layout->intWidth;
}

// In edit form the only literal is the separator.
int CountFractionLiterals(const Layout& layout)
{
    return layout.editForm ? std::min<int>(layout.picture.cFracLits, 1) : layout.picture.cFracLits;
}

// Settled: the width doesn't count the separator of the edit form, which needs its place all the same.
int CountTextLength(const Layout& layout)
{
    return layout.total + (layout.editForm ? CountFractionLiterals(layout) : 0);
}

void PrintInteger(const Layout& layout, char* out)
{
    const NumPicture& picture = layout.picture;
    Walk              walk = {};
    walk.picture = layout.section;
    walk.pictureAt = picture.cbInt - 1;
    walk.pictureLeft = picture.cbInt;
    walk.digits = layout.digits->szDigits;
    walk.digitAt = layout.digits->cInt - 1;
    walk.digitsLeft = layout.digits->cInt;
    walk.positionsLeft = picture.cIntDigits;
    walk.zerosLeft = picture.cIntZeros;
    walk.literalsLeft = layout.editForm ? 0 : picture.cIntLits;
    walk.grouped = !layout.editForm && picture.wFlags & numGrouped;
    walk.out = out;
    walk.outAt = layout.intWidth - 1;
    walk.step = -1;
    WalkSide(&walk);
    if (picture.wFlags & numMinus) {
        Put(&walk, '-');
    }
}

void PrintFraction(const Layout& layout, char* out)
{
    const NumPicture& picture = layout.picture;
    Walk              walk = {};
    walk.picture = layout.section;
    walk.pictureAt = picture.cbInt;
    walk.pictureLeft = picture.cbFrac;
    walk.digits = layout.digits->szDigits;
    walk.digitAt = layout.digits->cInt;
    walk.digitsLeft = layout.fracCount;
    walk.positionsLeft = picture.cFracDigits;
    walk.zerosLeft = picture.cFracZeros;
    walk.literalsLeft = CountFractionLiterals(layout);
    walk.out = out;
    walk.outAt = layout.intWidth;
    walk.step = 1;
    WalkSide(&walk);
    out[walk.outAt] = 0;
}

int FillOverflow(char* out, int outSize)
{
    std::memset(out, '#', static_cast<size_t>(outSize) - 1);
    out[outSize - 1] = 0;
    return 0;
}

// The first digit, four more without rounding, and the power of ten; cut where out ends.
int PrintScientific(const DecimalDigits& digits, char* out, int outSize)
{
    char      shown[shownDigits];
    const int first = digits.iExponent < 0 ? -digits.iExponent : 0;
    for (int i = 0; i < shownDigits; ++i) {
        // Bounded: behind the last digit there are zeros.
        shown[i] = first + i < digits.cDigits ? digits.szDigits[first + i] : '0';
    }
    char text[32];
    int  length = 0;
    if (digits.minus) {
        text[length++] = '-';
    }
    text[length++] = shown[0];
    text[length++] = gIntl.chDecimalSep;
    std::memcpy(text + length, shown + 1, shownDigits - 1);
    length += shownDigits - 1;
    text[length++] = 'e';
    length = static_cast<int>(std::to_chars(text + length, std::end(text), digits.iExponent - 1).ptr - text);
    const int fitting = std::min(length, outSize - 1);
    std::memcpy(out, text, static_cast<size_t>(fitting));
    out[fitting] = 0;
    return fitting;
}

// What Measure gives for the most digits that a number can have on each side.
int LongestOfSection(const char* picture, bool negative)
{
    NumPicture section;
    ParseNumPicture(picture, negative, false, &section);
    const int places = section.cFracMax == unlimited ? unlimitedPlaces : section.cFracMax;
    const int intDigits = std::max<int>(longestInteger, section.cIntZeros);
    const int separators = section.wFlags & numGrouped ? (intDigits - 1) / groupLength : 0;
    const int minus = 1; // in edit form a section that spells the sign has the minus instead
    return minus + section.cIntLits + intDigits + separators + section.cFracLits +
           std::max<int>(places, section.cFracZeros);
}

} // namespace

int LongestNumberText(const char* picture)
{
    const char* const sections = NumPictureOrDefault(picture);
    return std::max({ longestScientific, LongestOfSection(sections, false), LongestOfSection(sections, true) });
}

int WINAPI DoubleToString(double value, const char* picture, char* out, int outSize, int editForm)
{
    if (!out || outSize < 2) {
        return 0;
    }
    // Bounded: a value without digits shows as one that doesn't fit.
    if (!std::isfinite(value)) {
        return FillOverflow(out, outSize);
    }
    DecimalDigits digits;
    Layout        layout = {};
    layout.section = ParseNumPicture(NumPictureOrDefault(picture), value < 0.0, editForm != 0, &layout.picture);
    layout.digits = &digits;
    layout.editForm = editForm != 0;
    if (layout.editForm && value < 0.0) {
        layout.picture.wFlags |= numMinus;
    }
    // Bounded: a separator that is no character would end the text.
    if (!gIntl.chThousandSep) {
        layout.picture.wFlags &= static_cast<WORD>(~numGrouped);
    }
    ToDecimalDigits(value, CountPlaces(value, layout.picture), &digits);
    if (digits.iExponent > longestInteger || digits.iExponent < -mostLeadingZeros) {
        return PrintScientific(digits, out, outSize);
    }
    Measure(&layout);
    if (outSize <= CountTextLength(layout)) {
        return FillOverflow(out, outSize);
    }
    PrintInteger(layout, out);
    PrintFraction(layout, out);
    return layout.total;
}
