// Birth and death of an edit control's record.
#include "edit/edit_internal.h"
#include "foundation/memory.h"

namespace {

HBRUSH FocusBrushForWindowColor()
{
    constexpr COLORREF white = 0x00FFFFFF;
    return static_cast<HBRUSH>(GetStockObject(GetSysColor(COLOR_WINDOW) == white ? LTGRAY_BRUSH : WHITE_BRUSH));
}

void FillRecord(HEditCtl* ctl, HWND hwnd, const CREATESTRUCTA& create)
{
    ctl->hWnd = hwnd;
    ctl->hParent = create.hwndParent;
    ctl->wId = LOWORD(create.hMenu);
    ctl->dwStyle = static_cast<DWORD>(create.style);
    ctl->chPassword = '*';
    if (HasStyle(ctl, HES_STATIC)) {
        ctl->dwStyle |= HES_READONLY;
    }
    if (HasStyle(ctl, HES_FOCUSBRUSH)) {
        ctl->hBrushFocus = FocusBrushForWindowColor();
    }
}

// A dialog template may give a number in place of a text.
const char* WindowTextOf(const CREATESTRUCTA& create)
{
    return create.lpszName && !IS_INTRESOURCE(create.lpszName) ? create.lpszName : "";
}

// The default may give the scroll bar its own range, so it gets the field's once more.
LRESULT FinishCreation(const HEditCtl* ctl, const MsgArgs& args)
{
    const LRESULT result = DefWindowProcA(args.hwnd, args.message, args.wParam, args.lParam);
    if (result && HasStyle(ctl, WS_HSCROLL)) {
        SetScrollRange(args.hwnd, SB_HORZ, 0, ctl->nScrollMax, FALSE);
    }
    return result;
}

void FreeRecord(HEditCtl* ctl)
{
    FreeBuffers(ctl);
    HBlockFree(ctl);
}

} // namespace

int WINAPI HEParseWinText(void* record, const char* text)
{
    HEditCtl* const ctl = static_cast<HEditCtl*>(record);
    if (!ctl || !ReadWinText(ctl, text ? text : "")) {
        return 0;
    }
    UpdateScrollRange(ctl);
    return 1;
}

LRESULT OnNcCreate(const MsgArgs& args)
{
    const CREATESTRUCTA& create = *reinterpret_cast<const CREATESTRUCTA*>(args.lParam);
    EditBlock* const block = HRecordAlloc<EditBlock>();
    if (!block) {
        return 0;
    }
    HEditCtl* const ctl = &block->ctl;
    FillRecord(ctl, args.hwnd, create);
    if (!HEParseWinText(ctl, WindowTextOf(create))) {
        FreeRecord(ctl);
        return 0;
    }
    if (ctl->cClass == 'z') {
        ctl->dwStyle |= HES_EDITRIGHT;
    }
    SendMessageA(args.hwnd, WWM_SETSTATE, 0, reinterpret_cast<LPARAM>(ctl));
    SendMessageA(args.hwnd, WM_SETFONT, 0, 0);
    RefreshText(ctl, false);
    StartClock(ctl);
    return FinishCreation(ctl, args);
}

// A host that destroys the window once more while it hears of the last commit finds it on its way already.
void OnNcDestroy(HEditCtl* ctl)
{
    if (BlockOf(ctl)->ending) {
        return;
    }
    const HWND hwnd = ctl->hWnd;
    BlockOf(ctl)->ending = true;
    ctl->pfnValidate = nullptr;
    CommitIfFocused(ctl);
    KillTimer(hwnd, clockTimer);
    FreeRecord(ctl);
    SendMessageA(hwnd, WWM_SETSTATE, 0, 0);
}
