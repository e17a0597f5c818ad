// Tab and mnemonics of a dialog that has a page with controls of its own.
#include <widgets/widgets.h>

#include <cstring>

namespace {

constexpr WPARAM firstMnemonic = 0x30; // keys of digits and letters, not those that move
constexpr int    mnemonicTextSize = 64;
constexpr int    ownTab = DLGC_WANTTAB | DLGC_WANTALLKEYS;
constexpr int    pushButton = DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;

// Whether a walk over the controls has come past the one with the focus.
int fPastFocus;

int DlgCode(HWND hwnd)
{
    return static_cast<int>(SendMessageA(hwnd, WM_GETDLGCODE, 0, 0));
}

void Focus(HWND dialog, HWND control)
{
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

bool HasMnemonic(HWND hwnd, WPARAM key)
{
    char text[mnemonicTextSize] = "";
    if (!IsWindowVisible(hwnd) || !SendMessageA(hwnd, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text))) {
        return false;
    }
    text[sizeof text - 1] = 0;
    const char* const mark = std::strchr(text, '&');
    if (!mark) {
        return false;
    }
    char letter[] = { mark[1], 0 };
    CharUpperA(letter);
    return static_cast<BYTE>(letter[0]) == key;
}

// Clicks or focuses the control whose mnemonic was pressed.
// Settled: any kind of button gets the library's click, and a push button of the system's, to which it means nothing,
// only uses the key up.
void Choose(HWND hwnd)
{
    const int code = DlgCode(hwnd);
    if (code & DLGC_BUTTON) {
        SendMessageA(hwnd, HBM_CLICK, 0, 0);
        if (code & pushButton) {
            return;
        }
    }
    Focus(GetParent(hwnd), hwnd);
}

// From the control behind the focus to the end, then from the first one to the focus.
bool TakeMnemonic(HWND hDlg, MSG* msg)
{
    fPastFocus = 0;
    return !EnumChildWindows(hDlg, IsMnemonic, reinterpret_cast<LPARAM>(msg)) ||
           !EnumChildWindows(hDlg, IsMnemonic, reinterpret_cast<LPARAM>(msg));
}

HWND ChildOfPage(HWND hPage, HWND hwnd)
{
    HWND child = hwnd;
    while (child && GetParent(child) != hPage) {
        child = GetParent(child);
    }
    return child;
}

// Whether a control is reached from another one without going round the page.
bool LiesAhead(HWND child, HWND control, int back)
{
    HWND sibling = child;
    do {
        sibling = GetWindow(sibling, back ? GW_HWNDPREV : GW_HWNDNEXT);
    } while (sibling && sibling != control);
    return sibling != nullptr;
}

void TabInPage(HWND hDlg, HWND hPage, HWND tab, HWND child, int back)
{
    if (LiesAhead(child, GetNextDlgTabItem(hPage, child, back), back)) {
        SendMessageA(hPage, WM_NEXTDLGCTL, static_cast<WPARAM>(back), FALSE);
    } else {
        Focus(hDlg, back ? tab : GetNextDlgTabItem(hDlg, tab, FALSE));
    }
}

void TabIntoPage(HWND hPage, int back)
{
    const HWND first = GetTopWindow(hPage);
    const HWND target =
        back ? GetNextDlgTabItem(hPage, first, back) : GetNextDlgTabItem(hPage, GetWindow(first, GW_HWNDLAST), FALSE);
    SetFocus(hPage);
    Focus(hPage, target);
}

// A key goes to the window with the focus, so the window of the message tells where that is.
bool TakeTab(HWND hDlg, HWND hPage, HWND tab, const MSG* msg)
{
    const int back = HIBYTE(GetKeyState(VK_SHIFT));
    if (IsChild(hPage, msg->hwnd)) {
        const HWND child = ChildOfPage(hPage, msg->hwnd);
        if (DlgCode(child) & ownTab) {
            return false;
        }
        TabInPage(hDlg, hPage, tab, child, back);
        return true;
    }
    if (msg->hwnd && msg->hwnd == tab) {
        TabIntoPage(hPage, back);
        return true;
    }
    return false;
}

bool TakeKey(HWND hDlg, HWND hPage, int idTab, MSG* msg)
{
    switch (msg->message) {
    case WM_SYSKEYDOWN: return msg->wParam >= firstMnemonic && IsChild(hDlg, msg->hwnd) && TakeMnemonic(hDlg, msg);
    case WM_KEYDOWN: return msg->wParam == VK_TAB && TakeTab(hDlg, hPage, GetDlgItem(hDlg, idTab), msg);
    default: return false;
    }
}

} // namespace

BOOL WINAPI IsTabDlgMessage(HWND hDlg, HWND hPage, int idTab, MSG* msg)
{
    if (!msg) {
        return FALSE;
    }
    if (!hPage) {
        return IsDialogMessageA(hDlg, msg);
    }
    return TakeKey(hDlg, hPage, idTab, msg) || IsDialogMessageA(hPage, msg) || IsDialogMessageA(hDlg, msg);
}

BOOL CALLBACK IsMnemonic(HWND hwnd, LPARAM msg)
{
    if (!msg) {
        return TRUE;
    }
    const MSG key = *reinterpret_cast<const MSG*>(msg);
    if (!fPastFocus) {
        fPastFocus = hwnd == key.hwnd;
        return TRUE;
    }
    if (hwnd == key.hwnd) {
        fPastFocus = 0; // the circle is closed, and this one is its last
    }
    if (!HasMnemonic(hwnd, key.wParam)) {
        return TRUE;
    }
    Choose(hwnd);
    return FALSE;
}
