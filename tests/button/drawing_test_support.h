// What tests of drawing share: pictures in letters, and a screen resolution of one's own.
#pragma once

#include "foundation/screen.h"
#include "support/pixels.h"

#include <windows.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

// The background of canvases: a colour that nothing else has.
constexpr COLORREF paper = RGB(18, 52, 86);

using Letters = std::vector<std::pair<char, COLORREF>>;

// Rows of letters; '.' is paper, '?' a colour without a letter.
inline std::string AsText(const Pixels& pixels, const Letters& letters)
{
    std::string text;
    for (int y = 0; y < pixels.height; ++y) {
        text += '\n';
        for (int x = 0; x < pixels.width; ++x) {
            const COLORREF color = pixels.At(x, y);
            const auto     found = std::find_if(letters.begin(), letters.end(),
                                                [color](const auto& letter) { return letter.second == color; });
            text += color == paper ? '.' : found == letters.end() ? '?' : found->first;
        }
    }
    return text;
}

// The library sees this resolution until the end of the scope.
class AtDpi {
public:
    explicit AtDpi(int dpi) : read_(fDpiRead), x_(nDpiX), y_(nDpiY), percent_(nDpiPercent)
    {
        fDpiRead = 1;
        nDpiX = nDpiY = dpi;
        nDpiPercent = MulDiv(dpi, 100, 96);
    }
    ~AtDpi()
    {
        fDpiRead = read_;
        nDpiX = x_;
        nDpiY = y_;
        nDpiPercent = percent_;
    }
    AtDpi(const AtDpi&) = delete;
    AtDpi& operator=(const AtDpi&) = delete;

private:
    int read_;
    int x_;
    int y_;
    int percent_;
};
