// Inserts and deletes rows, and keeps current cell and anchor right while rows go.
#include "gridctl/grid_rows_internal.h"

namespace {

int InsertNode(HGridCtl* ctl, const void* data, int row)
{
    if (!HasFlag(ctl, HGC_VIRTUAL)) {
        return HGInsertRowNode(ctl->pData, row, data);
    }
    const OfferedRow offered(ctl, data);
    if (!HGOfferRow(ctl, offered, HGSRC_INSERT, RecordOfRow(ctl, row)) || !HGHasRowRoom(ctl)) {
        return -1;
    }
    const int index = HGInsertRowNode(ctl->pData, row, offered.data);
    HGRaiseTotal(ctl);
    // The block grows by it: a row that it dropped for it would take the current cell along.
    ctl->cHeldRows = static_cast<short>(std::clamp<int>(HGRowCount(ctl->pData), ctl->cHeldRows, rowLimit));
    return index;
}

// A changed record goes back to the source. False if the window went.
bool WriteBack(HGridCtl* ctl, int row)
{
    void* const node = HasFlag(ctl, HGC_VIRTUAL) ? HGRowNode(ctl->pData, row) : nullptr;
    if (!node || (HGNodeFlags(node) & (HGR_DIRTY | HGR_NEW)) != HGR_DIRTY) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    HGCallSource(ctl, HGSRC_WRITEBACK, RecordOfRow(ctl, row), HGNodeData(node));
    if (!IsWindow(hwnd)) {
        return false;
    }
    if (HGRowNode(ctl->pData, row) == node) {
        HGChangeNodeFlags(node, HGR_DIRTY, 0);
    }
    return true;
}

// The row with the editor goes: the edit ends, and what it stored isn't lost. False if the window went.
bool EndEditOfRow(HGridCtl* ctl, int row)
{
    if (row != CurrentCell(ctl).row) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    HGDetachEditor(ctl);
    return IsWindow(hwnd) && WriteBack(ctl, row);
}

// Rows behind a removed one move up.
void MoveUp(HGridCtl* ctl, int row)
{
    if (row < CurrentCell(ctl).row) {
        --ctl->nCurRow;
    }
    if (row < ctl->nAnchorRow) {
        --ctl->nAnchorRow;
    }
}

// Settled: whichever row went, current row and anchor go up by one more. False if the window went.
bool MoveUpOnce(HGridCtl* ctl)
{
    if (CurrentCell(ctl).row <= 0 || ctl->nAnchorRow <= 0) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    HGDetachEditor(ctl);
    if (!IsWindow(hwnd)) {
        return false;
    }
    if (CurrentCell(ctl).row > 0 && ctl->nAnchorRow > 0) {
        --ctl->nCurRow;
        --ctl->nAnchorRow;
    }
    return true;
}

// With raiseBase the block begins one record on, as soon as its first row has gone: an edit that ends after that
// names its own record.
int RemoveRow(HGridCtl* ctl, int row, bool raiseBase)
{
    const HWND hwnd = ctl->hWnd;
    if (row < 0 || row > LastRow(ctl) || !WriteBack(ctl, row) || !EndEditOfRow(ctl, row)) {
        return 0;
    }
    const int removed = HGRemoveRowNode(ctl->pData, row);
    if (removed) {
        MoveUp(ctl, row);
        ctl->lRowBase = RecordOfRow(ctl, raiseBase ? 1 : 0);
    }
    if (!MoveUpOnce(ctl)) {
        return 0;
    }
    // Settled: crosswise, as in a refresh.
    HGClampCell(ctl, RecordOfRow(ctl, CurrentCell(ctl).row), RecordOfRow(ctl, ctl->nAnchorRow));
    return IsWindow(hwnd) ? removed : 0;
}

// Asks the source to delete a record. The row's edit ends before, and nothing of it is written back afterwards: behind
// the deletion its number is another record's. False: refused, or the window went.
bool DeleteRecord(HGridCtl* ctl, int row)
{
    const HWND hwnd = ctl->hWnd;
    if (row == CurrentCell(ctl).row) {
        HGCommitEdit(ctl);
        if (!IsWindow(hwnd)) {
            return false;
        }
    }
    void* const node = HGRowNode(ctl->pData, row);
    if (!node || (HGNodeFlags(node) & HGR_NEW)) {
        return false;
    }
    if (!HGCallSource(ctl, HGSRC_DELETE, RecordOfRow(ctl, row), HGNodeData(node)) || !IsWindow(hwnd)) {
        return false;
    }
    if (HGRowNode(ctl->pData, row) == node) {
        HGChangeNodeFlags(node, HGR_DIRTY, 0);
    }
    return true;
}

// The parent may have moved the row, or taken it away.
void EndPreset(HGridCtl* ctl, void* node)
{
    for (int row = LastRow(ctl); row >= 0; --row) {
        if (HGRowNode(ctl->pData, row) == node) {
            HGChangeNodeFlags(node, HGR_PRESET | HGR_DIRTY, 0);
            return;
        }
    }
}

} // namespace

bool HGHasRowRoom(const HGridCtl* ctl)
{
    return ctl->pData && HGRowCount(ctl->pData) < rowLimit;
}

// Index of the new row. Bounded: a row without memory isn't the one that was last before.
int HGAppendNode(HGridCtl* ctl, const void* data)
{
    const int before = HGRowCount(ctl->pData);
    HLListAdd(ctl->pData->pRows, data);
    return HGRowCount(ctl->pData) > before ? before : -1;
}

bool HGOfferRow(HGridCtl* ctl, const OfferedRow& row, int operation, LONG record)
{
    const HWND hwnd = ctl->hWnd;
    const HGridData* const grid = ctl->pData;
    const int size = grid->pRows->cbItem;
    if (!row.data || !HGCallSource(ctl, operation, record, const_cast<void*>(row.data)) || !IsWindow(hwnd)) {
        return false;
    }
    // A source that changes the columns meanwhile leaves a row that doesn't fit any more.
    return ctl->pData == grid && grid->pRows->cbItem == size;
}

// An entry row stays one whatever the parent presets in it: or each would bring the next one, or a record of a row source
// that nobody has entered.
bool HGAnnounceNewRow(HGridCtl* ctl, int row)
{
    const bool  isEntry = HasStyle(ctl, HGS_NEWROW) && row == LastRow(ctl);
    void* const node = HGRowNode(ctl->pData, row);
    if (node) {
        HGChangeNodeFlags(node, 0, isEntry ? HGR_NEW | HGR_PRESET : HGR_NEW);
    }
    ctl->nPropRow = static_cast<WORD>(row);
    ctl->nPropCol = 0xFFFF;
    if (!HGNotify(ctl, HGN_NEWROW)) {
        return false;
    }
    if (isEntry) {
        EndPreset(ctl, node);
    }
    return true;
}

int HGInsertRow(HGridCtl* ctl, const void* data, int row, bool markNew)
{
    if (!HGHasRowRoom(ctl)) {
        return -1;
    }
    const int index = InsertNode(ctl, data, row);
    return index >= 0 && markNew && !HGAnnounceNewRow(ctl, index) ? -1 : index;
}

int HGAppendRow(HGridCtl* ctl, const void* data)
{
    const int index = HGHasRowRoom(ctl) ? HGAppendNode(ctl, data) : -1;
    if (index < 0) {
        return -1;
    }
    if (index >= ctl->nTopRow && index <= ctl->nTopRow + ctl->cPageRows) {
        HGInvalidateRange(ctl, -1, index, -1, index);
    }
    return index + 1;
}

int HGDeleteRow(HGridCtl* ctl, int row, bool notify)
{
    void* const node = row >= 0 ? HGRowNode(ctl->pData, row) : nullptr;
    if (!node) {
        return 0;
    }
    if (HasFlag(ctl, HGC_VIRTUAL)) {
        if (!DeleteRecord(ctl, row)) {
            return 0;
        }
    } else if (HasStyle(ctl, HGS_NEWROW) && row == LastRow(ctl)) {
        return 0;
    }
    if (notify) {
        ctl->nPropRow = static_cast<WORD>(row);
        ctl->nPropCol = 0xFFFF;
        if (!HGNotify(ctl, HGN_ROWDELETING)) {
            return 0;
        }
    }
    // Who was asked may have deleted the row already, or loaded others: it isn't the next one's turn then.
    return HGRowNode(ctl->pData, row) == node ? HGRemoveRow(ctl, row) : 0;
}

int HGRemoveRow(HGridCtl* ctl, int row)
{
    return RemoveRow(ctl, row, false);
}

int HGRemoveFirstRow(HGridCtl* ctl)
{
    return RemoveRow(ctl, 0, true);
}
