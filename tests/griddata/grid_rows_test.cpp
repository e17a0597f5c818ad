// Rows as blocks: other sizes, bytes that move in all of them, copies of one row, and want of memory half-way.
#include "griddata/grid_maker.h"

namespace {

using Bytes = std::vector<BYTE>;

// Rows of eight bytes, 10 * row + place.
GridPtr ByteGrid(int rows = 3)
{
    GridPtr grid = GridOf({ Text("a", 6) }, 0, rows);
    for (int row = 0; row < rows; row++) {
        for (int i = 0; i < 8; i++) {
            HGRowData(grid.get(), row)[i] = static_cast<BYTE>(10 * row + i);
        }
    }
    return grid;
}

TEST(SetRowSize, WithoutRowsOnlyNotesTheSize)
{
    const GridPtr grid = EmptyGrid();
    EXPECT_EQ(1, HGSetRowSize(grid.get(), 40));
    EXPECT_EQ(40, grid->pRows->cbItem);
    EXPECT_EQ(0, HGSetRowSize(nullptr, 40));
    EXPECT_EQ(0, HGSetRowSize(grid.get(), -1));
}

TEST(SetRowSize, KeepsTheBytesAndTheFlagsOfRows)
{
    for (int rows = 1; rows <= 3; rows++) {
        const GridPtr grid = ByteGrid(rows);
        HGSetNodeFlags(HGRowNode(grid.get(), rows - 1), HGR_SELECTED);
        EXPECT_EQ(1, HGSetRowSize(grid.get(), 10));
        EXPECT_EQ(10, grid->pRows->cbItem);
        HLListGetItem(grid->pRows, -1);
        const int first = 10 * (rows - 1);
        Bytes     expected;
        for (int i = 0; i < 8; i++) {
            expected.push_back(static_cast<BYTE>(first + i));
        }
        expected.insert(expected.end(), 2, 0);
        EXPECT_EQ(expected, RowBytes(grid.get(), rows - 1)) << rows;
        EXPECT_EQ(HGR_SELECTED, HGNodeFlags(HGRowNode(grid.get(), rows - 1))) << rows;
        EXPECT_EQ(1, HGSetRowSize(grid.get(), 2));
        HLListGetItem(grid->pRows, -1);
        EXPECT_EQ((Bytes{ static_cast<BYTE>(first), static_cast<BYTE>(first + 1) }), RowBytes(grid.get(), rows - 1));
    }
}

TEST(SetRowSize, MovesTheCursorToTheTailUnderItsOldIndex)
{
    const GridPtr grid = ByteGrid();
    HGRowNode(grid.get(), 1);
    HGSetRowSize(grid.get(), 20);
    EXPECT_EQ(grid->pRows->pTail, grid->pRows->pCursor);
    EXPECT_EQ(1, grid->pRows->iCursor);
}

TEST(SetRowSize, KeepsTheRingClosed)
{
    const GridPtr grid = ByteGrid();
    HGSetRowSize(grid.get(), 20);
    void* node = grid->pRows->pHead;
    for (int i = 0; i < 2; i++) {
        node = HNodeLink(node);
    }
    EXPECT_EQ(grid->pRows->pTail, node);
    EXPECT_EQ(grid->pRows->pHead, HNodeLink(node));
}

TEST(SetRowSize, WithoutMemoryKeepsTheOldSizeAndEveryRow)
{
    for (const int size : { 40, 3 }) {
        for (int n = 1; n <= 3; n++) {
            const GridPtr grid = ByteGrid();
            HGRowNode(grid.get(), 2);
            FailAllocation(n);
            EXPECT_EQ(0, HGSetRowSize(grid.get(), size)) << n;
            FailAllocation(0);
            EXPECT_EQ(8, grid->pRows->cbItem) << n;
            for (int row = 2; row >= 0; row--) {
                EXPECT_LE(rowHeadSize + 8u, BlockSize(HGRowNode(grid.get(), row))) << n << ' ' << row;
                EXPECT_EQ(10 * row, HGRowData(grid.get(), row)[0]) << n << ' ' << row;
            }
        }
    }
}

TEST(SetRowSize, ThatShrinksWithoutMemoryLeavesNoRowTooShort)
{
    for (int n = 1; n <= 3; n++) {
        const GridPtr grid = GridOf({ Text("a", 200) }, 0, 3);
        FailAllocation(n);
        EXPECT_EQ(0, HGSetRowSize(grid.get(), 3)) << n;
        FailAllocation(0);
        for (int row = 0; row < 3; row++) {
            EXPECT_LE(rowHeadSize + 202u, BlockSize(HGRowNode(grid.get(), row))) << n << ' ' << row;
        }
    }
}

TEST(ShiftRowBytes, MovesBytesAndZeroesTheGapBehindThem)
{
    struct {
        int   dest;
        int   src;
        int   length;
        Bytes expected;
    } const rows[] = {
        { 3, 1, 5, { 0, 0, 0, 1, 2, 3, 4, 5 } },
        { 1, 3, 5, { 0, 3, 4, 5, 6, 7, 6, 7 } },
        { 2, 2, 3, { 0, 1, 2, 3, 4, 5, 6, 7 } },
        { 4, 0, 0, { 0, 1, 2, 3, 4, 5, 6, 7 } },
        { 5, 1, 2, { 0, 0, 0, 0, 0, 1, 2, 7 } },
    };
    for (const auto& row : rows) {
        const GridPtr grid = ByteGrid();
        HGShiftRowBytes(grid.get(), row.dest, row.src, row.length);
        EXPECT_EQ(row.expected, RowBytes(grid.get(), 0)) << row.dest << ' ' << row.src << ' ' << row.length;
        EXPECT_NE(RowBytes(grid.get(), 0), RowBytes(grid.get(), 2));
    }
}

TEST(ShiftRowBytes, LeavesRowsAloneForBytesOutsideThem)
{
    struct {
        int dest;
        int src;
        int length;
    } const rows[] = { { 4, 0, 5 }, { 0, 4, 5 }, { -1, 0, 2 }, { 0, -1, 2 }, { 0, 1, -1 }, { 0, 1, 0x7FFFFFFF } };
    for (const auto& row : rows) {
        const GridPtr grid = ByteGrid();
        const Bytes   before = RowBytes(grid.get(), 1);
        HGShiftRowBytes(grid.get(), row.dest, row.src, row.length);
        HGRotateRowBytes(grid.get(), row.dest, row.src, row.length);
        EXPECT_EQ(before, RowBytes(grid.get(), 1)) << row.dest << ' ' << row.src << ' ' << row.length;
    }
    HGShiftRowBytes(nullptr, 0, 1, 1);
    HGRotateRowBytes(nullptr, 0, 1, 1);
}

TEST(RotateRowBytes, TakesBytesOutAndPutsThemInFrontOfThePlace)
{
    struct {
        int   dest;
        int   src;
        int   length;
        Bytes expected;
    } const rows[] = {
        { 8, 0, 2, { 2, 3, 4, 5, 6, 7, 0, 1 } }, { 5, 1, 2, { 0, 3, 4, 1, 2, 5, 6, 7 } },
        { 0, 6, 2, { 6, 7, 0, 1, 2, 3, 4, 5 } }, { 2, 5, 1, { 0, 1, 5, 2, 3, 4, 6, 7 } },
        { 4, 4, 2, { 0, 1, 2, 3, 4, 5, 6, 7 } }, { 3, 1, 2, { 0, 1, 2, 3, 4, 5, 6, 7 } },
        { 5, 1, 0, { 0, 1, 2, 3, 4, 5, 6, 7 } },
    };
    for (const auto& row : rows) {
        const GridPtr grid = ByteGrid();
        HGRotateRowBytes(grid.get(), row.dest, row.src, row.length);
        EXPECT_EQ(row.expected, RowBytes(grid.get(), 0)) << row.dest << ' ' << row.src << ' ' << row.length;
    }
}

TEST(BlankRow, IsOfTheRowsSizeOrNothing)
{
    const GridPtr grid = ByteGrid();
    void* const   blank = HGBlankRow(grid.get());
    EXPECT_EQ(8u, BlockSize(blank));
    HBlockFree(blank);
    EXPECT_EQ(nullptr, HGBlankRow(EmptyGrid().get()));
    EXPECT_EQ(nullptr, HGBlankRow(nullptr));
}

TEST(CopyRow, LeavesTheFlagWordsBehind)
{
    const GridPtr grid = ByteGrid();
    Bytes         buffer(8, 0xEE);
    EXPECT_EQ(1, HGCopyRow(grid.get(), 1, buffer.data(), false));
    EXPECT_EQ((Bytes{ 10, 11, 12, 13, 14, 15, 0xEE, 0xEE }), buffer);
    EXPECT_EQ(1, HGCopyRow(grid.get(), 2, buffer.data(), true));
    EXPECT_EQ((Bytes{ 10, 11, 12, 13, 14, 15, 26, 27 }), RowBytes(grid.get(), 2));
}

TEST(CopyRow, NeedsABufferAndARow)
{
    const GridPtr grid = ByteGrid();
    Bytes         buffer(8);
    EXPECT_EQ(0, HGCopyRow(grid.get(), 0, nullptr, false));
    EXPECT_EQ(0, HGCopyRow(grid.get(), 3, buffer.data(), false));
    EXPECT_EQ(0, HGCopyRow(grid.get(), -1, buffer.data(), true));
    EXPECT_EQ(0, HGCopyRow(nullptr, 0, buffer.data(), true));
}

TEST(MoveRow, IsAMoveInTheList)
{
    const GridPtr grid = ByteGrid();
    EXPECT_EQ(0, HGMoveRow(grid.get(), 2, 0));
    EXPECT_EQ(20, HGRowData(grid.get(), 0)[0]);
    EXPECT_EQ(-1, HGMoveRow(grid.get(), 2, 3));
    EXPECT_EQ(0, HGMoveRow(nullptr, 2, 0));
}

TEST(RowNodes, AreZeroUnlessTheyAreGivenData)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b") });
    const Bytes   data = { 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12 };
    HLListAppend(grid->pRows, nullptr);
    HLListAppend(grid->pRows, data.data());
    EXPECT_EQ(Bytes(12), RowBytes(grid.get(), 0));
    EXPECT_EQ(data, RowBytes(grid.get(), 1));
    EXPECT_EQ(0, HGNodeFlags(HGRowNode(grid.get(), 1)));
}

TEST(RowNodes, EndATextThatFillsItsRow)
{
    const GridPtr grid = GridOf({ Text("a", 4) }, 0, 1);
    std::memset(HGRowData(grid.get(), 0), 'x', 6);
    EXPECT_EQ("xxxxxx", TextAt(grid.get(), 0, 0));
    HGSetRowSize(grid.get(), 9);
    std::memset(HGRowData(grid.get(), 0), 'x', 9);
    EXPECT_EQ("xxxxxxxxx", TextAt(grid.get(), 0, 0));
}

} // namespace
