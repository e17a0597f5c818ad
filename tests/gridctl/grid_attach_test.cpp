// A definition comes to a grid window, and a grid is emptied.
#include "gridctl/grid_editing.h"

#include "support/guarded_memory.h"

namespace {

class GridAttach : public GridEditing {
protected:
    static int CALLBACK RefuseAll(HWND, int, void*) { return 1; }
};

int gWindowsToEnd; // so many windows of cells later the grid goes

LRESULT CALLBACK EndingProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE && --gWindowsToEnd == 0) {
        DestroyWindow(hwnd);
        return 0;
    }
    return HGridWnd(hwnd, message, wParam, lParam);
}

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

TEST_F(GridAttach, AttachingTheSameRecordAgainStoresTheEditAndPutsItsEditorAway)
{
    MakeGrid(GridOf({ Text(), Text(), Text() }), 8);
    TypeInto(2, 5, "typed");
    EXPECT_EQ(1, SendPtr(grid, HGM_SETDATA, 1, ctl->pData));
    EXPECT_EQ("typed", CellText(2, 5));
    EXPECT_CELL(0, 0);
    EXPECT_FALSE(IsWindowVisible(ChildOf(2)));
}

TEST_F(GridAttach, HostMayAttachAThirdRecordWhileTheEditorGoesWithTheFirst)
{
    const int blocks = LiveBlocks();
    MakeGrid(GridOf({ Text() }), 2);
    TypeInto(0, 1, "typed");
    HGridData* const third = GridOf({ Text(), Text(), Text() });
    parent.On(HGN_EDITBLUR, [&] {
        parent.On(HGN_EDITBLUR, nullptr);
        EXPECT_EQ(1, SendPtr(grid, HGM_SETDATA, 1, third));
    });
    EXPECT_EQ(0, SendPtr(grid, HGM_SETDATA, 1, GridOf({ Text(), Text() })));
    EXPECT_EQ(third, ctl->pData);
    EXPECT_EQ(3, Send(grid, HGM_GETCOLCOUNT));
    DestroyWindow(grid);
    EXPECT_EQ(blocks, LiveBlocks());
}

TEST_F(GridAttach, HostMayEndTheGridWhenToldOfAnyCellControlOfANewRecord)
{
    const int blocks = LiveBlocks();
    for (int last = 1; last <= 3; ++last) {
        MakeGrid(GridOf({ Text() }), 2);
        SetWindowLongPtrA(grid, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(EndingProc));
        gWindowsToEnd = last;
        EXPECT_EQ(0, SendPtr(grid, HGM_SETDATA, 1, GridOf({ Text(), Text(), Text() }))) << last;
        EXPECT_FALSE(IsWindow(grid)) << last;
        EXPECT_EQ(blocks, LiveBlocks()) << last;
    }
}

TEST_F(GridAttach, HostMayEndTheGridWhenToldOfANewColumnsControl)
{
    const int blocks = LiveBlocks();
    for (const UINT message : { HGM_ADDFIELD, HGM_INSERTFIELD }) {
        MakeGrid(GridOf({ Text() }), 2);
        SetWindowLongPtrA(grid, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(EndingProc));
        gWindowsToEnd = 1;
        SendPtr(grid, message, 0, Text());
        EXPECT_FALSE(IsWindow(grid)) << message;
        EXPECT_EQ(blocks, LiveBlocks()) << message;
    }
}

TEST_F(GridAttach, NewRecordShowsFromItsFirstRowOn)
{
    MakeGrid(GridOf({ Text() }), 50);
    Send(grid, HGM_SETTOPRECORD, 20);
    SendPtr(grid, HGM_SETDATA, 1, GridOf({ Text() }, gridStyle, 0, 5));
    EXPECT_EQ(0, Send(grid, HGM_GETTOPRECORD));
    EXPECT_EQ(0, ctl->nTopRow);
    EXPECT_EQ(5, Send(grid, HGM_GETROWCOUNT));
}

TEST_F(GridAttach, RecordsOfASourceStayInViewUnderOtherColumns)
{
    source.count = 300;
    MakeSourceGrid();
    Send(grid, HGM_SETTOPRECORD, 120);
    SendPtr(grid, HGM_SETDATA, 1, GridOf({ Number(), Text(), Text() }));
    EXPECT_EQ(120, Send(grid, HGM_GETTOPRECORD));
    EXPECT_TRUE(IsFlag(HGC_VIRTUAL));
    ExpectRowsAreRecords();
}

TEST_F(GridAttach, ResetOfASourceGridHandsRowsBackAndLoadsFromTheFirstRecord)
{
    source.count = 300;
    MakeSourceGrid();
    Send(grid, HGM_SETTOPRECORD, 120);
    const LRESULT held = Send(grid, HGM_GETHELD);
    ASSERT_NE(0, ctl->lRowBase);
    SetText(1, 3, "changed");
    ASSERT_TRUE(RowFlags(3) & HGR_DIRTY);
    PumpPending();
    UpdateWindow(grid);
    source.calls.clear();
    Send(grid, HGM_RESET, 0);
    EXPECT_EQ(1, source.CountOf(HGSRC_WRITEBACK));
    EXPECT_EQ(0, +ctl->fTotalKnown) << "a told number counts no more";
    EXPECT_EQ(0, ctl->lRowBase);
    EXPECT_EQ(held, Send(grid, HGM_GETHELD));
    EXPECT_EQ(held, Send(grid, HGM_GETROWCOUNT));
    EXPECT_TRUE(IsInvalid()) << "refreshed without being asked to";
    ExpectRowsAreRecords();
}

TEST_F(GridAttach, ResetGivesARefusedValueUp)
{
    MakeGrid(GridOf({ Text() }), 3);
    SendPtr(ChildOf(0), HEM_SETVALIDATOR, 0, reinterpret_cast<const void*>(RefuseAll));
    TypeInto(0, 1, "refused");
    Send(grid, HGM_RESET, 0);
    EXPECT_EQ(grid, GetFocus());
    EXPECT_FALSE(IsFlag(HGC_INEDIT));
    EXPECT_EQ(0, Send(ChildOf(0), WWM_GETCHANGED));
    AddRows(2);
    MoveTo(0, 1);
    EXPECT_CELL(0, 1);
    EXPECT_EQ("", CellText(0, 0));
    EXPECT_EQ("", CellText(0, 1));
}

// Rows that come without a refresh find no control of the column that was current.
TEST_F(GridAttach, ResetPutsTheEditorAway)
{
    for (const bool focused : { true, false }) {
        SCOPED_TRACE(focused);
        MakeGrid(GridOf({ Text(), Text(), Text() }), 4);
        StandOn(2, 3);
        SetFocus(focused ? grid : parent.hwnd());
        Send(grid, HGM_RESET, 0);
        ExpectNoEditor();
        Send(grid, HGM_ADDROW);
        Send(grid, HGM_ADDROW);
        SetFocus(grid);
        TypeText("5");
        EXPECT_EQ(focused ? grid : ChildOf(1), GetFocus()) << "a focus that comes makes the first cell current";
        EXPECT_FALSE(IsWindowVisible(ChildOf(2)));
        Send(grid, HGM_REFRESH, 1);
        EXPECT_CELL(1, 0);
        TypeText("6");
        EXPECT_EQ(ChildOf(1), GetFocus());
        EXPECT_TRUE(IsWindowVisible(ChildOf(1)));
        TypeKey(VK_TAB);
        EXPECT_EQ("6", CellText(1, 0));
        DestroyWindow(grid);
    }
}

TEST_F(GridAttach, ParentMayEndTheGridWhileAResetGivesARefusedValueUp)
{
    const int blocks = LiveBlocks();
    MakeGrid(GridOf({ Text() }), 3);
    SendPtr(ChildOf(0), HEM_SETVALIDATOR, 0, reinterpret_cast<const void*>(RefuseAll));
    TypeInto(0, 1, "refused");
    parent.On(HGN_EDITBLUR, [&] { DestroyWindow(grid); });
    Send(grid, HGM_RESET, 1);
    parent.On(HGN_EDITBLUR, nullptr);
    EXPECT_FALSE(IsWindow(grid));
    EXPECT_EQ(blocks, LiveBlocks());
}

TEST_F(GridAttach, ParentOfAGridThatIsNoPopUpIsEnabled)
{
    MakeGrid(GridOf({ Text() }));
    EnableWindow(parent.hwnd(), FALSE);
    SendPtr(grid, HGM_SETDATA, 1, GridOf({ Text() }));
    EXPECT_TRUE(IsWindowEnabled(parent.hwnd()));
}

TEST_F(GridAttach, ParentOfAPopUpGridIsDisabledAgain)
{
    grid = CreateWindowExA(0, "HGrid", "", WS_POPUP, 0, 0, 100, 100, parent.hwnd(), nullptr, GetModuleHandleA(nullptr),
                           nullptr);
    EnableWindow(parent.hwnd(), TRUE);
    EXPECT_EQ(1, SendPtr(grid, HGM_SETDATA, 0, GridOf({ Text() }, WS_POPUP)));
    EXPECT_FALSE(IsWindowEnabled(parent.hwnd()));
    DestroyWindow(grid);
}

TEST_F(GridAttach, UnusableRowHeightInDialogUnitsIsTwentyEighthsOfTheFont)
{
    HGridData* const data = GridOf({ Text() });
    data->dwStyle2 = HGX_DLGUNITS;
    data->nRowHeight = 1900; // in pixels more than the most
    MakeGrid(data);
    EXPECT_EQ(160 / HIWORD(GetBaseUnits(nullptr)), ctl->pData->nRowHeightDef);
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
    const void* const refusing = reinterpret_cast<const void*>(RefusingSource);
    EXPECT_EQ(0, SendPtr(grid, HGM_SETROWSOURCE, 0, refusing));
    EXPECT_EQ(reinterpret_cast<LRESULT>(refusing), Send(grid, HGM_GETROWSOURCE));
    EXPECT_TRUE(ctl->wFlags & HGC_VIRTUAL);
    EXPECT_EQ(0, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(0, Send(grid, HGM_GETTOTAL));
    // Attaching a definition that wants rows ends too.
    EXPECT_EQ(1, SendPtr(grid, HGM_SETDATA, 1, GridOf({ Text() }, gridStyle | HGS_NEWROW, 0, 5)));
}

TEST_F(GridAttach, TakingTheSourceAwayLeavesAnOrdinaryEmptyGrid)
{
    MakeGrid(GridOf({ Text() }));
    const void* const refusing = reinterpret_cast<const void*>(RefusingSource);
    SendPtr(grid, HGM_SETROWSOURCE, 0, refusing);
    EXPECT_EQ(reinterpret_cast<LRESULT>(refusing), Send(grid, HGM_SETROWSOURCE, 0, 0));
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
