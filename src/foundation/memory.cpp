// The two functions through which every block of the library comes and goes. They stand alone in this source,
// because test programs link another pair in their place.
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
