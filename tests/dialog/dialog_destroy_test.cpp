// Hosts that destroy windows inside the messages of a dialog that is being made or cleared.
#include "dialog/template_window.h"

namespace {

HWND gVictim; // goes, once, when a control gets gVictimAt
UINT gVictimAt;

LRESULT CALLBACK FragileProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == gVictimAt) {
        const HWND victim = gVictim ? gVictim : hwnd;
        gVictimAt = 0;
        DestroyWindow(victim);
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

class DialogThatGoes : public TemplateWindow {
protected:
    DialogThatGoes()
    {
        gVictim = nullptr;
        gVictimAt = 0;
        RegisterControl(0, FragileProc, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr, "Fragile");
    }
    ~DialogThatGoes() override
    {
        gVictimAt = 0;
        DestroyWindow(parent.hwnd());
        UnregisterClassA("Fragile", GetModuleHandleA(nullptr));
    }

    static TestTemplate Fragile()
    {
        TestTemplate from;
        from.hasFont = true;
        from.title = Wide("Address");
        from.items = { Static(1, "", WS_TABSTOP), Static(2), Static(3) };
        for (TestItem& item : from.items) {
            item.className = Wide("Fragile");
        }
        return from;
    }
};

struct WindowRow {
    const char* what;
    UINT        at;
    WPARAM      wParam; // of WM_SETREDRAW
    bool        makesControls;
};

class WindowThatGoes : public DialogThatGoes, public testing::WithParamInterface<WindowRow> {};

TEST_P(WindowThatGoes, LeavesADialogWithoutControls)
{
    const WindowRow& row = GetParam();
    int              gone = 0;
    parent.OnMessage(row.at, [&](WPARAM wParam, LPARAM) {
        if (row.at != WM_SETREDRAW || wParam == row.wParam) {
            ++gone;
            DestroyWindow(parent.hwnd());
        }
        return 0;
    });
    RECT       rect = {};
    HFONT      font = nullptr;
    const HWND first = Make(Fragile(), &rect, &font);
    EXPECT_EQ(1, gone);
    EXPECT_FALSE(IsWindow(parent.hwnd()));
    EXPECT_EQ(row.makesControls, first != nullptr) << "a control that has been made is told, dead or not";
    EXPECT_FALSE(IsWindow(first));
    EXPECT_NE(0, rect.right);
    DeleteObject(font);
}

constexpr WindowRow windowRows[] = {
    { "AtItsTitle", WM_SETTEXT, 0, false },
    { "AtRedrawOff", WM_SETREDRAW, FALSE, false },
    { "AtInitDialog", WM_INITDIALOG, 0, true },
    { "AtRedrawOn", WM_SETREDRAW, TRUE, true },
};

INSTANTIATE_TEST_SUITE_P(Messages, WindowThatGoes, testing::ValuesIn(windowRows),
                         [](const auto& row) { return std::string(row.param.what); });

TEST_F(DialogThatGoes, ControlThatGoesWithItsFontIsToldAllTheSame)
{
    HWND told = nullptr;
    parent.OnMessage(WM_INITDIALOG, [&](WPARAM focus, LPARAM) {
        told = reinterpret_cast<HWND>(focus);
        return 0;
    });
    gVictimAt = WM_SETFONT;
    HFONT      font = nullptr;
    const HWND first = Make(Fragile(), nullptr, &font);
    EXPECT_NE(nullptr, first);
    EXPECT_FALSE(IsWindow(first));
    EXPECT_EQ(first, told);
    EXPECT_EQ(2, ChildCount());
    DeleteObject(font);
}

TEST_F(DialogThatGoes, ControlMayDestroyALaterOneWhileTheDialogIsCleared)
{
    Make(Fragile());
    gVictim = Child(3);
    gVictimAt = WM_DESTROY;
    ClearDialog(parent.hwnd());
    EXPECT_EQ(0u, gVictimAt) << "the message has come";
    EXPECT_EQ(0, ChildCount());
    EXPECT_TRUE(IsWindow(parent.hwnd()));
}

TEST_F(DialogThatGoes, ControlMayDestroyTheWindowWhileItIsCleared)
{
    Make(Fragile());
    gVictim = parent.hwnd();
    gVictimAt = WM_DESTROY;
    ClearDialog(parent.hwnd());
    EXPECT_EQ(0u, gVictimAt) << "the message has come";
    EXPECT_FALSE(IsWindow(parent.hwnd()));
}

} // namespace
