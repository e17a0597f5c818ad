// The entry picture: what a field of a given format shows while it is edited.
// Order and separators are those of the default formats; the format only chooses which fields stay.
#include "typed/date_time.h"

#include "typed/date_letters.h"
#include "typed/intl.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr size_t notFound = static_cast<size_t>(-1);

constexpr char monthAndYear[] = "mm|yyyy";
constexpr char hourAndMinute[] = "hh:mm";

// Which fields of the default formats the entry picture keeps.
struct Fields {
    bool hasDay;
    bool hasMonth;
    bool hasYear;
    bool longYear;
    bool useDate;
    bool hasHour;
    bool hasMinute;
    bool hasSecond;
    bool useTime;
};

// One default format on its way into the picture.
struct Half {
    const char* format;
    const char* letters; // its fields
    const bool* has;     // whether each of them stays
    char        separator;
    bool        doubleYear;
    bool        bareSeparators; // only the separator stands between fields, no other character
};

struct Picture {
    char*  out; // of scratchSize
    size_t length;
};

void Append(Picture* picture, char ch)
{
    if (picture->length < scratchSize - 1) {
        picture->out[picture->length++] = ch;
    }
}

// Bounded: a host may have filled a default format to its last byte.
void AppendText(Picture* picture, const char* text, size_t limit)
{
    for (size_t i = 0; i < limit && text[i]; ++i) {
        Append(picture, text[i]);
    }
}

bool IsLast(const Picture& picture, char ch)
{
    return picture.length > 0 && picture.out[picture.length - 1] == ch;
}

bool StartsWith(const char* text, const char* lower)
{
    for (; *lower; ++lower, ++text) {
        if (LowerLetter(*text) != *lower) {
            return false;
        }
    }
    return true;
}

// Finds a lower-case run in text, ignoring case, from an index on.
size_t Find(const char* text, const char* lower, size_t from = 0)
{
    for (size_t i = from; text[i]; ++i) {
        if (StartsWith(text + i, lower)) {
            return i;
        }
    }
    return notFound;
}

bool DefaultHasLongYear()
{
    char           format[sizeof gIntl.szDateFormat + 1] = {};
    constexpr char longYear[] = "yyyy";
    std::memcpy(format, gIntl.szDateFormat, sizeof gIntl.szDateFormat);
    return std::strstr(format, longYear) != nullptr;
}

void FindDateFields(const char* format, bool wantTime, Fields* fields)
{
    const size_t month = Find(format, "m");
    const size_t hour = Find(format, "h");
    const size_t year = Find(format, "y");
    // An m behind the hour belongs to the time.
    const bool ofTime = wantTime && hour != notFound && hour <= month;
    fields->hasDay = Find(format, "d") != notFound;
    fields->hasMonth = month != notFound && !ofTime;
    fields->hasYear = year != notFound;
    fields->longYear = fields->hasYear && StartsWith(format + year, "yyyy") && !DefaultHasLongYear();
    fields->useDate = fields->hasDay || fields->hasMonth || fields->hasYear;
}

// In a format with a date, mm is the minute behind a time separator. A ':' is one in every format, as it prints as the
// separator: a record read back without its minutes would lose them.
bool HasMinute(const char* format, bool useDate)
{
    if (!useDate) {
        return Find(format, "mm") != notFound;
    }
    const char        separators[] = { ':', gIntl.chTimeSep, 0 };
    const char* const behind = std::strpbrk(format, separators);
    return behind && Find(behind, "mm") != notFound;
}

void FindTimeFields(const char* format, Fields* fields)
{
    fields->hasHour = Find(format, "h") != notFound;
    fields->hasMinute = HasMinute(format, fields->useDate);
    fields->hasSecond = Find(format, "ss") != notFound;
    fields->useTime = fields->hasHour || fields->hasMinute || fields->hasSecond;
}

// What stands between two fields. Behind a dropped one it takes the place of the separator in front of it.
void AppendBetween(Picture* picture, const Half& half, char ch, bool skipped)
{
    if (!skipped) {
        if (!half.bareSeparators || ch == half.separator) {
            Append(picture, ch);
        }
        return;
    }
    if (IsLast(*picture, half.separator)) {
        picture->out[picture->length - 1] = ch;
        return;
    }
    if (ch != half.separator) {
        Append(picture, ch);
    }
}

void AppendField(Picture* picture, const Half& half, char ch)
{
    Append(picture, ch);
    if (half.doubleYear && ch == 'y') {
        Append(picture, ch);
    }
}

void AppendHalf(Picture* picture, const Half& half)
{
    bool skipped = false;
    for (size_t i = 0; i < sizeof gIntl.szDateFormat && half.format[i]; ++i) {
        const char  ch = half.format[i];
        const char* letter = std::strchr(half.letters, ch);
        if (!letter) {
            AppendBetween(picture, half, ch, skipped);
            skipped = false;
        } else if (half.has[letter - half.letters]) {
            AppendField(picture, half, ch);
        } else {
            skipped = true;
        }
    }
    if (skipped && IsLast(*picture, half.separator)) {
        --picture->length;
    }
}

void AppendDate(Picture* picture, const Fields& fields)
{
    const bool has[] = { fields.hasDay, fields.hasMonth, fields.hasYear };
    AppendHalf(picture, { gIntl.szDateFormat, "dmy", has, gIntl.chDateSep, fields.longYear, false });
    if (fields.useTime) {
        Append(picture, ' ');
    }
}

void AppendTime(Picture* picture, const Fields& fields)
{
    const bool has[] = { fields.hasHour, fields.hasMinute, fields.hasSecond };
    AppendHalf(picture, { gIntl.szTimeFormat, "hms", has, gIntl.chTimeSep, false, !fields.hasHour });
}

void AppendDefaults(Picture* picture, bool wantDate, bool wantTime)
{
    if (wantDate) {
        AppendText(picture, gIntl.szDateFormat, sizeof gIntl.szDateFormat);
    }
    if (!wantTime) {
        return;
    }
    if (picture->length > 0) {
        Append(picture, ' ');
    }
    AppendText(picture, gIntl.szTimeFormat, sizeof gIntl.szTimeFormat);
}

// The "/" of a month with its year isn't the date separator, so it comes through the date half as it stands.
void FixMonthAndYear(Picture* picture)
{
    char* const end = picture->out + picture->length;
    if (picture->length > 0 && picture->out[0] == '/') {
        std::copy(picture->out + 1, end, picture->out);
        --picture->length;
    }
    char* const last = picture->out + picture->length;
    char* const slash = std::find(picture->out, last, '/');
    if (slash != last) {
        *slash = '|';
    }
}

void AppendChosen(Picture* picture, const char* format, bool wantDate, bool wantTime)
{
    Fields fields = {};
    if (wantDate) {
        FindDateFields(format, wantTime, &fields);
    }
    if (wantTime) {
        FindTimeFields(format, &fields);
    }
    if (fields.useDate) {
        AppendDate(picture, fields);
    }
    if (fields.useTime) {
        AppendTime(picture, fields);
    }
    if (StartsWith(format, monthAndYear)) {
        FixMonthAndYear(picture);
    }
    if (StartsWith(format, hourAndMinute)) {
        // Settled: a clock format is its own entry picture.
        // Bounded: Append cuts what is longer than the scratch buffer.
        picture->length = 0;
        AppendText(picture, format, notFound);
    }
}

} // namespace

void NormalizeDateFormat(const char* format, bool wantDate, bool wantTime, char* outPicture)
{
    Picture picture = { outPicture, 0 };
    if (!format || !*format) {
        AppendDefaults(&picture, wantDate, wantTime);
    } else {
        AppendChosen(&picture, format, wantDate, wantTime);
    }
    outPicture[picture.length] = 0;
}
