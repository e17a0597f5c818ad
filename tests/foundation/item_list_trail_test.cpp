// Long item lists: lookups in any order, beside changes, find the nodes that a walk from the head would.
#include "foundation/item_list.h"

#include "foundation/memory.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <random>
#include <utility>
#include <vector>

namespace {

class LongList {
public:
    explicit LongList(int count) : list(HLListCreate(sizeof(int), nullptr, nullptr, nullptr, nullptr, nullptr, 0))
    {
        for (int i = 0; i < count; ++i) {
            HLListAppend(list, &i);
            values.push_back(i);
        }
    }
    ~LongList() { HLListDestroy(list); }
    LongList(const LongList&) = delete;
    LongList& operator=(const LongList&) = delete;

    int Count() const { return static_cast<int>(values.size()); }
    int ValueAt(int index) const { return LoadAs<int>(HNodePayload(HLListNodeAt(list, index))); }

    testing::AssertionResult Finds(int index) const
    {
        const int value = ValueAt(index);
        if (value != values[static_cast<size_t>(index)] || list->iCursor != index) {
            return testing::AssertionFailure()
                   << "index " << index << " of " << Count() << " gives " << value << ", cursor " << list->iCursor;
        }
        return testing::AssertionSuccess();
    }
    void Insert(int index, int value)
    {
        HLListNodeAt(list, index - 1);
        EXPECT_EQ(index, HLListInsert(list, index, &value));
        values.insert(values.begin() + index, value);
    }
    void Remove(int index)
    {
        HLListNodeAt(list, index - 1);
        EXPECT_EQ(1, HLListRemove(list, index));
        values.erase(values.begin() + index);
    }
    void Move(int from, int to)
    {
        EXPECT_EQ(to, HLListMove(list, from, to));
        const int value = values[static_cast<size_t>(from)];
        values.erase(values.begin() + from);
        values.insert(values.begin() + to, value);
    }

    HLList*          list;
    std::vector<int> values;
};

using Clock = std::chrono::steady_clock;

TEST(LongItemList, FindsEachIndexFromEachOther)
{
    std::mt19937   random(1);
    const LongList items(3000);
    for (int i = 0; i < 20000; ++i) {
        ASSERT_TRUE(items.Finds(static_cast<int>(random() % 3000)));
    }
}

TEST(LongItemList, FindsNodesBesideChanges)
{
    std::mt19937 random(2);
    LongList     items(1500);
    const auto   anywhere = [&] { return static_cast<int>(random() % static_cast<unsigned>(items.Count())); };
    for (int i = 0; i < 20000; ++i) {
        const unsigned step = random() % 8;
        const int      from = anywhere();
        const int      to = anywhere();
        if (step == 0) {
            items.Insert(to, i);
        } else if (step == 1) {
            items.Remove(from);
        } else if (step == 2 && from != to) {
            items.Move(from, to);
        } else {
            ASSERT_TRUE(items.Finds(to)) << "step " << i;
        }
    }
}

TEST(LongItemList, MoveRightRoundTheListLeavesNoOldPlaceBehind)
{
    LongList items(1000);
    ASSERT_TRUE(items.Finds(900));
    items.Move(0, 999);
    EXPECT_TRUE(items.Finds(0));
    EXPECT_TRUE(items.Finds(640));
    items.Move(999, 0);
    EXPECT_TRUE(items.Finds(640));
}

TEST(LongItemList, TwoListsInTurnsKeepApart)
{
    std::mt19937 random(3);
    LongList     first(1000);
    LongList     second(2000);
    for (int i = 0; i < 2000; ++i) {
        ASSERT_TRUE(first.Finds(static_cast<int>(random() % 900)));
        ASSERT_TRUE(second.Finds(static_cast<int>(random() % 900)));
        first.Remove(i % 2 ? 950 : 100);
        first.Insert(i % 2 ? 100 : 950, i);
    }
}

TEST(LongItemList, EmptiedAndFilledAgainHasNewPlaces)
{
    LongList items(1000);
    ASSERT_TRUE(items.Finds(900));
    HLListEmpty(items.list);
    for (int i = 0; i < 1000; ++i) {
        const int value = -i;
        HLListAppend(items.list, &value);
        items.values[static_cast<size_t>(i)] = value;
    }
    for (int index = 999; index >= 0; --index) {
        ASSERT_TRUE(items.Finds(index));
    }
}

// An owner may put other nodes in place of its own, and knows of no notes.
TEST(LongItemList, LookupByTheCursorFollowsTheNodesThatTheOwnerPutIn)
{
    const LongList items(1000);
    ASSERT_TRUE(items.Finds(900));
    HLList* const other = HLListDup(items.list);
    std::swap(*items.list, *other);
    for (int index = 999; index >= 0; index -= 7) {
        ASSERT_EQ(index, LoadAs<int>(HNodePayload(HLListGetItem(items.list, index))));
        ASSERT_NE(HLListGetItem(other, index), HLListGetItem(items.list, index));
    }
    HLListEmpty(other);
    for (int index = 999; index >= 0; index -= 7) {
        ASSERT_EQ(index, LoadAs<int>(HNodePayload(HLListGetItem(items.list, index))));
    }
    HLListDestroy(other);
}

double MillisecondsOf(const std::function<void()>& work)
{
    const Clock::time_point start = Clock::now();
    work();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Walks from the head would take a thousand times as long as the steps forwards.
TEST(LongItemList, IsReadAndTakenApartFromItsEndLittleSlowerThanItIsReadFromItsHead)
{
    constexpr int count = 50000;
    LongList      items(count);
    const double  forwards = MillisecondsOf([&] {
        for (int index = 0; index < count; ++index) {
            ASSERT_EQ(index, items.ValueAt(index));
        }
    });
    const double backwards = MillisecondsOf([&] {
        for (int index = count - 1; index >= 0; --index) {
            ASSERT_EQ(index, items.ValueAt(index));
        }
        for (int index = count - 1; index >= count / 2; --index) {
            items.Remove(index);
        }
    });
    EXPECT_LT(backwards, 100 * forwards);
}

} // namespace
