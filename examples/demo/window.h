// The frame window: a menu, a grid, a list of phases and a status line; sorting by a click on a column header, editing,
// saving, and counting the records of the selected phases.
#pragma once

#include <widgets/widgets.h>

#include <string>

struct Table;

// Makes the frame, with a grid of the named definition in it; null if the window can't be made.
HWND MakeFrame(const std::string& definition);
HWND GridOf(HWND frame);
// Opens the loaded rows for changes. A grid that nobody opened only shows.
void AllowEditing(Table& table);
// How many records there are, for the status line, where no table counts them.
void SetRecordCount(int count);
// Shows a text in the status line, as its right part.
void TellStatus(const std::string& text);
// Ctrl+S and F6, before a message goes to its window: true if it was one of them.
bool TakeShortcut(HWND frame, MSG& message);
// Counts anew what a message may have selected, once its window has had it.
void CountAfter(const MSG& message);
