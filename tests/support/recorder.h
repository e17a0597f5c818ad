// The message-sequence recorder: what a control sends to its parent and receives itself, in order, nested.
// Tests compare what was seen with a constant table; on a difference both are printed by name.
#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <map>
#include <span>
#include <string>
#include <vector>

enum Direction {
    ToParent,        // a notification: WM_COMMAND, listed by its code
    ToParentMessage, // any other message to the parent
    ToControl,       // a message to a watched control
};
constexpr Direction ToGrid = ToControl;
constexpr Direction ToEdit = ToControl;

// An argument of a message; left out of a table, it may be anything.
struct SeenArg {
    bool   matters = false;
    LPARAM value = 0;
    constexpr SeenArg() = default;
    constexpr SeenArg(LPARAM v) : matters(true), value(v) {} // NOLINT: tables hold plain numbers
};
constexpr SeenArg Any = {};

enum SeenFlag : unsigned {
    Maybe = 1,       // may be missing
    OnlyWine = 2,    // comes under Wine alone
    OnlyWindows = 4, // comes under Windows alone
};

// One line of a sequence. wParam of a notification is the control's id.
struct Seen {
    int       depth; // 0: caused by the test itself
    Direction direction;
    UINT      code;
    SeenArg   wParam = Any;
    SeenArg   lParam = Any;
    unsigned  flags = 0;
};

class Recorder {
public:
    // Records what reaches a control from now on, besides the shared list of noise.
    void Watch(HWND control);
    // Records a message of the parent. What is recorded until Leave() lies deeper.
    void EnterParent(UINT message, WPARAM wParam, LPARAM lParam);
    void Leave() { --depth_; }

    void Clear() { seen_.clear(); }
    // Leaves a message out of all sequences of this test, noise of a kind that only this test has.
    void Skip(UINT message) { skipped_.push_back(message); }
    // Records notifications alone, not messages.
    void NotificationsOnly() { notificationsOnly_ = true; }

    // Compares and clears.
    testing::AssertionResult Matches(std::span<const Seen> expected);
    const std::vector<Seen>& All() const { return seen_; }

private:
    static LRESULT CALLBACK WatchProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    bool                    IsNoise(UINT message) const;
    std::string             Print(std::span<const Seen> lines) const;

    std::vector<Seen>       seen_;
    std::vector<UINT>       skipped_;
    std::map<HWND, WNDPROC> watched_;
    std::string             className_; // of the last control that is watched: it names the messages
    int                     depth_ = 0;
    bool                    notificationsOnly_ = false;
};

// For fixtures that have a Recorder called seen.
#define EXPECT_SEEN(table) EXPECT_TRUE(seen.Matches(table))
#define EXPECT_NOTHING_SEEN() EXPECT_TRUE(seen.Matches({}))
