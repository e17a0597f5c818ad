// Message pumping of window tests.
#include "support/pump.h"

#include <utility>

namespace {

constexpr DWORD longestWait = 10;

std::function<bool(MSG*)> gFilter;

} // namespace

void PumpPending()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (gFilter && gFilter(&message)) {
            continue;
        }
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void PumpThrough(std::function<bool(MSG*)> filter)
{
    gFilter = std::move(filter);
}

void PumpForDialog(HWND dialog)
{
    PumpThrough(dialog ? [dialog](MSG* message) { return IsDialogMessageA(dialog, message) != 0; }
                       : std::function<bool(MSG*)>());
}

bool PumpUntil(const std::function<bool()>& condition, DWORD limitMs)
{
    const DWORD start = GetTickCount();
    for (;;) {
        PumpPending();
        if (condition()) {
            return true;
        }
        if (GetTickCount() - start >= limitMs) {
            return false;
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, longestWait, QS_ALLINPUT);
    }
}
