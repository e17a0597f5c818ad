// The data side of a grid: columns, rows as flat blocks, and the surgery that keeps them right.
// Creation, copying and comparing are exports.
#pragma once

#include "foundation/item_list.h"
#include "foundation/memory.h"

#include <widgets/widgets.h>

#include <cstddef>

static_assert(sizeof(void*) != 4 || (sizeof(HGridData) == 44 && offsetof(HGridData, pRows) == 30));
static_assert(sizeof(void*) != 4 || (sizeof(HGField) == 38 && offsetof(HGField, nOffset) == 26));
static_assert(sizeof(void*) != 4 || (sizeof(HGStash) == 166 && offsetof(HGStash, szName) == 16));

// A row node is the link, a word of HGR_ flags, and the row's data: values, then one flag word for each cell.
constexpr int rowHeadSize = static_cast<int>(sizeof(void*)) + 2;
// The row list never grows to this size.
constexpr int rowLimit = 32760;

// A column's node holds the HGField pointer behind the link.
inline HGField* HGNodeField(void* node)
{
    return node ? LoadAs<HGField*>(HNodePayload(node)) : nullptr;
}
inline BYTE* HGNodeData(void* node)
{
    return node ? static_cast<BYTE*>(node) + rowHeadSize : nullptr;
}
// Beside the bits that hosts know of: the parent is told of this entry row, and what it writes into it presets it.
constexpr WORD HGR_PRESET = 0x0004;

inline WORD HGNodeFlags(const void* node)
{
    return LoadAs<WORD>(static_cast<const BYTE*>(node) + sizeof(void*));
}
inline void HGSetNodeFlags(void* node, WORD flags)
{
    StoreAs<WORD>(static_cast<BYTE*>(node) + sizeof(void*), flags);
}
inline void HGChangeNodeFlags(void* node, WORD clear, WORD set)
{
    HGSetNodeFlags(node, static_cast<WORD>((HGNodeFlags(node) & ~clear) | set));
}

// Null-safe counts.
int HGColCount(const HGridData* grid);
int HGRowCount(const HGridData* grid);

HGField* HGGetField(HGridData* grid, int col);   // null out of range
void*    HGRowNode(HGridData* grid, int row);    // null out of range
BYTE*    HGRowData(HGridData* grid, int row);    // null out of range
int      HGColToPos(HGridData* grid, int col);   // storage position, -1 if no position holds the column
int      HGPosToCol(HGridData* grid, int pos);   // the column stored at a position, pos itself without a map

int HGInsertRowNode(HGridData* grid, int row, const void* data); // as HLListInsert
int HGRemoveRowNode(HGridData* grid, int row);                   // as HLListRemove

int HGAddFld(HGridData* grid, HGField* field);   // for a grid without rows; the column's index, or -1
int HGRemoveFld(HGridCtl* ctl, int col);         // 1, or 0
int HGMoveFld(HGridData* grid, int from, int to); // what HLListMove gives, -1 for bad indexes
int HGFldCompare(const HGField* a, const HGField* b);

int   HGSetRowSize(HGridData* grid, int newSize);
void  HGShiftRowBytes(HGridData* grid, int dest, int src, int length);
void  HGRotateRowBytes(HGridData* grid, int dest, int src, int length);
void* HGBlankRow(HGridData* grid); // to be freed with HBlockFree; null if rows have no bytes
void* HGRowOfValues(HGridData* grid, const void* values); // the same with the values of a host, which have no cell flags
int   HGCopyRow(HGridData* grid, int row, void* buffer, bool toRow);
int   HGMoveRow(HGridData* grid, int from, int to);
void  HGSortRows(HGridData* grid, int col, bool ascending, DWORD* parallel);

int HGScaleX(int v); // by the screen's resolution while the switch is on
int HGScaleY(int v);
int HGUnscaleX(int v);
int HGUnscaleY(int v);
