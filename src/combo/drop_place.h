// Where a dropped list goes: arithmetic alone.
#pragma once

#include <windows.h>

// The place of a list in screen coordinates, for a combo on a monitor. The list is as wide as the combo, or leastWidth.
RECT HCDropRect(const RECT& combo, const RECT& monitor, int leastWidth, int height);
