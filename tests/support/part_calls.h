// What a test's part painter was asked to draw.
#pragma once

#include <windows.h>

#include <vector>

struct PartCall {
    int  part;
    RECT rect;
    int  enabled;
    int  pressed;
    int  reserved;
};
inline std::vector<PartCall> gParts;
inline int                   gPartAnswer; // of the painter

// For a painter to begin with: notes the call.
inline int NotePart(int part, const RECT* rect, int enabled, int pressed, int reserved)
{
    gParts.push_back({ part, *rect, enabled, pressed, reserved });
    return gPartAnswer;
}
