// Values drawn in the look of a control: in grid cells and lists.
#include "edit_window.h"
#include "foundation/memory.h"
#include "support/guarded_memory.h"
#include "support/pixels.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF paper = RGB(250, 240, 200);
constexpr COLORREF ink = RGB(0, 0, 200);
constexpr COLORREF minusInk = RGB(200, 0, 0);
constexpr COLORREF cellInk = RGB(0, 100, 0);
constexpr COLORREF mark = 0x00A00000;

constexpr int left = 10;
constexpr int top = 5;
constexpr int right = 110;
constexpr int bottom = 25;

class EditDrawValue : public EditWindow {
protected:
    EditDrawValue() : canvas(130, 60), brush(CreateSolidBrush(paper)) { data.nMinRowHeight = data.nRowHeight = 20; }
    ~EditDrawValue() override { DeleteObject(brush); }

    void Make(const char* text, DWORD style = 0)
    {
        edit = nullptr;
        Create(text, style);
        ShowWindow(edit, SW_HIDE);
        if (!font) {
            UseFont();
        }
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(font));
        Send(HEM_SETCOLOR, 0, ink);
        Send(HEM_SETCOLOR, 1, minusInk);
    }
    Pixels Draw(const void* value, int align = 0, COLORREF color = 0)
    {
        canvas.Fill(white);
        rect = { left, top, right, bottom };
        result = HEDrawValue(Ctl(), canvas.hdc(), &rect, brush, value, align, &data, color);
        return canvas.Shot();
    }
    RECT Cell() const { return { left, top, right, bottom }; }
    // Where the text stands.
    RECT TextInk(const Pixels& shot) const { return shot.InkBounds(paper, Cell()); }
    bool IsMarked(const Pixels& shot) const { return shot.Count(mark, shot.Bounds()) > 0; }

    Canvas    canvas;
    HBRUSH    brush;
    HGridData data = {};
    RECT      rect = {};
    int       result = 0;
};

TEST_F(EditDrawValue, FillsTheRectAndNothingElse)
{
    Make("%ss");
    const Pixels shot = Draw("");
    EXPECT_TRUE(shot.IsAll(paper, Cell()));
    EXPECT_EQ((right - left) * (bottom - top), shot.Count(paper, shot.Bounds()));
    EXPECT_EQ(1, result);
}

TEST_F(EditDrawValue, ShrinksTheRectThatIsHandedIn)
{
    Make("%ss");
    Draw("");
    EXPECT_EQ(left + 5, rect.left);
    EXPECT_EQ(top + 2, rect.top);
    EXPECT_EQ(right - 5, rect.right);
    EXPECT_EQ(bottom - 2, rect.bottom);
}

TEST_F(EditDrawValue, TextStandsInsideTheMargins)
{
    Make("%ss");
    const RECT text = TextInk(Draw("HHH"));
    EXPECT_NEAR(left + 5, text.left, 2);
    EXPECT_GE(text.left, left + 5);
    EXPECT_GE(text.top, top + 2);
}

TEST_F(EditDrawValue, AlignOneStandsAtTheRight)
{
    Make("%ss");
    const RECT text = TextInk(Draw("HHH", 1));
    EXPECT_NEAR(right - 5, text.right, 2);
    EXPECT_LE(text.right, right - 5);
}

TEST_F(EditDrawValue, AlignTwoStandsInTheMiddle)
{
    Make("%ss");
    const RECT text = TextInk(Draw("HHH", 2));
    EXPECT_NEAR(left + right, text.left + text.right, 3);
}

TEST_F(EditDrawValue, LooksAsThePlatformDrawsText)
{
    struct Case {
        int  align;
        UINT flags;
    };
    const Case cases[] = { { 0, 10272 }, { 1, 2082 }, { 2, 2081 } };
    Make("%ss");
    for (const Case& row : cases) {
        const Pixels drawn = Draw("Agj & Wy", row.align);
        canvas.Fill(white);
        RECT area = Cell();
        FillRect(canvas.hdc(), &area, brush);
        InflateRect(&area, -5, -2);
        const HGDIOBJ old = SelectObject(canvas.hdc(), font);
        SetBkMode(canvas.hdc(), TRANSPARENT);
        SetTextColor(canvas.hdc(), ink);
        DrawTextA(canvas.hdc(), "Agj & Wy", -1, &area, row.flags);
        SelectObject(canvas.hdc(), old);
        EXPECT_TRUE(SamePixels(canvas.Shot(), drawn)) << "align " << row.align;
    }
}

TEST_F(EditDrawValue, TakesTheColourOfTheControlUnlessOneIsGiven)
{
    Make("%ss");
    EXPECT_GT(Draw("HHH").Count(ink, Cell()), 10);
    EXPECT_GT(Draw("HHH", 0, cellInk).Count(cellInk, Cell()), 10);
}

TEST_F(EditDrawValue, NegativeValueHasItsColourWhateverIsGiven)
{
    Make("%nl0");
    const int    value = -888;
    const Pixels shot = Draw(&value, 1, cellInk);
    EXPECT_GT(shot.Count(minusInk, Cell()), 10);
    EXPECT_EQ(0, shot.Count(cellInk, Cell()));
    EXPECT_FALSE(HasFlag(Ctl(), HEF_NEGATIVE)) << "the control itself stays as it is";
}

TEST_F(EditDrawValue, ShowsTheDisplayForm)
{
    Make("%nl(0)");
    const int    value = 88;
    const Pixels shot = Draw(&value);
    Make("%ss");
    EXPECT_TRUE(SamePixels(Draw("(88)"), shot));
}

TEST_F(EditDrawValue, NullShowsTheEmptyText)
{
    Make("%nl");
    EXPECT_TRUE(Draw(nullptr).IsAll(paper, Cell()));
    SendText(HEM_SETFORMAT, 0, "0;-0;none");
    const Pixels shot = Draw(nullptr);
    Make("%ss");
    EXPECT_TRUE(SamePixels(Draw("none"), shot));
}

TEST_F(EditDrawValue, LeavesTheControlAsItWas)
{
    Make("%nl");
    Send(HEM_SETDATA, 0, 0);
    const int value = 5;
    Draw(&value);
    EXPECT_EQ(1, Send(WWM_ISNULL));
    EXPECT_EQ("", Text());
    Send(HEM_SETDATA, 0, AsParam(&value));
    Draw(nullptr);
    EXPECT_EQ(0, Send(WWM_ISNULL));
    EXPECT_EQ("5", Text());
}

TEST_F(EditDrawValue, NullFlagTellsOfTheCellWhileTheParentIsAskedForABrush)
{
    Make("%nl");
    std::vector<LRESULT> nulls;
    parent.OnMessage(WM_CTLCOLOREDIT, [&](WPARAM, LPARAM) {
        nulls.push_back(Send(WWM_ISNULL));
        return reinterpret_cast<LRESULT>(GetStockObject(WHITE_BRUSH));
    });
    const int value = 5;
    rect = Cell();
    HEDrawValue(Ctl(), canvas.hdc(), &rect, nullptr, nullptr, 0, &data, 0);
    rect = Cell();
    HEDrawValue(Ctl(), canvas.hdc(), &rect, nullptr, &value, 0, &data, 0);
    EXPECT_EQ((std::vector<LRESULT>{ 1, 0 }), nulls);
}

TEST_F(EditDrawValue, TextThatFitsHasNoMark)
{
    Make("%ss");
    for (const int align : { 0, 1, 2 }) {
        EXPECT_FALSE(IsMarked(Draw("HHH", align))) << "align " << align;
        EXPECT_FALSE(IsMarked(Draw("", align))) << "align " << align;
    }
}

TEST_F(EditDrawValue, TextThatDoesNotFitHasThreeDotsAtTheRight)
{
    Make("%ss");
    for (const int align : { 0, 2 }) {
        const Pixels shot = Draw("HHHHHHHHHHHHHHHHHHHH", align);
        EXPECT_EQ(3, shot.Count(mark, shot.Bounds())) << "align " << align;
        for (const int x : { right - 5, right - 3, right - 1 }) {
            EXPECT_EQ(mark, shot.At(x, bottom - 3)) << "align " << align;
        }
    }
}

TEST_F(EditDrawValue, RightAlignedTextThatDoesNotFitHasThreeDotsAtTheLeft)
{
    Make("%ss");
    const Pixels shot = Draw("HHHHHHHHHHHHHHHHHHHH", 1);
    EXPECT_EQ(3, shot.Count(mark, shot.Bounds()));
    for (const int x : { left, left + 2, left + 4 }) {
        EXPECT_EQ(mark, shot.At(x, bottom - 3));
    }
}

TEST_F(EditDrawValue, RightAlignedTextThatDoesNotFitShowsItsEnd)
{
    Make("%ss");
    const Pixels cut = Draw("HHHHHHHHHHHHHHHHHHHHiii", 1);
    const Pixels tail = Draw("iii", 1);
    const RECT   end = TextInk(tail);
    EXPECT_TRUE(SamePixels(tail, cut, end));
}

TEST_F(EditDrawValue, CellTooNarrowForATextIsMarkedAndAnEmptyOneNot)
{
    Make("%ss");
    canvas.Fill(white);
    for (const int align : { 0, 1, 2 }) {
        rect = { 20, 5, 26, 25 };
        HEDrawValue(Ctl(), canvas.hdc(), &rect, brush, "", align, &data, 0);
        EXPECT_FALSE(IsMarked(canvas.Shot())) << "align " << align;
    }
    rect = { 20, 5, 26, 25 };
    HEDrawValue(Ctl(), canvas.hdc(), &rect, brush, "H", 0, &data, 0);
    EXPECT_TRUE(IsMarked(canvas.Shot()));
}

TEST_F(EditDrawValue, RowOfTwoLinesWrapsTheText)
{
    Make("%ss");
    data.nRowHeight = 44;
    canvas.Fill(white);
    rect = { left, top, right, 49 };
    const RECT cell = rect;
    HEDrawValue(Ctl(), canvas.hdc(), &rect, brush, "HHHHHHHH HHHHHHHH", 0, &data, 0);
    const Pixels shot = canvas.Shot();
    EXPECT_GT(shot.InkBounds(paper, cell).bottom, top + 22);
    EXPECT_FALSE(IsMarked(shot));
}

TEST_F(EditDrawValue, TextOfMoreLinesThanTheRowHoldsIsMarked)
{
    Make("%ss");
    data.nRowHeight = 44;
    canvas.Fill(white);
    rect = { left, top, right, 49 };
    HEDrawValue(Ctl(), canvas.hdc(), &rect, brush, "HHHHHHHH HHHHHHHH HHHHHHHH HHHHHHHH", 0, &data, 0);
    EXPECT_EQ(3, canvas.Shot().Count(mark, canvas.Shot().Bounds()));
}

TEST_F(EditDrawValue, OneLineInALowRowThatWrapsHasNoMark)
{
    Make("%ss");
    data.nMinRowHeight = 0;
    data.nRowHeight = 12;
    for (const char* const text : { "HHH", "HHHHHHHH HHHHHHHH" }) {
        canvas.Fill(white);
        rect = { left, top, right, top + 12 };
        HEDrawValue(Ctl(), canvas.hdc(), &rect, brush, text, 0, &data, 0);
        EXPECT_EQ(text[3] != 0, IsMarked(canvas.Shot())) << text;
    }
}

TEST_F(EditDrawValue, RowOfLessThanTwoLinesHoldsOne)
{
    Make("%ss");
    data.nRowHeight = 34;
    canvas.Fill(white);
    rect = { left, top, right, 39 };
    const RECT cell = rect;
    HEDrawValue(Ctl(), canvas.hdc(), &rect, brush, "HHHHHHHH HHHHHHHH", 0, &data, 0);
    EXPECT_LT(canvas.Shot().InkBounds(paper, { cell.left, cell.top, cell.right - 6, cell.bottom }).bottom, top + 22);
}

TEST_F(EditDrawValue, PasswordNeverShows)
{
    Make("%ss", HES_PASSWORD);
    const Pixels hidden = Draw("iii");
    Make("%ss");
    EXPECT_TRUE(SamePixels(Draw("***"), hidden));
}

TEST_F(EditDrawValue, LongTextIsReadUpToTheBuffer)
{
    Make("%ss");
    const std::string text(5000, 'H');
    EXPECT_TRUE(IsMarked(Draw(text.c_str())));
}

TEST_F(EditDrawValue, AllocatesNothing)
{
    Make("%nd#,##0.00");
    const double value = 1234.5;
    const int    before = AllocationCount();
    Draw(&value, 1);
    Draw(nullptr);
    EXPECT_EQ(before, AllocationCount());
}

TEST_F(EditDrawValue, LeavesTheFontOfTheDeviceContext)
{
    Make("%ss");
    const HGDIOBJ before = GetCurrentObject(canvas.hdc(), OBJ_FONT);
    Draw("HHH");
    EXPECT_EQ(before, GetCurrentObject(canvas.hdc(), OBJ_FONT));
}

TEST_F(EditDrawValue, DrawFieldTextWrapsWithoutControlAndGrid)
{
    Make("%ss");
    canvas.Fill(paper);
    const HGDIOBJ old = SelectObject(canvas.hdc(), font);
    SetBkMode(canvas.hdc(), TRANSPARENT);
    RECT area = { 0, 0, 60, 60 };
    EXPECT_TRUE(DrawFieldText(canvas.hdc(), &area, "HHHH HHHH", 9, 0, 0, nullptr, nullptr));
    const Pixels shot = canvas.Shot();
    EXPECT_GT(shot.InkBounds(paper, shot.Bounds()).bottom, 20);
    SelectObject(canvas.hdc(), old);
}

} // namespace
