// Growable arrays of elements of one size, and the empty memory shells of the interface.
// Elements are plain bytes to the array; what they mean is their owner's.
#include "foundation/memory.h"

#include <cstdint>

namespace {

constexpr DWORD growStep = 32; // Settled: growth goes by this step, whatever cGrow holds.

BYTE* ElementAt(const HArray* array, DWORD index)
{
    return array->pItems + static_cast<size_t>(index) * array->cbItem;
}

// A growth that may be under way while the caller's item still lies in the block that is given up.
struct Growth {
    BYTE* oldItems = nullptr; // to be freed once the item was taken
    Growth() = default;
    ~Growth() { HBlockFree(oldItems); }
    Growth(const Growth&) = delete;
    Growth& operator=(const Growth&) = delete;
};

// Makes room for count elements. 0, or -1 if it cannot be made.
int HAReserve(HArray* array, uint64_t count, Growth* growth)
{
    if (count <= array->cAlloc) {
        return 0;
    }
    // Bounded: a count whose bytes cannot be told in a size fails here instead of wrapping.
    const uint64_t excess = count - array->cAlloc - 1;
    const uint64_t room = uint64_t{array->cAlloc} + growStep + excess - excess % growStep;
    if (room > UINT32_MAX || room > SIZE_MAX / array->cbItem) {
        return -1;
    }
    const size_t bytes = static_cast<size_t>(room) * array->cbItem;
    BYTE* const  items = static_cast<BYTE*>(HBlockAlloc(bytes, array->fShared ? GMEM_SHARE : 0));
    if (!items) {
        return -1;
    }
    if (array->pItems) {
        std::memcpy(items, array->pItems, static_cast<size_t>(array->cAlloc) * array->cbItem);
    }
    growth->oldItems = array->pItems;
    array->pItems = items;
    array->cAlloc = static_cast<DWORD>(room);
    return 0;
}

void StoreElement(const HArray* array, DWORD index, const void* item)
{
    if (item) {
        std::memmove(ElementAt(array, index), item, array->cbItem);
        return;
    }
    std::memset(ElementAt(array, index), 0, array->cbItem);
}

} // namespace

void* WINAPI HMAlloc(DWORD, DWORD)
{
    return nullptr;
}

void* WINAPI HMFree(void*)
{
    return nullptr;
}

void* WINAPI HMReAlloc(void*, DWORD)
{
    return nullptr;
}

HArray* WINAPI HANew(DWORD cbItem, DWORD cInitial, DWORD cGrow, int shared)
{
    if (!cbItem) {
        return nullptr;
    }
    HArray* const array = static_cast<HArray*>(HBlockAlloc(sizeof(HArray), shared ? GMEM_SHARE : 0));
    if (array && HAInit(array, cbItem, cInitial, cGrow, shared) != 0) {
        HBlockFree(array);
        return nullptr;
    }
    return array;
}

int WINAPI HAInit(HArray* array, DWORD cbItem, DWORD cInitial, DWORD cGrow, int shared)
{
    if (!array) {
        return -1;
    }
    *array = {};
    if (!cbItem) {
        return -1;
    }
    array->cbItem = cbItem;
    array->cGrow = cGrow ? cGrow : growStep;
    array->fShared = shared ? 1 : 0;
    Growth growth;
    return HAReserve(array, cInitial, &growth);
}

int WINAPI HAEmpty(HArray* array)
{
    if (array) {
        HBlockFree(array->pItems);
        array->pItems = nullptr;
        array->cUsed = 0;
        array->cAlloc = 0;
    }
    return 0;
}

int WINAPI HAFree(HArray* array)
{
    HAEmpty(array);
    HBlockFree(array);
    return 0;
}

int WINAPI HAGet(HArray* array, DWORD index, void* out)
{
    const void* const item = HAGetPtr(array, index);
    if (!item || !out) {
        return -1;
    }
    std::memcpy(out, item, array->cbItem);
    return 0;
}

void* WINAPI HAGetPtr(HArray* array, DWORD index)
{
    return array && index < array->cUsed ? ElementAt(array, index) : nullptr;
}

int WINAPI HASet(HArray* array, DWORD index, const void* item)
{
    Growth growth;
    if (!array || HAReserve(array, uint64_t{index} + 1, &growth) != 0) {
        return -1;
    }
    StoreElement(array, index, item);
    if (index >= array->cUsed) {
        array->cUsed = index + 1;
    }
    return 0;
}

int WINAPI HAInsert(HArray* array, DWORD index, const void* item)
{
    if (!array || index >= array->cUsed) {
        return HASet(array, index, item);
    }
    Growth growth;
    if (HAReserve(array, uint64_t{array->cUsed} + 1, &growth) != 0) {
        return -1;
    }
    // Bounded: the gap belongs into the block that was just given up, and the item with it, so nothing is moved.
    if (!growth.oldItems) {
        std::memmove(ElementAt(array, index + 1), ElementAt(array, index),
                     static_cast<size_t>(array->cUsed - index) * array->cbItem);
        StoreElement(array, index, item);
    }
    array->cUsed++;
    return 0;
}

void* WINAPI HAPush(HArray* array, const void* item)
{
    return array && item && HASet(array, array->cUsed, item) == 0 ? HAPopRef(array) : nullptr;
}

void* WINAPI HAPop(HArray* array)
{
    void* const last = HAPopRef(array);
    if (last) {
        array->cUsed--;
    }
    return last;
}

void* WINAPI HAPopRef(HArray* array)
{
    return array && array->cUsed ? ElementAt(array, array->cUsed - 1) : nullptr;
}

int WINAPI HARemove(HArray* array, DWORD index)
{
    if (!array || index >= array->cUsed) {
        return -1;
    }
    array->cUsed--;
    std::memmove(ElementAt(array, index), ElementAt(array, index + 1),
                 static_cast<size_t>(array->cUsed - index) * array->cbItem);
    StoreElement(array, array->cUsed, nullptr);
    return 0;
}
