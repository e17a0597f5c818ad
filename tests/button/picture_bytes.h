// Makes the bytes of bitmap and icon files, right or wrong as a test asks for.
#pragma once

#include <windows.h>

#include <cstring>
#include <vector>

using Bytes = std::vector<BYTE>;

template <typename T>
void Append(Bytes* out, T value)
{
    const BYTE* const from = reinterpret_cast<const BYTE*>(&value);
    out->insert(out->end(), from, from + sizeof value);
}

template <typename T>
void Patch(Bytes* bytes, size_t at, T value)
{
    std::memcpy(bytes->data() + at, &value, sizeof value);
}

constexpr size_t fileHeader = 14; // of a bitmap file

struct DibSpec {
    DWORD headerSize = 40;
    int   width = 5;
    int   height = 3;
    WORD  bits = 8;
    DWORD compression = 0;
    DWORD colorsUsed = 0;
    int   tableEntries = -1; // as many as colorsUsed says, or else the bits
    Bytes pixels = {};       // empty: as many as the size says, in a pattern
    DWORD sizeImage = 0;
};

inline int TableEntries(const DibSpec& spec)
{
    if (spec.tableEntries >= 0) {
        return spec.tableEntries;
    }
    if (spec.colorsUsed) {
        return static_cast<int>(spec.colorsUsed);
    }
    return spec.bits <= 8 ? 1 << spec.bits : 0;
}

inline void AppendHeader(Bytes* out, const DibSpec& spec)
{
    Append(out, spec.headerSize);
    if (spec.headerSize == 12) {
        Append(out, static_cast<WORD>(spec.width));
        Append(out, static_cast<WORD>(spec.height));
        Append(out, WORD{ 1 });
        Append(out, spec.bits);
        return;
    }
    Append(out, static_cast<LONG>(spec.width));
    Append(out, static_cast<LONG>(spec.height));
    Append(out, WORD{ 1 });
    Append(out, spec.bits);
    Append(out, spec.compression);
    Append(out, spec.sizeImage);
    Append(out, LONG{ 0 });
    Append(out, LONG{ 0 });
    Append(out, spec.colorsUsed);
    Append(out, DWORD{ 0 });
    out->resize(out->size() + spec.headerSize - 40);
}

// Colour i of a table: red 3 * i, green 5 * i, blue 7 * i, as far as a byte goes.
inline COLORREF TableColor(int i)
{
    return RGB(static_cast<BYTE>(3 * i), static_cast<BYTE>(5 * i), static_cast<BYTE>(7 * i));
}

inline Bytes MakeDib(const DibSpec& spec)
{
    Bytes dib;
    AppendHeader(&dib, spec);
    for (int i = 0; i < TableEntries(spec); ++i) {
        const COLORREF color = TableColor(i);
        dib.insert(dib.end(), { GetBValue(color), GetGValue(color), GetRValue(color) });
        if (spec.headerSize != 12) {
            dib.push_back(0);
        }
    }
    Bytes pixels = spec.pixels;
    if (pixels.empty()) {
        const size_t rows = static_cast<size_t>(spec.height < 0 ? -spec.height : spec.height);
        pixels.resize(rows * ((static_cast<size_t>(spec.width) * spec.bits + 31) / 32 * 4));
        for (size_t i = 0; i < pixels.size(); ++i) {
            pixels[i] = static_cast<BYTE>(i * 37);
        }
    }
    dib.insert(dib.end(), pixels.begin(), pixels.end());
    return dib;
}

inline Bytes MakeBitmapFile(const DibSpec& spec)
{
    const Bytes dib = MakeDib(spec);
    Bytes       file;
    Append(&file, WORD{ 0x4D42 });
    Append(&file, static_cast<DWORD>(dib.size() + fileHeader));
    Append(&file, DWORD{ 0 });
    Append(&file, DWORD{ 0 }); // where the pixels begin: nobody reads it
    file.insert(file.end(), dib.begin(), dib.end());
    return file;
}

// Five by three pixels of run-length data: a run, pixels as they stand, a move, the end of a row, the end of all.
inline DibSpec RunLength8()
{
    DibSpec spec;
    spec.compression = 1;
    spec.pixels = { 5, 1, 0, 0, 0, 3, 7, 8, 9, 0, 0, 2, 1, 1, 1, 4, 0, 1 };
    spec.sizeImage = 18;
    return spec;
}

inline DibSpec RunLength4()
{
    DibSpec spec;
    spec.bits = 4;
    spec.compression = 2;
    spec.pixels = { 5, 0x12, 0, 0, 0, 5, 0x12, 0x34, 0x50, 0, 0, 0, 3, 0x66, 0, 1 };
    spec.sizeImage = 16;
    return spec;
}

inline std::vector<DibSpec> GoodFiles()
{
    std::vector<DibSpec> specs;
    for (const DWORD headerSize : { 12u, 40u }) {
        for (const WORD bits : { WORD{ 1 }, WORD{ 4 }, WORD{ 8 }, WORD{ 24 } }) {
            DibSpec spec;
            spec.headerSize = headerSize;
            spec.bits = bits;
            specs.push_back(spec);
        }
    }
    DibSpec few;
    few.colorsUsed = 3;
    specs.push_back(few);
    DibSpec topDown;
    topDown.height = -3;
    specs.push_back(topDown);
    specs.push_back(RunLength8());
    specs.push_back(RunLength4());
    return specs;
}

struct IconSpec {
    int  width = 32;
    int  height = 32;
    WORD bits = 4;
    WORD planes = 1;
    int  entries = 1;       // of the directory; the image is that of the last one, the others are 16 by 16
    bool understates = false; // the directory says 728 bytes of 744
};

constexpr size_t iconDirectory = 6;
constexpr size_t iconEntry = 16;

inline size_t IconBytes(const IconSpec& spec)
{
    const size_t colors = size_t{ 4 } << spec.bits;
    return 40 + colors + static_cast<size_t>(spec.height * (spec.bits + 1) * spec.width / 8);
}

inline size_t ImageOffset(const IconSpec& spec)
{
    return iconDirectory + iconEntry * static_cast<size_t>(spec.entries);
}

inline void AppendEntry(Bytes* file, int width, int height, size_t bytes, size_t offset)
{
    file->insert(file->end(), { static_cast<BYTE>(width), static_cast<BYTE>(height), 0, 0, 0, 0, 0, 0 });
    Append(file, static_cast<DWORD>(bytes));
    Append(file, static_cast<DWORD>(offset));
}

// Colours: bits of colour 1 of the table everywhere, which is pure red. The mask's lowest half hides, the upper shows.
inline Bytes MakeIconFile(const IconSpec& spec)
{
    Bytes file;
    Append(&file, WORD{ 0 });
    Append(&file, WORD{ 1 });
    Append(&file, static_cast<WORD>(spec.entries));
    for (int i = 1; i < spec.entries; ++i) {
        AppendEntry(&file, 16, 16, 100, 0);
    }
    const size_t told = spec.understates ? 728 : IconBytes(spec);
    AppendEntry(&file, spec.width, spec.height, told, ImageOffset(spec));
    Append(&file, DWORD{ 40 });
    Append(&file, static_cast<LONG>(spec.width));
    Append(&file, static_cast<LONG>(2 * spec.height));
    Append(&file, spec.planes);
    Append(&file, spec.bits);
    file.resize(file.size() + 24);
    for (int i = 0; i < 1 << spec.bits; ++i) {
        Append(&file, i == 1 ? DWORD{ 0x00FF0000 } : DWORD{ 0 });
    }
    const BYTE   ones[] = { 0xFF, 0x11, 0x01 }; // of 1, 4 and 8 bits
    const size_t maskRows = static_cast<size_t>(spec.height * spec.width / 8);
    file.insert(file.end(), maskRows * spec.bits, ones[spec.bits / 4]);
    file.insert(file.end(), maskRows / 2, 0xFF);
    file.insert(file.end(), maskRows - maskRows / 2, 0);
    return file;
}

// Numbers that are the same in every run.
class Chance {
public:
    unsigned Below(unsigned limit)
    {
        state_ = state_ * 1664525u + 1013904223u;
        return (state_ >> 8) % limit;
    }

private:
    unsigned state_ = 12345;
};
