// The fixture of window tests.
#include "support/window_test.h"

namespace {

constexpr char parentClass[] = "TestParent";
constexpr UINT quickDoubleClick = 60; // milliseconds: clicks of one test follow each other

void RegisterParent(WNDPROC wndProc)
{
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = wndProc;
    windowClass.hInstance = GetModuleHandleA(nullptr);
    windowClass.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    windowClass.hbrBackground = GetSysColorBrush(COLOR_WINDOW);
    windowClass.lpszClassName = parentClass;
    RegisterClassA(&windowClass);
}

} // namespace

ParentWindow::ParentWindow(Recorder* recorder) : recorder_(recorder)
{
    RegisterParent(WndProc);
    // A pop-up gets activation and focus without a window manager.
    CreateWindowExA(0, parentClass, "test", WS_POPUP | WS_CLIPCHILDREN, 40, 40, 720, 520, nullptr, nullptr,
                    GetModuleHandleA(nullptr), this);
    ShowWindow(hwnd_, SW_SHOW);
    SetForegroundWindow(hwnd_);
    PumpPending();
}

ParentWindow::~ParentWindow()
{
    handlers_.clear();
    messageHandlers_.clear();
    if (IsWindow(hwnd_)) {
        DestroyWindow(hwnd_);
    }
    PumpPending();
}

void ParentWindow::On(int code, std::function<void()> handler)
{
    handlers_[code] = std::move(handler);
}

void ParentWindow::OnMessage(UINT message, std::function<LRESULT(WPARAM, LPARAM)> handler)
{
    messageHandlers_[message] = std::move(handler);
}

int ParentWindow::Count(int code) const
{
    const auto found = counts_.find(code);
    return found == counts_.end() ? 0 : found->second;
}

LRESULT CALLBACK ParentWindow::WndProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        auto* const created = static_cast<ParentWindow*>(reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams);
        created->hwnd_ = hwnd;
        SetWindowLongPtrA(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* const self = reinterpret_cast<ParentWindow*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    return self ? self->Receive(message, wParam, lParam) : DefWindowProcA(hwnd, message, wParam, lParam);
}

LRESULT ParentWindow::Receive(UINT message, WPARAM wParam, LPARAM lParam)
{
    recorder_->EnterParent(message, wParam, lParam);
    const LRESULT result = Handle(message, wParam, lParam);
    recorder_->Leave();
    return result;
}

LRESULT ParentWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND) {
        const int code = HIWORD(wParam);
        ++counts_[code];
        const auto found = handlers_.find(code);
        if (found != handlers_.end() && found->second) {
            const std::function<void()> handler = found->second;
            handler();
        }
        return 0;
    }
    const auto found = messageHandlers_.find(message);
    if (found != messageHandlers_.end() && found->second) {
        const std::function<LRESULT(WPARAM, LPARAM)> handler = found->second;
        return handler(wParam, lParam);
    }
    return DefWindowProcA(hwnd_, message, wParam, lParam);
}

WindowTest::WindowTest() : parent(&seen)
{
    SetDoubleClickTime(quickDoubleClick);
}

WindowTest::~WindowTest()
{
    SetDoubleClickTime(0); // the platform's default
}

HWND WindowTest::Create(const char* className, const char* text, DWORD style, int id, RECT rect)
{
    const HWND hwnd = CreateWindowExA(
        0, className, text, WS_CHILD | WS_VISIBLE | style, rect.left, rect.top, rect.right, rect.bottom, parent.hwnd(),
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr), nullptr);
    EXPECT_NE(nullptr, hwnd) << className << " can't be made, error " << GetLastError();
    return hwnd;
}

LRESULT WindowTest::Send(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return SendMessageA(hwnd, message, wParam, lParam);
}

LRESULT WindowTest::SendPtr(HWND hwnd, UINT message, WPARAM wParam, const void* lParam)
{
    return SendMessageA(hwnd, message, wParam, reinterpret_cast<LPARAM>(lParam));
}

std::string WindowTest::TextOf(HWND hwnd)
{
    char      text[1024];
    const int length = GetWindowTextA(hwnd, text, sizeof text);
    return std::string(text, static_cast<size_t>(length));
}
