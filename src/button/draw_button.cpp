// The face of push buttons and grid headers, painted off-screen and copied in one step.
#include "button/draw.h"

#include "button/button_internal.h"
#include "dialog/control_frame.h"
#include "foundation/gdi_guards.h"
#include "foundation/screen.h"
#include "foundation/startup.h"

#include <widgets/widgets.h>

#include <cstring>

namespace {

// What is being painted: inner begins as the whole face and shrinks with its frame.
struct Face {
    HDC  hdc;
    RECT inner;
    WORD flags;

    bool Has(WORD bits) const { return (flags & bits) != 0; }
};

// The context's own pen serves all four colours, so that no pen is made for a header cell.
void UseColor(HDC hdc, int systemColor)
{
    SetDCPenColor(hdc, GetSysColor(systemColor));
}

template <size_t N>
void Stroke(HDC hdc, int systemColor, const POINT (&points)[N])
{
    UseColor(hdc, systemColor);
    Polyline(hdc, points, static_cast<int>(N));
}

HBRUSH FaceBrush(const Face& face)
{
    return face.Has(DPB_LIBFACE) && hFaceBrush ? hFaceBrush : GetSysColorBrush(COLOR_BTNFACE);
}

void FillFace(const Face& face, int frameColor)
{
    UseColor(face.hdc, frameColor);
    // Settled: the face begins at 0, 0 also when a default frame has moved the inner rectangle in.
    Rectangle(face.hdc, 0, 0, face.inner.right, face.inner.bottom);
}

void DrawHighlight(const Face& face)
{
    const RECT& in = face.inner;
    Stroke(face.hdc, COLOR_BTNHIGHLIGHT, { { in.left, in.bottom - 2 }, { in.left, in.top }, { in.right - 1, in.top } });
}

void DrawRaisedEdges(const Face& face)
{
    const RECT& in = face.inner;
    Stroke(face.hdc, COLOR_3DLIGHT, { { in.left, in.bottom - 2 }, { in.left, in.top }, { in.right - 1, in.top } });
    Stroke(face.hdc, COLOR_BTNSHADOW,
           { { in.left + 1, in.bottom - 2 }, { in.right - 2, in.bottom - 2 }, { in.right - 2, in.top } });
    Stroke(face.hdc, COLOR_BTNHIGHLIGHT,
           { { in.left + 1, in.bottom - 3 }, { in.left + 1, in.top + 1 }, { in.right - 2, in.top + 1 } });
}

void DrawDefaultFrame(Face& face)
{
    UseColor(face.hdc, COLOR_3DDKSHADOW);
    Rectangle(face.hdc, face.inner.left, face.inner.top, face.inner.right, face.inner.bottom);
    InflateRect(&face.inner, -1, -1);
}

void DrawFace(Face& face)
{
    const SelectedObject pen(face.hdc, GetStockObject(DC_PEN));
    const SelectedObject brush(face.hdc, FaceBrush(face));
    if (face.Has(DPB_DEFAULT)) {
        DrawDefaultFrame(face);
    }
    if (face.Has(DPB_HEADER)) {
        FillFace(face, COLOR_BTNSHADOW);
        DrawHighlight(face);
    } else if (face.Has(DPB_PRESSED)) {
        FillFace(face, COLOR_BTNSHADOW);
        ++face.inner.left;
        ++face.inner.top;
    } else if (!face.Has(DPB_SELECTED)) {
        FillFace(face, COLOR_3DDKSHADOW);
        DrawRaisedEdges(face);
    } else {
        const SelectedObject select(face.hdc, hSelectBrush);
        FillFace(face, COLOR_3DDKSHADOW);
        DrawHighlight(face);
    }
}

POINT Centred(const Face& face, int width, int height)
{
    return { (face.inner.left + face.inner.right - width) / 2, (face.inner.top + face.inner.bottom - height) / 2 };
}

void DrawStripImage(const Face& face, int image)
{
    if (hCheckImages) {
        const POINT at = Centred(face, ScaleX(imageUnits), ScaleY(imageUnits));
        ImageList_Draw(hCheckImages, image, face.hdc, at.x, at.y, ILD_TRANSPARENT);
    }
}

void DrawCentredBitmap(const Face& face, HBITMAP bitmap)
{
    BITMAP info{};
    GetObjectA(bitmap, sizeof info, &info);
    const POINT at = Centred(face, info.bmWidth, info.bmHeight);
    HDrawBitmap(face.hdc, bitmap, at.x, at.y, maskColor);
}

void DrawSortUp(HDC hdc, int x0, int y0)
{
    const int high = ScaleY(7);
    Stroke(hdc, COLOR_BTNHIGHLIGHT, { { x0, y0 }, { x0 + ScaleX(8), y0 } });
    Stroke(hdc, COLOR_BTNHIGHLIGHT, { { x0 + ScaleX(7), y0 - 1 }, { x0 + ScaleX(3), y0 - high } });
    Stroke(hdc, COLOR_BTNSHADOW, { { x0, y0 - 1 }, { x0 + ScaleX(4), y0 - high } });
}

void DrawSortDown(HDC hdc, int x0, int y0)
{
    const int high = ScaleY(7);
    Stroke(hdc, COLOR_BTNSHADOW, { { x0, y0 }, { x0 + ScaleX(8), y0 } });
    Stroke(hdc, COLOR_BTNSHADOW, { { x0, y0 + 1 }, { x0 + ScaleX(4), y0 + high } });
    Stroke(hdc, COLOR_BTNHIGHLIGHT, { { x0 + ScaleX(7), y0 + 1 }, { x0 + ScaleX(3), y0 + high } });
}

void DrawSortMarks(const Face& face)
{
    if (!face.Has(DPB_SORTUP | DPB_SORTDOWN)) {
        return;
    }
    const SelectedObject pen(face.hdc, GetStockObject(DC_PEN));
    const int            x0 = face.inner.right - ScaleX(11) - (face.Has(DPB_HEADER) ? 0 : 1);
    if (face.Has(DPB_SORTUP)) {
        DrawSortUp(face.hdc, x0, face.inner.top + ScaleY(10));
    }
    if (face.Has(DPB_SORTDOWN)) {
        DrawSortDown(face.hdc, x0, face.inner.top + ScaleY(3));
    }
}

UINT TextAlignment(const Face& face, const char* text, int textWidth)
{
    if (face.Has(DPB_RIGHT)) {
        return DT_RIGHT;
    }
    if (face.Has(DPB_LEFT)) {
        return DT_LEFT;
    }
    // A single line that is too wide begins at the left, so that its start stays visible.
    const bool tooWide = textWidth > face.inner.right - face.inner.left;
    return tooWide && !std::strchr(text, '\n') ? DT_LEFT : DT_CENTER;
}

void DrawEmbossed(const Face& face, const char* text, UINT alignment)
{
    RECT rect = face.inner;
    ++rect.left;
    ++rect.top;
    SetTextColor(face.hdc, RGB(255, 255, 255));
    DrawTextA(face.hdc, text, -1, &rect, alignment);
}

void DrawCaption(Face& face, const char* caption, HFONT font, COLORREF color)
{
    const SelectedObject selectedFont(face.hdc, font);
    SetBkMode(face.hdc, TRANSPARENT);
    const char* const text = StringParse(caption, '\0', '\\', '^', '\n', nullptr);
    const DWORD       size = HMeasureLines(face.hdc, text);
    RECT&             in = face.inner;
    if (HIWORD(size) < in.bottom - in.top) {
        in.top = (in.bottom - HIWORD(size) + in.top) / 2;
    }
    const UINT alignment = TextAlignment(face, text, LOWORD(size));
    if (face.Has(DPB_EMBOSS)) {
        DrawEmbossed(face, text, alignment);
    }
    DrawSortMarks(face);
    SetTextColor(face.hdc, face.Has(DPB_DISABLED) ? GetSysColor(COLOR_GRAYTEXT) : color);
    DrawTextA(face.hdc, text, -1, &in, alignment);
}

struct Content {
    const char* text;
    HFONT       font;
    HBITMAP     bitmap;
    COLORREF    textColor;
    int         image;
};

void DrawContent(Face& face, const Content& content)
{
    if (content.image != -1) {
        DrawStripImage(face, content.image);
    } else if (content.bitmap) {
        DrawCentredBitmap(face, content.bitmap);
    } else if (content.text) {
        DrawCaption(face, content.text, content.font, content.textColor);
    }
}

} // namespace

void WINAPI DrawPushButton(HWND /*hwnd*/, HDC dc, RECT* rect, int /*unused*/, WORD flags, const char* text, HFONT font,
                           HBITMAP bitmap, COLORREF textColor, int image)
{
    if (!dc || !rect) {
        return;
    }
    const int                  width = rect->right - rect->left;
    const int                  height = rect->bottom - rect->top;
    const OwnedObject<HBITMAP> bits(CreateCompatibleBitmap(dc, width, height));
    const MemoryDC             memory(dc, bits.h);
    Face                       face{ memory.hdc, { 0, 0, width, height }, flags };
    DrawFace(face);
    DrawContent(face, { text, font, bitmap, textColor, image });
    // Bounded: without a size the bitmap is a single pixel, which isn't copied.
    if (width > 0 && height > 0) {
        BitBlt(dc, rect->left, rect->top, width + 1, height + 1, face.hdc, 0, 0, SRCCOPY);
    }
    if (face.Has(DPB_INNERRECT)) {
        const POINT origin{ rect->left, rect->top };
        *rect = face.inner;
        OffsetRect(rect, origin.x, origin.y);
    }
}
