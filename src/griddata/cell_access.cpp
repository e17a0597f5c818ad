// Single cells of a grid: the exported reads and writes, and the one write step that every change passes.
// The row surgery is in grid_rows_bytes.cpp; what the window does with a change is the grid control's.
#include "griddata/cell_access.h"

#include "griddata/grid_services.h"
#include "griddata/griddata_internal.h"
#include "griddata/item_buffer.h"

#include <algorithm>
#include <cstring>

namespace {

HGridData* DataOf(HGridCtl* ctl)
{
    return ctl ? ctl->pData : nullptr;
}

// Zeroed bytes for one value: small ones stand on the stack, since every write and every parse needs some.
struct TempBlock {
    char   local[itemBufferSize];
    size_t size;
    char*  p;
    explicit TempBlock(size_t bytes) : size(bytes), p(local)
    {
        if (size > sizeof local) {
            p = static_cast<char*>(HBlockAlloc(size));
        } else {
            std::memset(local, 0, size);
        }
    }
    ~TempBlock()
    {
        if (p && p != local) {
            HBlockFree(p);
        }
    }
    TempBlock(const TempBlock&) = delete;
    TempBlock& operator=(const TempBlock&) = delete;
};

bool IsCellKind(char kind)
{
    return kind != 0 && std::strchr("cdeklq", kind) != nullptr;
}

bool IsStoredText(const HGField* field)
{
    const bool code = (field->wFlags & HFF_CODE) != 0;
    const char dataClass = code ? field->cClass2 : field->cClass;
    const char dataType = code ? field->cType2 : field->cType;
    return (dataClass == 's' || dataClass == 'm') && dataType == 's';
}

void StoreCell(const HGField* field, BYTE* cell, const void* value)
{
    const size_t size = static_cast<size_t>(field->cbSize);
    if (!IsStoredText(field)) {
        std::memmove(cell, value, size);
        return;
    }
    // A caller may hand in the cell itself, so the text is measured and moved before the rest is cleared.
    const char* const text = static_cast<const char*>(value);
    const size_t length = strnlen(text, size - 1);
    std::memmove(cell, text, length);
    std::memset(cell + length, 0, size - length);
}

// The row has been written in a grid with a row source: hands it to the source. False if the window went.
bool FollowUpRecord(HGridCtl* ctl, int row)
{
    const HWND hwnd = ctl->hWnd;
    HGridData* const grid = ctl->pData;
    void* const node = HGRowNode(grid, row);
    const bool isNew = (HGNodeFlags(node) & HGR_NEW) != 0;
    const int stored = ctl->pfnRowSource(hwnd, isNew ? HGSRC_APPEND : HGSRC_UPDATE, row + ctl->lRowBase,
                                         HGRowData(grid, row));
    if (!IsWindow(hwnd)) {
        return false;
    }
    // The source may have deleted the row meanwhile, or loaded others: its number is another row's then.
    if (!stored || HGRowNode(ctl->pData, row) != node) {
        return true;
    }
    HGChangeNodeFlags(node, isNew ? HGR_DIRTY | HGR_NEW : HGR_DIRTY, 0);
    if (!isNew) {
        return true;
    }
    HGInvalidateRange(ctl, -1, row, -1, row);
    if (row < ctl->cPageRows) {
        SendMessageA(hwnd, HGM_REFRESH, 0, 0);
    } else {
        SendMessageA(hwnd, HGM_SETHELD, 0, ctl->cHeldRows + 1);
        if (IsWindow(hwnd)) {
            PostMessageA(hwnd, HGM_SETTOPRECORD, static_cast<WPARAM>(ctl->lRowBase + ctl->nTopRow + 1), 0);
        }
    }
    return IsWindow(hwnd) != 0;
}

// Writing to the blank entry row brings the next one. False if the window went.
bool FollowUpEntryRow(HGridCtl* ctl, int row)
{
    const HWND hwnd = ctl->hWnd;
    if ((ctl->pData->dwStyle & HGS_NEWROW) == 0 || row != HGRowCount(ctl->pData) - 1) {
        return true;
    }
    HGAddRow(ctl, nullptr, true);
    if (IsWindow(hwnd)) {
        SendMessageA(hwnd, HGM_REFRESH, 0, 0);
    }
    return IsWindow(hwnd) != 0;
}

void MarkWritten(HGridCtl* ctl, int col, int row)
{
    HGridData* const grid = ctl->pData;
    HGChangeNodeFlags(HGRowNode(grid, row), 0, HGR_DIRTY);
    ctl->nPropCol = static_cast<WORD>(col);
    ctl->nPropRow = static_cast<WORD>(row);
    if (ctl->pRowMirror) {
        HGCopyRow(grid, row, ctl->pRowMirror, false);
    }
}

// Asks the source of a virtual grid. False, too, if it took the window, the data or the row meanwhile.
bool SourceTakes(HGridCtl* ctl, int col, int row, const void* value)
{
    if ((ctl->wFlags & HGC_VIRTUAL) == 0 || !ctl->pfnRowSource) {
        return true;
    }
    const HWND hwnd = ctl->hWnd;
    HGridData* const grid = ctl->pData;
    const void* const node = HGRowNode(grid, row);
    const int cell = static_cast<int>((static_cast<DWORD>(row & 0xFFFF) << 16) | static_cast<DWORD>(col & 0xFFFF));
    const bool refused = ctl->pfnRowSource(hwnd, HGSRC_CELL, cell, const_cast<void*>(value)) != 0;
    const bool stays = (!hwnd || IsWindow(hwnd)) && ctl->pData == grid;
    return !refused && stays && HGRowNode(grid, row) == node;
}

// Where a row stands after the parent was told: it may have put others in front of it, or taken them away. The same
// number if it isn't found, since columns that come or go give every row a new node.
int PlaceOfRow(HGridData* grid, const void* node, int row)
{
    const int count = HGRowNode(grid, row) == node ? 0 : HGRowCount(grid);
    for (int i = 0; i < count; ++i) {
        if (HGRowNode(grid, i) == node) {
            return i;
        }
    }
    return row;
}

// After the parent has agreed: the row's follow-up, the repaint and the changed bit. 0 if the window went meanwhile.
// written is the row's node: in its place may stand a record that the parent had loaded, which has nothing to store.
int FinishWrite(HGridCtl* ctl, int col, int row, const void* written)
{
    const bool isVirtual = (ctl->wFlags & HGC_VIRTUAL) != 0;
    row = isVirtual ? row : PlaceOfRow(ctl->pData, written, row);
    const void* const there = HGRowNode(ctl->pData, row);
    if (!there || (isVirtual && there != written)) {
        return 1;
    }
    if (HGNodeFlags(there) & HGR_PRESET) {
        HGInvalidateCell(ctl, col, row);
        return 1;
    }
    // Bounded: without a source nobody is there to take the row.
    const bool stays = !isVirtual ? FollowUpEntryRow(ctl, row) : !ctl->pfnRowSource || FollowUpRecord(ctl, row);
    if (!stays) {
        return 0;
    }
    HGInvalidateCell(ctl, col, row);
    void* const node = HGRowNode(ctl->pData, row);
    if (node && (HGNodeFlags(node) & HGR_DIRTY)) {
        ctl->wFlags |= CF_CHANGED;
    }
    return 1;
}

// Bounded: an item's text may be longer than the caller's room, and is cut then. False if nothing was copied.
bool CopyLongItem(HWND child, UINT message, WPARAM index, size_t size, char* out, size_t room)
{
    char* const item = static_cast<char*>(HBlockAlloc(size + 1));
    const bool  copied = item && SendMessageA(child, message, index, reinterpret_cast<LPARAM>(item));
    if (copied) {
        std::memcpy(out, item, room - 1);
        out[room - 1] = 0;
    }
    HBlockFree(item);
    return copied;
}

// Whether the column is still there after a message to a cell control, whose procedure may be the host's.
bool HasStayed(const HGridCtl* ctl, HWND hwnd, HGridData* grid, int col, const HGField* field)
{
    return (!hwnd || IsWindow(hwnd)) && ctl->pData == grid && HGGetField(grid, col) == field;
}

// The value's place in a row. Bounded: after a copy into a grid that wasn't empty, columns may reach past the rows.
bool HoldsCell(const HGridData* grid, const HGField* field)
{
    return HGPlaceFits(grid, field->nOffset, HGCellSize(field));
}

// The bytes of the field's value, where a code is shown through its item: null if there is nothing to show.
const void* FormatSource(const HGField* field, const BYTE* cell, char* itemBuffer)
{
    const bool translated = (field->wFlags & HFF_CODE) && std::strchr("cdl", field->cKind);
    if (!translated) {
        return cell;
    }
    if (!field->pCtl) {
        return nullptr;
    }
    const HWND child = field->pCtl->hWnd;
    const LRESULT index = SendMessageA(child, HLM_FINDCODE, 0, reinterpret_cast<LPARAM>(cell));
    if (static_cast<int>(index) >= 0) {
        HGFetchItem(child, index, itemBuffer);
    }
    return itemBuffer;
}

// Overwrites parsed data by its code in the columns that store one. False if the cell control is missing.
bool TranslateToCode(const HGField* field, const TempBlock& block)
{
    if (!(field->wFlags & HFF_CODE) || (field->cKind != 'd' && field->cKind != 'l')) {
        return true;
    }
    if (!field->pCtl) {
        return false;
    }
    const HWND child = field->pCtl->hWnd;
    const LRESULT index = SendMessageA(child, HLM_FINDDATA, 0, reinterpret_cast<LPARAM>(block.p));
    const WPARAM  item = static_cast<WPARAM>(index); // Settled: -1 goes on, and a list answers with its last item.
    const size_t  size = static_cast<size_t>(std::max(0, HGItemCodeSize(child, static_cast<int>(index))));
    if (size >= block.size) {
        return CopyLongItem(child, HLM_GETCODE, item, size, block.p, block.size);
    }
    SendMessageA(child, HLM_GETCODE, item, reinterpret_cast<LPARAM>(block.p));
    return true;
}

// The editor over a cell that a host has written shows the value, or the old one would be edited and stored over it.
int ShowWritten(HGridCtl* ctl, int col, int row, int written)
{
    if (written && ctl->nCurCol == static_cast<WORD>(col) && ctl->nCurRow == static_cast<WORD>(row)) {
        HGLoadEditor(ctl);
    }
    return written;
}

} // namespace

LRESULT HGFetchItem(HWND child, LRESULT index, char* out)
{
    const WPARAM item = static_cast<WPARAM>(index);
    const int    size = HGItemSize(child, static_cast<int>(index));
    if (size >= itemBufferSize) {
        CopyLongItem(child, HLM_GETDATA, item, static_cast<size_t>(size), out, itemBufferSize);
        return 1;
    }
    return SendMessageA(child, HLM_GETDATA, item, reinterpret_cast<LPARAM>(out));
}

BYTE* HGCellPtr(HGridData* grid, int col, int row)
{
    const HGField* const field = grid ? HGGetField(grid, col) : nullptr;
    BYTE* const data = field && HoldsCell(grid, field) ? HGRowData(grid, row) : nullptr;
    return data ? data + field->nOffset : nullptr;
}

BYTE* HGCellFlagsPtr(HGridData* grid, int col, int row)
{
    BYTE* const data = grid ? HGRowData(grid, row) : nullptr;
    if (!data) {
        return nullptr;
    }
    int pos = HGColToPos(grid, col);
    // Bounded: a column that a map without upkeep doesn't reach has the flag word of its own number, and one that the
    // map has lost has none.
    if (pos < 0) {
        pos = col >= HLListCount(grid->pFieldMap) ? col : -1;
    }
    const int place = grid->pRows->cbItem + (pos - HGColCount(grid)) * 2;
    return pos >= 0 && HGPlaceFits(grid, place, 2) ? data + place : nullptr;
}

int HGWriteCell(HGridCtl* ctl, int col, int row, const void* value)
{
    HGridData* const grid = DataOf(ctl);
    const HGField* const field = grid ? HGGetField(grid, col) : nullptr;
    BYTE* const cell = field && field->cbSize > 0 ? HGCellPtr(grid, col, row) : nullptr;
    BYTE* const flags = cell ? HGCellFlagsPtr(grid, col, row) : nullptr;
    if (!flags) {
        return 0;
    }
    const WORD others = static_cast<WORD>(LoadAs<WORD>(flags) & ~cellNull);
    StoreAs<WORD>(flags, static_cast<WORD>(value ? others : others | cellNull));

    const TempBlock zeros(value ? 0 : static_cast<size_t>(field->cbSize));
    const void* const bytes = value ? value : zeros.p;
    if (!bytes || !SourceTakes(ctl, col, row, bytes)) {
        return 0;
    }
    BYTE* const target = HGGetField(ctl->pData, col) == field ? HGCellPtr(ctl->pData, col, row) : nullptr;
    if (!target) {
        return 0;
    }
    StoreCell(field, target, bytes);
    MarkWritten(ctl, col, row);
    const void* const written = HGRowNode(ctl->pData, row);
    if (Notify(ctl, HGN_CELLCHANGED)) {
        return 0;
    }
    return FinishWrite(ctl, col, row, written);
}

int HGFormatCell(HGridCtl* ctl, int col, int row, char* out, int outSize, int editForm)
{
    if (!out || outSize < 1) {
        return 0;
    }
    *out = 0;
    HGridData* const grid = DataOf(ctl);
    const HGField* const field = grid ? HGGetField(grid, col) : nullptr;
    // A column without a size holds no value, and at its place the next column's stands.
    const BYTE* const cell = field && field->cbSize > 0 ? HGCellPtr(grid, col, row) : nullptr;
    if (!cell || !IsCellKind(field->cKind)) {
        return 0;
    }
    const HWND hwnd = ctl->hWnd;
    char itemBuffer[itemBufferSize] = {};
    const void* const source = FormatSource(field, cell, itemBuffer);
    if (!source || (source != cell && !HasStayed(ctl, hwnd, grid, col, field))) {
        return 0;
    }
    FormatData(source, field->cClass, field->cType, field->pszFormat, out, outSize, nullptr, editForm);
    return static_cast<int>(std::strlen(out));
}

int HGParseCell(HGridCtl* ctl, int col, int row, const char* text)
{
    HGridData* const grid = DataOf(ctl);
    const HGField* const field = grid ? HGGetField(grid, col) : nullptr;
    if (!field) {
        return 0;
    }
    // Room for any fixed type, for the text, and for the code that may overwrite it.
    const size_t textSize = text ? std::strlen(text) + 1 : 0;
    const bool code = (field->wFlags & HFF_CODE) != 0;
    const size_t valueSize = static_cast<size_t>(std::max<short>(field->cbSize, code ? itemBufferSize : 32));
    const TempBlock block(std::max(textSize, valueSize));
    if (!block.p) {
        return 0;
    }
    const HWND hwnd = ctl->hWnd;
    ParseData(block.p, field->cClass, field->cType, field->pszFormat, text, 0);
    if (!IsCellKind(field->cKind) || !TranslateToCode(field, block) || !HasStayed(ctl, hwnd, grid, col, field)) {
        return 0;
    }
    return HGWriteCell(ctl, col, row, block.p);
}

int WINAPI HGGetCellData(HWND hwnd, int col, int row, void* out)
{
    HGridData* const grid = DataOf(HGFromWindow(hwnd));
    col = static_cast<short>(col);
    row = static_cast<short>(row);
    const HGField* const field = grid ? HGGetField(grid, col) : nullptr;
    const BYTE* const cell = field ? HGCellPtr(grid, col, row) : nullptr;
    const BYTE* const flags = cell ? HGCellFlagsPtr(grid, col, row) : nullptr;
    if (!flags || !out) {
        return 0;
    }
    if (field->cbSize > 0) {
        std::memcpy(out, cell, static_cast<size_t>(field->cbSize));
    }
    return LoadAs<WORD>(flags) & cellNull ? 0 : 1;
}

int WINAPI HGSetCellString(HWND hwnd, int col, int row, const void* value)
{
    return HGWriteCell(HGFromWindow(hwnd), static_cast<short>(col), static_cast<short>(row), value);
}

int WINAPI HGSetCellData(HWND hwnd, int col, int row, const void* value)
{
    HGridCtl* const ctl = HGFromWindow(hwnd);
    return ShowWritten(ctl, col, row, HGWriteCell(ctl, static_cast<short>(col), static_cast<short>(row), value));
}

int WINAPI HGGetCellText(HWND hwnd, int col, int row, char* out, int outSize)
{
    HGridCtl* const ctl = HGFromWindow(hwnd);
    return DataOf(ctl) ? HGFormatCell(ctl, static_cast<short>(col), static_cast<short>(row), out, outSize, 0) : 0;
}

int WINAPI HGSetCellText(HWND hwnd, int col, int row, const char* text)
{
    HGridCtl* const ctl = HGFromWindow(hwnd);
    const int written = DataOf(ctl) ? HGParseCell(ctl, static_cast<short>(col), static_cast<short>(row), text) : 0;
    return ShowWritten(ctl, col, row, written);
}

int WINAPI HGCopyCellData(HWND hwnd, int col, int rowFrom, int rowTo)
{
    HGridCtl* const ctl = HGFromWindow(hwnd);
    HGridData* const grid = DataOf(ctl);
    col = static_cast<short>(col);
    const HGField* const field = grid ? HGGetField(grid, col) : nullptr;
    if (!field) {
        return 0;
    }
    const BYTE* const cell = HGCellPtr(grid, col, static_cast<short>(rowFrom));
    // A copy: a row source may delete the row before its value is stored.
    const TempBlock value(static_cast<size_t>(HGCellSize(field)));
    if (cell && !value.p) {
        return 0;
    }
    if (cell) {
        std::memcpy(value.p, cell, value.size);
    }
    return ShowWritten(ctl, col, rowTo, HGWriteCell(ctl, col, static_cast<short>(rowTo), cell ? value.p : nullptr));
}

int WINAPI IsCellNull(HGridCtl* ctl, int col, int row)
{
    HGridData* const grid = DataOf(ctl);
    col = static_cast<short>(col);
    // Bounded: a cell that doesn't exist has no flag word to look at and counts as null's opposite.
    const BYTE* const flags = grid && HGGetField(grid, col) ? HGCellFlagsPtr(grid, col, static_cast<short>(row))
                                                            : nullptr;
    return flags ? LoadAs<WORD>(flags) & cellNull : 0;
}

int WINAPI HGIsCellNull(HWND hwnd, int col, int row)
{
    return IsCellNull(HGFromWindow(hwnd), col, row);
}

void* WINAPI HGOffsetPtr(HWND hwnd, int col, void* rowData)
{
    HGridData* const grid = DataOf(HGFromWindow(hwnd));
    const HGField* const field = grid && rowData ? HGGetField(grid, static_cast<short>(col)) : nullptr;
    return field ? static_cast<char*>(rowData) + field->nOffset : nullptr;
}
