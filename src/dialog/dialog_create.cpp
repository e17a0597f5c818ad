// Makes the controls of a dialog template inside a window that is there already.
#include "dialog/dialog_template.h"

#include "foundation/gdi_guards.h"

#include <widgets/widgets.h>

#include <algorithm>

namespace {

constexpr int textSize = 128; // of titles, names of classes and of fonts, in bytes

struct AnsiText {
    char text[textSize];
};

struct DialogBeingMade {
    HINSTANCE   instance;
    HWND        hwnd;
    DialogUnits units;
    HFONT       font;
    HWND        first;        // the first child
    HWND        firstTabStop; // the first child that the Tab key reaches
};

bool LoadTemplate(HINSTANCE instance, const char* name, TemplateBytes* out)
{
    const HRSRC       found = FindResourceA(instance, name, RT_DIALOG);
    const HGLOBAL     loaded = found ? LoadResource(instance, found) : nullptr;
    const void* const first = loaded ? LockResource(loaded) : nullptr;
    *out = { static_cast<const BYTE*>(first), first ? SizeofResource(instance, found) : 0, 0 };
    return first != nullptr;
}

// Bounded: what doesn't fit is cut between two characters of the template, which may be the halves of a surrogate pair.
AnsiText Convert(const TemplateText& text)
{
    WCHAR wide[textSize - 1];
    int   count = static_cast<int>(std::min<size_t>(text.length, textSize - 1));
    for (int i = 0; i < count; ++i) {
        wide[i] = text.At(static_cast<size_t>(i));
    }
    AnsiText result = {};
    while (count > 0 && !WideCharToMultiByte(CP_ACP, 0, wide, count, result.text, textSize - 1, nullptr, nullptr)) {
        --count;
        result = {};
    }
    return result;
}

void SetTitle(HWND hwnd, const TemplateHeader& header)
{
    if (header.title.length > 0) {
        SetWindowTextA(hwnd, Convert(header.title).text);
    }
}

HFONT MakeFont(HWND hwnd, const TemplateHeader& header)
{
    if (!NamesFont(header)) {
        return nullptr;
    }
    const WindowDC dc(hwnd);
    const int      height = TemplateFontHeight(header, GetDeviceCaps(dc.hdc, LOGPIXELSY));
    return CreateFontA(height, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, 0, Convert(header.face).text);
}

DialogUnits UnitsOf(DWORD units)
{
    return { LOWORD(units), HIWORD(units) };
}

DialogUnits UnitsWith(HFONT font)
{
    const DialogUnits units = font ? UnitsOf(GetBaseUnits(font)) : DialogUnits{};
    return units.x && units.y ? units : UnitsOf(static_cast<DWORD>(GetDialogBaseUnits()));
}

HWND CreateItem(const DialogBeingMade& dialog, const TemplateItem& item)
{
    const AnsiText   className = Convert(item.className);
    const PixelPlace place = PlaceOf(item, dialog.units);
    return CreateWindowExA(0, item.systemClass ? item.systemClass : className.text, Convert(item.title).text,
                           item.style | WS_CHILD, place.x, place.y, place.width, place.height, dialog.hwnd,
                           reinterpret_cast<HMENU>(static_cast<UINT_PTR>(item.id)), dialog.instance,
                           const_cast<BYTE*>(item.data));
}

void AddItem(const TemplateItem& item, void* context)
{
    DialogBeingMade* const dialog = static_cast<DialogBeingMade*>(context);
    const HWND             child = CreateItem(*dialog, item);
    if (!child) {
        return;
    }
    if (!dialog->first) {
        dialog->first = child;
    }
    if (!dialog->firstTabStop && (item.style & WS_TABSTOP)) {
        dialog->firstTabStop = child;
    }
    if (dialog->font) {
        SendMessageA(child, WM_SETFONT, reinterpret_cast<WPARAM>(dialog->font), 1);
    }
}

void AddItems(DialogBeingMade* dialog, TemplateBytes* bytes, const TemplateHeader& header)
{
    // Without a window, the whole screen would be painted again.
    if (!IsWindow(dialog->hwnd)) {
        return;
    }
    SendMessageA(dialog->hwnd, WM_SETREDRAW, FALSE, 0);
    ReadTemplateItems(bytes, header, AddItem, dialog);
    SendMessageA(dialog->hwnd, WM_INITDIALOG, reinterpret_cast<WPARAM>(dialog->firstTabStop), 0);
    SendMessageA(dialog->hwnd, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(dialog->hwnd, nullptr, FALSE);
}

} // namespace

HWND WINAPI CreateDialogInWin(HINSTANCE instance, const char* dialogTemplate, HWND hwnd, RECT* outRect, HFONT* outFont)
{
    TemplateBytes  bytes;
    TemplateHeader header;
    // The resource stays: the children may keep the address of their creation data.
    if (!LoadTemplate(instance, dialogTemplate, &bytes) || !ReadTemplateHeader(&bytes, &header)) {
        return nullptr;
    }
    SetTitle(hwnd, header);
    DialogBeingMade dialog = { instance, hwnd, {}, outFont ? MakeFont(hwnd, header) : nullptr, nullptr, nullptr };
    dialog.units = UnitsWith(dialog.font);
    if (outFont) {
        *outFont = dialog.font;
    }
    if (outRect) {
        *outRect = SizeOf(header, dialog.units);
    }
    AddItems(&dialog, &bytes, header);
    return dialog.firstTabStop ? dialog.firstTabStop : dialog.first;
}
