// Drawing routines that only the library uses; frames and push-button faces are exports.
#pragma once

#include "foundation/services.h"

#include <widgets/widgets.h>

// One frame line: rect becomes the inside. Null penTopLeft: the stock white pen.
void HDrawFrame(HDC dc, RECT* rect, HPEN penTopLeft, HPEN penBottomRight, bool fCut, bool fFill);
// Copies a bitmap, with the colour key left out unless it is 0.
void HDrawBitmap(HDC dc, HBITMAP bitmap, int x, int y, COLORREF key);
// The bitmap for the current resolution: 1 on success.
int BitmapSetLoad(HINSTANCE module, HBITMAP* out, WORD id, int imageWidth);

constexpr COLORREF maskColor = 0x0000FF00; // transparent in all bitmaps of the library
constexpr int      imageUnits = 13;        // size of an image of the strip, in design units
