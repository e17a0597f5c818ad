// Writes comma-separated values into a temporary file, which then takes the place of the old one.
#include "csv_save.h"

#include <windows.h>

namespace {

std::string LineEndOf(const CsvFile& file)
{
    const bool returns = !file.rows.empty() && file.rows[0].end.rfind("\r\n", 0) == 0;
    return returns ? "\r\n" : "\n";
}

std::string Quoted(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char ch : text) {
        quoted += ch == '"' ? "\"\"" : std::string(1, ch);
    }
    return quoted + "\"";
}

// A line with nothing on it would not be a row.
std::string Joined(const CsvRow& row)
{
    if (row.raw.size() == 1 && row.raw[0].empty()) {
        return "\"\"";
    }
    std::string text;
    for (size_t i = 0; i < row.raw.size(); ++i) {
        text += (i > 0 ? "," : "") + row.raw[i];
    }
    return text;
}

std::string Reason(DWORD error)
{
    char text[256] = {};
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text, sizeof text,
                   nullptr);
    std::string reason = text;
    reason.resize(reason.find_last_not_of(" .\r\n") + 1);
    return reason.empty() ? "error " + std::to_string(error) : reason;
}

std::string FolderOf(const std::string& path)
{
    const size_t slash = path.find_last_of("\\/");
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

// Writes all of a text to the disk. The error of the system, or 0.
DWORD WriteWhole(const char* path, const std::string& text)
{
    const HANDLE file = CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return GetLastError();
    }
    DWORD      written = 0;
    const bool done = WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
                      written == text.size() && FlushFileBuffers(file);
    const DWORD error = done ? 0 : GetLastError();
    CloseHandle(file);
    return done ? 0 : error ? error : ERROR_DISK_FULL;
}

// Within a folder a rename is one step: there is no moment without a whole file.
DWORD Replace(const std::string& path, const std::string& text)
{
    char temporary[MAX_PATH] = {};
    if (!GetTempFileNameA(FolderOf(path).c_str(), "csv", 0, temporary)) {
        return GetLastError();
    }
    DWORD error = WriteWhole(temporary, text);
    if (!error && !MoveFileExA(temporary, path.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        error = GetLastError();
    }
    if (error) {
        DeleteFileA(temporary);
    }
    return error;
}

} // namespace

void SetField(CsvRow& row, size_t column, const std::string& text)
{
    if (row.raw.size() <= column) {
        row.raw.resize(column + 1);
    }
    row.fields.resize(row.raw.size());
    row.fields[column] = text;
    row.raw[column] = Quoted(text);
}

void AppendBlankRow(CsvFile& file)
{
    CsvRow row;
    row.raw.resize(file.rows.empty() ? 1 : file.rows[0].raw.size());
    row.end = LineEndOf(file);
    row.inFile = false;
    file.rows.push_back(row);
}

std::string CsvText(const CsvFile& file)
{
    std::string text = file.start;
    bool        endless = false; // the last line of a file may have no end
    for (const CsvRow& row : file.rows) {
        if (row.inFile) {
            text += endless ? LineEndOf(file) : std::string();
            text += Joined(row) + row.end;
            endless = row.end.empty();
        }
    }
    return text;
}

std::string SaveCsv(const CsvFile& file, const std::string& path)
{
    const DWORD error = Replace(path, CsvText(file));
    return error ? path + ": cannot be saved: " + Reason(error) : std::string();
}
