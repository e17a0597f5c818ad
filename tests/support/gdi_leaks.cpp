// Counts the GDI objects and DCs that this program has made and not given back.
#include "support/gdi_leaks.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstring>
#include <map>

namespace {

struct LiveObject {
    const char* maker;
    int         count;
};

std::map<void*, LiveObject>& Objects()
{
    static std::map<void*, LiveObject> objects;
    return objects;
}

void Made(void* handle, const char* maker)
{
    if (handle) {
        LiveObject& object = Objects()[handle];
        object.maker = maker;
        ++object.count;
    }
}

void Gone(void* handle)
{
    const auto found = Objects().find(handle);
    if (found != Objects().end() && --found->second.count == 0) {
        Objects().erase(found);
    }
}

// One class for each function that makes an object; number only tells them apart.
template <int number, typename Function>
struct Maker;

template <int number, typename Result, typename... Args>
struct Maker<number, Result WINAPI(Args...)> {
    static inline Result(WINAPI* next)(Args...);
    static inline const char* name;

    static Result WINAPI Call(Args... args)
    {
        const Result result = next(args...);
        Made(result, name);
        return result;
    }
};

decltype(DeleteObject)* gDeleteObject;
decltype(DeleteDC)*     gDeleteDC;
decltype(ReleaseDC)*    gReleaseDC;
decltype(EndPaint)*     gEndPaint;
decltype(DestroyIcon)*  gDestroyIcon;

BOOL WINAPI CountedDeleteObject(HGDIOBJ object)
{
    const BOOL deleted = gDeleteObject(object);
    if (deleted) {
        Gone(object);
    }
    return deleted;
}

BOOL WINAPI CountedDeleteDC(HDC hdc)
{
    Gone(hdc);
    return gDeleteDC(hdc);
}

int WINAPI CountedReleaseDC(HWND hwnd, HDC hdc)
{
    Gone(hdc);
    return gReleaseDC(hwnd, hdc);
}

BOOL WINAPI CountedEndPaint(HWND hwnd, const PAINTSTRUCT* ps)
{
    Gone(ps->hdc);
    return gEndPaint(hwnd, ps);
}

BOOL WINAPI CountedDestroyIcon(HICON icon)
{
    Gone(icon);
    return gDestroyIcon(icon);
}

// Puts hook in place of the imported function and keeps that in *next.
template <typename Function>
void Replace(ULONG_PTR* slot, Function* hook, Function** next)
{
    DWORD protection = 0;
    *next = reinterpret_cast<Function*>(*slot);
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
    *slot = reinterpret_cast<ULONG_PTR>(hook);
    VirtualProtect(slot, sizeof *slot, protection, &protection);
}

template <int number, typename Function>
void ReplaceMaker(ULONG_PTR* slot, const char* imported, const char* name)
{
    using Counted = Maker<number, Function>;
    if (std::strcmp(imported, name) == 0) {
        Counted::name = name;
        Replace(slot, Counted::Call, &Counted::next);
    }
}

#define MAKER(function) ReplaceMaker<__LINE__, decltype(function)>(slot, imported, #function)
#define ENDER(function)                                                                                                \
    if (std::strcmp(imported, #function) == 0) {                                                                       \
        Replace(slot, Counted##function, &g##function);                                                                \
    }

void ReplaceImport(ULONG_PTR* slot, const char* imported)
{
    MAKER(CreateBitmap);
    MAKER(CreateBitmapIndirect);
    MAKER(CreateBrushIndirect);
    MAKER(CreateCompatibleBitmap);
    MAKER(CreateCompatibleDC);
    MAKER(CreateDIBSection);
    MAKER(CreateDIBitmap);
    MAKER(CreateFontA);
    MAKER(CreateFontIndirectA);
    MAKER(CreateHatchBrush);
    MAKER(CreateIcon);
    MAKER(CreatePalette);
    MAKER(CreatePatternBrush);
    MAKER(CreatePen);
    MAKER(CreatePenIndirect);
    MAKER(CreateRectRgn);
    MAKER(CreateRectRgnIndirect);
    MAKER(CreateSolidBrush);
    MAKER(LoadBitmapA);
    MAKER(BeginPaint);
    MAKER(GetDC);
    MAKER(GetDCEx);
    MAKER(GetWindowDC);
    ENDER(DeleteObject)
    ENDER(DeleteDC)
    ENDER(ReleaseDC)
    ENDER(EndPaint)
    ENDER(DestroyIcon)
}

void ReplaceImportsFrom(BYTE* base, const IMAGE_IMPORT_DESCRIPTOR& import)
{
    auto* name = reinterpret_cast<const IMAGE_THUNK_DATA*>(base + import.OriginalFirstThunk);
    auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(base + import.FirstThunk);
    for (; name->u1.AddressOfData; ++name, ++slot) {
        if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) {
            const auto* const byName = reinterpret_cast<const IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
            ReplaceImport(reinterpret_cast<ULONG_PTR*>(&slot->u1.Function),
                          reinterpret_cast<const char*>(byName->Name));
        }
    }
}

// Done once, before the library makes its first object.
bool ReplaceImports()
{
    BYTE* const       base = reinterpret_cast<BYTE*>(GetModuleHandleA(nullptr));
    const auto* const dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base);
    const auto* const nt = reinterpret_cast<const IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const DWORD       table = nt->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* import = reinterpret_cast<const IMAGE_IMPORT_DESCRIPTOR*>(base + table); import->Name; ++import) {
        ReplaceImportsFrom(base, *import);
    }
    return true;
}

const bool gReplaced = ReplaceImports();

} // namespace

int LiveGdiObjects()
{
    int count = 0;
    for (const auto& [handle, object] : Objects()) {
        count += object.count;
    }
    return count;
}

std::string DescribeGdiObjects()
{
    std::map<std::string, int> counts;
    for (const auto& [handle, object] : Objects()) {
        counts[object.maker] += object.count;
    }
    std::string text;
    for (const auto& [maker, count] : counts) {
        text += (text.empty() ? "" : ", ") + maker + " " + std::to_string(count);
    }
    return text;
}

GdiLeakCheck::GdiLeakCheck() : before_(LiveGdiObjects()), described_(DescribeGdiObjects())
{
}

GdiLeakCheck::~GdiLeakCheck()
{
    if (!ignored_) {
        EXPECT_EQ(before_, LiveGdiObjects())
            << "GDI objects before: " << described_ << "\nGDI objects now: " << DescribeGdiObjects();
    }
}
