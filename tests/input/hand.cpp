// The user's other hand.
#include "input/hand.h"

#include "support/input.h"

namespace {

constexpr DWORD limitMs = 10000;
constexpr DWORD lookMs = 5; // between two looks at the condition

} // namespace

Hand::Hand(std::function<bool()> condition, std::function<void()> deed)
    : condition_(std::move(condition)), deed_(std::move(deed)), thread_(CreateThread(nullptr, 0, Run, this, 0, nullptr))
{
}

Hand::~Hand()
{
    // The thread may be waiting for an answer of this one.
    while (MsgWaitForMultipleObjects(1, &thread_, FALSE, INFINITE, QS_SENDMESSAGE) != WAIT_OBJECT_0) {
        MSG message;
        PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
    }
    CloseHandle(thread_);
}

bool Hand::WaitFor(const std::function<bool()>& condition)
{
    const DWORD start = GetTickCount();
    bool        held = condition();
    while (!held && GetTickCount() - start < limitMs) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, lookMs, QS_ALLINPUT);
        held = condition();
    }
    return held;
}

DWORD WINAPI Hand::Run(void* parameter)
{
    Hand* const self = static_cast<Hand*>(parameter);
    self->held_ = WaitFor(self->condition_);
    self->deed_();
    return 0;
}

void Hand::MoveTo(POINT screen)
{
    SendMouse(screen, 0);
}

void Hand::Lift(POINT screen, unsigned modifiers)
{
    SendMouse(screen, MOUSEEVENTF_LEFTUP, modifiers);
}
