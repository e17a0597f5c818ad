// Columns of combos, with an edit (kind c) and with a field (kind d): what their cells show and how they are edited.
#include "gridctl/grid_combos.h"

#include <cstring>

namespace {

TEST_F(GridComboCells, ChildIsADroppingComboOfTheColumnsHeight)
{
    ForEachKind([&] {
        const HWND child = ChildOf(0);
        const char kind = HGGetField(ctl->pData, 0)->cKind;
        char       name[16] = "";
        GetClassNameA(child, name, sizeof name);
        EXPECT_STREQ("HComb", name);
        EXPECT_EQ(kind == 'c' ? 202 : 203, GetDlgCtrlID(child));
        EXPECT_EQ(60, Send(child, HCM_GETDROPHEIGHT));
        EXPECT_EQ(grid, +Combo()->hParent);
        EXPECT_EQ(kind == 'c', (Combo()->dwStyle & HCS_EDIT) != 0);
        EXPECT_EQ(0, Send(Drop(), WWM_GETSTYLE) & HLS_CODECURRENT);
    });
}

TEST_F(GridComboCells, PassingThroughAnItemThatWasPickedElsewhereStoresNothing)
{
    ForEachKind([&] {
        Store(1, "red", 3);
        Store(2, "green", 1);
        StandOn(0, 1);
        TypeKey(VK_F2);
        TypeKey(VK_DOWN);
        TypeKey(VK_TAB);
        EXPECT_EQ("green", CellText(0, 1));
        Forget();
        parent.ClearCounts();
        StandOn(0, 2);
        TypeKey(VK_F2);
        TypeKey(VK_TAB);
        EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
    });
}

int CALLBACK RefuseAll(HWND, int, void*)
{
    return 1;
}

TEST_F(GridComboCells, ValueThatTheEditsValidatorRefusesKeepsTheCell)
{
    MakeColumn({ 'c', false });
    Store(1, "red", 3);
    SendPtr(ChildOf(0), HEM_SETVALIDATOR, 0, reinterpret_cast<const void*>(RefuseAll));
    StandOn(0, 1);
    TypeText("x");
    TypeKey(VK_TAB);
    EXPECT_EQ((Cell{ 0, 1 }), Current());
    EXPECT_EQ(Face(), GetFocus());
    EXPECT_EQ("red", CellText(0, 1));
}

TEST_F(GridComboCells, CellShowsItsItem)
{
    ForEachKind([&] {
        Store(1, "green", 1);
        EXPECT_EQ("green", CellText(0, 1));
    });
}

TEST_F(GridComboCells, CellIsPaintedAsItsComboWouldShowIt)
{
    ForEachKind([&] {
        RECT cell;
        HGCellRect(ctl, &cell, 0, 3, true);
        const int  width = static_cast<int>(cell.right - cell.left);
        const int  height = static_cast<int>(cell.bottom - cell.top);
        const auto painted = [&] {
            HGInvalidateCell(ctl, 0, 3);
            UpdateWindow(grid);
            Canvas    canvas(width, height);
            const HDC hdc = GetDC(grid);
            BitBlt(canvas.hdc(), 0, 0, width, height, hdc, cell.left, cell.top, SRCCOPY);
            ReleaseDC(grid, hdc);
            return canvas.Shot();
        };
        // What its painter makes of it by itself.
        const auto drawn = [&](const void* value) {
            Canvas canvas(width, height);
            RECT   rect = { 0, 0, width, height };
            HCDrawValue(Combo(), canvas.hdc(), &rect, GetSysColorBrush(COLOR_WINDOW), value, IsCoded() ? 2 : 1,
                        ctl->pData, 0);
            return canvas.Shot();
        };
        MoveTo(1, 0);
        const RECT   inside = { 1, 1, width - 1, height - 1 };
        const Pixels blank = painted();
        EXPECT_TRUE(SamePixels(drawn(nullptr), blank, inside));
        Store(3, "green", 1);
        const Pixels green = painted();
        EXPECT_FALSE(SamePixels(blank, green, inside));
        const LONG code = 1;
        EXPECT_TRUE(SamePixels(drawn(IsCoded() ? static_cast<const void*>(&code) : "green"), green, inside));
    });
}

TEST_F(GridComboCells, EditorStandsOnTheCellsItem)
{
    ForEachKind([&] {
        Store(1, "blue", 2);
        MoveTo(0, 1);
        EXPECT_EQ("blue", Shown());
        EXPECT_TRUE(IsWindowVisible(Editor()));
        EXPECT_EQ(grid, GetFocus());
        MoveTo(0, 2);
        EXPECT_EQ("", Shown());
        Store(3, "none of them", 77);
        MoveTo(0, 3);
        EXPECT_EQ(HGGetField(ctl->pData, 0)->cKind == 'c' && !(HGGetField(ctl->pData, 0)->wFlags & HFF_CODE)
                      ? "none of them"
                      : "",
                  Shown());
    });
}

TEST_F(GridComboCells, EditorWithCodesShowsItsItemAsFarAsTheFirstTab)
{
    MakeColumn({ 'c', true });
    constexpr LONG code = 9;
    HCAddItemEx(ChildOf(0), "white\tsnow", &code);
    Store(1, "", 9);
    MoveTo(0, 1);
    EXPECT_EQ("white", Shown());
}

TEST_F(GridComboCells, KeysInTheClosedComboMoveItsItemAndTabStoresIt)
{
    ForEachKind([&] {
        StandOn(0, 1);
        TypeKey(VK_F2);
        EXPECT_EQ(Face(), GetFocus());
        TypeKey(VK_DOWN);
        TypeKey(VK_DOWN);
        EXPECT_EQ("green", Shown());
        EXPECT_FALSE(IsOpen());
        TypeKey(VK_TAB);
        EXPECT_EQ((Cell{ 1, 1 }), Current());
        EXPECT_EQ("green", CellText(0, 1));
        EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
    });
}

TEST_F(GridComboCells, PassingThroughStoresNothing)
{
    ForEachKind([&] {
        Store(1, "blue", 2);
        HGSetNodeFlags(HGRowNode(ctl->pData, 1), 0);
        Forget();
        StandOn(0, 1);
        TypeKey(VK_F2);
        TypeKey(VK_F4);
        TypeKey(VK_ESCAPE);
        TypeKey(VK_TAB);
        EXPECT_EQ((Cell{ 1, 1 }), Current());
        EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
        EXPECT_EQ(0, RowFlags(1) & HGR_DIRTY);
        EXPECT_EQ("blue", CellText(0, 1));
    });
}

TEST_F(GridComboCells, TypedTextIsStoredWhereTheCellHoldsText)
{
    MakeColumn({ 'c', false });
    StandOn(0, 1);
    TypeText("violet");
    EXPECT_EQ(Face(), GetFocus());
    TypeKey(VK_TAB);
    EXPECT_EQ("violet", CellText(0, 1));
}

TEST_F(GridComboCells, TypedTextFindsTheCodeOfItsItem)
{
    MakeColumn({ 'c', true });
    StandOn(0, 1);
    TypeText("blue");
    TypeKey(VK_TAB);
    EXPECT_EQ(2, Stored(1));
    EXPECT_EQ("blue", CellText(0, 1));
}

TEST_F(GridComboCells, TypedCharacterFindsAnItemOfTheField)
{
    for (const bool code : { false, true }) {
        MakeColumn({ 'd', code });
        StandOn(0, 1);
        TypeText("b");
        EXPECT_EQ("blue", Shown());
        TypeKey(VK_TAB);
        EXPECT_EQ("blue", CellText(0, 1));
        DestroyWindow(grid);
    }
}

TEST_F(GridComboCells, RefusedRowStaysInTheEditor)
{
    ForEachKind([&] {
        RefuseWrites();
        StandOn(0, 1);
        TypeKey(VK_F4);
        TypeKey(VK_DOWN);
        TypeKey(VK_RETURN);
        TypeKey(VK_TAB);
        EXPECT_EQ((Cell{ 0, 1 }), Current());
        EXPECT_EQ("red", Shown());
        parent.On(HGN_CELLCHANGED, nullptr);
    });
}

TEST_F(GridComboCells, ArrowsAcrossLeaveAFieldAndStayInAnEdit)
{
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(NameOf(kind));
        MakeColumn(kind);
        StandOn(0, 1);
        TypeKey(VK_F2);
        TypeKey(VK_RIGHT);
        EXPECT_EQ((kind.kind == 'c' ? Cell{ 0, 1 } : Cell{ 1, 1 }), Current());
        DestroyWindow(grid);
    }
}

TEST_F(GridComboCells, CtrlAndAnArrowDownLeaveTheCell)
{
    ForEachKind([&] {
        StandOn(0, 1);
        TypeKey(VK_F2);
        TypeKey(VK_DOWN, withCtrl);
        EXPECT_NE(1, Current().row);
    });
}

TEST_F(GridComboCells, DropHeightOfTheColumnGoesToACombosEditAlone)
{
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(NameOf(kind));
        MakeColumn(kind);
        EXPECT_EQ(1, Send(grid, HGM_SETFIELDDROP, 0, 90));
        EXPECT_EQ(kind.kind == 'c' ? 90 : 60, Send(ChildOf(0), HCM_GETDROPHEIGHT));
        DestroyWindow(grid);
    }
}

TEST_F(GridComboCells, FieldsSortByWhatTheCellsShow)
{
    MakeColumn({ 'd', true });
    Store(0, "", 3);
    Store(1, "", 1);
    Store(2, "", 2);
    Store(3, "", 1);
    Send(grid, HGM_SORT, MAKEWPARAM(0, 1));
    EXPECT_EQ("blue", CellText(0, 0));
    EXPECT_EQ("green", CellText(0, 1));
    EXPECT_EQ("green", CellText(0, 2));
    EXPECT_EQ("red", CellText(0, 3));
}

TEST_F(GridComboCells, TextIsTurnedIntoTheCodeForAFieldAlone)
{
    MakeColumn({ 'd', true });
    SetText(0, 1, "blue");
    EXPECT_EQ(2, Stored(1));
    DestroyWindow(grid);
    MakeColumn({ 'c', true });
    SetText(0, 1, "blue");
    LONG asItStands = 0;
    std::memcpy(&asItStands, "blue", sizeof asItStands);
    EXPECT_EQ(asItStands, Stored(1));
}

TEST_F(GridComboCells, UnknownCodeReadsAsAnEmptyText)
{
    for (const char kind : { 'c', 'd' }) {
        SCOPED_TRACE(kind);
        MakeColumn({ kind, true });
        Store(1, "", 77);
        EXPECT_EQ("", CellText(0, 1));
        EXPECT_EQ(77, Stored(1));
        DestroyWindow(grid);
    }
}

TEST_F(GridComboCells, TextOfNoItemMakesACodedCellNull)
{
    MakeColumn({ 'c', true });
    Store(1, "blue", 2);
    StandOn(0, 1);
    TypeText("nothing of these");
    TypeKey(VK_TAB);
    EXPECT_EQ("", CellText(0, 1));
    EXPECT_TRUE(HGIsCellNull(grid, 0, 1));
}

TEST_F(GridComboCells, NoKeyReachesTheComboOfAReadOnlyGrid)
{
    ForEachKind([&] {
        Send(grid, HGM_SETSTYLEBITS, 1, HGS_READONLY);
        StandOn(0, 1);
        for (const WORD key : { WORD{ VK_F2 }, WORD{ VK_F4 }, WORD{ VK_F5 } }) {
            TypeKey(key);
            EXPECT_FALSE(IsOpen());
            EXPECT_EQ(grid, GetFocus());
        }
        EXPECT_EQ((Ints{}), Told());
    });
}

TEST_F(GridComboCells, PickedItemStaysWhereTheFocusGoesElsewhereAndComesBack)
{
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HGS_KEEPSEL } }) {
        ForEachKind([&] {
            Send(grid, HGM_SETSTYLEBITS, 1, static_cast<LPARAM>(style));
            StandOn(0, 1);
            TypeKey(VK_F2);
            TypeKey(VK_DOWN);
            TypeKey(VK_DOWN);
            ASSERT_EQ("green", Shown());
            SetFocus(parent.hwnd());
            SetFocus(grid);
            TypeKey(VK_TAB);
            EXPECT_EQ("green", CellText(0, 1)) << style;
        });
    }
}

TEST_F(GridComboCells, PickedItemIsStoredAlsoWhereALetterWasTypedBehindItAndTakenBack)
{
    for (const bool code : { false, true }) {
        MakeColumn({ 'c', code });
        StandOn(0, 1);
        TypeKey(VK_F2);
        TypeKey(VK_DOWN);
        TypeKey(VK_DOWN);
        ASSERT_EQ("green", Shown()) << code;
        TypeKey(VK_END);
        TypeText("x");
        TypeKey(VK_BACK);
        ASSERT_EQ("green", Shown()) << code;
        TypeKey(VK_TAB);
        EXPECT_EQ("green", CellText(0, 1)) << code;
        DestroyWindow(grid);
    }
}

TEST_F(GridComboCells, CellProceduresHandStateToTheCombo)
{
    ForEachKind([&] {
        const auto proc = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(ChildOf(0), GWLP_WNDPROC));
        EXPECT_EQ(HGGetField(ctl->pData, 0)->cKind == 'c' ? HGComboCellProc : HGFieldComboCellProc, proc);
        EXPECT_EQ(reinterpret_cast<void*>(HGGetField(ctl->pData, 0)->pCtl),
                  reinterpret_cast<void*>(Send(ChildOf(0), WWM_GETSTATE)));
    });
}

TEST_F(GridComboCells, EditorOfNumbersWithCodesShowsTheNumber)
{
    // Its first byte is that of a tab.
    constexpr LONG number = 9 + 256;
    for (const char type : { 's', 'l' }) {
        SCOPED_TRACE(type);
        MakeGrid(GridOf({ HGFieldCreate("N", HFF_CODE, 80, 60, 'n', type, 'n', 'l', 0, 'c', 0, "", 0), Text() }), 3);
        constexpr LONG code = 1;
        HCAddItemEx(ChildOf(0), &number, &code);
        HGSetCellData(grid, 0, 1, &code);
        MoveTo(0, 1);
        EXPECT_EQ("265", Shown());
        MoveTo(0, 2);
        EXPECT_EQ("", Shown());
    }
}

} // namespace
