// Single cells of a grid: addresses, flag words, and the one write step that every change passes.
#pragma once

#include "foundation/startup.h"
#include "griddata/grid_model.h"

#include <widgets/widgets.h>

// Bits of a cell's flag word. The library writes cellNull only; hosts set the others in the row data.
constexpr WORD cellNull = 0x0001;
constexpr WORD cellTextRed = 0x0010;
constexpr WORD cellTextBlue = 0x0020;
constexpr WORD cellTextGreen = 0x0040;
constexpr WORD cellTextGrey = 0x0200;
constexpr WORD cellFaceBack = 0x0080;
constexpr WORD cellSecondBack = 0x0100;
constexpr WORD cellThirdBack = 0x0400;
constexpr WORD cellOwnBack = 0x0800;
constexpr WORD cellNoEditBack = 0x1000;
constexpr WORD cellSysBack = 0x2000;

// The record of a grid's window; null for another window.
inline HGridCtl* HGFromWindow(HWND hwnd)
{
    return static_cast<HGridCtl*>(ControlRecord(hwnd));
}

// Copies the data of an item of a cell control's list to a buffer of itemBufferSize bytes. 0 if nothing was copied.
LRESULT HGFetchItem(HWND child, LRESULT index, char* out);

BYTE* HGCellPtr(HGridData* grid, int col, int row);      // null if grid, field or row is missing
BYTE* HGCellFlagsPtr(HGridData* grid, int col, int row); // null if grid or row is missing; col must be valid

int HGWriteCell(HGridCtl* ctl, int col, int row, const void* value); // 1 if the write went through
int HGFormatCell(HGridCtl* ctl, int col, int row, char* out, int outSize, int editForm); // length of the text
int HGParseCell(HGridCtl* ctl, int col, int row, const char* text); // what HGWriteCell gives
