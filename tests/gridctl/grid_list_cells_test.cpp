// Columns of lists: what their cells show, and how they are edited and sorted.
#include "gridctl/grid_editing.h"

namespace {

class GridListCells : public GridEditing {
protected:
    // A column of lists with the items red 3, green 1 and blue 2; it stores the code or the text.
    void MakeColumn(bool code)
    {
        HGField* const field = HGFieldCreate("Colour", code ? HFF_CODE : 0, 80, 0, 's', 's', 'n', 'l', 16, 'l', 0, "", 0);
        MakeGrid(GridOf({ field, Text() }), 4);
        const char* const names[] = { "red", "green", "blue" };
        constexpr LONG    codes[] = { 3, 1, 2 };
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(i, HLAddItemEx(ChildOf(0), names[i], &codes[i]));
        }
        SetFocus(grid);
        Forget();
    }
    void Store(int row, LONG code) { HGSetCellData(grid, 0, row, &code); }
    LONG Stored(int row) { return LoadAs<LONG>(HGCellPtr(ctl->pData, 0, row)); }
    LRESULT Item() { return Send(Editor(), HLM_GETCURRENT); }
};

TEST_F(GridListCells, CellShowsTheItemOfItsCode)
{
    MakeColumn(true);
    Store(1, 1);
    EXPECT_EQ("green", CellText(0, 1));
}

TEST_F(GridListCells, LongItemsShowCutAndSort)
{
    MakeColumn(true);
    const std::string long1(300, 'y');
    const std::string long2 = std::string(299, 'x') + "z";
    constexpr LONG    codes[] = { 11, 12 };
    HLAddItemEx(ChildOf(0), long1.c_str(), &codes[0]);
    HLAddItemEx(ChildOf(0), long2.c_str(), &codes[1]);
    Store(0, 11);
    Store(1, 12);
    Store(2, 1);
    Store(3, 2);
    EXPECT_EQ(std::string(255, 'y'), CellText(0, 0));
    HGSortRows(ctl->pData, 0, true, nullptr);
    const LONG order[] = { Stored(0), Stored(1), Stored(2), Stored(3) };
    EXPECT_EQ((std::vector<LONG>{ 2, 1, 12, 11 }), std::vector<LONG>(std::begin(order), std::end(order)));
}

TEST_F(GridListCells, EditorStandsOnTheCellsItem)
{
    for (const bool code : { false, true }) {
        SCOPED_TRACE(code);
        MakeColumn(code);
        if (code) {
            Store(1, 2);
        } else {
            HGSetCellData(grid, 0, 1, "blue");
        }
        MoveTo(0, 1);
        EXPECT_EQ(2, Item());
        MoveTo(0, 2);
        EXPECT_EQ(-1, Item());
        DestroyWindow(grid);
    }
}

TEST_F(GridListCells, KeysInTheListMoveItsItemAndTabStoresIt)
{
    for (const bool code : { false, true }) {
        SCOPED_TRACE(code);
        MakeColumn(code);
        StandOn(0, 1);
        SetFocus(Editor());
        TypeKey(VK_DOWN);
        TypeKey(VK_DOWN);
        EXPECT_EQ(1, Item());
        TypeKey(VK_TAB);
        EXPECT_EQ((Cell{ 1, 1 }), Current());
        EXPECT_EQ("green", CellText(0, 1));
        if (code) {
            EXPECT_EQ(1, Stored(1));
        }
        EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
        DestroyWindow(grid);
    }
}

TEST_F(GridListCells, TypedCharacterFindsAnItem)
{
    MakeColumn(true);
    StandOn(0, 1);
    TypeKey('B');
    EXPECT_EQ(Editor(), GetFocus());
    EXPECT_EQ(2, Item());
    TypeKey(VK_TAB);
    EXPECT_EQ(2, Stored(1));
}

TEST_F(GridListCells, ArrowsAcrossLeaveTheList)
{
    MakeColumn(true);
    StandOn(0, 1);
    SetFocus(Editor());
    TypeKey(VK_RIGHT);
    EXPECT_EQ((Cell{ 1, 1 }), Current());
    EXPECT_EQ(grid, GetFocus());
}

TEST_F(GridListCells, SortsByWhatTheCellsShow)
{
    MakeColumn(true);
    Store(0, 3);
    Store(1, 1);
    Store(2, 2);
    Store(3, 1);
    Send(grid, HGM_SORT, MAKEWPARAM(0, 1));
    EXPECT_EQ("blue", CellText(0, 0));
    EXPECT_EQ("green", CellText(0, 1));
    EXPECT_EQ("green", CellText(0, 2));
    EXPECT_EQ("red", CellText(0, 3));
}

TEST_F(GridListCells, TextThatTheListDoesNotKnowIsStoredAsItsLastItem)
{
    MakeColumn(true);
    EXPECT_EQ(1, HGSetCellText(grid, 0, 1, "typo"));
    EXPECT_EQ(2, Stored(1));
    EXPECT_EQ("blue", CellText(0, 1));
}

TEST_F(GridListCells, UnknownCodeShowsNothingAndSortsAsTheLastItem)
{
    MakeColumn(true);
    Store(0, 3);
    Store(1, 99);
    Store(2, 1);
    Store(3, 2);
    EXPECT_EQ("", CellText(0, 1));
    HGSortRows(ctl->pData, 0, true, nullptr);
    EXPECT_EQ(99, Stored(0)) << "it is as high as blue, and stood before it";
    EXPECT_EQ(2, Stored(1));
    EXPECT_EQ(1, Stored(2));
    EXPECT_EQ(3, Stored(3));
}

TEST_F(GridListCells, LongCodeIsCutToTheCell)
{
    for (const char kind : { 'l', 'd' }) {
        SCOPED_TRACE(kind);
        MakeGrid(GridOf({ HGFieldCreate("Long", HFF_CODE, 80, 60, 's', 's', 's', 's', 16, kind, 0, "", 0) }), 1);
        const std::string code(100000, 'c'); // far longer than what stands on the stack
        const auto add = kind == 'l' ? HLAddItemEx : HCAddItemEx;
        EXPECT_EQ(0, add(ChildOf(0), "red", code.c_str()));
        EXPECT_EQ(1, HGSetCellText(grid, 0, 0, "red"));
        EXPECT_STREQ("ccccccccccccccc", reinterpret_cast<const char*>(HGCellPtr(ctl->pData, 0, 0)));
        DestroyWindow(grid);
    }
}

WNDPROC gRealList;
UINT    gLastWord; // the message in which the list ends its grid
LRESULT CALLBACK EndingList(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == gLastWord) {
        DestroyWindow(GetParent(hwnd));
        return -1;
    }
    return CallWindowProcA(gRealList, hwnd, message, wParam, lParam);
}

TEST_F(GridListCells, WrappedListMayEndTheGridWhileACellIsReadOrWritten)
{
    for (const UINT message : { UINT{ HLM_FINDDATA }, UINT{ HLM_FINDCODE } }) {
        MakeColumn(true);
        gLastWord = message;
        const LONG_PTR ending = reinterpret_cast<LONG_PTR>(EndingList);
        gRealList = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(ChildOf(0), GWLP_WNDPROC, ending));
        if (message == HLM_FINDDATA) {
            EXPECT_EQ(0, HGSetCellText(grid, 0, 0, "red"));
        } else {
            EXPECT_EQ("", CellText(0, 0));
        }
        EXPECT_FALSE(IsWindow(grid));
    }
}

} // namespace
