// The parent may destroy the combo inside anything that it hears of. Nothing is read of the record after that: the test
// program's blocks end at pages that can't be touched, and freed ones are gone.
#include "combo_window.h"
#include "foundation/startup.h"
#include "support/block_leaks.h"

#include <functional>

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT;
constexpr DWORD fields = HCS_DROPDOWN;

HWND gVictim;
int  gCountdown;

int CALLBACK DestroyingPainter(int, HDC, RECT*, int, int, int)
{
    if (--gCountdown == 0) {
        DestroyWindow(gVictim);
    }
    return 1;
}

class ComboEnd : public ComboWindow {
protected:
    struct Case {
        const char*           what;
        int                   code;
        DWORD                 style;
        std::function<void()> act;
    };
    void    Key2(WPARAM vk) const { SendMessageA(face, WM_KEYDOWN, vk, 0); }
    LRESULT ToCombo(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendMessageA(combo, message, wParam, lParam);
    }
    void Prepare(DWORD style, const char* text = "#120%ss%ni")
    {
        Make(text, style, 160, style & HCS_DROPDOWN ? 24 : 120);
        Add({ "apple", "pear", "plum" });
        Focus();
        PumpPending();
        face = Face();
        list = List();
    }
    void RunAll(const std::vector<Case>& cases)
    {
        for (const Case& line : cases) {
            const BlockLeakCheck blocks;
            Prepare(line.style);
            DestroyIn(line.code);
            line.act();
            EXPECT_FALSE(IsWindow(combo)) << line.what << ": code " << line.code << " never came";
            EXPECT_EQ(0, LiveDrops()) << line.what;
            parent.On(line.code, nullptr);
            End();
            PumpPending();
        }
    }

    HWND face = nullptr;
    HWND list = nullptr;
};

TEST_F(ComboEnd, InNotificationsOfKeys)
{
    const auto key = [&](WPARAM vk) { return [this, vk] { Key2(vk); }; };
    const auto openThen = [&](WPARAM vk) {
        return [this, vk] {
            ToCombo(CB_SHOWDROPDOWN, TRUE);
            Key2(vk);
        };
    };
    RunAll({
        { "F4", HCN_DROPDOWN, edits, key(VK_F4) },
        { "F4", HCN_DROPDOWN, fields, key(VK_F4) },
        { "F4 twice", HCN_CLOSEUP, edits, openThen(VK_F4) },
        { "F5", HCN_XBUTTON, edits | HCS_XBUTTON, key(VK_F5) },
        { "F5, open", HCN_CLOSEUP, edits | HCS_XBUTTON, openThen(VK_F5) },
        { "Tab", HCN_TAB, edits | HCS_WANTKEYS, key(VK_TAB) },
        { "Return", HCN_ENTER, edits | HCS_WANTKEYS, key(VK_RETURN) },
        { "Escape", HCN_ESCAPE, fields | HCS_WANTKEYS, key(VK_ESCAPE) },
        { "Return, open", HCN_SELENDOK, edits, openThen(VK_RETURN) },
        { "Return, open", HCN_SELENDOK, fields, openThen(VK_RETURN) },
        { "Return, open", HCN_CLOSEUP, edits, openThen(VK_RETURN) },
        { "Escape, open", HCN_CLOSEUP, fields, openThen(VK_ESCAPE) },
        { "Down", HCN_SELENDOK, edits, key(VK_DOWN) },
        { "Down", HCN_SELCHANGE, edits, key(VK_DOWN) },
        { "Down", HCN_SELCHANGE, fields, key(VK_DOWN) },
        { "Down", HCN_SELCHANGE, 0, key(VK_DOWN) },
        { "Alt+Down", HCN_DROPDOWN, edits, [this] { SendMessageA(face, WM_SYSKEYDOWN, VK_DOWN, 0x20000000); } },
    });
}

TEST_F(ComboEnd, InNotificationsOfTheFocus)
{
    RunAll({
        { "leave", HCN_KILLFOCUS, edits, [this] { Blur(); } },
        { "leave", HCN_KILLFOCUS, fields, [this] { Blur(); } },
        { "leave, open", HCN_CLOSEUP, edits,
          [this] {
              ToCombo(CB_SHOWDROPDOWN, TRUE);
              Blur();
          } },
        { "leave, open", HCN_CLOSEUP, fields,
          [this] {
              ToCombo(CB_SHOWDROPDOWN, TRUE);
              Blur();
          } },
        { "leave with a beginning", HCN_SELCHANGE, edits,
          [this] {
              parent.On(HCN_SELCHANGE, nullptr); // typing moves the list already
              Type("pe");
              DestroyIn(HCN_SELCHANGE);
              Blur();
          } },
        { "enter", HCN_SETFOCUS, edits,
          [this] {
              Blur();
              Focus();
          } },
        { "enter", HCN_SETFOCUS, fields,
          [this] {
              Blur();
              Focus();
          } },
    });
}

TEST_F(ComboEnd, InNotificationsOfTyping)
{
    const auto type = [this](const char* text) {
        return [this, text] {
            SendMessageA(face, EM_SETSEL, 0, -1);
            SendMessageA(face, EM_REPLACESEL, 0, AsParam(text));
        };
    };
    RunAll({
        { "typed", HCN_EDITCHANGE, edits, type("pe") },
        { "typed", HCN_EDITUPDATE, edits, type("pe") },
        { "typed", HCN_SELCHANGE, edits, type("pe") },
        { "a character", HCN_EDITCHANGE, edits, [this] { ToCombo(WM_CHAR, 'p'); } },
        { "a character", HCN_EDITUPDATE, edits, [this] { ToCombo(WM_CHAR, 'p'); } },
        { "a character", HCN_SELCHANGE, fields, [this] { ToCombo(WM_CHAR, 'p'); } },
    });
}

TEST_F(ComboEnd, InNotificationsOfTheMouse)
{
    const auto click = [this](bool extra, bool release) {
        return [this, extra, release] {
            const RECT   rect = extra ? HCXButtonRect(Ctl()) : HCDropButtonRect(Ctl());
            const LPARAM at = MAKELPARAM(rect.left + 3, rect.top + 3);
            ToCombo(WM_LBUTTONDOWN, MK_LBUTTON, at);
            if (release) {
                ToCombo(WM_LBUTTONUP, 0, at);
            }
        };
    };
    const auto pick = [this] {
        ToCombo(CB_SHOWDROPDOWN, TRUE);
        SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 20));
        SendMessageA(list, WM_LBUTTONUP, 0, MAKELPARAM(5, 20));
    };
    RunAll({
        { "drop button", HCN_DROPDOWN, edits, click(false, true) },
        { "drop button", HCN_DROPDOWN, fields, click(false, true) },
        { "extra button", HCN_XBUTTON, edits | HCS_XBUTTON, click(true, true) },
        { "pick", HCN_SELCHANGE, edits, pick },
        { "pick", HCN_SELCHANGE, fields, pick },
        { "pick", HCN_SELENDOK, edits, pick },
        { "pick", HCN_SELENDOK, fields, pick },
        { "pick", HCN_CLOSEUP, edits, pick },
        { "pick", HCN_CLOSEUP, fields, pick },
        { "double click", HCN_DBLCLK, HCS_EDIT, [this] { SendMessageA(list, WM_LBUTTONDBLCLK, 0, 0); } },
        { "press that focuses", HCN_SETFOCUS, edits,
          [&, this] {
              Blur();
              click(false, false)();
          } },
    });
}

TEST_F(ComboEnd, InNotificationsOfAHostsOwnMessages)
{
    RunAll({
        { "show", HCN_DROPDOWN, edits, [this] { ToCombo(CB_SHOWDROPDOWN, TRUE); } },
        { "hide", HCN_CLOSEUP, edits,
          [this] {
              ToCombo(CB_SHOWDROPDOWN, TRUE);
              ToCombo(CB_SHOWDROPDOWN, FALSE);
          } },
        { "park", HCN_CLOSEUP, fields,
          [this] {
              ToCombo(CB_SHOWDROPDOWN, TRUE);
              ToCombo(HCM_SETDROP, 0);
          } },
    });
}

TEST_F(ComboEnd, InTheNotificationOfItsOwnDestruction)
{
    for (const DWORD style : { edits, fields }) {
        const BlockLeakCheck blocks;
        Prepare(style);
        Blur();
        ToCombo(CB_SHOWDROPDOWN, TRUE);
        int heard = 0;
        parent.On(HCN_CLOSEUP, [&] {
            ++heard;
            ToCombo(CB_GETCOUNT);
            char text[64] = "";
            ToCombo(WM_GETTEXT, sizeof text, AsParam(text));
            DestroyWindow(combo);
        });
        DestroyWindow(combo);
        EXPECT_EQ(1, heard);
        EXPECT_FALSE(IsWindow(combo));
        EXPECT_EQ(0, LiveDrops());
        parent.On(HCN_CLOSEUP, nullptr);
        End();
    }
}

TEST_F(ComboEnd, WithTheParent)
{
    for (const DWORD style : { edits, fields, static_cast<DWORD>(HCS_EDIT), static_cast<DWORD>(0) }) {
        const BlockLeakCheck blocks;
        const HWND holder = CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, 300, 200, parent.hwnd(),
                                            nullptr, GetModuleHandleA(nullptr), nullptr);
        combo = CreateWindowExA(0, "HComb", "%120%ss", WS_CHILD | WS_VISIBLE | style, 10, 10, 160, 100, holder, nullptr,
                                GetModuleHandleA(nullptr), nullptr);
        Add({ "apple" });
        Focus();
        ToCombo(CB_SHOWDROPDOWN, TRUE);
        DestroyWindow(holder);
        EXPECT_FALSE(IsWindow(combo));
        EXPECT_EQ(0, LiveDrops());
        combo = nullptr;
    }
}

TEST_F(ComboEnd, InColorMessages)
{
    for (const UINT message : { WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC }) {
        for (const DWORD style : { edits, fields, static_cast<DWORD>(HCS_EDIT), static_cast<DWORD>(0) }) {
            for (const bool byErase : { true, false }) {
                const BlockLeakCheck blocks;
                Prepare(style);
                EnableWindow(combo, message == WM_CTLCOLOREDIT);
                PumpPending();
                parent.OnMessage(message, [this](WPARAM, LPARAM) {
                    DestroyWindow(combo);
                    return AsParam(GetStockObject(GRAY_BRUSH));
                });
                if (byErase) {
                    const HDC dc = GetDC(parent.hwnd());
                    ToCombo(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc));
                    ReleaseDC(parent.hwnd(), dc);
                } else {
                    RedrawWindow(combo, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
                }
                EXPECT_FALSE(IsWindow(combo)) << message << " " << style << " " << byErase;
                parent.OnMessage(message, nullptr);
                End();
            }
        }
    }
}

TEST_F(ComboEnd, InAListsColorMessageWhileItIsOpen)
{
    for (const DWORD style : { edits, fields }) {
        const BlockLeakCheck blocks;
        Prepare(style);
        ToCombo(CB_SHOWDROPDOWN, TRUE);
        PumpPending();
        parent.OnMessage(WM_CTLCOLOREDIT, [this](WPARAM, LPARAM) {
            DestroyWindow(combo);
            return AsParam(GetStockObject(GRAY_BRUSH));
        });
        RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        EXPECT_FALSE(IsWindow(combo));
        EXPECT_EQ(0, LiveDrops());
        parent.OnMessage(WM_CTLCOLOREDIT, nullptr);
        End();
    }
}

TEST_F(ComboEnd, InTheDrawingOfItems)
{
    for (const UINT message : { WM_DRAWITEM, WM_MEASUREITEM }) {
        const BlockLeakCheck blocks;
        Prepare(fields | HLS_OWNERDRAW);
        ToCombo(CB_SETCURSEL, 0);
        parent.OnMessage(message, [this](WPARAM, LPARAM) {
            DestroyWindow(combo);
            return 1;
        });
        if (message == WM_DRAWITEM) {
            RedrawWindow(combo, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        } else {
            DRAWITEMSTRUCT item = {};
            ToCombo(WM_MEASUREITEM, 3, AsParam(&item));
        }
        EXPECT_FALSE(IsWindow(combo)) << message;
        parent.OnMessage(message, nullptr);
        End();
    }
}

TEST_F(ComboEnd, InTheHostsPainterOfButtons)
{
    const std::function<void()> acts[] = {
        [this] { ToCombo(WM_MOUSEMOVE, 0, MAKELPARAM(150, 10)); },
        [this] { ToCombo(WM_LBUTTONDOWN, 0, MAKELPARAM(150, 10)); },
        [this] { ToCombo(WM_CANCELMODE); },
        [this] { RedrawWindow(combo, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); },
    };
    for (const auto& act : acts) {
        for (const int countdown : { 1, 2 }) {
            const BlockLeakCheck blocks;
            Prepare(edits | HCS_XBUTTON);
            gVictim = combo;
            gCountdown = countdown;
            pfnDrawPart = DestroyingPainter;
            act();
            pfnDrawPart = nullptr;
            End();
        }
    }
    for (const bool extra : { false, true }) {
        Prepare(edits | HCS_XBUTTON);
        const RECT   rect = extra ? HCXButtonRect(Ctl()) : HCDropButtonRect(Ctl());
        const LPARAM at = MAKELPARAM(rect.left + 3, 10);
        ToCombo(WM_LBUTTONDOWN, 0, at);
        gVictim = combo;
        gCountdown = 1;
        pfnDrawPart = DestroyingPainter;
        ToCombo(WM_LBUTTONUP, 0, at);
        pfnDrawPart = nullptr;
        EXPECT_FALSE(IsWindow(combo));
        End();
    }
}

TEST_F(ComboEnd, WhatAHostGivesTheListOfAFieldGoesWithTheList)
{
    const std::function<void()> gifts[] = {
        [this] { SendMessageA(list, HLM_SETFORMAT, 0, AsParam("00")); },
        [this] {
            const int           number = 5;
            SendMessageA(list, WM_SETTEXT, 0, AsParam("%ni%ni0"));
            HLAddItem(list, &number);
        },
    };
    const std::function<void()> ends[] = {
        [this] { DestroyWindow(list); },
        [this] { DestroyWindow(face); },
        [this] { ToCombo(HCM_SETDROP, 0); },
        [] {},
    };
    for (const DWORD style : { fields, DWORD{ 0 } }) {
        for (const auto& give : gifts) {
            for (const auto& end : ends) {
                SCOPED_TRACE(testing::Message() << style << ", " << &give - gifts << ", " << &end - ends);
                const BlockLeakCheck blocks;
                Make("#120%ni%ni", style, 160, 120);
                AddNumbers({ 1, 2 });
                face = Face();
                list = List();
                give();
                end();
                End();
            }
        }
    }
}

HCombCtl gNoCombo; // something of a host's that lies where a combo's record would

LRESULT CALLBACK AnswerWithARecord(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WWM_GETSTATE ? AsParam(&gNoCombo) : DefWindowProcA(hwnd, message, wParam, lParam);
}

TEST_F(ComboEnd, ListWhoseParentIsNoComboAnyMoreGoesByItself)
{
    WNDCLASSA info = {};
    info.lpfnWndProc = AnswerWithARecord;
    info.hInstance = GetModuleHandleA(nullptr);
    info.lpszClassName = "Another"; // its name stands in front of the combo's
    RegisterClassA(&info);
    for (const DWORD style : { edits, fields }) {
        Prepare(style);
        const HWND other =
            CreateWindowExA(0, "Another", "", WS_CHILD, 0, 0, 10, 10, parent.hwnd(), nullptr, info.hInstance, nullptr);
        SendMessageA(list, WWM_SETPARENT, reinterpret_cast<WPARAM>(other), 0);
        ASSERT_EQ(other, +RecordOf<HListCtl>(list)->hParent);
        gNoCombo.hDrop = list;
        DestroyWindow(list);
        EXPECT_FALSE(IsWindow(list));
        EXPECT_EQ(list, +gNoCombo.hDrop) << "it was written to";
        End();
        DestroyWindow(other);
    }
    UnregisterClassA("Another", info.hInstance);
}

} // namespace
