// Blocks that end at a page without access, so that an overrun stops at the line that makes it.
// In the native build the sanitizer guards the ends of its own blocks, to the byte.
#include "support/guarded_memory.h"

#include <cstdio>
#include <cstdlib>
#include <deque>
#include <unordered_map>

namespace {

struct Block {
    size_t size;
    void*  pages; // what was reserved for it; null: it came from the heap
    size_t used;  // bytes of the pages that can be touched
};

int    gTried;
int    gFailAt;      // the try that fails; 0: none
bool   gFailOnwards; // and all after it
bool   gFailed;
UINT   gLastFlags;
size_t gLastSize;

std::unordered_map<void*, Block>& Blocks()
{
    static std::unordered_map<void*, Block> blocks;
    return blocks;
}

#ifdef _WIN32

// Each reservation takes 64 KB of addresses, of which a 32-bit process hasn't many.
constexpr size_t        maxGuarded = 8000;
constexpr size_t        maxQuarantine = 256;
constexpr unsigned char slackMark = 0xA5;

// Pages of freed blocks, which fault when they are touched. Tables of tests free some before main() runs.
std::deque<void*>& Quarantine()
{
    static std::deque<void*> pages;
    return pages;
}

size_t PageSize()
{
    SYSTEM_INFO info;
    GetSystemInfo(&info);
    return info.dwPageSize;
}

// Blocks lie at even addresses, as packed records do, so a block of odd size ends one byte before the page.
size_t EvenSize(size_t size)
{
    return size + (size & 1);
}

void* PlainBlock(size_t size)
{
    void* const block = std::calloc(1, size + 1);
    if (block) {
        Blocks()[block] = { size, nullptr, 0 };
    }
    return block;
}

void* NewBlock(size_t size)
{
    static const size_t pageSize = PageSize();
    if (Blocks().size() >= maxGuarded) {
        return PlainBlock(size);
    }
    const size_t used = (EvenSize(size) + pageSize - 1) / pageSize * pageSize;
    void* const  pages = VirtualAlloc(nullptr, used + pageSize, MEM_RESERVE, PAGE_NOACCESS);
    if (!pages || (used && !VirtualAlloc(pages, used, MEM_COMMIT, PAGE_READWRITE))) {
        return nullptr;
    }
    unsigned char* const block = static_cast<unsigned char*>(pages) + used - EvenSize(size);
    if (size & 1) {
        block[size] = slackMark;
    }
    Blocks()[block] = { size, pages, used };
    return block;
}

void CheckSlack(const unsigned char* block, size_t size)
{
    if ((size & 1) && block[size] != slackMark) {
        std::fprintf(stderr, "HBlockFree: the byte behind a block of %u bytes was written\n",
                     static_cast<unsigned>(size));
        std::abort();
    }
}

void DropBlock(void* block, const Block& entry)
{
    if (!entry.pages) {
        std::free(block);
        return;
    }
    CheckSlack(static_cast<unsigned char*>(block), entry.size);
    if (entry.used) {
        VirtualFree(entry.pages, entry.used, MEM_DECOMMIT);
    }
    Quarantine().push_back(entry.pages);
    if (Quarantine().size() > maxQuarantine) {
        VirtualFree(Quarantine().front(), 0, MEM_RELEASE);
        Quarantine().pop_front();
    }
}

#else

void* NewBlock(size_t size)
{
    void* const block = std::calloc(1, size);
    if (block) {
        Blocks()[block] = { size, nullptr, 0 };
    }
    return block;
}

void DropBlock(void* block, const Block&)
{
    std::free(block);
}

#endif

bool IsTurnToFail()
{
    return gFailAt > 0 && (gFailOnwards ? gTried >= gFailAt : gTried == gFailAt);
}

void FailAt(int n, bool onwards)
{
    gFailAt = n > 0 ? gTried + n : 0;
    gFailOnwards = onwards;
    gFailed = false;
}

} // namespace

void FailAllocation(int n)
{
    FailAt(n, false);
}

void FailAllocationsFrom(int n)
{
    FailAt(n, true);
}

bool AllocationFailed()
{
    return gFailed;
}

int AllocationCount()
{
    return gTried;
}

int LiveBlocks()
{
    return static_cast<int>(Blocks().size());
}

size_t BlockSize(const void* block)
{
    const auto found = Blocks().find(const_cast<void*>(block));
    return found == Blocks().end() ? 0 : found->second.size;
}

size_t LastBlockSize()
{
    return gLastSize;
}

UINT LastBlockFlags()
{
    return gLastFlags;
}

void* HBlockAlloc(size_t size, UINT extraFlags)
{
    ++gTried;
    if (IsTurnToFail()) {
        gFailed = true;
        return nullptr;
    }
    gLastSize = size;
    gLastFlags = GMEM_FIXED | GMEM_ZEROINIT | extraFlags;
    return NewBlock(size);
}

void HBlockFree(void* block)
{
    if (!block) {
        return;
    }
    const auto found = Blocks().find(block);
    if (found == Blocks().end()) {
        std::fprintf(stderr, "HBlockFree: %p is not a live block\n", block);
        std::abort();
    }
    const Block entry = found->second;
    Blocks().erase(found);
    DropBlock(block, entry);
}
