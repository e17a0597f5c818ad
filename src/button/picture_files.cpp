// Makes pictures of bitmap resources and of files. The checks on their bytes are those of picture_dib and picture_icon.
#include "button/picture_files.h"

#include "button/picture_dib.h"
#include "button/picture_icon.h"
#include "foundation/gdi_guards.h"
#include "foundation/memory.h"
#include "foundation/startup.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr size_t fileNameSize = 128;  // OpenFile takes no longer ones
constexpr UINT   pieceSize = 32767;   // of a read
constexpr WORD   paletteVersion = 0x0300;
constexpr DWORD  notNt = 0x80000000;  // of GetVersion

// What tells a kind of file before all of it is read.
struct FileKind {
    const char* ending; // of names without one
    UINT        mode;
    size_t      headerSize;
    size_t      signatureAt;
    WORD        signature;
};

constexpr FileKind bitmapFile = { ".BMP", OF_READ, bitmapFileHeaderSize, 0, bitmapFileSignature };
constexpr FileKind iconFile = { ".ICO", OF_READ | OF_SHARE_DENY_WRITE, iconFileHeaderSize, iconFileTypeAt,
                                iconFileType };

// A block of the library that goes at the end of its scope.
struct OwnedBlock {
    BYTE*  bytes;
    size_t size;
    OwnedBlock() : bytes(nullptr), size(0) {}
    ~OwnedBlock() { HBlockFree(bytes); }
    OwnedBlock(const OwnedBlock&) = delete;
    OwnedBlock& operator=(const OwnedBlock&) = delete;

    bool Make(size_t count)
    {
        bytes = static_cast<BYTE*>(HBlockAlloc(count));
        size = bytes ? count : 0;
        return bytes != nullptr;
    }
};

// Files

bool CompleteName(const char* name, const char* ending, char* out)
{
    const char* const added = std::strchr(name, '.') ? "" : ending;
    if (std::strlen(name) + std::strlen(added) >= fileNameSize) {
        return false;
    }
    std::strcpy(out, name);
    std::strcat(out, added);
    return true;
}

bool ReadBytes(HFILE file, BYTE* out, size_t count)
{
    while (count > 0) {
        const UINT piece = static_cast<UINT>(std::min(count, static_cast<size_t>(pieceSize)));
        if (_lread(file, out, piece) != piece) {
            return false;
        }
        out += piece;
        count -= piece;
    }
    return true;
}

bool IsOfKind(HFILE file, const FileKind& kind)
{
    BYTE header[bitmapFileHeaderSize];
    return ReadBytes(file, header, kind.headerSize) && LoadAs<WORD>(header + kind.signatureAt) == kind.signature;
}

bool ReadWhole(HFILE file, OwnedBlock* out)
{
    const LONG size = _llseek(file, 0, FILE_END);
    if (size <= 0 || _llseek(file, 0, FILE_BEGIN) != 0) {
        return false;
    }
    return out->Make(static_cast<size_t>(size)) && ReadBytes(file, out->bytes, out->size);
}

bool ReadNamed(const char* name, const FileKind& kind, OwnedBlock* out)
{
    char complete[fileNameSize];
    if (!CompleteName(name, kind.ending, complete)) {
        return false;
    }
    OFSTRUCT    told{};
    const HFILE file = OpenFile(complete, &told, kind.mode);
    if (file == HFILE_ERROR) {
        return false;
    }
    const bool whole = IsOfKind(file, kind) && ReadWhole(file, out);
    _lclose(file);
    return whole;
}

// Bitmaps

HPALETTE PaletteOf(const BYTE* dib, const DibInfo& info)
{
    if (info.colors == 0) {
        return nullptr;
    }
    OwnedBlock block;
    if (!block.Make(sizeof(LOGPALETTE) + info.colors * sizeof(PALETTEENTRY))) {
        return nullptr;
    }
    LOGPALETTE* const palette = reinterpret_cast<LOGPALETTE*>(block.bytes);
    palette->palVersion = paletteVersion;
    palette->palNumEntries = static_cast<WORD>(info.colors);
    for (DWORD i = 0; i < info.colors; ++i) {
        const COLORREF color = DibColor(dib, info, i);
        palette->palPalEntry[i] = { GetRValue(color), GetGValue(color), GetBValue(color), 0 };
    }
    return CreatePalette(palette);
}

HBITMAP BitmapOf(const BYTE* dib, const DibInfo& info, HPALETTE palette)
{
    const WindowDC screen(nullptr);
    const HPALETTE old = palette ? SelectPalette(screen.hdc, palette, FALSE) : nullptr;
    if (palette) {
        RealizePalette(screen.hdc);
    }
    const HBITMAP bitmap =
        CreateDIBitmap(screen.hdc, reinterpret_cast<const BITMAPINFOHEADER*>(dib), CBM_INIT, dib + info.pixelOffset,
                       reinterpret_cast<const BITMAPINFO*>(dib), DIB_RGB_COLORS);
    if (old) {
        SelectPalette(screen.hdc, old, FALSE);
    }
    return bitmap;
}

void MakeDibPic(Pic* pic, const BYTE* dib, const DibInfo& info, bool needsPalette)
{
    const HPALETTE palette = PaletteOf(dib, info);
    const HBITMAP  bitmap = palette || !needsPalette ? BitmapOf(dib, info, palette) : nullptr;
    if (!bitmap) {
        if (palette) {
            DeleteObject(palette);
        }
        return;
    }
    *pic = { PIC_DIB, bitmap, palette, 0 };
}

void LoadPlainBitmap(Pic* pic, HINSTANCE module, const char* name)
{
    if (const HBITMAP bitmap = LoadBitmapA(module, name)) {
        *pic = { PIC_BITMAP, bitmap, nullptr, 0 };
    }
}

// Icons

HICON IconOf(const BITMAP& info, HBITMAP colors, const IconEntry& entry, const BYTE* mask)
{
    OwnedBlock bits;
    // Bounded: what 16 bits can't count isn't copied.
    const int size = info.bmWidthBytes * info.bmHeight * info.bmPlanes;
    if (size <= 0 || size > 0xFFFF || !bits.Make(static_cast<size_t>(size))) {
        return nullptr;
    }
    GetBitmapBits(colors, size, bits.bytes);
    return CreateIcon(hInstance, entry.width, entry.height, static_cast<BYTE>(info.bmPlanes),
                      static_cast<BYTE>(info.bmBitsPixel), mask, bits.bytes);
}

// image is changed, and has as much room as info says.
HICON MakeIcon(BYTE* image, const IconEntry& entry, const IconImage& info)
{
    FixIconHeader(image, entry, info);
    FlipRows(image + info.maskOffset, info.maskRow, entry.height);
    const WindowDC             screen(nullptr);
    const OwnedObject<HBITMAP> colors(CreateDIBitmap(
        screen.hdc, reinterpret_cast<const BITMAPINFOHEADER*>(image), CBM_INIT, image + info.bitsOffset,
        reinterpret_cast<const BITMAPINFO*>(image), DIB_RGB_COLORS));
    BITMAP bitmap{};
    if (!colors.h || !GetObjectA(colors.h, sizeof bitmap, &bitmap)) {
        return nullptr;
    }
    return IconOf(bitmap, colors.h, entry, image + info.maskOffset);
}

} // namespace

void LoadPicResource(Pic* pic, HINSTANCE module, const char* name)
{
    if (GetVersion() & notNt) {
        LoadPlainBitmap(pic, module, name);
        return;
    }
    const HRSRC   found = FindResourceA(module, name, reinterpret_cast<LPCSTR>(RT_BITMAP));
    const HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    const BYTE*   dib = loaded ? static_cast<const BYTE*>(LockResource(loaded)) : nullptr;
    DibInfo       info{};
    if (dib && ReadDib(dib, SizeofResource(module, found), DibSource::Resource, &info)) {
        MakeDibPic(pic, dib, info, false);
    }
    if (loaded) {
        FreeResource(loaded);
    }
}

void LoadPicBitmapFile(Pic* pic, const char* name)
{
    OwnedBlock file;
    DibInfo    info{};
    if (ReadNamed(name, bitmapFile, &file) && ReadBitmapFile(file.bytes, file.size, &info)) {
        MakeDibPic(pic, file.bytes + bitmapFileHeaderSize, info, true);
    }
}

void LoadPicIconFile(Pic* pic, const char* name)
{
    OwnedBlock file;
    OwnedBlock image;
    IconEntry  entry{};
    IconImage  info{};
    if (!ReadNamed(name, iconFile, &file) || !FindIconEntry(file.bytes, file.size, &entry) ||
        !ReadIconImage(file.bytes + entry.offset, entry, &info) || !image.Make(info.room)) {
        return;
    }
    std::memcpy(image.bytes, file.bytes + entry.offset, entry.size);
    if (const HICON icon = MakeIcon(image.bytes, entry, info)) {
        *pic = { PIC_ICON, icon, nullptr, 0 };
    }
}
