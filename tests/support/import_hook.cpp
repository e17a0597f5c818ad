// Finds where the program keeps the address of an imported function, by its own headers.
#include "support/import_hook.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstring>

namespace {

template <typename T>
T* At(ULONG_PTR offset)
{
    return reinterpret_cast<T*>(reinterpret_cast<BYTE*>(GetModuleHandleA(nullptr)) + offset);
}

const IMAGE_IMPORT_DESCRIPTOR* ImportsOf(const char* library)
{
    const auto* const headers = At<IMAGE_NT_HEADERS>(static_cast<ULONG_PTR>(At<IMAGE_DOS_HEADER>(0)->e_lfanew));
    const DWORD offset = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (const auto* import = At<IMAGE_IMPORT_DESCRIPTOR>(offset); import->Name; ++import) {
        if (lstrcmpiA(At<char>(import->Name), library) == 0) {
            return import;
        }
    }
    return nullptr;
}

bool IsNamed(const IMAGE_THUNK_DATA& import, const char* function)
{
    return !IMAGE_SNAP_BY_ORDINAL(import.u1.Ordinal) &&
           std::strcmp(At<char>(import.u1.AddressOfData + offsetof(IMAGE_IMPORT_BY_NAME, Name)), function) == 0;
}

// Null if the program doesn't import the function.
void** SlotOf(const char* function, const char* library)
{
    const IMAGE_IMPORT_DESCRIPTOR* const import = ImportsOf(library);
    if (!import) {
        return nullptr;
    }
    const auto* name = At<IMAGE_THUNK_DATA>(import->OriginalFirstThunk);
    auto*       slot = At<IMAGE_THUNK_DATA>(import->FirstThunk);
    for (; name->u1.AddressOfData; ++name, ++slot) {
        if (IsNamed(*name, function)) {
            return reinterpret_cast<void**>(&slot->u1.Function);
        }
    }
    return nullptr;
}

void Store(void** slot, void* function)
{
    DWORD old = 0;
    VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &old);
    *slot = function;
    VirtualProtect(slot, sizeof *slot, old, &old);
}

int gBeeps;
BOOL WINAPI CountBeep(UINT)
{
    ++gBeeps;
    return TRUE;
}

} // namespace

ImportHook::ImportHook(const char* function, void* replacement, const char* library)
    : slot_(SlotOf(function, library)), real_(nullptr)
{
    EXPECT_NE(nullptr, slot_) << function << " isn't imported";
    if (slot_) {
        real_ = *slot_;
        Store(slot_, replacement);
    }
}

ImportHook::~ImportHook()
{
    if (slot_) {
        Store(slot_, real_);
    }
}

BeepCounter::BeepCounter() : hook_("MessageBeep", CountBeep)
{
    gBeeps = 0;
}

int BeepCounter::Count() const
{
    const int count = gBeeps;
    gBeeps = 0;
    return count;
}
