// The pace of the scrolling during a drag.
#include "dialog/dialog_internal.h"

#include "support/screen_resolution.h"

#include <gtest/gtest.h>

namespace {

constexpr RECT client = { 0, 0, 300, 100 };

struct DelayRow {
    int   x;
    int   y;
    DWORD delay;
};

void ExpectDelays(const DelayRow* rows, size_t count, bool horizontal)
{
    for (size_t i = 0; i < count; ++i) {
        EXPECT_EQ(rows[i].delay, ScrollDelay(client, { rows[i].x, rows[i].y }, horizontal))
            << "pointer at " << rows[i].x << ", " << rows[i].y;
    }
}

TEST(ScrollDelay, GetsShorterWithTheDistanceBelowAndAbove)
{
    const ScreenResolution screen(96);
    constexpr DelayRow     rows[] = {
            { 10, 101, 200 }, { 10, 105, 200 }, { 10, 119, 200 }, { 10, 120, 200 }, { 10, 125, 150 }, { 10, 139, 10 },
            { 10, 140, 0 },   { 10, 141, 0 },   { 10, 145, 0 },   { 10, -5, 200 },  { 10, -25, 150 }, { 10, -45, 0 },
    };
    ExpectDelays(rows, std::size(rows), false);
    ExpectDelays(rows, std::size(rows), true);
}

TEST(ScrollDelay, CountsTheDistanceAcrossOnlyWhenAsked)
{
    const ScreenResolution screen(96);
    constexpr DelayRow     across[] = {
            { 305, 50, 200 }, { 309, 50, 200 }, { 310, 50, 200 }, { 315, 50, 150 },
            { 330, 50, 0 },   { 331, 50, 0 },   { -15, 50, 150 }, { -40, 50, 0 },
    };
    ExpectDelays(across, std::size(across), true);
    constexpr DelayRow ignored[] = { { 305, 50, 0 }, { 315, 50, 0 }, { -15, 50, 0 } };
    ExpectDelays(ignored, std::size(ignored), false);
}

TEST(ScrollDelay, CountsAPointerInsideAsHardlyOutside)
{
    const ScreenResolution screen(96);
    EXPECT_EQ(200u, ScrollDelay(client, { 150, 50 }, true));
    EXPECT_EQ(0u, ScrollDelay(client, { 150, 50 }, false));
    EXPECT_EQ(0u, ScrollDelay(client, { 150, 100 }, false)) << "on the edge is inside";
}

TEST(ScrollDelay, TheDistanceDownComesFirst)
{
    const ScreenResolution screen(96);
    EXPECT_EQ(200u, ScrollDelay(client, { 340, 105 }, true));
}

TEST(ScrollDelay, MeasuresInDesignUnits)
{
    const ScreenResolution screen(192);
    constexpr DelayRow     rows[] = { { 10, 139, 200 }, { 10, 150, 150 }, { 10, 180, 0 }, { 10, 181, 0 } };
    ExpectDelays(rows, std::size(rows), true);
    EXPECT_EQ(150u, ScrollDelay(client, { 330, 50 }, true));
}

TEST(ScrollDelay, IsNeverBelowZeroWhereRoundingLeadsFurtherOut)
{
    {
        const ScreenResolution screen(90);
        ASSERT_EQ(41, UnscaleY(ScaleY(40)));
        EXPECT_EQ(0u, ScrollDelay(client, { 10, 138 }, false));
    }
    const ScreenResolution screen(72);
    ASSERT_EQ(31, UnscaleX(ScaleX(30)));
    EXPECT_EQ(0u, ScrollDelay(client, { 323, 50 }, true));
}

} // namespace
