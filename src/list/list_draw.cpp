// The drawing of an item's text, with and without tab stops, and of a value where no list stands.
#include "foundation/gdi_guards.h"
#include "foundation/memory.h"
#include "griddata/grid_model.h"
#include "list/list_internal.h"

#include <cstring>

namespace {

constexpr int      leastColumnWidth = 10;
constexpr int      defaultTabStop = 70;
constexpr int      tabGap = 2;       // pixels at 96 dpi between a part and the next stop
constexpr int      cellMarginX = 3;
constexpr int      cellMarginY = 2;
constexpr COLORREF overflowColor = 0x00A00000;

constexpr int valueIsData = 1;
constexpr int valueIsCode = 2;

void FillRectangle(HDC hdc, const RECT& rect, HBRUSH brush)
{
    const SelectedObject selected(hdc, brush);
    PatBlt(hdc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, PATCOPY);
}

COLORREF TextColor(const HListCtl* ctl, bool highlighted, COLORREF color)
{
    if (highlighted) {
        return GetSysColor(COLOR_HIGHLIGHTTEXT);
    }
    if (HasFlag(ctl, HLF_NEGATIVE)) {
        return ctl->crNegText;
    }
    return color ? color : ctl->crText;
}

// Whether all characters have room.
bool FitsIn(HDC hdc, const RECT& rect, const char* text, int count)
{
    const int width = static_cast<int>(rect.right - rect.left);
    int  fits = 0;
    SIZE size = {};
    GetTextExtentExPointA(hdc, text, count, std::max(width, 0), &fits, nullptr, &size);
    return fits >= count;
}

// A list with tabs in its items and no stops gets one.
bool EnsureTabStop(HListCtl* ctl)
{
    if (ctl->cTabs > 0) {
        return ctl->pTabs != nullptr;
    }
    LONG* const stops = static_cast<LONG*>(HBlockAlloc(sizeof(LONG)));
    if (!stops) {
        return false;
    }
    *stops = defaultTabStop;
    HBlockFree(ctl->pTabs);
    ctl->pTabs = stops;
    ctl->cTabs = 1;
    return true;
}

void PutText(HDC hdc, const RECT& rect, UINT options, const char* text, int length, const AsciiGlyphs* glyphs)
{
    if (!glyphs || !DrawAsciiGlyphs(hdc, rect, options, *glyphs, text, length)) {
        ExtTextOutA(hdc, rect.left, rect.top, options, &rect, text, static_cast<UINT>(length), nullptr);
    }
}

// Each part between tabs has its own rectangle, up to the next stop. There is one part more than stops.
void DrawTabbed(HListCtl* ctl, HDC hdc, const RECT& rect, const char* text)
{
    if (!EnsureTabStop(ctl)) {
        return;
    }
    const char* part = text;
    for (int i = 0; i <= ctl->cTabs; ++i) {
        const int  length = static_cast<int>(std::strcspn(part, "\t"));
        const bool last = !part[length];
        RECT place = rect;
        if (i > 0) {
            place.left = rect.left + HGScaleX(ctl->pTabs[i - 1]);
        }
        if (i < ctl->cTabs && !last) {
            place.right = rect.left + HGScaleX(ctl->pTabs[i] - tabGap);
        }
        PutText(hdc, place, ETO_CLIPPED, part, length, nullptr);
        if (last) {
            return;
        }
        part += length + 1;
    }
}

// What was drawn of an item.
struct ShownItem {
    char text[itemTextSize];
    int  length;
    bool tabbed; // in parts, to the tab stops
};

ShownItem ShowItem(HListCtl* ctl, HDC hdc, const RECT& rect, int index, const TextLook& look)
{
    ShownItem item;
    item.length = HLFormatText(ctl, index, item.text, itemTextSize);
    if (look.highlighted && !look.opaque) {
        FillRectangle(hdc, rect, GetSysColorBrush(COLOR_HIGHLIGHT));
    }
    if (const COLORREF textColor = TextColor(ctl, look.highlighted, look.color); GetTextColor(hdc) != textColor) {
        SetTextColor(hdc, textColor);
    }
    const bool hasTabs = HasStyle(ctl, HLS_TABS);
    item.tabbed = hasTabs && !HasStyle(ctl, HLS_FIELD);
    if (item.tabbed) {
        DrawTabbed(ctl, hdc, rect, item.text);
        return item;
    }
    if (hasTabs) {
        item.length = static_cast<int>(std::strcspn(item.text, "\t"));
    }
    PutText(hdc, rect, ETO_CLIPPED | (look.opaque ? ETO_OPAQUE : 0), item.text, item.length, look.glyphs);
    return item;
}

int IndexOfValue(HListCtl* ctl, const void* value, int kind)
{
    DataList items = ctl->items;
    switch (kind) {
    case valueIsData: return HDLFindData(&items, 0, value);
    case valueIsCode: return HDLFindCode(&items, 0, value);
    default:          return LoadAs<LONG>(value);
    }
}

// Three dots on the last line tell of text that had no room.
void MarkOverflow(HDC hdc, const RECT& rect)
{
    for (int dot = 0; dot < 3; ++dot) {
        SetPixel(hdc, rect.right + 2 * dot, rect.bottom - 1, overflowColor);
    }
}

} // namespace

int HLFormatText(HListCtl* ctl, int index, char* buffer, int size)
{
    int      negative = 0;
    DataList items = ctl->items;
    HDLFormatItem(&items, index, buffer, size, &negative, 0);
    SetFlag(ctl, HLF_NEGATIVE, negative != 0);
    return static_cast<int>(std::strlen(buffer));
}

DWORD HLMeasureItem(HListCtl* ctl, HDC hdc, int index, char* buffer, int size)
{
    const int length = HLFormatText(ctl, index, buffer, size);
    if (length == 0) {
        return 0;
    }
    if (HasStyle(ctl, HLS_TABS)) {
        return GetTabbedTextExtentA(hdc, buffer, length, ctl->cTabs, reinterpret_cast<const INT*>(ctl->pTabs));
    }
    SIZE extent = {};
    GetTextExtentPointA(hdc, buffer, length, &extent);
    return static_cast<DWORD>(MAKELONG(extent.cx, extent.cy));
}

// Settled: a column gets room for twice its widest text.
int HLMaxItemWidth(HListCtl* ctl)
{
    if (HasFlag(ctl, HLF_FIXEDCOLUMN)) {
        return ctl->cxColumn;
    }
    const WindowDC       window(ctl->hWnd);
    const SelectedObject font(window.hdc, ctl->hFont);
    char buffer[itemTextSize];
    int  widest = leastColumnWidth;
    for (int i = 0; i < HLCount(ctl); ++i) {
        widest = std::max<int>(widest, 2 * LOWORD(HLMeasureItem(ctl, window.hdc, i, buffer, itemTextSize)));
    }
    return widest;
}

void HLDrawOwned(HListCtl* ctl, HDC hdc, const RECT& rect, int index, UINT action, UINT state)
{
    constexpr UINT listControl = 2; // ODT_LISTBOX
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = listControl;
    draw.CtlID = ctl->wId;
    draw.itemID = static_cast<UINT>(index);
    draw.itemAction = action;
    draw.itemState = state;
    draw.hwndItem = ctl->hWnd;
    draw.hDC = hdc;
    draw.rcItem = rect;
    draw.itemData = HLItemData(ctl, index);
    if (HasStyle(ctl, HLS_FIELD)) {
        InflateRect(&draw.rcItem, -1, -3);
    }
    const SelectedObject font(hdc, ctl->hFont);
    SendMessageA(ctl->hParent, WM_DRAWITEM, ctl->wId, reinterpret_cast<LPARAM>(&draw));
}

bool HLDrawItem(HListCtl* ctl, HDC hdc, const RECT* rect, int index, RECT* outRect, bool highlighted, COLORREF color)
{
    if (outRect) {
        *outRect = *rect;
    }
    if (index < 0) {
        return true;
    }
    const ShownItem item = ShowItem(ctl, hdc, *rect, index, { highlighted, color, false, nullptr });
    return item.tabbed || FitsIn(hdc, *rect, item.text, item.length);
}

void HLDrawItemText(HListCtl* ctl, HDC hdc, const RECT& rect, int index, const TextLook& look)
{
    ShowItem(ctl, hdc, rect, index, look);
}

int HLDrawValue(HListCtl* ctl, HDC hdc, RECT* rect, HBRUSH brush, const void* value, int kind, COLORREF color)
{
    const HWND hwnd = ctl->hWnd;
    const bool wasNull = HasFlag(ctl, CF_NULL);
    SetFlag(ctl, CF_NULL, !value);
    HLFillBackground(ctl, hdc, rect, brush);
    if (!IsWindow(hwnd)) {
        return 0;
    }
    const int index = value ? IndexOfValue(ctl, value, kind) : -1;
    InflateRect(rect, -cellMarginX, -cellMarginY);
    SetBkMode(hdc, TRANSPARENT);
    if (HasStyle(ctl, HLS_OWNERDRAW)) {
        HLDrawOwned(ctl, hdc, *rect, index, ODA_SELECT, 0);
    } else {
        const SelectedObject font(hdc, ctl->hFont);
        if (!HLDrawItem(ctl, hdc, rect, index, nullptr, false, color)) {
            MarkOverflow(hdc, *rect);
        }
    }
    if (IsWindow(hwnd)) {
        SetFlag(ctl, CF_NULL, wasNull);
    }
    return 1;
}
