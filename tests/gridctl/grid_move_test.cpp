// Moves of the current cell, by message and by key.
#include "gridctl/record_source.h"

namespace {

constexpr DWORD plainStyle = HGS_ROWHEADERS | HGS_COLHEADERS;

class GridMove : public SourceWindow {
protected:
    // Five columns and 30 rows in a page of 9, at the cell given.
    void MakeCells(int col = 1, int row = 3, DWORD style = plainStyle)
    {
        MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text() }, style), 30);
        MoveTo(col, row);
        seen.NotificationsOnly();
        Forget();
    }
    void Extend(int col, int row) { Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(col, row))); }
    void Key(UINT vk, bool shift = false, bool ctrl = false) { EXPECT_EQ(1, HGKeyNavigate(ctl, vk, shift, ctrl)); }
    bool IsRange() { return (ctl->wFlags & HGC_RANGE) != 0; }
    void HideColumns(std::initializer_list<int> cols)
    {
        for (const int col : cols) {
            Hidden(HGGetField(ctl->pData, col));
        }
    }
};

TEST_F(GridMove, MoveToAnotherRowIsToldInItsOrder)
{
    MakeCells();
    constexpr Seen expected[] = { { 0, ToParent, HGN_MOVING }, { 0, ToParent, HGN_MOVED }, { 0, ToParent, HGN_ROWCHANGED } };
    MoveTo(2, 5);
    EXPECT_SEEN(expected);
    EXPECT_CELL(2, 5);
    EXPECT_EQ((Cell{ 2, 5 }), Anchor());
}

TEST_F(GridMove, MoveInsideTheRowTellsOfNoOtherRow)
{
    MakeCells();
    constexpr Seen expected[] = { { 0, ToParent, HGN_MOVING }, { 0, ToParent, HGN_MOVED } };
    MoveTo(2, 3);
    EXPECT_SEEN(expected);
}

TEST_F(GridMove, MoveToTheCurrentCellIsAskedOnly)
{
    MakeCells();
    constexpr Seen expected[] = { { 0, ToParent, HGN_MOVING } };
    MoveTo(1, 3);
    EXPECT_SEEN(expected);
}

TEST_F(GridMove, ExtendingMoveKeepsTheAnchor)
{
    MakeCells();
    constexpr Seen expected[] = { { 0, ToParent, HGN_EXTENDING }, { 0, ToParent, HGN_MOVED }, { 0, ToParent, HGN_ROWCHANGED } };
    Extend(2, 5);
    EXPECT_SEEN(expected);
    EXPECT_CELL(2, 5);
    EXPECT_EQ((Cell{ 1, 3 }), Anchor());
    EXPECT_TRUE(IsRange());
    Extend(1, 3);
    EXPECT_FALSE(IsRange());
}

TEST_F(GridMove, ScrollComesBeforeTheMoveIsMade)
{
    MakeCells();
    constexpr Seen expected[] = { { 0, ToParent, HGN_MOVING },
                                  { 0, ToParent, HGN_VSCROLLED },
                                  { 0, ToParent, HGN_MOVED },
                                  { 0, ToParent, HGN_ROWCHANGED } };
    MoveTo(1, 20);
    EXPECT_SEEN(expected);
}

TEST_F(GridMove, StateIsNewWhenTheMoveIsTold)
{
    MakeCells();
    Cell told = { -9, -9 };
    Cell anchor = { -9, -9 };
    parent.On(HGN_MOVED, [&] {
        told = Current();
        anchor = Anchor();
    });
    MoveTo(2, 5);
    EXPECT_EQ((Cell{ 2, 5 }), told);
    EXPECT_EQ((Cell{ 2, 5 }), anchor);
}

TEST_F(GridMove, MirrorHoldsTheRowWhenItsChangeIsTold)
{
    MakeGrid(GridOf({ Number() }), 5);
    for (LONG row = 0; row < 5; ++row) {
        HGSetCellData(grid, 0, static_cast<int>(row), &row);
    }
    LONG mirror = -1;
    LONG told = -1;
    SendPtr(grid, HGM_SETROWMIRROR, 0, &mirror);
    EXPECT_EQ(0, mirror);
    parent.On(HGN_ROWCHANGED, [&] { told = mirror; });
    MoveTo(0, 4);
    EXPECT_EQ(4, told);
    Send(grid, HGM_SETROWMIRROR, 0, 0);
}

TEST_F(GridMove, TargetsAreBoundedToTheCells)
{
    MakeCells();
    struct Case {
        int col;
        int row;
        int toCol;
        int toRow;
    };
    constexpr Case cases[] = {
        { 99, 4, 4, 4 }, { -7, 4, -1, 4 }, { 2, -7, 2, -1 }, { 2, 99, 2, 29 }, { 32767, 32767, 4, 29 }, { -1, -1, -1, -1 },
    };
    for (const Case& c : cases) {
        MoveTo(0, 0);
        MoveTo(c.col, c.row);
        EXPECT_CELL(c.toCol, c.toRow) << "from " << c.col << ", " << c.row;
    }
}

TEST_F(GridMove, NothingMovesWithoutRowsOrColumns)
{
    MakeGrid(GridOf({ Text() }));
    EXPECT_EQ(0, HGMoveTo(ctl, 0, 0, false, true));
    DestroyWindow(grid);
    MakeGrid(GridOf({}), 0);
    EXPECT_EQ(0, HGMoveTo(ctl, 0, 0, false, true));
    EXPECT_NOTHING_SEEN();
}

TEST_F(GridMove, WholeRowsAndColumnsAreRanges)
{
    MakeCells();
    MoveTo(-1, 4);
    EXPECT_TRUE(IsRange());
    MoveTo(2, -1);
    EXPECT_TRUE(IsRange());
    MoveTo(2, 4);
    EXPECT_FALSE(IsRange());
}

TEST_F(GridMove, ExtendingKeepsToWholeLinesWhereTheAnchorIsOne)
{
    MakeCells();
    MoveTo(-1, 4);
    Extend(3, 6);
    EXPECT_CELL(-1, 6);
    MoveTo(2, -1);
    Extend(3, 6);
    EXPECT_CELL(3, -1);
}

TEST_F(GridMove, RowSelectionNamesNoColumn)
{
    MakeCells(1, 3, plainStyle | HGS_ROWSELECT);
    EXPECT_CELL(-1, 3);
    MoveTo(2, 5);
    EXPECT_CELL(-1, 5);
    MoveTo(2, -1);
    EXPECT_CELL(2, -1);
}

TEST_F(GridMove, NoExtendStyleMakesEveryMoveAPlainOne)
{
    MakeCells(1, 3, plainStyle | HGS_NOEXTEND);
    Extend(2, 5);
    EXPECT_EQ(1, parent.Count(HGN_MOVING));
    EXPECT_EQ(0, parent.Count(HGN_EXTENDING));
    EXPECT_EQ((Cell{ 2, 5 }), Anchor());
}

TEST_F(GridMove, RedirectedMoveGoesOnWithTheNewTarget)
{
    MakeCells();
    parent.On(HGN_MOVING, [&] { Send(grid, HGM_SETPROPOSED, 0, static_cast<LPARAM>(PackCell(3, 7))); });
    MoveTo(2, 5);
    EXPECT_CELL(3, 7);
    // Redirected to where it stands, the move tells of nothing that would clear the mark again.
    MoveTo(2, 5);
    EXPECT_TRUE(ctl->wFlags & CF_CANCEL);
    parent.On(HGN_MOVING, nullptr);
    MoveTo(2, 5);
    EXPECT_FALSE(ctl->wFlags & CF_CANCEL);
}

TEST_F(GridMove, VetoByTheCancelMessageDoesNotStopAMove)
{
    MakeCells();
    parent.On(HGN_MOVING, [&] { Send(grid, WWM_CANCEL); });
    MoveTo(2, 5);
    EXPECT_CELL(2, 5);
}

TEST_F(GridMove, ParentThatProposesTheCurrentCellStopsTheMove)
{
    MakeCells();
    parent.On(HGN_MOVING, [&] { Send(grid, HGM_SETPROPOSED, 0, static_cast<LPARAM>(PackCell(1, 3))); });
    MoveTo(2, 5);
    EXPECT_CELL(1, 3);
    EXPECT_EQ(0, parent.Count(HGN_MOVED));
}

TEST_F(GridMove, ParentThatMovesOnInsideAMoveWins)
{
    MakeCells();
    bool moved = false;
    parent.On(HGN_MOVED, [&] {
        if (!moved) {
            moved = true;
            MoveTo(4, 9);
        }
    });
    MoveTo(2, 5);
    EXPECT_CELL(4, 9);
    EXPECT_EQ((Cell{ 4, 9 }), Anchor());
    const HGField* const field = HGGetField(ctl->pData, 4);
    EXPECT_EQ(field->pCtl ? field->pCtl->hWnd : nullptr, ctl->hEditor);
    EXPECT_TRUE(IsInvalid()) << "both selections were drawn, so all is painted anew";
}

TEST_F(GridMove, ParentThatTakesTheRowsAwayInsideAMoveIsSurvived)
{
    for (const int code : { HGN_MOVING, HGN_EXTENDING, HGN_MOVED, HGN_ROWCHANGED, HGN_VSCROLLED, HGN_HSCROLLED }) {
        SCOPED_TRACE(code);
        MakeCells();
        bool done = false;
        parent.On(code, [&] {
            if (!done) {
                done = true;
                Send(grid, HGM_RESET, 1);
            }
        });
        MoveTo(4, 25);
        Extend(0, 2);
        EXPECT_TRUE(IsWindow(grid));
        EXPECT_EQ(0, Send(grid, HGM_GETROWCOUNT));
        parent.On(code, nullptr);
        DestroyWindow(grid);
    }
}

TEST_F(GridMove, ParentThatTakesTheColumnsAwayInsideAMoveIsSurvived)
{
    for (const int code : { HGN_MOVING, HGN_MOVED, HGN_ROWCHANGED, HGN_VSCROLLED }) {
        SCOPED_TRACE(code);
        MakeCells();
        bool done = false;
        parent.On(code, [&] {
            if (!done) {
                done = true;
                while (Send(grid, HGM_DELETEFIELD, 0)) {
                }
            }
        });
        MoveTo(4, 25);
        EXPECT_EQ(0, Send(grid, HGM_GETCOLCOUNT));
        parent.On(code, nullptr);
        DestroyWindow(grid);
    }
}

TEST_F(GridMove, RowPastTheEndAsksTheParentForMore)
{
    MakeCells(1, 29);
    parent.On(HGN_BELOWEND, [&] {
        Send(grid, HGM_ADDROW);
        Send(grid, HGM_RECALC);
    });
    Key(VK_DOWN);
    EXPECT_CELL(1, 30);
    EXPECT_EQ(1, parent.Count(HGN_BELOWEND));
    parent.On(HGN_BELOWEND, nullptr);
    Key(VK_DOWN);
    EXPECT_CELL(1, 30);
}

// Keys

struct KeyCase {
    const char* what;
    UINT        vk;
    bool        shift;
    bool        ctrl;
    Cell        to;
};

TEST_F(GridMove, KeysMoveByTheTable)
{
    constexpr KeyCase cases[] = {
        { "Left", VK_LEFT, false, false, { 1, 12 } },
        { "Ctrl+Left", VK_LEFT, false, true, { 1, 12 } },
        { "Right", VK_RIGHT, false, false, { 3, 12 } },
        { "Ctrl+Right", VK_RIGHT, false, true, { 3, 12 } },
        { "Up", VK_UP, false, false, { 2, 11 } },
        { "Ctrl+Up", VK_UP, false, true, { 2, 11 } },
        { "Down", VK_DOWN, false, false, { 2, 13 } },
        { "Ctrl+Down", VK_DOWN, false, true, { 2, 13 } },
        { "Page Up", VK_PRIOR, false, false, { 2, 4 } },
        { "Page Down", VK_NEXT, false, false, { 2, 20 } },
        { "Ctrl+Page Up", VK_PRIOR, false, true, { 2, 0 } },
        { "Ctrl+Page Down", VK_NEXT, false, true, { 2, 29 } },
        { "Home", VK_HOME, false, false, { 0, 12 } },
        { "End", VK_END, false, false, { 4, 12 } },
        { "Ctrl+Home", VK_HOME, false, true, { 2, 0 } },
        { "Ctrl+End", VK_END, false, true, { 2, 29 } },
        { "Tab", VK_TAB, false, false, { 3, 12 } },
        { "Shift+Tab", VK_TAB, true, false, { 1, 12 } },
        { "Ctrl+Tab", VK_TAB, false, true, { 3, 12 } },
        { "Ctrl+Shift+Tab", VK_TAB, true, true, { 1, 12 } },
        { "Return", VK_RETURN, false, false, { 3, 12 } },
        { "Shift+Return", VK_RETURN, true, false, { 1, 12 } },
        { "Ctrl+Return", VK_RETURN, false, true, { 3, 12 } },
        { "Ctrl+Shift+Return", VK_RETURN, true, true, { 1, 12 } },
        { "Space", VK_SPACE, false, false, { 2, 12 } },
        { "Ctrl+Space", VK_SPACE, false, true, { 2, -1 } },
        { "Escape", VK_ESCAPE, false, false, { 2, 12 } },
        { "Insert", VK_INSERT, false, false, { 2, 12 } },
        { "F9", VK_F9, false, false, { 2, 12 } },
    };
    MakeCells(2, 12);
    for (const KeyCase& c : cases) {
        MoveTo(2, 12);
        Key(c.vk, c.shift, c.ctrl);
        EXPECT_EQ(c.to, Current()) << c.what;
        if (c.to.row >= 0) {
            EXPECT_EQ(c.to, Anchor()) << c.what;
        }
    }
}

TEST_F(GridMove, ShiftExtendsWithAllKeysButTabAndReturn)
{
    constexpr UINT keys[] = { VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_PRIOR, VK_NEXT, VK_HOME, VK_END };
    MakeCells(2, 12);
    for (const UINT vk : keys) {
        MoveTo(2, 12);
        Key(vk, true);
        EXPECT_EQ((Cell{ 2, 12 }), Anchor()) << "key " << vk;
        EXPECT_FALSE(Current() == Anchor()) << "key " << vk;
    }
}

TEST_F(GridMove, HiddenColumnsAreSteppedOver)
{
    MakeCells(1, 3);
    HideColumns({ 0, 2, 4 });
    Key(VK_RIGHT);
    EXPECT_CELL(3, 3);
    Key(VK_RIGHT);
    EXPECT_CELL(3, 3);
    Key(VK_LEFT);
    EXPECT_CELL(1, 3);
}

TEST_F(GridMove, TabFromTheLastColumnGoesToTheNextRow)
{
    MakeCells(4, 3);
    Key(VK_TAB);
    EXPECT_CELL(0, 4);
    MoveTo(3, 3);
    HideColumns({ 4 });
    Key(VK_TAB);
    EXPECT_CELL(0, 4);
    MoveTo(3, 3);
    HideColumns({ 0 });
    Key(VK_TAB);
    EXPECT_CELL(-1, 4) << "column 0 is hidden, so the way ends at the row header";
}

TEST_F(GridMove, TabFromTheLastColumnWithoutRowHeadersEndsAtColumnZero)
{
    MakeCells(3, 3, HGS_COLHEADERS);
    HideColumns({ 0, 4 });
    Key(VK_TAB);
    EXPECT_CELL(0, 4) << "though it is hidden";
}

TEST_F(GridMove, CtrlTabStaysInItsRow)
{
    MakeCells(4, 3);
    Key(VK_TAB, false, true);
    EXPECT_CELL(4, 3);
}

TEST_F(GridMove, HomeEndsInTheRowHeaderWhereColumnZeroIsHidden)
{
    MakeCells(3, 3);
    HideColumns({ 0 });
    Key(VK_HOME);
    EXPECT_CELL(-1, 3);
}

TEST_F(GridMove, HomeWithoutRowHeadersEndsAtColumnZero)
{
    MakeCells(3, 3, HGS_COLHEADERS);
    HideColumns({ 0 });
    Key(VK_HOME);
    EXPECT_CELL(0, 3);
}

TEST_F(GridMove, UpDoesNothingOnTheFirstRow)
{
    MakeCells(1, 0);
    Key(VK_UP);
    EXPECT_NOTHING_SEEN();
    EXPECT_CELL(1, 0);
}

TEST_F(GridMove, UpGoesByTheRowProposedLast)
{
    MakeCells(1, 3);
    MoveTo(1, -1);
    Forget();
    Key(VK_UP);
    EXPECT_NOTHING_SEEN() << "the header was proposed";
    MoveTo(1, 3);
    Send(grid, HGM_SETPROPOSED, 0, static_cast<LPARAM>(PackCell(1, 0)));
    Key(VK_UP);
    EXPECT_CELL(1, 3);
    Send(grid, HGM_SETPROPOSED, 0, static_cast<LPARAM>(PackCell(1, 1)));
    Key(VK_UP);
    EXPECT_CELL(1, 2);
}

TEST_F(GridMove, PageUpPastTheFirstRowEndsThere)
{
    MakeCells(1, 4);
    Key(VK_PRIOR);
    EXPECT_CELL(1, 0);
    EXPECT_EQ(1, parent.Count(HGN_ABOVETOP));
}

TEST_F(GridMove, EntryRowIsReachedByInsertAndNotByCtrlEnd)
{
    MakeCells(1, 3, plainStyle | HGS_NEWROW);
    const int last = static_cast<int>(Send(grid, HGM_GETROWCOUNT)) - 1;
    Key(VK_END, false, true);
    EXPECT_CELL(1, last - 1);
    MoveTo(1, 3);
    Key(VK_NEXT, false, true);
    EXPECT_CELL(1, last - 1);
    MoveTo(1, 3);
    Key(VK_INSERT);
    EXPECT_CELL(1, last);
    MoveTo(1, 3);
    Key(VK_INSERT, true);
    EXPECT_CELL(1, last);
    EXPECT_EQ((Cell{ 1, 3 }), Anchor());
}

TEST_F(GridMove, ShiftReturnGoesToTheFirstColumnOfTheEntryRow)
{
    struct Case {
        const char* what;
        DWORD       style;
        bool        jumps;
    };
    constexpr Case cases[] = {
        { "entry row", HGS_NEWROW, true },
        { "on the face brush", HGS_NEWROW | HGS_FACEBACK, false },
        { "read-only", HGS_NEWROW | HGS_READONLY, false },
        { "no entry row", 0, false },
    };
    for (const Case& c : cases) {
        MakeCells(2, 3, plainStyle | c.style);
        HideColumns({ 0 });
        const int last = static_cast<int>(Send(grid, HGM_GETROWCOUNT)) - 1;
        for (const bool ctrl : { false, true }) {
            MoveTo(2, 3);
            Key(VK_RETURN, true, ctrl);
            EXPECT_EQ((c.jumps ? Cell{ 1, last } : Cell{ 1, 3 }), Current()) << c.what << (ctrl ? " with Ctrl" : "");
        }
        MoveTo(2, 3);
        Key(VK_TAB, true);
        EXPECT_EQ((Cell{ 1, 3 }), Current()) << c.what << ", Tab";
        DestroyWindow(grid);
    }
}

TEST_F(GridMove, EndStopEndsMovesDownAtTheLastRecord)
{
    MakeCells(1, 27, plainStyle | HGS_NEWROW);
    const int last = static_cast<int>(Send(grid, HGM_GETROWCOUNT)) - 1;
    Send(grid, HGM_SETENDSTOP, 1);
    Key(VK_NEXT);
    EXPECT_CELL(1, last - 1);
    Key(VK_DOWN);
    EXPECT_CELL(1, last - 1);
    Key(VK_INSERT);
    EXPECT_CELL(1, last);
}

TEST_F(GridMove, RelativeMoveWithoutAWayAcrossLandsOnAVisibleColumn)
{
    MakeCells(3, 3);
    HideColumns({ 3 });
    HGMoveBy(ctl, 0, 1, false);
    EXPECT_CELL(2, 4);
}

TEST_F(GridMove, RelativeMoveOffTheLeftEndsInTheRowHeader)
{
    MakeCells(1, 3);
    HGMoveBy(ctl, -9, 0, false);
    EXPECT_CELL(-1, 3);
    HGMoveBy(ctl, 32767, 0, false);
    EXPECT_CELL(4, 3);
}

// A million records

TEST_F(GridMove, EndAndHomeOfAMillionRecords)
{
    MakeSourceGrid();
    Key(VK_END, false, true);
    EXPECT_EQ(999999, CurrentRecord());
    ExpectRowsAreRecords();
    Key(VK_HOME, false, true);
    EXPECT_EQ(0, CurrentRecord());
    EXPECT_EQ(0, TopRecord());
    Key(VK_NEXT, false, true);
    EXPECT_EQ(999999, CurrentRecord());
    Key(VK_PRIOR, false, true);
    EXPECT_EQ(0, CurrentRecord());
    ExpectRowsAreRecords();
}

TEST_F(GridMove, InsertGoesToTheEntryRowBehindAMillionRecords)
{
    MakeSourceGrid(gridStyle | HGS_NEWROW);
    Key(VK_INSERT);
    EXPECT_EQ(1000000, CurrentRecord());
    EXPECT_EQ(HGR_NEW, RowFlags(Current().row));
    Key(VK_HOME, false, true);
    EXPECT_EQ(0, CurrentRecord());
}

TEST_F(GridMove, AnyRecordCanBeGoneTo)
{
    MakeSourceGrid();
    constexpr LONG records[] = { 500000, 499999, 532765, 532766, 565531, 1, 40000, 7233, 32800, 32767, 65535, 65536, 999999, 0 };
    for (const LONG record : records) {
        Send(grid, HGM_GOTORECORD, 0, record);
        EXPECT_EQ(record, CurrentRecord());
        RECT cell;
        EXPECT_EQ(1, HGCellRect(ctl, &cell, 0, Current().row, true)) << "record " << record << " is out of view";
    }
    ExpectRowsAreRecords();
}

TEST_F(GridMove, KeysWalkOverTheEndsOfTheBlock)
{
    MakeSourceGrid();
    for (LONG record = 1; record <= 100; ++record) {
        Key(VK_DOWN);
        ASSERT_EQ(record, CurrentRecord());
    }
    for (LONG record = 99; record >= 0; --record) {
        Key(VK_UP);
        ASSERT_EQ(record, CurrentRecord());
    }
    EXPECT_EQ(0, +ctl->lRowBase);
}

TEST_F(GridMove, PagesWalkOverTheEndsOfTheBlock)
{
    MakeSourceGrid();
    const LONG step = ctl->cPageRows - 1;
    for (LONG page = 1; page <= 20; ++page) {
        Key(VK_NEXT);
        ASSERT_EQ(page * step, CurrentRecord());
    }
    for (LONG page = 19; page >= 0; --page) {
        Key(VK_PRIOR);
        ASSERT_EQ(page * step, CurrentRecord());
    }
    ExpectRowsAreRecords();
}

TEST_F(GridMove, RowChangeIsToldByRecordsWhenTheBlockMoves)
{
    MakeSourceGrid();
    for (int i = 0; i < 60; ++i) {
        parent.ClearCounts();
        Key(VK_DOWN);
        ASSERT_EQ(1, parent.Count(HGN_ROWCHANGED)) << "step " << i;
    }
}

TEST_F(GridMove, UnknownTotalIsAskedForByKeysToTheEnd)
{
    MakeSourceGrid(gridStyle, false);
    Key(VK_DOWN);
    Key(VK_NEXT);
    EXPECT_EQ(0, source.CountOf(HGSRC_COUNT));
    Key(VK_END, false, true);
    EXPECT_EQ(1, source.CountOf(HGSRC_COUNT));
    EXPECT_EQ(999999, CurrentRecord());
}

} // namespace
