// The dropped list of a combo through the DLL.
#include "support/window_test.h"

namespace {

class DllDrop : public WindowTest {
protected:
    DllDrop()
    {
        combo = Create("HComb", "%100%ss", HCS_DROPDOWN | HCS_EDIT | HCS_3DBORDER, 7, { 10, 10, 120, 24 });
        for (const char* const item : { "one", "two", "three" }) {
            HCAddItemEx(combo, item, nullptr);
        }
        MoveMouse(parent.hwnd(), 700, 500);
        SetFocus(combo);
        PumpPending();
        parent.ClearCounts();
    }
    bool IsOpen() const { return Send(combo, CB_GETDROPPEDSTATE) != 0; }
    // The list that shows, or null.
    HWND Drop() const
    {
        HWND drop = nullptr;
        do {
            drop = FindWindowExA(nullptr, drop, "HDrop", nullptr);
        } while (drop && !IsWindowVisible(drop));
        return drop;
    }
    LRESULT Hook(UINT message) const
    {
        MOUSEHOOKSTRUCT data = {};
        data.hwnd = parent.hwnd();
        return MouseHookProc(HC_ACTION, message, reinterpret_cast<LPARAM>(&data));
    }

    HWND combo = nullptr;
};

TEST_F(DllDrop, OpensPicksAndCloses)
{
    EXPECT_EQ(nullptr, Drop());
    TypeKey(VK_F4);
    EXPECT_TRUE(IsOpen());
    ASSERT_NE(nullptr, Drop());
    RECT row = {};
    SendPtr(Drop(), HLM_GETITEMRECT, 1, &row);
    ClickAt(Drop(), 10, static_cast<int>(row.top + row.bottom) / 2);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(nullptr, Drop());
    EXPECT_EQ("two", TextOf(combo));
    EXPECT_EQ(1, parent.Count(HCN_DROPDOWN));
    EXPECT_EQ(1, parent.Count(HCN_SELENDOK));
    EXPECT_EQ(1, parent.Count(HCN_CLOSEUP));
}

TEST_F(DllDrop, HookTakesTheMouseOnlyWhileAListIsOpen)
{
    EXPECT_EQ(0, Hook(WM_MOUSEMOVE));
    EXPECT_EQ(0, Hook(WM_LBUTTONDOWN));
    TypeKey(VK_F4);
    EXPECT_EQ(-1, Hook(WM_MOUSEMOVE));
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(-1, Hook(WM_LBUTTONDOWN));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(0, Hook(WM_LBUTTONDOWN));
}

TEST_F(DllDrop, ServesClassesOfTheHost)
{
    RegisterControl(0, HDropWnd, 0, 2 * sizeof(LONG_PTR), GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr,
                    "HostDrop");
    const HWND hwnd = Create("HostDrop", "%ss");
    EXPECT_EQ(0, HLAddItem(hwnd, "one"));
    EXPECT_EQ(0, Send(hwnd, WM_MOUSEWHEEL, 0, 0));
    DestroyWindow(hwnd);
    UnregisterClassA("HostDrop", GetModuleHandleA(nullptr));
}

} // namespace
