// Grids at one and a half times the usual resolution: cells of checks show the larger images, sizes of a definition
// grow, and what the mouse catches stays as it is.
#include "gridctl/grid_mouse.h"

#include "support/larger_images.h"
#include "support/pixels.h"

namespace {

constexpr int imageSide = LargerImages::side;

class GridAt144Dpi : public GridMouse {
protected:
    ~GridAt144Dpi() override
    {
        if (IsWindow(grid)) {
            DestroyWindow(grid);
        }
    }

private:
    LargerImages images_;
};

TEST_F(GridAt144Dpi, ChecksShowTheImagesOfTwentyByTwenty)
{
    HGField* const check = HGFieldCreate("Check", 0, 80, 0, 'b', 'l', 0, 0, 0, 'k', 0, "", 0);
    MakeGrid(GridOf({ check, Text() }, plainStyle | HGS_NOLINES), 3);
    Send(grid, HGM_SETROWHEIGHT, 40, 1);
    constexpr LONG yes = 1;
    HGSetCellData(grid, 0, 1, &yes);
    MoveTo(1, 2);
    const Pixels shot = ShotOf(grid);
    Pixels       cells[2];
    for (int row = 0; row < 2; ++row) {
        RECT cell;
        HGCellRect(ctl, &cell, 0, row, false);
        const COLORREF background = shot.At(cell.left + 3, cell.top + 3);
        const RECT     ink = shot.InkBounds(background, cell);
        EXPECT_LE(ink.right - ink.left, imageSide) << row;
        EXPECT_LT(13, ink.right - ink.left) << row << ": larger than at 96 dpi";
        EXPECT_NEAR((cell.left + cell.right) / 2, (ink.left + ink.right) / 2, 1) << row;
        EXPECT_NEAR((cell.top + cell.bottom) / 2, (ink.top + ink.bottom) / 2, 1) << row;
        for (LONG y = ink.top; y < ink.bottom; ++y) {
            for (LONG x = ink.left; x < ink.right; ++x) {
                cells[row].colors.push_back(shot.At(x, y));
            }
        }
    }
    EXPECT_NE(cells[0].colors, cells[1].colors);
}

TEST_F(GridAt144Dpi, EdgesAreCaughtAndDraggedByPixels)
{
    MakeCells(plainStyle | HGS_COLSIZE | HGS_ROWSIZE);
    const int width = WidthOf(1);
    RECT      column;
    HGColumnRect(ctl, &column, 1, -1);
    MoveMouse(grid, column.right, 10);
    EXPECT_EQ(3, gSizeZone);
    PressButton(grid, column.right, 10);
    MoveMouse(grid, column.right + 15, 10);
    ReleaseButton(grid, column.right + 15, 10);
    EXPECT_EQ(width + 15, WidthOf(1));
    EXPECT_EQ(1, parent.Count(HGN_WIDTHCHANGED));
}

} // namespace
