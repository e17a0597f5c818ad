// Keys that move, select, delete, take back and carry to the clipboard, in fields of the host.
#include "input/input_field.h"

#include "support/pixels.h"

#include <vector>

namespace {

struct KeyRow {
    const char* keys;
    const char* shown;
    const char* told;
};

class FieldKeys : public InputField {
protected:
    void Run(const std::vector<KeyRow>& rows)
    {
        std::string keys;
        for (const KeyRow& row : rows) {
            keys += row.keys;
            Type(row.keys);
            EXPECT_EQ(row.shown, Shown()) << "by " << keys;
            EXPECT_EQ(row.told, Told()) << "by " << keys;
        }
    }
    // A field with the focus and the whole text selected.
    void Start(const char* text, DWORD style = HES_AUTOHSCROLL)
    {
        Make(text, style);
        Enter();
        EXPECT_EQ("F", Told());
    }
    // The user goes to another control; what the field then shows and holds.
    void ExpectLeft(const char* text, const std::string& value)
    {
        Leave();
        EXPECT_EQ(button, GetFocus());
        EXPECT_EQ("K", Told());
        EXPECT_EQ(text, Text());
        EXPECT_EQ(Hex(value), Hex(Stored()));
    }
    std::string ClipboardText() const
    {
        std::string text = "(closed)";
        if (OpenClipboard(parent.hwnd())) {
            const HANDLE data = GetClipboardData(CF_TEXT);
            text = data ? static_cast<const char*>(GlobalLock(data)) : "(nothing)";
            CloseClipboard();
        }
        return text;
    }
    void EmptyTheClipboard() const
    {
        ASSERT_TRUE(OpenClipboard(parent.hwnd()));
        EmptyClipboard();
        CloseClipboard();
    }
};

// clang-format off
TEST_F(FieldKeys, MoveAndSelectByCharactersAndWords)
{
    Start("one two  three");
    Run({
        { "{Home}",             "|one two  three",   "" },
        { "{Ctrl+Right}",       "one |two  three",   "" },
        { "{Ctrl+Right}",       "one two  |three",   "" },
        { "{Ctrl+Shift+Right}", "one two  [three]",  "" },
        { "{Ctrl+Left}",        "one two  |three",   "" },
        { "{Shift+Left}",       "one two [ ]three",  "" },
        { "{Shift+Home}",       "[one two  ]three",  "" },
        { "{Right}",            "o|ne two  three",   "" },
        { "{Up}",               "|one two  three",   "" },
        { "{Down}",             "o|ne two  three",   "" },
        { "{Shift+Down}",       "o[n]e two  three",  "" },
        { "{Shift+Up}",         "o|ne two  three",   "" },
        { "{Shift+End}",        "o[ne two  three]",  "" },
        { "{Left}",             "one two  thre|e",   "" },
        { "{Ctrl+Shift+Left}",  "one two  [thre]e",  "" },
        { "{End}",              "one two  three|",   "" },
        { "{Right}",            "one two  three|",   "" },
    });
    ExpectLeft("one two  three", "one two  three");
}

TEST_F(FieldKeys, TypingReplacesTheSelection)
{
    Start("one two  three");
    Run({
        { "{End}{Ctrl+Shift+Left}", "one two  [three]", "" },
        { "x",                      "one two  x|",      "UC" },
        { "{Shift+Left}{Shift+Left}{Del}", "one two |", "UC" },
        { "{Shift+Home}{Back}",     "|",                "" },
    });
    ExpectLeft("", "");
}

TEST_F(FieldKeys, BackspaceOverASelectionTakesTheCharacterBeforeItToo)
{
    Start("abcdef");
    Run({
        { "{Home}{Right}{Right}{Right}{Shift+Right}{Shift+Right}", "abc[de]f", "" },
        { "{Back}", "ab|f", "UC" },
    });
    ExpectLeft("abf", "abf");
}

TEST_F(FieldKeys, InsertTurnsOverwritingOnAndOff)
{
    Start("abcd");
    Run({
        { "{Home}{Ins}", "|abcd",  "" },
        { "xy",          "xy|cd",  "UCUC" },
        { "{End}z",      "xycdz|", "UC" },
        { "{Ins}",       "xycdz|", "" },
        { "{Home}0",     "0|xycdz", "UC" },
        { "{Ins}",       "0|xycdz", "" },
    });
    ExpectLeft("0xycdz", "0xycdz");
    Enter();
    EXPECT_EQ("|0xycdz", Shown()) << "overwriting begins at the start";
}

TEST_F(FieldKeys, OverwritingReachesIntoAFullText)
{
    Start("%ss4abcd");
    Run({
        { "{Home}x",   "|abcd", "M" },
        { "{Ins}xy",   "xy|cd", "UCUC" },
        { "{End}z",    "xycd|", "M" },
    });
}

TEST_F(FieldKeys, UndoBringsTheStoredTextBack)
{
    Start("abc");
    Run({
        { "xyz",        "xyz|",  "UCUCUC" },
        { "{Ctrl+Z}",   "[abc]", "" },
        { "q",          "q|",    "UC" },
        { "{Alt+Back}", "[abc]", "" },
    });
    ExpectLeft("abc", "abc");
}

TEST_F(FieldKeys, ClipboardKeysCopyCutAndPaste)
{
    EmptyTheClipboard();
    Start("abcdef");
    Run({
        { "{Home}{Shift+Right}{Shift+Right}{Ctrl+C}", "[ab]cdef", "" },
        { "{End}{Ctrl+V}",   "abcdefab|",  "UCUC" },
        { "{Shift+Left}{Shift+Left}{Shift+Left}{Ctrl+X}", "abcde|", "UC" },
    });
    EXPECT_EQ("fab", ClipboardText());
    Run({
        { "{Home}{Shift+Ins}", "fab|abcde", "UCUCUC" },
        { "{Shift+End}{Ctrl+Ins}", "fab[abcde]", "" },
        { "{Shift+Home}{Shift+Del}", "|abcde", "UC" },
    });
    EXPECT_EQ("fab", ClipboardText());
    ExpectLeft("abcde", "abcde");
}

TEST_F(FieldKeys, PastedTextIsFilteredLikeTypedOne)
{
    Start("a1b2-3");
    Type("{Ctrl+C}");
    Start("%nl");
    Run({ { "{Ctrl+V}", "123|", "UCUCUCUC" } }); // the selection goes first
    ExpectLeft("123", Raw(123));
}

TEST_F(FieldKeys, TextGoesToTheSystemsOwnFieldAndComesBack)
{
    const HWND foreign = Create("EDIT", "", ES_AUTOHSCROLL, 9, { 120, 60, 200, 24 });
    Start("there");
    Type("{Ctrl+C}");
    ClickAt(foreign, 5, 8);
    Type("{Ctrl+V} and back{Shift+Home}{Ctrl+C}");
    EXPECT_EQ("there and back", TextOf(foreign));
    Enter();
    Told();
    Run({ { "{Del}{Ctrl+V}", "there and back|", "UCUCUCUCUCUCUCUCUCUCUCUCUCUCUC" } });
}

TEST_F(FieldKeys, WholeDateIsClearedKeyByKeyOrAtOnce)
{
    Start("%dldd.mm.yyyy");
    Run({
        { "17052024",           "17.05.2024|",  "UCUCUCUCUCUCUCUC" },
        { "{Home}{Shift+End}",  "[17.05.2024]", "" },
        { "{Del}",              "| . .    ",    "UC" },
    });
    Start("%dldd.mm.yyyy", HES_AUTOHSCROLL | HES_CLEARALL);
    Run({
        { "17052024",           "17.05.2024|",  "UCUCUCUCUCUCUCUC" },
        { "{Home}{Shift+End}",  "[17.05.2024]", "" },
        { "{Del}",              "|",            "UC" },
    });
    ExpectLeft("", "null");
}

TEST_F(FieldKeys, KeysOfADialogAreToldAndTypeNothing)
{
    Start("abc");
    Run({
        { "{Tab}",       "[abc]", "T" },
        { "{Shift+Tab}", "[abc]", "t" },
        { "{Enter}",     "[abc]", "R" },
        { "{Esc}",       "[abc]", "E" },
        { "{F1}",        "[abc]", "HE" },
    });
    EXPECT_EQ(field, GetFocus()) << "a parent that is no dialog leaves the focus where it is";
}

TEST_F(FieldKeys, TabIsToldBehindTheMoveOfTheFocus)
{
    Start("%nl");
    parent.OnMessage(WM_NEXTDLGCTL, [this](WPARAM, LPARAM) {
        SetFocus(button);
        return 0;
    });
    Run({ { "42", "42|", "UCUC" } });
    Type("{Tab}");
    EXPECT_EQ("KT", Told());
    EXPECT_EQ(button, GetFocus());
    EXPECT_EQ(Hex(Raw(42)), Hex(Stored()));
}

TEST_F(FieldKeys, ReadOnlyFieldMovesSelectsAndCopiesOnly)
{
    EmptyTheClipboard();
    Start("abc", HES_AUTOHSCROLL | HES_READONLY);
    Run({
        { "x",                    "[abc]", "" },
        { "{Del}",                "[abc]", "" },
        { "{Back}",               "[abc]", "" },
        { "{Shift+Del}",          "[abc]", "" },
        { "{Ctrl+X}",             "[abc]", "" },
        { "{Home}{Shift+Right}",  "[a]bc", "" },
        { "{Ctrl+C}",             "[a]bc", "" },
        { "{End}{Ctrl+V}",        "abc|",  "" },
    });
    EXPECT_EQ("a", ClipboardText());
    ExpectLeft("abc", "abc");
}

TEST_F(FieldKeys, StaticFieldTakesTheFocusAlone)
{
    Start("abc", HES_STATIC);
    EXPECT_EQ(field, GetFocus());
    Run({
        { "x",         "|abc", "" },
        { "{End}",     "|abc", "" },
        { "{Del}",     "|abc", "" },
        { "{Enter}",   "|abc", "" },
        { "{Alt+Back}", "|abc", "" },
    });
}

TEST_F(FieldKeys, PasswordIsTypedAndNeverCarriedAway)
{
    EmptyTheClipboard();
    Start("", HES_AUTOHSCROLL | HES_PASSWORD);
    Run({
        { "Wi",             "Wi|",  "UCUC" },
        { "{Shift+Home}{Ctrl+C}", "[Wi]", "" },
        { "{Ctrl+X}",       "[Wi]", "" },
    });
    EXPECT_EQ("(nothing)", ClipboardText());
    const Pixels secret = ShotOf(field);
    Run({ { "iW{Shift+Home}", "[iW]", "UCUC" } });
    EXPECT_TRUE(SamePixels(secret, ShotOf(field))) << "the width of a letter tells nothing";
    ExpectLeft("iW", "iW");
}

TEST_F(FieldKeys, F2ShowsTheDisplayFormWhileItIsDown)
{
    Start("%nl(*0)");
    Run({ { "42", "42|", "UCUC" } });
    HoldKey(VK_F2);
    EXPECT_EQ("(42)", Text());
    Type("{Home}");
    ReleaseKey(VK_F2);
    EXPECT_EQ("42|", Shown());
    HoldKey(VK_F2);
    Type("7");
    ReleaseKey(VK_F2);
    EXPECT_EQ("42|", Shown()) << "what is typed meanwhile is lost";
    EXPECT_EQ(Hex(Raw(42)), Hex(Stored()));
}

TEST_F(FieldKeys, HeldKeyRepeats)
{
    Start("");
    for (int i = 0; i < 20; ++i) {
        HoldKey('A');
    }
    ReleaseKey('A');
    EXPECT_EQ(std::string(20, 'a') + "|", Shown());
}

TEST_F(FieldKeys, TypingAheadEndsAsTypingDoes)
{
    Start("%dldd.mm.yyyy");
    TypeAhead("17052024{Home}3{Shift+End}{Del}{Home}29022000");
    EXPECT_EQ("29.02.2000|", Shown());
    Told();
    ExpectLeft("29.02.2000", Raw(20000229));
}

TEST_F(FieldKeys, HostSeesWhichChangesAreAFieldsOwn)
{
    Start("abc");
    ToldInside();
    Type("x");
    EXPECT_EQ("UC", Told());
    EXPECT_EQ("UCUCUCUC", ToldInside()) << "a deletion for each character, and one for the selection";
}

// Refused values

TEST_F(FieldKeys, VetoOfABadDateBringsTheOldOneBack)
{
    Start("%dldd/mm/yyyy");
    Type("17052024");
    Leave();
    Enter();
    Told();
    Veto(HEN_BADINPUT);
    Type("31042024");
    EXPECT_EQ("31.04.2024|", Shown());
    Told();
    Leave();
    EXPECT_EQ("BK", Told());
    EXPECT_EQ("17.05.2024", Text());
    EXPECT_EQ(Hex(Raw(20240517)), Hex(Stored()));
}

TEST_F(FieldKeys, VetoOfABoundKeepsTheNumber)
{
    Start("%nl|0;100;|*0");
    Veto(HEN_ABOVEMAX);
    Type("500");
    Told();
    Leave();
    EXPECT_EQ(">K", Told());
    EXPECT_EQ("500", Text());
    EXPECT_EQ(Hex(Raw(500)), Hex(Stored()));
}
// clang-format on

int CALLBACK AtMostHundred(HWND, DWORD, void* data)
{
    int value = 0;
    memcpy(&value, data, sizeof value);
    return value > 100;
}

TEST_F(FieldKeys, ValidatorHoldsTheFocusUntilTheValueIsGood)
{
    Start("%nl");
    SendPtr(field, HEM_SETVALIDATOR, 0, reinterpret_cast<const void*>(AtMostHundred));
    Type("101");
    Leave();
    EXPECT_EQ(field, GetFocus());
    EXPECT_EQ("101", Text());
    Type("{End}{Back}");
    Leave();
    EXPECT_EQ(button, GetFocus());
    EXPECT_EQ(Hex(Raw(10)), Hex(Stored()));
}

// Fields in a dialog

class FieldsInADialog : public InputField {
protected:
    FieldsInADialog()
    {
        first = MakeField(21, "%dldd/mm/yyyy", HES_AUTOHSCROLL, 10);
        second = MakeField(22, "%nl", HES_AUTOHSCROLL, 50);
        third = MakeField(23, "abc", HES_AUTOHSCROLL | HES_ALLKEYS, 90);
        PumpForDialog(parent.hwnd());
        ClickAt(first, 3, 8);
        seen.NotificationsOnly();
        seen.Clear();
    }
    ~FieldsInADialog() override { PumpForDialog(nullptr); }

    HWND MakeField(int id, const char* text, DWORD style, int y)
    {
        field = Create("HEdit", text, style | WS_TABSTOP, id, { 10, y, 200, 24 });
        return field;
    }

    HWND first;
    HWND second;
    HWND third;
};

TEST_F(FieldsInADialog, TabGoesRoundAndEachValueIsTaken)
{
    Type("17052024{Tab}");
    EXPECT_EQ(second, GetFocus());
    EXPECT_EQ("17.05.2024", TextOf(first));
    Type("42{Tab}");
    EXPECT_EQ(third, GetFocus());
    EXPECT_EQ(MAKELRESULT(0, 3), Send(third, EM_GETSEL));
    Type("xyz{Shift+Tab}");
    EXPECT_EQ("xyz", TextOf(third));
    int value = 0;
    SendPtr(second, HEM_GETDATA, sizeof value, &value);
    EXPECT_EQ(42, value);
}

TEST_F(FieldsInADialog, ArrowsStayInTheField)
{
    Type("{Tab}123{Left}{Left}4");
    EXPECT_EQ(second, GetFocus());
    EXPECT_EQ("143", TextOf(second));
}

TEST_F(FieldsInADialog, EnterAndEscapeAreTheDialogsUnlessTheFieldWantsAllKeys)
{
    constexpr Seen dialogs[] = { { 0, ToParent, 0, IDOK }, { 0, ToParent, 0, IDCANCEL } };
    constexpr Seen fields[] = { { 0, ToParent, HEN_RETURN, 23 }, { 0, ToParent, HEN_ESCAPE, 23 } };
    Type("{Enter}{Esc}");
    EXPECT_SEEN(dialogs);
    ClickAt(third, 3, 8);
    seen.Clear();
    Type("{Enter}{Esc}");
    EXPECT_SEEN(fields);
}

TEST_F(FieldsInADialog, FocusMovesInThisOrder)
{
    constexpr Seen moves[] = {
        { 0, ToParent, HEN_KILLFOCUS, 21 },
        { 0, ToParent, HEN_SETFOCUS, 22 },
    };
    Type("{Tab}");
    EXPECT_SEEN(moves);
}

} // namespace
