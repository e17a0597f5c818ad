// Scrolling: bars, wheel, and the view under the current cell.
#include "gridctl/grid_editing.h"

namespace {

constexpr DWORD plainStyle = HGS_ROWHEADERS | HGS_COLHEADERS;

class GridScroll : public GridEditing {
protected:
    // Ten columns of 80 pixels, a zone of 360, and 50 rows in a page of 9.
    void MakeWideGrid(DWORD style = plainStyle, WORD fixedCols = 0)
    {
        MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }, style,
                        fixedCols),
                 50);
        seen.NotificationsOnly();
    }
    LRESULT SendWheel(int delta, int x = 30, int y = 30)
    {
        POINT point = { x, y };
        ClientToScreen(grid, &point);
        return Send(grid, WM_MOUSEWHEEL, MAKEWPARAM(0, delta), MAKELPARAM(point.x, point.y));
    }
};

constexpr int highestPos = 800 - 360 + 1;

TEST_F(GridScroll, CodesOfTheHorizontalBarMoveByPixels)
{
    MakeWideGrid();
    struct Case {
        WORD code;
        int  position;
        LONG from;
        LONG to;
    };
    constexpr Case cases[] = {
        { SB_LINERIGHT, 0, 100, 110 },      { SB_LINELEFT, 0, 100, 90 },
        { SB_PAGERIGHT, 0, 0, 359 },        { SB_PAGELEFT, 0, 400, 41 },
        { SB_LINELEFT, 0, 4, 0 },           { SB_LINERIGHT, 0, highestPos - 3, highestPos },
        { SB_THUMBPOSITION, 70, 300, 70 },  { SB_THUMBTRACK, 70, 300, 300 },
        { SB_ENDSCROLL, 0, 300, 300 },      { SB_LEFT, 0, 300, 300 },
    };
    for (const Case& c : cases) {
        Send(grid, HGM_SETHPOS, static_cast<WPARAM>(c.from));
        Send(grid, WM_HSCROLL, MAKEWPARAM(c.code, c.position));
        EXPECT_EQ(c.to, +ctl->nHScrollPos) << "code " << c.code << " from " << c.from;
    }
}

TEST_F(GridScroll, RequestOfNothingAfterBoundingIsStillTold)
{
    MakeWideGrid();
    constexpr Seen expected[] = { { 0, ToParent, HGN_HSCROLLED } };
    Send(grid, WM_HSCROLL, SB_LINELEFT);
    EXPECT_EQ(0, +ctl->nHScrollPos);
    EXPECT_SEEN(expected);
}

TEST_F(GridScroll, ThumbTrackingScrollsAndTellsNothing)
{
    MakeWideGrid();
    Send(grid, WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 50));
    EXPECT_NOTHING_SEEN();
}

TEST_F(GridScroll, ColumnsScrollUnderTheFixedOnes)
{
    MakeWideGrid(plainStyle, 2);
    Send(grid, HGM_SETHPOS, 60);
    RECT rect;
    HGCellRect(ctl, &rect, 1, 0, true);
    EXPECT_EQ(120, rect.left);
    HGCellRect(ctl, &rect, 2, 0, true);
    EXPECT_EQ(140, rect.left);
}

TEST_F(GridScroll, OnlyTheScrolledStripIsPaintedAgain)
{
    MakeWideGrid();
    PumpPending();
    UpdateWindow(grid);
    HGScrollBy(ctl, 25, 0, true);
    EXPECT_FALSE(IsInvalid()) << "the strip is painted at once";
}

TEST_F(GridScroll, CodesOfTheVerticalBarScrollAndTakeTheCellAlong)
{
    MakeWideGrid();
    struct Case {
        WORD code;
        int  position;
        int  fromTop;
        int  fromRow;
        int  toTop;
        int  toRow;
    };
    constexpr Case cases[] = {
        { SB_LINEDOWN, 0, 10, 12, 11, 13 },     { SB_LINEUP, 0, 10, 12, 9, 11 },
        { SB_PAGEDOWN, 0, 10, 12, 18, 20 },     { SB_PAGEUP, 0, 10, 12, 2, 4 },
        { SB_THUMBPOSITION, 30, 10, 12, 30, 12 }, { SB_THUMBTRACK, 30, 10, 12, 10, 12 },
        { SB_ENDSCROLL, 0, 10, 12, 10, 12 },    { SB_BOTTOM, 0, 10, 12, 10, 12 },
        { SB_LINEUP, 0, 0, 5, 0, 4 },           { SB_PAGEDOWN, 0, 40, 47, 41, 49 },
    };
    for (const Case& c : cases) {
        MoveTo(0, c.fromRow);
        Send(grid, HGM_SETTOPRECORD, static_cast<WPARAM>(c.fromTop));
        Send(grid, WM_VSCROLL, MAKEWPARAM(c.code, c.position));
        EXPECT_EQ(c.toTop, ctl->nTopRow) << "code " << c.code << " from row " << c.fromRow;
        EXPECT_EQ(c.toRow, Current().row) << "code " << c.code << " from row " << c.fromRow;
    }
}

TEST_F(GridScroll, StepOfTheVerticalBarIsAskedForThenScrolledThenMoved)
{
    MakeWideGrid();
    MoveTo(0, 3);
    seen.Clear();
    constexpr Seen expected[] = { { 0, ToParent, HGN_NAVIGATE },   { 0, ToParent, HGN_VSCROLLED },
                                  { 0, ToParent, HGN_MOVING },     { 0, ToParent, HGN_MOVED },
                                  { 0, ToParent, HGN_ROWCHANGED } };
    Send(grid, WM_VSCROLL, SB_LINEDOWN);
    EXPECT_SEEN(expected);
}

TEST_F(GridScroll, ThumbWithoutWayIsAskedForOnly)
{
    MakeWideGrid();
    MoveTo(0, 3);
    seen.Clear();
    constexpr Seen expected[] = { { 0, ToParent, HGN_NAVIGATE } };
    Send(grid, WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 30));
    EXPECT_SEEN(expected);
    Send(grid, WM_VSCROLL, SB_ENDSCROLL);
    EXPECT_SEEN(expected);
}

WNDPROC gOldParent;

LRESULT CALLBACK RefusingParent(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CallWindowProcA(gOldParent, hwnd, message, wParam, lParam);
    return message == WM_COMMAND && HIWORD(wParam) == HGN_NAVIGATE ? 1 : result;
}

TEST_F(GridScroll, ParentRefusesAStepByItsAnswer)
{
    MakeWideGrid();
    MoveTo(0, 3);
    gOldParent = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(parent.hwnd(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(RefusingParent)));
    Send(grid, WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(1, SendWheel(-WHEEL_DELTA));
    EXPECT_EQ(0, ctl->nTopRow);
    EXPECT_EQ(3, Current().row);
    SetWindowLongPtrA(parent.hwnd(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(gOldParent));
    EXPECT_EQ(2, parent.Count(HGN_NAVIGATE));
}

TEST_F(GridScroll, StepIsAskedOfTheWindowsParentWhateverGetsTheNotifications)
{
    MakeWideGrid();
    ctl->hParent = nullptr;
    seen.Clear();
    const Seen expected[] = { { 0, ToParent, HGN_NAVIGATE, 100, reinterpret_cast<LPARAM>(grid) } };
    Send(grid, WM_VSCROLL, SB_LINEDOWN);
    EXPECT_SEEN(expected);
    ctl->hParent = parent.hwnd();
}

TEST_F(GridScroll, ScrollingUpPastTheFirstRecordIsToldOnceAndStops)
{
    MakeWideGrid();
    Send(grid, HGM_SETTOPRECORD, 4);
    seen.Clear();
    constexpr Seen expected[] = { { 0, ToParent, HGN_ABOVETOP }, { 0, ToParent, HGN_VSCROLLED } };
    HGScrollBy(ctl, 0, -20, true);
    EXPECT_EQ(0, ctl->nTopRow);
    EXPECT_SEEN(expected);
}

TEST_F(GridScroll, ScrollingDownPastTheEndIsToldOnceAndStops)
{
    MakeWideGrid();
    Send(grid, HGM_SETTOPRECORD, 40);
    seen.Clear();
    constexpr Seen expected[] = { { 0, ToParent, HGN_BELOWEND }, { 0, ToParent, HGN_VSCROLLED } };
    HGScrollBy(ctl, 0, 20, true);
    EXPECT_EQ(41, ctl->nTopRow);
    EXPECT_SEEN(expected);
}

TEST_F(GridScroll, RowsThatTheParentAddsAtTheEndAreScrolledTo)
{
    for (const bool tellsTheGrid : { false, true }) {
        MakeWideGrid();
        Send(grid, HGM_SETTOPRECORD, 40);
        parent.On(HGN_BELOWEND, [&] {
            for (int i = 0; i < 10; ++i) {
                Send(grid, HGM_ADDROW);
            }
            if (tellsTheGrid) {
                Send(grid, HGM_RECALC);
            }
        });
        HGScrollBy(ctl, 0, 20, true);
        EXPECT_EQ(51, ctl->nTopRow) << (tellsTheGrid ? "with a recalculation" : "without");
        EXPECT_EQ(60, Send(grid, HGM_GETTOTAL));
        DestroyWindow(grid);
    }
}

TEST_F(GridScroll, QuietScrollTellsNothingAndOnlyOnce)
{
    MakeWideGrid();
    Send(grid, HGM_SETFLAGS, 1, HGC_QUIETSCROLL);
    HGScrollBy(ctl, 10, 5, true);
    EXPECT_NOTHING_SEEN();
    constexpr Seen expected[] = { { 0, ToParent, HGN_HSCROLLED }, { 0, ToParent, HGN_VSCROLLED } };
    HGScrollBy(ctl, 10, 5, true);
    EXPECT_SEEN(expected);
}

TEST_F(GridScroll, ScrollOfNothingTellsNothing)
{
    MakeWideGrid();
    HGScrollBy(ctl, 0, 0, true);
    EXPECT_NOTHING_SEEN();
}

TEST_F(GridScroll, GridWhoseRowsAllFitDoesNotScrollDown)
{
    MakeGrid(GridOf({ Text() }, plainStyle), 4);
    HGScrollBy(ctl, 0, 3, true);
    EXPECT_EQ(0, ctl->nTopRow);
    EXPECT_EQ(1, parent.Count(HGN_BELOWEND));
    EXPECT_EQ(0, parent.Count(HGN_VSCROLLED));
}

TEST_F(GridScroll, WheelMovesByPages)
{
    MakeWideGrid();
    MoveTo(0, 2);
    EXPECT_EQ(1, SendWheel(-WHEEL_DELTA));
    EXPECT_EQ(8, ctl->nTopRow);
    EXPECT_EQ(10, Current().row);
    EXPECT_EQ(1, SendWheel(WHEEL_DELTA));
    EXPECT_EQ(0, ctl->nTopRow);
    EXPECT_EQ(2, Current().row);
}

TEST_F(GridScroll, WheelOutsideTheWindowGoesOn)
{
    MakeWideGrid();
    EXPECT_EQ(0, SendWheel(-WHEEL_DELTA, -5, 30));
    EXPECT_EQ(0, SendWheel(-WHEEL_DELTA, 30, 300));
    EXPECT_EQ(0, ctl->nTopRow);
    EXPECT_EQ(0, parent.Count(HGN_NAVIGATE));
}

TEST_F(GridScroll, WheelMovesAcrossWhereAllRowsFit)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }, plainStyle), 4);
    EXPECT_EQ(1, SendWheel(-WHEEL_DELTA));
    EXPECT_EQ(359, +ctl->nHScrollPos);
    EXPECT_EQ(1, SendWheel(WHEEL_DELTA));
    EXPECT_EQ(0, +ctl->nHScrollPos);
}

TEST_F(GridScroll, WheelOverAGridThatFitsDoesNothing)
{
    MakeGrid(GridOf({ Text() }, plainStyle), 4);
    EXPECT_EQ(0, SendWheel(-WHEEL_DELTA));
    EXPECT_EQ(0, SendWheel(WHEEL_DELTA));
    EXPECT_NOTHING_SEEN();
    EXPECT_EQ((Cell{ 0, 0 }), Current());
}

// An odd remainder below the rows leaves the way of one row, though the page counts all of them.
TEST_F(GridScroll, WheelUpTakesTheLastStepBackWhereAllRowsFitAndGoesOn)
{
    MakeGrid(GridOf({ Text() }, plainStyle), 10);
    SetWindowPos(grid, nullptr, 0, 0, 400, 20 + 199, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    ASSERT_EQ(10, ctl->cPageRows);
    Send(grid, HGM_SETTOPRECORD, 1);
    ASSERT_EQ(1u, +ctl->nVScrollPos);
    int wheels = 0;
    parent.OnMessage(WM_MOUSEWHEEL, [&](WPARAM, LPARAM) {
        ++wheels;
        return 0;
    });
    SendWheel(WHEEL_DELTA);
    EXPECT_EQ(0, ctl->nTopRow);
    EXPECT_EQ(1, wheels);
}

TEST_F(GridScroll, StepOfTheVerticalBarStopsBeforeTheEntryRow)
{
    MakeGrid(GridOf({ Text() }, plainStyle | HGS_NEWROW));
    AddRows(50);
    const int entry = LastRow(ctl);
    MoveTo(0, entry - 3);
    Send(grid, WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_CELL(0, entry - 1);
}

TEST_F(GridScroll, EditorGoesWhilePixelsMoveAndHasTheFocusAgainThen)
{
    MakeWideGrid();
    TypeInto(0, 5, "typed");
    Send(grid, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 3));
    EXPECT_EQ(3, ctl->nTopRow);
    EXPECT_EQ(1, parent.Count(HGN_EDITBLUR));
    EXPECT_EQ(1, parent.Count(HGN_EDITFOCUS));
    EXPECT_EQ(Editor(), GetFocus());
    EXPECT_TRUE(IsWindowVisible(Editor()));
    EXPECT_EQ("typed", TextOf(Editor()));
}

TEST_F(GridScroll, EntryRowCountsForTheWheel)
{
    MakeGrid(GridOf({ Text() }, plainStyle | HGS_NEWROW), 0);
    AddRows(8);
    ASSERT_EQ(ctl->cPageRows, Send(grid, HGM_GETTOTAL));
    EXPECT_EQ(1, SendWheel(-WHEEL_DELTA));
    EXPECT_EQ(1, parent.Count(HGN_NAVIGATE));
}

TEST_F(GridScroll, MoveBringsTheCellIntoView)
{
    MakeWideGrid();
    MoveTo(7, 30);
    RECT cell;
    RECT zone;
    HGCellRect(ctl, &cell, 7, 30, true);
    HGScrollRect(ctl, &zone);
    EXPECT_LE(cell.right, zone.right);
    EXPECT_GE(cell.left, zone.left);
    EXPECT_EQ(30 + 1 - 9, ctl->nTopRow);
    MoveTo(0, 3);
    EXPECT_EQ(3, ctl->nTopRow);
    EXPECT_EQ(0, +ctl->nHScrollPos);
    EXPECT_EQ(3u, +ctl->nVScrollPos);
}

TEST_F(GridScroll, MoveToAFixedColumnDoesNotScrollAcross)
{
    MakeWideGrid(plainStyle, 1);
    MoveTo(7, 0);
    const LONG pos = ctl->nHScrollPos;
    EXPECT_GT(pos, 0);
    MoveTo(0, 0);
    EXPECT_EQ(pos, +ctl->nHScrollPos);
}

TEST_F(GridScroll, MillionRecordsAreScrolledByUnits)
{
    MakeSourceGrid();
    ASSERT_EQ(31, +ctl->nVScale);
    Send(grid, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 16000));
    EXPECT_EQ(16000 * 31, TopRecord());
    EXPECT_EQ(16000u, +ctl->nVScrollPos);
    ExpectRowsAreRecords();
    Send(grid, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 0));
    EXPECT_EQ(0, TopRecord());
    ExpectRowsAreRecords();
}

TEST_F(GridScroll, ThumbAsksForTheTotalUntilItIsKnown)
{
    MakeSourceGrid(gridStyle, false);
    Send(grid, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 3));
    EXPECT_EQ(1, source.CountOf(HGSRC_COUNT));
    EXPECT_EQ(1000001, Send(grid, HGM_GETTOTAL));
    Send(grid, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 5));
    EXPECT_EQ(1, source.CountOf(HGSRC_COUNT));
}

TEST_F(GridScroll, GridWithASourceTellsOfNoEnd)
{
    MakeSourceGrid();
    seen.NotificationsOnly();
    HGScrollBy(ctl, 0, -5, true);
    EXPECT_NOTHING_SEEN();
    HGScrollBy(ctl, 0, 5000000, true);
    EXPECT_EQ(0, parent.Count(HGN_BELOWEND));
    EXPECT_EQ(1000000, RecordOfRow(ctl, HGRowCount(ctl->pData)));
    EXPECT_EQ(1000000, Send(grid, HGM_GETTOTAL));
    ExpectRowsAreRecords();
}

TEST_F(GridScroll, FoundEndIsToldAsANewLayoutBeforeTheScroll)
{
    MakeSourceGrid();
    SetFlag(ctl, HGC_QUIETSCROLL, false); // setting the source has left it
    seen.NotificationsOnly();
    constexpr Seen expected[] = { { 0, ToParent, HGN_LAYOUT }, { 0, ToParent, HGN_VSCROLLED } };
    HGScrollBy(ctl, 0, 2000000, true);
    EXPECT_SEEN(expected);
}

} // namespace
