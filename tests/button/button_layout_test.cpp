// The places of caption and picture on a face, row by row of the rules.
#include "button/button_layout.h"

#include <gtest/gtest.h>

namespace {

constexpr RECT face = { 10, 20, 110, 60 };
constexpr SIZE text = { 30, 12 };
constexpr SIZE picture = { 20, 10 };

struct Span {
    LONG low;
    LONG high;
    bool operator==(const Span&) const = default;
};

void PrintTo(const Span& span, std::ostream* out)
{
    *out << span.low << " to " << span.high;
}

Span AcrossOf(const RECT& rect)
{
    return { rect.left, rect.right };
}

Span DownOf(const RECT& rect)
{
    return { rect.top, rect.bottom };
}

ButtonPlaces LayoutOf(BYTE textPos, BYTE picPos, BYTE relPos)
{
    return HBLayout(face, { text, picture, textPos, picPos, relPos });
}

struct PlaceRow {
    BYTE place;
    Span textAcross;
    Span textDown;
    Span picAcross;
    Span picDown;
};

// clang-format off
constexpr PlaceRow placeRows[] = {
    { 0, { 10, 40 },  { 20, 32 }, { 10, 30 },  { 20, 30 } },
    { 1, { 45, 75 },  { 20, 32 }, { 50, 70 },  { 20, 30 } },
    { 2, { 80, 110 }, { 20, 32 }, { 90, 110 }, { 20, 30 } },
    { 3, { 10, 40 },  { 34, 46 }, { 10, 30 },  { 35, 45 } },
    { 4, { 45, 75 },  { 34, 46 }, { 50, 70 },  { 35, 45 } },
    { 5, { 80, 110 }, { 34, 46 }, { 90, 110 }, { 35, 45 } },
    { 6, { 10, 40 },  { 48, 60 }, { 10, 30 },  { 50, 60 } },
    { 7, { 45, 75 },  { 48, 60 }, { 50, 70 },  { 50, 60 } },
    { 8, { 80, 110 }, { 48, 60 }, { 90, 110 }, { 50, 60 } },
};
// clang-format on

TEST(HBLayout, HasNinePlacesForEach)
{
    for (const PlaceRow& row : placeRows) {
        SCOPED_TRACE(static_cast<int>(row.place));
        // The other one stands elsewhere, so that the two don't meet.
        const BYTE other = row.place == 8 ? 0 : 8;
        const RECT caption = LayoutOf(row.place, other, 0).text;
        const RECT pic = LayoutOf(other, row.place, 0).picture;
        EXPECT_EQ(row.textAcross, AcrossOf(caption));
        EXPECT_EQ(row.textDown, DownOf(caption));
        EXPECT_EQ(row.picAcross, AcrossOf(pic));
        EXPECT_EQ(row.picDown, DownOf(pic));
    }
}

struct PairRow {
    BYTE place;
    BYTE relation;
    Span text;
    Span pic;
};

// clang-format off
constexpr PairRow acrossRows[] = {
    { 3, 3, { 35, 65 },  { 10, 30 } },
    { 3, 5, { 10, 40 },  { 45, 65 } },
    { 5, 5, { 55, 85 },  { 90, 110 } },
    { 5, 3, { 80, 110 }, { 55, 75 } },
    { 4, 3, { 58, 88 },  { 32, 52 } },
    { 4, 5, { 32, 62 },  { 68, 88 } },
    { 3, 4, { 10, 40 },  { 10, 30 } }, // no relation: one over the other
    { 4, 1, { 45, 75 },  { 50, 70 } },
    { 0, 0, { 35, 65 },  { 10, 30 } },
};

constexpr PairRow downRows[] = {
    { 1, 1, { 30, 42 }, { 20, 30 } },
    { 1, 7, { 20, 32 }, { 32, 42 } },
    { 7, 7, { 38, 50 }, { 50, 60 } },
    { 7, 1, { 48, 60 }, { 38, 48 } },
    { 4, 1, { 39, 51 }, { 29, 39 } },
    { 4, 7, { 29, 41 }, { 41, 51 } },
    { 1, 4, { 20, 32 }, { 20, 30 } },
    { 4, 3, { 34, 46 }, { 35, 45 } },
    { 0, 0, { 30, 42 }, { 20, 30 } },
};
// clang-format on

TEST(HBLayout, PairInOnePlaceStandsSideBySideWithAGap)
{
    for (const PairRow& row : acrossRows) {
        SCOPED_TRACE(testing::Message() << "place " << int{ row.place } << " relation " << int{ row.relation });
        const ButtonPlaces places = LayoutOf(row.place, row.place, row.relation);
        EXPECT_EQ(row.text, AcrossOf(places.text));
        EXPECT_EQ(row.pic, AcrossOf(places.picture));
    }
}

TEST(HBLayout, PairInOnePlaceStandsOneOverTheOtherWithoutAGap)
{
    for (const PairRow& row : downRows) {
        SCOPED_TRACE(testing::Message() << "place " << int{ row.place } << " relation " << int{ row.relation });
        const ButtonPlaces places = LayoutOf(row.place, row.place, row.relation);
        EXPECT_EQ(row.text, DownOf(places.text));
        EXPECT_EQ(row.pic, DownOf(places.picture));
    }
}

TEST(HBLayout, RelationCountsInOnePlaceOnly)
{
    // Both are at the left, but one of them at the top.
    const ButtonPlaces places = LayoutOf(0, 3, 3);
    EXPECT_EQ((Span{ 10, 40 }), AcrossOf(places.text));
    EXPECT_EQ((Span{ 10, 30 }), AcrossOf(places.picture));
}

TEST(HBLayout, WhatIsTooWideStaysInsideTheFace)
{
    const SIZE wide = { 200, 12 };
    for (const BYTE place : { BYTE{ 3 }, BYTE{ 4 }, BYTE{ 5 } }) {
        const ButtonPlaces places = HBLayout(face, { wide, wide, place, 8, 0 });
        EXPECT_EQ((Span{ 10, 110 }), AcrossOf(places.text)) << int{ place };
        EXPECT_EQ((Span{ 10, 110 }), AcrossOf(HBLayout(face, { wide, wide, 8, place, 0 }).picture)) << int{ place };
    }
}

TEST(HBLayout, PairThatIsTooWideKeepsItsEnds)
{
    const ButtonPlaces left = HBLayout(face, { { 60, 12 }, { 80, 10 }, 3, 3, 3 });
    EXPECT_EQ((Span{ 10, 90 }), AcrossOf(left.picture));
    EXPECT_EQ((Span{ 95, 110 }), AcrossOf(left.text));
    const ButtonPlaces right = HBLayout(face, { { 60, 12 }, { 80, 10 }, 5, 5, 5 });
    EXPECT_EQ((Span{ 30, 110 }), AcrossOf(right.picture));
    EXPECT_EQ((Span{ 10, 25 }), AcrossOf(right.text));
    const ButtonPlaces centre = HBLayout(face, { { 60, 12 }, { 80, 10 }, 4, 4, 3 });
    EXPECT_EQ((Span{ 10, 90 }), AcrossOf(centre.picture));
    EXPECT_EQ((Span{ 50, 110 }), AcrossOf(centre.text));
    const ButtonPlaces turned = HBLayout(face, { { 60, 12 }, { 80, 10 }, 4, 4, 5 });
    EXPECT_EQ((Span{ 30, 110 }), AcrossOf(turned.picture));
    EXPECT_EQ((Span{ 10, 70 }), AcrossOf(turned.text));
}

TEST(HBLayout, PairIsTurnedOverWhereOneTakesAllOfTheFace)
{
    const ButtonPlaces left = HBLayout(face, { { 60, 12 }, { 100, 10 }, 3, 3, 3 });
    EXPECT_EQ((Span{ 10, 110 }), AcrossOf(left.picture));
    EXPECT_EQ((Span{ 115, 110 }), AcrossOf(left.text));
    const ButtonPlaces right = HBLayout(face, { { 60, 12 }, { 100, 10 }, 5, 5, 5 });
    EXPECT_EQ((Span{ 10, 110 }), AcrossOf(right.picture));
    EXPECT_EQ((Span{ 10, 5 }), AcrossOf(right.text));
}

TEST(HBLayout, WithoutCaptionAndPictureBothAreEmpty)
{
    const ButtonPlaces places = HBLayout(face, { {}, {}, 4, 4, 4 });
    EXPECT_EQ((Span{ 60, 60 }), AcrossOf(places.text));
    EXPECT_EQ((Span{ 40, 40 }), DownOf(places.picture));
}

TEST(HBLayout, PlaceThatDoesNotExistIsTheCentre)
{
    const RECT centre = LayoutOf(4, 0, 0).text;
    const RECT none = LayoutOf(200, 0, 0).text;
    EXPECT_EQ(AcrossOf(centre), AcrossOf(none));
    EXPECT_EQ(DownOf(centre), DownOf(none));
}

} // namespace
