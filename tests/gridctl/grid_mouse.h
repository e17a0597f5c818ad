// A grid of cells whose mouse messages a test sends itself.
#pragma once

#include "gridctl/grid_window.h"

#include "foundation/screen.h"

constexpr DWORD plainStyle = HGS_ROWHEADERS | HGS_COLHEADERS;
constexpr BYTE pressed = 0x80;

class GridMouse : public GridWindow {
protected:
    ~GridMouse() override
    {
        gSizeZone = 0;
        ReleaseCapture();
        ClipCursor(nullptr);
        SetKeys(0, 0);
    }
    void MakeCells(DWORD style = plainStyle, int rows = 30, WORD fixedCols = 0)
    {
        MakeGrid(GridOf({ Text(16, "A"), Text(16, "B"), Text(16, "C"), Text(16, "D"), Text(16, "E") }, style, fixedCols),
                 rows);
        MoveTo(0, 0);
        UpdateWindow(grid);
        seen.NotificationsOnly();
        seen.Clear();
        parent.ClearCounts();
    }
    // What GetKeyState tells of Shift and Ctrl.
    static void SetKeys(BYTE shift, BYTE ctrl)
    {
        BYTE keys[256] = {};
        keys[VK_SHIFT] = shift;
        keys[VK_CONTROL] = ctrl;
        SetKeyboardState(keys);
    }
    void Down(int x, int y) { Send(grid, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Drag(int x, int y) { Send(grid, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Up(int x, int y) { Send(grid, WM_LBUTTONUP, 0, MAKELPARAM(x, y)); }
    void ClickCell(int x, int y)
    {
        Down(x, y);
        Up(x, y);
    }
    int WidthOf(int col) { return HGGetField(ctl->pData, col)->nWidth; }
};
