// The screen's resolution, and the conversions between design units at 96 DPI and pixels.
// Each conversion asks the screen first unless it has been asked.
#pragma once

#include <widgets/widgets.h>

extern int fDpiRead;    // 1 once the screen was asked
extern int nDpiX;       // pixels per inch across
extern int nDpiY;       // pixels per inch down
extern int nDpiPercent; // nDpiX as a percentage of 96

void DpiReset(); // back to 96, and not asked yet
void DpiRead();
int  DpiX();
int  DpiY();
int  DpiPercent();

int    ScaleX(int v); // design units to pixels
int    ScaleY(int v);
int    UnscaleX(int v); // pixels to design units
int    UnscaleY(int v);
double ScaleXF(double v);
double ScaleYF(double v);
double UnscaleXF(double v);
double UnscaleYF(double v);
void   ScaleRect(RECT* rect);
void   UnscaleRect(RECT* rect);
void   ScalePoint(POINT* point);
int    PointsToPixels(int v);
int    ScreenWidthUnits();
int    ScreenHeightUnits();
int    ScreenFits(int w, int h); // 0 if the screen is smaller than w by h design units
