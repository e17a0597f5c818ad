// Services of the message frame that only the library uses; the others are exports.
#pragma once

#include <widgets/widgets.h>

#include <cstddef>

static_assert(sizeof(void*) != 4 || (sizeof(ControlHeader) == 22 && offsetof(ControlHeader, dwStyle) == 18));

int   HClipSiblings(HWND hwnd, HDC hdc); // takes the visible siblings of hwnd out of hdc
void  HUpdateTop(HWND hwnd);             // UpdateWindow on the top-level window
int   HWinVersion();                     // major * 256 + minor
int   HIsCombo(HWND hwnd);
DWORD HFontUnits(HDC hdc, HFONT font);   // GetBaseUnits where a device context is at hand already
DWORD HMeasureLines(HDC hdc, const char* text); // widest line in the low word, sum of heights in the high word

// The common form of bounds: a double for numbers, three words for dates and times. 0 for another class.
int HToCanon(double* out, const void* value, char dataClass, char dataType);
int HFromCanon(const double* canon, void* value, char dataClass, char dataType);
