// The loop of a drag outside a control.
#include "dialog/test_control.h"

#include "support/import_hook.h"
#include "support/screen_resolution.h"

namespace {

constexpr int controlWidth = 400;
constexpr int controlHeight = 200;
constexpr int runaway = 5000; // moves after which a loop that doesn't end is stopped

// What follows from a message that takes long.
void LetPass(DWORD milliseconds)
{
    for (const DWORD start = GetTickCount(); GetTickCount() - start < milliseconds;) {
    }
}

DWORD WINAPI OldVersion()
{
    return 0xC0000004;
}

struct Parameters {
    WPARAM wParam;
    LPARAM lParam;

    bool operator==(const Parameters&) const = default;
};

struct Move {
    DWORD  time;
    WPARAM keys;
    POINT  point;
};

// A control that notes the moves it gets and can end the drag at the n-th.
class TimedScrollTest : public TestControl {
protected:
    TimedScrollTest() : control_(CreateWithRecord())
    {
        handler = [this](UINT message, WPARAM wParam, LPARAM lParam, int* pDefault) -> LRESULT {
            if (message == WM_MOUSEMOVE) {
                OnMove({ GetTickCount(),
                         wParam,
                         { static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)) } });
            }
            if (message == WM_LBUTTONUP || message == WM_RBUTTONUP) {
                ++ups_;
                lastUp_ = { wParam, lParam };
            }
            *pDefault = 1;
            return 0;
        };
    }

    void OnMove(const Move& move)
    {
        moves_.push_back(move);
        if (static_cast<int>(moves_.size()) == endAt_ || moves_.size() > runaway) {
            onEnd_();
        }
    }

    // Runs the loop with the pointer below or above the control; it ends by a button message at the n-th move.
    void DragAt(int x, int y, int moves, int horizontal = 0)
    {
        MoveMouse(control_, x, y);
        moves_.clear();
        endAt_ = moves;
        TimedScroll(&record, horizontal);
    }

    DWORD ShortestPause() const
    {
        DWORD shortest = 0xFFFFFFFF;
        for (size_t i = 1; i < moves_.size(); ++i) {
            shortest = std::min(shortest, moves_[i].time - moves_[i - 1].time);
        }
        return shortest;
    }

    DWORD Duration() const { return moves_.back().time - moves_.front().time; }

    HWND                   control_;
    std::vector<Move>      moves_;
    int                    ups_ = 0;
    Parameters             lastUp_ = {};
    int                    endAt_ = 1;
    std::function<void()>  onEnd_ = [this] { PostMessageA(control_, WM_LBUTTONUP, 0, 0); };
    const ScreenResolution screen_{ 96 };
};

TEST_F(TimedScrollTest, At25PixelsBelowMovesEvery150Milliseconds)
{
    DragAt(20, controlHeight + 25, 4);
    EXPECT_EQ(4u, moves_.size());
    EXPECT_GE(ShortestPause(), 150u);
    EXPECT_LT(ShortestPause(), 200u);
}

TEST_F(TimedScrollTest, At5PixelsBelowMovesEvery200Milliseconds)
{
    DragAt(20, controlHeight + 5, 3);
    EXPECT_EQ(3u, moves_.size());
    EXPECT_GE(ShortestPause(), 200u);
    EXPECT_LT(ShortestPause(), 250u);
}

TEST_F(TimedScrollTest, At45PixelsBelowMovesWithoutPause)
{
    DragAt(20, controlHeight + 45, 6);
    EXPECT_EQ(6u, moves_.size());
    EXPECT_LT(Duration(), 5 * 50u) << "five ticks of the clock";
}

TEST_F(TimedScrollTest, At15PixelsBesideMovesEvery150MillisecondsIfItScrollsAcross)
{
    DragAt(controlWidth + 15, 20, 4, 1);
    EXPECT_GE(ShortestPause(), 150u);
    EXPECT_LT(ShortestPause(), 200u);
    DragAt(controlWidth + 15, 20, 6, 0);
    EXPECT_LT(Duration(), 5 * 50u) << "and without a pause if it doesn't";
}

TEST_F(TimedScrollTest, KeepsItsPaceWhenTheControlGrowsUnderThePointer)
{
    const auto inner = handler;
    handler = [&](UINT message, WPARAM wParam, LPARAM lParam, int* pDefault) {
        if (message == WM_MOUSEMOVE && moves_.size() == 1) {
            SetWindowPos(control_, nullptr, 0, 0, controlWidth, 2 * controlHeight, SWP_NOMOVE | SWP_NOZORDER);
        }
        return inner(message, wParam, lParam, pDefault);
    };
    DragAt(20, controlHeight + 25, 4);
    EXPECT_GE(ShortestPause(), 150u);
}

TEST_F(TimedScrollTest, DoesNothingOnSystemsBeforeNt)
{
    const ImportHook hook("GetVersion", OldVersion);
    DragAt(20, controlHeight + 45, 1);
    EXPECT_EQ(0u, moves_.size());
}

TEST_F(TimedScrollTest, MovesAgainBetweenMessagesThatTakeLong)
{
    int        users = 0;
    int        usersBeforeTheSecond = 0;
    const auto inner = handler;
    handler = [&](UINT message, WPARAM wParam, LPARAM lParam, int* pDefault) {
        if (message == WM_USER) {
            LetPass(250);
            if (++users < 2) {
                PostMessageA(control_, WM_USER, 0, 0);
            }
        }
        usersBeforeTheSecond = message == WM_MOUSEMOVE && moves_.size() == 1 ? users : usersBeforeTheSecond;
        return inner(message, wParam, lParam, pDefault);
    };
    MoveMouse(control_, 20, controlHeight + 45);
    moves_.clear();
    PostMessageA(control_, WM_USER, 0, 0);
    endAt_ = 2;
    TimedScroll(&record, 0);
    EXPECT_EQ(1, usersBeforeTheSecond);
    PumpPending();
    EXPECT_EQ(2, users);
}

TEST_F(TimedScrollTest, TellsThePointerInClientCoordinates)
{
    DragAt(-7, -45, 1);
    ASSERT_EQ(1u, moves_.size());
    EXPECT_EQ(-7, moves_[0].point.x);
    EXPECT_EQ(-45, moves_[0].point.y);
    EXPECT_EQ(0u, moves_[0].keys);
}

struct KeyRow {
    int    vk;
    WPARAM bit;
};

TEST_F(TimedScrollTest, TellsTheFirstKeyThatIsDown)
{
    constexpr KeyRow rows[] = { { VK_LBUTTON, 1 }, { VK_RBUTTON, 2 }, { VK_MBUTTON, 16 },
                                { VK_CONTROL, 8 }, { VK_SHIFT, 4 },   { 0, 0 } };
    BYTE             old[256] = {};
    GetKeyboardState(old);
    MoveMouse(control_, 10, controlHeight + 45);
    for (size_t first = 0; first < std::size(rows); ++first) {
        BYTE keys[256] = {};
        for (size_t i = first; i < std::size(rows) && rows[i].vk; ++i) {
            keys[rows[i].vk] = 0x80;
        }
        moves_.clear();
        SetKeyboardState(keys);
        TimedScroll(&record, 0);
        ASSERT_FALSE(moves_.empty());
        EXPECT_EQ(rows[first].bit, moves_[0].keys) << "key " << rows[first].vk << " and those behind it";
    }
    SetKeyboardState(old);
}

TEST_F(TimedScrollTest, HandsTheButtonUpOnAndEnds)
{
    DragAt(20, controlHeight + 45, 2);
    EXPECT_EQ(1, ups_);
    PumpPending();
    EXPECT_EQ(1, ups_) << "no further message was posted";
}

TEST_F(TimedScrollTest, EndsAtTheRightButtonToo)
{
    onEnd_ = [this] { PostMessageA(control_, WM_RBUTTONUP, 0, 0); };
    DragAt(20, controlHeight + 45, 1);
    EXPECT_EQ(1, ups_);
}

TEST_F(TimedScrollTest, HandsTheButtonUpOfAnotherWindowToThatWindow)
{
    Parameters got = {};
    parent.OnMessage(WM_LBUTTONUP, [&](WPARAM wParam, LPARAM lParam) {
        got = { wParam, lParam };
        return 0;
    });
    onEnd_ = [this] { PostMessageA(parent.hwnd(), WM_LBUTTONUP, MK_CONTROL, MAKELPARAM(3, 4)); };
    DragAt(20, controlHeight + 45, 1);
    EXPECT_EQ((Parameters{ MK_CONTROL, MAKELPARAM(3, 4) }), got);
    EXPECT_EQ(0, ups_);
}

TEST_F(TimedScrollTest, DropsRealMovesAndDispatchesTheRest)
{
    int        user = 0;
    const auto inner = handler;
    handler = [&](UINT message, WPARAM wParam, LPARAM lParam, int* pDefault) {
        user += message == WM_USER;
        return inner(message, wParam, lParam, pDefault);
    };
    MoveMouse(control_, 20, controlHeight + 45);
    moves_.clear();
    endAt_ = 1;
    onEnd_ = [this] {
        PostMessageA(control_, WM_MOUSEMOVE, 0, MAKELPARAM(3, 3));
        PostMessageA(control_, WM_USER, 0, 0);
        PostMessageA(control_, WM_LBUTTONUP, 0, 0);
    };
    TimedScroll(&record, 0);
    EXPECT_EQ(1u, moves_.size());
    EXPECT_EQ(1, user);
}

TEST_F(TimedScrollTest, ACancelEndsItWithAPostedButtonUp)
{
    onEnd_ = [this] { Send(control_, WWM_CANCEL); };
    DragAt(20, controlHeight + 45, 2);
    EXPECT_EQ(2u, moves_.size());
    EXPECT_EQ(0, ups_) << "the message is posted, not sent";
    PumpPending();
    EXPECT_EQ(1, ups_);
    EXPECT_EQ((Parameters{ 0, MAKELPARAM(20, controlHeight + 45) }), lastUp_);
}

TEST_F(TimedScrollTest, EndsWithTheWindow)
{
    onEnd_ = [this] { DestroyWindow(control_); };
    DragAt(20, controlHeight + 45, 2);
    EXPECT_EQ(2u, moves_.size());
}

TEST_F(TimedScrollTest, LeavesTheEndOfTheHostToTheHost)
{
    onEnd_ = [] { PostQuitMessage(3); };
    DragAt(20, controlHeight + 45, 1);
    MSG message = {};
    ASSERT_NE(0, PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(3u, message.wParam);
}

TEST_F(TimedScrollTest, UpdatesTheControlAfterEachMove)
{
    int        painted = 0;
    const auto inner = handler;
    handler = [&](UINT message, WPARAM wParam, LPARAM lParam, int* pDefault) {
        painted += message == WM_PAINT;
        if (message == WM_MOUSEMOVE) {
            InvalidateRect(control_, nullptr, FALSE);
        }
        return inner(message, wParam, lParam, pDefault);
    };
    PumpPending();
    painted = 0;
    DragAt(20, controlHeight + 45, 3);
    EXPECT_GE(painted, 3);
}

} // namespace
