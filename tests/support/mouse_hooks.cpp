// Stands in for the system's functions that set hooks and take them off.
#include "support/mouse_hooks.h"

#include "support/import_hook.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

std::vector<HHOOK> gHooks;
HookSet            gLast;
bool               gFails;

HHOOK WINAPI SetHook(int kind, HOOKPROC proc, HINSTANCE module, DWORD thread)
{
    if (thread) {
        return SetWindowsHookExW(kind, proc, module, thread);
    }
    gLast = { kind, proc, module };
    const HHOOK hook = gFails ? nullptr : SetWindowsHookExW(kind, proc, nullptr, GetCurrentThreadId());
    if (hook) {
        gHooks.push_back(hook);
    }
    return hook;
}

BOOL WINAPI TakeHookOff(HHOOK hook)
{
    std::erase(gHooks, hook);
    // The import of this name leads here.
    static const auto takeOff = reinterpret_cast<BOOL(WINAPI*)(HHOOK)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("USER32"), "UnhookWindowsHookEx")));
    return takeOff(hook);
}

class HookCounter : public testing::Environment {
public:
    void SetUp() override
    {
        set_ = std::make_unique<ImportHook>("SetWindowsHookExA", SetHook);
        takenOff_ = std::make_unique<ImportHook>("UnhookWindowsHookEx", TakeHookOff);
    }

private:
    std::unique_ptr<ImportHook> set_;
    std::unique_ptr<ImportHook> takenOff_;
};

testing::Environment* const gCounter = testing::AddGlobalTestEnvironment(new HookCounter);

} // namespace

int LiveHooks()
{
    return static_cast<int>(gHooks.size());
}

HookSet LastHook()
{
    return gLast;
}

void FailHooks(bool fail)
{
    gFails = fail;
}
