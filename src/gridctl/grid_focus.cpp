// The focus between the grid, its editor and the rest of the screen, and the commands that the editor sends.
#include "gridctl/grid_control.h"

#include "foundation/startup.h"

namespace {

bool IsOwnChild(HGridCtl* ctl, HWND window)
{
    return ctl->hWnd && window && IsChild(ctl->hWnd, window);
}

// With a select brush, the headers of the current cell show the focus.
void InvalidateCurrentHeaders(HGridCtl* ctl)
{
    const Cell cell = CurrentCell(ctl);
    const bool valid = cell.col >= 0 && cell.col <= LastCol(ctl) && cell.row >= 0 && cell.row <= LastRow(ctl);
    if (hSelectBrush && valid) {
        HGInvalidateCell(ctl, cell.col, -1);
        HGInvalidateCell(ctl, -1, cell.row);
    }
}

// The grid itself has the focus and no edit is under way: false if the window went.
bool ShowCurrentCell(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (!HasFlag(ctl, HGC_CELLSHOWN)) {
        HGMoveTo(ctl, CurrentCell(ctl).col, CurrentCell(ctl).row, true, false);
    }
    if (!IsWindow(hwnd)) {
        return false;
    }
    if (!HasStyle(ctl, HGS_KEEPSEL)) {
        HGRedrawSelection(ctl);
    }
    return true;
}

bool ReturnToEditor(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (!IsWindow(ctl->hEditor)) {
        SetFlag(ctl, HGC_INEDIT, false);
        // What the host has selected while the focus was elsewhere isn't on the screen yet.
        if (!HasStyle(ctl, HGS_KEEPSEL)) {
            HGRedrawSelection(ctl);
        }
        return true;
    }
    SetFocus(ctl->hEditor);
    return IsWindow(hwnd) != 0;
}

} // namespace

LRESULT HGOnSetFocus(HGridCtl* ctl, WPARAM wParam, int* pDefault)
{
    const HWND hwnd = ctl->hWnd;
    if (IsOwnChild(ctl, reinterpret_cast<HWND>(wParam))) {
        *pDefault = 1;
        return 0;
    }
    if (!HGIsEditable(ctl, CurrentCell(ctl).col)) {
        HGPutEditorAway(ctl); // the host has made the grid or the column read-only meanwhile
    } else if (!ctl->hEditor && HasFlag(ctl, HGC_CELLSHOWN) && !HasFlag(ctl, HGC_RANGE)) {
        HGTakeEditor(ctl); // or has given it free
    }
    if (IsWindow(hwnd) && IsWindow(ctl->hEditor)) {
        HGShowEditor(ctl);
    }
    const bool alive = IsWindow(hwnd) && (HasFlag(ctl, HGC_INEDIT) ? ReturnToEditor(ctl) : ShowCurrentCell(ctl));
    if (alive) {
        InvalidateCurrentHeaders(ctl);
        HGNotify(ctl, HGN_SETFOCUS);
    }
    return 1;
}

void HGFocusLost(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (!HasStyle(ctl, HGS_KEEPSEL)) {
        HGHideEditor(ctl);
        if (!IsWindow(hwnd)) {
            return;
        }
        HGRedrawSelection(ctl);
        // The focus has gone anyway, so a value that can't be stored is left in the editor.
        HGCommitEdit(ctl);
    }
    if (IsWindow(hwnd)) {
        InvalidateCurrentHeaders(ctl);
        HGNotify(ctl, HGN_KILLFOCUS);
    }
}

LRESULT HGOnKillFocus(HGridCtl* ctl, WPARAM wParam, int* pDefault)
{
    SetFlag(ctl, HGC_MOUSEDOWN, false);
    if (IsOwnChild(ctl, reinterpret_cast<HWND>(wParam))) {
        *pDefault = 1;
        return 0;
    }
    HGFocusLost(ctl);
    return 1;
}

void HGOnChildFocus(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    ctl->wFlags |= HGC_INEDIT;
    if (!IsWindowVisible(ctl->hEditor)) {
        HGShowEditor(ctl);
    }
    if (IsWindow(hwnd)) {
        HGNotify(ctl, HGN_EDITFOCUS);
    }
}

void HGOnChildBlur(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (GetFocus() == hwnd) {
        // Whoever commits next stores the value: a host that moves or destroys the grid before the one who took the
        // focus comes to it, or that has taken the focus itself.
        IsUnstored(ctl) = IsUnstored(ctl) || HasFlag(ctl, HGC_INEDIT);
        SetFlag(ctl, HGC_INEDIT, false);
    } else {
        HGFocusLost(ctl);
    }
    if (IsWindow(hwnd)) {
        HGNotify(ctl, HGN_EDITBLUR);
    }
}

namespace {

// The value is taken over and the focus comes back to the grid.
void FinishChildEdit(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    HGCommitEdit(ctl);
    if (!IsWindow(hwnd)) {
        return;
    }
    SetFocus(hwnd);
    if (IsWindow(hwnd)) {
        HGNotify(ctl, HGN_EDITDONE);
    }
}

// What the current cell's control tells by its codes. False for a code that isn't one of them.
bool OnEditorCode(HGridCtl* ctl, int code)
{
    struct CodeMap {
        int child;
        int grid;
    };
    constexpr CodeMap codes[] = { { 1, HGN_CHILDCHANGE }, { 7, HGN_DROPOPEN }, { 8, HGN_DROPCLOSE }, { 9, HGN_DROPPICK } };
    constexpr int editDone = 11;
    if (code == editDone) {
        FinishChildEdit(ctl);
        return true;
    }
    for (const CodeMap& entry : codes) {
        if (entry.child == code) {
            HGNotify(ctl, entry.grid);
            return true;
        }
    }
    return false;
}

} // namespace

LRESULT HGOnCommand(HGridCtl* ctl, WPARAM wParam, LPARAM lParam, int* pDefault)
{
    *pDefault = 1;
    const HWND child = reinterpret_cast<HWND>(lParam);
    if (child && child == ctl->hEditor && OnEditorCode(ctl, HIWORD(wParam))) {
        return 0;
    }
    return HGCommand(ctl, LOWORD(wParam), child, HIWORD(wParam));
}
