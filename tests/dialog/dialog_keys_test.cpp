// Tab and mnemonics across a dialog and its page, with messages as the loop of a host has them.
#include "dialog/template_window.h"

#include <algorithm>

namespace {

enum Id { idBefore = 10, idTab = 20, idSave = 30, idAfter = 40, idPage = 50 };

INT_PTR CALLBACK PlainDialog(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

// A control that counts its clicks and keys and tells a code of the test's.
struct Codes {
    LRESULT code;
    int     clicks;
    HWND    destroyed; // by a click, or by the message below
    UINT    at;
    int     tabs;
    int     altKeys;
};
Codes gCodes;

// Destroys what a test wants destroyed, once, when its message comes.
void DestroyAt(UINT message)
{
    if (gCodes.destroyed && message == (gCodes.at ? gCodes.at : HBM_CLICK)) {
        const HWND victim = gCodes.destroyed;
        gCodes.destroyed = nullptr;
        DestroyWindow(victim);
    }
}

LRESULT CALLBACK CodedProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    gCodes.clicks += message == HBM_CLICK;
    gCodes.tabs += message == WM_KEYDOWN && wParam == VK_TAB;
    gCodes.altKeys += message == WM_SYSKEYDOWN;
    DestroyAt(message);
    switch (message) {
    case WM_GETDLGCODE: return gCodes.code;
    case HBM_CLICK: return 1;
    default: return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

// What dialogs are told of moves, of the focus and of their buttons.
struct Note {
    HWND   hwnd;
    UINT   message;
    WPARAM wParam;
    LPARAM lParam;

    bool operator==(const Note&) const = default;
};
std::vector<Note> gNotes;
WPARAM            gShift; // the high byte of Shift's state during the last move

bool IsNoted(UINT message, WPARAM wParam)
{
    return message == WM_NEXTDLGCTL || (message == WM_COMMAND && (wParam == IDOK || wParam == IDCANCEL));
}

LRESULT CALLBACK NotingDialog(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (IsNoted(message, wParam)) {
        gNotes.push_back({ hwnd, message, wParam, message == WM_NEXTDLGCTL ? lParam : 0 });
        gShift = HIBYTE(GetKeyState(VK_SHIFT));
    }
    if (message == WM_SETFOCUS) {
        gNotes.push_back({ hwnd, message, 0, 0 });
    }
    return DefDlgProcA(hwnd, message, wParam, lParam);
}

WPARAM ToControl(HWND control)
{
    return reinterpret_cast<WPARAM>(control);
}

// A dialog with a button before its tab control and one behind, and a page with controls of a test's choice.
class TabDialog : public TemplateWindow {
protected:
    TabDialog()
    {
        gCodes = {};
        gNotes.clear();
        RegisterControl(0, CodedProc, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr, "Coded");
        dialog = MakeDialog(parent.hwnd(), WS_POPUP | WS_VISIBLE, 300, 200);
        Add(dialog, "BUTTON", "&Before", idBefore, WS_TABSTOP);
        tab = Add(dialog, "SysTabControl32", "", idTab, WS_TABSTOP);
        page = MakeDialog(dialog, WS_CHILD | WS_VISIBLE, 200, 100);
        SetWindowLongA(page, GWL_ID, idPage);
        Add(dialog, "BUTTON", "&After", idAfter, WS_TABSTOP);
        PumpThrough([this](MSG* msg) { return IsTabDlgMessage(dialog, page, idTab, msg) != 0; });
        SetForegroundWindow(dialog);
        PumpPending();
    }
    ~TabDialog() override
    {
        PumpThrough({});
        DestroyWindow(dialog);
        PumpPending();
        UnregisterClassA("Coded", GetModuleHandleA(nullptr));
    }

    static HWND MakeDialog(HWND owner, DWORD style, SHORT cx, SHORT cy)
    {
        TestTemplate from;
        from.style = style;
        from.cx = cx;
        from.cy = cy;
        Bytes bytes = BytesOf(from);
        std::memset(&bytes[4], 0, sizeof(DWORD)); // of the extended style
        return CreateDialogIndirectParamA(GetModuleHandleA(nullptr), reinterpret_cast<LPCDLGTEMPLATEA>(bytes.data()),
                                          owner, PlainDialog, 0);
    }

    static HWND Add(HWND to, const char* className, const char* text, int id, DWORD style = 0)
    {
        return CreateWindowExA(0, className, text, WS_CHILD | WS_VISIBLE | style, 5, id * 4 % 150, 60, 20, to,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr), nullptr);
    }

    // Three edits that Tab reaches, between statics that it doesn't.
    void FillPage()
    {
        Add(page, "STATIC", "label", 100);
        for (int id = 101; id <= 103; ++id) {
            Add(page, "EDIT", "", id, WS_TABSTOP);
            Add(page, "STATIC", "label", id + 10);
        }
    }

    // From here on. The dialogs' own procedure goes on to see everything.
    void NoteDialogs()
    {
        SubclassWW(dialog, NotingDialog);
        SubclassWW(page, NotingDialog);
    }

    HWND OnPage(int id) const { return GetDlgItem(page, id); }
    HWND OnDialog(int id) const { return GetDlgItem(dialog, id); }
    int  FocusId() const { return GetDlgCtrlID(GetFocus()); }

    // Passes a key with its message alone: 1 if it was used.
    BOOL Pass(HWND hwnd, UINT message, WPARAM key)
    {
        MSG msg = { hwnd, message, key, message == WM_SYSKEYDOWN ? 0x20000001 : 1, 0, {} };
        return IsTabDlgMessage(dialog, page, idTab, &msg);
    }
    BOOL PassAlt(int vk) { return Pass(GetFocus(), WM_SYSKEYDOWN, static_cast<WPARAM>(vk)); }

    HWND dialog;
    HWND tab;
    HWND page;
};

TEST_F(TabDialog, TabGoesThroughThePage)
{
    FillPage();
    SetFocus(OnPage(101));
    TypeKey(VK_TAB);
    EXPECT_EQ(102, FocusId());
    TypeKey(VK_TAB);
    EXPECT_EQ(103, FocusId());
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ(102, FocusId());
}

TEST_F(TabDialog, TabOnTheLastControlOfThePageGoesBehindTheTab)
{
    FillPage();
    SetFocus(OnPage(103));
    TypeKey(VK_TAB);
    EXPECT_EQ(idAfter, FocusId());
}

TEST_F(TabDialog, BackTabOnTheFirstControlOfThePageGoesToTheTab)
{
    FillPage();
    SetFocus(OnPage(101));
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ(tab, GetFocus());
}

TEST_F(TabDialog, TabOnTheTabGoesToTheFirstTabStopOfThePage)
{
    FillPage();
    SetFocus(tab);
    TypeKey(VK_TAB);
    EXPECT_EQ(101, FocusId());
}

TEST_F(TabDialog, BackTabOnTheTabGoesToTheLastTabStopOfThePage)
{
    FillPage();
    SetFocus(tab);
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ(103, FocusId());
}

TEST_F(TabDialog, TabGoesAllTheWayRound)
{
    FillPage();
    SetFocus(OnDialog(idBefore));
    std::vector<int> ids;
    for (int i = 0; i < 6; ++i) {
        TypeKey(VK_TAB);
        ids.push_back(FocusId());
    }
    EXPECT_EQ((std::vector<int>{ idTab, 101, 102, 103, idAfter, idBefore }), ids);
}

TEST_F(TabDialog, OnlyControlOfAPageIsLeftEitherWay)
{
    Add(page, "EDIT", "", 101, WS_TABSTOP);
    SetFocus(OnPage(101));
    TypeKey(VK_TAB);
    EXPECT_EQ(idAfter, FocusId());
    SetFocus(OnPage(101));
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ(tab, GetFocus());
}

TEST_F(TabDialog, TabPassesWhatIsHiddenDisabledOrNoTabStop)
{
    FillPage();
    Add(page, "EDIT", "", 104, WS_TABSTOP);
    EnableWindow(OnPage(102), FALSE);
    ShowWindow(OnPage(103), SW_HIDE);
    SetFocus(OnPage(101));
    TypeKey(VK_TAB);
    EXPECT_EQ(104, FocusId());
    TypeKey(VK_TAB);
    EXPECT_EQ(idAfter, FocusId());
}

TEST_F(TabDialog, TabInAComboGoesOnFromTheCombo)
{
    Add(page, "HComb", "%ss", 101, WS_TABSTOP | HCS_DROPDOWN | HCS_EDIT);
    Add(page, "HEdit", "%ss", 102, WS_TABSTOP);
    SetFocus(OnPage(101));
    EXPECT_EQ(OnPage(101), GetParent(GetFocus()));
    TypeKey(VK_TAB);
    EXPECT_EQ(102, FocusId());
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ(OnPage(101), GetParent(GetFocus()));
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ(tab, GetFocus());
}

TEST_F(TabDialog, TabOfAControlThatWantsItIsTheControls)
{
    for (const LRESULT code : { DLGC_WANTTAB, DLGC_WANTALLKEYS }) {
        gCodes.code = code;
        const HWND wanting = Add(page, "Coded", "", 101, WS_TABSTOP);
        Add(page, "EDIT", "", 102, WS_TABSTOP);
        gCodes.tabs = 0;
        SetFocus(wanting);
        TypeKey(VK_TAB);
        EXPECT_EQ(wanting, GetFocus()) << code;
        EXPECT_EQ(1, gCodes.tabs) << code;
        ClearDialog(page);
    }
}

TEST_F(TabDialog, MoveInsideThePageIsAskedForByItsDirection)
{
    FillPage();
    SetFocus(OnPage(102));
    NoteDialogs();
    TypeKey(VK_TAB);
    EXPECT_EQ((std::vector<Note>{ { page, WM_NEXTDLGCTL, 0, 0 } }), gNotes);
    gNotes.clear();
    TypeKey(VK_TAB, withShift);
    EXPECT_NE(0u, gShift);
    EXPECT_EQ((std::vector<Note>{ { page, WM_NEXTDLGCTL, gShift, 0 } }), gNotes);
}

TEST_F(TabDialog, MoveOutOfThePageIsAskedOfTheDialog)
{
    FillPage();
    SetFocus(OnPage(103));
    NoteDialogs();
    TypeKey(VK_TAB);
    EXPECT_EQ((std::vector<Note>{ { dialog, WM_NEXTDLGCTL, ToControl(OnDialog(idAfter)), 1 } }), gNotes);
    SetFocus(OnPage(101));
    gNotes.clear();
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ((std::vector<Note>{ { dialog, WM_NEXTDLGCTL, ToControl(tab), 1 } }), gNotes);
}

TEST_F(TabDialog, MoveIntoThePageGivesThePageTheFocusFirst)
{
    FillPage();
    SetFocus(tab);
    NoteDialogs();
    TypeKey(VK_TAB);
    EXPECT_EQ((std::vector<Note>{ { page, WM_SETFOCUS, 0, 0 }, { page, WM_NEXTDLGCTL, ToControl(OnPage(101)), 1 } }),
              gNotes);
}

TEST_F(TabDialog, TabIsOfferedToTheDirectChildOfThePageAlone)
{
    const HWND outer = Add(page, "STATIC", "", 105, WS_TABSTOP);
    const HWND inner = Add(outer, "Coded", "", 106);
    FillPage();
    gCodes.code = DLGC_WANTTAB;
    SetFocus(inner);
    NoteDialogs();
    EXPECT_EQ(1, Pass(inner, WM_KEYDOWN, VK_TAB));
    EXPECT_EQ((std::vector<Note>{ { page, WM_NEXTDLGCTL, 0, 0 } }), gNotes);
    EXPECT_EQ(0, gCodes.tabs);
}

TEST_F(TabDialog, TabOfThePageItselfStaysInThePage)
{
    FillPage();
    SetFocus(OnPage(103));
    EXPECT_EQ(1, Pass(page, WM_KEYDOWN, VK_TAB));
    EXPECT_EQ(101, FocusId());
}

TEST_F(TabDialog, WithoutAPageIsAnOrdinaryDialog)
{
    FillPage();
    SetFocus(OnDialog(idBefore));
    MSG msg = { OnDialog(idBefore), WM_KEYDOWN, VK_TAB, 1, 0, {} };
    EXPECT_NE(0, IsTabDlgMessage(dialog, nullptr, idTab, &msg));
    EXPECT_EQ(tab, GetFocus());
    msg.hwnd = tab;
    EXPECT_NE(0, IsTabDlgMessage(dialog, nullptr, idTab, &msg));
    EXPECT_EQ(idAfter, FocusId());
}

TEST_F(TabDialog, EmptyPageKeepsTheKeyAndFaultsNowhere)
{
    SetFocus(tab);
    EXPECT_EQ(1, Pass(tab, WM_KEYDOWN, VK_TAB));
    EXPECT_EQ(page, GetFocus());
}

TEST_F(TabDialog, LeavesMessagesOfOtherWindowsAlone)
{
    EXPECT_EQ(0, Pass(parent.hwnd(), WM_KEYDOWN, VK_TAB));
    EXPECT_EQ(0, Pass(parent.hwnd(), WM_SYSKEYDOWN, 'B'));
    EXPECT_EQ(0, Pass(nullptr, WM_KEYDOWN, VK_TAB));
}

TEST_F(TabDialog, WithoutAMessageUsesNothing)
{
    EXPECT_EQ(FALSE, IsTabDlgMessage(dialog, page, idTab, nullptr));
    EXPECT_EQ(FALSE, IsTabDlgMessage(dialog, nullptr, idTab, nullptr));
}

TEST_F(TabDialog, KeysThatAreNobodysGoToThePageThenToTheDialog)
{
    FillPage();
    SetFocus(OnPage(101));
    EXPECT_EQ(1, Pass(OnPage(101), WM_CHAR, 'x')) << "the page's";
    EXPECT_EQ("x", TextOf(OnPage(101)));
    EXPECT_EQ(1, Pass(OnDialog(idAfter), WM_NULL, 0)) << "the dialog's";
}

TEST_F(TabDialog, EnterAndEscapeAreThePagesOnThePageAndElseTheDialogs)
{
    constexpr struct {
        WPARAM key;
        WPARAM id;
    } rows[] = { { VK_RETURN, IDOK }, { VK_ESCAPE, IDCANCEL } };
    FillPage();
    Add(dialog, "EDIT", "", idSave, WS_TABSTOP);
    NoteDialogs();
    for (const auto& row : rows) {
        for (const HWND hwnd : { page, dialog }) {
            const HWND focus = hwnd == page ? OnPage(101) : OnDialog(idSave);
            SetFocus(focus);
            gNotes.clear();
            EXPECT_EQ(1, Pass(focus, WM_KEYDOWN, row.key)) << row.id;
            EXPECT_EQ((std::vector<Note>{ { hwnd, WM_COMMAND, row.id, 0 } }), gNotes) << row.id;
        }
    }
}

// Mnemonics

TEST_F(TabDialog, MnemonicReachesFromThePageToTheDialogAndBack)
{
    FillPage();
    Add(page, "HButt", "&Keep", 120, WS_TABSTOP | HBS_CHECK);
    Add(dialog, "HButt", "Sa&ve", idSave, WS_TABSTOP);
    SetFocus(OnPage(101));
    TypeKey('V', withAlt);
    EXPECT_EQ(idSave, FocusId());
    TypeKey('K', withAlt);
    EXPECT_EQ(120, FocusId());
}

TEST_F(TabDialog, MnemonicIsLookedForBehindTheFocusFirst)
{
    for (int id = 101; id <= 103; ++id) {
        Add(page, "HButt", "&Same", id, WS_TABSTOP);
    }
    SetFocus(OnPage(101));
    std::vector<int> ids;
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(1, PassAlt('S'));
        ids.push_back(FocusId());
    }
    EXPECT_EQ((std::vector<int>{ 102, 103, 101, 102 }), ids);
}

TEST_F(TabDialog, MnemonicOfTheFocusItselfIsTheLastOfTheCircle)
{
    gCodes.code = DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    SetFocus(Add(page, "Coded", "&Own", 101, WS_TABSTOP));
    EXPECT_EQ(1, PassAlt('O'));
    EXPECT_EQ(1, gCodes.clicks);
}

TEST_F(TabDialog, WithoutAMatchTheFocusStays)
{
    const HWND focus = Add(page, "Coded", "", 101, WS_TABSTOP);
    Add(page, "HButt", "&Keep", 120, WS_TABSTOP);
    SetFocus(focus);
    PassAlt('Q');
    EXPECT_EQ(focus, GetFocus());
    EXPECT_EQ(1, gCodes.altKeys) << "the key is the control's";
}

struct CodeRow {
    const char* what;
    LRESULT     code;
    int         clicks;
    bool        focused;
};

TEST_F(TabDialog, MnemonicClicksButtonsAndFocusesWhatIsNoPushButton)
{
    constexpr CodeRow rows[] = {
        { "push button", DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON, 1, false },
        { "default push button", DLGC_BUTTON | DLGC_DEFPUSHBUTTON, 1, false },
        { "check or radio", DLGC_BUTTON | DLGC_RADIOBUTTON, 1, true },
        { "push code of no button", DLGC_UNDEFPUSHBUTTON, 0, true },
        { "field", DLGC_WANTCHARS, 0, true },
        { "static", DLGC_STATIC, 0, true },
    };
    FillPage();
    const HWND coded = Add(page, "Coded", "A&ction", 120);
    for (const CodeRow& row : rows) {
        gCodes = { row.code, 0, nullptr, 0, 0, 0 };
        SetFocus(OnPage(101));
        EXPECT_EQ(1, PassAlt('C')) << row.what;
        EXPECT_EQ(row.clicks, gCodes.clicks) << row.what;
        EXPECT_EQ(row.focused ? coded : OnPage(101), GetFocus()) << row.what;
    }
}

struct TextRow {
    const char* text;
    int         key;
    bool        matches;
};

TEST_F(TabDialog, MnemonicIsTheCharacterBehindTheFirstMark)
{
    const std::string late = std::string(62, 'x') + "&Z";
    const std::string last = std::string(61, 'x') + "&Z";
    // clang-format off
    const TextRow rows[] = {
        { "&Go",    'G', true },  { "&go",         'G', true },  { "Let &go",     'G', true },
        { "Go",     'G', false }, { "Go&",         'G', false }, { "&Let &go",    'G', false },
        { "&7 days", '7', true }, { "&&G",         'G', false }, { "",            'G', false },
        { "&",      '0', false }, { late.c_str(),  'Z', false }, { last.c_str(),  'Z', true },
        { "&0 items", '0', true },
    };
    // clang-format on
    FillPage();
    const HWND coded = Add(page, "Coded", "", 120);
    for (const TextRow& row : rows) {
        gCodes = { DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON, 0, nullptr, 0, 0, 0 };
        SetWindowTextA(coded, row.text);
        SetFocus(OnPage(101));
        PassAlt(row.key);
        EXPECT_EQ(row.matches ? 1 : 0, gCodes.clicks) << row.text << " by " << static_cast<char>(row.key);
    }
}

TEST_F(TabDialog, MnemonicOfAButtonOfTheSystemUsesTheKeyUpAndDoesNothing)
{
    FillPage();
    SetFocus(OnPage(101));
    seen.Watch(dialog);
    for (const int key : { 'B', 'A' }) {
        EXPECT_EQ(1, PassAlt(key)) << static_cast<char>(key);
        EXPECT_EQ(101, FocusId()) << static_cast<char>(key);
    }
    EXPECT_NOTHING_SEEN() << "no button tells of a click";
}

TEST_F(TabDialog, MnemonicOfAHiddenControlIsNobodys)
{
    gCodes.code = DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    FillPage();
    ShowWindow(Add(page, "Coded", "&Go", 120), SW_HIDE);
    SetFocus(OnPage(101));
    PassAlt('G');
    EXPECT_EQ(0, gCodes.clicks);
}

TEST_F(TabDialog, KeysBelowDigitsAreNoMnemonics)
{
    gCodes.code = DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    FillPage();
    Add(page, "Coded", "&/", 120);
    SetFocus(OnPage(101));
    PassAlt('/');
    EXPECT_EQ(0, gCodes.clicks);
}

TEST_F(TabDialog, ClickMayDestroyTheControlOrTheDialog)
{
    FillPage();
    const HWND coded = Add(page, "Coded", "&Go", 120);
    gCodes = { DLGC_BUTTON, 0, coded, 0, 0, 0 };
    SetFocus(OnPage(101));
    EXPECT_EQ(1, PassAlt('G'));
    EXPECT_FALSE(IsWindow(coded));

    Add(page, "Coded", "&Go", 121);
    gCodes = { DLGC_BUTTON, 0, dialog, 0, 0, 0 };
    SetFocus(OnPage(101));
    EXPECT_EQ(1, PassAlt('G'));
    EXPECT_FALSE(IsWindow(dialog));
}

struct DestroyRow {
    const char* what;
    UINT        at;
    UINT        message;
    WPARAM      key;
    bool        wholeDialog;
};

TEST_F(TabDialog, ControlMayDestroyThePageOrTheDialogInAnyMessage)
{
    constexpr DestroyRow rows[] = {
        { "the page when asked for its code", WM_GETDLGCODE, WM_KEYDOWN, VK_TAB, false },
        { "the page when it loses the focus", WM_KILLFOCUS, WM_KEYDOWN, VK_TAB, false },
        { "the page when asked for its text", WM_GETTEXT, WM_SYSKEYDOWN, 'Q', false },
        { "the page when asked what it is", WM_GETDLGCODE, WM_SYSKEYDOWN, 'G', false },
        { "the dialog when asked for its code", WM_GETDLGCODE, WM_KEYDOWN, VK_TAB, true },
    };
    for (const DestroyRow& row : rows) {
        gCodes = {};
        const HWND coded = Add(page, "Coded", "&Go", 101, WS_TABSTOP);
        SetFocus(coded);
        gCodes = { 0, 0, row.wholeDialog ? dialog : page, row.at, 0, 0 };
        const HWND victim = gCodes.destroyed;
        Pass(coded, row.message, row.key);
        EXPECT_EQ(nullptr, gCodes.destroyed) << row.what << ": the message has come";
        EXPECT_FALSE(IsWindow(victim)) << row.what;
        page = MakeDialog(dialog, WS_CHILD | WS_VISIBLE, 200, 100);
    }
}

TEST_F(TabDialog, TabMayLoseThePageByItsFocus)
{
    gCodes = {};
    DestroyWindow(tab);
    tab = Add(dialog, "Coded", "", idTab, WS_TABSTOP);
    Add(page, "EDIT", "", 101, WS_TABSTOP);
    SetFocus(tab);
    gCodes = { 0, 0, page, WM_KILLFOCUS, 0, 0 };
    EXPECT_EQ(1, Pass(tab, WM_KEYDOWN, VK_TAB));
    EXPECT_FALSE(IsWindow(page));
}

TEST_F(TabDialog, CallbackWithoutAMessageWalksOn)
{
    EXPECT_EQ(TRUE, IsMnemonic(tab, 0));
    EXPECT_EQ(TRUE, EnumChildWindows(dialog, IsMnemonic, 0));
}

TEST_F(TabDialog, CallbackWalksAnyChildren)
{
    gCodes.code = DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON;
    const HWND focus = Add(page, "EDIT", "", 101);
    const HWND coded = Add(page, "Coded", "&Go", 102);
    Pass(focus, WM_SYSKEYDOWN, 'Q'); // a walk to its end
    MSG msg = { focus, WM_SYSKEYDOWN, 'G', 0, 0, {} };
    EXPECT_EQ(TRUE, IsMnemonic(focus, reinterpret_cast<LPARAM>(&msg))) << "starts behind it";
    EXPECT_EQ(FALSE, IsMnemonic(coded, reinterpret_cast<LPARAM>(&msg)));
    EXPECT_EQ(1, gCodes.clicks);
    EXPECT_EQ(TRUE, IsMnemonic(focus, reinterpret_cast<LPARAM>(&msg))) << "closes the circle";
    EXPECT_EQ(TRUE, IsMnemonic(coded, reinterpret_cast<LPARAM>(&msg)));
    EXPECT_EQ(1, gCodes.clicks);
}

} // namespace
