// Committing: parsing, bounds, validation, vetoes and the focus.
#include "edit_window.h"
#include "foundation/memory.h"
#include "support/guarded_memory.h"

#include <cstring>
#include <functional>

namespace {

using EditCommit = EditWindow;

TEST_F(EditCommit, WithoutTypingNothingIsParsed)
{
    Create("%nl");
    SendMessageA(edit, HEM_SETFLAGS, HEF_DIRTY, 0);
    _fstrnzcpy(Ctl()->pszText, "42", Ctl()->cbText);
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(0, Number());
}

int gCalls;
int gAnswer;
int CALLBACK Count(HWND, int, void*)
{
    ++gCalls;
    return gAnswer;
}

class EditValidation : public EditWindow {
protected:
    void Install(int answer)
    {
        gCalls = 0;
        gAnswer = answer;
        Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(Count));
    }
};

TEST_F(EditValidation, CommittingTwiceWithoutTypingParsesOnce)
{
    Create("%nl");
    Install(0);
    Replace("42");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(1, gCalls);
}

TEST_F(EditCommit, SuccessClearsDirtyAndNull)
{
    Create("%nl");
    Send(HEM_SETDATA, 0, 0);
    Replace("42");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY | CF_NULL));
    EXPECT_TRUE(HasFlag(Ctl(), CF_CHANGED));
}

TEST_F(EditCommit, EmptyTextKeepsANullValueNull)
{
    Create("%nl");
    Send(HEM_SETDATA, 0, 0);
    Replace("");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_TRUE(HasFlag(Ctl(), CF_NULL));
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY));
}

TEST_F(EditCommit, EmptyDateTextOnADateFails)
{
    Create("%dl");
    const int date = 20240517;
    Send(HEM_SETDATA, 0, AsParam(&date));
    Replace("");
    EXPECT_NE(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(Codes{ HEN_BADINPUT }, Told());
}

TEST_F(EditCommit, ChangedTellsThatTheValueDiffers)
{
    Create("%nl");
    Replace("00");
    Send(HEM_COMMIT, 1, 0);
    EXPECT_FALSE(HasFlag(Ctl(), CF_CHANGED));
    Replace("42");
    Send(HEM_COMMIT, 1, 0);
    EXPECT_TRUE(HasFlag(Ctl(), CF_CHANGED));
}

TEST_F(EditCommit, ChangedStaysWhenTheSameValueIsCommittedAgain)
{
    Create("%nl");
    const int value = 7;
    Send(HEM_SETDATA, 0, AsParam(&value));
    Focus();
    TypeText("42");
    Send(WM_KEYDOWN, VK_F2);
    Send(WM_KEYUP, VK_F2);
    TypeKey(VK_HOME);
    TypeText("4");
    Blur();
    EXPECT_EQ(42, Number());
    EXPECT_EQ(1, Send(WWM_GETCHANGED)) << "the parent has not seen the 42 yet";
}

TEST_F(EditCommit, ChangedIsClearedByTheParentAlone)
{
    const std::function<void()> clears[] = {
        [this] { Send(WWM_SETCHANGED, 0); },
        [this] { Send(HEM_SETDATA, 0, 0); },
        [this] { SendText(WM_SETTEXT, 0, "%nl"); },
    };
    for (const auto& clear : clears) {
        edit = nullptr;
        Create("%nl");
        Replace("42");
        Send(HEM_COMMIT, 1, 0);
        EXPECT_EQ(1, Send(WWM_GETCHANGED));
        clear();
        EXPECT_EQ(0, Send(WWM_GETCHANGED)) << "step " << &clear - clears;
    }
}

TEST_F(EditCommit, ChangedComparesTextsAsTexts)
{
    Create("abc");
    Replace("abc");
    Send(HEM_COMMIT, 1, 0);
    EXPECT_FALSE(HasFlag(Ctl(), CF_CHANGED));
    Replace("abd");
    Send(HEM_COMMIT, 1, 0);
    EXPECT_TRUE(HasFlag(Ctl(), CF_CHANGED));
}

TEST_F(EditCommit, FailureKeepsTheTextAndTheRepairedValue)
{
    Create("%dl");
    const std::string text = DateText(31, 4, 2024);
    Replace(text.c_str());
    EXPECT_NE(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(text, Text());
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DIRTY));
    EXPECT_EQ(20240430, LoadAs<int>(Ctl()->pData));
    EXPECT_EQ(Codes{ HEN_BADINPUT }, Told());
}

TEST_F(EditCommit, VetoOfBadInputRestoresTheOldValueAndForgetsTheFailure)
{
    Create("%dl");
    const int date = 20240517;
    Send(HEM_SETDATA, 0, AsParam(&date));
    Veto(HEN_BADINPUT);
    Replace(DateText(31, 4, 2024).c_str());
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(20240517, LoadAs<int>(Ctl()->pData));
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY | CF_CHANGED));
}

TEST_F(EditCommit, FailureOnANullValueRestoresIt)
{
    Create("%dl");
    Send(HEM_SETDATA, 0, 0);
    Replace(DateText(31, 4, 2024).c_str());
    EXPECT_NE(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(0, LoadAs<int>(Ctl()->pData));
    EXPECT_TRUE(HasFlag(Ctl(), CF_NULL));
}

TEST_F(EditCommit, VetoOfBadInputLeavesANullValueNull)
{
    Create("%dl");
    Send(HEM_SETDATA, 0, 0);
    Veto(HEN_BADINPUT);
    Replace(DateText(31, 4, 2024).c_str());
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_TRUE(HasFlag(Ctl(), CF_NULL));
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY));
}

TEST_F(EditCommit, NumberAboveTheMaximumMovesToIt)
{
    Create("%nl|0;100;|");
    Focus();
    seen.Clear();
    Replace("150");
    Blur();
    EXPECT_EQ((Codes{ HEN_ABOVEMAX, HEN_KILLFOCUS }), Told());
    EXPECT_EQ("100", Text());
    EXPECT_EQ(100, Number());
}

TEST_F(EditCommit, VetoOfAboveMaximumKeepsTheNumber)
{
    Create("%nl|0;100;|");
    Focus();
    Veto(HEN_ABOVEMAX);
    Replace("150");
    Blur();
    EXPECT_EQ("150", Text());
    EXPECT_EQ(150, Number());
}

TEST_F(EditCommit, NumberBelowTheMinimumMovesToIt)
{
    Create("%nl|-10;100;|");
    Replace("-50");
    Send(HEM_COMMIT, 1, 1);
    EXPECT_EQ(Codes{ HEN_BELOWMIN }, Told());
    EXPECT_EQ(-10, Number());
}

TEST_F(EditCommit, VetoOfBelowMinimumKeepsTheNumber)
{
    Create("%nl|-10;100;|");
    Veto(HEN_BELOWMIN);
    Replace("-50");
    Send(HEM_COMMIT, 1, 1);
    EXPECT_EQ(-50, Number());
}

TEST_F(EditCommit, MinimumIsTestedOnTheNumberThatTheMaximumLeft)
{
    Create("%nl");
    Ctl()->dMin = 10;
    Ctl()->dMax = 5;
    Ctl()->wBounds = 3;
    Replace("20");
    Send(HEM_COMMIT, 1, 1);
    EXPECT_EQ((Codes{ HEN_ABOVEMAX, HEN_BELOWMIN }), Told());
    EXPECT_EQ(10, Number());
}

TEST_F(EditCommit, NumberTypedAboveTheMaximumMovesToItWhenTheFieldIsLeft)
{
    Create("%nl|0;100;|");
    Focus();
    TypeText("150");
    EXPECT_EQ("150", Text());
    seen.Clear();
    Blur();
    EXPECT_EQ((Codes{ HEN_ABOVEMAX, HEN_KILLFOCUS }), Told());
    EXPECT_EQ("100", Text());
    EXPECT_EQ(100, Number());
}

TEST_F(EditCommit, VetoKeepsATypedNumberAboveTheMaximum)
{
    Create("%nl|0;100;|");
    Focus();
    Veto(HEN_ABOVEMAX);
    TypeText("150");
    Blur();
    EXPECT_EQ("150", Text());
    EXPECT_EQ(150, Number());
}

TEST_F(EditCommit, NumberOnTheBoundIsNoCase)
{
    Create("%nl|0;100;|");
    Replace("100");
    Send(HEM_COMMIT, 1, 1);
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditValidation, CallbackTakesOnTheCheckOfTheDate)
{
    Create("%dl");
    Install(0);
    Replace(DateText(31, 4, 2024).c_str());
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(20240501, LoadAs<int>(Ctl()->pData)) << "neither checked nor repaired: the day behind 30 April";
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditValidation, RefusalTellsBadInputAndGivesTheFocusBack)
{
    Create("%nl");
    Focus();
    Install(3);
    seen.Clear();
    Replace("42");
    Blur();
    EXPECT_EQ(edit, GetFocus());
    EXPECT_EQ((Codes{ HEN_SETFOCUS, HEN_BADINPUT, HEN_KILLFOCUS }), Told());
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DIRTY));
}

TEST_F(EditValidation, RefusalIsTheResultOfTheCommit)
{
    Create("%nl");
    Install(3);
    Replace("42");
    EXPECT_EQ(3, Send(HEM_COMMIT, 1, 0));
}

TEST_F(EditValidation, RefusalAfterLeavingPostsTheWayBack)
{
    Create("%nl");
    const HWND other = Create("abc");
    Focus();
    Install(0);
    gAnswer = 0;
    parent.On(HEN_KILLFOCUS, [] { gAnswer = 1; });
    SetFocus(other);
    gAnswer = 0;
    EXPECT_TRUE(PumpUntil([this] { return GetFocus() == edit; }));
}

TEST_F(EditValidation, LeavingToNoWindowDoesNotCallTheFocusBack)
{
    Create("%nl");
    Focus();
    Install(1);
    SetFocus(nullptr);
    EXPECT_EQ(0, gCalls);
}

TEST_F(EditCommit, LinkedBufferGetsTheCommittedValue)
{
    Create("%nl");
    int linked = 0;
    Send(HEM_LINKDATA, 0, AsParam(&linked));
    Replace("42");
    Send(HEM_COMMIT, 1, 0);
    EXPECT_EQ(42, linked);
}

TEST_F(EditCommit, WithoutMemoryForTheOldValueTheCommitStillRuns)
{
    Create("%nl");
    Replace("42");
    FailAllocation(1);
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    FailAllocation(0);
    EXPECT_EQ(42, Number());
    EXPECT_FALSE(HasFlag(Ctl(), CF_CHANGED)) << "nothing to compare with";
}

TEST_F(EditCommit, TypedTextLongerThanTheMaskIsSafe)
{
    Create("%ms##");
    Replace("12 and more than that");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ("12", Value().substr(0, 2));
}

TEST_F(EditCommit, HostMayDestroyTheFieldInAnyNotification)
{
    struct Case {
        int         code;
        const char* text;
    };
    const Case cases[] = {
        { HEN_ABOVEMAX, "500" }, { HEN_BELOWMIN, "-500" }, { HEN_KILLFOCUS, "5" }, { HEN_SETFOCUS, "5" }
    };
    for (const Case& row : cases) {
        edit = nullptr;
        parent.On(HEN_SETFOCUS, [] {});
        Create("%nl|0;100;|");
        parent.On(row.code, [this] { DestroyWindow(edit); });
        Focus();
        if (IsWindow(edit)) {
            Replace(row.text);
            Blur();
        }
        EXPECT_FALSE(IsWindow(edit)) << row.code;
        parent.On(row.code, [] {});
    }
    edit = nullptr;
    Create("%dl");
    parent.On(HEN_BADINPUT, [this] { DestroyWindow(edit); });
    Focus();
    Replace(DateText(31, 4, 2024).c_str());
    Blur();
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(EditCommit, HostMayChangeTheTypeInANotification)
{
    Create("%nl|0;100;|");
    parent.On(HEN_ABOVEMAX, [this] { SendText(WM_SETTEXT, 0, "%ss5abc"); });
    Replace("500");
    Send(HEM_COMMIT, 1, 1);
    EXPECT_EQ('s', Send(HEM_GETCLASS));
}

constexpr Seen vetoedInput[] = {
    { 0, ToControl, HEM_COMMIT, 1, 0 },
    { 1, ToParent, HEN_BADINPUT, 7 },
    { 2, ToControl, WWM_CANCEL },
};

TEST_F(EditCommit, VetoComesBackFromInsideTheNotification)
{
    Create("%dl");
    Veto(HEN_BADINPUT);
    Replace(DateText(31, 4, 2024).c_str());
    seen.Watch(edit);
    Send(HEM_COMMIT, 1, 0);
    EXPECT_SEEN(vetoedInput);
}

constexpr Seen leavingBadNumber[] = {
    { 0, ToControl, WM_KILLFOCUS },
    { 1, ToParent, HEN_ABOVEMAX, 7 },
    { 1, ToParent, HEN_KILLFOCUS, 7 },
};

TEST_F(EditCommit, BoundsAreToldBeforeTheLossOfTheFocus)
{
    Create("%nl|0;100;|");
    Focus();
    Replace("150");
    seen.Clear();
    seen.Watch(edit);
    Blur();
    EXPECT_SEEN(leavingBadNumber);
}

TEST_F(EditCommit, FocusShowsTheEditFormAndSelectsAll)
{
    Create("abcdef");
    Focus();
    EXPECT_TRUE(IsFocused(Ctl()));
    EXPECT_EQ(MAKELRESULT(0, 6), Send(EM_GETSEL));
    EXPECT_EQ(Codes{ HEN_SETFOCUS }, Told());
}

TEST_F(EditCommit, FocusUnderKeepSelLeavesTheSelection)
{
    Create("abcdef", HES_KEEPSEL);
    Send(EM_SETSEL, 2, 4);
    Focus();
    EXPECT_EQ(MAKELRESULT(2, 4), Send(EM_GETSEL));
}

TEST_F(EditCommit, FocusInOverwriteModeStartsATextAtItsBegin)
{
    Create("abcdef");
    Send(EM_SETSEL, 3, 3);
    SetOverwriteMode(1);
    Focus();
    EXPECT_EQ(MAKELRESULT(0, 0), Send(EM_GETSEL));
}

TEST_F(EditCommit, FocusInOverwriteModeSelectsAllOfANumberAndOfASelectedText)
{
    SetOverwriteMode(1);
    Create("%nl");
    Focus();
    EXPECT_EQ(MAKELRESULT(0, 1), Send(EM_GETSEL));
    edit = nullptr;
    Create("abcdef");
    Send(EM_SETSEL, 2, 4);
    Focus();
    EXPECT_EQ(MAKELRESULT(0, 6), Send(EM_GETSEL));
}

TEST_F(EditCommit, StaticFieldIsToldOfItsFocusButSelectsNothing)
{
    Create("abcdef", HES_STATIC);
    Focus();
    EXPECT_EQ(Codes{ HEN_SETFOCUS }, Told());
    EXPECT_EQ(MAKELRESULT(0, 0), Send(EM_GETSEL));
}

TEST_F(EditCommit, LeavingCommitsAndShowsTheDisplayForm)
{
    Create("%nl(0)");
    Focus();
    seen.Clear();
    Replace("42");
    Blur();
    EXPECT_EQ("(42)", Text());
    EXPECT_FALSE(IsFocused(Ctl()));
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DISPLAY));
    EXPECT_EQ(Codes{ HEN_KILLFOCUS }, Told());
}

TEST_F(EditCommit, CaretGoesWithTheFocus)
{
    Create("abc");
    Focus();
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    EXPECT_EQ(edit, info.hwndCaret);
    Blur();
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    EXPECT_EQ(nullptr, info.hwndCaret);
}

TEST_F(EditCommit, CommitOfAShortTextKeepsNoCopyOfItsWholeBlock)
{
    Create("%ss16777215");
    Replace("short");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ("short", Value());
    EXPECT_GT(100u, LastBlockSize());
}

int gId;
int CALLBACK NoteId(HWND, int id, void*)
{
    gId = id;
    return 0;
}

TEST_F(EditCommit, ValidatorOfACommitGetsTheWindowsIdAndElsewhereTheRecords)
{
    Create("%nl");
    const HWND other = Create("abc");
    Focus();
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(NoteId));
    SetWindowLongPtrA(edit, GWLP_ID, 1234);
    Replace("42");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(1234, gId);
    const int value = 5;
    Send(HEM_SETDATA, 0, AsParam(&value));
    EXPECT_EQ(7, gId);
    gId = 0;
    SetFocus(other);
    EXPECT_EQ(7, gId) << "the call that follows the leaving";
}

TEST_F(EditCommit, VetoOfBadInputWithoutMemoryForTheOldValueForgetsTheFailureAlone)
{
    Create("%dl");
    const int date = 20240517;
    Send(HEM_SETDATA, 0, AsParam(&date));
    Veto(HEN_BADINPUT);
    Replace(DateText(31, 4, 2024).c_str());
    FailAllocation(1);
    EXPECT_EQ(0, CommitText(Ctl(), Ctl()->pszText));
    EXPECT_TRUE(AllocationFailed());
    FailAllocation(0);
    EXPECT_EQ(20240430, LoadAs<int>(Ctl()->pData)) << "the repaired value: there is no old one";
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY));
}

TEST_F(EditValidation, FieldThatGotTheFocusBackKeepsItsCaretAndItsEditForm)
{
    Create("%nl#,##0;(#,##0)");
    const int value = -4200;
    Send(HEM_SETDATA, 0, AsParam(&value));
    Focus();
    Install(3);
    Replace("-4300");
    Blur();
    ASSERT_EQ(edit, GetFocus());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DISPLAY));
    EXPECT_EQ('-', Text()[0]) << Text();
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    EXPECT_EQ(edit, info.hwndCaret);
}

} // namespace
