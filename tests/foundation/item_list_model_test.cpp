// Random operations on item lists against a model: a vector and the cursor that each operation has to leave.
#include "foundation/item_list.h"

#include "foundation/memory.h"
#include "support/guarded_memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

int gCompares;

int CALLBACK CompareItems(const void* a, const void* b)
{
    gCompares++;
    const int left = LoadAs<int>(a);
    const int right = LoadAs<int>(b);
    return (left > right) - (left < right);
}

// What a list is: its values, and the index of the cursor, -1 where a lookup of the last of none has left it.
struct Model {
    std::vector<int> values;
    bool             sorted = false;
    int              cursor = 0;
    int              compares = 0; // of the last search

    int Count() const { return static_cast<int>(values.size()); }
    int At(int index) const { return values[static_cast<size_t>(index)]; }

    int Order(int key, int index)
    {
        compares++;
        return (key > At(index)) - (key < At(index));
    }

    void Lookup(int index)
    {
        if (index == -1) {
            cursor = Count() - 1;
        } else if (index >= 0 && index < Count()) {
            cursor = index;
        }
    }

    int Append(int value, bool fails)
    {
        if (!fails) {
            cursor = values.empty() ? 0 : cursor;
            values.push_back(value);
        }
        return Count() - 1;
    }

    int Insert(int index, int value, bool fails)
    {
        if (fails) {
            return -1;
        }
        if (index < 0 || index >= Count()) {
            return Append(value, false);
        }
        values.insert(values.begin() + index, value);
        cursor = 0;
        return index;
    }

    int FindPlace(int value)
    {
        compares = 0;
        if (values.empty()) {
            return 0;
        }
        if (Order(value, Count() - 1) > 0) {
            return Count();
        }
        int index = 0;
        while (Order(value, index) > 0) {
            index++;
        }
        return index;
    }

    int Add(int value, bool fails) { return sorted ? Insert(FindPlace(value), value, fails) : Append(value, fails); }

    int Remove(int index)
    {
        if (index < 0 || index >= Count()) {
            return 0;
        }
        values.erase(values.begin() + index);
        cursor = 0;
        return 1;
    }

    int Move(int from, int to)
    {
        if (from == to || from < 0 || to < 0 || from >= Count() || to >= Count()) {
            return -1;
        }
        const int value = At(from);
        values.erase(values.begin() + from);
        values.insert(values.begin() + to, value);
        cursor = Count() - 1;
        return to;
    }

    // The index, or -1. Visited nodes are counted, so a sorted list searched from the middle ends where it began.
    int Find(int key, int start)
    {
        compares = 0;
        if (values.empty()) {
            return -1;
        }
        start = std::max(start, 0) % Count();
        cursor = start;
        int index = start;
        int left = Count();
        while (left > 0) {
            const int order = Order(key, index);
            if (order == 0) {
                return index;
            }
            if (sorted && order < 0) {
                left -= Count() - index;
                index = 0;
            } else {
                left--;
                index = (index + 1) % Count();
            }
        }
        return -1;
    }
};

class ListAgainstModel : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        liveBefore = LiveBlocks();
        random.seed(static_cast<unsigned>(GetParam()));
        model.sorted = GetParam() % 2 != 0;
        list = HLListCreate(sizeof(int), nullptr, nullptr, CompareItems, nullptr, nullptr, model.sorted);
        ASSERT_NE(nullptr, list);
    }
    void TearDown() override
    {
        HLListDestroy(list);
        EXPECT_EQ(liveBefore, LiveBlocks());
    }
    int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    int AnyIndex() { return Pick(-2, model.Count() + 2); }

    // One allocation in eight fails.
    bool MakeFail()
    {
        const bool fails = Pick(0, 7) == 0;
        FailAllocation(fails ? 1 : 0);
        return fails;
    }

    void AddOne()
    {
        const int  value = Pick(0, 30);
        const bool fails = MakeFail();
        const int  index = AnyIndex();
        // A sorted list stays sorted only if items come in through HLListAdd.
        switch (model.sorted ? 0 : Pick(0, 2)) {
        case 0: ASSERT_EQ(model.Add(value, fails), HLListAdd(list, &value)); break;
        case 1: ASSERT_EQ(model.Append(value, fails), HLListAppend(list, &value)); break;
        default: ASSERT_EQ(model.Insert(index, value, fails), HLListInsert(list, index, &value)); break;
        }
        FailAllocation(0);
    }

    void FindOne()
    {
        const int key = Pick(-1, 31);
        const int start = AnyIndex() + (Pick(0, 3) == 0 ? model.Count() : 0);
        const int expected = model.Find(key, start);
        int       index = -7;
        gCompares = 0;
        const void* const node = HLListFind(list, &key, start, &index);
        ASSERT_EQ(expected >= 0, node != nullptr) << key << " from " << start;
        ASSERT_EQ(std::max(expected, 0), index) << key << " from " << start;
        ASSERT_EQ(model.compares, gCompares) << key << " from " << start;
    }

    void LookUpOne()
    {
        const int index = AnyIndex();
        model.Lookup(index);
        const void* const node = HLListGetItem(list, index);
        ASSERT_EQ(index >= -1 && index < model.Count() && model.Count() > 0, node != nullptr) << index;
    }

    void CopyAll()
    {
        HLList* const copy = HLListDup(list);
        ASSERT_NE(nullptr, copy);
        ExpectValues(copy);
        if (model.Count() > 0) {
            model.cursor = model.Count() - 1;
        }
        ASSERT_EQ(1, HLListDestroy(copy));
    }

    void EmptyAll()
    {
        ASSERT_EQ(1, HLListEmpty(list));
        model.values.clear();
        model.cursor = 0;
    }

    void TakeOne()
    {
        const int index = AnyIndex();
        ASSERT_EQ(model.Remove(index), HLListRemove(list, index)) << index;
    }

    void MoveOne()
    {
        const int from = AnyIndex();
        const int to = AnyIndex();
        ASSERT_EQ(model.Move(from, to), HLListMove(list, from, to)) << from << ' ' << to;
    }

    void Step()
    {
        struct {
            int below; // of a hundred
            void (ListAgainstModel::*run)();
        } const kinds[] = {
            { 35, &ListAgainstModel::AddOne },  { 55, &ListAgainstModel::FindOne },  { 75, &ListAgainstModel::LookUpOne },
            { 87, &ListAgainstModel::TakeOne }, { 98, &ListAgainstModel::MoveOne }, { 99, &ListAgainstModel::CopyAll },
            { 100, &ListAgainstModel::EmptyAll },
        };
        const int pick = Pick(0, 99);
        for (const auto& kind : kinds) {
            if (pick < kind.below) {
                // A move would leave a sorted list unsorted, and a search in it undefined.
                const bool spoils = model.sorted && kind.run == &ListAgainstModel::MoveOne;
                return spoils ? TakeOne() : (this->*kind.run)();
            }
        }
    }

    void ExpectValues(const HLList* any) const
    {
        ASSERT_EQ(model.Count(), any->cItems);
        void* node = any->pHead;
        for (int i = 0; i < model.Count(); i++) {
            ASSERT_EQ(model.At(i), LoadAs<int>(HNodePayload(node))) << i;
            ASSERT_EQ(i == model.Count() - 1, node == any->pTail) << i;
            node = HNodeLink(node);
        }
        ASSERT_EQ(any->pHead, node);
        ASSERT_EQ(model.values.empty(), (any->wFlags & HLL_EMPTY) != 0);
    }

    void ExpectCursor() const
    {
        ASSERT_EQ(model.cursor, list->iCursor);
        void* node = list->pHead;
        for (int i = 0; i < model.cursor; i++) {
            node = HNodeLink(node);
        }
        ASSERT_EQ(node, list->pCursor);
    }

    std::mt19937 random;
    Model        model;
    HLList*      list = nullptr;
    int          liveBefore = 0;
};

TEST_P(ListAgainstModel, AgreesAfterEveryOperation)
{
    for (int step = 0; step < 3000; step++) {
        ASSERT_NO_FATAL_FAILURE(Step()) << "step " << step;
        ASSERT_NO_FATAL_FAILURE(ExpectValues(list)) << "step " << step;
        ASSERT_NO_FATAL_FAILURE(ExpectCursor()) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ListAgainstModel, testing::Range(1, 17));

} // namespace
