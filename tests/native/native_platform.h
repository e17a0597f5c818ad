// What tests of the native build can set and see of the platform behind the small <windows.h>.
// native_platform.cpp is the platform: a clock, files, resources, windows without a screen, one fixed-pitch font.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// A window that has no screen. NativeCreateWindow makes one, NativeDestroyWindow ends it.
struct NativeWindow {
    HWND                    parent = nullptr;
    std::string             className;
    RECT                    client = { 0, 0, 640, 480 };
    bool                    visible = true;
    WNDPROC                 wndProc = nullptr; // gets what SendMessageA sends, unless onSendMessage is set
    std::map<int, LONG_PTR> longs;             // extra bytes and GWL_ values by index
    int                     invalidations = 0; // calls of InvalidateRect
    int                     updates = 0;       // calls of UpdateWindow
};

struct NativeResource {
    std::string       name; // "#12" for a number
    std::string       type;
    std::vector<BYTE> bytes;
};

struct NativeMessage {
    HWND   hwnd;
    UINT   message;
    WPARAM wParam;
    LPARAM lParam;
};

struct NativePlatform {
    // Set by tests
    SYSTEMTIME                                         localTime = { 2024, 2, 4, 29, 13, 14, 15, 160 };
    DWORD                                              tickCount = 1000;
    DWORD                                              version = 0x0A;   // as GetVersion: major in the low byte
    bool                                               hasScreen = true; // GetDC gives a DC
    int                                                dpiX = 96;
    int                                                dpiY = 96;
    std::map<int, int>                                 systemMetrics; // by SM_ index; 0 where nothing is set
    int                                                charWidth = 8; // of the one font there is
    int                                                charHeight = 16;
    std::vector<NativeResource>                        resources;
    std::function<LRESULT(HWND, UINT, WPARAM, LPARAM)> onSendMessage;

    // Seen by tests
    int                          beeps = 0;
    std::vector<std::string>     debugOutput;     // a text a call of OutputDebugStringA
    int                          screenReads = 0; // calls of GetDeviceCaps for LOGPIXELSX
    int                          openDCs = 0;
    std::vector<NativeMessage>   posted; // by PostMessageA
    std::map<HWND, NativeWindow> windows;
};

NativePlatform& Native();
// Back to the start values above.
void NativeReset();

HWND          NativeCreateWindow(const NativeWindow& window = {});
void          NativeDestroyWindow(HWND hwnd);
NativeWindow& NativeWindowOf(HWND hwnd); // the window must exist
