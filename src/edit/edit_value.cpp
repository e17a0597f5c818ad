// The stored value of an edit control and the text made of it: installing, refreshing, formats and limits.
#include "edit/edit_internal.h"
#include "foundation/memory.h"
#include "typed/date_time.h"
#include "typed/numbers.h"

#include <algorithm>
#include <climits>

namespace {

constexpr int textRoom = 32;     // characters by which a text may outgrow its buffer or its mask
constexpr int defaultLimit = 32; // characters of a text field without a limit
constexpr int noMemory = -5;
constexpr int nullArgument = -2;

bool IsNumeric(char dataClass)
{
    return dataClass == 'n' || dataClass == 'c' || dataClass == 'z';
}

// Numbers, pictures of truth values: their second section means something else.
bool HasTwoSections(char dataClass)
{
    return dataClass == 'n' || dataClass == 'c' || dataClass == 'b';
}

// Where the section of the empty text begins in a format: its semicolon, or null.
const char* FindEmptySection(const char* format, char dataClass)
{
    const char* const first = std::strchr(format, ';');
    return first && HasTwoSections(dataClass) ? std::strchr(first + 1, ';') : first;
}

// The text for a null value is the section behind that semicolon.
void InstallEmptyText(HEditCtl* ctl, const char* semicolon)
{
    HBlockFree(ctl->pszEmpty);
    ctl->pszEmpty = nullptr;
    if (!semicolon) {
        return;
    }
    ctl->pszEmpty = hstrdup(semicolon + 1);
    char* const end = ctl->pszEmpty ? std::strchr(ctl->pszEmpty, ';') : nullptr;
    if (end) {
        *end = 0;
    }
}

// Where the part of a format ends that conversions read: at its empty text, and before an empty section too. They don't
// stop there by themselves: the letters of "mm/dd/yyyy;no date" would be fields.
const char* EndOfUsed(const char* format, char dataClass)
{
    const char* const empty = FindEmptySection(format, dataClass);
    if (!empty) {
        return format + std::strlen(format);
    }
    const bool behindEmpty = HasTwoSections(dataClass) && empty[-1] == ';';
    return behindEmpty ? empty - 1 : empty;
}

int PrintValue(HEditCtl* ctl, bool editForm, int* negative)
{
    ctl->pszText[0] = 0;
    return FormatData(ctl->pData, ctl->cClass, ctl->cType, FormatOf(ctl), ctl->pszText, ctl->cbText, negative,
                      editForm);
}

// The text of a value; what can't be formatted shows as nothing. A number that has no room is no value to type on, so
// the text gets the room.
void FormatText(HEditCtl* ctl, bool editForm)
{
    int        negative = 0;
    const bool fits = PrintValue(ctl, editForm, &negative) > 0;
    if (!fits && IsNumeric(ctl->cClass) && GrowText(ctl, LongestNumberText(FormatOf(ctl)) + 1)) {
        PrintValue(ctl, editForm, &negative);
    }
    SetFlag(ctl, HEF_NEGATIVE, negative != 0);
}

bool IsZero(const HEditCtl* ctl)
{
    const BYTE* const bytes = static_cast<const BYTE*>(ctl->pData);
    return std::all_of(bytes, bytes + ctl->cbData, [](BYTE byte) { return byte == 0; });
}

void SetForm(HEditCtl* ctl, bool editForm)
{
    SetFlag(ctl, HEF_DISPLAY, !editForm);
    SetFlag(ctl, HEF_RIGHT, HasStyle(ctl, editForm ? HES_EDITRIGHT : HES_RIGHT));
    SetFlag(ctl, HEF_CENTER, !editForm && HasStyle(ctl, HES_CENTER));
}

// A null date is typed into from the start, also where zeros are a day of their own.
void ShowValue(HEditCtl* ctl, bool editForm)
{
    if (editForm && IsNullDate(ctl) && IsZero(ctl)) {
        ShowBlankForm(ctl);
        SetFlag(ctl, HEF_NEGATIVE, false);
    } else {
        FormatText(ctl, editForm);
    }
}

// Stores the value, making room for a longer text. null stands for zeros.
bool StoreValue(HEditCtl* ctl, const void* data)
{
    if (!ctl->pData || !ctl->pszText) {
        return false;
    }
    if (!data) {
        std::memset(ctl->pData, 0, static_cast<size_t>(ctl->cbData));
        return true;
    }
    const size_t length = ctl->cClass == 's' ? std::strlen(static_cast<const char*>(data)) : 0;
    if (ctl->cClass != 's' || length < static_cast<size_t>(ctl->cbData)) {
        CopyValue(ctl, ctl->pData, data);
        return true;
    }
    if (!ResizeBuffers(ctl, static_cast<int>(length) + textRoom + 1, data)) {
        return false;
    }
    ctl->cchMax = static_cast<int>(length) + textRoom;
    return true;
}

// A host that is told of a bad text may put a better one in its place.
void CommitOtherText(HEditCtl* ctl, const char* text)
{
    const HWND hwnd = ctl->hWnd;
    const bool wasCommitting = HasFlag(ctl, HEF_COMMITTING);
    SetFlag(ctl, HEF_COMMITTING, false);
    SetFlag(ctl, HEF_DIRTY, true);
    CommitText(ctl, text);
    if (IsWindow(hwnd)) {
        SetFlag(ctl, HEF_COMMITTING, wasCommitting);
    }
}

// What is longer than the usual room stays whole: who takes the limit away wants nothing cut.
int RoomWithoutLimit(const HEditCtl* ctl)
{
    const int value = ctl->pData ? static_cast<int>(std::strlen(static_cast<const char*>(ctl->pData))) : 0;
    return std::max({ defaultLimit, value, TextLength(ctl) });
}

// A limit has taken the end of the text.
void ShowCutText(HEditCtl* ctl)
{
    UpdateScroll(ctl, static_cast<int>(ctl->nScroll));
    PlaceCaret(ctl, ctl->nCaret);
    InvalidateRect(ctl->hWnd, nullptr, TRUE);
}

// The callback hears of a value that was set, and its answer isn't looked at. It may take the focus: what was typed before
// is over then, and the value isn't in the link yet. False if the window went.
bool ShowToValidator(HEditCtl* ctl)
{
    if (!ctl->pfnValidate) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    const bool wasCommitting = HasFlag(ctl, HEF_COMMITTING);
    SetFlag(ctl, HEF_DIRTY, false);
    SetFlag(ctl, HEF_COMMITTING, true);
    ctl->pfnValidate(hwnd, static_cast<int>(ctl->wId), ctl->pData);
    if (!IsWindow(hwnd)) {
        return false;
    }
    SetFlag(ctl, HEF_COMMITTING, wasCommitting);
    return true;
}

// The whole field is repainted anyway.
void SelectAfterSet(HEditCtl* ctl)
{
    constexpr int toEnd = -1;
    MoveSelection(ctl, 0, 0, IsFocused(ctl) ? toEnd : 0);
}

} // namespace

void ShowBlankForm(HEditCtl* ctl)
{
    const DateTimeRec none = {};
    FormatDateTime(&none, FormatOf(ctl), ctl->pszText, ctl->cbText, true, ctl->cClass != 't', ctl->cClass != 'd');
}

void RefreshText(HEditCtl* ctl, bool editForm)
{
    OvertakeEntry(ctl);
    const bool wasRight = HasFlag(ctl, HEF_RIGHT);
    SetForm(ctl, editForm);
    if (!ctl->pData || !ctl->pszText) {
        return;
    }
    if (!editForm && HasFlag(ctl, CF_NULL)) {
        _fstrnzcpy(ctl->pszText, ctl->pszEmpty, ctl->cbText);
        SetFlag(ctl, HEF_NEGATIVE, false);
    } else {
        // While a commit is under way its value isn't in the link yet.
        if (ctl->pLinked && !HasFlag(ctl, HEF_COMMITTING)) {
            CopyValue(ctl, ctl->pData, ctl->pLinked);
        }
        ShowValue(ctl, editForm);
    }
    const bool turned = wasRight != HasFlag(ctl, HEF_RIGHT); // what was hidden at one end isn't at the other
    UpdateScroll(ctl, turned ? 0 : static_cast<int>(ctl->nScroll));
    InvalidateRect(ctl->hWnd, nullptr, TRUE);
}

int WINAPI HEditSetData(void* record, const void* data)
{
    HEditCtl* const ctl = static_cast<HEditCtl*>(record);
    if (!ctl) {
        return nullArgument;
    }
    SetFlag(ctl, CF_NULL, !data);
    if (!StoreValue(ctl, data)) {
        return noMemory;
    }
    const HWND hwnd = ctl->hWnd;
    if (!ShowToValidator(ctl)) {
        return 1;
    }
    if (ctl->pLinked && ctl->pLinked != data) {
        CopyValue(ctl, ctl->pLinked, ctl->pData);
    }
    RefreshText(ctl, IsFocused(ctl));
    SelectAfterSet(ctl);
    if (IsWindow(hwnd)) {
        SetFlag(ctl, HEF_DIRTY | CF_CHANGED, false);
    }
    return 1;
}

int SetFormat(HEditCtl* ctl, const char* format, bool redraw)
{
    if (!format) {
        return nullArgument;
    }
    if (ctl->cClass == 's') {
        return 0;
    }
    const char* const empty = FindEmptySection(format, ctl->cClass);
    const size_t length = empty ? static_cast<size_t>(empty - format) : std::strlen(format);
    char* const       copy = MakeFormat(format, static_cast<size_t>(EndOfUsed(format, ctl->cClass) - format));
    // Bounded: entry steps write at any place of a mask, so the text gets room for all of it.
    const bool hasRoom = copy && GrowText(ctl, static_cast<int>(std::strlen(format)) + textRoom) &&
                         (!IsStringType(ctl) || GrowData(ctl, static_cast<int>(length) + 1));
    if (!hasRoom) {
        HBlockFree(copy);
        return noMemory;
    }
    if (IsStringType(ctl)) {
        static_cast<char*>(ctl->pData)[ctl->cbData - 1] = 0;
    }
    InstallEmptyText(ctl, empty);
    HBlockFree(ctl->pszFormat);
    ctl->pszFormat = copy;
    if (redraw) {
        RefreshText(ctl, IsFocused(ctl));
    }
    return 1;
}

int SetText(HEditCtl* ctl, const char* text)
{
    if (!text) {
        return nullArgument;
    }
    const HWND hwnd = ctl->hWnd;
    if (*text == '%') {
        HEParseWinText(ctl, text);
    } else if (ctl->cClass == 's') {
        return HEditSetData(ctl, text);
    } else {
        CommitOtherText(ctl, text);
    }
    if (IsWindow(hwnd)) {
        RefreshText(ctl, IsFocused(ctl));
    }
    return 1;
}

int LimitText(HEditCtl* ctl, int limit)
{
    if (ctl->cClass != 's') {
        return -1;
    }
    const int characters = limit > 0 ? limit : RoomWithoutLimit(ctl);
    const int length = TextLength(ctl);
    if (characters == INT_MAX || !ctl->pData || !ResizeBuffers(ctl, characters + 1, ctl->pData)) {
        return noMemory;
    }
    SetFlag(ctl, HEF_LIMITED, limit > 0);
    ctl->cchMax = characters;
    if (TextLength(ctl) < length) {
        ShowCutText(ctl);
    }
    return 1;
}

void UndoTyping(HEditCtl* ctl)
{
    RefreshText(ctl, IsFocused(ctl));
    MoveSelection(ctl, 0, 0, 0);
}

void ClearValue(HEditCtl* ctl)
{
    if (!ctl->pData) {
        return;
    }
    std::memset(ctl->pData, 0, static_cast<size_t>(ctl->cbData));
    if (ctl->pLinked) {
        CopyValue(ctl, ctl->pLinked, ctl->pData);
    }
    const HWND hwnd = ctl->hWnd;
    SetSelection(ctl, 0, 0, -1);
    if (IsWindow(hwnd)) {
        RefreshText(ctl, IsFocused(ctl));
    }
}
