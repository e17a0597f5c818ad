// The frame window: a grid above a status line, sorting by a click on a column header.
#include "window.h"

#include <commctrl.h>

namespace {

constexpr const char* frameClass = "WildlifeStrikes";
constexpr INT_PTR     gridId = 100;
constexpr INT_PTR     statusId = 101;
constexpr UINT        sortMessage = WM_APP; // wParam: column
constexpr int         frameWidth = 1240;
constexpr int         frameHeight = 720;
constexpr int         recordPartWidth = 220;
constexpr int         allOrNone = -1;
constexpr COLORREF    faceColor = RGB(233, 239, 246);   // headers, lines and every second row
constexpr COLORREF    stripeColor = RGB(255, 255, 255); // the rows between
constexpr COLORREF    selectColor = RGB(190, 209, 234); // headers of the current row and column

// The one frame of the program.
struct Frame {
    HWND  grid = nullptr;
    HWND  status = nullptr;
    HFONT font = nullptr;
    int   records = 0;
    bool  sorting = true;
    int   sortedColumn = allOrNone;
    bool  ascending = true;
};
Frame frame;

struct Cell {
    int column;
    int row;
};

Cell CellOf(LRESULT packed)
{
    return { static_cast<short>(LOWORD(packed)), static_cast<short>(HIWORD(packed)) };
}

HFONT MessageFont()
{
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return CreateFontIndirectA(&metrics.lfMessageFont);
}

void Layout(HWND hwnd)
{
    RECT client;
    RECT status;
    GetClientRect(hwnd, &client);
    SendMessageA(frame.status, WM_SIZE, 0, 0);
    GetWindowRect(frame.status, &status);
    const int height = client.bottom - (status.bottom - status.top);
    MoveWindow(frame.grid, 0, 0, client.right, height > 0 ? height : 0, TRUE);
    const int parts[] = { recordPartWidth, allOrNone };
    SendMessageA(frame.status, SB_SETPARTS, 2, reinterpret_cast<LPARAM>(parts));
}

void ShowRecord()
{
    const Cell    cell = CellOf(SendMessageA(frame.grid, HGM_GETCURSOR, 0, 0));
    const LRESULT record = cell.row + SendMessageA(frame.grid, HGM_GETROWBASE, 0, 0) + 1;
    char          text[64];
    wsprintfA(text, "Record %ld of %ld", static_cast<long>(record), static_cast<long>(frame.records));
    SendMessageA(frame.status, SB_SETTEXTA, 0, reinterpret_cast<LPARAM>(text));
}

// A move to a column's header asks for sorting; the current cell stays where it is.
void OnMoving()
{
    const Cell proposed = CellOf(SendMessageA(frame.grid, HGM_GETPROPOSED, 0, 0));
    if (!frame.sorting || proposed.row != allOrNone || proposed.column < 0) {
        return;
    }
    const LRESULT current = SendMessageA(frame.grid, HGM_GETCURSOR, 0, 0);
    SendMessageA(frame.grid, HGM_SETPROPOSED, 0, current);
    PostMessageA(GetParent(frame.grid), sortMessage, static_cast<WPARAM>(proposed.column), 0);
}

void Sort(int column)
{
    constexpr LPARAM none = 0xFFFF;
    frame.ascending = frame.sortedColumn != column || !frame.ascending;
    frame.sortedColumn = column;
    SendMessageA(frame.grid, HGM_SORT, MAKEWPARAM(column, frame.ascending), 0);
    SendMessageA(frame.grid, HGM_SETSORTCOL, 0, frame.ascending ? column : none);
    SendMessageA(frame.grid, HGM_SETSORTCOL2, 0, frame.ascending ? none : column);
    SendMessageA(frame.grid, HGM_REFRESH, TRUE, 0);
}

void OnNotification(int code)
{
    switch (code) {
    case HGN_MOVING: OnMoving(); break;
    case HGN_MOVED:
    case HGN_LAYOUT: ShowRecord(); break;
    default:         break;
    }
}

LRESULT CALLBACK FrameProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SIZE:       Layout(hwnd); return 0;
    case WM_SETFOCUS:   SetFocus(frame.grid); return 0;
    case WM_GETFONT:    return reinterpret_cast<LRESULT>(frame.font);
    case WM_ERASEBKGND: return 1;
    case WM_MOUSEWHEEL: return SendMessageA(frame.grid, message, wParam, lParam);
    case sortMessage:   Sort(static_cast<int>(wParam)); return 0;
    case WM_COMMAND:
        if (frame.grid && LOWORD(wParam) == gridId) {
            OnNotification(HIWORD(wParam));
        }
        return 0;
    case WM_DESTROY:
        PostQuitMessage(0);
        return 0;
    default: return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

void RegisterFrame(HINSTANCE instance)
{
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = FrameProc;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    windowClass.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    windowClass.lpszClassName = frameClass;
    RegisterClassA(&windowClass);
}

} // namespace

HWND MakeFrame(const std::string& definition)
{
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    RegisterFrame(instance);
    SetGridBckgndColor(faceColor, stripeColor);
    SetGridSelectColor(selectColor);
    frame.font = MessageFont();
    const HWND hwnd = CreateWindowExA(0, frameClass, "Wildlife strikes", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN,
                                      CW_USEDEFAULT, CW_USEDEFAULT, frameWidth, frameHeight, nullptr, nullptr, instance,
                                      nullptr);
    if (!hwnd) {
        return nullptr;
    }
    frame.status = CreateWindowExA(0, STATUSCLASSNAMEA, "", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0, hwnd,
                                   reinterpret_cast<HMENU>(statusId), instance, nullptr);
    SendMessageA(frame.status, WM_SETFONT, reinterpret_cast<WPARAM>(frame.font), FALSE);
    // The grid finds its definition by its title, and takes its font from this window.
    frame.grid = CreateWindowExA(0, "HGrid", definition.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, frameWidth,
                                 frameHeight, hwnd, reinterpret_cast<HMENU>(gridId), instance, nullptr);
    Layout(hwnd);
    return frame.grid ? hwnd : nullptr;
}

HWND GridOf(HWND)
{
    return frame.grid;
}

void SetRecordCount(int count)
{
    frame.records = count;
    ShowRecord();
}

void AllowSorting(bool allowed)
{
    frame.sorting = allowed;
}

void TellStatus(HWND, const std::string& text)
{
    SendMessageA(frame.status, SB_SETTEXTA, 1, reinterpret_cast<LPARAM>(text.c_str()));
}
