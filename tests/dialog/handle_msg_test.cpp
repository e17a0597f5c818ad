// The body of all window procedures.
#include "dialog/test_control.h"

namespace {

class HandleMsgTest : public TestControl {};

TEST_F(HandleMsgTest, GivesNoStateAndCallsNoHandlerWithoutARecord)
{
    const HWND hwnd = Create(className, "");
    handled.clear();
    EXPECT_EQ(0, Send(hwnd, WWM_GETSTATE));
    EXPECT_EQ(0, Send(hwnd, WM_USER));
    EXPECT_TRUE(handled.empty());
}

TEST_F(HandleMsgTest, KeepsTheRecordWithoutAskingTheHandler)
{
    const HWND hwnd = Create(className, "");
    handled.clear();
    EXPECT_EQ(0, Send(hwnd, WWM_SETSTATE, 0, reinterpret_cast<LPARAM>(&record)));
    EXPECT_EQ(reinterpret_cast<LRESULT>(&record), Send(hwnd, WWM_GETSTATE));
    EXPECT_TRUE(handled.empty());
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(&record), GetWindowLongPtrA(hwnd, 0));
}

TEST_F(HandleMsgTest, KeepsTheRecordAtItsOffset)
{
    offset = sizeof(LONG_PTR);
    const HWND hwnd = CreateWithRecord();
    EXPECT_EQ(0, GetWindowLongPtrA(hwnd, 0));
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(&record), GetWindowLongPtrA(hwnd, sizeof(LONG_PTR)));
    EXPECT_EQ(reinterpret_cast<LRESULT>(&record), Send(hwnd, WWM_GETSTATE));
}

TEST_F(HandleMsgTest, CreationReachesTheHandlerBeforeThereIsARecord)
{
    Create(className, "");
    ASSERT_EQ(1u, handled.size()) << "only WM_NCCREATE";
    EXPECT_EQ(static_cast<UINT>(WM_NCCREATE), handled[0].message);
    EXPECT_EQ(nullptr, handled[0].record);
}

TEST_F(HandleMsgTest, AnEarlierMessageGoesToTheDefault)
{
    // An overlapped window is asked for its limits before it is created.
    const HWND hwnd = CreateWindowExA(0, className, "", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr,
                                      GetModuleHandleA(nullptr), nullptr);
    EXPECT_NE(nullptr, hwnd);
    EXPECT_FALSE(Reached(WM_GETMINMAXINFO));
    EXPECT_TRUE(Reached(WM_NCCREATE));

    MINMAXINFO info = {};
    info.ptMinTrackSize = { 33, 44 };
    EXPECT_EQ(0, Send(hwnd, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info)));
    EXPECT_FALSE(Reached(WM_GETMINMAXINFO));
    DestroyWindow(hwnd);
}

TEST_F(HandleMsgTest, TheHandlerGetsTheRecordAndItsResultStands)
{
    const HWND hwnd = CreateWithRecord();
    handler = [](UINT message, WPARAM wParam, LPARAM lParam, int* pDefault) -> LRESULT {
        EXPECT_EQ(0, *pDefault);
        *pDefault = message != WM_USER;
        return static_cast<LRESULT>(wParam) + lParam;
    };
    EXPECT_EQ(42, Send(hwnd, WM_USER, 40, 2));
    ASSERT_EQ(1u, handled.size());
    EXPECT_EQ(&record, handled[0].record);
}

TEST_F(HandleMsgTest, TheHandlerMayAnswerACommonMessageItself)
{
    const HWND hwnd = CreateWithRecord();
    handler = [](UINT message, WPARAM, LPARAM, int* pDefault) -> LRESULT {
        *pDefault = message != WWM_GETSTYLE;
        return 1234;
    };
    EXPECT_EQ(1234, Send(hwnd, WWM_GETSTYLE));
    EXPECT_EQ(1, Send(hwnd, WWM_CANCEL));
    EXPECT_EQ(CF_CANCEL, record.wFlags);
}

TEST_F(HandleMsgTest, TheDefaultIsTheCommonAnswerThenThePlatforms)
{
    const HWND hwnd = CreateWithRecord();
    EXPECT_EQ(reinterpret_cast<LRESULT>(parent.hwnd()), Send(hwnd, WWM_GETPARENT));
    EXPECT_EQ(1, SendPtr(hwnd, WM_SETTEXT, 0, "title"));
    EXPECT_EQ("title", TextOf(hwnd));
    EXPECT_TRUE(Reached(WM_SETTEXT));
}

TEST_F(HandleMsgTest, TheHandlersResultStandsWhenItHasDestroyedTheWindow)
{
    const HWND hwnd = CreateWithRecord();
    handler = [&](UINT message, WPARAM, LPARAM, int* pDefault) -> LRESULT {
        *pDefault = 1;
        if (message == WM_SETFONT) {
            DestroyWindow(hwnd);
        }
        return message == WM_SETFONT ? 55 : 0;
    };
    const ControlHeader before = record;
    EXPECT_EQ(55, Send(hwnd, WM_SETFONT, 1));
    EXPECT_FALSE(IsWindow(hwnd));
    EXPECT_EQ(HFONT{ before.hFont }, HFONT{ record.hFont }) << "the record isn't touched";
}

TEST_F(HandleMsgTest, AWindowThatHasLostItsRecordAnswersZero)
{
    const HWND hwnd = CreateWithRecord();
    Send(hwnd, WWM_SETSTATE, 0, 0);
    handled.clear();
    for (const UINT message : { WWM_GETPARENT, WWM_SETPARENT, WWM_GETSTYLE, WWM_CANCEL, WWM_ISNULL, WM_GETFONT }) {
        EXPECT_EQ(0, Send(hwnd, message)) << message;
    }
    EXPECT_TRUE(handled.empty());
}

TEST_F(HandleMsgTest, ASetFontResizesTheControl)
{
    const HWND hwnd = CreateWithRecord();
    handler = [](UINT message, WPARAM wParam, LPARAM lParam, int* pDefault) -> LRESULT {
        *pDefault = 1;
        if (message == WM_SIZE) {
            EXPECT_EQ(0u, wParam);
            EXPECT_EQ(0, lParam);
        }
        return 0;
    };
    const HFONT font = static_cast<HFONT>(GetStockObject(ANSI_VAR_FONT));
    EXPECT_EQ(0, Send(hwnd, WM_SETFONT, reinterpret_cast<WPARAM>(font)));
    EXPECT_TRUE(Reached(WM_SIZE));
    EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(hwnd, WM_GETFONT));
}

TEST_F(HandleMsgTest, SetStyleChangesTheWindowToo)
{
    const HWND  hwnd = CreateWithRecord();
    const DWORD style = WS_CHILD | WS_VISIBLE | 0x0081;
    EXPECT_EQ(1, Send(hwnd, WWM_SETSTYLE, 0, static_cast<LPARAM>(style)));
    EXPECT_EQ(style, DWORD{ record.dwStyle });
    EXPECT_EQ(static_cast<LONG>(style), GetWindowLongA(hwnd, GWL_STYLE) | WS_VISIBLE);
}

TEST_F(HandleMsgTest, SetStyleLeavesAWindowShownOrHiddenAndEnabledOrDisabledAsItIs)
{
    constexpr DWORD states[] = { 0, WS_VISIBLE, WS_DISABLED, WS_VISIBLE | WS_DISABLED };
    const HWND hwnd = CreateWithRecord();
    for (const DWORD state : states) {
        ShowWindow(hwnd, state & WS_VISIBLE ? SW_SHOWNA : SW_HIDE);
        EnableWindow(hwnd, (state & WS_DISABLED) == 0);
        for (const DWORD asked : states) {
            Send(hwnd, WWM_SETSTYLE, 0, static_cast<LPARAM>(WS_CHILD | asked | 0x0081));
            EXPECT_EQ(static_cast<LONG>(WS_CHILD | state | 0x0081), GetWindowLongA(hwnd, GWL_STYLE));
            EXPECT_EQ(DWORD{ WS_CHILD | asked | 0x0081 }, DWORD{ record.dwStyle });
        }
    }
}

} // namespace
