// Keys and the mouse over a list, and the notifications that they cause.
#include "list_window.h"
#include "support/pixels.h"

#include <algorithm>

namespace {

class ListInput : public ListWindow {
protected:
    void MakeWith(DWORD style, int rows, int count)
    {
        Make("%ss", style);
        ShowRows(rows);
        Fill(count);
        Focus();
        PumpPending();
        seen.Clear();
    }
    void SendUnder(int held, UINT message, WPARAM wParam)
    {
        const HeldKeys keys({ held });
        Send(message, wParam);
    }
    void ClickItem(int index, unsigned modifiers = withNone) { ClickAt(list, 5, MiddleOf(index), modifiers); }
};

TEST_F(ListInput, KeysMoveTheCurrentItem)
{
    struct Row {
        WORD key;
        int  from;
        int  to;
    };
    const Row rows[] = {
        { VK_HOME, 9, 0 },   { VK_END, 3, 29 },   { VK_UP, 5, 4 },    { VK_UP, 0, 0 },    { VK_DOWN, 5, 6 },
        { VK_DOWN, 29, 29 }, { VK_LEFT, 5, 4 },   { VK_RIGHT, 5, 6 }, { VK_PRIOR, 9, 6 }, { VK_PRIOR, 1, 0 },
        { VK_NEXT, 9, 12 },  { VK_NEXT, 28, 29 }, { VK_DOWN, -1, 0 }, { VK_UP, -1, 0 },   { VK_F5, 7, 7 },
    };
    MakeWith(0, 5, 30);
    for (const Row& row : rows) {
        Send(HLM_SETCURRENT, static_cast<WPARAM>(row.from));
        TypeKey(row.key);
        EXPECT_EQ(row.to, Current()) << "key " << row.key << " from " << row.from;
    }
}

TEST_F(ListInput, KeysOfAFieldStepByFive)
{
    Make("%ss", HLS_FIELD | HLS_NOSCROLL, 100, 24);
    Fill(20);
    Send(HLM_SETCURRENT, 10);
    Key(VK_NEXT);
    EXPECT_EQ(15, Current());
    EXPECT_EQ(15, Top());
    Key(VK_PRIOR);
    EXPECT_EQ(10, Current());
    Key(VK_UP);
    EXPECT_EQ(9, Current());
}

TEST_F(ListInput, SidewaysKeysMoveByAColumn)
{
    struct Row {
        WORD key;
        int  from;
        int  to;
    };
    const Row rows[] = { { VK_LEFT, 4, 1 }, { VK_LEFT, 2, 2 }, { VK_RIGHT, 4, 7 }, { VK_RIGHT, 18, 18 } };
    Make("%ss", HLS_MULTICOLUMN);
    Send(HLM_SETCOLUMNWIDTH, 60);
    Fill(20);
    ShowRows(3);
    for (const Row& row : rows) {
        Send(HLM_SETCURRENT, static_cast<WPARAM>(row.from));
        Key(row.key);
        EXPECT_EQ(row.to, Current()) << "key " << row.key << " from " << row.from;
    }
}

TEST_F(ListInput, KeyThatMovesNotifiesOnce)
{
    MakeWith(0, 5, 10);
    TypeKey(VK_DOWN);
    EXPECT_EQ((Ints{ HLN_SELCHANGE }), Told());
    EXPECT_TRUE(Ctl()->wFlags & CF_CHANGED);
    TypeKey(VK_HOME);
    EXPECT_EQ((Ints{}), Told()) << "it stays";
    Send(HLM_SETCURRENT, 3);
    EXPECT_EQ((Ints{}), Told());
    EXPECT_FALSE(Ctl()->wFlags & CF_CHANGED);
}

TEST_F(ListInput, KeysWithoutATargetNotify)
{
    struct Row {
        WORD     key;
        unsigned modifiers;
        int      code;
    };
    const Row rows[] = { { VK_RETURN, withNone, HLN_ENTER },
                         { VK_ESCAPE, withNone, HLN_ESCAPE },
                         { VK_TAB, withNone, HLN_TAB },
                         { VK_TAB, withShift, HLN_BACKTAB },
                         { VK_F1, withNone, HLN_HELP } };
    WPARAM    next = 99;
    parent.OnMessage(WM_NEXTDLGCTL, [&](WPARAM wParam, LPARAM lParam) {
        next = wParam;
        EXPECT_EQ(0, lParam) << "a direction, no window";
        return LRESULT{ 0 };
    });
    MakeWith(0, 5, 3);
    for (const Row& row : rows) {
        next = 99;
        TypeKey(row.key, row.modifiers);
        EXPECT_EQ((Ints{ row.code }), Told()) << "key " << row.key;
        const WPARAM wanted = row.key != VK_TAB ? 99 : (row.modifiers ? 1 : 0);
        EXPECT_EQ(wanted, next) << "key " << row.key;
    }
}

TEST_F(ListInput, KeyOfAMultipleSelectionMovesOnlyTheCurrentItem)
{
    MakeWith(HLS_MULTISEL, 5, 10);
    TypeKey(VK_DOWN);
    EXPECT_EQ(1, Current());
    EXPECT_EQ((Ints{}), Selected());
    TypeKey(VK_SPACE);
    EXPECT_EQ((Ints{ 1 }), Selected());
    EXPECT_EQ(1, Current());
}

TEST_F(ListInput, ShiftExtendsTheSelectionFromTheAnchor)
{
    MakeWith(HLS_EXTSEL, 5, 10);
    TypeKey(VK_DOWN);
    EXPECT_EQ((Ints{ 1 }), Selected());
    TypeKey(VK_DOWN, withShift);
    TypeKey(VK_DOWN, withShift);
    EXPECT_EQ((Ints{ 1, 2, 3 }), Selected());
    TypeKey(VK_UP, withShift);
    EXPECT_EQ((Ints{ 1, 2 }), Selected());
    TypeKey(VK_DOWN);
    EXPECT_EQ((Ints{ 3 }), Selected());
}

TEST_F(ListInput, TypedCharacterFindsTheNextItem)
{
    Make();
    Add({ "apple", "Banana", "avocado", "b\tx", "cherry" });
    Focus();
    struct Row {
        const char* typed;
        int         current;
    };
    const Row rows[] = { { "a", 0 }, { "a", 2 }, { "a", 0 }, { "b", 3 }, { "c", 4 }, { "z", 4 } };
    for (const Row& row : rows) {
        TypeText(row.typed);
        EXPECT_EQ(row.current, Current()) << row.typed;
    }
}

TEST_F(ListInput, FindTextTakesAWholeTextBeforeABeginning)
{
    Make();
    Add({ "abc", "ab\tz", "AB", "x" });
    EXPECT_EQ(1, SendPtr(HLM_FINDTEXT, 0, "ab"));
    EXPECT_EQ(2, SendPtr(HLM_FINDTEXT, 2, "ab"));
    EXPECT_EQ(1, SendPtr(HLM_FINDTEXT, 3, "ab"));
    EXPECT_EQ(1, SendPtr(HLM_FINDTEXT, 4, "ab")) << "the start is taken modulo the count";
    EXPECT_EQ(0, SendPtr(HLM_FINDTEXT, 1, "abc"));
    EXPECT_EQ(-1, SendPtr(HLM_FINDTEXT, 0, "y"));
    EXPECT_EQ(3, SendPtr(HLM_SELECTTEXT, 0, "X"));
    EXPECT_EQ(3, Current());
    HLEmptyList(list);
    EXPECT_EQ(-1, SendPtr(HLM_FINDTEXT, 0, "ab"));
}

TEST_F(ListInput, FindTextReadsFormattedNumbers)
{
    Make("%ni");
    AddNumbers({ 12, 125, 7 });
    EXPECT_EQ(1, SendPtr(HLM_FINDTEXT, 0, "125"));
    EXPECT_EQ(2, SendPtr(HLM_FINDTEXT, 0, "7"));
}

TEST_F(ListInput, ClickTakesTheFocusAndMakesTheItemCurrent)
{
    MakeWith(0, 5, 10);
    Blur();
    seen.Clear();
    ClickItem(2);
    EXPECT_EQ(list, GetFocus());
    EXPECT_EQ(2, Current());
    EXPECT_EQ((Ints{ HLN_SETFOCUS, HLN_SELCHANGE }), Told());
    EXPECT_FALSE(Ctl()->wFlags & (HLF_TRACKING | HLF_MOUSEDOWN));
    EXPECT_NE(list, GetCapture());
    ClickItem(2);
    EXPECT_EQ((Ints{}), Told());
}

TEST_F(ListInput, NotificationOfAMouseRangeWaitsForTheButton)
{
    MakeWith(0, 5, 10);
    PressButton(list, 5, MiddleOf(1));
    EXPECT_EQ(list, GetCapture());
    MoveMouse(list, 5, MiddleOf(3));
    EXPECT_EQ(3, Current());
    EXPECT_EQ((Ints{}), Told());
    ReleaseButton(list, 5, MiddleOf(3));
    EXPECT_EQ((Ints{ HLN_SELCHANGE }), Told());
}

struct LostMouse {
    const char* what;
    void (*lose)(HWND list);
};

constexpr LostMouse lostMice[] = {
    { "cancelled", [](HWND list) { SendMessageA(list, WM_CANCELMODE, 0, 0); } },
    { "disabled", [](HWND list) { EnableWindow(list, FALSE); } },
    { "another window takes it", [](HWND list) { SetCapture(GetParent(list)); } },
    { "released", [](HWND) { ReleaseCapture(); } },
};

TEST_F(ListInput, ListThatLosesTheMouseEndsItsDrag)
{
    for (const LostMouse& line : lostMice) {
        MakeWith(0, 5, 10);
        PressButton(list, 5, MiddleOf(1));
        MoveMouse(list, 5, MiddleOf(2));
        ASSERT_EQ((Ints{}), Told()) << line.what;
        line.lose(list);
        const Ints told = Told(); // a window that is disabled may lose the focus, too
        EXPECT_EQ(1, std::count(told.begin(), told.end(), HLN_SELCHANGE)) << line.what;
        EXPECT_FALSE(Ctl()->wFlags & (HLF_TRACKING | HLF_MOUSEDOWN)) << line.what;
        Send(WM_MOUSEMOVE, 0, MAKELPARAM(5, MiddleOf(4)));
        EXPECT_EQ(2, Current()) << line.what;
        ReleaseCapture();
        ReleaseButton(parent.hwnd(), 500, 400);
        EXPECT_EQ((Ints{}), Told()) << line.what;
    }
}

TEST_F(ListInput, ListThatLosesTheMouseSelectsTheRangeSoFar)
{
    for (const LostMouse& line : lostMice) {
        MakeWith(HLS_EXTSEL, 5, 10);
        PressButton(list, 5, MiddleOf(1));
        MoveMouse(list, 5, MiddleOf(3));
        line.lose(list);
        EXPECT_EQ((Ints{ 1, 2, 3 }), Selected()) << line.what;
        ReleaseCapture();
        ReleaseButton(parent.hwnd(), 500, 400);
    }
}

TEST_F(ListInput, ListThatLosesTheMouseMayBeDestroyedInItsNotification)
{
    for (const LostMouse& line : lostMice) {
        MakeWith(0, 5, 10);
        PressButton(list, 5, MiddleOf(1));
        MoveMouse(list, 5, MiddleOf(3));
        parent.On(HLN_SELCHANGE, [this] { DestroyWindow(list); });
        line.lose(list);
        EXPECT_FALSE(IsWindow(list)) << line.what;
        parent.On(HLN_SELCHANGE, nullptr);
        ReleaseCapture();
        ReleaseButton(parent.hwnd(), 500, 400);
    }
}

TEST_F(ListInput, LinkIsWrittenWhenTheButtonGoesUp)
{
    Make("%ni");
    ShowRows(4);
    AddNumbers({ 10, 20, 30 });
    int data = 0;
    HLSetDataLink(list, &data, 0);
    PressButton(list, 5, MiddleOf(1));
    EXPECT_EQ(0, data);
    ReleaseButton(list, 5, MiddleOf(1));
    EXPECT_EQ(20, data);
}

TEST_F(ListInput, ClickTogglesInAMultipleSelection)
{
    MakeWith(HLS_MULTISEL, 5, 10);
    ClickItem(1);
    ClickItem(3);
    EXPECT_EQ((Ints{ 1, 3 }), Selected());
    ClickItem(1);
    EXPECT_EQ((Ints{ 3 }), Selected());
    EXPECT_EQ(1, Current());
}

TEST_F(ListInput, ClickSelectsAloneInAnExtendedSelection)
{
    MakeWith(HLS_EXTSEL, 5, 10);
    ClickItem(1);
    ClickItem(3);
    EXPECT_EQ((Ints{ 3 }), Selected());
    ClickItem(1, withShift);
    EXPECT_EQ((Ints{ 1, 2, 3 }), Selected());
    EXPECT_EQ(3, +Ctl()->nAnchor);
    ClickItem(0);
    EXPECT_EQ((Ints{ 0 }), Selected());
}

TEST_F(ListInput, CtrlClickTogglesInAnExtendedSelection)
{
    MakeWith(HLS_EXTSEL, 5, 10);
    ClickItem(1);
    ClickItem(3, withCtrl);
    EXPECT_EQ((Ints{ 1, 3 }), Selected());
    ClickItem(1, withCtrl);
    EXPECT_EQ((Ints{ 3 }), Selected());
    EXPECT_EQ(1, Current());
}

TEST_F(ListInput, CtrlDragDeselectsWhatItBeganToDeselect)
{
    MakeWith(HLS_EXTSEL, 6, 10);
    Select({ 1, 2, 3, 5 });
    {
        const HeldKeys held({ VK_CONTROL });
        Send(WM_LBUTTONDOWN, MK_LBUTTON | MK_CONTROL, MAKELPARAM(5, MiddleOf(1)));
    }
    EXPECT_EQ((Ints{ 2, 3, 5 }), Selected());
    Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, MiddleOf(3)));
    EXPECT_EQ(0, HLIsSelected(list, 2)) << "the range under way shows before it is stored";
    EXPECT_EQ((Ints{ 2, 3, 5 }), Selected());
    Send(WM_LBUTTONUP, 0, MAKELPARAM(5, MiddleOf(3)));
    EXPECT_EQ((Ints{ 5 }), Selected());
}

TEST_F(ListInput, DragSelectsARangeThatGrowsShrinksAndFlips)
{
    MakeWith(HLS_EXTSEL, 8, 20);
    PressButton(list, 5, MiddleOf(3));
    struct Row {
        int  to;
        Ints selected;
    };
    const Row rows[] = { { 6, { 3, 4, 5, 6 } }, { 4, { 3, 4 } }, { 1, { 1, 2, 3 } }, { 3, { 3 } }, { 5, { 3, 4, 5 } } };
    for (const Row& row : rows) {
        MoveMouse(list, 5, MiddleOf(row.to));
        Ints shown;
        for (int i = 0; i < 20; ++i) {
            if (HLIsSelected(list, i)) {
                shown.push_back(i);
            }
        }
        EXPECT_EQ(row.selected, shown) << "to " << row.to;
        EXPECT_EQ((Ints{}), Selected()) << "nothing is stored before the button is up";
        const Pixels after = ShotOf(list);
        InvalidateRect(list, nullptr, TRUE);
        EXPECT_TRUE(SamePixels(ShotOf(list), after)) << "what changed was repainted, to " << row.to;
    }
    ReleaseButton(list, 5, MiddleOf(5));
    EXPECT_EQ((Ints{ 3, 4, 5 }), Selected());
}

TEST_F(ListInput, DragBelowTheListScrolls)
{
    MakeWith(0, 4, 20);
    PressButton(list, 5, MiddleOf(3));
    MoveMouse(list, 5, 4 * RowHeight() + 3);
    EXPECT_EQ(4, Current());
    EXPECT_EQ(1, Top());
    MoveMouse(list, 5, 4 * RowHeight() + 4);
    EXPECT_EQ(5, Current());
    ReleaseButton(list, 5, 5);
}

TEST_F(ListInput, FieldTakesNoMouseSelection)
{
    Make("%ss", HLS_FIELD | HLS_NOSCROLL, 100, 24);
    Fill(3);
    Send(HLM_SETCURRENT, 1);
    ClickAt(list, 5, 5);
    EXPECT_EQ(1, Current());
    EXPECT_FALSE(Ctl()->wFlags & HLF_TRACKING);
}

TEST_F(ListInput, DoubleClickNotifies)
{
    MakeWith(0, 5, 5);
    SetDoubleClickTime(500);
    DoubleClickAt(list, 5, MiddleOf(1));
    const Ints told = Told();
    EXPECT_NE(told.end(), std::find(told.begin(), told.end(), HLN_DBLCLK));
    EXPECT_EQ(1, Send(WM_LBUTTONDBLCLK));
}

TEST_F(ListInput, ClickWhileNothingIsRedrawnIsNotRefused)
{
    MakeWith(0, 5, 5);
    Send(HLM_SETREDRAW, 0);
    Send(WM_LBUTTONDOWN, 0, MAKELPARAM(5, MiddleOf(2)));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(5, MiddleOf(2)));
    EXPECT_EQ(2, Current());
    Send(HLM_SETREDRAW, 1, 1);
}

TEST_F(ListInput, HotItemFollowsTheMouse)
{
    MakeWith(HLS_HOTTRACK, 5, 10);
    MoveMouse(list, 5, MiddleOf(2));
    EXPECT_EQ(2, +Ctl()->nHot);
    MoveMouse(list, 5, MiddleOf(4));
    EXPECT_EQ(4, +Ctl()->nHot);
    EXPECT_EQ((Ints{}), Told());
    Key(VK_DOWN); // sent: the pointer that stands still may be told of once more before a typed one arrives
    EXPECT_EQ(5, Current()) << "a key goes on from the hot item";
    EXPECT_EQ(-1, +Ctl()->nHot);
    Ctl()->nHot = 3;
    ShowWindow(list, SW_HIDE);
    EXPECT_EQ(-1, +Ctl()->nHot);
}

TEST_F(ListInput, CurrentItemIsMarkedAgainWhenItIsSetOnceMore)
{
    MakeWith(HLS_HOTTRACK, 5, 10);
    Blur();
    Send(HLM_SETCURRENT, 2);
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(5, MiddleOf(4)));
    PumpPending();
    ASSERT_EQ(4, +Ctl()->nHot);
    const Invalidated work = InvalidatedBy([this] { Send(HLM_SETCURRENT, 2); });
    const RECT        item = ItemRect(2);
    EXPECT_LE(work.area.top, item.top);
    EXPECT_GE(work.area.bottom, item.bottom);
}

TEST_F(ListInput, HotItemGoesWithTheItems)
{
    MakeWith(HLS_HOTTRACK, 5, 10);
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(5, MiddleOf(4)));
    PumpPending();
    ASSERT_EQ(4, +Ctl()->nHot);
    HLEmptyList(list);
    Fill(3);
    EXPECT_EQ(-1, +Ctl()->nHot);
    seen.Clear();
    Key(VK_HOME);
    EXPECT_EQ(0, Current());
}

TEST_F(ListInput, MouseMarksNothingWithoutHotTracking)
{
    MakeWith(0, 5, 10);
    MoveMouse(list, 5, MiddleOf(2));
    EXPECT_EQ(-1, +Ctl()->nHot);
}

TEST_F(ListInput, FocusIsToldOfInOrder)
{
    const HWND other = WindowTest::Create("BUTTON", "", 0, 9, { 300, 10, 50, 20 });
    MakeWith(0, 5, 3);
    SetFocus(other);
    Focus();
    EXPECT_EQ((Ints{ HLN_KILLFOCUS, HLN_SETFOCUS }), Told());
}

TEST_F(ListInput, DialogCodeDependsOnTheStyle)
{
    Make();
    EXPECT_EQ(DLGC_WANTARROWS | DLGC_WANTCHARS, Send(WM_GETDLGCODE));
    Make("%ss", HLS_WANTKEYS);
    EXPECT_EQ(DLGC_WANTALLKEYS, Send(WM_GETDLGCODE));
}

TEST_F(ListInput, ListDestroyedInANotificationIsLeftAlone)
{
    MakeWith(0, 5, 5);
    parent.On(HLN_SELCHANGE, [&] { DestroyWindow(list); });
    Key(VK_DOWN);
    EXPECT_FALSE(IsWindow(list));
}

TEST_F(ListInput, ClickOrKeyOnAnEmptyListSelectsNothing)
{
    struct Row {
        const char*           what;
        std::function<void()> work;
    };
    const Row rows[] = {
        { "Down", [&] { Key(VK_DOWN); } },
        { "Space", [&] { Key(VK_SPACE); } },
        { "Shift+Down", [&] { SendUnder(VK_SHIFT, WM_KEYDOWN, VK_DOWN); } },
        { "click", [&] { ClickAt(list, 5, 5); } },
        { "Ctrl+click", [&] { SendUnder(VK_CONTROL, WM_LBUTTONDOWN, 0); } },
    };
    for (const DWORD style : { HLS_MULTISEL, HLS_EXTSEL }) {
        for (const Row& row : rows) {
            SCOPED_TRACE(testing::Message() << row.what << " style " << style);
            Make("%ss", style);
            row.work();
            Send(WM_LBUTTONUP);
            EXPECT_EQ(0, Send(HLM_GETSELCOUNT));
            Add({ "a", "b" });
            EXPECT_EQ((Ints{}), Selected());
        }
    }
}

TEST_F(ListInput, SpaceWithoutACurrentItemSelectsNothing)
{
    for (const DWORD style : { HLS_MULTISEL, HLS_EXTSEL }) {
        MakeWith(style, 5, 3);
        Send(HLM_SETCURRENT, static_cast<WPARAM>(-1));
        Key(VK_SPACE);
        EXPECT_EQ((Ints{}), Selected()) << "style " << style;
    }
}

TEST_F(ListInput, SpaceSelectsTheCurrentItemAloneOrTheRangeToIt)
{
    MakeWith(HLS_EXTSEL, 8, 10);
    Send(HLM_SETCURRENT, 5);
    Select({ 1 });
    TypeKey(VK_SPACE);
    EXPECT_EQ((Ints{ 5 }), Selected());
    TypeKey(VK_DOWN, withShift);
    TypeKey(VK_DOWN, withShift);
    Select({ 9 });
    TypeKey(VK_SPACE, withShift);
    EXPECT_EQ((Ints{ 5, 6, 7 }), Selected());
    TypeKey(VK_SPACE);
    EXPECT_EQ((Ints{ 7 }), Selected());
    EXPECT_EQ(7, +Ctl()->nAnchor);
}

TEST_F(ListInput, CtrlShiftClickGoesOnWithWhatTheLastCtrlClickBegan)
{
    MakeWith(HLS_EXTSEL, 8, 8);
    ClickItem(1);
    ClickItem(4, withCtrl);
    ClickItem(6, withCtrl | withShift);
    EXPECT_EQ((Ints{ 1, 4, 5, 6 }), Selected());
    EXPECT_EQ(4, +Ctl()->nAnchor) << "it stays";
    ClickItem(1, withCtrl);
    ClickItem(5, withCtrl | withShift);
    EXPECT_EQ((Ints{ 6 }), Selected()) << "the last Ctrl-click deselected";
    EXPECT_EQ(1, +Ctl()->nAnchor);
}

TEST_F(ListInput, TypedCharacterNotifiesOnlyWhereItFindsAnItem)
{
    Make();
    Add({ "apple", "banana" });
    Focus();
    Told();
    Send(WM_CHAR, 'b');
    EXPECT_EQ(1, Current());
    EXPECT_EQ((Ints{ HLN_SELCHANGE }), Told());
    EXPECT_TRUE(Ctl()->wFlags & CF_CHANGED);
    Send(HLM_SETFLAGS, CF_CHANGED, 0);
    Send(WM_CHAR, 'z');
    EXPECT_EQ(1, Current());
    EXPECT_EQ((Ints{}), Told());
    EXPECT_FALSE(Ctl()->wFlags & CF_CHANGED);
}

TEST_F(ListInput, FindTextWithAStartBelowZeroBeginsAtTheFirstItem)
{
    Make();
    Add({ "ab", "x", "ab" });
    EXPECT_EQ(0, SendPtr(HLM_FINDTEXT, static_cast<WPARAM>(-1), "ab"));
    EXPECT_EQ(0, SendPtr(HLM_FINDTEXT, static_cast<WPARAM>(-2), "ab"));
}

TEST_F(ListInput, MouseMarksNothingWhileAKeyMovesTheCurrentItem)
{
    MakeWith(HLS_HOTTRACK, 5, 10);
    MoveMouse(list, 400, 300); // away from where the lists below appear
    for (const int key : { VK_DOWN, VK_UP, VK_NEXT, VK_PRIOR, VK_END, VK_HOME }) {
        MakeWith(HLS_HOTTRACK, 5, 10);
        {
            const HeldKeys held({ key });
            Send(WM_MOUSEMOVE, 0, MAKELPARAM(5, MiddleOf(3)));
        }
        EXPECT_EQ(-1, +Ctl()->nHot) << "key " << key;
        Send(WM_MOUSEMOVE, 0, MAKELPARAM(5, MiddleOf(3)));
        EXPECT_EQ(3, +Ctl()->nHot);
    }
}

TEST_F(ListInput, PlainClickClearsARangeThatKeysMadeAfterADeselection)
{
    MakeWith(HLS_EXTSEL, 8, 20);
    ClickAt(list, 5, MiddleOf(0));
    ClickAt(list, 5, MiddleOf(0), withCtrl);
    TypeKey(VK_DOWN, withShift);
    TypeKey(VK_DOWN, withShift);
    ASSERT_EQ((Ints{ 0, 1, 2 }), Selected());
    ClickAt(list, 5, MiddleOf(4));
    EXPECT_EQ((Ints{ 4 }), Selected());
}

TEST_F(ListInput, HotItemTakesTheMarksOfAllSelectedOnes)
{
    MakeWith(HLS_EXTSEL, 6, 10);
    MoveMouse(list, 400, 300); // away from where the list below appears
    MakeWith(HLS_HOTTRACK | HLS_EXTSEL, 6, 10);
    for (const int index : { 1, 2, 4 }) {
        HLSelectItem(list, index, HLSEL_SET);
    }
    UpdateWindow(list);
    const auto showsWhatARepaintWould = [this] {
        UpdateWindow(list);
        const Pixels shown = ShotOf(list);
        RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        return SamePixels(shown, ShotOf(list));
    };
    MoveMouse(list, 5, MiddleOf(3));
    ASSERT_EQ(3, +Ctl()->nHot);
    EXPECT_TRUE(showsWhatARepaintWould());
    Send(HLM_SETCURRENT, 0);
    ASSERT_EQ(-1, +Ctl()->nHot);
    EXPECT_TRUE(showsWhatARepaintWould());
}

TEST_F(ListInput, DragThatStaysOnTheLastItemScrollsItIntoViewWhole)
{
    Make("%ss", HLS_NOINTEGRAL);
    ShowRows(3, 4);
    Fill(5);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, MiddleOf(2)));
    Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 500));
    EXPECT_EQ(4, Current());
    EXPECT_EQ(1, Top()) << "it shows in part";
    Send(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 500));
    EXPECT_EQ(2, Top());
    Send(WM_LBUTTONUP, 0, MAKELPARAM(5, 500));
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(5, 500));
    EXPECT_EQ(2, Top());
}

} // namespace
