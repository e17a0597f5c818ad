// What the nodes of a grid's three lists are: columns by pointer, rows as flat blocks, map entries as numbers.
#include "griddata/griddata_internal.h"

namespace {

void* CALLBACK AllocFieldNode(HLList*, const void* item)
{
    void* const node = item ? HBlockAlloc(2 * sizeof(void*)) : nullptr;
    if (node) {
        StoreAs<const void*>(HNodePayload(node), item);
    }
    return node;
}

// By caption, so that a search finds a column by its caption.
int CALLBACK CompareFieldNode(HLList*, const void* key, void* node)
{
    const HGField* const field = HGNodeField(node);
    return HCompareNoCase(static_cast<const char*>(key), field ? field->pszTitle : nullptr);
}

int CALLBACK FreeFieldNode(HLList*, void* node)
{
    if (!node) {
        return 0;
    }
    HGFieldDestroy(HGNodeField(node));
    HBlockFree(node);
    return 1;
}

void* CALLBACK FieldNodeItem(HLList*, void* node)
{
    return HGFldDup(HGNodeField(node));
}

void* CALLBACK AllocRowNode(HLList* list, const void* item)
{
    const size_t size = static_cast<size_t>(list->cbItem);
    void* const  node = HBlockAlloc(rowHeadSize + size + rowGuard);
    if (node && item) {
        std::memcpy(HGNodeData(node), item, size);
    }
    return node;
}

int CALLBACK CompareRowNode(HLList* list, const void* key, void* node)
{
    return list->pfnDataCompare ? list->pfnDataCompare(key, HGNodeData(node)) : 0;
}

void* CALLBACK RowNodeItem(HLList*, void* node)
{
    return HGNodeData(node);
}

// Bounded: an entry of two bytes has room for the four that its compare and a copy into a longer map read.
void* CALLBACK AllocMapNode(HLList* list, const void* item)
{
    void* const node = HBlockAlloc(sizeof(void*) + sizeof(LONG));
    if (node && item) {
        std::memcpy(HNodePayload(node), item, static_cast<size_t>(list->cbItem));
    }
    return node;
}

int CALLBACK CompareMapEntries(const void* a, const void* b)
{
    const LONG left = LoadAs<LONG>(a);
    const LONG right = LoadAs<LONG>(b);
    return (left > right) - (left < right);
}

} // namespace

HLList* HGCreateFieldList()
{
    return HLListCreate(sizeof(void*), AllocFieldNode, CompareFieldNode, nullptr, FreeFieldNode, FieldNodeItem, 0);
}

HLList* HGCreateRowList()
{
    return HLListCreate(0, AllocRowNode, CompareRowNode, nullptr, nullptr, RowNodeItem, 0);
}

HLList* HGCreateMapList(int cbItem)
{
    return HLListCreate(cbItem, AllocMapNode, nullptr, CompareMapEntries, nullptr, nullptr, 0);
}
