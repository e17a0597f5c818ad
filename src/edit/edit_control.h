// The record of the typed single-line edit, and what its sources call of each other and grids borrow of it.
#pragma once

#include "dialog/control_frame.h"

#include <widgets/widgets.h>

// A bit of wFlags that hosts neither see nor set: the host is being told of a commit.
constexpr WORD HEF_COMMITTING = 0x8000;

#pragma pack(push, 2)
struct HEditCtl {
    HWND       hWnd;
    HWND       hParent;
    DWORD      wId;
    HFONT      hFont;
    WORD       wFlags;
    DWORD      dwStyle;     // HES_ bits in the low word
    HBRUSH     hBrush;      // background; null: the parent is asked
    HBRUSH     hBrushFocus; // background while focused, under HES_FOCUSBRUSH
    COLORREF   clrText;     // text colour when the value is not negative
    COLORREF   clrNegative; // text colour when it is
    RECT       rcText;      // text area in client coordinates
    LONG       cyChar;      // line height
    LONG       cPageChars;  // width of rcText in average characters, at least 1
    char       cClass;
    char       cType;
    LONG       cbData;      // bytes of pData
    LONG       cchMax;      // most characters of the text
    LONG       cbText;      // bytes of pszText
    LONG       nAnchor;     // selection anchor, a character index
    LONG       nCaret;      // caret; the selection lies between the two
    LONG       nScroll;     // characters scrolled off
    LONG       nScrollMax;  // largest value of nScroll
    char       chPassword;
    char*      pszFormat;   // owned; null for class s
    char*      pszEmpty;    // shown for a null value; owned; may be null
    void*      pData;       // what was last committed; owned
    void*      pLinked;     // caller's buffer that mirrors pData, or null
    char*      pszText;     // what is painted; owned
    HEVALIDATE pfnValidate; // or null
    double     dMin;
    double     dMax;
    WORD       wBounds;     // bit 0: dMin applies; bit 1: dMax applies
};
#pragma pack(pop)
static_assert(sizeof(void*) != 4 || (sizeof(HEditCtl) == 136 && offsetof(HEditCtl, pszFormat) == 94));

// Text layout
int  MeasureText(HDC hdc, const char* text, int count);
int  TextWidth(HEditCtl* ctl, const char* text, int start, int count); // count -1: to the end
int  CaretX(HEditCtl* ctl, int index);
int  CharFromX(HDC hdc, const RECT* rect, const char* text, int count, int x, bool fromRight);
int  CharAtPoint(HEditCtl* ctl, int x);
int  FitChars(HDC hdc, const char* text, int count, int width, bool fromEnd);
void SetSelection(HEditCtl* ctl, int how, int anchor, int caret); // how: bit 0 the caret, bit 1 the anchor; 0: both
void PlaceCaret(HEditCtl* ctl, int index);
void BuildCaret(HEditCtl* ctl);
int  ScrollBy(HEditCtl* ctl, int delta);
void UpdateScrollRange(HEditCtl* ctl);

// Painting
bool PaintField(HEditCtl* ctl, bool highlight); // false: nothing of the window had to be painted
bool DrawFieldText(HDC hdc, RECT* rect, const char* text, int count, char passwordChar, int align, HEditCtl* ctl,
                   HGridData* grid);
void FillFieldBackground(HEditCtl* ctl, HDC hdc, RECT* rect, HBRUSH brush);
// Paints a value as the control would show it, without changing the control. rect is changed.
// data null: the null value. align: 0 left, 1 right, 2 centred. color 0: the control's own.
int HEDrawValue(HEditCtl* ctl, HDC hdc, RECT* rect, HBRUSH brush, const void* data, int align, HGridData* grid,
                COLORREF color);

// Value and text
void FinishEntry(HEditCtl* ctl); // before the value is read: an entry in the middle of which the focus went
void RefreshText(HEditCtl* ctl, bool editForm);
int  CommitText(HEditCtl* ctl, const char* text); // 0 on success
void DeleteChar(HEditCtl* ctl, bool stepForward);
void DeleteSelection(HEditCtl* ctl, bool clearAll);
void CharInput(HEditCtl* ctl, char ch);
int  PlainCharInsert(HEditCtl* ctl, char ch, int* outAdvance, int* outRepaint);
void ReplaceSelection(HEditCtl* ctl, const char* text);
