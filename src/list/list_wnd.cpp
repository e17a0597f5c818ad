// The list control's window procedure, the life of its record, and the sorting of the system's messages.
#include "foundation/gdi_guards.h"
#include "foundation/memory.h"
#include "foundation/startup.h"
#include "list/list_internal.h"

namespace {

constexpr DWORD fieldStyles = 0x74D7; // of the low word: what a field keeps

HBRUSH FocusBrushForWindowColor()
{
    constexpr COLORREF white = 0x00FFFFFF;
    return static_cast<HBRUSH>(GetStockObject(GetSysColor(COLOR_WINDOW) == white ? LTGRAY_BRUSH : WHITE_BRUSH));
}

void ReduceStyle(HListCtl* ctl)
{
    if (HasStyle(ctl, HLS_FIELD)) {
        ctl->dwStyle &= 0xFFFF0000 | fieldStyles;
        ctl->dwStyle &= ~static_cast<DWORD>(WS_VSCROLL);
        return;
    }
    if (HasStyle(ctl, HLS_MULTICOLUMN)) {
        ctl->dwStyle &= ~static_cast<DWORD>(HLS_NOINTEGRAL);
    }
    if (HasStyle(ctl, HLS_EXTSEL)) {
        ctl->dwStyle &= ~static_cast<DWORD>(HLS_MULTISEL);
    }
}

void FillRecord(HListCtl* ctl, HWND hwnd, const CREATESTRUCTA& create)
{
    ctl->hWnd = hwnd;
    ctl->hParent = create.hwndParent;
    ctl->wId = LOWORD(create.hMenu);
    ctl->dwStyle = static_cast<DWORD>(create.style);
    if (HasStyle(ctl, HLS_FOCUSBRUSH)) {
        ctl->hFocusBrush = FocusBrushForWindowColor();
    }
    ReduceStyle(ctl);
    if (!HasStyle(ctl, HLS_EXTSEL | HLS_MULTISEL)) {
        SetFlag(ctl, HLF_SINGLESEL | CF_NULL, true);
        ctl->nCurrent = -1;
    }
    ctl->nHot = -1;
}

// A dialog template may give a number in place of a text.
const char* WindowTextOf(const CREATESTRUCTA& create)
{
    return create.lpszName && !IS_INTRESOURCE(create.lpszName) ? create.lpszName : "";
}

void FreeRecord(HListCtl* ctl)
{
    HLFreeItems(ctl);
    HBlockFree(ctl);
}

LRESULT OnSetText(HListCtl* ctl, const MsgArgs& args)
{
    const char* const text = reinterpret_cast<const char*>(args.lParam);
    return text && *text == '%' ? HLApplyType(ctl, text) : 0;
}

LRESULT OnSize(HListCtl* ctl)
{
    HLRecalc(ctl);
    return 1;
}

LRESULT OnSetCursor()
{
    SetCursor(hCurArrow);
    return 1;
}

LRESULT OnMouseActivate(const MsgArgs& args)
{
    if (GetFocus() != args.hwnd) {
        SetFocus(args.hwnd);
    }
    return AskDefault(args);
}

// The frame stores the font and sends WM_SIZE behind this.
LRESULT OnSetFont(HListCtl* ctl, const MsgArgs& args)
{
    SetFlag(ctl, HLF_FONTSET, true);
    return AskDefault(args);
}

// The height is trimmed to whole rows.
LRESULT OnPosChanging(HListCtl* ctl, const MsgArgs& args)
{
    WINDOWPOS* const pos = reinterpret_cast<WINDOWPOS*>(args.lParam);
    const bool trims = HasFlag(ctl, HLF_FONTSET) && !HasStyle(ctl, HLS_FIELD | HLS_NOINTEGRAL);
    if (trims && !(pos->flags & SWP_NOSIZE)) {
        const int border = HasStyle(ctl, HLS_3DBORDER) ? 4 : 2;
        pos->cy -= border;
        pos->cy += border - pos->cy % HLRowHeight(ctl);
    }
    return AskDefault(args);
}

bool HasBorder(const HListCtl* ctl)
{
    return HasStyle(ctl, WS_BORDER);
}

// A side that is too short for the border ends up empty, not turned over.
void Shrink(LONG* low, LONG* high, int by)
{
    const LONG middle = *low + (*high - *low) / 2;
    *low = std::min(*low + by, std::max(*low, middle));
    *high = std::max(*high - by, *low);
}

LRESULT OnNcCalcSize(HListCtl* ctl, const MsgArgs& args)
{
    if (!HasStyle(ctl, HLS_3DBORDER)) {
        return AskDefault(args);
    }
    DefWindowProcA(args.hwnd, args.message, args.wParam, args.lParam);
    RECT* const rect = reinterpret_cast<RECT*>(args.lParam);
    const int   width = HasBorder(ctl) ? 1 : 2;
    Shrink(&rect->left, &rect->right, width);
    Shrink(&rect->top, &rect->bottom, width);
    return 1;
}

LRESULT OnNcPaint(HListCtl* ctl, const MsgArgs& args)
{
    DefWindowProcA(args.hwnd, args.message, args.wParam, args.lParam);
    if (HasStyle(ctl, HLS_3DBORDER)) {
        HNCPaint(args.hwnd, HasBorder(ctl));
    }
    return 1;
}

LRESULT OnSetFocus(HListCtl* ctl, const MsgArgs& args)
{
    HadFocus(ctl) = true;
    if (HasStyle(ctl, HLS_FIELD | HLS_FOCUSBRUSH)) {
        InvalidateRect(args.hwnd, nullptr, HasStyle(ctl, HLS_FOCUSBRUSH));
    } else {
        HLShowFocus(ctl, HLCurIndex(ctl));
    }
    HUpdateTop(args.hwnd);
    if (IsWindow(args.hwnd)) {
        Notify(ctl, HLN_SETFOCUS);
    }
    return 1;
}

LRESULT OnKillFocus(HListCtl* ctl, const MsgArgs& args)
{
    HadFocus(ctl) = false;
    if (HasStyle(ctl, HLS_FIELD | HLS_FOCUSBRUSH)) {
        InvalidateRect(args.hwnd, nullptr, TRUE);
        UpdateWindow(args.hwnd);
    } else {
        HLHideFocus(ctl, HLCurIndex(ctl));
    }
    if (IsWindow(args.hwnd)) {
        Notify(ctl, HLN_KILLFOCUS);
    }
    return 0;
}

LRESULT OnErase(HListCtl* ctl, const MsgArgs& args)
{
    HLFillBackground(ctl, reinterpret_cast<HDC>(args.wParam), nullptr, nullptr);
    return 1;
}

LRESULT OnShowWindow(HListCtl* ctl, const MsgArgs& args)
{
    if (!args.wParam) {
        ctl->nHot = -1;
    }
    return AskDefault(args);
}

LRESULT OnVScroll(HListCtl* ctl, const MsgArgs& args)
{
    int delta = 0;
    switch (LOWORD(args.wParam)) {
    case SB_LINEUP:     delta = -1; break;
    case SB_LINEDOWN:   delta = 1; break;
    case SB_PAGEUP:     delta = std::min<int>(2 - ctl->cRows, -1); break;
    case SB_PAGEDOWN:   delta = std::max<int>(ctl->cRows - 2, 1); break;
    case SB_THUMBTRACK: delta = HIWORD(args.wParam) - GetScrollPos(args.hwnd, SB_VERT); break;
    default:            return 0; // SB_THUMBPOSITION too
    }
    if (delta != 0 && HasStyle(ctl, HLS_FIELD)) {
        HLSetCurrent(ctl, std::max<int>(ctl->nTop + delta, 0), true, false);
    } else if (delta != 0) {
        HLScroll(ctl, delta);
    }
    return 0;
}

LRESULT OnHScroll(HListCtl* ctl, const MsgArgs& args)
{
    switch (LOWORD(args.wParam)) {
    case SB_LINELEFT:   HLScroll(ctl, -1); break;
    case SB_LINERIGHT:  HLScroll(ctl, 1); break;
    case SB_PAGELEFT:   HLScroll(ctl, -static_cast<int>(ctl->cCols)); break;
    case SB_PAGERIGHT:  HLScroll(ctl, ctl->cCols); break;
    case SB_THUMBTRACK: HLScroll(ctl, HIWORD(args.wParam) - GetScrollPos(args.hwnd, SB_HORZ)); break;
    default:            break;
    }
    return 0;
}

// A list that is disabled has other colours.
LRESULT OnEnable(const MsgArgs& args)
{
    InvalidateRect(args.hwnd, nullptr, TRUE);
    return AskDefault(args);
}

LRESULT OnDoubleClick(HListCtl* ctl)
{
    Notify(ctl, HLN_DBLCLK);
    return 1;
}

// A current item that is held by its code may have gone with it.
LRESULT OnIsNull(HListCtl* ctl, const MsgArgs& args)
{
    HLCurIndex(ctl);
    return AskDefault(args);
}

LRESULT OnCancelMode(HListCtl* ctl, const MsgArgs& args)
{
    ctl->wFlags |= CF_CANCEL;
    if (HasFlag(ctl, HLF_TRACKING)) {
        HLEndPress(ctl);
    }
    return IsWindow(args.hwnd) ? AskDefault(args) : 0;
}

// Who loses the mouse doesn't hear that the button goes up: the moves that come later are no dragging.
LRESULT OnCaptureChanged(HListCtl* ctl, const MsgArgs& args)
{
    const bool loses = reinterpret_cast<HWND>(args.lParam) != args.hwnd;
    if (loses && HasFlag(ctl, HLF_TRACKING)) {
        HLEndPress(ctl);
    }
    return IsWindow(args.hwnd) ? AskDefault(args) : 0;
}

LRESULT OnWindowMessage(HListCtl* ctl, const MsgArgs& args)
{
    constexpr LRESULT wantAllKeys = DLGC_WANTALLKEYS;
    constexpr LRESULT wantSome = DLGC_WANTARROWS | DLGC_WANTCHARS;
    switch (args.message) {
    case WM_SIZE:              return OnSize(ctl);
    case WM_SETTEXT:           return OnSetText(ctl, args);
    case WM_GETTEXT:           return FindListHandler(HLM_GETFORMAT)(ctl, args);
    case WM_SHOWWINDOW:        return OnShowWindow(ctl, args);
    case WM_CANCELMODE:        return OnCancelMode(ctl, args);
    case WM_SETFONT:           return OnSetFont(ctl, args);
    case WM_WINDOWPOSCHANGING: return OnPosChanging(ctl, args);
    case WM_NCCALCSIZE:        return OnNcCalcSize(ctl, args);
    case WM_NCPAINT:           return OnNcPaint(ctl, args);
    case WM_ENABLE:            return OnEnable(args);
    case WM_PAINT:             return HLOnPaint(ctl, args);
    case WM_ERASEBKGND:        return OnErase(ctl, args);
    case WM_SETFOCUS:          return OnSetFocus(ctl, args);
    case WM_KILLFOCUS:         return OnKillFocus(ctl, args);
    case WM_GETDLGCODE:        return HasStyle(ctl, HLS_WANTKEYS) ? wantAllKeys : wantSome;
    case WWM_ISNULL:           return OnIsNull(ctl, args);
    default:                   return AskDefault(args);
    }
}

LRESULT OnInput(HListCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case WM_KEYDOWN:       return HLKeyDown(ctl, args);
    case WM_CHAR:          return HLOnChar(ctl, args);
    case WM_LBUTTONDOWN:   return HLOnButtonDown(ctl, args);
    case WM_MOUSEMOVE:     return HLOnMouseMove(ctl, args);
    case WM_LBUTTONUP:     return HLOnButtonUp(ctl, args);
    case WM_LBUTTONDBLCLK: return OnDoubleClick(ctl);
    case WM_CAPTURECHANGED: return OnCaptureChanged(ctl, args);
    case WM_VSCROLL:       return OnVScroll(ctl, args);
    case WM_HSCROLL:       return OnHScroll(ctl, args);
    case WM_SETCURSOR:     return OnSetCursor();
    case WM_MOUSEACTIVATE: return OnMouseActivate(args);
    default:               return OnWindowMessage(ctl, args);
    }
}

} // namespace

LRESULT HLOnNcCreate(const MsgArgs& args)
{
    const CREATESTRUCTA& create = *reinterpret_cast<const CREATESTRUCTA*>(args.lParam);
    ListBlock* const block = HRecordAlloc<ListBlock>();
    if (!block) {
        return 0;
    }
    HListCtl* const ctl = &block->ctl;
    FillRecord(ctl, args.hwnd, create);
    if (!HLApplyType(ctl, WindowTextOf(create))) {
        FreeRecord(ctl);
        return 0;
    }
    SendMessageA(args.hwnd, WWM_SETSTATE, 0, reinterpret_cast<LPARAM>(ctl));
    return DefWindowProcA(args.hwnd, args.message, args.wParam, args.lParam);
}

void HLOnNcDestroy(HListCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    FreeRecord(ctl);
    SendMessageA(hwnd, WWM_SETSTATE, 0, 0);
}

LRESULT CALLBACK HListMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record)
{
    const MsgArgs args = { hwnd, message, wParam, lParam, pDefault };
    HListCtl* const ctl = static_cast<HListCtl*>(record);
    if (IsCreation(args, record)) {
        return HLOnNcCreate(args);
    }
    if (!ctl) {
        return AskDefault(args);
    }
    if (message == WM_NCDESTROY) {
        HLOnNcDestroy(ctl);
        return AskDefault(args);
    }
    if (const ListHandler handler = FindListHandler(message)) {
        return handler(ctl, args);
    }
    return OnInput(ctl, args);
}

LRESULT CALLBACK HListWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return HandleMsg(hwnd, message, wParam, lParam, HListMsgHandler, 0);
}
