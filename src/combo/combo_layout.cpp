// Where the parts of a combo stand: heights, the face beside the buttons, the list below it, and the buttons.
#include "combo/combo_internal.h"

namespace {

constexpr int leastHeight = 2;   // below it a dropped list gets a height by itself
constexpr int linesOfList = 3;   // of the combo's own height,
constexpr int smallList = 40;    // but not less than this,
constexpr int usualList = 100;   // or else this
constexpr int lineMargin = 8;    // above and below the text of a face
constexpr int leastTextLeft = 2; // where an edit's text begins

int HeightByItself(const HCombCtl* ctl)
{
    const int height = WindowHeight(ctl->hWnd) * linesOfList;
    return height < smallList ? usualList : height;
}

int ButtonWidth()
{
    return GetSystemMetrics(SM_CXVSCROLL);
}

// What the buttons take of the face, whether they exist or not.
int RoomForButtons(const HCombCtl* ctl)
{
    if (!HasDropdown(ctl)) {
        return 0;
    }
    return ButtonWidth() * (HasStyle(ctl, HCS_XBUTTON) ? 2 : 1);
}

void MovePart(HWND part, int x, int y, int width, int height)
{
    if (part) {
        SetWindowPos(part, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

// Beside a border of one pixel the text would touch it.
void IndentText(const HCombCtl* ctl)
{
    RECT       text = {};
    const bool knows = HasEdit(ctl) && ToChild(ctl, HEM_GETRECT, 0, reinterpret_cast<LPARAM>(&text)) == 1;
    if (knows && text.left < leastTextLeft) {
        text.left += leastTextLeft;
        ToChild(ctl, HEM_SETRECT, 0, reinterpret_cast<LPARAM>(&text));
    }
}

RECT RightColumn(const HCombCtl* ctl, int fromRight)
{
    RECT rect = {};
    GetClientRect(ctl->hWnd, &rect);
    rect.right -= fromRight * ButtonWidth();
    rect.left = rect.right - ButtonWidth();
    return rect;
}

LONG MiddleOf(const RECT& rect)
{
    return rect.top + (rect.bottom - rect.top) / 2 + 1;
}

} // namespace

int HCSetHeight(HCombCtl* ctl, int height)
{
    if (HasDropdown(ctl)) {
        ctl->cyDrop = height < leastHeight ? HeightByItself(ctl) : std::min(height, longestSize);
        return WindowHeight(ctl->hWnd);
    }
    const int face = HIWORD(GetBaseUnits(ctl->hFont)) + lineMargin;
    ctl->cyDrop = WindowHeight(ctl->hWnd) - face;
    return face;
}

void HCLayout(HCombCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const int  border = HasStyle(ctl, HCS_3DBORDER) ? 0 : 1;
    RECT       client = {};
    GetClientRect(hwnd, &client);
    client.top += border;
    const int width = static_cast<int>(client.right);
    const int face = HCSetHeight(ctl, static_cast<int>(ctl->cyDrop));
    if (!HasDropdown(ctl)) {
        MovePart(ctl->hDrop, 0, face - border, width, static_cast<int>(ctl->cyDrop) + border);
    }
    if (!IsWindow(hwnd)) {
        return;
    }
    MovePart(ctl->hChild, static_cast<int>(client.left), static_cast<int>(client.top), width - RoomForButtons(ctl),
             face);
    if (IsWindow(hwnd) && border && ctl->hDrop) {
        IndentText(ctl);
    }
}

bool HCHasDropButton(const HCombCtl* ctl)
{
    return ctl->hDrop && !HasStyle(ctl, HCS_NOBUTTON);
}

bool HCHasXButton(const HCombCtl* ctl)
{
    return HasStyle(ctl, HCS_STACKED | HCS_XBUTTON | HCS_NOBUTTON);
}

bool HCIsStacked(const HCombCtl* ctl)
{
    return HasStyle(ctl, HCS_STACKED) && !HasStyle(ctl, HCS_XBUTTON | HCS_NOBUTTON) && ctl->hDrop;
}

RECT HCDropButtonRect(const HCombCtl* ctl)
{
    RECT rect = RightColumn(ctl, HasStyle(ctl, HCS_XBUTTON) ? 1 : 0);
    if (HCIsStacked(ctl)) {
        rect.bottom = MiddleOf(rect);
    }
    return rect;
}

RECT HCXButtonRect(const HCombCtl* ctl)
{
    RECT rect = RightColumn(ctl, 0);
    if (HCIsStacked(ctl)) {
        rect.top = MiddleOf(rect);
    }
    return rect;
}

bool HCDropHit(HCombCtl* ctl, int x, int y)
{
    const RECT rect = HCDropButtonRect(ctl);
    return HCHasDropButton(ctl) && PtInRect(&rect, { x, y });
}

bool HCXButtonHit(HCombCtl* ctl, int x, int y)
{
    const RECT rect = HCXButtonRect(ctl);
    return HCHasXButton(ctl) && PtInRect(&rect, { x, y });
}
