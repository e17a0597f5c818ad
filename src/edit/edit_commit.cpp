// From the text back to the stored value: parsing, bounds, validation and vetoes, and what the focus has to do with it.
#include "edit/edit_internal.h"
#include "foundation/memory.h"
#include "typed/data_types.h"

#include <algorithm>

namespace {

// Bytes of the value that count: a text's block may be far longer than the text.
int UsedSize(const HEditCtl* ctl)
{
    if (!IsStringType(ctl) || !ctl->pData) {
        return ctl->cbData;
    }
    const size_t room = static_cast<size_t>(ctl->cbData);
    return static_cast<int>(std::min(strnlen(static_cast<const char*>(ctl->pData), room) + 1, room));
}

// The value as it was; null without memory.
struct OldValue {
    int   room; // of its block
    int   size;
    void* bytes;
    explicit OldValue(const HEditCtl* ctl)
        : room(ctl->cbData), size(UsedSize(ctl)), bytes(HBlockAlloc(static_cast<size_t>(size)))
    {
        if (bytes && ctl->pData) {
            std::memcpy(bytes, ctl->pData, static_cast<size_t>(size));
        }
    }
    ~OldValue() { HBlockFree(bytes); }
    OldValue(const OldValue&) = delete;
    OldValue& operator=(const OldValue&) = delete;
    // Whether it still describes the value: host code may have changed the type in between.
    bool IsOf(const HEditCtl* ctl) const { return bytes && ctl->pData && ctl->cbData >= size; }
};

// What the checks of a commit came to.
struct Verdict {
    int  status;  // 0: accepted
    bool restore; // the parent asked for the old value
};

// Bounded: a text longer than the value's block makes it grow, and is cut where no memory is left.
int ParseString(HEditCtl* ctl, const char* text)
{
    const int noCheck = ctl->pfnValidate != nullptr;
    const int size = static_cast<int>(std::strlen(text)) + 1;
    if (GrowData(ctl, size)) {
        return ParseData(ctl->pData, ctl->cClass, ctl->cType, FormatOf(ctl), text, noCheck);
    }
    char* const cut = hstrdup(text);
    if (!cut) {
        return 1;
    }
    cut[ctl->cbData - 1] = 0;
    const int status = ParseData(ctl->pData, ctl->cClass, ctl->cType, FormatOf(ctl), cut, noCheck);
    HBlockFree(cut);
    return status;
}

int ParseText(HEditCtl* ctl, const char* text)
{
    if (IsStringType(ctl)) {
        return ParseString(ctl, text);
    }
    return ParseData(ctl->pData, ctl->cClass, ctl->cType, FormatOf(ctl), text, ctl->pfnValidate != nullptr);
}

// Asks the parent about the value that is being committed. Gone, too, if another one was put in its place meanwhile: this
// commit ends there, or its outcome would be the other one's.
Told AskAbout(HEditCtl* ctl, int code)
{
    const Told told = Tell(ctl, code);
    return told != Told::Gone && !HasFlag(ctl, HEF_DIRTY) ? Told::Gone : told;
}

// Whether the bound applies, is passed, and the parent doesn't mind that the value moves to it.
Told AskToMove(HEditCtl* ctl, double value, int code)
{
    const bool above = code == HEN_ABOVEMAX;
    const bool passed = above ? (ctl->wBounds & 2) && value > ctl->dMax : (ctl->wBounds & 1) && value < ctl->dMin;
    return passed ? AskAbout(ctl, code) : Told::Vetoed;
}

// A number is held to both bounds in turn, the upper one first. false: the commit ends here.
bool HoldNumber(HEditCtl* ctl, double value)
{
    Told told = AskToMove(ctl, value, HEN_ABOVEMAX);
    if (told == Told::Accepted) {
        StoreComparable(ctl, ctl->dMax);
        if (!ComparableValue(ctl, &value)) {
            return true;
        }
    }
    if (told != Told::Gone) {
        told = AskToMove(ctl, value, HEN_BELOWMIN);
    }
    if (told == Told::Accepted) {
        StoreComparable(ctl, ctl->dMin);
    }
    return told != Told::Gone;
}

// A date is held to one bound only. Settled: with or without bounds it comes back from the double, which has a whole
// date, so a part of one is filled up: a day without a year is a day of 1992. false: the commit ends here.
bool HoldDate(HEditCtl* ctl, double value)
{
    Told   told = AskToMove(ctl, value, HEN_ABOVEMAX);
    double bound = ctl->dMax;
    if (told == Told::Vetoed) {
        told = AskToMove(ctl, value, HEN_BELOWMIN);
        bound = told == Told::Gone ? 0 : ctl->dMin;
    }
    if (told == Told::Gone) {
        return false;
    }
    if (told == Told::Accepted) {
        StoreComparable(ctl, bound);
    } else {
        StoreUnmoved(ctl, value);
    }
    return true;
}

bool HoldBounds(HEditCtl* ctl)
{
    double value = 0;
    if (!ComparableValue(ctl, &value)) {
        return true;
    }
    return IsDateClass(ctl->cClass) ? HoldDate(ctl, value) : HoldNumber(ctl, value);
}

// The host's validation, or else the parser's own word. false: the commit ends here.
bool Judge(HEditCtl* ctl, Verdict* verdict)
{
    const HWND hwnd = ctl->hWnd;
    if (ctl->pfnValidate) {
        verdict->status = ctl->pfnValidate(hwnd, GetDlgCtrlID(hwnd), ctl->pData);
        if (verdict->status && IsWindow(hwnd)) {
            SetFocus(hwnd);
        }
    }
    if (!IsWindow(hwnd) || !HasFlag(ctl, HEF_DIRTY)) {
        return false;
    }
    if (!verdict->status) {
        return true;
    }
    const Told told = AskAbout(ctl, HEN_BADINPUT);
    if (told == Told::Vetoed) {
        *verdict = { 0, true };
    }
    return told != Told::Gone;
}

bool Differs(const HEditCtl* ctl, const OldValue& old)
{
    if (IsStringType(ctl)) {
        return std::strcoll(static_cast<const char*>(ctl->pData), static_cast<const char*>(old.bytes)) != 0;
    }
    return std::memcmp(ctl->pData, old.bytes, static_cast<size_t>(old.size)) != 0;
}

// Puts the old value back where it is wanted, else notes that the value is another one now. That it is the one of the
// last commit takes no note back: the parent hasn't seen the first one yet.
void Settle(HEditCtl* ctl, const Verdict& verdict, const OldValue& old)
{
    if (!old.IsOf(ctl)) {
        return;
    }
    const bool isNull = HasFlag(ctl, CF_NULL);
    if (verdict.restore || (isNull && verdict.status)) {
        std::memcpy(ctl->pData, old.bytes, static_cast<size_t>(old.size));
    } else if (isNull || Differs(ctl, old)) {
        SetFlag(ctl, CF_CHANGED, true);
    }
}

// Reads the text into the value and holds it to its bounds. A date that was emptied has neither text nor bounds: it
// stays null with zeros for a value. false: the commit ends here.
bool TakeText(HEditCtl* ctl, const char* text, Verdict* verdict)
{
    if (!*text && IsNullDate(ctl) && ctl->pData) {
        std::memset(ctl->pData, 0, static_cast<size_t>(ctl->cbData));
        return true;
    }
    verdict->status = ParseText(ctl, text);
    return HoldBounds(ctl);
}

void SelectOnFocus(HEditCtl* ctl)
{
    const TextRange selection = SelectionOf(ctl);
    const bool atStart = GetOverwriteMode() && selection.lo == selection.hi && ctl->cClass == 's';
    SetSelection(ctl, 0, 0, atStart ? 0 : -1);
}

// A host that is told of the commit may have moved the focus on: the caret of the thread is another window's then.
void EndCaret(HWND hwnd)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    if (GetGUIThreadInfo(GetCurrentThreadId(), &info) && info.hwndCaret == hwnd) {
        DestroyCaret();
    }
}

// The callback has the last word on a value that was left: it may call the focus back.
void ValidateAfterLeaving(HEditCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const int refused = ctl->pfnValidate(hwnd, static_cast<int>(ctl->wId), ctl->pData);
    if (refused && IsWindow(hwnd)) {
        PostMessageA(hwnd, HEM_REFOCUS, 0, 0);
    }
}

} // namespace

// What the host is told of here may make it ask for the value, or take the focus: that is no second commit.
int CommitText(HEditCtl* ctl, const char* text)
{
    if (!HasFlag(ctl, HEF_DIRTY) || HasFlag(ctl, HEF_COMMITTING)) {
        return 0;
    }
    const HWND hwnd = ctl->hWnd;
    const OldValue old(ctl);
    const bool isEmpty = !*text;
    const bool showedDisplay = HasFlag(ctl, HEF_DISPLAY);
    Verdict verdict = {};
    SetFlag(ctl, HEF_COMMITTING, true);
    const bool goesOn = TakeText(ctl, text, &verdict) && Judge(ctl, &verdict);
    if (IsWindow(hwnd)) {
        SetFlag(ctl, HEF_COMMITTING, false);
    }
    if (!goesOn) {
        return verdict.status;
    }
    Settle(ctl, verdict, old);
    if (ctl->pLinked && ctl->pData) {
        // Bounded: the parser may have made the block longer than the host was told, and the host's is no longer by it.
        const int room = std::min(old.room, static_cast<int>(ctl->cbData));
        HCopyValue(ctl->pLinked, ctl->pData, ctl->cClass, ctl->cType, room);
    }
    if (verdict.status) {
        return verdict.status;
    }
    SetFlag(ctl, HEF_DIRTY, false);
    // An old value that came back is null again if it was.
    SetFlag(ctl, CF_NULL, (isEmpty || verdict.restore) && HasFlag(ctl, CF_NULL));
    if (!showedDisplay && HasFlag(ctl, HEF_DISPLAY)) {
        RefreshText(ctl, IsFocused(ctl)); // a host that took the focus had it made of what wasn't settled yet
    }
    return 0;
}

// While F2 is down the display form shows, which is no text that was typed.
bool CommitIfFocused(HEditCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (IsFocused(ctl) && !HasFlag(ctl, HEF_DISPLAY)) {
        CommitText(ctl, FieldText(ctl));
    }
    return IsWindow(hwnd);
}

void OnSetFocus(HEditCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (!CommitIfFocused(ctl)) {
        return; // a focus that comes back before the field has heard of its leaving finds what was typed
    }
    SetFlag(ctl, HEF_FOCUS, true);
    RefreshText(ctl, true);
    if (!HasStyle(ctl, HES_STATIC)) {
        if (!HasStyle(ctl, HES_KEEPSEL)) {
            SelectOnFocus(ctl);
        }
        if (!IsWindow(hwnd)) {
            return;
        }
        BuildCaret(ctl);
        PlaceCaret(ctl, ctl->nCaret);
    }
    Tell(ctl, HEN_SETFOCUS);
}

void OnKillFocus(HEditCtl* ctl, HWND gaining)
{
    const HWND hwnd = ctl->hWnd;
    FinishEntry(ctl);
    if (!IsWindow(hwnd)) {
        return;
    }
    if (IsFocused(ctl) && HasFlag(ctl, HEF_DISPLAY)) {
        RefreshText(ctl, true); // F2 is still down, and its display form must not be read as if it had been typed
    }
    SetFlag(ctl, HEF_FOCUS, false);
    CommitText(ctl, FieldText(ctl));
    if (!IsWindow(hwnd)) {
        return;
    }
    if (GetFocus() != hwnd) {
        EndCaret(hwnd);
        RefreshText(ctl, false);
    }
    if (Tell(ctl, HEN_KILLFOCUS) != Told::Gone && IsWindow(gaining) && ctl->pfnValidate) {
        ValidateAfterLeaving(ctl);
    }
}
