// Data lists for the controls that hold one: what isn't exported.
#pragma once

#include <widgets/widgets.h>

#include <cstddef>

static_assert(sizeof(DataList) == 8 + 3 * sizeof(void*) && offsetof(DataList, pszFormat) == 8);
static_assert(sizeof(void*) != 4 || sizeof(DataList) == 20); // five words
static_assert(offsetof(DataList, pCodes) == 8 + 2 * sizeof(void*));

// Tells the value and the code of item i of several; a null code is allowed.
typedef void (*HDLITEMAT)(const void* context, int i, const void** data, const void** code);

// Adds count items as HDLInsertItem would one after the other, item i at index + i, or at the end for a negative index;
// a sorted list takes them in n log n compares. Items without a value are left out. The number added.
int HDLInsertItems(DataList* dl, int index, int count, HDLITEMAT itemAt, const void* context);
