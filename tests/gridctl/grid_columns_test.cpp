// The walk over visible columns and the widths along it.
#include "gridctl/grid_rig.h"

#include <vector>

namespace {

class GridColumns : public GridRig {
protected:
    // The columns that a walk visits, in its order.
    std::vector<int> Walk(bool forward, int from, int band)
    {
        std::vector<int> visited;
        int              col = from;
        while (visited.size() < 20 && HGNextColumn(ctl, forward, &col, band)) {
            visited.push_back(col);
        }
        return visited;
    }
    int Step(bool forward, int from)
    {
        HGStepColumn(ctl->pData, forward, &from);
        return from;
    }
};

using Visited = std::vector<int>;

TEST_F(GridColumns, WalkVisitsFixedColumnsFirstAndThenTheScrollingOnes)
{
    Make({ Column(10), Column(10), Column(10), Column(10), Column(10) }, { .fixedCols = 2 });
    ctl->nFirstCol = 3;
    EXPECT_EQ((Visited{ 0, 1, 3, 4 }), Walk(true, -1, 0));
    EXPECT_EQ((Visited{ 3, 1, 0 }), Walk(false, 4, 0));
}

TEST_F(GridColumns, WalkSkipsHiddenColumns)
{
    Make({ HiddenColumn(10), Column(10), HiddenColumn(10), Column(10), HiddenColumn(10) });
    EXPECT_EQ((Visited{ 1, 3 }), Walk(true, -1, 0));
    EXPECT_EQ((Visited{ 3, 1 }), Walk(false, 5, 0));
}

TEST_F(GridColumns, WalkStaysOnItsBand)
{
    Make({ Column(10, 0), Column(10, 1), Column(10, 0), Column(10, 1) }, { .bands = 2 });
    EXPECT_EQ((Visited{ 0, 2 }), Walk(true, -1, 0));
    EXPECT_EQ((Visited{ 1, 3 }), Walk(true, -1, 1));
    EXPECT_EQ((Visited{ 1 }), Walk(false, 3, 1));
}

TEST_F(GridColumns, WithOneBandAllColumnsCountWhateverTheirBand)
{
    Make({ Column(10, 0), Column(10, 3) });
    EXPECT_EQ((Visited{ 0, 1 }), Walk(true, -1, 0));
}

TEST_F(GridColumns, NegativeBandStandsForThatOfTheColumn)
{
    Make({ Column(10, 0), Column(10, 1), Column(10, 0), Column(10, 1) }, { .bands = 2 });
    EXPECT_EQ((Visited{ 0, 2 }), Walk(true, -1, -1));
    EXPECT_EQ((Visited{ 3 }), Walk(true, 1, -1));
}

TEST_F(GridColumns, WalkThatFindsNothingKeepsTheColumnOrEndsBeforeTheFirst)
{
    Make({ Column(10), Column(10) });
    int col = 1;
    EXPECT_EQ(nullptr, HGNextColumn(ctl, true, &col, 0));
    EXPECT_EQ(1, col);
    col = 0;
    EXPECT_EQ(nullptr, HGNextColumn(ctl, false, &col, 0));
    EXPECT_EQ(-1, col);
    EXPECT_EQ(nullptr, HGNextColumn(ctl, false, &col, 0));
    EXPECT_EQ(-1, col);
}

TEST_F(GridColumns, WalkOverNoColumnsEndsAtOnce)
{
    Make({}, { .fixedCols = 3 });
    EXPECT_EQ(Visited{}, Walk(true, -1, 0));
    EXPECT_EQ(Visited{}, Walk(false, 0, 0));
}

TEST_F(GridColumns, StepSkipsHiddenColumns)
{
    Make({ HiddenColumn(10), Column(10), HiddenColumn(10), Column(10), HiddenColumn(10) });
    EXPECT_EQ(3, Step(true, 1));
    EXPECT_EQ(1, Step(false, 3));
    EXPECT_EQ(1, Step(true, -1));
}

TEST_F(GridColumns, StepOffTheRightStaysAndOffTheLeftIsTheRowHeader)
{
    Make({ HiddenColumn(10), Column(10), HiddenColumn(10) });
    EXPECT_EQ(1, Step(true, 1));
    EXPECT_EQ(-1, Step(false, 1));
    EXPECT_EQ(-1, Step(false, -1));
    EXPECT_EQ(9, Step(true, 9));
    EXPECT_EQ(1, Step(false, 9));
}

TEST_F(GridColumns, StepTakesNoNoticeOfBands)
{
    Make({ Column(10, 0), Column(10, 1) }, { .bands = 2 });
    EXPECT_EQ(1, Step(true, 0));
}

TEST_F(GridColumns, FixedWidthsEndAtTheZoneAtTheLimitAndAtTheRightEdge)
{
    Make({ Column(30), Column(50), Column(70) }, { .fixedCols = 2 });
    struct Case {
        int  limit;
        LONG right;
        LONG left;
    };
    constexpr Case cases[] = { { 2, 400, 80 }, { 9, 400, 80 }, { 1, 400, 30 }, { 0, 400, 0 }, { 2, 30, 30 }, { 2, 29, 30 },
                               { 2, 31, 80 } };
    for (const Case& c : cases) {
        RECT rect = { 0, 0, c.right, 0 };
        HGAddFixedWidths(ctl, &rect, c.limit);
        EXPECT_EQ(c.left, rect.left) << "limit " << c.limit << ", right " << c.right;
    }
}

TEST_F(GridColumns, FixedZoneIsAsWideAsItsWidestBand)
{
    Make({ Column(30, 0), Column(50, 1), Column(70, 0) }, { .fixedCols = 2, .bands = 2 });
    EXPECT_EQ(50, HGFixedZone(ctl));
    RECT zone = { 0, 0, 400, 0 };
    HGAddFixedWidths(ctl, &zone, 2);
    EXPECT_EQ(50, zone.left);
}

TEST_F(GridColumns, FixedZoneHoldsAllColumnsWhenAllAreFixed)
{
    Make({ Column(30), HiddenColumn(90), Column(50) }, { .fixedCols = 3 });
    EXPECT_EQ(80, HGFixedZone(ctl));
}

TEST_F(GridColumns, WidestBandCountsFixedColumnsInAndHiddenOnesOut)
{
    Make({ Column(30, 0), Column(50, 1), Column(70, 0), Column(20, 1), HiddenColumn(500) }, { .fixedCols = 1, .bands = 2 });
    EXPECT_EQ(100, HGWidestBand(ctl));
}

TEST_F(GridColumns, WidestBandOfNoColumnsIsNothing)
{
    Make({});
    EXPECT_EQ(0, HGWidestBand(ctl));
    EXPECT_EQ(0, HGBandsEnd(ctl));
}

TEST_F(GridColumns, BandOfAColumnIsTheFirstWithoutBands)
{
    Make({ Column(30, 2) }, { .bands = 1 });
    EXPECT_EQ(0, HGBandOf(ctl, 0));
    ctl->cBands = 3;
    EXPECT_EQ(2, HGBandOf(ctl, 0));
    EXPECT_EQ(0, HGBandOf(ctl, -1));
    EXPECT_EQ(0, HGBandOf(ctl, 7));
}

} // namespace
