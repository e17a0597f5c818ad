// The steps of reading and writing a cell one by one: what the source and the parent see of each, and in which order.
#include "gridctl/grid_editing.h"

#include <functional>
#include <vector>

namespace {

class CellSteps : public GridEditing {
protected:
    LONG NumberAt(int col, int row) { return LoadAs<LONG>(HGCellPtr(ctl->pData, col, row)); }
};

TEST_F(CellSteps, NullCellShowsItsZeroBytes)
{
    MakeGrid(GridOf({ Number() }), 1);
    HGSetCellData(grid, 0, 0, nullptr);
    char text[16] = "?";
    EXPECT_EQ(1, HGGetCellText(grid, 0, 0, text, sizeof text));
    EXPECT_STREQ("0", text);
}

TEST_F(CellSteps, LengthOfATextIsThatOfWhatHadRoom)
{
    MakeGrid(GridOf({ Text() }), 1);
    SetText(0, 0, "abcdef");
    char text[16] = "?";
    EXPECT_EQ(6, HGGetCellText(grid, 0, 0, text, sizeof text));
    EXPECT_EQ(3, HGGetCellText(grid, 0, 0, text, 4));
    EXPECT_STREQ("abc", text);
}

TEST_F(CellSteps, TextThatIsNoNumberIsStoredAsWhatWasParsed)
{
    MakeGrid(GridOf({ Number() }), 1);
    SetText(0, 0, "5");
    EXPECT_EQ(1, HGSetCellText(grid, 0, 0, "abc"));
    EXPECT_EQ("0", CellText(0, 0));
    EXPECT_EQ(0, HGIsCellNull(grid, 0, 0));
}

TEST_F(CellSteps, CopyOfANullCellIsAValueOfZeros)
{
    MakeGrid(GridOf({ Number() }), 2);
    HGSetCellData(grid, 0, 0, nullptr);
    SetText(0, 1, "7");
    EXPECT_EQ(1, HGCopyCellData(grid, 0, 0, 1));
    EXPECT_EQ("0", CellText(0, 1));
    EXPECT_EQ(0, HGIsCellNull(grid, 0, 1));
}

TEST_F(CellSteps, MirrorHoldsTheValueWhenTheParentHearsOfIt)
{
    MakeGrid(GridOf({ Number() }), 1);
    int mirror = 9;
    int heard = -1;
    SendPtr(grid, HGM_SETROWMIRROR, 0, &mirror);
    parent.On(HGN_CELLCHANGED, [&] { heard = mirror; });
    SetText(0, 0, "31");
    EXPECT_EQ(31, heard);
    Send(grid, HGM_SETROWMIRROR, 0, 0);
}

TEST_F(CellSteps, ColumnsAndRowsAreCutToSixteenBits)
{
    MakeGrid(GridOf({ Number() }), 2);
    const int value = 42;
    EXPECT_EQ(1, HGSetCellData(grid, 0x10000, 0x10001, &value));
    EXPECT_EQ(42, NumberAt(0, 1));
    EXPECT_EQ(0, NumberAt(0, 0));
    EXPECT_EQ("42", CellText(0x20000, 0x20001));
    EXPECT_EQ(0, HGSetCellData(grid, 0xFFFF, 0, &value)) << "that is column -1";
}

TEST_F(CellSteps, ChecksAndHostCellsTakeTexts)
{
    HGField* const check = HGFieldCreate("Check", 0, 80, 0, 'b', 'w', 0, 0, 0, 'k', 0, "yes;no", 0);
    HGField* const host = HGFieldCreate("Host", 0, 80, 0, 'n', 'l', 0, 0, 0, 'q', 0, "", 0);
    MakeGrid(GridOf({ check, host }), 1);
    EXPECT_EQ(1, HGSetCellText(grid, 0, 0, "yes"));
    EXPECT_EQ(1, LoadAs<WORD>(HGCellPtr(ctl->pData, 0, 0)));
    EXPECT_EQ("yes", CellText(0, 0));
    EXPECT_EQ(1, HGSetCellText(grid, 1, 0, "12"));
    EXPECT_EQ(12, NumberAt(1, 0));
}

TEST_F(CellSteps, ColumnThatAMapWithoutUpkeepDoesNotReachIsReadAndWritten)
{
    MakeGrid(GridOf({ Number(), Number() }), 2);
    HGCreateFldMap(ctl->pData);
    HGField* const later = Number("Later");
    ASSERT_EQ(2, SendPtr(grid, HGM_INSERTFIELD, 99, later));
    SetText(0, 1, "1");
    SetText(1, 1, "2");
    EXPECT_EQ(1, HGSetCellText(grid, 2, 1, "3"));
    int value = 0;
    EXPECT_EQ(1, HGGetCellData(grid, 2, 1, &value));
    EXPECT_EQ(3, value);
    EXPECT_EQ(1, HGSetCellData(grid, 2, 1, nullptr));
    EXPECT_EQ(1, HGIsCellNull(grid, 2, 1));
    EXPECT_EQ("1", CellText(0, 1));
    EXPECT_EQ("2", CellText(1, 1));
    EXPECT_EQ(0, HGIsCellNull(grid, 1, 1));
}

TEST_F(CellSteps, EntryRowIsFollowedByARefreshWithZero)
{
    MakeGrid(GridOf({ Number() }, gridStyle | HGS_NEWROW));
    seen.Watch(grid);
    EXPECT_EQ(1, HGSetCellText(grid, 0, 0, "5"));
    int refreshes = 0;
    for (const Seen& line : seen.All()) {
        if (line.direction == ToGrid && line.code == HGM_REFRESH) {
            ++refreshes;
            EXPECT_EQ(0, line.wParam.value);
        }
    }
    EXPECT_EQ(1, refreshes);
}

TEST_F(CellSteps, WriteElsewhereLeavesTheEditorAlone)
{
    MakeGrid(GridOf({ Text() }), 2);
    TypeInto(0, 0, "typed");
    EXPECT_EQ(1, HGSetCellData(grid, 0, 1, "other"));
    EXPECT_EQ("typed", TextOf(Editor()));
    EXPECT_EQ("other", CellText(0, 1));
}

// What the source was asked to store: the operation, the record, and the first number behind the pointer.
struct Stored {
    int  operation;
    int  record;
    LONG value;
    bool operator==(const Stored&) const = default;
};
void PrintTo(const Stored& call, std::ostream* out)
{
    *out << "{ " << call.operation << ", " << call.record << ", " << call.value << " }";
}

std::vector<Stored>   gStored;
int                   gRecords;
int                   gUpdateAnswer;
std::function<void()> gOnCell;

int CALLBACK StoringSource(HWND, int operation, int record, void* data)
{
    switch (operation) {
    case HGSRC_FETCH: return record < gRecords;
    case HGSRC_COUNT: return gRecords;
    case HGSRC_CELL:
    case HGSRC_UPDATE:
    case HGSRC_APPEND:
        gStored.push_back({ operation, record, LoadAs<LONG>(data) });
        if (operation == HGSRC_CELL && gOnCell) {
            gOnCell();
        }
        return operation == HGSRC_CELL ? 0 : gUpdateAnswer;
    default: return 1;
    }
}

class StoredCells : public CellSteps {
protected:
    ~StoredCells() override { gOnCell = nullptr; }
    void MakeStored(int records = 10, DWORD style = gridStyle)
    {
        gRecords = records;
        gUpdateAnswer = 1;
        gOnCell = nullptr;
        MakeGrid(GridOf({ Number(), Number() }, style));
        SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(StoringSource));
        PumpPending();
        gStored.clear();
    }
};

constexpr int packedRow3 = 3 << 16;

TEST_F(StoredCells, SourceSeesTheValueAndThenTheRowWithItInside)
{
    MakeStored();
    EXPECT_EQ(1, HGSetCellText(grid, 0, 3, "5"));
    EXPECT_EQ((std::vector<Stored>{ { HGSRC_CELL, packedRow3, 5 }, { HGSRC_UPDATE, 3, 5 } }), gStored);
}

TEST_F(StoredCells, SourceSeesZeroBytesForNull)
{
    MakeStored();
    HGSetCellText(grid, 0, 3, "5");
    gStored.clear();
    EXPECT_EQ(1, HGSetCellData(grid, 0, 3, nullptr));
    EXPECT_EQ((std::vector<Stored>{ { HGSRC_CELL, packedRow3, 0 }, { HGSRC_UPDATE, 3, 0 } }), gStored);
}

TEST_F(StoredCells, AppendedRecordComesWithItsValue)
{
    MakeStored(3, gridStyle | HGS_NEWROW);
    gUpdateAnswer = 0;
    EXPECT_EQ(1, HGSetCellText(grid, 0, 3, "5"));
    EXPECT_EQ((std::vector<Stored>{ { HGSRC_CELL, packedRow3, 5 }, { HGSRC_APPEND, 3, 5 } }), gStored);
}

TEST_F(StoredCells, CellIsNamedByItsLoadedRowAndTheRecordByItsOwnNumber)
{
    MakeStored(2000);
    Send(grid, HGM_SETTOTAL, 0, 2000);
    Send(grid, HGM_SETTOPRECORD, 1000);
    PumpPending();
    const int base = static_cast<int>(ctl->lRowBase);
    ASSERT_LT(0, base);
    gStored.clear();
    EXPECT_EQ(1, HGSetCellText(grid, 0, 3, "5"));
    EXPECT_EQ((std::vector<Stored>{ { HGSRC_CELL, packedRow3, 5 }, { HGSRC_UPDATE, 3 + base, 5 } }), gStored);
}

TEST_F(StoredCells, VetoOfTheParentKeepsTheRowFromTheSource)
{
    MakeStored();
    RefuseWrites();
    EXPECT_EQ(0, HGSetCellText(grid, 0, 3, "5"));
    EXPECT_EQ((std::vector<Stored>{ { HGSRC_CELL, packedRow3, 5 } }), gStored);
    EXPECT_TRUE(RowFlags(3) & HGR_DIRTY);
    EXPECT_EQ(5, NumberAt(0, 3));
}

TEST_F(StoredCells, ChangedBitStaysThroughAWriteThatLeavesItsRowClean)
{
    MakeStored();
    gUpdateAnswer = 0;
    HGSetCellText(grid, 0, 1, "5");
    gUpdateAnswer = 1;
    HGSetCellText(grid, 0, 2, "6");
    EXPECT_FALSE(RowFlags(2) & HGR_DIRTY);
    EXPECT_EQ(1, Send(grid, WWM_GETCHANGED));
}

TEST_F(StoredCells, CopiedCellMayLoseItsRowWhileTheSourceIsAsked)
{
    MakeStored();
    HGSetCellText(grid, 0, 3, "5");
    gOnCell = [this] { HLListRemove(ctl->pData->pRows, 3); };
    EXPECT_EQ(1, HGCopyCellData(grid, 0, 3, 1));
    EXPECT_EQ(5, NumberAt(0, 1));
}

// The second pair decides on the size of the cells, the first one on the editor.
TEST_F(CellSteps, EditorOfALongerTypeIsReadWithinMemory)
{
    MakeGrid(GridOf({ HGFieldCreate("Odd", HFF_CODE, 80, 0, 'n', 'd', 'n', 'b', 0, 'e', 0, "", 0), Text() }), 2);
    ASSERT_EQ(1, +HGGetField(ctl->pData, 0)->cbSize);
    StandOn(0, 0);
    TypeText("3");
    ASSERT_EQ(Editor(), GetFocus());
    MoveTo(1, 1);
    EXPECT_EQ((Cell{ 1, 1 }), Current());
    EXPECT_EQ(0, *HGCellPtr(ctl->pData, 0, 0)) << "the first byte of the number three";
    EXPECT_EQ(0, HGIsCellNull(grid, 0, 0));
}

// The last column's value ends with its row.
TEST_F(CellSteps, CellIsShownToAnEditorOfALongerTypeWithinMemory)
{
    MakeGrid(GridOf({ Text(), HGFieldCreate("Odd", HFF_CODE, 80, 0, 'a', 'm', 'n', 'b', 0, 'e', 0, "", 0) }), 2);
    ASSERT_EQ(1, +HGGetField(ctl->pData, 1)->cbSize);
    constexpr BYTE dayOfMonth = 7;
    ASSERT_EQ(1, HGSetCellData(grid, 1, 0, &dayOfMonth));
    StandOn(1, 0);
    EXPECT_NE("", TextOf(Editor()));
}

} // namespace
