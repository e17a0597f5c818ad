// The frame window: a grid above a status line, sorting by a click on a column header.
#pragma once

#include <widgets/widgets.h>

#include <string>

// Makes the frame, with a grid of the named definition in it; null if the window can't be made.
HWND MakeFrame(const std::string& definition);
HWND GridOf(HWND frame);
// Sorting is for grids that hold all their rows.
void AllowSorting(bool allowed);
// How many records there are, for the status line.
void SetRecordCount(int count);
// Shows a text in the status line, as its right part.
void TellStatus(HWND frame, const std::string& text);
