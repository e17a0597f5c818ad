// The focus between the grid, its editor and the rest of the screen.
#include "gridctl/grid_window.h"

#include "foundation/startup.h"

namespace {

class GridFocus : public GridWindow {};

TEST_F(GridFocus, FirstFocusMakesTheFirstCellCurrent)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetFlag(ctl, HGC_CELLSHOWN, false);
    seen.NotificationsOnly();
    SetFocus(grid);
    EXPECT_TRUE(ctl->wFlags & HGC_CELLSHOWN);
    EXPECT_EQ(1, parent.Count(HGN_SETFOCUS));
    EXPECT_TRUE(IsWindowVisible(ctl->hEditor));
}

TEST_F(GridFocus, LosingTheFocusHidesTheEditor)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetFocus(grid);
    MoveTo(0, 1);
    SetFocus(parent.hwnd());
    EXPECT_FALSE(IsWindowVisible(ctl->hEditor));
    EXPECT_EQ(1, parent.Count(HGN_KILLFOCUS));
    SetFocus(grid);
    EXPECT_TRUE(IsWindowVisible(ctl->hEditor));
}

TEST_F(GridFocus, KeptSelectionKeepsTheEditorToo)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_KEEPSEL), 2);
    SetFocus(grid);
    MoveTo(0, 1);
    SetFocus(parent.hwnd());
    EXPECT_TRUE(IsWindowVisible(ctl->hEditor));
    EXPECT_EQ(1, parent.Count(HGN_KILLFOCUS));
}

TEST_F(GridFocus, FocusGoingToTheChildIsNoLoss)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetFocus(grid);
    MoveTo(0, 1);
    parent.ClearCounts();
    SetFocus(ctl->hEditor);
    EXPECT_TRUE(ctl->wFlags & HGC_INEDIT);
    EXPECT_EQ(0, parent.Count(HGN_KILLFOCUS));
    EXPECT_EQ(1, parent.Count(HGN_EDITFOCUS));
    SetFocus(grid);
    EXPECT_FALSE(ctl->wFlags & HGC_INEDIT);
    EXPECT_EQ(1, parent.Count(HGN_EDITBLUR));
    EXPECT_EQ(0, parent.Count(HGN_SETFOCUS));
}

TEST_F(GridFocus, LeavingTheChildForElsewhereLosesTheFocus)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetFocus(grid);
    MoveTo(0, 1);
    SetFocus(ctl->hEditor);
    parent.ClearCounts();
    SetFocus(parent.hwnd());
    EXPECT_EQ(1, parent.Count(HGN_KILLFOCUS));
    EXPECT_EQ(1, parent.Count(HGN_EDITBLUR));
    EXPECT_FALSE(IsWindowVisible(ctl->hEditor));
}

TEST_F(GridFocus, FocusComingBackDuringAnEditGoesToTheChild)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetFocus(grid);
    MoveTo(0, 1);
    SetFocus(ctl->hEditor);
    SetFocus(parent.hwnd());
    SetFocus(grid);
    EXPECT_EQ(ctl->hEditor, GetFocus());
    EXPECT_TRUE(ctl->wFlags & HGC_INEDIT);
}

TEST_F(GridFocus, HeadersAreRepaintedOnlyWithASelectBrush)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_KEEPSEL), 2);
    SetFocus(grid);
    MoveTo(0, 1);
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    SetFocus(parent.hwnd());
    EXPECT_FALSE(IsInvalid());
    SetGridSelectColor(RGB(0, 128, 0));
    SetFocus(grid);
    RECT invalid = {};
    EXPECT_TRUE(GetUpdateRect(grid, &invalid, FALSE));
    EXPECT_EQ(0, invalid.top);
    SetGridSelectColor(0xFFFFFFFF);
}

TEST_F(GridFocus, ParentMayDestroyTheGridInAFocusNotification)
{
    constexpr int codes[] = { HGN_SETFOCUS, HGN_KILLFOCUS, HGN_EDITFOCUS, HGN_EDITBLUR };
    for (const int code : codes) {
        MakeGrid(GridOf({ Text() }), 2);
        MoveTo(0, 1);
        parent.On(code, [&] { DestroyWindow(grid); });
        SetFocus(grid);
        if (IsWindow(grid) && IsWindow(ctl->hEditor)) {
            SetFocus(ctl->hEditor);
        }
        SetFocus(parent.hwnd());
        EXPECT_FALSE(IsWindow(grid)) << code;
        parent.On(code, nullptr);
    }
}

// A host that takes the focus away, or gives it, while it is told of a move.
TEST_F(GridFocus, FocusTakenWhileAMoveIsToldLeavesNoEditor)
{
    for (const int code : { HGN_MOVING, HGN_MOVED, HGN_ROWCHANGED }) {
        SCOPED_TRACE(code);
        MakeGrid(GridOf({ Text(), Text() }), 3);
        SetFocus(grid);
        MoveTo(0, 0);
        parent.On(code, [&] { SetFocus(parent.hwnd()); });
        MoveTo(1, 2);
        parent.On(code, nullptr);
        EXPECT_FALSE(IsWindowVisible(ctl->hEditor));
        EXPECT_FALSE(ctl->wFlags & HGC_EDITORSHOWN);
        SetFocus(grid);
        EXPECT_TRUE(IsWindowVisible(ctl->hEditor));
        DestroyWindow(grid);
    }
}

TEST_F(GridFocus, FocusGivenWhileAMoveIsToldShowsTheNewCellsEditor)
{
    MakeGrid(GridOf({ Text(), Text() }), 3);
    SetFocus(grid);
    MoveTo(0, 0);
    SetFocus(parent.hwnd());
    parent.On(HGN_MOVED, [&] { SetFocus(grid); });
    MoveTo(1, 2);
    EXPECT_TRUE(IsWindowVisible(ctl->hEditor));
    EXPECT_EQ(HGGetField(ctl->pData, 1)->pCtl->hWnd, ctl->hEditor);
}

} // namespace
