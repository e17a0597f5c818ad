// The pointers of a grid: an ordinary one, one for each kind of size zone, and one while columns are moved.
// Loaded with the first grid, destroyed with the last.
#include "gridctl/grid_control.h"

#include "foundation/startup.h"

namespace {

enum CursorIndex { RowSize, ColumnSize, ColumnMove, CursorCount };

// By CursorIndex
constexpr int cursorIds[CursorCount] = { 4302, 4303, 4304 };

HCURSOR gCursors[CursorCount];
int     gUsers;

} // namespace

void HGAddCursorUser()
{
    if (gUsers++ > 0) {
        return;
    }
    for (int i = 0; i < CursorCount; ++i) {
        gCursors[i] = LoadCursorA(hInstance, MAKEINTRESOURCEA(cursorIds[i]));
    }
}

void HGDropCursorUser()
{
    if (--gUsers > 0) {
        return;
    }
    for (HCURSOR& cursor : gCursors) {
        if (cursor) {
            DestroyCursor(cursor);
        }
        cursor = nullptr;
    }
}

void HGShowMoveCursor()
{
    SetCursor(gCursors[ColumnMove]);
}

int HGSizeHit(HGridCtl* ctl, HWND window, int hitCode)
{
    if (HasFlag(ctl, HGC_MOUSEDOWN) || hitCode != HTCLIENT) {
        const bool moving = HasFlag(ctl, HGC_COLDRAG);
        if (moving) {
            HGShowMoveCursor();
        }
        return moving;
    }
    POINT point = {};
    GetCursorPos(&point);
    ScreenToClient(window, &point);
    gSizeZone = HGSizeZoneAt(ctl, point);
    if (gSizeZone == 0) {
        return 0;
    }
    SetCursor(gCursors[gSizeZone < rowHeaderZone ? RowSize : ColumnSize]);
    return 1;
}
