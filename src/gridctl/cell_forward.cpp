// The wrapping of a cell control's window procedure: the grid sees what concerns navigation, the control keeps what
// concerns its value.
#include "gridctl/cell_controls.h"

#include "edit/edit_control.h"

namespace {

// Who keeps a key while Ctrl is up.
enum class KeyRule {
    ToGrid,       // nobody: the grid always gets it
    Own,          // every control keeps it
    DropsKeep,    // lists and combos keep it
    EditorsKeep,  // edits and combos with an edit keep it, with Ctrl too
};

struct KeyEntry {
    UINT    vk;
    KeyRule rule;
};

// clang-format off
constexpr KeyEntry keyTable[] = {
    { VK_TAB,    KeyRule::ToGrid },
    { VK_RETURN, KeyRule::ToGrid },
    { VK_ESCAPE, KeyRule::ToGrid },
    { VK_HOME,   KeyRule::Own },
    { VK_END,    KeyRule::Own },
    { VK_PRIOR,  KeyRule::DropsKeep },
    { VK_NEXT,   KeyRule::DropsKeep },
    { VK_UP,     KeyRule::DropsKeep },
    { VK_DOWN,   KeyRule::DropsKeep },
    { VK_LEFT,   KeyRule::EditorsKeep },
    { VK_RIGHT,  KeyRule::EditorsKeep },
};
// clang-format on

bool IsForGrid(KeyRule rule, int kind, bool ctrl)
{
    switch (rule) {
    case KeyRule::ToGrid:      return true;
    case KeyRule::Own:         return ctrl;
    case KeyRule::DropsKeep:   return ctrl || (kind != cellCodeList && kind != cellCodeCombo);
    case KeyRule::EditorsKeep: return kind != cellCodeEdit && kind != cellCodeCombo;
    }
    return false;
}

bool IsKeyForGrid(UINT vk, int kind)
{
    for (const KeyEntry& entry : keyTable) {
        if (entry.vk == vk) {
            return IsForGrid(entry.rule, kind, GetKeyState(VK_CONTROL) < 0);
        }
    }
    return false;
}

// A host may destroy a control that it got from the grid: neither column nor grid refers to its record then.
// The columns are met by their links, since the list may be about to drop one.
void ForgetControl(const ControlHeader* child)
{
    HGridCtl* const grid = HGFromWindow(child->hParent);
    HLList* const   fields = grid && grid->pData ? grid->pData->pFields : nullptr;
    void*           node = fields ? fields->pHead : nullptr;
    for (int i = 0; i < HLListCount(fields); ++i) {
        HGField* const field = HGNodeField(node);
        if (field->pCtl == child) {
            field->pCtl = nullptr;
        }
        node = HNodeLink(node);
    }
    if (grid && grid->hEditor == child->hWnd) {
        grid->hEditor = nullptr;
        SetFlag(grid, HGC_EDITORSHOWN | HGC_INEDIT, false);
    }
}

// The procedure that wraps a control: own is the control's, code tells its kind.
LRESULT CellProc(WNDPROC own, int code, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WWM_GETSTATE || message == WWM_SETSTATE) {
        return own(hwnd, message, wParam, lParam);
    }
    const ControlHeader* const record = reinterpret_cast<const ControlHeader*>(own(hwnd, WWM_GETSTATE, 0, 0));
    // A button frees its record at the first of the two, the other controls at the second.
    if (record && (message == WM_NCDESTROY || (message == WM_DESTROY && code == cellCodeCheck))) {
        ForgetControl(record);
    }
    const bool tellsFocus = message == WM_SETFOCUS || message == WM_KILLFOCUS;
    const bool focused = GetFocus() == hwnd;
    LRESULT result = 0;
    if (record && HGCellForward(code, record->hParent, message, wParam, lParam, &result)) {
        return result;
    }
    if (tellsFocus && focused != (GetFocus() == hwnd)) {
        return 0; // a host that heard of it has taken the focus away again, or given it back: that is told already
    }
    return own(hwnd, message, wParam, lParam);
}

// A combo hears of its face's focus and of its own keys before the grid does: Return and Esc close an open list.
LRESULT ComboCellProc(int code, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool isState = message == WWM_GETSTATE || message == WWM_SETSTATE;
    const auto* const record = reinterpret_cast<const ControlHeader*>(HCombWnd(hwnd, WWM_GETSTATE, 0, 0));
    if (!record && !isState) {
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }
    switch (message) {
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        return HCombWnd(hwnd, message, wParam, lParam);
    case WM_KEYDOWN:
        if ((wParam == VK_RETURN || wParam == VK_ESCAPE) && HCombWnd(hwnd, message, wParam, lParam)) {
            return 1;
        }
        break;
    case WWM_CHILDFOCUS:
    case WWM_CHILDBLUR: {
        const HWND grid = record->hParent;
        HCombWnd(hwnd, message, wParam, lParam);
        // A face that took the focus back while it was leaving has a validator that refused: it hasn't left.
        if (message == WWM_CHILDFOCUS || !IsChild(hwnd, GetFocus())) {
            SendMessageA(grid, message, wParam, lParam);
        }
        return 0;
    }
    default:
        break;
    }
    return CellProc(HCombWnd, code, hwnd, message, wParam, lParam);
}

LRESULT OnCheckNcCalcSize(HWND hwnd, WPARAM wParam, LPARAM lParam)
{
    DefWindowProcA(hwnd, WM_NCCALCSIZE, wParam, lParam);
    constexpr int frame = 2;
    InflateRect(reinterpret_cast<RECT*>(lParam), -frame, -frame);
    return 1;
}

LRESULT OnCheckNcPaint(HWND hwnd, WPARAM wParam, LPARAM lParam)
{
    DefWindowProcA(hwnd, WM_NCPAINT, wParam, lParam);
    HNCPaint(hwnd, 0);
    return 1;
}

} // namespace

// The child of a column that the host draws isn't wrapped: its end is told to the grid by the system alone.
void HGForgetHostDrawn(HGridCtl* ctl, HWND child)
{
    for (int col = 0; col < HGColCount(ctl->pData); ++col) {
        const HGField* const field = HGGetField(ctl->pData, col);
        if (field->cKind == 'q' && field->pCtl && field->pCtl->hWnd == child) {
            ForgetControl(field->pCtl);
            return;
        }
    }
}

bool HGCellForward(int kind, HWND hGrid, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    *result = 1;
    HGridCtl* const grid = HGFromWindow(hGrid);
    if (!grid) {
        return false;
    }
    switch (message) {
    case WM_SETFOCUS:
        SendMessageA(hGrid, WWM_CHILDFOCUS, 0, 0);
        return false;
    case WM_KILLFOCUS:
        SendMessageA(hGrid, WWM_CHILDBLUR, 0, 0);
        return false;
    case WM_GETDLGCODE:
        *result = SendMessageA(hGrid, message, wParam, lParam);
        return true;
    case WM_KEYDOWN:
        if (!IsKeyForGrid(static_cast<UINT>(wParam), kind)) {
            return false;
        }
        *result = SendMessageA(hGrid, message, wParam, lParam);
        return true;
    case WM_SYSKEYDOWN:
        *result = SendMessageA(hGrid, message, 0, 0);
        return *result != 0;
    case WM_LBUTTONDBLCLK:
        Notify(grid, HGN_DBLCLK);
        return true;
    case WM_RBUTTONDOWN:
        Notify(grid, HGN_RBUTTONDOWN);
        return true;
    default:
        return false;
    }
}

LRESULT CALLBACK HGEditCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    // The grid may read the value as soon as it hears that the focus goes.
    if (message == WM_KILLFOCUS) {
        if (HEditCtl* const ctl = reinterpret_cast<HEditCtl*>(HEditWnd(hwnd, WWM_GETSTATE, 0, 0))) {
            FinishEntry(ctl);
        }
    }
    return CellProc(HEditWnd, cellCodeEdit, hwnd, message, wParam, lParam);
}

LRESULT CALLBACK HGListCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CellProc(HListWnd, cellCodeList, hwnd, message, wParam, lParam);
}

LRESULT CALLBACK HGComboCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ComboCellProc(cellCodeCombo, hwnd, message, wParam, lParam);
}

LRESULT CALLBACK HGFieldComboCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ComboCellProc(cellCodeList, hwnd, message, wParam, lParam);
}

// A check button has no frame of its own; in a cell it has that of the edits.
LRESULT CALLBACK HGCheckCellProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool hasRecord = HButtWnd(hwnd, WWM_GETSTATE, 0, 0) != 0;
    if (hasRecord && message == WM_NCCALCSIZE) {
        return OnCheckNcCalcSize(hwnd, wParam, lParam);
    }
    if (hasRecord && message == WM_NCPAINT) {
        return OnCheckNcPaint(hwnd, wParam, lParam);
    }
    return CellProc(HButtWnd, cellCodeCheck, hwnd, message, wParam, lParam);
}
