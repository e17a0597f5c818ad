// Scroll bars of controls.
#pragma once

#include <windows.h>

// SetScrollPos that draws the bar, if it is to be drawn, only where its thumb moves.
void HSetBarPos(HWND window, int bar, int pos, bool redraw);
