// What the data side of a grid asks of its window: the grid control supplies these.
#pragma once

#include <widgets/widgets.h>

int  HGDetachEditor(HGridCtl* ctl);                     // ends the edit of the current cell for good
int  HGLoadEditor(HGridCtl* ctl);                       // shows the current cell's value in the editor
void HGRedrawSelection(HGridCtl* ctl);                  // invalidates the selected range
void HGInvalidateCell(HGridCtl* ctl, int col, int row); // -1 names a header
void HGInvalidateRange(HGridCtl* ctl, int col1, int row1, int col2, int row2);
int  HGItemSize(HWND child, int index);                 // bytes of an item's data, of a text its length; 0 if unknown
int  HGItemCodeSize(HWND child, int index);             // the same of its code
int  HGAddRow(HGridCtl* ctl, const void* data, bool markNew); // row index + 1; below 1 on failure
