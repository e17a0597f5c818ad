// Blocks of a host's information that hang on windows, and the end of a dialog's controls.
#include "foundation/memory.h"

namespace {

constexpr char blockProperty[] = "L";
constexpr char otherProperty[] = "H"; // nothing here sets it; it goes with the block

BOOL CALLBACK DestroyChild(HWND hwnd, LPARAM)
{
    return IsWindow(hwnd) ? DestroyWindow(hwnd) : TRUE;
}

} // namespace

void* WINAPI CreateDlgInfo(HWND hwnd, void* block, int size)
{
    if (GetDlgInfo(hwnd) || (!block && size <= 0)) {
        return nullptr;
    }
    void* const hung = block ? block : HBlockAlloc(static_cast<size_t>(size));
    if (!hung) {
        return nullptr;
    }
    if (SetPropA(hwnd, blockProperty, hung)) {
        return hung;
    }
    if (!block) {
        HBlockFree(hung);
    }
    return nullptr;
}

void* WINAPI GetDlgInfo(HWND hwnd)
{
    return GetPropA(hwnd, blockProperty);
}

void* WINAPI FreeDlgInfo(HWND hwnd, int free)
{
    void* const block = RemovePropA(hwnd, blockProperty);
    RemovePropA(hwnd, otherProperty);
    if (!block || !free) {
        return block;
    }
    HBlockFree(block);
    return nullptr;
}

BOOL WINAPI ClearDialog(HWND hwnd)
{
    // Without a window, the walk would be over all windows on the screen.
    if (!IsWindow(hwnd)) {
        return FALSE;
    }
    SendMessageA(hwnd, WM_SETREDRAW, FALSE, 0);
    const BOOL result = EnumChildWindows(hwnd, DestroyChild, 0);
    SendMessageA(hwnd, WM_SETREDRAW, TRUE, 0);
    InvalidateRect(hwnd, nullptr, TRUE);
    UpdateWindow(hwnd);
    return result;
}
