// A host that locks a grid, a column or single records, and gives them free again: the current cell follows.
#include "gridctl/grid_editing.h"

namespace {

class GridLock : public GridEditing {
public:
    void LockGrid(bool on) { Send(grid, HGM_SETSTYLEBITS, on, HGS_READONLY); }
    void LockColumn(bool on) { Send(grid, HGM_SETFIELDFLAGS, 1, MAKELPARAM(on, HFF_READONLY)); }

protected:
    void MakeTexts(DWORD style = gridStyle, WORD flags = 0)
    {
        MakeGrid(GridOf({ Text(), Text(16, "B", flags), Text() }, style), 5);
        for (int row = 0; row < 5; ++row) {
            SetText(1, row, std::to_string(row).c_str());
        }
    }
    void LockGridByItsStyle(bool on)
    {
        const LRESULT style = Send(grid, WWM_GETSTYLE) | WS_CHILD | WS_VISIBLE;
        Send(grid, WWM_SETSTYLE, 0, static_cast<LPARAM>(on ? style | HGS_READONLY : style & ~LRESULT{ HGS_READONLY }));
    }
    // What is typed goes into the cell, and Down stores it.
    void ExpectTakesText(int col, int row)
    {
        EXPECT_CELL(col, row);
        ExpectOwnEditor();
        TypeText("x");
        EXPECT_EQ(Editor(), GetFocus());
        TypeKey(VK_DOWN);
        EXPECT_EQ("x", CellText(col, row));
    }
};

using Lock = void (GridLock::*)(bool on);

TEST_F(GridLock, EndsByAButtonThatTakesTheFocus)
{
    for (const bool byStyle : { false, true }) {
        for (const bool lockedFirst : { false, true }) {
            SCOPED_TRACE(testing::Message() << "by style " << byStyle << ", locked first " << lockedFirst);
            MakeTexts(lockedFirst ? gridStyle | HGS_READONLY : gridStyle);
            StandOn(1, 2);
            SetFocus(parent.hwnd());
            if (!lockedFirst) {
                byStyle ? LockGridByItsStyle(true) : LockGrid(true);
                SetFocus(grid);
                ExpectNoEditor();
                SetFocus(parent.hwnd());
            }
            byStyle ? LockGridByItsStyle(false) : LockGrid(false);
            EXPECT_FALSE(IsWindowVisible(ChildOf(1)));
            SetFocus(grid);
            ExpectTakesText(1, 2);
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridLock, TakesTheEditorFromTheScreenAndGivesItBackWhileTheGridHasTheFocus)
{
    MakeTexts();
    StandOn(1, 2);
    LockGrid(true);
    EXPECT_FALSE(IsWindowVisible(ChildOf(1)));
    EXPECT_EQ(grid, GetFocus());
    LockGrid(false);
    ExpectTakesText(1, 2);
}

TEST_F(GridLock, EndsForAGridThatWasMadeWithItWhileItHasTheFocus)
{
    MakeTexts(gridStyle | HGS_READONLY);
    StandOn(1, 2);
    LockGrid(false);
    ExpectTakesText(1, 2);
}

TEST_F(GridLock, ThatChangesNothingLeavesAnEditAlone)
{
    MakeTexts();
    TypeInto(1, 2, "typed");
    LockGrid(false);
    EXPECT_EQ("typed", TextOf(Editor()));
    EXPECT_EQ(Editor(), GetFocus());
}

TEST_F(GridLock, KeepsWhatWasTypedBeforeIt)
{
    for (const DWORD style : { gridStyle, gridStyle | HGS_KEEPSEL }) {
        for (const bool focused : { false, true }) {
            SCOPED_TRACE(testing::Message() << "style " << style << ", focused " << focused);
            MakeTexts(style);
            TypeInto(1, 2, "typed");
            if (!focused) {
                SetFocus(parent.hwnd());
            }
            LockGrid(true);
            LockGrid(false);
            SetFocus(grid);
            MoveTo(1, 3);
            EXPECT_EQ("typed", CellText(1, 2));
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridLock, OfARangeBringsNoEditorWhenItEnds)
{
    MakeTexts(gridStyle | HGS_READONLY);
    StandOn(1, 2);
    Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(1, 3)));
    LockGrid(false);
    ExpectNoEditor();
    SetFocus(parent.hwnd());
    SetFocus(grid);
    ExpectNoEditor();
}

// Even rows are free, odd ones are locked when the parent hears that one of them is current.
TEST_F(GridLock, OfSingleRecordsHoldsForTheRecordThatIsCurrent)
{
    for (const int code : { HGN_MOVED, HGN_ROWCHANGED }) {
        for (const Lock lock : { Lock{ &GridLock::LockGrid }, Lock{ &GridLock::LockColumn } }) {
            SCOPED_TRACE(testing::Message() << "code " << code << ", column " << (lock == &GridLock::LockColumn));
            MakeTexts();
            StandOn(1, 0);
            parent.On(code, [&] { (this->*lock)(Current().row % 2 != 0); });
            TypeKey(VK_DOWN);
            EXPECT_CELL(1, 1);
            ExpectNoEditor();
            TypeText("x");
            EXPECT_EQ("1", CellText(1, 1));
            TypeKey(VK_DOWN);
            ExpectTakesText(1, 2);
            EXPECT_CELL(1, 3);
            ExpectNoEditor();
            parent.On(code, nullptr);
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridLock, NothingIsTypedIntoAHiddenColumn)
{
    MakeGrid(GridOf({ Hidden(Text(16, "ID")), Text() }), 3);
    SetText(0, 0, "7");
    SetFocus(grid);
    ASSERT_EQ((Cell{ 0, 0 }), Current());
    ExpectNoEditor();
    for (const WORD key : { WORD{ VK_F2 }, WORD{ 'X' } }) {
        TypeKey(key);
        EXPECT_EQ(grid, GetFocus());
    }
    TypeKey(VK_DOWN);
    EXPECT_EQ("7", CellText(0, 0));
    TypeKey(VK_UP);
    TypeKey(VK_RIGHT);
    ExpectTakesText(1, 0);
}

TEST_F(GridLock, ColumnThatIsHiddenDuringAnEditHasItStored)
{
    MakeTexts();
    TypeInto(1, 2, "typed");
    Send(grid, HGM_SETFIELDFLAGS, 1, MAKELPARAM(1, HFF_HIDDEN));
    EXPECT_EQ(grid, GetFocus());
    TypeText("x");
    TypeKey(VK_DOWN);
    EXPECT_EQ("typed", CellText(1, 2));
}

} // namespace
