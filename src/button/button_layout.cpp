// The nine places of caption and picture on a button's face. Across and down follow the same rules.
#include "button/button_layout.h"

#include <algorithm>

namespace {

constexpr int sideGap = 5; // between caption and picture side by side

// Where something stands along one direction, and where a caption stands to a picture.
enum class Side { Low, High, Centre };

struct Span {
    LONG low;
    LONG high;
};

// clang-format off
constexpr BYTE placeBits[placeCount] = { // 1 left, 2 right, 4 top, 8 bottom
    5, 4, 6,
    1, 0, 2,
    9, 8, 10,
};
// clang-format on

// Of a place that doesn't exist: none, which is the centre's.
BYTE BitsOf(BYTE place)
{
    return place < placeCount ? placeBits[place] : BYTE{ 0 };
}

Side SideOf(BYTE bits, int shift)
{
    if (bits >> shift & 1) {
        return Side::Low;
    }
    return bits >> shift & 2 ? Side::High : Side::Centre;
}

Span Place(const Span& face, LONG size, Side side)
{
    switch (side) {
    case Side::Low: return { face.low, std::min(face.high, face.low + size) };
    case Side::High: return { std::max(face.high - size, face.low), face.high };
    default: break;
    }
    const LONG low = std::max(face.low + (face.high - face.low - size) / 2, face.low);
    return { low, face.high - low + face.low };
}

// One direction of a pair that wants one place.
struct Pair {
    Span face;
    LONG textSize;
    LONG picSize;
    LONG gap;
    Span text;
    Span pic;
};

// place is the low or the high end. The one of the two that stands at the end keeps its span.
void PairAtEnd(Pair& pair, Side place, Side relation)
{
    const Span& face = pair.face;
    const bool  textMoves = place == relation;
    Span&       moved = textMoves ? pair.text : pair.pic;
    const Span& kept = textMoves ? pair.pic : pair.text;
    const LONG  size = textMoves ? pair.textSize : pair.picSize;
    if (place == Side::Low) {
        moved.low = kept.high + pair.gap;
        moved.high = std::min(face.high, moved.low + size);
    } else {
        moved.high = kept.low - pair.gap;
        moved.low = std::max(face.low, moved.high - size);
    }
}

void PairInCentre(Pair& pair, Side relation)
{
    const Span& face = pair.face;
    const LONG  spare = (face.high - face.low - pair.picSize - pair.textSize - pair.gap) / 2;
    if (relation == Side::Low) {
        pair.pic.low = std::max(spare + face.low, face.low);
        pair.pic.high = std::min(face.high, pair.pic.low + pair.picSize);
        pair.text.high = face.high - pair.pic.low + face.low;
        pair.text.low = std::max(face.low, pair.text.high - pair.textSize);
    } else {
        pair.pic.high = std::min(face.high, face.high - spare);
        pair.pic.low = std::max(face.low, pair.pic.high - pair.picSize);
        pair.text.low = face.low + face.high - pair.pic.high;
        pair.text.high = std::min(face.high, pair.text.low + pair.textSize);
    }
}

void Arrange(Pair& pair, Side textSide, Side picSide, Side relation, bool together)
{
    pair.text = Place(pair.face, pair.textSize, textSide);
    pair.pic = Place(pair.face, pair.picSize, picSide);
    if (!together || relation == Side::Centre) {
        return;
    }
    if (picSide == Side::Centre) {
        PairInCentre(pair, relation);
    } else {
        PairAtEnd(pair, picSide, relation);
    }
}

} // namespace

ButtonPlaces HBLayout(const RECT& face, const ButtonContent& content)
{
    constexpr int acrossShift = 0;
    constexpr int downShift = 2;
    const BYTE    text = BitsOf(content.textPos);
    const BYTE    pic = BitsOf(content.picPos);
    const BYTE    relation = BitsOf(content.relPos);
    Pair across{ { face.left, face.right }, content.text.cx, content.picture.cx, sideGap, {}, {} };
    Pair down{ { face.top, face.bottom }, content.text.cy, content.picture.cy, 0, {}, {} };
    Arrange(across, SideOf(text, acrossShift), SideOf(pic, acrossShift), SideOf(relation, acrossShift), text == pic);
    Arrange(down, SideOf(text, downShift), SideOf(pic, downShift), SideOf(relation, downShift), text == pic);
    return { { across.text.low, down.text.low, across.text.high, down.text.high },
             { across.pic.low, down.pic.low, across.pic.high, down.pic.high } };
}
