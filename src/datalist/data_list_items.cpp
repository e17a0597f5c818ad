// Items coming and going in both lists of a data list at once: the sorted one decides, and the other follows.
#include "datalist/datalist_internal.h"
#include "foundation/item_list.h"

namespace {

bool IsSorted(const HLList* list)
{
    return (list->wFlags & HLL_SORTED) != 0;
}

// findPlace: a sorted leader says where, whatever index is. Without memory for the one, the other goes too.
int InsertPair(const ListPair& pair, int index, bool findPlace, const void* data, const void* code)
{
    const void* const led = pair.leaderHasCodes ? code : data;
    const int         place = findPlace ? HLListAdd(pair.leader, led) : HLListInsert(pair.leader, index, led);
    if (place < 0 || !pair.follower) {
        return place;
    }
    if (HLListInsert(pair.follower, place, pair.leaderHasCodes ? data : code) < 0) {
        HLListRemove(pair.leader, place);
        return -1;
    }
    return place;
}

// Appends whatever the order is, up to the first item that has to be inserted by itself, or for which there is no
// memory. The number of the items that were taken.
int AppendRun(const ListPair& pair, int start, int count, HDLITEMAT itemAt, const void* context)
{
    for (int i = start; i < count; i++) {
        const void* data = nullptr;
        const void* code = nullptr;
        itemAt(context, i, &data, &code);
        const bool fits = data && (code || !pair.leaderHasCodes);
        if (!fits || InsertPair(pair, -1, false, data, code) < 0) {
            return i - start;
        }
    }
    return count - start;
}

int AddRun(const ListPair& pair, int start, int count, HDLITEMAT itemAt, const void* context)
{
    const int   first = pair.leader->cItems;
    void* const before = pair.leader->pTail;
    const int   taken = AppendRun(pair, start, count, itemAt, context);
    HLListSortAdded(pair.leader, first, before, pair.follower);
    return taken;
}

// 1 if it was taken.
int InsertOne(DataList* dl, int index, int i, HDLITEMAT itemAt, const void* context)
{
    const void* data = nullptr;
    const void* code = nullptr;
    itemAt(context, i, &data, &code);
    const int before = dl->pValues->cItems;
    if (index < 0 || SortModeOf(dl) != SortMode::None) {
        HDLInsertItem(dl, -1, data, code);
    } else {
        const KeptCursor values(dl->pValues, index + i);
        const KeptCursor codes(dl->pCodes, index + i);
        HDLInsertItem(dl, index + i, data, code);
    }
    return dl->pValues->cItems - before;
}

} // namespace

ListPair PairOf(const DataList* dl)
{
    switch (SortModeOf(dl)) {
    case SortMode::None:
    case SortMode::ByData: return { dl->pValues, HasCodes(dl) ? dl->pCodes : nullptr, false };
    case SortMode::ByCode: return { HasCodes(dl) ? dl->pCodes : nullptr, dl->pValues, true };
    case SortMode::Invalid: break;
    }
    return { nullptr, nullptr, false };
}

int WINAPI HDLInsertItem(DataList* dl, int index, const void* data, const void* code)
{
    if (!dl || !data) {
        return -1;
    }
    const ListPair pair = PairOf(dl);
    // Settled: a list that can't be sorted as it should takes nothing and says that it did.
    return pair.leader ? InsertPair(pair, index, SortModeOf(dl) != SortMode::None, data, code) : index;
}

int HDLInsertItems(DataList* dl, int index, int count, HDLITEMAT itemAt, const void* context)
{
    if (!dl || !dl->pValues) {
        return 0;
    }
    if (index >= dl->pValues->cItems) {
        index = -1; // they go to the end
    }
    const ListPair pair = PairOf(dl);
    const bool     inOneGo = pair.leader && IsSorted(pair.leader);
    int            added = 0;
    int            i = 0;
    while (i < count) {
        const int taken = inOneGo ? AddRun(pair, i, count, itemAt, context) : 0;
        added += taken;
        i += taken;
        if (i < count) {
            added += InsertOne(dl, index, i++, itemAt, context);
        }
    }
    return added;
}

int WINAPI HDLDeleteItem(DataList* dl, int index)
{
    const int removed = dl ? HLListRemove(dl->pValues, index) : 0;
    return removed && HasCodes(dl) ? HLListRemove(dl->pCodes, index) : removed;
}
