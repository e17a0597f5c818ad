// Where the focus is while an edit is scrolled, and after it was left for another control.
#include "gridctl/grid_combos.h"

namespace {

class GridComboFocus : public GridComboCells {
protected:
    // The second item is in the combo of row 2, not stored yet, with many rows below.
    void EditRow(DWORD style)
    {
        AddRows(30);
        ctl->pData->dwStyle |= style;
        StandOn(0, 2);
        TypeKey(VK_F2);
        TypeKey(VK_DOWN);
        TypeKey(VK_DOWN);
        ASSERT_EQ(Face(), GetFocus());
        ASSERT_EQ("green", Shown());
        Forget();
    }
    void ExpectEditGoesOn()
    {
        EXPECT_EQ(Face(), GetFocus());
        EXPECT_TRUE(IsFlag(HGC_INEDIT));
        EXPECT_TRUE(IsFlag(HGC_EDITORSHOWN));
        EXPECT_TRUE(IsWindowVisible(ChildOf(0)));
        EXPECT_EQ("green", Shown());
        EXPECT_EQ(1, Send(ChildOf(0), WWM_GETCHANGED));
        EXPECT_EQ(0, parent.Count(HGN_KILLFOCUS)) << "the focus has never left the grid";
        EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
        EXPECT_EQ(parent.Count(HGN_EDITBLUR), parent.Count(HGN_EDITFOCUS));
    }
};

TEST_F(GridComboFocus, ScrollLeavesTheEditInItsCombo)
{
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HGS_KEEPSEL } }) {
        for (const bool byBar : { false, true }) {
            SCOPED_TRACE(testing::Message() << "style " << style << (byBar ? ", by the bar" : ", by the host"));
            ForEachKind([&] {
                EditRow(style);
                if (byBar) {
                    Send(grid, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 1));
                } else {
                    Send(grid, HGM_SETTOPRECORD, 1);
                }
                EXPECT_EQ(1, Send(grid, HGM_GETTOPRECORD));
                ExpectEditGoesOn();
                TypeKey(VK_TAB);
                EXPECT_EQ("green", CellText(0, 2));
            });
        }
    }
}

class GridEditFocus : public GridEditing {
protected:
    // Three columns wider than the window, and more rows than fit.
    void MakeWide(DWORD style = gridStyle)
    {
        HGField* const last = Text();
        last->nWidth = 500;
        MakeGrid(GridOf({ Text(), Text(), last }, style), 40);
        other = Create("EDIT", "", 0, 300, { 450, 10, 50, 20 });
    }
    // The user types into the cell and goes to the other control.
    void LeaveEdit(int col, int row)
    {
        TypeInto(col, row, "typed");
        SetFocus(other);
        ASSERT_EQ(other, GetFocus());
        Forget();
    }
    void ScrollByHost()
    {
        Send(grid, HGM_SETTOPRECORD, 3);
        EXPECT_EQ(3, Send(grid, HGM_GETTOPRECORD));
        Send(grid, HGM_SETHPOS, 30);
        EXPECT_EQ(30, Send(grid, HGM_GETHPOS));
    }

    HWND other = nullptr;
};

TEST_F(GridEditFocus, HostsMoveAfterAnEditWasLeftShowsNoEditor)
{
    MakeWide();
    LeaveEdit(0, 1);
    MoveTo(1, 2);
    EXPECT_CELL(1, 2);
    EXPECT_FALSE(IsFlag(HGC_EDITORSHOWN));
    EXPECT_FALSE(IsWindowVisible(ChildOf(1)));
    EXPECT_EQ(other, GetFocus());
}

TEST_F(GridEditFocus, HostsScrollAfterAnEditWasLeftTakesNoFocus)
{
    for (const DWORD style : { gridStyle, gridStyle | HGS_KEEPSEL }) {
        SCOPED_TRACE(style);
        MakeWide(style);
        LeaveEdit(0, 5);
        ScrollByHost();
        EXPECT_EQ(other, GetFocus());
        MoveTo(1, 7);
        Send(grid, HGM_SETTOPRECORD, 0);
        EXPECT_EQ(other, GetFocus());
        EXPECT_EQ(0, parent.Count(HGN_EDITFOCUS));
        DestroyWindow(grid);
    }
}

TEST_F(GridEditFocus, GridsNextFocusGoesToTheEditorOfTheCellThatIsCurrentThen)
{
    MakeWide();
    LeaveEdit(0, 1);
    MoveTo(1, 2);
    ScrollByHost();
    SetFocus(grid);
    EXPECT_EQ(ChildOf(1), GetFocus());
    EXPECT_TRUE(IsFlag(HGC_INEDIT));
    ExpectOwnEditor();
}

// Cells alone: headers are drawn by the selection, not by the painting.
TEST_F(GridEditFocus, SelectionThatIsMadeAfterAnEditWasLeftShowsWithTheFocus)
{
    for (const Cell cell : { Cell{ -1, 3 }, Cell{ 1, -1 } }) {
        SCOPED_TRACE(testing::Message() << "column " << cell.col << ", row " << cell.row);
        MakeWide(WS_VSCROLL | WS_HSCROLL);
        LeaveEdit(0, 1);
        const Pixels before = ShotOf(grid);
        MoveTo(cell.col, cell.row);
        EXPECT_TRUE(SamePixels(before, ShotOf(grid)));
        SetFocus(grid);
        const Pixels selected = ShotOf(grid);
        EXPECT_NE(before.colors, selected.colors);
        InvalidateRect(grid, nullptr, TRUE);
        EXPECT_TRUE(SamePixels(ShotOf(grid), selected));
        DestroyWindow(grid);
    }
}

TEST_F(GridEditFocus, EachOfTwoGridsStoresWhatTheFocusHasLeft)
{
    MakeWide(gridStyle | HGS_KEEPSEL);
    TypeInto(0, 1, "first");
    SetFocus(grid);
    const HWND first = grid;
    MakeWide(gridStyle | HGS_KEEPSEL);
    TypeInto(0, 1, "second");
    SetFocus(grid);
    const HWND second = grid;
    for (const HWND hwnd : { second, first }) {
        grid = hwnd;
        ctl = RecordOf<HGridCtl>(hwnd);
        MoveTo(0, 2);
        EXPECT_EQ(hwnd == first ? "first" : "second", CellText(0, 1));
    }
    EXPECT_EQ(2, parent.Count(HGN_CELLCHANGED));
}

} // namespace
