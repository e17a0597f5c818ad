// The rectangles of a grid.
#include "gridctl/grid_rig.h"

namespace {

constexpr DWORD bothHeaders = HGS_ROWHEADERS | HGS_COLHEADERS;
constexpr RECT  offScreen = { -50, -50, -50, -50 };

class GridLayout : public GridRig {
protected:
    RECT CellRect(int col, int row, bool clip = false)
    {
        RECT rect;
        result = HGCellRect(ctl, &rect, col, row, clip);
        return rect;
    }
    RECT ColumnRect(int col)
    {
        RECT rect;
        result = HGColumnRect(ctl, &rect, col, -1);
        return rect;
    }
    RECT RowRect(int row, int col = -1, int band = -1)
    {
        RECT rect;
        result = HGRowRect(ctl, &rect, row, col, band);
        return rect;
    }

    int result = -1;
};

using Zone = void (*)(HGridCtl*, RECT*);

RECT RectOf(Zone zone, HGridCtl* ctl)
{
    RECT rect;
    zone(ctl, &rect);
    return rect;
}

TEST_F(GridLayout, DataLieBehindTheHeadersThatTheStyleNames)
{
    Make({ Column(50) });
    struct Case {
        DWORD style;
        int   bands;
        RECT  data;
        RECT  below;
    };
    constexpr Case cases[] = {
        { 0, 1, { 0, 0, 400, 200 }, { 0, 0, 400, 200 } },
        { HGS_ROWHEADERS, 1, { 40, 0, 400, 200 }, { 0, 0, 400, 200 } },
        { HGS_COLHEADERS, 1, { 0, 20, 400, 200 }, { 0, 20, 400, 200 } },
        { bothHeaders, 1, { 40, 20, 400, 200 }, { 0, 20, 400, 200 } },
        { bothHeaders, 3, { 40, 60, 400, 200 }, { 0, 60, 400, 200 } },
    };
    for (const Case& c : cases) {
        ctl->pData->dwStyle = c.style;
        ctl->cBands = static_cast<signed char>(c.bands);
        EXPECT_TRUE(SameRect(c.data, RectOf(HGDataRect, ctl))) << "data, style " << c.style << ", bands " << c.bands;
        EXPECT_TRUE(SameRect(c.below, RectOf(HGBelowHeaders, ctl))) << "below, style " << c.style << ", bands " << c.bands;
    }
}

TEST_F(GridLayout, NavigatorTakesTheWidthOfAScrollBar)
{
    Make({ Column(50) });
    ctl->hNavScroll = ctl->hWnd;
    const LONG width = GetSystemMetrics(SM_CXVSCROLL);
    EXPECT_TRUE(SameRect({ 0, 0, 400 - width, 200 }, RectOf(HGClientRect, ctl)));
    ctl->hNavScroll = nullptr;
}

TEST_F(GridLayout, ScrollingZoneBeginsBehindRowHeadersAndFixedColumns)
{
    Make({ Column(50), Column(30), Column(80) }, { .fixedCols = 2 });
    EXPECT_TRUE(SameRect({ 120, 0, 400, 200 }, RectOf(HGScrollRect, ctl)));
}

TEST_F(GridLayout, ColumnsStandSideBySideBehindTheRowHeaders)
{
    Make({ Column(50), HiddenColumn(70), Column(30) });
    EXPECT_TRUE(SameRect({ 0, 0, 40, 200 + 28672 }, ColumnRect(-1)));
    EXPECT_EQ(1, result);
    EXPECT_TRUE(SameRect({ 40, 0, 90, 200 + 28672 }, ColumnRect(0)));
    EXPECT_EQ(1, result);
    EXPECT_TRUE(SameRect({ 90, 0, 90, 200 + 28672 }, ColumnRect(1)));
    EXPECT_EQ(0, result);
    EXPECT_TRUE(SameRect({ 90, 0, 120, 200 + 28672 }, ColumnRect(2)));
    EXPECT_EQ(1, result);
}

TEST_F(GridLayout, ColumnThatDoesNotExistHasNoWidth)
{
    Make({ Column(50) });
    EXPECT_EQ(ColumnRect(1).right, ColumnRect(1).left);
    EXPECT_EQ(0, result);
    ctl->pData->dwStyle = 0;
    EXPECT_EQ(ColumnRect(-1).right, ColumnRect(-1).left);
    EXPECT_EQ(0, result);
}

TEST_F(GridLayout, FixedColumnsStandStillWhileTheOthersScrollBehindThem)
{
    Make({ Column(50), Column(30), Column(80), Column(60) }, { .fixedCols = 2 });
    ctl->nHScrollPos = 25;
    struct Case {
        int  col;
        LONG left;
        LONG right;
    };
    constexpr Case cases[] = { { 0, 40, 90 }, { 1, 90, 120 }, { 2, 95, 175 }, { 3, 175, 235 } };
    for (const Case& c : cases) {
        const RECT rect = ColumnRect(c.col);
        EXPECT_EQ(c.left, rect.left) << "column " << c.col;
        EXPECT_EQ(c.right, rect.right) << "column " << c.col;
    }
}

TEST_F(GridLayout, BandsAreLaidOutFromTheLeftIndependently)
{
    Make({ Column(50, 0), Column(30, 1), Column(80, 0), Column(60, 1) }, { .bands = 2 });
    EXPECT_EQ(90, ColumnRect(2).left);
    EXPECT_EQ(40, ColumnRect(1).left);
    EXPECT_EQ(70, ColumnRect(3).left);
}

TEST_F(GridLayout, ScrollingColumnsOfEachBandBeginBehindTheFixedOnesOfAllBands)
{
    Make({ Column(50, 0), Column(80, 0), Column(60, 1), Column(20, 1) }, { .fixedCols = 1, .bands = 2 });
    EXPECT_EQ(90, ColumnRect(1).left);
    EXPECT_EQ(90, ColumnRect(2).left);
    EXPECT_EQ(150, ColumnRect(3).left);
    EXPECT_EQ(90, RectOf(HGScrollRect, ctl).left);
}

TEST_F(GridLayout, RowsStandBelowEachOtherFromTheTopRowOn)
{
    Make({ Column(50) }, { .rows = 30 });
    ctl->nTopRow = 10;
    EXPECT_TRUE(SameRect({ 0, 20, 400 + 28672, 40 }, RowRect(10)));
    EXPECT_EQ(1, result);
    EXPECT_TRUE(SameRect({ 0, 60, 400 + 28672, 80 }, RowRect(12)));
    EXPECT_EQ(1, result);
    EXPECT_TRUE(SameRect({ 0, 20, 400 + 28672, 20 }, RowRect(9))) << "above the top row nothing is left of a row";
    EXPECT_EQ(0, result);
    EXPECT_EQ(200, RowRect(19).top);
    EXPECT_EQ(0, result) << "a row that begins below the client area is out of view";
}

TEST_F(GridLayout, RowOfSeveralBandsIsAsHighAsItsLines)
{
    Make({ Column(50, 0), Column(50, 1) }, { .bands = 2, .rows = 5 });
    EXPECT_TRUE(SameRect({ 0, 80, 400 + 28672, 120 }, RowRect(1)));
    EXPECT_TRUE(SameRect({ 0, 80, 400 + 28672, 100 }, RowRect(1, 0, 0)));
    EXPECT_TRUE(SameRect({ 0, 100, 400 + 28672, 120 }, RowRect(1, 1, 1)));
}

TEST_F(GridLayout, HeaderRowIsTheStripOrOneBandOfIt)
{
    Make({ Column(50, 0), Column(50, 1) }, { .bands = 2, .rows = 5 });
    EXPECT_TRUE(SameRect({ 0, 0, 400 + 28672, 40 }, RowRect(-1)));
    EXPECT_EQ(1, result);
    EXPECT_TRUE(SameRect({ 0, 20, 400 + 28672, 40 }, RowRect(-1, 1, 1)));
    EXPECT_EQ(1, result);
    ctl->pData->dwStyle = HGS_ROWHEADERS;
    RowRect(-1);
    EXPECT_EQ(0, result);
}

TEST_F(GridLayout, FarRowsKeepToTheCoordinateBound)
{
    Make({ Column(50) }, { .rows = 5 });
    EXPECT_EQ(28672, RowRect(32000).top);
    EXPECT_EQ(28672 + 20, RowRect(32000).bottom);
    ctl->nTopRow = 32000;
    EXPECT_TRUE(SameRect({ 0, 20, 400 + 28672, 20 }, RowRect(0)));
    ctl->pData->nRowHeight = 32767;
    ctl->cBands = 5;
    ctl->nTopRow = -32768;
    EXPECT_EQ(28672, RowRect(32767).top);
}

TEST_F(GridLayout, CellLeavesRoomForTheLines)
{
    Make({ Column(50), Column(30) }, { .rows = 5 });
    EXPECT_TRUE(SameRect({ 90, 40, 119, 59 }, CellRect(1, 1)));
    EXPECT_EQ(1, result);
    EXPECT_TRUE(SameRect({ 90, 0, 120, 20 }, CellRect(1, -1))) << "headers have no lines";
    EXPECT_TRUE(SameRect({ 0, 40, 40, 60 }, CellRect(-1, 1)));
    EXPECT_TRUE(SameRect({ 0, 0, 40, 20 }, CellRect(-1, -1)));
    ctl->pData->dwStyle |= HGS_NOLINES;
    EXPECT_TRUE(SameRect({ 90, 40, 120, 60 }, CellRect(1, 1)));
}

TEST_F(GridLayout, ClippedCellOutOfViewIsOffScreen)
{
    Make({ Column(50), HiddenColumn(30) }, { .rows = 50 });
    ctl->nTopRow = 3;
    struct Case {
        const char* what;
        int         col;
        int         row;
    };
    constexpr Case cases[] = {
        { "hidden column", 1, 4 }, { "row above the page", 0, 2 }, { "row below the page", 0, 40 },
        { "column that doesn't exist", 2, 4 },
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(SameRect(offScreen, CellRect(c.col, c.row, true))) << c.what;
        EXPECT_EQ(0, result) << c.what;
        CellRect(c.col, c.row, false);
        EXPECT_EQ(1, result) << c.what << ", without clip";
    }
}

TEST_F(GridLayout, CellOfABandLiesOnItsLine)
{
    Make({ Column(50, 0), Column(30, 1) }, { .bands = 2, .rows = 5 });
    EXPECT_TRUE(SameRect({ 40, 80, 89, 99 }, CellRect(0, 1)));
    EXPECT_TRUE(SameRect({ 40, 100, 69, 119 }, CellRect(1, 1)));
    EXPECT_TRUE(SameRect({ 0, 80, 40, 120 }, CellRect(-1, 1)));
}

TEST_F(GridLayout, ExtentsEndWithTheData)
{
    Make({ Column(50), Column(30) }, { .rows = 4 });
    ctl->nTopRow = 1;
    RECT rect;
    HGColExtent(ctl, &rect, 1);
    EXPECT_TRUE(SameRect({ 90, 0, 120, 80 }, rect));
    HGRowExtent(ctl, &rect, 2);
    EXPECT_TRUE(SameRect({ 0, 40, 120, 60 }, rect));
    EXPECT_TRUE(SameRect({ 40, 20, 120, 80 }, RectOf(HGContentRect, ctl)));
}

TEST_F(GridLayout, ContentOfManyRowsEndsWithTheClientArea)
{
    Make({ Column(50) }, { .rows = 100 });
    EXPECT_TRUE(SameRect({ 40, 20, 90, 200 }, RectOf(HGContentRect, ctl)));
}

TEST_F(GridLayout, ContentOfBandsEndsWithTheWidest)
{
    Make({ Column(50, 0), Column(30, 1), Column(90, 1) }, { .bands = 2, .rows = 1 });
    EXPECT_EQ(160, RectOf(HGContentRect, ctl).right);
}

TEST_F(GridLayout, ContentEndsBeforeTheNavigator)
{
    Make({ Column(500) }, { .rows = 1 });
    EXPECT_EQ(540, RectOf(HGContentRect, ctl).right);
    ctl->hNavScroll = ctl->hWnd;
    EXPECT_EQ(400 - GetSystemMetrics(SM_CXVSCROLL), RectOf(HGContentRect, ctl).right);
    ctl->hNavScroll = nullptr;
}

TEST_F(GridLayout, BoundOfRectanglesApartHasNoNegativeSize)
{
    struct Case {
        RECT a;
        RECT b;
        RECT both;
    };
    constexpr Case cases[] = {
        { { 0, 0, 10, 10 }, { 5, 5, 20, 20 }, { 5, 5, 10, 10 } },
        { { 0, 0, 10, 10 }, { 20, 0, 30, 10 }, { 10, 0, 10, 10 } },
        { { 0, 0, 10, 10 }, { 0, 30, 10, 40 }, { 0, 10, 10, 10 } },
    };
    for (const Case& c : cases) {
        RECT out;
        HGBoundRect(&out, &c.a, &c.b);
        EXPECT_TRUE(SameRect(c.both, out));
    }
}

TEST_F(GridLayout, UnionHoldsBothAlsoWhenOneIsEmpty)
{
    const RECT a = { 0, 0, 10, 10 };
    const RECT b = { 20, 30, 20, 30 };
    RECT       out;
    HGUnionRect(&out, &a, &b);
    EXPECT_TRUE(SameRect({ 0, 0, 20, 30 }, out));
}

} // namespace
