// Records that are made up when they are asked for: a row source over any number of them.
#pragma once

#include <widgets/widgets.h>

// Shows count generated records in a grid whose columns are those of the wildlife strikes.
void ShowGenerated(HWND grid, int count);
