// The appearance that all grids share: brushes, part painter, scaling switch.
// The state itself belongs to start-up; every change shows at the next paint.
#include "gridctl/grid_control.h"

#include "foundation/screen.h"
#include "foundation/startup.h"

#include <widgets/widgets.h>

namespace {

constexpr COLORREF noBrush = 0xFFFFFFFF;

void ReplaceBrush(HBRUSH* slot, COLORREF color)
{
    if (*slot) {
        DeleteObject(*slot);
    }
    *slot = color < noBrush ? CreateSolidBrush(color) : nullptr;
}

} // namespace

int WINAPI SetGridBckgndColor(COLORREF colorA, COLORREF colorB)
{
    ReplaceBrush(&hFaceBrush, colorA);
    // Settled: the colour is kept even when it means that there is no brush.
    crFace = colorA;
    ReplaceBrush(&hSecondBrush, colorB);
    return 1;
}

int WINAPI SetGridBckgndColors(COLORREF colorA, COLORREF colorB, COLORREF colorC)
{
    SetGridBckgndColor(colorA, colorB);
    ReplaceBrush(&hThirdBrush, colorC);
    return 1;
}

int WINAPI SetGridSelectColor(COLORREF color)
{
    ReplaceBrush(&hSelectBrush, color);
    return 1;
}

int WINAPI SetGridDrawPartFnc(HGDRAWPART function)
{
    pfnDrawPart = function;
    return 1;
}

int WINAPI SetGridAppDPIScaling(int flag)
{
    fDpiScaling = flag;
    return 1;
}

int WINAPI SetGridAppDPIChanged(void)
{
    fDpiRead = 0;
    return 1;
}

int WINAPI SetBkgndFocusBrush(HBRUSH brush)
{
    hFocusBrush = brush;
    return 1;
}
