// Selected rows: the range between anchor and current row, and the scattered rows that carry a flag.
#include "gridctl/grid_control.h"

namespace {

void InvalidateRows(HGridCtl* ctl, int rowA, int rowB)
{
    HGInvalidateRange(ctl, -1, rowA, -1, rowB);
}

bool IsInPage(const HGridCtl* ctl, int row)
{
    return row >= ctl->nTopRow && row <= ctl->nTopRow + ctl->cPageRows;
}

void MarkRow(HGridCtl* ctl, int row, bool state)
{
    void* const node = HGRowNode(ctl->pData, row);
    if (!node) {
        return;
    }
    const WORD flags = HGNodeFlags(node);
    if ((flags & HGR_SELECTED) && !state && IsInPage(ctl, row)) {
        InvalidateRows(ctl, row, row);
    }
    HGSetNodeFlags(node, static_cast<WORD>(state ? flags | HGR_SELECTED : flags & ~HGR_SELECTED));
}

void UnmarkAll(HGridCtl* ctl)
{
    HGMarkRows(ctl, 0, HGRowCount(ctl->pData), false);
}

} // namespace

bool HGIsRowSelected(HGridCtl* ctl, int row)
{
    const int current = CurrentCell(ctl).row;
    const int anchor = ctl->nAnchorRow;
    const bool inRange = row >= std::min(anchor, current) && row <= std::max(anchor, current);
    if (anchor == -1 || current == -1 || inRange) {
        return HasFlag(ctl, HGC_SELECTING);
    }
    const void* const node = HGRowNode(ctl->pData, row);
    return node && (HGNodeFlags(node) & HGR_SELECTED);
}

void HGMarkRows(HGridCtl* ctl, int rowA, int rowB, bool state)
{
    const int last = std::min(std::max(rowA, rowB), LastRow(ctl));
    for (int row = std::max(std::min(rowA, rowB), 0); row <= last; ++row) {
        MarkRow(ctl, row, state);
    }
}

bool HGSelRange(HGridCtl* ctl, int* lo, int* hi)
{
    const int current = CurrentCell(ctl).row;
    *lo = std::min<int>(ctl->nAnchorRow, current);
    *hi = std::max<int>(ctl->nAnchorRow, current);
    if (*lo < 0) {
        *lo = 0;
        *hi = LastRow(ctl);
    }
    return *lo != *hi;
}

void HGSelectRow(HGridCtl* ctl, int col, int row, bool shift, bool ctrl)
{
    const HWND hwnd = ctl->hWnd;
    bool selecting = HasFlag(ctl, HGC_SELECTING);
    if (row < 0) {
        UnmarkAll(ctl);
    } else {
        if (!shift) {
            HGMarkRows(ctl, ctl->nAnchorRow, CurrentCell(ctl).row, selecting);
        }
        if (!ctrl) {
            UnmarkAll(ctl);
            InvalidateRows(ctl, shift ? ctl->nAnchorRow : row, row);
            selecting = true;
        } else if (!shift) {
            selecting = !HGIsRowSelected(ctl, row);
            InvalidateRows(ctl, row, row);
        } else {
            HGMoveTo(ctl, -1, row, shift, true);
        }
    }
    if (!IsWindow(hwnd)) {
        return;
    }
    HGMoveTo(ctl, col, row, shift, true);
    if (IsWindow(hwnd)) {
        SetFlag(ctl, HGC_SELECTING, selecting);
    }
}
