// Message pumping of window tests.
#include "support/pump.h"

namespace {

constexpr DWORD longestWait = 10;

HWND gDialog;

} // namespace

void PumpPending()
{
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (gDialog && IsDialogMessageA(gDialog, &message)) {
            continue;
        }
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void PumpForDialog(HWND dialog)
{
    gDialog = dialog;
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
