// The zones on the edges of rows and columns by which sizes are dragged: pure arithmetic on the point of the mouse.
// The numbers of zones are those of gSizeZone. Cursors and drags are elsewhere.
#include "gridctl/grid_control.h"

namespace {

constexpr int noZone = 0;

// The mouse from the corner of the data, downwards from where the zone at the top begins.
struct ZonePoint {
    int x;
    int y;
};

int RowMargin(const HGridCtl* ctl)
{
    constexpr int most = 4;
    return std::clamp(ctl->pData->nRowHeight / 3, 1, most);
}

// How far a zone reaches to one side of an edge: a third of what is there.
int ZoneReach(int width)
{
    constexpr int most = 6;
    return std::clamp(width / 3, 1, most);
}

// Beside row headers, cells give no zone: sizes are dragged in the header strip.
bool HasRowZones(const HGridCtl* ctl, ZonePoint at)
{
    constexpr int besideHeaders = 2;
    return HasStyle(ctl, HGS_ROWSIZE) && (!HasStyle(ctl, HGS_ROWHEADERS) || at.x <= besideHeaders);
}

int RowZone(const HGridCtl* ctl, ZonePoint at)
{
    const int height = std::max(1, RecordHeight(ctl));
    if (!HasRowZones(ctl, at) || at.y < 0 || at.y % height >= 2 * RowMargin(ctl)) {
        return noZone;
    }
    const int zone = -(at.y / height) - 1 - ctl->nTopRow;
    return zone == headerZone && !HasStyle(ctl, HGS_COLHEADERS) ? noZone : zone;
}

bool HasColumnZones(const HGridCtl* ctl, ZonePoint at)
{
    const bool inHeader = at.y <= RowMargin(ctl);
    return HasStyle(ctl, HGS_COLSIZE) && (inHeader || !HasStyle(ctl, HGS_COLHEADERS)) &&
           at.y > -(ctl->pData->nHdrHeight * ctl->cBands);
}

// Bounded: a header without height counts as one of a pixel.
int ZoneBand(const HGridCtl* ctl, ZonePoint at)
{
    return ctl->cBands - 1 + at.y / std::max<int>(1, ctl->pData->nHdrHeight);
}

bool IsRowHeaderEdge(const HGridCtl* ctl, int x, int reach)
{
    const int width = ctl->pData->nHdrWidth;
    return HasStyle(ctl, HGS_ROWHEADERS) && HasStyle(ctl, HGS_ROWSIZE) && x < width && x < reach &&
           x >= -ZoneReach(width);
}

// Where several bands stand over each other, a band's scrolling columns begin behind the widest fixed ones.
int GapAfter(HGridCtl* ctl, int col, int next, int walked)
{
    const int fixed = ctl->pData->cFixedCols;
    return col < fixed && next >= fixed ? std::max(HGFixedZone(ctl) - walked, 0) : 0;
}

// The last edge that the point is near to. x counts from the left of the first column.
int EdgeZone(HGridCtl* ctl, int x, int col, const HGField* field, int band)
{
    int zone = noZone;
    int walked = 0;
    int reach = ZoneReach(field->nWidth);
    x -= GapAfter(ctl, -1, col, walked);
    while (x > 0 && field) {
        const int passed = col;
        const int before = reach;
        x -= field->nWidth;
        walked += field->nWidth;
        field = HGNextColumn(ctl, true, &col, band);
        reach = field ? ZoneReach(field->nWidth) : reach;
        if (x < reach && x >= -before) {
            zone = passed + firstColumnZone;
        }
        x -= field ? GapAfter(ctl, passed, col, walked) : 0;
    }
    return zone;
}

int ColumnZone(HGridCtl* ctl, ZonePoint at)
{
    if (!HasColumnZones(ctl, at)) {
        return noZone;
    }
    const int            band = ZoneBand(ctl, at);
    int                  col = -1;
    const HGField* const field = HGNextColumn(ctl, true, &col, band);
    // Settled: without a column, the band's number stands for a width.
    if (IsRowHeaderEdge(ctl, at.x, field ? ZoneReach(field->nWidth) : band)) {
        return rowHeaderZone;
    }
    return field ? EdgeZone(ctl, at.x + static_cast<int>(ctl->nHScrollPos), col, field, band) : noZone;
}

} // namespace

int HGSizeZoneAt(HGridCtl* ctl, POINT point)
{
    RECT data;
    HGDataRect(ctl, &data);
    if (point.x >= data.right) {
        return noZone;
    }
    const ZonePoint at = { static_cast<int>(point.x - data.left),
                           static_cast<int>(point.y - data.top) + RowMargin(ctl) };
    const int       zone = RowZone(ctl, at);
    return zone != noZone ? zone : ColumnZone(ctl, at);
}
