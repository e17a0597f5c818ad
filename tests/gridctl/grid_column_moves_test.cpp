// Columns moved by the mouse, from the press with Shift to the drop.
#include "gridctl/grid_mouse.h"

namespace {

class GridColumnMoves : public GridMouse {
protected:
    // Whether a press drags columns; the button comes up inside its loop.
    bool DragsWhilePressed(int x, int y)
    {
        bool dragged = false;
        parent.OnMessage(WM_APP, [&](WPARAM, LPARAM) {
            dragged = (ctl->wFlags & HGC_COLDRAG) != 0;
            return 0;
        });
        PostMessageA(parent.hwnd(), WM_APP, 0, 0);
        PostMessageA(grid, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
        Down(x, y);
        PumpPending();
        return dragged;
    }
    // A drag of columns without its modal loop: as TimedScroll would find it.
    void StartColumnDrag(int lo, int hi)
    {
        MoveTo(lo, -1);
        Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(hi, -1)));
        ctl->wFlags |= HGC_MOUSEDOWN | HGC_COLDRAG;
    }
};

TEST_F(GridColumnMoves, ShiftOnASelectedColumnStartsADragWhereColumnsCanBeMoved)
{
    for (const bool movable : { false, true }) {
        MakeCells(movable ? plainStyle | HGS_COLMAP : plainStyle);
        ClickCell(150, 10);
        SetKeys(pressed, 0);
        const bool dragged = DragsWhilePressed(150, 10);
        EXPECT_EQ(movable, dragged);
        EXPECT_FALSE(ctl->wFlags & (HGC_COLDRAG | HGC_MOUSEDOWN)) << "the drag is over";
        SetKeys(0, 0);
        DestroyWindow(grid);
    }
}

TEST_F(GridColumnMoves, ShiftCountsAsItWasWhenTheButtonWentDown)
{
    MakeCells(plainStyle | HGS_COLMAP);
    ClickCell(150, 10);
    SetFocus(parent.hwnd());
    parent.ClearCounts();
    SetKeys(pressed, 0);
    parent.On(HGN_SETFOCUS, [&] { SetKeys(0, 0); });
    const bool dragged = DragsWhilePressed(150, 10);
    EXPECT_EQ(1, parent.Count(HGN_SETFOCUS));
    EXPECT_TRUE(dragged);
}

TEST_F(GridColumnMoves, ShiftOnAColumnThatIsNotSelectedStartsNoDrag)
{
    MakeCells(plainStyle | HGS_COLMAP);
    ClickCell(150, 10);
    SetKeys(pressed, 0);
    ClickCell(310, 10);
    EXPECT_CELL(3, -1);
    EXPECT_EQ((Cell{ 1, -1 }), Anchor());
}

TEST_F(GridColumnMoves, ColumnsAreDroppedWhereTheMouseIs)
{
    struct Case {
        int         lo;
        int         hi;
        int         x;
        const char* titles;
        int         first;
    };
    constexpr Case cases[] = {
        { 0, 0, 230, "BCADE", 2 }, { 3, 3, 60, "DABCE", 0 },  { 0, 1, 310, "CDABE", 2 },
        { 3, 4, 150, "ADEBC", 1 }, { 2, 2, 20, "CABDE", 0 },
    };
    for (const Case& c : cases) {
        MakeCells(plainStyle | HGS_COLMAP);
        StartColumnDrag(c.lo, c.hi);
        parent.ClearCounts();
        Up(c.x, 10);
        EXPECT_EQ(c.titles, Titles());
        EXPECT_EQ(1, parent.Count(HGN_COLSMOVED));
        EXPECT_EQ((Cell{ c.first, -1 }), Anchor()) << c.titles;
        EXPECT_EQ((Cell{ c.first + c.hi - c.lo, -1 }), Current()) << c.titles;
        EXPECT_FALSE(ctl->wFlags & HGC_COLDRAG);
        DestroyWindow(grid);
    }
}

TEST_F(GridColumnMoves, DropInsideTheDraggedColumnsOnlyRefreshes)
{
    MakeCells(plainStyle | HGS_COLMAP);
    StartColumnDrag(1, 3);
    parent.ClearCounts();
    Up(230, 10);
    EXPECT_EQ("ABCDE", Titles());
    EXPECT_EQ(0, parent.Count(HGN_COLSMOVED));
    EXPECT_EQ(1, parent.Count(HGN_LAYOUT));
}

TEST_F(GridColumnMoves, DropWithAllSelectedOnlyRefreshes)
{
    MakeCells(plainStyle | HGS_COLMAP);
    MoveTo(-1, -1);
    ctl->wFlags |= HGC_MOUSEDOWN | HGC_COLDRAG;
    Up(230, 10);
    EXPECT_EQ("ABCDE", Titles());
    EXPECT_EQ(0, parent.Count(HGN_COLSMOVED));
}

TEST_F(GridColumnMoves, CellsKeepTheirValuesWhenTheirColumnIsDropped)
{
    MakeCells(plainStyle | HGS_COLMAP, 3);
    SetText(0, 1, "left");
    SetText(4, 1, "right");
    StartColumnDrag(0, 0);
    Up(310, 10);
    EXPECT_EQ("left", CellText(3, 1));
    EXPECT_EQ("right", CellText(4, 1));
}

TEST_F(GridColumnMoves, DroppedColumnTakesTheBandOfItsTarget)
{
    MakeCells(plainStyle | HGS_COLMAP);
    Send(grid, HGM_SETBANDS, 0, 2);
    HGGetField(ctl->pData, 3)->nBand = 1;
    HGGetField(ctl->pData, 4)->nBand = 1;
    StartColumnDrag(0, 0);
    Up(60, 30);
    EXPECT_EQ("BCDAE", Titles());
    EXPECT_EQ(1, HGGetField(ctl->pData, 3)->nBand);
}

TEST_F(GridColumnMoves, ColumnDroppedOnTheRowHeadersTakesTheBandByTheHeightOfTheMouse)
{
    struct Case {
        int y;
        int band;
    };
    for (const Case& c : { Case{ 10, 0 }, Case{ 30, 1 }, Case{ 90, 0 }, Case{ -30, 0 } }) {
        MakeCells(plainStyle | HGS_COLMAP);
        Send(grid, HGM_SETBANDS, 0, 2);
        HGGetField(ctl->pData, 3)->nBand = 1;
        HGGetField(ctl->pData, 4)->nBand = 1;
        StartColumnDrag(2, 2);
        Up(20, c.y);
        EXPECT_EQ("CABDE", Titles()) << "at " << c.y;
        EXPECT_EQ(c.band, HGGetField(ctl->pData, 0)->nBand) << "at " << c.y;
        DestroyWindow(grid);
    }
}

TEST_F(GridColumnMoves, DropPointIsShownAsAGuideAtTheColumnsEdge)
{
    MakeCells(plainStyle | HGS_COLMAP);
    StartColumnDrag(1, 1);
    Drag(290, 10);
    EXPECT_TRUE(ctl->wFlags & HGC_XORLINE);
    EXPECT_EQ(40 + 4 * 80, gGuideLine);
    Drag(60, 10);
    EXPECT_EQ(40, gGuideLine);
    Drag(150, 10);
    EXPECT_FALSE(ctl->wFlags & HGC_XORLINE) << "over the dragged column there is no guide";
    Up(150, 10);
}

TEST_F(GridColumnMoves, ColumnDragScrollsAtTheEdges)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }, plainStyle | HGS_COLMAP), 3);
    StartColumnDrag(1, 1);
    Drag(390, 10);
    EXPECT_EQ(ScaleX(20), +ctl->nHScrollPos);
    Drag(45, 10);
    EXPECT_EQ(0, +ctl->nHScrollPos);
    Up(150, 10);
}

TEST_F(GridColumnMoves, DragOfAFixedColumnShowsTheFixedOneItIsOver)
{
    MakeCells(plainStyle | HGS_COLMAP, 3, 2);
    StartColumnDrag(0, 0);
    Drag(130, 10);
    EXPECT_TRUE(ctl->wFlags & HGC_XORLINE);
    EXPECT_EQ(200, gGuideLine);
    Up(60, 10);
}

TEST_F(GridColumnMoves, ColumnDragScrollsByTheResolutionOfTheScreenAlone)
{
    const int kept = nDpiX;
    for (const int scaling : { 0, 1 }) {
        MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }, plainStyle | HGS_COLMAP), 3);
        StartColumnDrag(1, 1);
        SetGridAppDPIScaling(scaling);
        nDpiX = 144;
        Drag(390, 10);
        nDpiX = kept;
        EXPECT_EQ(30, +ctl->nHScrollPos) << scaling;
        Up(150, 10);
        DestroyWindow(grid);
    }
    SetGridAppDPIScaling(1);
}

TEST_F(GridColumnMoves, ColumnDragThatEndedWhileItScrolledShowsNoGuide)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }, plainStyle | HGS_COLMAP), 3);
    StartColumnDrag(1, 1);
    gGuideLine = -1;
    parent.On(HGN_HSCROLLED, [&] { Up(150, 10); });
    Drag(390, 10);
    parent.On(HGN_HSCROLLED, nullptr);
    EXPECT_EQ(1, parent.Count(HGN_HSCROLLED));
    EXPECT_FALSE(ctl->wFlags & (HGC_MOUSEDOWN | HGC_COLDRAG | HGC_XORLINE));
    EXPECT_EQ(-1, gGuideLine);
}

// The button came up over a window that had taken the mouse.
TEST_F(GridColumnMoves, PressAfterALostColumnDragMovesNoColumn)
{
    MakeCells(plainStyle | HGS_COLMAP);
    StartColumnDrag(0, 0);
    Down(310, 10);
    EXPECT_FALSE(ctl->wFlags & HGC_COLDRAG);
    Up(230, 10);
    EXPECT_EQ("ABCDE", Titles());
    EXPECT_EQ(0, parent.Count(HGN_COLSMOVED));
    EXPECT_CELL(3, -1);
}

} // namespace
