// The mouse in fields of the host: carets, drags, double clicks.
#include "input/input_field.h"

namespace {

class FieldPointer : public InputField {
protected:
    // With the focus, and the caret at the start.
    void Start(const char* text, DWORD style = HES_AUTOHSCROLL, int width = 300)
    {
        Make(text, style, width);
        SetFocus(field);
        Send(field, EM_SETSEL, 0, 0);
        Told();
    }
    int Scroll() const { return static_cast<int>(Send(field, HEM_GETSCROLL)); }
};

constexpr int yText = 8;

TEST_F(FieldPointer, FirstClickTakesTheFocusAndSelectsAll)
{
    Make("one two three");
    ClickAt(field, 40, yText);
    EXPECT_EQ(field, GetFocus());
    EXPECT_EQ("[one two three]", Shown());
    EXPECT_EQ("F", Told());
}

TEST_F(FieldPointer, ClickPlacesTheCaretWhereTypingGoesOn)
{
    Start("one two three");
    ClickAt(field, XOf(4), yText);
    EXPECT_EQ("one |two three", Shown());
    ClickAt(field, XOf(11) + 1, yText);
    EXPECT_EQ("one two thr|ee", Shown());
    Type("X");
    EXPECT_EQ("one two thrX|ee", Shown());
    ClickAt(field, 290, yText);
    EXPECT_EQ("one two thrXee|", Shown());
    EXPECT_EQ("UC", Told());
}

TEST_F(FieldPointer, ClickWithShiftSelects)
{
    Start("one two three");
    ClickAt(field, XOf(2), yText);
    ClickAt(field, XOf(8), yText, withShift);
    EXPECT_EQ("on[e two ]three", Shown());
    ClickAt(field, XOf(1), yText, withShift);
    EXPECT_EQ("o[n]e two three", Shown());
}

TEST_F(FieldPointer, DragSelectsBothWays)
{
    Start("one two three");
    PressButton(field, XOf(4), yText);
    MoveMouse(field, XOf(7), yText);
    EXPECT_EQ("one [two] three", Shown());
    MoveMouse(field, XOf(1), yText);
    EXPECT_EQ("o[ne ]two three", Shown());
    ReleaseButton(field, XOf(1), yText);
    MoveMouse(field, XOf(9), yText);
    EXPECT_EQ("o[ne ]two three", Shown());
    EXPECT_EQ(nullptr, GetCapture());
    Type("-");
    EXPECT_EQ("o-|two three", Shown());
}

TEST_F(FieldPointer, DragOutsideScrollsToTheEndAndBack)
{
    constexpr char text[] = "0123456789 the quick brown fox jumps over the lazy dog 0123456789";
    constexpr int  length = sizeof text - 1;
    Start(text, HES_AUTOHSCROLL, 120);
    PressButton(field, XOf(5), yText);
    for (int i = 0; i < 60 && HIWORD(Send(field, EM_GETSEL)) < length; ++i) {
        MoveMouse(field, 150 + i % 2, yText);
    }
    EXPECT_EQ(MAKELRESULT(5, length), Send(field, EM_GETSEL));
    EXPECT_GT(Scroll(), length / 2);
    EXPECT_NE(std::string::npos, Told().find('S'));
    for (int i = 0; i < 60 && LOWORD(Send(field, EM_GETSEL)) > 0; ++i) {
        MoveMouse(field, -30 - i % 2, yText);
    }
    EXPECT_EQ(MAKELRESULT(0, 5), Send(field, EM_GETSEL));
    EXPECT_EQ(0, Scroll());
    ReleaseButton(field, -30, yText);
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(FieldPointer, DoubleClickSelectsTheWordWithTheBlanksBehindIt)
{
    Start("one two  three");
    DoubleClickAt(field, XOf(5), yText);
    EXPECT_EQ("one [two  ]three", Shown());
    EXPECT_EQ("D", Told());
    DoubleClickAt(field, XOf(11), yText);
    EXPECT_EQ("one two  [three]", Shown());
    EXPECT_EQ("D", Told());
    Type("4");
    EXPECT_EQ("one two  4|", Shown());
}

TEST_F(FieldPointer, ReadOnlyTextIsSelectedByTheMouse)
{
    Start("one two three", HES_AUTOHSCROLL | HES_READONLY);
    PressButton(field, XOf(4), yText);
    ReleaseButton(field, XOf(7), yText);
    EXPECT_EQ("one [two] three", Shown());
}

TEST_F(FieldPointer, StaticFieldTakesTheFocusFromAClickAndNoCaret)
{
    Make("one two three", HES_STATIC);
    ClickAt(field, 40, yText);
    EXPECT_EQ(field, GetFocus());
    ClickAt(field, 70, yText);
    EXPECT_EQ("|one two three", Shown());
}

TEST_F(FieldPointer, PasswordFieldPlacesTheCaretByItsOwnCharacter)
{
    Start("WiWi", HES_AUTOHSCROLL | HES_PASSWORD);
    const int step = XOf(1) - XOf(0);
    EXPECT_EQ(step, XOf(2) - XOf(1));
    ClickAt(field, XOf(0) + 2 * step, yText);
    EXPECT_EQ("Wi|Wi", Shown());
}

} // namespace
