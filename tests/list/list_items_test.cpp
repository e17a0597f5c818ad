// The items of a list: adding, removing, finding and fetching them.
#include "list_window.h"

namespace {

class ListItems : public ListWindow {};

TEST_F(ListItems, EachInsertingFunctionGivesTheNewIndex)
{
    Make("%ni%ni");
    const int data = 5;
    const int code = 50;
    EXPECT_EQ(0, HLAddItem(list, &data));
    EXPECT_EQ(1, HLAddItemEx(list, &data, &code));
    EXPECT_EQ(0, HLInsertItem(list, 0, &data));
    EXPECT_EQ(2, HLInsertItemEx(list, 2, &data, &code));
    EXPECT_EQ(4, HLInsertItem(list, -1, &data));
    EXPECT_EQ(5, HLInsertItem(list, 99, &data)) << "an index behind the end appends";
}

TEST_F(ListItems, NullDataInsertsNothing)
{
    Make("%ni%ni");
    const int code = 1;
    EXPECT_EQ(-1, HLInsertItemEx(list, 0, nullptr, &code));
    EXPECT_EQ(-1, HLInsertItem(list, 0, nullptr));
    EXPECT_EQ(-1, HLAddItemEx(list, nullptr, &code));
    EXPECT_EQ(-1, HLAddItem(list, nullptr));
    EXPECT_EQ(-1, HLInsertItemsEx(list, 0, 3, nullptr, &code));
    EXPECT_EQ(-1, HLInsertItems(list, 0, 3, nullptr));
    EXPECT_EQ(-1, HLAddItemsEx(list, 3, nullptr, &code));
    EXPECT_EQ(-1, HLAddItems(list, 3, nullptr));
    EXPECT_EQ(-1, HLInsertStringEx(list, 0, nullptr, "1"));
    EXPECT_EQ(0, Count());
}

TEST_F(ListItems, WindowWithoutRecordGivesZeroOrMinusOne)
{
    const HWND plain = WindowTest::Create("STATIC", "");
    int        value = 0;
    EXPECT_EQ(-1, HLInsertItemEx(plain, 0, &value, nullptr));
    EXPECT_EQ(-1, HLInsertItem(plain, 0, &value));
    EXPECT_EQ(-1, HLAddItemEx(plain, &value, nullptr));
    EXPECT_EQ(-1, HLAddItem(plain, &value));
    EXPECT_EQ(-1, HLInsertItemsEx(plain, 0, 1, &value, nullptr));
    EXPECT_EQ(-1, HLInsertItems(plain, 0, 1, &value));
    EXPECT_EQ(-1, HLAddItemsEx(plain, 1, &value, nullptr));
    EXPECT_EQ(-1, HLAddItems(plain, 1, &value));
    EXPECT_EQ(-1, HLInsertStringEx(plain, 0, "a", nullptr));
    EXPECT_EQ(0, HLDeleteItem(plain, 0));
    EXPECT_EQ(0, HLDeleteItems(plain, HLI_ALL, 0, nullptr));
    EXPECT_EQ(0, HLEmptyList(plain));
    EXPECT_EQ(0, HLFindData(plain, 0, &value));
    EXPECT_EQ(0, HLFindCode(plain, 0, &value));
    EXPECT_EQ(0, HLGetData(plain, 0, &value));
    EXPECT_EQ(0, HLGetCode(plain, 0, &value));
    EXPECT_EQ(0, HLSetCode(plain, 0, &value));
    EXPECT_EQ(0, HLGetItems(plain, 0, 1, &value, HLI_ALL, &value));
    EXPECT_EQ(0, HLSelectItem(plain, 0, HLSEL_SET));
    EXPECT_EQ(0, HLSelectItems(plain, HLSEL_SET, HLI_ALL, 0, nullptr));
    EXPECT_EQ(0, HLSelectData(plain, &value, HLSEL_SET));
    EXPECT_EQ(0, HLSelectCode(plain, &value, HLSEL_SET));
    EXPECT_EQ(0, HLIsSelected(plain, 0));
    EXPECT_EQ(0, HLSetDataLink(plain, &value, 0));
    EXPECT_EQ(0, HLSetCodeLink(plain, &value, 0));
    EXPECT_EQ(nullptr, HLGetList(plain));
    EXPECT_EQ(0, HLSetList(plain, nullptr));
}

TEST_F(ListItems, SortedListIgnoresTheIndex)
{
    Make("%ni", HLS_SORTDATA);
    AddNumbers({ 5, 1, 9, 3 });
    const int value = 4;
    EXPECT_EQ(2, HLInsertItem(list, 0, &value));
    EXPECT_EQ((Ints{ 1, 3, 4, 5, 9 }), AllNumbers());
}

TEST_F(ListItems, ListSortedByCodeOrdersItsCodes)
{
    Make("%ni%ni", HLS_SORTCODE);
    AddNumbers({ 1, 2, 3 }, { 30, 10, 20 });
    EXPECT_EQ((Ints{ 2, 3, 1 }), AllNumbers());
}

TEST_F(ListItems, SortByDataWinsOverSortByCode)
{
    Make("%ni%ni", HLS_SORTCODE | HLS_SORTDATA);
    AddNumbers({ 2, 1, 3 }, { 30, 20, 10 });
    EXPECT_EQ((Ints{ 1, 2, 3 }), AllNumbers());
}

TEST_F(ListItems, TypeTextWithoutAPairMeansTexts)
{
    Make("plain");
    EXPECT_EQ('s', Send(HLM_GETDATACLASS));
    EXPECT_EQ('s', Send(HLM_GETDATATYPE));
    Add({ "a" });
    EXPECT_EQ("a", Text(0));
}

TEST_F(ListItems, ManyTextsWithTextCodesComeFromPointerArrays)
{
    Make("%ss%ss");
    const char* const data[] = { "one", "two" };
    const char* const codes[] = { "I", "II" };
    EXPECT_EQ(2, HLAddItemsEx(list, 2, data, codes));
    char code[8] = "";
    EXPECT_EQ(1, HLGetCode(list, 1, code));
    EXPECT_STREQ("II", code);
    EXPECT_EQ(1, HLFindCode(list, 0, "II"));
}

TEST_F(ListItems, ManyItemsWithAnIndexKeepTheirOrder)
{
    Make("%ni");
    AddNumbers({ 1, 2 });
    const int more[] = { 7, 8, 9 };
    EXPECT_EQ(3, HLInsertItems(list, 1, 3, more));
    EXPECT_EQ((Ints{ 1, 7, 8, 9, 2 }), AllNumbers());
}

TEST_F(ListItems, NoManyItemsStillLayOut)
{
    Make("%ni");
    AddNumbers({ 1 });
    Ctl()->cRows = 77;
    const int none = 0;
    EXPECT_EQ(0, HLAddItems(list, 0, &none));
    EXPECT_NE(77, +Ctl()->cRows);
}

TEST_F(ListItems, InsertedStringIsParsed)
{
    Make("%ni%ni");
    EXPECT_EQ(0, HLInsertStringEx(list, -1, "12", "34"));
    int code = 0;
    EXPECT_EQ(12, Number(0));
    EXPECT_EQ(1, HLGetCode(list, 0, &code));
    EXPECT_EQ(34, code);
    Make("%ss%ss");
    EXPECT_EQ(0, HLInsertStringEx(list, -1, "text", "key"));
    EXPECT_EQ("text", Text(0));
    EXPECT_EQ(0, HLFindCode(list, 0, "key"));
}

TEST_F(ListItems, InsertedStringsCodeIsLeftOutOfAListWithoutCodes)
{
    Make("%ni");
    EXPECT_EQ(0, HLInsertStringEx(list, -1, "12", "34"));
    EXPECT_EQ(-1, HLFindCode(list, 0, "34"));
}

TEST_F(ListItems, DeleteItemRefusesAnIndexOutOfRange)
{
    Make("%ni");
    AddNumbers({ 1, 2 });
    EXPECT_EQ(0, HLDeleteItem(list, -1));
    EXPECT_EQ(0, HLDeleteItem(list, 2));
    EXPECT_EQ(1, HLDeleteItem(list, 0));
    EXPECT_EQ((Ints{ 2 }), AllNumbers());
}

TEST_F(ListItems, DeleteItemsByEachSelector)
{
    struct Row {
        int  which;
        Ints list;
        int  deleted;
        Ints left;
    };
    const Row rows[] = {
        { HLI_ALL, {}, 5, {} },
        { HLI_BYDATA, { 20, 99, 50 }, 2, { 10, 30, 40 } },
        { HLI_BYCODE, { 1, 3, 9 }, 2, { 20, 40, 50 } },
        { HLI_BYINDEX, { 0, 4 }, 1, { 20, 30, 40, 50 } }, // there is no item 4 any more
        { HLI_SELECTED, {}, 2, { 10, 30, 50 } },
        { 3, { 0 }, 0, { 10, 20, 30, 40, 50 } },
    };
    for (const Row& row : rows) {
        Make("%ni%ni", HLS_MULTISEL);
        AddNumbers({ 10, 20, 30, 40, 50 }, { 1, 2, 3, 4, 5 });
        Select({ 1, 3 });
        EXPECT_EQ(row.deleted, HLDeleteItems(list, row.which, static_cast<int>(row.list.size()), row.list.data()))
            << "selector " << row.which;
        EXPECT_EQ(row.left, AllNumbers()) << "selector " << row.which;
    }
}

TEST_F(ListItems, DeleteItemsByIndexDoesNotRebaseTheSecondIndex)
{
    Make("%ni");
    AddNumbers({ 10, 11, 12, 13, 14 });
    const int indexes[] = { 1, 2 };
    EXPECT_EQ(2, HLDeleteItems(list, HLI_BYINDEX, 2, indexes));
    EXPECT_EQ((Ints{ 10, 12, 14 }), AllNumbers());
}

TEST_F(ListItems, DeleteItemsKeepsTheRedrawState)
{
    Make("%ni");
    AddNumbers({ 1, 2 });
    Send(HLM_SETREDRAW, 0);
    HLDeleteItems(list, HLI_ALL, 0, nullptr);
    EXPECT_TRUE(Ctl()->wFlags & HLF_NOREDRAW);
    Send(HLM_SETREDRAW, 1);
    HLDeleteItems(list, HLI_ALL, 0, nullptr);
    EXPECT_FALSE(Ctl()->wFlags & HLF_NOREDRAW);
}

TEST_F(ListItems, DeletionDropsTheFirstSelectedItemAtOrBehindIt)
{
    Make("%ni", HLS_MULTISEL);
    AddNumbers({ 0, 1, 2, 3, 4, 5, 6, 7, 8 });
    Select({ 5, 7 });
    HLDeleteItem(list, 3);
    EXPECT_EQ((Ints{ 6 }), Selected());
}

TEST_F(ListItems, InsertionShiftsTheSelectedItemsFromThereOn)
{
    Make("%ni", HLS_MULTISEL);
    AddNumbers({ 0, 1, 2, 3, 4, 5, 6 });
    Select({ 3, 5 });
    const int value = 9;
    HLInsertItem(list, 3, &value);
    EXPECT_EQ((Ints{ 4, 6 }), Selected());
}

TEST_F(ListItems, FindWrapsAround)
{
    Make("%ni%ni");
    AddNumbers({ 7, 8, 7 }, { 1, 2, 3 });
    const int data = 7;
    const int code = 1;
    const int none = 99;
    EXPECT_EQ(0, HLFindData(list, 0, &data));
    EXPECT_EQ(2, HLFindData(list, 1, &data));
    EXPECT_EQ(0, HLFindCode(list, 2, &code));
    EXPECT_EQ(-1, HLFindData(list, 0, &none));
    EXPECT_EQ(-1, HLFindCode(list, 0, &none));
    Make("%ni");
    AddNumbers({ 7 });
    EXPECT_EQ(-1, HLFindCode(list, 0, &code)) << "no codes";
}

TEST_F(ListItems, SetCodeChangesTheCode)
{
    Make("%ni%ni");
    AddNumbers({ 7, 8 }, { 1, 2 });
    int code = 5;
    EXPECT_EQ(1, HLSetCode(list, 1, &code));
    code = 0;
    EXPECT_EQ(1, HLGetCode(list, 1, &code));
    EXPECT_EQ(5, code);
}

TEST_F(ListItems, GetItemsFetchesDataCodesAndIndexes)
{
    Make("%ni%ni", HLS_MULTISEL);
    AddNumbers({ 10, 20, 30 }, { 1, 2, 3 });
    Select({ 0, 2 });
    int       out[3] = {};
    const int unused = 0;
    EXPECT_EQ(2, HLGetItems(list, 0, 1, out, HLI_SELECTED, &unused));
    EXPECT_EQ(10, out[0]);
    EXPECT_EQ(30, out[1]);
    EXPECT_EQ(2, HLGetItems(list, 0, 2, out, HLI_SELECTED, &unused));
    EXPECT_EQ(1, out[0]);
    EXPECT_EQ(3, out[1]);
    EXPECT_EQ(1, HLGetItems(list, 0, 4, out, HLI_UNSELECTED, &unused));
    EXPECT_EQ(1, out[0]);
    out[0] = 77;
    EXPECT_EQ(3, HLGetItems(list, 0, 3, out, HLI_ALL, &unused)) << "another kind stores nothing";
    EXPECT_EQ(77, out[0]);
}

TEST_F(ListItems, GetItemsFillsTextsIntoBuffersInTurn)
{
    Make("%ss");
    Add({ "one", "two" });
    char      first[8] = "";
    char      second[8] = "";
    char*     out[] = { first, second };
    const int unused = 0;
    EXPECT_EQ(2, HLGetItems(list, 0, 1, out, HLI_ALL, &unused));
    EXPECT_STREQ("one", first);
    EXPECT_STREQ("two", second);
    const char* const wanted[] = { "two", "none", "one" };
    EXPECT_EQ(2, HLGetItems(list, 3, 1, out, HLI_BYDATA, wanted));
    EXPECT_STREQ("two", first);
}

TEST_F(ListItems, GetItemsNeedsAListEvenForSelectorsThatDoNotReadIt)
{
    Make("%ni", HLS_MULTISEL);
    AddNumbers({ 10, 20 });
    Select({ 0 });
    int out = 77;
    EXPECT_EQ(0, HLGetItems(list, 0, 1, &out, HLI_SELECTED, nullptr));
    EXPECT_EQ(77, out);
}

TEST_F(ListItems, EmptyListKeepsItsIndexes)
{
    Make("%ni", HLS_MULTISEL);
    AddNumbers({ 1, 2, 3 });
    Send(HLM_SETCURRENT, 2);
    Select({ 1 });
    EXPECT_EQ(1, HLEmptyList(list));
    EXPECT_EQ(0, Count());
    EXPECT_EQ(0, Send(HLM_GETSELCOUNT));
    EXPECT_EQ(2, Current());
    EXPECT_EQ(2, +Ctl()->nAnchor);
}

TEST_F(ListItems, OwnerDrawnListTellsOfEachDeletion)
{
    struct Gone {
        DELETEITEMSTRUCT item;
        int              count;
    } gone = {};
    parent.OnMessage(WM_DELETEITEM, [&](WPARAM, LPARAM lParam) {
        gone.item = *reinterpret_cast<DELETEITEMSTRUCT*>(lParam);
        ++gone.count;
        return LRESULT{ 1 };
    });
    Make("%ss%nW", HLS_OWNERDRAW);
    const DWORD code = 0x12345678;
    HLAddItemEx(list, "a", &code);
    HLAddItemEx(list, "b", &code);
    EXPECT_EQ(1, HLDeleteItem(list, 1));
    EXPECT_EQ(1, gone.count);
    EXPECT_EQ(2u, gone.item.CtlType);
    EXPECT_EQ(7u, gone.item.CtlID);
    EXPECT_EQ(1u, gone.item.itemID);
    EXPECT_EQ(list, gone.item.hwndItem);
    EXPECT_EQ(code, gone.item.itemData) << "a code of this type goes in place of a pointer";
}

TEST_F(ListItems, InsertionLaysOutUnlessRedrawIsOff)
{
    Make("%ni");
    Ctl()->cRows = 77;
    Send(HLM_SETREDRAW, 0);
    AddNumbers({ 1 });
    EXPECT_EQ(77, +Ctl()->cRows);
    Send(HLM_SETREDRAW, 1);
    AddNumbers({ 2 });
    EXPECT_NE(77, +Ctl()->cRows);
}

TEST_F(ListItems, ManyItemsEndTheHostsRedrawBatch)
{
    Make("%ni");
    Send(HLM_SETREDRAW, 0);
    const int data[] = { 1, 2 };
    HLAddItems(list, 2, data);
    EXPECT_FALSE(Send(HLM_GETFLAGS) & HLF_NOREDRAW);
}

TEST_F(ListItems, InsertedStringsDataHasTheFormatOfTheListAndItsCodeNone)
{
    Make("%bi%biup;down");
    HLInsertStringEx(list, -1, "up", "up");
    int code = 77;
    HLGetCode(list, 0, &code);
    EXPECT_EQ(1, Number(0));
    EXPECT_EQ(0, code) << "no text for true without the format";
}

TEST_F(ListItems, EmptyListNeitherLaysOutNorInvalidates)
{
    Make("%ni");
    AddNumbers({ 1, 2, 3 });
    Ctl()->cRows = 77;
    const Invalidated seenOf = InvalidatedBy([&] { HLEmptyList(list); });
    EXPECT_TRUE(IsRectEmpty(&seenOf.area));
    EXPECT_EQ(77, +Ctl()->cRows);
}

TEST_F(ListItems, GetItemsFillsTextCodesIntoBuffersInTurn)
{
    Make("%ni%ss");
    const int data = 1;
    HLAddItemEx(list, &data, "one");
    HLAddItemEx(list, &data, "two");
    char      first[8] = "";
    char      second[8] = "";
    char*     out[] = { first, second };
    const int unused = 0;
    EXPECT_EQ(2, HLGetItems(list, 0, 2, out, HLI_ALL, &unused));
    EXPECT_STREQ("one", first);
    EXPECT_STREQ("two", second);
}

TEST_F(ListItems, GetItemsByIndexSkipsThoseBelowZeroAndCountsThoseBehindTheEnd)
{
    Make("%ni");
    AddNumbers({ 10, 20 });
    const int indexes[] = { -1, 1, 99 };
    int       out[3] = { 77, 77, 77 };
    EXPECT_EQ(2, HLGetItems(list, 3, 4, out, HLI_BYINDEX, indexes));
    EXPECT_EQ(1, out[0]);
    EXPECT_EQ(99, out[1]);
    out[1] = 77;
    EXPECT_EQ(2, HLGetItems(list, 3, 1, out, HLI_BYINDEX, indexes));
    EXPECT_EQ(20, out[0]);
    EXPECT_EQ(77, out[1]) << "there is nothing to copy";
}

TEST_F(ListItems, OwnerOfOtherCodesIsToldTheDataOfADeletion)
{
    std::string gone;
    parent.OnMessage(WM_DELETEITEM, [&](WPARAM, LPARAM lParam) {
        gone = reinterpret_cast<const char*>(reinterpret_cast<DELETEITEMSTRUCT*>(lParam)->itemData);
        return LRESULT{ 1 };
    });
    for (const char* const text : { "%ss%ni", "%ss" }) {
        gone.clear();
        Make(text, HLS_OWNERDRAW);
        const int code = 5;
        HLAddItemEx(list, "first", &code);
        HLDeleteItem(list, 0);
        EXPECT_EQ("first", gone) << text;
    }
}

} // namespace
