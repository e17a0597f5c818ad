// Draws pictures of each kind and tells their size.
#include "button/draw.h"
#include "foundation/screen.h"
#include "foundation/startup.h"

namespace {

int PaintBitmap(HDC dc, const Pic* pic, int x, int y, COLORREF key)
{
    if (pic->hImage) {
        HDrawBitmap(dc, static_cast<HBITMAP>(pic->hImage), x, y, key);
    }
    return 1;
}

int PaintIcon(HDC dc, const Pic* pic, int x, int y)
{
    return pic->hImage ? DrawIcon(dc, x, y, static_cast<HICON>(pic->hImage)) : 1;
}

int PaintDib(HDC dc, const Pic* pic, int x, int y, COLORREF key)
{
    const HPALETTE old = pic->hPalette ? SelectPalette(dc, pic->hPalette, TRUE) : nullptr;
    RealizePalette(dc);
    PaintBitmap(dc, pic, x, y, key);
    if (old) {
        SelectPalette(dc, old, TRUE);
    }
    return 1;
}

int PaintStrip(HDC dc, const Pic* pic, int x, int y)
{
    if (hCheckImages && pic->nImage != -1) {
        ImageList_Draw(hCheckImages, pic->nImage, dc, x, y, ILD_TRANSPARENT);
    }
    return 1;
}

SIZE BitmapSize(HANDLE bitmap)
{
    BITMAP info{};
    GetObjectA(bitmap, sizeof info, &info);
    return { info.bmWidth, info.bmHeight };
}

bool SizeOf(const Pic* pic, SIZE* out)
{
    switch (pic->nKind) {
    case PIC_BITMAP:
    case PIC_DIB: *out = BitmapSize(pic->hImage); return true;
    case PIC_ICON: *out = { GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON) }; return true;
    case PIC_STRIP: *out = { ScaleX(imageUnits), ScaleY(imageUnits) }; return true;
    default: return false;
    }
}

} // namespace

int WINAPI PaintPic(HDC dc, const Pic* pic, int x, int y, COLORREF key)
{
    switch (pic ? pic->nKind : DWORD{ PIC_NONE }) {
    case PIC_BITMAP: return PaintBitmap(dc, pic, x, y, key);
    case PIC_ICON: return PaintIcon(dc, pic, x, y);
    case PIC_DIB: return PaintDib(dc, pic, x, y, key);
    case PIC_STRIP: return PaintStrip(dc, pic, x, y);
    default: return 0;
    }
}

int WINAPI GetPicDimensions(const Pic* pic, int* outWidth, int* outHeight)
{
    SIZE size{};
    if (!pic || !SizeOf(pic, &size)) {
        return 0;
    }
    if (outWidth) {
        *outWidth = static_cast<int>(size.cx);
    }
    if (outHeight) {
        *outHeight = static_cast<int>(size.cy);
    }
    return 1;
}
