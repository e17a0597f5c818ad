// Reads the command line.
#include "options.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

const char* const usage =
    "usage: widgets_demo [--definition FILE.grs] [--csv FILE.csv] [--virtual N] [--report]\n"
    "                    [--set ROW COLUMN TEXT]... [--clear ROW COLUMN]... [--delete ROW]...\n"
    "                    [--save FILE.csv]\n"
    "  --definition FILE  columns of the grid; birdstrikes.grs beside the program\n"
    "  --csv FILE         rows of the grid; birdstrikes.csv beside the program\n"
    "  --virtual N        shows N generated records in place of the rows of a file\n"
    "  --report           loads, tells what could not be read, and leaves without a window\n"
    "  --set R COLUMN T   types T into a column of row R, from 1; the row behind the last adds one\n"
    "  --clear R COLUMN   empties a column of row R\n"
    "  --delete R         deletes row R as it then counts\n"
    "  --save FILE        saves the rows after these changes\n";

namespace {

// What an option takes; null when fewer arguments are left. The place moves behind them.
char** TakeArguments(int count, char** arguments, int* place, int wanted)
{
    if (*place + wanted >= count) {
        return nullptr;
    }
    char** const values = arguments + *place + 1;
    *place += wanted;
    return values;
}

bool ReadCount(const char* text, int* out)
{
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(text, &end, 10);
    if (errno || end == text || *end || value < 0 || value > INT_MAX - 2) {
        return false;
    }
    *out = static_cast<int>(value);
    return true;
}

void TakeRow(Options& options, const std::string& name, const char* text, Change change)
{
    if (!ReadCount(text, &change.row) || change.row < 1) {
        options.error = name + " takes the number of a row, from 1, not \"" + text + "\"";
    }
    options.changes.push_back(change);
}

void TakeGenerated(Options& options, const std::string& name, char** values)
{
    if (!ReadCount(values[0], &options.generated)) {
        options.error = name + " takes a number of records, not \"" + values[0] + "\"";
    }
}

struct OptionKind {
    const char* name;
    int         values;
    void (*take)(Options& options, const std::string& name, char** values);
};

// clang-format off
constexpr OptionKind optionKinds[] = {
    { "--report",     0, [](Options& options, const std::string&, char**) { options.reportOnly = true; } },
    { "--definition", 1, [](Options& options, const std::string&, char** values) { options.definition = values[0]; } },
    { "--csv",        1, [](Options& options, const std::string&, char** values) { options.csv = values[0]; } },
    { "--save",       1, [](Options& options, const std::string&, char** values) { options.save = values[0]; } },
    { "--virtual",    1, TakeGenerated },
    { "--set",        3, [](Options& options, const std::string& name, char** values) {
          TakeRow(options, name, values[0], { false, 0, values[1], values[2] }); } },
    { "--clear",      2, [](Options& options, const std::string& name, char** values) {
          TakeRow(options, name, values[0], { false, 0, values[1], {} }); } },
    { "--delete",     1, [](Options& options, const std::string& name, char** values) {
          TakeRow(options, name, values[0], { true, 0, {}, {} }); } },
};
// clang-format on

const OptionKind* FindOption(const std::string& name)
{
    for (const OptionKind& kind : optionKinds) {
        if (name == kind.name) {
            return &kind;
        }
    }
    return nullptr;
}

} // namespace

Options ReadOptions(int count, char** arguments, const std::string& folder)
{
    Options options;
    options.definition = folder + options.definition;
    options.csv = folder + options.csv;
    for (int i = 1; i < count && options.error.empty(); ++i) {
        const std::string       name = arguments[i];
        const OptionKind* const kind = FindOption(name);
        char** const            values = kind ? TakeArguments(count, arguments, &i, kind->values) : nullptr;
        if (values) {
            kind->take(options, name, values);
        } else {
            options.error = "cannot make sense of \"" + name + "\"";
        }
    }
    return options;
}
