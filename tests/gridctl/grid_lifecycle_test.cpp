// Birth and death of a grid window.
#include "gridctl/grid_paint_window.h"

#include "support/guarded_memory.h"

#include <cstdio>
#include <fstream>
#include <vector>

namespace {

class GridLifecycle : public GridWindow {
protected:
    HWND Make(const char* title, DWORD style, DWORD exStyle = 0)
    {
        grid = CreateWindowExA(exStyle, "HGrid", title, style, 0, 0, 300, 200, parent.hwnd(),
                               reinterpret_cast<HMENU>(INT_PTR{ 5 }), GetModuleHandleA(nullptr), nullptr);
        ctl = RecordOf<HGridCtl>(grid);
        return grid;
    }
    // A grid whose class has a procedure of the host's from the start.
    HWND Superclass(WNDPROC proc, DWORD style, DWORD exStyle, const char* title = "")
    {
        constexpr char name[] = "HostsOwnGrid";
        WNDCLASSA      host = {};
        GetClassInfoA(GetModuleHandleA(nullptr), "HGrid", &host);
        host.lpfnWndProc = proc;
        host.lpszClassName = name;
        host.hInstance = GetModuleHandleA(nullptr);
        RegisterClassA(&host);
        const HWND window = CreateWindowExA(exStyle, name, title, WS_CHILD | style, 0, 0, 300, 200, parent.hwnd(), nullptr,
                                            host.hInstance, nullptr);
        UnregisterClassA(name, host.hInstance);
        return window;
    }
};

int gChildrenToEnd; // so many children later the grid goes

// A host whose procedure hears of the grid's children as the system tells of them.
LRESULT CALLBACK EndingHost(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE && --gChildrenToEnd == 0) {
        DestroyWindow(hwnd);
        return 0;
    }
    return HGridWnd(hwnd, message, wParam, lParam);
}

// A definition file in the current folder for as long as a test runs.
class DefinitionFile {
public:
    DefinitionFile(const char* path, DWORD style) : path_(path)
    {
        HGridData* const data = HGridCreate("From a file", style, 0, 0, 30, 50, 25, 0);
        HGAddFld(data, Text(16, "First"));
        HGAddFld(data, Number("Second"));
        HGSave(Append, &bytes_, 0x484A, data);
        HGridDestroy(data);
        std::ofstream(path_, std::ios::binary).write(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
    }
    ~DefinitionFile() { std::remove(path_); }

private:
    static int CALLBACK Append(void* context, void* buffer, int count)
    {
        auto* const bytes = static_cast<std::vector<char>*>(context);
        const char* const from = static_cast<const char*>(buffer);
        bytes->insert(bytes->end(), from, from + count);
        return 0;
    }
    const char*       path_;
    std::vector<char> bytes_;
};

TEST_F(GridLifecycle, TitleThatNamesNothingGivesAnEmptyDefinition)
{
    Make("no such definition", WS_CHILD | HGS_READONLY, 0);
    ASSERT_NE(nullptr, ctl);
    EXPECT_EQ(0, Send(grid, HGM_GETCOLCOUNT));
    EXPECT_STREQ("no such definition", ctl->pData->pszTitle);
    EXPECT_EQ(DWORD{ WS_CHILD | HGS_READONLY }, ctl->pData->dwStyle);
    EXPECT_EQ(DWORD{ HGX_DLGUNITS }, ctl->pData->dwStyle2);
    EXPECT_EQ(18506, ctl->pData->wVersion);
    EXPECT_EQ(5u, ctl->wId);
    EXPECT_EQ(parent.hwnd(), ctl->hParent);
}

TEST_F(GridLifecycle, OwnDefinitionHasTheDefaultSizesInDialogUnitsOfTheFont)
{
    const int unit = HIWORD(GetBaseUnits(nullptr));
    Make("", WS_CHILD);
    // Dialog units come to pixels at attachment; the row is at least as high as a line of text.
    const int units = 160 / unit;
    const int pixels = static_cast<int>(units * unit / 8.0 + 0.5);
    EXPECT_EQ(pixels, Send(grid, HGM_GETHEADERHEIGHT));
    EXPECT_EQ(std::max(pixels, unit + 5), Send(grid, HGM_GETROWHEIGHT));
    const int width = LOWORD(GetBaseUnits(nullptr));
    EXPECT_EQ(static_cast<int>(22 * width / 4.0 + 0.5), Send(grid, HGM_GETROWHDRWIDTH));
}

TEST_F(GridLifecycle, TitleFindsADefinitionFile)
{
    const DefinitionFile file("gridlife.GRS", WS_BORDER | WS_VISIBLE | WS_TABSTOP | HGS_STRIPED);
    Make("gridlife", WS_CHILD);
    ASSERT_NE(nullptr, ctl);
    EXPECT_EQ(2, Send(grid, HGM_GETCOLCOUNT));
    EXPECT_STREQ("From a file", ctl->pData->pszTitle);
    EXPECT_TRUE(IsWindow(reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 0))));
}

TEST_F(GridLifecycle, DefinitionDecidesBorderAndVisibilityAndTabStopOfAChild)
{
    const DefinitionFile file("gridlife.GRS", WS_BORDER | WS_VISIBLE | WS_TABSTOP | HGS_STRIPED);
    Make("gridlife", WS_CHILD | HGS_READONLY);
    const DWORD expected = WS_CHILD | WS_BORDER | WS_VISIBLE | WS_TABSTOP | HGS_STRIPED;
    EXPECT_EQ(expected, ctl->pData->dwStyle);
    EXPECT_EQ(expected, static_cast<DWORD>(GetWindowLongA(grid, GWL_STYLE)));
}

TEST_F(GridLifecycle, DefinitionDecidesTheScrollBars)
{
    const DefinitionFile file("gridlife.GRS", WS_VSCROLL | HGS_STRIPED);
    Make("gridlife", WS_CHILD | WS_HSCROLL);
    EXPECT_EQ(DWORD{ WS_VSCROLL }, static_cast<DWORD>(Send(grid, WWM_GETSTYLE)) & (WS_VSCROLL | WS_HSCROLL));
    AddRows(60);
    EXPECT_EQ(DWORD{ WS_VSCROLL }, static_cast<DWORD>(GetWindowLongA(grid, GWL_STYLE)) & (WS_VSCROLL | WS_HSCROLL));
}

LONG gCreatedStyle;

LRESULT CALLBACK CreationHost(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = HGridWnd(hwnd, message, wParam, lParam);
    if (message == WM_NCCREATE) {
        gCreatedStyle = reinterpret_cast<const CREATESTRUCTA*>(lParam)->style;
    }
    return result;
}

TEST_F(GridLifecycle, HostsProcedureSeesTheDefinitionsStyleBehindTheGridsOwn)
{
    const DefinitionFile file("gridlife.GRS", WS_BORDER | HGS_STRIPED);
    grid = Superclass(CreationHost, HGS_READONLY, 0, "gridlife");
    EXPECT_EQ(static_cast<LONG>(WS_CHILD | WS_BORDER | HGS_STRIPED), gCreatedStyle);
    DestroyWindow(grid);
    UnregisterClassA("HostsOwnGrid", GetModuleHandleA(nullptr));
}

COLORREF NoEditColorOf(HWND hwnd)
{
    LOGBRUSH brush = {};
    GetObjectA(HGFromWindow(hwnd)->hNoEditBrush, sizeof brush, &brush);
    return brush.lbColor;
}

TEST_F(GridLifecycle, NoEditColorIsTheLightOneWhereThatDiffersFromTheFace)
{
    const SystemColor face(COLOR_BTNFACE, RGB(10, 20, 30));
    {
        const SystemColor light(COLOR_3DLIGHT, RGB(40, 50, 60));
        EXPECT_EQ(RGB(40, 50, 60), NoEditColorOf(Make("", WS_CHILD)));
        DestroyWindow(grid);
    }
    const SystemColor light(COLOR_3DLIGHT, RGB(10, 20, 30));
    EXPECT_EQ(0x00C0DCC0u, NoEditColorOf(Make("", WS_CHILD)));
    DestroyWindow(grid);
}

TEST_F(GridLifecycle, GridWithoutParentEndsTheProgramWithIt)
{
    const HWND alone = CreateWindowExA(0, "HGrid", "", WS_OVERLAPPED, 0, 0, 100, 100, nullptr, nullptr,
                                       GetModuleHandleA(nullptr), nullptr);
    Make("", WS_CHILD);
    MSG message = {};
    DestroyWindow(grid);
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) << "it has a parent";
    DestroyWindow(alone);
    EXPECT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(GridLifecycle, ChildWindowsActivationTakesTheFocusForTheGridOnly)
{
    MakeGrid(GridOf({ Text() }), 1);
    SetFocus(parent.hwnd());
    SendPtr(grid, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(grid), parent.hwnd());
    EXPECT_EQ(parent.hwnd(), GetFocus());
    SendPtr(grid, WM_MDIACTIVATE, 0, grid);
    EXPECT_EQ(grid, GetFocus());
}

TEST_F(GridLifecycle, TabStopOfATopLevelGridIsTheCreators)
{
    const DefinitionFile file("gridlife.GRS", WS_TABSTOP | HGS_STRIPED);
    grid = CreateWindowExA(0, "HGrid", "gridlife", WS_OVERLAPPED, 0, 0, 100, 100, parent.hwnd(), nullptr,
                           GetModuleHandleA(nullptr), nullptr);
    ctl = RecordOf<HGridCtl>(grid);
    ASSERT_NE(nullptr, ctl);
    EXPECT_EQ(0u, ctl->pData->dwStyle & WS_TABSTOP);
    EXPECT_NE(0u, ctl->pData->dwStyle & HGS_STRIPED);
    DestroyWindow(grid);
}

TEST_F(GridLifecycle, GridTakesTheFontOfItsParentAndScalesToIt)
{
    const HFONT font = CreateFontA(-32, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    parent.OnMessage(WM_GETFONT, [&](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(font); });
    Make("", WS_CHILD);
    EXPECT_EQ(font, ctl->hFont);
    EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(grid, WM_GETFONT));
    EXPECT_NE(nullptr, ctl->hBoldFont);
    EXPECT_EQ(HIWORD(GetBaseUnits(font)) + 5, ctl->pData->nMinRowHeight);
    EXPECT_GE(ctl->pData->nRowHeight, ctl->pData->nMinRowHeight);
    DestroyWindow(grid);
    DeleteObject(font);
}

TEST_F(GridLifecycle, NoMemoryForTheRecordFailsTheCreation)
{
    FailAllocationsFrom(1);
    const HWND window = Make("x", WS_CHILD);
    FailAllocationsFrom(0);
    EXPECT_EQ(nullptr, window);
}

TEST_F(GridLifecycle, EachFailedAllocationFailsCleanlyOrLeavesAUsableWindow)
{
    const int before = LiveBlocks();
    for (FailEachAllocation each; each.Next();) {
        const HWND window = Make("title", WS_CHILD);
        FailAllocation(0);
        if (window) {
            Send(window, HGM_GETROWCOUNT);
            DestroyWindow(window);
        }
        EXPECT_EQ(before, LiveBlocks()) << "allocation " << each.Number();
    }
}

TEST_F(GridLifecycle, ParentMayEndTheGridWhenAskedForItsFont)
{
    const int before = LiveBlocks();
    parent.OnMessage(WM_GETFONT, [&](WPARAM, LPARAM) {
        DestroyWindow(GetWindow(parent.hwnd(), GW_CHILD));
        return 0;
    });
    EXPECT_EQ(nullptr, Make("", WS_CHILD | HGS_NAVIGATOR));
    EXPECT_EQ(nullptr, GetWindow(parent.hwnd(), GW_CHILD));
    EXPECT_EQ(before, LiveBlocks());
}

TEST_F(GridLifecycle, HostMayEndTheGridWhenToldOfAnyOfItsChildren)
{
    constexpr int children = 5;
    const int     before = LiveBlocks();
    for (int last = 1; last <= children; ++last) {
        gChildrenToEnd = last;
        grid = Superclass(EndingHost, HGS_NAVIGATOR, HGX_EXTRABUTTON);
        EXPECT_EQ(nullptr, grid) << last;
        EXPECT_EQ(0, gChildrenToEnd) << last;
        EXPECT_EQ(before, LiveBlocks()) << last;
    }
}

TEST_F(GridLifecycle, DestructionFreesEveryBlock)
{
    const int before = LiveBlocks();
    MakeGrid(GridOf({ Text(), Date(), Number() }, gridStyle | HGS_NEWROW), 5);
    SetText(0, 1, "x");
    DestroyWindow(grid);
    EXPECT_EQ(before, LiveBlocks());
}

TEST_F(GridLifecycle, DestroyNotificationComesWhileTheRowsAreThere)
{
    MakeGrid(GridOf({ Text() }), 3);
    LRESULT rows = 0;
    parent.On(HGN_DESTROY, [&] { rows = Send(grid, HGM_GETROWCOUNT); });
    DestroyWindow(grid);
    EXPECT_EQ(3, rows);
    EXPECT_EQ(1, parent.Count(HGN_DESTROY));
}

int gWrittenBack;

int CALLBACK Source(HWND, int operation, int record, void*)
{
    gWrittenBack += operation == HGSRC_WRITEBACK ? 1 : 0;
    return operation == HGSRC_FETCH ? record < 5 : 0;
}

TEST_F(GridLifecycle, DestructionHandsChangedRecordsBack)
{
    gWrittenBack = 0;
    MakeGrid(GridOf({ Number() }));
    SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(Source));
    SetText(0, 2, "7");
    ASSERT_TRUE(RowFlags(2) & HGR_DIRTY);
    int writtenBefore = -1;
    parent.On(HGN_DESTROY, [&] { writtenBefore = gWrittenBack; });
    DestroyWindow(grid);
    EXPECT_EQ(1, gWrittenBack);
    EXPECT_EQ(0, writtenBefore) << "the parent is told first";
}

TEST_F(GridLifecycle, PopUpGridDisablesItsParentUntilItIsDestroyed)
{
    grid = CreateWindowExA(0, "HGrid", "", WS_POPUP, 0, 0, 100, 100, parent.hwnd(), nullptr, GetModuleHandleA(nullptr),
                           nullptr);
    EXPECT_FALSE(IsWindowEnabled(parent.hwnd()));
    DestroyWindow(grid);
    EXPECT_TRUE(IsWindowEnabled(parent.hwnd()));
}

TEST_F(GridLifecycle, ClosingAPopUpGridEnablesItsParentFirst)
{
    grid = CreateWindowExA(0, "HGrid", "", WS_POPUP, 0, 0, 100, 100, parent.hwnd(), nullptr, GetModuleHandleA(nullptr),
                           nullptr);
    Send(grid, WM_CLOSE);
    EXPECT_TRUE(IsWindowEnabled(parent.hwnd()));
    EXPECT_FALSE(IsWindow(grid));
}

TEST_F(GridLifecycle, NavigatorHasItsScrollBarAndTakesTheStyle)
{
    Make("", WS_CHILD | HGS_NAVIGATOR);
    EXPECT_TRUE(IsWindow(ctl->hNavScroll));
    EXPECT_EQ(1, GetDlgCtrlID(ctl->hNavScroll));
    EXPECT_NE(0u, ctl->pData->dwStyle & WS_VSCROLL);
    EXPECT_EQ(0, GetWindowLongA(grid, GWL_STYLE) & WS_VSCROLL);
}

TEST_F(GridLifecycle, SetFontGivesTheOldOneAndRebuildsTheBoldOne)
{
    MakeGrid(GridOf({ Text() }), 1);
    const HFONT font = CreateFontA(-20, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    const HFONT old = ctl->hFont;
    const HFONT oldBold = ctl->hBoldFont;
    EXPECT_EQ(reinterpret_cast<LRESULT>(old), Send(grid, WM_SETFONT, reinterpret_cast<WPARAM>(font)));
    EXPECT_EQ(font, ctl->hFont);
    EXPECT_TRUE(GetObjectType(oldBold) == 0 || oldBold == ctl->hBoldFont);
    LOGFONTA bold = {};
    ASSERT_NE(0, GetObjectA(ctl->hBoldFont, sizeof bold, &bold));
    EXPECT_EQ(700, bold.lfWeight);
    EXPECT_EQ(-20, bold.lfHeight);
    const HWND child = reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 0));
    EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(child, WM_GETFONT));
    Send(grid, WM_SETFONT, 0, 0);
    DeleteObject(font);
}

TEST_F(GridLifecycle, SetFontScalesOnlyUnderDialogUnits)
{
    MakeGrid(GridOf({ Text() }), 1);
    const HFONT font = CreateFontA(-40, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    Send(grid, WM_SETFONT, reinterpret_cast<WPARAM>(font));
    EXPECT_EQ(20, Send(grid, HGM_GETROWHEIGHT));
    Send(grid, WM_SETFONT, 0);
    ctl->pData->dwStyle2 = HGX_DLGUNITS;
    Send(grid, WM_SETFONT, reinterpret_cast<WPARAM>(font));
    EXPECT_LT(20, Send(grid, HGM_GETROWHEIGHT));
    Send(grid, WM_SETFONT, 0);
    DeleteObject(font);
}

TEST_F(GridLifecycle, MessagesToAWindowWithoutRecordGoToTheDefault)
{
    EXPECT_EQ(0, Send(parent.hwnd(), HGM_GETROWCOUNT));
    EXPECT_EQ(0, HGridWnd(nullptr, HGM_GETROWCOUNT, 0, 0));
}

TEST_F(GridLifecycle, QueryEndSessionAgrees)
{
    MakeGrid(GridOf({ Text() }));
    EXPECT_EQ(1, Send(grid, WM_QUERYENDSESSION));
}

TEST_F(GridLifecycle, DialogCodeFollowsStyleAndEdit)
{
    MakeGrid(GridOf({ Text() }), 1);
    EXPECT_EQ(DLGC_WANTALLKEYS, Send(grid, WM_GETDLGCODE));
    Send(grid, HGM_SETSTYLEBITS, 1, HGS_NOTAB);
    EXPECT_EQ(DLGC_WANTCHARS | DLGC_WANTARROWS, Send(grid, WM_GETDLGCODE));
    Send(grid, HGM_SETFLAGS, 1, HGC_INEDIT);
    EXPECT_EQ(DLGC_WANTALLKEYS, Send(grid, WM_GETDLGCODE));
    Send(grid, HGM_SETFLAGS, 0, HGC_INEDIT);
}

TEST_F(GridLifecycle, CancelModeSetsTheVetoBit)
{
    MakeGrid(GridOf({ Text() }), 1);
    Send(grid, WM_CANCELMODE);
    EXPECT_TRUE(Send(grid, HGM_GETFLAGS) & CF_CANCEL);
}

TEST_F(GridLifecycle, ParentMayDestroyTheGridInAnyNotification)
{
    constexpr int codes[] = { HGN_MOVING, HGN_MOVED, HGN_ROWCHANGED, HGN_LAYOUT, HGN_HRANGE, HGN_VSCROLLED,
                              HGN_HSCROLLED, HGN_CELLCHANGED, HGN_NEWROW, HGN_EXTENDING, HGN_BELOWEND, HGN_DESTROY };
    for (const int code : codes) {
        MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text() }, gridStyle | HGS_NEWROW), 40);
        parent.On(code, [&] { DestroyWindow(grid); });
        SetText(0, 2, "x");
        SetText(0, static_cast<int>(Send(grid, HGM_GETROWCOUNT)) - 1, "x");
        MoveTo(6, 30);
        Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(1, 1)));
        Send(grid, WM_VSCROLL, SB_PAGEDOWN);
        Send(grid, WM_HSCROLL, SB_PAGERIGHT);
        Send(grid, HGM_SETTOPRECORD, 1000);
        Send(grid, HGM_REFRESH, 1);
        Send(grid, HGM_RESET, 1);
        parent.On(code, nullptr);
        if (IsWindow(grid)) {
            DestroyWindow(grid);
        }
    }
}

} // namespace
