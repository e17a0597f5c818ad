// Sizes of windows, their places on the screen, and rectangles between screen and client.
#include <widgets/widgets.h>

#include <algorithm>

namespace {

constexpr LONG64 farthest = 0x3FFFFFFF; // no screen reaches this far, and a sum of two still is a number

RECT OutsideOf(HWND hwnd)
{
    RECT rect = {};
    GetWindowRect(hwnd, &rect);
    return rect;
}

SIZE ScreenSize()
{
    return { GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) };
}

SIZE RoomFor(HWND parent)
{
    if (!parent) {
        return ScreenSize();
    }
    RECT client = {};
    GetClientRect(parent, &client);
    return { client.right, client.bottom };
}

// Bounded: an offset that leads out of the numbers leads as far as they go.
LONG CentredY(int room, int height, int yOffset)
{
    const LONG64 y = (room - height) / 2 + LONG64{ yOffset };
    return static_cast<LONG>(std::clamp(y, -farthest, farthest));
}

// How far a side that begins and ends here has to move to lie on the screen.
LONG ShiftOnto(LONG size, LONG begin, LONG end)
{
    if (begin < 0) {
        return -begin;
    }
    return end > size ? size - end : 0;
}

// Cuts what is larger than the screen, and moves what is beyond its edges.
RECT HoldTo(SIZE screen, RECT rect)
{
    if (rect.right - rect.left > screen.cx) {
        rect.right = rect.left + screen.cx;
    }
    if (rect.bottom - rect.top > screen.cy) {
        rect.bottom = rect.top + screen.cy;
    }
    OffsetRect(&rect, ShiftOnto(screen.cx, rect.left, rect.right), ShiftOnto(screen.cy, rect.top, rect.bottom));
    return rect;
}

void MapCorners(HWND hwnd, RECT* rect, BOOL(WINAPI* map)(HWND, POINT*))
{
    if (!rect) {
        return;
    }
    POINT corners[] = { { rect->left, rect->top }, { rect->right, rect->bottom } };
    map(hwnd, &corners[0]);
    map(hwnd, &corners[1]);
    *rect = { corners[0].x, corners[0].y, corners[1].x, corners[1].y };
}

} // namespace

BOOL WINAPI CenterWindow(HWND hwnd, int yOffset)
{
    if (!IsWindow(hwnd)) {
        return FALSE;
    }
    const int  width = WindowWidth(hwnd);
    const int  height = WindowHeight(hwnd);
    const HWND parent = GetParent(hwnd);
    const SIZE room = RoomFor(parent);
    POINT      place = { (room.cx - width) / 2, CentredY(room.cy, height, yOffset) };
    if (parent) {
        ClientToScreen(parent, &place);
    }
    // Settled: a child is moved to the point of the screen as it stands, so this is for pop-ups.
    return MoveWindow(hwnd, place.x < 0 ? 0 : place.x, place.y < 0 ? 0 : place.y, width, height, TRUE);
}

BOOL WINAPI CenterAboutCursor(HWND hwnd)
{
    RECT  rect = OutsideOf(hwnd);
    POINT cursor = {};
    GetCursorPos(&cursor);
    OffsetRect(&rect, cursor.x - (rect.left + rect.right) / 2, cursor.y - (rect.top + rect.bottom) / 2);
    rect = HoldTo(ScreenSize(), rect);
    return MoveWindow(hwnd, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, TRUE);
}

int WINAPI WindowHeight(HWND hwnd)
{
    const RECT rect = OutsideOf(hwnd);
    return rect.bottom - rect.top;
}

int WINAPI WindowWidth(HWND hwnd)
{
    const RECT rect = OutsideOf(hwnd);
    return rect.right - rect.left;
}

void WINAPI RStoC(HWND hwnd, RECT* rect)
{
    MapCorners(hwnd, rect, ScreenToClient);
}

void WINAPI RCtoS(HWND hwnd, RECT* rect)
{
    MapCorners(hwnd, rect, ClientToScreen);
}
