// Where a dropped list goes: arithmetic alone.
#pragma once

#include <windows.h>

// The place of a list of a size, in screen coordinates, for a combo on a monitor.
RECT HCDropRect(const RECT& combo, const RECT& monitor, int width, int height);
