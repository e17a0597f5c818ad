// Adding, inserting, removing and moving the columns of a grid whose rows keep their values.
// The bytes are moved by grid_rows_bytes.cpp; these are the steps around it, with the column order map.
#include "griddata/grid_services.h"
#include "griddata/griddata_internal.h"

#include <algorithm>

namespace {

// Byte of the flag word at a storage position, for rows and columns as they are counted now.
int FlagPlace(HGridData* grid, int pos)
{
    return HGRowSize(grid) + (pos - HGColCount(grid)) * 2;
}

// Bounded: where a value would come to stand at an offset that can't be stored, the column is refused.
bool HasRoomFor(HGridData* grid, const HGField* field, int index)
{
    const int count = HGColCount(grid);
    int       highest = HGRowSize(grid) - 2 * count;
    if (index < count) {
        highest = 0;
        for (int col = 0; col < count; col++) {
            highest = std::max<int>(highest, HGGetField(grid, col)->nOffset);
        }
        highest += HGCellSize(field);
    }
    return highest <= offsetLimit && count < columnLimit;
}

// A list tells a failed append only by its count.
int AppendField(HGridData* grid, HGField* field)
{
    const int count = HGColCount(grid);
    const int index = HLListAdd(grid->pFields, field);
    return HGColCount(grid) == count ? -1 : index;
}

// An entry of its own position. The position, 0 where no map is kept, or -1.
int InsertMapEntry(HGridData* grid, int pos)
{
    const LONG entry = pos;
    return HGKeepsMap(grid) ? HLListInsert(grid->pFieldMap, pos, &entry) : 0;
}

void RemoveMapEntry(HGridData* grid, int pos)
{
    if (HGKeepsMap(grid)) {
        HLListRemove(grid->pFieldMap, pos);
    }
}

// Entries of the columns that the new one pushes up.
void RaiseMapEntries(HGridData* grid, int index, int newPos)
{
    const int count = HGKeepsMap(grid) ? grid->pFieldMap->cItems : 0;
    for (int pos = 0; pos < count; pos++) {
        const int entry = HGMapEntry(grid->pFieldMap, pos);
        if (pos != newPos && entry >= index) {
            HGSetMapEntry(grid->pFieldMap, pos, entry + 1);
        }
    }
}

void DropMapEntry(HGridData* grid, int col)
{
    const int gone = HGColToPos(grid, col);
    const int count = grid->pFieldMap->cItems;
    for (int pos = 0; pos < count; pos++) {
        const int entry = HGMapEntry(grid->pFieldMap, pos);
        if (gone >= 0 && entry > col) {
            HGSetMapEntry(grid->pFieldMap, pos, entry - 1);
        }
    }
    HLListRemove(grid->pFieldMap, gone);
}

// Puts the column, its map entry and the room for its cells in place, or nothing of it. The index, or -1.
// Bounded: without memory for all of it the column is refused, so that no cell lies outside its row.
int PlaceField(HGridData* grid, HGField* field, int index, int mapPos)
{
    const int size = HGRowSize(grid);
    const int pos = HasRoomFor(grid, field, index) ? InsertMapEntry(grid, mapPos) : -1;
    if (pos < 0) {
        return -1;
    }
    int placed = -1;
    if (HGSetRowSize(grid, size + HGCellSize(field) + 2)) {
        placed = index < HGColCount(grid) ? HLListInsert(grid->pFields, index, field) : AppendField(grid, field);
    }
    HGSettleRowCursor(grid);
    if (placed < 0) {
        RemoveMapEntry(grid, pos);
        grid->pRows->cbItem = size;
    }
    return placed;
}

// Opens the place of a new value and of its flag word in every row.
void OpenCells(HGridData* grid, HGField* field, int index)
{
    int start = 0;
    if (index > 0) {
        HLList* const  map = grid->pFieldMap;
        const HGField* at = HGGetField(grid, map && index < map->cItems ? HGMapEntry(map, index) : index);
        start = at ? at->nOffset : 0;
    }
    const int size = HGRowSize(grid);
    const int cell = HGCellSize(field);
    HGShiftRowBytes(grid, start + cell, start, size - start - cell);
    if (index < HGColCount(grid) - 1) {
        const int flag = FlagPlace(grid, index);
        HGShiftRowBytes(grid, flag + 2, flag, size - flag - 2);
    }
}

// Closes the gap that a removed column leaves in every row, whose size still counts it.
void CloseCells(HGridData* grid, int col, int offset, int cell)
{
    const int size = HGRowSize(grid);
    if (col < HGColCount(grid)) {
        // Settled: the count is that after the removal, so the word behind the column's own is the one that goes.
        const int flag = FlagPlace(grid, HGColToPos(grid, col));
        HGShiftRowBytes(grid, flag, flag + 2, size - flag - 2);
    }
    HGShiftRowBytes(grid, offset, offset + cell, size - offset - cell);
    HGSetRowSize(grid, size - cell - 2);
}

int MoveWithMap(HGridData* grid, int from, int to)
{
    HLList* const map = grid->pFieldMap;
    const int     moved = HGColToPos(grid, from);
    HGSetMapEntry(map, moved, to);
    const int count = map->cItems;
    for (int pos = 0; pos < count; pos++) {
        int entry = HGMapEntry(map, pos);
        if (pos == moved) {
            continue;
        }
        entry -= entry > from;
        entry += entry >= to;
        HGSetMapEntry(map, pos, entry);
    }
    const int result = HLListMove(grid->pFields, from, to);
    HGFixOffsets(grid);
    return result;
}

int MoveWithBytes(HGridData* grid, int from, int to)
{
    const HGField* const source = HGGetField(grid, from);
    const HGField* const target = HGGetField(grid, to);
    const bool           forward = from < to;
    const int            dest = target->nOffset + (forward ? HGCellSize(target) : 0);
    if (dest < 0) {
        return 0;
    }
    HGRotateRowBytes(grid, dest, source->nOffset, HGCellSize(source));
    HGRotateRowBytes(grid, FlagPlace(grid, to) + (forward ? 2 : 0), FlagPlace(grid, from), 2);
    const int result = HLListMove(grid->pFields, from, to);
    HGFixOffsets(grid);
    return result;
}

// Ends the edit before a column goes: whichever it is, the current column's number may be another's afterwards.
// False if the window, the data or the column went meanwhile.
bool LeaveColumn(HGridCtl* ctl, const HGridData* grid, int col)
{
    const HWND hwnd = ctl->hWnd;
    HGDetachEditor(ctl);
    if (hwnd && !IsWindow(hwnd)) {
        return false;
    }
    return ctl->pData == grid && col < HGColCount(grid);
}

} // namespace

int HGAddFld(HGridData* grid, HGField* field)
{
    if (!grid || !field) {
        return -1;
    }
    const int count = HGColCount(grid);
    const int offset = HGRowSize(grid) - 2 * count;
    const int index = PlaceField(grid, field, count, HLListCount(grid->pFieldMap));
    if (index >= 0) {
        field->nOffset = static_cast<short>(std::max(offset, 0));
    }
    return index;
}

int WINAPI HGInsertFld(HGridData* grid, HGField* field, short position)
{
    if (!grid || !field) {
        return -1;
    }
    const int count = HGColCount(grid);
    const int place = position < 0 || position > count ? count : position;
    const int index = PlaceField(grid, field, place, place);
    if (index >= 0) {
        RaiseMapEntries(grid, index, std::min(place, HLListCount(grid->pFieldMap) - 1));
        HGFixOffsets(grid);
        OpenCells(grid, field, index);
    }
    return index;
}

int HGRemoveFld(HGridCtl* ctl, int col)
{
    HGridData* const grid = ctl ? ctl->pData : nullptr;
    if (col < 0 || col >= HGColCount(grid) || !LeaveColumn(ctl, grid, col)) {
        return 0;
    }
    const HGField* const field = HGGetField(grid, col);
    const int            cell = HGCellSize(field);
    const int            offset = field->nOffset;
    if (HGKeepsMap(grid)) {
        DropMapEntry(grid, col);
    }
    if (!HLListRemove(grid->pFields, col)) {
        return 0;
    }
    CloseCells(grid, col, offset, cell);
    HGFixOffsets(grid);
    HGSettleRowCursor(grid);
    HGRedrawSelection(ctl);
    return 1;
}

int HGMoveFld(HGridData* grid, int from, int to)
{
    const int count = HGColCount(grid);
    if (from < 0 || from >= count || to < 0 || to >= count || from == to) {
        return -1;
    }
    return HGKeepsMap(grid) ? MoveWithMap(grid, from, to) : MoveWithBytes(grid, from, to);
}
