// Mouse, keys and focus on a button: by messages where the order matters, and by real input.
#include "button_window.h"

namespace {

constexpr LPARAM inside = MAKELPARAM(5, 5);
constexpr LPARAM outside = MAKELPARAM(500, 5);

class ButtonInput : public ButtonWindow {
protected:
    void Down() const { Send(WM_LBUTTONDOWN, MK_LBUTTON, inside); }
    void Move(LPARAM to, WPARAM buttons = MK_LBUTTON) const { Send(WM_MOUSEMOVE, buttons, to); }
    void Up(LPARAM at = inside) const { Send(WM_LBUTTONUP, 0, at); }
    bool HasCapture() const { return GetCapture() == button; }
};

TEST_F(ButtonInput, MouseDownPressesAndTakesFocusAndCapture)
{
    Make("x");
    Down();
    EXPECT_TRUE(IsPressed());
    EXPECT_TRUE(HasCapture());
    EXPECT_EQ(button, GetFocus());
    EXPECT_EQ(0, Clicks());
    Up();
    EXPECT_FALSE(IsPressed());
    EXPECT_FALSE(HasCapture());
    EXPECT_EQ(1, Clicks());
}

TEST_F(ButtonInput, WhatLiesBehindIsPaintedFirst)
{
    Make("x");
    InvalidateRect(parent.hwnd(), nullptr, TRUE);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_FALSE(GetUpdateRect(parent.hwnd(), nullptr, FALSE)) << "at a press";
    Send(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    for (const DWORD style : { DWORD{ HBS_TRANSPARENT }, DWORD{ 0 } }) {
        Make("x", style);
        Focus();
        InvalidateRect(parent.hwnd(), nullptr, TRUE);
        Send(WM_KILLFOCUS);
        EXPECT_EQ(!style, GetUpdateRect(parent.hwnd(), nullptr, FALSE) != 0) << "when a focus goes, " << style;
    }
}

TEST_F(ButtonInput, EndOfAPressReleasesTheCaptureOfWhoeverHasIt)
{
    Make("x");
    Down();
    SetCapture(parent.hwnd());
    Up();
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ(1, Clicks());
    Send(WM_KEYDOWN, VK_SPACE);
    SetCapture(parent.hwnd());
    Send(WM_KEYUP, VK_SPACE);
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ(2, Clicks());
}

TEST_F(ButtonInput, NoFocusIsTakenByAButtonWithout)
{
    Make("x", HBS_NOFOCUS);
    SetFocus(parent.hwnd());
    Down();
    EXPECT_EQ(parent.hwnd(), GetFocus());
    EXPECT_TRUE(IsPressed());
    Up();
    EXPECT_EQ(1, Clicks());
}

TEST_F(ButtonInput, LeavingMouseReleasesTheFace)
{
    Make("x", HBS_CHECK | HBS_AUTO);
    Down();
    Move(outside);
    EXPECT_FALSE(IsPressed());
    Move(inside);
    EXPECT_TRUE(IsPressed());
    Move(outside);
    Up(outside);
    EXPECT_FALSE(IsPressed());
    EXPECT_EQ(0, Clicks());
    EXPECT_EQ(0, Value());
}

TEST_F(ButtonInput, MouseCountsOnlyWithCaptureAndButton)
{
    Make("x");
    Move(inside);
    EXPECT_FALSE(IsPressed());
    Down();
    Move(outside, 0);
    EXPECT_TRUE(IsPressed());
    Up();
}

TEST_F(ButtonInput, SpaceBarHoldsTheButtonAndTurnsTheMouseRound)
{
    Make("x", HBS_CHECK | HBS_AUTO);
    Focus();
    Send(WM_KEYDOWN, VK_SPACE);
    EXPECT_TRUE(IsPressed());
    EXPECT_TRUE(HasCapture());
    Move(inside);
    EXPECT_FALSE(IsPressed());
    Move(outside);
    EXPECT_TRUE(IsPressed());
    Down();
    EXPECT_FALSE(IsPressed());
    Up();
    EXPECT_TRUE(IsPressed());
    EXPECT_EQ(0, Clicks());
    Send(WM_KEYUP, VK_SPACE);
    EXPECT_FALSE(IsPressed());
    EXPECT_FALSE(HasCapture());
    EXPECT_EQ(1, Clicks());
    EXPECT_EQ(1, Value());
}

TEST_F(ButtonInput, AnotherKeyThatComesUpEndsTheHoldWithoutAClick)
{
    Make("x");
    Send(WM_KEYDOWN, VK_SPACE);
    Send(WM_KEYUP, 'A');
    EXPECT_FALSE(IsPressed());
    EXPECT_FALSE(HasCapture());
    Send(WM_KEYUP, VK_SPACE);
    EXPECT_EQ(0, Clicks());
}

TEST_F(ButtonInput, SpaceBarIsIgnoredWhileTheMouseHolds)
{
    Make("x");
    Down();
    Send(WM_KEYDOWN, VK_SPACE);
    Send(WM_KEYUP, VK_SPACE);
    EXPECT_TRUE(IsPressed());
    EXPECT_EQ(0, Clicks());
    Up();
    EXPECT_EQ(1, Clicks());
}

TEST_F(ButtonInput, DoubleClickTells)
{
    Make("x");
    EXPECT_EQ(1, Send(WM_LBUTTONDBLCLK, MK_LBUTTON, inside));
    EXPECT_EQ(1, parent.Count(HBN_DBLCLK));
    EXPECT_FALSE(IsPressed());
}

TEST_F(ButtonInput, ReturnClicks)
{
    Make("x", HBS_CHECK | HBS_AUTO);
    Send(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(1, Clicks());
    EXPECT_EQ(1, Value());
}

TEST_F(ButtonInput, FocusLetsGoOfThePress)
{
    Make("x");
    Send(BM_SETSTATE, 0);
    Ctl()->wFlags |= HBF_PRESSED;
    Focus();
    EXPECT_FALSE(IsPressed());
    Ctl()->wFlags |= HBF_PRESSED;
    SetFocus(parent.hwnd());
    EXPECT_FALSE(IsPressed());
}

TEST_F(ButtonInput, FocusThatGoesEndsThePressOfTheSpaceBar)
{
    for (const DWORD style : { DWORD{ HBS_TRANSPARENT }, DWORD{ 0 } }) {
        Make("x", style);
        Focus();
        Send(WM_KEYDOWN, VK_SPACE);
        ASSERT_EQ(button, GetCapture());
        SetFocus(parent.hwnd());
        EXPECT_EQ(nullptr, GetCapture());
        EXPECT_FALSE(Ctl()->wFlags & HBF_SPACEDOWN);
        EXPECT_FALSE(IsPressed());
        parent.ClearCounts();
        Down();
        EXPECT_TRUE(IsPressed());
        Up();
        EXPECT_EQ(1, Clicks());
        EXPECT_FALSE(IsPressed());
    }
}

TEST_F(ButtonInput, DialogsGiveItNoKeysOfItsOwn)
{
    Make("x");
    EXPECT_EQ(DLGC_STATIC, Send(WM_GETDLGCODE));
}

TEST_F(ButtonInput, EnablingKeepsTheStyleInStep)
{
    Make("x");
    EnableWindow(button, FALSE);
    EXPECT_TRUE(Ctl()->dwStyle & WS_DISABLED);
    Validate();
    EnableWindow(button, TRUE);
    EXPECT_FALSE(Ctl()->dwStyle & WS_DISABLED);
    EXPECT_TRUE(IsInvalid());
}

TEST_F(ButtonInput, EnablingLeavesThePress)
{
    Make("x");
    Ctl()->wFlags |= HBF_PRESSED;
    EnableWindow(button, FALSE);
    EXPECT_TRUE(IsPressed());
    Ctl()->wFlags |= HBF_PRESSED;
    EnableWindow(button, TRUE);
    EXPECT_TRUE(IsPressed());
}

TEST_F(ButtonInput, FocusChangesNothingOnAButtonWithout)
{
    Make("x", HBS_NOFOCUS);
    Ctl()->wFlags |= HBF_PRESSED;
    Validate();
    Send(WM_SETFOCUS);
    EXPECT_TRUE(IsPressed());
    EXPECT_FALSE(IsInvalid());
}

std::vector<WPARAM> gShown; // 0: hidden

LRESULT CALLBACK NoteShowing(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SHOWWINDOW) {
        gShown.push_back(wParam);
    }
    return HButtWnd(hwnd, message, wParam, lParam);
}

TEST_F(ButtonInput, TransparentButtonsHideAndShowThemselves)
{
    const std::vector<WPARAM> hiddenAndShown = { FALSE, TRUE };
    for (const DWORD style : { DWORD{ HBS_TRANSPARENT }, DWORD{ 0 } }) {
        SCOPED_TRACE(style);
        const bool reveals = style == HBS_TRANSPARENT;
        Make("x", style);
        SetWindowLongPtrA(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(NoteShowing));
        gShown.clear();
        EnableWindow(button, FALSE);
        EXPECT_EQ(reveals ? hiddenAndShown : std::vector<WPARAM>(), gShown);
        gShown.clear();
        SendPtr(WM_SETTEXT, 0, "y");
        EXPECT_EQ(reveals ? hiddenAndShown : std::vector<WPARAM>(), gShown);
        EXPECT_TRUE(IsWindowVisible(button));
        ShowWindow(button, SW_HIDE);
        gShown.clear();
        EnableWindow(button, TRUE);
        EXPECT_TRUE(gShown.empty()) << "what is hidden stays hidden";
    }
}

TEST_F(ButtonInput, FontIsKeptAndRepaints)
{
    Make("x");
    Validate();
    const HFONT font = static_cast<HFONT>(GetStockObject(ANSI_VAR_FONT));
    Ctl()->wFlags |= HBF_PRESSED;
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(font));
    EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(WM_GETFONT));
    EXPECT_TRUE(IsInvalid());
    EXPECT_TRUE(IsPressed());
}

// Real keys and a real mouse

TEST_F(ButtonInput, RealMouseClicks)
{
    Make("x", HBS_CHECK | HBS_AUTO);
    ClickAt(button, 10, 10);
    EXPECT_EQ(1, Clicks());
    EXPECT_EQ(1, Value());
    EXPECT_EQ(button, GetFocus());
}

TEST_F(ButtonInput, RealMouseThatLeavesDoesNotClick)
{
    Make("x", HBS_CHECK | HBS_AUTO);
    PressButton(button, 10, 10);
    EXPECT_TRUE(IsPressed());
    MoveMouse(button, 200, 100);
    EXPECT_FALSE(IsPressed());
    MoveMouse(button, 10, 10);
    EXPECT_TRUE(IsPressed());
    MoveMouse(button, 200, 100);
    ReleaseButton(button, 200, 100);
    EXPECT_EQ(0, Clicks());
    EXPECT_FALSE(HasCapture());
}

TEST_F(ButtonInput, RealKeysClick)
{
    Make("x", HBS_CHECK | HBS_AUTO);
    Focus();
    HoldKey(VK_SPACE);
    HoldKey(VK_SPACE);
    EXPECT_TRUE(IsPressed());
    EXPECT_EQ(0, Clicks());
    ReleaseKey(VK_SPACE);
    EXPECT_EQ(1, Clicks());
    TypeKey(VK_RETURN);
    EXPECT_EQ(2, Clicks());
    EXPECT_EQ(2, Value());
}

} // namespace
