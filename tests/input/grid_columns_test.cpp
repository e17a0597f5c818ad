// Sizes and columns dragged by the real mouse, and the line that shows on the screen where they will end.
#include "input/input_grid.h"

#include "input/hand.h"
#include "support/pixels.h"

namespace {

constexpr DWORD    sizes = HGS_ROWSIZE | HGS_COLSIZE;
constexpr COLORREF white = 0x00FFFFFF;

// A picture with its colours turned round within areas.
Pixels Inverted(Pixels shot, const RECT& area)
{
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            shot.colors[static_cast<size_t>(y * shot.width + x)] ^= white;
        }
    }
    return shot;
}

bool IsSame(const Pixels& a, const Pixels& b)
{
    return a.colors == b.colors;
}

class GridColumns : public InputGrid {
protected:
    ~GridColumns() override { MoveMouse(parent.hwnd(), 0, 0); }
    void MakeCells(DWORD style = headers | sizes)
    {
        Make({ textColumn, textColumn, textColumn, textColumn, textColumn }, 30, style);
        const char* const texts[] = { "A", "B", "C", "D", "E" };
        for (int col = 0; col < 5; ++col) {
            SetText(col, 0, texts[col]);
        }
        UpdateWindow(grid);
        PumpPending();
    }
    // Lines come to the screen when the system likes.
    testing::AssertionResult ScreenShows(const Pixels& expected)
    {
        Pixels     shot;
        const bool shows = PumpUntil([&] { return IsSame(expected, shot = ScreenShotOf(grid)); });
        return shows ? testing::AssertionSuccess() : SamePixels(expected, shot);
    }
    testing::AssertionResult ScreenIsClean()
    {
        const Pixels now = ScreenShotOf(grid);
        InvalidateRect(grid, nullptr, TRUE);
        const Pixels repainted = ShotOf(grid);
        return SamePixels(repainted, now);
    }
    // Drags in two steps; the line has to stand where the mouse is, and nothing else may change.
    void DragAndLook(POINT from, POINT to, bool upright)
    {
        const Pixels before = ShotOf(grid);
        ASSERT_TRUE(ScreenShows(before));
        MoveMouse(grid, from.x, from.y);
        PressButton(grid, from.x, from.y);
        const POINT half = { (from.x + to.x) / 2, (from.y + to.y) / 2 };
        for (const POINT at : { half, to }) {
            MoveMouse(grid, at.x, at.y);
            const RECT line =
                upright ? RECT{ at.x, 0, at.x + 1, before.height } : RECT{ 0, at.y, before.width, at.y + 1 };
            EXPECT_TRUE(ScreenShows(Inverted(before, line))) << "at " << at.x << ", " << at.y;
        }
        ReleaseButton(grid, to.x, to.y);
        UpdateWindow(grid);
        PumpPending();
        EXPECT_TRUE(ScreenIsClean());
        EXPECT_EQ(nullptr, GetCapture());
    }
    LRESULT     WidthOf(int col) { return Send(grid, HGM_GETFIELDWIDTH, static_cast<WPARAM>(col)); }
    std::string Bands() const
    {
        std::string bands;
        for (int col = 0; col < columnCount; ++col) {
            const LRESULT pos = Send(grid, HGM_COLTOPOS, static_cast<WPARAM>(col));
            bands += std::to_string(Send(grid, HGM_GETFIELDBAND, static_cast<WPARAM>(pos)));
        }
        return bands;
    }
    std::string FirstRow() const
    {
        std::string texts;
        for (int col = 0; col < columnCount; ++col) {
            texts += Text(col, 0);
        }
        return texts;
    }
    // Drags the selected columns, with the line at x on the screen before they are let go.
    void DragColumnsAndLook(CellAt from, POINT to, int x)
    {
        const Pixels before = ShotOf(grid);
        const Pixels expected = Inverted(before, { x - 1, 0, x + 2, before.height });
        Pixels       shot;
        POINT        target = to;
        ClientToScreen(grid, &target);
        const auto isShown = [&] { return IsSame(expected, shot = ScreenShotOf(grid)); };
        Hand       hand([this] { return (Send(grid, HGM_GETFLAGS) & HGC_COLDRAG) != 0; },
                  [&] {
                      Hand::MoveTo(target);
                      Hand::WaitFor(isShown);
                      Hand::Lift(target, withShift);
                  });
        Press(from, withShift); // comes back when the drag is over
        EXPECT_TRUE(PumpUntil([&] { return hand.IsDone(); }));
        EXPECT_TRUE(hand.HeldInTime());
        EXPECT_TRUE(SamePixels(expected, shot)) << "while the columns are dragged";
        UpdateWindow(grid);
        PumpPending();
        EXPECT_TRUE(ScreenIsClean());
    }
};

TEST_F(GridColumns, EdgeOfAColumnIsDraggedAlongALine)
{
    MakeCells();
    Click({ 2, 3 });
    DragAndLook({ 200, 8 }, { 250, 12 }, true); // across the editor that stands by
    EXPECT_EQ(80, WidthOf(0));
    EXPECT_EQ(130, WidthOf(1));
    EXPECT_EQ(80, WidthOf(2));
    EXPECT_EQ(1, parent.Count(HGN_WIDTHCHANGED));
    EXPECT_EQ((CellAt{ 2, 3 }), Current());
}

TEST_F(GridColumns, EdgeOfTheRowHeadersIsDraggedAlongALine)
{
    MakeCells();
    DragAndLook({ 40, 8 }, { 70, 8 }, true);
    EXPECT_EQ(70, Send(grid, HGM_GETROWHDRWIDTH));
    EXPECT_EQ(1, parent.Count(HGN_WIDTHCHANGED));
}

TEST_F(GridColumns, EdgeOfARowIsDraggedAlongALine)
{
    MakeCells();
    Click({ 2, 3 });
    DragAndLook({ 20, 80 }, { 20, 92 }, false);
    EXPECT_EQ(33, Send(grid, HGM_GETROWHEIGHT));
    EXPECT_EQ(20, Send(grid, HGM_GETHEADERHEIGHT));
    EXPECT_EQ(1, parent.Count(HGN_HEIGHTCHANGED));
    EXPECT_EQ((CellAt{ 2, 3 }), Current());
}

TEST_F(GridColumns, EdgeOfTheHeaderIsDraggedAlongALine)
{
    MakeCells();
    DragAndLook({ 20, 20 }, { 24, 36 }, false);
    EXPECT_EQ(36, Send(grid, HGM_GETHEADERHEIGHT));
    EXPECT_EQ(20, Send(grid, HGM_GETROWHEIGHT));
    EXPECT_EQ(1, parent.Count(HGN_HEIGHTCHANGED));
}

TEST_F(GridColumns, SelectedColumnsTakeTheWidthTogether)
{
    MakeCells();
    Click({ 1, -1 });
    Click({ 2, -1 }, withShift);
    DragAndLook({ 200, 8 }, { 180, 8 }, true);
    EXPECT_EQ(80, WidthOf(0));
    EXPECT_EQ(60, WidthOf(1));
    EXPECT_EQ(60, WidthOf(2));
    EXPECT_EQ(80, WidthOf(3));
}

TEST_F(GridColumns, WithoutTheStylesEdgesAreNotDragged)
{
    MakeCells(headers);
    for (const POINT edge : { POINT{ 200, 8 }, POINT{ 20, 80 }, POINT{ 20, 20 } }) {
        PressButton(grid, edge.x, edge.y);
        MoveMouse(grid, edge.x + 15, edge.y + 5);
        ReleaseButton(grid, edge.x + 15, edge.y + 5);
    }
    EXPECT_EQ(80, WidthOf(1));
    EXPECT_EQ(20, Send(grid, HGM_GETROWHEIGHT));
    EXPECT_EQ(20, Send(grid, HGM_GETHEADERHEIGHT));
}

TEST_F(GridColumns, BlockOfColumnsIsDraggedToTheRight)
{
    MakeCells(headers | HGS_COLMAP);
    Click({ 1, -1 });
    Click({ 2, -1 }, withShift);
    DragColumnsAndLook({ 1, -1 }, MiddleOf({ 3, -1 }), 40 + 4 * 80);
    EXPECT_EQ("ADBCE", FirstRow());
    EXPECT_EQ((CellAt{ 2, -1 }), Anchor());
    EXPECT_EQ((CellAt{ 3, -1 }), Current());
    EXPECT_EQ(1, parent.Count(HGN_COLSMOVED));
}

TEST_F(GridColumns, BlockOfColumnsIsDraggedToTheLeft)
{
    MakeCells(headers | HGS_COLMAP);
    Click({ 2, -1 });
    Click({ 3, -1 }, withShift);
    DragColumnsAndLook({ 3, -1 }, MiddleOf({ 1, -1 }), 40 + 80);
    EXPECT_EQ("ACDBE", FirstRow());
    EXPECT_EQ((CellAt{ 1, -1 }), Anchor());
    EXPECT_EQ((CellAt{ 2, -1 }), Current());
}

TEST_F(GridColumns, DraggedColumnGoesToTheBandWhereItIsDropped)
{
    MakeCells(headers | HGS_COLMAP);
    Send(grid, HGM_SETBANDS, 0, 2);
    for (const WPARAM col : { 3u, 4u }) {
        Send(grid, HGM_SETFIELDBAND, col, 1);
    }
    Send(grid, HGM_REFRESH, 1);
    Click({ 1, -1 });
    // The second band has columns 3 and 4, at 40 and 120; the line stands at the right edge of the first.
    DragColumnsAndLook({ 1, -1 }, { 80, 30 }, 40 + 80);
    EXPECT_EQ("ACDBE", FirstRow());
    EXPECT_EQ("00111", Bands());
}

} // namespace
