// The fixture of the edit control's window tests.
#include "edit_window.h"

#include <cstdio>

EditWindow::~EditWindow()
{
    SetOverwriteMode(0);
    if (font) {
        DeleteObject(font);
    }
}

HWND EditWindow::Create(const char* text, DWORD style, int width, int height)
{
    const HWND made = WindowTest::Create("HEdit", text, style, 7, { 10, 10, width, height });
    if (!edit) {
        edit = made;
    }
    return made;
}

void EditWindow::UseFont()
{
    font = CreateFontA(-13, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, ANSI_CHARSET, OUT_DEFAULT_PRECIS,
                       CLIP_DEFAULT_PRECIS, NONANTIALIASED_QUALITY, DEFAULT_PITCH, "Tahoma");
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(font));
}

HEditCtl* EditWindow::Ctl() const
{
    return RecordOf<HEditCtl>(edit);
}

LRESULT EditWindow::Send(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return SendMessageA(edit, message, wParam, lParam);
}

LRESULT EditWindow::SendText(UINT message, WPARAM wParam, const char* text) const
{
    return Send(message, wParam, AsParam(text));
}

std::string EditWindow::Text() const
{
    char text[512] = "(none)";
    Send(WM_GETTEXT, sizeof text, AsParam(text));
    return text;
}

double EditWindow::Number() const
{
    char value[16] = {};
    Send(HEM_GETDATA, sizeof value, AsParam(value));
    return NumToDouble(value, static_cast<char>(Send(HEM_GETTYPE)));
}

std::string EditWindow::Value() const
{
    char value[512] = "";
    Send(HEM_GETDATA, sizeof value, AsParam(value));
    return value;
}

RECT EditWindow::TextRect() const
{
    RECT rect = {};
    Send(HEM_GETRECT, 0, AsParam(&rect));
    return rect;
}

void EditWindow::Replace(const char* text) const
{
    HEditCtl* const ctl = Ctl();
    _fstrnzcpy(ctl->pszText, text, ctl->cbText);
    ctl->wFlags |= HEF_DIRTY;
}

void EditWindow::Focus() const
{
    SetFocus(edit);
}

void EditWindow::Blur() const
{
    SetFocus(parent.hwnd());
}

void EditWindow::Veto(int code)
{
    parent.On(code, [this] { Send(WWM_CANCEL); });
}

EditWindow::Codes EditWindow::Told()
{
    Codes codes;
    for (const Seen& line : seen.All()) {
        if (line.direction == ToParent) {
            codes.push_back(static_cast<int>(line.code));
        }
    }
    seen.Clear();
    return codes;
}

void EditWindow::AnswerColors(HBRUSH brush)
{
    for (const UINT message : { static_cast<UINT>(WM_CTLCOLOREDIT), static_cast<UINT>(WM_CTLCOLORSTATIC) }) {
        parent.OnMessage(message, [this, message, brush](WPARAM, LPARAM) {
            asked.push_back(message);
            return reinterpret_cast<LRESULT>(brush);
        });
    }
}

std::string WithPoint(const char* text)
{
    std::string out = text;
    for (char& ch : out) {
        ch = ch == '.' ? WWGetIntlInfo()->chDecimalSep : ch;
    }
    return out;
}

std::string DateText(int day, int month, int year)
{
    char       text[16];
    const char separator = WWGetIntlInfo()->chDateSep;
    std::snprintf(text, sizeof text, "%d%c%d%c%d", day, separator, month, separator, year);
    return text;
}
