// A host that asks for the value, takes the focus or puts in another text while it is told of a commit.
#include "edit_window.h"
#include "foundation/memory.h"

namespace {

class EditNestedCommit : public EditWindow {
protected:
    // All that makes a focused field commit.
    void AskForTheValue()
    {
        int value = 0;
        Send(HEM_GETDATA, sizeof value, AsParam(&value));
        EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0)) << "a commit inside a commit";
        Send(WWM_GETCHANGED);
        Send(EM_GETMODIFY);
    }
    void Make(const char* window)
    {
        edit = nullptr;
        Create(window);
        Focus();
        seen.Clear();
        parent.ClearCounts();
    }
};

struct NestedRow {
    const char* window;
    std::string text;
    int         code;
    int         stored;
};

TEST_F(EditNestedCommit, HostMayAskForTheValueInANotification)
{
    const NestedRow rows[] = {
        { "%nl|0;100;|", "150", HEN_ABOVEMAX, 100 },
        { "%nl|-5;100;|", "-150", HEN_BELOWMIN, -5 },
        { "%dl", DateText(31, 4, 2024), HEN_BADINPUT, 20240430 },
    };
    for (const NestedRow& row : rows) {
        SCOPED_TRACE(row.window + (" with " + row.text));
        Make(row.window);
        parent.On(row.code, [this] { AskForTheValue(); });
        Replace(row.text.c_str());
        const LRESULT status = Send(HEM_COMMIT, 1, 0);
        EXPECT_EQ(row.code == HEN_BADINPUT, status != 0);
        EXPECT_EQ(1, parent.Count(row.code));
        EXPECT_EQ(row.stored, LoadAs<int>(Ctl()->pData));
        EXPECT_EQ(status != 0, HasFlag(Ctl(), HEF_DIRTY));
        DestroyWindow(edit);
    }
}

TEST_F(EditNestedCommit, FieldThatIsLeftTellsOnce)
{
    Make("%nl|0;100;|");
    parent.On(HEN_ABOVEMAX, [this] { AskForTheValue(); });
    TypeText("150");
    Blur();
    EXPECT_EQ(1, parent.Count(HEN_ABOVEMAX));
    EXPECT_EQ("100", Text());
    Replace("160");
    Focus(); // the next commit tells again
    Replace("160");
    Blur();
    EXPECT_EQ(2, parent.Count(HEN_ABOVEMAX));
}

HWND gField;
int  gCalls;

int CALLBACK AskBack(HWND, int, void*)
{
    ++gCalls;
    SendMessageA(gField, HEM_COMMIT, 1, 0);
    return 0;
}

TEST_F(EditNestedCommit, ValidatorMayAskForTheValue)
{
    Make("%nl");
    gField = edit;
    gCalls = 0;
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(AskBack));
    Replace("42");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(1, gCalls);
    EXPECT_EQ(42, LoadAs<int>(Ctl()->pData));
}

TEST_F(EditNestedCommit, HostMayTakeTheFocusInANotification)
{
    Make("%nl|0;100;|");
    parent.On(HEN_ABOVEMAX, [this] { Blur(); });
    Replace("150");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(1, parent.Count(HEN_ABOVEMAX));
    EXPECT_FALSE(IsFocused(Ctl()));
    EXPECT_EQ(100, LoadAs<int>(Ctl()->pData));
    EXPECT_EQ("100", Text()) << "what shows is the value";
}

TEST_F(EditNestedCommit, HostMayPutABetterTextInThePlaceOfABadOne)
{
    Make("%dl");
    parent.On(HEN_BADINPUT, [this] { SendText(WM_SETTEXT, 0, DateText(1, 5, 2024).c_str()); });
    Replace(DateText(31, 4, 2024).c_str());
    EXPECT_NE(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(20240501, LoadAs<int>(Ctl()->pData));
    EXPECT_EQ(DateText(1, 5, 2024), Text());
    EXPECT_EQ(1, parent.Count(HEN_BADINPUT));
}

TEST_F(EditNestedCommit, HostMayDestroyTheFocusedField)
{
    for (const int code : { HEN_ABOVEMAX, HEN_KILLFOCUS }) {
        Make("%nl|0;100;|");
        parent.On(HEN_ABOVEMAX, [] {});
        parent.On(code, [this] { DestroyWindow(edit); });
        Replace("150");
        Blur();
        EXPECT_FALSE(IsWindow(edit));
        EXPECT_EQ(1, parent.Count(HEN_ABOVEMAX));
    }
}

TEST_F(EditNestedCommit, ItsFlagIsNeitherShownNorSet)
{
    constexpr WPARAM topBit = 0x8000;
    Make("%nl|0;100;|");
    LRESULT flags = 0;
    parent.On(HEN_ABOVEMAX, [&] {
        flags = Send(HEM_GETFLAGS);
        Send(HEM_SETFLAGS, topBit, 0);
        AskForTheValue();
    });
    Send(HEM_SETFLAGS, topBit, 1);
    Replace("150");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(1, parent.Count(HEN_ABOVEMAX));
    EXPECT_EQ(0, flags & static_cast<LRESULT>(topBit));
    EXPECT_EQ(100, LoadAs<int>(Ctl()->pData)) << "the bit that was set stopped nothing";
}

constexpr int own = 7; // of the host

int CALLBACK RefuseAndReplace(HWND, int, void* value)
{
    if (LoadAs<int>(value) == own) {
        return 0;
    }
    SendMessageA(gField, HEM_SETDATA, 0, AsParam(&own));
    return 1;
}

TEST_F(EditNestedCommit, ValueThatTheHostPutsInWhenToldOfAnotherStays)
{
    struct Case {
        const char* text;
        int         code;
    };
    constexpr Case cases[] = { { "42", HEN_ABOVEMAX }, { "1", HEN_BELOWMIN } };
    for (const Case& c : cases) {
        edit = nullptr;
        Create("%nl|5;10;|");
        Focus();
        parent.On(c.code, [this] { Send(HEM_SETDATA, 0, AsParam(&own)); });
        Replace(c.text);
        Blur();
        EXPECT_EQ(own, Number()) << c.text;
        EXPECT_FALSE(HasFlag(Ctl(), CF_CHANGED)) << c.text;
        parent.On(c.code, nullptr);
    }
}

TEST_F(EditNestedCommit, ValueThatTheValidatorPutsInStays)
{
    Create("%nl");
    gField = edit;
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(RefuseAndReplace));
    Focus();
    Replace("42");
    Blur();
    EXPECT_EQ(own, Number());
    EXPECT_FALSE(HasFlag(Ctl(), CF_CHANGED));
}

TEST_F(EditNestedCommit, FocusThatIsToldTwiceLeavesWhatWasTyped)
{
    Create("abc");
    Focus();
    Replace("typed");
    Send(WM_SETFOCUS);
    EXPECT_EQ("typed", Text());
}

// A box that a host shows takes the focus and gives it back.
void ShowBox()
{
    SetFocus(GetParent(gField));
    SetFocus(gField);
}

int CALLBACK AcceptByABox(HWND, int, void*)
{
    ShowBox();
    return 0;
}

int CALLBACK RefuseByABox(HWND, int, void*)
{
    ShowBox();
    return 1;
}

class EditLinkedCommit : public EditNestedCommit {
protected:
    void MakeLinked(const char* window)
    {
        Make(window);
        gField = edit;
        linked_ = 6;
        Send(HEM_LINKDATA, 1, AsParam(&linked_));
        Send(HEM_SETVALIDATOR, 0, 0);
        Replace("88");
    }
    int linked_ = 0;
};

TEST_F(EditLinkedCommit, ValueThatABoxAcceptsStaysAndIsLinked)
{
    for (const bool leaves : { false, true }) {
        MakeLinked("%nl");
        Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(AcceptByABox));
        if (leaves) {
            Blur();
        } else {
            EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
        }
        EXPECT_EQ(88, LoadAs<int>(Ctl()->pData)) << leaves;
        EXPECT_EQ(88, linked_) << leaves;
        EXPECT_EQ("88", Text()) << leaves;
        EXPECT_TRUE(HasFlag(Ctl(), CF_CHANGED)) << leaves;
        DestroyWindow(edit);
    }
}

TEST_F(EditLinkedCommit, TextThatIsRefusedOnLeavingIsThereWhenTheFocusComesBack)
{
    MakeLinked("%nl");
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(RefuseByABox));
    Blur();
    Focus();
    EXPECT_EQ("88", Text());
}

TEST_F(EditLinkedCommit, ValueBehindABoundThatAVetoKeepsIsLinked)
{
    MakeLinked("%nl|0;50;|");
    parent.On(HEN_ABOVEMAX, [this] {
        ShowBox();
        SetFlag(Ctl(), CF_CANCEL, true);
    });
    Replace("150");
    EXPECT_EQ(0, Send(HEM_COMMIT, 1, 0));
    EXPECT_EQ(150, LoadAs<int>(Ctl()->pData));
    EXPECT_EQ(150, linked_);
    EXPECT_EQ("150", Text());
}

TEST_F(EditLinkedCommit, ValueThatIsSetStaysThoughItsValidatorTakesTheFocus)
{
    constexpr int set = 5;
    for (const bool typed : { true, false }) {
        MakeLinked("%nl");
        if (!typed) {
            Send(HEM_COMMIT, 1, 0);
        }
        Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(AcceptByABox));
        EXPECT_EQ(1, Send(HEM_SETDATA, 0, AsParam(&set)));
        EXPECT_EQ(5, LoadAs<int>(Ctl()->pData)) << typed;
        EXPECT_EQ(5, linked_) << typed;
        EXPECT_EQ("5", Text()) << typed;
        EXPECT_FALSE(HasFlag(Ctl(), CF_CHANGED)) << typed;
        DestroyWindow(edit);
    }
}

TEST_F(EditNestedCommit, ValueThatIsSetIsNotOverrunByWhatWasTypedBefore)
{
    constexpr int set = 5;
    Make("%nl");
    gField = edit;
    Replace("88");
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(AcceptByABox));
    EXPECT_EQ(1, Send(HEM_SETDATA, 0, AsParam(&set)));
    EXPECT_EQ(5, LoadAs<int>(Ctl()->pData));
    EXPECT_EQ("5", Text());
}

HWND CaretWindow()
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetCurrentThreadId(), &info);
    return info.hwndCaret;
}

TEST_F(EditNestedCommit, FieldToWhichTheHostMovesTheFocusOnKeepsItsCaret)
{
    for (const int code : { HEN_ABOVEMAX, HEN_KILLFOCUS }) {
        Make("%nl|0;100;|");
        const HWND second = Create("second");
        const HWND third = Create("third");
        int        left = 1;
        parent.On(code, [&] {
            if (left-- > 0) {
                SetFocus(third);
            }
        });
        TypeText("150");
        SetFocus(second);
        EXPECT_EQ(third, GetFocus()) << code;
        EXPECT_EQ(third, CaretWindow()) << code;
        parent.On(code, [] {});
    }
}

} // namespace
