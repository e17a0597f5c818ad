// The position of a scroll bar, drawn only where that shows.
#include "dialog/scroll_bar.h"

namespace {

struct Thumb {
    int  top;
    int  bottom;
    bool known;
};

Thumb ThumbOf(HWND window, int bar)
{
    SCROLLBARINFO info = {};
    info.cbSize = sizeof info;
    const bool known = GetScrollBarInfo(window, bar == SB_VERT ? OBJID_VSCROLL : OBJID_HSCROLL, &info) != 0;
    return { info.xyThumbTop, info.xyThumbBottom, known };
}

// Whether a position shows elsewhere than the one that the bar has, found out by trying it.
bool MovesThumb(HWND window, int bar, int pos)
{
    const Thumb now = ThumbOf(window, bar);
    const int   old = SetScrollPos(window, bar, pos, FALSE);
    const Thumb then = ThumbOf(window, bar);
    SetScrollPos(window, bar, old, FALSE);
    return !now.known || !then.known || now.top != then.top || now.bottom != then.bottom;
}

} // namespace

// Drawing a bar costs more than all else that a step down does, and among many rows most steps don't move its thumb by
// a pixel. A bar that is a control decides for itself.
void HSetBarPos(HWND window, int bar, int pos, bool redraw)
{
    if (GetScrollPos(window, bar) != pos) {
        SetScrollPos(window, bar, pos, redraw && (bar == SB_CTL || MovesThumb(window, bar, pos)));
    }
}
