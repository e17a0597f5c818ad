// The style word of a window as a control's own message sets it.
#pragma once

#include <windows.h>

// What the system and the host keep in the word by calls of their own stays: a window is shown or hidden, enabled or
// disabled, by them alone. also: further bits that stay.
inline void SetWindowStyle(HWND hwnd, DWORD style, DWORD also = 0)
{
    const DWORD kept = WS_VISIBLE | WS_DISABLED | WS_MINIMIZE | WS_MAXIMIZE | also;
    const DWORD now = static_cast<DWORD>(GetWindowLongA(hwnd, GWL_STYLE));
    SetWindowLongA(hwnd, GWL_STYLE, static_cast<LONG>((style & ~kept) | (now & kept)));
}
