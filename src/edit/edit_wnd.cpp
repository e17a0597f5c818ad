// The edit control's window procedure, and the sorting of its messages: each case is one call.
#include "edit/edit_internal.h"

#include <algorithm>
#include <climits>

namespace {

constexpr LRESULT wantAllKeys = DLGC_WANTMESSAGE | DLGC_HASSETSEL;
constexpr LRESULT wantChars = DLGC_WANTCHARS | DLGC_HASSETSEL | DLGC_WANTARROWS;

// The library selects all by this pair.
constexpr LPARAM selectAllEnd = 0xFFFE;

// A new font comes this way, too: the caret has another height then, and another place.
LRESULT OnSize(HEditCtl* ctl, const MsgArgs& args)
{
    SendMessageA(args.hwnd, HEM_SETRECT, 0, 0);
    RebuildCaret(ctl);
    return AskDefault(args);
}

// The frame stores the font and sends WM_SIZE behind this.
LRESULT OnSetFont(HEditCtl* ctl, const MsgArgs& args)
{
    ctl->cyChar = HIWORD(GetBaseUnits(reinterpret_cast<HFONT>(args.wParam)));
    SendMessageA(args.hwnd, HEM_SETRECT, 0, 0);
    if (LOWORD(args.lParam)) {
        InvalidateRect(args.hwnd, nullptr, TRUE);
    }
    return AskDefault(args);
}

// Colours and background are others then.
LRESULT OnEnable(const MsgArgs& args)
{
    InvalidateRect(args.hwnd, nullptr, TRUE);
    return AskDefault(args);
}

LRESULT OnGetText(HEditCtl* ctl, const MsgArgs& args)
{
    if (!args.lParam) {
        return 0;
    }
    const int size = static_cast<int>(std::min<WPARAM>(args.wParam, INT_MAX));
    return _fstrnzcpy(reinterpret_cast<char*>(args.lParam), FieldText(ctl), size);
}

LRESULT OnErase(HEditCtl* ctl, const MsgArgs& args)
{
    FillFieldBackground(ctl, reinterpret_cast<HDC>(args.wParam), nullptr, nullptr);
    return 1;
}

void StoreIndex(UINT_PTR where, int index)
{
    if (where) {
        *reinterpret_cast<DWORD*>(where) = static_cast<DWORD>(index);
    }
}

LRESULT OnGetSel(HEditCtl* ctl, const MsgArgs& args)
{
    const TextRange selection = SelectionOf(ctl);
    StoreIndex(args.wParam, selection.lo);
    StoreIndex(static_cast<UINT_PTR>(args.lParam), selection.hi);
    return MAKELRESULT(selection.lo, selection.hi);
}

LRESULT OnSetSel(HEditCtl* ctl, const MsgArgs& args)
{
    if (HasStyle(ctl, HES_KEEPSEL) && args.wParam == 0 && args.lParam == selectAllEnd) {
        return 0;
    }
    SetSelection(ctl, 0, static_cast<int>(args.wParam), static_cast<int>(args.lParam));
    return 1;
}

LRESULT OnGetModify(HEditCtl* ctl, const MsgArgs& args)
{
    return CommitBeforeAsking(ctl) ? AskDefault(args) : 0;
}

LRESULT OnReplaceSel(HEditCtl* ctl, const MsgArgs& args)
{
    const char* const text = reinterpret_cast<const char*>(args.lParam);
    ReplaceSelection(ctl, text ? text : "");
    return 1;
}

LRESULT OnChar(HEditCtl* ctl, const MsgArgs& args)
{
    CharInput(ctl, static_cast<char>(args.wParam));
    return IsWindow(args.hwnd) ? AskDefault(args) : 0;
}

LRESULT Done(void (*step)(HEditCtl*), HEditCtl* ctl)
{
    step(ctl);
    return 1;
}

LRESULT OnEditMessage(HEditCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case EM_GETSEL:      return OnGetSel(ctl, args);
    case EM_SETSEL:      return OnSetSel(ctl, args);
    case EM_GETRECT:     return FindEditHandler(HEM_GETRECT)(ctl, args);
    case EM_SETRECT:     // Settled: both answer the focus brush and leave the text area alone.
    case EM_SETRECTNP:   return FindEditHandler(HEM_GETFOCUSBRUSH)(ctl, args);
    case EM_GETMODIFY:   return OnGetModify(ctl, args);
    case EM_LIMITTEXT:   return LimitText(ctl, static_cast<int>(args.wParam));
    case EM_CANUNDO:     return 1;
    case EM_UNDO:
    case WM_UNDO:        return Done(UndoTyping, ctl);
    case EM_REPLACESEL:  return OnReplaceSel(ctl, args);
    case WM_CLEAR:       return Done(ClearValue, ctl);
    case WM_CUT:         return CutSelection(ctl);
    case WM_COPY:        return CopySelection(ctl);
    case WM_PASTE:       return PasteText(ctl);
    case WM_SETTEXT:     return SetText(ctl, reinterpret_cast<const char*>(args.lParam));
    case WM_GETTEXT:     return OnGetText(ctl, args);
    case WM_GETTEXTLENGTH: return TextLength(ctl);
    default:             return AskDefault(args);
    }
}

LRESULT OnWindowMessage(HEditCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case WM_SIZE:        return OnSize(ctl, args);
    case WM_SETFONT:     return OnSetFont(ctl, args);
    case WM_SETFOCUS:    return Done(OnSetFocus, ctl);
    case WM_ENABLE:      return OnEnable(args);
    case WM_KILLFOCUS:   OnKillFocus(ctl, reinterpret_cast<HWND>(args.wParam)); return 1;
    case WM_GETDLGCODE:  return HasStyle(ctl, HES_ALLKEYS) ? wantAllKeys : wantChars;
    case WM_PAINT:       return OnPaint(ctl, args);
    case WM_ERASEBKGND:  return OnErase(ctl, args);
    case WM_HSCROLL:     return OnHScroll(ctl, args.wParam);
    case WM_NCCALCSIZE:  return OnNcCalcSize(ctl, args);
    case WM_NCPAINT:     return OnNcPaint(ctl, args);
    case WM_TIMER:       return OnTimer(ctl, args);
    default:             return OnEditMessage(ctl, args);
    }
}

LRESULT OnInput(HEditCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case WM_KEYDOWN:     return OnKeyDown(ctl, args);
    case WM_KEYUP:       return OnKeyUp(ctl, args);
    case WM_SYSKEYDOWN:  return OnSysKeyDown(ctl, args);
    case WM_CHAR:        return OnChar(ctl, args);
    case WM_SETCURSOR:   return OnSetCursor(ctl, args);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE:   return OnMouse(ctl, args);
    default:             return OnWindowMessage(ctl, args);
    }
}

} // namespace

LRESULT CALLBACK HEditMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record)
{
    const MsgArgs args = { hwnd, message, wParam, lParam, pDefault };
    HEditCtl* const ctl = static_cast<HEditCtl*>(record);
    if (IsCreation(args, record)) {
        return OnNcCreate(args);
    }
    if (!ctl) {
        return AskDefault(args);
    }
    if (message == WM_NCDESTROY) {
        OnNcDestroy(ctl);
        return AskDefault(args);
    }
    if (const EditHandler handler = FindEditHandler(message)) {
        return handler(ctl, args);
    }
    return OnInput(ctl, args);
}

LRESULT CALLBACK HEditWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return HandleMsg(hwnd, message, wParam, lParam, HEditMsgHandler, 0);
}
