// A host of widgets.dll: shows reports of wildlife strikes from a file, to be edited, or generated ones, in a grid.
#include "generated.h"
#include "loader.h"
#include "options.h"
#include "table.h"
#include "window.h"

#include <cstdio>

namespace {

constexpr UINT readyTimer = 1;

std::string FolderOf(const char* program)
{
    const std::string path = program;
    const size_t      slash = path.find_last_of("\\/");
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

std::string ProgramFolder()
{
    char path[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return FolderOf(path);
}

std::string NameOf(const std::string& path)
{
    return path.substr(FolderOf(path.c_str()).size());
}

// The grid looks for a definition by a short name, so the program goes where the definition stands.
std::string EnterFolderOf(const std::string& path)
{
    const std::string folder = FolderOf(path.c_str());
    if (!folder.empty()) {
        SetCurrentDirectoryA(folder.c_str());
    }
    return path.substr(folder.size());
}

std::string FullPath(const std::string& path)
{
    char full[MAX_PATH] = {};
    return GetFullPathNameA(path.c_str(), MAX_PATH, full, nullptr) ? full : path;
}

// What is wrong with a definition, or empty. A file that ends early gives the columns read so far.
std::string CheckDefinition(const std::string& name)
{
    HGridData* const data = HGridLoad(name.c_str(), nullptr);
    if (!data) {
        return "there is no grid definition in this file";
    }
    const int columns = data->pFields->cItems;
    HGridDestroy(data);
    return columns > 0 ? std::string() : "the grid definition has no columns";
}

// Dates stand in the file as year, month, day; numbers with a point. With one letter for month and day, an empty date
// can be typed with one digit or two; columns show dates in their own format.
void SetFormats()
{
    SetDefDateFormat("yyyy-m-d");
    SetDateSep('-');
    SetDecimalSep('.');
    SetThousandsSep(',');
}

void TellProblems(const std::vector<Problem>& problems)
{
    for (const Problem& problem : problems) {
        std::fprintf(stderr, "%s\n", TextOf(problem).c_str());
    }
}

std::string Summary(int rows, const std::string& file, const std::vector<Problem>& problems)
{
    const std::string loaded = std::to_string(rows) + " rows from " + file;
    if (problems.empty()) {
        return loaded;
    }
    const std::string more = problems.size() > 1 ? " (" + std::to_string(problems.size()) + " problems in all)" : "";
    return loaded + "; " + TextOf(problems.front()) + more;
}

int ShowGeneratedRecords(HWND frame, int count)
{
    ShowGenerated(GridOf(frame), count);
    SetRecordCount(count);
    TellStatus(std::to_string(count) + " generated records");
    std::printf("%ld of %d generated records are loaded\n",
                static_cast<long>(SendMessageA(GridOf(frame), HGM_GETROWCOUNT, 0, 0)), count);
    return 0;
}

int ShowFile(HWND frame, Table& table)
{
    std::vector<Problem> problems;
    const DWORD          start = GetTickCount();
    const bool           loaded = LoadRows(GridOf(frame), table, problems);
    const int            rows = static_cast<int>(table.order.size());
    std::printf("%d rows loaded in %lu ms, %u problems\n", rows, GetTickCount() - start,
                static_cast<unsigned>(problems.size()));
    TellProblems(problems);
    SetRecordCount(rows);
    if (loaded) {
        AllowEditing(table);
    }
    TellStatus(Summary(rows, NameOf(table.path), problems));
    return problems.empty() ? 0 : 1;
}

// What the command line wants changed, by the ways of the window. Why it can't be, or empty.
std::string MakeChange(HWND grid, Table& table, const Change& change)
{
    const int row = change.row - 1;
    if (!change.deletes) {
        const LRESULT column = SendMessageA(grid, HGM_FINDFIELD, 0, reinterpret_cast<LPARAM>(change.column.c_str()));
        return SetCell(grid, table, { static_cast<short>(column), row }, change.text);
    }
    if (row >= RecordCount(table)) {
        return "there is no such row";
    }
    SendMessageA(grid, HGM_SETCURSOR, FALSE, Packed({ -1, row }));
    DeleteRows(grid);
    return std::string();
}

// Stops at the first change that is refused, and then saves nothing.
bool MakeChanges(HWND grid, Table& table, const Options& options)
{
    for (const Change& change : options.changes) {
        const std::string problem = MakeChange(grid, table, change);
        if (!problem.empty()) {
            const std::string column = change.deletes ? std::string() : ", column \"" + change.column + "\"";
            std::fprintf(stderr, "row %d%s: %s\n", change.row, column.c_str(), problem.c_str());
            return false;
        }
    }
    const std::string problem = options.save.empty() ? std::string() : SaveTable(table, options.save);
    if (!problem.empty()) {
        std::fprintf(stderr, "%s\n", problem.c_str());
    }
    return problem.empty();
}

// Runs until the window is closed; tells when it has been painted for the first time.
int RunLoop(HWND frame)
{
    bool ready = false;
    SetTimer(frame, readyTimer, 100, nullptr);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        const bool painted = message.message == WM_TIMER && message.wParam == readyTimer;
        if (painted && !ready && !GetUpdateRect(GridOf(frame), nullptr, FALSE)) {
            ready = true;
            KillTimer(frame, readyTimer);
            std::printf("ready\n");
            std::fflush(stdout);
        }
        if (!TakeShortcut(frame, message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
            CountAfter(message);
        }
    }
    return 0;
}

int Fail(const std::string& message)
{
    std::fprintf(stderr, "%s\n", message.c_str());
    return 2;
}

} // namespace

int main(int count, char** arguments)
{
    Options options = ReadOptions(count, arguments, ProgramFolder());
    if (!options.error.empty()) {
        return Fail(options.error + "\n" + usage);
    }
    static Table table;
    table.path = FullPath(options.csv);
    options.save = options.save.empty() ? std::string() : FullPath(options.save);
    const std::string definition = FullPath(options.definition);
    const std::string name = EnterFolderOf(definition);
    const std::string wrong = CheckDefinition(name);
    if (!wrong.empty()) {
        return Fail(definition + ": " + wrong);
    }
    SetFormats();
    const HWND frame = MakeFrame(name);
    if (!frame) {
        return Fail("the window cannot be made");
    }
    const int  result =
        options.generated >= 0 ? ShowGeneratedRecords(frame, options.generated) : ShowFile(frame, table);
    const bool changed = MakeChanges(GridOf(frame), table, options);
    if (options.reportOnly) {
        DestroyWindow(frame);
        return changed ? result : 2;
    }
    ShowWindow(frame, SW_SHOW);
    SetFocus(GridOf(frame));
    return RunLoop(frame);
}
