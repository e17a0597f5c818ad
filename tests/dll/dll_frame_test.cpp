// Start-up, message frame and drawing through the DLL.
#include "support/debug_output.h"
#include "support/pixels.h"
#include "support/window_test.h"

namespace {

constexpr char frameClass[] = "DllFrameTest";

LRESULT CALLBACK FrameHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM, int* pDefault, void*)
{
    if (message == WM_USER) {
        return static_cast<LRESULT>(wParam) * 2;
    }
    if (message == WM_NCDESTROY) {
        SendMessageA(hwnd, WWM_SETSTATE, 0, 0);
    }
    *pDefault = 1;
    return 0;
}

LRESULT CALLBACK FrameProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return HandleMsg(hwnd, message, wParam, lParam, FrameHandler, 0);
}

LRESULT CALLBACK OtherProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WM_USER ? 77 : DefWindowProcA(hwnd, message, wParam, lParam);
}

// A host's own control on the library's frame.
class DllFrame : public WindowTest {
protected:
    DllFrame()
    {
        EXPECT_NE(0, RegisterControl(0, FrameProc, 0, sizeof(LONG_PTR), GetModuleHandleA(nullptr), nullptr, nullptr,
                                     nullptr, nullptr, frameClass));
        hwnd = Create(frameClass, "", 0, 77);
        record.hWnd = hwnd;
        record.hParent = parent.hwnd();
        record.wId = 77;
        Send(hwnd, WWM_SETSTATE, 0, reinterpret_cast<LPARAM>(&record));
    }
    ~DllFrame() override
    {
        DestroyWindow(hwnd);
        UnregisterClassA(frameClass, GetModuleHandleA(nullptr));
    }

    HWND          hwnd;
    ControlHeader record = {};
};

TEST(DllStart, HasRunWhenTheHostCallsIt)
{
    IntlSettings* const settings = WWGetIntlInfo();
    SetDateSep('-');
    WidgetsInit();
    EXPECT_EQ('-', settings->chDateSep);
    GetIntlSettings();
}

TEST(DllStart, RegistersItsClassesForTheWholeProcess)
{
    for (const char* name : { "HButt", "HEdit_SS", "HEdit", "HList", "HComb", "HDrop", "HGrid" }) {
        WNDCLASSA info = {};
        EXPECT_NE(0, GetClassInfoA(GetModuleHandleA(nullptr), name, &info)) << name;
    }
}

TEST(DllStart, NamesItsHelpFile)
{
    EXPECT_STREQ("Widgets.hlp", GetHelpName());
}

TEST(DllStart, WritesToTheDebugger)
{
    const DebugOutput output;
    WriteDebug("%d rows", 3);
    EXPECT_EQ(std::vector<std::string>{ "3 rows" }, output.Texts());
}

TEST(DllStartDeathTest, EndsTheProcessOnDemand)
{
    EXPECT_DEATH(AssertFailedLine(), "");
}

TEST_F(DllFrame, RunsTheHostsHandler)
{
    EXPECT_EQ(reinterpret_cast<LRESULT>(&record), Send(hwnd, WWM_GETSTATE));
    EXPECT_EQ(42, Send(hwnd, WM_USER, 21));
    EXPECT_EQ(reinterpret_cast<LRESULT>(parent.hwnd()), Send(hwnd, WWM_GETPARENT));
}

TEST_F(DllFrame, AnswersEachCommonMessage)
{
    EXPECT_EQ(1, Send(hwnd, WWM_SETCHANGED, 1));
    EXPECT_EQ(1, Send(hwnd, WWM_GETCHANGED));
    EXPECT_EQ(1, Send(hwnd, WWM_SETUPDATING, 1));
    EXPECT_EQ(1, Send(hwnd, WWM_GETUPDATING));
    EXPECT_EQ(1, Send(hwnd, WWM_SETSTYLE, 0, WS_CHILD | WS_VISIBLE | 1));
    EXPECT_EQ(WS_CHILD | WS_VISIBLE | 1, Send(hwnd, WWM_GETSTYLE));
    EXPECT_EQ(0, Send(hwnd, WWM_ISNULL));
    EXPECT_EQ(1, Send(hwnd, WWM_CANCEL));
    EXPECT_EQ(CF_CHANGED | CF_UPDATING | CF_CANCEL, record.wFlags);
    EXPECT_EQ(reinterpret_cast<LRESULT>(parent.hwnd()), Send(hwnd, WWM_SETPARENT, 0));
    EXPECT_EQ(0, Send(hwnd, WWM_GETPARENT));
    EXPECT_EQ(0, Send(hwnd, WWM_CHILDFOCUS)) << "for owners alone";
    EXPECT_EQ(0, Send(hwnd, WWM_CHILDBLUR)) << "for owners alone";
}

TEST_F(DllFrame, NotifiesItsParent)
{
    seen.Clear();
    EXPECT_EQ(0, Notify(&record, HGN_MOVED));
    EXPECT_EQ(0, NotifyParent(hwnd, HGN_DBLCLK));
    constexpr Seen expected[] = { { 0, ToParent, HGN_MOVED, 77 }, { 0, ToParent, HGN_DBLCLK, 77 } };
    EXPECT_SEEN(expected);
}

TEST_F(DllFrame, AnswersWithoutAWindowProcedure)
{
    LRESULT result = -1;
    record.wFlags = CF_NULL;
    EXPECT_EQ(1, IsStdMessage(&record, WWM_ISNULL, 0, 0, &result));
    EXPECT_EQ(1, result);
    EXPECT_EQ(0, IsStdMessage(&record, WM_USER, 0, 0, &result));
    EXPECT_EQ(1, IsStdMessage(&record, WWM_CANCEL, 0, 0, nullptr)) << "the result is nobody's";
    EXPECT_TRUE(record.wFlags & CF_CANCEL);
}

TEST_F(DllFrame, CreationThatAHostSendsItselfCreatesNothing)
{
    for (const char* const name : { "HButt", "HEdit", "HEdit_SS", "HList", "HComb", "HDrop", "HGrid" }) {
        const HWND    control = Create(name, "", 0, 78);
        const LRESULT state = Send(control, WWM_GETSTATE);
        EXPECT_NE(0, state) << name;
        Send(control, WM_NCCREATE);
        CREATESTRUCTA create = {};
        create.lpszName = "";
        create.hwndParent = parent.hwnd();
        Send(control, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create));
        EXPECT_EQ(state, Send(control, WWM_GETSTATE)) << name;
        DestroyWindow(control);
    }
}

TEST_F(DllFrame, AsksItsParentForBrushes)
{
    parent.OnMessage(WM_CTLCOLOREDIT, [](WPARAM, LPARAM) { return LRESULT{ 0x1234 }; });
    EXPECT_EQ(reinterpret_cast<HBRUSH>(INT_PTR{ 0x1234 }), FireCtlColorMsg(&record, 1, nullptr));
    EXPECT_EQ(GetStockObject(WHITE_BRUSH), FireCtlColorMsg(&record, 4, nullptr));
}

TEST_F(DllFrame, KnowsItsSurroundings)
{
    EXPECT_EQ(0, GetParentMod(hwnd));
    EXPECT_GT(LOWORD(GetBaseUnits(nullptr)), 0);
    EXPECT_GT(HIWORD(GetBaseUnits(nullptr)), 0);
}

TEST_F(DllFrame, KeepsClearOfItsSiblings)
{
    Create("STATIC", "", 0, 2, { 20, 20, 30, 30 });
    struct {
        HDC  hdc;
        HWND hwnd;
        RECT screen;
    } data = { GetDC(hwnd), hwnd, {} };
    GetWindowRect(hwnd, &data.screen);
    EnumChildWindows(parent.hwnd(), ClipSibs, reinterpret_cast<LPARAM>(&data));
    EXPECT_FALSE(PtVisible(data.hdc, 12, 12));
    EXPECT_TRUE(PtVisible(data.hdc, 60, 60));
    ReleaseDC(hwnd, data.hdc);
}

TEST_F(DllFrame, ADragEndsAtACancel)
{
    record.wFlags = CF_CANCEL;
    TimedScroll(&record, 1);
    MSG message = {};
    EXPECT_NE(0, PeekMessageA(&message, hwnd, WM_LBUTTONUP, WM_LBUTTONUP, PM_REMOVE));
}

TEST_F(DllFrame, TakesAnotherProcedure)
{
    EXPECT_EQ(&FrameProc, SubclassWW(hwnd, OtherProc));
    EXPECT_EQ(nullptr, SubclassWW(hwnd, OtherProc));
    EXPECT_EQ(77, Send(hwnd, WM_USER, 1));
    EXPECT_EQ(&OtherProc, SubclassWW(hwnd, FrameProc));
}

TEST(DllFrameState, KeepsTheOverwriteMode)
{
    EXPECT_EQ(0, SetOverwriteMode(1));
    EXPECT_EQ(1, GetOverwriteMode());
    EXPECT_EQ(1, SetOverwriteMode(0));
}

TEST(DllDrawing, AFrameLeavesTheInside)
{
    const Canvas canvas(40, 40);
    RECT         rect = { 5, 5, 35, 35 };
    Draw3DBorder(canvas.hdc(), &rect, 3, 0);
    const RECT inside = { 7, 7, 33, 33 };
    EXPECT_TRUE(EqualRect(&inside, &rect));
    EXPECT_EQ(GetSysColor(COLOR_BTNSHADOW), canvas.Shot().At(5, 5));
}

TEST(DllDrawing, AButtonFillsItsFace)
{
    const Canvas canvas(60, 40);
    RECT         rect = { 5, 5, 50, 35 };
    DrawPushButton(nullptr, canvas.hdc(), &rect, 0, DPB_INNERRECT, nullptr, nullptr, nullptr, 0, -1);
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), canvas.Shot().At(25, 20));
}

TEST_F(DllFrame, PaintsItsFrame)
{
    const HWND   framed = Create("STATIC", "", WS_BORDER, 3, { 200, 200, 80, 40 });
    const Pixels before = ShotOfWindow(framed);
    HNCPaint(framed, 0);
    EXPECT_EQ(80, before.width);
    EXPECT_NE(before.colors, ShotOfWindow(framed).colors);
}

} // namespace
