// Device-independent bitmaps as files and resources have them: checked against the bytes that are there, so that the
// platform is handed none that would make it read past them.
#pragma once

#include <windows.h>

#include <cstddef>

constexpr int maxRunSide = 32767; // pixels; run-length data of a few bytes could claim any size

// A DIB that has passed the checks. Offsets count from its header.
struct DibInfo {
    DWORD  headerSize;  // 12, or 40 and more
    int    width;
    int    height;      // without its sign
    WORD   bits;        // a pixel
    DWORD  compression;
    DWORD  colors;      // entries of the colour table; 0: none
    size_t tableOffset;
    size_t pixelOffset;
};

enum class DibSource {
    Resource, // whatever the platform takes
    File,     // 1, 4, 8 or 24 bits, plain or run-length
};

// Checks the DIB that fills size bytes.
bool ReadDib(const BYTE* dib, size_t size, DibSource source, DibInfo* out);
// Checks a bitmap file. Its DIB begins at bytes + bitmapFileHeaderSize.
bool ReadBitmapFile(const BYTE* bytes, size_t size, DibInfo* out);
constexpr size_t bitmapFileHeaderSize = 14;
constexpr WORD   bitmapFileSignature = 0x4D42; // "BM", at its begin

// A colour of the table, 0 to colors - 1, as a COLORREF.
COLORREF DibColor(const BYTE* dib, const DibInfo& info, DWORD index);
// Bytes of a row of pixels, which begins at a multiple of four.
unsigned long long DibRowBytes(int width, WORD bits);
