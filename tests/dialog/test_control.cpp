// A control for tests of the message frame.
#include "dialog/test_control.h"

#include <algorithm>

namespace {

TestControl* gTest;

} // namespace

TestControl::TestControl()
{
    gTest = this;
    RegisterControl(CS_DBLCLKS, WndProc, 0, 2 * sizeof(LONG_PTR), GetModuleHandleA(nullptr), nullptr, nullptr, nullptr,
                    nullptr, className);
}

TestControl::~TestControl()
{
    // The windows go while the handler can still be reached.
    DestroyWindow(parent.hwnd());
    UnregisterClassA(className, GetModuleHandleA(nullptr));
    gTest = nullptr;
}

HWND TestControl::CreateWithRecord(int id)
{
    const HWND hwnd = Create(className, "", 0, id);
    record.hWnd = hwnd;
    record.hParent = parent.hwnd();
    record.wId = static_cast<DWORD>(id);
    Send(hwnd, WWM_SETSTATE, 0, reinterpret_cast<LPARAM>(&record));
    handled.clear();
    return hwnd;
}

bool TestControl::Reached(UINT message) const
{
    return std::ranges::any_of(handled, [message](const Handled& line) { return line.message == message; });
}

LRESULT CALLBACK TestControl::WndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return HandleMsg(hwnd, message, wParam, lParam, Handler, gTest->offset);
}

LRESULT CALLBACK TestControl::Handler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault,
                                      void* record)
{
    gTest->handled.push_back({ message, record });
    if (message == WM_NCDESTROY && gTest->dropsRecord) {
        SendMessageA(hwnd, WWM_SETSTATE, 0, 0);
    }
    if (gTest->handler) {
        return gTest->handler(message, wParam, lParam, pDefault);
    }
    *pDefault = 1;
    return 0;
}
