// The record of the list control, and what its sources call of each other and grids and combos borrow of it.
#pragma once

#include "datalist/data_list.h"
#include "dialog/control_frame.h"

#include <widgets/widgets.h>

// A bit of wFlags that hosts don't ask for: shared items show by a format of the list's own.
constexpr WORD HLF_OWNFORMAT = 0x0008;

#pragma pack(push, 2)
struct HListCtl {
    HWND     hWnd;
    HWND     hParent;
    DWORD    wId;
    HFONT    hFont;
    WORD     wFlags;
    DWORD    dwStyle;     // HLS_ bits in the low word
    HBRUSH   hBkBrush;    // background; null: the parent is asked
    HBRUSH   hFocusBrush; // background while focused, under HLS_FOCUSBRUSH
    COLORREF crText;
    COLORREF crNegText;   // of values that the format reports as negative
    RECT     rcClient;    // as of the last layout
    LONG     cxColumn;
    LONG     cyRow;       // at least 1 after a layout
    LONG     nTop;        // first visible item
    LONG     cRows;       // rows a column, at least 1 after a layout
    LONG     cCols;       // visible columns, at least 1 after a layout
    LONG     nAnchor;     // of a range, or -1
    LONG     nCurrent;    // or -1. Read it through HLCurIndex only.
    DWORD    lCurCode;    // under HLS_CODECURRENT the code of the current item
    LONG     nScrollPos;  // rows, or with several columns columns
    LONG     cTabs;
    LONG*    pTabs;       // in pixels at 96 dpi; owned
    DataList items;
    HLList*  pSelected;   // sorted indexes; null with single selection
    void*    pDataLink;   // the caller's mirror of the current item's data, or null
    void*    pCodeLink;   // and of its code
    LONG     nHot;        // the item under the mouse, or -1
};
#pragma pack(pop)
static_assert(sizeof(void*) != 4 || (sizeof(HListCtl) == 134 && offsetof(HListCtl, items) == 98));

constexpr int itemTextSize = 128; // all buffers of item text: 127 characters

// What HLForEachItem runs on each item. Non-zero: the item is gone.
using HLStep = int (*)(HListCtl* ctl, int index, void* context);

// Items
bool HLApplyType(HListCtl* ctl, const char* text);
void HLFreeItems(HListCtl* ctl);
int  HLCount(const HListCtl* ctl);
int  HLInsertOne(HListCtl* ctl, int index, const void* data, const void* code);
int  HLInsertMany(HListCtl* ctl, int index, int n, const void* items, const void* codes);
int  HLInsertText(HListCtl* ctl, int index, const char* data, const char* code);
int  HLRemoveItem(HListCtl* ctl, int index);
int  HLRemoveMany(HListCtl* ctl, int which, int n, const void* list);
void HLAdjustIndexes(HListCtl* ctl, int delta, int at);
int  HLForEachItem(HListCtl* ctl, int which, int n, const void* list, HLStep step, void* context, bool keep);
int  HLFetchMany(HListCtl* ctl, int n, int kind, void* out, int which, const void* list);
void HLEmptyItems(HListCtl* ctl);
void HLDropItems(HListCtl* ctl); // items and format go, each unless it is somebody else's
void HLShareItems(HListCtl* ctl, const DataList* list);
int  HLSetFormat(HListCtl* ctl, const char* format); // 1, or 0 if the data has none or memory is short
ULONG_PTR HLItemData(HListCtl* ctl, int index); // for the structures of owner drawing

// Selection, current item and links
bool HLIsItemSelected(HListCtl* ctl, int index);
int  HLAddToSelection(HListCtl* ctl, int index);
int  HLRemoveFromSelection(HListCtl* ctl, int index);
int  HLSelectOne(HListCtl* ctl, int index, int mode);
int  HLSelectGuarded(HListCtl* ctl, int index, int mode); // 0 for an index out of range
int  HLSelectRange(HListCtl* ctl, int from, int to, int mode);
int  HLSelectMany(HListCtl* ctl, int mode, int which, int n, const void* list);
int  HLSelectFound(HListCtl* ctl, int index, int mode); // what HLSelectData and HLSelectCode do with what they find
int  HLCurIndex(HListCtl* ctl);
void HLMoveCurrent(HListCtl* ctl, int index); // the current item has another index, or is gone: -1
void HLStoreCurrent(HListCtl* ctl, int index);
void HLUpdateLinks(HListCtl* ctl);
void HLLinkData(HListCtl* ctl, void* link, bool select);
void HLLinkCode(HListCtl* ctl, void* link, bool select);

// Layout and scrolling
int  HLRowHeight(HListCtl* ctl);
int  HLMaxItemWidth(HListCtl* ctl);
void HLRecalc(HListCtl* ctl);
bool HLItemRect(HListCtl* ctl, int index, RECT* out); // false: out of view
void HLInvalidateItem(HListCtl* ctl, int index, bool erase);
// Where several items are selected, all of them lose their marks to the item under the mouse, and get them back.
void HLInvalidateSelected(HListCtl* ctl);
RECT HLRangeRect(HListCtl* ctl, int a, int b); // all items from a to b that are in view, and maybe some more
void HLInvalidateRange(HListCtl* ctl, int a, int b, bool erase);
int  HLItemFromPoint(HListCtl* ctl, int x, int y);
int  HLScroll(HListCtl* ctl, int delta);

// Input
void HLSetCurrent(HListCtl* ctl, int index, bool notify, bool keepAnchor);
void HLShowCurrent(HListCtl* ctl); // scrolls it into view
void HLClick(HListCtl* ctl, int index, bool shift, bool ctrl);
void HLDragTo(HListCtl* ctl, int target);
int  HLFindText(HListCtl* ctl, const char* text, int start);

// Painting
// Formats an item into a buffer of itemTextSize bytes. 0 for an empty text, else its width and height in pixels.
DWORD HLMeasureItem(HListCtl* ctl, HDC hdc, int index, char* buffer, int size);
void HLShowFocus(HListCtl* ctl, int index);
void HLHideFocus(HListCtl* ctl, int index);
void HLFillBackground(HListCtl* ctl, HDC hdc, const RECT* rect, HBRUSH brush);
void HLPaint(HListCtl* ctl);
// false: the text didn't fit. color 0: the list's own.
bool HLDrawItem(HListCtl* ctl, HDC hdc, const RECT* rect, int index, RECT* outRect, bool highlighted, COLORREF color);
// Paints an item outside the list. kind 1: value is data, 2: a code, else a pointer to an index. value null: no item.
int  HLDrawValue(HListCtl* ctl, HDC hdc, RECT* rect, HBRUSH brush, const void* value, int kind, COLORREF color);
