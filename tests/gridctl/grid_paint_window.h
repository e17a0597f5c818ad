// The fixture of painting tests: a grid with a font whose pixels are of one colour, and ways to look at its parts.
#pragma once

#include "gridctl/grid_paint.h"
#include "gridctl/grid_window.h"

#include "foundation/gdi_guards.h"
#include "foundation/startup.h"
#include "support/pixels.h"

#include <string>

constexpr COLORREF noColor = 0xFFFFFFFF;
constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

// A system colour until the end of the scope, where the platform's own may equal another.
class SystemColor {
public:
    SystemColor(int index, COLORREF color) : index_(index), old_(GetSysColor(index)) { Set(color); }
    ~SystemColor() { Set(old_); }
    SystemColor(const SystemColor&) = delete;
    SystemColor& operator=(const SystemColor&) = delete;

private:
    // Every window is told, the desktop's too, and that repaints: over before anything else is looked at.
    void Set(COLORREF color)
    {
        SetSysColors(1, &index_, &color);
        SendMessageA(GetDesktopWindow(), WM_NULL, 0, 0);
        PumpPending();
    }

    int      index_;
    COLORREF old_;
};

inline Pixels PartOf(const Pixels& shot, const RECT& area)
{
    Pixels part{ area.right - area.left, area.bottom - area.top, {} };
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            part.colors.push_back(shot.At(x, y));
        }
    }
    return part;
}

inline HGField* Drawn(const char* title = "Drawn", short width = 80)
{
    return HGFieldCreate(title, 0, width, 0, 's', 's', 0, 0, 16, 'q', 0, "", 0);
}

// Columns are 80 wide and begin at 40, rows are 20 high and begin at 20.
class GridPaintTest : public GridWindow {
protected:
    ~GridPaintTest() override
    {
        SetGridBckgndColors(noColor, noColor, noColor);
        SetGridSelectColor(noColor);
    }

    HWND MakePainted(HGridData* data, int rows)
    {
        MakeGrid(data, rows);
        Send(grid, WM_SETFONT, reinterpret_cast<WPARAM>(font_.h), 1);
        return grid;
    }
    // With a host that draws cells of kind q from the first one on.
    HWND MakeHostDrawn(HGridData* data, int rows, WNDPROC host)
    {
        MakePainted(data, 0);
        SubclassWW(grid, host);
        AddRows(rows);
        ShotOf(grid);
        return grid;
    }
    // Everything painted anew.
    Pixels Repaint()
    {
        InvalidateRect(grid, nullptr, TRUE);
        return ShotOf(grid);
    }
    // The cell with its lines; -1 names a header.
    static RECT CellArea(int col, int row)
    {
        const int left = col < 0 ? 0 : 40 + 80 * col;
        const int top = row < 0 ? 0 : 20 + 20 * row;
        return { left, top, left + (col < 0 ? 40 : 80), top + 20 };
    }
    // The cell without its lines.
    static RECT CellInside(int col, int row)
    {
        RECT area = CellArea(col, row);
        --area.right;
        --area.bottom;
        return area;
    }
    // The colour behind a cell's text.
    static COLORREF BackgroundAt(const Pixels& shot, int col, int row)
    {
        const RECT area = CellArea(col, row);
        return shot.At(area.left, area.top);
    }
    // A header as the shared face routine draws it.
    Pixels HeaderFace(const RECT& area, WORD flags, const char* text, bool bold = false)
    {
        const Canvas canvas(area.right - area.left, area.bottom - area.top);
        RECT         rect{ 0, 0, area.right - area.left, area.bottom - area.top };
        DrawPushButton(nullptr, canvas.hdc(), &rect, 0, static_cast<WORD>(flags | DPB_LIBFACE), text,
                       bold ? ctl->hBoldFont : font_.h, nullptr, 0, -1);
        return canvas.Shot();
    }
    testing::AssertionResult HeaderShows(const Pixels& shot, int col, int row, WORD flags, const char* text,
                                         bool bold = false)
    {
        const RECT area = CellArea(col, row);
        return SamePixels(HeaderFace(area, flags, text, bold), PartOf(shot, area));
    }
    // The selection shows without the focus, so that no editor stands over it.
    void Select(Cell anchor, Cell cur)
    {
        ctl->nAnchorCol = static_cast<short>(anchor.col);
        ctl->nAnchorRow = static_cast<short>(anchor.row);
        ctl->nCurCol = static_cast<WORD>(cur.col);
        ctl->nCurRow = static_cast<WORD>(cur.row);
        SetFlag(ctl, HGC_CELLSHOWN, true);
    }
    void SetRowFlags(int row, WORD flags) { HGSetNodeFlags(HGRowNode(ctl->pData, row), flags); }
    void SetCellFlags(int col, int row, WORD flags) { StoreAs<WORD>(HGCellFlagsPtr(ctl->pData, col, row), flags); }

    OwnedObject<HFONT> font_{ CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, ANSI_CHARSET, 0, 0, NONANTIALIASED_QUALITY,
                                          0, "DejaVu Sans") };
};
