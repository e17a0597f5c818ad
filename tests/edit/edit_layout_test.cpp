// Characters to pixels and back.
#include "edit_window.h"
#include "support/import_hook.h"

#include <random>

namespace {

class EditLayout : public EditWindow {
protected:
    void Make(const char* text, DWORD style = 0, int width = 200)
    {
        edit = nullptr;
        Create(text, style, width);
        if (!font) {
            UseFont();
        }
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(font));
    }
    int Width(const char* text) const
    {
        const FieldDC dc(Ctl());
        return MeasureText(dc.hdc(), text, static_cast<int>(std::strlen(text)));
    }
};

TEST_F(EditLayout, MeasureTextIsThePlatformsMeasure)
{
    Make("abc");
    const FieldDC dc(Ctl());
    RECT rect = {};
    DrawTextA(dc.hdc(), "Wide & narrow", 13, &rect, DT_CALCRECT | DT_SINGLELINE | DT_NOPREFIX);
    EXPECT_EQ(rect.right, MeasureText(dc.hdc(), "Wide & narrow", 13));
    EXPECT_EQ(0, MeasureText(dc.hdc(), "abc", 0));
    EXPECT_LT(MeasureText(dc.hdc(), "iii", 3), MeasureText(dc.hdc(), "WWW", 3));
}

TEST_F(EditLayout, TextWidthCountsToTheEndForMinusOne)
{
    Make("abc");
    EXPECT_EQ(Width("cdef"), TextWidth(Ctl(), "abcdef", 2, -1));
    EXPECT_EQ(0, TextWidth(Ctl(), "abcdef", 6, -1));
    EXPECT_EQ(0, TextWidth(Ctl(), "abcdef", 9, 5)) << "beyond the end";
}

TEST_F(EditLayout, TextWidthTakesTheOverhangOfTheNextCharacterIn)
{
    Make("abc");
    EXPECT_EQ(Width("abcd") - Width("d"), TextWidth(Ctl(), "abcdef", 0, 3));
}

TEST_F(EditLayout, TextWidthUnderRightMeasuresWithTheCharacterBefore)
{
    Make("abc", HES_RIGHT);
    EXPECT_EQ(Width("bcde") - Width("b"), TextWidth(Ctl(), "abcdef", 2, 3));
}

TEST_F(EditLayout, CaretStandsBehindTheCharactersBeforeIt)
{
    Make("abcdef");
    EXPECT_EQ(0, CaretX(Ctl(), 0));
    EXPECT_EQ(TextWidth(Ctl(), "abcdef", 0, 3), CaretX(Ctl(), 3));
    EXPECT_EQ(Width("abcdef"), CaretX(Ctl(), 6));
    EXPECT_EQ(CaretX(Ctl(), 6), CaretX(Ctl(), 99)) << "beyond the end";
}

TEST_F(EditLayout, CaretMovesLeftWithTheScrolledText)
{
    Make("abcdef");
    Ctl()->nScroll = 2;
    EXPECT_EQ(Width("abcdef") - TextWidth(Ctl(), "abcdef", 0, 2), CaretX(Ctl(), 6));
    EXPECT_GT(0, CaretX(Ctl(), 0));
}

TEST_F(EditLayout, CaretOfARightAlignedFieldCountsFromTheRight)
{
    Make("abcdef", HES_RIGHT);
    EXPECT_EQ(200, CaretX(Ctl(), 6));
    EXPECT_EQ(200 - TextWidth(Ctl(), "abcdef", 4, 2), CaretX(Ctl(), 4));
    Ctl()->nScroll = 2;
    EXPECT_EQ(200, CaretX(Ctl(), 4));
}

TEST_F(EditLayout, PasswordNeverShowsItsTextInItsWidth)
{
    Make("iiii", HES_PASSWORD);
    const int narrow = CaretX(Ctl(), 4);
    Make("WWWW", HES_PASSWORD);
    EXPECT_EQ(narrow, CaretX(Ctl(), 4));
    EXPECT_EQ(narrow, Width("****"));
}

TEST_F(EditLayout, ClickRightOfTheLastCharacterGivesTheEnd)
{
    Make("abcdef");
    EXPECT_EQ(6, CharAtPoint(Ctl(), 199));
    EXPECT_EQ(0, CharAtPoint(Ctl(), -10));
}

TEST_F(EditLayout, CharAtPointIsTheReverseOfCaretX)
{
    constexpr char text[] = "The quick brown fox";
    constexpr DWORD styles[] = { 0, HES_RIGHT };
    constexpr int   scrolls[] = { 0, 3 };
    for (const DWORD style : styles) {
        for (const int scroll : scrolls) {
            Make(text, style);
            Ctl()->nScroll = scroll;
            const int length = static_cast<int>(std::strlen(text));
            const int from = style ? 0 : scroll;
            const int to = style ? length - scroll : length;
            for (int index = from; index <= to; ++index) {
                EXPECT_EQ(index, CharAtPoint(Ctl(), CaretX(Ctl(), index))) << "style " << style << " scroll " << scroll;
            }
        }
    }
}

TEST_F(EditLayout, CharFromXCountsFromTheRightEnd)
{
    Make("abc");
    const FieldDC dc(Ctl());
    const RECT    rect = { 0, 0, 100, 20 };
    const int     last = MeasureText(dc.hdc(), "f", 1);
    EXPECT_EQ(6, CharFromX(dc.hdc(), &rect, "abcdef", 6, 100, true));
    EXPECT_EQ(5, CharFromX(dc.hdc(), &rect, "abcdef", 6, 100 - last, true));
    EXPECT_EQ(0, CharFromX(dc.hdc(), &rect, "abcdef", 6, -100, true));
}

// The count as it is described: one character more as long as the run fits.
int LiteralFit(HDC hdc, const char* text, int count, int width, bool fromEnd)
{
    int fits = 0;
    while (fits < count &&
           MeasureText(hdc, fromEnd ? text + count - fits - 1 : text, fits + 1) <= width) {
        ++fits;
    }
    return fits;
}

TEST_F(EditLayout, FitCharsCountsAsMeasuringOneCharacterMoreEachTime)
{
    Make("abc");
    const FieldDC dc(Ctl());
    std::mt19937  random(11);
    std::uniform_int_distribution<int> letters(' ', '~');
    std::uniform_int_distribution<int> lengths(0, 200);
    std::uniform_int_distribution<int> widths(-5, 1500);
    for (int round = 0; round < 300; ++round) {
        std::string text(static_cast<size_t>(lengths(random)), ' ');
        for (char& ch : text) {
            ch = static_cast<char>(letters(random));
        }
        const int  width = widths(random);
        const int  count = static_cast<int>(text.size());
        const bool fromEnd = round % 2 == 0;
        ASSERT_EQ(LiteralFit(dc.hdc(), text.c_str(), count, width, fromEnd),
                  FitChars(dc.hdc(), text.c_str(), count, width, fromEnd))
            << text << " in " << width << (fromEnd ? " from the end" : "");
    }
}

// Where an index stands by the widths from the start of the text, or to its end.
int LiteralCaretX(HEditCtl* ctl, const std::string& text, int index)
{
    const char* const all = text.c_str();
    const int         length = static_cast<int>(text.size());
    const int         scroll = static_cast<int>(ctl->nScroll);
    if (HasFlag(ctl, HEF_RIGHT)) {
        return ctl->rcText.right - TextWidth(ctl, all, index, -1) + TextWidth(ctl, all, length - scroll, -1);
    }
    return ctl->rcText.left - TextWidth(ctl, all, 0, scroll) + TextWidth(ctl, all, 0, index);
}

TEST_F(EditLayout, CaretXIsTheDifferenceOfTheWidthsFromTheStart)
{
    std::mt19937  random(12);
    std::uniform_int_distribution<int> letters(' ', '~');
    std::uniform_int_distribution<int> lengths(0, 90);
    const HFONT italic = CreateFontA(-15, 0, 0, 0, FW_BOLD, TRUE, FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                                     CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "Tahoma");
    for (int round = 0; round < 60; ++round) {
        std::string text(static_cast<size_t>(lengths(random)), ' ');
        for (char& ch : text) {
            ch = static_cast<char>(letters(random));
        }
        Make("", round % 2 ? HES_RIGHT : 0);
        SendText(HEM_SETDATA, 0, text.c_str());
        if (round % 4 > 1) {
            Send(WM_SETFONT, reinterpret_cast<WPARAM>(italic));
        }
        const int length = static_cast<int>(text.size());
        for (int i = 0; i < 20; ++i) {
            std::uniform_int_distribution<int> places(0, length);
            const int index = i == 0 ? 0 : i == 1 ? length : places(random);
            Ctl()->nScroll = i % 5 == 4 ? length : places(random);
            ASSERT_EQ(LiteralCaretX(Ctl(), text, index), CaretX(Ctl(), index))
                << text << " scrolled by " << Ctl()->nScroll << ", index " << index << ", round " << round;
        }
        DestroyWindow(edit);
    }
    DeleteObject(italic);
}

TEST_F(EditLayout, ReachesWidthComparesTheWidthOfTheWholeText)
{
    Make("abc");
    std::mt19937  random(13);
    std::uniform_int_distribution<int> letters(' ', '~');
    std::uniform_int_distribution<int> lengths(0, 400);
    for (int round = 0; round < 200; ++round) {
        std::string text(static_cast<size_t>(lengths(random)), ' ');
        for (char& ch : text) {
            ch = static_cast<char>(letters(random));
        }
        const int whole = TextWidth(Ctl(), text.c_str(), 0, -1);
        std::uniform_int_distribution<int> widths(-5, whole + 100);
        for (const int width : { whole - 1, whole, whole + 1, widths(random) }) {
            ASSERT_EQ(whole >= width, ReachesWidth(Ctl(), text.c_str(), width)) << text << " in " << width;
        }
    }
}

int gMeasured; // characters that were handed to be measured

template <typename Function>
Function* RealOf(const char* library, Function*, const char* name)
{
    const FARPROC address = GetProcAddress(GetModuleHandleA(library), name);
    Function*     function = nullptr;
    std::memcpy(&function, &address, sizeof function);
    return function;
}

BOOL WINAPI CountExtentEx(HDC hdc, LPCSTR text, int count, int width, int* fits, int* each, SIZE* size)
{
    gMeasured += count;
    static const auto real = RealOf("gdi32", &CountExtentEx, "GetTextExtentExPointA");
    return real(hdc, text, count, width, fits, each, size);
}

int WINAPI CountDrawText(HDC hdc, LPCSTR text, int count, RECT* rect, UINT flags)
{
    gMeasured += count;
    static const auto real = RealOf("user32", &CountDrawText, "DrawTextA");
    return real(hdc, text, count, rect, flags);
}

TEST_F(EditLayout, FitCharsMeasuresNoMoreThanShows)
{
    Make("abc");
    const std::string text(1000, 'x');
    const FieldDC     dc(Ctl());
    const ImportHook  hook("GetTextExtentExPointA", CountExtentEx);
    gMeasured = 0;
    const int fits = FitChars(dc.hdc(), text.c_str(), 1000, 200, false);
    EXPECT_LT(0, fits);
    EXPECT_GE(100, gMeasured);
}

TEST_F(EditLayout, PasteIntoALongTextMeasuresNoMoreThanShowsForEachCharacter)
{
    Make("", HES_AUTOHSCROLL);
    SetFocus(edit);
    constexpr int     pasted = 1000;
    const ImportHook  extents("GetTextExtentExPointA", CountExtentEx);
    const ImportHook  texts("DrawTextA", CountDrawText);
    const std::string text(pasted, 'x');
    gMeasured = 0;
    SendText(EM_REPLACESEL, 0, text.c_str());
    EXPECT_EQ(text, FieldText(Ctl()));
    EXPECT_GE(pasted * 400, gMeasured);
    Send(EM_SETSEL, 0, pasted / 2);
    gMeasured = 0;
    SendText(EM_REPLACESEL, 0, "");
    EXPECT_EQ(pasted / 2, TextLength(Ctl()));
    EXPECT_GE(pasted / 2 * 400, gMeasured);
}

} // namespace
