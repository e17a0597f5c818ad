// Sizes as the messages of the mouse leave them, with the guide and the bounds of a drag.
#include "gridctl/grid_mouse.h"

namespace {

class GridSizeMoves : public GridMouse {
protected:
    // A size drag begins in the zone that the mouse was over.
    void StartSizeDrag(int zone)
    {
        gSizeZone = zone;
        Down(100, 50);
    }
};

TEST_F(GridSizeMoves, ColumnWidthFollowsTheMouseWithinItsBounds)
{
    struct Case {
        int x;
        int width;
    };
    constexpr Case cases[] = { { 220, 100 }, { 130, 10 }, { 121, 2 }, { 50, 2 }, { -300, 2 }, { 3000, 2000 } };
    for (const Case& c : cases) {
        MakeCells();
        StartSizeDrag(3);
        Up(c.x, 50);
        EXPECT_EQ(c.width, WidthOf(1)) << "dropped at " << c.x;
        EXPECT_EQ(80, WidthOf(0));
        EXPECT_EQ(1, parent.Count(HGN_WIDTHCHANGED));
        DestroyWindow(grid);
    }
}

TEST_F(GridSizeMoves, WidthOfASelectedColumnIsThatOfAllSelectedOnes)
{
    MakeCells();
    MoveTo(1, -1);
    Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(3, -1)));
    StartSizeDrag(3);
    Up(220, 50);
    EXPECT_EQ(80, WidthOf(0));
    EXPECT_EQ(100, WidthOf(1));
    EXPECT_EQ(100, WidthOf(2));
    EXPECT_EQ(100, WidthOf(3));
    EXPECT_EQ(80, WidthOf(4));
}

TEST_F(GridSizeMoves, WidthOfAColumnOutsideTheSelectionIsItsOwn)
{
    MakeCells();
    MoveTo(3, -1);
    StartSizeDrag(3);
    Up(220, 50);
    EXPECT_EQ(100, WidthOf(1));
    EXPECT_EQ(80, WidthOf(3));
}

TEST_F(GridSizeMoves, WithAllSelectedAWidthIsThatOfAllColumns)
{
    MakeCells();
    MoveTo(-1, -1);
    StartSizeDrag(3);
    Up(220, 50);
    for (int col = 0; col < 5; ++col) {
        EXPECT_EQ(100, WidthOf(col)) << "column " << col;
    }
}

TEST_F(GridSizeMoves, RowHeaderGrowsByTheWayOfTheMouse)
{
    MakeCells();
    StartSizeDrag(1);
    Up(55, 50);
    EXPECT_EQ(55, ctl->pData->nHdrWidth);
    EXPECT_EQ(1, parent.Count(HGN_WIDTHCHANGED));
    StartSizeDrag(1);
    Up(-90, 50);
    EXPECT_EQ(0, ctl->pData->nHdrWidth);
}

TEST_F(GridSizeMoves, RowHeightIsMeasuredFromTheTopOfItsRow)
{
    struct Case {
        int zone;
        int top;
        int y;
        int height;
    };
    constexpr Case cases[] = {
        { -2, 0, 20 + 30, 31 },      // row 0
        { -4, 0, 20 + 40 + 30, 31 }, // row 2
        { -7, 3, 20 + 40 + 30, 31 }, // row 5, with row 3 on top
        { -4, 0, 20, 1 },            // above its own top
        { -2, 0, 5000, 2000 },
    };
    for (const Case& c : cases) {
        MakeCells();
        Send(grid, HGM_SETTOPRECORD, static_cast<WPARAM>(c.top));
        StartSizeDrag(c.zone);
        Up(20, c.y);
        EXPECT_EQ(c.height, ctl->pData->nRowHeight) << "zone " << c.zone << ", y " << c.y;
        EXPECT_EQ(1, parent.Count(HGN_HEIGHTCHANGED));
        DestroyWindow(grid);
    }
}

TEST_F(GridSizeMoves, BandsShareTheDragOfAHeight)
{
    MakeCells();
    Send(grid, HGM_SETBANDS, 0, 2);
    Send(grid, HGM_REFRESH, 1);
    StartSizeDrag(-2);
    Up(20, 40 + 60);
    EXPECT_EQ(31, ctl->pData->nRowHeight);
    StartSizeDrag(-1);
    Up(20, 40 + 10);
    EXPECT_EQ(25, ctl->pData->nHdrHeight);
}

TEST_F(GridSizeMoves, HeaderHeightGrowsByTheWayOfTheMouse)
{
    MakeCells();
    StartSizeDrag(-1);
    Up(20, 35);
    EXPECT_EQ(35, ctl->pData->nHdrHeight);
    StartSizeDrag(-1);
    Up(20, -100);
    EXPECT_EQ(0, ctl->pData->nHdrHeight);
}

TEST_F(GridSizeMoves, SizeDragShowsAGuideAndConfinesTheMouse)
{
    MakeCells();
    ctl->pData->nMinRowHeight = 12;
    StartSizeDrag(3);
    RECT clip;
    GetClipCursor(&clip);
    MapWindowPoints(nullptr, grid, reinterpret_cast<POINT*>(&clip), 2);
    EXPECT_EQ(120 + 15, clip.left);
    EXPECT_EQ(400, clip.right);
    EXPECT_EQ(200, clip.bottom);
    Drag(222, 50);
    EXPECT_TRUE(ctl->wFlags & HGC_XORLINE);
    EXPECT_EQ(222, gGuideLine);
    Up(222, 50);
    EXPECT_FALSE(ctl->wFlags & HGC_XORLINE);
    StartSizeDrag(-3);
    GetClipCursor(&clip);
    MapWindowPoints(nullptr, grid, reinterpret_cast<POINT*>(&clip), 2);
    EXPECT_EQ(20 + 20 + 12, clip.top);
    Drag(222, 77);
    EXPECT_EQ(77, gGuideLine);
    Up(222, 77);
}

TEST_F(GridSizeMoves, MouseIsConfinedToWhatTheDraggedSizeAllows)
{
    struct Zone {
        int  zone;
        int  bands;
        RECT limits; // in the client area; -1: as far as the window reaches
    };
    // Rows are at least 12 high. Column headers begin at the top, cells below two header bands at 40.
    constexpr Zone zones[] = {
        { -1, 1, { 0, 12 - 3, 400, 200 } },
        { -1, 2, { 0, 2 * (12 - 3), 400, 200 } },
        { -2, 1, { 0, 20 + 12, 400, 200 } },
        { -3, 2, { 0, 40 + 40 + 2 * 12, 400, 200 } },
        { 1, 1, { 0 + 15, 0, 400, 200 } },
        { 2, 1, { 40 + 15, 0, 400, 200 } },
        { 4, 1, { 200 + 15, 0, 400, 200 } },
    };
    for (const Zone& row : zones) {
        MakeCells();
        Send(grid, HGM_SETBANDS, 0, row.bands);
        Send(grid, HGM_REFRESH, 1);
        ctl->pData->nMinRowHeight = 12;
        StartSizeDrag(row.zone);
        RECT clip = {};
        GetClipCursor(&clip);
        MapWindowPoints(nullptr, grid, reinterpret_cast<POINT*>(&clip), 2);
        EXPECT_TRUE(EqualRect(&row.limits, &clip))
            << "zone " << row.zone << ", bands " << row.bands << ": " << clip.left << ", " << clip.top << ", "
            << clip.right << ", " << clip.bottom;
        Up(300, 150);
        DestroyWindow(grid);
    }
}

TEST_F(GridSizeMoves, SizeDragLeavesTheCurrentCell)
{
    MakeCells();
    StartSizeDrag(3);
    Drag(222, 50);
    EXPECT_CELL(0, 0);
    Up(222, 50);
    EXPECT_CELL(0, 0);
}

// The button comes up elsewhere: nothing would set the mouse free, or remove the guide.
TEST_F(GridSizeMoves, DragThatLosesTheMouseEndsAndSetsItFree)
{
    for (const bool toAnother : { false, true }) {
        for (const bool unfocused : { false, true }) {
            SCOPED_TRACE(testing::Message() << "to another " << toAnother << ", unfocused " << unfocused);
            MakeCells();
            RECT free;
            GetClipCursor(&free);
            SetFocus(grid);
            StartSizeDrag(3);
            Drag(222, 50);
            if (unfocused) {
                SetFocus(parent.hwnd());
            }
            UpdateWindow(grid);
            toAnother ? SetCapture(parent.hwnd()) != nullptr : ReleaseCapture() != 0;
            RECT clip;
            GetClipCursor(&clip);
            EXPECT_TRUE(EqualRect(&free, &clip));
            EXPECT_FALSE(ctl->wFlags & (HGC_XORLINE | HGC_MOUSEDOWN));
            EXPECT_TRUE(IsInvalid());
            UpdateWindow(grid);
            Drag(250, 50);
            EXPECT_FALSE(ctl->wFlags & HGC_XORLINE);
            Down(130, 90);
            EXPECT_CELL(1, 3);
            Up(130, 90);
            EXPECT_EQ(80, WidthOf(1));
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridSizeMoves, SelectionNoLongerFollowsAMouseThatAnotherWindowHasTaken)
{
    MakeCells();
    Down(130, 90);
    Drag(130, 110);
    SetCapture(parent.hwnd());
    Drag(130, 150);
    EXPECT_CELL(1, 4);
}

TEST_F(GridSizeMoves, SecondButtonLeavesTheGuideOfADrag)
{
    MakeCells();
    StartSizeDrag(3);
    Drag(222, 50);
    Send(grid, WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, MAKELPARAM(222, 50));
    EXPECT_TRUE(ctl->wFlags & HGC_XORLINE);
    Up(222, 50);
}

} // namespace
