// The grid's side of the benchmark.
#include "bench.h"

namespace {

constexpr int textSize = 24;

unsigned Checksum(HWND grid)
{
    unsigned checksum = 0;
    char     text[textSize];
    for (int row = 0; row < rowCount; ++row) {
        HGGetCellText(grid, sortColumn, row, text, sizeof text);
        checksum = AddToChecksum(checksum, text);
    }
    return checksum;
}

} // namespace

HWND MakeGrid(HWND parent, DWORD gridStyle)
{
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_HSCROLL | HGS_COLHEADERS | gridStyle;
    const HWND grid = CreateWindowExA(0, "HGrid", "", style, 0, 0, windowWidth, windowHeight, parent, nullptr,
                                      GetModuleHandleA(nullptr), nullptr);
    for (int column = 0; column < columnCount; ++column) {
        HGField* const field = HGFieldCreate("Column", 0, columnWidth, 0, 's', 's', 0, 0, textSize, 'e', 0, "", 0);
        SendMessageA(grid, HGM_ADDFIELD, 0, reinterpret_cast<LPARAM>(field));
    }
    return grid;
}

void LoadGrid(HWND grid, const std::vector<std::string>& texts)
{
    for (int row = 0; row < rowCount; ++row) {
        SendMessageA(grid, HGM_ADDROW, 0, 0);
        for (int column = 0; column < columnCount; ++column) {
            HGSetCellText(grid, column, row, TextAt(texts, row, column).c_str());
        }
    }
    SendMessageA(grid, HGM_REFRESH, TRUE, 0);
}

Timings RunGrid(HWND parent, const std::vector<std::string>& texts)
{
    Timings    timings;
    const HWND grid = MakeGrid(parent, HGS_READONLY);
    PumpMessages();

    double start = Milliseconds();
    LoadGrid(grid, texts);
    timings.load = Milliseconds() - start;
    PumpMessages();

    start = Milliseconds();
    SendMessageA(grid, HGM_SORT, MAKEWPARAM(sortColumn, 1), 0);
    timings.sort = Milliseconds() - start;
    timings.checksum = Checksum(grid);
    PumpMessages();

    start = Milliseconds();
    for (int i = 0; i < paintCount; ++i) {
        InvalidateRect(grid, nullptr, TRUE);
        UpdateWindow(grid);
        GdiFlush();
    }
    timings.paint = (Milliseconds() - start) / paintCount;
    DestroyWindow(grid);
    return timings;
}
