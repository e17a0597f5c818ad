// What a field does not take: the beep, the text as it was, and no word to the parent.
#include "edit_window.h"
#include "support/import_hook.h"
#include "support/pixels.h"

namespace {

class EditRefusal : public EditWindow {
protected:
    void Make(const char* text, DWORD style = 0, int caret = 0)
    {
        edit = nullptr;
        Create(text, style | HES_AUTOHSCROLL);
        Focus();
        SetSelection(Ctl(), 0, caret, caret);
        PumpPending();
        seen.Clear();
        beeps.Count();
    }
    void Key(char ch) const { Send(WM_CHAR, static_cast<BYTE>(ch)); }

    BeepCounter beeps;
};

struct RefusedRow {
    const char* window;
    int         caret;
    char        key;
};

TEST_F(EditRefusal, RefusedCharacterBeepsAndChangesNothing)
{
    constexpr RefusedRow rows[] = {
        { "%nl", 0, 'x' }, { "%nl", 1, '-' },   { "%zd0.00", 0, 'x' }, { "%dl", 0, 'x' },
        { "%tt", 0, 'x' }, { "%ms##", 0, 'x' }, { "%ss3abc", 1, 'x' },
    };
    for (const RefusedRow& row : rows) {
        Make(row.window, 0, row.caret);
        const std::string before = Text();
        Key(row.key);
        EXPECT_EQ(1, beeps.Count()) << row.window;
        EXPECT_EQ(before, Text()) << row.window;
        EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY)) << row.window;
        EXPECT_EQ(row.window[1] == 's' ? Codes{ HEN_MAXTEXT } : Codes{}, Told()) << row.window;
        EXPECT_FALSE(GetUpdateRect(edit, nullptr, FALSE)) << row.window;
        DestroyWindow(edit);
    }
}

TEST_F(EditRefusal, TakenAndDroppedCharactersAreSilent)
{
    Make("%nl");
    Key('5');
    Key(9);
    Key(3);
    EXPECT_EQ(0, beeps.Count());
}

// Settled: the sign goes ahead of the character that is then refused.
TEST_F(EditRefusal, SignThatARefusedCharacterTookAwayIsPainted)
{
    const int minus = -12345;
    AnswerColors(GetSysColorBrush(COLOR_WINDOW));
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HES_EDITRIGHT } }) {
        Make("%nl", style);
        Send(HEM_SETDATA, 0, AsParam(&minus));
        SetSelection(Ctl(), 0, 0, 0);
        HideCaret(edit);
        UpdateWindow(edit);
        seen.Clear();
        Key('x');
        EXPECT_EQ("12345", Text());
        EXPECT_EQ(1, beeps.Count());
        EXPECT_EQ(Codes(), Told());
        EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY));
        const Pixels typed = ShotOf(edit);
        InvalidateRect(edit, nullptr, TRUE);
        EXPECT_TRUE(SamePixels(ShotOf(edit), typed)) << "style " << style;
        DestroyWindow(edit);
    }
}

TEST_F(EditRefusal, ScrollRangeFollowsASignThatARefusedCharacterTookAway)
{
    const int minus = -1234567890;
    edit = nullptr;
    Create("%nl", HES_AUTOHSCROLL, 30);
    Focus();
    Send(HEM_SETDATA, 0, AsParam(&minus));
    SetSelection(Ctl(), 0, 0, 0);
    UpdateScrollRange(Ctl());
    const LONG before = Ctl()->nScrollMax;
    ASSERT_GT(before, 0);
    for (int i = 0; i < 2 && +Ctl()->nScrollMax == before; ++i) {
        Key('x');
    }
    const LONG range = Ctl()->nScrollMax;
    UpdateScrollRange(Ctl());
    EXPECT_EQ(+Ctl()->nScrollMax, range);
    EXPECT_EQ("1234567890", Text());
}

TEST_F(EditRefusal, DeleteInAReadOnlyFieldIsSilentAndShiftDeleteBeeps)
{
    Make("abc", HES_READONLY, 1);
    TypeKey(VK_DELETE);
    EXPECT_EQ(0, beeps.Count());
    Send(EM_SETSEL, 0, 3);
    TypeKey(VK_DELETE);
    EXPECT_EQ(0, beeps.Count());
    TypeKey(VK_DELETE, withShift);
    EXPECT_EQ(1, beeps.Count());
    EXPECT_EQ("abc", Text());
    EXPECT_EQ(Codes(), Told());
    EXPECT_EQ(MAKELRESULT(0, 3), Send(EM_GETSEL));
}

TEST_F(EditRefusal, CutBeepsInAReadOnlyFieldAndCutAndCopyInAPassword)
{
    Make("abc", HES_READONLY);
    Send(EM_SETSEL, 0, 3);
    Send(WM_CUT);
    EXPECT_EQ(1, beeps.Count());
    Send(WM_COPY);
    Send(WM_PASTE);
    EXPECT_EQ(0, beeps.Count());
    Make("abc", HES_PASSWORD);
    Send(EM_SETSEL, 0, 3);
    Send(WM_CUT);
    EXPECT_EQ(1, beeps.Count());
    Send(WM_COPY);
    EXPECT_EQ(1, beeps.Count());
}

TEST_F(EditRefusal, DeleteWithNothingToDeleteBeeps)
{
    Make("%nl", 0, 1);
    TypeKey(VK_DELETE);
    EXPECT_EQ(1, beeps.Count());
    Make("abc", 0, 3);
    TypeKey(VK_DELETE);
    EXPECT_EQ(0, beeps.Count());
}

TEST_F(EditRefusal, EachPastedCharacterThatIsRefusedBeeps)
{
    Make("%nl");
    Send(EM_SETSEL, 0, 1);
    SendText(EM_REPLACESEL, 0, "1xy2");
    EXPECT_EQ("12", Text());
    EXPECT_EQ(2, beeps.Count());
}

// Neither the selection nor a character goes, so the parent hears nothing either.
TEST_F(EditRefusal, ReplacedSelectionOfAReadOnlyFieldStays)
{
    Make("abc", HES_READONLY);
    Send(EM_SETSEL, 1, 2);
    EXPECT_EQ(1, SendText(EM_REPLACESEL, 0, "x"));
    EXPECT_EQ("abc", Text());
    EXPECT_EQ(MAKELRESULT(1, 2), Send(EM_GETSEL));
    EXPECT_EQ(Codes(), Told());
    EXPECT_FALSE(HasFlag(Ctl(), HEF_DIRTY));
    EXPECT_EQ(0, beeps.Count());
}

} // namespace
