// The selection on the screen: its rectangle, and the inversion that shows and removes it.
// Cells are drawn plainly; what is selected is inverted over them, so each change inverts exactly what it changes.
#include "gridctl/grid_paint.h"

#include "foundation/gdi_guards.h"

#include <widgets/widgets.h>

#include <algorithm>

namespace {

constexpr int invertRectBits = 9; // bits per pixel from which an inversion looks the same everywhere
constexpr int frameWidth = 2;
constexpr int frameLimit = 5;

int BandOf(const HGridCtl* ctl, int col)
{
    const HGField* const field = col < 0 ? nullptr : HGGetField(ctl->pData, col);
    return field ? field->nBand : 0;
}

void UniteWithColumn(HGridCtl* ctl, RECT* rect, int col)
{
    RECT other;
    HGColExtent(ctl, &other, col);
    HGUnionRect(rect, rect, &other);
}

// Takes the lines of the other bands out of the clip: count lines of a height from y on, but for one.
void ExcludeOtherLines(HDC hdc, const RECT& rect, int y, int height, int band, int bands)
{
    if (band > 0) {
        ExcludeClipRect(hdc, rect.left, y, rect.right, y + height * band);
    }
    if (band < bands - 1) {
        ExcludeClipRect(hdc, rect.left, y + (band + 1) * height, rect.right, y + height * bands);
    }
}

void ExcludeOtherBands(HGridCtl* ctl, HDC hdc, const RECT& rect, int band)
{
    RECT data;
    RECT client;
    HGDataRect(ctl, &data);
    HGClientRect(ctl, &client);
    const int rowHeight = ctl->pData->nRowHeight;
    if (HasStyle(ctl, HGS_COLHEADERS)) {
        ExcludeOtherLines(hdc, rect, 0, ctl->pData->nHdrHeight, band, ctl->cBands);
    }
    const LONG bottom = std::min(rect.bottom, client.bottom);
    for (int y = data.top; y < bottom && rowHeight > 0; y += rowHeight * ctl->cBands) {
        ExcludeOtherLines(hdc, rect, y, rowHeight, band, ctl->cBands);
    }
}

// The columns' zone: that of the fixed ones if the selection begins in it.
void SelectionZone(HGridCtl* ctl, RECT* zone, Cell anchor, Cell cur)
{
    HGZoneRect(ctl, zone, HGIsFixedCol(ctl, std::min(anchor.col, cur.col)));
}

// From a fixed column into the scrolling zone a range takes all fixed columns behind it, also where its other end has been
// scrolled under them.
void ReachZone(HGridCtl* ctl, RECT* rect, int colA, int colB)
{
    if (HGIsFixedCol(ctl, colA) != HGIsFixedCol(ctl, colB)) {
        RECT zone;
        HGScrollRect(ctl, &zone);
        rect->right = std::max(rect->right, zone.left);
    }
}

int CellsRect(HGridCtl* ctl, RECT* rect, Cell anchor, Cell cur)
{
    HGCellRect(ctl, rect, anchor.col, anchor.row, false);
    if (anchor == cur) {
        return 0;
    }
    RECT other;
    RECT data;
    HGCellRect(ctl, &other, cur.col, cur.row, false);
    HGDataRect(ctl, &data);
    HGUnionRect(rect, rect, &other);
    ReachZone(ctl, rect, anchor.col, cur.col);
    HGBoundRect(rect, rect, &data);
    return 1;
}

void ColumnsRect(HGridCtl* ctl, RECT* rect, Cell anchor, Cell cur, HDC hdc)
{
    HGColExtent(ctl, rect, anchor.col);
    if (cur.col != anchor.col) {
        UniteWithColumn(ctl, rect, cur.col);
        ReachZone(ctl, rect, anchor.col, cur.col);
    }
    const int band = BandOf(ctl, anchor.col);
    if (hdc && ctl->cBands > 1 && band == BandOf(ctl, cur.col)) {
        ExcludeOtherBands(ctl, hdc, *rect, band);
    }
    RECT zone;
    SelectionZone(ctl, &zone, anchor, cur);
    HGBoundRect(rect, rect, &zone);
}

void RowsRect(HGridCtl* ctl, RECT* rect, Cell anchor, Cell cur)
{
    HGRowExtent(ctl, rect, anchor.row);
    if (cur.row != anchor.row) {
        RECT other;
        HGRowExtent(ctl, &other, cur.row);
        HGUnionRect(rect, rect, &other);
    }
}

bool HasFewColors(HDC hdc)
{
    return GetDeviceCaps(hdc, BITSPIXEL) < invertRectBits;
}

// On paletted screens an inversion would give any colour; a pen in XOR gives the same one everywhere.
void XorLines(HDC hdc, const RECT& rect)
{
    const OwnedObject<HPEN> pen(CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW)));
    const SelectedObject    selected(hdc, pen.h);
    const int               mode = SetROP2(hdc, R2_XORPEN);
    for (LONG y = rect.top; y < rect.bottom; ++y) {
        MoveToEx(hdc, rect.left, y, nullptr);
        LineTo(hdc, rect.right, y);
    }
    SetROP2(hdc, mode);
}

// Cells are bounded by their zone, and so is what begins right of the window's edge: what begins there is a whole row,
// whose header is inverted with it.
void InvertWithin(HDC hdc, RECT rect, const RECT& zone, bool isCell)
{
    if (isCell || rect.left > 0) {
        rect.left = std::max(rect.left, zone.left);
    }
    rect.right = std::min(rect.right, zone.right);
    if (rect.left >= rect.right) {
        return;
    }
    if (HasFewColors(hdc)) {
        XorLines(hdc, rect);
        return;
    }
    InvertRect(hdc, &rect);
}

void FrameWithin(HDC hdc, RECT rect, const RECT& zone, bool isCell)
{
    InvertWithin(hdc, rect, zone, isCell);
    if (rect.right - rect.left >= frameLimit && rect.bottom - rect.top >= frameLimit) {
        InflateRect(&rect, -frameWidth, -frameWidth);
        InvertWithin(hdc, rect, zone, isCell);
    }
}

bool IsEditable(const HGridCtl* ctl, const HGField* field)
{
    return !HasStyle(ctl, HGS_READONLY) && field && !(field->wFlags & HFF_READONLY);
}

// Shows a selection that doesn't show, or removes one that does.
void InvertSelection(HGridCtl* ctl, HDC hdc, Cell anchor, Cell cur)
{
    RECT                 rect;
    const bool           single = !HGSelectionRect(ctl, &rect, PackCell(anchor.col, anchor.row),
                                                   PackCell(cur.col, cur.row), hdc);
    const HGField* const field = cur.col < 0 ? nullptr : HGGetField(ctl->pData, cur.col);
    if (single && IsEditable(ctl, field)) {
        return; // the editor stands over it
    }
    RECT zone;
    SelectionZone(ctl, &zone, anchor, cur);
    const bool isCell = cur.col >= 0 && cur.row >= 0;
    if (isCell && field && field->cKind == 'q') {
        FrameWithin(hdc, rect, zone, true);
        return;
    }
    InvertWithin(hdc, rect, zone, isCell);
}

void DrawHeaderOfColumn(HGridCtl* ctl, HDC hdc, int col)
{
    RECT zone;
    HGZoneRect(ctl, &zone, HGIsFixedCol(ctl, col));
    const ClipTo clip(hdc, zone);
    HGDrawCell(ctl, hdc, col, -1);
}

void DrawAllColumnHeaders(HGridCtl* ctl, HDC hdc)
{
    int col = -1;
    for (int before = -2; before != col;) {
        before = col;
        HGStepColumn(ctl->pData, true, &col);
        if (col != before) {
            DrawHeaderOfColumn(ctl, hdc, col);
        }
    }
}

// Whether a header shows the same as before: still that of the current cell, which was and is one cell of it.
bool IsSameHeader(int oldLine, int oldPlace, int line, int place)
{
    return oldLine == line && line >= 0 && oldPlace >= 0 && place >= 0;
}

void DrawColumnHeaders(HGridCtl* ctl, HDC hdc, const Cell* oldCur)
{
    const Cell cur = CurrentCell(ctl);
    if (!oldCur) {
        DrawAllColumnHeaders(ctl, hdc);
    } else if (IsSameHeader(oldCur->col, oldCur->row, cur.col, cur.row)) {
        return;
    } else if (oldCur->col != cur.col) {
        DrawHeaderOfColumn(ctl, hdc, oldCur->col);
    }
    DrawHeaderOfColumn(ctl, hdc, cur.col);
}

void DrawRowHeaders(HGridCtl* ctl, HDC hdc, const Cell* oldCur)
{
    const Cell cur = CurrentCell(ctl);
    if (oldCur && IsSameHeader(oldCur->row, oldCur->col, cur.row, cur.col)) {
        return;
    }
    if (oldCur && oldCur->row != cur.row) {
        HGDrawCell(ctl, hdc, -1, oldCur->row);
    }
    HGDrawCell(ctl, hdc, -1, cur.row);
}

// A range that ends at a header doesn't count. Row 0 does, or the rows toggled beside it would not show.
bool IsRowSelection(const HGridCtl* ctl)
{
    return HasStyle(ctl, HGS_ROWSELECT) && AnchorCell(ctl).row >= 0 && CurrentCell(ctl).row >= 0;
}

int LastPageRow(const HGridCtl* ctl)
{
    return std::min(ctl->nTopRow + ctl->cPageRows + PartialRow(ctl), LastRow(ctl));
}

void InvertSelectedRows(HGridCtl* ctl, HDC hdc)
{
    if (HGIsRowSelected(ctl, -1)) {
        HGInvertRow(ctl, hdc, -1);
    }
    for (int row = ctl->nTopRow; row <= LastPageRow(ctl); ++row) {
        if (HGIsRowSelected(ctl, row)) {
            HGInvertRow(ctl, hdc, row);
        }
    }
}

void InvalidateSelectedRows(HGridCtl* ctl)
{
    if (HGIsRowSelected(ctl, -1)) {
        HGInvalidateRange(ctl, -1, -1, -1, -1);
        return;
    }
    for (int row = ctl->nTopRow; row <= LastPageRow(ctl); ++row) {
        if (HGIsRowSelected(ctl, row)) {
            HGInvalidateRange(ctl, -1, row, -1, row);
        }
    }
}

} // namespace

int HGSelectionRect(HGridCtl* ctl, RECT* rect, DWORD anchor, DWORD cur, HDC hdc)
{
    const Cell from = UnpackCell(anchor);
    const Cell to = UnpackCell(cur);
    if (to.col >= 0 && to.row >= 0) {
        return CellsRect(ctl, rect, from, to);
    }
    if (to.col >= 0) {
        ColumnsRect(ctl, rect, from, to, hdc);
    } else if (to.row >= 0) {
        RowsRect(ctl, rect, from, to);
    } else {
        HGClientRect(ctl, rect);
    }
    return 1;
}

void HGInvertRect(HGridCtl* ctl, HDC hdc, const RECT* rect)
{
    RECT zone;
    HGScrollRect(ctl, &zone);
    InvertWithin(hdc, *rect, zone, false);
}

void HGFrameRect(HGridCtl* ctl, HDC hdc, const RECT* rect)
{
    RECT zone;
    HGScrollRect(ctl, &zone);
    FrameWithin(hdc, *rect, zone, false);
}

void HGInvertRow(HGridCtl* ctl, HDC hdc, int row)
{
    RECT rect;
    HGRowExtent(ctl, &rect, row);
    if (hdc) {
        HGInvertRect(ctl, hdc, &rect);
        return;
    }
    const WindowDC window(ctl->hWnd);
    HGInvertRect(ctl, window.hdc, &rect);
}

void HGShowSelection(HGridCtl* ctl, HDC hdc)
{
    if (IsRowSelection(ctl)) {
        InvertSelectedRows(ctl, hdc);
        return;
    }
    if (HGRowCount(ctl->pData) > 0) {
        InvertSelection(ctl, hdc, AnchorCell(ctl), CurrentCell(ctl));
    }
}

void HGDrawSelection(HGridCtl* ctl, HDC hdc, const DWORD* oldAnchor, const DWORD* oldCur)
{
    if (HGRowCount(ctl->pData) == 0) {
        return;
    }
    RECT client;
    HGClientRect(ctl, &client);
    const bool hasOld = oldAnchor && oldCur;
    const Cell old = hasOld ? UnpackCell(*oldCur) : Cell{};
    if (hasOld && HasFlag(ctl, HGC_CELLSHOWN)) {
        const ClipTo clip(hdc, client); // ends what a selection of columns excludes
        InvertSelection(ctl, hdc, UnpackCell(*oldAnchor), old);
    }
    const ClipTo clip(hdc, client);
    DrawColumnHeaders(ctl, hdc, hasOld ? &old : nullptr);
    DrawRowHeaders(ctl, hdc, hasOld ? &old : nullptr);
    InvertSelection(ctl, hdc, AnchorCell(ctl), CurrentCell(ctl));
}

void HGRedrawSelection(HGridCtl* ctl)
{
    if (IsRowSelection(ctl)) {
        InvalidateSelectedRows(ctl);
        return;
    }
    const Cell anchor = AnchorCell(ctl);
    const Cell cur = CurrentCell(ctl);
    if (IsCorner(cur)) {
        InvalidateRect(ctl->hWnd, nullptr, TRUE);
        return;
    }
    HGInvalidateRange(ctl, anchor.col, anchor.row, cur.col, cur.row);
}
