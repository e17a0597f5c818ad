// Keeps a control from painting over its siblings.
#include "dialog/control_frame.h"

#include "foundation/memory.h"

namespace {

constexpr int classNameSize = 64;

// What EnumChildWindows carries along.
struct SiblingClip {
    HDC  hdc;
    HWND hwnd; // the window that draws
    RECT screen;
};

// Statics and buttons with a style of their own are drawn around, not excluded.
bool IsSeeThrough(HWND sibling)
{
    char name[classNameSize] = "";
    GetClassNameA(sibling, name, classNameSize);
    if (HCompareNoCase(name, "HStat") != 0 && HCompareNoCase(name, "HButt") != 0) {
        return false;
    }
    return SendMessageA(sibling, WWM_GETSTYLE, 0, 0) != 0;
}

} // namespace

BOOL CALLBACK ClipSibs(HWND hwnd, LPARAM data)
{
    const SiblingClip* const clip = reinterpret_cast<const SiblingClip*>(data);
    if (!clip || hwnd == clip->hwnd || !IsWindowVisible(hwnd) || IsSeeThrough(hwnd)) {
        return TRUE;
    }
    RECT sibling = {};
    RECT common;
    GetWindowRect(hwnd, &sibling);
    if (IntersectRect(&common, &sibling, &clip->screen)) {
        RStoC(clip->hwnd, &common);
        ExcludeClipRect(clip->hdc, common.left, common.top, common.right, common.bottom);
    }
    return TRUE;
}

int HClipSiblings(HWND hwnd, HDC hdc)
{
    SiblingClip clip = { hdc, hwnd, {} };
    GetWindowRect(hwnd, &clip.screen);
    return EnumChildWindows(GetParent(hwnd), ClipSibs, reinterpret_cast<LPARAM>(&clip));
}
