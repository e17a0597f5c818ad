// Messages that add, remove, move, find and order columns.
#include "gridctl/grid_window.h"

#include <string>

namespace {

class GridColumnMessages : public GridWindow {};

TEST_F(GridColumnMessages, AddedColumnGetsItsControlAndKeepsTheRows)
{
    MakeGrid(GridOf({ Number("A") }), 2);
    SetText(0, 1, "7");
    HGSetCellData(grid, 0, 0, nullptr);
    EXPECT_EQ(1, SendPtr(grid, HGM_ADDFIELD, 0, Text(8, "B")));
    EXPECT_EQ("7", CellText(0, 1));
    EXPECT_EQ(1, HGIsCellNull(grid, 0, 0));
    EXPECT_EQ(0, HGIsCellNull(grid, 1, 0));
    EXPECT_EQ("", CellText(1, 1));
    EXPECT_TRUE(IsWindow(reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 1))));
    EXPECT_EQ(-1, static_cast<int>(Send(grid, HGM_ADDFIELD, 0, 0)));
}

TEST_F(GridColumnMessages, AddedColumnKeepsTheBandsInOrder)
{
    MakeGrid(GridOf({ Text(8, "A"), Text(8, "B") }), 1);
    Send(grid, HGM_SETBANDS, 0, 2);
    Send(grid, HGM_SETFIELDBAND, 1, 1);
    EXPECT_EQ(1, SendPtr(grid, HGM_ADDFIELD, 0, Text(8, "C")));
    EXPECT_EQ("ACB", Titles());
    EXPECT_EQ(3, SendPtr(grid, HGM_ADDFIELD, 0, OnBand(Text(8, "D"), 4)));
    EXPECT_EQ(1, Send(grid, HGM_GETFIELDBAND, 3));
}

TEST_F(GridColumnMessages, InsertedColumnStandsWhereItWasAsked)
{
    MakeGrid(GridOf({ Number("A"), Number("B") }), 1);
    SetText(0, 0, "1");
    SetText(1, 0, "2");
    EXPECT_EQ(1, SendPtr(grid, HGM_INSERTFIELD, 1, Number("C")));
    EXPECT_EQ("ACB", Titles());
    EXPECT_EQ("1", CellText(0, 0));
    EXPECT_EQ("2", CellText(2, 0));
    EXPECT_EQ(3, SendPtr(grid, HGM_INSERTFIELD, 99, Number("D")));
    EXPECT_EQ(-1, static_cast<int>(Send(grid, HGM_INSERTFIELD, 0, 0)));
}

TEST_F(GridColumnMessages, DeletedColumnGoesWithItsControl)
{
    MakeGrid(GridOf({ Number("A"), Number("B") }), 1);
    SetText(1, 0, "2");
    const HWND child = reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 0));
    EXPECT_EQ(1, Send(grid, HGM_DELETEFIELD, 0));
    EXPECT_FALSE(IsWindow(child));
    EXPECT_EQ("2", CellText(0, 0));
    EXPECT_EQ(0, Send(grid, HGM_DELETEFIELD, 5));
    EXPECT_EQ(1, Send(grid, HGM_DELETEFIELD, 0));
    EXPECT_EQ(0, Send(grid, HGM_GETCOLCOUNT));
}

TEST_F(GridColumnMessages, MovedColumnTakesItsValuesAlong)
{
    MakeGrid(GridOf({ Number("A"), Number("B"), Number("C") }), 1);
    SetText(0, 0, "1");
    EXPECT_EQ(2, Send(grid, HGM_MOVEFIELD, 0, 2));
    EXPECT_EQ("BCA", Titles());
    EXPECT_EQ("1", CellText(2, 0));
    EXPECT_EQ(-1, static_cast<int>(Send(grid, HGM_MOVEFIELD, 0, 9)));
}

TEST_F(GridColumnMessages, ColumnsAreFoundByTitle)
{
    MakeGrid(GridOf({ Text(8, "Name"), Hidden(Text(8, "City")), Text(8, "city"), Text(8, "Name") }), 0);
    EXPECT_EQ(1, SendPtr(grid, HGM_FINDFIELD, 0, "CITY"));
    EXPECT_EQ(-1, static_cast<int>(SendPtr(grid, HGM_FINDFIELD, 0, "Street")));
    EXPECT_EQ(2, SendPtr(grid, HGM_FINDFIELDFROM, 0, "City"));
    EXPECT_EQ(3, SendPtr(grid, HGM_FINDFIELDFROM, 1, "name"));
    EXPECT_EQ(-1, static_cast<int>(SendPtr(grid, HGM_FINDFIELDFROM, 4, "name")));
    EXPECT_EQ(-1, static_cast<int>(Send(grid, HGM_FINDFIELDFROM, 0, 0)));
}

TEST_F(GridColumnMessages, OrderNeedsAMap)
{
    MakeGrid(GridOf({ Text(8, "A"), Text(8, "B") }), 0);
    int order[2] = { 1, 0 };
    EXPECT_EQ(0, SendPtr(grid, HGM_GETCOLORDER, 0, order));
    EXPECT_EQ(0, SendPtr(grid, HGM_SETCOLORDER, 0, order));
    EXPECT_EQ(1, Send(grid, HGM_COLTOPOS, 1));
    EXPECT_EQ(1, Send(grid, HGM_POSTOCOL, 1));
    EXPECT_EQ(-1, static_cast<int>(Send(grid, HGM_POSTOCOL, 2)));
    EXPECT_EQ(-1, static_cast<int>(Send(grid, HGM_COLTOPOS, 2)));
}

TEST_F(GridColumnMessages, OrderThatWasReadComesBackWhenItIsSet)
{
    MakeGrid(GridOf({ Number("A"), Number("B"), Number("C"), Number("D") }, gridStyle | HGS_COLMAP), 1);
    for (int col = 0; col < 4; ++col) {
        SetText(col, 0, std::to_string(col).c_str());
    }
    Send(grid, HGM_MOVEFIELD, 0, 2);
    Send(grid, HGM_MOVEFIELD, 3, 1);
    ASSERT_EQ("BDCA", Titles());
    int order[4] = {};
    EXPECT_EQ(1, SendPtr(grid, HGM_GETCOLORDER, 0, order));
    EXPECT_EQ(3, order[0]);
    EXPECT_EQ(3, Send(grid, HGM_POSTOCOL, 0));
    EXPECT_EQ(0, Send(grid, HGM_COLTOPOS, 3));
    const int plain[4] = { 0, 1, 2, 3 };
    EXPECT_EQ(1, SendPtr(grid, HGM_SETCOLORDER, 0, plain));
    EXPECT_EQ("ABCD", Titles());
    EXPECT_EQ("0", CellText(0, 0));
    EXPECT_EQ(1, SendPtr(grid, HGM_SETCOLORDER, 0, order));
    EXPECT_EQ("BDCA", Titles());
    EXPECT_EQ("0", CellText(3, 0));
    EXPECT_EQ("1", CellText(0, 0));
}

TEST_F(GridColumnMessages, OrderThatIsSetShowsAtOnceWithTheNextPaint)
{
    MakeGrid(GridOf({ Number("A"), Number("B") }, gridStyle | HGS_COLMAP), 1);
    UpdateWindow(grid);
    ASSERT_FALSE(IsInvalid());
    const int order[2] = { 1, 0 };
    SendPtr(grid, HGM_SETCOLORDER, 0, order);
    RECT invalid = {};
    RECT client = {};
    GetUpdateRect(grid, &invalid, FALSE);
    GetClientRect(grid, &client);
    EXPECT_TRUE(EqualRect(&client, &invalid));
}

TEST_F(GridColumnMessages, OrderWithBadEntriesLosesNoColumn)
{
    MakeGrid(GridOf({ Number("A"), Number("B"), Number("C") }, gridStyle | HGS_COLMAP), 1);
    const int bad[3] = { 7, 7, -1 };
    EXPECT_EQ(1, SendPtr(grid, HGM_SETCOLORDER, 0, bad));
    EXPECT_EQ("ABC", Titles());
}

TEST_F(GridColumnMessages, FieldMessagesGoThroughTheMap)
{
    MakeGrid(GridOf({ Number("A"), Text(8, "B") }, gridStyle | HGS_COLMAP), 1);
    Send(grid, HGM_MOVEFIELD, 0, 1);
    char title[8] = {};
    SendPtr(grid, HGM_GETFIELDTITLE, 0, title);
    EXPECT_STREQ("A", title);
}

} // namespace
