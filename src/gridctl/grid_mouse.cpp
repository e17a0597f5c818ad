// The mouse on a grid: presses, the selection by dragging, and the drags of columns and sizes.
// What the mouse is over is found elsewhere and kept in gSizeZone.
#include "gridctl/grid_control.h"

#include "dialog/control_frame.h"
#include "foundation/gdi_guards.h"
#include "foundation/screen.h"

#include <cstdlib>

int gSizeZone;
int gGuideLine;

namespace {

constexpr int lowestColumnWidth = 15; // pixels that a column drag leaves
constexpr int minWidth = 2;
constexpr int maxSize = 2000;
constexpr int maxHeader = 0x7FFF;

HWND gTimedScroll; // the grid for whose drag TimedScroll runs

// The grid whose view a press has scrolled, until the mouse leaves the place of the press. Another cell than the one that
// was pressed is under the mouse since then, without anything being dragged.
HWND  gScrolledPress;
POINT gPressPoint;

struct ColumnRange {
    int lo;
    int hi;
};

ColumnRange SelectedColumns(const HGridCtl* ctl)
{
    const int current = CurrentCell(ctl).col;
    return { std::min<int>(current, ctl->nAnchorCol), std::max<int>(current, ctl->nAnchorCol) };
}

bool IsInside(const ColumnRange& range, int col)
{
    return col >= range.lo && col <= range.hi;
}

struct Hit {
    Cell cell;
    int  band;
};

Hit HitTest(HGridCtl* ctl, LPARAM lParam)
{
    Hit hit = { { -1, -1 }, -1 };
    HGHitCell(ctl, lParam, &hit.cell, &hit.band);
    return hit;
}

int MouseX(LPARAM lParam)
{
    return static_cast<short>(LOWORD(lParam));
}

int MouseY(LPARAM lParam)
{
    return static_cast<short>(HIWORD(lParam));
}

int RowOfZone(int zone)
{
    return -2 - zone;
}

// Where a size drag may take the mouse: so far that the lowest size remains, and within the data.
void ConfineCursor(HGridCtl* ctl)
{
    RECT data;
    RECT limits;
    HGDataRect(ctl, &data);
    if (gSizeZone < rowHeaderZone) {
        const int slack = gSizeZone == headerZone ? 3 : 0;
        HGCellRect(ctl, &limits, -1, RowOfZone(gSizeZone), false);
        limits.top += (ctl->pData->nMinRowHeight - slack) * ctl->cBands;
    } else {
        HGCellRect(ctl, &limits, gSizeZone - firstColumnZone, -1, false);
        limits.left += lowestColumnWidth;
    }
    limits.right = data.right;
    limits.bottom = data.bottom;
    RCtoS(ctl->hWnd, &limits);
    ClipCursor(&limits);
}

// Shift on the header of a selected column takes the selected columns along.
bool StartsColumnDrag(const HGridCtl* ctl, Cell hit, bool shift)
{
    return HasStyle(ctl, HGS_COLMAP) && CurrentCell(ctl).row < 0 && hit.row < 0 && shift &&
           IsInside(SelectedColumns(ctl), hit.col);
}

// Nothing is dropped where the button came up over another window, which has taken the mouse meanwhile.
void ForgetDrag(HGridCtl* ctl)
{
    if (HasFlag(ctl, HGC_XORLINE)) {
        InvalidateRect(ctl->hWnd, nullptr, TRUE);
    }
    SetFlag(ctl, HGC_MOUSEDOWN | HGC_COLDRAG | HGC_XORLINE, false);
}

// The loop that moves a drag on while the mouse stands still. It ends when the button comes up: the grid hears of that,
// after a cancelled loop later on.
void ScrollByTime(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    gTimedScroll = hwnd;
    TimedScroll(ctl, 1);
    gTimedScroll = nullptr;
    if (IsWindow(hwnd) && !HasFlag(ctl, CF_CANCEL) && GetCapture() != hwnd) {
        ForgetDrag(ctl);
    }
}

void DragColumns(HGridCtl* ctl)
{
    ctl->wFlags |= HGC_COLDRAG;
    HGShowMoveCursor();
    ScrollByTime(ctl);
}

// A DC of the window for lines that a second drawing removes.
struct GuideDC {
    WindowDC       window;
    SelectedObject pen;
    explicit GuideDC(HWND hwnd) : window(hwnd), pen(window.hdc, GetStockObject(WHITE_PEN))
    {
        SetROP2(window.hdc, R2_XORPEN);
    }
    void Line(int x1, int y1, int x2, int y2) const
    {
        MoveToEx(window.hdc, x1, y1, nullptr);
        LineTo(window.hdc, x2, y2);
    }
};

// The drop point of a column drag: three lines from the top to the bottom of the zone.
void InvertDropGuide(const GuideDC& dc, const RECT& zone)
{
    for (int x = gGuideLine - 1; x <= gGuideLine + 1; ++x) {
        dc.Line(x, static_cast<int>(zone.top), x, static_cast<int>(zone.bottom));
    }
}

void EraseDropGuide(HGridCtl* ctl, const RECT& zone)
{
    if (HasFlag(ctl, HGC_XORLINE)) {
        const GuideDC dc(ctl->hWnd);
        InvertDropGuide(dc, zone);
        SetFlag(ctl, HGC_XORLINE, false);
    }
}

// Left of the scrolling zone, the target is the column in front of it, which makes the view scroll back.
int ColumnBeforeZone(HGridCtl* ctl)
{
    int col = ctl->nFirstCol;
    HGStepColumn(ctl->pData, false, &col);
    return col;
}

// Scrolls while the drop point lies at an edge. False if the window went, or if a host that was told of it has let the
// button come up in a loop of its own.
bool ScrollAtEdge(HGridCtl* ctl, const RECT& column, const RECT& zone)
{
    constexpr int step = 20; // design units
    const HWND hwnd = ctl->hWnd;
    if (column.right >= zone.right) {
        HGScrollBy(ctl, ScaleX(step), 0, true);
    } else if (column.left <= zone.left) {
        HGScrollBy(ctl, -ScaleX(step), 0, true);
    }
    return IsWindow(hwnd) && HasFlag(ctl, HGC_COLDRAG);
}

void ShowDropPoint(HGridCtl* ctl, LPARAM lParam)
{
    const ColumnRange dragged = SelectedColumns(ctl);
    int col = std::max(HitTest(ctl, lParam).cell.col, 0);
    RECT zone;
    RECT column;
    HGScrollRect(ctl, &zone);
    EraseDropGuide(ctl, zone);
    if (dragged.lo >= ctl->pData->cFixedCols && col < ctl->nFirstCol) {
        col = ColumnBeforeZone(ctl);
    }
    HGColExtent(ctl, &column, col);
    if (!ScrollAtEdge(ctl, column, zone) || IsInside(dragged, col)) {
        return;
    }
    gGuideLine = static_cast<int>(col < dragged.lo ? column.left : column.right);
    const GuideDC dc(ctl->hWnd);
    InvertDropGuide(dc, zone);
    SetFlag(ctl, HGC_XORLINE, true);
}

void InvertSizeGuide(const GuideDC& dc, const RECT& client)
{
    if (gSizeZone >= 0) {
        dc.Line(gGuideLine, static_cast<int>(client.top), gGuideLine, static_cast<int>(client.bottom));
    } else {
        dc.Line(static_cast<int>(client.left), gGuideLine, static_cast<int>(client.right), gGuideLine);
    }
}

void ShowSize(HGridCtl* ctl, LPARAM lParam)
{
    RECT client;
    HGClientRect(ctl, &client);
    const GuideDC dc(ctl->hWnd);
    if (HasFlag(ctl, HGC_XORLINE)) {
        InvertSizeGuide(dc, client);
    }
    gGuideLine = gSizeZone >= 0 ? MouseX(lParam) : MouseY(lParam);
    InvertSizeGuide(dc, client);
    SetFlag(ctl, HGC_XORLINE, true);
}

int DragColumn(HGridCtl* ctl, int hit)
{
    if (CurrentCell(ctl).col > ctl->pData->cFixedCols && hit < ctl->nFirstCol) {
        return ColumnBeforeZone(ctl);
    }
    return ctl->nAnchorCol < 0 && !HasStyle(ctl, HGS_NOEXTEND) ? -1 : hit;
}

// The row of a selection by dragging; above the first loaded record the view goes back. False if the window went.
bool DragRow(HGridCtl* ctl, int* row)
{
    if (ctl->nAnchorRow < 0) {
        *row = -1;
        return true;
    }
    if (*row < 0 && ctl->lRowBase > 0) {
        const HWND hwnd = ctl->hWnd;
        HGScrollBy(ctl, 0, -1, true);
        if (!IsWindow(hwnd)) {
            return false;
        }
        *row = ctl->lRowBase != 0 ? std::max(ctl->nTopRow - 1, 0) : *row;
    }
    *row = std::max(*row, ctl->nTopRow - 1);
    return true;
}

void DragSelection(HGridCtl* ctl, LPARAM lParam)
{
    Cell hit = HitTest(ctl, lParam).cell;
    hit.col = DragColumn(ctl, hit.col);
    if (DragRow(ctl, &hit.row) && !(hit == CurrentCell(ctl))) {
        HGMoveTo(ctl, hit.col, hit.row, true, true);
    }
}

bool StaysOnPress(const HGridCtl* ctl, LPARAM lParam)
{
    if (gScrolledPress != ctl->hWnd) {
        return false;
    }
    const bool stays = std::abs(MouseX(lParam) - gPressPoint.x) <= GetSystemMetrics(SM_CXDRAG) &&
                       std::abs(MouseY(lParam) - gPressPoint.y) <= GetSystemMetrics(SM_CYDRAG);
    gScrolledPress = stays ? gScrolledPress : nullptr;
    return stays;
}

bool IsButtonDown()
{
    return GetAsyncKeyState(VK_LBUTTON) < 0 || GetAsyncKeyState(VK_RBUTTON) < 0;
}

// A selection that is dragged out of the window goes on scrolling there. A press alone never starts it, nor does a
// message without a button behind it, for which no end would come.
bool LeavesWindow(HGridCtl* ctl, LPARAM lParam)
{
    RECT client;
    GetClientRect(ctl->hWnd, &client);
    const bool outside = !PtInRect(&client, { MouseX(lParam), MouseY(lParam) });
    return outside && !gTimedScroll && GetCapture() == ctl->hWnd && IsButtonDown();
}

// False if the button came up where the loop couldn't see it: in a loop of the host's, or over another program.
bool GoesOn(const HGridCtl* ctl)
{
    return HasFlag(ctl, HGC_COLDRAG) || (HasFlag(ctl, HGC_MOUSEDOWN) && IsButtonDown());
}

// The band on which dragged columns are dropped.
int DropBand(HGridCtl* ctl, int hitCol, int target, LPARAM lParam)
{
    const HGField* const field = HGGetField(ctl->pData, target);
    const int hdrHeight = std::max<int>(1, ctl->pData->nHdrHeight);
    const int band = hitCol < 0 || !field ? MouseY(lParam) / hdrHeight : field->nBand;
    return band < 0 || band >= ctl->cBands ? 0 : band;
}

void MoveColumns(HGridCtl* ctl, const ColumnRange& dragged, int target, int band)
{
    int col = dragged.lo;
    for (int i = dragged.lo; i <= dragged.hi; ++i) {
        if (HGField* const field = HGGetField(ctl->pData, col)) {
            field->nBand = static_cast<signed char>(band);
        }
        HGMoveFld(ctl->pData, col, col + target - dragged.lo);
        col += target < col ? 1 : 0;
    }
}

// The dropped columns are selected again at their new place.
void SelectDropped(HGridCtl* ctl, int first, int count)
{
    const HWND hwnd = ctl->hWnd;
    HGRefresh(ctl, true);
    if (IsWindow(hwnd)) {
        HGMoveTo(ctl, first, -1, false, false);
    }
    if (IsWindow(hwnd)) {
        HGMoveTo(ctl, first + count - 1, -1, true, true);
    }
}

void DropColumns(HGridCtl* ctl, LPARAM lParam)
{
    const ColumnRange dragged = SelectedColumns(ctl);
    const int count = dragged.hi - dragged.lo + 1;
    const int hitCol = HitTest(ctl, lParam).cell.col;
    int target = hitCol;
    SetFlag(ctl, HGC_COLDRAG, false);
    if (target < 0) {
        HGStepColumn(ctl->pData, true, &target);
    }
    if (IsInside(dragged, target) || dragged.lo < 0 || target < 0) {
        HGRefresh(ctl, true);
        return;
    }
    // The host may have started an edit during the drag. The dropped columns are selected whole, without an editor.
    const HWND hwnd = ctl->hWnd;
    HGDetachEditor(ctl);
    if (!IsWindow(hwnd)) {
        return;
    }
    MoveColumns(ctl, dragged, target, DropBand(ctl, hitCol, target, lParam));
    if (HGNotify(ctl, HGN_COLSMOVED)) {
        SelectDropped(ctl, target > dragged.hi ? target - count + 1 : target, count);
    }
}

// Bounded: a row has a height, and a header none below 0.
void SizeRows(HGridCtl* ctl, int y, const RECT& data)
{
    const int way = (y - static_cast<int>(data.top)) / ctl->cBands;
    if (gSizeZone == headerZone) {
        const int height = ctl->pData->nHdrHeight + way;
        ctl->pData->nHdrHeight = static_cast<short>(std::clamp(height, 0, maxHeader));
        return;
    }
    const int rowsBefore = RowOfZone(gSizeZone) - ctl->nTopRow;
    const int height = way - rowsBefore * ctl->pData->nRowHeight + 1;
    ctl->pData->nRowHeight = static_cast<short>(std::clamp(height, 1, maxSize));
}

void SizeRowHeaders(HGridCtl* ctl, int x, const RECT& data)
{
    const int width = ctl->pData->nHdrWidth + x - static_cast<int>(data.left);
    ctl->pData->nHdrWidth = static_cast<short>(std::clamp(width, 0, maxHeader));
}

// One column, or with whole columns selected all of them.
ColumnRange ColumnsToSize(const HGridCtl* ctl, int col)
{
    const ColumnRange selected = SelectedColumns(ctl);
    if (CurrentCell(ctl).row >= 0) {
        return { col, col };
    }
    if (selected.lo == -1 && selected.hi == -1) {
        return { 0, LastCol(ctl) };
    }
    return IsInside(selected, col) ? selected : ColumnRange{ col, col };
}

void SizeColumns(HGridCtl* ctl, int x)
{
    const int col = gSizeZone - firstColumnZone;
    RECT cell;
    HGCellRect(ctl, &cell, col, 0, false);
    const int width = std::clamp(x - static_cast<int>(cell.left), minWidth, maxSize);
    const ColumnRange range = ColumnsToSize(ctl, col);
    for (int at = std::max(range.lo, 0); at <= range.hi; ++at) {
        if (HGField* const field = HGGetField(ctl->pData, at)) {
            field->nWidth = static_cast<short>(width);
        }
    }
}

void DropSize(HGridCtl* ctl, LPARAM lParam)
{
    const HWND hwnd = ctl->hWnd;
    RECT data;
    HGDataRect(ctl, &data);
    if (gSizeZone < 0) {
        SizeRows(ctl, MouseY(lParam), data);
    } else if (gSizeZone == rowHeaderZone) {
        SizeRowHeaders(ctl, MouseX(lParam), data);
    } else {
        SizeColumns(ctl, MouseX(lParam));
    }
    if (!HGNotify(ctl, gSizeZone < 0 ? HGN_HEIGHTCHANGED : HGN_WIDTHCHANGED)) {
        return;
    }
    HGRefresh(ctl, true);
    if (IsWindow(hwnd)) {
        HGShowEditor(ctl);
    }
}

// A value that isn't taken keeps the grid on its cell, as with a key: the press drags nothing then.
void RefusePress(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    SetFlag(ctl, HGC_MOUSEDOWN, false);
    if (GetCapture() == hwnd) {
        ReleaseCapture();
    }
    if (IsWindow(hwnd)) {
        ctl->wFlags |= CF_CANCEL;
    }
}

void PressCell(HGridCtl* ctl, Cell hit, bool shift, LPARAM lParam)
{
    const HWND hwnd = ctl->hWnd;
    const LONG pos = ctl->nHScrollPos;
    const LONG top = HGTopRecord(ctl);
    if (HasStyle(ctl, HGS_ROWSELECT) && !HasStyle(ctl, HGS_NOEXTEND)) {
        HGSelectRow(ctl, hit.col, hit.row, shift, HGIsKeyDown(VK_CONTROL));
    } else {
        HGMoveTo(ctl, hit.col, hit.row, shift, true);
    }
    if (IsWindow(hwnd) && (pos != ctl->nHScrollPos || top != HGTopRecord(ctl))) {
        gScrolledPress = hwnd;
        gPressPoint = { MouseX(lParam), MouseY(lParam) };
    }
}

// A press on a cell or header. The focus comes to the grid, whatever becomes of the move.
void Press(HGridCtl* ctl, LPARAM lParam, bool shift)
{
    const HWND hwnd = ctl->hWnd;
    const Cell hit = HitTest(ctl, lParam).cell;
    const int stored = HGCommitEdit(ctl);
    if (IsWindow(hwnd)) {
        // An edit that the focus had left is over too, or its editor would take the focus and end the drag.
        SetFlag(ctl, HGC_INEDIT, HasFlag(ctl, HGC_INEDIT) && !stored);
        SetFocus(hwnd);
    }
    if (!IsWindow(hwnd)) {
        return;
    }
    if (!stored) {
        RefusePress(ctl);
    } else if (StartsColumnDrag(ctl, hit, shift)) {
        DragColumns(ctl);
    } else {
        PressCell(ctl, hit, shift, lParam);
    }
}

} // namespace

void HGMouseDown(HGridCtl* ctl, LPARAM lParam)
{
    const bool shift = HGIsKeyDown(VK_SHIFT);
    const HWND hwnd = ctl->hWnd;
    if (GetCapture() != hwnd) {
        ForgetDrag(ctl);
    }
    gScrolledPress = nullptr;
    SetFlag(ctl, CF_CANCEL, false);
    ctl->wFlags |= HGC_MOUSEDOWN;
    SetCapture(hwnd);
    if (!IsWindow(hwnd)) {
        return;
    }
    if (gSizeZone != 0) {
        ConfineCursor(ctl);
    } else {
        Press(ctl, lParam, shift);
    }
}

void HGMouseMove(HGridCtl* ctl, LPARAM lParam)
{
    if (gTimedScroll == ctl->hWnd && !GoesOn(ctl)) {
        ctl->wFlags |= CF_CANCEL; // which the loop takes for its end
        return;
    }
    if (!HasFlag(ctl, HGC_MOUSEDOWN)) {
        return;
    }
    if (HasFlag(ctl, HGC_COLDRAG)) {
        ShowDropPoint(ctl, lParam);
    } else if (gSizeZone != 0) {
        ShowSize(ctl, lParam);
    } else if (StaysOnPress(ctl, lParam)) {
        return;
    } else if (LeavesWindow(ctl, lParam)) {
        SetFlag(ctl, CF_CANCEL, false); // of a move that the parent turned round before
        ScrollByTime(ctl);
    } else {
        DragSelection(ctl, lParam);
    }
}

void HGMouseUp(HGridCtl* ctl, LPARAM lParam)
{
    const HWND hwnd = ctl->hWnd;
    // A drag that shows its guide goes on without the focus.
    const bool pressed = HasFlag(ctl, HGC_MOUSEDOWN | HGC_XORLINE);
    SetFlag(ctl, HGC_MOUSEDOWN | HGC_XORLINE, false);
    if (GetCapture() == hwnd) {
        ReleaseCapture();
    }
    if (!IsWindow(hwnd)) {
        return;
    }
    if (HasFlag(ctl, HGC_COLDRAG)) {
        DropColumns(ctl, lParam);
    } else if (gSizeZone != 0) {
        ClipCursor(nullptr);
        // A button that went down elsewhere has dragged nothing here.
        if (pressed) {
            DropSize(ctl, lParam);
        }
    }
}

// A drag ends where something else takes the mouse: its button comes up elsewhere. One that goes on by itself, outside the
// window, finds out by itself.
void HGMouseLost(HGridCtl* ctl, HWND taker)
{
    const bool dragging = HasFlag(ctl, HGC_MOUSEDOWN | HGC_XORLINE) && gTimedScroll != ctl->hWnd;
    if (!dragging || taker == ctl->hWnd) {
        return;
    }
    if (gSizeZone != 0) {
        ClipCursor(nullptr);
        gSizeZone = 0;
    }
    ForgetDrag(ctl);
}

void HGMouseDblClk(HGridCtl* ctl, LPARAM lParam)
{
    const HWND hwnd = ctl->hWnd;
    const Cell hit = HitTest(ctl, lParam).cell;
    const int stored = HGCommitEdit(ctl);
    if (IsWindow(hwnd) && !stored) {
        ctl->wFlags |= CF_CANCEL;
        return;
    }
    if (IsWindow(hwnd)) {
        HGMoveTo(ctl, hit.col, hit.row, false, false);
    }
    if (IsWindow(hwnd)) {
        HGNotify(ctl, HGN_DBLCLK);
    }
}
