// The fixture of tests of the dropped list: a combo in a parent, opened and closed by short names.
#pragma once

#include "combo/combo_internal.h"
#include "support/mouse_hooks.h"
#include "support/window_test.h"

#include <string>
#include <vector>

class DropWindow : public WindowTest {
protected:
    using Ints = std::vector<int>;
    static constexpr RECT usual = { 10, 10, 120, 24 };

    DropWindow();
    ~DropWindow() override; // expects that nothing is left of open lists

    // A visible combo with HCS_DROPDOWN, HCS_3DBORDER and the items one to five. rect is { x, y, width, height }.
    HWND MakeCombo(DWORD style = 0, const char* text = "%100%ss", RECT rect = usual);
    HWND AnotherCombo(DWORD style = 0); // beside it; the names below stay with the first

    static HCombCtl* CtlOf(HWND hwnd) { return RecordOf<HCombCtl>(hwnd); }
    HCombCtl*        Ctl() const { return CtlOf(combo); }
    HWND             Face() const { return face; }
    HWND             Drop() const { return drop; }

    void Open() { Send(combo, CB_SHOWDROPDOWN, TRUE); }
    void Close() { Send(combo, CB_SHOWDROPDOWN, FALSE); }
    bool IsOpen() const { return SendMessageA(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; }
    // Open with all that belongs to it, or closed with nothing left.
    void ExpectOpen() const;
    void ExpectClosed() const;

    RECT        ComboRect() const { return RectOf(combo); }
    RECT        DropRect() const { return RectOf(drop); }
    int         Row() const { return static_cast<int>(SendMessageA(drop, HLM_GETCURRENT, 0, 0)); }
    int         MiddleOf(int row) const; // of an item, down the list's client area
    std::string Text() const { return TextOf(combo); }
    Ints        Told(); // the combo's notifications since the last call

    static RECT RectOf(HWND hwnd);

    HWND combo = nullptr;
    HWND face = nullptr;
    HWND drop = nullptr;
};
