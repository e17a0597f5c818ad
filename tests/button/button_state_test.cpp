// The value and the press of a button: messages, links, groups, clicks.
#include "button_window.h"

#include "support/guarded_memory.h"

namespace {

class ButtonState : public ButtonWindow {};

TEST_F(ButtonState, ValueCountsRoundTheStates)
{
    Make("x", HBS_CHECK);
    ASSERT_EQ(4, Send(HBM_GETSTATECOUNT));
    Send(BM_SETCHECK, 5);
    EXPECT_EQ(1, State());
    EXPECT_EQ(1, Value());
}

TEST_F(ButtonState, UpDownHasTwoStatesForAValue)
{
    Make("x", HBS_CHECK | HBS_UPDOWN);
    Send(BM_SETCHECK, 1);
    EXPECT_EQ(2, State());
    EXPECT_EQ(1, Value());
    Send(BM_SETCHECK, 2);
    EXPECT_EQ(0, State());
}

TEST_F(ButtonState, ValueBelowZeroCountsAsAnUnsignedOne)
{
    Make("333;x;IM1:IM2:IM3", HBS_THREESTATE);
    Send(BM_SETCHECK, 1);
    Send(BM_SETCHECK, static_cast<WPARAM>(-1));
    EXPECT_EQ(0, State()) << "4294967295 is a multiple of 3";
    Send(BM_SETCHECK, static_cast<WPARAM>(-2));
    EXPECT_EQ(2, State());
    UpdateWindow(button);
}

TEST_F(ButtonState, ClearingTellsNobody)
{
    Make("x", HBS_CHECK);
    Send(BM_SETCHECK, 1);
    Send(BM_SETCHECK, 0, 1);
    EXPECT_EQ(0, Clicks());
    EXPECT_EQ(0, State());
}

TEST_F(ButtonState, ValueAskedForDecidesWhetherItTells)
{
    Make("333;x;IM1:IM2", HBS_CHECK);
    ASSERT_EQ(2, Send(HBM_GETSTATECOUNT));
    Send(BM_SETCHECK, 2, 1);
    EXPECT_EQ(0, State());
    EXPECT_EQ(1, Clicks());
    Send(BM_SETCHECK, 1, 0);
    EXPECT_EQ(1, Clicks());
    Send(BM_SETCHECK, 1, 0x10000);
    EXPECT_EQ(1, Clicks()) << "the low word is the wish";
}

TEST_F(ButtonState, ChangeIsMarkedWhenTheStateIsAnother)
{
    Make("x", HBS_CHECK);
    EXPECT_FALSE(IsChanged());
    Send(BM_SETCHECK, 0);
    EXPECT_FALSE(IsChanged());
    Send(BM_SETCHECK, 1);
    EXPECT_TRUE(IsChanged());
}

// Links

TEST_F(ButtonState, LinkGivesTheValueAndFollowsIt)
{
    Make("333l;x;IM1:IM2", HBS_CHECK);
    LONG value = 5;
    EXPECT_EQ(1, SendPtr(HBM_SETLINK, 0, &value));
    EXPECT_EQ(reinterpret_cast<LRESULT>(&value), Send(HBM_GETLINK));
    EXPECT_EQ(1, Value());
    EXPECT_EQ(1, value) << "any value but 0 reads as 1";
    EXPECT_FALSE(IsChanged());
    Send(BM_SETCHECK, 0);
    EXPECT_EQ(0, value);
    Send(BM_SETCHECK, 3);
    EXPECT_EQ(1, value);
}

TEST_F(ButtonState, LinkHoldsHalfTheStateUnderUpDown)
{
    Make("333b;x;IM0:IM1:IM2:IM3:IM4:IM5", HBS_CHECK | HBS_UPDOWN);
    BYTE values[] = { 0xAA, 0, 0xAA };
    SendPtr(HBM_SETLINK, 0, &values[1]);
    Send(BM_SETCHECK, 2);
    EXPECT_EQ(4, State());
    EXPECT_EQ(2, values[1]);
    EXPECT_EQ(0xAA, values[0]);
    EXPECT_EQ(0xAA, values[2]);
}

TEST_F(ButtonState, NullLinkIsTheNullValueAndLeavesTheState)
{
    Make("x", HBS_CHECK);
    Send(BM_SETCHECK, 1);
    Validate();
    EXPECT_EQ(1, Send(HBM_SETLINK));
    EXPECT_TRUE(IsNull());
    EXPECT_EQ(1, State());
    EXPECT_TRUE(IsInvalid());
    EXPECT_FALSE(IsChanged());
    Send(BM_SETCHECK, 1);
    EXPECT_FALSE(IsNull());
    EXPECT_FALSE(IsChanged()) << "the state is the old one";
}

TEST_F(ButtonState, ValueIsReadWithoutKeepingThePointer)
{
    Make("x", HBS_CHECK);
    const WORD value = 1;
    EXPECT_EQ(1, SendPtr(HBM_SETVALUE, 0, &value));
    EXPECT_EQ(1, Value());
    EXPECT_EQ(0, Send(HBM_GETLINK));
    EXPECT_FALSE(IsChanged());
    EXPECT_EQ(1, Send(HBM_SETVALUE));
    EXPECT_TRUE(IsNull());
}

TEST_F(ButtonState, ValueIsGivenInItsType)
{
    Make("333l;x;IM1:IM2:IM3", HBS_CHECK);
    Send(BM_SETCHECK, 2);
    LONG value = -1;
    EXPECT_EQ(4, SendPtr(HBM_GETVALUE, 0, &value));
    EXPECT_EQ(2, value);
    EXPECT_EQ(-1, Send(HBM_GETVALUE));
    Send(HBM_SETVALUE);
    value = 77;
    EXPECT_EQ(0, SendPtr(HBM_GETVALUE, 0, &value));
    EXPECT_EQ(77, value);
}

TEST_F(ButtonState, ValueThatCannotBeStoredIsAFailure)
{
    Make("x", HBS_CHECK);
    Ctl()->chLinkType = '?';
    LONG value = 5;
    EXPECT_EQ(-1, SendPtr(HBM_GETVALUE, 0, &value));
    EXPECT_EQ(5, value);
    EXPECT_EQ(1, SendPtr(HBM_SETVALUE, 0, &value));
    EXPECT_EQ(0, State());
}

// Clicks

TEST_F(ButtonState, ClickOfAnAutomaticButtonStepsItsValue)
{
    Make("333;x;IM1:IM2:IM3", HBS_CHECK | HBS_AUTO);
    for (const int expected : { 1, 2, 0, 1 }) {
        EXPECT_EQ(1, Send(HBM_CLICK));
        EXPECT_EQ(expected, Value());
        EXPECT_FALSE(IsPressed());
    }
    EXPECT_EQ(4, Clicks()) << "also the step that comes round to 0";
}

TEST_F(ButtonState, ClickOfAPlainButtonOnlyTells)
{
    Make("x", HBS_CHECK);
    Send(HBM_CLICK);
    EXPECT_EQ(0, Value());
    EXPECT_EQ(1, Clicks());
    EXPECT_FALSE(IsPressed());
}

TEST_F(ButtonState, AutomaticClickTellsWhilePressedAndAPlainOneAfterTheRelease)
{
    for (const DWORD style : { DWORD{ HBS_CHECK | HBS_AUTO }, DWORD{ HBS_CHECK } }) {
        bool pressed = false;
        Make("x", style);
        parent.On(HBN_CLICKED, [&] { pressed = IsPressed(); });
        Send(HBM_CLICK);
        EXPECT_EQ(1, Clicks());
        EXPECT_EQ((style & HBS_AUTO) != 0, pressed);
        EXPECT_FALSE(IsPressed());
    }
    parent.On(HBN_CLICKED, nullptr);
}

TEST_F(ButtonState, LinkHoldsTheNewValueWhenTheClickIsTold)
{
    WORD value = 0;
    WORD told = 99;
    Make("333w;x;IM1:IM2", HBS_CHECK | HBS_AUTO);
    SendPtr(HBM_SETLINK, 0, &value);
    parent.On(HBN_CLICKED, [&] { told = value; });
    Send(HBM_CLICK);
    EXPECT_EQ(1, told);
    parent.On(HBN_CLICKED, nullptr);
}

TEST_F(ButtonState, ClickOfAnUpDownButtonStepsTheValueNotTheState)
{
    Make("333;x;IM1:IM2:IM3:IM4", HBS_CHECK | HBS_AUTO | HBS_UPDOWN);
    for (const int expected : { 1, 0, 1 }) {
        Send(HBM_CLICK);
        EXPECT_EQ(expected, Value());
        EXPECT_EQ(2 * expected, State());
    }
}

TEST_F(ButtonState, PlatformsClickTellsNobody)
{
    Make("x", HBS_CHECK | HBS_AUTO);
    EXPECT_EQ(1, Send(BM_CLICK));
    EXPECT_EQ(1, Value());
    EXPECT_EQ(0, Clicks());
}

TEST_F(ButtonState, PressedStateClicksOnce)
{
    Make("x", HBS_CHECK | HBS_AUTO);
    EXPECT_EQ(1, Send(BM_SETSTATE, 1));
    EXPECT_EQ(1, Value());
    EXPECT_FALSE(IsPressed());
    EXPECT_EQ(1, Send(BM_SETSTATE, 0));
    EXPECT_EQ(1, Value());
    EXPECT_EQ(0, Clicks());
}

TEST_F(ButtonState, StyleReplacesTheKind)
{
    Make("x", HBS_PUSH);
    EXPECT_EQ(0, Send(BM_SETSTYLE, HBS_DEFPUSH | 0xF0, 1));
    EXPECT_EQ(HBS_DEFPUSH, Send(HBM_GETKIND));
    EXPECT_FALSE(Ctl()->dwStyle & 0xF0);
    EXPECT_TRUE(IsInvalid());
    Validate();
    Send(BM_SETSTYLE, HBS_PUSH, 0);
    EXPECT_EQ(HBS_PUSH, Send(HBM_GETKIND));
    EXPECT_FALSE(IsInvalid()) << "repainted only if asked";
    Make("x", HBS_PUSH | HBS_NOFOCUS);
    EXPECT_EQ(0, Send(BM_SETSTYLE, HBS_DEFPUSH));
    EXPECT_EQ(HBS_PUSH, Send(HBM_GETKIND));
}

// Groups of radio buttons of the platform's around a button

class ButtonGroup : public ButtonWindow {
protected:
    HWND Radio(const char* text, DWORD style = 0)
    {
        const DWORD all = BS_RADIOBUTTON | WS_TABSTOP | style;
        const HWND  made = WindowTest::Create("BUTTON", text, all, ++id_, { 200, 10, 50, 20 });
        ::SendMessageA(made, BM_SETCHECK, 1, 0);
        return made;
    }
    bool IsChecked(HWND radio) const { return ::SendMessageA(radio, BM_GETCHECK, 0, 0) != 0; }
    bool HasTabStop(HWND hwnd) const { return (GetWindowLongA(hwnd, GWL_STYLE) & WS_TABSTOP) != 0; }
    HWND Button(DWORD style)
    {
        button = WindowTest::Create("HButt", "x", style, 7, { 10, 10, 80, 30 });
        return button;
    }
    HWND Plain(DWORD style = 0) { return WindowTest::Create("BUTTON", "plain", BS_PUSHBUTTON | style, 90); }

private:
    int id_ = 300;
};

TEST_F(ButtonGroup, SettingClearsThePartners)
{
    const HWND before = Radio("a", WS_GROUP);
    Button(HBS_CHECK | HBS_AUTO);
    const HWND after = Radio("b");
    Plain(WS_GROUP);
    Send(BM_SETCHECK, 1);
    EXPECT_FALSE(IsChecked(before));
    EXPECT_FALSE(IsChecked(after));
    EXPECT_FALSE(HasTabStop(before));
    EXPECT_FALSE(HasTabStop(after));
}

WNDPROC gCountedProc;
int     gChecksCleared;

LRESULT CALLBACK CountingRadio(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    gChecksCleared += message == BM_SETCHECK && wParam == 0;
    return CallWindowProcA(gCountedProc, hwnd, message, wParam, lParam);
}

TEST_F(ButtonGroup, WalkThatComesRoundIsTheOnlyOne)
{
    const HWND before = Radio("a", WS_GROUP);
    Button(HBS_CHECK | HBS_AUTO);
    Plain(WS_GROUP);
    gCountedProc = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(before, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountingRadio)));
    gChecksCleared = 0;
    Send(BM_SETCHECK, 1);
    EXPECT_EQ(1, gChecksCleared);
}

TEST_F(ButtonGroup, ClearingLeavesThePartners)
{
    const HWND before = Radio("a", WS_GROUP);
    Button(HBS_CHECK | HBS_AUTO);
    Plain(WS_GROUP);
    Send(BM_SETCHECK, 0);
    EXPECT_TRUE(IsChecked(before));
    EXPECT_TRUE(HasTabStop(before));
}

TEST_F(ButtonGroup, OnlyAnAutomaticButtonClearsThem)
{
    const HWND before = Radio("a", WS_GROUP);
    Button(HBS_CHECK);
    Plain(WS_GROUP);
    Send(BM_SETCHECK, 1);
    EXPECT_TRUE(IsChecked(before));
}

TEST_F(ButtonGroup, AnotherControlEndsTheWalkInItsDirection)
{
    const HWND farOne = Radio("far", WS_GROUP);
    Plain();
    const HWND nearOne = Radio("near");
    Button(HBS_CHECK | HBS_AUTO);
    const HWND after = Radio("after");
    Plain();
    const HWND last = Radio("last");
    Plain(WS_GROUP);
    Send(BM_SETCHECK, 1);
    EXPECT_FALSE(IsChecked(nearOne)) << "the walk back";
    EXPECT_FALSE(IsChecked(after)) << "the walk on";
    EXPECT_TRUE(IsChecked(farOne));
    EXPECT_TRUE(IsChecked(last));
}

TEST_F(ButtonGroup, TabStopComesToTheOneThatIsSet)
{
    Radio("a", WS_GROUP);
    Button(HBS_CHECK | HBS_AUTO | WS_TABSTOP);
    Plain(WS_GROUP);
    SetWindowLongA(button, GWL_STYLE, GetWindowLongA(button, GWL_STYLE) & ~WS_TABSTOP);
    Send(BM_SETCHECK, 1);
    EXPECT_TRUE(HasTabStop(button));
}

TEST_F(ButtonGroup, NoTabStopComesToAButtonThatWasMadeWithout)
{
    Radio("a", WS_GROUP);
    Button(HBS_CHECK | HBS_AUTO);
    Plain(WS_GROUP);
    Send(BM_SETCHECK, 1);
    EXPECT_FALSE(HasTabStop(button));
}

TEST_F(ButtonGroup, WalkEndsInAGroupThatTheButtonIsNoPartOf)
{
    const HWND first = Radio("a", WS_GROUP);
    const HWND second = Radio("b");
    Button(HBS_CHECK | HBS_AUTO);
    Plain(WS_GROUP);
    ShowWindow(button, SW_HIDE);
    EnableWindow(button, FALSE);
    Send(BM_SETCHECK, 1);
    EXPECT_EQ(1, Value());
    EXPECT_FALSE(IsChecked(first));
    EXPECT_FALSE(IsChecked(second));
}

WNDPROC gRadioProc;
HWND    gVictim;

LRESULT CALLBACK DestroyingRadio(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC next = gRadioProc;
    if (message == BM_SETCHECK) {
        SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(next));
        DestroyWindow(gVictim);
        return 0;
    }
    return CallWindowProcA(next, hwnd, message, wParam, lParam);
}

void DestroyAtCheck(HWND radio, HWND victim)
{
    gVictim = victim;
    gRadioProc = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(radio, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(DestroyingRadio)));
}

TEST_F(ButtonGroup, PartnerMayDestroyTheButton)
{
    const HWND before = Radio("a", WS_GROUP);
    Button(HBS_CHECK | HBS_AUTO);
    Plain(WS_GROUP);
    DestroyAtCheck(before, button);
    Send(HBM_CLICK);
    EXPECT_FALSE(IsWindow(button));
}

TEST_F(ButtonGroup, PartnerMayDestroyItself)
{
    const HWND before = Radio("a", WS_GROUP);
    const HWND middle = Radio("b");
    Button(HBS_CHECK | HBS_AUTO);
    Plain(WS_GROUP);
    DestroyAtCheck(middle, middle);
    Send(HBM_CLICK);
    EXPECT_TRUE(IsWindow(button));
    EXPECT_EQ(1, Value());
    EXPECT_FALSE(IsChecked(before));
}

TEST_F(ButtonGroup, TellsWhetherAnotherRadioButtonFollows)
{
    Button(WS_GROUP);
    EXPECT_EQ(1, Send(HBM_ISGROUPEND)) << "nothing follows";
    const HWND radio = Radio("a");
    EXPECT_EQ(0, Send(HBM_ISGROUPEND));
    SetWindowLongA(radio, GWL_STYLE, GetWindowLongA(radio, GWL_STYLE) | WS_GROUP);
    EXPECT_EQ(1, Send(HBM_ISGROUPEND)) << "it begins a group of its own";
    DestroyWindow(radio);
    Plain();
    EXPECT_EQ(1, Send(HBM_ISGROUPEND)) << "it is no radio button";
}

// The parent destroys the button inside of it all

struct EndRow {
    const char* what;
    UINT        message;
    WPARAM      wParam;
    LPARAM      lParam;
};

// clang-format off
constexpr EndRow endings[] = {
    { "click",           HBM_CLICK,        0,         0 },
    { "set with a wish", BM_SETCHECK,      1,         1 },
    { "return",          WM_KEYDOWN,       VK_RETURN, 0 },
    { "double click",    WM_LBUTTONDBLCLK, 0,         0 },
};
// clang-format on

TEST_F(ButtonState, ParentMayDestroyTheButtonInEachNotification)
{
    for (const DWORD style : { HBS_PUSH, HBS_CHECK | HBS_AUTO }) {
        for (const EndRow& row : endings) {
            SCOPED_TRACE(testing::Message() << row.what << ", style " << style);
            const int live = LiveBlocks();
            Make("x", static_cast<DWORD>(style));
            parent.On(HBN_CLICKED, [this] { DestroyButton(); });
            parent.On(HBN_DBLCLK, [this] { DestroyButton(); });
            Send(row.message, row.wParam, row.lParam);
            EXPECT_FALSE(IsWindow(button));
            EXPECT_EQ(live, LiveBlocks());
        }
    }
}

// The window stays, but its record goes with this message.
TEST_F(ButtonState, ParentMaySendTheEndInEachNotification)
{
    for (const DWORD style : { HBS_PUSH, HBS_CHECK | HBS_AUTO }) {
        for (const EndRow& row : endings) {
            SCOPED_TRACE(testing::Message() << row.what << ", style " << style);
            const int live = LiveBlocks();
            Make("x", static_cast<DWORD>(style));
            int taken = 0;
            parent.On(HBN_CLICKED, [&] { taken += Send(WM_DESTROY) == 0; });
            parent.On(HBN_DBLCLK, [&] { taken += Send(WM_DESTROY) == 0; });
            Send(row.message, row.wParam, row.lParam);
            EXPECT_EQ(1, taken);
            EXPECT_TRUE(IsWindow(button));
            EXPECT_EQ(nullptr, Ctl());
            EXPECT_EQ(live, LiveBlocks()) << "the block went when nobody used it any more";
            DestroyButton();
        }
    }
}

// What the parent is asked while a button paints.
struct PaintQuestion {
    UINT  message;
    DWORD style;
};
constexpr PaintQuestion paintQuestions[] = {
    { WM_CTLCOLORBTN, HBS_PUSH | HBS_NOFACE },
    { WM_CTLCOLOREDIT, HBS_CHECK | HBS_NOFACE | HBS_AUTO },
    { WM_DRAWITEM, HBS_PUSH | HBS_OWNERDRAW },
    { WM_DRAWITEM, HBS_PUSH | HBS_OWNERDRAW | HBS_TRANSPARENT },
};

TEST_F(ButtonState, ParentMaySendTheEndWhileTheButtonIsPainted)
{
    for (const PaintQuestion& row : paintQuestions) {
        SCOPED_TRACE(testing::Message() << row.message << ", " << row.style);
        const int live = LiveBlocks();
        const HDC hdc = GetDC(parent.hwnd());
        for (const bool value : { false, true }) {
            Make("333;x;IM1:IM2", row.style);
            parent.OnMessage(row.message, [this](WPARAM, LPARAM) { return Send(WM_DESTROY); });
            InvalidateRect(button, nullptr, TRUE);
            ASSERT_NE(nullptr, Ctl());
            const RECT rect = { 0, 0, 20, 20 };
            const WORD one = 1;
            value ? LRESULT{ HBDrawValue(Ctl(), hdc, &rect, nullptr, &one) } : Send(HBM_CLICK);
            EXPECT_EQ(nullptr, Ctl());
            EXPECT_EQ(live, LiveBlocks());
            EXPECT_EQ(0, Clicks());
            parent.OnMessage(row.message, nullptr);
            DestroyButton();
        }
        ReleaseDC(parent.hwnd(), hdc);
    }
}

TEST_F(ButtonState, ParentMaySendTheEndWhenTheMouseOrTheSpaceBarLetsGo)
{
    for (const DWORD style : { HBS_PUSH, HBS_CHECK | HBS_AUTO }) {
        const int live = LiveBlocks();
        parent.On(HBN_CLICKED, [this] { Send(WM_DESTROY); });
        Make("x", static_cast<DWORD>(style));
        Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        Send(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        EXPECT_EQ(nullptr, Ctl());
        Make("x", static_cast<DWORD>(style));
        Send(WM_KEYDOWN, VK_SPACE);
        Send(WM_KEYUP, VK_SPACE);
        EXPECT_EQ(nullptr, Ctl());
        EXPECT_EQ(live, LiveBlocks());
        DestroyButton();
    }
}

TEST_F(ButtonState, ParentMayDestroyTheButtonWhenTheMouseOrTheSpaceBarLetsGo)
{
    for (const DWORD style : { HBS_PUSH, HBS_CHECK | HBS_AUTO }) {
        parent.On(HBN_CLICKED, [this] { DestroyButton(); });
        Make("x", static_cast<DWORD>(style));
        Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        Send(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
        EXPECT_FALSE(IsWindow(button));
        Make("x", static_cast<DWORD>(style));
        Send(WM_KEYDOWN, VK_SPACE);
        Send(WM_KEYUP, VK_SPACE);
        EXPECT_FALSE(IsWindow(button));
    }
}

TEST_F(ButtonState, ParentMayDestroyTheButtonWhileItIsPainted)
{
    const UINT messages[] = { HBM_CLICK, BM_CLICK, BM_SETSTATE, WM_PAINT };
    for (const PaintQuestion& row : paintQuestions) {
        for (const UINT message : messages) {
            SCOPED_TRACE(testing::Message() << row.message << ", " << row.style << ", " << message);
            Make("x", row.style);
            const HDC hdc = GetDC(parent.hwnd());
            parent.OnMessage(row.message, [this](WPARAM, LPARAM) {
                DestroyButton();
                return LRESULT{ 0 };
            });
            InvalidateRect(button, nullptr, TRUE);
            Send(message, message == WM_PAINT ? reinterpret_cast<WPARAM>(hdc) : 1);
            EXPECT_FALSE(IsWindow(button));
            parent.OnMessage(row.message, nullptr);
            ReleaseDC(parent.hwnd(), hdc);
        }
    }
}

TEST_F(ButtonState, ParentMayDestroyTheButtonWhileItIsPressedOrLosesTheFocus)
{
    for (const UINT message : { WM_LBUTTONDOWN, WM_KEYDOWN, WM_KILLFOCUS }) {
        SCOPED_TRACE(message);
        Make("x", HBS_OWNERDRAW | HBS_TRANSPARENT);
        parent.OnMessage(WM_DRAWITEM, [this](WPARAM, LPARAM) {
            DestroyButton();
            return LRESULT{ 1 };
        });
        InvalidateRect(button, nullptr, TRUE);
        Send(message, message == WM_KEYDOWN ? WPARAM{ VK_SPACE } : WPARAM{ MK_LBUTTON });
        EXPECT_FALSE(IsWindow(button));
        parent.OnMessage(WM_DRAWITEM, nullptr);
    }
}

} // namespace
