// The list of a combo in a window of its own: opening, placing and closing it, and the class "HDrop".
#include "combo/combo_internal.h"
#include "combo/drop_place.h"
#include "combo/monitor_stubs.h"
#include "foundation/startup.h"
#include "griddata/grid_model.h"

#include <cstring>

namespace {

constexpr int faceWord = sizeof(LONG_PTR); // the second of the extra words

// The whole monitor: the list may cover the taskbar.
RECT MonitorBounds(const RECT& combo)
{
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    const HMONITOR monitor = MonitorOfRect(&combo, MONITOR_DEFAULTTONEAREST);
    if (monitor && MonitorInfo(monitor, &info)) {
        return info.rcMonitor;
    }
    return { 0, 0, MonitorMetrics(SM_CXSCREEN), MonitorMetrics(SM_CYSCREEN) };
}

// Closes the list of another combo. False if this combo went meanwhile, or if the host has opened yet another one.
bool CloseOther(const HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    HCombCtl* const open = hOpenCombo ? HCFromWindow(hOpenCombo) : nullptr;
    if (!open || !HasFlag(open, HCF_DROPPED)) {
        HCGiveMouseBack(); // a thread may end with its list open, without a word
    } else if (open != ctl) {
        HCCloseDrop(open);
    }
    return IsWindow(hwnd) && (!hOpenCombo || hOpenCombo == hwnd);
}

// From here on the combo is open, so whatever ends it gives the mouse back.
// Settled: a combo without a list opens too, for the host's eyes. Bounded: it doesn't take the mouse.
void BeginOpen(HCombCtl* ctl)
{
    SetFlag(ctl, HCF_DROPPED, true);
    hOpenCombo = ctl->hWnd;
    hOpenChild = ctl->hChild;
    hOpenDrop = ctl->hDrop;
    if (ctl->hDrop) {
        HCTakeMouse();
    }
}

void ShowDrop(HCombCtl* ctl)
{
    const HWND drop = ctl->hDrop;
    if (!drop) {
        return;
    }
    if (ctl->pDrop->wFlags & HLF_SHAREDLIST) {
        HLRecalc(ctl->pDrop);
    }
    HLShowCurrent(ctl->pDrop); // it may have been scrolled away when it was open last
    ShowWindow(drop, SW_SHOW);
    BringWindowToTop(drop);
}

// A press that is under way in the list ends with it.
void EndPress(HListCtl* list)
{
    if (GetCapture() == list->hWnd) {
        list->wFlags = static_cast<WORD>(list->wFlags & ~(HLF_TRACKING | HLF_MOUSEDOWN));
        ReleaseCapture();
    }
}

// The list may be parked meanwhile.
void HideDrop(const HCombCtl* ctl)
{
    if (ctl->pDrop) {
        EndPress(ctl->pDrop);
    }
    const HWND drop = hOpenCombo == ctl->hWnd ? hOpenDrop : ctl->hDrop;
    if (IsWindow(drop)) {
        ShowWindow(drop, SW_HIDE);
    }
}

LRESULT OnMouseActivate(HWND hwnd)
{
    const HWND face = HCFaceOfDrop(hwnd);
    if (face && GetFocus() != face) {
        SetFocus(face);
        UpdateWindow(face);
    }
    return 0;
}

// The current row is taken, whether it is a new one or not. A list without one takes nothing from the edit.
void AcceptRow(HWND drop)
{
    const HWND hwnd = drop == hOpenDrop ? hOpenCombo : nullptr;
    HCombCtl* const ctl = hwnd ? HCFromWindow(hwnd) : nullptr;
    if (!ctl) {
        return;
    }
    Notify(ctl, HCN_SELENDOK);
    if (IsWindow(hwnd) && HasEdit(ctl)) {
        ToChild(ctl, EM_SETSEL, 0, 0);
        if (IsWindow(hwnd) && HCHasRow(ctl)) {
            HCSync(ctl, false, true);
        }
    }
    if (IsWindow(hwnd)) {
        HCCloseDrop(ctl);
    }
}

void UseFocusBrush(HWND hwnd)
{
    HListCtl* const list = static_cast<HListCtl*>(ControlRecord(hwnd));
    if (list && list->hFocusBrush && GetParent(hwnd) == GetDesktopWindow()) {
        list->hBkBrush = list->hFocusBrush;
    }
}

// The items of a combo without an edit are its face's.
void LeaveCombo(HCombCtl* ctl, HListCtl* list)
{
    if (ctl->hDrop == list->hWnd) {
        ctl->hDrop = nullptr;
        ctl->pDrop = nullptr;
    }
    if (ctl->hDropParked == list->hWnd) {
        ctl->hDropParked = nullptr;
    }
    if (!HasEdit(ctl)) {
        HCReturnItems(list);
    }
}

// Unlike HIsCombo by the whole name.
bool IsComboWindow(HWND hwnd)
{
    char name[8] = "";
    return GetClassNameA(hwnd, name, sizeof name) && std::strcmp(name, "HComb") == 0;
}

// The list may go before its combo does: by the system, which destroys children first, or by a host.
void OnNcDestroy(HWND hwnd)
{
    if (hOpenCombo && hwnd == hOpenDrop) {
        HCGiveMouseBack();
    }
    HListCtl* const list = HCFaceOfDrop(hwnd) ? static_cast<HListCtl*>(ControlRecord(hwnd)) : nullptr;
    // Bounded: a host may have given the list another parent, whose record is none of a combo.
    HCombCtl* const ctl = list && IsComboWindow(list->hParent) ? HCFromWindow(list->hParent) : nullptr;
    if (ctl && (ctl->hDrop == hwnd || ctl->hDropParked == hwnd)) {
        LeaveCombo(ctl, list);
    }
}

} // namespace

HWND HCFaceOfDrop(HWND drop)
{
    return reinterpret_cast<HWND>(GetWindowLongPtrA(drop, faceWord));
}

void HCPlaceDrop(HCombCtl* ctl)
{
    RECT combo;
    if (!ctl->hDrop || !GetWindowRect(ctl->hWnd, &combo)) {
        return;
    }
    const RECT place = HCDropRect(combo, MonitorBounds(combo), HGScaleX(ctl->cxDrop), HGScaleY(ctl->cyDrop));
    MoveWindow(ctl->hDrop, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

void HCOpenDrop(HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const bool opens = HasDropdown(ctl) && !HasFlag(ctl, HCF_ENDING) && IsWindowVisible(hwnd);
    if (!opens || !CloseOther(ctl)) {
        return;
    }
    HCPlaceDrop(ctl);
    if (IsWindow(hwnd)) {
        Notify(ctl, HCN_DROPDOWN);
    }
    if (IsWindow(hwnd) && CloseOther(ctl)) {
        BeginOpen(ctl);
        ShowDrop(ctl);
    }
}

void HCCloseDrop(HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (!HasDropdown(ctl) || !HasFlag(ctl, HCF_DROPPED)) {
        return;
    }
    HideDrop(ctl);
    if (hOpenCombo == hwnd) {
        HCGiveMouseBack();
    }
    if (IsWindow(hwnd) && HasFlag(ctl, HCF_DROPPED)) {
        SetFlag(ctl, HCF_DROPPED, false);
        Notify(ctl, HCN_CLOSEUP);
    }
}

void HCToggleDrop(HCombCtl* ctl)
{
    if (!HasDropdown(ctl)) {
        return;
    }
    if (HasFlag(ctl, HCF_DROPPED)) {
        HCCloseDrop(ctl);
    } else {
        HCOpenDrop(ctl);
    }
}

LRESULT CALLBACK HDropWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_CREATE:        UseFocusBrush(hwnd); break;
    case WM_NCDESTROY:     OnNcDestroy(hwnd); break;
    case WM_MOUSEACTIVATE: return OnMouseActivate(hwnd);
    case WM_LBUTTONUP: {
        const LRESULT result = HListWnd(hwnd, message, wParam, lParam);
        AcceptRow(hwnd);
        return result;
    }
    case WM_MOUSEWHEEL:
        if (const HWND face = HCFaceOfDrop(hwnd)) {
            SendMessageA(face, message, wParam, lParam);
        }
        return 0;
    default: break;
    }
    return HListWnd(hwnd, message, wParam, lParam);
}
