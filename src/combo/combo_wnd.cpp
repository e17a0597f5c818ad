// The combo's window procedure, the life of its record, and the sorting of the system's messages.
#include "combo/combo_internal.h"
#include "foundation/gdi_guards.h"
#include "foundation/memory.h"
#include "foundation/startup.h"

namespace {

constexpr int  colorOfEdit = 1; // kinds of FireCtlColorMsg
constexpr int  colorOfStatic = 6;
constexpr int  borderPart = 8;   // of the host's painter
constexpr UINT comboControl = 3; // ODT_COMBOBOX

// Settled: without its parts the window lives on as one that does nothing.
LRESULT OnNcCreate(const MsgArgs& args)
{
    const CREATESTRUCTA& create = *reinterpret_cast<const CREATESTRUCTA*>(args.lParam);
    HCombCtl* const      ctl = HRecordAlloc<HCombCtl>();
    if (ctl) {
        ctl->hWnd = args.hwnd;
        if (HCCreate(ctl, create)) {
            HCInstall(ctl);
        } else {
            HCEnd(ctl);
            HBlockFree(ctl);
        }
    }
    return DefWindowProcA(args.hwnd, args.message, args.wParam, args.lParam);
}

// A host that destroys the window once more while it hears that the list closes finds it on its way already.
void OnNcDestroy(HCombCtl* ctl)
{
    if (HasFlag(ctl, HCF_ENDING)) {
        return;
    }
    const HWND hwnd = ctl->hWnd;
    SetFlag(ctl, HCF_ENDING, true);
    HCEnd(ctl);
    SendMessageA(hwnd, WWM_SETSTATE, 0, 0);
    HBlockFree(ctl);
}

LRESULT OnSetFont(HCombCtl* ctl, const MsgArgs& args)
{
    const HFONT old = ctl->hFont;
    ToList(ctl, WM_SETFONT, args.wParam, args.lParam);
    if (!IsWindow(args.hwnd)) {
        return 0;
    }
    ToChild(ctl, WM_SETFONT, args.wParam, args.lParam);
    if (!IsWindow(args.hwnd)) {
        return 0;
    }
    ctl->hFont = reinterpret_cast<HFONT>(args.wParam);
    HCLayout(ctl); // the face above a list is a line of the font high, and the edit's text is at the border again
    return reinterpret_cast<LRESULT>(old);
}

void FillClient(HWND hwnd, HDC hdc, HBRUSH brush)
{
    RECT client = {};
    GetClientRect(hwnd, &client);
    const SelectedObject pen(hdc, GetStockObject(NULL_PEN));
    const SelectedObject fill(hdc, brush);
    Rectangle(hdc, client.left, client.top, client.right + 1, client.bottom + 1); // the pen would have the last pixels
}

LRESULT OnErase(HCombCtl* ctl, const MsgArgs& args)
{
    const HDC hdc = reinterpret_cast<HDC>(args.wParam);
    if (!HasStyle(ctl, HCS_3DBORDER)) {
        const int  kind = IsWindowEnabled(args.hwnd) ? colorOfEdit : colorOfStatic;
        const auto brush = reinterpret_cast<HBRUSH>(FireCtlColorMsg(ctl, kind, hdc));
        if (brush && IsWindow(args.hwnd)) {
            FillClient(args.hwnd, hdc, brush);
        }
    }
    if (IsWindow(args.hwnd) && HasDropdown(ctl)) {
        HCDrawDropButton(ctl, hdc, HasFlag(ctl, HCF_BTNDOWN), HasFlag(ctl, HCF_BTNHOT));
    }
    if (IsWindow(args.hwnd) && HasDropdown(ctl)) {
        HCDrawXButton(ctl, hdc, HasFlag(ctl, HCF_XBTNDOWN), HasFlag(ctl, HCF_XBTNHOT));
    }
    return 1;
}

LRESULT OnNcPaint(const MsgArgs& args)
{
    if (!pfnDrawPart || !(GetWindowLongA(args.hwnd, GWL_EXSTYLE) & WS_EX_CLIENTEDGE)) {
        return AskDefault(args);
    }
    RECT rect = {};
    GetWindowRect(args.hwnd, &rect);
    OffsetRect(&rect, -rect.left, -rect.top);
    if (const HDC hdc = GetWindowDC(args.hwnd)) {
        pfnDrawPart(borderPart, hdc, &rect, 1, 0, 1);
        ReleaseDC(args.hwnd, hdc);
    }
    return 0;
}

// The colours of face and list.
LRESULT OnPartColor(HCombCtl* ctl, const MsgArgs& args)
{
    if (HasStyle(ctl, HCS_FOCUSBRUSH) && GetFocus() == ctl->hChild) {
        if (const LRESULT brush = ToChild(ctl, HEM_GETFOCUSBRUSH)) {
            return brush;
        }
    }
    return SendMessageA(GetParent(args.hwnd), WM_CTLCOLOREDIT, args.wParam, reinterpret_cast<LPARAM>(args.hwnd));
}

// The structures for drawn items begin with type and id.
template <typename Items>
Items* AsOwnItems(const HCombCtl* ctl, const MsgArgs& args)
{
    Items* const items = reinterpret_cast<Items*>(args.lParam);
    items->CtlType = comboControl;
    items->CtlID = ctl->wId;
    return items;
}

LRESULT OnOwnerItems(HCombCtl* ctl, const MsgArgs& args)
{
    if (!args.lParam) {
        return 0;
    }
    if (args.message == WM_DRAWITEM) {
        AsOwnItems<DRAWITEMSTRUCT>(ctl, args)->hwndItem = ctl->hWnd;
    } else if (args.message == WM_MEASUREITEM) {
        AsOwnItems<MEASUREITEMSTRUCT>(ctl, args);
    } else {
        AsOwnItems<DELETEITEMSTRUCT>(ctl, args);
    }
    return SendMessageA(ctl->hParent, args.message, ctl->wId, args.lParam) != 0;
}

LRESULT OnFromEdit(HCombCtl* ctl, int code)
{
    if (code == EN_CHANGE) {
        SetFlag(ctl, HCF_TYPED, true);
    }
    if (code == EN_CHANGE && HCTell(ctl, HCN_EDITCHANGE)) {
        HCFollowFace(ctl, true);
    } else if (code == EN_UPDATE) {
        Notify(ctl, HCN_EDITUPDATE);
    }
    return 0;
}

LRESULT OnFromField(HCombCtl* ctl, int code)
{
    if (code == HLN_SELCHANGE) {
        HCSync(ctl, true, true);
    }
    return 0;
}

LRESULT OnFromList(HCombCtl* ctl, int code)
{
    if (code == HLN_SELCHANGE) {
        HCSync(ctl, false, true);
    } else if (code == HLN_DBLCLK && HasEdit(ctl)) {
        Notify(ctl, HCN_DBLCLK);
    }
    return 0;
}

LRESULT OnCommand(HCombCtl* ctl, const MsgArgs& args)
{
    const int code = HIWORD(args.wParam);
    switch (LOWORD(args.wParam)) {
    case comboEditId: return OnFromEdit(ctl, code);
    case comboFieldId: return OnFromField(ctl, code);
    case comboListId: return OnFromList(ctl, code);
    default: return 0;
    }
}

LRESULT OnSize(HCombCtl* ctl)
{
    HCLayout(ctl);
    return 0;
}

LRESULT OnEnable(const MsgArgs& args)
{
    InvalidateRect(args.hwnd, nullptr, TRUE);
    return 0;
}

LRESULT OnSetFocus(HCombCtl* ctl)
{
    SetFocus(ctl->hChild);
    return 0;
}

LRESULT OnEditSelection(HCombCtl* ctl, const MsgArgs& args)
{
    return HasEdit(ctl) ? ToChild(ctl, args.message, args.wParam, args.lParam) : AskDefault(args);
}

LRESULT OnWindowMessage(HCombCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case WM_SIZE: return OnSize(ctl);
    case WM_SETTEXT: return HCOnSetText(ctl, args);
    case WM_GETTEXT: return HCOnGetText(ctl, args);
    case WM_GETTEXTLENGTH: return HCOnGetTextLength(ctl, args);
    case WM_SETFONT: return OnSetFont(ctl, args);
    case WM_ENABLE: return OnEnable(args);
    case WM_ERASEBKGND: return OnErase(ctl, args);
    case WM_NCPAINT: return OnNcPaint(args);
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX: return OnPartColor(ctl, args);
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM: return OnOwnerItems(ctl, args);
    case WM_COMMAND: return OnCommand(ctl, args);
    case EM_GETSEL:
    case EM_SETSEL: return OnEditSelection(ctl, args);
    default: return AskDefault(args);
    }
}

LRESULT OnInput(HCombCtl* ctl, const MsgArgs& args)
{
    switch (args.message) {
    case WM_SETFOCUS: return OnSetFocus(ctl);
    case WM_KEYDOWN: return HCOnKeyDown(ctl, args);
    case WM_SYSKEYDOWN: return HCOnSysKey(ctl, args);
    case WM_CHAR: return ToChild(ctl, WM_CHAR, args.wParam, args.lParam);
    case WM_GETDLGCODE: return HCOnGetDlgCode(ctl, args);
    case WM_LBUTTONDOWN: return HCOnButtonDown(ctl, args);
    case WM_LBUTTONUP: return HCOnButtonUp(ctl, args);
    case WM_MOUSEMOVE: return HCOnMouseMove(ctl, args);
    case WM_MOUSELEAVE: return HCOnMouseLeave(ctl, args);
    case WM_MOUSEWHEEL: return HCOnMouseWheel(ctl, args);
    case WM_CANCELMODE: return HCOnCancelMode(ctl, args);
    default: return OnWindowMessage(ctl, args);
    }
}

ComboHandler FindByNumber(UINT message)
{
    const ComboHandler handler = FindComboHandler(message);
    return handler ? handler : FindComboBoxHandler(message);
}

} // namespace

HCombCtl* HCFromWindow(HWND hwnd)
{
    return hwnd ? static_cast<HCombCtl*>(ControlRecord(hwnd)) : nullptr;
}

bool HCTell(HCombCtl* ctl, int code)
{
    const HWND hwnd = ctl->hWnd;
    Notify(ctl, code);
    return IsWindow(hwnd) != 0;
}

LRESULT CALLBACK HCombMsgHandler(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, int* pDefault, void* record)
{
    const MsgArgs   args = { hwnd, message, wParam, lParam, pDefault };
    HCombCtl* const ctl = static_cast<HCombCtl*>(record);
    if (IsCreation(args, record)) {
        return OnNcCreate(args);
    }
    if (!ctl) {
        return AskDefault(args);
    }
    if (message == WM_NCDESTROY) {
        OnNcDestroy(ctl);
        return AskDefault(args);
    }
    if (const ComboHandler handler = FindByNumber(message)) {
        return handler(ctl, args);
    }
    return OnInput(ctl, args);
}

LRESULT CALLBACK HCombWnd(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return HandleMsg(hwnd, message, wParam, lParam, HCombMsgHandler, 0);
}
