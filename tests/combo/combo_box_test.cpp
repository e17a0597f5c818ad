// The platform's combo-box messages, one by one and as a host's dialog uses them.
#include "combo_window.h"

#include <cstring>

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT;
constexpr DWORD fields = HCS_DROPDOWN;

class ComboBox : public ComboWindow {
protected:
    void MakeThree(DWORD style, const char* text = "%120%ss%nl")
    {
        Make(text, style);
        Add({ "apple", "pear", "plum" });
    }
};

TEST_F(ComboBox, ItemsAreFilledCountedAndReadBack)
{
    for (const DWORD style : { edits, fields }) {
        Make("%120%ss", style);
        EXPECT_EQ(0, SendPtr(CB_ADDSTRING, 0, "apple"));
        EXPECT_EQ(1, SendPtr(CB_ADDSTRING, 0, "plum"));
        EXPECT_EQ(1, SendPtr(CB_INSERTSTRING, 1, "pear"));
        EXPECT_EQ(3, Send(CB_GETCOUNT));
        char text[32] = "";
        EXPECT_EQ(4, SendPtr(CB_GETLBTEXT, 1, text));
        EXPECT_STREQ("pear", text);
        EXPECT_EQ(4, Send(CB_GETLBTEXTLEN, 2));
        EXPECT_EQ(1, Send(CB_DELETESTRING, 0));
        EXPECT_EQ("pear", ItemText(0));
        EXPECT_EQ(1, Send(CB_RESETCONTENT));
        EXPECT_EQ(0, Send(CB_GETCOUNT));
    }
}

TEST_F(ComboBox, SelectionIsSetAndShownInTheFace)
{
    for (const DWORD style : { edits, fields }) {
        MakeThree(style, "%120%ss");
        EXPECT_EQ(-1, Send(CB_GETCURSEL));
        EXPECT_EQ(1, Send(CB_SETCURSEL, 2));
        EXPECT_EQ(2, Send(CB_GETCURSEL));
        EXPECT_EQ("plum", Text());
        Send(CB_SETCURSEL, static_cast<WPARAM>(-1));
        EXPECT_EQ(-1, Send(CB_GETCURSEL));
        EXPECT_EQ("", Text());
        EXPECT_EQ(Ints(), Told()) << "a host that sets it isn't told of it";
    }
}

TEST_F(ComboBox, TextsAreFoundAndSelected)
{
    for (const DWORD style : { edits, fields }) {
        MakeThree(style, "%120%ss");
        EXPECT_EQ(1, SendPtr(CB_FINDSTRING, static_cast<WPARAM>(-1), "pe"));
        EXPECT_EQ(-1, SendPtr(CB_FINDSTRING, static_cast<WPARAM>(-1), "x"));
        EXPECT_EQ(2, SendPtr(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), "PLUM"));
        EXPECT_EQ(-1, SendPtr(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), "pl"));
        EXPECT_EQ(2, SendPtr(CB_SELECTSTRING, static_cast<WPARAM>(-1), "pl"));
        EXPECT_EQ(2, Send(CB_GETCURSEL));
        EXPECT_EQ("plum", Text());
    }
}

TEST_F(ComboBox, ItemDataIsTheCode)
{
    MakeThree(edits);
    EXPECT_EQ(1, Send(CB_SETITEMDATA, 1, 77));
    EXPECT_EQ(77, Send(CB_GETITEMDATA, 1));
    EXPECT_EQ(0, Send(CB_GETITEMDATA, 0)) << "a code that was never set is zero";
    Send(CB_SETITEMDATA, 1, -5);
    EXPECT_EQ(-5, Send(CB_GETITEMDATA, 1));
}

TEST_F(ComboBox, ItemDataOfAMissingItemIsAnError)
{
    MakeThree(edits);
    EXPECT_EQ(-1, Send(CB_GETITEMDATA, 3));
    EXPECT_EQ(-1, Send(CB_GETITEMDATA, static_cast<WPARAM>(-1)));
    EXPECT_EQ(0, Send(CB_SETITEMDATA, 3, 5));
    Make("%120%ss", edits);
    Add({ "apple" });
    EXPECT_EQ(-1, Send(CB_GETITEMDATA, 0)) << "without codes";
    Make("%ss", edits);
    EXPECT_EQ(-1, Send(CB_GETITEMDATA, 0)) << "without a list";
}

TEST_F(ComboBox, CodesOfOtherSizesAreBounded)
{
    Make("%120%ss%ss", edits);
    HCAddItemEx(combo, "apple", "a long code of text");
    int first = 0;
    std::memcpy(&first, "a lo", sizeof first);
    EXPECT_EQ(first, static_cast<int>(Send(CB_GETITEMDATA, 0)));
    Send(CB_SETITEMDATA, 0, 'x');
    char code[32] = "";
    SendPtr(HLM_GETCODE, 0, code);
    EXPECT_STREQ("x", code);
    Make("%120%ss%nf", edits);
    Add({ "apple" });
    EXPECT_EQ(1, Send(CB_SETITEMDATA, 0, 12)) << "bits of a number";
    EXPECT_EQ(12, Send(CB_GETITEMDATA, 0));
}

TEST_F(ComboBox, EditIsLimitedAndSelected)
{
    Make("%120%ss", edits);
    EXPECT_EQ(1, Send(CB_LIMITTEXT, 4));
    EXPECT_EQ(4, Send(HEM_GETLIMIT));
    SendPtr(WM_SETTEXT, 0, "abcd");
    EXPECT_EQ(1, Send(CB_SETEDITSEL, 0, MAKELPARAM(1, 3)));
    DWORD from = 99;
    DWORD to = 99;
    EXPECT_EQ(MAKELRESULT(1, 3), Send(CB_GETEDITSEL, reinterpret_cast<WPARAM>(&from), AsParam(&to)));
    EXPECT_EQ(1u, from);
    EXPECT_EQ(3u, to);
    Send(CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
    EXPECT_EQ(MAKELRESULT(0, 4), Send(CB_GETEDITSEL));
}

TEST_F(ComboBox, EditSelectionMessagesReachTheEdit)
{
    Make("%120%ss", edits);
    SendPtr(WM_SETTEXT, 0, "abcd");
    EXPECT_EQ(1, Send(EM_SETSEL, 2, 3));
    EXPECT_EQ(MAKELRESULT(2, 3), Send(EM_GETSEL));
    EXPECT_EQ(MAKELRESULT(2, 3), ToFace(EM_GETSEL));
}

TEST_F(ComboBox, FieldHasNoEditSelection)
{
    Make("%120%ss", fields);
    EXPECT_EQ(0, Send(CB_GETEDITSEL));
    EXPECT_EQ(0, Send(CB_SETEDITSEL, 0, MAKELPARAM(1, 3)));
    EXPECT_EQ(0, Send(CB_LIMITTEXT, 4));
}

TEST_F(ComboBox, ListOpensAndCloses)
{
    MakeThree(edits);
    EXPECT_EQ(0, Send(CB_GETDROPPEDSTATE));
    EXPECT_EQ(1, Send(CB_SHOWDROPDOWN, TRUE));
    EXPECT_EQ(1, Send(CB_GETDROPPEDSTATE));
    EXPECT_TRUE(IsWindowVisible(List()));
    EXPECT_EQ((Ints{ HCN_DROPDOWN }), Told());
    EXPECT_EQ(1, Send(CB_SHOWDROPDOWN, FALSE));
    EXPECT_EQ(0, Send(CB_GETDROPPEDSTATE));
    EXPECT_EQ((Ints{ HCN_CLOSEUP }), Told());
}

TEST_F(ComboBox, RectangleOfTheListIsTold)
{
    MakeThree(edits);
    RECT told = {};
    RECT window = {};
    EXPECT_EQ(0, SendPtr(CB_GETDROPPEDCONTROLRECT, 0, &told));
    GetWindowRect(List(), &window);
    EXPECT_EQ(Corners(window), Corners(told));
    Make("%ss", edits);
    RECT untouched = { 1, 2, 3, 4 };
    EXPECT_EQ(0, SendPtr(CB_GETDROPPEDCONTROLRECT, 0, &untouched));
    EXPECT_EQ((Ints{ 1, 2, 3, 4 }), Corners(untouched));
}

TEST_F(ComboBox, ItemHeightOfARowIsRefused)
{
    MakeThree(edits);
    const std::vector<int> place = PlaceOf(combo);
    EXPECT_EQ(-1, Send(CB_SETITEMHEIGHT, 0, 40));
    EXPECT_EQ(place, PlaceOf(combo));
}

TEST_F(ComboBox, ItemHeightOfTheFaceMovesADropCombo)
{
    MakeThree(edits);
    EXPECT_EQ(1, Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), 30));
    EXPECT_EQ((Ints{ 10, 10, 170, 40 }), PlaceOf(combo));
}

TEST_F(ComboBox, ItemHeightLaysASimpleComboOutAnew)
{
    Make("%120%ss", HCS_EDIT, 160, 120);
    const std::vector<int> list = PlaceOf(List());
    EXPECT_EQ(1, Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), 30));
    EXPECT_EQ(list, PlaceOf(List()));
    EXPECT_EQ((Ints{ 10, 10, 170, 130 }), PlaceOf(combo));
}

TEST_F(ComboBox, ItemHeightsAreThoseOfFaceAndRow)
{
    MakeThree(edits);
    RECT face = {};
    GetWindowRect(Face(), &face);
    EXPECT_EQ(face.bottom - face.top, Send(CB_GETITEMHEIGHT, static_cast<WPARAM>(-1)));
    EXPECT_EQ(Ctl()->pDrop->cyRow, Send(CB_GETITEMHEIGHT, 0));
}

TEST_F(ComboBox, ThereIsNoExtendedInterface)
{
    MakeThree(edits);
    EXPECT_EQ(-1, Send(CB_SETEXTENDEDUI, 1));
    EXPECT_EQ(0, Send(CB_GETEXTENDEDUI));
}

// A dialog

constexpr int dialogEdit = 1001;
constexpr int dialogList = 1002;

// What a resource compiler makes of a template, with the class of the combo in place of the system's.
class Template {
public:
    Template()
    {
        Dword(DS_SETFONT | WS_POPUP | WS_CAPTION);
        Dword(0);
        Word(2);
        Place(0, 0, 160, 100);
        Word(0);
        Word(0);
        Text(L"Combos");
        Word(8);
        Text(L"MS Shell Dlg");
        Item(dialogEdit, HCS_DROPDOWN | HCS_EDIT | WS_VSCROLL | WS_TABSTOP);
        Item(dialogList, HCS_DROPDOWN | WS_VSCROLL | WS_TABSTOP);
    }
    const DLGTEMPLATE* Get() const { return reinterpret_cast<const DLGTEMPLATE*>(words_.data()); }

private:
    void Word(int value) { words_.push_back(static_cast<WORD>(value)); }
    void Dword(DWORD value)
    {
        words_.push_back(LOWORD(value));
        words_.push_back(HIWORD(value));
    }
    void Text(const wchar_t* text)
    {
        do {
            words_.push_back(static_cast<WORD>(*text));
        } while (*text++);
    }
    void Place(int x, int y, int width, int height)
    {
        for (const int value : { x, y, width, height }) {
            Word(value);
        }
    }
    void Item(int id, DWORD style)
    {
        if (words_.size() % 2) {
            Word(0);
        }
        Dword(style | WS_CHILD | WS_VISIBLE);
        Dword(0);
        Place(10, id == dialogEdit ? 10 : 40, 120, 12);
        Word(id);
        Text(L"HComb");
        Text(L"%120%ss%nl");
        Word(0);
    }

    std::vector<WORD> words_;
};

// A host's code, as it would be written for combo boxes.
void FillFruits(HWND dialog, int id)
{
    SendDlgItemMessageA(dialog, id, CB_RESETCONTENT, 0, 0);
    for (const char* name : { "apple", "pear", "plum" }) {
        const LRESULT at = SendDlgItemMessageA(dialog, id, CB_ADDSTRING, 0, AsParam(name));
        SendDlgItemMessageA(dialog, id, CB_SETITEMDATA, static_cast<WPARAM>(at), 100 + at);
    }
    SendDlgItemMessageA(dialog, id, CB_SETCURSEL, 1, 0);
}

INT_PTR CALLBACK FruitDialog(HWND dialog, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG) {
        return FALSE;
    }
    FillFruits(dialog, dialogEdit);
    FillFruits(dialog, dialogList);
    return TRUE;
}

class ComboDialog : public ComboWindow {
protected:
    ComboDialog()
        : dialog(CreateDialogIndirectParamA(GetModuleHandleA(nullptr), Template().Get(), parent.hwnd(), FruitDialog, 0))
    {
        ShowWindow(dialog, SW_SHOW);
        PumpPending();
    }
    ~ComboDialog() override
    {
        PumpForDialog(nullptr);
        DestroyWindow(dialog);
    }
    LRESULT Ask(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return SendDlgItemMessageA(dialog, id, message, wParam, lParam);
    }

    HWND dialog;
};

TEST_F(ComboDialog, CodeForComboBoxesWorksUnchanged)
{
    ASSERT_NE(nullptr, dialog);
    for (const int id : { dialogEdit, dialogList }) {
        EXPECT_EQ(3, Ask(id, CB_GETCOUNT)) << id;
        const LRESULT current = Ask(id, CB_GETCURSEL);
        EXPECT_EQ(1, current) << id;
        EXPECT_EQ(101, Ask(id, CB_GETITEMDATA, static_cast<WPARAM>(current))) << id;
        char text[64] = "";
        EXPECT_EQ(4u, GetDlgItemTextA(dialog, id, text, sizeof text)) << id;
        EXPECT_STREQ("pear", text) << id;
        EXPECT_EQ(4, Ask(id, CB_GETLBTEXTLEN, static_cast<WPARAM>(current))) << id;
        Ask(id, CB_GETLBTEXT, 2, AsParam(text));
        EXPECT_STREQ("plum", text) << id;
        EXPECT_EQ(0, Ask(id, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), AsParam("apple"))) << id;
        EXPECT_EQ(2, Ask(id, CB_SELECTSTRING, static_cast<WPARAM>(-1), AsParam("pl"))) << id;
        GetDlgItemTextA(dialog, id, text, sizeof text);
        EXPECT_STREQ("plum", text) << id;
    }
    Ask(dialogEdit, CB_LIMITTEXT, 5);
    EXPECT_EQ(5, Ask(dialogEdit, HEM_GETLIMIT));
    SetDlgItemTextA(dialog, dialogEdit, "fig");
    char text[64] = "";
    GetDlgItemTextA(dialog, dialogEdit, text, sizeof text);
    EXPECT_STREQ("fig", text);
}

TEST_F(ComboDialog, TabGoesFromComboToCombo)
{
    PumpForDialog(dialog);
    SetFocus(GetDlgItem(dialog, dialogEdit));
    EXPECT_EQ(RecordOf<HCombCtl>(GetDlgItem(dialog, dialogEdit))->hChild, GetFocus());
    TypeKey(VK_TAB);
    EXPECT_EQ(RecordOf<HCombCtl>(GetDlgItem(dialog, dialogList))->hChild, GetFocus());
    TypeKey(VK_TAB, withShift);
    EXPECT_EQ(RecordOf<HCombCtl>(GetDlgItem(dialog, dialogEdit))->hChild, GetFocus());
}

} // namespace
