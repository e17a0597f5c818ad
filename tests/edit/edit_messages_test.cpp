// The own messages of edit controls, each number at least once, and the platform's edit messages.
#include "edit_window.h"

#include <cstring>

namespace {

using EditMessages = EditWindow;

TEST_F(EditMessages, GetDataCopiesTheValueOfAFixedTypeAndGivesItsSize)
{
    Create("%nd");
    const double set = 2.5;
    Send(HEM_SETDATA, 0, AsParam(&set));
    double got = 0;
    EXPECT_EQ(8, Send(HEM_GETDATA, sizeof got, AsParam(&got)));
    EXPECT_EQ(2.5, got);
}

TEST_F(EditMessages, GetDataCopiesATextUpToTheSizeAndGivesTheCount)
{
    Create("abcdef");
    char buffer[8] = "zzzzzzz";
    EXPECT_EQ(3, Send(HEM_GETDATA, 4, AsParam(buffer)));
    EXPECT_STREQ("abc", buffer);
    EXPECT_EQ(6, Send(HEM_GETDATA, sizeof buffer, AsParam(buffer)));
    EXPECT_STREQ("abcdef", buffer);
}

TEST_F(EditMessages, GetDataOfANullValueGivesZeroAndLeavesTheBuffer)
{
    Create("%nl");
    Send(HEM_SETDATA, 0, 0);
    int got = 99;
    EXPECT_EQ(0, Send(HEM_GETDATA, sizeof got, AsParam(&got)));
    EXPECT_EQ(99, got);
}

TEST_F(EditMessages, GetDataCommitsFirstOnlyWithTheFocus)
{
    Create("%nl");
    Replace("42");
    EXPECT_EQ(0, Number());
    Focus();
    Replace("42");
    EXPECT_EQ(42, Number());
}

TEST_F(EditMessages, SetDataInstallsTheValue)
{
    Create("%nl");
    const int value = 7;
    EXPECT_EQ(1, Send(HEM_SETDATA, 0, AsParam(&value)));
    EXPECT_EQ("7", Text());
}

TEST_F(EditMessages, GetRectCopiesTheTextArea)
{
    Create("abc", 0, 200, 24);
    for (const UINT message : { static_cast<UINT>(HEM_GETRECT), static_cast<UINT>(EM_GETRECT) }) {
        RECT rect = {};
        EXPECT_EQ(1, Send(message, 0, AsParam(&rect)));
        EXPECT_EQ(0, rect.left);
        EXPECT_EQ(200, rect.right);
        EXPECT_EQ(24, rect.bottom);
        EXPECT_EQ(-2, Send(message, 0, 0));
    }
}

TEST_F(EditMessages, SetRectSetsTheTextAreaAndTheCharactersOfAPage)
{
    Create("abc");
    const RECT set = { 5, 2, 105, 20 };
    EXPECT_EQ(1, Send(HEM_SETRECT, 0, AsParam(&set)));
    RECT got = {};
    Send(HEM_GETRECT, 0, AsParam(&got));
    EXPECT_TRUE(EqualRect(&set, &got));
    EXPECT_EQ(static_cast<LONG>(100 / LOWORD(GetBaseUnits(nullptr))), +Ctl()->cPageChars);
}

TEST_F(EditMessages, SetRectWithoutOneTakesTheClientArea)
{
    Create("abc", 0, 120, 24);
    const RECT set = { 5, 2, 6, 20 };
    Send(HEM_SETRECT, 0, AsParam(&set));
    EXPECT_EQ(1, +Ctl()->cPageChars) << "at least one";
    Send(HEM_SETRECT, 0, 0);
    const RECT rect = Ctl()->rcText;
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(120, rect.right);
}

TEST_F(EditMessages, TextAreaOfAFramedFieldKeepsThreePixelsFree)
{
    Create("abc", HES_FRAME, 120, 24);
    RECT client = {};
    GetClientRect(edit, &client);
    const RECT rect = Ctl()->rcText;
    EXPECT_EQ(3, rect.left);
    EXPECT_EQ(client.right - 3, rect.right);
    EXPECT_EQ(0, rect.top);
    EXPECT_EQ(client.bottom, rect.bottom);
}

TEST_F(EditMessages, SetRectWithRedrawRefreshesTheText)
{
    Create("%nl");
    Replace("garbage");
    Send(HEM_SETRECT, 0, 0);
    EXPECT_EQ("garbage", Text());
    Send(HEM_SETRECT, 1, 0);
    EXPECT_EQ("0", Text());
}

TEST_F(EditMessages, GetLimitGivesTheMostCharacters)
{
    Create("%ss12");
    EXPECT_EQ(12, Send(HEM_GETLIMIT));
}

TEST_F(EditMessages, OverwriteModeIsThatOfTheWholeLibrary)
{
    Create("abc");
    EXPECT_EQ(0, Send(HEM_GETOVERWRITE));
    EXPECT_EQ(1, Send(HEM_SETOVERWRITE, 1));
    EXPECT_EQ(1, GetOverwriteMode());
    EXPECT_EQ(1, SendMessageA(Create("def"), HEM_GETOVERWRITE, 0, 0));
}

TEST_F(EditMessages, PasswordCharacterCanBeChangedButNotToZero)
{
    Create("abc");
    EXPECT_EQ('*', Send(HEM_GETPASSWORDCHAR));
    EXPECT_EQ(1, Send(HEM_SETPASSWORDCHAR, 0xFE));
    EXPECT_EQ(0xFE, Send(HEM_GETPASSWORDCHAR));
    EXPECT_EQ(-3, Send(HEM_SETPASSWORDCHAR, 0));
    EXPECT_EQ(0xFE, Send(HEM_GETPASSWORDCHAR));
}

TEST_F(EditMessages, SetScrollScrollsToThePosition)
{
    constexpr DWORD styles[] = { 0, HES_RIGHT };
    for (const DWORD style : styles) {
        edit = nullptr;
        Create(std::string(100, 'x').c_str(), HES_AUTOHSCROLL | style);
        EXPECT_EQ(1, Send(HEM_SETSCROLL, 10));
        EXPECT_EQ(10, Send(HEM_GETSCROLL)) << "style " << style;
        Send(HEM_SETSCROLL, 4);
        EXPECT_EQ(4, Send(HEM_GETSCROLL)) << "style " << style;
        Send(HEM_SETSCROLL, 0);
        EXPECT_EQ(0, Send(HEM_GETSCROLL)) << "style " << style;
    }
}

TEST_F(EditMessages, ScrollPositionsOutOfRangeStopAtTheEnds)
{
    Create(std::string(100, 'x').c_str(), HES_AUTOHSCROLL);
    Send(HEM_SETSCROLL, 1000);
    EXPECT_EQ(+Ctl()->nScrollMax, Send(HEM_GETSCROLL));
    Send(HEM_SETSCROLL, static_cast<WPARAM>(-5));
    EXPECT_EQ(0, Send(HEM_GETSCROLL));
}

TEST_F(EditMessages, NewColorRepaintsWithoutErasing)
{
    Create("abc");
    const HBRUSH brush = CreateSolidBrush(RGB(200, 255, 255));
    AnswerColors(brush);
    UpdateWindow(edit);
    asked.clear();
    Send(HEM_SETCOLOR, 0, RGB(10, 20, 30));
    UpdateWindow(edit);
    EXPECT_TRUE(asked.empty()) << "erasing asks the parent for its brush";
    InvalidateRect(edit, nullptr, TRUE);
    UpdateWindow(edit);
    EXPECT_FALSE(asked.empty());
    DestroyWindow(edit);
    DeleteObject(brush);
}

TEST_F(EditMessages, CommitStoresTheTextAndGivesZeroForSuccess)
{
    Create("%nl");
    Replace("42");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 1));
    EXPECT_EQ(42, Number());
}

TEST_F(EditMessages, CommitGivesTheFailure)
{
    Create("%dl");
    Replace("99.99.2000");
    EXPECT_NE(0, Send(HEM_COMMIT, 1, 1));
}

TEST_F(EditMessages, CommitRewritesTheTextUnlessItIsToldNotTo)
{
    Create("%nl");
    Replace("0042");
    Send(HEM_COMMIT, 1, 0);
    EXPECT_EQ("0042", Text());
    Replace("0043");
    Send(HEM_COMMIT, 1, 1);
    EXPECT_EQ("43", Text());
    Replace("0044");
    Send(HEM_COMMIT, 0, 0);
    EXPECT_EQ("43", Text()) << "without commit, the text follows the value";
}

int gValidatedId;
HWND gValidatedWindow;
int CALLBACK AnswerFive(HWND hwnd, int id, void*)
{
    gValidatedWindow = hwnd;
    gValidatedId = id;
    return 5;
}

TEST_F(EditMessages, ValidatorIsKeptAndCalledOnDemand)
{
    Create("%nl");
    EXPECT_EQ(0, Send(HEM_GETVALIDATOR));
    EXPECT_EQ(-1, Send(HEM_VALIDATE));
    EXPECT_EQ(1, Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(AnswerFive)));
    EXPECT_EQ(reinterpret_cast<LRESULT>(AnswerFive), Send(HEM_GETVALIDATOR));
    EXPECT_EQ(5, Send(HEM_VALIDATE));
    EXPECT_EQ(edit, gValidatedWindow);
    EXPECT_EQ(7, gValidatedId);
}

TEST_F(EditMessages, GetSelTextCopiesTheSelection)
{
    Create("abcdef");
    Send(EM_SETSEL, 4, 1);
    char buffer[8] = "zzzzzzz";
    EXPECT_EQ(1, Send(HEM_GETSELTEXT, sizeof buffer, AsParam(buffer)));
    EXPECT_STREQ("bcd", buffer);
    Send(HEM_GETSELTEXT, 2, AsParam(buffer));
    EXPECT_STREQ("b", buffer);
    EXPECT_EQ(1, Send(HEM_GETSELTEXT, sizeof buffer, 0));
}

TEST_F(EditMessages, BoundsGoInAndOutInTheTypeOfTheControl)
{
    Create("%nw");
    const WORD low = 5;
    const WORD high = 500;
    EXPECT_EQ(0, Send(HEM_SETMIN, 0, AsParam(&low)));
    EXPECT_EQ(0, Send(HEM_SETMAX, 0, AsParam(&high)));
    WORD got = 0;
    EXPECT_EQ(1, Send(HEM_GETMIN, 0, AsParam(&got)));
    EXPECT_EQ(5, got);
    EXPECT_EQ(1, Send(HEM_GETMAX, 0, AsParam(&got)));
    EXPECT_EQ(500, got);
}

TEST_F(EditMessages, BoundIsAppliedAndShownAtOnce)
{
    Create("%nl");
    const int value = 50;
    const int high = 20;
    const int low = 30;
    Send(HEM_SETDATA, 0, AsParam(&value));
    Send(HEM_SETMAX, 0, AsParam(&high));
    EXPECT_EQ(20, Number());
    EXPECT_EQ("20", Text());
    Send(HEM_SETMAX, 0, 0);
    Send(HEM_SETMIN, 0, AsParam(&low));
    EXPECT_EQ(30, Number());
}

TEST_F(EditMessages, NullClearsABound)
{
    Create("%nl|5;9;|");
    Send(HEM_SETMIN, 0, 0);
    EXPECT_EQ(2, +Ctl()->wBounds);
    Send(HEM_SETMAX, 0, 0);
    EXPECT_EQ(0, +Ctl()->wBounds);
}

TEST_F(EditMessages, BoundDoesNotTouchTextThatIsBeingTyped)
{
    Create("%nl");
    Focus();
    Replace("77");
    const int high = 20;
    Send(HEM_SETMAX, 0, AsParam(&high));
    EXPECT_EQ("77", Text());
}

TEST_F(EditMessages, BoundsOfATextFieldGiveZero)
{
    Create("abc");
    char buffer[8] = "keep";
    EXPECT_EQ(0, Send(HEM_GETMAX, 0, AsParam(buffer)));
    EXPECT_EQ(0, Send(HEM_GETMIN, 0, AsParam(buffer)));
    EXPECT_STREQ("keep", buffer);
}

TEST_F(EditMessages, RefocusTakesTheFocusAwayAndBack)
{
    Create("abc");
    Focus();
    seen.Clear();
    EXPECT_EQ(1, Send(HEM_REFOCUS));
    EXPECT_EQ(edit, GetFocus());
    EXPECT_EQ((Codes{ HEN_KILLFOCUS, HEN_SETFOCUS }), Told());
}

struct ReadOnlyCase {
    int   level;
    DWORD bits;
};

TEST_F(EditMessages, SetReadOnlyHasThreeLevels)
{
    Create("abc");
    const ReadOnlyCase cases[] = { { 2, HES_READONLY | HES_STATIC }, { 1, HES_READONLY }, { 0, 0 },
                                   { 2, HES_READONLY | HES_STATIC }, { -3, 0 } };
    for (const ReadOnlyCase& row : cases) {
        EXPECT_EQ(1, Send(HEM_SETREADONLY, static_cast<WPARAM>(row.level)));
        EXPECT_EQ(row.bits, Ctl()->dwStyle & (HES_READONLY | HES_STATIC)) << "level " << row.level;
    }
}

TEST_F(EditMessages, SetReadOnlyTwoStopsTheCaretFromShowingOnTheNextFocus)
{
    Create("abc");
    Send(HEM_SETREADONLY, 2);
    Focus();
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    EXPECT_EQ(nullptr, info.hwndCaret);
    Blur();
    Send(HEM_SETREADONLY, 0);
    Focus();
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    EXPECT_EQ(edit, info.hwndCaret);
}

TEST_F(EditMessages, BrushesAreSetAndGiveTheOldOne)
{
    Create("abc");
    const HBRUSH first = CreateSolidBrush(RGB(1, 2, 3));
    const LPARAM brush = AsParam(first);
    EXPECT_EQ(0, Send(HEM_GETBRUSH));
    EXPECT_EQ(0, Send(HEM_SETBRUSH, static_cast<WPARAM>(brush)));
    EXPECT_EQ(brush, Send(HEM_GETBRUSH));
    EXPECT_EQ(brush, Send(HEM_SETBRUSH, 0));
    EXPECT_EQ(0, Send(HEM_SETFOCUSBRUSH, static_cast<WPARAM>(brush)));
    EXPECT_EQ(brush, Send(HEM_GETFOCUSBRUSH));
    EXPECT_EQ(brush, Send(HEM_SETFOCUSBRUSH, 0));
    DeleteObject(first);
}

TEST_F(EditMessages, PlatformSetRectAnswersTheFocusBrushAndLeavesTheTextArea)
{
    Create("abc");
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    Send(HEM_SETFOCUSBRUSH, reinterpret_cast<WPARAM>(brush));
    const RECT before = Ctl()->rcText;
    const RECT set = { 1, 1, 5, 5 };
    EXPECT_EQ(reinterpret_cast<LRESULT>(brush), Send(EM_SETRECT, 0, AsParam(&set)));
    EXPECT_EQ(reinterpret_cast<LRESULT>(brush), Send(EM_SETRECTNP, 0, AsParam(&set)));
    const RECT after = Ctl()->rcText;
    EXPECT_TRUE(EqualRect(&before, &after));
    Send(HEM_SETFOCUSBRUSH, 0);
    DeleteObject(brush);
}

TEST_F(EditMessages, FormatGoesInAndOut)
{
    Create("%nd");
    EXPECT_EQ(1, SendText(HEM_SETFORMAT, 1, "0.00"));
    char buffer[16] = "";
    EXPECT_EQ(4, Send(HEM_GETFORMAT, sizeof buffer, AsParam(buffer)));
    EXPECT_STREQ("0.00", buffer);
    EXPECT_EQ(1, Send(HEM_GETFORMAT, 2, AsParam(buffer)));
    EXPECT_STREQ("0", buffer);
    EXPECT_STREQ("0.00", reinterpret_cast<const char*>(Send(HEM_GETFORMATPTR)));
    EXPECT_EQ(-2, Send(HEM_SETFORMAT, 0, 0));
}

TEST_F(EditMessages, TextFieldHasNoFormat)
{
    Create("abc");
    EXPECT_EQ(0, SendText(HEM_SETFORMAT, 1, "0.00"));
    EXPECT_EQ(0, Send(HEM_GETFORMATPTR));
    char buffer[4] = "zz";
    EXPECT_EQ(0, Send(HEM_GETFORMAT, sizeof buffer, AsParam(buffer)));
    EXPECT_STREQ("", buffer);
}

TEST_F(EditMessages, ColoursAreSetByKindAndInvalidateWithoutErasing)
{
    Create("%nd[red]0.0;[blue]-0.0");
    EXPECT_EQ(0x0000FF, Send(HEM_GETCOLOR, 0));
    EXPECT_EQ(0xFF0000, Send(HEM_GETCOLOR, 1));
    ValidateRect(edit, nullptr);
    EXPECT_EQ(1, Send(HEM_SETCOLOR, 0, RGB(10, 20, 30)));
    EXPECT_TRUE(GetUpdateRect(edit, nullptr, FALSE));
    ValidateRect(edit, nullptr);
    EXPECT_EQ(1, Send(HEM_SETCOLOR, 5, RGB(40, 50, 60)));
    EXPECT_EQ(static_cast<LRESULT>(RGB(10, 20, 30)), Send(HEM_GETCOLOR, 0));
    EXPECT_EQ(static_cast<LRESULT>(RGB(40, 50, 60)), Send(HEM_GETCOLOR, 1));
}

TEST_F(EditMessages, ClassTypeAndSizeOfTheValueAreTold)
{
    Create("%dl");
    EXPECT_EQ('d', Send(HEM_GETCLASS));
    EXPECT_EQ('l', Send(HEM_GETTYPE));
    EXPECT_EQ(4, Send(HEM_GETDATASIZE));
}

TEST_F(EditMessages, LinkedBufferGetsTheValue)
{
    Create("%nl");
    const int value = 7;
    Send(HEM_SETDATA, 0, AsParam(&value));
    int linked = 1;
    EXPECT_EQ(1, Send(HEM_LINKDATA, 0, AsParam(&linked)));
    EXPECT_EQ(7, linked);
}

TEST_F(EditMessages, LinkedBufferGivesTheValueWhenItIsLoaded)
{
    Create("%nl");
    int linked = 31;
    EXPECT_EQ(1, Send(HEM_LINKDATA, 1, AsParam(&linked)));
    EXPECT_EQ(31, Number());
    EXPECT_EQ("31", Text());
}

TEST_F(EditMessages, LinkingNothingMakesTheValueNull)
{
    Create("%nl");
    Send(HEM_LINKDATA, 0, 0);
    EXPECT_EQ(1, Send(WWM_ISNULL));
}

TEST_F(EditMessages, FlagsAreReadAndSetByMask)
{
    Create("abc");
    EXPECT_EQ(1, Send(HEM_SETFLAGS, 0x12340040, 1));
    EXPECT_EQ(HEF_DISPLAY | HEF_DIRTY, Send(HEM_GETFLAGS));
    EXPECT_EQ(1, Send(HEM_SETFLAGS, HEF_DIRTY, 0));
    EXPECT_EQ(static_cast<LRESULT>(HEF_DISPLAY), Send(HEM_GETFLAGS));
}

TEST_F(EditMessages, TextPointerIsThatOfTheRecord)
{
    Create("abc");
    EXPECT_STREQ("abc", reinterpret_cast<const char*>(Send(HEM_GETTEXTPTR)));
}

TEST_F(EditMessages, OtherNumbersBetweenGiveZero)
{
    Create("abc");
    for (const UINT message : { 1063u, 1075u, 1076u, 1082u, 1089u, 1123u, 1135u, 1139u, 1140u, 1153u + 1000u }) {
        EXPECT_EQ(0, Send(message, 1, 0)) << message;
    }
}

TEST_F(EditMessages, QuestionForAChangeCommitsFirst)
{
    for (const UINT message : { static_cast<UINT>(WWM_GETCHANGED), static_cast<UINT>(EM_GETMODIFY) }) {
        edit = nullptr;
        Create("%nl");
        Focus();
        Replace("42");
        const LRESULT answer = Send(message);
        EXPECT_EQ(message == WWM_GETCHANGED ? 1 : 0, answer);
        EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY));
        EXPECT_TRUE(HasFlag(Ctl(), CF_CHANGED));
    }
}

TEST_F(EditMessages, QuestionForAChangeDoesNotCommitWithoutTheFocusOrWhenItIsKnown)
{
    Create("%nl");
    Replace("42");
    EXPECT_EQ(0, Send(WWM_GETCHANGED));
    Focus();
    Replace("42");
    Send(WWM_SETCHANGED, 1);
    EXPECT_EQ(1, Send(WWM_GETCHANGED));
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DIRTY));
}

TEST_F(EditMessages, QuestionForAChangeSurvivesAHostThatDestroysTheField)
{
    Create("%nl|0;10;|");
    Focus();
    Replace("42");
    parent.On(HEN_ABOVEMAX, [this] { DestroyWindow(edit); });
    EXPECT_EQ(0, Send(WWM_GETCHANGED));
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(EditMessages, DialogCodeAsksForKeysByStyle)
{
    Create("abc");
    EXPECT_EQ(137, Send(WM_GETDLGCODE));
    edit = nullptr;
    Create("abc", HES_ALLKEYS);
    EXPECT_EQ(12, Send(WM_GETDLGCODE));
}

TEST_F(EditMessages, GetSelGivesTheLowerAndTheUpperIndex)
{
    Create("abcdef");
    Send(EM_SETSEL, 5, 2);
    DWORD low = 0;
    DWORD high = 0;
    EXPECT_EQ(MAKELRESULT(2, 5), Send(EM_GETSEL, reinterpret_cast<WPARAM>(&low), AsParam(&high)));
    EXPECT_EQ(2u, low);
    EXPECT_EQ(5u, high);
    EXPECT_EQ(MAKELRESULT(2, 5), Send(EM_GETSEL, 0, 0));
}

TEST_F(EditMessages, SetSelHasTheAnchorFirst)
{
    Create("abcdef");
    EXPECT_EQ(1, Send(EM_SETSEL, 5, 2));
    EXPECT_EQ(5, +Ctl()->nAnchor);
    EXPECT_EQ(2, +Ctl()->nCaret);
}

TEST_F(EditMessages, SelectAllIsIgnoredUnderKeepSel)
{
    Create("abcdef", HES_KEEPSEL);
    Send(EM_SETSEL, 1, 3);
    EXPECT_EQ(0, Send(EM_SETSEL, 0, 0xFFFE));
    EXPECT_EQ(MAKELRESULT(1, 3), Send(EM_GETSEL));
    EXPECT_EQ(1, Send(EM_SETSEL, 0, 0xFFFF));
    EXPECT_EQ(MAKELRESULT(0, 6), Send(EM_GETSEL));
}

TEST_F(EditMessages, SelectAllActsWithoutKeepSel)
{
    Create("abcdef");
    EXPECT_EQ(1, Send(EM_SETSEL, 0, 0xFFFE));
    EXPECT_EQ(MAKELRESULT(0, 6), Send(EM_GETSEL));
}

TEST_F(EditMessages, CanUndoIsAlwaysTrue)
{
    Create("abc");
    EXPECT_EQ(1, Send(EM_CANUNDO));
}

TEST_F(EditMessages, GetTextCutsToTheSizeAndGivesTheCount)
{
    Create("abcdef");
    char buffer[8] = "zzzzzzz";
    EXPECT_EQ(3, Send(WM_GETTEXT, 4, AsParam(buffer)));
    EXPECT_STREQ("abc", buffer);
    EXPECT_EQ(6, Send(WM_GETTEXTLENGTH));
}

TEST_F(EditMessages, SetFontTakesItsHeightAndWidth)
{
    Create("abc");
    UseFont();
    const DWORD units = GetBaseUnits(font);
    EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(WM_GETFONT));
    EXPECT_EQ(static_cast<LONG>(HIWORD(units)), +Ctl()->cyChar);
    EXPECT_EQ(static_cast<LONG>(200 / LOWORD(units)), +Ctl()->cPageChars);
}

TEST_F(EditMessages, SizeSetsTheTextAreaAnew)
{
    Create("abc");
    SetWindowPos(edit, nullptr, 0, 0, 90, 30, SWP_NOMOVE | SWP_NOZORDER);
    const RECT rect = Ctl()->rcText;
    EXPECT_EQ(90, rect.right);
    EXPECT_EQ(30, rect.bottom);
}

} // namespace
