// The mouse on a list control: clicks, ranges by dragging, and the mark of the item under it.
#include "list/list_internal.h"

namespace {

int gCurrentAtPress; // of the one list that has the mouse

int MouseX(LPARAM lParam)
{
    return static_cast<short>(LOWORD(lParam));
}
int MouseY(LPARAM lParam)
{
    return static_cast<short>(HIWORD(lParam));
}

bool IsDown(int vk)
{
    return GetKeyState(vk) < 0;
}

// While a key moves the current item, the item that happens to lie under the mouse isn't marked.
bool IsMovingKeyDown()
{
    constexpr int keys[] = { VK_DOWN, VK_UP, VK_NEXT, VK_PRIOR, VK_END, VK_HOME };
    return std::any_of(std::begin(keys), std::end(keys), IsDown);
}

void MarkHot(HListCtl* ctl, int index)
{
    if (index == ctl->nHot || IsMovingKeyDown()) {
        return;
    }
    if (ctl->nHot == -1) {
        HLInvalidateItem(ctl, HLCurIndex(ctl), true);
        HLInvalidateSelected(ctl);
    } else {
        HLInvalidateItem(ctl, ctl->nHot, true);
    }
    HLInvalidateItem(ctl, index, true);
    ctl->nHot = index;
}

} // namespace

LRESULT HLOnButtonDown(HListCtl* ctl, const MsgArgs& args)
{
    if (HasStyle(ctl, HLS_FIELD)) {
        return 0;
    }
    SetFlag(ctl, CF_CANCEL, false);
    SetFlag(ctl, HLF_MOUSEDOWN | HLF_TRACKING, true);
    gCurrentAtPress = HLCurIndex(ctl);
    HLClick(ctl, HLItemFromPoint(ctl, MouseX(args.lParam), MouseY(args.lParam)), IsDown(VK_SHIFT), IsDown(VK_CONTROL));
    if (IsWindow(args.hwnd)) {
        UpdateWindow(args.hwnd);
    }
    if (IsWindow(args.hwnd)) {
        SetCapture(args.hwnd);
    }
    return 0;
}

LRESULT HLOnMouseMove(HListCtl* ctl, const MsgArgs& args)
{
    const int index = HLItemFromPoint(ctl, MouseX(args.lParam), MouseY(args.lParam));
    if (HasFlag(ctl, HLF_TRACKING) && !HasStyle(ctl, HLS_FIELD)) {
        HLDragTo(ctl, index);
    }
    if (IsWindow(args.hwnd) && HasStyle(ctl, HLS_HOTTRACK)) {
        MarkHot(ctl, index);
    }
    return 0;
}

void HLEndPress(HListCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const int current = HLCurIndex(ctl);
    if (HasStyle(ctl, HLS_EXTSEL)) {
        HLSelectRange(ctl, ctl->nAnchor, current, HasFlag(ctl, HLF_DRAGSET) ? HLSEL_SET : HLSEL_CLEAR);
    }
    SetFlag(ctl, HLF_TRACKING | HLF_MOUSEDOWN, false);
    if (GetCapture() == hwnd) {
        ReleaseCapture();
    }
    if (IsWindow(hwnd) && current != gCurrentAtPress) {
        HLUpdateLinks(ctl);
        SetFlag(ctl, CF_CHANGED, true);
        Notify(ctl, HLN_SELCHANGE);
    }
}

LRESULT HLOnButtonUp(HListCtl* ctl, const MsgArgs&)
{
    if (HasFlag(ctl, HLF_TRACKING)) {
        HLEndPress(ctl);
    }
    return 0;
}
