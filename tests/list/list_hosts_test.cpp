// Hosts that do the unexpected: destroy the list while they are asked, share items that don't fit, hold long texts.
#include "list_window.h"
#include "support/input.h"
#include "support/pixels.h"

#include <cstring>
#include <functional>

namespace {

class ListHosts : public ListWindow {
protected:
    // Another list beside the one under test.
    HWND MakeOther(const char* text, DWORD style = 0)
    {
        return WindowTest::Create("HList", text, style, 8, { 10, 150, 100, 60 });
    }
    void DestroyOn(UINT message)
    {
        parent.OnMessage(message, [this](WPARAM, LPARAM) {
            DestroyWindow(list);
            return LRESULT{ 0 };
        });
    }
};

TEST_F(ListHosts, ListIsDestroyedInAnyQuestionToItsParent)
{
    struct Row {
        UINT                  message;
        DWORD                 style;
        std::function<void()> work;
    };
    const std::string text = "text";
    const Row rows[] = {
        { WM_DELETEITEM, HLS_OWNERDRAW, [&] { HLDeleteItem(list, 1); } },
        { WM_DELETEITEM, HLS_OWNERDRAW, [&] { HLDeleteItems(list, HLI_ALL, 0, nullptr); } },
        { WM_DELETEITEM, HLS_OWNERDRAW, [&] { HLDeleteItems(list, HLI_UNSELECTED, 0, nullptr); } },
        { WM_MEASUREITEM, HLS_OWNERDRAW, [&] { HLAddItem(list, text.c_str()); } },
        { WM_MEASUREITEM, HLS_OWNERDRAW, [&] { Fill(5); } },
        { WM_MEASUREITEM, HLS_OWNERDRAW, [&] { Send(HLM_RECALC); } },
        { WM_DRAWITEM, HLS_OWNERDRAW, [&] { RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); } },
        { WM_DRAWITEM, HLS_OWNERDRAW, [&] { Focus(); } },
        { WM_DRAWITEM, HLS_OWNERDRAW, [&] { Send(HLM_SETTOP, 3); } },
        { WM_CTLCOLORLISTBOX, 0, [&] { RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); } },
        { WM_CTLCOLORLISTBOX, 0, [&] { Send(HLM_SETTOP, 3); } },
        { WM_CTLCOLORSTATIC, WS_DISABLED,
          [&] { RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW); } },
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << "message " << row.message << ", row " << &row - rows);
        Make("%ss", row.style | HLS_MULTISEL);
        Fill(20);
        DestroyOn(row.message);
        row.work();
        parent.OnMessage(row.message, nullptr);
        EXPECT_FALSE(IsWindow(list));
    }
}

TEST_F(ListHosts, OwnerThatDrawsTheFocusMayDestroyTheList)
{
    Make("%ss", HLS_OWNERDRAW);
    Fill(5);
    Focus();
    parent.OnMessage(WM_DRAWITEM, [this](WPARAM, LPARAM lParam) {
        if (reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->itemAction == ODA_FOCUS) {
            DestroyWindow(list);
        }
        return LRESULT{ 1 };
    });
    Key(VK_DOWN);
    parent.OnMessage(WM_DRAWITEM, nullptr);
    EXPECT_FALSE(IsWindow(list));
}

TEST_F(ListHosts, CodesThatDoNotFitAreNotHeld)
{
    Make("%ss%ni", HLS_CODECURRENT);
    const HWND        other = MakeOther("%ss%ss");
    const std::string longCode(300, 'c');
    HLAddItemEx(other, "first", longCode.c_str());
    HLAddItemEx(other, "second", "2");
    HLSetList(list, HLGetList(other));
    EXPECT_TRUE(Send(HLM_GETSTYLE) & HLS_CODECURRENT);
    Send(HLM_SETCURRENT, 1);
    EXPECT_EQ(1, Current());
    Send(HLM_SETCURRENT, 0);
    EXPECT_EQ(0, Current());
}

TEST_F(ListHosts, NumbersOfEightBytesKeepTheStyleThatHoldsTheCode)
{
    Make("%ss%nd", HLS_CODECURRENT);
    EXPECT_TRUE(Send(HLM_GETSTYLE) & HLS_CODECURRENT);
    const double codes[] = { 1.5, 2.5 };
    HLAddItemEx(list, "a", &codes[0]);
    HLAddItemEx(list, "b", &codes[1]);
    Send(HLM_SETCURRENT, 1);
    HLInsertItemEx(list, 0, "new", &codes[0]);
    EXPECT_EQ(2, Current());
}

TEST_F(ListHosts, BorrowerHasAFormatOfItsOwn)
{
    Make("%ni0000");
    AddNumbers({ 7 });
    const HWND other = MakeOther("%ni");
    HLSetList(other, HLGetList(list));
    EXPECT_EQ(1, SendMessageA(other, HLM_SETFORMAT, 0, AsParam("00")));
    EXPECT_EQ(1, SendMessageA(other, HLM_SETFORMAT, 0, AsParam("000")));
    char text[128] = "";
    SendMessageA(other, HLM_GETITEMTEXT, 0, AsParam(text));
    EXPECT_STREQ("007", text);
    EXPECT_EQ("0007", Text(0));
    EXPECT_FALSE(SendMessageA(other, HLM_GETFLAGS, 0, 0) & HLF_OWNFORMAT);
    HLSetList(other, HLGetList(list));
    SendMessageA(other, HLM_GETITEMTEXT, 0, AsParam(text));
    EXPECT_STREQ("0007", text);
    DestroyWindow(other);
    EXPECT_EQ("0007", Text(0));
}

TEST_F(ListHosts, BorrowerGoesOnWithTheFormatThatTheOwnerHad)
{
    Make("%ni0000");
    AddNumbers({ 7 });
    const HWND other = MakeOther("%ni");
    HLSetList(other, HLGetList(list));
    for (const char* const format : { "00", "000", "00000000000000000000" }) {
        EXPECT_EQ(1, SendPtr(HLM_SETFORMAT, 0, format));
        char text[128] = "";
        SendMessageA(other, HLM_GETITEMTEXT, 0, AsParam(text));
        EXPECT_STREQ("0007", text) << format;
    }
    EXPECT_EQ("00000000000000000007", Text(0));
    HLSetList(other, HLGetList(list));
    char text[128] = "";
    SendMessageA(other, HLM_GETITEMTEXT, 0, AsParam(text));
    EXPECT_EQ(Text(0), text);
    DestroyWindow(other);
    SendPtr(WM_SETTEXT, 0, "%ni"); // with the items the formats go
    EXPECT_EQ(nullptr, OldFormats(Ctl()));
}

TEST_F(ListHosts, MaskedTextsAreFoundByWhatIsStored)
{
    Make("%ms(###) ###");
    HLAddItem(list, "123456");
    EXPECT_EQ("(123) 456", Text(0));
    EXPECT_EQ(0, SendPtr(HLM_FINDTEXT, 0, "123456"));
    EXPECT_EQ(-1, SendPtr(HLM_FINDTEXT, 0, "(123"));
}

TEST_F(ListHosts, TextCutToNothingIsStillAText)
{
    Make("%ss");
    Add({ "text", "" });
    Send(HLM_SETCURRENT, 0);
    char out[4] = "xxx";
    EXPECT_EQ(1, SendPtr(HLM_GETCURDATA, 1, out));
    EXPECT_STREQ("", out);
    Send(HLM_SETCURRENT, 1);
    std::strcpy(out, "old");
    EXPECT_EQ(0, SendPtr(HLM_GETCURDATA, 4, out));
    EXPECT_STREQ("", out);
}

TEST_F(ListHosts, PlacesBeyondAnyCountAreTheEnd)
{
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HLS_SORTDATA } }) {
        Make("%ss", style);
        Add({ "a" });
        const char* const more[] = { "b", "c" };
        EXPECT_EQ(2, HLInsertItemsEx(list, INT_MAX, 2, more, nullptr));
        EXPECT_EQ((Texts{ "a", "b", "c" }), AllTexts());
        Send(HLM_SETTOP, static_cast<WPARAM>(INT_MIN));
        EXPECT_EQ(0, Top());
    }
}

TEST_F(ListHosts, HundredThousandItemsGoInFrontOfOne)
{
    Make("%ni%ni");
    AddNumbers({ -1 }, { -1 });
    Ints many(100000);
    for (size_t i = 0; i < many.size(); ++i) {
        many[i] = static_cast<int>(i);
    }
    EXPECT_EQ(100000, HLInsertItemsEx(list, 0, 100000, many.data(), many.data()));
    EXPECT_EQ(0, Number(0));
    EXPECT_EQ(99999, Number(99999));
    EXPECT_EQ(-1, Number(100000));
}

TEST_F(ListHosts, RangeWhoseEndsAreOutOfViewIsRepainted)
{
    Make("%ss", HLS_EXTSEL, 200, 200);
    ShowRows(8);
    Fill(60);
    Focus();
    const auto expectRepainted = [this](const char* what) {
        const Pixels after = ShotOf(list);
        InvalidateRect(list, nullptr, TRUE);
        EXPECT_TRUE(SamePixels(ShotOf(list), after)) << what;
    };
    ClickAt(list, 5, MiddleOf(2));
    Send(HLM_SETTOP, 20);
    ShotOf(list);
    ClickAt(list, 5, MiddleOf(25), withShift);
    EXPECT_EQ(24u, Selected().size());
    expectRepainted("anchor above the page");
    PressButton(list, 5, MiddleOf(24));
    MoveMouse(list, 5, -200);
    expectRepainted("to far above");
    MoveMouse(list, 5, 500);
    expectRepainted("to far below");
    ReleaseButton(list, 5, 500);
}

// The scroll bar that comes with the items changes the window's size, so the owner is asked within the layout too.
TEST_F(ListHosts, ListIsDestroyedInAnyQuestionForItsHeightWhileItFills)
{
    int  asked = 0;
    int  last = 1;
    bool destroyed = true;
    for (; destroyed && last < 100; ++last) {
        Make("%ss", HLS_OWNERDRAW);
        asked = 0;
        parent.OnMessage(WM_MEASUREITEM, [&](WPARAM, LPARAM lParam) {
            reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = 16;
            if (++asked == last) {
                DestroyWindow(list);
            }
            return LRESULT{ 1 };
        });
        for (int i = 0; i < 20 && IsWindow(list); ++i) {
            HLAddItem(list, "text");
        }
        destroyed = !IsWindow(list);
        parent.OnMessage(WM_MEASUREITEM, nullptr);
    }
    EXPECT_FALSE(destroyed);
    EXPECT_GT(asked, 20) << "more than once an item";
}

} // namespace
