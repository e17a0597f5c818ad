// The loop that a control runs while the mouse is dragged outside it: artificial moves, in the pace of ScrollDelay.
#include "dialog/control_frame.h"

#include "dialog/dialog_internal.h"

namespace {

constexpr DWORD drainLimit = 200; // milliseconds between two messages
constexpr DWORD shortWait = 1;

struct KeyBit {
    int    vk;
    WPARAM bit;
};

// clang-format off
constexpr KeyBit keyBits[] = {
    { VK_LBUTTON, MK_LBUTTON },
    { VK_RBUTTON, MK_RBUTTON },
    { VK_MBUTTON, MK_MBUTTON },
    { VK_CONTROL, MK_CONTROL },
    { VK_SHIFT,   MK_SHIFT },
};
// clang-format on

// Settled: only the first key that is down is told.
WPARAM KeyState()
{
    for (const KeyBit& key : keyBits) {
        if (GetKeyState(key.vk) < 0) {
            return key.bit;
        }
    }
    return 0;
}

POINT CursorIn(HWND hwnd)
{
    POINT point = {};
    GetCursorPos(&point);
    ScreenToClient(hwnd, &point);
    return point;
}

LPARAM PackPoint(POINT point)
{
    return MAKELPARAM(point.x, point.y);
}

// True if the message ends the drag.
bool HandOn(const MSG& message)
{
    switch (message.message) {
    case WM_MOUSEMOVE: return false;
    case WM_LBUTTONUP:
    case WM_RBUTTONUP: SendMessageA(message.hwnd, message.message, message.wParam, message.lParam); return true;
    case WM_QUIT:
        // The host's own loop has to see it.
        PostQuitMessage(static_cast<int>(message.wParam));
        return true;
    default:
        TranslateMessage(&message);
        DispatchMessageA(&message);
        return false;
    }
}

bool DrainEndsDrag()
{
    MSG   message;
    DWORD before = GetTickCount();
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (HandOn(message)) {
            return true;
        }
        const DWORD now = GetTickCount();
        if (now - before > drainLimit) {
            return false;
        }
        before = now;
    }
    return false;
}

bool RunsOnOldSystem()
{
    return (GetVersion() & 0x80000000) != 0;
}

} // namespace

void WINAPI TimedScroll(void* record, int horizontal)
{
    ControlHeader* const header = static_cast<ControlHeader*>(record);
    if (!header || RunsOnOldSystem()) {
        return;
    }
    const HWND hwnd = header->hWnd;
    RECT       client = {};
    GetClientRect(hwnd, &client);
    DWORD last = 0;
    DWORD delay = 0;
    // Bounded: the record isn't looked at once any message has ended the window.
    while (IsWindow(hwnd)) {
        const POINT point = CursorIn(hwnd);
        if (header->wFlags & CF_CANCEL) {
            PostMessageA(hwnd, WM_LBUTTONUP, 0, PackPoint(point));
            return;
        }
        if (GetTickCount() - last > delay) {
            SendMessageA(hwnd, WM_MOUSEMOVE, KeyState(), PackPoint(point));
            UpdateWindow(hwnd);
            last = GetTickCount();
        }
        delay = ScrollDelay(client, point, horizontal != 0);
        if (DrainEndsDrag()) {
            return;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, shortWait, QS_ALLINPUT);
    }
}
