// The navigator beside a grid: a scroll bar and buttons to the first, the last and the new record.
// Where they stand is in grid_navigator_place.cpp, their tips are in grid_tips.cpp.
#include "gridctl/grid_handlers.h"

#include "button/button_control.h"

namespace {

// The slots of the navigator's buttons in the record of the grid.
enum class NavSlot { First, Last, New, Extra };

struct NavButton {
    NavSlot slot;
    WORD    id;
    int     glyph; // image of the strip
    UINT    key;   // what a press acts as; 0: the parent is told only
    bool    ctrl;
};

// clang-format off
constexpr NavButton navButtons[] = {
    { NavSlot::First, 4188, 6, VK_HOME,   true },
    { NavSlot::Last,  4189, 7, VK_END,    true },
    { NavSlot::New,   4190, 8, VK_INSERT, false },
    { NavSlot::Extra, 4191, 9, 0,         false },
};
// clang-format on

constexpr INT_PTR scrollId = 1;

HINSTANCE InstanceOf(HGridCtl* ctl)
{
    return reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(ctl->hWnd, GWLP_HINSTANCE));
}

void StoreButton(HGridCtl* ctl, NavSlot slot, HWND button)
{
    switch (slot) {
    case NavSlot::First: ctl->hNavFirst = button; break;
    case NavSlot::Last:  ctl->hNavLast = button; break;
    case NavSlot::New:   ctl->hNavNew = button; break;
    case NavSlot::Extra: ctl->hNavExtra = button; break;
    }
}

// The system tells the windows around the grid of each child, and one of them may end the grid.
HWND MakeChild(HGridCtl* ctl, const char* className, DWORD style, INT_PTR id)
{
    return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, 0, 0, 1, 1, ctl->hWnd,
                           reinterpret_cast<HMENU>(id), InstanceOf(ctl), nullptr);
}

// False if the window went.
bool MakeScrollBar(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const HWND child = MakeChild(ctl, "SCROLLBAR", SBS_VERT, scrollId);
    if (!IsWindow(hwnd)) {
        return false;
    }
    ctl->hNavScroll = child;
    ctl->pData->dwStyle |= WS_VSCROLL;
    return true;
}

// False if the window went.
bool MakeButton(HGridCtl* ctl, const NavButton& button)
{
    constexpr DWORD style = HBS_NOFOCUS | 0x4000;
    const HWND      hwnd = ctl->hWnd;
    const HWND      child = MakeChild(ctl, "HButt", style, button.id);
    if (!IsWindow(hwnd)) {
        return false;
    }
    StoreButton(ctl, button.slot, child);
    const LRESULT record = child ? SendMessageA(child, WWM_GETSTATE, 0, 0) : 0;
    if (record) {
        reinterpret_cast<HButtCtl*>(record)->nGlyph = button.glyph;
    }
    return true;
}

const NavButton* FindButton(int id)
{
    for (const NavButton& button : navButtons) {
        if (button.id == id) {
            return &button;
        }
    }
    return nullptr;
}

void PressButton(HGridCtl* ctl, const NavButton& button)
{
    if (button.key == 0) {
        HGNotify(ctl, HGN_NAVEXTRA);
    } else if (HGAskNavigate(ctl)) {
        HGKeyNavigate(ctl, button.key, false, button.ctrl);
    }
}

} // namespace

bool HGMakeNavigator(HGridCtl* ctl)
{
    if (!MakeScrollBar(ctl)) {
        return false;
    }
    for (const NavButton& button : navButtons) {
        const bool wanted = button.slot != NavSlot::Extra || (ctl->pData->dwStyle2 & HGX_EXTRABUTTON);
        if (wanted && !MakeButton(ctl, button)) {
            return false;
        }
    }
    return HGAddTips(ctl, InstanceOf(ctl));
}

void HGDestroyNavigator(HGridCtl* ctl)
{
    // The system would keep the tips of a child window until the window around it goes.
    const HWND windows[] = { ctl->hNavScroll, ctl->hNavFirst, ctl->hNavLast, ctl->hNavNew, ctl->hTips };
    ctl->hNavScroll = ctl->hNavFirst = ctl->hNavLast = ctl->hNavNew = ctl->hTips = nullptr;
    for (const HWND window : windows) {
        if (window) {
            DestroyWindow(window);
        }
    }
}

int HGCommand(HGridCtl* ctl, int id, HWND, int)
{
    // OK and Cancel of a dialog end the edit and stay the dialog's all the same.
    if (id == IDOK) {
        HGCommitEdit(ctl);
    } else if (id == IDCANCEL) {
        HGCancelEdit(ctl);
    } else if (const NavButton* const button = FindButton(id)) {
        PressButton(ctl, *button);
    }
    return 0;
}
