// Small services of the message frame: what kind of window a control lives in, and how big its font is.
#include "dialog/control_frame.h"

#include "foundation/gdi_guards.h"
#include "foundation/memory.h"

#include <algorithm>

namespace {

constexpr char allLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
constexpr int  letterCount = sizeof allLetters - 1;
constexpr UINT lineFormat = DT_CALCRECT | DT_EXPANDTABS | DT_SINGLELINE;
constexpr int  classNameSize = 64;

// A host's codes for the kind of window that controls live in, by the beginning of its class name.
struct HostWindow {
    const char* prefix;
    int         code;
};

constexpr HostWindow hostWindows[] = {
    { "RWSWnd", 2834 },
    { "DlgEdit", 2609 },
};

HWND TopWindow(HWND hwnd)
{
    HWND top = hwnd;
    for (HWND parent = hwnd; parent; parent = GetParent(parent)) {
        top = parent;
    }
    return top;
}

// Orders the first count characters of a against those of b without case.
int CompareStarts(const char* a, const char* b, int count)
{
    char      startA[classNameSize];
    char      startB[classNameSize];
    const int size = std::min(count + 1, classNameSize);
    _fstrnzcpy(startA, a, size);
    _fstrnzcpy(startB, b, size);
    return HCompareNoCase(startA, startB);
}

} // namespace

int WINAPI GetParentMod(HWND hwnd)
{
    char name[classNameSize] = "";
    GetClassNameA(TopWindow(hwnd), name, classNameSize);
    for (const HostWindow& host : hostWindows) {
        if (CompareStarts(name, host.prefix, static_cast<int>(std::strlen(host.prefix))) == 0) {
            return host.code;
        }
    }
    return 0;
}

DWORD HFontUnits(HDC hdc, HFONT hFont)
{
    if (!hdc) {
        return 0;
    }
    const SelectedObject font(hdc, hFont ? hFont : GetStockObject(SYSTEM_FONT));
    SIZE                 size = {};
    GetTextExtentPointA(hdc, allLetters, letterCount, &size);
    return static_cast<DWORD>(MAKELONG(size.cx / letterCount, size.cy));
}

DWORD WINAPI GetBaseUnits(HFONT hFont)
{
    const WindowDC screen(nullptr);
    return HFontUnits(screen.hdc, hFont);
}

void HUpdateTop(HWND hwnd)
{
    UpdateWindow(TopWindow(hwnd));
}

int HWinVersion()
{
    const DWORD version = GetVersion();
    return LOBYTE(version) * 256 + HIBYTE(version);
}

int HIsCombo(HWND hwnd)
{
    char      name[10] = "";
    const int length = GetClassNameA(hwnd, name, sizeof name);
    // Settled: class names in front of "HComb", and the lack of one, count as a combo too.
    return CompareStarts(name, "HComb", length) <= 0;
}

DWORD HMeasureLines(HDC hdc, const char* text)
{
    LONG width = 0;
    LONG height = 0;
    for (const char* line = text; *line;) {
        const size_t length = std::strcspn(line, "\n");
        if (length > 0) {
            RECT rect = {};
            DrawTextA(hdc, line, static_cast<int>(length), &rect, lineFormat);
            width = std::max(width, rect.right - rect.left);
            height += rect.bottom - rect.top;
        }
        line += length + (line[length] ? 1 : 0);
    }
    return static_cast<DWORD>(MAKELONG(width, height));
}
