// Rows of plain ASCII drawn by glyphs: the pixels of text, or nothing.
#include "list_window.h"
#include "support/import_hook.h"
#include "support/pixels.h"

#include <algorithm>
#include <string>

namespace {

constexpr int  width = 900;
constexpr int  height = 30;
constexpr RECT whole = { 0, 0, width, height };

class AsciiGlyphsTest : public testing::Test {
protected:
    AsciiGlyphsTest() : canvas(width, height)
    {
        font = CreateFontA(-13, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                           CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "Tahoma");
        SelectObject(canvas.hdc(), font);
    }
    ~AsciiGlyphsTest() override
    {
        SelectObject(canvas.hdc(), GetStockObject(SYSTEM_FONT));
        DeleteObject(font);
    }
    bool Draw(const std::string& text)
    {
        canvas.Fill(RGB(255, 255, 255));
        const AsciiGlyphs glyphs = FindAsciiGlyphs(canvas.hdc());
        return DrawAsciiGlyphs(canvas.hdc(), whole, ETO_CLIPPED, glyphs, text.c_str(), static_cast<int>(text.size()));
    }

    Canvas canvas;
    HFONT  font;
};

TEST_F(AsciiGlyphsTest, ShowWhatTextShows)
{
    std::string all;
    for (char c = ' '; c <= '~'; ++c) {
        all += c;
    }
    for (const std::string& text : { all, std::string("item number 17 of this"), std::string() }) {
        ASSERT_TRUE(Draw(text)) << text;
        const Pixels seen = canvas.Shot();
        canvas.Fill(RGB(255, 255, 255));
        ExtTextOutA(canvas.hdc(), 0, 0, ETO_CLIPPED, &whole, text.c_str(), static_cast<UINT>(text.size()), nullptr);
        EXPECT_TRUE(SamePixels(canvas.Shot(), seen)) << text;
        EXPECT_EQ(text.empty(), seen.IsAll(RGB(255, 255, 255), whole)) << text;
    }
}

TEST_F(AsciiGlyphsTest, DrawNothingOfOtherTexts)
{
    const std::string texts[] = { "caf\xE9", "a\tb", "a\x7F", "a\nb", std::string(longestGlyphRun + 1, 'a') };
    for (const std::string& text : texts) {
        EXPECT_FALSE(Draw(text)) << text;
        EXPECT_TRUE(canvas.Shot().IsAll(RGB(255, 255, 255), whole)) << text;
    }
    EXPECT_TRUE(Draw(std::string(longestGlyphRun, 'a')));
}

BOOL WINAPI TellOfPixels(HDC, TEXTMETRICW* metrics)
{
    *metrics = {};
    metrics->tmPitchAndFamily = TMPF_FIXED_PITCH | TMPF_VECTOR;
    return TRUE;
}

DWORD WINAPI MissOne(HDC, LPCWSTR, int count, WORD* glyphs, DWORD)
{
    std::fill_n(glyphs, count, WORD{ 5 });
    glyphs[count - 1] = 0xFFFF;
    return static_cast<DWORD>(count);
}

TEST_F(AsciiGlyphsTest, FontsOfPixelsAndFontsThatMissOneHaveNone)
{
    EXPECT_TRUE(FindAsciiGlyphs(canvas.hdc()).known);
    {
        const ImportHook hook("GetTextMetricsW", TellOfPixels);
        EXPECT_FALSE(FindAsciiGlyphs(canvas.hdc()).known);
    }
    const ImportHook hook("GetGlyphIndicesW", MissOne);
    EXPECT_FALSE(FindAsciiGlyphs(canvas.hdc()).known);
}

TEST_F(AsciiGlyphsTest, LinesFromTheRightAreLeftToThePlatform)
{
    SetTextAlign(canvas.hdc(), TA_RTLREADING);
    EXPECT_FALSE(Draw("text"));
    SetTextAlign(canvas.hdc(), 0);
    SetLayout(canvas.hdc(), LAYOUT_RTL);
    EXPECT_FALSE(Draw("text"));
    SetLayout(canvas.hdc(), 0);
    EXPECT_TRUE(Draw("text"));
}

class ListGlyphs : public ListWindow {};

// One row is too few for glyphs to be looked up.
TEST_F(ListGlyphs, ManyRowsShowWhatEachShowsAlone)
{
    Make("%ss", HLS_NOSCROLL, 200, 400);
    for (int i = 0; i < 20; ++i) {
        Add({ i % 4 ? "plain row"
                    : "Stra\xDF"
                      "e" });
    }
    Send(HLM_SETCURRENT, 3);
    ShowRows(15);
    const Pixels once = ShotOf(list);
    for (int i = 0; i < 15; ++i) {
        RECT row;
        HLItemRect(Ctl(), i, &row);
        RedrawWindow(list, &row, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    EXPECT_TRUE(SamePixels(once, ShotOf(list)));
    EXPECT_FALSE(once.IsAll(GetSysColor(COLOR_WINDOW), once.Bounds()));
}

TEST_F(ListGlyphs, AsksTheParentForItsBrushOnce)
{
    Make("%ss", HLS_NOSCROLL, 200, 100);
    Add({ "one", "two" });
    PumpPending();
    int asked = 0;
    parent.OnMessage(WM_CTLCOLORLISTBOX, [&](WPARAM, LPARAM) {
        ++asked;
        return reinterpret_cast<LRESULT>(GetStockObject(GRAY_BRUSH));
    });
    for (const UINT erase : { UINT{ RDW_ERASE }, UINT{ 0 } }) {
        asked = 0;
        RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | erase);
        EXPECT_EQ(1, asked) << (erase ? "with its background" : "the items alone");
    }
    EnableWindow(list, FALSE);
    asked = 0;
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    EXPECT_EQ(1, asked) << "the items alone: the background of a disabled list asks as a static text does";
    parent.OnMessage(WM_CTLCOLORLISTBOX, nullptr);
}

} // namespace
