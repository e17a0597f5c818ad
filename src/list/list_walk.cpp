// Walks over several items of a list control, by what a selector names.
#include "foundation/item_list.h"
#include "list/list_internal.h"

namespace {

// One walk under way.
struct Walk {
    HListCtl* ctl;
    HLStep    step;
    void*     context;
    bool      keep; // steps don't remove items
    int       calls;
    HWND      hwnd;

    bool HasItem(int index) const { return IsWindow(hwnd) && index < HLCount(ctl); }
    // Whether the item is gone.
    bool Visit(int index)
    {
        ++calls;
        return step(ctl, index, context) != 0 && !keep;
    }
};

void VisitAll(Walk* walk)
{
    for (int i = 0; walk->HasItem(i);) {
        i += walk->Visit(i) ? 0 : 1;
    }
}

void VisitBySelection(Walk* walk, bool selected)
{
    // A current item that is held by its code is searched at each question. Only deletions move it.
    const int current = HLCurIndex(walk->ctl);
    for (int i = 0; walk->HasItem(i);) {
        const bool isSelected = walk->keep ? IsSelectedBeside(walk->ctl, i, current) : HLIsItemSelected(walk->ctl, i);
        const bool visited = isSelected == selected;
        i += visited && walk->Visit(i) ? 0 : 1;
    }
}

// Settled: earlier removals only decide whether an index is visited; it isn't lowered by them.
void VisitByIndex(Walk* walk, int n, const void* list)
{
    int removed = 0;
    for (int i = 0; i < n && IsWindow(walk->hwnd); ++i) {
        const int index = static_cast<const int*>(list)[i];
        if (index >= removed && walk->Visit(index)) {
            ++removed;
        }
    }
}

// The first item with each of the values given.
void VisitByValue(Walk* walk, int n, const void* list, bool codes)
{
    const HLList* const values = codes ? walk->ctl->items.pCodes : walk->ctl->items.pValues;
    if (!values) {
        return;
    }
    const int   size = values->cbItem;
    const char* cursor = static_cast<const char*>(list);
    for (int i = 0; i < n && IsWindow(walk->hwnd); ++i) {
        const void* const value = size < 0 ? *reinterpret_cast<const void* const*>(cursor) : cursor;
        DataList          items = walk->ctl->items;
        const int         index = codes ? HDLFindCode(&items, 0, value) : HDLFindData(&items, 0, value);
        if (index != -1) {
            walk->Visit(index);
        }
        cursor += size < 0 ? sizeof(void*) : static_cast<size_t>(size);
    }
}

// Where HLFetchMany stores what it fetches.
struct Fetch {
    int   kind;
    char* out;
};

constexpr int fetchData = 1;
constexpr int fetchCode = 2;
constexpr int fetchIndex = 4;

// A value goes to the running pointer, which advances by its size; a text to the buffer that the pointer points to.
void FetchValue(HListCtl* ctl, int index, Fetch* fetch, bool code)
{
    DataList            items = ctl->items;
    const HLList* const values = code ? items.pCodes : items.pValues;
    if (!values) {
        return;
    }
    const bool  isText = values->cbItem < 0;
    void* const out = isText ? *reinterpret_cast<void**>(fetch->out) : fetch->out;
    if (code) {
        HDLGetCode(&items, index, out);
    } else {
        HDLGetData(&items, index, out);
    }
    fetch->out += isText ? sizeof(void*) : static_cast<size_t>(values->cbItem);
}

int FetchStep(HListCtl* ctl, int index, void* context)
{
    Fetch* const fetch = static_cast<Fetch*>(context);
    if (!fetch->out) {
        return 0; // the items are counted only
    }
    if (fetch->kind == fetchIndex) {
        *reinterpret_cast<int*>(fetch->out) = index;
        fetch->out += sizeof(int);
    } else if (fetch->kind == fetchData || fetch->kind == fetchCode) {
        FetchValue(ctl, index, fetch, fetch->kind == fetchCode);
    }
    return 0;
}

} // namespace

int HLForEachItem(HListCtl* ctl, int which, int n, const void* list, HLStep step, void* context, bool keep)
{
    Walk       walk = { ctl, step, context, keep, 0, ctl->hWnd };
    const bool hasList = list != nullptr; // Bounded: a selector that reads a list names nothing without one.
    switch (which) {
    case HLI_ALL: VisitAll(&walk); break;
    case HLI_SELECTED: VisitBySelection(&walk, true); break;
    case HLI_UNSELECTED: VisitBySelection(&walk, false); break;
    case HLI_BYDATA:
    case HLI_BYCODE:
        if (hasList) {
            VisitByValue(&walk, n, list, which == HLI_BYCODE);
        }
        break;
    case HLI_BYINDEX:
        if (hasList) {
            VisitByIndex(&walk, n, list);
        }
        break;
    default: break;
    }
    return walk.calls;
}

int HLFetchMany(HListCtl* ctl, int n, int kind, void* out, int which, const void* list)
{
    if (!list) {
        return 0;
    }
    Fetch fetch = { kind, static_cast<char*>(out) };
    return HLForEachItem(ctl, which, n, list, FetchStep, &fetch, true);
}
