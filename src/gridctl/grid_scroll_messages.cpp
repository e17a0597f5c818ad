// Scroll bars and wheel: their messages as scrolls of the view, and for rows as moves of the current cell.
#include "gridctl/grid_control.h"

namespace {

constexpr int lineStep = 10; // pixels of a line of the horizontal bar

// A page less one, so that something of the old page stays in view.
int PageStep(LONG page)
{
    return static_cast<int>(std::max<LONG>(page - 1, 1));
}

int WayAcross(const HGridCtl* ctl, WPARAM wParam)
{
    const int page = PageStep(static_cast<LONG>(ctl->nHPage));
    switch (LOWORD(wParam)) {
    case SB_LINELEFT:      return -lineStep;
    case SB_LINERIGHT:     return lineStep;
    case SB_PAGELEFT:      return -page;
    case SB_PAGERIGHT:     return page;
    case SB_THUMBPOSITION: return HIWORD(wParam) - LOWORD(ctl->nHScrollPos);
    default:               return 0;
    }
}

LONG WayToThumb(const HGridCtl* ctl, WPARAM wParam)
{
    const std::int64_t units = static_cast<std::int64_t>(HIWORD(wParam)) - static_cast<LONG>(ctl->nVScrollPos);
    return BoundRecord(units * ctl->nVScale);
}

// The rows of a scroll-bar code. False if the window went.
bool WayDown(HGridCtl* ctl, WPARAM wParam, LONG* rows)
{
    const HWND hwnd = ctl->hWnd;
    const int page = PageStep(ctl->cPageRows);
    switch (LOWORD(wParam)) {
    case SB_LINEUP:   *rows = -1; return true;
    case SB_LINEDOWN: *rows = 1; return true;
    case SB_PAGEUP:   *rows = -page; return true;
    case SB_PAGEDOWN: *rows = page; return true;
    case SB_THUMBPOSITION:
        HGFetchTotal(ctl);
        if (!IsWindow(hwnd)) {
            return false;
        }
        *rows = WayToThumb(ctl, wParam);
        return true;
    default: *rows = 0; return true;
    }
}

LONG LowerToTotal(const HGridCtl* ctl, LONG rows)
{
    const std::int64_t pos = static_cast<LONG>(ctl->nVScrollPos);
    return BoundRecord(std::min<std::int64_t>(rows, ctl->lTotalRows - pos * ctl->nVScale));
}

// The current cell goes along, but not past the last record.
void MoveAlong(HGridCtl* ctl, LONG rows)
{
    const std::int64_t current = static_cast<std::int64_t>(ctl->lRowBase) + CurrentCell(ctl).row;
    std::int64_t way = rows;
    if (current + way > static_cast<std::int64_t>(ctl->lTotalRows) - 2) {
        way = ctl->lTotalRows - current - (HasStyle(ctl, HGS_NEWROW) ? 2 : 0);
    }
    HGMoveBy(ctl, 0, static_cast<int>(BoundRecord(way)), false);
}

bool IsOverWindow(const HGridCtl* ctl, LPARAM lParam)
{
    const POINT point = { static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)) };
    RECT window = {};
    GetWindowRect(ctl->hWnd, &window);
    return PtInRect(&window, point) != 0;
}

} // namespace

bool HGAskNavigate(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const HWND parent = GetParent(hwnd);
    const WORD id = LOWORD(GetWindowLongA(hwnd, GWL_ID));
    const LRESULT refused = parent ? SendMessageA(parent, WM_COMMAND, MAKEWPARAM(id, HGN_NAVIGATE),
                                                  reinterpret_cast<LPARAM>(hwnd))
                                   : 0;
    return !refused && IsWindow(hwnd);
}

LRESULT HGOnHScroll(HGridCtl* ctl, WPARAM wParam)
{
    const int way = WayAcross(ctl, wParam);
    if (way != 0) {
        HGScrollBy(ctl, way, 0, true);
    }
    return 0;
}

LRESULT HGOnVScroll(HGridCtl* ctl, WPARAM wParam)
{
    const HWND hwnd = ctl->hWnd;
    LONG rows = 0;
    if (!HGAskNavigate(ctl) || !WayDown(ctl, wParam, &rows)) {
        return 0;
    }
    rows = LowerToTotal(ctl, rows);
    if (rows == 0) {
        return 0;
    }
    HGScrollBy(ctl, 0, static_cast<int>(rows), true);
    if (IsWindow(hwnd) && LOWORD(wParam) != SB_THUMBPOSITION) {
        MoveAlong(ctl, rows);
    }
    return 0;
}

LRESULT HGOnMouseWheel(HGridCtl* ctl, WPARAM wParam, LPARAM lParam, int* pDefault)
{
    const int delta = static_cast<short>(HIWORD(wParam));
    const bool up = delta >= 0;
    const std::int64_t limit = static_cast<std::int64_t>(ctl->lTotalRows) + (HasStyle(ctl, HGS_NEWROW) ? 1 : 0);
    if (!IsOverWindow(ctl, lParam)) {
        *pDefault = 1;
        return 0;
    }
    if (ctl->cPageRows < limit) {
        HGOnVScroll(ctl, up ? SB_PAGEUP : SB_PAGEDOWN);
        return 1;
    }
    if (static_cast<LONG>(ctl->nVScrollPos) > 0 && delta > 0) {
        *pDefault = 1;
        HGOnVScroll(ctl, SB_PAGEUP);
        return 0;
    }
    if (ctl->nHScrollMax != 0) {
        HGOnHScroll(ctl, up ? SB_PAGELEFT : SB_PAGERIGHT);
        return 1;
    }
    *pDefault = 1;
    return 0;
}
