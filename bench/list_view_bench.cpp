// The list-view's side of the benchmark: report view, texts stored in the control, sorted by the host's callback.
#include "bench.h"


#include <commctrl.h>

namespace {

void SetText(HWND list, int row, int column, const std::string& text)
{
    LVITEMA item = {};
    item.iSubItem = column;
    item.pszText = const_cast<char*>(text.c_str());
    SendMessageA(list, LVM_SETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
}

} // namespace

HWND MakeListView(HWND parent)
{
    constexpr DWORD style = WS_CHILD | WS_VISIBLE | LVS_REPORT;
    const HWND list = CreateWindowExA(0, WC_LISTVIEWA, "", style, 0, 0, windowWidth, windowHeight, parent, nullptr,
                                      GetModuleHandleA(nullptr), nullptr);
    for (int column = 0; column < columnCount; ++column) {
        LVCOLUMNA info = {};
        char      title[] = "Column";
        info.mask = LVCF_TEXT | LVCF_WIDTH;
        info.cx = columnWidth;
        info.pszText = title;
        SendMessageA(list, LVM_INSERTCOLUMNA, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&info));
    }
    return list;
}

// As its documentation advises for many rows: room for them at once, and nothing drawn until all are there.
void LoadListView(HWND list, const std::vector<std::string>& texts)
{
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    SendMessageA(list, LVM_SETITEMCOUNT, rowCount, 0);
    for (int row = 0; row < rowCount; ++row) {
        LVITEMA item = {};
        item.mask = LVIF_TEXT | LVIF_PARAM;
        item.iItem = row;
        item.lParam = row;
        item.pszText = const_cast<char*>(TextAt(texts, row, 0).c_str());
        SendMessageA(list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
        for (int column = 1; column < columnCount; ++column) {
            SetText(list, row, column, TextAt(texts, row, column));
        }
    }
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

namespace {

// The host has the texts at hand, which is the quickest that a callback can be.
int CALLBACK Compare(LPARAM a, LPARAM b, LPARAM texts)
{
    const std::vector<std::string>& all = *reinterpret_cast<const std::vector<std::string>*>(texts);
    return _stricmp(TextAt(all, static_cast<int>(a), sortColumn).c_str(),
                    TextAt(all, static_cast<int>(b), sortColumn).c_str());
}

unsigned Checksum(HWND list)
{
    unsigned checksum = 0;
    char     text[64];
    for (int row = 0; row < rowCount; ++row) {
        LVITEMA item = {};
        item.iSubItem = sortColumn;
        item.pszText = text;
        item.cchTextMax = sizeof text;
        SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
        checksum = AddToChecksum(checksum, text);
    }
    return checksum;
}

} // namespace

Timings RunListView(HWND parent, const std::vector<std::string>& texts)
{
    Timings    timings;
    const HWND list = MakeListView(parent);
    PumpMessages();

    double start = Milliseconds();
    LoadListView(list, texts);
    timings.load = Milliseconds() - start;
    PumpMessages();

    start = Milliseconds();
    SendMessageA(list, LVM_SORTITEMS, reinterpret_cast<WPARAM>(&texts), reinterpret_cast<LPARAM>(Compare));
    timings.sort = Milliseconds() - start;
    timings.checksum = Checksum(list);
    PumpMessages();

    start = Milliseconds();
    for (int i = 0; i < paintCount; ++i) {
        InvalidateRect(list, nullptr, TRUE);
        UpdateWindow(list);
        GdiFlush();
    }
    timings.paint = (Milliseconds() - start) / paintCount;
    DestroyWindow(list);
    return timings;
}
