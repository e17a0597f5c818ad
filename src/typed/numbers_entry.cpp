// What typed characters and the delete key do inside the text of a number.
// Classes c and n keep the picture's places while they are filled from the left; class z pushes digits through a fixed
// point, as a calculator does.
#include "typed/numbers_internal.h"

#include "foundation/memory.h"
#include "typed/data_types.h"
#include "typed/date_letters.h"
#include "typed/intl.h"

#include <cstring>

namespace {

constexpr BYTE unlimited = 255;
constexpr int  mostFraction = 64; // where the picture sets no limit
constexpr int  mostDigits = 127;

// What DataCharDelete of class n is asked for; the letter of the type doesn't matter to it.
constexpr char numberClass = 'n';
constexpr char numberType = 'd';

// One keystroke.
struct Entry {
    char*       text;
    int         length; // of the text as it came
    const char* picture;
    int         pos; // the caret stands in front of this character
    char        ch;  // the typed one
    int         advance;
    int         repaint;
};

int FindSeparator(const char* text)
{
    const char        separator = gIntl.chDecimalSep;
    const char* const found = separator ? std::strchr(text, separator) : nullptr;
    return found ? static_cast<int>(found - text) : -1;
}

bool HasSign(const char* text)
{
    return std::strchr(text, '-') != nullptr;
}

NumPicture PictureFor(const char* text, const char* picture)
{
    NumPicture parsed;
    ParseNumPicture(NumPictureOrDefault(picture), HasSign(text), true, &parsed);
    return parsed;
}

int DeleteDigit(const Entry& entry, int pos)
{
    return DataCharDelete(numberClass, numberType, entry.text, entry.picture, pos);
}

void Insert(Entry* entry)
{
    HInsertChars(entry->text, entry->ch, 1, entry->pos);
}

// A sign in front of which something is typed goes.
void DropSignAtCaret(Entry* entry)
{
    if (entry->text[entry->pos] == '-' && entry->ch != '-') {
        entry->pos += DeleteDigit(*entry, entry->pos);
    }
}

bool TakeSign(Entry* entry)
{
    if (entry->pos != 0) {
        return false;
    }
    if (entry->text[0] != '-') {
        Insert(entry);
    }
    return true;
}

// Settled: the picture is searched for the separator of the settings, not for its own point.
bool TakeFirstSeparator(Entry* entry)
{
    if (FindSeparator(NumPictureOrDefault(entry->picture)) < 0) {
        return false;
    }
    if (!entry->text[entry->pos]) {
        Insert(entry);
        return true;
    }
    // Settled: in front of other digits one of them goes, and no separator comes.
    DeleteDigit(*entry, entry->pos);
    return true;
}

// What stands between caret and separator is deleted: zeros that the picture requires stay and the caret passes them.
void DeleteToSeparator(Entry* entry)
{
    int at = entry->pos;
    int deletions = 0;
    while (at < FindSeparator(entry->text)) {
        const int step = DeleteDigit(*entry, at);
        at += step;
        entry->advance += step;
        ++deletions;
    }
    if (deletions > 0) {
        entry->repaint += deletions + static_cast<int>(std::strlen(entry->text + at));
    }
}

bool TakeSeparator(Entry* entry)
{
    const int separator = FindSeparator(entry->text);
    if (separator < 0) {
        return TakeFirstSeparator(entry);
    }
    if (separator < entry->pos) {
        return false;
    }
    DeleteToSeparator(entry);
    return true;
}

bool TakeBlank(Entry* entry)
{
    entry->advance = DeleteDigit(*entry, entry->pos);
    return true;
}

// Most digits in front of the separator and behind it.
struct Limits {
    int integer;
    int fraction;
};

Limits LimitsOf(const Entry& entry)
{
    const NumPicture picture = PictureFor(entry.text, entry.picture);
    const int        fraction = picture.cFracMax == unlimited ? mostFraction : picture.cFracMax;
    return { picture.cIntMax == unlimited ? mostDigits - fraction : picture.cIntMax, fraction };
}

bool IsIntegerFull(const Entry& entry, const Limits& limits, int digits)
{
    return digits - (HasSign(entry.text) ? 1 : 0) >= limits.integer;
}

bool TakeDigitAtEnd(Entry* entry, const Limits& limits)
{
    const int  separator = FindSeparator(entry->text);
    const bool full =
        separator < 0 ? IsIntegerFull(*entry, limits, entry->pos) : entry->pos - separator >= limits.fraction + 1;
    if (!full) {
        Insert(entry);
    }
    return !full;
}

// With the integer side full the digit goes behind the separator, and the caret with it.
bool TakeDigitAtSeparator(Entry* entry, const Limits& limits)
{
    if (!IsIntegerFull(*entry, limits, entry->pos)) {
        Insert(entry);
        return true;
    }
    if (limits.fraction == 0) {
        return false;
    }
    const int behind = entry->pos + 1;
    if (entry->text[behind]) {
        entry->text[behind] = entry->ch;
    } else {
        HInsertChars(entry->text, entry->ch, 1, behind);
    }
    entry->advance = 2;
    entry->repaint = 2;
    return true;
}

bool TakeDigit(Entry* entry)
{
    const char at = entry->text[entry->pos];
    if (IsDecimalDigit(at)) {
        entry->text[entry->pos] = entry->ch;
        return true;
    }
    const Limits limits = LimitsOf(*entry);
    if (!at) {
        return TakeDigitAtEnd(entry, limits);
    }
    return entry->pos == FindSeparator(entry->text) && TakeDigitAtSeparator(entry, limits);
}

bool TakeChar(Entry* entry)
{
    DropSignAtCaret(entry);
    if (entry->ch == '-') {
        return TakeSign(entry);
    }
    if (entry->ch == gIntl.chDecimalSep) {
        return TakeSeparator(entry);
    }
    if (entry->ch == ' ') {
        return TakeBlank(entry);
    }
    return IsDecimalDigit(entry->ch) && TakeDigit(entry);
}

// The separator changes places with the digit behind it, so that the number of digits behind it stays.
void KeepPoint(const Entry& entry, int separator)
{
    if (separator >= 0 && separator < entry.pos && entry.text[separator + 1]) {
        entry.text[separator] = entry.text[separator + 1];
        entry.text[separator + 1] = gIntl.chDecimalSep;
    }
}

// Settled: without a separator any required digit is enough for the zero to go.
bool IsZeroTooMany(const Entry& entry, int first)
{
    if (entry.text[first] != '0') {
        return false;
    }
    const NumPicture picture = PictureFor(entry.text, entry.picture);
    const int        separator = FindSeparator(entry.text);
    return separator < 0 ? picture.cIntZeros > 0 : separator - first - 1 >= picture.cIntZeros;
}

void PushDigit(Entry* entry)
{
    const int separator = FindSeparator(entry->text);
    Insert(entry);
    KeepPoint(*entry, separator);
    const int first = entry->text[0] == '-' ? 1 : 0;
    if (IsZeroTooMany(*entry, first)) {
        HRemoveChars(entry->text, 1, first);
        const int moved = FindSeparator(entry->text);
        entry->advance = moved >= 0 && moved < entry->pos ? 0 : 1;
    }
}

bool TakeCalculatorChar(Entry* entry)
{
    const char ch = entry->ch;
    if (IsDecimalDigit(ch)) {
        PushDigit(entry);
    } else if (ch == '-' && !HasSign(entry->text)) {
        HInsertChars(entry->text, ch, 1, 0);
    } else if (ch == '+' && entry->text[0] == '-') {
        DeleteDigit(*entry, 0);
    }
    return IsDecimalDigit(ch) || ch == '-' || ch == '+' || ch == '.';
}

int RunEntry(bool (*take)(Entry*), const Entry& start, int* outAdvance, int* outRepaint)
{
    Entry entry = start;
    // Bounded: a caret outside of the text has no character and no place to put one.
    const bool taken = entry.pos >= 0 && entry.pos <= entry.length && take(&entry);
    if (outAdvance) {
        *outAdvance = taken ? entry.advance : 0;
    }
    if (outRepaint) {
        *outRepaint = taken ? entry.repaint : 0;
    }
    return taken ? 0 : 1;
}

enum DeleteCode : int {
    deleteNothing = 0,
    deleteRemove = 1,
    deleteStep = 2,
    deleteDone = 3,
};

bool TakeOff(char* text, int pos)
{
    if (pos < 0) {
        return false;
    }
    HRemoveChars(text, 1, pos);
    return true;
}

// Puts the point back to its place from the end; true if a zero had to come in front.
bool RebuildFixedPoint(char* text, const NumPicture& picture)
{
    const char* const sign = std::strchr(text, '-');
    const bool        minus = TakeOff(text, sign ? static_cast<int>(sign - text) : -1);
    TakeOff(text, FindSeparator(text));
    int        digits = static_cast<int>(std::strlen(text));
    const bool padded = digits - picture.cFracZeros < picture.cIntZeros;
    if (padded) {
        HInsertChars(text, '0', 1, 0);
        ++digits;
    }
    // Settled: the plain point, whatever the separator is.
    // Bounded: in a text with too few digits it stands at the front.
    if (picture.cFracZeros != 0) {
        HInsertChars(text, '.', 1, digits > picture.cFracZeros ? digits - picture.cFracZeros : 0);
    }
    if (minus) {
        HInsertChars(text, '-', 1, 0);
    }
    return padded;
}

int FloatDeleteCode(char at)
{
    if (!at) {
        return deleteNothing;
    }
    if (at == '-') {
        return deleteRemove;
    }
    return IsDecimalDigit(at) ? deleteDone : deleteStep;
}

} // namespace

int NumCharFilter(char* text, const char* picture, int pos, char ch, int* outAdvance, int* outRepaint)
{
    const Entry start = { text, static_cast<int>(std::strlen(text)), picture, pos, ch, 1, 1 };
    return RunEntry(TakeChar, start, outAdvance, outRepaint);
}

int FloatCharFilter(char* text, const char* picture, int pos, char ch, int* outAdvance, int* outRepaint)
{
    const Entry start = { text, static_cast<int>(std::strlen(text)), picture, pos, ch, 1, 1 };
    return RunEntry(TakeCalculatorChar, start, outAdvance, outRepaint);
}

int NumCharDelete(char* text, const char* picture, int pos)
{
    const int length = static_cast<int>(std::strlen(text));
    // Bounded: outside of the text there is nothing, as at its end.
    if (pos < 0 || pos >= length) {
        return deleteNothing;
    }
    const int separator = FindSeparator(text);
    if (pos == separator) {
        return deleteStep;
    }
    if (text[pos] == '-') {
        return deleteRemove;
    }
    const NumPicture parsed = PictureFor(text, picture);
    const int        point = separator < 0 ? length : separator;
    if (pos < point ? point > parsed.cIntZeros : pos - point > parsed.cFracZeros) {
        return deleteRemove;
    }
    text[pos] = '0';
    return deleteStep;
}

int FloatCharDelete(char* text, const char* picture, int pos)
{
    const int length = static_cast<int>(std::strlen(text));
    // Bounded: outside of the text there is nothing to delete.
    if (pos < 0 || pos > length) {
        return deleteNothing;
    }
    const NumPicture parsed = PictureFor(text, picture);
    const int        code = FloatDeleteCode(text[pos]);
    if (code == deleteDone) {
        HRemoveChars(text, 1, pos);
    }
    return RebuildFixedPoint(text, parsed) ? deleteStep : code;
}
