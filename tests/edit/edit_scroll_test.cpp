// Scrolling of the text.
#include "edit_window.h"
#include "support/pixels.h"

namespace {

using EditScroll = EditWindow;

const std::string longText(100, 'x');

TEST_F(EditScroll, ScrollBySaysHowFarItGot)
{
    Create(longText.c_str(), HES_AUTOHSCROLL);
    EXPECT_EQ(5, ScrollBy(Ctl(), 5));
    EXPECT_EQ(5, +Ctl()->nScroll);
    EXPECT_EQ(-5, ScrollBy(Ctl(), -50));
    EXPECT_EQ(0, +Ctl()->nScroll);
    const int max = Ctl()->nScrollMax;
    EXPECT_EQ(max, ScrollBy(Ctl(), 1000));
    EXPECT_EQ(0, ScrollBy(Ctl(), 1));
}

TEST_F(EditScroll, RightAlignedTextScrollsTheOtherWay)
{
    Create(longText.c_str(), HES_AUTOHSCROLL | HES_RIGHT);
    EXPECT_EQ(-5, ScrollBy(Ctl(), -5));
    EXPECT_EQ(5, +Ctl()->nScroll) << "characters hidden at the right end";
    EXPECT_EQ(5, ScrollBy(Ctl(), 50));
    EXPECT_EQ(0, +Ctl()->nScroll);
}

TEST_F(EditScroll, ScrollTellsTheParent)
{
    Create(longText.c_str(), HES_AUTOHSCROLL);
    ScrollBy(Ctl(), 5);
    EXPECT_EQ(Codes{ HEN_HSCROLL }, Told());
    ScrollBy(Ctl(), 0);
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditScroll, FieldThatCannotScrollMovesItsPositionSilently)
{
    Create(longText.c_str());
    EXPECT_EQ(0, ScrollBy(Ctl(), 5));
    EXPECT_EQ(5, +Ctl()->nScroll);
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditScroll, ScrollRangeStaysWhenTheTextLosesOneOrTwoCharacters)
{
    Create(longText.c_str(), HES_AUTOHSCROLL);
    const int max = Ctl()->nScrollMax;
    // The range leaves three characters to spare, which the text now takes.
    SendText(HEM_SETDATA, 0, std::string(103, 'x').c_str());
    for (size_t length = 102; length >= 100; --length) {
        SendText(HEM_SETDATA, 0, std::string(length, 'x').c_str());
        EXPECT_EQ(max, +Ctl()->nScrollMax) << length;
    }
    SendText(HEM_SETDATA, 0, std::string(80, 'x').c_str());
    EXPECT_EQ(max - 20, +Ctl()->nScrollMax);
}

TEST_F(EditScroll, ScrollRangeIsNothingWithoutTextAndInACentredField)
{
    Create("", HES_AUTOHSCROLL);
    EXPECT_EQ(0, +Ctl()->nScrollMax);
    edit = nullptr;
    Create(longText.c_str(), HES_AUTOHSCROLL | HES_CENTER);
    EXPECT_EQ(0, +Ctl()->nScrollMax);
    edit = nullptr;
    Create("short", HES_AUTOHSCROLL);
    EXPECT_EQ(0, +Ctl()->nScrollMax);
}

TEST_F(EditScroll, ScrollBarShowsTheRangeAndThePosition)
{
    Create(longText.c_str(), WS_HSCROLL, 200, 40);
    int low = -1;
    int high = -1;
    GetScrollRange(edit, SB_HORZ, &low, &high);
    EXPECT_EQ(0, low);
    EXPECT_EQ(+Ctl()->nScrollMax, high);
    ScrollBy(Ctl(), 7);
    EXPECT_EQ(7, GetScrollPos(edit, SB_HORZ));
}

TEST_F(EditScroll, ScrollBarOfRightAlignedTextCountsFromTheOtherEnd)
{
    Create(longText.c_str(), WS_HSCROLL | HES_RIGHT, 200, 40);
    ScrollBy(Ctl(), -7);
    EXPECT_EQ(Ctl()->nScrollMax - 7, GetScrollPos(edit, SB_HORZ));
}

struct StepCase {
    WPARAM code;
    int    pages;
    int    chars;
};

TEST_F(EditScroll, ScrollBarStepsByCharactersAndPages)
{
    Create(longText.c_str(), WS_HSCROLL, 200, 40);
    const StepCase cases[] = {
        { SB_LINEDOWN, 0, 1 }, { SB_LINEUP, 0, -1 }, { SB_PAGEDOWN, 1, -1 }, { SB_PAGEUP, -1, 1 }
    };
    for (const StepCase& row : cases) {
        Send(HEM_SETSCROLL, 40);
        const int page = Ctl()->cPageChars;
        Send(WM_HSCROLL, row.code);
        EXPECT_EQ(40 + row.pages * page + row.chars, +Ctl()->nScroll) << "code " << row.code;
    }
}

TEST_F(EditScroll, PageOfANarrowFieldIsOneCharacter)
{
    Create(longText.c_str(), WS_HSCROLL, 12, 40);
    Send(WM_HSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(1, +Ctl()->nScroll);
}

TEST_F(EditScroll, DraggedThumbScrollsToItsPosition)
{
    Create(longText.c_str(), WS_HSCROLL, 200, 40);
    Send(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 12));
    EXPECT_EQ(12, +Ctl()->nScroll);
    EXPECT_TRUE(HasFlag(Ctl(), HEF_TRACKING));
    Send(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 4));
    EXPECT_EQ(4, +Ctl()->nScroll);
    Send(WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 4));
    EXPECT_FALSE(HasFlag(Ctl(), HEF_TRACKING));
    EXPECT_EQ(4, GetScrollPos(edit, SB_HORZ));
}

TEST_F(EditScroll, RangeOfTheBarStandsStillWhileTheThumbIsDragged)
{
    Create(longText.c_str(), WS_HSCROLL, 200, 40);
    int low = 0;
    int before = 0;
    GetScrollRange(edit, SB_HORZ, &low, &before);
    Ctl()->wFlags |= HEF_TRACKING;
    SendText(HEM_SETDATA, 0, longText.substr(50).c_str());
    int after = 0;
    GetScrollRange(edit, SB_HORZ, &low, &after);
    EXPECT_EQ(before, after);
}

TEST_F(EditScroll, ScrolledFieldLooksAsIfItHadBeenPaintedThere)
{
    constexpr DWORD styles[] = { 0, HES_RIGHT };
    for (const DWORD style : styles) {
        edit = nullptr;
        Create("The quick brown fox jumps over the lazy dog and runs away", HES_AUTOHSCROLL | style);
        AnswerColors(GetSysColorBrush(COLOR_WINDOW));
        ShotOf(edit);
        for (const int position : { 4, 9, 3 }) {
            Send(HEM_SETSCROLL, static_cast<WPARAM>(position));
            const Pixels scrolled = ShotOf(edit);
            InvalidateRect(edit, nullptr, TRUE);
            EXPECT_TRUE(SamePixels(ShotOf(edit), scrolled)) << "style " << style << " position " << position;
        }
        DestroyWindow(edit);
    }
}

TEST_F(EditScroll, HostMayDestroyTheFieldWhenItScrolls)
{
    Create(longText.c_str(), WS_HSCROLL, 200, 40);
    parent.On(HEN_HSCROLL, [this] { DestroyWindow(edit); });
    Send(WM_HSCROLL, SB_LINEDOWN);
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(EditScroll, ScrollBarPlacesTheCaretOfAFocusedField)
{
    Create(longText.c_str(), WS_HSCROLL | HES_KEEPSEL, 200, 40);
    Focus();
    SetSelection(Ctl(), 0, 5, 5);
    for (const WPARAM code : { SB_LINEDOWN, SB_PAGEDOWN, SB_LINEUP, SB_PAGEUP }) {
        SetCaretPos(150, 0);
        Send(WM_HSCROLL, code);
        POINT caret = {};
        GetCaretPos(&caret);
        EXPECT_EQ(CaretX(Ctl(), 5), caret.x) << "code " << code;
    }
}

} // namespace
