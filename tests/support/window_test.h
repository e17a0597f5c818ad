// The fixture of window tests: a parent window on the screen, controls in it, and a recorder of what they say.
// Also for programs that have the DLL only.
#pragma once

#include "support/gdi_leaks.h"
#include "support/input.h"
#include "support/pump.h"
#include "support/recorder.h"

#include <gtest/gtest.h>

#include <widgets/widgets.h>

#include <functional>
#include <map>
#include <string>

// A top-level window that answers notifications and messages as a test tells it.
class ParentWindow {
public:
    explicit ParentWindow(Recorder* recorder);
    ~ParentWindow();
    ParentWindow(const ParentWindow&) = delete;
    ParentWindow& operator=(const ParentWindow&) = delete;

    // Runs a handler when a notification comes: parent.On(HGN_MOVED, [&] { ... }). Null takes it off.
    void On(int code, std::function<void()> handler);
    // Answers a message; WM_COMMAND is for On.
    void OnMessage(UINT message, std::function<LRESULT(WPARAM, LPARAM)> handler);
    // How often a notification has come since the start or the last ClearCounts.
    int  Count(int code) const;
    void ClearCounts() { counts_.clear(); }

    HWND hwnd() const { return hwnd_; }

private:
    static LRESULT CALLBACK WndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT                 Receive(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT                 Handle(UINT message, WPARAM wParam, LPARAM lParam);

    HWND                                                   hwnd_ = nullptr;
    Recorder*                                              recorder_;
    std::map<int, std::function<void()>>                   handlers_;
    std::map<UINT, std::function<LRESULT(WPARAM, LPARAM)>> messageHandlers_;
    std::map<int, int>                                     counts_;
};

class WindowTest : public testing::Test {
protected:
    WindowTest();
    ~WindowTest() override;

    // A visible child of the parent. rect is { x, y, width, height }.
    HWND Create(const char* className, const char* text, DWORD style = 0, int id = 100,
                RECT rect = { 10, 10, 400, 200 });

    static LRESULT Send(HWND hwnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    // With a pointer as lParam.
    static LRESULT SendPtr(HWND hwnd, UINT message, WPARAM wParam, const void* lParam);
    // The record of a control.
    template <typename Record>
    static Record* RecordOf(HWND hwnd)
    {
        return reinterpret_cast<Record*>(SendMessageA(hwnd, WWM_GETSTATE, 0, 0));
    }
    static std::string TextOf(HWND hwnd);

    GdiLeakCheck leaks; // stands first: it ends after the windows
    Recorder     seen;
    ParentWindow parent;
};
