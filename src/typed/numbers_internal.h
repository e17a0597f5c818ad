// What the sources of numbers share: exact decimal digits of a double, and the double nearest to a decimal text.
#pragma once

#include "typed/numbers.h"

constexpr char defaultNumPicture[] = "*0.*";

// The picture that counts where the caller gives none.
inline const char* NumPictureOrDefault(const char* picture)
{
    return picture && *picture ? picture : defaultNumPicture;
}

constexpr int maxFractionDigits = 254;

// A double in decimal, cut to a number of places behind the point. No point stands in the digits.
struct DecimalDigits {
    bool minus;
    int  cInt;      // digits in front of the point, the first of them not 0
    int  cDigits;   // digits in all
    int  iExponent; // cInt, or less the zeros behind the point when cInt is 0; 0 for zero itself
    char szDigits[640];
};

// Exact, with halves rounded away from zero; value is finite, and places at most maxFractionDigits.
void ToDecimalDigits(double value, int places, DecimalDigits* out);

// Reads an optional '-', digits and an optional '.' with digits, up to the first character that doesn't belong there.
// The nearest double; 0.0 without a digit, whatever the sign. Up to 127 characters.
double FromDecimalText(const char* text);
