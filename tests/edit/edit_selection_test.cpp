// Caret and selection.
#include "edit_window.h"

namespace {

class EditSelection : public EditWindow {
protected:
    POINT Caret() const
    {
        POINT point = {};
        GetCaretPos(&point);
        return point;
    }
    RECT CaretRect() const
    {
        GUITHREADINFO info = {};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetCurrentThreadId(), &info);
        return info.rcCaret;
    }
    // What has to be painted anew since the last painting.
    RECT Update() const
    {
        RECT rect = {};
        GetUpdateRect(edit, &rect, FALSE);
        return rect;
    }
    void Settle() const { ValidateRect(edit, nullptr); }
};

TEST_F(EditSelection, AllIsSelectedByClamping)
{
    Create("abcdef");
    SetSelection(Ctl(), 3, 0, 0xFFFE);
    EXPECT_EQ(MAKELRESULT(0, 6), Send(EM_GETSEL));
}

TEST_F(EditSelection, NegativeIndexMeansTheEnd)
{
    Create("abcdef");
    SetSelection(Ctl(), 0, -1, -1);
    EXPECT_EQ(MAKELRESULT(6, 6), Send(EM_GETSEL));
}

TEST_F(EditSelection, HowSaysWhichEndMoves)
{
    Create("abcdef");
    SetSelection(Ctl(), 0, 2, 4);
    SetSelection(Ctl(), 1, 0, 5);
    EXPECT_EQ(MAKELRESULT(2, 5), Send(EM_GETSEL)) << "the caret alone";
    SetSelection(Ctl(), 2, 1, 0);
    EXPECT_EQ(MAKELRESULT(1, 5), Send(EM_GETSEL)) << "the anchor alone";
    SetSelection(Ctl(), 3, 3, 0);
    EXPECT_EQ(3, +Ctl()->nAnchor);
    EXPECT_EQ(0, +Ctl()->nCaret);
}

TEST_F(EditSelection, CaretStandsAtItsCharacterWithTheFocus)
{
    Create("abcdef", HES_KEEPSEL);
    Focus();
    SetSelection(Ctl(), 0, 3, 3);
    EXPECT_EQ(CaretX(Ctl(), 3), Caret().x);
    EXPECT_EQ(TextRect().top, Caret().y);
}

TEST_F(EditSelection, CaretAtTheEndStandsOnePixelInside)
{
    Create("abcdef");
    Focus();
    SetSelection(Ctl(), 0, 6, 6);
    EXPECT_EQ(CaretX(Ctl(), 6) - 1, Caret().x);
    SendText(HEM_SETDATA, 0, "");
    EXPECT_EQ(0, Caret().x) << "but never before the field";
}

TEST_F(EditSelection, CaretOfARightAlignedFieldStandsOnePixelInside)
{
    Create("abcdef", HES_EDITRIGHT);
    Focus();
    SetSelection(Ctl(), 0, 6, 6);
    EXPECT_EQ(TextRect().right - 1, Caret().x);
    SetSelection(Ctl(), 0, 3, 3);
    EXPECT_EQ(CaretX(Ctl(), 3) - 1, Caret().x);
}

TEST_F(EditSelection, CaretIsThinAndAsHighAsALine)
{
    Create("abcdef");
    Focus();
    const RECT rect = CaretRect();
    EXPECT_LE(rect.right - rect.left, 2);
    EXPECT_EQ(+Ctl()->cyChar, rect.bottom - rect.top);
}

TEST_F(EditSelection, CaretInOverwriteModeIsAsWideAsItsCharacter)
{
    Create("Wi");
    Focus();
    Send(HEM_SETOVERWRITE, 1);
    SetSelection(Ctl(), 0, 0, 0);
    EXPECT_EQ(TextWidth(Ctl(), "Wi", 0, 1), CaretRect().right - CaretRect().left);
    SetSelection(Ctl(), 0, 1, 1);
    EXPECT_EQ(TextWidth(Ctl(), "Wi", 1, 1), CaretRect().right - CaretRect().left);
    SetSelection(Ctl(), 0, 0, 2);
    EXPECT_LE(CaretRect().right - CaretRect().left, 2) << "thin with a selection";
}

TEST_F(EditSelection, CaretOfANumberStaysThinInOverwriteMode)
{
    Create("%nl");
    Focus();
    Send(HEM_SETOVERWRITE, 1);
    SetSelection(Ctl(), 0, 0, 0);
    EXPECT_LE(CaretRect().right - CaretRect().left, 2);
}

TEST_F(EditSelection, OverwriteModeOfAFieldWithoutTheFocusLeavesTheCaretOfOthers)
{
    Create("abc");
    const HWND other = Create("def");
    SetFocus(other);
    Send(HEM_SETOVERWRITE, 1);
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    EXPECT_EQ(other, info.hwndCaret);
}

TEST_F(EditSelection, CaretPastTheRightMarginOpensAThirdOfAPage)
{
    Create(std::string(100, 'x').c_str(), HES_AUTOHSCROLL);
    const int page = Ctl()->cPageChars;
    int       caret = 0;
    while (Ctl()->nScroll == 0 && caret < 100) {
        ++caret;
        SetSelection(Ctl(), 0, caret, caret);
    }
    ASSERT_LT(caret, 100);
    EXPECT_EQ(page / 3 + 1, +Ctl()->nScroll) << "a third of a page, and the step of the caret";
    EXPECT_LT(CaretX(Ctl(), caret), TextRect().right - page / 3);
}

TEST_F(EditSelection, CaretBeforeTheLeftMarginScrollsBack)
{
    Create(std::string(100, 'x').c_str(), HES_AUTOHSCROLL);
    SetSelection(Ctl(), 0, 100, 100);
    const int scrolled = Ctl()->nScroll;
    EXPECT_GT(scrolled, 0);
    SetSelection(Ctl(), 0, scrolled, scrolled);
    EXPECT_LT(+Ctl()->nScroll, scrolled);
    SetSelection(Ctl(), 0, 0, 0);
    EXPECT_EQ(0, +Ctl()->nScroll);
}

TEST_F(EditSelection, FieldThatCannotScrollStaysWhereItIs)
{
    Create(std::string(100, 'x').c_str());
    SetSelection(Ctl(), 0, 100, 100);
    EXPECT_EQ(0, +Ctl()->nScroll);
}

TEST_F(EditSelection, HostMayDestroyTheFieldWhenItScrolls)
{
    Create(std::string(100, 'x').c_str(), HES_AUTOHSCROLL);
    parent.On(HEN_HSCROLL, [this] { DestroyWindow(edit); });
    Send(EM_SETSEL, 100, 100);
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(EditSelection, NewlySelectedCharactersArePaintedOver)
{
    Create("abcdef", HES_KEEPSEL);
    SetSelection(Ctl(), 0, 1, 3);
    Settle();
    SetSelection(Ctl(), 1, 0, 5);
    EXPECT_EQ(CaretX(Ctl(), 3), Update().left);
    EXPECT_EQ(CaretX(Ctl(), 5), Update().right);
    EXPECT_EQ(TextRect().bottom, Update().bottom);
}

TEST_F(EditSelection, OnlyNoLongerSelectedCharactersAskForErasing)
{
    Create("abcdef", HES_KEEPSEL);
    const HBRUSH brush = CreateSolidBrush(RGB(200, 255, 255));
    AnswerColors(brush);
    SetSelection(Ctl(), 0, 1, 3);
    UpdateWindow(edit);
    asked.clear();
    SetSelection(Ctl(), 1, 0, 5);
    UpdateWindow(edit);
    EXPECT_TRUE(asked.empty()) << "more is selected";
    SetSelection(Ctl(), 1, 0, 2);
    UpdateWindow(edit);
    EXPECT_FALSE(asked.empty()) << "less is selected";
    DestroyWindow(edit);
    DeleteObject(brush);
}

TEST_F(EditSelection, NoLongerSelectedCharactersAreErased)
{
    Create("abcdef", HES_KEEPSEL);
    SetSelection(Ctl(), 0, 1, 4);
    Settle();
    SetSelection(Ctl(), 1, 0, 2);
    EXPECT_EQ(CaretX(Ctl(), 2), Update().left);
    EXPECT_EQ(CaretX(Ctl(), 4), Update().right);
}

TEST_F(EditSelection, ErasedRangeAtTheEndReachesTheEdges)
{
    Create("abcdef", HES_KEEPSEL);
    SetSelection(Ctl(), 0, 0, 6);
    Settle();
    SetSelection(Ctl(), 0, 0, 3);
    EXPECT_EQ(TextRect().right, Update().right);
    SetSelection(Ctl(), 0, 6, 3);
    Settle();
    SetSelection(Ctl(), 0, 0, 6);
    Settle();
    SetSelection(Ctl(), 0, 3, 6);
    EXPECT_EQ(TextRect().left, Update().left);
}

TEST_F(EditSelection, SelectionThatStaysIsNotPainted)
{
    Create("abcdef", HES_KEEPSEL);
    SetSelection(Ctl(), 0, 1, 4);
    Settle();
    SetSelection(Ctl(), 0, 4, 1);
    const RECT update = Update();
    EXPECT_TRUE(IsRectEmpty(&update));
}

TEST_F(EditSelection, MovedCaretErasesItsCharacter)
{
    Create("abcdef", HES_KEEPSEL);
    SetSelection(Ctl(), 0, 1, 1);
    Settle();
    SetSelection(Ctl(), 0, 3, 3);
    EXPECT_EQ(CaretX(Ctl(), 3), Update().left);
    EXPECT_EQ(CaretX(Ctl(), 4), Update().right);
}

TEST_F(EditSelection, NewFontRepaintsTheFieldIfAsked)
{
    Create("abcdef");
    const HFONT big = CreateFontA(-40, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                                  CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "Tahoma");
    for (const BOOL redraw : { FALSE, TRUE }) {
        PumpPending();
        Settle();
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(big), redraw);
        const RECT update = Update();
        EXPECT_EQ(redraw == FALSE, IsRectEmpty(&update) != FALSE) << redraw;
    }
    Send(WM_SETFONT, 0);
    DeleteObject(big);
}

TEST_F(EditSelection, NewFontMakesTheCaretAsHighAsItsCharacters)
{
    Create("abcdef", HES_KEEPSEL, 200, 60);
    Focus();
    SetSelection(Ctl(), 0, 3, 3);
    const LONG  before = CaretRect().bottom - CaretRect().top;
    const HFONT big = CreateFontA(-40, 0, 0, 0, FW_BOLD, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                                  CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "Tahoma");
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(big), TRUE);
    EXPECT_EQ(+Ctl()->cyChar, CaretRect().bottom - CaretRect().top);
    EXPECT_LT(before, CaretRect().bottom - CaretRect().top);
    EXPECT_EQ(CaretX(Ctl(), 3), Caret().x);
    EXPECT_EQ(+Ctl()->rcText.top, Caret().y);
    Send(WM_SETFONT, 0);
    DeleteObject(big);
}

} // namespace
