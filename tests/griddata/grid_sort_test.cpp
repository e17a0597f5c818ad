// Sorting rows: by each kind of value, up and down, and always as swapping neighbours would do it.
#include "griddata/grid_maker.h"

#include "typed/data_types.h"

#include <cmath>
#include <limits>
#include <random>

namespace {

using Texts = std::vector<std::string>;
using Words = std::vector<DWORD>;

GridPtr TextGrid(const Texts& texts, DWORD style = 0)
{
    GridPtr grid = GridOf({ Text("a", 10), Number("row") }, style, static_cast<int>(texts.size()));
    for (int row = 0; row < static_cast<int>(texts.size()); row++) {
        SetText(grid.get(), 0, row, texts[static_cast<size_t>(row)].c_str());
        SetCell<LONG>(grid.get(), 1, row, row);
    }
    return grid;
}

std::vector<LONG> RowNumbers(HGridData* grid, int col = 1)
{
    std::vector<LONG> numbers;
    void*             node = grid->pRows->pHead;
    for (int i = 0; i < grid->pRows->cItems; i++) {
        numbers.push_back(LoadAs<LONG>(HGNodeData(node) + HGGetField(grid, col)->nOffset));
        node = HNodeLink(node);
    }
    EXPECT_EQ(grid->pRows->pHead, node);
    return numbers;
}

// The steps themselves: neighbours swap when their compare gives exactly the direction.
void SortBySwapping(HGridData* grid, int col, bool ascending, DWORD* parallel)
{
    const HGField* const field = HGGetField(grid, col);
    const HLLDATACOMPARE compare = GetDataCompare(field->cClass, field->cType);
    const int            dir = ascending ? 1 : -1;
    const int            newRow = grid->dwStyle & HGS_NEWROW ? 1 : 0;
    for (int last = HGRowCount(grid) - 1 - newRow; last >= 0; last--) {
        for (int i = 1; i <= last; i++) {
            const BYTE* const a = HGRowData(grid, i - 1) + field->nOffset;
            if (compare(a, HGRowData(grid, i) + field->nOffset) == dir) {
                HGMoveRow(grid, i, i - 1);
                if (parallel) {
                    std::swap(parallel[i], parallel[i - 1]);
                }
            }
        }
    }
}

int CursorPlace(const HGridData* grid)
{
    void* node = grid->pRows->pHead;
    for (int i = 0; i < grid->pRows->cItems; i++) {
        if (node == grid->pRows->pCursor) {
            return i;
        }
        node = HNodeLink(node);
    }
    return -1;
}

TEST(SortRows, OrdersTextsWithoutCaseAndKeepsEquals)
{
    const GridPtr grid = TextGrid({ "pear", "Apple", "fig", "apple", "Fig" });
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ((Texts{ "Apple", "apple", "fig", "Fig", "pear" }), ColumnTexts(grid.get(), 0));
}

TEST(SortRows, DownwardsKeepsEqualsToo)
{
    const GridPtr grid = TextGrid({ "pear", "Apple", "fig", "apple", "Fig" });
    HGSortRows(grid.get(), 0, false, nullptr);
    EXPECT_EQ((Texts{ "pear", "fig", "Fig", "Apple", "apple" }), ColumnTexts(grid.get(), 0));
}

TEST(SortRows, TakesTheParallelWordsAlong)
{
    const GridPtr grid = TextGrid({ "c", "a", "b" });
    Words         words = { 30, 10, 20 };
    HGSortRows(grid.get(), 0, true, words.data());
    EXPECT_EQ((Words{ 10, 20, 30 }), words);
}

TEST(SortRows, LeavesTheBlankNewRowInPlace)
{
    const GridPtr grid = TextGrid({ "c", "b", "a", "" }, HGS_NEWROW);
    Words         words = { 1, 2, 3, 4 };
    HGSortRows(grid.get(), 0, true, words.data());
    EXPECT_EQ((Texts{ "a", "b", "c", "" }), ColumnTexts(grid.get(), 0));
    EXPECT_EQ((Words{ 3, 2, 1, 4 }), words);
}

TEST(SortRows, DoesNothingWithoutRowsOrColumn)
{
    const GridPtr none = TextGrid({});
    HGSortRows(none.get(), 0, true, nullptr);
    const GridPtr newRow = TextGrid({ "x" }, HGS_NEWROW);
    HGSortRows(newRow.get(), 0, true, nullptr);
    const GridPtr grid = TextGrid({ "b", "a" });
    HGSortRows(grid.get(), 2, true, nullptr);
    HGSortRows(grid.get(), -1, true, nullptr);
    HGSortRows(nullptr, 0, true, nullptr);
    EXPECT_EQ((Texts{ "b", "a" }), ColumnTexts(grid.get(), 0));
}

TEST(SortRows, GoesByTheColumnsOwnValuesUnderAMap)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b") }, HGS_COLMAP, 3);
    for (int row = 0; row < 3; row++) {
        SetCell<LONG>(grid.get(), 0, row, row);
        SetCell<LONG>(grid.get(), 1, row, 10 - row);
    }
    ASSERT_EQ(1, HGMoveFld(grid.get(), 0, 1)); // b a, stored a b
    HGSortRows(grid.get(), 0, true, nullptr);
    for (int row = 0; row < 3; row++) {
        EXPECT_EQ(8 + row, CellOf<LONG>(grid.get(), 0, row)) << row;
        EXPECT_EQ(2 - row, CellOf<LONG>(grid.get(), 1, row)) << row;
    }
}

TEST(SortRows, OfATypeWithoutAnOrderDoesNothing)
{
    const GridPtr grid = TextGrid({ "b", "a" });
    HGGetField(grid.get(), 0)->cClass = 'x';
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ((Texts{ "b", "a" }), ColumnTexts(grid.get(), 0));
}

TEST(SortRows, KeepsFlagsAndDataOfEachRowTogether)
{
    const GridPtr grid = TextGrid({ "b", "a" });
    HGSetNodeFlags(HGRowNode(grid.get(), 0), HGR_DIRTY);
    StoreAs<WORD>(FlagAt(grid.get(), 0, 0), 0x11);
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ(HGR_DIRTY, HGNodeFlags(HGRowNode(grid.get(), 1)));
    EXPECT_EQ(0x11, LoadAs<WORD>(FlagAt(grid.get(), 0, 1)));
    EXPECT_EQ(0, LoadAs<WORD>(FlagAt(grid.get(), 0, 0)));
}

TEST(SortRows, OfCodesWithoutACellControlGoesByTheStoredBytes)
{
    const GridPtr grid = EmptyGrid();
    HGAddFld(grid.get(), HGFieldCreate("a", HFF_CODE, 50, 50, 'n', 'l', 'n', 'l', 0, 'l', 0, "", 0));
    AddRows(grid.get(), 3);
    for (int row = 0; row < 3; row++) {
        SetCell<LONG>(grid.get(), 0, row, 3 - row);
    }
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ((std::vector<LONG>{ 1, 2, 3 }), RowNumbers(grid.get(), 0));
}

TEST(SortRows, OfCodesShorterThanTheirDataStaysInTheRow)
{
    const GridPtr grid = EmptyGrid();
    HGAddFld(grid.get(), HGFieldCreate("a", HFF_CODE, 50, 50, 'n', 'd', 'n', 'b', 0, 'e', 0, "", 0));
    AddRows(grid.get(), 3);
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ(3, HGRowCount(grid.get()));
}

TEST(SortRows, WithoutMemoryGivesTheSameOrder)
{
    const Texts texts = { "d", "b", "a", "c", "a" };
    for (int n = 0; n <= 2; n++) {
        const GridPtr grid = TextGrid(texts);
        Words         words = { 0, 1, 2, 3, 4 };
        FailAllocation(n);
        HGSortRows(grid.get(), 0, true, words.data());
        FailAllocation(0);
        EXPECT_EQ((std::vector<LONG>{ 2, 4, 1, 3, 0 }), RowNumbers(grid.get())) << n;
        EXPECT_EQ((Words{ 2, 4, 1, 3, 0 }), words) << n;
    }
}

TEST(SortRows, ManyRowsTakeNoSquareOfSteps)
{
    constexpr int count = 30000;
    const GridPtr grid = GridOf({ Number("a"), Number("row") });
    std::mt19937  random(1);
    for (LONG row = 0; row < count; row++) {
        BYTE data[12] = {};
        StoreAs<LONG>(data, static_cast<LONG>(random() % 1000));
        StoreAs<LONG>(data + 4, row);
        HLListAppend(grid->pRows, data);
    }
    HGSortRows(grid.get(), 0, true, nullptr);
    LONG lastKey = -1;
    LONG lastRow = -1;
    for (int row = 0; row < count; row++) {
        const LONG key = CellOf<LONG>(grid.get(), 0, row);
        const LONG place = CellOf<LONG>(grid.get(), 1, row);
        ASSERT_TRUE(key > lastKey || (key == lastKey && place > lastRow)) << row;
        lastKey = key;
        lastRow = place;
    }
}

struct SortCase {
    const char* name;
    char        dataClass;
    char        dataType;
    WORD        size;
    void (*fill)(BYTE* cell, std::mt19937& random);
};

void FillText(BYTE* cell, std::mt19937& random)
{
    const char* const texts[] = { "a", "A", "b", "B", "", "ab", "aB", "c" };
    _fstrnzcpy(reinterpret_cast<char*>(cell), texts[random() % 8], 4);
}

void FillNumber(BYTE* cell, std::mt19937& random)
{
    StoreAs<LONG>(cell, static_cast<LONG>(random() % 10) - 5);
}

void FillDouble(BYTE* cell, std::mt19937& random)
{
    StoreAs<double>(cell, static_cast<double>(random() % 10) - 4.5);
}

// Some of the values don't equal themselves.
void FillBrokenDouble(BYTE* cell, std::mt19937& random)
{
    const bool broken = random() % 5 == 0;
    StoreAs<double>(cell, broken ? std::numeric_limits<double>::quiet_NaN() : static_cast<double>(random() % 10));
}

class SortAgainstSteps : public testing::TestWithParam<SortCase> {};

TEST_P(SortAgainstSteps, GivesTheirRowsWordsAndCursor)
{
    const SortCase& sort = GetParam();
    std::mt19937    random(7);
    for (int round = 0; round < 300; round++) {
        const DWORD   style = random() % 2 ? HGS_NEWROW : 0;
        const bool    ascending = random() % 2 != 0;
        const int     rows = static_cast<int>(random() % 24);
        const GridPtr grid = GridOf({ Number("row"), AnyField("a", sort.dataClass, sort.dataType, sort.size) }, style, rows);
        Words         words;
        for (LONG row = 0; row < rows; row++) {
            SetCell<LONG>(grid.get(), 0, row, row);
            sort.fill(CellAt(grid.get(), 1, row), random);
            words.push_back(static_cast<DWORD>(random()));
        }
        const GridPtr copy(HGridDup(grid.get()));
        Words         copyWords = words;
        if (rows) {
            const int cursor = static_cast<int>(random() % static_cast<unsigned>(rows));
            HGRowNode(grid.get(), cursor);
            HGRowNode(copy.get(), cursor);
        }
        HGSortRows(grid.get(), 1, ascending, words.data());
        SortBySwapping(copy.get(), 1, ascending, copyWords.data());
        ASSERT_EQ(RowNumbers(copy.get(), 0), RowNumbers(grid.get(), 0)) << round;
        ASSERT_EQ(copyWords, words) << round;
        ASSERT_EQ(copy->pRows->iCursor, grid->pRows->iCursor) << round;
        ASSERT_EQ(CursorPlace(copy.get()), CursorPlace(grid.get())) << round;
        ASSERT_EQ(rows ? HLListGetItem(grid->pRows, rows - 1) : nullptr, grid->pRows->pTail) << round;
    }
}

constexpr SortCase sortCases[] = {
    { "Texts", 's', 's', 4, FillText },
    { "Numbers", 'n', 'l', 0, FillNumber },
    { "Doubles", 'n', 'd', 0, FillDouble },
    { "DoublesThatAreNone", 'n', 'd', 0, FillBrokenDouble },
};

INSTANTIATE_TEST_SUITE_P(Values, SortAgainstSteps, testing::ValuesIn(sortCases),
                         [](const testing::TestParamInfo<SortCase>& each) { return std::string(each.param.name); });

} // namespace
