// The life of a grid definition: creation, copies, destruction, and the lookups of its columns and rows.
// Columns are made and moved in grid_fields.cpp, rows changed in grid_rows_bytes.cpp.
#include "griddata/grid_model.h"

#include "griddata/griddata_internal.h"

#include <algorithm>

namespace {

constexpr short defaultHeight = 20;        // pixels
constexpr short defaultHdrWidth = 45;      // pixels
constexpr int   defaultHeightUnits = 160;  // divided by the font's height: dialog units
constexpr short defaultHdrWidthUnits = 22; // dialog units

bool IsInUnits(const HGridData* grid)
{
    return (grid->dwStyle2 & 3) == HGX_DLGUNITS;
}

short HeightOrDefault(const HGridData* grid, short height, int baseHeight)
{
    if (height >= 0) {
        return height;
    }
    // Bounded: without base units there is nothing to divide by.
    return IsInUnits(grid) && baseHeight ? static_cast<short>(defaultHeightUnits / baseHeight) : defaultHeight;
}

short HdrWidthOrDefault(const HGridData* grid, short width)
{
    if (width >= 0) {
        return width;
    }
    return IsInUnits(grid) ? defaultHdrWidthUnits : defaultHdrWidth;
}

bool CreateLists(HGridData* grid)
{
    grid->pFields = HGCreateFieldList();
    grid->pRows = HGCreateRowList();
    const bool hasMap = (grid->dwStyle & HGS_COLMAP) != 0;
    if (hasMap) {
        grid->pFieldMap = HGCreateMapList(sizeof(short));
    }
    return grid->pFields && grid->pRows && (!hasMap || grid->pFieldMap);
}

void SetTitle(HGridData* grid, const char* title)
{
    char* old = grid->pszTitle;
    grid->pszTitle = hstrdup2(&old, title);
}

// Rows that are there already keep blocks that are long enough, whatever memory there is.
void TakeRowSize(HGridData* grid, int size)
{
    if (!HGSetRowSize(grid, size) && HGRowSize(grid) > size) {
        grid->pRows->cbItem = size;
    }
    HGSettleRowCursor(grid);
}

// As copying the list, but a column whose node cannot be had is freed again.
void CopyFields(HGridData* dest, HGridData* src)
{
    const int count = HGColCount(src);
    for (int col = 0; col < count; col++) {
        HGField* const field = HGFldDup(HGGetField(src, col));
        const int      before = HGColCount(dest);
        HLListAppend(dest->pFields, field);
        if (HGColCount(dest) == before) {
            HGFieldDestroy(field);
        }
    }
}

// As copying the list, but the count stays one that rows can be numbered by.
void CopyRows(HGridData* dest, const HGridData* src)
{
    HLList* const from = src->pRows;
    const int     count = std::min(HGRowCount(src), rowLimit - 1 - HGRowCount(dest));
    for (int row = 0; row < count; row++) {
        HLListAppend(dest->pRows, HGNodeData(HLListGetItem(from, row)));
    }
}

} // namespace

HGridData* WINAPI HGridCreate(const char* title, DWORD style, DWORD style2, WORD fixedCols, short rowHeight,
                              short hdrWidth, short hdrHeight, WORD minRows)
{
    HGridData* const grid = HRecordAlloc<HGridData>();
    if (!grid) {
        return nullptr;
    }
    grid->dwStyle = style;
    grid->dwStyle2 = style2;
    // Bounded: a grid whose lists cannot be had isn't given out, since everything reaches into them.
    if (!CreateLists(grid)) {
        HGridDestroy(grid);
        return nullptr;
    }
    const short fixed = static_cast<short>(fixedCols);
    const int   baseHeight = HIWORD(GetBaseUnits(nullptr));
    grid->cFixedCols = fixed >= 1 ? fixed : 0;
    grid->nHdrHeight = HeightOrDefault(grid, hdrHeight, baseHeight);
    grid->nHdrHeightDef = grid->nHdrHeight;
    grid->nHdrWidth = HdrWidthOrDefault(grid, hdrWidth);
    grid->nRowHeight = HeightOrDefault(grid, rowHeight, baseHeight);
    grid->nRowHeightDef = grid->nRowHeight;
    grid->cMinRows = minRows;
    grid->wVersion = gridVersion;
    grid->pszTitle = hstrdup(title);
    return grid;
}

int WINAPI HGridDestroy(HGridData* grid)
{
    if (!grid) {
        return 0;
    }
    HLListDestroy(grid->pFields);
    HLListDestroy(grid->pRows);
    HLListDestroy(grid->pFieldMap);
    HBlockFree(grid->pszTitle);
    HBlockFree(grid);
    return 1;
}

int WINAPI HGridEmpty(HGridData* grid)
{
    return grid ? HLListEmpty(grid->pRows) : 0;
}

int WINAPI HGridCopy(HGridData* dest, HGridData* src)
{
    if (!dest || !src) {
        return 0;
    }
    TakeRowSize(dest, HGRowSize(src));
    dest->pRows->dwUser = src->pRows->dwUser;
    CopyFields(dest, src);
    CopyRows(dest, src);
    HLListCopy(dest->pFieldMap, src->pFieldMap);
    SetTitle(dest, src->pszTitle);
    // From wVersion through cMinRows the settings stand together.
    std::memmove(dest, src, offsetof(HGridData, pszTitle));
    return 1;
}

HGridData* WINAPI HGridDup(HGridData* src)
{
    HGridData* const copy = src ? HGridCreate(nullptr, src->dwStyle, src->dwStyle2, 0, -1, -1, -1, 0) : nullptr;
    HGridCopy(copy, src);
    return copy;
}

int HGColCount(const HGridData* grid)
{
    return grid ? HLListCount(grid->pFields) : 0;
}

int HGRowCount(const HGridData* grid)
{
    return grid ? HLListCount(grid->pRows) : 0;
}

HGField* HGGetField(HGridData* grid, int col)
{
    return grid && col >= 0 ? HGNodeField(HLListGetItem(grid->pFields, col)) : nullptr;
}

void* HGRowNode(HGridData* grid, int row)
{
    return grid && row >= 0 ? HLListNodeAt(grid->pRows, row) : nullptr;
}

// The row before is looked up by way of noted nodes first, which leaves nothing to walk for the list.
int HGInsertRowNode(HGridData* grid, int row, const void* data)
{
    HGRowNode(grid, row - 1);
    return HLListInsert(grid->pRows, row, data);
}

int HGRemoveRowNode(HGridData* grid, int row)
{
    HGRowNode(grid, row - 1);
    return HLListRemove(grid->pRows, row);
}

BYTE* HGRowData(HGridData* grid, int row)
{
    return HGNodeData(HGRowNode(grid, row));
}

int HGColToPos(HGridData* grid, int col)
{
    HLList* const map = grid ? grid->pFieldMap : nullptr;
    if (!map) {
        return col;
    }
    const int count = HLListCount(map);
    for (int pos = 0; pos < count; pos++) {
        if (HGMapEntry(map, pos) == col) {
            return pos;
        }
    }
    return -1;
}

int HGPosToCol(HGridData* grid, int pos)
{
    if (pos < 0 || pos >= HGColCount(grid)) {
        return -1;
    }
    return grid->pFieldMap ? HGMapEntry(grid->pFieldMap, pos) : pos;
}
