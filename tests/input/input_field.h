// The fixture of fields that a user works with the real keyboard and mouse; a host of the DLL has nothing more.
#pragma once

#include "input/key_script.h"
#include "input/raw_value.h"
#include "support/window_test.h"

#include <string>

class InputField : public WindowTest {
protected:
    InputField();
    ~InputField() override;

    // The field under test, and a button beside it for the user to go to.
    HWND Make(const char* text, DWORD style = HES_AUTOHSCROLL, int width = 300);
    void Enter() { ClickAt(field, 3, 8); }
    void Leave() { ClickAt(button, 5, 8); }

    std::string Text() const { return TextOf(field); }
    std::string Shown() const;  // the text with its caret or its selection: "ab|c", "a[b]c"
    std::string Stored() const; // the value's bytes, or a text without its end; "null" for no value
    std::string Told();         // the notifications since the last call, a letter each, see toldCodes
    std::string ToldInside();   // those of the field's own changes under way, as WWM_GETUPDATING tells them apart
    int         XOf(int index); // where the caret stands in front of a character
    void        Veto(int code); // from now on

    HWND field = nullptr;
    HWND button = nullptr;

private:
    void Note(char letter);

    std::string told_;
    std::string inside_;
};
