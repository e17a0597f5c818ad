// The window text of an edit control: type, bounds, colours, length and format, read into its record.
#include "edit/edit_internal.h"
#include "foundation/memory.h"
#include "typed/masks.h"

#include <algorithm>

namespace {

constexpr int textRoom = 32;           // characters that a new text may grow by
constexpr int longestLimit = 0xFFFFFF; // highest length that digits can ask for
constexpr int sectionCount = 3;        // minimum, maximum, third value

// clang-format off
struct DefaultFormat {
    char        dataClass;
    const char* types; // null: any
    const char* format;
};
constexpr DefaultFormat defaultFormats[] = {
    { 'd', nullptr,    "mm/dd/yyyy"          },
    { 't', nullptr,    "hh:mm:ss"            },
    { 'a', nullptr,    "mm/dd/yyyy hh:mm:ss" },
    { 'n', "df",       "*0.0*"               },
    { 'c', "df",       "*0.0*"               },
    { 'n', "Wbhilsuw", "*0"                  },
    { 'c', "Wbhilsuw", "*0"                  },
};
// clang-format on

bool TakesBounds(char dataClass)
{
    return dataClass && std::strchr("ncdta", dataClass);
}

// A value of any class that takes bounds, at any alignment that a converter expects.
union BoundValue {
    double number;
    char   bytes[64];
};

// Settled: a bound of class c is counted as set and keeps the number that was there.
void ReadTextBound(const char* text, double* bound, char dataClass, char dataType)
{
    if (!TakesBounds(dataClass)) {
        return; // Bounded: a text class would be copied over a buffer of fixed size.
    }
    BoundValue value = {};
    ParseData(value.bytes, dataClass, dataType, DefaultEditFormat(dataClass, dataType), text, 0);
    if (dataClass == 'n') {
        *bound = NumToDouble(value.bytes, dataType);
        return;
    }
    DateTimeRec rec = {};
    if (dataClass != 'c' && DataToDateTime(&rec, value.bytes, dataType)) {
        DateTimeToData(&rec, bound, 'u');
    }
}

// Ends a section at its semicolon. Gives where the next one begins, held at the end of the whole text.
// Settled: behind a section without a semicolon the next one begins past the group, and so cuts the format.
char* EndSection(char* section, char* textEnd)
{
    char* const semicolon = std::strchr(section, ';');
    if (semicolon) {
        *semicolon = 0;
        return semicolon + 1;
    }
    return std::min(section + std::strlen(section) + 1, textEnd);
}

// Colours that the text names go to the record, and out of the text.
void TakeColors(HEditCtl* ctl, char* text)
{
    COLORREF color = ctl->clrText;
    COLORREF negative = ctl->clrNegative;
    ParseColorPrefix(&color, &negative, text);
    ctl->clrText = color;
    ctl->clrNegative = negative;
}

void TakeBounds(HEditCtl* ctl, char** text)
{
    double low = ctl->dMin;
    double high = ctl->dMax;
    const int found = HEFindMinMaxInfo(text, &low, &high, nullptr, ctl->cClass, ctl->cType);
    ctl->dMin = low;
    ctl->dMax = high;
    ctl->wBounds = static_cast<WORD>(ctl->wBounds | found);
}

// Length digits of a text field. Bounded: no number is higher than longestLimit.
char* TakeLimit(HEditCtl* ctl, char* text)
{
    int limit = 0;
    char* digit = text;
    for (; *digit >= '0' && *digit <= '9'; ++digit) {
        limit = std::min(limit * 10 + (*digit - '0'), longestLimit);
    }
    if (digit != text) {
        ctl->cchMax = limit;
        SetFlag(ctl, HEF_LIMITED, true);
    }
    return digit;
}

void InstallText(HEditCtl* ctl, const char* text)
{
    if (!HasFlag(ctl, HEF_LIMITED)) {
        ctl->cchMax = ctl->cbText - 1;
    }
    ctl->cbData = ctl->cbText;
    ctl->pData = HBlockAlloc(static_cast<size_t>(ctl->cbData));
    if (ctl->pData) {
        _fstrnzcpy(static_cast<char*>(ctl->pData), text, ctl->cchMax + 1);
    }
    // An initial text shows, also in a field that was null before.
    if (*text) {
        ctl->wFlags = static_cast<WORD>(ctl->wFlags & ~CF_NULL);
    }
}

void InstallTyped(HEditCtl* ctl, const char* format)
{
    const int size = GetDataSize(ctl->cClass, ctl->cType);
    ctl->cbData = size < 0 ? static_cast<int>(std::strlen(format)) + 1 : size;
    ctl->pData = HBlockAlloc(static_cast<size_t>(ctl->cbData));
    const char* const chosen = *format ? format : DefaultEditFormat(ctl->cClass, ctl->cType);
    ctl->pszFormat = MakeFormat(chosen, std::strlen(chosen));
}

// The rest of the text goes into new buffers.
void Install(HEditCtl* ctl, const char* rest)
{
    ctl->cbText = std::max(static_cast<int>(std::strlen(rest)) + textRoom, static_cast<int>(ctl->cchMax) + 1);
    ctl->pszText = static_cast<char*>(HBlockAlloc(static_cast<size_t>(ctl->cbText)));
    if (ctl->cClass == 's') {
        InstallText(ctl, rest);
        return;
    }
    InstallTyped(ctl, rest);
}

// text is a copy, which the steps modify.
void ReadCopy(HEditCtl* ctl, char* text)
{
    char dataClass = 0;
    char dataType = 0;
    char* rest = GetDataTypes(text, &dataClass, &dataType, nullptr, nullptr);
    ctl->cClass = dataClass;
    ctl->cType = dataType;
    const bool hasDescriptor = rest != text;
    if (TakesBounds(dataClass)) {
        TakeBounds(ctl, &rest);
    }
    TakeColors(ctl, rest);
    FreeBuffers(ctl);
    ctl->wFlags = static_cast<WORD>(ctl->wFlags & ~CF_CHANGED);
    if (dataClass == 's' && hasDescriptor) {
        rest = TakeLimit(ctl, rest);
    }
    Install(ctl, rest);
    if (ctl->wBounds) {
        BoundMinMax(ctl);
    }
    ctl->nScroll = 0;
    ctl->nAnchor = 0;
    ctl->nCaret = 0;
}

} // namespace

const char* DefaultEditFormat(char dataClass, char dataType)
{
    for (const DefaultFormat& row : defaultFormats) {
        if (row.dataClass == dataClass && (!row.types || (dataType && std::strchr(row.types, dataType)))) {
            return row.format;
        }
    }
    return "";
}

int WINAPI HEFindMinMaxInfo(char** pText, double* pMin, double* pMax, double* pThird, char dataClass, char dataType)
{
    char* const group = pText ? *pText : nullptr;
    char* const close = group && *group == '|' ? std::strchr(group + 1, '|') : nullptr;
    if (!close) {
        return 0;
    }
    char* const textEnd = close + 1 + std::strlen(close + 1);
    *close = 0;
    double* const bounds[sectionCount] = { pMin, pMax, pThird };
    char* section = group + 1;
    int found = 0;
    for (int i = 0; i < sectionCount; ++i) {
        char* const next = EndSection(section, textEnd);
        if (section < close && *section && bounds[i]) {
            ReadTextBound(section, bounds[i], dataClass, dataType);
            found |= 1 << i;
        }
        section = next;
    }
    *pText = close + 1;
    return found;
}

bool ReadWinText(HEditCtl* ctl, const char* text)
{
    const size_t size = std::strlen(text) + 1;
    char* const copy = static_cast<char*>(HBlockAlloc(size));
    if (!copy) {
        return false;
    }
    std::memcpy(copy, text, size);
    ReadCopy(ctl, copy);
    HBlockFree(copy);
    return ctl->pData && ctl->pszText;
}
