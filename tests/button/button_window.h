// The fixture of the button control's window tests: a button in a parent, driven by short names.
#pragma once

#include "button/button_internal.h"
#include "support/window_test.h"

#include <string>
#include <vector>

class ButtonWindow : public WindowTest {
protected:
    // Makes a visible button at 10, 10 of the parent with the id 7; a second one replaces the first.
    HWND Make(const char* text, DWORD style = HBS_PUSH, int width = 80, int height = 30)
    {
        if (button && IsWindow(button)) {
            DestroyWindow(button);
        }
        button = WindowTest::Create("HButt", text, style, 7, { 10, 10, width, height });
        PumpPending();
        seen.Clear();
        parent.ClearCounts();
        return button;
    }
    HButtCtl* Ctl() const { return RecordOf<HButtCtl>(button); }
    LRESULT   Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendMessageA(button, message, wParam, lParam);
    }
    LRESULT SendPtr(UINT message, WPARAM wParam, const void* lParam) const
    {
        return Send(message, wParam, reinterpret_cast<LPARAM>(lParam));
    }
    int  State() const { return Ctl()->bState; }
    int  Value() const { return static_cast<int>(Send(BM_GETCHECK)); }
    bool IsPressed() const { return Send(BM_GETSTATE) != 0; }
    bool IsNull() const { return Send(WWM_ISNULL) != 0; }
    bool IsChanged() const { return Send(WWM_GETCHANGED) != 0; }
    bool IsInvalid() const { return GetUpdateRect(button, nullptr, FALSE) != 0; }
    void Validate() const { ValidateRect(button, nullptr); }
    int  Clicks() const { return parent.Count(HBN_CLICKED); }
    void Focus() const
    {
        SetFocus(button);
        PumpPending();
    }
    std::string Caption() const { return TextOf(button); }
    // The rest of the test needs no button.
    void DestroyButton() const { DestroyWindow(button); }

    HWND button = nullptr;
};
