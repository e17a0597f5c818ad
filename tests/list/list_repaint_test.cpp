// What a list repaints: ranges over several columns, the narrowest update rectangles, borders, tabs and brushes.
#include "griddata/grid_model.h"
#include "list_brushes.h"

namespace {

constexpr COLORREF scribble = RGB(255, 0, 255);

class ListRepaint : public ListBrushes {
protected:
    // Columns of 60 pixels, all of them in view.
    void MakeColumns(DWORD style, int rows, int count)
    {
        Make("%ss", HLS_MULTICOLUMN | HLS_NOSCROLL | style, 300);
        Send(HLM_SETCOLUMNWIDTH, 60);
        Fill(count);
        ShowRows(rows);
        ASSERT_EQ(rows, +Ctl()->cRows);
        Focus();
    }
    POINT PointOf(int index) const { return { ItemRect(index).left + 5, MiddleOf(index) }; }
    void  ExpectRepainted(const char* what) const
    {
        const Pixels after = ShotOf(list);
        InvalidateRect(list, nullptr, TRUE);
        EXPECT_TRUE(SamePixels(ShotOf(list), after)) << what;
    }
    void Scribble() const
    {
        const HDC    hdc = GetWindowDC(list);
        const HBRUSH pen = CreateSolidBrush(scribble);
        const RECT   top = { 0, 0, 50, 2 };
        FillRect(hdc, &top, pen);
        DeleteObject(pen);
        ReleaseDC(list, hdc);
    }
};

TEST_F(ListRepaint, DragOverSeveralColumnsShowsItsWholeRange)
{
    MakeColumns(HLS_EXTSEL, 3, 15);
    const auto moveTo = [this](int index) {
        const POINT at = PointOf(index);
        MoveMouse(list, at.x, at.y);
    };
    const POINT first = PointOf(4);
    PressButton(list, first.x, first.y);
    for (const int to : { 10, 7, 5, 1, 9, 3, 12, 0 }) {
        moveTo(to);
        ExpectRepainted(("to " + std::to_string(to)).c_str());
    }
    const POINT last = PointOf(0);
    ReleaseButton(list, last.x, last.y);
    EXPECT_EQ((Ints{ 0, 1, 2, 3, 4 }), Selected());
    ExpectRepainted("button up");
}

TEST_F(ListRepaint, ShiftClickInAnotherColumnShowsItsWholeRange)
{
    MakeColumns(HLS_EXTSEL, 3, 15);
    const POINT first = PointOf(1);
    const POINT second = PointOf(7);
    ClickAt(list, first.x, first.y);
    ClickAt(list, second.x, second.y, withShift);
    EXPECT_EQ((Ints{ 1, 2, 3, 4, 5, 6, 7 }), Selected());
    ExpectRepainted("from 1 to 7");
}

TEST_F(ListRepaint, ShiftKeyInAnotherColumnTakesTheHighlightOffTheRest)
{
    MakeColumns(HLS_EXTSEL, 6, 24);
    Send(HLM_SETCURRENT, 5);
    HLSelectItem(list, 5, HLSEL_SET);
    for (const auto& [key, current] : { std::pair<WORD, int>{ VK_DOWN, 6 },
                                        { VK_NEXT, 10 },
                                        { VK_PRIOR, 6 },
                                        { VK_RIGHT, 12 },
                                        { VK_LEFT, 6 },
                                        { VK_UP, 5 } }) {
        ShotOf(list);
        TypeKey(key, withShift);
        EXPECT_EQ(current, Current()) << "key " << key;
        ExpectRepainted(("key " + std::to_string(key)).c_str());
    }
}

TEST_F(ListRepaint, UpdateRectangleOnePixelWideIsPainted)
{
    MakeColumns(HLS_MULTISEL, 4, 12);
    Blur(); // the focus rectangle repaints its item whole
    HLSelectItems(list, HLSEL_SET, HLI_ALL, 0, nullptr);
    const int    height = RowHeight();
    const RECT   areas[] = { { 0, height - 1, 300, height },    { 0, 0, 300, 1 }, { 59, 0, 60, 4 * height },
                             { 60, 0, 61, 4 * height },         { 59, 1, 60, 2 }, { 5, height - 1, 6, height },
                             { 0, height - 1, 300, height + 1 } };
    const Pixels whole = ShotOf(list);
    for (const RECT& area : areas) {
        InvalidateRect(list, &area, TRUE);
        EXPECT_TRUE(SamePixels(whole, ShotOf(list))) << area.left << ", " << area.top;
    }
}

TEST_F(ListRepaint, SunkenBorderIsDrawnByScrollingAndByALayout)
{
    Make("%ss", HLS_3DBORDER | HLS_NOSCROLL);
    Fill(20);
    const Pixels whole = ShotOfWindow(list);
    Scribble();
    ASSERT_EQ(scribble, ShotOfWindow(list).At(20, 0));
    Send(HLM_SCROLL, 0);
    EXPECT_TRUE(SamePixels(whole, ShotOfWindow(list))) << "scrolled by nothing";
    Scribble();
    Send(HLM_RECALC);
    EXPECT_TRUE(SamePixels(whole, ShotOfWindow(list))) << "laid out";
    Scribble();
    Send(HLM_SETREDRAW, 0);
    Send(HLM_RECALC);
    Send(HLM_SETREDRAW, 1);
    EXPECT_EQ(scribble, ShotOfWindow(list).At(20, 0)) << "not while redraw is off";
}

TEST_F(ListRepaint, OnePartMoreThanTabStopsIsDrawnAndNoOther)
{
    Make("%ss", HLS_TABS | HLS_NOSCROLL);
    Send(HLM_SETTABS, 1, 40);
    Add({ "A\tHH\tHHHHHH", "A\tHH" });
    const Pixels shot = ShotOf(list);
    const RECT   first = shot.InkBounds(paper, ItemRect(0));
    const RECT   second = shot.InkBounds(paper, ItemRect(1));
    EXPECT_GT(first.right, HGScaleX(40));
    EXPECT_EQ(first.left, second.left);
    EXPECT_EQ(first.right, second.right);
}

TEST_F(ListRepaint, ListOfADisabledParentIsGrey)
{
    Make("%ss", HLS_NOSCROLL);
    Add({ "HHH" });
    parent.OnMessage(WM_CTLCOLORSTATIC, [this](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(otherBrush); });
    EnableWindow(parent.hwnd(), FALSE);
    InvalidateRect(list, nullptr, TRUE);
    const Pixels shot = ShotOf(list);
    EXPECT_GT(shot.Count(GetSysColor(COLOR_GRAYTEXT), ItemRect(0)), 5);
    EXPECT_TRUE(shot.IsAll(otherPaper, ItemRect(2)));
    EnableWindow(parent.hwnd(), TRUE);
}

TEST_F(ListRepaint, DisabledListTakesTheBrushOfListsWhereStaticsHaveNone)
{
    Make("%ss", HLS_NOSCROLL | WS_DISABLED);
    parent.OnMessage(WM_CTLCOLORSTATIC, [](WPARAM, LPARAM) { return LRESULT{ 0 }; });
    InvalidateRect(list, nullptr, TRUE);
    const Pixels shot = ShotOf(list);
    EXPECT_TRUE(shot.IsAll(paper, shot.Bounds()));
}

TEST_F(ListRepaint, ListOfAComboShowsThatTheComboHasTheFocus)
{
    hFocusBrush = otherBrush;
    const HWND elsewhere = WindowTest::Create("BUTTON", "", 0, 9, { 300, 150, 50, 20 });
    for (const int id : { 2, 3 }) {
        const HWND combos = WindowTest::Create("HList", "%ss", HLS_NOSCROLL, id, { 10, 10, 100, 60 });
        SetFocus(parent.hwnd());
        InvalidateRect(combos, nullptr, TRUE);
        Pixels shot = ShotOf(combos);
        EXPECT_TRUE(shot.IsAll(id == 2 ? otherPaper : paper, shot.Bounds())) << "id " << id;
        SetFocus(elsewhere);
        InvalidateRect(combos, nullptr, TRUE);
        shot = ShotOf(combos);
        EXPECT_TRUE(shot.IsAll(paper, shot.Bounds())) << "id " << id;
        DestroyWindow(combos);
    }
}

TEST_F(ListRepaint, FirstFocusBrushDiffersFromTheWindowColour)
{
    const int      element = COLOR_WINDOW;
    const COLORREF before = GetSysColor(element);
    for (const COLORREF color : { RGB(255, 255, 255), RGB(255, 255, 240) }) {
        SetSysColors(1, &element, &color);
        Make("%ss", HLS_FOCUSBRUSH);
        const HGDIOBJ wanted = GetStockObject(color == RGB(255, 255, 255) ? LTGRAY_BRUSH : WHITE_BRUSH);
        EXPECT_EQ(reinterpret_cast<LRESULT>(wanted), Send(HLM_GETFOCUSBRUSH)) << std::hex << color;
    }
    SetSysColors(1, &element, &before);
    Make("%ss");
    EXPECT_EQ(0, Send(HLM_GETFOCUSBRUSH)) << "without the style";
}

TEST_F(ListRepaint, BarThatComesAndMovesShowsAtOnce)
{
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HLS_MULTICOLUMN } }) {
        Make("%ss", style, 100, 60);
        UpdateWindow(list);
        for (const int count : { 40, 300 }) {
            Fill(count);
            Send(HLM_SETTOP, 20);
            UpdateWindow(list);
            const Pixels shown = ShotOfWindow(list);
            RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
            EXPECT_TRUE(SamePixels(ShotOfWindow(list), shown)) << count << " items, style " << style;
            ASSERT_TRUE(GetWindowLongA(list, GWL_STYLE) & (style ? WS_HSCROLL : WS_VSCROLL));
        }
    }
}

} // namespace
