// Which cell a point is in.
#include "gridctl/grid_rig.h"

namespace {

class GridHit : public GridRig {
protected:
    Cell Hit(int x, int y, int firstBand = -1)
    {
        Cell cell = { -9, -9 };
        band = firstBand;
        EXPECT_EQ(1, HGHitCell(ctl, MAKELPARAM(x, y), &cell, &band));
        return cell;
    }

    int band = -1;
};

#define EXPECT_HIT(c, r, x, y) EXPECT_EQ((Cell{ c, r }), Hit(x, y)) << "at " << (x) << ", " << (y)

TEST_F(GridHit, PointIsInTheCellWhoseRectangleHoldsIt)
{
    Make({ Column(50), HiddenColumn(70), Column(30) }, { .rows = 30 });
    ctl->nTopRow = 4;
    EXPECT_HIT(0, 4, 60, 20);
    EXPECT_HIT(0, 4, 60, 39);
    EXPECT_HIT(0, 5, 60, 40);
    EXPECT_HIT(2, 12, 100, 199);
}

TEST_F(GridHit, HeadersAreMinusOne)
{
    Make({ Column(50) }, { .rows = 30 });
    EXPECT_HIT(-1, -1, 10, 10);
    EXPECT_HIT(0, -1, 60, 19);
    EXPECT_HIT(-1, 0, 10, 20);
    EXPECT_HIT(-1, 0, 40, 20);
}

TEST_F(GridHit, FirstPixelOfAColumnCountsForTheOneBefore)
{
    Make({ Column(50), Column(30) }, { .rows = 3 });
    EXPECT_HIT(-1, 0, 40, 30);
    EXPECT_HIT(0, 0, 41, 30);
    EXPECT_HIT(0, 0, 90, 30);
    EXPECT_HIT(1, 0, 91, 30);
}

TEST_F(GridHit, PointsBeyondTheEndsCountForTheLastColumnAndRow)
{
    Make({ Column(50), Column(30) }, { .rows = 3 });
    EXPECT_HIT(1, 2, 390, 190);
    EXPECT_HIT(1, 0, 390, 25);
}

TEST_F(GridHit, WithoutColumnHeadersAPointAboveIsTheFirstRowOfAllRecords)
{
    Make({ Column(50) }, { .style = HGS_ROWHEADERS, .rows = 30 });
    EXPECT_HIT(0, 0, 60, -5);
    ctl->lRowBase = 100;
    EXPECT_HIT(0, -1, 60, -5);
}

TEST_F(GridHit, WithoutRowHeadersThereIsNoColumnBeforeTheFirst)
{
    Make({ Column(50) }, { .style = HGS_COLHEADERS, .rows = 30 });
    EXPECT_HIT(0, 0, 0, 20);
    EXPECT_HIT(0, 0, -10, 20);
}

TEST_F(GridHit, NoRowsAtAllGiveRowMinusOne)
{
    Make({ Column(50) });
    EXPECT_HIT(0, -1, 60, 100);
    ctl->pData->dwStyle = 0;
    EXPECT_HIT(0, -1, 30, 100);
    EXPECT_HIT(0, -1, 30, -5);
}

TEST_F(GridHit, NoColumnsGiveTheHeaderOrColumnZero)
{
    Make({}, { .rows = 0 });
    EXPECT_HIT(-1, -1, 60, 100);
    ctl->pData->dwStyle = 0;
    EXPECT_HIT(0, -1, 60, 100);
}

TEST_F(GridHit, HitsFollowTheScrollPosition)
{
    Make({ Column(50), Column(30), Column(60) }, { .rows = 3 });
    ctl->nHScrollPos = 30;
    EXPECT_HIT(0, 0, 60, 30);
    EXPECT_HIT(1, 0, 61, 30);
    EXPECT_HIT(2, 0, 91, 30);
}

TEST_F(GridHit, OverFixedColumnsAHitShiftsWithTheScrollPosition)
{
    Make({ Column(50), Column(30), Column(60) }, { .fixedCols = 1, .rows = 3 });
    EXPECT_HIT(0, 0, 60, 30);
    ctl->nHScrollPos = 40;
    EXPECT_HIT(1, 0, 60, 30);
    EXPECT_HIT(2, 0, 85, 30);
}

TEST_F(GridHit, BandIsThatOfTheLine)
{
    Make({ Column(50, 0), Column(30, 1), Column(60, 0), Column(60, 1) }, { .bands = 2, .rows = 5 });
    EXPECT_HIT(0, 0, 60, 45);
    EXPECT_EQ(0, band);
    EXPECT_HIT(1, 0, 60, 65);
    EXPECT_EQ(1, band);
    EXPECT_HIT(3, 1, 80, 105);
    EXPECT_EQ(1, band);
    EXPECT_HIT(2, 1, 95, 85);
    EXPECT_EQ(0, band);
}

TEST_F(GridHit, BandInTheHeaderIsThatOfItsLine)
{
    Make({ Column(50, 0), Column(30, 1), Column(60, 1) }, { .bands = 2, .rows = 5 });
    EXPECT_HIT(0, -1, 80, 5);
    EXPECT_HIT(2, -1, 80, 25);
    EXPECT_EQ(1, band);
}

TEST_F(GridHit, GivenBandIsKeptInTheRows)
{
    Make({ Column(50, 0), Column(30, 1), Column(60, 1) }, { .bands = 2, .rows = 5 });
    EXPECT_EQ((Cell{ 2, 0 }), Hit(80, 45, 1));
    EXPECT_EQ(1, band);
}

TEST_F(GridHit, PaintingFindsTheColumnsOfItsBandFromTheWholeWindow)
{
    Make({ Column(50, 0), Column(30, 1), Column(60, 1) }, { .bands = 2, .rows = 5 });
    struct Case {
        int  y;
        int  band;
        Cell cell;
    };
    constexpr Case cases[] = { { 5, 0, { 0, -1 } },  { 5, 1, { 2, -1 } },  { 25, 0, { 0, -1 } },
                               { 25, 1, { 2, -1 } }, { 45, 0, { 0, 0 } },  { 65, 1, { 2, 0 } } };
    for (const Case& c : cases) {
        Cell cell;
        HGHitBand(ctl, MAKELPARAM(80, c.y), &cell, c.band);
        EXPECT_EQ(c.cell, cell) << "band " << c.band << " at " << c.y;
    }
}

TEST_F(GridHit, BandsMeetTheScrollingZoneWhereTheirColumnsStand)
{
    Make({ Column(50, 0), Column(80, 0), Column(60, 1), Column(20, 1) }, { .fixedCols = 1, .bands = 2, .rows = 5 });
    for (int col = 1; col <= 3; ++col) {
        RECT rect;
        HGCellRect(ctl, &rect, col, 1, false);
        EXPECT_HIT(col, 1, static_cast<int>(rect.left) + 5, static_cast<int>(rect.top) + 5);
    }
    EXPECT_HIT(-1, 1, 60, 105);
}

TEST_F(GridHit, HeadersWithoutHeightAndRowsWithoutHeightAreSurvived)
{
    Make({ Column(50) }, { .rows = 3 });
    ctl->pData->nHdrHeight = 0;
    EXPECT_HIT(0, -1, 60, -3);
    ctl->pData->nRowHeight = 0;
    EXPECT_HIT(0, 2, 60, 100);
}

} // namespace
