// The editor of the current cell: one child control a column, loaded, placed, read back and put away here.
// What the child does with the value is its own matter; the focus steps are in grid_focus.cpp.
#include "gridctl/grid_control.h"

#include "griddata/item_buffer.h"
#include "typed/data_types.h"

#include <algorithm>
#include <cstring>

namespace {

// How a cell control takes and gives its value, by kind. A code message of 0: the kind has no codes of its own.
struct ValueMessages {
    char   kind;
    UINT   read;
    UINT   readCode;
    bool   readSized; // the read message takes the size in wParam
    UINT   write;
    UINT   writeCode;
    WPARAM writeParam;
};

// clang-format off
constexpr ValueMessages valueMessages[] = {
    { 'e', HEM_GETDATA,    0,              true,  HEM_SETDATA,    0,              0 },
    { 'q', HEM_GETDATA,    0,              true,  HEM_SETDATA,    0,              0 },
    { 'c', HEM_GETDATA,    HLM_GETCURCODE, true,  HEM_SETDATA,    0,              0 },
    { 'd', HLM_GETCURDATA, HLM_GETCURCODE, true,  HLM_SELECTDATA, HLM_SELECTCODE, 1 },
    { 'l', HLM_GETCURDATA, HLM_GETCURCODE, true,  HLM_SELECTDATA, HLM_SELECTCODE, 1 },
    { 'k', HBM_GETVALUE,   0,              false, HBM_SETVALUE,   0,              0 },
};
// clang-format on

const ValueMessages* MessagesOf(char kind)
{
    for (const ValueMessages& entry : valueMessages) {
        if (entry.kind == kind) {
            return &entry;
        }
    }
    return nullptr;
}

HGField* CurrentField(HGridCtl* ctl)
{
    return HGGetField(ctl->pData, CurrentCell(ctl).col);
}

// The column whose value the editor holds. Bounded: while a move is told, and for a host that changes columns
// meanwhile, the editor may be another column's than the current one. Its value is of another type and size: it is
// neither read nor loaded then.
HGField* EditedField(HGridCtl* ctl)
{
    HGField* const field = IsWindow(ctl->hEditor) ? CurrentField(ctl) : nullptr;
    return field && field->pCtl && field->pCtl->hWnd == ctl->hEditor ? field : nullptr;
}

// A combo with an edit face shows the text of its code's item, as far as its first tab.
// Bounded: data that isn't text has bytes of any value, so it is neither cut nor emptied by a text that is too short.
LRESULT LoadCodeText(HWND editor, const HGField* field, const void* code)
{
    const bool    isText = GetDataSize(field->cClass, field->cType) < 0;
    const LRESULT index = SendMessageA(editor, HLM_FINDCODE, 0, reinterpret_cast<LPARAM>(code));
    SendMessageA(editor, HEM_SETDATA, 0, reinterpret_cast<LPARAM>(isText ? "" : nullptr));
    if (static_cast<int>(index) == -1) {
        return 0;
    }
    char item[itemBufferSize] = {};
    if (!HGFetchItem(editor, index, item)) {
        return 0;
    }
    if (isText) {
        item[itemBufferSize - 1] = 0;
        item[std::strcspn(item, "\t")] = 0;
    }
    return SendMessageA(editor, HEM_SETDATA, 0, reinterpret_cast<LPARAM>(item));
}

// A block for what the editor gives, zeroed. Bounded: a control gives all bytes of its own type, which may be longer than
// the column's values where these are of the second pair.
char* NewValueBuffer(const HGField* field)
{
    const int longest = std::max(static_cast<int>(field->cbSize), longestFixedType);
    return static_cast<char*>(HBlockAlloc(static_cast<size_t>(longest) + 1));
}

// Fills buffer from the editor; false if the editor reports the null value.
bool ReadValue(HWND editor, const HGField* field, char* buffer)
{
    const ValueMessages* const messages = MessagesOf(field->cKind);
    if (!messages) {
        return true;
    }
    const bool code = (field->wFlags & HFF_CODE) && messages->readCode;
    const WPARAM size = messages->readSized ? static_cast<WPARAM>(field->cbSize) : 0;
    return SendMessageA(editor, code ? messages->readCode : messages->read, size,
                        reinterpret_cast<LPARAM>(buffer)) != 0;
}

// Whether the editor still holds the value that was read from it, or null for none.
bool StillHolds(HGridCtl* ctl, HWND editor, const char* value)
{
    const HGField* const field = ctl->hEditor == editor ? EditedField(ctl) : nullptr;
    const size_t size = field && field->cbSize >= 1 ? static_cast<size_t>(field->cbSize) : 0;
    char* const buffer = size ? NewValueBuffer(field) : nullptr;
    if (!buffer) {
        return size != 0;
    }
    const bool hasValue = ReadValue(editor, field, buffer);
    const bool same = hasValue == (value != nullptr) && (!hasValue || std::memcmp(buffer, value, size) == 0);
    HBlockFree(buffer);
    return same;
}

// Whether what was read is still to be stored. A host that heard of it meanwhile may have moved on, which has stored it, or
// may have put another value into the editor; that is asked only where the focus has gone elsewhere since.
bool IsStillToStore(HGridCtl* ctl, HWND editor, Cell cell, HWND focus)
{
    const bool stands = ctl->hEditor == editor && cell == CurrentCell(ctl);
    return stands && (GetFocus() == focus || SendMessageA(editor, WWM_GETCHANGED, 0, 0));
}

// Writes a value that was read from the editor into the current cell. It isn't pending while it is written, so a host
// that moves or refreshes when it is told of it doesn't have it stored once more. A refused one counts as changed again,
// unless the host has put another one into the editor: it is stored if the user goes back into the editor, and a move
// that comes first gives it up.
int WriteRead(HGridCtl* ctl, HWND editor, const char* value)
{
    const HWND hwnd = ctl->hWnd;
    const Cell cell = CurrentCell(ctl);
    SendMessageA(editor, WWM_SETCHANGED, 0, 0);
    if (!IsWindow(hwnd)) {
        return 0;
    }
    const int written = HGWriteCell(ctl, cell.col, cell.row, value);
    if (!written && IsWindow(hwnd) && cell == CurrentCell(ctl) && StillHolds(ctl, editor, value)) {
        SendMessageA(editor, WWM_SETCHANGED, 1, 0);
    }
    return written;
}

// Moving a window to where it is costs as much as moving it elsewhere, and the editor of the last row that shows stays
// in its place for as long as the rows pass beneath it.
bool IsPlaced(const HGridCtl* ctl, HWND editor, const RECT& rect)
{
    RECT now;
    GetWindowRect(editor, &now);
    MapWindowPoints(nullptr, ctl->hWnd, reinterpret_cast<POINT*>(&now), 2);
    return EqualRect(&now, &rect) != 0;
}

// Where the editor stands over the current cell. False if it can't be shown.
bool EditorRect(HGridCtl* ctl, RECT* rect)
{
    const Cell cell = CurrentCell(ctl);
    if (cell.row < 0 || cell.row >= HGRowCount(ctl->pData) || !IsWindow(ctl->hEditor)) {
        return false;
    }
    RECT zone;
    HGCellRect(ctl, rect, cell.col, cell.row, true);
    HGScrollRect(ctl, &zone);
    // Settled: bounded by the scrolling zone, an editor in a fixed column gets no width and isn't seen.
    HGBoundRect(rect, rect, &zone);
    return true;
}

// A host's procedure over the child may end the child or the grid while it is placed: false then.
bool PlaceEditor(HGridCtl* ctl, const RECT& rect)
{
    const HWND hwnd = ctl->hWnd;
    const HWND editor = ctl->hEditor;
    const int  width = rect.right - rect.left;
    const int  height = rect.bottom - rect.top;
    if (!IsPlaced(ctl, editor, rect)) {
        MoveWindow(editor, rect.left, rect.top, width, height, TRUE);
    }
    SendMessageA(editor, WM_SIZE, SIZE_RESTORED, MAKELPARAM(width, height));
    return IsWindow(hwnd) && IsWindow(editor) && ctl->hEditor == editor;
}

} // namespace

bool HGIsEditable(HGridCtl* ctl, int col)
{
    const HGField* const field = HGGetField(ctl->pData, col);
    // What is typed into a hidden column would be seen nowhere.
    return field && (field->wFlags & (HFF_READONLY | HFF_HIDDEN)) == 0 && !HasStyle(ctl, HGS_READONLY);
}

// In a combo it is the face that has the focus.
bool HGHoldsFocus(HWND window, HWND focus)
{
    return window && focus && (focus == window || IsChild(window, focus));
}

// The bit alone stays when the focus goes elsewhere, so that it comes back to the editor.
bool HGIsInEdit(const HGridCtl* ctl)
{
    return HasFlag(ctl, HGC_INEDIT) && HGHoldsFocus(ctl->hWnd, GetFocus());
}

// A control that is hidden stays the editor until the next move. What is being typed isn't loaded over: it is stored when
// the edit ends. A selection of more than one cell has no editor.
void HGFollowReadOnly(HGridCtl* ctl, bool show)
{
    const HWND hwnd = ctl->hWnd;
    if (!HGIsEditable(ctl, CurrentCell(ctl).col)) {
        HGHideEditor(ctl);
        return;
    }
    if (HasFlag(ctl, HGC_RANGE)) {
        return;
    }
    const bool pending = HasFlag(ctl, HGC_INEDIT) || IsUnstored(ctl);
    if (!pending || !IsWindow(ctl->hEditor)) {
        // Loads too: the control may hold what the column showed when it was last current.
        HGTakeEditor(ctl);
    }
    if (IsWindow(hwnd) && show) {
        HGShowEditor(ctl);
    }
}

void HGTakeEditor(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const HGField* const field = CurrentField(ctl);
    const HWND editor = field && field->pCtl ? field->pCtl->hWnd : nullptr;
    if (ctl->hEditor != editor && HasFlag(ctl, HGC_EDITORSHOWN)) {
        HGHideEditor(ctl);
    }
    if (IsWindow(hwnd)) {
        ctl->hEditor = editor;
        HGLoadEditor(ctl);
    }
}

// The edit ends while editor, column and cell still belong together.
bool HGBeginColumnChange(HGridCtl* ctl, bool* shown)
{
    const HWND hwnd = ctl->hWnd;
    *shown = HasFlag(ctl, HGC_EDITORSHOWN);
    HGDetachEditor(ctl);
    return IsWindow(hwnd) != 0;
}

// The current cell keeps its numbers, so another column's control may stand over it now.
void HGEndColumnChange(HGridCtl* ctl, bool shown)
{
    const HWND hwnd = ctl->hWnd;
    const bool isCell = HasFlag(ctl, HGC_CELLSHOWN) && !HasFlag(ctl, HGC_RANGE);
    if (!isCell || !HGIsEditable(ctl, CurrentCell(ctl).col)) {
        return;
    }
    HGTakeEditor(ctl);
    if (IsWindow(hwnd) && shown) {
        HGShowEditor(ctl);
    }
}

int HGLoadEditor(HGridCtl* ctl)
{
    const HGField* const field = EditedField(ctl);
    const Cell cell = CurrentCell(ctl);
    const BYTE* const bytes = field && field->cbSize >= 1 ? HGCellPtr(ctl->pData, cell.col, cell.row) : nullptr;
    const ValueMessages* const messages = bytes ? MessagesOf(field->cKind) : nullptr;
    if (!messages) {
        return 0;
    }
    const void* const value = IsCellNull(ctl, cell.col, cell.row) ? nullptr : bytes;
    const bool code = (field->wFlags & HFF_CODE) != 0;
    if (code && field->cKind == 'c') {
        return static_cast<int>(LoadCodeText(ctl->hEditor, field, value));
    }
    const UINT message = code && messages->writeCode ? messages->writeCode : messages->write;
    return static_cast<int>(
        SendMessageA(ctl->hEditor, message, messages->writeParam, reinterpret_cast<LPARAM>(value)));
}

int HGReadEditor(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const HWND editor = ctl->hEditor;
    const Cell cell = CurrentCell(ctl);
    const HGField* const field = EditedField(ctl);
    const HWND focus = GetFocus();
    if (!field || field->cbSize < 1 || !SendMessageA(editor, WWM_GETCHANGED, 0, 0)) {
        return 1;
    }
    // The host may have put a procedure over the child, which can end the grid or the column with any message.
    if (!IsWindow(hwnd) || EditedField(ctl) != field) {
        return 1;
    }
    char* const buffer = NewValueBuffer(field);
    if (!buffer) {
        return 1;
    }
    const bool hasValue = ReadValue(editor, field, buffer);
    // A control that takes the focus back has a validator that refuses the value.
    const bool refused = !HGHoldsFocus(editor, focus) && HGHoldsFocus(editor, GetFocus());
    int written = IsWindow(hwnd) && !refused;
    if (written && IsStillToStore(ctl, editor, cell, focus) && IsWindow(hwnd)) {
        written = WriteRead(ctl, editor, hasValue ? buffer : nullptr);
    }
    HBlockFree(buffer);
    return written;
}

int HGShowEditor(HGridCtl* ctl)
{
    RECT rect;
    if (!EditorRect(ctl, &rect) || !PlaceEditor(ctl, rect)) {
        return 0;
    }
    ctl->wFlags |= HGC_EDITORSHOWN;
    ShowWindow(ctl->hEditor, SW_SHOWNA);
    return 1;
}

bool HGEditorStands(HGridCtl* ctl)
{
    RECT rect;
    return !EditorRect(ctl, &rect) || (HasFlag(ctl, HGC_EDITORSHOWN) && IsPlaced(ctl, ctl->hEditor, rect));
}

void HGKeepEditorPlaced(HGridCtl* ctl)
{
    if (HasFlag(ctl, HGC_EDITORSHOWN) && !HGEditorStands(ctl)) {
        HGShowEditor(ctl);
    }
}

int HGHideEditor(HGridCtl* ctl)
{
    if (IsWindow(ctl->hEditor)) {
        SetFlag(ctl, HGC_EDITORSHOWN, false);
        ShowWindow(ctl->hEditor, SW_HIDE);
    }
    return 1;
}

int HGCommitEdit(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const bool inEdit = HasFlag(ctl, HGC_INEDIT) || IsUnstored(ctl);
    const HWND focus = GetFocus();
    const bool taken = focus && IsChild(hwnd, focus) && SetFocus(hwnd);
    if (!inEdit || !IsWindow(hwnd)) {
        return inEdit ? 0 : 1;
    }
    if (taken && HGHoldsFocus(ctl->hEditor, GetFocus())) {
        return 0; // refused, as below
    }
    IsUnstored(ctl) = false;
    const int stored = HGReadEditor(ctl);
    if (!IsWindow(hwnd)) {
        return 0;
    }
    HGInvalidateCell(ctl, CurrentCell(ctl).col, CurrentCell(ctl).row);
    return stored;
}

void HGCancelEdit(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    SetFlag(ctl, HGC_INEDIT, false); // what is given up is nothing that a host could have stored meanwhile
    if (GetFocus() != hwnd) {
        SetFocus(hwnd);
    }
    if (IsWindow(hwnd)) {
        HGLoadEditor(ctl);
    }
}

void HGEndEdit(HGridCtl* ctl, bool commit)
{
    const HWND hwnd = ctl->hWnd;
    if (commit) {
        HGCommitEdit(ctl);
    } else {
        HGCancelEdit(ctl);
    }
    if (IsWindow(hwnd)) {
        SetFlag(ctl, HGC_INEDIT, false);
    }
}

int HGDetachEditor(HGridCtl* ctl)
{
    if (!ctl->hEditor) {
        return 0;
    }
    const HWND hwnd = ctl->hWnd;
    HGEndEdit(ctl, true);
    if (IsWindow(hwnd)) {
        HGForgetRefused(ctl);
    }
    if (IsWindow(hwnd)) {
        HGPutEditorAway(ctl);
    }
    return 1;
}

void HGForgetRefused(HGridCtl* ctl)
{
    if (HGHoldsFocus(ctl->hEditor, GetFocus())) {
        HGLoadEditor(ctl);
    }
}

void HGPutEditorAway(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    HGHideEditor(ctl);
    if (IsWindow(hwnd)) {
        ctl->hEditor = nullptr;
    }
}
