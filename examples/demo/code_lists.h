// The columns whose cells store codes, and the texts that stand for these.
#pragma once

#include <widgets/widgets.h>

// Gives each such column's list its items. Cells show nothing before that.
void FillCodeLists(HWND grid);
