// Reads comma-separated values, one character after the other.
#include "csv.h"

#include <cstddef>
#include <cstdio>

namespace {

// Where the reader stands, and the field and row that it is filling.
struct Reader {
    std::vector<CsvRow> rows;
    CsvRow              row;
    std::string         field;
    bool                quoted = false; // inside quotes
    bool                begun = false;  // the row has something in it, if only an empty quoted field
    int                 line = 1;
};

void EndField(Reader& reader)
{
    reader.row.fields.push_back(reader.field);
    reader.field.clear();
}

void EndRow(Reader& reader)
{
    if (reader.begun) {
        EndField(reader);
        reader.rows.push_back(reader.row);
    }
    reader.row = CsvRow();
    reader.begun = false;
}

void Begin(Reader& reader)
{
    if (!reader.begun) {
        reader.begun = true;
        reader.row.line = reader.line;
    }
}

// One character inside quotes; gives how many characters it took.
size_t TakeQuoted(Reader& reader, char ch, char next)
{
    if (ch == '"' && next == '"') {
        reader.field += '"';
        return 2;
    }
    if (ch == '"') {
        reader.quoted = false;
    } else {
        reader.field += ch;
    }
    return 1;
}

void TakePlain(Reader& reader, char ch)
{
    if (ch == '\n') {
        EndRow(reader);
        return;
    }
    if (ch == '\r') {
        return;
    }
    Begin(reader);
    if (ch == ',') {
        EndField(reader);
    } else if (ch == '"' && reader.field.empty()) {
        reader.quoted = true;
    } else {
        reader.field += ch;
    }
}

} // namespace

std::vector<CsvRow> ParseCsv(const std::string& text)
{
    Reader reader;
    for (size_t i = 0; i < text.size();) {
        const char ch = text[i];
        if (reader.quoted) {
            i += TakeQuoted(reader, ch, i + 1 < text.size() ? text[i + 1] : '\0');
        } else {
            TakePlain(reader, ch);
            ++i;
        }
        reader.line += ch == '\n' ? 1 : 0;
    }
    EndRow(reader);
    return reader.rows;
}

CsvFile ReadCsv(const std::string& path)
{
    CsvFile file;
    std::FILE* const stream = std::fopen(path.c_str(), "rb");
    if (!stream) {
        file.error = "cannot be opened";
        return file;
    }
    std::string text;
    char        piece[4096];
    while (const size_t count = std::fread(piece, 1, sizeof piece, stream)) {
        text.append(piece, count);
    }
    if (std::ferror(stream)) {
        file.error = "cannot be read";
    }
    std::fclose(stream);
    file.rows = ParseCsv(text);
    return file;
}
