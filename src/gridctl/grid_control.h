// What the sources of the grid window call of each other.
// Records, messages and exports are in widgets.h; the row model is in griddata.
#pragma once

#include "dialog/record_bits.h"
#include "griddata/cell_access.h"
#include "griddata/grid_model.h"
#include "griddata/grid_services.h"

#include <widgets/widgets.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

static_assert(sizeof(void*) != 4 || (sizeof(HGridCtl) == 126 && offsetof(HGridCtl, hBkBrush) == 18 &&
                                     offsetof(HGridCtl, pData) == 52));

// Bits of wFlags that hosts neither see nor set.
constexpr WORD HGC_TELLING = 0x0100;  // a move tells of itself, and no other move of the grid has been made since
constexpr WORD HGC_FETCHING = 0x0200; // rows are being fetched: the source may call back, but starts no other fetch
constexpr WORD hiddenFlags = HGC_TELLING | HGC_FETCHING;

// A window's record, and behind it what hosts don't know of.
struct GridBlock {
    HGridCtl ctl;
    bool     unstored; // the focus has gone from the editor to the grid, and the editor hasn't been read since
    bool     untold;   // the block has left the current record behind: the parent doesn't know of the one that is it now
};

inline bool& IsUnstored(HGridCtl* ctl)
{
    return reinterpret_cast<GridBlock*>(ctl)->unstored;
}

inline bool& IsUntold(HGridCtl* ctl)
{
    return reinterpret_cast<GridBlock*>(ctl)->untold;
}

// A cell: -1 names a header, or the whole row or column in a move.
struct Cell {
    int col;
    int row;
};

inline bool operator==(Cell a, Cell b)
{
    return a.col == b.col && a.row == b.row;
}

// Packed cells have the column in the low word and the row in the high word, both signed 16-bit.
inline DWORD PackCell(int col, int row)
{
    return static_cast<DWORD>((col & 0xFFFF) | (static_cast<unsigned>(row & 0xFFFF) << 16));
}
inline Cell UnpackCell(DWORD packed)
{
    return { static_cast<short>(packed & 0xFFFF), static_cast<short>(packed >> 16) };
}

// Current cell, anchor and proposed cell, with -1 for headers.
inline Cell CurrentCell(const HGridCtl* ctl)
{
    return { static_cast<short>(ctl->nCurCol), static_cast<short>(ctl->nCurRow) };
}
inline Cell AnchorCell(const HGridCtl* ctl)
{
    return { ctl->nAnchorCol, ctl->nAnchorRow };
}

// The corner as current cell selects everything. It is shown over the background too, which only erasing makes plain.
inline bool IsCorner(Cell cell)
{
    return cell.col < 0 && cell.row < 0;
}

inline bool HasStyle(const HGridCtl* ctl, DWORD bits)
{
    return (ctl->pData->dwStyle & bits) != 0;
}
inline int PartialRow(const HGridCtl* ctl)
{
    return HasFlag(ctl, HGC_PARTIALROW) ? 1 : 0;
}
inline int RecordHeight(const HGridCtl* ctl)
{
    return ctl->cBands * ctl->pData->nRowHeight;
}
inline int LastCol(const HGridCtl* ctl)
{
    return HGColCount(ctl->pData) - 1;
}
inline int LastRow(const HGridCtl* ctl)
{
    return HGRowCount(ctl->pData) - 1;
}

// Sums of record numbers stay in their 32 bits, whatever a host has set as base or total.
inline LONG BoundRecord(std::int64_t record)
{
    constexpr std::int64_t highest = 0x7FFFFFFF;
    return static_cast<LONG>(std::clamp(record, -highest - 1, highest));
}
inline LONG RecordOfRow(const HGridCtl* ctl, int row)
{
    return BoundRecord(static_cast<std::int64_t>(ctl->lRowBase) + row);
}

// The record at the top of the page.
inline LONG HGTopRecord(const HGridCtl* ctl)
{
    return RecordOfRow(ctl, ctl->nTopRow);
}

// Sends a notification. False if the window went with it, and its record too: the caller returns at once then.
inline bool HGNotify(HGridCtl* ctl, int code)
{
    const HWND hwnd = ctl->hWnd;
    return Notify(ctl, code) == 0 || IsWindow(hwnd);
}

// Rectangles, in client pixels with right and bottom outside (grid_layout.cpp, pure arithmetic)
void HGClientRect(HGridCtl* ctl, RECT* rect);
void HGDataRect(HGridCtl* ctl, RECT* rect);
void HGBelowHeaders(HGridCtl* ctl, RECT* rect);
void HGScrollRect(HGridCtl* ctl, RECT* rect);
void HGContentRect(HGridCtl* ctl, RECT* rect);
int  HGColumnRect(HGridCtl* ctl, RECT* rect, int col, int row);
int  HGRowRect(HGridCtl* ctl, RECT* rect, int row, int col, int band);
int  HGCellRect(HGridCtl* ctl, RECT* rect, int col, int row, bool clip);
void HGColExtent(HGridCtl* ctl, RECT* rect, int col);
void HGRowExtent(HGridCtl* ctl, RECT* rect, int row);
void HGBoundRight(HGridCtl* ctl, RECT* rect);
void HGBoundBottom(HGridCtl* ctl, RECT* rect);
void HGBoundRect(RECT* out, const RECT* a, const RECT* b);
void HGUnionRect(RECT* out, const RECT* a, const RECT* b);

// Columns and hits
HGField* HGNextColumn(HGridCtl* ctl, bool forward, int* col, int band); // null: no more
void     HGStepColumn(HGridData* data, bool forward, int* col);
int      HGBandOf(HGridCtl* ctl, int col); // 0 with one band and for a column that doesn't exist
void     HGAddFixedWidths(HGridCtl* ctl, RECT* rect, int limit);
void     HGAddLeftWidths(HGridCtl* ctl, RECT* rect, int col);
int      HGFixedZone(HGridCtl* ctl);         // width of the fixed columns
int      HGWidestBand(HGridCtl* ctl);        // highest sum of the visible widths of a band
int      HGBandsEnd(HGridCtl* ctl);          // where the widest band ends without scrolling, behind the row headers
int      HGHitCell(HGridCtl* ctl, LPARAM lParam, Cell* cell, int* band);
int      HGHitBand(HGridCtl* ctl, LPARAM lParam, Cell* cell, int band); // among the columns of one band, for painting

// Ranges and scrolling
void    HGRecalc(HGridCtl* ctl);
void    HGRefresh(HGridCtl* ctl, bool erase);
bool    HGCountRows(HGridCtl* ctl); // loads the block and counts; false if the window went
void    HGRaiseTotal(HGridCtl* ctl); // there are at least as many records as are loaded
int     HGClampCell(HGridCtl* ctl, LONG anchorRecord, LONG currentRecord);
void    HGRestoreTop(HGridCtl* ctl, LONG record);
void    HGScrollBy(HGridCtl* ctl, int dx, int dy, bool moveEditor);
int     HGSetTop(HGridCtl* ctl, LONG record); // rows moved
void HGShowCurrentRow(HGridCtl* ctl); // where the view has been scrolled away from it. May end the window.
int     HGEnsureVisible(HGridCtl* ctl, int col, int row); // the index that the row has now
bool    HGShowCurrent(HGridCtl* ctl); // scrolls back to a current cell that is out of view. False if the window went
LONG    HGSetScrollPos(HGridCtl* ctl, int bar, LONG pos, bool redraw); // bar 0 across, 1 down; the old value
bool    HGAskNavigate(HGridCtl* ctl); // false if the parent refuses the step, or the window went
LRESULT HGOnHScroll(HGridCtl* ctl, WPARAM wParam);
LRESULT HGOnVScroll(HGridCtl* ctl, WPARAM wParam);
LRESULT HGOnMouseWheel(HGridCtl* ctl, WPARAM wParam, LPARAM lParam, int* pDefault);
void    HGPlaceNavigator(HGridCtl* ctl);

// The block of a grid with a row source
int  HGFillBlock(HGridCtl* ctl, bool atFront); // change in the row count
void HGShiftBlock(HGridCtl* ctl, LONG record);
// Before a refresh: an entry row becomes a record where the source has got one in its place since. False if the window went.
bool HGMeetEntryRow(HGridCtl* ctl);
void HGFetchTotal(HGridCtl* ctl);
int  HGCallSource(HGridCtl* ctl, int operation, LONG record, void* buffer);

// Rows
int HGInsertRow(HGridCtl* ctl, const void* data, int row, bool markNew); // the index, or -1
int HGDeleteRow(HGridCtl* ctl, int row, bool notify);
int HGRemoveRow(HGridCtl* ctl, int row);
int HGRemoveFirstRow(HGridCtl* ctl);              // of the block, which begins one record on then
int HGAppendRow(HGridCtl* ctl, const void* data); // index + 1
bool HGAnnounceNewRow(HGridCtl* ctl, int row);    // marks it new and tells the parent; false if the window went

// Moves and selection
void HGFillMirror(HGridCtl* ctl); // the host's copy of the current row
int  HGMoveTo(HGridCtl* ctl, int col, int row, bool extend, bool scroll);
int  HGMoveBy(HGridCtl* ctl, int dCol, int dRow, bool extend);
int  HGKeyNavigate(HGridCtl* ctl, UINT vk, bool shift, bool ctrl);
void HGSelectRow(HGridCtl* ctl, int col, int row, bool shift, bool ctrl);
void HGMarkRows(HGridCtl* ctl, int rowA, int rowB, bool state);
bool HGSelRange(HGridCtl* ctl, int* lo, int* hi);
bool HGIsRowSelected(HGridCtl* ctl, int row);
bool HGIsSelectionShown(const HGridCtl* ctl); // it is on the screen

// Keys and mouse
bool    HGIsKeyDown(int vk);
LRESULT HGOnKeyDown(HGridCtl* ctl, WPARAM wParam, LPARAM lParam, int* pDefault);
LRESULT HGOnSysKeyUp(HGridCtl* ctl, WPARAM wParam, int* pDefault);
LRESULT HGOnChar(HGridCtl* ctl, WPARAM wParam, LPARAM lParam, int* pDefault);
void    HGMouseDown(HGridCtl* ctl, LPARAM lParam);
void    HGMouseMove(HGridCtl* ctl, LPARAM lParam);
void    HGMouseUp(HGridCtl* ctl, LPARAM lParam);
void    HGMouseDblClk(HGridCtl* ctl, LPARAM lParam);
void    HGMouseLost(HGridCtl* ctl, HWND taker); // the capture goes to another window, or to none
extern int gSizeZone;  // what the mouse is over: 0 nothing, see the size zones
extern int gGuideLine; // where the guide line stands, as x or y

// Size zones: n above rowHeaderZone is the right edge of column n - 2, n below headerZone the bottom of row -2 - n.
constexpr int headerZone = -1;   // the bottom of the column headers
constexpr int rowHeaderZone = 1; // the right edge of the row headers
constexpr int firstColumnZone = 2;
int  HGSizeZoneAt(HGridCtl* ctl, POINT point);           // of a point of the window
int  HGSizeHit(HGridCtl* ctl, HWND window, int hitCode); // sets gSizeZone; 1 if it has set a cursor
void HGShowMoveCursor();
void HGAddCursorUser(); // each grid is one
void HGDropCursorUser();

// Editing
bool HGIsEditable(HGridCtl* ctl, int col); // false for a column that doesn't exist
bool HGHoldsFocus(HWND window, HWND focus); // in the window or in a child of it
bool HGIsInEdit(const HGridCtl* ctl);       // an edit is under way, and the focus is in the grid
void HGFollowReadOnly(HGridCtl* ctl, bool show); // the current column may be edited now, or no longer. May end the window
void HGTakeEditor(HGridCtl* ctl);          // gives the current cell its column's control, loaded but not shown
bool HGBeginColumnChange(HGridCtl* ctl, bool* shown); // false if the window went; shown is for the end
void HGEndColumnChange(HGridCtl* ctl, bool shown);
int  HGReadEditor(HGridCtl* ctl);
int  HGShowEditor(HGridCtl* ctl);
bool HGEditorStands(HGridCtl* ctl);     // it is shown over its cell, or there is none to be shown
void HGKeepEditorPlaced(HGridCtl* ctl); // a shown editor goes where its cell has gone. May end the window.
int  HGHideEditor(HGridCtl* ctl);
void HGPutEditorAway(HGridCtl* ctl); // hides and forgets it
void HGForgetRefused(HGridCtl* ctl); // an editor that keeps the focus for a refused value gets the cell's value back
int  HGCommitEdit(HGridCtl* ctl); // 0 when the value couldn't be stored
void HGCancelEdit(HGridCtl* ctl);
void HGEndEdit(HGridCtl* ctl, bool commit);
void HGFocusLost(HGridCtl* ctl);
LRESULT HGOnSetFocus(HGridCtl* ctl, WPARAM wParam, int* pDefault);
LRESULT HGOnKillFocus(HGridCtl* ctl, WPARAM wParam, int* pDefault);
void    HGOnChildFocus(HGridCtl* ctl);
void    HGOnChildBlur(HGridCtl* ctl);
LRESULT HGOnCommand(HGridCtl* ctl, WPARAM wParam, LPARAM lParam, int* pDefault);
int     HGCommand(HGridCtl* ctl, int id, HWND child, int code); // what isn't the editor's; 0

// Painting
void    HGPaint(HGridCtl* ctl);
LRESULT HGEraseBackground(HGridCtl* ctl, HDC hdc);
int     HGDrawCell(HGridCtl* ctl, HDC hdc, int col, int row);
void    HGDrawSelection(HGridCtl* ctl, HDC hdc, const DWORD* oldAnchor, const DWORD* oldCur);
int     HGSelectionRect(HGridCtl* ctl, RECT* rect, DWORD anchor, DWORD cur, HDC hdc);
void    HGInvertRect(HGridCtl* ctl, HDC hdc, const RECT* rect);
void    HGFrameRect(HGridCtl* ctl, HDC hdc, const RECT* rect);
void    HGInvertRow(HGridCtl* ctl, HDC hdc, int row); // hdc null: the window's own

// Life of the window and of its cell controls
int  HGAttachData(HGridCtl* ctl, HGridData* data);
void HGReset(HGridCtl* ctl, bool refresh);
int  HGCreateCellCtl(HGridCtl* ctl, HGridData* grid, HGField* field);
int  HGCellCtlIndex(char kind); // -1 for a kind without cell control
void HGForgetHostDrawn(HGridCtl* ctl, HWND child); // a child window goes
bool HGCellForward(int kind, HWND hGrid, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
