// Frames: the single line, the 3-D borders built of it, and the non-client frame of a control.
#include "button/draw.h"

#include "dialog/control_frame.h"
#include "foundation/gdi_guards.h"

#include <widgets/widgets.h>

#include <array>
#include <iterator>

namespace {

enum class Tone { black, white, shadow, face };

struct FrameLine {
    Tone topLeft;
    Tone bottomRight;
};

struct Border {
    int                      lines;
    std::array<FrameLine, 2> line; // from the outside in
};

// clang-format off
constexpr Border borders[] = {
    { 1, { { { Tone::black,  Tone::black  }, {} } } },
    { 1, { { { Tone::white,  Tone::shadow }, {} } } },
    { 2, { { { Tone::white,  Tone::shadow }, { Tone::shadow, Tone::white  } } } },
    { 2, { { { Tone::shadow, Tone::white  }, { Tone::black,  Tone::face   } } } },
    { 2, { { { Tone::white,  Tone::shadow }, { Tone::white,  Tone::shadow } } } },
};
// clang-format on
constexpr int borderCount = static_cast<int>(std::size(borders));

constexpr int ridge = 2;
constexpr int sunken = 3;

struct Pens {
    OwnedObject<HPEN> shadow{ CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNSHADOW)) };
    OwnedObject<HPEN> face{ CreatePen(PS_SOLID, 1, GetSysColor(COLOR_BTNFACE)) };

    HPEN Of(Tone tone) const
    {
        switch (tone) {
        case Tone::shadow:
            return shadow.h;
        case Tone::face:
            return face.h;
        case Tone::white:
            return static_cast<HPEN>(GetStockObject(WHITE_PEN));
        default:
            return static_cast<HPEN>(GetStockObject(BLACK_PEN));
        }
    }
};

void FillInside(HDC dc, const RECT& rect, bool cut)
{
    RECT inside = rect;
    if (cut) {
        InflateRect(&inside, -1, -1);
    }
    Rectangle(dc, inside.left, inside.top, inside.right, inside.bottom);
}

// right and bottom lie on the line.
void DrawTopLeft(HDC dc, const RECT& rect, bool cut)
{
    MoveToEx(dc, rect.left, rect.bottom - 1, nullptr);
    LineTo(dc, rect.left, rect.top);
    if (cut) {
        MoveToEx(dc, rect.left + 1, rect.top, nullptr);
    }
    LineTo(dc, rect.right, rect.top);
}

void DrawBottomRight(HDC dc, const RECT& rect, bool cut)
{
    if (cut) {
        MoveToEx(dc, rect.right, rect.top + 1, nullptr);
    }
    LineTo(dc, rect.right, rect.bottom);
    if (cut) {
        MoveToEx(dc, rect.right - 1, rect.bottom, nullptr);
    }
    LineTo(dc, rect.left, rect.bottom);
    if (!cut) {
        LineTo(dc, rect.left + 1, rect.bottom);
    }
}

} // namespace

void HDrawFrame(HDC dc, RECT* rect, HPEN penTopLeft, HPEN penBottomRight, bool fCut, bool fFill)
{
    if (!penTopLeft) {
        penTopLeft = static_cast<HPEN>(GetStockObject(WHITE_PEN));
        if (!penTopLeft) {
            penBottomRight = static_cast<HPEN>(GetStockObject(BLACK_PEN));
        }
    }
    const SelectedObject noPen(dc, GetStockObject(NULL_PEN));
    if (fFill) {
        FillInside(dc, *rect, fCut);
    }
    --rect->right;
    --rect->bottom;
    {
        const SelectedObject pen(dc, penTopLeft);
        DrawTopLeft(dc, *rect, fCut);
    }
    {
        const SelectedObject pen(dc, penBottomRight);
        DrawBottomRight(dc, *rect, fCut);
    }
    ++rect->left;
    ++rect->top;
}

void WINAPI Draw3DBorder(HDC dc, RECT* rect, int kind, int fill)
{
    if (!rect || kind < 0 || kind >= borderCount) {
        return;
    }
    const Border& border = borders[kind];
    const Pens    pens;
    for (int i = 0; i < border.lines; ++i) {
        const FrameLine& line = border.line[static_cast<size_t>(i)];
        const bool       last = i == border.lines - 1;
        HDrawFrame(dc, rect, pens.Of(line.topLeft), pens.Of(line.bottomRight), false, last && fill != 0);
    }
}

void WINAPI HNCPaint(HWND hwnd, int fBorder)
{
    const HDC dc = GetWindowDC(hwnd);
    RECT      rect{};
    GetWindowRect(hwnd, &rect);
    SendMessageA(hwnd, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&rect));
    RStoC(hwnd, &rect);
    // The frame stands two pixels outside the client area, whose corner is at 2, 2 of the window.
    rect.right += 4;
    rect.bottom += 4;
    Draw3DBorder(dc, &rect, fBorder ? ridge : sunken, 0);
    ReleaseDC(hwnd, dc);
}
