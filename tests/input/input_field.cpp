// The fixture of fields that a user works.
#include "input/input_field.h"

#include <utility>

namespace {

struct ToldCode {
    int  code;
    char letter;
};

// clang-format off
constexpr ToldCode toldCodes[] = {
    { HEN_SETFOCUS, 'F' },  { HEN_KILLFOCUS, 'K' }, { HEN_UPDATE, 'U' },   { HEN_CHANGE, 'C' },  { HEN_MAXTEXT, 'M' },
    { HEN_HSCROLL, 'S' },   { HEN_BADINPUT, 'B' },  { HEN_BELOWMIN, '<' }, { HEN_ABOVEMAX, '>' }, { HEN_RETURN, 'R' },
    { HEN_ESCAPE, 'E' },    { HEN_TAB, 'T' },       { HEN_BACKTAB, 't' },  { HEN_DBLCLK, 'D' },  { HEN_HELP, 'H' },
};
// clang-format on

bool IsText(char dataClass)
{
    return dataClass == 's' || dataClass == 'm';
}

} // namespace

InputField::InputField()
{
    SetDecimalSep('.');
    SetThousandsSep(',');
    SetDateSep('.');
    SetTimeSep(':');
    SetDefDateFormat("d/m/yyyy");
    SetDefTimeFormat("h:mm:ss");
    for (const ToldCode& told : toldCodes) {
        parent.On(told.code, [this, told] { Note(told.letter); });
    }
}

InputField::~InputField()
{
    SetOverwriteMode(0);
    GetIntlSettings();
}

void InputField::Note(char letter)
{
    (Send(field, WWM_GETUPDATING) ? inside_ : told_) += letter;
}

void InputField::Veto(int code)
{
    for (const ToldCode& told : toldCodes) {
        if (told.code == code) {
            parent.On(code, [this, told] {
                Note(told.letter);
                Send(field, WWM_CANCEL);
            });
        }
    }
}

HWND InputField::Make(const char* text, DWORD style, int width)
{
    if (field) {
        DestroyWindow(field);
    }
    if (!button) {
        button = Create("BUTTON", "push", 0, 8, { 10, 60, 100, 30 });
    }
    field = Create("HEdit", text, style, 7, { 10, 10, width, 24 });
    SetFocus(button);
    Told();
    ToldInside();
    return field;
}

std::string InputField::Shown() const
{
    const LRESULT selection = Send(field, EM_GETSEL);
    const size_t  lo = LOWORD(selection);
    const size_t  hi = HIWORD(selection);
    std::string   text = Text();
    if (lo > hi || hi > text.size()) {
        return text + " with a caret at " + std::to_string(lo) + ", " + std::to_string(hi);
    }
    return lo == hi ? text.insert(lo, "|") : text.insert(hi, "]").insert(lo, "[");
}

std::string InputField::Stored() const
{
    char          value[512] = {};
    const LRESULT count = Send(field, HEM_GETDATA, sizeof value - 1, reinterpret_cast<LPARAM>(value));
    if (Send(field, WWM_ISNULL)) {
        return "null";
    }
    return IsText(static_cast<char>(Send(field, HEM_GETCLASS))) ? std::string(value)
                                                                : std::string(value, static_cast<size_t>(count));
}

std::string InputField::Told()
{
    return std::exchange(told_, std::string());
}

std::string InputField::ToldInside()
{
    return std::exchange(inside_, std::string());
}

int InputField::XOf(int index)
{
    const LRESULT selection = Send(field, EM_GETSEL);
    POINT         caret = {};
    Send(field, EM_SETSEL, static_cast<WPARAM>(index), index);
    GetCaretPos(&caret);
    Send(field, EM_SETSEL, LOWORD(selection), HIWORD(selection));
    return static_cast<int>(caret.x);
}
