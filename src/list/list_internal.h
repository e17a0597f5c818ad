// What the sources of the list control share: questions about its record.
#pragma once

#include "dialog/message_table.h"
#include "dialog/record_bits.h"
#include "foundation/item_list.h"
#include "list/ascii_glyphs.h"
#include "list/list_control.h"

#include <algorithm>

// A window's record, and behind it what hosts don't know of.
struct ListBlock {
    HListCtl ctl;
    bool     hadFocus; // between WM_SETFOCUS and WM_KILLFOCUS
    HLList*  pFormats; // pointers to the formats that its own items had before: who borrowed them still reads one
};

inline bool& HadFocus(HListCtl* ctl)
{
    return reinterpret_cast<ListBlock*>(ctl)->hadFocus;
}
inline HLList*& OldFormats(HListCtl* ctl)
{
    return reinterpret_cast<ListBlock*>(ctl)->pFormats;
}
// The last item, or -1.
inline int LastItem(const HListCtl* ctl)
{
    return HLCount(ctl) - 1;
}
// An index between 0 and the last item; 0 for an empty list.
inline int ClampItem(const HListCtl* ctl, int index)
{
    return std::clamp(index, 0, std::max(LastItem(ctl), 0));
}
// Whether values of a type are texts of any length.
inline bool IsText(char dataClass, char dataType)
{
    return GetDataSize(dataClass, dataType) < 0;
}
inline bool HasCodes(const HListCtl* ctl)
{
    return (ctl->items.wFlags & HDL_HASCODE) != 0;
}
// An entry of pSelected, which must have one there.
int  SelectedAt(const HListCtl* ctl, int place);
void SetSelectedAt(const HListCtl* ctl, int place, int index);
// The place of the first entry of pSelected that isn't below index; their number if there is none. A walk in ascending
// order costs a step a question.
int  PlaceInSelection(const HListCtl* ctl, int index);
bool IsInSelection(const HListCtl* ctl, int index);
// HLIsItemSelected in a walk that asks for the current item once: it is searched if it is held by its code.
bool IsSelectedBeside(HListCtl* ctl, int index, int current);

// Formats an item into a buffer of size bytes; the length of what is there. A row of # counts too, which isn't what the
// formatting answers.
int HLFormatText(HListCtl* ctl, int index, char* buffer, int size);

// How the text of an item is drawn.
struct TextLook {
    bool               highlighted;
    COLORREF           color;  // 0: the list's own
    bool               opaque; // over the background colour of the context; not for a list with tab stops
    const AsciiGlyphs* glyphs; // of the context's font, or null
};

// HLDrawItem without the answer whether the text fits, for which it has to be measured.
void HLDrawItemText(HListCtl* ctl, HDC hdc, const RECT& rect, int index, const TextLook& look);

// Drawing by the owner: WM_DRAWITEM.
void HLDrawOwned(HListCtl* ctl, HDC hdc, const RECT& rect, int index, UINT action, UINT state);

// Messages
using ListHandler = LRESULT (*)(HListCtl* ctl, const MsgArgs& args);
ListHandler FindListHandler(UINT message); // of the list's own ones; null for another
LRESULT     HLOnNcCreate(const MsgArgs& args);
void        HLOnNcDestroy(HListCtl* ctl);
LRESULT     HLKeyDown(HListCtl* ctl, const MsgArgs& args);
LRESULT     HLOnChar(HListCtl* ctl, const MsgArgs& args);
LRESULT     HLOnButtonDown(HListCtl* ctl, const MsgArgs& args);
LRESULT     HLOnMouseMove(HListCtl* ctl, const MsgArgs& args);
LRESULT     HLOnButtonUp(HListCtl* ctl, const MsgArgs& args);
void        HLEndPress(HListCtl* ctl); // what was dragged so far counts. The host hears of it.
LRESULT     HLOnPaint(HListCtl* ctl, const MsgArgs& args);
