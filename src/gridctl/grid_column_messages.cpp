// Own messages of a grid that add, remove, move, find and order columns, by column index.
#include "gridctl/grid_handlers.h"

#include <algorithm>
#include <cstring>

namespace {

int ColOf(const MsgArgs& args)
{
    return static_cast<int>(args.wParam);
}

// Bands stay in ascending order: the first column of a higher band, or -1.
int FirstOfHigherBand(HGridCtl* ctl, int band)
{
    for (int col = 0; col <= LastCol(ctl); ++col) {
        if (HGGetField(ctl->pData, col)->nBand > band) {
            return col;
        }
    }
    return -1;
}

void BoundBand(HGridCtl* ctl, HGField* field)
{
    const int highest = std::max(ctl->cBands - 1, 0);
    field->nBand = static_cast<signed char>(std::clamp<int>(field->nBand, 0, highest));
}

// A grid that has rows makes room in them for the new column.
int AppendField(HGridData* data, HGField* field)
{
    return HGRowCount(data) > 0 ? HGInsertFld(data, field, static_cast<short>(HGColCount(data)))
                                : HGAddFld(data, field);
}

// The new column gets its control and goes to the end of its band. Its index, also where the window went with it.
int PlaceNewField(HGridCtl* ctl, HGField* field, int index)
{
    const HWND hwnd = ctl->hWnd;
    HGCreateCellCtl(ctl, ctl->pData, field);
    if (!IsWindow(hwnd)) {
        return index;
    }
    BoundBand(ctl, field);
    const int place = ctl->cBands > 1 ? FirstOfHigherBand(ctl, field->nBand) : -1;
    return place >= 0 && HGMoveFld(ctl->pData, index, place) >= 0 ? place : index;
}

LRESULT OnAddField(HGridCtl* ctl, const MsgArgs& args)
{
    HGField* const field = reinterpret_cast<HGField*>(args.lParam);
    bool shown = false;
    // Without bands the column stands behind all others, and an edit may go on.
    const bool mayMove = field && ctl->cBands > 1;
    if (mayMove && !HGBeginColumnChange(ctl, &shown)) {
        return -1;
    }
    int index = field ? AppendField(ctl->pData, field) : -1;
    if (index >= 0) {
        index = PlaceNewField(ctl, field, index);
    }
    if (index >= 0 && IsWindow(args.hwnd)) {
        HGRecalc(ctl);
    }
    if (mayMove && IsWindow(args.hwnd)) {
        HGEndColumnChange(ctl, shown);
    }
    return index;
}

LRESULT OnInsertField(HGridCtl* ctl, const MsgArgs& args)
{
    HGField* const field = reinterpret_cast<HGField*>(args.lParam);
    bool shown = false;
    if (!field || !HGBeginColumnChange(ctl, &shown)) {
        return -1;
    }
    const int index = HGInsertFld(ctl->pData, field, static_cast<short>(ColOf(args)));
    if (index >= 0) {
        BoundBand(ctl, field);
        HGCreateCellCtl(ctl, ctl->pData, field);
    }
    if (IsWindow(args.hwnd)) {
        HGRecalc(ctl);
    }
    if (IsWindow(args.hwnd)) {
        HGEndColumnChange(ctl, shown);
    }
    return index;
}

LRESULT OnDeleteField(HGridCtl* ctl, const MsgArgs& args)
{
    if (!HGGetField(ctl->pData, ColOf(args))) {
        return 0;
    }
    bool shown = false;
    if (!HGBeginColumnChange(ctl, &shown)) {
        return 1;
    }
    HGRemoveFld(ctl, ColOf(args));
    if (IsWindow(args.hwnd)) {
        HGRefresh(ctl, true);
    }
    if (IsWindow(args.hwnd)) {
        HGEndColumnChange(ctl, shown);
    }
    return 1;
}

LRESULT OnMoveField(HGridCtl* ctl, const MsgArgs& args)
{
    bool shown = false;
    if (!HGBeginColumnChange(ctl, &shown)) {
        return -1;
    }
    const int moved = HGMoveFld(ctl->pData, ColOf(args), static_cast<int>(args.lParam));
    HGEndColumnChange(ctl, shown);
    return static_cast<short>(moved);
}

LRESULT OnFindField(HGridCtl* ctl, const MsgArgs& args)
{
    int index = -1;
    return HLListFind(ctl->pData->pFields, reinterpret_cast<const void*>(args.lParam), 0, &index) ? index : -1;
}

LRESULT OnFindFieldFrom(HGridCtl* ctl, const MsgArgs& args)
{
    const char* const name = reinterpret_cast<const char*>(args.lParam);
    for (int col = std::max(ColOf(args), 0); name && col <= LastCol(ctl); ++col) {
        const HGField* const field = HGGetField(ctl->pData, col);
        const bool visible = (field->wFlags & HFF_HIDDEN) == 0;
        if (visible && field->pszTitle && HCompareNoCase(name, field->pszTitle) == 0) {
            return col;
        }
    }
    return -1;
}

LRESULT OnGetColOrder(HGridCtl* ctl, const MsgArgs& args)
{
    int* const order = reinterpret_cast<int*>(args.lParam);
    if (!HasStyle(ctl, HGS_COLMAP) || !order) {
        return 0;
    }
    for (int pos = 0; pos <= LastCol(ctl); ++pos) {
        order[pos] = HGPosToCol(ctl->pData, pos);
    }
    return 1;
}

// The place in an order array that names a column, or -1.
int PositionOf(const int* order, int count, int col)
{
    const int* const found = std::find(order, order + count, col);
    return found < order + count ? static_cast<int>(found - order) : -1;
}

// Columns come to their places from the left on, so that those already placed stay. Columns that the array doesn't
// name, or names twice, keep the order in which they are met.
void OrderColumns(HGridCtl* ctl, const int* order)
{
    const int count = HGColCount(ctl->pData);
    for (int target = 0; target < count; ++target) {
        const int pos = PositionOf(order, count, target);
        const int col = pos >= 0 ? HGPosToCol(ctl->pData, pos) : -1;
        if (col > target) {
            HGMoveFld(ctl->pData, col, target);
        }
    }
}

LRESULT OnSetColOrder(HGridCtl* ctl, const MsgArgs& args)
{
    const int* const order = reinterpret_cast<const int*>(args.lParam);
    if (!HasStyle(ctl, HGS_COLMAP) || !order) {
        return 0;
    }
    bool shown = false;
    if (!HGBeginColumnChange(ctl, &shown)) {
        return 1;
    }
    OrderColumns(ctl, order);
    HGRefresh(ctl, true);
    if (IsWindow(args.hwnd)) {
        HGEndColumnChange(ctl, shown);
    }
    return 1;
}

LRESULT OnColToPos(HGridCtl* ctl, const MsgArgs& args)
{
    return HGGetField(ctl->pData, ColOf(args)) ? HGColToPos(ctl->pData, ColOf(args)) : -1;
}

LRESULT OnPosToCol(HGridCtl* ctl, const MsgArgs& args)
{
    const int pos = ColOf(args);
    return pos >= 0 && pos <= LastCol(ctl) ? HGPosToCol(ctl->pData, pos) : -1;
}

// clang-format off
constexpr MessageEntry<GridHandler> messages[] = {
    { HGM_ADDFIELD,      OnAddField },
    { HGM_DELETEFIELD,   OnDeleteField },
    { HGM_INSERTFIELD,   OnInsertField },
    { HGM_MOVEFIELD,     OnMoveField },
    { HGM_FINDFIELD,     OnFindField },
    { HGM_GETCOLORDER,   OnGetColOrder },
    { HGM_SETCOLORDER,   OnSetColOrder },
    { HGM_COLTOPOS,      OnColToPos },
    { HGM_POSTOCOL,      OnPosToCol },
    { HGM_FINDFIELDFROM, OnFindFieldFrom },
};
// clang-format on
constexpr auto handlers = ByNumber<firstGridMessage, lastGridMessage>(messages);

} // namespace

GridHandler HGFindColumnHandler(UINT message)
{
    return FindHandler<firstGridMessage>(handlers, message);
}
