// The block of rows that a grid with a row source holds: filled from the source, cut, and moved over the record set.
// The source is host code: whatever it does meanwhile, loaded row r stays record lRowBase + r.
#include "gridctl/grid_control.h"

#include <cstring>

namespace {

// So often a source may change the grid while it is asked for a record before it isn't asked again.
constexpr int mostDisturbances = 16;

enum class Fetched {
    Record,
    Nothing,   // there is no such record
    Disturbed, // the source has changed rows, columns or itself: what it gave isn't used
    Failed,    // no memory or no room
    Gone       // the window went
};

// What must be as before when the source comes back.
struct BlockState {
    HGridData*  data;
    HGROWSOURCE source;
    LONG        base;
    int         rows;
    int         rowSize;
};

BlockState StateOf(const HGridCtl* ctl)
{
    return { ctl->pData, ctl->pfnRowSource, ctl->lRowBase, HGRowCount(ctl->pData), ctl->pData->pRows->cbItem };
}

bool IsSame(const BlockState& a, const BlockState& b)
{
    return a.data == b.data && a.source == b.source && a.base == b.base && a.rows == b.rows && a.rowSize == b.rowSize;
}

Fetched FetchRecord(HGridCtl* ctl, LONG record, void* buffer)
{
    const HWND hwnd = ctl->hWnd;
    const BlockState before = StateOf(ctl);
    const int exists = HGCallSource(ctl, HGSRC_FETCH, record, buffer);
    if (!IsWindow(hwnd)) {
        return Fetched::Gone;
    }
    if (!IsSame(before, StateOf(ctl))) {
        return Fetched::Disturbed;
    }
    return exists ? Fetched::Record : Fetched::Nothing;
}

// Rows go at one end. False if the window went.
bool DropRows(HGridCtl* ctl, int count, bool atFront)
{
    const HWND hwnd = ctl->hWnd;
    for (int i = 0; i < count; ++i) {
        const int removed = atFront ? HGRemoveFirstRow(ctl) : HGRemoveRow(ctl, LastRow(ctl));
        if (!IsWindow(hwnd)) {
            return false;
        }
        if (!removed) {
            break;
        }
    }
    return true;
}

// Adds records behind the block through one buffer, until it is full or something else than a record comes.
Fetched FetchBehind(HGridCtl* ctl, BYTE* buffer)
{
    const size_t size = static_cast<size_t>(ctl->pData->pRows->cbItem);
    while (HGRowCount(ctl->pData) < ctl->cHeldRows) {
        std::memset(buffer, 0, size);
        const Fetched fetched = FetchRecord(ctl, RecordOfRow(ctl, HGRowCount(ctl->pData)), buffer);
        if (fetched != Fetched::Record) {
            return fetched;
        }
        if (HGAppendRow(ctl, buffer) < 1) {
            return Fetched::Failed;
        }
    }
    return Fetched::Record;
}

// As FetchBehind, with a new buffer after each disturbance, since rows may have another size then.
Fetched FillBehind(HGridCtl* ctl)
{
    for (int i = 0; i < mostDisturbances; ++i) {
        BYTE* const buffer = ctl->pfnRowSource ? static_cast<BYTE*>(HGBlankRow(ctl->pData)) : nullptr;
        if (!buffer) {
            return Fetched::Failed;
        }
        const Fetched fetched = FetchBehind(ctl, buffer);
        HBlockFree(buffer);
        if (fetched != Fetched::Disturbed) {
            return fetched;
        }
    }
    return Fetched::Failed;
}

// Records in front of the block, side by side, and how many there are before the first that is missing.
struct FrontRows {
    BYTE*  bytes;
    size_t rowSize;
    int    count;
    int    present;
};

// Fetches all records before any of them enters the block, so that the source never sees a block in the making.
Fetched FetchFront(HGridCtl* ctl, FrontRows* front, bool stopAtMissing)
{
    const LONG first = ctl->lRowBase - front->count;
    for (int i = 0; i < front->count; ++i) {
        const Fetched fetched = FetchRecord(ctl, first + i, front->bytes + static_cast<size_t>(i) * front->rowSize);
        if (fetched == Fetched::Record) {
            front->present += front->present == i ? 1 : 0;
        } else if (fetched != Fetched::Nothing || stopAtMissing) {
            return fetched;
        }
    }
    return Fetched::Record;
}

// Rows in front push the loaded ones down, and what names those goes along.
void PushDown(HGridCtl* ctl, int count, int rowsBefore)
{
    const Cell current = CurrentCell(ctl);
    if (current.row >= 0 && current.row < rowsBefore) {
        ctl->nCurRow = static_cast<WORD>(current.row + count);
    }
    if (ctl->nAnchorRow >= 0 && ctl->nAnchorRow < rowsBefore) {
        ctl->nAnchorRow = static_cast<short>(ctl->nAnchorRow + count);
    }
    if (ctl->nTopRow < rowsBefore) {
        ctl->nTopRow = static_cast<short>(ctl->nTopRow + count);
    }
}

// The last row goes in first, so that each insertion is at the head of the list. The number of rows that got in.
int InsertFront(HGridCtl* ctl, const FrontRows& front, int count)
{
    const int rowsBefore = HGRowCount(ctl->pData);
    int inserted = 0;
    while (inserted < count) {
        const size_t place = static_cast<size_t>(count - 1 - inserted);
        if (HLListInsert(ctl->pData->pRows, 0, front.bytes + place * front.rowSize) < 0) {
            break;
        }
        ++inserted;
    }
    PushDown(ctl, inserted, rowsBefore);
    return inserted;
}

bool AllocFront(const HGridCtl* ctl, FrontRows* front)
{
    const int room = rowLimit - HGRowCount(ctl->pData);
    front->rowSize = static_cast<size_t>(ctl->pData->pRows->cbItem);
    const LONG recordsBefore = ctl->lRowBase;
    front->count = static_cast<int>(std::min<LONG>(std::min(front->count, room), recordsBefore));
    if (front->count <= 0 || front->rowSize == 0 || !ctl->pfnRowSource) {
        return false;
    }
    front->bytes = static_cast<BYTE*>(HBlockAlloc(static_cast<size_t>(front->count) * front->rowSize));
    return front->bytes != nullptr;
}

// Loads count records in front of the block. A record that isn't there leaves a blank row.
Fetched FillFront(HGridCtl* ctl, int count)
{
    FrontRows front = { nullptr, 0, count, 0 };
    if (!AllocFront(ctl, &front)) {
        return Fetched::Failed;
    }
    const Fetched fetched = FetchFront(ctl, &front, false);
    if (fetched == Fetched::Record) {
        ctl->lRowBase -= InsertFront(ctl, front, front.count);
    }
    HBlockFree(front.bytes);
    return fetched;
}

// The first missing record, when none is there from `missing` on.
Fetched FindEnd(HGridCtl* ctl, LONG missing, LONG* end)
{
    BYTE* const buffer = static_cast<BYTE*>(HGBlankRow(ctl->pData));
    Fetched fetched = buffer ? Fetched::Nothing : Fetched::Failed;
    LONG low = 0;
    LONG high = missing;
    while (low < high && (fetched == Fetched::Record || fetched == Fetched::Nothing)) {
        const LONG middle = low + (high - low) / 2;
        fetched = FetchRecord(ctl, middle, buffer);
        low = fetched == Fetched::Record ? middle + 1 : low;
        high = fetched == Fetched::Record ? high : middle;
    }
    HBlockFree(buffer);
    *end = low;
    return fetched == Fetched::Nothing ? Fetched::Record : fetched;
}

// The block begins at or behind the end, and no record is loaded. Where the records in front are missing too, the
// owner's total was too high: the block goes back to the true end, and no blank row stands for a missing record.
Fetched FillToEnd(HGridCtl* ctl, int count)
{
    FrontRows front = { nullptr, 0, count, 0 };
    if (!AllocFront(ctl, &front)) {
        return Fetched::Failed;
    }
    LONG end = ctl->lRowBase - front.count;
    Fetched fetched = FetchFront(ctl, &front, true);
    const bool usable = fetched == Fetched::Record || fetched == Fetched::Nothing;
    const int inserted = usable ? InsertFront(ctl, front, front.present) : 0;
    HBlockFree(front.bytes);
    if (usable && front.present == 0) {
        fetched = FindEnd(ctl, end, &end);
    }
    if (fetched != Fetched::Record && fetched != Fetched::Nothing) {
        return fetched;
    }
    ctl->lRowBase = end + front.present - inserted;
    return front.present < front.count ? FillFront(ctl, front.count - front.present) : Fetched::Record;
}

bool HasNewRow(HGridCtl* ctl)
{
    const void* const last = HGRowCount(ctl->pData) > 0 ? ctl->pData->pRows->pTail : nullptr;
    return last && (HGNodeFlags(last) & HGR_NEW);
}

// Under the style, a blank row stands behind the last record. False if the window went.
bool AddEntryRow(HGridCtl* ctl)
{
    if (!HasStyle(ctl, HGS_NEWROW) || HasNewRow(ctl)) {
        return true;
    }
    const int added = HGAppendRow(ctl, nullptr);
    return added < 1 || HGAnnounceNewRow(ctl, added - 1);
}

// The source has no more records: the entry row comes, the front fills what is missing, and the total is known.
bool EndBlock(HGridCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    const int records = HGRowCount(ctl->pData) - (HasNewRow(ctl) ? 1 : 0);
    if (!AddEntryRow(ctl)) {
        return false;
    }
    const int rows = HGRowCount(ctl->pData);
    const int held = static_cast<int>(std::min<LONG>(ctl->cHeldRows, RecordOfRow(ctl, rows)));
    if (rows < held) {
        ctl->cHeldRows = static_cast<short>(held);
        if (records > 0) {
            FillFront(ctl, held - rows);
        } else {
            FillToEnd(ctl, held - rows);
        }
    }
    if (!IsWindow(hwnd)) {
        return false;
    }
    ctl->lTotalRows = RecordOfRow(ctl, HGRowCount(ctl->pData));
    return true;
}

// False if the window went.
bool FetchRows(HGridCtl* ctl, int missing, bool atFront)
{
    const HWND hwnd = ctl->hWnd;
    SetFlag(ctl, HGC_FETCHING, true);
    const Fetched fetched = atFront ? FillFront(ctl, missing) : FillBehind(ctl);
    bool alive = IsWindow(hwnd) != 0;
    if (alive && !atFront && fetched == Fetched::Nothing) {
        alive = EndBlock(ctl);
    }
    if (alive) {
        SetFlag(ctl, HGC_FETCHING, false);
    }
    return alive;
}

// Moving back: rows go at the end, the records before the block come in front. False if the window went.
bool MoveBack(HGridCtl* ctl, LONG record)
{
    const HWND hwnd = ctl->hWnd;
    const int held = ctl->cHeldRows;
    const int moved = static_cast<int>(std::min<LONG>(ctl->lRowBase - record, held));
    const int kept = std::min(held - moved, HGRowCount(ctl->pData));
    ctl->cHeldRows = static_cast<short>(kept);
    HGFillBlock(ctl, false);
    if (!IsWindow(hwnd)) {
        return false;
    }
    if (HGRowCount(ctl->pData) == 0) {
        ctl->lRowBase = moved + record;
    }
    ctl->cHeldRows = static_cast<short>(kept + moved);
    HGFillBlock(ctl, true);
    return IsWindow(hwnd) != 0;
}

// Moving on: rows go in front, the records behind the block come at its end. False if the window went.
bool MoveOn(HGridCtl* ctl, LONG record)
{
    const HWND hwnd = ctl->hWnd;
    const int held = ctl->cHeldRows;
    const int rows = HGRowCount(ctl->pData);
    const int moved = static_cast<int>(std::min<LONG>(record - ctl->lRowBase, rows));
    ctl->cHeldRows = static_cast<short>(rows - moved);
    HGFillBlock(ctl, true);
    if (!IsWindow(hwnd)) {
        return false;
    }
    if (HGRowCount(ctl->pData) == 0) {
        ctl->lRowBase = record;
    }
    ctl->cHeldRows = static_cast<short>(held);
    HGFillBlock(ctl, false);
    return IsWindow(hwnd) != 0;
}

// Stores the editor's value before its row leaves the block. False if the window went.
bool StoreLeavingCell(HGridCtl* ctl, LONG record, LONG current)
{
    const HWND hwnd = ctl->hWnd;
    const std::int64_t place = static_cast<std::int64_t>(current) - record;
    if (ctl->hEditor && (place < 0 || place >= ctl->cHeldRows)) {
        HGReadEditor(ctl);
    }
    return IsWindow(hwnd) != 0;
}

// Rows that go take the editor from any cell. One whose record has stayed gets it back, for whoever scrolls to show.
void GiveBackEditor(HGridCtl* ctl)
{
    const bool isCell = HasFlag(ctl, HGC_CELLSHOWN) && !HasFlag(ctl, HGC_RANGE);
    if (!ctl->hEditor && isCell && HGIsEditable(ctl, CurrentCell(ctl).col)) {
        HGTakeEditor(ctl);
    }
}

// Negative rows name headers and stay as they are.
LONG KeptRecord(const HGridCtl* ctl, int row)
{
    return row < 0 ? row : RecordOfRow(ctl, row);
}

} // namespace

int HGCallSource(HGridCtl* ctl, int operation, LONG record, void* buffer)
{
    const HGROWSOURCE source = ctl->pfnRowSource;
    return source ? source(ctl->hWnd, operation, static_cast<int>(record), buffer) : 0;
}

void HGFetchTotal(HGridCtl* ctl)
{
    if (!HasFlag(ctl, HGC_VIRTUAL) || ctl->fTotalKnown) {
        return;
    }
    const HWND hwnd = ctl->hWnd;
    const int total = HGCallSource(ctl, HGSRC_COUNT, 0, nullptr);
    if (IsWindow(hwnd)) {
        SendMessageA(hwnd, HGM_SETTOTAL, 0, total);
    }
}

// What is typed into an entry row that isn't the end any more would go over the record in its place.
bool HGMeetEntryRow(HGridCtl* ctl)
{
    const HWND  hwnd = ctl->hWnd;
    const int   row = LastRow(ctl);
    void* const node = HasFlag(ctl, HGC_VIRTUAL) && row >= 0 ? HGRowNode(ctl->pData, row) : nullptr;
    const bool  edited = row == CurrentCell(ctl).row && (HGIsInEdit(ctl) || IsUnstored(ctl));
    const bool  blank = node && (HGNodeFlags(node) & (HGR_NEW | HGR_DIRTY)) == HGR_NEW;
    void* const buffer = blank && !edited && !HasFlag(ctl, HGC_FETCHING) ? HGBlankRow(ctl->pData) : nullptr;
    if (!buffer) {
        return true;
    }
    SetFlag(ctl, HGC_FETCHING, true);
    const Fetched fetched = FetchRecord(ctl, RecordOfRow(ctl, row), buffer);
    const bool    alive = IsWindow(hwnd) != 0;
    if (alive) {
        SetFlag(ctl, HGC_FETCHING, false);
    }
    if (fetched == Fetched::Record && HGRowNode(ctl->pData, row) == node) {
        std::memcpy(HGNodeData(node), buffer, static_cast<size_t>(ctl->pData->pRows->cbItem));
        HGChangeNodeFlags(node, HGR_NEW, 0);
        HGInvalidateRange(ctl, -1, row, -1, row);
        if (row == CurrentCell(ctl).row) {
            HGLoadEditor(ctl);
        }
    }
    HBlockFree(buffer);
    return IsWindow(hwnd) != 0;
}

int HGFillBlock(HGridCtl* ctl, bool atFront)
{
    const int before = HGRowCount(ctl->pData);
    const int held = std::clamp<int>(ctl->cHeldRows, 0, rowLimit);
    const int missing = held - before;
    ctl->cHeldRows = static_cast<short>(held);
    if (missing > 0 && HasFlag(ctl, HGC_FETCHING)) {
        return 0;
    }
    if (missing != 0 && !(missing < 0 ? DropRows(ctl, -missing, atFront) : FetchRows(ctl, missing, atFront))) {
        return 0;
    }
    ctl->cHeldRows = static_cast<short>(HGRowCount(ctl->pData));
    return ctl->cHeldRows - before;
}

void HGShiftBlock(HGridCtl* ctl, LONG record)
{
    const LONG base = std::max<LONG>(record, 0);
    if (base == ctl->lRowBase || HasFlag(ctl, HGC_FETCHING)) {
        return;
    }
    const LONG current = KeptRecord(ctl, CurrentCell(ctl).row);
    const LONG anchor = KeptRecord(ctl, ctl->nAnchorRow);
    const LONG top = KeptRecord(ctl, ctl->nTopRow);
    const HWND hwnd = ctl->hWnd;
    const bool hadEditor = ctl->hEditor != nullptr;
    if (!StoreLeavingCell(ctl, base, current)) {
        return;
    }
    if (!(base < ctl->lRowBase ? MoveBack(ctl, base) : MoveOn(ctl, base))) {
        return;
    }
    HGRestoreTop(ctl, top);
    HGClampCell(ctl, anchor, current);
    if (hadEditor && IsWindow(hwnd)) {
        GiveBackEditor(ctl);
    }
}
