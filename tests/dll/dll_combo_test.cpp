// Combos through the DLL: each exported function, and the messages by number.
#include "support/window_test.h"

#include <cstring>

namespace {

class DllCombo : public WindowTest {
protected:
    HWND MakeCombo(const char* text = "%120%ss%nl", DWORD style = HCS_DROPDOWN | HCS_EDIT)
    {
        combo = Create("HComb", text, style, 7, { 10, 10, 160, 24 });
        return combo;
    }
    int         Count() { return static_cast<int>(Send(combo, CB_GETCOUNT)); }
    std::string Item(int index)
    {
        char text[64] = "";
        SendPtr(combo, CB_GETLBTEXT, static_cast<WPARAM>(index), text);
        return text;
    }

    HWND combo = nullptr;
};

TEST_F(DllCombo, TakesAndGivesItems)
{
    MakeCombo();
    const char* const texts[] = { "one", "two" };
    const LONG        codes[] = { 1, 2 };
    EXPECT_EQ(0, HCAddItemEx(combo, "zero", &codes[0]));
    EXPECT_EQ(2, HCAddItems(combo, 2, texts));
    EXPECT_EQ(2, HCAddItemsEx(combo, 2, texts, codes));
    EXPECT_EQ(0, HCInsertItemEx(combo, 0, "first", &codes[1]));
    EXPECT_EQ(2, HCInsertItems(combo, 0, 2, texts));
    EXPECT_EQ(2, HCInsertItemsEx(combo, 0, 2, texts, codes));
    EXPECT_EQ(0, HCInsertStringEx(combo, 0, "text", "12"));
    EXPECT_EQ(11, Count());
    LONG      code = 0;
    const int first = 0;
    EXPECT_EQ(1, HCGetItems(combo, 1, 2, &code, HLI_BYINDEX, &first));
    EXPECT_EQ(12, code);
    EXPECT_EQ(1, HCDeleteItems(combo, HLI_BYINDEX, 1, &first));
    EXPECT_EQ("one", Item(0));
    EXPECT_EQ(10, HCDeleteItems(combo, HLI_ALL, 0, nullptr));
}

TEST_F(DllCombo, SharesItsItems)
{
    const HWND owner = MakeCombo("%120%ss", HCS_DROPDOWN);
    HCAddItemEx(owner, "one", nullptr);
    MakeCombo("%120%ss", HCS_DROPDOWN);
    EXPECT_EQ(1, HCSetList(combo, HCGetList(owner)));
    EXPECT_EQ("one", Item(0));
    EXPECT_EQ(0, HCSetList(combo, nullptr));
}

TEST_F(DllCombo, ReadsTheHeightAtTheHeadOfAText)
{
    const char* text = "%120%ss";
    EXPECT_EQ(120, GetDropHeight(&text));
    EXPECT_STREQ("%ss", text);
}

TEST_F(DllCombo, ShowsWhatCodeForComboBoxesSelects)
{
    MakeCombo("%120%ss");
    SendPtr(combo, CB_ADDSTRING, 0, "apple");
    SendPtr(combo, CB_ADDSTRING, 0, "pear");
    EXPECT_EQ(1, SendPtr(combo, CB_SELECTSTRING, static_cast<WPARAM>(-1), "pe"));
    EXPECT_EQ("pear", TextOf(combo));
}

TEST_F(DllCombo, OwnMessagesHaveTheirNumbers)
{
    MakeCombo("%120%300%ss%nl");
    EXPECT_EQ(120, Send(combo, 1297));
    EXPECT_EQ(300, Send(combo, 1299));
    EXPECT_EQ(1, Send(combo, 1300, 200));
    EXPECT_EQ(200, Send(combo, 1298, 0));
    EXPECT_EQ(0, SendPtr(combo, CB_ADDSTRING, 0, "apple"));
    EXPECT_EQ(0, Count());
    EXPECT_EQ(200, Send(combo, 1298, 1));
    EXPECT_EQ(1, Send(combo, 1298, 90));
    EXPECT_EQ(90, Send(combo, 1297));
    EXPECT_EQ(1, Send(combo, 1302));
    EXPECT_EQ(1, Send(combo, 1303, HCO_CHILDTOLIST));
    SendPtr(combo, CB_ADDSTRING, 0, "apple");
    Send(combo, CB_SETCURSEL, 0);
    EXPECT_EQ("", TextOf(combo)) << "the face doesn't follow";
    EXPECT_EQ(1, Send(combo, 1275, VK_DOWN));
    EXPECT_EQ(1, Send(combo, CB_GETDROPPEDSTATE));
    EXPECT_EQ(1, Send(combo, 1145));
    EXPECT_EQ(1, Send(combo, 1146));
    EXPECT_EQ(0, Send(combo, CB_GETDROPPEDSTATE));
}

TEST_F(DllCombo, ProceduresCanBeCalledByAHost)
{
    MakeCombo();
    EXPECT_EQ(Send(combo, HCM_GETDROPHEIGHT), HCombWnd(combo, HCM_GETDROPHEIGHT, 0, 0));
    int wantsDefault = 0;
    EXPECT_EQ(120, HCombMsgHandler(combo, HCM_GETDROPHEIGHT, 0, 0, &wantsDefault, RecordOf<ControlHeader>(combo)));
    EXPECT_EQ(0, wantsDefault);
    const HWND face = GetDlgItem(combo, 1);
    EXPECT_EQ(Send(combo, WM_GETDLGCODE), HCFilter(face, WM_GETDLGCODE, 0, 0));
    RECT rect = {};
    SendPtr(combo, CB_GETDROPPEDCONTROLRECT, 0, &rect);
    const HWND list = Create("HDrop", "%ss");
    EXPECT_EQ(0, HDropWnd(list, HLM_GETCOUNT, 0, 0));
    EXPECT_EQ(0, MouseHookProc(-1, WM_MOUSEMOVE, 0));
}

} // namespace
