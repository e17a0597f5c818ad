// Measures of fonts and lines, and the platform's version.
#include "dialog/control_frame.h"

#include "foundation/gdi_guards.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

constexpr char letters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

TEST(GetBaseUnits, AveragesTheWidthOfTheLetters)
{
    const WindowDC       screen(nullptr);
    const SelectedObject font(screen.hdc, GetStockObject(SYSTEM_FONT));
    SIZE                 size = {};
    GetTextExtentPointA(screen.hdc, letters, 52, &size);
    const DWORD units = GetBaseUnits(nullptr);
    EXPECT_EQ(size.cx / 52, LOWORD(units));
    EXPECT_EQ(size.cy, HIWORD(units));
    EXPECT_GT(HIWORD(units), 0);
}

TEST(GetBaseUnits, TakesNullForTheSystemFont)
{
    EXPECT_EQ(GetBaseUnits(nullptr), GetBaseUnits(static_cast<HFONT>(GetStockObject(SYSTEM_FONT))));
}

class MeasureLines : public testing::Test {
protected:
    SIZE LineSize(const char* line)
    {
        RECT rect = {};
        DrawTextA(screen_.hdc, line, -1, &rect, DT_CALCRECT | DT_EXPANDTABS | DT_SINGLELINE);
        return { rect.right, rect.bottom };
    }
    DWORD Measure(const char* text) { return HMeasureLines(screen_.hdc, text); }

    WindowDC screen_{ nullptr };
};

TEST_F(MeasureLines, GivesTheWidestLineAndTheSumOfHeights)
{
    const SIZE  narrow = LineSize("ab");
    const SIZE  wide = LineSize("a wide line");
    const DWORD size = Measure("ab\na wide line\nab");
    EXPECT_EQ(wide.cx, LOWORD(size));
    EXPECT_EQ(wide.cy + 2 * narrow.cy, HIWORD(size));
}

TEST_F(MeasureLines, SkipsEmptyLines)
{
    EXPECT_EQ(Measure("ab\ncd"), Measure("\n\nab\n\n\ncd\n"));
}

TEST_F(MeasureLines, MeasuresOneLineWithoutLineEnd)
{
    const SIZE line = LineSize("caption");
    EXPECT_EQ(static_cast<DWORD>(MAKELONG(line.cx, line.cy)), Measure("caption"));
}

TEST_F(MeasureLines, GivesZeroForNothing)
{
    EXPECT_EQ(0u, Measure(""));
    EXPECT_EQ(0u, Measure("\n\n"));
}

TEST(HWinVersion, PutsTheMajorNumberFirst)
{
    const DWORD version = GetVersion();
    EXPECT_EQ(LOBYTE(version) * 256 + HIBYTE(version), HWinVersion());
    EXPECT_GE(HWinVersion(), 0x0400);
}

} // namespace
