// Real keyboard and mouse input for window tests, through SendInput. Each call pumps until its input has arrived.
// Positions are client coordinates of the window. Modifiers go down with their key, or before their button once the
// pointer stands there: where the screen is an X server's, a pointer that moves lets go of all that are held.
#pragma once

#include <windows.h>

#include <span>

enum KeyModifier : unsigned { withNone = 0, withShift = 1, withCtrl = 2, withAlt = 4 };

struct KeyPress {
    WORD     vk;
    unsigned modifiers;
};

void TypeKey(WORD vk, unsigned modifiers = withNone);
void TypeKeys(std::span<const KeyPress> keys); // all of them wait before the first one is dispatched
void HoldKey(WORD vk);                         // once more is a repeat
void ReleaseKey(WORD vk);
void TypeText(const char* text); // characters of the keyboard layout in force

// One event of the mouse at a point of the screen, from any thread, and then the keys let go: nothing is pumped.
void SendMouse(POINT screen, DWORD flags, unsigned released = withNone);

void MoveMouse(HWND hwnd, int x, int y);
void PressButton(HWND hwnd, int x, int y, unsigned modifiers = withNone); // left button down there
void ReleaseButton(HWND hwnd, int x, int y, unsigned modifiers = withNone);
void ClickAt(HWND hwnd, int x, int y, unsigned modifiers = withNone); // never the second half of a double click
void RightClickAt(HWND hwnd, int x, int y);
void DoubleClickAt(HWND hwnd, int x, int y);
void Wheel(HWND hwnd, int x, int y, int delta);
