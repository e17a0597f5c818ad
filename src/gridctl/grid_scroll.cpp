// Moves the view: pixels across, records up and down, and the pixels on the screen with them.
#include "gridctl/grid_control.h"

namespace {

// One scroll under way.
struct Scroll {
    HWND hwnd;
    bool quiet;  // no notifications
    bool hide;   // an editor on the screen has to go while pixels move
    bool hidden; // it has gone
    bool inEdit; // and has the focus
};

// Moves what is on the screen, and paints what comes into view. False if the window went.
bool MovePixels(HGridCtl* ctl, int dx, int dy, const RECT& zone, Scroll* scroll)
{
    if (scroll->hide && !scroll->hidden) {
        HGHideEditor(ctl);
        scroll->hidden = true;
    }
    if (!IsWindow(scroll->hwnd)) {
        return false;
    }
    ScrollWindow(scroll->hwnd, -dx, -dy, &zone, &zone);
    UpdateWindow(scroll->hwnd);
    return IsWindow(scroll->hwnd) != 0;
}

// Step 1. False if the window went.
bool ScrollAcross(HGridCtl* ctl, int dx, Scroll* scroll)
{
    const std::int64_t pos = ctl->nHScrollPos;
    const std::int64_t highest =
        std::max<std::int64_t>(static_cast<std::int64_t>(ctl->nHScrollMax) - ctl->nHPage + 1, 0);
    const LONG target = BoundRecord(std::clamp<std::int64_t>(pos + dx, 0, highest));
    const int moved = static_cast<int>(target - ctl->nHScrollPos);
    HGSetScrollPos(ctl, SB_HORZ, target, true);
    // Settled: told also when nothing moves in the end.
    if (!scroll->quiet && !HGNotify(ctl, HGN_HSCROLLED)) {
        return false;
    }
    if (moved == 0) {
        return true;
    }
    RECT zone;
    HGScrollRect(ctl, &zone);
    return MovePixels(ctl, moved, 0, zone, scroll);
}

// The farthest way down that leaves a full page.
std::int64_t WayDown(const HGridCtl* ctl)
{
    return static_cast<std::int64_t>(PartialRow(ctl)) - ctl->cPageRows - HGTopRecord(ctl) + ctl->lTotalRows;
}

// Tells the parent, which may add rows. Those that it doesn't have counted are. False if the window went.
bool TellOfEnd(HGridCtl* ctl, int code)
{
    const HWND hwnd = ctl->hWnd;
    if (!HGNotify(ctl, code)) {
        return false;
    }
    if (RecordOfRow(ctl, HGRowCount(ctl->pData)) > ctl->lTotalRows) {
        HGRecalc(ctl);
    }
    return IsWindow(hwnd) != 0;
}

// Step 2: without a row source the parent may supply rows past either end. False if the window went.
bool AskForRows(HGridCtl* ctl, std::int64_t* dy)
{
    if (HasFlag(ctl, HGC_VIRTUAL)) {
        return true;
    }
    const bool beyond = *dy > WayDown(ctl);
    const bool above = *dy < -ctl->nTopRow;
    if ((beyond || above) && !TellOfEnd(ctl, beyond ? HGN_BELOWEND : HGN_ABOVETOP)) {
        return false;
    }
    *dy = std::min(*dy, WayDown(ctl));
    return true;
}

// Step 3, with the way bounded to the records. False if the window went.
bool ScrollToRecord(HGridCtl* ctl, LONG record, Scroll* scroll)
{
    const LONG total = ctl->lTotalRows;
    const int rows = HGSetTop(ctl, std::min(record, total));
    if (!IsWindow(scroll->hwnd)) {
        return false;
    }
    HGSetScrollPos(ctl, SB_VERT, HGTopRecord(ctl) / ctl->nVScale, true);
    if (!scroll->quiet && !HGNotify(ctl, HGN_VSCROLLED)) {
        return false;
    }
    if (rows == 0) {
        return true;
    }
    constexpr std::int64_t farthest = 0x7FFF;
    const std::int64_t pixels = static_cast<std::int64_t>(RecordHeight(ctl)) * rows;
    RECT zone;
    HGBelowHeaders(ctl, &zone);
    return MovePixels(ctl, 0, static_cast<int>(std::clamp(pixels, -farthest, farthest)), zone, scroll);
}

// Steps 2 and 3. False if the window went.
bool ScrollDown(HGridCtl* ctl, int rows, Scroll* scroll)
{
    std::int64_t dy = rows;
    if (!AskForRows(ctl, &dy)) {
        return false;
    }
    const LONG top = HGTopRecord(ctl);
    dy = std::max(dy, -static_cast<std::int64_t>(top));
    return dy == 0 || ScrollToRecord(ctl, BoundRecord(top + dy), scroll);
}

// Step 4. A combo that is hidden may leave its face the focus, which isn't taken from it.
void ShowEditorAgain(HGridCtl* ctl, const Scroll& scroll)
{
    HGShowEditor(ctl);
    if (!IsWindow(scroll.hwnd) || !scroll.inEdit) {
        return;
    }
    if (IsWindow(ctl->hEditor) && !HGHoldsFocus(ctl->hEditor, GetFocus())) {
        SetFocus(ctl->hEditor);
    }
}

// Step 1 of bringing a cell into view. False if the window went.
bool ShowColumn(HGridCtl* ctl, int col, int row)
{
    if (col == -1 || col < ctl->pData->cFixedCols) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    RECT column;
    RECT zone;
    HGColumnRect(ctl, &column, col, row);
    HGScrollRect(ctl, &zone);
    if (column.left <= zone.left) {
        HGScrollBy(ctl, static_cast<int>(column.left - zone.left), 0, false);
    } else if (column.right >= zone.right) {
        HGScrollBy(ctl, static_cast<int>(column.right - zone.right), 0, false);
    }
    return IsWindow(hwnd) != 0;
}

} // namespace

void HGScrollBy(HGridCtl* ctl, int dx, int dy, bool moveEditor)
{
    Scroll scroll = { ctl->hWnd, HasFlag(ctl, HGC_QUIETSCROLL), moveEditor && HasFlag(ctl, HGC_EDITORSHOWN), false,
                      HGIsInEdit(ctl) };
    SetFlag(ctl, HGC_QUIETSCROLL, false);
    if (dx != 0 && !ScrollAcross(ctl, dx, &scroll)) {
        return;
    }
    if (dy != 0 && !ScrollDown(ctl, dy, &scroll)) {
        return;
    }
    if (scroll.hidden) {
        ShowEditorAgain(ctl, scroll);
    }
}

void HGShowCurrentRow(HGridCtl* ctl)
{
    const int row = CurrentCell(ctl).row;
    const int last = ctl->nTopRow + ctl->cPageRows - PartialRow(ctl) - 1;
    if (row >= 0 && row < ctl->nTopRow) {
        HGScrollBy(ctl, 0, row - ctl->nTopRow, true);
    } else if (row > last) {
        HGScrollBy(ctl, 0, row - last, true);
    }
}

// A cell that can be seen in part stays where it is.
bool HGShowCurrent(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const Cell cell = CurrentCell(ctl);
    RECT row;
    if (cell.row >= 0 && !HGRowRect(ctl, &row, cell.row, cell.col, HGBandOf(ctl, cell.col))) {
        HGShowCurrentRow(ctl);
    }
    if (!IsWindow(hwnd)) {
        return false;
    }
    RECT column;
    RECT zone;
    HGColumnRect(ctl, &column, CurrentCell(ctl).col, -1);
    HGScrollRect(ctl, &zone);
    const bool seen = std::max(column.left, zone.left) < std::min(column.right, zone.right);
    if (!seen && !ShowColumn(ctl, CurrentCell(ctl).col, -1)) {
        return false;
    }
    HGKeepEditorPlaced(ctl);
    return IsWindow(hwnd) != 0;
}

int HGEnsureVisible(HGridCtl* ctl, int col, int row)
{
    const HWND hwnd = ctl->hWnd;
    if (!ShowColumn(ctl, col, row) || row == CurrentCell(ctl).row || row == -1) {
        return row;
    }
    RECT cell;
    RECT page;
    HGCellRect(ctl, &cell, col, row, false);
    HGBelowHeaders(ctl, &page);
    const bool aboveBottom = cell.bottom < page.bottom;
    if (aboveBottom && cell.top > page.top + 1) {
        return row;
    }
    const LONG record = RecordOfRow(ctl, row);
    const int wayUp = row - ctl->nTopRow;
    HGScrollBy(ctl, 0, aboveBottom ? wayUp : wayUp + 1 + PartialRow(ctl) - ctl->cPageRows, false);
    if (!IsWindow(hwnd)) {
        return row;
    }
    HGSetScrollPos(ctl, SB_VERT, HGTopRecord(ctl) / ctl->nVScale, true);
    return static_cast<short>(static_cast<std::int64_t>(record) - ctl->lRowBase);
}
