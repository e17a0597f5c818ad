// Changes of columns in grids with rows: where the bytes go, with and without a column order map.
#include "griddata/cell_access.h"
#include "griddata/grid_maker.h"

namespace {

using Names = std::vector<std::string>;
using Numbers = std::vector<int>;

WORD Flag(HGridData* grid, int col, int row)
{
    return LoadAs<WORD>(FlagAt(grid, col, row));
}

// Three text columns "a", "b", "c" and rows whose cells say where they are, each with a flag word of its own.
GridPtr FilledGrid(DWORD style = 0, int rows = 3)
{
    GridPtr grid = GridOf({ Text("a", 4), Text("b", 6), Text("c", 5) }, style, rows);
    for (int row = 0; row < rows; row++) {
        for (int col = 0; col < 3; col++) {
            SetText(grid.get(), col, row, (std::string(1, static_cast<char>('a' + col)) + std::to_string(row)).c_str());
            StoreAs<WORD>(FlagAt(grid.get(), col, row), static_cast<WORD>(0x100 * (col + 1) + row));
        }
    }
    return grid;
}

TEST(AddField, PutsTheColumnBehindTheOthers)
{
    const GridPtr grid = EmptyGrid();
    EXPECT_EQ(0, HGAddFld(grid.get(), Text("a", 5)));
    EXPECT_EQ(1, HGAddFld(grid.get(), Number("b")));
    EXPECT_EQ(0, HGGetField(grid.get(), 0)->nOffset);
    EXPECT_EQ(5, HGGetField(grid.get(), 1)->nOffset);
    EXPECT_EQ(5 + 4 + 4, grid->pRows->cbItem);
}

TEST(AddField, AddsAMapEntryUnderTheStyle)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b"), Number("c") }, HGS_COLMAP);
    EXPECT_EQ((Numbers{ 0, 1, 2 }), MapEntries(grid.get()));
}

TEST(AddField, LeavesTheOtherMapEntriesAsTheyAre)
{
    const GridPtr grid = GridOf({ Number("a") }, HGS_COLMAP);
    StoreAs<short>(HNodePayload(HLListGetItem(grid->pFieldMap, 0)), 5);
    EXPECT_EQ(1, HGAddFld(grid.get(), Number("b")));
    EXPECT_EQ((Numbers{ 5, 1 }), MapEntries(grid.get()));
}

TEST(AddField, NeedsGridAndField)
{
    const GridPtr  grid = EmptyGrid();
    const FieldPtr field(Number("a"));
    EXPECT_EQ(-1, HGAddFld(nullptr, field.get()));
    EXPECT_EQ(-1, HGAddFld(grid.get(), nullptr));
    EXPECT_EQ(-1, HGInsertFld(nullptr, field.get(), 0));
    EXPECT_EQ(-1, HGInsertFld(grid.get(), nullptr, 0));
}

TEST(AddField, ThatWouldStandBehindTheHighestOffsetIsRefused)
{
    const GridPtr grid = EmptyGrid();
    EXPECT_EQ(0, HGAddFld(grid.get(), Text("a", 32767)));
    EXPECT_EQ(1, HGAddFld(grid.get(), Text("b", 100)));
    EXPECT_EQ(32767, HGGetField(grid.get(), 1)->nOffset);
    const FieldPtr field(Text("c", 1));
    EXPECT_EQ(-1, HGAddFld(grid.get(), field.get()));
    EXPECT_EQ(-1, HGInsertFld(grid.get(), field.get(), 0));
    EXPECT_EQ(2, HGColCount(grid.get()));
    EXPECT_EQ(32867 + 4, grid->pRows->cbItem);
}

TEST(AddField, OfANegativeSizeTakesNoBytes)
{
    const GridPtr grid = GridOf({ Text("a", 40000), Text("b", 5) }, 0, 2);
    EXPECT_EQ(9, grid->pRows->cbItem);
    EXPECT_EQ(0, HGGetField(grid.get(), 1)->nOffset);
}

TEST(InsertField, AtTheStartOpensAZeroCellInEveryRow)
{
    const GridPtr grid = FilledGrid();
    EXPECT_EQ(0, HGInsertFld(grid.get(), Text("new", 7), 0));
    EXPECT_EQ((Names{ "new", "a", "b", "c" }), Captions(grid.get()));
    for (int row = 0; row < 3; row++) {
        for (int i = 0; i < 7; i++) {
            EXPECT_EQ(0, CellAt(grid.get(), 0, row)[i]) << row << ' ' << i;
        }
        EXPECT_EQ(0, Flag(grid.get(), 0, row)) << row;
        EXPECT_EQ("a" + std::to_string(row), TextAt(grid.get(), 1, row));
        EXPECT_EQ("b" + std::to_string(row), TextAt(grid.get(), 2, row));
        EXPECT_EQ("c" + std::to_string(row), TextAt(grid.get(), 3, row));
        EXPECT_EQ(0x100 + row, Flag(grid.get(), 1, row));
        EXPECT_EQ(0x200 + row, Flag(grid.get(), 2, row));
        EXPECT_EQ(0x300 + row, Flag(grid.get(), 3, row));
    }
}

TEST(InsertField, PastTheEndAppendsAndMovesNoFlagWord)
{
    for (short position : { short{ 3 }, short{ 4 }, short{ 99 }, short{ -1 } }) {
        const GridPtr grid = FilledGrid();
        EXPECT_EQ(3, HGInsertFld(grid.get(), Number("new"), position)) << position;
        for (int row = 0; row < 3; row++) {
            EXPECT_EQ("c" + std::to_string(row), TextAt(grid.get(), 2, row)) << position;
            EXPECT_EQ(0x100 + row, Flag(grid.get(), 0, row)) << position;
            EXPECT_EQ(0x300 + row, Flag(grid.get(), 2, row)) << position;
            EXPECT_EQ(0, CellOf<LONG>(grid.get(), 3, row)) << position;
            EXPECT_EQ(0, Flag(grid.get(), 3, row)) << position;
        }
    }
}

TEST(InsertField, LeavesTheRowsCursorOnTheLastRow)
{
    const GridPtr grid = FilledGrid();
    HGRowNode(grid.get(), 0);
    HGInsertFld(grid.get(), Number("new"), 3);
    EXPECT_EQ(2, grid->pRows->iCursor);
    EXPECT_EQ(grid->pRows->pTail, grid->pRows->pCursor);
    EXPECT_EQ("a2", TextAt(grid.get(), 0, 2)) << "the last row read first is the last row";
}

TEST(InsertField, KeepsTheMapUnderTheStyle)
{
    const GridPtr grid = FilledGrid(HGS_COLMAP);
    HGMoveFld(grid.get(), 0, 2); // b c a, stored a b c
    EXPECT_EQ((Numbers{ 2, 0, 1 }), MapEntries(grid.get()));
    EXPECT_EQ(1, HGInsertFld(grid.get(), Text("new", 3), 1));
    EXPECT_EQ((Names{ "b", "new", "c", "a" }), Captions(grid.get()));
    EXPECT_EQ((Numbers{ 3, 1, 0, 2 }), MapEntries(grid.get()));
    EXPECT_EQ("a1", TextAt(grid.get(), 3, 1));
    EXPECT_EQ("b1", TextAt(grid.get(), 0, 1));
    EXPECT_EQ("c1", TextAt(grid.get(), 2, 1));
    EXPECT_EQ("", TextAt(grid.get(), 1, 1));
    EXPECT_EQ(0x101, Flag(grid.get(), 3, 1));
    EXPECT_EQ(0x201, Flag(grid.get(), 0, 1));
    EXPECT_EQ(0x301, Flag(grid.get(), 2, 1));
    EXPECT_EQ(0, Flag(grid.get(), 1, 1));
}

TEST(InsertField, WithAMapButWithoutTheStyleLeavesTheMap)
{
    const GridPtr grid = FilledGrid();
    HGCreateFldMap(grid.get());
    EXPECT_EQ(0, HGInsertFld(grid.get(), Text("new", 3), 0));
    EXPECT_EQ((Numbers{ 0, 1, 2 }), MapEntries(grid.get()));
    EXPECT_EQ(-1, HGColToPos(grid.get(), 3)) << "the lookup goes by the map";
    EXPECT_EQ("a1", TextAt(grid.get(), 1, 1));
    EXPECT_EQ("b1", TextAt(grid.get(), 2, 1));
    EXPECT_EQ("c1", TextAt(grid.get(), 3, 1));
}

TEST(InsertField, BehindAMapWithoutTheStyleHasTheFlagWordOfItsNumber)
{
    const GridPtr grid = FilledGrid();
    HGCreateFldMap(grid.get());
    EXPECT_EQ(3, HGInsertFld(grid.get(), Text("new", 3), -1));
    BYTE* const end = HGRowData(grid.get(), 1) + grid->pRows->cbItem;
    EXPECT_EQ(end - 2, HGCellFlagsPtr(grid.get(), 3, 1));
    EXPECT_EQ(end - 8, HGCellFlagsPtr(grid.get(), 0, 1));
}

TEST(CellFlags, OfAColumnThatTheMapHasLostAreNotThere)
{
    const GridPtr grid = FilledGrid();
    HGCreateFldMap(grid.get());
    StoreAs<LONG>(HNodePayload(HLListGetItem(grid->pFieldMap, 0)), 9);
    EXPECT_EQ(nullptr, HGCellFlagsPtr(grid.get(), 0, 1));
}

TEST(RemoveField, TakesTheValueOutOfEveryRow)
{
    const GridPtr grid = FilledGrid();
    EXPECT_EQ(1, RemoveColumn(grid.get(), 1));
    EXPECT_EQ((Names{ "a", "c" }), Captions(grid.get()));
    EXPECT_EQ(4 + 5 + 4, grid->pRows->cbItem);
    for (int row = 0; row < 3; row++) {
        EXPECT_EQ("a" + std::to_string(row), TextAt(grid.get(), 0, row));
        EXPECT_EQ("c" + std::to_string(row), TextAt(grid.get(), 1, row));
    }
}

TEST(RemoveField, DropsTheFlagWordBehindItsOwn)
{
    const GridPtr grid = FilledGrid();
    EXPECT_EQ(1, RemoveColumn(grid.get(), 0));
    EXPECT_EQ(0x101, Flag(grid.get(), 0, 1));
    EXPECT_EQ(0x301, Flag(grid.get(), 1, 1));
}

TEST(RemoveField, OfTheLastColumnDropsItsOwnFlagWord)
{
    const GridPtr grid = FilledGrid();
    EXPECT_EQ(1, RemoveColumn(grid.get(), 2));
    EXPECT_EQ(0x101, Flag(grid.get(), 0, 1));
    EXPECT_EQ(0x201, Flag(grid.get(), 1, 1));
}

TEST(RemoveField, KeepsTheMapUnderTheStyle)
{
    const GridPtr grid = FilledGrid(HGS_COLMAP);
    HGMoveFld(grid.get(), 0, 2); // b c a, stored a b c
    EXPECT_EQ(1, RemoveColumn(grid.get(), 0));
    EXPECT_EQ((Names{ "c", "a" }), Captions(grid.get()));
    EXPECT_EQ((Numbers{ 1, 0 }), MapEntries(grid.get()));
    EXPECT_EQ("c1", TextAt(grid.get(), 0, 1));
    EXPECT_EQ("a1", TextAt(grid.get(), 1, 1));
}

TEST(RemoveField, OfTheOnlyColumnLeavesRowsWithoutBytes)
{
    const GridPtr grid = GridOf({ Number("a") }, 0, 2);
    EXPECT_EQ(1, RemoveColumn(grid.get(), 0));
    EXPECT_EQ(0, grid->pRows->cbItem);
    EXPECT_EQ(2, HGRowCount(grid.get()));
}

TEST(RemoveField, OutOfRangeGivesZero)
{
    const GridPtr grid = FilledGrid();
    EXPECT_EQ(0, RemoveColumn(grid.get(), 3));
    EXPECT_EQ(0, RemoveColumn(grid.get(), -1));
    EXPECT_EQ(0, RemoveColumn(nullptr, 0));
    EXPECT_EQ(0, HGRemoveFld(nullptr, 0));
    EXPECT_EQ(3, HGColCount(grid.get()));
}

TEST(RemoveField, FreesTheField)
{
    const GridPtr grid = FilledGrid();
    const int     live = LiveBlocks();
    RemoveColumn(grid.get(), 0);
    EXPECT_EQ(live - 5, LiveBlocks()) << "node, record, caption, name and format";
}

TEST(MoveField, WithoutAMapRotatesTheBytes)
{
    const GridPtr           grid = FilledGrid();
    const std::vector<BYTE> before = RowBytes(grid.get(), 1);
    EXPECT_EQ(2, HGMoveFld(grid.get(), 0, 2));
    EXPECT_EQ((Names{ "b", "c", "a" }), Captions(grid.get()));
    EXPECT_NE(before, RowBytes(grid.get(), 1));
    EXPECT_EQ(0, HGGetField(grid.get(), 0)->nOffset);
    EXPECT_EQ("b1", TextAt(grid.get(), 0, 1));
    EXPECT_EQ("c1", TextAt(grid.get(), 1, 1));
    EXPECT_EQ("a1", TextAt(grid.get(), 2, 1));
    EXPECT_EQ(0x201, Flag(grid.get(), 0, 1));
    EXPECT_EQ(0x301, Flag(grid.get(), 1, 1));
    EXPECT_EQ(0x101, Flag(grid.get(), 2, 1));
}

TEST(MoveField, BackwardsWithoutAMapRotatesTheBytes)
{
    const GridPtr grid = FilledGrid();
    EXPECT_EQ(0, HGMoveFld(grid.get(), 2, 0));
    EXPECT_EQ((Names{ "c", "a", "b" }), Captions(grid.get()));
    EXPECT_EQ("c2", TextAt(grid.get(), 0, 2));
    EXPECT_EQ("a2", TextAt(grid.get(), 1, 2));
    EXPECT_EQ("b2", TextAt(grid.get(), 2, 2));
    EXPECT_EQ(0x302, Flag(grid.get(), 0, 2));
    EXPECT_EQ(0x102, Flag(grid.get(), 1, 2));
}

TEST(MoveField, WithAMapLeavesEveryByte)
{
    const GridPtr                  grid = FilledGrid(HGS_COLMAP);
    std::vector<std::vector<BYTE>> before;
    for (int row = 0; row < 3; row++) {
        before.push_back(RowBytes(grid.get(), row));
    }
    EXPECT_EQ(1, HGMoveFld(grid.get(), 2, 1));
    EXPECT_EQ((Numbers{ 0, 2, 1 }), MapEntries(grid.get()));
    for (int row = 0; row < 3; row++) {
        EXPECT_EQ(before[static_cast<size_t>(row)], RowBytes(grid.get(), row)) << row;
        EXPECT_EQ("c" + std::to_string(row), TextAt(grid.get(), 1, row));
        EXPECT_EQ(0x300 + row, Flag(grid.get(), 1, row));
    }
}

TEST(MoveField, UnderTheStyleWithoutAMapRotatesTheBytes)
{
    const GridPtr grid = FilledGrid();
    grid->dwStyle |= HGS_COLMAP;
    EXPECT_EQ(2, HGMoveFld(grid.get(), 0, 2));
    EXPECT_EQ("a1", TextAt(grid.get(), 2, 1));
    EXPECT_EQ(3, HGInsertFld(grid.get(), Number("d"), 3));
    EXPECT_EQ(1, RemoveColumn(grid.get(), 0));
    EXPECT_EQ("c1", TextAt(grid.get(), 0, 1));
}

TEST(MoveField, ToABadIndexIsMinusOne)
{
    const GridPtr grid = FilledGrid();
    struct {
        int from;
        int to;
    } const rows[] = { { 0, 0 }, { 0, 3 }, { 3, 0 }, { -1, 0 }, { 0, -1 } };
    for (const auto& row : rows) {
        EXPECT_EQ(-1, HGMoveFld(grid.get(), row.from, row.to)) << row.from << ' ' << row.to;
    }
    EXPECT_EQ(-1, HGMoveFld(nullptr, 0, 1));
}

TEST(ColumnsWithoutMemory, KeepEveryCellWhicheverAllocationFails)
{
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HGS_COLMAP } }) {
        const GridPtr      grid = FilledGrid(style);
        HGField* const     field = Text("new", 9); // stays the test's until it is taken
        FailEachAllocation each;
        bool               inserted = false;
        while (!inserted && each.Next()) {
            inserted = HGInsertFld(grid.get(), field, 1) >= 0;
            const int b = inserted ? 2 : 1;
            ASSERT_EQ(inserted ? 4 : 3, HGColCount(grid.get())) << each.Number();
            for (int row = 0; row < 3; row++) {
                ASSERT_EQ("a" + std::to_string(row), TextAt(grid.get(), 0, row)) << each.Number();
                ASSERT_EQ("b" + std::to_string(row), TextAt(grid.get(), b, row)) << each.Number();
                ASSERT_EQ("c" + std::to_string(row), TextAt(grid.get(), b + 1, row)) << each.Number();
                ASSERT_EQ(0x200 + row, Flag(grid.get(), b, row)) << each.Number();
            }
        }
        FailAllocation(0);
        EXPECT_TRUE(inserted);
        EXPECT_EQ(style ? 6 : 5, each.Number()) << "three rows, a node, and the map entry under the style";
    }
}

TEST(ColumnsWithoutMemory, CanBeRemovedAndMoved)
{
    for (int fails = 1; fails <= 6; fails++) {
        const GridPtr grid = FilledGrid();
        FailAllocationsFrom(fails);
        EXPECT_EQ(1, HGMoveFld(grid.get(), 0, 1)) << fails;
        EXPECT_EQ(1, RemoveColumn(grid.get(), 0)) << fails;
        FailAllocation(0);
        EXPECT_EQ(4 + 5 + 4, grid->pRows->cbItem) << fails;
        for (int row = 0; row < 3; row++) {
            EXPECT_EQ("a" + std::to_string(row), TextAt(grid.get(), 0, row)) << fails;
            EXPECT_EQ("c" + std::to_string(row), TextAt(grid.get(), 1, row)) << fails;
        }
    }
}

TEST(ColumnsWithoutMemory, AddedToAGridWithRowsAreWholeOrNotThere)
{
    const GridPtr      grid = FilledGrid(HGS_COLMAP, 4);
    const int          live = LiveBlocks();
    FailEachAllocation each;
    while (each.Next()) {
        HGField* const field = Number("d");
        const int      index = HGAddFld(grid.get(), field);
        if (index < 0) {
            HGFieldDestroy(field);
            continue;
        }
        EXPECT_EQ(3, index) << each.Number();
        EXPECT_EQ(4u, MapEntries(grid.get()).size()) << each.Number();
        RemoveColumn(grid.get(), 3);
    }
    EXPECT_EQ(live, LiveBlocks());
    EXPECT_EQ(3, HGColCount(grid.get()));
}

} // namespace
