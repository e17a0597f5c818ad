// The parts of a combo, face and list: how they are made of its window text, share their items, and end.
#include "combo/combo_internal.h"
#include "foundation/memory.h"
#include "foundation/startup.h"
#include "griddata/grid_model.h"

#include <cstring>

namespace {

constexpr int   stackedWidth = 250; // least width of the list beside two small buttons
constexpr DWORD notForLists = WS_DISABLED | HLS_EXTSEL | HLS_MULTISEL;
constexpr DWORD styleHigh = 0xFFFF0000;

// A dialog template may give a number in place of a text.
const char* WindowTextOf(const CREATESTRUCTA& create)
{
    return create.lpszName && !IS_INTRESOURCE(create.lpszName) ? create.lpszName : "";
}

bool IsWritable(const void* memory)
{
    constexpr DWORD writable = PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
    MEMORY_BASIC_INFORMATION info = {};
    return VirtualQuery(memory, &info, sizeof info) && info.State == MEM_COMMIT && (info.Protect & writable) &&
           !(info.Protect & PAGE_GUARD);
}

// Settled: the head of a text without codes is changed in the caller's memory.
// Bounded: a constant text stays as it is; the combo reads a copy.
void MarkAsRead(const char* text)
{
    if (*text == '#' && IsWritable(text)) {
        *const_cast<char*>(text) = '%';
    }
}

// The creation's window text, read from its head on.
class CreationText {
public:
    explicit CreationText(const CREATESTRUCTA& create)
        : copy_(hstrdup(WindowTextOf(create))), rest_(copy_), codes_(!copy_ || *copy_ != '#')
    {
        MarkAsRead(WindowTextOf(create));
        if (!codes_) {
            *copy_ = '%';
        }
    }
    ~CreationText() { HBlockFree(copy_); }
    CreationText(const CreationText&) = delete;
    CreationText& operator=(const CreationText&) = delete;

    bool  Exists() const { return copy_ != nullptr; }
    bool  HoldsCodes() const { return codes_; } // the list may hold its current item by the code
    int   TakeSize() { return HCReadSize(&rest_); }
    char* Rest() const { return copy_ + (rest_ - copy_); }

private:
    char*       copy_;
    const char* rest_;
    bool        codes_;
};

void FillRecord(HCombCtl* ctl, const CREATESTRUCTA& create)
{
    ctl->hParent = create.hwndParent;
    ctl->wId = LOWORD(create.hMenu);
    ctl->dwStyle = static_cast<DWORD>(create.style);
    ctl->wOptions = HCO_CHILDTOLIST | HCO_LISTTOCHILD;
}

HWND MakePart(const char* className, const char* text, DWORD style, DWORD exStyle, HWND parent, int id, SIZE size)
{
    return CreateWindowExA(exStyle, className, text, (style & ~WS_POPUP) | WS_CHILD, 0, 0, size.cx, size.cy, parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), hInstance, nullptr);
}

HWND MakeList(const HCombCtl* ctl, const CreationText& text)
{
    const SIZE size = { HGScaleX(static_cast<int>(ctl->cxDrop)), HGScaleY(static_cast<int>(ctl->cyDrop)) };
    DWORD      style = ctl->dwStyle & ~(notForLists | HLS_FIELD);
    if (!HasDropdown(ctl)) {
        return MakePart("HDrop", text.Rest(), style | WS_VISIBLE, 0, ctl->hWnd, comboListId, size);
    }
    style = (style & ~WS_VISIBLE) | HLS_HOTTRACK;
    style |= text.HoldsCodes() ? HLS_CODECURRENT : 0;
    style |= HasStyle(ctl, HCS_3DBORDER) ? 0 : WS_BORDER;
    const HWND list =
        MakePart("HDrop", text.Rest(), style, WS_EX_TOPMOST | WS_EX_TOOLWINDOW, GetDesktopWindow(), comboListId, size);
    SendMessageA(list, WWM_SETPARENT, reinterpret_cast<WPARAM>(ctl->hWnd), 0);
    return list;
}

// "%aa%bb;x" becomes "%aa;x": an edit has no code.
char* HCEditType(char* text)
{
    constexpr size_t longestOfOne = 5;
    constexpr int    descriptor = 3;
    if (std::strlen(text) > longestOfOne && text[descriptor] == '%') {
        HRemoveChars(text, descriptor, descriptor);
    }
    return text;
}

// clang-format off
struct EditStyle {
    DWORD combo;
    DWORD edit;
};
constexpr EditStyle editStyles[] = {
    { HCS_3DBORDER,   HES_FRAME      },
    { HCS_FOCUSBRUSH, HES_FOCUSBRUSH },
    { HCS_READONLY,   HES_READONLY   },
    { HCS_STATIC,     HES_STATIC     },
};
// clang-format on

HWND MakeEdit(const HCombCtl* ctl, const CreationText& text)
{
    DWORD style = (ctl->dwStyle & styleHigh & ~WS_DISABLED) | WS_VISIBLE | HES_AUTOHSCROLL;
    for (const EditStyle& entry : editStyles) {
        style |= HasStyle(ctl, entry.combo) ? entry.edit : 0;
    }
    return MakePart("HEdit_SS", HCEditType(text.Rest()), style, 0, ctl->hWnd, comboEditId, {});
}

HWND MakeField(const HCombCtl* ctl, const CreationText& text)
{
    const DWORD style = (ctl->dwStyle & ~notForLists) | WS_VISIBLE | HLS_NOSCROLL | HLS_NOINTEGRAL | HLS_FIELD;
    return MakePart("HList", text.Rest(), style, 0, ctl->hWnd, comboFieldId, {});
}

// The combo's scroll bars are meant for its list: a face of one line has nothing to scroll up and down.
void HideBars(const HCombCtl* ctl)
{
    if (HasStyle(ctl, WS_VSCROLL)) {
        ShowScrollBar(ctl->hChild, SB_VERT, FALSE);
    }
    if (HasStyle(ctl, WS_HSCROLL) && !HasEdit(ctl)) {
        ShowScrollBar(ctl->hChild, SB_HORZ, FALSE);
    }
}

HListCtl* ListRecord(HWND hwnd)
{
    return hwnd ? static_cast<HListCtl*>(ControlRecord(hwnd)) : nullptr;
}

bool Borrows(const HListCtl* list)
{
    return (list->wFlags & HLF_SHAREDLIST) != 0;
}

void SetBorrows(HListCtl* list, bool borrows)
{
    list->wFlags = static_cast<WORD>(borrows ? list->wFlags | HLF_SHAREDLIST : list->wFlags & ~HLF_SHAREDLIST);
}

} // namespace

bool HCCreate(HCombCtl* ctl, const CREATESTRUCTA& create)
{
    FillRecord(ctl, create);
    CreationText text(create);
    if (!text.Exists()) {
        return false;
    }
    const int height = text.TakeSize();
    HCSetHeight(ctl, height);
    const int width = text.TakeSize();
    ctl->cxDrop = HasStyle(ctl, HCS_STACKED) ? stackedWidth : 0;
    ctl->cxDrop = width ? width : ctl->cxDrop;
    ctl->hDrop = height ? MakeList(ctl, text) : nullptr;
    ctl->hChild = HasEdit(ctl) ? MakeEdit(ctl, text) : MakeField(ctl, text);
    if (!ctl->hChild) {
        return false;
    }
    HideBars(ctl);
    if (!HasEdit(ctl)) {
        HCShareItems(ctl->hDrop, ctl->hChild);
    }
    HCKeepParts(ctl);
    return true;
}

void HCInstall(HCombCtl* ctl)
{
    constexpr DWORD bars = WS_VSCROLL | WS_HSCROLL;
    const HWND      hwnd = ctl->hWnd;
    SendMessageA(hwnd, WWM_SETSTATE, 0, reinterpret_cast<LPARAM>(ctl));
    ctl->dwStyle &= ~bars;
    SetWindowLongA(hwnd, GWL_STYLE, static_cast<LONG>(static_cast<DWORD>(GetWindowLongA(hwnd, GWL_STYLE)) & ~bars));
    if (ctl->hDrop) {
        SetWindowLongPtrA(ctl->hDrop, sizeof(LONG_PTR), reinterpret_cast<LONG_PTR>(+ctl->hChild));
    }
    ctl->pfnChildProc = SubclassWW(ctl->hChild, HCFilter);
}

void HCKeepParts(HCombCtl* ctl)
{
    ctl->pDrop = ListRecord(ctl->hDrop);
    ctl->pChild = static_cast<ControlHeader*>(ControlRecord(ctl->hChild));
    ctl->chCodeType = static_cast<DWORD>(ToList(ctl, HLM_GETCODETYPE));
}

// Bounded: the words are in two lists, and either of them may be the first to go. The field has the items, so the list
// is marked as a borrower.
void HCShareItems(HWND from, HWND to)
{
    HListCtl* const source = ListRecord(from);
    HListCtl* const target = ListRecord(to);
    if (!source || !target) {
        return;
    }
    HLDropItems(target);
    target->items = source->items;
    const bool      borrowed = Borrows(source);
    const bool      targetIsField = (target->dwStyle & HLS_FIELD) != 0;
    HListCtl* const field = targetIsField ? target : source;
    HListCtl* const list = targetIsField ? source : target;
    SetBorrows(field, borrowed);
    SetBorrows(list, true);
}

void HCReturnItems(HListCtl* list)
{
    if (list && Borrows(list)) {
        HLDropItems(list);
    }
}

void HCShareField(HCombCtl* ctl)
{
    HCShareItems(ctl->hChild, ctl->hDrop);
    // Bounded: a list that is parked must not keep words that are no longer anybody's.
    HCShareItems(ctl->hChild, ctl->hDropParked);
}

int HCShareList(HCombCtl* ctl, DataList* list)
{
    if (!list || !ctl->hDrop) {
        return 0;
    }
    DataList shared;
    std::memcpy(&shared, list, sizeof shared); // another list's record may hold it at any address
    HListCtl* const       field = HasEdit(ctl) ? nullptr : ListRecord(ctl->hChild);
    const HListCtl* const holder = field ? field : ListRecord(ctl->hDrop);
    if (holder && !Borrows(holder) && holder->items.pValues == shared.pValues) {
        return 1; // Bounded: its own items would be destroyed and then shown.
    }
    if (field) {
        HLDropItems(field);
        field->items = shared;
        SetBorrows(field, true);
    }
    return HLSetList(ctl->hDrop, &shared);
}

void HCParkList(HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    HCCloseDrop(ctl);
    if (IsWindow(hwnd) && ctl->hDrop) {
        ctl->hDropParked = ctl->hDrop;
        ctl->hDrop = nullptr;
        HCKeepParts(ctl);
    }
}

void HCUnparkList(HCombCtl* ctl)
{
    if (ctl->hDropParked) {
        ctl->hDrop = ctl->hDropParked;
        ctl->hDropParked = nullptr;
        HCKeepParts(ctl);
        // It has missed a new font, and its own may be gone.
        if (ctl->hFont && ctl->hFont != reinterpret_cast<HFONT>(ToList(ctl, WM_GETFONT))) {
            ToList(ctl, WM_SETFONT, reinterpret_cast<WPARAM>(+ctl->hFont));
        }
    }
}

void HCLoseFace(HCombCtl* ctl)
{
    for (const HWND list : { ctl->hDrop, ctl->hDropParked }) {
        HCReturnItems(HasEdit(ctl) ? nullptr : ListRecord(list));
    }
    ctl->pChild = nullptr;
}

void HCEnd(HCombCtl* ctl)
{
    const HWND list = ctl->hDropParked ? ctl->hDropParked : ctl->hDrop;
    ctl->hDrop = list;
    ctl->hDropParked = nullptr;
    const bool isAlive = list && IsWindow(list);
    // Bounded: the field is gone and its items with it, so the words go before the host hears that the list closes.
    HCReturnItems(isAlive && !HasEdit(ctl) && ctl->hChild ? ListRecord(list) : nullptr);
    HCCloseDrop(ctl);
    if (isAlive && IsWindow(list)) {
        DestroyWindow(list);
    }
    ctl->hDrop = nullptr;
}
