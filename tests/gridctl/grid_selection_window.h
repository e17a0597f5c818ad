// The fixture of tests of a selection's pixels: what is inverted, and what is as without a selection.
#pragma once

#include "gridctl/grid_paint_window.h"

constexpr DWORD keepStyle = gridStyle | HGS_KEEPSEL;
constexpr DWORD readOnlyStyle = keepStyle | HGS_READONLY;

inline LRESULT CALLBACK SilentProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WM_SETFONT ? 0 : HGridWnd(hwnd, message, wParam, lParam);
}

class GridSelectionPaint : public GridPaintTest {
protected:
    HWND MakeSelectable(DWORD style, int rows = 5)
    {
        HGridData* const data = GridOf({ Text(), Text(16, "Fixed", HFF_READONLY), Text(), Drawn() }, style);
        return MakeHostDrawn(data, rows, SilentProc);
    }
    static testing::AssertionResult IsInverted(const Pixels& plain, const Pixels& shot, const RECT& area)
    {
        Pixels expected = PartOf(plain, area);
        for (COLORREF& color : expected.colors) {
            color = ~color & 0x00FFFFFF;
        }
        return SamePixels(expected, PartOf(shot, area));
    }
    static testing::AssertionResult IsPlain(const Pixels& plain, const Pixels& shot, const RECT& area)
    {
        return SamePixels(plain, shot, area);
    }
    // The grid without its selection, headers as they are with it.
    Pixels Plain()
    {
        SetFlag(ctl, HGC_CELLSHOWN, false);
        const Pixels shot = Repaint();
        SetFlag(ctl, HGC_CELLSHOWN, true);
        return shot;
    }
    RECT SelectionRect(Cell anchor, Cell cur)
    {
        RECT rect{};
        HGSelectionRect(ctl, &rect, PackCell(anchor.col, anchor.row), PackCell(cur.col, cur.row), nullptr);
        return rect;
    }
};
