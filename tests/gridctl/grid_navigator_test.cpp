// The navigator beside a grid: its windows, where they stand, what their presses do and who paints them.
#include "gridctl/record_source.h"

#include "button/button_control.h"
#include "support/part_calls.h"
#include "support/pixels.h"

#include <string>

namespace {

constexpr DWORD headers = HGS_ROWHEADERS | HGS_COLHEADERS;
constexpr int   firstId = 4188;
constexpr int   lastId = 4189;
constexpr int   newId = 4190;
constexpr int   extraId = 4191;

int CALLBACK PaintPart(int part, HDC dc, RECT* rect, int enabled, int pressed, int reserved)
{
    const int answer = NotePart(part, rect, enabled, pressed, reserved);
    if (answer) {
        SetPixel(dc, 3, 3, RGB(1, 2, 3));
    }
    return answer;
}

std::vector<int> gOtherParts;

int CALLBACK PaintOtherPart(int part, HDC, RECT*, int, int, int)
{
    gOtherParts.push_back(part);
    return 0;
}

WNDPROC gParentProc;

LRESULT CALLBACK RefusingParent(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = CallWindowProcA(gParentProc, hwnd, message, wParam, lParam);
    return message == WM_COMMAND && HIWORD(wParam) == HGN_NAVIGATE ? 1 : result;
}

class GridNavigator : public SourceWindow {
protected:
    ~GridNavigator() override
    {
        SetGridDrawPartFnc(nullptr);
        MoveMouse(parent.hwnd(), 0, 0);
    }
    void Make(DWORD style = 0, DWORD style2 = 0, int height = 200)
    {
        const RECT at = { 10, 10, 410, 10 + height };
        grid = CreateWindowExA(style2, "HGrid", "", WS_CHILD | WS_VISIBLE | HGS_NAVIGATOR | headers | style, at.left,
                               at.top, at.right - at.left, height, parent.hwnd(),
                               reinterpret_cast<HMENU>(INT_PTR{ 100 }), GetModuleHandleA(nullptr), nullptr);
        ctl = RecordOf<HGridCtl>(grid);
        PumpPending();
    }
    // With two columns, and rows that hold their numbers.
    void MakeRows(int rows, DWORD style = 0)
    {
        Make(style);
        SendPtr(grid, HGM_SETDATA, 1, GridOf({ Number(), Text() }, HGS_NAVIGATOR | headers | WS_VSCROLL | style));
        AddRows(rows);
        SetFocus(grid);
        MoveTo(0, 0);
        UpdateWindow(grid);
        Forget();
    }
    HWND Nav(int id) { return GetDlgItem(grid, id); }
    RECT PlaceOf(HWND child)
    {
        RECT rect = {};
        GetWindowRect(child, &rect);
        MapWindowPoints(nullptr, grid, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
    // "top-bottom" of a child in the strip at the right end, or what is wrong with it.
    std::string StripPlace(HWND child)
    {
        const RECT rect = PlaceOf(child);
        const int  width = GetSystemMetrics(SM_CXVSCROLL);
        RECT       client = {};
        GetClientRect(grid, &client);
        const bool inStrip = rect.left == client.right - width && rect.right == client.right && IsWindowVisible(child);
        return inStrip ? std::to_string(rect.top) + "-" + std::to_string(rect.bottom) : "elsewhere";
    }
    static int         Step() { return GetSystemMetrics(SM_CYVSCROLL); }
    static std::string Range(int top, int bottom) { return std::to_string(top) + "-" + std::to_string(bottom); }
    void               PressNav(int id)
    {
        const int half = GetSystemMetrics(SM_CXVSCROLL) / 2;
        ClickAt(Nav(id), half, half);
    }
    int GlyphOf(int id) { return static_cast<int>(RecordOf<HButtCtl>(Nav(id))->nGlyph); }
};

#define EXPECT_ROW(r) EXPECT_EQ(r, Current().row)

// Making

TEST_F(GridNavigator, IsPlacedAnewWhenThePositionOrTheSettingsChange)
{
    MakeRows(5);
    const RECT place = PlaceOf(ctl->hNavScroll);
    WINDOWPOS  pos = { grid, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER };
    struct Case {
        UINT   message;
        LPARAM lParam;
    };
    const Case cases[] = { { WM_SETTINGCHANGE, 0 }, { WM_WINDOWPOSCHANGED, reinterpret_cast<LPARAM>(&pos) } };
    for (const Case& c : cases) {
        MoveWindow(ctl->hNavScroll, 1, 2, 3, 4, FALSE);
        Forget();
        Send(grid, c.message, 0, c.lParam);
        const RECT now = PlaceOf(ctl->hNavScroll);
        EXPECT_TRUE(EqualRect(&place, &now)) << c.message;
        EXPECT_LE(1, parent.Count(HGN_LAYOUT)) << c.message; // the system may tell of a size too
    }
}

TEST_F(GridNavigator, ThumbShowsANewRange)
{
    MakeRows(60);
    AddRows(540);
    const Pixels shot = ShotOf(ctl->hNavScroll);
    InvalidateRect(ctl->hNavScroll, nullptr, TRUE);
    EXPECT_TRUE(SamePixels(ShotOf(ctl->hNavScroll), shot));
}

TEST_F(GridNavigator, HasAScrollBarAndThreeButtons)
{
    Make();
    EXPECT_EQ(1, GetDlgCtrlID(ctl->hNavScroll));
    EXPECT_EQ(Nav(firstId), ctl->hNavFirst);
    EXPECT_EQ(Nav(lastId), ctl->hNavLast);
    EXPECT_EQ(Nav(newId), ctl->hNavNew);
    EXPECT_EQ(nullptr, ctl->hNavExtra);
    for (const int id : { firstId, lastId, newId }) {
        EXPECT_EQ(0x4080u, static_cast<DWORD>(GetWindowLongA(Nav(id), GWL_STYLE)) & 0xFFFF) << id;
    }
    EXPECT_NE(0u, ctl->pData->dwStyle & WS_VSCROLL);
}

TEST_F(GridNavigator, HasAFourthButtonOnDemand)
{
    Make(0, HGX_EXTRABUTTON);
    EXPECT_TRUE(IsWindow(ctl->hNavExtra));
    EXPECT_EQ(Nav(extraId), ctl->hNavExtra);
}

TEST_F(GridNavigator, ButtonsShowTheirImages)
{
    Make(HGS_NEWROW, HGX_EXTRABUTTON);
    for (const int id : { firstId, lastId, newId, extraId }) {
        const int    image = 6 + id - firstId;
        const HWND   button = Nav(id);
        const Pixels shot = ShotOf(button);
        const Canvas canvas(shot.width, shot.height);
        RECT         rect = shot.Bounds();
        EXPECT_EQ(image, GlyphOf(id));
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, DPB_INNERRECT, nullptr, nullptr, nullptr, 0, image);
        EXPECT_TRUE(SamePixels(canvas.Shot(), shot)) << "button " << id;
    }
}

TEST_F(GridNavigator, GridWithAScrollBarOfItsOwnHasNone)
{
    Make(WS_VSCROLL, HGX_EXTRABUTTON);
    EXPECT_EQ(nullptr, ctl->hNavScroll);
    EXPECT_EQ(nullptr, ctl->hTips);
    for (const int id : { firstId, lastId, newId, extraId }) {
        EXPECT_EQ(nullptr, Nav(id)) << id;
    }
}

TEST_F(GridNavigator, GoesWithTheGrid)
{
    Make(0, HGX_EXTRABUTTON);
    const HWND windows[] = { ctl->hNavScroll, ctl->hNavFirst, ctl->hNavLast, ctl->hNavNew, ctl->hNavExtra, ctl->hTips };
    for (const HWND window : windows) {
        EXPECT_TRUE(IsWindow(window));
    }
    DestroyWindow(grid);
    for (const HWND window : windows) {
        EXPECT_FALSE(IsWindow(window));
    }
}

// Placing

TEST_F(GridNavigator, StandsInAStripAtTheRight)
{
    Make();
    EXPECT_EQ(Range(0, Step()), StripPlace(ctl->hNavFirst));
    EXPECT_EQ(Range(Step(), 200 - Step()), StripPlace(ctl->hNavScroll));
    EXPECT_EQ(Range(200 - Step(), 200), StripPlace(ctl->hNavLast));
    EXPECT_FALSE(IsWindowVisible(ctl->hNavNew));
}

TEST_F(GridNavigator, ButtonOfTheNewRecordStandsBelow)
{
    Make(HGS_NEWROW);
    EXPECT_EQ(Range(0, Step()), StripPlace(ctl->hNavFirst));
    EXPECT_EQ(Range(Step(), 200 - 2 * Step()), StripPlace(ctl->hNavScroll));
    EXPECT_EQ(Range(200 - 2 * Step(), 200 - Step()), StripPlace(ctl->hNavLast));
    EXPECT_EQ(Range(200 - Step(), 200), StripPlace(ctl->hNavNew));
}

TEST_F(GridNavigator, FourthButtonStandsBelowTheOneToTheLast)
{
    Make(HGS_NEWROW, HGX_EXTRABUTTON);
    EXPECT_EQ(Range(Step(), 200 - 3 * Step()), StripPlace(ctl->hNavScroll));
    EXPECT_EQ(Range(200 - 3 * Step(), 200 - 2 * Step()), StripPlace(ctl->hNavLast));
    EXPECT_EQ(Range(200 - 2 * Step(), 200 - Step()), StripPlace(ctl->hNavExtra));
    EXPECT_EQ(Range(200 - Step(), 200), StripPlace(ctl->hNavNew));
}

TEST_F(GridNavigator, FourthButtonStandsAtTheBottomWithoutTheNewRecords)
{
    Make(0, HGX_EXTRABUTTON);
    EXPECT_EQ(Range(Step(), 200 - 2 * Step()), StripPlace(ctl->hNavScroll));
    EXPECT_EQ(Range(200 - 2 * Step(), 200 - Step()), StripPlace(ctl->hNavLast));
    EXPECT_EQ(Range(200 - Step(), 200), StripPlace(ctl->hNavExtra));
    EXPECT_FALSE(IsWindowVisible(ctl->hNavNew));
}

TEST_F(GridNavigator, LowWindowSharesItsHeight)
{
    Make(HGS_NEWROW, 0, 52);
    EXPECT_EQ("0-10", StripPlace(ctl->hNavFirst));
    EXPECT_EQ("10-32", StripPlace(ctl->hNavScroll));
    EXPECT_EQ("32-42", StripPlace(ctl->hNavLast));
    EXPECT_EQ("42-52", StripPlace(ctl->hNavNew));
    DestroyWindow(grid);
    Make(0, 0, 40);
    EXPECT_EQ("0-10", StripPlace(ctl->hNavFirst));
    EXPECT_EQ("10-30", StripPlace(ctl->hNavScroll));
    EXPECT_EQ("30-40", StripPlace(ctl->hNavLast));
}

TEST_F(GridNavigator, FollowsTheSizeOfTheWindow)
{
    Make();
    MoveWindow(grid, 10, 10, 300, 150, TRUE);
    EXPECT_EQ(Range(Step(), 150 - Step()), StripPlace(ctl->hNavScroll));
    EXPECT_EQ(Range(150 - Step(), 150), StripPlace(ctl->hNavLast));
}

// Presses

TEST_F(GridNavigator, ButtonsGoToTheFirstAndTheLastRow)
{
    MakeRows(50);
    MoveTo(1, 7);
    PressNav(lastId);
    EXPECT_EQ((Cell{ 1, 49 }), Current());
    EXPECT_EQ(49 + 1, ctl->nTopRow + ctl->cPageRows - (ctl->wFlags & HGC_PARTIALROW ? 1 : 0));
    PressNav(firstId);
    EXPECT_EQ((Cell{ 1, 0 }), Current());
    EXPECT_EQ(0, ctl->nTopRow);
    EXPECT_EQ(grid, GetFocus());
}

TEST_F(GridNavigator, ButtonGoesToTheNewRecord)
{
    MakeRows(50, HGS_NEWROW);
    const int rows = HGRowCount(ctl->pData);
    PressNav(lastId);
    EXPECT_ROW(rows - 2);
    PressNav(newId);
    EXPECT_ROW(rows - 1);
    EXPECT_TRUE(RowFlags(rows - 1) & HGR_NEW);
}

TEST_F(GridNavigator, ParentIsAskedBeforeEachStep)
{
    MakeRows(50, HGS_NEWROW);
    for (const int id : { lastId, firstId, newId }) {
        Forget();
        PressNav(id);
        EXPECT_EQ(1, parent.Count(HGN_NAVIGATE)) << id;
        EXPECT_EQ(1, parent.Count(HGN_MOVED)) << id;
    }
}

TEST_F(GridNavigator, ParentRefusesAStepByItsAnswer)
{
    MakeRows(50, HGS_NEWROW);
    gParentProc = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(parent.hwnd(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(RefusingParent)));
    for (const int id : { lastId, newId }) {
        PressNav(id);
        EXPECT_ROW(0);
    }
    SetWindowLongPtrA(parent.hwnd(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(gParentProc));
    EXPECT_EQ(2, parent.Count(HGN_NAVIGATE));
    EXPECT_EQ(0, parent.Count(HGN_MOVING));
}

TEST_F(GridNavigator, FourthButtonIsToldAndDoesNothing)
{
    Make(0, HGX_EXTRABUTTON);
    SendPtr(grid, HGM_SETDATA, 1, GridOf({ Number() }, HGS_NAVIGATOR | headers | WS_VSCROLL));
    AddRows(50);
    seen.NotificationsOnly();
    Forget();
    constexpr Seen expected[] = { { 0, ToParent, HGN_NAVEXTRA } };
    PressNav(extraId);
    EXPECT_SEEN(expected);
    EXPECT_ROW(0);
}

TEST_F(GridNavigator, CodeOfACommandDoesNotMatter)
{
    MakeRows(50);
    for (const int code : { HBN_CLICKED, HBN_DBLCLK, 77 }) {
        Send(grid, WM_COMMAND, MAKEWPARAM(lastId, code), reinterpret_cast<LPARAM>(ctl->hNavLast));
        EXPECT_ROW(49) << code;
        MoveTo(0, 0);
    }
    Send(grid, WM_COMMAND, MAKEWPARAM(lastId, 0), 0);
    EXPECT_ROW(49);
}

TEST_F(GridNavigator, OtherCommandsAreNotTheGrids)
{
    MakeRows(50);
    for (const int id : { 0, 3, firstId - 1, extraId + 1 }) {
        EXPECT_EQ(0, Send(grid, WM_COMMAND, MAKEWPARAM(id, 0), 0)) << id;
    }
    EXPECT_EQ(0, parent.Count(HGN_NAVIGATE) + parent.Count(HGN_NAVEXTRA) + parent.Count(HGN_MOVED));
}

TEST_F(GridNavigator, PressStoresWhatWasTyped)
{
    MakeRows(50);
    MoveTo(1, 2);
    TypeText("typed");
    PressNav(lastId);
    EXPECT_EQ("typed", CellText(1, 2));
    EXPECT_EQ((Cell{ 1, 49 }), Current());
}

TEST_F(GridNavigator, RefusedValueKeepsTheCell)
{
    MakeRows(50);
    MoveTo(1, 2);
    TypeText("typed");
    parent.On(HGN_CELLCHANGED, [&] { Send(grid, WWM_CANCEL); });
    PressNav(lastId);
    EXPECT_EQ((Cell{ 1, 2 }), Current());
    EXPECT_EQ("typed", TextOf(ctl->hEditor));
}

TEST_F(GridNavigator, HostMayDestroyTheGridWhenItIsTold)
{
    for (const int code : { HGN_NAVIGATE, HGN_MOVING, HGN_MOVED, HGN_ROWCHANGED }) {
        MakeRows(50);
        parent.On(code, [&] { DestroyWindow(grid); });
        PressNav(lastId);
        parent.On(code, nullptr);
        EXPECT_FALSE(IsWindow(grid)) << code;
    }
}

TEST_F(GridNavigator, ScrollBarScrollsAndTheCellFollows)
{
    MakeRows(50);
    const RECT bar = PlaceOf(ctl->hNavScroll);
    const int  half = (bar.right - bar.left) / 2;
    ClickAt(ctl->hNavScroll, half, bar.bottom - bar.top - 3);
    EXPECT_EQ(1, ctl->nTopRow);
    EXPECT_ROW(1);
    EXPECT_EQ(1, GetScrollPos(ctl->hNavScroll, SB_CTL));
    ClickAt(ctl->hNavScroll, half, 3);
    EXPECT_EQ(0, ctl->nTopRow);
    EXPECT_ROW(0);
}

// A million records

class GridNavigatorSource : public GridNavigator {
protected:
    void MakeMillion(DWORD style = HGS_NEWROW)
    {
        Make(style);
        SendPtr(grid, HGM_SETDATA, 1, GridOf({ Number(), Text() }, HGS_NAVIGATOR | headers | WS_VSCROLL | style));
        SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(NumberedRecords));
        SetFocus(grid);
        MoveTo(0, 0);
        Forget();
    }
    void ExpectAt(LONG record)
    {
        EXPECT_EQ(record, CurrentRecord());
        EXPECT_LE(TopRecord(), record);
        EXPECT_GE(TopRecord() + ctl->cPageRows, record);
        ExpectRowsAreRecords();
    }
};

TEST_F(GridNavigatorSource, GoesToTheLastRecordAndBack)
{
    MakeMillion(0);
    PressNav(lastId);
    ExpectAt(999999);
    EXPECT_LT(source.CountOf(HGSRC_FETCH), 200);
    PressNav(firstId);
    ExpectAt(0);
    EXPECT_EQ(0, TopRecord());
}

// A jump that is too far for one move forgets that the blank row isn't a record.
TEST_F(GridNavigatorSource, FromFarAwayTheLastButtonGoesToTheNewRecordFirst)
{
    MakeMillion();
    PressNav(lastId);
    ExpectAt(1000000);
    PressNav(lastId);
    ExpectAt(999999);
    PressNav(firstId);
    ExpectAt(0);
}

TEST_F(GridNavigatorSource, NewRecordIsWrittenAtTheEnd)
{
    MakeMillion();
    PressNav(newId);
    ExpectAt(1000000);
    EXPECT_TRUE(RowFlags(Current().row) & HGR_NEW);
    std::vector<int> appended;
    source.onCall = [&](int operation, int record) {
        if (operation == HGSRC_APPEND) {
            appended.push_back(record);
        }
        return 0;
    };
    MoveTo(1, Current().row);
    TypeText("x");
    PressNav(firstId);
    EXPECT_FALSE(appended.empty());
    ExpectAt(0);
}

TEST_F(GridNavigatorSource, BarReachesAllOfIt)
{
    MakeMillion();
    Send(grid, HGM_SETTOTAL, 0, source.count);
    SCROLLINFO info = { sizeof info, SIF_ALL, 0, 0, 0, 0, 0 };
    GetScrollInfo(ctl->hNavScroll, SB_CTL, &info);
    EXPECT_EQ(+ctl->lTotalRows / +ctl->nVScale, info.nMax);
    Send(grid, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, info.nMax / 2), reinterpret_cast<LPARAM>(ctl->hNavScroll));
    EXPECT_EQ(info.nMax / 2 * +ctl->nVScale, TopRecord());
    EXPECT_EQ(info.nMax / 2, GetScrollPos(ctl->hNavScroll, SB_CTL));
    ExpectRowsAreRecords();
}

// The part painter

class GridNavigatorParts : public GridNavigator {
protected:
    std::vector<PartCall> PaintedBy(int id)
    {
        gParts.clear();
        InvalidateRect(Nav(id), nullptr, TRUE);
        UpdateWindow(Nav(id));
        return gParts;
    }
};

TEST_F(GridNavigatorParts, EachButtonHasItsPart)
{
    struct Row {
        int id;
        int part;
    };
    Make(HGS_NEWROW, HGX_EXTRABUTTON);
    ShotOf(grid);
    gPartAnswer = 1;
    SetGridDrawPartFnc(PaintPart);
    for (const Row& row : { Row{ firstId, 5 }, Row{ lastId, 6 }, Row{ newId, 7 }, Row{ extraId, 9 } }) {
        const std::vector<PartCall> calls = PaintedBy(row.id);
        ASSERT_EQ(1u, calls.size()) << row.id;
        const RECT client = { 0, 0, GetSystemMetrics(SM_CXVSCROLL), Step() };
        EXPECT_EQ(row.part, calls[0].part);
        EXPECT_TRUE(EqualRect(&client, &calls[0].rect)) << row.id;
        EXPECT_NE(0, calls[0].enabled) << row.id;
        EXPECT_EQ(0, calls[0].pressed) << row.id;
        EXPECT_EQ(0, calls[0].reserved) << row.id;
        EXPECT_EQ(RGB(1, 2, 3), ShotOf(Nav(row.id)).At(3, 3)) << row.id;
    }
}

TEST_F(GridNavigatorParts, PainterIsToldOfPressAndState)
{
    Make();
    gPartAnswer = 1;
    SetGridDrawPartFnc(PaintPart);
    PressButton(ctl->hNavFirst, 5, 5);
    const std::vector<PartCall> pressed = PaintedBy(firstId);
    ASSERT_FALSE(pressed.empty());
    EXPECT_NE(0, pressed.back().pressed);
    ReleaseButton(ctl->hNavFirst, 5, 5);
    EnableWindow(ctl->hNavFirst, FALSE);
    const std::vector<PartCall> disabled = PaintedBy(firstId);
    ASSERT_FALSE(disabled.empty());
    EXPECT_EQ(0, disabled.back().enabled);
    EXPECT_EQ(0, disabled.back().pressed);
}

TEST_F(GridNavigatorParts, PainterThatPaintsNothingLeavesTheButtonToItself)
{
    Make();
    const Pixels own = ShotOf(ctl->hNavFirst);
    gPartAnswer = 0;
    SetGridDrawPartFnc(PaintPart);
    EXPECT_EQ(1u, PaintedBy(firstId).size());
    EXPECT_TRUE(SamePixels(own, ShotOf(ctl->hNavFirst)));
}

TEST_F(GridNavigatorParts, LastPainterIsThatOfAllGridsAndCombos)
{
    Make();
    const HWND combo = Create("HComb", "%100%ss", HCS_DROPDOWN | HCS_EDIT, 101, { 10, 230, 120, 24 });
    PumpPending();
    gPartAnswer = 0;
    SetGridDrawPartFnc(PaintPart);
    SetGridDrawPartFnc(PaintOtherPart);
    gOtherParts.clear();
    EXPECT_TRUE(PaintedBy(firstId).empty());
    EXPECT_EQ(std::vector<int>{ 5 }, gOtherParts);
    gOtherParts.clear();
    RedrawWindow(combo, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW | RDW_ALLCHILDREN);
    EXPECT_FALSE(gOtherParts.empty());
    EXPECT_TRUE(gParts.empty());
}

} // namespace
