// The fixture of tests of the dropped list.
#include "combo/drop_window.h"

namespace {

int gDrops;

BOOL CALLBACK CountDrop(HWND hwnd, LPARAM)
{
    char name[16] = "";
    GetClassNameA(hwnd, name, sizeof name);
    gDrops += std::string(name) == "HDrop";
    return TRUE;
}

// Lists that float, of this thread.
int LiveDrops()
{
    gDrops = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountDrop, 0);
    HWND drop = nullptr;
    int  found = 0;
    while ((drop = FindWindowExA(nullptr, drop, "HDrop", nullptr)) != nullptr) {
        found += GetWindowThreadProcessId(drop, nullptr) == GetCurrentThreadId();
    }
    return std::max(gDrops, found);
}

} // namespace

DropWindow::DropWindow()
{
    seen.NotificationsOnly();
    EXPECT_EQ(0, LiveHooks());
}

DropWindow::~DropWindow()
{
    DestroyWindow(parent.hwnd());
    EXPECT_EQ(0, LiveHooks());
    EXPECT_EQ(0, LiveDrops());
    EXPECT_EQ(nullptr, hOpenCombo);
    EXPECT_EQ(nullptr, hMouseHook);
    EXPECT_EQ(nullptr, GetCapture());
}

HWND DropWindow::MakeCombo(DWORD style, const char* text, RECT rect)
{
    combo = Create("HComb", text, style | HCS_DROPDOWN | HCS_3DBORDER, 7, rect);
    face = Ctl() ? Ctl()->hChild : nullptr;
    drop = Ctl() ? Ctl()->hDrop : nullptr;
    for (const char* const item : { "one", "two", "three", "four", "five" }) {
        HCAddItemEx(combo, item, nullptr);
    }
    // A list that opens beneath the pointer has a marked row.
    MoveMouse(parent.hwnd(), 700, 500);
    SetFocus(combo);
    PumpPending();
    seen.Clear();
    return combo;
}

HWND DropWindow::AnotherCombo(DWORD style)
{
    const HWND other = Create("HComb", "%80%ss", style | HCS_DROPDOWN | HCS_3DBORDER, 8, { 300, 10, 120, 24 });
    HCAddItemEx(other, "six", nullptr);
    PumpPending();
    seen.Clear();
    return other;
}

void DropWindow::ExpectOpen() const
{
    EXPECT_TRUE(IsOpen());
    EXPECT_TRUE(IsWindowVisible(drop));
    EXPECT_EQ(combo, hOpenCombo);
    EXPECT_EQ(drop, hOpenDrop);
    EXPECT_EQ(face, hOpenChild);
    EXPECT_NE(nullptr, hMouseHook);
    EXPECT_EQ(1, LiveHooks());
}

void DropWindow::ExpectClosed() const
{
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(IsWindowVisible(drop));
    EXPECT_EQ(nullptr, hOpenCombo);
    EXPECT_EQ(nullptr, hMouseHook);
    EXPECT_EQ(0, LiveHooks());
}

int DropWindow::MiddleOf(int row) const
{
    RECT rect = {};
    SendMessageA(drop, HLM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
    return static_cast<int>(rect.top + rect.bottom) / 2;
}

DropWindow::Ints DropWindow::Told()
{
    Ints codes;
    for (const Seen& line : seen.All()) {
        codes.push_back(static_cast<int>(line.code));
    }
    seen.Clear();
    return codes;
}

RECT DropWindow::RectOf(HWND hwnd)
{
    RECT rect = {};
    GetWindowRect(hwnd, &rect);
    return rect;
}
