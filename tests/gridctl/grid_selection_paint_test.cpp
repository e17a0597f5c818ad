// The selection over the cells: what is inverted, how it is framed, and that it follows each change exactly.
#include "gridctl/grid_selection_window.h"

#include <gtest/gtest.h>

TEST_F(GridSelectionPaint, InvertsNothingForOneCellOfAnEditableColumn)
{
    MakeSelectable(keepStyle);
    Select({ 0, 1 }, { 0, 1 });
    const Pixels plain = Plain();
    EXPECT_TRUE(SamePixels(plain, Repaint()));
}

TEST_F(GridSelectionPaint, InvertsOneCellOfAReadOnlyColumn)
{
    MakeSelectable(keepStyle);
    Select({ 1, 1 }, { 1, 1 });
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsInverted(plain, shot, CellInside(1, 1)));
    EXPECT_TRUE(IsPlain(plain, shot, CellArea(0, 1)));
    EXPECT_TRUE(IsPlain(plain, shot, CellArea(1, 2)));
    EXPECT_TRUE(IsPlain(plain, shot, CellArea(2, 1)));
}

TEST_F(GridSelectionPaint, InvertsOneCellOfAReadOnlyGrid)
{
    MakeSelectable(readOnlyStyle);
    Select({ 0, 1 }, { 0, 1 });
    const Pixels plain = Plain();
    EXPECT_TRUE(IsInverted(plain, Repaint(), CellInside(0, 1)));
}

TEST_F(GridSelectionPaint, FramesACellThatTheHostDraws)
{
    MakeSelectable(readOnlyStyle);
    Select({ 3, 1 }, { 3, 1 });
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    const RECT   cell = CellInside(3, 1);
    RECT         middle = cell;
    InflateRect(&middle, -2, -2);
    EXPECT_TRUE(IsPlain(plain, shot, middle));
    EXPECT_TRUE(IsInverted(plain, shot, { cell.left, cell.top, cell.right, cell.top + 2 }));
    EXPECT_TRUE(IsInverted(plain, shot, { cell.left, cell.bottom - 2, cell.right, cell.bottom }));
    EXPECT_TRUE(IsInverted(plain, shot, { cell.left, cell.top, cell.left + 2, cell.bottom }));
    EXPECT_TRUE(IsInverted(plain, shot, { cell.right - 2, cell.top, cell.right, cell.bottom }));
}

TEST_F(GridSelectionPaint, InvertsAHostsCellWithoutAFrameBelowFivePixels)
{
    MakeSelectable(readOnlyStyle);
    Send(grid, HGM_SETROWHEIGHT, 5, 1); // a cell of four pixels and its line
    Select({ 3, 1 }, { 3, 1 });
    Pixels plain = Plain();
    EXPECT_TRUE(IsInverted(plain, Repaint(), { 280, 25, 359, 29 }));
    Send(grid, HGM_SETROWHEIGHT, 6, 1);
    Select({ 3, 1 }, { 3, 1 });
    plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsInverted(plain, shot, { 280, 26, 359, 28 }));
    EXPECT_TRUE(IsPlain(plain, shot, { 282, 28, 357, 29 }));
}

TEST_F(GridSelectionPaint, InvertsAHostsCellWithoutAFrameInAColumnBelowFivePixels)
{
    MakeHostDrawn(GridOf({ Text(), Drawn("Narrow", 5) }, readOnlyStyle), 3, SilentProc);
    Select({ 1, 1 }, { 1, 1 });
    const Pixels plain = Plain();
    EXPECT_TRUE(IsInverted(plain, Repaint(), { 120, 40, 124, 59 }));
}

TEST_F(GridSelectionPaint, InvertsARangeOfCellsWithTheLinesBetweenThem)
{
    MakeSelectable(keepStyle);
    Select({ 2, 3 }, { 0, 1 });
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsInverted(plain, shot, { 40, 40, 279, 99 }));
    EXPECT_TRUE(IsPlain(plain, shot, CellArea(0, 0)));
    EXPECT_TRUE(IsPlain(plain, shot, CellArea(0, 4)));
}

TEST_F(GridSelectionPaint, InvertsAColumnWithItsHeaderDownToTheLastRow)
{
    MakeSelectable(keepStyle);
    Select({ 1, -1 }, { 1, -1 });
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsInverted(plain, shot, { 120, 0, 200, 120 }));
    EXPECT_TRUE(IsPlain(plain, shot, { 120, 120, 200, shot.height }));
}

TEST_F(GridSelectionPaint, InvertsARowWithItsHeaderToTheLastColumn)
{
    MakeSelectable(keepStyle);
    Select({ -1, 2 }, { -1, 2 });
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsInverted(plain, shot, { 0, 60, 360, 80 }));
    EXPECT_TRUE(IsPlain(plain, shot, { 360, 60, shot.width, 80 }));
}

TEST_F(GridSelectionPaint, InvertsEverythingForTheCorner)
{
    MakeSelectable(readOnlyStyle);
    Select({ -1, -1 }, { -1, -1 });
    const Pixels plain = Plain();
    EXPECT_TRUE(IsInverted(plain, Repaint(), plain.Bounds()));
}

TEST_F(GridSelectionPaint, InvertsOnlyTheLinesOfABandForItsColumn)
{
    MakePainted(GridOf({ Text(), OnBand(Text(), 1), OnBand(Text(), 2) }, readOnlyStyle), 2);
    Send(grid, HGM_SETBANDS, 0, 3);
    Send(grid, HGM_REFRESH, 1);
    Select({ 1, -1 }, { 1, -1 });
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsPlain(plain, shot, { 40, 0, 120, 20 }));
    EXPECT_TRUE(IsInverted(plain, shot, { 40, 20, 120, 40 }));
    EXPECT_TRUE(IsPlain(plain, shot, { 40, 40, 120, 80 }));
    EXPECT_TRUE(IsInverted(plain, shot, { 40, 80, 120, 100 }));
    EXPECT_TRUE(IsPlain(plain, shot, { 40, 100, 120, 140 }));
    EXPECT_TRUE(IsInverted(plain, shot, { 40, 140, 120, 160 }));
    EXPECT_TRUE(IsPlain(plain, shot, { 40, 160, 120, 180 }));
}

TEST_F(GridSelectionPaint, InvertsOnlyTheLinesOfABandWithoutAHeaderToo)
{
    MakePainted(GridOf({ Text(), OnBand(Text(), 1) }, WS_VSCROLL | HGS_KEEPSEL | HGS_READONLY), 2);
    Send(grid, HGM_SETBANDS, 0, 2);
    Send(grid, HGM_REFRESH, 1);
    Select({ 1, -1 }, { 1, -1 });
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsPlain(plain, shot, { 1, 0, 80, 20 }));
    EXPECT_TRUE(IsInverted(plain, shot, { 1, 20, 80, 40 }));
    EXPECT_TRUE(IsPlain(plain, shot, { 1, 40, 80, 60 }));
    EXPECT_TRUE(IsInverted(plain, shot, { 1, 60, 80, 80 }));
}

TEST_F(GridSelectionPaint, ShowsWithTheFocusOrTheStyleAndOnceACellIsCurrent)
{
    MakeSelectable(gridStyle | HGS_READONLY);
    Select({ 0, 1 }, { 0, 1 });
    const Pixels plain = Plain();
    EXPECT_TRUE(IsPlain(plain, Repaint(), CellInside(0, 1)));
    SetFocus(grid);
    Select({ 0, 1 }, { 0, 1 });
    EXPECT_TRUE(IsInverted(plain, Repaint(), CellInside(0, 1)));
    SetFlag(ctl, HGC_CELLSHOWN, false);
    EXPECT_TRUE(IsPlain(plain, Repaint(), CellInside(0, 1)));
}

TEST_F(GridSelectionPaint, InvertsTheSelectedRowsOfAMultipleSelection)
{
    MakeSelectable(readOnlyStyle | HGS_ROWSELECT);
    for (const int row : { 2, 4 }) {
        SetRowFlags(row, HGR_SELECTED);
    }
    Select({ -1, 2 }, { -1, 2 });
    ctl->wFlags = static_cast<WORD>(ctl->wFlags | HGC_SELECTING);
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    for (int row = 0; row < 5; ++row) {
        SCOPED_TRACE(row);
        const RECT line{ 0, 20 + 20 * row, 360, 40 + 20 * row };
        if (HGIsRowSelected(ctl, row)) {
            EXPECT_TRUE(IsInverted(plain, shot, line));
        } else {
            EXPECT_TRUE(IsPlain(plain, shot, line));
        }
    }
    EXPECT_TRUE(HGIsRowSelected(ctl, 2));
    EXPECT_TRUE(HGIsRowSelected(ctl, 4));
    EXPECT_FALSE(HGIsRowSelected(ctl, 3));
}

TEST_F(GridSelectionPaint, InvertsRowsThatAreSelectedBesideARangeFromTheFirstRow)
{
    MakeSelectable(readOnlyStyle | HGS_ROWSELECT);
    SetRowFlags(4, HGR_SELECTED);
    Select({ -1, 0 }, { -1, 1 });
    const Pixels plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsInverted(plain, shot, { 0, 20, 360, 60 }));
    EXPECT_TRUE(IsPlain(plain, shot, { 0, 60, 360, 100 }));
    EXPECT_TRUE(IsInverted(plain, shot, { 0, 100, 360, 120 }));
}

TEST_F(GridSelectionPaint, MovesFromTheOldCellToTheNewOneWithoutAPaint)
{
    MakeSelectable(readOnlyStyle);
    Select({ 0, 1 }, { 0, 1 });
    Repaint();
    const DWORD old = PackCell(0, 1);
    ctl->nAnchorCol = 2;
    ctl->nAnchorRow = 3;
    ctl->nCurCol = 2;
    ctl->nCurRow = 3;
    {
        const WindowDC window(grid);
        HGDrawSelection(ctl, window.hdc, &old, &old);
    }
    const Pixels moved = ShotOf(grid);
    EXPECT_TRUE(SamePixels(Repaint(), moved));
}

TEST_F(GridSelectionPaint, RemovesNothingWhileNoCellWasShown)
{
    MakeSelectable(readOnlyStyle);
    Select({ 0, 1 }, { 0, 1 });
    SetFlag(ctl, HGC_CELLSHOWN, false);
    const Pixels plain = Repaint();
    const DWORD  old = PackCell(2, 2);
    {
        const WindowDC window(grid);
        HGDrawSelection(ctl, window.hdc, &old, &old);
    }
    const Pixels shot = ShotOf(grid);
    EXPECT_TRUE(IsPlain(plain, shot, CellArea(2, 2)));
    EXPECT_TRUE(IsInverted(plain, shot, CellInside(0, 1)));
}

TEST_F(GridSelectionPaint, DrawsAllColumnHeadersWithoutAnOldCell)
{
    MakeSelectable(readOnlyStyle);
    Select({ 0, 1 }, { 0, 1 });
    Repaint();
    HGGetField(ctl->pData, 2)->pszTitle[0] = 'N'; // "Next"
    {
        const WindowDC window(grid);
        HGDrawSelection(ctl, window.hdc, nullptr, nullptr);
    }
    EXPECT_TRUE(HeaderShows(ShotOf(grid), 2, -1, DPB_HEADER, "Next"));
}

TEST_F(GridSelectionPaint, DrawsNothingWithoutRows)
{
    MakeSelectable(readOnlyStyle, 0);
    const Pixels   before = Repaint();
    const DWORD    old = PackCell(0, 0);
    const WindowDC window(grid);
    HGDrawSelection(ctl, window.hdc, &old, &old);
    EXPECT_TRUE(SamePixels(before, ShotOf(grid)));
}

TEST_F(GridSelectionPaint, PutsTheClipBack)
{
    MakePainted(GridOf({ Text(), OnBand(Text(), 1) }, readOnlyStyle), 3);
    Send(grid, HGM_SETBANDS, 0, 2);
    const WindowDC window(grid);
    RECT           before{};
    RECT           after{};
    const DWORD    old = PackCell(1, -1);
    Select({ 0, -1 }, { 0, -1 });
    GetClipBox(window.hdc, &before);
    const int kind = GetClipBox(window.hdc, &before);
    HGDrawSelection(ctl, window.hdc, &old, &old);
    EXPECT_EQ(GetClipBox(window.hdc, &after), kind);
    EXPECT_TRUE(EqualRect(&before, &after));
}

TEST_F(GridSelectionPaint, ShowsTheSameAfterMovesAsAfterARepaint)
{
    MakePainted(GridOf({ Text(), Text(), Number(), Text(), Text(), Date() }, gridStyle | HGS_READONLY, 1), 30);
    SetFocus(grid);
    Repaint();
    constexpr WORD keys[] = { VK_DOWN, VK_RIGHT, VK_RIGHT, VK_NEXT, VK_LEFT, VK_RIGHT, VK_RIGHT, VK_RIGHT,
                              VK_RIGHT, VK_UP,   VK_PRIOR, VK_HOME, VK_DOWN, VK_END,   VK_LEFT };
    for (const unsigned modifier : { withNone, withShift }) {
        for (const WORD key : keys) {
            SCOPED_TRACE(key);
            TypeKey(key, modifier);
            const Pixels moved = ShotOf(grid);
            EXPECT_TRUE(SamePixels(Repaint(), moved));
        }
    }
}

TEST_F(GridSelectionPaint, ShowsScatteredRowsTheSameAfterClicksAsAfterARepaint)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_READONLY | HGS_ROWSELECT), 30);
    SetFocus(grid);
    Repaint();
    struct Step {
        int      row; // -1: the key Down
        unsigned modifiers;
    };
    constexpr Step steps[] = { { 2, withNone }, { 4, withCtrl }, { 4, withCtrl }, { -1, withNone },
                               { 6, withCtrl }, { 3, withCtrl }, { 6, withCtrl | withShift }, { 5, withNone },
                               { 1, withShift }, { 7, withCtrl }, { 3, withCtrl | withShift }, { -1, withShift },
                               { 2, withCtrl }, { 0, withNone }, { 4, withShift }, { 3, withNone } };
    for (const Step& step : steps) {
        SCOPED_TRACE(std::to_string(step.row) + " with " + std::to_string(step.modifiers));
        if (step.row < 0) {
            TypeKey(VK_DOWN, step.modifiers);
        } else {
            ClickAt(grid, 60, 30 + 20 * step.row, step.modifiers);
        }
        UpdateWindow(grid);
        const Pixels moved = ShotOf(grid);
        EXPECT_TRUE(SamePixels(Repaint(), moved));
    }
}

TEST_F(GridSelectionPaint, ShowsExactlyTheRowsThatAreSelectedOneByOne)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_READONLY | HGS_ROWSELECT), 8);
    SetFocus(grid);
    const Pixels plain = Plain();
    ClickAt(grid, 60, 70);
    ClickAt(grid, 60, 110, withCtrl);
    ClickAt(grid, 60, 150, withCtrl);
    UpdateWindow(grid);
    const Pixels shot = ShotOf(grid);
    for (int row = 0; row < 8; ++row) {
        const bool selected = row == 2 || row == 4 || row == 6;
        EXPECT_EQ(selected, IsInverted(plain, shot, CellInside(1, row))) << "row " << row;
        EXPECT_EQ(!selected, IsPlain(plain, shot, CellInside(1, row))) << "row " << row;
    }
}

TEST_F(GridSelectionPaint, ShowsExactlyTheRowsThatAreSelectedWhereARangeEndsAtTheFirstOne)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_READONLY | HGS_ROWSELECT), 8);
    SetFocus(grid);
    const Pixels plain = Plain();
    struct Step {
        int         row; // -1: a key
        unsigned    modifiers;
        WORD        key;
        const char* selected;
    };
    constexpr Step steps[] = {
        { 2, withNone, 0, "00100000" }, { 5, withCtrl, 0, "00100100" },        { 0, withCtrl, 0, "10100100" },
        { 5, withCtrl, 0, "10100000" }, { 5, withCtrl, 0, "10100100" },        { 0, withCtrl, 0, "00100100" },
        { 3, withCtrl, 0, "00110100" }, { -1, withCtrl, VK_HOME, "10100100" }, { -1, withNone, VK_DOWN, "01100100" },
        { 0, withNone, 0, "10000000" }, { 2, withShift, 0, "11100000" },
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(testing::Message() << "step " << &step - steps);
        if (step.row < 0) {
            TypeKey(step.key, step.modifiers);
        } else {
            ClickAt(grid, 60, 30 + 20 * step.row, step.modifiers);
        }
        const Pixels shot = ShotOf(grid);
        std::string  selected;
        for (int row = 0; row < 8; ++row) {
            const bool inverted = static_cast<bool>(IsInverted(plain, shot, CellInside(1, row)));
            EXPECT_NE(inverted, static_cast<bool>(SamePixels(plain, shot, CellInside(1, row)))) << "row " << row;
            EXPECT_EQ(inverted, HGIsRowSelected(ctl, row)) << "row " << row;
            selected += inverted ? '1' : '0';
        }
        EXPECT_EQ(step.selected, selected);
        EXPECT_TRUE(SamePixels(Repaint(), shot));
    }
}

TEST_F(GridSelectionPaint, ShowsInFixedColumnsAndEndsAtTheirEdge)
{
    MakePainted(GridOf({ Text(), Text(), Text(), Text(), Text(), Text() }, readOnlyStyle, 1), 4);
    Send(grid, HGM_SETHPOS, 30);
    Select({ 0, 1 }, { 0, 1 });
    Pixels plain = Plain();
    EXPECT_TRUE(IsInverted(plain, Repaint(), CellInside(0, 1)));
    // A cell of the scrolling zone is inverted where it shows, right of the fixed column.
    Select({ 1, 1 }, { 1, 1 });
    plain = Plain();
    const Pixels shot = Repaint();
    EXPECT_TRUE(IsPlain(plain, shot, CellArea(0, 1)));
    EXPECT_TRUE(IsInverted(plain, shot, { 120, 40, 169, 59 }));
}

TEST_F(GridSelectionPaint, TellsOneCellFromARange)
{
    MakeSelectable(keepStyle);
    RECT rect{};
    EXPECT_EQ(HGSelectionRect(ctl, &rect, PackCell(1, 2), PackCell(1, 2), nullptr), 0);
    EXPECT_EQ(HGSelectionRect(ctl, &rect, PackCell(1, 2), PackCell(1, 3), nullptr), 1);
    EXPECT_EQ(HGSelectionRect(ctl, &rect, PackCell(1, -1), PackCell(1, -1), nullptr), 1);
    EXPECT_EQ(HGSelectionRect(ctl, &rect, PackCell(-1, 1), PackCell(-1, 1), nullptr), 1);
    EXPECT_EQ(HGSelectionRect(ctl, &rect, PackCell(-1, -1), PackCell(-1, -1), nullptr), 1);
}

TEST_F(GridSelectionPaint, BoundsARangeByTheDataRectangle)
{
    MakeSelectable(keepStyle, 30);
    RECT data{};
    HGDataRect(ctl, &data);
    const RECT range = SelectionRect({ 0, 0 }, { 3, 29 });
    EXPECT_EQ(range.left, data.left);
    EXPECT_EQ(range.top, data.top);
    EXPECT_EQ(range.bottom, data.bottom);
}

TEST_F(GridSelectionPaint, InvertsTwiceToWhatWasThere)
{
    MakeSelectable(keepStyle);
    const Canvas canvas(400, 200);
    const RECT   rect{ 60, 30, 150, 90 };
    HGInvertRect(ctl, canvas.hdc(), &rect);
    EXPECT_TRUE(canvas.Shot().IsAll(black, rect));
    HGInvertRect(ctl, canvas.hdc(), &rect);
    EXPECT_TRUE(canvas.Shot().IsAll(white, { 0, 0, 400, 200 }));
}

TEST_F(GridSelectionPaint, InvertsNothingLeftOfTheScrollingZoneUnlessItBeginsAtTheEdge)
{
    MakeSelectable(keepStyle);
    Canvas canvas(400, 200);
    const RECT inside{ 10, 30, 150, 90 };
    HGInvertRect(ctl, canvas.hdc(), &inside);
    EXPECT_TRUE(canvas.Shot().IsAll(white, { 0, 0, 40, 200 }));
    EXPECT_TRUE(canvas.Shot().IsAll(black, { 40, 30, 150, 90 }));
    canvas.Fill(white);
    const RECT wholeRow{ 0, 30, 150, 90 };
    HGInvertRect(ctl, canvas.hdc(), &wholeRow);
    EXPECT_TRUE(canvas.Shot().IsAll(black, wholeRow));
}

TEST_F(GridSelectionPaint, InvalidatesTheRangeWhenItIsToBeRedrawn)
{
    MakeSelectable(keepStyle);
    ShotOf(grid);
    Select({ 0, 1 }, { 2, 3 });
    HGRedrawSelection(ctl);
    RECT       update{};
    const RECT expected{ 40, 40, 279, 99 };
    GetUpdateRect(grid, &update, FALSE);
    EXPECT_TRUE(EqualRect(&update, &expected));
}

TEST_F(GridSelectionPaint, InvalidatesTheSelectedRowsWhenTheyAreToBeRedrawn)
{
    MakeSelectable(readOnlyStyle | HGS_ROWSELECT);
    ShotOf(grid);
    SetRowFlags(4, HGR_SELECTED);
    Select({ -1, 2 }, { -1, 2 });
    ctl->wFlags = static_cast<WORD>(ctl->wFlags | HGC_SELECTING);
    HGRedrawSelection(ctl);
    const OwnedObject<HRGN> region(CreateRectRgn(0, 0, 0, 0));
    GetUpdateRgn(grid, region.h, FALSE);
    EXPECT_FALSE(PtInRegion(region.h, 50, 30));
    EXPECT_FALSE(PtInRegion(region.h, 50, 90));
    EXPECT_TRUE(PtInRegion(region.h, 50, 110));
}

TEST_F(GridSelectionPaint, InvalidatesTheSelectedRowsBesideTheFirstOneToo)
{
    MakeSelectable(readOnlyStyle | HGS_ROWSELECT);
    ShotOf(grid);
    SetRowFlags(3, HGR_SELECTED);
    Select({ -1, 0 }, { -1, 0 });
    HGRedrawSelection(ctl);
    const OwnedObject<HRGN> region(CreateRectRgn(0, 0, 0, 0));
    GetUpdateRgn(grid, region.h, FALSE);
    EXPECT_TRUE(PtInRegion(region.h, 50, 30));
    EXPECT_FALSE(PtInRegion(region.h, 50, 70));
    EXPECT_TRUE(PtInRegion(region.h, 50, 90));
}
