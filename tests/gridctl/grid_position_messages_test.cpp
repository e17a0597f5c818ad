// Messages that concern position and selection.
#include "gridctl/grid_window.h"

namespace {

class GridPosition : public GridWindow {};

TEST_F(GridPosition, CursorAndAnchorComePackedAndThroughThePointer)
{
    MakeGrid(GridOf({ Text(), Text() }), 5);
    MoveTo(1, 3);
    DWORD cell = 0;
    EXPECT_EQ(static_cast<LRESULT>(PackCell(1, 3)), SendPtr(grid, HGM_GETCURSOR, 0, &cell));
    EXPECT_EQ(PackCell(1, 3), cell);
    EXPECT_EQ(static_cast<LRESULT>(PackCell(1, 3)), SendPtr(grid, HGM_GETANCHOR, 0, &cell));
    Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(0, 4)));
    EXPECT_EQ(static_cast<LRESULT>(PackCell(0, 4)), Send(grid, HGM_GETCURSOR));
    EXPECT_EQ(static_cast<LRESULT>(PackCell(1, 3)), Send(grid, HGM_GETANCHOR));
}

TEST_F(GridPosition, PackedHeaderCellsStayInThirtyTwoBits)
{
    MakeGrid(GridOf({ Text() }), 2);
    MoveTo(-1, 1);
    EXPECT_EQ(static_cast<LRESULT>(0x0001FFFF), Send(grid, HGM_GETCURSOR));
    MoveTo(0, -1);
    EXPECT_EQ(static_cast<LRESULT>(static_cast<DWORD>(0xFFFF0000)), static_cast<LRESULT>(static_cast<DWORD>(
        Send(grid, HGM_GETCURSOR))));
}

TEST_F(GridPosition, SettingTheAnchorKeepsTheCurrentCell)
{
    MakeGrid(GridOf({ Text(), Text() }), 5);
    MoveTo(1, 3);
    Send(grid, HGM_SETANCHOR, 0, static_cast<LPARAM>(PackCell(0, 1)));
    EXPECT_EQ((Cell{ 1, 3 }), Current());
    EXPECT_EQ(static_cast<LRESULT>(PackCell(0, 1)), Send(grid, HGM_GETANCHOR));
}

TEST_F(GridPosition, SettingTheAnchorShowsTheCurrentCellAndNotTheAnchor)
{
    MakeGrid(GridOf({ Text(), Text() }), 50);
    MoveTo(1, 30);
    const LRESULT top = Send(grid, HGM_GETTOPRECORD);
    ASSERT_GT(top, 1);
    Send(grid, HGM_SETANCHOR, 0, static_cast<LPARAM>(PackCell(0, 1)));
    EXPECT_EQ(top, Send(grid, HGM_GETTOPRECORD)) << "the anchor is out of view";
    Send(grid, HGM_SETTOPRECORD, 5);
    Send(grid, HGM_SETANCHOR, 0, static_cast<LPARAM>(PackCell(0, 5)));
    EXPECT_EQ(top, Send(grid, HGM_GETTOPRECORD)) << "the current cell is in view";
}

TEST_F(GridPosition, ProposedCellIsBoundedToTheGrid)
{
    MakeGrid(GridOf({ Text(), Text() }), 3);
    EXPECT_EQ(1, Send(grid, HGM_SETPROPOSED, 0, static_cast<LPARAM>(PackCell(7, 9))));
    EXPECT_EQ(static_cast<LRESULT>(PackCell(1, 2)), Send(grid, HGM_GETPROPOSED));
    Send(grid, HGM_SETPROPOSED, 0, static_cast<LPARAM>(PackCell(-5, -9)));
    EXPECT_EQ(PackCell(-1, -1), static_cast<DWORD>(Send(grid, HGM_GETPROPOSED)));
}

TEST_F(GridPosition, ParentRedirectsAMoveByTheProposedCell)
{
    MakeGrid(GridOf({ Text(), Text() }), 5);
    MoveTo(0, 0);
    parent.On(HGN_MOVING, [&] { Send(grid, HGM_SETPROPOSED, 0, static_cast<LPARAM>(PackCell(1, 1))); });
    MoveTo(0, 4);
    EXPECT_EQ((Cell{ 1, 1 }), Current());
}

TEST_F(GridPosition, FlagsAreSetAndClearedByMask)
{
    MakeGrid(GridOf({ Text() }), 1);
    Send(grid, HGM_SETFLAGS, 1, HGC_SELECTING | HGC_RANGE);
    EXPECT_EQ(HGC_SELECTING | HGC_RANGE, Send(grid, HGM_GETFLAGS) & (HGC_SELECTING | HGC_RANGE));
    Send(grid, HGM_SETFLAGS, 0, HGC_RANGE);
    EXPECT_EQ(HGC_SELECTING, Send(grid, HGM_GETFLAGS) & (HGC_SELECTING | HGC_RANGE));
}

TEST_F(GridPosition, FlagOfTheFetchUnderWayIsTheGridsOwn)
{
    MakeGrid(GridOf({ Text() }), 1);
    Send(grid, HGM_SETFLAGS, 1, HGC_FETCHING);
    EXPECT_FALSE(HasFlag(ctl, HGC_FETCHING));
    SetFlag(ctl, HGC_FETCHING, true);
    EXPECT_EQ(0, Send(grid, HGM_GETFLAGS) & HGC_FETCHING);
    Send(grid, HGM_SETFLAGS, 0, 0xFFFF);
    EXPECT_TRUE(HasFlag(ctl, HGC_FETCHING));
}

TEST_F(GridPosition, ScrollingOnTheOwnersBehalfIsQuiet)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }), 50);
    parent.ClearCounts();
    EXPECT_EQ(30, Send(grid, HGM_SETTOPRECORD, 30, 0));
    EXPECT_EQ(30, Send(grid, HGM_GETTOPRECORD));
    EXPECT_EQ(12, Send(grid, HGM_SETTOPRECORD, 0, 12));
    EXPECT_EQ(100, Send(grid, HGM_SETHPOS, 100));
    EXPECT_EQ(100, Send(grid, HGM_GETHPOS));
    EXPECT_EQ(5, Send(grid, HGM_SETVPOS, 5));
    EXPECT_EQ(5, Send(grid, HGM_GETVPOS));
    EXPECT_EQ(0, Send(grid, HGM_SETFIRSTCOL, 20));
    EXPECT_EQ(20, Send(grid, HGM_GETHPOS));
    EXPECT_EQ(0, parent.Count(HGN_VSCROLLED));
    EXPECT_EQ(0, parent.Count(HGN_HSCROLLED));
}

TEST_F(GridPosition, FirstColumnSubtractsACountOfColumnsFromPixels)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }, gridStyle, 2), 5);
    EXPECT_EQ(2, Send(grid, HGM_SETFIRSTCOL, 20));
    EXPECT_EQ(18, Send(grid, HGM_GETHPOS));
}

TEST_F(GridPosition, PixelsPastSixteenBitsScrollTheOtherWay)
{
    for (const UINT message : { HGM_SETHPOS, HGM_SETFIRSTCOL }) {
        MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }), 5);
        Send(grid, HGM_SETHPOS, 50);
        Send(grid, message, 40000);
        EXPECT_EQ(0, Send(grid, HGM_GETHPOS)) << message;
        DestroyWindow(grid);
    }
}

int CALLBACK ManyRecords(HWND, int operation, int record, void*)
{
    constexpr int count = 1000000;
    return operation == HGSRC_COUNT ? count : operation == HGSRC_FETCH && record < count;
}

TEST_F(GridPosition, VerticalPositionAndItsMaximumAreUnitsOfTheScale)
{
    MakeGrid(GridOf({ Number() }));
    SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(ManyRecords));
    Send(grid, HGM_SETTOTAL, 0, 1000000);
    ASSERT_EQ(31, +ctl->nVScale);
    EXPECT_EQ((1000001 - ctl->cPageRows + PartialRow(ctl)) / 31, Send(grid, HGM_GETVMAX));
    EXPECT_EQ(200, Send(grid, HGM_SETVPOS, 200));
    EXPECT_EQ(200 * 31, Send(grid, HGM_GETTOPRECORD));
    EXPECT_EQ(200, Send(grid, HGM_GETVPOS));
}

TEST_F(GridPosition, MaximaTellWhatIsBeyondThePage)
{
    MakeGrid(GridOf({ Text(), Text() }), 3);
    EXPECT_EQ(0, Send(grid, HGM_GETVMAX));
    EXPECT_EQ(0, Send(grid, HGM_GETHMAX));
    AddRows(50);
    EXPECT_EQ(ctl->lTotalRows - ctl->cPageRows + PartialRow(ctl), Send(grid, HGM_GETVMAX));
}

TEST_F(GridPosition, WidestBandIsTheHorizontalMaximum)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text() }), 3);
    EXPECT_EQ(6 * 80, Send(grid, HGM_GETHMAX));
}

TEST_F(GridPosition, SelectedRowsAreListedUpToTheRoom)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_ROWSELECT), 6);
    MoveTo(-1, 1);
    Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(-1, 3)));
    int rows[8] = {};
    EXPECT_EQ(3, SendPtr(grid, HGM_GETSELROWS, 8, rows));
    EXPECT_EQ(1, rows[0]);
    EXPECT_EQ(3, rows[2]);
    EXPECT_EQ(2, SendPtr(grid, HGM_GETSELROWS, 2, rows));
    EXPECT_EQ(0, Send(grid, HGM_GETSELROWS, 8, 0));
    EXPECT_EQ(3, Send(grid, HGM_GETSELCOUNT));
    EXPECT_EQ(1, Send(grid, HGM_ISROWSELECTED, 2));
    EXPECT_EQ(0, Send(grid, HGM_ISROWSELECTED, 4));
}

TEST_F(GridPosition, TogglingARowGivesItsNewState)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_ROWSELECT), 6);
    MoveTo(-1, 0);
    EXPECT_EQ(1, Send(grid, HGM_TOGGLEROW, 3));
    EXPECT_EQ(0, Send(grid, HGM_TOGGLEROW, 3));
    EXPECT_EQ(0, Send(grid, HGM_TOGGLEROW, 99));
}

TEST_F(GridPosition, KeyMessagesActAsTheirKeys)
{
    MakeGrid(GridOf({ Text() }), 6);
    MoveTo(0, 2);
    Send(grid, HGM_KEYDOWN);
    EXPECT_EQ(3, Current().row);
    Send(grid, HGM_KEYUP);
    EXPECT_EQ(2, Current().row);
    Send(grid, HGM_KEYLAST);
    EXPECT_EQ(5, Current().row);
    Send(grid, HGM_KEYFIRST);
    EXPECT_EQ(0, Current().row);
}

TEST_F(GridPosition, InsertGoesToTheEntryRow)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_NEWROW), 0);
    for (int i = 0; i < 3; ++i) {
        SetText(0, i, "x");
    }
    MoveTo(0, 0);
    Send(grid, HGM_KEYNEW);
    EXPECT_EQ(3, Current().row);
}

TEST_F(GridPosition, GotoRecordMovesTheCurrentCell)
{
    MakeGrid(GridOf({ Text() }), 40);
    MoveTo(0, 0);
    Send(grid, HGM_GOTORECORD, 0, 25);
    EXPECT_EQ((Cell{ 0, 25 }), Current());
    Send(grid, HGM_GOTORECORD, 0, 1000);
    EXPECT_EQ((Cell{ 0, 39 }), Current());
    parent.ClearCounts();
    Send(grid, HGM_GOTORECORD, 0, 39);
    EXPECT_EQ(0, parent.Count(HGN_MOVING));
}

} // namespace
