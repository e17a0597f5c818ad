// What a combo is made of: its parts by style and window text, and their styles.
#include "combo_window.h"
#include "foundation/screen.h"
#include "foundation/startup.h"
#include "support/block_leaks.h"
#include "support/guarded_memory.h"

namespace {

class ComboCreate : public ComboWindow {
protected:
    static DWORD       StyleOf(HWND part) { return static_cast<DWORD>(SendMessageA(part, WWM_GETSTYLE, 0, 0)); }
    static std::string ClassOf(HWND hwnd)
    {
        char name[32] = "";
        GetClassNameA(hwnd, name, sizeof name);
        return name;
    }
};

TEST_F(ComboCreate, ClassHasTheStyleWordsAndBackgroundOfACombo)
{
    WNDCLASSA info = {};
    ASSERT_TRUE(GetClassInfoA(hInstance, "HComb", &info));
    EXPECT_EQ(0x4003u, info.style);
    EXPECT_EQ(static_cast<int>(2 * sizeof(LONG_PTR)), info.cbWndExtra);
    EXPECT_EQ(reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), info.hbrBackground);
    EXPECT_EQ(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)), info.hCursor);
    EXPECT_EQ(HCombWnd, info.lpfnWndProc);
}

TEST_F(ComboCreate, EditComboHasAnEditAndAFloatingList)
{
    Make("%120%ss", HCS_DROPDOWN | HCS_EDIT);
    EXPECT_EQ("HEdit_SS", ClassOf(Face()));
    EXPECT_EQ(comboEditId, GetDlgCtrlID(Face()));
    EXPECT_EQ("HDrop", ClassOf(List()));
    EXPECT_EQ(comboListId, GetDlgCtrlID(List()));
    EXPECT_EQ(combo, GetParent(Face()));
    EXPECT_FALSE(IsChild(combo, List()));
    EXPECT_FALSE(IsWindowVisible(List()));
    EXPECT_TRUE(GetWindowLongA(List(), GWL_EXSTYLE) & WS_EX_TOOLWINDOW); // Wine has no children that are topmost
    EXPECT_EQ(combo, Ctl()->pDrop->hParent) << "the list notifies the combo";
}

TEST_F(ComboCreate, FieldComboHasAFieldList)
{
    Make("%120%ss", HCS_DROPDOWN);
    EXPECT_EQ("HList", ClassOf(Face()));
    EXPECT_EQ(comboFieldId, GetDlgCtrlID(Face()));
    EXPECT_TRUE(StyleOf(Face()) & HLS_FIELD);
    EXPECT_TRUE(StyleOf(Face()) & HLS_NOSCROLL);
}

TEST_F(ComboCreate, WithoutHCSDropdownTheListLiesInTheCombo)
{
    Make("%120%ss", HCS_EDIT, 160, 120);
    EXPECT_EQ("HDrop", ClassOf(List()));
    EXPECT_EQ(combo, GetParent(List()));
    EXPECT_TRUE(IsWindowVisible(List()));
}

TEST_F(ComboCreate, TextWithoutAHeightGivesNoListAndNoDropButton)
{
    for (const char* text : { "%ss", "", "%0%ss", "#ss" }) {
        Make(text, HCS_DROPDOWN | HCS_EDIT);
        ASSERT_NE(nullptr, Ctl()) << text;
        EXPECT_EQ(nullptr, List()) << text;
        EXPECT_FALSE(HCHasDropButton(Ctl())) << text;
        EXPECT_EQ(0u, Ctl()->chCodeType) << text;
        EXPECT_EQ(0, SendPtr(HLM_ADDITEM, 0, "x")) << text;
        EXPECT_EQ(-1, HCAddItemEx(combo, "x", nullptr)) << text;
        EXPECT_EQ(0, HCDeleteItems(combo, HLI_ALL, 0, nullptr)) << text;
        EXPECT_EQ(nullptr, HCGetList(combo)) << text;
    }
}

TEST_F(ComboCreate, RecordKeepsPartsOptionsAndCodeType)
{
    Make("%120%ss%nl", HCS_DROPDOWN);
    EXPECT_EQ(RecordOf<HListCtl>(List()), Ctl()->pDrop);
    EXPECT_EQ(RecordOf<ControlHeader>(Face()), Ctl()->pChild);
    EXPECT_EQ(static_cast<DWORD>('l'), Ctl()->chCodeType);
    EXPECT_EQ(3u, Ctl()->wOptions);
    EXPECT_EQ(7u, Ctl()->wId);
    EXPECT_EQ(parent.hwnd(), Ctl()->hParent);
    EXPECT_EQ(Face(), reinterpret_cast<HWND>(GetWindowLongPtrA(List(), sizeof(LONG_PTR))));
}

struct SizeCase {
    const char* text;
    DWORD       style;
    int         height;
    int         width;
};

TEST_F(ComboCreate, HeadOfTheTextGivesHeightAndWidth)
{
    constexpr SizeCase cases[] = {
        { "%120%ss", HCS_DROPDOWN, 120, 0 },
        { "%120%300%ss", HCS_DROPDOWN, 120, 300 },
        { "#120#ss", HCS_DROPDOWN, 120, 0 },
        { "#120%300%ss", HCS_DROPDOWN, 120, 300 },
        { "%120%ss", HCS_DROPDOWN | HCS_STACKED, 120, 250 },
        { "%120%300%ss", HCS_DROPDOWN | HCS_STACKED, 120, 300 },
        { "%120%0%ss", HCS_DROPDOWN | HCS_STACKED, 120, 250 },
        { "%2%ss", HCS_DROPDOWN, 2, 0 },
        { "%1%ss", HCS_DROPDOWN, 72, 0 },
        { "%ss", HCS_DROPDOWN, 72, 0 },
    };
    for (const SizeCase& line : cases) {
        Make(line.text, line.style, 160, 24);
        EXPECT_EQ(line.height, Send(HCM_GETDROPHEIGHT)) << line.text;
        EXPECT_EQ(line.width, Send(HCM_GETDROPWIDTH)) << line.text;
    }
}

TEST_F(ComboCreate, ListOfALowComboGetsTheUsualHeight)
{
    Make("%ss", HCS_DROPDOWN, 160, 13);
    EXPECT_EQ(100, Send(HCM_GETDROPHEIGHT));
    Make("%ss", HCS_DROPDOWN, 160, 14);
    EXPECT_EQ(42, Send(HCM_GETDROPHEIGHT));
}

TEST_F(ComboCreate, PercentAtTheHeadHoldsTheCurrentItemByItsCode)
{
    Make("%120%ss%nl", HCS_DROPDOWN);
    EXPECT_TRUE(StyleOf(List()) & HLS_CODECURRENT);
    Make("#120%ss%nl", HCS_DROPDOWN);
    EXPECT_FALSE(StyleOf(List()) & HLS_CODECURRENT);
    EXPECT_EQ('l', Send(HLM_GETCODETYPE));
}

TEST_F(ComboCreate, NumberSignIsOverwrittenInTheCallersText)
{
    char          text[] = "#120%ss";
    CREATESTRUCTA create = {};
    create.lpszName = text;
    create.style = static_cast<LONG>(WS_CHILD | HCS_DROPDOWN);
    create.hwndParent = parent.hwnd();
    HCombCtl ctl = {};
    ctl.hWnd = parent.hwnd();
    ASSERT_TRUE(HCCreate(&ctl, create));
    EXPECT_STREQ("%120%ss", text);
    DestroyWindow(ctl.hChild);
    DestroyWindow(ctl.hDrop);
}

TEST_F(ComboCreate, NumberSignInAConstantTextStays)
{
    static const char* const text = "#120%ss"; // in memory that can't be written to
    CREATESTRUCTA            create = {};
    create.lpszName = text;
    create.style = static_cast<LONG>(WS_CHILD | HCS_DROPDOWN);
    create.hwndParent = parent.hwnd();
    HCombCtl ctl = {};
    ctl.hWnd = parent.hwnd();
    ASSERT_TRUE(HCCreate(&ctl, create));
    EXPECT_STREQ("#120%ss", text);
    EXPECT_FALSE(StyleOf(ctl.hDrop) & HLS_CODECURRENT);
    DestroyWindow(ctl.hChild);
    DestroyWindow(ctl.hDrop);
}

TEST_F(ComboCreate, NumberInPlaceOfATextIsNoText)
{
    CREATESTRUCTA create = {};
    create.lpszName = reinterpret_cast<const char*>(static_cast<INT_PTR>(17));
    create.style = static_cast<LONG>(WS_CHILD | HCS_DROPDOWN);
    create.hwndParent = parent.hwnd();
    HCombCtl ctl = {};
    ctl.hWnd = parent.hwnd();
    ASSERT_TRUE(HCCreate(&ctl, create));
    EXPECT_EQ(nullptr, ctl.hDrop);
    DestroyWindow(ctl.hChild);
}

struct StyleCase {
    DWORD combo;
    DWORD edit;
};

TEST_F(ComboCreate, StylesOfTheEditComeFromTheCombo)
{
    constexpr StyleCase cases[] = {
        { 0, HES_AUTOHSCROLL },
        { HCS_3DBORDER, HES_AUTOHSCROLL | HES_FRAME },
        { HCS_FOCUSBRUSH, HES_AUTOHSCROLL | HES_FOCUSBRUSH },
        { HCS_READONLY, HES_AUTOHSCROLL | HES_READONLY },
        { HCS_STATIC, HES_AUTOHSCROLL | HES_READONLY | HES_STATIC },
        { HCS_TABS, HES_AUTOHSCROLL },
    };
    for (const StyleCase& line : cases) {
        Make("%120%ss", HCS_DROPDOWN | HCS_EDIT | line.combo);
        EXPECT_EQ(line.edit, StyleOf(Face()) & 0xFFFF) << std::hex << line.combo;
    }
}

TEST_F(ComboCreate, DroppedListTracksTheMouseAndHasABorderOfItsOwn)
{
    Make("%120%ss", HCS_DROPDOWN | HCS_EDIT | HLS_SORTDATA);
    EXPECT_TRUE(StyleOf(List()) & HLS_HOTTRACK);
    EXPECT_TRUE(StyleOf(List()) & WS_BORDER);
    EXPECT_TRUE(StyleOf(List()) & HLS_SORTDATA) << "bits that the combo doesn't know are the list's";
    EXPECT_FALSE(StyleOf(List()) & (HLS_FIELD | HLS_MULTISEL | HLS_EXTSEL));
    Make("%120%ss", HCS_DROPDOWN | HCS_EDIT | HCS_3DBORDER);
    EXPECT_FALSE(StyleOf(List()) & WS_BORDER);
    EXPECT_TRUE(StyleOf(List()) & HLS_3DBORDER);
}

TEST_F(ComboCreate, ListThatLiesOpenDoesNotTrackTheMouse)
{
    Make("%120%ss%nl", HCS_EDIT, 160, 120);
    EXPECT_FALSE(StyleOf(List()) & (HLS_HOTTRACK | HLS_CODECURRENT | HLS_FIELD | HLS_MULTISEL));
}

TEST_F(ComboCreate, ScrollBarsAreTheListsAlone)
{
    for (const DWORD face : { 0, HCS_EDIT }) {
        Make("%120%ss", HCS_DROPDOWN | WS_VSCROLL | WS_HSCROLL | face);
        EXPECT_FALSE(GetWindowLongA(combo, GWL_STYLE) & (WS_VSCROLL | WS_HSCROLL));
        EXPECT_FALSE(Ctl()->dwStyle & (WS_VSCROLL | WS_HSCROLL));
        EXPECT_FALSE(GetWindowLongA(Face(), GWL_STYLE) & WS_VSCROLL);
        EXPECT_TRUE(StyleOf(List()) & WS_VSCROLL);
    }
}

TEST_F(ComboCreate, DisabledComboHasEnabledParts)
{
    Make("%120%ss", HCS_DROPDOWN | HCS_EDIT | WS_DISABLED);
    EXPECT_FALSE(IsWindowEnabled(combo));
    EXPECT_FALSE(GetWindowLongA(Face(), GWL_STYLE) & WS_DISABLED);
    EXPECT_FALSE(GetWindowLongA(List(), GWL_STYLE) & WS_DISABLED);
}

struct TypeCase {
    const char* text;
    char        editClass;
    char        editType;
    const char* format;
};

TEST_F(ComboCreate, EditGetsTheTypeTextWithoutTheCode)
{
    constexpr TypeCase cases[] = {
        { "%120%ni%nl*0.00*", 'n', 'i', "*0.00*" },
        { "%120%ni*0*", 'n', 'i', "*0*" },
        { "%120%dl%nimm/dd/yy", 'd', 'l', "mm/dd/yy" },
    };
    for (const TypeCase& line : cases) {
        Make(line.text);
        char format[64] = "";
        ToFace(HEM_GETFORMAT, sizeof format, AsParam(format));
        EXPECT_EQ(line.editClass, ToFace(HEM_GETCLASS)) << line.text;
        EXPECT_EQ(line.editType, ToFace(HEM_GETTYPE)) << line.text;
        EXPECT_STREQ(line.format, format) << line.text;
    }
}

TEST_F(ComboCreate, CreationRunsThroughOrEndsCleanlyWhateverAllocationFails)
{
    for (const DWORD style : { HCS_DROPDOWN, HCS_DROPDOWN | HCS_EDIT, 0, HCS_EDIT }) {
        const BlockLeakCheck blocks;
        int                  without = 0;
        for (FailEachAllocation each; each.Next();) {
            const HWND hwnd = CreateWindowExA(0, "HComb", "%120%300%ss%nl", WS_CHILD | static_cast<DWORD>(style), 0, 0,
                                              100, 100, parent.hwnd(), nullptr, GetModuleHandleA(nullptr), nullptr);
            EXPECT_NE(nullptr, hwnd) << "a combo without parts is a window that does nothing";
            without += RecordOf<HCombCtl>(hwnd) == nullptr;
            EXPECT_EQ(0, SendMessageA(hwnd, RecordOf<HCombCtl>(hwnd) ? CB_GETEXTENDEDUI : CB_GETCOUNT, 0, 0));
            DestroyWindow(hwnd);
            EXPECT_EQ(0, LiveDrops());
        }
        EXPECT_GT(without, 0) << style;
    }
}

TEST_F(ComboCreate, EveryBlockComesBack)
{
    for (const DWORD style : { HCS_DROPDOWN, HCS_DROPDOWN | HCS_EDIT, 0, HCS_EDIT }) {
        const BlockLeakCheck blocks;
        Make("%120%ss%nl", static_cast<DWORD>(style), 160, 120);
        Add({ "one", "two" });
        Send(HCM_SETDROP, 0);
        Send(HCM_SETDROP, 1);
        Send(CB_SHOWDROPDOWN, 1);
        End();
    }
}

TEST_F(ComboCreate, ParkedListGoesWithTheCombo)
{
    const BlockLeakCheck blocks;
    Make("%120%ss", HCS_DROPDOWN);
    Add({ "one" });
    Send(HCM_SETDROP, 0);
    End();
    EXPECT_EQ(0, LiveDrops());
}

TEST_F(ComboCreate, EditHasTheUpperStylesOfTheCombo)
{
    Make("%120%ss", HCS_DROPDOWN | HCS_EDIT | WS_TABSTOP | WS_BORDER | WS_DISABLED);
    const LONG style = GetWindowLongA(Face(), GWL_STYLE);
    EXPECT_TRUE(style & WS_TABSTOP);
    EXPECT_TRUE(style & WS_BORDER);
    EXPECT_FALSE(style & WS_DISABLED);
    Make("%120%ss", HCS_DROPDOWN | HCS_EDIT);
    EXPECT_FALSE(GetWindowLongA(Face(), GWL_STYLE) & (WS_TABSTOP | WS_BORDER));
}

TEST_F(ComboCreate, ListIsMadeInTheSizeOfTheText)
{
    for (const int dpi : { 96, 144 }) {
        nDpiX = nDpiY = dpi;
        Make("%120%300%ss", HCS_DROPDOWN | HLS_NOINTEGRAL);
        RECT list = {};
        GetWindowRect(List(), &list);
        EXPECT_EQ(300 * dpi / 96, list.right - list.left) << dpi;
        EXPECT_EQ(120 * dpi / 96, list.bottom - list.top) << dpi;
    }
    nDpiX = nDpiY = 96;
}

} // namespace
