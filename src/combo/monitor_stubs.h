// The functions for several monitors, found at run time, and what stands in for them on a system that lacks them.
#pragma once

#include <windows.h>

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

// Whoever finds a function of the system by its name. A test puts another one in.
using FindSystemFunction = FARPROC (*)(const char* name);

// Fills the table; where one function is missing, none is taken. Null: the system's own functions.
void BindMonitors(FindSystemFunction find);
// Forgets the table, so that the next call below fills it again.
void ForgetMonitors();

int      MonitorMetrics(int index);
HMONITOR MonitorOfWindow(HWND hwnd, DWORD flags);
HMONITOR MonitorOfRect(const RECT* rect, DWORD flags);
HMONITOR MonitorOfPoint(POINT point, DWORD flags);
BOOL     MonitorInfo(HMONITOR monitor, MONITORINFO* info);
BOOL     EachMonitor(HDC hdc, const RECT* clip, MONITORENUMPROC callback, LPARAM data);
BOOL     EachDisplayDevice(const char* device, DWORD index, DISPLAY_DEVICEA* info, DWORD flags);
