// Loads any bytes as a data list. What comes of it has to be a list that can be searched, changed and printed, and that
// is the same after saving and loading it again, but for the order of equal items.
#include "fuzz_input.h"

#include "foundation/item_list.h"
#include "typed/data_types.h"

#include <cstdint>
#include <vector>

namespace {

using Bytes = std::vector<BYTE>;

Stream* StreamOf(const void* bytes, size_t size)
{
    Stream* const stream = SNewMem(static_cast<int>(size), 16);
    SWrite(stream, bytes, static_cast<int>(size));
    SSeek(stream, 0);
    return stream;
}

Bytes SavedBytes(DataList* dl)
{
    Stream* const stream = SNewMem(0, 4096);
    Require(HDLSave(dl, stream) == 0);
    const BYTE* const first = static_cast<const BYTE*>(SGetPtr(stream));
    const Bytes       bytes(first, first + SGetSize(stream));
    SClose(stream);
    return bytes;
}

bool IsZero(const DataList& dl)
{
    const DataList zeros = {};
    return std::memcmp(&dl, &zeros, sizeof dl) == 0;
}

bool HasCodes(const DataList& dl)
{
    return (dl.wFlags & HDL_HASCODE) != 0;
}

bool IsSorted(const HLList* list)
{
    return list && (list->wFlags & HLL_SORTED);
}

void CheckRing(const HLList* list, int count)
{
    Require(list->cItems == count);
    const void* node = list->pHead;
    for (int i = 0; i < count; i++) {
        Require((node == list->pTail) == (i == count - 1));
        node = HNodeLink(node);
    }
    Require(node == list->pHead);
}

// A sorted list is what adding its items one by one in the order of the file gives, so the order of an unsorted list
// from the same file is needed.
void CheckOrder(DataList* sorted, const Bytes& file)
{
    const bool    ofCodes = !IsSorted(sorted->pValues);
    HLList* const list = ofCodes ? sorted->pCodes : sorted->pValues;
    Bytes         inOrder = file;
    inOrder[0] = static_cast<BYTE>(inOrder[0] & HDL_HASCODE);
    Stream* const stream = StreamOf(inOrder.data(), inOrder.size());
    DataList      unsorted;
    Require(HDLLoad(&unsorted, stream) == 0);
    SClose(stream);
    HLList* const from = ofCodes ? unsorted.pCodes : unsorted.pValues;
    HLList* const steps = HLListCreate(list->cbItem, nullptr, nullptr, list->pfnDataCompare, nullptr, nullptr, 1);
    for (int i = 0; i < from->cItems; i++) {
        HLListAdd(steps, HNodePayload(HLListGetItem(from, i)));
    }
    const char dataClass = ofCodes ? sorted->cClass2 : sorted->cClass;
    const char dataType = ofCodes ? sorted->cType2 : sorted->cType;
    for (int i = 0; i < list->cItems; i++) {
        const void* const expected = HNodePayload(HLListGetItem(steps, i));
        Require(!HValuesDiffer(expected, HNodePayload(HLListGetItem(list, i)), dataClass, dataType));
    }
    HLListDestroy(steps);
    HDLDestroy(&unsorted);
}

void CheckSavedAgain(DataList* dl)
{
    const Bytes   bytes = SavedBytes(dl);
    Stream* const stream = StreamOf(bytes.data(), bytes.size());
    DataList      again;
    Require(HDLLoad(&again, stream) == 0);
    Require(SSeekRel(stream, 0) == static_cast<int>(bytes.size()));
    SClose(stream);
    const Bytes second = SavedBytes(&again);
    Require(second.size() == bytes.size());
    const bool isSorted = IsSorted(dl->pValues) || IsSorted(dl->pCodes);
    Require(isSorted || second == bytes);
    HDLDestroy(&again);
    // A file that ends early is refused.
    Stream* const cut = StreamOf(bytes.data(), bytes.size() - 1);
    Require(HDLLoad(&again, cut) == -1 && IsZero(again));
    SClose(cut);
}

// Reads each item into a buffer without a spare byte.
void ReadItems(DataList* dl)
{
    for (int i = 0; i < dl->pValues->cItems; i++) {
        FuzzBuffer data(static_cast<size_t>(HDLGetDataSize(dl, i)) + 1);
        FuzzBuffer text(64);
        int        negative = 0;
        HDLGetData(dl, i, data.Get());
        HDLFormatItem(dl, i, text.Get(), text.Size(), &negative, i % 2);
        text.Text();
        if (HasCodes(*dl)) {
            FuzzBuffer code(static_cast<size_t>(HDLGetCodeSize(dl, i)) + 1);
            HDLGetCode(dl, i, code.Get());
        }
    }
}

void ChangeItems(DataList* dl, int choice)
{
    const int count = dl->pValues->cItems;
    if (!count) {
        return;
    }
    const int index = choice % count;
    HDLFindData(dl, choice, HDLGetDataPtr(dl, index));
    HDLFindCode(dl, choice, HDLGetCodePtr(dl, index));
    HDLSetCode(dl, index, HDLGetCodePtr(dl, -1));
    HDLInsertItem(dl, index, HDLGetDataPtr(dl, -1), HDLGetCodePtr(dl, -1));
    HDLDeleteItem(dl, index);
    CheckRing(dl->pValues, dl->pValues->cItems);
    if (HasCodes(*dl)) {
        CheckRing(dl->pCodes, dl->pValues->cItems);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Stream* const stream = StreamOf(data, size);
    DataList      dl;
    const int     result = HDLLoad(&dl, stream);
    SClose(stream);
    if (result != 0) {
        Require(result == -1 && IsZero(dl));
        return 0;
    }
    CheckRing(dl.pValues, dl.pValues->cItems);
    if (HasCodes(dl)) {
        CheckRing(dl.pCodes, dl.pValues->cItems);
    }
    if (IsSorted(dl.pValues) || IsSorted(dl.pCodes)) {
        CheckOrder(&dl, Bytes(data, data + size));
    }
    CheckSavedAgain(&dl);
    ReadItems(&dl);
    ChangeItems(&dl, size ? data[size - 1] : 0);
    HDLDestroy(&dl);
    return 0;
}
