// The mirror between face and list: whichever the user or the host has changed, the other one shows the same value.
#include "combo/combo_internal.h"

#include <cstring>

namespace {

constexpr WPARAM endOfText = 32767;

struct Value {
    alignas(8) char bytes[comboValueSize] = {};
};

LPARAM AsParam(Value& value)
{
    return reinterpret_cast<LPARAM>(value.bytes);
}

// The type letter of texts is also that of numbers of 16 bits and of calendar words.
bool HasTexts(const HCombCtl* ctl)
{
    const HListCtl* const list = ctl->pDrop;
    return list && GetDataSize(list->items.cClass, list->items.cType) < 0;
}

int CurrentOfList(const HCombCtl* ctl)
{
    return static_cast<int>(ToList(ctl, HLM_GETCURRENT));
}

int CurrentOfField(const HCombCtl* ctl)
{
    return static_cast<int>(ToChild(ctl, HLM_GETCURRENT));
}

// Texts are compared as the user's locale orders them, all else by its bytes. A null value is no value's equal.
bool Differs(const Value& item, const Value& shown, bool isText, bool isNull)
{
    if (isText) {
        return std::strcoll(item.bytes, shown.bytes) != 0;
    }
    return isNull || std::memcmp(item.bytes, shown.bytes, sizeof item.bytes) != 0;
}

// The current item's value, and of a text with columns the first one.
Value CurrentValue(const HCombCtl* ctl, bool isText)
{
    Value item;
    ToList(ctl, HLM_GETCURDATA, comboValueSize, AsParam(item));
    if (isText && HasStyle(ctl, HCS_TABS)) {
        item.bytes[std::strcspn(item.bytes, "\t")] = 0;
    }
    return item;
}

// Gives the edit the value. Whether it had another one; the window may be gone then.
bool GiveToEdit(HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const bool isText = HasTexts(ctl);
    Value      item = CurrentValue(ctl, isText);
    Value      shown;
    const bool isNull = ToChild(ctl, HEM_GETDATA, comboValueSize, AsParam(shown)) <= 0;
    if (!IsWindow(hwnd) || !Differs(item, shown, isText, isNull)) {
        return false;
    }
    ToList(ctl, WWM_SETCHANGED, 1);
    ToChild(ctl, HEM_SETDATA, 0, AsParam(item));
    return true;
}

// The text is selected from its end back to its start, so that its start shows.
void ShowEditFromStart(HCombCtl* ctl)
{
    const HWND edit = ctl->hChild;
    SendMessageA(edit, EM_SETSEL, GetOverwriteMode() ? 0 : endOfText, 0);
    SendMessageA(edit, HEM_SETSCROLL, 0, 0);
    SendMessageA(edit, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(edit, nullptr, TRUE);
    UpdateWindow(edit);
}

int ListToEdit(HCombCtl* ctl, int current, bool notify)
{
    const HWND hwnd = ctl->hWnd;
    if (current < 0) {
        ToChild(ctl, WM_CLEAR);
        return 0;
    }
    ToChild(ctl, WM_SETREDRAW, FALSE);
    const bool changed = GiveToEdit(ctl);
    if (IsWindow(hwnd)) {
        ShowEditFromStart(ctl);
    }
    if (notify && changed && IsWindow(hwnd)) {
        Notify(ctl, HCN_SELCHANGE);
    }
    return 1;
}

int ListToField(HCombCtl* ctl, int current, bool notify)
{
    if (CurrentOfField(ctl) == current) {
        return 1;
    }
    const HWND hwnd = ctl->hWnd;
    ToChild(ctl, HLM_SETCURRENT, static_cast<WPARAM>(current), 1);
    if (notify && IsWindow(hwnd)) {
        Notify(ctl, HCN_SELCHANGE);
    }
    return 1;
}

// Moves the list by one of its messages, which takes its note of a change back unless that is kept.
void MoveList(HCombCtl* ctl, bool keepsChange, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND hwnd = ctl->hWnd;
    const bool changed = keepsChange && ctl->pDrop && HasFlag(ctl->pDrop, CF_CHANGED);
    ToList(ctl, message, wParam, lParam);
    if (changed && IsWindow(hwnd) && ctl->pDrop) {
        SetFlag(ctl->pDrop, CF_CHANGED, true);
    }
}

// The list's item that begins with what is typed.
void SelectTyped(HCombCtl* ctl, bool keepsChange)
{
    Value text;
    ToChild(ctl, WM_GETTEXT, comboValueSize, AsParam(text));
    if (*text.bytes) {
        MoveList(ctl, keepsChange, HLM_SELECTTEXT, 0, AsParam(text));
    } else {
        MoveList(ctl, keepsChange, HLM_SETCURRENT, static_cast<WPARAM>(-1), 1);
    }
}

// The list's item of the typed value. What was typed stays on the screen as it is.
void SelectValue(HCombCtl* ctl, bool keepsChange)
{
    const HWND hwnd = ctl->hWnd;
    Value      value;
    ToChild(ctl, HEM_COMMIT, 1, 0);
    const bool exists = IsWindow(hwnd) && ToChild(ctl, HEM_GETDATA, comboValueSize, AsParam(value)) > 0;
    if (!IsWindow(hwnd)) {
        return;
    }
    if (exists) {
        MoveList(ctl, keepsChange, HLM_SELECTDATA, HLSEL_CLEAR, AsParam(value));
    } else {
        MoveList(ctl, keepsChange, HLM_SETCURRENT, static_cast<WPARAM>(-1), 0);
    }
}

// A list that holds its item by the code may end up on another one with the same code: it counts that the field moved.
int FieldToList(HCombCtl* ctl, int current, bool notify)
{
    const HWND hwnd = ctl->hWnd;
    const int  item = CurrentOfField(ctl);
    if (item == current) {
        return 0;
    }
    ToList(ctl, HLM_SETCURRENT, static_cast<WPARAM>(item), 1);
    if (notify && IsWindow(hwnd)) {
        Notify(ctl, HCN_SELCHANGE);
    }
    return 0;
}

int EditToList(HCombCtl* ctl, bool notify, bool keepsChange)
{
    const HWND hwnd = ctl->hWnd;
    const int  current = CurrentOfList(ctl);
    if (HasTexts(ctl)) {
        SelectTyped(ctl, keepsChange);
    } else {
        SelectValue(ctl, keepsChange);
    }
    if (notify && IsWindow(hwnd) && CurrentOfList(ctl) != current) {
        Notify(ctl, HCN_SELCHANGE);
    }
    return 0;
}

int FaceToList(HCombCtl* ctl, bool notify, bool keepsChange)
{
    return HasEdit(ctl) ? EditToList(ctl, notify, keepsChange) : FieldToList(ctl, CurrentOfList(ctl), notify);
}

bool Mirrors(const HCombCtl* ctl, DWORD option)
{
    return ctl->hDrop && (ctl->wOptions & option);
}

} // namespace

bool HCHasRow(HCombCtl* ctl)
{
    return ctl->hDrop && CurrentOfList(ctl) >= 0;
}

bool HCAgree(HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (!HasEdit(ctl) || !HCHasRow(ctl)) {
        return false;
    }
    const bool isText = HasTexts(ctl);
    const Value item = CurrentValue(ctl, isText);
    Value       shown;
    const bool  isNull = ToChild(ctl, HEM_GETDATA, comboValueSize, AsParam(shown)) <= 0;
    return IsWindow(hwnd) && !Differs(item, shown, isText, isNull);
}

int HCSync(HCombCtl* ctl, bool fromChild, bool notify)
{
    if (!Mirrors(ctl, fromChild ? HCO_CHILDTOLIST : HCO_LISTTOCHILD)) {
        return 1;
    }
    if (fromChild) {
        return FaceToList(ctl, notify, false);
    }
    const int current = CurrentOfList(ctl);
    return HasEdit(ctl) ? ListToEdit(ctl, current, notify) : ListToField(ctl, current, notify);
}

void HCFollowFace(HCombCtl* ctl, bool notify)
{
    if (Mirrors(ctl, HCO_CHILDTOLIST)) {
        FaceToList(ctl, notify, true);
    }
}
