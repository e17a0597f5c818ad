// The block allocator of the tests themselves.
#include "support/guarded_memory.h"

#include "support/block_leaks.h"

#include <gtest/gtest.h>

namespace {

TEST(GuardedMemory, BlocksReadAsZeroAndAreCounted)
{
    const int   before = LiveBlocks();
    BYTE* const block = static_cast<BYTE*>(HBlockAlloc(33));
    ASSERT_NE(nullptr, block);
    for (int i = 0; i < 33; ++i) {
        EXPECT_EQ(0, block[i]) << i;
    }
    EXPECT_EQ(before + 1, LiveBlocks());
    EXPECT_EQ(33u, BlockSize(block));
    EXPECT_EQ(33u, LastBlockSize());
    EXPECT_EQ(64u, LastBlockFlags());
    HBlockFree(block);
    EXPECT_EQ(before, LiveBlocks());
    EXPECT_EQ(0u, BlockSize(block));
}

TEST(GuardedMemory, KeepsTheFlagsThatWereAskedFor)
{
    void* const block = HBlockAlloc(1, GMEM_SHARE);
    EXPECT_EQ(8256u, LastBlockFlags());
    HBlockFree(block);
}

TEST(GuardedMemory, FailsTheNthAllocationOnly)
{
    FailAllocation(2);
    void* const first = HBlockAlloc(8);
    EXPECT_FALSE(AllocationFailed());
    EXPECT_EQ(nullptr, HBlockAlloc(8));
    EXPECT_TRUE(AllocationFailed());
    void* const third = HBlockAlloc(8);
    EXPECT_NE(nullptr, first);
    EXPECT_NE(nullptr, third);
    HBlockFree(first);
    HBlockFree(third);
    FailAllocation(0);
}

TEST(GuardedMemory, FailsAllAllocationsFromTheNthOn)
{
    FailAllocationsFrom(2);
    void* const first = HBlockAlloc(8);
    EXPECT_NE(nullptr, first);
    EXPECT_EQ(nullptr, HBlockAlloc(8));
    EXPECT_EQ(nullptr, HBlockAlloc(8));
    FailAllocationsFrom(0);
    HBlockFree(first);
}

TEST(GuardedMemory, FailsEachAllocationOfAPieceOfCodeInTurn)
{
    const BlockLeakCheck leaks;
    int                  rounds = 0;
    for (FailEachAllocation each; each.Next();) {
        ++rounds;
        void* const first = HBlockAlloc(8);
        void* const second = HBlockAlloc(8);
        EXPECT_EQ(each.Number() == 1, first == nullptr);
        EXPECT_EQ(each.Number() == 2, second == nullptr);
        HBlockFree(first);
        HBlockFree(second);
    }
    EXPECT_EQ(3, rounds) << "two that fail and one that runs through";
}

#ifdef _WIN32
LONG WINAPI EndQuietly(EXCEPTION_POINTERS*)
{
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_EXECUTE_HANDLER;
}
#endif

// The end of the process is what the guard is for. It needs no debugger to look at it.
void TouchAndEnd(volatile BYTE* byte)
{
#ifdef _WIN32
    SetUnhandledExceptionFilter(EndQuietly);
#endif
    *byte = 1;
}

TEST(GuardedMemoryDeathTest, StopsAtAWriteBehindABlock)
{
    volatile BYTE* const block = static_cast<BYTE*>(HBlockAlloc(16));
    block[15] = 1;
    EXPECT_DEATH(TouchAndEnd(block + 16), "");
    HBlockFree(const_cast<BYTE*>(block));
}

TEST(GuardedMemoryDeathTest, StopsAtAReadOfAFreedBlock)
{
    volatile BYTE* const block = static_cast<BYTE*>(HBlockAlloc(16));
    HBlockFree(const_cast<BYTE*>(block));
    EXPECT_DEATH(TouchAndEnd(block), "");
}

TEST(GuardedMemoryDeathTest, StopsAtASecondFree)
{
    void* const block = HBlockAlloc(16);
    HBlockFree(block);
    EXPECT_DEATH(HBlockFree(block), "not a live block");
}

TEST(GuardedMemoryDeathTest, SeesAWriteOneByteBehindABlockOfOddSize)
{
    volatile BYTE* const block = static_cast<BYTE*>(HBlockAlloc(7));
    EXPECT_DEATH(
        {
            block[7] = 1;
            HBlockFree(const_cast<BYTE*>(block));
        },
        "");
    HBlockFree(const_cast<BYTE*>(block));
}

} // namespace
