// Streams for tests: closed at the end, and one of the host's own that records how it is used.
#pragma once

#include "support/block_leaks.h"

#include <widgets/widgets.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

struct StreamCloser {
    void operator()(Stream* stream) const { SClose(stream); }
};
using StreamPtr = std::unique_ptr<Stream, StreamCloser>;

using Bytes = std::vector<BYTE>;

// All that was written to a memory stream.
inline Bytes BytesOf(Stream* stream)
{
    const BYTE* const first = static_cast<const BYTE*>(SGetPtr(stream));
    return first ? Bytes(first, first + SGetSize(stream)) : Bytes();
}

// Positioned at 0.
inline StreamPtr StreamOf(const Bytes& bytes, int grow = 16)
{
    StreamPtr stream(SNewMem(static_cast<int>(bytes.size()), grow));
    SWrite(stream.get(), bytes.data(), static_cast<int>(bytes.size()));
    SSeek(stream.get(), 0);
    return stream;
}

inline Bytes BytesFrom(const std::string& text)
{
    return Bytes(text.begin(), text.end());
}

// A stream of the host's: the library reaches it through the functions in its record alone.
struct HostStream {
    Stream           record = {};
    Bytes            bytes;
    size_t           at = 0;
    size_t           limit = 1 << 20; // bytes it takes
    std::vector<int> counts;          // of each read and write
    int              closed = 0;

    HostStream()
    {
        record.nKind = 7;
        record.pfnRead = Read;
        record.pfnWrite = Write;
        record.pfnClose = Close;
        record.pfnSeek = Seek;
        record.pfnSeekRel = SeekRel;
    }
    HostStream(const HostStream&) = delete;
    HostStream& operator=(const HostStream&) = delete;

    Stream* Get() { return &record; }

    static HostStream*  Of(Stream* stream) { return reinterpret_cast<HostStream*>(stream); }
    static int CALLBACK Read(Stream* stream, void* buffer, int count)
    {
        HostStream* const self = Of(stream);
        self->counts.push_back(count);
        const size_t got = std::min(static_cast<size_t>(count), self->bytes.size() - self->at);
        if (got) {
            std::memcpy(buffer, self->bytes.data() + self->at, got);
        }
        self->at += got;
        return static_cast<int>(got);
    }
    static int CALLBACK Write(Stream* stream, const void* buffer, int count)
    {
        HostStream* const self = Of(stream);
        self->counts.push_back(count);
        const size_t      taken = std::min(static_cast<size_t>(count), self->limit - self->bytes.size());
        const BYTE* const from = static_cast<const BYTE*>(buffer);
        self->bytes.insert(self->bytes.end(), from, from + taken);
        return static_cast<int>(taken);
    }
    static int CALLBACK Seek(Stream* stream, int position)
    {
        Of(stream)->at = static_cast<size_t>(position);
        return position;
    }
    static int CALLBACK SeekRel(Stream* stream, int delta)
    {
        Of(stream)->at += static_cast<size_t>(delta);
        return static_cast<int>(Of(stream)->at);
    }
    static int CALLBACK Close(Stream* stream)
    {
        Of(stream)->closed++;
        return 5;
    }
};
