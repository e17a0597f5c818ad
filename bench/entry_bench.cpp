// What a user at the keyboard waits for: a typed character with its repaint, and a step down with the arrow key.
#include "bench.h"

#include <commctrl.h>

#include <functional>

namespace {

constexpr int charCount = 4000;
constexpr int lineLength = 30; // characters before the field is emptied
constexpr int stepCount = 10000;
constexpr int fieldWidth = 300;
constexpr int fieldHeight = 24;

// Milliseconds of one WM_CHAR and the repaint behind it. 0 if the text didn't arrive.
double TypeInto(HWND field)
{
    SetFocus(field);
    PumpMessages();
    double time = 0;
    for (int done = 0; done < charCount; done += lineLength) {
        SetWindowTextA(field, "");
        SendMessageA(field, EM_SETSEL, 0, 0);
        UpdateWindow(field);
        const double start = Milliseconds();
        for (int i = 0; i < lineLength; ++i) {
            SendMessageA(field, WM_CHAR, static_cast<WPARAM>('a' + i % 26), 1);
            UpdateWindow(field);
        }
        GdiFlush();
        time += Milliseconds() - start;
        if (GetWindowTextLengthA(field) != lineLength) {
            return 0;
        }
    }
    return time / charCount;
}

double TypeIntoNew(HWND parent, const char* className, DWORD style)
{
    const HWND field = CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, 10, 10, fieldWidth, fieldHeight,
                                       parent, nullptr, GetModuleHandleA(nullptr), nullptr);
    const double time = TypeInto(field);
    DestroyWindow(field);
    return time;
}

// Milliseconds of one step down and the repaint behind it. 0 if the last row wasn't reached.
double StepDown(HWND control, const std::function<int()>& row)
{
    SetFocus(control);
    PumpMessages();
    UpdateWindow(control);
    const double start = Milliseconds();
    for (int i = 0; i < stepCount; ++i) {
        SendMessageA(control, WM_KEYDOWN, VK_DOWN, 1);
        UpdateWindow(control);
    }
    GdiFlush();
    const double time = Milliseconds() - start;
    return row() == stepCount ? time / stepCount : 0;
}

double StepThroughListView(HWND parent, const std::vector<std::string>& texts)
{
    const HWND list = MakeListView(parent);
    LoadListView(list, texts);
    LVITEMA item = {};
    item.stateMask = LVIS_FOCUSED | LVIS_SELECTED;
    item.state = LVIS_FOCUSED | LVIS_SELECTED;
    SendMessageA(list, LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&item));
    const double time = StepDown(list, [&] {
        return static_cast<int>(SendMessageA(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
    });
    DestroyWindow(list);
    return time;
}

double StepThroughGrid(HWND parent, const std::vector<std::string>& texts)
{
    const HWND grid = MakeGrid(parent, 0);
    LoadGrid(grid, texts);
    SendMessageA(grid, HGM_SETCURSOR, 0, 0);
    const double time = StepDown(grid, [&] {
        return static_cast<int>(HIWORD(SendMessageA(grid, HGM_GETCURSOR, 0, 0)));
    });
    DestroyWindow(grid);
    return time;
}

} // namespace

void RunEntry(HWND parent, const std::vector<std::string>& texts, EntryTimings* ours, EntryTimings* platform)
{
    platform->typing = TypeIntoNew(parent, "EDIT", ES_AUTOHSCROLL);
    ours->typing = TypeIntoNew(parent, "HEdit", HES_AUTOHSCROLL);
    platform->step = StepThroughListView(parent, texts);
    ours->step = StepThroughGrid(parent, texts);
}
