// Fills a grid from a file of comma-separated values, each field by the type of its column.
#include "loader.h"

#include "table.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

std::string ColumnText(HWND grid, size_t position, UINT lengthMessage, UINT textMessage)
{
    const LRESULT length = SendMessageA(grid, lengthMessage, position, 0);
    std::string   text(static_cast<size_t>(length) + 1, '\0');
    SendMessageA(grid, textMessage, position, reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<size_t>(length));
    return text;
}

bool LooksLikeNumber(const std::string& text)
{
    const char decimalSep = WWGetIntlInfo()->chDecimalSep;
    const size_t start = text[0] == '-' ? 1 : 0;
    int separators = 0;
    for (size_t i = start; i < text.size(); ++i) {
        separators += text[i] == decimalSep ? 1 : 0;
        if (text[i] != decimalSep && (text[i] < '0' || text[i] > '9')) {
            return false;
        }
    }
    return separators <= 1 && text.size() > start;
}

// A number that is too large for its type would be stored as another one.
bool HoldsNumber(const Column& column, const std::string& text, const std::vector<char>& bytes)
{
    const double wanted = StringToDouble(text.c_str());
    const double held = NumToDouble(bytes.data(), column.dataType);
    return std::fabs(wanted - held) <= 1e-6 * std::fabs(wanted);
}

std::string ItemText(HWND list, int item)
{
    const LRESULT length = SendMessageA(list, HLM_GETITEMTEXTLEN, static_cast<WPARAM>(item), 0);
    std::string   text(static_cast<size_t>(std::max<LRESULT>(length, 0)) + 1, '\0');
    SendMessageA(list, HLM_GETITEMTEXT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

// "Small, Medium or Large"
std::string ChoicesOf(HWND list)
{
    const int   count = static_cast<int>(SendMessageA(list, HLM_GETCOUNT, 0, 0));
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += (i == 0 ? "" : i == count - 1 ? " or " : ", ") + ItemText(list, i);
    }
    return text;
}

// What a text of the column should have been.
std::string Expected(const Column& column)
{
    if (column.list) {
        return ChoicesOf(column.list);
    }
    if (column.dataClass == 'd') {
        return "a date of the form " + column.format;
    }
    if (!IsNumber(column)) {
        return "a value of this column";
    }
    return column.dataType == 'w' ? "a whole number from 0 to 65535" : "a number that this column can hold";
}

// One row of the file on its way into the grid.
struct RowLoad {
    HWND                       grid;
    const std::string&         path;
    const std::vector<Column>& columns;
    const CsvRow&              source;
    int                        row;
    std::vector<Problem>&      problems;
};

void Report(const RowLoad& load, const std::string& column, const std::string& message)
{
    load.problems.push_back({ load.path, load.source.line, column, message });
}

void LoadField(const RowLoad& load, size_t index)
{
    const Column&      column = load.columns[index];
    const std::string& text = load.source.fields[index];
    if (text.empty()) {
        HGSetCellData(load.grid, static_cast<int>(index), load.row, nullptr);
        return;
    }
    std::vector<char> bytes;
    const std::string problem = ParseField(column, text, bytes);
    const bool        cut = column.dataClass == 's' && !column.list;
    if (!problem.empty()) {
        Report(load, column.title, problem);
    }
    const bool usable = problem.empty() || cut;
    HGSetCellData(load.grid, static_cast<int>(index), load.row, usable ? bytes.data() : nullptr);
}

void LoadRow(const RowLoad& load)
{
    const size_t expected = load.columns.size();
    const size_t found = load.source.fields.size();
    for (size_t i = 0; i < expected; ++i) {
        if (i < found) {
            LoadField(load, i);
        } else {
            HGSetCellData(load.grid, static_cast<int>(i), load.row, nullptr);
        }
    }
    if (found < expected) {
        Report(load, load.columns[found].title,
               "the row ends before this column: " + std::to_string(found) + " fields of " + std::to_string(expected));
    } else if (found > expected && expected > 0) {
        Report(load, load.columns.back().title,
               "the row goes on behind this column: " + std::to_string(found) + " fields for " +
                   std::to_string(expected) + " columns");
    }
}

bool CheckHeader(const std::string& path, const CsvFile& file, size_t columns, std::vector<Problem>& problems)
{
    if (!file.error.empty()) {
        problems.push_back({ path, 0, std::string(), file.error });
        return false;
    }
    if (file.rows.empty()) {
        problems.push_back({ path, 1, std::string(), "there is no line with the names of the columns" });
        return false;
    }
    const size_t found = file.rows[0].fields.size();
    if (found != columns) {
        problems.push_back({ path, file.rows[0].line, file.rows[0].fields[std::min(found - 1, columns)],
                             "the file has " + std::to_string(found) + " columns, the definition " +
                                 std::to_string(columns) });
    }
    return true;
}

// The list of a column whose cells store the codes of its items; null for another column.
HWND ListOf(HWND grid, size_t position)
{
    const bool stores = SendMessageA(grid, HGM_GETFIELDKIND, position, 0) == 'l' &&
                        (SendMessageA(grid, HGM_GETFIELDFLAGS, position, 0) & HFF_CODE);
    return stores ? reinterpret_cast<HWND>(SendMessageA(grid, HGM_GETFIELDCHILD, position, 0)) : nullptr;
}

} // namespace

std::string TextOf(const Problem& problem)
{
    std::string text = problem.file;
    if (problem.line > 0) {
        text += ", line " + std::to_string(problem.line);
    }
    if (!problem.column.empty()) {
        text += ", column \"" + problem.column + "\"";
    }
    return text + ": " + problem.message;
}

std::vector<Column> ColumnsOf(HWND grid)
{
    const size_t        count = static_cast<size_t>(SendMessageA(grid, HGM_GETCOLCOUNT, 0, 0));
    std::vector<Column> columns(count);
    for (size_t i = 0; i < count; ++i) {
        columns[i].title = ColumnText(grid, i, HGM_GETFIELDTITLELEN, HGM_GETFIELDTITLE);
        columns[i].format = ColumnText(grid, i, HGM_GETFIELDFORMATLEN, HGM_GETFIELDFORMAT);
        columns[i].dataClass = static_cast<char>(SendMessageA(grid, HGM_GETFIELDCLASS, i, 0));
        columns[i].dataType = static_cast<char>(SendMessageA(grid, HGM_GETFIELDTYPE, i, 0));
        columns[i].size = static_cast<int>(SendMessageA(grid, HGM_GETFIELDSIZE, i, 0));
        columns[i].list = ListOf(grid, i);
    }
    return columns;
}

bool IsNumber(const Column& column)
{
    return !column.list && std::strchr("cnz", column.dataClass) != nullptr;
}

std::string TextOfCode(const Column& column, const void* code)
{
    const int item = HLFindCode(column.list, 0, code);
    return item < 0 ? std::string() : ItemText(column.list, item);
}

std::string ParseField(const Column& column, const std::string& text, std::vector<char>& bytes)
{
    // Room for every fixed type, and for the text of any length.
    bytes.assign(std::max<size_t>(text.size() + 1, 64), '\0');
    if (IsNumber(column) && !LooksLikeNumber(text)) {
        return "\"" + text + "\" is not a number";
    }
    if (column.list) {
        const int  item = HLFindData(column.list, 0, text.c_str());
        const bool known = item >= 0 && HLGetCode(column.list, item, bytes.data());
        return known ? std::string() : "\"" + text + "\" is not " + Expected(column);
    }
    const char* const format = column.format.c_str();
    const int         failed = ParseData(bytes.data(), column.dataClass, column.dataType, format, text.c_str(), 0);
    if (failed || (IsNumber(column) && !HoldsNumber(column, text, bytes))) {
        return "\"" + text + "\" is not " + Expected(column);
    }
    if (column.dataClass == 's' && static_cast<int>(text.size()) >= column.size) {
        return "\"" + text + "\" is longer than the " + std::to_string(column.size - 1) + " characters of its column";
    }
    return std::string();
}

bool LoadRows(HWND grid, Table& table, std::vector<Problem>& problems)
{
    table.columns = ColumnsOf(grid);
    table.file = ReadCsv(table.path);
    const std::vector<CsvRow>& rows = table.file.rows;
    if (!CheckHeader(table.path, table.file, table.columns.size(), problems)) {
        return false;
    }
    for (size_t i = 1; i < rows.size(); ++i) {
        const LRESULT place = SendMessageA(grid, HGM_ADDROW, 0, 0);
        if (place < 1) {
            problems.push_back({ table.path, rows[i].line, std::string(), "the grid holds no more rows" });
            break;
        }
        table.order.push_back(static_cast<DWORD>(i));
        LoadRow({ grid, table.path, table.columns, rows[i], static_cast<int>(place) - 1, problems });
    }
    SendMessageA(grid, HGM_REFRESH, TRUE, 0);
    return true;
}
