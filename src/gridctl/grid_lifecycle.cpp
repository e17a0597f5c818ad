// Birth and death of a grid window: its record, its definition, its fonts and brushes, in their order.
#include "gridctl/grid_handlers.h"

#include "foundation/gdi_guards.h"
#include "gridctl/grid_paint.h"
#include "griddata/grid_file.h"

#include <algorithm>

namespace {

// The bits that a loaded definition decides; the creation decides the others.
DWORD MergeStyles(DWORD definition, DWORD creation)
{
    const DWORD mask = creation & WS_CHILD ? 0x1CB5FFFF : 0x1CB4FFFF;
    return (definition & mask) | (creation & ~mask);
}

// A definition of the title's name: a resource of the creator's, then a file.
HGridData* FindDefinition(HINSTANCE creator, const char* title)
{
    if (!title) {
        return nullptr;
    }
    HGridData* const grid = HGLoadResource(creator, title);
    return grid ? grid : HGridLoad(title, nullptr);
}

HGridData* DefinitionOf(CREATESTRUCTA* create)
{
    if (HGridData* const grid = FindDefinition(create->hInstance, create->lpszName)) {
        grid->dwStyle = MergeStyles(grid->dwStyle, static_cast<DWORD>(create->style));
        create->style = static_cast<LONG>(grid->dwStyle);
        return grid;
    }
    return HGridCreate(create->lpszName, static_cast<DWORD>(create->style), create->dwExStyle | HGX_DLGUNITS, 0, -1, -1,
                       -1, 0);
}

HGridCtl* MakeRecord(HWND hwnd, const CREATESTRUCTA* create)
{
    GridBlock* const block = HRecordAlloc<GridBlock>();
    if (!block) {
        return nullptr;
    }
    HGridCtl* const ctl = &block->ctl;
    SendMessageA(hwnd, WWM_SETSTATE, 0, reinterpret_cast<LPARAM>(ctl));
    HGAddCursorUser();
    ctl->hWnd = hwnd;
    ctl->hParent = create->hwndParent;
    ctl->wId = static_cast<DWORD>(reinterpret_cast<UINT_PTR>(create->hMenu));
    // Attaching a definition sets the bands last, and host code may run before.
    ctl->cBands = 1;
    ctl->nVScale = 1;
    return ctl;
}

void DeleteBoldFont(HGridCtl* ctl)
{
    if (ctl->hBoldFont) {
        DeleteObject(ctl->hBoldFont);
    }
    ctl->hBoldFont = nullptr;
}

void MakeBoldFont(HGridCtl* ctl)
{
    DeleteBoldFont(ctl);
    LOGFONTA font = {};
    const HGDIOBJ source = ctl->hFont ? ctl->hFont : GetStockObject(SYSTEM_FONT);
    if (GetObjectA(source, sizeof font, &font)) {
        font.lfWeight = FW_BOLD;
        ctl->hBoldFont = CreateFontIndirectA(&font);
    }
}

COLORREF NoEditColor(HDC hdc)
{
    const COLORREF light = GetSysColor(COLOR_3DLIGHT);
    const bool manyColors = GetDeviceCaps(hdc, NUMCOLORS) == -1;
    return manyColors && light != GetSysColor(COLOR_BTNFACE) ? light : 0x00C0DCC0;
}

void MakeNoEditBrush(HGridCtl* ctl, HDC hdc)
{
    const LOGBRUSH brush = { BS_SOLID, NoEditColor(hdc), 0 };
    ctl->hNoEditBrush = CreateBrushIndirect(&brush);
}

// Rows go while the parent can still be asked: to the row source, or for good. False if the window went.
bool DropRows(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (HasFlag(ctl, HGC_VIRTUAL)) {
        ctl->cHeldRows = 0;
        HGFillBlock(ctl, false);
    } else {
        HGReset(ctl, false);
    }
    return IsWindow(hwnd) != 0;
}

void ClearChildLinks(HGridData* grid)
{
    for (int col = 0; col < HGColCount(grid); ++col) {
        HGGetField(grid, col)->pCtl = nullptr;
    }
}

// A size drag that ends with its grid would keep the mouse within a window that is no longer there.
void EndSizeDrag(const HGridCtl* ctl)
{
    if (gSizeZone != 0 && HasFlag(ctl, HGC_MOUSEDOWN | HGC_XORLINE)) {
        ClipCursor(nullptr);
        gSizeZone = 0;
    }
}

void DeletePaintObjects(HGridCtl* ctl)
{
    DeleteBoldFont(ctl);
    if (ctl->hNoEditBrush) {
        DeleteObject(ctl->hNoEditBrush);
    }
    ctl->hNoEditBrush = nullptr;
}

} // namespace

bool HGSendToChildren(HGridCtl* ctl, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND hwnd = ctl->hWnd;
    for (int col = 0; col < HGColCount(ctl->pData); ++col) {
        const HGField* const field = HGGetField(ctl->pData, col);
        if (field->pCtl) {
            SendMessageA(field->pCtl->hWnd, message, wParam, lParam);
        }
        if (!IsWindow(hwnd)) {
            return false;
        }
    }
    return true;
}

LRESULT HGOnNcCreate(const MsgArgs& args)
{
    CREATESTRUCTA* const create = reinterpret_cast<CREATESTRUCTA*>(args.lParam);
    HGridCtl* const ctl = MakeRecord(args.hwnd, create);
    if (!ctl) {
        return 0;
    }
    HGridData* const grid = DefinitionOf(create);
    SetWindowLongA(args.hwnd, GWL_STYLE, create->style);
    if (!HGAttachData(ctl, grid)) {
        return 0;
    }
    HGRefresh(ctl, true);
    return AskDefault(args);
}

LRESULT HGOnCreate(HGridCtl* ctl)
{
    constexpr LRESULT failed = -1;
    const HWND     hwnd = ctl->hWnd;
    const WindowDC screen(hwnd);
    const LRESULT parentFont = ctl->hParent ? SendMessageA(ctl->hParent, WM_GETFONT, 0, 0) : 0;
    if (!IsWindow(hwnd)) {
        return failed;
    }
    const HFONT font = reinterpret_cast<HFONT>(parentFont);
    HGridScale(ctl->pData, ctl->hFont, font);
    ctl->hFont = font;
    MakeBoldFont(ctl);
    // Cells look as their headers do, also when nobody sends the font to the grid itself.
    if (font && !HGSendToChildren(ctl, WM_SETFONT, reinterpret_cast<WPARAM>(font), 0)) {
        return failed;
    }
    if (HasStyle(ctl, HGS_NAVIGATOR) && !HasStyle(ctl, WS_VSCROLL) && !HGMakeNavigator(ctl)) {
        return failed;
    }
    MakeNoEditBrush(ctl, screen.hdc);
    return 0;
}

LRESULT HGOnSetFont(HGridCtl* ctl, const MsgArgs& args)
{
    // Bounded: where no subclass has drawn the cell, its record is no font.
    if (HGIsDrawItem(args.wParam)) {
        return 0;
    }
    const HFONT old = ctl->hFont;
    const HFONT font = reinterpret_cast<HFONT>(args.wParam);
    if (!HGSendToChildren(ctl, WM_SETFONT, args.wParam, args.lParam)) {
        return 0;
    }
    if ((ctl->pData->dwStyle2 & 3) == HGX_DLGUNITS) {
        HGridScale(ctl->pData, old, font);
        HGRefresh(ctl, true);
    }
    if (!IsWindow(args.hwnd)) {
        return 0;
    }
    if (args.lParam) {
        InvalidateRect(ctl->hWnd, nullptr, TRUE);
    }
    ctl->hFont = font;
    MakeBoldFont(ctl);
    return reinterpret_cast<LRESULT>(old);
}

void HGOnDestroy(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    EndSizeDrag(ctl);
    if (HasStyle(ctl, WS_POPUP)) {
        EnableWindow(ctl->hParent, TRUE);
    }
    HGDetachEditor(ctl);
    if (!IsWindow(hwnd) || !HGNotify(ctl, HGN_DESTROY) || !DropRows(ctl)) {
        return;
    }
    if (!ctl->hParent) {
        PostQuitMessage(0);
    }
    ClearChildLinks(ctl->pData);
    HGDestroyNavigator(ctl);
    DeletePaintObjects(ctl);
}

void HGOnNcDestroy(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    HGridDestroy(ctl->pData);
    ctl->pData = nullptr;
    HGDropCursorUser();
    SendMessageA(hwnd, WWM_SETSTATE, 0, 0);
    HBlockFree(ctl);
}
