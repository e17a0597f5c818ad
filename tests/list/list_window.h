// The fixture of the list control's window tests: a list in a parent, driven by short names.
#pragma once

#include "list/list_internal.h"
#include "support/held_keys.h"
#include "support/window_test.h"

#include <functional>
#include <string>
#include <vector>

// What some work has invalidated of a list, and whether that is erased first.
struct Invalidated {
    RECT area;
    bool erases;
};

class ListWindow : public WindowTest {
protected:
    using Ints = std::vector<int>;
    using Texts = std::vector<std::string>;

    // Makes a visible list at 10, 10 of the parent with the id 7; a second one replaces the first.
    HWND Make(const char* text = "%ss", DWORD style = 0, int width = 200, int height = 100);
    // Makes the client area high enough for that many rows, and some pixels more.
    void ShowRows(int rows, int more = 0);
    void Fill(int count);         // texts: item 0, item 1, ...
    void Add(const Texts& texts); // one by one
    void AddNumbers(const Ints& data, const Ints& codes = {});

    HListCtl*   Ctl() const { return RecordOf<HListCtl>(list); }
    LRESULT     Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    LRESULT     SendPtr(UINT message, WPARAM wParam, const void* lParam) const;
    int         Count() const { return static_cast<int>(Send(HLM_GETCOUNT)); }
    int         Current() const { return static_cast<int>(Send(HLM_GETCURRENT)); }
    int         Top() const { return static_cast<int>(Send(HLM_GETTOP)); }
    int         RowHeight() const { return static_cast<int>(Ctl()->cyRow); }
    std::string Text(int index) const;
    Texts       AllTexts() const;
    int         Number(int index) const;
    Ints        AllNumbers() const;
    Ints        Selected() const; // by HLM_GETSELITEMS
    void        Select(const Ints& indexes) const;
    RECT        ItemRect(int index) const;
    int         MiddleOf(int index) const { return static_cast<int>(ItemRect(index).top) + RowHeight() / 2; }
    void        Focus() const { SetFocus(list); }
    void        Blur() const { SetFocus(parent.hwnd()); }
    void        Key(WORD vk) const { Send(WM_KEYDOWN, vk); }
    Ints        Told(); // the notifications since the last call
    Invalidated InvalidatedBy(const std::function<void()>& work) const;

    HWND list = nullptr;
};

inline LPARAM AsParam(const void* pointer)
{
    return reinterpret_cast<LPARAM>(pointer);
}
