// Which items of a list control are selected, the current item, and the caller's buffers that mirror it.
#include "foundation/item_list.h"
#include "foundation/memory.h"
#include "list/list_internal.h"

namespace {

// The mouse range under way decides about the items between the anchor and the current one.
bool IsInDrag(const HListCtl* ctl, int index, int current)
{
    if (!HasStyle(ctl, HLS_EXTSEL) || !HasFlag(ctl, HLF_TRACKING)) {
        return false;
    }
    const int anchor = ctl->nAnchor;
    return index >= std::min(anchor, current) && index <= std::max(anchor, current);
}

// Bounded: shared items may have codes that don't fit into lCurCode, or none; the current item is held by its index then.
bool IsHeldByCode(const HListCtl* ctl)
{
    const HLList* const codes = HasStyle(ctl, HLS_CODECURRENT) && HasCodes(ctl) ? ctl->items.pCodes : nullptr;
    return codes && codes->cbItem > 0 && codes->cbItem <= static_cast<int>(sizeof(HListCtl::lCurCode));
}

int EntryOf(void* node)
{
    return LoadAs<LONG>(HNodePayload(node));
}

int Clear(HListCtl* ctl, int index, int current)
{
    const bool focusedField = HasStyle(ctl, HLS_FIELD) && GetFocus() == ctl->hWnd;
    const bool was = IsSelectedBeside(ctl, index, current);
    HLRemoveFromSelection(ctl, index);
    if (!was || focusedField) {
        return 0;
    }
    HLInvalidateItem(ctl, index, true);
    return 1;
}

int Set(HListCtl* ctl, int index, int current)
{
    const bool was = IsSelectedBeside(ctl, index, current);
    HLAddToSelection(ctl, index);
    if (was) {
        return 0;
    }
    HLInvalidateItem(ctl, index, false);
    return 1;
}

int Toggle(HListCtl* ctl, int index)
{
    const bool added = HLAddToSelection(ctl, index) != 0;
    const bool erase = added || HLRemoveFromSelection(ctl, index) != 0;
    HLInvalidateItem(ctl, index, erase);
    return 1;
}

int SelectBeside(HListCtl* ctl, int index, int mode, int current)
{
    switch (mode) {
    case HLSEL_CLEAR: return Clear(ctl, index, current);
    case HLSEL_SET: return Set(ctl, index, current);
    case HLSEL_TOGGLE: return Toggle(ctl, index);
    default: return 0;
    }
}

// The current item where it takes part in what is selected: with single selection and in a mouse range. A search for it
// is spared otherwise.
int CurrentForSelection(HListCtl* ctl)
{
    return HasFlag(ctl, HLF_SINGLESEL | HLF_TRACKING) ? HLCurIndex(ctl) : static_cast<int>(ctl->nCurrent);
}

// What a walk that selects takes along. It moves no current item.
struct SelectWalk {
    int mode;
    int current;
};

// An index of no item counts as visited, and isn't selected.
int SelectStep(HListCtl* ctl, int index, void* context)
{
    const SelectWalk* const walk = static_cast<const SelectWalk*>(context);
    if (index < 0 || index >= HLCount(ctl)) {
        return 0;
    }
    return SelectBeside(ctl, index, walk->mode, walk->current);
}

} // namespace

int SelectedAt(const HListCtl* ctl, int place)
{
    return EntryOf(HLListGetItem(ctl->pSelected, place));
}

void SetSelectedAt(const HListCtl* ctl, int place, int index)
{
    StoreAs<LONG>(HNodePayload(HLListGetItem(ctl->pSelected, place)), index);
}

// The cursor stays before the place, so that the change that may follow finds it there.
int PlaceInSelection(const HListCtl* ctl, int index)
{
    HLList* const selected = ctl->pSelected;
    const int     count = HLListCount(selected);
    if (count == 0 || EntryOf(selected->pTail) < index) {
        return count;
    }
    const bool goesOn = selected->iCursor < count && EntryOf(selected->pCursor) < index;
    int        place = goesOn ? selected->iCursor + 1 : 0;
    void*      before = goesOn ? selected->pCursor : nullptr;
    void*      node = goesOn ? HNodeLink(before) : selected->pHead;
    while (EntryOf(node) < index) { // the last one isn't
        before = node;
        node = HNodeLink(node);
        ++place;
    }
    if (before) {
        selected->pCursor = before;
        selected->iCursor = place - 1;
    }
    return place;
}

bool IsInSelection(const HListCtl* ctl, int index)
{
    const int place = PlaceInSelection(ctl, index);
    if (place >= HLListCount(ctl->pSelected)) {
        return false;
    }
    HLList* const selected = ctl->pSelected;
    return EntryOf(place > 0 ? HNodeLink(selected->pCursor) : selected->pHead) == index;
}

bool IsSelectedBeside(HListCtl* ctl, int index, int current)
{
    if (HasFlag(ctl, HLF_SINGLESEL)) {
        return index == current;
    }
    if (IsInDrag(ctl, index, current)) {
        return HasFlag(ctl, HLF_DRAGSET);
    }
    return index >= 0 && index < HLCount(ctl) && IsInSelection(ctl, index);
}

bool HLIsItemSelected(HListCtl* ctl, int index)
{
    return IsSelectedBeside(ctl, index, CurrentForSelection(ctl));
}

int HLAddToSelection(HListCtl* ctl, int index)
{
    if (HasFlag(ctl, HLF_SINGLESEL)) {
        return index != HLCurIndex(ctl);
    }
    if (!ctl->pSelected || IsInSelection(ctl, index)) {
        return 0;
    }
    const LONG entry = index;
    const int  before = HLListCount(ctl->pSelected);
    const int  place = PlaceInSelection(ctl, index);
    if (place == before) {
        HLListAppend(ctl->pSelected, &entry);
    } else {
        const KeptCursor cursor(ctl->pSelected, place);
        HLListInsert(ctl->pSelected, place, &entry);
    }
    return HLListCount(ctl->pSelected) - before;
}

int HLRemoveFromSelection(HListCtl* ctl, int index)
{
    if (HasFlag(ctl, HLF_SINGLESEL)) {
        return index == HLCurIndex(ctl);
    }
    if (!IsInSelection(ctl, index)) {
        return 0;
    }
    const int        place = PlaceInSelection(ctl, index);
    const KeptCursor cursor(ctl->pSelected, place);
    return HLListRemove(ctl->pSelected, place);
}

int HLSelectOne(HListCtl* ctl, int index, int mode)
{
    return SelectBeside(ctl, index, mode, CurrentForSelection(ctl));
}

int HLSelectGuarded(HListCtl* ctl, int index, int mode)
{
    return index >= 0 && index < HLCount(ctl) ? HLSelectOne(ctl, index, mode) : 0;
}

int HLSelectRange(HListCtl* ctl, int from, int to, int mode)
{
    const int low = ClampItem(ctl, std::min(from, to));
    const int high = ClampItem(ctl, std::max(from, to));
    const int current = CurrentForSelection(ctl);
    int       changed = 0;
    SetFlag(ctl, HLF_NOREDRAW, true);
    // An empty list has nothing to select.
    for (int index = low; index <= std::min(high, LastItem(ctl)); ++index) {
        changed += SelectBeside(ctl, index, mode, current);
    }
    SetFlag(ctl, HLF_NOREDRAW, false);
    return changed;
}

int HLSelectMany(HListCtl* ctl, int mode, int which, int n, const void* list)
{
    const int  count = HasFlag(ctl, HLF_SINGLESEL) ? std::min(n, 1) : n;
    SelectWalk walk = { mode, CurrentForSelection(ctl) };
    return HLForEachItem(ctl, which, count, list, SelectStep, &walk, true);
}

// Settled: outside single selection an item that wasn't found is selected as item -1.
int HLSelectFound(HListCtl* ctl, int index, int mode)
{
    if (!HasFlag(ctl, HLF_SINGLESEL)) {
        return HLSelectOne(ctl, index, mode);
    }
    HLSetCurrent(ctl, index, false, false);
    return index != -1;
}

int HLCurIndex(HListCtl* ctl)
{
    if (ctl->nCurrent >= 0 && IsHeldByCode(ctl)) {
        const DWORD code = ctl->lCurCode;
        DataList    items = ctl->items;
        HLMoveCurrent(ctl, HDLFindCode(&items, 0, &code));
    }
    return ctl->nCurrent;
}

void HLMoveCurrent(HListCtl* ctl, int index)
{
    if (index == -1 && ctl->nCurrent >= 0 && HasFlag(ctl, HLF_SINGLESEL)) {
        SetFlag(ctl, CF_NULL, true);
    }
    ctl->nCurrent = index;
}

void HLStoreCurrent(HListCtl* ctl, int index)
{
    ctl->nCurrent = index;
    if (index >= 0 && IsHeldByCode(ctl)) {
        DWORD    code = 0;
        DataList items = ctl->items;
        HDLGetCode(&items, index, &code);
        ctl->lCurCode = code;
    }
}

// Without a current item the buffers keep what they have.
void HLUpdateLinks(HListCtl* ctl)
{
    const int current = HLCurIndex(ctl);
    if (current < 0) {
        return;
    }
    DataList items = ctl->items;
    if (ctl->pDataLink) {
        HDLGetData(&items, current, ctl->pDataLink);
    }
    if (ctl->pCodeLink && HasCodes(ctl)) {
        HDLGetCode(&items, current, ctl->pCodeLink);
    }
}

void HLLinkData(HListCtl* ctl, void* link, bool select)
{
    ctl->pDataLink = link;
    if (select) {
        DataList items = ctl->items;
        const HWND hwnd = ctl->hWnd;
        HLSelectFound(ctl, HDLFindData(&items, 0, link), HLSEL_SET);
        if (!IsWindow(hwnd)) {
            return;
        }
    }
    HLUpdateLinks(ctl);
}

void HLLinkCode(HListCtl* ctl, void* link, bool select)
{
    ctl->pCodeLink = link;
    if (select) {
        DataList items = ctl->items;
        const HWND hwnd = ctl->hWnd;
        HLSelectFound(ctl, HDLFindCode(&items, 0, link), HLSEL_SET);
        if (!IsWindow(hwnd)) {
            return;
        }
    }
    HLUpdateLinks(ctl);
}
