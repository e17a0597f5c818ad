// How a list control puts itself on the screen: background, items, and the rectangle that shows the focus.
#include "foundation/gdi_guards.h"
#include "foundation/startup.h"
#include "list/list_internal.h"

namespace {

constexpr int  listKind = 2; // what FireCtlColorMsg asks for
constexpr int  staticKind = 6;
constexpr WORD comboListId = 2;
constexpr UINT stateFocused = ODS_FOCUS;
constexpr int  glyphsPayFrom = 8; // items

// The list whose background was filled last, and with what: in a repaint that begins with it, items need no filling of
// their own.
const HListCtl* gFilled;
HBRUSH          gFilledWith;
HBRUSH          gAnswer; // what WM_CTLCOLORLISTBOX gave for it: the repaint need not ask again at once

// The question to the system costs as much as some rows of text; a list that knows the answer doesn't ask.
bool IsFocused(HListCtl* ctl)
{
    return HadFocus(ctl) && GetFocus() == ctl->hWnd;
}

// So is a list whose parent is.
bool IsListDisabled(const HListCtl* ctl)
{
    return !IsWindowEnabled(ctl->hWnd) || (ctl->hParent && !IsWindowEnabled(ctl->hParent));
}

// The list's own brush, or null.
HBRUSH OwnBrush(HListCtl* ctl)
{
    if (HasStyle(ctl, HLS_FOCUSBRUSH) && ctl->hFocusBrush && IsFocused(ctl)) {
        return ctl->hFocusBrush;
    }
    return ctl->hBkBrush;
}

// A combo's list shows by the library's brush that the combo has the focus. null: nobody has a brush.
HBRUSH AskForBrush(HListCtl* ctl, HDC hdc)
{
    const HWND hwnd = ctl->hWnd;
    if (IsListDisabled(ctl)) {
        const HBRUSH brush = FireCtlColorMsg(ctl, staticKind, hdc);
        if (brush || !IsWindow(hwnd)) {
            return brush;
        }
    }
    if (hFocusBrush && LOWORD(ctl->wId) == comboListId && GetFocus() == ctl->hParent) {
        return hFocusBrush;
    }
    gAnswer = FireCtlColorMsg(ctl, listKind, hdc);
    return gAnswer;
}

void Fill(HDC hdc, const RECT& rect, HBRUSH brush)
{
    if (rect.left >= rect.right || rect.top >= rect.bottom || !brush) {
        return;
    }
    const SelectedObject selected(hdc, brush);
    PatBlt(hdc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, PATCOPY);
}

// One paint under way.
struct ListPaint {
    HListCtl* ctl;
    HDC       hdc;
    HWND      hwnd;
    bool      focused; // of a field and of a drawn list; the others don't look
    bool      isField;
    int       current; // searched at each question if it is held by its code
    HBRUSH    brush; // of items that aren't highlighted
    COLORREF  color;     // 0: the list's own
    COLORREF  backColor; // of brush, if it has just one
    bool      hasBackColor;
    bool      isFilled; // with brush
    COLORREF  highlight;

    const AsciiGlyphs* glyphs; // null where the items are too few for a search of them
};

bool GetColor(HBRUSH brush, COLORREF* color)
{
    LOGBRUSH info = {};
    if (!brush || !GetObjectA(brush, sizeof info, &info) || info.lbStyle != BS_SOLID) {
        return false;
    }
    *color = info.lbColor;
    return true;
}

// How one item shows.
struct ItemLook {
    bool marked;
    bool highlighted;
};

ItemLook LookOf(const ListPaint& paint, int index)
{
    HListCtl* const ctl = paint.ctl;
    const bool      selected = IsSelectedBeside(ctl, index, paint.current);
    const bool      marked = index == ctl->nHot || (ctl->nHot == -1 && selected);
    return { marked, paint.isField ? paint.focused : marked };
}

void PaintOwned(const ListPaint& paint, const RECT& rect, int index, const ItemLook& look)
{
    const SelectedObject brush(paint.hdc, look.highlighted ? GetSysColorBrush(COLOR_HIGHLIGHT) : paint.brush);
    const SelectedObject pen(paint.hdc, GetStockObject(NULL_PEN));
    const UINT state = (paint.focused ? stateFocused : 0) + (look.highlighted ? 1 : 0);
    HLDrawOwned(paint.ctl, paint.hdc, rect, paint.isField && !look.marked ? -1 : index, ODA_SELECT, state);
}

// Whether text and background of an item go to the screen in one call, which takes half the time of two.
bool DrawsAtOnce(const ListPaint& paint, const ItemLook& look)
{
    const bool hasText = look.marked || !paint.isField;
    return hasText && !HasStyle(paint.ctl, HLS_TABS) && (look.highlighted || paint.hasBackColor);
}

bool NeedsFilling(const ListPaint& paint, const ItemLook& look)
{
    return look.highlighted || !(look.marked || paint.isFilled);
}

// The current item of a field without the focus: what a disabled list or a combo's one shows may differ.
bool HasPlainMark(const ItemLook& look)
{
    return look.marked && !look.highlighted;
}

// The background goes under the text at once, so that neither shows without the other for long.
void PaintItemItself(const ListPaint& paint, const RECT& rect, int index, const ItemLook& look)
{
    const bool fills = NeedsFilling(paint, look);
    const bool atOnce = fills && DrawsAtOnce(paint, look);
    if (atOnce) {
        SetBkColor(paint.hdc, look.highlighted ? paint.highlight : paint.backColor);
    } else if (fills) {
        Fill(paint.hdc, rect, look.highlighted ? GetSysColorBrush(COLOR_HIGHLIGHT) : paint.brush);
    }
    if (look.marked || !paint.isField) {
        HLDrawItemText(paint.ctl, paint.hdc, rect, index, { look.highlighted, paint.color, atOnce, paint.glyphs });
    }
}

// false: the host, who is asked about some items, has destroyed the list.
bool PaintItem(const ListPaint& paint, int index)
{
    RECT rect;
    HLItemRect(paint.ctl, index, &rect);
    const ItemLook look = LookOf(paint, index);
    SetBkMode(paint.hdc, look.highlighted ? OPAQUE : TRANSPARENT);
    if (look.highlighted) {
        SetBkColor(paint.hdc, paint.highlight);
    }
    if (HasPlainMark(look)) {
        HLFillBackground(paint.ctl, paint.hdc, &rect, nullptr);
        if (!IsWindow(paint.hwnd)) {
            return false;
        }
    }
    if (HasStyle(paint.ctl, HLS_OWNERDRAW)) {
        PaintOwned(paint, rect, index, look);
        return IsWindow(paint.hwnd) != 0;
    }
    PaintItemItself(paint, rect, index, look);
    return true;
}

void PaintItems(ListPaint paint, const RECT& area)
{
    HListCtl* const ctl = paint.ctl;
    // From the very first pixel on: it may be the last one of its item.
    const int   first = paint.isField ? ctl->nTop : HLItemFromPoint(ctl, area.left, area.top);
    const int   last = paint.isField ? ctl->nTop : HLItemFromPoint(ctl, area.right - 1, area.bottom - 1);
    AsciiGlyphs glyphs;
    if (last - first + 1 >= glyphsPayFrom && !HasStyle(ctl, HLS_OWNERDRAW)) {
        glyphs = FindAsciiGlyphs(paint.hdc);
        paint.glyphs = &glyphs;
    }
    int index = first;
    while (index <= last && PaintItem(paint, index)) {
        ++index;
    }
}

// A procedure of the host's may have drawn over the background.
bool IsOwnProcedure(HWND hwnd)
{
    return GetWindowLongPtrA(hwnd, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(HListWnd);
}

} // namespace

void HLFillBackground(HListCtl* ctl, HDC hdc, const RECT* rect, HBRUSH brush)
{
    const HWND hwnd = ctl->hWnd;
    RECT       area = {};
    if (rect) {
        area = *rect;
    } else {
        GetClientRect(hwnd, &area);
    }
    HBRUSH chosen = OwnBrush(ctl);
    if (!chosen) {
        chosen = brush ? brush : AskForBrush(ctl, hdc);
    }
    Fill(hdc, area, chosen);
    if (!rect) {
        gFilled = ctl;
        gFilledWith = chosen;
    }
}

void HLPaint(HListCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    gFilled = nullptr;
    gAnswer = nullptr;
    const PaintDC dc(hwnd); // asks for the background first, if that is to be filled
    const HBRUSH  answer = gFilled == ctl ? gAnswer : nullptr;
    const HBRUSH  filledWith = gFilled == ctl && IsOwnProcedure(hwnd) ? gFilledWith : nullptr;
    if (!dc.hdc || !IsWindow(hwnd) || HLCount(ctl) == 0) {
        return;
    }
    HBRUSH brush = OwnBrush(ctl);
    if (!brush) {
        brush = answer ? answer : FireCtlColorMsg(ctl, listKind, dc.hdc);
    }
    if (!IsWindow(hwnd)) {
        return;
    }
    const SelectedObject font(dc.hdc, ctl->hFont);
    const COLORREF       color = IsListDisabled(ctl) ? GetSysColor(COLOR_GRAYTEXT) : 0;
    const bool           focused = HasStyle(ctl, HLS_FIELD | HLS_OWNERDRAW) && IsFocused(ctl);
    COLORREF             backColor = 0;
    const bool           hasBackColor = GetColor(brush, &backColor);
    const COLORREF       highlight = GetSysColor(COLOR_HIGHLIGHT);
    const bool           isField = HasStyle(ctl, HLS_FIELD);
    const int            current = HLCurIndex(ctl);
    const bool           isFilled = brush && brush == filledWith;
    const ListPaint      paint = { ctl,   dc.hdc, hwnd,      focused,      isField,  current,
                                   brush, color,  backColor, hasBackColor, isFilled, highlight,
                                   nullptr };
    PaintItems(paint, dc.ps.rcPaint);
}

void HLShowFocus(HListCtl* ctl, int index)
{
    if (HasFlag(ctl, HLF_FOCUSRECT)) {
        return;
    }
    SetFlag(ctl, HLF_FOCUSRECT, true);
    const int      item = ClampItem(ctl, index);
    RECT           rect;
    const bool     visible = HLItemRect(ctl, item, &rect);
    const WindowDC window(ctl->hWnd);
    if (HasStyle(ctl, HLS_OWNERDRAW)) {
        HLDrawOwned(ctl, window.hdc, rect, item, ODA_FOCUS, stateFocused);
    } else if (visible && !IsRectEmpty(&rect)) {
        DrawFocusRect(window.hdc, &rect);
    }
}

void HLHideFocus(HListCtl* ctl, int index)
{
    SetFlag(ctl, HLF_FOCUSRECT, false);
    HLInvalidateItem(ctl, ClampItem(ctl, index), true);
    HLPaint(ctl);
}

LRESULT HLOnPaint(HListCtl* ctl, const MsgArgs& args)
{
    if (HasFlag(ctl, HLF_NOREDRAW)) {
        return 0;
    }
    const bool focused = IsFocused(ctl);
    if (focused && HasFlag(ctl, HLF_FOCUSRECT)) {
        HLHideFocus(ctl, HLCurIndex(ctl));
    } else {
        HLPaint(ctl);
    }
    if (focused && IsWindow(args.hwnd) && !HasFlag(ctl, HLF_FOCUSRECT)) {
        HLShowFocus(ctl, HLCurIndex(ctl));
    }
    return 0;
}
