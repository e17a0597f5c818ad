// Library-wide state that start-up sets to known values, and the diagnostics that aren't exported.
// The setters of the appearance live with the grid; everybody reads it here.
#pragma once

#include <widgets/widgets.h>

#include <commctrl.h>

extern HINSTANCE  hInstance;     // the library's module
extern int        fWidgetsReady; // WidgetsInit has run
extern HCURSOR    hCurIBeam;     // edit cursor
extern HCURSOR    hCurArrow;     // arrow cursor
extern HCURSOR    hCurGrid;      // class cursor of the grid, kept from registration
extern HIMAGELIST hCheckImages;  // the strip of 13 images, or null

extern HBRUSH     hFocusBrush;  // field brush of buttons, edits and lists, or null
extern HBRUSH     hSelectBrush; // headers of the current row and column, or null
extern HBRUSH     hFaceBrush;   // cells and headers, or null
extern COLORREF   crFace;       // colour of the face brush, also when there is none
extern HBRUSH     hSecondBrush; // stripes, or null
extern HBRUSH     hThirdBrush;  // cells marked with the third background, or null
extern HGDRAWPART pfnDrawPart;  // paints parts of buttons, or null
extern int        fDpiScaling;  // column widths follow the screen's resolution

// Brings brushes, part painter, scaling switch, images and resolution to their start values.
void LibraryStartState();

// Set the module once, before WidgetsInit, and undo what has to be undone at unload.
void LibraryAttach(HINSTANCE module);
void LibraryDetach();

// What WWM_GETSTATE answers. It is sent only to a window whose procedure isn't that of a class of ours: every access to
// a cell begins here, and a message costs more than the rest of it.
void* ControlRecord(HWND hwnd);

// For a developer who wants times in the debugger.
void DebugTimerStart();
void DebugTimerReport(const char* label);
