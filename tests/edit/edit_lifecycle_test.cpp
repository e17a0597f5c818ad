// Birth and death of edit controls.
#include "edit_window.h"
#include "support/block_leaks.h"
#include "support/guarded_memory.h"
#include "support/import_hook.h"

namespace {

using EditLifecycle = EditWindow;

TEST_F(EditLifecycle, BothClassesHaveTheSameProcedureAndCursor)
{
    WNDCLASSA first = {};
    WNDCLASSA second = {};
    ASSERT_TRUE(GetClassInfoA(GetModuleHandleA(nullptr), "HEdit", &first));
    ASSERT_TRUE(GetClassInfoA(GetModuleHandleA(nullptr), "HEdit_SS", &second));
    EXPECT_EQ(0x400Bu, first.style);
    EXPECT_EQ(0x400Bu, second.style);
    EXPECT_EQ(static_cast<int>(sizeof(LONG_PTR)), first.cbWndExtra);
    EXPECT_EQ(first.lpfnWndProc, second.lpfnWndProc);
    EXPECT_EQ(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_IBEAM)), first.hCursor);
}

TEST_F(EditLifecycle, RecordTakesWhatTheCreationSays)
{
    Create("%nl", HES_RIGHT | WS_BORDER);
    const HEditCtl* const ctl = Ctl();
    ASSERT_NE(nullptr, ctl);
    EXPECT_EQ(edit, +ctl->hWnd);
    EXPECT_EQ(parent.hwnd(), +ctl->hParent);
    EXPECT_EQ(7u, +ctl->wId);
    EXPECT_EQ(static_cast<DWORD>(HES_RIGHT | WS_BORDER | WS_CHILD | WS_VISIBLE), +ctl->dwStyle);
    EXPECT_EQ('*', static_cast<char>(ctl->chPassword));
}

TEST_F(EditLifecycle, StaticFieldIsReadOnlyToo)
{
    Create("abc", HES_STATIC);
    EXPECT_TRUE(HasStyle(Ctl(), HES_READONLY));
}

TEST_F(EditLifecycle, CalculatorFieldIsEditedAtTheRight)
{
    Create("%zd0.00");
    EXPECT_TRUE(HasStyle(Ctl(), HES_EDITRIGHT));
}

TEST_F(EditLifecycle, FocusBrushIsGreyWhereWindowsAreWhite)
{
    Create("abc", HES_FOCUSBRUSH);
    const bool white = GetSysColor(COLOR_WINDOW) == RGB(255, 255, 255);
    EXPECT_EQ(GetStockObject(white ? LTGRAY_BRUSH : WHITE_BRUSH), reinterpret_cast<HGDIOBJ>(Send(HEM_GETFOCUSBRUSH)));
}

TEST_F(EditLifecycle, WithoutTheStyleThereIsNoFocusBrush)
{
    Create("abc");
    EXPECT_EQ(0, Send(HEM_GETFOCUSBRUSH));
}

TEST_F(EditLifecycle, TextIsBuiltInDisplayForm)
{
    Create("%nd#,##0.00");
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DISPLAY));
    const char separator = WWGetIntlInfo()->chDecimalSep;
    EXPECT_EQ(std::string("0") + separator + "00", Text());
}

TEST_F(EditLifecycle, InitialTextShows)
{
    Create("%ss20abc");
    EXPECT_EQ("abc", Text());
    EXPECT_EQ(20, Send(HEM_GETLIMIT));
}

TEST_F(EditLifecycle, LineHeightIsThatOfTheDefaultFont)
{
    Create("abc");
    EXPECT_EQ(static_cast<LONG>(HIWORD(GetBaseUnits(nullptr))), +Ctl()->cyChar);
}

TEST_F(EditLifecycle, WindowWithoutATextIsAnEmptyTextField)
{
    Create(nullptr);
    ASSERT_NE(nullptr, Ctl());
    EXPECT_EQ('s', Send(HEM_GETCLASS));
    EXPECT_EQ("", Text());
}

TEST_F(EditLifecycle, EachFailedAllocationFailsTheCreationOrIsSurvived)
{
    const int before = LiveBlocks();
    for (FailEachAllocation each; each.Next();) {
        const HWND made = CreateWindowExA(0, "HEdit_SS", "%nd|1;9;|0.0", WS_CHILD, 0, 0, 50, 20, parent.hwnd(), nullptr,
                                          GetModuleHandleA(nullptr), nullptr);
        if (made) {
            char text[32] = "";
            SendMessageA(made, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
            EXPECT_STRNE("", text) << "allocation " << each.Number();
            DestroyWindow(made);
        }
        EXPECT_EQ(before, LiveBlocks()) << "allocation " << each.Number();
    }
}

TEST_F(EditLifecycle, CreationFailsWithoutMemoryForTheRecordTheValueOrTheText)
{
    // The record, the copy of the window text, the text, the value.
    for (int n = 1; n <= 4; ++n) {
        FailAllocation(n);
        EXPECT_EQ(nullptr, CreateWindowExA(0, "HEdit", "%nl", WS_CHILD, 0, 0, 50, 20, parent.hwnd(), nullptr,
                                           GetModuleHandleA(nullptr), nullptr))
            << "allocation " << n;
    }
    FailAllocation(0);
}

TEST_F(EditLifecycle, DestructionFreesEverything)
{
    const int before = LiveBlocks();
    Create("%nd0.0");
    SendText(HEM_SETFORMAT, 0, "0.0;-0.0;none");
    DestroyWindow(edit);
    EXPECT_EQ(before, LiveBlocks());
}

TEST_F(EditLifecycle, FocusedFieldCommitsWhenItIsDestroyed)
{
    Create("%nl");
    int linked = 0;
    Send(HEM_LINKDATA, 0, reinterpret_cast<LPARAM>(&linked));
    Focus();
    Replace("42");
    // The record goes with the window: what is left is the linked buffer.
    Ctl()->hParent = nullptr;
    SendMessageA(edit, WM_NCDESTROY, 0, 0);
    EXPECT_EQ(42, linked);
    EXPECT_EQ(nullptr, Ctl());
}

int  gValidations;
int CALLBACK CountValidation(HWND, int, void*)
{
    ++gValidations;
    return 0;
}

TEST_F(EditLifecycle, LastCommitRunsWithoutTheValidator)
{
    Create("%nl");
    int linked = 0;
    Send(HEM_LINKDATA, 0, reinterpret_cast<LPARAM>(&linked));
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(CountValidation));
    Focus();
    Replace("42");
    gValidations = 0;
    SendMessageA(edit, WM_NCDESTROY, 0, 0);
    EXPECT_EQ(42, linked);
    EXPECT_EQ(0, gValidations);
}

TEST_F(EditLifecycle, MessagesToAWindowWithoutARecordGoToTheDefault)
{
    Create("abc");
    SendMessageA(edit, WM_NCDESTROY, 0, 0);
    EXPECT_EQ(0, Send(HEM_GETLIMIT));
    EXPECT_EQ(0, Send(HEM_GETTEXTPTR));
}

std::vector<UINT_PTR> gKilled;
BOOL WINAPI NoteKill(HWND, UINT_PTR timer)
{
    gKilled.push_back(timer);
    return TRUE;
}

TEST_F(EditLifecycle, DestructionEndsTheClocksTimer)
{
    Create("%kThh:mm:ss");
    const ImportHook hook("KillTimer", NoteKill);
    gKilled.clear();
    DestroyWindow(edit);
    EXPECT_EQ(std::vector<UINT_PTR>{ 1 }, gKilled);
}

DWORD gWindowColor;
DWORD WINAPI AnswerSysColor(int)
{
    return gWindowColor;
}

TEST_F(EditLifecycle, FocusBrushIsWhiteWhereWindowsAreNot)
{
    const ImportHook hook("GetSysColor", AnswerSysColor);
    for (const DWORD color : { RGB(255, 255, 254), RGB(255, 255, 255) }) {
        gWindowColor = color;
        edit = nullptr;
        Create("abc", HES_FOCUSBRUSH);
        EXPECT_EQ(GetStockObject(color == RGB(255, 255, 255) ? LTGRAY_BRUSH : WHITE_BRUSH),
                  reinterpret_cast<HGDIOBJ>(Send(HEM_GETFOCUSBRUSH)));
    }
}

TEST_F(EditLifecycle, HostMayEndTheWindowOnceMoreInItsLastCommit)
{
    for (const bool destroys : { true, false }) {
        const BlockLeakCheck blocks;
        int                  told = 0;
        edit = nullptr;
        Create("%nl|0;100;|");
        Focus();
        Replace("150");
        parent.On(HEN_ABOVEMAX, [&] {
            ++told;
            if (destroys) {
                DestroyWindow(edit);
            } else {
                SendMessageA(edit, WM_NCDESTROY, 0, 0);
            }
        });
        SendMessageA(edit, WM_NCDESTROY, 0, 0);
        EXPECT_EQ(1, told);
        EXPECT_EQ(!destroys, IsWindow(edit) != 0);
        DestroyWindow(edit);
    }
}

} // namespace
