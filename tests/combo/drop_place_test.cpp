// Where a list drops: at every edge of a monitor.
#include "combo/drop_place.h"

#include <gtest/gtest.h>

#include <ostream>

void PrintTo(const RECT& rect, std::ostream* out)
{
    *out << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom;
}

namespace {

bool IsSame(const RECT& a, const RECT& b)
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

struct PlaceRow {
    const char* what;
    RECT        combo;
    RECT        monitor;
    int         leastWidth;
    int         height;
    RECT        list;
};

constexpr RECT first = { 0, 0, 1000, 800 };
constexpr RECT right = { 1000, 0, 2000, 800 };
constexpr RECT leftAbove = { -1200, -900, 0, 0 };

// clang-format off
constexpr PlaceRow rows[] = {
    { "with room: below the combo and as wide",  { 100, 100, 200, 120 }, first, 0,    100, { 100, 120, 200, 220 } },
    { "a least width that the combo has",        { 100, 100, 200, 120 }, first, 100,  100, { 100, 120, 200, 220 } },
    { "a least width beyond the combo's",        { 100, 100, 200, 120 }, first, 250,  100, { 100, 120, 350, 220 } },
    { "to the last pixel of the monitor",        { 100, 680, 200, 700 }, first, 0,    100, { 100, 700, 200, 800 } },
    { "one pixel too low: above the combo",      { 100, 681, 200, 701 }, first, 0,    100, { 100, 581, 200, 681 } },
    { "at the bottom edge: above the combo",     { 100, 780, 200, 800 }, first, 0,    100, { 100, 680, 200, 780 } },
    { "no room below nor above: at the top",     { 100, 400, 200, 420 }, first, 0,    500, { 100, 0, 200, 500 } },
    { "room above to the last pixel",            { 100, 500, 200, 520 }, first, 0,    500, { 100, 0, 200, 500 } },
    { "room above and a pixel more",             { 100, 501, 200, 521 }, first, 0,    500, { 100, 1, 200, 501 } },
    { "higher than the monitor",                 { 100, 400, 200, 420 }, first, 0,    900, { 100, 0, 200, 900 } },
    { "past the bottom edge",                    { 100, 850, 200, 870 }, first, 0,    100, { 100, 700, 200, 800 } },
    { "past the bottom edge, top on it",         { 100, 800, 200, 820 }, first, 0,    100, { 100, 700, 200, 800 } },
    { "past the right edge",                     { 950, 100, 1050, 120 }, first, 0,   100, { 900, 120, 1000, 220 } },
    { "a wide list at the right edge",           { 900, 100, 1000, 120 }, first, 300, 100, { 700, 120, 1000, 220 } },
    { "a wide list to the last pixel",           { 700, 100, 800, 120 }, first, 300,  100, { 700, 120, 1000, 220 } },
    { "as wide as the monitor: where it is",     { 100, 100, 200, 120 }, first, 1000, 100, { 100, 120, 1100, 220 } },
    { "wider than the monitor: where it is",     { 100, 100, 200, 120 }, first, 1500, 100, { 100, 120, 1600, 220 } },
    { "a pixel narrower than the monitor",       { 100, 100, 200, 120 }, first, 999,  100, { 1, 120, 1000, 220 } },
    { "left of the left edge",                   { -30, 100, 70, 120 },  first, 0,    100, { 0, 120, 100, 220 } },
    { "left of the left edge and too wide",      { -30, 100, 70, 120 },  first, 1500, 100, { 0, 120, 1500, 220 } },
    { "above the top edge, and no room",         { 100, -40, 200, -20 }, first, 0,    900, { 100, 0, 200, 900 } },
    { "above the top edge, with room",           { 100, -40, 200, -20 }, first, 0,    100, { 100, -20, 200, 80 } },
    { "on a monitor to the right",               { 990, 100, 1090, 120 }, right, 0,   100, { 1000, 120, 1100, 220 } },
    { "at the far edge of that monitor",         { 1950, 790, 2050, 810 }, right, 0,  100, { 1900, 690, 2000, 790 } },
    { "on a monitor to the left and above",      { -100, -20, 0, 0 }, leftAbove, 200, 100, { -200, -120, 0, -20 } },
    { "at the left edge of that monitor",        { -1300, -500, -1200, -480 }, leftAbove, 0, 100,
                                                 { -1200, -480, -1100, -380 } },
};
// clang-format on

TEST(HCDropRect, PutsTheListOnTheMonitor)
{
    for (const PlaceRow& row : rows) {
        const RECT list = HCDropRect(row.combo, row.monitor, row.leastWidth, row.height);
        EXPECT_TRUE(IsSame(row.list, list)) << row.what << ": " << testing::PrintToString(list);
    }
}

TEST(HCDropRect, ListOfAComboFarBelowAndHigherThanTheMonitorEndsAtItsBottom)
{
    const RECT list = HCDropRect({ 100, 2000, 200, 2020 }, first, 0, 900);
    EXPECT_TRUE(IsSame({ 100, -100, 200, 800 }, list)) << testing::PrintToString(list);
}

} // namespace
