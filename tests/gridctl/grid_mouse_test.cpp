// The mouse on a grid: presses, drags of the selection, of columns and of sizes.
#include "gridctl/grid_window.h"

#include "foundation/screen.h"

namespace {

constexpr DWORD plainStyle = HGS_ROWHEADERS | HGS_COLHEADERS;

class GridMouse : public GridWindow {
protected:
    ~GridMouse() override
    {
        gSizeZone = 0;
        ReleaseCapture();
        ClipCursor(nullptr);
        SetKeys(0, 0);
    }
    void MakeCells(DWORD style = plainStyle, int rows = 30, WORD fixedCols = 0)
    {
        MakeGrid(GridOf({ Text(16, "A"), Text(16, "B"), Text(16, "C"), Text(16, "D"), Text(16, "E") }, style, fixedCols),
                 rows);
        MoveTo(0, 0);
        UpdateWindow(grid);
        seen.NotificationsOnly();
        seen.Clear();
        parent.ClearCounts();
    }
    // What GetKeyState tells of Shift and Ctrl.
    static void SetKeys(BYTE shift, BYTE ctrl)
    {
        BYTE keys[256] = {};
        keys[VK_SHIFT] = shift;
        keys[VK_CONTROL] = ctrl;
        SetKeyboardState(keys);
    }
    void Down(int x, int y) { Send(grid, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Drag(int x, int y) { Send(grid, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Up(int x, int y) { Send(grid, WM_LBUTTONUP, 0, MAKELPARAM(x, y)); }
    void ClickCell(int x, int y)
    {
        Down(x, y);
        Up(x, y);
    }
    Cell Anchor() { return UnpackCell(static_cast<DWORD>(Send(grid, HGM_GETANCHOR))); }
    std::string Titles()
    {
        std::string text;
        for (int col = 0; col < HGColCount(ctl->pData); ++col) {
            text += HGGetField(ctl->pData, col)->pszTitle;
        }
        return text;
    }
    // A drag of columns without its modal loop: as TimedScroll would find it.
    void StartColumnDrag(int lo, int hi)
    {
        MoveTo(lo, -1);
        Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(hi, -1)));
        ctl->wFlags |= HGC_MOUSEDOWN | HGC_COLDRAG;
    }
    // A size drag begins in the zone that the mouse was over.
    void StartSizeDrag(int zone)
    {
        gSizeZone = zone;
        Down(100, 50);
    }
    int WidthOf(int col) { return HGGetField(ctl->pData, col)->nWidth; }
};

constexpr BYTE pressed = 0x80;

#define EXPECT_CELL(c, r) EXPECT_EQ((Cell{ c, r }), Current())

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

// Columns

TEST_F(GridMouse, ShiftOnASelectedColumnStartsADragWhereColumnsCanBeMoved)
{
    for (const bool movable : { false, true }) {
        MakeCells(movable ? plainStyle | HGS_COLMAP : plainStyle);
        ClickCell(150, 10);
        SetKeys(pressed, 0);
        bool dragged = false;
        parent.OnMessage(WM_APP, [&](WPARAM, LPARAM) {
            dragged = (ctl->wFlags & HGC_COLDRAG) != 0;
            return 0;
        });
        PostMessageA(parent.hwnd(), WM_APP, 0, 0);
        PostMessageA(grid, WM_LBUTTONUP, 0, MAKELPARAM(150, 10));
        Down(150, 10);
        PumpPending();
        EXPECT_EQ(movable, dragged);
        EXPECT_FALSE(ctl->wFlags & (HGC_COLDRAG | HGC_MOUSEDOWN)) << "the drag is over";
        SetKeys(0, 0);
        DestroyWindow(grid);
    }
}

TEST_F(GridMouse, ShiftCountsAsItWasWhenTheButtonWentDown)
{
    MakeCells(plainStyle | HGS_COLMAP);
    ClickCell(150, 10);
    SetFocus(parent.hwnd());
    parent.ClearCounts();
    SetKeys(pressed, 0);
    parent.On(HGN_SETFOCUS, [&] { SetKeys(0, 0); });
    bool dragged = false;
    parent.OnMessage(WM_APP, [&](WPARAM, LPARAM) {
        dragged = (ctl->wFlags & HGC_COLDRAG) != 0;
        return 0;
    });
    PostMessageA(parent.hwnd(), WM_APP, 0, 0);
    PostMessageA(grid, WM_LBUTTONUP, 0, MAKELPARAM(150, 10));
    Down(150, 10);
    PumpPending();
    EXPECT_EQ(1, parent.Count(HGN_SETFOCUS));
    EXPECT_TRUE(dragged);
}

TEST_F(GridMouse, ShiftOnAColumnThatIsNotSelectedStartsNoDrag)
{
    MakeCells(plainStyle | HGS_COLMAP);
    ClickCell(150, 10);
    SetKeys(pressed, 0);
    ClickCell(310, 10);
    EXPECT_CELL(3, -1);
    EXPECT_EQ((Cell{ 1, -1 }), Anchor());
}

TEST_F(GridMouse, ColumnsAreDroppedWhereTheMouseIs)
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

TEST_F(GridMouse, DropInsideTheDraggedColumnsOnlyRefreshes)
{
    MakeCells(plainStyle | HGS_COLMAP);
    StartColumnDrag(1, 3);
    parent.ClearCounts();
    Up(230, 10);
    EXPECT_EQ("ABCDE", Titles());
    EXPECT_EQ(0, parent.Count(HGN_COLSMOVED));
    EXPECT_EQ(1, parent.Count(HGN_LAYOUT));
}

TEST_F(GridMouse, DropWithAllSelectedOnlyRefreshes)
{
    MakeCells(plainStyle | HGS_COLMAP);
    MoveTo(-1, -1);
    ctl->wFlags |= HGC_MOUSEDOWN | HGC_COLDRAG;
    Up(230, 10);
    EXPECT_EQ("ABCDE", Titles());
    EXPECT_EQ(0, parent.Count(HGN_COLSMOVED));
}

TEST_F(GridMouse, CellsKeepTheirValuesWhenTheirColumnIsDropped)
{
    MakeCells(plainStyle | HGS_COLMAP, 3);
    SetText(0, 1, "left");
    SetText(4, 1, "right");
    StartColumnDrag(0, 0);
    Up(310, 10);
    EXPECT_EQ("left", CellText(3, 1));
    EXPECT_EQ("right", CellText(4, 1));
}

TEST_F(GridMouse, DroppedColumnTakesTheBandOfItsTarget)
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

TEST_F(GridMouse, ColumnDroppedOnTheRowHeadersTakesTheBandByTheHeightOfTheMouse)
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

TEST_F(GridMouse, DropPointIsShownAsAGuideAtTheColumnsEdge)
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

TEST_F(GridMouse, ColumnDragScrollsAtTheEdges)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }, plainStyle | HGS_COLMAP), 3);
    StartColumnDrag(1, 1);
    Drag(390, 10);
    EXPECT_EQ(ScaleX(20), +ctl->nHScrollPos);
    Drag(45, 10);
    EXPECT_EQ(0, +ctl->nHScrollPos);
    Up(150, 10);
}

TEST_F(GridMouse, DragOfAFixedColumnShowsTheFixedOneItIsOver)
{
    MakeCells(plainStyle | HGS_COLMAP, 3, 2);
    StartColumnDrag(0, 0);
    Drag(130, 10);
    EXPECT_TRUE(ctl->wFlags & HGC_XORLINE);
    EXPECT_EQ(200, gGuideLine);
    Up(60, 10);
}

TEST_F(GridMouse, ColumnDragScrollsByTheResolutionOfTheScreenAlone)
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

TEST_F(GridMouse, ColumnDragThatEndedWhileItScrolledShowsNoGuide)
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
TEST_F(GridMouse, PressAfterALostColumnDragMovesNoColumn)
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

TEST_F(GridMouse, PressAfterALostDragRemovesItsGuide)
{
    MakeCells();
    StartSizeDrag(3);
    Drag(222, 50);
    ReleaseCapture();
    UpdateWindow(grid);
    StartSizeDrag(3);
    EXPECT_FALSE(ctl->wFlags & HGC_XORLINE);
    EXPECT_TRUE(IsInvalid());
    Up(222, 50);
}

TEST_F(GridMouse, SecondButtonLeavesTheGuideOfADrag)
{
    MakeCells();
    StartSizeDrag(3);
    Drag(222, 50);
    Send(grid, WM_RBUTTONDOWN, MK_LBUTTON | MK_RBUTTON, MAKELPARAM(222, 50));
    EXPECT_TRUE(ctl->wFlags & HGC_XORLINE);
    Up(222, 50);
}

// Sizes

TEST_F(GridMouse, ColumnWidthFollowsTheMouseWithinItsBounds)
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

TEST_F(GridMouse, WidthOfASelectedColumnIsThatOfAllSelectedOnes)
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

TEST_F(GridMouse, WidthOfAColumnOutsideTheSelectionIsItsOwn)
{
    MakeCells();
    MoveTo(3, -1);
    StartSizeDrag(3);
    Up(220, 50);
    EXPECT_EQ(100, WidthOf(1));
    EXPECT_EQ(80, WidthOf(3));
}

TEST_F(GridMouse, WithAllSelectedAWidthIsThatOfAllColumns)
{
    MakeCells();
    MoveTo(-1, -1);
    StartSizeDrag(3);
    Up(220, 50);
    for (int col = 0; col < 5; ++col) {
        EXPECT_EQ(100, WidthOf(col)) << "column " << col;
    }
}

TEST_F(GridMouse, RowHeaderGrowsByTheWayOfTheMouse)
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

TEST_F(GridMouse, RowHeightIsMeasuredFromTheTopOfItsRow)
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

TEST_F(GridMouse, BandsShareTheDragOfAHeight)
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

TEST_F(GridMouse, HeaderHeightGrowsByTheWayOfTheMouse)
{
    MakeCells();
    StartSizeDrag(-1);
    Up(20, 35);
    EXPECT_EQ(35, ctl->pData->nHdrHeight);
    StartSizeDrag(-1);
    Up(20, -100);
    EXPECT_EQ(0, ctl->pData->nHdrHeight);
}

TEST_F(GridMouse, SizeDragShowsAGuideAndConfinesTheMouse)
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

TEST_F(GridMouse, MouseIsConfinedToWhatTheDraggedSizeAllows)
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

TEST_F(GridMouse, SizeDragLeavesTheCurrentCell)
{
    MakeCells();
    StartSizeDrag(3);
    Drag(222, 50);
    EXPECT_CELL(0, 0);
    Up(222, 50);
    EXPECT_CELL(0, 0);
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

TEST_F(GridMouse, RealMouseSelectsByDragging)
{
    MakeCells();
    PressButton(grid, 150, 90);
    MoveMouse(grid, 230, 130);
    ReleaseButton(grid, 230, 130);
    EXPECT_CELL(2, 5);
    EXPECT_EQ((Cell{ 1, 3 }), Anchor());
}

} // namespace
