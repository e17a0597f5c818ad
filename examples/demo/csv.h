// Reads comma-separated values: quotes may stand around a field, doubled inside it, and hold commas and line ends.
#pragma once

#include <string>
#include <vector>

struct CsvRow {
    int                      line = 0; // where the row begins, from 1
    std::vector<std::string> fields;
};

struct CsvFile {
    std::string         error; // why the file couldn't be read, or empty
    std::vector<CsvRow> rows;
};

CsvFile ReadCsv(const std::string& path);
// The rows of a text; a quote that is never closed ends with the text.
std::vector<CsvRow> ParseCsv(const std::string& text);
