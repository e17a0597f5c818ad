// The mouse hook, called as the system calls it.
#include "combo/drop_window.h"
#include "foundation/startup.h"

namespace {

class DropHook : public DropWindow {
protected:
    static LRESULT Call(HWND hwnd, WPARAM message, int code = HC_ACTION)
    {
        MOUSEHOOKSTRUCT data = {};
        data.hwnd = hwnd;
        return MouseHookProc(code, message, reinterpret_cast<LPARAM>(&data));
    }
};

constexpr UINT mouseMessages[] = {
    WM_MOUSEMOVE,   WM_LBUTTONDOWN, WM_LBUTTONUP,   WM_LBUTTONDBLCLK, WM_RBUTTONDOWN,   WM_RBUTTONUP,
    WM_MBUTTONDOWN, WM_MOUSEWHEEL,  WM_NCMOUSEMOVE, WM_NCLBUTTONUP,   WM_NCLBUTTONDOWN, WM_NCRBUTTONDOWN,
};

TEST_F(DropHook, LeavesTheThreeWindowsTheirMouse)
{
    MakeCombo();
    Open();
    for (const HWND hwnd : { combo, drop, face }) {
        for (const UINT message : mouseMessages) {
            EXPECT_EQ(0, Call(hwnd, message)) << message;
        }
    }
    ExpectOpen();
}

TEST_F(DropHook, KeepsTheMouseFromAllOthers)
{
    MakeCombo();
    const HWND other = AnotherCombo();
    Open();
    for (const HWND hwnd : { parent.hwnd(), other, GetDesktopWindow() }) {
        for (const UINT message : { WM_MOUSEMOVE, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP,
                                    WM_MOUSEWHEEL, WM_NCMOUSEMOVE, WM_NCRBUTTONDOWN }) {
            EXPECT_EQ(-1, Call(hwnd, message)) << message;
        }
    }
    ExpectOpen();
}

TEST_F(DropHook, PressElsewhereClosesAndIsNotDelivered)
{
    MakeCombo();
    for (const UINT message : { WM_LBUTTONDOWN, WM_NCLBUTTONDOWN, WM_SYSCOMMAND }) {
        SCOPED_TRACE(message);
        Open();
        Told();
        EXPECT_EQ(-1, Call(parent.hwnd(), message));
        ExpectClosed();
        EXPECT_EQ((Ints{ HCN_CLOSEUP }), Told());
    }
}

TEST_F(DropHook, MoveElsewhereShowsTheArrow)
{
    MakeCombo(HCS_EDIT);
    Open();
    SetCursor(hCurIBeam);
    EXPECT_EQ(-1, Call(parent.hwnd(), WM_MOUSEMOVE));
    EXPECT_EQ(hCurArrow, GetCursor());
    SetCursor(hCurIBeam);
    EXPECT_EQ(0, Call(face, WM_MOUSEMOVE));
    EXPECT_EQ(hCurIBeam, GetCursor());
}

TEST_F(DropHook, PassesOnWhatItMustNotLookAt)
{
    MakeCombo();
    Open();
    EXPECT_EQ(0, Call(parent.hwnd(), WM_LBUTTONDOWN, -1));
    EXPECT_EQ(0, MouseHookProc(HC_ACTION, WM_LBUTTONDOWN, 0));
    ExpectOpen();
    EXPECT_EQ(-1, Call(parent.hwnd(), WM_LBUTTONDOWN, HC_NOREMOVE));
    ExpectClosed();
}

TEST_F(DropHook, TakesNothingWhileNoListIsOpen)
{
    MakeCombo();
    for (int round = 0; round < 2; ++round) {
        for (const UINT message : mouseMessages) {
            EXPECT_EQ(0, Call(parent.hwnd(), message)) << message;
            EXPECT_EQ(0, Call(nullptr, message)) << message;
        }
        Open();
        Close();
    }
}

TEST_F(DropHook, TakesNothingForAComboThatWentWithoutAWord)
{
    MakeCombo();
    hOpenCombo = reinterpret_cast<HWND>(ULONG_PTR{ 0x7FFE });
    EXPECT_EQ(0, Call(parent.hwnd(), WM_MOUSEMOVE));
    EXPECT_EQ(0, Call(parent.hwnd(), WM_LBUTTONDOWN));
    // The next one that opens puts it right.
    Open();
    ExpectOpen();
}

// The variables are those of a process without an open list, as a hook in another process finds them.
TEST_F(DropHook, InAnotherProcessAsksTheComboToClose)
{
    MakeCombo();
    Open();
    hOpenCombo = hOpenDrop = hOpenChild = nullptr;
    EXPECT_EQ(-1, Call(parent.hwnd(), WM_MOUSEMOVE));
    EXPECT_EQ(-1, Call(parent.hwnd(), WM_RBUTTONDOWN));
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(-1, Call(parent.hwnd(), WM_LBUTTONDOWN));
    EXPECT_TRUE(IsOpen()) << "it waits for nobody";
    hOpenCombo = combo;
    hOpenDrop = drop;
    hOpenChild = face;
    PumpPending();
    ExpectClosed();
}

TEST_F(DropHook, InAnotherProcessPassesOnWhatAHiddenListDoesNotConcern)
{
    MakeCombo();
    Open();
    hOpenCombo = hOpenDrop = hOpenChild = nullptr;
    ShowWindow(drop, SW_HIDE);
    EXPECT_EQ(0, Call(parent.hwnd(), WM_MOUSEMOVE));
    EXPECT_EQ(0, Call(parent.hwnd(), WM_LBUTTONDOWN));
    hOpenCombo = combo;
    hOpenDrop = drop;
    hOpenChild = face;
    Close();
    ExpectClosed();
}

} // namespace
