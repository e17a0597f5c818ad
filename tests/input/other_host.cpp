// A program of its own that knows nothing of the library: one window, which counts what the mouse does to it.
// WM_USER asks for its presses of the left button, WM_USER + 1 for its moves that ended at wParam pixels from the left.
#include <windows.h>

namespace {

LRESULT gPresses;
LRESULT gMoves[200];

LRESULT CALLBACK OtherProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_MOUSEACTIVATE: return MA_NOACTIVATE; // the focus stays where the list is
    case WM_LBUTTONDOWN: return ++gPresses;
    case WM_MOUSEMOVE:   return ++gMoves[LOWORD(lParam) % 200];
    case WM_USER:        return gPresses;
    case WM_USER + 1:    return gMoves[wParam % 200];
    case WM_DESTROY:     PostQuitMessage(0); return 0;
    default:             return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int)
{
    WNDCLASSA info = {};
    info.lpfnWndProc = OtherProc;
    info.hInstance = instance;
    info.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    info.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
    info.lpszClassName = "OtherHost";
    RegisterClassA(&info);
    const HWND hwnd = CreateWindowExA(WS_EX_NOACTIVATE, "OtherHost", "other", WS_POPUP, 800, 100, 200, 150, nullptr,
                                      nullptr, instance, nullptr);
    ShowWindow(hwnd, SW_SHOWNOACTIVATE);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        DispatchMessageA(&message);
    }
    return 0;
}
