// Plain ASCII by the glyphs of the font in force. Many rows of it paint noticeably faster than as text, which the
// platform takes to wide text, to its order on the line and to glyphs, row by row.
#pragma once

#include <windows.h>

struct AsciiGlyphs {
    static constexpr char first = ' ';
    static constexpr char last = '~';

    WORD glyphs[last - first + 1];
    bool known; // false: the font hasn't all of them, or the context would set them in another order
};

// The glyphs of the font that is selected.
AsciiGlyphs FindAsciiGlyphs(HDC hdc);

// As ExtTextOut at the left top of a rectangle, for at most `longestGlyphRun` characters.
constexpr int longestGlyphRun = 127;
// false: nothing was drawn, since not all characters are plain ASCII.
bool DrawAsciiGlyphs(HDC hdc, const RECT& rect, UINT options, const AsciiGlyphs& glyphs, const char* text, int length);
