// Page, totals, scroll bars and refresh.
#include "gridctl/record_source.h"

#include "support/pixels.h"

namespace {

constexpr DWORD plainStyle = HGS_ROWHEADERS | HGS_COLHEADERS; // without scroll bars the client area stays as it is

class GridRange : public SourceWindow {
protected:
    // Sets the height of the data area.
    void SetDataHeight(int height)
    {
        SetWindowPos(grid, nullptr, 0, 0, 400, height + 20, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    SCROLLINFO BarOf(HWND window, int bar)
    {
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_ALL;
        GetScrollInfo(window, bar, &info);
        return info;
    }
    // The frame shows what it shows when it is drawn anew.
    void ExpectFrameIsDrawn(const char* when)
    {
        const Pixels shot = ShotOfWindow(grid);
        RedrawWindow(grid, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_ERASE);
        EXPECT_TRUE(SamePixels(ShotOfWindow(grid), shot)) << when;
    }
    int ClientWidth()
    {
        RECT client;
        GetClientRect(grid, &client);
        return static_cast<int>(client.right);
    }
};

TEST_F(GridRange, LowBitOfTheRemainderDecidesOnThePartialRow)
{
    MakeGrid(GridOf({ Text() }, plainStyle), 50);
    struct Case {
        int height;
        int partial;
        int page;
    };
    constexpr Case cases[] = {
        { 180, 0, 9 }, { 181, 1, 10 }, { 182, 0, 9 }, { 183, 1, 10 }, { 198, 0, 9 }, { 199, 1, 10 }, { 200, 0, 10 },
        { 5, 1, 1 },   { 4, 0, 1 },    { 0, 0, 1 },
    };
    for (const Case& c : cases) {
        SetDataHeight(c.height);
        EXPECT_EQ(c.partial, PartialRow(ctl)) << "data height " << c.height;
        EXPECT_EQ(c.page, ctl->cPageRows) << "data height " << c.height;
    }
}

TEST_F(GridRange, PageOfBandsCountsRecords)
{
    MakeGrid(GridOf({ Text(), Text() }, plainStyle), 50);
    Send(grid, HGM_SETBANDS, 0, 2);
    SetWindowPos(grid, nullptr, 0, 0, 400, 40 + 120, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(3, ctl->cPageRows);
}

TEST_F(GridRange, NoRowsHaveAScaleOfOne)
{
    MakeGrid(GridOf({ Text() }));
    EXPECT_EQ(1, +ctl->nVScale);
    EXPECT_EQ(0, Send(grid, HGM_GETTOTAL));
}

TEST_F(GridRange, LongSetsAreScaledToTheUnitsOfTheBar)
{
    MakeSourceGrid();
    struct Case {
        int  count;
        LONG scale;
    };
    constexpr Case cases[] = { { 100, 1 },      { 32765, 1 },        { 32766, 2 },
                               { 65531, 2 },    { 65532, 3 },        { 1000000, 31 },
                               { 0x7FFFFFFE, 0x7FFFFFFE / 32766 + 1 } };
    for (const Case& c : cases) {
        Send(grid, HGM_SETTOTAL, 0, c.count);
        EXPECT_EQ(c.scale, +ctl->nVScale) << c.count << " records";
        EXPECT_EQ((c.count + 1) / c.scale, BarOf(grid, SB_VERT).nMax) << c.count << " records";
    }
}

TEST_F(GridRange, VerticalBarHoldsTotalAndPage)
{
    MakeGrid(GridOf({ Text() }), 50);
    const SCROLLINFO bar = BarOf(grid, SB_VERT);
    EXPECT_EQ(0, bar.nMin);
    EXPECT_EQ(50, bar.nMax);
    EXPECT_EQ(static_cast<UINT>(ctl->cPageRows - PartialRow(ctl) + 1), bar.nPage);
    Send(grid, HGM_SETTOPRECORD, 12);
    EXPECT_EQ(12, BarOf(grid, SB_VERT).nPos);
    EXPECT_EQ(12u, +ctl->nVScrollPos);
}

TEST_F(GridRange, ThumbShowsEachNewRangeAndPage)
{
    MakeGrid(GridOf({ Text() }), 60);
    ExpectFrameIsDrawn("at first");
    AddRows(540);
    ExpectFrameIsDrawn("more rows, the same position");
    SetWindowPos(grid, nullptr, 0, 0, 400, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ExpectFrameIsDrawn("a taller grid");
    Send(grid, HGM_SETTOPRECORD, 500);
    for (int row = 599; row >= 100; --row) {
        HLListRemove(ctl->pData->pRows, row);
    }
    Send(grid, HGM_REFRESH, 1);
    ExpectFrameIsDrawn("fewer rows, the position lowered");
}

TEST_F(GridRange, WithoutTheStyleNoBarIsTouched)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text() }, plainStyle), 50);
    Send(grid, HGM_SETTOPRECORD, 12);
    Send(grid, HGM_SETHPOS, 30);
    EXPECT_EQ(12u, +ctl->nVScrollPos);
    EXPECT_EQ(30, +ctl->nHScrollPos);
    EXPECT_EQ(0, GetWindowLongA(grid, GWL_STYLE) & (WS_VSCROLL | WS_HSCROLL));
}

TEST_F(GridRange, NavigatorsBarTakesTheRange)
{
    MakeGrid(GridOf({ Text() }, plainStyle), 5);
    ctl->hNavScroll = CreateWindowExA(0, "SCROLLBAR", "", WS_CHILD | SBS_VERT, 0, 0, 16, 100, grid, nullptr, nullptr,
                                      nullptr);
    ctl->pData->dwStyle |= WS_VSCROLL;
    AddRows(45);
    Send(grid, HGM_SETTOPRECORD, 7);
    EXPECT_EQ(50, BarOf(ctl->hNavScroll, SB_CTL).nMax);
    EXPECT_EQ(7, BarOf(ctl->hNavScroll, SB_CTL).nPos);
    EXPECT_EQ(0, GetWindowLongA(grid, GWL_STYLE) & WS_VSCROLL);
}

TEST_F(GridRange, WidestBandWithItsFixedColumnsIsTheRangeAndTheZoneIsThePage)
{
    HGField* const wide = Text(16, "wide");
    wide->nWidth = 500;
    MakeGrid(GridOf({ Text(), wide }, gridStyle, 1), 3);
    EXPECT_EQ(580, +ctl->nHScrollMax);
    EXPECT_EQ(static_cast<DWORD>(ClientWidth() - 40 - 80), +ctl->nHPage);
    const SCROLLINFO bar = BarOf(grid, SB_HORZ);
    EXPECT_EQ(580, bar.nMax);
    EXPECT_EQ(+ctl->nHPage, bar.nPage);
}

TEST_F(GridRange, ContentThatFitsHasNoRange)
{
    MakeGrid(GridOf({ Text(), Text() }), 3);
    Send(grid, HGM_RECALC);
    EXPECT_EQ(0, +ctl->nHScrollMax);
    EXPECT_EQ(0, +ctl->nHScrollPos);
    EXPECT_EQ(0, parent.Count(HGN_HRANGE));
}

TEST_F(GridRange, ContentThatFitsAgainLosesItsPositionAndIsPaintedThere)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text() }, plainStyle), 3);
    Send(grid, HGM_SETHPOS, 50);
    for (int col = 0; col < 6; ++col) {
        HGGetField(ctl->pData, col)->nWidth = 20;
    }
    ValidateRect(grid, nullptr);
    Send(grid, HGM_RECALC);
    EXPECT_EQ(0, +ctl->nHScrollPos);
    EXPECT_EQ(0, +ctl->nHScrollMax);
    EXPECT_TRUE(IsInvalid()) << "the screen shows columns of the old position";
    ValidateRect(grid, nullptr);
    Send(grid, HGM_RECALC);
    EXPECT_FALSE(IsInvalid());
}

TEST_F(GridRange, PositionPastANewRangeScrollsBack)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }, plainStyle), 3);
    Send(grid, HGM_SETHPOS, 10000);
    EXPECT_EQ(800 - 360 + 1, +ctl->nHScrollPos);
    for (int col = 0; col < 5; ++col) {
        HGGetField(ctl->pData, col)->nWidth = 2;
    }
    parent.ClearCounts();
    Send(grid, HGM_RECALC);
    EXPECT_EQ(410, +ctl->nHScrollMax);
    EXPECT_EQ(410 - 360 + 1, +ctl->nHScrollPos);
    EXPECT_EQ(1, parent.Count(HGN_HSCROLLED));
}

TEST_F(GridRange, FixedColumnsWiderThanTheWindowLeaveAnEmptyZone)
{
    HGField* const wide = Text(16, "wide");
    wide->nWidth = 500;
    MakeGrid(GridOf({ wide, Text() }, plainStyle, 1), 3);
    EXPECT_EQ(0u, +ctl->nHPage);
    EXPECT_EQ(580, +ctl->nHScrollMax);
    Send(grid, HGM_SETHPOS, 5000);
    EXPECT_EQ(581, +ctl->nHScrollPos);
}

TEST_F(GridRange, LayoutIsToldBeforeTheRange)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text() }), 3);
    constexpr Seen expected[] = { { 0, ToParent, HGN_LAYOUT }, { 0, ToParent, HGN_HRANGE } };
    seen.NotificationsOnly();
    Send(grid, HGM_RECALC);
    EXPECT_SEEN(expected);
}

TEST_F(GridRange, PageAndTotalsAreFreshWhenTheLayoutIsTold)
{
    MakeGrid(GridOf({ Text() }, plainStyle), 50);
    int  page = 0;
    LONG total = 0;
    parent.On(HGN_LAYOUT, [&] {
        page = ctl->cPageRows;
        total = ctl->lTotalRows;
    });
    HLListRemove(ctl->pData->pRows, 49);
    SetDataHeight(60);
    EXPECT_EQ(3, page);
    EXPECT_EQ(49, total);
}

TEST_F(GridRange, TopPastTheRowsIsLoweredAndAllIsRepainted)
{
    MakeGrid(GridOf({ Text() }), 50);
    Send(grid, HGM_SETTOPRECORD, 30);
    PumpPending();
    for (int row = 49; row >= 20; --row) {
        HLListRemove(ctl->pData->pRows, row);
    }
    Send(grid, HGM_RECALC);
    EXPECT_EQ(20 - ctl->cPageRows, ctl->nTopRow) << "a full page of what is left";
    EXPECT_TRUE(IsInvalid());
}

TEST_F(GridRange, RefreshExchangesTheEndsOfTheSelection)
{
    MakeGrid(GridOf({ Text(), Text() }), 9);
    MoveTo(0, 2);
    Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(1, 5)));
    Send(grid, HGM_REFRESH);
    EXPECT_EQ((Cell{ 1, 2 }), Current());
    EXPECT_EQ(5, ctl->nAnchorRow);
    EXPECT_EQ(0, ctl->nAnchorCol);
    Send(grid, HGM_REFRESH);
    EXPECT_EQ((Cell{ 1, 5 }), Current());
}

TEST_F(GridRange, RefreshAnnouncesAMoveThatExtends)
{
    MakeGrid(GridOf({ Text() }), 9);
    MoveTo(0, 2);
    PumpPending();
    seen.Clear();
    constexpr Seen expected[] = { { 0, ToParent, HGN_LAYOUT }, { 0, ToParent, HGN_EXTENDING } };
    seen.NotificationsOnly();
    Send(grid, HGM_REFRESH, 1);
    EXPECT_SEEN(expected);
    EXPECT_TRUE(IsInvalid());
}

TEST_F(GridRange, RefreshBringsTheCellBackIntoFewerRowsAndColumns)
{
    MakeGrid(GridOf({ Text(), Text(), Text() }), 9);
    MoveTo(2, 8);
    for (int row = 8; row >= 4; --row) {
        HLListRemove(ctl->pData->pRows, row);
    }
    HGRemoveFld(ctl, 2);
    Send(grid, HGM_REFRESH, 1);
    EXPECT_EQ((Cell{ 1, 3 }), Current());
    EXPECT_EQ(3, ctl->nAnchorRow);
    EXPECT_EQ(1, ctl->nAnchorCol);
}

TEST_F(GridRange, RefreshWithoutRowsAndColumnsEndsAtTheFirstCell)
{
    MakeGrid(GridOf({ Text(), Text() }), 9);
    MoveTo(1, 8);
    HGridEmpty(ctl->pData);
    Send(grid, HGM_REFRESH, 1);
    EXPECT_EQ(0, Current().row);
    HGRemoveFld(ctl, 1);
    HGRemoveFld(ctl, 0);
    Send(grid, HGM_REFRESH, 1);
    EXPECT_EQ((Cell{ 0, 0 }), Current());
}

TEST_F(GridRange, FixedColumnsAndTheirZoneFollowTheColumnCount)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text() }, gridStyle, 3), 2);
    for (int i = 0; i < 3; ++i) {
        Send(grid, HGM_DELETEFIELD, 0);
    }
    EXPECT_EQ(1, Send(grid, HGM_GETFIXEDCOLS));
    EXPECT_EQ(1, Send(grid, HGM_GETFIRSTCOL));
    SendPtr(grid, HGM_ADDFIELD, 0, Text());
    SendPtr(grid, HGM_ADDFIELD, 0, Text());
    int col = 0;
    EXPECT_NE(nullptr, HGNextColumn(ctl, true, &col, 0));
    EXPECT_EQ(1, col);
}

TEST_F(GridRange, BlockNeverHoldsFewerThanTwoPages)
{
    MakeSourceGrid(plainStyle);
    for (const int height : { 60, 200, 400, 120 }) {
        SetDataHeight(height);
        EXPECT_GE(HGRowCount(ctl->pData), 2 * ctl->cPageRows) << "data height " << height;
        ExpectRowsAreRecords();
    }
    Send(grid, HGM_SETHELD, 0, 3);
    EXPECT_EQ(2 * ctl->cPageRows, Send(grid, HGM_GETHELD));
}

TEST_F(GridRange, SourceThatEndsEarlySetsTheTrueTotalAndOneEntryRow)
{
    source.count = 4;
    MakeSourceGrid(gridStyle | HGS_NEWROW, false);
    EXPECT_EQ(5, Send(grid, HGM_GETTOTAL));
    EXPECT_EQ(5, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(HGR_NEW, RowFlags(4));
    Send(grid, HGM_REFRESH, 1);
    EXPECT_EQ(5, Send(grid, HGM_GETROWCOUNT));
}

} // namespace
