// The background of an edit control's field: whose brush it is, and the fill.
#include "edit/edit_internal.h"
#include "foundation/startup.h"

namespace {

constexpr int  editKind = 1;   // what FireCtlColorMsg asks for
constexpr int  staticKind = 6;
constexpr WORD cellEditorId = 1;
constexpr char gridClass[] = "HGrid";

bool IsInGrid(const HEditCtl* ctl)
{
    char name[sizeof gridClass] = {};
    GetClassNameA(GetParent(GetParent(ctl->hWnd)), name, sizeof name);
    return std::strcmp(name, gridClass) == 0;
}

// Whether the library-wide field brush is for this control too.
bool TakesFieldBrush(const HEditCtl* ctl)
{
    return hFocusBrush && (LOWORD(ctl->wId) != cellEditorId || IsInGrid(ctl));
}

// The parent's answer, or the system's colour of a field that only shows that it has the focus.
HBRUSH AskForBrush(HEditCtl* ctl, HDC hdc)
{
    if (IsFieldDisabled(ctl)) {
        return FireCtlColorMsg(ctl, staticKind, hdc);
    }
    if (HasStyle(ctl, HES_STATIC) && IsFocused(ctl)) {
        return GetSysColorBrush(COLOR_HIGHLIGHT);
    }
    return FireCtlColorMsg(ctl, editKind, hdc);
}

HBRUSH ChooseBrush(HEditCtl* ctl, HDC hdc, bool wholeField, HBRUSH given)
{
    HBRUSH brush = ctl->hBrush;
    if (wholeField && IsFocused(ctl) && HasStyle(ctl, HES_FOCUSBRUSH) && ctl->hBrushFocus) {
        brush = ctl->hBrushFocus;
    }
    if (!brush) {
        brush = given;
    }
    if (!brush && TakesFieldBrush(ctl)) {
        brush = hFocusBrush;
    }
    return brush ? brush : AskForBrush(ctl, hdc);
}

} // namespace

bool IsFieldDisabled(const HEditCtl* ctl)
{
    return !IsWindowEnabled(ctl->hWnd) || (ctl->hParent && !IsWindowEnabled(ctl->hParent));
}

// PatBlt fills the pixels that a borderless Rectangle one pixel larger would, without a pen to select.
void FillFieldBackground(HEditCtl* ctl, HDC hdc, RECT* rect, HBRUSH given)
{
    RECT area = {};
    if (rect) {
        area = *rect;
    } else {
        GetClientRect(ctl->hWnd, &area);
    }
    const HBRUSH brush = ChooseBrush(ctl, hdc, !rect, given);
    if (!brush || area.left >= area.right || area.top >= area.bottom) {
        return;
    }
    const SelectedObject selected(hdc, brush);
    PatBlt(hdc, area.left, area.top, area.right - area.left, area.bottom - area.top, PATCOPY);
}
