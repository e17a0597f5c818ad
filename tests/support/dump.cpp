// Records as text.
#include "support/dump.h"

#include "griddata/cell_access.h"
#include "griddata/grid_model.h"

#include <cstdio>

namespace {

constexpr int longestText = 256;

template <typename... Args>
std::string Format(const char* format, Args... args)
{
    char text[512];
    std::snprintf(text, sizeof text, format, args...);
    return text;
}

std::string Quoted(const char* text)
{
    return text ? "\"" + std::string(text) + "\"" : "null";
}

// A letter of a type as it is, 0 as '-'.
char Letter(char ch)
{
    return ch ? ch : '-';
}

std::string DumpField(HGridData* grid, int col)
{
    const HGField* const field = HGGetField(grid, col);
    if (!field) {
        return Format("  col %d: no field\n", col);
    }
    return Format("  col %d: pos %d offset %d size %d %%%c%c %%%c%c kind %c flags %04X style %08X width %d band %d ",
                  col, HGColToPos(grid, col), field->nOffset, field->cbSize, Letter(field->cClass),
                  Letter(field->cType), Letter(field->cClass2), Letter(field->cType2), Letter(field->cKind),
                  unsigned{ field->wFlags }, static_cast<unsigned>(field->dwCtlStyle), field->nWidth, field->nBand) +
           "title " + Quoted(field->pszTitle) + " format " + Quoted(field->pszFormat) + "\n";
}

std::string DumpCell(HGridData* grid, int col, int row)
{
    const HGField* const field = HGGetField(grid, col);
    const BYTE* const    value = HGCellPtr(grid, col, row);
    const BYTE* const    flags = HGCellFlagsPtr(grid, col, row);
    if (!field || !value || !flags) {
        return " <none>";
    }
    const WORD bits = LoadAs<WORD>(flags);
    char       text[longestText] = "";
    if (!(bits & cellNull)) {
        FormatData(value, field->cClass, field->cType, field->pszFormat, text, sizeof text, nullptr, 0);
    }
    const std::string shown = bits & cellNull ? " null" : " " + Quoted(text);
    return bits & ~cellNull ? shown + Format("/%04X", unsigned{ bits }) : shown;
}

std::string DumpRow(HGridData* grid, int row)
{
    std::string text = Format("  row %d: flags %04X", row, unsigned{ HGNodeFlags(HGRowNode(grid, row)) });
    for (int col = 0; col < HGColCount(grid); ++col) {
        text += DumpCell(grid, col, row);
    }
    return text + "\n";
}

std::string DumpPayload(HLList* list, void* node)
{
    if (list->cbItem < 0) {
        return " " + Quoted(static_cast<const char*>(HNodePayload(node)));
    }
    std::string text;
    for (int i = 0; i < list->cbItem && i < longestText; ++i) {
        text += Format(" %02X", unsigned{ static_cast<const BYTE*>(HNodePayload(node))[i] });
    }
    return text;
}

} // namespace

std::string DumpGrid(HGridData* grid)
{
    if (!grid) {
        return "no grid\n";
    }
    std::string text =
        Format("grid version %04X style %08X style2 %08X fixed %d row height %d header %d by %d min rows %d ",
               unsigned{ grid->wVersion }, static_cast<unsigned>(grid->dwStyle), static_cast<unsigned>(grid->dwStyle2),
               grid->cFixedCols, grid->nRowHeight, grid->nHdrWidth, grid->nHdrHeight, grid->cMinRows) +
        "title " + Quoted(grid->pszTitle) +
        Format(" row size %d%s\n", grid->pRows ? grid->pRows->cbItem : -1, grid->pFieldMap ? " with map" : "");
    for (int col = 0; col < HGColCount(grid); ++col) {
        text += DumpField(grid, col);
    }
    for (int row = 0; row < HGRowCount(grid); ++row) {
        text += DumpRow(grid, row);
    }
    return text;
}

std::string DumpList(HLList* list)
{
    if (!list) {
        return "no list\n";
    }
    std::string text = Format("list of %d, item size %d, flags %04X, cursor at %d\n", list->cItems, list->cbItem,
                              unsigned{ list->wFlags }, list->iCursor);
    void*       node = list->pHead;
    for (int i = 0; i < list->cItems && node; ++i) {
        text += Format("  %d:", i) + DumpPayload(list, node) + (node == list->pCursor ? " <- cursor" : "") + "\n";
        if (i == list->cItems - 1 && (node != list->pTail || HNodeLink(node) != list->pHead)) {
            text += "  the ring isn't closed\n";
        }
        node = HNodeLink(node);
    }
    return node || list->cItems == 0 ? text : text + "  a link is null\n";
}
