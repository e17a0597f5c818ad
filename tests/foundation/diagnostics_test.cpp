// Lines for the debugger.
#include "foundation/startup.h"

#include "support/debug_output.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

namespace {

using Texts = std::vector<std::string>;

TEST(WriteDebug, FormatsLikeWsprintfAndAddsNoLineEnd)
{
    const DebugOutput output;
    WriteDebug("row %d of %s: %04X", 7, "grid", 0xABu);
    EXPECT_EQ(Texts{ "row 7 of grid: 00AB" }, output.Texts());
}

TEST(WriteDebug, CutsALineAt255Characters)
{
    const DebugOutput output;
    const std::string text(300, 'x');
    WriteDebug("%s", text.c_str());
    WriteDebug("%s", text.substr(0, 255).c_str());
    EXPECT_EQ((Texts{ std::string(255, 'x'), std::string(255, 'x') }), output.Texts());
}

TEST(WriteDebug, TakesALineLongerThanThePlatformFormats)
{
    const DebugOutput output;
    const std::string text(3000, 'y');
    WriteDebug("%s", text.c_str());
    EXPECT_EQ(Texts{ std::string(255, 'y') }, output.Texts());
}

TEST(WriteDebug, TakesNullForAnEmptyLine)
{
    const DebugOutput output;
    WriteDebug(nullptr);
    EXPECT_EQ(Texts{ "" }, output.Texts());
}

TEST(AssertFailedLineDeathTest, EndsTheProcess)
{
    EXPECT_DEATH(AssertFailedLine(), "");
}

// The number in front of " msec elapsed".
DWORD Elapsed(const std::string& text)
{
    const size_t end = text.find(" msec elapsed");
    EXPECT_EQ(text.size() - std::strlen(" msec elapsed"), end) << text;
    return static_cast<DWORD>(std::strtoul(text.c_str(), nullptr, 10));
}

TEST(DebugTimer, ReportsLabelElapsedTimeAndTwoLineEnds)
{
    DebugTimerStart();
    const DebugOutput output;
    DebugTimerReport("loading");
    const Texts texts = output.Texts();
    ASSERT_EQ(5u, texts.size());
    EXPECT_EQ("loading", texts[0]);
    EXPECT_EQ("\r\n", texts[1]);
    EXPECT_LT(Elapsed(texts[2]), 5000u);
    EXPECT_EQ("\r\n", texts[3]);
    EXPECT_EQ("\r\n", texts[4]);
}

TEST(DebugTimer, PrintsNoLabelLineForNull)
{
    DebugTimerStart();
    const DebugOutput output;
    DebugTimerReport(nullptr);
    EXPECT_EQ(3u, output.Texts().size());
}

TEST(DebugTimer, MeasuresASecondReportFromTheFirstDifference)
{
    const DebugOutput output;
    DebugTimerStart();
    DebugTimerReport(nullptr);
    const DWORD first = Elapsed(output.Texts()[0]);
    const DWORD before = GetTickCount();
    DebugTimerReport(nullptr);
    const DWORD second = Elapsed(output.Texts()[3]);
    EXPECT_GE(second, before - first);
    EXPECT_LE(second, GetTickCount() - first);
}

} // namespace
