// Arithmetic of the edit control on indexes and pixels, without a window.
#pragma once

struct TextRange {
    int lo;
    int hi;
};

// An index into a text of that length; below 0 means the end.
int ClampIndex(int index, int length);
// The lower and the upper of two indexes, both held within the text.
TextRange OrderedRange(int a, int b, int length);
// Parts of a range that are outside another one: before it and behind it. Empty ones have lo >= hi.
void RangeWithout(TextRange range, TextRange other, TextRange* before, TextRange* behind);

// Starts of words: the next one behind a place, the end of the text without one, and the one before it, or 0.
int NextWord(const char* text, int from);
int PreviousWord(const char* text, int from);

// Width of the first, or the last, count characters.
using WidthOf = int (*)(const void* context, int count);
// The count whose width comes nearest to distance, sought from an estimate; on a tie the count reached later.
int NearestCount(WidthOf widthOf, const void* context, int distance, int estimate, int count);

// Characters to scroll ahead, or with a negative result back, so that a caret at x leaves the margins.
int ScrollForCaret(int x, int left, int right, int pageChars, int oldCaret, int newCaret);
// The scroll range for a text of which rest characters don't fit: small changes keep the old range.
int ScrollRange(int rest, int oldMax, int length);
// How far a scroll by delta gets, with nScroll held between 0 and max.
int ScrollAmount(int delta, int scroll, int max);

// Whether a grid row of that height is too low for two lines of text.
bool HoldsOneLine(int rowHeight, int minRowHeight);
