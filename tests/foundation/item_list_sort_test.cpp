// Adding many items to a sorted list at once, against adding them one after the other.
#include "foundation/item_list.h"

#include "foundation/memory.h"
#include "support/block_leaks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <vector>

namespace {

// Equal keys can be told apart by their numbers.
struct Item {
    double key;
    int    number;
};

long gCompares;

// As values are ordered: what isn't a number is above everything, on either side.
int CALLBACK CompareKeys(const void* a, const void* b)
{
    gCompares++;
    const double left = LoadAs<Item>(a).key;
    const double right = LoadAs<Item>(b).key;
    if (right > left) {
        return -1;
    }
    return left == right ? 0 : 1;
}

struct ListDestroyer {
    void operator()(HLList* list) const { HLListDestroy(list); }
};
using ListPtr = std::unique_ptr<HLList, ListDestroyer>;

ListPtr NewList(bool sorted)
{
    return ListPtr(HLListCreate(sizeof(Item), nullptr, nullptr, CompareKeys, nullptr, nullptr, sorted));
}

// Numbers in the order of the list, which has to be a ring with all its fields right.
std::vector<int> NumbersOf(const HLList* list)
{
    std::vector<int> numbers;
    void*            node = list->pHead;
    void*            last = nullptr;
    for (int i = 0; i < list->cItems; i++) {
        numbers.push_back(LoadAs<Item>(HNodePayload(node)).number);
        last = node;
        node = HNodeLink(node);
    }
    EXPECT_EQ(list->pHead, node);
    EXPECT_EQ(list->pTail, last);
    EXPECT_EQ(list->cItems == 0, (list->wFlags & HLL_EMPTY) != 0);
    return numbers;
}

using Items = std::vector<Item>;

// The same items added one by one and at once; a follower of each goes along.
struct BothWays {
    ListPtr oneByOne = NewList(true);
    ListPtr atOnce = NewList(true);
    ListPtr follower = NewList(false);

    void AppendOld(const Item& item) const
    {
        HLListAppend(oneByOne.get(), &item);
        HLListAppend(atOnce.get(), &item);
        HLListAppend(follower.get(), &item);
    }
    void Add(const Items& items) const
    {
        const int   first = atOnce->cItems;
        void* const before = atOnce->pTail;
        for (const Item& item : items) {
            HLListAdd(oneByOne.get(), &item);
            HLListAppend(atOnce.get(), &item);
            HLListAppend(follower.get(), &item);
        }
        HLListSortAdded(atOnce.get(), first, before, follower.get());
    }
    void ExpectAlike() const
    {
        const std::vector<int> expected = NumbersOf(oneByOne.get());
        EXPECT_EQ(expected, NumbersOf(atOnce.get()));
        EXPECT_EQ(expected, NumbersOf(follower.get()));
    }
};

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(HLListSortAdded, PutsAnItemInFrontOfItsEquals)
{
    const BlockLeakCheck leaks;
    const BothWays       lists;
    lists.Add({ { 2, 0 }, { 1, 1 }, { 2, 2 }, { 1, 3 }, { 2, 4 } });
    EXPECT_EQ((std::vector<int>{ 3, 1, 4, 2, 0 }), NumbersOf(lists.atOnce.get()));
    lists.ExpectAlike();
}

TEST(HLListSortAdded, PutsNewItemsInFrontOfOldEquals)
{
    const BothWays lists;
    lists.Add({ { 1, 0 }, { 2, 1 }, { 3, 2 } });
    lists.Add({ { 3, 3 }, { 1, 4 }, { 4, 5 }, { 0, 6 }, { 2, 7 } });
    EXPECT_EQ((std::vector<int>{ 6, 4, 0, 7, 1, 3, 2, 5 }), NumbersOf(lists.atOnce.get()));
    lists.ExpectAlike();
}

TEST(HLListSortAdded, LeavesTheCursorWhereItIsIfAllItemsStayAtTheEnd)
{
    const BothWays lists;
    lists.Add({ { 1, 0 }, { 2, 1 }, { 3, 2 } });
    void* const node = HLListGetItem(lists.atOnce.get(), 1);
    lists.Add({ { 4, 3 }, { 5, 4 } });
    EXPECT_EQ(node, lists.atOnce->pCursor);
    EXPECT_EQ(1, lists.atOnce->iCursor);
    lists.Add({ { 0, 5 } });
    EXPECT_EQ(lists.atOnce->pHead, lists.atOnce->pCursor);
    EXPECT_EQ(0, lists.atOnce->iCursor);
    EXPECT_EQ(lists.follower->pHead, lists.follower->pCursor);
}

TEST(HLListSortAdded, LeavesAListAloneThatIsNotSortedOrHasNothingNew)
{
    const ListPtr unsorted = NewList(false);
    const ListPtr sorted = NewList(true);
    for (const Item& item : Items{ { 2, 0 }, { 1, 1 } }) {
        HLListAppend(unsorted.get(), &item);
        HLListAppend(sorted.get(), &item);
    }
    HLListSortAdded(unsorted.get(), 0, nullptr, nullptr);
    HLListSortAdded(sorted.get(), 2, sorted->pTail, nullptr);
    HLListSortAdded(sorted.get(), 3, nullptr, nullptr);
    HLListSortAdded(sorted.get(), -1, nullptr, nullptr);
    HLListSortAdded(nullptr, 0, nullptr, nullptr);
    EXPECT_EQ((std::vector<int>{ 0, 1 }), NumbersOf(unsorted.get()));
    EXPECT_EQ((std::vector<int>{ 0, 1 }), NumbersOf(sorted.get()));
    HLListSortAdded(sorted.get(), 0, nullptr, nullptr);
    EXPECT_EQ((std::vector<int>{ 1, 0 }), NumbersOf(sorted.get()));
}

// The keys 0, 10, 20 and so on, in order.
Items Ascending(int count, int start)
{
    Items items;
    for (int i = 0; i < count; i++) {
        items.push_back({ start + 10.0 * i, i });
    }
    return items;
}

struct AddedCase {
    const char* name;
    double      firstKey;
    int         count;
    long        compares; // at the most, where 200 nodes are there
};

class SortAddedOfFewItems : public testing::TestWithParam<AddedCase> {};

TEST_P(SortAddedOfFewItems, ComparesNoMoreThanAddingThemOneByOne)
{
    const BothWays lists;
    lists.Add(Ascending(200, 0));
    Items       items = Ascending(GetParam().count, 0);
    const int   first = lists.atOnce->cItems;
    void* const before = lists.atOnce->pTail;
    for (Item& item : items) {
        item.key += GetParam().firstKey;
        HLListAppend(lists.atOnce.get(), &item);
    }
    const int allocations = AllocationCount();
    gCompares = 0;
    HLListSortAdded(lists.atOnce.get(), first, before, nullptr);
    EXPECT_GE(GetParam().compares, gCompares);
    EXPECT_EQ(allocations, AllocationCount());
    for (const Item& item : items) {
        HLListAdd(lists.oneByOne.get(), &item);
    }
    EXPECT_EQ(NumbersOf(lists.oneByOne.get()), NumbersOf(lists.atOnce.get()));
}

constexpr AddedCase addedCases[] = {
    { "OneBehindAll", 2000, 1, 1 },
    { "ManyBehindAll", 2000, 50, 50 },
    { "OneEqualToTheLast", 1990, 1, 1 + 1 + 200 },
    { "OneInFrontOfAll", -5, 1, 1 + 1 + 1 },
    { "OneBetween", 95, 1, 1 + 1 + 11 },
};

INSTANTIATE_TEST_SUITE_P(Places, SortAddedOfFewItems, testing::ValuesIn(addedCases),
                         [](const testing::TestParamInfo<AddedCase>& each) { return std::string(each.param.name); });

struct SortCase {
    const char* name;
    int         keys;     // different ones; few make many equals
    int         nans;     // of a hundred items
    int         unsorted; // old items that lie in no order
    bool        fails;    // without memory for the index
};

class SortAddedAgainstSteps : public testing::TestWithParam<SortCase> {
protected:
    double AnyKey()
    {
        const bool isNan = static_cast<int>(random() % 100) < GetParam().nans;
        return isNan ? notANumber : static_cast<double>(random() % static_cast<unsigned>(GetParam().keys));
    }
    Items AnyItems()
    {
        Items items(random() % 40);
        for (Item& item : items) {
            item = { AnyKey(), number++ };
        }
        return items;
    }

    std::mt19937 random{ 11 };
    int          number = 0;
};

TEST_P(SortAddedAgainstSteps, GivesTheirOrder)
{
    const BlockLeakCheck leaks;
    int                  failures = 0;
    for (int round = 0; round < 80; round++) {
        const BothWays lists;
        for (int i = 0; i < GetParam().unsorted; i++) {
            lists.AppendOld({ AnyKey(), number++ });
        }
        for (int batch = 0; batch < 3; batch++) {
            const Items items = AnyItems();
            // The nodes of both ways and of the follower come first, then the two blocks of the index, if it needs one.
            FailAllocation(GetParam().fails ? static_cast<int>(3 * items.size()) + 1 + round % 2 : 0);
            lists.Add(items);
            failures += GetParam().fails && AllocationFailed();
            FailAllocation(0);
            lists.ExpectAlike();
            ASSERT_FALSE(HasFailure()) << "round " << round << " batch " << batch;
        }
    }
    EXPECT_EQ(GetParam().fails, failures > 80) << failures;
}

constexpr SortCase sortCases[] = {
    { "FewKeys", 3, 0, 0, false },
    { "ManyKeys", 1000, 0, 0, false },
    { "KeysThatAreNone", 8, 10, 0, false },
    { "MostlyNone", 5, 60, 0, false },
    { "OldItemsInNoOrder", 10, 0, 12, false },
    { "OldItemsInNoOrderWithNone", 10, 15, 12, false },
    { "WithoutMemory", 10, 5, 3, true },
};

INSTANTIATE_TEST_SUITE_P(Items, SortAddedAgainstSteps, testing::ValuesIn(sortCases),
                         [](const testing::TestParamInfo<SortCase>& each) { return std::string(each.param.name); });

// Nodes that lie side by side: a hundred thousand guarded blocks would take most of the test's time.
struct PoolNode {
    void* link;
    BYTE  item[sizeof(Item)];
};
std::vector<PoolNode> gPool;

void* CALLBACK AllocFromPool(HLList*, const void* item)
{
    gPool.emplace_back();
    std::memcpy(gPool.back().item, item, sizeof(Item));
    return &gPool.back();
}

int CALLBACK KeepInPool(HLList*, void*)
{
    return 1;
}

struct LoadCase {
    const char*                        name;
    std::function<double(int, double)> key; // by place and chance
};

class SortAddedOfManyItems : public testing::TestWithParam<LoadCase> {};

TEST_P(SortAddedOfManyItems, ComparesAsOftenAsASortNeedsTo)
{
    constexpr int count = 100000;
    const ListPtr list(HLListCreate(sizeof(Item), AllocFromPool, nullptr, CompareKeys, KeepInPool, nullptr, 1));
    std::mt19937  random(5);
    std::uniform_real_distribution<double> chance;
    gPool.clear();
    gPool.reserve(count);
    for (int i = 0; i < count; i++) {
        const Item item = { GetParam().key(i, chance(random)), i };
        HLListAppend(list.get(), &item);
    }
    gCompares = 0;
    HLListSortAdded(list.get(), 0, nullptr, nullptr);
    EXPECT_LE(static_cast<double>(gCompares), count * (std::log2(count) + 3));
    EXPECT_EQ(static_cast<size_t>(count), NumbersOf(list.get()).size());
}

const LoadCase loadCases[] = {
    { "InOrder", [](int i, double) { return i; } },
    { "Backwards", [](int i, double) { return -i; } },
    { "AllEqual", [](int, double) { return 7; } },
    { "AtRandom", [](int, double chance) { return chance; } },
    { "AtRandomWithNone", [](int, double chance) { return chance < 0.1 ? notANumber : chance; } },
};

INSTANTIATE_TEST_SUITE_P(Orders, SortAddedOfManyItems, testing::ValuesIn(loadCases),
                         [](const testing::TestParamInfo<LoadCase>& each) { return std::string(each.param.name); });

} // namespace
