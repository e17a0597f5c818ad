// The list that drops in a cell of a column of combos: how it opens, moves, is taken from, and closes.
#include "gridctl/grid_combos.h"

namespace {

class GridComboDrop : public GridComboCells {};

TEST_F(GridComboDrop, F4DropsTheListInTheCell)
{
    ForEachKind([&] {
        StandOn(0, 1);
        TypeKey(VK_F4);
        ExpectOpenInCell(1);
        EXPECT_EQ((Ints{ HGN_EDITFOCUS, HGN_DROPOPEN }), Told());
        TypeKey(VK_F4);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ((Ints{ HGN_DROPCLOSE }), Told());
        EXPECT_EQ(Face(), GetFocus());
    });
}

TEST_F(GridComboDrop, AltAndDownToggleTheList)
{
    ForEachKind([&] {
        StandOn(0, 1);
        TypeKey(VK_F2);
        TypeKey(VK_DOWN, withAlt);
        ExpectOpenInCell(1);
        TypeKey(VK_DOWN, withAlt);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(Face(), GetFocus());
        EXPECT_EQ((Cell{ 0, 1 }), Current());
    });
}

TEST_F(GridComboDrop, ReturnTakesTheRowAndStaysInTheCell)
{
    ForEachKind([&] {
        StandOn(0, 1);
        TypeKey(VK_F4);
        TypeKey(VK_DOWN);
        TypeKey(VK_DOWN);
        Told();
        TypeKey(VK_RETURN);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ((Ints{ HGN_DROPPICK, HGN_DROPCLOSE }), Told());
        EXPECT_EQ((Cell{ 0, 1 }), Current());
        EXPECT_EQ("green", Shown());
        EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
        TypeKey(VK_RETURN);
        EXPECT_EQ("green", CellText(0, 1));
        EXPECT_NE((Cell{ 0, 1 }), Current());
    });
}

TEST_F(GridComboDrop, EscapeClosesTheListFirstAndThenEndsTheEdit)
{
    ForEachKind([&] {
        Store(1, "blue", 2);
        StandOn(0, 1);
        TypeKey(VK_F4);
        TypeKey(VK_UP);
        EXPECT_EQ("green", Shown());
        Told();
        TypeKey(VK_ESCAPE);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ((Ints{ HGN_DROPCLOSE }), Told());
        EXPECT_EQ(Face(), GetFocus());
        EXPECT_EQ("green", Shown());
        TypeKey(VK_ESCAPE);
        EXPECT_EQ(grid, GetFocus());
        EXPECT_EQ("blue", Shown());
        EXPECT_EQ("blue", CellText(0, 1));
        EXPECT_EQ(0, parent.Count(HGN_CELLCHANGED));
    });
}

TEST_F(GridComboDrop, TabClosesTheListAndStores)
{
    ForEachKind([&] {
        StandOn(0, 1);
        TypeKey(VK_F4);
        TypeKey(VK_DOWN);
        Told();
        TypeKey(VK_TAB);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ((Ints{ HGN_DROPCLOSE, HGN_EDITBLUR, HGN_CELLCHANGED, HGN_MOVING, HGN_MOVED }), Told());
        EXPECT_EQ("red", CellText(0, 1));
        EXPECT_EQ(grid, GetFocus());
    });
}

TEST_F(GridComboDrop, ClickOnARowOfTheListTakesIt)
{
    ForEachKind([&] {
        StandOn(0, 1);
        TypeKey(VK_F4);
        Told();
        ClickRow(2);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ((Ints{ HGN_CHILDCHANGE, HGN_DROPPICK, HGN_DROPCLOSE }), Told());
        EXPECT_EQ("blue", Shown());
        EXPECT_EQ(Face(), GetFocus());
        TypeKey(VK_TAB);
        EXPECT_EQ("blue", CellText(0, 1));
    });
}

TEST_F(GridComboDrop, ButtonOfTheStandingEditorDropsTheList)
{
    ForEachKind([&] {
        StandOn(0, 1);
        RECT client;
        GetClientRect(Editor(), &client);
        ClickAt(Editor(), static_cast<int>(client.right) - 4, static_cast<int>(client.bottom) / 2);
        ExpectOpenInCell(1);
        ClickAt(grid, 300, 150);
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ((Cell{ 0, 1 }), Current()) << "the click only closes";
    });
}

TEST_F(GridComboDrop, ExtraButtonEndsTheEdit)
{
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(NameOf(kind));
        MakeColumn(kind, HCS_XBUTTON);
        StandOn(0, 1);
        TypeKey(VK_F4);
        TypeKey(VK_DOWN);
        Told();
        TypeKey(VK_F5);
        EXPECT_EQ((Ints{ HGN_DROPCLOSE, HGN_EDITBLUR, HGN_CELLCHANGED, HGN_EDITDONE }), Told());
        EXPECT_EQ("red", CellText(0, 1));
        EXPECT_EQ(grid, GetFocus());
        DestroyWindow(grid);
    }
}

TEST_F(GridComboDrop, FocusThatGoesElsewhereClosesTheListAndStores)
{
    ForEachKind([&] {
        StandOn(0, 1);
        TypeKey(VK_F4);
        TypeKey(VK_DOWN);
        Told();
        SetFocus(parent.hwnd());
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ("red", CellText(0, 1));
        EXPECT_FALSE(IsWindowVisible(ChildOf(0)));
        EXPECT_EQ((Ints{ HGN_DROPCLOSE, HGN_CELLCHANGED, HGN_KILLFOCUS, HGN_EDITBLUR }), Told());
    });
}

TEST_F(GridComboDrop, GridMayGoInEachNotificationOfTheList)
{
    for (const int code : { HGN_DROPOPEN, HGN_DROPCLOSE, HGN_DROPPICK, HGN_CHILDCHANGE, HGN_EDITFOCUS, HGN_EDITBLUR }) {
        for (const Kind& kind : kinds) {
            SCOPED_TRACE(NameOf(kind) + " in " + std::to_string(code));
            MakeColumn(kind);
            StandOn(0, 1);
            const HWND drop = Drop();
            parent.On(code, [&] { DestroyWindow(grid); });
            TypeKey(VK_F4);
            if (IsWindow(grid)) {
                ClickRow(1);
            }
            if (IsWindow(grid)) {
                SetFocus(parent.hwnd());
            }
            parent.On(code, nullptr);
            EXPECT_FALSE(IsWindow(grid));
            EXPECT_FALSE(IsWindow(drop));
            EXPECT_EQ(0, LiveHooks());
        }
    }
}

TEST_F(GridComboDrop, ColumnWithAnOpenListMayBeRemoved)
{
    ForEachKind([&] {
        StandOn(0, 1);
        TypeKey(VK_F4);
        const HWND drop = Drop();
        Send(grid, HGM_DELETEFIELD, 0);
        EXPECT_FALSE(IsWindow(drop));
        EXPECT_EQ(0, LiveHooks());
        EXPECT_EQ(1, HGColCount(ctl->pData));
    });
}

TEST_F(GridComboDrop, F5GoesToTheStandingEditorWithTheFocus)
{
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(NameOf(kind));
        MakeColumn(kind, HCS_XBUTTON);
        StandOn(0, 1);
        TypeKey(VK_F5);
        EXPECT_EQ((Ints{ HGN_EDITFOCUS, HGN_EDITBLUR, HGN_EDITDONE }), Told());
        EXPECT_FALSE(IsOpen());
        DestroyWindow(grid);
    }
}

} // namespace
