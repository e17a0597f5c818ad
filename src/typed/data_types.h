// The dispatchers on data class and type that only the library uses; the others are exports.
#pragma once

#include <widgets/widgets.h>

// Orders two stored values of a pair: -1, 0 or 1. Null for a pair without an order.
HLLDATACOMPARE GetDataCompare(char dataClass, char dataType);

// A typed character ch at index pos of the field text, which is edited in place and has room for one character more.
// 0 if it was taken. outAdvance: places the caret moves; outRepaint: characters from the old caret to paint.
int DataCharFilter(char dataClass, char dataType, char* text, const char* format, int pos, char ch, int* outAdvance,
                   int* outRepaint);
// The delete key at index pos: 1 if the caret has to step on without anything having been removed. The text has room
// for two characters more, which class z may put in.
int DataCharDelete(char dataClass, char dataType, char* text, const char* format, int pos);
