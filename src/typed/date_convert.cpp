// The stored types of dates and times, to and from the broken-down record.
// Values in memory lie at any address; what a type cannot hold loses its high bits.
#include "typed/date_time.h"

#include "foundation/memory.h"

#include <cstdint>
#include <cstring>
#include <ctime>
#include <limits>

namespace {

constexpr DWORD  julianOf1900 = 2415021;   // 1 January 1900, day 0 of the counted days
constexpr DWORD  julianOfOrigin = 2415019; // 30 December 1899, day 0 of the doubles
constexpr double msecPerDay = 86400000.0;
constexpr DWORD  msecPerMinute = 60000;
constexpr int    calendarYear = 1900; // year 0 of the calendar record

// The calendar record of the standard library as it is stored: nine words, whatever more the runtime's has.
struct StoredCalendar {
    int second;
    int minute;
    int hour;
    int day;
    int month; // from 0
    int year;  // since 1900
    int weekday;
    int yearDay;
    int daylight;
};
static_assert(sizeof(StoredCalendar) == 36 && sizeof(DateTimeRec) == 10);

// Settled: it lives as long as the library, and a date up to 1900 leaves the year of the last call in it.
tm gCalendar;

WORD WordAt(const BYTE* data, size_t index)
{
    return LoadAs<WORD>(data + index * sizeof(WORD));
}

BYTE LowByteAt(const BYTE* data, size_t index)
{
    return static_cast<BYTE>(WordAt(data, index));
}

void StoreWordAt(BYTE* data, size_t index, int value)
{
    StoreAs(data + index * sizeof(WORD), static_cast<WORD>(value));
}

void SetDate(DateTimeRec* rec, DWORD julian)
{
    int year = 0;
    int month = 0;
    int day = 0;
    JulianToDate(julian, &year, &month, &day);
    rec->year = static_cast<short>(year);
    rec->month = static_cast<BYTE>(month);
    rec->day = static_cast<BYTE>(day);
}

void SetTime(DateTimeRec* rec, DWORD clock, int* outMsec)
{
    int hour = 0;
    int minute = 0;
    int second = 0;
    MsecToTime(clock, &hour, &minute, &second, outMsec);
    rec->hour = static_cast<BYTE>(hour);
    rec->minute = static_cast<BYTE>(minute);
    rec->second = static_cast<BYTE>(second);
}

void SetTimeAndMsec(DateTimeRec* rec, DWORD clock)
{
    int msec = 0;
    SetTime(rec, clock, &msec);
    rec->msec = static_cast<WORD>(msec);
}

DWORD JulianOf(const DateTimeRec& rec)
{
    return DateToJulian(rec.year, rec.month, rec.day);
}

// Whole seconds only: no type that is stored through it takes the record's msec.
DWORD SecondsAsMsec(const DateTimeRec& rec)
{
    return TimeToMsec(rec.hour, rec.minute, rec.second, 0);
}

// Bounded: a number that no int holds gives what the processor's conversion gives for it.
int TruncateToInt(double value)
{
    constexpr double low = -2147483649.0;
    constexpr double high = 2147483648.0;
    return value > low && value < high ? static_cast<int>(value) : std::numeric_limits<int>::min();
}

// The store rounds to a double, where a coprocessor would go on with the full width of its register.
double AsDouble(double value)
{
    const volatile double stored = value;
    return stored;
}

bool ReadRecord(DateTimeRec* rec, const BYTE* data)
{
    std::memcpy(rec, data, sizeof *rec);
    return true;
}

bool WriteRecord(const DateTimeRec& rec, BYTE* data)
{
    std::memcpy(data, &rec, sizeof rec);
    return true;
}

bool ReadDayAndMsec(DateTimeRec* rec, const BYTE* data)
{
    SetDate(rec, LoadAs<DWORD>(data) + julianOf1900);
    SetTimeAndMsec(rec, LoadAs<DWORD>(data + 4));
    return true;
}

bool WriteDayAndMsec(const DateTimeRec& rec, BYTE* data)
{
    StoreAs(data, JulianOf(rec) - julianOf1900);
    StoreAs(data + 4, SecondsAsMsec(rec));
    return true;
}

bool ReadDayAndMinute(DateTimeRec* rec, const BYTE* data)
{
    SetDate(rec, WordAt(data, 0) + julianOf1900);
    SetTime(rec, WordAt(data, 1) * msecPerMinute, nullptr);
    return true;
}

bool WriteDayAndMinute(const DateTimeRec& rec, BYTE* data)
{
    StoreWordAt(data, 0, static_cast<int>(JulianOf(rec) - julianOf1900));
    StoreWordAt(data, 1, static_cast<int>(SecondsAsMsec(rec) / msecPerMinute));
    return true;
}

bool ReadDays(DateTimeRec* rec, const BYTE* data)
{
    const double value = LoadAs<double>(data);
    const int    days = TruncateToInt(value);
    SetDate(rec, static_cast<DWORD>(days) + julianOfOrigin);
    const double msec = AsDouble((value - days) * msecPerDay);
    // Settled: the time of a day before the origin is a negative count, read as unsigned.
    SetTimeAndMsec(rec, static_cast<DWORD>(TruncateToInt(AsDouble(msec + 0.5))));
    return true;
}

bool WriteDays(const DateTimeRec& rec, BYTE* data)
{
    const int days = static_cast<int>(JulianOf(rec) - julianOfOrigin);
    StoreAs(data, AsDouble(SecondsAsMsec(rec) / msecPerDay) + static_cast<double>(days));
    return true;
}

void SetFromCalendar(DateTimeRec* rec, const StoredCalendar& stored)
{
    rec->year = static_cast<short>(static_cast<DWORD>(stored.year) + calendarYear);
    rec->month = static_cast<BYTE>(static_cast<DWORD>(stored.month) + 1);
    rec->day = static_cast<BYTE>(stored.day);
    rec->hour = static_cast<BYTE>(stored.hour);
    rec->minute = static_cast<BYTE>(stored.minute);
    rec->second = static_cast<BYTE>(stored.second % 60); // a leap second reads as 0
}

StoredCalendar Stored(const tm& calendar)
{
    return { calendar.tm_sec,  calendar.tm_min,  calendar.tm_hour, calendar.tm_mday, calendar.tm_mon,
             calendar.tm_year, calendar.tm_wday, calendar.tm_yday, calendar.tm_isdst };
}

// Runs the record through the retained calendar record; -1 if the clock cannot show it.
// Settled: the year stays as the last call left it where the record has none that the calendar can show.
__time64_t ClockOf(const DateTimeRec& rec)
{
    gCalendar.tm_sec = rec.second;
    gCalendar.tm_min = rec.minute;
    gCalendar.tm_hour = rec.hour;
    gCalendar.tm_mday = rec.day;
    gCalendar.tm_mon = rec.month - 1;
    if (rec.year > calendarYear) {
        gCalendar.tm_year = rec.year - calendarYear;
    }
    // The runtime finds out about daylight saving: what the last call left there would move the time by an hour.
    gCalendar.tm_isdst = -1;
    // Runtimes differ on times before 1970 and on what a failure leaves in the record, so neither is left to them.
    tm               normal = gCalendar;
    const __time64_t clock = _mktime64(&normal);
    if (clock < 0) {
        return -1;
    }
    gCalendar = normal;
    return clock;
}

bool ReadClock(DateTimeRec* rec, const BYTE* data)
{
    const __time64_t clock = LoadAs<__time64_t>(data);
    const tm* const  local = clock < 0 ? nullptr : _localtime64(&clock);
    if (!local) {
        return false;
    }
    SetFromCalendar(rec, Stored(*local));
    return true;
}

bool WriteClock(const DateTimeRec& rec, BYTE* data)
{
    const __time64_t clock = ClockOf(rec);
    if (clock == -1) {
        return false;
    }
    StoreAs(data, clock);
    return true;
}

bool ReadCalendar(DateTimeRec* rec, const BYTE* data)
{
    SetFromCalendar(rec, LoadAs<StoredCalendar>(data));
    return true;
}

bool WriteCalendar(const DateTimeRec& rec, BYTE* data)
{
    if (ClockOf(rec) == -1) {
        return false;
    }
    StoreAs(data, Stored(gCalendar));
    return true;
}

bool ReadWords(DateTimeRec* rec, const BYTE* data)
{
    rec->year = LoadAs<short>(data);
    rec->month = LowByteAt(data, 1);
    rec->day = LowByteAt(data, 2);
    rec->hour = LowByteAt(data, 3);
    rec->minute = LowByteAt(data, 4);
    rec->second = LowByteAt(data, 5);
    rec->msec = WordAt(data, 6);
    return true;
}

bool WriteWords(const DateTimeRec& rec, BYTE* data)
{
    StoreAs(data, rec.year);
    StoreWordAt(data, 1, rec.month);
    StoreWordAt(data, 2, rec.day);
    StoreWordAt(data, 3, rec.hour);
    StoreWordAt(data, 4, rec.minute);
    StoreWordAt(data, 5, rec.second);
    StoreWordAt(data, 6, rec.msec);
    return true;
}

bool ReadPackedDate(DateTimeRec* rec, const BYTE* data)
{
    const int packed = WordAt(data, 0);
    rec->year = static_cast<short>((packed & 0x7F) + 1980);
    rec->month = static_cast<BYTE>(packed >> 7 & 0x0F);
    rec->day = static_cast<BYTE>(packed >> 11);
    return true;
}

bool WritePackedDate(const DateTimeRec& rec, BYTE* data)
{
    StoreWordAt(data, 0, ((rec.year - 1980) & 0x7F) | (rec.month & 0x0F) << 7 | rec.day << 11);
    return true;
}

bool ReadByteDate(DateTimeRec* rec, const BYTE* data)
{
    rec->day = data[0];
    rec->month = data[1];
    rec->year = LoadAs<short>(data + 2);
    return true;
}

bool WriteByteDate(const DateTimeRec& rec, BYTE* data)
{
    data[0] = rec.day;
    data[1] = rec.month;
    StoreAs(data + 2, rec.year);
    return true;
}

bool ReadWordDate(DateTimeRec* rec, const BYTE* data)
{
    rec->year = LoadAs<short>(data);
    rec->month = LowByteAt(data, 1);
    rec->day = LowByteAt(data, 2);
    return true;
}

bool WriteWordDate(const DateTimeRec& rec, BYTE* data)
{
    StoreAs(data, rec.year);
    StoreWordAt(data, 1, rec.month);
    StoreWordAt(data, 2, rec.day);
    return true;
}

bool ReadDecimalDate(DateTimeRec* rec, const BYTE* data)
{
    const int value = LoadAs<int>(data);
    rec->year = static_cast<short>(value / 10000);
    rec->month = static_cast<BYTE>(value % 10000 / 100);
    rec->day = static_cast<BYTE>(value % 100);
    return true;
}

bool WriteDecimalDate(const DateTimeRec& rec, BYTE* data)
{
    StoreAs(data, (rec.year * 100 + rec.month) * 100 + rec.day);
    return true;
}

bool ReadPackedTime(DateTimeRec* rec, const BYTE* data)
{
    const int packed = WordAt(data, 0);
    rec->hour = static_cast<BYTE>(packed & 0x1F);
    rec->minute = static_cast<BYTE>(packed >> 5 & 0x3F);
    rec->second = static_cast<BYTE>((packed >> 11) * 2);
    return true;
}

bool WritePackedTime(const DateTimeRec& rec, BYTE* data)
{
    StoreWordAt(data, 0, (rec.hour & 0x1F) | (rec.minute & 0x3F) << 5 | (rec.second >> 1) << 11);
    return true;
}

bool ReadByteTime(DateTimeRec* rec, const BYTE* data)
{
    rec->hour = data[0];
    rec->minute = data[1];
    rec->second = data[2];
    rec->msec = static_cast<WORD>(data[3] * 10);
    return true;
}

bool WriteByteTime(const DateTimeRec& rec, BYTE* data)
{
    data[0] = rec.hour;
    data[1] = rec.minute;
    data[2] = rec.second;
    data[3] = static_cast<BYTE>(rec.msec / 10);
    return true;
}

bool ReadWordTime(DateTimeRec* rec, const BYTE* data)
{
    rec->hour = LowByteAt(data, 0);
    rec->minute = LowByteAt(data, 1);
    rec->second = LowByteAt(data, 2);
    return true;
}

bool WriteWordTime(const DateTimeRec& rec, BYTE* data)
{
    StoreWordAt(data, 0, rec.hour);
    StoreWordAt(data, 1, rec.minute);
    StoreWordAt(data, 2, rec.second);
    return true;
}

struct DateType {
    char letter;
    bool (*read)(DateTimeRec* rec, const BYTE* data);
    bool (*write)(const DateTimeRec& rec, BYTE* data);
};

// clang-format off
constexpr DateType dateTypes[] = {
    { 'D', ReadRecord,       WriteRecord       },
    { 'Q', ReadDayAndMsec,   WriteDayAndMsec   },
    { 'T', ReadClock,        WriteClock        },
    { 'm', ReadCalendar,     WriteCalendar     },
    { 'q', ReadDayAndMinute, WriteDayAndMinute },
    { 's', ReadWords,        WriteWords        },
    { 'u', ReadDays,         WriteDays         },
    { 'A', ReadPackedDate,   WritePackedDate   },
    { 'a', ReadByteDate,     WriteByteDate     },
    { 'd', ReadWordDate,     WriteWordDate     },
    { 'l', ReadDecimalDate,  WriteDecimalDate  },
    { 'I', ReadPackedTime,   WritePackedTime   },
    { 'i', ReadByteTime,     WriteByteTime     },
    { 't', ReadWordTime,     WriteWordTime     },
};
// clang-format on

const DateType* FindType(char letter)
{
    for (const DateType& type : dateTypes) {
        if (type.letter == letter) {
            return &type;
        }
    }
    return nullptr;
}

} // namespace

int WINAPI DataToDateTime(DateTimeRec* rec, const void* data, char dataType)
{
    if (!rec || !data) {
        return 0;
    }
    std::memset(rec, 0, sizeof *rec);
    const DateType* const type = FindType(dataType);
    return type && type->read(rec, static_cast<const BYTE*>(data));
}

int WINAPI DateTimeToData(const DateTimeRec* rec, void* data, char dataType)
{
    if (!rec || !data) {
        return 0;
    }
    const DateType* const type = FindType(dataType);
    return type && type->write(*rec, static_cast<BYTE*>(data));
}
