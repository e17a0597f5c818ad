// Moves the current cell: takes the edit over, asks the parent, changes the state, repaints the selection, and gives
// the new cell its editor.
#include "gridctl/grid_control.h"

#include "foundation/gdi_guards.h"

namespace {

// One move under way.
struct Move {
    HWND hwnd;
    Cell to;
    bool extend;
    bool scroll;
    LONG oldRecord; // of the current row before the view moved: the block may shift, which changes row numbers alone
    bool range;     // a row, a column or more than one cell
    bool same;      // the current cell already
    bool focused;   // the selection is on the screen
    bool showAgain; // the editor has to be placed anew
};

// What tells of a selection that nobody has changed meanwhile.
struct Selection {
    Cell current;
    Cell anchor;
};

bool HasCells(const HGridCtl* ctl)
{
    return HGColCount(ctl->pData) > 0 && HGRowCount(ctl->pData) > 0;
}

Selection SelectionOf(const HGridCtl* ctl)
{
    return { CurrentCell(ctl), AnchorCell(ctl) };
}

bool IsSame(const Selection& a, const Selection& b)
{
    return a.current == b.current && a.anchor == b.anchor;
}

// Steps 3 and 4: what the styles and a whole row or column at the anchor make of the target.
void ApplyShape(HGridCtl* ctl, Move* move)
{
    if (HasStyle(ctl, HGS_ROWSELECT) && move->to.row != -1) {
        move->to.col = -1;
    }
    if (HasStyle(ctl, HGS_NOEXTEND)) {
        move->extend = false;
    } else if (move->extend) {
        move->to.col = ctl->nAnchorCol == -1 ? -1 : move->to.col;
        move->to.row = ctl->nAnchorRow == -1 ? -1 : move->to.row;
    }
}

Cell ProposedCell(const HGridCtl* ctl)
{
    return { static_cast<short>(ctl->nPropCol), static_cast<short>(ctl->nPropRow) };
}

// Steps 5 to 7: the parent may choose another target. False if the window went.
bool AskParent(HGridCtl* ctl, Move* move)
{
    ctl->nPropCol = static_cast<WORD>(move->to.col);
    ctl->nPropRow = static_cast<WORD>(move->to.row);
    const Cell asked = ProposedCell(ctl);
    if (!HGNotify(ctl, move->extend ? HGN_EXTENDING : HGN_MOVING)) {
        return false;
    }
    const Cell answer = ProposedCell(ctl);
    SetFlag(ctl, CF_CANCEL, !(answer == asked));
    move->to.col = std::max(std::min(answer.col, LastCol(ctl)), -1);
    move->to.row = std::max(answer.row, -1);
    return true;
}

// Steps 8 and 9: a row past the loaded ones makes the block move, or the parent add rows. False if the window went.
bool BringRowIn(HGridCtl* ctl, Move* move)
{
    if (move->scroll && move->to.row >= HGRowCount(ctl->pData)) {
        const std::int64_t record = static_cast<std::int64_t>(ctl->lRowBase) + move->to.row;
        const int way = PartialRow(ctl) - ctl->cPageRows - ctl->nTopRow + 1 + move->to.row;
        HGScrollBy(ctl, 0, std::max(way, 1), true);
        if (!IsWindow(move->hwnd)) {
            return false;
        }
        move->to.row = static_cast<int>(BoundRecord(record - ctl->lRowBase));
    }
    move->to.row = std::clamp(move->to.row, -1, LastRow(ctl));
    return true;
}

// Steps 10 to 14. The editor of the old cell goes where it can't stay.
void Judge(HGridCtl* ctl, Move* move)
{
    const Cell current = CurrentCell(ctl);
    const bool wasRange = HasFlag(ctl, HGC_RANGE);
    const bool wholeLine = move->to.col == -1 || move->to.row == -1;
    move->range = wholeLine || (move->extend && !(move->to == AnchorCell(ctl)));
    move->same = HasFlag(ctl, HGC_CELLSHOWN) && move->to == current;
    if (wasRange && !move->extend && !(AnchorCell(ctl) == current)) {
        move->same = false;
    }
    move->focused = HGIsSelectionShown(ctl);
    move->showAgain = wasRange || !move->same || move->range;
    if (ctl->hEditor && (move->showAgain || !move->focused)) {
        HGHideEditor(ctl);
    }
}

// Step 15. An editor that stays on its cell goes with it. False if the window went.
bool BringCellIn(HGridCtl* ctl, Move* move)
{
    if (!move->scroll) {
        return true;
    }
    const LONG pos = ctl->nHScrollPos;
    const LONG top = HGTopRecord(ctl);
    const int row = HGEnsureVisible(ctl, move->to.col, move->to.row);
    if (!IsWindow(move->hwnd)) {
        return false;
    }
    move->to.row = std::clamp(row, -1, LastRow(ctl));
    if (HasFlag(ctl, HGC_EDITORSHOWN) && (pos != ctl->nHScrollPos || top != HGTopRecord(ctl))) {
        HGShowEditor(ctl);
    }
    return IsWindow(move->hwnd) != 0;
}

LONG RecordOrHeader(const HGridCtl* ctl, int row)
{
    return row < 0 ? row : RecordOfRow(ctl, row);
}

// The state changes, and the parent hears of it. False if the window went.
bool ChangeCell(HGridCtl* ctl, const Move& move)
{
    const bool rowChanged = IsUntold(ctl) || RecordOrHeader(ctl, move.to.row) != move.oldRecord;
    IsUntold(ctl) = false;
    ctl->nCurCol = static_cast<WORD>(move.to.col);
    ctl->nCurRow = static_cast<WORD>(move.to.row);
    if (!move.extend) {
        ctl->nAnchorCol = static_cast<short>(move.to.col);
        ctl->nAnchorRow = static_cast<short>(move.to.row);
    }
    if (!HGNotify(ctl, HGN_MOVED)) {
        return false;
    }
    if (!rowChanged) {
        return true;
    }
    HGFillMirror(ctl);
    return HGNotify(ctl, HGN_ROWCHANGED);
}

void InvalidateSelection(HGridCtl* ctl, const Selection& selection)
{
    if (selection.anchor.row < 0 || selection.current.row < 0) {
        InvalidateRect(ctl->hWnd, nullptr, IsCorner(selection.current));
    } else {
        HGInvalidateRange(ctl, -1, selection.anchor.row, -1, selection.current.row);
    }
}

// Rows that are selected one by one may be selected with the range or without it, which an inversion can't tell.
void DrawNewSelection(HGridCtl* ctl, const Selection& old)
{
    if (HasStyle(ctl, HGS_ROWSELECT) && !HasStyle(ctl, HGS_NOEXTEND)) {
        InvalidateSelection(ctl, old);
        InvalidateSelection(ctl, SelectionOf(ctl));
        return;
    }
    const DWORD anchor = PackCell(old.anchor.col, old.anchor.row);
    const DWORD current = PackCell(old.current.col, old.current.row);
    const bool shown = HasFlag(ctl, HGC_CELLSHOWN);
    const WindowDC window(ctl->hWnd);
    if (!shown && old.current.row != CurrentCell(ctl).row) {
        // No cell was shown, but a scroll on the way may have painted this header as that of the current row.
        HGDrawCell(ctl, window.hdc, -1, old.current.row);
    }
    HGDrawSelection(ctl, window.hdc, shown ? &anchor : nullptr, shown ? &current : nullptr);
}

// Without the focus the headers alone show which cell is current.
void InvalidateHeaders(HGridCtl* ctl, Cell cell)
{
    HGInvalidateCell(ctl, cell.col, -1);
    HGInvalidateCell(ctl, -1, cell.row);
}

// Rows that came or went while the parent was told have given the cell another number: the move ends there.
void FollowCell(HGridCtl* ctl, Move* move)
{
    move->to = CurrentCell(ctl);
    move->range = move->to.col == -1 || move->to.row == -1 || !(move->to == AnchorCell(ctl));
    HGFillMirror(ctl);
}

// A cell that was current when the style of whole rows came: its row was painted inverted.
bool IsCellAmongRows(const HGridCtl* ctl, Cell cell)
{
    return HasStyle(ctl, HGS_ROWSELECT) && cell.col >= 0 && cell.row >= 0;
}

// Steps 16 to 18. False if the move ends here: the window or all cells went, or the parent has moved on meanwhile.
bool ShowMove(HGridCtl* ctl, Move* move)
{
    const Selection old = SelectionOf(ctl);
    const bool wasEditable = HGIsEditable(ctl, old.current.col);
    SetFlag(ctl, HGC_TELLING, true);
    if (!move->same && !ChangeCell(ctl, *move)) {
        return false;
    }
    const Selection wanted = { move->to, move->extend || move->same ? old.anchor : move->to };
    const bool focused = HGIsSelectionShown(ctl);
    const bool refocused = focused != move->focused; // by the parent
    const bool restyled = wasEditable != HGIsEditable(ctl, old.current.col) || IsCellAmongRows(ctl, old.current);
    move->focused = focused;
    if (!IsSame(SelectionOf(ctl), wanted) || refocused || restyled) {
        // Old and new selection were drawn in the wrong order, or by other bits: only painting all of it anew is right.
        InvalidateRect(ctl->hWnd, nullptr, IsCorner(old.current) || IsCorner(move->to));
        if (!HasFlag(ctl, HGC_TELLING) || !HasCells(ctl)) {
            return false;
        }
        FollowCell(ctl, move);
    } else if (move->focused && !(move->same && move->range)) {
        DrawNewSelection(ctl, old);
    } else if (!move->focused && !move->same) {
        InvalidateHeaders(ctl, old.current);
        InvalidateHeaders(ctl, CurrentCell(ctl));
    }
    SetFlag(ctl, HGC_RANGE, move->range);
    SetFlag(ctl, HGC_CELLSHOWN, true);
    return true;
}

// Steps 19 and 20. Whether the cell can be edited is asked when the parent has been told: a host that locks by record does
// so then. A refresh keeps the cell, but what the host has changed before it may have moved the cell, or have put its
// editor away.
void GiveEditor(HGridCtl* ctl, const Move& move)
{
    if (!move.range && HGIsEditable(ctl, CurrentCell(ctl).col)) {
        HGTakeEditor(ctl);
    } else {
        HGPutEditorAway(ctl);
    }
    if (IsWindow(move.hwnd) && move.focused && (move.showAgain || !HGEditorStands(ctl))) {
        HGShowEditor(ctl);
    }
}

// A way over hidden columns at the end stops at the last visible one, as others are stopped by the last column.
int BeforeHiddenEnd(HGridCtl* ctl, int col)
{
    int last = HGColCount(ctl->pData);
    HGStepColumn(ctl->pData, false, &last);
    return last >= 0 && last < LastCol(ctl) ? std::min(col, last) : col;
}

// The target of a relative move across: one step back from where the way ends, then a step over visible columns.
int ColumnAt(HGridCtl* ctl, int dCol)
{
    constexpr int farthest = 0x7FFF;
    int col = CurrentCell(ctl).col + std::clamp(dCol, -farthest, farthest) + (dCol > 0 ? -1 : 1);
    HGStepColumn(ctl->pData, dCol > 0, &col);
    if (col > CurrentCell(ctl).col) {
        col = BeforeHiddenEnd(ctl, col);
    }
    return std::clamp(col, HasStyle(ctl, HGS_ROWHEADERS) ? -1 : 0, farthest);
}

} // namespace

bool HGIsSelectionShown(const HGridCtl* ctl)
{
    return GetFocus() == ctl->hWnd || HasStyle(ctl, HGS_KEEPSEL) || HGIsInEdit(ctl);
}

int HGMoveTo(HGridCtl* ctl, int col, int row, bool extend, bool scroll)
{
    const HWND hwnd = ctl->hWnd;
    if (!HasCells(ctl)) {
        return 0;
    }
    const int stored = HGCommitEdit(ctl);
    if (!IsWindow(hwnd)) {
        return 0;
    }
    if (!stored) {
        ctl->wFlags |= CF_CANCEL;
        return 0;
    }
    Move move = { hwnd, { col, row }, extend, scroll, 0, false, false, false, false };
    ApplyShape(ctl, &move);
    if (!AskParent(ctl, &move)) {
        return 0;
    }
    move.oldRecord = RecordOrHeader(ctl, CurrentCell(ctl).row);
    if (!BringRowIn(ctl, &move) || !HasCells(ctl)) {
        return 0;
    }
    Judge(ctl, &move);
    if (!IsWindow(hwnd) || !BringCellIn(ctl, &move)) {
        return 0;
    }
    if (ShowMove(ctl, &move)) {
        GiveEditor(ctl, move);
    } else if (IsWindow(hwnd) && move.focused && !HasFlag(ctl, HGC_EDITORSHOWN)) {
        // What the parent did has left an editor, but this move had hidden it.
        HGShowEditor(ctl);
    }
    if (!IsWindow(hwnd)) {
        return 0;
    }
    SetFlag(ctl, HGC_TELLING, false);
    return 1;
}

int HGMoveBy(HGridCtl* ctl, int dCol, int dRow, bool extend)
{
    const HWND hwnd = ctl->hWnd;
    const int col = ColumnAt(ctl, dCol);
    // Row numbers of the way are those of the block that the move begins with.
    const std::int64_t base = ctl->lRowBase;
    constexpr std::int64_t farthest = 0x7FFF;
    std::int64_t row = static_cast<std::int64_t>(CurrentCell(ctl).row) + dRow;
    if (base > 0 && base + row < 0) {
        row = -base;
    }
    // A row number past 16 bits would come out as a header: whichever key asks, the view goes there first.
    if ((dRow < 0 && row < 0) || row > farthest) {
        const LONG target = BoundRecord(std::max<std::int64_t>(base + row, 0));
        HGScrollBy(ctl, 0, dRow, true);
        // A view that stood far below the current cell hasn't come as far as the record.
        if (IsWindow(hwnd) && target < ctl->lRowBase) {
            HGScrollBy(ctl, 0, static_cast<int>(target - HGTopRecord(ctl)), true);
        }
        if (!IsWindow(hwnd)) {
            return 1;
        }
        row = std::max<std::int64_t>(static_cast<std::int64_t>(target) - ctl->lRowBase, 0);
    }
    const std::int64_t lowest = HasStyle(ctl, HGS_COLHEADERS) ? -1 : 0;
    HGMoveTo(ctl, col, static_cast<int>(std::clamp(row, lowest, farthest)), extend, true);
    return 1;
}
