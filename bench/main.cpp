// Measures grid and edit against the platform's list-view and EDIT control in one run and prints the ratios: below 1
// ours are quicker.
#include "bench.h"

#include <commctrl.h>
#include <cstdio>

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

void PrintRow(const char* what, double grid, double list)
{
    std::printf("%-34s %10.3f %12.3f %8.3f\n", what, grid, list, list > 0 ? grid / list : 0.0);
}

} // namespace

int main()
{
    WidgetsInit();
    const HWND parent = MakeParent();
    const std::vector<std::string> texts = MakeTexts();
    Timings grid;
    Timings list;
    const bool same = RunRounds(parent, texts, grid, list);
    EntryTimings ours;
    EntryTimings platform;
    RunEntry(parent, texts, &ours, &platform);
    DestroyWindow(parent);

    std::printf("%d rows, %d columns, %d by %d pixels, %u-bit, best of %d rounds\n", rowCount, columnCount, windowWidth,
                windowHeight, static_cast<unsigned>(8 * sizeof(void*)), roundCount);
    std::printf("%-34s %10s %12s %8s\n", "milliseconds", "grid", "list-view", "ratio");
    PrintRow("load all rows", grid.load, list.load);
    PrintRow("sort by a text column", grid.sort, list.sort);
    PrintRow("repaint the whole window", grid.paint, list.paint);
    PrintRow("one step down with its repaint", ours.step, platform.step);
    std::printf("%-34s %10s %12s %8s\n", "", "edit", "EDIT", "ratio");
    PrintRow("one character with its repaint", ours.typing, platform.typing);
    if (ours.step == 0 || platform.step == 0 || ours.typing == 0 || platform.typing == 0) {
        std::printf("not every character or step arrived\n");
        return 1;
    }
    if (!same) {
        std::printf("the two controls don't hold the same texts in the same order\n");
        return 1;
    }
    return 0;
}
