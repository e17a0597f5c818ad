// Painting where columns begin or end at the edge of what is invalid, and where bands differ in their fixed columns.
#include "gridctl/grid_paint_window.h"

#include <gtest/gtest.h>

namespace {

class GridPaintEdges : public GridPaintTest {
protected:
    // The whole window holds a colour that no grid paints, then all is painted anew.
    Pixels RepaintOver(COLORREF color)
    {
        RECT client{};
        GetClientRect(grid, &client);
        return RepaintPartOver(color, client);
    }
    Pixels RepaintPartOver(COLORREF color, const RECT& part)
    {
        {
            const HDC                 hdc = GetDC(grid);
            const OwnedObject<HBRUSH> brush(CreateSolidBrush(color));
            FillRect(hdc, &part, brush.h);
            ReleaseDC(grid, hdc);
        }
        InvalidateRect(grid, &part, TRUE);
        return ShotOf(grid);
    }
    void SetBands(int count)
    {
        Send(grid, HGM_SETBANDS, 1, count);
        Send(grid, HGM_REFRESH, 1);
        ShotOf(grid);
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

TEST_F(GridPaintEdges, ColumnInALowerBandThanTheOneBehindItIsPainted)
{
    for (const LONG left : { 0, 40 }) {
        SCOPED_TRACE(left);
        const DWORD style = HGS_COLHEADERS | HGS_READONLY | (left > 0 ? HGS_ROWHEADERS : 0);
        MakePainted(GridOf({ OnBand(Text(16, "Low"), 1), Text(16, "High") }, style), 3);
        SetText(0, 1, "text");
        SetBands(2);
        const Pixels shot = RepaintOver(stray);
        const RECT   header{ left, 20, left + 80, 40 };
        EXPECT_TRUE(SamePixels(HeaderFace(header, 0, "Low", true), PartOf(shot, header)));
        for (const int y : { 60, 100, 140 }) {
            EXPECT_EQ(GetSysColor(COLOR_WINDOW), shot.At(left + 1, y)) << "line at " << y;
        }
        EXPECT_LT(0, shot.Count(GetSysColor(COLOR_WINDOWTEXT), { left, 100, left + 79, 119 }));
        // What changes one cell paints that alone.
        SetText(0, 2, "more");
        const Pixels changed = ShotOf(grid);
        EXPECT_TRUE(SamePixels(Repaint(), changed));
        DestroyWindow(grid);
    }
}

TEST_F(GridPaintEdges, NewTitleShowsAboveABandWithoutColumns)
{
    for (const signed char band : { static_cast<signed char>(0), static_cast<signed char>(1) }) {
        SCOPED_TRACE(+band);
        MakePainted(GridOf({ Text(), OnBand(Text(), band) }, gridStyle | HGS_READONLY), 3);
        SetBands(3);
        const Pixels before = ShotOf(grid);
        SendPtr(grid, HGM_SETFIELDTITLE, 1, "WWW");
        const Pixels shot = ShotOf(grid);
        EXPECT_FALSE(SamePixels(before, shot));
        EXPECT_TRUE(SamePixels(Repaint(), shot));
        DestroyWindow(grid);
    }
}

TEST_F(GridPaintEdges, EachPartOfBandsInAnyOrderIsPaintedAsTheWhole)
{
    constexpr RECT parts[] = { { 0, 0, 400, 10 },    { 0, 0, 400, 20 },   { 0, 20, 400, 40 },   { 0, 10, 60, 50 },
                               { 60, 0, 100, 200 },  { 50, 5, 51, 15 },   { 121, 0, 200, 20 },  { 121, 20, 200, 40 },
                               { 120, 0, 400, 200 }, { 60, 40, 130, 60 }, { 60, 70, 130, 110 }, { 150, 25, 190, 200 } };
    for (unsigned order = 0; order < 16; ++order) {
        for (const WORD fixedCols : { WORD{ 0 }, WORD{ 1 } }) {
            HGridData* const data = GridOf({}, gridStyle | HGS_READONLY, fixedCols);
            for (unsigned col = 0; col < 4; ++col) {
                HGAddFld(data, OnBand(Text(), static_cast<signed char>(order >> col & 1)));
                HGGetField(data, static_cast<int>(col))->nWidth = static_cast<short>(80 + 10 * col);
            }
            MakePainted(data, 3);
            SetBands(2);
            const Pixels whole = RepaintOver(stray);
            EXPECT_EQ(0, whole.Count(stray, whole.Bounds()));
            for (const RECT& part : parts) {
                EXPECT_TRUE(SamePixels(whole, RepaintPartOver(stray, part)))
                    << "order " << order << ", fixed " << fixedCols << ", part " << &part - parts;
            }
            DestroyWindow(grid);
        }
    }
}

} // namespace
