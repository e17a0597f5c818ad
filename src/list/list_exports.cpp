// The exported functions of the list: each finds the record of the window and leaves the work to the function behind it.
#include "foundation/startup.h"
#include "list/list_internal.h"

namespace {

// Of a list, or of any window that answers WWM_GETSTATE with a list's record.
HListCtl* ListOf(HWND hwnd)
{
    return static_cast<HListCtl*>(ControlRecord(hwnd));
}

} // namespace

int WINAPI HLInsertItemEx(HWND hwnd, int index, const void* data, const void* code)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl ? HLInsertOne(ctl, index, data, code) : -1;
}

int WINAPI HLInsertItem(HWND hwnd, int index, const void* data)
{
    return HLInsertItemEx(hwnd, index, data, nullptr);
}

int WINAPI HLAddItemEx(HWND hwnd, const void* data, const void* code)
{
    return HLInsertItemEx(hwnd, -1, data, code);
}

int WINAPI HLAddItem(HWND hwnd, const void* data)
{
    return HLInsertItemEx(hwnd, -1, data, nullptr);
}

int WINAPI HLInsertItemsEx(HWND hwnd, int index, int n, const void* items, const void* codes)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl ? HLInsertMany(ctl, index, n, items, codes) : -1;
}

int WINAPI HLInsertItems(HWND hwnd, int index, int n, const void* items)
{
    return HLInsertItemsEx(hwnd, index, n, items, nullptr);
}

int WINAPI HLAddItemsEx(HWND hwnd, int n, const void* items, const void* codes)
{
    return HLInsertItemsEx(hwnd, -1, n, items, codes);
}

int WINAPI HLAddItems(HWND hwnd, int n, const void* items)
{
    return HLInsertItemsEx(hwnd, -1, n, items, nullptr);
}

int WINAPI HLInsertStringEx(HWND hwnd, int index, const char* data, const char* code)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl ? HLInsertText(ctl, index, data, code) : -1;
}

int WINAPI HLDeleteItem(HWND hwnd, int index)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl || index < 0 || index >= HLCount(ctl)) {
        return 0;
    }
    return HLRemoveMany(ctl, HLI_BYINDEX, 1, &index) > 0;
}

int WINAPI HLDeleteItems(HWND hwnd, int which, int n, const void* list)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl ? HLRemoveMany(ctl, which, n, list) : 0;
}

int WINAPI HLEmptyList(HWND hwnd)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl) {
        return 0;
    }
    HLEmptyItems(ctl);
    return 1;
}

int WINAPI HLFindData(HWND hwnd, int start, const void* data)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl) {
        return 0;
    }
    DataList items = ctl->items;
    return HDLFindData(&items, start, data);
}

int WINAPI HLFindCode(HWND hwnd, int start, const void* code)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl) {
        return 0;
    }
    DataList items = ctl->items;
    return HDLFindCode(&items, start, code);
}

int WINAPI HLGetData(HWND hwnd, int index, void* out)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl) {
        return 0;
    }
    DataList items = ctl->items;
    return HDLGetData(&items, index, out);
}

int WINAPI HLGetCode(HWND hwnd, int index, void* out)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl) {
        return 0;
    }
    DataList items = ctl->items;
    return HDLGetCode(&items, index, out);
}

int WINAPI HLSetCode(HWND hwnd, int index, const void* code)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl) {
        return 0;
    }
    DataList items = ctl->items;
    return HDLSetCode(&items, index, code);
}

int WINAPI HLGetItems(HWND hwnd, int n, int kind, void* out, int which, const void* list)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl ? HLFetchMany(ctl, n, kind, out, which, list) : 0;
}

int WINAPI HLSelectItem(HWND hwnd, int index, int mode)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl ? HLSelectGuarded(ctl, index, mode) : 0;
}

int WINAPI HLSelectItems(HWND hwnd, int mode, int which, int n, const void* list)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl ? HLSelectMany(ctl, mode, which, n, list) : 0;
}

int WINAPI HLSelectData(HWND hwnd, const void* data, int mode)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl ? HLSelectFound(ctl, HLFindData(hwnd, 0, data), mode) : 0;
}

int WINAPI HLSelectCode(HWND hwnd, const void* code, int mode)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl ? HLSelectFound(ctl, HLFindCode(hwnd, 0, code), mode) : 0;
}

int WINAPI HLIsSelected(HWND hwnd, int index)
{
    HListCtl* const ctl = ListOf(hwnd);
    return ctl && HLIsItemSelected(ctl, index);
}

int WINAPI HLSetDataLink(HWND hwnd, void* link, int fSelect)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl) {
        return 0;
    }
    HLLinkData(ctl, link, fSelect != 0);
    return 1;
}

int WINAPI HLSetCodeLink(HWND hwnd, void* link, int fSelect)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl) {
        return 0;
    }
    HLLinkCode(ctl, link, fSelect != 0);
    return 1;
}

DataList* WINAPI HLGetList(HWND hwnd)
{
    HListCtl* const ctl = ListOf(hwnd);
    // The record is packed, so the address goes by bytes.
    return ctl ? reinterpret_cast<DataList*>(reinterpret_cast<char*>(ctl) + offsetof(HListCtl, items)) : nullptr;
}

int WINAPI HLSetList(HWND hwnd, DataList* list)
{
    HListCtl* const ctl = ListOf(hwnd);
    if (!ctl || !list) {
        return 0;
    }
    HLShareItems(ctl, list);
    return 1;
}
