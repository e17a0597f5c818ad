// One data cell: its colours from the cell's flags and the grid's styles, and the painter of its column's control.
#include "gridctl/grid_paint.h"

#include "button/button_control.h"
#include "combo/combo_control.h"
#include "edit/edit_control.h"
#include "foundation/startup.h"
#include "list/list_control.h"
#include "typed/data_types.h"

#include <widgets/widgets.h>

namespace {

// One cell on its way to its painter. value: null for a null cell.
struct CellPaint {
    HGridCtl*   ctl;
    HDC         hdc;
    RECT        rect;
    HGField*    field;
    const void* value;
    HBRUSH      brush;
    COLORREF    color;
};

struct TextColor {
    WORD     flag;
    COLORREF color;
};

// clang-format off
constexpr TextColor textColors[] = { // the first that is set counts
    { cellTextRed,   0x000000FF },
    { cellTextBlue,  0x00A00000 },
    { cellTextGreen, 0x00008000 },
    { cellTextGrey,  0x00969696 },
};
// clang-format on

// What a column without a size shows: an empty text, and zero for a painter that reads a type of fixed size.
constexpr char noValue[longestFixedType + 1] = {};

constexpr DWORD edRight = 0x0002; // of a column's dwCtlStyle
constexpr DWORD edCenter = 0x0001;

COLORREF TextColorOf(WORD flags)
{
    for (const TextColor& entry : textColors) {
        if (flags & entry.flag) {
            return entry.color;
        }
    }
    return 0;
}

HBRUSH SecondBrush(const HGridCtl* ctl)
{
    return hSecondBrush ? hSecondBrush : ctl->hNoEditBrush;
}

HBRUSH PlainBrush(const HGridCtl* ctl, const HGField* field, WORD flags)
{
    const bool own = (flags & cellOwnBack) != 0;
    if (own ? (flags & cellNoEditBack) != 0 : (field->wFlags & HFF_READONLY) != 0) {
        return ctl->hNoEditBrush;
    }
    return GetSysColorBrush(own && (flags & cellSysBack) ? COLOR_ACTIVEBORDER : COLOR_WINDOW);
}

HBRUSH StripeBrush(const HGridCtl* ctl)
{
    return HasStyle(ctl, HGS_FACEBACK) ? SecondBrush(ctl) : GetSysColorBrush(COLOR_INFOBK);
}

bool IsStripe(const HGridCtl* ctl, int row)
{
    return HasStyle(ctl, HGS_STRIPED) && (RecordOfRow(ctl, row) & 1) != 0;
}

// Under HGS_FACEBACK or HGS_STRIPED.
HBRUSH StyledBrush(const HGridCtl* ctl, WORD flags, int row)
{
    if (flags & cellFaceBack) {
        return HGFaceBrush();
    }
    if (flags & cellSecondBack) {
        return SecondBrush(ctl);
    }
    if (flags & cellThirdBack) {
        return hThirdBrush ? hThirdBrush : GetSysColorBrush(COLOR_3DDKSHADOW);
    }
    if (IsStripe(ctl, row)) {
        return StripeBrush(ctl);
    }
    return HasStyle(ctl, HGS_FACEBACK) ? HGFaceBrush() : GetSysColorBrush(COLOR_WINDOW);
}

HBRUSH BackgroundOf(const HGridCtl* ctl, const HGField* field, WORD flags, int row)
{
    return HasStyle(ctl, HGS_FACEBACK | HGS_STRIPED) ? StyledBrush(ctl, flags, row) : PlainBrush(ctl, field, flags);
}

// As HEDrawValue takes it.
int Alignment(DWORD ctlStyle)
{
    if (ctlStyle & edRight) {
        return 1;
    }
    return ctlStyle & edCenter ? 2 : 0;
}

bool PaintAsEdit(CellPaint& cell)
{
    HEDrawValue(reinterpret_cast<HEditCtl*>(cell.field->pCtl), cell.hdc, &cell.rect, cell.brush, cell.value,
                Alignment(cell.field->dwCtlStyle), cell.ctl->pData, cell.color);
    return true;
}

// As the painters of lists and combos take it: whether the value is data or a code.
int ValueKind(const CellPaint& cell)
{
    constexpr int asData = 1;
    constexpr int asCode = 2;
    return cell.field->wFlags & HFF_CODE ? asCode : asData;
}

bool PaintAsList(CellPaint& cell)
{
    const HWND hwnd = cell.ctl->hWnd;
    HLDrawValue(reinterpret_cast<HListCtl*>(cell.field->pCtl), cell.hdc, &cell.rect, cell.brush, cell.value,
                ValueKind(cell), cell.color);
    return IsWindow(hwnd) != FALSE;
}

bool PaintAsCombo(CellPaint& cell)
{
    const HWND hwnd = cell.ctl->hWnd;
    HCDrawValue(reinterpret_cast<HCombCtl*>(cell.field->pCtl), cell.hdc, &cell.rect, cell.brush, cell.value,
                ValueKind(cell), cell.ctl->pData, cell.color);
    return IsWindow(hwnd) != FALSE;
}

bool PaintAsCheck(CellPaint& cell)
{
    const HWND hwnd = cell.ctl->hWnd;
    HBDrawValue(reinterpret_cast<HButtCtl*>(cell.field->pCtl), cell.hdc, &cell.rect, cell.brush, cell.value);
    return IsWindow(hwnd) != FALSE;
}

const HGDrawItem* gDrawItem; // what a host is drawing

// The message is meant for a subclass of the grid, which takes it before the grid's own handler does.
bool PaintByHost(CellPaint& cell)
{
    const HWND hwnd = cell.ctl->hWnd;
    const HGDrawItem* const outer = gDrawItem;
    const bool nullChild = (cell.field->pCtl->wFlags & CF_NULL) != 0;
    HGDrawItem item{};
    item.pszName = cell.field->pszName;
    item.pValue = nullChild ? nullptr : cell.value;
    item.rc = cell.rect;
    item.hDC = cell.hdc;
    item.crText = cell.color;
    FillRect(cell.hdc, &cell.rect, cell.brush);
    gDrawItem = &item;
    SendMessageA(hwnd, WM_SETFONT, reinterpret_cast<WPARAM>(&item), 0);
    gDrawItem = outer;
    return IsWindow(hwnd) != FALSE;
}

using CellPainter = bool (*)(CellPaint& cell); // false if the window went

struct KindPainter {
    char        kind;
    CellPainter paint;
};

constexpr KindPainter kindPainters[] = {
    { 'c', PaintAsCombo },
    { 'd', PaintAsCombo },
    { 'e', PaintAsEdit },
    { 'k', PaintAsCheck },
    { 'l', PaintAsList },
    { 'q', PaintByHost },
};

CellPainter FindPainter(char kind)
{
    for (const KindPainter& entry : kindPainters) {
        if (entry.kind == kind) {
            return entry.paint;
        }
    }
    return nullptr;
}

WORD CellFlags(HGridData* grid, int col, int row)
{
    const BYTE* const flags = HGCellFlagsPtr(grid, col, row);
    return flags ? LoadAs<WORD>(flags) : WORD{ 0 };
}

} // namespace

bool HGIsDrawItem(WPARAM font)
{
    return font && font == reinterpret_cast<WPARAM>(gDrawItem);
}

int HGDrawDataCell(HGridCtl* ctl, HDC hdc, const RECT& rect, int col, int row)
{
    HGField* const    field = HGGetField(ctl->pData, col);
    const CellPainter paint = field && field->pCtl ? FindPainter(field->cKind) : nullptr;
    if (!paint) {
        return 1;
    }
    const void* value = HGCellPtr(ctl->pData, col, row);
    if (field->cbSize == 0) {
        value = noValue;
    }
    if (!value) {
        return 1;
    }
    const WORD flags = CellFlags(ctl->pData, col, row);
    if (flags & cellNull) {
        value = nullptr;
    }
    CellPaint cell{ ctl, hdc, rect, field, value, BackgroundOf(ctl, field, flags, row), TextColorOf(flags) };
    return paint(cell) ? 1 : 0;
}
