// The mouse over an edit control: focus, caret, selection by dragging, words by a double click.
#include "edit/edit_internal.h"
#include "foundation/startup.h"

namespace {

constexpr int  caretAlone = 1;
constexpr char comboClass[] = "HComb";

int IndexAt(HEditCtl* ctl, const MsgArgs& args)
{
    return CharAtPoint(ctl, static_cast<short>(LOWORD(args.lParam)));
}

bool HasCapture(HWND hwnd)
{
    return GetCapture() == hwnd;
}

bool IsComboParent(HWND parent)
{
    char name[sizeof comboClass + 1] = {};
    GetClassNameA(parent, name, sizeof name);
    return std::strcmp(name, comboClass) == 0;
}

// A static field only takes the focus, and opens the combo that it is the face of.
void PressStatic(HEditCtl* ctl)
{
    const HWND hwnd = ctl->hWnd;
    if (!IsFocused(ctl)) {
        SetFocus(hwnd);
    }
    const HWND combo = IsWindow(hwnd) ? GetParent(hwnd) : nullptr;
    if (combo && IsComboParent(combo)) {
        SendMessageA(combo, WM_KEYDOWN, VK_F4, 0);
    }
}

void Press(HEditCtl* ctl, const MsgArgs& args)
{
    if (HasStyle(ctl, HES_STATIC)) {
        PressStatic(ctl);
        return;
    }
    if (!IsFocused(ctl)) {
        SetFocus(args.hwnd);
        SetCursor(hCurIBeam);
        return;
    }
    const int index = IndexAt(ctl, args);
    SetSelection(ctl, args.wParam & MK_SHIFT ? caretAlone : 0, index, index);
    if (IsWindow(args.hwnd)) {
        SetCapture(args.hwnd);
    }
}

void SelectWord(HEditCtl* ctl, int index)
{
    const int behind = ClampIndex(index + 1, TextLength(ctl));
    SetSelection(ctl, 0, PreviousWord(FieldText(ctl), behind), NextWord(FieldText(ctl), index));
}

void PressTwice(HEditCtl* ctl, const MsgArgs& args)
{
    // The press may scroll the text under the pointer. Where it brings the focus, the text changes its form by it.
    const bool wasFocused = IsFocused(ctl);
    const int  pressed = IndexAt(ctl, args);
    SendMessageA(args.hwnd, WM_LBUTTONDOWN, args.wParam, args.lParam);
    if (IsWindow(args.hwnd) && !HasStyle(ctl, HES_STATIC)) {
        SelectWord(ctl, wasFocused ? ClampIndex(pressed, TextLength(ctl)) : IndexAt(ctl, args));
    }
    if (IsWindow(args.hwnd)) {
        Tell(ctl, HEN_DBLCLK);
    }
}

} // namespace

LRESULT OnMouse(HEditCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case WM_LBUTTONDOWN:   Press(ctl, args); break;
    case WM_LBUTTONDBLCLK: PressTwice(ctl, args); break;
    case WM_MOUSEMOVE:
        if (HasCapture(args.hwnd)) {
            SetSelection(ctl, caretAlone, 0, IndexAt(ctl, args));
        }
        break;
    default:
        if (HasCapture(args.hwnd)) {
            ReleaseCapture();
        }
        break;
    }
    return 1;
}

LRESULT OnSetCursor(HEditCtl* ctl, const MsgArgs& args)
{
    const int  zone = LOWORD(args.lParam);
    const bool inBar = zone == HTHSCROLL || zone == HTVSCROLL;
    if (HasStyle(ctl, HES_STATIC)) {
        SetCursor(hCurArrow);
        return 1;
    }
    if (IsFocused(ctl) && !inBar) {
        SetCursor(hCurIBeam);
        return 1;
    }
    return AskDefault(args);
}
