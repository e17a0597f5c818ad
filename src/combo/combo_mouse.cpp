// The mouse on a combo's buttons: pressed, held, hot. Everything else is covered by the parts.
#include "combo/combo_internal.h"

#include <windowsx.h>

namespace {

constexpr WORD allButtonFlags = HCF_BTNDOWN | HCF_BTNHOT | HCF_CAPTURE | HCF_XBTNDOWN | HCF_XBTNHOT;

struct Button {
    WORD down;
    WORD hot;
    bool (*hit)(HCombCtl* ctl, int x, int y);
    void (*redraw)(HCombCtl* ctl);
};
constexpr Button dropButton = { HCF_BTNDOWN, HCF_BTNHOT, HCDropHit, HCRedrawDropButton };
constexpr Button extraButton = { HCF_XBTNDOWN, HCF_XBTNHOT, HCXButtonHit, HCRedrawXButton };

bool IsOver(HCombCtl* ctl, const Button& button, const MsgArgs& args)
{
    return button.hit(ctl, GET_X_LPARAM(args.lParam), GET_Y_LPARAM(args.lParam));
}

// Drawing may run host code. false: the window went.
bool Redraw(HCombCtl* ctl, const Button& button)
{
    const HWND hwnd = ctl->hWnd;
    button.redraw(ctl);
    return IsWindow(hwnd) != 0;
}

bool SetAndRedraw(HCombCtl* ctl, const Button& button, WORD flag, bool on)
{
    if (HasFlag(ctl, flag) == on) {
        return true;
    }
    SetFlag(ctl, flag, on);
    return Redraw(ctl, button);
}

bool Press(HCombCtl* ctl, const Button& button)
{
    SetFlag(ctl, static_cast<WORD>(button.down | button.hot | HCF_CAPTURE), true);
    SetCapture(ctl->hWnd);
    return Redraw(ctl, button);
}

void AskForLeave(HWND hwnd)
{
    TRACKMOUSEEVENT track = { sizeof track, TME_LEAVE, hwnd, 0 };
    TrackMouseEvent(&track);
}

// While a button is held, it looks pressed as long as the mouse is on it.
void Drag(HCombCtl* ctl, const MsgArgs& args)
{
    for (const Button& button : { dropButton, extraButton }) {
        if (HasFlag(ctl, button.hot) && !SetAndRedraw(ctl, button, button.down, IsOver(ctl, button, args))) {
            return;
        }
    }
}

void Hover(HCombCtl* ctl, const MsgArgs& args)
{
    const bool overDrop = IsOver(ctl, dropButton, args);
    const bool overExtra = IsOver(ctl, extraButton, args);
    if ((overDrop || overExtra) && !HasFlag(ctl, HCF_BTNHOT | HCF_XBTNHOT)) {
        AskForLeave(args.hwnd);
    }
    if (SetAndRedraw(ctl, dropButton, HCF_BTNHOT, overDrop)) {
        SetAndRedraw(ctl, extraButton, HCF_XBTNHOT, overExtra);
    }
}

bool Release(HCombCtl* ctl, const Button& button)
{
    SetFlag(ctl, static_cast<WORD>(button.down | button.hot), false);
    return Redraw(ctl, button);
}

} // namespace

LRESULT HCOnButtonDown(HCombCtl* ctl, const MsgArgs& args)
{
    SetFocus(ctl->hChild);
    if (!IsWindow(args.hwnd) || !HasDropdown(ctl)) {
        return 0;
    }
    if (IsOver(ctl, dropButton, args)) {
        if (Press(ctl, dropButton)) {
            HCToggleDrop(ctl);
        }
    } else if (IsOver(ctl, extraButton, args)) {
        if (Press(ctl, extraButton) && HasFlag(ctl, HCF_DROPPED)) {
            HCToggleDrop(ctl);
        }
    }
    return 0;
}

LRESULT HCOnMouseMove(HCombCtl* ctl, const MsgArgs& args)
{
    if (HasFlag(ctl, HCF_CAPTURE)) {
        Drag(ctl, args);
    } else if (HasDropdown(ctl)) {
        Hover(ctl, args);
    }
    return 0;
}

LRESULT HCOnMouseLeave(HCombCtl* ctl, const MsgArgs&)
{
    if (SetAndRedraw(ctl, dropButton, HCF_BTNHOT, false)) {
        SetAndRedraw(ctl, extraButton, HCF_XBTNHOT, false);
    }
    return 0;
}

LRESULT HCOnButtonUp(HCombCtl* ctl, const MsgArgs& args)
{
    if (!HasFlag(ctl, HCF_CAPTURE)) {
        return 0;
    }
    SetFlag(ctl, HCF_CAPTURE, false);
    ReleaseCapture();
    if (!IsWindow(args.hwnd)) {
        return 0;
    }
    if (HasFlag(ctl, HCF_BTNHOT) && !Release(ctl, dropButton)) {
        return 0;
    }
    if (!HasFlag(ctl, HCF_XBTNHOT) || !Release(ctl, extraButton)) {
        return 0;
    }
    if (IsOver(ctl, extraButton, args)) {
        Notify(ctl, HCN_XBUTTON);
    }
    return 0;
}

LRESULT HCOnCancelMode(HCombCtl* ctl, const MsgArgs& args)
{
    SetFlag(ctl, allButtonFlags, false);
    if (IsWindowEnabled(args.hwnd) && GetCapture() == args.hwnd) {
        ReleaseCapture();
    }
    if (IsWindow(args.hwnd) && Redraw(ctl, dropButton)) {
        Redraw(ctl, extraButton);
    }
    return 0;
}

// A closed list isn't scrolled behind the user's back.
LRESULT HCOnMouseWheel(HCombCtl* ctl, const MsgArgs& args)
{
    if (HasDropdown(ctl) && !HasFlag(ctl, HCF_DROPPED)) {
        return 0;
    }
    const bool up = GET_WHEEL_DELTA_WPARAM(args.wParam) > 0;
    ToList(ctl, WM_VSCROLL, up ? SB_PAGEUP : SB_PAGEDOWN);
    return 0;
}
