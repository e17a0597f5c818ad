// Reads a text into a broken-down date or time, field by field along the entry picture.
// Nothing is checked here: validation and repair are the caller's.
#include "typed/date_time.h"

#include "typed/date_letters.h"
#include "typed/intl.h"

#include <cctype>
#include <cstdint>
#include <cstring>
#include <limits>

namespace {

struct Reader {
    DateTimeRec* rec;
    const char*  picture;
    const char*  text;
    SYSTEMTIME   now;
    bool         sawHour;
};

constexpr char fieldLetters[] = "dmyhsf";

// Settled: only lower-case letters are fields here, so a clock format in capitals reads nothing.
bool IsFieldLetter(char ch)
{
    return ch != 0 && std::strchr(fieldLetters, ch) != nullptr;
}

int Bound(std::int64_t value)
{
    constexpr int low = std::numeric_limits<int>::min();
    constexpr int high = std::numeric_limits<int>::max();
    if (value < low || value > high) {
        return value < 0 ? low : high;
    }
    return static_cast<int>(value);
}

// As atoi reads, with a number that no int holds bounded on every runtime.
int ToInt(const char* text, const char* end)
{
    while (text < end && std::isspace(static_cast<unsigned char>(*text))) {
        ++text;
    }
    const bool negative = text < end && *text == '-';
    if (text < end && (*text == '-' || *text == '+')) {
        ++text;
    }
    std::int64_t value = 0;
    for (; text < end && IsDecimalDigit(*text); ++text) {
        value = Bound(value * 10 + (*text - '0') * std::int64_t{ 1 });
    }
    return Bound(negative ? -value : value);
}

// Takes the picture's run of one letter, and as many characters of the text whatever they are.
// A digit more counts in where the picture lets the field end, so a field of one letter reads two digits.
int TakeNumber(Reader* reader)
{
    const char        letter = *reader->picture;
    const char* const from = reader->text;
    for (; *reader->picture == letter; ++reader->picture) {
        reader->text += *reader->text ? 1 : 0;
    }
    if (!IsFieldLetter(*reader->picture) && IsDecimalDigit(*reader->text)) {
        ++reader->text;
    }
    return ToInt(from, reader->text);
}

void SetMonth(Reader* reader, int value)
{
    DateTimeRec* const rec = reader->rec;
    rec->month = static_cast<BYTE>(value);
    if (rec->month == 0 && rec->day > 0) {
        rec->month = static_cast<BYTE>(reader->now.wMonth);
    }
}

void SetMonthOrMinute(Reader* reader, int value)
{
    if (reader->sawHour) {
        reader->rec->minute = static_cast<BYTE>(value);
    } else {
        SetMonth(reader, value);
    }
}

void SetYear(Reader* reader, int value)
{
    reader->rec->year = static_cast<short>(value == 0 ? reader->now.wYear : value);
}

void SetHour(Reader* reader, int value)
{
    reader->rec->hour = static_cast<BYTE>(value);
    reader->sawHour = true;
}

void SetField(Reader* reader, char letter, int value)
{
    switch (letter) {
    case 'd': reader->rec->day = static_cast<BYTE>(value); break;
    case 'm': SetMonthOrMinute(reader, value); break;
    case 'y': SetYear(reader, value); break;
    case 'h': SetHour(reader, value); break;
    case 's': reader->rec->second = static_cast<BYTE>(value); break;
    default:
        reader->rec->msec = static_cast<BYTE>(value); // Settled: the low byte only
        break;
    }
}

void ReadMarker(DateTimeRec* rec, char ch)
{
    const bool morning = ch == 'a' || ch == 'A';
    if (morning && rec->hour == 12) {
        rec->hour = 0;
    } else if (!morning && rec->hour < 12) {
        rec->hour = static_cast<BYTE>(rec->hour + 12);
    }
}

void ReadNext(Reader* reader)
{
    const char ch = *reader->picture;
    if (IsFieldLetter(ch)) {
        const int value = TakeNumber(reader);
        SetField(reader, ch, value);
        return;
    }
    // Fields count in lower case alone, but an afternoon must not be lost to a picture with "AP".
    if (ch == 'a' || ch == 'A') {
        ReadMarker(reader->rec, *reader->text);
    }
    ++reader->picture;
    ++reader->text;
}

} // namespace

int ParseDateTime(DateTimeRec* rec, const char* text, const char* format, bool wantDate, bool wantTime)
{
    char picture[scratchSize];
    NormalizeDateFormat(format, wantDate, wantTime, picture);
    if (!*picture) {
        return 1;
    }
    std::memset(rec, 0, sizeof *rec);
    Reader reader = { rec, picture, text, {}, false };
    GetLocalTime(&reader.now);
    while (*reader.text && *reader.picture) {
        ReadNext(&reader);
    }
    return 1;
}
