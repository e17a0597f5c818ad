/*
 * The small <windows.h> of the native build: the types, constants and functions that portable sources need, and no
 * more. native_platform.cpp supplies the functions. Keep each section in the order of the alphabet when you add to it.
 */
#ifndef TESTS_NATIVE_WINDOWS_H
#define TESTS_NATIVE_WINDOWS_H

#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>
#include <time.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Calling conventions mean nothing here. */
#define APIENTRY
#define CALLBACK
#define WINAPI
#define __cdecl

/* Integers: LONG and DWORD have 32 bits on every architecture, parameters of messages the width of a pointer. */
typedef int            BOOL;
typedef unsigned char  BYTE;
typedef uint16_t       WORD;
typedef uint32_t       DWORD;
typedef int32_t        LONG;
typedef uint32_t       ULONG;
typedef int            INT;
typedef unsigned int   UINT;
typedef short          SHORT;
typedef unsigned short USHORT;
typedef char           CHAR;
typedef intptr_t       INT_PTR;
typedef intptr_t       LONG_PTR;
typedef uintptr_t      UINT_PTR;
typedef uintptr_t      ULONG_PTR;
typedef uintptr_t      DWORD_PTR;
typedef size_t         SIZE_T;
typedef WORD           ATOM;
typedef DWORD          COLORREF;
typedef int            HFILE;
typedef LONG_PTR       LPARAM;
typedef LONG_PTR       LRESULT;
typedef UINT_PTR       WPARAM;
typedef void*          LPVOID;
typedef const char*    LPCSTR;
typedef char*          LPSTR;

/* Handles: each kind is a pointer type of its own. */
#define DECLARE_HANDLE(name)                                                                                           \
    struct name##__ {                                                                                                  \
        int unused;                                                                                                    \
    };                                                                                                                 \
    typedef struct name##__* name

typedef void* HANDLE;
typedef void* HGDIOBJ;
typedef void* HGLOBAL;
DECLARE_HANDLE(HBITMAP);
DECLARE_HANDLE(HBRUSH);
DECLARE_HANDLE(HDC);
DECLARE_HANDLE(HFONT);
DECLARE_HANDLE(HICON);
DECLARE_HANDLE(HINSTANCE);
DECLARE_HANDLE(HMENU);
DECLARE_HANDLE(HPALETTE);
DECLARE_HANDLE(HPEN);
DECLARE_HANDLE(HRGN);
DECLARE_HANDLE(HRSRC);
DECLARE_HANDLE(HWND);
typedef HICON     HCURSOR;
typedef HINSTANCE HMODULE;

typedef LRESULT(CALLBACK* WNDPROC)(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

/* Records */

typedef struct tagPOINT {
    LONG x;
    LONG y;
} POINT;

typedef struct tagRECT {
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
} RECT;

typedef struct tagSIZE {
    LONG cx;
    LONG cy;
} SIZE;

typedef struct tagMSG {
    HWND   hwnd;
    UINT   message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD  time;
    POINT  pt;
} MSG;

typedef struct tagOFSTRUCT {
    BYTE cBytes;
    BYTE fFixedDisk;
    WORD nErrCode;
    WORD Reserved1;
    WORD Reserved2;
    CHAR szPathName[128];
} OFSTRUCT;

typedef struct tagPAINTSTRUCT {
    HDC  hdc;
    BOOL fErase;
    RECT rcPaint;
    BOOL fRestore;
    BOOL fIncUpdate;
    BYTE rgbReserved[32];
} PAINTSTRUCT;

typedef struct tagSCROLLINFO {
    UINT cbSize;
    UINT fMask;
    int  nMin;
    int  nMax;
    UINT nPage;
    int  nPos;
    int  nTrackPos;
} SCROLLINFO;

typedef struct tagSYSTEMTIME {
    WORD wYear;
    WORD wMonth;
    WORD wDayOfWeek;
    WORD wDay;
    WORD wHour;
    WORD wMinute;
    WORD wSecond;
    WORD wMilliseconds;
} SYSTEMTIME;

typedef struct tagTEXTMETRICA {
    LONG tmHeight;
    LONG tmAscent;
    LONG tmDescent;
    LONG tmInternalLeading;
    LONG tmExternalLeading;
    LONG tmAveCharWidth;
    LONG tmMaxCharWidth;
    LONG tmWeight;
    LONG tmOverhang;
} TEXTMETRICA;

/* Macros */

#define FALSE 0
#define TRUE 1
#define MAKELONG(low, high) ((LONG)(((WORD)(low)) | (((DWORD)((WORD)(high))) << 16)))
#define MAKELPARAM(low, high) ((LPARAM)(DWORD)MAKELONG(low, high))
#define MAKEWPARAM(low, high) ((WPARAM)(DWORD)MAKELONG(low, high))
#define LOWORD(value) ((WORD)(((DWORD_PTR)(value)) & 0xFFFF))
#define HIWORD(value) ((WORD)((((DWORD_PTR)(value)) >> 16) & 0xFFFF))
#define LOBYTE(value) ((BYTE)(((DWORD_PTR)(value)) & 0xFF))
#define HIBYTE(value) ((BYTE)((((DWORD_PTR)(value)) >> 8) & 0xFF))
#define MAKEINTRESOURCEA(id) ((LPSTR)((ULONG_PTR)((WORD)(id))))
#define RGB(r, g, b) ((COLORREF)((BYTE)(r) | ((DWORD)(BYTE)(g) << 8) | ((DWORD)(BYTE)(b) << 16)))
#define GetRValue(color) ((BYTE)((color)&0xFF))
#define GetGValue(color) ((BYTE)(((color) >> 8) & 0xFF))
#define GetBValue(color) ((BYTE)(((color) >> 16) & 0xFF))

/* Constants */

#define CLR_INVALID 0xFFFFFFFF

#define CREATE_ALWAYS 2
#define OPEN_EXISTING 3

#define DT_CENTER 0x0001
#define DT_RIGHT 0x0002
#define DT_VCENTER 0x0004
#define DT_SINGLELINE 0x0020
#define DT_EXPANDTABS 0x0040
#define DT_CALCRECT 0x0400
#define DT_NOPREFIX 0x0800

#define FILE_ATTRIBUTE_READONLY 0x00000001
#define FILE_ATTRIBUTE_NORMAL 0x00000080
#define FILE_FLAG_SEQUENTIAL_SCAN 0x08000000
#define FILE_SHARE_READ 0x00000001

#define GENERIC_READ 0x80000000
#define GENERIC_WRITE 0x40000000

#define GMEM_FIXED 0x0000
#define GMEM_MOVEABLE 0x0002
#define GMEM_ZEROINIT 0x0040
#define GMEM_SHARE 0x2000

#define GWL_ID (-12)
#define GWL_STYLE (-16)
#define GWL_EXSTYLE (-20)
#define GWL_WNDPROC (-4)
#define GWLP_ID (-12)
#define GWLP_USERDATA (-21)
#define GWLP_WNDPROC (-4)

#define HFILE_ERROR ((HFILE)-1)

#define INVALID_HANDLE_VALUE ((HANDLE)(LONG_PTR)-1)

#define LOGPIXELSX 88
#define LOGPIXELSY 90

#define MB_OK 0

#define OF_READ 0x0000
#define OF_WRITE 0x0001
#define OF_READWRITE 0x0002
#define OF_SHARE_EXCLUSIVE 0x0010
#define OF_SHARE_DENY_WRITE 0x0020
#define OF_SHARE_DENY_NONE 0x0040
#define OF_EXIST 0x4000

#define RT_RCDATA MAKEINTRESOURCEA(10)

#define SB_HORZ 0
#define SB_VERT 1
#define SB_CTL 2
#define SB_LINEUP 0
#define SB_LINELEFT 0
#define SB_LINEDOWN 1
#define SB_LINERIGHT 1
#define SB_PAGEUP 2
#define SB_PAGELEFT 2
#define SB_PAGEDOWN 3
#define SB_PAGERIGHT 3
#define SB_THUMBPOSITION 4
#define SB_THUMBTRACK 5
#define SB_TOP 6
#define SB_LEFT 6
#define SB_BOTTOM 7
#define SB_RIGHT 7
#define SB_ENDSCROLL 8

#define SEEK_SET 0
#define SEEK_CUR 1
#define SEEK_END 2
#define FILE_BEGIN 0
#define FILE_CURRENT 1
#define FILE_END 2

#define SM_CXSCREEN 0
#define SM_CYSCREEN 1
#define SM_CXVSCROLL 2
#define SM_CYHSCROLL 3
#define SM_CXBORDER 5
#define SM_CYBORDER 6
#define SM_CXEDGE 45
#define SM_CYEDGE 46

#define SWP_NOSIZE 0x0001
#define SWP_NOMOVE 0x0002
#define SWP_NOZORDER 0x0004
#define SWP_NOACTIVATE 0x0010

#define SW_HIDE 0
#define SW_SHOWNORMAL 1
#define SW_SHOW 5

#define SYSTEM_FONT 13
#define WHITE_BRUSH 0

#define VK_BACK 0x08
#define VK_TAB 0x09
#define VK_RETURN 0x0D
#define VK_SHIFT 0x10
#define VK_CONTROL 0x11
#define VK_ESCAPE 0x1B
#define VK_SPACE 0x20
#define VK_PRIOR 0x21
#define VK_NEXT 0x22
#define VK_END 0x23
#define VK_HOME 0x24
#define VK_LEFT 0x25
#define VK_UP 0x26
#define VK_RIGHT 0x27
#define VK_DOWN 0x28
#define VK_INSERT 0x2D
#define VK_DELETE 0x2E

#define WM_NULL 0x0000
#define WM_CREATE 0x0001
#define WM_DESTROY 0x0002
#define WM_MOVE 0x0003
#define WM_SIZE 0x0005
#define WM_SETFOCUS 0x0007
#define WM_KILLFOCUS 0x0008
#define WM_ENABLE 0x000A
#define WM_SETREDRAW 0x000B
#define WM_SETTEXT 0x000C
#define WM_GETTEXT 0x000D
#define WM_GETTEXTLENGTH 0x000E
#define WM_PAINT 0x000F
#define WM_CLOSE 0x0010
#define WM_ERASEBKGND 0x0014
#define WM_GETMINMAXINFO 0x0024
#define WM_SETFONT 0x0030
#define WM_GETFONT 0x0031
#define WM_NCCREATE 0x0081
#define WM_NCDESTROY 0x0082
#define WM_KEYDOWN 0x0100
#define WM_KEYUP 0x0101
#define WM_CHAR 0x0102
#define WM_COMMAND 0x0111
#define WM_HSCROLL 0x0114
#define WM_VSCROLL 0x0115
#define WM_CTLCOLOREDIT 0x0133
#define WM_CTLCOLORLISTBOX 0x0134
#define WM_CTLCOLORBTN 0x0135
#define WM_CTLCOLORSTATIC 0x0138
#define WM_MOUSEMOVE 0x0200
#define WM_LBUTTONDOWN 0x0201
#define WM_LBUTTONUP 0x0202
#define WM_USER 0x0400

#define WS_OVERLAPPED 0x00000000
#define WS_POPUP 0x80000000
#define WS_CHILD 0x40000000
#define WS_VISIBLE 0x10000000
#define WS_MINIMIZE 0x20000000
#define WS_MAXIMIZE 0x01000000
#define WS_DISABLED 0x08000000
#define WS_BORDER 0x00800000
#define WS_VSCROLL 0x00200000
#define WS_HSCROLL 0x00100000
#define WS_GROUP 0x00020000
#define WS_TABSTOP 0x00010000

/* KERNEL32 */

BOOL WINAPI    CloseHandle(HANDLE object);
HANDLE WINAPI  CreateFileA(const char* name, DWORD access, DWORD share, void* security, DWORD disposition,
                           DWORD attributes, HANDLE templateFile);
HRSRC WINAPI   FindResourceA(HMODULE module, const char* name, const char* type);
BOOL WINAPI    FreeResource(HGLOBAL resource);
void WINAPI    GetLocalTime(SYSTEMTIME* time);
DWORD WINAPI   GetTickCount(void);
DWORD WINAPI   GetVersion(void);
HGLOBAL WINAPI GlobalAlloc(UINT flags, SIZE_T size);
HGLOBAL WINAPI GlobalFree(HGLOBAL block);
HGLOBAL WINAPI LoadResource(HMODULE module, HRSRC resource);
void* WINAPI   LockResource(HGLOBAL resource);
int WINAPI     MulDiv(int number, int numerator, int denominator);
HFILE WINAPI   OpenFile(const char* name, OFSTRUCT* ofs, UINT style);
void WINAPI    OutputDebugStringA(const char* text);
BOOL WINAPI    ReadFile(HANDLE file, void* buffer, DWORD count, DWORD* outCount, void* overlapped);
DWORD WINAPI   SizeofResource(HMODULE module, HRSRC resource);
BOOL WINAPI    WriteFile(HANDLE file, const void* buffer, DWORD count, DWORD* outCount, void* overlapped);
HFILE WINAPI   _lclose(HFILE file);
LONG WINAPI    _llseek(HFILE file, LONG offset, int origin);
UINT WINAPI    _lread(HFILE file, void* buffer, UINT count);
char* WINAPI   lstrcpynA(char* dest, const char* src, int size);

/* USER32 */

LRESULT WINAPI  DefWindowProcA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
BOOL WINAPI     DestroyWindow(HWND hwnd);
int WINAPI      DrawTextA(HDC hdc, const char* text, int count, RECT* rect, UINT format);
BOOL WINAPI     EqualRect(const RECT* a, const RECT* b);
HDC WINAPI      BeginPaint(HWND hwnd, PAINTSTRUCT* ps);
BOOL WINAPI     EndPaint(HWND hwnd, const PAINTSTRUCT* ps);
int WINAPI      GetClassNameA(HWND hwnd, char* name, int size);
BOOL WINAPI     GetClientRect(HWND hwnd, RECT* rect);
HDC WINAPI      GetDC(HWND hwnd);
HWND WINAPI     GetParent(HWND hwnd);
int WINAPI      GetSystemMetrics(int index);
LONG WINAPI     GetWindowLongA(HWND hwnd, int index);
LONG_PTR WINAPI GetWindowLongPtrA(HWND hwnd, int index);
BOOL WINAPI     InflateRect(RECT* rect, int dx, int dy);
BOOL WINAPI     IntersectRect(RECT* out, const RECT* a, const RECT* b);
BOOL WINAPI     InvalidateRect(HWND hwnd, const RECT* rect, BOOL erase);
BOOL WINAPI     IsRectEmpty(const RECT* rect);
BOOL WINAPI     IsWindow(HWND hwnd);
BOOL WINAPI     IsWindowVisible(HWND hwnd);
BOOL WINAPI     MessageBeep(UINT type);
BOOL WINAPI     OffsetRect(RECT* rect, int dx, int dy);
BOOL WINAPI     PostMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
BOOL WINAPI     PtInRect(const RECT* rect, POINT point);
int WINAPI      ReleaseDC(HWND hwnd, HDC hdc);
LRESULT WINAPI  SendMessageA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
BOOL WINAPI     SetRect(RECT* rect, int left, int top, int right, int bottom);
BOOL WINAPI     SetRectEmpty(RECT* rect);
LONG WINAPI     SetWindowLongA(HWND hwnd, int index, LONG value);
LONG_PTR WINAPI SetWindowLongPtrA(HWND hwnd, int index, LONG_PTR value);
BOOL WINAPI     UnionRect(RECT* out, const RECT* a, const RECT* b);
BOOL WINAPI     UpdateWindow(HWND hwnd);
int             wsprintfA(char* out, const char* format, ...);
int WINAPI      wvsprintfA(char* out, const char* format, va_list args);

/* GDI32 */

BOOL WINAPI    DeleteObject(HGDIOBJ object);
int WINAPI     GetDeviceCaps(HDC hdc, int index);
HGDIOBJ WINAPI GetStockObject(int object);
BOOL WINAPI    GetTextExtentPoint32A(HDC hdc, const char* text, int count, SIZE* size);
BOOL WINAPI    GetTextExtentPointA(HDC hdc, const char* text, int count, SIZE* size);
BOOL WINAPI    GetTextMetricsA(HDC hdc, TEXTMETRICA* metrics);
int WINAPI     IntersectClipRect(HDC hdc, int left, int top, int right, int bottom);
BOOL WINAPI    RestoreDC(HDC hdc, int saved);
int WINAPI     SaveDC(HDC hdc);
HGDIOBJ WINAPI SelectObject(HDC hdc, HGDIOBJ object);

/* The C runtime's 64-bit clock: it ends with the year 3000 and refuses times before 1970. */

typedef int64_t __time64_t;

struct tm* __cdecl _localtime64(const __time64_t* clock);
__time64_t __cdecl _mktime64(struct tm* calendar);

#ifdef __cplusplus
}
#endif

#endif
