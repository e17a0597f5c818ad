// The mirror between face and list, in both directions and by both options.
#include "combo_window.h"

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT;
constexpr DWORD fields = HCS_DROPDOWN;

class ComboSync : public ComboWindow {
protected:
    void MakeTexts(DWORD style)
    {
        Make("%120%ss%ni", style);
        HCAddItemEx(combo, "apple", &codes[0]);
        HCAddItemEx(combo, "pear", &codes[1]);
        HCAddItemEx(combo, "plum", &codes[2]);
    }
    void MakeNumbers(DWORD style, const char* text = "%120%ni%ni*0*")
    {
        Make(text, style);
        AddNumbers({ 10, 9, 30 }, { 1, 2, 3 });
    }
    // As a user moves in the list: it tells the combo.
    void PickInList(int row) const
    {
        SendMessageA(List(), HLM_SETCURRENT, static_cast<WPARAM>(row), 0);
        ListTells(HLN_SELCHANGE);
    }
    static constexpr int codes[] = { 1, 2, 3 };
};

struct Select {
    UINT        message;
    WPARAM      wParam;
    const void* data;
};

TEST_F(ComboSync, MessagesThatMoveTheListShowInTheFace)
{
    const int    code = 3;
    int          link = 3;
    const Select ways[] = {
        { HLM_SETCURRENT, 2, nullptr },          { HLM_SELECTTEXT, 0, "plum" },
        { HLM_SELECTDATA, HLSEL_CLEAR, "plum" }, { HLM_SELECTDATA, HLSEL_SET, "plum" },
        { HLM_SELECTCODE, HLSEL_TOGGLE, &code }, { HLM_SELECTCODE, HLSEL_CLEAR, &code },
        { HLM_SETCODELINK, 1, &link },
    };
    for (const DWORD style : { edits, fields }) {
        for (const Select& way : ways) {
            MakeTexts(style);
            SendPtr(way.message, way.wParam, way.data);
            EXPECT_EQ(2, Current()) << way.message << " " << style;
            EXPECT_EQ("plum", Text()) << way.message << " " << style;
            EXPECT_EQ(Ints(), Told()) << way.message << " " << style;
        }
    }
}

TEST_F(ComboSync, ValueOfTheEditMovesTheList)
{
    MakeTexts(edits);
    EXPECT_EQ(1, SendPtr(HEM_SETDATA, 0, "pear"));
    EXPECT_EQ(1, Current());
    SendPtr(HEM_SETDATA, 0, "nothing");
    EXPECT_EQ(-1, Current());
    MakeNumbers(edits);
    const int value = 30;
    SendPtr(HEM_SETDATA, 0, &value);
    EXPECT_EQ(2, Current());
    SendPtr(HEM_SETDATA, 0, nullptr);
    EXPECT_EQ(-1, Current()) << "null is no item";
    EXPECT_EQ(Ints(), Told());
}

TEST_F(ComboSync, ListWithoutACurrentItemClearsTheEdit)
{
    MakeTexts(edits);
    SendPtr(WM_SETTEXT, 0, "typed");
    EXPECT_EQ(0, HCSync(Ctl(), false, true));
    EXPECT_EQ("", Text());
    EXPECT_EQ(Ints(), Told());
}

TEST_F(ComboSync, RowOfTheListGoesToTheEditAndIsTold)
{
    MakeTexts(edits);
    PickInList(1);
    EXPECT_EQ("pear", Text());
    EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told());
    EXPECT_TRUE(SendMessageA(List(), WWM_GETCHANGED, 0, 0));
    PickInList(1);
    EXPECT_EQ(Ints(), Told()) << "the value is the same";
}

TEST_F(ComboSync, RowOfTheListGoesToTheFieldAndIsTold)
{
    MakeTexts(fields);
    PickInList(1);
    EXPECT_EQ(1, FieldCurrent());
    EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told());
    PickInList(1);
    EXPECT_EQ(Ints(), Told());
}

TEST_F(ComboSync, ResultIsTheDirection)
{
    MakeTexts(edits);
    Send(CB_SETCURSEL, 0);
    EXPECT_EQ(1, HCSync(Ctl(), false, false));
    EXPECT_EQ(0, HCSync(Ctl(), true, false));
    MakeTexts(fields);
    EXPECT_EQ(1, HCSync(Ctl(), false, false));
    EXPECT_EQ(0, HCSync(Ctl(), true, false));
    Make("%ss", edits);
    EXPECT_EQ(1, HCSync(Ctl(), true, false)) << "no list";
}

TEST_F(ComboSync, TextsAreComparedAsTheLocaleOrdersThem)
{
    MakeTexts(edits);
    SendPtr(WM_SETTEXT, 0, "APPLE");
    PickInList(0);
    EXPECT_EQ("apple", Text()) << "another case is another text";
    EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told());
}

TEST_F(ComboSync, NumbersAreComparedByTheirBytes)
{
    MakeNumbers(edits);
    PickInList(0);
    EXPECT_EQ(10, EditNumber());
    EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told());
    PickInList(0);
    EXPECT_EQ(Ints(), Told());
}

TEST_F(ComboSync, NullEditDiffersFromZero)
{
    Make("%120%ni*0*", edits);
    AddNumbers({ 0 });
    SendPtr(HEM_SETDATA, 0, nullptr);
    EXPECT_EQ(-999, EditNumber());
    PickInList(0);
    EXPECT_EQ("0", Text());
    EXPECT_EQ(0, EditNumber());
    EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told());
}

TEST_F(ComboSync, EditGetsTheFirstColumnOfTabs)
{
    Make("%120%ss", edits | HCS_TABS);
    Add({ "apple\tred", "pear\tgreen" });
    Send(CB_SETCURSEL, 1);
    EXPECT_EQ("pear", Text());
    SendPtr(HEM_SETDATA, 0, "apple");
    EXPECT_EQ(0, Current()) << "what the edit says finds the item by its first column";
}

TEST_F(ComboSync, NumbersHaveNoTabs)
{
    MakeNumbers(edits | HCS_TABS);
    Send(CB_SETCURSEL, 1);
    EXPECT_EQ(9, EditNumber()) << "its byte is that of a tab";
}

TEST_F(ComboSync, LongTextIsCutForTheEdit)
{
    Make("%120%ss", edits);
    Add({ std::string(400, 'x') });
    Send(CB_SETCURSEL, 0);
    EXPECT_EQ(std::string(255, 'x'), Text());
}

TEST_F(ComboSync, EditShowsItsTextFromTheStart)
{
    MakeTexts(edits);
    Send(CB_SETCURSEL, 1);
    EXPECT_EQ(MAKELRESULT(0, 4), Send(EM_GETSEL));
    EXPECT_EQ(0, ToFace(HEM_GETSCROLL));
    const int old = SetOverwriteMode(1);
    Send(CB_SETCURSEL, 2);
    SetOverwriteMode(old);
    EXPECT_EQ(MAKELRESULT(0, 0), Send(EM_GETSEL)) << "nothing is selected while typing overwrites";
}

TEST_F(ComboSync, EditStaysVisible)
{
    MakeTexts(edits);
    Send(CB_SETCURSEL, 1);
    EXPECT_TRUE(IsWindowVisible(Face()));
}

TEST_F(ComboSync, TypedTextThatMatchesNoItemIsNoItem)
{
    MakeTexts(edits);
    Focus();
    Told();
    ToFace(WM_CHAR, 'p');
    EXPECT_EQ(1, Current()) << "the first item that begins so";
    EXPECT_EQ("p", Text()) << "what is typed stays";
    EXPECT_EQ((Ints{ HCN_EDITUPDATE, HCN_EDITCHANGE, HCN_SELCHANGE }), Told());
    ToFace(WM_CHAR, 'e');
    EXPECT_EQ(1, Current());
    EXPECT_EQ((Ints{ HCN_EDITUPDATE, HCN_EDITCHANGE }), Told()) << "the same item";
    ToFace(WM_CHAR, 'x');
    EXPECT_EQ(-1, Current());
    EXPECT_EQ((Ints{ HCN_EDITUPDATE, HCN_EDITCHANGE, HCN_SELCHANGE }), Told());
    ToFace(WM_CHAR, 'y');
    EXPECT_EQ((Ints{ HCN_EDITUPDATE, HCN_EDITCHANGE }), Told()) << "still no item";
}

TEST_F(ComboSync, EmptyEditIsNoItem)
{
    MakeTexts(edits);
    Focus();
    ToFace(WM_CHAR, 'p');
    EXPECT_EQ(1, Current());
    Told();
    ToFace(EM_SETSEL, 0, 0);
    ToFace(WM_KEYDOWN, VK_DELETE);
    EXPECT_EQ("", Text());
    EXPECT_EQ(-1, Current());
    EXPECT_EQ((Ints{ HCN_EDITUPDATE, HCN_EDITCHANGE, HCN_SELCHANGE }), Told());
}

TEST_F(ComboSync, TypedNumberSelectsItsItem)
{
    MakeNumbers(edits);
    Focus();
    Told();
    Type("30");
    EXPECT_EQ(2, Current());
    const Ints told = Told();
    EXPECT_EQ(HCN_SELCHANGE, told.back());
    EXPECT_EQ("30", Text());
    Type("31");
    EXPECT_EQ(-1, Current());
}

TEST_F(ComboSync, FieldMovesTheList)
{
    MakeTexts(fields);
    Focus();
    Told();
    Key(VK_DOWN);
    EXPECT_EQ(0, FieldCurrent());
    EXPECT_EQ(0, Current());
    EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told());
    Key(VK_END);
    EXPECT_EQ(2, Current());
    EXPECT_EQ("plum", Text());
}

TEST_F(ComboSync, OptionStopsTheListFromFollowing)
{
    MakeTexts(edits);
    EXPECT_EQ(1, Send(HCM_SETOPTIONS, HCO_LISTTOCHILD));
    SendPtr(HEM_SETDATA, 0, "pear");
    EXPECT_EQ(-1, Current());
    EXPECT_EQ(1, HCSync(Ctl(), true, true));
    Send(CB_SETCURSEL, 2);
    EXPECT_EQ("plum", Text());
    MakeTexts(fields);
    Send(HCM_SETOPTIONS, HCO_LISTTOCHILD);
    Focus();
    Told();
    Key(VK_DOWN);
    EXPECT_EQ(-1, Current());
    EXPECT_EQ(Ints(), Told());
}

TEST_F(ComboSync, OptionStopsTheFaceFromFollowing)
{
    MakeTexts(edits);
    EXPECT_EQ(1, Send(HCM_SETOPTIONS, HCO_CHILDTOLIST));
    Send(CB_SETCURSEL, 2);
    EXPECT_EQ("", Text());
    PickInList(1);
    EXPECT_EQ("", Text());
    EXPECT_EQ(Ints(), Told());
    SendPtr(HEM_SETDATA, 0, "pear");
    EXPECT_EQ(1, Current());
}

TEST_F(ComboSync, HostMayMoveTheListWhileItIsTold)
{
    MakeTexts(edits);
    int left = 3;
    parent.On(HCN_SELCHANGE, [&] {
        if (left-- > 0) {
            Send(CB_SETCURSEL, 0);
        }
    });
    PickInList(1);
    EXPECT_EQ("apple", Text());
    EXPECT_EQ(0, Current());
}

TEST_F(ComboSync, HostMaySetTheTextWhileItIsTyped)
{
    MakeTexts(edits);
    Focus();
    parent.On(HCN_EDITCHANGE, [&] { SendPtr(HEM_SETDATA, 0, "plum"); });
    Type("x");
    EXPECT_EQ("plum", Text());
    EXPECT_EQ(2, Current());
}

TEST_F(ComboSync, ChangeOfEitherPartCounts)
{
    MakeTexts(edits);
    EXPECT_EQ(0, Send(WWM_GETCHANGED));
    SendMessageA(List(), WWM_SETCHANGED, 1, 0);
    EXPECT_EQ(1, Send(WWM_GETCHANGED));
    SendMessageA(List(), WWM_SETCHANGED, 0, 0);
    ToFace(WWM_SETCHANGED, 1);
    EXPECT_EQ(1, Send(WWM_GETCHANGED));
}

// An item is picked in the list, and afterwards the edit says the same as before: its own value is no other one.
class ComboChange : public ComboSync {
protected:
    void PickAndType(const char* typed)
    {
        MakeTexts(edits);
        Focus();
        Key(VK_DOWN);
        Key(VK_DOWN);
        ASSERT_EQ("pear", Text());
        if (*typed) {
            Type(typed);
            Type("pear");
        }
        ASSERT_EQ("pear", Text());
    }
    bool ListHasChanged() const { return SendMessageA(List(), WWM_GETCHANGED, 0, 0) != 0; }
};

TEST_F(ComboChange, PickedItemIsAChangeWhateverIsTypedOverItAndTakenBack)
{
    for (const char* const typed : { "", "x", "pearx", "apple", "pear" }) {
        PickAndType(typed);
        EXPECT_EQ(1, Send(WWM_GETCHANGED)) << typed;
        Blur();
        EXPECT_EQ(1, Send(WWM_GETCHANGED)) << typed;
    }
}

TEST_F(ComboChange, PickedNumberIsAChangeWhateverIsTypedOverIt)
{
    MakeNumbers(edits);
    Focus();
    Key(VK_DOWN);
    Type("77");
    Type("10");
    EXPECT_EQ(10, EditNumber());
    EXPECT_TRUE(ListHasChanged());
}

TEST_F(ComboChange, PickedItemIsAChangeAlsoOnceTheFocusHasLeftAndComeBack)
{
    PickAndType("");
    Blur();
    Focus();
    EXPECT_TRUE(ListHasChanged());
}

TEST_F(ComboChange, TypingAloneIsNoChangeOfTheList)
{
    MakeTexts(edits);
    Focus();
    Type("pear");
    EXPECT_EQ(1, Current());
    EXPECT_FALSE(ListHasChanged());
}

TEST_F(ComboChange, ChangeThatTheParentHasClearedStaysCleared)
{
    for (const char* const typed : { "", "x" }) {
        PickAndType(typed);
        Send(WWM_SETCHANGED, 0);
        EXPECT_EQ(0, Send(WWM_GETCHANGED)) << typed;
        Blur();
        Focus();
        EXPECT_EQ(0, Send(WWM_GETCHANGED)) << typed;
        Type("x");
        Type("pear");
        EXPECT_FALSE(ListHasChanged()) << typed;
    }
}

TEST_F(ComboChange, ValueOfTheHostTakesTheChangeBack)
{
    PickAndType("x");
    SendPtr(HEM_SETDATA, 0, "plum");
    EXPECT_EQ(0, Send(WWM_GETCHANGED));
    Blur();
    Focus();
    EXPECT_EQ(0, Send(WWM_GETCHANGED));
}

TEST_F(ComboChange, ValueOfTheHostTakesTheChangeBackAlsoWhileTypingIsTold)
{
    for (const int code : { HCN_EDITUPDATE, HCN_EDITCHANGE, HCN_SELCHANGE }) {
        PickAndType("");
        parent.On(code, [this, code] {
            parent.On(code, [] {});
            SendPtr(HEM_SETDATA, 0, "plum");
        });
        ToFace(WM_CHAR, 'x');
        EXPECT_FALSE(ListHasChanged()) << code;
        parent.On(code, [] {});
    }
}

// The type letter of texts is also that of numbers of 16 bits and of calendar words.
class ComboShorts : public ComboSync {
protected:
    void MakeShorts(const std::vector<short>& numbers, DWORD style = edits)
    {
        Make("#120%ns*0*", style);
        for (const short number : numbers) {
            HCAddItemEx(combo, &number, nullptr);
        }
    }
};

TEST_F(ComboSync, ListFollowsTheValueOfALinkThatTheFaceTakesOver)
{
    for (const DWORD style : { edits, static_cast<DWORD>(HCS_DROPDOWN) }) {
        char linked[32] = "pear";
        Make("%120%ss", style);
        Add({ "apple", "pear", "plum" });
        SendPtr(HLM_SETDATALINK, 1, linked);
        EXPECT_EQ("pear", Text()) << style;
        EXPECT_EQ(1, Current()) << style;
        HCAddItemEx(combo, "quince", nullptr);
        EXPECT_EQ("pear", Text()) << style;
        EXPECT_STREQ("pear", linked) << style;
    }
}

TEST_F(ComboShorts, NumbersThatEndInAZeroByteDiffer)
{
    MakeShorts({ 256, 512, 1, 2 });
    const char* const texts[] = { "256", "512", "1", "2" };
    for (int row = 0; row < 4; ++row) {
        PickInList(row);
        EXPECT_EQ(texts[row], Text());
        EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told()) << texts[row];
        PickInList(row);
        EXPECT_EQ(Ints(), Told()) << texts[row];
    }
}

TEST_F(ComboShorts, NullEditDiffersFromZero)
{
    MakeShorts({ 0 });
    SendPtr(HEM_SETDATA, 0, nullptr);
    PickInList(0);
    EXPECT_EQ("0", Text());
    EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told());
}

TEST_F(ComboShorts, NumbersHaveNoTabs)
{
    MakeShorts({ 9, 265 }, edits | HCS_TABS);
    Send(CB_SETCURSEL, 0);
    EXPECT_EQ("9", Text());
    Send(CB_SETCURSEL, 1);
    EXPECT_EQ("265", Text());
}

TEST_F(ComboShorts, TypedNumberSelectsItsValueAndNoBeginning)
{
    MakeShorts({ 25, 30 });
    Focus();
    Type("2");
    EXPECT_EQ(-1, Current());
    Type("30");
    EXPECT_EQ(1, Current());
    Blur();
    EXPECT_EQ("30", Text());
}

TEST_F(ComboShorts, CalendarWordsDifferInTheirDays)
{
    Make("#120%asdd/mm/yyyy", edits);
    for (const WORD day : { WORD{ 3 }, WORD{ 9 }, WORD{ 10 } }) {
        const WORD date[8] = { 2024, 5, day };
        HCAddItemEx(combo, date, nullptr);
    }
    Texts shown;
    for (int row = 0; row < 3; ++row) {
        PickInList(row);
        EXPECT_EQ(ItemText(row), Text());
        EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told()) << row;
        shown.push_back(Text());
    }
    EXPECT_NE(shown[0], shown[1]);
    EXPECT_NE(shown[1], shown[2]);
}

} // namespace
