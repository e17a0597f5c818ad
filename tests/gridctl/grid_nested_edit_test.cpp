// A host that moves, refreshes or asks while a typed value is being stored: the value is stored and told of once.
#include "gridctl/grid_editing.h"

namespace {

class GridNestedEdit : public GridEditing {
protected:
    void MakeTyped(DWORD style = gridStyle)
    {
        MakeGrid(GridOf({ Text(), Text() }, style), 4);
        TypeInto(0, 1, "typed");
    }
    // A window outside of the grid that can have the focus.
    HWND Elsewhere()
    {
        if (!elsewhere_) {
            elsewhere_ = Create("HEdit", "", 0, 200, { 10, 230, 80, 20 });
        }
        return elsewhere_;
    }
    int told = 0;

private:
    HWND elsewhere_ = nullptr;
};

// Ways to leave a cell.
struct Leaving {
    const char* what;
    void (*run)(HWND grid, HWND elsewhere);
};

constexpr Leaving ways[] = {
    { "Tab", [](HWND, HWND) { TypeKey(VK_TAB); } },
    { "a press on another cell", [](HWND grid, HWND) { ClickAt(grid, 150, 150); } },
    { "the focus elsewhere", [](HWND, HWND elsewhere) { SetFocus(elsewhere); } },
};

TEST_F(GridNestedEdit, HostThatRefreshesWhenToldHearsOfAValueOnce)
{
    for (const Leaving& way : ways) {
        SCOPED_TRACE(way.what);
        MakeTyped();
        const HWND other = Elsewhere();
        SetFocus(Editor());
        parent.On(HGN_CELLCHANGED, [&] { Send(grid, HGM_REFRESH, 1); });
        way.run(grid, other);
        EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
        EXPECT_EQ("typed", CellText(0, 1));
        parent.On(HGN_CELLCHANGED, nullptr);
        DestroyWindow(grid);
    }
}

TEST_F(GridNestedEdit, HostThatMovesWhenToldHearsOfAValueOnce)
{
    for (const Leaving& way : ways) {
        SCOPED_TRACE(way.what);
        MakeTyped();
        const HWND other = Elsewhere();
        SetFocus(Editor());
        parent.On(HGN_CELLCHANGED, [&] { MoveTo(1, 3); });
        way.run(grid, other);
        EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
        EXPECT_EQ("typed", CellText(0, 1));
        EXPECT_EQ("", CellText(1, 3));
        parent.On(HGN_CELLCHANGED, nullptr);
        DestroyWindow(grid);
    }
}

TEST_F(GridNestedEdit, EntryRowThatIsLeftForElsewhereIsToldOfOnce)
{
    MakeGrid(GridOf({ Text(), Text() }, gridStyle | HGS_NEWROW), 1);
    Send(grid, HGM_KEYNEW);
    const int row = Current().row;
    TypeInto(0, row, "typed");
    SetFocus(Elsewhere());
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ("typed", CellText(0, row));
    EXPECT_EQ(row + 2, HGRowCount(ctl->pData));
}

TEST_F(GridNestedEdit, SourceIsAskedOnceForAValueOfTheEntryRow)
{
    for (const bool elsewhere : { false, true }) {
        SCOPED_TRACE(elsewhere);
        source.count = 5;
        MakeSourceGrid(gridStyle | HGS_NEWROW);
        Send(grid, HGM_KEYNEW);
        TypeInto(1, Current().row, "typed");
        if (elsewhere) {
            SetFocus(Elsewhere());
        } else {
            TypeKey(VK_TAB);
        }
        EXPECT_EQ(1, source.CountOf(HGSRC_CELL));
        EXPECT_EQ(1, source.CountOf(HGSRC_APPEND));
        EXPECT_EQ(0, source.CountOf(HGSRC_UPDATE));
        DestroyWindow(grid);
    }
}

TEST_F(GridNestedEdit, RefusedValueThatTheHostReplacedIsNotPending)
{
    MakeTyped();
    parent.On(HGN_CELLCHANGED, [&] {
        Send(grid, WWM_CANCEL);
        SendPtr(Editor(), HEM_SETDATA, 0, "old");
    });
    TypeKey(VK_TAB);
    EXPECT_EQ((Cell{ 0, 1 }), Current());
    EXPECT_EQ(0, Send(Editor(), WWM_GETCHANGED));
    EXPECT_EQ("old", TextOf(Editor()));
}

} // namespace
