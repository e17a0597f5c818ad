// Frames as pictures: a letter a pixel.
#include "button/draw.h"

#include "button/drawing_test_support.h"
#include "foundation/gdi_guards.h"
#include "support/gdi_leaks.h"
#include "support/window_test.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF blue = RGB(0, 0, 255);
constexpr COLORREF yellow = RGB(255, 255, 0);

// One frame line of a red and a blue pen, filled with yellow if at all.
std::string FramePicture(bool cut, bool fill)
{
    Canvas                     canvas(8, 7);
    const OwnedObject<HPEN>    topLeft(CreatePen(PS_SOLID, 1, red));
    const OwnedObject<HPEN>    bottomRight(CreatePen(PS_SOLID, 1, blue));
    const OwnedObject<HBRUSH>  brush(CreateSolidBrush(yellow));
    const SelectedObject       selected(canvas.hdc(), brush.h);
    RECT                       rect{ 1, 1, 7, 6 };
    canvas.Fill(paper);
    HDrawFrame(canvas.hdc(), &rect, topLeft.h, bottomRight.h, cut, fill);
    return AsText(canvas.Shot(), { { 'r', red }, { 'b', blue }, { 'y', yellow } });
}

struct BorderCase {
    int         kind;
    RECT        inside;
    const char* picture;
};

// k black, w white, s shadow, f face
constexpr BorderCase borderCases[] = {
    { 0, { 2, 2, 7, 6 }, R"(
.........
.kkkkkkk.
.k.....k.
.k.....k.
.k.....k.
.k.....k.
.kkkkkkk.
.........)" },
    { 1, { 2, 2, 7, 6 }, R"(
.........
.wwwwwws.
.w.....s.
.w.....s.
.w.....s.
.w.....s.
.sssssss.
.........)" },
    { 2, { 3, 3, 6, 5 }, R"(
.........
.wwwwwws.
.wssssws.
.ws...ws.
.ws...ws.
.wwwwwws.
.sssssss.
.........)" },
    { 3, { 3, 3, 6, 5 }, R"(
.........
.ssssssw.
.skkkkfw.
.sk...fw.
.sk...fw.
.sfffffw.
.wwwwwww.
.........)" },
    { 4, { 3, 3, 6, 5 }, R"(
.........
.wwwwwws.
.wwwwwss.
.ww...ss.
.ww...ss.
.wssssss.
.sssssss.
.........)" },
};

Letters BorderLetters()
{
    return {
        { 'k', RGB(0, 0, 0) },
        { 'w', RGB(255, 255, 255) },
        { 's', GetSysColor(COLOR_BTNSHADOW) },
        { 'f', GetSysColor(COLOR_BTNFACE) },
        { 'y', yellow },
    };
}

// A window whose client area is two pixels inside, with its frame painted by the library.
LRESULT CALLBACK FramedProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCALCSIZE) {
        InflateRect(reinterpret_cast<RECT*>(lParam), -2, -2);
        return 0;
    }
    if (message == WM_NCPAINT) {
        HNCPaint(hwnd, GetWindowLongA(hwnd, GWL_ID) == 2);
        return 0;
    }
    if (message == WM_ERASEBKGND) {
        const OwnedObject<HBRUSH> brush(CreateSolidBrush(paper));
        RECT                      client{};
        GetClientRect(hwnd, &client);
        FillRect(reinterpret_cast<HDC>(wParam), &client, brush.h);
        return 1;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

class FramedWindow : public WindowTest {
protected:
    std::string PictureWithBorder(bool border)
    {
        WNDCLASSA windowClass = {};
        windowClass.lpfnWndProc = FramedProc;
        windowClass.hInstance = GetModuleHandleA(nullptr);
        windowClass.lpszClassName = "TestFramed";
        RegisterClassA(&windowClass);
        const HWND hwnd = CreateWindowExA(0, "TestFramed", "", WS_CHILD | WS_VISIBLE, 5, 5, 8, 7, parent.hwnd(),
                                          reinterpret_cast<HMENU>(INT_PTR{ border ? 2 : 1 }),
                                          GetModuleHandleA(nullptr), nullptr);
        const std::string picture = AsText(ShotOfWindow(hwnd), BorderLetters());
        DestroyWindow(hwnd);
        UnregisterClassA("TestFramed", GetModuleHandleA(nullptr));
        return picture;
    }
};

} // namespace

TEST(HDrawFrame, DrawsBothLinesWithAllCorners)
{
    EXPECT_EQ(FramePicture(false, false), R"(
........
.rrrrrb.
.r....b.
.r....b.
.r....b.
.bbbbbb.
........)");
}

TEST(HDrawFrame, LeavesTheCornersOutWhenCut)
{
    EXPECT_EQ(FramePicture(true, false), R"(
........
..rrrr..
.r....b.
.r....b.
.r....b.
..bbbb..
........)");
}

TEST(HDrawFrame, FillsTheInside)
{
    EXPECT_EQ(FramePicture(false, true), R"(
........
.rrrrrb.
.ryyyyb.
.ryyyyb.
.ryyyyb.
.bbbbbb.
........)");
}

TEST(HDrawFrame, FillsOnePixelLessWhenCut)
{
    EXPECT_EQ(FramePicture(true, true), R"(
........
..rrrr..
.ryyy.b.
.ryyy.b.
.r....b.
..bbbb..
........)");
}

TEST(HDrawFrame, TakesWhiteForAMissingTopLeftPen)
{
    Canvas                  canvas(4, 4);
    const OwnedObject<HPEN> bottomRight(CreatePen(PS_SOLID, 1, blue));
    RECT                    rect{ 0, 0, 4, 4 };
    canvas.Fill(paper);
    HDrawFrame(canvas.hdc(), &rect, nullptr, bottomRight.h, false, false);
    EXPECT_EQ(canvas.Shot().At(0, 0), RGB(255, 255, 255));
    EXPECT_EQ(canvas.Shot().At(3, 3), blue);
}

TEST(HDrawFrame, LeavesThePenOfTheContextSelected)
{
    const Canvas  canvas(4, 4);
    const HGDIOBJ before = GetCurrentObject(canvas.hdc(), OBJ_PEN);
    RECT          rect{ 0, 0, 4, 4 };
    HDrawFrame(canvas.hdc(), &rect, nullptr, static_cast<HPEN>(GetStockObject(BLACK_PEN)), true, true);
    EXPECT_EQ(before, GetCurrentObject(canvas.hdc(), OBJ_PEN));
}

TEST(Draw3DBorder, DrawsEachKindAndLeavesTheInside)
{
    for (const BorderCase& border : borderCases) {
        SCOPED_TRACE(border.kind);
        Canvas canvas(9, 8);
        RECT   rect{ 1, 1, 8, 7 };
        canvas.Fill(paper);
        Draw3DBorder(canvas.hdc(), &rect, border.kind, 0);
        EXPECT_EQ(AsText(canvas.Shot(), BorderLetters()), border.picture);
        EXPECT_TRUE(EqualRect(&rect, &border.inside));
    }
}

TEST(Draw3DBorder, KindThreeTakesTwoPixelsOnEachSide)
{
    const Canvas canvas(40, 30);
    RECT         rect{ 0, 0, 40, 30 };
    Draw3DBorder(canvas.hdc(), &rect, 3, 0);
    const RECT expected{ 2, 2, 38, 28 };
    EXPECT_TRUE(EqualRect(&rect, &expected));
}

TEST(Draw3DBorder, AnyOtherKindDrawsNothingAndLeavesTheRectangleAlone)
{
    for (const int kind : { 5, 6, 100, -1 }) {
        SCOPED_TRACE(kind);
        Canvas canvas(9, 8);
        RECT   rect{ 1, 1, 8, 7 };
        canvas.Fill(paper);
        Draw3DBorder(canvas.hdc(), &rect, kind, 1);
        const Pixels shot = canvas.Shot();
        EXPECT_TRUE(shot.IsAll(paper, shot.Bounds()));
        const RECT expected{ 1, 1, 8, 7 };
        EXPECT_TRUE(EqualRect(&rect, &expected));
    }
}

TEST(Draw3DBorder, WithoutARectangleDrawsNothing)
{
    Canvas canvas(9, 8);
    canvas.Fill(paper);
    for (int kind = 0; kind < 5; ++kind) {
        Draw3DBorder(canvas.hdc(), nullptr, kind, 1);
    }
    EXPECT_TRUE(canvas.Shot().IsAll(paper, { 0, 0, 9, 8 }));
}

TEST(Draw3DBorder, FillsTheInsideOfTheInnermostFrame)
{
    Canvas                    canvas(9, 8);
    const OwnedObject<HBRUSH> brush(CreateSolidBrush(yellow));
    const SelectedObject      selected(canvas.hdc(), brush.h);
    RECT                      rect{ 1, 1, 8, 7 };
    canvas.Fill(paper);
    Draw3DBorder(canvas.hdc(), &rect, 3, 1);
    EXPECT_EQ(AsText(canvas.Shot(), BorderLetters()), R"(
.........
.ssssssw.
.skkkkfw.
.skyyyfw.
.skyyyfw.
.sfffffw.
.wwwwwww.
.........)");
}

TEST(Draw3DBorder, KeepsNoGdiObjects)
{
    const Canvas       canvas(20, 20);
    const GdiLeakCheck check;
    for (int kind = 0; kind < 6; ++kind) {
        RECT rect{ 0, 0, 20, 20 };
        Draw3DBorder(canvas.hdc(), &rect, kind, 1);
    }
}

TEST_F(FramedWindow, HasASunkenFrameWithoutBorder)
{
    EXPECT_EQ(PictureWithBorder(false), R"(
sssssssw
skkkkkfw
sk....fw
sk....fw
sk....fw
sffffffw
wwwwwwww)");
}

TEST_F(FramedWindow, HasARidgeWithBorder)
{
    EXPECT_EQ(PictureWithBorder(true), R"(
wwwwwwws
wsssssws
ws....ws
ws....ws
ws....ws
wwwwwwws
ssssssss)");
}
