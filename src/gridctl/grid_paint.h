// What the painting sources of the grid share.
#pragma once

#include "gridctl/grid_control.h"

#include <widgets/widgets.h>

// Visible columns of a band, one by one, up to a limit. band -1: the only band.
struct ColumnWalk {
    HGridCtl* ctl;
    int       band;
    int       col;   // the column reached; starts before the first
    int       limit; // the last that counts

    bool Next();
};

bool   HGHasFocus(const HGridCtl* ctl);
HBRUSH HGFaceBrush(); // of headers and backgrounds: the library's, or the system's
bool   HGIsFixedCol(const HGridCtl* ctl, int col);
// Where columns of a zone show: fixed ones right of the row headers, others right of all fixed ones.
void HGZoneRect(HGridCtl* ctl, RECT* rect, bool fixed);

// Cells whose place is known and in view. HGDrawDataCell gives 0 if the window went.
int  HGDrawDataCell(HGridCtl* ctl, HDC hdc, const RECT& rect, int col, int row);
bool HGIsDrawItem(WPARAM font); // true for the record that a host gets to draw a cell
void HGDrawColumnHeader(HGridCtl* ctl, HDC hdc, RECT rect, int col);
void HGDrawRowHeader(HGridCtl* ctl, HDC hdc, RECT rect, int row);
// What is left of the header strips behind the last column of a band and the row lastRow.
void HGDrawColumnHeaderRest(HGridCtl* ctl, HDC hdc, int band);
void HGDrawFixedHeaderRest(HGridCtl* ctl, HDC hdc, int band);
void HGDrawRowHeaderRest(HGridCtl* ctl, HDC hdc, int lastRow);

// The selection as it stands, over cells that were just painted.
void HGShowSelection(HGridCtl* ctl, HDC hdc);
