// The frame in the non-client area.
#include "edit_window.h"
#include "support/pixels.h"

namespace {

using EditFrame = EditWindow;

RECT ClientInWindow(HWND hwnd)
{
    RECT window = {};
    RECT client = {};
    GetWindowRect(hwnd, &window);
    GetClientRect(hwnd, &client);
    MapWindowPoints(hwnd, nullptr, reinterpret_cast<POINT*>(&client), 2);
    OffsetRect(&client, -window.left, -window.top);
    return client;
}

TEST_F(EditFrame, FramedFieldKeepsTwoPixelsOnEachSide)
{
    Create("abc", HES_FRAME, 100, 30);
    const RECT client = ClientInWindow(edit);
    EXPECT_EQ(2, client.left);
    EXPECT_EQ(2, client.top);
    EXPECT_EQ(98, client.right);
    EXPECT_EQ(28, client.bottom);
}

TEST_F(EditFrame, FrameIsOnePixelInsideABorder)
{
    Create("abc", WS_BORDER, 100, 30);
    const RECT plain = ClientInWindow(edit);
    edit = nullptr;
    Create("abc", HES_FRAME | WS_BORDER, 100, 30);
    const RECT framed = ClientInWindow(edit);
    EXPECT_EQ(plain.left + 1, framed.left);
    EXPECT_EQ(plain.top + 1, framed.top);
    EXPECT_EQ(plain.right - 1, framed.right);
    EXPECT_EQ(plain.bottom - 1, framed.bottom);
}

TEST_F(EditFrame, FieldWithoutTheStyleHasNoFrame)
{
    Create("abc", 0, 100, 30);
    const RECT client = ClientInWindow(edit);
    EXPECT_EQ(0, client.left);
    EXPECT_EQ(100, client.right);
}

TEST_F(EditFrame, FrameIsPaintedAroundTheClientArea)
{
    AnswerColors(GetSysColorBrush(COLOR_WINDOW));
    Create("", HES_FRAME, 100, 30);
    const Pixels framed = ShotOfWindow(edit);
    edit = nullptr;
    Create("", 0, 100, 30);
    const Pixels plain = ShotOfWindow(edit);
    const RECT   all = framed.Bounds();
    const RECT   inside = framed.InkBounds(GetSysColor(COLOR_WINDOW), { 2, 2, all.right - 2, all.bottom - 2 });
    EXPECT_TRUE(IsRectEmpty(&inside));
    EXPECT_FALSE(framed.IsAll(GetSysColor(COLOR_WINDOW), { 0, 0, all.right, 2 })) << "top";
    EXPECT_FALSE(framed.IsAll(GetSysColor(COLOR_WINDOW), { 0, 0, 2, all.bottom })) << "left";
    EXPECT_TRUE(plain.IsAll(GetSysColor(COLOR_WINDOW), { 0, 0, all.right, 2 }));
}

TEST_F(EditFrame, FieldTooSmallForItsFrameHasAnEmptyClientArea)
{
    for (const int size : { 0, 1, 2, 3 }) {
        edit = nullptr;
        Create("abc", HES_FRAME, size, size);
        RECT client = {};
        GetClientRect(edit, &client);
        EXPECT_EQ(0, client.right) << size;
        EXPECT_EQ(0, client.bottom) << size;
        EXPECT_EQ(1, +Ctl()->cPageChars);
    }
}

TEST_F(EditFrame, FrameIsPaintedAnewAfterTheScrollBarMovedOrGotAnotherRange)
{
    Create(std::string(100, 'x').c_str(), HES_FRAME | WS_HSCROLL, 100, 50);
    const Pixels whole = ShotOfWindow(edit);
    const auto   spoil = [this] {
        const HDC  dc = GetWindowDC(edit);
        const RECT top = { 0, 0, 100, 2 };
        FillRect(dc, &top, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        ReleaseDC(edit, dc);
    };
    const auto lookAtTop = [&](const char* what) {
        const HDC dc = GetWindowDC(edit);
        EXPECT_EQ(whole.At(50, 0), GetPixel(dc, 50, 0)) << what;
        EXPECT_EQ(whole.At(50, 1), GetPixel(dc, 50, 1)) << what;
        ReleaseDC(edit, dc);
    };
    ASSERT_FALSE(whole.At(50, 0) == 0 && whole.At(50, 1) == 0) << "the frame isn't black";
    spoil();
    ScrollBy(Ctl(), 7);
    lookAtTop("position");
    spoil();
    SendText(HEM_SETDATA, 0, std::string(150, 'x').c_str());
    lookAtTop("range");
}

TEST_F(EditFrame, FrameInsideABorderIsARidge)
{
    for (const DWORD border : { DWORD{ 0 }, DWORD{ WS_BORDER } }) {
        edit = nullptr;
        AnswerColors(GetSysColorBrush(COLOR_WINDOW));
        Create("", HES_FRAME | border, 100, 30);
        const Pixels painted = ShotOfWindow(edit);
        HNCPaint(edit, border ? 0 : 1);
        EXPECT_FALSE(SamePixels(painted, ShotOfWindow(edit))) << border;
        HNCPaint(edit, border ? 1 : 0);
        EXPECT_TRUE(SamePixels(painted, ShotOfWindow(edit))) << border;
        DestroyWindow(edit);
    }
}

} // namespace
