// What the sources of the grid's data side share among themselves.
#pragma once

#include "griddata/grid_model.h"
#include "typed/data_types.h"

#include <widgets/widgets.h>

// Version of a new grid, and of the newest files.
constexpr WORD gridVersion = 18506;
// Zero bytes behind a row's data: a text that fills its cell ends there, and a value that is read as a longer type.
constexpr size_t rowGuard = longestFixedType;
// Offsets of values are signed 16-bit numbers, and so are the indexes of columns.
constexpr int offsetLimit = 32767;
constexpr int columnLimit = 32767;

// The three lists of a grid, with their callbacks.
HLList* HGCreateFieldList();
HLList* HGCreateRowList();
HLList* HGCreateMapList(int cbItem);

inline int HGRowSize(const HGridData* grid)
{
    return grid && grid->pRows ? grid->pRows->cbItem : 0;
}

// Bytes that a field takes in a row. Bounded: a size past 32767 is negative, and such a field holds no value.
inline int HGCellSize(const HGField* field)
{
    return field && field->cbSize > 0 ? field->cbSize : 0;
}

// Whether bytes at a place of a row's data lie in it.
inline bool HGPlaceFits(const HGridData* grid, int place, int size)
{
    return place >= 0 && place + size <= HGRowSize(grid);
}

// Bounded: under the style without a map there is nothing to keep up, and columns move as if the style were off.
inline bool HGKeepsMap(const HGridData* grid)
{
    return (grid->dwStyle & HGS_COLMAP) != 0 && grid->pFieldMap != nullptr;
}

// An entry of the column order map: its first 16 bits, whatever the map's element size.
inline int HGMapEntry(HLList* map, int pos)
{
    void* const node = pos < 0 ? nullptr : HLListGetItem(map, pos);
    return node ? LoadAs<short>(HNodePayload(node)) : -1;
}
inline void HGSetMapEntry(HLList* map, int pos, int col)
{
    void* const node = pos < 0 ? nullptr : HLListGetItem(map, pos);
    if (node) {
        StoreAs<short>(HNodePayload(node), static_cast<short>(col));
    }
}

// The row list's cursor after its rows were replaced: on the tail, under the tail's own index again.
// Bounded: left with the index that it had before, the next lookup by index would meet another row and write into it.
inline void HGSettleRowCursor(HGridData* grid)
{
    if (HGRowCount(grid)) {
        HLListGetItem(grid->pRows, -1);
    }
}
