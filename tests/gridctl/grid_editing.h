// The fixture of tests with edits under way: the user types into a cell by real keys.
#pragma once

#include "gridctl/record_source.h"

class GridEditing : public SourceWindow {
protected:
    HWND Editor() { return ctl->hEditor; }
    HWND ChildOf(int col)
    {
        const HGField* const field = HGGetField(ctl->pData, col);
        return field && field->pCtl ? field->pCtl->hWnd : nullptr;
    }
    bool IsFlag(WORD bits) { return (Send(grid, HGM_GETFLAGS) & bits) != 0; }
    // The grid has the focus and the cell is current: its editor stands by.
    void StandOn(int col, int row)
    {
        SetFocus(grid);
        MoveTo(col, row);
        Forget();
    }
    // The text replaces the cell's in the editor, which keeps the focus.
    void TypeInto(int col, int row, const char* text)
    {
        StandOn(col, row);
        TypeText(text);
        ASSERT_EQ(Editor(), GetFocus());
        ASSERT_EQ(text, TextOf(Editor()));
        Forget();
    }
    // A standing editor is the current column's own control, shows the current cell's value, and is on the screen.
    void ExpectOwnEditor()
    {
        const Cell cell = Current();
        EXPECT_EQ(ChildOf(cell.col), Editor());
        EXPECT_EQ(CellText(cell.col, cell.row), TextOf(Editor()));
        EXPECT_TRUE(IsWindowVisible(Editor()));
        EXPECT_FALSE(IsFlag(HGC_RANGE));
    }
    void ExpectNoEditor()
    {
        EXPECT_EQ(nullptr, Editor());
        for (int col = 0; col < HGColCount(ctl->pData); ++col) {
            EXPECT_FALSE(IsWindowVisible(ChildOf(col))) << "column " << col;
        }
    }
    void RefuseWrites()
    {
        parent.On(HGN_CELLCHANGED, [&] { Send(grid, WWM_CANCEL); });
    }
};
