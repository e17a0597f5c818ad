// Selected rows.
#include "gridctl/grid_window.h"

namespace {

class GridSelect : public GridWindow {
protected:
    void MakeRowGrid(int rows = 10)
    {
        MakeGrid(GridOf({ Text() }, gridStyle | HGS_ROWSELECT), rows);
        MoveTo(-1, 0);
        Send(grid, HGM_SETFLAGS, 1, HGC_SELECTING);
        UpdateWindow(grid);
    }
    // One letter a row: '#' selected, '.' not.
    std::string Selected()
    {
        std::string text;
        for (int row = 0; row < HGRowCount(ctl->pData); ++row) {
            text += HGIsRowSelected(ctl, row) ? '#' : '.';
        }
        return text;
    }
    void Click(int row, bool shift = false, bool ctrl = false) { HGSelectRow(ctl, 0, row, shift, ctrl); }
};

TEST_F(GridSelect, RowsOfTheRangeReadAsTheFlagSays)
{
    MakeRowGrid();
    MoveTo(-1, 2);
    Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(-1, 4)));
    EXPECT_EQ("..###.....", Selected());
    Send(grid, HGM_SETFLAGS, 0, HGC_SELECTING);
    EXPECT_EQ("..........", Selected());
}

TEST_F(GridSelect, WholeColumnReadsAsTheFlagSays)
{
    MakeRowGrid();
    MoveTo(0, -1);
    EXPECT_EQ("##########", Selected());
    EXPECT_TRUE(HGIsRowSelected(ctl, -1));
    EXPECT_TRUE(HGIsRowSelected(ctl, 99));
}

TEST_F(GridSelect, BadRowsAreNotSelected)
{
    MakeRowGrid();
    MoveTo(-1, 2);
    EXPECT_FALSE(HGIsRowSelected(ctl, -1));
    EXPECT_FALSE(HGIsRowSelected(ctl, 99));
}

TEST_F(GridSelect, MarkedRowsAreInvalidatedOnlyWhenTheyLoseTheirMark)
{
    MakeRowGrid();
    HGMarkRows(ctl, 5, 3, true);
    EXPECT_FALSE(IsInvalid());
    EXPECT_EQ("#..###....", Selected());
    HGMarkRows(ctl, 4, 9, false);
    EXPECT_TRUE(IsInvalid());
    EXPECT_EQ("#..#......", Selected());
}

TEST_F(GridSelect, MarksStayInsideTheRows)
{
    MakeRowGrid(3);
    HGMarkRows(ctl, -5, 70, true);
    EXPECT_EQ("###", Selected());
}

TEST_F(GridSelect, RangeIsFromTheLowerToTheHigherRow)
{
    MakeRowGrid();
    struct Case {
        int  anchor;
        int  current;
        int  lo;
        int  hi;
        bool several;
    };
    constexpr Case cases[] = { { 2, 5, 2, 5, true }, { 5, 2, 2, 5, true }, { 4, 4, 4, 4, false }, { -1, -1, 0, 9, true } };
    for (const Case& c : cases) {
        ctl->nAnchorRow = static_cast<short>(c.anchor);
        ctl->nCurRow = static_cast<WORD>(c.current);
        int lo = -9;
        int hi = -9;
        EXPECT_EQ(c.several, HGSelRange(ctl, &lo, &hi));
        EXPECT_EQ(c.lo, lo);
        EXPECT_EQ(c.hi, hi);
    }
}

TEST_F(GridSelect, PlainClickClearsAllOthers)
{
    MakeRowGrid();
    Click(2);
    Click(5, false, true);
    Click(7);
    EXPECT_EQ(".......#..", Selected());
}

TEST_F(GridSelect, CtrlClickTogglesARow)
{
    MakeRowGrid();
    Click(2);
    Click(5, false, true);
    EXPECT_EQ("..#..#....", Selected());
    Click(5, false, true);
    EXPECT_EQ("..#.......", Selected());
    Click(5, false, true);
    Click(2, false, true);
    EXPECT_EQ(".....#....", Selected());
    EXPECT_EQ(2, Current().row);
}

TEST_F(GridSelect, ShiftClickExtendsFromTheAnchor)
{
    MakeRowGrid();
    Click(2);
    Click(8, false, true);
    Click(5, true);
    EXPECT_EQ(".....####.", Selected());
    Click(9, true);
    EXPECT_EQ("........##", Selected());
}

TEST_F(GridSelect, CtrlShiftClickAddsARange)
{
    MakeRowGrid();
    Click(1);
    Click(4, false, true);
    Click(6, true, true);
    EXPECT_EQ(".#..###...", Selected());
}

TEST_F(GridSelect, ClickOnTheHeaderClearsTheMarks)
{
    MakeRowGrid();
    Click(1);
    Click(4, false, true);
    Click(-1);
    EXPECT_EQ(-1, Current().row);
    for (int row = 0; row < 10; ++row) {
        EXPECT_FALSE(RowFlags(row) & HGR_SELECTED) << "row " << row;
    }
}

TEST_F(GridSelect, TogglingByMessageActsAsACtrlClick)
{
    MakeRowGrid();
    Click(1);
    EXPECT_EQ(1, Send(grid, HGM_TOGGLEROW, 6));
    EXPECT_EQ(".#....#...", Selected());
    int rows[10] = {};
    EXPECT_EQ(2, SendPtr(grid, HGM_GETSELROWS, 10, rows));
    EXPECT_EQ(1, rows[0]);
    EXPECT_EQ(6, rows[1]);
}

TEST_F(GridSelect, ParentThatDestroysTheGridInTheMoveIsSurvived)
{
    for (const int code : { HGN_MOVING, HGN_EXTENDING, HGN_MOVED, HGN_ROWCHANGED }) {
        for (int keys = 0; keys < 4; ++keys) {
            MakeRowGrid();
            parent.ClearCounts();
            parent.On(code, [&] { DestroyWindow(grid); });
            HGSelectRow(ctl, 0, 5, (keys & 1) != 0, (keys & 2) != 0);
            parent.On(code, nullptr);
            EXPECT_EQ(parent.Count(code) == 0, IsWindow(grid) != 0);
            DestroyWindow(grid);
        }
    }
}

} // namespace
