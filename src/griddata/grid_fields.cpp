// Columns: making, copying and comparing them, and where their values stand in a row.
// Adding, removing and moving them in a grid stand in grid_columns.cpp.
#include "griddata/griddata_internal.h"

#include <algorithm>

namespace {

constexpr short narrowest = 2;

int CompareExact(const char* a, const char* b)
{
    // A missing text equals only a missing text.
    return a && b ? std::strcmp(a, b) : (a != nullptr) - (b != nullptr);
}

// Class m gives no size, a masked value being as long as its mask.
short ValueSize(const HGField* field, WORD size, const char* format)
{
    const bool code = (field->wFlags & HFF_CODE) != 0;
    const char dataClass = code ? field->cClass2 : field->cClass;
    if (dataClass == 's') {
        return static_cast<short>(size);
    }
    const int fixed = GetDataSize(dataClass, code ? field->cType2 : field->cType);
    if (fixed >= 0) {
        return static_cast<short>(fixed);
    }
    return static_cast<short>((format ? std::strlen(format) : 0) + 1);
}

bool CopyTexts(HGField* field, const char* title, const char* format)
{
    field->pszTitle = hstrdup(title);
    field->pszName = hstrdup(title);
    field->pszFormat = hstrdup(format ? format : "");
    return field->pszFormat != nullptr;
}

void DestroyCellCtl(const HGField* field)
{
    const HWND child = field->pCtl ? field->pCtl->hWnd : nullptr;
    if (child && IsWindow(child)) {
        DestroyWindow(child);
    }
}

// The column stored at a position. Bounded: a map that wasn't kept up has no entry for the last positions, which
// then hold the columns of their own number.
HGField* FieldAtPos(HGridData* grid, int pos)
{
    HLList* const map = grid->pFieldMap;
    const bool    mapped = map && pos < map->cItems;
    return HGGetField(grid, mapped ? HGMapEntry(map, pos) : pos);
}

int CALLBACK CompareFieldNodes(HLList*, const void* a, void* b)
{
    return HGFldCompare(HGNodeField(const_cast<void*>(a)), HGNodeField(b));
}

bool SettingsDiffer(const HGridData* a, const HGridData* b)
{
    // Settled: dwStyle2 takes no part.
    return a->wVersion != b->wVersion || a->dwStyle != b->dwStyle || a->cFixedCols != b->cFixedCols ||
           a->nRowHeight != b->nRowHeight || a->nHdrWidth != b->nHdrWidth || a->nHdrHeight != b->nHdrHeight ||
           a->cMinRows != b->cMinRows || CompareExact(a->pszTitle, b->pszTitle) != 0;
}

} // namespace

HGField* WINAPI HGFieldCreate(const char* title, WORD flags, short width, WORD height, char dataClass, char dataType,
                              char dataClass2, char dataType2, WORD size, char kind, DWORD ctlStyle,
                              const char* format, BYTE band)
{
    HGField* const field = HRecordAlloc<HGField>();
    if (!field) {
        return nullptr;
    }
    field->wFlags = flags;
    field->nWidth = std::max(static_cast<short>(HGScaleX(width)), narrowest);
    field->nHeight = static_cast<short>(height);
    field->cClass = dataClass;
    field->cType = dataType;
    field->cClass2 = dataClass2;
    field->cType2 = dataType2;
    field->cKind = kind;
    field->dwCtlStyle = ctlStyle;
    field->nBand = static_cast<signed char>(band);
    field->cbSize = ValueSize(field, size, format);
    if (!CopyTexts(field, title, format)) {
        HGFieldDestroy(field);
        return nullptr;
    }
    return field;
}

int WINAPI HGFieldDestroy(HGField* field)
{
    if (!field) {
        return 0;
    }
    DestroyCellCtl(field);
    HBlockFree(field->pszTitle);
    HBlockFree(field->pszFormat);
    HBlockFree(field->pszName);
    HBlockFree(field);
    return 1;
}

HGField* WINAPI HGFldDup(HGField* field)
{
    if (!field) {
        return nullptr;
    }
    // Settled: the width passes the scaling once more.
    HGField* const copy =
        HGFieldCreate(field->pszTitle, field->wFlags, field->nWidth, static_cast<WORD>(field->nHeight), field->cClass,
                      field->cType, field->cClass2, field->cType2, static_cast<WORD>(field->cbSize), field->cKind,
                      field->dwCtlStyle, field->pszFormat, static_cast<BYTE>(field->nBand));
    if (copy) {
        copy->nOffset = field->nOffset;
    }
    return copy;
}

int HGFldCompare(const HGField* a, const HGField* b)
{
    if (!a || !b) {
        return (a != nullptr) - (b != nullptr);
    }
    const int title = CompareExact(a->pszTitle, b->pszTitle);
    if (title != 0) {
        return title;
    }
    const int format = CompareExact(a->pszFormat, b->pszFormat);
    if (format != 0) {
        return format;
    }
    const bool differ = a->wFlags != b->wFlags || a->nWidth != b->nWidth || a->nHeight != b->nHeight ||
                        a->cbSize != b->cbSize || a->cClass != b->cClass || a->cType != b->cType ||
                        a->cClass2 != b->cClass2 || a->cType2 != b->cType2 || a->cKind != b->cKind ||
                        a->dwCtlStyle != b->dwCtlStyle;
    return differ ? 1 : 0;
}

int WINAPI HGridChanged(HGridData* a, HGridData* b)
{
    if (!a || !b) {
        return a != b;
    }
    if (SettingsDiffer(a, b)) {
        return 1;
    }
    HLList* const    fields = a->pFields;
    const HLLCOMPARE byCaption = fields->pfnCompare;
    fields->pfnCompare = CompareFieldNodes;
    const int order = HLListCompare(fields, b->pFields);
    fields->pfnCompare = byCaption;
    return order != 0;
}

void WINAPI HGFixOffsets(HGridData* grid)
{
    if (!grid) {
        return;
    }
    const int count = HGColCount(grid);
    int       size = 2 * count;
    for (int pos = 0; pos < count; pos++) {
        size += HGCellSize(FieldAtPos(grid, pos));
    }
    // Bounded: rows that are too short for their columns grow first, or keep the layout that they have.
    if (size > HGRowSize(grid) && HGRowCount(grid)) {
        const bool grown = HGSetRowSize(grid, size) != 0;
        HGSettleRowCursor(grid);
        if (!grown) {
            return;
        }
    }
    int offset = 0;
    for (int pos = 0; pos < count; pos++) {
        HGField* const field = FieldAtPos(grid, pos);
        if (field) {
            field->nOffset = static_cast<short>(std::min(offset, offsetLimit));
            offset += HGCellSize(field);
        }
    }
    grid->pRows->cbItem = size;
}

int WINAPI HGCreateFldMap(HGridData* grid)
{
    if (!grid || grid->pFieldMap) {
        return 0;
    }
    HLList* const map = HGCreateMapList(sizeof(LONG));
    const int     count = HGColCount(grid);
    for (LONG col = 0; col < count; col++) {
        HLListAppend(map, &col);
    }
    if (!map || map->cItems != count) {
        HLListDestroy(map);
        return 0;
    }
    // Settled: HGS_COLMAP stays as it is, so that lookups use this map and changes of columns don't keep it up.
    grid->pFieldMap = map;
    return 1;
}
