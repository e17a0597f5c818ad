// What the sources of buttons and drawing share.
#pragma once

#include "button/button_control.h"
#include "button/button_layout.h"
#include "dialog/message_table.h"
#include "dialog/record_bits.h"

#include <windows.h>

// A memory context with a bitmap in it; the bitmap stays its owner's.
struct MemoryDC {
    HDC     hdc;
    HGDIOBJ old;
    MemoryDC(HDC like, HBITMAP bitmap) : hdc(CreateCompatibleDC(like)), old(SelectObject(hdc, bitmap)) {}
    ~MemoryDC()
    {
        SelectObject(hdc, old);
        DeleteDC(hdc);
    }
    MemoryDC(const MemoryDC&) = delete;
    MemoryDC& operator=(const MemoryDC&) = delete;
};

// Questions about a button's record

inline DWORD KindOf(const HButtCtl* ctl)
{
    return ctl->dwStyle & HBS_KINDMASK;
}
// States and pictures that one value takes.
inline int StatesOfValue(const HButtCtl* ctl)
{
    return HasStyle(ctl, HBS_UPDOWN) ? 2 : 1;
}
inline int ValueOf(const HButtCtl* ctl)
{
    return ctl->bState / StatesOfValue(ctl);
}
inline HINSTANCE ModuleOf(const HButtCtl* ctl)
{
    return reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(ctl->hWnd, GWLP_HINSTANCE));
}

// Whether the record is still its window's. Others may take it away, with the window or before it, whenever they are
// called; its content has gone then.
inline bool IsAlive(const HButtCtl* ctl)
{
    constexpr int recordWord = sizeof(LONG_PTR);
    return GetWindowLongPtrA(ctl->hWnd, recordWord) == reinterpret_cast<LONG_PTR>(ctl);
}

// While one of these stands on the stack, the block of a record stays, so that it can be asked whether it is alive.
class RecordUse {
public:
    explicit RecordUse(HButtCtl* ctl);
    ~RecordUse();
    RecordUse(const RecordUse&) = delete;
    RecordUse& operator=(const RecordUse&) = delete;
    static void LetGo(HButtCtl* ctl); // frees the block, or has the outermost use of it do so

private:
    HButtCtl*  ctl_;
    RecordUse* outer_;
    bool       frees_;
};

// Functions below that give a bool tell whether the record is still alive.

// Type text, pictures and states
bool HBApplyType(HButtCtl* ctl, const char* text); // false: no memory, and what could be read is there
bool HBSetCaption(HButtCtl* ctl, const char* text, char delimiter, char** outNext); // false: no memory
void HBFreeContent(HButtCtl* ctl);
void HBCountStates(HButtCtl* ctl);                  // after the pictures have changed
int  HBSetPicCount(HButtCtl* ctl, int count);

// Press and value
void HBRepaint(HButtCtl* ctl);
void HBRevealParent(HButtCtl* ctl); // a transparent one hides and shows itself, others repaint
void HBSetPressed(HButtCtl* ctl, bool pressed);
bool HBSetState(HButtCtl* ctl, int value, bool notify);
bool HBClicked(HButtCtl* ctl, bool notify);
bool HBReadValue(HButtCtl* ctl, const void* value); // null: the null value
bool HBPress(HButtCtl* ctl);                        // press, show it, sound

// Painting
struct NullPictures {
    Pic normal;
    Pic pressed;
};
extern NullPictures gNullPictures; // of all buttons
bool HBPaint(HButtCtl* ctl, HDC hdc, const RECT& rect, int state, HBRUSH brush, bool isCell);
bool HBPaintWindow(HButtCtl* ctl, HDC hdc);

// Sounds. The player is bound when the first sound is found; tests put their own in its place.
using SoundPlayer = BOOL(WINAPI*)(const char* sound, UINT flags);
extern SoundPlayer pfnPlaySound;
void HBLoadSound(HButtCtl* ctl, const char* field); // the third field of a type text
int  HBSetSoundFile(HButtCtl* ctl, const char* name);
const char* HBTakeSoundPrefix(HButtCtl* ctl, const char* name); // steps over the one for sounds that play on
void HBFreeSound(HButtCtl* ctl);
void HBPlaySound(HButtCtl* ctl);

// Messages
using ButtonHandler = LRESULT (*)(HButtCtl* ctl, const MsgArgs& args);
ButtonHandler FindButtonHandler(UINT message); // of the button's own ones and those of the platform's buttons; or null
LRESULT       HBOnNcCreate(const MsgArgs& args);
void          HBFreeRecord(HButtCtl* ctl);
LRESULT       HBOnInput(HButtCtl* ctl, const MsgArgs& args); // keys, mouse, focus; others ask for the default
