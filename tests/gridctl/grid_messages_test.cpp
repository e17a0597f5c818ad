// Messages that concern the window, its appearance, its data and its layout.
#include "gridctl/grid_window.h"

namespace {

class GridMessages : public GridWindow {};

TEST_F(GridMessages, HeightsAndWidthsAreBounded)
{
    MakeGrid(GridOf({ Text() }), 1);
    Send(grid, HGM_SETROWHEIGHT, 1);
    EXPECT_EQ(2, Send(grid, HGM_GETROWHEIGHT));
    Send(grid, HGM_SETROWHEIGHT, 3000);
    EXPECT_EQ(2000, Send(grid, HGM_GETROWHEIGHT));
    Send(grid, HGM_SETROWHEIGHT, 33, 1);
    EXPECT_EQ(33, Send(grid, HGM_GETROWHEIGHT));
    Send(grid, HGM_SETHEADERHEIGHT, static_cast<WPARAM>(-5), 1);
    EXPECT_EQ(0, Send(grid, HGM_GETHEADERHEIGHT));
    EXPECT_TRUE(ctl->pData->dwStyle & HGS_COLHEADERS);
    Send(grid, HGM_SETROWHDRWIDTH, static_cast<WPARAM>(-1));
    EXPECT_EQ(0, Send(grid, HGM_GETROWHDRWIDTH));
    Send(grid, HGM_SETROWHDRWIDTH, 55);
    EXPECT_EQ(55, Send(grid, HGM_GETROWHDRWIDTH));
    // Sizes are numbers of 16 bits, so these two are negative as well.
    for (const WPARAM size : { 65531, 40000 }) {
        Send(grid, HGM_SETHEADERHEIGHT, size);
        EXPECT_EQ(0, Send(grid, HGM_GETHEADERHEIGHT)) << size;
        Send(grid, HGM_SETROWHDRWIDTH, size);
        EXPECT_EQ(0, Send(grid, HGM_GETROWHDRWIDTH)) << size;
    }
}

TEST_F(GridMessages, ResetSizesGoesBackToTheDefaults)
{
    MakeGrid(GridOf({ Text() }), 1);
    Send(grid, HGM_SETROWHEIGHT, 50);
    Send(grid, HGM_SETHEADERHEIGHT, 60);
    Send(grid, HGM_RESETSIZES, 0, 1);
    EXPECT_EQ(20, Send(grid, HGM_GETROWHEIGHT));
    EXPECT_EQ(20, Send(grid, HGM_GETHEADERHEIGHT));
}

TEST_F(GridMessages, BandsOutsideOneToFiveAreRefused)
{
    MakeGrid(GridOf({ Text() }), 1);
    EXPECT_EQ(0, Send(grid, HGM_SETBANDS, 0, 0));
    EXPECT_EQ(0, Send(grid, HGM_SETBANDS, 0, 6));
    EXPECT_EQ(1, Send(grid, HGM_GETBANDS));
}

TEST_F(GridMessages, FewerBandsMoveColumnsToTheLastOneWithoutRepainting)
{
    MakeGrid(GridOf({ Text(), Text() }), 1);
    Send(grid, HGM_SETBANDS, 0, 5);
    EXPECT_EQ(1, Send(grid, HGM_SETFIELDBAND, 1, 3));
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    EXPECT_EQ(1, Send(grid, HGM_SETBANDS, 0, 2));
    EXPECT_EQ(1, Send(grid, HGM_GETFIELDBAND, 1));
    EXPECT_FALSE(IsInvalid());
}

TEST_F(GridMessages, StyleWordIsTheDefinitionsAndKeepsTheWindowEqual)
{
    MakeGrid(GridOf({ Text() }), 1);
    const DWORD style = static_cast<DWORD>(Send(grid, WWM_GETSTYLE));
    EXPECT_EQ(gridStyle, style);
    EXPECT_EQ(1, Send(grid, WWM_SETSTYLE, 0, static_cast<LPARAM>(style | HGS_STRIPED | WS_CHILD | WS_VISIBLE)));
    EXPECT_TRUE(GetWindowLongA(grid, GWL_STYLE) & HGS_STRIPED);
    EXPECT_EQ(1, Send(grid, HGM_SETSTYLEBITS, 0, HGS_STRIPED));
    EXPECT_FALSE(Send(grid, WWM_GETSTYLE) & HGS_STRIPED);
    EXPECT_TRUE(GetWindowLongA(grid, GWL_STYLE) & HGS_STRIPED);
    EXPECT_EQ(1, Send(grid, HGM_SETSTYLEBITS, 1, HGS_NOLINES));
    EXPECT_TRUE(Send(grid, WWM_GETSTYLE) & HGS_NOLINES);
}

TEST_F(GridMessages, StyleWordThatAHostSetsBackNeitherHidesTheWindowNorGivesANavigatorsGridASecondBar)
{
    const DWORD style = HGS_ROWHEADERS | HGS_COLHEADERS | HGS_NAVIGATOR;
    grid = Create("HGrid", "", style);
    ctl = RecordOf<HGridCtl>(grid);
    ASSERT_NE(nullptr, ctl->hNavScroll);
    const DWORD stored = static_cast<DWORD>(Send(grid, WWM_GETSTYLE)) & ~DWORD{ WS_VISIBLE };
    ASSERT_TRUE(stored & WS_VSCROLL);
    EnableWindow(grid, FALSE);
    const LONG window = GetWindowLongA(grid, GWL_STYLE);
    EXPECT_EQ(1, Send(grid, WWM_SETSTYLE, 0, static_cast<LPARAM>(stored | HGS_STRIPED)));
    EXPECT_EQ(window | static_cast<LONG>(HGS_STRIPED), GetWindowLongA(grid, GWL_STYLE));
    EXPECT_EQ(stored | HGS_STRIPED, static_cast<DWORD>(Send(grid, WWM_GETSTYLE)));
}

TEST_F(GridMessages, BackgroundBrushIsKeptAndPassedToTheCellControls)
{
    MakeGrid(GridOf({ Text() }), 1);
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    EXPECT_EQ(0, Send(grid, HGM_SETBKBRUSH, reinterpret_cast<WPARAM>(brush), 0));
    EXPECT_FALSE(IsInvalid());
    EXPECT_EQ(reinterpret_cast<LRESULT>(brush), Send(grid, HGM_GETBKBRUSH));
    const HWND child = reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 0));
    EXPECT_EQ(reinterpret_cast<LRESULT>(brush), Send(child, HEM_GETBRUSH));
    EXPECT_EQ(reinterpret_cast<LRESULT>(brush), Send(grid, HGM_SETBKBRUSH, 0, 1));
    EXPECT_TRUE(IsInvalid());
    DeleteObject(brush);
}

TEST_F(GridMessages, TitleIsCopiedAndNullIsRefused)
{
    MakeGrid(GridOf({ Text() }), 1);
    EXPECT_EQ(0, Send(grid, HGM_SETTITLE, 0, 0));
    char text[] = "another title";
    SendPtr(grid, HGM_SETTITLE, 0, text);
    text[0] = 'X';
    EXPECT_STREQ("another title", ctl->pData->pszTitle);
    SetWindowTextA(grid, "third");
    EXPECT_STREQ("third", ctl->pData->pszTitle);
    EXPECT_EQ("third", TextOf(grid));
    char cut[4] = {};
    EXPECT_EQ(3, SendPtr(grid, HGM_GETTITLE, sizeof cut, cut));
    EXPECT_STREQ("thi", cut);
    SendPtr(grid, HGM_SETTITLE, 0, ctl->pData->pszTitle);
    EXPECT_STREQ("third", ctl->pData->pszTitle);
}

TEST_F(GridMessages, FixedColumnsAreBoundedAndTakeTheScrollingZoneAlong)
{
    MakeGrid(GridOf({ Text(), Text(), Text() }), 1);
    Send(grid, HGM_SETFIXEDCOLS, 2);
    EXPECT_EQ(2, Send(grid, HGM_GETFIXEDCOLS));
    EXPECT_EQ(2, Send(grid, HGM_GETFIRSTCOL));
    Send(grid, HGM_SETFIXEDCOLS, static_cast<WPARAM>(-1));
    EXPECT_EQ(3, Send(grid, HGM_GETFIXEDCOLS));
}

TEST_F(GridMessages, CtlColorAsksTheParent)
{
    MakeGrid(GridOf({ Text() }), 1);
    parent.OnMessage(HGM_CTLCOLOR, [](WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam + 1); });
    EXPECT_EQ(78, Send(grid, HGM_CTLCOLOR, 77));
}

TEST_F(GridMessages, CtlColorGoesToTheDefaultWithoutAParentWindow)
{
    MakeGrid(GridOf({ Text() }), 1);
    parent.OnMessage(HGM_CTLCOLOR, [](WPARAM wParam, LPARAM) { return static_cast<LRESULT>(wParam + 1); });
    ctl->hParent = nullptr;
    EXPECT_EQ(0, Send(grid, HGM_CTLCOLOR, 77));
    ctl->hParent = parent.hwnd();
}

int gErased;

LRESULT CALLBACK ErasureProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    gErased += message == WM_ERASEBKGND;
    return HGridWnd(hwnd, message, wParam, lParam);
}

TEST_F(GridMessages, BackgroundBrushAndFontErase)
{
    MakeGrid(GridOf({ Text() }), 1);
    SetWindowLongPtrA(grid, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ErasureProc));
    for (const UINT message : { UINT{ HGM_SETBKBRUSH }, UINT{ WM_SETFONT } }) {
        for (const LPARAM repaint : { 0, 1 }) {
            UpdateWindow(grid);
            ValidateRect(grid, nullptr);
            gErased = 0;
            Send(grid, message, 0, repaint);
            EXPECT_EQ(repaint != 0, IsInvalid()) << message;
            UpdateWindow(grid);
            EXPECT_EQ(repaint, gErased) << message;
        }
    }
}

TEST_F(GridMessages, NothingIsRepaintedWhereNoRefreshIsAskedFor)
{
    MakeGrid(GridOf({ Text() }), 5);
    struct Case {
        UINT   message;
        WPARAM wParam;
    };
    constexpr Case cases[] = { { HGM_SETROWHEIGHT, 30 }, { HGM_SETHEADERHEIGHT, 30 }, { HGM_RESETSIZES, 0 } };
    for (const Case& c : cases) {
        UpdateWindow(grid);
        ValidateRect(grid, nullptr);
        Send(grid, c.message, c.wParam, 0);
        EXPECT_FALSE(IsInvalid()) << c.message;
        Send(grid, c.message, c.wParam, 1);
        EXPECT_TRUE(IsInvalid()) << c.message;
    }
    UpdateWindow(grid);
    ValidateRect(grid, nullptr);
    SendPtr(grid, HGM_SETDATA, 0, GridOf({ Date() }));
    EXPECT_FALSE(IsInvalid());
}

TEST_F(GridMessages, EndStopKeepsTheLowByte)
{
    MakeGrid(GridOf({ Text() }), 1);
    Send(grid, HGM_SETENDSTOP, 0x101);
    EXPECT_EQ(1, ctl->pData->fEndStop);
    Send(grid, HGM_SETENDSTOP, 0x100);
    EXPECT_EQ(0, ctl->pData->fEndStop);
}

TEST_F(GridMessages, CellTextIsFormattedIntoTheBuffer)
{
    MakeGrid(GridOf({ Text(), Number("N", 0, "0.00") }), 2);
    SetText(1, 1, "3");
    char text[256] = {};
    EXPECT_EQ(4, SendPtr(grid, HGM_GETCELLTEXT, PackCell(1, 1), text));
    EXPECT_STREQ("3.00", text);
    EXPECT_EQ(0, SendPtr(grid, HGM_GETCELLTEXT, PackCell(9, 1), text));
}

TEST_F(GridMessages, RecalcAnswersOneAndTellsTheLayout)
{
    MakeGrid(GridOf({ Text() }), 1);
    parent.ClearCounts();
    EXPECT_EQ(1, Send(grid, HGM_RECALC));
    EXPECT_EQ(1, parent.Count(HGN_LAYOUT));
}

TEST_F(GridMessages, NumbersWithoutMeaningGoToTheDefault)
{
    MakeGrid(GridOf({ Text() }), 1);
    constexpr UINT numbers[] = { 1366, 1367, 1369, 1379, 1400, 1403, 1416, 1421, 1444, 1445, 1456, 1126, 1330 };
    for (const UINT number : numbers) {
        EXPECT_EQ(0, Send(grid, number, 0, 0)) << number;
    }
}

TEST_F(GridMessages, FrameMessagesAreAnsweredForTheGridToo)
{
    MakeGrid(GridOf({ Text() }), 1);
    EXPECT_EQ(reinterpret_cast<LRESULT>(parent.hwnd()), Send(grid, WWM_GETPARENT));
    EXPECT_EQ(1, Send(grid, WWM_SETUPDATING, 1));
    EXPECT_EQ(1, Send(grid, WWM_GETUPDATING));
    EXPECT_EQ(1, Send(grid, WWM_CANCEL));
    EXPECT_TRUE(Send(grid, HGM_GETFLAGS) & CF_CANCEL);
    EXPECT_EQ(0, Send(grid, WWM_ISNULL));
    Send(grid, HGM_SETFLAGS, 1, HGC_QUIETSCROLL);
    EXPECT_EQ(1, Send(grid, WWM_ISNULL));
    Send(grid, HGM_SETFLAGS, 0, HGC_QUIETSCROLL);
}

} // namespace
