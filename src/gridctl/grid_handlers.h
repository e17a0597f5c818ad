// The message handlers of the grid, sorted by matter into sources with a table each.
#pragma once

#include "dialog/message_table.h"
#include "gridctl/grid_control.h"

using GridHandler = LRESULT (*)(HGridCtl* ctl, const MsgArgs& args);

constexpr UINT firstGridMessage = HGM_GETBKBRUSH;
constexpr UINT lastGridMessage = HGM_FINDFIELDFROM;

// The handler of an own message, or null where the source has none.
GridHandler HGFindGridHandler(UINT message);     // window, appearance, data and layout
GridHandler HGFindPositionHandler(UINT message); // position and selection
GridHandler HGFindRowHandler(UINT message);      // rows and records
GridHandler HGFindColumnHandler(UINT message);   // columns by index

// Columns by position share the way from position to column. False for a number that isn't one of theirs.
bool HGOnFieldMessage(HGridCtl* ctl, const MsgArgs& args, LRESULT* result);

// Life of the window
LRESULT HGOnNcCreate(const MsgArgs& args);
LRESULT HGOnCreate(HGridCtl* ctl);
void    HGOnDestroy(HGridCtl* ctl);
void    HGOnNcDestroy(HGridCtl* ctl);
LRESULT HGOnSetFont(HGridCtl* ctl, const MsgArgs& args);
LRESULT HGOnSetText(HGridCtl* ctl, const MsgArgs& args);
LRESULT HGOnGetText(HGridCtl* ctl, const MsgArgs& args);

// The navigator and its tips. False if the window went while they were made.
bool    HGMakeNavigator(HGridCtl* ctl);
void    HGDestroyNavigator(HGridCtl* ctl);
bool    HGAddTips(HGridCtl* ctl, HINSTANCE instance);
void    HGAddTool(HWND hTips, HWND tool, HWND owner, HINSTANCE instance);
LRESULT HGOnNotify(HGridCtl* ctl, const MsgArgs& args);

// Sends a message to every column's cell control.
bool HGSendToChildren(HGridCtl* ctl, UINT message, WPARAM wParam, LPARAM lParam); // false if the window went
