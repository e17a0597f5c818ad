// Keys of a grid that is walked, selected in, edited, and given and robbed of rows.
#include "input/input_grid.h"

namespace {

struct Step {
    const char* keys;
    CellAt      current;
};
struct RangeStep {
    const char* keys;
    CellAt      anchor;
    CellAt      current;
};

class GridKeys : public InputGrid {
protected:
    // Texts "a0", "b0", ... in columns a to d.
    void MakeFilled(int rows, DWORD style = headers)
    {
        Make({ textColumn, textColumn, textColumn, textColumn }, rows, style);
        for (int row = 0; row < rows; ++row) {
            for (int col = 0; col < columnCount; ++col) {
                SetText(col, row, (std::string(1, static_cast<char>('a' + col)) + std::to_string(row)).c_str());
            }
            Send(grid, HGM_SETROWFLAGS, static_cast<WPARAM>(row), MAKELPARAM(0, HGR_DIRTY));
        }
        Clear();
    }
    void Walk(const std::vector<Step>& steps)
    {
        std::string keys;
        for (const Step& step : steps) {
            keys += step.keys;
            Type(step.keys);
            EXPECT_EQ(step.current, Current()) << "by " << keys;
            EXPECT_EQ(step.current, Anchor()) << "by " << keys;
            EXPECT_EQ(grid, GetFocus()) << "by " << keys;
        }
    }
    void Extend(const std::vector<RangeStep>& steps)
    {
        std::string keys;
        for (const RangeStep& step : steps) {
            keys += step.keys;
            Type(step.keys);
            EXPECT_EQ(step.anchor, Anchor()) << "by " << keys;
            EXPECT_EQ(step.current, Current()) << "by " << keys;
            if (step.anchor == step.current && step.anchor.col >= 0 && step.anchor.row >= 0) {
                ExpectEditorStandsBy(keys);
            } else {
                ExpectNoEditor();
            }
        }
    }
    void RefuseWrites()
    {
        parent.On(HGN_CELLCHANGED, [this] { Send(grid, WWM_CANCEL); });
    }
    bool IsDirty(int row) { return (RowFlags(row) & HGR_DIRTY) != 0; }
};

// Walking

// clang-format off
TEST_F(GridKeys, WalkOverTheCells)
{
    MakeFilled(30);
    Walk({
        { "{Right}",       { 1, 0 } },
        { "{Down}",        { 1, 1 } },
        { "{Tab}",         { 2, 1 } },
        { "{Enter}",       { 3, 1 } },
        { "{Tab}",         { 0, 2 } },
        { "{Shift+Tab}",   { -1, 2 } },
        { "{Tab}",         { 0, 2 } },
        { "{End}",         { 3, 2 } },
        { "{Right}",       { 3, 2 } },
        { "{Home}",        { 0, 2 } },
        { "{Left}",        { -1, 2 } },
        { "{Left}",        { -1, 2 } },
        { "{Right}",       { 0, 2 } },
        { "{PgDn}",        { 0, 10 } },
        { "{Ctrl+End}",    { 0, 29 } },
        { "{Down}",        { 0, 29 } },
        { "{PgUp}",        { 0, 21 } },
        { "{Ctrl+Home}",   { 0, 0 } },
        { "{Up}",          { 0, 0 } },
        { "{Ctrl+PgDn}",   { 0, 29 } },
        { "{Ctrl+PgUp}",   { 0, 0 } },
        { "{Enter}{Enter}{Enter}{Enter}", { 0, 1 } },
    });
    ExpectEditorStandsBy("after the walk");
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
    EXPECT_FALSE(IsDirty(0));
}

TEST_F(GridKeys, HeldArrowRunsToTheEnd)
{
    MakeFilled(40);
    for (int i = 0; i < 60; ++i) {
        HoldKey(VK_DOWN);
    }
    ReleaseKey(VK_DOWN);
    EXPECT_EQ((CellAt{ 0, 39 }), Current());
    EXPECT_EQ(39, parent.Count(HGN_ROWCHANGED));
    ExpectEditorStandsBy("at the end");
    TypeAhead("{Up}{Up}{Up}{Right}{Right}{Left}{Down}");
    EXPECT_EQ((CellAt{ 1, 37 }), Current());
}

TEST_F(GridKeys, ShiftExtendsFromTheAnchor)
{
    MakeFilled(30);
    Extend({
        { "{Right}{Down}",  { 1, 1 }, { 1, 1 } },
        { "{Shift+Right}",  { 1, 1 }, { 2, 1 } },
        { "{Shift+Down}",   { 1, 1 }, { 2, 2 } },
        { "{Shift+End}",    { 1, 1 }, { 3, 2 } },
        { "{Shift+Up}",     { 1, 1 }, { 3, 1 } },
        { "{Shift+Up}",     { 1, 1 }, { 3, 0 } },
        { "{Shift+Home}",   { 1, 1 }, { 0, 0 } },
        { "{Shift+PgDn}",   { 1, 1 }, { 0, 8 } },
        { "{Shift+Ctrl+End}", { 1, 1 }, { 0, 29 } },
        { "{Shift+Ctrl+Home}{Shift+Down}{Shift+Right}", { 1, 1 }, { 1, 1 } },
        { "{Shift+Left}",   { 1, 1 }, { 0, 1 } },
        { "{Down}",         { 0, 2 }, { 0, 2 } },
    });
}

TEST_F(GridKeys, ShiftExtendsRowsFromARowHeader)
{
    MakeFilled(10);
    Extend({
        { "{Down}{Down}{Left}", { -1, 2 }, { -1, 2 } },
        { "{Shift+Down}",       { -1, 2 }, { -1, 3 } },
        { "{Shift+Right}",      { -1, 2 }, { -1, 3 } },
        { "{Shift+Up}{Shift+Up}", { -1, 2 }, { -1, 1 } },
    });
    EXPECT_NE(0, Send(grid, HGM_GETFLAGS) & HGC_RANGE);
}
// clang-format on

TEST_F(GridKeys, CtrlSpaceSelectsTheColumnOfAReadOnlyGrid)
{
    MakeFilled(5, headers | HGS_READONLY);
    Type("{Right}{Space}");
    EXPECT_EQ((CellAt{ 1, 0 }), Current());
    Type("{Ctrl+Space}");
    EXPECT_EQ((CellAt{ 1, -1 }), Current());
}

// Editing

TEST_F(GridKeys, F2GivesTheEditorTheFocusAndSelectsItsText)
{
    MakeFilled(3);
    Type("{F2}");
    EXPECT_TRUE(IsEditing());
    EXPECT_EQ(1, parent.Count(HGN_EDITFOCUS));
    EXPECT_EQ(MAKELRESULT(0, 2), Send(Editor(), EM_GETSEL));
    Type("{End}!{Enter}");
    EXPECT_EQ("a0!", Text(0, 0));
    EXPECT_EQ((CellAt{ 1, 0 }), Current());
}

TEST_F(GridKeys, F4AndF5GiveTheEditorTheFocusToo)
{
    for (const char* key : { "{F4}", "{F5}" }) {
        MakeFilled(3);
        Type(key);
        EXPECT_TRUE(IsEditing()) << key;
        EXPECT_EQ("a0", TextOf(Editor())) << key;
        Type("x{Tab}");
        EXPECT_EQ("x", Text(0, 0)) << key;
    }
}

TEST_F(GridKeys, KeysOfTheTextStayInTheEditor)
{
    MakeFilled(3);
    Type("{F2}{Home}x{Right}y{Left}{Left}z{End}{Shift+Left}{Del}");
    EXPECT_TRUE(IsEditing());
    EXPECT_EQ((CellAt{ 0, 0 }), Current());
    EXPECT_EQ("xzay", TextOf(Editor()));
    Type("{Enter}");
    EXPECT_EQ("xzay", Text(0, 0));
}

TEST_F(GridKeys, SpaceStartsAnEdit)
{
    MakeFilled(3);
    Type("{Space}x{Tab}");
    EXPECT_EQ(" x", Text(0, 0));
}

TEST_F(GridKeys, HeldLetterGoesIntoTheCellFromItsFirstRepeatOn)
{
    MakeFilled(3);
    for (int i = 0; i < 6; ++i) {
        HoldKey('W');
    }
    ReleaseKey('W');
    EXPECT_EQ("wwwwww", TextOf(Editor()));
    Type("{Tab}");
    EXPECT_EQ("wwwwww", Text(0, 0));
}

TEST_F(GridKeys, EscapeTakesBackWhatWasTyped)
{
    MakeFilled(3);
    Type("gone");
    EXPECT_EQ("gone", TextOf(Editor()));
    Type("{Esc}");
    ExpectEditorStandsBy("after Escape");
    EXPECT_EQ("a0", Text(0, 0));
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
    Type("{Down}");
    EXPECT_EQ("a0", Text(0, 0));
    EXPECT_FALSE(IsDirty(0));
}

TEST_F(GridKeys, EditorThatWasOnlyEnteredChangesNothing)
{
    MakeFilled(3);
    Type("{F2}{End}{Home}{Tab}{F2}{Down}");
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
    EXPECT_FALSE(IsDirty(0));
}

TEST_F(GridKeys, TypingTheSameValueChangesNothing)
{
    MakeFilled(3);
    Type("a0{Tab}");
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
    EXPECT_FALSE(IsDirty(0));
}

TEST_F(GridKeys, ReadOnlyGridTakesNothing)
{
    MakeFilled(3, headers | HGS_READONLY);
    Type("x{F2}y{F4}z{F5}{Del}1{Back}");
    EXPECT_EQ(grid, GetFocus());
    EXPECT_EQ("a0", Text(0, 0));
    EXPECT_EQ(0, parent.Count(HGN_EDITFOCUS));
    ExpectNoEditor();
}

TEST_F(GridKeys, ReadOnlyColumnTakesNothing)
{
    Make({ textColumn, { "ss", 16, "", HFF_READONLY }, textColumn }, 3);
    SetText(1, 0, "fixed");
    Click({ 1, 0 });
    Type("x{F2}y{F4}z");
    EXPECT_EQ(grid, GetFocus());
    EXPECT_EQ("fixed", Text(1, 0));
    ExpectNoEditor();
    Type("{Tab}free{Tab}");
    EXPECT_EQ("free", Text(2, 0));
}

// A veto leaves what was written: a host that wants the old value writes it back.
TEST_F(GridKeys, RefusedValueKeepsTheCellCurrentUntilItIsTaken)
{
    MakeFilled(3);
    RefuseWrites();
    Type("bad{Tab}");
    EXPECT_EQ((CellAt{ 0, 0 }), Current());
    ExpectEditorStandsBy("after the veto");
    EXPECT_EQ("bad", TextOf(Editor()));
    EXPECT_EQ(0, parent.Count(HGN_MOVING));
    parent.On(HGN_CELLCHANGED, nullptr);
    Type("{F2}{End}ge{Tab}");
    EXPECT_EQ("badge", Text(0, 0));
    EXPECT_EQ((CellAt{ 1, 0 }), Current());
}

// Records of a source that takes values or doesn't.
bool gRefused;

int CALLBACK Source(HWND, int operation, int, void*)
{
    constexpr int records = 1000;
    return operation == HGSRC_COUNT ? records : operation == HGSRC_CELL ? gRefused : 1;
}

TEST_F(GridKeys, ValueThatTheSourceRefusesIsTakenBackByEscape)
{
    Make({ textColumn, textColumn }, 0);
    SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(Source));
    Send(grid, HGM_REFRESH, 1);
    Click({ 0, 1 });
    gRefused = false;
    Type("old{Up}{Down}");
    EXPECT_EQ("old", Text(0, 1));
    gRefused = true;
    Type("new{Down}");
    EXPECT_EQ((CellAt{ 0, 1 }), Current());
    EXPECT_EQ("new", TextOf(Editor()));
    EXPECT_EQ("old", Text(0, 1));
    Type("{Esc}");
    ExpectEditorStandsBy("after Escape");
    Type("{Down}");
    EXPECT_EQ((CellAt{ 0, 2 }), Current());
    EXPECT_EQ("old", Text(0, 1));
}

TEST_F(GridKeys, ParentTurnsAMoveElsewhere)
{
    MakeFilled(5);
    parent.On(HGN_MOVING, [this] { Send(grid, HGM_SETPROPOSED, 0, MAKELPARAM(2, 3)); });
    Type("new{Tab}");
    EXPECT_EQ("new", Text(0, 0));
    EXPECT_EQ((CellAt{ 2, 3 }), Current());
    ExpectEditorStandsBy("where the parent wanted it");
}

TEST_F(GridKeys, TypedValueIsStoredWhenTheFocusLeavesTheGrid)
{
    MakeFilled(3);
    Type("new");
    Leave();
    EXPECT_EQ("new", Text(0, 0));
    EXPECT_TRUE(IsDirty(0));
    ExpectNoEditor();
    Click({ 0, 0 });
    ExpectEditorStandsBy("back in the grid");
}

// A second window of the host, activated by a click.
TEST_F(GridKeys, TypedValueIsStoredWhenAnotherWindowIsActivated)
{
    MakeFilled(3);
    parent.OnMessage(WM_SETFOCUS, [this](WPARAM, LPARAM) {
        SetFocus(grid);
        return 0;
    });
    Type("new");
    Recorder     notes;
    ParentWindow other(&notes);
    MoveWindow(other.hwnd(), 800, 100, 100, 100, TRUE);
    SetForegroundWindow(parent.hwnd());
    PumpPending();
    Type("er");
    ClickAt(other.hwnd(), 10, 10);
    EXPECT_EQ(other.hwnd(), GetActiveWindow());
    EXPECT_EQ("er", Text(0, 0)) << "the edit goes on, with the whole text selected";
    EXPECT_EQ(2, parent.Count(HGN_CELLCHANGED));
}

// Rows

class GridRows : public GridKeys {
protected:
    // Two records and the entry row.
    void MakeWithEntryRow(DWORD style = headers | HGS_NEWROW)
    {
        Make({ textColumn, textColumn }, 2, style);
        Type("one{Down}two{Up}");
        ASSERT_EQ(3, RowCount());
        Clear();
    }
};

TEST_F(GridRows, InsertGoesToTheEntryRow)
{
    MakeWithEntryRow();
    Type("{Ins}");
    EXPECT_EQ((CellAt{ 0, 2 }), Current());
    EXPECT_EQ(3, RowCount());
    ExpectEditorStandsBy("in the entry row");
}

TEST_F(GridRows, InsertDoesNothingWithoutAnEntryRow)
{
    MakeFilled(3);
    Type("{Ins}");
    EXPECT_EQ((CellAt{ 0, 0 }), Current());
}

TEST_F(GridRows, TypingInTheEntryRowMakesItARecordWithAnotherEntryRowBehindIt)
{
    MakeWithEntryRow();
    Type("{Ins}three");
    EXPECT_EQ(3, RowCount());
    Type("{Tab}");
    EXPECT_EQ(4, RowCount());
    EXPECT_EQ(1, parent.Count(HGN_NEWROW));
    EXPECT_EQ("one two three  ", ColumnTexts(0));
    EXPECT_EQ((CellAt{ 1, 2 }), Current());
    EXPECT_EQ(HGR_DIRTY, RowFlags(2) & HGR_DIRTY);
    EXPECT_EQ(HGR_NEW, RowFlags(3));
    Type("more{Tab}four{Down}");
    EXPECT_EQ("one two three four  ", ColumnTexts(0));
    EXPECT_EQ((CellAt{ 0, 4 }), Current());
}

TEST_F(GridRows, EscapeLeavesTheEntryRowUntouched)
{
    MakeWithEntryRow();
    Type("{Ins}three{Esc}{Up}");
    EXPECT_EQ(3, RowCount());
    EXPECT_EQ(0, parent.Count(HGN_NEWROW));
    EXPECT_EQ(HGR_NEW, RowFlags(2));
}

TEST_F(GridRows, RecordsAreTypedAheadIntoTheEntryRow)
{
    MakeWithEntryRow();
    TypeAhead("{Ins}three{Tab}3{Tab}four{Tab}4{Tab}five{Tab}5{Enter}");
    EXPECT_EQ("one two three four five  ", ColumnTexts(0));
    EXPECT_EQ("  3 4 5  ", ColumnTexts(1));
    EXPECT_EQ(3, parent.Count(HGN_NEWROW));
    EXPECT_EQ((CellAt{ 0, 5 }), Current());
}

TEST_F(GridRows, ShiftEnterGoesToTheEntryRow)
{
    MakeWithEntryRow();
    Type("{Right}{Shift+Enter}");
    EXPECT_EQ((CellAt{ 0, 2 }), Current());
}

TEST_F(GridRows, DeleteKeyDeletesSelectedRows)
{
    MakeFilled(6, headers | HGS_ROWDELETE);
    Type("{Down}{Del}");
    EXPECT_EQ(6, RowCount()) << "a cell is no row";
    Type("{Left}{Shift+Down}{Del}");
    EXPECT_EQ("a0 a3 a4 a5 ", ColumnTexts(0));
    EXPECT_EQ(2, parent.Count(HGN_ROWDELETING));
    EXPECT_EQ(grid, GetFocus());
}

TEST_F(GridRows, DeleteKeyNeedsTheStyleAndNoOtherKey)
{
    MakeFilled(4);
    Type("{Left}{Del}");
    EXPECT_EQ(4, RowCount());
    MakeFilled(4, headers | HGS_ROWDELETE);
    Type("{Left}{Shift+Del}{Ctrl+Del}");
    EXPECT_EQ(4, RowCount());
}

TEST_F(GridRows, EntryRowIsNeverDeleted)
{
    MakeWithEntryRow(headers | HGS_NEWROW | HGS_ROWDELETE);
    Type("{Left}{Shift+Ctrl+Home}{Shift+Down}{Shift+Down}{Del}");
    EXPECT_EQ(1, RowCount());
    EXPECT_EQ(HGR_NEW, RowFlags(0));
}

TEST_F(GridRows, EditGoesOnAfterADeletion)
{
    MakeFilled(5, headers | HGS_ROWDELETE);
    Type("{Down}{Down}{Left}{Del}{Right}");
    ExpectEditorStandsBy("after the deletion");
    const CellAt cell = Current();
    Type("new{Enter}");
    EXPECT_EQ("new", Text(cell.col, cell.row));
    EXPECT_EQ(4, RowCount());
}

} // namespace
