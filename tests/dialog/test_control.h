// A control for tests of the message frame: its procedure is HandleMsg with a handler that a test scripts.
#pragma once

#include "dialog/control_frame.h"

#include "support/window_test.h"

#include <functional>
#include <vector>

class TestControl : public WindowTest {
protected:
    TestControl();
    ~TestControl() override;

    static constexpr const char* className = "TestControl";

    // A control with a record in its extra bytes.
    HWND CreateWithRecord(int id = 100);

    struct Handled {
        UINT  message;
        void* record;
    };
    std::vector<Handled> handled; // what reached the handler
    bool                 Reached(UINT message) const;

    // The handler; without it every message asks for the default.
    std::function<LRESULT(UINT message, WPARAM wParam, LPARAM lParam, int* pDefault)> handler;
    int           offset = 0;         // place of the record in the extra bytes
    bool          dropsRecord = true; // as controls do at WM_NCDESTROY
    ControlHeader record = {};

private:
    static LRESULT CALLBACK WndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK Handler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record);
};
