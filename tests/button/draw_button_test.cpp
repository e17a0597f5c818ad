// The face of push buttons and headers: frames as pictures, contents by where their pixels lie.
#include "button/draw.h"

#include "button/drawing_test_support.h"
#include "dialog/control_frame.h"
#include "foundation/gdi_guards.h"
#include "foundation/startup.h"
#include "support/gdi_leaks.h"
#include "support/screen_resolution.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF yellow = RGB(255, 255, 0);
constexpr COLORREF orange = RGB(255, 128, 0);
constexpr WORD     innerHeader = DPB_HEADER | DPB_INNERRECT;

// H highlight, S shadow, D dark shadow, L light, f face, y select brush, o face brush of the library
Letters FaceLetters()
{
    return {
        { 'H', GetSysColor(COLOR_BTNHIGHLIGHT) }, { 'S', GetSysColor(COLOR_BTNSHADOW) },
        { 'D', GetSysColor(COLOR_3DDKSHADOW) },   { 'L', GetSysColor(COLOR_3DLIGHT) },
        { 'f', GetSysColor(COLOR_BTNFACE) },      { 'y', yellow },
        { 'o', orange },                          { 'k', RGB(0, 0, 0) },
    };
}

// A brush in one of the library's slots until the end of the scope.
class BrushInSlot {
public:
    BrushInSlot(HBRUSH* slot, COLORREF color) : slot_(slot), old_(*slot), brush_(CreateSolidBrush(color))
    {
        *slot_ = brush_.h;
    }
    ~BrushInSlot() { *slot_ = old_; }
    BrushInSlot(const BrushInSlot&) = delete;
    BrushInSlot& operator=(const BrushInSlot&) = delete;

private:
    HBRUSH*             slot_;
    HBRUSH              old_;
    OwnedObject<HBRUSH> brush_;
};

// A font whose pixels are of the text's colour or not at all.
class PlainFont {
public:
    PlainFont()
        : font_(CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, NONANTIALIASED_QUALITY, 0,
                            "DejaVu Sans"))
    {
    }
    operator HFONT() const { return font_.h; }

private:
    OwnedObject<HFONT> font_;
};

std::string FacePicture(WORD flags, int width, int height)
{
    Canvas canvas(width + 2, height + 2);
    RECT   rect{ 1, 1, 1 + width, 1 + height };
    canvas.Fill(paper);
    DrawPushButton(nullptr, canvas.hdc(), &rect, 0, flags, nullptr, nullptr, nullptr, 0, -1);
    return AsText(canvas.Shot(), FaceLetters());
}

struct InnerCase {
    WORD flags;
    RECT inner;
};

constexpr WORD faces[] = { DPB_HEADER | DPB_SORTUP | DPB_EMBOSS, 0, DPB_PRESSED, DPB_DEFAULT, DPB_SELECTED };

constexpr RECT testRect{ 10, 20, 110, 60 };

constexpr InnerCase innerCases[] = {
    { DPB_INNERRECT, { 10, 20, 110, 60 } },
    { innerHeader, { 10, 20, 110, 60 } },
    { DPB_INNERRECT | DPB_PRESSED, { 11, 21, 110, 60 } },
    { DPB_INNERRECT | DPB_DEFAULT, { 11, 21, 109, 59 } },
    { DPB_INNERRECT | DPB_DEFAULT | DPB_PRESSED, { 12, 22, 109, 59 } },
    { DPB_PRESSED, { 10, 20, 110, 60 } },
};

// A wide header face with a text in red.
class CaptionTest : public testing::Test {
protected:
    Pixels Draw(const char* text, WORD flags = 0, int width = 100, int height = 40)
    {
        Canvas canvas(width, height);
        RECT   rect{ 0, 0, width, height };
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, static_cast<WORD>(flags | DPB_HEADER), text, font_, nullptr,
                       red, -1);
        return canvas.Shot();
    }
    // Where pixels of a colour are, the frame left aside.
    static RECT BoundsOf(const Pixels& shot, COLORREF color)
    {
        RECT bounds{};
        for (int y = 1; y < shot.height - 1; ++y) {
            for (int x = 1; x < shot.width - 1; ++x) {
                if (shot.At(x, y) == color) {
                    const RECT pixel{ x, y, x + 1, y + 1 };
                    UnionRect(&bounds, &bounds, &pixel);
                }
            }
        }
        return bounds;
    }
    static int Width(const RECT& rect) { return rect.right - rect.left; }
    static int Height(const RECT& rect) { return rect.bottom - rect.top; }

    PlainFont font_;
};

struct MarkLine {
    int  color;
    RECT line; // from left, top to right, bottom
};

// A mark drawn by pens, as it should stand on a face of 60 by 20 that holds a blank.
Pixels ExpectedMark(const Canvas& canvas, std::initializer_list<MarkLine> lines)
{
    for (const MarkLine& line : lines) {
        const OwnedObject<HPEN> pen(CreatePen(PS_SOLID, 1, GetSysColor(line.color)));
        const SelectedObject    selected(canvas.hdc(), pen.h);
        MoveToEx(canvas.hdc(), line.line.left, line.line.top, nullptr);
        LineTo(canvas.hdc(), line.line.right, line.line.bottom);
    }
    return canvas.Shot();
}

class SortMarkTest : public CaptionTest {
protected:
    static constexpr int width = 60;
    static constexpr int height = 40;

    void DrawBlank(const Canvas& canvas, WORD flags)
    {
        RECT rect{ 0, 0, width, height };
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, flags, " ", font_, nullptr, 0, -1);
    }
    // The top of the text on that face.
    int TextTop()
    {
        const Canvas         canvas(1, 1);
        const SelectedObject selected(canvas.hdc(), font_);
        return (height - HIWORD(HMeasureLines(canvas.hdc(), " "))) / 2;
    }
};

} // namespace

TEST(DrawPushButton, DrawsAFlatHeader)
{
    EXPECT_EQ(FacePicture(DPB_HEADER, 10, 6), R"(
............
.HHHHHHHHHS.
.HffffffffS.
.HffffffffS.
.HffffffffS.
.HffffffffS.
.SSSSSSSSSS.
............)");
}

TEST(DrawPushButton, DrawsARaisedFace)
{
    EXPECT_EQ(FacePicture(0, 10, 8), R"(
............
.LLLLLLLLLD.
.LHHHHHHHSD.
.LHffffffSD.
.LHffffffSD.
.LHffffffSD.
.LHffffffSD.
.LSSSSSSSSD.
.DDDDDDDDDD.
............)");
}

TEST(DrawPushButton, DrawsAPressedFace)
{
    EXPECT_EQ(FacePicture(DPB_PRESSED, 6, 5), R"(
........
.SSSSSS.
.SffffS.
.SffffS.
.SffffS.
.SSSSSS.
........)");
}

TEST(DrawPushButton, DrawsASelectedFaceOnTheSelectBrush)
{
    const BrushInSlot select(&hSelectBrush, yellow);
    EXPECT_EQ(FacePicture(DPB_SELECTED, 8, 5), R"(
..........
.HHHHHHHD.
.HyyyyyyD.
.HyyyyyyD.
.HyyyyyyD.
.DDDDDDDD.
..........)");
}

TEST(DrawPushButton, DrawsADarkFrameAroundADefaultFace)
{
    EXPECT_EQ(FacePicture(DPB_DEFAULT, 12, 10), R"(
..............
.DDDDDDDDDDDD.
.DLLLLLLLLLDD.
.DLHHHHHHHSDD.
.DLHffffffSDD.
.DLHffffffSDD.
.DLHffffffSDD.
.DLHffffffSDD.
.DLSSSSSSSSDD.
.DDDDDDDDDDDD.
.DDDDDDDDDDDD.
..............)");
}

TEST(DrawPushButton, TakesTheFirstFaceThatApplies)
{
    const BrushInSlot select(&hSelectBrush, yellow);
    EXPECT_EQ(FacePicture(DPB_HEADER | DPB_PRESSED | DPB_SELECTED, 10, 6), FacePicture(DPB_HEADER, 10, 6));
    EXPECT_EQ(FacePicture(DPB_PRESSED | DPB_SELECTED, 10, 6), FacePicture(DPB_PRESSED, 10, 6));
}

TEST(DrawPushButton, DoesNotReadTheFlagBetweenEmbossAndInnerRectangle)
{
    EXPECT_EQ(FacePicture(DPB_HEADER | 0x0040, 10, 6), FacePicture(DPB_HEADER, 10, 6));
}

TEST(DrawPushButton, TakesTheFaceBrushOfTheLibraryWhenAsked)
{
    const BrushInSlot face(&hFaceBrush, orange);
    EXPECT_EQ(FacePicture(DPB_HEADER | DPB_LIBFACE, 6, 4), R"(
........
.HHHHHS.
.HooooS.
.HooooS.
.SSSSSS.
........)");
    EXPECT_EQ(FacePicture(DPB_HEADER, 6, 4), R"(
........
.HHHHHS.
.HffffS.
.HffffS.
.SSSSSS.
........)");
}

TEST(DrawPushButton, TakesTheSystemsFaceWhenTheLibraryHasNone)
{
    ASSERT_EQ(hFaceBrush, nullptr);
    EXPECT_EQ(FacePicture(DPB_HEADER | DPB_LIBFACE, 10, 6), FacePicture(DPB_HEADER, 10, 6));
}

TEST(DrawPushButton, GivesTheInnerFaceOnlyWhenAsked)
{
    const Canvas canvas(120, 80);
    for (const InnerCase& expected : innerCases) {
        SCOPED_TRACE(expected.flags);
        RECT rect = testRect;
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, expected.flags, nullptr, nullptr, nullptr, 0, -1);
        EXPECT_TRUE(EqualRect(&rect, &expected.inner));
    }
}

TEST(DrawPushButton, DoesNothingWithoutAContextOrARectangle)
{
    Canvas canvas(10, 10);
    RECT   rect{ 0, 0, 10, 10 };
    canvas.Fill(paper);
    DrawPushButton(nullptr, nullptr, &rect, 0, innerHeader, nullptr, nullptr, nullptr, 0, -1);
    DrawPushButton(nullptr, canvas.hdc(), nullptr, 0, innerHeader, nullptr, nullptr, nullptr, 0, -1);
    const Pixels shot = canvas.Shot();
    EXPECT_TRUE(shot.IsAll(paper, shot.Bounds()));
}

TEST(DrawPushButton, DrawsNothingInARectangleWithoutASize)
{
    Canvas canvas(10, 10);
    canvas.Fill(paper);
    for (const RECT& empty : { RECT{ 4, 4, 4, 8 }, RECT{ 4, 4, 8, 4 }, RECT{ 8, 8, 2, 2 } }) {
        RECT rect = empty;
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, DPB_HEADER, "text", nullptr, nullptr, 0, -1);
    }
    const Pixels shot = canvas.Shot();
    EXPECT_TRUE(shot.IsAll(paper, shot.Bounds()));
}

TEST(DrawPushButton, KeepsNoGdiObjects)
{
    const Canvas       canvas(60, 20);
    const PlainFont    font;
    const GdiLeakCheck check;
    for (const WORD flags : faces) {
        RECT rect{ 0, 0, 60, 20 };
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, flags, "Name", font, nullptr, 0, -1);
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, flags, nullptr, nullptr, nullptr, 0, 11);
    }
}

TEST(DrawPushButton, CentresAnImageOfTheStrip)
{
    Canvas canvas(21, 17);
    RECT   rect{ 0, 0, 21, 17 };
    DrawPushButton(nullptr, canvas.hdc(), &rect, 0, DPB_HEADER, "not shown", nullptr, nullptr, 0, 11);
    EXPECT_EQ(AsText(canvas.Shot(), FaceLetters()), R"(
HHHHHHHHHHHHHHHHHHHHS
HfffffffffffffffffffS
HfffffffffffffffffffS
HfffffffffffffffffffS
HfffffffffffffffffffS
HfffffffffffffffffffS
HfffffffffffffffffffS
HffffffkkkkkkkffffffS
HfffffffkkkkkfffffffS
HffffffffkkkffffffffS
HfffffffffkfffffffffS
HfffffffffffffffffffS
HfffffffffffffffffffS
HfffffffffffffffffffS
HfffffffffffffffffffS
HfffffffffffffffffffS
SSSSSSSSSSSSSSSSSSSSS)");
}

TEST(DrawPushButton, MovesTheImageOfAPressedFace)
{
    const auto triangle = [](WORD flags) {
        Canvas canvas(30, 30);
        RECT   rect{ 0, 0, 30, 30 };
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, flags, nullptr, nullptr, nullptr, 0, 11);
        const RECT inside{ 3, 3, 27, 27 };
        return canvas.Shot().InkBounds(GetSysColor(COLOR_BTNFACE), inside);
    };
    const RECT up = triangle(0);
    const RECT pressed = triangle(DPB_PRESSED);
    EXPECT_EQ(up.left, 11);
    EXPECT_EQ(up.top, 13);
    EXPECT_EQ(pressed.left, 12);
    EXPECT_EQ(pressed.top, 14);
}

TEST(DrawPushButton, DrawsNoImageWithoutTheStrip)
{
    const HIMAGELIST strip = hCheckImages;
    hCheckImages = nullptr;
    Canvas canvas(20, 20);
    RECT   rect{ 0, 0, 20, 20 };
    DrawPushButton(nullptr, canvas.hdc(), &rect, 0, DPB_HEADER, "not shown either", nullptr, nullptr, red, 11);
    hCheckImages = strip;
    const RECT inside{ 1, 1, 19, 19 };
    EXPECT_TRUE(canvas.Shot().IsAll(GetSysColor(COLOR_BTNFACE), inside));
}

TEST(DrawPushButton, CentresABitmapWithoutItsGreen)
{
    Canvas                     canvas(10, 8);
    const OwnedObject<HBITMAP> bitmap(CreateCompatibleBitmap(canvas.hdc(), 4, 2));
    const HDC                  memory = CreateCompatibleDC(canvas.hdc());
    {
        const SelectedObject selected(memory, bitmap.h);
        const RECT           all{ 0, 0, 4, 2 };
        const OwnedObject<HBRUSH> green(CreateSolidBrush(maskColor));
        FillRect(memory, &all, green.h);
        SetPixel(memory, 1, 0, yellow);
        SetPixel(memory, 2, 1, orange);
    }
    DeleteDC(memory);
    RECT rect{ 0, 0, 10, 8 };
    DrawPushButton(nullptr, canvas.hdc(), &rect, 0, DPB_HEADER, "not shown", nullptr, bitmap.h, red, -1);
    EXPECT_EQ(AsText(canvas.Shot(), FaceLetters()), R"(
HHHHHHHHHS
HffffffffS
HffffffffS
HfffyffffS
HffffofffS
HffffffffS
HffffffffS
SSSSSSSSSS)");
}

TEST_F(CaptionTest, IsCentredBothWays)
{
    const RECT ink = BoundsOf(Draw("HH"), red);
    ASSERT_GT(Width(ink), 8);
    EXPECT_NEAR(ink.left + ink.right, 100, 3);
    EXPECT_NEAR(ink.top + ink.bottom, 40, 6);
}

TEST_F(CaptionTest, IsAlignedLeftOrRightWhenAskedAndRightWins)
{
    const RECT left = BoundsOf(Draw("HH", DPB_LEFT), red);
    const RECT right = BoundsOf(Draw("HH", DPB_RIGHT), red);
    const RECT both = BoundsOf(Draw("HH", DPB_LEFT | DPB_RIGHT), red);
    EXPECT_LE(left.left, 3);
    EXPECT_GE(right.right, 97);
    EXPECT_TRUE(EqualRect(&both, &right));
}

TEST_F(CaptionTest, BreaksTheLineAtACaret)
{
    const RECT one = BoundsOf(Draw("HH"), red);
    const RECT two = BoundsOf(Draw("HH^HH"), red);
    EXPECT_EQ(Width(one), Width(two));
    EXPECT_GT(Height(two), 2 * Height(one));
}

TEST_F(CaptionTest, ShowsACaretBehindTheEscapeCharacter)
{
    EXPECT_LT(Height(BoundsOf(Draw("H\\^H"), red)), 2 * Height(BoundsOf(Draw("H"), red)));
    EXPECT_GT(Width(BoundsOf(Draw("H\\^H"), red)), Width(BoundsOf(Draw("HH"), red)));
}

TEST_F(CaptionTest, ShowsWhatStandsBehindASemicolon)
{
    EXPECT_GT(Width(BoundsOf(Draw("H;H"), red)), Width(BoundsOf(Draw("HH"), red)));
}

TEST_F(CaptionTest, OfOneLineThatIsTooWideBeginsAtTheLeft)
{
    const char wide[] = "A title that is much too wide";
    EXPECT_TRUE(SamePixels(Draw(wide, DPB_LEFT), Draw(wide)));
    EXPECT_TRUE(Draw("short", DPB_LEFT).colors != Draw("short").colors);
}

TEST_F(CaptionTest, OfSeveralLinesStaysCentredThoughItIsTooWide)
{
    const char wide[] = "A title that is much too wide^H";
    EXPECT_TRUE(Draw(wide, DPB_LEFT).colors != Draw(wide).colors);
    const RECT narrow = BoundsOf(Draw("^H"), red); // the second line of the same height of lines
    EXPECT_NEAR(narrow.left + narrow.right, 100, 3);
}

TEST_F(CaptionTest, StartsAtTheTopWhenItIsTooHigh)
{
    const RECT ink = BoundsOf(Draw("H^H^H^H^H^H", 0, 100, 24), red);
    EXPECT_LE(ink.top, 4);
}

TEST_F(CaptionTest, IsGreyWhenDisabled)
{
    const Pixels shot = Draw("HH", DPB_DISABLED);
    EXPECT_EQ(shot.Count(red, shot.Bounds()), 0);
    EXPECT_GT(shot.Count(GetSysColor(COLOR_GRAYTEXT), shot.Bounds()), 10);
}

TEST_F(CaptionTest, IsEmbossedInWhiteOnePixelToTheRightAndBelow)
{
    const RECT text = BoundsOf(Draw("I", DPB_EMBOSS | DPB_LEFT), red);
    const RECT shine = BoundsOf(Draw("I", DPB_EMBOSS | DPB_LEFT), white);
    EXPECT_EQ(shine.right, text.right + 1);
    EXPECT_EQ(shine.bottom, text.bottom + 1);
}

TEST_F(CaptionTest, LeavesTheContextAlone)
{
    const Canvas  canvas(40, 20);
    const HGDIOBJ font = GetCurrentObject(canvas.hdc(), OBJ_FONT);
    SetTextColor(canvas.hdc(), yellow);
    SetBkMode(canvas.hdc(), OPAQUE);
    RECT rect{ 0, 0, 40, 20 };
    DrawPushButton(nullptr, canvas.hdc(), &rect, 0, 0, "x", font_, nullptr, red, -1);
    EXPECT_EQ(font, GetCurrentObject(canvas.hdc(), OBJ_FONT));
    EXPECT_EQ(GetTextColor(canvas.hdc()), yellow);
    EXPECT_EQ(GetBkMode(canvas.hdc()), OPAQUE);
}

TEST_F(SortMarkTest, UpStandsAtTheRightEndOfAHeader)
{
    const Canvas expected(width, height);
    const Canvas canvas(width, height);
    DrawBlank(expected, DPB_HEADER);
    DrawBlank(canvas, DPB_HEADER | DPB_SORTUP);
    const int x = width - 11;
    const int y = TextTop() + 10;
    EXPECT_TRUE(SamePixels(ExpectedMark(expected, { { COLOR_BTNHIGHLIGHT, { x, y, x + 8, y } },
                                                    { COLOR_BTNHIGHLIGHT, { x + 7, y - 1, x + 3, y - 7 } },
                                                    { COLOR_BTNSHADOW, { x, y - 1, x + 4, y - 7 } } }),
                           canvas.Shot()));
}

TEST_F(SortMarkTest, DownStandsAtTheRightEndOfAHeader)
{
    const Canvas expected(width, height);
    const Canvas canvas(width, height);
    DrawBlank(expected, DPB_HEADER);
    DrawBlank(canvas, DPB_HEADER | DPB_SORTDOWN);
    const int x = width - 11;
    const int y = TextTop() + 3;
    EXPECT_TRUE(SamePixels(ExpectedMark(expected, { { COLOR_BTNSHADOW, { x, y, x + 8, y } },
                                                    { COLOR_BTNSHADOW, { x, y + 1, x + 4, y + 7 } },
                                                    { COLOR_BTNHIGHLIGHT, { x + 7, y + 1, x + 3, y + 7 } } }),
                           canvas.Shot()));
}

TEST_F(SortMarkTest, StandsAPixelFurtherInOnARaisedFace)
{
    const Canvas expected(width, height);
    const Canvas canvas(width, height);
    DrawBlank(expected, 0);
    DrawBlank(canvas, DPB_SORTUP);
    const int x = width - 12;
    const int y = TextTop() + 10;
    EXPECT_TRUE(SamePixels(ExpectedMark(expected, { { COLOR_BTNHIGHLIGHT, { x, y, x + 8, y } },
                                                    { COLOR_BTNHIGHLIGHT, { x + 7, y - 1, x + 3, y - 7 } },
                                                    { COLOR_BTNSHADOW, { x, y - 1, x + 4, y - 7 } } }),
                           canvas.Shot()));
}

TEST_F(SortMarkTest, GrowsWithTheResolutionButForItsOffsetsOfOnePixel)
{
    const ScreenResolution dpi(192);
    const Canvas           expected(width, height);
    const Canvas           canvas(width, height);
    DrawBlank(expected, DPB_HEADER);
    DrawBlank(canvas, DPB_HEADER | DPB_SORTUP);
    const int x = width - 22;
    const int y = TextTop() + 20;
    EXPECT_TRUE(SamePixels(ExpectedMark(expected, { { COLOR_BTNHIGHLIGHT, { x, y, x + 16, y } },
                                                    { COLOR_BTNHIGHLIGHT, { x + 14, y - 1, x + 6, y - 14 } },
                                                    { COLOR_BTNSHADOW, { x, y - 1, x + 8, y - 14 } } }),
                           canvas.Shot()));
}
