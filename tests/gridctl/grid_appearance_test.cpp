// The appearance that all grids share.
#include "gridctl/grid_window.h"

#include "foundation/screen.h"
#include "foundation/startup.h"
#include "support/pixels.h"

namespace {

constexpr COLORREF none = 0xFFFFFFFF;

COLORREF ColorOf(HBRUSH brush)
{
    LOGBRUSH info = {};
    return GetObjectA(brush, sizeof info, &info) ? info.lbColor : CLR_INVALID;
}

class GridAppearance : public GridWindow {
protected:
    void TearDown() override
    {
        SetGridBckgndColors(none, none, none);
        SetGridSelectColor(none);
        SetGridDrawPartFnc(nullptr);
    }
};

TEST_F(GridAppearance, ColoursBecomeBrushes)
{
    SetGridBckgndColors(RGB(1, 2, 3), RGB(4, 5, 6), RGB(7, 8, 9));
    EXPECT_EQ(RGB(1, 2, 3), ColorOf(hFaceBrush));
    EXPECT_EQ(RGB(1, 2, 3), crFace);
    EXPECT_EQ(RGB(4, 5, 6), ColorOf(hSecondBrush));
    EXPECT_EQ(RGB(7, 8, 9), ColorOf(hThirdBrush));
}

TEST_F(GridAppearance, NoColourDeletesTheBrushAndKeepsTheColourWord)
{
    SetGridBckgndColor(RGB(1, 2, 3), RGB(4, 5, 6));
    const HBRUSH face = hFaceBrush;
    SetGridBckgndColor(none, none);
    EXPECT_EQ(nullptr, hFaceBrush);
    EXPECT_EQ(nullptr, hSecondBrush);
    EXPECT_EQ(none, crFace);
    EXPECT_EQ(CLR_INVALID, ColorOf(face));
}

TEST_F(GridAppearance, BrushesThatAreReplacedAreDeleted)
{
    SetGridBckgndColors(RGB(1, 2, 3), RGB(4, 5, 6), RGB(7, 8, 9));
    SetGridSelectColor(RGB(10, 11, 12));
    const HBRUSH old[] = { hFaceBrush, hSecondBrush, hThirdBrush, hSelectBrush };
    SetGridBckgndColors(RGB(13, 14, 15), RGB(16, 17, 18), RGB(19, 20, 21));
    SetGridSelectColor(RGB(22, 23, 24));
    const HBRUSH now[] = { hFaceBrush, hSecondBrush, hThirdBrush, hSelectBrush };
    for (size_t i = 0; i < std::size(old); ++i) {
        EXPECT_TRUE(ColorOf(old[i]) == CLR_INVALID || old[i] == now[i]) << i;
        EXPECT_EQ(RGB(13 + 3 * i, 14 + 3 * i, 15 + 3 * i), ColorOf(now[i])) << i;
    }
    SetGridSelectColor(none);
    EXPECT_EQ(CLR_INVALID, ColorOf(now[3]));
}

TEST_F(GridAppearance, ThirdBrushStaysWhenTheFirstTwoAreSet)
{
    SetGridBckgndColors(RGB(1, 2, 3), RGB(4, 5, 6), RGB(7, 8, 9));
    SetGridBckgndColor(none, none);
    EXPECT_EQ(RGB(7, 8, 9), ColorOf(hThirdBrush));
}

// The face of the current column's header, away from its text and its edges.
COLORREF HeaderFace(HWND grid)
{
    InvalidateRect(grid, nullptr, TRUE);
    return ShotOf(grid).At(40 + 8, 4);
}

TEST_F(GridAppearance, SelectBrushShowsInTheCurrentHeadersAndGoesAgain)
{
    MakeGrid(GridOf({ Text(16, ""), Text(16, "") }), 3);
    SetFocus(grid);
    MoveTo(0, 1);
    const COLORREF raised = HeaderFace(grid);
    SetGridSelectColor(RGB(10, 200, 30));
    EXPECT_EQ(RGB(10, 200, 30), HeaderFace(grid));
    SetGridSelectColor(none);
    EXPECT_EQ(raised, HeaderFace(grid));
}

TEST_F(GridAppearance, ResolutionIsReadAgainAfterAChange)
{
    const int kept = nDpiX;
    nDpiX = 144;
    EXPECT_EQ(60, ScaleX(40));
    SetGridAppDPIChanged();
    EXPECT_EQ(0, fDpiRead);
    EXPECT_EQ(MulDiv(40, kept, 96), ScaleX(40));
}

int CALLBACK Painter(int, HDC, RECT*, int, int, int)
{
    return 0;
}

TEST_F(GridAppearance, SettersKeepWhatTheyAreGiven)
{
    EXPECT_EQ(1, SetGridDrawPartFnc(Painter));
    EXPECT_EQ(&Painter, pfnDrawPart);
    const HBRUSH brush = CreateSolidBrush(0);
    EXPECT_EQ(1, SetBkgndFocusBrush(brush));
    EXPECT_EQ(brush, hFocusBrush);
    SetBkgndFocusBrush(nullptr);
    DeleteObject(brush);
    SetGridAppDPIScaling(0);
    EXPECT_EQ(0, fDpiScaling);
    SetGridAppDPIScaling(1);
}

} // namespace
