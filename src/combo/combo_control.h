// The record of the combo, and what its sources call of each other and grids borrow of it.
#pragma once

#include "dialog/control_frame.h"
#include "list/list_control.h"

#include <widgets/widgets.h>

#pragma pack(push, 2)
struct HCombCtl {
    HWND           hWnd;
    HWND           hParent;
    DWORD          wId;
    HFONT          hFont;
    WORD           wFlags;
    DWORD          dwStyle;      // HCS_ bits in the low word
    WNDPROC        pfnChildProc; // the face's procedure before HCFilter replaced it
    LONG           cyDrop;       // height of the list; in pixels at 96 dpi when it drops
    LONG           cxDrop;       // least width of the dropped list, in pixels at 96 dpi
    HWND           hChild;       // the face
    HWND           hDrop;        // the list, or null
    ControlHeader* pChild;       // record of hChild
    HListCtl*      pDrop;        // record of hDrop
    DWORD          chCodeType;   // the list's code type, 0 without a list
    HWND           hDropParked;  // the list while HCM_SETDROP holds it back
    DWORD          wOptions;     // HCO_ bits
};
#pragma pack(pop)
static_assert(sizeof(void*) != 4 || (sizeof(HCombCtl) == 62 && offsetof(HCombCtl, wOptions) == 58));

// Control ids of the parts.
constexpr int comboEditId = 1;
constexpr int comboFieldId = 2;
constexpr int comboListId = 3;

// All buffers of values and texts that go between face and list.
constexpr int comboValueSize = 256;

// Face and list
bool HCCreate(HCombCtl* ctl, const CREATESTRUCTA& create); // false: no face
void HCShareItems(HWND from, HWND to); // the items of to are destroyed; it shows those of from
int  HCSync(HCombCtl* ctl, bool fromChild, bool notify);

// Layout
int  HCSetHeight(HCombCtl* ctl, int height); // gives the height of the face
void HCLayout(HCombCtl* ctl);

// Buttons
bool HCHasDropButton(const HCombCtl* ctl);
bool HCHasXButton(const HCombCtl* ctl);
bool HCDropHit(HCombCtl* ctl, int x, int y);
bool HCXButtonHit(HCombCtl* ctl, int x, int y);
void HCDrawDropButton(HCombCtl* ctl, HDC hdc, bool pressed, bool hot); // hdc null: one of its own
void HCDrawXButton(HCombCtl* ctl, HDC hdc, bool pressed, bool hot);

// The dropped list. Each may run host code that destroys the combo.
void HCOpenDrop(HCombCtl* ctl);
void HCCloseDrop(HCombCtl* ctl);
void HCToggleDrop(HCombCtl* ctl);
void HCPlaceDrop(HCombCtl* ctl);

// Paints a value as the combo would show it. kind 2: value is a code. color 0: the control's own. 0: there is no list.
int HCDrawValue(HCombCtl* ctl, HDC hdc, RECT* rect, HBRUSH brush, const void* value, int kind, HGridData* grid,
                COLORREF color);
