// Drawing of a field's text, and of a value in the look of an edit control where no edit control stands.
#include "edit/edit_internal.h"
#include "foundation/memory.h"

#include <algorithm>

namespace {

constexpr int alignRight = 1;
constexpr int alignCenter = 2;

constexpr UINT centerFlags = DT_CENTER | DT_SINGLELINE | DT_NOPREFIX;
constexpr UINT wrapFlags = DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL;

constexpr int      valueTextSize = 256;
constexpr int      cellMargin = 2; // around the text on all sides
constexpr int      sideMargin = 3; // more at the left and right
constexpr COLORREF overflowColor = 0x00A00000;

// The run to draw, with the password character in place of each of its own. A cell's text needs no block.
struct DrawnRun {
    char        local[valueTextSize];
    char*       block;
    const char* text;
    int         count;
    DrawnRun(const char* run, int length, char password) : block(nullptr), text(run), count(length)
    {
        if (!password) {
            return;
        }
        char* fill = local;
        if (length > valueTextSize) {
            block = static_cast<char*>(HBlockAlloc(static_cast<size_t>(length)));
            fill = block;
        }
        if (fill) {
            std::memset(fill, password, static_cast<size_t>(length));
        } else {
            count = 0; // Bounded: without memory nothing shows of a password.
        }
        text = fill;
    }
    ~DrawnRun() { HBlockFree(block); }
    DrawnRun(const DrawnRun&) = delete;
    DrawnRun& operator=(const DrawnRun&) = delete;
};

int WidthOf(HDC hdc, const char* text, int count)
{
    SIZE size = {};
    GetTextExtentPoint32A(hdc, text, count, &size);
    return size.cx;
}

// DrawTextA would measure the run once more, for the same pixels.
void DrawRun(HDC hdc, const RECT* rect, int x, const char* text, int count)
{
    if (count > 0) {
        ExtTextOutA(hdc, x, rect->top, ETO_CLIPPED, rect, text, static_cast<UINT>(count), nullptr);
    }
}

bool DrawCentered(HDC hdc, RECT* rect, const DrawnRun& run)
{
    DrawTextA(hdc, run.text, run.count, rect, centerFlags);
    return WidthOf(hdc, run.text, run.count) <= rect->right - rect->left;
}

bool DrawRight(HDC hdc, const RECT* rect, const DrawnRun& run)
{
    const int width = rect->right - rect->left;
    int fits = run.count;
    int extent = WidthOf(hdc, run.text, run.count);
    if (extent > width) {
        fits = FitChars(hdc, run.text, run.count, width, true);
        extent = WidthOf(hdc, run.text + run.count - fits, fits);
    }
    DrawRun(hdc, rect, rect->right - extent, run.text + run.count - fits, fits);
    return fits == run.count;
}

bool DrawLine(HDC hdc, const RECT* rect, const DrawnRun& run)
{
    const int fits = FitChars(hdc, run.text, run.count, rect->right - rect->left, false);
    DrawRun(hdc, rect, rect->left, run.text, fits);
    return fits == run.count;
}

int LineHeight(HDC hdc)
{
    TEXTMETRICA metrics = {};
    GetTextMetricsA(hdc, &metrics);
    return metrics.tmHeight;
}

// Lines that don't fit the rectangle aren't drawn, but for the first one: the height of them all tells whether there are
// any.
bool DrawWrapped(HDC hdc, RECT* rect, const DrawnRun& run)
{
    RECT whole = *rect;
    DrawTextA(hdc, run.text, run.count, &whole, wrapFlags | DT_CALCRECT);
    DrawTextA(hdc, run.text, run.count, rect, wrapFlags);
    return whole.bottom <= rect->bottom || whole.bottom - whole.top <= LineHeight(hdc);
}

// A grid that is the parent of the field tells by its rows whether two lines have room.
HGridData* ParentGrid(const HEditCtl* ctl)
{
    return ctl->hParent ? reinterpret_cast<HGridData*>(SendMessageA(ctl->hParent, HGM_GETDATA, 0, 0)) : nullptr;
}

bool IsOneLine(const HEditCtl* ctl, const HGridData* grid)
{
    const HGridData* const data = ctl && !grid ? ParentGrid(ctl) : grid;
    if (ctl && (!data || IsFocused(ctl))) {
        return true;
    }
    return data && HoldsOneLine(data->nRowHeight, data->nMinRowHeight);
}

// The text of a value in display form. Nothing that can't be formatted shows.
void FormatValue(HEditCtl* ctl, const void* data, char* text, int* negative)
{
    text[0] = 0;
    if (data) {
        FormatData(data, ctl->cClass, ctl->cType, FormatOf(ctl), text, valueTextSize, negative, 0);
    } else {
        _fstrnzcpy(text, ctl->pszEmpty, valueTextSize);
    }
}

COLORREF ValueColor(const HEditCtl* ctl, bool negative, COLORREF color)
{
    if (negative) {
        return ctl->clrNegative;
    }
    return color ? color : ctl->clrText;
}

// Three dots on the last line of the field tell of text that had no room.
void MarkOverflow(HDC hdc, int x, int bottom)
{
    for (int dot = 0; dot < 3; ++dot) {
        SetPixel(hdc, x + 2 * dot, bottom - 1, overflowColor);
    }
}

} // namespace

bool DrawFieldText(HDC hdc, RECT* rect, const char* text, int count, char passwordChar, int align, HEditCtl* ctl,
                   HGridData* grid)
{
    if (count <= 0) {
        return true;
    }
    const DrawnRun run(text, count, passwordChar);
    if (align == alignCenter) {
        return DrawCentered(hdc, rect, run);
    }
    if (align == alignRight) {
        return DrawRight(hdc, rect, run);
    }
    return IsOneLine(ctl, grid) ? DrawLine(hdc, rect, run) : DrawWrapped(hdc, rect, run);
}

int HEDrawValue(HEditCtl* ctl, HDC hdc, RECT* rect, HBRUSH brush, const void* data, int align, HGridData* grid,
                COLORREF color)
{
    const bool wasNull = HasFlag(ctl, CF_NULL);
    const int left = rect->left;
    char text[valueTextSize];
    int negative = 0;
    SetFlag(ctl, CF_NULL, !data);
    FormatValue(ctl, data, text, &negative);
    FillFieldBackground(ctl, hdc, rect, brush);
    InflateRect(rect, -cellMargin, -cellMargin);
    SetTextColor(hdc, ValueColor(ctl, negative != 0, color));
    SetBkMode(hdc, TRANSPARENT);
    const bool isFontIn = GetCurrentObject(hdc, OBJ_FONT) == ctl->hFont;
    const SelectedObject font(hdc, isFontIn ? nullptr : ctl->hFont);
    InflateRect(rect, -sideMargin, 0);
    const char password = HasStyle(ctl, HES_PASSWORD) ? ctl->chPassword : '\0';
    const int count = static_cast<int>(std::strlen(text));
    if (!DrawFieldText(hdc, rect, text, count, password, align, nullptr, grid)) {
        MarkOverflow(hdc, align == alignRight ? left : static_cast<int>(rect->right), rect->bottom);
    }
    SetFlag(ctl, CF_NULL, wasNull);
    return 1;
}
