// Page, totals and scroll bars of a grid, computed anew after every change of size or data.
#include "dialog/scroll_bar.h"
#include "gridctl/grid_control.h"

namespace {

int RectHeight(const RECT& rect)
{
    return static_cast<int>(rect.bottom - rect.top);
}

// Steps 1 to 3: how many rows fit.
void MeasurePage(HGridCtl* ctl)
{
    RECT data;
    HGDataRect(ctl, &data);
    const int height = RectHeight(data);
    const int record = std::max(1, RecordHeight(ctl));
    // Settled: the low bit of the remainder, so an even remainder counts as no partial row.
    SetFlag(ctl, HGC_PARTIALROW, ((height % record) & 1) != 0);
    ctl->cPageRows = static_cast<short>(std::clamp(height / record + PartialRow(ctl), 1, 0x7FFF));
}

struct Bar {
    HWND window;
    int  kind;
};

Bar VerticalBar(const HGridCtl* ctl)
{
    return ctl->hNavScroll ? Bar{ ctl->hNavScroll, SB_CTL } : Bar{ ctl->hWnd, SB_VERT };
}

// What decides on the length of a thumb. A bar keeps a page that is bounded to its range.
SCROLLINFO RangeOf(const Bar& bar)
{
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    GetScrollInfo(bar.window, bar.kind, &info);
    return info;
}

// True if the bar has got another range or page, which nobody has drawn yet.
bool SetVerticalRange(HGridCtl* ctl)
{
    const Bar  bar = VerticalBar(ctl);
    const SCROLLINFO before = RangeOf(bar);
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE;
    info.nMax = ctl->lTotalRows / ctl->nVScale;
    info.nPage = static_cast<UINT>(ctl->cPageRows - PartialRow(ctl) + 1);
    SetScrollInfo(bar.window, bar.kind, &info, FALSE);
    const SCROLLINFO after = RangeOf(bar);
    return before.nMax != after.nMax || before.nPage != after.nPage;
}

// Step 9. A top behind the last row would show none of them: it goes to the last full page. False if the window went.
bool LowerTop(HGridCtl* ctl)
{
    const std::int64_t rows = std::max<std::int64_t>(static_cast<std::int64_t>(ctl->lTotalRows) - ctl->lRowBase, 0);
    if (ctl->nTopRow < std::max<std::int64_t>(rows, 1)) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    ctl->nTopRow = static_cast<short>(std::max<std::int64_t>(rows - ctl->cPageRows + PartialRow(ctl), 0));
    HGShowEditor(ctl);
    if (!IsWindow(hwnd)) {
        return false;
    }
    InvalidateRect(hwnd, nullptr, TRUE);
    return true;
}

// Steps 8 to 10. Showing or hiding a scroll bar changes the size, and with it comes the parent's turn.
bool SetVerticalBar(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const bool changed = HasStyle(ctl, WS_VSCROLL) && SetVerticalRange(ctl);
    if (!IsWindow(hwnd) || !LowerTop(ctl)) {
        return false;
    }
    const LONG pos = HGTopRecord(ctl) / ctl->nVScale;
    HGSetScrollPos(ctl, SB_VERT, pos, !changed);
    if (changed && IsWindow(hwnd)) {
        // Also where the position is the same: the thumb has another length.
        const Bar bar = VerticalBar(ctl);
        SetScrollPos(bar.window, bar.kind, static_cast<int>(pos), TRUE);
    }
    return IsWindow(hwnd) != 0;
}

// Step 12, for a content wider than the zone. A view past the farthest position would show blank space instead of columns.
// False if the window went.
bool SetWidth(HGridCtl* ctl, int widest, LONG width)
{
    const HWND hwnd = ctl->hWnd;
    ctl->nHScrollMax = widest;
    if (!HGNotify(ctl, HGN_HRANGE)) {
        return false;
    }
    ctl->nHPage = static_cast<DWORD>(width);
    const LONG farthest = std::max<LONG>(ctl->nHScrollMax - width + 1, 0);
    if (ctl->nHScrollPos > farthest) {
        HGScrollBy(ctl, static_cast<int>(farthest - ctl->nHScrollPos), 0, true);
    }
    return IsWindow(hwnd) != 0;
}

// All fits. What the screen shows stands at the old position, and a window that got wider paints the new strip alone.
void LeavePosition(HGridCtl* ctl)
{
    if (ctl->nHScrollPos != 0) {
        InvalidateRect(ctl->hWnd, nullptr, TRUE);
    }
    ctl->nHScrollPos = 0;
    ctl->nHScrollMax = 0;
}

void SetHorizontalBar(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_PAGE;
    info.nPage = ctl->nHPage;
    SetScrollInfo(hwnd, SB_HORZ, &info, FALSE);
    if (IsWindow(hwnd)) {
        SetScrollRange(hwnd, SB_HORZ, 0, static_cast<int>(ctl->nHScrollMax), TRUE);
    }
}

// Steps 11 to 14.
void MeasureWidths(HGridCtl* ctl)
{
    RECT zone;
    HGScrollRect(ctl, &zone);
    // Fixed columns may be wider than the client area; the zone isn't narrower than nothing.
    const LONG width = std::max<LONG>(zone.right - zone.left, 0);
    const int widest = HGWidestBand(ctl);
    if (widest >= width) {
        if (!SetWidth(ctl, widest, width)) {
            return;
        }
    } else {
        LeavePosition(ctl);
    }
    ctl->nHPage = static_cast<DWORD>(width);
    if (HasStyle(ctl, WS_HSCROLL)) {
        SetHorizontalBar(ctl);
    }
}

} // namespace

void HGRecalc(HGridCtl* ctl)
{
    MeasurePage(ctl);
    if (!HGCountRows(ctl) || !HGNotify(ctl, HGN_LAYOUT) || !SetVerticalBar(ctl)) {
        return;
    }
    MeasureWidths(ctl);
}

void HGRefresh(HGridCtl* ctl, bool erase)
{
    const HWND hwnd = ctl->hWnd;
    const bool wasCorner = IsCorner(CurrentCell(ctl));
    if (!HGMeetEntryRow(ctl)) {
        return;
    }
    HGRecalc(ctl);
    if (!IsWindow(hwnd)) {
        return;
    }
    HGRestoreTop(ctl, HGTopRecord(ctl));
    // Settled: anchor and current row are handed over crosswise, so a refresh exchanges the ends of the selection.
    HGClampCell(ctl, RecordOfRow(ctl, CurrentCell(ctl).row), RecordOfRow(ctl, ctl->nAnchorRow));
    if (!IsWindow(hwnd)) {
        return;
    }
    HGFillMirror(ctl);
    RECT client;
    HGClientRect(ctl, &client);
    InvalidateRect(hwnd, &client, erase || wasCorner);
    HGMoveTo(ctl, CurrentCell(ctl).col, CurrentCell(ctl).row, true, false);
}

LONG HGSetScrollPos(HGridCtl* ctl, int bar, LONG pos, bool redraw)
{
    if (bar == SB_HORZ) {
        const LONG old = ctl->nHScrollPos;
        ctl->nHScrollPos = pos;
        if (HasStyle(ctl, WS_HSCROLL)) {
            HSetBarPos(ctl->hWnd, SB_HORZ, static_cast<int>(pos), redraw);
        }
        return old;
    }
    const LONG old = static_cast<LONG>(ctl->nVScrollPos);
    ctl->nVScrollPos = static_cast<DWORD>(pos);
    if (HasStyle(ctl, WS_VSCROLL)) {
        const Bar vertical = VerticalBar(ctl);
        HSetBarPos(vertical.window, vertical.kind, static_cast<int>(pos), redraw);
    }
    return old;
}
