// Bare windows of the rig, of the platform without a screen.
#include "gridctl/grid_rig.h"

#include "grid_fakes.h"
#include "grid_window_fakes.h"
#include "native_platform.h"

HWND RigWindow(int width, int height)
{
    NativeWindow window;
    window.client = { 0, 0, width, height };
    return NativeCreateWindow(window);
}

void RigWindowEnd(HWND hwnd)
{
    NativeDestroyWindow(hwnd);
}

void RigWindowResize(HWND hwnd, int width, int height)
{
    NativeWindowOf(hwnd).client = { 0, 0, width, height };
}

void RigStart()
{
    NativeReset();
    FakesReset();
    WindowFakesReset();
    WindowFakes().onRecalc = [](HGridCtl* ctl) { HGCountRows(ctl); };
}
