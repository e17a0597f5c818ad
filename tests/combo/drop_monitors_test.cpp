// The functions for several monitors: how they are bound, and what stands in for them.
#include "combo/monitor_stubs.h"

#include "combo/drop_window.h"
#include "support/import_hook.h"

#include <cstring>
#include <string>
#include <vector>

namespace {

HMONITOR const onlyMonitor = reinterpret_cast<HMONITOR>(ULONG_PTR{ 0x12340042 });
HMONITOR const boundMonitor = reinterpret_cast<HMONITOR>(ULONG_PTR{ 0x77 });

RECT gBoundMonitor; // what the bound table tells of its one monitor
bool gKnowsMonitor;

int WINAPI BoundMetrics(int index)
{
    return 1000 + index;
}
HMONITOR WINAPI BoundFromWindow(HWND, DWORD)
{
    return boundMonitor;
}
HMONITOR WINAPI BoundFromRect(const RECT*, DWORD)
{
    return gKnowsMonitor ? boundMonitor : nullptr;
}
HMONITOR WINAPI BoundFromPoint(POINT point, DWORD)
{
    return reinterpret_cast<HMONITOR>(static_cast<LONG_PTR>(point.x * 1000 + point.y));
}
BOOL WINAPI BoundEnumMonitors(HDC, const RECT*, MONITORENUMPROC, LPARAM data)
{
    return static_cast<BOOL>(data);
}
BOOL WINAPI BoundInfo(HMONITOR, MONITORINFO* info)
{
    info->rcMonitor = gBoundMonitor;
    info->rcWork = {};
    return TRUE;
}
BOOL WINAPI BoundEnumDevices(const char*, DWORD index, DISPLAY_DEVICEA*, DWORD)
{
    return static_cast<BOOL>(index);
}

struct BoundFunction {
    const char* name;
    void*       function;
};

const BoundFunction boundFunctions[] = {
    { "GetSystemMetrics", reinterpret_cast<void*>(BoundMetrics) },
    { "MonitorFromWindow", reinterpret_cast<void*>(BoundFromWindow) },
    { "MonitorFromRect", reinterpret_cast<void*>(BoundFromRect) },
    { "MonitorFromPoint", reinterpret_cast<void*>(BoundFromPoint) },
    { "EnumDisplayMonitors", reinterpret_cast<void*>(BoundEnumMonitors) },
    { "GetMonitorInfoA", reinterpret_cast<void*>(BoundInfo) },
    { "EnumDisplayDevicesA", reinterpret_cast<void*>(BoundEnumDevices) },
};

std::vector<std::string> gAsked;
std::string              gMissing; // a name that the table doesn't know

FARPROC FindInTable(const char* name)
{
    gAsked.push_back(name);
    for (const BoundFunction& entry : boundFunctions) {
        if (gMissing != name && std::strcmp(entry.name, name) == 0) {
            return reinterpret_cast<FARPROC>(entry.function);
        }
    }
    return nullptr;
}

FARPROC FindNothing(const char*)
{
    return nullptr;
}

class Monitors : public DropWindow {
protected:
    Monitors()
    {
        gAsked.clear();
        gMissing.clear();
        gKnowsMonitor = true;
        gBoundMonitor = { 0, 0, 600, 400 };
    }
    ~Monitors() override { ForgetMonitors(); }

    static int ScreenWidth() { return GetSystemMetrics(SM_CXSCREEN); }
    static int ScreenHeight() { return GetSystemMetrics(SM_CYSCREEN); }
};

TEST_F(Monitors, AreAskedForByNameInOrder)
{
    BindMonitors(FindInTable);
    EXPECT_EQ((std::vector<std::string>{ "GetSystemMetrics", "MonitorFromWindow", "MonitorFromRect", "MonitorFromPoint",
                                         "EnumDisplayMonitors", "GetMonitorInfoA", "EnumDisplayDevicesA" }),
              gAsked);
    EXPECT_TRUE(BoundMonitors().initialised);
    EXPECT_TRUE(BoundMonitors().isNT);
}

TEST_F(Monitors, BoundFunctionsAreCalled)
{
    BindMonitors(FindInTable);
    RECT            rect = {};
    MONITORINFO     info = {};
    DISPLAY_DEVICEA device = {};
    EXPECT_EQ(1000 + SM_CXSCREEN, MonitorMetrics(SM_CXSCREEN));
    EXPECT_EQ(boundMonitor, MonitorOfWindow(nullptr, 0));
    EXPECT_EQ(boundMonitor, MonitorOfRect(&rect, 0));
    EXPECT_EQ(reinterpret_cast<HMONITOR>(ULONG_PTR{ 3004 }), MonitorOfPoint({ 3, 4 }, 0));
    EXPECT_EQ(5, EachMonitor(nullptr, nullptr, nullptr, 5));
    EXPECT_EQ(TRUE, MonitorInfo(nullptr, &info));
    EXPECT_EQ(600, info.rcMonitor.right);
    EXPECT_EQ(6, EachDisplayDevice(nullptr, 6, &device, 0));
}

TEST_F(Monitors, OneMissingFunctionLeavesAllOut)
{
    for (const BoundFunction& entry : boundFunctions) {
        SCOPED_TRACE(entry.name);
        gMissing = entry.name;
        BindMonitors(FindInTable);
        EXPECT_TRUE(BoundMonitors().initialised);
        EXPECT_EQ(nullptr, BoundMonitors().getSystemMetrics);
        EXPECT_EQ(nullptr, BoundMonitors().enumDisplayDevices);
        EXPECT_EQ(ScreenWidth(), MonitorMetrics(SM_CXSCREEN));
        EXPECT_EQ(onlyMonitor, MonitorOfPoint({ 3, 4 }, 0));
    }
}

TEST_F(Monitors, AreTheSystemsOwnAtFirstUse)
{
    ForgetMonitors();
    RECT        rect = { 10, 10, 20, 20 };
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_EQ(MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST), MonitorOfRect(&rect, MONITOR_DEFAULTTONEAREST));
    EXPECT_TRUE(BoundMonitors().initialised);
    EXPECT_NE(nullptr, BoundMonitors().getMonitorInfo);
    EXPECT_TRUE(MonitorInfo(MonitorOfRect(&rect, MONITOR_DEFAULTTONEAREST), &info));
    EXPECT_EQ(ScreenWidth(), info.rcMonitor.right);
}

TEST_F(Monitors, FallBackKnowsOneScreen)
{
    struct Row {
        int index;
        int value;
    };
    const Row rows[] = {
        { SM_XVIRTUALSCREEN, 0 },
        { SM_YVIRTUALSCREEN, 0 },
        { SM_CXVIRTUALSCREEN, ScreenWidth() },
        { SM_CYVIRTUALSCREEN, ScreenHeight() },
        { SM_CMONITORS, 1 },
        { SM_SAMEDISPLAYFORMAT, 1 },
        { SM_CXSCREEN, ScreenWidth() },
        { SM_CYSCREEN, ScreenHeight() },
        { SM_CXVSCROLL, GetSystemMetrics(SM_CXVSCROLL) },
    };
    BindMonitors(FindNothing);
    for (const Row& row : rows) {
        EXPECT_EQ(row.value, MonitorMetrics(row.index)) << row.index;
    }
}

TEST_F(Monitors, FallBackTellsWhetherARectangleIsOnTheScreen)
{
    struct Row {
        RECT rect;
        bool isOn;
    };
    const LONG width = ScreenWidth();
    const LONG height = ScreenHeight();
    const Row  rows[] = {
         { { 0, 0, 10, 10 }, true },
         { { -10, 0, 0, 10 }, false },
         { { -10, 0, 1, 10 }, true },
         { { 0, -10, 10, 0 }, false },
         { { 0, -10, 10, 1 }, true },
         { { width, 0, width + 10, 10 }, false },
         { { width - 1, 0, width + 10, 10 }, true },
         { { 0, height, 10, height + 10 }, false },
         { { 0, height - 1, 10, height + 10 }, true },
    };
    BindMonitors(FindNothing);
    for (const Row& row : rows) {
        EXPECT_EQ(row.isOn ? onlyMonitor : nullptr, MonitorOfRect(&row.rect, MONITOR_DEFAULTTONULL))
            << row.rect.left << ", " << row.rect.top;
        EXPECT_EQ(onlyMonitor, MonitorOfRect(&row.rect, MONITOR_DEFAULTTOPRIMARY));
        EXPECT_EQ(onlyMonitor, MonitorOfRect(&row.rect, MONITOR_DEFAULTTONEAREST));
    }
}

TEST_F(Monitors, FallBackTellsWhetherAPointIsOnTheScreen)
{
    struct Row {
        POINT point;
        bool  isOn;
    };
    const LONG width = ScreenWidth();
    const LONG height = ScreenHeight();
    const Row  rows[] = { { { 0, 0 }, true },      { { -1, 0 }, false },
                          { { 0, -1 }, false },    { { width - 1, height - 1 }, true },
                          { { width, 0 }, false }, { { 0, height }, false } };
    BindMonitors(FindNothing);
    for (const Row& row : rows) {
        EXPECT_EQ(row.isOn ? onlyMonitor : nullptr, MonitorOfPoint(row.point, 0)) << row.point.x << ", " << row.point.y;
        EXPECT_EQ(onlyMonitor, MonitorOfPoint(row.point, MONITOR_DEFAULTTONEAREST));
    }
}

TEST_F(Monitors, FallBackTellsWhereAWindowIs)
{
    BindMonitors(FindNothing);
    EXPECT_EQ(onlyMonitor, MonitorOfWindow(parent.hwnd(), 0));
    EXPECT_EQ(nullptr, MonitorOfWindow(nullptr, 0)) << "no window has no place";
    EXPECT_EQ(onlyMonitor, MonitorOfWindow(nullptr, MONITOR_DEFAULTTOPRIMARY));
    MoveWindow(parent.hwnd(), -3000, 40, 720, 520, FALSE);
    EXPECT_EQ(nullptr, MonitorOfWindow(parent.hwnd(), 0));
}

TEST_F(Monitors, FallBackTakesAnIconForWhereItsWindowWouldOpen)
{
    BindMonitors(FindNothing);
    const HWND window = CreateWindowExA(0, "STATIC", "", WS_OVERLAPPEDWINDOW, 30, 30, 200, 100, nullptr, nullptr,
                                        GetModuleHandleA(nullptr), nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    ShowWindow(window, SW_SHOWMINNOACTIVE);
    ASSERT_TRUE(IsIconic(window));
    EXPECT_EQ(onlyMonitor, MonitorOfWindow(window, 0));
    DestroyWindow(window);
}

TEST_F(Monitors, FallBackTellsOfTheOnlyMonitor)
{
    BindMonitors(FindNothing);
    MONITORINFOEXA info = {};
    RECT           work = {};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    for (const DWORD size : { DWORD{ 40 }, DWORD{ 71 }, DWORD{ 72 } }) {
        SCOPED_TRACE(size);
        info = {};
        info.cbSize = size;
        EXPECT_EQ(1, MonitorInfo(onlyMonitor, &info));
        EXPECT_EQ(0, info.rcMonitor.left);
        EXPECT_EQ(0, info.rcMonitor.top);
        EXPECT_EQ(ScreenWidth(), info.rcMonitor.right);
        EXPECT_EQ(ScreenHeight(), info.rcMonitor.bottom);
        EXPECT_TRUE(EqualRect(&work, &info.rcWork));
        EXPECT_EQ(1u, info.dwFlags);
        EXPECT_STREQ(size == 72 ? "DISPLAY" : "", info.szDevice);
    }
}

BOOL WINAPI NoParameters(UINT, UINT, void*, UINT)
{
    return FALSE;
}

TEST_F(Monitors, FallBackTellsNothingOfOthers)
{
    BindMonitors(FindNothing);
    MONITORINFO info = {};
    info.cbSize = 39;
    EXPECT_EQ(0, MonitorInfo(onlyMonitor, &info));
    EXPECT_EQ(0, MonitorInfo(onlyMonitor, nullptr));
    info.cbSize = sizeof info;
    EXPECT_EQ(0, MonitorInfo(nullptr, &info));
    EXPECT_EQ(0, MonitorInfo(boundMonitor, &info));
    const ImportHook hook("SystemParametersInfoA", NoParameters);
    EXPECT_EQ(0, MonitorInfo(onlyMonitor, &info));
    EXPECT_EQ(0, info.rcMonitor.right);
}

struct EachSeen {
    int      calls = 0;
    HMONITOR monitor = nullptr;
    HDC      hdc = nullptr;
    RECT     rect = {};
    BOOL     answer = 7;
};

BOOL CALLBACK NoteMonitor(HMONITOR monitor, HDC hdc, LPRECT rect, LPARAM data)
{
    EachSeen* const noted = reinterpret_cast<EachSeen*>(data);
    ++noted->calls;
    noted->monitor = monitor;
    noted->hdc = hdc;
    noted->rect = *rect;
    return noted->answer;
}

TEST_F(Monitors, FallBackWalksOverTheOnlyMonitor)
{
    BindMonitors(FindNothing);
    EachSeen     noted;
    const LPARAM data = reinterpret_cast<LPARAM>(&noted);
    EXPECT_EQ(7, EachMonitor(nullptr, nullptr, NoteMonitor, data));
    EXPECT_EQ(1, noted.calls);
    EXPECT_EQ(onlyMonitor, noted.monitor);
    EXPECT_EQ(ScreenWidth(), noted.rect.right);
    constexpr RECT clip = { 50, 60, 70, 5000 };
    EXPECT_EQ(7, EachMonitor(nullptr, &clip, NoteMonitor, data));
    EXPECT_EQ(50, noted.rect.left);
    EXPECT_EQ(60, noted.rect.top);
    EXPECT_EQ(70, noted.rect.right);
    EXPECT_EQ(ScreenHeight(), noted.rect.bottom);
    constexpr RECT outside = { -50, -60, -10, -10 };
    EXPECT_EQ(1, EachMonitor(nullptr, &outside, NoteMonitor, data));
    EXPECT_EQ(2, noted.calls);
    EXPECT_EQ(0, EachMonitor(nullptr, nullptr, nullptr, data));
}

TEST_F(Monitors, FallBackWalksOverThePartThatADeviceContextShows)
{
    BindMonitors(FindNothing);
    EachSeen  noted;
    const HDC hdc = GetDC(parent.hwnd());
    // The parent stands at 40, 40.
    IntersectClipRect(hdc, 10, 20, 30, 50);
    EXPECT_EQ(7, EachMonitor(hdc, nullptr, NoteMonitor, reinterpret_cast<LPARAM>(&noted)));
    EXPECT_EQ(hdc, noted.hdc);
    EXPECT_EQ(10, noted.rect.left);
    EXPECT_EQ(20, noted.rect.top);
    EXPECT_EQ(30, noted.rect.right);
    EXPECT_EQ(50, noted.rect.bottom);
    constexpr RECT clip = { 0, 0, 15, 100 };
    EachMonitor(hdc, &clip, NoteMonitor, reinterpret_cast<LPARAM>(&noted));
    EXPECT_EQ(10, noted.rect.left);
    EXPECT_EQ(15, noted.rect.right);
    IntersectClipRect(hdc, 300, 300, 310, 310);
    EXPECT_EQ(1, EachMonitor(hdc, nullptr, NoteMonitor, reinterpret_cast<LPARAM>(&noted)));
    EXPECT_EQ(2, noted.calls);
    ReleaseDC(parent.hwnd(), hdc);
}

TEST_F(Monitors, FallBackKnowsOneDevice)
{
    BindMonitors(FindNothing);
    DISPLAY_DEVICEA info = {};
    info.cb = 424;
    EXPECT_EQ(1, EachDisplayDevice(nullptr, 0, &info, 0));
    EXPECT_STREQ("DISPLAY", info.DeviceName);
    EXPECT_STREQ("DISPLAY", info.DeviceString);
    EXPECT_EQ(5u, info.StateFlags);
    EXPECT_EQ(0, EachDisplayDevice(nullptr, 1, &info, 0));
    EXPECT_EQ(0, EachDisplayDevice("DISPLAY", 0, &info, 0));
    EXPECT_EQ(0, EachDisplayDevice(nullptr, 0, nullptr, 0));
    info.cb = 423;
    EXPECT_EQ(0, EachDisplayDevice(nullptr, 0, &info, 0));
}

// The parent's client area begins at 40, 40 of the screen.
TEST_F(Monitors, ListGoesToTheMonitorOfItsCombo)
{
    BindMonitors(FindInTable);
    MakeCombo(0, "%100%150%ss", { 10, 10, 120, 24 });
    Open();
    EXPECT_EQ(50, DropRect().left);
    EXPECT_EQ(ComboRect().bottom, DropRect().top);
    Close();
    gBoundMonitor = { 60, 0, 600, 400 };
    Open();
    EXPECT_EQ(60, DropRect().left) << "the combo is left of the monitor";
    Close();
    gBoundMonitor = { 0, 0, 180, 400 };
    Open();
    EXPECT_EQ(180, DropRect().right) << "the list would go past the right edge";
    Close();
    gBoundMonitor = { 0, 0, 150, 400 };
    Open();
    EXPECT_EQ(50, DropRect().left) << "the list is as wide as the monitor";
    Close();
    gBoundMonitor = { 0, 0, 600, 100 };
    Open();
    EXPECT_EQ(0, DropRect().top) << "neither below nor above has room";
}

TEST_F(Monitors, WithoutInformationTheListGoesByTheScreensMeasures)
{
    gKnowsMonitor = false;
    BindMonitors(FindInTable);
    // The bound measures are 1000 by 1001.
    MakeCombo(0, "%100%300%ss", { 670, 10, 40, 24 });
    MoveWindow(parent.hwnd(), 200, 40, 720, 520, FALSE);
    Open();
    EXPECT_EQ(1000, DropRect().right);
}

TEST_F(Monitors, WithoutTheFunctionsTheListGoesByTheScreen)
{
    BindMonitors(FindNothing);
    MakeCombo(0, "%100%300%ss", { 670, 10, 40, 24 });
    MoveWindow(parent.hwnd(), ScreenWidth() - 710, 40, 720, 520, FALSE);
    Open();
    EXPECT_EQ(ScreenWidth(), DropRect().right);
}

} // namespace
