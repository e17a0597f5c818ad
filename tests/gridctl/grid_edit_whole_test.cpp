// Edits that the host interrupts: a value reaches its own row whole, or no row at all.
#include "gridctl/grid_editing.h"

namespace {

class GridEditWhole : public GridEditing {
protected:
    void MakeRows(DWORD style = gridStyle)
    {
        MakeGrid(GridOf({ Text(), Number() }, style), 4);
        for (int row = 0; row < 4; ++row) {
            SetText(0, row, ("r" + std::to_string(row)).c_str());
            SetText(1, row, std::to_string(row).c_str());
        }
    }
    // The texts of all rows, in one line.
    std::string Texts()
    {
        std::string texts;
        for (int row = 0; row < HGRowCount(ctl->pData); ++row) {
            texts += (row > 0 ? " " : "") + CellText(0, row);
        }
        return texts;
    }
    static int CALLBACK RefuseOdd(HWND, int, void* value) { return LoadAs<LONG>(value) & 1; }
};

TEST_F(GridEditWhole, GridThatIsDestroyedWhileItsEditorIsLeftHasTheValueInItsRow)
{
    MakeRows();
    TypeInto(0, 1, "typed");
    std::string last;
    parent.On(HGN_EDITBLUR, [&] { DestroyWindow(grid); });
    parent.On(HGN_DESTROY, [&] { last = Texts(); });
    TypeKey(VK_TAB);
    EXPECT_FALSE(IsWindow(grid));
    EXPECT_EQ("r0 typed r2 r3", last);
}

TEST_F(GridEditWhole, HostThatMovesWhileTheEditorIsLeftHasTheValueInItsRow)
{
    for (const Cell cell : { Cell{ 1, 3 }, Cell{ 0, 3 } }) {
        MakeRows();
        TypeInto(0, 1, "typed");
        parent.On(HGN_EDITBLUR, [&] { MoveTo(cell.col, cell.row); });
        TypeKey(VK_TAB);
        EXPECT_EQ("r0 typed r2 r3", Texts());
        EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
        parent.On(HGN_EDITBLUR, nullptr);
        DestroyWindow(grid);
    }
}

TEST_F(GridEditWhole, FocusTakenToTheGridLeavesTheValueForTheNextMove)
{
    MakeRows();
    TypeInto(0, 1, "typed");
    SetFocus(grid);
    EXPECT_EQ("r0 r1 r2 r3", Texts());
    EXPECT_FALSE(IsFlag(HGC_INEDIT));
    TypeKey(VK_DOWN);
    EXPECT_EQ("r0 typed r2 r3", Texts());
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
}

TEST_F(GridEditWhole, FocusTakenToTheGridLeavesTheValueForAnAddedRow)
{
    MakeRows(gridStyle | HGS_NEWROW);
    Send(grid, HGM_KEYNEW);
    TypeInto(0, Current().row, "typed");
    SetFocus(grid);
    Send(grid, HGM_ADDROW);
    EXPECT_NE(std::string::npos, Texts().find("typed")) << Texts();
}

TEST_F(GridEditWhole, EscTakesBackWhatTheFocusHasLeft)
{
    MakeRows();
    TypeInto(0, 1, "typed");
    SetFocus(grid);
    TypeKey(VK_ESCAPE);
    TypeKey(VK_DOWN);
    EXPECT_EQ("r0 r1 r2 r3", Texts());
}

TEST_F(GridEditWhole, HostThatMovesWhenTheUserGivesUpStoresNothing)
{
    MakeRows();
    TypeInto(0, 1, "typed");
    parent.On(HGN_EDITBLUR, [&] { MoveTo(1, 3); });
    TypeKey(VK_ESCAPE);
    EXPECT_EQ("r0 r1 r2 r3", Texts());
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
}

TEST_F(GridEditWhole, RefusedValueIsGivenUpByTheNextMove)
{
    MakeRows();
    TypeInto(0, 1, "typed");
    RefuseWrites();
    TypeKey(VK_TAB);
    EXPECT_EQ((Cell{ 0, 1 }), Current());
    TypeKey(VK_TAB);
    EXPECT_EQ((Cell{ 1, 1 }), Current());
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
}

TEST_F(GridEditWhole, FocusTakenAtItsArrivalLeavesNoCaret)
{
    MakeRows();
    StandOn(0, 1);
    parent.On(HGN_EDITFOCUS, [&] { SetFocus(parent.hwnd()); });
    SetFocus(Editor());
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    EXPECT_EQ(nullptr, info.hwndCaret);
    EXPECT_EQ(parent.hwnd(), GetFocus());
}

TEST_F(GridEditWhole, FocusGivenBackWhileItLeavesKeepsWhatWasTyped)
{
    MakeRows(gridStyle | HGS_KEEPSEL);
    TypeInto(0, 1, "typed");
    parent.On(HGN_KILLFOCUS, [&] { SetFocus(grid); });
    SetFocus(parent.hwnd());
    EXPECT_EQ(Editor(), GetFocus());
    EXPECT_EQ("typed", TextOf(Editor()));
    parent.On(HGN_KILLFOCUS, nullptr);
    TypeKey(VK_TAB);
    EXPECT_EQ("r0 typed r2 r3", Texts());
}

TEST_F(GridEditWhole, ValueThatAValidatorRefusesKeepsTheCellAndTheFocus)
{
    MakeRows();
    SendPtr(ChildOf(1), HEM_SETVALIDATOR, 0, reinterpret_cast<const void*>(RefuseOdd));
    TypeInto(1, 2, "5");
    TypeKey(VK_TAB);
    EXPECT_EQ((Cell{ 1, 2 }), Current());
    EXPECT_EQ(Editor(), GetFocus());
    EXPECT_EQ("2", CellText(1, 2));
    TypeText("4");
    TypeKey(VK_TAB);
    EXPECT_EQ("4", CellText(1, 2));
    EXPECT_EQ((Cell{ 0, 3 }), Current());
}

TEST_F(GridEditWhole, RowOfARefusedValueCanBeDeleted)
{
    MakeRows();
    SendPtr(ChildOf(1), HEM_SETVALIDATOR, 0, reinterpret_cast<const void*>(RefuseOdd));
    TypeInto(1, 2, "5");
    EXPECT_NE(0, Send(grid, HGM_DELETEROW, 2));
    EXPECT_EQ("r0 r1 r3", Texts());
    ExpectNoEditor();
    EXPECT_FALSE(IsWindowVisible(GetFocus()) && GetFocus() == ChildOf(1));
}

// Rows that go meanwhile

TEST_F(GridEditWhole, RowThatTheHostDeletesWhenToldOfItsEndTakesNoOtherAlong)
{
    MakeRows(gridStyle | HGS_ROWDELETE);
    StandOn(-1, 1);
    parent.On(HGN_ROWDELETING, [&] { Send(grid, HGM_DELETEROW, 1); });
    TypeKey(VK_DELETE);
    EXPECT_EQ("r0 r2 r3", Texts());
}

TEST_F(GridEditWhole, DataThatTheHostAttachesWhenARowIsDeletedStayWhole)
{
    MakeRows(gridStyle | HGS_ROWDELETE);
    StandOn(-1, 1);
    HGridData* const other = GridOf({ Text() });
    HLListAdd(other->pRows, nullptr);
    HLListAdd(other->pRows, nullptr);
    parent.On(HGN_ROWDELETING, [&] { SendPtr(grid, HGM_SETDATA, 1, other); });
    TypeKey(VK_DELETE);
    EXPECT_EQ(2, HGRowCount(other));
}

class GridRecordWhole : public GridEditWhole {
protected:
    // The user leaves what was typed into record 1, and the source does something at an operation.
    void LeaveRecord(int operation, std::function<void()> happens, int answer)
    {
        source.count = 5;
        source.answer = answer;
        source.onCall = [this, operation, happens](int asked, int) {
            if (asked == HGSRC_DELETE) {
                source.answer = 1;
                return 1;
            }
            if (asked != operation) {
                return 0;
            }
            const int own = source.answer;
            happens();
            source.answer = own;
            return 1;
        };
        MakeSourceGrid();
        TypeInto(1, 1, "typed");
        TypeKey(VK_TAB);
    }
    LONG IdAt(int row) { return LoadAs<LONG>(HGRowData(ctl->pData, row)); }
};

TEST_F(GridRecordWhole, ValueThatTheFocusHasLeftIsStoredBeforeItsRecordIsDeleted)
{
    source.count = 5;
    MakeSourceGrid();
    TypeInto(1, 1, "typed");
    SetFocus(grid);
    bool deleted = false;
    bool storedAfter = false;
    source.onCall = [&](int asked, int) {
        deleted = deleted || asked == HGSRC_DELETE;
        storedAfter = storedAfter || (deleted && asked == HGSRC_UPDATE);
        return asked == HGSRC_DELETE || asked == HGSRC_UPDATE ? 1 : 0;
    };
    source.answer = 1;
    Send(grid, HGM_DELETEROW, 1);
    EXPECT_TRUE(deleted);
    EXPECT_FALSE(storedAfter);
}

TEST_F(GridRecordWhole, SourceThatDeletesTheRowWhenAskedForItsValueGetsNoOtherRowWritten)
{
    LeaveRecord(HGSRC_CELL, [&] { Send(grid, HGM_DELETEROW, 1); }, 0);
    ASSERT_EQ(1002, IdAt(1));
    EXPECT_EQ("", CellText(1, 1));
    EXPECT_EQ(0, RowFlags(1));
    EXPECT_EQ(0, source.CountOf(HGSRC_UPDATE));
}

TEST_F(GridRecordWhole, SourceThatDeletesTheRowWhileItStoresItLeavesTheNextRowsMark)
{
    LeaveRecord(HGSRC_UPDATE, [&] {
        Send(grid, HGM_SETROWFLAGS, 2, MAKELPARAM(1, HGR_DIRTY));
        Send(grid, HGM_DELETEROW, 1);
    }, 1);
    ASSERT_EQ(1002, IdAt(1));
    EXPECT_EQ(HGR_DIRTY, RowFlags(1));
    DestroyWindow(grid); // the marked row goes to the source once more
}

TEST_F(GridRecordWhole, HostThatResetsWhenToldOfANewRecordHasNoBlankOneAppended)
{
    source.count = 5;
    MakeSourceGrid(gridStyle | HGS_NEWROW);
    Send(grid, HGM_KEYNEW);
    TypeInto(1, Current().row, "typed");
    parent.On(HGN_CELLCHANGED, [&] { Send(grid, HGM_RESET, 1); });
    TypeKey(VK_TAB);
    EXPECT_EQ(0, source.CountOf(HGSRC_APPEND));
}

} // namespace
