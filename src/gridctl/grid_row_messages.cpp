// Own messages of a grid that concern rows, their data, and the record set behind them.
#include "gridctl/grid_handlers.h"

#include <algorithm>

namespace {

int RowOf(const MsgArgs& args)
{
    return static_cast<int>(args.wParam);
}

// The new row takes over what the caller hands in. The row is made blank, since row data hold no cell flags.
void FillRow(HGridCtl* ctl, int row, const MsgArgs& args)
{
    if (args.lParam && IsWindow(args.hwnd)) {
        HGCopyRow(ctl->pData, row, reinterpret_cast<void*>(args.lParam), true);
    }
}

// What stands in the editor goes into its own record before rows shift under it. False if the window went.
bool StoreBeforeShift(HGridCtl* ctl, const MsgArgs& args)
{
    HGCommitEdit(ctl);
    return IsWindow(args.hwnd) != 0;
}

// The current cell keeps its numbers, so another record stands under the editor now.
void LoadAfterShift(HGridCtl* ctl, const MsgArgs& args)
{
    if (IsWindow(args.hwnd)) {
        HGFillMirror(ctl);
        HGLoadEditor(ctl);
    }
}

LRESULT OnAddRow(HGridCtl* ctl, const MsgArgs& args)
{
    const bool beforeEntryRow = HasStyle(ctl, HGS_NEWROW) && !HasFlag(ctl, HGC_VIRTUAL);
    const bool shifts = beforeEntryRow && CurrentCell(ctl).row == LastRow(ctl);
    if (shifts && !StoreBeforeShift(ctl, args)) {
        return -1;
    }
    const int added = HGAddRow(ctl, nullptr, args.wParam != 0);
    if (added >= 1) {
        FillRow(ctl, added - 1, args);
    }
    if (shifts) {
        LoadAfterShift(ctl, args);
    }
    return added;
}

LRESULT OnDeleteRow(HGridCtl* ctl, const MsgArgs& args)
{
    return HGDeleteRow(ctl, RowOf(args), false);
}

LRESULT OnInsertRow(HGridCtl* ctl, const MsgArgs& args)
{
    const bool shifts = RowOf(args) <= CurrentCell(ctl).row;
    if (shifts && !StoreBeforeShift(ctl, args)) {
        return -1;
    }
    // A row source sees the row before it goes in, so it is whole by then.
    void* const values = reinterpret_cast<void*>(args.lParam);
    void* const row = values ? HGRowOfValues(ctl->pData, values) : nullptr;
    const int   index = HGInsertRow(ctl, row, RowOf(args), false);
    HBlockFree(row);
    if (shifts) {
        LoadAfterShift(ctl, args);
    }
    return index;
}

LRESULT OnMoveRow(HGridCtl* ctl, const MsgArgs& args)
{
    const int from = RowOf(args);
    const int to = static_cast<int>(args.lParam);
    const int current = CurrentCell(ctl).row;
    const bool shifts = current >= std::min(from, to) && current <= std::max(from, to);
    if (shifts && !StoreBeforeShift(ctl, args)) {
        return -1;
    }
    const int moved = HGMoveRow(ctl->pData, from, to);
    if (shifts) {
        LoadAfterShift(ctl, args);
    }
    return moved;
}

LRESULT OnGetRowBase(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->lRowBase;
}

LRESULT OnSetRowBase(HGridCtl* ctl, const MsgArgs& args)
{
    ctl->lRowBase = std::max(static_cast<LONG>(args.wParam), static_cast<LONG>(args.lParam));
    return AskDefault(args);
}

LRESULT CopyRow(HGridCtl* ctl, int row, const MsgArgs& args, bool toRow)
{
    void* const buffer = reinterpret_cast<void*>(args.lParam);
    return buffer ? HGCopyRow(ctl->pData, row, buffer, toRow) : 0;
}

LRESULT OnReadCurRow(HGridCtl* ctl, const MsgArgs& args)
{
    return CopyRow(ctl, CurrentCell(ctl).row, args, false);
}

LRESULT OnReadRow(HGridCtl* ctl, const MsgArgs& args)
{
    return CopyRow(ctl, RowOf(args), args, false);
}

LRESULT OnWriteRow(HGridCtl* ctl, const MsgArgs& args)
{
    const int     row = RowOf(args);
    const LRESULT written = CopyRow(ctl, row, args, true);
    // The editor shows the cell's new value, unless something else has been typed into it.
    if (written && row == CurrentCell(ctl).row && ctl->hEditor && !SendMessageA(ctl->hEditor, WWM_GETCHANGED, 0, 0) &&
        IsWindow(args.hwnd)) {
        HGLoadEditor(ctl);
    }
    return written;
}

LRESULT OnGetRowMirror(HGridCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(ctl->pRowMirror);
}

LRESULT OnSetRowMirror(HGridCtl* ctl, const MsgArgs& args)
{
    ctl->pRowMirror = reinterpret_cast<void*>(args.lParam);
    return CopyRow(ctl, CurrentCell(ctl).row, args, false);
}

LRESULT OnGetRowSize(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->pData->pRows->cbItem - 2 * HGColCount(ctl->pData);
}

LRESULT OnGetRowFlags(HGridCtl* ctl, const MsgArgs& args)
{
    const void* const node = HGRowNode(ctl->pData, RowOf(args));
    return node ? HGNodeFlags(node) & ~HGR_PRESET : AskDefault(args);
}

LRESULT OnSetRowFlags(HGridCtl* ctl, const MsgArgs& args)
{
    void* const node = HGRowNode(ctl->pData, RowOf(args));
    if (!node) {
        return AskDefault(args);
    }
    const WORD mask = static_cast<WORD>(HIWORD(args.lParam) & ~HGR_PRESET);
    const bool set = LOWORD(args.lParam) != 0;
    HGChangeNodeFlags(node, set ? WORD{ 0 } : mask, set ? mask : WORD{ 0 });
    return OnGetRowFlags(ctl, args);
}

LRESULT OnGetRowPtr(HGridCtl* ctl, const MsgArgs& args)
{
    return reinterpret_cast<LRESULT>(HGRowData(ctl->pData, static_cast<short>(HIWORD(args.lParam))));
}

LRESULT OnRecordToRow(HGridCtl* ctl, const MsgArgs& args)
{
    const LONGLONG row = static_cast<LONGLONG>(static_cast<LONG>(args.lParam)) - ctl->lRowBase;
    return row >= 0 && row <= LastRow(ctl) ? static_cast<LRESULT>(row) : -1;
}

LRESULT OnGetRowSource(HGridCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(ctl->pfnRowSource);
}

LRESULT OnSetRowSource(HGridCtl* ctl, const MsgArgs& args)
{
    const HGROWSOURCE old = ctl->pfnRowSource;
    HGReset(ctl, false);
    if (!IsWindow(args.hwnd)) {
        return 0;
    }
    ctl->pfnRowSource = reinterpret_cast<HGROWSOURCE>(args.lParam);
    SetFlag(ctl, HGC_VIRTUAL, args.lParam != 0);
    HGReset(ctl, true);
    return reinterpret_cast<LRESULT>(old);
}

LRESULT OnGetTotal(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->lTotalRows;
}

LRESULT OnSetTotal(HGridCtl* ctl, const MsgArgs& args)
{
    const LONG count = static_cast<LONG>(args.lParam);
    if (!HasFlag(ctl, HGC_VIRTUAL)) {
        return 0;
    }
    if (count != 0) {
        ctl->fTotalKnown = 1;
        ctl->lTotalRows = count < 0x7FFFFFFF ? count + 1 : count;
    } else {
        ctl->lTotalRows = HGRowCount(ctl->pData);
    }
    ctl->cHeldRows = static_cast<short>(std::clamp<LONG>(ctl->lTotalRows, 0, std::max<LONG>(ctl->cHeldRows, 0)));
    if (count < RecordOfRow(ctl, HGRowCount(ctl->pData)) || HGMeetEntryRow(ctl)) {
        HGRecalc(ctl);
    }
    return 1;
}

LRESULT OnGetHeld(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->cHeldRows;
}

LRESULT OnSetHeld(HGridCtl* ctl, const MsgArgs& args)
{
    if (!HasFlag(ctl, HGC_VIRTUAL)) {
        return 0;
    }
    ctl->cHeldRows = static_cast<short>(args.lParam);
    HGRecalc(ctl);
    return IsWindow(args.hwnd) ? ctl->cHeldRows : 0;
}

LRESULT OnSetSortCol(HGridCtl* ctl, const MsgArgs& args)
{
    ctl->nSortCol = LOWORD(args.lParam);
    return 1;
}

LRESULT OnSetSortCol2(HGridCtl* ctl, const MsgArgs& args)
{
    ctl->nSortCol2 = LOWORD(args.lParam);
    return 1;
}

LRESULT OnSort(HGridCtl* ctl, const MsgArgs& args)
{
    DWORD* const parallel = reinterpret_cast<DWORD*>(args.lParam);
    const int rows = HGRowCount(ctl->pData);
    if (!StoreBeforeShift(ctl, args)) {
        return 0;
    }
    // Bounded: the array has a place for each row that its owner knew of. When storing has added one, as it does in
    // the entry row, nothing is sorted.
    if (!parallel || HGRowCount(ctl->pData) <= rows) {
        HGSortRows(ctl->pData, LOWORD(args.wParam), HIWORD(args.wParam) != 0, parallel);
        LoadAfterShift(ctl, args);
    }
    return AskDefault(args);
}

// clang-format off
constexpr MessageEntry<GridHandler> messages[] = {
    { HGM_ADDROW,       OnAddRow },
    { HGM_DELETEROW,    OnDeleteRow },
    { HGM_INSERTROW,    OnInsertRow },
    { HGM_MOVEROW,      OnMoveRow },
    { HGM_GETROWBASE,   OnGetRowBase },
    { HGM_SETROWBASE,   OnSetRowBase },
    { HGM_READCURROW,   OnReadCurRow },
    { HGM_GETROWSOURCE, OnGetRowSource },
    { HGM_SETROWSOURCE, OnSetRowSource },
    { HGM_GETTOTAL,     OnGetTotal },
    { HGM_SETTOTAL,     OnSetTotal },
    { HGM_GETHELD,      OnGetHeld },
    { HGM_SETHELD,      OnSetHeld },
    { HGM_RECORDTOROW,  OnRecordToRow },
    { HGM_GETROWFLAGS,  OnGetRowFlags },
    { HGM_SETROWFLAGS,  OnSetRowFlags },
    { HGM_READROW,      OnReadRow },
    { HGM_WRITEROW,     OnWriteRow },
    { HGM_GETROWMIRROR, OnGetRowMirror },
    { HGM_SETROWMIRROR, OnSetRowMirror },
    { HGM_GETROWSIZE,   OnGetRowSize },
    { HGM_SETSORTCOL,   OnSetSortCol },
    { HGM_SETSORTCOL2,  OnSetSortCol2 },
    { HGM_SORT,         OnSort },
    { HGM_GETROWPTR,    OnGetRowPtr },
};
// clang-format on
constexpr auto handlers = ByNumber<firstGridMessage, lastGridMessage>(messages);

} // namespace

GridHandler HGFindRowHandler(UINT message)
{
    return FindHandler<firstGridMessage>(handlers, message);
}
