// A definition comes to a grid window, and a grid is emptied.
#include "gridctl/grid_control.h"

#include <algorithm>

namespace {

constexpr int   maxRowHeight = 2000;
constexpr short defaultRowHeight = 20;

bool UsesDialogUnits(const HGridData* data)
{
    return (data->dwStyle2 & 3) == HGX_DLGUNITS;
}

short DefaultRowHeight(const HGridData* data)
{
    const int unit = UsesDialogUnits(data) ? HIWORD(GetBaseUnits(nullptr)) : 0;
    return static_cast<short>(unit > 0 ? defaultRowHeight * 8 / unit : defaultRowHeight);
}

// Making and ending windows has the host's turn come, which may end the grid or attach yet another record.
bool IsAttached(const HGridCtl* ctl, HWND hwnd, const HGridData* data)
{
    return IsWindow(hwnd) && ctl->pData == data;
}

// Changed rows go back to the source. False if the window went.
bool EmptyBlock(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const short held = ctl->cHeldRows;
    ctl->cHeldRows = 0;
    HGFillBlock(ctl, false);
    if (!IsWindow(hwnd)) {
        return false;
    }
    ctl->cHeldRows = held;
    return true;
}

// Before other columns come over the same source: what is typed and what is changed isn't lost with the rows.
bool HandRowsBack(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const HGridData* const data = ctl->pData;
    HGCommitEdit(ctl);
    return IsAttached(ctl, hwnd, data) && EmptyBlock(ctl) && ctl->pData == data;
}

// The columns take their cell controls with them, the editor among them. They go while the record is still the grid's:
// a host that ends the grid meanwhile finds each column's link to its control right. False if it isn't the grid's then.
bool EndCellControls(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const HGridData* const data = ctl->pData;
    for (int col = 0; col < HGColCount(ctl->pData); ++col) {
        const HGField* const field = HGGetField(ctl->pData, col);
        ctl->hEditor = nullptr;
        SetFlag(ctl, HGC_EDITORSHOWN | HGC_INEDIT, false);
        if (field && field->pCtl) {
            DestroyWindow(field->pCtl->hWnd);
        }
        if (!IsAttached(ctl, hwnd, data)) {
            return false;
        }
    }
    return true;
}

// False if the host has ended the grid or attached yet another record: this one goes then.
bool ReplaceData(HGridCtl* ctl, HGridData* data)
{
    const HWND hwnd = ctl->hWnd;
    HGridData* const old = ctl->pData;
    // Bounded: the record that is attached already isn't destroyed under itself. Its columns keep their cell controls.
    if (old == data) {
        HGDetachEditor(ctl);
        return IsAttached(ctl, hwnd, data);
    }
    if (old && !EndCellControls(ctl)) {
        HGridDestroy(data);
        return false;
    }
    ctl->hEditor = nullptr;
    SetFlag(ctl, HGC_EDITORSHOWN | HGC_INEDIT, false);
    ctl->pData = data;
    HGridDestroy(old);
    return true;
}

void FixSizes(HGridCtl* ctl, bool isNew)
{
    HGridData* const data = ctl->pData;
    if (isNew && UsesDialogUnits(data)) {
        HGridScale(data, reinterpret_cast<HFONT>(static_cast<INT_PTR>(-1)), nullptr);
    }
    data->cFixedCols = static_cast<short>(std::min<int>(data->cFixedCols, HGColCount(data)));
    ctl->nFirstCol = static_cast<WORD>(data->cFixedCols);
    if (data->nRowHeight < 1 || data->nRowHeight > maxRowHeight) {
        data->nRowHeight = DefaultRowHeight(data);
    }
    data->nRowHeightDef = data->nRowHeight;
}

// False if the record isn't the grid's any more.
bool MakeCellControls(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const HGridData* const data = ctl->pData;
    for (int col = 0; col < HGColCount(ctl->pData); ++col) {
        HGField* const field = HGGetField(ctl->pData, col);
        if (field && !field->pCtl) {
            HGCreateCellCtl(ctl, ctl->pData, field);
        }
        if (!IsAttached(ctl, hwnd, data)) {
            return false;
        }
    }
    return true;
}

// A pop-up keeps its parent from the user.
bool SetParentEnabled(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const HGridData* const data = ctl->pData;
    EnableWindow(ctl->hParent, !HasStyle(ctl, WS_POPUP));
    return IsAttached(ctl, hwnd, data);
}

void SetFirstCell(HGridCtl* ctl)
{
    const bool byRows = HasStyle(ctl, HGS_ROWSELECT);
    SetFlag(ctl, HGC_CELLSHOWN, false);
    ctl->nCurCol = static_cast<WORD>(byRows ? 0xFFFF : 0);
    ctl->nAnchorCol = static_cast<short>(byRows ? -1 : 0);
    ctl->nCurRow = 0;
    ctl->nAnchorRow = 0;
    SetFlag(ctl, HGC_SELECTING, true);
}

// As many calls as rows are missing, whatever each answers: a source that refuses ends it too. A source that the grid
// has already, under other columns, isn't given blank records. False: no window left.
bool AddFirstRows(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (HasFlag(ctl, HGC_VIRTUAL)) {
        return true;
    }
    for (int missing = ctl->pData->cMinRows - HGRowCount(ctl->pData); missing > 0; --missing) {
        HGAddRow(ctl, nullptr, false);
        if (!IsWindow(hwnd)) {
            return false;
        }
    }
    if (HasStyle(ctl, HGS_NEWROW)) {
        HGAddRow(ctl, nullptr, true);
    }
    return IsWindow(hwnd) != 0;
}

void ResetBlock(HGridCtl* ctl)
{
    if (!EmptyBlock(ctl)) {
        return;
    }
    ctl->fTotalKnown = 0;
    SetFlag(ctl, HGC_QUIETSCROLL, true);
    ctl->lRowBase = 0;
}

// A refused value doesn't wait in the hidden editor for a row that comes later, and the editor itself is none of the cell
// that will be current then.
void ResetRows(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const bool shown = HasFlag(ctl, HGC_EDITORSHOWN);
    const bool had = ctl->hEditor != nullptr; // hidden while the focus is elsewhere
    if (shown) {
        HGForgetRefused(ctl);
    }
    if (IsWindow(hwnd)) {
        HGPutEditorAway(ctl);
    }
    if (!IsWindow(hwnd)) {
        return;
    }
    if (shown || had) {
        SetFlag(ctl, HGC_CELLSHOWN, false);
    }
    HGridEmpty(ctl->pData);
}

// Settled: the step goes from column 0 on, so the current column is the first visible one after it.
void ResetCells(HGridCtl* ctl)
{
    int col = 0;
    HGStepColumn(ctl->pData, true, &col);
    ctl->nTopRow = 0;
    ctl->nAnchorRow = 0;
    ctl->nCurRow = 0;
    ctl->nCurCol = static_cast<WORD>(col);
    ctl->nAnchorCol = static_cast<short>(col);
}

} // namespace

int HGAttachData(HGridCtl* ctl, HGridData* data)
{
    if (!ctl || !data || !data->pFields || !data->pRows) {
        return 0;
    }
    const bool isNew = data != ctl->pData;
    if (isNew && ctl->pData && HasFlag(ctl, HGC_VIRTUAL) && !HandRowsBack(ctl)) {
        HGridDestroy(data);
        return 0;
    }
    if (!ReplaceData(ctl, data)) {
        return 0;
    }
    DefWindowProcA(ctl->hWnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(data->pszTitle));
    FixSizes(ctl, isNew);
    if (!MakeCellControls(ctl) || !SetParentEnabled(ctl)) {
        return 0;
    }
    // Other rows begin with the first one; a row source's are the same records under other columns.
    if (isNew && !HasFlag(ctl, HGC_VIRTUAL)) {
        ctl->nTopRow = 0;
    }
    SetFirstCell(ctl);
    if (!AddFirstRows(ctl)) {
        return 0;
    }
    ctl->cBands = 1;
    ctl->nSortCol = 0xFFFF;
    ctl->nSortCol2 = 0xFFFF;
    return 1;
}

void HGReset(HGridCtl* ctl, bool refresh)
{
    const HWND hwnd = ctl->hWnd;
    const bool isVirtual = HasFlag(ctl, HGC_VIRTUAL);
    HGCommitEdit(ctl);
    if (!IsWindow(hwnd)) {
        return;
    }
    if (isVirtual) {
        ResetBlock(ctl);
    } else {
        ResetRows(ctl);
    }
    if (!IsWindow(hwnd)) {
        return;
    }
    ResetCells(ctl);
    if (refresh || isVirtual) {
        HGRefresh(ctl, true);
    }
}
