// The mouse over a field.
#include "edit_window.h"
#include "foundation/startup.h"

namespace {

class EditMouse : public EditWindow {
protected:
    void Make(const char* text, DWORD style = 0)
    {
        edit = nullptr;
        Create(text, style | HES_AUTOHSCROLL);
        seen.Clear();
    }
    int     At(int index) const { return CaretX(Ctl(), index); }
    LRESULT Selection() const { return Send(EM_GETSEL); }
};

TEST_F(EditMouse, FirstClickTakesTheFocusAndDoesNotPlaceTheCaret)
{
    Make("one two three");
    ClickAt(edit, At(5), 8);
    EXPECT_EQ(edit, GetFocus());
    EXPECT_EQ(MAKELRESULT(0, 13), Selection());
    EXPECT_NE(edit, GetCapture());
}

TEST_F(EditMouse, ClickPlacesTheCaret)
{
    Make("one two three");
    Focus();
    ClickAt(edit, At(5), 8);
    EXPECT_EQ(MAKELRESULT(5, 5), Selection());
}

TEST_F(EditMouse, ClickAtTheRightOfTheTextPlacesTheCaretAtItsEnd)
{
    Make("one two");
    Focus();
    ClickAt(edit, 190, 8);
    EXPECT_EQ(MAKELRESULT(7, 7), Selection());
}

TEST_F(EditMouse, ClickWithShiftMovesTheCaretAlone)
{
    Make("one two three");
    Focus();
    ClickAt(edit, At(2), 8);
    ClickAt(edit, At(8), 8, withShift);
    EXPECT_EQ(2, +Ctl()->nAnchor);
    EXPECT_EQ(8, +Ctl()->nCaret);
}

TEST_F(EditMouse, DraggingSelects)
{
    Make("one two three");
    Focus();
    PressButton(edit, At(2), 8);
    EXPECT_EQ(edit, GetCapture());
    MoveMouse(edit, At(6), 8);
    EXPECT_EQ(MAKELRESULT(2, 6), Selection());
    MoveMouse(edit, -30, 8);
    EXPECT_EQ(MAKELRESULT(0, 2), Selection());
    ReleaseButton(edit, At(1), 8);
    EXPECT_EQ(nullptr, GetCapture());
    MoveMouse(edit, At(9), 8);
    EXPECT_EQ(MAKELRESULT(1, 2), Selection());
}

TEST_F(EditMouse, DoubleClickSelectsTheWordAndIsTold)
{
    Make("one two three");
    Focus();
    seen.Clear();
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(At(5), 8));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(At(5), 8));
    EXPECT_EQ(MAKELRESULT(4, 8), Selection()) << "with the blank behind it";
    EXPECT_EQ(Codes{ HEN_DBLCLK }, Told());
}

TEST_F(EditMouse, DoubleClickOfTheMouseSelectsTheWord)
{
    Make("one two three");
    Focus();
    DoubleClickAt(edit, At(9), 8);
    EXPECT_EQ(MAKELRESULT(8, 13), Selection());
}

TEST_F(EditMouse, DoubleClickBehindTheTextSelectsTheLastWord)
{
    Make("one two");
    Focus();
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(190, 8));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(190, 8));
    EXPECT_EQ(MAKELRESULT(4, 7), Selection());
}

TEST_F(EditMouse, DoubleClickNearTheMarginSelectsTheWordThatIsUnderThePointer)
{
    std::string words;
    for (int i = 0; i < 25; ++i) {
        words += "abc ";
    }
    Make(words.c_str());
    Focus();
    SetSelection(Ctl(), 0, 0, 0);
    ASSERT_EQ(0, +Ctl()->nScroll);
    const int x = static_cast<int>(TextRect().right) - 3;
    const int index = CharAtPoint(Ctl(), x);
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, 8));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(x, 8));
    EXPECT_LT(0, +Ctl()->nScroll) << "the press scrolls";
    const int word = index / 4 * 4;
    EXPECT_EQ(MAKELRESULT(word, word + 4), Selection());
}

TEST_F(EditMouse, HostMayShortenTheTextInADoubleClick)
{
    Make(std::string(100, 'x').c_str());
    Focus();
    SetSelection(Ctl(), 0, 0, 0);
    parent.On(HEN_HSCROLL, [this] { SendText(HEM_SETDATA, 0, "ab"); });
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(TextRect().right - 3, 8));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(3, 8));
    EXPECT_EQ(MAKELRESULT(0, 2), Selection());
}

TEST_F(EditMouse, StaticFieldTakesTheFocusAndNothingElse)
{
    Make("one two three", HES_STATIC);
    ClickAt(edit, At(5), 8);
    EXPECT_EQ(edit, GetFocus());
    ClickAt(edit, At(5), 8);
    EXPECT_EQ(MAKELRESULT(0, 0), Selection());
    seen.Clear();
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(At(5), 8));
    EXPECT_EQ(MAKELRESULT(0, 0), Selection());
    EXPECT_EQ(Codes{ HEN_DBLCLK }, Told());
}

std::vector<WPARAM> gComboKeys;

LRESULT CALLBACK ComboLikeWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_KEYDOWN) {
        gComboKeys.push_back(wParam);
        return 0;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

HWND MakeComboLike(const char* className, HWND owner)
{
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = ComboLikeWnd;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = className;
    RegisterClassA(&windowClass);
    return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 30, owner, nullptr,
                           GetModuleHandleA(nullptr), nullptr);
}

TEST_F(EditMouse, ClickOnAStaticFieldOpensTheComboThatItIsTheFaceOf)
{
    struct Case {
        const char* className;
        bool        opens;
    };
    constexpr Case cases[] = { { "HComb", true }, { "HCombx", false }, { "Apple", false } };
    for (const Case& row : cases) {
        gComboKeys.clear();
        const HWND combo = MakeComboLike(row.className, parent.hwnd());
        const HWND face = CreateWindowExA(0, "HEdit_SS", "abc", WS_CHILD | WS_VISIBLE | HES_STATIC, 0, 0, 80, 20,
                                          combo, reinterpret_cast<HMENU>(1), GetModuleHandleA(nullptr), nullptr);
        SendMessageA(face, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        EXPECT_EQ(row.opens ? std::vector<WPARAM>{ VK_F4 } : std::vector<WPARAM>{}, gComboKeys) << row.className;
        EXPECT_EQ(face, GetFocus());
        seen.Clear();
        SendMessageA(face, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        EXPECT_EQ(row.opens ? 2u : 0u, gComboKeys.size()) << row.className << ", with the focus already";
        DestroyWindow(combo);
    }
}

TEST_F(EditMouse, CursorFollowsStyleAndFocus)
{
    Make("abc");
    Focus();
    SetCursor(hCurArrow);
    EXPECT_EQ(1, Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(edit), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(hCurIBeam, GetCursor());
    Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(edit), MAKELPARAM(HTHSCROLL, WM_MOUSEMOVE));
    EXPECT_EQ(hCurArrow, GetCursor()) << "over the scroll bar";
    Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(edit), MAKELPARAM(HTVSCROLL, WM_MOUSEMOVE));
    EXPECT_EQ(hCurArrow, GetCursor()) << "over the other one";
    Blur();
    const HCURSOR ofClass = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_CROSS));
    SetClassLongPtrA(edit, GCLP_HCURSOR, reinterpret_cast<LONG_PTR>(ofClass));
    Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(edit), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ(ofClass, GetCursor()) << "without the focus it is the default's";
    SetClassLongPtrA(edit, GCLP_HCURSOR, reinterpret_cast<LONG_PTR>(hCurIBeam));
    Make("abc", HES_STATIC);
    SetCursor(hCurIBeam);
    EXPECT_EQ(1, Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(edit), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(hCurArrow, GetCursor());
}

TEST_F(EditMouse, HostMayDestroyTheFieldInADoubleClick)
{
    Make("abc");
    parent.On(HEN_SETFOCUS, [this] { DestroyWindow(edit); });
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(3, 3));
    EXPECT_FALSE(IsWindow(edit));
}

} // namespace
