// The press and the value of a button. The press is what the mouse or a key holds down; the value changes here alone.
#include "button/button_internal.h"
#include "typed/masks.h"

namespace {

bool IsRadio(HWND hwnd)
{
    return (SendMessageA(hwnd, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

void SetTabStop(HWND hwnd, bool on)
{
    const LONG style = GetWindowLongA(hwnd, GWL_STYLE);
    SetWindowLongA(hwnd, GWL_STYLE, on ? style | WS_TABSTOP : style & ~WS_TABSTOP);
}

enum class WalkEnd { AtButton, Elsewhere, ButtonGone };

// Clears the radio buttons of the group in one direction. Bounded: a group that the button itself is no part of, being
// hidden or disabled, would go round for ever; so would one whose windows come and go meanwhile.
WalkEnd ClearPartners(const HButtCtl* ctl, bool backward)
{
    constexpr int maxPartners = 4096;
    const HWND hwnd = ctl->hWnd;
    const HWND dialog = GetParent(hwnd);
    HWND       first = nullptr;
    HWND       partner = hwnd;
    for (int i = 0; i < maxPartners; ++i) {
        partner = GetNextDlgGroupItem(dialog, partner, backward);
        if (partner == hwnd) {
            return WalkEnd::AtButton;
        }
        if (!partner || partner == first || !IsRadio(partner)) {
            break;
        }
        first = first ? first : partner;
        SetTabStop(partner, false);
        SendMessageA(partner, BM_SETCHECK, 0, 0);
        if (!IsAlive(ctl)) {
            return WalkEnd::ButtonGone;
        }
        // A partner that went takes the way to the next one along.
        if (!IsWindow(partner)) {
            break;
        }
    }
    return IsAlive(ctl) ? WalkEnd::Elsewhere : WalkEnd::ButtonGone;
}

bool ClearGroup(HButtCtl* ctl)
{
    if (ctl->dwStyle & WS_TABSTOP) {
        SetTabStop(ctl->hWnd, true);
    }
    WalkEnd end = ClearPartners(ctl, false);
    if (end == WalkEnd::Elsewhere) {
        end = ClearPartners(ctl, true);
    }
    return end != WalkEnd::ButtonGone;
}

bool NotifyOf(HButtCtl* ctl, int code)
{
    Notify(ctl, code);
    return IsAlive(ctl);
}

} // namespace

void HBRepaint(HButtCtl* ctl)
{
    InvalidateRect(ctl->hWnd, nullptr, TRUE);
}

void HBRevealParent(HButtCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (!HasStyle(ctl, HBS_TRANSPARENT) || !IsWindowVisible(hwnd)) {
        HBRepaint(ctl);
        return;
    }
    ShowWindow(hwnd, SW_HIDE);
    if (IsWindow(hwnd)) {
        ShowWindow(hwnd, SW_SHOW);
    }
}

void HBSetPressed(HButtCtl* ctl, bool pressed)
{
    SetFlag(ctl, HBF_PRESSED, pressed);
    HBRepaint(ctl);
}

bool HBSetState(HButtCtl* ctl, int value, bool notify)
{
    // Bounded: a value below 0 counts as an unsigned one of 32 bits, and so stays within the states.
    const DWORD asked = static_cast<DWORD>(value) * static_cast<DWORD>(StatesOfValue(ctl));
    const BYTE  state = static_cast<BYTE>(asked % ctl->cStates);
    SetFlag(ctl, CF_NULL, false);
    if (state != ctl->bState) {
        ctl->bState = state;
        SetFlag(ctl, CF_CHANGED, true);
    }
    if (ctl->pLink) {
        SetBoolValue(ctl->chLinkType, ctl->pLink, ValueOf(ctl));
    }
    HBSetPressed(ctl, HasFlag(ctl, HBF_PRESSED));
    // Settled: it is the value asked for that counts. Clearing it touches no partner and tells nobody.
    if (asked == 0) {
        return true;
    }
    if (HasStyle(ctl, HBS_AUTO) && !ClearGroup(ctl)) {
        return false;
    }
    return notify ? NotifyOf(ctl, HBN_CLICKED) : IsAlive(ctl);
}

bool HBClicked(HButtCtl* ctl, bool notify)
{
    if (HasStyle(ctl, HBS_AUTO)) {
        if (!HBSetState(ctl, ValueOf(ctl) + 1, notify)) {
            return false;
        }
        HBSetPressed(ctl, false);
        return true;
    }
    HBSetPressed(ctl, false);
    return !notify || NotifyOf(ctl, HBN_CLICKED);
}

bool HBReadValue(HButtCtl* ctl, const void* value)
{
    if (!value) {
        SetFlag(ctl, CF_NULL, true);
        HBRepaint(ctl);
    } else if (ValidType('b', ctl->chLinkType)) {
        HBSetState(ctl, GetBoolValue(ctl->chLinkType, value), false);
    }
    if (!IsAlive(ctl)) {
        return false;
    }
    SetFlag(ctl, CF_CHANGED, false);
    return true;
}

bool HBPress(HButtCtl* ctl)
{
    HBSetPressed(ctl, true);
    UpdateWindow(ctl->hWnd);
    if (!IsAlive(ctl)) {
        return false;
    }
    HBPlaySound(ctl);
    return IsAlive(ctl);
}
