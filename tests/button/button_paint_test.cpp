// What a button shows: face, picture, caption, focus, by pixels; and whom it asks.
#include "button_window.h"

#include "button/draw.h"
#include "foundation/startup.h"
#include "support/pixels.h"

namespace {

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF paperColor = RGB(200, 220, 240);

bool IsSame(const RECT& a, const RECT& b)
{
    return EqualRect(&a, &b) != 0;
}

// A brush of its own for as long as a test runs.
struct PaperBrush {
    HBRUSH h = CreateSolidBrush(paperColor);
    ~PaperBrush() { DeleteObject(h); }
};

class ButtonPaint : public ButtonWindow {
protected:
    // A button without a face on the paper's colour.
    HWND MakeFlat(const char* text, DWORD style = HBS_PUSH, int width = 100, int height = 60)
    {
        Make(text, style | HBS_NOFACE, width, height);
        Send(HBM_SETBKBRUSH, reinterpret_cast<WPARAM>(paper_.h));
        return button;
    }
    // Where something is drawn.
    RECT Ink() const
    {
        const Pixels shot = ShotOf(button);
        return shot.InkBounds(paperColor, shot.Bounds());
    }
    bool Shows(COLORREF color) const
    {
        const Pixels shot = ShotOf(button);
        return shot.Count(color, shot.Bounds()) > 0;
    }
    // The picture of a strip's image on the paper, at 0, 0.
    Pixels ImageShot(int image) const
    {
        Canvas canvas(13, 13);
        canvas.Fill(paperColor);
        ImageList_Draw(hCheckImages, image, canvas.hdc(), 0, 0, ILD_TRANSPARENT);
        return canvas.Shot();
    }
    testing::AssertionResult ShowsImage(int image, int x, int y) const
    {
        const Pixels wanted = ImageShot(image);
        const Pixels shot = ShotOf(button);
        for (int row = 0; row < 13; ++row) {
            for (int col = 0; col < 13; ++col) {
                if (wanted.At(col, row) != shot.At(x + col, y + row)) {
                    return testing::AssertionFailure() << "image " << image << " differs at " << col << ", " << row;
                }
            }
        }
        return testing::AssertionSuccess();
    }

private:
    PaperBrush paper_;
};

// The nine cells

struct CellRow {
    char digit;
    int  x; // of a picture of 13 by 13 in 100 by 60
    int  y;
};

// clang-format off
constexpr CellRow cells[] = {
    { '0', 0, 0 },  { '1', 43, 0 },  { '2', 87, 0 },
    { '3', 0, 23 }, { '4', 43, 23 }, { '5', 87, 23 },
    { '6', 0, 47 }, { '7', 43, 47 }, { '8', 87, 47 },
};
// clang-format on

TEST_F(ButtonPaint, PictureStandsInEachOfTheNineCells)
{
    for (const CellRow& row : cells) {
        const std::string text = std::string(row.digit == '4' ? "0" : "4") + row.digit + "0;;IM0";
        MakeFlat(text.c_str());
        EXPECT_TRUE(ShowsImage(0, row.x, row.y)) << row.digit;
        EXPECT_TRUE(IsSame(Ink(), { row.x, row.y, row.x + 13, row.y + 13 })) << row.digit;
    }
}

TEST_F(ButtonPaint, PictureInTheCaptionsCellKeepsTheGapThoughThereIsNone)
{
    MakeFlat("443;;IM0");
    EXPECT_TRUE(ShowsImage(0, 41, 23));
}

TEST_F(ButtonPaint, CaptionStandsInEachOfTheNineCells)
{
    for (const CellRow& row : cells) {
        const std::string text = std::string(1, row.digit) + "00;Hi";
        MakeFlat(text.c_str());
        const RECT ink = Ink();
        ASSERT_FALSE(IsRectEmpty(&ink)) << row.digit;
        const LONG thirdX = (ink.left + ink.right) / 2 * 3 / 100;
        const LONG thirdY = (ink.top + ink.bottom) / 2 * 3 / 60;
        EXPECT_EQ(row.digit - '0', thirdY * 3 + thirdX) << ink.left << ", " << ink.top;
    }
}

TEST_F(ButtonPaint, CaptionStandsBesideThePictureInTheSameCell)
{
    MakeFlat("333;Hi;IM0");
    EXPECT_TRUE(ShowsImage(0, 0, 23));
    const RECT ink = Ink();
    EXPECT_GT(ink.right, 18);
    const Pixels shot = ShotOf(button);
    EXPECT_TRUE(shot.IsAll(paperColor, { 13, 0, 18, 60 })) << "the gap of 5";
}

// Pictures by state

TEST_F(ButtonPaint, PictureFollowsTheState)
{
    MakeFlat("444;;IM0:IM6:IM7", HBS_CHECK);
    const int images[] = { 0, 6, 7 };
    for (int value = 0; value < 3; ++value) {
        Send(BM_SETCHECK, static_cast<WPARAM>(value));
        EXPECT_TRUE(ShowsImage(images[value], 43, 23)) << value;
    }
}

TEST_F(ButtonPaint, PressedUpDownButtonShowsThePictureBehind)
{
    MakeFlat("444;;IM0:IM6:IM7:IM11", HBS_CHECK | HBS_UPDOWN);
    Send(BM_SETCHECK, 1);
    EXPECT_EQ(2, State());
    EXPECT_TRUE(ShowsImage(7, 43, 23));
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    const Pixels shot = ShotOf(button);
    const Pixels wanted = ImageShot(11);
    // The focus rectangle stands on the picture's edge.
    for (int i = 1; i < 12; ++i) {
        for (int k = 1; k < 12; ++k) {
            ASSERT_EQ(wanted.At(i, k), shot.At(43 + i, 23 + k)) << i << ", " << k;
        }
    }
    Send(WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
}

TEST_F(ButtonPaint, NullValueShowsTheLibrarysPicture)
{
    MakeFlat("444;;IM0:IM6", HBS_CHECK);
    Send(BM_SETCHECK, 1);
    Send(HBM_SETLINK);
    Canvas canvas(13, 13);
    canvas.Fill(paperColor);
    PaintPic(canvas.hdc(), &gNullPictures.normal, 0, 0, 0x00FF00);
    const Pixels wanted = canvas.Shot();
    const Pixels shot = ShotOf(button);
    for (int y = 0; y < 13; ++y) {
        for (int x = 0; x < 13; ++x) {
            ASSERT_EQ(wanted.At(x, y), shot.At(43 + x, 23 + y)) << x << ", " << y;
        }
    }
    EXPECT_EQ(1, State());
}

// Both are one picture of the library's, so the test puts others in their places.
TEST_F(ButtonPaint, PressedButtonShowsTheSecondNullPicture)
{
    MakeFlat("444;;IM0:IM0", HBS_CHECK);
    const NullPictures old = gNullPictures;
    gNullPictures.normal = { PIC_STRIP, INVALID_HANDLE_VALUE, nullptr, 6 };
    gNullPictures.pressed = { PIC_STRIP, INVALID_HANDLE_VALUE, nullptr, 7 };
    Send(HBM_SETLINK);
    EXPECT_TRUE(ShowsImage(6, 43, 23));
    Ctl()->wFlags |= HBF_PRESSED;
    InvalidateRect(button, nullptr, TRUE);
    EXPECT_TRUE(ShowsImage(7, 43, 23));
    gNullPictures = old;
}

TEST_F(ButtonPaint, StateWithoutAPictureShowsNone)
{
    MakeFlat("444;;IM0", HBS_CHECK);
    Send(BM_SETCHECK, 1);
    EXPECT_EQ(1, State());
    const RECT ink = Ink();
    EXPECT_TRUE(IsRectEmpty(&ink));
}

// Caption

TEST_F(ButtonPaint, CaptionHasItsColour)
{
    MakeFlat("444;[red]X");
    EXPECT_TRUE(Shows(red));
    Send(HBM_SETTEXTCOLOR, 0, RGB(0, 0, 255));
    EXPECT_FALSE(Shows(red));
    EXPECT_TRUE(Shows(RGB(0, 0, 255)));
}

TEST_F(ButtonPaint, ShadowIsWhiteAtThePixelBeyond)
{
    MakeFlat("444;XXX");
    const Pixels plain = ShotOf(button);
    const RECT   ink = plain.InkBounds(paperColor, plain.Bounds());
    EXPECT_EQ(0, plain.Count(white, plain.Bounds()));
    MakeFlat("444;XXX", HBS_SHADOWTEXT);
    const Pixels shaded = ShotOf(button);
    EXPECT_GT(shaded.Count(white, shaded.Bounds()), 0);
    const RECT both = shaded.InkBounds(paperColor, shaded.Bounds());
    EXPECT_EQ(ink.right - ink.left + 1, both.right - both.left);
    EXPECT_EQ(ink.bottom - ink.top + 1, both.bottom - both.top);
}

TEST_F(ButtonPaint, DisabledCaptionIsGreyed)
{
    MakeFlat("444;MMMMMM");
    const Pixels enabled = ShotOf(button);
    EnableWindow(button, FALSE);
    const Pixels disabled = ShotOf(button);
    const int    all = enabled.Count(black, enabled.Bounds());
    const int    left = disabled.Count(black, disabled.Bounds());
    EXPECT_GT(left, 0) << "half of its pixels are there";
    EXPECT_LT(left, all) << "and half of them not";
    const RECT before = enabled.InkBounds(paperColor, enabled.Bounds());
    const RECT after = disabled.InkBounds(paperColor, disabled.Bounds());
    EXPECT_NEAR(before.left, after.left, 1);
    EXPECT_NEAR(before.bottom, after.bottom, 1);
}

TEST_F(ButtonPaint, DisabledShadowIsWhite)
{
    MakeFlat("444;MMMMMM", HBS_SHADOWTEXT);
    EnableWindow(button, FALSE);
    EXPECT_TRUE(Shows(white));
    EXPECT_TRUE(Shows(black));
}

TEST_F(ButtonPaint, CaptionOfTwoLinesIsHigher)
{
    MakeFlat("444;X");
    const RECT one = Ink();
    MakeFlat("444;X^X");
    const RECT two = Ink();
    EXPECT_GT(two.bottom - two.top, one.bottom - one.top + 5);
}

TEST_F(ButtonPaint, AlignmentWithinTheCaptionsPlace)
{
    // Two lines of different length: the short one lies to a side of the long one.
    struct Row {
        DWORD style;
        LONG  sides; // ink of the short line: -1 left, 0 middle, 1 right
    };
    const Row rows[] = {
        { 0, 0 }, { HBS_LEFTTEXT, -1 }, { HBS_RIGHTTEXT, 1 }, { HBS_LEFTTEXT | HBS_RIGHTTEXT, 1 }
    };
    for (const Row& row : rows) {
        MakeFlat("444;WWWWWW^.", row.style);
        const Pixels shot = ShotOf(button);
        const RECT   all = shot.InkBounds(paperColor, shot.Bounds());
        const RECT   dot = shot.InkBounds(paperColor, { 0, (all.top + all.bottom) / 2 + 2, 100, 60 });
        const LONG   middle = (dot.left + dot.right) / 2;
        const LONG   third = (all.right - all.left) / 3;
        const LONG   side = middle < all.left + third ? -1 : middle > all.right - third ? 1 : 0;
        EXPECT_EQ(row.sides, side) << row.style;
    }
}

TEST(HBDrawText, DrawsTheCaptionInItsRectangleMovedToTheOrigin)
{
    char     caption[] = "X";
    HButtCtl ctl = {};
    ctl.pszCaption = caption;
    ctl.rcGray = { 500, 600, 540, 630 };
    Canvas canvas(40, 30);
    EXPECT_EQ(TRUE, HBDrawText(canvas.hdc(), reinterpret_cast<LPARAM>(&ctl), 1));
    const Pixels shot = canvas.Shot();
    const RECT   ink = shot.InkBounds(white, shot.Bounds());
    EXPECT_NEAR(20, (ink.left + ink.right) / 2, 2);
    EXPECT_NEAR(15, (ink.top + ink.bottom) / 2, 3);
    EXPECT_EQ(FALSE, HBDrawText(canvas.hdc(), 0, 1));
    ctl.pszCaption = nullptr;
    EXPECT_EQ(TRUE, HBDrawText(canvas.hdc(), reinterpret_cast<LPARAM>(&ctl), 0));
}

// Face and background

TEST_F(ButtonPaint, FaceIsThatOfPushButtons)
{
    struct Row {
        DWORD style;
        int   value;
        bool  pressed;
        WORD  flags;
    };
    const Row rows[] = {
        { HBS_PUSH, 0, false, 0 },          { HBS_PUSH, 0, true, DPB_PRESSED },
        { HBS_DEFPUSH, 0, false, DPB_DEFAULT }, { HBS_CHECK, 0, false, 0 },
        { HBS_CHECK, 1, false, DPB_PRESSED },   { HBS_THREESTATE, 1, false, DPB_PRESSED },
        { 3, 1, false, DPB_PRESSED },           { HBS_PUSH | 0x4000, 0, false, 0x0040 },
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << row.style << ", " << row.value << ", " << row.pressed);
        Make("444;;", row.style, 40, 30);
        Send(BM_SETCHECK, static_cast<WPARAM>(row.value));
        Ctl()->wFlags = static_cast<WORD>(row.pressed ? Ctl()->wFlags | HBF_PRESSED : Ctl()->wFlags & ~HBF_PRESSED);
        Canvas canvas(41, 31);
        RECT   rect = { 0, 0, 40, 30 };
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, row.flags, nullptr, nullptr, nullptr, 0, -1);
        EXPECT_TRUE(SamePixels(canvas.Shot(), ShotOf(button), { 0, 0, 40, 30 }));
    }
}

TEST_F(ButtonPaint, GlyphOfTheStripStandsOnTheFace)
{
    Make("444;;", HBS_PUSH, 40, 30);
    Ctl()->nGlyph = 6;
    InvalidateRect(button, nullptr, TRUE);
    Canvas canvas(41, 31);
    RECT   rect = { 0, 0, 40, 30 };
    DrawPushButton(nullptr, canvas.hdc(), &rect, 0, 0, nullptr, nullptr, nullptr, 0, 6);
    EXPECT_TRUE(SamePixels(canvas.Shot(), ShotOf(button), { 0, 0, 40, 30 }));
}

TEST_F(ButtonPaint, BackgroundIsTheFirstBrushThereIs)
{
    const PaperBrush asked;
    const HBRUSH     focus = CreateSolidBrush(RGB(1, 2, 3));
    const HBRUSH     own = CreateSolidBrush(RGB(4, 5, 6));
    parent.OnMessage(WM_CTLCOLORBTN, [&](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(asked.h); });
    Make("444;;", HBS_NOFACE, 40, 30);
    EXPECT_TRUE(ShotOf(button).IsAll(paperColor, { 0, 0, 40, 30 }));
    hFocusBrush = focus;
    InvalidateRect(button, nullptr, TRUE);
    EXPECT_TRUE(ShotOf(button).IsAll(RGB(1, 2, 3), { 0, 0, 40, 30 }));
    Send(HBM_SETBKBRUSH, reinterpret_cast<WPARAM>(own));
    InvalidateRect(button, nullptr, TRUE);
    EXPECT_TRUE(ShotOf(button).IsAll(RGB(4, 5, 6), { 0, 0, 40, 30 }));
    hFocusBrush = nullptr;
    DestroyButton();
    DeleteObject(focus);
    DeleteObject(own);
}

TEST_F(ButtonPaint, ChecksAskForTheColoursOfEdits)
{
    int edit = 0;
    int plain = 0;
    parent.OnMessage(WM_CTLCOLOREDIT, [&](WPARAM, LPARAM) {
        ++edit;
        return reinterpret_cast<LRESULT>(GetStockObject(GRAY_BRUSH));
    });
    parent.OnMessage(WM_CTLCOLORBTN, [&](WPARAM, LPARAM) {
        ++plain;
        return reinterpret_cast<LRESULT>(GetStockObject(GRAY_BRUSH));
    });
    Make("444;;", HBS_CHECK | HBS_NOFACE);
    UpdateWindow(button);
    EXPECT_GT(edit, 0);
    EXPECT_EQ(0, plain);
    Make("444;;", HBS_THREESTATE | HBS_NOFACE);
    UpdateWindow(button);
    EXPECT_GT(plain, 0);
}

TEST_F(ButtonPaint, TransparentButtonLeavesWhatLiesBehind)
{
    parent.OnMessage(WM_ERASEBKGND, [&](WPARAM wParam, LPARAM) {
        const PaperBrush paper;
        RECT             all = { 0, 0, 1000, 1000 };
        return LRESULT{ FillRect(reinterpret_cast<HDC>(wParam), &all, paper.h) };
    });
    Make("444;X", HBS_TRANSPARENT | HBS_NOFACE, 40, 30);
    SetWindowLongA(parent.hwnd(), GWL_STYLE, GetWindowLongA(parent.hwnd(), GWL_STYLE) & ~WS_CLIPCHILDREN);
    RedrawWindow(parent.hwnd(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    const Pixels shot = ShotOf(button);
    EXPECT_EQ(paperColor, shot.At(0, 0));
    EXPECT_EQ(paperColor, shot.At(39, 29));
    EXPECT_GT(shot.Count(black, shot.Bounds()), 0);
}

// Focus

TEST_F(ButtonPaint, FocusIsFramedRoundCaptionOrPicture)
{
    for (const char* const text : { "444;XX", "444;;IM0" }) {
        MakeFlat(text);
        const RECT before = Ink();
        Focus();
        const RECT after = Ink();
        EXPECT_LT(after.left, before.left) << text;
        EXPECT_GT(after.right, before.right) << text;
        SetFocus(parent.hwnd());
        EXPECT_TRUE(IsSame(Ink(), before)) << text;
    }
}

TEST_F(ButtonPaint, NoFocusShowsOnAButtonWithout)
{
    MakeFlat("444;XX", HBS_NOFOCUS);
    const RECT before = Ink();
    SetFocus(button);
    EXPECT_TRUE(IsSame(Ink(), before));
    EXPECT_FALSE(Ctl()->wFlags & HBF_FOCUSDRAWN);
}

TEST_F(ButtonPaint, TransparentButtonDrawsItsFocusOnceAndTakesItAwayAgain)
{
    Make("444;;IM11", HBS_TRANSPARENT | HBS_NOFACE, 40, 30); // an image that leaves its edges free
    SetFocus(button);
    Canvas canvas(40, 30);
    canvas.Fill(white);
    const auto paint = [&] { Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.hdc())); };
    Ctl()->wFlags &= static_cast<WORD>(~HBF_FOCUSDRAWN);
    paint();
    EXPECT_TRUE(Ctl()->wFlags & HBF_FOCUSDRAWN);
    const Pixels framed = canvas.Shot();
    paint();
    EXPECT_TRUE(SamePixels(framed, canvas.Shot())) << "it stands already";
    const WORD flags = Ctl()->wFlags;
    SetFocus(parent.hwnd());
    EXPECT_FALSE(Ctl()->wFlags & HBF_FOCUSDRAWN) << "whoever loses the focus has it taken away";
    Ctl()->wFlags = flags;
    paint();
    const Pixels bare = canvas.Shot();
    EXPECT_TRUE(framed.colors != bare.colors) << "drawn once more it goes";
    Canvas       fresh(40, 30);
    fresh.Fill(white);
    Ctl()->wFlags &= static_cast<WORD>(~HBF_FOCUSDRAWN);
    Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(fresh.hdc()));
    EXPECT_TRUE(SamePixels(fresh.Shot(), bare));
}

// Drawing by others

TEST_F(ButtonPaint, ParentIsAskedToDrawAnOwnersButton)
{
    DRAWITEMSTRUCT seenItem = {};
    int            seenState = -1;
    WPARAM         seenId = 0;
    LRESULT        answer = 1;
    parent.OnMessage(WM_DRAWITEM, [&](WPARAM wParam, LPARAM lParam) {
        seenItem = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        seenState = *reinterpret_cast<const int*>(seenItem.itemData);
        seenId = wParam;
        RECT all = seenItem.rcItem;
        FillRect(seenItem.hDC, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        return answer;
    });
    Make("444;;IM0:IM1:IM2", HBS_CHECK | HBS_OWNERDRAW, 40, 30);
    Send(BM_SETCHECK, 2);
    EXPECT_TRUE(ShotOf(button).IsAll(black, { 0, 0, 40, 30 }));
    EXPECT_EQ(UINT{ ODT_BUTTON }, seenItem.CtlType);
    EXPECT_EQ(7u, seenItem.CtlID);
    EXPECT_EQ(7u, seenId);
    EXPECT_EQ(6u, seenItem.itemAction);
    EXPECT_EQ(0u, seenItem.itemState);
    EXPECT_EQ(button, seenItem.hwndItem);
    EXPECT_EQ(2, seenState);
    EXPECT_TRUE(IsSame({ 0, 0, 40, 30 }, seenItem.rcItem));
    Focus();
    Ctl()->wFlags |= HBF_PRESSED;
    InvalidateRect(button, nullptr, TRUE);
    UpdateWindow(button);
    EXPECT_EQ(17u, seenItem.itemState);
    answer = 0;
    InvalidateRect(button, nullptr, TRUE);
    EXPECT_FALSE(ShotOf(button).IsAll(black, { 0, 0, 40, 30 })) << "a parent that doesn't draw";
}

TEST_F(ButtonPaint, ParentMayChangeTheStateThatIsShown)
{
    int wanted = 0;
    parent.OnMessage(WM_DRAWITEM, [&](WPARAM, LPARAM lParam) {
        *reinterpret_cast<int*>(reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->itemData) = wanted;
        return LRESULT{ 0 };
    });
    MakeFlat("444;;IM0:IM6:IM7", HBS_CHECK | HBS_OWNERDRAW);
    const int images[] = { 0, 6, 7 };
    for (wanted = 0; wanted < 3; ++wanted) {
        InvalidateRect(button, nullptr, TRUE);
        EXPECT_TRUE(ShowsImage(images[wanted], 43, 23)) << wanted;
    }
    EXPECT_EQ(0, State()) << "it is shown, not kept";
    for (const DWORD style : { DWORD{ HBS_CHECK }, DWORD{ HBS_CHECK | HBS_UPDOWN } }) {
        MakeFlat("444;;IM0:IM6:IM7", style | HBS_OWNERDRAW);
        for (const int madeUp : { -1, 3, 1000000, 0x7FFFFFFF, static_cast<int>(0x80000000) }) {
            wanted = madeUp;
            Ctl()->wFlags = static_cast<WORD>(Ctl()->wFlags ^ HBF_PRESSED);
            InvalidateRect(button, nullptr, TRUE);
            UpdateWindow(button);
        }
    }
}

// Painting where and when others ask for it

TEST_F(ButtonPaint, PaintMessageWithAContextPaintsThere)
{
    MakeFlat("444;;IM0", HBS_PUSH, 40, 30);
    const Pixels onScreen = ShotOf(button);
    Canvas       canvas(40, 30);
    Send(WM_PAINT, reinterpret_cast<WPARAM>(canvas.hdc()));
    EXPECT_TRUE(SamePixels(onScreen, canvas.Shot()));
}

TEST_F(ButtonPaint, ValueIsPaintedAsTheControlWouldShowIt)
{
    const PaperBrush paper;
    Make("444;;IM0:IM6", HBS_CHECK | HBS_NOFACE, 40, 30);
    for (const WORD value : { WORD{ 0 }, WORD{ 1 }, WORD{ 300 } }) {
        Canvas     canvas(60, 40);
        const RECT rect = { 10, 5, 50, 35 };
        EXPECT_TRUE(HBDrawValue(Ctl(), canvas.hdc(), &rect, paper.h, &value));
        Send(BM_SETCHECK, value != 0);
        Send(HBM_SETBKBRUSH, reinterpret_cast<WPARAM>(paper.h));
        const Pixels shot = canvas.Shot();
        const Pixels own = ShotOf(button);
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 40; ++x) {
                ASSERT_EQ(own.At(x, y), shot.At(x + 10, y + 5)) << value << " at " << x << ", " << y;
            }
        }
        EXPECT_EQ(white, shot.At(9, 20)) << "nothing beside the rectangle";
        EXPECT_EQ(white, shot.At(50, 20));
        Send(HBM_SETBKBRUSH, 0);
        Send(BM_SETCHECK, 0);
    }
}

TEST_F(ButtonPaint, NullValueIsPaintedAndLeavesTheButtonAsItWas)
{
    const PaperBrush paper;
    const WORD       one = 1;
    Make("444;;IM0:IM6", HBS_CHECK | HBS_NOFACE, 40, 30);
    Canvas     asNull(40, 30);
    Canvas     asOne(40, 30);
    const RECT rect = { 0, 0, 40, 30 };
    HBDrawValue(Ctl(), asNull.hdc(), &rect, paper.h, nullptr);
    EXPECT_FALSE(IsNull());
    Send(HBM_SETVALUE);
    HBDrawValue(Ctl(), asOne.hdc(), &rect, paper.h, &one);
    EXPECT_TRUE(IsNull());
    EXPECT_EQ(0, State());
    EXPECT_TRUE(asNull.Shot().colors != asOne.Shot().colors);
}

TEST_F(ButtonPaint, PaintingLeavesNoObjects)
{
    MakeFlat("444;Caption^of two;HC1:IM2", HBS_CHECK | HBS_SHADOWTEXT);
    Focus();
    ShotOf(button);
    const int objects = LiveGdiObjects();
    for (int i = 0; i < 20; ++i) {
        EnableWindow(button, i % 2);
        Send(BM_SETCHECK, static_cast<WPARAM>(i % 2));
        InvalidateRect(button, nullptr, TRUE);
        UpdateWindow(button);
    }
    EXPECT_EQ(objects, LiveGdiObjects());
}

TEST_F(ButtonPaint, ButtonWithoutSizePaintsNothing)
{
    MakeFlat("444;X;IM0", HBS_PUSH, 0, 0);
    Canvas     canvas(10, 10);
    const RECT none = { 5, 5, 5, 5 };
    EXPECT_TRUE(HBDrawValue(Ctl(), canvas.hdc(), &none, nullptr, nullptr));
    EXPECT_TRUE(canvas.Shot().IsAll(white, { 0, 0, 10, 10 }));
}

} // namespace
