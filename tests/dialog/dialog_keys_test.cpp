// Tab and mnemonics across a dialog and its page, with messages as the loop of a host has them.
#include "dialog/template_window.h"

#include <algorithm>

namespace {

enum Id { idBefore = 10, idTab = 20, idSave = 30, idAfter = 40, idPage = 50 };

INT_PTR CALLBACK PlainDialog(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

// A control that counts its clicks and tells a code of the test's.
struct Codes {
    LRESULT code;
    int     clicks;
    HWND    destroyed; // by a click
};
Codes gCodes;

LRESULT CALLBACK CodedProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_GETDLGCODE: return gCodes.code;
    case HBM_CLICK:
        ++gCodes.clicks;
        if (gCodes.destroyed) {
            DestroyWindow(gCodes.destroyed);
        }
        return 1;
    default: return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

// A page that counts the moves that it is asked for, and notes the last one.
LRESULT CALLBACK NotingPage(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_NEXTDLGCTL) {
        return DefDlgProcA(hwnd, message, wParam, lParam);
    }
    gCodes.code = MAKELONG(wParam != 0, lParam);
    ++gCodes.clicks;
    return 0;
}

// A dialog with a button before its tab control and one behind, and a page with controls of a test's choice.
class TabDialog : public TemplateWindow {
protected:
    TabDialog()
    {
        gCodes = {};
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
        SetFocus(wanting);
        TypeKey(VK_TAB);
        EXPECT_EQ(wanting, GetFocus()) << code;
        ClearDialog(page);
    }
}

TEST_F(TabDialog, MoveInsideThePageIsAskedForByItsDirection)
{
    FillPage();
    SetFocus(OnPage(102));
    const WNDPROC old = SubclassWW(page, NotingPage);
    TypeKey(VK_TAB);
    EXPECT_EQ(MAKELONG(0, 0), gCodes.code);
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ(MAKELONG(1, 0), gCodes.code);
    EXPECT_EQ(2, gCodes.clicks);
    SubclassWW(page, old);
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
    EXPECT_TRUE(IsWindow(page));
}

TEST_F(TabDialog, LeavesMessagesOfOtherWindowsAlone)
{
    EXPECT_EQ(0, Pass(parent.hwnd(), WM_KEYDOWN, VK_TAB));
    EXPECT_EQ(0, Pass(parent.hwnd(), WM_SYSKEYDOWN, 'B'));
    EXPECT_EQ(0, Pass(nullptr, WM_KEYDOWN, VK_TAB));
}

TEST_F(TabDialog, KeysThatAreNobodysGoToThePageThenToTheDialog)
{
    FillPage();
    SetFocus(OnPage(101));
    EXPECT_EQ(1, Pass(OnPage(101), WM_CHAR, 'x')) << "the page's";
    EXPECT_EQ("x", TextOf(OnPage(101)));
    EXPECT_EQ(1, Pass(OnDialog(idAfter), WM_NULL, 0)) << "the dialog's";
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
    FillPage();
    Add(page, "HButt", "&Keep", 120, WS_TABSTOP);
    SetFocus(OnPage(102));
    PassAlt('Q');
    EXPECT_EQ(102, FocusId());
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
        gCodes = { row.code, 0, nullptr };
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
    };
    // clang-format on
    FillPage();
    const HWND coded = Add(page, "Coded", "", 120);
    for (const TextRow& row : rows) {
        gCodes = { DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON, 0, nullptr };
        SetWindowTextA(coded, row.text);
        SetFocus(OnPage(101));
        PassAlt(row.key);
        EXPECT_EQ(row.matches ? 1 : 0, gCodes.clicks) << row.text << " by " << static_cast<char>(row.key);
    }
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
    gCodes = { DLGC_BUTTON, 0, coded };
    SetFocus(OnPage(101));
    EXPECT_EQ(1, PassAlt('G'));
    EXPECT_FALSE(IsWindow(coded));

    Add(page, "Coded", "&Go", 121);
    gCodes = { DLGC_BUTTON, 0, dialog };
    SetFocus(OnPage(101));
    EXPECT_EQ(1, PassAlt('G'));
    EXPECT_FALSE(IsWindow(dialog));
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
