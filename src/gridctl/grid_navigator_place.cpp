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
    // A host's procedure over one of them may end the grid while they are placed.
    const HWND first = ctl->hNavFirst;
    const HWND added = ctl->hNavNew;
    const HWND fourth = ctl->hNavExtra;
    const HWND last = ctl->hNavLast;
    const HWND bar = ctl->hNavScroll;
    const int button = std::min(GetSystemMetrics(SM_CYVSCROLL), bottom / parts);

    Place(first, strip, 0, button);
    if (newRow) {
        bottom -= button;
        Place(added, strip, bottom, button);
    } else if (added) {
        ShowWindow(added, SW_HIDE);
    }
    int y = bottom - button;
    if (extra) {
        Place(fourth, strip, y, button);
        y = bottom - 2 * button;
    }
    Place(last, strip, y, button);
    Place(bar, strip, button, y - button);
}
