// The rectangles of a grid, in client pixels: left and top inside, right and bottom outside.
// Which columns follow each other is told by grid_columns.cpp.
#include "gridctl/grid_control.h"

namespace {

// Keeps y in 16 bits, and stands for the far edge of an extent without a limit.
constexpr LONG coordinateBound = 0x7000;
constexpr LONG farLeft = -1000;
constexpr RECT offScreen = { -50, -50, -50, -50 };

LONG HeaderHeight(const HGridCtl* ctl)
{
    return HasStyle(ctl, HGS_COLHEADERS) ? ctl->cBands * ctl->pData->nHdrHeight : 0;
}

LONG HeaderWidth(const HGridCtl* ctl)
{
    return HasStyle(ctl, HGS_ROWHEADERS) ? ctl->pData->nHdrWidth : 0;
}

// The y of a line, counted from the top of the data.
LONG LineY(const HGridCtl* ctl, std::int64_t line, LONG top)
{
    const std::int64_t y = line * ctl->pData->nRowHeight + top;
    return static_cast<LONG>(std::clamp<std::int64_t>(y, -coordinateBound, coordinateBound));
}

// Above the data nothing is left of a row. 1 if the rectangle begins in the client area.
int CutAtTop(RECT* rect, LONG top, LONG clientBottom)
{
    if (rect->bottom <= top) {
        rect->top = top;
        rect->bottom = top;
        return 0;
    }
    return rect->top < clientBottom;
}

void HeaderRow(const HGridCtl* ctl, RECT* rect, int col, int band, LONG top)
{
    if (col == -1) {
        rect->bottom = top;
        return;
    }
    rect->top = ctl->pData->nHdrHeight * band;
    rect->bottom = rect->top + ctl->pData->nHdrHeight;
}

// Room for the grid lines at the right and at the bottom.
void LeaveLines(RECT* rect)
{
    rect->right -= rect->right > rect->left ? 1 : 0;
    rect->bottom -= rect->bottom > rect->top ? 1 : 0;
}

} // namespace

void HGClientRect(HGridCtl* ctl, RECT* rect)
{
    *rect = {};
    GetClientRect(ctl->hWnd, rect);
    if (ctl->hNavScroll) {
        rect->right -= GetSystemMetrics(SM_CXVSCROLL);
    }
}

void HGDataRect(HGridCtl* ctl, RECT* rect)
{
    HGBelowHeaders(ctl, rect);
    rect->left += HeaderWidth(ctl);
}

void HGBelowHeaders(HGridCtl* ctl, RECT* rect)
{
    HGClientRect(ctl, rect);
    rect->top += HeaderHeight(ctl);
}

void HGScrollRect(HGridCtl* ctl, RECT* rect)
{
    HGClientRect(ctl, rect);
    rect->left += HeaderWidth(ctl);
    HGAddFixedWidths(ctl, rect, ctl->pData->cFixedCols);
}

void HGContentRect(HGridCtl* ctl, RECT* rect)
{
    HGDataRect(ctl, rect);
    HGBoundRight(ctl, rect);
    HGBoundBottom(ctl, rect);
}

int HGColumnRect(HGridCtl* ctl, RECT* rect, int col, int)
{
    HGClientRect(ctl, rect);
    rect->bottom += coordinateBound;
    if (col < 0 && HasStyle(ctl, HGS_ROWHEADERS)) {
        rect->right = rect->left + ctl->pData->nHdrWidth;
        return 1;
    }
    rect->left += HeaderWidth(ctl);
    HGAddLeftWidths(ctl, rect, col);
    const HGField* const field = HGGetField(ctl->pData, col);
    const bool visible = field && (field->wFlags & HFF_HIDDEN) == 0;
    rect->right = rect->left + (visible ? field->nWidth : 0);
    return rect->left < rect->right;
}

int HGRowRect(HGridCtl* ctl, RECT* rect, int row, int col, int band)
{
    HGClientRect(ctl, rect);
    const LONG clientBottom = rect->bottom;
    const LONG top = rect->top + HeaderHeight(ctl);
    rect->right += coordinateBound;
    if (row == -1 && HasStyle(ctl, HGS_COLHEADERS)) {
        HeaderRow(ctl, rect, col, band, top);
        return 1;
    }
    const bool oneLine = col >= 0 && band >= 0;
    const std::int64_t line = (static_cast<std::int64_t>(row) - ctl->nTopRow) * ctl->cBands + (oneLine ? band : 0);
    rect->top = LineY(ctl, line, top);
    rect->bottom = rect->top + (oneLine ? ctl->pData->nRowHeight : RecordHeight(ctl));
    return CutAtTop(rect, top, clientBottom);
}

int HGCellRect(HGridCtl* ctl, RECT* rect, int col, int row, bool clip)
{
    RECT across;
    RECT down;
    // Most cells that are asked for lie outside the page, and a row is found faster than a column.
    const int inPage = HGRowRect(ctl, &down, row, col, HGBandOf(ctl, col));
    if (clip && !inPage) {
        *rect = offScreen;
        return 0;
    }
    const int hasWidth = HGColumnRect(ctl, &across, col, row);
    if (clip && !hasWidth) {
        *rect = offScreen;
        return 0;
    }
    down.left = farLeft;
    HGBoundRect(rect, &across, &down);
    if (!HasStyle(ctl, HGS_NOLINES) && col >= 0 && row >= 0) {
        LeaveLines(rect);
    }
    return 1;
}

void HGColExtent(HGridCtl* ctl, RECT* rect, int col)
{
    HGColumnRect(ctl, rect, col, -1);
    HGBoundBottom(ctl, rect);
}

void HGRowExtent(HGridCtl* ctl, RECT* rect, int row)
{
    HGRowRect(ctl, rect, row, -1, -1);
    HGBoundRight(ctl, rect);
}

void HGBoundRight(HGridCtl* ctl, RECT* rect)
{
    RECT client;
    HGClientRect(ctl, &client);
    if (ctl->cBands < 2) {
        RECT last;
        HGColumnRect(ctl, &last, LastCol(ctl), -1);
        rect->right = last.right;
    } else {
        rect->right = HGBandsEnd(ctl) + HeaderWidth(ctl);
    }
    if (ctl->hNavScroll) {
        rect->right = std::min(rect->right, client.right);
    }
}

void HGBoundBottom(HGridCtl* ctl, RECT* rect)
{
    RECT data;
    HGBelowHeaders(ctl, &data);
    const std::int64_t rows = static_cast<std::int64_t>(HGRowCount(ctl->pData)) - ctl->nTopRow;
    rect->bottom = std::min(rect->bottom, LineY(ctl, rows * ctl->cBands, data.top));
}

void HGBoundRect(RECT* out, const RECT* a, const RECT* b)
{
    RECT both = { std::max(a->left, b->left), std::max(a->top, b->top), std::min(a->right, b->right),
                  std::min(a->bottom, b->bottom) };
    both.left = std::min(both.left, both.right);
    both.top = std::min(both.top, both.bottom);
    *out = both;
}

void HGUnionRect(RECT* out, const RECT* a, const RECT* b)
{
    *out = { std::min(a->left, b->left), std::min(a->top, b->top), std::max(a->right, b->right),
             std::max(a->bottom, b->bottom) };
}
