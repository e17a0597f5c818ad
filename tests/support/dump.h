// Records as text, for failure messages and for people in a debugger.
#pragma once

#include <widgets/widgets.h>

#include <string>

// Settings, columns, and rows with their flags and cells; "null" for a null cell.
std::string DumpGrid(HGridData* grid);
// Count, flags, cursor and the payload of each node; says if the ring isn't closed.
std::string DumpList(HLList* list);
