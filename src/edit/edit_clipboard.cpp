// Cut, copy and paste of an edit control.
#include "edit/edit_internal.h"
#include "foundation/memory.h"

namespace {

constexpr int   openTries = 20;
constexpr DWORD openPause = 10; // milliseconds

// Programs that watch the clipboard hold it for a moment after each change: a copy or paste right then isn't dropped.
bool OpenClipboardSoon(HWND hwnd)
{
    for (int i = 1; !OpenClipboard(hwnd); ++i) {
        if (i == openTries) {
            return false;
        }
        Sleep(openPause);
    }
    return true;
}

LRESULT Refuse()
{
    MessageBeep(0);
    return 0;
}

// The clipboard owns the block once it has it. False if it didn't take it.
bool GiveToClipboard(const char* text, int count)
{
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, static_cast<size_t>(count) + 1);
    void* const   bytes = block ? GlobalLock(block) : nullptr;
    if (!bytes) {
        return false;
    }
    std::memcpy(bytes, text, static_cast<size_t>(count));
    GlobalUnlock(block);
    EmptyClipboard();
    if (SetClipboardData(CF_TEXT, block)) {
        return true;
    }
    GlobalFree(block);
    return false;
}

// False if there was a selection and the clipboard didn't take it.
bool CopyRange(HEditCtl* ctl, TextRange range)
{
    if (range.lo >= range.hi) {
        return true;
    }
    if (!OpenClipboardSoon(ctl->hWnd)) {
        return false;
    }
    const bool given = GiveToClipboard(FieldText(ctl) + range.lo, range.hi - range.lo);
    CloseClipboard();
    return given;
}

void DeleteCut(HEditCtl* ctl, const char*)
{
    DeleteSelection(ctl, HasStyle(ctl, HES_CLEARALL));
}

// A copy of the clipboard's text, since its own is gone once the clipboard is closed.
char* TextOfClipboard(HWND hwnd)
{
    if (!IsClipboardFormatAvailable(CF_TEXT) || !OpenClipboardSoon(hwnd)) {
        return nullptr;
    }
    const HANDLE      block = GetClipboardData(CF_TEXT);
    const char* const bytes = block ? static_cast<const char*>(GlobalLock(block)) : nullptr;
    char* const       text = hstrdup(bytes);
    if (bytes) {
        GlobalUnlock(block);
    }
    CloseClipboard();
    return text;
}

} // namespace

LRESULT CutSelection(HEditCtl* ctl)
{
    if (HasStyle(ctl, HES_READONLY | HES_PASSWORD)) {
        return Refuse();
    }
    // What the clipboard hasn't got would be lost.
    if (!CopyRange(ctl, SelectionOf(ctl))) {
        return Refuse();
    }
    const EntryScope entry(ctl, DeleteCut, nullptr);
    DeleteCut(ctl, nullptr);
    return 1;
}

LRESULT CopySelection(HEditCtl* ctl)
{
    if (HasStyle(ctl, HES_PASSWORD)) {
        return Refuse();
    }
    CopyRange(ctl, SelectionOf(ctl));
    return 1;
}

LRESULT PasteText(HEditCtl* ctl)
{
    char* const text = HasStyle(ctl, HES_READONLY) ? nullptr : TextOfClipboard(ctl->hWnd);
    if (text) {
        ReplaceSelection(ctl, text);
        HBlockFree(text);
    }
    return 1;
}
