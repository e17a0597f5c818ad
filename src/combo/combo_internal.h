// What the sources of the combo share: questions about its record, and its messages.
#pragma once

#include "combo/combo_control.h"
#include "dialog/message_table.h"

inline bool HasStyle(const HCombCtl* ctl, DWORD bits)
{
    return (ctl->dwStyle & bits) != 0;
}
inline bool HasFlag(const HCombCtl* ctl, WORD bits)
{
    return (ctl->wFlags & bits) != 0;
}
inline void SetFlag(HCombCtl* ctl, WORD bits, bool on)
{
    ctl->wFlags = static_cast<WORD>(on ? ctl->wFlags | bits : ctl->wFlags & ~bits);
}
inline LRESULT ToChild(const HCombCtl* ctl, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return SendMessageA(ctl->hChild, message, wParam, lParam);
}
// 0 without a list.
inline LRESULT ToList(const HCombCtl* ctl, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    return ctl->hDrop ? SendMessageA(ctl->hDrop, message, wParam, lParam) : 0;
}

// The record of a window, or null.
HCombCtl* HCFromWindow(HWND hwnd);

// The one open list and the hook that watches for a press elsewhere.
extern HWND  hOpenCombo; // null when none is open
extern HWND  hOpenDrop;
extern HWND  hOpenChild;
extern HHOOK hMouseHook;

void HCTakeMouse();           // from all windows but the open combo's
void HCGiveMouseBack();       // no combo is open any more
HWND HCFaceOfDrop(HWND drop); // null for a list of the class that no combo has made

// Reads a number behind a head of "%" at *text and moves behind it. 0 without one.
int HCReadSize(const char** text);

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
