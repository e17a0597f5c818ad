// The mouse on a grid: clicks, ranges, scattered rows, drags out of the window, double clicks, dragged columns.
#include "input/input_grid.h"

#include "input/hand.h"

namespace {

struct ClickRow {
    CellAt      at;
    unsigned    modifiers;
    CellAt      anchor;
    CellAt      current;
    const char* rows; // selected ones; null: not looked at
};

class GridPointer : public InputGrid {
protected:
    void MakeCells(DWORD style = headers, int rows = 30, int columns = 5)
    {
        Make(std::vector<ColumnKind>(static_cast<size_t>(columns), textColumn), rows, style);
    }
    void ClickThrough(const std::vector<ClickRow>& rows)
    {
        for (const ClickRow& row : rows) {
            Click(row.at, row.modifiers);
            EXPECT_EQ(row.anchor, Anchor()) << "click at " << row.at << " with " << row.modifiers;
            EXPECT_EQ(row.current, Current()) << "click at " << row.at << " with " << row.modifiers;
            if (row.rows) {
                EXPECT_EQ(row.rows, SelectedRows()) << "click at " << row.at << " with " << row.modifiers;
            }
        }
    }
    // Presses in a cell and drags to a point outside, where the mouse stands still until the condition holds.
    void DragOutUntil(CellAt from, POINT to, const std::function<bool()>& condition)
    {
        Press(from);
        POINT screen = to;
        ClientToScreen(grid, &screen);
        Hand hand(condition, [screen] { Hand::Lift(screen); });
        MoveMouse(grid, to.x, to.y);
        EXPECT_TRUE(PumpUntil([&] { return hand.IsDone(); }));
        EXPECT_TRUE(hand.HeldInTime()) << "it doesn't scroll on";
        PumpPending();
        EXPECT_EQ(nullptr, GetCapture());
    }
};

// Clicks

TEST_F(GridPointer, ClickMakesACellCurrentAndItsEditorStandsBy)
{
    MakeCells();
    Leave();
    ExpectNoEditor();
    Click({ 2, 3 });
    EXPECT_EQ((CellAt{ 2, 3 }), Current());
    ExpectEditorStandsBy("after the click");
}

TEST_F(GridPointer, SecondClickEditsAndAThirdPlacesTheCaret)
{
    MakeCells();
    SetText(2, 3, "some text");
    Click({ 2, 3 });
    Click({ 2, 3 });
    EXPECT_TRUE(IsEditing());
    EXPECT_EQ(MAKELRESULT(0, 9), Send(Editor(), EM_GETSEL));
    ClickAt(Editor(), 2, 8);
    EXPECT_EQ(MAKELRESULT(0, 0), Send(Editor(), EM_GETSEL));
    Type("X");
    Click({ 2, 5 });
    EXPECT_EQ("Xsome text", Text(2, 3));
    EXPECT_EQ((CellAt{ 2, 5 }), Current());
}

TEST_F(GridPointer, DragInTheEditorSelectsItsText)
{
    MakeCells();
    SetText(2, 3, "some text");
    Click({ 2, 3 });
    Click({ 2, 3 });
    PressButton(Editor(), 2, 8);
    MoveMouse(Editor(), 300, 8);
    ReleaseButton(Editor(), 300, 8);
    EXPECT_EQ(MAKELRESULT(0, 9), Send(Editor(), EM_GETSEL));
    EXPECT_EQ((CellAt{ 2, 3 }), Current());
    Type("{Del}{Enter}");
    EXPECT_EQ("", Text(2, 3));
}

// clang-format off
TEST_F(GridPointer, HeadersSelectWholeLines)
{
    MakeCells();
    ClickThrough({
        { { 1, -1 },  withNone,  { 1, -1 },  { 1, -1 },  nullptr },
        { { 3, -1 },  withShift, { 1, -1 },  { 3, -1 },  nullptr },
        { { -1, 4 },  withNone,  { -1, 4 },  { -1, 4 },  nullptr },
        { { -1, 6 },  withShift, { -1, 4 },  { -1, 6 },  nullptr },
        { { -1, -1 }, withNone,  { -1, -1 }, { -1, -1 }, nullptr },
        { { 2, 2 },   withNone,  { 2, 2 },   { 2, 2 },   nullptr },
    });
    ExpectEditorStandsBy("in a cell again");
}

TEST_F(GridPointer, ShiftClickExtendsFromTheAnchor)
{
    MakeCells();
    ClickThrough({
        { { 1, 2 }, withNone,  { 1, 2 }, { 1, 2 }, nullptr },
        { { 3, 5 }, withShift, { 1, 2 }, { 3, 5 }, nullptr },
        { { 0, 0 }, withShift, { 1, 2 }, { 0, 0 }, nullptr },
        { { 2, -1 }, withShift, { 1, 2 }, { 2, -1 }, nullptr },
    });
    ExpectNoEditor();
}

TEST_F(GridPointer, RowsAreScatteredByCtrlAndJoinedByShift)
{
    MakeCells(headers | HGS_ROWSELECT, 9);
    ClickThrough({
        { { 1, 2 }, withNone,             { -1, 2 }, { -1, 2 }, "2 " },
        { { 1, 5 }, withCtrl,             { -1, 5 }, { -1, 5 }, "2 5 " },
        { { 3, 7 }, withCtrl,             { -1, 7 }, { -1, 7 }, "2 5 7 " },
        { { 3, 5 }, withCtrl,             { -1, 5 }, { -1, 5 }, "2 7 " },
        { { 3, 4 }, withCtrl,             { -1, 4 }, { -1, 4 }, "2 4 7 " },
        { { 0, 6 }, withCtrl | withShift, { -1, 4 }, { -1, 6 }, "2 4 5 6 7 " },
        { { 2, 1 }, withNone,             { -1, 1 }, { -1, 1 }, "1 " },
        { { 2, 3 }, withShift,            { -1, 1 }, { -1, 3 }, "1 2 3 " },
        { { 2, 0 }, withShift,            { -1, 1 }, { -1, 0 }, "0 1 " },
    });
    EXPECT_EQ(2, Send(grid, HGM_GETSELCOUNT));
}

TEST_F(GridPointer, WithoutExtensionOneRowIsSelectedAtATime)
{
    MakeCells(headers | HGS_ROWSELECT | HGS_NOEXTEND, 9);
    ClickThrough({
        { { 1, 2 }, withNone,  { -1, 2 }, { -1, 2 }, nullptr },
        { { 1, 5 }, withCtrl,  { -1, 5 }, { -1, 5 }, nullptr },
        { { 1, 7 }, withShift, { -1, 7 }, { -1, 7 }, nullptr },
    });
}
// clang-format on

TEST_F(GridPointer, ScatteredRowsAreDeletedByTheirRangeAlone)
{
    MakeCells(headers | HGS_ROWSELECT | HGS_ROWDELETE, 6);
    Click({ 1, 1 });
    Click({ 1, 4 }, withCtrl);
    Type("{Del}");
    EXPECT_EQ(5, RowCount());
}

TEST_F(GridPointer, RightClickIsToldBeforeTheMove)
{
    constexpr Seen expected[] = {
        { 0, ToParent, HGN_RBUTTONDOWN, 100 },
        { 0, ToParent, HGN_MOVING, 100 },
        { 0, ToParent, HGN_MOVED, 100 },
        { 0, ToParent, HGN_ROWCHANGED, 100 },
    };
    MakeCells();
    const POINT point = MiddleOf({ 2, 3 });
    RightClickAt(grid, point.x, point.y);
    EXPECT_SEEN(expected);
    EXPECT_EQ((CellAt{ 2, 3 }), Current());
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(GridPointer, DoubleClickIsToldAfterTheMoveWhereNoEditorStandsInBetween)
{
    constexpr Seen expected[] = {
        { 0, ToParent, HGN_MOVING, 100 }, { 0, ToParent, HGN_MOVED, 100 },  { 0, ToParent, HGN_ROWCHANGED, 100 },
        { 0, ToParent, HGN_MOVING, 100 }, { 0, ToParent, HGN_DBLCLK, 100 },
    };
    MakeCells(headers | HGS_READONLY);
    const POINT point = MiddleOf({ 2, 3 });
    DoubleClickAt(grid, point.x, point.y);
    EXPECT_SEEN(expected);
    EXPECT_EQ((CellAt{ 2, 3 }), Current());
}

TEST_F(GridPointer, DoubleClickOnTheEditorIsTheGrids)
{
    MakeCells();
    Click({ 2, 3 });
    const HWND editor = Editor();
    DoubleClickAt(editor, 20, 8);
    EXPECT_EQ(1, parent.Count(HGN_DBLCLK));
    EXPECT_TRUE(IsEditing());
}

// The first click has put the editor under the mouse.
TEST_F(GridPointer, DoubleClickOnAnotherCellGoesOnInItsEditor)
{
    MakeCells();
    SetText(2, 3, "text");
    const POINT point = MiddleOf({ 2, 3 });
    DoubleClickAt(grid, point.x, point.y);
    EXPECT_EQ((CellAt{ 2, 3 }), Current());
    EXPECT_TRUE(IsEditing());
    EXPECT_EQ(0, parent.Count(HGN_DBLCLK));
    Type("new{Enter}");
    EXPECT_EQ("new", Text(2, 3));
}

TEST_F(GridPointer, WheelScrollsUnderTheEdit)
{
    MakeCells();
    Type("typed");
    const POINT point = MiddleOf({ 2, 3 });
    Wheel(grid, point.x, point.y, -WHEEL_DELTA);
    EXPECT_GT(TopRow(), 0);
    Type("{Enter}");
    EXPECT_EQ("typed", Text(0, 0));
}

// Drags

TEST_F(GridPointer, DragSelectsARange)
{
    MakeCells();
    Press({ 1, 2 });
    EXPECT_EQ(grid, GetCapture());
    DragTo({ 2, 3 });
    DragTo({ 3, 5 });
    EXPECT_EQ((CellAt{ 3, 5 }), Current());
    DragTo({ 0, 4 });
    LetGo({ 0, 4 });
    EXPECT_EQ((CellAt{ 1, 2 }), Anchor());
    EXPECT_EQ((CellAt{ 0, 4 }), Current());
    EXPECT_EQ(nullptr, GetCapture());
    DragTo({ 3, 6 });
    EXPECT_EQ((CellAt{ 0, 4 }), Current());
    ExpectNoEditor();
}

TEST_F(GridPointer, DragBackToItsCellLeavesASingleCell)
{
    MakeCells();
    Press({ 1, 2 });
    DragTo({ 2, 4 });
    DragTo({ 1, 2 });
    LetGo({ 1, 2 });
    EXPECT_EQ(0, Send(grid, HGM_GETFLAGS) & HGC_RANGE);
    ExpectEditorStandsBy("back at its cell");
}

TEST_F(GridPointer, DragOverHeadersSelectsLines)
{
    MakeCells();
    Press({ -1, 2 });
    DragTo({ 2, 5 });
    LetGo({ 2, 5 });
    EXPECT_EQ((CellAt{ -1, 2 }), Anchor());
    EXPECT_EQ((CellAt{ -1, 5 }), Current());
    Press({ 1, -1 });
    DragTo({ 3, 5 });
    LetGo({ 3, 5 });
    EXPECT_EQ((CellAt{ 1, -1 }), Anchor());
    EXPECT_EQ((CellAt{ 3, -1 }), Current());
}

TEST_F(GridPointer, DragBelowTheWindowScrollsOnWhileTheMouseStandsStill)
{
    MakeCells(headers, 100);
    DragOutUntil({ 1, 3 }, { 150, 200 + pastEdge }, [this] { return Current().row >= 60; });
    EXPECT_EQ((CellAt{ 1, 3 }), Anchor());
    EXPECT_GE(Current().row, 60);
    EXPECT_GT(TopRow(), 40);
}

TEST_F(GridPointer, DragAboveTheWindowScrollsBack)
{
    MakeCells(headers, 100);
    Send(grid, HGM_SETTOPRECORD, 50);
    DragOutUntil({ 1, 53 }, { 150, 20 - pastEdge }, [this] { return TopRow() <= 10; });
    EXPECT_EQ((CellAt{ 1, 53 }), Anchor());
    EXPECT_LE(TopRow(), 10);
}

TEST_F(GridPointer, DragBesideTheWindowScrollsAcross)
{
    MakeCells(headers, 30, 12);
    DragOutUntil({ 1, 3 }, { 400 + pastEdge, 90 }, [this] { return Current().col >= 11; });
    EXPECT_EQ((CellAt{ 1, 3 }), Anchor());
    EXPECT_EQ((CellAt{ 11, 3 }), Current());
    EXPECT_GT(Send(grid, HGM_GETHPOS), 0);
}

TEST_F(GridPointer, RowsAreDraggedBelowTheWindow)
{
    MakeCells(headers | HGS_ROWSELECT, 100);
    DragOutUntil({ -1, 3 }, { 20, 200 + pastEdge }, [this] { return Current().row >= 60; });
    EXPECT_EQ((CellAt{ -1, 3 }), Anchor());
    EXPECT_EQ(Current().row - 3 + 1, Send(grid, HGM_GETSELCOUNT));
}

TEST_F(GridPointer, DragDoesNotBeginWhereAValueIsRefused)
{
    MakeCells(headers, 100);
    Type("typed");
    parent.On(HGN_CELLCHANGED, [this] { Send(grid, WWM_CANCEL); });
    Press({ 1, 3 });
    DragTo({ 2, 5 });
    EXPECT_EQ((CellAt{ 0, 0 }), Current());
    LetGo({ 2, 5 });
    EXPECT_EQ((CellAt{ 0, 0 }), Current());
    EXPECT_EQ("typed", TextOf(Editor()));
    EXPECT_EQ(nullptr, GetCapture());
}

// Columns

TEST_F(GridPointer, ShiftOnASelectedColumnDragsItAway)
{
    MakeCells(headers | HGS_COLMAP);
    const char* const texts[] = { "A", "B", "C", "D", "E" };
    for (int col = 0; col < 5; ++col) {
        SetText(col, 0, texts[col]);
    }
    Click({ 1, -1 });
    POINT target = MiddleOf({ 3, -1 });
    ClientToScreen(grid, &target);
    Hand hand([this] { return (Send(grid, HGM_GETFLAGS) & HGC_COLDRAG) != 0; },
              [target] {
                  Hand::MoveTo(target);
                  Hand::Lift(target, withShift);
              });
    Press({ 1, -1 }, withShift); // comes back when the drag is over
    EXPECT_TRUE(PumpUntil([&] { return hand.IsDone(); }));
    EXPECT_TRUE(hand.HeldInTime());
    EXPECT_EQ(1, parent.Count(HGN_COLSMOVED));
    EXPECT_EQ("A C D B E", Text(0, 0) + " " + Text(1, 0) + " " + Text(2, 0) + " " + Text(3, 0) + " " + Text(4, 0));
    EXPECT_EQ((CellAt{ 3, -1 }), Current());
}

} // namespace
