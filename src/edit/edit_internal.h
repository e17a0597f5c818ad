// What the sources of the edit control share: questions about its record, and steps that cross a source.
#pragma once

#include "dialog/message_table.h"
#include "dialog/record_bits.h"
#include "edit/edit_control.h"
#include "edit/edit_math.h"
#include "foundation/gdi_guards.h"

#include <cstring>

inline bool IsFocused(const HEditCtl* ctl)
{
    return HasFlag(ctl, HEF_FOCUS);
}
inline bool CanScroll(const HEditCtl* ctl)
{
    return HasStyle(ctl, WS_HSCROLL | HES_AUTOHSCROLL);
}
inline bool IsStringType(const HEditCtl* ctl)
{
    return GetDataSize(ctl->cClass, ctl->cType) < 0;
}
inline bool IsDateClass(char dataClass)
{
    return dataClass == 'a' || dataClass == 'd' || dataClass == 't';
}
inline bool IsNullDate(const HEditCtl* ctl)
{
    return HasFlag(ctl, CF_NULL) && (ctl->cClass == 'd' || ctl->cClass == 'a');
}

// The part of the format that conversions and entry steps read. pszFormat's block holds two texts: the format as it was
// given, and behind its end that part of it.
inline const char* FormatOf(const HEditCtl* ctl)
{
    return ctl->pszFormat ? ctl->pszFormat + std::strlen(ctl->pszFormat) + 1 : nullptr;
}

// The text and its length. A record that lost its buffers for want of memory reads as empty.
inline const char* FieldText(const HEditCtl* ctl)
{
    return ctl->pszText ? ctl->pszText : "";
}
inline int TextLength(const HEditCtl* ctl)
{
    return static_cast<int>(std::strlen(FieldText(ctl)));
}
// The selection from its lower to its upper index, within the text.
inline TextRange SelectionOf(const HEditCtl* ctl)
{
    return OrderedRange(ctl->nAnchor, ctl->nCaret, TextLength(ctl));
}

// A typed character, a deletion, a cut or a paste under way. Its steps tell of themselves one by one. Who takes the focus
// between two of them finds it finished: what is committed then is never half of it.
struct EntryScope {
    using Step = void (*)(HEditCtl* ctl, const char* entered);
    enum State {
        Open,      // can be finished
        Overtaken, // the host has put something else in: goes on, but isn't finished
        Finishing, // done once more from its beginning, without a word to the host
        Over,      // finished: what is left of it isn't done
    };

    HEditCtl*   ctl;
    HWND        hwnd;
    EntryScope* outer;   // the one in which the host entered this one
    Step        step;    // does all of it
    const char* entered; // for the step; stays valid
    char*       text;    // as it was before; null without memory
    LONG        anchor;
    LONG        caret;
    WORD        flags;
    bool        redrawOff;
    bool        owesChange; // HEN_UPDATE went out, and the HEN_CHANGE that belongs to it hasn't yet
    State       state;
    char        shortText[64];

    EntryScope(HEditCtl* field, Step entryStep, const char* what);
    ~EntryScope();
    EntryScope(const EntryScope&) = delete;
    EntryScope& operator=(const EntryScope&) = delete;
};

// A window's record, and behind it what hosts don't know of.
struct EditBlock {
    HEditCtl    ctl;
    EntryScope* entry;       // under way, or null
    LONG        typedScroll; // nScroll of the edit form, while F2 shows the other one
    bool        ending;      // the window is being destroyed
};

inline EditBlock* BlockOf(HEditCtl* ctl)
{
    return reinterpret_cast<EditBlock*>(ctl);
}
inline EntryScope*& EntryOf(HEditCtl* ctl)
{
    return BlockOf(ctl)->entry;
}

void OvertakeEntry(HEditCtl* ctl);

// false: the window went, or the entry was finished meanwhile.
inline bool IsEntering(HEditCtl* ctl, HWND hwnd)
{
    return IsWindow(hwnd) && !(EntryOf(ctl) && EntryOf(ctl)->state == EntryScope::Over);
}

// What a notification came to. Gone: the window and the record are no more.
enum class Told { Accepted, Vetoed, Gone };

inline Told Tell(HEditCtl* ctl, int code)
{
    if (EntryScope* const entry = EntryOf(ctl)) {
        if (entry->state == EntryScope::Finishing) {
            return Told::Accepted;
        }
        entry->owesChange = code == HEN_UPDATE || (entry->owesChange && code != HEN_CHANGE);
    }
    const int answer = Notify(ctl, code);
    if (answer == 0) {
        return Told::Accepted;
    }
    return answer == 1 ? Told::Vetoed : Told::Gone;
}

// In the middle of an entry. false: it ends here.
inline bool TellEntry(HEditCtl* ctl, int code)
{
    const HWND hwnd = ctl->hWnd;
    Tell(ctl, code);
    return IsEntering(ctl, hwnd);
}

// The text as it shows: the password character stands for each character under HES_PASSWORD.
struct ShownText {
    char*       block;
    const char* text;
    explicit ShownText(const HEditCtl* ctl);
    ~ShownText();
    ShownText(const ShownText&) = delete;
    ShownText& operator=(const ShownText&) = delete;
};

// A device context of the window with the control's font in it. One that is made while another of the same window and
// font lives borrows that one's: a typed character takes several measures, and each context costs more than its measure.
struct FieldDC {
    const FieldDC* outer;
    HWND           hwnd;
    HFONT          font;
    HDC            dc;
    HGDIOBJ        oldFont;
    bool           borrowed;
    explicit FieldDC(const HEditCtl* ctl);
    ~FieldDC();
    FieldDC(const FieldDC&) = delete;
    FieldDC& operator=(const FieldDC&) = delete;
    HDC hdc() const { return dc; }
};

// CF_UPDATING is set while one of these lives, by the messages that a subclass can see, and gets its old state back.
struct UpdatingScope {
    HWND hwnd;
    bool was;
    explicit UpdatingScope(HWND window);
    ~UpdatingScope();
    UpdatingScope(const UpdatingScope&) = delete;
    UpdatingScope& operator=(const UpdatingScope&) = delete;
};

// The window doesn't repaint while one of these lives.
struct RedrawScope {
    HEditCtl* ctl;
    HWND      hwnd;
    bool      off;
    explicit RedrawScope(HEditCtl* field);
    ~RedrawScope();
    RedrawScope(const RedrawScope&) = delete;
    RedrawScope& operator=(const RedrawScope&) = delete;
};

// Window text and bounds (portable)
const char* DefaultEditFormat(char dataClass, char dataType);
bool        ReadWinText(HEditCtl* ctl, const char* text); // HEParseWinText but for the scroll range
int         ReadBound(HEditCtl* ctl, int which, void* data);       // which: 1 dMin, 2 dMax; 1 if converted
void        SetBound(HEditCtl* ctl, int which, const void* data);  // null: the bound no longer applies
bool        ComparableValue(const HEditCtl* ctl, double* value);   // as CommitText compares it; false: no bounds
void        StoreComparable(HEditCtl* ctl, double value);
void        StoreUnmoved(HEditCtl* ctl, double value); // the date's own value; its milliseconds stay

// Buffers (portable)
bool ResizeBuffers(HEditCtl* ctl, int size, const void* value); // both buffers; pData gets the text of value
char* MakeFormat(const char* format, size_t used); // a block for pszFormat; the first characters of it are used
bool GrowText(HEditCtl* ctl, int size);
bool GrowData(HEditCtl* ctl, int size);
void CopyValue(const HEditCtl* ctl, void* dest, const void* src);
void FreeBuffers(HEditCtl* ctl);

// Value
int  SetFormat(HEditCtl* ctl, const char* format, bool redraw);
int  SetText(HEditCtl* ctl, const char* text);
void ShowBlankForm(HEditCtl* ctl); // the entry form of a date or time without any digit typed
int  LimitText(HEditCtl* ctl, int limit);
void UndoTyping(HEditCtl* ctl);
void ClearValue(HEditCtl* ctl);

// Keyboard, mouse, clipboard
LRESULT OnKeyDown(HEditCtl* ctl, const MsgArgs& args);
LRESULT OnKeyUp(HEditCtl* ctl, const MsgArgs& args);
LRESULT OnSysKeyDown(HEditCtl* ctl, const MsgArgs& args);
LRESULT OnMouse(HEditCtl* ctl, const MsgArgs& args);
LRESULT OnSetCursor(HEditCtl* ctl, const MsgArgs& args);
LRESULT CutSelection(HEditCtl* ctl);
LRESULT CopySelection(HEditCtl* ctl);
LRESULT PasteText(HEditCtl* ctl);

// Layout and painting
bool ReachesWidth(HEditCtl* ctl, const char* text, int width); // whether all of the text is at least as wide
// What typing repaints: from there to the end, or from the start to that many characters behind it.
void InvalidateTyped(HEditCtl* ctl, int from, int count);
void InvalidateRange(HEditCtl* ctl, int start, int end, bool erase);
// SetSelection without its repainting, for who repaints all that changes. false: the window went.
bool MoveSelection(HEditCtl* ctl, int how, int anchor, int caret);
void RepaintFrame(HEditCtl* ctl);
void RebuildCaret(HEditCtl* ctl); // where the window has one
int  OnPaint(HEditCtl* ctl, const MsgArgs& args);
int  OnHScroll(HEditCtl* ctl, WPARAM wParam);
// UpdateScrollRange, and a scroll position as near to that one as the text allows, for who has changed the text.
void UpdateScroll(HEditCtl* ctl, int scroll);
// UpdateScrollRange in parts, for who has the field's font in a context of its own.
bool HasScrollRange(const HEditCtl* ctl);
int  ScrollRangeFor(const HEditCtl* ctl, HDC hdc);
void SetScrollRangeTo(HEditCtl* ctl, int max);
bool IsFieldDisabled(const HEditCtl* ctl); // the window or its parent
LRESULT OnNcCalcSize(HEditCtl* ctl, const MsgArgs& args);
LRESULT OnNcPaint(HEditCtl* ctl, const MsgArgs& args);

// Life and focus
LRESULT OnNcCreate(const MsgArgs& args);
void    OnNcDestroy(HEditCtl* ctl);
void    OnSetFocus(HEditCtl* ctl);
void    OnKillFocus(HEditCtl* ctl, HWND gaining);

// The clock of class k
void StartClock(HEditCtl* ctl);
LRESULT OnTimer(HEditCtl* ctl, const MsgArgs& args);
constexpr UINT_PTR clockTimer = 1;

// Own messages
using EditHandler = LRESULT (*)(HEditCtl* ctl, const MsgArgs& args);
EditHandler FindEditHandler(UINT message);
bool        CommitIfFocused(HEditCtl* ctl);    // false: the window went
bool        CommitBeforeAsking(HEditCtl* ctl); // before the question whether the value changed; false: the window went
