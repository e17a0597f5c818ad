// The blocks of the library. Test programs link tests/support/guarded_memory.cpp in place of this source.
#include "foundation/memory.h"

void* HBlockAlloc(size_t size, UINT extraFlags)
{
    return GlobalAlloc(GMEM_FIXED | GMEM_ZEROINIT | extraFlags, size);
}

void HBlockFree(void* block)
{
    if (block) {
        GlobalFree(block);
    }
}
