// Arrays, texts and lists through the DLL.
#include <widgets/widgets.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

TEST(DllMemory, TheOldShellsGiveNull)
{
    char block[4];
    EXPECT_EQ(nullptr, HMAlloc(0, 16));
    EXPECT_EQ(nullptr, HMReAlloc(block, 16));
    EXPECT_EQ(nullptr, HMFree(block));
}

TEST(DllArray, GrowsAndShrinksInPlace)
{
    HArray* const array = HANew(sizeof(int), 8, 0, 0);
    ASSERT_NE(nullptr, array);
    const int values[] = { 10, 20, 30, 15 };
    EXPECT_NE(nullptr, HAPush(array, &values[0]));
    EXPECT_NE(nullptr, HAPush(array, &values[1]));
    EXPECT_EQ(0, HASet(array, 2, &values[2]));
    EXPECT_EQ(0, HAInsert(array, 1, &values[3]));
    int out = 0;
    EXPECT_EQ(0, HAGet(array, 1, &out));
    EXPECT_EQ(15, out);
    EXPECT_EQ(20, *static_cast<int*>(HAGetPtr(array, 2)));
    EXPECT_EQ(30, *static_cast<int*>(HAPopRef(array)));
    EXPECT_EQ(30, *static_cast<int*>(HAPop(array)));
    EXPECT_EQ(0, HARemove(array, 0));
    EXPECT_EQ(2u, array->cUsed);
    EXPECT_EQ(0, HAFree(array));
}

TEST(DllArray, LivesInARecordOfTheHost)
{
    HArray array;
    EXPECT_EQ(-1, HAInit(&array, 0, 0, 0, 0));
    EXPECT_EQ(0, HAInit(&array, 2, 33, 0, 0));
    EXPECT_EQ(64u, array.cAlloc);
    EXPECT_EQ(0, HAEmpty(&array));
    EXPECT_EQ(nullptr, array.pItems);
}

TEST(DllText, CopiesGoBackThroughGlobalFree)
{
    char buffer[3];
    EXPECT_EQ(2, _fstrnzcpy(buffer, "abc", sizeof buffer));
    EXPECT_STREQ("ab", buffer);
    char* text = hstrdup("one");
    EXPECT_STREQ("one", text);
    EXPECT_EQ(text, hstrdup2(&text, "two")) << "the result is what the slot holds now";
    EXPECT_STREQ("two", text);
    EXPECT_EQ(nullptr, GlobalFree(text));
}

// Texts of a list, in order.
std::vector<std::string> Texts(HLList* list)
{
    std::vector<std::string> texts;
    for (int i = 0; i < list->cItems; ++i) {
        texts.emplace_back(static_cast<char*>(HLListGetItem(list, i)) + sizeof(void*));
    }
    return texts;
}

using Strings = std::vector<std::string>;

TEST(DllList, KeepsTextsInOrder)
{
    HLList* const list = HLListCreate(-1, nullptr, nullptr, nullptr, nullptr, nullptr, 1);
    ASSERT_NE(nullptr, list);
    for (const char* text : { "pear", "Apple", "fig" }) {
        HLListAdd(list, text);
    }
    EXPECT_EQ((Strings{ "Apple", "fig", "pear" }), Texts(list));
    EXPECT_EQ(1, HLListFindPlace(list, "cherry"));
    int index = -1;
    EXPECT_NE(nullptr, HLListFind(list, "FIG", 0, &index));
    EXPECT_EQ(1, index);
    EXPECT_EQ(1, HLListDestroy(list));
}

int NumberAt(HLList* list, int index)
{
    int number = 0;
    std::memcpy(&number, static_cast<char*>(HLListGetItem(list, index)) + sizeof(void*), sizeof number);
    return number;
}

// A list of the numbers from 0 on: gives how often one of them wasn't found where it belongs.
DWORD CALLBACK WorkOnAList(void*)
{
    constexpr int count = 1000;
    HLList* const list = HLListCreate(sizeof(int), nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    for (int i = 0; i < count; ++i) {
        HLListAppend(list, &i);
    }
    DWORD wrong = 0;
    for (int i = 0; i < 20000; ++i) {
        const int place = i * 37 % count;
        const int number = NumberAt(list, place);
        wrong += number != place;
        HLListRemove(list, place);
        HLListInsert(list, place, &number);
    }
    HLListDestroy(list);
    return wrong;
}

TEST(DllList, ListsOfTwoThreadsKeepApart)
{
    const HANDLE other = CreateThread(nullptr, 0, WorkOnAList, nullptr, 0, nullptr);
    ASSERT_NE(nullptr, other);
    EXPECT_EQ(0u, WorkOnAList(nullptr));
    WaitForSingleObject(other, INFINITE);
    DWORD wrong = 1;
    GetExitCodeThread(other, &wrong);
    CloseHandle(other);
    EXPECT_EQ(0u, wrong);
}

TEST(DllList, MovesInsertsAndRemoves)
{
    HLList* const list = HLListCreate(-1, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    ASSERT_NE(nullptr, list);
    EXPECT_EQ(0, HLListAppend(list, "a"));
    EXPECT_EQ(1, HLListAppend(list, "c"));
    EXPECT_EQ(1, HLListInsert(list, 1, "b"));
    EXPECT_EQ(2, HLListMove(list, 0, 2));
    EXPECT_EQ((Strings{ "b", "c", "a" }), Texts(list));
    EXPECT_EQ(1, HLListRemove(list, 1));
    EXPECT_EQ((Strings{ "b", "a" }), Texts(list));

    HLList* const copy = HLListDup(list);
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ((Strings{ "b", "a" }), Texts(copy));
    EXPECT_EQ(1, HLListCopy(copy, list));
    EXPECT_EQ(4, copy->cItems);
    EXPECT_EQ(1, HLListEmpty(copy));
    EXPECT_EQ(1, HLListCompare(list, copy)) << "the longer list is above";
    EXPECT_EQ(1, HLListDestroy(copy));
    EXPECT_EQ(1, HLListDestroy(list));
}

int CALLBACK CompareBackwards(const void* a, const void* b)
{
    return *static_cast<const int*>(b) - *static_cast<const int*>(a);
}

TEST(DllList, CallsTheHostsCompare)
{
    HLList* const list = HLListCreate(sizeof(int), nullptr, nullptr, CompareBackwards, nullptr, nullptr, 1);
    ASSERT_NE(nullptr, list);
    for (const int value : { 1, 3, 2 }) {
        HLListAdd(list, &value);
    }
    const int three = 3;
    EXPECT_EQ(HLListGetItem(list, 0), HLListFind(list, &three, 0, nullptr));
    HLListDestroy(list);
}

} // namespace
