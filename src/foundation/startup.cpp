// What runs when the library is loaded: shared state, international settings, window classes, the image strip.
// The library's variables themselves are in library_state.cpp.
#include "foundation/startup.h"

#include "foundation/services.h"

#include <clocale>

namespace {

constexpr WORD     gridCursorId = 4301;
constexpr WORD     gridIconId = 3000;
constexpr WORD     imagesId = 2010;
constexpr WORD     images200Id = 2011;
constexpr int      imageWidth = 13;
constexpr COLORREF imageMask = 0x0000FF00;
constexpr DWORD    allCommonControls = 255;

enum class ClassCursor { None, IBeam, Arrow, Grid };

struct ControlClass {
    const char* name;
    UINT        style;
    WNDPROC     wndProc;
    int         extraWords; // places of a pointer's size
    ClassCursor cursor;
    WORD        iconId;     // 0: none
    INT_PTR     background; // as in hbrBackground: a system colour + 1, or 0
    int         recordWord; // which of the extra words holds the record
};

// In the order of registration.
// clang-format off
constexpr ControlClass controlClasses[] = {
    { "HButt",    0x408B, HButtWnd, 2, ClassCursor::Arrow, 0,          COLOR_WINDOW + 1, 1 },
    { "HEdit_SS", 0x400B, HEditWnd, 1, ClassCursor::IBeam, 0,          0,                0 },
    { "HEdit",    0x400B, HEditWnd, 1, ClassCursor::IBeam, 0,          0,                0 },
    { "HList",    0x400B, HListWnd, 1, ClassCursor::None,  0,          0,                0 },
    { "HComb",    0x4003, HCombWnd, 2, ClassCursor::Arrow, 0,          COLOR_WINDOW + 1, 0 },
    { "HGrid",    0x4008, HGridWnd, 1, ClassCursor::Grid,  gridIconId, COLOR_WINDOW + 1, 0 },
};
// clang-format on

void LoadCommonControls()
{
    INITCOMMONCONTROLSEX controls = { sizeof controls, allCommonControls };
    InitCommonControlsEx(&controls);
}

HCURSOR CursorOf(ClassCursor cursor)
{
    if (cursor == ClassCursor::None) {
        return nullptr;
    }
    if (cursor == ClassCursor::IBeam) {
        return hCurIBeam;
    }
    if (cursor == ClassCursor::Arrow) {
        return hCurArrow;
    }
    hCurGrid = LoadCursorA(hInstance, MAKEINTRESOURCEA(gridCursorId));
    return hCurGrid;
}

// The list of a combo: a list that floats, with one word more for the combo's face.
void RegisterDrop()
{
    WNDCLASSA info = {};
    if (GetClassInfoA(hInstance, "HList", &info)) {
        RegisterControl(info.style | CS_SAVEBITS, HDropWnd, info.cbClsExtra,
                        info.cbWndExtra + static_cast<int>(sizeof(LONG_PTR)), hInstance, info.hIcon, info.hCursor,
                        info.hbrBackground, info.lpszMenuName, "HDrop");
    }
}

void RegisterClasses()
{
    for (const ControlClass& entry : controlClasses) {
        // The grid's cursor says that its class stands already.
        if (entry.cursor == ClassCursor::Grid && hCurGrid) {
            continue;
        }
        const HICON icon = entry.iconId ? LoadIconA(hInstance, MAKEINTRESOURCEA(entry.iconId)) : nullptr;
        const int registered = RegisterControl(
            entry.style, entry.wndProc, 0, entry.extraWords * static_cast<int>(sizeof(LONG_PTR)), hInstance, icon,
            CursorOf(entry.cursor), reinterpret_cast<HBRUSH>(entry.background), nullptr, entry.name);
        if (registered && entry.wndProc == HCombWnd) {
            RegisterDrop();
        }
    }
}

} // namespace

void LibraryAttach(HINSTANCE module)
{
    hInstance = module;
}

// Settled: classes and brushes stay at unload.
void LibraryDetach()
{
    BitmapSetFree();
}

void WINAPI WidgetsInit(void)
{
    if (fWidgetsReady) {
        return;
    }
    LoadCommonControls();
    hCurIBeam = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_IBEAM));
    hCurArrow = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    LibraryStartState();
    BitmapSetReset();
    GetIntlSettings();
    // Character tests and comparisons without case follow the user's locale.
    std::setlocale(LC_ALL, "");
    RegisterClasses();
    BitmapSetRegister(hInstance, imagesId, images200Id, 0);
    BitmapSetImageList(hInstance, &hCheckImages, imagesId, imageWidth, imageMask);
    fWidgetsReady = 1;
}

int WINAPI RegisterControl(UINT style, WNDPROC wndProc, int clsExtra, int wndExtra, HINSTANCE instance, HICON icon,
                           HCURSOR cursor, HBRUSH background, const char* menuName, const char* className)
{
    const WNDCLASSA windowClass = { style, wndProc, clsExtra,   wndExtra, instance,
                                    icon,  cursor,  background, menuName, className };
    return RegisterClassA(&windowClass);
}

WNDPROC WINAPI SubclassWW(HWND hwnd, WNDPROC wndProc)
{
    const auto old = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(hwnd, GWLP_WNDPROC));
    if (old == wndProc) {
        return nullptr;
    }
    SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(wndProc));
    return old;
}

void* ControlRecord(HWND hwnd)
{
    const auto wndProc = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(hwnd, GWLP_WNDPROC));
    for (const ControlClass& entry : controlClasses) {
        if (entry.wndProc == wndProc) {
            const int place = entry.recordWord * static_cast<int>(sizeof(LONG_PTR));
            return reinterpret_cast<void*>(GetWindowLongPtrA(hwnd, place));
        }
    }
    return reinterpret_cast<void*>(SendMessageA(hwnd, WWM_GETSTATE, 0, 0));
}

const char* WINAPI GetHelpName(void)
{
    return "Widgets.hlp";
}
