// Keys, as a keyboard sends them.
#include "edit_window.h"
#include "support/held_keys.h"
#include "support/import_hook.h"

namespace {

class EditKeyboard : public EditWindow {
protected:
    void Make(const char* text, DWORD style = 0, int caret = 0)
    {
        edit = nullptr;
        Create(text, style | HES_AUTOHSCROLL);
        Focus();
        SetSelection(Ctl(), 0, caret, caret);
        seen.Clear();
    }
    LRESULT Selection() const { return Send(EM_GETSEL); }
};

struct MoveCase {
    WORD     vk;
    unsigned modifiers;
    int      from;
    int      anchor;
    int      caret;
};

TEST_F(EditKeyboard, KeysMoveTheCaret)
{
    //                             0123456789012
    constexpr char     text[] = "one two  three";
    constexpr MoveCase cases[] = {
        { VK_LEFT, withNone, 3, 2, 2 },    { VK_UP, withNone, 3, 2, 2 },      { VK_RIGHT, withNone, 3, 4, 4 },
        { VK_DOWN, withNone, 3, 4, 4 },    { VK_HOME, withNone, 3, 0, 0 },    { VK_END, withNone, 3, 14, 14 },
        { VK_LEFT, withNone, 0, 0, 0 },    { VK_RIGHT, withNone, 14, 14, 14 }, { VK_LEFT, withShift, 3, 3, 2 },
        { VK_RIGHT, withShift, 3, 3, 4 },  { VK_HOME, withShift, 3, 3, 0 },   { VK_END, withShift, 3, 3, 14 },
        { VK_RIGHT, withCtrl, 0, 4, 4 },   { VK_RIGHT, withCtrl, 5, 9, 9 },   { VK_RIGHT, withCtrl, 10, 14, 14 },
        { VK_LEFT, withCtrl, 14, 9, 9 },   { VK_LEFT, withCtrl, 9, 4, 4 },    { VK_LEFT, withCtrl, 2, 0, 0 },
        { VK_DOWN, withCtrl, 0, 4, 4 },    { VK_UP, withCtrl, 9, 4, 4 },
        { VK_RIGHT, withCtrl | withShift, 0, 0, 4 },
    };
    Make(text);
    for (const MoveCase& row : cases) {
        SetSelection(Ctl(), 0, row.from, row.from);
        TypeKey(row.vk, row.modifiers);
        EXPECT_EQ(row.anchor, +Ctl()->nAnchor) << row.vk << " with " << row.modifiers << " from " << row.from;
        EXPECT_EQ(row.caret, +Ctl()->nCaret) << row.vk << " with " << row.modifiers << " from " << row.from;
    }
}

TEST_F(EditKeyboard, TextIsTypedAndCommittedWhenTheFieldIsLeft)
{
    Make("%nl");
    Send(EM_SETSEL, 0, 1);
    TypeText("425");
    EXPECT_EQ("425", Text());
    Blur();
    EXPECT_EQ(425, Number());
}

TEST_F(EditKeyboard, DeleteRemovesTheCharacterAtTheCaret)
{
    Make("abc", 0, 1);
    TypeKey(VK_DELETE);
    EXPECT_EQ("ac", Text());
}

TEST_F(EditKeyboard, BackspaceKeyArrivesAsACharacter)
{
    Make("abc", 0, 2);
    TypeKey(VK_BACK);
    EXPECT_EQ("ac", Text());
}

TEST_F(EditKeyboard, InsertTogglesOverwritingForAllFields)
{
    Make("abc");
    TypeKey(VK_INSERT);
    EXPECT_EQ(1, GetOverwriteMode());
    TypeText("x");
    EXPECT_EQ("xbc", Text());
    TypeKey(VK_INSERT);
    EXPECT_EQ(0, GetOverwriteMode());
}

TEST_F(EditKeyboard, ClipboardKeysCutCopyAndPaste)
{
    Make("abcdef");
    Send(EM_SETSEL, 0, 2);
    TypeKey('C', withCtrl);
    EXPECT_EQ("abcdef", Text()) << "the character of the key is swallowed";
    SetSelection(Ctl(), 0, 6, 6);
    TypeKey('V', withCtrl);
    EXPECT_EQ("abcdefab", Text());
    Send(EM_SETSEL, 0, 1);
    TypeKey('X', withCtrl);
    EXPECT_EQ("bcdefab", Text());
    TypeKey(VK_INSERT, withShift);
    EXPECT_EQ("abcdefab", Text());
    Send(EM_SETSEL, 4, 8);
    TypeKey(VK_INSERT, withCtrl);
    EXPECT_EQ("abcdefab", Text());
    TypeKey(VK_DELETE, withShift);
    EXPECT_EQ("abcd", Text());
    TypeKey(VK_INSERT, withShift);
    EXPECT_EQ("abcdefab", Text());
}

TEST_F(EditKeyboard, CopyNeverTypesACharacter)
{
    Make("abc");
    Send(EM_SETSEL, 0, 3);
    TypeKey('C', withCtrl);
    EXPECT_EQ("abc", Text());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_SKIPCHAR)) << "swallowed with its own character";
    SetSelection(Ctl(), 0, 3, 3);
    TypeText("d");
    EXPECT_EQ("abcd", Text());
}

TEST_F(EditKeyboard, CopyHasTheNextCharacterIgnoredWhateverItIs)
{
    Make("abc");
    Send(EM_SETSEL, 0, 3);
    {
        const HeldKeys keys({ VK_CONTROL });
        Send(WM_KEYDOWN, 'C');
    }
    EXPECT_TRUE(HasFlag(Ctl(), HEF_SKIPCHAR));
    Send(WM_CHAR, 'x');
    EXPECT_EQ("abc", Text());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_SKIPCHAR));
    Send(WM_CHAR, 'y');
    EXPECT_EQ("y", Text());
}

// AltGr is Ctrl with Alt: with it these keys are letters of some layouts.
TEST_F(EditKeyboard, CtrlCountsWithoutAltOnly)
{
    for (const WPARAM vk : { WPARAM{ 'C' }, WPARAM{ 'V' }, WPARAM{ 'X' }, WPARAM{ 'Z' } }) {
        Make("abc def");
        TypeText("?");
        Send(EM_SETSEL, 0, 3);
        const HeldKeys keys({ VK_CONTROL, VK_MENU });
        Send(WM_KEYDOWN, vk);
        EXPECT_EQ("?abc def", Text()) << static_cast<char>(vk);
        EXPECT_FALSE(HasFlag(Ctl(), HEF_SKIPCHAR));
        EXPECT_EQ(MAKELRESULT(0, 3), Selection()) << static_cast<char>(vk);
    }
    Make("abc def");
    const HeldKeys keys({ VK_CONTROL, VK_MENU });
    Send(WM_KEYDOWN, VK_RIGHT);
    EXPECT_EQ(MAKELRESULT(1, 1), Selection()) << "no word";
    Send(WM_CHAR, 0x80);
    EXPECT_EQ(std::string("a\x80") + "bc def", Text()) << "the euro sign of AltGr+E";
}

TEST_F(EditKeyboard, UndoKeysRebuildTheTextAndSelectAll)
{
    for (const bool alt : { false, true }) {
        Make("abc", 0, 3);
        TypeText("xyz");
        EXPECT_EQ("abcxyz", Text());
        if (alt) {
            TypeKey(VK_BACK, withAlt);
        } else {
            TypeKey('Z', withCtrl);
        }
        EXPECT_EQ("abc", Text()) << alt;
        EXPECT_EQ(MAKELRESULT(0, 3), Selection());
    }
}

TEST_F(EditKeyboard, PlainLettersOfTheClipboardKeysAreTyped)
{
    Make("");
    TypeText("cvxz");
    EXPECT_EQ("cvxz", Text());
}

struct ToldCase {
    WORD     vk;
    unsigned modifiers;
    int      first;
    int      second; // 0: none
};

TEST_F(EditKeyboard, KeysOfTheDialogAreToldToTheParent)
{
    constexpr ToldCase cases[] = {
        { VK_RETURN, withNone, HEN_RETURN, 0 }, { VK_ESCAPE, withNone, HEN_ESCAPE, 0 },
        { VK_TAB, withNone, HEN_TAB, 0 },       { VK_TAB, withShift, HEN_BACKTAB, 0 },
        { VK_F1, withNone, HEN_HELP, HEN_ESCAPE },
    };
    Make("abc");
    for (const ToldCase& row : cases) {
        seen.Clear();
        TypeKey(row.vk, row.modifiers);
        EXPECT_EQ(row.second ? (Codes{ row.first, row.second }) : Codes{ row.first }, Told()) << row.vk;
        EXPECT_EQ("abc", Text());
    }
}

TEST_F(EditKeyboard, TabAsksTheParentToMoveTheFocus)
{
    Make("abc");
    std::vector<WPARAM> shifts;
    parent.OnMessage(WM_NEXTDLGCTL, [&](WPARAM shift, LPARAM) {
        shifts.push_back(shift);
        return LRESULT{ 0 };
    });
    TypeKey(VK_TAB);
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ((std::vector<WPARAM>{ 0, 1 }), shifts);
}

TEST_F(EditKeyboard, F2ShowsTheDisplayFormWhileItIsDown)
{
    Make("%nl(*0)");
    Send(EM_SETSEL, 0, -1);
    TypeText("42");
    Send(WM_KEYDOWN, VK_F2);
    EXPECT_EQ("(42)", Text());
    EXPECT_EQ(42, NumToDouble(Ctl()->pData, 'l')) << "committed before it shows";
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY));
    Send(WM_KEYDOWN, VK_LEFT);
    Send(WM_KEYUP, VK_F2);
    EXPECT_EQ("42", Text());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DISPLAY));
    EXPECT_EQ(MAKELRESULT(2, 2), Selection()) << "keys in between do nothing";
}

// How often the caret was hidden more than shown: it shows at 0 only.
int gHidden;

BOOL WINAPI CountHide(HWND)
{
    ++gHidden;
    return TRUE;
}
BOOL WINAPI CountShow(HWND)
{
    --gHidden;
    return TRUE;
}

class EditCaret : public EditKeyboard {
protected:
    EditCaret() : hide_("HideCaret", CountHide), show_("ShowCaret", CountShow) {}

private:
    ImportHook hide_;
    ImportHook show_;
};

TEST_F(EditCaret, F2ThatRepeatsHidesItOnce)
{
    Make("%nl(*0)");
    Send(EM_SETSEL, 0, -1);
    TypeText("42");
    gHidden = 0;
    seen.Clear();
    for (int i = 0; i < 5; ++i) {
        Send(WM_KEYDOWN, VK_F2, i ? 1 | 1 << 30 : 1);
        EXPECT_EQ("(42)", Text()) << i;
        EXPECT_EQ(1, gHidden) << i;
    }
    Send(WM_KEYUP, VK_F2);
    EXPECT_EQ("42", Text());
    EXPECT_EQ(0, gHidden);
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditCaret, F2OnATextThatIsRefusedShowsTheRepairedValue)
{
    Make("%dldd/mm/yyyy");
    gHidden = 0;
    Replace(DateText(31, 4, 2024).c_str());
    Send(WM_KEYDOWN, VK_F2);
    EXPECT_EQ(Codes{ HEN_BADINPUT }, Told());
    const std::string display = Text();
    EXPECT_EQ("30", display.substr(0, 2)) << display;
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DIRTY));
    Send(WM_KEYDOWN, VK_F2, 1 | 1 << 30);
    EXPECT_EQ(Codes(), Told()) << "the repeated key commits nothing";
    Send(WM_KEYUP, VK_F2);
    EXPECT_EQ(DateText(30, 4, 2024), Text());
    EXPECT_EQ(0, gHidden);
    Blur();
    EXPECT_EQ(Codes{ HEN_KILLFOCUS }, Told()) << "what shows is a date";
}

TEST_F(EditKeyboard, EndOfAVeryLongTextIsItsCharacter32767)
{
    Make("", HES_AUTOHSCROLL);
    SendText(HEM_SETDATA, 0, std::string(33000, 'x').c_str());
    Send(WM_KEYDOWN, VK_END);
    EXPECT_EQ(32767, +Ctl()->nCaret);
}

TEST_F(EditKeyboard, DisplayFormIsNotReadWhereTheFocusGoesWithF2Down)
{
    Make("%nl0;(0)");
    const int value = -42;
    Send(HEM_SETDATA, 0, AsParam(&value));
    Send(WM_KEYDOWN, VK_F2);
    EXPECT_EQ("(42)", Text());
    Send(EM_SETSEL, 0, -1);
    TypeText("7");
    Blur();
    EXPECT_EQ(-42, Number());
    EXPECT_EQ("(42)", Text());
}

TEST_F(EditKeyboard, DateInWordsIsNotReadWhereTheFocusGoesWithF2Down)
{
    Make("%dldddd, dd. mmmm yyyy");
    const int date = 20240517;
    Send(HEM_SETDATA, 0, AsParam(&date));
    Send(WM_KEYDOWN, VK_F2);
    const std::string words = Text();
    Send(WM_CHAR, '7');
    Blur();
    EXPECT_EQ(date, Number());
    EXPECT_EQ(words, Text());
}

TEST_F(EditKeyboard, AskingForTheValueWithF2DownReadsNoDisplayForm)
{
    Make("%nl0;(0)");
    const int value = -42;
    Send(HEM_SETDATA, 0, AsParam(&value));
    Send(WM_KEYDOWN, VK_F2);
    TypeText("7");
    EXPECT_EQ(-42, Number());
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DISPLAY)) << "the key is still down";
    Send(WM_KEYUP, VK_F2);
    EXPECT_EQ("-42", Text());
}

TEST_F(EditKeyboard, KeysOfAFieldInDisplayFormDoNothing)
{
    Create("abc");
    Send(WM_KEYDOWN, VK_END);
    Send(WM_KEYDOWN, VK_RETURN);
    EXPECT_EQ(MAKELRESULT(0, 0), Selection());
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditKeyboard, KeysOfAStaticFieldDoNothing)
{
    Make("abc", HES_STATIC);
    TypeKey(VK_END);
    TypeKey(VK_RETURN);
    TypeKey(VK_BACK, withAlt);
    TypeText("x");
    EXPECT_EQ(MAKELRESULT(0, 0), Selection());
    EXPECT_EQ("abc", Text());
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditKeyboard, HostMayDestroyTheFieldWhenAKeyIsTold)
{
    struct Case {
        WORD vk;
        int  code;
    };
    constexpr Case cases[] = { { VK_RETURN, HEN_RETURN }, { VK_ESCAPE, HEN_ESCAPE }, { VK_TAB, HEN_TAB },
                               { VK_F1, HEN_HELP },       { VK_DELETE, HEN_UPDATE }, { VK_DELETE, HEN_CHANGE } };
    for (const Case& row : cases) {
        Make("abc");
        parent.On(row.code, [this] { DestroyWindow(edit); });
        TypeKey(row.vk);
        EXPECT_FALSE(IsWindow(edit)) << row.vk;
        parent.On(row.code, [] {});
    }
}

} // namespace
