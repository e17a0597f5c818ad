// Keys, mouse and focus of a button. The space bar presses it like the mouse, and then the mouse lets go of it.
#include "button/button_internal.h"

namespace {

bool IsCaptured(HWND hwnd)
{
    return GetCapture() == hwnd;
}

bool IsInClient(HWND hwnd, LPARAM lParam)
{
    const POINT point{ static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)) };
    RECT        client{};
    GetClientRect(hwnd, &client);
    return PtInRect(&client, point) != 0;
}

LRESULT OnButtonDown(HButtCtl* ctl, const MsgArgs& args)
{
    if (!HasStyle(ctl, HBS_NOFOCUS)) {
        SetFocus(args.hwnd);
    }
    if (!IsAlive(ctl)) {
        return 0;
    }
    if (HasFlag(ctl, HBF_SPACEDOWN)) {
        HBSetPressed(ctl, false);
        return 0;
    }
    SetCapture(args.hwnd);
    if (!IsAlive(ctl)) {
        return 0;
    }
    HBSetPressed(ctl, true);
    HUpdateTop(args.hwnd);
    if (IsAlive(ctl)) {
        HBPlaySound(ctl);
    }
    return 0;
}

LRESULT OnMouseMove(HButtCtl* ctl, const MsgArgs& args)
{
    if (!IsCaptured(args.hwnd) || !(args.wParam & MK_LBUTTON)) {
        return 0;
    }
    // While the space bar holds the button, the mouse over it lets it go.
    const bool wanted = IsInClient(args.hwnd, args.lParam) != HasFlag(ctl, HBF_SPACEDOWN);
    if (wanted != HasFlag(ctl, HBF_PRESSED)) {
        HBSetPressed(ctl, wanted);
    }
    return 0;
}

LRESULT OnButtonUp(HButtCtl* ctl)
{
    if (HasFlag(ctl, HBF_SPACEDOWN)) {
        HBSetPressed(ctl, true);
        return 0;
    }
    ReleaseCapture();
    if (!IsAlive(ctl)) {
        return 0;
    }
    if (HasFlag(ctl, HBF_PRESSED)) {
        HBClicked(ctl, true);
    } else {
        HBSetPressed(ctl, false);
    }
    return 0;
}

LRESULT OnDoubleClick(HButtCtl* ctl)
{
    Notify(ctl, HBN_DBLCLK);
    return 1;
}

LRESULT OnSpaceDown(HButtCtl* ctl, const MsgArgs& args)
{
    if (IsCaptured(args.hwnd)) {
        return 0;
    }
    SetFlag(ctl, HBF_SPACEDOWN, true);
    SetCapture(args.hwnd);
    if (IsAlive(ctl)) {
        HBPress(ctl);
    }
    return 0;
}

LRESULT OnKeyDown(HButtCtl* ctl, const MsgArgs& args)
{
    switch (args.wParam) {
    case VK_RETURN: SendMessageA(args.hwnd, HBM_CLICK, 0, 0); return 0;
    case VK_SPACE: return OnSpaceDown(ctl, args);
    default: return AskDefault(args);
    }
}

LRESULT OnKeyUp(HButtCtl* ctl, const MsgArgs& args)
{
    if (!HasFlag(ctl, HBF_SPACEDOWN)) {
        return AskDefault(args);
    }
    SetFlag(ctl, HBF_SPACEDOWN, false);
    ReleaseCapture();
    if (!IsAlive(ctl)) {
        return 0;
    }
    if (args.wParam == VK_SPACE) {
        HBClicked(ctl, true);
    } else {
        HBSetPressed(ctl, false);
    }
    return 0;
}

LRESULT OnSetFocus(HButtCtl* ctl)
{
    if (!HasStyle(ctl, HBS_NOFOCUS)) {
        HBSetPressed(ctl, false);
    }
    return 0;
}

// The space bar that is held goes up elsewhere: with the capture kept, the next click would be no click.
void EndSpacePress(HButtCtl* ctl, HWND hwnd)
{
    SetFlag(ctl, HBF_SPACEDOWN, false);
    if (IsCaptured(hwnd)) {
        ReleaseCapture();
    }
}

LRESULT OnKillFocus(HButtCtl* ctl, const MsgArgs& args)
{
    if (HasFlag(ctl, HBF_SPACEDOWN)) {
        EndSpacePress(ctl, args.hwnd);
    }
    if (!IsAlive(ctl)) {
        return 0;
    }
    const bool transparent = HasStyle(ctl, HBS_TRANSPARENT);
    if (transparent) {
        // The parent's background is fresh before the focus rectangle goes.
        HUpdateTop(args.hwnd);
    }
    if (!IsAlive(ctl)) {
        return 0;
    }
    HBSetPressed(ctl, false);
    if (transparent) {
        UpdateWindow(args.hwnd);
    }
    if (transparent && IsAlive(ctl)) {
        SetFlag(ctl, HBF_FOCUSDRAWN, false);
    }
    return 0;
}

} // namespace

LRESULT HBOnInput(HButtCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case WM_LBUTTONDOWN:   return OnButtonDown(ctl, args);
    case WM_MOUSEMOVE:     return OnMouseMove(ctl, args);
    case WM_LBUTTONUP:     return OnButtonUp(ctl);
    case WM_LBUTTONDBLCLK: return OnDoubleClick(ctl);
    case WM_KEYDOWN:       return OnKeyDown(ctl, args);
    case WM_KEYUP:         return OnKeyUp(ctl, args);
    case WM_SETFOCUS:      return OnSetFocus(ctl);
    case WM_KILLFOCUS:     return OnKillFocus(ctl, args);
    default:               return AskDefault(args);
    }
}
