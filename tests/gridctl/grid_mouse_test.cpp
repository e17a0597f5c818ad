// The mouse on a grid: presses and drags of the selection; the keys of selected rows.
#include "gridctl/grid_mouse.h"

namespace {

TEST_F(GridMouse, ClickMovesToTheCellAndTakesTheFocus)
{
    MakeCells();
    SetFocus(parent.hwnd());
    Down(150, 90);
    EXPECT_CELL(1, 3);
    EXPECT_EQ(grid, GetFocus());
    EXPECT_EQ(grid, GetCapture());
    EXPECT_TRUE(ctl->wFlags & HGC_MOUSEDOWN);
    Up(150, 90);
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_FALSE(ctl->wFlags & HGC_MOUSEDOWN);
}

TEST_F(GridMouse, RightPressIsToldAndThenTakenAsAPress)
{
    MakeCells();
    constexpr Seen expected[] = { { 0, ToParent, HGN_RBUTTONDOWN }, { 0, ToParent, HGN_MOVING },
                                  { 0, ToParent, HGN_MOVED },       { 0, ToParent, HGN_ROWCHANGED } };
    SetFocus(grid);
    seen.Clear();
    Send(grid, WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(150, 90));
    EXPECT_SEEN(expected);
    Send(grid, WM_RBUTTONUP, 0, MAKELPARAM(150, 90));
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(GridMouse, DoubleClickIsToldAfterTheMove)
{
    MakeCells();
    constexpr Seen expected[] = { { 0, ToParent, HGN_MOVING },
                                  { 0, ToParent, HGN_MOVED },
                                  { 0, ToParent, HGN_ROWCHANGED },
                                  { 0, ToParent, HGN_DBLCLK } };
    Send(grid, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(150, 90));
    EXPECT_SEEN(expected);
    EXPECT_CELL(1, 3);
}

TEST_F(GridMouse, ClicksOnHeadersSelectWholeLines)
{
    MakeCells();
    struct Click {
        int  x;
        int  y;
        Cell cell;
    };
    for (const Click& click : { Click{ 150, 10, { 1, -1 } }, Click{ 20, 90, { -1, 3 } }, Click{ 20, 10, { -1, -1 } } }) {
        ClickCell(click.x, click.y);
        EXPECT_EQ(click.cell, Current());
        EXPECT_EQ(click.cell, Anchor());
        EXPECT_TRUE(ctl->wFlags & HGC_RANGE);
        EXPECT_EQ(nullptr, ctl->hEditor);
    }
}

TEST_F(GridMouse, ShiftClickExtendsFromTheAnchor)
{
    MakeCells();
    ClickCell(150, 90);
    SetKeys(pressed, 0);
    ClickCell(230, 130);
    EXPECT_CELL(2, 5);
    EXPECT_EQ((Cell{ 1, 3 }), Anchor());
}

TEST_F(GridMouse, ShiftClickOnAColumnHeaderExtendsToTheWholeColumn)
{
    MakeCells();
    ClickCell(150, 90);
    SetKeys(pressed, 0);
    ClickCell(230, 10);
    EXPECT_CELL(2, -1);
    EXPECT_EQ((Cell{ 1, 3 }), Anchor());
}

TEST_F(GridMouse, ShiftClickOnAColumnHeaderExtendsColumnsOnlyWhereTheAnchorIsOne)
{
    MakeCells();
    ClickCell(150, 10);
    SetKeys(pressed, 0);
    ClickCell(310, 90);
    EXPECT_CELL(3, -1);
    EXPECT_EQ((Cell{ 1, -1 }), Anchor());
}

TEST_F(GridMouse, DragExtendsTheSelection)
{
    MakeCells();
    Down(150, 90);
    Drag(230, 130);
    EXPECT_CELL(2, 5);
    EXPECT_EQ((Cell{ 1, 3 }), Anchor());
    Up(230, 130);
    Drag(310, 170);
    EXPECT_CELL(2, 5);
}

TEST_F(GridMouse, DragOverTheSameCellTellsNothing)
{
    MakeCells();
    Down(150, 90);
    seen.Clear();
    Drag(155, 92);
    EXPECT_NOTHING_SEEN();
    Up(155, 92);
}

TEST_F(GridMouse, DragOfARowStaysARow)
{
    MakeCells();
    Down(20, 90);
    Drag(200, 130);
    EXPECT_CELL(-1, 5);
    Up(200, 130);
}

TEST_F(GridMouse, DragOfAColumnStaysAColumn)
{
    MakeCells();
    Down(150, 10);
    Drag(230, 130);
    EXPECT_CELL(2, -1);
    Up(230, 130);
}

TEST_F(GridMouse, DragAboveThePageScrollsBackRowByRow)
{
    MakeCells();
    Send(grid, HGM_SETTOPRECORD, 5);
    Down(150, 90);
    Drag(150, 5);
    EXPECT_CELL(1, 4);
    EXPECT_EQ(4, ctl->nTopRow);
    Drag(150, 5);
    EXPECT_CELL(1, 3);
    Up(150, 5);
}

TEST_F(GridMouse, DragAboveTheFirstRowTakesTheWholeColumn)
{
    MakeCells();
    Down(150, 90);
    Drag(150, 5);
    EXPECT_CELL(1, -1);
    Up(150, 5);
}

TEST_F(GridMouse, DragLeftOfTheScrollingZoneGoesToTheColumnBeforeIt)
{
    MakeCells(plainStyle, 30, 1);
    Down(310, 90);
    Drag(60, 90);
    EXPECT_CELL(0, 3);
    Up(60, 90);
}

TEST_F(GridMouse, RowsAreSelectedOneByOneInMultiSelect)
{
    MakeCells(plainStyle | HGS_ROWSELECT);
    ClickCell(150, 90);
    SetKeys(0, pressed);
    ClickCell(150, 130);
    EXPECT_TRUE(HGIsRowSelected(ctl, 3));
    EXPECT_FALSE(HGIsRowSelected(ctl, 4));
    EXPECT_TRUE(HGIsRowSelected(ctl, 5));
    ClickCell(150, 130);
    EXPECT_FALSE(HGIsRowSelected(ctl, 5));
}

TEST_F(GridMouse, WithoutExtensionRowsAreSelectedOneAtATime)
{
    MakeCells(plainStyle | HGS_ROWSELECT | HGS_NOEXTEND);
    ClickCell(150, 90);
    SetKeys(0, pressed);
    ClickCell(150, 130);
    EXPECT_FALSE(HGIsRowSelected(ctl, 3));
    EXPECT_TRUE(HGIsRowSelected(ctl, 5));
}

TEST_F(GridMouse, ButtonThatCameUpWithoutGoingDownDoesNothing)
{
    MakeCells();
    gSizeZone = 3;
    Up(300, 50);
    EXPECT_EQ(80, WidthOf(1));
    gSizeZone = 0;
    Up(300, 50);
    EXPECT_NOTHING_SEEN();
}

TEST_F(GridMouse, RealMouseSelectsByDragging)
{
    MakeCells();
    PressButton(grid, 150, 90);
    MoveMouse(grid, 230, 130);
    ReleaseButton(grid, 230, 130);
    EXPECT_CELL(2, 5);
    EXPECT_EQ((Cell{ 1, 3 }), Anchor());
}

// Keys of the row headers

TEST_F(GridMouse, DeleteKeyDeletesTheSelectedRowsFromTheHighestDown)
{
    MakeCells(plainStyle | HGS_ROWDELETE, 10);
    ClickCell(20, 90);
    Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(-1, 5)));
    std::string rows;
    parent.On(HGN_ROWDELETING, [&] { rows += std::to_string(ctl->nPropRow) + " "; });
    Send(grid, WM_KEYDOWN, VK_DELETE);
    EXPECT_EQ("5 4 3 ", rows);
    EXPECT_EQ(7, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(7, Send(grid, HGM_GETTOTAL));
}

TEST_F(GridMouse, DeleteKeySkipsTheBlankEntryRow)
{
    MakeCells(plainStyle | HGS_ROWDELETE | HGS_NEWROW, 3);
    ASSERT_EQ(4, Send(grid, HGM_GETROWCOUNT));
    MoveTo(-1, 1);
    Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(-1, 3)));
    Send(grid, WM_KEYDOWN, VK_DELETE);
    EXPECT_EQ(2, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(HGR_NEW, RowFlags(1));
}

TEST_F(GridMouse, DeleteKeyNeedsStyleHeaderAndNoOtherKey)
{
    struct Case {
        const char* what;
        DWORD       style;
        int         col;
        BYTE        shift;
        BYTE        ctrl;
        int         left;
    };
    constexpr Case cases[] = {
        { "all given", HGS_ROWDELETE, -1, 0, 0, 4 },    { "no style", 0, -1, 0, 0, 5 },
        { "a cell", HGS_ROWDELETE, 1, 0, 0, 5 },        { "Shift", HGS_ROWDELETE, -1, pressed, 0, 5 },
        { "Ctrl", HGS_ROWDELETE, -1, 0, pressed, 5 },
    };
    for (const Case& c : cases) {
        MakeCells(plainStyle | c.style, 5);
        MoveTo(c.col, 2);
        SetKeys(c.shift, c.ctrl);
        Send(grid, WM_KEYDOWN, VK_DELETE);
        SetKeys(0, 0);
        EXPECT_EQ(c.left, Send(grid, HGM_GETROWCOUNT)) << c.what;
        DestroyWindow(grid);
    }
}

} // namespace
