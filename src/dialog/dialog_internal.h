// What the sources of this folder share.
#pragma once

#include <widgets/widgets.h>

// Milliseconds between two moves of TimedScroll, with the pointer at point and both in client coordinates.
DWORD ScrollDelay(const RECT& client, POINT point, bool horizontal);
