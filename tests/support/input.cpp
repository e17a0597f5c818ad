// Real keyboard and mouse input for window tests, through SendInput.
#include "support/input.h"

#include "support/pump.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

namespace {

struct ModifierKey {
    unsigned modifier;
    WORD     vk;
};

constexpr ModifierKey modifierKeys[] = { { withShift, VK_SHIFT }, { withCtrl, VK_CONTROL }, { withAlt, VK_MENU } };

// The last press of the left button.
struct LastClick {
    DWORD time; // tick count
    POINT at;
};
LastClick gLastClick;

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

// The system takes the whole part of this many 65536ths of the screen as the pixel.
LONG ScreenShare(LONG pixel, int pixels)
{
    return (pixel * 65536 + pixels - 1) / pixels;
}

// Each event carries its place: a pointer that something else has moved meanwhile doesn't press elsewhere.
void AddMouse(Inputs* inputs, POINT at, DWORD flags, int data = 0)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = ScreenShare(at.x, GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = ScreenShare(at.y, GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    input.mi.mouseData = static_cast<DWORD>(data);
    inputs->push_back(input);
}

void SendAll(Inputs inputs)
{
    const UINT count = static_cast<UINT>(inputs.size());
    EXPECT_EQ(count, SendInput(count, inputs.data(), sizeof(INPUT))) << "the desktop takes no input";
    PumpPending();
}

POINT OnScreen(HWND hwnd, int x, int y)
{
    POINT point = { x, y };
    ClientToScreen(hwnd, &point);
    return point;
}

void PutCursor(POINT at)
{
    Inputs inputs;
    AddMouse(&inputs, at, 0);
    SendAll(inputs);
}

// What the screen's server has to tell of a moved pointer has arrived at the window's thread by then: the server answers
// a question in turn, and a thread takes in what the server told before it takes in a message.
void LetPointerSettle(HWND hwnd)
{
    const HDC screen = GetDC(nullptr);
    GetPixel(screen, 0, 0);
    ReleaseDC(nullptr, screen);
    PumpPending();
    constexpr int turns = 3; // a busy thread may take in the first message before it looks at the server
    constexpr int wait = 5000; // ms
    for (int i = 0; i < turns; ++i) {
        DWORD_PTR result = 0;
        SendMessageTimeoutA(hwnd, WM_NULL, 0, 0, SMTO_NORMAL, wait, &result);
    }
}

bool AreDown(unsigned modifiers)
{
    for (const ModifierKey& key : modifierKeys) {
        if ((modifiers & key.modifier) && GetAsyncKeyState(key.vk) >= 0) {
            return false;
        }
    }
    return true;
}

// Holds the modifiers for a button that follows over the window: down again if a pointer that moved let go of them.
void HoldModifiers(HWND hwnd, unsigned modifiers)
{
    if (modifiers == withNone) {
        return;
    }
    LetPointerSettle(hwnd);
    EXPECT_TRUE(PumpUntil([&] {
        Inputs inputs;
        AddModifiers(&inputs, modifiers, false);
        SendAll(inputs);
        LetPointerSettle(hwnd);
        return AreDown(modifiers);
    })) << "the modifiers don't stay down";
}

// A click near the last one in space and time would count as its double.
void LetDoubleClickPass(POINT at)
{
    const bool close = std::abs(at.x - gLastClick.at.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
                       std::abs(at.y - gLastClick.at.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
    PumpUntil([close] { return !close || GetTickCount() - gLastClick.time > GetDoubleClickTime(); });
}

void NoteClick(POINT at)
{
    gLastClick = { GetTickCount(), at };
}

} // namespace

void TypeKey(WORD vk, unsigned modifiers)
{
    const KeyPress key = { vk, modifiers };
    TypeKeys({ &key, 1 });
}

void TypeKeys(std::span<const KeyPress> keys)
{
    Inputs inputs;
    for (const KeyPress& key : keys) {
        AddModifiers(&inputs, key.modifiers, false);
        AddKey(&inputs, key.vk, false);
        AddKey(&inputs, key.vk, true);
        AddModifiers(&inputs, key.modifiers, true);
    }
    SendAll(inputs);
}

void HoldKey(WORD vk)
{
    Inputs inputs;
    AddKey(&inputs, vk, false);
    SendAll(inputs);
}

void ReleaseKey(WORD vk)
{
    Inputs inputs;
    AddKey(&inputs, vk, true);
    SendAll(inputs);
}

void TypeText(const char* text)
{
    for (const char* p = text; *p; ++p) {
        const SHORT key = VkKeyScanA(*p);
        TypeKey(LOBYTE(key), HIBYTE(key) & (withShift | withCtrl | withAlt));
    }
}

void SendMouse(POINT screen, DWORD flags, unsigned released)
{
    Inputs inputs;
    AddMouse(&inputs, screen, flags);
    AddModifiers(&inputs, released, true);
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

void MoveMouse(HWND hwnd, int x, int y)
{
    PutCursor(OnScreen(hwnd, x, y));
}

void PressButton(HWND hwnd, int x, int y, unsigned modifiers)
{
    const POINT at = OnScreen(hwnd, x, y);
    LetDoubleClickPass(at);
    PutCursor(at);
    HoldModifiers(hwnd, modifiers);
    Inputs inputs;
    AddMouse(&inputs, at, MOUSEEVENTF_LEFTDOWN);
    SendAll(inputs);
    NoteClick(at);
}

void ReleaseButton(HWND hwnd, int x, int y, unsigned modifiers)
{
    const POINT at = OnScreen(hwnd, x, y);
    PutCursor(at);
    Inputs inputs;
    AddMouse(&inputs, at, MOUSEEVENTF_LEFTUP);
    AddModifiers(&inputs, modifiers, true);
    SendAll(inputs);
}

void ClickAt(HWND hwnd, int x, int y, unsigned modifiers)
{
    const POINT at = OnScreen(hwnd, x, y);
    LetDoubleClickPass(at);
    PutCursor(at);
    HoldModifiers(hwnd, modifiers);
    Inputs inputs;
    AddMouse(&inputs, at, MOUSEEVENTF_LEFTDOWN);
    AddMouse(&inputs, at, MOUSEEVENTF_LEFTUP);
    AddModifiers(&inputs, modifiers, true);
    SendAll(inputs);
    NoteClick(at);
}

void RightClickAt(HWND hwnd, int x, int y)
{
    const POINT at = OnScreen(hwnd, x, y);
    PutCursor(at);
    Inputs inputs;
    AddMouse(&inputs, at, MOUSEEVENTF_RIGHTDOWN);
    AddMouse(&inputs, at, MOUSEEVENTF_RIGHTUP);
    SendAll(inputs);
}

void DoubleClickAt(HWND hwnd, int x, int y)
{
    const POINT at = OnScreen(hwnd, x, y);
    LetDoubleClickPass(at);
    PutCursor(at);
    Inputs inputs;
    for (int i = 0; i < 2; ++i) {
        AddMouse(&inputs, at, MOUSEEVENTF_LEFTDOWN);
        AddMouse(&inputs, at, MOUSEEVENTF_LEFTUP);
    }
    SendAll(inputs);
    NoteClick(at);
}

void Wheel(HWND hwnd, int x, int y, int delta)
{
    const POINT at = OnScreen(hwnd, x, y);
    PutCursor(at);
    Inputs inputs;
    AddMouse(&inputs, at, MOUSEEVENTF_WHEEL, delta);
    SendAll(inputs);
}
