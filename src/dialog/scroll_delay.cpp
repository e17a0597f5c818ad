// How fast a drag outside a control scrolls it: the further out the pointer, the shorter the pause.
#include "dialog/dialog_internal.h"

#include "foundation/screen.h"

#include <algorithm>

namespace {

constexpr DWORD slowest = 200;
constexpr int   downNear = 20; // design units
constexpr int   downFar = 40;
constexpr int   acrossNear = 10;
constexpr int   acrossFar = 30;
constexpr int   msecPerUnit = 10;

// Below 96 dots an inch the roundings to pixels and back can lead a unit further out than the farthest distance.
DWORD PauseAt(int distance, int farthest)
{
    return static_cast<DWORD>(std::max(farthest - distance, 0) * msecPerUnit);
}

} // namespace

DWORD ScrollDelay(const RECT& client, POINT point, bool horizontal)
{
    const int dy = std::max(client.top - point.y, point.y - client.bottom);
    if (dy >= 1) {
        if (dy > ScaleY(downFar)) {
            return 0;
        }
        return dy < ScaleY(downNear) ? slowest : PauseAt(UnscaleY(dy), downFar);
    }
    if (!horizontal) {
        return 0;
    }
    // Settled: a pointer inside counts as one that is hardly outside.
    const int dx = std::max(client.left - point.x, point.x - client.right);
    if (dx > ScaleX(acrossFar)) {
        return 0;
    }
    return dx < ScaleX(acrossNear) ? slowest : PauseAt(UnscaleX(dx), acrossFar);
}
