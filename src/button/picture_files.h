// Pictures made from bytes: of bitmap resources, bitmap files and icon files.
#pragma once

#include <widgets/widgets.h>

// Each fills in pic if it finds the picture, and else leaves it as it is.
void LoadPicResource(Pic* pic, HINSTANCE module, const char* name);
void LoadPicBitmapFile(Pic* pic, const char* name);
void LoadPicIconFile(Pic* pic, const char* name);
