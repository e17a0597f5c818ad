// The checks on icon files. Nothing here calls the platform.
#include "button/picture_icon.h"

#include "button/picture_dib.h"
#include "foundation/memory.h"

#include <algorithm>

namespace {

constexpr size_t fileCount = 4;

constexpr size_t entrySize = 16;
constexpr size_t entryWidth = 0;
constexpr size_t entryHeight = 1;
constexpr size_t entryBytes = 8;
constexpr size_t entryOffset = 12;

constexpr int   wantedHeight = 32;
constexpr int   wantedWidth = 64;
constexpr DWORD tooLarge = 65535;
constexpr DWORD understated = 728; // what some directories say of images of 744 bytes
constexpr DWORD correct = 744;

constexpr DWORD  headerSize = 40;
constexpr size_t headerWidth = 4;
constexpr size_t headerHeight = 8;
constexpr size_t headerPlanes = 12;
constexpr size_t headerBits = 14;
constexpr size_t headerCompression = 16;
constexpr size_t headerSizeImage = 20;
constexpr size_t headerColorsUsed = 32;
constexpr size_t colorSize = 4;
constexpr int    pixelsOfByte = 8; // in a mask

bool IsWanted(const BYTE* entry)
{
    return entry[entryHeight] == wantedHeight || entry[entryWidth] == wantedWidth;
}

const BYTE* FindWanted(const BYTE* bytes, size_t size)
{
    const size_t count = LoadAs<WORD>(bytes + fileCount);
    // Bounded: a directory that counts more entries than the file has room for.
    const size_t there = std::min(count, (size - iconFileHeaderSize) / entrySize);
    for (size_t i = 0; i < there; ++i) {
        const BYTE* const entry = bytes + iconFileHeaderSize + i * entrySize;
        if (IsWanted(entry)) {
            return entry;
        }
    }
    return nullptr;
}

bool IsIconHeader(const BYTE* image, const IconEntry& entry)
{
    const WORD planes = LoadAs<WORD>(image + headerPlanes);
    const WORD bits = LoadAs<WORD>(image + headerBits);
    if ((bits != 1 && bits != 4 && bits != 8) || (planes != 1 && planes != 4)) {
        return false;
    }
    // Bounded: the platform reads as many pixels as the header says, the mask is as large as the directory says.
    return LoadAs<DWORD>(image) == headerSize && LoadAs<DWORD>(image + headerCompression) == 0 &&
           LoadAs<LONG>(image + headerWidth) == entry.width;
}

DWORD ColorCount(const BYTE* image, WORD bits)
{
    const DWORD used = LoadAs<DWORD>(image + headerColorsUsed);
    return used ? used : DWORD{ 1 } << bits;
}

// Bytes of an image with that many bits a pixel, rows without padding.
size_t BytesOfBits(const IconEntry& entry, int bits)
{
    return static_cast<size_t>(entry.height * bits * entry.width / pixelsOfByte);
}

// The platform may count a row of each plane, and has the rows of the mask begin at whole words. Bounded: where the
// image ends before such rows do, its block goes on behind it.
size_t RoomOf(const BYTE* image, const IconEntry& entry, const IconImage& info)
{
    constexpr int pixelsOfWord = 2 * pixelsOfByte;
    const WORD    allBits = static_cast<WORD>(info.bits * LoadAs<WORD>(image + headerPlanes));
    const size_t  rows = static_cast<size_t>(entry.height);
    const int     maskWords = (entry.width + pixelsOfWord - 1) / pixelsOfWord;
    const size_t  maskRow = static_cast<size_t>(maskWords) * sizeof(WORD);
    const size_t  colors = info.bitsOffset + rows * static_cast<size_t>(DibRowBytes(entry.width, allBits));
    return std::max({ entry.size, colors, info.maskOffset + rows * maskRow });
}

} // namespace

bool FindIconEntry(const BYTE* bytes, size_t size, IconEntry* out)
{
    if (!bytes || size < iconFileHeaderSize || LoadAs<WORD>(bytes + iconFileTypeAt) != iconFileType) {
        return false;
    }
    const BYTE* const entry = FindWanted(bytes, size);
    if (!entry) {
        return false;
    }
    const DWORD told = LoadAs<DWORD>(entry + entryBytes);
    const DWORD offset = LoadAs<DWORD>(entry + entryOffset);
    const DWORD length = told == understated ? correct : told;
    // Bounded: an image that isn't all there, and one without a row or a column.
    if (told == 0 || told >= tooLarge || offset > size || length > size - offset || entry[entryWidth] == 0 ||
        entry[entryHeight] == 0) {
        return false;
    }
    *out = { entry[entryWidth], entry[entryHeight], offset, length };
    return true;
}

bool ReadIconImage(const BYTE* image, const IconEntry& entry, IconImage* out)
{
    if (entry.size < headerSize || !IsIconHeader(image, entry)) {
        return false;
    }
    const WORD   bits = LoadAs<WORD>(image + headerBits);
    const DWORD  colors = ColorCount(image, bits);
    const size_t maskRow = static_cast<size_t>(entry.width / pixelsOfByte);
    const size_t maskBytes = static_cast<size_t>(entry.height) * maskRow;
    // Bounded: a colour count that points past the end.
    if (colors > (entry.size - headerSize) / colorSize) {
        return false;
    }
    const size_t bitsOffset = headerSize + colors * colorSize;
    const size_t left = entry.size - bitsOffset;
    const size_t colorBytes = BytesOfBits(entry, bits);
    // Bounded: the rows that the platform reads begin at multiples of four, those that are counted here needn't.
    if (colorBytes + maskBytes > left || static_cast<size_t>(entry.height) * DibRowBytes(entry.width, bits) > left) {
        return false;
    }
    *out = { bits, bitsOffset, bitsOffset + colorBytes, maskRow, 0 };
    out->room = RoomOf(image, entry, *out);
    return true;
}

void FixIconHeader(BYTE* image, const IconEntry& entry, const IconImage& info)
{
    const size_t bytes = BytesOfBits(entry, info.bits + 1);
    StoreAs(image + headerSizeImage, static_cast<DWORD>(bytes));
    StoreAs(image + headerHeight, static_cast<LONG>(entry.height));
}

void FlipRows(BYTE* rows, size_t rowBytes, int count)
{
    for (int low = 0, high = count - 1; low < high; ++low, --high) {
        BYTE* const first = rows + static_cast<size_t>(low) * rowBytes;
        std::swap_ranges(first, first + rowBytes, rows + static_cast<size_t>(high) * rowBytes);
    }
}
