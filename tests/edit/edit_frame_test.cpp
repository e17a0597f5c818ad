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

} // namespace
