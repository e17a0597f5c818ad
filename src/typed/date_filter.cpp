// Decides what one typed character does inside the text of a date or time field.
// The text always shows the entry picture, but a field of one letter may show two digits, so the two are aligned first.
#include "typed/date_time.h"

#include "foundation/memory.h"
#include "typed/date_letters.h"
#include "typed/intl.h"

#include <cctype>
#include <cstring>

namespace {

// One keystroke. Indexes of the text and of the picture stay ints, since both are looked at before their start.
struct Entry {
    char*       text;
    int         length; // of the text
    int         pos;    // the caret stands in front of this character
    char        ch;     // the typed one
    const char* picture;
    int         at;     // the place in the picture that shows at the caret
    int         walked; // the place in the text that the alignment came to: pos, or one behind it
    int         advance;
    int         repaint;
};

bool IsPunctuation(char ch)
{
    return std::ispunct(static_cast<unsigned char>(ch)) != 0;
}

bool IsLetter(char ch)
{
    return std::isalpha(static_cast<unsigned char>(ch)) != 0;
}

bool IsSeparator(char ch)
{
    return ch == gIntl.chDateSep || ch == gIntl.chTimeSep;
}

// Bounded: in front of the text and behind its end stands nothing.
char TextAt(const Entry& entry, int index)
{
    return index >= 0 && index < entry.length ? entry.text[index] : '\0';
}

// Bounded: in front of the picture stands nothing. The place in it never passes its end.
char PictureAt(const Entry& entry, int index)
{
    return index >= 0 ? entry.picture[index] : '\0';
}

char Under(const Entry& entry)
{
    return TextAt(entry, entry.pos);
}

char Here(const Entry& entry)
{
    return PictureAt(entry, entry.at);
}

int BehindBracket(const char* picture, int at)
{
    const char* const closing = std::strchr(picture + at, ']');
    return closing ? static_cast<int>(closing - picture) + 1 : static_cast<int>(std::strlen(picture));
}

// Where a default format spells a separator, it stands for itself. A blank is dealt with as one.
bool IsSeparatorOfPicture(char ch)
{
    return ch == '/' || ch == ':' || (ch && ch != ' ' && IsSeparator(ch));
}

// One place of the text, and what the picture has for it.
void AlignStep(Entry* entry)
{
    const char under = TextAt(*entry, entry->walked);
    const char here = Here(*entry);
    int        next = entry->at + 1;
    if (IsSeparatorOfPicture(here)) {
        entry->walked += IsSeparator(under) ? 0 : 1; // the field in front of it had two digits
    }
    switch (here) {
    case ' ':
        next -= under != ' ' ? 1 : 0; // the field in front of it isn't over
        break;
    case '[': next = BehindBracket(entry->picture, entry->at); break;
    case '\\': next += entry->picture[next] ? 1 : 0; break;
    default: break;
    }
    entry->at = next;
    ++entry->walked;
}

void Align(Entry* entry)
{
    while (entry->walked < entry->pos && Here(*entry)) {
        AlignStep(entry);
    }
}

// A d, m or h without its like beside it: a field that shows one digit or two.
bool IsOneLetterField(const Entry& entry, int index)
{
    const char letter = PictureAt(entry, index);
    if (letter != 'd' && letter != 'm' && letter != 'h') {
        return false;
    }
    return PictureAt(entry, index - 1) != letter && PictureAt(entry, index + 1) != letter;
}

// The digit under the caret is one of the two of a field of one letter.
bool IsOneOfTwoDigits(const Entry& entry)
{
    const bool inField = IsOneLetterField(entry, entry.at) || IsOneLetterField(entry, entry.at - 1);
    const bool besideDigit =
        IsDecimalDigit(TextAt(entry, entry.pos + 1)) || IsDecimalDigit(TextAt(entry, entry.pos - 1));
    return inField && besideDigit && IsDecimalDigit(Under(entry));
}

// The caret stands behind the sole digit of a field of one letter.
bool CanGrow(const Entry& entry)
{
    return entry.walked > 0 && !IsDecimalDigit(Under(entry)) && IsOneLetterField(entry, entry.at - 1) &&
           (entry.pos == 1 || !IsDecimalDigit(TextAt(entry, entry.pos - 2)));
}

// What the picture has for the character under the caret. Behind a second digit the alignment is one place ahead.
char PlaceUnder(const Entry& entry)
{
    return entry.walked > entry.pos ? PictureAt(entry, entry.at - 1) : Here(entry);
}

// A blank between fields, be it the picture's own or a separator that the settings make a blank.
bool IsPictureBlank(const Entry& entry)
{
    const char place = PlaceUnder(entry);
    return place == ' ' || (place == '/' && gIntl.chDateSep == ' ') || (place == ':' && gIntl.chTimeSep == ' ');
}

bool Take(Entry* entry, int advance, int repaint)
{
    entry->advance = advance;
    entry->repaint = repaint;
    return true;
}

bool Overwrite(Entry* entry)
{
    entry->text[entry->pos] = entry->ch;
    return Take(entry, 1, 1);
}

bool Insert(Entry* entry)
{
    HInsertChars(entry->text, entry->ch, 1, entry->pos);
    return Take(entry, 1, entry->length + 1 - entry->pos);
}

// The place that the last character leaves is painted, too.
bool Remove(Entry* entry)
{
    HRemoveChars(entry->text, 1, entry->pos);
    return Take(entry, 0, entry->length - entry->pos);
}

// Bounded: behind the last character there is no place, so a digit for it is refused.
bool OverwriteBehind(Entry* entry)
{
    const char behind = TextAt(*entry, entry->pos + 1);
    if (!behind || IsLetter(behind)) {
        return false;
    }
    entry->text[entry->pos + 1] = entry->ch;
    return Take(entry, 2, 2);
}

bool JumpToField(Entry* entry)
{
    if (IsPunctuation(Under(*entry)) || IsPictureBlank(*entry)) {
        return Take(entry, 1, 1);
    }
    for (int i = entry->pos + 1; i < entry->length; ++i) {
        if (IsPunctuation(entry->text[i])) {
            return Take(entry, i + 1 - entry->pos, 1);
        }
    }
    return false;
}

bool TakeBlank(Entry* entry)
{
    if (IsOneOfTwoDigits(*entry)) {
        return Remove(entry);
    }
    return IsDecimalDigit(Under(*entry)) ? Overwrite(entry) : Take(entry, 1, 1);
}

bool TakeDigit(Entry* entry)
{
    const char under = Under(*entry);
    if (IsDecimalDigit(under)) {
        return Overwrite(entry);
    }
    if (CanGrow(*entry)) {
        return Insert(entry);
    }
    if (IsPunctuation(under) || IsPictureBlank(*entry)) {
        return OverwriteBehind(entry);
    }
    return under == ' ' && Overwrite(entry);
}

bool TakeLetter(Entry* entry)
{
    const char here = Here(*entry);
    return here != 0 && std::strchr("apAP", here) && Overwrite(entry);
}

bool TakeChar(Entry* entry)
{
    const char ch = entry->ch;
    if (!Under(*entry)) {
        return IsDecimalDigit(ch) && CanGrow(*entry) && Insert(entry);
    }
    if (IsPunctuation(ch)) {
        return JumpToField(entry);
    }
    if (ch == ' ') {
        return TakeBlank(entry);
    }
    if (IsDecimalDigit(ch)) {
        return TakeDigit(entry);
    }
    return IsLetter(ch) && TakeLetter(entry);
}

void StoreIf(int* out, int value)
{
    if (out) {
        *out = value;
    }
}

} // namespace

int DateCharFilter(char* text, const char* format, bool wantDate, bool wantTime, int pos, char ch, int* outAdvance,
                   int* outRepaint)
{
    Entry entry = { text, static_cast<int>(std::strlen(text)), pos, ch, gScratch, 0, 0, 0, 0 };
    bool  taken = false;
    // Bounded: a caret outside of the text has no character and no place to put one.
    if (pos >= 0 && pos <= entry.length) {
        NormalizeDateFormat(format, wantDate, wantTime, gScratch);
        Align(&entry);
        taken = TakeChar(&entry);
    }
    StoreIf(outAdvance, entry.advance);
    StoreIf(outRepaint, entry.repaint);
    return taken ? 0 : 1;
}
