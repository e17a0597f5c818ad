// The mouse on a combo's buttons: pressed, held outside, released, hot.
#include "combo_window.h"
#include "foundation/startup.h"

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT | HCS_3DBORDER;

int gPainted; // buttons, by the painter below

int CALLBACK CountParts(int, HDC, RECT*, int, int, int)
{
    ++gPainted;
    return 1;
}

class ComboMouse : public ComboWindow {
protected:
    void MakeItems(DWORD style)
    {
        Make("%120%ss", style);
        Add({ "apple", "pear", "plum" });
        Focus();
        PumpPending();
        Told();
    }
    static LPARAM MiddleOf(const RECT& rect)
    {
        return MAKELPARAM((rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2);
    }
    LPARAM OnDrop() const { return MiddleOf(HCDropButtonRect(Ctl())); }
    LPARAM OnX() const { return MiddleOf(HCXButtonRect(Ctl())); }
    void   Down(LPARAM at) const { Send(WM_LBUTTONDOWN, MK_LBUTTON, at); }
    void   Move(LPARAM at) const { Send(WM_MOUSEMOVE, 0, at); }
    void   Up(LPARAM at) const { Send(WM_LBUTTONUP, 0, at); }
    int Flags() const { return Ctl()->wFlags & (HCF_BTNDOWN | HCF_BTNHOT | HCF_CAPTURE | HCF_XBTNDOWN | HCF_XBTNHOT); }

    static constexpr LPARAM outside = 0x00050005;
};

TEST_F(ComboMouse, PressOnTheDropButtonOpensAndCloses)
{
    MakeItems(edits);
    Blur();
    Told();
    Down(OnDrop());
    EXPECT_EQ(Face(), GetFocus());
    EXPECT_EQ(HCF_BTNDOWN | HCF_BTNHOT | HCF_CAPTURE, Flags());
    EXPECT_EQ(combo, GetCapture());
    EXPECT_TRUE(IsDropped());
    Up(OnDrop());
    EXPECT_EQ(0, Flags());
    EXPECT_NE(combo, GetCapture());
    EXPECT_TRUE(IsDropped());
    Down(OnDrop());
    EXPECT_FALSE(IsDropped());
    Up(OnDrop());
    EXPECT_EQ((Ints{ HCN_SETFOCUS, HCN_DROPDOWN, HCN_CLOSEUP }), Told());
}

TEST_F(ComboMouse, HeldButtonLooksPressedOnlyUnderTheMouse)
{
    MakeItems(edits);
    Down(OnDrop());
    Move(outside);
    EXPECT_EQ(HCF_BTNHOT | HCF_CAPTURE, Flags());
    Move(OnDrop());
    EXPECT_EQ(HCF_BTNDOWN | HCF_BTNHOT | HCF_CAPTURE, Flags());
    Up(outside);
    EXPECT_EQ(0, Flags());
}

TEST_F(ComboMouse, ExtraButtonTellsWhenReleasedInside)
{
    for (const DWORD style : { HCS_XBUTTON, HCS_STACKED, HCS_NOBUTTON }) {
        MakeItems(edits | style);
        Down(OnX());
        EXPECT_EQ(HCF_XBTNDOWN | HCF_XBTNHOT | HCF_CAPTURE, Flags()) << style;
        EXPECT_EQ(Ints(), Told()) << style;
        Up(OnX());
        EXPECT_EQ(0, Flags()) << style;
        EXPECT_EQ((Ints{ HCN_XBUTTON }), Told()) << style;
    }
}

TEST_F(ComboMouse, ExtraButtonReleasedOutsideTellsNothing)
{
    MakeItems(edits | HCS_XBUTTON);
    Down(OnX());
    Move(outside);
    EXPECT_EQ(HCF_XBTNHOT | HCF_CAPTURE, Flags());
    Move(OnX());
    EXPECT_EQ(HCF_XBTNDOWN | HCF_XBTNHOT | HCF_CAPTURE, Flags());
    Up(outside);
    EXPECT_EQ(0, Flags());
    EXPECT_EQ(Ints(), Told());
}

TEST_F(ComboMouse, ExtraButtonClosesAnOpenList)
{
    MakeItems(edits | HCS_XBUTTON);
    Send(CB_SHOWDROPDOWN, TRUE);
    Told();
    Down(OnX());
    EXPECT_EQ((Ints{ HCN_CLOSEUP }), Told());
    Up(OnX());
    EXPECT_EQ((Ints{ HCN_XBUTTON }), Told());
}

TEST_F(ComboMouse, ButtonsAreHotUnderTheMouse)
{
    MakeItems(edits | HCS_XBUTTON);
    Move(OnDrop());
    EXPECT_EQ(HCF_BTNHOT, Flags());
    Move(OnX());
    EXPECT_EQ(HCF_XBTNHOT, Flags());
    Send(WM_MOUSELEAVE);
    EXPECT_EQ(0, Flags());
    Move(OnDrop());
    Send(WM_MOUSELEAVE);
    EXPECT_EQ(0, Flags());
}

TEST_F(ComboMouse, CancelModeEndsEverything)
{
    MakeItems(edits | HCS_XBUTTON);
    Down(OnX());
    Send(WM_CANCELMODE);
    EXPECT_EQ(0, Flags());
    EXPECT_NE(combo, GetCapture());
    Up(OnX());
    EXPECT_EQ(Ints(), Told());
}

TEST_F(ComboMouse, PressOnASimpleComboOnlyFocuses)
{
    Make("%120%ss", HCS_EDIT | HCS_XBUTTON, 160, 120);
    Down(MAKELPARAM(155, 5));
    EXPECT_EQ(Face(), GetFocus());
    EXPECT_EQ(0, Flags());
    EXPECT_EQ((Ints{ HCN_SETFOCUS }), Told());
}

TEST_F(ComboMouse, WheelPagesTheList)
{
    Make("%120%ss", HCS_EDIT, 160, 80);
    for (int i = 0; i < 40; ++i) {
        Add({ "item" });
    }
    const int page = std::max(static_cast<int>(Ctl()->pDrop->cRows) - 2, 1);
    EXPECT_EQ(0, Send(WM_MOUSEWHEEL, MAKEWPARAM(0, -120)));
    EXPECT_EQ(page, Send(HLM_GETTOP));
    Send(WM_MOUSEWHEEL, MAKEWPARAM(0, 120));
    EXPECT_EQ(0, Send(HLM_GETTOP));
    ToFace(WM_MOUSEWHEEL, MAKEWPARAM(0, -120));
    EXPECT_EQ(page, Send(HLM_GETTOP)) << "a wheel over the face comes here";
}

TEST_F(ComboMouse, RealClicksOpenAndPick)
{
    for (const DWORD face : { edits, static_cast<DWORD>(HCS_DROPDOWN) }) {
        MakeItems(face);
        const RECT drop = HCDropButtonRect(Ctl());
        ClickAt(combo, static_cast<int>(drop.left) + 4, 10);
        EXPECT_TRUE(PumpUntil([&] { return IsDropped(); }));
        ClickAt(List(), 10, static_cast<int>(Ctl()->pDrop->cyRow) * 3 / 2);
        EXPECT_TRUE(PumpUntil([&] { return !IsDropped(); }));
        EXPECT_EQ("pear", Text());
        EXPECT_EQ((Ints{ HCN_DROPDOWN, HCN_SELCHANGE, HCN_SELENDOK, HCN_CLOSEUP }), Told());
        EXPECT_EQ(Face(), GetFocus());
    }
}

TEST_F(ComboMouse, DoubleClickInTheListOfAnEditIsTold)
{
    Make("%120%ss", HCS_EDIT, 160, 120);
    SendMessageA(List(), WM_LBUTTONDBLCLK, 0, 0);
    EXPECT_EQ((Ints{ HCN_DBLCLK }), Told());
    Make("%120%ss", 0, 160, 120);
    SendMessageA(List(), WM_LBUTTONDBLCLK, 0, 0);
    EXPECT_EQ(Ints(), Told());
}

TEST_F(ComboMouse, OtherNotificationsOfThePartsStayInside)
{
    Make("%120%ss", edits);
    for (const int code : { HLN_SETFOCUS, HLN_KILLFOCUS, HLN_ENTER, HLN_TAB, HLN_HELP }) {
        ListTells(code);
    }
    for (const int code : { HEN_SETFOCUS, HEN_RETURN, HEN_KILLFOCUS, HEN_MAXTEXT, HEN_BADINPUT }) {
        Send(WM_COMMAND, MAKEWPARAM(comboEditId, code), AsParam(Face()));
    }
    Send(WM_COMMAND, MAKEWPARAM(99, 1), 0);
    EXPECT_EQ(Ints(), Told());
    Send(WM_COMMAND, MAKEWPARAM(comboEditId, EN_UPDATE), AsParam(Face()));
    Send(WM_COMMAND, MAKEWPARAM(comboEditId, EN_CHANGE), AsParam(Face()));
    EXPECT_EQ((Ints{ HCN_EDITUPDATE, HCN_EDITCHANGE }), Told());
}

TEST_F(ComboMouse, PointerThatLeavesTakesTheMarkAlong)
{
    MakeItems(edits);
    const RECT drop = HCDropButtonRect(Ctl());
    MoveMouse(combo, static_cast<int>(drop.left) + 4, 10);
    EXPECT_EQ(HCF_BTNHOT, Flags());
    MoveMouse(parent.hwnd(), 700, 500);
    EXPECT_TRUE(PumpUntil([&] { return Flags() == 0; }));
}

TEST_F(ComboMouse, ButtonsAreRedrawnAtEachChangeAndOnlyThen)
{
    MakeItems(edits | HCS_XBUTTON);
    pfnDrawPart = CountParts;
    const auto paintedBy = [&](const std::function<void()>& work) {
        PumpPending();
        gPainted = 0;
        work();
        return gPainted;
    };
    EXPECT_EQ(1, paintedBy([&] { Move(OnDrop()); }));
    EXPECT_EQ(0, paintedBy([&] { Move(OnDrop()); }));
    EXPECT_EQ(2, paintedBy([&] { Move(OnX()); })) << "one isn't hot any more, and one is";
    EXPECT_EQ(0, paintedBy([&] { Move(OnX()); }));
    EXPECT_EQ(1, paintedBy([&] { Send(WM_MOUSELEAVE); }));
    Down(OnX());
    EXPECT_EQ(0, paintedBy([&] { Move(OnX()); }));
    EXPECT_EQ(1, paintedBy([&] { Move(outside); }));
    EXPECT_EQ(0, paintedBy([&] { Move(outside); }));
    EXPECT_EQ(1, paintedBy([&] { Move(OnX()); }));
    Up(outside);
}

TEST_F(ComboMouse, CancelModeLeavesTheMouseToADisabledCombo)
{
    MakeItems(edits);
    EnableWindow(combo, FALSE);
    SetCapture(combo);
    Send(WM_CANCELMODE);
    EXPECT_EQ(combo, GetCapture());
    EnableWindow(combo, TRUE);
    SetCapture(combo);
    Send(WM_CANCELMODE);
    EXPECT_EQ(nullptr, GetCapture());
}

} // namespace
