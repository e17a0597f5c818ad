// Bitmaps that a module holds for several screen resolutions, and the image list of the library's strip.
#include "button/draw.h"

#include "button/button_internal.h"
#include "foundation/memory.h"
#include "foundation/screen.h"

#include <widgets/widgets.h>

#include <algorithm>
#include <iterator>

namespace {

struct BitmapSet {
    WORD       nKey;    // id at 100 percent
    BitmapSet* pLeft;   // lower keys
    BitmapSet* pRight;  // higher keys
    HINSTANCE  hModule; // holds the bitmaps
    WORD       nId100;  // bitmaps for 100, 200 and 400 percent; 0: none
    WORD       nId200;
    WORD       nId400;
};

BitmapSet* pSets; // root of the tree

struct Variant {
    WORD id;
    int  percent;
};

constexpr COLORREF noMask = 0xFFFFFFFF;

// The link at which a key stands or belongs.
BitmapSet** FindLink(WORD key)
{
    BitmapSet** link = &pSets;
    while (*link && (*link)->nKey != key) {
        link = key < (*link)->nKey ? &(*link)->pLeft : &(*link)->pRight;
    }
    return link;
}

void FreeTree(BitmapSet* node)
{
    if (node) {
        FreeTree(node->pLeft);
        FreeTree(node->pRight);
        HBlockFree(node);
    }
}

Variant BitmapSetPick(WORD id)
{
    const int        percent = DpiPercent();
    const BitmapSet* set = *FindLink(id);
    if (!set) {
        return { id, 100 };
    }
    if (percent >= 300 && set->nId400) {
        return { set->nId400, 400 };
    }
    if (percent >= 150 && set->nId200) {
        return { set->nId200, 200 };
    }
    return { set->nId100 ? set->nId100 : id, 100 };
}

HBITMAP LoadById(HINSTANCE module, WORD id)
{
    return LoadBitmapA(module, MAKEINTRESOURCEA(id));
}

BITMAP InfoOf(HBITMAP bitmap)
{
    BITMAP info{};
    GetObjectA(bitmap, sizeof info, &info);
    return info;
}

void StretchWhole(HBITMAP to, const BITMAP& toInfo, HBITMAP from, const BITMAP& fromInfo)
{
    const MemoryDC source(nullptr, from);
    const MemoryDC target(nullptr, to);
    // Lines that go are dropped: mixed with their neighbours, pixels of the mask colour would show as dark green.
    SetStretchBltMode(target.hdc, COLORONCOLOR);
    StretchBlt(target.hdc, 0, 0, toInfo.bmWidth, toInfo.bmHeight, source.hdc, 0, 0, fromInfo.bmWidth,
               fromInfo.bmHeight, SRCCOPY);
}

// Takes bitmap over and gives the strip in its place, or bitmap itself where the strip can't be made.
HBITMAP StretchStrip(HBITMAP bitmap, int width, int height)
{
    const BITMAP  info = InfoOf(bitmap);
    const HBITMAP strip =
        width > 0 ? CreateBitmap(width, height, info.bmPlanes, info.bmBitsPixel, nullptr) : nullptr;
    if (!strip) {
        return bitmap;
    }
    StretchWhole(strip, InfoOf(strip), bitmap, info);
    DeleteObject(bitmap);
    return strip;
}

UINT ListFlags(const BITMAP& info, COLORREF transparent)
{
    constexpr UINT depths[] = { ILC_COLOR8, ILC_COLOR16, ILC_COLOR24, ILC_COLOR32 }; // equal to their bits per pixel
    const bool     known = std::find(std::begin(depths), std::end(depths), info.bmBitsPixel) != std::end(depths);
    return (known ? info.bmBitsPixel : UINT{ ILC_COLOR4 }) | (transparent != noMask ? UINT{ ILC_MASK } : 0);
}

} // namespace

void BitmapSetReset()
{
    FreeTree(pSets);
    pSets = nullptr;
}

void BitmapSetFree()
{
    BitmapSetReset();
}

void BitmapSetRegister(HINSTANCE module, WORD id100, WORD id200, WORD id400)
{
    BitmapSet** link = FindLink(id100);
    if (!*link) {
        *link = HRecordAlloc<BitmapSet>();
        if (!*link) {
            return;
        }
        (*link)->nKey = id100;
    }
    // Settled: the root is written, not the node found, so that a second set overwrites the first.
    pSets->hModule = module;
    pSets->nId100 = id100;
    pSets->nId200 = id200;
    pSets->nId400 = id400;
}

int BitmapSetLoad(HINSTANCE module, HBITMAP* out, WORD id, int imageWidth)
{
    const Variant variant = BitmapSetPick(id);
    if (variant.percent == DpiPercent()) {
        *out = LoadById(module, variant.id);
        return *out != nullptr;
    }
    HBITMAP bitmap = LoadById(module, id);
    if (!bitmap) {
        return 0;
    }
    const BITMAP base = InfoOf(bitmap);
    const int    image = imageWidth ? imageWidth : base.bmWidth;
    if (variant.id != id) {
        if (const HBITMAP other = LoadById(module, variant.id)) {
            DeleteObject(bitmap);
            bitmap = other;
        }
    }
    *out = StretchStrip(bitmap, ScaleX(image) * (base.bmWidth / image), ScaleY(base.bmHeight));
    return 1;
}

int BitmapSetImageList(HINSTANCE module, HIMAGELIST* out, WORD id, int imageWidth, COLORREF transparent)
{
    HBITMAP bitmap = nullptr;
    if (!BitmapSetLoad(module, &bitmap, id, imageWidth)) {
        return 0;
    }
    const BITMAP info = InfoOf(bitmap);
    *out = ImageList_Create(ScaleX(imageWidth), info.bmHeight, ListFlags(info, transparent), 0, 0);
    ImageList_AddMasked(*out, bitmap, transparent);
    DeleteObject(bitmap);
    return *out != nullptr;
}
