// What the drawing sources share.
#pragma once

#include <windows.h>

// A memory context with a bitmap in it; the bitmap stays its owner's.
struct MemoryDC {
    HDC     hdc;
    HGDIOBJ old;
    MemoryDC(HDC like, HBITMAP bitmap) : hdc(CreateCompatibleDC(like)), old(SelectObject(hdc, bitmap)) {}
    ~MemoryDC()
    {
        SelectObject(hdc, old);
        DeleteDC(hdc);
    }
    MemoryDC(const MemoryDC&) = delete;
    MemoryDC& operator=(const MemoryDC&) = delete;
};
