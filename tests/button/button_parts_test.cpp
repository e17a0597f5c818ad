// Buttons of the navigator's ids, which the host may paint.
#include "button_window.h"

#include "support/part_calls.h"
#include "support/pixels.h"

namespace {

constexpr COLORREF black = RGB(0, 0, 0);

HWND gPartVictim;

int CALLBACK PaintPart(int part, HDC hdc, RECT* rect, int enabled, int pressed, int reserved)
{
    const int answer = NotePart(part, rect, enabled, pressed, reserved);
    FillRect(hdc, rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    if (gPartVictim) {
        DestroyWindow(gPartVictim);
    }
    return answer;
}

class ButtonParts : public ButtonWindow {
protected:
    ButtonParts()
    {
        gParts.clear();
        gPartAnswer = 1;
        gPartVictim = nullptr;
        SetGridDrawPartFnc(PaintPart);
    }
    ~ButtonParts() override { SetGridDrawPartFnc(nullptr); }
    void MakePart(int id)
    {
        if (button && IsWindow(button)) {
            DestroyWindow(button);
        }
        button = WindowTest::Create("HButt", "", HBS_NOFOCUS, id, { 10, 10, 40, 30 });
        PumpPending();
        gParts.clear();
    }
};

TEST_F(ButtonParts, NavigatorsButtonsArePaintedByTheHost)
{
    const RECT client = { 0, 0, 40, 30 };
    const int  rows[][2] = { { 4188, 5 }, { 4189, 6 }, { 4190, 7 }, { 4191, 9 } };
    for (const auto& [id, part] : rows) {
        MakePart(id);
        InvalidateRect(button, nullptr, TRUE);
        EXPECT_TRUE(ShotOf(button).IsAll(black, { 0, 0, 40, 30 }));
        ASSERT_EQ(1u, gParts.size()) << id;
        EXPECT_EQ(part, gParts[0].part);
        EXPECT_TRUE(EqualRect(&client, &gParts[0].rect));
        EXPECT_NE(0, gParts[0].enabled);
        EXPECT_EQ(0, gParts[0].pressed);
        EXPECT_EQ(0, gParts[0].reserved);
    }
}

TEST_F(ButtonParts, OtherButtonsAreNot)
{
    for (const int id : { 4187, 4192, 7 }) {
        MakePart(id);
        InvalidateRect(button, nullptr, TRUE);
        UpdateWindow(button);
        EXPECT_TRUE(gParts.empty()) << id;
    }
}

TEST_F(ButtonParts, HostThatDoesNotPaintLeavesItToTheButton)
{
    gPartAnswer = 0;
    MakePart(4188);
    InvalidateRect(button, nullptr, TRUE);
    EXPECT_FALSE(ShotOf(button).IsAll(black, { 0, 0, 40, 30 }));
    EXPECT_EQ(1u, gParts.size());
}

TEST_F(ButtonParts, HostMayDestroyTheButton)
{
    for (const int answer : { 0, 1 }) {
        MakePart(4188);
        gPartAnswer = answer;
        gPartVictim = button;
        InvalidateRect(button, nullptr, TRUE);
        UpdateWindow(button);
        EXPECT_FALSE(IsWindow(button));
        gPartVictim = nullptr;
        gPartAnswer = 1;
    }
}

} // namespace
