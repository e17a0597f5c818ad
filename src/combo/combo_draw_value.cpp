// A value in the look of a combo where no combo stands: in a grid's cells.
#include "combo/combo_internal.h"
#include "edit/edit_control.h"

#include <cstring>

namespace {

constexpr int valueIsCode = 2;
constexpr int alignLeft = 0;

int DrawInEdit(HCombCtl* ctl, HDC hdc, RECT* rect, HBRUSH brush, const void* value, HGridData* grid, COLORREF color)
{
    HEDrawValue(reinterpret_cast<HEditCtl*>(ctl->pChild), hdc, rect, brush, value, alignLeft, grid, color);
    return 1;
}

// What the edit's painter gets for a code: the text of its item, in a buffer of itemTextSize bytes.
// Bounded: an edit that isn't one of texts gets the item's data, since a text isn't a value of its type.
const void* ValueOfCode(HCombCtl* ctl, HDC hdc, const void* code, char* text)
{
    DataList   items = ctl->pDrop->items;
    const int  index = HDLFindCode(&items, 0, code);
    const bool found = index >= 0; // a negative index would name the last item
    if (GetDataSize(items.cClass, items.cType) >= 0) {
        return found ? HDLGetDataPtr(&items, index) : nullptr;
    }
    text[0] = 0;
    if (found) {
        HLMeasureItem(ctl->pDrop, hdc, index, text, itemTextSize);
    }
    if (HasStyle(ctl, HCS_TABS)) {
        text[std::strcspn(text, "\t")] = 0;
    }
    return text;
}

} // namespace

int HCDrawValue(HCombCtl* ctl, HDC hdc, RECT* rect, HBRUSH brush, const void* value, int kind, HGridData* grid,
                COLORREF color)
{
    if (!ctl->pChild) {
        return 0; // the host destroyed the face
    }
    if (!HasEdit(ctl)) {
        HListCtl* const field = reinterpret_cast<HListCtl*>(ctl->pChild);
        return ctl->hDrop ? HLDrawValue(field, hdc, rect, brush, value, kind, color) : 0;
    }
    if (kind != valueIsCode) {
        return DrawInEdit(ctl, hdc, rect, brush, value, grid, color);
    }
    if (!ctl->pDrop) {
        return 0;
    }
    char text[itemTextSize];
    return DrawInEdit(ctl, hdc, rect, brush, value ? ValueOfCode(ctl, hdc, value, text) : nullptr, grid, color);
}
