// The look of a combo's small buttons, which a host may paint itself.
#include "button/draw.h"
#include "combo/combo_internal.h"
#include "foundation/gdi_guards.h"
#include "foundation/startup.h"

namespace {

constexpr WORD     faceFlags = 0x0040;    // a bit that the faces of buttons don't know
constexpr COLORREF textColor = maskColor; // of a caption that there never is

// clang-format off
struct ButtonLook {
    int part;
    int stackedPart;
    int image;
    int disabledImage;
};
constexpr ButtonLook dropLook = { 1, 3, 11, 12 };
constexpr ButtonLook extraLook = { 2, 4, 9,  10 };
// clang-format on

struct ButtonState {
    bool enabled;
    bool pressed;
    bool hot;
};

bool HostPaints(int part, HDC hdc, RECT rect, const ButtonState& state)
{
    return pfnDrawPart && pfnDrawPart(part, hdc, &rect, state.enabled, state.pressed, state.hot) != 0;
}

void DrawButton(const HCombCtl* ctl, HDC hdc, RECT rect, const ButtonLook& look, bool pressed, bool hot)
{
    const HWND        hwnd = ctl->hWnd;
    const ButtonState state = { IsWindowEnabled(hwnd) != 0, pressed, hot };
    if (HostPaints(HCIsStacked(ctl) ? look.stackedPart : look.part, hdc, rect, state)) {
        return;
    }
    const WORD flags = static_cast<WORD>(faceFlags | (pressed ? DPB_PRESSED : 0));
    DrawPushButton(hwnd, hdc, &rect, 1, flags, nullptr, nullptr, nullptr, textColor,
                   state.enabled ? look.image : look.disabledImage);
}

void DrawOn(const HCombCtl* ctl, HDC hdc, const RECT& rect, const ButtonLook& look, bool pressed, bool hot)
{
    if (hdc) {
        DrawButton(ctl, hdc, rect, look, pressed, hot);
        return;
    }
    const WindowDC own(ctl->hWnd);
    DrawButton(ctl, own.hdc, rect, look, pressed, hot);
}

} // namespace

void HCDrawDropButton(HCombCtl* ctl, HDC hdc, bool pressed, bool hot)
{
    if (HCHasDropButton(ctl)) {
        DrawOn(ctl, hdc, HCDropButtonRect(ctl), dropLook, pressed, hot);
    }
}

void HCDrawXButton(HCombCtl* ctl, HDC hdc, bool pressed, bool hot)
{
    if (HCHasXButton(ctl)) {
        DrawOn(ctl, hdc, HCXButtonRect(ctl), extraLook, pressed, hot);
    }
}

// Where no list drops, the parts cover the whole combo, and nothing is drawn over them.
void HCRedrawDropButton(HCombCtl* ctl)
{
    if (HasDropdown(ctl)) {
        HCDrawDropButton(ctl, nullptr, HasFlag(ctl, HCF_BTNDOWN), HasFlag(ctl, HCF_BTNHOT));
    }
}

void HCRedrawXButton(HCombCtl* ctl)
{
    if (HasDropdown(ctl)) {
        HCDrawXButton(ctl, nullptr, HasFlag(ctl, HCF_XBTNDOWN), HasFlag(ctl, HCF_XBTNHOT));
    }
}
