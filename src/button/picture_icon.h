// Icon files: finds the image that counts and checks it against the bytes that are there.
#pragma once

#include <windows.h>

#include <cstddef>

// How an icon file begins.
constexpr size_t iconFileHeaderSize = 6;
constexpr size_t iconFileTypeAt = 2;
constexpr WORD   iconFileType = 1;

// Where the image of an icon file lies.
struct IconEntry {
    int    width;  // pixels
    int    height;
    size_t offset; // from the start of the file
    size_t size;
};

// An image that has passed the checks. Offsets count from its header.
struct IconImage {
    WORD   bits;       // a pixel
    size_t bitsOffset; // colour bits
    size_t maskOffset; // rows of the mask behind them, the lowest first
    size_t maskRow;    // bytes of one
    size_t room;       // bytes that the platform may read of it: as many as the image has, or more
};

// The first entry of height 32 or of width 64.
bool FindIconEntry(const BYTE* bytes, size_t size, IconEntry* out);
// Checks the image that fills entry.size bytes.
bool ReadIconImage(const BYTE* image, const IconEntry& entry, IconImage* out);
// Makes a header that the platform takes of an image's: its height counts both halves, its size may say anything.
void FixIconHeader(BYTE* image, const IconEntry& entry, const IconImage& info);
// Turns rows of bytes upside down, in place.
void FlipRows(BYTE* rows, size_t rowBytes, int count);
