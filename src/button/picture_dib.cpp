// The checks on device-independent bitmaps. Nothing here calls the platform.
#include "button/picture_dib.h"

#include "foundation/memory.h"

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace {

constexpr DWORD coreHeaderSize = 12;
constexpr DWORD infoHeaderSize = 40;
constexpr DWORD largestHeader = 1024; // of kinds to come
constexpr size_t coreColorSize = 3;   // bytes of an entry of the colour table
constexpr size_t infoColorSize = 4;
constexpr DWORD maxColors = 0xFFFF;   // what a palette can count
constexpr size_t maskBytes = 12;      // three masks behind a header of 40 bytes

enum Compression : DWORD { Plain, Runs8, Runs4, Masks };

// Offsets of the fields in the two headers.
constexpr size_t coreWidth = 4;
constexpr size_t coreHeight = 6;
constexpr size_t corePlanes = 8;
constexpr size_t coreBits = 10;
constexpr size_t infoWidth = 4;
constexpr size_t infoHeight = 8;
constexpr size_t infoPlanes = 12;
constexpr size_t infoBits = 14;
constexpr size_t infoCompression = 16;
constexpr size_t infoSizeImage = 20;
constexpr size_t infoColorsUsed = 32;

bool IsOneOf(WORD value, std::initializer_list<WORD> values)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

DWORD ColorsByBits(WORD bits)
{
    switch (bits) {
    case 1: return 2;
    case 4: return 16;
    case 8: return 256;
    default: return 0;
    }
}

// What is read of a header before it is known to hold.
struct RawHeader {
    LONG  width;
    LONG  height; // below 0: the first row is the top one
    WORD  planes;
    WORD  bits;
    DWORD compression;
    DWORD sizeImage;
    DWORD colorsUsed;
};

RawHeader ReadCoreHeader(const BYTE* dib)
{
    return { LoadAs<WORD>(dib + coreWidth), LoadAs<WORD>(dib + coreHeight), LoadAs<WORD>(dib + corePlanes),
             LoadAs<WORD>(dib + coreBits), Plain, 0, 0 };
}

RawHeader ReadInfoHeader(const BYTE* dib)
{
    return { LoadAs<LONG>(dib + infoWidth),   LoadAs<LONG>(dib + infoHeight),
             LoadAs<WORD>(dib + infoPlanes),  LoadAs<WORD>(dib + infoBits),
             LoadAs<DWORD>(dib + infoCompression), LoadAs<DWORD>(dib + infoSizeImage),
             LoadAs<DWORD>(dib + infoColorsUsed) };
}

bool IsHeaderSize(DWORD size, DibSource source)
{
    if (size == coreHeaderSize || size == infoHeaderSize) {
        return true;
    }
    return source == DibSource::Resource && size > infoHeaderSize && size <= largestHeader;
}

bool IsDepth(const RawHeader& header, DibSource source)
{
    if (header.planes != 1) {
        return false;
    }
    return IsOneOf(header.bits, { 1, 4, 8, 24 }) ||
           (source == DibSource::Resource && IsOneOf(header.bits, { 16, 32 }));
}

bool IsCompression(const RawHeader& header, DibSource source)
{
    switch (header.compression) {
    case Plain: return true;
    case Runs4: return header.bits == 4 && header.height > 0;
    case Runs8: return header.bits == 8 && header.height > 0;
    case Masks: return source == DibSource::Resource && IsOneOf(header.bits, { 16, 32 });
    default: return false;
    }
}

bool IsRunLength(DWORD compression)
{
    return compression == Runs4 || compression == Runs8;
}

// Bounded: no size, the one height that has no opposite, and what run-length data could claim without having it.
bool IsSize(const RawHeader& header)
{
    if (header.width <= 0 || header.height == 0 || header.height == std::numeric_limits<LONG>::min()) {
        return false;
    }
    return !IsRunLength(header.compression) || (header.width <= maxRunSide && header.height <= maxRunSide);
}

// Run-length data under way: what is left of them, and where they have come to.
struct RunWalk {
    const BYTE* at;
    const BYTE* end;
    int         width;
    int         height;
    int         x;
    int         y;
    bool        fourBits;

    size_t Left() const { return static_cast<size_t>(end - at); }
    bool   HasRoom(int pixels) const { return y < height && pixels <= width - x; }
};

enum class RunStep { Goes, Ends, Fails };

// Pixels as they stand, padded to two bytes.
RunStep CopyPixels(RunWalk& walk, int count)
{
    const int bytes = walk.fourBits ? (count + 1) / 2 : count;
    const int padded = (bytes + 1) / 2 * 2;
    if (!walk.HasRoom(count) || walk.Left() < static_cast<size_t>(padded)) {
        return RunStep::Fails;
    }
    walk.at += padded;
    walk.x += count;
    return RunStep::Goes;
}

RunStep MoveOn(RunWalk& walk)
{
    if (walk.Left() < 2) {
        return RunStep::Fails;
    }
    walk.x += walk.at[0];
    walk.y += walk.at[1];
    walk.at += 2;
    return walk.x <= walk.width && walk.y <= walk.height ? RunStep::Goes : RunStep::Fails;
}

RunStep Escape(RunWalk& walk, BYTE code)
{
    constexpr BYTE endOfRow = 0;
    constexpr BYTE endOfBitmap = 1;
    constexpr BYTE moveOn = 2;
    switch (code) {
    case endOfRow:
        walk.x = 0;
        ++walk.y;
        return walk.y <= walk.height ? RunStep::Goes : RunStep::Fails;
    case endOfBitmap: return RunStep::Ends;
    case moveOn: return MoveOn(walk);
    default: return CopyPixels(walk, code);
    }
}

RunStep TakeRun(RunWalk& walk)
{
    if (walk.Left() < 2) {
        return RunStep::Fails;
    }
    const BYTE count = walk.at[0];
    const BYTE value = walk.at[1];
    walk.at += 2;
    if (count == 0) {
        return Escape(walk, value);
    }
    if (!walk.HasRoom(count)) {
        return RunStep::Fails;
    }
    walk.x += count;
    return RunStep::Goes;
}

// Bounded: each run stays in its row, and the end of the bitmap comes before that of the data.
bool AreRunsWhole(const BYTE* data, size_t size, const DibInfo& info)
{
    RunWalk walk{ data, data + size, info.width, info.height, 0, 0, info.compression == Runs4 };
    RunStep step = RunStep::Goes;
    while (step == RunStep::Goes) {
        step = TakeRun(walk);
    }
    return step == RunStep::Ends;
}

// left: bytes behind the colour table.
bool ArePixelsThere(const BYTE* pixels, size_t left, const DibInfo& info, DWORD sizeImage)
{
    if (IsRunLength(info.compression)) {
        // Bounded: a size that says more than there is.
        if (sizeImage > left) {
            return false;
        }
        return AreRunsWhole(pixels, sizeImage ? sizeImage : left, info);
    }
    // Bounded: the product of 31 bits and 33 stays within 64 on every architecture.
    const unsigned long long rows = static_cast<unsigned long long>(info.height);
    return rows * DibRowBytes(info.width, info.bits) <= left;
}

bool IsValidHeader(const RawHeader& header, DibSource source)
{
    return IsDepth(header, source) && IsCompression(header, source) && IsSize(header);
}

// Fills in where the table and the pixels begin. false: they don't. Longer headers count their colours as one of 40
// bytes does, and the masks behind one of 40 bytes stand before the pixels: so the platform reads them.
bool PlaceTable(DibInfo* info, const RawHeader& header, size_t size)
{
    const bool   core = info->headerSize == coreHeaderSize;
    const size_t colorSize = core ? coreColorSize : infoColorSize;
    const bool   masks = header.compression == Masks && info->headerSize == infoHeaderSize;
    info->colors = header.colorsUsed ? header.colorsUsed : ColorsByBits(header.bits);
    info->tableOffset = info->headerSize + (masks ? maskBytes : 0);
    // Bounded: a colour count that points past the end.
    if (info->colors > maxColors || info->tableOffset > size ||
        info->colors > (size - info->tableOffset) / colorSize) {
        return false;
    }
    info->pixelOffset = info->tableOffset + info->colors * colorSize;
    return true;
}

} // namespace

unsigned long long DibRowBytes(int width, WORD bits)
{
    return (static_cast<unsigned long long>(width) * bits + 31) / 32 * 4;
}

bool ReadDib(const BYTE* dib, size_t size, DibSource source, DibInfo* out)
{
    if (!dib || size < sizeof(DWORD)) {
        return false;
    }
    const DWORD headerSize = LoadAs<DWORD>(dib);
    if (!IsHeaderSize(headerSize, source) || headerSize > size) {
        return false;
    }
    const RawHeader header = headerSize == coreHeaderSize ? ReadCoreHeader(dib) : ReadInfoHeader(dib);
    if (!IsValidHeader(header, source)) {
        return false;
    }
    const LONG rows = header.height < 0 ? -header.height : header.height;
    DibInfo    info{ headerSize, static_cast<int>(header.width), static_cast<int>(rows), header.bits,
                  header.compression, 0, 0, 0 };
    if (!PlaceTable(&info, header, size) ||
        !ArePixelsThere(dib + info.pixelOffset, size - info.pixelOffset, info, header.sizeImage)) {
        return false;
    }
    *out = info;
    return true;
}

bool ReadBitmapFile(const BYTE* bytes, size_t size, DibInfo* out)
{
    if (!bytes || size < bitmapFileHeaderSize || LoadAs<WORD>(bytes) != bitmapFileSignature) {
        return false;
    }
    // Settled: neither the size nor the offset of the file's own header counts.
    return ReadDib(bytes + bitmapFileHeaderSize, size - bitmapFileHeaderSize, DibSource::File, out);
}

COLORREF DibColor(const BYTE* dib, const DibInfo& info, DWORD index)
{
    const size_t      colorSize = info.headerSize == coreHeaderSize ? coreColorSize : infoColorSize;
    const BYTE* const entry = dib + info.tableOffset + index * colorSize;
    return RGB(entry[2], entry[1], entry[0]);
}
