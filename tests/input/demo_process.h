// The demo host as a process of its own: a test reads its windows by messages, and works it by real input alone.
#pragma once

#include "input/cell_at.h"

#include <windows.h>

#include <functional>
#include <string>

class DemoProcess {
public:
    // Starts the demo, which stands beside this program, and waits until it has painted its window.
    explicit DemoProcess(const std::string& arguments);
    ~DemoProcess(); // ends it if it still runs
    DemoProcess(const DemoProcess&) = delete;
    DemoProcess& operator=(const DemoProcess&) = delete;

    // Looks again and again until the condition holds. False if it didn't within some seconds.
    static bool WaitFor(const std::function<bool()>& condition);

    bool IsReady() const { return ready_; } // it has painted its window, and gets the keys
    bool HasEnded() const { return WaitForSingleObject(process_, 0) == WAIT_OBJECT_0; }
    int  ExitCode() const;

    HWND        frame() const { return frame_; }
    HWND        grid() const { return grid_; }
    HWND        phases() const { return phases_; }
    LRESULT     Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const; // the grid
    LRESULT     AskPhases(UINT message, WPARAM wParam = 0) const;
    HWND        Focus() const;
    HWND        Editor() const; // the current column's
    HWND        Dialog() const; // an open message box, or null
    CellAt      Current() const;
    int         RowCount() const { return static_cast<int>(Ask(HGM_GETROWCOUNT)); }
    std::string CellText(CellAt cell) const;
    std::string EditorText() const;
    std::string Title() const;
    std::string Status(int part) const;

    POINT MiddleOf(CellAt cell) const; // in client coordinates of the grid
    void  Click(CellAt cell, unsigned modifiers = 0) const;
    void  ClickPhase(int item, unsigned modifiers = 0) const;
    void  ClickButton(const char* caption) const;

private:
    void Start(const std::string& arguments);
    void FindWindows();
    bool ReadsReady();
    // A text that a window writes into memory of its own process.
    std::string RemoteText(HWND hwnd, UINT message, WPARAM wParam) const;

    HANDLE      process_ = nullptr;
    DWORD       threadId_ = 0;
    HANDLE      output_ = nullptr; // the reading end
    std::string printed_;
    void*       remote_ = nullptr;
    HWND        frame_ = nullptr;
    HWND        grid_ = nullptr;
    HWND        phases_ = nullptr;
    HWND        status_ = nullptr;
    bool        ready_ = false;
};
