// The editor stands over its cell whatever the host changes around it, and isn't there where nothing can be edited.
#include "gridctl/grid_editing.h"

namespace {

class GridEditorPlace : public GridEditing {
protected:
    void MakeStanding(int col, int row, DWORD style = gridStyle)
    {
        MakeGrid(GridOf({ Text(), Text(), Text() }, style), 5);
        for (int i = 0; i < 5; ++i) {
            SetText(1, i, std::to_string(i).c_str());
        }
        StandOn(col, row);
    }
    RECT EditorPlace()
    {
        RECT rect = {};
        GetWindowRect(Editor(), &rect);
        MapWindowPoints(nullptr, grid, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
    void ExpectOverItsCell()
    {
        const Cell cell = Current();
        RECT       expected;
        RECT       zone;
        HGCellRect(ctl, &expected, cell.col, cell.row, true);
        HGScrollRect(ctl, &zone);
        HGBoundRect(&expected, &expected, &zone);
        const RECT place = EditorPlace();
        EXPECT_TRUE(EqualRect(&expected, &place))
            << place.left << " " << place.top << " " << place.right << " " << place.bottom;
    }
};

struct Change {
    const char* what;
    void (*run)(HWND grid);
};

void SetFlags(HWND grid, WPARAM col, WORD mask, WORD on)
{
    SendMessageA(grid, HGM_SETFIELDFLAGS, col, MAKELPARAM(on, mask));
}

constexpr Change changes[] = {
    { "a row above goes", [](HWND g) { SendMessageA(g, HGM_DELETEROW, 0, 0); SendMessageA(g, HGM_REFRESH, 1, 0); } },
    { "its row goes", [](HWND g) { SendMessageA(g, HGM_DELETEROW, 2, 0); SendMessageA(g, HGM_REFRESH, 1, 0); } },
    { "a row comes", [](HWND g) { SendMessageA(g, HGM_INSERTROW, 0, 0); SendMessageA(g, HGM_REFRESH, 1, 0); } },
    { "row height", [](HWND g) { SendMessageA(g, HGM_SETROWHEIGHT, 30, 1); } },
    { "header height", [](HWND g) { SendMessageA(g, HGM_SETHEADERHEIGHT, 34, 1); } },
    { "row header", [](HWND g) { SendMessageA(g, HGM_SETROWHDRWIDTH, 70, 1); } },
    { "fixed columns", [](HWND g) { SendMessageA(g, HGM_SETFIXEDCOLS, 1, 0); } },
    { "a column's width", [](HWND g) { SendMessageA(g, HGM_SETFIELDWIDTH, 0, 50); } },
    { "its own width", [](HWND g) { SendMessageA(g, HGM_SETFIELDWIDTH, 1, 50); } },
    { "a column hidden", [](HWND g) { SetFlags(g, 0, HFF_HIDDEN, 1); } },
    { "read-only for a while",
      [](HWND g) {
          SendMessageA(g, HGM_SETSTYLEBITS, 1, HGS_READONLY);
          SendMessageA(g, HGM_REFRESH, 1, 0);
          SendMessageA(g, HGM_SETSTYLEBITS, 0, HGS_READONLY);
          SendMessageA(g, HGM_REFRESH, 1, 0);
      } },
    { "a narrow window", [](HWND g) { SetWindowPos(g, nullptr, 0, 0, 180, 150, SWP_NOMOVE | SWP_NOZORDER); } },
};

TEST_F(GridEditorPlace, FollowsItsCell)
{
    for (const DWORD style : { gridStyle, gridStyle | HGS_KEEPSEL }) {
        for (const Change& change : changes) {
            SCOPED_TRACE(testing::Message() << change.what << ", style " << style);
            MakeStanding(1, 2, style);
            if (style & HGS_KEEPSEL) {
                SetFocus(parent.hwnd());
            }
            change.run(grid);
            ExpectOwnEditor();
            ExpectOverItsCell();
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridEditorPlace, WindowThatGrowsShowsAllOfAnEditorThatWasCut)
{
    MakeStanding(2, 0);
    RECT window = {};
    GetWindowRect(grid, &window);
    SetWindowPos(grid, nullptr, 0, 0, 240, 150, SWP_NOMOVE | SWP_NOZORDER);
    const RECT cut = EditorPlace();
    SetWindowPos(grid, nullptr, 0, 0, static_cast<int>(window.right - window.left), 150, SWP_NOMOVE | SWP_NOZORDER);
    const RECT whole = EditorPlace();
    EXPECT_LT(cut.right - cut.left, whole.right - whole.left);
    ExpectOverItsCell();
}

TEST_F(GridEditorPlace, ColumnThatIsHiddenWhileCurrentTakesItsEditorAlong)
{
    MakeStanding(1, 2);
    SetFlags(grid, 1, HFF_HIDDEN, 1);
    EXPECT_FALSE(IsWindowVisible(ChildOf(1))) << "nothing is edited in a column that nobody sees";
    TypeText("x");
    EXPECT_EQ(grid, GetFocus());
    EXPECT_EQ("2", CellText(1, 2));
    SetFlags(grid, 1, HFF_HIDDEN, 0);
    const RECT shown = EditorPlace();
    EXPECT_FALSE(IsRectEmpty(&shown));
    ExpectOverItsCell();
}

TEST_F(GridEditorPlace, RefreshOfWhatHasNotMovedLeavesTheEditorAlone)
{
    MakeStanding(1, 2);
    int sizes = 0;
    seen.Watch(Editor());
    Send(grid, HGM_REFRESH, 1);
    for (const Seen& line : seen.All()) {
        sizes += line.code == WM_SIZE || line.code == WM_WINDOWPOSCHANGING;
    }
    EXPECT_EQ(0, sizes);
}

// What a host may lock while the focus is elsewhere, and unlock.
constexpr Change locks[] = {
    { "grid", [](HWND g) { SendMessageA(g, HGM_SETSTYLEBITS, 1, HGS_READONLY); } },
    { "column", [](HWND g) { SetFlags(g, 1, HFF_READONLY, 1); } },
};

TEST_F(GridEditorPlace, NoneComesBackWithTheFocusWhereNothingMayBeEditedAnyMore)
{
    for (const Change& lock : locks) {
        for (const bool typed : { false, true }) {
            SCOPED_TRACE(testing::Message() << lock.what << ", typed " << typed);
            MakeStanding(1, 2);
            if (typed) {
                TypeInto(1, 2, "typed");
            }
            SetFocus(parent.hwnd());
            lock.run(grid);
            SetFocus(grid);
            TypeText("x");
            EXPECT_EQ(grid, GetFocus());
            ExpectNoEditor();
            EXPECT_FALSE(IsFlag(HGC_INEDIT));
            EXPECT_EQ(typed ? "typed" : "2", CellText(1, 2));
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridEditorPlace, CharactersDoNotReachTheEditorOfWhatHasBecomeReadOnly)
{
    for (const Change& lock : locks) {
        SCOPED_TRACE(lock.what);
        MakeStanding(1, 2);
        lock.run(grid);
        Send(grid, WM_CHAR, 'x');
        EXPECT_EQ("2", TextOf(ChildOf(1)));
        DestroyWindow(grid);
    }
}

} // namespace
