// The functions for several monitors, found at run time, and what stands in for them on a system that lacks them.
#pragma once

#include <windows.h>

// All of the functions, or none of them.
struct MonitorStubs {
    int(WINAPI* getSystemMetrics)(int index);
    HMONITOR(WINAPI* monitorFromWindow)(HWND hwnd, DWORD flags);
    HMONITOR(WINAPI* monitorFromRect)(const RECT* rect, DWORD flags);
    HMONITOR(WINAPI* monitorFromPoint)(POINT point, DWORD flags);
    BOOL(WINAPI* enumDisplayMonitors)(HDC hdc, const RECT* clip, MONITORENUMPROC callback, LPARAM data);
    BOOL(WINAPI* getMonitorInfo)(HMONITOR monitor, MONITORINFO* info);
    BOOL(WINAPI* enumDisplayDevices)(const char* device, DWORD index, DISPLAY_DEVICEA* info, DWORD flags);
    bool initialised;
    bool isNT; // the platform's family
};

// Whoever finds a function of the system by its name; null for one that is missing.
using FindSystemFunction = FARPROC (*)(const char* name);

// Binds the functions. Null: the system's own. The calls below do it by themselves.
void BindMonitors(FindSystemFunction find);
// Forgets what is bound, so that the next call below binds again.
void ForgetMonitors();
const MonitorStubs& BoundMonitors();

int      MonitorMetrics(int index);
HMONITOR MonitorOfWindow(HWND hwnd, DWORD flags);
HMONITOR MonitorOfRect(const RECT* rect, DWORD flags);
HMONITOR MonitorOfPoint(POINT point, DWORD flags);
BOOL     MonitorInfo(HMONITOR monitor, MONITORINFO* info);
BOOL     EachMonitor(HDC hdc, const RECT* clip, MONITORENUMPROC callback, LPARAM data);
BOOL     EachDisplayDevice(const char* device, DWORD index, DISPLAY_DEVICEA* info, DWORD flags);
