// Resources: found and locked, and streams that read one.
#include "foundation/memory.h"
#include "foundation/stream_internal.h"

#include <algorithm>

namespace {

// A stream's record up to hResource; what stands behind it is known here only.
struct ResourceStream {
    int         nKind;
    STREAMREAD  pfnRead;
    STREAMWRITE pfnWrite;
    STREAMCLOSE pfnClose;
    STREAMSEEK  pfnSeek;
    STREAMSEEK  pfnSeekRel;
    const BYTE* pNext; // pData of a stream: where it reads next
    HGLOBAL     hResource;
    const BYTE* pEnd;
};
static_assert(offsetof(ResourceStream, pNext) == offsetof(Stream, pData));
static_assert(offsetof(ResourceStream, hResource) == offsetof(Stream, nPos));

ResourceStream* ResourceOf(Stream* stream)
{
    return reinterpret_cast<ResourceStream*>(stream);
}

// Bounded: a resource stream has no size to tell, but its bytes end where the resource ends.
int CALLBACK ReadResource(Stream* stream, void* buffer, int count)
{
    ResourceStream* const resource = ResourceOf(stream);
    const size_t          left = static_cast<size_t>(resource->pEnd - resource->pNext);
    const size_t          size = std::min(static_cast<size_t>(std::max(count, 0)), left);
    if (!size || !buffer) {
        return 0;
    }
    std::memcpy(buffer, resource->pNext, size);
    resource->pNext += size;
    return static_cast<int>(size);
}

int CALLBACK CloseResource(Stream* stream)
{
    FreeResource(ResourceOf(stream)->hResource);
    HBlockFree(stream);
    return 0;
}

} // namespace

bool IsResourceStream(const Stream* stream)
{
    return stream->pfnClose == CloseResource;
}

LockedResource HLockResource(HINSTANCE module, const char* name, const char* type)
{
    const HRSRC   found = name ? FindResourceA(module, name, type) : nullptr;
    const HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    if (!loaded) {
        return {};
    }
    return { loaded, static_cast<const BYTE*>(LockResource(loaded)), SizeofResource(module, found) };
}

Stream* WINAPI SOpenRes(HINSTANCE instance, const char* name, const char* type)
{
    const LockedResource  locked = HLockResource(instance, name, type);
    ResourceStream* const stream = locked.bytes ? HRecordAlloc<ResourceStream>() : nullptr;
    if (!stream) {
        return nullptr;
    }
    *stream = { memoryKind,    ReadResource,  nullptr,
                CloseResource, nullptr,       nullptr,
                locked.bytes,  locked.handle, locked.bytes + locked.size };
    return reinterpret_cast<Stream*>(stream);
}
