// Cell controls: the kinds, and the procedures that wrap their windows.
#pragma once

#include "gridctl/grid_control.h"

// The codes by which a wrapped procedure tells what its control is. A combo with a list face counts as a list.
constexpr int cellCodeCombo = 'c';
constexpr int cellCodeEdit = 'e';
constexpr int cellCodeCheck = 'k';
constexpr int cellCodeList = 'l';

// Control id of a cell control: the index of its kind, plus this.
constexpr int firstCellId = 200;

LRESULT CALLBACK HGEditCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK HGListCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK HGComboCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);      // with an edit
LRESULT CALLBACK HGFieldComboCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam); // with a list face
LRESULT CALLBACK HGCheckCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
