// Writes comma-separated values back: what wasn't changed as it stood, byte for byte.
#pragma once

#include "csv.h"

// Gives a field of a row another text, with quotes where it needs them. A row that is too short grows.
void SetField(CsvRow& row, size_t column, const std::string& text);
// A row to go behind the others, with blank fields under all names of the first row. It isn't in the file yet.
void AppendBlankRow(CsvFile& file);

std::string CsvText(const CsvFile& file);
// Puts the text in place of the named file in one step, so that there is always one of both. Why not, or empty.
std::string SaveCsv(const CsvFile& file, const std::string& path);
