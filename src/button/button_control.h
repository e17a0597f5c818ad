// The record of the button control, and what grids borrow of it.
#pragma once

#include "dialog/control_frame.h"

#include <widgets/widgets.h>

// A bit of wFlags that hosts don't ask for: hSound is a loaded resource, not one that was only found.
constexpr WORD HBF_SOUNDLOADED = 0x0040;

#pragma pack(push, 2)
struct HButtCtl {
    HWND     hWnd;
    HWND     hParent;
    DWORD    wId;
    HFONT    hFont;
    WORD     wFlags;
    DWORD    dwStyle;    // HBS_ bits in the low word
    char*    pszCaption; // owned; null when there is none
    COLORREF crText;
    COLORREF crPicKey;   // isn't drawn of bitmaps
    HBRUSH   hBkBrush;   // of a button without a face
    BYTE     bPicPos;    // places on the face: 0 to 8
    BYTE     bTextPos;
    BYTE     bRelPos;    // where the caption lies to the picture when both have one place
    BYTE     bState;     // below cStates
    BYTE     cStates;    // at least 1
    BYTE     cPics;
    char     chLinkType; // type of *pLink in class b
    RECT     rcGray;     // where HBDrawText draws; set just before
    void*    pLink;      // the caller's mirror of the value, or null
    Pic*     pPics;      // owned
    HGLOBAL  hSound;
    char*    pszSound;   // file name, owned
    HBITMAP  hGlyphBitmap; // for the face; deleted with the window
    LONG     nGlyph;       // image of the strip for the face, or -1
};
#pragma pack(pop)
static_assert(sizeof(void*) != 4 || sizeof(Pic) == 16);
static_assert(sizeof(void*) != 4 || (sizeof(HButtCtl) == 86 && offsetof(HButtCtl, rcGray) == 46));

// Paints the button as if it held the value, null for none. false: the window went meanwhile, and the record with it.
bool HBDrawValue(HButtCtl* ctl, HDC hdc, const RECT* rect, HBRUSH brush, const void* value);
