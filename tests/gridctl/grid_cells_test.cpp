// Reading and writing single cells of a grid window.
#include "gridctl/grid_window.h"

#include <cstring>
#include <functional>
#include <utility>
#include <vector>

namespace {

class GridCells : public GridWindow {};

TEST_F(GridCells, TextAndDateAndNumberGoInAndOut)
{
    MakeGrid(GridOf({ Text(), Date(), Number() }), 2);
    EXPECT_EQ(1, HGSetCellText(grid, 0, 1, "Oslo"));
    EXPECT_EQ(1, HGSetCellText(grid, 1, 1, "24.12.2025"));
    EXPECT_EQ(1, HGSetCellText(grid, 2, 1, "-42"));
    EXPECT_EQ("Oslo", CellText(0, 1));
    EXPECT_EQ("24.12.2025", CellText(1, 1));
    EXPECT_EQ("-42", CellText(2, 1));
    int date = 0;
    EXPECT_EQ(1, HGGetCellData(grid, 1, 1, &date));
    EXPECT_EQ(20251224, date);
}

TEST_F(GridCells, NullValueSetsTheNullBitAndZeroesTheCell)
{
    MakeGrid(GridOf({ Text(), Number() }), 1);
    HGSetCellText(grid, 1, 0, "7");
    EXPECT_EQ(1, HGSetCellData(grid, 1, 0, nullptr));
    EXPECT_EQ(cellNull, CellFlags(1, 0));
    EXPECT_EQ(1, HGIsCellNull(grid, 1, 0));
    EXPECT_EQ(1, IsCellNull(ctl, 1, 0));
    EXPECT_EQ(0, LoadAs<int>(HGCellPtr(ctl->pData, 1, 0)));
}

TEST_F(GridCells, ReadingANullCellGivesZerosAndZero)
{
    MakeGrid(GridOf({ Number() }), 1);
    HGSetCellData(grid, 0, 0, nullptr);
    int value = 99;
    EXPECT_EQ(0, HGGetCellData(grid, 0, 0, &value));
    EXPECT_EQ(0, value);
}

TEST_F(GridCells, WritingAValueClearsTheNullBitAndKeepsTheOthers)
{
    MakeGrid(GridOf({ Number() }), 1);
    StoreAs<WORD>(HGCellFlagsPtr(ctl->pData, 0, 0), cellNull | cellTextRed);
    const int value = 5;
    EXPECT_EQ(1, HGSetCellData(grid, 0, 0, &value));
    EXPECT_EQ(cellTextRed, CellFlags(0, 0));
}

TEST_F(GridCells, TextLongerThanTheCellIsCutAndTerminated)
{
    MakeGrid(GridOf({ Text(5), Number() }), 1);
    HGSetCellText(grid, 1, 0, "77");
    EXPECT_EQ(1, HGSetCellText(grid, 0, 0, "abcdefgh"));
    EXPECT_EQ("abcd", CellText(0, 0));
    EXPECT_EQ("77", CellText(1, 0));
}

TEST_F(GridCells, ShorterTextLeavesZerosBehindIt)
{
    MakeGrid(GridOf({ Text(8) }), 1);
    SetText(0, 0, "abcdefg");
    SetText(0, 0, "xy");
    const char expected[8] = { 'x', 'y' };
    EXPECT_EQ(0, std::memcmp(expected, HGCellPtr(ctl->pData, 0, 0), sizeof expected));
}

TEST_F(GridCells, TheCellItselfMayBeTheValue)
{
    MakeGrid(GridOf({ Text(8) }), 1);
    SetText(0, 0, "same");
    EXPECT_EQ(1, HGSetCellData(grid, 0, 0, HGCellPtr(ctl->pData, 0, 0)));
    EXPECT_EQ("same", CellText(0, 0));
}

TEST_F(GridCells, VetoInCellChangedKeepsTheValueButReportsFailure)
{
    MakeGrid(GridOf({ Text() }), 1);
    PumpPending();
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    bool invalid = true;
    parent.On(HGN_CELLCHANGED, [&] { Send(grid, WWM_CANCEL); });
    EXPECT_EQ(0, HGSetCellText(grid, 0, 0, "x"));
    invalid = IsInvalid();
    EXPECT_FALSE(invalid);
    EXPECT_EQ("x", CellText(0, 0));
    EXPECT_TRUE(RowFlags(0) & HGR_DIRTY);
    EXPECT_EQ(0, Send(grid, WWM_GETCHANGED));
}

TEST_F(GridCells, VetoInCellChangedBringsNoRowBehindTheEntryRow)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_NEWROW));
    ASSERT_EQ(1, Send(grid, HGM_GETROWCOUNT));
    parent.On(HGN_CELLCHANGED, [&] { Send(grid, WWM_CANCEL); });
    EXPECT_EQ(0, HGSetCellText(grid, 0, 0, "x"));
    EXPECT_EQ("x", CellText(0, 0));
    EXPECT_EQ(1, Send(grid, HGM_GETROWCOUNT));
}

TEST_F(GridCells, WriteInvalidatesTheCellAndMarksRowAndGrid)
{
    MakeGrid(GridOf({ Text() }), 1);
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    EXPECT_EQ(1, HGSetCellText(grid, 0, 0, "x"));
    EXPECT_TRUE(IsInvalid());
    EXPECT_TRUE(RowFlags(0) & HGR_DIRTY);
    EXPECT_EQ(1, Send(grid, WWM_GETCHANGED));
    Send(grid, WWM_SETCHANGED, 0);
    EXPECT_EQ(0, Send(grid, WWM_GETCHANGED));
}

TEST_F(GridCells, CellChangedNamesTheCell)
{
    MakeGrid(GridOf({ Text(), Text() }), 3);
    DWORD proposed = 0;
    parent.On(HGN_CELLCHANGED, [&] { proposed = static_cast<DWORD>(Send(grid, HGM_GETPROPOSED)); });
    HGSetCellText(grid, 1, 2, "x");
    EXPECT_EQ(PackCell(1, 2), proposed);
}

TEST_F(GridCells, EntryRowBringsExactlyOneMore)
{
    MakeGrid(GridOf({ Text() }, gridStyle | HGS_NEWROW));
    ASSERT_EQ(1, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(1, HGSetCellText(grid, 0, 0, "first"));
    EXPECT_EQ(2, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(1, HGSetCellText(grid, 0, 0, "again"));
    EXPECT_EQ(2, Send(grid, HGM_GETROWCOUNT));
    EXPECT_EQ(1, parent.Count(HGN_NEWROW));
    EXPECT_TRUE(RowFlags(1) & HGR_NEW);
}

TEST_F(GridCells, EntryRowThatTheParentMovesBringsTheNextAllTheSame)
{
    for (const UINT message : { HGM_DELETEROW, HGM_INSERTROW }) {
        MakeGrid(GridOf({ Text() }, gridStyle | HGS_NEWROW));
        SetText(0, 0, "first");
        SetText(0, 1, "second");
        Send(grid, WWM_SETCHANGED, 0);
        parent.On(HGN_CELLCHANGED, [&] { Send(grid, message, 0); });
        EXPECT_EQ(1, HGSetCellText(grid, 0, 2, "third")) << message;
        const int last = static_cast<int>(Send(grid, HGM_GETROWCOUNT)) - 1;
        EXPECT_EQ(message == HGM_DELETEROW ? 2 : 4, last) << message;
        EXPECT_EQ("third", CellText(0, last - 1)) << message;
        EXPECT_EQ("", CellText(0, last)) << message;
        EXPECT_TRUE(RowFlags(last) & HGR_NEW) << message;
        EXPECT_EQ(1, Send(grid, WWM_GETCHANGED)) << message;
        parent.On(HGN_CELLCHANGED, nullptr);
    }
}

TEST_F(GridCells, CopyFromARowPastTheEndMakesTheTargetNull)
{
    MakeGrid(GridOf({ Number() }), 2);
    SetText(0, 0, "3");
    SetText(0, 1, "4");
    EXPECT_EQ(1, HGCopyCellData(grid, 0, 0, 1));
    EXPECT_EQ("3", CellText(0, 1));
    EXPECT_EQ(1, HGCopyCellData(grid, 0, 7, 1));
    EXPECT_EQ(1, HGIsCellNull(grid, 0, 1));
}

TEST_F(GridCells, FieldWithoutSizeIsNeverWritten)
{
    HGField* const none = HGFieldCreate("None", 0, 80, 0, 'x', 'x', 0, 0, 0, 'e', 0, "", 0);
    MakeGrid(GridOf({ none, Number() }), 1);
    ASSERT_EQ(0, none->cbSize);
    SetText(1, 0, "8");
    const int value = 5;
    EXPECT_EQ(0, HGSetCellData(grid, 0, 0, &value));
    EXPECT_EQ(0, HGSetCellString(grid, 0, 0, &value));
    EXPECT_EQ("8", CellText(1, 0));
}

TEST_F(GridCells, TextColumnWithoutSizeHasNotTheTextOfTheNext)
{
    HGField* const none = HGFieldCreate("None", 0, 80, 0, 's', 's', 0, 0, 0, 'e', 0, "", 0);
    none->cbSize = 0;
    MakeGrid(GridOf({ none, Text() }), 1);
    ASSERT_EQ(0, HGGetField(ctl->pData, 0)->cbSize);
    SetText(1, 0, "next");
    EXPECT_EQ("", CellText(0, 0));
    EXPECT_EQ("next", CellText(1, 0));
}

TEST_F(GridCells, OffsetPtrKnowsEachColumnAndNoOther)
{
    MakeGrid(GridOf({ Text(16), Number() }), 1);
    char row[64] = {};
    EXPECT_EQ(row, HGOffsetPtr(grid, 0, row));
    EXPECT_EQ(row + 16, HGOffsetPtr(grid, 1, row));
    EXPECT_EQ(nullptr, HGOffsetPtr(grid, 2, row));
    EXPECT_EQ(nullptr, HGOffsetPtr(grid, -1, row));
    EXPECT_EQ(nullptr, HGOffsetPtr(grid, 0, nullptr));
}

TEST_F(GridCells, CellsOutsideTheGridAnswerZero)
{
    MakeGrid(GridOf({ Text() }), 1);
    char out[32] = "kept";
    EXPECT_EQ(0, HGGetCellData(grid, 1, 0, out));
    EXPECT_EQ(0, HGGetCellData(grid, 0, 1, out));
    EXPECT_EQ(0, HGGetCellData(grid, -1, 0, out));
    EXPECT_STREQ("kept", out);
    EXPECT_EQ(0, HGSetCellText(grid, 5, 0, "x"));
    EXPECT_EQ(0, HGGetCellText(grid, 5, 0, out, sizeof out));
    EXPECT_STREQ("", out);
    EXPECT_EQ(0, HGSetCellText(parent.hwnd(), 0, 0, "x"));
}

TEST_F(GridCells, UnknownKindHasNoText)
{
    HGField* const odd = Text();
    odd->cKind = 'z';
    MakeGrid(GridOf({ odd }), 1);
    EXPECT_EQ(0, HGSetCellText(grid, 0, 0, "x"));
    EXPECT_EQ(1, HGSetCellData(grid, 0, 0, "x"));
    EXPECT_EQ("", CellText(0, 0));
}

TEST_F(GridCells, CodeColumnWithoutItsControlHasNoText)
{
    HGField* const code = HGFieldCreate("Code", HFF_CODE, 80, 0, 's', 's', 'n', 'l', 16, 'l', 0, "", 0);
    MakeGrid(GridOf({ code }), 1);
    DestroyWindow(HGGetField(ctl->pData, 0)->pCtl->hWnd);
    const int value = 5;
    EXPECT_EQ(1, HGSetCellData(grid, 0, 0, &value));
    EXPECT_EQ("", CellText(0, 0));
    EXPECT_EQ(0, HGSetCellText(grid, 0, 0, "five"));
}

TEST_F(GridCells, ComboCodeColumnStoresParsedDataAsTheyStand)
{
    HGField* const code = HGFieldCreate("Code", HFF_CODE, 80, 0, 'n', 'l', 'n', 'l', 0, 'c', 0, "", 0);
    MakeGrid(GridOf({ code }), 1);
    EXPECT_EQ(1, HGSetCellText(grid, 0, 0, "12"));
    int value = 0;
    HGGetCellData(grid, 0, 0, &value);
    EXPECT_EQ(12, value);
}

TEST_F(GridCells, MirrorFollowsEachWrite)
{
    MakeGrid(GridOf({ Number(), Number() }), 2);
    int mirror[2] = { 9, 9 };
    SendPtr(grid, HGM_SETROWMIRROR, 0, mirror);
    EXPECT_EQ(0, mirror[0]);
    SetText(1, 0, "31");
    EXPECT_EQ(31, mirror[1]);
    Send(grid, HGM_SETROWMIRROR, 0, 0);
}

TEST_F(GridCells, ParentMayDestroyTheGridWhileACellIsWritten)
{
    MakeGrid(GridOf({ Text() }), 1);
    parent.On(HGN_CELLCHANGED, [&] { DestroyWindow(grid); });
    EXPECT_EQ(0, HGSetCellText(grid, 0, 0, "x"));
    EXPECT_FALSE(IsWindow(grid));
}

TEST_F(GridCells, ParentMayEmptyTheGridWhileACellIsWritten)
{
    MakeGrid(GridOf({ Text() }), 3);
    parent.On(HGN_CELLCHANGED, [&] { Send(grid, HGM_RESET, 1); });
    HGSetCellText(grid, 0, 2, "x");
    EXPECT_EQ(0, Send(grid, HGM_GETROWCOUNT));
}

// A source of some records that tells what it was asked and answers as a test wants. It has what it appended.
struct SourceLog {
    int         count = 10;
    int         cellAnswer = 0;
    int         updateAnswer = 1;
    int         appendAnswer = 1;
    std::string asked;
    // Runs at the first fetch behind an append.
    std::function<void()> onFetch;

    int Fetch(int record)
    {
        if (onFetch && asked.find("append") != std::string::npos) {
            std::exchange(onFetch, nullptr)();
        }
        return record < count;
    }
    int Append()
    {
        count += appendAnswer;
        return appendAnswer;
    }
};
SourceLog gSource;

int CALLBACK Source(HWND, int operation, int record, void*)
{
    switch (operation) {
    case HGSRC_FETCH:  return gSource.Fetch(record);
    case HGSRC_COUNT:  return gSource.count;
    case HGSRC_CELL:   gSource.asked += "cell" + std::to_string(record) + " "; return gSource.cellAnswer;
    case HGSRC_UPDATE: gSource.asked += "update" + std::to_string(record) + " "; return gSource.updateAnswer;
    case HGSRC_APPEND: gSource.asked += "append" + std::to_string(record) + " "; return gSource.Append();
    default:           return 1;
    }
}

class VirtualCells : public GridWindow {
protected:
    void MakeVirtual(DWORD style = gridStyle, int records = 10)
    {
        gSource = SourceLog();
        gSource.count = records;
        MakeGrid(GridOf({ Number(), Number() }, style));
        SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(Source));
        PumpPending();
        gSource.asked.clear();
    }
};

TEST_F(VirtualCells, RefusedCellKeepsItsValueButTheNullBitFollowsTheRequest)
{
    MakeVirtual();
    SetText(0, 1, "5");
    gSource.cellAnswer = 1;
    EXPECT_EQ(0, HGSetCellData(grid, 0, 1, nullptr));
    EXPECT_EQ(5, LoadAs<int>(HGCellPtr(ctl->pData, 0, 1)));
    EXPECT_EQ(1, HGIsCellNull(grid, 0, 1));
}

TEST_F(VirtualCells, WrittenRecordIsHandedToTheSourceAndIsCleanThen)
{
    MakeVirtual();
    EXPECT_EQ(1, HGSetCellText(grid, 1, 3, "5"));
    EXPECT_EQ("cell196609 update3 ", gSource.asked);
    EXPECT_FALSE(RowFlags(3) & HGR_DIRTY);
    EXPECT_EQ(0, Send(grid, WWM_GETCHANGED));
}

TEST_F(VirtualCells, VetoInCellChangedKeepsTheRecordFromTheSource)
{
    MakeVirtual();
    parent.On(HGN_CELLCHANGED, [&] { Send(grid, WWM_CANCEL); });
    EXPECT_EQ(0, HGSetCellText(grid, 1, 3, "5"));
    EXPECT_EQ("5", CellText(1, 3));
    EXPECT_EQ("cell196609 ", gSource.asked);
    EXPECT_TRUE(RowFlags(3) & HGR_DIRTY);
}

TEST_F(VirtualCells, RecordThatTheSourceDoesNotStoreStaysDirty)
{
    MakeVirtual();
    gSource.updateAnswer = 0;
    EXPECT_EQ(1, HGSetCellText(grid, 1, 3, "5"));
    EXPECT_TRUE(RowFlags(3) & HGR_DIRTY);
    EXPECT_EQ(1, Send(grid, WWM_GETCHANGED));
}

// A grid whose last row waits for a new record; what it is sent from then on is recorded.
class EntryRecord : public VirtualCells {
protected:
    void MakeEntry(int records)
    {
        MakeVirtual(gridStyle | HGS_NEWROW, records);
        entry = static_cast<int>(Send(grid, HGM_GETROWCOUNT)) - 1;
        ASSERT_EQ(records, entry);
        ASSERT_EQ(HGR_NEW, RowFlags(entry));
        seen.Watch(grid);
    }
    std::vector<Seen> Got(UINT message)
    {
        std::vector<Seen> got;
        for (const Seen& line : seen.All()) {
            if (line.direction == ToGrid && line.code == message) {
                got.push_back(line);
            }
        }
        return got;
    }

    bool IsInvalidAt(int x, int y)
    {
        const HRGN region = CreateRectRgn(0, 0, 0, 0);
        GetUpdateRgn(grid, region, FALSE);
        const bool inside = PtInRegion(region, x, y) != 0;
        DeleteObject(region);
        return inside;
    }

    int entry = -1;
};

TEST_F(EntryRecord, IsRepaintedAsAWholeBeforeTheRefresh)
{
    MakeEntry(3);
    RECT cell;
    HGCellRect(ctl, &cell, 1, entry, true);
    const int row = (cell.top + cell.bottom) / 2;
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    bool entryRow = false;
    bool rowAbove = true;
    gSource.onFetch = [&] {
        entryRow = IsInvalidAt(5, row) && IsInvalidAt(cell.left + 5, row);
        rowAbove = IsInvalidAt(5, row - 20);
    };
    EXPECT_EQ(1, HGSetCellText(grid, 0, entry, "5"));
    EXPECT_TRUE(entryRow);
    EXPECT_FALSE(rowAbove);
}

TEST_F(EntryRecord, IsAppendedThroughTheSource)
{
    MakeEntry(10);
    EXPECT_EQ(1, HGSetCellText(grid, 0, entry, "5"));
    EXPECT_EQ("cell655360 append10 ", gSource.asked);
}

TEST_F(EntryRecord, BehindThePageIsHeldAndComesInsideByAPostedMessage)
{
    MakeEntry(10);
    ASSERT_GE(entry, ctl->cPageRows);
    const int held = ctl->cHeldRows;
    EXPECT_EQ(1, HGSetCellText(grid, 0, entry, "5"));
    EXPECT_EQ(0, RowFlags(entry));
    EXPECT_EQ(0, Send(grid, WWM_GETCHANGED));
    EXPECT_TRUE(Got(HGM_REFRESH).empty());
    ASSERT_EQ(1u, Got(HGM_SETHELD).size());
    EXPECT_EQ(0, Got(HGM_SETHELD)[0].wParam.value);
    EXPECT_EQ(held + 1, Got(HGM_SETHELD)[0].lParam.value);
    EXPECT_TRUE(Got(HGM_SETTOPRECORD).empty()) << "it is posted";
    const LONG top = ctl->lRowBase + ctl->nTopRow;
    PumpPending();
    ASSERT_EQ(1u, Got(HGM_SETTOPRECORD).size());
    EXPECT_EQ(top + 1, Got(HGM_SETTOPRECORD)[0].wParam.value);
    EXPECT_EQ(0, Got(HGM_SETTOPRECORD)[0].lParam.value);
    EXPECT_EQ(top + 1, Send(grid, HGM_GETTOPRECORD));
}

TEST_F(EntryRecord, InsideThePageIsFollowedByARefresh)
{
    MakeEntry(3);
    ASSERT_LT(entry, ctl->cPageRows);
    EXPECT_EQ(1, HGSetCellText(grid, 0, entry, "5"));
    EXPECT_EQ(0, RowFlags(entry));
    EXPECT_EQ(0, Send(grid, WWM_GETCHANGED));
    ASSERT_EQ(1u, Got(HGM_REFRESH).size());
    EXPECT_EQ(0, Got(HGM_REFRESH)[0].wParam.value);
    PumpPending();
    EXPECT_TRUE(Got(HGM_SETHELD).empty());
    EXPECT_TRUE(Got(HGM_SETTOPRECORD).empty());
}

TEST_F(EntryRecord, ThatTheSourceDoesNotStoreStaysNewAndDirty)
{
    for (const int records : { 3, 10 }) {
        MakeEntry(records);
        gSource.appendAnswer = 0;
        EXPECT_EQ(1, HGSetCellText(grid, 0, entry, "5"));
        EXPECT_EQ(HGR_NEW | HGR_DIRTY, RowFlags(entry)) << records;
        EXPECT_EQ(1, Send(grid, WWM_GETCHANGED)) << records;
        PumpPending();
        for (const UINT message : { HGM_REFRESH, HGM_SETHELD, HGM_SETTOPRECORD }) {
            EXPECT_TRUE(Got(message).empty()) << records << " records, message " << message;
        }
        DestroyWindow(grid);
    }
}

TEST_F(VirtualCells, WithoutASourceTheLastRowBringsNoOther)
{
    MakeGrid(GridOf({ Number() }, gridStyle | HGS_NEWROW), 2);
    Send(grid, HGM_SETFLAGS, 1, HGC_VIRTUAL);
    const int last = static_cast<int>(Send(grid, HGM_GETROWCOUNT)) - 1;
    seen.Watch(grid);
    EXPECT_EQ(1, HGSetCellText(grid, 0, last, "5"));
    for (const Seen& line : seen.All()) {
        EXPECT_TRUE(line.direction != ToGrid || line.code != HGM_REFRESH);
    }
    EXPECT_TRUE(RowFlags(last) & HGR_DIRTY);
    EXPECT_EQ(1, Send(grid, WWM_GETCHANGED));
    EXPECT_EQ(last + 1, Send(grid, HGM_GETROWCOUNT));
}

} // namespace
