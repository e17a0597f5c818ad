// Random operations on a grid with a row source, compared with plain vectors: what the user should see of each record,
// and what the source has been told so far.
#include "gridctl/grid_rig.h"

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

constexpr int rowSize = sizeof(int) + sizeof(WORD); // a number, and the flags of its cell

// The owner's record set. A record is one number.
struct RecordSet {
    std::vector<int> stored;        // what the source holds
    std::vector<int> wanted;        // what it will hold when all changed rows have come back
    std::set<LONG>   pending;       // records whose change hasn't come back yet
    int              badCalls = 0;  // write-backs that nobody owed
};

RecordSet* gSet;

bool Has(LONG record)
{
    return record >= 0 && static_cast<size_t>(record) < gSet->stored.size();
}

int WriteBack(int record, int value)
{
    if (!Has(record) || gSet->pending.erase(record) == 0) {
        ++gSet->badCalls;
        return 0;
    }
    gSet->stored[static_cast<size_t>(record)] = value;
    return 1;
}

// Records behind an inserted or deleted one have new numbers.
void ShiftPending(LONG from, LONG by)
{
    std::set<LONG> shifted;
    for (const LONG record : gSet->pending) {
        shifted.insert(record >= from ? record + by : record);
    }
    gSet->pending = shifted;
}

int Insert(int record, int value)
{
    if (record < 0 || static_cast<size_t>(record) > gSet->stored.size()) {
        ++gSet->badCalls;
        return 0;
    }
    ShiftPending(record, 1);
    gSet->stored.insert(gSet->stored.begin() + record, value);
    gSet->wanted.insert(gSet->wanted.begin() + record, value);
    return 1;
}

int Delete(int record)
{
    if (!Has(record)) {
        ++gSet->badCalls;
        return 0;
    }
    gSet->pending.erase(record);
    ShiftPending(record, -1);
    gSet->stored.erase(gSet->stored.begin() + record);
    gSet->wanted.erase(gSet->wanted.begin() + record);
    return 1;
}

int CALLBACK Source(HWND, int operation, int record, void* buffer)
{
    switch (operation) {
    case HGSRC_FETCH:
        if (!Has(record)) {
            return 0;
        }
        StoreAs<int>(buffer, gSet->stored[static_cast<size_t>(record)]);
        return 1;
    case HGSRC_WRITEBACK: return WriteBack(record, LoadAs<int>(buffer));
    case HGSRC_INSERT:    return Insert(record, LoadAs<int>(buffer));
    case HGSRC_DELETE:    return Delete(record);
    case HGSRC_COUNT:     return static_cast<int>(gSet->stored.size());
    default:              return 0;
    }
}

struct Setting {
    int  records;
    bool entryRow; // the blank row behind the last record
    int  steps;
};

class BlockModel : public GridRig, public testing::WithParamInterface<Setting> {
protected:
    BlockModel() { gSet = &set; }
    ~BlockModel() override { gSet = nullptr; }

    void Start(int records, bool entryRow)
    {
        Make({ Column(50) }, { .style = entryRow ? HGS_NEWROW : 0u, .width = 100, .height = 200 });
        for (int i = 0; i < records; ++i) {
            set.stored.push_back(1000 + i);
        }
        set.wanted = set.stored;
        ASSERT_EQ(rowSize, record.pData->pRows->cbItem);
        record.pfnRowSource = Source;
        record.wFlags = HGC_VIRTUAL;
        record.nCurRow = 0;
        Resize(10);
    }

    int Random(int below) { return below <= 0 ? 0 : static_cast<int>(random() % static_cast<unsigned>(below)); }
    int Rows() const { return HGRowCount(record.pData); }
    int Total() const { return static_cast<int>(set.stored.size()); }

    void Resize(int page)
    {
        RigWindowResize(record.hWnd, 100, page * 20);
        record.cPageRows = static_cast<short>(page);
        HGRecalc(ctl);
    }

    // A scroll as HGScrollBy makes it of a grid with a row source.
    void ScrollBy(LONG rows)
    {
        const LONG top = HGTopRecord(ctl);
        const LONG target = std::min<LONG>(std::max<LONG>(top + rows, 0), +record.lTotalRows);
        const LONG current = RecordOfRow(ctl, CurrentCell(ctl).row);
        const int  moved = HGSetTop(ctl, target);
        EXPECT_EQ(HGTopRecord(ctl) - top, moved);
        CheckKept(current);
    }

    // A record that is still loaded stays the current one; any other leaves the nearest row.
    void CheckKept(LONG current)
    {
        const LONG row = current - record.lRowBase;
        const LONG last = std::max(Rows() - 1, 0);
        EXPECT_EQ(std::clamp<LONG>(row, 0, last), CurrentCell(ctl).row);
        EXPECT_EQ(std::clamp<LONG>(row, 0, last), +record.nAnchorRow);
    }

    void MoveCurrent()
    {
        const int row = Random(Rows());
        record.nCurRow = static_cast<WORD>(row);
        record.nAnchorRow = static_cast<short>(row);
    }

    bool IsRecord(int row) { return row < Rows() && (HGNodeFlags(HGRowNode(record.pData, row)) & HGR_NEW) == 0; }

    void Write()
    {
        const int row = Random(Rows());
        if (!IsRecord(row)) {
            return;
        }
        const LONG changed = RecordOfRow(ctl, row);
        const int  value = Random(1 << 30);
        StoreAs<int>(HGRowData(record.pData, row), value);
        HGChangeNodeFlags(HGRowNode(record.pData, row), 0, HGR_DIRTY);
        set.wanted[static_cast<size_t>(changed)] = value;
        set.pending.insert(changed);
    }

    void InsertRow()
    {
        const int row = Random(Rows());
        if (!IsRecord(row)) {
            return;
        }
        BYTE data[rowSize] = {};
        StoreAs<int>(data, Random(1 << 30));
        EXPECT_EQ(row, HGInsertRow(ctl, data, row, false));
        HGRecalc(ctl);
    }

    void DeleteRow()
    {
        const int  row = Random(Rows());
        const int  rows = Rows();
        const bool deletable = IsRecord(row);
        EXPECT_EQ(deletable ? 1 : 0, HGDeleteRow(ctl, row, false));
        EXPECT_EQ(deletable ? rows - 1 : rows, Rows());
        HGRecalc(ctl);
    }

    // As HGM_SETTOTAL, with a number that may be wrong.
    void TellTotal(int count)
    {
        record.fTotalKnown = 1;
        record.lTotalRows = count + 1;
        record.cHeldRows = static_cast<short>(std::min<LONG>(record.cHeldRows, +record.lTotalRows));
        HGRecalc(ctl);
    }

    void Hold(int rows)
    {
        record.cHeldRows = static_cast<short>(rows);
        HGRecalc(ctl);
    }

    // Another user deletes records at the end. The grid hears nothing of it: its total is too high from then on.
    void ShrinkSet()
    {
        ScrollBy(-HGTopRecord(ctl));
        const LONG loaded = RecordOfRow(ctl, Rows());
        const LONG size = loaded + Random(Total() - static_cast<int>(loaded));
        if (size < Total() && set.pending.lower_bound(size) == set.pending.end()) {
            set.stored.resize(static_cast<size_t>(size));
            set.wanted.resize(static_cast<size_t>(size));
        }
    }

    void GrowSet()
    {
        if (Rows() > 0 && RecordOfRow(ctl, Rows()) < Total()) {
            for (int i = Random(50); i > 0; --i) {
                set.stored.push_back(i);
                set.wanted.push_back(i);
            }
        }
    }

    void DoSomething()
    {
        switch (Random(14)) {
        case 0:
        case 1:
        case 2:  ScrollBy(Random(61) - 30); break;
        case 3:  ScrollBy(Random(2 * Total() + 1) - Total()); break;
        case 4:  ScrollBy(record.lTotalRows); break;
        case 5:  HGShiftBlock(ctl, Random(Total())); break;
        case 6:
        case 7:  Write(); break;
        case 8:  InsertRow(); break;
        case 9:  DeleteRow(); break;
        case 10: TellTotal(Random(4) ? Total() : std::max(Total() + Random(200) - 50, 1)); break;
        case 11: Hold(Random(3) ? Random(100) : Random(2000)); break;
        case 12: Random(2) ? ShrinkSet() : GrowSet(); break;
        default: Random(3) ? MoveCurrent() : Resize(1 + Random(30)); break;
        }
    }

    void CheckRows()
    {
        for (int row = 0; row < Rows(); ++row) {
            const LONG number = RecordOfRow(ctl, row);
            if (!IsRecord(row)) {
                EXPECT_EQ(Rows() - 1, row) << "the entry row is the last";
                EXPECT_EQ(Total(), number) << "the entry row follows the last record";
                continue;
            }
            ASSERT_LT(number, Total()) << "row " << row << " stands for a record that is missing";
            ASSERT_EQ(set.wanted[static_cast<size_t>(number)], LoadAs<int>(HGRowData(record.pData, row)))
                << "row " << row << ", record " << number;
        }
    }

    void CheckBlock()
    {
        EXPECT_EQ(0, set.badCalls);
        EXPECT_GE(+record.lRowBase, 0);
        EXPECT_LE(Rows(), rowLimit);
        EXPECT_GE(+record.lTotalRows, RecordOfRow(ctl, Rows()));
        EXPECT_EQ((+record.lTotalRows < 1 ? 0 : +record.lTotalRows - 1) / 32766 + 1, +record.nVScale);
        const int all = Total() + (RecordOfRow(ctl, Rows()) > Total() ? 1 : 0);
        EXPECT_GE(Rows(), std::min<int>(2 * record.cPageRows, all)) << "fewer than two pages are loaded";
        EXPECT_GE(CurrentCell(ctl).row, 0);
        EXPECT_LE(CurrentCell(ctl).row, std::max(Rows() - 1, 0));
        EXPECT_LE(+record.nAnchorRow, std::max(Rows() - 1, 0));
        for (const LONG changed : set.pending) {
            EXPECT_TRUE(changed >= +record.lRowBase && changed < RecordOfRow(ctl, Rows()))
                << "record " << changed << " left the block without its change";
        }
    }

    // The page shows all records that the grid knows of.
    void CheckPage()
    {
        const LONG pageEnd = HGTopRecord(ctl) + record.cPageRows;
        if (RecordOfRow(ctl, Rows()) < std::min<LONG>(Total(), +record.lTotalRows)) {
            EXPECT_LE(pageEnd, RecordOfRow(ctl, Rows())) << "the page reaches past the block";
        }
        EXPECT_GE(+record.nTopRow, 0);
    }

    RecordSet    set;
    std::mt19937 random{ 4711 };
};

std::string NameOf(const testing::TestParamInfo<Setting>& info)
{
    return std::to_string(info.param.records) + (info.param.entryRow ? "RecordsAndAnEntryRow" : "Records");
}

TEST_P(BlockModel, RowIsAlwaysItsRecordWhateverIsDone)
{
    Start(GetParam().records, GetParam().entryRow);
    for (int step = 0; step < GetParam().steps && !HasFailure(); ++step) {
        SCOPED_TRACE("step " + std::to_string(step));
        DoSomething();
        HGCountRows(ctl);
        CheckRows();
        CheckBlock();
        CheckPage();
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Sets, BlockModel, testing::Values(
    Setting{ 0, false, 2000 },       Setting{ 0, true, 2000 },
    Setting{ 1, false, 2000 },       Setting{ 1, true, 2000 },
    Setting{ 19, false, 2000 },      Setting{ 19, true, 2000 },
    Setting{ 20, false, 2000 },      Setting{ 20, true, 2000 },
    Setting{ 300, false, 5000 },     Setting{ 300, true, 5000 },
    Setting{ 1000000, false, 3000 }, Setting{ 1000000, true, 3000 }), NameOf);
// clang-format on

} // namespace
