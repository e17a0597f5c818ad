// The demo host as a process of its own.
#include "input/demo_process.h"

#include "support/input.h"

#include <commctrl.h>

namespace {

constexpr DWORD  limitMs = 20000;
constexpr DWORD  answerMs = 10000; // for one message
constexpr DWORD  lookMs = 5;       // between two looks at a condition
constexpr SIZE_T remoteSize = 4096;

std::string DemoPath()
{
    char path[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string own = path;
    return own.substr(0, own.find_last_of("\\/") + 1) + "widgets_demo.exe";
}

// Another process may be busy, or gone: nobody waits for it without end.
LRESULT AskWindow(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    DWORD_PTR result = 0;
    SendMessageTimeoutA(hwnd, message, wParam, lParam, SMTO_NORMAL, answerMs, &result);
    return static_cast<LRESULT>(result);
}

struct WindowSearch {
    const char* className;
    HWND        found;
};

BOOL CALLBACK TakeIfOfClass(HWND hwnd, LPARAM lParam)
{
    WindowSearch* const search = reinterpret_cast<WindowSearch*>(lParam);
    char                name[64] = "";
    GetClassNameA(hwnd, name, sizeof name);
    if (lstrcmpA(name, search->className) != 0 || !IsWindowVisible(hwnd)) {
        return TRUE;
    }
    search->found = hwnd;
    return FALSE;
}

HWND FindOfThread(DWORD threadId, const char* className)
{
    WindowSearch search = { className, nullptr };
    EnumThreadWindows(threadId, TakeIfOfClass, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

DemoProcess::DemoProcess(const std::string& arguments)
{
    Start(arguments);
    if (process_ && WaitFor([this] { return ReadsReady() || HasEnded(); }) && !HasEnded()) {
        FindWindows();
    }
}

DemoProcess::~DemoProcess()
{
    if (process_) {
        TerminateProcess(process_, 99);
        WaitForSingleObject(process_, limitMs);
        CloseHandle(process_);
    }
    if (output_) {
        CloseHandle(output_);
    }
}

void DemoProcess::Start(const std::string& arguments)
{
    SECURITY_ATTRIBUTES inherited = { sizeof inherited, nullptr, TRUE };
    HANDLE              writes = nullptr;
    CreatePipe(&output_, &writes, &inherited, 0);
    SetHandleInformation(output_, HANDLE_FLAG_INHERIT, 0);
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = writes;
    startup.hStdError = writes;
    PROCESS_INFORMATION started = {};
    std::string         command = "\"" + DemoPath() + "\" " + arguments;
    if (CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &started)) {
        CloseHandle(started.hThread);
        process_ = started.hProcess;
        threadId_ = started.dwThreadId;
        remote_ = VirtualAllocEx(process_, nullptr, remoteSize, MEM_COMMIT, PAGE_READWRITE);
    }
    CloseHandle(writes);
}

bool DemoProcess::ReadsReady()
{
    char  text[256];
    DWORD count = 0;
    while (PeekNamedPipe(output_, nullptr, 0, nullptr, &count, nullptr) && count > 0 &&
           ReadFile(output_, text, sizeof text, &count, nullptr)) {
        printed_.append(text, count);
    }
    return printed_.find("ready") != std::string::npos;
}

void DemoProcess::FindWindows()
{
    frame_ = FindOfThread(threadId_, "WildlifeStrikes");
    grid_ = FindWindowExA(frame_, nullptr, "HGrid", nullptr);
    phases_ = FindWindowExA(frame_, nullptr, "HList", nullptr);
    status_ = FindWindowExA(frame_, nullptr, STATUSCLASSNAMEA, nullptr);
    // The end of the program before gives the foreground to some window, and may come later than this one's start.
    ready_ = WaitFor([this] {
        if (GetForegroundWindow() != frame_) {
            SetForegroundWindow(frame_);
        }
        return GetForegroundWindow() == frame_ && Focus() == grid_;
    });
}

bool DemoProcess::WaitFor(const std::function<bool()>& condition)
{
    const DWORD start = GetTickCount();
    while (!condition()) {
        if (GetTickCount() - start >= limitMs) {
            return false;
        }
        // Messages of this thread, such as those that the system sends to all windows, must not keep others waiting.
        MsgWaitForMultipleObjects(0, nullptr, FALSE, lookMs, QS_SENDMESSAGE);
        MSG message;
        PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE);
    }
    return true;
}

int DemoProcess::ExitCode() const
{
    DWORD code = 0;
    GetExitCodeProcess(process_, &code);
    return static_cast<int>(code);
}

LRESULT DemoProcess::Ask(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return AskWindow(grid_, message, wParam, lParam);
}

LRESULT DemoProcess::AskPhases(UINT message, WPARAM wParam) const
{
    return AskWindow(phases_, message, wParam, 0);
}

HWND DemoProcess::Focus() const
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(threadId_, &info);
    return info.hwndFocus;
}

HWND DemoProcess::Editor() const
{
    return reinterpret_cast<HWND>(Ask(HGM_GETFIELDCHILD, static_cast<WPARAM>(Current().col)));
}

HWND DemoProcess::Dialog() const
{
    return FindOfThread(threadId_, "#32770");
}

CellAt DemoProcess::Current() const
{
    return UnpackCellAt(Ask(HGM_GETCURSOR));
}

std::string DemoProcess::RemoteText(HWND hwnd, UINT message, WPARAM wParam) const
{
    char text[remoteSize] = {};
    WriteProcessMemory(process_, remote_, text, sizeof text, nullptr);
    AskWindow(hwnd, message, wParam, reinterpret_cast<LPARAM>(remote_));
    ReadProcessMemory(process_, remote_, text, sizeof text - 1, nullptr);
    return text;
}

std::string DemoProcess::CellText(CellAt cell) const
{
    return RemoteText(grid_, HGM_GETCELLTEXT, static_cast<WPARAM>(static_cast<DWORD>(PackCellAt(cell))));
}

std::string DemoProcess::EditorText() const
{
    char text[256] = {};
    AskWindow(Editor(), WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

std::string DemoProcess::Title() const
{
    char text[256] = {};
    GetWindowTextA(frame_, text, sizeof text);
    return text;
}

std::string DemoProcess::Status(int part) const
{
    return RemoteText(status_, SB_GETTEXTA, static_cast<WPARAM>(part));
}

POINT DemoProcess::MiddleOf(CellAt cell) const
{
    const auto ask = [this](UINT message, int wParam = 0) {
        return static_cast<int>(Ask(message, static_cast<WPARAM>(wParam)));
    };
    int left = cell.col < 0 ? 0 : ask(HGM_GETROWHDRWIDTH) - ask(HGM_GETHPOS);
    for (int col = 0; col < cell.col; ++col) {
        left += ask(HGM_GETFIELDWIDTH, col);
    }
    const int width = cell.col < 0 ? ask(HGM_GETROWHDRWIDTH) : ask(HGM_GETFIELDWIDTH, cell.col);
    const int header = ask(HGM_GETHEADERHEIGHT);
    const int height = cell.row < 0 ? header : ask(HGM_GETROWHEIGHT);
    const int top = cell.row < 0 ? 0 : header + (cell.row - ask(HGM_GETTOPRECORD)) * height;
    return { left + width / 2, top + height / 2 };
}

void DemoProcess::Click(CellAt cell, unsigned modifiers) const
{
    const POINT point = MiddleOf(cell);
    ClickAt(grid_, point.x, point.y, modifiers);
}

void DemoProcess::ClickPhase(int item, unsigned modifiers) const
{
    const int height = static_cast<int>(AskPhases(LB_GETITEMHEIGHT));
    const int place = item - static_cast<int>(AskPhases(HLM_GETTOP));
    ClickAt(phases_, 20, place * height + height / 2, modifiers);
}

void DemoProcess::ClickButton(const char* caption) const
{
    ClickAt(FindWindowExA(frame_, nullptr, "HButt", caption), 10, 10);
}
