// Julian day numbers and milliseconds of a day.
// The fractions of the calendar (365.25, 30.6001, 36524.25) are whole ratios here, so that every processor agrees.
#include "typed/date_time.h"

#include <cstdint>

namespace {

constexpr int          yearForNone = 1992;         // a date without a year computes in this one
constexpr int          firstGregorianKey = 588829; // (year*12 + month)*31 + day of 15 October 1582
constexpr std::int64_t firstGregorianDay = 2299161;

// Settled: differences of days pass through single precision, which shows from 2^24 days on.
// The store keeps a coprocessor from working on with the full width of its register.
std::int64_t ThroughSingle(std::int64_t days)
{
    const volatile float single = static_cast<float>(days);
    return static_cast<std::int64_t>(single);
}

constexpr int FloorDiv(int value, int divisor)
{
    const int quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

// 0 counts as no year, and the year before 1 is -1.
int AstronomicalYear(int year)
{
    if (year == 0) {
        return yearForNone;
    }
    return year < 0 ? year + 1 : year;
}

void StoreIf(int* out, DWORD value)
{
    if (out) {
        *out = static_cast<int>(value);
    }
}

} // namespace

DWORD DateToJulian(int year, int month, int day)
{
    const int y = AstronomicalYear(year);
    const int shiftedYear = month < 3 ? y - 1 : y;
    const int shiftedMonth = month > 2 ? month + 1 : month + 13;
    const int julian = FloorDiv(1461 * shiftedYear, 4) + 306001 * shiftedMonth / 10000 + 1720995 + day;
    if ((y * 12 + month) * 31 + day < firstGregorianKey) {
        return static_cast<DWORD>(julian);
    }
    const int century = shiftedYear / 100;
    return static_cast<DWORD>(julian + 2 - century + century / 4);
}

void JulianToDate(DWORD julian, int* outYear, int* outMonth, int* outDay)
{
    // Day numbers of the far past are negative, so the word is read as signed.
    const std::int64_t signedDay = static_cast<std::int32_t>(julian);
    std::int64_t       a = signedDay;
    if (signedDay >= firstGregorianDay) {
        const std::int64_t gregorian = (4 * ThroughSingle(signedDay - 1867216) - 1) / 146097;
        a = signedDay + 1 + gregorian - gregorian / 4;
    }
    const std::int64_t b = a + 1524;
    const std::int64_t c = (std::int64_t{ 7305 } * 6680 + 20 * ThroughSingle(b - 2439870) - 2442) / 7305;
    const std::int64_t d = 365 * c + c / 4;
    const std::int64_t e = (b - d) * 10000 / 306001;
    const int          month = static_cast<int>(e > 13 ? e - 13 : e - 1);
    int                year = static_cast<int>(c - 4715);
    year -= month > 2 ? 1 : 0;
    year -= year < 1 ? 1 : 0;
    *outYear = year;
    *outMonth = month;
    *outDay = static_cast<int>(b - d - 306001 * e / 10000);
}

DWORD TimeToMsec(int hour, int minute, int second, int msec)
{
    const DWORD minutes = static_cast<DWORD>(hour) * 60 + static_cast<DWORD>(minute);
    return (minutes * 60 + static_cast<DWORD>(second)) * 1000 + static_cast<DWORD>(msec);
}

void MsecToTime(DWORD msec, int* outHour, int* outMinute, int* outSecond, int* outMsec)
{
    StoreIf(outHour, msec / 3600000);
    StoreIf(outMinute, msec / 60000 % 60);
    StoreIf(outSecond, msec / 1000 % 60);
    StoreIf(outMsec, msec % 1000);
}
