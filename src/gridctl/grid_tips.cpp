// The tips of the navigator's buttons. The host gives their texts: its subclass of the grid answers a message.
#include "gridctl/grid_handlers.h"

#include <commctrl.h>

namespace {

constexpr UINT askTipText = 40; // wParam: id of the button, lParam: buffer
constexpr int  tipTextSize = 80;

// The tip window's request for a text is that of the 8-bit strings.
static_assert(static_cast<int>(TTN_GETDISPINFOA) == -520);
static_assert(sizeof(void*) != 4 || sizeof(TOOLINFOA) == 48);

UINT_PTR ToolId(const NMTTDISPINFOA& request)
{
    const UINT_PTR id = request.hdr.idFrom;
    return request.uFlags & TTF_IDISHWND ? static_cast<UINT_PTR>(GetDlgCtrlID(reinterpret_cast<HWND>(id))) : id;
}

void AnswerTipText(HGridCtl* ctl, NMTTDISPINFOA* request)
{
    char       text[tipTextSize + 1] = {};
    const HWND hwnd = ctl->hWnd;
    const bool answered = SendMessageA(hwnd, askTipText, ToolId(*request), reinterpret_cast<LPARAM>(text)) != 0;
    // Bounded: a host that ended the grid with its answer has ended the request too.
    if (answered && IsWindow(hwnd) && request->lpszText) {
        lstrcpynA(request->lpszText, text, tipTextSize);
    }
}

} // namespace

void HGAddTool(HWND hTips, HWND tool, HWND owner, HINSTANCE instance)
{
    TOOLINFOA info = {};
    info.cbSize = sizeof info;
    info.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    info.hwnd = owner;
    info.uId = reinterpret_cast<UINT_PTR>(tool);
    info.hinst = instance;
    info.lpszText = LPSTR_TEXTCALLBACKA;
    SendMessageA(hTips, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&info));
}

bool HGAddTips(HGridCtl* ctl, HINSTANCE instance)
{
    const HWND hwnd = ctl->hWnd;
    const HWND buttons[] = { ctl->hNavExtra, ctl->hNavFirst, ctl->hNavNew, ctl->hNavLast };
    const auto exists = [](HWND button) { return button != nullptr; };
    if (std::none_of(std::begin(buttons), std::end(buttons), exists)) {
        return true;
    }
    const HWND tips = CreateWindowExA(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                                      CW_USEDEFAULT, CW_USEDEFAULT, hwnd, nullptr, instance, nullptr);
    if (!IsWindow(hwnd)) {
        return false;
    }
    ctl->hTips = tips;
    for (const HWND button : buttons) {
        if (button && tips) {
            HGAddTool(tips, button, hwnd, instance);
        }
    }
    return IsWindow(hwnd) != 0;
}

LRESULT HGOnNotify(HGridCtl* ctl, const MsgArgs& args)
{
    NMHDR* const header = reinterpret_cast<NMHDR*>(args.lParam);
    if (header && header->code == TTN_GETDISPINFOA) {
        AnswerTipText(ctl, reinterpret_cast<NMTTDISPINFOA*>(header));
    }
    return AskDefault(args);
}
