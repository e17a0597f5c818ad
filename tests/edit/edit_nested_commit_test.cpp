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

} // namespace
