// Windows are centred and measured, and rectangles converted.
#include "support/window_test.h"

namespace {

struct Screen {
    LONG cx = GetSystemMetrics(SM_CXSCREEN);
    LONG cy = GetSystemMetrics(SM_CYSCREEN);
};

// A pop-up, with the test's window or none as its owner, for as long as this lives.
class PopUp {
public:
    PopUp(HWND owner, RECT rect)
        : hwnd(CreateWindowExA(0, "STATIC", "", WS_POPUP, rect.left, rect.top, rect.right, rect.bottom, owner, nullptr,
                               nullptr, nullptr))
    {
    }
    ~PopUp() { DestroyWindow(hwnd); }
    PopUp(const PopUp&) = delete;
    PopUp& operator=(const PopUp&) = delete;

    RECT Place() const
    {
        RECT rect = {};
        GetWindowRect(hwnd, &rect);
        return rect;
    }

    HWND hwnd;
};

class WindowPlace : public WindowTest {
protected:
    void ExpectAt(LONG x, LONG y, LONG width, LONG height, const PopUp& window, const char* what)
    {
        const RECT rect = window.Place();
        EXPECT_EQ(x, rect.left) << what;
        EXPECT_EQ(y, rect.top) << what;
        EXPECT_EQ(width, rect.right - rect.left) << what;
        EXPECT_EQ(height, rect.bottom - rect.top) << what;
    }

    Screen screen;
};

TEST_F(WindowPlace, CentresOnTheClientAreaOfTheOwner)
{
    const PopUp window(parent.hwnd(), { 0, 0, 201, 101 });
    RECT        client = {};
    POINT       origin = {};
    GetClientRect(parent.hwnd(), &client);
    ClientToScreen(parent.hwnd(), &origin);
    EXPECT_NE(0, CenterWindow(window.hwnd, 0));
    const LONG x = origin.x + (client.right - 201) / 2;
    const LONG y = origin.y + (client.bottom - 101) / 2;
    ExpectAt(x, y, 201, 101, window, "at the centre");
    EXPECT_NE(0, CenterWindow(window.hwnd, 33));
    ExpectAt(x, y + 33, 201, 101, window, "below it");
    EXPECT_NE(0, CenterWindow(window.hwnd, -12));
    ExpectAt(x, y - 12, 201, 101, window, "above it");
}

TEST_F(WindowPlace, CentresOnTheScreenWithoutAnOwner)
{
    const PopUp window(nullptr, { 5, 5, 300, 200 });
    EXPECT_NE(0, CenterWindow(window.hwnd, 0));
    ExpectAt((screen.cx - 300) / 2, (screen.cy - 200) / 2, 300, 200, window, "");
}

TEST_F(WindowPlace, NeverCentresBeyondTheLeftOrUpperEdge)
{
    const PopUp large(nullptr, { 5, 5, screen.cx + 100, screen.cy + 60 });
    EXPECT_NE(0, CenterWindow(large.hwnd, 0));
    EXPECT_EQ(0, large.Place().left) << "wider than the screen";
    EXPECT_EQ(0, large.Place().top) << "higher than the screen";

    const PopUp small(parent.hwnd(), { 5, 5, 100, 100 });
    EXPECT_NE(0, CenterWindow(small.hwnd, -5000));
    EXPECT_EQ(0, small.Place().top) << "by its offset";

    MoveWindow(parent.hwnd(), -900, -700, 720, 520, FALSE);
    EXPECT_NE(0, CenterWindow(small.hwnd, 0));
    ExpectAt(0, 0, 100, 100, small, "with an owner beyond the edges");
}

TEST_F(WindowPlace, HoldsOffsetsThatLeadOutOfTheNumbers)
{
    // Both ways: the sum with half of the room, and with half of what a high window lacks.
    const PopUp low(parent.hwnd(), { 5, 5, 100, 100 });
    const PopUp high(nullptr, { 5, 5, 100, screen.cy + 60 });
    for (const PopUp* window : { &low, &high }) {
        EXPECT_NE(0, CenterWindow(window->hwnd, INT_MIN));
        EXPECT_EQ(0, window->Place().top);
        EXPECT_NE(0, CenterWindow(window->hwnd, INT_MAX));
        EXPECT_GT(window->Place().top, screen.cy);
    }
}

TEST_F(WindowPlace, MovesAChildToThePointOfTheScreen)
{
    const HWND child = Create("STATIC", "", 0, 1, { 0, 0, 100, 60 });
    RECT       client = {};
    POINT      place = {};
    GetClientRect(parent.hwnd(), &client);
    place = { (client.right - 100) / 2, (client.bottom - 60) / 2 };
    ClientToScreen(parent.hwnd(), &place);
    EXPECT_NE(0, CenterWindow(child, 0));
    RECT rect = {};
    GetWindowRect(child, &rect);
    RStoC(parent.hwnd(), &rect);
    EXPECT_EQ(place.x, rect.left);
    EXPECT_EQ(place.y, rect.top);
}

TEST_F(WindowPlace, RefusesWhatIsNoWindow)
{
    EXPECT_EQ(0, CenterWindow(nullptr, 0));
    EXPECT_EQ(0, CenterAboutCursor(nullptr));
}

TEST_F(WindowPlace, CentresOnThePointer)
{
    const PopUp window(nullptr, { 5, 5, 101, 61 });
    SetCursorPos(400, 300);
    EXPECT_NE(0, CenterAboutCursor(window.hwnd));
    const RECT rect = window.Place();
    EXPECT_EQ(400, (rect.left + rect.right) / 2);
    EXPECT_EQ(300, (rect.top + rect.bottom) / 2);
    EXPECT_EQ(101, rect.right - rect.left);
    EXPECT_EQ(61, rect.bottom - rect.top);
}

struct Corner {
    const char* what;
    bool        right;
    bool        bottom;
};

TEST_F(WindowPlace, WithThePointerInACornerStaysOnTheScreen)
{
    constexpr Corner corners[] = {
        { "upper left", false, false },
        { "upper right", true, false },
        { "lower left", false, true },
        { "lower right", true, true },
    };
    for (const Corner& corner : corners) {
        const PopUp window(nullptr, { 300, 300, 200, 120 });
        SetCursorPos(corner.right ? screen.cx - 1 : 0, corner.bottom ? screen.cy - 1 : 0);
        EXPECT_NE(0, CenterAboutCursor(window.hwnd)) << corner.what;
        ExpectAt(corner.right ? screen.cx - 200 : 0, corner.bottom ? screen.cy - 120 : 0, 200, 120, window,
                 corner.what);
    }
}

TEST_F(WindowPlace, LargerThanTheScreenIsCutToIt)
{
    const PopUp window(nullptr, { 0, 0, screen.cx + 200, screen.cy + 100 });
    SetCursorPos(screen.cx / 2, screen.cy / 2);
    EXPECT_NE(0, CenterAboutCursor(window.hwnd));
    ExpectAt(0, 0, screen.cx, screen.cy, window, "");
}

TEST_F(WindowPlace, MeasuresWithTheFrame)
{
    const HWND framed = Create("STATIC", "", WS_CAPTION | WS_THICKFRAME, 1, { 10, 20, 150, 90 });
    EXPECT_EQ(150, WindowWidth(framed));
    EXPECT_EQ(90, WindowHeight(framed));
    EXPECT_EQ(0, WindowWidth(nullptr));
    EXPECT_EQ(0, WindowHeight(nullptr));
}

TEST_F(WindowPlace, NoRectangleIsConvertedToNone)
{
    RStoC(parent.hwnd(), nullptr);
    RCtoS(parent.hwnd(), nullptr);
    EXPECT_TRUE(IsWindow(parent.hwnd()));
}

TEST_F(WindowPlace, RectanglesGoToTheScreenAndBack)
{
    const HWND child = Create("STATIC", "", WS_BORDER, 1, { 50, 50, 100, 100 });
    RECT       rect = { 1, 2, 30, 40 };
    POINT      origin = {};
    ClientToScreen(child, &origin);
    RCtoS(child, &rect);
    EXPECT_EQ(origin.x + 1, rect.left);
    EXPECT_EQ(origin.y + 2, rect.top);
    EXPECT_EQ(origin.x + 30, rect.right);
    EXPECT_EQ(origin.y + 40, rect.bottom);
    RStoC(child, &rect);
    const RECT back = { 1, 2, 30, 40 };
    EXPECT_TRUE(EqualRect(&back, &rect));
}

} // namespace
