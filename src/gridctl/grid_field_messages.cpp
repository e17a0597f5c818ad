// Own messages of a grid that read and change one column, which comes in by its position.
// The way from position to column is written once, before the lookup.
#include "gridctl/grid_handlers.h"

#include <algorithm>
#include <cstring>

namespace {

// A column as a message names it.
struct FieldRef {
    HGField* field;
    int      col;
};

using FieldHandler = LRESULT (*)(HGridCtl* ctl, const FieldRef& ref, LPARAM lParam);

constexpr int minFieldWidth = 2;
constexpr int maxFieldWidth = 2000;

LRESULT GiveText(const char* text, LPARAM buffer)
{
    if (buffer) {
        _fstrnzcpy(reinterpret_cast<char*>(buffer), text, -1);
    }
    return 1;
}

LRESULT LengthOf(const char* text)
{
    return text ? static_cast<LRESULT>(std::strlen(text)) : 0;
}

// Letters are numbers from 0 to 255 for a host.
LRESULT Letter(char ch)
{
    return static_cast<unsigned char>(ch);
}

// From the column's left edge to the right end of the window, where columns behind it have moved.
void InvalidateFrom(HGridCtl* ctl, int col)
{
    RECT rect;
    RECT client;
    HGColumnRect(ctl, &rect, col, -1);
    HGClientRect(ctl, &client);
    rect.right = std::max(rect.left, client.right);
    rect.top = client.top;
    rect.bottom = client.bottom;
    InvalidateRect(ctl->hWnd, &rect, TRUE);
}

void InvalidateColumn(HGridCtl* ctl, int col)
{
    RECT rect;
    HGColExtent(ctl, &rect, col);
    InvalidateRect(ctl->hWnd, &rect, FALSE);
}

LRESULT OnGetBand(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return ref.field->nBand;
}

LRESULT OnSetBand(HGridCtl* ctl, const FieldRef& ref, LPARAM band)
{
    if (band < 0 || band >= ctl->cBands) {
        return 0;
    }
    ref.field->nBand = static_cast<signed char>(band);
    return 1;
}

LRESULT OnGetChild(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return ref.field->pCtl ? reinterpret_cast<LRESULT>(ref.field->pCtl->hWnd) : 0;
}

LRESULT OnGetCtlStyle(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return static_cast<LRESULT>(ref.field->dwCtlStyle);
}

LRESULT OnGetKind(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return Letter(ref.field->cKind);
}

LRESULT OnGetClass2(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return Letter(ref.field->cClass2);
}

LRESULT OnGetType2(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return Letter(ref.field->cType2);
}

LRESULT OnGetClass(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return Letter(ref.field->cClass);
}

LRESULT OnGetSize(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return ref.field->cbSize;
}

LRESULT OnGetType(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return Letter(ref.field->cType);
}

LRESULT OnGetFormat(HGridCtl*, const FieldRef& ref, LPARAM buffer)
{
    return GiveText(ref.field->pszFormat, buffer);
}

LRESULT OnSetFormat(HGridCtl* ctl, const FieldRef& ref, LPARAM lParam)
{
    char* const format = hstrdup(reinterpret_cast<const char*>(lParam));
    if (!format) {
        return 1;
    }
    HBlockFree(ref.field->pszFormat);
    ref.field->pszFormat = format;
    const HWND hwnd = ctl->hWnd;
    if (ref.field->pCtl) {
        // Not the host's text, which may have been the one just freed.
        SendMessageA(ref.field->pCtl->hWnd, HEM_SETFORMAT, 1, reinterpret_cast<LPARAM>(format));
    }
    if (!IsWindow(hwnd)) {
        return 1;
    }
    HGInvalidateRange(ctl, ref.col, ctl->nTopRow, ref.col, LastRow(ctl));
    return 1;
}

LRESULT OnGetFormatLen(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return LengthOf(ref.field->pszFormat);
}

LRESULT OnGetTitle(HGridCtl*, const FieldRef& ref, LPARAM buffer)
{
    return GiveText(ref.field->pszTitle, buffer);
}

LRESULT OnGetTitleLen(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return LengthOf(ref.field->pszTitle);
}

LRESULT OnSetTitle(HGridCtl* ctl, const FieldRef& ref, LPARAM lParam)
{
    char* title = ref.field->pszTitle;
    // A host that gives the stored text back changes nothing.
    if (reinterpret_cast<const char*>(lParam) != title) {
        hstrdup2(&title, reinterpret_cast<const char*>(lParam));
        ref.field->pszTitle = title;
    }
    HGInvalidateCell(ctl, ref.col, -1);
    return 1;
}

LRESULT OnGetWidth(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return HGUnscaleX(ref.field->nWidth);
}

LRESULT OnSetWidth(HGridCtl* ctl, const FieldRef& ref, LPARAM width)
{
    const int bounded = std::clamp(static_cast<int>(width), minFieldWidth, maxFieldWidth);
    ref.field->nWidth = static_cast<short>(HGScaleX(bounded));
    InvalidateFrom(ctl, ref.col);
    HGKeepEditorPlaced(ctl);
    return 1;
}

LRESULT OnGetDrop(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return ref.field->nHeight;
}

LRESULT OnSetDrop(HGridCtl*, const FieldRef& ref, LPARAM height)
{
    ref.field->nHeight = static_cast<short>(height);
    if (ref.field->cKind == 'c' && ref.field->pCtl) {
        SendMessageA(ref.field->pCtl->hWnd, HCM_SETDROP, static_cast<WPARAM>(height), 0);
    }
    return 1;
}

LRESULT OnGetFieldFlags(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return ref.field->wFlags;
}

LRESULT OnSetFieldFlags(HGridCtl* ctl, const FieldRef& ref, LPARAM lParam)
{
    const WORD mask = HIWORD(lParam);
    const WORD old = ref.field->wFlags;
    const WORD flags = static_cast<WORD>(LOWORD(lParam) ? old | mask : old & ~mask);
    ref.field->wFlags = flags;
    const bool locked = ((old ^ flags) & HFF_READONLY) != 0;
    const bool hidden = ((old ^ flags) & HFF_HIDDEN) && HasFlag(ctl, HGC_CELLSHOWN);
    if (ref.col == CurrentCell(ctl).col && (locked || hidden)) {
        const HWND hwnd = ctl->hWnd;
        HGFollowReadOnly(ctl, locked || HGIsSelectionShown(ctl));
        if (!IsWindow(hwnd)) {
            return 1;
        }
    }
    // A column that comes or goes moves all behind it.
    if ((old ^ flags) & HFF_HIDDEN) {
        InvalidateFrom(ctl, ref.col);
        HGKeepEditorPlaced(ctl);
    } else {
        InvalidateColumn(ctl, ref.col);
    }
    return 1;
}

LRESULT OnGetOffset(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return ref.field->nOffset;
}

LRESULT OnGetReserved(HGridCtl*, const FieldRef&, LPARAM)
{
    return 0;
}

LRESULT OnSetBold(HGridCtl* ctl, const FieldRef& ref, LPARAM)
{
    if (!ctl->hBoldFont) {
        return 0;
    }
    ref.field->fBold = 1;
    if (ref.field->pCtl) {
        SendMessageA(ref.field->pCtl->hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(ctl->hBoldFont), 0);
    }
    return 1;
}

LRESULT OnGetName(HGridCtl*, const FieldRef& ref, LPARAM buffer)
{
    return GiveText(ref.field->pszName, buffer);
}

LRESULT OnGetNameLen(HGridCtl*, const FieldRef& ref, LPARAM)
{
    return LengthOf(ref.field->pszName);
}

// clang-format off
constexpr MessageEntry<FieldHandler> messages[] = {
    { HGM_GETFIELDBAND,      OnGetBand },
    { HGM_SETFIELDBAND,      OnSetBand },
    { HGM_GETFIELDCHILD,     OnGetChild },
    { HGM_GETFIELDSTYLE,     OnGetCtlStyle },
    { HGM_GETFIELDKIND,      OnGetKind },
    { HGM_GETFIELDCLASS2,    OnGetClass2 },
    { HGM_GETFIELDTYPE2,     OnGetType2 },
    { HGM_GETFIELDCLASS,     OnGetClass },
    { HGM_GETFIELDSIZE,      OnGetSize },
    { HGM_GETFIELDTYPE,      OnGetType },
    { HGM_GETFIELDFORMAT,    OnGetFormat },
    { HGM_SETFIELDFORMAT,    OnSetFormat },
    { HGM_GETFIELDFORMATLEN, OnGetFormatLen },
    { HGM_GETFIELDTITLE,     OnGetTitle },
    { HGM_GETFIELDTITLELEN,  OnGetTitleLen },
    { HGM_SETFIELDTITLE,     OnSetTitle },
    { HGM_GETFIELDWIDTH,     OnGetWidth },
    { HGM_SETFIELDWIDTH,     OnSetWidth },
    { HGM_GETFIELDDROP,      OnGetDrop },
    { HGM_SETFIELDDROP,      OnSetDrop },
    { HGM_GETFIELDFLAGS,     OnGetFieldFlags },
    { HGM_SETFIELDFLAGS,     OnSetFieldFlags },
    { HGM_GETFIELDOFFSET,    OnGetOffset },
    { HGM_GETFIELDRESERVED,  OnGetReserved },
    { HGM_SETFIELDBOLD,      OnSetBold },
    { HGM_GETFIELDNAME,      OnGetName },
    { HGM_GETFIELDNAMELEN,   OnGetNameLen },
};
// clang-format on
constexpr auto handlers = ByNumber<firstGridMessage, lastGridMessage>(messages);

} // namespace

bool HGOnFieldMessage(HGridCtl* ctl, const MsgArgs& args, LRESULT* result)
{
    const FieldHandler handler = FindHandler<firstGridMessage>(handlers, args.message);
    if (!handler) {
        return false;
    }
    const int pos = static_cast<int>(args.wParam);
    const int col = pos >= 0 && pos <= LastCol(ctl) ? HGPosToCol(ctl->pData, pos) : -1;
    const FieldRef ref = { HGGetField(ctl->pData, col), col };
    *result = ref.field ? handler(ctl, ref, args.lParam) : 0;
    return true;
}
