// The functions that work on streams of any kind: they call the stream's own, and move texts and whole streams as a
// length of 16 bits with as many bytes behind it.
#include "foundation/stream.h"

#include "foundation/memory.h"

#include <algorithm>

namespace {

constexpr int  pieceSize = 256;   // bytes that a stream is copied by
constexpr int  copyGrowth = 32;   // of a stream that was read from another one
constexpr WORD noStream = 0xFFFF; // the length that says so

// False if a piece fell short.
bool CopyBytes(Stream* dest, Stream* src, int count)
{
    char piece[pieceSize];
    for (int left = count; left > 0; left -= pieceSize) {
        const int size = std::min(left, pieceSize);
        if (!HReadExactly(src, piece, size) || SWrite(dest, piece, size) != size) {
            return false;
        }
    }
    return true;
}

} // namespace

int WINAPI SClose(Stream* stream)
{
    return stream && stream->pfnClose ? stream->pfnClose(stream) : -1;
}

int WINAPI SRead(Stream* stream, void* buffer, int count)
{
    return stream && stream->pfnRead ? stream->pfnRead(stream, buffer, count) : -1;
}

int WINAPI SWrite(Stream* stream, const void* buffer, int count)
{
    return stream && stream->pfnWrite ? stream->pfnWrite(stream, buffer, count) : -1;
}

int WINAPI SSeek(Stream* stream, int position)
{
    return stream && stream->pfnSeek ? stream->pfnSeek(stream, position) : -1;
}

int WINAPI SSeekRel(Stream* stream, int delta)
{
    return stream && stream->pfnSeekRel ? stream->pfnSeekRel(stream, delta) : -1;
}

bool HReadExactly(Stream* stream, void* buffer, int count)
{
    return SRead(stream, buffer, count) == count;
}

bool HReadText(Stream* stream, char** outText)
{
    WORD       length = 0;
    const bool hasLength = HReadExactly(stream, &length, sizeof length);
    *outText = length ? static_cast<char*>(HBlockAlloc(size_t{ length } + 1)) : nullptr;
    if (!*outText) {
        return hasLength && !length;
    }
    return HReadExactly(stream, *outText, length) && hasLength;
}

char* WINAPI SReadString(Stream* stream)
{
    char* text = nullptr;
    // Settled: a text that ends early counts as one.
    HReadText(stream, &text);
    return text;
}

int WINAPI SWriteString(Stream* stream, const char* text)
{
    if (!stream) {
        return -1;
    }
    const WORD length = static_cast<WORD>(text ? std::strlen(text) : 0);
    SWrite(stream, &length, sizeof length);
    if (length) {
        SWrite(stream, text, length);
    }
    return length;
}

Stream* WINAPI SReadStream(Stream* stream)
{
    WORD length = 0;
    if (!HReadExactly(stream, &length, sizeof length) || length == noStream) {
        return nullptr;
    }
    Stream* const copy = SNewMem(length, copyGrowth);
    if (!copy) {
        return nullptr;
    }
    if (length && (!copy->pData || !HReadExactly(stream, copy->pData, length))) {
        SClose(copy);
        return nullptr;
    }
    copy->cbData = length;
    return copy;
}

int WINAPI SWriteStream(Stream* dest, Stream* src)
{
    // The size of what has none, -1, becomes the mark of no stream here.
    const WORD length = static_cast<WORD>(SGetSize(src));
    const bool hasLength = SWrite(dest, &length, sizeof length) == sizeof length;
    return hasLength && SSeek(src, 0) == 0 && CopyBytes(dest, src, length) ? 0 : -1;
}
