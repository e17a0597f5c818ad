// What the field shows, and whose brush fills it.
#include "edit_window.h"
#include "foundation/startup.h"
#include "support/pixels.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF paper = RGB(200, 230, 250);
constexpr COLORREF ink = RGB(180, 0, 0);
constexpr COLORREF otherInk = RGB(0, 120, 0);

class EditPaint : public EditWindow {
protected:
    EditPaint() : brush(CreateSolidBrush(paper)) { AnswerColors(brush); }
    ~EditPaint() override
    {
        hFocusBrush = nullptr;
        if (IsWindow(edit)) {
            DestroyWindow(edit);
        }
        DeleteObject(brush);
    }
    void Make(const char* text, DWORD style = 0)
    {
        edit = nullptr;
        Create(text, style);
        if (!font) {
            UseFont();
        }
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(font));
        Send(HEM_SETCOLOR, 0, ink);
        Send(HEM_SETCOLOR, 1, otherInk);
    }
    RECT Ink() const
    {
        const Pixels shot = ShotOf(edit);
        return shot.InkBounds(paper, shot.Bounds());
    }

    HBRUSH brush;
};

TEST_F(EditPaint, FieldHasTheBrushOfTheParentAndItsTextColour)
{
    Make("HHHH");
    const Pixels shot = ShotOf(edit);
    EXPECT_EQ(paper, shot.At(150, 12));
    EXPECT_GT(shot.Count(ink, shot.Bounds()), 20);
    EXPECT_EQ(shot.width * shot.height, shot.Count(ink, shot.Bounds()) + shot.Count(paper, shot.Bounds()));
}

TEST_F(EditPaint, TextStandsLeftRightOrInTheMiddle)
{
    Make("HHHH");
    EXPECT_LT(Ink().left, 4);
    Make("HHHH", HES_RIGHT);
    EXPECT_GT(Ink().right, 196);
    Make("HHHH", HES_CENTER);
    const RECT centred = Ink();
    EXPECT_NEAR(200, centred.left + centred.right, 3);
}

TEST_F(EditPaint, TextBeginsAtTheScrollPosition)
{
    Make("HHHHHHHH");
    Ctl()->nScroll = 6;
    InvalidateRect(edit, nullptr, TRUE);
    const int scrolled = Ink().right;
    EXPECT_NEAR(TextWidth(Ctl(), "HH", 0, 2), scrolled, 2);
    Ctl()->nScroll = 9;
    InvalidateRect(edit, nullptr, TRUE);
    EXPECT_GT(Ink().right, scrolled) << "from the start when that is beyond the end";
}

TEST_F(EditPaint, RightAlignedTextLosesItsEndWhenScrolled)
{
    Make("HHHHHHii", HES_RIGHT);
    Ctl()->nScroll = 2;
    InvalidateRect(edit, nullptr, TRUE);
    const Pixels shown = ShotOf(edit);
    Make("HHHHHH", HES_RIGHT);
    EXPECT_TRUE(SamePixels(ShotOf(edit), shown));
}

TEST_F(EditPaint, TextThatDoesNotFitEndsWithAWholeCharacter)
{
    Make(std::string(100, 'H').c_str());
    const int    fits = 200 / TextWidth(Ctl(), "H", 0, 1);
    const Pixels all = ShotOf(edit);
    Make(std::string(static_cast<size_t>(fits), 'H').c_str());
    EXPECT_TRUE(SamePixels(ShotOf(edit), all));
}

TEST_F(EditPaint, NegativeValueHasItsOwnColour)
{
    Make("%nl0");
    const int value = -8888;
    Send(HEM_SETDATA, 0, AsParam(&value));
    const Pixels shot = ShotOf(edit);
    EXPECT_GT(shot.Count(otherInk, shot.Bounds()), 20);
    EXPECT_EQ(0, shot.Count(ink, shot.Bounds()));
}

TEST_F(EditPaint, DisabledFieldIsGreyAndAsksForTheStaticColour)
{
    Make("HHHH");
    ShotOf(edit);
    asked.clear();
    EnableWindow(edit, FALSE);
    InvalidateRect(edit, nullptr, TRUE);
    const Pixels shot = ShotOf(edit);
    EXPECT_GT(shot.Count(GetSysColor(COLOR_GRAYTEXT), shot.Bounds()), 20);
    EXPECT_EQ(std::vector<UINT>{ WM_CTLCOLORSTATIC }, asked);
}

TEST_F(EditPaint, FieldOfADisabledParentIsGreyToo)
{
    Make("HHHH");
    EnableWindow(parent.hwnd(), FALSE);
    InvalidateRect(edit, nullptr, TRUE);
    const Pixels shot = ShotOf(edit);
    EnableWindow(parent.hwnd(), TRUE);
    EXPECT_GT(shot.Count(GetSysColor(COLOR_GRAYTEXT), shot.Bounds()), 20);
}

TEST_F(EditPaint, PasswordShowsItsCharacter)
{
    Make("abcd", HES_PASSWORD);
    const Pixels hidden = ShotOf(edit);
    Make("****");
    EXPECT_TRUE(SamePixels(ShotOf(edit), hidden));
}

TEST_F(EditPaint, LongPasswordShowsItsCharacterToo)
{
    Make(std::string(400, 'a').c_str(), HES_PASSWORD);
    const Pixels hidden = ShotOf(edit);
    Make(std::string(400, '*').c_str());
    EXPECT_TRUE(SamePixels(ShotOf(edit), hidden));
}

TEST_F(EditPaint, SelectionIsHighlightedWithTheFocus)
{
    Make("HHHH");
    Focus();
    HideCaret(edit);
    Send(EM_SETSEL, 1, 3);
    const Pixels   shot = ShotOf(edit);
    const COLORREF back = GetSysColor(COLOR_HIGHLIGHT);
    const RECT     all = shot.Bounds();
    EXPECT_GT(shot.Count(back, all), 20);
    for (int x = 0; x < shot.width; ++x) {
        const RECT column = { x, 0, x + 1, shot.height };
        const bool selected = x >= CaretX(Ctl(), 1) && x < CaretX(Ctl(), 3);
        EXPECT_EQ(selected, shot.Count(back, column) > 0) << "column " << x;
    }
    EXPECT_GT(shot.Count(ink, all), 20);
}

TEST_F(EditPaint, SelectionShowsWithoutTheFocusUnderKeepSelOnly)
{
    const COLORREF back = GetSysColor(COLOR_HIGHLIGHT);
    Make("HHHH");
    Send(EM_SETSEL, 0, 4);
    const Pixels plain = ShotOf(edit);
    EXPECT_EQ(0, plain.Count(back, plain.Bounds()));
    Make("HHHH", HES_KEEPSEL);
    Send(EM_SETSEL, 0, 4);
    const Pixels kept = ShotOf(edit);
    EXPECT_GT(kept.Count(back, kept.Bounds()), 20);
}

TEST_F(EditPaint, SelectionThatShrinksLeavesNoHighlightBehind)
{
    Make("HHHHHH", HES_KEEPSEL);
    Send(EM_SETSEL, 0, 6);
    ShotOf(edit);
    Send(EM_SETSEL, 2, 3);
    const Pixels shot = ShotOf(edit);
    InvalidateRect(edit, nullptr, TRUE);
    EXPECT_TRUE(SamePixels(ShotOf(edit), shot));
}

TEST_F(EditPaint, StaticFieldWithTheFocusIsHighlightedAsAWhole)
{
    Make("HHHH", HES_STATIC);
    Focus();
    const Pixels shot = ShotOf(edit);
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), shot.At(150, 12));
    EXPECT_GT(shot.Count(GetSysColor(COLOR_HIGHLIGHTTEXT), shot.Bounds()), 20);
    EXPECT_EQ(0, shot.Count(ink, shot.Bounds()));
}

TEST_F(EditPaint, OwnBrushComesBeforeAllOthers)
{
    Make("");
    const HBRUSH own = CreateSolidBrush(otherInk);
    hFocusBrush = brush;
    Send(HEM_SETBRUSH, reinterpret_cast<WPARAM>(own));
    InvalidateRect(edit, nullptr, TRUE);
    asked.clear();
    EXPECT_EQ(otherInk, ShotOf(edit).At(50, 10));
    EXPECT_TRUE(asked.empty());
    Send(HEM_SETBRUSH, 0);
    DeleteObject(own);
}

TEST_F(EditPaint, FocusBrushFillsTheFocusedField)
{
    Make("", HES_FOCUSBRUSH);
    const HBRUSH own = CreateSolidBrush(otherInk);
    Send(HEM_SETFOCUSBRUSH, reinterpret_cast<WPARAM>(own));
    EXPECT_EQ(paper, ShotOf(edit).At(50, 10));
    Focus();
    EXPECT_EQ(otherInk, ShotOf(edit).At(50, 10));
    Send(HEM_SETFOCUSBRUSH, 0);
    InvalidateRect(edit, nullptr, TRUE);
    EXPECT_EQ(paper, ShotOf(edit).At(50, 10)) << "without one the field asks";
    DeleteObject(own);
}

TEST_F(EditPaint, FocusedFieldWithoutAFocusBrushTakesItsOwn)
{
    Make("", HES_FOCUSBRUSH);
    const HBRUSH own = CreateSolidBrush(otherInk);
    Send(HEM_SETFOCUSBRUSH, 0);
    Send(HEM_SETBRUSH, reinterpret_cast<WPARAM>(own));
    Focus();
    EXPECT_EQ(otherInk, ShotOf(edit).At(50, 10));
    Send(HEM_SETBRUSH, 0);
    DeleteObject(own);
}

TEST_F(EditPaint, FocusBrushIsNotForAGivenRect)
{
    Make("", HES_FOCUSBRUSH);
    const HBRUSH own = CreateSolidBrush(otherInk);
    Send(HEM_SETFOCUSBRUSH, reinterpret_cast<WPARAM>(own));
    Focus();
    const Canvas canvas(20, 20);
    RECT         rect = { 2, 3, 12, 13 };
    FillFieldBackground(Ctl(), canvas.hdc(), &rect, brush);
    EXPECT_TRUE(canvas.Shot().IsAll(paper, rect));
    EXPECT_EQ(100, canvas.Shot().Count(paper, canvas.Shot().Bounds())) << "and nothing outside";
    Send(HEM_SETFOCUSBRUSH, 0);
    DeleteObject(own);
}

TEST_F(EditPaint, GivenBrushComesBeforeTheFieldBrush)
{
    Make("");
    const HBRUSH field = CreateSolidBrush(otherInk);
    hFocusBrush = field;
    const Canvas canvas(20, 20);
    RECT         rect = { 0, 0, 20, 20 };
    FillFieldBackground(Ctl(), canvas.hdc(), &rect, brush);
    EXPECT_TRUE(canvas.Shot().IsAll(paper, rect));
    FillFieldBackground(Ctl(), canvas.hdc(), &rect, nullptr);
    EXPECT_TRUE(canvas.Shot().IsAll(otherInk, rect));
    hFocusBrush = nullptr;
    DeleteObject(field);
}

LRESULT CALLBACK GrandParentWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

HWND MakeGrandParent(const char* className, HWND parent)
{
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = GrandParentWnd;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = className;
    RegisterClassA(&windowClass);
    return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 100, parent, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
}

TEST_F(EditPaint, FieldBrushIsForACellEditorInAGridOnly)
{
    struct Case {
        const char* grandParent;
        bool        taken;
    };
    const Case   cases[] = { { "HGridLike", true }, { "HGriLike", false }, { "hgridOther", false } };
    const HBRUSH field = CreateSolidBrush(otherInk);
    hFocusBrush = field;
    for (const Case& row : cases) {
        const HWND grand = MakeGrandParent(row.grandParent, parent.hwnd());
        const HWND between = MakeGrandParent("Between", grand);
        edit = CreateWindowExA(0, "HEdit_SS", "", WS_CHILD, 0, 0, 20, 20, between, reinterpret_cast<HMENU>(1),
                               GetModuleHandleA(nullptr), nullptr);
        Send(WWM_SETPARENT, reinterpret_cast<WPARAM>(parent.hwnd()));
        const Canvas canvas(20, 20);
        RECT         rect = { 0, 0, 20, 20 };
        FillFieldBackground(Ctl(), canvas.hdc(), &rect, nullptr);
        EXPECT_EQ(row.taken ? otherInk : paper, canvas.Shot().At(5, 5)) << row.grandParent;
        DestroyWindow(grand);
    }
    hFocusBrush = nullptr;
    DeleteObject(field);
}

TEST_F(EditPaint, WithoutAnyBrushTheBackgroundStays)
{
    Make("");
    AnswerColors(nullptr);
    const Canvas canvas(20, 20);
    RECT         rect = { 0, 0, 20, 20 };
    FillFieldBackground(Ctl(), canvas.hdc(), &rect, nullptr);
    EXPECT_TRUE(canvas.Shot().IsAll(white, rect));
}

TEST_F(EditPaint, ErasingFillsTheClientAreaAndSaysSo)
{
    Make("");
    const Canvas canvas(300, 50);
    EXPECT_EQ(1, Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.hdc())));
    EXPECT_TRUE(canvas.Shot().IsAll(paper, { 0, 0, 200, 24 }));
    EXPECT_EQ(white, canvas.Shot().At(200, 10));
}

TEST_F(EditPaint, FieldInAGridWrapsInARowOfTwoLines)
{
    HGridData data = {};
    data.nMinRowHeight = 20;
    data.nRowHeight = 44;
    Make("HHHHHHHHHH HHHHHHHHHHHHHHHHHHHHHH HHHHHHHHHHH");
    parent.OnMessage(HGM_GETDATA, [&data](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(&data); });
    SetWindowPos(edit, nullptr, 0, 0, 200, 60, SWP_NOMOVE | SWP_NOZORDER);
    InvalidateRect(edit, nullptr, TRUE);
    const LONG lines = Ink().bottom;
    data.nRowHeight = 20;
    InvalidateRect(edit, nullptr, TRUE);
    const LONG line = Ink().bottom;
    EXPECT_GT(lines, line + 8);
    data.nRowHeight = 44;
    Focus();
    HideCaret(edit);
    Send(EM_SETSEL, 0, 0);
    InvalidateRect(edit, nullptr, TRUE);
    EXPECT_EQ(line, Ink().bottom) << "one line while it is edited";
}

TEST_F(EditPaint, FieldOutsideAGridHoldsOneLine)
{
    Make("HHHHHHHHHH HHHHHHHHHHHHHHHHHHHHHH HHHHHHHHHHH");
    SetWindowPos(edit, nullptr, 0, 0, 200, 60, SWP_NOMOVE | SWP_NOZORDER);
    InvalidateRect(edit, nullptr, TRUE);
    EXPECT_LT(Ink().bottom, 20);
}

TEST_F(EditPaint, HiddenFocusedFieldLeavesPaintingToTheDefault)
{
    Make("abc");
    Focus();
    ShowWindow(edit, SW_HIDE);
    Ctl()->wFlags |= HEF_FOCUS;
    EXPECT_EQ(0, Send(WM_PAINT));
    Ctl()->wFlags = static_cast<WORD>(Ctl()->wFlags & ~HEF_FOCUS);
}

TEST_F(EditPaint, PaintingSetsTheScrollRange)
{
    Make(std::string(100, 'H').c_str(), HES_AUTOHSCROLL);
    Ctl()->nScrollMax = 0;
    InvalidateRect(edit, nullptr, TRUE);
    ShotOf(edit);
    EXPECT_GT(+Ctl()->nScrollMax, 0);
}

TEST_F(EditPaint, FieldThatIsEnabledOrDisabledIsPaintedAnewAsThatOne)
{
    Create("abc");
    for (const BOOL enabled : { FALSE, TRUE }) {
        UpdateWindow(edit);
        ASSERT_FALSE(GetUpdateRect(edit, nullptr, FALSE)) << enabled;
        asked.clear();
        EnableWindow(edit, enabled);
        UpdateWindow(edit);
        EXPECT_EQ(std::vector<UINT>{ static_cast<UINT>(enabled ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC) }, asked);
    }
}

} // namespace
