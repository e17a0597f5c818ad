// The block allocator of test programs: each block ends at a page that can't be touched, any allocation can be made
// to fail, and live blocks are counted. It stands in for src/foundation/block_memory.cpp.
#pragma once

#include "foundation/memory.h"

// Makes the n-th allocation from now fail, counting from 1, and only that one. 0: none.
void FailAllocation(int n);
// Makes the n-th allocation from now and all after it fail. 0: none.
void FailAllocationsFrom(int n);
// Whether the failure that was asked for has happened since.
bool AllocationFailed();

int    AllocationCount();            // allocations tried since the start, failed ones included
int    LiveBlocks();                 // blocks that weren't freed
size_t BlockSize(const void* block); // bytes asked for; 0 if it is no live block
size_t LastBlockSize();              // of the last allocation that wasn't made to fail
UINT   LastBlockFlags();             // as GlobalAlloc would get them

// Fails each allocation of a piece of code in turn, until it runs through without one:
//     for (FailEachAllocation each; each.Next();) { run the code, see that it failed cleanly or passed }
class FailEachAllocation {
public:
    FailEachAllocation() = default;
    ~FailEachAllocation() { FailAllocation(0); }
    FailEachAllocation(const FailEachAllocation&) = delete;
    FailEachAllocation& operator=(const FailEachAllocation&) = delete;

    bool Next()
    {
        if (n_ > 0 && !AllocationFailed()) {
            return false;
        }
        FailAllocation(++n_);
        return true;
    }
    int Number() const { return n_; } // which allocation fails in this round

private:
    int n_ = 0;
};
