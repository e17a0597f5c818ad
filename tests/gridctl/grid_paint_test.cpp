// How a grid paints: headers and their strips, lines, erasing, invalidation, and that only what is invalid is touched.
#include "gridctl/grid_paint_window.h"

#include "support/gdi_leaks.h"
#include "support/guarded_memory.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

constexpr DWORD strips = HGS_ROWHEADERS | HGS_COLHEADERS;

COLORREF LineColor()
{
    return GetSysColor(COLOR_BTNFACE);
}

// Rows of pixels at x that have the colour of lines.
std::vector<int> LinesAt(const Pixels& shot, int x, int from)
{
    std::vector<int> lines;
    for (int y = from; y < shot.height; ++y) {
        if (shot.At(x, y) == LineColor()) {
            lines.push_back(y);
        }
    }
    return lines;
}

// Cells of a subclassed grid that came to be drawn.
std::vector<RECT> gDrawn;
HWND              gEndDuringDraw;

LRESULT CALLBACK DrawingProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFONT) {
        gDrawn.push_back(reinterpret_cast<const HGDrawItem*>(wParam)->rc);
        if (gEndDuringDraw) {
            DestroyWindow(gEndDuringDraw);
        }
        return 0;
    }
    return HGridWnd(hwnd, message, wParam, lParam);
}

class GridPaint : public GridPaintTest {
protected:
    ~GridPaint() override { gEndDuringDraw = nullptr; }

    HWND MakeDrawn(HGridData* data, int rows)
    {
        MakeHostDrawn(data, rows, DrawingProc);
        gDrawn.clear();
        return grid;
    }
};

} // namespace

TEST_F(GridPaint, DrawsPlainHeadersForOtherColumnsAndTheCorner)
{
    MakePainted(GridOf({ Text(16, "First"), Text(16, "Second") }), 3);
    const Pixels shot = Repaint();
    EXPECT_TRUE(HeaderShows(shot, 1, -1, DPB_HEADER, "Second"));
    EXPECT_TRUE(HeaderShows(shot, -1, -1, DPB_HEADER, nullptr));
    EXPECT_TRUE(HeaderShows(shot, -1, 1, DPB_HEADER, "2"));
}

TEST_F(GridPaint, RaisesTheBoldHeadersOfTheCurrentCell)
{
    MakePainted(GridOf({ Text(16, "First"), Text(16, "Second") }), 3);
    const Pixels shot = Repaint();
    EXPECT_TRUE(HeaderShows(shot, 0, -1, 0, "First", true));
    EXPECT_TRUE(HeaderShows(shot, -1, 0, 0, "1", true));
}

TEST_F(GridPaint, KeepsHeadersOfAWholeColumnOrRowFlat)
{
    MakePainted(GridOf({ Text(16, "First"), Text(16, "Second") }), 3);
    Select({ 0, -1 }, { 0, -1 });
    EXPECT_TRUE(HeaderShows(Repaint(), 0, -1, DPB_HEADER, "First", true));
    Select({ -1, 0 }, { -1, 0 });
    EXPECT_TRUE(HeaderShows(Repaint(), -1, 0, DPB_HEADER, "1", true));
}

TEST_F(GridPaint, DrawsCurrentHeadersOnTheSelectBrushOnlyWithTheFocus)
{
    MakePainted(GridOf({ Text(16, "First", HFF_READONLY), Text(16, "Second") }), 3);
    SetGridSelectColor(RGB(255, 200, 0));
    EXPECT_TRUE(HeaderShows(Repaint(), 0, -1, 0, "First", true));
    SetFocus(grid);
    EXPECT_TRUE(HeaderShows(Repaint(), 0, -1, DPB_SELECTED, "First", true));
    EXPECT_TRUE(HeaderShows(Repaint(), -1, 0, DPB_SELECTED, "1", true));
    SetGridSelectColor(noColor);
    EXPECT_TRUE(HeaderShows(Repaint(), 0, -1, 0, "First", true));
}

TEST_F(GridPaint, MarksTheSortedColumnsByTheirPlaceInStorage)
{
    MakePainted(GridOf({ Text(16, "First"), Text(16, "Second"), Text(16, "Third") }, gridStyle | HGS_COLMAP), 1);
    ctl->nSortCol = 1;
    ctl->nSortCol2 = 2;
    const Pixels shot = Repaint();
    EXPECT_TRUE(HeaderShows(shot, 1, -1, DPB_HEADER | DPB_SORTUP, "Second"));
    EXPECT_TRUE(HeaderShows(shot, 2, -1, DPB_HEADER | DPB_SORTDOWN, "Third"));
    HGMoveFld(ctl->pData, 1, 2);
    EXPECT_TRUE(HeaderShows(Repaint(), 2, -1, DPB_HEADER | DPB_SORTUP, "Second"));
}

TEST_F(GridPaint, BracketsTitlesOfReadOnlyColumnsInOlderGrids)
{
    HGridData* const data = GridOf({ Text(16, "First"), Text(16, "Fixed", HFF_READONLY) });
    data->wVersion = 18505;
    MakePainted(data, 1);
    EXPECT_TRUE(HeaderShows(Repaint(), 1, -1, DPB_HEADER, "( Fixed )"));
    EXPECT_TRUE(HeaderShows(Repaint(), 0, -1, 0, "First", true));
    ctl->pData->wVersion = 18506;
    EXPECT_TRUE(HeaderShows(Repaint(), 1, -1, DPB_HEADER, "Fixed"));
}

TEST_F(GridPaint, DrawsAColumnWithoutATitle)
{
    MakePainted(GridOf({ Text(16, "First"), Text(16, nullptr), Text(16, nullptr, HFF_READONLY) }), 1);
    EXPECT_TRUE(HeaderShows(Repaint(), 1, -1, DPB_HEADER, nullptr));
    ctl->pData->wVersion = 18505;
    EXPECT_TRUE(HeaderShows(Repaint(), 2, -1, DPB_HEADER, "(  )"));
}

TEST_F(GridPaint, CutsATitleThatIsLongerThanAFaceShows)
{
    const std::string title(600, 'i');
    HGridData* const  data = GridOf({ Text(16, "First"), Text(16, title.c_str(), HFF_READONLY) });
    data->wVersion = 18505;
    MakePainted(data, 1);
    EXPECT_TRUE(HeaderShows(Repaint(), 1, -1, DPB_HEADER, ("( " + title.substr(0, 253)).c_str()));
}

TEST_F(GridPaint, ShowsAStarForTheNewRowUntilItIsDirty)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    SetRowFlags(2, HGR_NEW);
    EXPECT_TRUE(HeaderShows(Repaint(), -1, 2, DPB_HEADER, "*"));
    SetRowFlags(2, HGR_NEW | HGR_DIRTY);
    EXPECT_TRUE(HeaderShows(Repaint(), -1, 2, DPB_HEADER, "3"));
}

TEST_F(GridPaint, ShowsTheStarInTheLastRowOnly)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    SetRowFlags(1, HGR_NEW);
    EXPECT_TRUE(HeaderShows(Repaint(), -1, 1, DPB_HEADER, "2"));
}

TEST_F(GridPaint, CountsRowNumbersFromTheRowBase)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    ctl->lRowBase = 99;
    const Pixels shot = Repaint();
    EXPECT_TRUE(HeaderShows(shot, -1, 1, DPB_HEADER, "101"));
    EXPECT_TRUE(HeaderShows(shot, -1, 2, DPB_HEADER, "102"));
}

TEST_F(GridPaint, FillsTheHeaderStripBehindTheLastColumn)
{
    MakePainted(GridOf({ Text(), Text() }), 2);
    const Pixels shot = Repaint();
    const RECT   rest{ 200, 0, shot.width, 20 };
    EXPECT_TRUE(shot.IsAll(GetSysColor(COLOR_BTNHIGHLIGHT), { rest.left, 0, rest.right, 1 }));
    EXPECT_TRUE(shot.IsAll(GetSysColor(COLOR_BTNHIGHLIGHT), { rest.left, 0, rest.left + 1, 19 }));
    EXPECT_TRUE(shot.IsAll(GetSysColor(COLOR_BTNSHADOW), { rest.left, 19, rest.right, 20 }));
    EXPECT_TRUE(shot.IsAll(LineColor(), { rest.left + 1, 1, rest.right, 19 }));
}

TEST_F(GridPaint, FillsTheHeaderStripWithTheLibrarysFaceBrush)
{
    MakePainted(GridOf({ Text(), Text() }), 2);
    SetGridBckgndColor(RGB(10, 200, 30), noColor);
    const Pixels shot = Repaint();
    EXPECT_TRUE(shot.IsAll(RGB(10, 200, 30), { 201, 1, shot.width, 19 }));
}

TEST_F(GridPaint, FillsTheRowHeaderStripBelowTheLastRow)
{
    MakePainted(GridOf({ Text(), Text() }), 2);
    const Pixels shot = Repaint();
    EXPECT_TRUE(shot.IsAll(GetSysColor(COLOR_BTNHIGHLIGHT), { 0, 60, 1, shot.height }));
    EXPECT_TRUE(shot.IsAll(GetSysColor(COLOR_BTNSHADOW), { 39, 60, 40, shot.height }));
    EXPECT_TRUE(shot.IsAll(LineColor(), { 1, 61, 39, shot.height }));
}

TEST_F(GridPaint, LeavesNothingUnpaintedWithoutColumnsOrRows)
{
    for (const DWORD style : { DWORD{ strips }, DWORD{ HGS_COLHEADERS }, DWORD{ HGS_ROWHEADERS }, DWORD{ 0 } }) {
        SCOPED_TRACE(style);
        MakePainted(GridOf({}, style), 0);
        const HDC    hdc = GetDC(grid);
        const RECT   all{ 0, 0, 1000, 1000 };
        const HBRUSH red = CreateSolidBrush(RGB(255, 0, 0));
        FillRect(hdc, &all, red);
        DeleteObject(red);
        ReleaseDC(grid, hdc);
        const Pixels shot = Repaint();
        EXPECT_EQ(shot.Count(RGB(255, 0, 0), shot.Bounds()), 0);
        DestroyWindow(grid);
    }
}

TEST_F(GridPaint, DrawsALineBelowEachRowAndRightOfEachColumn)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    const Pixels shot = Repaint();
    for (int row = 0; row < 3; ++row) {
        const RECT area = CellArea(0, row);
        EXPECT_TRUE(shot.IsAll(LineColor(), { area.left, area.bottom - 1, 200, area.bottom }));
        EXPECT_TRUE(shot.IsAll(LineColor(), { area.right - 1, area.top, area.right, area.bottom }));
        EXPECT_TRUE(shot.IsAll(GetSysColor(COLOR_WINDOW), CellInside(1, row)));
    }
}

TEST_F(GridPaint, DrawsNoLinesUnderTheStyleAndCellsKeepTheirFullSize)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_NOLINES), 3);
    const Pixels shot = Repaint();
    EXPECT_TRUE(shot.IsAll(GetSysColor(COLOR_WINDOW), { 40, 20, 200, 80 }));
}

TEST_F(GridPaint, DrawsLinesInTheFaceColorOnFaceBackgrounds)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_FACEBACK), 2);
    SetGridBckgndColor(RGB(10, 200, 30), noColor);
    EXPECT_TRUE(Repaint().IsAll(RGB(10, 200, 30), { 40, 20, 200, 60 }));
    SetGridBckgndColor(noColor, noColor);
    EXPECT_EQ(Repaint().At(60, 39), LineColor());
}

TEST_F(GridPaint, CountsTheLinesOfBandsFromTheTopRow)
{
    HGridData* const data = GridOf({ Text(), OnBand(Text(), 1) });
    MakePainted(data, 8);
    Send(grid, HGM_SETBANDS, 0, 2);
    Send(grid, HGM_REFRESH, 1);
    const std::vector<int> all{ 59, 79, 99, 119, 139, 159, 179, 199 };
    EXPECT_EQ(LinesAt(Repaint(), 60, 40), all);
    // Two records of two lines are left below the top row, and four lines stand under them.
    ctl->nTopRow = 6;
    const Pixels shot = Repaint();
    for (const int y : { 59, 79, 99, 119 }) {
        EXPECT_TRUE(shot.IsAll(LineColor(), { 40, y, 119, y + 1 }));
    }
}

TEST_F(GridPaint, GivesEachCellOfABandItsOwnRightEdge)
{
    HGField* const narrow = OnBand(Text(), 1);
    narrow->nWidth = 50;
    MakePainted(GridOf({ Text(), narrow }), 2);
    Send(grid, HGM_SETBANDS, 0, 2);
    Send(grid, HGM_REFRESH, 1);
    const Pixels shot = Repaint();
    EXPECT_TRUE(shot.IsAll(LineColor(), { 119, 40, 120, 59 }));
    EXPECT_TRUE(shot.IsAll(LineColor(), { 89, 60, 90, 79 }));
    EXPECT_EQ(shot.At(89, 50), GetSysColor(COLOR_WINDOW));
}

TEST_F(GridPaint, PutsTheHeadersOfBandsUnderEachOther)
{
    MakePainted(GridOf({ Text(16, "Above"), OnBand(Text(16, "Below"), 1) }), 2);
    Send(grid, HGM_SETBANDS, 0, 2);
    Send(grid, HGM_REFRESH, 1);
    const Pixels shot = Repaint();
    EXPECT_TRUE(SamePixels(HeaderFace({ 40, 20, 120, 40 }, DPB_HEADER, "Below"), PartOf(shot, { 40, 20, 120, 40 })));
    EXPECT_TRUE(SamePixels(HeaderFace({ 0, 0, 40, 40 }, DPB_HEADER, nullptr), PartOf(shot, { 0, 0, 40, 40 })));
    // The rest of each strip
    EXPECT_EQ(shot.At(130, 0), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(shot.At(130, 20), GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(shot.At(130, 39), GetSysColor(COLOR_BTNSHADOW));
}

TEST_F(GridPaint, ErasesWithTheGridsBrushOrTheLibrarysOrTheSystems)
{
    MakePainted(GridOf({ Text(), Text() }), 2);
    const RECT outside{ 200, 60, 380, 180 };
    EXPECT_TRUE(Repaint().IsAll(GetSysColor(COLOR_BTNFACE), outside));
    SetGridBckgndColor(RGB(10, 200, 30), noColor);
    EXPECT_TRUE(Repaint().IsAll(RGB(10, 200, 30), outside));
    const OwnedObject<HBRUSH> own(CreateSolidBrush(RGB(1, 2, 3)));
    ctl->hBkBrush = own.h;
    EXPECT_TRUE(Repaint().IsAll(RGB(1, 2, 3), outside));
    ctl->hBkBrush = nullptr;
}

TEST_F(GridPaint, ErasesNoHeaders)
{
    MakePainted(GridOf({ Text(), Text() }), 2);
    RECT client{};
    GetClientRect(grid, &client);
    Canvas canvas(client.right, client.bottom);
    canvas.Fill(RGB(255, 0, 0));
    EXPECT_EQ(Send(grid, WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.hdc())), 1);
    const Pixels shot = canvas.Shot();
    EXPECT_TRUE(shot.IsAll(RGB(255, 0, 0), { 0, 0, 40, client.bottom }));
    EXPECT_TRUE(shot.IsAll(RGB(255, 0, 0), { 0, 0, client.right, 20 }));
    EXPECT_TRUE(shot.IsAll(GetSysColor(COLOR_BTNFACE), { 40, 20, client.right, client.bottom }));
}

TEST_F(GridPaint, PutsTheBrushBackOnlyAfterTheGridsOwn)
{
    MakePainted(GridOf({ Text() }), 2);
    const Canvas              canvas(10, 10);
    const OwnedObject<HBRUSH> own(CreateSolidBrush(RGB(1, 2, 3)));
    const HGDIOBJ             before = GetCurrentObject(canvas.hdc(), OBJ_BRUSH);
    ctl->hBkBrush = own.h;
    HGEraseBackground(ctl, canvas.hdc());
    EXPECT_EQ(GetCurrentObject(canvas.hdc(), OBJ_BRUSH), before);
    ctl->hBkBrush = nullptr;
    HGEraseBackground(ctl, canvas.hdc());
    EXPECT_EQ(GetCurrentObject(canvas.hdc(), OBJ_BRUSH), GetSysColorBrush(COLOR_BTNFACE));
    SelectObject(canvas.hdc(), before);
}

TEST_F(GridPaint, KeepsFixedColumnsAtTheLeftAndClipsTheOthersBehindThem)
{
    HGridData* const data = GridOf({ Text(16, "Fixed"), Text(16, "A"), Text(16, "B"), Text(16, "C"), Text(16, "D"),
                                     Text(16, "E") }, gridStyle, 1);
    MakePainted(data, 3);
    HGSetCellText(grid, 0, 1, "still");
    HGSetCellText(grid, 1, 1, "moves away");
    const Pixels before = Repaint();
    Send(grid, HGM_SETHPOS, 30);
    ASSERT_EQ(ctl->nHScrollPos, 30);
    const Pixels after = Repaint();
    EXPECT_TRUE(SamePixels(before, after, { 0, 0, 120, after.height }));
    const RECT shifted{ 120, 0, 200, 80 };
    EXPECT_TRUE(SamePixels(PartOf(before, { 150, 0, 230, 80 }), PartOf(after, shifted)));
}

TEST_F(GridPaint, ShowsTheSameAfterScrollingAsAfterARepaint)
{
    HGridData* const data = GridOf({ Text(16, "Fixed"), Text(16, "A"), Number("B"), Text(16, "C"), Text(16, "D"),
                                     Date("E") }, gridStyle | HGS_READONLY, 1);
    MakePainted(data, 30);
    for (int row = 0; row < 30; ++row) {
        HGSetCellText(grid, 1, row, std::to_string(row * 37).c_str());
    }
    SetFocus(grid);
    Repaint();
    for (const int step : { 30, 10, 55, 0, 80, 140, 3 }) {
        SCOPED_TRACE(step);
        Send(grid, HGM_SETHPOS, static_cast<WPARAM>(step));
        Send(grid, HGM_SETTOPRECORD, static_cast<WPARAM>(step % 17));
        const Pixels scrolled = ShotOf(grid);
        EXPECT_TRUE(SamePixels(Repaint(), scrolled));
    }
}

TEST_F(GridPaint, DrawsOnlyCellsThatAreInvalid)
{
    MakeDrawn(GridOf({ Drawn(), Drawn(), Drawn() }), 5);
    HGridInvalidateCell(grid, 1, 2);
    UpdateWindow(grid);
    ASSERT_EQ(gDrawn.size(), 1U);
    const RECT expected = CellInside(1, 2);
    EXPECT_TRUE(EqualRect(&gDrawn[0], &expected));
}

TEST_F(GridPaint, DrawsEachVisibleCellOnce)
{
    MakeDrawn(GridOf({ Drawn(), Drawn(), Hidden(Drawn()), Drawn() }, gridStyle, 1), 5);
    InvalidateRect(grid, nullptr, TRUE);
    UpdateWindow(grid);
    EXPECT_EQ(gDrawn.size(), 15U);
}

TEST_F(GridPaint, DrawsOneRowAfterAScrollByOne)
{
    MakeDrawn(GridOf({ Drawn(), Drawn() }), 30);
    RECT client{};
    GetClientRect(grid, &client);
    Send(grid, HGM_SETTOPRECORD, 1);
    UpdateWindow(grid);
    EXPECT_LE(gDrawn.size(), 4U); // the new row, and what was cut at the lower edge
    EXPECT_GE(gDrawn.size(), 2U);
}

TEST_F(GridPaint, StopsWhenTheWindowGoesWhileACellIsDrawn)
{
    MakeDrawn(GridOf({ Drawn(), Drawn() }), 5);
    gEndDuringDraw = grid;
    InvalidateRect(grid, nullptr, TRUE);
    UpdateWindow(grid);
    EXPECT_EQ(gDrawn.size(), 1U);
    EXPECT_FALSE(IsWindow(grid));
}

TEST_F(GridPaint, KeepsNoGdiObjectsAndAllocatesNothing)
{
    MakePainted(GridOf({ Text(), Number(), Date() }, gridStyle | HGS_STRIPED | HGS_READONLY), 20);
    SetFocus(grid);
    Repaint();
    const GdiLeakCheck check;
    const int          allocations = AllocationCount();
    for (int i = 0; i < 20; ++i) {
        InvalidateRect(grid, nullptr, TRUE);
        UpdateWindow(grid);
    }
    EXPECT_EQ(AllocationCount(), allocations);
}

TEST_F(GridPaint, DrawsNothingForBadCells)
{
    MakePainted(GridOf({ Text(), Text() }), 2);
    const Canvas canvas(400, 200);
    EXPECT_EQ(HGDrawCell(ctl, nullptr, 0, 0), 0);
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), 2, 0), 0);
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), 2, -1), 0);
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), 0, 2), 0);
    EXPECT_TRUE(canvas.Shot().IsAll(white, { 0, 0, 400, 200 }));
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), 0, 1), 1);
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), 1, -1), 1);
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), -1, 1), 1);
}

TEST_F(GridPaint, DrawsAnEmptyHeaderForARowPastTheEnd)
{
    MakePainted(GridOf({ Text(), Text() }), 2);
    const Canvas canvas(400, 200);
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), -1, 2), 1);
    EXPECT_TRUE(HeaderShows(canvas.Shot(), -1, 2, DPB_HEADER, ""));
}

TEST_F(GridPaint, DrawsNoHeadersThatTheGridLacks)
{
    MakePainted(GridOf({ Text(), Text() }, WS_VSCROLL), 2);
    const Canvas canvas(400, 200);
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), 0, -1), 1);
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), -1, 0), 1);
    EXPECT_EQ(HGDrawCell(ctl, canvas.hdc(), -1, -1), 1);
    EXPECT_TRUE(canvas.Shot().IsAll(white, { 0, 0, 400, 200 }));
}

TEST_F(GridPaint, InvalidatesOneCellWithoutErasing)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    for (const Cell cell : { Cell{ 1, 2 }, Cell{ -1, 1 }, Cell{ 1, -1 }, Cell{ -1, -1 } }) {
        ShotOf(grid);
        EXPECT_EQ(HGridInvalidateCell(grid, cell.col, cell.row), 1);
        RECT       update{};
        const RECT expected = cell.col < 0 || cell.row < 0 ? CellArea(cell.col, cell.row) : CellInside(1, 2);
        GetUpdateRect(grid, &update, FALSE);
        EXPECT_TRUE(EqualRect(&update, &expected));
    }
}

TEST_F(GridPaint, InvalidatesNothingForACellOutOfView)
{
    MakePainted(GridOf({ Text(), Hidden(Text()) }), 30);
    ShotOf(grid);
    EXPECT_EQ(HGridInvalidateCell(grid, 0, 25), 1);
    EXPECT_EQ(HGridInvalidateCell(grid, 1, 0), 1);
    EXPECT_FALSE(IsInvalid());
}

TEST_F(GridPaint, TakesCellNumbersAsSixteenBits)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    ShotOf(grid);
    HGridInvalidateCell(grid, 0x10001, 0x10002);
    RECT       update{};
    const RECT expected = CellInside(1, 2);
    GetUpdateRect(grid, &update, FALSE);
    EXPECT_TRUE(EqualRect(&update, &expected));
}

TEST_F(GridPaint, InvalidatesARangeOfCells)
{
    MakePainted(GridOf({ Text(), Text(), Text() }), 5);
    ShotOf(grid);
    EXPECT_EQ(HGridInvalidateRange(grid, 2, 3, 1, 1), 1);
    RECT       update{};
    const RECT expected{ 120, 40, 279, 99 };
    GetUpdateRect(grid, &update, FALSE);
    EXPECT_TRUE(EqualRect(&update, &expected));
}

TEST_F(GridPaint, InvalidatesEverythingForTheWholeRange)
{
    MakePainted(GridOf({ Text(), Text() }), 5);
    ShotOf(grid);
    EXPECT_EQ(HGridInvalidateRange(grid, -1, -1, -1, -1), 1);
    RECT update{};
    RECT client{};
    GetUpdateRect(grid, &update, FALSE);
    GetClientRect(grid, &client);
    EXPECT_TRUE(EqualRect(&update, &client));
}

TEST_F(GridPaint, AnswersOneForAWindowThatIsNoGrid)
{
    EXPECT_EQ(HGridInvalidateCell(nullptr, 0, 0), 1);
    EXPECT_EQ(HGridInvalidateRange(nullptr, 0, 0, 0, 0), 1);
}
