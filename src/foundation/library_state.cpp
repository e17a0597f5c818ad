// The variables that the whole library shares, and their start values.
#include "foundation/startup.h"

#include "foundation/screen.h"

HINSTANCE  hInstance;
int        fWidgetsReady;
HCURSOR    hCurIBeam;
HCURSOR    hCurArrow;
HCURSOR    hCurGrid;
HIMAGELIST hCheckImages;

HBRUSH     hFocusBrush;
HBRUSH     hSelectBrush;
HBRUSH     hFaceBrush;
COLORREF   crFace;
HBRUSH     hSecondBrush;
HBRUSH     hThirdBrush;
HGDRAWPART pfnDrawPart;
int        fDpiScaling = 1;

void LibraryStartState()
{
    hFocusBrush = nullptr;
    hSelectBrush = nullptr;
    hFaceBrush = nullptr;
    hSecondBrush = nullptr;
    hThirdBrush = nullptr;
    pfnDrawPart = nullptr;
    hCheckImages = nullptr;
    fDpiScaling = 1;
    DpiReset();
    DpiRead();
}
