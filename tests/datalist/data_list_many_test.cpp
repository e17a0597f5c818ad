// Data lists of many items: added at once, and a hundred thousand of them from a stream.
#include "datalist/list_maker.h"

#include <algorithm>
#include <random>

namespace {

using Insertion = std::vector<ListItem>;

// Empty bytes stand for null.
void ItemAt(const void* context, int i, const void** data, const void** code)
{
    const ListItem& item = (*static_cast<const Insertion*>(context))[static_cast<size_t>(i)];
    *data = item.data.empty() ? nullptr : item.data.data();
    *code = item.code.empty() ? nullptr : item.code.data();
}

int InsertAll(const DataListPtr& dl, int index, const Insertion& items)
{
    return HDLInsertItems(dl.get(), index, static_cast<int>(items.size()), ItemAt, &items);
}

// What adding at once stands for.
int InsertOneByOne(const DataListPtr& dl, int index, const Insertion& items)
{
    const int before = dl->pValues->cItems;
    for (size_t i = 0; i < items.size(); i++) {
        if (!items[i].data.empty()) {
            Insert(dl, items[i], index < 0 ? -1 : index + static_cast<int>(i));
        }
    }
    return dl->pValues->cItems - before;
}

class AddingAtOnce : public testing::TestWithParam<int> {
protected:
    BlockLeakCheck leaks;
};

TEST_P(AddingAtOnce, GivesTheListThatAddingOneByOneGives)
{
    std::mt19937 random(17);
    for (int round = 0; round < 60; round++) {
        const Pair        code = round % 5 ? longPair : noPair;
        const DataListPtr atOnce = ListOf(GetParam(), textPair, code);
        const DataListPtr oneByOne = ListOf(GetParam(), textPair, code);
        for (int batch = 0; batch < 3; batch++) {
            Insertion items(random() % 20);
            for (ListItem& item : items) {
                const char letter = static_cast<char>((random() % 2 ? 'a' : 'A') + random() % 3);
                item.data = random() % 20 ? Value(std::string(1, letter)) : Bytes();
                item.code = random() % 10 ? Value(static_cast<LONG>(random() % 5) - 2) : Bytes();
            }
            const int index = static_cast<int>(random() % 12) - 1;
            const int expected = InsertOneByOne(oneByOne, index, items);
            ASSERT_EQ(expected, InsertAll(atOnce, index, items)) << round;
            ASSERT_EQ(ItemsOf(oneByOne), ItemsOf(atOnce)) << round;
        }
    }
}

TEST_P(AddingAtOnce, LeavesOutAnItemWithoutMemory)
{
    const Insertion items = { { Value("c"), Value(LONG{ 3 }) },
                              { Value("a"), Value(LONG{ 1 }) },
                              { Value("b"), Value(LONG{ 2 }) } };
    for (int fails = 1; fails <= 6; fails++) {
        const DataListPtr dl = ListOf(GetParam(), textPair, longPair);
        FailAllocation(fails);
        const int added = InsertAll(dl, -1, items);
        FailAllocation(0);
        EXPECT_EQ(added, static_cast<int>(ItemsOf(dl).size())) << fails;
        if (GetParam() != 3) {
            EXPECT_LE(2, added) << fails;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(SortModes, AddingAtOnce, testing::Values(0, 1, 2, 3));

TEST(AddingNothing, ChangesNothing)
{
    const DataListPtr dl = ListOf(sortedByData, textPair);
    EXPECT_EQ(0, InsertAll(dl, 0, {}));
    EXPECT_EQ(0, HDLInsertItems(dl.get(), 0, -1, ItemAt, nullptr));
    EXPECT_EQ(0, HDLInsertItems(nullptr, 0, 1, ItemAt, nullptr));
}

constexpr int many = 100000;

enum class Order { InOrder, Backwards, AllEqual, AtRandom };

LONG KeyAt(Order order, int i, std::mt19937& random)
{
    switch (order) {
    case Order::InOrder: return i;
    case Order::Backwards: return many - i;
    case Order::AllEqual: return 7;
    case Order::AtRandom: break;
    }
    return static_cast<LONG>(random() % (many / 2)); // two of a key on average
}

template <typename T>
void Put(Bytes* bytes, T value)
{
    const Bytes piece = Value(value);
    bytes->insert(bytes->end(), piece.begin(), piece.end());
}

// A file of dates or numbers with the place of each as its partner.
Bytes ManyItems(int mode, const std::vector<LONG>& keys)
{
    Bytes bytes;
    Put(&bytes, static_cast<WORD>(HDL_HASCODE | mode << 1));
    Put(&bytes, WORD{ 0 });
    for (const bool isKey : { mode == sortedByData, mode == sortedByCode }) {
        bytes.insert(bytes.end(), { 'd', 'l' });
        Put(&bytes, many);
        for (int i = 0; i < many; i++) {
            Put(&bytes, isKey ? keys[static_cast<size_t>(i)] : LONG{ i });
        }
    }
    return bytes;
}

struct ManyCase {
    const char* name;
    int         mode;
    Order       order;
};

class ManyItemsFromAFile : public testing::TestWithParam<ManyCase> {
protected:
    BlockLeakCheck leaks;
};

// One by one they would take some thousand million compares, for which no time limit of a test has room.
TEST_P(ManyItemsFromAFile, ComeInTheOrderOfTheirKeys)
{
    const ManyCase&   file = GetParam();
    std::mt19937      random(23);
    std::vector<LONG> keys(many);
    for (int i = 0; i < many; i++) {
        keys[static_cast<size_t>(i)] = KeyAt(file.order, i, random);
    }
    const DataListPtr dl = Loaded(ManyItems(file.mode, keys));
    ASSERT_NE(nullptr, dl);
    ASSERT_EQ(many, dl->pValues->cItems);

    // Equal keys can't be told apart, so their partners are in the order of the file.
    std::vector<LONG> places(many);
    for (int i = 0; i < many; i++) {
        places[static_cast<size_t>(i)] = i;
    }
    const auto below = [&keys](LONG a, LONG b) { return keys[static_cast<size_t>(a)] < keys[static_cast<size_t>(b)]; };
    if (file.mode != unsortedList) {
        std::stable_sort(places.begin(), places.end(), below);
    }
    const void* node = (file.mode == sortedByCode ? dl->pValues : dl->pCodes)->pHead;
    for (int i = 0; i < many; i++) {
        ASSERT_EQ(places[static_cast<size_t>(i)], LoadAs<LONG>(static_cast<const char*>(node) + sizeof(void*))) << i;
        node = HNodeLink(node);
    }
}

constexpr ManyCase manyCases[] = {
    { "UnsortedAtRandom", unsortedList, Order::AtRandom }, { "ByDataAtRandom", sortedByData, Order::AtRandom },
    { "ByDataBackwards", sortedByData, Order::Backwards }, { "ByDataInOrder", sortedByData, Order::InOrder },
    { "ByCodeAtRandom", sortedByCode, Order::AtRandom },   { "ByCodeAllEqual", sortedByCode, Order::AllEqual },
};

INSTANTIATE_TEST_SUITE_P(All, ManyItemsFromAFile, testing::ValuesIn(manyCases),
                         [](const testing::TestParamInfo<ManyCase>& each) { return std::string(each.param.name); });

} // namespace
