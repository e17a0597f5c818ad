// Item lists: the default callbacks, the life of a list, and every way to add, take away and move a node.
// Of a node only the link is touched here; searching and comparing stand in item_list_find.cpp, and adding many items
// to a sorted list at once in item_list_sort.cpp.
#include "foundation/item_list.h"

#include "foundation/memory.h"

namespace {

size_t PayloadSize(const HLList* list, const void* item)
{
    if (list->cbItem >= 0) {
        return static_cast<size_t>(list->cbItem);
    }
    return item ? std::strlen(static_cast<const char*>(item)) + 1 : 1;
}

void* CALLBACK AllocNode(HLList* list, const void* item)
{
    const size_t size = PayloadSize(list, item);
    void* const  node = HBlockAlloc(sizeof(void*) + size);
    if (node && item) {
        std::memcpy(HNodePayload(node), item, size);
    }
    return node;
}

int CALLBACK CompareNode(HLList* list, const void* key, void* node)
{
    if (!key) {
        return -1;
    }
    const void* const payload = HNodePayload(node);
    if (list->pfnDataCompare) {
        return list->pfnDataCompare(key, payload);
    }
    if (list->cbItem == -1) {
        return HCompareNoCase(static_cast<const char*>(key), static_cast<const char*>(payload));
    }
    return std::memcmp(key, payload, static_cast<size_t>(list->cbItem));
}

int CALLBACK FreeNode(HLList*, void* node)
{
    HBlockFree(node);
    return node ? 1 : 0;
}

void* CALLBACK NodeItem(HLList*, void* node)
{
    return node ? HNodePayload(node) : nullptr;
}

void CursorToHead(HLList* list)
{
    list->pCursor = list->pHead;
    list->iCursor = 0;
}

// Links a node behind the tail; the cursor stays, unless it is the first node.
void LinkAtEnd(HLList* list, void* node)
{
    if (list->pTail) {
        HSetNodeLink(list->pTail, node);
    } else {
        list->pHead = node;
        CursorToHead(list);
    }
    list->pTail = node;
    HSetNodeLink(node, list->pHead);
    list->wFlags &= static_cast<WORD>(~HLL_EMPTY);
    list->cItems++;
}

void LinkBehind(HLList* list, void* before, void* node)
{
    HSetNodeLink(node, HNodeLink(before));
    HSetNodeLink(before, node);
    if (before == list->pTail) {
        list->pHead = node;
    }
}

// Moves the node behind beforeFrom directly behind the node at index to, which lies further on.
void MoveForward(HLList* list, int from, void* beforeFrom, void* beforeTo)
{
    void* const moved = HNodeLink(beforeFrom);
    void* const target = HNodeLink(beforeTo);
    if (from == 0) {
        list->pHead = HNodeLink(moved);
    }
    if (HNodeLink(target) != moved) {
        HSetNodeLink(beforeFrom, HNodeLink(moved));
        HSetNodeLink(moved, HNodeLink(target));
        HSetNodeLink(target, moved);
    }
}

// Moves the node behind beforeFrom directly in front of the node at index to, which lies further up.
void MoveBack(HLList* list, int to, void* beforeFrom, void* beforeTo)
{
    void* const moved = HNodeLink(beforeFrom);
    void* const target = HNodeLink(beforeTo);
    if (to == 0) {
        list->pHead = moved;
    }
    if (HNodeLink(moved) != target) {
        HSetNodeLink(beforeFrom, HNodeLink(moved));
        HSetNodeLink(beforeTo, moved);
        HSetNodeLink(moved, target);
    }
}

} // namespace

HLList* WINAPI HLListCreate(int cbItem, HLLALLOC pfnAlloc, HLLCOMPARE pfnCompare, HLLDATACOMPARE pfnDataCompare,
                            HLLFREE pfnFree, HLLITEM pfnItem, int sorted)
{
    HLList* const list = cbItem < -1 ? nullptr : HRecordAlloc<HLList>();
    if (!list) {
        return nullptr;
    }
    list->cbItem = cbItem;
    list->pfnAlloc = pfnAlloc ? pfnAlloc : AllocNode;
    list->pfnCompare = pfnCompare ? pfnCompare : CompareNode;
    list->pfnFree = pfnFree ? pfnFree : FreeNode;
    list->pfnItem = pfnItem ? pfnItem : NodeItem;
    list->pfnDataCompare = pfnDataCompare;
    list->wFlags = static_cast<WORD>((sorted & 1 ? HLL_SORTED : 0) | HLL_EMPTY);
    return list;
}

HLList* WINAPI HLListDup(HLList* list)
{
    if (!list) {
        return nullptr;
    }
    HLList* const copy = HLListCreate(list->cbItem, list->pfnAlloc, list->pfnCompare, list->pfnDataCompare,
                                      list->pfnFree, list->pfnItem, list->wFlags & HLL_SORTED);
    HLListCopy(copy, list);
    return copy;
}

int WINAPI HLListDestroy(HLList* list)
{
    if (!HLListEmpty(list)) {
        return 0;
    }
    HBlockFree(list);
    return 1;
}

int WINAPI HLListEmpty(HLList* list)
{
    if (!list) {
        return 0;
    }
    // Bounded: the list is empty before the first node goes, so a pfnFree that looks into it meets no freed node.
    void* node = list->pHead;
    if (node) {
        HSetNodeLink(list->pTail, nullptr);
    }
    list->pHead = nullptr;
    list->pTail = nullptr;
    list->pCursor = nullptr;
    list->cItems = 0;
    list->iCursor = 0;
    list->wFlags |= HLL_EMPTY;
    while (node) {
        void* const next = HNodeLink(node);
        list->pfnFree(list, node);
        node = next;
    }
    return 1;
}

int WINAPI HLListAdd(HLList* list, const void* item)
{
    if (list && list->wFlags & HLL_SORTED) {
        return HLListInsert(list, HLListFindPlace(list, item), item);
    }
    return HLListAppend(list, item);
}

int WINAPI HLListAppend(HLList* list, const void* item)
{
    if (!list) {
        return -1;
    }
    void* const node = list->pfnAlloc(list, item);
    if (node) {
        LinkAtEnd(list, node);
    }
    // Settled: without a node this is the index of the old last one.
    return list->cItems - 1;
}

int WINAPI HLListInsert(HLList* list, int index, const void* item)
{
    void* const node = list ? list->pfnAlloc(list, item) : nullptr;
    return node ? HLListInsertNode(list, index, node) : -1;
}

int HLListInsertNode(HLList* list, int index, void* node)
{
    if (index < 0 || index >= list->cItems) {
        LinkAtEnd(list, node);
        return list->cItems - 1;
    }
    void* const    before = HLListGetItem(list, index - 1);
    const unsigned changes = nListChanges;
    LinkBehind(list, before, node);
    list->cItems++;
    list->wFlags &= static_cast<WORD>(~HLL_EMPTY);
    CursorToHead(list);
    HLListKeepTrail(list, changes, index);
    return index;
}

int WINAPI HLListRemove(HLList* list, int index)
{
    if (!list || index < 0 || index >= list->cItems) {
        return 0;
    }
    void* const    before = HLListGetItem(list, index - 1);
    void* const    node = HNodeLink(before);
    const unsigned changes = nListChanges;
    HNoteListChange();
    if (before == node) {
        list->pHead = nullptr;
        list->pTail = nullptr;
    } else {
        HSetNodeLink(before, HNodeLink(node));
        list->pHead = node == list->pHead ? HNodeLink(node) : list->pHead;
        list->pTail = node == list->pTail ? before : list->pTail;
    }
    list->cItems--;
    CursorToHead(list);
    list->wFlags = static_cast<WORD>(list->cItems ? list->wFlags & ~HLL_EMPTY : list->wFlags | HLL_EMPTY);
    HLListKeepTrail(list, changes, index);
    list->pfnFree(list, node);
    return 1;
}

void* WINAPI HLListGetItem(HLList* list, int index)
{
    if (!list || index < -1 || index >= list->cItems) {
        return nullptr;
    }
    if (index == -1) {
        list->pCursor = list->pTail;
        list->iCursor = list->cItems - 1;
        return list->pCursor;
    }
    if (index < list->iCursor) {
        CursorToHead(list);
    }
    for (; list->iCursor < index; list->iCursor++) {
        list->pCursor = HNodeLink(list->pCursor);
    }
    return list->pCursor;
}

int WINAPI HLListMove(HLList* list, int from, int to)
{
    const int count = HLListCount(list);
    if (from == to || from < 0 || to < 0 || from >= count || to >= count) {
        return -1;
    }
    void* const beforeFrom = HLListGetItem(list, from - 1);
    void* const beforeTo = HLListGetItem(list, to - 1);
    list->iCursor = count; // the next lookup restarts at the head
    if (from < to) {
        MoveForward(list, from, beforeFrom, beforeTo);
    } else {
        MoveBack(list, to, beforeFrom, beforeTo);
    }
    HNoteListChange(); // a move right round the ring changes no link
    list->pTail = HLListGetItem(list, count - 1);
    return to;
}
