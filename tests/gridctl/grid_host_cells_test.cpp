// Columns that the host draws: their child, which nothing wraps, and what a host makes of it.
#include "gridctl/grid_editing.h"

#include "support/pixels.h"

namespace {

WNDPROC gChildProc;

// A host that tells the grid of the focus of its column's child, as wrapped children do.
LRESULT CALLBACK TellingChild(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
        SendMessageA(GetParent(hwnd), message == WM_SETFOCUS ? WWM_CHILDFOCUS : WWM_CHILDBLUR, 0, 0);
    }
    return CallWindowProcA(gChildProc, hwnd, message, wParam, lParam);
}

HWND gDoomed;     // what goes next
UINT gDoomMessage; // when the child gets this

// A host whose child ends itself or its grid.
LRESULT CALLBACK DoomingChild(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == gDoomMessage && gDoomed) {
        const HWND doomed = gDoomed;
        gDoomed = nullptr;
        DestroyWindow(doomed);
        return 0;
    }
    return TellingChild(hwnd, message, wParam, lParam);
}

// A host that draws a bar as long as the text.
LRESULT CALLBACK BarHost(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_SETFONT) {
        return HGridWnd(hwnd, message, wParam, lParam);
    }
    const auto* const item = reinterpret_cast<const HGDrawItem*>(wParam);
    RECT              bar = item->rc;
    bar.right = bar.left + (item->pValue ? lstrlenA(static_cast<const char*>(item->pValue)) : 0);
    const HBRUSH brush = CreateSolidBrush(RGB(200, 0, 100));
    FillRect(item->hDC, &bar, brush);
    DeleteObject(brush);
    return 0;
}

class GridHostCells : public GridEditing {
protected:
    ~GridHostCells() override
    {
        if (IsWindow(grid)) {
            DestroyWindow(grid);
        }
    }
    static HGField* Drawn() { return HGFieldCreate("Drawn", 0, 80, 0, 's', 's', 0, 0, 16, 'q', 0, "", 0); }
    // Column 0 is the host's, column 1 a text.
    void MakeCells()
    {
        MakeGrid(GridOf({ Drawn(), Text() }, HGS_ROWHEADERS | HGS_COLHEADERS), 4);
        SetText(0, 1, "one");
        StandOn(0, 1);
    }
    void SubclassChild(WNDPROC proc)
    {
        gChildProc = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(ChildOf(0), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(proc)));
    }
    void TellOfFocus() { SubclassChild(TellingChild); }
    // The window goes when the child, which is a DoomingChild, gets the message.
    static void Doom(HWND window, UINT message)
    {
        gDoomed = window;
        gDoomMessage = message;
    }
    int DrawnBar(int row)
    {
        const Pixels shot = ShotOf(grid);
        const int    top = 20 + 20 * row;
        return shot.Count(RGB(200, 0, 100), { 40, top + 10, 119, top + 11 });
    }
};

// Editing

TEST_F(GridHostCells, ChildStandsOverTheCellWithItsValue)
{
    MakeCells();
    ASSERT_EQ(ChildOf(0), Editor());
    EXPECT_EQ("one", TextOf(Editor()));
    EXPECT_TRUE(IsWindowVisible(Editor()));
    MoveTo(0, 2);
    EXPECT_EQ("", TextOf(Editor()));
    MoveTo(1, 2);
    EXPECT_FALSE(IsWindowVisible(ChildOf(0)));
}

TEST_F(GridHostCells, FirstKeyGoesToTheChild)
{
    MakeCells();
    TypeText("new");
    EXPECT_EQ(ChildOf(0), GetFocus());
    EXPECT_EQ("new", TextOf(Editor()));
}

// A host may put a procedure of its own over the child, which tells what the child itself doesn't.
TEST_F(GridHostCells, CommandsInTheNameOfTheChildAreTold)
{
    MakeCells();
    TellOfFocus();
    TypeText("new");
    constexpr int changed = 1;
    constexpr int done = 11;
    const int     id = GetDlgCtrlID(Editor());
    SendMessageA(grid, WM_COMMAND, MAKEWPARAM(id, changed), reinterpret_cast<LPARAM>(Editor()));
    EXPECT_EQ(1, parent.Count(HGN_CHILDCHANGE));
    SendMessageA(grid, WM_COMMAND, MAKEWPARAM(id, done), reinterpret_cast<LPARAM>(Editor()));
    EXPECT_EQ(1, parent.Count(HGN_EDITDONE));
    EXPECT_EQ("new", CellText(0, 1));
    EXPECT_EQ(grid, GetFocus());
}

TEST_F(GridHostCells, KeysOfTheGridStayInTheChild)
{
    MakeCells();
    TypeText("new");
    for (const WORD vk : { WORD{ VK_TAB }, WORD{ VK_UP }, WORD{ VK_RETURN }, WORD{ VK_ESCAPE } }) {
        TypeKey(vk);
        EXPECT_EQ((Cell{ 0, 1 }), Current()) << vk;
        EXPECT_EQ(ChildOf(0), GetFocus()) << vk;
    }
}

TEST_F(GridHostCells, WithoutTheHostsHelpAnEditIsNotStored)
{
    MakeCells();
    TypeText("new");
    EXPECT_FALSE(IsFlag(HGC_INEDIT));
    MoveTo(0, 2);
    EXPECT_EQ("one", CellText(0, 1));
    EXPECT_EQ(grid, GetFocus());
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ("", TextOf(Editor()));
}

TEST_F(GridHostCells, HostThatTellsOfTheFocusHasTheEditStored)
{
    MakeCells();
    TellOfFocus();
    TypeText("new");
    EXPECT_TRUE(IsFlag(HGC_INEDIT));
    EXPECT_EQ(1, parent.Count(HGN_EDITFOCUS));
    MoveTo(0, 2);
    EXPECT_EQ("new", CellText(0, 1));
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
    EXPECT_EQ(1, parent.Count(HGN_EDITBLUR));
    EXPECT_EQ((Cell{ 0, 2 }), Current());
    EXPECT_FALSE(IsFlag(HGC_INEDIT));
}

TEST_F(GridHostCells, RefusedValueStaysInTheChild)
{
    MakeCells();
    TellOfFocus();
    TypeText("new");
    RefuseWrites();
    MoveTo(0, 2);
    EXPECT_EQ((Cell{ 0, 1 }), Current());
    EXPECT_EQ("new", TextOf(Editor()));
}

TEST_F(GridHostCells, ReadOnlyColumnHasNoEditor)
{
    MakeGrid(GridOf({ HGFieldCreate("Q", HFF_READONLY, 80, 0, 's', 's', 0, 0, 16, 'q', 0, "", 0) }), 2);
    StandOn(0, 1);
    ExpectNoEditor();
    TypeText("n");
    EXPECT_EQ(grid, GetFocus());
}

// Painting

TEST_F(GridHostCells, HostDrawsTheValuesThatAreThere)
{
    MakeCells();
    SubclassWW(grid, BarHost);
    SetText(0, 2, "three");
    SetFocus(parent.hwnd());
    InvalidateRect(grid, nullptr, TRUE);
    EXPECT_EQ(3, DrawnBar(1));
    EXPECT_EQ(5, DrawnBar(2));
    EXPECT_EQ(0, DrawnBar(0));
    SetText(0, 2, "fourteen chars");
    EXPECT_EQ(14, DrawnBar(2)) << "a written cell is drawn anew";
}

TEST_F(GridHostCells, WithoutASubclassTheCellIsBlankAndTheFontStays)
{
    const HFONT font = CreateFontA(-15, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    MakeCells();
    Send(grid, WM_SETFONT, reinterpret_cast<WPARAM>(font), 1);
    SetFocus(parent.hwnd());
    const HFONT  bold = ctl->hBoldFont;
    const Pixels shot = ShotOf(grid);
    EXPECT_TRUE(shot.IsAll(GetSysColor(COLOR_WINDOW), { 40, 40, 119, 59 }));
    EXPECT_EQ(font, ctl->hFont);
    EXPECT_EQ(bold, ctl->hBoldFont);
    EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(ChildOf(1), WM_GETFONT));
    DestroyWindow(grid);
    DeleteObject(font);
}

// Life of the child

TEST_F(GridHostCells, ChildGoesWithItsColumn)
{
    MakeCells();
    const HWND child = ChildOf(0);
    Send(grid, HGM_DELETEFIELD, 0);
    EXPECT_FALSE(IsWindow(child));
    EXPECT_EQ(1, Send(grid, HGM_GETCOLCOUNT));
}

TEST_F(GridHostCells, ChildGoesWithTheGrid)
{
    MakeCells();
    const HWND child = ChildOf(0);
    DestroyWindow(grid);
    EXPECT_FALSE(IsWindow(child));
}

TEST_F(GridHostCells, ShowingAndHidingKeepTheChild)
{
    MakeCells();
    const HWND child = ChildOf(0);
    MoveTo(1, 2);
    MoveTo(0, 3);
    Send(grid, HGM_REFRESH, 1);
    EXPECT_EQ(child, Editor());
}

TEST_F(GridHostCells, ChildThatTheHostDestroysIsForgotten)
{
    MakeCells();
    SubclassWW(grid, BarHost);
    const HWND child = ChildOf(0);
    ASSERT_EQ(child, Editor());
    DestroyWindow(child);
    EXPECT_EQ(nullptr, HGGetField(ctl->pData, 0)->pCtl);
    EXPECT_EQ(nullptr, Editor());
    InvalidateRect(grid, nullptr, TRUE);
    EXPECT_EQ(0, DrawnBar(1)) << "a column without a child isn't drawn";
    MoveTo(0, 2);
    MoveTo(1, 2);
    TypeText("x");
    MoveTo(1, 1);
    EXPECT_EQ("x", CellText(1, 2));
    Send(grid, HGM_DELETEFIELD, 0);
    EXPECT_EQ(1, Send(grid, HGM_GETCOLCOUNT));
}

TEST_F(GridHostCells, OtherChildrenThatGoLeaveTheColumnAlone)
{
    MakeCells();
    const HWND other = CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 1, 1, grid, nullptr, nullptr, nullptr);
    DestroyWindow(other);
    EXPECT_TRUE(IsWindow(ChildOf(0)));
    EXPECT_EQ(ChildOf(0), Editor());
}

// A procedure of the host that ends a window

TEST_F(GridHostCells, ChildThatEndsItselfWhileItIsPlacedIsNotShown)
{
    for (const UINT message : { UINT{ WM_WINDOWPOSCHANGED }, UINT{ WM_SIZE } }) {
        MakeCells();
        SubclassChild(DoomingChild);
        Doom(ChildOf(0), message);
        MoveTo(0, 2);
        EXPECT_EQ(nullptr, gDoomed) << message;
        EXPECT_EQ(nullptr, Editor()) << message;
        EXPECT_FALSE(IsFlag(HGC_EDITORSHOWN)) << message;
        EXPECT_EQ((Cell{ 0, 2 }), Current()) << message;
        DestroyWindow(grid);
    }
}

TEST_F(GridHostCells, ChildMayEndTheGridWithAnyOfItsMessages)
{
    struct Moment {
        const char* what;
        UINT        message;
    };
    constexpr Moment moments[] = {
        { "placed", WM_WINDOWPOSCHANGED },
        { "sized", WM_SIZE },
        { "asked for a change", WWM_GETCHANGED },
        { "read", HEM_GETDATA },
        { "told that it is stored", WWM_SETCHANGED },
        { "loaded", HEM_SETDATA },
    };
    for (const Moment& moment : moments) {
        MakeCells();
        SubclassChild(DoomingChild);
        TypeText("new");
        Doom(grid, moment.message);
        MoveTo(0, 2);
        EXPECT_EQ(nullptr, gDoomed) << moment.what;
        EXPECT_FALSE(IsWindow(grid)) << moment.what;
    }
}

} // namespace
