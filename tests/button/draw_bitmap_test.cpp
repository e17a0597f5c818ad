// Bitmaps with one transparent colour.
#include "button/draw.h"

#include "button/drawing_test_support.h"
#include "foundation/gdi_guards.h"
#include "support/gdi_leaks.h"

#include <gtest/gtest.h>

namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF black = RGB(0, 0, 0);

// g the key, r red, w white, k black
constexpr const char* shape[] = { "grg", "wgk" };

COLORREF ColorOf(char letter)
{
    switch (letter) {
    case 'r':
        return red;
    case 'w':
        return white;
    case 'k':
        return black;
    default:
        return maskColor;
    }
}

HBITMAP MakeShape(HDC like)
{
    const HBITMAP bitmap = CreateCompatibleBitmap(like, 3, 2);
    const HDC     memory = CreateCompatibleDC(like);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x) {
            SetPixel(memory, x, y, ColorOf(shape[y][x]));
        }
    }
    SelectObject(memory, old);
    DeleteDC(memory);
    return bitmap;
}

std::string Drawn(COLORREF background, COLORREF key)
{
    Canvas                     canvas(5, 4);
    const OwnedObject<HBITMAP> bitmap(MakeShape(canvas.hdc()));
    canvas.Fill(background);
    HDrawBitmap(canvas.hdc(), bitmap.h, 1, 1, key);
    return AsText(canvas.Shot(), { { 'g', maskColor }, { 'r', red }, { 'w', white }, { 'k', black } });
}

} // namespace

TEST(HDrawBitmap, LeavesTheKeyColorOut)
{
    EXPECT_EQ(Drawn(paper, maskColor), R"(
.....
..r..
.w.k.
.....)");
}

TEST(HDrawBitmap, ShowsWhiteAndBlackBackgroundsThroughTheKey)
{
    EXPECT_EQ(Drawn(white, maskColor), "\nwwwww\nwwrww\nwwwkw\nwwwww");
    EXPECT_EQ(Drawn(black, maskColor), "\nkkkkk\nkkrkk\nkwkkk\nkkkkk");
}

TEST(HDrawBitmap, CopiesEverythingWithoutAKey)
{
    EXPECT_EQ(Drawn(paper, 0), R"(
.....
.grg.
.wgk.
.....)");
}

TEST(HDrawBitmap, TakesAnyColorAsTheKey)
{
    EXPECT_EQ(Drawn(paper, red), R"(
.....
.g.g.
.wgk.
.....)");
}

TEST(HDrawBitmap, PlacesItInTheUnitsOfTheContext)
{
    for (const COLORREF key : { maskColor, COLORREF{ 0 } }) {
        Canvas                     canvas(5, 4);
        const OwnedObject<HBITMAP> bitmap(MakeShape(canvas.hdc()));
        canvas.Fill(paper);
        SetMapMode(canvas.hdc(), MM_ANISOTROPIC);
        SetViewportOrgEx(canvas.hdc(), 2, 1, nullptr);
        HDrawBitmap(canvas.hdc(), bitmap.h, 0, 1, key);
        SetViewportOrgEx(canvas.hdc(), 0, 0, nullptr);
        SetMapMode(canvas.hdc(), MM_TEXT);
        const Pixels shot = canvas.Shot();
        EXPECT_EQ(red, shot.At(3, 2));
        EXPECT_EQ(white, shot.At(2, 3));
        EXPECT_EQ(black, shot.At(4, 3));
        EXPECT_EQ(key ? paper : maskColor, shot.At(2, 2));
        EXPECT_EQ(paper, shot.At(1, 2));
    }
}

TEST(HDrawBitmap, LeavesTheBitmapAsItWas)
{
    Canvas                     canvas(5, 4);
    const OwnedObject<HBITMAP> bitmap(MakeShape(canvas.hdc()));
    HDrawBitmap(canvas.hdc(), bitmap.h, 0, 0, maskColor);
    canvas.Fill(paper);
    HDrawBitmap(canvas.hdc(), bitmap.h, 1, 1, 0);
    EXPECT_EQ(canvas.Shot().At(1, 1), maskColor);
    EXPECT_EQ(canvas.Shot().At(3, 2), black);
}

TEST(HDrawBitmap, KeepsNoGdiObjects)
{
    Canvas                     canvas(5, 4);
    const OwnedObject<HBITMAP> bitmap(MakeShape(canvas.hdc()));
    const GdiLeakCheck         check;
    HDrawBitmap(canvas.hdc(), bitmap.h, 0, 0, maskColor);
    HDrawBitmap(canvas.hdc(), bitmap.h, 0, 0, 0);
}
