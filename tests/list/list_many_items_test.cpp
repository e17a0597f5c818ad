// Many items at once, and items that several lists share.
#include "list_window.h"

#include <random>

namespace {

class ListManyItems : public ListWindow {};

TEST_F(ListManyItems, SetListSharesTheItems)
{
    Make("%ni", HLS_MULTISEL);
    AddNumbers({ 4 });
    Select({ 0 });
    const HWND owner = WindowTest::Create("HList", "%ni", 0, 8, { 10, 150, 100, 60 });
    const int  data[] = { 1, 2, 3 };
    HLAddItems(owner, 3, data);
    EXPECT_EQ(0, HLSetList(list, nullptr));
    EXPECT_EQ(1, HLSetList(list, HLGetList(owner)));
    EXPECT_EQ((Ints{ 1, 2, 3 }), AllNumbers());
    EXPECT_EQ(-1, Current());
    EXPECT_EQ(-1, +Ctl()->nAnchor);
    EXPECT_EQ(0, Send(HLM_GETSELCOUNT));
    EXPECT_TRUE(Ctl()->wFlags & HLF_SHAREDLIST);
    HLAddItem(list, &data[0]);
    EXPECT_EQ(4, SendMessageA(owner, HLM_GETCOUNT, 0, 0));
}

TEST_F(ListManyItems, SharedItemsOutliveTheListThatBorrowedThem)
{
    Make("%ni");
    AddNumbers({ 1, 2 });
    const HWND borrower = WindowTest::Create("HList", "%ni", 0, 8, { 10, 150, 100, 60 });
    HLSetList(borrower, HLGetList(list));
    DestroyWindow(borrower);
    EXPECT_EQ((Ints{ 1, 2 }), AllNumbers());
}

TEST_F(ListManyItems, OwnItemsGivenToTheListLeaveItEmpty)
{
    Make("%ni");
    AddNumbers({ 1, 2 });
    EXPECT_EQ(1, HLSetList(list, HLGetList(list)));
    EXPECT_EQ(0, Count());
}

TEST_F(ListManyItems, ManyItemsComeOutAsOneByOne)
{
    std::mt19937 random(7);
    const DWORD  sorts[] = { 0, HLS_SORTDATA, HLS_SORTCODE };
    for (int round = 0; round < 24; ++round) {
        const DWORD style = sorts[round % 3] | HLS_MULTISEL;
        const HWND  other = WindowTest::Create("HList", "%ni%ni", style, 8, { 10, 150, 100, 60 });
        Make("%ni%ni", style);
        const auto pick = [&](int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); };
        const int  before = pick(6);
        for (int i = 0; i < before; ++i) {
            const int data = pick(10);
            HLAddItemEx(list, &data, &i);
            HLAddItemEx(other, &data, &i);
        }
        Ints data;
        Ints codes;
        for (int i = 0; i < 8; ++i) {
            data.push_back(pick(10));
            codes.push_back(pick(10));
        }
        const int chosen = pick(6);
        const int current = pick(6);
        const int index = pick(8) - 1;
        for (const HWND each : { list, other }) {
            HLSelectItem(each, chosen, HLSEL_SET);
            HLSelectItem(each, current, HLSEL_SET);
            SendMessageA(each, HLM_SETCURRENT, static_cast<WPARAM>(current), 0);
        }
        EXPECT_EQ(8, HLInsertItemsEx(list, index, 8, data.data(), codes.data()));
        for (int i = 0; i < 8; ++i) {
            const size_t at = static_cast<size_t>(i);
            HLInsertItemEx(other, index < 0 ? index : index + i, &data[at], &codes[at]);
        }
        const HWND mine = list;
        const Ints many = AllNumbers();
        const Ints manySelected = Selected();
        list = other;
        EXPECT_EQ(AllNumbers(), many) << "round " << round;
        EXPECT_EQ(Selected(), manySelected) << "round " << round;
        EXPECT_EQ(Current(), SendMessageA(mine, HLM_GETCURRENT, 0, 0)) << "round " << round;
        EXPECT_EQ(+Ctl()->nAnchor, +RecordOf<HListCtl>(mine)->nAnchor) << "round " << round;
        list = mine;
        DestroyWindow(other);
    }
}

TEST_F(ListManyItems, HundredThousandItemsFillSelectAndGo)
{
    constexpr int count = 100000;
    for (const DWORD sort : { 0u, static_cast<unsigned>(HLS_SORTDATA), static_cast<unsigned>(HLS_SORTCODE) }) {
        Make("%ni%ni", sort | HLS_MULTISEL);
        Ints data(count);
        for (int i = 0; i < count; ++i) {
            data[static_cast<size_t>(i)] = (i * 7919) % count; // every number once
        }
        ASSERT_EQ(count, HLAddItemsEx(list, count, data.data(), data.data()));
        const int last = count - 1;
        EXPECT_EQ(HLFindData(list, 0, &last), HLFindCode(list, 0, &last));
        EXPECT_TRUE(!sort || HLFindData(list, 0, &last) == last);
        EXPECT_EQ(count, HLSelectItems(list, HLSEL_SET, HLI_ALL, 0, nullptr));
        EXPECT_EQ(count, Send(HLM_GETSELCOUNT));
        EXPECT_EQ(count, HLDeleteItems(list, HLI_SELECTED, 0, nullptr));
        EXPECT_EQ(0, Count());
        EXPECT_EQ(0, Send(HLM_GETSELCOUNT));
    }
}

TEST_F(ListManyItems, EntriesOfNoItemMoveAsTheyDoOneByOne)
{
    const Ints more = { 5, 1, 4, 2, 3 };
    const Ints chosen[] = { { 0, 2 }, { -1, 0, 2 }, { 1 } };
    for (const DWORD sort : { DWORD{ 0 }, DWORD{ HLS_SORTDATA } }) {
        for (const Ints& selected : chosen) {
            Ints after[2];
            for (const bool atOnce : { false, true }) {
                Make("%ni", sort | HLS_MULTISEL);
                AddNumbers({ 1, 2, 3 });
                const int none = 99;
                for (const int index : selected) {
                    index < 0 ? HLSelectData(list, &none, HLSEL_SET) : HLSelectItem(list, index, HLSEL_SET);
                }
                HDLDeleteItem(HLGetList(list), 2); // the list doesn't hear of it
                HDLDeleteItem(HLGetList(list), 1);
                if (atOnce) {
                    HLAddItems(list, 5, more.data());
                } else {
                    AddNumbers(more);
                }
                after[atOnce] = Selected();
            }
            EXPECT_EQ(after[0], after[1]) << "sort " << sort << ", " << selected.size() << " selected";
        }
    }
}

// Each of these would take a minute if it took a walk for every item.
class ListWalks : public ListManyItems {
protected:
    static constexpr int count = 100000;

    void MakeLong(DWORD style)
    {
        Make("%ni%ni", style);
        Ints data(count);
        for (int i = 0; i < count; ++i) {
            data[static_cast<size_t>(i)] = (i * 7919) % count;
        }
        begin = GetTickCount();
        ASSERT_EQ(count, HLAddItemsEx(list, count, data.data(), data.data()));
    }
    void ExpectQuick() const { EXPECT_LT(GetTickCount() - begin, 15000u); }

    DWORD begin = 0;
};

TEST_F(ListWalks, SortedLoadBesideASelectedEntryBehindTheEndIsOneSort)
{
    Make("%ni%ni", HLS_MULTISEL | HLS_SORTDATA);
    AddNumbers({ 1, 2, 3 }, { 1, 2, 3 });
    Select({ 2 });
    HDLEmpty(HLGetList(list));
    Ints data(count);
    for (int i = 0; i < count; ++i) {
        data[static_cast<size_t>(i)] = (i * 7919) % count;
    }
    begin = GetTickCount();
    EXPECT_EQ(count, HLAddItemsEx(list, count, data.data(), data.data()));
    ExpectQuick();
    EXPECT_EQ((Ints{ count + 2 }), Selected());
}

TEST_F(ListWalks, ClickOnManySelectedItemsSearchesTheCurrentCodeOnce)
{
    MakeLong(HLS_EXTSEL | HLS_CODECURRENT);
    HLSelectItems(list, HLSEL_SET, HLI_ALL, 0, nullptr);
    Send(HLM_SETCURRENT, count - 1);
    Send(HLM_SETTOP, 0);
    begin = GetTickCount();
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, MiddleOf(1)));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(5, MiddleOf(1)));
    ExpectQuick();
    EXPECT_EQ((Ints{ 1 }), Selected());
}

TEST_F(ListWalks, DeletingAllButTheCurrentItemSearchesItsCodeOnce)
{
    MakeLong(HLS_CODECURRENT);
    Send(HLM_SETCURRENT, count - 1);
    begin = GetTickCount();
    EXPECT_EQ(count - 1, HLDeleteItems(list, HLI_UNSELECTED, 0, nullptr));
    ExpectQuick();
    EXPECT_EQ(0, Current());
    EXPECT_EQ(1, HLDeleteItems(list, HLI_SELECTED, 0, nullptr));
    EXPECT_EQ(-1, Current());
}

TEST_F(ListManyItems, SetListBeginsAtTheTopWithoutACurrentItem)
{
    Make("%ni", HLS_HOTTRACK);
    ShowRows(3);
    Ints data(20, 5);
    HLAddItems(list, 20, data.data());
    Send(HLM_SETCURRENT, 9);
    Send(HLM_SETTOP, 8);
    Ctl()->nHot = 9;
    const HWND owner = WindowTest::Create("HList", "%ni", 0, 8, { 10, 150, 100, 60 });
    HLAddItems(owner, 20, data.data());
    EXPECT_EQ(0, Send(WWM_ISNULL));
    HLSetList(list, HLGetList(owner));
    EXPECT_EQ(0, Top());
    EXPECT_EQ(0, +Ctl()->nScrollPos);
    EXPECT_EQ(-1, +Ctl()->nHot);
    EXPECT_EQ(1, Send(WWM_ISNULL));
}

} // namespace
