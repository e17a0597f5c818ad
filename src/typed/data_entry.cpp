// The two dispatchers of the keyboard: what a typed character and the delete key do inside a field's text.
// The entry steps of the classes do the work.
#include "typed/data_types.h"

#include "foundation/memory.h"
#include "typed/date_time.h"
#include "typed/masks.h"
#include "typed/numbers.h"

namespace {

constexpr int wholeText = 1000; // as many characters as any field shows

// What the delete steps of masks and numbers answer; other codes ask for nothing.
enum DeleteCode : int {
    deleteNothing = 0,
    deleteRemove = 1,
    deleteStep = 2,
};

void StoreIf(int* out, int value)
{
    if (out) {
        *out = value;
    }
}

void SetCharacter(char* text, char ch)
{
    // Bounded: an empty text may have nothing behind its end.
    if (!text[0]) {
        text[1] = 0;
    }
    text[0] = ch;
}

int FilterBool(char* text, const char* format, char ch, int* outAdvance, int* outRepaint)
{
    StoreIf(outAdvance, 0);
    StoreIf(outRepaint, wholeText);
    return BoolCharFilter(text, format, ch);
}

int FilterCharacter(char* text, char ch, int* outAdvance, int* outRepaint)
{
    SetCharacter(text, ch);
    StoreIf(outAdvance, 0);
    StoreIf(outRepaint, 1);
    return 0;
}

// A digit that is one of two goes and the caret stays; elsewhere a blank takes its place and the caret steps on.
int DeleteFromDate(char* text, const char* format, bool wantDate, bool wantTime, int pos)
{
    int advance = 0;
    if (DateCharFilter(text, format, wantDate, wantTime, pos, ' ', &advance, nullptr)) {
        MessageBeep(0);
        return 0;
    }
    return advance > 0 ? 1 : 0;
}

int CarryOut(int code, char* text, int pos)
{
    switch (code) {
    case deleteNothing: MessageBeep(0); return 0;
    case deleteRemove: HRemoveChars(text, 1, pos); return 0;
    case deleteStep: return 1;
    default: return 0;
    }
}

} // namespace

int DataCharFilter(char dataClass, char, char* text, const char* format, int pos, char ch, int* outAdvance,
                   int* outRepaint)
{
    // Bounded: no text, nothing to type into.
    if (!text) {
        return 1;
    }
    switch (dataClass) {
    case 'm': return MaskCharFilter(text, format, pos, ch, outAdvance, outRepaint);
    case 'c':
    case 'n': return NumCharFilter(text, format, pos, ch, outAdvance, outRepaint);
    case 'z': return FloatCharFilter(text, format, pos, ch, outAdvance, outRepaint);
    case 'b': return FilterBool(text, format, ch, outAdvance, outRepaint);
    case 'h': return FilterCharacter(text, ch, outAdvance, outRepaint);
    case 'a':
    case 'k': return DateCharFilter(text, format, true, true, pos, ch, outAdvance, outRepaint);
    case 'd': return DateCharFilter(text, format, true, false, pos, ch, outAdvance, outRepaint);
    case 't': return DateCharFilter(text, format, false, true, pos, ch, outAdvance, outRepaint);
    default: // plain text among them, which the edit control handles itself
        return 1;
    }
}

int DataCharDelete(char dataClass, char, char* text, const char* format, int pos)
{
    // Bounded: no text, nothing to delete.
    if (!text) {
        return 0;
    }
    switch (dataClass) {
    case 'h': SetCharacter(text, ' '); return 0;
    case 's': HRemoveChars(text, 1, pos); return 0;
    case 'a':
    case 'k': return DeleteFromDate(text, format, true, true, pos);
    case 'd': return DeleteFromDate(text, format, true, false, pos);
    case 't': return DeleteFromDate(text, format, false, true, pos);
    case 'm': return CarryOut(MaskCharDelete(text, format, pos), text, pos);
    case 'c':
    case 'n': return CarryOut(NumCharDelete(text, format, pos), text, pos);
    case 'z': return CarryOut(FloatCharDelete(text, format, pos), text, pos);
    default: // booleans among them, which have nothing to delete
        return 0;
    }
}
