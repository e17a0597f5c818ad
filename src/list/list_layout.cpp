// Where the items of a list control stand: rows and columns, the scroll range, and scrolling.
#include "dialog/scroll_bar.h"
#include "foundation/item_list.h"
#include "list/list_internal.h"

#include <cstdint>

namespace {

bool IsField(const HListCtl* ctl)
{
    return HasStyle(ctl, HLS_FIELD);
}
bool HasColumns(const HListCtl* ctl)
{
    return HasStyle(ctl, HLS_MULTICOLUMN);
}

// What the parent says of the height of a drawn item; 0 if it says nothing.
int MeasuredHeight(HListCtl* ctl)
{
    constexpr UINT listControl = 2; // ODT_LISTBOX
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = listControl;
    measure.CtlID = ctl->wId;
    SendMessageA(ctl->hParent, WM_MEASUREITEM, ctl->wId, reinterpret_cast<LPARAM>(&measure));
    return static_cast<int>(measure.itemHeight);
}

void SetColumnWidth(HListCtl* ctl)
{
    if (HasFlag(ctl, HLF_FIXEDCOLUMN)) {
        return;
    }
    const int width = ctl->rcClient.right;
    const int widest = HasColumns(ctl) ? HLMaxItemWidth(ctl) : 0;
    const bool fits = HasColumns(ctl) && widest <= width * 4 / 5;
    ctl->cxColumn = fits ? widest : std::max(width, 1);
}

// Whole rows or columns within a length, and with the last one that shows in part; at least 1.
int CountWithin(int length, int size, bool partial)
{
    return std::max(length / size + (partial ? 1 : 0), 1);
}

void CountRowsAndColumns(HListCtl* ctl)
{
    const int height = ctl->rcClient.bottom;
    const int rowHeight = ctl->cyRow;
    SetFlag(ctl, HLF_PARTIAL, HasStyle(ctl, HLS_NOINTEGRAL) && height % rowHeight != 0);
    ctl->cRows = CountWithin(height, rowHeight, HasFlag(ctl, HLF_PARTIAL));
    ctl->cCols = 1;
    if (HasColumns(ctl)) {
        const int width = ctl->rcClient.right;
        const int column = std::max<int>(ctl->cxColumn, 1);
        SetFlag(ctl, HLF_PARTIAL, width % column != 0);
        ctl->cCols = CountWithin(width, column, HasFlag(ctl, HLF_PARTIAL));
    }
}

int Partial(const HListCtl* ctl)
{
    return HasFlag(ctl, HLF_PARTIAL) ? 1 : 0;
}

int ScrollMaximum(const HListCtl* ctl)
{
    const int last = std::max(LastItem(ctl), -1);
    const int maximum = HasColumns(ctl) ? last / ctl->cRows + Partial(ctl) - ctl->cCols + 1 : HLCount(ctl);
    return std::max(maximum, 0);
}

// The highest position that scrolling reaches.
int HighestPosition(const HListCtl* ctl)
{
    const int last = std::max(LastItem(ctl), -1);
    const int rows = std::max<int>(ctl->cRows, 1);
    const int highest = HasColumns(ctl) ? Partial(ctl) + 1 + last / rows - ctl->cCols
                                        : Partial(ctl) - ctl->cRows + HLCount(ctl);
    return std::max(highest, 0);
}

// The first visible item doesn't lie behind the last one, and the scroll position goes with it whether items went, rows
// became more or fewer, or others came in front of the item that a field shows: or nothing would be painted. A list
// without columns doesn't stand further on than it scrolls either, or it would show blank rows below its last items.
void LimitTop(HListCtl* ctl)
{
    const int last = std::max(LastItem(ctl), 0);
    if (HasColumns(ctl)) {
        ctl->nScrollPos = std::min<int>(ctl->nScrollPos, last / ctl->cRows);
        ctl->nTop = ctl->nScrollPos * ctl->cRows;
        return;
    }
    const int current = IsField(ctl) ? HLCurIndex(ctl) : -1;
    const int highest = IsField(ctl) ? last : std::min(last, HighestPosition(ctl));
    if (current >= 0 || ctl->nTop > highest) {
        ctl->nTop = std::min(current >= 0 ? current : highest, highest);
        ctl->nScrollPos = ctl->nTop;
    }
}

// false: a bar that came or went has changed the window's size, and the parent, which was asked for the new layout, has
// destroyed the list.
bool SetBar(HListCtl* ctl, int maximum)
{
    const HWND  hwnd = ctl->hWnd;
    const int   bar = HasColumns(ctl) ? SB_HORZ : SB_VERT;
    const DWORD shown = bar == SB_VERT ? WS_VSCROLL : WS_HSCROLL;
    const bool  wasShown = (static_cast<DWORD>(GetWindowLongA(hwnd, GWL_STYLE)) & shown) != 0;
    if (bar == SB_VERT) {
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_PAGE;
        info.nPage = static_cast<UINT>(ctl->cRows + 1);
        SetScrollInfo(hwnd, bar, &info, FALSE);
    }
    SetScrollRange(hwnd, bar, 0, maximum, FALSE);
    if (!IsWindow(hwnd)) {
        return false;
    }
    // A bar that came is painted with the frame: drawing it costs more than adding thousands of items.
    SetScrollPos(hwnd, bar, ctl->nScrollPos, wasShown);
    return true;
}

void PaintBorder(HListCtl* ctl)
{
    if (HasStyle(ctl, HLS_3DBORDER)) {
        HNCPaint(ctl->hWnd, HasStyle(ctl, WS_BORDER));
    }
}

void MoveBar(HListCtl* ctl, int pos)
{
    if (HasColumns(ctl)) {
        HSetBarPos(ctl->hWnd, SB_HORZ, pos, true);
    } else if (!IsField(ctl)) {
        HSetBarPos(ctl->hWnd, SB_VERT, pos, true);
    }
    PaintBorder(ctl);
}

// Moves what is on the screen by d rows or columns.
void MovePixels(HListCtl* ctl, int d)
{
    RECT rect = ctl->rcClient;
    if (IsField(ctl)) {
        InvalidateRect(ctl->hWnd, &rect, HLCount(ctl) == 0);
    } else if (HasColumns(ctl)) {
        ScrollWindow(ctl->hWnd, -(ctl->cxColumn * d), 0, &rect, &rect);
    } else {
        rect.bottom = rect.top + ctl->cRows * ctl->cyRow;
        ScrollWindow(ctl->hWnd, 0, -(ctl->cyRow * d), &rect, &rect);
    }
    UpdateWindow(ctl->hWnd);
}

} // namespace

int HLRowHeight(HListCtl* ctl)
{
    RECT client = {};
    if (IsField(ctl)) {
        GetClientRect(ctl->hWnd, &client);
        return std::max<int>(client.bottom, 1);
    }
    const HFONT font = ctl->hFont; // the parent may destroy the list while it is asked
    const int   measured = HasStyle(ctl, HLS_OWNERDRAW) ? MeasuredHeight(ctl) : 0;
    return std::max<int>(measured ? measured : HIWORD(GetBaseUnits(font)), 1);
}

void HLRecalc(HListCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    RECT client = {};
    GetClientRect(hwnd, &client);
    ctl->rcClient = client;
    const int rowHeight = HLRowHeight(ctl);
    if (!IsWindow(hwnd)) {
        return;
    }
    ctl->cyRow = rowHeight;
    SetColumnWidth(ctl);
    CountRowsAndColumns(ctl);
    const int maximum = ScrollMaximum(ctl);
    LimitTop(ctl);
    if (ctl->nHot >= HLCount(ctl)) {
        ctl->nHot = -1; // it went, and the mouse may stand still
    }
    InvalidateRect(hwnd, nullptr, TRUE);
    if (ctl->nScrollPos > maximum) {
        HLScroll(ctl, 0);
        if (!IsWindow(hwnd)) {
            return;
        }
    }
    if (!HasStyle(ctl, HLS_NOSCROLL) && !SetBar(ctl, maximum)) {
        return;
    }
    if (!HasFlag(ctl, HLF_NOREDRAW)) {
        PaintBorder(ctl);
    }
}

bool HLItemRect(HListCtl* ctl, int index, RECT* out)
{
    *out = ctl->rcClient;
    if (index < ctl->nTop) {
        out->bottom = out->top;
        return false;
    }
    if (index >= ctl->nTop + ctl->cRows * ctl->cCols) {
        out->top = out->bottom;
        return false;
    }
    if (IsField(ctl)) {
        out->left += 1;
        out->right -= 1;
        return true;
    }
    if (HasColumns(ctl)) {
        out->left += (index / ctl->cRows - ctl->nScrollPos) * ctl->cxColumn;
        out->top += index % ctl->cRows * ctl->cyRow;
        out->right = out->left + ctl->cxColumn;
    } else {
        out->top += (index - ctl->nScrollPos) * ctl->cyRow;
    }
    out->bottom = out->top + ctl->cyRow;
    return true;
}

void HLInvalidateItem(HListCtl* ctl, int index, bool erase)
{
    RECT rect;
    if (HLItemRect(ctl, index, &rect)) {
        ++rect.right;
        ++rect.bottom;
        InvalidateRect(ctl->hWnd, &rect, erase);
    }
}

void HLInvalidateSelected(HListCtl* ctl)
{
    if (!HasFlag(ctl, HLF_SINGLESEL) && HLListCount(ctl->pSelected) > 0) {
        InvalidateRect(ctl->hWnd, nullptr, TRUE);
    }
}

// An item out of view counts with the edge behind which it lies. Where the range goes on in another column, the columns
// count as a whole: items between the two lie above and below both.
RECT HLRangeRect(HListCtl* ctl, int a, int b)
{
    const int rows = std::max<int>(ctl->cRows, 1);
    RECT first;
    RECT second;
    HLItemRect(ctl, a, &first);
    HLItemRect(ctl, b, &second);
    if (HasColumns(ctl) && a / rows != b / rows) {
        first.top = ctl->rcClient.top;
        second.bottom = first.top + rows * ctl->cyRow;
    }
    return { std::min(first.left, second.left), std::min(first.top, second.top), std::max(first.right, second.right),
             std::max(first.bottom, second.bottom) };
}

void HLInvalidateRange(HListCtl* ctl, int a, int b, bool erase)
{
    const RECT rect = HLRangeRect(ctl, a, b);
    InvalidateRect(ctl->hWnd, &rect, erase);
}

int HLItemFromPoint(HListCtl* ctl, int x, int y)
{
    if (ctl->cyRow == 0) {
        return -1;
    }
    const int last = std::max(LastItem(ctl), -1);
    const int rows = std::max<int>(ctl->cRows, 1);
    int row = y / ctl->cyRow;
    int column = 0;
    if (HasColumns(ctl)) {
        const int width = std::max<int>(ctl->cxColumn, 1);
        column = ctl->nScrollPos + x / width - (x < 0 ? 1 : 0);
        column = std::clamp(column, 0, std::max(last / rows, 0));
        row = std::clamp(row, 0, rows); // Settled: one past the last row.
    } else {
        row += ctl->nTop - (y < 0 ? 1 : 0);
    }
    const std::int64_t index = static_cast<std::int64_t>(rows) * column + row;
    return static_cast<int>(std::clamp<std::int64_t>(index, 0, std::max(last, 0)));
}

int HLScroll(HListCtl* ctl, int delta)
{
    const int pos = ctl->nScrollPos;
    const int d = std::min(std::max(delta, -pos), std::max(HighestPosition(ctl) - pos, -pos));
    MoveBar(ctl, pos + d);
    if (d == 0) {
        return 0;
    }
    ctl->nScrollPos = pos + d;
    ctl->nTop = HasColumns(ctl) ? (pos + d) * ctl->cRows : pos + d;
    MovePixels(ctl, d);
    return d;
}
