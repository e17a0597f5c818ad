// How a combo's buttons are painted, by the library and by a host's painter.
#include "button/draw.h"
#include "combo_window.h"
#include "foundation/startup.h"
#include "support/pixels.h"

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT | HCS_3DBORDER;

struct PartCall {
    int              part;
    std::vector<int> rect;
    int              enabled;
    int              pressed;
    int              hot;
    bool             operator==(const PartCall&) const = default;
};
std::vector<PartCall> gCalls;
int                   gAnswer;

int CALLBACK PaintPart(int part, HDC hdc, RECT* rect, int enabled, int pressed, int hot)
{
    EXPECT_NE(nullptr, hdc);
    gCalls.push_back({ part, Corners(*rect), enabled, pressed, hot });
    return gAnswer;
}

class ComboButtons : public ComboWindow {
protected:
    ComboButtons()
    {
        gCalls.clear();
        gAnswer = 1;
    }
    // The library's own drawing of a button of a size.
    static Pixels Face(int width, int height, bool pressed, int image)
    {
        Canvas canvas(width, height);
        RECT   rect = { 0, 0, width, height };
        DrawPushButton(nullptr, canvas.hdc(), &rect, 1, static_cast<WORD>(pressed ? 0x44 : 0x40), nullptr, nullptr,
                       nullptr, 0xFF00, image);
        return canvas.Shot();
    }
    // What a combo draws of a button, moved to the canvas' corner.
    Pixels Drawn(bool extra, bool pressed, const RECT& rect)
    {
        Canvas canvas(static_cast<int>(rect.right - rect.left), static_cast<int>(rect.bottom - rect.top));
        SetViewportOrgEx(canvas.hdc(), -static_cast<int>(rect.left), -static_cast<int>(rect.top), nullptr);
        (extra ? HCDrawXButton : HCDrawDropButton)(Ctl(), canvas.hdc(), pressed, false);
        SetViewportOrgEx(canvas.hdc(), 0, 0, nullptr);
        return canvas.Shot();
    }
};

TEST_F(ComboButtons, AreDrawnAsPushButtonsWithImages)
{
    Make("%120%ss", edits | HCS_XBUTTON);
    for (const bool enabled : { true, false }) {
        EnableWindow(combo, enabled);
        for (const bool pressed : { false, true }) {
            const RECT drop = HCDropButtonRect(Ctl());
            const RECT extra = HCXButtonRect(Ctl());
            const int  width = static_cast<int>(drop.right - drop.left);
            EXPECT_TRUE(
                SamePixels(ComboButtons::Face(width, 24, pressed, enabled ? 11 : 12), Drawn(false, pressed, drop)));
            EXPECT_TRUE(
                SamePixels(ComboButtons::Face(width, 24, pressed, enabled ? 9 : 10), Drawn(true, pressed, extra)));
        }
    }
}

TEST_F(ComboButtons, ThatAreNotThereAreNotDrawn)
{
    Make("%ss", edits);
    pfnDrawPart = PaintPart;
    HCDrawDropButton(Ctl(), nullptr, false, false);
    HCDrawXButton(Ctl(), nullptr, false, false);
    EXPECT_TRUE(gCalls.empty());
}

struct PartCase {
    const char* text;
    DWORD       style;
    int         drop; // 0: none
    int         extra;
};

TEST_F(ComboButtons, PainterOfTheHostGetsThePartNumbers)
{
    constexpr PartCase cases[] = {
        { "%120%ss", 0, 1, 0 },
        { "%120%ss", HCS_XBUTTON, 1, 2 },
        { "%120%ss", HCS_STACKED, 3, 4 },
        { "%120%ss", HCS_STACKED | HCS_XBUTTON, 1, 2 },
        { "%120%ss", HCS_STACKED | HCS_NOBUTTON, 0, 2 },
        { "%120%ss", HCS_NOBUTTON, 0, 2 },
        { "%ss", HCS_STACKED, 0, 2 },
    };
    for (const PartCase& line : cases) {
        pfnDrawPart = nullptr;
        Make(line.text, edits | line.style);
        pfnDrawPart = PaintPart;
        std::vector<PartCall> expected;
        if (line.drop) {
            expected.push_back({ line.drop, Corners(HCDropButtonRect(Ctl())), 1, 1, 0 });
        }
        if (line.extra) {
            expected.push_back({ line.extra, Corners(HCXButtonRect(Ctl())), 1, 0, 1 });
        }
        gCalls.clear();
        HCDrawDropButton(Ctl(), nullptr, true, false);
        HCDrawXButton(Ctl(), nullptr, false, true);
        EXPECT_EQ(expected, gCalls) << std::hex << line.style;
    }
}

TEST_F(ComboButtons, PainterOfTheHostMayLeaveItToTheLibrary)
{
    Make("%120%ss", edits);
    pfnDrawPart = PaintPart;
    gAnswer = 0;
    const RECT   rect = HCDropButtonRect(Ctl());
    const Pixels drawn = Drawn(false, false, rect);
    EXPECT_TRUE(SamePixels(ComboButtons::Face(drawn.width, drawn.height, false, 11), drawn));
    gAnswer = 1;
    EXPECT_TRUE(Drawn(false, false, rect).IsAll(RGB(255, 255, 255), drawn.Bounds())) << "the host has painted";
}

TEST_F(ComboButtons, AreDrawnWhenTheBackgroundIs)
{
    Make("%120%ss", edits | HCS_XBUTTON);
    EnableWindow(combo, FALSE);
    pfnDrawPart = PaintPart;
    Ctl()->wFlags |= HCF_BTNDOWN | HCF_XBTNHOT;
    const HDC dc = GetDC(combo);
    EXPECT_EQ(1, Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)));
    ReleaseDC(combo, dc);
    const std::vector<PartCall> expected = { { 1, Corners(HCDropButtonRect(Ctl())), 0, 1, 0 },
                                             { 2, Corners(HCXButtonRect(Ctl())), 0, 0, 1 } };
    EXPECT_EQ(expected, gCalls);
}

TEST_F(ComboButtons, ASimpleComboHasNoneOnTheScreen)
{
    Make("%120%ss", HCS_EDIT | HCS_XBUTTON, 160, 120);
    pfnDrawPart = PaintPart;
    const HDC dc = GetDC(combo);
    Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc));
    ReleaseDC(combo, dc);
    Send(WM_CANCELMODE);
    Send(WM_MOUSEMOVE, 0, MAKELPARAM(155, 5));
    EXPECT_TRUE(gCalls.empty());
}

TEST_F(ComboButtons, ClientEdgeIsThePaintersPart)
{
    combo = CreateWindowExA(WS_EX_CLIENTEDGE, "HComb", "%120%ss", WS_CHILD | WS_VISIBLE | edits, 10, 10, 160, 28,
                            parent.hwnd(), reinterpret_cast<HMENU>(7), GetModuleHandleA(nullptr), nullptr);
    PumpPending();
    pfnDrawPart = PaintPart;
    gCalls.clear();
    EXPECT_EQ(0, Send(WM_NCPAINT, 1));
    const std::vector<PartCall> expected = { { 8, { 0, 0, 160, 28 }, 1, 0, 1 } };
    EXPECT_EQ(expected, gCalls);
    pfnDrawPart = nullptr;
    Make("%120%ss", edits);
    pfnDrawPart = PaintPart;
    gCalls.clear();
    Send(WM_NCPAINT, 1);
    EXPECT_TRUE(gCalls.empty()) << "without the edge the default paints";
}

TEST_F(ComboButtons, WithoutADcAreDrawnIntoTheWindow)
{
    Make("%120%ss", edits | HCS_XBUTTON);
    const Pixels plain = ShotOf(combo);
    HCDrawDropButton(Ctl(), nullptr, true, false);
    const Pixels drop = ShotOf(combo);
    EXPECT_FALSE(SamePixels(plain, drop));
    EXPECT_TRUE(SamePixels(plain, drop, HCXButtonRect(Ctl())));
    HCDrawXButton(Ctl(), nullptr, true, false);
    EXPECT_FALSE(SamePixels(drop, ShotOf(combo)));
}

} // namespace
