// Sizes of a grid: from one font's base units to another's, and column widths by the screen's resolution.
#include "foundation/screen.h"
#include "foundation/startup.h"
#include "griddata/griddata_internal.h"

#include <algorithm>

namespace {

constexpr int unitWidth = 4; // dialog units in a base unit
constexpr int unitHeight = 8;
constexpr int rowMargin = 5; // pixels of a row beyond the font's height

struct BaseUnits {
    int width;
    int height;
};

BaseUnits UnitsOf(HFONT font)
{
    if (font == reinterpret_cast<HFONT>(static_cast<INT_PTR>(-1))) {
        return { unitWidth, unitHeight };
    }
    const DWORD units = GetBaseUnits(font);
    return { LOWORD(units), HIWORD(units) };
}

short Scaled(short value, int to, int from)
{
    return static_cast<short>(static_cast<int>(static_cast<double>(value) * to / from + 0.5));
}

} // namespace

int WINAPI HGridScale(HGridData* grid, HFONT fromFont, HFONT toFont)
{
    const BaseUnits from = UnitsOf(fromFont);
    const BaseUnits to = UnitsOf(toFont);
    if (!grid || !from.width || !from.height) {
        return 0;
    }
    const short lowest = static_cast<short>(to.height + rowMargin);
    grid->nMinRowHeight = lowest;
    grid->nHdrWidth = Scaled(grid->nHdrWidth, to.width, from.width);
    grid->nHdrHeight = Scaled(grid->nHdrHeight, to.height, from.height);
    const short rowHeight = Scaled(grid->nRowHeight, to.height, from.height);
    grid->nRowHeight = std::max(rowHeight, lowest);
    grid->nRowHeightDef = grid->nRowHeight;
    grid->nHdrHeightDef = grid->nHdrHeight;
    const int count = HGColCount(grid);
    for (int col = 0; col < count; col++) {
        HGField* const field = HGGetField(grid, col);
        field->nWidth = Scaled(field->nWidth, to.width, from.width);
        field->nHeight = Scaled(field->nHeight, to.height, from.height);
    }
    return 1;
}

int HGScaleX(int v)
{
    return fDpiScaling ? ScaleX(v) : v;
}

int HGScaleY(int v)
{
    return fDpiScaling ? ScaleY(v) : v;
}

int HGUnscaleX(int v)
{
    return fDpiScaling ? UnscaleX(v) : v;
}

int HGUnscaleY(int v)
{
    return fDpiScaling ? UnscaleY(v) : v;
}
