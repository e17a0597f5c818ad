// The row surgery: rows of another size, bytes that move inside every row, and copies of one row.
// It knows sizes and offsets only; what stands there is known to grid_columns.cpp.
#include "griddata/griddata_internal.h"

#include <algorithm>

namespace {

// A row without its cell flags.
size_t ValueBytes(const HGridData* grid)
{
    return static_cast<size_t>(std::max(HGRowSize(grid) - 2 * HGColCount(grid), 0));
}

// A row in a new block. Bounded: one that shrinks keeps its length, so that a pass that stops half-way for want of
// memory leaves no row shorter than the row size says.
void* MoveToNewBlock(void* node, int oldSize, int newSize)
{
    const size_t longest = static_cast<size_t>(std::max(oldSize, newSize));
    void* const  moved = HBlockAlloc(rowHeadSize + longest + rowGuard);
    if (moved) {
        std::memcpy(moved, node, rowHeadSize + static_cast<size_t>(std::min(oldSize, newSize)));
        HBlockFree(node);
    }
    return moved;
}

// Replaces every row behind the head. The last row, or null if the memory ran out.
void* MoveFollowers(HLList* rows, int newSize)
{
    void* node = rows->pHead;
    while (HNodeLink(node) != rows->pHead) {
        void* const next = MoveToNewBlock(HNodeLink(node), rows->cbItem, newSize);
        if (!next) {
            return nullptr;
        }
        HSetNodeLink(node, next);
        node = next;
    }
    return node;
}

// Runs an action on the data of every row. It follows the links, so the cursor stays.
template <typename Action>
void ForEachRow(HGridData* grid, Action action)
{
    void*     node = grid->pRows->pHead;
    const int count = grid->pRows->cItems;
    for (int row = 0; row < count; row++) {
        action(HGNodeData(node));
        node = HNodeLink(node);
    }
}

// Bounded: bytes outside the row's data are never moved.
bool LiesInRow(const HGridData* grid, int start, int length)
{
    return start >= 0 && length > 0 && start <= HGRowSize(grid) - length;
}

} // namespace

int HGSetRowSize(HGridData* grid, int newSize)
{
    HLList* const rows = grid ? grid->pRows : nullptr;
    if (!rows || newSize < 0) {
        return 0;
    }
    if (rows->cItems) {
        void* const head = MoveToNewBlock(rows->pHead, rows->cbItem, newSize);
        if (!head) {
            return 0;
        }
        void* const tail = rows->cItems == 1 ? head : rows->pTail;
        rows->pHead = head;
        rows->pTail = tail;
        HSetNodeLink(tail, head);
        void* const last = MoveFollowers(rows, newSize);
        // Bounded: the node under the cursor may be gone, so after a failure the cursor returns to the head.
        rows->pCursor = last ? last : head;
        if (!last) {
            rows->iCursor = 0;
            return 0;
        }
        // Settled: the cursor goes to the tail, and its index stays as it stood.
        rows->pTail = last;
    }
    rows->cbItem = newSize;
    return 1;
}

void HGShiftRowBytes(HGridData* grid, int dest, int src, int length)
{
    if (!grid || !LiesInRow(grid, dest, length) || !LiesInRow(grid, src, length)) {
        return;
    }
    ForEachRow(grid, [=](BYTE* data) {
        std::memmove(data + dest, data + src, static_cast<size_t>(length));
        if (dest > src) {
            std::memset(data + src, 0, static_cast<size_t>(dest - src));
        }
    });
}

void HGRotateRowBytes(HGridData* grid, int dest, int src, int length)
{
    const int place = src < dest ? dest - length : dest;
    if (!grid || !LiesInRow(grid, place, length) || !LiesInRow(grid, src, length)) {
        return;
    }
    // Rotating in place needs no block for the saved bytes, so it cannot fail.
    const int first = std::min(src, place);
    const int middle = src < place ? src + length : src;
    const int last = std::max(src, place) + length;
    ForEachRow(grid, [=](BYTE* data) { std::rotate(data + first, data + middle, data + last); });
}

void* HGBlankRow(HGridData* grid)
{
    const int size = HGRowSize(grid);
    return size ? HBlockAlloc(static_cast<size_t>(size)) : nullptr;
}

void* HGRowOfValues(HGridData* grid, const void* values)
{
    void* const row = HGBlankRow(grid);
    if (row) {
        std::memcpy(row, values, ValueBytes(grid));
    }
    return row;
}

int HGCopyRow(HGridData* grid, int row, void* buffer, bool toRow)
{
    BYTE* const data = buffer ? HGRowData(grid, row) : nullptr;
    if (!data) {
        return 0;
    }
    if (toRow) {
        std::memcpy(data, buffer, ValueBytes(grid));
    } else {
        std::memcpy(buffer, data, ValueBytes(grid));
    }
    return 1;
}

int HGMoveRow(HGridData* grid, int from, int to)
{
    return grid ? HLListMove(grid->pRows, from, to) : 0;
}
