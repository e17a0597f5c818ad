// Caret and selection of an edit control, and what they make the window repaint.
#include "edit/edit_internal.h"

#include <algorithm>

namespace {

constexpr int moveCaret = 1;
constexpr int moveAnchor = 2;

// Scrolls ahead of a caret that would come near a margin. false: the window went.
bool ScrollTowards(HEditCtl* ctl, int caret)
{
    const RECT rect = ctl->rcText;
    const ShownText shown(ctl);
    const bool scrolls = CanScroll(ctl) &&
                         (ctl->nScroll != 0 || ReachesWidth(ctl, shown.text, rect.right - rect.left));
    if (!scrolls) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    const int delta = ScrollForCaret(CaretX(ctl, caret), rect.left, rect.right, ctl->cPageChars, ctl->nCaret, caret);
    if (delta != 0) {
        ScrollBy(ctl, delta);
    }
    return IsWindow(hwnd);
}

// What was selected and no longer is gets erased; what is newly selected is painted over.
void InvalidateChanges(HEditCtl* ctl, TextRange old, TextRange now)
{
    TextRange before = {};
    TextRange behind = {};
    if (old.lo == old.hi) {
        InvalidateRange(ctl, now.lo, now.lo + 1, true);
    } else {
        RangeWithout(old, now, &before, &behind);
        InvalidateRange(ctl, before.lo, before.hi, true);
        InvalidateRange(ctl, behind.lo, behind.hi, true);
    }
    RangeWithout(now, old, &before, &behind);
    InvalidateRange(ctl, before.lo, before.hi, false);
    InvalidateRange(ctl, behind.lo, behind.hi, false);
}

bool ReplacesAtCaret(const HEditCtl* ctl)
{
    return GetOverwriteMode() && ctl->cClass == 's';
}

} // namespace

void InvalidateRange(HEditCtl* ctl, int start, int end, bool erase)
{
    if (start >= end) {
        return;
    }
    RECT rect = ctl->rcText;
    const int left = CaretX(ctl, start);
    const int right = CaretX(ctl, end);
    if (!erase || start > 0) {
        rect.left = left;
    }
    if (!erase || end < TextLength(ctl) - 1) {
        rect.right = right;
    }
    InvalidateRect(ctl->hWnd, &rect, erase);
}

void SetSelection(HEditCtl* ctl, int how, int anchor, int caret)
{
    const TextRange old = SelectionOf(ctl);
    if (MoveSelection(ctl, how, anchor, caret)) {
        InvalidateChanges(ctl, old, SelectionOf(ctl));
    }
}

bool MoveSelection(HEditCtl* ctl, int how, int anchor, int caret)
{
    const int parts = how ? how : moveCaret | moveAnchor;
    const int length = TextLength(ctl);
    const int newCaret = parts & moveCaret ? ClampIndex(caret, length) : static_cast<int>(ctl->nCaret);
    if (!ScrollTowards(ctl, newCaret)) {
        return false;
    }
    if (parts & moveAnchor) {
        ctl->nAnchor = ClampIndex(anchor, length);
    }
    ctl->nCaret = newCaret;
    PlaceCaret(ctl, newCaret);
    return true;
}

void PlaceCaret(HEditCtl* ctl, int index)
{
    // The flag spares most fields the question, which costs as much as painting.
    if (!IsFocused(ctl) || GetFocus() != ctl->hWnd) {
        return;
    }
    if (ReplacesAtCaret(ctl)) {
        BuildCaret(ctl);
    }
    const int x = CaretX(ctl, index);
    const bool inside = x > 0 && (HasFlag(ctl, HEF_RIGHT) || index >= TextLength(ctl));
    SetCaretPos(inside ? x - 1 : x, ctl->rcText.top);
}

void BuildCaret(HEditCtl* ctl)
{
    if (HasStyle(ctl, HES_STATIC)) {
        return;
    }
    const TextRange selection = SelectionOf(ctl);
    int width = 0;
    if (ReplacesAtCaret(ctl) && selection.lo == selection.hi) {
        const ShownText shown(ctl);
        width = TextWidth(ctl, shown.text, selection.lo, 1);
    }
    CreateCaret(ctl->hWnd, nullptr, width, ctl->cyChar);
    ShowCaret(ctl->hWnd);
}

void RebuildCaret(HEditCtl* ctl)
{
    if (GetFocus() == ctl->hWnd) {
        BuildCaret(ctl);
        PlaceCaret(ctl, ctl->nCaret);
    }
}
