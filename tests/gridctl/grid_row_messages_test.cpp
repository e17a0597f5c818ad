// Messages that concern rows, their data, and the record set behind them.
#include "gridctl/grid_window.h"

#include <cstring>
#include <vector>

namespace {

class GridRowMessages : public GridWindow {};

TEST_F(GridRowMessages, AddedRowTakesItsData)
{
    MakeGrid(GridOf({ Number(), Number() }));
    const int data[2] = { 11, 22 };
    EXPECT_EQ(1, SendPtr(grid, HGM_ADDROW, 0, data));
    EXPECT_EQ(2, Send(grid, HGM_ADDROW));
    EXPECT_EQ("11", CellText(0, 0));
    EXPECT_EQ("22", CellText(1, 0));
    EXPECT_EQ("0", CellText(1, 1));
    EXPECT_EQ(0, CellFlags(0, 0));
}

TEST_F(GridRowMessages, AddedRowBeforeTheEntryRowFillsTheEntryRow)
{
    MakeGrid(GridOf({ Number() }, gridStyle | HGS_NEWROW));
    const int data = 5;
    EXPECT_EQ(2, SendPtr(grid, HGM_ADDROW, 0, &data));
    EXPECT_EQ(2, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ("0", CellText(0, 0));
    EXPECT_EQ("5", CellText(0, 1));
}

TEST_F(GridRowMessages, InsertedRowTakesItsData)
{
    MakeGrid(GridOf({ Number() }), 2);
    const int data = 5;
    EXPECT_EQ(1, SendPtr(grid, HGM_INSERTROW, 1, &data));
    EXPECT_EQ(3, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ("5", CellText(0, 1));
    EXPECT_EQ(3, Send(grid, HGM_INSERTROW, 99, 0));
}

TEST_F(GridRowMessages, DeletedRowIsGoneWithoutNotification)
{
    MakeGrid(GridOf({ Number() }), 3);
    for (int row = 0; row < 3; ++row) {
        SetText(0, row, std::to_string(row).c_str());
    }
    EXPECT_EQ(1, Send(grid, HGM_DELETEROW, 1));
    EXPECT_EQ(0, Send(grid, HGM_DELETEROW, 5));
    EXPECT_EQ("2", CellText(0, 1));
    EXPECT_EQ(0, parent.Count(HGN_ROWDELETING));
}

TEST_F(GridRowMessages, EntryRowIsNotDeleted)
{
    MakeGrid(GridOf({ Number() }, gridStyle | HGS_NEWROW));
    SetText(0, 0, "1");
    ASSERT_EQ(2, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(0, Send(grid, HGM_DELETEROW, 1));
    EXPECT_EQ(1, Send(grid, HGM_DELETEROW, 0));
}

TEST_F(GridRowMessages, MovedRowTakesItsValuesAlong)
{
    MakeGrid(GridOf({ Number() }), 3);
    SetText(0, 0, "1");
    EXPECT_EQ(2, Send(grid, HGM_MOVEROW, 0, 2));
    EXPECT_EQ("1", CellText(0, 2));
    EXPECT_EQ(-1, Send(grid, HGM_MOVEROW, 0, 9));
}

TEST_F(GridRowMessages, RowsAreReadAndWrittenWithoutTheirFlags)
{
    MakeGrid(GridOf({ Number(), Number() }), 2);
    HGSetCellData(grid, 0, 1, nullptr);
    SetText(1, 1, "8");
    int data[2] = { 7, 7 };
    EXPECT_EQ(1, SendPtr(grid, HGM_READROW, 1, data));
    EXPECT_EQ(0, data[0]);
    EXPECT_EQ(8, data[1]);
    data[0] = 3;
    EXPECT_EQ(1, SendPtr(grid, HGM_WRITEROW, 1, data));
    EXPECT_EQ("3", CellText(0, 1));
    EXPECT_EQ(1, HGIsCellNull(grid, 0, 1));
    EXPECT_EQ(0, SendPtr(grid, HGM_READROW, 2, data));
    EXPECT_EQ(0, Send(grid, HGM_READROW, 0, 0));
    EXPECT_EQ(0, SendPtr(grid, HGM_WRITEROW, static_cast<WPARAM>(-1), data));
}

TEST_F(GridRowMessages, CurrentRowIsReadByItsOwnMessage)
{
    MakeGrid(GridOf({ Number() }), 3);
    SetText(0, 2, "9");
    MoveTo(0, 2);
    int data = 0;
    EXPECT_EQ(1, SendPtr(grid, HGM_READCURROW, 0, &data));
    EXPECT_EQ(9, data);
    MoveTo(0, -1);
    EXPECT_EQ(0, SendPtr(grid, HGM_READCURROW, 0, &data));
}

TEST_F(GridRowMessages, MirrorHoldsTheCurrentRow)
{
    MakeGrid(GridOf({ Number() }), 3);
    SetText(0, 2, "9");
    MoveTo(0, 0);
    int mirror = -1;
    SendPtr(grid, HGM_SETROWMIRROR, 0, &mirror);
    EXPECT_EQ(reinterpret_cast<LRESULT>(&mirror), Send(grid, HGM_GETROWMIRROR));
    EXPECT_EQ(0, mirror);
    MoveTo(0, 2);
    EXPECT_EQ(9, mirror);
    Send(grid, HGM_SETROWMIRROR, 0, 0);
}

TEST_F(GridRowMessages, RowSizeCountsValuesOnly)
{
    MakeGrid(GridOf({ Number(), Text(10) }), 1);
    EXPECT_EQ(14, Send(grid, HGM_GETROWSIZE));
}

TEST_F(GridRowMessages, RowFlagsAreSetAndClearedByMask)
{
    MakeGrid(GridOf({ Number() }), 2);
    EXPECT_EQ(HGR_SELECTED | HGR_DIRTY, Send(grid, HGM_SETROWFLAGS, 1, MAKELPARAM(1, HGR_SELECTED | HGR_DIRTY)));
    EXPECT_EQ(HGR_SELECTED | HGR_DIRTY, Send(grid, HGM_GETROWFLAGS, 1));
    EXPECT_EQ(HGR_DIRTY, Send(grid, HGM_SETROWFLAGS, 1, MAKELPARAM(0, HGR_SELECTED)));
    EXPECT_EQ(0, Send(grid, HGM_GETROWFLAGS, 0));
    EXPECT_EQ(0, Send(grid, HGM_GETROWFLAGS, 9));
    EXPECT_EQ(0, Send(grid, HGM_SETROWFLAGS, 9, MAKELPARAM(1, HGR_DIRTY)));
}

TEST_F(GridRowMessages, RowPointerComesByTheHighWord)
{
    MakeGrid(GridOf({ Number() }), 2);
    SetText(0, 1, "6");
    const void* const row = reinterpret_cast<const void*>(Send(grid, HGM_GETROWPTR, 0, MAKELPARAM(0, 1)));
    ASSERT_NE(nullptr, row);
    EXPECT_EQ(6, LoadAs<int>(row));
    EXPECT_EQ(0, Send(grid, HGM_GETROWPTR, 0, MAKELPARAM(0, 2)));
    EXPECT_EQ(0, Send(grid, HGM_GETROWPTR, 0, MAKELPARAM(0, 0xFFFF)));
}

TEST_F(GridRowMessages, RecordsAreRowsFromTheBaseOn)
{
    MakeGrid(GridOf({ Number() }), 3);
    Send(grid, HGM_SETROWBASE, 100, 7);
    EXPECT_EQ(100, Send(grid, HGM_GETROWBASE));
    EXPECT_EQ(1, Send(grid, HGM_RECORDTOROW, 0, 101));
    EXPECT_EQ(-1, static_cast<int>(Send(grid, HGM_RECORDTOROW, 0, 103)));
    EXPECT_EQ(-1, static_cast<int>(Send(grid, HGM_RECORDTOROW, 0, 99)));
    Send(grid, HGM_SETROWBASE, 0, 0);
}

TEST_F(GridRowMessages, TotalsAndHeldRowsAreForSourcesOnly)
{
    MakeGrid(GridOf({ Number() }), 3);
    EXPECT_EQ(0, Send(grid, HGM_SETTOTAL, 0, 50));
    EXPECT_EQ(0, Send(grid, HGM_SETHELD, 0, 50));
    EXPECT_EQ(3, Send(grid, HGM_GETTOTAL));
    EXPECT_EQ(3, Send(grid, HGM_GETHELD));
}

int CALLBACK HundredRecords(HWND grid, int operation, int record, void* buffer)
{
    if (operation == HGSRC_FETCH && record < 100) {
        StoreAs<int>(HGOffsetPtr(grid, 0, buffer), record * 10);
        return 1;
    }
    return operation == HGSRC_COUNT ? 100 : 0;
}

TEST_F(GridRowMessages, SourceFillsTheRows)
{
    MakeGrid(GridOf({ Number() }));
    SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(HundredRecords));
    EXPECT_LE(2 * ctl->cPageRows, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ("50", CellText(0, 5));
    EXPECT_EQ(1, Send(grid, HGM_SETTOTAL, 0, 100));
    EXPECT_EQ(101, Send(grid, HGM_GETTOTAL));
    EXPECT_EQ(1, ctl->fTotalKnown);
    EXPECT_EQ(1, Send(grid, HGM_SETTOTAL, 0, 0));
    EXPECT_EQ(40, Send(grid, HGM_SETHELD, 0, 40));
    EXPECT_EQ(40, Send(grid, HGM_GETROWCOUNT));
}

TEST_F(GridRowMessages, TotalBelowTheHeldRowsCutsThem)
{
    MakeGrid(GridOf({ Number() }));
    SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(HundredRecords));
    Send(grid, HGM_SETHELD, 0, 90);
    Send(grid, HGM_SETTOTAL, 0, 39);
    EXPECT_EQ(40, Send(grid, HGM_GETHELD));
    EXPECT_EQ(40, Send(grid, HGM_GETROWCOUNT));
}

TEST_F(GridRowMessages, TotalPastSixteenBitsBelowZeroHoldsNoMoreThanTwoPages)
{
    MakeGrid(GridOf({ Number() }));
    SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(HundredRecords));
    Send(grid, HGM_SETTOTAL, 0, -40000);
    EXPECT_EQ(2 * ctl->cPageRows, Send(grid, HGM_GETHELD));
}

TEST_F(GridRowMessages, SortOrdersRowsAndTheParallelArray)
{
    MakeGrid(GridOf({ Text(), Number() }), 4);
    const char* const names[] = { "pear", "Apple", "fig", "cherry" };
    for (int row = 0; row < 4; ++row) {
        SetText(0, row, names[row]);
        SetText(1, row, std::to_string(row).c_str());
    }
    DWORD parallel[4] = { 0, 1, 2, 3 };
    SendPtr(grid, HGM_SORT, MAKEWPARAM(0, 1), parallel);
    EXPECT_EQ("Apple", CellText(0, 0));
    EXPECT_EQ("pear", CellText(0, 3));
    EXPECT_EQ(1u, parallel[0]);
    EXPECT_EQ(0u, parallel[3]);
    Send(grid, HGM_SORT, MAKEWPARAM(1, 0));
    EXPECT_EQ("3", CellText(1, 0));
    EXPECT_EQ("0", CellText(1, 3));
    Send(grid, HGM_SORT, MAKEWPARAM(9, 1));
    EXPECT_EQ("3", CellText(1, 0));
}

TEST_F(GridRowMessages, SortGoesUpwardsWithAnyHighWordButZero)
{
    MakeGrid(GridOf({ Number() }), 3);
    for (const int highWord : { 7, 0, 0x8000 }) {
        for (int row = 0; row < 3; ++row) {
            SetText(0, row, std::to_string((row + 1) % 3).c_str());
        }
        Send(grid, HGM_SORT, MAKEWPARAM(0, highWord));
        EXPECT_EQ(highWord ? "0" : "2", CellText(0, 0)) << highWord;
        EXPECT_EQ(highWord ? "2" : "0", CellText(0, 2)) << highWord;
    }
}

TEST_F(GridRowMessages, SortColumnsAreKept)
{
    MakeGrid(GridOf({ Text() }), 1);
    EXPECT_EQ(1, Send(grid, HGM_SETSORTCOL, 0, 4));
    EXPECT_EQ(1, Send(grid, HGM_SETSORTCOL2, 0, 5));
    EXPECT_EQ(4, ctl->nSortCol);
    EXPECT_EQ(5, ctl->nSortCol2);
}

} // namespace
