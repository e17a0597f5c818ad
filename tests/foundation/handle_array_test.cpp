// Growable arrays: growth by 32 elements, gaps, the ends of the array, and what happens without memory.
#include "foundation/memory.h"
#include "support/guarded_memory.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

class HandleArray : public testing::Test {
protected:
    void SetUp() override { liveBefore = LiveBlocks(); }
    void TearDown() override
    {
        HAFree(array);
        EXPECT_EQ(liveBefore, LiveBlocks());
    }
    void Make(DWORD cInitial = 0, DWORD cGrow = 0, int shared = 0)
    {
        array = HANew(sizeof(int), cInitial, cGrow, shared);
        ASSERT_NE(nullptr, array);
    }
    void Push(int value) { HAPush(array, &value); }
    int  At(DWORD index)
    {
        const void* const item = HAGetPtr(array, index);
        return item ? LoadAs<int>(item) : -1;
    }
    std::vector<int> All()
    {
        std::vector<int> all;
        for (DWORD i = 0; i < array->cUsed; i++) {
            all.push_back(At(i));
        }
        return all;
    }

    HArray* array = nullptr;
    int     liveBefore = 0;
};

using Ints = std::vector<int>;

TEST_F(HandleArray, OfElementsWithoutBytesIsNull)
{
    EXPECT_EQ(nullptr, HANew(0, 5, 0, 0));
}

TEST_F(HandleArray, InitOfElementsWithoutBytesFailsAndLeavesZeros)
{
    HArray local;
    std::memset(&local, 0x55, sizeof local);
    EXPECT_EQ(-1, HAInit(&local, 0, 5, 7, 1));
    const HArray zeros = {};
    EXPECT_EQ(0, std::memcmp(&zeros, &local, sizeof local));
}

TEST_F(HandleArray, InitKeepsWhatWasAskedFor)
{
    HArray local;
    std::memset(&local, 0x55, sizeof local);
    EXPECT_EQ(0, HAInit(&local, 8, 0, 5, 7));
    EXPECT_EQ(0u, local.cAlloc);
    EXPECT_EQ(5u, local.cGrow);
    EXPECT_EQ(0u, local.cUsed);
    EXPECT_EQ(8u, local.cbItem);
    EXPECT_EQ(1u, local.fShared);
    EXPECT_EQ(nullptr, local.pItems);
}

TEST_F(HandleArray, AGrowthStepOfNothingReads32)
{
    Make(0, 0);
    EXPECT_EQ(32u, array->cGrow);
}

TEST_F(HandleArray, InitialRoomIsRoundedUpTo32)
{
    struct {
        DWORD asked;
        DWORD room;
    } const rows[] = { { 0, 0 }, { 1, 32 }, { 32, 32 }, { 33, 64 }, { 64, 64 }, { 65, 96 } };
    for (const auto& row : rows) {
        HArray local;
        EXPECT_EQ(0, HAInit(&local, 4, row.asked, 0, 0)) << row.asked;
        EXPECT_EQ(row.room, local.cAlloc) << row.asked;
        HAEmpty(&local);
    }
}

TEST_F(HandleArray, PushOnAFullArrayOf32MakesRoomFor64)
{
    Make();
    for (int i = 0; i < 32; i++) {
        Push(i);
    }
    EXPECT_EQ(32u, array->cAlloc);
    Push(32);
    EXPECT_EQ(64u, array->cAlloc);
    EXPECT_EQ(0, At(0));
    EXPECT_EQ(31, At(31));
    EXPECT_EQ(32, At(32));
}

TEST_F(HandleArray, GrowsBy32WhateverStepWasGiven)
{
    Make(32, 5);
    for (int i = 0; i < 33; i++) {
        Push(i);
    }
    EXPECT_EQ(64u, array->cAlloc);
    EXPECT_EQ(5u, array->cGrow);
}

TEST_F(HandleArray, SetFarBehindTheEndLeavesZerosBetween)
{
    Make();
    const int value = 7;
    EXPECT_EQ(0, HASet(array, 100, &value));
    EXPECT_EQ(128u, array->cAlloc);
    EXPECT_EQ(101u, array->cUsed);
    for (DWORD i = 0; i < 100; i++) {
        EXPECT_EQ(0, At(i)) << i;
    }
    EXPECT_EQ(7, At(100));
}

TEST_F(HandleArray, SetFarBehindPoppedElementsLeavesTheirBytes)
{
    Make();
    Push(1);
    Push(2);
    Push(3);
    HAPop(array);
    HAPop(array);
    const int value = 7;
    EXPECT_EQ(0, HASet(array, 4, &value));
    EXPECT_EQ((Ints{ 1, 2, 3, 0, 7 }), All());
}

TEST_F(HandleArray, SetInsideKeepsTheCount)
{
    Make();
    Push(1);
    Push(2);
    const int value = 9;
    EXPECT_EQ(0, HASet(array, 0, &value));
    EXPECT_EQ((Ints{ 9, 2 }), All());
}

TEST_F(HandleArray, SetOfNothingStoresZeros)
{
    Make();
    Push(5);
    EXPECT_EQ(0, HASet(array, 0, nullptr));
    EXPECT_EQ((Ints{ 0 }), All());
}

TEST_F(HandleArray, SetAtTheHighestIndexFails)
{
    Make();
    EXPECT_EQ(-1, HASet(array, 0xFFFFFFFF, nullptr));
    EXPECT_EQ(0u, array->cUsed);
    EXPECT_EQ(0u, array->cAlloc);
}

TEST_F(HandleArray, RoomOfMoreBytesThanThereAreFails)
{
    HArray local;
    EXPECT_EQ(-1, HAInit(&local, 0xFFFFFFFF, 0xFFFFFFFF, 0, 0));
    EXPECT_EQ(nullptr, local.pItems);
}

TEST_F(HandleArray, RoomBeyondTheHighestCountFails)
{
    Make(32);
    Push(5);
    array->cAlloc = 0xFFFFFFE0; // as if so many had been stored
    EXPECT_EQ(-1, HASet(array, 0xFFFFFFE0, nullptr));
    EXPECT_EQ(0xFFFFFFE0, array->cAlloc);
    array->cAlloc = 32;
    EXPECT_EQ((Ints{ 5 }), All());
}

TEST_F(HandleArray, InsertOpensAGap)
{
    Make(32);
    Push(1);
    Push(2);
    Push(3);
    const int value = 9;
    EXPECT_EQ(0, HAInsert(array, 1, &value));
    EXPECT_EQ((Ints{ 1, 9, 2, 3 }), All());
}

TEST_F(HandleArray, InsertOfNothingOpensAGapOfZeros)
{
    Make(32);
    Push(1);
    EXPECT_EQ(0, HAInsert(array, 0, nullptr));
    EXPECT_EQ((Ints{ 0, 1 }), All());
}

TEST_F(HandleArray, InsertBehindTheEndActsAsSet)
{
    Make(32);
    Push(1);
    const int value = 9;
    EXPECT_EQ(0, HAInsert(array, 3, &value));
    EXPECT_EQ((Ints{ 1, 0, 0, 9 }), All());
}

TEST_F(HandleArray, InsertThatHasToGrowLeavesTheElementsAndAZeroLastPlace)
{
    Make();
    Ints expected;
    for (int i = 0; i < 32; i++) {
        Push(i + 1);
        expected.push_back(i + 1);
    }
    expected.push_back(0);
    const int value = 99;
    EXPECT_EQ(0, HAInsert(array, 3, &value));
    EXPECT_EQ(64u, array->cAlloc);
    EXPECT_EQ(expected, All());
}

TEST_F(HandleArray, AnElementOfTheArrayItselfSurvivesTheGrowth)
{
    Make();
    for (int i = 0; i < 32; i++) {
        Push(i + 1);
    }
    const void* const pushed = HAPush(array, HAGetPtr(array, 4));
    ASSERT_NE(nullptr, pushed);
    EXPECT_EQ(5, LoadAs<int>(pushed));
}

TEST_F(HandleArray, PopGivesTheLastElementAndTakesItOff)
{
    Make();
    Push(1);
    Push(2);
    EXPECT_EQ(2, LoadAs<int>(HAPopRef(array)));
    EXPECT_EQ(2u, array->cUsed);
    EXPECT_EQ(2, LoadAs<int>(HAPop(array)));
    EXPECT_EQ(1u, array->cUsed);
    EXPECT_EQ(1, LoadAs<int>(HAPop(array)));
    EXPECT_EQ(nullptr, HAPop(array));
    EXPECT_EQ(nullptr, HAPopRef(array));
}

TEST_F(HandleArray, PushOfNothingAddsNothing)
{
    Make(32);
    EXPECT_EQ(nullptr, HAPush(array, nullptr));
    EXPECT_EQ(0u, array->cUsed);
}

TEST_F(HandleArray, GetCopiesAnElementInUseOnly)
{
    Make(32);
    Push(4);
    int value = 77;
    EXPECT_EQ(0, HAGet(array, 0, &value));
    EXPECT_EQ(4, value);
    EXPECT_EQ(-1, HAGet(array, 1, &value));
    EXPECT_EQ(4, value);
    EXPECT_EQ(nullptr, HAGetPtr(array, 1));
}

TEST_F(HandleArray, RemoveClosesTheGapAndZeroesTheFreePlace)
{
    Make();
    Push(1);
    Push(2);
    Push(3);
    EXPECT_EQ(0, HARemove(array, 0));
    EXPECT_EQ((Ints{ 2, 3 }), All());
    EXPECT_EQ(0, LoadAs<int>(array->pItems + 2 * sizeof(int)));
    EXPECT_EQ(-1, HARemove(array, 2));
}

TEST_F(HandleArray, EmptyGivesTheRoomBackAndLeavesAUsableRecord)
{
    Make();
    Push(1);
    EXPECT_EQ(0, HAEmpty(array));
    EXPECT_EQ(0u, array->cUsed);
    EXPECT_EQ(0u, array->cAlloc);
    EXPECT_EQ(nullptr, array->pItems);
    Push(8);
    EXPECT_EQ((Ints{ 8 }), All());
}

TEST_F(HandleArray, NothingIsEmptiedAndFreedWithoutAnArray)
{
    EXPECT_EQ(0, HAEmpty(nullptr));
    EXPECT_EQ(0, HAFree(nullptr));
}

TEST_F(HandleArray, WithoutAnArrayEverythingFails)
{
    int value = 7;
    EXPECT_EQ(-1, HAInit(nullptr, sizeof value, 0, 0, 0));
    EXPECT_EQ(-1, HAGet(nullptr, 0, &value));
    EXPECT_EQ(nullptr, HAGetPtr(nullptr, 0));
    EXPECT_EQ(-1, HASet(nullptr, 0, &value));
    EXPECT_EQ(-1, HAInsert(nullptr, 0, &value));
    EXPECT_EQ(nullptr, HAPush(nullptr, &value));
    EXPECT_EQ(nullptr, HAPop(nullptr));
    EXPECT_EQ(nullptr, HAPopRef(nullptr));
    EXPECT_EQ(-1, HARemove(nullptr, 0));
    EXPECT_EQ(7, value);
}

TEST_F(HandleArray, SharedRecordsAreSharedBlocksToo)
{
    Make(0, 0, 1);
    EXPECT_EQ(8256u, LastBlockFlags());
    EXPECT_EQ(sizeof(HArray), LastBlockSize());
}

TEST_F(HandleArray, SharedArraysAskForSharedBlocks)
{
    Make(1, 0, 1);
    EXPECT_EQ(8256u, LastBlockFlags());
    Push(1);
    HAEmpty(array);
    Push(1);
    EXPECT_EQ(8256u, LastBlockFlags());
}

TEST_F(HandleArray, OtherArraysAskForZeroedBlocksOnly)
{
    Make(1);
    EXPECT_EQ(64u, LastBlockFlags());
}

TEST_F(HandleArray, WithoutMemoryNothingChanges)
{
    Make();
    for (int i = 0; i < 32; i++) {
        Push(i);
    }
    const int value = 1;
    FailAllocation(1);
    EXPECT_EQ(-1, HASet(array, 32, &value));
    FailAllocation(1);
    EXPECT_EQ(-1, HAInsert(array, 0, &value));
    FailAllocation(1);
    EXPECT_EQ(nullptr, HAPush(array, &value));
    FailAllocation(0);
    EXPECT_EQ(32u, array->cUsed);
    EXPECT_EQ(32u, array->cAlloc);
    EXPECT_EQ(31, At(31));
}

TEST_F(HandleArray, NewWithoutMemoryIsNullAndLeavesNothingBehind)
{
    FailEachAllocation each;
    while (each.Next()) {
        HArray* const made = HANew(4, 10, 0, 0);
        EXPECT_EQ(AllocationFailed(), made == nullptr) << each.Number();
        HAFree(made);
    }
}

TEST_F(HandleArray, TheEmptyShellsGiveNothing)
{
    int dummy = 0;
    EXPECT_EQ(nullptr, HMAlloc(64, 100));
    EXPECT_EQ(nullptr, HMReAlloc(&dummy, 100));
    EXPECT_EQ(nullptr, HMFree(&dummy));
}

} // namespace
