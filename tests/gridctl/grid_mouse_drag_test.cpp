// Real drags out of the window, and presses that a refused value keeps from moving.
#include "gridctl/grid_editing.h"

namespace {

constexpr int outside = 60; // pixels beyond the edge, where the loop doesn't wait between its moves

void LiftButton()
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = MOUSEEVENTF_LEFTUP;
    SendInput(1, &input, sizeof input);
}

constexpr UINT_PTR takeFocus = 1;
constexpr UINT_PTR liftButton = 2;
constexpr UINT_PTR takeMouse = 3;
bool gWasDragging; // when the button came up

void CALLBACK OnTimer(HWND grid, UINT, UINT_PTR id, DWORD)
{
    KillTimer(grid, id);
    if (id == takeFocus) {
        SetFocus(GetParent(grid));
        return;
    }
    if (id == takeMouse) {
        SetCapture(GetParent(grid));
    }
    gWasDragging = (SendMessageA(grid, HGM_GETFLAGS, 0, 0) & HGC_COLDRAG) != 0;
    LiftButton();
}

class GridMouseDrag : public GridEditing {
protected:
    ~GridMouseDrag() override
    {
        LiftButton();
        PumpPending();
        ReleaseCapture();
    }
    void MakeCells(DWORD style = HGS_ROWHEADERS | HGS_COLHEADERS)
    {
        MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }, style), 60);
        StandOn(0, 0);
        UpdateWindow(grid);
        Forget();
    }
    // The loop of a drag outside doesn't come back before its end: what ends it has to be told of inside.
    void When(int code, std::function<bool()> condition, std::function<void()> deed)
    {
        parent.On(code, [this, code, condition, deed] {
            if (condition()) {
                parent.On(code, nullptr);
                deed();
            }
        });
    }
    void ExpectDragIsOver()
    {
        EXPECT_FALSE(IsFlag(HGC_MOUSEDOWN));
        EXPECT_EQ(nullptr, GetCapture());
    }
};

TEST_F(GridMouseDrag, SelectionDraggedBelowTheWindowScrollsWhileTheMouseStandsStill)
{
    MakeCells();
    PressButton(grid, 150, 90);
    When(HGN_MOVED, [&] { return Current().row >= 40; }, LiftButton);
    MoveMouse(grid, 150, 200 + outside);
    EXPECT_GE(Current().row, 40);
    EXPECT_EQ((Cell{ 1, 3 }), Anchor());
    EXPECT_GT(+ctl->nTopRow, 20);
    ExpectDragIsOver();
}

TEST_F(GridMouseDrag, SelectionDraggedBesideTheWindowScrollsAcross)
{
    MakeCells();
    PressButton(grid, 150, 90);
    When(HGN_MOVED, [&] { return Current().col >= 7; }, LiftButton);
    MoveMouse(grid, 400 + outside, 90);
    EXPECT_EQ((Cell{ 7, 3 }), Current());
    EXPECT_GT(+ctl->nHScrollPos, 0);
    ExpectDragIsOver();
}

TEST_F(GridMouseDrag, RowsDraggedBelowTheWindowScroll)
{
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HGS_ROWSELECT } }) {
        MakeCells(HGS_ROWHEADERS | HGS_COLHEADERS | style);
        PressButton(grid, 20, 90);
        When(HGN_MOVED, [&] { return Current().row >= 40; }, LiftButton);
        MoveMouse(grid, 20, 200 + outside);
        EXPECT_EQ(-1, Current().col);
        EXPECT_GE(Current().row, 40);
        EXPECT_EQ((Cell{ -1, 3 }), Anchor());
        ExpectDragIsOver();
        DestroyWindow(grid);
    }
}

TEST_F(GridMouseDrag, LoopEndsWhenTheHostsOwnLoopTookTheButton)
{
    MakeCells();
    PressButton(grid, 150, 90);
    When(HGN_MOVED, [&] { return Current().row >= 20; }, [&] {
        LiftButton();
        PumpPending();
    });
    MoveMouse(grid, 150, 200 + outside);
    PumpPending();
    ExpectDragIsOver();
}

TEST_F(GridMouseDrag, LoopEndsWithTheGrid)
{
    MakeCells();
    PressButton(grid, 150, 90);
    When(HGN_MOVED, [&] { return Current().row >= 20; }, [&] { DestroyWindow(grid); });
    MoveMouse(grid, 150, 200 + outside);
    EXPECT_FALSE(IsWindow(grid));
}

TEST_F(GridMouseDrag, LoopEndsWhereTheParentTurnsTheMoveRound)
{
    MakeCells();
    PressButton(grid, 150, 90);
    When(HGN_EXTENDING, [&] { return Current().row >= 20; },
         [&] { Send(grid, HGM_SETPROPOSED, 0, static_cast<LPARAM>(PackCell(Current().col, Current().row))); });
    MoveMouse(grid, 150, 200 + outside);
    PumpPending();
    ExpectDragIsOver();
}

TEST_F(GridMouseDrag, MovesWithoutARealButtonStartNoLoop)
{
    MakeCells();
    Send(grid, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(150, 90));
    const int page = ctl->cPageRows;
    Send(grid, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(150, 200 + outside));
    EXPECT_GE(Current().row, page - 1) << "one move is one step";
    EXPECT_LT(Current().row, 2 * page);
    EXPECT_TRUE(IsFlag(HGC_MOUSEDOWN));
    Send(grid, WM_LBUTTONUP, 0, MAKELPARAM(150, 260));
    ExpectDragIsOver();
}

TEST_F(GridMouseDrag, ShiftOnTheCornerOfASelectedGridStartsADragThatOnlyRefreshes)
{
    MakeCells(HGS_ROWHEADERS | HGS_COLHEADERS | HGS_COLMAP);
    MoveTo(-1, -1);
    bool dragged = false;
    parent.OnMessage(WM_APP, [&](WPARAM, LPARAM) {
        dragged = IsFlag(HGC_COLDRAG);
        return 0;
    });
    BYTE keys[256] = {};
    keys[VK_SHIFT] = 0x80;
    SetKeyboardState(keys);
    PostMessageA(parent.hwnd(), WM_APP, 0, 0);
    PostMessageA(grid, WM_LBUTTONUP, 0, MAKELPARAM(20, 10));
    Send(grid, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 10));
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys);
    EXPECT_TRUE(dragged);
    EXPECT_EQ(0, parent.Count(HGN_COLSMOVED));
    ExpectDragIsOver();
}

// A refused value

class GridRefusedPress : public GridMouseDrag {
protected:
    void MakeTyped()
    {
        MakeCells();
        SetText(1, 3, "old");
        TypeInto(1, 3, "typed");
    }
    void ExpectStillThere()
    {
        EXPECT_EQ((Cell{ 1, 3 }), Current());
        EXPECT_EQ("typed", TextOf(Editor()));
        EXPECT_EQ(grid, GetFocus());
        EXPECT_TRUE(IsFlag(CF_CANCEL));
        EXPECT_EQ(0, parent.Count(HGN_MOVING));
        ExpectDragIsOver();
    }
};

TEST_F(GridRefusedPress, KeepsTheCellAndWhatWasTyped)
{
    MakeTyped();
    RefuseWrites();
    ClickAt(grid, 230, 130);
    ExpectStillThere();
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
}

TEST_F(GridRefusedPress, DragsNothing)
{
    MakeTyped();
    RefuseWrites();
    PressButton(grid, 230, 130);
    MoveMouse(grid, 230, 150);
    ExpectStillThere();
    ReleaseButton(grid, 230, 150);
    ExpectStillThere();
}

TEST_F(GridRefusedPress, OfASourceKeepsTheCellAndWhatWasTyped)
{
    MakeSourceGrid();
    TypeInto(0, 2, "7");
    source.onCall = [](int operation, int) { return operation == HGSRC_CELL; };
    source.answer = 1;
    ClickAt(grid, 60, 130);
    EXPECT_EQ((Cell{ 0, 2 }), Current());
    EXPECT_EQ("7", TextOf(Editor()));
    EXPECT_EQ("1002", CellText(0, 2));
    ExpectDragIsOver();
}

TEST_F(GridRefusedPress, DoubleClickIsNotTold)
{
    MakeTyped();
    RefuseWrites();
    Send(grid, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(230, 130));
    ExpectStillThere();
    EXPECT_EQ(0, parent.Count(HGN_DBLCLK));
}

TEST_F(GridRefusedPress, AcceptedValueLetsThePressMoveOn)
{
    MakeTyped();
    ClickAt(grid, 230, 130);
    EXPECT_EQ((Cell{ 2, 5 }), Current());
    EXPECT_EQ("typed", CellText(1, 3));
}

TEST_F(GridMouseDrag, PressAfterAnEditThatWasLeftForElsewhereDrags)
{
    MakeCells();
    TypeInto(0, 0, "typed");
    const HWND other = Create("HEdit", "", 0, 200, { 10, 230, 80, 20 });
    SetFocus(other);
    EXPECT_EQ("typed", CellText(0, 0));
    Forget();
    PressButton(grid, 150, 90);
    EXPECT_TRUE(IsFlag(HGC_MOUSEDOWN));
    EXPECT_EQ(0, parent.Count(HGN_EDITFOCUS));
    MoveMouse(grid, 250, 130);
    ReleaseButton(grid, 250, 130);
    EXPECT_EQ((Cell{ 1, 3 }), Anchor());
    EXPECT_EQ((Cell{ 2, 5 }), Current());
    ExpectDragIsOver();
}

TEST_F(GridMouseDrag, ColumnDragGoesOnWithoutTheFocus)
{
    MakeCells(HGS_ROWHEADERS | HGS_COLHEADERS | HGS_COLMAP);
    ClickAt(grid, 60, 10);
    Forget();
    // The loop of the drag runs inside the press.
    gWasDragging = false;
    SetTimer(grid, takeFocus, 50, OnTimer);
    SetTimer(grid, liftButton, 700, OnTimer);
    PressButton(grid, 60, 10, withShift);
    ReleaseKey(VK_SHIFT);
    EXPECT_TRUE(gWasDragging);
    ExpectDragIsOver();
}

// Another window that takes the mouse meanwhile gets the button's end.
TEST_F(GridMouseDrag, ColumnDragIsOverWhenTheButtonComesUpForAnotherWindow)
{
    MakeCells(HGS_ROWHEADERS | HGS_COLHEADERS | HGS_COLMAP);
    ClickAt(grid, 60, 10);
    Forget();
    gWasDragging = false;
    SetTimer(grid, takeMouse, 700, OnTimer);
    PressButton(grid, 60, 10, withShift);
    ReleaseKey(VK_SHIFT);
    ReleaseCapture();
    EXPECT_TRUE(gWasDragging);
    EXPECT_FALSE(IsFlag(HGC_COLDRAG | HGC_XORLINE));
    EXPECT_EQ(0, parent.Count(HGN_COLSMOVED));
    ExpectDragIsOver();
}

TEST_F(GridMouseDrag, SelectionDragIsOverWhenTheButtonComesUpForAnotherWindow)
{
    MakeCells();
    PressButton(grid, 150, 90);
    When(HGN_MOVED, [&] { return Current().row >= 20; }, [&] {
        SetCapture(parent.hwnd());
        LiftButton();
    });
    MoveMouse(grid, 150, 200 + outside);
    ReleaseCapture();
    ExpectDragIsOver();
}

// A source's rows above those that are loaded

class GridSourceDrag : public GridEditing {
protected:
    ~GridSourceDrag() override { ReleaseCapture(); }
    void PressFarDown()
    {
        MakeSourceGrid();
        Send(grid, HGM_SETTOPRECORD, 500);
        Send(grid, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 90));
        top = TopRecord();
        ASSERT_EQ(500, top);
        ASSERT_EQ(503, CurrentRecord());
        ASSERT_GT(+ctl->lRowBase, 0);
        Forget();
    }
    void DragAbove() { Send(grid, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(60, 5)); }

    LONG top = 0;
};

TEST_F(GridSourceDrag, AboveThePageTheSelectionGoesBackThroughTheRecords)
{
    PressFarDown();
    for (int i = 0; i < 30; ++i) {
        const LONG before = TopRecord();
        DragAbove();
        ASSERT_LT(CurrentRecord(), before);
        ASSERT_GE(CurrentRecord(), before - 2);
        ASSERT_EQ(CurrentRecord(), TopRecord());
        ASSERT_EQ(0, Current().col) << "no whole column is selected";
    }
    ExpectRowsAreRecords();
}

TEST_F(GridSourceDrag, HostMayEndTheGridWhenTheViewGoesBack)
{
    PressFarDown();
    parent.On(HGN_VSCROLLED, [&] { DestroyWindow(grid); });
    DragAbove();
    parent.On(HGN_VSCROLLED, nullptr);
    EXPECT_FALSE(IsWindow(grid));
}

// Ten of the twenty pixels of row 9 show below the headers and nine rows.
TEST_F(GridMouseDrag, PressOnTheRowThatIsCutOffTakesThatRowAlone)
{
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HGS_NOEXTEND }, DWORD{ HGS_ROWSELECT } }) {
        SCOPED_TRACE(style);
        MakeCells(HGS_ROWHEADERS | HGS_COLHEADERS | style);
        SetWindowPos(grid, nullptr, 0, 0, 400, 210, SWP_NOMOVE | SWP_NOZORDER);
        UpdateWindow(grid);
        Send(grid, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, 205));
        ASSERT_EQ(9, Current().row);
        ASSERT_EQ(1, ctl->nTopRow);
        for (const int y : { 205, 206, 203 }) {
            Send(grid, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(101, y));
            EXPECT_EQ(9, Current().row) << "at " << y;
        }
        // A drag is one from there on, also where it comes back.
        Send(grid, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(100, 150));
        EXPECT_EQ(7, Current().row);
        Send(grid, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(100, 205));
        EXPECT_EQ(10, Current().row);
        Send(grid, WM_LBUTTONUP, 0, MAKELPARAM(100, 205));
        DestroyWindow(grid);
    }
}

} // namespace
