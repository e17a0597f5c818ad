// Guards that undo GDI calls in the right order: create first, select second, so that they end deselect, delete.
// Each compiles to the plain calls; none can be copied.
#pragma once

#include <windows.h>

struct WindowDC {
    HWND hwnd;
    HDC  hdc;
    explicit WindowDC(HWND window) : hwnd(window), hdc(GetDC(window)) {}
    ~WindowDC()
    {
        if (hdc) {
            ReleaseDC(hwnd, hdc);
        }
    }
    WindowDC(const WindowDC&) = delete;
    WindowDC& operator=(const WindowDC&) = delete;
};

struct PaintDC {
    HWND        hwnd;
    PAINTSTRUCT ps;
    HDC         hdc;
    explicit PaintDC(HWND window) : hwnd(window), ps(), hdc(BeginPaint(window, &ps)) {}
    ~PaintDC() { EndPaint(hwnd, &ps); }
    PaintDC(const PaintDC&) = delete;
    PaintDC& operator=(const PaintDC&) = delete;
};

template <typename H>
struct OwnedObject {
    H h;
    explicit OwnedObject(H object) : h(object) {}
    ~OwnedObject()
    {
        if (h) {
            DeleteObject(h);
        }
    }
    OwnedObject(const OwnedObject&) = delete;
    OwnedObject& operator=(const OwnedObject&) = delete;
};

struct SelectedObject {
    HDC     hdc;
    HGDIOBJ old;
    SelectedObject(HDC dc, HGDIOBJ object) : hdc(dc), old(object ? SelectObject(dc, object) : nullptr) {}
    ~SelectedObject()
    {
        if (old) {
            SelectObject(hdc, old);
        }
    }
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;
};

// Clips to a rectangle and puts the clip that was there back at the end.
struct ClipTo {
    HDC hdc;
    int saved;
    ClipTo(HDC dc, const RECT& rect) : hdc(dc), saved(SaveDC(dc))
    {
        IntersectClipRect(dc, rect.left, rect.top, rect.right, rect.bottom);
    }
    ~ClipTo() { RestoreDC(hdc, saved); }
    ClipTo(const ClipTo&) = delete;
    ClipTo& operator=(const ClipTo&) = delete;
};
