// Lists whose parent answers with a brush of its own, and whose pixels are looked at.
#pragma once

#include "foundation/startup.h"
#include "list_window.h"
#include "support/pixels.h"

constexpr COLORREF paper = RGB(200, 230, 250);
constexpr COLORREF otherPaper = RGB(250, 230, 200);

class ListBrushes : public ListWindow {
protected:
    ListBrushes() : brush(CreateSolidBrush(paper)), otherBrush(CreateSolidBrush(otherPaper))
    {
        parent.OnMessage(WM_CTLCOLORLISTBOX, [this](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(brush); });
        SetCursorPos(900, 700); // away from the list
    }
    ~ListBrushes() override
    {
        hFocusBrush = nullptr;
        if (IsWindow(list)) {
            DestroyWindow(list);
        }
        DeleteObject(brush);
        DeleteObject(otherBrush);
    }

    HBRUSH brush;
    HBRUSH otherBrush;
};
