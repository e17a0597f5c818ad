// Notes what changes in the grid and where that stands in the file. Rows keep their order there, sorted or not.
#include "table.h"

#include "csv_save.h"

#include <algorithm>
#include <cctype>

namespace {

Cell ProposedCell(HWND grid)
{
    return CellOf(SendMessageA(grid, HGM_GETPROPOSED, 0, 0));
}

CsvRow* RowOf(Table& table, int row)
{
    const bool known = row >= 0 && static_cast<size_t>(row) < table.order.size();
    return known ? &table.file.rows[table.order[static_cast<size_t>(row)]] : nullptr;
}

std::vector<char> ValueOf(HWND grid, const Column& column, Cell cell)
{
    std::vector<char> value;
    if (!HGIsCellNull(grid, cell.column, cell.row)) {
        value.resize(static_cast<size_t>(std::max(column.size, 0)) + 1);
        HGGetCellData(grid, cell.column, cell.row, value.data());
    }
    return value;
}

std::string WithoutThousands(const Column& column, std::string text)
{
    if (IsNumber(column)) {
        text.erase(std::remove(text.begin(), text.end(), WWGetIntlInfo()->chThousandSep), text.end());
    }
    return text;
}

// A value as the loader reads it: dates in the column's format, numbers without separators of thousands.
std::string FileText(HWND grid, const Column& column, Cell cell)
{
    const std::vector<char> value = ValueOf(grid, column, cell);
    char                    text[256] = {};
    if (column.list && !value.empty()) {
        return TextOfCode(column, value.data());
    }
    if (value.empty() || column.dataClass == 's') {
        return value.empty() ? std::string() : value.data();
    }
    // The form for editing is that of the default format for a date, and without rounding for a number.
    FormatData(value.data(), column.dataClass, column.dataType, column.format.c_str(), text, sizeof text, nullptr,
               IsNumber(column));
    return WithoutThousands(column, text);
}

// A write that is the program's own doing: it is no change, and makes no record of the entry row.
void WriteQuietly(HWND grid, Table& table, Cell cell, const void* value)
{
    const WPARAM row = static_cast<WPARAM>(cell.row);
    const bool   dirty = (SendMessageA(grid, HGM_GETROWFLAGS, row, 0) & HGR_DIRTY) != 0;
    SendMessageA(grid, HGM_SETSTYLEBITS, FALSE, HGS_NEWROW);
    table.watching = false;
    HGSetCellData(grid, cell.column, cell.row, value);
    table.watching = true;
    SendMessageA(grid, HGM_SETROWFLAGS, row, MAKELPARAM(dirty, HGR_DIRTY));
    SendMessageA(grid, HGM_SETSTYLEBITS, TRUE, HGS_NEWROW);
}

// An empty text is no value, and so are the bare separators over a cell that has none.
bool IsBlank(const Table& table, const std::string& text)
{
    const auto isDigit = [](char ch) { return std::isalnum(static_cast<unsigned char>(ch)) != 0; };
    return text.empty() || (table.before.empty() && std::none_of(text.begin(), text.end(), isDigit));
}

// Deleting all of a date or a number leaves the cell empty; a text may be longer than its column is wide.
void PrepareEditors(HWND grid, const std::vector<Column>& columns)
{
    for (size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].list) {
            continue;
        }
        const HWND    editor = reinterpret_cast<HWND>(SendMessageA(grid, HGM_GETFIELDCHILD, i, 0));
        const LRESULT style = SendMessageA(editor, WWM_GETSTYLE, 0, 0);
        const LRESULT scrolls = columns[i].dataClass == 's' ? HES_AUTOHSCROLL : 0;
        SendMessageA(editor, WWM_SETSTYLE, 0, style | HES_CLEARALL | scrolls);
    }
}

} // namespace

Cell CellOf(LRESULT packed)
{
    return { static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed)) };
}

LPARAM Packed(Cell cell)
{
    return MAKELPARAM(cell.column, cell.row);
}

Cell CurrentCell(HWND grid)
{
    return CellOf(SendMessageA(grid, HGM_GETCURSOR, 0, 0));
}

void BeginEditing(HWND grid, Table& table)
{
    PrepareEditors(grid, table.columns);
    table.watching = true;
    SendMessageA(grid, HGM_ADDROW, TRUE, 0);
    SendMessageA(grid, HGM_SETSTYLEBITS, FALSE, HGS_READONLY);
    SendMessageA(grid, HGM_REFRESH, TRUE, 0);
}

bool IsEditable(const Table* table)
{
    return table && table->watching;
}

int RecordCount(const Table& table)
{
    const auto inFile = [&](DWORD row) { return table.file.rows[row].inFile; };
    return static_cast<int>(std::count_if(table.order.begin(), table.order.end(), inFile));
}

void OnCellChanged(HWND grid, Table& table)
{
    const Cell    cell = ProposedCell(grid);
    CsvRow* const row = RowOf(table, cell.row);
    if (!table.watching || !row || cell.column < 0) {
        return;
    }
    const size_t column = static_cast<size_t>(cell.column);
    SetField(*row, column, FileText(grid, table.columns[column], cell));
    row->inFile = true;
    table.changed = true;
}

// A new row holds zeros. It is to show blank, and to stay the untouched entry row that it is.
void OnNewRow(HWND grid, Table& table)
{
    const int row = ProposedCell(grid).row;
    table.order.insert(table.order.begin() + row, static_cast<DWORD>(table.file.rows.size()));
    AppendBlankRow(table.file);
    for (size_t i = 0; i < table.columns.size(); ++i) {
        WriteQuietly(grid, table, { static_cast<int>(i), row }, nullptr);
    }
}

void OnRowDeleting(HWND grid, Table& table)
{
    const int     place = ProposedCell(grid).row;
    CsvRow* const row = RowOf(table, place);
    if (row) {
        row->inFile = false;
        table.order.erase(table.order.begin() + place);
        table.changed = true;
    }
}

void BeginEdit(HWND grid, Table& table)
{
    const Cell cell = CurrentCell(grid);
    table.editing = cell.column >= 0 && RowOf(table, cell.row);
    if (table.editing) {
        table.before = ValueOf(grid, table.columns[static_cast<size_t>(cell.column)], cell);
    }
}

std::string CheckEdit(HWND grid, Table& table)
{
    const Cell cell = CurrentCell(grid);
    if (!table.editing || cell.column < 0) {
        return std::string();
    }
    const size_t  position = static_cast<size_t>(cell.column);
    const Column& column = table.columns[position];
    if (column.list) {
        return std::string(); // it has no other values
    }
    const HWND        editor = reinterpret_cast<HWND>(SendMessageA(grid, HGM_GETFIELDCHILD, position, 0));
    char              typed[256] = {};
    std::vector<char> value;
    GetWindowTextA(editor, typed, sizeof typed);
    const std::string text = WithoutThousands(column, typed);
    const std::string problem = IsBlank(table, text) ? std::string() : ParseField(column, text, value);
    if (!problem.empty()) {
        WriteQuietly(grid, table, cell, table.before.empty() ? nullptr : table.before.data());
    }
    return problem.empty() ? problem : column.title + ": " + problem;
}

std::string SetCell(HWND grid, Table& table, Cell cell, const std::string& text)
{
    if (!IsEditable(&table)) {
        return "the rows cannot be changed";
    }
    if (cell.column < 0 || !RowOf(table, cell.row)) {
        return "there is no such cell";
    }
    const Column&     column = table.columns[static_cast<size_t>(cell.column)];
    std::vector<char> value;
    const std::string problem = text.empty() ? std::string() : ParseField(column, text, value);
    if (problem.empty()) {
        HGSetCellData(grid, cell.column, cell.row, text.empty() ? nullptr : value.data());
    }
    return problem;
}

void DeleteRows(HWND grid)
{
    const Cell current = CurrentCell(grid);
    if (current.column >= 0) {
        const Cell anchor = CellOf(SendMessageA(grid, HGM_GETANCHOR, 0, 0));
        SendMessageA(grid, HGM_SETCURSOR, FALSE, Packed({ -1, anchor.row }));
        SendMessageA(grid, HGM_SETCURSOR, TRUE, Packed({ -1, current.row }));
    }
    SendMessageA(grid, WM_KEYDOWN, VK_DELETE, 0);
}

std::string SaveTable(Table& table, const std::string& path)
{
    if (!IsEditable(&table)) {
        return path + ": cannot be saved: no file was loaded";
    }
    const std::string problem = SaveCsv(table.file, path);
    table.changed = table.changed && !problem.empty();
    return problem;
}
