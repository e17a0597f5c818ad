// What start-up asks of the layers above it.
#pragma once

#include <widgets/widgets.h>

#include <commctrl.h>

// Bitmap sets, supplied by the drawing routines.
void BitmapSetReset();
void BitmapSetRegister(HINSTANCE module, WORD id100, WORD id200, WORD id400);
int  BitmapSetImageList(HINSTANCE module, HIMAGELIST* out, WORD id, int imageWidth, COLORREF maskColor);
void BitmapSetFree();
