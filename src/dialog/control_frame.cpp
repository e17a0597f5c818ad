// The shape that all controls share: one-line window procedures, common messages, notifications to the parent.
#include "dialog/control_frame.h"

#include "dialog/message_table.h"
#include "dialog/record_bits.h"
#include "dialog/window_style.h"
#include "foundation/memory.h"

namespace {

int gOverwriteMode;

// Common messages

using StdHandler = LRESULT (*)(ControlHeader* header, WPARAM wParam, LPARAM lParam);

LRESULT OnGetChanged(ControlHeader* header, WPARAM, LPARAM)
{
    return HasFlag(header, CF_CHANGED);
}

LRESULT OnSetChanged(ControlHeader* header, WPARAM wParam, LPARAM)
{
    SetFlag(header, CF_CHANGED, wParam != 0);
    return 1;
}

LRESULT OnSetUpdating(ControlHeader* header, WPARAM wParam, LPARAM)
{
    SetFlag(header, CF_UPDATING, wParam != 0);
    return 1;
}

LRESULT OnGetUpdating(ControlHeader* header, WPARAM, LPARAM)
{
    return HasFlag(header, CF_UPDATING);
}

LRESULT OnGetParent(ControlHeader* header, WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(header->hParent);
}

LRESULT OnSetParent(ControlHeader* header, WPARAM wParam, LPARAM)
{
    const HWND old = header->hParent;
    header->hParent = reinterpret_cast<HWND>(wParam);
    return reinterpret_cast<LRESULT>(old);
}

LRESULT OnGetStyle(ControlHeader* header, WPARAM, LPARAM)
{
    return static_cast<LRESULT>(header->dwStyle);
}

LRESULT OnSetStyle(ControlHeader* header, WPARAM, LPARAM lParam)
{
    header->dwStyle = static_cast<DWORD>(lParam);
    SetWindowStyle(header->hWnd, static_cast<DWORD>(lParam));
    return 1;
}

LRESULT OnCancel(ControlHeader* header, WPARAM, LPARAM)
{
    SetFlag(header, CF_CANCEL, true);
    return 1;
}

LRESULT OnIsNull(ControlHeader* header, WPARAM, LPARAM)
{
    return HasFlag(header, CF_NULL);
}

LRESULT OnSetFont(ControlHeader* header, WPARAM wParam, LPARAM)
{
    const HFONT old = header->hFont;
    header->hFont = reinterpret_cast<HFONT>(wParam);
    SendMessageA(header->hWnd, WM_SIZE, 0, 0);
    return reinterpret_cast<LRESULT>(old);
}

LRESULT OnGetFont(ControlHeader* header, WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(header->hFont);
}

// clang-format off
constexpr MessageEntry<StdHandler> fontMessages[] = {
    { WM_SETFONT, OnSetFont },
    { WM_GETFONT, OnGetFont },
};

constexpr MessageEntry<StdHandler> controlMessages[] = {
    { WWM_GETCHANGED,  OnGetChanged },
    { WWM_SETCHANGED,  OnSetChanged },
    { WWM_SETUPDATING, OnSetUpdating },
    { WWM_GETUPDATING, OnGetUpdating },
    { WWM_GETPARENT,   OnGetParent },
    { WWM_SETPARENT,   OnSetParent },
    { WWM_GETSTYLE,    OnGetStyle },
    { WWM_SETSTYLE,    OnSetStyle },
    { WWM_CANCEL,      OnCancel },
    { WWM_ISNULL,      OnIsNull },
};
// clang-format on

constexpr auto fontHandlers = ByNumber<WM_SETFONT, WM_GETFONT>(fontMessages);
constexpr auto controlHandlers = ByNumber<WWM_GETCHANGED, WWM_ISNULL>(controlMessages);

StdHandler FindStdHandler(UINT message)
{
    const StdHandler handler = FindHandler<WWM_GETCHANGED>(controlHandlers, message);
    return handler ? handler : FindHandler<WM_SETFONT>(fontHandlers, message);
}

// Colour messages

struct ColorKind {
    int  kind;
    UINT message;
};

// clang-format off
constexpr ColorKind colorKinds[] = {
    { 1,  WM_CTLCOLOREDIT },
    { 2,  WM_CTLCOLORLISTBOX },
    { 3,  WM_CTLCOLORBTN },
    { 6,  WM_CTLCOLORSTATIC },
    { 21, HGM_CTLCOLOR },
};
// clang-format on

} // namespace

LRESULT WINAPI HandleMsg(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, WWHANDLER handler, int offset)
{
    const LONG_PTR stored = GetWindowLongPtrA(hwnd, offset);
    if (message == WWM_GETSTATE) {
        return stored;
    }
    if (message == WWM_SETSTATE) {
        SetWindowLongPtrA(hwnd, offset, lParam);
        return 0;
    }
    void* const record = reinterpret_cast<void*>(stored);
    LRESULT     result = 0;
    if (record || message == WM_NCCREATE) {
        int wantsDefault = 0;
        result = handler(hwnd, message, wParam, lParam, &wantsDefault, record);
        // Bounded: with the window the record went, so the common messages aren't asked about it.
        if (!wantsDefault || !IsWindow(hwnd)) {
            return result;
        }
    }
    if (IsStdMessage(record, message, wParam, lParam, &result) || !IsWindow(hwnd)) {
        return result;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

int WINAPI IsStdMessage(void* record, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* outResult)
{
    const StdHandler handler = FindStdHandler(message);
    if (!handler) {
        return 0;
    }
    // Bounded: a window that has lost its record answers 0 to all of them.
    const LRESULT result = record ? handler(static_cast<ControlHeader*>(record), wParam, lParam) : 0;
    if (outResult) {
        *outResult = result;
    }
    return 1;
}

int WINAPI Notify(void* record, int code)
{
    ControlHeader* const header = static_cast<ControlHeader*>(record);
    if (!header || !header->hParent) {
        return 0;
    }
    SetFlag(header, CF_CANCEL, false);
    const HWND hwnd = header->hWnd;
    SendMessageA(header->hParent, WM_COMMAND, MAKEWPARAM(LOWORD(header->wId), code), reinterpret_cast<LPARAM>(hwnd));
    // The parent may have destroyed the control, and the record with it.
    if (!IsWindow(hwnd)) {
        return code;
    }
    const bool vetoed = HasFlag(header, CF_CANCEL);
    SetFlag(header, CF_CANCEL, false);
    return vetoed;
}

LRESULT WINAPI NotifyParent(HWND hwnd, int code)
{
    const WORD id = LOWORD(GetWindowLongA(hwnd, GWL_ID));
    return SendMessageA(GetParent(hwnd), WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(hwnd));
}

HBRUSH WINAPI FireCtlColorMsg(void* record, int kind, HDC hdc)
{
    const ControlHeader* const header = static_cast<const ControlHeader*>(record);
    for (const ColorKind& entry : colorKinds) {
        if (header && entry.kind == kind) {
            return reinterpret_cast<HBRUSH>(SendMessageA(header->hParent, entry.message, reinterpret_cast<WPARAM>(hdc),
                                                         reinterpret_cast<LPARAM>(header->hWnd)));
        }
    }
    return static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
}

int WINAPI GetOverwriteMode(void)
{
    return gOverwriteMode;
}

int WINAPI SetOverwriteMode(int mode)
{
    const int old = gOverwriteMode;
    gOverwriteMode = mode;
    return old;
}
