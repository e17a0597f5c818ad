// The messages of a combo by number: its own, those that go on to face and list, and those of the platform's combo box.
#include "combo/combo_internal.h"
#include "foundation/memory.h"

#include <algorithm>

namespace {

constexpr UINT firstOfList = 1174; // numbers below go on to the face
constexpr UINT notForwarded = 1325;
constexpr UINT getItemHeight = 417; // LB_GETITEMHEIGHT

int IntArg(const MsgArgs& args)
{
    return static_cast<int>(args.wParam);
}

// Parts

LRESULT AskChild(HCombCtl* ctl, const MsgArgs& args)
{
    const WNDPROC face = HasEdit(ctl) ? HEditWnd : HListWnd;
    return face(ctl->hChild, args.message, args.wParam, args.lParam);
}

LRESULT AskList(HCombCtl* ctl, const MsgArgs& args)
{
    return ToList(ctl, args.message, args.wParam, args.lParam);
}

// The result of a message that moved the value of one part, after the other one has followed.
LRESULT Mirror(HCombCtl* ctl, const MsgArgs& args, bool fromChild, LRESULT result)
{
    if (IsWindow(args.hwnd)) {
        HCSync(ctl, fromChild, false);
    }
    return result;
}

LRESULT OnChildValue(HCombCtl* ctl, const MsgArgs& args)
{
    return Mirror(ctl, args, true, AskChild(ctl, args));
}

// A buffer whose value the face takes over moves the list, too.
LRESULT OnSetDataLink(HCombCtl* ctl, const MsgArgs& args)
{
    return args.wParam ? OnChildValue(ctl, args) : AskChild(ctl, args);
}

LRESULT OnListValue(HCombCtl* ctl, const MsgArgs& args)
{
    return Mirror(ctl, args, false, AskList(ctl, args));
}

LRESULT OnListSelect(HCombCtl* ctl, const MsgArgs& args)
{
    return Mirror(ctl, args, false, ToList(ctl, args.message, HLSEL_SET, args.lParam));
}

LRESULT OnListLook(HCombCtl* ctl, const MsgArgs& args)
{
    const LRESULT result = AskList(ctl, args);
    if (IsWindow(args.hwnd) && !HasEdit(ctl)) {
        InvalidateRect(ctl->hChild, nullptr, TRUE);
    }
    return result;
}

// A field has the list's items, but an index of its own: what comes or goes in front of its item moves that, too. It is
// no change, and takes none back.
LRESULT OnListItems(HCombCtl* ctl, const MsgArgs& args)
{
    const LRESULT result = OnListLook(ctl, args);
    if (!IsWindow(args.hwnd) || HasEdit(ctl) || !ctl->pChild) {
        return result;
    }
    const bool changed = HasFlag(ctl->pChild, CF_CHANGED);
    HCSync(ctl, false, false);
    if (IsWindow(args.hwnd) && ctl->pChild) {
        SetFlag(ctl->pChild, CF_CHANGED, changed);
    }
    return result;
}

LRESULT OnBothParts(HCombCtl* ctl, const MsgArgs& args)
{
    AskList(ctl, args);
    return IsWindow(args.hwnd) ? AskChild(ctl, args) : 0;
}

// Bounded: a field and its list hold the same format, which may be freed once only. The field sets it for both.
LRESULT OnSetFormat(HCombCtl* ctl, const MsgArgs& args)
{
    if (HasEdit(ctl)) {
        return OnBothParts(ctl, args);
    }
    const LRESULT result = AskChild(ctl, args);
    HCShareField(ctl);
    if (result && args.wParam && ctl->hDrop) {
        InvalidateRect(ctl->hDrop, nullptr, TRUE);
    }
    return result;
}

LRESULT OnSetFocusBrush(HCombCtl* ctl, const MsgArgs& args)
{
    if (HasDropdown(ctl) && HasStyle(ctl, HCS_FOCUSBRUSH)) {
        ToList(ctl, HLM_SETBKBRUSH, args.wParam, args.lParam);
    }
    return AskChild(ctl, args);
}

// Both are asked: an edit takes up what was typed.
LRESULT OnGetChanged(HCombCtl* ctl, const MsgArgs& args)
{
    const LRESULT list = AskList(ctl, args);
    const LRESULT child = IsWindow(args.hwnd) ? ToChild(ctl, args.message) : 0;
    return list || child;
}

// Both parts forget a change. A new one is the face's: the list's bit goes when the list follows the face.
LRESULT OnSetChanged(HCombCtl* ctl, const MsgArgs& args)
{
    if (!args.wParam) {
        AskList(ctl, args);
    }
    AskChild(ctl, args);
    return AskDefault(args);
}

// What the frame answers for all controls, and what nobody does.
LRESULT ToFrame(HCombCtl*, const MsgArgs& args)
{
    return AskDefault(args);
}

// Own messages

LRESULT OnGetDropHeight(HCombCtl* ctl, const MsgArgs&)
{
    return ctl->cyDrop;
}

LRESULT OnGetDropWidth(HCombCtl* ctl, const MsgArgs&)
{
    return ctl->cxDrop;
}

LRESULT OnSetDropWidth(HCombCtl* ctl, const MsgArgs& args)
{
    if (!HasDropdown(ctl)) {
        return 0;
    }
    ctl->cxDrop = std::min(IntArg(args), longestSize);
    if (ctl->hDrop) {
        HCPlaceDrop(ctl);
    }
    return 1;
}

LRESULT OnSetDrop(HCombCtl* ctl, const MsgArgs& args)
{
    constexpr int park = 0;
    constexpr int bringBack = 1;
    const int     value = IntArg(args);
    if (value != park && value != bringBack) {
        HCSetHeight(ctl, value);
        HCLayout(ctl);
        return 1;
    }
    if (value == park) {
        HCParkList(ctl);
    } else {
        HCUnparkList(ctl);
    }
    if (!IsWindow(args.hwnd)) {
        return 0;
    }
    InvalidateRect(args.hwnd, nullptr, TRUE);
    return ctl->cxDrop;
}

LRESULT OnSetList(HCombCtl* ctl, const MsgArgs& args)
{
    if (args.lParam) {
        return HCSetList(args.hwnd, reinterpret_cast<DataList*>(args.lParam));
    }
    HCLayout(ctl);
    return 1;
}

LRESULT OnSetOptions(HCombCtl* ctl, const MsgArgs& args)
{
    ctl->wOptions = static_cast<DWORD>(args.wParam);
    return 1;
}

// clang-format off
constexpr MessageEntry<ComboHandler> entries[] = {
    { HEM_SETDATA,       OnChildValue },
    { HEM_SETREADONLY,   AskChild },
    { HLM_SETDATALINK,   OnSetDataLink },
    { HLM_SETBKBRUSH,    OnBothParts },
    { HLM_SETFORMAT,     OnSetFormat },
    { HLM_SETFOCUSBRUSH, OnSetFocusBrush },
    { HLM_SETCOLOR,      OnBothParts },
    { WWM_GETCHANGED,    OnGetChanged },
    { WWM_SETCHANGED,    OnSetChanged },
    { WWM_SETUPDATING,   ToFrame },
    { WWM_GETUPDATING,   ToFrame },
    { HCM_CHILDFOCUS,    HCOnChildFocus },
    { HCM_CHILDBLUR,     HCOnChildBlur },
    { WWM_GETPARENT,     ToFrame },
    { WWM_SETPARENT,     ToFrame },
    { WWM_GETSTYLE,      ToFrame },
    { WWM_SETSTYLE,      ToFrame },
    { WWM_CANCEL,        ToFrame },
    { WWM_ISNULL,        ToFrame },
    { HLM_EMPTY,         OnListItems },
    { HLM_DELETEITEM,    OnListItems },
    { HLM_SELECTITEM,    OnListValue },
    { HLM_SELECTTEXT,    OnListValue },
    { HLM_ADDITEM,       OnListItems },
    { HLM_INSERTITEM,    OnListItems },
    { HLM_SELECTDATA,    OnListSelect },
    { HLM_SETCODELINK,   OnListValue },
    { HLM_SELECTCODE,    OnListSelect },
    { HLM_SETCURRENT,    OnListValue },
    { HLM_SETTABS,       OnListLook },
    { HCM_SYSKEY,        HCOnSysKey },
    { HCM_GETDROPHEIGHT, OnGetDropHeight },
    { HCM_SETDROP,       OnSetDrop },
    { HCM_GETDROPWIDTH,  OnGetDropWidth },
    { HCM_SETDROPWIDTH,  OnSetDropWidth },
    { HCM_SETLIST,       OnSetList },
    { HCM_SETOPTIONS,    OnSetOptions },
    { notForwarded,      ToFrame },
};
// clang-format on

constexpr auto handlers = ByNumber<WM_USER, notForwarded>(entries);

// The platform's combo box

template <UINT Message>
LRESULT ToItself(HCombCtl*, const MsgArgs& args)
{
    return SendMessageA(args.hwnd, Message, args.wParam, args.lParam);
}

LRESULT OnLimitText(HCombCtl* ctl, const MsgArgs& args)
{
    return ToChild(ctl, EM_LIMITTEXT, args.wParam, args.lParam);
}

// The two places come in one argument; -1 is the end of the text.
LRESULT OnSetEditSel(HCombCtl*, const MsgArgs& args)
{
    const int from = static_cast<short>(LOWORD(args.lParam));
    const int to = static_cast<short>(HIWORD(args.lParam));
    return SendMessageA(args.hwnd, EM_SETSEL, static_cast<WPARAM>(from), to);
}

LRESULT OnShowDropDown(HCombCtl* ctl, const MsgArgs& args)
{
    if (args.wParam) {
        HCOpenDrop(ctl);
    } else {
        HCCloseDrop(ctl);
    }
    return 1;
}

// Bounded: of a code that is longer than its item data the first bytes are read, of a text that ends in between as
// well.
LRESULT OnGetItemData(HCombCtl* ctl, const MsgArgs& args)
{
    HListCtl* const record = ctl->pDrop;
    if (!record || IntArg(args) < 0) {
        return CB_ERR;
    }
    DataList          items = record->items;
    const void* const code = items.pCodes ? HDLGetCodePtr(&items, IntArg(args)) : nullptr;
    const int         size = code ? HDLGetCodeSize(&items, IntArg(args)) : 0;
    if (size <= 0) {
        return CB_ERR;
    }
    if (size >= static_cast<int>(sizeof(LPARAM))) {
        return LoadAs<LPARAM>(code);
    }
    int value = 0;
    std::memcpy(&value, code, static_cast<size_t>(std::min(size, static_cast<int>(sizeof value))));
    return value;
}

// Bounded: a code that is longer than the argument is filled up with zeros.
LRESULT OnSetItemData(HCombCtl* ctl, const MsgArgs& args)
{
    char code[comboValueSize] = {};
    StoreAs(code, args.lParam);
    return ToList(ctl, HLM_SETCODE, args.wParam, reinterpret_cast<LPARAM>(code));
}

LRESULT OnGetDroppedRect(HCombCtl* ctl, const MsgArgs& args)
{
    if (ctl->hDrop && args.lParam) {
        GetWindowRect(ctl->hDrop, reinterpret_cast<RECT*>(args.lParam));
    }
    return 0;
}

LRESULT OnSetItemHeight(HCombCtl* ctl, const MsgArgs& args)
{
    if (IntArg(args) != -1) {
        return CB_ERR;
    }
    RECT rect = {};
    GetWindowRect(args.hwnd, &rect);
    const int height = LOWORD(args.lParam);
    if (HasDropdown(ctl)) {
        SetWindowPos(args.hwnd, nullptr, 0, 0, static_cast<int>(rect.right - rect.left), height,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    } else {
        HCSetHeight(ctl, static_cast<int>(rect.bottom - rect.top) - height);
        HCLayout(ctl);
    }
    return 1;
}

LRESULT OnGetItemHeight(HCombCtl* ctl, const MsgArgs& args)
{
    if (IntArg(args) != -1) {
        return ToList(ctl, getItemHeight, args.wParam, args.lParam);
    }
    RECT rect = {};
    GetWindowRect(ctl->hChild, &rect);
    return rect.bottom - rect.top;
}

LRESULT OnSetExtendedUI(HCombCtl*, const MsgArgs&)
{
    return CB_ERR;
}

LRESULT OnGetExtendedUI(HCombCtl*, const MsgArgs&)
{
    return 0;
}

LRESULT OnGetDroppedState(HCombCtl* ctl, const MsgArgs&)
{
    return HasFlag(ctl, HCF_DROPPED);
}

// clang-format off
constexpr MessageEntry<ComboHandler> comboBoxEntries[] = {
    { CB_GETEDITSEL,            ToItself<EM_GETSEL> },
    { CB_LIMITTEXT,             OnLimitText },
    { CB_SETEDITSEL,            OnSetEditSel },
    { CB_ADDSTRING,             ToItself<HLM_ADDITEM> },
    { CB_DELETESTRING,          ToItself<HLM_DELETEITEM> },
    { CB_GETCOUNT,              ToItself<HLM_GETCOUNT> },
    { CB_GETCURSEL,             ToItself<HLM_GETCURRENT> },
    { CB_GETLBTEXT,             ToItself<HLM_GETITEMTEXT> },
    { CB_GETLBTEXTLEN,          ToItself<HLM_GETITEMTEXTLEN> },
    { CB_INSERTSTRING,          ToItself<HLM_INSERTITEM> },
    { CB_RESETCONTENT,          ToItself<HLM_EMPTY> },
    { CB_FINDSTRING,            ToItself<HLM_FINDTEXT> },
    { CB_SELECTSTRING,          ToItself<HLM_SELECTTEXT> },
    { CB_SETCURSEL,             ToItself<HLM_SETCURRENT> },
    { CB_SHOWDROPDOWN,          OnShowDropDown },
    { CB_GETITEMDATA,           OnGetItemData },
    { CB_SETITEMDATA,           OnSetItemData },
    { CB_GETDROPPEDCONTROLRECT, OnGetDroppedRect },
    { CB_SETITEMHEIGHT,         OnSetItemHeight },
    { CB_GETITEMHEIGHT,         OnGetItemHeight },
    { CB_SETEXTENDEDUI,         OnSetExtendedUI },
    { CB_GETEXTENDEDUI,         OnGetExtendedUI },
    { CB_GETDROPPEDSTATE,       OnGetDroppedState },
    { CB_FINDSTRINGEXACT,       ToItself<HLM_FINDDATA> },
};
// clang-format on

constexpr auto comboBoxHandlers = ByNumber<CB_GETEDITSEL, CB_FINDSTRINGEXACT>(comboBoxEntries);

} // namespace

ComboHandler FindComboHandler(UINT message)
{
    if (message < WM_USER) {
        return nullptr;
    }
    if (const ComboHandler handler = FindHandler<WM_USER>(handlers, message)) {
        return handler;
    }
    return message < firstOfList ? AskChild : AskList;
}

ComboHandler FindComboBoxHandler(UINT message)
{
    return FindHandler<CB_GETEDITSEL>(comboBoxHandlers, message);
}
