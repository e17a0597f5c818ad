// What stays on the screen when a grid changes without painting all of it: always what a repaint would show.
#include "gridctl/grid_selection_window.h"

namespace {

class GridStalePaint : public GridSelectionPaint {
protected:
    // Count columns of 80, with lines of text to tell them apart.
    void MakeColumns(int count, DWORD style, WORD fixedCols = 0, int rows = 5)
    {
        HGridData* const data = GridOf({}, style, fixedCols);
        for (int col = 0; col < count; ++col) {
            HGAddFld(data, Text(16, std::to_string(col).c_str()));
        }
        MakePainted(data, rows);
        for (int col = 0; col < count; ++col) {
            SetText(col, 0, std::to_string(100 + col).c_str());
        }
        ShotOf(grid);
    }
    void Widen(int width) { SetWindowPos(grid, nullptr, 0, 0, width, 200, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE); }
    void ExpectAsRepainted(const char* when)
    {
        const Pixels shot = ShotOf(grid);
        EXPECT_TRUE(SamePixels(Repaint(), shot)) << when;
    }
};

struct Way {
    const char* what;
    void (*go)(HWND grid);
};

constexpr Way ways[] = {
    { "HGM_SETCURSOR", [](HWND g) { SendMessageA(g, HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(1, 3))); } },
    { "HGM_KEYDOWN", [](HWND g) { SendMessageA(g, HGM_KEYDOWN, VK_DOWN, 0); } },
    { "HGM_GOTORECORD", [](HWND g) { SendMessageA(g, HGM_GOTORECORD, 0, 4); } },
    { "a row", [](HWND g) { SendMessageA(g, HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(-1, 3))); } },
    { "a column", [](HWND g) { SendMessageA(g, HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(1, -1))); } },
};

TEST_F(GridStalePaint, HeadersShowTheCellThatAMoveWithoutTheFocusMakesCurrent)
{
    for (const Way& way : ways) {
        MakeColumns(3, gridStyle);
        SetFocus(grid);
        MoveTo(0, 2);
        SetFocus(parent.hwnd());
        const Pixels before = ShotOf(grid);
        way.go(grid);
        ASSERT_FALSE(Current() == (Cell{ 0, 2 })) << way.what;
        EXPECT_FALSE(SamePixels(before, ShotOf(grid))) << way.what;
        ExpectAsRepainted(way.what);
        DestroyWindow(grid);
    }
}

TEST_F(GridStalePaint, WindowThatGetsWideEnoughForAllShowsEachColumnOnce)
{
    MakeColumns(6, gridStyle);
    Send(grid, HGM_SETHPOS, 10000);
    ShotOf(grid);
    ASSERT_LT(0, +ctl->nHScrollPos);
    Widen(600);
    EXPECT_EQ(0, +ctl->nHScrollPos);
    ExpectAsRepainted("wide");
}

// Ten columns of 80 in 360 pixels, scrolled to the end at 441.
TEST_F(GridStalePaint, ScrolledViewKeepsNoBlankSpaceBesideItsColumns)
{
    MakeColumns(10, gridStyle);
    Send(grid, HGM_SETHPOS, 10000);
    ASSERT_EQ(441, +ctl->nHScrollPos);
    Widen(700);
    EXPECT_EQ(800 - 660 + 1, +ctl->nHScrollPos);
    ExpectAsRepainted("wide");
    Widen(400);
    Send(grid, HGM_SETHPOS, 10000);
    for (int col = 0; col < 4; ++col) {
        HGGetField(ctl->pData, col)->wFlags |= HFF_HIDDEN;
    }
    Send(grid, HGM_REFRESH, 1);
    EXPECT_EQ(480 - 360 + 1, +ctl->nHScrollPos);
    ExpectAsRepainted("hidden columns");
}

TEST_F(GridStalePaint, CellShowsTheSameAfterItsGridIsLockedOrGivenFreeAsAfterARepaint)
{
    struct Case {
        DWORD style;
        DWORD bit;
    };
    constexpr Case cases[] = { { gridStyle, HGS_READONLY },
                               { gridStyle | HGS_KEEPSEL, HGS_READONLY },
                               { gridStyle | HGS_READONLY, HGS_ROWSELECT },
                               { gridStyle | HGS_READONLY | HGS_NOEXTEND, HGS_ROWSELECT },
                               { gridStyle | HGS_READONLY | HGS_ROWSELECT, HGS_NOEXTEND } };
    for (const Case& c : cases) {
        for (const bool lockedFirst : { false, true }) {
            SCOPED_TRACE(testing::Message() << "style " << c.style << ", bit " << c.bit << " " << lockedFirst);
            MakeColumns(3, lockedFirst ? c.style | c.bit : c.style);
            SetFocus(grid);
            MoveTo(1, 1);
            ShotOf(grid);
            Send(grid, HGM_SETSTYLEBITS, !lockedFirst, static_cast<LPARAM>(c.bit));
            ExpectAsRepainted("changed");
            TypeKey(VK_DOWN);
            ExpectAsRepainted("moved");
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridStalePaint, SelectionThatIsKeptOrNotFollowsItsBitWithoutTheFocus)
{
    MakeColumns(3, gridStyle | HGS_READONLY);
    SetFocus(grid);
    MoveTo(1, 1);
    SetFocus(parent.hwnd());
    for (const bool on : { true, false }) {
        ShotOf(grid);
        Send(grid, HGM_SETSTYLEBITS, on, HGS_KEEPSEL);
        ExpectAsRepainted(on ? "kept" : "not kept");
    }
}

TEST_F(GridStalePaint, RecordThatIsGivenFreeWhileTheMoveToItIsToldLeavesNoCellInverted)
{
    for (const int code : { HGN_MOVED, HGN_ROWCHANGED }) {
        for (const int first : { 0, 1 }) {
            SCOPED_TRACE(testing::Message() << "code " << code << ", first " << first);
            MakeColumns(3, gridStyle);
            SetFocus(grid);
            parent.On(code, [&] { Send(grid, HGM_SETSTYLEBITS, Current().row % 2 != first, HGS_READONLY); });
            MoveTo(1, 1);
            ShotOf(grid);
            for (int row = 2; row < 5; ++row) {
                TypeKey(VK_DOWN);
                ExpectAsRepainted("moved");
            }
            parent.On(code, nullptr);
            DestroyWindow(grid);
        }
    }
}

// The range reaches from column 0 to column 2, which is scrolled halfway under the two fixed ones.
TEST_F(GridStalePaint, RangeFromAFixedColumnIsRemovedWholeWhereItsOtherEndIsScrolledUnderThem)
{
    for (const bool columns : { false, true }) {
        for (const WORD fixedCols : { WORD{ 1 }, WORD{ 2 }, WORD{ 3 } }) {
            SCOPED_TRACE(testing::Message() << "whole columns " << columns << ", fixed " << fixedCols);
            MakeColumns(9, gridStyle | HGS_READONLY, fixedCols);
            SetFocus(grid);
            MoveTo(0, columns ? -1 : 1);
            Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(fixedCols, columns ? -1 : 2)));
            Send(grid, HGM_SETHPOS, 120);
            ASSERT_EQ(120, +ctl->nHScrollPos);
            ExpectAsRepainted("scrolled");
            MoveTo(0, 3);
            ExpectAsRepainted("removed");
            DestroyWindow(grid);
        }
    }
}

} // namespace
