// The items of a list control: their types, insertion and deletion, and what keeps all stored indexes right.
#include "foundation/item_list.h"
#include "foundation/memory.h"
#include "list/list_internal.h"
#include "typed/masks.h"

namespace {

constexpr int sortByData = 1;
constexpr int sortByCode = 2;
constexpr int parseBufferSize = 64; // holds a value of any type of a fixed size

int CALLBACK CompareIndexes(const void* a, const void* b)
{
    const LONG first = LoadAs<LONG>(a);
    const LONG second = LoadAs<LONG>(b);
    return (first > second) - (first < second);
}

int SortModeOf(const HListCtl* ctl)
{
    if (HasStyle(ctl, HLS_SORTDATA)) {
        return sortByData;
    }
    return HasStyle(ctl, HLS_SORTCODE) ? sortByCode : 0;
}

// Colours that the text names go to the record, and out of the text.
void TakeColors(HListCtl* ctl, char* text)
{
    COLORREF color = ctl->crText;
    COLORREF negative = ctl->crNegText;
    ParseColorPrefix(&color, &negative, text);
    ctl->crText = color;
    ctl->crNegText = negative;
}

// Reads the type text, which is changed, into the record.
bool ReadTypeText(HListCtl* ctl, char* text)
{
    char        dataClass = 's';
    char        dataType = 's';
    char        codeClass = 0;
    char        codeType = 0;
    char* const format = GetDataTypes(text, &dataClass, &dataType, &codeClass, &codeType);
    if (codeClass != 'n' && codeType != 'l') {
        ctl->dwStyle &= ~static_cast<DWORD>(HLS_CODECURRENT);
    }
    TakeColors(ctl, format);
    DataList   items = {};
    const bool made = HDLInit(&items, SortModeOf(ctl), dataClass, dataType, codeClass, codeType, format) != 0;
    ctl->items = items;
    return made;
}

// Items to insert, as the caller of HLInsertItemsEx lays them out.
struct GivenItems {
    const void* data;
    const void* codes; // or null
    int         dataSize;
    int         codeSize;
};

// The i-th value: packed at its size, or for texts from an array of pointers.
const void* ValueAt(const void* values, int size, int i)
{
    if (!values || size == 0) {
        return nullptr;
    }
    if (size < 0) {
        return static_cast<const void* const*>(values)[i];
    }
    return static_cast<const char*>(values) + static_cast<size_t>(i) * static_cast<size_t>(size);
}

void GiveItem(const void* context, int i, const void** data, const void** code)
{
    const GivenItems* const given = static_cast<const GivenItems*>(context);
    *data = ValueAt(given->data, given->dataSize, i);
    *code = ValueAt(given->codes, given->codeSize, i);
}

GivenItems ItemsOf(const HListCtl* ctl, const void* items, const void* codes)
{
    const DataList list = ctl->items;
    return { items, list.pCodes ? codes : nullptr, list.pValues->cbItem, list.pCodes ? list.pCodes->cbItem : 0 };
}

// Items that an index names, found again by their nodes after others have come between them.
class FollowedItems {
public:
    explicit FollowedItems(HListCtl* ctl)
        : ctl_(ctl), list_(ctl->items.pValues), countBefore_(HLListCount(list_)), count_(HLListCount(ctl->pSelected)),
          nodes_(count_ ? static_cast<void**>(HBlockAlloc(static_cast<size_t>(count_) * sizeof(void*))) : nullptr),
          current_(NodeOf(ctl->nCurrent)), anchor_(NodeOf(ctl->nAnchor))
    {
        for (int i = 0; nodes_ && i < count_; ++i) {
            nodes_[i] = NodeOf(SelectedAt(ctl, i));
        }
    }
    ~FollowedItems() { HBlockFree(nodes_); }
    FollowedItems(const FollowedItems&) = delete;
    FollowedItems& operator=(const FollowedItems&) = delete;

    bool HasRoom() const { return nodes_ || count_ == 0; }
    // Gives every index the place that its item has now.
    void Renumber()
    {
        int place = PassStrays(0);
        for (int i = 0; i < HLListCount(list_); ++i) {
            const void* const node = HLListGetItem(list_, i);
            if (node == current_) {
                ctl_->nCurrent = i;
            }
            if (node == anchor_) {
                ctl_->nAnchor = i;
            }
            if (place < count_ && nodes_[place] == node) {
                SetSelectedAt(ctl_, place, i);
                place = PassStrays(place + 1);
            }
        }
    }

private:
    // Entries that name no item: -1 stays, and one behind the end moves with the end. Gives the next place.
    int PassStrays(int place)
    {
        for (; place < count_ && !nodes_[place]; ++place) {
            const int index = SelectedAt(ctl_, place);
            SetSelectedAt(ctl_, place, index < 0 ? index : index + HLListCount(list_) - countBefore_);
        }
        return place;
    }
    void* NodeOf(int index) const
    {
        return index >= 0 && index < HLListCount(list_) ? HLListGetItem(list_, index) : nullptr;
    }

    HListCtl* ctl_;
    HLList*   list_;
    int       countBefore_;
    int       count_; // of selected items
    void**    nodes_;
    void*     current_;
    void*     anchor_;
};

// Inserts one item without a new layout. -1 if nothing was inserted.
int InsertQuietly(HListCtl* ctl, int index, const void* data, const void* code)
{
    const int before = HLCount(ctl);
    DataList  items = ctl->items;
    const int at = HDLInsertItem(&items, index, data, code);
    if (HLCount(ctl) > before) {
        HLAdjustIndexes(ctl, 1, at);
    }
    return at;
}

// An index of no item, as a fresh record and one with items of somebody else's may have.
bool HasStrayIndex(const HListCtl* ctl)
{
    const int count = HLCount(ctl);
    return ctl->nCurrent >= count || ctl->nAnchor >= count;
}

// The same for many, at the cost of one sort and one walk.
void InsertAll(HListCtl* ctl, int index, int n, const GivenItems& given)
{
    int first = 0;
    // Items go in one by one while an index names none: an insertion limits it.
    while (first < n && HasStrayIndex(ctl)) {
        InsertQuietly(ctl, index < 0 ? index : index + first, ValueAt(given.data, given.dataSize, first),
                      ValueAt(given.codes, given.codeSize, first));
        ++first;
    }
    FollowedItems followed(ctl);
    if (first >= n || !followed.HasRoom()) {
        return;
    }
    GivenItems rest = given;
    rest.data = given.dataSize < 0 ? static_cast<const void*>(static_cast<const void* const*>(given.data) + first)
                                   : ValueAt(given.data, given.dataSize, first);
    rest.codes = given.codeSize < 0 && given.codes
                     ? static_cast<const void*>(static_cast<const void* const*>(given.codes) + first)
                     : ValueAt(given.codes, given.codeSize, first);
    DataList items = ctl->items;
    HDLInsertItems(&items, index < 0 ? index : index + first, n - first, GiveItem, &rest);
    followed.Renumber();
}

// The owner of drawn items hears of each one that goes.
void TellOwner(HListCtl* ctl, int index)
{
    constexpr UINT   listControl = 2; // ODT_LISTBOX
    DELETEITEMSTRUCT gone = {};
    gone.CtlType = listControl;
    gone.CtlID = ctl->wId;
    gone.itemID = static_cast<UINT>(index);
    gone.hwndItem = ctl->hWnd;
    gone.itemData = HLItemData(ctl, index);
    SendMessageA(ctl->hParent, WM_DELETEITEM, ctl->wId, reinterpret_cast<LPARAM>(&gone));
}

LONG Moved(LONG index, int delta, int at, int last)
{
    const LONG moved = index >= at ? index + delta : index;
    return std::clamp<LONG>(moved, -1, std::max(last, -1));
}

// A current item that is held by its code is found by it again.
void MoveMarks(HListCtl* ctl, int delta, int at)
{
    const int last = LastItem(ctl);
    HLMoveCurrent(ctl, Moved(ctl->nCurrent, delta, at, last));
    ctl->nAnchor = Moved(ctl->nAnchor, delta, at, last);
}

int RemoveValue(HListCtl* ctl, int index)
{
    if (index == 0 && ctl->nCurrent == 0) {
        HLCurIndex(ctl); // an item that is held by its code may have moved, and isn't lost with the first one
    }
    DataList         items = ctl->items;
    const KeptCursor values(items.pValues, index);
    const KeptCursor codes(items.pCodes, index);
    return HDLDeleteItem(&items, index);
}

// A step that counts what goes: an index out of range is visited too.
int RemoveStep(HListCtl* ctl, int index, void* context)
{
    const int removed = HLRemoveItem(ctl, index);
    *static_cast<int*>(context) += removed != 0;
    return removed;
}

// A walk from the first item on that deletes. What each deletion takes off the selected indexes behind it is held back
// until the walk gets there, so that deleting all of many selected items takes one pass.
class Sweep {
public:
    explicit Sweep(HListCtl* ctl) : ctl_(ctl), selected_(ctl->pSelected), node_(selected_ ? selected_->pHead : nullptr)
    {
        HLCurIndex(ctl); // from here on deletions keep it right, apart from its own
    }
    // Indexes must not descend.
    bool IsSelected(int index)
    {
        PassBelow(index);
        if (HasFlag(ctl_, HLF_SINGLESEL)) {
            return index == ctl_->nCurrent;
        }
        return HasNext() && Next() == index;
    }
    void Remove(int index)
    {
        PassBelow(index);
        const bool wasCurrent = index == ctl_->nCurrent;
        RemoveValue(ctl_, index);
        MoveMarks(ctl_, -1, index);
        if (wasCurrent) {
            HLCurIndex(ctl_);
        }
        if (HasNext()) {
            void* const      following = HNodeLink(node_);
            const KeptCursor cursor(selected_, place_);
            HLListRemove(selected_, place_);
            node_ = following;
        }
        ++removed_;
    }
    // Ends the walk; how many items went.
    int Finish()
    {
        while (HasNext()) {
            Pass();
        }
        return removed_;
    }

private:
    bool HasNext() const { return place_ < HLListCount(selected_); }
    int  Next() const { return LoadAs<LONG>(HNodePayload(node_)) - removed_; }
    void Pass()
    {
        StoreAs<LONG>(HNodePayload(node_), Next());
        node_ = HNodeLink(node_);
        ++place_;
    }
    void PassBelow(int index)
    {
        while (HasNext() && Next() < index) {
            Pass();
        }
    }

    HListCtl* ctl_;
    HLList*   selected_;
    void*     node_;
    int       place_ = 0; // of node_, the first one that isn't passed
    int       removed_ = 0;
};

char* OldFormat(const HLList* formats)
{
    return LoadAs<char*>(HNodePayload(formats->pHead));
}

// Whether a format that goes is kept for those who borrow the items.
bool KeepFormat(HListCtl* ctl, char* format)
{
    HLList*& formats = OldFormats(ctl);
    if (!formats) {
        formats = HLListCreate(sizeof format, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    }
    const int before = HLListCount(formats);
    HLListAppend(formats, &format);
    return HLListCount(formats) > before;
}

void DropOldFormats(HListCtl* ctl)
{
    HLList*& formats = OldFormats(ctl);
    while (HLListCount(formats) > 0) {
        HBlockFree(OldFormat(formats));
        HLListRemove(formats, 0);
    }
    HLListDestroy(formats);
    formats = nullptr;
}

// An owner that draws hears of each item while the list is as it was then.
bool CanSweep(const HListCtl* ctl, int which)
{
    return (which == HLI_ALL || which == HLI_SELECTED || which == HLI_UNSELECTED) && !HasStyle(ctl, HLS_OWNERDRAW) &&
           !HasFlag(ctl, HLF_TRACKING);
}

int SweepItems(HListCtl* ctl, int which)
{
    Sweep sweep(ctl);
    for (int i = 0; i < HLCount(ctl);) {
        if (which == HLI_ALL || sweep.IsSelected(i) == (which == HLI_SELECTED)) {
            sweep.Remove(i);
        } else {
            ++i;
        }
    }
    return sweep.Finish();
}

} // namespace

void HLDropItems(HListCtl* ctl)
{
    DataList items = ctl->items;
    if (!HasFlag(ctl, HLF_SHAREDLIST)) {
        HDLDestroy(&items);
        DropOldFormats(ctl);
    } else if (HasFlag(ctl, HLF_OWNFORMAT)) {
        HBlockFree(items.pszFormat);
    }
    SetFlag(ctl, HLF_OWNFORMAT, false);
    ctl->items = {};
}

bool HLApplyType(HListCtl* ctl, const char* text)
{
    char* const copy = hstrdup(text ? text : "");
    if (!copy) {
        return false;
    }
    HLFreeItems(ctl);
    SetFlag(ctl, HLF_SHAREDLIST, false); // the items to come are the list's own
    ctl->nTop = 0;
    ctl->nScrollPos = 0;
    if (!HasFlag(ctl, HLF_SINGLESEL)) {
        ctl->pSelected = HLListCreate(sizeof(LONG), nullptr, nullptr, CompareIndexes, nullptr, nullptr, 1);
    }
    const bool made = (HasFlag(ctl, HLF_SINGLESEL) || ctl->pSelected) && ReadTypeText(ctl, copy);
    HBlockFree(copy);
    return made;
}

void HLFreeItems(HListCtl* ctl)
{
    HLDropItems(ctl);
    HLListDestroy(ctl->pSelected);
    ctl->pSelected = nullptr;
    HBlockFree(ctl->pTabs);
    ctl->pTabs = nullptr;
    ctl->cTabs = 0;
}

int HLCount(const HListCtl* ctl)
{
    return HLListCount(ctl->items.pValues);
}

int HLInsertOne(HListCtl* ctl, int index, const void* data, const void* code)
{
    if (!data) {
        return -1;
    }
    const int at = InsertQuietly(ctl, index, data, code);
    if (!HasFlag(ctl, HLF_NOREDRAW)) {
        HLRecalc(ctl);
    }
    return at;
}

int HLInsertMany(HListCtl* ctl, int index, int n, const void* items, const void* codes)
{
    if (!items) {
        return -1;
    }
    const int before = HLCount(ctl);
    SetFlag(ctl, HLF_NOREDRAW, true);
    if (n > 0 && ctl->items.pValues) {
        InsertAll(ctl, index < before ? index : -1, n, ItemsOf(ctl, items, codes));
    }
    SetFlag(ctl, HLF_NOREDRAW, false);
    const int added = HLCount(ctl) - before;
    HLRecalc(ctl);
    return added;
}

int HLInsertText(HListCtl* ctl, int index, const char* data, const char* code)
{
    if (!data) {
        return -1;
    }
    const DataList items = ctl->items;
    alignas(8) char value[parseBufferSize] = {};
    alignas(8) char codeValue[parseBufferSize] = {};
    const void*     newData = data;
    const bool      isCodeText = IsText(items.cClass2, items.cType2);
    const void*     newCode = isCodeText ? code : nullptr;
    if (!IsText(items.cClass, items.cType)) {
        ParseData(value, items.cClass, items.cType, items.pszFormat, data, 0);
        newData = value;
    }
    if (!isCodeText && code && HasCodes(ctl)) {
        ParseData(codeValue, items.cClass2, items.cType2, nullptr, code, 0);
        newCode = codeValue;
    }
    return HLInsertOne(ctl, index, newData, newCode);
}

int HLRemoveItem(HListCtl* ctl, int index)
{
    const HWND hwnd = ctl->hWnd;
    if (HasStyle(ctl, HLS_OWNERDRAW)) {
        TellOwner(ctl, index);
    }
    if (!IsWindow(hwnd)) {
        return 0;
    }
    const int removed = RemoveValue(ctl, index);
    HLAdjustIndexes(ctl, -1, index);
    return removed;
}

int HLRemoveMany(HListCtl* ctl, int which, int n, const void* list)
{
    const bool held = HasFlag(ctl, HLF_NOREDRAW);
    const HWND hwnd = ctl->hWnd;
    SetFlag(ctl, HLF_NOREDRAW, true);
    int removed = 0;
    if (CanSweep(ctl, which)) {
        removed = SweepItems(ctl, which);
    } else {
        HLForEachItem(ctl, which, n, list, RemoveStep, &removed, false);
    }
    if (removed > 0 && IsWindow(hwnd)) {
        HLRecalc(ctl);
    }
    if (IsWindow(hwnd)) {
        SetFlag(ctl, HLF_NOREDRAW, held);
    }
    return removed;
}

// Settled: a deletion drops the first selected item at or behind it, whichever that is.
void HLAdjustIndexes(HListCtl* ctl, int delta, int at)
{
    MoveMarks(ctl, delta, at);
    int place = ctl->pSelected ? PlaceInSelection(ctl, at) : 0;
    if (delta < 0 && place < HLListCount(ctl->pSelected)) {
        HLListRemove(ctl->pSelected, place);
    }
    for (; place < HLListCount(ctl->pSelected); ++place) {
        SetSelectedAt(ctl, place, SelectedAt(ctl, place) + delta);
    }
}

void HLEmptyItems(HListCtl* ctl)
{
    DataList items = ctl->items;
    HDLEmpty(&items);
    HLListEmpty(ctl->pSelected);
}

// A list that shows somebody else's items has a format of its own from the first one on that it is given: the other
// holder goes on using his. In the same way those who have borrowed a list's own items go on with the format of then.
int HLSetFormat(HListCtl* ctl, const char* format)
{
    const bool own = HasFlag(ctl, HLF_OWNFORMAT);
    const bool shared = HasFlag(ctl, HLF_SHAREDLIST);
    DataList   items = ctl->items;
    char* const before = items.pszFormat;
    if (!own) {
        items.pszFormat = nullptr; // or it would be freed
    }
    if (!HDLSetFormat(&items, format)) {
        return 0;
    }
    if (!shared && before && !KeepFormat(ctl, before)) {
        HBlockFree(items.pszFormat);
        return 0;
    }
    SetFlag(ctl, HLF_OWNFORMAT, HasFlag(ctl, HLF_SHAREDLIST));
    ctl->items = items;
    return 1;
}

void HLShareItems(HListCtl* ctl, const DataList* list)
{
    const void* const own = reinterpret_cast<const char*>(ctl) + offsetof(HListCtl, items);
    if (list != own || !HasFlag(ctl, HLF_SHAREDLIST)) {
        HLDropItems(ctl);
        SetFlag(ctl, HLF_SHAREDLIST, true);
        DataList shared;
        std::memcpy(&shared, list, sizeof shared); // another list's record may hold it at any address
        ctl->items = shared;
    }
    ctl->nAnchor = -1;
    HLStoreCurrent(ctl, -1);
    SetFlag(ctl, CF_NULL, HasFlag(ctl, CF_NULL | HLF_SINGLESEL));
    ctl->nHot = -1;
    ctl->nTop = 0;
    ctl->nScrollPos = 0;
    const HWND hwnd = ctl->hWnd;
    HLRecalc(ctl);
    if (IsWindow(hwnd)) {
        HLListEmpty(ctl->pSelected);
        InvalidateRect(hwnd, nullptr, TRUE);
    }
}

ULONG_PTR HLItemData(HListCtl* ctl, int index)
{
    if (index == -1) {
        return 0;
    }
    DataList items = ctl->items;
    if (items.cClass2 == 'n' && items.cType2 == 'W') {
        const void* const code = HDLGetCodePtr(&items, index);
        return code ? LoadAs<DWORD>(code) : 0;
    }
    return reinterpret_cast<ULONG_PTR>(HDLGetDataPtr(&items, index));
}
