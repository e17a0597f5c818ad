// One data cell: background and text colour by flags and styles, alignment, and the cells that the host draws.
#include "gridctl/grid_paint_window.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF faceColor = RGB(10, 20, 30);
constexpr COLORREF secondColor = RGB(40, 50, 60);
constexpr COLORREF thirdColor = RGB(70, 80, 90);

struct TextColorCase {
    WORD     flags;
    COLORREF color;
};

constexpr TextColorCase textColors[] = {
    { 0x0000, black },      { 0x0010, 0x000000FF },          { 0x0020, 0x00A00000 },
    { 0x0040, 0x00008000 }, { 0x0200, 0x00969696 },          { 0x0010 | 0x0020 | 0x0040 | 0x0200, 0x000000FF },
    { 0x0020 | 0x0040 | 0x0200, 0x00A00000 }, { 0x0040 | 0x0200, 0x00008000 },
};

// What a cell of kind q was handed.
struct HostDrawing {
    int         count;
    std::string name;
    std::string value;
    bool        isNull;
    RECT        rc;
    COLORREF    color;
    COLORREF    background; // at the cell's corner, before the host draws
};
HostDrawing gHost;

LRESULT CALLBACK HostProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_SETFONT) {
        return HGridWnd(hwnd, message, wParam, lParam);
    }
    const auto* const item = reinterpret_cast<const HGDrawItem*>(wParam);
    const void* const value = item->pValue;
    ++gHost.count;
    gHost.name = item->pszName;
    gHost.value = value ? static_cast<const char*>(value) : "";
    gHost.isNull = !value;
    gHost.rc = item->rc;
    gHost.color = item->crText;
    gHost.background = GetPixel(item->hDC, item->rc.left, item->rc.top);
    return 0;
}

class GridCellPaint : public GridPaintTest {
protected:
    // The background of cell 1, 1 under the given flags.
    COLORREF Background(WORD flags)
    {
        SetCellFlags(1, 1, flags);
        return BackgroundAt(Repaint(), 1, 1);
    }
    COLORREF NoEditColor()
    {
        LOGBRUSH brush{};
        GetObjectA(ctl->hNoEditBrush, sizeof brush, &brush);
        return brush.lbColor;
    }
    static void SetFaceColors() { SetGridBckgndColors(faceColor, secondColor, thirdColor); }
    RECT Ink(int col, int row)
    {
        return Repaint().InkBounds(GetSysColor(COLOR_WINDOW), CellInside(col, row));
    }
    void DrawByHost(WORD flags)
    {
        SetCellFlags(0, 0, flags);
        ShotOf(grid);
        gHost = {};
        HGridInvalidateCell(grid, 0, 0);
        UpdateWindow(grid);
    }
};

} // namespace

TEST_F(GridCellPaint, TakesTheFirstTextColorThatIsSet)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    SetText(1, 1, "HHH");
    for (const TextColorCase& expected : textColors) {
        SCOPED_TRACE(expected.flags);
        SetCellFlags(1, 1, expected.flags);
        const Pixels shot = Repaint();
        EXPECT_GT(shot.Count(expected.color, CellInside(1, 1)), 10);
    }
}

TEST_F(GridCellPaint, ShowsNothingForANullCell)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    SetText(1, 1, "HHH");
    EXPECT_FALSE(Repaint().IsAll(GetSysColor(COLOR_WINDOW), CellInside(1, 1)));
    SetCellFlags(1, 1, cellNull);
    EXPECT_TRUE(Repaint().IsAll(GetSysColor(COLOR_WINDOW), CellInside(1, 1)));
}

TEST_F(GridCellPaint, HasTheWindowColorOrThatOfReadOnlyColumns)
{
    MakePainted(GridOf({ Text(), Text(), Text(16, "Fixed", HFF_READONLY) }), 3);
    const Pixels shot = Repaint();
    EXPECT_EQ(BackgroundAt(shot, 1, 1), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(BackgroundAt(shot, 2, 1), NoEditColor());
    EXPECT_NE(NoEditColor(), GetSysColor(COLOR_WINDOW));
}

TEST_F(GridCellPaint, TakesItsOwnBackgroundWithoutStyles)
{
    const SystemColor border(COLOR_ACTIVEBORDER, RGB(11, 22, 33));
    MakePainted(GridOf({ Text(), Text(16, "Fixed", HFF_READONLY) }), 3);
    EXPECT_EQ(Background(cellOwnBack), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(Background(cellOwnBack | cellNoEditBack), NoEditColor());
    EXPECT_EQ(Background(cellOwnBack | cellSysBack), RGB(11, 22, 33));
    EXPECT_EQ(Background(cellOwnBack | cellNoEditBack | cellSysBack), NoEditColor());
}

TEST_F(GridCellPaint, ReadsTheChoiceOfItsOwnBackgroundOnlyWithItsFlag)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    EXPECT_EQ(Background(cellNoEditBack | cellSysBack), GetSysColor(COLOR_WINDOW));
}

TEST_F(GridCellPaint, ReadsTheFlagsOfStyledBackgroundsOnlyUnderAStyle)
{
    MakePainted(GridOf({ Text(), Text() }), 3);
    SetFaceColors();
    EXPECT_EQ(Background(cellFaceBack | cellSecondBack | cellThirdBack), GetSysColor(COLOR_WINDOW));
}

TEST_F(GridCellPaint, TakesTheBrushesOfTheLibraryUnderAStyle)
{
    for (const DWORD style : { DWORD{ HGS_FACEBACK }, DWORD{ HGS_STRIPED } }) {
        SCOPED_TRACE(style);
        MakePainted(GridOf({ Text(), Text() }, gridStyle | style), 3);
        SetFaceColors();
        EXPECT_EQ(Background(cellFaceBack), faceColor);
        EXPECT_EQ(Background(cellSecondBack), secondColor);
        EXPECT_EQ(Background(cellThirdBack), thirdColor);
        EXPECT_EQ(Background(cellFaceBack | cellSecondBack | cellThirdBack), faceColor);
        EXPECT_EQ(Background(cellSecondBack | cellThirdBack), secondColor);
    }
}

TEST_F(GridCellPaint, FallsBackWithoutTheBrushesOfTheLibrary)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_FACEBACK), 3);
    EXPECT_EQ(Background(0), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(Background(cellFaceBack), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(Background(cellSecondBack), NoEditColor());
    EXPECT_EQ(Background(cellThirdBack), GetSysColor(COLOR_3DDKSHADOW));
}

TEST_F(GridCellPaint, StandsOnTheFaceUnderFaceBack)
{
    MakePainted(GridOf({ Text(), Text(16, "Fixed", HFF_READONLY) }, gridStyle | HGS_FACEBACK), 3);
    SetFaceColors();
    const Pixels shot = Repaint();
    EXPECT_EQ(BackgroundAt(shot, 0, 0), faceColor);
    EXPECT_EQ(BackgroundAt(shot, 0, 1), faceColor);
    EXPECT_EQ(BackgroundAt(shot, 1, 1), faceColor);
}

TEST_F(GridCellPaint, HasStripesFromTheSecondRecordOn)
{
    const SystemColor info(COLOR_INFOBK, RGB(255, 255, 225));
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_STRIPED), 4);
    const Pixels shot = Repaint();
    EXPECT_EQ(BackgroundAt(shot, 1, 0), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(BackgroundAt(shot, 1, 1), RGB(255, 255, 225));
    EXPECT_EQ(BackgroundAt(shot, 1, 2), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(BackgroundAt(shot, 1, 3), RGB(255, 255, 225));
}

TEST_F(GridCellPaint, CountsStripesByRecordsNotByRows)
{
    const SystemColor info(COLOR_INFOBK, RGB(255, 255, 225));
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_STRIPED), 4);
    ctl->lRowBase = 7;
    const Pixels shot = Repaint();
    EXPECT_EQ(BackgroundAt(shot, 1, 0), RGB(255, 255, 225));
    EXPECT_EQ(BackgroundAt(shot, 1, 1), GetSysColor(COLOR_WINDOW));
}

TEST_F(GridCellPaint, HasStripesOfTheSecondBrushOnTheFace)
{
    MakePainted(GridOf({ Text(), Text() }, gridStyle | HGS_STRIPED | HGS_FACEBACK), 3);
    SetFaceColors();
    const Pixels shot = Repaint();
    EXPECT_EQ(BackgroundAt(shot, 1, 0), faceColor);
    EXPECT_EQ(BackgroundAt(shot, 1, 1), secondColor);
    SetGridBckgndColor(faceColor, noColor);
    EXPECT_EQ(BackgroundAt(Repaint(), 1, 1), NoEditColor());
}

TEST_F(GridCellPaint, AlignsItsTextByTheStyleOfTheColumn)
{
    HGField* const right = Text();
    HGField* const center = Text();
    HGField* const both = Text();
    right->dwCtlStyle = 0x0002;
    center->dwCtlStyle = 0x0001;
    both->dwCtlStyle = 0x0003;
    MakePainted(GridOf({ Text(), right, center, both }), 1);
    for (int col = 0; col < 4; ++col) {
        SetText(col, 0, "HH");
    }
    EXPECT_LE(Ink(0, 0).left, 40 + 7);
    EXPECT_GE(Ink(1, 0).right, 120 + 79 - 8);
    EXPECT_NEAR(Ink(2, 0).left + Ink(2, 0).right, 2 * 200 + 79, 4);
    EXPECT_GE(Ink(3, 0).right, 280 + 79 - 8);
}

TEST_F(GridCellPaint, ShowsTheFormattedValue)
{
    MakePainted(GridOf({ Text(), Number("Number", 0, "0.00"), Text() }), 2);
    SetText(1, 1, "5");
    SetText(2, 1, "5.00");
    HGField* const text = HGGetField(ctl->pData, 2);
    text->dwCtlStyle = HES_RIGHT;
    const Pixels shot = Repaint();
    EXPECT_TRUE(SamePixels(PartOf(shot, CellInside(2, 1)), PartOf(shot, CellInside(1, 1))));
    EXPECT_FALSE(shot.IsAll(GetSysColor(COLOR_WINDOW), CellInside(1, 1)));
}

TEST_F(GridCellPaint, IsLeftAloneWithoutAChildOrAPainter)
{
    HGField* const unknown = Text();
    unknown->cKind = 'x';
    HGField* const early = Text();
    early->cKind = 'a';
    MakePainted(GridOf({ Text(), unknown, early }), 2);
    SetGridBckgndColor(faceColor, noColor);
    const Pixels shot = Repaint();
    EXPECT_EQ(BackgroundAt(shot, 0, 1), GetSysColor(COLOR_WINDOW));
    EXPECT_TRUE(shot.IsAll(faceColor, CellInside(1, 1)));
    EXPECT_TRUE(shot.IsAll(faceColor, CellInside(2, 1)));
}

TEST_F(GridCellPaint, OfKindQIsHandedToASubclassOfTheGrid)
{
    MakeHostDrawn(GridOf({ Drawn("Picture") }), 2, HostProc);
    HGSetCellString(grid, 0, 0, "value");
    DrawByHost(cellTextBlue);
    EXPECT_EQ(gHost.count, 1);
    EXPECT_EQ(gHost.name, "Picture");
    EXPECT_EQ(gHost.value, "value");
    EXPECT_EQ(gHost.color, 0x00A00000U);
    const RECT expected = CellInside(0, 0);
    EXPECT_TRUE(EqualRect(&gHost.rc, &expected));
}

TEST_F(GridCellPaint, OfKindQStandsOnItsBackground)
{
    MakeHostDrawn(GridOf({ Drawn() }), 2, HostProc);
    DrawByHost(cellOwnBack | cellNoEditBack);
    EXPECT_EQ(gHost.background, NoEditColor());
}

TEST_F(GridCellPaint, OfKindQGetsNullForANullCell)
{
    MakeHostDrawn(GridOf({ Drawn() }), 2, HostProc);
    HGSetCellString(grid, 0, 0, "value");
    DrawByHost(cellNull);
    EXPECT_EQ(gHost.count, 1);
    EXPECT_TRUE(gHost.isNull);
}

TEST_F(GridCellPaint, OfKindQGetsNullWhileItsChildIsNull)
{
    MakeHostDrawn(GridOf({ Drawn() }), 2, HostProc);
    HGSetCellString(grid, 0, 0, "value");
    ControlHeader* const child = HGGetField(ctl->pData, 0)->pCtl;
    ASSERT_NE(child, nullptr);
    child->wFlags = static_cast<WORD>(child->wFlags | CF_NULL);
    DrawByHost(0);
    EXPECT_TRUE(gHost.isNull);
    child->wFlags = static_cast<WORD>(child->wFlags & ~CF_NULL);
    DrawByHost(0);
    EXPECT_FALSE(gHost.isNull);
}

TEST_F(GridCellPaint, CheckWithoutASizeShowsAnEmptyBox)
{
    HGField* const sized = HGFieldCreate("", 0, 80, 0, 'b', 'w', 0, 0, 0, 'k', 0, "", 0);
    HGField* const none = HGFieldCreate("", 0, 80, 0, 'b', 'w', 0, 0, 0, 'k', 0, "", 0);
    none->cbSize = 0;
    MakePainted(GridOf({ sized, none }), 1);
    ASSERT_EQ(HGGetField(ctl->pData, 1)->cbSize, 0);
    const auto paintBox = [this](WORD value) {
        EXPECT_EQ(1, HGSetCellData(grid, 0, 0, &value));
        return Repaint();
    };
    const Pixels crossed = paintBox(1);
    EXPECT_FALSE(SamePixels(PartOf(crossed, CellInside(0, 0)), PartOf(crossed, CellInside(1, 0))));
    const Pixels empty = paintBox(0);
    EXPECT_TRUE(SamePixels(PartOf(empty, CellInside(0, 0)), PartOf(empty, CellInside(1, 0))));
}

TEST_F(GridCellPaint, WithoutASizeHasTheEmptyTextAsItsValue)
{
    HGField* const field = HGFieldCreate("Empty", 0, 80, 0, 's', 's', 0, 0, 0, 'q', 0, "", 0);
    field->cbSize = 0;
    MakeHostDrawn(GridOf({ field, Text() }), 2, HostProc);
    ASSERT_EQ(HGGetField(ctl->pData, 0)->cbSize, 0);
    DrawByHost(0);
    EXPECT_EQ(gHost.count, 1);
    EXPECT_FALSE(gHost.isNull);
    EXPECT_EQ(gHost.value, "");
}
