// Searching, copying and comparing item lists. The walks follow the links, so that the cursor stays where the lookup
// of the first node left it.
#include "foundation/item_list.h"

void* WINAPI HLListFind(HLList* list, const void* key, int start, int* outIndex)
{
    if (outIndex) {
        *outIndex = 0;
    }
    const int count = HLListCount(list);
    if (!count || !key) {
        return nullptr;
    }
    int   index = (start < 0 ? 0 : start) % count;
    void* node = HLListGetItem(list, index);
    for (int visited = 0; visited < count;) {
        const int order = list->pfnCompare(list, key, node);
        if (order == 0) {
            if (outIndex) {
                *outIndex = index;
            }
            return node;
        }
        // In a sorted list nothing equal follows behind a node above the key: what is left lies at the start.
        const bool skipRest = order < 0 && list->wFlags & HLL_SORTED;
        visited += skipRest ? count - index : 1;
        node = skipRest ? list->pHead : HNodeLink(node);
        index = skipRest || index + 1 == count ? 0 : index + 1;
    }
    return nullptr;
}

int WINAPI HLListFindPlace(HLList* list, const void* item)
{
    const int count = HLListCount(list);
    if (!count || !item) {
        return 0;
    }
    if (list->pfnCompare(list, item, list->pTail) > 0) {
        return count;
    }
    void* node = list->pHead;
    for (int index = 0; index < count; index++) {
        if (list->pfnCompare(list, item, node) <= 0) {
            return index;
        }
        node = HNodeLink(node);
    }
    return count;
}

int WINAPI HLListCopy(HLList* dest, HLList* src)
{
    if (!src || !dest || !dest->pfnItem) {
        return 0;
    }
    // The count is taken first: a list that is copied into itself grows while it is read.
    const int count = src->cItems;
    for (int i = 0; i < count; i++) {
        HLListAppend(dest, dest->pfnItem(src, HLListGetItem(src, i)));
    }
    return 1;
}

int WINAPI HLListCompare(HLList* a, HLList* b)
{
    const int countA = HLListCount(a);
    const int countB = HLListCount(b);
    for (int i = 0; i < countA && i < countB; i++) {
        // Settled: pfnCompare gets a node where it usually gets a key.
        const int order = a->pfnCompare(a, HLListGetItem(a, i), HLListGetItem(b, i));
        if (order != 0) {
            return order;
        }
    }
    return (countA > countB) - (countA < countB);
}
