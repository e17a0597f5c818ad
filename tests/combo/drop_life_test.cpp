// Ends at the wrong moment: combos, parents and lists that go while the list is open, opens or closes.
#include "combo/drop_window.h"

#include <algorithm>
#include <random>

namespace {

constexpr DWORD faces[] = { HCS_EDIT, 0 };

class DropLife : public DropWindow {
protected:
    // Nothing of a combo and its list is left, whatever ended them.
    void ExpectNothingLeft() const
    {
        EXPECT_FALSE(IsWindow(combo));
        EXPECT_FALSE(IsWindow(drop));
        EXPECT_EQ(nullptr, hOpenCombo);
        EXPECT_EQ(nullptr, hMouseHook);
        EXPECT_EQ(0, LiveHooks());
        EXPECT_EQ(nullptr, GetCapture());
    }
    bool WasTold(int code)
    {
        const Ints told = Told();
        return std::find(told.begin(), told.end(), code) != told.end();
    }
    LRESULT ListMouse(UINT message, int row) { return Send(drop, message, 0, MAKELPARAM(5, MiddleOf(row))); }
    HWND    MakeFrame()
    {
        return CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 0, 200, 300, 200, parent.hwnd(), nullptr,
                               GetModuleHandleA(nullptr), nullptr);
    }
};

TEST_F(DropLife, OpenListGoesWithItsCombo)
{
    for (const DWORD style : faces) {
        MakeCombo(style);
        Open();
        DestroyWindow(combo);
        ExpectNothingLeft();
        EXPECT_TRUE(WasTold(HCN_CLOSEUP));
    }
}

TEST_F(DropLife, OpenListGoesWithTheFrameOfItsCombo)
{
    for (const DWORD style : faces) {
        const HWND frame = MakeFrame();
        MakeCombo(style);
        SetParent(combo, frame);
        Open();
        DestroyWindow(frame);
        ExpectNothingLeft();
    }
}

TEST_F(DropLife, ListThatAHostDestroysIsForgotten)
{
    for (const DWORD style : faces) {
        MakeCombo(style);
        Open();
        DestroyWindow(drop);
        EXPECT_EQ(0, LiveHooks());
        EXPECT_EQ(nullptr, hOpenCombo);
        EXPECT_EQ(nullptr, +Ctl()->hDrop);
        EXPECT_EQ(-1, HCAddItemEx(combo, "six", nullptr));
        Close();
        EXPECT_FALSE(IsOpen());
        DestroyWindow(combo);
        ExpectNothingLeft();
    }
}

TEST_F(DropLife, PressInAListThatClosesEndsWithIt)
{
    MakeCombo(HCS_EDIT);
    Open();
    ListMouse(WM_LBUTTONDOWN, 1);
    EXPECT_EQ(drop, GetCapture());
    Send(combo, WM_KEYDOWN, VK_ESCAPE);
    ExpectClosed();
    EXPECT_EQ(nullptr, GetCapture());
    Open();
    ListMouse(WM_MOUSEMOVE, 3);
    EXPECT_EQ(1, Row()) << "no button is down";
}

// One way through the life of an open list that comes by all notifications.
struct Step {
    const char* name;
    void (*act)(HWND combo);
};

HCombCtl* RecordOfCombo(HWND combo)
{
    return reinterpret_cast<HCombCtl*>(SendMessageA(combo, WWM_GETSTATE, 0, 0));
}
HWND ListOf(HWND combo)
{
    return IsWindow(combo) ? +RecordOfCombo(combo)->hDrop : nullptr;
}
void PressRow(HWND combo, int row)
{
    const HWND list = ListOf(combo);
    const auto height = static_cast<int>(SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
    SendMessageA(list, WM_LBUTTONDOWN, 0, MAKELPARAM(5, row * height + 2));
}
void LiftOver(HWND combo, int row)
{
    const HWND list = ListOf(combo);
    const auto height = static_cast<int>(SendMessageA(list, LB_GETITEMHEIGHT, 0, 0));
    SendMessageA(list, WM_LBUTTONUP, 0, MAKELPARAM(5, row * height + 2));
}
void PressOutside(HWND combo)
{
    MOUSEHOOKSTRUCT data = {};
    data.hwnd = GetParent(combo);
    MouseHookProc(HC_ACTION, WM_LBUTTONDOWN, reinterpret_cast<LPARAM>(&data));
}
void PressButtonOf(HWND combo)
{
    RECT client = {};
    GetClientRect(combo, &client);
    SendMessageA(combo, WM_LBUTTONDOWN, 0, MAKELPARAM(client.right - 3, 5));
}

const Step steps[] = {
    { "focus", [](HWND combo) { SetFocus(combo); } },
    { "open", [](HWND combo) { SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0); } },
    { "close", [](HWND combo) { SendMessageA(combo, CB_SHOWDROPDOWN, FALSE, 0); } },
    { "F4", [](HWND combo) { SendMessageA(combo, WM_KEYDOWN, VK_F4, 0); } },
    { "press a row", [](HWND combo) { PressRow(combo, 2); } },
    { "lift over it", [](HWND combo) { LiftOver(combo, 2); } },
    { "Alt+Down", [](HWND combo) { SendMessageA(combo, WM_SYSKEYDOWN, VK_DOWN, 0); } },
    { "down", [](HWND combo) { SendMessageA(combo, WM_KEYDOWN, VK_DOWN, 0); } },
    { "Return", [](HWND combo) { SendMessageA(combo, WM_KEYDOWN, VK_RETURN, 0); } },
    { "press the button", PressButtonOf },
    { "lift off the button", [](HWND combo) { SendMessageA(combo, WM_LBUTTONUP, 0, MAKELPARAM(5, 5)); } },
    { "Esc", [](HWND combo) { SendMessageA(combo, WM_KEYDOWN, VK_ESCAPE, 0); } },
    { "open again", [](HWND combo) { SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0); } },
    { "press outside", PressOutside },
    { "open once more", [](HWND combo) { SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0); } },
    { "park", [](HWND combo) { SendMessageA(combo, HCM_SETDROP, 0, 0); } },
    { "bring back", [](HWND combo) { SendMessageA(combo, HCM_SETDROP, 1, 0); } },
    { "open for the last time", [](HWND combo) { SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0); } },
    { "leave", [](HWND combo) { SetFocus(GetParent(combo)); } },
};

// Notification by notification of the whole way: the combo goes in the first one, in the second one, and so on.
TEST_F(DropLife, ComboMayGoInEachNotification)
{
    constexpr int codes[] = { HCN_SELCHANGE,  HCN_SETFOCUS, HCN_KILLFOCUS, HCN_EDITCHANGE,
                              HCN_EDITUPDATE, HCN_DROPDOWN, HCN_CLOSEUP,   HCN_SELENDOK };
    for (const DWORD style : faces) {
        bool went = true;
        for (int n = 1; went; ++n) {
            SCOPED_TRACE("notification " + std::to_string(n) + " of style " + std::to_string(style));
            int told = 0;
            went = false;
            MakeCombo(style);
            SetFocus(parent.hwnd());
            for (const int code : codes) {
                parent.On(code, [&] {
                    if (++told == n) {
                        went = true;
                        DestroyWindow(combo);
                    }
                });
            }
            for (const Step& step : steps) {
                if (IsWindow(combo)) {
                    step.act(combo);
                }
            }
            EXPECT_EQ(went, !IsWindow(combo));
            for (const int code : codes) {
                parent.On(code, nullptr);
            }
            if (IsWindow(combo)) {
                DestroyWindow(combo);
            }
            ExpectNothingLeft();
            ASSERT_LT(n, 100);
        }
    }
}

TEST_F(DropLife, AThousandOpensAndClosesLeaveNothing)
{
    std::mt19937 random(20261121);
    const auto   upTo = [&](size_t n) { return static_cast<size_t>(random() % n); };
    const int    objects = LiveGdiObjects();
    int          opened = 0;
    int          wentInside = 0;
    int          left = -1; // notifications until it goes; below 0 it doesn't go in one
    HWND         frame = nullptr;
    for (const int code : { HCN_SELCHANGE, HCN_SETFOCUS, HCN_KILLFOCUS, HCN_DROPDOWN, HCN_CLOSEUP, HCN_SELENDOK }) {
        parent.On(code, [&, code] {
            opened += code == HCN_DROPDOWN;
            if (left-- == 0) {
                ++wentInside;
                DestroyWindow(upTo(2) ? combo : frame);
            }
        });
    }
    for (int round = 0; round < 1000; ++round) {
        SCOPED_TRACE(round);
        frame = MakeFrame();
        MakeCombo(upTo(2) ? HCS_EDIT : 0u);
        SetParent(combo, frame);
        left = static_cast<int>(upTo(8)) - 2;
        SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
        for (size_t acts = upTo(12); acts > 0 && IsWindow(combo); --acts) {
            steps[upTo(std::size(steps))].act(combo);
        }
        if (IsWindow(combo) && upTo(10) == 0) {
            DestroyWindow(ListOf(combo));
        }
        DestroyWindow(upTo(2) && IsWindow(combo) ? combo : frame);
        if (IsWindow(frame)) {
            DestroyWindow(frame);
        }
        left = -1;
        ExpectNothingLeft();
        EXPECT_EQ(objects, LiveGdiObjects());
        if (HasFailure()) {
            return;
        }
    }
    EXPECT_LT(1000, opened);
    EXPECT_LT(200, wentInside);
}

} // namespace
