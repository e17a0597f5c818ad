// Messages that a grid sends to the cell controls of kinds that it doesn't make yet: combos.
// They move to widgets.h with the controls that answer them.
#pragma once

#include <windows.h>

constexpr UINT HCM_SETDROP = 1298;     // wParam: height of the drop part

// Bytes that an item's data needs at the most where its size isn't known.
constexpr int itemBufferSize = 256;
