// Makers of grids for the tests of this folder, and short ways to their cells. A grid goes with its holder.
#pragma once

#include "griddata/grid_model.h"
#include "support/guarded_memory.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

struct GridDeleter {
    void operator()(HGridData* grid) const { HGridDestroy(grid); }
};
using GridPtr = std::unique_ptr<HGridData, GridDeleter>;

struct FieldDeleter {
    void operator()(HGField* field) const { HGFieldDestroy(field); }
};
using FieldPtr = std::unique_ptr<HGField, FieldDeleter>;

// Fields of packed records are compared as copies: a comparison takes references.
template <typename T>
T Copied(T value)
{
    return value;
}

inline HGField* AnyField(const char* title, char dataClass, char dataType, WORD size = 0, const char* format = nullptr)
{
    return HGFieldCreate(title, 0, 80, 60, dataClass, dataType, 0, 0, size, 'e', 0, format, 0);
}
inline HGField* Text(const char* title, WORD size)
{
    return AnyField(title, 's', 's', size);
}
inline HGField* Number(const char* title)
{
    return AnyField(title, 'n', 'l');
}

inline GridPtr EmptyGrid(DWORD style = 0, const char* title = "grid")
{
    return GridPtr(HGridCreate(title, style, 0, 0, -1, -1, -1, 0));
}

inline void AddRows(HGridData* grid, int count)
{
    for (int i = 0; i < count; i++) {
        HLListAppend(grid->pRows, nullptr);
    }
}

// A grid of these columns, which it owns from then on, with blank rows.
inline GridPtr GridOf(std::initializer_list<HGField*> fields, DWORD style = 0, int rows = 0)
{
    GridPtr grid = EmptyGrid(style);
    for (HGField* field : fields) {
        EXPECT_LE(0, HGAddFld(grid.get(), field));
    }
    AddRows(grid.get(), rows);
    return grid;
}

inline BYTE* CellAt(HGridData* grid, int col, int row)
{
    return HGRowData(grid, row) + HGGetField(grid, col)->nOffset;
}
inline BYTE* FlagAt(HGridData* grid, int col, int row)
{
    return HGRowData(grid, row) + grid->pRows->cbItem + (HGColToPos(grid, col) - HGColCount(grid)) * 2;
}
inline void SetText(HGridData* grid, int col, int row, const char* text)
{
    _fstrnzcpy(reinterpret_cast<char*>(CellAt(grid, col, row)), text, HGGetField(grid, col)->cbSize);
}
inline std::string TextAt(HGridData* grid, int col, int row)
{
    return reinterpret_cast<const char*>(CellAt(grid, col, row));
}
template <typename T>
void SetCell(HGridData* grid, int col, int row, T value)
{
    StoreAs<T>(CellAt(grid, col, row), value);
}
template <typename T>
T CellOf(HGridData* grid, int col, int row)
{
    return LoadAs<T>(CellAt(grid, col, row));
}

inline std::vector<BYTE> RowBytes(HGridData* grid, int row)
{
    const BYTE* const data = HGRowData(grid, row);
    return std::vector<BYTE>(data, data + grid->pRows->cbItem);
}

// The texts of a column, from the links, so that the cursor stays.
inline std::vector<std::string> ColumnTexts(HGridData* grid, int col)
{
    std::vector<std::string> texts;
    void*                    node = grid->pRows->pHead;
    for (int i = 0; i < grid->pRows->cItems; i++) {
        texts.push_back(reinterpret_cast<const char*>(HGNodeData(node) + HGGetField(grid, col)->nOffset));
        node = HNodeLink(node);
    }
    return texts;
}

inline std::vector<int> MapEntries(HGridData* grid)
{
    std::vector<int> entries;
    for (int pos = 0; pos < HLListCount(grid->pFieldMap); pos++) {
        entries.push_back(LoadAs<short>(HNodePayload(HLListGetItem(grid->pFieldMap, pos))));
    }
    return entries;
}

inline std::vector<std::string> Captions(HGridData* grid)
{
    std::vector<std::string> captions;
    for (int col = 0; col < HGColCount(grid); col++) {
        captions.push_back(HGGetField(grid, col)->pszTitle);
    }
    return captions;
}

// The part of a grid window's record that changes of columns look at; without a window.
inline HGridCtl ControlOf(HGridData* grid)
{
    HGridCtl ctl = {};
    ctl.pData = grid;
    ctl.cBands = 1;
    ctl.cPageRows = 1;
    ctl.nCurCol = 0xFFFF;
    ctl.nCurRow = 0xFFFF;
    ctl.nAnchorCol = -1;
    ctl.nAnchorRow = -1;
    return ctl;
}

inline int RemoveColumn(HGridData* grid, int col)
{
    HGridCtl ctl = ControlOf(grid);
    return HGRemoveFld(&ctl, col);
}
