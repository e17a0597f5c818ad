// Makes dialogs of templates that a test has written.
#include "dialog/template_window.h"

#include "foundation/memory.h"

namespace {

BYTE*  gBlock;
size_t gSize;
int    gDpi;
SIZE   gLetter;

HRSRC WINAPI FindTemplate(HMODULE, LPCSTR, LPCSTR)
{
    return reinterpret_cast<HRSRC>(gBlock);
}

HGLOBAL WINAPI LoadTemplate(HMODULE, HRSRC)
{
    return gBlock;
}

LPVOID WINAPI LockTemplate(HGLOBAL)
{
    return gBlock;
}

DWORD WINAPI TemplateSize(HMODULE, HRSRC)
{
    return static_cast<DWORD>(gSize);
}

int WINAPI DeviceCaps(HDC, int index)
{
    return index == LOGPIXELSX || index == LOGPIXELSY ? gDpi : 0;
}

BOOL WINAPI TextExtent(HDC, LPCSTR, int count, LPSIZE size)
{
    *size = { gLetter.cx * count, gLetter.cy };
    return TRUE;
}

BOOL CALLBACK CountChild(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

} // namespace

TemplateResource::TemplateResource(const Bytes& bytes)
    : find_("FindResourceA", FindTemplate), load_("LoadResource", LoadTemplate), lock_("LockResource", LockTemplate),
      size_("SizeofResource", TemplateSize)
{
    gSize = bytes.size();
    gBlock = static_cast<BYTE*>(HBlockAlloc(gSize ? gSize : 1));
    std::memcpy(gBlock, bytes.data(), gSize);
}

TemplateResource::~TemplateResource()
{
    HBlockFree(gBlock);
    gBlock = nullptr;
}

ScreenOf::ScreenOf(int dpi) : hook_("GetDeviceCaps", DeviceCaps)
{
    gDpi = dpi;
}

FontOf::FontOf(int width, int height) : hook_("GetTextExtentPointA", TextExtent)
{
    gLetter = { width, height };
}

int TemplateWindow::ChildCount() const
{
    int count = 0;
    EnumChildWindows(parent.hwnd(), CountChild, reinterpret_cast<LPARAM>(&count));
    return count;
}

RECT TemplateWindow::PlaceOfChild(int id) const
{
    RECT rect = {};
    GetWindowRect(Child(id), &rect);
    RStoC(parent.hwnd(), &rect);
    return { rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top };
}
