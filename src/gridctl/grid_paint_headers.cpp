// Column headers, row headers and the corner of a grid, and the rest of the two header strips.
#include "gridctl/grid_paint.h"

#include "foundation/gdi_guards.h"
#include "foundation/startup.h"

#include <widgets/widgets.h>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace {

constexpr WORD noSortCol = 0xFFFF;
constexpr WORD restFlags = DPB_HEADER | 0x0040 | DPB_LIBFACE; // the bit in the middle isn't read
constexpr int  restLength = 5000;                             // beyond every client area
constexpr WORD plainTitleVersion = 18506;                     // from here on titles of read-only columns are plain
constexpr int  captionSize = 256 + 4;                         // what a button shows, and the brackets

struct HeaderLook {
    HFONT font;
    WORD  flags;
};

// wholeLine: the whole column or row is selected, not one of its cells.
HeaderLook LookOf(const HGridCtl* ctl, bool current, bool wholeLine)
{
    if (!ctl->hBoldFont || !current) {
        return { ctl->hFont, DPB_HEADER };
    }
    if (wholeLine) {
        return { ctl->hBoldFont, DPB_HEADER };
    }
    const bool select = hSelectBrush && HGHasFocus(ctl);
    return { ctl->hBoldFont, select ? WORD{ DPB_SELECTED } : WORD{ 0 } };
}

void DrawHeader(const HGridCtl* ctl, HDC hdc, RECT rect, WORD flags, const char* text, HFONT font)
{
    DrawPushButton(ctl->hWnd, hdc, &rect, 0, flags, text, font, nullptr, 0, -1);
}

WORD SortMark(const HGridCtl* ctl, int col)
{
    const int pos = HGColToPos(ctl->pData, col);
    if (pos < 0 || pos == noSortCol) {
        return 0;
    }
    if (pos == ctl->nSortCol) {
        return DPB_SORTUP;
    }
    return pos == ctl->nSortCol2 ? WORD{ DPB_SORTDOWN } : WORD{ 0 };
}

const char* ColumnCaption(const HGridData* grid, const HGField* field, char* buffer)
{
    const char* const title = field->pszTitle;
    if (!(field->wFlags & HFF_READONLY) || grid->wVersion >= plainTitleVersion) {
        return title;
    }
    std::snprintf(buffer, captionSize, "( %s )", title ? title : "");
    return buffer;
}

void WriteRowCaption(const HGridCtl* ctl, int row, char* buffer)
{
    const void* const node = HGRowNode(ctl->pData, row);
    if (!node) {
        *buffer = 0;
        return;
    }
    const WORD flags = HGNodeFlags(node);
    const bool blankNew = (flags & HGR_NEW) && !(flags & HGR_DIRTY);
    if (row == LastRow(ctl) && blankNew) {
        _fstrnzcpy(buffer, "*", captionSize);
        return;
    }
    wsprintfA(buffer, "%ld", RecordOfRow(ctl, row + 1));
}

int LastColumn(HGridCtl* ctl, int band)
{
    ColumnWalk columns{ ctl, band, -1, LastCol(ctl) };
    while (columns.Next()) {
    }
    return columns.col;
}

// Where the strip behind the last column begins; false if that column is out of view.
bool FindRestLeft(HGridCtl* ctl, int band, LONG* left)
{
    RECT content;
    HGContentRect(ctl, &content);
    const int col = LastColumn(ctl, band);
    RECT      cell;
    if (!HGCellRect(ctl, &cell, col, -1, true)) {
        if (col >= 0) {
            return false;
        }
        cell.right = content.left; // no column, and no corner either
    }
    *left = cell.right == content.left ? cell.right - 1 : cell.right;
    return true;
}

} // namespace

void HGDrawColumnHeader(HGridCtl* ctl, HDC hdc, RECT rect, int col)
{
    if (!HasStyle(ctl, HGS_COLHEADERS)) {
        return;
    }
    const HGField* const field = col < 0 ? nullptr : HGGetField(ctl->pData, col);
    if (!field) {
        DrawHeader(ctl, hdc, rect, DPB_HEADER | DPB_LIBFACE, nullptr, nullptr);
        return;
    }
    char             buffer[captionSize];
    const Cell       current = CurrentCell(ctl);
    const HeaderLook look = LookOf(ctl, col == current.col, current.row == -1);
    const WORD       flags = static_cast<WORD>(look.flags | SortMark(ctl, col) | DPB_LIBFACE);
    DrawHeader(ctl, hdc, rect, flags, ColumnCaption(ctl->pData, field, buffer), look.font);
}

void HGDrawRowHeader(HGridCtl* ctl, HDC hdc, RECT rect, int row)
{
    if (!HasStyle(ctl, HGS_ROWHEADERS)) {
        return;
    }
    char buffer[captionSize];
    WriteRowCaption(ctl, row, buffer);
    const Cell       current = CurrentCell(ctl);
    const HeaderLook look = LookOf(ctl, row == current.row, current.col == -1);
    DrawHeader(ctl, hdc, rect, static_cast<WORD>(look.flags | DPB_LIBFACE), buffer, look.font);
}

namespace {

// A strip of column header without a caption.
void DrawStrip(HGridCtl* ctl, HDC hdc, int band, LONG left, LONG right)
{
    const int  height = ctl->pData->nHdrHeight;
    const int  top = std::max(band, 0) * height;
    const RECT rect{ left, top, right, top + height };
    if (!RectVisible(hdc, &rect)) {
        return;
    }
    const SelectedObject brush(hdc, HGFaceBrush());
    const SelectedObject pen(hdc, GetStockObject(DC_PEN));
    SetDCPenColor(hdc, GetSysColor(COLOR_BTNSHADOW));
    Rectangle(hdc, rect.left, rect.top, rect.right, rect.bottom);
    SetDCPenColor(hdc, GetSysColor(COLOR_BTNHIGHLIGHT));
    const POINT edge[] = { { rect.left, rect.bottom - 2 }, { rect.left, rect.top }, { rect.right - 1, rect.top } };
    Polyline(hdc, edge, static_cast<int>(std::size(edge)));
}

} // namespace

void HGDrawColumnHeaderRest(HGridCtl* ctl, HDC hdc, int band)
{
    LONG left = 0;
    if (FindRestLeft(ctl, band, &left)) {
        DrawStrip(ctl, hdc, band, left, left + restLength);
    }
}

// The scrolling zone begins behind the widest band's fixed columns: what a narrower one leaves free before it.
void HGDrawFixedHeaderRest(HGridCtl* ctl, HDC hdc, int band)
{
    if (ctl->cBands < 2 || ctl->pData->cFixedCols == 0) {
        return;
    }
    RECT zone;
    HGScrollRect(ctl, &zone);
    RECT       content;
    HGContentRect(ctl, &content);
    ColumnWalk columns{ ctl, band, -1, ctl->pData->cFixedCols - 1 };
    LONG       end = content.left;
    while (columns.Next()) {
        end += HGGetField(ctl->pData, columns.col)->nWidth;
    }
    if (end < zone.left) {
        DrawStrip(ctl, hdc, band, end, zone.left);
    }
}

void HGDrawRowHeaderRest(HGridCtl* ctl, HDC hdc, int lastRow)
{
    RECT client;
    HGClientRect(ctl, &client);
    RECT rect;
    if (!HGCellRect(ctl, &rect, -1, lastRow, true)) {
        if (lastRow >= 0) {
            return;
        }
        HGColumnRect(ctl, &rect, -1, -1); // neither rows nor a corner
        rect.bottom = client.top;
    }
    rect.top = rect.bottom;
    // Two rows of pixels below the window hide the strip's end, and the face is painted off-screen: no more is made.
    rect.bottom = std::min<LONG>(rect.top + restLength, client.bottom + 2);
    if (rect.top < rect.bottom && RectVisible(hdc, &rect)) {
        DrawHeader(ctl, hdc, rect, restFlags, nullptr, nullptr);
    }
}
