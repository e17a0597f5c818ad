// The dispatchers on data class and type that only the library uses; the others are exports.
#pragma once

#include <widgets/widgets.h>

// The longest value of a type with a fixed size, in bytes.
constexpr int longestFixedType = 36;

// Orders two stored values of a pair: -1, 0 or 1. Null for a pair without an order.
HLLDATACOMPARE GetDataCompare(char dataClass, char dataType);

// Copies a stored value: bytes of a fixed size, or a text of up to maxSize bytes with its terminator, -1 meaning no
// limit. The bytes copied, of a text without the terminator; 0 for null.
int HCopyValue(void* dest, const void* src, char dataClass, char dataType, int maxSize);
// 1 if two stored values differ in any byte, of texts up to the terminator; 0 if not or for null.
int HValuesDiffer(const void* a, const void* b, char dataClass, char dataType);

// A typed character ch at index pos of the field text, which is edited in place and has room for one character more.
// 0 if it was taken. outAdvance: places the caret moves; outRepaint: characters from the old caret to paint.
int DataCharFilter(char dataClass, char dataType, char* text, const char* format, int pos, char ch, int* outAdvance,
                   int* outRepaint);
// The delete key at index pos: 1 if the caret has to step on without anything having been removed. The text has room
// for two characters more, which class z may put in.
int DataCharDelete(char dataClass, char dataType, char* text, const char* format, int pos);
