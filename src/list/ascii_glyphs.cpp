// Plain ASCII by the glyphs of the font in force.
#include "list/ascii_glyphs.h"

namespace {

constexpr WORD noGlyph = 0xFFFF;
constexpr int  glyphCount = AsciiGlyphs::last - AsciiGlyphs::first + 1;

// Fonts of pixels and strokes have no glyph indexes of their own.
bool HasGlyphIndexes(HDC hdc)
{
    TEXTMETRICW metrics = {};
    return GetTextMetricsW(hdc, &metrics) && (metrics.tmPitchAndFamily & TMPF_TRUETYPE);
}

bool RunsFromTheLeft(HDC hdc)
{
    return GetLayout(hdc) == 0 && !(GetTextAlign(hdc) & TA_RTLREADING);
}

bool LookUp(HDC hdc, WORD* glyphs)
{
    WCHAR characters[glyphCount];
    for (int i = 0; i < glyphCount; ++i) {
        characters[i] = static_cast<WCHAR>(AsciiGlyphs::first + i);
    }
    if (GetGlyphIndicesW(hdc, characters, glyphCount, glyphs, GGI_MARK_NONEXISTING_GLYPHS) != glyphCount) {
        return false;
    }
    for (int i = 0; i < glyphCount; ++i) {
        if (glyphs[i] == noGlyph) {
            return false;
        }
    }
    return true;
}

} // namespace

AsciiGlyphs FindAsciiGlyphs(HDC hdc)
{
    AsciiGlyphs found = {};
    found.known = RunsFromTheLeft(hdc) && HasGlyphIndexes(hdc) && LookUp(hdc, found.glyphs);
    return found;
}

bool DrawAsciiGlyphs(HDC hdc, const RECT& rect, UINT options, const AsciiGlyphs& glyphs, const char* text, int length)
{
    WCHAR run[longestGlyphRun];
    if (!glyphs.known || length > longestGlyphRun) {
        return false;
    }
    for (int i = 0; i < length; ++i) {
        if (text[i] < AsciiGlyphs::first || text[i] > AsciiGlyphs::last) {
            return false;
        }
        run[i] = glyphs.glyphs[text[i] - AsciiGlyphs::first];
    }
    ExtTextOutW(hdc, rect.left, rect.top, options | ETO_GLYPH_INDEX, &rect, run, static_cast<UINT>(length), nullptr);
    return true;
}
