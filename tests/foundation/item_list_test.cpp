// Item lists, one behaviour a test. Random sequences against a model are in item_list_model_test.cpp.
#include "foundation/item_list.h"

#include "foundation/memory.h"
#include "support/guarded_memory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

int CALLBACK CompareInts(const void* a, const void* b)
{
    const int left = LoadAs<int>(a);
    const int right = LoadAs<int>(b);
    return (left > right) - (left < right);
}

std::vector<int> gCompared; // payloads that CountedCompare met

int CALLBACK CountedCompare(HLList*, const void* key, void* node)
{
    gCompared.push_back(LoadAs<int>(HNodePayload(node)));
    return CompareInts(key, HNodePayload(node));
}

int CALLBACK CompareNodes(HLList*, const void* a, void* b)
{
    return CompareInts(HNodePayload(const_cast<void*>(a)), HNodePayload(b)) * 7;
}

int gItemsAsked;

void* CALLBACK CountedItem(HLList*, void* node)
{
    gItemsAsked++;
    return HNodePayload(node);
}

HLLFREE gFreeNode;

int CALLBACK FreeOfAnEmptyList(HLList* list, void* node)
{
    EXPECT_EQ(nullptr, HLListGetItem(list, 0));
    return gFreeNode(list, node);
}

// One callback of each kind, told apart from the defaults by their addresses alone.
void* CALLBACK NoNode(HLList*, const void*)
{
    return nullptr;
}

int CALLBACK KeepNode(HLList*, void*)
{
    return 0;
}

HLList* CreateWithOwnCallbacks()
{
    return HLListCreate(8, NoNode, CountedCompare, CompareInts, KeepNode, CountedItem, 0);
}

void ExpectOwnCallbacks(const HLList* list)
{
    EXPECT_EQ(&NoNode, list->pfnAlloc);
    EXPECT_EQ(&CountedCompare, list->pfnCompare);
    EXPECT_EQ(&CompareInts, list->pfnDataCompare);
    EXPECT_EQ(&KeepNode, list->pfnFree);
    EXPECT_EQ(&CountedItem, list->pfnItem);
}

class ItemList : public testing::Test {
protected:
    void SetUp() override
    {
        liveBefore = LiveBlocks();
        gCompared.clear();
    }
    void TearDown() override
    {
        HLListDestroy(list);
        EXPECT_EQ(liveBefore, LiveBlocks());
    }
    void MakeTexts(const Texts& texts, int sorted = 0)
    {
        list = HLListCreate(-1, nullptr, nullptr, nullptr, nullptr, nullptr, sorted);
        for (const std::string& text : texts) {
            HLListAdd(list, text.c_str());
        }
    }
    void MakeInts(const std::vector<int>& values, int sorted = 0)
    {
        list = HLListCreate(sizeof(int), nullptr, CountedCompare, CompareInts, nullptr, nullptr, sorted);
        for (int value : values) {
            HLListAdd(list, &value);
        }
        gCompared.clear();
    }
    // From the links, so that the cursor stays.
    Texts All() const
    {
        Texts all;
        void* node = list->pHead;
        for (int i = 0; i < list->cItems; i++) {
            all.push_back(static_cast<const char*>(HNodePayload(node)));
            node = HNodeLink(node);
        }
        return all;
    }
    void ExpectRing() const
    {
        EXPECT_EQ(list->cItems == 0, (list->wFlags & HLL_EMPTY) != 0);
        EXPECT_EQ(list->cItems == 0, list->pHead == nullptr);
        EXPECT_EQ(list->cItems == 0, list->pTail == nullptr);
        EXPECT_EQ(list->cItems == 0, list->pCursor == nullptr);
        void* node = list->pTail;
        for (int i = 0; i < list->cItems; i++) {
            node = HNodeLink(node);
            EXPECT_EQ(i == 0, node == list->pHead);
        }
        EXPECT_EQ(list->pTail, node);
    }

    HLList* list = nullptr;
    int     liveBefore = 0;
};

TEST_F(ItemList, RefusesSizesBelowMinusOne)
{
    EXPECT_EQ(nullptr, HLListCreate(-2, nullptr, nullptr, nullptr, nullptr, nullptr, 0));
    for (int size : { -1, 0, 1 }) {
        HLList* const made = HLListCreate(size, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
        ASSERT_NE(nullptr, made) << size;
        EXPECT_EQ(size, made->cbItem);
        HLListDestroy(made);
    }
}

TEST_F(ItemList, IsCreatedEmptyWithDefaultsForNullCallbacks)
{
    list = HLListCreate(4, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    EXPECT_EQ(HLL_EMPTY, list->wFlags);
    EXPECT_NE(nullptr, list->pfnAlloc);
    EXPECT_NE(nullptr, list->pfnCompare);
    EXPECT_NE(nullptr, list->pfnFree);
    EXPECT_NE(nullptr, list->pfnItem);
    EXPECT_EQ(nullptr, list->pfnDataCompare);
    ExpectRing();
}

TEST_F(ItemList, KeepsEachCallbackThatItIsGiven)
{
    list = CreateWithOwnCallbacks();
    ExpectOwnCallbacks(list);
}

TEST_F(ItemList, TakesOnlyTheLowestBitOfSorted)
{
    list = HLListCreate(4, nullptr, nullptr, nullptr, nullptr, nullptr, 2);
    EXPECT_EQ(0, list->wFlags & HLL_SORTED);
    HLList* const sorted = HLListCreate(4, nullptr, nullptr, nullptr, nullptr, nullptr, 3);
    EXPECT_EQ(HLL_SORTED | HLL_EMPTY, sorted->wFlags);
    HLListDestroy(sorted);
}

TEST_F(ItemList, OfTextsComparesWithoutCase)
{
    MakeTexts({ "Alpha", "BETA" });
    int index = 9;
    EXPECT_EQ(HLListGetItem(list, 1), HLListFind(list, "beta", 0, &index));
    EXPECT_EQ(1, index);
}

TEST_F(ItemList, OfFixedSizeComparesBytes)
{
    list = HLListCreate(2, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    HLListAppend(list, "aA");
    HLListAppend(list, "aa");
    int index = 9;
    HLListFind(list, "aa", 0, &index);
    EXPECT_EQ(1, index);
    EXPECT_LT(0, list->pfnCompare(list, "aa", list->pHead));
    EXPECT_EQ(0, list->pfnCompare(list, "aA", list->pHead));
    EXPECT_GT(0, list->pfnCompare(list, "a0", list->pHead));
}

TEST_F(ItemList, DefaultCompareOfNoKeyIsBelow)
{
    MakeTexts({ "a" });
    EXPECT_EQ(-1, list->pfnCompare(list, nullptr, list->pHead));
}

TEST_F(ItemList, DefaultNodesHaveTheLengthOfTheirPayload)
{
    MakeTexts({ "abc" });
    EXPECT_EQ(sizeof(void*) + 4, BlockSize(list->pHead));
    HLListAppend(list, nullptr);
    EXPECT_EQ(sizeof(void*) + 1, BlockSize(list->pTail));
    EXPECT_STREQ("", static_cast<char*>(HNodePayload(list->pTail)));
    EXPECT_EQ(HNodePayload(list->pHead), list->pfnItem(list, list->pHead));
    EXPECT_EQ(nullptr, list->pfnItem(list, nullptr));
    EXPECT_EQ(0, list->pfnFree(list, nullptr));
}

TEST_F(ItemList, AppendKeepsTheCursor)
{
    MakeTexts({ "a", "b", "c" });
    HLListGetItem(list, 1);
    EXPECT_EQ(3, HLListAppend(list, "d"));
    EXPECT_EQ(1, list->iCursor);
    EXPECT_EQ(HNodeLink(list->pHead), list->pCursor);
    ExpectRing();
}

TEST_F(ItemList, AppendToAnEmptyListPutsTheCursorOnNodeZero)
{
    MakeTexts({});
    HLListGetItem(list, -1);
    EXPECT_EQ(0, HLListAppend(list, "a"));
    EXPECT_EQ(0, list->iCursor);
    EXPECT_EQ(list->pHead, list->pCursor);
}

TEST_F(ItemList, AppendWithoutMemoryGivesTheIndexOfTheOldLastNode)
{
    MakeTexts({ "a", "b" });
    FailAllocation(1);
    EXPECT_EQ(1, HLListAppend(list, "c"));
    FailAllocation(0);
    EXPECT_EQ((Texts{ "a", "b" }), All());
    HLListEmpty(list);
    FailAllocation(1);
    EXPECT_EQ(-1, HLListAppend(list, "c"));
    FailAllocation(0);
    ExpectRing();
}

TEST_F(ItemList, InsertAtTheCountAppendsAndKeepsTheCursor)
{
    MakeTexts({ "a", "b" });
    HLListGetItem(list, 1);
    EXPECT_EQ(2, HLListInsert(list, 2, "c"));
    EXPECT_EQ(1, list->iCursor);
    EXPECT_EQ((Texts{ "a", "b", "c" }), All());
}

TEST_F(ItemList, InsertAtALowerIndexReturnsTheCursorToTheHead)
{
    MakeTexts({ "a", "b" });
    HLListGetItem(list, 1);
    EXPECT_EQ(1, HLListInsert(list, 1, "c"));
    EXPECT_EQ(0, list->iCursor);
    EXPECT_EQ(list->pHead, list->pCursor);
    EXPECT_EQ((Texts{ "a", "c", "b" }), All());
    EXPECT_EQ(0, HLListInsert(list, 0, "d"));
    EXPECT_EQ((Texts{ "d", "a", "c", "b" }), All());
    ExpectRing();
}

TEST_F(ItemList, InsertAtANegativeIndexAppends)
{
    MakeTexts({ "a" });
    EXPECT_EQ(1, HLListInsert(list, -3, "b"));
    EXPECT_EQ((Texts{ "a", "b" }), All());
}

TEST_F(ItemList, InsertWithoutMemoryIsMinusOneEverywhere)
{
    MakeTexts({ "a", "b" });
    for (int index : { 0, 1, 2, -1 }) {
        FailAllocation(1);
        EXPECT_EQ(-1, HLListInsert(list, index, "c")) << index;
    }
    FailAllocation(0);
    EXPECT_EQ((Texts{ "a", "b" }), All());
}

TEST_F(ItemList, TakesNothingWithoutAList)
{
    EXPECT_EQ(-1, HLListAdd(nullptr, "a"));
    EXPECT_EQ(-1, HLListAppend(nullptr, "a"));
    EXPECT_EQ(-1, HLListInsert(nullptr, 0, "a"));
}

TEST_F(ItemList, LookupOfTheLastOfNoneGivesNothingAndAnIndexBelow)
{
    MakeTexts({});
    EXPECT_EQ(nullptr, HLListGetItem(list, -1));
    EXPECT_EQ(-1, list->iCursor);
    EXPECT_EQ(nullptr, HLListGetItem(list, 0));
}

TEST_F(ItemList, LookupOutOfRangeGivesNothing)
{
    MakeTexts({ "a", "b" });
    EXPECT_EQ(nullptr, HLListGetItem(list, -2));
    EXPECT_EQ(nullptr, HLListGetItem(list, 2));
    EXPECT_EQ(nullptr, HLListGetItem(nullptr, 0));
}

TEST_F(ItemList, LookupLeavesTheCursorOnItsNode)
{
    MakeTexts({ "a", "b", "c" });
    for (int index : { 2, 0, 1, -1 }) {
        void* const node = HLListGetItem(list, index);
        EXPECT_EQ(node, list->pCursor) << index;
        EXPECT_EQ(index < 0 ? 2 : index, list->iCursor) << index;
    }
}

TEST_F(ItemList, WithoutItsOnlyNodeIsEmpty)
{
    MakeInts({ 1 });
    EXPECT_EQ(1, HLListRemove(list, 0));
    EXPECT_NE(0, list->wFlags & HLL_EMPTY);
    ExpectRing();
    const int key = 1;
    EXPECT_EQ(nullptr, HLListFind(list, &key, 0, nullptr));
    EXPECT_TRUE(gCompared.empty());
}

TEST_F(ItemList, RemoveMovesHeadAndTail)
{
    MakeTexts({ "a", "b", "c", "d" });
    EXPECT_EQ(1, HLListRemove(list, 0));
    ExpectRing();
    EXPECT_EQ(1, HLListRemove(list, 2));
    ExpectRing();
    EXPECT_EQ((Texts{ "b", "c" }), All());
    EXPECT_EQ(0, list->iCursor);
    EXPECT_EQ(list->pHead, list->pCursor);
}

TEST_F(ItemList, RemoveOutOfRangeGivesZero)
{
    MakeTexts({ "a" });
    EXPECT_EQ(0, HLListRemove(list, 1));
    EXPECT_EQ(0, HLListRemove(list, -1));
    EXPECT_EQ(0, HLListRemove(nullptr, 0));
    EXPECT_EQ(1, list->cItems);
}

TEST_F(ItemList, FindStartsAtStartModuloCount)
{
    MakeInts({ 10, 11, 12, 13, 14 });
    const int key = 99;
    EXPECT_EQ(nullptr, HLListFind(list, &key, 7, nullptr));
    EXPECT_EQ((std::vector<int>{ 12, 13, 14, 10, 11 }), gCompared);
}

TEST_F(ItemList, FindFromANegativeStartBeginsAtTheHead)
{
    MakeInts({ 10, 11 });
    const int key = 99;
    HLListFind(list, &key, -4, nullptr);
    EXPECT_EQ((std::vector<int>{ 10, 11 }), gCompared);
}

TEST_F(ItemList, FindTellsTheIndexBehindTheWrap)
{
    MakeInts({ 10, 11, 12 });
    const int key = 11;
    int       index = -7;
    EXPECT_NE(nullptr, HLListFind(list, &key, 2, &index));
    EXPECT_EQ(1, index);
}

TEST_F(ItemList, FindTellsIndexZeroForNothing)
{
    MakeInts({ 10 });
    const int key = 1;
    int       index = -7;
    EXPECT_EQ(nullptr, HLListFind(list, &key, 0, &index));
    EXPECT_EQ(0, index);
    index = -7;
    EXPECT_EQ(nullptr, HLListFind(list, nullptr, 0, &index));
    EXPECT_EQ(0, index);
    index = -7;
    EXPECT_EQ(nullptr, HLListFind(nullptr, &key, 0, &index));
    EXPECT_EQ(0, index);
}

TEST_F(ItemList, FindInASortedListGivesUpAtTheFirstNodeAbove)
{
    MakeInts({ 10, 20, 30 }, 1);
    const int key = 15;
    EXPECT_EQ(nullptr, HLListFind(list, &key, 0, nullptr));
    EXPECT_EQ((std::vector<int>{ 10, 20 }), gCompared);
}

TEST_F(ItemList, FindInASortedListFromTheMiddleGetsOnePassOverTheStart)
{
    MakeInts({ 10, 20, 30, 40, 50 }, 1);
    const int key = 20;
    int       index = -7;
    EXPECT_NE(nullptr, HLListFind(list, &key, 2, &index));
    EXPECT_EQ(1, index);
    EXPECT_EQ((std::vector<int>{ 30, 10, 20 }), gCompared);
}

TEST_F(ItemList, FindOfAMissingKeyInASortedListFromTheMiddleEndsAtTheStart)
{
    MakeInts({ 10, 20, 30, 40, 50 }, 1);
    const int key = 5;
    EXPECT_EQ(nullptr, HLListFind(list, &key, 2, nullptr));
    EXPECT_EQ((std::vector<int>{ 30, 10 }), gCompared);
    gCompared.clear();
    const int above = 99;
    EXPECT_EQ(nullptr, HLListFind(list, &above, 2, nullptr));
    EXPECT_EQ((std::vector<int>{ 30, 40, 50, 10, 20 }), gCompared);
}

TEST_F(ItemList, FindPlaceNeedsOneCompareForItemsInOrder)
{
    MakeInts({ 10, 20, 30 }, 1);
    const int key = 31;
    EXPECT_EQ(3, HLListFindPlace(list, &key));
    EXPECT_EQ((std::vector<int>{ 30 }), gCompared);
}

TEST_F(ItemList, FindPlaceTriesFromTheHeadOtherwise)
{
    MakeInts({ 10, 20, 30 }, 1);
    const int key = 15;
    EXPECT_EQ(1, HLListFindPlace(list, &key));
    EXPECT_EQ((std::vector<int>{ 30, 10, 20 }), gCompared);
}

TEST_F(ItemList, FindPlaceOfNothingIsTheHead)
{
    MakeInts({ 10 }, 1);
    EXPECT_EQ(0, HLListFindPlace(list, nullptr));
    EXPECT_EQ(0, HLListFindPlace(nullptr, "a"));
}

TEST_F(ItemList, AddPutsEqualsInFront)
{
    MakeTexts({ "b", "a", "B" }, 1);
    EXPECT_EQ((Texts{ "a", "B", "b" }), All());
    EXPECT_EQ(1, HLListAdd(list, "b"));
}

TEST_F(ItemList, AddToAnUnsortedListAppends)
{
    MakeTexts({ "b", "a" });
    EXPECT_EQ((Texts{ "b", "a" }), All());
    EXPECT_EQ(-1, HLListAdd(nullptr, "x"));
}

TEST_F(ItemList, MoveOfTheHeadToTheEndKeepsTheRing)
{
    MakeTexts({ "a", "b", "c" });
    EXPECT_EQ(2, HLListMove(list, 0, 2));
    EXPECT_EQ((Texts{ "b", "c", "a" }), All());
    ExpectRing();
}

TEST_F(ItemList, MoveOfTheTailToTheStartKeepsTheRing)
{
    MakeTexts({ "a", "b", "c" });
    EXPECT_EQ(0, HLListMove(list, 2, 0));
    EXPECT_EQ((Texts{ "c", "a", "b" }), All());
    ExpectRing();
}

TEST_F(ItemList, MoveReachesEveryPlaceFromEveryPlace)
{
    const Texts start = { "a", "b", "c", "d", "e" };
    for (int from = 0; from < 5; from++) {
        for (int to = 0; to < 5; to++) {
            HLListDestroy(list);
            MakeTexts(start);
            Texts expected = start;
            if (from != to) {
                expected.erase(expected.begin() + from);
                expected.insert(expected.begin() + to, start[static_cast<size_t>(from)]);
            }
            EXPECT_EQ(from == to ? -1 : to, HLListMove(list, from, to)) << from << ' ' << to;
            EXPECT_EQ(expected, All()) << from << ' ' << to;
            ExpectRing();
        }
    }
}

TEST_F(ItemList, MoveToABadIndexIsMinusOne)
{
    MakeTexts({ "a", "b" });
    struct {
        int from;
        int to;
    } const rows[] = { { 0, 2 }, { 2, 0 }, { -1, 0 }, { 0, -1 }, { 5, 7 } };
    for (const auto& row : rows) {
        EXPECT_EQ(-1, HLListMove(list, row.from, row.to)) << row.from << ' ' << row.to;
    }
    EXPECT_EQ(-1, HLListMove(nullptr, 0, 1));
    EXPECT_EQ((Texts{ "a", "b" }), All());
}

TEST_F(ItemList, MoveLeavesTheCursorOnTheTail)
{
    MakeTexts({ "a", "b", "c" });
    HLListMove(list, 2, 1);
    EXPECT_EQ(list->pTail, list->pCursor);
    EXPECT_EQ(2, list->iCursor);
}

TEST_F(ItemList, CopyUsesTheItemsOfTheTarget)
{
    MakeTexts({ "a", "b" });
    HLList* const src = list;
    gItemsAsked = 0;
    list = HLListCreate(-1, nullptr, nullptr, nullptr, nullptr, CountedItem, 1);
    HLListAdd(list, "z");
    EXPECT_EQ(1, HLListCopy(list, src));
    EXPECT_EQ(2, gItemsAsked);
    EXPECT_EQ((Texts{ "z", "a", "b" }), All()); // a copy never sorts
    HLListDestroy(src);
}

TEST_F(ItemList, CopyNeedsBothListsAndItemsOfTheTarget)
{
    MakeTexts({ "a" });
    EXPECT_EQ(0, HLListCopy(nullptr, list));
    EXPECT_EQ(0, HLListCopy(list, nullptr));
    const HLLITEM item = list->pfnItem;
    list->pfnItem = nullptr;
    EXPECT_EQ(0, HLListCopy(list, list));
    list->pfnItem = item;
}

TEST_F(ItemList, CopyOfAnEmptyListSucceeds)
{
    MakeTexts({ "a" });
    HLList* const empty = HLListCreate(-1, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    EXPECT_EQ(1, HLListCopy(list, empty));
    HLListDestroy(empty);
    EXPECT_EQ((Texts{ "a" }), All());
}

TEST_F(ItemList, CopyIntoItselfDoublesTheItems)
{
    MakeTexts({ "a", "b" });
    EXPECT_EQ(1, HLListCopy(list, list));
    EXPECT_EQ((Texts{ "a", "b", "a", "b" }), All());
}

TEST_F(ItemList, DupHasTheSameSettingsAndItems)
{
    MakeTexts({ "b", "a" }, 1);
    HLList* const original = list;
    list = HLListDup(original);
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(original->cbItem, list->cbItem);
    EXPECT_EQ(original->pfnCompare, list->pfnCompare);
    EXPECT_EQ(HLL_SORTED, list->wFlags);
    EXPECT_EQ((Texts{ "a", "b" }), All());
    EXPECT_NE(original->pHead, list->pHead);
    HLListDestroy(original);
}

TEST_F(ItemList, DupHasTheSameCallbacks)
{
    list = CreateWithOwnCallbacks();
    HLList* const copy = HLListDup(list);
    ASSERT_NE(nullptr, copy);
    ExpectOwnCallbacks(copy);
    HLListDestroy(copy);
}

TEST_F(ItemList, EmptyFreesEveryNode)
{
    MakeTexts({ "a", "b", "c" });
    const int live = LiveBlocks();
    EXPECT_EQ(1, HLListEmpty(list));
    EXPECT_EQ(live - 3, LiveBlocks());
    EXPECT_EQ(0, list->cItems);
    EXPECT_EQ(0, list->iCursor);
    ExpectRing();
    EXPECT_EQ(0, HLListEmpty(nullptr));
    EXPECT_EQ(0, HLListDestroy(nullptr));
}

TEST_F(ItemList, EmptyShowsAnEmptyListToTheFreeingCallback)
{
    MakeTexts({ "a", "b" });
    gFreeNode = list->pfnFree;
    list->pfnFree = FreeOfAnEmptyList;
    EXPECT_EQ(1, HLListEmpty(list));
}

TEST_F(ItemList, CompareGoesByNodesAndThenByCount)
{
    MakeInts({ 1, 2 });
    HLList* const other = HLListCreate(sizeof(int), nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    list->pfnCompare = CompareNodes;
    EXPECT_EQ(1, HLListCompare(list, other));
    EXPECT_EQ(-1, HLListCompare(other, list));
    const int one = 1;
    const int two = 2;
    const int three = 3;
    HLListAppend(other, &one);
    EXPECT_EQ(1, HLListCompare(list, other));
    HLListAppend(other, &two);
    EXPECT_EQ(0, HLListCompare(list, other));
    HLListAppend(other, &three);
    EXPECT_EQ(-1, HLListCompare(list, other));
    HLListRemove(other, 1);
    EXPECT_EQ(-7, HLListCompare(list, other));
    HLListDestroy(other);
}

TEST_F(ItemList, AscendingLookupsOfManyNodesAreOneStepEach)
{
    // A walk that restarted at the head would take 900 million steps.
    list = HLListCreate(sizeof(int), nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    constexpr int count = 30000;
    for (int i = 0; i < count; i++) {
        HLListAppend(list, &i);
    }
    for (int round = 0; round < 10; round++) {
        for (int i = 0; i < count; i++) {
            ASSERT_EQ(i, LoadAs<int>(HNodePayload(HLListGetItem(list, i))));
        }
    }
}

TEST_F(ItemList, CopyAndDupWithoutMemoryLeaveWholeLists)
{
    MakeTexts({ "a", "b", "c" });
    FailEachAllocation each;
    while (each.Next()) {
        HLList* const copy = HLListDup(list);
        if (copy) {
            EXPECT_EQ(AllocationFailed() ? 2 : 3, copy->cItems) << each.Number();
        }
        HLListDestroy(copy);
    }
}

} // namespace
