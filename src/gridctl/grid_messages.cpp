// Own messages of a grid that concern the window, its appearance, its data and its layout.
#include "gridctl/grid_handlers.h"

#include "dialog/window_style.h"

#include <algorithm>

namespace {

constexpr int minRowHeight = 2;
constexpr int maxRowHeight = 2000;
constexpr int maxBands = 5;
constexpr int cellTextSize = 256;

// Refreshes if a message asks for it in lParam, and hands the message on.
LRESULT RefreshIfAsked(HGridCtl* ctl, const MsgArgs& args)
{
    if (args.lParam) {
        HGRefresh(ctl, true);
    }
    return AskDefault(args);
}

LRESULT OnGetBkBrush(HGridCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(ctl->hBkBrush);
}

LRESULT OnSetBkBrush(HGridCtl* ctl, const MsgArgs& args)
{
    const HBRUSH old = ctl->hBkBrush;
    ctl->hBkBrush = reinterpret_cast<HBRUSH>(args.wParam);
    if (args.lParam) {
        InvalidateRect(ctl->hWnd, nullptr, TRUE);
    }
    HGSendToChildren(ctl, args.message, args.wParam, args.lParam);
    return reinterpret_cast<LRESULT>(old);
}

LRESULT OnChildFocus(HGridCtl* ctl, const MsgArgs& args)
{
    HGOnChildFocus(ctl);
    return AskDefault(args);
}

LRESULT OnChildBlur(HGridCtl* ctl, const MsgArgs& args)
{
    HGOnChildBlur(ctl);
    return AskDefault(args);
}

LRESULT OnGetStyle(HGridCtl* ctl, const MsgArgs&)
{
    return static_cast<LRESULT>(ctl->pData->dwStyle);
}

// A grid that is locked or given free: the editor of a current cell that is known follows. What shows of the selection is
// painted anew, since only its inversion by the same bits would remove it.
void StoreStyle(HGridCtl* ctl, DWORD style)
{
    constexpr DWORD selectionBits = HGS_READONLY | HGS_KEEPSEL | HGS_ROWSELECT | HGS_NOEXTEND;
    const DWORD changed = ctl->pData->dwStyle ^ style;
    if (changed & selectionBits) {
        HGRedrawSelection(ctl);
    }
    ctl->pData->dwStyle = style;
    if (changed & selectionBits) {
        HGRedrawSelection(ctl);
    }
    if ((changed & HGS_READONLY) && HasFlag(ctl, HGC_CELLSHOWN)) {
        HGFollowReadOnly(ctl, HGIsSelectionShown(ctl));
    }
}

LRESULT OnSetStyle(HGridCtl* ctl, const MsgArgs& args)
{
    // Beside a navigator the stored word alone has the scroll bar.
    SetWindowStyle(ctl->hWnd, static_cast<DWORD>(args.lParam), ctl->hNavScroll ? WS_VSCROLL : 0);
    StoreStyle(ctl, static_cast<DWORD>(args.lParam));
    return 1;
}

LRESULT OnSetStyleBits(HGridCtl* ctl, const MsgArgs& args)
{
    const DWORD mask = static_cast<DWORD>(args.lParam);
    const DWORD style = ctl->pData->dwStyle;
    StoreStyle(ctl, args.wParam ? style | mask : style & ~mask);
    return 1;
}

LRESULT OnCtlColor(HGridCtl* ctl, const MsgArgs& args)
{
    constexpr int cellControlKind = 21;
    if (!IsWindow(ctl->hParent)) {
        return AskDefault(args);
    }
    return reinterpret_cast<LRESULT>(FireCtlColorMsg(ctl, cellControlKind, reinterpret_cast<HDC>(args.wParam)));
}

LRESULT OnSetData(HGridCtl* ctl, const MsgArgs& args)
{
    if (!HGAttachData(ctl, reinterpret_cast<HGridData*>(args.lParam))) {
        return 0;
    }
    if (args.wParam) {
        HGRefresh(ctl, true);
    }
    return 1;
}

LRESULT OnGetData(HGridCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(ctl->pData);
}

LRESULT OnReset(HGridCtl* ctl, const MsgArgs& args)
{
    HGReset(ctl, args.wParam != 0);
    return AskDefault(args);
}

LRESULT OnRefresh(HGridCtl* ctl, const MsgArgs& args)
{
    HGRefresh(ctl, args.wParam != 0);
    return AskDefault(args);
}

LRESULT OnRecalc(HGridCtl* ctl, const MsgArgs&)
{
    HGRecalc(ctl);
    return 1;
}

LRESULT OnGetHeaderHeight(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->pData->nHdrHeight;
}

LRESULT OnSetHeaderHeight(HGridCtl* ctl, const MsgArgs& args)
{
    ctl->pData->nHdrHeight = std::max<short>(static_cast<short>(args.wParam), 0);
    return RefreshIfAsked(ctl, args);
}

LRESULT OnGetRowHdrWidth(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->pData->nHdrWidth;
}

LRESULT OnSetRowHdrWidth(HGridCtl* ctl, const MsgArgs& args)
{
    ctl->pData->nHdrWidth = std::max<short>(static_cast<short>(args.wParam), 0);
    return RefreshIfAsked(ctl, args);
}

LRESULT OnGetRowHeight(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->pData->nRowHeight;
}

LRESULT OnSetRowHeight(HGridCtl* ctl, const MsgArgs& args)
{
    const int height = std::clamp(static_cast<int>(args.wParam), minRowHeight, maxRowHeight);
    ctl->pData->nRowHeight = static_cast<short>(height);
    return RefreshIfAsked(ctl, args);
}

LRESULT OnResetSizes(HGridCtl* ctl, const MsgArgs& args)
{
    ctl->pData->nHdrHeight = ctl->pData->nHdrHeightDef;
    ctl->pData->nRowHeight = ctl->pData->nRowHeightDef;
    return RefreshIfAsked(ctl, args);
}

LRESULT OnGetColCount(HGridCtl* ctl, const MsgArgs&)
{
    return HGColCount(ctl->pData);
}

LRESULT OnGetRowCount(HGridCtl* ctl, const MsgArgs&)
{
    return HGRowCount(ctl->pData);
}

LRESULT OnGetFixedCols(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->pData->cFixedCols;
}

LRESULT OnSetFixedCols(HGridCtl* ctl, const MsgArgs& args)
{
    const unsigned count = std::min(static_cast<unsigned>(args.wParam), static_cast<unsigned>(HGColCount(ctl->pData)));
    ctl->pData->cFixedCols = static_cast<short>(count);
    ctl->nFirstCol = static_cast<WORD>(count);
    HGRefresh(ctl, true);
    return AskDefault(args);
}

LRESULT OnGetBands(HGridCtl* ctl, const MsgArgs&)
{
    return ctl->cBands;
}

LRESULT OnSetBands(HGridCtl* ctl, const MsgArgs& args)
{
    if (args.lParam < 1 || args.lParam > maxBands) {
        return 0;
    }
    const signed char bands = static_cast<signed char>(args.lParam);
    ctl->cBands = bands;
    for (int col = 0; col < HGColCount(ctl->pData); ++col) {
        HGField* const field = HGGetField(ctl->pData, col);
        if (field->nBand >= bands) {
            field->nBand = static_cast<signed char>(bands - 1);
        }
    }
    return 1;
}

LRESULT OnSetEndStop(HGridCtl* ctl, const MsgArgs& args)
{
    ctl->pData->fEndStop = LOBYTE(args.wParam);
    return AskDefault(args);
}

LRESULT OnGetCellText(HGridCtl* ctl, const MsgArgs& args)
{
    const Cell cell = UnpackCell(static_cast<DWORD>(args.wParam));
    return HGFormatCell(ctl, cell.col, cell.row, reinterpret_cast<char*>(args.lParam), cellTextSize, 0);
}

// clang-format off
constexpr MessageEntry<GridHandler> messages[] = {
    { HGM_GETBKBRUSH,      OnGetBkBrush },
    { HGM_SETBKBRUSH,      OnSetBkBrush },
    { WWM_CHILDFOCUS,      OnChildFocus },
    { WWM_CHILDBLUR,       OnChildBlur },
    { WWM_GETSTYLE,        OnGetStyle },
    { WWM_SETSTYLE,        OnSetStyle },
    { HGM_GETBANDS,        OnGetBands },
    { HGM_SETBANDS,        OnSetBands },
    { HGM_SETDATA,         OnSetData },
    { HGM_GETDATA,         OnGetData },
    { HGM_RESET,           OnReset },
    { HGM_REFRESH,         OnRefresh },
    { HGM_GETHEADERHEIGHT, OnGetHeaderHeight },
    { HGM_SETHEADERHEIGHT, OnSetHeaderHeight },
    { HGM_GETROWHDRWIDTH,  OnGetRowHdrWidth },
    { HGM_SETROWHDRWIDTH,  OnSetRowHdrWidth },
    { HGM_GETROWHEIGHT,    OnGetRowHeight },
    { HGM_SETROWHEIGHT,    OnSetRowHeight },
    { HGM_GETCOLCOUNT,     OnGetColCount },
    { HGM_GETROWCOUNT,     OnGetRowCount },
    { HGM_GETFIXEDCOLS,    OnGetFixedCols },
    { HGM_SETFIXEDCOLS,    OnSetFixedCols },
    { HGM_GETTITLE,        HGOnGetText },
    { HGM_SETTITLE,        HGOnSetText },
    { HGM_SETSTYLEBITS,    OnSetStyleBits },
    { HGM_RECALC,          OnRecalc },
    { HGM_CTLCOLOR,        OnCtlColor },
    { HGM_SETENDSTOP,      OnSetEndStop },
    { HGM_RESETSIZES,      OnResetSizes },
    { HGM_GETCELLTEXT,     OnGetCellText },
};
// clang-format on
constexpr auto handlers = ByNumber<firstGridMessage, lastGridMessage>(messages);

} // namespace

LRESULT HGOnGetText(HGridCtl* ctl, const MsgArgs& args)
{
    char* const buffer = reinterpret_cast<char*>(args.lParam);
    return buffer ? _fstrnzcpy(buffer, ctl->pData->pszTitle, static_cast<int>(args.wParam)) : 0;
}

LRESULT HGOnSetText(HGridCtl* ctl, const MsgArgs& args)
{
    const char* const text = reinterpret_cast<const char*>(args.lParam);
    if (!text) {
        return 0;
    }
    char* title = ctl->pData->pszTitle;
    if (text != title) {
        hstrdup2(&title, text);
        ctl->pData->pszTitle = title;
    }
    return AskDefault(args);
}

GridHandler HGFindGridHandler(UINT message)
{
    return FindHandler<firstGridMessage>(handlers, message);
}
