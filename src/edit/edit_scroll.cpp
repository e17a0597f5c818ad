// Scrolling of an edit control's text by characters, and the scroll bar that shows it.
#include "edit/edit_internal.h"

#include <algorithm>

namespace {

// Characters of the text that show from the scroll position on, and where they begin.
struct Visible {
    int first;
    int count;
    int length;
};

Visible VisibleIn(const HEditCtl* ctl, HDC hdc)
{
    const ShownText shown(ctl);
    const int length = static_cast<int>(std::strlen(shown.text));
    const int scroll = std::min(static_cast<int>(ctl->nScroll), length);
    const bool right = HasFlag(ctl, HEF_RIGHT);
    const int width = ctl->rcText.right - ctl->rcText.left;
    const int count = FitChars(hdc, right ? shown.text : shown.text + scroll, length - scroll, width, right);
    return { right ? length - scroll - count : scroll, count, length };
}

Visible VisibleChars(HEditCtl* ctl)
{
    const FieldDC dc(ctl);
    return VisibleIn(ctl, dc.hdc());
}

// The character at the far end may have been cut: it is painted anew, to the edge of the field.
void InvalidateLastVisible(HEditCtl* ctl)
{
    const Visible visible = VisibleChars(ctl);
    RECT rect = ctl->rcText;
    if (HasFlag(ctl, HEF_RIGHT)) {
        rect.right = CaretX(ctl, visible.first + 1);
    } else {
        rect.left = CaretX(ctl, visible.first + visible.count - 1);
    }
    InvalidateRect(ctl->hWnd, &rect, TRUE);
}

// Pixels that the text moves to the right when nScroll goes from one position to another.
int PixelsMoved(HEditCtl* ctl, int from, int to)
{
    const ShownText shown(ctl);
    const int length = static_cast<int>(std::strlen(shown.text));
    const int lo = std::min(from, to);
    const int hi = std::max(from, to);
    if (HasFlag(ctl, HEF_RIGHT)) {
        const int width = TextWidth(ctl, shown.text, length - hi, hi - lo);
        return to > from ? width : -width;
    }
    const int width = TextWidth(ctl, shown.text, lo, hi - lo);
    return to > from ? -width : width;
}

void ShowScrollPos(HEditCtl* ctl)
{
    if (!HasStyle(ctl, WS_HSCROLL)) {
        return;
    }
    const int pos = HasFlag(ctl, HEF_RIGHT) ? ctl->nScrollMax - ctl->nScroll : ctl->nScroll;
    SetScrollPos(ctl->hWnd, SB_HORZ, pos, !HasFlag(ctl, HEF_TRACKING));
    RepaintFrame(ctl);
}

// The range for what doesn't fit, and not for what is scrolled off now: more than that shows a part of the text in a
// field that has room for more of it, or for all.
int MostScrolled(HEditCtl* ctl)
{
    if (!HasScrollRange(ctl)) {
        return 0;
    }
    const ShownText shown(ctl);
    const FieldDC   dc(ctl);
    const int       length = static_cast<int>(std::strlen(shown.text));
    const int       width = ctl->rcText.right - ctl->rcText.left;
    const int       fits = FitChars(dc.hdc(), shown.text, length, width, !HasFlag(ctl, HEF_RIGHT));
    return ScrollRange(length - fits, 0, length);
}

void MoveText(HEditCtl* ctl, int from, int to)
{
    const RECT rect = ctl->rcText;
    ScrollWindow(ctl->hWnd, PixelsMoved(ctl, from, to), 0, &rect, &rect);
    if (to < from) {
        InvalidateLastVisible(ctl);
    }
}

} // namespace

int ScrollBy(HEditCtl* ctl, int delta)
{
    const bool right = HasFlag(ctl, HEF_RIGHT);
    const int from = ctl->nScroll;
    const int amount = ScrollAmount(right ? -delta : delta, from, ctl->nScrollMax);
    if (amount == 0) {
        return 0;
    }
    if (amount > 0) {
        InvalidateLastVisible(ctl);
    }
    ctl->nScroll = from + amount;
    if (!CanScroll(ctl)) {
        return 0;
    }
    ShowScrollPos(ctl);
    if (Tell(ctl, HEN_HSCROLL) == Told::Gone) {
        return 0;
    }
    MoveText(ctl, from, from + amount);
    return right ? -amount : amount;
}

int ScrollRangeFor(const HEditCtl* ctl, HDC hdc)
{
    const Visible visible = VisibleIn(ctl, hdc);
    return ScrollRange(visible.length - visible.count, ctl->nScrollMax, visible.length);
}

bool HasScrollRange(const HEditCtl* ctl)
{
    return *FieldText(ctl) && !HasFlag(ctl, HEF_CENTER);
}

void SetScrollRangeTo(HEditCtl* ctl, int max)
{
    if (max == ctl->nScrollMax) {
        return;
    }
    ctl->nScrollMax = max;
    if (HasStyle(ctl, WS_HSCROLL) && !HasFlag(ctl, HEF_TRACKING)) {
        SetScrollRange(ctl->hWnd, SB_HORZ, 0, max, TRUE);
        RepaintFrame(ctl);
    }
}

void UpdateScrollRange(HEditCtl* ctl)
{
    int max = 0;
    if (HasScrollRange(ctl)) {
        const FieldDC dc(ctl);
        max = ScrollRangeFor(ctl, dc.hdc());
    }
    SetScrollRangeTo(ctl, max);
}

// Without a word to the host: a text that is another one has not been scrolled.
void UpdateScroll(HEditCtl* ctl, int scroll)
{
    const int old = ctl->nScroll;
    ctl->nScroll = scroll ? std::min(scroll, MostScrolled(ctl)) : 0;
    UpdateScrollRange(ctl);
    if (ctl->nScroll != old) {
        ShowScrollPos(ctl);
        if (!HasFlag(ctl, HEF_DISPLAY)) { // F2 hides the caret
            PlaceCaret(ctl, ctl->nCaret);
        }
    }
}

int OnHScroll(HEditCtl* ctl, WPARAM wParam)
{
    const HWND hwnd = ctl->hWnd;
    const int code = LOWORD(wParam);
    const int page = std::max(1, static_cast<int>(ctl->cPageChars) - 1);
    SetFlag(ctl, HEF_TRACKING, code == SB_THUMBTRACK || (HasFlag(ctl, HEF_TRACKING) && code <= SB_PAGEDOWN));
    switch (code) {
    case SB_LINEUP:     ScrollBy(ctl, -1); break;
    case SB_LINEDOWN:   ScrollBy(ctl, 1); break;
    case SB_PAGEUP:     ScrollBy(ctl, -page); break;
    case SB_PAGEDOWN:   ScrollBy(ctl, page); break;
    case SB_THUMBTRACK: ScrollBy(ctl, HIWORD(wParam) - GetScrollPos(hwnd, SB_HORZ)); break;
    default:            SetScrollPos(hwnd, SB_HORZ, GetScrollPos(hwnd, SB_HORZ), TRUE); break;
    }
    if (IsWindow(hwnd)) {
        PlaceCaret(ctl, ctl->nCaret);
    }
    return 1;
}
