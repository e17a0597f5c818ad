// The stash: one list of grid definitions that a host keeps under a key and a short name, and one word for it.
// The library itself puts nothing there.
#include "foundation/item_list.h"
#include "foundation/memory.h"

namespace {

HLList* gStash;
DWORD   gFieldStash;

// The caller's block becomes the node.
void* CALLBACK AllocEntry(HLList*, const void* item)
{
    return const_cast<void*>(item);
}

int CALLBACK CompareEntry(HLList*, const void* key, void* node)
{
    const HGStash* const a = static_cast<const HGStash*>(key);
    const HGStash* const b = static_cast<const HGStash*>(node);
    if (a->dwKey != b->dwKey) {
        return a->dwKey < b->dwKey ? -1 : 1;
    }
    return HCompareNoCase(a->szName, b->szName);
}

int CALLBACK FreeEntry(HLList*, void* node)
{
    if (!node) {
        return 0;
    }
    HGridDestroy(static_cast<HGStash*>(node)->pGrid);
    HBlockFree(node);
    return 1;
}

void* CALLBACK EntryItem(HLList*, void* node)
{
    return node ? HGridDup(static_cast<HGStash*>(node)->pGrid) : nullptr;
}

} // namespace

HLList* WINAPI HGCreateStash(void)
{
    gStash = HLListCreate(0, AllocEntry, CompareEntry, nullptr, FreeEntry, EntryItem, 0);
    return gStash;
}

HLList* WINAPI HGGetStash(void)
{
    return gStash;
}

int WINAPI StashGrid(HGridData* grid, DWORD key, const char* name, const OFSTRUCT* ofs)
{
    HGStash* const entry = gStash ? HRecordAlloc<HGStash>() : nullptr;
    if (!entry) {
        return -1;
    }
    entry->dwKey = key;
    entry->pGrid = grid;
    _fstrnzcpy(entry->szName, name, sizeof entry->szName);
    if (ofs) {
        std::memcpy(entry->ofs, ofs, sizeof entry->ofs);
    }
    return HLListAppend(gStash, entry);
}

HGStash* WINAPI GetStashed(DWORD key, const char* name, int* outIndex)
{
    HGStash wanted = {};
    wanted.dwKey = key;
    _fstrnzcpy(wanted.szName, name, sizeof wanted.szName);
    return static_cast<HGStash*>(HLListFind(gStash, &wanted, 0, outIndex));
}

int WINAPI RemoveStashed(DWORD key, const char* name)
{
    int index = 0;
    return GetStashed(key, name, &index) ? HLListRemove(gStash, index) : 0;
}

DWORD WINAPI HGStashFld(DWORD value)
{
    gFieldStash = value;
    return gFieldStash;
}

DWORD WINAPI HGGetFldStash(void)
{
    return gFieldStash;
}
