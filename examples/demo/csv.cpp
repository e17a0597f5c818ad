// Reads comma-separated values, one character after the other.
#include "csv.h"

#include <cstddef>
#include <cstdio>

namespace {

// Where the reader stands, and the field and row that it is filling.
struct Reader {
    const std::string& text;
    CsvFile            file;
    CsvRow             row;
    std::string        field;
    size_t             at = 0;         // the character under way
    size_t             start = 0;      // where the field begins
    bool               quoted = false; // inside quotes
    bool               begun = false;  // the row has something in it, if only an empty quoted field
    int                line = 1;
};

void EndField(Reader& reader)
{
    reader.row.fields.push_back(reader.field);
    reader.row.raw.push_back(reader.text.substr(reader.start, reader.at - reader.start));
    reader.field.clear();
    reader.start = reader.at + 1;
}

// The returns before a line's end belong to the end, not to the last field.
size_t ReturnsAtEnd(const std::string& text)
{
    size_t count = 0;
    while (count < text.size() && text[text.size() - 1 - count] == '\r') {
        ++count;
    }
    return count;
}

// At a line's end or the text's. A blank line goes to the end of the row above it.
void EndRow(Reader& reader)
{
    const std::string lineEnd = reader.text.substr(reader.at, 1);
    CsvFile&          file = reader.file;
    if (!reader.begun) {
        const std::string blank = reader.text.substr(reader.start, reader.at - reader.start) + lineEnd;
        (file.rows.empty() ? file.start : file.rows.back().end) += blank;
    } else {
        EndField(reader);
        std::string& last = reader.row.raw.back();
        const size_t returns = ReturnsAtEnd(last);
        reader.row.end = std::string(returns, '\r') + lineEnd;
        last.resize(last.size() - returns);
        file.rows.push_back(reader.row);
    }
    reader.row = CsvRow();
    reader.begun = false;
    reader.start = reader.at + 1;
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

CsvFile ParseCsv(const std::string& text)
{
    Reader reader{ text, {}, {}, {} };
    while (reader.at < text.size()) {
        const char ch = text[reader.at];
        if (reader.quoted) {
            reader.at += TakeQuoted(reader, ch, reader.at + 1 < text.size() ? text[reader.at + 1] : '\0');
        } else {
            TakePlain(reader, ch);
            ++reader.at;
        }
        reader.line += ch == '\n' ? 1 : 0;
    }
    if (reader.start < text.size() || reader.begun) {
        EndRow(reader);
    }
    return reader.file;
}

CsvFile ReadCsv(const std::string& path)
{
    std::FILE* const stream = std::fopen(path.c_str(), "rb");
    if (!stream) {
        return { "cannot be opened", {}, {} };
    }
    std::string text;
    char        piece[4096];
    while (const size_t count = std::fread(piece, 1, sizeof piece, stream)) {
        text.append(piece, count);
    }
    const bool failed = std::ferror(stream) != 0;
    std::fclose(stream);
    CsvFile file = ParseCsv(text);
    if (failed) {
        file.error = "cannot be read";
    }
    return file;
}
