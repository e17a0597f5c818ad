// The list of phases below the grid, and the counting of the records that belong to the selected ones.
#include "phases.h"

#include <algorithm>

namespace {

constexpr const char* phaseTitle = "Phase";

// The place of the phases among the columns; the number of columns if they have none.
size_t PhaseColumn(const Table& table)
{
    const auto isPhase = [](const Column& column) { return column.title == phaseTitle; };
    return static_cast<size_t>(std::find_if(table.columns.begin(), table.columns.end(), isPhase) -
                               table.columns.begin());
}

// Null for a record that was deleted, or has no phase.
const char* PhaseOf(const CsvRow& row, size_t column)
{
    const bool has = row.inFile && column < row.fields.size() && !row.fields[column].empty();
    return has ? row.fields[column].c_str() : nullptr;
}

} // namespace

HWND MakePhaseList(HWND parent, INT_PTR id, HFONT font)
{
    constexpr DWORD style = WS_CHILD | WS_TABSTOP | HLS_3DBORDER | HLS_SORTDATA | HLS_EXTSEL | HLS_MULTICOLUMN;
    const HWND      list = CreateWindowExA(0, "HList", "%ss", style, 0, 0, 0, 0, parent, reinterpret_cast<HMENU>(id),
                                           GetModuleHandleA(nullptr), nullptr);
    SendMessageA(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    return list;
}

void ShowPhases(HWND list, const Table& table)
{
    HLEmptyList(list);
    AddNewPhases(list, table);
    HLSelectItems(list, HLSEL_SET, HLI_ALL, 0, nullptr);
}

void AddNewPhases(HWND list, const Table& table)
{
    const size_t column = PhaseColumn(table);
    for (const DWORD place : table.order) {
        const char* const phase = PhaseOf(table.file.rows[place], column);
        if (phase && HLFindData(list, 0, phase) < 0) {
            HLAddItem(list, phase);
        }
    }
}

std::string CountSelected(HWND list, const Table& table)
{
    const size_t column = PhaseColumn(table);
    const auto   isSelected = [&](DWORD place) {
        const char* const phase = PhaseOf(table.file.rows[place], column);
        return phase && HLIsSelected(list, HLFindData(list, 0, phase));
    };
    const auto records = std::count_if(table.order.begin(), table.order.end(), isSelected);
    const long phases = static_cast<long>(SendMessageA(list, HLM_GETSELCOUNT, 0, 0));
    return std::to_string(records) + " records in " + std::to_string(phases) + (phases == 1 ? " phase" : " phases");
}
