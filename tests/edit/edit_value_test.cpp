// The stored value and the text that follows it.
#include "edit_window.h"
#include "foundation/memory.h"
#include "support/guarded_memory.h"

#include <cstring>

namespace {

using EditValue = EditWindow;

TEST_F(EditValue, SetDataWithoutARecordFails)
{
    EXPECT_EQ(-2, HEditSetData(nullptr, "abc"));
}

TEST_F(EditValue, NullShowsTheEmptyTextInDisplayForm)
{
    Create("%nl");
    SendText(HEM_SETFORMAT, 0, "0;-0;none");
    EXPECT_EQ(1, Send(HEM_SETDATA, 0, 0));
    EXPECT_EQ("none", Text());
    EXPECT_EQ(1, Send(WWM_ISNULL));
    const int value = 0;
    Send(HEM_SETDATA, 0, AsParam(&value));
    EXPECT_EQ("0", Text());
    EXPECT_EQ(0, Send(WWM_ISNULL));
}

TEST_F(EditValue, NullWithoutAnEmptyTextShowsNothing)
{
    Create("%nl");
    Send(HEM_SETDATA, 0, 0);
    EXPECT_EQ("", Text());
}

TEST_F(EditValue, NullZeroesTheStoredValue)
{
    Create("%nl");
    const int value = 77;
    Send(HEM_SETDATA, 0, AsParam(&value));
    Send(HEM_SETDATA, 0, 0);
    EXPECT_EQ(0, LoadAs<int>(Ctl()->pData));
}

TEST_F(EditValue, LongerTextMakesTheBuffersGrow)
{
    Create("%ss5abc");
    const std::string text(100, 'x');
    EXPECT_EQ(1, SendText(HEM_SETDATA, 0, text.c_str()));
    EXPECT_EQ(text, Text());
    EXPECT_EQ(132, Send(HEM_GETLIMIT));
    EXPECT_EQ(133, +Ctl()->cbText);
    EXPECT_EQ(133, Send(HEM_GETDATASIZE));
}

TEST_F(EditValue, TextThatFitsLeavesTheLimitAlone)
{
    Create("%ss40");
    SendText(HEM_SETDATA, 0, std::string(40, 'x').c_str());
    EXPECT_EQ(40, Send(HEM_GETLIMIT));
}

TEST_F(EditValue, FailedGrowthIsToldAndKeepsTheOldText)
{
    Create("abc");
    const std::string text(100, 'x');
    for (int n = 1; n <= 2; ++n) {
        FailAllocation(n);
        EXPECT_EQ(-5, SendText(HEM_SETDATA, 0, text.c_str())) << "allocation " << n;
        EXPECT_EQ("abc", Text());
    }
    FailAllocation(0);
}

TEST_F(EditValue, FieldMayGetItsOwnTextAsValue)
{
    Create("abcdef");
    SendText(HEM_SETDATA, 0, reinterpret_cast<const char*>(Send(HEM_GETTEXTPTR)) + 2);
    EXPECT_EQ("cdef", Text());
    HEditSetData(Ctl(), static_cast<const char*>(Ctl()->pData) + 1);
    EXPECT_EQ("def", Text());
}

TEST_F(EditValue, MaskedTextIsCutToTheBlockOfTheValue)
{
    Create("%ms##-##");
    SendText(HEM_SETDATA, 0, "123456789");
    EXPECT_EQ("12345", Value());
}

int gAnswer;
int gCalls;
int CALLBACK Answer(HWND, int, void*)
{
    ++gCalls;
    return gAnswer;
}

TEST_F(EditValue, ValidatorIsCalledButItsAnswerIsIgnored)
{
    Create("%nl");
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(Answer));
    gAnswer = 1;
    gCalls = 0;
    const int value = 9;
    EXPECT_EQ(1, Send(HEM_SETDATA, 0, AsParam(&value)));
    EXPECT_EQ(1, gCalls);
    EXPECT_EQ(9, Number());
}

int CALLBACK DestroyIt(HWND hwnd, int, void*)
{
    DestroyWindow(hwnd);
    return 0;
}

TEST_F(EditValue, ValidatorMayDestroyTheField)
{
    Create("%nl");
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(DestroyIt));
    const int value = 9;
    EXPECT_EQ(1, Send(HEM_SETDATA, 0, AsParam(&value)));
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(EditValue, LinkedBufferFollowsTheValue)
{
    Create("%nl");
    int linked = 0;
    Send(HEM_LINKDATA, 0, AsParam(&linked));
    const int value = 9;
    Send(HEM_SETDATA, 0, AsParam(&value));
    EXPECT_EQ(9, linked);
}

TEST_F(EditValue, LinkedBufferIsTheMasterWhenTheTextIsRebuilt)
{
    Create("%nl");
    int linked = 0;
    Send(HEM_LINKDATA, 0, AsParam(&linked));
    linked = 12;
    Send(HEM_COMMIT, 0, 0);
    EXPECT_EQ("12", Text());
    EXPECT_EQ(12, Number());
}

TEST_F(EditValue, LinkedBufferIsHeldWithinBounds)
{
    Create("%nl");
    int linked = 50;
    Send(HEM_LINKDATA, 1, AsParam(&linked));
    const int most = 10;
    Send(HEM_SETMAX, 0, AsParam(&most));
    EXPECT_EQ(10, linked);
    EXPECT_EQ("10", Text());
}

TEST_F(EditValue, LinkedBufferIsClearedWithTheValue)
{
    Create("%nl");
    int linked = 50;
    Send(HEM_LINKDATA, 1, AsParam(&linked));
    Send(WM_CLEAR);
    EXPECT_EQ(0, linked);
    EXPECT_EQ("0", Text());
}

TEST_F(EditValue, InitialTextOfANewWindowTextShowsInANullField)
{
    Create("%dd");
    Send(HEM_SETDATA, 0, 0);
    SendText(WM_SETTEXT, 0, "%ss20abc");
    EXPECT_EQ("abc", Text());
    EXPECT_EQ(0, Send(WWM_ISNULL));
}

TEST_F(EditValue, LinkedTextIsCutToTheField)
{
    Create("abc");
    std::string linked(200, 'y');
    Send(HEM_LINKDATA, 0, AsParam(linked.data()));
    linked.assign(200, 'z');
    Send(HEM_COMMIT, 0, 0);
    EXPECT_EQ(static_cast<size_t>(Ctl()->cbData - 1), Text().size());
}

TEST_F(EditValue, SelectionIsAtTheStartWithoutTheFocusAndAllWithIt)
{
    Create("abc");
    Send(EM_SETSEL, 1, 2);
    SendText(HEM_SETDATA, 0, "defgh");
    EXPECT_EQ(MAKELRESULT(0, 0), Send(EM_GETSEL));
    Focus();
    SendText(HEM_SETDATA, 0, "ijk");
    EXPECT_EQ(MAKELRESULT(0, 3), Send(EM_GETSEL));
}

TEST_F(EditValue, InstalledValueIsNeitherDirtyNorChanged)
{
    Create("%nl");
    Ctl()->wFlags |= HEF_DIRTY | CF_CHANGED;
    const int value = 9;
    Send(HEM_SETDATA, 0, AsParam(&value));
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY | CF_CHANGED));
}

TEST_F(EditValue, FormsOfANumberFollowTheFocus)
{
    Create("%nd(0.00)");
    const double value = 5;
    Send(HEM_SETDATA, 0, AsParam(&value));
    EXPECT_EQ(WithPoint("(5.00)"), Text());
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DISPLAY));
    Focus();
    EXPECT_EQ(WithPoint("5.00"), Text());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DISPLAY));
}

struct AlignCase {
    DWORD style;
    WORD  display;
    WORD  edited;
};

TEST_F(EditValue, AlignmentsFollowTheForm)
{
    const AlignCase cases[] = {
        { 0, 0, 0 },
        { HES_RIGHT, HEF_RIGHT, 0 },
        { HES_CENTER, HEF_CENTER, 0 },
        { HES_EDITRIGHT, 0, HEF_RIGHT },
        { HES_RIGHT | HES_EDITRIGHT, HEF_RIGHT, HEF_RIGHT },
    };
    for (const AlignCase& row : cases) {
        edit = nullptr;
        Create("abc", row.style);
        EXPECT_EQ(row.display, Ctl()->wFlags & (HEF_RIGHT | HEF_CENTER)) << "style " << row.style;
        Focus();
        EXPECT_EQ(row.edited, Ctl()->wFlags & (HEF_RIGHT | HEF_CENTER)) << "style " << row.style;
    }
}

TEST_F(EditValue, NegativeFlagFollowsTheValue)
{
    Create("%nl");
    const int minus = -5;
    const int plus = 5;
    Send(HEM_SETDATA, 0, AsParam(&minus));
    EXPECT_TRUE(HasFlag(Ctl(), HEF_NEGATIVE));
    Send(HEM_SETDATA, 0, AsParam(&plus));
    EXPECT_FALSE(HasFlag(Ctl(), HEF_NEGATIVE));
}

TEST_F(EditValue, ValueThatCannotBeFormattedShowsNothing)
{
    Create("%nM");
    Replace("left over");
    Send(HEM_COMMIT, 0, 0);
    EXPECT_EQ("", Text());
}

TEST_F(EditValue, SetFormatRedrawsOnDemand)
{
    Create("%nd0.0");
    SendText(HEM_SETFORMAT, 0, "0.00");
    EXPECT_EQ(WithPoint("0.0"), Text());
    SendText(HEM_SETFORMAT, 1, "0.000");
    EXPECT_EQ(WithPoint("0.000"), Text());
}

struct EmptyCase {
    const char* type;
    const char* format;
    const char* empty;
};

TEST_F(EditValue, EmptyTextIsTheSecondOrTheThirdSection)
{
    const EmptyCase cases[] = {
        { "%dl", "mm/dd/yyyy;no date", "no date" },
        { "%dl", "mm/dd/yyyy;no date;more", "no date" },
        { "%dl", "mm/dd/yyyy", "" },
        { "%ms", "##-##;nothing", "nothing" },
        { "%nl", "0;-0;none", "none" },
        { "%nl", "0;;none", "none" },
        { "%nl", "0;-0", "" },
        { "%cl", "0;-0;none", "none" },
        { "%bb", "yes;no;perhaps", "perhaps" },
        { "%zd", "0.0;none", "none" },
    };
    for (const EmptyCase& row : cases) {
        edit = nullptr;
        Create(row.type);
        EXPECT_EQ(1, SendText(HEM_SETFORMAT, 0, row.format));
        EXPECT_STREQ(row.format, reinterpret_cast<const char*>(Send(HEM_GETFORMATPTR))) << "sections included";
        Send(HEM_SETDATA, 0, 0);
        EXPECT_EQ(row.empty, Text()) << row.type << row.format;
    }
}

TEST_F(EditValue, FormatWithoutAnEmptyTextTakesTheOldOneAway)
{
    Create("%nl");
    SendText(HEM_SETFORMAT, 0, "0;-0;none");
    SendText(HEM_SETFORMAT, 0, "0");
    Send(HEM_SETDATA, 0, 0);
    EXPECT_EQ("", Text());
}

TEST_F(EditValue, LongerMaskMakesRoomForValueAndText)
{
    Create("%ms##");
    const std::string mask(80, '#');
    EXPECT_EQ(1, SendText(HEM_SETFORMAT, 1, mask.c_str()));
    EXPECT_EQ(81, Send(HEM_GETDATASIZE));
    const std::string digits(80, '7');
    SendText(HEM_SETDATA, 0, digits.c_str());
    EXPECT_EQ(digits, Text());
}

TEST_F(EditValue, EmptySectionOfAMaskNeedsNoRoomInTheValue)
{
    Create("%ms");
    SendText(HEM_SETFORMAT, 0, "##;nothing at all");
    EXPECT_EQ(3, Send(HEM_GETDATASIZE));
}

TEST_F(EditValue, FailedFormatKeepsTheOldOne)
{
    Create("%ms##");
    const std::string mask(80, '#');
    for (int n = 1; n <= 3; ++n) {
        FailAllocation(n);
        EXPECT_EQ(-5, SendText(HEM_SETFORMAT, 0, mask.c_str())) << "allocation " << n;
        EXPECT_STREQ("##", reinterpret_cast<const char*>(Send(HEM_GETFORMATPTR)));
    }
    FailAllocation(0);
}

TEST_F(EditValue, SetTextOfATextFieldInstallsTheText)
{
    Create("abc");
    EXPECT_EQ(1, SendText(WM_SETTEXT, 0, "def"));
    EXPECT_EQ("def", Value());
    EXPECT_EQ(-2, Send(WM_SETTEXT, 0, 0));
}

TEST_F(EditValue, SetTextOfANumberCommitsTheText)
{
    Create("%nl");
    EXPECT_EQ(1, SendText(WM_SETTEXT, 0, "42"));
    EXPECT_EQ(42, Number());
    EXPECT_EQ("42", Text());
    EXPECT_TRUE(HasFlag(Ctl(), CF_CHANGED));
}

TEST_F(EditValue, SetTextWithAPercentSignReadsTheTypeAnew)
{
    Create("abc");
    SendText(WM_SETTEXT, 0, "%nl|5;9;|");
    EXPECT_EQ('n', Send(HEM_GETCLASS));
    EXPECT_EQ("5", Text());
}

TEST_F(EditValue, SetTextLongerThanAMaskIsSafe)
{
    Create("%ms##-##");
    const std::string text(300, '1');
    SendText(WM_SETTEXT, 0, text.c_str());
    EXPECT_EQ("1111", Value().substr(0, 4));
    edit = nullptr;
    Create("%ms");
    SendText(WM_SETTEXT, 0, "loose text");
    EXPECT_EQ("loose text", Value()) << "an empty mask takes all";
}

TEST_F(EditValue, LinkedBufferOfAnEmptyMaskIsNotOverrun)
{
    Create("%ms");
    ASSERT_EQ(1, Send(HEM_GETDATASIZE));
    char* const linked = static_cast<char*>(HBlockAlloc(1)); // a guarded page lies behind it
    Send(HEM_LINKDATA, 0, AsParam(linked));
    SendText(WM_SETTEXT, 0, "loose text");
    EXPECT_EQ('\0', *linked);
    DestroyWindow(edit);
    HBlockFree(linked);
}

TEST_F(EditValue, SetTextWithoutMemoryLeavesAFieldThatAnswers)
{
    constexpr int allocations = 4; // the copy of the window text, the text, the value, the format
    for (int n = 1; n <= allocations; ++n) {
        edit = nullptr;
        Create("abc");
        FailAllocation(n);
        SendText(WM_SETTEXT, 0, "%nl|1;2;|0");
        FailAllocation(0);
        const int value = 5;
        Send(HEM_SETDATA, 0, AsParam(&value));
        Send(WM_CLEAR);
        Send(EM_UNDO);
        Focus();
        UpdateWindow(edit);
        Blur();
        EXPECT_NE("(none)", Text()) << "allocation " << n;
        DestroyWindow(edit);
    }
}

TEST_F(EditValue, LimitTextSetsAndClearsTheLimit)
{
    Create("abcdef");
    EXPECT_EQ(1, Send(EM_LIMITTEXT, 10));
    EXPECT_TRUE(HasFlag(Ctl(), HEF_LIMITED));
    EXPECT_EQ(10, Send(HEM_GETLIMIT));
    EXPECT_EQ(11, Send(HEM_GETDATASIZE));
    EXPECT_EQ(11, +Ctl()->cbText);
    for (const WPARAM none : { WPARAM{ 0 }, static_cast<WPARAM>(-5) }) {
        Send(EM_LIMITTEXT, 10);
        Send(EM_LIMITTEXT, none);
        EXPECT_FALSE(HasFlag(Ctl(), HEF_LIMITED));
        EXPECT_EQ(32, Send(HEM_GETLIMIT));
    }
    EXPECT_EQ("abcdef", Text());
    EXPECT_EQ("abcdef", Value());
}

TEST_F(EditValue, LimitTextCutsWhatIsLonger)
{
    Create("abcdef");
    Send(EM_SETSEL, 5, 6);
    Send(EM_LIMITTEXT, 3);
    EXPECT_EQ("abc", Text());
    EXPECT_EQ("abc", Value());
    EXPECT_EQ(MAKELRESULT(3, 3), Send(EM_GETSEL));
}

TEST_F(EditValue, TakingTheLimitAwayCutsNothing)
{
    const std::string typed(40, 't');
    const std::string value(50, 'v');
    for (const WPARAM none : { WPARAM{ 0 }, static_cast<WPARAM>(-5) }) {
        edit = nullptr;
        Create("");
        SendText(HEM_SETDATA, 0, value.c_str());
        Replace(typed.c_str());
        EXPECT_EQ(1, Send(EM_LIMITTEXT, none));
        EXPECT_EQ(typed, Text()) << "the text that was typed";
        EXPECT_EQ(value, static_cast<const char*>(Ctl()->pData)) << "the value";
        EXPECT_EQ(50, Send(HEM_GETLIMIT));
        Focus();
        TypeKey(VK_END);
        TypeText("x");
        EXPECT_EQ(value, Text().substr(0, 50)) << "it was shown anew with the focus";
        Blur();
    }
}

TEST_F(EditValue, TakingTheLimitAwayKeepsATextThatIsLongerThanTheValue)
{
    Create("", HES_AUTOHSCROLL);
    Send(EM_LIMITTEXT, 60);
    const std::string typed(55, 't');
    Replace(typed.c_str());
    Send(EM_LIMITTEXT, 0);
    EXPECT_EQ(typed, Text());
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(typed, Value());
}

TEST_F(EditValue, LimitTextOfADateIsRefused)
{
    Create("%dl");
    EXPECT_EQ(-1, Send(EM_LIMITTEXT, 10));
}

TEST_F(EditValue, LimitTextWithoutMemoryChangesNothing)
{
    Create("abc");
    FailAllocation(1);
    EXPECT_EQ(-5, Send(EM_LIMITTEXT, 1000));
    FailAllocation(0);
    EXPECT_FALSE(HasFlag(Ctl(), HEF_LIMITED));
    EXPECT_EQ("abc", Text());
    EXPECT_EQ(-5, Send(EM_LIMITTEXT, 0x7FFFFFFF));
}

TEST_F(EditValue, UndoRebuildsTheTextFromTheValue)
{
    for (const UINT message : { static_cast<UINT>(EM_UNDO), static_cast<UINT>(WM_UNDO) }) {
        edit = nullptr;
        Create("abcdef");
        Focus();
        Replace("typed");
        EXPECT_EQ(1, Send(message));
        EXPECT_EQ("abcdef", Text());
        EXPECT_EQ(MAKELRESULT(0, 0), Send(EM_GETSEL));
    }
}

TEST_F(EditValue, ClearZeroesTheValueAndSelectsAll)
{
    Create("abcdef");
    EXPECT_EQ(1, Send(WM_CLEAR));
    EXPECT_EQ("", Text());
    EXPECT_EQ("", Value());
    edit = nullptr;
    Create("%nl");
    const int value = 1234;
    Send(HEM_SETDATA, 0, AsParam(&value));
    Send(WM_CLEAR);
    EXPECT_EQ(0, Number());
    EXPECT_EQ(MAKELRESULT(0, 1), Send(EM_GETSEL)) << "what was selected was longer";
}

struct UndoRow {
    const char* what;
    void (*undo)(HWND edit);
};

TEST_F(EditValue, LeavingAfterUndoneTypingKeepsTheValueUnchanged)
{
    const UndoRow rows[] = {
        { "EM_UNDO", [](HWND hwnd) { SendMessageA(hwnd, EM_UNDO, 0, 0); } },
        { "Ctrl+Z", [](HWND) { TypeKey('Z', withCtrl); } },
        { "Alt+Backspace", [](HWND) { TypeKey(VK_BACK, withAlt); } },
    };
    for (const UndoRow& row : rows) {
        edit = nullptr;
        Create("%nl*0", HES_AUTOHSCROLL);
        const int value = 42;
        Send(HEM_SETDATA, 0, AsParam(&value));
        Focus();
        TypeText("123");
        ASSERT_EQ("123", Text()) << row.what;
        row.undo(edit);
        EXPECT_EQ("42", Text()) << row.what;
        Blur();
        EXPECT_EQ(42, Number()) << row.what;
        EXPECT_EQ(0, Send(WWM_GETCHANGED)) << row.what;
    }
}

TEST_F(EditValue, TextThatALimitCutsIsPaintedAnewWithTheCaretAtItsEnd)
{
    Create("abcdef", HES_AUTOHSCROLL);
    Focus();
    Send(WM_KEYDOWN, VK_END);
    UpdateWindow(edit);
    ASSERT_FALSE(GetUpdateRect(edit, nullptr, FALSE));
    Send(EM_LIMITTEXT, 3);
    EXPECT_EQ("abc", Text());
    EXPECT_TRUE(GetUpdateRect(edit, nullptr, FALSE));
    POINT caret = {};
    GetCaretPos(&caret);
    EXPECT_EQ(CaretX(Ctl(), 3) - 1, caret.x);
}

TEST_F(EditValue, TextWithinItsNewLimitIsNotPaintedAnew)
{
    Create("abcdef", HES_AUTOHSCROLL);
    UpdateWindow(edit);
    for (const WPARAM limit : { 6, 0, 50 }) {
        Send(EM_LIMITTEXT, limit);
        EXPECT_FALSE(GetUpdateRect(edit, nullptr, FALSE)) << limit;
    }
}

TEST_F(EditValue, TextOfNoValueIsNotNegative)
{
    Create("%nl*0");
    SendText(HEM_SETFORMAT, 1, "*0;-*0;none");
    const int value = -5;
    Send(HEM_SETDATA, 0, AsParam(&value));
    ASSERT_TRUE(HasFlag(Ctl(), HEF_NEGATIVE));
    Send(HEM_SETDATA, 0, 0);
    EXPECT_EQ("none", Text());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_NEGATIVE));
}

} // namespace
