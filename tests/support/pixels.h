// What a window shows, as pixels that tests can compare and keep.
#pragma once

#include <gtest/gtest.h>

#include <windows.h>

#include <string>
#include <vector>

struct Pixels {
    int                   width = 0;
    int                   height = 0;
    std::vector<COLORREF> colors; // row by row from the top

    COLORREF At(int x, int y) const; // CLR_INVALID outside
    RECT     Bounds() const { return { 0, 0, width, height }; }
    int      Count(COLORREF color, const RECT& area) const;
    bool     IsAll(COLORREF color, const RECT& area) const;
    // The smallest rectangle within area that holds all pixels of another color; empty if there are none.
    RECT InkBounds(COLORREF background, const RECT& area) const;
};

// The client area after all pending painting, or the whole window with its frame.
Pixels ShotOf(HWND hwnd);
Pixels ShotOfWindow(HWND hwnd);
// What the screen shows where the client area is, from any thread; nothing is painted first.
Pixels ScreenShotOf(HWND hwnd);
// The upper left part of a DC.
Pixels ShotOfDC(HDC hdc, int width, int height);

// Equal within area; otherwise tells the first difference and saves both as BMP files beside the program.
testing::AssertionResult SamePixels(const Pixels& expected, const Pixels& seen, const RECT& area);
testing::AssertionResult SamePixels(const Pixels& expected, const Pixels& seen);

// Saves a 24-bit BMP beside the program, named for the running test and label. The result is the path.
std::string SavePixels(const Pixels& pixels, const char* label);

// A memory DC with a white bitmap for functions that draw.
class Canvas {
public:
    Canvas(int width, int height);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC    hdc() const { return hdc_; }
    Pixels Shot() const { return ShotOfDC(hdc_, width_, height_); }
    void   Fill(COLORREF color);

private:
    HDC     hdc_;
    HBITMAP bitmap_;
    HGDIOBJ old_;
    int     width_;
    int     height_;
};
