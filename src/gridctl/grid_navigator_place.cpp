// Places the navigator in its strip at the right of a grid, from top to bottom.
#include "gridctl/grid_control.h"

namespace {

struct Strip {
    int x;
    int width;
};

void Place(HWND child, const Strip& strip, int y, int height)
{
    if (child) {
        SetWindowPos(child, nullptr, strip.x, y, strip.width, height, SWP_SHOWWINDOW);
    }
}

} // namespace

void HGPlaceNavigator(HGridCtl* ctl)
{
    if (!ctl->hNavScroll) {
        return;
    }
    RECT client = {};
    GetClientRect(ctl->hWnd, &client);
    const bool newRow = HasStyle(ctl, HGS_NEWROW);
    const bool extra = (ctl->pData->dwStyle2 & HGX_EXTRABUTTON) != 0;
    const int parts = newRow ? 5 : 4;
    const int width = GetSystemMetrics(SM_CXVSCROLL);
    const Strip strip = { static_cast<int>(client.right) - width, width };
    int bottom = static_cast<int>(client.bottom);
    const int button = std::min(GetSystemMetrics(SM_CYVSCROLL), bottom / parts);

    Place(ctl->hNavFirst, strip, 0, button);
    if (newRow) {
        bottom -= button;
        Place(ctl->hNavNew, strip, bottom, button);
    } else if (ctl->hNavNew) {
        ShowWindow(ctl->hNavNew, SW_HIDE);
    }
    int y = bottom - button;
    if (extra) {
        Place(ctl->hNavExtra, strip, y, button);
        y = bottom - 2 * button;
    }
    Place(ctl->hNavLast, strip, y, button);
    Place(ctl->hNavScroll, strip, button, y - button);
}
