// Exact conversion between doubles and decimal digits, on whole numbers of as many bits as it takes.
// No locale and no C runtime has a say in it.
#include "typed/numbers_internal.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace {

constexpr int      fractionBits = 52; // of a double
constexpr int      lowestExponent = -1074;
constexpr uint64_t hiddenBit = 1ull << fractionBits;

constexpr int      limbBits = 32;
constexpr int      limbs = 36; // 1024 bits in front of the point, 1074 behind it, and what scaling adds
constexpr uint32_t chunk = 1000000000;
constexpr int      chunkDigits = 9;

// A whole number, least limb first; limbs from count on don't count.
struct Whole {
    int      count;
    uint32_t limb[limbs];
};

void SetWhole(Whole* whole, uint64_t value)
{
    whole->limb[0] = static_cast<uint32_t>(value);
    whole->limb[1] = static_cast<uint32_t>(value >> limbBits);
    whole->count = whole->limb[1] ? 2 : whole->limb[0] ? 1 : 0;
}

void Trim(Whole* whole)
{
    while (whole->count > 0 && !whole->limb[whole->count - 1]) {
        --whole->count;
    }
}

// Multiplies the limbs in use and gives what no longer fits in them.
uint32_t MultiplyInPlace(Whole* whole, uint32_t factor, uint32_t carry)
{
    for (int i = 0; i < whole->count; ++i) {
        const uint64_t product = static_cast<uint64_t>(whole->limb[i]) * factor + carry;
        whole->limb[i] = static_cast<uint32_t>(product);
        carry = static_cast<uint32_t>(product >> limbBits);
    }
    return carry;
}

void MultiplyAdd(Whole* whole, uint32_t factor, uint32_t addend)
{
    const uint32_t carry = MultiplyInPlace(whole, factor, addend);
    if (carry) {
        whole->limb[whole->count++] = carry;
    }
}

// Divides by a small number and gives the remainder.
uint32_t Divide(Whole* whole, uint32_t divisor)
{
    uint64_t rest = 0;
    for (int i = whole->count - 1; i >= 0; --i) {
        rest = rest << limbBits | whole->limb[i];
        whole->limb[i] = static_cast<uint32_t>(rest / divisor);
        rest %= divisor;
    }
    Trim(whole);
    return static_cast<uint32_t>(rest);
}

void ShiftLeft(Whole* whole, int bits)
{
    const int skipped = bits / limbBits;
    const int shift = bits % limbBits;
    whole->limb[whole->count] = 0;
    for (int i = whole->count; i >= 0; --i) {
        const uint64_t low = i > 0 ? whole->limb[i - 1] : 0;
        const uint64_t both = static_cast<uint64_t>(whole->limb[i]) << limbBits | low;
        whole->limb[i + skipped] = static_cast<uint32_t>(both << shift >> limbBits);
    }
    std::memset(whole->limb, 0, static_cast<size_t>(skipped) * sizeof whole->limb[0]);
    whole->count += skipped + 1;
    Trim(whole);
}

int BitLength(const Whole& whole)
{
    return whole.count ? whole.count * limbBits - std::countl_zero(whole.limb[whole.count - 1]) : 0;
}

bool IsLess(const Whole& a, const Whole& b)
{
    if (a.count != b.count) {
        return a.count < b.count;
    }
    for (int i = a.count - 1; i >= 0; --i) {
        if (a.limb[i] != b.limb[i]) {
            return a.limb[i] < b.limb[i];
        }
    }
    return false;
}

// a isn't less than b.
void Subtract(Whole* a, const Whole& b)
{
    uint32_t borrow = 0;
    for (int i = 0; i < a->count; ++i) {
        const uint64_t taken = static_cast<uint64_t>(i < b.count ? b.limb[i] : 0) + borrow;
        borrow = a->limb[i] < taken ? 1 : 0;
        a->limb[i] = static_cast<uint32_t>(a->limb[i] - taken);
    }
    Trim(a);
}

// A double taken apart: mantissa times two to the exponent.
struct BinaryParts {
    uint64_t mantissa;
    int      exponent;
};

BinaryParts TakeApart(double value)
{
    const uint64_t bits = std::bit_cast<uint64_t>(value);
    const int      biased = static_cast<int>(bits >> fractionBits & 0x7FF);
    const uint64_t fraction = bits & (hiddenBit - 1);
    if (biased == 0) {
        return { fraction, lowestExponent };
    }
    return { fraction | hiddenBit, lowestExponent + biased - 1 };
}

// The part in front of the point.
void SetIntegerPart(Whole* whole, const BinaryParts& parts)
{
    if (parts.exponent >= 0) {
        SetWhole(whole, parts.mantissa);
        ShiftLeft(whole, parts.exponent);
        return;
    }
    SetWhole(whole, parts.exponent > -64 ? parts.mantissa >> -parts.exponent : 0);
}

// The part behind the point, as a fraction of two to the bits of all its limbs.
void SetFractionPart(Whole* whole, const BinaryParts& parts)
{
    whole->count = 0;
    if (parts.exponent >= 0) {
        return;
    }
    const int      bits = -parts.exponent;
    const uint64_t fraction = bits < 64 ? parts.mantissa & ((1ull << bits) - 1) : parts.mantissa;
    if (!fraction) {
        return;
    }
    const int count = (bits + limbBits - 1) / limbBits;
    SetWhole(whole, fraction);
    ShiftLeft(whole, count * limbBits - bits);
    // Leading zeros are part of a fraction.
    while (whole->count < count) {
        whole->limb[whole->count++] = 0;
    }
}

bool IsZero(const Whole& whole)
{
    for (int i = 0; i < whole.count; ++i) {
        if (whole.limb[i]) {
            return false;
        }
    }
    return true;
}

void PutChunk(char* at, uint32_t value)
{
    for (int i = chunkDigits - 1; i >= 0; --i) {
        at[i] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
}

void AppendInteger(DecimalDigits* out, Whole* whole)
{
    uint32_t chunks[limbs];
    int      count = 0;
    while (whole->count > 0) {
        chunks[count++] = Divide(whole, chunk);
    }
    for (int i = count - 1; i >= 0; --i) {
        PutChunk(out->szDigits + out->cDigits, chunks[i]);
        out->cDigits += chunkDigits;
    }
    int zeros = 0;
    while (zeros < out->cDigits && out->szDigits[zeros] == '0') {
        ++zeros;
    }
    out->cDigits -= zeros;
    std::memmove(out->szDigits, out->szDigits + zeros, static_cast<size_t>(out->cDigits));
    out->cInt = out->cDigits;
}

// At least wanted digits, or fewer when only zeros would follow.
void AppendFraction(DecimalDigits* out, Whole* fraction, int wanted)
{
    for (int done = 0; done < wanted && !IsZero(*fraction); done += chunkDigits) {
        PutChunk(out->szDigits + out->cDigits, MultiplyInPlace(fraction, chunk, 0));
        out->cDigits += chunkDigits;
    }
}

// All digits were nines, or there were none.
void AppendCarry(DecimalDigits* out)
{
    std::memmove(out->szDigits + 1, out->szDigits, static_cast<size_t>(out->cDigits));
    out->szDigits[0] = '1';
    ++out->cDigits;
    ++out->cInt;
}

// Cuts at a number of places; a next digit of 5 or more raises the last one that stays.
void RoundAt(DecimalDigits* out, int places)
{
    const int kept = out->cInt + places;
    if (out->cDigits <= kept) {
        return;
    }
    out->cDigits = kept;
    if (out->szDigits[kept] < '5') {
        return;
    }
    for (int i = kept - 1; i >= 0; --i) {
        if (out->szDigits[i] != '9') {
            ++out->szDigits[i];
            return;
        }
        out->szDigits[i] = '0';
    }
    AppendCarry(out);
}

void FindExponent(DecimalDigits* out)
{
    out->iExponent = out->cInt;
    if (out->cInt > 0) {
        return;
    }
    int zeros = 0;
    while (zeros < out->cDigits && out->szDigits[zeros] == '0') {
        ++zeros;
    }
    out->iExponent = zeros < out->cDigits ? -zeros : 0;
}

struct DigitCounts {
    int all;
    int behind; // the point
};

// The digits of a decimal text as one whole number, and how many there were.
DigitCounts ReadDigits(const char* text, Whole* digits)
{
    bool        point = false;
    DigitCounts counts = {};
    for (; (*text >= '0' && *text <= '9') || (*text == '.' && !point); ++text) {
        if (*text == '.') {
            point = true;
            continue;
        }
        MultiplyAdd(digits, 10, static_cast<uint32_t>(*text - '0'));
        ++counts.all;
        counts.behind += point ? 1 : 0;
    }
    return counts;
}

uint64_t ToUint64(const Whole& whole)
{
    const uint64_t low = whole.count > 0 ? whole.limb[0] : 0;
    const uint64_t high = whole.count > 1 ? whole.limb[1] : 0;
    return high << limbBits | low;
}

// The quotient of two whole numbers above 0: mantissa times two to the exponent, rounded to even at 53 bits.
BinaryParts DivideRounded(Whole* a, Whole* b)
{
    constexpr int quotientBits = 64;
    const int     scale = BitLength(*b) - BitLength(*a);
    ShiftLeft(scale > 0 ? a : b, scale > 0 ? scale : -scale);
    uint64_t quotient = 0; // the first bit stands in front of the point
    for (int i = 0; i < quotientBits; ++i) {
        const bool fits = !IsLess(*a, *b);
        if (fits) {
            Subtract(a, *b);
        }
        quotient = quotient << 1 | (fits ? 1 : 0);
        ShiftLeft(a, 1);
    }
    const int      dropped = static_cast<int>(std::bit_width(quotient)) - fractionBits - 1;
    const uint64_t half = 1ull << (dropped - 1);
    const uint64_t rest = quotient & (2 * half - 1);
    uint64_t       mantissa = quotient >> dropped;
    if (rest > half || (rest == half && (a->count > 0 || mantissa & 1))) {
        ++mantissa;
    }
    return { mantissa, dropped - (quotientBits - 1) - scale };
}

double QuotientOf(Whole* digits, int behind)
{
    constexpr double exactPowers[] = { 1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                       1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22 };
    if (digits->count == 0) {
        return 0.0;
    }
    // Two doubles that are exact have the nearest double for their quotient.
    if (BitLength(*digits) <= fractionBits + 1 && behind < static_cast<int>(std::size(exactPowers))) {
        return static_cast<double>(ToUint64(*digits)) / exactPowers[behind];
    }
    Whole divisor;
    SetWhole(&divisor, 1);
    for (int i = 0; i < behind; ++i) {
        MultiplyAdd(&divisor, 10, 0);
    }
    const BinaryParts parts = DivideRounded(digits, &divisor);
    return std::ldexp(static_cast<double>(parts.mantissa), parts.exponent);
}

} // namespace

void ToDecimalDigits(double value, int places, DecimalDigits* out)
{
    const BinaryParts parts = TakeApart(value);
    Whole             whole;
    out->minus = std::signbit(value);
    out->cDigits = 0;
    SetIntegerPart(&whole, parts);
    AppendInteger(out, &whole);
    SetFractionPart(&whole, parts);
    AppendFraction(out, &whole, places + 1);
    RoundAt(out, places);
    FindExponent(out);
}

double FromDecimalText(const char* text)
{
    const bool minus = *text == '-';
    Whole      digits;
    SetWhole(&digits, 0);
    // A sign alone, as of a half-typed number, is a plain zero.
    const DigitCounts counts = ReadDigits(minus ? text + 1 : text, &digits);
    const double      size = QuotientOf(&digits, counts.behind);
    return minus && counts.all > 0 ? -size : size;
}
