// What typed characters and the delete key do inside a masked text.
#include "typed/masks_internal.h"

#include <cstring>

namespace {

// The position of a mask behind count others.
MaskSpot FindSpot(const char* mask, int count)
{
    MaskSpot spot = ReadMask(mask ? mask : "");
    for (int i = 0; i < count && !spot.atEnd; ++i) {
        spot = ReadMask(spot.next);
    }
    return spot;
}

void Overwrite(char* text, int pos, char ch)
{
    // Bounded: behind its end a text has no place; at its end it grows by the character.
    const int length = static_cast<int>(std::strlen(text));
    if (pos < 0 || pos > length) {
        return;
    }
    if (pos == length) {
        text[pos + 1] = 0;
    }
    text[pos] = ch;
}

int Finish(int result, int count, int* outAdvance, int* outRepaint)
{
    if (outAdvance) {
        *outAdvance = count;
    }
    if (outRepaint) {
        *outRepaint = count;
    }
    return result;
}

} // namespace

int MaskCharFilter(char* text, const char* mask, int pos, char ch, int* outAdvance, int* outRepaint)
{
    int count = 0;
    for (MaskSpot spot = FindSpot(mask, pos); !spot.atEnd; spot = ReadMask(spot.next)) {
        if (spot.placeholder) {
            if (!FitsMask(spot, ch)) {
                return Finish(1, 0, outAdvance, outRepaint);
            }
            Overwrite(text, pos + count, ch);
            return Finish(0, count + 1, outAdvance, outRepaint);
        }
        // A typed separator moves over its literal; anything else looks for its place behind it.
        ++count;
        if (spot.ch == ch) {
            break;
        }
    }
    return Finish(0, count, outAdvance, outRepaint);
}

int MaskCharDelete(char* text, const char* mask, int pos)
{
    const MaskSpot spot = FindSpot(mask, pos);
    if (spot.atEnd) {
        return 0;
    }
    // Bounded: a text shorter than its mask has nothing to clear there.
    if (spot.placeholder && pos >= 0 && pos < static_cast<int>(std::strlen(text))) {
        text[pos] = MaskFiller(spot);
    }
    return 2;
}
