// Opening and closing the list of a combo, and the window that it stands in.
#include "combo/drop_window.h"
#include "foundation/startup.h"
#include "griddata/grid_model.h"

namespace {

class DropLists : public DropWindow {};

TEST(DropClass, IsAListThatKeepsWhatItCovers)
{
    WNDCLASSA list = {};
    WNDCLASSA drop = {};
    ASSERT_TRUE(GetClassInfoA(hInstance, "HList", &list));
    ASSERT_TRUE(GetClassInfoA(hInstance, "HDrop", &drop));
    EXPECT_EQ(list.style | CS_SAVEBITS, drop.style);
    EXPECT_EQ(list.cbWndExtra + static_cast<int>(sizeof(LONG_PTR)), drop.cbWndExtra);
    EXPECT_EQ(&HDropWnd, drop.lpfnWndProc);
    EXPECT_EQ(hInstance, drop.hInstance);
    EXPECT_EQ(list.hCursor, drop.hCursor);
    EXPECT_EQ(list.hbrBackground, drop.hbrBackground);
}

TEST_F(DropLists, OpensBelowItsComboAndTellsBeforeItShows)
{
    MakeCombo();
    bool shown = true;
    parent.On(HCN_DROPDOWN, [&] { shown = IsWindowVisible(drop) || IsOpen(); });
    ExpectClosed();
    Open();
    ExpectOpen();
    EXPECT_FALSE(shown);
    EXPECT_EQ((Ints{ HCN_DROPDOWN }), Told());
    EXPECT_EQ(ComboRect().left, DropRect().left);
    EXPECT_EQ(ComboRect().bottom, DropRect().top);
    EXPECT_EQ(GetDesktopWindow(), GetParent(drop));
    EXPECT_EQ(face, GetFocus());
}

TEST_F(DropLists, ClosesAndTellsAfterwards)
{
    MakeCombo();
    Open();
    Told();
    bool shown = true;
    parent.On(HCN_CLOSEUP, [&] { shown = IsWindowVisible(drop) || IsOpen() || LiveHooks() || hOpenCombo; });
    Close();
    ExpectClosed();
    EXPECT_FALSE(shown);
    EXPECT_EQ((Ints{ HCN_CLOSEUP }), Told());
    Close();
    EXPECT_EQ((Ints{}), Told());
}

TEST_F(DropLists, WidthZeroIsTheCombosOwn)
{
    MakeCombo();
    Open();
    EXPECT_EQ(ComboRect().right, DropRect().right);
}

TEST_F(DropLists, TakeTheirLeastWidthAndTheirHeight)
{
    MakeCombo(HLS_NOINTEGRAL, "%100%200%ss");
    Open();
    EXPECT_EQ(HGScaleX(200), DropRect().right - DropRect().left);
    EXPECT_EQ(HGScaleY(100), DropRect().bottom - DropRect().top);
    EXPECT_EQ(1, Send(combo, HCM_SETDROPWIDTH, 260));
    EXPECT_EQ(HGScaleX(260), DropRect().right - DropRect().left) << "an open one changes at once";
}

TEST_F(DropLists, KeysToggle)
{
    struct Row {
        WORD     key;
        unsigned modifiers;
    };
    const Row rows[] = { { VK_F4, withNone }, { VK_DOWN, withAlt }, { VK_UP, withAlt } };
    for (const DWORD style : { DWORD{ HCS_EDIT }, DWORD{ 0 } }) {
        MakeCombo(style);
        for (const Row& row : rows) {
            SCOPED_TRACE(row.key);
            TypeKey(row.key, row.modifiers);
            ExpectOpen();
            TypeKey(row.key, row.modifiers);
            ExpectClosed();
            EXPECT_EQ((Ints{ HCN_DROPDOWN, HCN_CLOSEUP }), Told());
        }
        DestroyWindow(combo);
    }
}

TEST_F(DropLists, OfAHiddenComboStayClosed)
{
    MakeCombo();
    ShowWindow(combo, SW_HIDE);
    PumpPending();
    Told();
    Open();
    ExpectClosed();
    EXPECT_EQ((Ints{}), Told());
}

TEST_F(DropLists, ThatLieOpenNeverDrop)
{
    combo = Create("HComb", "%100%ss", 0, 7, { 10, 10, 120, 150 });
    drop = CtlOf(combo)->hDrop;
    Open();
    Send(combo, WM_KEYDOWN, VK_F4);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(nullptr, hOpenCombo);
    EXPECT_EQ(0, LiveHooks());
    EXPECT_EQ(combo, GetParent(drop));
}

TEST_F(DropLists, OpenTwiceWithOneHook)
{
    MakeCombo();
    Open();
    Open();
    ExpectOpen();
    Close();
    ExpectClosed();
}

TEST_F(DropLists, SecondComboClosesTheFirst)
{
    MakeCombo();
    const HWND other = AnotherCombo();
    Open();
    Told();
    Send(other, CB_SHOWDROPDOWN, TRUE);
    EXPECT_EQ((Ints{ HCN_CLOSEUP, HCN_DROPDOWN }), Told());
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(IsWindowVisible(drop));
    EXPECT_EQ(other, hOpenCombo);
    EXPECT_EQ(1, LiveHooks());
    Send(other, CB_SHOWDROPDOWN, FALSE);
    ExpectClosed();
}

TEST_F(DropLists, ComboThatIsOpenedWhileAnotherOpensIsClosedFirst)
{
    MakeCombo();
    const HWND other = AnotherCombo();
    parent.On(HCN_DROPDOWN, [&] {
        if (!CtlOf(other)->wFlags) {
            Send(other, CB_SHOWDROPDOWN, TRUE);
        }
    });
    Open();
    ExpectOpen();
    EXPECT_FALSE(Send(other, CB_GETDROPPEDSTATE));
    EXPECT_FALSE(IsWindowVisible(CtlOf(other)->hDrop));
}

TEST_F(DropLists, ComboWithoutAListOpensForTheHostAloneAndLeavesTheMouse)
{
    MakeCombo(0, "%ss");
    ASSERT_EQ(nullptr, drop);
    Open();
    EXPECT_EQ((Ints{ HCN_DROPDOWN }), Told());
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(0, LiveHooks());
    Close();
    EXPECT_EQ((Ints{ HCN_CLOSEUP }), Told());
}

TEST_F(DropLists, OpenOneThatIsParkedIsPutAwayFirst)
{
    MakeCombo();
    Open();
    Send(combo, HCM_SETDROP, 0);
    EXPECT_FALSE(IsWindowVisible(drop));
    EXPECT_EQ(0, LiveHooks());
    EXPECT_FALSE(IsOpen());
    Send(combo, HCM_SETDROP, 1);
    Open();
    ExpectOpen();
}

TEST_F(DropLists, FailedHookLeavesTheListOpen)
{
    MakeCombo();
    FailHooks(true);
    Open();
    FailHooks(false);
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(IsWindowVisible(drop));
    EXPECT_EQ(nullptr, hMouseHook);
    SetFocus(parent.hwnd());
    ExpectClosed();
}

TEST_F(DropLists, LosingTheFocusCloses)
{
    MakeCombo();
    Open();
    Told();
    SetFocus(parent.hwnd());
    ExpectClosed();
    EXPECT_EQ((Ints{ HCN_CLOSEUP, HCN_KILLFOCUS }), Told());
}

TEST_F(DropLists, HookIsSetForAllThreadsOfTheDesktop)
{
    MakeCombo();
    Open();
    EXPECT_EQ(WH_MOUSE, LastHook().kind);
    EXPECT_EQ(&MouseHookProc, LastHook().proc);
    EXPECT_EQ(hInstance, LastHook().module);
}

TEST_F(DropLists, ButtonUpWithoutANewRowClosesAndTellsThatOneWasTaken)
{
    for (const DWORD style : { DWORD{ HCS_EDIT }, DWORD{ 0 } }) {
        MakeCombo(style);
        Send(combo, HLM_SETCURRENT, 1);
        Open();
        Told();
        EXPECT_EQ(0, Send(drop, WM_LBUTTONUP, 0, MAKELPARAM(5, 5)));
        ExpectClosed();
        EXPECT_EQ((Ints{ HCN_SELENDOK, HCN_CLOSEUP }), Told());
        EXPECT_EQ("two", Text());
        DestroyWindow(combo);
    }
}

TEST_F(DropLists, ButtonUpInAListThatIsNotOpenTakesNothing)
{
    MakeCombo();
    const HWND other = AnotherCombo();
    Open();
    Told();
    Send(CtlOf(other)->hDrop, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    ExpectOpen();
    EXPECT_EQ((Ints{}), Told());
}

TEST_F(DropLists, MouseOverThemLeavesTheFocusInTheFace)
{
    MakeCombo(HCS_EDIT);
    SetFocus(parent.hwnd());
    EXPECT_EQ(0, Send(drop, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(drop), MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)));
    EXPECT_EQ(face, GetFocus());
    Told();
    EXPECT_EQ(0, Send(drop, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(drop), MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)));
    EXPECT_EQ((Ints{}), Told());
}

WNDPROC gFaceProc;
WPARAM  gWheel; // what the face got of the wheel

LRESULT CALLBACK NoteWheel(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_MOUSEWHEEL) {
        gWheel = wParam;
        return 0;
    }
    return CallWindowProcA(gFaceProc, hwnd, message, wParam, lParam);
}

TEST_F(DropLists, WheelGoesToTheFace)
{
    MakeCombo();
    seen.Skip(WM_MOUSEWHEEL);
    gWheel = 0;
    gFaceProc = SubclassWW(face, NoteWheel);
    EXPECT_EQ(0, Send(drop, WM_MOUSEWHEEL, MAKEWPARAM(0, 120), 0));
    EXPECT_EQ(WPARAM{ MAKEWPARAM(0, 120) }, gWheel);
}

TEST_F(DropLists, WheelScrollsByThePageInTheEnd)
{
    MakeCombo(HCS_EDIT);
    for (int i = 0; i < 40; ++i) {
        HCAddItemEx(combo, "more", nullptr);
    }
    Open();
    Send(drop, WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, -120)), 0);
    EXPECT_LT(0, Send(drop, HLM_GETTOP));
    Send(drop, WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, 120)), 0);
    EXPECT_EQ(0, Send(drop, HLM_GETTOP));
}

TEST_F(DropLists, WheelOverAClosedOneScrollsNothing)
{
    MakeCombo(HCS_EDIT);
    for (int i = 0; i < 40; ++i) {
        HCAddItemEx(combo, "more", nullptr);
    }
    Send(face, WM_MOUSEWHEEL, static_cast<WPARAM>(MAKELONG(0, -120)), 0);
    EXPECT_EQ(0, Send(drop, HLM_GETTOP));
}

TEST_F(DropLists, OpenWithTheirCurrentItemInView)
{
    for (const int current : { 0, 20, 44 }) {
        MakeCombo(HCS_EDIT);
        for (int i = 0; i < 40; ++i) {
            HCAddItemEx(combo, "more", nullptr);
        }
        Send(combo, CB_SETCURSEL, static_cast<WPARAM>(current));
        for (const int top : { 0, 44 }) {
            Send(drop, HLM_SETTOP, static_cast<WPARAM>(top));
            Open();
            RECT item = {};
            const RECT client = RecordOf<HListCtl>(drop)->rcClient;
            EXPECT_TRUE(HLItemRect(RecordOf<HListCtl>(drop), current, &item)) << current << ", top " << top;
            EXPECT_LE(item.bottom, client.bottom) << current << ", top " << top;
            Close();
        }
        DestroyWindow(combo);
    }
}

TEST_F(DropLists, HaveTheFocusBrushAsTheirBackgroundOnTheDesktopAlone)
{
    MakeCombo(HCS_FOCUSBRUSH);
    const HListCtl* list = RecordOf<HListCtl>(drop);
    EXPECT_NE(nullptr, +list->hFocusBrush);
    EXPECT_EQ(+list->hFocusBrush, +list->hBkBrush);
    MakeCombo();
    EXPECT_EQ(nullptr, +RecordOf<HListCtl>(drop)->hBkBrush);
    const HWND simple = Create("HComb", "%100%ss", HCS_FOCUSBRUSH, 9, { 200, 10, 120, 150 });
    EXPECT_EQ(nullptr, +RecordOf<HListCtl>(CtlOf(simple)->hDrop)->hBkBrush);
}

TEST_F(DropLists, SharedItemsAreLaidOutWhenTheListOpens)
{
    MakeCombo();
    const HWND other = AnotherCombo();
    ASSERT_EQ(1, HCSetList(other, HCGetList(combo)));
    for (int i = 0; i < 40; ++i) {
        HCAddItemEx(combo, "more", nullptr);
    }
    const HWND list = CtlOf(other)->hDrop;
    int        least = 0;
    int        before = 0;
    int        after = 0;
    GetScrollRange(list, SB_VERT, &least, &before);
    Send(other, CB_SHOWDROPDOWN, TRUE);
    GetScrollRange(list, SB_VERT, &least, &after);
    EXPECT_EQ(45, Send(list, HLM_GETCOUNT));
    EXPECT_LT(before, after);
    Send(other, CB_SHOWDROPDOWN, FALSE);
    DestroyWindow(other);
}

TEST_F(DropLists, ReturnAndEscapeClose)
{
    MakeCombo(HCS_EDIT);
    TypeKey(VK_F4);
    TypeKey(VK_DOWN);
    Told();
    TypeKey(VK_RETURN);
    ExpectClosed();
    EXPECT_EQ((Ints{ HCN_SELENDOK, HCN_CLOSEUP }), Told());
    TypeKey(VK_F4);
    Told();
    TypeKey(VK_ESCAPE);
    ExpectClosed();
    EXPECT_EQ((Ints{ HCN_CLOSEUP }), Told());
}

TEST_F(DropLists, HostMayMoveTheListWhileItIsToldThatItOpens)
{
    MakeCombo();
    parent.On(HCN_DROPDOWN, [&] { SetWindowPos(drop, nullptr, 333, 222, 0, 0, SWP_NOSIZE | SWP_NOZORDER); });
    Open();
    ExpectOpen();
    EXPECT_EQ(333, DropRect().left);
    EXPECT_EQ(222, DropRect().top);
}

} // namespace
