// The tips of the navigator's buttons: the tools that are registered, and the texts that a host gives.
#include "gridctl/grid_handlers.h"
#include "gridctl/grid_window.h"

#include <commctrl.h>

#include <string>
#include <vector>

namespace {

constexpr UINT askTipText = 40;

WNDPROC     gGridProc;
std::string gTipText; // what the host answers; empty: nothing
WPARAM      gAskedId;
int         gAsked;

LRESULT CALLBACK HostProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != askTipText) {
        return CallWindowProcA(gGridProc, hwnd, message, wParam, lParam);
    }
    ++gAsked;
    gAskedId = wParam;
    if (gTipText.empty()) {
        return 0;
    }
    lstrcpynA(reinterpret_cast<char*>(lParam), gTipText.c_str(), 81);
    return 1;
}

LRESULT CALLBACK SilentHost(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == askTipText ? 1 : CallWindowProcA(gGridProc, hwnd, message, wParam, lParam);
}

LRESULT CALLBACK DestroyingHost(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == askTipText) {
        DestroyWindow(hwnd);
        return 1;
    }
    return CallWindowProcA(gGridProc, hwnd, message, wParam, lParam);
}

class GridTips : public GridWindow {
protected:
    ~GridTips() override { MoveMouse(parent.hwnd(), 0, 0); }
    void Make(DWORD style2 = HGX_EXTRABUTTON, DWORD style = HGS_NAVIGATOR | HGS_NEWROW)
    {
        grid = CreateWindowExA(style2, "HGrid", "", WS_CHILD | WS_VISIBLE | style, 10, 10, 400, 200, parent.hwnd(),
                               reinterpret_cast<HMENU>(INT_PTR{ 100 }), GetModuleHandleA(nullptr), nullptr);
        ctl = RecordOf<HGridCtl>(grid);
        gAsked = 0;
        gAskedId = 0;
        gTipText.clear();
        PumpPending();
    }
    void Subclass(WNDPROC proc)
    {
        gGridProc = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(grid, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(proc)));
    }
    // The grid's answer to a request, in a buffer that held "old".
    std::string Request(UINT_PTR id, UINT flags)
    {
        NMTTDISPINFOA request = {};
        request.hdr.hwndFrom = ctl->hTips;
        request.hdr.idFrom = id;
        request.hdr.code = TTN_GETDISPINFOA;
        request.uFlags = flags;
        request.lpszText = request.szText;
        lstrcpyA(request.szText, "old");
        Send(grid, WM_NOTIFY, id, reinterpret_cast<LPARAM>(&request));
        return request.szText;
    }
    UINT_PTR IdOf(HWND button) { return reinterpret_cast<UINT_PTR>(button); }
};

TEST_F(GridTips, WindowHasItsStyleAndTheButtonsInOrder)
{
    Make();
    EXPECT_EQ(static_cast<DWORD>(WS_POPUP | TTS_ALWAYSTIP),
              static_cast<DWORD>(GetWindowLongA(ctl->hTips, GWL_STYLE)) & (WS_POPUP | WS_CHILD | 0xFF));
    const HWND expected[] = { ctl->hNavExtra, ctl->hNavFirst, ctl->hNavNew, ctl->hNavLast };
    ASSERT_EQ(4, Send(ctl->hTips, TTM_GETTOOLCOUNT));
    for (WPARAM i = 0; i < 4; ++i) {
        TOOLINFOA info = {};
        info.cbSize = sizeof info;
        EXPECT_TRUE(SendPtr(ctl->hTips, TTM_ENUMTOOLSA, i, &info));
        EXPECT_EQ(IdOf(expected[i]), info.uId) << i;
        EXPECT_EQ(grid, info.hwnd) << i;
        EXPECT_EQ(static_cast<UINT>(TTF_IDISHWND | TTF_SUBCLASS), info.uFlags) << i;
        EXPECT_EQ(reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(grid, GWLP_HINSTANCE)), info.hinst) << i;
        EXPECT_TRUE(IsRectEmpty(&info.rect)) << i;
    }
}

TEST_F(GridTips, ButtonThatIsMissingIsNoTool)
{
    Make(0);
    EXPECT_EQ(3, Send(ctl->hTips, TTM_GETTOOLCOUNT));
}

TEST_F(GridTips, WithoutButtonsThereIsNoWindow)
{
    Make(0, 0);
    HGAddTips(ctl, GetModuleHandleA(nullptr));
    EXPECT_EQ(nullptr, ctl->hTips);
}

TEST_F(GridTips, HostGivesTheTextByTheIdOfTheButton)
{
    Make();
    Subclass(HostProc);
    gTipText = "to the last";
    EXPECT_EQ("to the last", Request(IdOf(ctl->hNavLast), TTF_IDISHWND));
    EXPECT_EQ(4189u, gAskedId);
    EXPECT_EQ("to the last", Request(4190, 0));
    EXPECT_EQ(4190u, gAskedId);
}

TEST_F(GridTips, WithoutAnAnswerTheTextStays)
{
    Make();
    EXPECT_EQ("old", Request(IdOf(ctl->hNavLast), TTF_IDISHWND));
    Subclass(HostProc);
    EXPECT_EQ("old", Request(IdOf(ctl->hNavLast), TTF_IDISHWND));
    EXPECT_EQ(1, gAsked);
}

TEST_F(GridTips, AnswerWithoutATextIsAnEmptyOne)
{
    Make();
    Subclass(SilentHost);
    EXPECT_EQ("", Request(4188, 0));
}

TEST_F(GridTips, TextIsCutToWhatARequestHolds)
{
    Make();
    Subclass(HostProc);
    gTipText = std::string(100, 'x');
    EXPECT_EQ(std::string(79, 'x'), Request(4188, 0));
}

TEST_F(GridTips, OtherNotificationsAreNotLookedAt)
{
    Make();
    Subclass(HostProc);
    gTipText = "text";
    NMHDR header = {};
    for (const UINT code : { static_cast<UINT>(TTN_SHOW), static_cast<UINT>(TTN_GETDISPINFOA) - 1, 0u }) {
        header.code = code;
        EXPECT_EQ(0, SendPtr(grid, WM_NOTIFY, 0, &header));
    }
    EXPECT_EQ(0, Send(grid, WM_NOTIFY, 0, 0));
    EXPECT_EQ(0, gAsked);
}

TEST_F(GridTips, HostMayDestroyTheGridWithItsAnswer)
{
    Make();
    Subclass(DestroyingHost);
    EXPECT_EQ("old", Request(4188, 0));
    EXPECT_FALSE(IsWindow(grid));
}

TEST_F(GridTips, MouseThatRestsOnAButtonBringsItsTip)
{
    Make();
    Subclass(HostProc);
    gTipText = "to the first";
    MoveMouse(ctl->hNavFirst, 5, 5);
    MoveMouse(ctl->hNavFirst, 6, 6);
    ASSERT_TRUE(PumpUntil([&] { return IsWindowVisible(ctl->hTips) != 0; }));
    EXPECT_EQ(4188u, gAskedId);
    char      text[81] = {};
    TOOLINFOA info = {};
    info.cbSize = sizeof info;
    info.hwnd = grid;
    info.uId = IdOf(ctl->hNavFirst);
    info.lpszText = text;
    SendPtr(ctl->hTips, TTM_GETTEXTA, sizeof text, &info);
    EXPECT_STREQ("to the first", text);
    MoveMouse(parent.hwnd(), 0, 0);
    EXPECT_TRUE(PumpUntil([&] { return !IsWindowVisible(ctl->hTips); }));
}

} // namespace
