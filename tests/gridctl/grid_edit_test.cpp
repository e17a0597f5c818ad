// The editor of the current cell.
#include "gridctl/grid_editing.h"

#include "support/guarded_memory.h"

namespace {

class GridEdit : public GridEditing {
protected:
    // As if the user had typed over the whole text of the editor, which has the focus then.
    void Retype(const char* text)
    {
        SetFocus(Editor());
        ASSERT_TRUE(IsFlag(HGC_INEDIT));
        SendPtr(Editor(), WM_SETTEXT, 0, text);
        Send(Editor(), WWM_SETCHANGED, 1);
    }
};

TEST_F(GridEdit, ChildOfTheCurrentColumnStandsOverItsCell)
{
    MakeGrid(GridOf({ Text(), Text() }), 3);
    SetFocus(grid);
    SetText(1, 2, "here");
    MoveTo(1, 2);
    ASSERT_TRUE(IsWindowVisible(Editor()));
    EXPECT_EQ("here", TextOf(Editor()));
    RECT expected;
    HGCellRect(ctl, &expected, 1, 2, true);
    RECT rect;
    GetWindowRect(Editor(), &rect);
    MapWindowPoints(nullptr, grid, reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_TRUE(EqualRect(&expected, &rect));
    EXPECT_EQ(grid, GetFocus());
}

TEST_F(GridEdit, EditorInAFixedColumnIsNotSeen)
{
    MakeGrid(GridOf({ Text(), Text() }, gridStyle, 1), 3);
    SetFocus(grid);
    MoveTo(0, 0);
    RECT rect;
    GetClientRect(Editor(), &rect);
    EXPECT_EQ(0, rect.right);
}

TEST_F(GridEdit, ReadOnlyGridAndColumnHaveNoEditor)
{
    MakeGrid(GridOf({ Text(16, "A", HFF_READONLY), Text() }), 2);
    MoveTo(0, 1);
    EXPECT_EQ(nullptr, Editor());
    MoveTo(1, 1);
    EXPECT_NE(nullptr, Editor());
    Send(grid, HGM_SETSTYLEBITS, 1, HGS_READONLY);
    MoveTo(1, 0);
    EXPECT_EQ(nullptr, Editor());
}

TEST_F(GridEdit, UntouchedEditorIsNeverReadBack)
{
    MakeGrid(GridOf({ Text() }), 3);
    SetFocus(grid);
    MoveTo(0, 0);
    SetFocus(Editor());
    seen.Watch(Editor());
    MoveTo(0, 1);
    for (const Seen& line : seen.All()) {
        EXPECT_FALSE(line.direction == ToControl && line.code == HEM_GETDATA);
    }
    EXPECT_EQ(grid, GetFocus());
    EXPECT_EQ(0, RowFlags(0));
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
}

// A letter and then Tab: the focus goes to the editor with the first and comes back with the second, and stays.
constexpr Seen wholeEdit[] = {
    { 0, ToGrid, WM_KEYDOWN, 'A' },
    { 1, ToGrid, WM_KILLFOCUS },
    { 1, ToEdit, WM_SETFOCUS },
    { 2, ToGrid, WWM_CHILDFOCUS },
    { 3, ToParent, HGN_EDITFOCUS },
    { 1, ToEdit, WM_KEYDOWN, 'A' },
    { 0, ToGrid, WM_CHAR, 'a' },
    { 1, ToEdit, WM_CHAR, 'a' },
    { 0, ToEdit, WM_KEYDOWN, VK_TAB },
    { 1, ToGrid, WM_KEYDOWN, VK_TAB },
    { 2, ToEdit, WM_KILLFOCUS },
    { 3, ToGrid, WWM_CHILDBLUR },
    { 4, ToParent, HGN_EDITBLUR },
    { 2, ToGrid, WM_SETFOCUS },
    { 2, ToEdit, WWM_GETCHANGED },
    { 2, ToEdit, HEM_GETDATA, 16 },
    { 2, ToEdit, WWM_SETCHANGED, 0 },
    { 2, ToParent, HGN_CELLCHANGED },
    { 2, ToParent, HGN_MOVING },
    { 2, ToParent, HGN_MOVED },
    { 2, ToEdit, HEM_SETDATA, 0 },
    { 2, ToEdit, WM_SIZE }, // of the window that was moved
    { 2, ToEdit, WM_SIZE }, // of the grid, with the cell's size
    { 0, ToEdit, WM_CHAR, VK_TAB },
};

TEST_F(GridEdit, WholeEditIsToldInItsOrder)
{
    MakeGrid(GridOf({ Text(), Text() }), 3);
    StandOn(0, 0);
    seen.Watch(grid);
    seen.Watch(ChildOf(0));
    seen.Watch(ChildOf(1));
    // The edit's own matters.
    for (const UINT message : { WWM_GETSTATE, WM_COMMAND, HEM_SETRECT, WM_CTLCOLOREDIT, HGM_GETDATA, WM_KEYUP }) {
        seen.Skip(message);
    }
    TypeKey('A');
    TypeKey(VK_TAB);
    EXPECT_SEEN(wholeEdit);
    EXPECT_EQ("a", CellText(0, 0));
    EXPECT_EQ((Cell{ 1, 0 }), Current());
    EXPECT_EQ(grid, GetFocus());
}

// From the last column Return goes on to the next row, whose editor is another one's place.
constexpr Seen editToTheNextRow[] = {
    { 0, ToGrid, WM_KEYDOWN, VK_F2 },
    { 1, ToGrid, WM_KILLFOCUS },
    { 1, ToEdit, WM_SETFOCUS },
    { 2, ToGrid, WWM_CHILDFOCUS },
    { 3, ToParent, HGN_EDITFOCUS },
    { 0, ToEdit, WM_KEYDOWN, 'A' },
    { 0, ToEdit, WM_CHAR, 'a' },
    { 0, ToEdit, WM_KEYDOWN, VK_RETURN },
    { 1, ToGrid, WM_KEYDOWN, VK_RETURN },
    { 2, ToEdit, WM_KILLFOCUS },
    { 3, ToGrid, WWM_CHILDBLUR },
    { 4, ToParent, HGN_EDITBLUR },
    { 2, ToGrid, WM_SETFOCUS },
    { 2, ToEdit, WWM_GETCHANGED },
    { 2, ToEdit, HEM_GETDATA, 16 },
    { 2, ToEdit, WWM_SETCHANGED, 0 },
    { 2, ToParent, HGN_CELLCHANGED },
    { 2, ToParent, HGN_MOVING },
    { 2, ToParent, HGN_MOVED },
    { 2, ToParent, HGN_ROWCHANGED },
    { 2, ToEdit, HEM_SETDATA, 0 },
    { 2, ToEdit, WM_SIZE }, // of the grid, with the cell's size
    { 0, ToEdit, WM_CHAR, VK_RETURN },
};

TEST_F(GridEdit, EditThatGoesOnToTheNextRowIsToldInItsOrder)
{
    MakeGrid(GridOf({ Text() }), 3);
    StandOn(0, 0);
    seen.Watch(grid);
    seen.Watch(ChildOf(0));
    for (const UINT message : { WWM_GETSTATE, WM_COMMAND, HEM_SETRECT, WM_CTLCOLOREDIT, HGM_GETDATA, WM_KEYUP }) {
        seen.Skip(message);
    }
    TypeKey(VK_F2);
    TypeKey('A');
    TypeKey(VK_RETURN);
    EXPECT_SEEN(editToTheNextRow);
    EXPECT_EQ("a", CellText(0, 0));
    EXPECT_EQ((Cell{ 0, 1 }), Current());
    EXPECT_EQ(grid, GetFocus());
}

TEST_F(GridEdit, LeavingTheCellStoresWhatWasEntered)
{
    MakeGrid(GridOf({ Text() }), 3);
    SetFocus(grid);
    MoveTo(0, 0);
    Retype("typed");
    MoveTo(0, 1);
    EXPECT_EQ("typed", CellText(0, 0));
    EXPECT_EQ((Cell{ 0, 1 }), Current());
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ("", TextOf(Editor()));
}

TEST_F(GridEdit, RefusedValueKeepsTheGridOnTheCell)
{
    MakeGrid(GridOf({ Text() }), 3);
    SetFocus(grid);
    MoveTo(0, 0);
    Retype("typed");
    parent.On(HGN_CELLCHANGED, [&] { Send(grid, WWM_CANCEL); });
    MoveTo(0, 1);
    EXPECT_EQ((Cell{ 0, 0 }), Current());
    EXPECT_TRUE(ctl->wFlags & CF_CANCEL);
}

TEST_F(GridEdit, ChildThatReportsNoValueMakesTheCellNull)
{
    MakeGrid(GridOf({ Number() }), 3);
    SetText(0, 0, "5");
    SetFocus(grid);
    MoveTo(0, 0);
    SetFocus(Editor());
    SendPtr(Editor(), HEM_SETDATA, 0, nullptr);
    Send(Editor(), WWM_SETCHANGED, 1);
    MoveTo(0, 1);
    EXPECT_EQ(1, HGIsCellNull(grid, 0, 0));
    EXPECT_EQ("0", CellText(0, 0));
}

TEST_F(GridEdit, NullCellLoadsAnEmptyEditor)
{
    MakeGrid(GridOf({ Number() }), 2);
    HGSetCellData(grid, 0, 1, nullptr);
    MoveTo(0, 1);
    EXPECT_EQ(1, Send(Editor(), WWM_ISNULL));
}

TEST_F(GridEdit, HostsValueShowsInTheEditorAtOnce)
{
    MakeGrid(GridOf({ Text() }), 2);
    MoveTo(0, 1);
    HGSetCellData(grid, 0, 1, "new");
    EXPECT_EQ("new", TextOf(Editor()));
    HGSetCellString(grid, 0, 1, "quiet");
    EXPECT_EQ("new", TextOf(Editor()));
    EXPECT_EQ("quiet", CellText(0, 1));
}

TEST_F(GridEdit, TextOrCopyThatAHostWritesIntoTheCurrentCellIsWhatIsEditedThen)
{
    MakeGrid(GridOf({ Text() }), 3);
    SetText(0, 0, "first");
    SetText(0, 1, "old");
    SetFocus(grid);
    MoveTo(0, 1);
    HGSetCellText(grid, 0, 1, "today");
    EXPECT_EQ("today", TextOf(Editor()));
    HGSetCellText(grid, 0, 2, "other");
    EXPECT_EQ("today", TextOf(Editor()));
    HGCopyCellData(grid, 0, 0, 1);
    EXPECT_EQ("first", TextOf(Editor()));
    TypeKey(VK_F2);
    TypeKey(VK_END);
    TypeText("x");
    TypeKey(VK_DOWN);
    EXPECT_EQ("firstx", CellText(0, 1));
}

TEST_F(GridEdit, RowThatAHostWritesShowsInTheEditorUnlessTheUserHasTyped)
{
    MakeGrid(GridOf({ Text() }), 3);
    SetText(0, 1, "old");
    SetFocus(grid);
    MoveTo(0, 1);
    char row[16] = "new";
    SendPtr(grid, HGM_WRITEROW, 1, row);
    EXPECT_EQ("new", TextOf(Editor()));
    TypeText("typed");
    SendPtr(grid, HGM_WRITEROW, 1, row);
    EXPECT_EQ("typed", TextOf(Editor()));
    TypeKey(VK_DOWN);
    EXPECT_EQ("typed", CellText(0, 1));
}

TEST_F(GridEdit, ValueThatAHostCorrectsWhenItIsToldOfItShowsInTheEditorThatStays)
{
    MakeGrid(GridOf({ Text() }), 3);
    SetFocus(grid);
    MoveTo(0, 1);
    TypeText("abc");
    parent.On(HGN_CELLCHANGED, [&] {
        parent.On(HGN_CELLCHANGED, nullptr);
        SetText(0, 1, "ABC");
    });
    Send(grid, WM_COMMAND, MAKEWPARAM(200, 11), reinterpret_cast<LPARAM>(Editor()));
    EXPECT_EQ("ABC", CellText(0, 1));
    EXPECT_EQ("ABC", TextOf(Editor()));
}

TEST_F(GridEdit, EscapeReloadsTheEditorFromTheCell)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetText(0, 0, "kept");
    SetFocus(grid);
    MoveTo(0, 0);
    Retype("gone");
    Send(grid, WM_KEYDOWN, VK_ESCAPE, 0);
    EXPECT_EQ("kept", TextOf(Editor()));
    EXPECT_EQ("kept", CellText(0, 0));
}

TEST_F(GridEdit, FailedAllocationLosesTheEditAndReportsSuccess)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetFocus(grid);
    MoveTo(0, 0);
    Retype("lost");
    FailAllocation(1);
    EXPECT_EQ(1, HGReadEditor(ctl));
    EXPECT_TRUE(AllocationFailed());
    FailAllocation(0);
    EXPECT_EQ("", CellText(0, 0));
}

TEST_F(GridEdit, DetachingEndsTheEdit)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetFocus(grid);
    MoveTo(0, 0);
    EXPECT_EQ(1, HGDetachEditor(ctl));
    EXPECT_EQ(nullptr, Editor());
    EXPECT_FALSE(ctl->wFlags & HGC_EDITORSHOWN);
    EXPECT_EQ(0, HGDetachEditor(ctl));
}

TEST_F(GridEdit, OkAndCancelOfADialogEndTheEdit)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetText(0, 0, "old");
    SetFocus(grid);
    MoveTo(0, 0);
    Retype("new");
    Send(grid, WM_COMMAND, IDCANCEL);
    EXPECT_EQ("old", TextOf(Editor()));
    Retype("newer");
    Send(grid, WM_COMMAND, IDOK);
    EXPECT_EQ("newer", CellText(0, 0));
}

TEST_F(GridEdit, CodesOfTheChildBecomeNotifications)
{
    MakeGrid(GridOf({ Text() }), 2);
    SetFocus(grid);
    MoveTo(0, 0);
    struct Case {
        int child;
        int grid;
    };
    constexpr Case cases[] = { { 1, HGN_CHILDCHANGE }, { 7, HGN_DROPOPEN },  { 8, HGN_DROPCLOSE },
                               { 9, HGN_DROPPICK },    { 11, HGN_EDITDONE } };
    for (const Case& each : cases) {
        SendPtr(grid, WM_COMMAND, MAKEWPARAM(200, each.child), Editor());
        EXPECT_EQ(1, parent.Count(each.grid)) << each.child;
    }
}

TEST_F(GridEdit, ChildDestroyedBehindTheGridsBackIsSurvived)
{
    MakeGrid(GridOf({ Text() }), 3);
    SetFocus(grid);
    MoveTo(0, 0);
    DestroyWindow(Editor());
    EXPECT_EQ(0, HGShowEditor(ctl));
    EXPECT_EQ(1, HGHideEditor(ctl));
    SetFocus(parent.hwnd());
    SetFocus(grid);
    EXPECT_TRUE(IsWindow(grid));
}

} // namespace
