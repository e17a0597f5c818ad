// The fixture of grid window tests: makers with defaults for columns and grids, and short ways to cells.
#pragma once

#include "gridctl/grid_control.h"
#include "support/window_test.h"

#include <initializer_list>
#include <string>

// Columns of kind e. Titles are "Text", "Date", "Number" unless given.
inline HGField* Text(WORD size = 16, const char* title = "Text", WORD flags = 0)
{
    return HGFieldCreate(title, flags, 80, 0, 's', 's', 0, 0, size, 'e', 0, "", 0);
}
inline HGField* Date(const char* title = "Date", WORD flags = 0)
{
    return HGFieldCreate(title, flags, 80, 0, 'd', 'l', 0, 0, 0, 'e', 0, "", 0);
}
inline HGField* Number(const char* title = "Number", WORD flags = 0, const char* format = "")
{
    return HGFieldCreate(title, flags, 80, 0, 'n', 'l', 0, 0, 0, 'e', HES_RIGHT, format, 0);
}
inline HGField* Hidden(HGField* field)
{
    field->wFlags |= HFF_HIDDEN;
    return field;
}
inline HGField* OnBand(HGField* field, signed char band)
{
    field->nBand = band;
    return field;
}

constexpr DWORD gridStyle = HGS_ROWHEADERS | HGS_COLHEADERS | WS_VSCROLL | WS_HSCROLL;

// A definition in pixels: rows and headers 20 high, row headers 40 wide.
inline HGridData* GridOf(std::initializer_list<HGField*> fields, DWORD style = gridStyle, WORD fixedCols = 0,
                         WORD minRows = 0)
{
    HGridData* const data = HGridCreate("test grid", style, 0, fixedCols, 20, 40, 20, minRows);
    for (HGField* const field : fields) {
        HGAddFld(data, field);
    }
    return data;
}

class GridWindow : public WindowTest {
protected:
    // A grid window at 10, 10 with a client area of 400 by 200, and blank rows. What it says meanwhile isn't recorded.
    HWND MakeGrid(HGridData* data, int rows = 0, DWORD windowStyle = 0)
    {
        grid = Create("HGrid", "", windowStyle);
        ctl = RecordOf<HGridCtl>(grid);
        SendPtr(grid, HGM_SETDATA, 1, data);
        AddRows(rows);
        seen.Clear();
        parent.ClearCounts();
        return grid;
    }
    void AddRows(int rows)
    {
        for (int i = 0; i < rows; ++i) {
            Send(grid, HGM_ADDROW);
        }
        if (rows > 0) {
            Send(grid, HGM_REFRESH, 1);
        }
        PumpPending();
    }

    void SetText(int col, int row, const char* text) { HGSetCellText(grid, col, row, text); }
    std::string CellText(int col, int row)
    {
        char text[256] = {};
        HGGetCellText(grid, col, row, text, sizeof text);
        return text;
    }
    // Of all columns, in their order.
    std::string Titles()
    {
        std::string titles;
        for (int col = 0; col < HGColCount(ctl->pData); ++col) {
            titles += HGGetField(ctl->pData, col)->pszTitle;
        }
        return titles;
    }
    WORD RowFlags(int row) { return HGNodeFlags(HGRowNode(ctl->pData, row)); }
    WORD CellFlags(int col, int row) { return LoadAs<WORD>(HGCellFlagsPtr(ctl->pData, col, row)); }
    Cell Current() { return UnpackCell(static_cast<DWORD>(Send(grid, HGM_GETCURSOR))); }
    Cell Anchor() { return UnpackCell(static_cast<DWORD>(Send(grid, HGM_GETANCHOR))); }
    void MoveTo(int col, int row) { Send(grid, HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(col, row))); }
    bool IsInvalid() { return GetUpdateRect(grid, nullptr, FALSE) != 0; }

    HWND      grid = nullptr;
    HGridCtl* ctl = nullptr;
};

#define EXPECT_CELL(c, r) EXPECT_EQ((Cell{ c, r }), Current())
