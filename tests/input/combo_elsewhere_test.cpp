// A dropped list and the windows of another process, by the real hook of the finished library.
#include "input/demo_process.h"
#include "support/window_test.h"

namespace {

constexpr DWORD limitMs = 20000;

// The other program, which stands beside this one.
class OtherHost {
public:
    OtherHost()
    {
        char path[MAX_PATH] = {};
        GetModuleFileNameA(nullptr, path, MAX_PATH);
        const std::string own = path;
        std::string       command = "\"" + own.substr(0, own.find_last_of("\\/") + 1) + "other_host.exe\"";
        STARTUPINFOA      startup = {};
        startup.cb = sizeof startup;
        if (CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                           &started_)) {
            CloseHandle(started_.hThread);
            DemoProcess::WaitFor([this] { return Find(); });
        }
    }
    ~OtherHost()
    {
        PostMessageA(hwnd_, WM_CLOSE, 0, 0);
        if (WaitForSingleObject(started_.hProcess, limitMs) != WAIT_OBJECT_0) {
            TerminateProcess(started_.hProcess, 99);
        }
        CloseHandle(started_.hProcess);
    }
    OtherHost(const OtherHost&) = delete;
    OtherHost& operator=(const OtherHost&) = delete;

    HWND    hwnd() const { return hwnd_; }
    LRESULT Presses() const { return Ask(WM_USER); }
    LRESULT MovesTo(int x) const { return Ask(WM_USER + 1, static_cast<WPARAM>(x)); }

private:
    bool Find()
    {
        hwnd_ = FindWindowA("OtherHost", nullptr);
        return hwnd_ && IsWindowVisible(hwnd_);
    }
    LRESULT Ask(UINT message, WPARAM wParam = 0) const
    {
        DWORD_PTR result = 0;
        EXPECT_TRUE(SendMessageTimeoutA(hwnd_, message, wParam, 0, SMTO_NORMAL, limitMs, &result));
        return static_cast<LRESULT>(result);
    }

    PROCESS_INFORMATION started_ = {};
    HWND                hwnd_ = nullptr;
};

class ComboElsewhere : public WindowTest {
protected:
    ComboElsewhere()
    {
        combo = Create("HComb", "%100%ss", HCS_DROPDOWN | HCS_EDIT | HCS_3DBORDER, 7, { 10, 10, 120, 24 });
        HCAddItemEx(combo, "one", nullptr);
        SetForegroundWindow(parent.hwnd());
        SetFocus(combo);
        PumpPending();
    }
    void Open()
    {
        SetForegroundWindow(parent.hwnd());
        SetFocus(combo);
        PumpPending();
        Send(combo, CB_SHOWDROPDOWN, TRUE);
        ASSERT_TRUE(IsOpen());
    }
    bool IsOpen() const { return Send(combo, CB_GETDROPPEDSTATE) != 0; }
    // What the other process does with input takes its time.
    bool Settles(const std::function<bool()>& condition) { return PumpUntil(condition); }

    OtherHost other;
    HWND      combo = nullptr;
};

TEST_F(ComboElsewhere, OtherProcessHasItsMouseWhileNoListIsOpen)
{
    MoveMouse(other.hwnd(), 50, 50);
    EXPECT_TRUE(Settles([&] { return other.MovesTo(50) > 0; }));
    ClickAt(other.hwnd(), 50, 50);
    EXPECT_TRUE(Settles([&] { return other.Presses() == 1; }));
}

TEST_F(ComboElsewhere, PressInAnotherProcessOnlyClosesTheList)
{
    Open();
    MoveMouse(other.hwnd(), 60, 60);
    MoveMouse(other.hwnd(), 70, 70);
    EXPECT_TRUE(IsOpen());
    PressButton(other.hwnd(), 80, 80);
    EXPECT_TRUE(Settles([&] { return !IsOpen(); }));
    // They came before the press. When the list goes, the system tells who has the pointer now.
    EXPECT_EQ(0, other.MovesTo(60));
    EXPECT_EQ(0, other.MovesTo(70));
    ReleaseButton(other.hwnd(), 80, 80);
    EXPECT_EQ(0, other.Presses());
    EXPECT_EQ(1, parent.Count(HCN_CLOSEUP));
    ClickAt(other.hwnd(), 90, 90);
    EXPECT_TRUE(Settles([&] { return other.Presses() == 1; })) << "the mouse is its own again";
}

TEST_F(ComboElsewhere, OtherProcessHasItsMouseBackWhenTheComboGoes)
{
    Open();
    DestroyWindow(combo);
    ClickAt(other.hwnd(), 50, 50);
    EXPECT_TRUE(Settles([&] { return other.Presses() == 1; }));
}

} // namespace
