// The user's other hand: a thread that watches, and acts while a control runs a loop of its own.
#pragma once

#include <windows.h>

#include <functional>

class Hand {
public:
    // Does the deed once the condition holds, or after a few seconds anyway, so that the loop ends. The condition may
    // send messages to the windows of the test, whose thread has to take them.
    Hand(std::function<bool()> condition, std::function<void()> deed);
    ~Hand();
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

    bool IsDone() const { return WaitForSingleObject(thread_, 0) == WAIT_OBJECT_0; }
    bool HeldInTime() const { return held_; } // once it is done

    // Within a deed: comes back once the condition holds, or after a few seconds. The result is whether it held.
    static bool WaitFor(const std::function<bool()>& condition);
    // Real input at a place of the screen.
    static void MoveTo(POINT screen);
    static void Lift(POINT screen, unsigned modifiers = 0); // the left button, and then the keys

private:
    static DWORD WINAPI Run(void* self);

    std::function<bool()> condition_;
    std::function<void()> deed_;
    bool                  held_ = false;
    HANDLE                thread_;
};
