// The window text of a combo: sizes of the list at its head, then the type text of face and list.
#include "combo/combo_internal.h"
#include "foundation/memory.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace {

constexpr size_t shortestHead = 3; // characters of a text that may begin with a size

bool IsDigit(char ch)
{
    return ch >= '0' && ch <= '9';
}

// The lists are given a new type. A field gives its list the items that it gets.
void SetTypeOfLists(HCombCtl* ctl, const char* text)
{
    const LPARAM typeText = reinterpret_cast<LPARAM>(text);
    ToList(ctl, WM_SETTEXT, 0, typeText);
    if (!HasEdit(ctl)) {
        ToChild(ctl, WM_SETTEXT, 0, typeText);
        HCShareField(ctl);
        InvalidateRect(ctl->hChild, nullptr, TRUE); // the item that it shows is gone
    }
    HCKeepParts(ctl);
}

// The text of the field's current item; its length. To a list, item -1 is the last one.
int FieldText(const HCombCtl* ctl, char* out)
{
    const LRESULT current = ToChild(ctl, HLM_GETCURRENT);
    if (current < 0) {
        return 0;
    }
    const WPARAM  item = static_cast<WPARAM>(current);
    const LRESULT length = out ? ToChild(ctl, HLM_GETITEMTEXT, item, reinterpret_cast<LPARAM>(out))
                               : ToChild(ctl, HLM_GETITEMTEXTLEN, item);
    return std::max(static_cast<int>(length), 0);
}

} // namespace

int HCReadSize(const char** text)
{
    const char* at = text ? *text : nullptr;
    if (!at || std::strlen(at) < shortestHead || at[0] != '%' || !IsDigit(at[1])) {
        return 0;
    }
    int size = 0;
    for (++at; IsDigit(*at); ++at) {
        size = std::min(size * 10 + (*at - '0'), longestSize);
    }
    *text = at;
    return size;
}

int WINAPI GetDropHeight(const char** text)
{
    return HCReadSize(text);
}

LRESULT HCOnSetText(HCombCtl* ctl, const MsgArgs& args)
{
    const char* text = reinterpret_cast<const char*>(args.lParam);
    if (!text) {
        return 1;
    }
    const char* const head = text;
    const int         height = GetDropHeight(&text);
    if (text != head) {
        HCSetHeight(ctl, height);
        HCLayout(ctl);
    }
    if (IsWindow(args.hwnd) && *text == '%') {
        SetTypeOfLists(ctl, text);
    }
    if (IsWindow(args.hwnd) && HasEdit(ctl)) {
        ToChild(ctl, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
    }
    return 1;
}

LRESULT HCOnGetText(HCombCtl* ctl, const MsgArgs& args)
{
    if (HasEdit(ctl)) {
        return ToChild(ctl, WM_GETTEXT, args.wParam, args.lParam);
    }
    char* const out = reinterpret_cast<char*>(args.lParam);
    const int   size = static_cast<int>(std::min<WPARAM>(args.wParam, INT_MAX));
    if (!out || size == 0) {
        return 0;
    }
    const int   length = FieldText(ctl, nullptr);
    char* const text = static_cast<char*>(HBlockAlloc(static_cast<size_t>(length) + 1));
    if (text && length) {
        FieldText(ctl, text);
    }
    const int copied = _fstrnzcpy(out, text, size);
    HBlockFree(text);
    return copied;
}

LRESULT HCOnGetTextLength(HCombCtl* ctl, const MsgArgs&)
{
    return HasEdit(ctl) ? ToChild(ctl, WM_GETTEXTLENGTH) : FieldText(ctl, nullptr);
}
