// Every message of a list, at least once, and the messages of the system that it answers itself.
#include "foundation/startup.h"
#include "list_window.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

namespace {

class ListMessages : public ListWindow {
protected:
    void MakeNumbers(DWORD style = 0)
    {
        Make("%ni%ni", style);
        AddNumbers({ 10, 20, 30 }, { 1, 2, 3 });
    }
    LRESULT SendCode(UINT message, WPARAM wParam, int value) { return SendPtr(message, wParam, &value); }
};

TEST_F(ListMessages, LettersOfTheTypesAreTold)
{
    Make("%ni%dl");
    EXPECT_EQ('n', Send(HLM_GETDATACLASS));
    EXPECT_EQ('i', Send(HLM_GETDATATYPE));
    EXPECT_EQ('d', Send(HLM_GETCODECLASS));
    EXPECT_EQ('l', Send(HLM_GETCODETYPE));
}

TEST_F(ListMessages, SizesAreThoseOfTheItems)
{
    Make("%ss%ni");
    const int code = 1;
    HLAddItemEx(list, "four", &code);
    EXPECT_EQ(4, Send(HLM_GETDATASIZE, 0));
    EXPECT_EQ(4, Send(HLM_GETCODESIZE, 0));
    Make("%ss");
    EXPECT_EQ(0, Send(HLM_GETCODESIZE, 0));
}

TEST_F(ListMessages, ItemsAreAddedByMessages)
{
    Make("%ni");
    EXPECT_EQ(0, SendCode(LB_ADDSTRING, 0, 10));
    EXPECT_EQ(1, SendCode(HLM_ADDITEM, 0, 30));
    EXPECT_EQ(1, SendCode(HLM_INSERTITEM, 1, 20));
    EXPECT_EQ((Ints{ 10, 20, 30 }), AllNumbers());
    EXPECT_EQ(3, Send(HLM_GETCOUNT));
    EXPECT_EQ(1, Send(HLM_DELETEITEM, 0));
    EXPECT_EQ(0, Send(HLM_DELETEITEM, 5));
    EXPECT_EQ(1, Send(HLM_EMPTY));
    EXPECT_EQ(0, Send(HLM_GETCOUNT));
}

TEST_F(ListMessages, ItemsAreFoundByMessages)
{
    MakeNumbers();
    EXPECT_EQ(1, SendCode(HLM_FINDDATA, 0, 20));
    EXPECT_EQ(-1, SendCode(HLM_FINDDATA, 0, 99));
    EXPECT_EQ(2, SendCode(HLM_FINDCODE, 0, 3));
    EXPECT_EQ(1, SendCode(HLM_SELECTDATA, HLSEL_SET, 20));
    EXPECT_EQ(1, Current());
    EXPECT_EQ(1, SendCode(HLM_SELECTCODE, HLSEL_SET, 1));
    EXPECT_EQ(0, Current());
}

TEST_F(ListMessages, ValuesAreReadByMessages)
{
    MakeNumbers();
    int value = 0;
    EXPECT_EQ(1, SendPtr(HLM_GETDATA, 1, &value));
    EXPECT_EQ(20, value);
    EXPECT_EQ(1, SendPtr(HLM_GETCODE, 2, &value));
    EXPECT_EQ(3, value);
    EXPECT_EQ(1, SendCode(HLM_SETCODE, 2, 9));
    EXPECT_EQ(1, SendPtr(HLM_GETCODE, 2, &value));
    EXPECT_EQ(9, value);
}

TEST_F(ListMessages, ItemTextIsFormattedAndCut)
{
    Make("%ss");
    Add({ "text", "", std::string(200, 'x') });
    char text[200] = "old";
    EXPECT_EQ(4, SendPtr(HLM_GETITEMTEXT, 0, text));
    EXPECT_STREQ("text", text);
    EXPECT_EQ(-1, SendPtr(HLM_GETITEMTEXT, 1, text));
    EXPECT_EQ(127, SendPtr(HLM_GETITEMTEXT, 2, text));
    EXPECT_EQ(std::string(127, 'x'), text);
    EXPECT_EQ(4, Send(HLM_GETITEMTEXTLEN, 0));
    EXPECT_EQ(-1, Send(HLM_GETITEMTEXTLEN, 1));
    EXPECT_EQ(127, Send(HLM_GETITEMTEXTLEN, 2));
}

TEST_F(ListMessages, CurrentItemIsReadByMessages)
{
    MakeNumbers();
    int value = 77;
    EXPECT_EQ(0, SendPtr(HLM_GETCURDATA, 0, &value));
    EXPECT_EQ(0, SendPtr(HLM_GETCURCODE, 0, &value));
    EXPECT_EQ(77, value) << "without a current item nothing is copied";
    EXPECT_EQ(1, Send(HLM_SETCURRENT, 1, 1));
    EXPECT_EQ(1, Send(HLM_GETCURRENT));
    EXPECT_EQ(1, SendPtr(HLM_GETCURDATA, 0, &value));
    EXPECT_EQ(20, value);
    EXPECT_EQ(1, SendPtr(HLM_GETCURCODE, 0, &value));
    EXPECT_EQ(2, value);
    EXPECT_EQ(1, Send(HLM_SETCURRENT, 99));
    EXPECT_EQ(2, Send(HLM_GETCURRENT)) << "limited to the last item";
    Send(HLM_SETCURRENT, static_cast<WPARAM>(-7));
    EXPECT_EQ(-1, Send(HLM_GETCURRENT));
}

TEST_F(ListMessages, TextOfTheCurrentItemIsCutAtTheSize)
{
    Make("%ss%ss");
    HLAddItemEx(list, "abcdef", "uvwxyz");
    Send(HLM_SETCURRENT, 0);
    char text[16] = "";
    EXPECT_EQ(1, SendPtr(HLM_GETCURDATA, 4, text));
    EXPECT_STREQ("abc", text);
    EXPECT_EQ(1, SendPtr(HLM_GETCURCODE, 3, text));
    EXPECT_STREQ("uv", text);
    EXPECT_EQ(1, SendPtr(HLM_GETCURDATA, 0, text));
    EXPECT_STREQ("abcdef", text);
}

TEST_F(ListMessages, LinksAreSetByMessages)
{
    MakeNumbers();
    int data = 20;
    int code = 3;
    EXPECT_EQ(1, SendPtr(HLM_SETDATALINK, 1, &data));
    EXPECT_EQ(1, Current());
    EXPECT_EQ(AsParam(&data), Send(HLM_GETDATALINK));
    EXPECT_EQ(1, SendPtr(HLM_SETCODELINK, 1, &code));
    EXPECT_EQ(2, Current());
    EXPECT_EQ(30, data);
    EXPECT_EQ(AsParam(&code), Send(HLM_GETCODELINK));
}

TEST_F(ListMessages, ItemIsSelectedByTwoNumbers)
{
    MakeNumbers(HLS_MULTISEL);
    EXPECT_EQ(1, Send(HLM_SELECTITEM, HLSEL_SET, 1));
    EXPECT_EQ(1, Send(HLM_ISSELECTED, 1));
    EXPECT_EQ(1, Send(1237, HLSEL_TOGGLE, 2));
    EXPECT_EQ(2, Send(HLM_GETSELCOUNT));
    EXPECT_EQ(0, Send(HLM_SELECTITEM, HLSEL_SET, 3));
}

TEST_F(ListMessages, IndexOfAMessageGoesBeyondAPositiveShort)
{
    Make("%ni", HLS_MULTISEL);
    const Ints data(40000, 5);
    HLAddItems(list, 40000, data.data());
    EXPECT_EQ(1, Send(HLM_SELECTITEM, HLSEL_SET, 39999));
    EXPECT_EQ(1, HLIsSelected(list, 39999));
}

TEST_F(ListMessages, SelectedItemsAreListedUpToTheCapacity)
{
    MakeNumbers(HLS_MULTISEL);
    Select({ 2, 0 });
    int out[3] = { 9, 9, 9 };
    EXPECT_EQ(2, SendPtr(HLM_GETSELITEMS, 3, out));
    EXPECT_EQ(0, out[0]);
    EXPECT_EQ(2, out[1]);
    EXPECT_EQ(9, out[2]);
    EXPECT_EQ(1, SendPtr(HLM_GETSELITEMS, 1, out));
}

TEST_F(ListMessages, SingleSelectionCountsItsCurrentItem)
{
    MakeNumbers();
    EXPECT_EQ(0, Send(HLM_GETSELCOUNT));
    Send(HLM_SETCURRENT, 1);
    EXPECT_EQ(1, Send(HLM_GETSELCOUNT));
}

TEST_F(ListMessages, FormatIsChangedAndRead)
{
    Make("%ni");
    AddNumbers({ 5 });
    EXPECT_EQ(1, SendPtr(HLM_SETFORMAT, 1, "000"));
    char text[16] = "";
    EXPECT_EQ(3, SendPtr(HLM_GETFORMAT, sizeof text, text));
    EXPECT_STREQ("000", text);
    EXPECT_EQ(3, SendPtr(WM_GETTEXT, sizeof text, text));
    EXPECT_EQ(2, SendPtr(HLM_GETFORMAT, 3, text));
    EXPECT_STREQ("00", text);
    Make("%ss");
    EXPECT_EQ(0, SendPtr(HLM_SETFORMAT, 1, "000")) << "a list of texts keeps none";
}

TEST_F(ListMessages, BrushesAndColoursAreKept)
{
    Make("%ni");
    const auto brush = reinterpret_cast<WPARAM>(GetStockObject(GRAY_BRUSH));
    EXPECT_EQ(0, Send(HLM_SETBKBRUSH, brush));
    EXPECT_EQ(static_cast<LRESULT>(brush), Send(HLM_GETBKBRUSH));
    EXPECT_EQ(static_cast<LRESULT>(brush), Send(HLM_SETBKBRUSH, 0));
    EXPECT_EQ(0, Send(HLM_GETFOCUSBRUSH));
    EXPECT_EQ(0, Send(HLM_SETFOCUSBRUSH, brush));
    EXPECT_EQ(static_cast<LRESULT>(brush), Send(HLM_GETFOCUSBRUSH));
    EXPECT_EQ(1, Send(HLM_SETCOLOR, 0, 0x010203));
    EXPECT_EQ(1, Send(HLM_SETCOLOR, 5, 0x040506));
    EXPECT_EQ(0x010203, Send(HLM_GETCOLOR, 0));
    EXPECT_EQ(0x040506, Send(HLM_GETCOLOR, 1));
}

TEST_F(ListMessages, FlagsAndStyleAreTold)
{
    Make("%ni", HLS_SORTDATA);
    EXPECT_EQ(+Ctl()->wFlags, Send(HLM_GETFLAGS));
    const LRESULT set = Send(HLM_SETFLAGS, CF_CHANGED, 1);
    EXPECT_TRUE(set & CF_CHANGED);
    EXPECT_FALSE(Send(HLM_SETFLAGS, CF_CHANGED, 0) & CF_CHANGED);
    EXPECT_EQ(HLS_SORTDATA, LOWORD(Send(HLM_GETSTYLE)));
    EXPECT_EQ(WS_CHILD | WS_VISIBLE, HIWORD(Send(HLM_GETSTYLE)) * 0x10000u);
}

TEST_F(ListMessages, LayoutIsReadByMessages)
{
    Make("%ss", HLS_NOSCROLL, 150, 60);
    Fill(20);
    EXPECT_EQ(1, Send(HLM_RECALC));
    EXPECT_EQ(150, Send(HLM_GETCOLUMNWIDTH));
    EXPECT_EQ(150, Send(HLM_GETTOTALWIDTH));
    EXPECT_EQ(RowHeight(), Send(LB_GETITEMHEIGHT));
    EXPECT_EQ(0, Send(HLM_GETTOP));
    EXPECT_EQ(5, Send(HLM_SETTOP, 5));
    EXPECT_EQ(5, Send(HLM_GETTOP));
    EXPECT_EQ(-2, Send(HLM_SCROLL, static_cast<WPARAM>(-2)));
    RECT rect;
    EXPECT_EQ(1, SendPtr(HLM_GETITEMRECT, 3, &rect));
    EXPECT_EQ(0, SendPtr(HLM_GETITEMRECT, 2, &rect));
}

TEST_F(ListMessages, RedrawIsSwitched)
{
    Make();
    EXPECT_EQ(1, Send(HLM_SETREDRAW, 0));
    EXPECT_TRUE(Send(HLM_GETFLAGS) & HLF_NOREDRAW);
    ValidateRect(list, nullptr);
    EXPECT_EQ(1, Send(HLM_SETREDRAW, 1, 0));
    EXPECT_FALSE(GetUpdateRect(list, nullptr, FALSE));
    EXPECT_EQ(1, Send(HLM_SETREDRAW, 1, 1));
    EXPECT_TRUE(GetUpdateRect(list, nullptr, FALSE));
    EXPECT_FALSE(Send(HLM_GETFLAGS) & HLF_NOREDRAW);
}

TEST_F(ListMessages, WindowTextSetsTheTypesAnew)
{
    Make("%ni");
    AddNumbers({ 1, 2 });
    EXPECT_EQ(0, SendPtr(WM_SETTEXT, 0, nullptr));
    EXPECT_EQ(0, SendPtr(WM_SETTEXT, 0, "plain"));
    EXPECT_EQ(2, Count());
    EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, "%dl%ni"));
    EXPECT_EQ(0, Count());
    EXPECT_EQ('d', Send(HLM_GETDATACLASS));
    EXPECT_EQ('n', Send(HLM_GETCODECLASS));
}

TEST_F(ListMessages, WindowTextLetsGoOfSharedItems)
{
    Make("%ni");
    AddNumbers({ 1, 2 });
    const HWND borrower = WindowTest::Create("HList", "%ni", 0, 8, { 10, 150, 100, 60 });
    HLSetList(borrower, HLGetList(list));
    EXPECT_EQ(1, SendMessageA(borrower, WM_SETTEXT, 0, AsParam("%ni")));
    EXPECT_EQ(0, SendMessageA(borrower, HLM_GETCOUNT, 0, 0));
    EXPECT_EQ((Ints{ 1, 2 }), AllNumbers());
}

TEST_F(ListMessages, SystemMessagesAreAnswered)
{
    Make();
    EXPECT_EQ(1, Send(WM_SIZE));
    Send(WM_CANCELMODE);
    EXPECT_TRUE(Ctl()->wFlags & CF_CANCEL);
    EXPECT_FALSE(Ctl()->wFlags & HLF_FONTSET);
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(SYSTEM_FONT)));
    EXPECT_TRUE(Ctl()->wFlags & HLF_FONTSET);
    EXPECT_EQ(1, Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(list), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(hCurArrow, GetCursor());
    Blur();
    Send(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(parent.hwnd()), MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    EXPECT_EQ(list, GetFocus());
    EXPECT_EQ(1, Send(WM_SETFOCUS));
    EXPECT_EQ(0, Send(WM_KILLFOCUS));
}

TEST_F(ListMessages, DisabledListIsPaintedAnew)
{
    Make();
    Fill(3);
    for (const BOOL enabled : { FALSE, TRUE }) {
        PumpPending();
        ValidateRect(list, nullptr);
        EnableWindow(list, enabled);
        EXPECT_TRUE(GetUpdateRect(list, nullptr, FALSE)) << enabled;
    }
}

TEST_F(ListMessages, UnlistedNumberDoesNothing)
{
    Make("%ni");
    EXPECT_EQ(0, Send(HLM_GETBKBRUSH + 20));
    EXPECT_EQ(0, Send(LB_GETTOPINDEX));
}

TEST_F(ListMessages, ClassIsRegisteredWithoutCursorAndBrush)
{
    WNDCLASSA info = {};
    ASSERT_TRUE(GetClassInfoA(GetModuleHandleA(nullptr), "HList", &info));
    EXPECT_EQ(0x400Bu, info.style);
    EXPECT_EQ(static_cast<int>(sizeof(LONG_PTR)), info.cbWndExtra);
    EXPECT_EQ(nullptr, info.hCursor);
    EXPECT_EQ(nullptr, info.hbrBackground);
}

TEST_F(ListMessages, ItemTextIsWhatShowsWhateverTheFormattingAnswers)
{
    struct Row {
        const char* what;
        std::string type;
        double      value;
        std::string text;
    };
    const std::string dashes(127, '-');
    const Row rows[] = {
        { "a date that has no room", "%dl" + dashes + "mmmm", 0, dashes },
        { "infinity", "%nd", HUGE_VAL, std::string(127, '#') },
    };
    for (const Row& row : rows) {
        Make(row.type.c_str());
        const int date = 20240915;
        HLAddItem(list, row.type[1] == 'd' ? static_cast<const void*>(&date) : &row.value);
        char text[160];
        std::memset(text, '~', sizeof text);
        EXPECT_EQ(127, SendPtr(HLM_GETITEMTEXT, 0, text)) << row.what;
        EXPECT_EQ(row.text, text) << row.what;
        EXPECT_TRUE(std::all_of(text + 128, std::end(text), [](char ch) { return ch == '~'; })) << row.what;
        EXPECT_EQ(127, Send(HLM_GETITEMTEXTLEN)) << row.what;
    }
    Make("%hh");
    const char none = 0;
    HLAddItem(list, &none);
    EXPECT_EQ(-1, Send(HLM_GETITEMTEXTLEN)) << "no character";
}

TEST_F(ListMessages, WindowTextFreesTheTabStopsAndGoesToTheTop)
{
    Make("%ss", HLS_TABS);
    ShowRows(3);
    Fill(20);
    const int stops[] = { 20, 90 };
    SendPtr(HLM_SETTABS, 2, stops);
    Send(HLM_SETTOP, 5);
    EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, "%ss"));
    EXPECT_EQ(0, +Ctl()->cTabs);
    EXPECT_EQ(nullptr, +Ctl()->pTabs);
    EXPECT_EQ(0, Top());
}

TEST_F(ListMessages, MessagesThatChangeTheLookInvalidate)
{
    struct Row {
        const char* what;
        UINT        message;
        WPARAM      wParam;
        LPARAM      lParam;
        bool        invalidates;
        bool        erases;
    };
    const Row rows[] = {
        { "a format alone", HLM_SETFORMAT, 0, AsParam("00"), false, false },
        { "a format", HLM_SETFORMAT, 1, AsParam("000"), true, true },
        { "a column's width", HLM_SETCOLUMNWIDTH, 50, 0, true, true },
        { "no column's width", HLM_SETCOLUMNWIDTH, 0, 0, true, true },
        { "a colour", HLM_SETCOLOR, 0, 0x123456, true, false },
        { "a brush alone", HLM_SETBKBRUSH, 0, 0, false, false },
        { "a brush", HLM_SETBKBRUSH, 0, 1, true, true },
        { "a focus brush", HLM_SETFOCUSBRUSH, 0, 1, true, true },
    };
    Make("%ni", HLS_MULTICOLUMN | HLS_NOSCROLL);
    AddNumbers({ 1, 2, 3 });
    RECT client = {};
    GetClientRect(list, &client);
    for (const Row& row : rows) {
        const Invalidated seenOf = InvalidatedBy([&] { Send(row.message, row.wParam, row.lParam); });
        EXPECT_EQ(row.erases, seenOf.erases) << row.what;
        EXPECT_EQ(row.invalidates, EqualRect(&client, &seenOf.area) != 0) << row.what;
        EXPECT_EQ(row.invalidates, !IsRectEmpty(&seenOf.area)) << row.what;
    }
}

TEST_F(ListMessages, NewCurrentItemIsRepaintedWithTheOldOneOnDemand)
{
    Make("%ni", HLS_MULTISEL | HLS_NOSCROLL);
    ShowRows(6);
    AddNumbers({ 1, 2, 3, 4, 5, 6 });
    Invalidated seenOf = InvalidatedBy([&] { Send(HLM_SETCURRENT, 1); });
    EXPECT_TRUE(IsRectEmpty(&seenOf.area));
    seenOf = InvalidatedBy([&] { Send(HLM_SETCURRENT, 3, 1); });
    EXPECT_TRUE(seenOf.erases);
    EXPECT_EQ(ItemRect(1).top, seenOf.area.top);
    EXPECT_EQ(ItemRect(3).bottom + 1, seenOf.area.bottom);
}

} // namespace
