// Buttons at one and a half times the usual resolution: the images of the strip grow, gaps stay.
#include "button_window.h"

#include "button/drawing_test_support.h"
#include "support/larger_images.h"

namespace {

constexpr int imageSide = LargerImages::side;

class ButtonAt144Dpi : public ButtonWindow {
protected:
    ~ButtonAt144Dpi() override
    {
        if (button && IsWindow(button)) {
            DestroyWindow(button);
        }
        DeleteObject(paper_);
    }
    void MakeFlat(const char* text, DWORD style = HBS_PUSH)
    {
        Make(text, style | HBS_NOFACE, 100, 60);
        Send(HBM_SETBKBRUSH, reinterpret_cast<WPARAM>(paper_));
    }
    testing::AssertionResult ShowsImage(int image, int x, int y)
    {
        Canvas canvas(imageSide, imageSide);
        canvas.Fill(paper);
        ImageList_Draw(hCheckImages, image, canvas.hdc(), 0, 0, ILD_TRANSPARENT);
        const Pixels wanted = canvas.Shot();
        const Pixels shot = ShotOf(button);
        for (int row = 0; row < imageSide; ++row) {
            for (int col = 0; col < imageSide; ++col) {
                if (wanted.At(col, row) != shot.At(x + col, y + row)) {
                    return testing::AssertionFailure() << "image " << image << " differs at " << col << ", " << row;
                }
            }
        }
        return testing::AssertionSuccess();
    }

private:
    LargerImages images_;
    HBRUSH       paper_ = CreateSolidBrush(paper);
};

TEST_F(ButtonAt144Dpi, ImagesOfTheStripAreTwentyByTwenty)
{
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(hCheckImages, &width, &height);
    EXPECT_EQ(imageSide, width);
    EXPECT_EQ(imageSide, height);
    MakeFlat("444;;IM0");
    EXPECT_TRUE(ShowsImage(0, 40, 20));
    const Pixels shot = ShotOf(button);
    const RECT   ink = shot.InkBounds(paper, shot.Bounds());
    EXPECT_EQ(40, ink.left);
    EXPECT_EQ(20, ink.top);
    EXPECT_EQ(60, ink.right);
    EXPECT_EQ(40, ink.bottom);
}

TEST_F(ButtonAt144Dpi, EachStateShowsItsImage)
{
    MakeFlat("488;;IM0:IM1:IM2:IM3", HBS_CHECK | HBS_UPDOWN);
    EXPECT_TRUE(ShowsImage(0, 80, 40));
    Send(BM_SETCHECK, 1);
    EXPECT_TRUE(ShowsImage(2, 80, 40));
}

TEST_F(ButtonAt144Dpi, CaptionStandsFivePixelsBesideTheLargerImage)
{
    MakeFlat("333;Hi;IM0");
    EXPECT_TRUE(ShowsImage(0, 0, 20));
    const Pixels shot = ShotOf(button);
    EXPECT_TRUE(shot.IsAll(paper, { imageSide, 0, imageSide + 5, 60 }));
    const RECT caption = shot.InkBounds(paper, { imageSide + 5, 0, 100, 60 });
    EXPECT_FALSE(IsRectEmpty(&caption));
    EXPECT_LT(caption.left, imageSide + 10);
}

} // namespace
