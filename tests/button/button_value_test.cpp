// Buttons that paint values for the cells of a grid, and the finer points of where things stand on a face.
#include "button_window.h"

#include "button/draw.h"
#include "foundation/startup.h"
#include "support/guarded_memory.h"
#include "support/pixels.h"

namespace {

constexpr COLORREF paperColor = RGB(200, 220, 240);
constexpr int      cellWidth = 40;
constexpr int      cellHeight = 30;

struct ColorBrush {
    explicit ColorBrush(COLORREF color) : h(CreateSolidBrush(color)) {}
    ~ColorBrush() { DeleteObject(h); }
    ColorBrush(const ColorBrush&) = delete;
    ColorBrush& operator=(const ColorBrush&) = delete;

    HBRUSH h;
};

class ButtonValue : public ButtonWindow {
protected:
    HWND MakeCheck(const char* text, DWORD style) { return Make(text, HBS_CHECK | style, cellWidth, cellHeight); }

    Pixels Painted(WORD value) const
    {
        Canvas     canvas(cellWidth, cellHeight);
        const RECT rect = { 0, 0, cellWidth, cellHeight };
        canvas.Fill(paperColor);
        EXPECT_TRUE(HBDrawValue(Ctl(), canvas.hdc(), &rect, paper_.h, &value));
        return canvas.Shot();
    }
    void FocusAndPress()
    {
        Focus();
        Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
        ShotOf(button);
        ASSERT_EQ(button, GetFocus());
        ASSERT_TRUE(IsPressed());
    }
    // Whether an image of the strip stands at a place.
    static bool ShowsImage(const Pixels& shot, int image, int x, int y)
    {
        Canvas canvas(13, 13);
        canvas.Fill(paperColor);
        ImageList_Draw(hCheckImages, image, canvas.hdc(), 0, 0, ILD_TRANSPARENT);
        const Pixels wanted = canvas.Shot();
        for (int i = 0; i < 13 * 13; ++i) {
            if (wanted.At(i % 13, i / 13) != shot.At(x + i % 13, y + i / 13)) {
                return false;
            }
        }
        return true;
    }

    const ColorBrush paper_{ paperColor };
};

TEST_F(ButtonValue, ShowsNeitherTheFocusNorThePressOfTheButton)
{
    constexpr DWORD styles[] = { 0, HBS_NOFACE, HBS_NOFACE | HBS_UPDOWN, HBS_NOFACE | HBS_TRANSPARENT };
    for (const DWORD style : styles) {
        SCOPED_TRACE(style);
        MakeCheck("444;;IM0:IM6:IM7:IM11", style);
        const Pixels calm = Painted(0);
        FocusAndPress();
        EXPECT_TRUE(SamePixels(calm, Painted(0)));
        EXPECT_TRUE(IsPressed());
        Send(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    }
}

TEST_F(ButtonValue, IsOfferedToTheParentWithoutFocusAndPress)
{
    UINT state = 99;
    MakeCheck("444;;IM0:IM6", HBS_OWNERDRAW);
    FocusAndPress();
    parent.OnMessage(WM_DRAWITEM, [&](WPARAM, LPARAM lParam) {
        state = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->itemState;
        return LRESULT{ 1 };
    });
    Painted(1);
    EXPECT_EQ(0u, state);
    parent.OnMessage(WM_DRAWITEM, nullptr);
    Send(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
}

TEST_F(ButtonValue, OfAnUpDownButtonIsTheFirstOfItsTwoPictures)
{
    MakeCheck("444;;IM0:IM6:IM7:IM11", HBS_NOFACE | HBS_UPDOWN);
    EXPECT_TRUE(ShowsImage(Painted(0), 0, 13, 8));
    EXPECT_TRUE(ShowsImage(Painted(1), 7, 13, 8));
}

TEST_F(ButtonValue, StandsOnTheButtonsBrushThenOnTheCallersThenOnTheLibrarys)
{
    const ColorBrush focus(RGB(1, 2, 3));
    const ColorBrush own(RGB(4, 5, 6));
    MakeCheck("444;;", HBS_NOFACE);
    hFocusBrush = focus.h;
    EXPECT_EQ(paperColor, Painted(0).At(5, 5));
    Send(HBM_SETBKBRUSH, reinterpret_cast<WPARAM>(own.h));
    EXPECT_EQ(RGB(4, 5, 6), Painted(0).At(5, 5));
    hFocusBrush = nullptr;
    DestroyButton();
}

// On the face

TEST_F(ButtonValue, GreyedCaptionWithoutRoomIsNotDrawn)
{
    const std::string caption(240, 'x');
    const std::string below = "111;" + caption + ";IM0";
    const std::string beside = "333;" + caption + ";IM0";
    for (const DWORD style : { HBS_PUSH, HBS_SHADOWTEXT }) {
        Make(below.c_str(), style | HBS_NOFACE, 40, 13);
        EnableWindow(button, FALSE);
        const Pixels low = ShotOf(button);
        EXPECT_EQ(0, low.Count(RGB(255, 255, 255), { 0, 0, 5, 13 })) << style;
        Make(beside.c_str(), style | HBS_NOFACE, 18, 40);
        EnableWindow(button, FALSE);
        UpdateWindow(button);
    }
}

TEST_F(ButtonValue, PictureBesideAShadowedCaptionStandsAPixelFurther)
{
    LONG places[2] = {};
    for (const DWORD style : { DWORD{ 0 }, DWORD{ HBS_SHADOWTEXT } }) {
        Make("335;XX;IM0", style | HBS_NOFACE, 100, 60);
        Send(HBM_SETBKBRUSH, reinterpret_cast<WPARAM>(paper_.h));
        const Pixels shot = ShotOf(button);
        LONG&        x = places[style ? 1 : 0];
        while (x < 80 && !ShowsImage(shot, 0, static_cast<int>(x), 23)) {
            ++x;
        }
    }
    EXPECT_LT(places[0], 80);
    EXPECT_EQ(places[0] + 1, places[1]);
}

TEST_F(ButtonValue, PictureOfABitmapLeavesTheKeyColourOut)
{
    Make("400;;TESTTRUE", HBS_NOFACE, 40, 30);
    Send(HBM_SETBKBRUSH, reinterpret_cast<WPARAM>(paper_.h));
    EXPECT_EQ(RGB(10, 20, 30), ShotOf(button).At(0, 0));
    EXPECT_EQ(paperColor, ShotOf(button).At(3, 0)) << "pure green without being told";
    Send(HBM_SETPICKEY, 0, RGB(10, 20, 30));
    EXPECT_EQ(paperColor, ShotOf(button).At(0, 0));
    EXPECT_EQ(RGB(0, 255, 0), ShotOf(button).At(3, 0));
}

} // namespace
