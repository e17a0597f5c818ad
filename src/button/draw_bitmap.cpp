// Copies a bitmap with one transparent colour, off-screen, so that the background never shows through in between.
#include "button/draw.h"

#include "button/button_internal.h"
#include "foundation/gdi_guards.h"

#include <widgets/widgets.h>

namespace {

SIZE SizeInContext(HDC holder, HBITMAP bitmap)
{
    BITMAP info{};
    GetObjectA(bitmap, sizeof info, &info);
    POINT size{ info.bmWidth, info.bmHeight };
    DPtoLP(holder, &size, 1);
    return { size.x, size.y };
}

void Combine(const MemoryDC& to, const MemoryDC& from, SIZE size, DWORD operation)
{
    BitBlt(to.hdc, 0, 0, size.cx, size.cy, from.hdc, 0, 0, operation);
}

HBITMAP MonochromeOf(SIZE size)
{
    return CreateBitmap(size.cx, size.cy, 1, 1, nullptr);
}

void DrawKeyed(HDC dc, const MemoryDC& source, SIZE size, int x, int y, COLORREF key)
{
    const OwnedObject<HBITMAP> maskBits(MonochromeOf(size));
    const OwnedObject<HBITMAP> inverseBits(MonochromeOf(size));
    const OwnedObject<HBITMAP> copyBits(CreateCompatibleBitmap(dc, size.cx, size.cy));
    const OwnedObject<HBITMAP> behindBits(CreateCompatibleBitmap(dc, size.cx, size.cy));
    const MemoryDC             mask(dc, maskBits.h);
    const MemoryDC             inverse(dc, inverseBits.h);
    const MemoryDC             copy(dc, copyBits.h);
    const MemoryDC             behind(dc, behindBits.h);

    Combine(copy, source, size, SRCCOPY);
    BitBlt(behind.hdc, 0, 0, size.cx, size.cy, dc, x, y, SRCCOPY);
    SetMapMode(copy.hdc, GetMapMode(dc));

    const COLORREF background = SetBkColor(copy.hdc, key);
    Combine(mask, copy, size, SRCCOPY); // white where the key is
    SetBkColor(copy.hdc, background);
    Combine(inverse, mask, size, NOTSRCCOPY);
    Combine(behind, mask, size, SRCAND);
    Combine(copy, inverse, size, SRCAND);
    Combine(behind, copy, size, SRCPAINT);
    BitBlt(dc, x, y, size.cx, size.cy, behind.hdc, 0, 0, SRCCOPY);
}

} // namespace

void HDrawBitmap(HDC dc, HBITMAP bitmap, int x, int y, COLORREF key)
{
    const MemoryDC source(dc, bitmap);
    const SIZE     size = SizeInContext(source.hdc, bitmap);
    if (key == 0) {
        BitBlt(dc, x, y, size.cx, size.cy, source.hdc, 0, 0, SRCCOPY);
        return;
    }
    DrawKeyed(dc, source, size, x, y, key);
}
