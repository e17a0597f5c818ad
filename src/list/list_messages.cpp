// The own messages of a list control, and their table.
#include "foundation/item_list.h"
#include "foundation/memory.h"
#include "list/list_internal.h"

#include <climits>
#include <cstring>

namespace {

constexpr int firstTabStop = 55; // what a single stop of 0 stands for
constexpr int nothingChanged = -4;

int IndexOf(const MsgArgs& args)
{
    return static_cast<int>(args.wParam);
}

template <typename T>
T* PointerOf(const MsgArgs& args)
{
    return reinterpret_cast<T*>(args.lParam);
}

LRESULT Redraw(HListCtl* ctl, LPARAM redraw, LRESULT result)
{
    if (redraw) {
        InvalidateRect(ctl->hWnd, nullptr, TRUE);
    }
    return result;
}

LRESULT OnGetItemHeight(HListCtl* ctl, const MsgArgs&)
{
    return ctl->cyRow;
}

LRESULT OnGetBkBrush(HListCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(+ctl->hBkBrush);
}

LRESULT OnSetBkBrush(HListCtl* ctl, const MsgArgs& args)
{
    const HBRUSH old = ctl->hBkBrush;
    ctl->hBkBrush = reinterpret_cast<HBRUSH>(args.wParam);
    return Redraw(ctl, args.lParam, reinterpret_cast<LRESULT>(old));
}

LRESULT OnGetFocusBrush(HListCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(+ctl->hFocusBrush);
}

LRESULT OnSetFocusBrush(HListCtl* ctl, const MsgArgs& args)
{
    const HBRUSH old = ctl->hFocusBrush;
    ctl->hFocusBrush = reinterpret_cast<HBRUSH>(args.wParam);
    return Redraw(ctl, args.lParam, reinterpret_cast<LRESULT>(old));
}

LRESULT OnGetFormat(HListCtl* ctl, const MsgArgs& args)
{
    if (!args.lParam) {
        return 0;
    }
    DataList items = ctl->items;
    return HDLGetFormat(&items, PointerOf<char>(args), static_cast<int>(std::min<WPARAM>(args.wParam, INT_MAX)));
}

LRESULT OnSetFormat(HListCtl* ctl, const MsgArgs& args)
{
    if (!HLSetFormat(ctl, PointerOf<const char>(args))) {
        return 0;
    }
    return Redraw(ctl, static_cast<LPARAM>(args.wParam), 1);
}

LRESULT OnGetColor(HListCtl* ctl, const MsgArgs& args)
{
    return static_cast<LRESULT>(args.wParam ? +ctl->crNegText : +ctl->crText);
}

LRESULT OnSetColor(HListCtl* ctl, const MsgArgs& args)
{
    const COLORREF color = static_cast<COLORREF>(args.lParam);
    if (args.wParam) {
        ctl->crNegText = color;
    } else {
        ctl->crText = color;
    }
    InvalidateRect(ctl->hWnd, nullptr, FALSE);
    return 1;
}

LRESULT OnGetDataClass(HListCtl* ctl, const MsgArgs&)
{
    return ctl->items.cClass;
}

LRESULT OnGetDataType(HListCtl* ctl, const MsgArgs&)
{
    return ctl->items.cType;
}

LRESULT OnGetCodeClass(HListCtl* ctl, const MsgArgs&)
{
    return ctl->items.cClass2;
}

LRESULT OnGetCodeType(HListCtl* ctl, const MsgArgs&)
{
    return ctl->items.cType2;
}

LRESULT OnGetDataSize(HListCtl* ctl, const MsgArgs& args)
{
    DataList items = ctl->items;
    return HDLGetDataSize(&items, IndexOf(args));
}

LRESULT OnGetCodeSize(HListCtl* ctl, const MsgArgs& args)
{
    DataList items = ctl->items;
    return items.pCodes ? HDLGetCodeSize(&items, IndexOf(args)) : 0;
}

LRESULT OnGetDataLink(HListCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(+ctl->pDataLink);
}

LRESULT OnSetDataLink(HListCtl* ctl, const MsgArgs& args)
{
    HLLinkData(ctl, PointerOf<void>(args), args.wParam != 0);
    return 1;
}

LRESULT OnGetCodeLink(HListCtl* ctl, const MsgArgs&)
{
    return reinterpret_cast<LRESULT>(+ctl->pCodeLink);
}

LRESULT OnSetCodeLink(HListCtl* ctl, const MsgArgs& args)
{
    HLLinkCode(ctl, PointerOf<void>(args), args.wParam != 0);
    return 1;
}

LRESULT OnGetCount(HListCtl* ctl, const MsgArgs&)
{
    return HLCount(ctl);
}

LRESULT OnEmpty(HListCtl*, const MsgArgs& args)
{
    return HLEmptyList(args.hwnd);
}

LRESULT OnDeleteItem(HListCtl*, const MsgArgs& args)
{
    return HLDeleteItem(args.hwnd, IndexOf(args));
}

LRESULT OnSelectItem(HListCtl* ctl, const MsgArgs& args)
{
    return HLSelectGuarded(ctl, LOWORD(args.lParam), IndexOf(args));
}

LRESULT OnGetData(HListCtl*, const MsgArgs& args)
{
    return HLGetData(args.hwnd, IndexOf(args), PointerOf<void>(args));
}

LRESULT OnGetCode(HListCtl*, const MsgArgs& args)
{
    return HLGetCode(args.hwnd, IndexOf(args), PointerOf<void>(args));
}

// The text of an item as it shows; its length, or -1 for an empty one.
int ShownText(HListCtl* ctl, int index, char* buffer)
{
    const int length = HLFormatText(ctl, index, buffer, itemTextSize);
    return length > 0 ? length : -1;
}

LRESULT OnGetItemText(HListCtl* ctl, const MsgArgs& args)
{
    char      buffer[itemTextSize];
    const int length = ShownText(ctl, IndexOf(args), buffer);
    if (length > 0 && args.lParam) {
        std::memcpy(PointerOf<char>(args), buffer, static_cast<size_t>(length) + 1);
    }
    return length;
}

LRESULT OnGetItemTextLen(HListCtl* ctl, const MsgArgs& args)
{
    char buffer[itemTextSize];
    return ShownText(ctl, IndexOf(args), buffer);
}

LRESULT OnSetCode(HListCtl*, const MsgArgs& args)
{
    return HLSetCode(args.hwnd, IndexOf(args), PointerOf<const void>(args));
}

LRESULT OnFindText(HListCtl* ctl, const MsgArgs& args)
{
    return HLFindText(ctl, PointerOf<const char>(args), IndexOf(args));
}

LRESULT OnSelectText(HListCtl* ctl, const MsgArgs& args)
{
    const int found = HLFindText(ctl, PointerOf<const char>(args), IndexOf(args));
    HLSetCurrent(ctl, found, false, false);
    return found;
}

LRESULT OnAddItem(HListCtl* ctl, const MsgArgs& args)
{
    return HLInsertOne(ctl, -1, PointerOf<const void>(args), nullptr);
}

LRESULT OnInsertItem(HListCtl* ctl, const MsgArgs& args)
{
    return HLInsertOne(ctl, IndexOf(args), PointerOf<const void>(args), nullptr);
}

LRESULT OnFindData(HListCtl*, const MsgArgs& args)
{
    return HLFindData(args.hwnd, IndexOf(args), PointerOf<const void>(args));
}

LRESULT OnFindCode(HListCtl*, const MsgArgs& args)
{
    return HLFindCode(args.hwnd, IndexOf(args), PointerOf<const void>(args));
}

LRESULT OnSelectData(HListCtl*, const MsgArgs& args)
{
    return HLSelectData(args.hwnd, PointerOf<const void>(args), IndexOf(args));
}

LRESULT OnSelectCode(HListCtl*, const MsgArgs& args)
{
    return HLSelectCode(args.hwnd, PointerOf<const void>(args), IndexOf(args));
}

// The current item's value: a text cut at the caller's size, any other as it is. Without a current item, 0.
LRESULT GiveCurrent(HListCtl* ctl, const MsgArgs& args, bool code)
{
    const int current = HLCurIndex(ctl);
    if (current < 0 || !args.lParam) {
        return 0;
    }
    DataList            items = ctl->items;
    const HLList* const values = code ? items.pCodes : items.pValues;
    if (args.wParam && values && values->cbItem < 0) {
        const void* const text = code ? HDLGetCodePtr(&items, current) : HDLGetDataPtr(&items, current);
        const int         size = static_cast<int>(std::min<WPARAM>(args.wParam, INT_MAX));
        if (!text) {
            return 0;
        }
        _fstrnzcpy(PointerOf<char>(args), static_cast<const char*>(text), size);
        return *static_cast<const char*>(text) != 0;
    }
    return code ? HDLGetCode(&items, current, PointerOf<void>(args))
                : HDLGetData(&items, current, PointerOf<void>(args));
}

LRESULT OnGetCurData(HListCtl* ctl, const MsgArgs& args)
{
    return GiveCurrent(ctl, args, false);
}

LRESULT OnGetCurCode(HListCtl* ctl, const MsgArgs& args)
{
    return GiveCurrent(ctl, args, true);
}

LRESULT OnRecalc(HListCtl* ctl, const MsgArgs&)
{
    HLRecalc(ctl);
    return 1;
}

LRESULT OnGetCurrent(HListCtl* ctl, const MsgArgs&)
{
    return HLCurIndex(ctl);
}

LRESULT OnSetCurrent(HListCtl* ctl, const MsgArgs& args)
{
    const int old = HLCurIndex(ctl);
    HLSetCurrent(ctl, IndexOf(args), false, false);
    if (args.lParam && IsWindow(args.hwnd)) {
        HLInvalidateItem(ctl, old, true);
        HLInvalidateItem(ctl, HLCurIndex(ctl), true);
    }
    return 1;
}

LRESULT OnIsSelected(HListCtl* ctl, const MsgArgs& args)
{
    return HLIsItemSelected(ctl, IndexOf(args));
}

LRESULT OnGetSelCount(HListCtl* ctl, const MsgArgs&)
{
    if (HasFlag(ctl, HLF_SINGLESEL)) {
        return HLCurIndex(ctl) >= 0;
    }
    return HLListCount(ctl->pSelected);
}

LRESULT OnSelectRange(HListCtl* ctl, const MsgArgs& args)
{
    return HLSelectRange(ctl, LOWORD(args.lParam), HIWORD(args.lParam), IndexOf(args)) > 0 ? 1 : nothingChanged;
}

// Bounded: with single selection there is nothing to read.
LRESULT OnGetSelItems(HListCtl* ctl, const MsgArgs& args)
{
    const int count = std::min(IndexOf(args), HLListCount(ctl->pSelected));
    if (!args.lParam || count < 0) {
        return 0;
    }
    for (int i = 0; i < count; ++i) {
        PointerOf<int>(args)[i] = SelectedAt(ctl, i);
    }
    return count;
}

LRESULT OnSetColumnWidth(HListCtl* ctl, const MsgArgs& args)
{
    if (!HasStyle(ctl, HLS_MULTICOLUMN)) {
        return 0;
    }
    if (IndexOf(args) > 0) {
        SetFlag(ctl, HLF_FIXEDCOLUMN, true);
        ctl->cxColumn = IndexOf(args);
    }
    return Redraw(ctl, 1, 1);
}

LRESULT OnGetTotalWidth(HListCtl* ctl, const MsgArgs&)
{
    return static_cast<LRESULT>(ctl->cCols) * ctl->cxColumn;
}

LRESULT OnGetItemRect(HListCtl* ctl, const MsgArgs& args)
{
    RECT       rect;
    const bool visible = HLItemRect(ctl, IndexOf(args), &rect);
    if (args.lParam) {
        *PointerOf<RECT>(args) = rect;
    }
    return visible;
}

LRESULT OnGetColumnWidth(HListCtl* ctl, const MsgArgs&)
{
    const RECT client = ctl->rcClient;
    return HasStyle(ctl, HLS_MULTICOLUMN) ? ctl->cxColumn : client.right - client.left;
}

LRESULT OnGetTop(HListCtl* ctl, const MsgArgs&)
{
    return ctl->nTop;
}

LRESULT OnSetTop(HListCtl* ctl, const MsgArgs& args)
{
    const int step = HasStyle(ctl, HLS_MULTICOLUMN) ? std::max<int>(ctl->cRows, 1) : 1;
    constexpr int farthest = 0x3FFFFFFF; // subtracting the first item from it still fits
    const int     index = std::clamp(IndexOf(args), -farthest, farthest);
    HLScroll(ctl, (index - ctl->nTop) / step);
    return IsWindow(args.hwnd) ? ctl->nTop : 0;
}

LRESULT OnScroll(HListCtl* ctl, const MsgArgs& args)
{
    return HLScroll(ctl, IndexOf(args));
}

LRESULT OnSetTabs(HListCtl* ctl, const MsgArgs& args)
{
    const int count = IndexOf(args);
    HBlockFree(ctl->pTabs);
    ctl->pTabs = nullptr;
    ctl->cTabs = 0;
    // Bounded: the size of more stops isn't a number of 32 bits any more.
    constexpr int mostStops = INT_MAX / static_cast<int>(sizeof(LONG));
    const bool    fits = count >= 1 && count <= mostStops;
    LONG* const   stops = fits ? static_cast<LONG*>(HBlockAlloc(static_cast<size_t>(count) * sizeof(LONG))) : nullptr;
    if (!stops) {
        return 1;
    }
    if (count == 1) {
        const LONG stop = std::max(static_cast<LONG>(args.lParam), LONG{ 0 });
        *stops = stop ? stop : firstTabStop;
    } else if (args.lParam) {
        std::memcpy(stops, PointerOf<const void>(args), static_cast<size_t>(count) * sizeof(LONG));
    }
    ctl->pTabs = stops;
    ctl->cTabs = count;
    return 1;
}

LRESULT OnSetRedraw(HListCtl* ctl, const MsgArgs& args)
{
    SetFlag(ctl, HLF_NOREDRAW, args.wParam == 0);
    return Redraw(ctl, args.wParam && args.lParam, 1);
}

LRESULT OnGetFlags(HListCtl* ctl, const MsgArgs&)
{
    return ctl->wFlags & ~HLF_OWNFORMAT;
}

LRESULT OnSetFlags(HListCtl* ctl, const MsgArgs& args)
{
    SetFlag(ctl, static_cast<WORD>(args.wParam & ~static_cast<WPARAM>(HLF_OWNFORMAT)), args.lParam != 0);
    return OnGetFlags(ctl, args);
}

LRESULT OnGetStyle(HListCtl* ctl, const MsgArgs&)
{
    return static_cast<LRESULT>(ctl->dwStyle);
}

constexpr UINT addString = 384; // LB_ADDSTRING and LB_GETITEMHEIGHT
constexpr UINT getItemHeight = 417;
constexpr UINT selectItemToo = 1237; // a second number of HLM_SELECTITEM

// clang-format off
constexpr MessageEntry<ListHandler> entries[] = {
    { HLM_GETBKBRUSH,     OnGetBkBrush },
    { HLM_SETBKBRUSH,     OnSetBkBrush },
    { HLM_GETFORMAT,      OnGetFormat },
    { HLM_SETFORMAT,      OnSetFormat },
    { HLM_GETFOCUSBRUSH,  OnGetFocusBrush },
    { HLM_SETFOCUSBRUSH,  OnSetFocusBrush },
    { HLM_GETCOLOR,       OnGetColor },
    { HLM_SETCOLOR,       OnSetColor },
    { HLM_GETDATACLASS,   OnGetDataClass },
    { HLM_GETDATASIZE,    OnGetDataSize },
    { HLM_GETDATATYPE,    OnGetDataType },
    { HLM_GETDATALINK,    OnGetDataLink },
    { HLM_SETDATALINK,    OnSetDataLink },
    { HLM_GETCOUNT,       OnGetCount },
    { HLM_EMPTY,          OnEmpty },
    { HLM_DELETEITEM,     OnDeleteItem },
    { HLM_SELECTITEM,     OnSelectItem },
    { HLM_GETDATA,        OnGetData },
    { HLM_GETCODE,        OnGetCode },
    { HLM_GETITEMTEXT,    OnGetItemText },
    { HLM_GETITEMTEXTLEN, OnGetItemTextLen },
    { HLM_SETCODE,        OnSetCode },
    { HLM_FINDTEXT,       OnFindText },
    { HLM_SELECTTEXT,     OnSelectText },
    { HLM_ADDITEM,        OnAddItem },
    { HLM_INSERTITEM,     OnInsertItem },
    { HLM_FINDDATA,       OnFindData },
    { HLM_SELECTDATA,     OnSelectData },
    { HLM_GETCURDATA,     OnGetCurData },
    { HLM_GETCODECLASS,   OnGetCodeClass },
    { HLM_GETCODELINK,    OnGetCodeLink },
    { HLM_SETCODELINK,    OnSetCodeLink },
    { HLM_GETCODESIZE,    OnGetCodeSize },
    { HLM_GETCODETYPE,    OnGetCodeType },
    { HLM_FINDCODE,       OnFindCode },
    { HLM_SELECTCODE,     OnSelectCode },
    { HLM_GETCURCODE,     OnGetCurCode },
    { HLM_RECALC,         OnRecalc },
    { HLM_GETCURRENT,     OnGetCurrent },
    { HLM_SETCURRENT,     OnSetCurrent },
    { HLM_ISSELECTED,     OnIsSelected },
    { selectItemToo,      OnSelectItem },
    { HLM_GETSELCOUNT,    OnGetSelCount },
    { HLM_SELECTRANGE,    OnSelectRange },
    { HLM_GETSELITEMS,    OnGetSelItems },
    { HLM_SETCOLUMNWIDTH, OnSetColumnWidth },
    { HLM_GETTOTALWIDTH,  OnGetTotalWidth },
    { HLM_GETITEMRECT,    OnGetItemRect },
    { HLM_GETCOLUMNWIDTH, OnGetColumnWidth },
    { HLM_GETTOP,         OnGetTop },
    { HLM_SETTOP,         OnSetTop },
    { HLM_SCROLL,         OnScroll },
    { HLM_SETTABS,        OnSetTabs },
    { HLM_SETREDRAW,      OnSetRedraw },
    { HLM_GETFLAGS,       OnGetFlags },
    { HLM_SETFLAGS,       OnSetFlags },
    { HLM_GETSTYLE,       OnGetStyle },
};
// clang-format on

constexpr auto handlers = ByNumber<HLM_GETBKBRUSH, HLM_GETSTYLE>(entries);

} // namespace

ListHandler FindListHandler(UINT message)
{
    switch (message) {
    case addString: return OnAddItem;
    case getItemHeight: return OnGetItemHeight;
    default: return FindHandler<HLM_GETBKBRUSH>(handlers, message);
    }
}
