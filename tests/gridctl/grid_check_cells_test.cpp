// Columns of check buttons: what their cells show, and how they are edited.
#include "gridctl/cell_controls.h"
#include "gridctl/grid_editing.h"
#include "support/pixels.h"

namespace {

HGField* Check(char type = 'l', WORD flags = 0)
{
    return HGFieldCreate("Check", flags, 80, 0, 'b', type, 0, 0, 0, 'k', 0, "", 0);
}

class GridCheckCells : public GridEditing {
protected:
    void MakeColumn()
    {
        MakeGrid(GridOf({ Check(), Text() }), 4);
        SetFocus(grid);
        Forget();
    }
    void Store(int row, LONG value) { HGSetCellData(grid, 0, row, &value); }
    LONG Stored(int row) { return LoadAs<LONG>(HGCellPtr(ctl->pData, 0, row)); }
    int Value() { return static_cast<int>(Send(Editor(), BM_GETCHECK)); }
    void FocusEditor(int row)
    {
        StandOn(0, row);
        SetFocus(Editor());
        ASSERT_EQ(Editor(), GetFocus());
        Forget();
    }
    // The middle of a cell of column 0, where its picture is.
    Pixels Shown(int row)
    {
        const Pixels shot = ShotOf(grid);
        Pixels       part{ 13, 13, {} };
        for (int y = 0; y < 13; ++y) {
            for (int x = 0; x < 13; ++x) {
                part.colors.push_back(shot.At(40 + 33 + x, 20 + 20 * row + 3 + y));
            }
        }
        return part;
    }
};

TEST_F(GridCheckCells, ChildIsACheckButtonOfTheColumnsType)
{
    MakeGrid(GridOf({ Check('b'), Check('i') }), 1);
    const HWND child = ChildOf(0);
    ASSERT_TRUE(IsWindow(child));
    EXPECT_EQ(204, GetDlgCtrlID(child));
    char name[16] = "";
    GetClassNameA(child, name, sizeof name);
    EXPECT_STREQ("HButt", name);
    EXPECT_EQ(0x40001C02, Send(child, WWM_GETSTYLE));
    EXPECT_EQ(1, Send(child, HBM_GETVALUESIZE));
    EXPECT_EQ(4, Send(ChildOf(1), HBM_GETVALUESIZE));
    EXPECT_EQ(3, Send(child, HBM_GETTEXTPOS));
    EXPECT_EQ(4, Send(child, HBM_GETPICPOS));
    EXPECT_EQ(4, Send(child, HBM_GETPICCOUNT));
    EXPECT_EQ("", TextOf(child));
    EXPECT_EQ(reinterpret_cast<LRESULT>(grid), Send(child, WWM_GETPARENT));
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(HGCheckCellProc), GetWindowLongPtrA(child, GWLP_WNDPROC));
}

TEST_F(GridCheckCells, ChildHasASunkenFrameOfTwoPixels)
{
    MakeColumn();
    StandOn(0, 1);
    RECT window = {};
    RECT client = {};
    GetWindowRect(Editor(), &window);
    GetClientRect(Editor(), &client);
    EXPECT_EQ(window.right - window.left - 4, client.right);
    EXPECT_EQ(window.bottom - window.top - 4, client.bottom);
    RECT       small = { 5, 5, 6, 7 };
    const RECT turned = { 7, 7, 4, 5 };
    EXPECT_EQ(1, SendPtr(Editor(), WM_NCCALCSIZE, 0, &small));
    EXPECT_TRUE(EqualRect(&turned, &small)) << small.left << ", " << small.top << ", " << small.right << ", "
                                            << small.bottom;
    EXPECT_EQ(1, Send(Editor(), WM_NCPAINT, 1));
    const Pixels shot = ShotOfWindow(Editor());
    EXPECT_EQ(GetSysColor(COLOR_BTNSHADOW), shot.At(0, 3));
    EXPECT_EQ(RGB(0, 0, 0), shot.At(1, 3));
    EXPECT_EQ(RGB(255, 255, 255), shot.At(shot.width - 1, 3));
}

TEST_F(GridCheckCells, ChildBearsSizesThatItsFrameHasNoRoomIn)
{
    MakeColumn();
    StandOn(0, 1);
    const HWND child = Editor();
    for (int side = 0; side <= 4; ++side) {
        SCOPED_TRACE(side);
        SetWindowPos(child, nullptr, 0, 0, side, side, SWP_NOZORDER | SWP_FRAMECHANGED | SWP_SHOWWINDOW);
        RECT window = {};
        GetWindowRect(child, &window);
        EXPECT_EQ(side, window.right - window.left);
        RedrawWindow(child, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
    }
    SetWindowPos(child, nullptr, 0, 0, 30, 20, SWP_NOZORDER | SWP_FRAMECHANGED);
    RECT client = {};
    GetClientRect(child, &client);
    EXPECT_EQ(26, client.right);
    EXPECT_EQ(16, client.bottom);
}

TEST_F(GridCheckCells, DoubleClickIsTheGridsAndLeavesTheValue)
{
    MakeColumn();
    FocusEditor(1);
    EXPECT_EQ(1, Send(Editor(), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(3, 3)));
    EXPECT_EQ(1, parent.Count(HGN_DBLCLK));
    EXPECT_EQ(0, Value());
    EXPECT_EQ(0, Send(Editor(), BM_GETSTATE));
}

TEST_F(GridCheckCells, CellsShowTheirValues)
{
    MakeColumn();
    Store(0, 0);
    Store(1, 1);
    Store(2, 7);
    HGSetCellData(grid, 0, 3, nullptr);
    MoveTo(1, 3);
    PumpPending();
    const Pixels no = Shown(0);
    const Pixels yes = Shown(1);
    const Pixels null = Shown(3);
    EXPECT_TRUE(no.colors != yes.colors);
    EXPECT_TRUE(SamePixels(yes, Shown(2))) << "any value but 0 is true";
    EXPECT_TRUE(no.colors != null.colors);
    EXPECT_TRUE(yes.colors != null.colors);
}

TEST_F(GridCheckCells, EditorIsLoadedWithTheCell)
{
    MakeColumn();
    Store(1, 1);
    HGSetCellData(grid, 0, 2, nullptr);
    MoveTo(0, 1);
    EXPECT_EQ(1, Value());
    EXPECT_EQ(0, Send(Editor(), WWM_ISNULL));
    MoveTo(0, 2);
    EXPECT_EQ(1, Send(Editor(), WWM_ISNULL));
    MoveTo(0, 3);
    EXPECT_EQ(0, Send(Editor(), WWM_ISNULL));
    EXPECT_EQ(0, Value());
}

TEST_F(GridCheckCells, SpaceBarTogglesAndTabStores)
{
    MakeColumn();
    FocusEditor(1);
    TypeKey(VK_SPACE);
    EXPECT_EQ(1, Value());
    TypeKey(VK_TAB);
    EXPECT_EQ((Cell{ 1, 1 }), Current());
    EXPECT_EQ(1, Stored(1));
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
    FocusEditor(1);
    TypeKey(VK_SPACE);
    TypeKey(VK_DOWN);
    EXPECT_EQ((Cell{ 0, 2 }), Current());
    EXPECT_EQ(0, Stored(1));
}

TEST_F(GridCheckCells, ClickTogglesAndMovingOnStores)
{
    MakeColumn();
    FocusEditor(1);
    ClickAt(Editor(), 20, 5);
    EXPECT_EQ(1, Value());
    MoveTo(0, 2);
    EXPECT_EQ(1, Stored(1));
}

TEST_F(GridCheckCells, NullCellGetsAValueByAClick)
{
    MakeColumn();
    HGSetCellData(grid, 0, 1, nullptr);
    FocusEditor(1);
    TypeKey(VK_SPACE);
    TypeKey(VK_TAB);
    EXPECT_EQ(0, HGIsCellNull(grid, 0, 1));
    EXPECT_EQ(1, Stored(1));
}

TEST_F(GridCheckCells, UnchangedCheckIsNotStored)
{
    MakeColumn();
    Store(1, 7);
    HGSetNodeFlags(HGRowNode(ctl->pData, 1), 0);
    FocusEditor(1);
    TypeKey(VK_TAB);
    EXPECT_EQ(7, Stored(1));
    EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
}

TEST_F(GridCheckCells, CheckThatTheHostMadeNullStoresNull)
{
    MakeColumn();
    Store(1, 1);
    FocusEditor(1);
    SendPtr(Editor(), HBM_SETVALUE, 0, nullptr);
    Send(Editor(), WWM_SETCHANGED, 1);
    TypeKey(VK_TAB);
    EXPECT_EQ(1, HGIsCellNull(grid, 0, 1));
    EXPECT_EQ(0, Stored(1));
}

TEST_F(GridCheckCells, EscapeTakesTheCellsValueBack)
{
    MakeColumn();
    FocusEditor(1);
    TypeKey(VK_SPACE);
    TypeKey(VK_ESCAPE);
    EXPECT_EQ(0, Value());
    EXPECT_EQ(0, Stored(1));
}

TEST_F(GridCheckCells, ArrowsLeaveTheCheck)
{
    struct Row {
        WORD key;
        Cell to;
    };
    const Row rows[] = { { VK_UP, { 0, 0 } }, { VK_DOWN, { 0, 2 } }, { VK_RIGHT, { 1, 1 } } };
    MakeColumn();
    for (const Row& row : rows) {
        FocusEditor(1);
        TypeKey(row.key);
        EXPECT_EQ(row.to, Current()) << row.key;
    }
}

TEST_F(GridCheckCells, RefusedValueStaysInTheEditor)
{
    MakeColumn();
    FocusEditor(1);
    TypeKey(VK_SPACE);
    RefuseWrites();
    TypeKey(VK_TAB);
    EXPECT_EQ((Cell{ 0, 1 }), Current());
}

TEST_F(GridCheckCells, HostMayDestroyTheChild)
{
    MakeColumn();
    FocusEditor(1);
    DestroyWindow(Editor());
    EXPECT_EQ(nullptr, HGGetField(ctl->pData, 0)->pCtl);
    EXPECT_EQ(nullptr, ctl->hEditor);
    ShotOf(grid);
    MoveTo(1, 2);
    MoveTo(0, 1);
    DestroyWindow(grid);
}

TEST_F(GridCheckCells, ParentMayDestroyTheGridWhenACheckIsStored)
{
    MakeColumn();
    FocusEditor(1);
    TypeKey(VK_SPACE);
    parent.On(HGN_CELLCHANGED, [&] { DestroyWindow(grid); });
    TypeKey(VK_TAB);
    EXPECT_FALSE(IsWindow(grid));
}

TEST_F(GridCheckCells, SortsByTheValue)
{
    MakeColumn();
    Store(0, 1);
    Store(1, 0);
    Store(2, 1);
    Store(3, 0);
    Send(grid, HGM_SORT, MAKEWPARAM(0, 1));
    EXPECT_EQ(0, Stored(0));
    EXPECT_EQ(0, Stored(1));
    EXPECT_EQ(1, Stored(3));
}

} // namespace
