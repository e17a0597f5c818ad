// Rows that come and go, and what that does to the current cell.
#include "gridctl/record_source.h"

#include "support/guarded_memory.h"

namespace {

class GridRows : public SourceWindow {
protected:
    void SetCells(int current, int anchor)
    {
        ctl->nCurRow = static_cast<WORD>(current);
        ctl->nAnchorRow = static_cast<short>(anchor);
    }
    void FillNumbers(int rows)
    {
        for (int row = 0; row < rows; ++row) {
            const LONG value = row;
            HGSetCellData(grid, 0, row, &value);
        }
    }
    LONG NumberAt(int row) { return LoadAs<LONG>(HGRowData(ctl->pData, row)); }
};

TEST_F(GridRows, AddedRowGivesItsNumberFromOne)
{
    MakeGrid(GridOf({ Text() }));
    EXPECT_EQ(1, HGAddRow(ctl, nullptr, false));
    EXPECT_EQ(2, HGAddRow(ctl, nullptr, false));
    EXPECT_EQ(2, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(0, RowFlags(1));
}

TEST_F(GridRows, AddedRowIsNotLaidOutUntilTheGridIsTold)
{
    MakeGrid(GridOf({ Text() }), 3);
    HGAddRow(ctl, nullptr, false);
    EXPECT_EQ(3, Send(grid, HGM_GETTOTAL));
    EXPECT_EQ(0, parent.Count(HGN_LAYOUT));
}

TEST_F(GridRows, NewRowIsMarkedAndTold)
{
    MakeGrid(GridOf({ Text() }), 3);
    int row = -1;
    int col = 0;
    parent.On(HGN_NEWROW, [&] {
        row = ctl->nPropRow;
        col = ctl->nPropCol;
    });
    EXPECT_EQ(4, HGAddRow(ctl, nullptr, true));
    EXPECT_EQ(HGR_NEW, RowFlags(3));
    EXPECT_EQ(3, row);
    EXPECT_EQ(0xFFFF, col);
}

TEST_F(GridRows, RowsComeBeforeTheBlankEntryRow)
{
    MakeGrid(GridOf({ Number() }, gridStyle | HGS_NEWROW));
    ASSERT_EQ(1, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(2, HGAddRow(ctl, nullptr, false)) << "the row count, which names the entry row";
    EXPECT_EQ(0, RowFlags(0));
    EXPECT_EQ(HGR_NEW, RowFlags(1));
    EXPECT_EQ(-1, HGAddRow(ctl, nullptr, true)) << "there is an entry row already";
    EXPECT_EQ(2, Send(grid, HGM_GETROWCOUNT));
}

TEST_F(GridRows, RowDataOfAnAddedRowGoIntoTheEntryRow)
{
    MakeGrid(GridOf({ Number() }, gridStyle | HGS_NEWROW));
    const LONG value = 17;
    EXPECT_EQ(2, SendPtr(grid, HGM_ADDROW, 0, &value));
    EXPECT_EQ(0, NumberAt(0));
    EXPECT_EQ(17, NumberAt(1));
}

TEST_F(GridRows, WrittenEntryRowIsFollowedByTheNext)
{
    MakeGrid(GridOf({ Number() }, gridStyle | HGS_NEWROW));
    HGChangeNodeFlags(HGRowNode(ctl->pData, 0), 0, HGR_DIRTY);
    EXPECT_EQ(2, HGAddRow(ctl, nullptr, true));
    EXPECT_EQ(HGR_NEW, RowFlags(1));
}

TEST_F(GridRows, RowsEndAtTheRowLimit)
{
    MakeGrid(GridOf({ Number() }));
    for (int i = 1; i <= 32760; ++i) {
        ASSERT_EQ(i, HGAddRow(ctl, nullptr, false));
    }
    EXPECT_EQ(-1, HGAddRow(ctl, nullptr, false));
    EXPECT_EQ(-1, HGInsertRow(ctl, nullptr, 0, false));
    EXPECT_EQ(-1, HGAppendRow(ctl, nullptr));
    Send(grid, HGM_REFRESH, 1);
    EXPECT_EQ(32760, Send(grid, HGM_GETTOTAL));
    MoveTo(0, 32759);
    EXPECT_EQ(32759, Current().row);
    Send(grid, HGM_KEYDOWN);
    EXPECT_EQ(32759, Current().row);
}

TEST_F(GridRows, FailedAllocationAddsNothing)
{
    MakeGrid(GridOf({ Number() }), 2);
    for (auto add : { HGAddRow, +[](HGridCtl* c, const void*, bool) { return HGInsertRow(c, nullptr, 1, true); },
                      +[](HGridCtl* c, const void*, bool) { return HGAppendRow(c, nullptr); } }) {
        FailAllocation(1);
        EXPECT_EQ(-1, add(ctl, nullptr, false));
        FailAllocation(0);
        EXPECT_EQ(2, Send(grid, HGM_GETROWCOUNT));
        EXPECT_EQ(0, RowFlags(1));
    }
}

TEST_F(GridRows, AppendedRowIsPaintedWhereItIsInThePage)
{
    MakeGrid(GridOf({ Number() }), 3);
    UpdateWindow(grid);
    HGAppendRow(ctl, nullptr);
    EXPECT_TRUE(IsInvalid());
    AddRows(30);
    UpdateWindow(grid);
    HGAppendRow(ctl, nullptr);
    EXPECT_FALSE(IsInvalid());
}

TEST_F(GridRows, InsertedRowStandsWhereItWasAskedFor)
{
    MakeGrid(GridOf({ Number() }), 3);
    FillNumbers(3);
    EXPECT_EQ(1, HGInsertRow(ctl, nullptr, 1, true));
    EXPECT_EQ(HGR_NEW, RowFlags(1));
    EXPECT_EQ(1, ctl->nPropRow);
    EXPECT_EQ(1, parent.Count(HGN_NEWROW));
    EXPECT_EQ(1, NumberAt(2));
    EXPECT_EQ(4, HGInsertRow(ctl, nullptr, 99, false)) << "past the end appends";
}

TEST_F(GridRows, DeletedRowTakesTheCurrentRowUpByOneMore)
{
    struct Case {
        int deleted;
        int current;
        int anchor;
        int toCurrent;
        int toAnchor;
    };
    constexpr Case cases[] = {
        { 2, 5, 5, 3, 3 }, // below the current row
        { 5, 5, 5, 4, 4 }, // the current row
        { 8, 5, 5, 4, 4 }, // above
        { 2, 0, 0, 0, 0 }, // neither end is above 0
        { 2, 0, 5, 4, 0 }, // crosswise
        { 2, 4, 6, 4, 2 }, { 0, 1, 1, 0, 0 }, { 9, 9, 9, 8, 8 },
    };
    for (const Case& c : cases) {
        MakeGrid(GridOf({ Number() }), 10);
        SetCells(c.current, c.anchor);
        EXPECT_EQ(1, HGRemoveRow(ctl, c.deleted));
        EXPECT_EQ(c.toCurrent, Current().row) << c.deleted << " of " << c.current << ", " << c.anchor;
        EXPECT_EQ(c.toAnchor, ctl->nAnchorRow) << c.deleted << " of " << c.current << ", " << c.anchor;
        DestroyWindow(grid);
    }
}

TEST_F(GridRows, LastRowGoneLeavesTheFirstCell)
{
    MakeGrid(GridOf({ Number() }), 1);
    EXPECT_EQ(1, HGRemoveRow(ctl, 0));
    EXPECT_EQ(0, Current().row);
    EXPECT_EQ(0, ctl->nAnchorRow);
    EXPECT_EQ(0, ctl->wFlags & HGC_CELLSHOWN);
}

TEST_F(GridRows, BadRowsAreNotDeleted)
{
    MakeGrid(GridOf({ Number() }), 3);
    for (const int row : { -1, 3, 40000 }) {
        EXPECT_EQ(0, HGRemoveRow(ctl, row));
        EXPECT_EQ(0, HGDeleteRow(ctl, row, true));
    }
    EXPECT_EQ(0, parent.Count(HGN_ROWDELETING));
    EXPECT_EQ(3, Send(grid, HGM_GETROWCOUNT));
}

TEST_F(GridRows, DeletionIsToldWithItsRow)
{
    MakeGrid(GridOf({ Number() }), 3);
    int row = -1;
    parent.On(HGN_ROWDELETING, [&] {
        row = ctl->nPropRow;
        EXPECT_EQ(0xFFFF, ctl->nPropCol);
        EXPECT_EQ(3, Send(grid, HGM_GETROWCOUNT)) << "the row is still there";
    });
    EXPECT_EQ(1, HGDeleteRow(ctl, 1, true));
    EXPECT_EQ(1, row);
}

TEST_F(GridRows, BlankEntryRowIsNotDeleted)
{
    MakeGrid(GridOf({ Number() }, gridStyle | HGS_NEWROW), 2);
    EXPECT_EQ(0, Send(grid, HGM_DELETEROW, 2));
    EXPECT_EQ(1, Send(grid, HGM_DELETEROW, 1));
}

TEST_F(GridRows, SourceIsOfferedAddedRows)
{
    MakeSourceGrid();
    const int rows = HGRowCount(ctl->pData);
    EXPECT_EQ(-1, HGAddRow(ctl, nullptr, false)) << "refused";
    source.onCall = [](int operation, int) { return operation == HGSRC_APPEND; };
    source.answer = 1;
    source.calls.clear();
    EXPECT_EQ(rows + 1, HGAddRow(ctl, nullptr, false));
    ASSERT_EQ(1u, source.calls.size());
    EXPECT_EQ(HGSRC_APPEND, source.calls[0].operation);
    EXPECT_EQ(rows, source.calls[0].record);
    EXPECT_EQ(rows, HGRowCount(ctl->pData)) << "the block takes the row in when it comes there";
}

TEST_F(GridRows, SourceDecidesOnInsertionAndDeletion)
{
    MakeSourceGrid();
    HGScrollBy(ctl, 0, 500, true);
    Forget();
    const LONG base = ctl->lRowBase;
    const int  rows = HGRowCount(ctl->pData);
    EXPECT_EQ(-1, HGInsertRow(ctl, nullptr, 3, false));
    EXPECT_EQ(0, HGDeleteRow(ctl, 3, false));
    EXPECT_EQ(rows, HGRowCount(ctl->pData));
    source.answer = 1;
    source.onCall = [](int operation, int) { return operation == HGSRC_INSERT || operation == HGSRC_DELETE; };
    source.calls.clear();
    EXPECT_EQ(3, HGInsertRow(ctl, nullptr, 3, false));
    EXPECT_EQ(1, HGDeleteRow(ctl, 4, false));
    ASSERT_EQ(2u, source.calls.size());
    EXPECT_EQ(base + 3, source.calls[0].record);
    EXPECT_EQ(base + 4, source.calls[1].record);
}

// A source of three numbers that takes what is inserted.
std::vector<LONG> gNumbers;

int CALLBACK GrowingSource(HWND, int operation, int record, void* buffer)
{
    const int count = static_cast<int>(gNumbers.size());
    if (operation == HGSRC_FETCH && record >= 0 && record < count) {
        StoreAs<LONG>(buffer, gNumbers[static_cast<size_t>(record)]);
        return 1;
    }
    if (operation == HGSRC_INSERT) {
        gNumbers.insert(gNumbers.begin() + record, LoadAs<LONG>(buffer));
        return 1;
    }
    return operation == HGSRC_COUNT ? count : 0;
}

TEST_F(GridRows, SourceIsOfferedTheValuesOfAnInsertedRow)
{
    gNumbers = { 10, 20, 30 };
    MakeGrid(GridOf({ Number(), Text() }));
    SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(GrowingSource));
    Send(grid, HGM_SETTOTAL, 0, 3);
    struct {
        LONG number;
        char text[16];
    } const row = { 15, "values" };
    EXPECT_EQ(1, SendPtr(grid, HGM_INSERTROW, 1, &row));
    EXPECT_EQ((std::vector<LONG>{ 10, 15, 20, 30 }), gNumbers);
    EXPECT_EQ("15", CellText(0, 1));
    EXPECT_EQ("values", CellText(1, 1));
    EXPECT_EQ(0, HGIsCellNull(grid, 0, 1));
    EXPECT_EQ(1, Send(grid, HGM_INSERTROW, 1));
    EXPECT_EQ((std::vector<LONG>{ 10, 0, 15, 20, 30 }), gNumbers) << "a blank one without values";
}

TEST_F(GridRows, NewRowOfASourceIsNotDeleted)
{
    source.count = 3;
    MakeSourceGrid(gridStyle | HGS_NEWROW, false);
    source.answer = 1;
    source.onCall = [](int operation, int) { return operation == HGSRC_DELETE; };
    EXPECT_EQ(0, HGDeleteRow(ctl, 3, false));
    EXPECT_EQ(0, source.CountOf(HGSRC_DELETE));
    EXPECT_EQ(1, HGDeleteRow(ctl, 2, false));
}

TEST_F(GridRows, ChangedRecordComesBackWhenItsRowGoesButNotWhenItIsDeleted)
{
    MakeSourceGrid();
    HGChangeNodeFlags(HGRowNode(ctl->pData, 2), 0, HGR_DIRTY);
    HGChangeNodeFlags(HGRowNode(ctl->pData, 5), 0, HGR_DIRTY);
    EXPECT_EQ(1, HGRemoveRow(ctl, 5));
    EXPECT_EQ(1, source.CountOf(HGSRC_WRITEBACK));
    source.answer = 1;
    source.onCall = [](int operation, int) { return operation == HGSRC_DELETE; };
    EXPECT_EQ(1, HGDeleteRow(ctl, 2, false));
    EXPECT_EQ(1, source.CountOf(HGSRC_WRITEBACK)) << "its number is another record's by now";
}

TEST_F(GridRows, SourceThatAddsAColumnWhileARowIsOfferedIsSurvived)
{
    MakeSourceGrid();
    source.answer = 1;
    source.onCall = [&](int operation, int) {
        if (operation == HGSRC_INSERT) {
            SendPtr(grid, HGM_ADDFIELD, 0, Text(200));
        }
        return operation == HGSRC_INSERT;
    };
    EXPECT_EQ(-1, HGInsertRow(ctl, nullptr, 3, false));
    ExpectRowsAreRecords();
}

} // namespace
