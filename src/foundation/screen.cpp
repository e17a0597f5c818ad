// The screen's resolution, asked once, and the conversions that rest on it.
#include "foundation/screen.h"

#include "foundation/gdi_guards.h"

namespace {

constexpr int designDpi = 96;
constexpr int pointsPerInch = 72;

} // namespace

int fDpiRead;
int nDpiX = designDpi;
int nDpiY = designDpi;
int nDpiPercent = 100;

void DpiReset()
{
    fDpiRead = 0;
    nDpiX = designDpi;
    nDpiY = designDpi;
    nDpiPercent = 100;
}

void DpiRead()
{
    if (fDpiRead) {
        return;
    }
    const WindowDC screen(nullptr);
    if (screen.hdc) {
        nDpiX = GetDeviceCaps(screen.hdc, LOGPIXELSX);
        nDpiY = GetDeviceCaps(screen.hdc, LOGPIXELSY);
    }
    nDpiPercent = MulDiv(nDpiX, 100, designDpi);
    fDpiRead = 1;
}

int DpiX()
{
    DpiRead();
    return nDpiX;
}

int DpiY()
{
    DpiRead();
    return nDpiY;
}

int DpiPercent()
{
    DpiRead();
    return nDpiPercent;
}

int ScaleX(int v)
{
    return MulDiv(v, DpiX(), designDpi);
}

int ScaleY(int v)
{
    return MulDiv(v, DpiY(), designDpi);
}

int UnscaleX(int v)
{
    return MulDiv(v, designDpi, DpiX());
}

int UnscaleY(int v)
{
    return MulDiv(v, designDpi, DpiY());
}

double ScaleXF(double v)
{
    return DpiX() * v / designDpi;
}

double ScaleYF(double v)
{
    return DpiY() * v / designDpi;
}

double UnscaleXF(double v)
{
    return v * designDpi / DpiX();
}

double UnscaleYF(double v)
{
    return v * designDpi / DpiY();
}

void ScaleRect(RECT* rect)
{
    *rect = { ScaleX(rect->left), ScaleY(rect->top), ScaleX(rect->right), ScaleY(rect->bottom) };
}

void UnscaleRect(RECT* rect)
{
    *rect = { UnscaleX(rect->left), UnscaleY(rect->top), UnscaleX(rect->right), UnscaleY(rect->bottom) };
}

void ScalePoint(POINT* point)
{
    *point = { ScaleX(point->x), ScaleY(point->y) };
}

int PointsToPixels(int v)
{
    return MulDiv(v, DpiY(), pointsPerInch);
}

int ScreenWidthUnits()
{
    return UnscaleX(GetSystemMetrics(SM_CXSCREEN));
}

int ScreenHeightUnits()
{
    return UnscaleY(GetSystemMetrics(SM_CYSCREEN));
}

int ScreenFits(int w, int h)
{
    return ScreenWidthUnits() >= w && ScreenHeightUnits() >= h;
}
