// The binding of the functions for several monitors, and the answers for a system of one monitor that lacks them.
#include "combo/monitor_stubs.h"

#include "foundation/memory.h"

namespace {

MonitorStubs gStubs;

constexpr DWORD     anyMonitorFlags = MONITOR_DEFAULTTOPRIMARY | MONITOR_DEFAULTTONEAREST;
constexpr char      onlyDevice[] = "DISPLAY";
constexpr DWORD     leastDeviceSize = 424;
constexpr ULONG_PTR onlyMonitorValue = 0x12340042;

HMONITOR OnlyMonitor()
{
    return reinterpret_cast<HMONITOR>(onlyMonitorValue);
}

FARPROC FindInUser32(const char* name)
{
    const HMODULE user32 = GetModuleHandleA("USER32");
    return user32 ? GetProcAddress(user32, name) : nullptr;
}

bool IsPlatformNT()
{
    OSVERSIONINFOA version = {};
    version.dwOSVersionInfoSize = sizeof version;
    return GetVersionExA(&version) && version.dwPlatformId == VER_PLATFORM_WIN32_NT;
}

// False if the system doesn't have the function.
template <typename Function>
bool Bind(FindSystemFunction find, const char* name, Function* out)
{
    *out = reinterpret_cast<Function>(reinterpret_cast<void*>(find(name)));
    return *out != nullptr;
}

bool BindAll(FindSystemFunction find, MonitorStubs* stubs)
{
    return Bind(find, "GetSystemMetrics", &stubs->getSystemMetrics) &&
           Bind(find, "MonitorFromWindow", &stubs->monitorFromWindow) &&
           Bind(find, "MonitorFromRect", &stubs->monitorFromRect) &&
           Bind(find, "MonitorFromPoint", &stubs->monitorFromPoint) &&
           Bind(find, "EnumDisplayMonitors", &stubs->enumDisplayMonitors) &&
           Bind(find, "GetMonitorInfoA", &stubs->getMonitorInfo) &&
           Bind(find, "EnumDisplayDevicesA", &stubs->enumDisplayDevices);
}

bool IsBound()
{
    return BoundMonitors().getMonitorInfo != nullptr;
}

RECT ScreenRect()
{
    return { 0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) };
}

// A window that is an icon counts where it would be opened.
bool WindowPlace(HWND hwnd, RECT* out)
{
    if (!IsIconic(hwnd)) {
        return GetWindowRect(hwnd, out) != 0;
    }
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    const bool found = GetWindowPlacement(hwnd, &placement) != 0;
    *out = placement.rcNormalPosition;
    return found;
}

// The part of a device context that can be seen, with the screen's corner as its origin. An empty one is no failure.
bool VisiblePart(HDC hdc, RECT* rect)
{
    RECT  clip;
    POINT origin;
    if (GetClipBox(hdc, &clip) == ERROR || !GetDCOrgEx(hdc, &origin)) {
        return false;
    }
    OffsetRect(rect, -origin.x, -origin.y);
    const RECT screen = *rect;
    IntersectRect(rect, &screen, &clip);
    return true;
}

} // namespace

void BindMonitors(FindSystemFunction find)
{
    MonitorStubs stubs = {};
    if (!BindAll(find ? find : FindInUser32, &stubs)) {
        stubs = {};
    }
    stubs.initialised = true;
    stubs.isNT = IsPlatformNT();
    gStubs = stubs;
}

void ForgetMonitors()
{
    gStubs = {};
}

const MonitorStubs& BoundMonitors()
{
    if (!gStubs.initialised) {
        BindMonitors(nullptr);
    }
    return gStubs;
}

int MonitorMetrics(int index)
{
    if (IsBound()) {
        return gStubs.getSystemMetrics(index);
    }
    switch (index) {
    case SM_XVIRTUALSCREEN:
    case SM_YVIRTUALSCREEN:    return 0;
    case SM_CXVIRTUALSCREEN:   return GetSystemMetrics(SM_CXSCREEN);
    case SM_CYVIRTUALSCREEN:   return GetSystemMetrics(SM_CYSCREEN);
    case SM_CMONITORS:
    case SM_SAMEDISPLAYFORMAT: return 1;
    default:                   return GetSystemMetrics(index);
    }
}

HMONITOR MonitorOfRect(const RECT* rect, DWORD flags)
{
    if (IsBound()) {
        return gStubs.monitorFromRect(rect, flags);
    }
    const RECT screen = ScreenRect();
    const bool isOn = (flags & anyMonitorFlags) ||
                      (rect->right > 0 && rect->bottom > 0 && rect->left < screen.right && rect->top < screen.bottom);
    return isOn ? OnlyMonitor() : nullptr;
}

HMONITOR MonitorOfPoint(POINT point, DWORD flags)
{
    if (IsBound()) {
        return gStubs.monitorFromPoint(point, flags);
    }
    const RECT screen = ScreenRect();
    return (flags & anyMonitorFlags) || PtInRect(&screen, point) ? OnlyMonitor() : nullptr;
}

HMONITOR MonitorOfWindow(HWND hwnd, DWORD flags)
{
    if (IsBound()) {
        return gStubs.monitorFromWindow(hwnd, flags);
    }
    if (flags & anyMonitorFlags) {
        return OnlyMonitor();
    }
    RECT rect = {};
    return WindowPlace(hwnd, &rect) ? MonitorOfRect(&rect, flags) : nullptr;
}

BOOL MonitorInfo(HMONITOR monitor, MONITORINFO* info)
{
    if (IsBound()) {
        return gStubs.getMonitorInfo(monitor, info);
    }
    RECT work;
    if (monitor != OnlyMonitor() || !info || info->cbSize < sizeof(MONITORINFO) ||
        !SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0)) {
        return FALSE;
    }
    info->rcMonitor = ScreenRect();
    info->rcWork = work;
    info->dwFlags = MONITORINFOF_PRIMARY;
    if (info->cbSize >= sizeof(MONITORINFOEXA)) {
        MONITORINFOEXA* const named = reinterpret_cast<MONITORINFOEXA*>(info);
        _fstrnzcpy(named->szDevice, onlyDevice, sizeof named->szDevice);
    }
    return TRUE;
}

BOOL EachMonitor(HDC hdc, const RECT* clip, MONITORENUMPROC callback, LPARAM data)
{
    if (IsBound()) {
        return gStubs.enumDisplayMonitors(hdc, clip, callback, data);
    }
    RECT rect = ScreenRect();
    if (!callback || (hdc && !VisiblePart(hdc, &rect))) {
        return FALSE;
    }
    if (clip) {
        const RECT visible = rect;
        IntersectRect(&rect, &visible, clip);
    }
    return IsRectEmpty(&rect) ? TRUE : callback(OnlyMonitor(), hdc, &rect, data);
}

BOOL EachDisplayDevice(const char* device, DWORD index, DISPLAY_DEVICEA* info, DWORD flags)
{
    if (IsBound()) {
        return gStubs.enumDisplayDevices(device, index, info, flags);
    }
    if (device || index != 0 || !info || info->cb < leastDeviceSize) {
        return FALSE;
    }
    _fstrnzcpy(info->DeviceName, onlyDevice, sizeof info->DeviceName);
    _fstrnzcpy(info->DeviceString, onlyDevice, sizeof info->DeviceString);
    info->StateFlags = DISPLAY_DEVICE_ATTACHED_TO_DESKTOP | DISPLAY_DEVICE_PRIMARY_DEVICE;
    return TRUE;
}
