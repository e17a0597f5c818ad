// The pictures of the library and its hosts: found by name, each loaded once, counted, and freed with the last use.
#include "button/picture_cache.h"

#include "button/picture_files.h"
#include "foundation/memory.h"
#include "foundation/startup.h"

#include <cstdlib>
#include <cstring>

namespace {

struct PicEntry {
    Pic       pic;
    int       cRefs;
    PicEntry* pNext;
    HINSTANCE hModule; // where the name was found; null for a file and for the strip
    // The name follows, zero-terminated.
};

PicEntry* pPictures; // in load order

const char* NameOf(const PicEntry* entry)
{
    return reinterpret_cast<const char*>(entry + 1);
}

PicEntry* FindByName(HINSTANCE module, const char* name)
{
    PicEntry* entry = pPictures;
    while (entry) {
        const bool here = entry->hModule == module || entry->hModule == hInstance || !entry->hModule;
        if (here && HCompareNoCase(NameOf(entry), name) == 0) {
            break;
        }
        entry = entry->pNext;
    }
    return entry;
}

// Not kept; the link at which the entry stands or would be appended.
PicEntry** FindByImage(HANDLE image)
{
    PicEntry** link = &pPictures;
    while (*link && (*link)->pic.hImage != image) {
        link = &(*link)->pNext;
    }
    return link;
}

bool IsStripName(const char* name)
{
    return std::strncmp(name, "IM", 2) == 0;
}

void LoadIconResource(Pic* pic, HINSTANCE module, const char* name)
{
    if (const HICON icon = LoadIconA(module, name)) {
        *pic = { PIC_ICON, icon, nullptr, 0 };
    }
}

void LoadFromModule(Pic* pic, HINSTANCE module, const char* name)
{
    LoadPicResource(pic, module, name);
    if (!pic->hImage) {
        LoadIconResource(pic, module, name);
    }
}

void LoadFromFile(Pic* pic, const char* name)
{
    LoadPicBitmapFile(pic, name);
    if (!pic->hImage) {
        LoadPicIconFile(pic, name);
    }
}

// Gives the module in which the picture was found.
HINSTANCE LoadNew(Pic* pic, HINSTANCE module, const char* name)
{
    if (IsStripName(name)) {
        *pic = { PIC_STRIP, INVALID_HANDLE_VALUE, nullptr, static_cast<int>(std::strtol(name + 2, nullptr, 10)) };
        return nullptr;
    }
    LoadFromModule(pic, module, name);
    if (pic->hImage) {
        return module;
    }
    LoadFromModule(pic, hInstance, name);
    if (pic->hImage) {
        return hInstance;
    }
    LoadFromFile(pic, name);
    return nullptr;
}

int DeletePic(const Pic& pic)
{
    switch (LOWORD(pic.nKind)) {
    case PIC_STRIP: return 0;
    case PIC_BITMAP: return DeleteObject(pic.hImage);
    case PIC_DIB:
        if (pic.hPalette) {
            DeleteObject(pic.hPalette);
        }
        return DeleteObject(pic.hImage);
    default: return DestroyIcon(static_cast<HICON>(pic.hImage));
    }
}

bool AddEntry(const Pic& pic, HINSTANCE module, const char* name)
{
    const size_t    nameSize = std::strlen(name) + 1;
    PicEntry* const entry = static_cast<PicEntry*>(HBlockAlloc(sizeof(PicEntry) + nameSize, GMEM_SHARE));
    if (!entry) {
        return false;
    }
    entry->pic = pic;
    entry->cRefs = 1;
    entry->hModule = module;
    std::memcpy(entry + 1, name, nameSize);
    PicEntry** link = &pPictures;
    while (*link) {
        link = &(*link)->pNext;
    }
    *link = entry;
    return true;
}

} // namespace

int PicRefs(const Pic* pic)
{
    const PicEntry* const entry = *FindByImage(pic->hImage);
    return entry ? entry->cRefs : 0;
}

int WINAPI LoadPic(Pic* pic, HINSTANCE module, const char* name)
{
    if (!pic) {
        return 0;
    }
    *pic = {};
    // Bounded: a number in place of a name isn't read.
    if (!name || IS_INTRESOURCE(name)) {
        return 0;
    }
    if (PicEntry* const entry = FindByName(module, name)) {
        *pic = entry->pic;
        ++entry->cRefs;
        return 1;
    }
    const HINSTANCE source = LoadNew(pic, module, name);
    if (!pic->hImage) {
        return 0;
    }
    if (!AddEntry(*pic, source, name)) {
        DeletePic(*pic);
        *pic = {};
        return 0;
    }
    return 1;
}

int WINAPI FreePic(const Pic* pic, int /*unused*/)
{
    // Settled: all pictures of the strip have one handle, so the first of them loses a use for each.
    PicEntry** const link = pic ? FindByImage(pic->hImage) : nullptr;
    PicEntry* const  entry = link ? *link : nullptr;
    if (!entry) {
        return 0;
    }
    if (--entry->cRefs > 0) {
        return 1;
    }
    const Pic gone = entry->pic;
    *link = entry->pNext;
    HBlockFree(entry);
    return DeletePic(gone);
}
