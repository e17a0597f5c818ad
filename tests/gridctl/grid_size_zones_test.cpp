// Where the mouse finds the edges of rows and columns, as arithmetic.
#include "gridctl/grid_rig.h"

#include <functional>
#include <string>

namespace {

constexpr DWORD headers = HGS_ROWHEADERS | HGS_COLHEADERS;
constexpr DWORD sizes = HGS_ROWSIZE | HGS_COLSIZE;

class GridSizeZones : public GridRig {
protected:
    int ZoneAt(int x, int y) { return HGSizeZoneAt(ctl, { x, y }); }
    // The zones along a line, as "zone: first-last" with the pixels that have it.
    std::string Along(int from, int to, const std::function<int(int)>& zoneAt)
    {
        std::string text;
        for (int at = from; at < to; ++at) {
            const int zone = zoneAt(at);
            int       end = at;
            while (end + 1 < to && zoneAt(end + 1) == zone) {
                ++end;
            }
            text += zone ? std::to_string(zone) + ": " + std::to_string(at) + "-" + std::to_string(end) + "; " : "";
            at = end;
        }
        return text;
    }
    std::string AlongX(int y, int from = 0, int to = 400)
    {
        return Along(from, to, [&](int x) { return ZoneAt(x, y); });
    }
    std::string AlongY(int x, int from = 0, int to = 200)
    {
        return Along(from, to, [&](int y) { return ZoneAt(x, y); });
    }
};

TEST_F(GridSizeZones, WithoutTheStylesThereAreNone)
{
    Make({ Column(80), Column(60) }, { .rows = 5 });
    EXPECT_EQ("", AlongX(10));
    EXPECT_EQ("", AlongY(20));
}

// Rows

TEST_F(GridSizeZones, RowEdgesLieInTheHeaderStripAndBelowTheHeader)
{
    Make({ Column(80) }, { .style = headers | HGS_ROWSIZE, .rows = 2 });
    EXPECT_EQ("-1: 16-23; -2: 36-43; -3: 56-63; ", AlongY(20, 0, 70));
}

TEST_F(GridSizeZones, RowEdgesReachThreePixelsOutOfTheHeaderStrip)
{
    Make({ Column(80) }, { .style = headers | HGS_ROWSIZE, .rows = 5 });
    EXPECT_EQ(-2, ZoneAt(0, 40));
    EXPECT_EQ(-2, ZoneAt(42, 40));
    EXPECT_EQ(0, ZoneAt(43, 40));
}

TEST_F(GridSizeZones, WithoutRowHeadersRowEdgesLieInEveryCell)
{
    Make({ Column(80) }, { .style = HGS_COLHEADERS | HGS_ROWSIZE, .rows = 5 });
    EXPECT_EQ(-2, ZoneAt(0, 40));
    EXPECT_EQ(-2, ZoneAt(399, 40));
}

TEST_F(GridSizeZones, MarginIsAThirdOfTheRowFromOneToFour)
{
    struct Case {
        short       height;
        const char* zones; // around the bottom of row 0
    };
    constexpr Case cases[] = {
        { 2, "-2: 21-22; " }, { 5, "-2: 24-25; " }, { 9, "-2: 26-31; " }, { 12, "-2: 28-35; " }, { 30, "-2: 46-53; " },
    };
    for (const Case& c : cases) {
        Make({ Column(80) }, { .style = headers | HGS_ROWSIZE, .rows = 5 });
        ctl->pData->nRowHeight = c.height;
        const int margin = std::clamp(c.height / 3, 1, 4);
        EXPECT_EQ(c.zones, AlongY(20, 20 + c.height - margin, 20 + c.height + margin)) << c.height;
        if (c.height > 2) {
            EXPECT_EQ(0, ZoneAt(20, 20 + c.height - margin - 1)) << c.height;
            EXPECT_EQ(0, ZoneAt(20, 20 + c.height + margin)) << c.height;
        }
        RigWindowEnd(record.hWnd);
        HGridDestroy(record.pData);
        record = {};
    }
    Make({ Column(80) });
}

TEST_F(GridSizeZones, TopOfTheDataIsAZoneOnlyUnderAColumnHeader)
{
    Make({ Column(80) }, { .style = headers | HGS_ROWSIZE, .rows = 5 });
    EXPECT_EQ(-1, ZoneAt(20, 20));
    ctl->pData->dwStyle &= ~static_cast<DWORD>(HGS_COLHEADERS);
    EXPECT_EQ("-2: 16-23; ", AlongY(20, 0, 30));
}

TEST_F(GridSizeZones, RowsAreCountedFromTheTopOfThePage)
{
    Make({ Column(80) }, { .style = headers | HGS_ROWSIZE, .rows = 30 });
    ctl->nTopRow = 7;
    EXPECT_EQ(-2 - 7, ZoneAt(20, 40));
    EXPECT_EQ(-2 - 8, ZoneAt(20, 60));
}

TEST_F(GridSizeZones, OverAScrolledPageTheHeaderEndsTheRowBefore)
{
    Make({ Column(80) }, { .style = headers | HGS_ROWSIZE, .rows = 30 });
    ctl->nTopRow = 7;
    EXPECT_EQ(-2 - 6, ZoneAt(20, 20));
    ctl->pData->dwStyle &= ~static_cast<DWORD>(HGS_COLHEADERS);
    EXPECT_EQ(-2 - 6, ZoneAt(20, 0));
}

TEST_F(GridSizeZones, AboveTheMarginOfTheTopThereIsNoRow)
{
    Make({ Column(80) }, { .style = headers | HGS_ROWSIZE, .rows = 30 });
    ctl->pData->nHdrHeight = 90;
    ctl->nTopRow = 7;
    EXPECT_EQ("", AlongY(20, 0, 86));
}

TEST_F(GridSizeZones, RecordOfSeveralBandsHasOneEdge)
{
    Make({ Column(80), Column(80, 1) }, { .style = headers | HGS_ROWSIZE, .bands = 2, .rows = 5 });
    EXPECT_EQ("-1: 36-43; -2: 76-83; -3: 116-123; ", AlongY(20, 0, 130));
}

// Columns

TEST_F(GridSizeZones, ColumnEdgesReachAThirdToEachSide)
{
    Make({ Column(80), Column(9), Column(60) }, { .style = headers | HGS_COLSIZE, .rows = 5 });
    // Edges at 120, 129 and 189: 6 into the wide ones, 3 into the narrow one, behind the last as far as before it.
    EXPECT_EQ("2: 114-122; 3: 126-134; 4: 183-194; ", AlongX(10));
}

TEST_F(GridSizeZones, NarrowColumnHasAZoneOfOnePixelOnEachSide)
{
    Make({ Column(2), Column(2), Column(2) }, { .style = headers | HGS_COLSIZE, .rows = 5 });
    EXPECT_EQ("2: 41-42; 3: 43-44; 4: 45-46; ", AlongX(10));
}

TEST_F(GridSizeZones, UnderColumnHeadersOnlyTheirStripHasColumnZones)
{
    Make({ Column(80), Column(60) }, { .style = headers | HGS_COLSIZE, .rows = 5 });
    // The point is taken a margin lower than it is.
    EXPECT_EQ("2: 0-20; ", AlongY(120));
}

TEST_F(GridSizeZones, WithoutColumnHeadersEveryRowHasColumnZones)
{
    Make({ Column(80), Column(60) }, { .style = HGS_ROWHEADERS | HGS_COLSIZE, .rows = 5 });
    EXPECT_EQ("2: 0-199; ", AlongY(120));
}

TEST_F(GridSizeZones, RowZonesComeBeforeColumnZones)
{
    Make({ Column(80) }, { .style = HGS_COLHEADERS | sizes, .rows = 5 });
    EXPECT_EQ(2, ZoneAt(80, 10));
    EXPECT_EQ(-1, ZoneAt(80, 18));
}

TEST_F(GridSizeZones, ColumnZonesBelongToTheBandOfTheMouse)
{
    Make({ Column(80), Column(100), Column(50, 1), Column(60, 1) },
         { .style = headers | HGS_COLSIZE, .bands = 2, .rows = 5 });
    EXPECT_EQ("2: 114-125; 3: 214-225; ", AlongX(8));
    EXPECT_EQ("4: 84-95; 5: 144-155; ", AlongX(28));
    // A margin above the second band is still the first one's, where the lines are divided by the header's height.
    EXPECT_EQ("2: 114-125; 3: 214-225; ", AlongX(16));
    EXPECT_EQ("4: 84-95; 5: 144-155; ", AlongX(17));
}

TEST_F(GridSizeZones, BandWithoutColumnsEndsAtThePixelOfItsNumber)
{
    Make({ Column(80) }, { .style = HGS_COLHEADERS | HGS_COLSIZE, .bands = 2, .rows = 5 });
    EXPECT_EQ(0, ZoneAt(40, 8));
    EXPECT_EQ("", AlongX(28, 1));
}

TEST_F(GridSizeZones, ColumnZonesFollowTheScrollPosition)
{
    Make({ Column(80), Column(100), Column(300) }, { .style = headers | HGS_COLSIZE, .rows = 5 });
    ctl->nHScrollPos = 30;
    EXPECT_EQ("2: 84-95; 3: 184-195; ", AlongX(10));
}

TEST_F(GridSizeZones, HiddenColumnsHaveNoEdge)
{
    Make({ Column(80), HiddenColumn(70), Column(100) }, { .style = headers | HGS_COLSIZE, .rows = 5 });
    EXPECT_EQ("2: 114-125; 4: 214-225; ", AlongX(10));
}

TEST_F(GridSizeZones, ScrollingColumnsOfABandBeginBehindTheWidestFixedOnes)
{
    Make({ Column(80), Column(50, 1), Column(60), Column(60, 1) },
         { .style = headers | HGS_COLSIZE, .fixedCols = 2, .bands = 2, .rows = 5 });
    EXPECT_EQ("2: 114-125; 4: 174-185; ", AlongX(8));
    EXPECT_EQ("3: 84-95; 5: 174-185; ", AlongX(28));
}

TEST_F(GridSizeZones, BandWithoutFixedColumnsBeginsBehindThoseOfOthers)
{
    Make({ Column(80), Column(60), Column(70, 1) },
         { .style = headers | HGS_COLSIZE, .fixedCols = 1, .bands = 2, .rows = 5 });
    EXPECT_EQ("4: 184-195; ", AlongX(28));
}

TEST_F(GridSizeZones, EdgeOfTheRowHeadersNeedsBothOfTheirStyles)
{
    Make({ Column(80) }, { .style = headers | sizes, .rows = 5 });
    EXPECT_EQ("1: 34-45; 2: 114-125; ", AlongX(10));
    ctl->pData->dwStyle &= ~static_cast<DWORD>(HGS_ROWSIZE);
    EXPECT_EQ("2: 114-125; ", AlongX(10));
    ctl->pData->dwStyle = (HGS_COLHEADERS | sizes);
    EXPECT_EQ("2: 74-85; ", AlongX(10));
}

TEST_F(GridSizeZones, EdgeOfTheRowHeadersReachesAThirdOfThemAndOfTheFirstColumn)
{
    Make({ Column(3) }, { .style = headers | sizes, .rows = 5 });
    ctl->pData->nHdrWidth = 9;
    EXPECT_EQ("1: 6-9; ", AlongX(10, 0, 11));
}

TEST_F(GridSizeZones, NothingLiesAtTheRightEndOfTheDataOrBehindIt)
{
    Make({ Column(360), Column(80) }, { .style = headers | sizes, .rows = 5 });
    EXPECT_EQ(2, ZoneAt(399, 10));
    EXPECT_EQ(0, ZoneAt(400, 10));
    EXPECT_EQ(0, ZoneAt(401, 10));
    EXPECT_EQ(0, ZoneAt(400, 20));
}

TEST_F(GridSizeZones, NavigatorEndsTheZones)
{
    Make({ Column(350), Column(80) }, { .style = HGS_COLHEADERS | sizes, .rows = 5 });
    ctl->hNavScroll = ctl->hWnd;
    RECT data;
    HGDataRect(ctl, &data);
    HGGetField(ctl->pData, 0)->nWidth = static_cast<short>(data.right);
    EXPECT_EQ(2, ZoneAt(data.right - 1, 10));
    EXPECT_EQ(0, ZoneAt(data.right, 10));
    EXPECT_EQ(0, ZoneAt(data.right, 40));
    ctl->hNavScroll = nullptr;
}

TEST_F(GridSizeZones, WithoutColumnsTheRowHeadersHaveTheirEdgeOnTheirSideOnly)
{
    Make({}, { .style = headers | sizes, .rows = 0 });
    EXPECT_EQ("1: 34-39; ", AlongX(10));
}

TEST_F(GridSizeZones, SizesOfZeroAreSafe)
{
    Make({ Column(80) }, { .style = HGS_ROWHEADERS | sizes, .rows = 5 });
    ctl->pData->nRowHeight = 0;
    ctl->pData->nHdrHeight = 0;
    ctl->pData->nHdrWidth = 0;
    EXPECT_NE(0, ZoneAt(0, 50));
    EXPECT_EQ(2, ZoneAt(80, 50));
}

} // namespace
