// The rows of the grid as rows of their file: what the user changes in the grid is noted here until it is saved.
#pragma once

#include "csv.h"
#include "loader.h"

struct Table {
    std::string         path;
    CsvFile             file;
    std::vector<Column> columns;
    std::vector<DWORD>  order;            // for each row of the grid, its row in the file; sorted along
    bool                watching = false; // what the grid tells is the user's doing
    bool                changed = false;  // since loading or saving
    bool                editing = false;  // an editor has the focus
    std::vector<char>   before;           // the value under it when it got the focus; empty for none
};

// A cell as the grid packs it: the column in the low word, the row in the high one, -1 for a header.
struct Cell {
    int column;
    int row;
};

Cell   CellOf(LRESULT packed);
LPARAM Packed(Cell cell);
Cell   CurrentCell(HWND grid);

// Opens a loaded grid for changes, with an entry row behind the last; a grid without a table stays as it is.
void BeginEditing(HWND grid, Table& table);
bool IsEditable(const Table* table);
// Rows without the untouched entry row.
int RecordCount(const Table& table);

// The grid's notifications of the same names; the proposed cell tells where.
void OnCellChanged(HWND grid, Table& table);
void OnNewRow(HWND grid, Table& table);
void OnRowDeleting(HWND grid, Table& table);

// An editor gets the focus.
void BeginEdit(HWND grid, Table& table);
// Why the editor's text can't be taken, or empty. If it can't, cell and editor have the value from before.
std::string CheckEdit(HWND grid, Table& table);

// Writes a text into a cell as if it had been typed; in the entry row this adds a record. Why not, or empty.
std::string SetCell(HWND grid, Table& table, Cell cell, const std::string& text);
// Deletes the selected rows, or the row of the current cell.
void DeleteRows(HWND grid);
// Saves what is in the grid. Why not, or empty.
std::string SaveTable(Table& table, const std::string& path);
