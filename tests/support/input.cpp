// Real keyboard and mouse input for window tests, through SendInput.
#include "support/input.h"

#include "support/pump.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

struct ModifierKey {
    unsigned modifier;
    WORD     vk;
};

constexpr ModifierKey modifierKeys[] = { { withShift, VK_SHIFT }, { withCtrl, VK_CONTROL }, { withAlt, VK_MENU } };

DWORD gLastClick; // tick count

using Inputs = std::vector<INPUT>;

bool IsExtendedKey(WORD vk)
{
    return (vk >= VK_PRIOR && vk <= VK_DOWN) || vk == VK_INSERT || vk == VK_DELETE;
}

void AddKey(Inputs* inputs, WORD vk, bool up)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = vk;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(vk, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = (up ? KEYEVENTF_KEYUP : 0u) | (IsExtendedKey(vk) ? KEYEVENTF_EXTENDEDKEY : 0u);
    inputs->push_back(input);
}

void AddModifiers(Inputs* inputs, unsigned modifiers, bool up)
{
    for (const ModifierKey& key : modifierKeys) {
        if (modifiers & key.modifier) {
            AddKey(inputs, key.vk, up);
        }
    }
}

void AddMouse(Inputs* inputs, DWORD flags, int data = 0)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = static_cast<DWORD>(data);
    inputs->push_back(input);
}

void SendAll(Inputs inputs)
{
    const UINT count = static_cast<UINT>(inputs.size());
    EXPECT_EQ(count, SendInput(count, inputs.data(), sizeof(INPUT))) << "the desktop takes no input";
    PumpPending();
}

void PutCursor(HWND hwnd, int x, int y)
{
    POINT point = { x, y };
    ClientToScreen(hwnd, &point);
    SetCursorPos(point.x, point.y);
    PumpPending();
}

// A click near the last one in space and time would count as its double.
void LetDoubleClickPass()
{
    PumpUntil([] { return GetTickCount() - gLastClick > GetDoubleClickTime(); });
}

} // namespace

void TypeKey(WORD vk, unsigned modifiers)
{
    Inputs inputs;
    AddModifiers(&inputs, modifiers, false);
    AddKey(&inputs, vk, false);
    AddKey(&inputs, vk, true);
    AddModifiers(&inputs, modifiers, true);
    SendAll(inputs);
}

void TypeText(const char* text)
{
    for (const char* p = text; *p; ++p) {
        const SHORT key = VkKeyScanA(*p);
        TypeKey(LOBYTE(key), HIBYTE(key) & (withShift | withCtrl | withAlt));
    }
}

void MoveMouse(HWND hwnd, int x, int y)
{
    PutCursor(hwnd, x, y);
}

void PressButton(HWND hwnd, int x, int y)
{
    LetDoubleClickPass();
    PutCursor(hwnd, x, y);
    Inputs inputs;
    AddMouse(&inputs, MOUSEEVENTF_LEFTDOWN);
    SendAll(inputs);
    gLastClick = GetTickCount();
}

void ReleaseButton(HWND hwnd, int x, int y)
{
    PutCursor(hwnd, x, y);
    Inputs inputs;
    AddMouse(&inputs, MOUSEEVENTF_LEFTUP);
    SendAll(inputs);
}

void ClickAt(HWND hwnd, int x, int y, unsigned modifiers)
{
    LetDoubleClickPass();
    PutCursor(hwnd, x, y);
    Inputs inputs;
    AddModifiers(&inputs, modifiers, false);
    AddMouse(&inputs, MOUSEEVENTF_LEFTDOWN);
    AddMouse(&inputs, MOUSEEVENTF_LEFTUP);
    AddModifiers(&inputs, modifiers, true);
    SendAll(inputs);
    gLastClick = GetTickCount();
}

void RightClickAt(HWND hwnd, int x, int y)
{
    PutCursor(hwnd, x, y);
    Inputs inputs;
    AddMouse(&inputs, MOUSEEVENTF_RIGHTDOWN);
    AddMouse(&inputs, MOUSEEVENTF_RIGHTUP);
    SendAll(inputs);
}

void DoubleClickAt(HWND hwnd, int x, int y)
{
    LetDoubleClickPass();
    PutCursor(hwnd, x, y);
    Inputs inputs;
    for (int i = 0; i < 2; ++i) {
        AddMouse(&inputs, MOUSEEVENTF_LEFTDOWN);
        AddMouse(&inputs, MOUSEEVENTF_LEFTUP);
    }
    SendAll(inputs);
    gLastClick = GetTickCount();
}

void Wheel(HWND hwnd, int x, int y, int delta)
{
    PutCursor(hwnd, x, y);
    Inputs inputs;
    AddMouse(&inputs, MOUSEEVENTF_WHEEL, delta);
    SendAll(inputs);
}
