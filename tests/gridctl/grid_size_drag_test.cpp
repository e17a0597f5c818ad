// Sizes dragged by the real mouse, from the pointer that shows a zone to the size that the button leaves.
#include "gridctl/grid_window.h"

#include "foundation/startup.h"
#include "support/import_hook.h"

#include <vector>

namespace {

constexpr DWORD headers = HGS_ROWHEADERS | HGS_COLHEADERS;
constexpr DWORD sizes = HGS_ROWSIZE | HGS_COLSIZE;

HCURSOR CursorOf(int id)
{
    return LoadCursorA(hInstance, MAKEINTRESOURCEA(id));
}

std::vector<HCURSOR> gDestroyed;

BOOL WINAPI NoteDestruction(HCURSOR cursor)
{
    gDestroyed.push_back(cursor);
    return TRUE;
}

class GridSizeDrag : public GridWindow {
protected:
    ~GridSizeDrag() override
    {
        MoveMouse(parent.hwnd(), 0, 0);
        gSizeZone = 0;
        ReleaseCapture();
        ClipCursor(nullptr);
    }
    void MakeCells(DWORD style = headers | sizes)
    {
        MakeGrid(GridOf({ Text(), Text(), Text() }, style), 30);
        UpdateWindow(grid);
        seen.NotificationsOnly();
        seen.Clear();
        parent.ClearCounts();
    }
    void DragFrom(POINT from, POINT to)
    {
        MoveMouse(grid, from.x, from.y);
        PressButton(grid, from.x, from.y);
        MoveMouse(grid, (from.x + to.x) / 2, (from.y + to.y) / 2);
        MoveMouse(grid, to.x, to.y);
        ReleaseButton(grid, to.x, to.y);
    }
    void ExpectZoneAndPointer(int zone, int cursor, const char* what)
    {
        EXPECT_EQ(zone, gSizeZone) << what;
        ASSERT_NE(nullptr, CursorOf(cursor)) << what;
        EXPECT_EQ(CursorOf(cursor), GetCursor()) << what;
    }
    int     WidthOf(int col) { return HGGetField(ctl->pData, col)->nWidth; }
    LRESULT AskCursor(int hitCode) { return Send(grid, WM_SETCURSOR, reinterpret_cast<WPARAM>(grid), hitCode); }
};

TEST_F(GridSizeDrag, PointersAreDestroyedWithTheLastGrid)
{
    MakeCells();
    const std::vector<HCURSOR> pointers = { CursorOf(4302), CursorOf(4303), CursorOf(4304) };
    const HWND                 first = grid;
    MakeCells();
    gDestroyed.clear();
    const ImportHook hook("DestroyCursor", NoteDestruction);
    DestroyWindow(first);
    EXPECT_TRUE(gDestroyed.empty());
    DestroyWindow(grid);
    EXPECT_EQ(pointers, gDestroyed);
}

TEST_F(GridSizeDrag, PointerShowsWhatWouldBeDragged)
{
    struct Place {
        const char* what;
        int         x;
        int         y;
        int         zone;
        int         cursor;
    };
    constexpr Place places[] = {
        { "a cell", 160, 90, 0, 4301 },         { "a row's edge", 20, 60, -3, 4302 },
        { "a cell", 161, 90, 0, 4301 },         { "a column's edge", 120, 8, 2, 4303 },
        { "a column header", 160, 8, 0, 4301 }, { "the header's edge", 20, 20, -1, 4302 },
        { "a row header", 20, 70, 0, 4301 },    { "the row headers' edge", 40, 8, 1, 4303 },
    };
    MakeCells();
    for (const Place& place : places) {
        MoveMouse(grid, place.x, place.y);
        ExpectZoneAndPointer(place.zone, place.cursor, place.what);
    }
}

TEST_F(GridSizeDrag, PointersDiffer)
{
    constexpr int first = 4301;
    constexpr int last = 4304;
    for (int id = first; id <= last; ++id) {
        EXPECT_NE(nullptr, CursorOf(id)) << id;
        for (int other = first; other < id; ++other) {
            EXPECT_NE(CursorOf(other), CursorOf(id)) << id;
        }
    }
}

TEST_F(GridSizeDrag, OnlyTheClientAreaIsLookedAt)
{
    MakeCells();
    MoveMouse(grid, 120, 8);
    ASSERT_EQ(2, gSizeZone);
    gSizeZone = 7;
    EXPECT_EQ(0, AskCursor(HTBORDER));
    EXPECT_EQ(7, gSizeZone);
    EXPECT_EQ(1, AskCursor(HTCLIENT));
    EXPECT_EQ(2, gSizeZone);
}

TEST_F(GridSizeDrag, PressedButtonKeepsTheZone)
{
    MakeCells();
    MoveMouse(grid, 120, 8);
    gSizeZone = 7;
    ctl->wFlags |= HGC_MOUSEDOWN;
    EXPECT_EQ(0, AskCursor(HTCLIENT));
    EXPECT_EQ(7, gSizeZone);
    SetFlag(ctl, HGC_MOUSEDOWN, false);
}

TEST_F(GridSizeDrag, MovingColumnsHasItsOwnPointer)
{
    MakeCells();
    MoveMouse(grid, 120, 8);
    ctl->wFlags |= HGC_MOUSEDOWN | HGC_COLDRAG;
    EXPECT_EQ(1, AskCursor(HTCLIENT));
    EXPECT_EQ(CursorOf(4304), GetCursor());
    SetCursor(nullptr);
    EXPECT_EQ(1, AskCursor(HTBORDER));
    EXPECT_EQ(CursorOf(4304), GetCursor());
    SetFlag(ctl, HGC_MOUSEDOWN | HGC_COLDRAG, false);
}

TEST_F(GridSizeDrag, PointersAreThereAsLongAsAGridIs)
{
    MakeCells();
    const HWND second = Create("HGrid", "", 0, 101, { 10, 220, 50, 50 });
    DestroyWindow(second);
    MoveMouse(grid, 120, 8);
    EXPECT_EQ(CursorOf(4303), GetCursor());
    DestroyWindow(grid);
    MakeCells();
    MoveMouse(grid, 121, 8);
    EXPECT_EQ(CursorOf(4303), GetCursor());
}

TEST_F(GridSizeDrag, ColumnIsAsWideAsTheMouseLeavesIt)
{
    MakeCells();
    DragFrom({ 200, 8 }, { 230, 8 });
    EXPECT_EQ(80, WidthOf(0));
    EXPECT_EQ(110, WidthOf(1));
    EXPECT_EQ(1, parent.Count(HGN_WIDTHCHANGED));
    EXPECT_EQ(0, parent.Count(HGN_HEIGHTCHANGED));
    DragFrom({ 230, 8 }, { 160, 8 });
    EXPECT_EQ(40, WidthOf(1));
}

TEST_F(GridSizeDrag, MouseLeavesAColumnSomeWidth)
{
    MakeCells();
    DragFrom({ 200, 8 }, { 60, 8 });
    EXPECT_EQ(15, WidthOf(1));
}

TEST_F(GridSizeDrag, RowsAreAsHighAsTheMouseLeavesThem)
{
    MakeCells();
    DragFrom({ 20, 80 }, { 20, 98 });
    EXPECT_EQ(39, ctl->pData->nRowHeight);
    EXPECT_EQ(1, parent.Count(HGN_HEIGHTCHANGED));
    EXPECT_EQ(0, parent.Count(HGN_WIDTHCHANGED));
}

TEST_F(GridSizeDrag, RowsOfSeveralBandsShareTheWayOfTheMouse)
{
    MakeCells();
    Send(grid, HGM_SETBANDS, 0, 2);
    Send(grid, HGM_REFRESH, 1);
    DragFrom({ 20, 80 }, { 20, 99 }); // the bottom of the first record
    EXPECT_EQ(30, ctl->pData->nRowHeight);
    DragFrom({ 20, 40 }, { 20, 51 });
    EXPECT_EQ(25, ctl->pData->nHdrHeight);
}

TEST_F(GridSizeDrag, HeaderStripsGrowByTheWayOfTheMouse)
{
    MakeCells();
    DragFrom({ 20, 20 }, { 20, 32 });
    EXPECT_EQ(32, ctl->pData->nHdrHeight);
    EXPECT_EQ(20, ctl->pData->nRowHeight);
    DragFrom({ 40, 8 }, { 58, 8 });
    EXPECT_EQ(58, ctl->pData->nHdrWidth);
    EXPECT_EQ(80, WidthOf(0));
}

TEST_F(GridSizeDrag, EditorFollowsItsCell)
{
    MakeCells();
    SetFocus(grid);
    MoveTo(1, 1);
    DragFrom({ 120, 8 }, { 150, 8 });
    RECT rect = {};
    GetWindowRect(ctl->hEditor, &rect);
    MapWindowPoints(nullptr, grid, reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_EQ(150, rect.left);
    EXPECT_EQ(150 + 79, rect.right);
    EXPECT_TRUE(IsWindowVisible(ctl->hEditor));
}

TEST_F(GridSizeDrag, EditGoesOnBesideTheDrag)
{
    MakeCells();
    SetFocus(grid);
    MoveTo(0, 1);
    TypeText("typed");
    ASSERT_EQ(ctl->hEditor, GetFocus());
    DragFrom({ 200, 8 }, { 230, 8 });
    EXPECT_EQ(110, WidthOf(1));
    TypeKey(VK_RETURN);
    EXPECT_EQ("typed", CellText(0, 1));
}

TEST_F(GridSizeDrag, MouseIsFreeAgainAfterwards)
{
    MakeCells();
    RECT before = {};
    GetClipCursor(&before);
    DragFrom({ 200, 8 }, { 230, 8 });
    RECT after = {};
    GetClipCursor(&after);
    EXPECT_TRUE(EqualRect(&before, &after));
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_FALSE(ctl->wFlags & (HGC_MOUSEDOWN | HGC_XORLINE));
}

TEST_F(GridSizeDrag, HostThatDestroysTheGridWhenToldEndsTheDrag)
{
    for (const int code : { HGN_WIDTHCHANGED, HGN_LAYOUT }) {
        MakeCells();
        MoveMouse(grid, 200, 8);
        PressButton(grid, 200, 8);
        MoveMouse(grid, 230, 8);
        parent.On(code, [&] { DestroyWindow(grid); });
        ReleaseButton(grid, 230, 8);
        parent.On(code, nullptr);
        EXPECT_FALSE(IsWindow(grid)) << code;
    }
}

TEST_F(GridSizeDrag, GridThatGoesInTheMiddleOfADragFreesTheMouse)
{
    RECT before = {};
    GetClipCursor(&before);
    for (const bool moved : { false, true }) {
        MakeCells();
        MoveMouse(grid, 200, 8);
        PressButton(grid, 200, 8);
        if (moved) {
            MoveMouse(grid, 230, 8);
        }
        RECT confined = {};
        GetClipCursor(&confined);
        ASSERT_FALSE(EqualRect(&before, &confined)) << moved;
        DestroyWindow(grid);
        RECT after = {};
        GetClipCursor(&after);
        EXPECT_TRUE(EqualRect(&before, &after)) << moved;
        EXPECT_EQ(0, gSizeZone) << moved;
        ReleaseButton(parent.hwnd(), 5, 5);
    }
}

} // namespace
