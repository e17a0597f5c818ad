// Where items stand: rows, columns, the scroll range, and what scrolling does.
#include "list_window.h"

namespace {

class ListLayout : public ListWindow {
protected:
    int Width() const
    {
        RECT client;
        GetClientRect(list, &client);
        return static_cast<int>(client.right);
    }
    // A list of several columns, so many pixels wide each, with so many rows.
    void MakeColumns(int rows, int width, int count)
    {
        Make("%ss", HLS_MULTICOLUMN);
        Send(HLM_SETCOLUMNWIDTH, static_cast<WPARAM>(width));
        Fill(count);
        ShowRows(rows); // less the scroll bar that has come
    }
    int FromPoint(int x, int y) const { return HLItemFromPoint(Ctl(), x, y); }
    int ScrollMax(int bar) const
    {
        int low = 0;
        int high = 0;
        GetScrollRange(list, bar, &low, &high);
        return high;
    }
};

TEST_F(ListLayout, RowIsAsHighAsTheFont)
{
    Make();
    EXPECT_EQ(HIWORD(GetBaseUnits(Ctl()->hFont)), RowHeight());
    EXPECT_EQ(RowHeight(), Send(LB_GETITEMHEIGHT));
}

TEST_F(ListLayout, FieldHasOneRowOfItsOwnHeight)
{
    Make("%ss", HLS_FIELD | HLS_NOSCROLL, 100, 30);
    EXPECT_EQ(30, RowHeight());
    EXPECT_EQ(1, +Ctl()->cRows);
}

TEST_F(ListLayout, OwnerMeasuresTheRows)
{
    MEASUREITEMSTRUCT asked = {};
    int               height = 33;
    parent.OnMessage(WM_MEASUREITEM, [&](WPARAM, LPARAM lParam) {
        auto* const measure = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
        asked = *measure;
        measure->itemHeight = static_cast<UINT>(height);
        return LRESULT{ 1 };
    });
    Make("%ss", HLS_OWNERDRAW);
    EXPECT_EQ(33, RowHeight());
    EXPECT_EQ(2u, asked.CtlType);
    EXPECT_EQ(7u, asked.CtlID);
    EXPECT_EQ(0u, asked.itemID);
    height = 0;
    Send(HLM_RECALC);
    EXPECT_EQ(HIWORD(GetBaseUnits(Ctl()->hFont)), RowHeight()) << "the font's, if the owner says nothing";
}

TEST_F(ListLayout, PartlyVisibleRowCountsWithoutIntegralHeight)
{
    Make("%ss", HLS_NOINTEGRAL);
    ShowRows(3, 4);
    EXPECT_EQ(4, +Ctl()->cRows);
    EXPECT_TRUE(Ctl()->wFlags & HLF_PARTIAL);
    ShowRows(3);
    EXPECT_EQ(3, +Ctl()->cRows);
    EXPECT_FALSE(Ctl()->wFlags & HLF_PARTIAL);
    Make();
    ShowRows(3, 4);
    EXPECT_EQ(3, +Ctl()->cRows);
}

TEST_F(ListLayout, MovingOntoAPartlyVisibleRowScrollsByTheLimitRule)
{
    Make("%ss", HLS_NOINTEGRAL);
    ShowRows(3, 4);
    Fill(10);
    Send(HLM_SETCURRENT, 2);
    EXPECT_EQ(0, Top());
    Send(HLM_SETCURRENT, 3); // the limit is a row short of the four
    EXPECT_EQ(1, Top());
    Send(HLM_SETTOP, 0);
    Ctl()->wFlags |= HLF_TRACKING;
    HLSetCurrent(Ctl(), 3, false, false);
    Ctl()->wFlags &= static_cast<WORD>(~HLF_TRACKING);
    EXPECT_EQ(0, Top()) << "while the mouse tracks, the partly visible row is within the limit";
}

TEST_F(ListLayout, ItemRectsFollowEachOther)
{
    Make();
    ShowRows(3);
    Fill(10);
    RECT rect = {};
    EXPECT_EQ(1, SendPtr(HLM_GETITEMRECT, 2, &rect));
    EXPECT_EQ(2 * RowHeight(), rect.top);
    EXPECT_EQ(3 * RowHeight(), rect.bottom);
    EXPECT_EQ(Width(), rect.right);
    EXPECT_EQ(0, SendPtr(HLM_GETITEMRECT, 3, &rect));
    EXPECT_EQ(rect.bottom, rect.top);
    Send(HLM_SCROLL, 2);
    EXPECT_EQ(0, SendPtr(HLM_GETITEMRECT, 1, &rect));
    EXPECT_EQ(rect.top, rect.bottom);
    EXPECT_EQ(0, ItemRect(2).top);
}

TEST_F(ListLayout, FieldRectIsTheClientAreaLessAPixelAtEachSide)
{
    Make("%ss", HLS_FIELD | HLS_NOSCROLL, 100, 30);
    Fill(3);
    const RECT rect = ItemRect(0);
    EXPECT_EQ(1, rect.left);
    EXPECT_EQ(99, rect.right);
    EXPECT_EQ(30, rect.bottom);
}

TEST_F(ListLayout, ItemsRunDownAndThenToTheNextColumn)
{
    MakeColumns(3, 60, 20);
    EXPECT_EQ(3, +Ctl()->cRows);
    EXPECT_EQ(Width() / 60 + 1, +Ctl()->cCols) << "with the column that shows in part";
    EXPECT_EQ(60 * Ctl()->cCols, Send(HLM_GETTOTALWIDTH));
    const RECT rect = ItemRect(4);
    EXPECT_EQ(60, rect.left);
    EXPECT_EQ(120, rect.right);
    EXPECT_EQ(RowHeight(), rect.top);
}

TEST_F(ListLayout, PointNamesAnItem)
{
    Make();
    ShowRows(3);
    Fill(10);
    Send(HLM_SCROLL, 2);
    struct Row {
        int y;
        int index;
    };
    const Row rows[] = { { 0, 2 }, { RowHeight(), 3 }, { -1, 1 }, { -RowHeight(), 0 }, { 100 * RowHeight(), 9 } };
    for (const Row& row : rows) {
        EXPECT_EQ(row.index, FromPoint(5, row.y)) << "y " << row.y;
    }
    Make();
    EXPECT_EQ(0, FromPoint(5, 50)) << "an empty list";
}

TEST_F(ListLayout, PointInSeveralColumnsMayLieOnePastTheLastRow)
{
    MakeColumns(3, 60, 20);
    EXPECT_EQ(4, FromPoint(70, RowHeight()));
    EXPECT_EQ(6, FromPoint(70, 50 * RowHeight())) << "one past the last row";
    EXPECT_EQ(0, FromPoint(-70, -5));
    EXPECT_EQ(18, FromPoint(5000, 0)) << "the last column";
    EXPECT_EQ(19, FromPoint(5000, 2 * RowHeight())) << "the last item";
    Send(HLM_SCROLL, 1);
    EXPECT_EQ(0, FromPoint(-10, 0));
}

TEST_F(ListLayout, TooWideTextFallsBackToOneColumn)
{
    Make("%ss", HLS_MULTICOLUMN);
    Add({ "a" });
    EXPECT_LT(Send(HLM_GETCOLUMNWIDTH), Width());
    Add({ "a text so wide that twice its width is more than four fifths" });
    EXPECT_EQ(Width(), Send(HLM_GETCOLUMNWIDTH));
    EXPECT_EQ(1, +Ctl()->cCols);
    EXPECT_TRUE(Send(HLM_GETSTYLE) & HLS_MULTICOLUMN);
}

TEST_F(ListLayout, ColumnHasRoomForTwiceItsWidestText)
{
    Make("%ss", HLS_MULTICOLUMN, 400);
    Add({ "a", "wider" });
    const HDC     hdc = GetDC(list);
    const HGDIOBJ old = SelectObject(hdc, Ctl()->hFont);
    SIZE          size = {};
    GetTextExtentPointA(hdc, "wider", 5, &size);
    SelectObject(hdc, old);
    ReleaseDC(list, hdc);
    EXPECT_EQ(2 * size.cx, Send(HLM_GETCOLUMNWIDTH));
}

TEST_F(ListLayout, ScrollGivesByHowManyItWent)
{
    Make();
    ShowRows(3);
    Fill(10);
    EXPECT_EQ(2, Send(HLM_SCROLL, 2));
    EXPECT_EQ(5, Send(HLM_SCROLL, 100));
    EXPECT_EQ(7, Top());
    EXPECT_EQ(0, Send(HLM_SCROLL, 1));
    EXPECT_EQ(-7, Send(HLM_SCROLL, static_cast<WPARAM>(-100)));
    EXPECT_EQ(4, Send(HLM_SETTOP, 4));
    EXPECT_EQ(4, GetScrollPos(list, SB_VERT));
    EXPECT_EQ(10, ScrollMax(SB_VERT));
}

TEST_F(ListLayout, PartlyVisibleRowScrollsOneFurther)
{
    Make("%ss", HLS_NOINTEGRAL);
    ShowRows(3, 4);
    Fill(10);
    EXPECT_EQ(7, Send(HLM_SCROLL, 100));
}

TEST_F(ListLayout, ColumnsScrollSideways)
{
    MakeColumns(3, 60, 30);
    const int highest = 1 + 1 + 29 / 3 - static_cast<int>(Ctl()->cCols);
    EXPECT_EQ(highest, Send(HLM_SCROLL, 100));
    EXPECT_EQ(3 * highest, Top());
    EXPECT_EQ(highest, GetScrollPos(list, SB_HORZ));
    EXPECT_EQ(3, Send(HLM_SETTOP, 3));
    EXPECT_EQ(1, +Ctl()->nScrollPos);
    EXPECT_EQ(0, ItemRect(3).left);
}

TEST_F(ListLayout, ScrollByNothingPullsAPositionBackThatIsBeyondTheEnd)
{
    Make();
    ShowRows(3);
    Fill(10);
    Ctl()->nScrollPos = 9;
    EXPECT_EQ(-2, Send(HLM_SCROLL, 0));
    EXPECT_EQ(7, Top());
}

TEST_F(ListLayout, DeletionPullsThePositionIn)
{
    Make();
    ShowRows(3);
    Fill(20);
    Send(HLM_SCROLL, 17);
    HLDeleteItems(list, HLI_UNSELECTED, 0, nullptr);
    EXPECT_EQ(0, Top());
    EXPECT_EQ(0, +Ctl()->nScrollPos);
}

TEST_F(ListLayout, ReloadOfAScrolledListShowsItsItems)
{
    struct Row {
        const char*           what;
        std::function<void()> reload;
        int                   top;
    };
    const Row rows[] = {
        { "fewer at once", [this] { HLEmptyList(list); Fill(17); }, 14 },
        { "a few deleted", [this] { for (int i = 0; i < 3; ++i) { HLDeleteItem(list, 0); } }, 14 }, // all three rows have one
        { "another type", [this] { SendPtr(WM_SETTEXT, 0, "%ss"); Fill(30); }, 0 },
    };
    for (const Row& row : rows) {
        Make();
        ShowRows(3);
        Fill(20);
        Send(HLM_SCROLL, 17);
        ASSERT_EQ(17, Top()) << row.what;
        row.reload();
        EXPECT_EQ(row.top, Top()) << row.what;
        EXPECT_EQ(0, ItemRect(row.top).top) << row.what;
    }
}

TEST_F(ListLayout, ScrolledListThatGetsShorterFillsItsRowsAndKeepsTheOthersInReach)
{
    for (const int count : { 1, 9, 10, 11, 12 }) {
        Make();
        ShowRows(10);
        Fill(20);
        Send(HLM_SCROLL, 10);
        ASSERT_EQ(10, Top());
        HLEmptyList(list);
        Fill(count);
        EXPECT_EQ(std::max(count - 10, 0), Top()) << count;
        EXPECT_EQ(Top(), +Ctl()->nScrollPos) << count;
        Send(WM_VSCROLL, SB_LINEDOWN);
        EXPECT_EQ(std::max(count - 10, 0), Top()) << count;
    }
}

TEST_F(ListLayout, ScrolledListThatGetsTallerFillsItsRows)
{
    Make();
    ShowRows(3);
    Fill(20);
    Send(HLM_SCROLL, 17);
    ShowRows(12);
    EXPECT_EQ(8, Top());
    EXPECT_EQ(11 * RowHeight(), ItemRect(19).top);
}

TEST_F(ListLayout, ColumnsOfAScrolledListGoOnFromItsFirstOneWithMoreRowsOrFewer)
{
    for (const int rows : { 3, 8 }) {
        MakeColumns(5, 60, 60);
        Send(HLM_SCROLL, 2);
        ASSERT_EQ(10, Top());
        ShowRows(rows);
        const int shown = static_cast<int>(+Ctl()->cRows);
        ASSERT_NE(5, shown);
        EXPECT_EQ(2 * shown, Top()) << rows;
        for (int i = 0; i < shown * (Width() / 60); ++i) {
            const RECT item = ItemRect(Top() + i);
            EXPECT_EQ(i / shown * 60, item.left) << rows << " rows, item " << i;
            EXPECT_EQ(i % shown * RowHeight(), item.top) << rows << " rows, item " << i;
            EXPECT_FALSE(IsRectEmpty(&item)) << rows << " rows, item " << i;
        }
    }
}

TEST_F(ListLayout, FieldGoesOnShowingItsCurrentItemWhenOthersComeAndGo)
{
    struct Row {
        const char*           what;
        DWORD                 style;
        std::function<void()> work;
    };
    const Row rows[] = {
        { "one in front", 0, [this] { HLInsertItem(list, 0, "first"); } },
        { "one that sorts in front", HLS_SORTDATA, [this] { HLAddItem(list, "a"); } },
        { "many in front", HLS_SORTDATA, [this] { Add({ "b", "c", "d" }); } },
        { "one in front goes", 0, [this] { HLDeleteItem(list, 1); } },
        { "the last ones go", 0, [this] { HLDeleteItem(list, 4); HLDeleteItem(list, 3); } },
    };
    for (const Row& row : rows) {
        Make("%ss", HLS_FIELD | row.style, 200, 24);
        Fill(5);
        Send(HLM_SETCURRENT, row.what[0] == 't' ? 4 : 2);
        row.work();
        EXPECT_EQ(Current(), Top()) << row.what;
        Key(VK_UP);
        EXPECT_EQ(Current(), Top()) << row.what;
    }
}

TEST_F(ListLayout, FieldHasNoBarToMove)
{
    Make("%ss", HLS_FIELD, 200, 24);
    Fill(5);
    Send(HLM_SETCURRENT, 3);
    EXPECT_EQ(3, Top());
    EXPECT_EQ(0, GetScrollPos(list, SB_VERT));
    Told();
    Send(WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, GetScrollPos(list, SB_VERT)));
    EXPECT_EQ(3, Current());
    EXPECT_EQ(Ints{}, Told());
}

TEST_F(ListLayout, ScrollBarMessagesMoveTheList)
{
    struct Row {
        int code;
        int position;
        int top;
    };
    const Row rows[] = {
        { SB_LINEDOWN, 0, 1 },  { SB_LINEDOWN, 0, 2 },   { SB_LINEUP, 0, 1 },        { SB_PAGEDOWN, 0, 4 },
        { SB_PAGEUP, 0, 1 },    { SB_THUMBTRACK, 9, 9 }, { SB_THUMBPOSITION, 3, 9 }, { SB_THUMBTRACK, 9, 9 },
        { SB_ENDSCROLL, 0, 9 }, { SB_TOP, 0, 9 },
    };
    Make();
    ShowRows(5);
    Fill(30);
    for (const Row& row : rows) {
        Send(WM_VSCROLL, MAKEWPARAM(row.code, row.position));
        EXPECT_EQ(row.top, Top()) << "code " << row.code;
    }
}

TEST_F(ListLayout, HorizontalBarMovesByColumns)
{
    MakeColumns(2, 60, 60);
    const int cols = static_cast<int>(Ctl()->cCols);
    struct Row {
        int code;
        int position;
        int at;
    };
    const Row rows[] = {
        { SB_LINERIGHT, 0, 1 }, { SB_PAGERIGHT, 0, 1 + cols }, { SB_LINELEFT, 0, cols },
        { SB_PAGELEFT, 0, 0 },  { SB_THUMBTRACK, 5, 5 },       { SB_THUMBPOSITION, 2, 5 },
    };
    for (const Row& row : rows) {
        Send(WM_HSCROLL, MAKEWPARAM(row.code, row.position));
        EXPECT_EQ(row.at, +Ctl()->nScrollPos) << "code " << row.code;
    }
}

TEST_F(ListLayout, ScrollBarOfAFieldMovesTheCurrentItem)
{
    Make("%ss", HLS_FIELD | HLS_NOSCROLL, 100, 30);
    Fill(5);
    Send(HLM_SETCURRENT, 1);
    Send(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(2, Current());
    EXPECT_EQ(2, Top());
    Send(WM_VSCROLL, MAKEWPARAM(SB_PAGEUP, 0));
    EXPECT_EQ(1, Current());
}

TEST_F(ListLayout, BarStaysWithNoScroll)
{
    Make("%ss", HLS_NOSCROLL);
    const int before = ScrollMax(SB_VERT);
    Fill(50);
    EXPECT_EQ(before, ScrollMax(SB_VERT));
}

TEST_F(ListLayout, HeightIsTrimmedToWholeRowsOnceAFontHasCome)
{
    struct Row {
        DWORD style;
        bool  font;
        int   border; // of the trim; 0: none
    };
    const Row rows[] = { { 0, true, 2 }, { HLS_3DBORDER, true, 4 }, { 0, false, 0 }, { HLS_NOINTEGRAL, true, 0 } };
    for (const Row& row : rows) {
        Make("%ss", row.style);
        if (row.font) {
            Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(SYSTEM_FONT)));
        }
        const int height = 5 * RowHeight() + row.border + 3;
        SetWindowPos(list, nullptr, 0, 0, 150, height, SWP_NOMOVE | SWP_NOZORDER);
        RECT rect;
        GetWindowRect(list, &rect);
        EXPECT_EQ(row.border ? height - 3 : height, rect.bottom - rect.top) << "style " << row.style;
    }
}

TEST_F(ListLayout, HeightOfAFieldIsNotTrimmed)
{
    Make("%ss", HLS_FIELD | HLS_NOSCROLL, 100, 30);
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(SYSTEM_FONT)));
    SetWindowPos(list, nullptr, 0, 0, 100, 47, SWP_NOMOVE | SWP_NOZORDER);
    RECT rect;
    GetWindowRect(list, &rect);
    EXPECT_EQ(47, rect.bottom - rect.top);
}

TEST_F(ListLayout, SunkenBorderTakesTwoPixelsOrOne)
{
    RECT client;
    Make("%ss", HLS_3DBORDER | HLS_NOSCROLL, 100, 60);
    GetClientRect(list, &client);
    EXPECT_EQ(96, client.right);
    EXPECT_EQ(56, client.bottom);
    Make("%ss", HLS_3DBORDER | HLS_NOSCROLL | WS_BORDER, 100, 60);
    GetClientRect(list, &client);
    EXPECT_EQ(100 - 2 * GetSystemMetrics(SM_CXBORDER) - 2, client.right);
}

TEST_F(ListLayout, StylesThatAFieldCannotHaveAreDropped)
{
    struct Row {
        DWORD given;
        DWORD kept;
    };
    const Row rows[] = {
        { 0xFFFF & ~HLS_CODECURRENT, 0x74D7 & ~HLS_CODECURRENT },
        { HLS_MULTICOLUMN | HLS_NOINTEGRAL, HLS_MULTICOLUMN },
        { HLS_EXTSEL | HLS_MULTISEL, HLS_EXTSEL },
    };
    for (const Row& row : rows) {
        Make("%ss%ss", row.given);
        EXPECT_EQ(row.kept, LOWORD(Send(HLM_GETSTYLE))) << std::hex << row.given;
    }
    Make("%ss", HLS_FIELD | HLS_NOSCROLL | WS_VSCROLL);
    EXPECT_FALSE(Send(HLM_GETSTYLE) & WS_VSCROLL);
}

TEST_F(ListLayout, TopBehindTheEndIsTheHighestPositionWithColumnsToo)
{
    Make("%ss", HLS_MULTICOLUMN | HLS_NOSCROLL, 59, 70);
    Fill(7);
    Send(HLM_SETCOLUMNWIDTH, 90);
    ASSERT_EQ(1, +Ctl()->cCols);
    Send(HLM_SCROLL, 100);
    const int highest = Top();
    Send(HLM_SCROLL, -100);
    EXPECT_EQ(highest, Send(HLM_SETTOP, 100));
    EXPECT_EQ(0, Send(HLM_SETTOP, static_cast<WPARAM>(-1000)));
}

TEST_F(ListLayout, ColumnWidthOfTheHostStays)
{
    Make();
    EXPECT_EQ(0, Send(HLM_SETCOLUMNWIDTH, 50)) << "one column only";
    Make("%ss", HLS_MULTICOLUMN);
    Add({ "a" });
    const LRESULT own = Send(HLM_GETCOLUMNWIDTH);
    EXPECT_EQ(1, Send(HLM_SETCOLUMNWIDTH, 0));
    EXPECT_EQ(own, Send(HLM_GETCOLUMNWIDTH));
    EXPECT_EQ(1, Send(HLM_SETCOLUMNWIDTH, 77));
    Add({ "a much wider text" });
    EXPECT_EQ(77, Send(HLM_GETCOLUMNWIDTH));
}

TEST_F(ListLayout, TabStopsAreReplaced)
{
    Make("%ss", HLS_TABS);
    const int stops[] = { 20, 90, 40 };
    EXPECT_EQ(1, SendPtr(HLM_SETTABS, 3, stops));
    EXPECT_EQ(3, +Ctl()->cTabs);
    EXPECT_EQ(90, Ctl()->pTabs[1]);
    EXPECT_EQ(1, Send(HLM_SETTABS, 1, 33));
    EXPECT_EQ(33, Ctl()->pTabs[0]);
    EXPECT_EQ(1, Send(HLM_SETTABS, 0));
    EXPECT_EQ(0, +Ctl()->cTabs);
    EXPECT_EQ(nullptr, +Ctl()->pTabs);
}

TEST_F(ListLayout, TabStopOfZeroBecomesFiftyFiveAndNoStopSeventy)
{
    Make("%ss", HLS_TABS);
    Send(HLM_SETTABS, 1, 0);
    EXPECT_EQ(55, Ctl()->pTabs[0]);
    Send(HLM_SETTABS, 1, -9);
    EXPECT_EQ(55, Ctl()->pTabs[0]);
    Send(HLM_SETTABS, 0);
    Add({ "a\tb" });
    InvalidateRect(list, nullptr, TRUE);
    UpdateWindow(list);
    ASSERT_EQ(1, +Ctl()->cTabs);
    EXPECT_EQ(70, Ctl()->pTabs[0]);
}

TEST_F(ListLayout, MoreTabStopsThanMemoryHoldsAreNone)
{
    Make("%ss", HLS_TABS);
    const int stops[] = { 20, 90 };
    SendPtr(HLM_SETTABS, 2, stops);
    EXPECT_EQ(1, Send(HLM_SETTABS, 0x40000001)); // times four it is 4 in 32 bits
    EXPECT_EQ(0, +Ctl()->cTabs);
    EXPECT_EQ(nullptr, +Ctl()->pTabs);
}

TEST_F(ListLayout, PageOfTheVerticalBarIsOneRowMoreThanShow)
{
    const auto page = [&](int bar) {
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_PAGE;
        GetScrollInfo(list, bar, &info);
        return static_cast<int>(info.nPage);
    };
    Make();
    ShowRows(4);
    Fill(30);
    EXPECT_EQ(Ctl()->cRows + 1, page(SB_VERT));
    MakeColumns(3, 60, 40);
    EXPECT_EQ(0, page(SB_HORZ));
}

TEST_F(ListLayout, ScrolledFieldIsErasedOnlyWithoutItems)
{
    Make("%ss", HLS_FIELD | HLS_NOSCROLL, 100, 30);
    Fill(5);
    bool painted = false;
    parent.OnMessage(WM_CTLCOLORLISTBOX, [&](WPARAM, LPARAM) {
        painted = true;
        return reinterpret_cast<LRESULT>(GetStockObject(WHITE_BRUSH));
    });
    EXPECT_FALSE(InvalidatedBy([&] { Send(HLM_SCROLL, 1); }).erases);
    EXPECT_TRUE(painted) << "at once";
    HLEmptyList(list);
    EXPECT_TRUE(InvalidatedBy([&] { Send(HLM_SCROLL, static_cast<WPARAM>(-1)); }).erases);
}

TEST_F(ListLayout, PageOfFewRowsIsOne)
{
    for (const int rows : { 1, 2 }) {
        Make();
        ShowRows(rows);
        Fill(10);
        Send(WM_VSCROLL, SB_PAGEDOWN);
        EXPECT_EQ(1, Top()) << rows << " rows";
        Send(WM_VSCROLL, SB_PAGEDOWN);
        Send(WM_VSCROLL, SB_PAGEUP);
        EXPECT_EQ(1, Top()) << rows << " rows";
    }
}

TEST_F(ListLayout, HeightOfAMoveWithoutASizeIsNotTrimmed)
{
    Make();
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(SYSTEM_FONT)));
    WINDOWPOS pos = {};
    pos.hwnd = list;
    pos.cx = 150;
    pos.cy = 5 * RowHeight() + 5;
    pos.flags = SWP_NOSIZE;
    SendPtr(WM_WINDOWPOSCHANGING, 0, &pos);
    EXPECT_EQ(5 * RowHeight() + 5, pos.cy);
    pos.flags = 0;
    SendPtr(WM_WINDOWPOSCHANGING, 0, &pos);
    EXPECT_EQ(5 * RowHeight() + 2, pos.cy);
}

} // namespace
