// The frame window: a menu, a grid, a list of phases and a status line; what is done with the rows stands in table.cpp.
#include "window.h"

#include "code_lists.h"
#include "phases.h"
#include "table.h"

#include <algorithm>
#include <commctrl.h>
#include <iterator>

namespace {

constexpr const char* frameClass = "WildlifeStrikes";
constexpr INT_PTR     gridId = 100;
constexpr INT_PTR     statusId = 101;
constexpr INT_PTR     phasesId = 102;
constexpr INT_PTR     allId = 103; // buttons beside the phases
constexpr INT_PTR     noneId = 104;
constexpr int         saveId = 200;
constexpr int         exitId = 201;
constexpr int         newId = 202;
constexpr int         deleteId = 203;
constexpr int         countId = 204;
constexpr UINT        sortMessage = WM_APP; // wParam: column
constexpr int         frameWidth = 1240;
constexpr int         frameHeight = 720;
constexpr int         recordPartWidth = 220;
constexpr int         countPartWidth = 200;
constexpr int         captionWidth = 140; // beside the phases
constexpr int         phaseRows = 3;
constexpr int         allOrNone = -1;
constexpr int         recordPart = 0; // of the status line
constexpr int         countPart = 1;
constexpr int         tellPart = 2;
constexpr COLORREF    faceColor = RGB(233, 239, 246);   // headers, lines and every second row
constexpr COLORREF    stripeColor = RGB(255, 255, 255); // the rows between
constexpr COLORREF    selectColor = RGB(190, 209, 234); // headers of the current row and column

constexpr const char* frameTitle = "Wildlife strikes";

// The one frame of the program.
struct Frame {
    HWND   window = nullptr;
    HWND   grid = nullptr;
    HWND   status = nullptr;
    HWND   caption = nullptr; // beside the phases, above the buttons
    HWND   all = nullptr;
    HWND   none = nullptr;
    HWND   phases = nullptr;
    HFONT  font = nullptr;
    HACCEL shortcuts = nullptr;
    Table* table = nullptr; // null: the grid only shows
    int    records = 0;     // where there is no table
    int    sortedColumn = allOrNone;
    bool   ascending = true;
    bool   refused = false; // the edit that is ending had a value that can't be taken
};
Frame frame;

HFONT MessageFont()
{
    NONCLIENTMETRICSA metrics = {};
    metrics.cbSize = sizeof metrics;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    return CreateFontIndirectA(&metrics.lfMessageFont);
}

// Whole rows and the border: the list leaves the rest of a height free.
int PhasesHeight()
{
    constexpr int borders = 4;
    return phaseRows * static_cast<int>(SendMessageA(frame.phases, LB_GETITEMHEIGHT, 0, 0)) + borders;
}

// The caption above its two buttons, left of the phases.
void LayOutPanel(int top, int height)
{
    constexpr int buttonWidth = captionWidth / 2;
    const int     captionHeight = height / 2;
    MoveWindow(frame.caption, 0, top, captionWidth, captionHeight, TRUE);
    MoveWindow(frame.all, 0, top + captionHeight, buttonWidth, height - captionHeight, TRUE);
    MoveWindow(frame.none, buttonWidth, top + captionHeight, buttonWidth, height - captionHeight, TRUE);
}

void Layout(HWND hwnd)
{
    RECT client;
    RECT status;
    GetClientRect(hwnd, &client);
    SendMessageA(frame.status, WM_SIZE, 0, 0);
    GetWindowRect(frame.status, &status);
    const int strip = frame.table ? PhasesHeight() : 0;
    const int height = std::max<int>(client.bottom - (status.bottom - status.top) - strip, 0);
    MoveWindow(frame.grid, 0, 0, client.right, height, TRUE);
    LayOutPanel(height, strip);
    MoveWindow(frame.phases, captionWidth, height, std::max<int>(client.right - captionWidth, 0), strip, TRUE);
    const int parts[] = { recordPartWidth, recordPartWidth + countPartWidth, allOrNone };
    SendMessageA(frame.status, SB_SETPARTS, std::size(parts), reinterpret_cast<LPARAM>(parts));
}

void SetStatus(int part, const std::string& text)
{
    SendMessageA(frame.status, SB_SETTEXTA, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(text.c_str()));
}

void ShowCount()
{
    SetStatus(countPart, CountSelected(frame.phases, *frame.table));
}

void ShowRecord()
{
    const LRESULT record = CurrentCell(frame.grid).row + SendMessageA(frame.grid, HGM_GETROWBASE, 0, 0) + 1;
    const int     count = frame.table ? RecordCount(*frame.table) : frame.records;
    char          text[64];
    if (record > count) {
        wsprintfA(text, "New record, after %ld", static_cast<long>(count));
    } else {
        wsprintfA(text, "Record %ld of %ld", static_cast<long>(record), static_cast<long>(count));
    }
    SetStatus(recordPart, text);
}

void ShowChanged()
{
    const bool        changed = frame.table && frame.table->changed;
    const std::string title = std::string(frameTitle) + (changed ? " *" : "");
    SetWindowTextA(frame.window, title.c_str());
}

// A value that was refused keeps the current cell. A move to a column's header asks for sorting, and the current cell
// stays where it is, too.
void OnMoving()
{
    const Cell proposed = CellOf(SendMessageA(frame.grid, HGM_GETPROPOSED, 0, 0));
    const bool sorts = frame.table && proposed.row == allOrNone && proposed.column >= 0;
    if (!frame.refused && !sorts) {
        return;
    }
    SendMessageA(frame.grid, HGM_SETPROPOSED, 0, Packed(CurrentCell(frame.grid)));
    if (!frame.refused) {
        PostMessageA(frame.window, sortMessage, static_cast<WPARAM>(proposed.column), 0);
    }
    frame.refused = false;
}

void Sort(int column)
{
    constexpr LPARAM none = 0xFFFF;
    frame.ascending = frame.sortedColumn != column || !frame.ascending;
    frame.sortedColumn = column;
    SendMessageA(frame.grid, HGM_SORT, MAKEWPARAM(column, frame.ascending),
                 reinterpret_cast<LPARAM>(frame.table->order.data()));
    SendMessageA(frame.grid, HGM_SETSORTCOL, 0, frame.ascending ? column : none);
    SendMessageA(frame.grid, HGM_SETSORTCOL2, 0, frame.ascending ? none : column);
    SendMessageA(frame.grid, HGM_REFRESH, TRUE, 0);
    // Another record stands in the current cell now, and its editor is to show it.
    const Cell current = CurrentCell(frame.grid);
    if (current.row >= 0) {
        SendMessageA(frame.grid, HGM_SETCURSOR, FALSE, Packed(current));
    }
}

// False, and the reason in the status line, if what stands in the editor is no value of its column.
bool TakeEdit()
{
    const std::string problem = CheckEdit(frame.grid, *frame.table);
    frame.refused = !problem.empty();
    TellStatus(frame.refused ? problem + "; the value from before is back" : std::string());
    if (frame.refused) {
        MessageBeep(MB_ICONWARNING);
    }
    return !frame.refused;
}

// An editor loses the focus. What Esc takes back needs no check.
void OnEditBlur()
{
    if (GetKeyState(VK_ESCAPE) < 0) {
        TellStatus(std::string());
    } else {
        TakeEdit();
    }
    frame.table->editing = false;
}

// Ends an edit under way. False if its value can't be taken.
bool EndEdit()
{
    frame.refused = false;
    SendMessageA(frame.grid, WM_COMMAND, IDOK, 0);
    const bool taken = !frame.refused;
    frame.refused = false;
    return taken;
}

bool Save()
{
    if (!frame.table || !EndEdit()) {
        return false;
    }
    const std::string problem = SaveTable(*frame.table, frame.table->path);
    TellStatus(problem.empty() ? std::to_string(RecordCount(*frame.table)) + " rows saved to " + frame.table->path
                               : problem);
    ShowChanged();
    return problem.empty();
}

// False if the window is to stay.
bool MayClose()
{
    const bool ended = !frame.table || EndEdit();
    if (!ended || !frame.table || !frame.table->changed) {
        return ended;
    }
    const int answer = MessageBoxA(frame.window, "Save the changes?", frameTitle, MB_YESNOCANCEL | MB_ICONQUESTION);
    return answer == IDNO || (answer == IDYES && Save());
}

void DeleteSelected()
{
    if (frame.table && EndEdit()) {
        DeleteRows(frame.grid);
    }
}

// To the phases, and from there back to the grid.
void GoToPhases()
{
    if (frame.table) {
        SetFocus(GetFocus() == frame.phases ? frame.grid : frame.phases);
    }
}

void OnCommand(int id)
{
    switch (id) {
    case saveId:   Save(); break;
    case exitId:   SendMessageA(frame.window, WM_CLOSE, 0, 0); break;
    case newId:    SendMessageA(frame.grid, HGM_KEYNEW, 0, 0); break;
    case deleteId: DeleteSelected(); break;
    case countId:  GoToPhases(); break;
    default:       break;
    }
}

// A cell got another value. When the focus goes to another window, this comes before the editor's loss of it.
void OnCellValue()
{
    if (frame.table->editing && !TakeEdit()) {
        SendMessageA(frame.grid, WWM_CANCEL, 0, 0);
    } else {
        OnCellChanged(frame.grid, *frame.table);
    }
}

// What concerns changes only.
void OnEdit(int code)
{
    switch (code) {
    case HGN_CELLCHANGED: OnCellValue(); break;
    case HGN_NEWROW:      OnNewRow(frame.grid, *frame.table); break;
    case HGN_ROWDELETING: OnRowDeleting(frame.grid, *frame.table); break;
    case HGN_EDITBLUR:    OnEditBlur(); break;
    case HGN_EDITFOCUS:
        BeginEdit(frame.grid, *frame.table);
        frame.refused = false;
        TellStatus("Enter or Tab takes the text, Esc takes it back");
        break;
    default: return;
    }
    ShowRecord();
    ShowChanged();
    AddNewPhases(frame.phases, *frame.table);
    ShowCount();
}

void OnNotification(int code)
{
    switch (code) {
    case HGN_MOVING: OnMoving(); break;
    case HGN_MOVED:
    case HGN_LAYOUT:    ShowRecord(); break;
    case HGN_KILLFOCUS: frame.refused = false; break;
    default:
        if (IsEditable(frame.table)) {
            OnEdit(code);
        }
        break;
    }
}

// Keys that leave the phases.
void OnPhases(int code)
{
    if (code == HLN_ESCAPE || code == HLN_TAB || code == HLN_BACKTAB) {
        SetFocus(frame.grid);
    }
}

// What was selected of the phases, all of them or none, takes the place of the selection.
void OnSelectButton(int id, int code)
{
    if (code == HBN_CLICKED) {
        HLSelectItems(frame.phases, id == allId ? HLSEL_SET : HLSEL_CLEAR, HLI_ALL, 0, nullptr);
        ShowCount();
    }
}

void EnableCommands(HMENU menu)
{
    const UINT state = frame.table ? MF_ENABLED : MF_GRAYED;
    for (const int id : { saveId, newId, deleteId, countId }) {
        EnableMenuItem(menu, static_cast<UINT>(id), state);
    }
}

HMENU MakeMenu()
{
    const HMENU menu = CreateMenu();
    const HMENU file = CreatePopupMenu();
    const HMENU record = CreatePopupMenu();
    AppendMenuA(file, MF_STRING, saveId, "&Save\tCtrl+S");
    AppendMenuA(file, MF_STRING, exitId, "E&xit\tAlt+F4");
    AppendMenuA(record, MF_STRING, newId, "&New\tInsert");
    AppendMenuA(record, MF_STRING, deleteId, "&Delete\tDel");
    AppendMenuA(record, MF_STRING, countId, "Count by &phase\tF6");
    AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(file), "&File");
    AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(record), "&Record");
    return menu;
}

void OnFrameCommand(WPARAM wParam, LPARAM lParam)
{
    if (!lParam) {
        OnCommand(LOWORD(wParam));
    } else if (frame.grid && LOWORD(wParam) == gridId) {
        OnNotification(HIWORD(wParam));
    } else if (frame.phases && LOWORD(wParam) == phasesId) {
        OnPhases(HIWORD(wParam));
    } else if (LOWORD(wParam) == allId || LOWORD(wParam) == noneId) {
        OnSelectButton(LOWORD(wParam), HIWORD(wParam));
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
    case WM_COMMAND:    OnFrameCommand(wParam, lParam); return 0;
    case WM_INITMENUPOPUP: EnableCommands(reinterpret_cast<HMENU>(wParam)); return 0;
    case WM_CLOSE:
        if (MayClose()) {
            DestroyWindow(hwnd);
        }
        return 0;
    case WM_DESTROY: PostQuitMessage(0); return 0;
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

// A press leaves the focus where it is.
HWND MakeButton(HWND hwnd, const char* caption, INT_PTR id)
{
    const HWND button = CreateWindowExA(0, "HButt", caption, WS_CHILD | HBS_PUSH | HBS_NOFOCUS, 0, 0, 0, 0, hwnd,
                                        reinterpret_cast<HMENU>(id), GetModuleHandleA(nullptr), nullptr);
    SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(frame.font), FALSE);
    return button;
}

// Hidden until there are records to count.
void MakePanel(HWND hwnd)
{
    constexpr DWORD style = WS_CHILD | SS_CENTER | SS_CENTERIMAGE;
    frame.caption = CreateWindowExA(0, "STATIC", "Records by phase", style, 0, 0, 0, 0, hwnd, nullptr,
                                    GetModuleHandleA(nullptr), nullptr);
    SendMessageA(frame.caption, WM_SETFONT, reinterpret_cast<WPARAM>(frame.font), FALSE);
    frame.all = MakeButton(hwnd, "All", allId);
    frame.none = MakeButton(hwnd, "None", noneId);
    frame.phases = MakePhaseList(hwnd, phasesId, frame.font);
}

} // namespace

HWND MakeFrame(const std::string& definition)
{
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    RegisterFrame(instance);
    SetGridBckgndColor(faceColor, stripeColor);
    SetGridSelectColor(selectColor);
    frame.font = MessageFont();
    const HWND hwnd = CreateWindowExA(0, frameClass, frameTitle, WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                                      CW_USEDEFAULT, frameWidth, frameHeight, nullptr, MakeMenu(), instance, nullptr);
    if (!hwnd) {
        return nullptr;
    }
    frame.window = hwnd;
    frame.status = CreateWindowExA(0, STATUSCLASSNAMEA, "", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0, 0, hwnd,
                                   reinterpret_cast<HMENU>(statusId), instance, nullptr);
    SendMessageA(frame.status, WM_SETFONT, reinterpret_cast<WPARAM>(frame.font), FALSE);
    // The grid finds its definition by its title, and takes its font from this window.
    frame.grid = CreateWindowExA(0, "HGrid", definition.c_str(), WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, frameWidth,
                                 frameHeight, hwnd, reinterpret_cast<HMENU>(gridId), instance, nullptr);
    MakePanel(hwnd);
    if (!frame.grid || !frame.phases) {
        return nullptr;
    }
    FillCodeLists(frame.grid);
    ACCEL shortcuts[] = { { FVIRTKEY | FCONTROL, 'S', saveId }, { FVIRTKEY, VK_F6, countId } };
    frame.shortcuts = CreateAcceleratorTableA(shortcuts, std::size(shortcuts));
    Layout(hwnd);
    return hwnd;
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

void AllowEditing(Table& table)
{
    frame.table = &table;
    BeginEditing(frame.grid, table);
    ShowPhases(frame.phases, table);
    for (const HWND window : { frame.caption, frame.all, frame.none, frame.phases }) {
        ShowWindow(window, SW_SHOW);
    }
    Layout(frame.window);
    ShowCount();
}

void TellStatus(const std::string& text)
{
    SetStatus(tellPart, text);
}

bool TakeShortcut(HWND window, MSG& message)
{
    return TranslateAcceleratorA(window, frame.shortcuts, &message) != 0;
}

// The list tells of a new current item only, and a click may change what is selected without one.
void CountAfter(const MSG& message)
{
    const bool input = message.message == WM_LBUTTONUP || message.message == WM_KEYDOWN;
    if (frame.table && message.hwnd == frame.phases && input) {
        ShowCount();
    }
}
