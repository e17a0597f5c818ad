// What the rows of a walked edit may hold: each row is compared whole, with its flags, with each state allowed to it.
#include "gridctl/grid_walk.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <map>

namespace {

constexpr char nullText[] = "{null}";
constexpr LONG middleId = 2;

HGField* IdColumn()
{
    return HGFieldCreate("Id", HFF_READONLY, 40, 0, 'n', 'l', 0, 0, 0, ' ', 0, "", 0);
}

HGField* NoteColumn()
{
    return HGFieldCreate("Note", 0, 60, 0, 's', 's', 0, 0, 8, 'e', 0, "", 0);
}

bool IsZero(const std::string& bytes)
{
    return bytes.find_first_not_of('\0') == std::string::npos;
}

bool IsBlank(const WalkRow& row)
{
    return row.flags == HGR_NEW && IsZero(row.bytes);
}

// What an edit control on its own makes of a text when it commits it.
std::string Committed(const HGField* field, const std::string& text)
{
    const std::string type = { '%', field->cClass, field->cType };
    const HWND        edit = CreateWindowExA(0, "HEdit", (type + (field->pszFormat ? field->pszFormat : "")).c_str(),
                                             WS_POPUP, 0, 0, 100, 20, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    std::string       value(static_cast<size_t>(field->cbSize), '\0');
    SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
    SendMessageA(edit, HEM_GETDATA, value.size(), reinterpret_cast<LPARAM>(value.data()));
    DestroyWindow(edit);
    return value;
}

std::string Describe(const WalkRow& row)
{
    std::string text = "flags " + std::to_string(row.flags) + ", bytes";
    for (const char c : row.bytes) {
        char part[8];
        std::snprintf(part, sizeof part, c > ' ' && c < 127 ? " %c" : " %02x", static_cast<unsigned char>(c));
        text += part;
    }
    return text;
}

} // namespace

WalkRows::WalkRows(const WalkEdit& edit) : edit_(edit), editedId_(edit.traits & inEntryRow ? 0 : middleId)
{
    for (LONG id = 1; id <= rowCount; ++id) {
        before_.push_back({ BytesOf(id, edit.values[0], "note"), 0 });
    }
    const WORD flags = Is(inEntryRow) ? HGR_NEW : 0;
    for (const std::string& value : edit.values) {
        edited_.push_back({ BytesOf(editedId_, value, Is(inEntryRow) ? "" : "note"), flags });
    }
    if (Is(inEntryRow)) {
        edited_[0].bytes.assign(edited_[0].bytes.size(), '\0'); // a blank row isn't null
    }
}

HGridData* WalkRows::MakeData(bool withRows) const
{
    const DWORD      style = HGS_ROWHEADERS | HGS_COLHEADERS | HGS_ROWDELETE;
    const DWORD      own = (Is(hasEntryRow) ? HGS_NEWROW : 0u) | (Is(keepsSelection) ? HGS_KEEPSEL : 0u);
    HGridData* const data = HGridCreate("walk", style | own, 0, 0, 20, 30, 20, 0);
    HGAddFld(data, IdColumn());
    HGAddFld(data, edit_.column());
    HGAddFld(data, NoteColumn());
    if (withRows) {
        InsertRows(data);
    }
    return data;
}

HGridData* WalkRows::MakeOtherData()
{
    HGridData* const data = HGridCreate("other", HGS_ROWHEADERS | HGS_COLHEADERS, 0, 0, 20, 30, 20, 0);
    HGAddFld(data, NoteColumn());
    HGAddFld(data, IdColumn());
    const std::string bytes(static_cast<size_t>(data->pRows->cbItem), '\0');
    other_.assign(2, { bytes, 0 });
    for (size_t i = 0; i < other_.size(); ++i) {
        HLListAdd(data->pRows, bytes.data());
    }
    replaced = true;
    otherData_ = data;
    return data;
}

void WalkRows::InsertRows(HGridData* data) const
{
    int place = 0;
    for (const WalkRow& row : before_) {
        HLListInsert(data->pRows, place++, row.bytes.data());
    }
}

std::string WalkRows::BytesOf(LONG id, const std::string& value, const char* note) const
{
    HGridData* const data = MakeData(false);
    HGField* const   field = HGGetField(data, editedCol);
    std::string      bytes(static_cast<size_t>(data->pRows->cbItem), '\0');
    char* const      cellFlags = bytes.data() + bytes.size() + (HGColToPos(data, editedCol) - HGColCount(data)) * 2;
    StoreAs<LONG>(bytes.data() + HGGetField(data, 0)->nOffset, id);
    std::strcpy(bytes.data() + HGGetField(data, noteCol)->nOffset, note);
    if (value != nullText) {
        const std::string committed = Committed(field, value);
        std::memcpy(bytes.data() + field->nOffset, committed.data(), committed.size());
    }
    StoreAs<WORD>(cellFlags, value == nullText);
    HGridDestroy(data);
    return bytes;
}

std::vector<WalkRow> WalkRows::Loaded(const HGridCtl* ctl) const
{
    std::vector<WalkRow> rows;
    const size_t         size = static_cast<size_t>(ctl->pData->pRows->cbItem);
    for (int row = 0; row < HGRowCount(ctl->pData); ++row) {
        void* const node = HGRowNode(ctl->pData, row);
        const WORD  flags = static_cast<WORD>(HGNodeFlags(node) & ~HGR_PRESET);
        rows.push_back({ std::string(reinterpret_cast<const char*>(HGNodeData(node)), size), flags });
    }
    return rows;
}

// The column of the numbers is the first in the row, too.
LONG WalkRows::IdOf(const std::string& bytes) const
{
    return LoadAs<LONG>(bytes.data());
}

LONG WalkRows::IdAt(const HGridCtl* ctl, int place) const
{
    const BYTE* const row = HGRowData(ctl->pData, place);
    return row ? LoadAs<LONG>(row) : -1;
}

int WalkRows::PlaceOf(const HGridCtl* ctl, LONG id) const
{
    const std::vector<WalkRow> rows = Loaded(ctl);
    const auto found = std::ranges::find_if(rows, [&](const WalkRow& row) { return IdOf(row.bytes) == id; });
    return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

void WalkRows::Begin()
{
    complaints.clear();
    gone.clear();
    emptied = replaced = attaching = hasLast_ = false;
    takesCells = takesRows = true;
    last_.clear();
    records_.clear();
    for (const WalkRow& row : before_) {
        records_.push_back(row.bytes);
    }
}

void WalkRows::Complain(const std::string& what)
{
    constexpr size_t enough = 1000;
    if (complaints.size() < enough) {
        complaints += "    " + what + "\n";
    }
}

// A written row is marked until the source has taken it. A row without the mark is as before, or the source's own.
int WalkRows::ValueOf(const WalkRow& row) const
{
    for (int i = LastValue(); i >= 0; --i) {
        const WalkRow& state = edited_[static_cast<size_t>(i)];
        const bool     marked = row.flags == (state.flags | HGR_DIRTY);
        const bool     taken = Is(onRecords) && (row.flags == state.flags || row.flags == 0);
        const bool     flagsFit = i == 0 ? row.flags == state.flags : marked || taken;
        if (row.bytes == state.bytes && flagsFit) {
            return i;
        }
    }
    return -1;
}

bool WalkRows::IsAllowed(const WalkRow& row) const
{
    const LONG id = IdOf(row.bytes);
    if (id == editedId_ && !IsBlank(row)) {
        return ValueOf(row) >= 0;
    }
    if (id == 0) {
        return IsBlank(row) && Is(hasEntryRow);
    }
    return id > 0 && id <= rowCount && row == before_[static_cast<size_t>(id - 1)];
}

bool WalkRows::IsAllowedRecord(const std::string& bytes) const
{
    const LONG id = IdOf(bytes);
    if (id == editedId_) {
        return std::ranges::any_of(edited_, [&](const WalkRow& state) { return state.bytes == bytes; });
    }
    return id > 0 && id <= rowCount && bytes == before_[static_cast<size_t>(id - 1)].bytes;
}

// No row is there twice, and none is missing that the host hasn't taken away. A block needn't hold all records.
void WalkRows::LookAtCounts(const std::vector<WalkRow>& rows, const std::string& when)
{
    std::map<LONG, int> counts;
    int                 blanks = 0;
    for (const WalkRow& row : rows) {
        blanks += IsBlank(row);
        counts[IdOf(row.bytes)] += !IsBlank(row);
    }
    for (LONG id = 0; id <= rowCount; ++id) {
        const bool mayMiss = Is(onRecords) || emptied || id == 0 || gone.contains(id);
        if (counts[id] > 1 || (counts[id] == 0 && !mayMiss)) {
            Complain(when + ": row " + std::to_string(id) + " is there " + std::to_string(counts[id]) + " times");
        }
    }
    if (blanks > 1) {
        Complain(when + ": " + std::to_string(blanks) + " blank rows");
    }
}

void WalkRows::Look(const HGridCtl* ctl, const std::string& when)
{
    const std::vector<WalkRow> rows = Loaded(ctl);
    // The old columns end their controls, and tell of it, while the old record is still the grid's.
    if (replaced && ctl->pData == otherData_) {
        if (rows != other_) {
            Complain(when + ": the rows of the other data have changed");
        }
        return;
    }
    for (const WalkRow& row : rows) {
        if (!IsAllowed(row)) {
            Complain(when + ": row " + std::to_string(IdOf(row.bytes)) + " has " + Describe(row));
        }
        const bool isRecord = Is(onRecords) && row.flags == 0 && !gone.contains(IdOf(row.bytes));
        if (isRecord && std::ranges::find(records_, row.bytes) == records_.end()) {
            Complain(when + ": row " + std::to_string(IdOf(row.bytes)) + " isn't marked and no record of the source");
        }
    }
    LookAtCounts(rows, when);
    LookAtRecords(when);
}

// The records keep their order, the new one comes last.
void WalkRows::LookAtRecords(const std::string& when)
{
    LONG lastId = 0;
    bool hasNew = false;
    for (const std::string& bytes : records_) {
        const LONG id = IdOf(bytes);
        if (!IsAllowedRecord(bytes) || hasNew || (id != 0 && id <= lastId)) {
            Complain(when + ": record " + std::to_string(id) + " has " + Describe({ bytes, 0 }));
        }
        hasNew = id == 0;
        lastId = id;
    }
}

void WalkRows::KeepLast(const HGridCtl* ctl)
{
    last_ = Loaded(ctl);
    hasLast_ = true;
}

int WalkRows::FinalValue() const
{
    int value = Is(inEntryRow) ? 0 : -1;
    for (const WalkRow& row : last_) {
        if (IdOf(row.bytes) == editedId_ && !Is(onRecords)) {
            value = std::max(value, ValueOf(row));
        }
    }
    for (const std::string& bytes : records_) {
        if (IdOf(bytes) == editedId_ && Is(onRecords)) {
            value = std::max(value, ValueOf({ bytes, edited_[0].flags }));
        }
    }
    return value;
}

// No host appends a blank record. A grid that is given new data while it has a source asks for its entry row, though.
bool WalkRows::Append(const std::string& bytes)
{
    if (IsZero(bytes)) {
        if (!attaching) {
            Complain("a blank record is to be appended");
        }
        return false;
    }
    if (takesRows) {
        records_.push_back(bytes);
    }
    return takesRows;
}

int WalkRows::AnswerSource(int operation, int record, void* buffer)
{
    const size_t      size = before_[0].bytes.size();
    const bool        exists = record >= 0 && record < static_cast<int>(records_.size());
    const bool        hasRow = operation != HGSRC_COUNT && operation != HGSRC_CELL;
    const std::string row = hasRow ? std::string(static_cast<const char*>(buffer), size) : "";
    switch (operation) {
    case HGSRC_CELL:  return !takesCells;
    case HGSRC_COUNT: return static_cast<int>(records_.size());
    case HGSRC_FETCH:
        if (exists) {
            std::memcpy(buffer, records_[static_cast<size_t>(record)].data(), size);
        }
        return exists;
    case HGSRC_DELETE:
        if (exists) {
            records_.erase(records_.begin() + record);
        }
        return exists;
    case HGSRC_UPDATE:
    case HGSRC_WRITEBACK:
        if (exists && takesRows) {
            records_[static_cast<size_t>(record)] = row;
        }
        return exists && takesRows;
    case HGSRC_APPEND: return Append(row);
    default:           return 0;
    }
}
