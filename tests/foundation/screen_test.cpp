// The conversions between design units and pixels.
#include "foundation/screen.h"

#include "support/screen_resolution.h"

#include <gtest/gtest.h>

namespace {

bool SameRect(const RECT& a, const RECT& b)
{
    return EqualRect(&a, &b) != 0;
}

TEST(Screen, At144DpiFortyUnitsAreSixtyPixels)
{
    const ScreenResolution screen(144);
    EXPECT_EQ(60, ScaleX(40));
    EXPECT_EQ(60, ScaleY(40));
    EXPECT_EQ(40, UnscaleX(60));
    EXPECT_EQ(40, UnscaleY(60));
    EXPECT_EQ(150, DpiPercent());
    EXPECT_EQ(144, DpiX());
    EXPECT_EQ(144, DpiY());
}

TEST(Screen, WidthsAndHeightsHaveResolutionsOfTheirOwn)
{
    const ScreenResolution screen(144, 192);
    EXPECT_EQ(15, ScaleX(10));
    EXPECT_EQ(20, ScaleY(10));
    EXPECT_EQ(10, UnscaleX(15));
    EXPECT_EQ(10, UnscaleY(20));
    EXPECT_EQ(150, DpiPercent()) << "the percentage is that of the width";
}

struct Conversion {
    int dpi;
    int units;
    int pixels;
};

TEST(Screen, ConversionsRoundHalfAwayFromZero)
{
    constexpr Conversion conversions[] = {
        { 96, 13, 13 }, { 120, 13, 16 }, { 144, 13, 20 }, { 144, 1, 2 }, { 144, -1, -2 }, { 120, 2, 3 }, { 96, 0, 0 },
    };
    for (const Conversion& c : conversions) {
        const ScreenResolution screen(c.dpi);
        EXPECT_EQ(c.pixels, ScaleX(c.units)) << c.units << " units at " << c.dpi;
        EXPECT_EQ(c.pixels, ScaleY(c.units)) << c.units << " units at " << c.dpi;
    }
}

TEST(Screen, DoublesAreNotRounded)
{
    const ScreenResolution screen(120, 144);
    EXPECT_DOUBLE_EQ(1.25, ScaleXF(1.0));
    EXPECT_DOUBLE_EQ(1.5, ScaleYF(1.0));
    EXPECT_DOUBLE_EQ(0.8, UnscaleXF(1.0));
    EXPECT_DOUBLE_EQ(1.0, UnscaleYF(1.5));
}

TEST(Screen, RectanglesAndPointsAreConvertedInPlace)
{
    const ScreenResolution screen(144, 192);
    RECT                   rect = { 2, 4, 20, 40 };
    ScaleRect(&rect);
    EXPECT_TRUE(SameRect({ 3, 8, 30, 80 }, rect));
    UnscaleRect(&rect);
    EXPECT_TRUE(SameRect({ 2, 4, 20, 40 }, rect));

    POINT point = { 10, -10 };
    ScalePoint(&point);
    EXPECT_EQ(15, point.x);
    EXPECT_EQ(-20, point.y);
}

TEST(Screen, PointsGoByTheHeight)
{
    const ScreenResolution screen(96, 144);
    EXPECT_EQ(144, PointsToPixels(72));
    EXPECT_EQ(20, PointsToPixels(10));
}

TEST(Screen, SizeOfTheScreenIsInDesignUnits)
{
    const ScreenResolution screen(144, 192);
    EXPECT_EQ(MulDiv(GetSystemMetrics(SM_CXSCREEN), 96, 144), ScreenWidthUnits());
    EXPECT_EQ(MulDiv(GetSystemMetrics(SM_CYSCREEN), 96, 192), ScreenHeightUnits());
}

TEST(Screen, FitsWhatIsNotBiggerThanTheScreen)
{
    const ScreenResolution screen(96);
    const int              w = ScreenWidthUnits();
    const int              h = ScreenHeightUnits();
    EXPECT_NE(0, ScreenFits(w, h));
    EXPECT_EQ(0, ScreenFits(w + 1, h));
    EXPECT_EQ(0, ScreenFits(w, h + 1));
}

TEST(Screen, IsReadAgainOnlyWhenItWasForgotten)
{
    DpiReset();
    const int real = DpiX();
    EXPECT_EQ(1, fDpiRead);
    {
        const ScreenResolution screen(real * 2);
        EXPECT_EQ(real * 2, DpiX()) << "once asked, the screen isn't asked again";
        fDpiRead = 0;
        EXPECT_EQ(real * 2, nDpiX) << "the old value stands until a conversion";
        EXPECT_EQ(MulDiv(40, real, 96), ScaleX(40));
        EXPECT_EQ(real, nDpiX);
        EXPECT_EQ(1, fDpiRead);
    }
}

TEST(Screen, EveryConversionAsksFirst)
{
    POINT point = {};
    RECT  rect = {};
    void (*const conversions[])() = {
        [] { ScaleX(1); },
        [] { ScaleY(1); },
        [] { UnscaleX(1); },
        [] { UnscaleY(1); },
        [] { ScaleXF(1); },
        [] { ScaleYF(1); },
        [] { UnscaleXF(1); },
        [] { UnscaleYF(1); },
        [] { PointsToPixels(1); },
        [] { DpiX(); },
        [] { DpiY(); },
        [] { DpiPercent(); },
        [] { ScreenWidthUnits(); },
        [] { ScreenHeightUnits(); },
        [] { ScreenFits(1, 1); },
    };
    for (size_t i = 0; i < std::size(conversions); ++i) {
        DpiReset();
        conversions[i]();
        EXPECT_EQ(1, fDpiRead) << "conversion " << i;
    }
    DpiReset();
    ScalePoint(&point);
    EXPECT_EQ(1, fDpiRead);
    DpiReset();
    ScaleRect(&rect);
    EXPECT_EQ(1, fDpiRead);
    DpiReset();
    UnscaleRect(&rect);
    EXPECT_EQ(1, fDpiRead);
}

} // namespace
