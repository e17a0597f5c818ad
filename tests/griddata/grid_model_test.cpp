// Grid definitions: defaults, copies, comparing, lookups, and what a copy leaves behind.
#include "griddata/cell_access.h"
#include "griddata/grid_maker.h"

namespace {

using Names = std::vector<std::string>;

int BaseHeight()
{
    return HIWORD(GetBaseUnits(nullptr));
}

int CALLBACK DifferAsNumbers(const void* a, const void* b)
{
    return LoadAs<LONG>(a) == LoadAs<LONG>(b) ? 0 : 1;
}

TEST(GridCreate, StoresWhatIsGiven)
{
    const GridPtr grid(HGridCreate("title", 0x00300108, 4, 2, 30, 50, 25, 7));
    ASSERT_NE(nullptr, grid);
    EXPECT_EQ(18506, grid->wVersion);
    EXPECT_EQ(0x00300108u, Copied(grid->dwStyle));
    EXPECT_EQ(4u, Copied(grid->dwStyle2));
    EXPECT_EQ(2, grid->cFixedCols);
    EXPECT_EQ(30, grid->nRowHeight);
    EXPECT_EQ(30, grid->nRowHeightDef);
    EXPECT_EQ(0, grid->nMinRowHeight);
    EXPECT_EQ(50, grid->nHdrWidth);
    EXPECT_EQ(25, grid->nHdrHeight);
    EXPECT_EQ(25, grid->nHdrHeightDef);
    EXPECT_EQ(7, grid->cMinRows);
    EXPECT_STREQ("title", grid->pszTitle);
    EXPECT_EQ(0, grid->fEndStop);
    EXPECT_EQ(0, grid->pRows->cbItem);
    EXPECT_EQ(static_cast<int>(sizeof(void*)), grid->pFields->cbItem);
    EXPECT_EQ(nullptr, Copied(grid->pFieldMap));
}

TEST(GridCreate, GivesDefaultsForNegativeSizes)
{
    const GridPtr grid(HGridCreate(nullptr, 0, 0, 0, -1, -20, -300, 0));
    EXPECT_EQ(20, grid->nRowHeight);
    EXPECT_EQ(45, grid->nHdrWidth);
    EXPECT_EQ(20, grid->nHdrHeight);
    EXPECT_EQ(20, grid->nHdrHeightDef);
    EXPECT_EQ(20, grid->nRowHeightDef);
    EXPECT_EQ(nullptr, Copied(grid->pszTitle));
}

TEST(GridCreate, TakesSizesOfZeroAsTheyAre)
{
    const GridPtr grid(HGridCreate(nullptr, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(0, grid->nRowHeight);
    EXPECT_EQ(0, grid->nHdrWidth);
    EXPECT_EQ(0, grid->nHdrHeight);
}

TEST(GridCreate, DividesItsDefaultsInUnitsByTheFontsHeight)
{
    const GridPtr grid(HGridCreate(nullptr, 0, HGX_DLGUNITS, 0, -1, -1, -1, 0));
    EXPECT_EQ(160 / BaseHeight(), grid->nRowHeight);
    EXPECT_EQ(160 / BaseHeight(), grid->nHdrHeight);
    EXPECT_EQ(160 / BaseHeight(), grid->nRowHeightDef);
    EXPECT_EQ(160 / BaseHeight(), grid->nHdrHeightDef);
    EXPECT_EQ(22, grid->nHdrWidth);
}

TEST(GridCreate, MeasuresInUnitsOnlyInUnitModeOne)
{
    struct {
        DWORD style2;
        bool  units;
    } const rows[] = { { 0, false }, { 1, true }, { 2, false }, { 3, false }, { 4, false }, { 5, true } };
    for (const auto& row : rows) {
        const GridPtr grid(HGridCreate(nullptr, 0, row.style2, 0, -1, -1, -1, 0));
        EXPECT_EQ(row.units ? 22 : 45, grid->nHdrWidth) << row.style2;
    }
}

TEST(GridCreate, TakesFixedColumnsAsASignedNumber)
{
    struct {
        DWORD given;
        short kept;
    } const rows[] = { { 0, 0 }, { 1, 1 }, { 32767, 32767 }, { 32768, 0 }, { 65535, 0 } };
    for (const auto& row : rows) {
        const GridPtr grid(HGridCreate(nullptr, 0, 0, static_cast<WORD>(row.given), 1, 1, 1, 0));
        EXPECT_EQ(row.kept, grid->cFixedCols) << row.given;
    }
}

TEST(GridCreate, MakesAMapOfTwoByteEntriesUnderTheStyle)
{
    const GridPtr grid = EmptyGrid(HGS_COLMAP);
    ASSERT_NE(nullptr, Copied(grid->pFieldMap));
    EXPECT_EQ(2, grid->pFieldMap->cbItem);
}

TEST(GridCreate, WithoutMemoryIsNullOrAWholeGrid)
{
    const int           live = LiveBlocks();
    FailEachAllocation each;
    while (each.Next()) {
        const GridPtr grid(HGridCreate("title", HGS_COLMAP, 0, 0, -1, -1, -1, 0));
        if (grid) {
            EXPECT_NE(nullptr, Copied(grid->pFields)) << each.Number();
            EXPECT_NE(nullptr, Copied(grid->pRows)) << each.Number();
            EXPECT_NE(nullptr, Copied(grid->pFieldMap)) << each.Number();
        }
    }
    EXPECT_EQ(live, LiveBlocks());
}

TEST(GridDestroy, FreesColumnsRowsMapAndTitle)
{
    const int live = LiveBlocks();
    GridOf({ Text("a", 5), Number("b") }, HGS_COLMAP, 10).reset();
    EXPECT_EQ(live, LiveBlocks());
    EXPECT_EQ(0, HGridDestroy(nullptr));
    EXPECT_EQ(1, HGridDestroy(HGridCreate(nullptr, 0, 0, 0, 1, 1, 1, 0)));
}

TEST(GridEmpty, RemovesRowsAndKeepsColumns)
{
    const GridPtr grid = GridOf({ Number("a") }, 0, 5);
    EXPECT_EQ(1, HGridEmpty(grid.get()));
    EXPECT_EQ(0, HGRowCount(grid.get()));
    EXPECT_EQ(1, HGColCount(grid.get()));
    EXPECT_EQ(6, grid->pRows->cbItem);
    EXPECT_EQ(0, HGridEmpty(nullptr));
}

TEST(GridCopy, TakesColumnsRowsTitleAndSettings)
{
    const GridPtr src = GridOf({ Text("a", 5), Number("b") }, HGS_COLMAP, 2);
    SetText(src.get(), 0, 1, "one");
    SetCell<LONG>(src.get(), 1, 1, 77);
    HGSetNodeFlags(HGRowNode(src.get(), 1), HGR_DIRTY);
    StoreAs<WORD>(FlagAt(src.get(), 1, 1), 0x1231);
    src->nMinRowHeight = 9;
    src->nRowHeight = 33;
    src->nRowHeightDef = 34;
    src->nHdrHeightDef = 35;
    src->wVersion = 18503;
    src->pRows->dwUser = 1234;
    const GridPtr dest = EmptyGrid(HGS_COLMAP, "old");
    EXPECT_EQ(1, HGridCopy(dest.get(), src.get()));

    EXPECT_EQ((Names{ "a", "b" }), Captions(dest.get()));
    EXPECT_EQ((std::vector<int>{ 0, 1 }), MapEntries(dest.get()));
    EXPECT_EQ(RowBytes(src.get(), 1), RowBytes(dest.get(), 1));
    EXPECT_EQ(0, HGNodeFlags(HGRowNode(dest.get(), 1))) << "flags of rows stay behind";
    EXPECT_EQ(1234u, dest->pRows->dwUser);
    EXPECT_STREQ("grid", dest->pszTitle);
    EXPECT_EQ(18503, dest->wVersion);
    EXPECT_EQ(9, dest->nMinRowHeight);
    EXPECT_EQ(33, dest->nRowHeight);
    EXPECT_EQ(20, dest->nRowHeightDef) << "the defaults for resetting stay behind";
    EXPECT_EQ(20, dest->nHdrHeightDef);
    EXPECT_NE(HGGetField(src.get(), 0), HGGetField(dest.get(), 0));
    EXPECT_EQ(5, HGGetField(dest.get(), 1)->nOffset);
}

TEST(GridCopy, IntoANonEmptyTargetAppendsTheRows)
{
    const GridPtr src = GridOf({ Text("a", 8) }, 0, 2);
    SetText(src.get(), 0, 0, "new");
    const GridPtr dest = GridOf({ Text("b", 5) }, 0, 3);
    SetText(dest.get(), 0, 0, "old");
    EXPECT_EQ(1, HGridCopy(dest.get(), src.get()));
    EXPECT_EQ(5, HGRowCount(dest.get()));
    EXPECT_EQ((Names{ "b", "a" }), Captions(dest.get()));
    EXPECT_EQ(10, dest->pRows->cbItem);
    EXPECT_EQ("old", TextAt(dest.get(), 0, 0));
    EXPECT_EQ("new", TextAt(dest.get(), 1, 3));
}

TEST(GridCopy, ColumnsThatReachPastTheCopiedRowsHaveNoCells)
{
    const GridPtr src = GridOf({ Number("short") }, 0, 2);
    const GridPtr dest = GridOf({ Text("long", 100) }, 0, 0);
    EXPECT_EQ(1, HGridCopy(dest.get(), src.get()));
    ASSERT_EQ(2, HGRowCount(dest.get()));
    EXPECT_EQ(6, dest->pRows->cbItem);
    EXPECT_EQ(nullptr, HGCellPtr(dest.get(), 0, 0)) << "100 bytes in a row of 6";
    EXPECT_EQ(HGRowData(dest.get(), 0), HGCellPtr(dest.get(), 1, 0));
    SetCell<LONG>(dest.get(), 1, 0, 7);
    HGSortRows(dest.get(), 0, true, nullptr);
    EXPECT_EQ(7, CellOf<LONG>(dest.get(), 1, 0)) << "there is nothing to sort by";
}

TEST(GridCopy, ColumnsWhoseFlagWordWouldStandBeforeTheRowHaveNone)
{
    const GridPtr src = GridOf({ Number("one") }, 0, 1);
    const GridPtr dest = GridOf({ Number("a"), Number("b"), Number("c"), Number("d"), Number("e") }, 0, 0);
    HGridCopy(dest.get(), src.get());
    ASSERT_EQ(6, dest->pRows->cbItem);
    EXPECT_EQ(nullptr, HGCellFlagsPtr(dest.get(), 0, 0));
    EXPECT_EQ(nullptr, HGCellFlagsPtr(dest.get(), 2, 0));
    EXPECT_EQ(HGRowData(dest.get(), 0) + 4, HGCellFlagsPtr(dest.get(), 5, 0));
}

TEST(GridCopy, KeepsTheRowsBelowTheirLimit)
{
    const GridPtr src = GridOf({ Number("a") }, 0, 20000);
    const GridPtr dest = GridOf({ Number("b") }, 0, 20000);
    EXPECT_EQ(1, HGridCopy(dest.get(), src.get()));
    EXPECT_EQ(rowLimit - 1, HGRowCount(dest.get()));
}

TEST(GridCopy, ATargetWithoutAMapStaysWithoutOne)
{
    const GridPtr src = GridOf({ Number("a") }, HGS_COLMAP);
    const GridPtr dest = EmptyGrid();
    EXPECT_EQ(1, HGridCopy(dest.get(), src.get()));
    EXPECT_EQ(nullptr, Copied(dest->pFieldMap));
}

TEST(GridCopy, BetweenMapsOfDifferentEntriesKeepsTheNumbers)
{
    const GridPtr src = GridOf({ Number("a"), Number("b") }, HGS_COLMAP); // entries of two bytes
    const GridPtr dest = EmptyGrid();
    EXPECT_EQ(1, HGCreateFldMap(dest.get())); // entries of four
    EXPECT_EQ(1, HGridCopy(dest.get(), src.get()));
    EXPECT_EQ((std::vector<int>{ 0, 1 }), MapEntries(dest.get()));
}

TEST(GridCopy, NeedsBothGrids)
{
    const GridPtr grid = EmptyGrid();
    EXPECT_EQ(0, HGridCopy(nullptr, grid.get()));
    EXPECT_EQ(0, HGridCopy(grid.get(), nullptr));
    EXPECT_EQ(nullptr, HGridDup(nullptr));
}

TEST(GridDup, IsUnchangedAgainstItsSource)
{
    const GridPtr src = GridOf({ Text("a", 5), Number("b") }, HGS_COLMAP | HGS_STRIPED, 3);
    HGMoveFld(src.get(), 0, 1);
    SetCell<LONG>(src.get(), 0, 2, 5);
    const GridPtr copy(HGridDup(src.get()));
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ(0, HGridChanged(src.get(), copy.get()));
    EXPECT_EQ(5, CellOf<LONG>(copy.get(), 0, 2));
    EXPECT_EQ(MapEntries(src.get()), MapEntries(copy.get()));
}

TEST(GridDup, WithoutMemoryLeavesNothingBehind)
{
    const GridPtr      src = GridOf({ Text("a", 5), Number("b"), Number("c") }, HGS_COLMAP, 3);
    const int          live = LiveBlocks();
    FailEachAllocation each;
    while (each.Next()) {
        const GridPtr copy(HGridDup(src.get()));
    }
    EXPECT_EQ(live, LiveBlocks());
    EXPECT_LT(20, each.Number());
}

TEST(GridChanged, TellsEachSettingThatCounts)
{
    struct {
        const char* what;
        void (*change)(HGridData*);
        int expected;
    } const rows[] = {
        { "nothing", [](HGridData*) {}, 0 },
        { "wVersion", [](HGridData* g) { g->wVersion--; }, 1 },
        { "dwStyle", [](HGridData* g) { g->dwStyle ^= 8; }, 1 },
        { "dwStyle2", [](HGridData* g) { g->dwStyle2 ^= 4; }, 0 },
        { "cFixedCols", [](HGridData* g) { g->cFixedCols++; }, 1 },
        { "nRowHeight", [](HGridData* g) { g->nRowHeight++; }, 1 },
        { "nMinRowHeight", [](HGridData* g) { g->nMinRowHeight++; }, 0 },
        { "nHdrWidth", [](HGridData* g) { g->nHdrWidth++; }, 1 },
        { "nHdrHeight", [](HGridData* g) { g->nHdrHeight++; }, 1 },
        { "cMinRows", [](HGridData* g) { g->cMinRows++; }, 1 },
        { "case of the title", [](HGridData* g) { g->pszTitle[0] = 'G'; }, 1 },
        { "rows", [](HGridData* g) { AddRows(g, 1); }, 0 },
        { "a column's caption", [](HGridData* g) { HGGetField(g, 1)->pszTitle[0] = 'B'; }, 1 },
        { "a column's format", [](HGridData* g) { HGGetField(g, 1)->pszFormat[0] = '0'; }, 1 },
        { "a column's wFlags", [](HGridData* g) { HGGetField(g, 1)->wFlags ^= 0x4000; }, 1 },
        { "a column's nWidth", [](HGridData* g) { HGGetField(g, 1)->nWidth++; }, 1 },
        { "a column's nHeight", [](HGridData* g) { HGGetField(g, 1)->nHeight++; }, 1 },
        { "a column's cbSize", [](HGridData* g) { HGGetField(g, 1)->cbSize++; }, 1 },
        { "a column's cClass", [](HGridData* g) { HGGetField(g, 1)->cClass = 'c'; }, 1 },
        { "a column's cType", [](HGridData* g) { HGGetField(g, 1)->cType = 'i'; }, 1 },
        { "a column's cClass2", [](HGridData* g) { HGGetField(g, 1)->cClass2 = 'n'; }, 1 },
        { "a column's cType2", [](HGridData* g) { HGGetField(g, 1)->cType2 = 'l'; }, 1 },
        { "a column's cKind", [](HGridData* g) { HGGetField(g, 1)->cKind = 'l'; }, 1 },
        { "a column's dwCtlStyle", [](HGridData* g) { HGGetField(g, 1)->dwCtlStyle++; }, 1 },
        { "a column's nBand", [](HGridData* g) { HGGetField(g, 1)->nBand++; }, 0 },
        { "a column's nOffset", [](HGridData* g) { HGGetField(g, 1)->nOffset++; }, 0 },
        { "a column's pszName", [](HGridData* g) { HGGetField(g, 1)->pszName[0] = 'X'; }, 0 },
        { "the count of columns", [](HGridData* g) { HGAddFld(g, Number("c")); }, 1 },
        { "the order of columns", [](HGridData* g) { HGMoveFld(g, 0, 1); }, 1 },
    };
    for (const auto& row : rows) {
        const GridPtr a = GridOf({ Text("a", 5), AnyField("b", 'n', 'l', 0, "#") });
        const GridPtr b(HGridDup(a.get()));
        const HLLCOMPARE compare = a->pFields->pfnCompare;
        row.change(b.get());
        EXPECT_EQ(row.expected, HGridChanged(a.get(), b.get())) << row.what;
        EXPECT_EQ(row.expected, HGridChanged(b.get(), a.get())) << row.what;
        EXPECT_EQ(compare, a->pFields->pfnCompare) << row.what;
    }
}

TEST(GridChanged, ANullTitleEqualsOnlyANullTitle)
{
    const GridPtr a(HGridCreate(nullptr, 0, 0, 0, 1, 1, 1, 0));
    const GridPtr b(HGridCreate("", 0, 0, 0, 1, 1, 1, 0));
    const GridPtr c(HGridCreate(nullptr, 0, 0, 0, 1, 1, 1, 0));
    EXPECT_EQ(1, HGridChanged(a.get(), b.get()));
    EXPECT_EQ(0, HGridChanged(a.get(), c.get()));
}

TEST(GridLookups, FindAColumnByItsCaptionWithoutCase)
{
    const GridPtr grid = GridOf({ Number("First"), AnyField(nullptr, 'n', 'l'), Number("second") });
    int           index = -1;
    EXPECT_NE(nullptr, HLListFind(grid->pFields, "SECOND", 0, &index));
    EXPECT_EQ(2, index);
    EXPECT_EQ(nullptr, HLListFind(grid->pFields, "third", 0, &index));
}

TEST(GridLookups, GiveNothingOutOfRange)
{
    const GridPtr grid = GridOf({ Number("a") }, 0, 2);
    for (int index : { -2, -1, 2, 3 }) {
        EXPECT_EQ(nullptr, HGGetField(grid.get(), index)) << index;
        EXPECT_EQ(nullptr, HGRowNode(grid.get(), index)) << index;
        EXPECT_EQ(nullptr, HGRowData(grid.get(), index)) << index;
    }
    EXPECT_EQ(nullptr, HGGetField(nullptr, 0));
    EXPECT_EQ(nullptr, HGRowData(nullptr, 0));
    EXPECT_EQ(0, HGColCount(nullptr));
    EXPECT_EQ(0, HGRowCount(nullptr));
}

TEST(GridLookups, RowDataLiesBehindLinkAndFlags)
{
    const GridPtr grid = GridOf({ Number("a") }, 0, 1);
    EXPECT_EQ(static_cast<BYTE*>(HGRowNode(grid.get(), 0)) + sizeof(void*) + 2, HGRowData(grid.get(), 0));
}

TEST(GridLookups, PositionsWithoutAMapAreTheColumns)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b") });
    EXPECT_EQ(1, HGColToPos(grid.get(), 1));
    EXPECT_EQ(1, HGPosToCol(grid.get(), 1));
    EXPECT_EQ(-1, HGPosToCol(grid.get(), 2));
    EXPECT_EQ(-1, HGPosToCol(grid.get(), -1));
}

TEST(GridLookups, PositionsComeFromTheMap)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b"), Number("c") }, HGS_COLMAP);
    HGMoveFld(grid.get(), 2, 0);
    EXPECT_EQ((std::vector<int>{ 1, 2, 0 }), MapEntries(grid.get()));
    EXPECT_EQ(2, HGColToPos(grid.get(), 0));
    EXPECT_EQ(0, HGColToPos(grid.get(), 1));
    EXPECT_EQ(0, HGPosToCol(grid.get(), 2));
    EXPECT_EQ(-1, HGColToPos(grid.get(), 3));
}

TEST(GridLookups, RowsCompareByTheirDataCompareOnly)
{
    const GridPtr grid = GridOf({ Number("a") }, 0, 2);
    SetCell<LONG>(grid.get(), 0, 1, 42);
    const LONG key = 42;
    int        index = -1;
    EXPECT_NE(nullptr, HLListFind(grid->pRows, &key, 0, &index));
    EXPECT_EQ(0, index) << "without a compare every row is equal";
    grid->pRows->pfnDataCompare = DifferAsNumbers;
    EXPECT_NE(nullptr, HLListFind(grid->pRows, &key, 0, &index));
    EXPECT_EQ(1, index);
}

TEST(GridLookups, MapEntriesAreFoundAsNumbers)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b") }, HGS_COLMAP);
    const LONG    key = 1;
    int           index = -1;
    EXPECT_NE(nullptr, HLListFind(grid->pFieldMap, &key, 0, &index));
    EXPECT_EQ(1, index);
}

} // namespace
