// Where a dropped list goes: below its combo where there is room, above it otherwise, and on the combo's monitor.
#include "combo/drop_place.h"

#include <algorithm>

namespace {

LONG DropX(const RECT& combo, const RECT& monitor, LONG width)
{
    if (combo.left < monitor.left) {
        return monitor.left;
    }
    // Settled: a list that has no room on the monitor in any case starts where its combo does.
    const bool isNarrower = width < monitor.right - monitor.left;
    return isNarrower && combo.left + width > monitor.right ? monitor.right - width : combo.left;
}

LONG DropY(const RECT& combo, const RECT& monitor, LONG height)
{
    if (combo.bottom + height <= monitor.bottom) {
        return combo.bottom;
    }
    const LONG above = combo.top - height;
    if (above <= monitor.top) {
        return monitor.top; // over the combo itself
    }
    return combo.top > monitor.bottom ? monitor.bottom - height : above;
}

} // namespace

RECT HCDropRect(const RECT& combo, const RECT& monitor, int leastWidth, int height)
{
    const LONG width = std::max<LONG>(combo.right - combo.left, leastWidth);
    const LONG x = DropX(combo, monitor, width);
    const LONG y = DropY(combo, monitor, height);
    return { x, y, x + width, y + height };
}
