// The button control's window procedure, and the sorting of the system's messages.
#include "button/button_internal.h"

namespace {

LRESULT OnSetText(HButtCtl* ctl, const MsgArgs& args)
{
    const char* const text = reinterpret_cast<const char*>(args.lParam);
    if (!text) {
        return 0;
    }
    const bool isType = *text >= '0' && *text <= '9';
    const bool applied = isType ? HBApplyType(ctl, text) : HBSetCaption(ctl, text, '\0', nullptr);
    HBRevealParent(ctl);
    return applied;
}

LRESULT OnGetText(const HButtCtl* ctl, const MsgArgs& args)
{
    return _fstrnzcpy(reinterpret_cast<char*>(args.lParam), ctl->pszCaption, static_cast<int>(args.wParam));
}

LRESULT OnGetTextLength(const HButtCtl* ctl)
{
    return ctl->pszCaption ? lstrlenA(ctl->pszCaption) : 0;
}

LRESULT OnEnable(HButtCtl* ctl, const MsgArgs& args)
{
    ctl->dwStyle = args.wParam ? ctl->dwStyle & ~DWORD{ WS_DISABLED } : ctl->dwStyle | WS_DISABLED;
    HBRevealParent(ctl);
    return 0;
}

// The frame stores the font behind this.
LRESULT OnSetFont(HButtCtl* ctl, const MsgArgs& args)
{
    HBRepaint(ctl);
    return AskDefault(args);
}

LRESULT OnErase(HButtCtl* ctl, const MsgArgs& args)
{
    HBPaintWindow(ctl, reinterpret_cast<HDC>(args.wParam));
    return 1;
}

// The default validates the window and has it erased, which is where a button paints.
LRESULT OnPaint(HButtCtl* ctl, const MsgArgs& args)
{
    return args.wParam ? OnErase(ctl, args) : AskDefault(args);
}

// The record goes with the first of the two.
LRESULT OnDestroy(HButtCtl* ctl, const MsgArgs& args)
{
    if (args.message == WM_DESTROY && ctl->hGlyphBitmap) {
        DeleteObject(ctl->hGlyphBitmap);
    }
    HBFreeRecord(ctl);
    return AskDefault(args);
}

LRESULT OnWindowMessage(HButtCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case WM_SETTEXT:       return OnSetText(ctl, args);
    case WM_GETTEXT:       return OnGetText(ctl, args);
    case WM_GETTEXTLENGTH: return OnGetTextLength(ctl);
    case WM_ENABLE:        return OnEnable(ctl, args);
    case WM_SETFONT:       return OnSetFont(ctl, args);
    case WM_ERASEBKGND:    return OnErase(ctl, args);
    case WM_PAINT:         return OnPaint(ctl, args);
    case WM_GETDLGCODE:    return DLGC_STATIC;
    case WM_DESTROY:
    case WM_NCDESTROY:     return OnDestroy(ctl, args);
    default:               return HBOnInput(ctl, args);
    }
}

} // namespace

LRESULT CALLBACK HButtMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record)
{
    const MsgArgs   args = { hwnd, message, wParam, lParam, pDefault };
    HButtCtl* const ctl = static_cast<HButtCtl*>(record);
    if (IsCreation(args, record)) {
        return HBOnNcCreate(args);
    }
    if (!ctl) {
        return AskDefault(args);
    }
    const RecordUse use(ctl);
    if (const ButtonHandler handler = FindButtonHandler(message)) {
        return handler(ctl, args);
    }
    return OnWindowMessage(ctl, args);
}

LRESULT CALLBACK HButtWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return HandleMsg(hwnd, message, wParam, lParam, HButtMsgHandler, sizeof(LONG_PTR));
}
