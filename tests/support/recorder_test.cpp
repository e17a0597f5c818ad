// The recorder and the other helpers of window tests: a check that can't fail would hide everything.
#include "support/message_names.h"
#include "support/pixels.h"
#include "support/window_test.h"

#include <cstring>

namespace {

class RecorderTest : public WindowTest {
protected:
    RecorderTest() : child(Create("STATIC", "text", 0, 55))
    {
        seen.Clear();
        seen.Watch(child);
    }

    // The child tells its parent, and the parent asks it for its text length.
    void TellAndAsk(int code)
    {
        parent.On(code, [this] { Send(child, WM_GETTEXTLENGTH); });
        Send(parent.hwnd(), WM_COMMAND, MAKEWPARAM(55, code), reinterpret_cast<LPARAM>(child));
    }

    HWND child;
};

constexpr Seen toldAndAsked[] = { { 0, ToParent, HGN_MOVED, 55 }, { 1, ToControl, WM_GETTEXTLENGTH, 0, 0 } };

TEST_F(RecorderTest, AcceptsTheSequenceThatCame)
{
    TellAndAsk(HGN_MOVED);
    EXPECT_SEEN(toldAndAsked);
    EXPECT_NOTHING_SEEN();
}

TEST_F(RecorderTest, RefusesEveryDifference)
{
    const Seen otherOrder[] = { { 0, ToControl, WM_GETTEXTLENGTH }, { 0, ToParent, HGN_MOVED } };
    const Seen otherDepth[] = { { 0, ToParent, HGN_MOVED }, { 0, ToControl, WM_GETTEXTLENGTH } };
    const Seen otherCode[] = { { 0, ToParent, HGN_DBLCLK }, { 1, ToControl, WM_GETTEXTLENGTH } };
    const Seen otherArg[] = { { 0, ToParent, HGN_MOVED, 56 }, { 1, ToControl, WM_GETTEXTLENGTH } };
    const Seen tooShort[] = { { 0, ToParent, HGN_MOVED } };
    const Seen tooLong[] = { toldAndAsked[0], toldAndAsked[1], { 0, ToParent, HGN_MOVED } };
    for (const std::span<const Seen> wrong :
         { std::span<const Seen>(otherOrder), std::span<const Seen>(otherDepth), std::span<const Seen>(otherCode),
           std::span<const Seen>(otherArg), std::span<const Seen>(tooShort), std::span<const Seen>(tooLong) }) {
        TellAndAsk(HGN_MOVED);
        EXPECT_FALSE(seen.Matches(wrong)) << "sequence of " << wrong.size() << " at " << wrong.data();
    }
}

TEST_F(RecorderTest, LetsALineBeMissingThatMayBe)
{
    constexpr Seen maybe[] = { { 0, ToParent, HGN_MOVED },
                               { 1, ToControl, WM_ENABLE, Any, Any, Maybe },
                               { 1, ToControl, WM_GETTEXTLENGTH } };
    TellAndAsk(HGN_MOVED);
    EXPECT_SEEN(maybe);
}

TEST_F(RecorderTest, PrintsBothSequencesByName)
{
    constexpr Seen expected[] = { { 0, ToParent, HGN_DBLCLK } };
    TellAndAsk(HGN_MOVED);
    const std::string text = seen.Matches(expected).message();
    EXPECT_NE(std::string::npos, text.find("expected:\n    to parent:  HGN_DBLCLK\n")) << text;
    EXPECT_NE(std::string::npos, text.find("seen:\n    to parent:  HGN_MOVED wParam 55")) << text;
    EXPECT_NE(std::string::npos, text.find("        to control: WM_GETTEXTLENGTH")) << text;
}

TEST_F(RecorderTest, SkipsNoiseAndWhatATestSkips)
{
    Send(child, WM_PAINT);
    Send(child, WM_NCHITTEST);
    seen.Skip(WM_GETTEXTLENGTH);
    Send(child, WM_GETTEXTLENGTH);
    EXPECT_NOTHING_SEEN();
}

TEST_F(RecorderTest, CountsNotifications)
{
    TellAndAsk(HGN_MOVED);
    TellAndAsk(HGN_MOVED);
    EXPECT_EQ(2, parent.Count(HGN_MOVED));
    EXPECT_EQ(0, parent.Count(HGN_DBLCLK));
}

TEST_F(RecorderTest, EndsWithTheControl)
{
    DestroyWindow(child);
    ASSERT_FALSE(seen.All().empty());
    EXPECT_EQ(static_cast<UINT>(WM_NCDESTROY), seen.All().back().code);
}

TEST(MessageName, NamesMessagesByTheClassTheyGoTo)
{
    EXPECT_EQ("WM_KEYDOWN", MessageName(WM_KEYDOWN));
    EXPECT_EQ("WWM_CANCEL", MessageName(WWM_CANCEL, "HEdit"));
    EXPECT_EQ("HGM_GETBKBRUSH", MessageName(HGM_GETBKBRUSH, "HGrid"));
    EXPECT_EQ("HEM_GETBRUSH", MessageName(HEM_GETBRUSH, "HEdit_SS"));
    EXPECT_EQ("0x7FFF", MessageName(0x7FFF));
    EXPECT_EQ("HEN_TAB", NotificationName(HEN_TAB, "HEdit"));
    EXPECT_EQ("HGN_NAVIGATE", NotificationName(HGN_NAVIGATE));
    EXPECT_EQ("code 999", NotificationName(999));
}

class InputTest : public WindowTest {};

TEST_F(InputTest, KeysReachTheFocusWindow)
{
    const HWND edit = Create("EDIT", "");
    SetFocus(edit);
    TypeText("aB1");
    TypeKey(VK_LEFT);
    TypeKey('X', withShift);
    EXPECT_TRUE(PumpUntil([&] { return TextOf(edit) == "aBX1"; })) << TextOf(edit);
}

TEST_F(InputTest, ClicksReachTheWindowUnderThem)
{
    const HWND button = Create("BUTTON", "push", 0, 9, { 10, 10, 100, 30 });
    ClickAt(button, 50, 15);
    EXPECT_TRUE(PumpUntil([&] { return parent.Count(BN_CLICKED) == 1; }));
}

TEST_F(InputTest, TwoClicksAreNoDoubleClickButADoubleClickIs)
{
    const HWND child = Create("STATIC", "", SS_NOTIFY);
    ClickAt(child, 5, 5);
    ClickAt(child, 5, 5);
    EXPECT_EQ(0, parent.Count(STN_DBLCLK));
    DoubleClickAt(child, 5, 5);
    EXPECT_TRUE(PumpUntil([&] { return parent.Count(STN_DBLCLK) == 1; }));
}

TEST_F(InputTest, WheelStepsReachTheFocusWindow)
{
    int delta = 0;
    parent.OnMessage(WM_MOUSEWHEEL, [&](WPARAM wParam, LPARAM) {
        delta += static_cast<short>(HIWORD(wParam));
        return 0;
    });
    SetFocus(parent.hwnd());
    Wheel(parent.hwnd(), 50, 50, -WHEEL_DELTA);
    EXPECT_TRUE(PumpUntil([&] { return delta == -WHEEL_DELTA; })) << delta;
}

TEST_F(InputTest, PumpingEndsAtItsLimit)
{
    const DWORD start = GetTickCount();
    EXPECT_FALSE(PumpUntil([] { return false; }, 30));
    EXPECT_GE(GetTickCount() - start, 30u);
}

class PixelsTest : public WindowTest {};

TEST_F(PixelsTest, AShotShowsWhatIsPainted)
{
    const HWND   child = Create("STATIC", "", SS_BLACKRECT, 1, { 10, 20, 30, 40 });
    const Pixels inside = ShotOf(child);
    EXPECT_EQ(30, inside.width);
    EXPECT_EQ(40, inside.height);
    EXPECT_TRUE(inside.IsAll(GetSysColor(COLOR_3DDKSHADOW), inside.Bounds()));
    const Pixels all = ShotOf(parent.hwnd());
    const RECT   ink = all.InkBounds(GetSysColor(COLOR_WINDOW), all.Bounds());
    const RECT   expected = { 10, 20, 40, 60 };
    EXPECT_TRUE(EqualRect(&expected, &ink)) << ink.left << " " << ink.top << " " << ink.right << " " << ink.bottom;
}

TEST(Pixels, TellsAndKeepsADifference)
{
    Canvas       canvas(10, 10);
    const Pixels before = canvas.Shot();
    SetPixel(canvas.hdc(), 3, 4, RGB(255, 0, 0));
    const Pixels after = canvas.Shot();
    EXPECT_TRUE(SamePixels(before, before));
    const testing::AssertionResult result = SamePixels(before, after);
    EXPECT_FALSE(result);
    EXPECT_NE(nullptr,
              std::strstr(result.message(), "1 pixels differ, first at 3, 4: expected 0xFFFFFF, seen 0x0000FF"))
        << result.message();
    EXPECT_EQ(1, after.Count(RGB(255, 0, 0), after.Bounds()));
    EXPECT_EQ(CLR_INVALID, after.At(10, 0));
}

TEST(GdiLeaks, CountObjectsUntilTheyAreGivenBack)
{
    const int    before = LiveGdiObjects();
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HDC    hdc = GetDC(nullptr);
    EXPECT_EQ(before + 2, LiveGdiObjects()) << DescribeGdiObjects();
    EXPECT_NE(std::string::npos, DescribeGdiObjects().find("CreateSolidBrush 1"));
    ReleaseDC(nullptr, hdc);
    DeleteObject(brush);
    EXPECT_EQ(before, LiveGdiObjects()) << DescribeGdiObjects();
}

} // namespace
