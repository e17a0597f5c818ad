// The phases of flight below the grid: a list in which any number of them can be selected, to count their records.
#pragma once

#include "table.h"

// The list, without items yet; null if it can't be made.
HWND MakePhaseList(HWND parent, INT_PTR id, HFONT font);
// Gives the list the phases of all records, all selected. Phases that come later, by editing, are added unselected.
void ShowPhases(HWND list, const Table& table);
void AddNewPhases(HWND list, const Table& table);
// How many records the selected phases have, for the status line.
std::string CountSelected(HWND list, const Table& table);
