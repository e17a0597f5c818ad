// The one open list, and the hook that keeps the mouse from all other windows while it is open.
// The hook runs in every process of the desktop, each with variables of its own, so it waits for nobody there.
#include "combo/combo_internal.h"
#include "foundation/startup.h"

HWND  hOpenCombo;
HWND  hOpenDrop;
HWND  hOpenChild;
HHOOK hMouseHook;

namespace {

constexpr int firstHookVersion = 778; // 3.10

bool HasMouseHooks()
{
    constexpr DWORD notNT = 0x80000000;
    return !(GetVersion() & notNT) && HWinVersion() >= firstHookVersion;
}

bool IsPress(WPARAM message)
{
    return message == WM_LBUTTONDOWN || message == WM_NCLBUTTONDOWN || message == WM_SYSCOMMAND;
}

bool IsOfOpenCombo(HWND hwnd)
{
    return hwnd == hOpenCombo || hwnd == hOpenDrop || hwnd == hOpenChild;
}

// The combo with an open list in another process, found without a message to it; null where none answers any more.
HWND OpenComboElsewhere()
{
    HWND drop = nullptr;
    while ((drop = FindWindowExA(nullptr, drop, "HDrop", nullptr)) != nullptr) {
        const HWND face = IsWindowVisible(drop) ? HCFaceOfDrop(drop) : nullptr;
        const HWND combo = face ? GetParent(face) : nullptr;
        if (combo && !IsHungAppWindow(combo)) {
            return combo;
        }
    }
    return nullptr;
}

// Whether the combo may be reached without waiting for another thread.
bool IsOwn(HWND combo)
{
    return combo == hOpenCombo && GetWindowThreadProcessId(combo, nullptr) == GetCurrentThreadId();
}

void CloseFromHook(HWND combo)
{
    HCombCtl* const ctl = IsOwn(combo) ? HCFromWindow(combo) : nullptr;
    if (ctl) {
        HCCloseDrop(ctl);
    } else {
        PostMessageA(combo, CB_SHOWDROPDOWN, FALSE, 0);
    }
}

} // namespace

void HCTakeMouse()
{
    if (!hMouseHook && HasMouseHooks()) {
        hMouseHook = SetWindowsHookExA(WH_MOUSE, MouseHookProc, hInstance, 0);
    }
}

void HCGiveMouseBack()
{
    const HHOOK hook = hMouseHook;
    hMouseHook = nullptr;
    hOpenCombo = nullptr;
    if (hook) {
        UnhookWindowsHookEx(hook);
    }
}

LRESULT CALLBACK MouseHookProc(int code, WPARAM message, LPARAM hookData)
{
    const MOUSEHOOKSTRUCT* const data = reinterpret_cast<const MOUSEHOOKSTRUCT*>(hookData);
    if (code < 0 || !data || IsOfOpenCombo(data->hwnd)) {
        return CallNextHookEx(hMouseHook, code, message, hookData);
    }
    const HWND combo = hOpenCombo ? hOpenCombo : OpenComboElsewhere();
    // Bounded: where no list is open the mouse goes its way, lest a process that has none lose it for good.
    if (!IsWindow(combo)) {
        return CallNextHookEx(hMouseHook, code, message, hookData);
    }
    if (IsPress(message)) {
        CloseFromHook(combo);
    } else if (message == WM_MOUSEMOVE) {
        SetCursor(hCurArrow);
    }
    return -1;
}
