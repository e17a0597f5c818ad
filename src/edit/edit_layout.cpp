// Characters to pixels and back, by the platform's own measures of the field's text.
#include "edit/edit_internal.h"
#include "foundation/memory.h"

#include <algorithm>

namespace {

constexpr UINT measureFlags = DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX;
constexpr int  narrowChar = 2; // pixels; on average characters are wider

// The width of a run, measured with its neighbour so that the overhang of slanted letters counts right.
int RunWidth(const HEditCtl* ctl, HDC hdc, const char* text, int start, int count)
{
    if (count <= 0) {
        return 0;
    }
    if (HasFlag(ctl, HEF_RIGHT) && start > 0) {
        return MeasureText(hdc, text + start - 1, count + 1) - MeasureText(hdc, text + start - 1, 1);
    }
    if (text[start + count]) {
        return MeasureText(hdc, text + start, count + 1) - MeasureText(hdc, text + start + count, 1);
    }
    return MeasureText(hdc, text + start, count);
}

// A run of text whose first or last characters are measured.
struct Run {
    HDC         hdc;
    const char* text;
    int         count;
};

int WidthOfFirst(const void* context, int count)
{
    const Run* const run = static_cast<const Run*>(context);
    return MeasureText(run->hdc, run->text, count);
}

int WidthOfLast(const void* context, int count)
{
    const Run* const run = static_cast<const Run*>(context);
    return MeasureText(run->hdc, run->text + run->count - count, count);
}

int AverageCharWidth(HDC hdc)
{
    TEXTMETRICA metrics = {};
    GetTextMetricsA(hdc, &metrics);
    return std::max(1, static_cast<int>(metrics.tmAveCharWidth));
}

int ExtentOf(HDC hdc, const char* text, int count)
{
    SIZE size = {};
    GetTextExtentPoint32A(hdc, text, count, &size);
    return size.cx;
}

// How many of the last characters fit: widths only grow with the count, so halving finds it.
int FitLast(HDC hdc, const char* text, int count, int width)
{
    int fits = 0;
    int tooMany = count + 1;
    int probe = count; // most texts fit
    while (tooMany - fits > 1) {
        if (ExtentOf(hdc, text + count - probe, probe) <= width) {
            fits = probe;
        } else {
            tooMany = probe;
        }
        probe = (fits + tooMany) / 2;
    }
    return fits;
}

// Characters that are wider than a field of that width, as a rule: one measure of them tells, whatever the length of
// the text, and a text that isn't longer takes one too.
int FirstProbe(int count, int width)
{
    constexpr int fewest = 64;
    return std::min(count, std::max(fewest, width / narrowChar));
}

// How many of the first characters fit. A text that is far longer than the field isn't measured to its end.
int FitFirst(HDC hdc, const char* text, int count, int width)
{
    int probe = FirstProbe(count, width);
    for (;;) {
        int  fits = 0;
        SIZE size = {};
        GetTextExtentExPointA(hdc, text, probe, width, &fits, nullptr, &size);
        if (fits < probe || probe == count) {
            return fits;
        }
        probe = std::min(count, 2 * probe);
    }
}

const FieldDC* gInnermost; // the context that lives, or null

} // namespace

FieldDC::FieldDC(const HEditCtl* ctl)
    : outer(gInnermost), hwnd(ctl->hWnd), font(ctl->hFont), dc(nullptr), oldFont(nullptr), borrowed(false)
{
    if (outer && outer->hwnd == hwnd && outer->font == font) {
        dc = outer->dc;
        borrowed = true;
    } else {
        dc = GetDC(hwnd);
        oldFont = font ? SelectObject(dc, font) : nullptr;
    }
    gInnermost = this;
}

FieldDC::~FieldDC()
{
    gInnermost = outer;
    if (borrowed) {
        return;
    }
    if (oldFont) {
        SelectObject(dc, oldFont);
    }
    if (dc) {
        ReleaseDC(hwnd, dc);
    }
}

// Bounded: without memory for the filling a password shows as nothing, never as itself.
ShownText::ShownText(const HEditCtl* ctl)
    : block(HasStyle(ctl, HES_PASSWORD) ? HFillString(FieldText(ctl), ctl->chPassword) : nullptr),
      text(block ? block : HasStyle(ctl, HES_PASSWORD) ? "" : FieldText(ctl))
{
}

ShownText::~ShownText()
{
    HBlockFree(block);
}

int MeasureText(HDC hdc, const char* text, int count)
{
    if (count <= 0) {
        return 0;
    }
    RECT rect = {};
    DrawTextA(hdc, text, count, &rect, measureFlags);
    return rect.right - rect.left;
}

int TextWidth(HEditCtl* ctl, const char* text, int start, int count)
{
    const int length = static_cast<int>(std::strlen(text));
    const int from = std::clamp(start, 0, length);
    const int run = count < 0 ? length - from : std::min(count, length - from);
    const FieldDC dc(ctl);
    return RunWidth(ctl, dc.hdc(), text, from, run);
}

// Widths only grow with the count, so the first part that is wide enough tells.
bool ReachesWidth(HEditCtl* ctl, const char* text, int width)
{
    const int     length = static_cast<int>(std::strlen(text));
    const FieldDC dc(ctl);
    for (int count = FirstProbe(length, width); count < length; count = std::min(length, 2 * count)) {
        if (MeasureText(dc.hdc(), text, count) >= width) {
            return true;
        }
    }
    return RunWidth(ctl, dc.hdc(), text, 0, length) >= width;
}

// The widths of the scrolled part and of what lies before the index differ by the run between the two, which is
// measured alone: what is scrolled away may be long.
int CaretX(HEditCtl* ctl, int index)
{
    const ShownText shown(ctl);
    const int length = static_cast<int>(std::strlen(shown.text));
    const int at = std::clamp(index, 0, length);
    const int scroll = std::min(static_cast<int>(ctl->nScroll), length);
    const bool right = HasFlag(ctl, HEF_RIGHT);
    const int edge = right ? ctl->rcText.right : ctl->rcText.left;
    const int origin = right ? length - scroll : scroll; // the index that stands at the edge
    const FieldDC dc(ctl);
    if (right && scroll && (at == 0 || origin == 0)) {
        // Nothing stands before the start, so a run from there is measured without its neighbour.
        return edge - RunWidth(ctl, dc.hdc(), shown.text, at, length - at) +
               RunWidth(ctl, dc.hdc(), shown.text, origin, scroll);
    }
    return at < origin ? edge - RunWidth(ctl, dc.hdc(), shown.text, at, origin - at)
                       : edge + RunWidth(ctl, dc.hdc(), shown.text, origin, at - origin);
}

int CharFromX(HDC hdc, const RECT* rect, const char* text, int count, int x, bool fromRight)
{
    const Run run = { hdc, text, count };
    const int distance = fromRight ? rect->right - x : x - rect->left;
    const int estimate = distance / AverageCharWidth(hdc);
    const int nearest = NearestCount(fromRight ? WidthOfLast : WidthOfFirst, &run, distance, estimate, count);
    return fromRight ? count - nearest : nearest;
}

int CharAtPoint(HEditCtl* ctl, int x)
{
    const ShownText shown(ctl);
    const int length = static_cast<int>(std::strlen(shown.text));
    const int scroll = std::min(static_cast<int>(ctl->nScroll), length);
    const RECT rect = ctl->rcText;
    const FieldDC dc(ctl);
    if (HasFlag(ctl, HEF_RIGHT)) {
        return CharFromX(dc.hdc(), &rect, shown.text, length - scroll, x, true);
    }
    return scroll + CharFromX(dc.hdc(), &rect, shown.text + scroll, length - scroll, x, false);
}

// The same counts as measuring one character more each time, from one measure or a few.
int FitChars(HDC hdc, const char* text, int count, int width, bool fromEnd)
{
    if (count <= 0 || width < 0) {
        return 0;
    }
    return fromEnd ? FitLast(hdc, text, count, width) : FitFirst(hdc, text, count, width);
}
