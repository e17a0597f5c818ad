// Validation and repair of a broken-down date or time.
// Which fields count is the caller's choice; the exports repair in place only when they are told to.
#include "typed/date_time.h"

#include <cstddef>
#include <iterator>

namespace {

constexpr BYTE monthLengths[] = { 31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
constexpr BYTE february = 2;
constexpr BYTE commonFebruary = 28;

constexpr int lastYearOfCentury = 40; // two-digit years up to here lie in the current century
constexpr int firstYear = 1900;
constexpr int endYear = 2100;

int CurrentCentury()
{
    SYSTEMTIME now;
    GetLocalTime(&now);
    return now.wYear / 100 * 100;
}

int ExpandYear(int year)
{
    if (year >= 0 && year <= 99) {
        year += CurrentCentury() - (year > lastYearOfCentury ? 100 : 0);
    }
    if (year >= endYear) {
        return year % 100 + 2000;
    }
    return year < firstYear ? year % 100 + firstYear : year;
}

bool IsLeapYear(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

// A record can come here with an unchecked month.
// Bounded: the table isn't read outside its twelve months; any other month takes as many days as the longest.
BYTE LongestDay(BYTE month)
{
    return month >= 1 && month <= std::size(monthLengths) ? monthLengths[month - 1] : monthLengths[0];
}

// True if the field lies within the bounds; otherwise it moves to the nearer one if repair is set.
bool CheckBounds(BYTE* field, BYTE low, BYTE high, int repair)
{
    if (*field >= low && *field <= high) {
        return true;
    }
    if (repair) {
        *field = *field < low ? low : high;
    }
    return false;
}

bool CheckDay(DateTimeRec* rec, int repair, bool passed)
{
    if (rec->month == february && !IsLeapYear(rec->year)) {
        return CheckBounds(&rec->day, 1, commonFebruary, repair) && passed;
    }
    if (!passed && !repair) {
        return false;
    }
    return CheckBounds(&rec->day, 1, LongestDay(rec->month), repair) && passed;
}

bool CheckMinute(DateTimeRec* rec, int repair)
{
    if (rec->minute < 60) {
        return true;
    }
    if (repair) {
        // Settled: the repair takes the month where it would do as a minute.
        rec->minute = rec->month < 59 ? rec->month : 59;
    }
    return false;
}

} // namespace

int WINAPI ValidDate(DateTimeRec* rec, int repair, int checkYear, int checkMonth, int checkDay)
{
    // Bounded: without a record there is nothing that passes.
    if (!rec) {
        return 0;
    }
    if (checkYear && repair) {
        rec->year = static_cast<short>(ExpandYear(rec->year));
    }
    bool passed = !checkMonth || CheckBounds(&rec->month, 1, 12, repair);
    if (checkDay) {
        passed = CheckDay(rec, repair, passed);
    }
    if (!checkDay && checkYear && checkMonth) {
        rec->day = 1; // a date without a day field means the first of the month
    }
    return passed;
}

int WINAPI ValidTime(DateTimeRec* rec, int repair, int twelveHour, int checkHour, int checkMinute, int checkSecond)
{
    // Bounded: without a record there is nothing that passes.
    if (!rec) {
        return 0;
    }
    bool passed = true;
    if (checkHour) {
        passed = twelveHour ? CheckBounds(&rec->hour, 1, 12, repair) : CheckBounds(&rec->hour, 0, 23, repair);
    }
    if (checkMinute && !CheckMinute(rec, repair)) {
        passed = false;
    }
    if (checkSecond && !CheckBounds(&rec->second, 0, 59, repair)) {
        passed = false;
    }
    return passed;
}
