// Entry steps of masks and booleans, and the colour groups of formats; the other conversions are exports.
#pragma once

#include <widgets/widgets.h>

// Entry and delete steps of masked text, as DataCharFilter and DataCharDelete take them.
int MaskCharFilter(char* text, const char* mask, int pos, char ch, int* outAdvance, int* outRepaint);
int MaskCharDelete(char* text, const char* mask, int pos);

int BoolFromText(const char* format, const char* text);           // 1 if text stands for true
int BoolCharFilter(char* text, const char* format, char ch);      // rewrites text; 1 only for a null text
int GetBoolValue(char dataType, const void* data);                // 1 if the integer isn't zero
int SetBoolValue(char dataType, void* data, int value);           // 0 for a type that is no integer

// Takes the colour groups out of text in place: bit 0 if the first colour was set, 2 added for the second.
WORD ParseColorPrefix(COLORREF* outColor, COLORREF* outNegColor, char* text);
