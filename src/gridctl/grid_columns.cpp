// The walk over the visible columns of a band, fixed columns first, and the widths that add up along it.
// Rectangles are made of them in grid_layout.cpp.
#include "gridctl/grid_control.h"

namespace {

// Where a search ended, and what it found there.
struct Found {
    int      col;
    HGField* field;
};

bool IsVisible(const HGField* field)
{
    return (field->wFlags & HFF_HIDDEN) == 0;
}

bool Counts(const HGridCtl* ctl, const HGField* field, int band)
{
    return IsVisible(field) && (ctl->cBands < 2 || field->nBand == band);
}

Found SearchOn(HGridCtl* ctl, int from, int end, int band)
{
    int col = from;
    for (; col < end; ++col) {
        HGField* const field = HGGetField(ctl->pData, col);
        if (!field || Counts(ctl, field, band)) {
            return { col, field };
        }
    }
    return { col, nullptr };
}

Found SearchBack(HGridCtl* ctl, int from, int end, int band)
{
    int col = from;
    for (; col >= end; --col) {
        HGField* const field = HGGetField(ctl->pData, col);
        if (field && Counts(ctl, field, band)) {
            return { col, field };
        }
    }
    return { col, nullptr };
}

Found FindNext(HGridCtl* ctl, int from, int band)
{
    const Found fixed = SearchOn(ctl, from, ctl->pData->cFixedCols, band);
    if (fixed.field) {
        return fixed;
    }
    return SearchOn(ctl, std::max<int>(fixed.col, ctl->nFirstCol), HGColCount(ctl->pData), band);
}

Found FindPrevious(HGridCtl* ctl, int from, int band)
{
    const Found scrolling = SearchBack(ctl, from, ctl->nFirstCol, band);
    if (scrolling.field) {
        return scrolling;
    }
    return SearchBack(ctl, std::min(scrolling.col, ctl->pData->cFixedCols - 1), 0, band);
}

// Widths of a band's visible columns, apart by zone.
struct Widths {
    int fixed;
    int scrolling;
};

// The columns in front of col; the last column is in front of none.
Widths WidthsBefore(HGridCtl* ctl, int col, int band)
{
    Widths sums = {};
    const int end = std::min(col, LastCol(ctl));
    int at = -1;
    const HGField* field = HGNextColumn(ctl, true, &at, band);
    while (field && at < end) {
        (at < ctl->pData->cFixedCols ? sums.fixed : sums.scrolling) += field->nWidth;
        field = HGNextColumn(ctl, true, &at, band);
    }
    return sums;
}

Widths WidthsOfBand(HGridCtl* ctl, int band)
{
    Widths sums = {};
    int at = -1;
    while (const HGField* const field = HGNextColumn(ctl, true, &at, band)) {
        (at < ctl->pData->cFixedCols ? sums.fixed : sums.scrolling) += field->nWidth;
    }
    return sums;
}

// Adds the fixed columns of a band before limit to left, as long as it lies before right.
LONG AddFixed(HGridCtl* ctl, LONG left, LONG right, int limit, int band)
{
    const int end = std::min<int>(limit, ctl->pData->cFixedCols);
    int at = -1;
    const HGField* field = HGNextColumn(ctl, true, &at, band);
    while (field && at < end && left < right) {
        left += field->nWidth;
        field = HGNextColumn(ctl, true, &at, band);
    }
    return left;
}

} // namespace

int HGBandOf(HGridCtl* ctl, int col)
{
    const HGField* const field = ctl->cBands > 1 ? HGGetField(ctl->pData, col) : nullptr;
    return field ? field->nBand : 0;
}

HGField* HGNextColumn(HGridCtl* ctl, bool forward, int* col, int band)
{
    const int wanted = band >= 0 ? band : HGBandOf(ctl, *col);
    const Found found = forward ? FindNext(ctl, *col + 1, wanted) : FindPrevious(ctl, *col - 1, wanted);
    if (found.field) {
        *col = found.col;
    } else if (found.col < 0) {
        *col = -1;
    }
    return found.field;
}

void HGStepColumn(HGridData* data, bool forward, int* col)
{
    const int step = forward ? 1 : -1;
    const int count = HGColCount(data);
    int at = forward ? *col + 1 : std::min(*col, count) - 1;
    while (at >= 0 && at < count && !IsVisible(HGGetField(data, at))) {
        at += step;
    }
    if (at < 0) {
        *col = -1;
    } else if (at < count) {
        *col = at;
    }
}

// With several bands the zone is as wide as its widest band, so that no fixed column reaches into what scrolls.
void HGAddFixedWidths(HGridCtl* ctl, RECT* rect, int limit)
{
    LONG left = rect->left;
    for (int band = 0; band < ctl->cBands; ++band) {
        left = std::max(left, AddFixed(ctl, rect->left, rect->right, limit, band));
    }
    rect->left = left;
}

int HGFixedZone(HGridCtl* ctl)
{
    const int bands = ctl->pData->cFixedCols > 0 ? ctl->cBands : 0;
    int width = 0;
    for (int band = 0; band < bands; ++band) {
        width = std::max(width, WidthsOfBand(ctl, band).fixed);
    }
    return width;
}

// Fixed columns stand still at the left; a column of the scrolling zone begins behind all of them.
void HGAddLeftWidths(HGridCtl* ctl, RECT* rect, int col)
{
    const Widths before = WidthsBefore(ctl, col, HGBandOf(ctl, col));
    if (col < ctl->pData->cFixedCols) {
        rect->left += before.fixed;
    } else {
        rect->left += HGFixedZone(ctl) + before.scrolling - ctl->nHScrollPos;
    }
}

int HGWidestBand(HGridCtl* ctl)
{
    int widest = 0;
    for (int band = 0; band < ctl->cBands; ++band) {
        const Widths sums = WidthsOfBand(ctl, band);
        widest = std::max(widest, sums.fixed + sums.scrolling);
    }
    return widest;
}

int HGBandsEnd(HGridCtl* ctl)
{
    const int zone = HGFixedZone(ctl);
    int end = 0;
    for (int band = 0; band < ctl->cBands; ++band) {
        const Widths sums = WidthsOfBand(ctl, band);
        end = std::max(end, sums.scrolling > 0 ? zone + sums.scrolling : sums.fixed);
    }
    return end;
}
