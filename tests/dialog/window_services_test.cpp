// What a control asks about the window that it lives in.
#include "dialog/test_control.h"

#include "foundation/gdi_guards.h"

namespace {

class WindowServices : public TestControl {};

LRESULT CALLBACK PlainProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

// A window of a class of any name, for as long as this lives.
class NamedWindow {
public:
    explicit NamedWindow(const char* name) : name_(name)
    {
        RegisterControl(0, PlainProc, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr, name);
        hwnd = CreateWindowExA(0, name, "", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr, GetModuleHandleA(nullptr),
                               nullptr);
    }
    ~NamedWindow()
    {
        DestroyWindow(hwnd);
        UnregisterClassA(name_, GetModuleHandleA(nullptr));
    }
    NamedWindow(const NamedWindow&) = delete;
    NamedWindow& operator=(const NamedWindow&) = delete;

    HWND hwnd;

private:
    const char* name_;
};

HWND ChildOf(HWND parent)
{
    return CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 10, 10, parent, nullptr, GetModuleHandleA(nullptr),
                           nullptr);
}

struct HostRow {
    const char* className;
    int         code;
};

TEST_F(WindowServices, ParentModGoesByTheFirstLettersOfTheTopWindowWithoutCase)
{
    constexpr HostRow rows[] = {
        { "RWSWnd", 2834 },  { "rwswndow", 2834 },  { "RwsWNDClass7", 2834 }, { "RWSWn", 0 },  { "xRWSWnd", 0 },
        { "DlgEdit", 2609 }, { "DLGEDITOR", 2609 }, { "DlgEdi", 0 },          { "Dialog", 0 },
    };
    for (const HostRow& row : rows) {
        const NamedWindow top(row.className);
        const HWND        child = ChildOf(ChildOf(top.hwnd));
        EXPECT_EQ(row.code, GetParentMod(child)) << row.className;
        EXPECT_EQ(row.code, GetParentMod(top.hwnd)) << row.className;
    }
}

TEST_F(WindowServices, ParentModOfNoWindowIsZero)
{
    EXPECT_EQ(0, GetParentMod(nullptr));
}

struct ComboRow {
    const char* className;
    int         answer;
};

TEST_F(WindowServices, ComboIsWhatComparesNotAboveTheName)
{
    constexpr ComboRow rows[] = {
        { "HComb", 1 }, { "hCOMB", 1 },  { "HCom", 1 },      { "HAaaaaaaaaaaa", 1 },
        { "Abc", 1 },   { "HCombo", 0 }, { "HDropTest", 0 }, { "TestList", 0 },
    };
    for (const ComboRow& row : rows) {
        const NamedWindow window(row.className);
        EXPECT_EQ(row.answer, HIsCombo(window.hwnd)) << row.className;
    }
    EXPECT_EQ(1, HIsCombo(nullptr)) << "a name of length 0 compares equal";
}

TEST_F(WindowServices, UpdateTopPaintsTheTopWindow)
{
    const HWND child = ChildOf(ChildOf(parent.hwnd()));
    UpdateWindow(parent.hwnd());
    int painted = 0;
    parent.OnMessage(WM_PAINT, [&](WPARAM, LPARAM) {
        ++painted;
        ValidateRect(parent.hwnd(), nullptr);
        return 0;
    });
    InvalidateRect(parent.hwnd(), nullptr, FALSE);
    HUpdateTop(child);
    EXPECT_EQ(1, painted);
}

LONG WidthOf(HDC hdc, UINT format)
{
    RECT rect = {};
    DrawTextA(hdc, "a\tb", -1, &rect, DT_CALCRECT | DT_SINGLELINE | format);
    return rect.right;
}

TEST(HMeasureLines, ExpandsTabs)
{
    const WindowDC screen(nullptr);
    ASSERT_GT(WidthOf(screen.hdc, DT_EXPANDTABS), WidthOf(screen.hdc, 0));
    EXPECT_EQ(WidthOf(screen.hdc, DT_EXPANDTABS), LOWORD(HMeasureLines(screen.hdc, "a\tb")));
}

TEST_F(WindowServices, AllEditControlsFollowTheOverwriteMode)
{
    const HWND first = Create("HEdit", "");
    const HWND second = Create("HEdit_SS", "");
    SetOverwriteMode(1);
    EXPECT_EQ(1, Send(first, HEM_GETOVERWRITE));
    EXPECT_EQ(1, Send(second, HEM_GETOVERWRITE));
    SetOverwriteMode(0);
    EXPECT_EQ(0, Send(first, HEM_GETOVERWRITE));
    EXPECT_EQ(0, Send(second, HEM_GETOVERWRITE));
}

} // namespace
