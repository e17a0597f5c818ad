// A typed character in an edit control: what the class of the value makes of it.
#include "edit/edit_internal.h"
#include "foundation/memory.h"
#include "typed/data_types.h"
#include "typed/date_time.h"
#include "typed/masks.h"

#include <cctype>
#include <cstring>

namespace {

constexpr char backspace = 8;
constexpr char tab = 9;
constexpr char returnKey = 13;
constexpr char escape = 27;

constexpr int growth = 32;       // characters by which a text without a limit grows
constexpr int roomForEntry = 8;  // characters that an entry step may put in
constexpr int dateSize = 11;     // of a stamped date, with its end
constexpr int dateTimeSize = 17; // of a stamped date and time

// What an entry step answered.
struct Entered {
    int  refused; // 0: the character was taken
    int  advance;
    int  repaint;
    bool stamped; // the whole text is another one
};

bool IsDropped(char ch)
{
    const int code = static_cast<unsigned char>(ch);
    return code <= 127 && !std::isprint(code) && ch != backspace;
}

bool TakesNothing(HEditCtl* ctl, char ch)
{
    if (HasFlag(ctl, HEF_SKIPCHAR)) {
        SetFlag(ctl, HEF_SKIPCHAR, false);
        return true;
    }
    return ch == tab || ch == returnKey || ch == escape || HasStyle(ctl, HES_READONLY) || !ctl->pszText;
}

char InCase(const HEditCtl* ctl, char ch)
{
    const int code = static_cast<unsigned char>(ch);
    if (HasStyle(ctl, HES_UPPERCASE)) {
        return static_cast<char>(std::toupper(code));
    }
    return HasStyle(ctl, HES_LOWERCASE) ? static_cast<char>(std::tolower(code)) : ch;
}

// The selection makes place for the character. false: the entry ends here.
bool DropSelection(HEditCtl* ctl)
{
    const TextRange selection = SelectionOf(ctl);
    if (selection.lo == selection.hi) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    SetFlag(ctl, HEF_REPLACING, true);
    {
        const UpdatingScope updating(hwnd);
        DeleteSelection(ctl, false);
    }
    return IsEntering(ctl, hwnd);
}

void DeleteBackwards(HEditCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const int  caret = SelectionOf(ctl).lo;
    if (caret == 0) {
        return;
    }
    SetSelection(ctl, 0, caret - 1, caret - 1);
    if (IsEntering(ctl, hwnd)) {
        DeleteChar(ctl, ctl->cClass == 'z');
    }
}

bool IsStampedDate(const HEditCtl* ctl)
{
    return ctl->cClass == 'd' && ctl->cType == 'd';
}
bool IsStampedDateTime(const HEditCtl* ctl)
{
    return ctl->cClass == 'a' && ctl->cType == 's';
}

// The order of the default date format, in which every date is read, whatever the field's own format shows. A field
// that shows a part of a date only reads no more than that, so it gets its entry form.
void StampDate(HEditCtl* ctl, const DateTimeRec& today)
{
    DateTimeRec back = {};
    FormatDateTime(&today, nullptr, ctl->pszText, dateSize, false, true, false);
    ParseDateTime(&back, ctl->pszText, FormatOf(ctl), true, false);
    if (std::memcmp(&back, &today, sizeof back) != 0) {
        FormatDateTime(&today, FormatOf(ctl), ctl->pszText, dateSize, true, true, false);
    }
}

// Settled: the low style word is the answer, so only a field without any style bit takes its own stamp.
Entered Stamp(HEditCtl* ctl)
{
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    DateTimeRec rec = {};
    rec.year = static_cast<short>(now.wYear);
    rec.month = static_cast<BYTE>(now.wMonth);
    rec.day = static_cast<BYTE>(now.wDay);
    if (IsStampedDate(ctl)) {
        StampDate(ctl, rec);
    } else {
        rec.hour = static_cast<BYTE>(now.wHour);
        rec.minute = static_cast<BYTE>(now.wMinute);
        rec.second = static_cast<BYTE>(now.wSecond);
        rec.msec = now.wMilliseconds;
        FormatDateTime(&rec, FormatOf(ctl), ctl->pszText, dateTimeSize, true, true, true);
    }
    return { LOWORD(ctl->dwStyle), 0, 0, true };
}

// The entry steps of masks and dates write between the literals and separators of a text, so one that was cleared is
// laid out anew for them.
void LayOut(HEditCtl* ctl)
{
    if (ctl->cClass == 'm') {
        MaskToString("", FormatOf(ctl), ctl->pszText, ctl->cbText, 0);
    } else if (IsDateClass(ctl->cClass) || ctl->cClass == 'k') {
        ShowBlankForm(ctl);
    }
}

Entered Enter(HEditCtl* ctl, char ch)
{
    Entered entered = { 1, 0, 0, false };
    if (ctl->cClass == 's') {
        entered.refused = PlainCharInsert(ctl, ch, &entered.advance, &entered.repaint);
        return entered;
    }
    // Bounded: entry steps don't know the size of the text, so it grows ahead of them.
    if (!GrowText(ctl, TextLength(ctl) + roomForEntry)) {
        return entered;
    }
    if (ch == ' ' && (IsStampedDate(ctl) || IsStampedDateTime(ctl))) {
        return Stamp(ctl);
    }
    const bool wasEmpty = !*ctl->pszText;
    if (wasEmpty) {
        LayOut(ctl);
    }
    entered.refused = DataCharFilter(ctl->cClass, ctl->cType, ctl->pszText, FormatOf(ctl), SelectionOf(ctl).lo, ch,
                                     &entered.advance, &entered.repaint);
    if (wasEmpty && entered.refused) {
        *ctl->pszText = 0; // so that a value which is null by it stays null
    }
    entered.repaint = wasEmpty ? TextLength(ctl) : entered.repaint;
    return entered;
}

// The text of a truth value is written anew from what it stands for.
void ShowTruth(HEditCtl* ctl)
{
    const int value = BoolFromText(FormatOf(ctl), ctl->pszText);
    int       negative = 0;
    FormatData(&value, 'b', 'w', FormatOf(ctl), ctl->pszText, ctl->cbText, &negative, 0);
    SetFlag(ctl, HEF_NEGATIVE, negative != 0);
    UpdateScrollRange(ctl);
    InvalidateRect(ctl->hWnd, nullptr, TRUE);
    SetSelection(ctl, 0, 0, 0);
}

void ShowEntered(HEditCtl* ctl, const Entered& entered)
{
    const int caret = SelectionOf(ctl).lo;
    const int next = caret + entered.advance;
    const FieldDC sharedByMeasures(ctl);
    UpdateScrollRange(ctl);
    InvalidateTyped(ctl, caret, entered.repaint);
    if (HasFlag(ctl, HEF_RIGHT) || entered.advance < 0) {
        SetSelection(ctl, 0, next, next);
    } else {
        MoveSelection(ctl, 0, next, next); // all behind the caret is repainted already
    }
}

void Accept(HEditCtl* ctl, const Entered& entered)
{
    const HWND hwnd = ctl->hWnd;
    if (!TellEntry(ctl, HEN_UPDATE) || !ctl->pszText) {
        return;
    }
    if (ctl->cClass == 'b') {
        ShowTruth(ctl);
    } else {
        ShowEntered(ctl, entered);
    }
    if (IsEntering(ctl, hwnd)) {
        SetFlag(ctl, HEF_DIRTY, true);
        Tell(ctl, HEN_CHANGE);
    }
}

void ShowWhole(HEditCtl* ctl)
{
    UpdateScrollRange(ctl);
    InvalidateRect(ctl->hWnd, nullptr, TRUE);
    PlaceCaret(ctl, ctl->nCaret);
}

// A character that is refused may have cost a number its sign all the same.
void EnterAndShow(HEditCtl* ctl, char ch)
{
    const HWND    hwnd = ctl->hWnd;
    const int     length = TextLength(ctl);
    const Entered entered = Enter(ctl, ch);
    if (!IsEntering(ctl, hwnd)) {
        return;
    }
    if (entered.stamped || (entered.refused && TextLength(ctl) != length)) {
        ShowWhole(ctl);
    }
    if (entered.refused) {
        MessageBeep(0);
        return;
    }
    Accept(ctl, entered);
}

bool IsOverwriting(const HEditCtl* ctl)
{
    return GetOverwriteMode() && !HasFlag(ctl, HEF_REPLACING);
}

// Room for one character more in a full text. The parent hears of one that must not grow.
bool MakeRoom(HEditCtl* ctl)
{
    if (HasFlag(ctl, HEF_LIMITED)) {
        Tell(ctl, HEN_MAXTEXT);
        return false;
    }
    const int characters = ctl->cchMax + growth;
    if (!ResizeBuffers(ctl, characters + 1, ctl->pData)) {
        return false;
    }
    ctl->cchMax = characters;
    return true;
}

bool IsTooWide(HEditCtl* ctl)
{
    const ShownText shown(ctl);
    return ReachesWidth(ctl, shown.text, ctl->rcText.right - ctl->rcText.left);
}

// Puts the character in, or over the one at the caret, unless a field that cannot scroll gets too full by it.
bool PutCharacter(HEditCtl* ctl, char ch, int caret, bool over)
{
    char* const text = ctl->pszText;
    const char  old = text[caret];
    if (over) {
        text[caret] = ch;
    } else {
        HInsertChars(text, ch, 1, caret);
    }
    if (CanScroll(ctl) || !IsTooWide(ctl)) {
        return true;
    }
    if (over) {
        text[caret] = old;
    } else {
        HRemoveChars(text, 1, caret);
    }
    return false;
}

// Characters that no field takes are dropped before the selection makes place for them: Ctrl+Z brings one along.
bool IsTaken(HEditCtl* ctl, char ch)
{
    return !TakesNothing(ctl, ch) && !IsDropped(ch);
}

// All that a typed character does.
void EnterChar(HEditCtl* ctl, const char* entered)
{
    const HWND hwnd = ctl->hWnd;
    if (DropSelection(ctl)) {
        const char typed = InCase(ctl, *entered);
        if (typed == backspace) {
            DeleteBackwards(ctl);
        } else {
            EnterAndShow(ctl, typed);
        }
    }
    if (IsWindow(hwnd)) {
        SetFlag(ctl, HEF_REPLACING, false);
    }
}

// All that a pasted text does.
void EnterText(HEditCtl* ctl, const char* text)
{
    const HWND hwnd = ctl->hWnd;
    DeleteSelection(ctl, false);
    if (!IsEntering(ctl, hwnd)) {
        return;
    }
    const RedrawScope noRedraw(ctl);
    const FieldDC     sharedByMeasures(ctl);
    for (const char* ch = text; *ch && IsEntering(ctl, hwnd); ++ch) {
        if (IsTaken(ctl, *ch)) {
            EnterChar(ctl, ch);
        }
    }
}

} // namespace

int PlainCharInsert(HEditCtl* ctl, char ch, int* outAdvance, int* outRepaint)
{
    *outAdvance = 0;
    *outRepaint = 0;
    const int  length = TextLength(ctl);
    const int  caret = SelectionOf(ctl).lo;
    const bool over = IsOverwriting(ctl) && caret < length;
    if (length >= ctl->cchMax && !over && !MakeRoom(ctl)) {
        return 1;
    }
    if (!PutCharacter(ctl, ch, caret, over)) {
        return 1;
    }
    *outAdvance = 1;
    *outRepaint = 1;
    return 0;
}

void CharInput(HEditCtl* ctl, char ch)
{
    if (IsTaken(ctl, ch)) {
        const EntryScope entry(ctl, EnterChar, &ch);
        EnterChar(ctl, &ch);
    }
}

// A read-only field would lose its selection and take nothing in its place, so nothing happens to it.
void ReplaceSelection(HEditCtl* ctl, const char* text)
{
    char* const copy = HasStyle(ctl, HES_READONLY) ? nullptr : hstrdup(text);
    if (!copy) {
        return;
    }
    const HWND hwnd = ctl->hWnd;
    {
        const EntryScope entry(ctl, EnterText, copy);
        EnterText(ctl, copy);
    }
    HBlockFree(copy);
    if (IsWindow(hwnd)) {
        InvalidateRect(hwnd, nullptr, TRUE);
    }
}
