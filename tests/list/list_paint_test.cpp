// What a list shows: highlight, colours, the field, the focus rectangle, owner drawing, and values drawn elsewhere.
#include "griddata/grid_model.h"
#include "list_brushes.h"

namespace {

constexpr COLORREF ink = RGB(180, 0, 0);
constexpr COLORREF negativeInk = RGB(0, 120, 0);
constexpr COLORREF markInk = 0x00A00000;

class ListPaintTest : public ListBrushes {
protected:
    ListPaintTest()
    {
        font = CreateFontA(-13, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                           CLIP_DEFAULT_PRECIS, NONANTIALIASED_QUALITY, DEFAULT_PITCH, "Tahoma");
        parent.OnMessage(WM_CTLCOLORSTATIC, [this](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(otherBrush); });
    }
    ~ListPaintTest() override
    {
        if (IsWindow(list)) {
            DestroyWindow(list);
        }
        DeleteObject(font);
    }
    void MakePainted(const char* text, DWORD style, int rows = 5)
    {
        const bool isField = (style & HLS_FIELD) != 0;
        Make(text, style | HLS_NOSCROLL | (isField ? 0 : WS_BORDER), 200, 24);
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(font));
        if (!isField) {
            ShowRows(rows);
        }
        Send(HLM_SETCOLOR, 0, ink);
        Send(HLM_SETCOLOR, 1, negativeInk);
    }
    // A row of the shot without its first pixels on the left, where the text stands, and without its border.
    static RECT Right(const RECT& row) { return { row.left + 120, row.top + 1, row.right - 2, row.bottom - 1 }; }

    HFONT    font;
    COLORREF highlight = GetSysColor(COLOR_HIGHLIGHT);
    COLORREF highlightText = GetSysColor(COLOR_HIGHLIGHTTEXT);
};

TEST_F(ListPaintTest, ItemsHaveTheBrushOfTheParentAndTheListsColour)
{
    MakePainted("%ss", 0);
    Add({ "HHH" });
    const Pixels shot = ShotOf(list);
    EXPECT_GT(shot.Count(ink, ItemRect(0)), 10);
    EXPECT_EQ(shot.width * shot.height, shot.Count(ink, shot.Bounds()) + shot.Count(paper, shot.Bounds()));
}

TEST_F(ListPaintTest, SelectedItemIsHighlighted)
{
    MakePainted("%ss", HLS_MULTISEL);
    Add({ "HHH", "HHH", "HHH" });
    HLSelectItem(list, 1, HLSEL_SET);
    const Pixels shot = ShotOf(list);
    EXPECT_TRUE(shot.IsAll(paper, Right(ItemRect(0))));
    EXPECT_TRUE(shot.IsAll(highlight, Right(ItemRect(1))));
    EXPECT_GT(shot.Count(highlightText, ItemRect(1)), 10);
    EXPECT_TRUE(shot.IsAll(paper, Right(ItemRect(2))));
    HLSelectItem(list, 1, HLSEL_CLEAR);
    EXPECT_EQ(0, ShotOf(list).Count(highlight, shot.Bounds()));
}

TEST_F(ListPaintTest, HotItemIsMarkedInPlaceOfTheSelection)
{
    MakePainted("%ss", HLS_HOTTRACK);
    Add({ "HHH", "HHH", "HHH" });
    Send(HLM_SETCURRENT, 0);
    MoveMouse(list, 5, MiddleOf(2));
    const Pixels shot = ShotOf(list);
    EXPECT_TRUE(shot.IsAll(paper, Right(ItemRect(0))));
    EXPECT_TRUE(shot.IsAll(highlight, Right(ItemRect(2))));
}

TEST_F(ListPaintTest, NegativeValueHasTheSecondColour)
{
    MakePainted("%ni", 0);
    AddNumbers({ 88, -88 });
    const Pixels shot = ShotOf(list);
    EXPECT_GT(shot.Count(ink, ItemRect(0)), 10);
    EXPECT_EQ(0, shot.Count(negativeInk, ItemRect(0)));
    EXPECT_GT(shot.Count(negativeInk, ItemRect(1)), 10);
    EXPECT_EQ(0, shot.Count(ink, ItemRect(1)));
}

TEST_F(ListPaintTest, ColoursOfTheTypeTextAreTakenOutOfIt)
{
    Make("%ni[red]0;[blue]-0");
    EXPECT_EQ(static_cast<LRESULT>(RGB(255, 0, 0)), Send(HLM_GETCOLOR, 0));
    EXPECT_EQ(static_cast<LRESULT>(RGB(0, 0, 255)), Send(HLM_GETCOLOR, 1));
    char format[16] = "";
    SendPtr(HLM_GETFORMAT, sizeof format, format);
    EXPECT_STREQ("0;-0", format);
}

TEST_F(ListPaintTest, DisabledListHasGreyTextAndTheBrushOfStatics)
{
    MakePainted("%ss", 0);
    Add({ "HHH" });
    EnableWindow(list, FALSE);
    InvalidateRect(list, nullptr, TRUE);
    const Pixels shot = ShotOf(list);
    EXPECT_GT(shot.Count(GetSysColor(COLOR_GRAYTEXT), ItemRect(0)), 10);
    EXPECT_TRUE(shot.IsAll(otherPaper, Right(ItemRect(3)))) << "below the items";
}

TEST_F(ListPaintTest, FocusedFieldWithoutACurrentItemIsHighlightedWithoutText)
{
    MakePainted("%ss", HLS_FIELD);
    Add({ "HHH" });
    Focus();
    const Pixels shot = ShotOf(list);
    const RECT   inner = { 3, 2, shot.width - 3, shot.height - 2 };
    EXPECT_TRUE(shot.IsAll(highlight, inner));
}

TEST_F(ListPaintTest, FieldShowsItsCurrentItemHighlightedOnlyWithTheFocus)
{
    MakePainted("%ss", HLS_FIELD);
    Add({ "HHH", "HHHHH" });
    Send(HLM_SETCURRENT, 1);
    Pixels shot = ShotOf(list);
    EXPECT_EQ(0, shot.Count(highlight, shot.Bounds()));
    EXPECT_GT(shot.Count(ink, shot.Bounds()), 10);
    EXPECT_TRUE(shot.IsAll(paper, Right(shot.Bounds())));
    Focus();
    shot = ShotOf(list);
    const RECT right = { 120, 3, shot.width - 4, shot.height - 3 };
    EXPECT_TRUE(shot.IsAll(highlight, right));
    EXPECT_GT(shot.Count(highlightText, shot.Bounds()), 10);
    Blur();
    shot = ShotOf(list);
    EXPECT_EQ(0, shot.Count(highlight, shot.Bounds()));
}

TEST_F(ListPaintTest, DisabledFieldHasTheBrushOfStaticsUnderItsItem)
{
    MakePainted("%ss", HLS_FIELD);
    Add({ "HHH" });
    Send(HLM_SETCURRENT, 0);
    EnableWindow(list, FALSE);
    InvalidateRect(list, nullptr, TRUE);
    const Pixels shot = ShotOf(list);
    EXPECT_TRUE(shot.IsAll(otherPaper, Right(shot.Bounds())));
    EXPECT_GT(shot.Count(GetSysColor(COLOR_GRAYTEXT), shot.Bounds()), 10);
}

TEST_F(ListPaintTest, FocusRectangleIsDrawnAndTakenAway)
{
    MakePainted("%ss", HLS_MULTISEL);
    Add({ "HHH", "HHH" });
    const Pixels plain = ShotOf(list);
    Focus();
    EXPECT_TRUE(Ctl()->wFlags & HLF_FOCUSRECT);
    const Pixels focused = ShotOf(list);
    EXPECT_FALSE(focused.IsAll(paper, { 120, 0, 190, 1 })) << "its upper edge";
    Send(HLM_SETCURRENT, 1);
    const Pixels moved = ShotOf(list);
    const int    edge = static_cast<int>(ItemRect(1).bottom) - 1;
    EXPECT_TRUE(moved.IsAll(paper, { 120, 0, 190, 1 }));
    EXPECT_FALSE(moved.IsAll(paper, { 120, edge, 190, edge + 1 }));
    Blur();
    EXPECT_FALSE(Ctl()->wFlags & HLF_FOCUSRECT);
    EXPECT_TRUE(SamePixels(plain, ShotOf(list)));
}

TEST_F(ListPaintTest, BrushOfTheHostWinsOverTheParents)
{
    MakePainted("%ss", 0);
    Add({ "HHH" });
    EXPECT_EQ(0, Send(HLM_SETBKBRUSH, reinterpret_cast<WPARAM>(otherBrush), 1));
    const Pixels shot = ShotOf(list);
    EXPECT_EQ(0, shot.Count(paper, shot.Bounds()));
    EXPECT_TRUE(shot.IsAll(otherPaper, Right(ItemRect(0))));
}

TEST_F(ListPaintTest, FocusBrushFillsTheFocusedList)
{
    MakePainted("%ss", HLS_FOCUSBRUSH | HLS_MULTISEL);
    EXPECT_NE(0, Send(HLM_GETFOCUSBRUSH)) << "a stock brush at first";
    Add({ "HHH", "HHH" });
    Send(HLM_SETFOCUSBRUSH, reinterpret_cast<WPARAM>(otherBrush), 1);
    EXPECT_TRUE(ShotOf(list).IsAll(paper, Right(ItemRect(1))));
    Focus();
    EXPECT_TRUE(ShotOf(list).IsAll(otherPaper, Right(ItemRect(1))));
    Blur();
    EXPECT_TRUE(ShotOf(list).IsAll(paper, Right(ItemRect(1))));
}

TEST_F(ListPaintTest, TextPartsStandAtTheTabStops)
{
    MakePainted("%ss", HLS_TABS);
    const int stops[] = { 40, 80 };
    SendPtr(HLM_SETTABS, 2, stops);
    Add({ "\t\tHHHH", "HHHHHHHHHHHHHH\tH" });
    const Pixels shot = ShotOf(list);
    const RECT   third = shot.InkBounds(paper, ItemRect(0));
    EXPECT_NEAR(HGScaleX(80), third.left, 2);
    RECT row = ItemRect(1);
    row.left = HGScaleX(40) - HGScaleX(2) + 1;
    row.right = HGScaleX(40);
    EXPECT_TRUE(shot.IsAll(paper, row)) << "a part ends before the next stop";
}

TEST_F(ListPaintTest, FieldCutsTheTextAtItsFirstTab)
{
    MakePainted("%ss", HLS_FIELD | HLS_TABS);
    Add({ "H\tHHHHHH", "H" });
    Send(HLM_SETCURRENT, 0);
    const Pixels cut = ShotOf(list);
    Send(HLM_SETCURRENT, 1);
    EXPECT_TRUE(SamePixels(ShotOf(list), cut));
}

TEST_F(ListPaintTest, PaintingAfterScrollingIsThatOfTheWholeList)
{
    for (const DWORD style : { 0u, static_cast<unsigned>(HLS_NOINTEGRAL), static_cast<unsigned>(HLS_MULTICOLUMN) }) {
        MakePainted("%ss", style, 4);
        Fill(60);
        Send(HLM_SETCURRENT, 1);
        for (const int delta : { 1, 3, -2, 30, -1 }) {
            ShotOf(list);
            Send(HLM_SCROLL, static_cast<WPARAM>(delta));
            const Pixels scrolled = ShotOf(list);
            InvalidateRect(list, nullptr, TRUE);
            EXPECT_TRUE(SamePixels(ShotOf(list), scrolled)) << "style " << style << " delta " << delta;
        }
    }
}

TEST_F(ListPaintTest, NothingIsPaintedWhileRedrawIsOff)
{
    MakePainted("%ss", 0);
    Add({ "HHH" });
    ShotOf(list);
    Send(HLM_SETREDRAW, 0);
    InvalidateRect(list, nullptr, TRUE);
    Send(WM_PAINT);
    EXPECT_TRUE(GetUpdateRect(list, nullptr, FALSE)) << "it waits";
    Send(HLM_SETREDRAW, 1);
    Send(WM_PAINT);
    EXPECT_FALSE(GetUpdateRect(list, nullptr, FALSE));
}

class ListOwnerDraw : public ListPaintTest {
protected:
    ListOwnerDraw()
    {
        parent.OnMessage(WM_DRAWITEM, [this](WPARAM, LPARAM lParam) {
            drawn.push_back(*reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
            return LRESULT{ 1 };
        });
    }
    std::vector<DRAWITEMSTRUCT> drawn;
};

TEST_F(ListOwnerDraw, OwnerDrawsEachItemInView)
{
    MakePainted("%ss", HLS_OWNERDRAW | HLS_MULTISEL, 3);
    Add({ "a", "b", "c", "d", "e" });
    HLSelectItem(list, 1, HLSEL_SET);
    ShotOf(list);
    drawn.clear();
    InvalidateRect(list, nullptr, TRUE);
    UpdateWindow(list);
    ASSERT_EQ(3u, drawn.size());
    for (size_t i = 0; i < drawn.size(); ++i) {
        EXPECT_EQ(2u, drawn[i].CtlType);
        EXPECT_EQ(7u, drawn[i].CtlID);
        EXPECT_EQ(i, drawn[i].itemID);
        EXPECT_EQ(2u, drawn[i].itemAction);
        EXPECT_EQ(i == 1 ? 1u : 0u, drawn[i].itemState);
        EXPECT_EQ(list, drawn[i].hwndItem);
        EXPECT_STREQ(Text(static_cast<int>(i)).c_str(), reinterpret_cast<const char*>(drawn[i].itemData));
        EXPECT_EQ(static_cast<int>(i) * RowHeight(), drawn[i].rcItem.top);
    }
}

TEST_F(ListOwnerDraw, OwnerDrawsTheFocus)
{
    MakePainted("%ss", HLS_OWNERDRAW, 3);
    Add({ "a", "b" });
    Send(HLM_SETCURRENT, 1);
    ShotOf(list);
    drawn.clear();
    Focus();
    ASSERT_FALSE(drawn.empty());
    EXPECT_EQ(4u, drawn[0].itemAction);
    EXPECT_EQ(16u, drawn[0].itemState);
    EXPECT_EQ(1u, drawn[0].itemID);
    drawn.clear();
    InvalidateRect(list, nullptr, TRUE);
    UpdateWindow(list);
    ASSERT_GE(drawn.size(), 2u);
    EXPECT_EQ(16u, drawn[0].itemState);
    EXPECT_EQ(17u, drawn[1].itemState);
}

TEST_F(ListOwnerDraw, OwnerOfAFieldWithoutACurrentItemGetsMinusOne)
{
    MakePainted("%ss", HLS_OWNERDRAW | HLS_FIELD);
    Add({ "a" });
    ShotOf(list);
    drawn.clear();
    InvalidateRect(list, nullptr, TRUE);
    UpdateWindow(list);
    ASSERT_EQ(1u, drawn.size());
    EXPECT_EQ(static_cast<UINT>(-1), drawn[0].itemID);
    EXPECT_EQ(0u, drawn[0].itemData);
    EXPECT_EQ(2, drawn[0].rcItem.left);
    EXPECT_EQ(3, drawn[0].rcItem.top);
}

class ListDrawValue : public ListOwnerDraw {
protected:
    int Draw(const void* value, int kind, int width, COLORREF color = 0)
    {
        RECT rect = { 0, 0, width, 24 };
        canvas.Fill(RGB(255, 255, 255));
        return HLDrawValue(Ctl(), canvas.hdc(), &rect, brush, value, kind, color);
    }
    Canvas canvas{ 200, 40 };
};

TEST_F(ListDrawValue, ValueIsFoundByDataCodeOrIndex)
{
    MakePainted("%ss%ni", 0);
    const int code = 5;
    HLAddItem(list, "none");
    HLAddItemEx(list, "HHH", &code);
    const int index = 1;
    EXPECT_EQ(1, Draw("HHH", 1, 100));
    const Pixels byData = canvas.Shot();
    EXPECT_GT(byData.Count(ink, byData.Bounds()), 10);
    EXPECT_EQ(paper, byData.At(0, 0));
    EXPECT_EQ(paper, byData.At(99, 23));
    EXPECT_NE(paper, byData.At(100, 23));
    Draw(&code, 2, 100);
    EXPECT_TRUE(SamePixels(byData, canvas.Shot()));
    Draw(&index, 4, 100);
    EXPECT_TRUE(SamePixels(byData, canvas.Shot()));
    Draw("HHH", 1, 100, negativeInk);
    EXPECT_GT(canvas.Shot().Count(negativeInk, byData.Bounds()), 10);
}

TEST_F(ListDrawValue, NullValueOrOneThatIsNotFoundShowsTheBackgroundAlone)
{
    MakePainted("%ss", 0);
    Add({ "HHH" });
    const WORD flags = Ctl()->wFlags;
    for (const char* const value : { static_cast<const char*>(nullptr), "other" }) {
        Draw(value, 1, 100);
        EXPECT_TRUE(canvas.Shot().IsAll(paper, { 0, 0, 100, 24 }));
        EXPECT_EQ(flags, Ctl()->wFlags & ~HLF_NEGATIVE);
    }
}

TEST_F(ListDrawValue, TextWithoutRoomGetsThreeDots)
{
    MakePainted("%ss", 0);
    Add({ "HHHHHHHHHHHHHHHH" });
    Draw("HHHHHHHHHHHHHHHH", 1, 40);
    const Pixels shot = canvas.Shot();
    EXPECT_EQ(3, shot.Count(markInk, shot.Bounds()));
    for (const int x : { 37, 39, 41 }) {
        EXPECT_EQ(markInk, shot.At(x, 21)) << "x " << x;
    }
    Draw("HHHHHHHHHHHHHHHH", 1, 200);
    EXPECT_EQ(0, canvas.Shot().Count(markInk, shot.Bounds()));
}

TEST_F(ListDrawValue, OwnerDrawsTheValue)
{
    MakePainted("%ss", HLS_OWNERDRAW);
    Add({ "a", "b" });
    ShotOf(list);
    drawn.clear();
    Draw("b", 1, 100);
    ASSERT_EQ(1u, drawn.size());
    EXPECT_EQ(1u, drawn[0].itemID);
    EXPECT_EQ(2u, drawn[0].itemAction);
    EXPECT_EQ(0u, drawn[0].itemState);
    EXPECT_EQ(3, drawn[0].rcItem.left);
    EXPECT_EQ(2, drawn[0].rcItem.top);
}

TEST_F(ListDrawValue, OwnerSeesWhetherThereIsAValue)
{
    MakePainted("%ss", HLS_OWNERDRAW);
    Add({ "a", "b" });
    ShotOf(list);
    Send(HLM_SETCURRENT, 0);
    LRESULT isNull = -1;
    parent.OnMessage(WM_DRAWITEM, [&](WPARAM, LPARAM) {
        isNull = Send(WWM_ISNULL);
        return LRESULT{ 1 };
    });
    Draw("b", 1, 100);
    EXPECT_EQ(0, isNull);
    Draw(nullptr, 1, 100);
    EXPECT_EQ(1, isNull);
    EXPECT_EQ(0, Send(WWM_ISNULL)) << "as it was";
}

} // namespace
