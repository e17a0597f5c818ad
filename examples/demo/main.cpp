// A host of widgets.dll: shows reports of wildlife strikes from a file, or generated ones, in a grid.
#include "generated.h"
#include "loader.h"
#include "options.h"
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

// Dates stand in the file as year, month, day; numbers with a point.
void SetFormats()
{
    SetDefDateFormat("yyyy-mm-dd");
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

int FillGrid(HWND frame, const Options& options)
{
    if (options.generated >= 0) {
        AllowSorting(false);
        ShowGenerated(GridOf(frame), options.generated);
        SetRecordCount(options.generated);
        TellStatus(frame, std::to_string(options.generated) + " generated records");
        std::printf("%ld of %d generated records are loaded\n",
                    static_cast<long>(SendMessageA(GridOf(frame), HGM_GETROWCOUNT, 0, 0)), options.generated);
        return 0;
    }
    std::vector<Problem> problems;
    const DWORD          start = GetTickCount();
    const int            rows = LoadRows(GridOf(frame), options.csv, problems);
    std::printf("%d rows loaded in %lu ms, %u problems\n", rows, GetTickCount() - start,
                static_cast<unsigned>(problems.size()));
    TellProblems(problems);
    SetRecordCount(rows);
    TellStatus(frame, Summary(rows, options.csv.substr(FolderOf(options.csv.c_str()).size()), problems));
    return problems.empty() ? 0 : 1;
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
        TranslateMessage(&message);
        DispatchMessageA(&message);
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
    options.csv = FullPath(options.csv);
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
    const int result = FillGrid(frame, options);
    if (options.reportOnly) {
        DestroyWindow(frame);
        return result;
    }
    ShowWindow(frame, SW_SHOW);
    SetFocus(GridOf(frame));
    return RunLoop(frame);
}
