// Keys and the focus of a combo: both arrive at the face, whose messages pass here first.
#include "combo/combo_internal.h"

namespace {

constexpr LRESULT wantSome = DLGC_WANTARROWS | DLGC_WANTCHARS;
constexpr LRESULT wantAll = DLGC_WANTALLKEYS;

bool IsShiftDown()
{
    return GetKeyState(VK_SHIFT) < 0;
}

bool HasButton(const HCombCtl* ctl)
{
    return !HasStyle(ctl, HCS_NOBUTTON);
}

LRESULT OnF4(HCombCtl* ctl, const MsgArgs&)
{
    if (HasButton(ctl)) {
        HCToggleDrop(ctl);
    }
    return 1;
}

LRESULT OnF5(HCombCtl* ctl, const MsgArgs& args)
{
    if (HasFlag(ctl, HCF_DROPPED)) {
        HCToggleDrop(ctl);
    }
    if (IsWindow(args.hwnd) && HCHasXButton(ctl)) {
        Notify(ctl, HCN_XBUTTON);
    }
    return 1;
}

LRESULT OnTab(HCombCtl* ctl, const MsgArgs&)
{
    const bool shift = IsShiftDown();
    if (HasStyle(ctl, HCS_WANTKEYS)) {
        Notify(ctl, shift ? HCN_BACKTAB : HCN_TAB);
    } else {
        SendMessageA(ctl->hParent, WM_NEXTDLGCTL, shift, 0);
    }
    return 1;
}

// The row that the list shows counts, also one that equals what was typed. Without a row what was typed stays.
void AcceptRow(HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (HasEdit(ctl) && HCHasRow(ctl)) {
        HCSync(ctl, false, true);
        if (!IsWindow(hwnd)) {
            return;
        }
        ToList(ctl, WWM_SETCHANGED, 1);
    }
    Notify(ctl, HCN_SELENDOK);
}

// The row under the pointer is the only one that is marked, so Return means it, as the other keys do.
void TakeHotRow(HCombCtl* ctl)
{
    HListCtl* const list = ctl->pDrop;
    if (list && list->nHot >= 0 && list->nHot < HLCount(list)) {
        HLDragTo(list, list->nHot);
    }
}

LRESULT OnEnterOrEscape(HCombCtl* ctl, const MsgArgs& args)
{
    const bool isEnter = args.wParam == VK_RETURN;
    if (!HasFlag(ctl, HCF_DROPPED)) {
        if (HasStyle(ctl, HCS_WANTKEYS)) {
            Notify(ctl, isEnter ? HCN_ENTER : HCN_ESCAPE);
        }
        return 0;
    }
    if (isEnter) {
        TakeHotRow(ctl);
    }
    if (isEnter && IsWindow(args.hwnd)) {
        AcceptRow(ctl);
    }
    if (IsWindow(args.hwnd)) {
        HCCloseDrop(ctl);
    }
    return 1;
}

// An edit has no rows of its own: the list steps. A field steps by itself.
LRESULT OnRowKey(HCombCtl* ctl, const MsgArgs& args)
{
    const bool isClosed = !HasFlag(ctl, HCF_DROPPED);
    if (!HasEdit(ctl) || !HasButton(ctl) || (isClosed && !(ctl->wOptions & HCO_LISTTOCHILD))) {
        return 0;
    }
    if (isClosed && !HCTell(ctl, HCN_SELENDOK)) {
        return 1;
    }
    ToList(ctl, WM_KEYDOWN, args.wParam, args.lParam);
    return 1;
}

struct KeyEntry {
    WPARAM vk;
    LRESULT (*step)(HCombCtl* ctl, const MsgArgs& args);
};

constexpr KeyEntry keyTable[] = {
    { VK_F4, OnF4 },
    { VK_F5, OnF5 },
    { VK_TAB, OnTab },
    { VK_RETURN, OnEnterOrEscape },
    { VK_ESCAPE, OnEnterOrEscape },
    { VK_PRIOR, OnRowKey },
    { VK_NEXT, OnRowKey },
    { VK_UP, OnRowKey },
    { VK_DOWN, OnRowKey },
};

// A list that lies open shows by its colours where the focus is.
void ShowFocusInList(HCombCtl* ctl)
{
    if (!HasDropdown(ctl) && HasStyle(ctl, HCS_FOCUSBRUSH) && ctl->hDrop) {
        InvalidateRect(ctl->hDrop, nullptr, TRUE);
    }
}

// Whether the edit's value is one that the user has typed, and not one that he took back.
bool HasTypedValue(HCombCtl* ctl)
{
    return HasFlag(ctl, HCF_TYPED) && ToChild(ctl, WWM_GETCHANGED) != 0;
}

// What was typed may be no item, and then the list's item counts. Settled: without one the edit is cleared. A value that
// the user hasn't typed isn't touched: the host's may be none of the list's, or may have come while the list stood on the
// one before.
void TakeListsItem(HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    bool       counts = HCAgree(ctl);
    if (!counts && IsWindow(hwnd)) {
        HCFollowFace(ctl, false);
        counts = IsWindow(hwnd) && (HCAgree(ctl) || (IsWindow(hwnd) && HasTypedValue(ctl)));
    }
    if (counts && IsWindow(hwnd)) {
        HCSync(ctl, false, true);
    }
}

// The edit shows its text from the start.
void LeaveEdit(HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    ToChild(ctl, EM_SETSEL, 0, 0);
    if (IsWindow(hwnd) && !HasStyle(ctl, HCS_3DBORDER) && ctl->chCodeType != 's') {
        TakeListsItem(ctl);
    }
    if (IsWindow(hwnd)) {
        SetFlag(ctl, HCF_TYPED, false);
    }
}

} // namespace

LRESULT HCOnKeyDown(HCombCtl* ctl, const MsgArgs& args)
{
    for (const KeyEntry& entry : keyTable) {
        if (entry.vk == args.wParam) {
            return entry.step(ctl, args);
        }
    }
    return 0;
}

LRESULT HCOnSysKey(HCombCtl* ctl, const MsgArgs& args)
{
    if (args.wParam == VK_UP || args.wParam == VK_DOWN) {
        HCToggleDrop(ctl);
        return 1;
    }
    return args.message == WM_SYSKEYDOWN ? AskDefault(args) : 0;
}

LRESULT HCOnChildFocus(HCombCtl* ctl, const MsgArgs& args)
{
    SetFlag(ctl, HCF_TYPED, false);
    if (HasEdit(ctl)) {
        HCFollowFace(ctl, false);
    }
    if (IsWindow(args.hwnd)) {
        ShowFocusInList(ctl);
        Notify(ctl, HCN_SETFOCUS);
    }
    return 1;
}

LRESULT HCOnChildBlur(HCombCtl* ctl, const MsgArgs& args)
{
    ShowFocusInList(ctl);
    HCCloseDrop(ctl);
    if (IsWindow(args.hwnd) && HasEdit(ctl)) {
        LeaveEdit(ctl);
    }
    if (IsWindow(args.hwnd)) {
        Notify(ctl, HCN_KILLFOCUS);
    }
    return 1;
}

LRESULT HCOnGetDlgCode(HCombCtl* ctl, const MsgArgs&)
{
    if (HasFlag(ctl, HCF_DROPPED) || HasStyle(ctl, HCS_WANTKEYS)) {
        return HasEdit(ctl) ? wantAll | DLGC_HASSETSEL : wantAll;
    }
    return HasEdit(ctl) ? wantSome | DLGC_HASSETSEL : wantSome;
}

LRESULT CALLBACK HCFilter(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND      combo = GetParent(hwnd);
    HCombCtl* const ctl = HCFromWindow(combo);
    if (!ctl || ctl->hChild != hwnd) {
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }
    const WNDPROC old = ctl->pfnChildProc;
    const auto    pass = [=] { return IsWindow(hwnd) ? CallWindowProcA(old, hwnd, message, wParam, lParam) : 0; };
    switch (message) {
    case WM_SETFOCUS:
        pass();
        SendMessageA(combo, HCM_CHILDFOCUS, 0, 0);
        return 0;
    case WM_KILLFOCUS:
        pass();
        SendMessageA(combo, HCM_CHILDBLUR, 0, 0);
        return 0;
    case WM_GETDLGCODE: return SendMessageA(combo, message, wParam, lParam);
    case WM_NCDESTROY: HCLoseFace(ctl); return pass();
    case WM_KEYDOWN: return SendMessageA(combo, message, wParam, lParam) ? 1 : pass();
    case WM_SYSKEYDOWN: SendMessageA(combo, HCM_SYSKEY, wParam, lParam); return pass();
    default: return pass();
    }
}
