// Deleting in an edit control: each character goes by the rule of the field's class.
#include "edit/edit_internal.h"
#include "typed/data_types.h"

#include <algorithm>

namespace {

constexpr int roomForDelete = 8; // characters that a delete step may put in
constexpr int overhang = 2;      // pixels by which a letter such as j may reach over its neighbour

void PlaceAt(HEditCtl* ctl, int index)
{
    SetSelection(ctl, 0, index, index);
}

void TellChanged(HEditCtl* ctl)
{
    SetFlag(ctl, HEF_DIRTY, true);
    Tell(ctl, HEN_CHANGE);
}

// An entry that is finished meanwhile lets the window repaint again.
void HoldRedraw(HEditCtl* ctl, bool off)
{
    if (EntryScope* const entry = EntryOf(ctl)) {
        entry->redrawOff = off;
    }
}

void EmptyText(HEditCtl* ctl)
{
    std::memset(ctl->pszText, 0, static_cast<size_t>(TextLength(ctl)));
    SetFlag(ctl, CF_NULL, true);
}

// false: the entry ends here.
bool DeleteEach(HEditCtl* ctl, int count)
{
    const HWND    hwnd = ctl->hWnd;
    const FieldDC sharedByMeasures(ctl);
    for (int i = 0; i < count; ++i) {
        DeleteChar(ctl, true);
        if (!IsEntering(ctl, hwnd)) {
            return false;
        }
    }
    return true;
}

// Empties the selection, all at once or by the rule of the class. false: the entry ends here.
bool EmptySelection(HEditCtl* ctl, TextRange selection, bool clearAll)
{
    const HWND hwnd = ctl->hWnd;
    const bool all = selection.lo == 0 && selection.hi == TextLength(ctl);
    PlaceAt(ctl, selection.lo);
    if (!IsEntering(ctl, hwnd)) {
        return false;
    }
    if (clearAll && all) {
        EmptyText(ctl);
    } else if (!DeleteEach(ctl, selection.hi - selection.lo)) {
        return false;
    }
    if (ctl->cClass != 'z') {
        PlaceAt(ctl, selection.lo);
    }
    return IsEntering(ctl, hwnd);
}

} // namespace

UpdatingScope::UpdatingScope(HWND window) : hwnd(window), was(SendMessageA(window, WWM_GETUPDATING, 0, 0) != 0)
{
    SendMessageA(hwnd, WWM_SETUPDATING, 1, 0);
}

UpdatingScope::~UpdatingScope()
{
    if (IsWindow(hwnd)) {
        SendMessageA(hwnd, WWM_SETUPDATING, was, 0);
    }
}

// Switching repainting on makes a window visible, so a hidden one, or one that doesn't repaint already, is left alone.
RedrawScope::RedrawScope(HEditCtl* field)
    : ctl(field), hwnd(field->hWnd), off((GetWindowLongA(hwnd, GWL_STYLE) & WS_VISIBLE) != 0)
{
    if (off) {
        HoldRedraw(ctl, true);
        SendMessageA(hwnd, WM_SETREDRAW, FALSE, 0);
    }
}

RedrawScope::~RedrawScope()
{
    if (off && IsEntering(ctl, hwnd)) {
        HoldRedraw(ctl, false);
        SendMessageA(hwnd, WM_SETREDRAW, TRUE, 0);
    }
}

void InvalidateTyped(HEditCtl* ctl, int from, int count)
{
    const RECT field = ctl->rcText;
    RECT       rect = field;
    if (HasFlag(ctl, HEF_RIGHT)) {
        rect.right = CaretX(ctl, from + count) + overhang;
    } else {
        rect.left = CaretX(ctl, from) - overhang;
    }
    IntersectRect(&rect, &rect, &field);
    InvalidateRect(ctl->hWnd, &rect, TRUE);
}

void DeleteChar(HEditCtl* ctl, bool stepForward)
{
    const TextRange selection = SelectionOf(ctl);
    if (selection.lo != selection.hi) {
        DeleteSelection(ctl, HasStyle(ctl, HES_CLEARALL));
        return;
    }
    if (!ctl->pszText || !GrowText(ctl, TextLength(ctl) + roomForDelete)) {
        return;
    }
    const HWND hwnd = ctl->hWnd;
    const int  step = DataCharDelete(ctl->cClass, ctl->cType, ctl->pszText, FormatOf(ctl), selection.lo);
    if (!TellEntry(ctl, HEN_UPDATE)) {
        return;
    }
    const int anchor = std::min(static_cast<int>(ctl->nAnchor), TextLength(ctl));
    UpdateScrollRange(ctl);
    InvalidateTyped(ctl, anchor, 1);
    PlaceAt(ctl, anchor + (stepForward ? step : 0));
    if (IsEntering(ctl, hwnd)) {
        TellChanged(ctl);
    }
}

void DeleteSelection(HEditCtl* ctl, bool clearAll)
{
    const TextRange selection = SelectionOf(ctl);
    if (selection.lo == selection.hi || !ctl->pszText) {
        return;
    }
    const HWND hwnd = ctl->hWnd;
    {
        const RedrawScope noRedraw(ctl);
        {
            const UpdatingScope updating(hwnd);
            if (!EmptySelection(ctl, selection, clearAll)) {
                return;
            }
        }
        if (!TellEntry(ctl, HEN_UPDATE)) {
            return;
        }
    }
    UpdateScrollRange(ctl);
    InvalidateRect(hwnd, nullptr, TRUE);
    TellChanged(ctl);
}
