// Numeric pictures and the entry steps of numbers; the conversions are exports.
#pragma once

#include <widgets/widgets.h>

#include <cstddef>

// Analysis of one section of a numeric picture.
struct NumPicture {
    BYTE cbTotal;     // characters of the section
    BYTE cbInt;       // characters of the integer side
    BYTE cIntDigits;  // positions of the integer side that take a digit
    BYTE cIntZeros;   // required digits of the integer side
    BYTE cIntMax;     // most digits of the integer side; 255: unlimited
    BYTE cIntLits;    // literals of the integer side
    BYTE cbFrac;      // characters of the fraction side, the point included
    BYTE cFracDigits; // positions of the fraction side that take a digit
    BYTE cFracZeros;  // required digits of the fraction side
    BYTE cFracMax;    // most digits of the fraction side; 255: unlimited
    BYTE cFracLits;   // literals of the fraction side, the point included
    WORD wFlags;      // numGrouped, numMinus
};
static_assert(sizeof(NumPicture) == 14 && offsetof(NumPicture, wFlags) == 12);

constexpr WORD numGrouped = 0x0001; // thousands are grouped
constexpr WORD numMinus = 0x0002;   // a minus sign must be printed

// Fills outPicture from the section for the sign and gives the start of that section, past any bracket group.
const char* ParseNumPicture(const char* picture, bool negative, bool editForm, NumPicture* outPicture);

// Characters of the longest text that any number has through a picture, in either form.
int LongestNumberText(const char* picture);

// Entry steps: 0 if ch was taken. Class z has its own, calculator entry.
int NumCharFilter(char* text, const char* picture, int pos, char ch, int* outAdvance, int* outRepaint);
int FloatCharFilter(char* text, const char* picture, int pos, char ch, int* outAdvance, int* outRepaint);

// Delete steps: 0 nothing to delete, 1 the caller removes the character, 2 the caret only steps, 3 done. That of class
// z may put in a zero and a point, for which the text has room.
int NumCharDelete(char* text, const char* picture, int pos);
int FloatCharDelete(char* text, const char* picture, int pos);
