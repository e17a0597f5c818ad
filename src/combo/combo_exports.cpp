// The exported functions of the combo: each is that of the list, and the face follows.
#include "combo/combo_internal.h"
#include "foundation/startup.h"

namespace {

constexpr int noList = -1;

// A list that has no current item before and after has nothing to say to the edit: what was typed there stays.
template <typename Work>
int OnList(HWND hwnd, int without, Work work)
{
    HCombCtl* const ctl = HCFromWindow(hwnd);
    if (!ctl || !ctl->hDrop) {
        return without;
    }
    const bool hadRow = HCHasRow(ctl);
    const int  result = work(ctl->hDrop);
    if (IsWindow(hwnd) && (hadRow || !HasEdit(ctl) || HCHasRow(ctl))) {
        HCSync(ctl, false, false);
    }
    return result;
}

} // namespace

int WINAPI HCAddItemEx(HWND hwnd, const void* data, const void* code)
{
    return OnList(hwnd, noList, [=](HWND list) { return HLAddItemEx(list, data, code); });
}

int WINAPI HCAddItems(HWND hwnd, int n, const void* items)
{
    return HCAddItemsEx(hwnd, n, items, nullptr);
}

int WINAPI HCAddItemsEx(HWND hwnd, int n, const void* items, const void* codes)
{
    return OnList(hwnd, noList, [=](HWND list) { return HLAddItemsEx(list, n, items, codes); });
}

int WINAPI HCDeleteItems(HWND hwnd, int which, int n, const void* list)
{
    return OnList(hwnd, 0, [=](HWND drop) { return HLDeleteItems(drop, which, n, list); });
}

int WINAPI HCGetItems(HWND hwnd, int n, int kind, void* out, int which, const void* list)
{
    return OnList(hwnd, noList, [=](HWND drop) { return HLGetItems(drop, n, kind, out, which, list); });
}

int WINAPI HCInsertItemEx(HWND hwnd, int index, const void* data, const void* code)
{
    return OnList(hwnd, noList, [=](HWND list) { return HLInsertItemEx(list, index, data, code); });
}

int WINAPI HCInsertItems(HWND hwnd, int index, int n, const void* items)
{
    return HCInsertItemsEx(hwnd, index, n, items, nullptr);
}

int WINAPI HCInsertItemsEx(HWND hwnd, int index, int n, const void* items, const void* codes)
{
    return OnList(hwnd, noList, [=](HWND list) { return HLInsertItemsEx(list, index, n, items, codes); });
}

int WINAPI HCInsertStringEx(HWND hwnd, int index, const char* data, const char* code)
{
    return OnList(hwnd, noList, [=](HWND list) { return HLInsertStringEx(list, index, data, code); });
}

DataList* WINAPI HCGetList(HWND hwnd)
{
    const HCombCtl* const ctl = HCFromWindow(hwnd);
    return ctl && ctl->hDrop ? HLGetList(ctl->hDrop) : nullptr;
}

int WINAPI HCSetList(HWND hwnd, DataList* list)
{
    HCombCtl* const ctl = HCFromWindow(hwnd);
    if (!ctl || !ctl->hDrop || !list) {
        return 0;
    }
    const int result = HCShareList(ctl, list);
    if (IsWindow(hwnd)) {
        HCSync(ctl, false, false);
    }
    return result;
}
