// Bare windows of the rig: windows of the platform's own class, never shown.
#include "gridctl/grid_rig.h"

HWND RigWindow(int width, int height)
{
    return CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, width, height, nullptr, nullptr, GetModuleHandleA(nullptr),
                           nullptr);
}

void RigWindowEnd(HWND hwnd)
{
    if (IsWindow(hwnd)) {
        DestroyWindow(hwnd);
    }
}

void RigWindowResize(HWND hwnd, int width, int height)
{
    SetWindowPos(hwnd, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void RigStart() {}
