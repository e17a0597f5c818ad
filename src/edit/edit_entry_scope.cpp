// Keeps an entry whole: host code runs while it changes the text, and may take the focus in the middle of it.
#include "edit/edit_internal.h"
#include "foundation/memory.h"

namespace {

// The flags that an entry changes.
constexpr WORD entryFlags = HEF_DIRTY | HEF_REPLACING | HEF_NEGATIVE | HEF_SKIPCHAR | CF_NULL;

// The field as it was when the entry began. False without memory.
bool Restore(HEditCtl* ctl, const EntryScope& entry)
{
    const size_t size = std::strlen(entry.text) + 1;
    if (!GrowText(ctl, static_cast<int>(size))) {
        return false;
    }
    std::memcpy(ctl->pszText, entry.text, size);
    ctl->nAnchor = entry.anchor;
    ctl->nCaret = entry.caret;
    SetFlag(ctl, entryFlags, false);
    SetFlag(ctl, entry.flags, true);
    return true;
}

// Repainting that an entry, or one around it, has switched off. Only one of them has: then the field isn't visible.
void ShowAgain(HWND hwnd, EntryScope* entry)
{
    for (; entry; entry = entry->outer) {
        if (entry->redrawOff) {
            entry->redrawOff = false;
            SendMessageA(hwnd, WM_SETREDRAW, TRUE, 0);
            return;
        }
    }
}

// Does all of an entry once more. Whether the host is still to hear that the text has changed.
bool FinishOpen(HEditCtl* ctl, EntryScope* entry)
{
    const HWND  hwnd = ctl->hWnd;
    char* const sofar = hstrdup(FieldText(ctl));
    bool        changes = false;
    if (Restore(ctl, *entry)) {
        entry->state = EntryScope::Finishing;
        entry->step(ctl, entry->entered);
        changes = IsWindow(hwnd) && (entry->owesChange || (sofar && std::strcmp(FieldText(ctl), sofar) != 0));
    }
    HBlockFree(sofar);
    return changes;
}

} // namespace

EntryScope::EntryScope(HEditCtl* field, Step entryStep, const char* what)
    : ctl(field), hwnd(field->hWnd), outer(EntryOf(field)), step(entryStep), entered(what), text(shortText),
      anchor(field->nAnchor), caret(field->nCaret), flags(static_cast<WORD>(field->wFlags & entryFlags)),
      redrawOff(false), owesChange(false), state(Open)
{
    OvertakeEntry(ctl);
    const size_t size = std::strlen(FieldText(ctl)) + 1;
    if (size > sizeof shortText) {
        text = static_cast<char*>(HBlockAlloc(size));
    }
    if (text) {
        std::memcpy(text, FieldText(ctl), size);
    } else {
        state = Overtaken;
    }
    EntryOf(ctl) = this;
}

EntryScope::~EntryScope()
{
    if (IsWindow(hwnd)) {
        EntryOf(ctl) = outer;
    }
    if (text != shortText) {
        HBlockFree(text);
    }
}

void OvertakeEntry(HEditCtl* ctl)
{
    EntryScope* const entry = EntryOf(ctl);
    if (entry && entry->state == EntryScope::Open) {
        entry->state = EntryScope::Overtaken;
    }
}

void FinishEntry(HEditCtl* ctl)
{
    EntryScope* const entry = EntryOf(ctl);
    if (!entry || entry->state == EntryScope::Finishing) {
        return;
    }
    const HWND hwnd = ctl->hWnd;
    ShowAgain(hwnd, entry);
    const bool changes = entry->state == EntryScope::Open && IsWindow(hwnd) && FinishOpen(ctl, entry);
    for (EntryScope* each = entry; each; each = each->outer) {
        each->state = EntryScope::Over;
    }
    if (changes) {
        Tell(ctl, HEN_CHANGE);
    }
}
