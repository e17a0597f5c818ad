// What the sources of the combo share: questions about its record, and its messages.
#pragma once

#include "combo/combo_control.h"
#include "dialog/message_table.h"
#include "dialog/record_bits.h"

// Bits of wFlags beside the ones that grids know.
constexpr WORD HCF_ENDING = 0x0010; // the window is being destroyed
constexpr WORD HCF_TYPED = 0x0020;  // the user has typed into the edit since it got the focus

inline LRESULT ToChild(const HCombCtl* ctl, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return SendMessageA(ctl->hChild, message, wParam, lParam);
}
// 0 without a list.
inline LRESULT ToList(const HCombCtl* ctl, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return ctl->hDrop ? SendMessageA(ctl->hDrop, message, wParam, lParam) : 0;
}

// Whether the face is an edit; otherwise it is a field list.
inline bool HasEdit(const HCombCtl* ctl)
{
    return HasStyle(ctl, HCS_EDIT);
}
inline bool HasDropdown(const HCombCtl* ctl)
{
    return HasStyle(ctl, HCS_DROPDOWN);
}

// The record of a window, or null.
HCombCtl* HCFromWindow(HWND hwnd);
// Notifies the parent. false: it has destroyed the combo, and the record with it.
bool HCTell(HCombCtl* ctl, int code);

// HCSync from the face, for what the user does there: an item that was picked in the list before and isn't stored yet has
// changed all the same. A value that the host gives takes that back.
void HCFollowFace(HCombCtl* ctl, bool notify);

bool HCHasRow(HCombCtl* ctl); // whether the list has a current item
// Whether the list's current item is what the edit has. It asks the edit for its value.
bool HCAgree(HCombCtl* ctl);

// Life
void HCInstall(HCombCtl* ctl);    // joins the parts of a combo that HCCreate has made
void HCEnd(HCombCtl* ctl);        // closes and destroys the list; the face goes with the window
void HCKeepParts(HCombCtl* ctl);  // takes down records and code type after parts or types have changed
void HCParkList(HCombCtl* ctl);   // takes the list away
void HCUnparkList(HCombCtl* ctl); // and brings it back
void HCShareField(HCombCtl* ctl); // the lists show the field's items, after its words have changed
void HCReturnItems(HListCtl* list); // ends the sharing on the list's side; what is its own stays. list may be null
int  HCShareList(HCombCtl* ctl, DataList* list);

// Button geometry in client coordinates, for buttons that exist.
RECT HCDropButtonRect(const HCombCtl* ctl);
RECT HCXButtonRect(const HCombCtl* ctl);
bool HCIsStacked(const HCombCtl* ctl);  // one button above the other
void HCRedrawDropButton(HCombCtl* ctl); // as its flags say
void HCRedrawXButton(HCombCtl* ctl);

// The one open list and the hook that watches for a press elsewhere.
extern HWND  hOpenCombo; // null when none is open
extern HWND  hOpenDrop;
extern HWND  hOpenChild;
extern HHOOK hMouseHook;

void HCTakeMouse();           // from all windows but the open combo's
void HCGiveMouseBack();       // no combo is open any more
HWND HCFaceOfDrop(HWND drop); // null for a list of the class that no combo has made

constexpr int longestSize = 0x00FFFFFF; // Bounded: no height and no width of a list is higher.
// Reads a number behind a head of "%" at *text and moves behind it. 0 without one.
int HCReadSize(const char** text);

void HCLoseFace(HCombCtl* ctl); // the face goes, and a field its items with it

// Messages
using ComboHandler = LRESULT (*)(HCombCtl* ctl, const MsgArgs& args);
ComboHandler FindComboHandler(UINT message);    // of the combo's own numbers from 1024 on, those for parts too
ComboHandler FindComboBoxHandler(UINT message); // of the platform's combo box
LRESULT      HCOnKeyDown(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnSysKey(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnChildFocus(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnChildBlur(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnGetDlgCode(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnButtonDown(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnMouseMove(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnMouseLeave(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnButtonUp(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnCancelMode(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnMouseWheel(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnSetText(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnGetText(HCombCtl* ctl, const MsgArgs& args);
LRESULT      HCOnGetTextLength(HCombCtl* ctl, const MsgArgs& args);
