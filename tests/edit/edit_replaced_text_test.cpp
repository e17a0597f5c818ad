// What a text that was scrolled leaves of its scroll position to the one that takes its place.
#include "edit_window.h"
#include "support/pixels.h"

#include <random>

namespace {

constexpr int shown = 10; // digits that the field has room for

class EditReplacedText : public EditWindow {
protected:
    void Make(const char* text, DWORD style = 0)
    {
        edit = nullptr;
        Create(text, style | HES_AUTOHSCROLL, 200, style & WS_HSCROLL ? 44 : 24);
        const int width = TextWidth(Ctl(), "0000000000", 0, shown) + 3;
        SetWindowPos(edit, nullptr, 0, 0, width, style & WS_HSCROLL ? 44 : 24, SWP_NOMOVE | SWP_NOZORDER);
    }
    void TypeDigits(int count)
    {
        Focus();
        for (int i = 0; i < count; ++i) {
            Send(WM_CHAR, static_cast<WPARAM>('1' + i % 9));
        }
    }
    // A field that is left with a text too long for it, of which the first characters don't show.
    void LeaveScrolled(const char* text, DWORD style = 0)
    {
        Make(text, style);
        TypeDigits(shown + 2);
        Blur();
        ASSERT_LT(0, Scroll());
    }
    int  Scroll() const { return static_cast<int>(Send(HEM_GETSCROLL)); }
    bool IsInside(int index) const
    {
        const int x = CaretX(Ctl(), index);
        return x >= Ctl()->rcText.left && x <= Ctl()->rcText.right;
    }
};

TEST_F(EditReplacedText, ValueThatMovedToItsBoundShowsWhole)
{
    Make("%nd|0;999999;|*0");
    TypeDigits(shown + 2);
    ASSERT_LT(0, Scroll());
    Blur();
    EXPECT_EQ("999999", Text());
    EXPECT_EQ(0, Scroll());
    EXPECT_EQ(0, +Ctl()->nScrollMax);
    const Pixels left = ShotOf(edit);
    const double value = 999999;
    Make("%nd*0");
    Send(HEM_SETDATA, 0, AsParam(&value));
    EXPECT_TRUE(SamePixels(ShotOf(edit), left));
}

TEST_F(EditReplacedText, FieldThatIsEnteredOnceMoreShowsAShortValueWhole)
{
    Make("%nd|0;9999;|*0");
    TypeDigits(shown + 2);
    Blur();
    Focus();
    EXPECT_EQ("9999", Text());
    EXPECT_EQ(0, Scroll());
}

TEST_F(EditReplacedText, TextThatIsStillTooLongKeepsItsPlace)
{
    Make("%nd*0");
    TypeDigits(shown + 2);
    const int scroll = Scroll();
    ASSERT_LT(0, scroll);
    Blur();
    EXPECT_EQ(scroll, Scroll());
}

TEST_F(EditReplacedText, ShorterTextThatIsTooLongFillsTheField)
{
    Make("%nd|0;999999999999;|*0");
    TypeDigits(15);
    const int scroll = Scroll();
    Blur();
    EXPECT_EQ("999999999999", Text());
    EXPECT_LT(Scroll(), scroll);
    EXPECT_GE(5, Scroll()) << "the range leaves three characters to spare";
    EXPECT_LT(0, Scroll());
}

TEST_F(EditReplacedText, WindowTextOfAFieldWithoutTheFocusShowsWhole)
{
    LeaveScrolled("%nd*0");
    SendText(WM_SETTEXT, 0, "500000");
    EXPECT_EQ("500000", Text());
    EXPECT_EQ(0, Scroll());
}

TEST_F(EditReplacedText, LinkedBufferThatIsReadShowsWhole)
{
    double value = 0;
    LeaveScrolled("%nd*0");
    Send(HEM_LINKDATA, 0, AsParam(&value));
    value = 42;
    Send(HEM_COMMIT, 0, 0);
    EXPECT_EQ("42", Text());
    EXPECT_EQ(0, Scroll());
}

TEST_F(EditReplacedText, OldValueThatAVetoBringsBackShowsWhole)
{
    Make("%dl");
    const int date = 20240517;
    Send(HEM_SETDATA, 0, AsParam(&date));
    Focus();
    const std::string text = Text();
    Replace((DateText(31, 4, 2024) + "          ").c_str());
    Ctl()->nScroll = 8;
    Veto(HEN_BADINPUT);
    Blur();
    EXPECT_EQ(date, Number());
    EXPECT_EQ(0, Scroll());
}

TEST_F(EditReplacedText, WhatWasHiddenAtOneEndIsNotHiddenAtTheOther)
{
    Make("%nd*0", HES_RIGHT);
    TypeDigits(shown + 2);
    ASSERT_LT(0, Scroll());
    Blur();
    EXPECT_EQ(0, Scroll()) << "the last digits show";
    Focus();
    TypeDigits(shown + 2);
    EXPECT_TRUE(IsInside(Ctl()->nCaret));
}

TEST_F(EditReplacedText, ShortValueOfARightAlignedFieldShowsWhole)
{
    Make("%nd*0", HES_RIGHT | HES_EDITRIGHT);
    TypeDigits(15);
    Send(WM_KEYDOWN, VK_HOME);
    ASSERT_LT(4, Scroll());
    Blur();
    const double value = 50000;
    Send(HEM_SETDATA, 0, AsParam(&value));
    EXPECT_EQ(0, Scroll());
}

TEST_F(EditReplacedText, CenteredFormAndEmptyTextAreNotScrolled)
{
    Make("%nd*0", HES_CENTER);
    TypeDigits(shown + 2);
    Blur();
    EXPECT_EQ(0, Scroll());
    LeaveScrolled("%nd*0");
    Send(HEM_SETDATA, 0, 0);
    EXPECT_EQ("", Text());
    EXPECT_EQ(0, Scroll());
}

TEST_F(EditReplacedText, ScrollBarShowsThePlace)
{
    Make("%nd|0;999999999999;|*0", WS_HSCROLL);
    TypeDigits(15);
    ASSERT_EQ(Scroll(), GetScrollPos(edit, SB_HORZ));
    Blur();
    ASSERT_LT(0, Scroll());
    EXPECT_EQ(Scroll(), GetScrollPos(edit, SB_HORZ));
}

TEST_F(EditReplacedText, TextThatIsTypedStaysWhereItIsAtACommit)
{
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HES_EDITRIGHT } }) {
        Make("%nd*0", style);
        TypeDigits(15);
        Send(WM_KEYDOWN, VK_HOME);
        for (const WPARAM key : { VK_HOME, VK_END }) {
            Send(WM_KEYDOWN, key);
            const int scroll = Scroll();
            Send(HEM_COMMIT, 1, 1);
            EXPECT_EQ(scroll, Scroll()) << key << " style " << style;
            EXPECT_TRUE(IsInside(Ctl()->nCaret)) << key << " style " << style;
        }
    }
}

TEST_F(EditReplacedText, WhatTheUserScrolledToStaysAtACommit)
{
    Make("%nd*0", WS_HSCROLL);
    TypeDigits(15);
    for (int scroll = 0; scroll <= 5; ++scroll) {
        Send(HEM_SETSCROLL, static_cast<WPARAM>(scroll));
        Send(HEM_COMMIT, 1, 1);
        EXPECT_EQ(scroll, Scroll());
    }
}

TEST_F(EditReplacedText, CaretFollowsATextThatScrollsBack)
{
    Make("%nd*0");
    TypeDigits(20);
    for (int i = 0; i < 7; ++i) {
        Send(WM_CHAR, VK_BACK);
    }
    const int scroll = Scroll();
    Send(HEM_COMMIT, 1, 1);
    ASSERT_LT(Scroll(), scroll);
    EXPECT_TRUE(IsInside(Ctl()->nCaret));
    POINT caret = {};
    GetCaretPos(&caret);
    EXPECT_EQ(CaretX(Ctl(), Ctl()->nCaret) - 1, caret.x) << "at the end, a pixel to the left";
}

TEST_F(EditReplacedText, F2BringsTheEditFormBackAsItWasScrolled)
{
    Make("%nd*0", HES_RIGHT);
    TypeDigits(15);
    const int scroll = Scroll();
    ASSERT_LT(0, scroll);
    Send(WM_KEYDOWN, VK_F2);
    EXPECT_EQ(0, Scroll());
    Send(WM_KEYUP, VK_F2);
    EXPECT_EQ(scroll, Scroll());
    EXPECT_TRUE(IsInside(Ctl()->nCaret));
}

TEST_F(EditReplacedText, ScrollRangeFollowsATextThatALimitCuts)
{
    Make(std::string(60, '0').c_str());
    Focus();
    Send(WM_KEYDOWN, VK_END);
    ASSERT_LT(40, Scroll());
    Send(EM_LIMITTEXT, 5);
    EXPECT_EQ("00000", Text());
    EXPECT_EQ(0, Scroll());
    EXPECT_EQ(0, +Ctl()->nScrollMax);
}

// Whatever was typed and wherever the caret went: what is rebuilt with the same text keeps the caret in view, and a
// text that fits shows whole in display form.
TEST_F(EditReplacedText, NoRefreshScrollsTheCaretOutOfView)
{
    constexpr DWORD styles[] = { 0, HES_EDITRIGHT, HES_RIGHT, HES_RIGHT | HES_EDITRIGHT, WS_HSCROLL };
    constexpr char  letters[] = "iW1.m0";
    std::mt19937    random(5);
    int             kept = 0;
    for (int round = 0; round < 20; ++round) {
        const DWORD style = styles[round % 5];
        SCOPED_TRACE(style);
        Make(round % 2 ? "%nd*0.###" : "", style);
        Focus();
        for (int step = 0; step < 60; ++step) {
            const unsigned pick = random() % 12;
            if (pick < 6) {
                Send(WM_CHAR, static_cast<WPARAM>(letters[pick]));
            } else if (pick < 8) {
                Send(WM_CHAR, VK_BACK);
            } else {
                constexpr WPARAM keys[] = { VK_LEFT, VK_HOME, VK_END, VK_RIGHT };
                Send(WM_KEYDOWN, keys[pick - 8]);
            }
            const std::string text = Text();
            const bool        inside = IsInside(Ctl()->nCaret);
            const bool        byF2 = random() % 2 != 0;
            if (byF2) {
                Send(WM_KEYDOWN, VK_F2);
                Send(WM_KEYUP, VK_F2);
            } else {
                Send(HEM_COMMIT, 1, 1);
            }
            if (inside && text == Text()) {
                ++kept;
                ASSERT_TRUE(IsInside(Ctl()->nCaret)) << text << " step " << step << " F2 " << byF2;
            }
            ASSERT_LE(+Ctl()->nScroll, +Ctl()->nScrollMax) << text;
        }
        Blur();
        if (TextWidth(Ctl(), Text().c_str(), 0, -1) < Ctl()->rcText.right - Ctl()->rcText.left) {
            EXPECT_EQ(0, Scroll()) << Text();
        }
        DestroyWindow(edit);
    }
    EXPECT_LT(500, kept);
}

} // namespace
