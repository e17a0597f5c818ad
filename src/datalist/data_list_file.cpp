// The form of a data list in a stream: flags, format, a block of values and perhaps a block of codes. A list comes back
// whole or not at all.
#include "datalist/datalist_internal.h"
#include "foundation/item_list.h"
#include "foundation/memory.h"
#include "foundation/stream.h"
#include "typed/data_types.h"

namespace {

constexpr int itemBufferSize = 256; // a text with its terminator

void SaveBlock(Stream* stream, const HLList* list, char dataClass, char dataType)
{
    const int count = HLListCount(list);
    SWrite(stream, &dataClass, sizeof dataClass);
    SWrite(stream, &dataType, sizeof dataType);
    SWrite(stream, &count, sizeof count);
    void* node = list ? list->pHead : nullptr;
    for (int i = 0; i < count; i++) {
        if (list->cbItem < 0) {
            SWriteString(stream, static_cast<const char*>(HNodePayload(node)));
        } else {
            SWrite(stream, HNodePayload(node), list->cbItem);
        }
        node = HNodeLink(node);
    }
}

// Bounded: a text that doesn't fit into the buffer isn't one of a valid file.
bool ReadTextItem(Stream* stream, char* buffer)
{
    WORD length = 0;
    if (!HReadExactly(stream, &length, sizeof length) || length >= itemBufferSize) {
        return false;
    }
    buffer[length] = 0;
    return !length || HReadExactly(stream, buffer, length);
}

bool LoadBlock(Stream* stream, char* outClass, char* outType, bool sorted, HLList** outList)
{
    int count = 0;
    if (!HReadExactly(stream, outClass, sizeof *outClass) || !HReadExactly(stream, outType, sizeof *outType) ||
        !HReadExactly(stream, &count, sizeof count) || !ValidType(*outClass, *outType)) {
        return false;
    }
    *outList = CreateValueList(*outClass, *outType, sorted);
    return *outList && ReadItems(stream, *outList, count);
}

bool LoadLists(Stream* stream, DataList* dl)
{
    const SortMode mode = SortModeOf(dl);
    if (!LoadBlock(stream, &dl->cClass, &dl->cType, mode == SortMode::ByData, &dl->pValues)) {
        return false;
    }
    if (!HasCodes(dl)) {
        return true;
    }
    // A value without a code, or the other way round, is no item.
    return LoadBlock(stream, &dl->cClass2, &dl->cType2, mode == SortMode::ByCode, &dl->pCodes) &&
           dl->pCodes->cItems == dl->pValues->cItems;
}

// The same bytes, and equal in the order of the list: a not-a-number isn't even equal to itself.
bool AreAlike(HLList* list, void* a, void* b, char dataClass, char dataType)
{
    const void* const value = HNodePayload(a);
    return !HValuesDiffer(value, HNodePayload(b), dataClass, dataType) && list->pfnCompare(list, value, b) == 0;
}

// How many nodes from node on are alike, count at the most. *outNext: the node behind them.
int CountAlike(HLList* list, void* node, int count, char dataClass, char dataType, void** outNext)
{
    int   alike = 1;
    void* next = HNodeLink(node);
    while (alike < count && AreAlike(list, node, next, dataClass, dataType)) {
        next = HNodeLink(next);
        alike++;
    }
    *outNext = next;
    return alike;
}

// Turns the count nodes behind a node round. The node that is their last one then.
void* TurnRound(HLList* list, void* before, int count)
{
    void* const first = HNodeLink(before);
    void*       last = first;
    void*       next = HNodeLink(first);
    for (int i = 1; i < count; i++) {
        void* const node = next;
        next = HNodeLink(node);
        HSetNodeLink(node, last);
        last = node;
    }
    const bool isWhole = count == list->cItems;
    HSetNodeLink(first, isWhole ? last : next);
    if (!isWhole) {
        HSetNodeLink(before, last);
    }
    list->pHead = list->pHead == first ? last : list->pHead;
    list->pTail = list->pTail == last ? first : list->pTail;
    return first;
}

// Adding turns equal items round. Where they can't be told apart, their partners stay in the order that they have in
// the file, so that a list doesn't change by being saved and loaded.
void KeepOrderOfPartners(const ListPair& pair, char dataClass, char dataType)
{
    void* node = pair.leader->pHead;
    void* before = pair.follower->pTail;
    for (int left = pair.leader->cItems; left > 0;) {
        const int alike = CountAlike(pair.leader, node, left, dataClass, dataType, &node);
        before = TurnRound(pair.follower, before, alike);
        left -= alike;
    }
    pair.follower->pCursor = pair.follower->pHead;
    pair.follower->iCursor = 0;
}

// Puts the items where adding one after the other would have put them. Values and codes that belong together in the
// file stay together.
void SortLists(DataList* dl)
{
    const ListPair pair = PairOf(dl);
    if (!pair.leader || SortModeOf(dl) == SortMode::None) {
        return;
    }
    HLListSortAdded(pair.leader, 0, nullptr, pair.follower);
    if (pair.follower) {
        KeepOrderOfPartners(pair, pair.leaderHasCodes ? dl->cClass2 : dl->cClass,
                            pair.leaderHasCodes ? dl->cType2 : dl->cType);
    }
}

} // namespace

bool ReadItems(Stream* stream, HLList* list, int count)
{
    char buffer[itemBufferSize];
    for (int i = 0; i < count; i++) {
        const bool isWhole =
            list->cbItem < 0 ? ReadTextItem(stream, buffer) : HReadExactly(stream, buffer, list->cbItem);
        if (!isWhole || HLListInsert(list, list->cItems, buffer) < 0) {
            return false;
        }
    }
    return true;
}

int WINAPI HDLLoad(DataList* dl, Stream* stream)
{
    if (!dl) {
        return -1;
    }
    *dl = {};
    if (!HReadExactly(stream, &dl->wFlags, sizeof dl->wFlags) || !HReadText(stream, &dl->pszFormat) ||
        !LoadLists(stream, dl)) {
        HDLDestroy(dl);
        return -1;
    }
    SortLists(dl);
    return 0;
}

int WINAPI HDLSave(DataList* dl, Stream* stream)
{
    if (!dl) {
        return -1;
    }
    SWrite(stream, &dl->wFlags, sizeof dl->wFlags);
    SWriteString(stream, dl->pszFormat);
    SaveBlock(stream, dl->pValues, dl->cClass, dl->cType);
    if (HasCodes(dl)) {
        SaveBlock(stream, dl->pCodes, dl->cClass2, dl->cType2);
    }
    return 0;
}
