// The loop of a drag outside a control.
#include "dialog/test_control.h"

#include "support/screen_resolution.h"

namespace {

constexpr int controlHeight = 200;
constexpr int runaway = 5000; // moves after which a loop that doesn't end is stopped

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
            ups_ += message == WM_LBUTTONUP || message == WM_RBUTTONUP;
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

TEST_F(TimedScrollTest, TellsThePointerInClientCoordinates)
{
    DragAt(-7, -45, 1);
    ASSERT_EQ(1u, moves_.size());
    EXPECT_EQ(-7, moves_[0].point.x);
    EXPECT_EQ(-45, moves_[0].point.y);
    EXPECT_EQ(0u, moves_[0].keys);
}

TEST_F(TimedScrollTest, TellsTheFirstKeyThatIsDown)
{
    BYTE keys[256] = {};
    BYTE old[256] = {};
    GetKeyboardState(old);
    keys[VK_SHIFT] = 0x80;
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys);
    MoveMouse(control_, 10, controlHeight + 45);
    SetKeyboardState(keys);
    moves_.clear();
    TimedScroll(&record, 0);
    SetKeyboardState(old);
    ASSERT_FALSE(moves_.empty());
    EXPECT_EQ(static_cast<WPARAM>(MK_CONTROL), moves_[0].keys);
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
