// Keys of a grid: those that start an edit, and those that move the current cell by the table below.
#include "gridctl/grid_control.h"

namespace {

// The farthest jump that a move makes by itself: a longer one scrolls first.
constexpr LONG jumpLimit = 32765;

// A key under way, and the way that it makes of it.
struct KeyMove {
    UINT vk;
    bool shift;
    bool ctrl;
    bool extend;
    int  dCol;
    LONG dRow;
};

// False if the window went.
using KeyStep = bool (*)(HGridCtl* ctl, KeyMove* key);

LONG CurrentRecord(const HGridCtl* ctl)
{
    return RecordOfRow(ctl, CurrentCell(ctl).row);
}

// From the current record to the end, and to the last record that isn't the entry row.
LONG WayToEnd(const HGridCtl* ctl)
{
    return BoundRecord(static_cast<std::int64_t>(ctl->lTotalRows) - CurrentRecord(ctl));
}

LONG WayToLast(const HGridCtl* ctl)
{
    return BoundRecord(static_cast<std::int64_t>(WayToEnd(ctl)) - (HasStyle(ctl, HGS_NEWROW) ? 2 : 0));
}

bool FetchTotal(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    HGFetchTotal(ctl);
    return IsWindow(hwnd) != 0;
}

// A way to the end that is too far for one move: the view goes there first, and the way is measured again.
// Settled: what was taken off the way isn't taken off again.
bool ScrollFarWay(HGridCtl* ctl, KeyMove* key)
{
    if (key->dRow <= jumpLimit) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    HGScrollBy(ctl, 0, static_cast<int>(key->dRow), true);
    if (!IsWindow(hwnd)) {
        return false;
    }
    key->dRow = WayToEnd(ctl);
    return true;
}

int PageStep(const HGridCtl* ctl)
{
    return std::max(ctl->cPageRows - 1, 1);
}

// Shift+Return goes to the entry row where that is for entering.
bool IsEntryJump(const HGridCtl* ctl, const KeyMove& key)
{
    const bool hasEntry = HasStyle(ctl, HGS_NEWROW) && !HasStyle(ctl, HGS_FACEBACK);
    return key.vk == VK_RETURN && key.shift && hasEntry && !HasStyle(ctl, HGS_READONLY);
}

bool StepToEntryRow(HGridCtl* ctl, KeyMove* key)
{
    if (!FetchTotal(ctl)) {
        return false;
    }
    int first = -1;
    HGStepColumn(ctl->pData, true, &first);
    key->dRow = WayToEnd(ctl) - 1;
    key->dCol = first - CurrentCell(ctl).col;
    return ScrollFarWay(ctl, key);
}

bool StepTab(HGridCtl* ctl, KeyMove* key)
{
    key->extend = false;
    key->dCol = key->shift ? -1 : 1;
    if (IsEntryJump(ctl, *key)) {
        return StepToEntryRow(ctl, key);
    }
    const int col = CurrentCell(ctl).col;
    int next = col;
    HGStepColumn(ctl->pData, true, &next);
    if (!key->shift && !key->ctrl && next == col) {
        key->dCol = -col;
        key->dRow = 1;
    }
    return true;
}

bool StepEscape(HGridCtl* ctl, KeyMove*)
{
    const HWND hwnd = ctl->hWnd;
    HGCancelEdit(ctl);
    return IsWindow(hwnd) != 0;
}

bool StepSpace(HGridCtl* ctl, KeyMove* key)
{
    const HWND hwnd = ctl->hWnd;
    if (key->ctrl) {
        HGMoveTo(ctl, CurrentCell(ctl).col, -1, false, true);
    }
    return IsWindow(hwnd) != 0;
}

bool StepPrior(HGridCtl* ctl, KeyMove* key)
{
    key->dRow = key->ctrl ? BoundRecord(-static_cast<std::int64_t>(CurrentRecord(ctl))) : -PageStep(ctl);
    return true;
}

bool StepNext(HGridCtl* ctl, KeyMove* key)
{
    if (!key->ctrl) {
        key->dRow = PageStep(ctl);
        return true;
    }
    if (!FetchTotal(ctl)) {
        return false;
    }
    key->dRow = WayToLast(ctl);
    return true;
}

bool HasVisibleColumn(HGridCtl* ctl)
{
    int last = HGColCount(ctl->pData);
    HGStepColumn(ctl->pData, false, &last);
    return last >= 0;
}

bool StepEnd(HGridCtl* ctl, KeyMove* key)
{
    if (!key->ctrl) {
        key->dCol = HasVisibleColumn(ctl) ? HGColCount(ctl->pData) : 0;
        return true;
    }
    if (!FetchTotal(ctl)) {
        return false;
    }
    key->dRow = WayToLast(ctl);
    return ScrollFarWay(ctl, key);
}

bool StepHome(HGridCtl* ctl, KeyMove* key)
{
    if (key->ctrl) {
        return StepPrior(ctl, key);
    }
    key->dCol = -CurrentCell(ctl).col;
    return true;
}

bool StepLeft(HGridCtl*, KeyMove* key)
{
    key->dCol = -1;
    return true;
}

bool StepRight(HGridCtl*, KeyMove* key)
{
    key->dCol = 1;
    return true;
}

bool StepUp(HGridCtl* ctl, KeyMove* key)
{
    // Settled: the row that was proposed last decides, not the current one.
    const bool hasRowAbove = static_cast<short>(ctl->nPropRow) > 0 || ctl->lRowBase > 0;
    key->dRow = hasRowAbove ? -1 : 0;
    return true;
}

bool StepDown(HGridCtl*, KeyMove* key)
{
    key->dRow = 1;
    return true;
}

bool StepInsert(HGridCtl* ctl, KeyMove* key)
{
    if (!HasStyle(ctl, HGS_NEWROW)) {
        return true;
    }
    if (!FetchTotal(ctl)) {
        return false;
    }
    key->dRow = WayToEnd(ctl);
    return ScrollFarWay(ctl, key);
}

struct KeyEntry {
    UINT    vk;
    KeyStep step;
};

// clang-format off
constexpr KeyEntry keySteps[] = {
    { VK_TAB,    StepTab },
    { VK_RETURN, StepTab },
    { VK_ESCAPE, StepEscape },
    { VK_SPACE,  StepSpace },
    { VK_PRIOR,  StepPrior },
    { VK_NEXT,   StepNext },
    { VK_END,    StepEnd },
    { VK_HOME,   StepHome },
    { VK_LEFT,   StepLeft },
    { VK_RIGHT,  StepRight },
    { VK_UP,     StepUp },
    { VK_DOWN,   StepDown },
    { VK_INSERT, StepInsert },
};
// clang-format on

KeyStep FindStep(UINT vk)
{
    for (const KeyEntry& entry : keySteps) {
        if (entry.vk == vk) {
            return entry.step;
        }
    }
    return nullptr;
}

// With the end stop, a way down ends at the last record. False if the window went.
bool StopAtEnd(HGridCtl* ctl, KeyMove* key)
{
    if (!ctl->pData->fEndStop || key->vk == VK_INSERT || key->dRow <= 0) {
        return true;
    }
    if (key->dRow > WayToLast(ctl) && !FetchTotal(ctl)) {
        return false;
    }
    // On the entry row the last record lies above: a way down never becomes one up.
    key->dRow = std::max<LONG>(std::min(key->dRow, WayToLast(ctl)), 0);
    return true;
}

bool StartsEdit(WPARAM vk)
{
    return vk == VK_SPACE || (vk >= 0x30 && vk <= 0x6F) || vk > 0x91;
}

bool IsMoveKey(WPARAM vk)
{
    return vk == VK_INSERT || vk == VK_TAB || vk == VK_RETURN || vk == VK_ESCAPE || (vk >= VK_SPACE && vk <= VK_DOWN);
}

// Gives the focus to the editor of the current cell, if that may be edited. The editor that is there then, or null.
HWND FocusEditor(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (!ctl->hEditor || !HGIsEditable(ctl, CurrentCell(ctl).col)) {
        return nullptr;
    }
    // The view may have been scrolled away from it: nobody would see what is typed.
    if (!HGShowCurrent(ctl) || !ctl->hEditor) {
        return nullptr;
    }
    SetFocus(ctl->hEditor);
    return IsWindow(hwnd) ? ctl->hEditor : nullptr;
}

void StartEdit(HGridCtl* ctl, WPARAM wParam, LPARAM lParam)
{
    if (const HWND editor = FocusEditor(ctl)) {
        SendMessageA(editor, WM_KEYDOWN, wParam, lParam);
    }
}

void DeleteSelectedRows(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    int lo = 0;
    int hi = 0;
    int deleted = 0;
    HGSelRange(ctl, &lo, &hi);
    for (int row = hi; row >= lo; --row) {
        deleted += HGDeleteRow(ctl, row, true);
        if (!IsWindow(hwnd)) {
            return;
        }
    }
    if (deleted > 0) {
        HGRefresh(ctl, true);
    }
}

void OnDeleteKey(HGridCtl* ctl)
{
    const bool plain = !HGIsKeyDown(VK_SHIFT) && !HGIsKeyDown(VK_CONTROL);
    if (plain && HasStyle(ctl, HGS_ROWDELETE) && CurrentCell(ctl).col < 0) {
        DeleteSelectedRows(ctl);
    }
}

// F4 and F5 open the drop part: the editor gets the focus as by F2, and then the key.
void OnDropKey(HGridCtl* ctl, WPARAM wParam, LPARAM lParam)
{
    const HWND hwnd = ctl->hWnd;
    SendMessageA(hwnd, WM_KEYDOWN, VK_F2, lParam);
    if (IsWindow(hwnd) && ctl->hEditor) {
        SendMessageA(ctl->hEditor, WM_KEYDOWN, wParam, lParam);
    }
}

} // namespace

bool HGIsKeyDown(int vk)
{
    return HIBYTE(GetKeyState(vk)) != 0;
}

int HGKeyNavigate(HGridCtl* ctl, UINT vk, bool shift, bool ctrl)
{
    KeyMove key = { vk, shift, ctrl, shift, 0, 0 };
    const KeyStep step = FindStep(vk);
    if (!step || !step(ctl, &key) || !StopAtEnd(ctl, &key)) {
        return 1;
    }
    if (key.dCol != 0 || key.dRow != 0) {
        HGMoveBy(ctl, key.dCol, static_cast<int>(key.dRow), key.extend);
    } else if (ctrl) {
        HGShowCurrentRow(ctl); // the first or last record is the current one already, and the view may be elsewhere
    }
    return 1;
}

LRESULT HGOnKeyDown(HGridCtl* ctl, WPARAM wParam, LPARAM lParam, int* pDefault)
{
    const bool readOnly = HasStyle(ctl, HGS_READONLY);
    if (!(StartsEdit(wParam) && !readOnly) && IsMoveKey(wParam)) {
        return HGKeyNavigate(ctl, static_cast<UINT>(wParam), HGIsKeyDown(VK_SHIFT), HGIsKeyDown(VK_CONTROL));
    }
    *pDefault = 1;
    if (StartsEdit(wParam) && !readOnly) {
        StartEdit(ctl, wParam, lParam);
    } else if (wParam == VK_DELETE) {
        OnDeleteKey(ctl);
    } else if (wParam == VK_F2 && !readOnly) {
        FocusEditor(ctl);
    } else if (wParam == VK_F4 || wParam == VK_F5) {
        OnDropKey(ctl, wParam, lParam);
    }
    return 0;
}

LRESULT HGOnSysKeyUp(HGridCtl* ctl, WPARAM wParam, int* pDefault)
{
    *pDefault = 1;
    if (StartsEdit(wParam) && !HasStyle(ctl, HGS_READONLY)) {
        FocusEditor(ctl);
    }
    return 0;
}

LRESULT HGOnChar(HGridCtl* ctl, WPARAM wParam, LPARAM lParam, int* pDefault)
{
    *pDefault = 1;
    if (ctl->hEditor && HGIsEditable(ctl, CurrentCell(ctl).col)) {
        SendMessageA(ctl->hEditor, WM_CHAR, wParam, lParam);
    }
    return 0;
}
