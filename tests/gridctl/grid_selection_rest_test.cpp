// What a selection leaves on the screen where no cell is painted over it: background, headers, gaps beside narrow
// bands.
#include "gridctl/grid_selection_window.h"
#include "support/import_hook.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace {

class GridSelectionRest : public GridSelectionPaint {};

// A screen of 256 colours.
int WINAPI FewColors(HDC, int)
{
    return 8;
}

HWND gPaintedOnce;

// Takes all rows but the first away while a cell is drawn, once.
LRESULT CALLBACK DeletingProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFONT && std::exchange(gPaintedOnce, nullptr) == hwnd) {
        for (int row = 4; row > 0; --row) {
            SendMessageA(hwnd, HGM_DELETEROW, static_cast<WPARAM>(row), 0);
        }
    }
    return message == WM_SETFONT ? 0 : HGridWnd(hwnd, message, wParam, lParam);
}

} // namespace

// 5 rows leave background below them, two columns right of them.
TEST_F(GridSelectionRest, LeavesNoBackgroundInvertedWhenARowFollowsTheCorner)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_READONLY | HGS_ROWSELECT), 5);
    SetFocus(grid);
    ClickAt(grid, 60, 70);
    UpdateWindow(grid);
    const Pixels rowShot = ShotOf(grid);
    ClickAt(grid, 10, 10);
    UpdateWindow(grid);
    ASSERT_TRUE(IsCorner(Current()));
    EXPECT_TRUE(IsInverted(rowShot, ShotOf(grid), { 0, 130, 300, 180 }));
    ClickAt(grid, 60, 70);
    UpdateWindow(grid);
    EXPECT_TRUE(SamePixels(rowShot, ShotOf(grid)));
    ClickAt(grid, 10, 10);
    UpdateWindow(grid);
    const Pixels corner = ShotOf(grid);
    EXPECT_TRUE(SamePixels(Repaint(), corner));
}

TEST_F(GridSelectionRest, ShowsTheCornerInvertedWithTheFocusAndPlainWithoutIt)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_READONLY), 5);
    SetFocus(grid);
    ClickAt(grid, 10, 10);
    ASSERT_TRUE(IsCorner(Current()));
    for (const HWND focus : { parent.hwnd(), grid, parent.hwnd() }) {
        SetFocus(focus);
        UpdateWindow(grid);
        const Pixels shot = ShotOf(grid);
        EXPECT_TRUE(SamePixels(Repaint(), shot)) << (focus == grid ? "with" : "without") << " the focus";
    }
}

TEST_F(GridSelectionRest, ShowsTheCornerTheSameAfterARefreshWithoutErasing)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_READONLY), 5);
    SetFocus(grid);
    ClickAt(grid, 10, 10);
    UpdateWindow(grid);
    const Pixels before = ShotOf(grid);
    Send(grid, HGM_REFRESH);
    EXPECT_TRUE(SamePixels(before, ShotOf(grid)));
}

TEST_F(GridSelectionRest, LeavesNoBackgroundInvertedWhenTheParentMovesOnFromTheCorner)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_READONLY), 5);
    SetFocus(grid);
    ClickAt(grid, 60, 70);
    UpdateWindow(grid);
    const Pixels before = ShotOf(grid);
    parent.On(HGN_MOVED, [&] {
        parent.On(HGN_MOVED, nullptr);
        MoveTo(0, 2);
    });
    ClickAt(grid, 10, 10);
    UpdateWindow(grid);
    EXPECT_CELL(0, 2);
    EXPECT_TRUE(SamePixels(before, ShotOf(grid)));
}

// The first band is 160 wide, the second 80: a row's selection is as wide as the first.
class GridSelectionBands : public GridSelectionPaint {
protected:
    void MakeBands(DWORD style, WORD fixedCols = 0)
    {
        MakePainted(GridOf({ Text(), Text(), OnBand(Text(), 1) }, gridStyle | HGS_READONLY | style, fixedCols), 4);
        Send(grid, HGM_SETBANDS, 0, 2);
        Send(grid, HGM_REFRESH, 1);
        SetFocus(grid);
        Repaint();
    }
    void ExpectSameAfterRepaint(const char* when)
    {
        UpdateWindow(grid);
        const Pixels shot = ShotOf(grid);
        EXPECT_TRUE(SamePixels(Repaint(), shot)) << when;
    }
};

TEST_F(GridSelectionBands, ShowTheSameBehindANarrowBandAsAfterARepaint)
{
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HGS_ROWSELECT }, DWORD{ HGS_NOLINES } }) {
        for (const WORD fixedCols : { WORD{ 0 }, WORD{ 1 } }) {
            SCOPED_TRACE(std::to_string(style) + " with fixed columns: " + std::to_string(fixedCols));
            MakeBands(style, fixedCols);
            ClickAt(grid, 10, 90);
            EXPECT_EQ(-1, Current().col);
            ExpectSameAfterRepaint("row selected");
            SetFocus(parent.hwnd());
            ExpectSameAfterRepaint("focus lost");
            SetFocus(grid);
            ExpectSameAfterRepaint("focus back");
            ClickAt(grid, 10, 130);
            ExpectSameAfterRepaint("next row selected");
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridSelectionRest, KeepsTheRowHeaderWhereACellUnderItLosesTheSelection)
{
    MakePainted(GridOf({ Text(), Text(), Text(), Text(), Text(), Text() }, gridStyle | HGS_READONLY), 4);
    SetFocus(grid);
    MoveTo(0, 1);
    const RECT   header{ 0, 40, 40, 60 };
    const Pixels before = PartOf(ShotOf(grid), header);
    Send(grid, HGM_SETHPOS, 60);
    EXPECT_TRUE(SamePixels(before, PartOf(Repaint(), header)));
    TypeKey(VK_RIGHT);
    ASSERT_EQ(60, +ctl->nHScrollPos);
    UpdateWindow(grid);
    EXPECT_TRUE(SamePixels(before, PartOf(ShotOf(grid), header)));
}

TEST_F(GridSelectionRest, KeepsTheFixedColumnWhereARangeBeginsUnderIt)
{
    MakePainted(GridOf({ Text(), Text(), Text(), Text(), Text(), Text() }, WS_HSCROLL | HGS_KEEPSEL | HGS_READONLY, 1),
                4);
    Send(grid, HGM_SETHPOS, 90);
    Select({ 1, 1 }, { 3, 2 });
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsPlain(plain, shot, { 0, 0, 80, 80 }));
    EXPECT_TRUE(IsInverted(plain, shot, { 80, 20, 229, 59 }));
}

TEST_F(GridSelectionRest, ShowsHeadersAndSelectionWhereTheHostDeletesRowsWhileItDrawsACell)
{
    MakeHostDrawn(GridOf({ Drawn(), Text() }, readOnlyStyle), 5, DeletingProc);
    Select({ -1, 0 }, { -1, 0 });
    const RECT   line{ 0, 20, 200, 40 };
    const Pixels before = PartOf(Repaint(), line);
    HGInvertRow(ctl, nullptr, 0);
    gPaintedOnce = grid;
    const Pixels after = Repaint();
    EXPECT_EQ(1, HGRowCount(ctl->pData));
    EXPECT_TRUE(SamePixels(before, PartOf(after, line)));
}

TEST_F(GridSelectionRest, InvertsARowOfTheWindowItselfWithoutADeviceContext)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle), 5);
    const Pixels plain = Repaint();
    HGInvertRow(ctl, nullptr, 2);
    const Pixels shot = ShotOf(grid);
    EXPECT_TRUE(IsInverted(plain, shot, { 0, 60, 200, 80 }));
    EXPECT_TRUE(IsPlain(plain, shot, { 0, 80, 200, 120 }));
}

TEST_F(GridSelectionRest, InvertsByLinesOfTheShadowColorWhereColorsAreFew)
{
    constexpr COLORREF shadow = RGB(0x30, 0x60, 0x90);
    const SystemColor  color(COLOR_BTNSHADOW, shadow);
    MakeSelectable(keepStyle);
    const ImportHook hook("GetDeviceCaps", FewColors);
    const Canvas     canvas(200, 100);
    const RECT       rect{ 60, 30, 150, 90 };
    HGInvertRect(ctl, canvas.hdc(), &rect);
    EXPECT_TRUE(canvas.Shot().IsAll(white ^ shadow, rect));
    EXPECT_EQ(90 * 60, canvas.Shot().Count(white ^ shadow, { 0, 0, 200, 100 }));
    HGInvertRect(ctl, canvas.hdc(), &rect);
    EXPECT_TRUE(canvas.Shot().IsAll(white, { 0, 0, 200, 100 }));
}
