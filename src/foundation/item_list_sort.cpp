// Adding many items to a sorted list at once. One after the other, each item walks the list from its head; here they
// are appended first and sorted by an index, with the order that the walks would have given.
#include "foundation/item_list.h"

#include "foundation/memory.h"
#include "foundation/merge_sort.h"

namespace {

constexpr int none = -1;

// A node, and the one that stays directly behind it wherever it goes. Entries lie in the order of addition.
struct Entry {
    void* node;
    void* followerNode;
    int   behind;
};

struct SortJob {
    HLList* list;
    HLList* follower; // or null
    Entry*  entries;
    int*    movable; // indexes of the entries that are sorted
    int     movableCount;
    int     front; // the entry that stays at the head, or none
};

// As HLListFindPlace compares an item with a node.
int Order(const SortJob& job, int item, int node)
{
    HLList* const list = job.list;
    return list->pfnCompare(list, list->pfnItem(list, job.entries[item].node), job.entries[node].node);
}

void FillEntries(const SortJob& job)
{
    void* node = job.list->pHead;
    void* followerNode = job.follower ? job.follower->pHead : nullptr;
    for (int i = 0; i < job.list->cItems; i++) {
        job.entries[i] = { node, followerNode, none };
        node = HNodeLink(node);
        followerNode = followerNode ? HNodeLink(followerNode) : nullptr;
    }
}

// An item above the tail is appended, any other goes in front of the first node that isn't below it. Such a node is
// above all before it, so only the items that were inserted and the appended ones that were the highest so far are
// sorted. An appended one that wasn't is bound to the tail that it found: a value behind a higher one, which an
// unsorted list may have, or behind a not-a-number, which compares above everything and below nothing, itself included.
void BindEntries(SortJob* job, int first)
{
    int tail = none;
    int highest = none;
    for (int i = 0; i < job->list->cItems; i++) {
        const bool appended = i < first || tail == none || Order(*job, i, tail) > 0;
        const bool isHighest = appended && Order(*job, i, i) == 0 && (highest == none || Order(*job, i, highest) > 0);
        if (!appended || isHighest) {
            job->movable[job->movableCount++] = i;
        } else {
            int* const place = tail == none ? &job->front : &job->entries[tail].behind;
            *place = i;
        }
        highest = isHighest ? i : highest;
        tail = appended ? i : tail;
    }
}

void StartRing(HLList* list)
{
    list->pHead = nullptr;
    list->pTail = nullptr;
}

void AppendNode(HLList* list, void* node)
{
    if (list->pTail) {
        HSetNodeLink(list->pTail, node);
    } else {
        list->pHead = node;
    }
    list->pTail = node;
}

// Closes the ring, with the cursor where an insertion leaves it.
void CloseRing(HLList* list)
{
    HSetNodeLink(list->pTail, list->pHead);
    list->pCursor = list->pHead;
    list->iCursor = 0;
}

void AppendBound(const SortJob& job, int entry)
{
    for (int i = entry; i != none; i = job.entries[i].behind) {
        AppendNode(job.list, job.entries[i].node);
        if (job.follower) {
            AppendNode(job.follower, job.entries[i].followerNode);
        }
    }
}

void Relink(const SortJob& job)
{
    StartRing(job.list);
    if (job.follower) {
        StartRing(job.follower);
    }
    AppendBound(job, job.front);
    for (int i = 0; i < job.movableCount; i++) {
        AppendBound(job, job.movable[i]);
    }
    CloseRing(job.list);
    if (job.follower) {
        CloseRing(job.follower);
    }
}

// Whether each node behind one is above the one in front of it, so that adding it leaves it where it is.
bool AscendsBehind(HLList* list, void* node)
{
    while (node != list->pTail) {
        void* const next = HNodeLink(node);
        if (list->pfnCompare(list, list->pfnItem(list, next), node) <= 0) {
            return false;
        }
        node = next;
    }
    return true;
}

// False without memory for the index.
bool SortByIndex(HLList* list, int first, HLList* follower)
{
    const size_t count = static_cast<size_t>(list->cItems);
    Entry* const entries = static_cast<Entry*>(HBlockAlloc(count * sizeof(Entry)));
    int* const   numbers = static_cast<int*>(HBlockAlloc(2 * count * sizeof(int)));
    const bool   hasRoom = entries && numbers;
    if (hasRoom) {
        SortJob job = { list, follower, entries, numbers, 0, none };
        FillEntries(job);
        BindEntries(&job, first);
        // Of equals, the one that was added later comes first.
        HMergeSort(job.movable, numbers + count, job.movableCount,
                   [&job](int earlier, int later) { return Order(job, later, earlier) <= 0; });
        Relink(job);
    }
    HBlockFree(numbers);
    HBlockFree(entries);
    return hasRoom;
}

// Takes the nodes from index first on out of a list; they end with null.
void* CutFrom(HLList* list, int first)
{
    void* const last = first ? HLListGetItem(list, first - 1) : nullptr;
    void* const rest = last ? HNodeLink(last) : list->pHead;
    HSetNodeLink(list->pTail, nullptr);
    if (last) {
        HSetNodeLink(last, list->pHead);
    } else {
        list->pHead = nullptr;
        list->wFlags |= HLL_EMPTY;
    }
    list->pTail = last;
    list->pCursor = list->pHead;
    list->iCursor = 0;
    list->cItems = first;
    return rest;
}

// The steps as they are, for a single item or for want of memory.
void AddOneByOne(HLList* list, int first, HLList* follower)
{
    void* node = CutFrom(list, first);
    void* followerNode = follower ? CutFrom(follower, first) : nullptr;
    while (node) {
        void* const next = HNodeLink(node);
        const int   place = HLListInsertNode(list, HLListFindPlace(list, list->pfnItem(list, node)), node);
        node = next;
        if (followerNode) {
            void* const nextFollower = HNodeLink(followerNode);
            HLListInsertNode(follower, place, followerNode);
            followerNode = nextFollower;
        }
    }
}

} // namespace

void HLListSortAdded(HLList* list, int first, void* before, HLList* follower)
{
    const int count = HLListCount(list);
    if (first < 0 || first >= count || !(list->wFlags & HLL_SORTED)) {
        return;
    }
    if (AscendsBehind(list, before ? before : list->pHead)) {
        return;
    }
    const bool isSingle = first + 1 == count;
    if (isSingle || !SortByIndex(list, first, follower)) {
        AddOneByOne(list, first, follower);
    }
}
