// The walk over a mask that laying out and typing share.
#pragma once

#include "typed/masks.h"

// One position of a mask.
struct MaskSpot {
    bool        atEnd;
    bool        placeholder; // else a literal
    char        ch;          // the placeholder's letter, or the literal
    const char* next;        // behind the position
};

// The next position; groups in brackets in front of it are skipped.
MaskSpot ReadMask(const char* mask);
// Whether a text's character may stand at a placeholder; its end never may.
bool FitsMask(const MaskSpot& spot, char ch);
// What an unfilled placeholder shows.
char MaskFiller(const MaskSpot& spot);
