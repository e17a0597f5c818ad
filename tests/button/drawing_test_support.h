// What tests of drawing share: pictures in letters.
#pragma once

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
