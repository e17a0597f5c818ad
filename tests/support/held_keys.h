// Keys that are down for this thread alone: the display server may take others for released when the mouse moves.
#pragma once

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <vector>

class HeldKeys {
public:
    explicit HeldKeys(const std::vector<int>& keys)
    {
        GetKeyboardState(before_);
        BYTE now[sizeof before_];
        std::copy(std::begin(before_), std::end(before_), now);
        for (const int key : keys) {
            now[key] = 0x80;
        }
        SetKeyboardState(now);
    }
    ~HeldKeys() { SetKeyboardState(before_); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    BYTE before_[256];
};
