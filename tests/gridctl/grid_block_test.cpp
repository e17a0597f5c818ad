// The block of a grid with a row source: what is asked of the source and when, and sources that misbehave.
#include "gridctl/grid_rig.h"

#include <functional>
#include <vector>

namespace {

struct Call {
    int operation;
    int record;
};

bool operator==(const Call& a, const Call& b)
{
    return a.operation == b.operation && a.record == b.record;
}

void PrintTo(const Call& call, std::ostream* out)
{
    *out << "operation " << call.operation << " of record " << call.record;
}

// A source of numbered records, and what it has been asked.
struct Owner {
    int                               records = 1000;
    std::vector<Call>                 calls;
    std::function<int(int, int, int)> before; // operation, record, answer so far; gives the answer
};

Owner* gOwner;

int CALLBACK Source(HWND, int operation, int record, void* buffer)
{
    Owner* const owner = gOwner;
    owner->calls.push_back({ operation, record });
    const bool exists = record >= 0 && record < owner->records;
    int answer = operation == HGSRC_FETCH ? exists : 0;
    if (operation == HGSRC_COUNT) {
        answer = owner->records;
    }
    if (operation == HGSRC_FETCH && exists) {
        StoreAs<int>(buffer, record);
    }
    return owner->before ? owner->before(operation, record, answer) : answer;
}

class GridBlock : public GridRig {
protected:
    GridBlock() { gOwner = &owner; }
    ~GridBlock() override { gOwner = nullptr; }

    // Ten rows a page, twenty held.
    void MakeBlock(DWORD style = 0)
    {
        Make({ Column(50) }, { .style = style, .width = 100, .height = 200 });
        record.pfnRowSource = Source;
        record.wFlags = HGC_VIRTUAL;
        record.cPageRows = 10;
    }
    void Load()
    {
        EXPECT_TRUE(HGCountRows(ctl));
        owner.calls.clear();
    }
    int  Rows() const { return HGRowCount(record.pData); }
    int  ValueOf(int row) { return LoadAs<int>(HGRowData(record.pData, row)); }
    WORD FlagsOf(int row) { return HGNodeFlags(HGRowNode(record.pData, row)); }
    void ExpectRecordsFrom(int first, int count)
    {
        ASSERT_EQ(count, Rows());
        EXPECT_EQ(first, +record.lRowBase);
        for (int row = 0; row < count; ++row) {
            EXPECT_EQ(first + row, ValueOf(row)) << "row " << row;
        }
    }
    static std::vector<Call> Fetches(int from, int to)
    {
        std::vector<Call> calls;
        for (int r = from; r <= to; ++r) {
            calls.push_back({ HGSRC_FETCH, r });
        }
        return calls;
    }

    Owner owner;
};

TEST_F(GridBlock, HoldsTwoPagesOfALongSet)
{
    MakeBlock();
    EXPECT_TRUE(HGCountRows(ctl));
    ExpectRecordsFrom(0, 20);
    EXPECT_EQ(20, +record.cHeldRows);
    EXPECT_EQ(20, +record.lTotalRows);
    EXPECT_EQ(Fetches(0, 19), owner.calls);
}

TEST_F(GridBlock, HoldsMoreRowsWhenTheOwnerWantsIt)
{
    MakeBlock();
    record.cHeldRows = 70;
    Load();
    ExpectRecordsFrom(0, 70);
}

TEST_F(GridBlock, SourceThatEndsSetsTheTotal)
{
    MakeBlock();
    owner.records = 7;
    record.lTotalRows = 500;
    EXPECT_TRUE(HGCountRows(ctl));
    ExpectRecordsFrom(0, 7);
    EXPECT_EQ(7, +record.cHeldRows);
    EXPECT_EQ(7, +record.lTotalRows);
    EXPECT_EQ(Fetches(0, 7), owner.calls);
}

TEST_F(GridBlock, SourceWithoutRecordsLeavesNoRows)
{
    MakeBlock();
    owner.records = 0;
    EXPECT_TRUE(HGCountRows(ctl));
    EXPECT_EQ(0, Rows());
    EXPECT_EQ(0, +record.lTotalRows);
    EXPECT_EQ(1, +record.nVScale);
    EXPECT_EQ(Fetches(0, 0), owner.calls);
}

TEST_F(GridBlock, EndBringsExactlyOneEntryRow)
{
    MakeBlock(HGS_NEWROW);
    owner.records = 7;
    Load();
    ASSERT_EQ(8, Rows());
    EXPECT_EQ(HGR_NEW, FlagsOf(7));
    EXPECT_EQ(8, +record.lTotalRows);
    EXPECT_EQ(7, +record.nPropRow);
    EXPECT_EQ(0xFFFF, +record.nPropCol);
    EXPECT_TRUE(HGCountRows(ctl));
    EXPECT_EQ(8, Rows());
    EXPECT_EQ(8, +record.lTotalRows);
}

TEST_F(GridBlock, EmptySetHasAnEntryRowToo)
{
    MakeBlock(HGS_NEWROW);
    owner.records = 0;
    Load();
    ASSERT_EQ(1, Rows());
    EXPECT_EQ(HGR_NEW, FlagsOf(0));
    EXPECT_EQ(1, +record.lTotalRows);
}

TEST_F(GridBlock, MovingOnFetchesOnlyWhatIsNew)
{
    MakeBlock();
    Load();
    HGShiftBlock(ctl, 5);
    ExpectRecordsFrom(5, 20);
    EXPECT_EQ(Fetches(20, 24), owner.calls);
}

TEST_F(GridBlock, MovingBackFetchesOnlyWhatIsNewFromTheLowestUp)
{
    MakeBlock();
    Load();
    HGShiftBlock(ctl, 100);
    owner.calls.clear();
    HGShiftBlock(ctl, 93);
    ExpectRecordsFrom(93, 20);
    EXPECT_EQ(Fetches(93, 99), owner.calls);
}

TEST_F(GridBlock, JumpsBothWaysReplaceAllRows)
{
    MakeBlock();
    Load();
    HGShiftBlock(ctl, 500);
    ExpectRecordsFrom(500, 20);
    EXPECT_EQ(Fetches(500, 519), owner.calls);
    owner.calls.clear();
    HGShiftBlock(ctl, 100);
    ExpectRecordsFrom(100, 20);
    EXPECT_EQ(Fetches(100, 119), owner.calls);
}

TEST_F(GridBlock, NegativeRecordIsTheFirst)
{
    MakeBlock();
    Load();
    HGShiftBlock(ctl, 10);
    HGShiftBlock(ctl, -3);
    ExpectRecordsFrom(0, 20);
}

TEST_F(GridBlock, ShiftToWhereTheBlockIsAsksNothing)
{
    MakeBlock();
    Load();
    HGShiftBlock(ctl, 0);
    EXPECT_EQ(std::vector<Call>{}, owner.calls);
}

TEST_F(GridBlock, EndFillsTheFrontOfTheBlock)
{
    MakeBlock();
    Load();
    HGShiftBlock(ctl, 995);
    ExpectRecordsFrom(980, 20);
    EXPECT_EQ(1000, +record.lTotalRows);
    std::vector<Call> expected = Fetches(995, 1000);
    for (const Call& call : Fetches(980, 994)) {
        expected.push_back(call);
    }
    EXPECT_EQ(expected, owner.calls);
}

TEST_F(GridBlock, EntryRowCountsAsARowOfTheFullBlock)
{
    MakeBlock(HGS_NEWROW);
    Load();
    HGShiftBlock(ctl, 995);
    ASSERT_EQ(20, Rows());
    EXPECT_EQ(981, +record.lRowBase);
    EXPECT_EQ(HGR_NEW, FlagsOf(19));
    EXPECT_EQ(1001, +record.lTotalRows);
}

TEST_F(GridBlock, JumpToTheEndNeedsNoSearchWhenTheTotalIsRight)
{
    MakeBlock();
    Load();
    HGShiftBlock(ctl, 1000);
    ExpectRecordsFrom(980, 20);
    std::vector<Call> expected = Fetches(1000, 1000);
    for (const Call& call : Fetches(980, 999)) {
        expected.push_back(call);
    }
    EXPECT_EQ(expected, owner.calls);
}

TEST_F(GridBlock, JumpPastTheEndGoesBackToTheLastRecords)
{
    for (const int target : { 1001, 1010, 1019, 1020, 1021, 1500, 1000000, 2000000000 }) {
        SCOPED_TRACE(target);
        MakeBlock();
        Load();
        record.lTotalRows = 2000000001;
        HGShiftBlock(ctl, target);
        ExpectRecordsFrom(980, 20);
        EXPECT_EQ(1000, +record.lTotalRows);
        EXPECT_LT(owner.calls.size(), 80u);
        RigWindowEnd(record.hWnd);
        HGridDestroy(record.pData);
        record = {};
        owner.calls.clear();
    }
}

TEST_F(GridBlock, JumpPastTheEndKeepsTheEntryRowBehindTheLastRecord)
{
    for (const int target : { 1001, 1010, 1018, 1019, 1020, 1500, 1000000 }) {
        SCOPED_TRACE(target);
        MakeBlock(HGS_NEWROW);
        Load();
        HGShiftBlock(ctl, target);
        ASSERT_EQ(20, Rows());
        EXPECT_EQ(981, +record.lRowBase);
        EXPECT_EQ(981, ValueOf(0));
        EXPECT_EQ(999, ValueOf(18));
        EXPECT_EQ(HGR_NEW, FlagsOf(19));
        RigWindowEnd(record.hWnd);
        HGridDestroy(record.pData);
        record = {};
    }
}

TEST_F(GridBlock, JumpPastTheEndOfAShortSetLoadsAllOfIt)
{
    MakeBlock();
    owner.records = 3;
    Load();
    record.cHeldRows = 20;
    HGShiftBlock(ctl, 5000);
    ExpectRecordsFrom(0, 3);
    EXPECT_EQ(3, +record.lTotalRows);
}

TEST_F(GridBlock, SetThatHasVanishedLeavesNoRows)
{
    MakeBlock();
    Load();
    owner.records = 0;
    HGShiftBlock(ctl, 500);
    EXPECT_EQ(0, Rows());
    EXPECT_EQ(0, +record.lRowBase);
    EXPECT_EQ(0, +record.lTotalRows);
}

TEST_F(GridBlock, ChangedRowsComeBackWhenTheyLeaveTheBlock)
{
    MakeBlock();
    Load();
    HGChangeNodeFlags(HGRowNode(record.pData, 2), 0, HGR_DIRTY);
    HGChangeNodeFlags(HGRowNode(record.pData, 15), 0, HGR_DIRTY);
    HGShiftBlock(ctl, 10);
    EXPECT_EQ((Call{ HGSRC_WRITEBACK, 2 }), owner.calls[0]);
    EXPECT_EQ((Call{ HGSRC_FETCH, 20 }), owner.calls[1]);
    EXPECT_EQ(HGR_DIRTY, FlagsOf(5));
    owner.calls.clear();
    HGShiftBlock(ctl, 0);
    EXPECT_EQ(Fetches(0, 9), owner.calls) << "record 15 is still loaded";
    HGShiftBlock(ctl, 16);
    EXPECT_EQ((Call{ HGSRC_WRITEBACK, 15 }), owner.calls[10]);
}

TEST_F(GridBlock, NewRowIsNotWrittenBack)
{
    MakeBlock(HGS_NEWROW);
    owner.records = 5;
    Load();
    HGChangeNodeFlags(HGRowNode(record.pData, 5), 0, HGR_DIRTY);
    record.cHeldRows = 0;
    HGFillBlock(ctl, false);
    EXPECT_EQ(std::vector<Call>{}, owner.calls);
    EXPECT_EQ(0, Rows());
}

TEST_F(GridBlock, CurrentRecordAndTopStayWhileTheBlockMovesUnderThem)
{
    MakeBlock();
    Load();
    record.nCurRow = 12;
    record.nAnchorRow = 14;
    record.nTopRow = 9;
    HGShiftBlock(ctl, 8);
    EXPECT_EQ(4, +record.nCurRow);
    EXPECT_EQ(6, +record.nAnchorRow);
    EXPECT_EQ(1, +record.nTopRow);
    HGShiftBlock(ctl, 0);
    EXPECT_EQ(12, +record.nCurRow);
    EXPECT_EQ(14, +record.nAnchorRow);
    EXPECT_EQ(9, +record.nTopRow);
}

TEST_F(GridBlock, HeadersStayHeadersWhileTheBlockMoves)
{
    MakeBlock();
    Load();
    record.nCurRow = 0xFFFF;
    record.nAnchorRow = -1;
    HGShiftBlock(ctl, 8);
    EXPECT_EQ(0xFFFF, +record.nCurRow);
    EXPECT_EQ(-1, +record.nAnchorRow);
}

TEST_F(GridBlock, CurrentRecordThatLeavesTheBlockTakesTheNearestRow)
{
    MakeBlock();
    Load();
    record.nCurRow = 12;
    record.nAnchorRow = 12;
    record.wFlags |= HGC_CELLSHOWN;
    HGShiftBlock(ctl, 500);
    EXPECT_EQ(0, +record.nCurRow);
    EXPECT_EQ(0, +record.nAnchorRow);
    EXPECT_EQ(0, record.wFlags & HGC_CELLSHOWN);
    HGShiftBlock(ctl, 100);
    EXPECT_EQ(19, +record.nCurRow);
}

TEST_F(GridBlock, PageThatGrowsAtTheEndKeepsItsRecords)
{
    MakeBlock();
    Load();
    HGShiftBlock(ctl, 980);
    record.nTopRow = 10;
    record.nCurRow = 15;
    record.nAnchorRow = 15;
    record.cPageRows = 15;
    Load();
    ExpectRecordsFrom(970, 30);
    EXPECT_EQ(990, HGTopRecord(ctl));
    EXPECT_EQ(995, RecordOfRow(ctl, CurrentCell(ctl).row));
}

TEST_F(GridBlock, BlockThatIsCutAboveThePageFollowsIt)
{
    MakeBlock();
    record.cHeldRows = 500;
    record.lTotalRows = 1001;
    Load();
    record.nTopRow = 400;
    record.cHeldRows = 0;
    Load();
    EXPECT_EQ(400, HGTopRecord(ctl));
    EXPECT_EQ(20, Rows());
    EXPECT_LE(+record.nTopRow + 10, Rows());
}

TEST_F(GridBlock, DroppedRowsAtTheEndTakeTheCurrentRowUpWithEach)
{
    MakeBlock();
    record.cHeldRows = 40;
    Load();
    record.nCurRow = 30;
    record.nAnchorRow = 30;
    record.cHeldRows = 37;
    EXPECT_EQ(-3, HGFillBlock(ctl, false));
    EXPECT_EQ(27, +record.nCurRow);
    EXPECT_EQ(27, +record.nAnchorRow);
}

TEST_F(GridBlock, CountIsAskedUntilItIsKnown)
{
    MakeBlock();
    HGFetchTotal(ctl);
    EXPECT_EQ((std::vector<Call>{ { HGSRC_COUNT, 0 } }), owner.calls);
    record.fTotalKnown = 1;
    HGFetchTotal(ctl);
    EXPECT_EQ(1u, owner.calls.size());
    record.fTotalKnown = 0;
    record.wFlags = 0;
    HGFetchTotal(ctl);
    EXPECT_EQ(1u, owner.calls.size());
}

TEST_F(GridBlock, SourceWithoutEndFillsToTheRowLimitAndNoFarther)
{
    MakeBlock();
    owner.records = 0x7FFFFFFF;
    record.cHeldRows = 32767;
    Load();
    EXPECT_EQ(rowLimit, Rows());
    EXPECT_EQ(rowLimit, +record.cHeldRows);
    EXPECT_EQ(rowLimit, +record.lTotalRows);
}

TEST_F(GridBlock, BlockAtTheHighestRecordsStaysInItsNumbers)
{
    MakeBlock();
    owner.records = 0x7FFFFFFF;
    owner.before = [](int operation, int number, int answer) {
        EXPECT_GE(number, 0);
        return operation == HGSRC_FETCH ? 1 : answer;
    };
    record.lTotalRows = 0x7FFFFFFF;
    Load();
    EXPECT_EQ(0x7FFFFFFF / 32766 + 1, +record.nVScale);
    for (const LONG target : { 0x7FFFFFFF, 0x7FFFFFFE, 0, 0x7FFFFFF0, 1, 0x7FFFFFFF }) {
        HGSetTop(ctl, target);
        EXPECT_EQ(20, Rows());
        EXPECT_GE(+record.lRowBase, 0);
        EXPECT_TRUE(HGCountRows(ctl));
    }
    HGSetTop(ctl, 1000);
    EXPECT_EQ(1000, HGTopRecord(ctl));
}

TEST_F(GridBlock, SourceThatAnswersAtRandomIsSurvived)
{
    MakeBlock(HGS_NEWROW);
    unsigned state = 1;
    owner.records = 0x7FFFFFFF;
    owner.before = [&](int, int, int) {
        state = state * 1664525u + 1013904223u;
        return static_cast<int>(state >> 16) & 1;
    };
    record.lTotalRows = 1000000;
    for (int i = 0; i < 2000; ++i) {
        HGShiftBlock(ctl, static_cast<LONG>((i * 7919L) % 100000));
        ASSERT_TRUE(HGCountRows(ctl));
        ASSERT_GE(+record.lRowBase, 0);
        ASSERT_LE(Rows(), 200);
    }
}

TEST_F(GridBlock, SourceThatDeletesRowsWhileItIsAskedComesToAnEnd)
{
    MakeBlock();
    Load();
    owner.before = [&](int operation, int, int answer) {
        if (operation == HGSRC_FETCH && Rows() > 0) {
            HGRemoveRow(ctl, 0);
        }
        return answer;
    };
    HGShiftBlock(ctl, 5);
    EXPECT_LE(Rows(), 20);
    EXPECT_LT(owner.calls.size(), 100u);
    owner.before = nullptr;
    Load();
    EXPECT_EQ(20, Rows());
}

TEST_F(GridBlock, SourceThatDeletesOneRowOnceLosesNothing)
{
    MakeBlock();
    Load();
    bool done = false;
    owner.before = [&](int operation, int number, int answer) {
        if (operation == HGSRC_FETCH && number == 21 && !done) {
            done = true;
            HGRemoveRow(ctl, 0);
            record.lRowBase += 1;
        }
        return answer;
    };
    HGShiftBlock(ctl, 5);
    EXPECT_TRUE(done);
    ExpectRecordsFrom(6, 20);
}

TEST_F(GridBlock, SourceThatAsksForALayoutWhileItIsAskedIsNotAskedTwice)
{
    MakeBlock();
    owner.before = [&](int operation, int, int answer) {
        if (operation == HGSRC_FETCH) {
            HGCountRows(ctl);
            HGShiftBlock(ctl, 700);
        }
        return answer;
    };
    EXPECT_TRUE(HGCountRows(ctl));
    ExpectRecordsFrom(0, 20);
    EXPECT_EQ(Fetches(0, 19), owner.calls);
}

TEST_F(GridBlock, SourceThatAddsAColumnWhileItIsAskedGetsALargerBuffer)
{
    MakeBlock();
    bool done = false;
    owner.before = [&](int operation, int number, int answer) {
        if (operation == HGSRC_FETCH && number == 3 && !done) {
            done = true;
            HGInsertFld(record.pData, Column(30), 1);
        }
        return answer;
    };
    EXPECT_TRUE(HGCountRows(ctl));
    EXPECT_TRUE(done);
    EXPECT_EQ(2 * (4 + 2), record.pData->pRows->cbItem);
    ExpectRecordsFrom(0, 20);
}

TEST_F(GridBlock, SourceThatDestroysTheWindowEndsTheFetch)
{
    for (const int number : { 0, 5, 19 }) {
        SCOPED_TRACE(number);
        MakeBlock();
        owner.before = [&](int operation, int asked, int answer) {
            if (operation == HGSRC_FETCH && asked == number) {
                RigWindowEnd(record.hWnd);
            }
            return answer;
        };
        EXPECT_FALSE(HGCountRows(ctl));
        EXPECT_EQ(number, Rows());
        HGridDestroy(record.pData);
        record = {};
    }
}

TEST_F(GridBlock, SourceThatDestroysTheWindowInEachOperationIsSurvived)
{
    for (const int operation : { HGSRC_FETCH, HGSRC_WRITEBACK, HGSRC_COUNT, HGSRC_INSERT, HGSRC_DELETE }) {
        SCOPED_TRACE(operation);
        MakeBlock(HGS_NEWROW);
        Load();
        HGChangeNodeFlags(HGRowNode(record.pData, 2), 0, HGR_DIRTY);
        owner.before = [&](int asked, int, int answer) {
            if (asked == operation) {
                RigWindowEnd(record.hWnd);
            }
            return answer;
        };
        HGFetchTotal(ctl);
        if (IsWindow(record.hWnd)) {
            EXPECT_EQ(-1, HGInsertRow(ctl, nullptr, 3, false));
        }
        if (IsWindow(record.hWnd)) {
            EXPECT_EQ(0, HGDeleteRow(ctl, 3, false));
        }
        if (IsWindow(record.hWnd)) {
            HGSetTop(ctl, 500);
        }
        EXPECT_FALSE(IsWindow(record.hWnd));
        HGridDestroy(record.pData);
        record = {};
        owner.before = nullptr;
    }
}

TEST_F(GridBlock, EachFailedAllocationLeavesABlockInOrder)
{
    for (FailEachAllocation each; each.Next();) {
        SCOPED_TRACE(each.Number());
        FailAllocation(0);
        MakeBlock(HGS_NEWROW);
        FailAllocation(each.Number());
        HGCountRows(ctl);
        HGShiftBlock(ctl, 995);
        HGShiftBlock(ctl, 400);
        HGShiftBlock(ctl, 390);
        for (int row = 0; row < Rows(); ++row) {
            if ((FlagsOf(row) & HGR_NEW) == 0) {
                ASSERT_EQ(RecordOfRow(ctl, row), ValueOf(row));
            }
        }
        RigWindowEnd(record.hWnd);
        HGridDestroy(record.pData);
        record = {};
    }
}

TEST_F(GridBlock, WithoutColumnsNothingIsFetchedAndTheTotalStays)
{
    Make({}, { .style = 0 });
    record.pfnRowSource = Source;
    record.wFlags = HGC_VIRTUAL;
    record.lTotalRows = 1001;
    EXPECT_TRUE(HGCountRows(ctl));
    EXPECT_EQ(std::vector<Call>{}, owner.calls);
    EXPECT_EQ(1001, +record.lTotalRows);
}

TEST_F(GridBlock, FlagWithoutASourceFetchesNothing)
{
    MakeBlock();
    record.pfnRowSource = nullptr;
    EXPECT_TRUE(HGCountRows(ctl));
    EXPECT_EQ(0, Rows());
    HGShiftBlock(ctl, 100);
    EXPECT_EQ(0, Rows());
}

} // namespace
