// A definition comes to a grid window, and a grid is emptied.
#include "gridctl/grid_window.h"

#include "support/guarded_memory.h"

namespace {

class GridAttach : public GridWindow {};

TEST_F(GridAttach, BadRecordIsRefusedAndTheOldOneStays)
{
    MakeGrid(GridOf({ Text() }), 2);
    HGridData* const before = ctl->pData;
    EXPECT_EQ(0, Send(grid, HGM_SETDATA, 1, 0));
    HGridData broken = {};
    EXPECT_EQ(0, SendPtr(grid, HGM_SETDATA, 1, &broken));
    EXPECT_EQ(before, ctl->pData);
    EXPECT_EQ(2, Send(grid, HGM_GETROWCOUNT));
}

TEST_F(GridAttach, NewRecordReplacesAndFreesTheOldOne)
{
    const int blocks = LiveBlocks();
    MakeGrid(GridOf({ Text() }), 2);
    const HWND oldChild = reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 0));
    HGridData* const data = GridOf({ Date(), Number() });
    EXPECT_EQ(1, SendPtr(grid, HGM_SETDATA, 1, data));
    EXPECT_EQ(data, reinterpret_cast<HGridData*>(Send(grid, HGM_GETDATA)));
    EXPECT_FALSE(IsWindow(oldChild));
    EXPECT_EQ(2, Send(grid, HGM_GETCOLCOUNT));
    EXPECT_EQ(0, Send(grid, HGM_GETROWCOUNT));
    DestroyWindow(grid);
    EXPECT_EQ(blocks, LiveBlocks());
}

TEST_F(GridAttach, AttachingTheSameRecordAgainKeepsIt)
{
    MakeGrid(GridOf({ Text() }), 2);
    EXPECT_EQ(1, SendPtr(grid, HGM_SETDATA, 1, ctl->pData));
    EXPECT_EQ(2, Send(grid, HGM_GETROWCOUNT));
}

TEST_F(GridAttach, SizesInDialogUnitsAreScaledOnce)
{
    HGridData* const data = GridOf({ Text() });
    data->dwStyle2 = HGX_DLGUNITS;
    MakeGrid(data);
    const LRESULT width = Send(grid, HGM_GETROWHDRWIDTH);
    const LRESULT height = Send(grid, HGM_GETHEADERHEIGHT);
    EXPECT_GT(width, 40) << "units are wider than pixels";
    SendPtr(grid, HGM_SETDATA, 1, data);
    EXPECT_EQ(width, Send(grid, HGM_GETROWHDRWIDTH));
    EXPECT_EQ(height, Send(grid, HGM_GETHEADERHEIGHT));
}

TEST_F(GridAttach, WindowTextFollowsTheTitle)
{
    MakeGrid(GridOf({ Text() }));
    EXPECT_EQ("test grid", TextOf(grid));
    char title[32] = {};
    EXPECT_EQ(9, SendPtr(grid, HGM_GETTITLE, sizeof title, title));
    EXPECT_STREQ("test grid", title);
}

TEST_F(GridAttach, MissingRowsAreAdded)
{
    MakeGrid(GridOf({ Text() }, gridStyle, 0, 4));
    EXPECT_EQ(4, Send(grid, HGM_GETROWCOUNT));
}

TEST_F(GridAttach, EntryRowOfAnEmptyGridIsMarkedNew)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_NEWROW));
    ASSERT_EQ(1, Send(grid, HGM_GETROWCOUNT));
    EXPECT_TRUE(RowFlags(0) & HGR_NEW);
}

TEST_F(GridAttach, LastOfTheMissingRowsServesAsTheEntryRow)
{
    // Behind a row that nobody has written to, no new one is added.
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_NEWROW, 0, 4));
    ASSERT_EQ(4, Send(grid, HGM_GETROWCOUNT));
    EXPECT_FALSE(RowFlags(3) & HGR_NEW);
}

TEST_F(GridAttach, FixedColumnsAreAtMostAllColumns)
{
    MakeGrid(GridOf({ Text(), Text() }, gridStyle, 9));
    EXPECT_EQ(2, Send(grid, HGM_GETFIXEDCOLS));
    EXPECT_EQ(2, Send(grid, HGM_GETFIRSTCOL));
}

TEST_F(GridAttach, UnusableRowHeightBecomesTwenty)
{
    HGridData* const data = GridOf({ Text() });
    data->nRowHeight = 3000;
    MakeGrid(data);
    EXPECT_EQ(20, Send(grid, HGM_GETROWHEIGHT));
    EXPECT_EQ(20, ctl->pData->nRowHeightDef);
}

TEST_F(GridAttach, BandsAndSortMarksStartAnew)
{
    MakeGrid(GridOf({ Text() }));
    Send(grid, HGM_SETBANDS, 0, 3);
    Send(grid, HGM_SETSORTCOL, 0, 0);
    SendPtr(grid, HGM_SETDATA, 1, GridOf({ Text() }));
    EXPECT_EQ(1, Send(grid, HGM_GETBANDS));
    EXPECT_EQ(0xFFFF, ctl->nSortCol);
    EXPECT_EQ(0xFFFF, ctl->nSortCol2);
}

TEST_F(GridAttach, RowSelectGridStartsInTheRowHeader)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_ROWSELECT), 2);
    EXPECT_EQ((Cell{ -1, 0 }), Current());
    EXPECT_TRUE(ctl->wFlags & HGC_SELECTING);
}

TEST_F(GridAttach, ResetPassesOverColumnZero)
{
    MakeGrid(GridOf({ Text(), Hidden(Text()), Text() }), 3);
    MoveTo(0, 2);
    Send(grid, HGM_RESET, 1);
    EXPECT_EQ(0, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(2, ctl->nCurCol);
    EXPECT_EQ(2, ctl->nAnchorCol);
    EXPECT_EQ(0, ctl->nTopRow);
}

TEST_F(GridAttach, ResetHidesTheEditorAndTheCellUnderOneCondition)
{
    MakeGrid(GridOf({ Text() }, gridStyle), 3);
    SetFocus(grid);
    MoveTo(0, 1);
    ASSERT_TRUE(ctl->wFlags & HGC_EDITORSHOWN);
    Send(grid, HGM_RESET, 0);
    EXPECT_FALSE(ctl->wFlags & HGC_EDITORSHOWN);
    EXPECT_FALSE(ctl->wFlags & HGC_CELLSHOWN);
}

TEST_F(GridAttach, ResetWithoutAnEditorKeepsTheCellShown)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_READONLY), 3);
    MoveTo(0, 1);
    ASSERT_TRUE(ctl->wFlags & HGC_CELLSHOWN);
    Send(grid, HGM_RESET, 0);
    EXPECT_TRUE(ctl->wFlags & HGC_CELLSHOWN);
}

int CALLBACK RefusingSource(HWND, int, int, void*)
{
    return 0;
}

TEST_F(GridAttach, SourceThatAnswersZeroAtOnceGivesAnEmptyGrid)
{
    MakeGrid(GridOf({ Text() }, gridStyle, 0, 5));
    const void* const source = reinterpret_cast<const void*>(RefusingSource);
    EXPECT_EQ(0, SendPtr(grid, HGM_SETROWSOURCE, 0, source));
    EXPECT_EQ(reinterpret_cast<LRESULT>(source), Send(grid, HGM_GETROWSOURCE));
    EXPECT_TRUE(ctl->wFlags & HGC_VIRTUAL);
    EXPECT_EQ(0, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(0, Send(grid, HGM_GETTOTAL));
    // Attaching a definition that wants rows ends too.
    EXPECT_EQ(1, SendPtr(grid, HGM_SETDATA, 1, GridOf({ Text() }, gridStyle | HGS_NEWROW, 0, 5)));
}

TEST_F(GridAttach, TakingTheSourceAwayLeavesAnOrdinaryEmptyGrid)
{
    MakeGrid(GridOf({ Text() }));
    const void* const source = reinterpret_cast<const void*>(RefusingSource);
    SendPtr(grid, HGM_SETROWSOURCE, 0, source);
    EXPECT_EQ(reinterpret_cast<LRESULT>(source), Send(grid, HGM_SETROWSOURCE, 0, 0));
    EXPECT_FALSE(ctl->wFlags & HGC_VIRTUAL);
    EXPECT_EQ(1, Send(grid, HGM_ADDROW));
}

TEST_F(GridAttach, DefinitionWithoutColumnsWorks)
{
    MakeGrid(GridOf({}), 0);
    EXPECT_EQ(0, Send(grid, HGM_GETCOLCOUNT));
    EXPECT_EQ(0, Send(grid, HGM_GETROWSIZE));
    Send(grid, HGM_ADDROW);
    Send(grid, HGM_REFRESH, 1);
    MoveTo(0, 0);
    Send(grid, WM_VSCROLL, SB_PAGEDOWN);
    Send(grid, WM_HSCROLL, SB_PAGERIGHT);
    UpdateWindow(grid);
    EXPECT_TRUE(IsWindow(grid));
}

} // namespace
