// Adds rows at the end, before the entry row where there is one.
#include "gridctl/grid_rows_internal.h"

namespace {

// The last row is the blank one in which the user enters the next record.
bool HasEntryRow(const HGridCtl* ctl)
{
    const void* const last = HGRowCount(ctl->pData) > 0 ? ctl->pData->pRows->pTail : nullptr;
    return HasStyle(ctl, HGS_NEWROW) && last && (HGNodeFlags(last) & HGR_DIRTY) == 0;
}

// Settled: the result is the row count, so the caller's row is the entry row and not the inserted one.
int InsertBeforeEntryRow(HGridCtl* ctl, const void* data)
{
    const int inserted = HGInsertRowNode(ctl->pData, LastRow(ctl), data);
    return inserted < 0 ? -1 : static_cast<short>(HGRowCount(ctl->pData));
}

// The index that the row gets when the block takes it in later, or -1.
int AppendToSource(HGridCtl* ctl, const void* data)
{
    const HWND hwnd = ctl->hWnd;
    const OfferedRow row(ctl, data);
    const bool taken = HGOfferRow(ctl, row, HGSRC_APPEND, HGRowCount(ctl->pData));
    return taken && IsWindow(hwnd) ? HGRowCount(ctl->pData) : -1;
}

} // namespace

int HGAddRow(HGridCtl* ctl, const void* data, bool markNew)
{
    if (!HGHasRowRoom(ctl)) {
        return -1;
    }
    if (HasFlag(ctl, HGC_VIRTUAL)) {
        const int index = AppendToSource(ctl, data);
        return index < 0 ? -1 : static_cast<short>(index + 1);
    }
    if (HasEntryRow(ctl)) {
        return markNew ? -1 : InsertBeforeEntryRow(ctl, data);
    }
    const int index = HGAppendNode(ctl, data);
    if (index < 0 || (markNew && !HGAnnounceNewRow(ctl, index))) {
        return -1;
    }
    return static_cast<short>(index + 1);
}
