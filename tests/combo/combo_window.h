// The fixture of the combo's window tests: a combo in a parent, driven by short names.
#pragma once

#include "combo/combo_internal.h"
#include "support/window_test.h"

#include <string>
#include <vector>

// Lists of combos of this thread that float on the desktop.
int LiveDrops();

class ComboWindow : public WindowTest {
protected:
    using Ints = std::vector<int>;
    using Texts = std::vector<std::string>;

    ~ComboWindow() override; // sees that no list is left behind

    // Makes a visible combo at 10, 10 of the parent with the id 7; a second one replaces the first.
    HWND Make(const char* text = "%120%ss", DWORD style = HCS_DROPDOWN | HCS_EDIT, int width = 160, int height = 24);
    void End(); // destroys it
    void Add(const Texts& texts) const;
    void AddNumbers(const Ints& data, const Ints& codes = {}) const;

    HCombCtl*   Ctl() const { return RecordOf<HCombCtl>(combo); }
    HWND        Face() const { return Ctl()->hChild; }
    HWND        List() const { return Ctl()->hDrop; }
    LRESULT     Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT     SendPtr(UINT message, WPARAM wParam, const void* lParam) const;
    LRESULT     ToFace(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    int         Count() const { return static_cast<int>(Send(CB_GETCOUNT)); }
    int         Current() const { return static_cast<int>(Send(HLM_GETCURRENT)); }
    int         FieldCurrent() const { return static_cast<int>(ToFace(HLM_GETCURRENT)); }
    std::string Text() const; // by WM_GETTEXT
    std::string ItemText(int index) const;
    int         EditNumber() const; // the value of an edit of type i; -999 for null
    bool        IsDropped() const { return Send(CB_GETDROPPEDSTATE) != 0; }
    void        Type(const char* text) const; // replaces the edit's text as if it had been typed
    LRESULT     Key(WORD vk) const { return ToFace(WM_KEYDOWN, vk); }
    void        ListTells(int code) const; // as if the list had notified
    void        Focus() const { SetFocus(combo); }
    void        Blur() const { SetFocus(parent.hwnd()); }
    Ints        Told();              // the notifications since the last call
    void        DestroyIn(int code); // the parent destroys the combo while it hears of this

    HWND combo = nullptr;
};

inline LPARAM AsParam(const void* pointer)
{
    return reinterpret_cast<LPARAM>(pointer);
}

// A rectangle as { left, top, right, bottom }.
std::vector<int> Corners(const RECT& rect);
// Where a child lies in its parent.
std::vector<int> PlaceOf(HWND child);
