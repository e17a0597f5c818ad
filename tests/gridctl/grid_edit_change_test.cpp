// Edits under way while the host changes columns or rows: what was typed reaches its own cell, and no other.
#include "gridctl/grid_editing.h"

#include "support/pixels.h"

#include <algorithm>

namespace {

class GridEditChange : public GridEditing {
protected:
    int ColumnOf(const char* title) { return static_cast<int>(SendPtr(grid, HGM_FINDFIELD, 0, title)); }
    std::string TextUnder(const char* title, int row)
    {
        const int col = ColumnOf(title);
        return col < 0 ? "gone" : CellText(col, row);
    }
    // Columns A, B and C with their titles' letters in row 0, and "TYPED" in the editor of B.
    void MakeTypedColumn()
    {
        MakeGrid(GridOf({ Text(16, "A"), Text(16, "B"), Text(16, "C") }, gridStyle | HGS_COLMAP), 3);
        SetText(0, 0, "a");
        SetText(1, 0, "b");
        SetText(2, 0, "c");
        TypeInto(1, 0, "TYPED");
    }
    // Rows of a text and of their number; "TYPED" in the editor of row 1's text.
    void MakeTypedRow(DWORD style = gridStyle)
    {
        MakeGrid(GridOf({ Text(), Number() }, style), 4);
        for (int row = 0; row < 4; ++row) {
            SetText(0, row, ("r" + std::to_string(row)).c_str());
            SetText(1, row, std::to_string(row).c_str());
        }
        TypeInto(0, 1, "TYPED");
    }
    std::string TextOfRecord(int number)
    {
        for (int row = 0; row < HGRowCount(ctl->pData); ++row) {
            // An inserted row is blank in both columns.
            if (CellText(1, row) == std::to_string(number) && !CellText(0, row).empty()) {
                return CellText(0, row);
            }
        }
        return "gone";
    }
};

struct Change {
    const char* what;
    void (*run)(HWND grid);
};

int OrderMessage(HWND grid, const int (&order)[3])
{
    return static_cast<int>(SendMessageA(grid, HGM_SETCOLORDER, 0, reinterpret_cast<LPARAM>(order)));
}

LPARAM New(HGField* field)
{
    return reinterpret_cast<LPARAM>(field);
}

// clang-format off
constexpr Change columnChanges[] = {
    { "insert left",        [](HWND g) { SendMessageA(g, HGM_INSERTFIELD, 0, New(Text(16, "N"))); } },
    { "insert at",          [](HWND g) { SendMessageA(g, HGM_INSERTFIELD, 1, New(Text(16, "N"))); } },
    { "insert a number at", [](HWND g) { SendMessageA(g, HGM_INSERTFIELD, 1, New(Number("N"))); } },
    { "insert right",       [](HWND g) { SendMessageA(g, HGM_INSERTFIELD, 2, New(Text(16, "N"))); } },
    { "delete left",        [](HWND g) { SendMessageA(g, HGM_DELETEFIELD, 0, 0); } },
    { "delete right",       [](HWND g) { SendMessageA(g, HGM_DELETEFIELD, 2, 0); } },
    { "move over to right", [](HWND g) { SendMessageA(g, HGM_MOVEFIELD, 0, 2); } },
    { "move over to left",  [](HWND g) { SendMessageA(g, HGM_MOVEFIELD, 2, 0); } },
    { "move it",            [](HWND g) { SendMessageA(g, HGM_MOVEFIELD, 1, 2); } },
    { "move nowhere",       [](HWND g) { SendMessageA(g, HGM_MOVEFIELD, 1, 9); } },
    { "order",              [](HWND g) { OrderMessage(g, { 2, 0, 1 }); } },
    { "add",                [](HWND g) { SendMessageA(g, HGM_ADDFIELD, 0, New(Text(16, "N"))); } },
    { "add on a band",      [](HWND g) { SendMessageA(g, HGM_SETBANDS, 0, 2);
                                         SendMessageA(g, HGM_SETFIELDBAND, 1, 1);
                                         SendMessageA(g, HGM_SETFIELDBAND, 2, 1);
                                         SendMessageA(g, HGM_ADDFIELD, 0, New(Text(16, "N"))); } },
};
// clang-format on

TEST_F(GridEditChange, ColumnChangesBringWhatWasTypedToItsOwnColumn)
{
    for (const Change& change : columnChanges) {
        SCOPED_TRACE(change.what);
        MakeTypedColumn();
        change.run(grid);
        EXPECT_EQ(1, Current().col) << "the current cell keeps its numbers";
        MoveTo(Current().col, 1);
        EXPECT_EQ("TYPED", TextUnder("B", 0));
        for (const char* title : { "A", "C" }) {
            const std::string text = TextUnder(title, 0);
            EXPECT_TRUE(text == "gone" || text == std::string(1, static_cast<char>(title[0] + 'a' - 'A'))) << text;
        }
        EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
        DestroyWindow(grid);
    }
}

TEST_F(GridEditChange, ColumnChangesLeaveTheEditorOfTheColumnThatIsCurrentNow)
{
    for (const Change& change : columnChanges) {
        SCOPED_TRACE(change.what);
        for (const bool typing : { false, true }) {
            MakeTypedColumn();
            if (!typing) {
                MoveTo(1, 1);
            }
            change.run(grid);
            if (!IsFlag(HGC_INEDIT)) {
                ExpectOwnEditor();
            }
            int visible = 0;
            for (int col = 0; col < HGColCount(ctl->pData); ++col) {
                visible += IsWindowVisible(ChildOf(col)) ? 1 : 0;
            }
            EXPECT_EQ(1, visible);
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridEditChange, AppendedColumnLeavesTheEditAlone)
{
    MakeTypedColumn();
    SendPtr(grid, HGM_ADDFIELD, 0, Text(16, "N"));
    EXPECT_EQ(Editor(), GetFocus());
    EXPECT_EQ("b", CellText(1, 0));
    EXPECT_EQ("TYPED", TextOf(Editor()));
}

TEST_F(GridEditChange, DeletedColumnTakesItsEditAlongAndLeavesTheOthersAsTheyAre)
{
    MakeTypedColumn();
    Send(grid, HGM_DELETEFIELD, 1);
    MoveTo(0, 1);
    EXPECT_EQ("a", TextUnder("A", 0));
    EXPECT_EQ("c", TextUnder("C", 0));
    EXPECT_EQ("gone", TextUnder("B", 0));
}

TEST_F(GridEditChange, SmallColumnInFrontOfAWideOneIsNotWrittenPastItsEnd)
{
    HGField* const byte = HGFieldCreate("A", 0, 80, 0, 'b', 'b', 0, 0, 0, 'e', 0, "", 0);
    MakeGrid(GridOf({ Number("B") }), 2);
    TypeInto(0, 0, "12345");
    SendPtr(grid, HGM_INSERTFIELD, 0, byte);
    MoveTo(0, 1);
    EXPECT_EQ("12345", TextUnder("B", 0));
}

TEST_F(GridEditChange, ColumnChangesWithoutTheFocusLeaveTheEditorHidden)
{
    for (const Change& change : columnChanges) {
        MakeTypedColumn();
        SetFocus(parent.hwnd());
        change.run(grid);
        EXPECT_FALSE(IsWindowVisible(Editor())) << change.what;
        DestroyWindow(grid);
    }
}

TEST_F(GridEditChange, ColumnChangesLeaveARangeWithoutEditor)
{
    for (const Change& change : columnChanges) {
        SCOPED_TRACE(change.what);
        MakeGrid(GridOf({ Text(16, "A"), Text(16, "B"), Text(16, "C") }, gridStyle | HGS_COLMAP), 3);
        StandOn(1, 0);
        Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(1, 1)));
        change.run(grid);
        ExpectNoEditor();
        DestroyWindow(grid);
    }
}

TEST_F(GridEditChange, DroppedColumnTakesWhatWasTypedAlong)
{
    MakeTypedColumn();
    ctl->wFlags |= HGC_MOUSEDOWN | HGC_COLDRAG;
    Send(grid, WM_LBUTTONUP, 0, MAKELPARAM(60, 10));
    EXPECT_EQ(0, ColumnOf("B"));
    EXPECT_EQ("TYPED", TextUnder("B", 0));
    EXPECT_EQ("a", TextUnder("A", 0));
    ExpectNoEditor();
}

// Rows

// clang-format off
constexpr Change rowChanges[] = {
    { "insert above",       [](HWND g) { SendMessageA(g, HGM_INSERTROW, 0, 0); } },
    { "insert at",          [](HWND g) { SendMessageA(g, HGM_INSERTROW, 1, 0); } },
    { "insert below",       [](HWND g) { SendMessageA(g, HGM_INSERTROW, 2, 0); } },
    { "insert at the end",  [](HWND g) { SendMessageA(g, HGM_INSERTROW, static_cast<WPARAM>(-1), 0); } },
    { "add",                [](HWND g) { SendMessageA(g, HGM_ADDROW, 0, 0); } },
    { "move over to below", [](HWND g) { SendMessageA(g, HGM_MOVEROW, 0, 2); } },
    { "move over to above", [](HWND g) { SendMessageA(g, HGM_MOVEROW, 2, 0); } },
    { "move it",            [](HWND g) { SendMessageA(g, HGM_MOVEROW, 1, 3); } },
    { "move below",         [](HWND g) { SendMessageA(g, HGM_MOVEROW, 2, 3); } },
    { "sort up",            [](HWND g) { SendMessageA(g, HGM_SORT, MAKEWPARAM(0, 1), 0); } },
    { "sort down",          [](HWND g) { SendMessageA(g, HGM_SORT, MAKEWPARAM(0, 0), 0); } },
    { "delete above",       [](HWND g) { SendMessageA(g, HGM_DELETEROW, 0, 0); } },
    { "delete below",       [](HWND g) { SendMessageA(g, HGM_DELETEROW, 2, 0); } },
};
// clang-format on

TEST_F(GridEditChange, RowChangesBringWhatWasTypedToItsOwnRow)
{
    for (const Change& change : rowChanges) {
        SCOPED_TRACE(change.what);
        MakeTypedRow();
        change.run(grid);
        MoveTo(0, 3);
        EXPECT_EQ("TYPED", TextOfRecord(1));
        for (const int other : { 0, 2, 3 }) {
            const std::string text = TextOfRecord(other);
            EXPECT_TRUE(text == "gone" || text == "r" + std::to_string(other)) << text;
        }
        EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
        DestroyWindow(grid);
    }
}

TEST_F(GridEditChange, RowChangesShowTheRowThatStandsUnderTheEditorNow)
{
    for (const Change& change : rowChanges) {
        SCOPED_TRACE(change.what);
        MakeTypedRow();
        TypeKey(VK_ESCAPE);
        change.run(grid);
        if (Editor()) {
            EXPECT_EQ(CellText(0, Current().row), TextOf(Editor()));
        }
        DestroyWindow(grid);
    }
}

TEST_F(GridEditChange, RowsThatComeBelowLeaveTheEditAlone)
{
    MakeTypedRow();
    Send(grid, HGM_INSERTROW, 2);
    Send(grid, HGM_ADDROW);
    Send(grid, HGM_MOVEROW, 2, 3);
    EXPECT_EQ(Editor(), GetFocus());
    EXPECT_EQ("r1", CellText(0, 1));
    TypeKey(VK_TAB);
    EXPECT_EQ("TYPED", CellText(0, 1));
}

TEST_F(GridEditChange, RowAddedBeforeTheEntryRowLeavesWhatWasTypedThereInOneRow)
{
    MakeGrid(GridOf({ Text(), Number() }, gridStyle | HGS_NEWROW), 3);
    const int entry = HGRowCount(ctl->pData) - 1;
    TypeInto(0, entry, "TYPED");
    Send(grid, HGM_ADDROW);
    MoveTo(0, 0);
    int found = 0;
    for (int row = 0; row < HGRowCount(ctl->pData); ++row) {
        found += CellText(0, row) == "TYPED";
    }
    EXPECT_EQ(1, found);
    EXPECT_EQ("TYPED", CellText(0, entry));
    EXPECT_EQ("", CellText(0, HGRowCount(ctl->pData) - 1)) << "the last row is the entry row again";
}

TEST_F(GridEditChange, SortWithAnArrayWritesNoPlaceForTheRowThatStoringAdded)
{
    MakeGrid(GridOf({ Text(), Number() }, gridStyle | HGS_NEWROW), 2);
    const int rows = HGRowCount(ctl->pData);
    TypeInto(0, rows - 1, "TYPED");
    std::vector<DWORD> parallel(static_cast<size_t>(rows) + 1);
    for (size_t i = 0; i < parallel.size(); ++i) {
        parallel[i] = static_cast<DWORD>(i);
    }
    SendPtr(grid, HGM_SORT, MAKEWPARAM(0, 0), parallel.data());
    EXPECT_EQ(rows + 1, HGRowCount(ctl->pData));
    EXPECT_EQ(static_cast<DWORD>(rows), parallel[static_cast<size_t>(rows)]);
    EXPECT_EQ("TYPED", CellText(0, rows - 1));
    SendPtr(grid, HGM_SORT, MAKEWPARAM(0, 0), nullptr);
    EXPECT_EQ("TYPED", CellText(0, 0));
}

// What was stored isn't stored again

TEST_F(GridEditChange, ValueThatWentInIsNotWrittenOverTheHostsLater)
{
    MakeTypedRow();
    SetFocus(parent.hwnd());
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ("TYPED", CellText(0, 1));
    HGSetCellString(grid, 0, 1, "host");
    SetFocus(grid);
    EXPECT_EQ(Editor(), GetFocus());
    parent.ClearCounts();
    TypeKey(VK_TAB);
    EXPECT_EQ((Cell{ 1, 1 }), Current());
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ("host", CellText(0, 1));
}

TEST_F(GridEditChange, RefusedValueStaysPendingInTheEditor)
{
    MakeTypedRow();
    RefuseWrites();
    TypeKey(VK_TAB);
    EXPECT_EQ((Cell{ 0, 1 }), Current());
    EXPECT_EQ(1, Send(Editor(), WWM_GETCHANGED));
    EXPECT_EQ("TYPED", TextOf(Editor()));
    parent.On(HGN_CELLCHANGED, nullptr);
    SetFocus(Editor());
    TypeKey(VK_TAB);
    EXPECT_EQ(2, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ("TYPED", CellText(0, 1));
}

TEST_F(GridEditChange, KeptSelectionStoresWhatWasTypedOnlyAtTheNextMove)
{
    MakeTypedRow(gridStyle | HGS_KEEPSEL);
    SetFocus(parent.hwnd());
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ("r1", CellText(0, 1));
    EXPECT_TRUE(IsWindowVisible(Editor()));
    MoveTo(0, 2);
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ("TYPED", CellText(0, 1));
}

TEST_F(GridEditChange, SelectionOfALineGetsNoEditorWhenItsColumnBecomesWritable)
{
    struct Case {
        const char* what;
        Cell        current;
        bool        extend;
    };
    constexpr Case cases[] = { { "a column", { 0, -1 }, false }, { "two cells", { 0, 2 }, true } };
    for (const Case& c : cases) {
        MakeGrid(GridOf({ Text(16, "A", HFF_READONLY), Text() }), 4);
        StandOn(0, 1);
        Send(grid, HGM_SETCURSOR, c.extend, static_cast<LPARAM>(PackCell(c.current.col, c.current.row)));
        Send(grid, HGM_SETFIELDFLAGS, 0, MAKELPARAM(0, HFF_READONLY));
        ExpectNoEditor();
        MoveTo(1, 1);
        EXPECT_EQ((Cell{ 1, 1 }), Current()) << c.what;
        DestroyWindow(grid);
    }
}

TEST_F(GridEditChange, CellGetsItsEditorWhenItsColumnBecomesWritable)
{
    MakeGrid(GridOf({ Text(16, "A", HFF_READONLY), Text() }), 2);
    SetText(0, 1, "here");
    StandOn(0, 1);
    Send(grid, HGM_SETFIELDFLAGS, 0, MAKELPARAM(0, HFF_READONLY));
    EXPECT_EQ("here", TextOf(Editor()));
    ExpectOwnEditor();
}

// The child of a host-drawn column

TEST_F(GridEditChange, HostDrawnColumnsChildTellsTheGridNothingOfItsFocus)
{
    HGField* const field = HGFieldCreate("Q", 0, 80, 0, 's', 's', 0, 0, 16, 'q', 0, "", 0);
    MakeGrid(GridOf({ field, Text() }), 2);
    StandOn(0, 1);
    ASSERT_EQ(ChildOf(0), Editor());
    seen.Watch(grid);
    seen.Skip(WM_KILLFOCUS);
    seen.Skip(WM_SETFOCUS);
    seen.Skip(WM_COMMAND); // of the edit itself
    SetFocus(Editor());
    EXPECT_EQ(Editor(), GetFocus());
    EXPECT_NOTHING_SEEN();
    EXPECT_FALSE(ctl->wFlags & HGC_INEDIT);
    SetFocus(parent.hwnd());
    EXPECT_NOTHING_SEEN();
    EXPECT_EQ(0, parent.Count(HGN_EDITFOCUS) + parent.Count(HGN_EDITBLUR));
}


TEST_F(GridEditChange, TypedTextIsPaintedWhole)
{
    MakeGrid(GridOf({ Text(), Text(32) }), 3);
    StandOn(1, 1);
    TypeText("Hidden fjord, WAVY");
    const HWND editor = Editor();
    ASSERT_EQ(editor, GetFocus());
    UpdateWindow(editor);
    HideCaret(editor);
    const Pixels typed = ShotOf(editor);
    InvalidateRect(editor, nullptr, TRUE);
    EXPECT_TRUE(SamePixels(ShotOf(editor), typed));
}

} // namespace
