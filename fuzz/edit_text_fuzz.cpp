// Window texts and bounds groups of any kind through the reading of an edit control's configuration.
// The input is a byte that chooses the bounds wanted, a class and a type letter, then the window text.
#include "fuzz_input.h"

#include "edit/edit_internal.h"

namespace {

// A group moves the pointer behind it and cuts the text at zeros only; without one nothing changes.
void CheckBounds(const std::string& text, int wanted, char dataClass, char dataType)
{
    FuzzBuffer  copy(text, 0);
    char*       rest = copy.Get();
    double      values[3] = {};
    double*     bounds[3] = {};
    for (int i = 0; i < 3; ++i) {
        bounds[i] = wanted & 1 << i ? &values[i] : nullptr;
    }
    const int found = HEFindMinMaxInfo(&rest, bounds[0], bounds[1], bounds[2], dataClass, dataType);
    Require((found & ~(wanted & 7)) == 0);
    const size_t close = text.empty() || text[0] != '|' ? std::string::npos : text.find('|', 1);
    Require(rest == copy.Get() + (close == std::string::npos ? 0 : close + 1));
    for (size_t i = 0; i < text.size(); ++i) {
        const bool cut = close != std::string::npos && (text[i] == ';' || i == close);
        Require(copy.Get()[i] == text[i] || (cut && copy.Get()[i] == 0));
    }
}

void CheckRecord(const HEditCtl& ctl)
{
    Require(ValidType(ctl.cClass, ctl.cType));
    Require(ctl.pData && ctl.pszText);
    Require((ctl.cClass == 's') == !ctl.pszFormat);
    Require(std::memchr(ctl.pszText, 0, static_cast<size_t>(ctl.cbText)) != nullptr);
    if (IsStringType(&ctl)) {
        Require(std::memchr(ctl.pData, 0, static_cast<size_t>(ctl.cbData)) != nullptr);
    }
}

// What the record came to shows and reads back without a stray access.
void UseRecord(HEditCtl* ctl)
{
    double value = 0;
    int    negative = 0;
    for (const int editForm : { 0, 1 }) {
        FormatData(ctl->pData, ctl->cClass, ctl->cType, ctl->pszFormat, ctl->pszText, ctl->cbText, &negative, editForm);
    }
    if (ComparableValue(ctl, &value)) {
        StoreComparable(ctl, value);
    }
    BoundMinMax(ctl);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const BYTE* bytes, size_t size)
{
    FuzzInput         input = { bytes, bytes + size };
    const int         wanted = input.Byte();
    const char        dataClass = static_cast<char>(input.Byte());
    const char        dataType = static_cast<char>(input.Byte());
    const std::string text = input.Text();
    CheckBounds(text, wanted, dataClass, dataType);

    HEditCtl ctl = {};
    for (const std::string& part : { text.substr(0, text.size() / 2), text }) {
        Require(ReadWinText(&ctl, part.c_str()));
        CheckRecord(ctl);
        UseRecord(&ctl);
    }
    FreeBuffers(&ctl);
    return 0;
}
