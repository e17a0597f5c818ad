// International settings: the one record of separators and default formats, its setters, and the scratch buffer.
// What the fields mean to dates and numbers is decided by their converters.
#include "typed/intl.h"

#include "typed/date_letters.h"

#include <cctype>
#include <clocale>
#include <cstring>

IntlSettings gIntl;
char         gScratch[scratchSize];

namespace {

constexpr char startDateFormat[] = "d/m/yyyy";
constexpr char startTimeFormat[] = "h:mm:ss";
constexpr char startTimeSep = ':';
constexpr char startDateSep = '.';
constexpr char startCurrency[] = "\x4B\xE8"; // a currency symbol in code page 1250

constexpr int formatSize = static_cast<int>(sizeof gIntl.szDateFormat);

bool HasLetter(const char* text, char lower)
{
    for (; *text; ++text) {
        if (LowerLetter(*text) == lower) {
            return true;
        }
    }
    return false;
}

bool HasLetters(const char* text, const char* letters)
{
    for (; *letters; ++letters) {
        if (!HasLetter(text, *letters)) {
            return false;
        }
    }
    return true;
}

// Characters from 128 up are refused before the character classes of the locale can see them.
bool IsSeparator(char ch)
{
    const int code = static_cast<unsigned char>(ch);
    return code < 128 && !std::isalnum(code);
}

int SetSeparator(char* target, char ch)
{
    if (!IsSeparator(ch)) {
        return 0;
    }
    *target = ch;
    return 1;
}

int SetDefFormat(char* target, const char* format, const char* needed)
{
    if (!format || !HasLetters(format, needed)) {
        return 0;
    }
    char copy[formatSize] = {}; // format may be the field itself
    _fstrnzcpy(copy, format, formatSize);
    for (char& ch : copy) {
        ch = LowerLetter(ch);
    }
    std::memcpy(target, copy, sizeof copy);
    return 1;
}

} // namespace

void WINAPI GetIntlSettings(void)
{
    std::setlocale(LC_ALL, "");
    const lconv* const locale = std::localeconv();
    std::memset(&gIntl, 0, sizeof gIntl);
    std::memcpy(gIntl.szDateFormat, startDateFormat, sizeof startDateFormat);
    std::memcpy(gIntl.szTimeFormat, startTimeFormat, sizeof startTimeFormat);
    gIntl.chTimeSep = startTimeSep;
    gIntl.chDateSep = startDateSep;
    gIntl.chThousandSep = locale->thousands_sep[0];
    gIntl.chDecimalSep = locale->decimal_point[0];
    std::memcpy(gIntl.szCurrency, startCurrency, sizeof startCurrency);
}

IntlSettings* WINAPI WWGetIntlInfo(void)
{
    return &gIntl;
}

int WINAPI SetDateSep(char ch)
{
    return SetSeparator(&gIntl.chDateSep, ch);
}

int WINAPI SetTimeSep(char ch)
{
    return SetSeparator(&gIntl.chTimeSep, ch);
}

int WINAPI SetDecimalSep(char ch)
{
    return SetSeparator(&gIntl.chDecimalSep, ch);
}

int WINAPI SetThousandsSep(char ch)
{
    return SetSeparator(&gIntl.chThousandSep, ch);
}

int WINAPI SetDefDateFormat(const char* format)
{
    return SetDefFormat(gIntl.szDateFormat, format, "dmy");
}

int WINAPI SetDefTimeFormat(const char* format)
{
    return SetDefFormat(gIntl.szTimeFormat, format, "hm");
}
