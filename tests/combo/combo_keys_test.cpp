// Keys and the focus of a combo, sent as they arrive at the face, and by a real keyboard.
#include "combo_window.h"
#include "support/held_keys.h"

#include <cstring>

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT;
constexpr DWORD fields = HCS_DROPDOWN;

class ComboKeys : public ComboWindow {
protected:
    // The items have no codes of their own, so the list must not hold the current one by its code.
    void MakeFocused(DWORD style, const char* text = "#120%ss%ni")
    {
        Make(text, style);
        Add({ "apple", "pear", "plum" });
        Focus();
        PumpPending();
        Told();
    }
    void Open()
    {
        Send(CB_SHOWDROPDOWN, TRUE);
        ASSERT_TRUE(IsDropped());
        Told();
    }
};

TEST_F(ComboKeys, FocusGoesToTheFace)
{
    for (const DWORD style : { edits, fields }) {
        MakeFocused(style);
        EXPECT_EQ(Face(), GetFocus());
    }
}

TEST_F(ComboKeys, FocusOfTheFaceIsTold)
{
    for (const DWORD style : { edits, fields }) {
        Make("%120%ss", style);
        Focus();
        EXPECT_EQ((Ints{ HCN_SETFOCUS }), Told());
        Blur();
        EXPECT_EQ((Ints{ HCN_KILLFOCUS }), Told());
        EXPECT_EQ(1, Send(HCM_CHILDFOCUS));
        EXPECT_EQ(1, Send(HCM_CHILDBLUR));
        EXPECT_EQ((Ints{ HCN_SETFOCUS, HCN_KILLFOCUS }), Told());
    }
}

TEST_F(ComboKeys, EnteringMovesTheListToTheEditsValue)
{
    Make("%120%ss", edits);
    Add({ "apple", "pear" });
    ToFace(HEM_SETDATA, 0, AsParam("pear"));
    EXPECT_EQ(-1, Current());
    Focus();
    EXPECT_EQ(1, Current());
    EXPECT_EQ((Ints{ HCN_SETFOCUS }), Told());
}

TEST_F(ComboKeys, LeavingClosesTheList)
{
    MakeFocused(fields);
    Open();
    Blur();
    EXPECT_EQ((Ints{ HCN_CLOSEUP, HCN_KILLFOCUS }), Told());
    EXPECT_FALSE(IsDropped());
}

struct LeaveCase {
    const char* text;
    DWORD       style;
    const char* left;
};

TEST_F(ComboKeys, LeavingClearsATextThatIsNoItem)
{
    constexpr LeaveCase cases[] = {
        { "%120%ss%ni", edits, "" },
        { "%120%ss", edits, "" },
        { "%120%ss%ni", edits | HCS_3DBORDER, "typed" },
        { "%120%ss%ss", edits, "typed" },
        { "#120%ss%ns", edits, "typed" }, // the letter of the code counts alone
    };
    for (const LeaveCase& line : cases) {
        MakeFocused(line.style, line.text);
        Type("typed");
        Blur();
        EXPECT_EQ(line.left, Text()) << line.text << " " << line.style;
        EXPECT_EQ(0, Send(EM_GETSEL)) << line.text << " " << line.style;
    }
}

TEST_F(ComboKeys, LeavingPutsTheItemInThePlaceOfItsBeginning)
{
    MakeFocused(edits);
    Type("pe");
    Told();
    Blur();
    EXPECT_EQ("pear", Text());
    EXPECT_EQ((Ints{ HCN_SELCHANGE, HCN_KILLFOCUS }), Told());
}

// Values that the user hasn't typed.
class ComboLeaving : public ComboKeys {
protected:
    void ExpectLeft(const char* text, const char* when)
    {
        Told();
        Blur();
        EXPECT_EQ(text, Text()) << when;
        EXPECT_EQ((Ints{ HCN_KILLFOCUS }), Told()) << when;
    }
};

TEST_F(ComboLeaving, KeepsAValueThatIsNoItem)
{
    for (const char* const value : { "purple", "p", "pea", "apples", "" }) {
        char linked[32] = "";
        MakeFocused(edits, "%120%ss");
        Blur();
        SendPtr(HEM_LINKDATA, 1, strcpy(linked, value));
        Focus();
        ExpectLeft(value, value);
        EXPECT_STREQ(value, linked);
        EXPECT_EQ(0, Send(WWM_GETCHANGED)) << value;
    }
}

TEST_F(ComboLeaving, KeepsANumberThatIsNoItem)
{
    Make("#120%ni", edits);
    AddNumbers({ 10, 20, 30 });
    const int number = 15;
    SendPtr(HEM_SETDATA, 0, &number);
    Focus();
    Blur();
    EXPECT_EQ(15, EditNumber());
}

TEST_F(ComboLeaving, KeepsAValueWhoseReplacementWasTakenBack)
{
    for (const char* const value : { "pear", "pe", "purple" }) {
        for (const UINT undo : { EM_UNDO, WM_UNDO }) {
            MakeFocused(edits, "%120%ss");
            Blur();
            SendPtr(HEM_SETDATA, 0, value);
            Focus();
            Type("x");
            ASSERT_EQ("x", Text());
            ToFace(undo);
            ExpectLeft(value, value);
        }
    }
}

TEST_F(ComboLeaving, ListFollowsAValueWhoseReplacementWasTakenBack)
{
    MakeFocused(edits, "%120%ss");
    SendPtr(HEM_SETDATA, 0, "pear");
    Type("x");
    ASSERT_EQ(-1, Current());
    ToFace(EM_UNDO);
    Blur();
    EXPECT_EQ(1, Current());
}

TEST_F(ComboLeaving, KeepsATextThatTheHostSetsWhileItHasTheFocus)
{
    for (const char* const typed : { "", "x" }) {
        for (const char* const value : { "plum", "pl", "blue" }) {
            MakeFocused(edits, "%120%ss");
            SendPtr(HEM_SETDATA, 0, "apple");
            if (*typed) {
                Type(typed);
            }
            SendPtr(WM_SETTEXT, 0, value);
            ExpectLeft(value, value);
        }
    }
}

TEST_F(ComboLeaving, KeepsALinkedValueThatIsReadAnewWhileItHasTheFocus)
{
    for (const char* const value : { "plum", "blue" }) {
        char linked[32] = "apple";
        MakeFocused(edits, "%120%ss");
        SendPtr(HEM_LINKDATA, 1, linked);
        Blur();
        Focus();
        ASSERT_EQ(0, Current());
        strcpy(linked, value);
        ToFace(HEM_COMMIT);
        ExpectLeft(value, value);
        EXPECT_STREQ(value, linked);
    }
}

TEST_F(ComboLeaving, KeepsTheSecondOfTwoItemsWithTheSameText)
{
    Make("%120%ss%ni", edits);
    const int codes[] = { 1, 2 };
    HCAddItemEx(combo, "pear", &codes[0]);
    HCAddItemEx(combo, "pear", &codes[1]);
    Focus();
    Send(CB_SETCURSEL, 1);
    ExpectLeft("pear", "not typed");
    EXPECT_EQ(1, Current());
}

TEST_F(ComboLeaving, ClearsWhatWasTypedOverAValueThatIsNoItem)
{
    MakeFocused(edits, "%120%ss");
    SendPtr(HEM_SETDATA, 0, "purple");
    Type("violet");
    ExpectLeft("", "typed");
}

TEST_F(ComboKeys, ReturnInAListWithoutACurrentRowTakesNothingFromTheEdit)
{
    MakeFocused(edits | HCS_3DBORDER, "%120%ss");
    Type("Zurich");
    Open();
    Key(VK_RETURN);
    EXPECT_FALSE(IsDropped());
    EXPECT_EQ("Zurich", Text());
    EXPECT_EQ((Ints{ HCN_SELENDOK, HCN_CLOSEUP }), Told());
    EXPECT_EQ(0, SendMessageA(List(), WWM_GETCHANGED, 0, 0));
    Blur();
    EXPECT_EQ("Zurich", Text());
}

TEST_F(ComboKeys, ClickIntoAnEmptyListTakesNothingFromTheEdit)
{
    Make("%120%ss", edits | HCS_3DBORDER);
    Focus();
    Type("Zurich");
    Open();
    SendMessageA(List(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageA(List(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_FALSE(IsDropped());
    EXPECT_EQ("Zurich", Text());
}

TEST_F(ComboKeys, ListThatLiesOpenShowsTheFocusByItsColours)
{
    Make("%120%ss", HCS_EDIT | HCS_FOCUSBRUSH, 160, 120);
    for (const UINT message : { HCM_CHILDFOCUS, HCM_CHILDBLUR }) {
        PumpPending();
        ValidateRect(List(), nullptr);
        Send(message);
        EXPECT_TRUE(GetUpdateRect(List(), nullptr, FALSE)) << message;
    }
}

TEST_F(ComboKeys, F4TogglesTheList)
{
    for (const DWORD style : { edits, fields }) {
        MakeFocused(style);
        EXPECT_EQ(1, Key(VK_F4));
        EXPECT_TRUE(IsDropped());
        EXPECT_EQ(1, Key(VK_F4));
        EXPECT_FALSE(IsDropped());
        EXPECT_EQ((Ints{ HCN_DROPDOWN, HCN_CLOSEUP }), Told());
    }
}

TEST_F(ComboKeys, F4DoesNotOpenUnderNoButton)
{
    MakeFocused(edits | HCS_NOBUTTON);
    EXPECT_EQ(1, Key(VK_F4));
    EXPECT_FALSE(IsDropped());
}

TEST_F(ComboKeys, F5PressesTheExtraButton)
{
    MakeFocused(edits | HCS_XBUTTON);
    EXPECT_EQ(1, Key(VK_F5));
    EXPECT_EQ((Ints{ HCN_XBUTTON }), Told());
    Open();
    EXPECT_EQ(1, Key(VK_F5));
    EXPECT_EQ((Ints{ HCN_CLOSEUP, HCN_XBUTTON }), Told());
    MakeFocused(edits);
    EXPECT_EQ(1, Key(VK_F5));
    EXPECT_EQ(Ints(), Told()) << "there is no such button";
}

TEST_F(ComboKeys, TabMovesOnInTheDialog)
{
    MakeFocused(edits);
    Ints moves;
    parent.OnMessage(WM_NEXTDLGCTL, [&](WPARAM back, LPARAM) {
        moves.push_back(static_cast<int>(back));
        return 0;
    });
    EXPECT_EQ(1, Key(VK_TAB));
    EXPECT_EQ((Ints{ 0 }), moves);
    const HeldKeys held({ VK_SHIFT });
    EXPECT_EQ(1, Key(VK_TAB));
    EXPECT_EQ((Ints{ 0, 1 }), moves);
    EXPECT_EQ(Ints(), Told());
}

TEST_F(ComboKeys, TabIsOnlyToldUnderWantKeys)
{
    MakeFocused(edits | HCS_WANTKEYS);
    int moves = 0;
    parent.OnMessage(WM_NEXTDLGCTL, [&](WPARAM, LPARAM) { return ++moves; });
    TypeKey(VK_TAB);
    EXPECT_EQ((Ints{ HCN_TAB }), Told());
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ((Ints{ HCN_BACKTAB }), Told());
    EXPECT_EQ(0, moves);
}

TEST_F(ComboKeys, ReturnAndEscapeOfAClosedListAreToldUnderWantKeys)
{
    for (const DWORD style : { edits, fields }) {
        MakeFocused(style | HCS_WANTKEYS);
        EXPECT_EQ(0, Send(WM_KEYDOWN, VK_RETURN));
        EXPECT_EQ((Ints{ HCN_ENTER }), Told());
        EXPECT_EQ(0, Send(WM_KEYDOWN, VK_ESCAPE));
        EXPECT_EQ((Ints{ HCN_ESCAPE }), Told());
        MakeFocused(style);
        EXPECT_EQ(0, Send(WM_KEYDOWN, VK_RETURN));
        EXPECT_EQ(0, Send(WM_KEYDOWN, VK_ESCAPE));
        EXPECT_EQ(Ints(), Told());
    }
}

TEST_F(ComboKeys, ReturnTakesTheRowOfAnOpenList)
{
    for (const DWORD style : { edits, fields }) {
        MakeFocused(style);
        Open();
        SendMessageA(List(), HLM_SETCURRENT, 1, 0);
        if (style == fields) {
            ListTells(HLN_SELCHANGE);
            Told();
        }
        EXPECT_EQ(1, Send(WM_KEYDOWN, VK_RETURN));
        EXPECT_EQ("pear", Text());
        EXPECT_FALSE(IsDropped());
        if (style == edits) {
            EXPECT_EQ((Ints{ HCN_SELCHANGE, HCN_SELENDOK, HCN_CLOSEUP }), Told());
            EXPECT_TRUE(SendMessageA(List(), WWM_GETCHANGED, 0, 0));
        } else {
            EXPECT_EQ((Ints{ HCN_SELENDOK, HCN_CLOSEUP }), Told());
        }
    }
}

TEST_F(ComboKeys, EscapeClosesAnOpenListWithoutAcceptance)
{
    for (const DWORD style : { edits, fields }) {
        MakeFocused(style | HCS_WANTKEYS);
        Open();
        EXPECT_EQ(1, Send(WM_KEYDOWN, VK_ESCAPE));
        EXPECT_EQ((Ints{ HCN_CLOSEUP }), Told());
    }
}

TEST_F(ComboKeys, RowKeysOfAnEditStepTheList)
{
    MakeFocused(edits);
    EXPECT_EQ(1, Key(VK_DOWN));
    EXPECT_EQ("apple", Text());
    EXPECT_EQ((Ints{ HCN_SELENDOK, HCN_SELCHANGE }), Told());
    Key(VK_DOWN);
    Key(VK_UP);
    EXPECT_EQ("apple", Text());
    Key(VK_NEXT);
    EXPECT_NE("apple", Text());
    Key(VK_PRIOR);
    EXPECT_EQ("apple", Text());
    Told();
    Open();
    Key(VK_DOWN);
    EXPECT_EQ("pear", Text());
    EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told()) << "an open list only moves";
}

TEST_F(ComboKeys, RowKeysDoNothingWhereTheFaceDoesNotFollow)
{
    MakeFocused(edits);
    Send(HCM_SETOPTIONS, HCO_CHILDTOLIST);
    EXPECT_EQ(0, Send(WM_KEYDOWN, VK_DOWN));
    EXPECT_EQ(-1, Current());
    EXPECT_EQ(Ints(), Told());
    Open();
    EXPECT_EQ(1, Send(WM_KEYDOWN, VK_DOWN));
    EXPECT_EQ(0, Current());
    MakeFocused(edits | HCS_NOBUTTON);
    EXPECT_EQ(0, Send(WM_KEYDOWN, VK_DOWN));
    EXPECT_EQ(-1, Current());
}

TEST_F(ComboKeys, RowKeysOfAFieldAreItsOwn)
{
    MakeFocused(fields);
    EXPECT_EQ(0, Send(WM_KEYDOWN, VK_DOWN)) << "the combo leaves it to the field";
    EXPECT_EQ(-1, Current());
    Key(VK_DOWN);
    EXPECT_EQ(0, Current());
    EXPECT_EQ((Ints{ HCN_SELCHANGE }), Told());
}

TEST_F(ComboKeys, OtherKeysAreTheFaces)
{
    MakeFocused(edits);
    EXPECT_EQ(0, Send(WM_KEYDOWN, VK_HOME));
    SendPtr(WM_SETTEXT, 0, "abc");
    ToFace(EM_SETSEL, 3, 3);
    Key(VK_HOME);
    EXPECT_EQ(0, Send(EM_GETSEL));
}

TEST_F(ComboKeys, AltWithAnArrowTogglesTheList)
{
    for (const DWORD style : { edits, fields }) {
        MakeFocused(style);
        ToFace(WM_SYSKEYDOWN, VK_DOWN, 0x20000000);
        EXPECT_TRUE(IsDropped());
        ToFace(WM_SYSKEYDOWN, VK_UP, 0x20000000);
        EXPECT_FALSE(IsDropped());
        EXPECT_EQ(1, Send(HCM_SYSKEY, VK_DOWN));
        EXPECT_EQ(1, Send(WM_SYSKEYDOWN, VK_UP));
        EXPECT_EQ(0, Send(HCM_SYSKEY, VK_F6));
        EXPECT_EQ((Ints{ HCN_DROPDOWN, HCN_CLOSEUP, HCN_DROPDOWN, HCN_CLOSEUP }), Told());
    }
}

TEST_F(ComboKeys, CharactersGoToTheFace)
{
    MakeFocused(edits);
    Send(WM_CHAR, 'a', 1);
    EXPECT_EQ("a", Text());
    MakeFocused(fields);
    Send(WM_CHAR, 'p', 1);
    EXPECT_EQ("pear", Text());
}

struct CodeCase {
    DWORD   style;
    bool    open;
    LRESULT code;
};

TEST_F(ComboKeys, DialogCodeDependsOnFaceListAndStyle)
{
    constexpr CodeCase cases[] = {
        { fields, false, 129 },
        { edits, false, 137 },
        { fields | HCS_WANTKEYS, false, 4 },
        { edits | HCS_WANTKEYS, false, 12 },
        { fields, true, 4 },
        { edits, true, 12 },
    };
    for (const CodeCase& line : cases) {
        MakeFocused(line.style);
        if (line.open) {
            Open();
        }
        EXPECT_EQ(line.code, Send(WM_GETDLGCODE)) << std::hex << line.style << line.open;
        EXPECT_EQ(line.code, ToFace(WM_GETDLGCODE)) << std::hex << line.style << line.open;
    }
}

TEST_F(ComboKeys, ClickOnAStaticEditOpensTheList)
{
    MakeFocused(edits | HCS_STATIC);
    ClickAt(Face(), 10, 10);
    EXPECT_TRUE(IsDropped());
}

TEST_F(ComboKeys, RealKeysOpenMoveAndPick)
{
    MakeFocused(edits);
    MoveMouse(parent.hwnd(), 600, 500); // a row under the mouse would be the one that the keys start from
    Told();
    TypeKey(VK_F4);
    TypeKey(VK_DOWN);
    TypeKey(VK_DOWN);
    TypeKey(VK_RETURN);
    EXPECT_EQ("pear", Text());
    EXPECT_EQ((Ints{ HCN_DROPDOWN, HCN_SELCHANGE, HCN_SELCHANGE, HCN_SELENDOK, HCN_CLOSEUP }), Told());
}

TEST_F(ComboKeys, RealTypingMirrorsToTheList)
{
    MakeFocused(edits);
    TypeText("pl");
    EXPECT_EQ(2, Current());
    EXPECT_EQ("pl", Text());
}

TEST_F(ComboKeys, FaceWithoutItsComboDoesNothing)
{
    MakeFocused(edits);
    const HWND other =
        CreateWindowExA(0, "HEdit", "%ss", WS_CHILD, 0, 0, 10, 10, combo, nullptr, GetModuleHandleA(nullptr), nullptr);
    EXPECT_EQ(3, HCFilter(other, WM_GETTEXTLENGTH, 0, 0)) << "the default's answer, not the edit's";
    DestroyWindow(other);
}

TEST_F(ComboKeys, EachRowKeyOfAClosedListTellsThatARowIsTaken)
{
    for (const WORD vk : { WORD{ VK_PRIOR }, WORD{ VK_NEXT }, WORD{ VK_UP }, WORD{ VK_DOWN } }) {
        MakeFocused(edits);
        Send(CB_SETCURSEL, 1);
        Told();
        EXPECT_EQ(1, Key(vk));
        EXPECT_EQ((Ints{ HCN_SELENDOK, HCN_SELCHANGE }), Told()) << "key " << vk;
    }
}

WNDPROC           gComboProc;
std::vector<UINT> gCame;

LRESULT CALLBACK NoteFocus(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == HCM_CHILDFOCUS || message == HCM_CHILDBLUR) {
        gCame.push_back(message);
    } else if (message == WM_COMMAND && LOWORD(wParam) == comboEditId) {
        gCame.push_back(HIWORD(wParam));
    }
    return CallWindowProcA(gComboProc, hwnd, message, wParam, lParam);
}

TEST_F(ComboKeys, FaceTakesTheFocusItselfBeforeTheComboHearsOfIt)
{
    MakeFocused(edits);
    Blur();
    gCame.clear();
    gComboProc =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrA(combo, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(NoteFocus)));
    Focus();
    EXPECT_EQ((std::vector<UINT>{ HEN_SETFOCUS, HCM_CHILDFOCUS }), gCame);
    gCame.clear();
    Blur();
    EXPECT_EQ((std::vector<UINT>{ HEN_KILLFOCUS, HCM_CHILDBLUR }), gCame);
    SetWindowLongPtrA(combo, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(gComboProc));
}

} // namespace
