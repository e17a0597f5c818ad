// How many rows there are, and which of them is on top: the part of layout and scrolling that needs no screen.
#include "gridctl/grid_control.h"

namespace {

// Most units of a scroll bar: longer record sets are scaled.
constexpr LONG scrollUnits = 32766;

// A block that was cut or a page that has grown may leave records of the page unloaded that the source has.
bool IsPageUnloaded(const HGridCtl* ctl)
{
    const int rows = HGRowCount(ctl->pData);
    const int pageEnd = ctl->nTopRow + ctl->cPageRows - PartialRow(ctl);
    return ctl->nTopRow > 1 && pageEnd > rows && RecordOfRow(ctl, rows) < ctl->lTotalRows;
}

// Loads what should be loaded. False if the window went.
bool LoadBlock(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    ctl->cHeldRows = static_cast<short>(std::clamp<int>(ctl->cHeldRows, std::min(2 * ctl->cPageRows, rowLimit), rowLimit));
    HGFillBlock(ctl, false);
    if (!IsWindow(hwnd)) {
        return false;
    }
    if (IsPageUnloaded(ctl)) {
        HGShiftBlock(ctl, RecordOfRow(ctl, ctl->nTopRow - 1));
    }
    return IsWindow(hwnd) != 0;
}

// Moves the block so that it holds the page that begins with the record, with some rows to spare before it.
void BringPageIn(HGridCtl* ctl, LONG record)
{
    const std::int64_t pageEnd = static_cast<std::int64_t>(record) + ctl->cPageRows + PartialRow(ctl);
    if (record < ctl->lRowBase) {
        HGShiftBlock(ctl, BoundRecord(pageEnd - ctl->cHeldRows));
    } else if (pageEnd >= RecordOfRow(ctl, HGRowCount(ctl->pData))) {
        HGShiftBlock(ctl, BoundRecord(static_cast<std::int64_t>(record) - 1));
    }
}

} // namespace

void HGRaiseTotal(HGridCtl* ctl)
{
    const LONG total = ctl->lTotalRows;
    ctl->lTotalRows = std::max(total, RecordOfRow(ctl, HGRowCount(ctl->pData)));
}

bool HGCountRows(HGridCtl* ctl)
{
    if (!HasFlag(ctl, HGC_VIRTUAL)) {
        ctl->cHeldRows = static_cast<short>(HGRowCount(ctl->pData));
        ctl->lTotalRows = ctl->cHeldRows;
    } else {
        if (!LoadBlock(ctl)) {
            return false;
        }
        HGRaiseTotal(ctl);
    }
    const LONG total = ctl->lTotalRows;
    ctl->nVScale = (std::max<LONG>(total, 1) - 1) / scrollUnits + 1;
    return true;
}

void HGRestoreTop(HGridCtl* ctl, LONG record)
{
    const int fixed = ctl->pData->cFixedCols;
    const int lastFirst = std::max(fixed, LastCol(ctl));
    const std::int64_t top = static_cast<std::int64_t>(record) - ctl->lRowBase;
    constexpr std::int64_t highest = 0x7FFF;
    HGRaiseTotal(ctl);
    ctl->nFirstCol = static_cast<WORD>(std::clamp<int>(ctl->nFirstCol, fixed, lastFirst));
    ctl->nTopRow = static_cast<short>(std::clamp<std::int64_t>(top, 0, highest));
}

int HGSetTop(HGridCtl* ctl, LONG record)
{
    const HWND hwnd = ctl->hWnd;
    const LONG oldTop = HGTopRecord(ctl);
    const LONG oldTotal = ctl->lTotalRows;
    if (HasFlag(ctl, HGC_VIRTUAL)) {
        BringPageIn(ctl, record);
        if (!IsWindow(hwnd)) {
            return 0;
        }
    }
    const int lastTop = std::max(PartialRow(ctl) + HGRowCount(ctl->pData) - ctl->cPageRows, 0);
    const LONG base = ctl->lRowBase;
    const LONG top = std::clamp(record, base, RecordOfRow(ctl, lastTop));
    ctl->nTopRow = static_cast<short>(top - base);
    if (ctl->lTotalRows != oldTotal) {
        HGRecalc(ctl);
    }
    return static_cast<int>(BoundRecord(static_cast<std::int64_t>(top) - oldTop));
}
