// How a grid puts itself on the screen: the order of a paint, grid lines, erasing and invalidation.
// Cells and headers are drawn in grid_paint_cell.cpp and grid_paint_headers.cpp.
#include "gridctl/grid_paint.h"

#include "foundation/gdi_guards.h"
#include "foundation/startup.h"

#include <widgets/widgets.h>

#include <algorithm>

namespace {

// One paint. first and last are the cells at the corners of what is invalid.
struct GridPaint {
    HGridCtl* ctl;
    HDC       hdc;
    RECT      invalid;
    RECT      content;
    HPEN      gridPen;
    Cell      first;
    Cell      last;
};

// The two zones of columns, and the clip that keeps columns of one out of the other.
constexpr bool zones[] = { false, true }; // fixed?

LPARAM PackPoint(int x, int y)
{
    return MAKELPARAM(static_cast<WORD>(x), static_cast<WORD>(y));
}

LPARAM TopLeft(const GridPaint& paint)
{
    return PackPoint(paint.invalid.left + 1, paint.invalid.top);
}

// A hit takes the first pixel of a column for the one before, so the last cell is sought one pixel on.
LPARAM BottomRight(const GridPaint& paint)
{
    return PackPoint(paint.invalid.right, paint.invalid.bottom);
}

// The corners among the columns of a band; -1: of the only one.
void FindCorners(GridPaint& paint, int band)
{
    HGHitBand(paint.ctl, TopLeft(paint), &paint.first, band);
    HGHitBand(paint.ctl, BottomRight(paint), &paint.last, band);
}

// The same for painting one band. True if its header is invalid too; first becomes the first data cell.
bool FindBandCorners(GridPaint& paint, int band)
{
    FindCorners(paint, band);
    const bool header = HasStyle(paint.ctl, HGS_COLHEADERS) && paint.first.row < 0;
    paint.first.row = std::max<int>(paint.first.row, paint.ctl->nTopRow);
    paint.first.col = std::max(paint.first.col, 0);
    return header;
}

ColumnWalk InvalidColumns(const GridPaint& paint, int band, bool fixed)
{
    const int fixedCols = paint.ctl->pData->cFixedCols;
    if (fixed) {
        return { paint.ctl, band, -1, fixedCols - 1 };
    }
    return { paint.ctl, band, std::max(paint.first.col, fixedCols) - 1, paint.last.col };
}

COLORREF GridLineColor(const HGridCtl* ctl)
{
    return HasStyle(ctl, HGS_FACEBACK) && hFaceBrush ? crFace : GetSysColor(COLOR_BTNFACE);
}

void DrawLine(HDC hdc, int x1, int y1, int x2, int y2)
{
    MoveToEx(hdc, x1, y1, nullptr);
    LineTo(hdc, x2, y2);
}

void DrawHorizontalLines(const GridPaint& paint)
{
    const RECT& r = paint.content;
    const int   height = paint.ctl->pData->nRowHeight;
    // Settled: the lines are counted from the top row, which isn't multiplied by the bands.
    const int end = HGRowCount(paint.ctl->pData) * paint.ctl->cBands;
    int       y = r.top - 1 + height;
    for (int i = paint.ctl->nTopRow; i < end && y <= r.bottom; ++i, y += height) {
        if (y >= paint.invalid.top && y < paint.invalid.bottom) {
            DrawLine(paint.hdc, r.left, y, r.right, y);
        }
    }
}

void DrawVerticalLines(const GridPaint& paint)
{
    for (const bool fixed : zones) {
        RECT zone;
        HGZoneRect(paint.ctl, &zone, fixed);
        ColumnWalk columns = InvalidColumns(paint, -1, fixed);
        while (columns.Next()) {
            RECT extent;
            HGColExtent(paint.ctl, &extent, columns.col);
            if (extent.right > zone.left) {
                DrawLine(paint.hdc, extent.right - 1, paint.content.top, extent.right - 1, paint.content.bottom);
            }
        }
    }
}

void DrawGridLines(const GridPaint& paint)
{
    if (HasStyle(paint.ctl, HGS_NOLINES)) {
        return;
    }
    const SelectedObject pen(paint.hdc, paint.gridPen);
    DrawHorizontalLines(paint);
    if (paint.ctl->cBands == 1) {
        DrawVerticalLines(paint);
    }
}

HBRUSH BackBrush(const HGridCtl* ctl)
{
    return ctl->hBkBrush ? ctl->hBkBrush : HGFaceBrush();
}

// Where the columns of a zone end in a band, from the zone's begin on.
LONG ColumnsEnd(const GridPaint& paint, int band, bool fixed, LONG begin)
{
    const int  fixedCols = paint.ctl->pData->cFixedCols;
    ColumnWalk columns = { paint.ctl, band, fixed ? -1 : fixedCols - 1, fixed ? fixedCols - 1 : LastCol(paint.ctl) };
    LONG       end = begin;
    while (columns.Next()) {
        RECT column;
        HGColumnRect(paint.ctl, &column, columns.col, -1);
        end = std::max(end, column.right);
    }
    return end;
}

// A selection inverts lines as wide as the widest band: behind the last cell of a narrower one, and before the zone
// that scrolls, nothing but this makes the background plain where it isn't erased.
void FillGapsOfBand(const GridPaint& paint, int band)
{
    HGridCtl* const ctl = paint.ctl;
    RECT            zone;
    HGZoneRect(ctl, &zone, false);
    const LONG left = paint.content.left;
    const LONG fixedEnd = ColumnsEnd(paint, band, true, left);
    const LONG end = ColumnsEnd(paint, band, false, zone.left);
    const LONG line = HasStyle(ctl, HGS_NOLINES) ? 0 : 1;
    for (int row = paint.ctl->nTopRow; row < HGRowCount(ctl->pData); ++row) {
        RECT rect;
        HGRowRect(ctl, &rect, row, 0, band);
        if (rect.top >= paint.invalid.bottom) {
            return;
        }
        const RECT behind = { end, rect.top, paint.content.right, rect.bottom - line };
        const RECT before = { fixedEnd, rect.top, std::min(zone.left, paint.content.right), rect.bottom - line };
        for (const RECT& gap : { before, behind }) {
            if (gap.left < gap.right && gap.top < gap.bottom) {
                FillRect(paint.hdc, &gap, BackBrush(ctl));
            }
        }
    }
}

void FillGaps(const GridPaint& paint)
{
    for (int band = 0; paint.ctl->cBands > 1 && band < paint.ctl->cBands; ++band) {
        FillGapsOfBand(paint, band);
    }
}

// With several bands the columns don't line up, so each cell has its own right edge.
void DrawRightEdge(const GridPaint& paint, int col, int row)
{
    RECT rect;
    HGCellRect(paint.ctl, &rect, col, row, false);
    const SelectedObject pen(paint.hdc, paint.gridPen);
    DrawLine(paint.hdc, rect.right, rect.top, rect.right, rect.bottom);
}

// False if the window went while a cell was drawn. A host that takes rows away meanwhile ends the row alone: headers
// and selection still show.
bool DrawRow(const GridPaint& paint, ColumnWalk columns, int row)
{
    const HWND hwnd = paint.ctl->hWnd;
    const bool edges = paint.ctl->cBands != 1 && !HasStyle(paint.ctl, HGS_NOLINES);
    while (columns.Next()) {
        if (!HGDrawCell(paint.ctl, paint.hdc, columns.col, row)) {
            return IsWindow(hwnd) != 0;
        }
        if (edges) {
            DrawRightEdge(paint, columns.col, row);
        }
    }
    return true;
}

bool DrawZone(const GridPaint& paint, int band, bool fixed, bool header)
{
    RECT zone;
    HGZoneRect(paint.ctl, &zone, fixed);
    const ClipTo     clip(paint.hdc, zone);
    const ColumnWalk columns = InvalidColumns(paint, band, fixed);
    if (header) {
        for (ColumnWalk walk = columns; walk.Next();) {
            HGDrawCell(paint.ctl, paint.hdc, walk.col, -1);
        }
        if (fixed) {
            HGDrawFixedHeaderRest(paint.ctl, paint.hdc, band);
        } else {
            HGDrawColumnHeaderRest(paint.ctl, paint.hdc, band);
        }
    }
    for (int row = paint.first.row; row <= paint.last.row; ++row) {
        if (!DrawRow(paint, columns, row)) {
            return false;
        }
    }
    return true;
}

bool DrawBand(GridPaint& paint, int band)
{
    const bool header = FindBandCorners(paint, band);
    return DrawZone(paint, band, false, header) && DrawZone(paint, band, true, header);
}

bool DrawBands(GridPaint& paint)
{
    if (paint.ctl->cBands == 1) {
        return DrawBand(paint, -1);
    }
    for (int band = 0; band < paint.ctl->cBands; ++band) {
        if (!DrawBand(paint, band)) {
            return false;
        }
    }
    return true;
}

void DrawRowHeaders(const GridPaint& paint)
{
    if (!HasStyle(paint.ctl, HGS_ROWHEADERS)) {
        return;
    }
    for (int row = paint.first.row; row <= paint.last.row; ++row) {
        HGDrawCell(paint.ctl, paint.hdc, -1, row);
    }
    HGDrawRowHeaderRest(paint.ctl, paint.hdc, paint.last.row);
}

// HGridInvalidateCell and its kin take numbers of 16 bits.
int Signed16(int number)
{
    return static_cast<short>(number);
}

} // namespace

bool ColumnWalk::Next()
{
    int next = col;
    // A walk that wraps doesn't rise.
    if (!HGNextColumn(ctl, true, &next, band) || next <= col || next > limit) {
        return false;
    }
    col = next;
    return true;
}

bool HGHasFocus(const HGridCtl* ctl)
{
    return GetFocus() == ctl->hWnd;
}

HBRUSH HGFaceBrush()
{
    return hFaceBrush ? hFaceBrush : GetSysColorBrush(COLOR_BTNFACE);
}

bool HGIsFixedCol(const HGridCtl* ctl, int col)
{
    return col >= 0 && col < ctl->pData->cFixedCols;
}

void HGZoneRect(HGridCtl* ctl, RECT* rect, bool fixed)
{
    HGScrollRect(ctl, rect);
    if (fixed) {
        RECT data;
        HGDataRect(ctl, &data);
        rect->left = data.left;
    }
}

void HGPaint(HGridCtl* ctl)
{
    RECT content;
    HGContentRect(ctl, &content);
    const PaintDC dc(ctl->hWnd);
    if (!dc.hdc) {
        return;
    }
    const OwnedObject<HPEN> pen(CreatePen(PS_SOLID, 1, GridLineColor(ctl)));
    GridPaint               paint{ ctl, dc.hdc, dc.ps.rcPaint, content, pen.h, {}, {} };

    FindCorners(paint, -1);
    DrawGridLines(paint);
    FillGaps(paint);
    HGDrawCell(ctl, dc.hdc, -1, -1);
    if (!DrawBands(paint)) {
        return;
    }
    RECT client;
    HGClientRect(ctl, &client);
    const ClipTo clip(dc.hdc, client);
    DrawRowHeaders(paint);
    if (HasFlag(ctl, HGC_CELLSHOWN) && (HGHasFocus(ctl) || HasStyle(ctl, HGS_KEEPSEL))) {
        HGShowSelection(ctl, dc.hdc);
    }
}

LRESULT HGEraseBackground(HGridCtl* ctl, HDC hdc)
{
    RECT r;
    HGDataRect(ctl, &r);
    const SelectedObject noPen(hdc, GetStockObject(NULL_PEN));
    const HGDIOBJ        old = SelectObject(hdc, BackBrush(ctl));
    Rectangle(hdc, r.left, r.top, r.right + 1, r.bottom + 1);
    // Settled: a brush of the library or the system stays selected.
    if (ctl->hBkBrush) {
        SelectObject(hdc, old);
    }
    return 1;
}

int HGDrawCell(HGridCtl* ctl, HDC hdc, int col, int row)
{
    HGridData* const grid = ctl->pData;
    if (!hdc || !grid || col >= HGColCount(grid) || (col >= 0 && row >= HGRowCount(grid))) {
        return 0;
    }
    RECT rect;
    HGCellRect(ctl, &rect, col, row, true);
    if (!RectVisible(hdc, &rect)) {
        return 1;
    }
    if (row < 0) {
        HGDrawColumnHeader(ctl, hdc, rect, col);
        return 1;
    }
    if (col < 0) {
        HGDrawRowHeader(ctl, hdc, rect, row);
        return 1;
    }
    return HGDrawDataCell(ctl, hdc, rect, col, row);
}

void HGInvalidateCell(HGridCtl* ctl, int col, int row)
{
    RECT rect;
    HGCellRect(ctl, &rect, col, row, true);
    // A host that fills thousands of cells out of view pays for no call of the window manager.
    if (!IsRectEmpty(&rect)) {
        InvalidateRect(ctl->hWnd, &rect, FALSE);
    }
}

void HGInvalidateRange(HGridCtl* ctl, int col1, int row1, int col2, int row2)
{
    RECT rect;
    HGSelectionRect(ctl, &rect, PackCell(col1, row1), PackCell(col2, row2), nullptr);
    InvalidateRect(ctl->hWnd, &rect, FALSE);
}

int WINAPI HGridInvalidateCell(HWND hwnd, int col, int row)
{
    if (HGridCtl* const ctl = HGFromWindow(hwnd)) {
        HGInvalidateCell(ctl, Signed16(col), Signed16(row));
    }
    return 1;
}

int WINAPI HGridInvalidateRange(HWND hwnd, int col1, int row1, int col2, int row2)
{
    if (HGridCtl* const ctl = HGFromWindow(hwnd)) {
        HGInvalidateRange(ctl, Signed16(col1), Signed16(row1), Signed16(col2), Signed16(row2));
    }
    return 1;
}
