// What a user at the keyboard waits for: a typed character with its repaint, and a step down with the arrow key.
#include "bench.h"

#include <commctrl.h>

namespace {

constexpr int lineCount = 100;
constexpr int lineLength = 30; // characters before the field is emptied
constexpr int stepCount = 3000;
constexpr int stepsATurn = 50;
constexpr int fieldWidth = 300;
constexpr int fieldHeight = 24;

// Milliseconds of a line of typed characters, each with its repaint.
double TypeLine(HWND field)
{
    SetFocus(field);
    PumpMessages();
    SetWindowTextA(field, "");
    SendMessageA(field, EM_SETSEL, 0, 0);
    UpdateWindow(field);
    const double start = Milliseconds();
    for (int i = 0; i < lineLength; ++i) {
        SendMessageA(field, WM_CHAR, static_cast<WPARAM>('a' + i % 26), 1);
        UpdateWindow(field);
    }
    GdiFlush();
    return Milliseconds() - start;
}

HWND MakeField(HWND parent, const char* className, DWORD style, int top)
{
    return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, 10, top, fieldWidth, fieldHeight, parent,
                           nullptr, GetModuleHandleA(nullptr), nullptr);
}

// Of whole lines. None if the texts didn't arrive.
TurnTimes TypeLines(HWND parent)
{
    const HWND ours = MakeField(parent, "HEdit", HES_AUTOHSCROLL, 10);
    const HWND platform = MakeField(parent, "EDIT", ES_AUTOHSCROLL, 10 + 2 * fieldHeight);
    TurnTimes times;
    bool arrived = true;
    for (int line = 0; line < lineCount; ++line) {
        times.ours.push_back(TypeLine(ours));
        times.platform.push_back(TypeLine(platform));
        arrived = arrived && GetWindowTextLengthA(ours) == lineLength && GetWindowTextLengthA(platform) == lineLength;
    }
    DestroyWindow(ours);
    DestroyWindow(platform);
    return arrived ? times : TurnTimes();
}

// Milliseconds of some steps down, each with its repaint. The control is shown for that long.
double StepOn(HWND control, int count)
{
    ShowWindow(control, SW_SHOW);
    SetFocus(control);
    PumpMessages();
    UpdateWindow(control);
    const double start = Milliseconds();
    for (int i = 0; i < count; ++i) {
        SendMessageA(control, WM_KEYDOWN, VK_DOWN, 1);
        UpdateWindow(control);
    }
    GdiFlush();
    const double time = Milliseconds() - start;
    ShowWindow(control, SW_HIDE);
    return time;
}

HWND MakeSteppedList(HWND parent, const std::vector<std::string>& texts)
{
    const HWND list = MakeListView(parent);
    LoadListView(list, texts);
    LVITEMA item = {};
    item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    item.state = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageA(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    return list;
}

HWND MakeSteppedGrid(HWND parent, const std::vector<std::string>& texts)
{
    const HWND grid = MakeGrid(parent, 0);
    LoadGrid(grid, texts);
    SendMessageA(grid, HGM_SETCURSOR, 0, 0);
    return grid;
}

// Of stepsATurn steps each. None if the last row wasn't reached.
TurnTimes StepDown(HWND parent, const std::vector<std::string>& texts)
{
    const HWND list = MakeSteppedList(parent, texts);
    ShowWindow(list, SW_HIDE);
    const HWND grid = MakeSteppedGrid(parent, texts);
    ShowWindow(grid, SW_HIDE);
    TurnTimes times;
    for (int done = 0; done < stepCount; done += stepsATurn) {
        times.platform.push_back(StepOn(list, stepsATurn));
        times.ours.push_back(StepOn(grid, stepsATurn));
    }
    const LRESULT item = SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED);
    const LRESULT cell = SendMessageA(grid, HGM_GETCURSOR, 0, 0);
    DestroyWindow(list);
    DestroyWindow(grid);
    const bool arrived = item == stepCount && HIWORD(cell) == stepCount;
    return arrived ? times : TurnTimes();
}

} // namespace

void RunEntry(HWND parent, const std::vector<std::string>& texts, EntryTimings* ours, EntryTimings* platform)
{
    const TurnTimes lines = TypeLines(parent);
    const TurnTimes steps = StepDown(parent, texts);
    *ours = { Median(lines.ours) / lineLength, Median(steps.ours) / stepsATurn };
    *platform = { Median(lines.platform) / lineLength, Median(steps.platform) / stepsATurn };
}
