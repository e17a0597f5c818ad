// Painting where columns begin or end at the edge of what is invalid, and where bands differ in their fixed columns.
#include "gridctl/grid_paint_window.h"

#include <gtest/gtest.h>

namespace {

class GridPaintEdges : public GridPaintTest {
protected:
    // The whole window holds a colour that no grid paints, then all is painted anew.
    Pixels RepaintOver(COLORREF color)
    {
        {
            const HDC                 hdc = GetDC(grid);
            const OwnedObject<HBRUSH> brush(CreateSolidBrush(color));
            RECT                      client{};
            GetClientRect(grid, &client);
            FillRect(hdc, &client, brush.h);
            ReleaseDC(grid, hdc);
        }
        return Repaint();
    }
};

constexpr COLORREF stray = RGB(200, 0, 200);

TEST_F(GridPaintEdges, ColumnThatBeginsAtTheLastPixelIsPainted)
{
    MakePainted(GridOf({ Text(), Text(), Text(), Text(), Text() }, gridStyle | HGS_READONLY), 5);
    // Column 3 begins at 280, the last pixel across.
    SetWindowPos(grid, nullptr, 0, 0, 281, 200, SWP_NOMOVE | SWP_NOZORDER);
    RECT client{};
    GetClientRect(grid, &client);
    SetWindowPos(grid, nullptr, 0, 0, 281 + 281 - client.right, 200, SWP_NOMOVE | SWP_NOZORDER);
    GetClientRect(grid, &client);
    ASSERT_EQ(281, client.right);
    Repaint();
    Send(grid, HGM_SETHPOS, 10);
    ASSERT_EQ(10, ctl->nHScrollPos);
    const Pixels scrolled = ShotOf(grid);
    EXPECT_TRUE(SamePixels(Repaint(), scrolled));
}

TEST_F(GridPaintEdges, InvalidPartThatEndsOnePixelIntoAColumnIsPaintedWhole)
{
    MakePainted(GridOf({ Text(), Text(), Text() }, gridStyle | HGS_READONLY), 5);
    const Pixels whole = Repaint();
    const RECT   part{ 60, 0, 121, 200 };
    InvalidateRect(grid, &part, TRUE);
    EXPECT_TRUE(SamePixels(whole, ShotOf(grid)));
}

TEST_F(GridPaintEdges, BandsWithFixedColumnsOfDifferentWidthsLeaveNoHoleInTheHeader)
{
    HGridData* const data = GridOf({ Text(16, "Wide"), OnBand(Text(16, "Slim"), 1), Text(16, "A"), OnBand(Text(16, "B"), 1) },
                                   gridStyle | HGS_READONLY, 2);
    HGGetField(data, 0)->nWidth = 100;
    HGGetField(data, 1)->nWidth = 50;
    MakePainted(data, 3);
    Send(grid, HGM_SETBANDS, 1, 2);
    ASSERT_EQ(2, ctl->cBands);
    const Pixels shot = RepaintOver(stray);
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < shot.width; ++x) {
            ASSERT_NE(stray, shot.At(x, y)) << x << ", " << y;
        }
    }
}

} // namespace
