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

void ReplaceData(HGridCtl* ctl, HGridData* data)
{
    HGridData* const old = ctl->pData;
    // The old columns take their cell controls with them, the editor among them.
    ctl->hEditor = nullptr;
    SetFlag(ctl, HGC_EDITORSHOWN | HGC_INEDIT, false);
    ctl->pData = data;
    // Bounded: the record that is attached already isn't destroyed under itself.
    if (old && old != data) {
        HGridDestroy(old);
    }
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

void MakeCellControls(HGridCtl* ctl)
{
    for (int col = 0; col < HGColCount(ctl->pData); ++col) {
        HGField* const field = HGGetField(ctl->pData, col);
        if (!field) {
            return;
        }
        if (!field->pCtl) {
            HGCreateCellCtl(ctl, ctl->pData, field);
        }
    }
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

// As many calls as rows are missing, whatever each answers: a source that refuses ends it too. False: no window left.
bool AddFirstRows(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
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
    const HWND hwnd = ctl->hWnd;
    const short held = ctl->cHeldRows;
    ctl->cHeldRows = 0;
    HGFillBlock(ctl, false);
    if (!IsWindow(hwnd)) {
        return;
    }
    ctl->fTotalKnown = 0;
    SetFlag(ctl, HGC_QUIETSCROLL, true);
    ctl->lRowBase = 0;
    ctl->cHeldRows = held;
}

void ResetRows(HGridCtl* ctl)
{
    if (HasFlag(ctl, HGC_EDITORSHOWN)) {
        HGHideEditor(ctl);
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
    ReplaceData(ctl, data);
    DefWindowProcA(ctl->hWnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(data->pszTitle));
    FixSizes(ctl, isNew);
    MakeCellControls(ctl);
    EnableWindow(ctl->hParent, !HasStyle(ctl, WS_POPUP));
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
