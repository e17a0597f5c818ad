// Typed characters.
#include "edit_window.h"
#include "support/guarded_memory.h"
#include "support/pixels.h"
#include "typed/date_time.h"

namespace {

class EditEntry : public EditWindow {
protected:
    // A field with the focus and the caret at an index.
    void Make(const char* text, DWORD style = 0, int caret = 0, int width = 200)
    {
        edit = nullptr;
        Create(text, style, width);
        Focus();
        Put(caret);
        seen.Clear();
    }
    void Put(int caret) const { SetSelection(Ctl(), 0, caret, caret); }
    void Key(char ch) const { Send(WM_CHAR, static_cast<BYTE>(ch)); }
    void Keys(const char* text) const
    {
        for (const char* ch = text; *ch; ++ch) {
            Key(*ch);
        }
    }
    int Caret() const { return Ctl()->nCaret; }
};

TEST_F(EditEntry, CharacterIsInsertedAndTheCaretMovesOn)
{
    Make("abc", HES_AUTOHSCROLL, 1);
    Key('X');
    EXPECT_EQ("aXbc", Text());
    EXPECT_EQ(2, Caret());
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DIRTY));
    EXPECT_EQ((Codes{ HEN_UPDATE, HEN_CHANGE }), Told());
}

TEST_F(EditEntry, CharacterReplacesTheSelection)
{
    Make("abcdef", HES_AUTOHSCROLL);
    Send(EM_SETSEL, 1, 4);
    Key('X');
    EXPECT_EQ("aXef", Text());
    EXPECT_EQ(2, Caret());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_REPLACING));
}

TEST_F(EditEntry, OverwritingReplacesTheCharacterAtTheCaret)
{
    SetOverwriteMode(1);
    Make("abc", HES_AUTOHSCROLL, 1);
    Keys("XY");
    EXPECT_EQ("aXY", Text());
    Key('Z');
    EXPECT_EQ("aXYZ", Text()) << "at the end characters are added";
}

TEST_F(EditEntry, OverwritingIsOffForTheCharacterThatReplacesASelection)
{
    SetOverwriteMode(1);
    Make("abcdef", HES_AUTOHSCROLL);
    Send(EM_SETSEL, 1, 3);
    Key('X');
    EXPECT_EQ("aXdef", Text());
    Key('Y');
    EXPECT_EQ("aXYef", Text());
}

TEST_F(EditEntry, StylesSetTheCase)
{
    Make("", HES_AUTOHSCROLL | HES_UPPERCASE);
    Keys("aBc");
    EXPECT_EQ("ABC", Text());
    Make("", HES_AUTOHSCROLL | HES_LOWERCASE);
    Keys("AbC");
    EXPECT_EQ("abc", Text());
    Make("", HES_AUTOHSCROLL | HES_UPPERCASE | HES_LOWERCASE);
    Keys("aBc");
    EXPECT_EQ("ABC", Text());
}

TEST_F(EditEntry, ControlCharactersAreDropped)
{
    Make("abc", HES_AUTOHSCROLL);
    for (const int ch : { 1, 9, 10, 13, 22, 26, 27, 127 }) {
        Send(EM_SETSEL, 0, 3);
        Key(static_cast<char>(ch));
        EXPECT_EQ("abc", Text()) << ch;
    }
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditEntry, CharactersAbove127AreTaken)
{
    Make("", HES_AUTOHSCROLL);
    Key('\xE4');
    EXPECT_EQ("\xE4", Text());
}

TEST_F(EditEntry, SkippedCharacterIsDroppedOnce)
{
    Make("", HES_AUTOHSCROLL);
    Ctl()->wFlags |= HEF_SKIPCHAR;
    Keys("ab");
    EXPECT_EQ("b", Text());
}

TEST_F(EditEntry, ReadOnlyFieldTakesNothing)
{
    Make("abc", HES_AUTOHSCROLL | HES_READONLY);
    Send(EM_SETSEL, 0, 3);
    Key('x');
    Key(8);
    EXPECT_EQ("abc", Text());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_SKIPCHAR));
}

TEST_F(EditEntry, BackspaceRemovesTheCharacterBefore)
{
    Make("abc", HES_AUTOHSCROLL, 2);
    Key(8);
    EXPECT_EQ("ac", Text());
    EXPECT_EQ(1, Caret());
    EXPECT_EQ((Codes{ HEN_UPDATE, HEN_CHANGE }), Told());
}

TEST_F(EditEntry, BackspaceAtTheStartDoesNothing)
{
    Make("abc", HES_AUTOHSCROLL, 0);
    Key(8);
    EXPECT_EQ("abc", Text());
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditEntry, BackspaceWithASelectionTakesTheCharacterBeforeTooUnlessAtTheStart)
{
    Make("abcdef", HES_AUTOHSCROLL);
    Send(EM_SETSEL, 2, 4);
    Key(8);
    EXPECT_EQ("aef", Text());
    EXPECT_EQ(1, Caret());
    Send(EM_SETSEL, 0, 2);
    Key(8);
    EXPECT_EQ("f", Text());
}

TEST_F(EditEntry, LimitedFieldThatIsFullTellsTheParent)
{
    Make("%ss3abc", HES_AUTOHSCROLL, 1);
    Key('X');
    EXPECT_EQ("abc", Text());
    EXPECT_EQ(Codes{ HEN_MAXTEXT }, Told());
}

TEST_F(EditEntry, LimitedFieldThatIsFullStillTakesCharactersInTheMiddleWhileOverwriting)
{
    SetOverwriteMode(1);
    Make("%ss3abc", HES_AUTOHSCROLL, 1);
    Key('X');
    EXPECT_EQ("aXc", Text());
    Put(3);
    Key('Y');
    EXPECT_EQ("aXc", Text());
    EXPECT_EQ(HEN_MAXTEXT, Told().back());
}

TEST_F(EditEntry, HostMayDestroyTheFullField)
{
    Make("%ss3abc", HES_AUTOHSCROLL, 1);
    parent.On(HEN_MAXTEXT, [this] { DestroyWindow(edit); });
    Key('X');
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(EditEntry, FieldWithoutALimitGrowsByThirtyTwo)
{
    Make("abc", HES_AUTOHSCROLL, 3);
    const LRESULT limit = Send(HEM_GETLIMIT);
    Keys(std::string(static_cast<size_t>(limit) - 3, 'x').c_str());
    EXPECT_EQ(limit, Send(HEM_GETLIMIT));
    Key('y');
    EXPECT_EQ(limit + 32, Send(HEM_GETLIMIT));
    EXPECT_EQ(limit + 33, Send(HEM_GETDATASIZE));
    EXPECT_EQ(static_cast<size_t>(limit) + 1, Text().size());
}

TEST_F(EditEntry, FieldWithoutMemoryToGrowRefuses)
{
    Make("abc", HES_AUTOHSCROLL, 3);
    const LRESULT limit = Send(HEM_GETLIMIT);
    Keys(std::string(static_cast<size_t>(limit) - 3, 'x').c_str());
    FailAllocation(1);
    Key('y');
    FailAllocation(0);
    EXPECT_EQ(static_cast<size_t>(limit), Text().size());
    EXPECT_EQ(limit, Send(HEM_GETLIMIT));
}

TEST_F(EditEntry, FieldThatCannotScrollRefusesTheCharacterThatWouldFillIt)
{
    for (const int overwrite : { 0, 1 }) {
        SetOverwriteMode(overwrite);
        Make("", 0, 0, 60);
        const int width = TextRect().right - TextRect().left;
        for (int i = 0; i < 50; ++i) {
            Key('W');
        }
        const std::string text = Text();
        EXPECT_LT(TextWidth(Ctl(), text.c_str(), 0, -1), width);
        EXPECT_GE(TextWidth(Ctl(), (text + "W").c_str(), 0, -1), width);
        for (const DWORD style : { DWORD{ HES_AUTOHSCROLL }, DWORD{ WS_HSCROLL } }) {
            Make("", style, 0, 60);
            for (int i = 0; i < 20; ++i) {
                Key('W');
            }
            EXPECT_EQ(20u, Text().size()) << "style " << style;
        }
    }
}

TEST_F(EditEntry, OverwritingAWiderCharacterThanFitsPutsTheOldOneBack)
{
    SetOverwriteMode(1);
    Make("", 0, 0, 60);
    for (int i = 0; i < 50; ++i) {
        Key('i');
    }
    const std::string text = Text();
    Put(0);
    for (int i = 0; i < 50; ++i) {
        Key('W');
    }
    EXPECT_EQ(text.size(), Text().size());
    EXPECT_NE(std::string::npos, Text().find('i'));
}

TEST_F(EditEntry, PasswordIsMeasuredByItsCharacter)
{
    Make("", HES_PASSWORD, 0, 60);
    for (int i = 0; i < 50; ++i) {
        Key('W');
    }
    const std::string stars(Text().size() + 1, '*');
    EXPECT_GE(TextWidth(Ctl(), stars.c_str(), 0, -1), TextRect().right - TextRect().left);
}

TEST_F(EditEntry, NumberIsFilteredByItsPicture)
{
    Make("%nl|0;9999;|", HES_AUTOHSCROLL);
    Send(EM_SETSEL, 0, 1);
    Keys("1a2b3");
    EXPECT_EQ("123", Text());
    Blur();
    EXPECT_EQ(123, Number());
}

TEST_F(EditEntry, NumberOfManyDigitsMakesTheTextGrow)
{
    Make("%nd*0.0*", HES_AUTOHSCROLL);
    Send(EM_SETSEL, 0, -1);
    for (int i = 0; i < 100; ++i) {
        Key('7');
    }
    EXPECT_GT(Text().size(), 40u);
    EXPECT_LT(static_cast<LONG>(Text().size()), +Ctl()->cbText);
    edit = nullptr;
    Make("%zd0.00");
    for (int i = 0; i < 100; ++i) {
        Key('7');
    }
    EXPECT_LT(static_cast<LONG>(Text().size()), +Ctl()->cbText);
}

TEST_F(EditEntry, CalculatorFieldPushesDigitsThroughItsPoint)
{
    Make("%zd0.00");
    Put(static_cast<int>(Text().size()));
    Keys("125");
    EXPECT_EQ(WithPoint("1.25"), Text());
}

TEST_F(EditEntry, DateIsTypedOverItsPicture)
{
    Make("%dldd/mm/yyyy");
    Keys("17052024");
    Blur();
    int value = 0;
    Send(HEM_GETDATA, sizeof value, AsParam(&value));
    EXPECT_EQ(20240517, value);
}

TEST_F(EditEntry, MaskIsTypedOverItsLiterals)
{
    Make("%ms##-##");
    Keys("1234");
    EXPECT_EQ("12-34", Text());
    EXPECT_EQ("1234", Value());
}

TEST_F(EditEntry, ClearedMaskIsLaidOutAgain)
{
    Make("%ms(##)", HES_CLEARALL);
    Keys("12");
    Send(EM_SETSEL, 0, -1);
    DeleteChar(Ctl(), true);
    EXPECT_EQ("", Text());
    Key('7');
    EXPECT_EQ("(7_)", Text());
}

TEST_F(EditEntry, TruthValueFollowsItsFirstLetter)
{
    Make("%bbyes;no");
    EXPECT_EQ("no", Text());
    Key('y');
    EXPECT_EQ("yes", Text());
    EXPECT_EQ(0, Caret());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_NEGATIVE));
    EXPECT_EQ((Codes{ HEN_UPDATE, HEN_CHANGE }), Told());
    Key(' ');
    EXPECT_EQ("no", Text());
    EXPECT_TRUE(HasFlag(Ctl(), HEF_NEGATIVE));
}

TEST_F(EditEntry, SingleCharacterIsReplaced)
{
    Make("%hh");
    Key('x');
    Key('y');
    EXPECT_EQ("y", Text());
}

// The date of today as a field of a format takes it in.
std::string Today(const char* picture)
{
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    const DateTimeRec rec = { static_cast<short>(now.wYear), static_cast<BYTE>(now.wMonth),
                              static_cast<BYTE>(now.wDay), 0, 0, 0, 0, 0 };
    char text[32];
    FormatDateTime(&rec, picture, text, sizeof text, false, true, false);
    return text;
}

struct StampRow {
    const char* winText;
    const char* picture; // of what a blank brings
};
const StampRow stamps[] = {
    { "%dd", "d/m/yyyy" },
    { "%dddd.mm.yyyy", "d/m/yyyy" },
    { "%dddddd, dd. mmmm yyyy", "d/m/yyyy" },
    { "%ddyyyy-mm-dd", "d/m/yyyy" },
    { "%ddmm|yyyy", "m|yyyy" },
};

TEST_F(EditEntry, BlankStampsTheDateOfTodayAsItIsRead)
{
    for (const StampRow& row : stamps) {
        SCOPED_TRACE(row.winText);
        std::string before;
        do {
            before = Today(row.picture);
            Make(row.winText);
            Key(' ');
        } while (before != Today(row.picture));
        EXPECT_EQ(before, Text());
        EXPECT_TRUE(HasFlag(Ctl(), HEF_DIRTY));
        EXPECT_EQ((Codes{ HEN_UPDATE, HEN_CHANGE }), Told());
        Blur();
        DestroyWindow(edit);
        edit = nullptr;
    }
}

TEST_F(EditEntry, StampInAFieldWithAStyleStandsButCountsAsRefused)
{
    std::string before;
    do {
        before = Today("d/m/yyyy");
        Make("%dddd.mm.yyyy", HES_AUTOHSCROLL);
        Key(' ');
    } while (before != Today("d/m/yyyy"));
    EXPECT_EQ(before, Text());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY));
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditEntry, BlankStampsDateAndTime)
{
    Make("%as");
    Key(' ');
    EXPECT_LE(Text().size(), 16u);
    char year[8];
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    std::snprintf(year, sizeof year, "%d", now.wYear);
    EXPECT_NE(std::string::npos, Text().find(year));
    EXPECT_NE(std::string::npos, Text().find(WWGetIntlInfo()->chTimeSep));
}

TEST_F(EditEntry, StampOfDateAndTimeInAFieldWithAStyleStandsButCountsAsRefused)
{
    Make("%as", HES_AUTOHSCROLL);
    Key(' ');
    char year[8];
    SYSTEMTIME now = {};
    GetLocalTime(&now);
    std::snprintf(year, sizeof year, "%d", now.wYear);
    EXPECT_NE(std::string::npos, Text().find(year));
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY));
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditEntry, FieldOfNoCharactersTellsOfEachOne)
{
    Make("%ss0abc", HES_AUTOHSCROLL);
    Keys("xy");
    EXPECT_EQ("", Text());
    EXPECT_EQ((Codes{ HEN_MAXTEXT, HEN_MAXTEXT }), Told());
}

TEST_F(EditEntry, BlankInAnotherDateTypeIsAnEntryStep)
{
    Make("%dldd.mm.yyyy");
    const std::string before = Text();
    Key(' ');
    EXPECT_EQ(before, Text());
}

TEST_F(EditEntry, HostMayDestroyTheFieldAtEachStep)
{
    for (const int code : { HEN_UPDATE, HEN_CHANGE }) {
        for (const char* const type : { "abc", "%nl", "%bbyes;no" }) {
            Make(type, HES_AUTOHSCROLL);
            parent.On(code, [this] { DestroyWindow(edit); });
            Key('y');
            Key('5');
            EXPECT_FALSE(IsWindow(edit)) << code << " " << type;
            parent.On(code, [] {});
        }
        Make("abcdef", HES_AUTOHSCROLL);
        parent.On(code, [this] { DestroyWindow(edit); });
        Send(EM_SETSEL, 1, 3);
        Key('x');
        EXPECT_FALSE(IsWindow(edit)) << code << " with a selection";
        parent.On(code, [] {});
    }
}

TEST_F(EditEntry, TypedTextIsPaintedAsIfItHadStoodThere)
{
    constexpr DWORD styles[] = { HES_AUTOHSCROLL, HES_AUTOHSCROLL | HES_EDITRIGHT };
    AnswerColors(GetSysColorBrush(COLOR_WINDOW));
    for (const DWORD style : styles) {
        Make("Quick fox", style, 3);
        HideCaret(edit);
        ShotOf(edit);
        Keys("xyz");
        Put(2);
        Key(8);
        const Pixels typed = ShotOf(edit);
        InvalidateRect(edit, nullptr, TRUE);
        EXPECT_TRUE(SamePixels(ShotOf(edit), typed)) << "style " << style;
    }
}

TEST_F(EditEntry, EachCharacterIsPaintedBeforeTheNext)
{
    constexpr DWORD styles[] = { HES_AUTOHSCROLL, HES_AUTOHSCROLL | HES_EDITRIGHT };
    AnswerColors(GetSysColorBrush(COLOR_WINDOW));
    for (const DWORD style : styles) {
        Make("", style);
        UpdateWindow(edit);
        for (const char ch : std::string("HIDDEN FIELD, wavy Wijk")) {
            Key(ch);
            UpdateWindow(edit);
        }
        HideCaret(edit);
        const Pixels typed = ShotOf(edit);
        InvalidateRect(edit, nullptr, TRUE);
        EXPECT_TRUE(SamePixels(ShotOf(edit), typed)) << "style " << style;
        DestroyWindow(edit);
    }
}

TEST_F(EditEntry, UpdatingIsSetWhileASelectionIsReplaced)
{
    Make("abcdef", HES_AUTOHSCROLL);
    std::vector<LRESULT> states;
    parent.On(HEN_CHANGE, [&] { states.push_back(Send(WWM_GETUPDATING)); });
    Send(EM_SETSEL, 0, 1);
    Key('X');
    ASSERT_FALSE(states.empty());
    EXPECT_EQ(1, states.front());
    EXPECT_EQ(0, states.back());
    EXPECT_EQ(0, Send(WWM_GETUPDATING));
    Send(WWM_SETUPDATING, 1);
    Send(EM_SETSEL, 0, 1);
    Key('Y');
    EXPECT_EQ(1, Send(WWM_GETUPDATING)) << "the old state comes back";
}

TEST_F(EditEntry, ReplaceSelFeedsEachCharacterThroughTheField)
{
    Make("%nl", HES_AUTOHSCROLL);
    Send(EM_SETSEL, 0, 1);
    EXPECT_EQ(1, SendText(EM_REPLACESEL, 0, "12x34"));
    EXPECT_EQ("1234", Text());
}

TEST_F(EditEntry, ReplaceSelTakesTheFieldsOwnText)
{
    Make("abc", HES_AUTOHSCROLL, 3);
    SendText(EM_REPLACESEL, 0, reinterpret_cast<const char*>(Send(HEM_GETTEXTPTR)));
    EXPECT_EQ("abcabc", Text());
    Send(EM_SETSEL, 0, 3);
    Send(EM_REPLACESEL, 0, 0);
    EXPECT_EQ("abc", Text());
}

TEST_F(EditEntry, ReplaceSelDoesNotShowAHiddenField)
{
    Make("abc", HES_AUTOHSCROLL);
    ShowWindow(edit, SW_HIDE);
    Send(EM_SETSEL, 0, 3);
    SendText(EM_REPLACESEL, 0, "xyz");
    EXPECT_FALSE(IsWindowVisible(edit));
    EXPECT_EQ("xyz", Text());
}

TEST_F(EditEntry, ReplaceSelSurvivesAHostThatDestroysTheField)
{
    Make("abc", HES_AUTOHSCROLL);
    parent.On(HEN_CHANGE, [this] {
        if (Text().size() > 5) {
            DestroyWindow(edit);
        }
    });
    SendText(EM_REPLACESEL, 0, "123456");
    EXPECT_FALSE(IsWindow(edit));
}

} // namespace
