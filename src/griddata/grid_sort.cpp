// Sorting the rows of a grid by one column. The order is that of a bubble sort which swaps neighbours whenever their
// compare says so; here it is reached by sorting an index of the rows and linking the rows anew.
#include "foundation/merge_sort.h"
#include "griddata/cell_access.h"
#include "griddata/griddata_internal.h"
#include "griddata/item_buffer.h"
#include "typed/data_types.h"

#include <algorithm>

namespace {

struct SortJob {
    HGridData*     grid;
    HLLDATACOMPARE compare;
    int            dir;        // the answer of compare that swaps
    int            rows;       // rows that take part
    int            offset;     // of the value in a row's data
    HWND           translator; // the list that turns codes into data, or null
    DWORD*         parallel;   // moves with the rows, or null
};

struct SortEntry {
    const void* key;
    void*       node;
    int         row; // before sorting
    DWORD       word;
};

bool WantsSwap(const SortJob& job, const SortEntry& a, const SortEntry& b)
{
    return job.compare(a.key, b.key) == job.dir;
}

HWND Translator(const HGField* field)
{
    const bool coded = (field->cKind == 'd' || field->cKind == 'l') && (field->wFlags & HFF_CODE) && field->pCtl;
    const HWND child = coded ? field->pCtl->hWnd : nullptr;
    return child && IsWindow(child) ? child : nullptr;
}

// The data of the item with the row's code.
void Translate(const SortJob& job, int row, char* buffer)
{
    std::memset(buffer, 0, itemBufferSize);
    const BYTE* const data = HGRowData(job.grid, row);
    if (!data) {
        return;
    }
    const LRESULT index = SendMessageA(job.translator, HLM_FINDCODE, 0, reinterpret_cast<LPARAM>(data + job.offset));
    HGFetchItem(job.translator, index, buffer);
}

int CompareRows(const SortJob& job, int rowA, int rowB)
{
    if (!job.translator) {
        const void* const a = HGRowData(job.grid, rowA) + job.offset;
        return job.compare(a, HGRowData(job.grid, rowB) + job.offset);
    }
    char a[itemBufferSize];
    char b[itemBufferSize];
    Translate(job, rowA, a);
    Translate(job, rowB, b);
    return job.compare(a, b);
}

// The steps as they are, for want of memory.
void BubbleRows(const SortJob& job)
{
    for (int last = job.rows - 1; last >= 0; last--) {
        for (int i = 1; i <= last; i++) {
            if (CompareRows(job, i - 1, i) != job.dir) {
                continue;
            }
            HGMoveRow(job.grid, i, i - 1);
            if (job.parallel) {
                std::swap(job.parallel[i], job.parallel[i - 1]);
            }
        }
    }
}

// The same steps on the index. True if the last compare swapped.
bool BubbleEntries(const SortJob& job, SortEntry* entries)
{
    bool swapped = false;
    for (int last = job.rows - 1; last > 0; last--) {
        for (int i = 1; i <= last; i++) {
            swapped = WantsSwap(job, entries[i - 1], entries[i]);
            if (swapped) {
                std::swap(entries[i], entries[i - 1]);
            }
        }
    }
    return swapped;
}

// A value that doesn't equal itself stands above and below all others, and only the steps themselves tell where
// such values end.
bool IsOrdered(const SortJob& job, const SortEntry* entries)
{
    for (int i = 0; i < job.rows; i++) {
        if (job.compare(entries[i].key, entries[i].key) != 0) {
            return false;
        }
    }
    return true;
}

// keys: a buffer for each row where codes are translated, else null. False if the rows changed meanwhile.
bool FillEntries(const SortJob& job, SortEntry* entries, char* keys)
{
    const int count = HGRowCount(job.grid);
    for (int row = 0; keys && row < job.rows; row++) {
        Translate(job, row, keys + static_cast<size_t>(row) * itemBufferSize);
    }
    if (HGRowCount(job.grid) != count) {
        return false;
    }
    for (int row = 0; row < job.rows; row++) {
        void* const       node = HGRowNode(job.grid, row);
        const void* const key = keys ? static_cast<const void*>(keys + static_cast<size_t>(row) * itemBufferSize)
                                     : HGNodeData(node) + job.offset;
        entries[row] = { key, node, row, job.parallel ? job.parallel[row] : 0 };
    }
    return true;
}

// The rows in the order of the entries; rows that took no part stay behind them.
void RelinkRows(const SortJob& job, const SortEntry* entries)
{
    HLList* const rows = job.grid->pRows;
    void* const   last = entries[job.rows - 1].node;
    void* const   rest = job.rows < rows->cItems ? HGRowNode(job.grid, job.rows) : nullptr;
    rows->pHead = entries[0].node;
    for (int i = 1; i < job.rows; i++) {
        HSetNodeLink(entries[i - 1].node, entries[i].node);
    }
    rows->pTail = rest ? rows->pTail : last;
    HSetNodeLink(last, rest ? rest : rows->pHead);
    HSetNodeLink(rows->pTail, rows->pHead);
    for (int i = 0; job.parallel && i < job.rows; i++) {
        job.parallel[i] = entries[i].word;
    }
}

// The cursor where the last compare left it, or the move that followed it.
void PlaceCursor(HLList* rows, bool swapped)
{
    rows->pCursor = swapped ? rows->pTail : HNodeLink(rows->pHead);
    rows->iCursor = swapped ? rows->cItems - 1 : 1;
}

// False without memory for the index.
bool SortByIndex(const SortJob& job)
{
    const size_t     count = static_cast<size_t>(job.rows);
    SortEntry* const entries = static_cast<SortEntry*>(HBlockAlloc(2 * count * sizeof(SortEntry)));
    char* const      keys = job.translator ? static_cast<char*>(HBlockAlloc(count * itemBufferSize)) : nullptr;
    const bool       hasRoom = entries && (keys || !job.translator);
    if (hasRoom && FillEntries(job, entries, keys)) {
        bool swapped;
        if (IsOrdered(job, entries)) {
            HMergeSort(entries, entries + count, job.rows,
                       [&job](const SortEntry& a, const SortEntry& b) { return WantsSwap(job, a, b); });
            // The lowest row moves up one place in each round, so it is swapped in the last one if it came last.
            swapped = entries[0].row == job.rows - 1;
        } else {
            swapped = BubbleEntries(job, entries);
        }
        RelinkRows(job, entries);
        PlaceCursor(job.grid->pRows, swapped);
    }
    HBlockFree(keys);
    HBlockFree(entries);
    return hasRoom;
}

} // namespace

void HGSortRows(HGridData* grid, int col, bool ascending, DWORD* parallel)
{
    const HGField* const field = HGGetField(grid, col);
    // Bounded: a column that reaches past the rows has no values to compare.
    if (!field || !HGPlaceFits(grid, field->nOffset, HGCellSize(field))) {
        return;
    }
    const int rows = HGRowCount(grid) - (grid->dwStyle & HGS_NEWROW ? 1 : 0);
    const SortJob job = { grid,           GetDataCompare(field->cClass, field->cType), ascending ? 1 : -1, rows,
                          field->nOffset, Translator(field),                           parallel };
    if (rows > 1 && job.compare && !SortByIndex(job)) {
        BubbleRows(job);
    }
}
