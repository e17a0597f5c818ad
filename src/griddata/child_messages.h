// Messages that a grid sends to the cell controls of a kind that it doesn't make yet: buttons.
// They move to widgets.h with the control that answers them.
#pragma once

#include <windows.h>

constexpr UINT HBM_GETVALUE = 1080;    // lParam: out; the size, or 0 for the null value
constexpr UINT HBM_SETVALUE = 1081;    // lParam: value, or null

// Bytes that an item's data needs at the most where its size isn't known.
constexpr int itemBufferSize = 256;
