// The life of a data list, and its items one by one: finding, reading and setting them, and their text.
// What adds and removes items stands in data_list_items.cpp.
#include "datalist/datalist_internal.h"
#include "foundation/item_list.h"
#include "foundation/memory.h"
#include "typed/data_types.h"

namespace {

bool MakeLists(DataList* dl)
{
    const SortMode mode = SortModeOf(dl);
    dl->pValues = CreateValueList(dl->cClass, dl->cType, mode == SortMode::ByData);
    if (HasCodes(dl)) {
        dl->pCodes = CreateValueList(dl->cClass2, dl->cType2, mode == SortMode::ByCode);
    }
    return dl->pValues && (dl->pCodes || !HasCodes(dl));
}

// Index -1 is the last item, as everywhere in item lists.
void* ValueAt(HLList* list, int index)
{
    void* const node = HLListGetItem(list, index);
    return node ? HNodePayload(node) : nullptr;
}

int FindIn(HLList* list, int start, const void* key)
{
    int index = -1;
    return HLListFind(list, key, start, &index) ? index : -1;
}

int SizeIn(HLList* list, int index)
{
    if (!list || list->cbItem >= 0) {
        return list ? list->cbItem : 0;
    }
    const void* const text = ValueAt(list, index);
    return text ? static_cast<int>(std::strlen(static_cast<const char*>(text))) : 0;
}

// Bounded: a text that is longer than the old one gets a node of its own, instead of running over the old node.
int StoreLongerText(HLList* list, int index, const void* text)
{
    const int place = index < 0 ? list->cItems - 1 : index;
    return HLListInsert(list, place, text) < 0 ? 0 : HLListRemove(list, place + 1);
}

} // namespace

HLList* CreateValueList(char dataClass, char dataType, bool sorted)
{
    return HLListCreate(GetDataSize(dataClass, dataType), nullptr, nullptr, GetDataCompare(dataClass, dataType),
                        nullptr, nullptr, sorted ? 1 : 0);
}

DataList* WINAPI HDLCreate(int sortMode, char dataClass, char dataType, char class2, char type2, const char* format)
{
    DataList* const dl = HRecordAlloc<DataList>();
    if (dl && !HDLInit(dl, sortMode, dataClass, dataType, class2, type2, format)) {
        HBlockFree(dl);
        return nullptr;
    }
    return dl;
}

int WINAPI HDLInit(DataList* dl, int sortMode, char dataClass, char dataType, char class2, char type2,
                   const char* format)
{
    if (!dl) {
        return 0;
    }
    *dl = {};
    if (!ValidType(dataClass, dataType)) {
        return 0;
    }
    const bool hasCodes = ValidType(class2, type2) != 0;
    dl->wFlags = static_cast<WORD>((sortMode & 3) << 1 | (hasCodes ? HDL_HASCODE : 0));
    dl->cClass = dataClass;
    dl->cType = dataType;
    dl->cClass2 = hasCodes ? class2 : 0;
    dl->cType2 = hasCodes ? type2 : 0;
    dl->pszFormat = hstrdup(format);
    if (!MakeLists(dl) || (format && !dl->pszFormat)) {
        HDLDestroy(dl);
        return 0;
    }
    return 1;
}

int WINAPI HDLDestroy(DataList* dl)
{
    if (!dl) {
        return 0;
    }
    HLListDestroy(dl->pValues);
    HLListDestroy(dl->pCodes);
    HBlockFree(dl->pszFormat);
    *dl = {};
    return 1;
}

int WINAPI HDLEmpty(DataList* dl)
{
    if (!dl) {
        return 0;
    }
    HLListEmpty(dl->pValues);
    HLListEmpty(dl->pCodes);
    return 1;
}

int WINAPI HDLFindData(DataList* dl, int start, const void* data)
{
    return dl ? FindIn(dl->pValues, start, data) : -1;
}

int WINAPI HDLFindCode(DataList* dl, int start, const void* code)
{
    return dl && HasCodes(dl) ? FindIn(dl->pCodes, start, code) : -1;
}

int WINAPI HDLGetData(DataList* dl, int index, void* out)
{
    // Settled: an empty text counts as nothing copied.
    return dl && HCopyValue(out, ValueAt(dl->pValues, index), dl->cClass, dl->cType, -1) > 0 ? 1 : 0;
}

int WINAPI HDLGetCode(DataList* dl, int index, void* out)
{
    return dl && HCopyValue(out, ValueAt(dl->pCodes, index), dl->cClass2, dl->cType2, -1) > 0 ? 1 : 0;
}

void* WINAPI HDLGetDataPtr(DataList* dl, int index)
{
    return dl ? ValueAt(dl->pValues, index) : nullptr;
}

void* WINAPI HDLGetCodePtr(DataList* dl, int index)
{
    return dl ? ValueAt(dl->pCodes, index) : nullptr;
}

int WINAPI HDLGetDataSize(DataList* dl, int index)
{
    return dl ? SizeIn(dl->pValues, index) : 0;
}

int WINAPI HDLGetCodeSize(DataList* dl, int index)
{
    return dl ? SizeIn(dl->pCodes, index) : 0;
}

int WINAPI HDLSetCode(DataList* dl, int index, const void* code)
{
    void* const value = dl && code && SortModeOf(dl) != SortMode::ByCode ? ValueAt(dl->pCodes, index) : nullptr;
    if (!value) {
        return 0;
    }
    const bool isText = dl->pCodes->cbItem < 0;
    if (isText && std::strlen(static_cast<const char*>(code)) > std::strlen(static_cast<const char*>(value))) {
        return StoreLongerText(dl->pCodes, index, code);
    }
    HCopyValue(value, code, dl->cClass2, dl->cType2, -1);
    return 1;
}

int WINAPI HDLGetFormat(DataList* dl, char* out, int size)
{
    return _fstrnzcpy(out, dl ? dl->pszFormat : nullptr, size);
}

int WINAPI HDLSetFormat(DataList* dl, const char* format)
{
    char* const copy = dl && dl->cClass != 's' ? hstrdup(format) : nullptr;
    if (!copy) {
        return 0;
    }
    HBlockFree(dl->pszFormat);
    dl->pszFormat = copy;
    return 1;
}

int WINAPI HDLFormatItem(DataList* dl, int index, char* out, int outSize, int* outNegative, int editForm)
{
    _fstrnzcpy(out, nullptr, outSize < 0 ? 0 : outSize);
    if (outNegative) {
        *outNegative = 0;
    }
    const void* const value = HDLGetDataPtr(dl, index);
    return value ? FormatData(value, dl->cClass, dl->cType, dl->pszFormat, out, outSize, outNegative, editForm) : 0;
}
