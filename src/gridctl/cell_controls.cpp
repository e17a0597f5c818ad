// Makes the child window of a column: one hidden control of the library, shared by all rows, described by a type text.
#include "gridctl/cell_controls.h"

#include "griddata/grid_services.h"

#include <cstdio>
#include <cstring>

namespace {

// Room for what stands around the format in a type text, and for the description of a check button.
constexpr size_t textFrame = 256;

using MakeText = void (*)(const HGField* field, char* out, size_t size);

void AppendPair(char* out, char dataClass, char dataType)
{
    const size_t length = std::strlen(out);
    out[length] = '%';
    out[length + 1] = dataClass;
    out[length + 2] = dataType;
    out[length + 3] = 0;
}

void AppendBothPairs(const HGField* field, char* out)
{
    AppendPair(out, field->cClass, field->cType);
    if (ValidType(field->cClass2, field->cType2)) {
        AppendPair(out, field->cClass2, field->cType2);
    }
}

void EditText(const HGField* field, char* out, size_t)
{
    AppendPair(out, field->cClass, field->cType);
    std::strcat(out, field->pszFormat);
}

void BareEditText(const HGField* field, char* out, size_t)
{
    AppendPair(out, field->cClass, field->cType);
}

void ListText(const HGField* field, char* out, size_t)
{
    AppendBothPairs(field, out);
    std::strcat(out, field->pszFormat);
}

void ComboText(const HGField* field, char* out, size_t size)
{
    std::snprintf(out, size, "#%d", field->nHeight);
    ListText(field, out, size);
}

void CheckText(const HGField* field, char* out, size_t size)
{
    constexpr int checkKind = 2;
    const int length = LoadDefTypeText(checkKind, out, static_cast<int>(size), "");
    if (length > 3) {
        out[1] = '4';
        out[3] = field->cType;
    }
}

// The window style: what the field asks for less dropBits, plus addBits; without own bits, addBits alone.
struct CellKind {
    char        kind;
    const char* className;
    MakeText    text;
    bool        ownStyle;
    DWORD       dropBits;
    DWORD       addBits;
    WNDPROC     wrap;
};

constexpr int kindCount = 6;

// The order of the kinds is part of the interface: it gives the control ids.
// Settled: kind q has no procedure at all, its child is for a subclass of the host.
// clang-format off
constexpr CellKind kinds[kindCount] = {
    { 'e', "HEdit_SS", EditText,     true,  0x00800000, 0x40000200, HGEditCellProc },
    { 'l', "HList",    ListText,     true,  0x00800020, 0x40000011, HGListCellProc },
    { 'c', "HComb",    ComboText,    true,  0x00800020, 0x40000019, HGComboCellProc },
    { 'd', "HComb",    ComboText,    true,  0x00800020, 0x40000011, HGFieldComboCellProc },
    { 'k', "HButt",    CheckText,    false, 0,          0x40001C02, HGCheckCellProc },
    { 'q', "HEdit_SS", BareEditText, true,  0x00800000, 0x40000200, nullptr },
};
// clang-format on

DWORD StyleOf(const CellKind& kind, HGField* field)
{
    if (kind.kind == 'e' && (field->dwCtlStyle & HES_RIGHT)) {
        field->dwCtlStyle |= HES_EDITRIGHT;
    }
    return kind.ownStyle ? (field->dwCtlStyle & ~kind.dropBits) | kind.addBits : kind.addBits;
}

HWND MakeWindow(HGridCtl* ctl, HGField* field, const CellKind& kind, int index)
{
    const size_t size = std::strlen(field->pszFormat) + textFrame;
    char* const text = static_cast<char*>(HBlockAlloc(size));
    if (!text) {
        return nullptr;
    }
    kind.text(field, text, size);
    const INT_PTR id = index + firstCellId;
    const HINSTANCE instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(ctl->hWnd, GWLP_HINSTANCE));
    const HWND child = CreateWindowExA(0, kind.className, text, StyleOf(kind, field), 0, 0, 0, 0, ctl->hWnd,
                                       reinterpret_cast<HMENU>(id), instance, nullptr);
    HBlockFree(text);
    return child;
}

void LimitText(const HGField* field, HWND child)
{
    const int limit = field->cbSize > 0 ? field->cbSize - 1 : 0;
    SendMessageA(child, EM_LIMITTEXT, static_cast<WPARAM>(limit), 0);
}

DataList* ListIn(HWND child)
{
    char name[8] = {};
    GetClassNameA(child, name, sizeof name);
    if (std::strcmp(name, "HList") == 0) {
        return HLGetList(child);
    }
    return std::strcmp(name, "HComb") == 0 ? HCGetList(child) : nullptr;
}

// The items of a list or a combo, whose record is packed; none for another class.
DataList ItemsOf(HWND child)
{
    DataList              items = {};
    const DataList* const list = ListIn(child);
    if (list) {
        std::memcpy(&items, list, sizeof items);
    }
    return items;
}

} // namespace

int HGItemSize(HWND child, int index)
{
    DataList items = ItemsOf(child);
    return HDLGetDataSize(&items, index);
}

int HGItemCodeSize(HWND child, int index)
{
    DataList items = ItemsOf(child);
    return HDLGetCodeSize(&items, index);
}

int HGCellCtlIndex(char kind)
{
    for (int i = 0; i < kindCount; ++i) {
        if (kinds[i].kind == kind) {
            return i;
        }
    }
    return -1;
}

int HGCreateCellCtl(HGridCtl* ctl, HGridData*, HGField* field)
{
    const int index = HGCellCtlIndex(field->cKind);
    if (index < 0) {
        return 0;
    }
    const CellKind& kind = kinds[index];
    const HWND child = MakeWindow(ctl, field, kind, index);
    // Whoever hears of the new window may have ended the grid, and the column with it.
    if (!child || !IsWindow(child)) {
        return 0;
    }
    if (kind.kind == 'e' && field->cType == 's') {
        LimitText(field, child);
    }
    if (ctl->hFont) {
        SendMessageA(child, WM_SETFONT, reinterpret_cast<WPARAM>(ctl->hFont), 0);
    }
    field->pCtl = reinterpret_cast<ControlHeader*>(SendMessageA(child, WWM_GETSTATE, 0, 0));
    if (!field->pCtl) {
        return 0;
    }
    field->pCtl->hParent = ctl->hWnd;
    // Bounded: Windows would call a null procedure before a host can put its own there.
    if (kind.wrap) {
        SubclassWW(child, kind.wrap);
    }
    return 1;
}
