// Arithmetic of the edit control on indexes and pixels, without a window.
#include "edit/edit_math.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace {

bool IsSpace(char ch)
{
    return std::isspace(static_cast<unsigned char>(ch)) != 0;
}

} // namespace

int ClampIndex(int index, int length)
{
    return index < 0 || index > length ? length : index;
}

TextRange OrderedRange(int a, int b, int length)
{
    const int first = ClampIndex(a, length);
    const int second = ClampIndex(b, length);
    return { std::min(first, second), std::max(first, second) };
}

void RangeWithout(TextRange range, TextRange other, TextRange* before, TextRange* behind)
{
    *before = { range.lo, std::min(range.hi, other.lo) };
    *behind = { std::max(range.lo, other.hi), range.hi };
}

int NextWord(const char* text, int from)
{
    int at = from;
    while (text[at] && !IsSpace(text[at])) {
        ++at;
    }
    while (text[at] && IsSpace(text[at])) {
        ++at;
    }
    return at;
}

int PreviousWord(const char* text, int from)
{
    int at = from;
    while (at > 0 && IsSpace(text[at - 1])) {
        --at;
    }
    while (at > 0 && !IsSpace(text[at - 1])) {
        --at;
    }
    return at;
}

int NearestCount(WidthOf widthOf, const void* context, int distance, int estimate, int count)
{
    int n = std::clamp(estimate, 0, count);
    int error = distance - widthOf(context, n);
    const bool ahead = error > 0;
    const int step = ahead ? 1 : -1;
    while (error != 0 && n + step >= 0 && n + step <= count) {
        const int next = distance - widthOf(context, n + step);
        if ((next > 0) != ahead || next == 0) {
            return std::abs(error) < std::abs(next) ? n : n + step;
        }
        n += step;
        error = next;
    }
    return n;
}

int ScrollForCaret(int x, int left, int right, int pageChars, int oldCaret, int newCaret)
{
    const int margin = (right - left) / 8;
    if (x > right - margin) {
        return std::max(0, pageChars / 3 + newCaret - oldCaret);
    }
    if (x < left + margin) {
        return -std::max(0, pageChars / 3 - newCaret + oldCaret);
    }
    return 0;
}

int ScrollRange(int rest, int oldMax, int length)
{
    if (rest <= 0) {
        return 0;
    }
    if (rest <= oldMax && rest >= oldMax - 3) {
        return oldMax;
    }
    return std::min(rest + 3, length);
}

int ScrollAmount(int delta, int scroll, int max)
{
    if (delta > 0) {
        return scroll < max ? std::min(delta, max - scroll) : 0;
    }
    return std::max(delta, -scroll);
}

bool HoldsOneLine(int rowHeight, int minRowHeight)
{
    return (minRowHeight - 4) * 1.9 > rowHeight - 4;
}
