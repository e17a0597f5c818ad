// The fixture of grids that a user works with the real keyboard and mouse; a host of the DLL has nothing more.
#pragma once

#include "input/cell_at.h"
#include "input/key_script.h"
#include "input/raw_value.h"
#include "support/window_test.h"

#include <string>
#include <vector>

// A column of a type such as "dl"; a text's size counts its end.
struct ColumnKind {
    const char* type = "ss";
    WORD        size = 0;
    const char* format = "";
    WORD        flags = 0;
};
constexpr ColumnKind textColumn = { "ss", 16 };
constexpr ColumnKind dateColumn = { "dl", 0, "dd/mm/yyyy" };
constexpr ColumnKind numberColumn = { "nl" };

// Rows and headers are 20 high, row headers 40 wide, columns 80.
class InputGrid : public WindowTest {
protected:
    InputGrid();
    ~InputGrid() override;

    static constexpr DWORD headers = HGS_ROWHEADERS | HGS_COLHEADERS;
    static constexpr int   pastEdge = 60; // pixels outside the window, from where drags scroll without a pause

    // A grid of 400 by 200 at 10, 10, with the id 100, and a button below it for the user to go to.
    void Make(const std::vector<ColumnKind>& columns, int rows, DWORD style = headers);
    void Clear(); // forgets what was told so far

    POINT MiddleOf(CellAt cell) const; // -1: a header
    void  Click(CellAt cell, unsigned modifiers = withNone);
    void  Press(CellAt cell, unsigned modifiers = withNone);
    void  DragTo(CellAt cell);
    void  LetGo(CellAt cell);
    void  Leave() { ClickAt(button, 5, 8); }

    CellAt      Current() const;
    CellAt      Anchor() const;
    int         RowCount() const { return static_cast<int>(Send(grid, HGM_GETROWCOUNT)); }
    int         TopRow() const { return static_cast<int>(Send(grid, HGM_GETTOPRECORD)); }
    std::string SelectedRows() const; // "3 5 "
    int         RowFlags(int row) const;

    std::string RowBytes(int row) const;                     // all values of the row
    std::string Bytes(int col, int row) const;               // of a value
    std::string Text(int col, int row) const;                // as the grid shows it
    std::string ColumnTexts(int col) const;                  // of all rows, each with a blank behind it
    void        SetText(int col, int row, const char* text); // of a text column

    HWND Child(int col) const; // the column's editor
    HWND Editor() const { return Child(Current().col); }
    bool IsEditing() const { return GetFocus() == Editor(); }
    // The current cell's editor, and no other, stands over its cell and shows its value; the grid has the focus.
    void ExpectEditorStandsBy(const std::string& what) const;
    void ExpectNoEditor() const;

    HWND grid = nullptr;
    HWND button = nullptr;
    int  columnCount = 0;

private:
    int clickShift_ = 6;
};
