// The frame that an edit control paints around itself in the non-client area.
#include "edit/edit_internal.h"

#include <algorithm>

namespace {

bool HasBorder(const HEditCtl* ctl)
{
    return HasStyle(ctl, WS_BORDER);
}

// A side that is too short for the frame ends up empty, not turned over.
void Shrink(LONG* low, LONG* high, int by)
{
    const LONG middle = *low + (*high - *low) / 2;
    *low = std::min(*low + by, std::max(*low, middle));
    *high = std::max(*high - by, *low);
}

} // namespace

void RepaintFrame(HEditCtl* ctl)
{
    if (HasStyle(ctl, HES_FRAME)) {
        HNCPaint(ctl->hWnd, HasBorder(ctl));
    }
}

LRESULT OnNcCalcSize(HEditCtl* ctl, const MsgArgs& args)
{
    if (!HasStyle(ctl, HES_FRAME)) {
        return AskDefault(args);
    }
    const LRESULT result = DefWindowProcA(args.hwnd, args.message, args.wParam, args.lParam);
    // With either wParam, lParam begins with the rectangle that becomes the client area.
    RECT* const rect = reinterpret_cast<RECT*>(args.lParam);
    const int width = HasBorder(ctl) ? 1 : 2;
    Shrink(&rect->left, &rect->right, width);
    Shrink(&rect->top, &rect->bottom, width);
    return result;
}

LRESULT OnNcPaint(HEditCtl* ctl, const MsgArgs& args)
{
    if (!HasStyle(ctl, HES_FRAME)) {
        return AskDefault(args);
    }
    const LRESULT result = DefWindowProcA(args.hwnd, args.message, args.wParam, args.lParam);
    HNCPaint(args.hwnd, HasBorder(ctl));
    return result;
}
