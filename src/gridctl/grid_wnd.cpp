// The grid's window procedure and the sorting of its messages: each case is one call, its work is elsewhere.
#include "gridctl/grid_handlers.h"

#include "foundation/startup.h"

namespace {

LRESULT OnDlgCode(HGridCtl* ctl)
{
    if (HasFlag(ctl, HGC_INEDIT)) {
        return DLGC_WANTALLKEYS;
    }
    const bool leaveTab = HasStyle(ctl, HGS_NOTAB) || GetKeyState(VK_CONTROL) < 0;
    return leaveTab ? DLGC_WANTCHARS | DLGC_WANTARROWS : DLGC_WANTALLKEYS;
}

LRESULT OnSize(HGridCtl* ctl, const MsgArgs& args)
{
    HGPlaceNavigator(ctl);
    if (IsWindow(args.hwnd)) {
        HGRecalc(ctl);
    }
    if (IsWindow(args.hwnd)) {
        HGKeepEditorPlaced(ctl);
    }
    return AskDefault(args);
}

LRESULT OnClose(HGridCtl* ctl, const MsgArgs& args)
{
    if (HasStyle(ctl, WS_POPUP)) {
        EnableWindow(ctl->hParent, TRUE);
    }
    return AskDefault(args);
}

LRESULT OnMdiActivate(HGridCtl* ctl, const MsgArgs& args)
{
    if (reinterpret_cast<HWND>(args.lParam) == ctl->hWnd && GetFocus() != ctl->hWnd) {
        SetFocus(ctl->hWnd);
    }
    return AskDefault(args);
}

LRESULT OnRightDown(HGridCtl* ctl, const MsgArgs& args)
{
    if (HGNotify(ctl, HGN_RBUTTONDOWN)) {
        HGMouseDown(ctl, args.lParam);
    }
    return AskDefault(args);
}

LRESULT OnSetCursor(HGridCtl* ctl, const MsgArgs& args)
{
    return HGSizeHit(ctl, args.hwnd, static_cast<short>(LOWORD(args.lParam))) ? 1 : AskDefault(args);
}

LRESULT OnParentNotify(HGridCtl* ctl, const MsgArgs& args)
{
    if (LOWORD(args.wParam) == WM_DESTROY) {
        HGForgetHostDrawn(ctl, reinterpret_cast<HWND>(args.lParam));
    }
    return AskDefault(args);
}

// Mouse messages run their step, and the default follows.
LRESULT OnMouse(HGridCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case WM_MOUSEMOVE:     HGMouseMove(ctl, args.lParam); break;
    case WM_LBUTTONDOWN:   HGMouseDown(ctl, args.lParam); break;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:     HGMouseUp(ctl, args.lParam); break;
    case WM_LBUTTONDBLCLK: HGMouseDblClk(ctl, args.lParam); break;
    default:               break;
    }
    return AskDefault(args);
}

LRESULT OnDestroy(HGridCtl* ctl, const MsgArgs& args)
{
    HGOnDestroy(ctl);
    return AskDefault(args);
}

LRESULT OnWindowMessage(HGridCtl* ctl, const MsgArgs& args)
{
    const WPARAM wParam = args.wParam;
    const LPARAM lParam = args.lParam;
    switch (args.message) {
    case WM_CREATE:           return HGOnCreate(ctl);
    case WM_DESTROY:          return OnDestroy(ctl, args);
    case WM_SIZE:
    case WM_SETTINGCHANGE:
    case WM_WINDOWPOSCHANGED: return OnSize(ctl, args);
    case WM_SETFOCUS:         return HGOnSetFocus(ctl, wParam, args.pDefault);
    case WM_KILLFOCUS:        return HGOnKillFocus(ctl, wParam, args.pDefault);
    case WM_SETTEXT:          return HGOnSetText(ctl, args);
    case WM_GETTEXT:          return HGOnGetText(ctl, args);
    case WM_PAINT:            HGPaint(ctl); return 1;
    case WM_ERASEBKGND:       return HGEraseBackground(ctl, reinterpret_cast<HDC>(wParam));
    case WM_CLOSE:            return OnClose(ctl, args);
    case WM_QUERYENDSESSION:  return 1;
    case WM_CANCELMODE:       ctl->wFlags |= CF_CANCEL; return AskDefault(args);
    case WM_SETCURSOR:        return OnSetCursor(ctl, args);
    case WM_SETFONT:          return HGOnSetFont(ctl, args);
    case WM_GETDLGCODE:       return OnDlgCode(ctl);
    case WM_KEYDOWN:          return HGOnKeyDown(ctl, wParam, lParam, args.pDefault);
    case WM_SYSKEYUP:         return HGOnSysKeyUp(ctl, wParam, args.pDefault);
    case WM_CHAR:             return HGOnChar(ctl, wParam, lParam, args.pDefault);
    case WM_COMMAND:          return HGOnCommand(ctl, wParam, lParam, args.pDefault);
    case WM_NOTIFY:           return HGOnNotify(ctl, args);
    case WM_PARENTNOTIFY:     return OnParentNotify(ctl, args);
    case WM_HSCROLL:          return HGOnHScroll(ctl, wParam);
    case WM_VSCROLL:          return HGOnVScroll(ctl, wParam);
    case WM_MOUSEWHEEL:       return HGOnMouseWheel(ctl, wParam, lParam, args.pDefault);
    case WM_RBUTTONDOWN:      return OnRightDown(ctl, args);
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_LBUTTONDBLCLK:    return OnMouse(ctl, args);
    case WM_CAPTURECHANGED:   HGMouseLost(ctl, reinterpret_cast<HWND>(lParam)); return AskDefault(args);
    case WM_MDIACTIVATE:      return OnMdiActivate(ctl, args);
    default:                  return AskDefault(args);
    }
}

LRESULT OnOwnMessage(HGridCtl* ctl, const MsgArgs& args)
{
    using Find = GridHandler (*)(UINT);
    constexpr Find finders[] = { HGFindGridHandler, HGFindPositionHandler, HGFindRowHandler, HGFindColumnHandler };
    for (const Find find : finders) {
        if (const GridHandler handler = find(args.message)) {
            return handler(ctl, args);
        }
    }
    LRESULT result = 0;
    return HGOnFieldMessage(ctl, args, &result) ? result : AskDefault(args);
}

} // namespace

LRESULT CALLBACK HGridMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record)
{
    const MsgArgs args = { hwnd, message, wParam, lParam, pDefault };
    HGridCtl* const ctl = static_cast<HGridCtl*>(record);
    if (IsCreation(args, record)) {
        return HGOnNcCreate(args);
    }
    if (ctl && message == WM_NCDESTROY) {
        HGOnNcDestroy(ctl);
        return AskDefault(args);
    }
    if (!ctl || !ctl->pData) {
        return AskDefault(args);
    }
    return message >= firstGridMessage ? OnOwnMessage(ctl, args) : OnWindowMessage(ctl, args);
}

LRESULT CALLBACK HGridWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return IsWindow(hwnd) ? HandleMsg(hwnd, message, wParam, lParam, HGridMsgHandler, 0) : 0;
}
