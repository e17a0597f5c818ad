// Lets a test run at another resolution than the screen's.
#pragma once

#include "foundation/screen.h"

class ScreenResolution {
public:
    explicit ScreenResolution(int dpi) : ScreenResolution(dpi, dpi) {}
    ScreenResolution(int dpiX, int dpiY) { Set(dpiX, dpiY); }
    ~ScreenResolution()
    {
        DpiReset();
        DpiRead();
    }
    ScreenResolution(const ScreenResolution&) = delete;
    ScreenResolution& operator=(const ScreenResolution&) = delete;

private:
    static void Set(int dpiX, int dpiY)
    {
        nDpiX = dpiX;
        nDpiY = dpiY;
        nDpiPercent = MulDiv(dpiX, 100, 96);
        fDpiRead = 1;
    }
};
