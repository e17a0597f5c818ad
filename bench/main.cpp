// Measures grid, edit and list against the platform's list-view, EDIT and LISTBOX in one run and prints the ratios:
// below 1 ours are quicker. Arguments name the parts to measure; without any, it is all of them.
#include "bench.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

HWND MakeParent()
{
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.lpszClassName = "BenchParent";
    RegisterClassA(&windowClass);
    const HWND parent = CreateWindowExA(0, "BenchParent", "Benchmark", WS_POPUP | WS_VISIBLE, 0, 0, windowWidth,
                                        windowHeight, nullptr, nullptr, windowClass.hInstance, nullptr);
    PumpMessages();
    return parent;
}

// Rounds change places, and the best of each counts: what else the machine does meanwhile slows one, not all.
bool RunRounds(HWND parent, const std::vector<std::string>& texts, Timings& grid, Timings& list)
{
    for (int round = 0; round < roundCount; ++round) {
        std::fprintf(stderr, "round %d of %d\n", round + 1, roundCount);
        list.TakeBetter(RunListView(parent, texts));
        grid.TakeBetter(RunGrid(parent, texts));
        if (grid.checksum != list.checksum) {
            return false;
        }
    }
    return true;
}

void PrintHead(const char* ours, const char* platform)
{
    std::printf("%-34s %10s %12s %8s\n", "milliseconds", ours, platform, "ratio");
}

void PrintRow(const char* what, double ours, double platform)
{
    std::printf("%-34s %10.3f %12.3f %8.3f\n", what, ours, platform, platform > 0 ? ours / platform : 0.0);
}

bool Tell(bool good, const char* problem)
{
    if (!good) {
        std::printf("%s\n", problem);
    }
    return good;
}

bool MeasureGrid(HWND parent, const std::vector<std::string>& texts)
{
    Timings    grid;
    Timings    list;
    const bool same = RunRounds(parent, texts, grid, list);
    std::printf("%d rows, %d columns, %d by %d pixels, best of %d rounds\n", rowCount, columnCount, windowWidth,
                windowHeight, roundCount);
    PrintHead("grid", "list-view");
    PrintRow("load all rows", grid.load, list.load);
    PrintRow("sort by a text column", grid.sort, list.sort);
    PrintRow("repaint the whole window", grid.paint, list.paint);
    return Tell(same, "the two controls don't hold the same texts in the same order");
}

bool MeasureEntry(HWND parent, const std::vector<std::string>& texts)
{
    EntryTimings ours;
    EntryTimings platform;
    RunEntry(parent, texts, &ours, &platform);
    PrintHead("grid", "list-view");
    PrintRow("one step down with its repaint", ours.step, platform.step);
    PrintHead("edit", "EDIT");
    PrintRow("one character with its repaint", ours.typing, platform.typing);
    const bool arrived = ours.step > 0 && platform.step > 0 && ours.typing > 0 && platform.typing > 0;
    return Tell(arrived, "not every character or step arrived");
}

bool MeasureList(HWND parent, bool sorted, const std::vector<std::string>& texts)
{
    ListTimings ours;
    ListTimings platform;
    const bool  same = RunLists(parent, sorted, texts, &ours, &platform);
    std::printf("%d texts, %s\n", listItemCount, sorted ? "sorted" : "in the order of their coming");
    PrintHead("list", "LISTBOX");
    PrintRow("add all at once and show", ours.add, platform.add);
    PrintRow("add 2,000 one by one, then show", ours.addSingly, platform.addSingly);
    PrintRow("find the last one", ours.find, platform.find);
    PrintRow("one page of scrolling", ours.scrollPage, platform.scrollPage);
    PrintRow("one row of scrolling", ours.scrollLine, platform.scrollLine);
    PrintRow("repaint the whole window", ours.paint, platform.paint);
    return Tell(same, "the two lists don't hold, find or reach the same items");
}

// Where a count grows twofold, n log n takes a little more than twice the time, and n squared four times.
void MeasureLoads(HWND parent, const std::vector<std::string>& texts)
{
    std::printf("%-34s %10s %12s\n", "load of a sorted list", "ms", "growth");
    double before = 0;
    for (const LoadTiming& load : RunLoads(parent, texts)) {
        std::printf("%-34d %10.3f", load.count, load.time);
        std::printf(before > 0 ? " %12.3f\n" : "\n", load.time / before);
        before = load.time;
    }
}

bool MeasureLists(HWND parent, const std::vector<std::string>& texts)
{
    const bool plain = MeasureList(parent, false, texts);
    const bool sorted = MeasureList(parent, true, texts);
    MeasureLoads(parent, texts);
    return plain && sorted;
}

struct Part {
    const char* name;
    bool (*measure)(HWND parent, const std::vector<std::string>& texts);
};
constexpr Part parts[] = { { "grid", MeasureGrid }, { "entry", MeasureEntry }, { "list", MeasureLists } };

bool IsWanted(const Part& part, int count, char** names)
{
    return count < 2 ||
           std::any_of(names + 1, names + count, [&](const char* name) { return !std::strcmp(name, part.name); });
}

} // namespace

int main(int count, char** names)
{
    WidgetsInit();
    const HWND                     parent = MakeParent();
    const std::vector<std::string> texts = MakeTexts();
    bool                           good = true;
    std::printf("%u-bit\n", static_cast<unsigned>(8 * sizeof(void*)));
    for (const Part& part : parts) {
        if (IsWanted(part, count, names)) {
            const double start = Milliseconds();
            good = part.measure(parent, texts) && good;
            std::fprintf(stderr, "%s: %.1f s\n", part.name, (Milliseconds() - start) / 1000);
            std::fflush(stdout);
        }
    }
    DestroyWindow(parent);
    return good ? 0 : 1;
}
