// Streams over a block of memory that grows by steps of the caller's. Resources share their kind word, and what asks
// for a block or a size finds none in them.
#include "foundation/memory.h"
#include "foundation/stream_internal.h"

#include <algorithm>
#include <climits>
#include <cstdint>

namespace {

bool IsMemoryKind(const Stream* stream)
{
    return stream && stream->nKind == memoryKind;
}

// Bounded: the record of a resource ends before these fields, so there are no bytes in it.
DWORD BytesWritten(const Stream* stream)
{
    return IsResourceStream(stream) ? 0 : stream->cbData;
}

DWORD RoomIn(const Stream* stream)
{
    return stream->pData && stream->nPos < stream->cbAlloc ? stream->cbAlloc - stream->nPos : 0;
}

// Bounded: SEmpty takes the block and leaves the size, so what can be read ends where the block does.
DWORD BytesAhead(const Stream* stream)
{
    const DWORD end = std::min(stream->cbData, stream->pData ? stream->cbAlloc : 0);
    return stream->nPos < end ? end - stream->nPos : 0;
}

// The size to which whole steps enlarge the block, one at the least. 0: it can't grow. Bounded: without a step the
// raising would never end.
DWORD GrownSize(const Stream* stream, DWORD count)
{
    const uint64_t step = stream->cbGrow;
    const uint64_t wanted = uint64_t{ stream->nPos } + count;
    const uint64_t missing = wanted > stream->cbAlloc ? wanted - stream->cbAlloc : 1;
    const uint64_t size = step ? stream->cbAlloc + (missing + step - 1) / step * step : 0;
    return size <= INT_MAX ? static_cast<DWORD>(size) : 0;
}

// The old block, for the caller to free: what is to be written may lie in it. null if it stays.
void* Grow(Stream* stream, DWORD count)
{
    const DWORD size = GrownSize(stream, count);
    void* const block = size ? HBlockAlloc(size) : nullptr;
    if (!block) {
        return nullptr;
    }
    void* const old = stream->pData;
    if (old) {
        std::memcpy(block, old, stream->cbAlloc);
    }
    stream->pData = block;
    stream->cbAlloc = size;
    return old;
}

int CALLBACK ReadMemory(Stream* stream, void* buffer, int count)
{
    const DWORD size = std::min(static_cast<DWORD>(std::max(count, 0)), BytesAhead(stream));
    if (size && buffer) {
        std::memmove(buffer, static_cast<BYTE*>(stream->pData) + stream->nPos, size);
        stream->nPos += size;
        return static_cast<int>(size);
    }
    return 0;
}

int CALLBACK WriteMemory(Stream* stream, const void* buffer, int count)
{
    if (!buffer || count <= 0) {
        return 0;
    }
    const DWORD wanted = static_cast<DWORD>(count);
    void* const old = wanted > RoomIn(stream) ? Grow(stream, wanted) : nullptr;
    const DWORD size = std::min(wanted, RoomIn(stream));
    if (size) {
        std::memmove(static_cast<BYTE*>(stream->pData) + stream->nPos, buffer, size);
        stream->nPos += size;
        stream->cbData = std::max(stream->cbData, stream->nPos);
    }
    HBlockFree(old);
    return static_cast<int>(size);
}

int CALLBACK SeekMemory(Stream* stream, int position)
{
    constexpr DWORD toEnd = 0xFFFFFFFF;
    const DWORD     wanted = static_cast<DWORD>(position);
    if (wanted == toEnd) {
        stream->nPos = stream->cbData;
    } else if (wanted <= stream->cbData) {
        stream->nPos = wanted;
    }
    return static_cast<int>(stream->nPos);
}

int CALLBACK SeekMemoryBy(Stream* stream, int delta)
{
    const int64_t sum = int64_t{ stream->nPos } + delta;
    if (sum >= 0 && sum <= int64_t{ stream->cbData }) {
        stream->nPos = static_cast<DWORD>(sum);
    }
    return static_cast<int>(stream->nPos);
}

int CALLBACK CloseMemory(Stream* stream)
{
    HBlockFree(stream->pData);
    HBlockFree(stream);
    return 0;
}

} // namespace

Stream* WINAPI SNewMem(int size, int grow)
{
    Stream* const stream = HRecordAlloc<Stream>();
    if (!stream) {
        return nullptr;
    }
    *stream = { memoryKind, ReadMemory, WriteMemory, CloseMemory, SeekMemory, SeekMemoryBy, nullptr, 0, 0, 0, 0 };
    stream->cbGrow = static_cast<DWORD>(grow);
    stream->pData = size >= 0 ? HBlockAlloc(static_cast<size_t>(size)) : nullptr;
    stream->cbAlloc = stream->pData ? static_cast<DWORD>(size) : 0;
    return stream;
}

Stream* WINAPI SDupMem(Stream* stream)
{
    if (!IsMemoryKind(stream)) {
        return nullptr;
    }
    const DWORD   size = BytesWritten(stream);
    Stream* const copy =
        SNewMem(static_cast<int>(size), IsResourceStream(stream) ? 0 : static_cast<int>(stream->cbGrow));
    // Bounded: without a block there is nowhere to copy to.
    if (!copy || !copy->pData) {
        SClose(copy);
        return nullptr;
    }
    if (size && stream->pData) {
        std::memcpy(copy->pData, stream->pData, std::min(size, stream->cbAlloc));
    }
    copy->cbData = size;
    return copy;
}

int WINAPI SEmpty(Stream* stream)
{
    if (!IsMemoryKind(stream)) {
        return -1;
    }
    // Bounded: the bytes of a resource are no block of the library's.
    if (!IsResourceStream(stream)) {
        HBlockFree(stream->pData);
        stream->pData = nullptr;
        stream->nPos = 0;
        stream->cbAlloc = 0;
    }
    return 0;
}

void* WINAPI SGetPtr(Stream* stream)
{
    return IsMemoryKind(stream) ? stream->pData : nullptr;
}

int WINAPI SGetSize(Stream* stream)
{
    return IsMemoryKind(stream) ? static_cast<int>(BytesWritten(stream)) : -1;
}
