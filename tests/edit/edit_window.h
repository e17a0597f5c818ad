// The fixture of the edit control's window tests: a field in a parent, driven by short names.
#pragma once

#include "edit/edit_internal.h"
#include "support/window_test.h"

#include <string>
#include <vector>

class EditWindow : public WindowTest {
protected:
    using Codes = std::vector<int>;

    ~EditWindow() override;

    // Makes a visible field at 10, 10 of the parent with the id 7. The first one, or the first after edit was set to
    // null, becomes edit.
    HWND Create(const char* text, DWORD style = 0, int width = 200, int height = 24);
    void UseFont(); // an unsmoothed one, so that pixels have pure colours

    HEditCtl*   Ctl() const;
    LRESULT     Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT     SendText(UINT message, WPARAM wParam, const char* text) const;
    std::string Text() const;   // by WM_GETTEXT
    double      Number() const; // by HEM_GETDATA, for numeric types
    std::string Value() const;  // by HEM_GETDATA, for string types
    RECT        TextRect() const;
    void        Replace(const char* text) const; // puts text into the field as if it had been typed
    void        Focus() const;
    void        Blur() const;
    void        Veto(int code);
    Codes       Told(); // the notifications since the last call

    // Colour messages are answered with a brush and listed.
    void AnswerColors(HBRUSH brush);

    HWND              edit = nullptr;
    HFONT             font = nullptr;
    std::vector<UINT> asked; // colour messages
};

inline LPARAM AsParam(const void* pointer)
{
    return reinterpret_cast<LPARAM>(pointer);
}

// A number as the settings write it.
std::string WithPoint(const char* text);
// A date in the order and with the separator of the settings.
std::string DateText(int day, int month, int year);
