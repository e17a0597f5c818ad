// A user at a dropped list: real keys and the real mouse.
#include "combo/drop_window.h"

namespace {

class DropInput : public DropWindow {
protected:
    void ClickButton() { ClickAt(combo, static_cast<int>(ComboRect().right - ComboRect().left) - 5, 10); }
    void ClickRow(int row) { ClickAt(drop, 10, MiddleOf(row)); }
    // A button beside the combo that counts its clicks.
    HWND MakeNeighbour()
    {
        parent.On(BN_CLICKED, [this] { ++clicks; });
        return Create("BUTTON", "neighbour", 0, 55, { 400, 300, 100, 30 });
    }
    static HWND MakeTopLevel()
    {
        return CreateWindowExA(0, "BUTTON", "", WS_POPUP | WS_VISIBLE, 800, 100, 200, 100, nullptr, nullptr,
                               GetModuleHandleA(nullptr), nullptr);
    }

    int clicks = 0;
};

TEST_F(DropInput, ButtonOpensAndASecondPressCloses)
{
    for (const DWORD style : { DWORD{ HCS_EDIT }, DWORD{ 0 } }) {
        MakeCombo(style);
        ClickButton();
        ExpectOpen();
        EXPECT_EQ(face, GetFocus());
        ClickButton();
        ExpectClosed();
        DestroyWindow(combo);
    }
}

TEST_F(DropInput, RowUnderTheMouseIsMarkedAndTakenByTheNextKey)
{
    MakeCombo(HCS_EDIT);
    Send(combo, HLM_SETCURRENT, 0);
    ClickButton();
    Told();
    MoveMouse(drop, 10, MiddleOf(2));
    EXPECT_EQ(2, RecordOf<HListCtl>(drop)->nHot);
    EXPECT_EQ(0, Row());
    MoveMouse(drop, 10, MiddleOf(3));
    EXPECT_EQ(3, RecordOf<HListCtl>(drop)->nHot);
    EXPECT_EQ((Ints{}), Told());
    TypeKey(VK_DOWN);
    EXPECT_EQ(4, Row());
    EXPECT_EQ("five", Text());
    EXPECT_TRUE(IsOpen());
}

TEST_F(DropInput, ClickOnARowTakesIt)
{
    for (const DWORD style : { DWORD{ HCS_EDIT }, DWORD{ 0 } }) {
        MakeCombo(style);
        ClickButton();
        Told();
        ClickRow(3);
        ExpectClosed();
        EXPECT_EQ("four", Text());
        EXPECT_EQ((Ints{ HCN_SELCHANGE, HCN_SELENDOK, HCN_CLOSEUP }), Told());
        EXPECT_EQ(face, GetFocus());
        EXPECT_EQ(nullptr, GetCapture());
        DestroyWindow(combo);
    }
}

TEST_F(DropInput, KeysMoveAndReturnTakes)
{
    MakeCombo(HCS_EDIT);
    TypeKey(VK_F4);
    TypeKey(VK_DOWN);
    TypeKey(VK_DOWN);
    EXPECT_EQ("two", Text());
    TypeKey(VK_RETURN);
    ExpectClosed();
    EXPECT_EQ("two", Text());
}

TEST_F(DropInput, TypingInTheFaceMovesTheList)
{
    MakeCombo(HCS_EDIT);
    TypeKey(VK_F4);
    TypeText("four");
    EXPECT_EQ(3, Row());
    ExpectOpen();
    TypeText("x");
    EXPECT_EQ(-1, Row());
}

TEST_F(DropInput, PressOnAnotherWindowOnlyCloses)
{
    MakeCombo(HCS_EDIT);
    const HWND neighbour = MakeNeighbour();
    ClickButton();
    PressButton(neighbour, 10, 10);
    ExpectClosed();
    EXPECT_EQ(face, GetFocus());
    ReleaseButton(neighbour, 10, 10);
    EXPECT_EQ(0, clicks);
    ClickAt(neighbour, 10, 10);
    EXPECT_EQ(1, clicks) << "the next one arrives";
}

TEST_F(DropInput, PressOnAnotherTopLevelWindowOnlyCloses)
{
    MakeCombo(HCS_EDIT);
    const HWND window = MakeTopLevel();
    SetForegroundWindow(parent.hwnd());
    SetFocus(combo);
    PumpPending();
    TypeKey(VK_F4);
    ExpectOpen();
    PressButton(window, 50, 50);
    ExpectClosed();
    EXPECT_EQ(face, GetFocus());
    ReleaseButton(window, 50, 50);
    DestroyWindow(window);
}

TEST_F(DropInput, OtherMouseTrafficElsewhereIsDropped)
{
    MakeCombo(HCS_EDIT);
    int downs = 0;
    int moves = 0;
    parent.OnMessage(WM_RBUTTONDOWN, [&](WPARAM, LPARAM) { return ++downs; });
    parent.OnMessage(WM_MOUSEMOVE, [&](WPARAM, LPARAM) { return ++moves; });
    RightClickAt(parent.hwnd(), 500, 400);
    EXPECT_EQ(1, downs);
    EXPECT_LT(0, moves);
    TypeKey(VK_F4);
    downs = moves = 0;
    RightClickAt(parent.hwnd(), 480, 390);
    MoveMouse(parent.hwnd(), 450, 350);
    EXPECT_EQ(0, downs);
    EXPECT_EQ(0, moves);
    ExpectOpen();
}

TEST_F(DropInput, WheelOverTheOpenListScrollsIt)
{
    MakeCombo(HCS_EDIT);
    for (int i = 0; i < 40; ++i) {
        HCAddItemEx(combo, "more", nullptr);
    }
    TypeKey(VK_F4);
    Wheel(drop, 10, 30, -120);
    EXPECT_LT(0, Send(drop, HLM_GETTOP));
    ExpectOpen();
    Wheel(drop, 10, 30, 120);
    EXPECT_EQ(0, Send(drop, HLM_GETTOP));
}

TEST_F(DropInput, ListStandsAboveTheOtherWindows)
{
    MakeCombo(HCS_EDIT);
    const HWND neighbour = Create("BUTTON", "", 0, 56, { 10, 50, 120, 60 });
    TypeKey(VK_F4);
    const RECT list = DropRect();
    EXPECT_EQ(drop, WindowFromPoint({ list.left + 10, list.top + 20 }));
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(neighbour, WindowFromPoint({ list.left + 10, list.top + 30 }));
}

TEST_F(DropInput, ActivatingAnotherWindowCloses)
{
    MakeCombo(HCS_EDIT);
    const HWND window = MakeTopLevel();
    SetForegroundWindow(parent.hwnd());
    SetFocus(combo);
    TypeKey(VK_F4);
    ExpectOpen();
    SetForegroundWindow(window);
    PumpPending();
    ExpectClosed();
    DestroyWindow(window);
}

TEST_F(DropInput, AtTheBottomOfTheScreenTheListOpensAboveItsCombo)
{
    MakeCombo(HCS_EDIT);
    const int bottom = GetSystemMetrics(SM_CYSCREEN);
    MoveWindow(parent.hwnd(), 40, bottom - 60, 720, 520, TRUE);
    TypeKey(VK_F4);
    ExpectOpen();
    EXPECT_GE(ComboRect().top, DropRect().bottom);
    ClickRow(1);
    EXPECT_EQ("two", Text());
}

TEST_F(DropInput, ReturnTakesTheRowUnderThePointer)
{
    for (const DWORD style : { static_cast<DWORD>(HCS_EDIT), static_cast<DWORD>(0) }) {
        MakeCombo(style);
        Send(combo, CB_SETCURSEL, 1);
        Open();
        MoveMouse(drop, 10, MiddleOf(3));
        PumpPending();
        ASSERT_EQ(3, +Ctl()->pDrop->nHot) << style;
        ASSERT_EQ(1, Row()) << style;
        Told();
        SendMessageA(face, WM_KEYDOWN, VK_RETURN, 0);
        EXPECT_EQ("four", Text()) << style;
        EXPECT_EQ(3, Row()) << style;
        EXPECT_EQ((Ints{ HCN_SELCHANGE, HCN_SELENDOK, HCN_CLOSEUP }), Told()) << style;
        DestroyWindow(combo);
    }
}

TEST_F(DropInput, ReturnUnderThePointerMayEndTheCombo)
{
    MakeCombo(HCS_EDIT);
    Open();
    MoveMouse(drop, 10, MiddleOf(3));
    PumpPending();
    parent.On(HCN_SELCHANGE, [this] { DestroyWindow(combo); });
    SendMessageA(face, WM_KEYDOWN, VK_RETURN, 0);
    EXPECT_FALSE(IsWindow(combo));
}

} // namespace
