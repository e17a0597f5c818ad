// Reads comma-separated values: quotes may stand around a field, doubled inside it, and hold commas and line ends.
#pragma once

#include <string>
#include <vector>

// A row keeps the bytes that it was read from: its raw fields, joined by commas, and its end are the file's own.
struct CsvRow {
    int                      line = 0;      // where the row begins, from 1
    std::vector<std::string> fields;        // what the fields mean
    std::vector<std::string> raw;           // how they stand in the file, with their quotes
    std::string              end;           // the line end, and the blank lines behind it
    bool                     inFile = true; // false for a row that was deleted, or not begun yet
};

struct CsvFile {
    std::string         error; // why the file couldn't be read, or empty
    std::string         start; // blank lines above the first row
    std::vector<CsvRow> rows;
};

CsvFile ReadCsv(const std::string& path);
// The rows of a text; a quote that is never closed ends with the text.
CsvFile ParseCsv(const std::string& text);
