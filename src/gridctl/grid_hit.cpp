// Which cell a point is in. Points beyond the last row or column count as the last one.
#include "gridctl/grid_control.h"

namespace {

struct Point {
    int x;
    int y;
};

Point UnpackPoint(LPARAM lParam)
{
    return { static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)) };
}

bool IsInHeader(const HGridCtl* ctl, int y)
{
    return y <= ctl->cBands * ctl->pData->nHdrHeight;
}

// The band of a point above the rows, by the header's bands. Bounded: a header without height has no band to give.
int HeaderBand(const HGridCtl* ctl, int y, int band)
{
    return IsInHeader(ctl, y) && ctl->pData->nHdrHeight > 0 ? y / ctl->pData->nHdrHeight : band;
}

int RowAbove(const HGridCtl* ctl)
{
    return HasStyle(ctl, HGS_COLHEADERS) || ctl->lRowBase != 0 || HGRowCount(ctl->pData) == 0 ? -1 : 0;
}

// false: the point is above the rows, which says nothing of the band.
bool HitRow(HGridCtl* ctl, const RECT& data, int y, Cell* cell, int* band)
{
    const int lineHeight = std::max<int>(1, ctl->pData->nRowHeight);
    const int height = std::max(1, RecordHeight(ctl));
    const int fromTop = y - static_cast<int>(data.top);
    cell->row = static_cast<short>((fromTop + height) / height - 1 + ctl->nTopRow);
    if (cell->row < ctl->nTopRow) {
        cell->row = RowAbove(ctl);
        return false;
    }
    if (cell->row >= HGRowCount(ctl->pData)) {
        cell->row = LastRow(ctl);
        return true;
    }
    if (*band < 0) {
        *band = (fromTop - (cell->row - ctl->nTopRow) * height) / lineHeight;
    }
    return true;
}

int HitColumn(HGridCtl* ctl, const RECT& data, int x, int band)
{
    const int fixed = ctl->pData->cFixedCols;
    // Settled: fixed columns are walked from the same start, so over them a hit shifts with the scroll position.
    const int start = static_cast<int>(data.left - ctl->nHScrollPos);
    const int zone = start + HGFixedZone(ctl);
    int right = start;
    int col = -1;
    while (right < x) {
        int next = col;
        const HGField* const field = HGNextColumn(ctl, true, &next, band);
        const bool entersZone = col < fixed && next >= fixed;
        if (!field || (entersZone && zone >= x)) {
            break;
        }
        right = (entersZone ? std::max(right, zone) : right) + field->nWidth;
        col = next;
    }
    return col;
}

int HitCell(HGridCtl* ctl, LPARAM lParam, Cell* cell, int* band, bool byHeader)
{
    const Point point = UnpackPoint(lParam);
    RECT data;
    HGDataRect(ctl, &data);
    if (!HitRow(ctl, data, point.y, cell, band) && byHeader) {
        *band = HeaderBand(ctl, point.y, *band);
    }
    cell->col = HitColumn(ctl, data, point.x, *band);
    if (cell->col < 0 && !HasStyle(ctl, HGS_ROWHEADERS)) {
        cell->col = 0;
    }
    return 1;
}

} // namespace

int HGHitCell(HGridCtl* ctl, LPARAM lParam, Cell* cell, int* band)
{
    return HitCell(ctl, lParam, cell, band, true);
}

// Painting goes band by band: a point above the rows stands for a column of the band that is painted, or columns whose
// order differs from that of the band before would be left out.
int HGHitBand(HGridCtl* ctl, LPARAM lParam, Cell* cell, int band)
{
    return HitCell(ctl, lParam, cell, &band, false);
}
