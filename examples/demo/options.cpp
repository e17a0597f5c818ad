// Reads the command line.
#include "options.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

const char* const usage =
    "usage: widgets_demo [--definition FILE.grs] [--csv FILE.csv] [--virtual N] [--report]\n"
    "  --definition FILE  columns of the grid; birdstrikes.grs beside the program\n"
    "  --csv FILE         rows of the grid; birdstrikes.csv beside the program\n"
    "  --virtual N        shows N generated records in place of the rows of a file\n"
    "  --report           loads, tells what could not be read, and leaves without a window\n";

namespace {

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

// An option with a value: false if it is no such option.
bool TakeValue(Options& options, const std::string& name, const char* value)
{
    if (name == "--definition") {
        options.definition = value;
        return true;
    }
    if (name == "--csv") {
        options.csv = value;
        return true;
    }
    if (name != "--virtual") {
        return false;
    }
    if (!ReadCount(value, &options.generated)) {
        options.error = std::string("--virtual takes a number of records, not \"") + value + "\"";
    }
    return true;
}

} // namespace

Options ReadOptions(int count, char** arguments, const std::string& folder)
{
    Options options;
    options.definition = folder + options.definition;
    options.csv = folder + options.csv;
    for (int i = 1; i < count && options.error.empty(); ++i) {
        const std::string name = arguments[i];
        if (name == "--report") {
            options.reportOnly = true;
        } else if (i + 1 < count && TakeValue(options, name, arguments[i + 1])) {
            ++i;
        } else {
            options.error = "cannot make sense of \"" + name + "\"";
        }
    }
    return options;
}
