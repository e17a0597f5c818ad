// Values in the look of a combo, as a grid's cells show them: those of the painters of edits and lists.
#include "combo/drop_window.h"
#include "edit/edit_control.h"
#include "support/pixels.h"

#include <functional>

namespace {

constexpr int      asData = 1;
constexpr int      asCode = 2;
constexpr COLORREF ink = RGB(0, 100, 0);

class DropPaint : public DropWindow {
protected:
    DropPaint() : canvas(130, 40), brush(CreateSolidBrush(RGB(250, 240, 200)))
    {
        grid.nMinRowHeight = grid.nRowHeight = 20;
    }
    ~DropPaint() override { DeleteObject(brush); }

    // With the items red 3, green 1 and blue 2.
    void MakeColours(DWORD style, const char* text = "%100%ss%nl")
    {
        combo = Create("HComb", text, style | HCS_DROPDOWN | HCS_3DBORDER, 7, usual);
        drop = Ctl()->hDrop;
        const char* const names[] = { "red", "green\tgrass", "blue" };
        constexpr LONG    codes[] = { 3, 1, 2 };
        for (int i = 0; i < 3; ++i) {
            HCAddItemEx(combo, names[i], &codes[i]);
        }
    }
    Pixels Shot(const std::function<void(RECT*)>& draw)
    {
        canvas.Fill(RGB(255, 255, 255));
        RECT rect = { 10, 5, 110, 30 };
        draw(&rect);
        return canvas.Shot();
    }
    Pixels Draw(const void* value, int kind)
    {
        return Shot(
            [&](RECT* rect) { result = HCDrawValue(Ctl(), canvas.hdc(), rect, brush, value, kind, &grid, ink); });
    }
    Pixels AsEdit(const void* value)
    {
        HEditCtl* const edit = reinterpret_cast<HEditCtl*>(+Ctl()->pChild);
        return Shot([&](RECT* rect) { HEDrawValue(edit, canvas.hdc(), rect, brush, value, 0, &grid, ink); });
    }
    Pixels AsField(const void* value, int kind)
    {
        HListCtl* const field = reinterpret_cast<HListCtl*>(+Ctl()->pChild);
        return Shot([&](RECT* rect) { HLDrawValue(field, canvas.hdc(), rect, brush, value, kind, ink); });
    }

    Canvas    canvas;
    HBRUSH    brush;
    HGridData grid = {};
    int       result = -1;
};

constexpr LONG green = 1;
constexpr LONG unknown = 9;

TEST_F(DropPaint, EditShowsDataAsItIs)
{
    MakeColours(HCS_EDIT);
    EXPECT_TRUE(SamePixels(AsEdit("violet"), Draw("violet", asData)));
    EXPECT_EQ(1, result);
    EXPECT_FALSE(SamePixels(AsEdit(""), Draw("violet", asData)));
    EXPECT_TRUE(SamePixels(AsEdit(nullptr), Draw(nullptr, asData)));
}

TEST_F(DropPaint, EditShowsTheItemOfACode)
{
    MakeColours(HCS_EDIT);
    EXPECT_TRUE(SamePixels(AsEdit("green\tgrass"), Draw(&green, asCode)));
    EXPECT_EQ(1, result);
    EXPECT_TRUE(SamePixels(AsEdit(""), Draw(&unknown, asCode)));
    EXPECT_TRUE(SamePixels(AsEdit(nullptr), Draw(nullptr, asCode)));
}

TEST_F(DropPaint, EditShowsAnItemAsFarAsItsFirstTab)
{
    MakeColours(HCS_EDIT | HCS_TABS);
    EXPECT_TRUE(SamePixels(AsEdit("green"), Draw(&green, asCode)));
}

TEST_F(DropPaint, EditOfNumbersShowsTheNumberOfACode)
{
    combo = Create("HComb", "%100%nl%nl0.00", HCS_EDIT | HCS_DROPDOWN, 7, usual);
    drop = Ctl()->hDrop;
    constexpr LONG amount = 12345;
    HCAddItemEx(combo, &amount, &green);
    EXPECT_TRUE(SamePixels(AsEdit(&amount), Draw(&green, asCode)));
    EXPECT_TRUE(SamePixels(AsEdit(nullptr), Draw(&unknown, asCode)));
}

TEST_F(DropPaint, EditWithoutAListShowsNoCode)
{
    MakeColours(HCS_EDIT, "%ss%nl");
    ASSERT_EQ(nullptr, drop);
    const Pixels blank = Shot([](RECT*) {});
    EXPECT_TRUE(SamePixels(blank, Draw(&green, asCode)));
    EXPECT_EQ(0, result);
    EXPECT_TRUE(SamePixels(AsEdit("violet"), Draw("violet", asData)));
    EXPECT_EQ(1, result);
}

TEST_F(DropPaint, FieldShowsWhatAListWouldShow)
{
    MakeColours(0);
    EXPECT_TRUE(SamePixels(AsField(&green, asCode), Draw(&green, asCode)));
    EXPECT_EQ(1, result);
    EXPECT_FALSE(SamePixels(AsField(nullptr, asCode), Draw(&green, asCode)));
    EXPECT_TRUE(SamePixels(AsField("blue", asData), Draw("blue", asData)));
    EXPECT_TRUE(SamePixels(AsField(nullptr, asData), Draw(nullptr, asData)));
}

TEST_F(DropPaint, FieldWithoutAListShowsNothing)
{
    MakeColours(0, "%ss%nl");
    const Pixels blank = Shot([](RECT*) {});
    EXPECT_TRUE(SamePixels(blank, Draw("blue", asData)));
    EXPECT_EQ(0, result);
}

TEST_F(DropPaint, EditOfShortNumbersShowsTheNumberOfACode)
{
    combo = Create("HComb", "%100%ns%nl", HCS_EDIT | HCS_DROPDOWN | HCS_TABS, 7, usual);
    drop = Ctl()->hDrop;
    constexpr short number = 9 + 256; // its first byte is that of a tab
    HCAddItemEx(combo, &number, &green);
    EXPECT_TRUE(SamePixels(AsEdit(&number), Draw(&green, asCode)));
    EXPECT_TRUE(SamePixels(AsEdit(nullptr), Draw(&unknown, asCode)));
}

} // namespace
