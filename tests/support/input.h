// Real keyboard and mouse input for window tests, through SendInput. Each call pumps until its input has arrived.
// Positions are client coordinates of the window.
#pragma once

#include <windows.h>

enum KeyModifier : unsigned { withNone = 0, withShift = 1, withCtrl = 2, withAlt = 4 };

void TypeKey(WORD vk, unsigned modifiers = withNone);
void TypeText(const char* text); // characters of the keyboard layout in force

void MoveMouse(HWND hwnd, int x, int y);
void PressButton(HWND hwnd, int x, int y); // left button down there
void ReleaseButton(HWND hwnd, int x, int y);
void ClickAt(HWND hwnd, int x, int y, unsigned modifiers = withNone); // never the second half of a double click
void RightClickAt(HWND hwnd, int x, int y);
void DoubleClickAt(HWND hwnd, int x, int y);
void Wheel(HWND hwnd, int x, int y, int delta);
