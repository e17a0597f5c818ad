// Where caption and picture stand on a button's face: arithmetic on rectangles and sizes alone.
#pragma once

#include <windows.h>

constexpr int  placeCount = 9; // places on the face, row by row from the upper left one
constexpr BYTE lastPlace = placeCount - 1;

struct ButtonContent {
    SIZE text;    // 0, 0 without a caption
    SIZE picture; // 0, 0 without one
    BYTE textPos; // places
    BYTE picPos;
    BYTE relPos;
};

struct ButtonPlaces {
    RECT text;
    RECT picture;
};

// A caption as wide as text and a picture, in the places that they want. Either may overlap the other or be cut by
// face. Settled: where one of a pair takes all of face, the other is pushed out of it and turned over.
ButtonPlaces HBLayout(const RECT& face, const ButtonContent& content);
