// Rows that come, go or get other numbers while a move is told: cell, selection and editor stay together.
#include "gridctl/grid_editing.h"

namespace {

class GridMoveShift : public GridEditing {
protected:
    // Texts "c,r" in three columns and five rows, from 0, 0 on.
    void MakeTexts()
    {
        MakeGrid(GridOf({ Text(), Text(), Text() }), 5);
        for (int row = 0; row < 5; ++row) {
            for (int col = 0; col < 3; ++col) {
                SetText(col, row, (std::to_string(col) + "," + std::to_string(row)).c_str());
            }
        }
        StandOn(0, 0);
    }
    // Runs something the first time that a code is told.
    void Once(int code, std::function<void()> deed)
    {
        parent.On(code, [this, code, deed] {
            parent.On(code, nullptr);
            deed();
        });
    }
};

constexpr int toldCodes[] = { HGN_MOVED, HGN_ROWCHANGED };

TEST_F(GridMoveShift, RowAboveThatGoesTakesTheEditorAlong)
{
    for (const int code : toldCodes) {
        SCOPED_TRACE(code);
        MakeTexts();
        Once(code, [&] { Send(grid, HGM_DELETEROW, 0); });
        MoveTo(1, 1);
        EXPECT_EQ((Cell{ 1, 0 }), Current());
        EXPECT_EQ("1,1", TextOf(Editor()));
        ExpectOwnEditor();
        EXPECT_FALSE(IsWindowVisible(ChildOf(0)));
        TypeText("x");
        TypeKey(VK_TAB);
        EXPECT_EQ("x", CellText(1, 0));
        EXPECT_EQ("0,1", CellText(0, 0));
        DestroyWindow(grid);
    }
}

TEST_F(GridMoveShift, RowThatGoesUnderTheMoveLeavesTheNextOnesEditor)
{
    for (const int code : toldCodes) {
        for (const int gone : { 0, 2, 3, 4 }) {
            SCOPED_TRACE(code * 10 + gone);
            MakeTexts();
            Once(code, [&] { Send(grid, HGM_DELETEROW, static_cast<WPARAM>(gone)); });
            MoveTo(1, 3);
            EXPECT_EQ(Anchor(), Current());
            ExpectOwnEditor();
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridMoveShift, LastRowsThatGoLeaveTheEditorOfTheOneThatRemains)
{
    for (const int code : toldCodes) {
        MakeTexts();
        Once(code, [&] {
            while (HGRowCount(ctl->pData) > 1) {
                Send(grid, HGM_DELETEROW, 1);
            }
        });
        MoveTo(2, 4);
        EXPECT_EQ((Cell{ 2, 0 }), Current());
        ExpectOwnEditor();
        DestroyWindow(grid);
    }
}

TEST_F(GridMoveShift, RefreshAfterADeletionLeavesTheEditorOnTheScreen)
{
    for (const int code : toldCodes) {
        MakeTexts();
        Once(code, [&] {
            Send(grid, HGM_DELETEROW, 0);
            Send(grid, HGM_REFRESH, 1);
        });
        MoveTo(1, 3);
        ExpectOwnEditor();
        DestroyWindow(grid);
    }
}

TEST_F(GridMoveShift, RangeThatShiftsStaysARange)
{
    for (const int code : toldCodes) {
        MakeTexts();
        StandOn(0, 1);
        Once(code, [&] { Send(grid, HGM_DELETEROW, 0); });
        Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(1, 3)));
        EXPECT_TRUE(IsFlag(HGC_RANGE));
        ExpectNoEditor();
        DestroyWindow(grid);
    }
}

TEST_F(GridMoveShift, MirrorFollowsTheCellThatShifted)
{
    for (const int code : toldCodes) {
        MakeGrid(GridOf({ Number() }), 5);
        for (LONG row = 0; row < 5; ++row) {
            HGSetCellData(grid, 0, static_cast<int>(row), &row);
        }
        StandOn(0, 0);
        LONG mirror = -1;
        SendPtr(grid, HGM_SETROWMIRROR, 0, &mirror);
        Once(code, [&] { Send(grid, HGM_DELETEROW, 0); });
        MoveTo(0, 3);
        EXPECT_EQ(CellText(0, Current().row), std::to_string(mirror));
        Send(grid, HGM_SETROWMIRROR, 0, 0);
        DestroyWindow(grid);
    }
}

TEST_F(GridMoveShift, BlockThatShiftsKeepsTheRecordAndGivesItsEditor)
{
    for (const int code : toldCodes) {
        MakeSourceGrid();
        StandOn(0, 0);
        Once(code, [&] { Send(grid, HGM_SETTOPRECORD, 18); });
        Send(grid, HGM_GOTORECORD, 0, 20);
        EXPECT_EQ(20, CurrentRecord());
        EXPECT_EQ("1020", TextOf(Editor()));
        ExpectOwnEditor();
        DestroyWindow(grid);
    }
}

TEST_F(GridMoveShift, BlockThatShiftsAwayLeavesAnEditorOfItsNewCell)
{
    for (const int code : toldCodes) {
        MakeSourceGrid();
        StandOn(0, 0);
        Once(code, [&] { Send(grid, HGM_SETTOPRECORD, 500000); });
        Send(grid, HGM_GOTORECORD, 0, 20);
        EXPECT_EQ(Anchor(), Current());
        EXPECT_EQ(ChildOf(0), Editor());
        EXPECT_EQ(CellText(0, Current().row), TextOf(Editor()));
        DestroyWindow(grid);
    }
}

TEST_F(GridMoveShift, ValueWrittenWhileAMoveIsToldGoesToNoOtherColumnsEditor)
{
    MakeGrid(GridOf({ Text(), Number() }), 3);
    SetText(0, 0, "text");
    StandOn(0, 0);
    const LONG value = 77;
    Once(HGN_MOVED, [&] {
        HGSetCellData(grid, 1, 1, &value);
        EXPECT_EQ("text", TextOf(ChildOf(0)));
    });
    MoveTo(1, 1);
    EXPECT_EQ("77", TextOf(Editor()));
    ExpectOwnEditor();
}

TEST_F(GridMoveShift, ColumnMadeReadOnlyWhileAMoveIsToldGetsNoEditor)
{
    MakeTexts();
    Once(HGN_MOVED, [&] { Send(grid, HGM_SETFIELDFLAGS, 1, MAKELPARAM(1, HFF_READONLY)); });
    MoveTo(1, 1);
    ExpectNoEditor();
}

TEST_F(GridMoveShift, HostsDontSeeTheGridsOwnFlags)
{
    MakeTexts();
    LRESULT told = 0;
    parent.On(HGN_MOVED, [&] { told = Send(grid, HGM_GETFLAGS); });
    MoveTo(1, 1);
    EXPECT_EQ(HGC_CELLSHOWN, told & ~(HGC_PARTIALROW | HGC_SELECTING | CF_CHANGED));
    Send(grid, HGM_SETFLAGS, 1, HGC_TELLING);
    EXPECT_FALSE(ctl->wFlags & HGC_TELLING);
}

} // namespace
