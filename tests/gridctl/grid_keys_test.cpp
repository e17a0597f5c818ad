// Keys that start an edit, what goes on to the editor, and the moves that hidden columns and the entry row make special.
#include "gridctl/grid_editing.h"
#include "support/pixels.h"

#include <algorithm>

namespace {

class GridKeys : public GridEditing {
protected:
    void Key(UINT vk) { Send(grid, WM_KEYDOWN, vk, 1); }
    // How often a watched control has received a key message.
    int CountOf(UINT message, UINT vk)
    {
        const auto isIt = [&](const Seen& line) {
            return line.direction == ToControl && line.code == message && line.wParam.value == static_cast<LPARAM>(vk);
        };
        return static_cast<int>(std::count_if(seen.All().begin(), seen.All().end(), isIt));
    }
    // Three columns, of which the second is current; its editor is watched.
    void MakeWatched(DWORD style = gridStyle, WORD flags = 0)
    {
        MakeGrid(GridOf({ Text(), Text(16, "B", flags), Text() }, style), 3);
        StandOn(1, 1);
        seen.Watch(ChildOf(1));
    }
};

struct StartCase {
    UINT vk;
    bool starts;
};

// clang-format off
constexpr StartCase startCases[] = {
    { 0x2F, false }, { '0', true }, { 'A', true }, { VK_ADD, true }, { VK_DIVIDE, true }, { VK_F1, false },
    { VK_NUMLOCK, false }, { VK_SCROLL, false }, { 0x92, true }, { VK_OEM_1, true }, { 0xFE, true }, { VK_SPACE, true },
    { VK_CONTROL, false }, { VK_BACK, false }, { VK_F6, false },
};
// clang-format on

TEST_F(GridKeys, StartingKeysFocusTheEditorAndGoOnToIt)
{
    MakeWatched();
    for (const StartCase& c : startCases) {
        SetFocus(grid);
        seen.Clear();
        Key(c.vk);
        EXPECT_EQ(c.starts ? Editor() : grid, GetFocus()) << "key " << c.vk;
        EXPECT_EQ(c.starts ? 1 : 0, CountOf(WM_KEYDOWN, c.vk)) << "key " << c.vk;
        EXPECT_EQ(c.starts, IsFlag(HGC_INEDIT)) << "key " << c.vk;
    }
}

TEST_F(GridKeys, SystemKeysThatComeUpFocusTheEditorByTheSameTable)
{
    MakeWatched();
    for (const StartCase& c : startCases) {
        SetFocus(grid);
        seen.Clear();
        Send(grid, WM_SYSKEYUP, c.vk, 1);
        EXPECT_EQ(c.starts ? Editor() : grid, GetFocus()) << "key " << c.vk;
        EXPECT_EQ(0, CountOf(WM_KEYDOWN, c.vk)) << "key " << c.vk;
    }
}

TEST_F(GridKeys, CharactersGoToTheEditorWithoutTheFocus)
{
    MakeWatched();
    Send(grid, WM_CHAR, 'x', 1);
    EXPECT_EQ(1, CountOf(WM_CHAR, 'x'));
    EXPECT_EQ(grid, GetFocus());
    MoveTo(1, -1);
    seen.Clear();
    Send(grid, WM_CHAR, 'y', 1);
    EXPECT_EQ(0, CountOf(WM_CHAR, 'y')) << "a header has no editor";
}

TEST_F(GridKeys, EditorThatAParentTakesAwayInTheFocusStepGetsNoKey)
{
    MakeWatched();
    parent.On(HGN_EDITFOCUS, [&] { HGDetachEditor(ctl); });
    Key('A');
    EXPECT_EQ(0, CountOf(WM_KEYDOWN, 'A'));
    EXPECT_EQ(grid, GetFocus());
}

TEST_F(GridKeys, F2FocusesTheEditorAlone)
{
    MakeWatched();
    Key(VK_F2);
    EXPECT_EQ(Editor(), GetFocus());
    EXPECT_EQ(0, CountOf(WM_KEYDOWN, VK_F2));
}

TEST_F(GridKeys, F4AndF5FocusTheEditorAndThenGoOnToIt)
{
    for (const UINT vk : { VK_F4, VK_F5 }) {
        MakeWatched();
        HWND focusAtKey = nullptr;
        parent.On(HGN_EDITFOCUS, [&] {
            EXPECT_EQ(0, CountOf(WM_KEYDOWN, vk)) << "the focus comes first";
            focusAtKey = GetFocus();
        });
        Key(vk);
        EXPECT_EQ(Editor(), focusAtKey);
        EXPECT_EQ(Editor(), GetFocus());
        EXPECT_EQ(1, CountOf(WM_KEYDOWN, vk));
        EXPECT_EQ(0, CountOf(WM_KEYDOWN, VK_F2)) << "that key is for the grid";
        parent.On(HGN_EDITFOCUS, nullptr);
        DestroyWindow(grid);
    }
}

constexpr UINT editKeys[] = { VK_F2, VK_F4, VK_F5, 'A', VK_SPACE, VK_OEM_1 };

TEST_F(GridKeys, NoChildOfAReadOnlyGridEverGetsTheFocus)
{
    MakeWatched(gridStyle | HGS_READONLY);
    for (const UINT vk : editKeys) {
        Key(vk);
        Send(grid, WM_SYSKEYUP, vk, 1);
        Send(grid, WM_CHAR, 'x', 1);
        EXPECT_EQ(grid, GetFocus()) << "key " << vk;
        EXPECT_EQ((Cell{ 1, 1 }), Current()) << "key " << vk;
    }
    EXPECT_EQ(0, parent.Count(HGN_EDITFOCUS));
    EXPECT_NOTHING_SEEN();
    ExpectNoEditor();
}

TEST_F(GridKeys, GridThatBecomesReadOnlyFocusesTheEditorNoMore)
{
    MakeWatched();
    Send(grid, HGM_SETSTYLEBITS, 1, HGS_READONLY);
    for (const UINT vk : editKeys) {
        Key(vk);
        Send(grid, WM_SYSKEYUP, vk, 1);
        EXPECT_EQ(grid, GetFocus()) << "key " << vk;
    }
    EXPECT_EQ(0, parent.Count(HGN_EDITFOCUS));
}

TEST_F(GridKeys, ReadOnlyColumnsChildNeverGetsTheFocus)
{
    MakeWatched(gridStyle, HFF_READONLY);
    for (const UINT vk : editKeys) {
        Key(vk);
        Send(grid, WM_SYSKEYUP, vk, 1);
        EXPECT_EQ(grid, GetFocus()) << "key " << vk;
    }
    EXPECT_EQ(0, parent.Count(HGN_EDITFOCUS));
    ExpectNoEditor();
}

TEST_F(GridKeys, ColumnThatBecomesReadOnlyIsNotFocused)
{
    MakeWatched();
    Send(grid, HGM_SETFIELDFLAGS, 1, MAKELPARAM(1, HFF_READONLY));
    ASSERT_NE(nullptr, Editor()) << "the editor stays, only hidden";
    for (const UINT vk : editKeys) {
        Key(vk);
        EXPECT_EQ(grid, GetFocus()) << "key " << vk;
    }
}

TEST_F(GridKeys, EndLandsOnTheLastVisibleColumn)
{
    struct Case {
        const char* what;
        int         from;
        bool        hidden[4];
        int         to;
    };
    constexpr Case cases[] = {
        { "none hidden", 0, { false, false, false, false }, 3 },
        { "the last hidden", 0, { false, false, false, true }, 2 },
        { "the last two hidden", 0, { false, false, true, true }, 1 },
        { "one between hidden", 0, { false, true, false, true }, 2 },
        { "all behind hidden", 0, { false, true, true, true }, 0 },
        { "from a hidden one at the end", 3, { false, false, false, true }, 2 },
        { "from the row header", -1, { false, false, true, true }, 1 },
    };
    for (const Case& c : cases) {
        MakeGrid(GridOf({ Text(), Text(), Text(), Text() }), 2);
        StandOn(c.from, 1);
        for (int col = 0; col < 4; ++col) {
            Send(grid, HGM_SETFIELDFLAGS, static_cast<WPARAM>(col), MAKELPARAM(c.hidden[col], HFF_HIDDEN));
        }
        Key(VK_END);
        EXPECT_EQ((Cell{ c.to, 1 }), Current()) << c.what;
        DestroyWindow(grid);
    }
}

TEST_F(GridKeys, EndAtTheLastVisibleColumnEndsARangeThere)
{
    for (const int hidden : { 0, 1, 2 }) {
        SCOPED_TRACE(hidden);
        MakeGrid(GridOf({ Text(), Text(), Text(), Text() }, gridStyle | HGS_READONLY), 3);
        for (int col = 4 - hidden; col < 4; ++col) {
            Send(grid, HGM_SETFIELDFLAGS, static_cast<WPARAM>(col), MAKELPARAM(1, HFF_HIDDEN));
        }
        const int last = 3 - hidden;
        StandOn(last - 1, 1);
        TypeKey(VK_RIGHT, withShift);
        ASSERT_EQ((Cell{ last - 1, 1 }), Anchor());
        ASSERT_EQ((Cell{ last, 1 }), Current());
        Forget();
        Key(VK_END);
        EXPECT_EQ(1, parent.Count(HGN_MOVING));
        EXPECT_EQ(1, parent.Count(HGN_MOVED));
        EXPECT_EQ((Cell{ last, 1 }), Anchor());
        EXPECT_EQ((Cell{ last, 1 }), Current());
        const Pixels moved = ShotOf(grid);
        InvalidateRect(grid, nullptr, TRUE);
        EXPECT_TRUE(SamePixels(ShotOf(grid), moved));
        DestroyWindow(grid);
    }
}

TEST_F(GridKeys, RightStaysWhereNoVisibleColumnFollows)
{
    for (const int from : { 1, 2, 3 }) {
        MakeGrid(GridOf({ Text(), Text(), Text(), Text() }), 2);
        StandOn(from, 1);
        for (const int col : { 2, 3 }) {
            Send(grid, HGM_SETFIELDFLAGS, static_cast<WPARAM>(col), MAKELPARAM(1, HFF_HIDDEN));
        }
        Key(VK_RIGHT);
        EXPECT_EQ((Cell{ from, 1 }), Current());
        DestroyWindow(grid);
    }
}

TEST_F(GridKeys, EndWithAllColumnsHiddenMovesNowhere)
{
    MakeGrid(GridOf({ Hidden(Text()), Hidden(Text()) }), 2);
    StandOn(0, 1);
    const Cell before = Current();
    Key(VK_END);
    EXPECT_EQ(before, Current());
    EXPECT_EQ(0, parent.Count(HGN_MOVING));
}

TEST_F(GridKeys, EndStopNeverLeadsUpFromTheEntryRow)
{
    for (const UINT vk : { VK_DOWN, VK_NEXT, VK_TAB, VK_RETURN }) {
        MakeGrid(GridOf({ Text(), Text() }, gridStyle | HGS_NEWROW), 5);
        const int entry = HGRowCount(ctl->pData) - 1;
        Send(grid, HGM_SETENDSTOP, 1);
        StandOn(1, entry);
        Key(vk);
        EXPECT_EQ(entry, Current().row) << "key " << vk;
        DestroyWindow(grid);
    }
}

// Ten columns of 80 and a hundred rows: neither stands in the view when it is scrolled to its end.
TEST_F(GridKeys, WhatIsTypedIntoACellOutOfViewBringsItBack)
{
    struct Away {
        const char* what;
        UINT        message;
        int         pos;
    };
    constexpr Away ways[] = { { "across", WM_HSCROLL, 400 }, { "down", WM_VSCROLL, 50 }, { "nowhere", 0, 0 } };
    for (const Away& way : ways) {
        for (const bool byF2 : { false, true }) {
            SCOPED_TRACE(testing::Message() << way.what << ", F2 " << byF2);
            MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text(), Text() }), 100);
            StandOn(1, 3);
            if (way.message) {
                Send(grid, way.message, MAKEWPARAM(SB_THUMBPOSITION, way.pos));
                ASSERT_EQ(way.pos, way.message == WM_HSCROLL ? +ctl->nHScrollPos : ctl->nTopRow);
            }
            const int scrolls = parent.Count(HGN_HSCROLLED) + parent.Count(HGN_VSCROLLED);
            byF2 ? TypeKey(VK_F2) : TypeText("x");
            RECT editor;
            RECT zone;
            GetClientRect(Editor(), &editor);
            MapWindowPoints(Editor(), grid, reinterpret_cast<POINT*>(&editor), 2);
            HGScrollRect(ctl, &zone);
            EXPECT_EQ(Editor(), GetFocus());
            EXPECT_LT(70, editor.right - editor.left);
            EXPECT_LE(zone.left, editor.left);
            EXPECT_GE(zone.bottom, editor.bottom);
            EXPECT_EQ(scrolls + (way.message ? 1 : 0), parent.Count(HGN_HSCROLLED) + parent.Count(HGN_VSCROLLED));
            EXPECT_CELL(1, 3);
            DestroyWindow(grid);
        }
    }
}

} // namespace
