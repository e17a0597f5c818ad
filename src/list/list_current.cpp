// The current item of a list control, the clicks and keys that move it, and the search by a typed character.
#include "foundation/memory.h"
#include "list/list_internal.h"

#include <cstring>

namespace {

constexpr int fieldPage = 5; // items by which Page Up and Page Down step a field

// The item under the mouse is no longer marked, and the current one, which had lost its mark to it, is again.
void EndHotTrack(HListCtl* ctl)
{
    if (ctl->nHot != -1) {
        HLInvalidateItem(ctl, ctl->nHot, true);
        HLInvalidateItem(ctl, HLCurIndex(ctl), true);
        HLInvalidateSelected(ctl);
        ctl->nHot = -1;
    }
}

// Items that a scroll step moves by.
int StepOf(const HListCtl* ctl)
{
    return HasStyle(ctl, HLS_MULTICOLUMN) ? std::max<int>(ctl->cRows, 1) : 1;
}

// The first item behind the page: moving onto it scrolls.
int PageEnd(const HListCtl* ctl)
{
    const int end = ctl->nTop + ctl->cRows * ctl->cCols - (HasStyle(ctl, HLS_NOINTEGRAL) ? 1 : 0);
    const bool dragsOn = HasFlag(ctl, HLF_TRACKING) && end < LastItem(ctl) && HasFlag(ctl, HLF_PARTIAL);
    return end + (dragsOn ? 1 : 0);
}

// Single selection: the current item is the selection.
void SelectOnly(HListCtl* ctl, int old, int now)
{
    if (old != now) {
        HLSelectGuarded(ctl, old, HLSEL_CLEAR);
    }
    HLSelectGuarded(ctl, now, HLSEL_SET);
    SetFlag(ctl, CF_NULL, now == -1);
}

void BringIntoView(HListCtl* ctl, int index, int top, int end)
{
    const int step = StepOf(ctl);
    if (index >= end) {
        HLScroll(ctl, (index - end) / step + 1);
    } else if (index < top) {
        HLScroll(ctl, (index - top + 1) / step - 1);
    }
}

void TellMoved(HListCtl* ctl, bool notify)
{
    HLUpdateLinks(ctl);
    if (notify) {
        SetFlag(ctl, CF_CHANGED, true);
        Notify(ctl, HLN_SELCHANGE);
    }
}

// What a key range selects is repainted by the selection. With several columns its rectangle has other items in it too.
void ValidateRange(HListCtl* ctl, int index)
{
    if (!HasStyle(ctl, HLS_MULTICOLUMN)) {
        const RECT range = HLRangeRect(ctl, ctl->nAnchor, index);
        ValidateRect(ctl->hWnd, &range);
    }
}

// A click or a key on an item of an extended selection without Ctrl: it, or the range to it, alone is selected. In an
// empty list it is on no item.
void ClickAlone(HListCtl* ctl, int index, bool shift)
{
    const bool drags = HasFlag(ctl, HLF_TRACKING);
    if (drags) {
        SetFlag(ctl, HLF_DRAGSET, true); // or the items up to the current one would count as cleared by an older drag
    }
    HLSelectMany(ctl, HLSEL_CLEAR, HLI_SELECTED, 0, nullptr);
    if (drags) {
        // The rest is left to the drag that begins here.
        if (shift) {
            HLInvalidateRange(ctl, ctl->nAnchor, index, false);
        } else {
            HLInvalidateItem(ctl, index, false);
        }
    } else if (shift) {
        ValidateRange(ctl, index);
        HLSelectRange(ctl, ctl->nAnchor, index, HLSEL_SET);
    } else {
        HLSelectGuarded(ctl, index, HLSEL_SET);
    }
}

void ClickWithCtrl(HListCtl* ctl, int index, bool shift)
{
    if (shift) {
        HLDragTo(ctl, index);
        return;
    }
    HLSelectGuarded(ctl, index, HLSEL_TOGGLE);
    SetFlag(ctl, HLF_DRAGSET, IsInSelection(ctl, index));
}

bool IsBetween(int index, int a, int b)
{
    return index >= std::min(a, b) && index <= std::max(a, b);
}

// Repaints what a mouse range changes when its end goes from one item to another.
void InvalidateDrag(HListCtl* ctl, int from, int to)
{
    const int  anchor = ctl->nAnchor;
    const bool set = HasFlag(ctl, HLF_DRAGSET);
    if (IsBetween(to, anchor, from)) {
        HLInvalidateRange(ctl, to < from ? to + 1 : to - 1, from, set);
    } else if (IsBetween(from, anchor, to)) {
        HLInvalidateRange(ctl, to, from, !set);
    } else {
        HLInvalidateRange(ctl, anchor, from, set);
        HLInvalidateRange(ctl, anchor, to, !set);
    }
}

// An item's text: the data itself, or what the format makes of it.
const char* ItemText(HListCtl* ctl, int index, char* buffer)
{
    DataList items = ctl->items;
    if (IsText(items.cClass, items.cType)) {
        const void* const text = HDLGetDataPtr(&items, index);
        return text ? static_cast<const char*>(text) : "";
    }
    int negative = 0;
    HDLFormatItem(&items, index, buffer, itemTextSize, &negative, 0);
    return buffer;
}

bool EqualsBeforeTab(const char* item, const char* text, size_t length)
{
    return std::strcspn(item, "\t") == length && HCompareNoCase(item, text, length) == 0;
}

bool BeginsWith(const char* item, const char* text, size_t length)
{
    return HCompareNoCase(item, text, length) == 0;
}

using Matches = bool (*)(const char* item, const char* text, size_t length);

int FindFrom(HListCtl* ctl, const char* text, int start, Matches matches)
{
    const int    count = HLCount(ctl);
    const size_t length = std::strlen(text);
    char buffer[itemTextSize];
    for (int i = 0, index = start; i < count; ++i, index = index + 1 == count ? 0 : index + 1) {
        if (matches(ItemText(ctl, index, buffer), text, length)) {
            return index;
        }
    }
    return -1;
}

int LeftOf(const HListCtl* ctl, int current)
{
    if (!HasStyle(ctl, HLS_MULTICOLUMN)) {
        return current - 1;
    }
    return current - ctl->cRows < 0 ? current : current - ctl->cRows;
}

int RightOf(const HListCtl* ctl, int current)
{
    if (!HasStyle(ctl, HLS_MULTICOLUMN)) {
        return current + 1;
    }
    return current + ctl->cRows >= HLCount(ctl) ? current : current + ctl->cRows;
}

// Where a key moves the current item; false for another key.
bool TargetOfKey(HListCtl* ctl, WPARAM vk, int* target)
{
    const int  current = HLCurIndex(ctl);
    const bool isField = HasStyle(ctl, HLS_FIELD);
    switch (vk) {
    case VK_HOME:  *target = 0; return true;
    case VK_END:   *target = LastItem(ctl); return true;
    case VK_UP:    *target = current - 1; return true;
    case VK_DOWN:  *target = current + 1; return true;
    case VK_LEFT:  *target = LeftOf(ctl, current); return true;
    case VK_RIGHT: *target = RightOf(ctl, current); return true;
    case VK_PRIOR: *target = current + (isField ? -fieldPage : std::min<int>(2 - ctl->cRows, -1)); return true;
    case VK_NEXT:  *target = current + (isField ? fieldPage : std::max<int>(ctl->cRows - 2, 1)); return true;
    default:       return false;
    }
}

void OnTab(HListCtl* ctl, bool shift)
{
    const HWND hwnd = ctl->hWnd;
    SendMessageA(ctl->hParent, WM_NEXTDLGCTL, shift, 0);
    if (IsWindow(hwnd)) {
        Notify(ctl, shift ? HLN_BACKTAB : HLN_TAB);
    }
}

} // namespace

void HLSetCurrent(HListCtl* ctl, int index, bool notify, bool keepAnchor)
{
    const HWND hwnd = ctl->hWnd;
    const int  old = HLCurIndex(ctl);
    const int  now = std::min(std::max(index, -1), LastItem(ctl));
    const int  top = ctl->nTop;
    EndHotTrack(ctl);
    if (HasFlag(ctl, HLF_SINGLESEL)) {
        SelectOnly(ctl, old, now);
    }
    const int end = PageEnd(ctl);
    HLStoreCurrent(ctl, now);
    if (!keepAnchor) {
        ctl->nAnchor = now;
    }
    if (HasFlag(ctl, HLF_FOCUSRECT)) {
        HLHideFocus(ctl, old);
    }
    if (IsWindow(hwnd)) {
        BringIntoView(ctl, now, top, end);
    }
    if (!IsWindow(hwnd)) {
        return;
    }
    if (GetFocus() == hwnd) {
        HLShowFocus(ctl, now);
    }
    if (!IsWindow(hwnd)) {
        return;
    }
    if (!notify) {
        SetFlag(ctl, CF_CHANGED, false);
    }
    if (now != old && !HasFlag(ctl, HLF_TRACKING)) {
        TellMoved(ctl, notify);
    }
}

void HLShowCurrent(HListCtl* ctl)
{
    const int current = HLCurIndex(ctl);
    if (current >= 0) {
        BringIntoView(ctl, current, ctl->nTop, PageEnd(ctl));
    }
}

void HLClick(HListCtl* ctl, int index, bool shift, bool ctrl)
{
    const HWND hwnd = ctl->hWnd;
    const bool extended = HasStyle(ctl, HLS_EXTSEL);
    if (HasStyle(ctl, HLS_MULTISEL)) {
        HLSelectGuarded(ctl, index, HLSEL_TOGGLE);
    } else if (extended && !ctrl) {
        ClickAlone(ctl, index, shift);
    } else if (extended) {
        ClickWithCtrl(ctl, index, shift);
    }
    if (IsWindow(hwnd)) {
        HLSetCurrent(ctl, index, true, extended && shift);
    }
}

void HLDragTo(HListCtl* ctl, int target)
{
    const int  current = HLCurIndex(ctl);
    const bool drags = HasFlag(ctl, HLF_MOUSEDOWN) && HasStyle(ctl, HLS_EXTSEL);
    if (target == current) {
        if (target == LastItem(ctl) && HasFlag(ctl, HLF_MOUSEDOWN)) {
            HLScroll(ctl, 1);
        }
        return;
    }
    if (drags) {
        InvalidateDrag(ctl, current, target);
    }
    HLSetCurrent(ctl, target, true, drags);
}

int HLFindText(HListCtl* ctl, const char* text, int start)
{
    const int count = HLCount(ctl);
    if (count == 0 || !text) {
        return -1;
    }
    const int first = start < 0 ? 0 : start % count;
    const int whole = FindFrom(ctl, text, first, EqualsBeforeTab);
    return whole != -1 ? whole : FindFrom(ctl, text, first, BeginsWith);
}

LRESULT HLKeyDown(HListCtl* ctl, const MsgArgs& args)
{
    const HWND hwnd = ctl->hWnd;
    const bool shift = GetKeyState(VK_SHIFT) < 0;
    if (ctl->nHot != -1) {
        HLDragTo(ctl, ctl->nHot);
    }
    if (!IsWindow(hwnd)) {
        return 0;
    }
    int target = 0;
    if (TargetOfKey(ctl, args.wParam, &target)) {
        target = ClampItem(ctl, target);
        if (HasStyle(ctl, HLS_MULTISEL)) {
            HLDragTo(ctl, target);
        } else {
            HLClick(ctl, target, shift, false);
        }
        return 0;
    }
    switch (args.wParam) {
    case VK_SPACE:  HLClick(ctl, HLCurIndex(ctl), shift, false); break;
    case VK_RETURN: Notify(ctl, HLN_ENTER); break;
    case VK_ESCAPE: Notify(ctl, HLN_ESCAPE); break;
    case VK_TAB:    OnTab(ctl, shift); break;
    case VK_F1:     Notify(ctl, HLN_HELP); break;
    default:        break;
    }
    return 0;
}

LRESULT HLOnChar(HListCtl* ctl, const MsgArgs& args)
{
    const char text[2] = { static_cast<char>(args.wParam), 0 };
    const int  found = HLFindText(ctl, text, HLCurIndex(ctl) + 1);
    if (found != -1) {
        HLSetCurrent(ctl, found, true, false);
    }
    return 0;
}
