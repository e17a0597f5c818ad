// Painting of an edit control's window: the field once plainly, and once more where the selection shows.
#include "edit/edit_internal.h"

#include <algorithm>

namespace {

constexpr int alignLeft = 0;
constexpr int alignRight = 1;
constexpr int alignCenter = 2;

COLORREF PlainTextColor(const HEditCtl* ctl)
{
    if (IsFieldDisabled(ctl)) {
        return GetSysColor(COLOR_GRAYTEXT);
    }
    if (HasStyle(ctl, HES_STATIC) && IsFocused(ctl)) {
        return GetSysColor(COLOR_HIGHLIGHTTEXT);
    }
    return HasFlag(ctl, HEF_NEGATIVE) ? ctl->clrNegative : ctl->clrText;
}

void SetTextLook(const HEditCtl* ctl, HDC hdc, bool highlight)
{
    SetTextColor(hdc, highlight ? GetSysColor(COLOR_HIGHLIGHTTEXT) : PlainTextColor(ctl));
    SetBkMode(hdc, highlight ? OPAQUE : TRANSPARENT);
    if (highlight) {
        SetBkColor(hdc, GetSysColor(COLOR_HIGHLIGHT));
    }
}

void DrawShownPart(HEditCtl* ctl, HDC hdc)
{
    const char* const text = FieldText(ctl);
    const int length = TextLength(ctl);
    const int scroll = ctl->nScroll > length ? 0 : static_cast<int>(ctl->nScroll);
    const char password = HasStyle(ctl, HES_PASSWORD) ? ctl->chPassword : '\0';
    RECT rect = ctl->rcText;
    if (HasFlag(ctl, HEF_RIGHT)) {
        DrawFieldText(hdc, &rect, text, length - scroll, password, alignRight, ctl, nullptr);
    } else if (HasFlag(ctl, HEF_CENTER)) {
        DrawFieldText(hdc, &rect, text, length, password, alignCenter, ctl, nullptr);
    } else {
        DrawFieldText(hdc, &rect, text + scroll, length - scroll, password, alignLeft, ctl, nullptr);
    }
}

// Where the selection shows, in client coordinates.
RECT SelectionRect(HEditCtl* ctl)
{
    const TextRange selection = SelectionOf(ctl);
    if (selection.lo == selection.hi) {
        return {};
    }
    RECT rect = ctl->rcText;
    const RECT field = rect;
    rect.left = CaretX(ctl, selection.lo);
    rect.right = CaretX(ctl, selection.hi);
    IntersectRect(&rect, &rect, &field);
    return rect;
}

RECT ClipBoxOf(HWND hwnd)
{
    RECT box = {};
    const WindowDC dc(hwnd);
    GetClipBox(dc.hdc, &box);
    return box;
}

} // namespace

// The range is measured while the font is at hand, and shown once the painting is over.
bool PaintField(HEditCtl* ctl, bool highlight)
{
    const HWND hwnd = ctl->hWnd;
    int        scrollMax = 0;
    bool       visible = false;
    {
        const PaintDC paint(hwnd);
        if (!IsWindow(hwnd)) {
            return false;
        }
        visible = !IsRectEmpty(&paint.ps.rcPaint);
        const SelectedObject font(paint.hdc, ctl->hFont);
        SetTextLook(ctl, paint.hdc, highlight);
        DrawShownPart(ctl, paint.hdc);
        if (IsWindow(hwnd) && HasScrollRange(ctl)) {
            scrollMax = ScrollRangeFor(ctl, paint.hdc);
        }
    }
    if (IsWindow(hwnd)) {
        SetScrollRangeTo(ctl, scrollMax);
    }
    return visible;
}

int OnPaint(HEditCtl* ctl, const MsgArgs& args)
{
    const HWND hwnd = args.hwnd;
    const bool showsSelection = (IsFocused(ctl) || HasStyle(ctl, HES_KEEPSEL)) && !HasStyle(ctl, HES_STATIC);
    if (!showsSelection) {
        PaintField(ctl, false);
        return 1;
    }
    const TextRange selection = SelectionOf(ctl);
    if (selection.lo == selection.hi && PaintField(ctl, false)) {
        return 1; // without a context more, since typing comes here with each character
    }
    if (!IsWindow(hwnd)) {
        return 1;
    }
    const RECT clip = ClipBoxOf(hwnd);
    if (IsRectEmpty(&clip)) {
        *args.pDefault = 1;
        return 0;
    }
    RECT selected = SelectionRect(ctl);
    IntersectRect(&selected, &selected, &clip);
    PaintField(ctl, false);
    if (!IsRectEmpty(&selected) && IsWindow(hwnd)) {
        InvalidateRect(hwnd, &selected, FALSE);
        PaintField(ctl, true);
    }
    return 1;
}
