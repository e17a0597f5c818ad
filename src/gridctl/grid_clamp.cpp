// Brings current cell and anchor back to what is loaded, after columns or rows have changed.
#include "gridctl/grid_control.h"

namespace {

// Current cell and anchor as they have to be, and which of them had to be bounded.
struct Bounds {
    Cell current;
    Cell anchor;
    bool currentChanged;
    bool anchorChanged;
};

int BoundCol(int col, int count, bool* changed)
{
    if (col < count) {
        return col;
    }
    *changed = true;
    return std::max(count - 1, 0);
}

// A record as a loaded row. -1 stays.
int BoundRow(const HGridCtl* ctl, int row, LONG record, bool* changed)
{
    if (row == -1) {
        return row;
    }
    const std::int64_t place = static_cast<std::int64_t>(record) - ctl->lRowBase;
    const int last = std::max(LastRow(ctl), 0);
    if (place < 0 || place >= HGRowCount(ctl->pData)) {
        *changed = true;
        return place < 0 ? 0 : last;
    }
    return static_cast<int>(place);
}

Bounds FindBounds(const HGridCtl* ctl, LONG anchorRecord, LONG currentRecord)
{
    Bounds bounds = { CurrentCell(ctl), AnchorCell(ctl), false, false };
    const int cols = HGColCount(ctl->pData);
    bounds.current.col = BoundCol(bounds.current.col, cols, &bounds.currentChanged);
    bounds.anchor.col = BoundCol(bounds.anchor.col, cols, &bounds.anchorChanged);
    bounds.current.row = BoundRow(ctl, bounds.current.row, currentRecord, &bounds.currentChanged);
    bounds.anchor.row = BoundRow(ctl, bounds.anchor.row, anchorRecord, &bounds.anchorChanged);
    return bounds;
}

void LowerFixedCols(HGridCtl* ctl)
{
    const int cols = HGColCount(ctl->pData);
    const int fixed = ctl->pData->cFixedCols;
    if (fixed <= cols) {
        return;
    }
    // The scrolling zone goes along, or columns that come later would lie between the zones.
    if (ctl->nFirstCol == fixed) {
        ctl->nFirstCol = static_cast<WORD>(cols);
    }
    ctl->pData->cFixedCols = static_cast<short>(cols);
}

} // namespace

void HGFillMirror(HGridCtl* ctl)
{
    if (ctl->pRowMirror) {
        HGCopyRow(ctl->pData, CurrentCell(ctl).row, ctl->pRowMirror, false);
    }
}

int HGClampCell(HGridCtl* ctl, LONG anchorRecord, LONG currentRecord)
{
    const HWND hwnd = ctl->hWnd;
    const bool onScreen = HasFlag(ctl, HGC_VIRTUAL) && HasFlag(ctl, HGC_CELLSHOWN);
    LowerFixedCols(ctl);
    Bounds bounds = FindBounds(ctl, anchorRecord, currentRecord);
    if (bounds.currentChanged && bounds.anchorChanged) {
        // The editor ends while the current cell is still its own: its value must not reach another cell.
        HGDetachEditor(ctl);
        if (!IsWindow(hwnd)) {
            return 1;
        }
        SetFlag(ctl, HGC_CELLSHOWN, false);
        bounds = FindBounds(ctl, anchorRecord, currentRecord);
    }
    if ((bounds.currentChanged || bounds.anchorChanged) && (HasFlag(ctl, HGC_RANGE) || onScreen)) {
        // What the screen shows inverted is more than the range that is left, and under the page may stand a piece of a
        // record that the block has dropped: nothing but the background is painted there.
        InvalidateRect(ctl->hWnd, nullptr, HasFlag(ctl, HGC_VIRTUAL));
    }
    ctl->nCurCol = static_cast<WORD>(bounds.current.col);
    ctl->nCurRow = static_cast<WORD>(bounds.current.row);
    ctl->nAnchorCol = static_cast<short>(bounds.anchor.col);
    ctl->nAnchorRow = static_cast<short>(bounds.anchor.row);
    if (bounds.currentChanged && HasFlag(ctl, HGC_VIRTUAL)) {
        IsUntold(ctl) = true;
        HGFillMirror(ctl);
    }
    return bounds.currentChanged || bounds.anchorChanged;
}
