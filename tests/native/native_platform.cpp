// The platform of the native build: each function does what portable sources expect of it, in the simplest way.
// The functions stand in the order of windows.h.

// The clock of the runtime has 64 bits on every architecture.
#define _FILE_OFFSET_BITS 64
#define _TIME_BITS 64

#include "native_platform.h"

#include "foundation/startup.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr __time64_t endOfClock = 32535215999; // the last second of the year 3000

NativePlatform gPlatform;
std::uintptr_t gLastWindow;

// A resource name or type as text; numbers become "#n" as in a resource script.
std::string ResourceKey(const char* name)
{
    const auto number = reinterpret_cast<std::uintptr_t>(name);
    return number <= 0xFFFF ? "#" + std::to_string(number) : name;
}

NativeWindow* FindWindow(HWND hwnd)
{
    const auto found = gPlatform.windows.find(hwnd);
    return found == gPlatform.windows.end() ? nullptr : &found->second;
}

// A file's handle is its descriptor.
int DescriptorOf(HANDLE file)
{
    return static_cast<int>(reinterpret_cast<std::intptr_t>(file));
}

// Of a read or write, as the platform tells it.
BOOL Transferred(ssize_t count, DWORD* outCount)
{
    *outCount = count < 0 ? 0 : static_cast<DWORD>(count);
    return count >= 0;
}

// wsprintf knows no 64-bit long: the length letter goes.
std::string WithoutLongs(const char* format)
{
    std::string result;
    for (const char* p = format; *p; ++p) {
        result += *p;
        if (*p != '%') {
            continue;
        }
        for (++p; *p && std::strchr("-#0123456789.lh", *p); ++p) {
            if (*p != 'l' && *p != 'h') {
                result += *p;
            }
        }
        if (!*p) {
            break;
        }
        result += *p;
    }
    return result;
}

} // namespace

NativePlatform& Native()
{
    return gPlatform;
}

void NativeReset()
{
    gPlatform = NativePlatform();
}

HWND NativeCreateWindow(const NativeWindow& window)
{
    gLastWindow += 0x10;
    const HWND hwnd = reinterpret_cast<HWND>(gLastWindow);
    gPlatform.windows[hwnd] = window;
    return hwnd;
}

void NativeDestroyWindow(HWND hwnd)
{
    gPlatform.windows.erase(hwnd);
}

NativeWindow& NativeWindowOf(HWND hwnd)
{
    return gPlatform.windows.at(hwnd);
}

// KERNEL32

BOOL WINAPI CloseHandle(HANDLE object)
{
    return close(DescriptorOf(object)) == 0;
}

// Only files, new ones to write and old ones to read.
HANDLE WINAPI CreateFileA(const char* name, DWORD access, DWORD, void*, DWORD disposition, DWORD, HANDLE)
{
    constexpr mode_t rights = 0666;
    const int        create = disposition == CREATE_ALWAYS ? O_CREAT | O_TRUNC : 0;
    const int        file = open(name, (access & GENERIC_WRITE ? O_WRONLY : O_RDONLY) | create, rights);
    return reinterpret_cast<HANDLE>(static_cast<std::intptr_t>(file));
}

HRSRC WINAPI FindResourceA(HMODULE, const char* name, const char* type)
{
    for (NativeResource& resource : gPlatform.resources) {
        if (resource.name == ResourceKey(name) && resource.type == ResourceKey(type)) {
            return reinterpret_cast<HRSRC>(&resource);
        }
    }
    return nullptr;
}

BOOL WINAPI FreeResource(HGLOBAL)
{
    return FALSE;
}

void WINAPI GetLocalTime(SYSTEMTIME* time)
{
    *time = gPlatform.localTime;
}

DWORD WINAPI GetTickCount(void)
{
    return gPlatform.tickCount;
}

DWORD WINAPI GetVersion(void)
{
    return gPlatform.version;
}

HGLOBAL WINAPI GlobalAlloc(UINT, SIZE_T size)
{
    return std::calloc(1, size ? size : 1);
}

HGLOBAL WINAPI GlobalFree(HGLOBAL block)
{
    std::free(block);
    return nullptr;
}

HGLOBAL WINAPI LoadResource(HMODULE, HRSRC resource)
{
    return resource;
}

void* WINAPI LockResource(HGLOBAL resource)
{
    return resource ? static_cast<NativeResource*>(resource)->bytes.data() : nullptr;
}

// Rounds half away from zero; -1 for a denominator of 0 and for a result past 32 bits.
int WINAPI MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0) {
        return -1;
    }
    const std::int64_t product = static_cast<std::int64_t>(number) * numerator;
    const std::int64_t divisor = std::llabs(static_cast<long long>(denominator));
    const std::int64_t rounded = (std::llabs(product) + divisor / 2) / divisor;
    const std::int64_t result = (product < 0) != (denominator < 0) ? -rounded : rounded;
    return result > INT32_MAX || result < INT32_MIN ? -1 : static_cast<int>(result);
}

HFILE WINAPI OpenFile(const char* name, OFSTRUCT* ofs, UINT style)
{
    constexpr WORD fileNotFound = 2;
    std::memset(ofs, 0, sizeof *ofs);
    ofs->cBytes = static_cast<BYTE>(sizeof *ofs);
    if (std::strlen(name) < sizeof ofs->szPathName) {
        std::strcpy(ofs->szPathName, name);
    }
    struct stat status;
    const bool  isFile = stat(name, &status) == 0 && S_ISREG(status.st_mode);
    const HFILE file = isFile ? open(name, (style & 3) == OF_READ ? O_RDONLY : O_RDWR) : HFILE_ERROR;
    if (file == HFILE_ERROR) {
        ofs->nErrCode = fileNotFound;
    } else if (style & OF_EXIST) {
        close(file);
    }
    return file;
}

void WINAPI OutputDebugStringA(const char* text)
{
    gPlatform.debugOutput.emplace_back(text);
}

BOOL WINAPI ReadFile(HANDLE file, void* buffer, DWORD count, DWORD* outCount, void*)
{
    return Transferred(read(DescriptorOf(file), buffer, count), outCount);
}

DWORD WINAPI SizeofResource(HMODULE, HRSRC resource)
{
    return resource ? static_cast<DWORD>(reinterpret_cast<NativeResource*>(resource)->bytes.size()) : 0;
}

BOOL WINAPI WriteFile(HANDLE file, const void* buffer, DWORD count, DWORD* outCount, void*)
{
    return Transferred(write(DescriptorOf(file), buffer, count), outCount);
}

HFILE WINAPI _lclose(HFILE file)
{
    return close(file) == 0 ? 0 : HFILE_ERROR;
}

LONG WINAPI _llseek(HFILE file, LONG offset, int origin)
{
    return static_cast<LONG>(lseek(file, offset, origin));
}

UINT WINAPI _lread(HFILE file, void* buffer, UINT count)
{
    return static_cast<UINT>(read(file, buffer, count));
}

char* WINAPI lstrcpynA(char* dest, const char* src, int size)
{
    if (!dest || !src || size <= 0) {
        return nullptr;
    }
    const size_t count = strnlen(src, static_cast<size_t>(size) - 1);
    std::memcpy(dest, src, count);
    dest[count] = 0;
    return dest;
}

// USER32

LRESULT WINAPI DefWindowProcA(HWND, UINT, WPARAM, LPARAM)
{
    return 0;
}

// Measures with DT_CALCRECT; nothing is drawn. Only single lines.
BOOL WINAPI DestroyWindow(HWND hwnd)
{
    return gPlatform.windows.erase(hwnd) != 0;
}

int WINAPI DrawTextA(HDC, const char* text, int count, RECT* rect, UINT format)
{
    const int length = count < 0 ? static_cast<int>(std::strlen(text)) : count;
    if (format & DT_CALCRECT) {
        rect->right = rect->left + length * gPlatform.charWidth;
        rect->bottom = rect->top + gPlatform.charHeight;
    }
    return gPlatform.charHeight;
}

BOOL WINAPI EqualRect(const RECT* a, const RECT* b)
{
    return a->left == b->left && a->top == b->top && a->right == b->right && a->bottom == b->bottom;
}

HDC WINAPI BeginPaint(HWND hwnd, PAINTSTRUCT* ps)
{
    std::memset(ps, 0, sizeof *ps);
    ps->hdc = GetDC(hwnd);
    GetClientRect(hwnd, &ps->rcPaint);
    return ps->hdc;
}

BOOL WINAPI EndPaint(HWND hwnd, const PAINTSTRUCT* ps)
{
    ReleaseDC(hwnd, ps->hdc);
    return TRUE;
}

int WINAPI GetClassNameA(HWND hwnd, char* name, int size)
{
    const NativeWindow* const window = FindWindow(hwnd);
    return window && lstrcpynA(name, window->className.c_str(), size) ? static_cast<int>(std::strlen(name)) : 0;
}

BOOL WINAPI GetClientRect(HWND hwnd, RECT* rect)
{
    const NativeWindow* const window = FindWindow(hwnd);
    if (!window) {
        return FALSE;
    }
    *rect = { 0, 0, window->client.right - window->client.left, window->client.bottom - window->client.top };
    return TRUE;
}

HDC WINAPI GetDC(HWND)
{
    static HDC__ screen;
    if (!gPlatform.hasScreen) {
        return nullptr;
    }
    ++gPlatform.openDCs;
    return &screen;
}

HWND WINAPI GetParent(HWND hwnd)
{
    const NativeWindow* const window = FindWindow(hwnd);
    return window ? window->parent : nullptr;
}

int WINAPI GetSystemMetrics(int index)
{
    const auto found = gPlatform.systemMetrics.find(index);
    return found == gPlatform.systemMetrics.end() ? 0 : found->second;
}

LONG WINAPI GetWindowLongA(HWND hwnd, int index)
{
    return static_cast<LONG>(GetWindowLongPtrA(hwnd, index));
}

LONG_PTR WINAPI GetWindowLongPtrA(HWND hwnd, int index)
{
    const NativeWindow* const window = FindWindow(hwnd);
    if (!window) {
        return 0;
    }
    const auto found = window->longs.find(index);
    return found == window->longs.end() ? 0 : found->second;
}

BOOL WINAPI InflateRect(RECT* rect, int dx, int dy)
{
    *rect = { rect->left - dx, rect->top - dy, rect->right + dx, rect->bottom + dy };
    return TRUE;
}

BOOL WINAPI IntersectRect(RECT* out, const RECT* a, const RECT* b)
{
    const RECT both = { std::max(a->left, b->left), std::max(a->top, b->top), std::min(a->right, b->right),
                        std::min(a->bottom, b->bottom) };
    const bool meet = !IsRectEmpty(a) && !IsRectEmpty(b) && !IsRectEmpty(&both);
    *out = meet ? both : RECT{ 0, 0, 0, 0 };
    return meet;
}

BOOL WINAPI InvalidateRect(HWND hwnd, const RECT*, BOOL)
{
    NativeWindow* const window = FindWindow(hwnd);
    if (window) {
        ++window->invalidations;
    }
    return window != nullptr;
}

BOOL WINAPI IsRectEmpty(const RECT* rect)
{
    return rect->left >= rect->right || rect->top >= rect->bottom;
}

BOOL WINAPI IsWindow(HWND hwnd)
{
    return FindWindow(hwnd) != nullptr;
}

BOOL WINAPI IsWindowVisible(HWND hwnd)
{
    const NativeWindow* const window = FindWindow(hwnd);
    return window && window->visible;
}

BOOL WINAPI MessageBeep(UINT)
{
    ++gPlatform.beeps;
    return TRUE;
}

BOOL WINAPI OffsetRect(RECT* rect, int dx, int dy)
{
    *rect = { rect->left + dx, rect->top + dy, rect->right + dx, rect->bottom + dy };
    return TRUE;
}

BOOL WINAPI PostMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    gPlatform.posted.push_back({ hwnd, message, wParam, lParam });
    return TRUE;
}

BOOL WINAPI PtInRect(const RECT* rect, POINT point)
{
    return point.x >= rect->left && point.x < rect->right && point.y >= rect->top && point.y < rect->bottom;
}

int WINAPI ReleaseDC(HWND, HDC)
{
    --gPlatform.openDCs;
    return 1;
}

LRESULT WINAPI SendMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (gPlatform.onSendMessage) {
        return gPlatform.onSendMessage(hwnd, message, wParam, lParam);
    }
    const NativeWindow* const window = FindWindow(hwnd);
    return window && window->wndProc ? window->wndProc(hwnd, message, wParam, lParam) : 0;
}

// The library's classes aren't registered here, so each record is asked for.
void* ControlRecord(HWND hwnd)
{
    return reinterpret_cast<void*>(SendMessageA(hwnd, WWM_GETSTATE, 0, 0));
}

BOOL WINAPI SetRect(RECT* rect, int left, int top, int right, int bottom)
{
    *rect = { left, top, right, bottom };
    return TRUE;
}

BOOL WINAPI SetRectEmpty(RECT* rect)
{
    return SetRect(rect, 0, 0, 0, 0);
}

LONG WINAPI SetWindowLongA(HWND hwnd, int index, LONG value)
{
    return static_cast<LONG>(SetWindowLongPtrA(hwnd, index, value));
}

LONG_PTR WINAPI SetWindowLongPtrA(HWND hwnd, int index, LONG_PTR value)
{
    NativeWindow* const window = FindWindow(hwnd);
    if (!window) {
        return 0;
    }
    std::swap(window->longs[index], value);
    return value;
}

BOOL WINAPI UnionRect(RECT* out, const RECT* a, const RECT* b)
{
    if (IsRectEmpty(a) || IsRectEmpty(b)) {
        *out = !IsRectEmpty(a) ? *a : !IsRectEmpty(b) ? *b : RECT{ 0, 0, 0, 0 };
        return !IsRectEmpty(out);
    }
    *out = { std::min(a->left, b->left), std::min(a->top, b->top), std::max(a->right, b->right),
             std::max(a->bottom, b->bottom) };
    return TRUE;
}

BOOL WINAPI UpdateWindow(HWND hwnd)
{
    NativeWindow* const window = FindWindow(hwnd);
    if (window) {
        ++window->updates;
    }
    return window != nullptr;
}

int wsprintfA(char* out, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    const int length = wvsprintfA(out, format, args);
    va_end(args);
    return length;
}

// Writes 1024 characters at the most, as the platform's does.
int WINAPI wvsprintfA(char* out, const char* format, va_list args)
{
    constexpr int limit = 1024;
    return std::min(std::vsnprintf(out, limit + 1, WithoutLongs(format).c_str(), args), limit);
}

// GDI32

BOOL WINAPI DeleteObject(HGDIOBJ object)
{
    return object != nullptr;
}

int WINAPI GetDeviceCaps(HDC, int index)
{
    if (index == LOGPIXELSX) {
        ++gPlatform.screenReads;
        return gPlatform.dpiX;
    }
    return index == LOGPIXELSY ? gPlatform.dpiY : 0;
}

HGDIOBJ WINAPI GetStockObject(int object)
{
    static int stock[32];
    return object >= 0 && object < 32 ? &stock[object] : nullptr;
}

BOOL WINAPI GetTextExtentPoint32A(HDC hdc, const char*, int count, SIZE* size)
{
    if (!hdc) {
        return FALSE;
    }
    *size = { count * gPlatform.charWidth, gPlatform.charHeight };
    return TRUE;
}

BOOL WINAPI GetTextExtentPointA(HDC hdc, const char* text, int count, SIZE* size)
{
    return GetTextExtentPoint32A(hdc, text, count, size);
}

BOOL WINAPI GetTextMetricsA(HDC hdc, TEXTMETRICA* metrics)
{
    if (!hdc) {
        return FALSE;
    }
    *metrics = { gPlatform.charHeight, gPlatform.charHeight, 0, 0, 0, gPlatform.charWidth, gPlatform.charWidth, 0, 0 };
    return TRUE;
}

int WINAPI IntersectClipRect(HDC, int, int, int, int)
{
    return 1;
}

BOOL WINAPI RestoreDC(HDC, int)
{
    return TRUE;
}

int WINAPI SaveDC(HDC)
{
    return 1;
}

HGDIOBJ WINAPI SelectObject(HDC, HGDIOBJ)
{
    return GetStockObject(SYSTEM_FONT);
}

struct tm* __cdecl _localtime64(const __time64_t* clock)
{
    const time_t native = static_cast<time_t>(*clock);
    if (*clock < 0 || *clock > endOfClock || native != *clock) {
        return nullptr;
    }
    return localtime(&native);
}

__time64_t __cdecl _mktime64(struct tm* calendar)
{
    const __time64_t clock = mktime(calendar);
    return clock < 0 || clock > endOfClock ? -1 : clock;
}
