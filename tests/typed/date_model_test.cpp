// Random and exhaustive comparisons of dates and times with small models of their own.
// Each test has a fixed seed, so a failure comes again.
#include "typed/date_test_support.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

namespace {

using Random = std::mt19937;

int Pick(Random& random, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(random);
}

template <typename T, size_t N>
const T& PickOf(Random& random, const T (&items)[N])
{
    return items[Pick(random, 0, static_cast<int>(N) - 1)];
}

// A calendar that only knows how to step from one day to the next.
struct CalendarDay {
    int year;
    int month;
    int day;
};

bool IsLeap(int year)
{
    const int counted = year < 0 ? year + 1 : year;
    if (year < 1582) {
        return counted % 4 == 0;
    }
    return counted % 4 == 0 && (counted % 100 != 0 || counted % 400 == 0);
}

int MonthLength(int year, int month)
{
    constexpr int lengths[] = { 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
    return month == 2 && IsLeap(year) ? 29 : lengths[month - 1];
}

void Step(CalendarDay* at)
{
    if (at->year == 1582 && at->month == 10 && at->day == 4) {
        at->day = 15;
        return;
    }
    if (++at->day <= MonthLength(at->year, at->month)) {
        return;
    }
    at->day = 1;
    if (++at->month <= 12) {
        return;
    }
    at->month = 1;
    at->year += at->year == -1 ? 2 : 1;
}

int Truncate(double value)
{
    return static_cast<int>(std::trunc(value));
}

// The documented sums, in the documented kinds of floating-point numbers.
DWORD JulianBySums(int year, int month, int day)
{
    const int y = year == 0 ? 1992 : (year < 0 ? year + 1 : year);
    const int ym = month < 3 ? y - 1 : y;
    const int mm = month > 2 ? month + 1 : month + 13;
    const int j = Truncate(std::floor(365.25 * ym) + std::floor(30.6001 * mm)) + 1720995 + day;
    if ((y * 12 + month) * 31 + day < 588829) {
        return static_cast<DWORD>(j);
    }
    const int c = Truncate(0.01 * ym);
    return static_cast<DWORD>(j + 2 - Truncate(-0.25 * c) - c);
}

CalendarDay DateBySums(int julian)
{
    int a = julian;
    if (julian >= 2299161) {
        const volatile float days = static_cast<float>(julian - 1867216);
        const int            g = Truncate((static_cast<double>(days) - 0.25) / 36524.25);
        a = julian + 1 + g - Truncate(0.25 * g);
    }
    const int            b = a + 1524;
    const volatile float days = static_cast<float>(b - 2439870);
    const int            c = Truncate(6680.0 + (static_cast<double>(days) - 122.1) / 365.25);
    const int            d = 365 * c + Truncate(0.25 * c);
    const int            e = Truncate((b - d) / 30.6001);
    const int            month = e - 1 > 12 ? e - 13 : e - 1;
    int                  year = c - 4715 - (month > 2 ? 1 : 0);
    year -= year < 1 ? 1 : 0;
    return { year, month, b - d - Truncate(30.6001 * e) };
}

CalendarDay DateOf(DWORD julian)
{
    CalendarDay date = {};
    JulianToDate(julian, &date.year, &date.month, &date.day);
    return date;
}

bool Same(const CalendarDay& a, const CalendarDay& b)
{
    return a.year == b.year && a.month == b.month && a.day == b.day;
}

std::string Text(const CalendarDay& date)
{
    return std::to_string(date.year) + "-" + std::to_string(date.month) + "-" + std::to_string(date.day);
}

DateTimeRec RandomMoment(Random& random, int firstYear, int lastYear)
{
    int year = Pick(random, firstYear, lastYear);
    year += year == 0 ? 1 : 0;
    const int month = Pick(random, 1, 12);
    int       day = Pick(random, 1, MonthLength(year, month));
    day = year == 1582 && month == 10 && day > 4 && day < 15 ? 15 : day;
    return Moment(year, month, day, Pick(random, 0, 23), Pick(random, 0, 59), Pick(random, 0, 59),
                  Pick(random, 0, 999));
}

// What a type keeps of a moment.
struct TypeModel {
    char type;
    int  firstYear;
    int  lastYear;
    bool hasDate;
    bool hasTime;
    int  secondStep; // 60: no seconds
    int  msecStep;   // 1000: no milliseconds
};

// clang-format off
constexpr TypeModel typeModels[] = {
    { 'D', -32768, 32767, true,  true,   1,    1 },
    { 'Q',  -4713, 32767, true,  true,   1, 1000 },
    { 'q',   1900,  2078, true,  true,  60, 1000 },
    { 's', -32768, 32767, true,  true,   1,    1 },
    { 'u',   1900,  9999, true,  true,   1, 1000 },
    { 'A',   1980,  2107, true,  false,  1, 1000 },
    { 'a', -32768, 32767, true,  false,  1, 1000 },
    { 'd', -32768, 32767, true,  false,  1, 1000 },
    { 'l',      1, 32767, true,  false,  1, 1000 },
    { 'I',   1900,  2100, false, true,   2, 1000 },
    { 'i',   1900,  2100, false, true,   1,   10 },
    { 't',   1900,  2100, false, true,   1, 1000 },
};
// clang-format on

DateTimeRec Kept(const TypeModel& model, DateTimeRec rec)
{
    if (!model.hasDate) {
        rec.year = 0;
        rec.month = 0;
        rec.day = 0;
    }
    if (!model.hasTime) {
        rec.hour = 0;
        rec.minute = 0;
        rec.second = 0;
        rec.msec = 0;
    }
    rec.second = static_cast<BYTE>(rec.second / model.secondStep * model.secondStep);
    rec.msec = static_cast<WORD>(rec.msec / model.msecStep * model.msecStep);
    return rec;
}

// A date field while it is typed into.
struct Field {
    const char* format;
    bool        wantDate;
    bool        wantTime;
    std::string text;
    int         caret;
};

constexpr char keys[] = { '0', '1', '9', ' ', '.', '/', ':', 'a', 'p', 'x', '\t', '\xFF', '\0' };
constexpr char letters[] = { '0', '5', '9', ' ', ' ', '.', ':', '/', 'a', 'm', '\xE8' };

std::string RandomText(Random& random)
{
    std::string text;
    for (int n = Pick(random, 0, 20); n > 0; --n) {
        text += PickOf(random, letters);
    }
    return text;
}

std::string RandomShown(Random& random, const Field& field)
{
    const DateTimeRec rec = RandomMoment(random, 1, 9999);
    char              shown[64];
    FormatDateTime(&rec, field.format, shown, sizeof shown, true, field.wantDate, field.wantTime);
    return shown;
}

void ExpectTaken(const Field& field, const std::string& after, int advance, int repaint)
{
    const int before = static_cast<int>(field.text.size());
    const int length = static_cast<int>(after.size());
    ASSERT_LE(std::abs(length - before), 1) << field.text;
    ASSERT_GE(advance, 0);
    ASSERT_LE(field.caret + advance, length) << field.text << " at " << field.caret;
    ASSERT_GE(repaint, 1);
    ASSERT_LE(field.caret + repaint, std::max(length, before)) << field.text << " at " << field.caret;
    const auto caret = static_cast<size_t>(field.caret);
    ASSERT_EQ(field.text.substr(0, caret), after.substr(0, caret));
}

// One keystroke in a block with room for one character more, and not a byte besides.
void Press(Field* field, char key)
{
    const char* const text = field->text.c_str();
    std::vector<char> room(text, text + field->text.size() + 1);
    room.push_back('#');
    int       advance = 99;
    int       repaint = 99;
    const int refused = DateCharFilter(room.data(), field->format, field->wantDate, field->wantTime, field->caret, key,
                                       &advance, &repaint);
    ASSERT_NE(room.end(), std::find(room.begin(), room.end(), '\0'));
    const std::string after = room.data();
    if (refused) {
        ASSERT_EQ(field->text, after);
        ASSERT_EQ(0, advance);
        ASSERT_EQ(0, repaint);
        return;
    }
    ASSERT_NO_FATAL_FAILURE(ExpectTaken(*field, after, advance, repaint));
    field->text = after;
    field->caret += advance;
}

class DateModel : public DateTest {};

} // namespace

TEST_F(DateModel, EveryDayOfElevenThousandYearsFollowsTheOneBefore)
{
    CalendarDay day = { -4713, 1, 1 };
    for (DWORD julian = 0; day.year < 6300; ++julian, Step(&day)) {
        ASSERT_EQ(julian, DateToJulian(day.year, day.month, day.day)) << Text(day);
        ASSERT_TRUE(Same(day, DateOf(julian))) << julian << " is " << Text(day);
    }
}

TEST_F(DateModel, TheGregorianCalendarRepeatsEveryFourCenturies)
{
    Random random(1);
    for (int i = 0; i < 200000; ++i) {
        const DateTimeRec rec = RandomMoment(random, 1583, 1982);
        const int         periods = Pick(random, 0, (32767 - rec.year) / 400);
        const int         year = rec.year + 400 * periods;
        const DWORD       julian = DateToJulian(year, rec.month, rec.day);
        ASSERT_EQ(DateToJulian(rec.year, rec.month, rec.day) + 146097u * static_cast<DWORD>(periods), julian);
        ASSERT_EQ(Text({ year, rec.month, rec.day }), Text(DateOf(julian)));
    }
}

TEST_F(DateModel, DayNumbersAreThoseOfTheDocumentedSums)
{
    Random random(2);
    for (int i = 0; i < 500000; ++i) {
        const int year = Pick(random, -32768, 32767);
        const int month = Pick(random, 0, i % 2 ? 255 : 12);
        const int day = Pick(random, 0, i % 2 ? 255 : 31);
        ASSERT_EQ(JulianBySums(year, month, day), DateToJulian(year, month, day)) << Text({ year, month, day });
    }
}

TEST_F(DateModel, DatesAreThoseOfTheDocumentedSums)
{
    Random random(3);
    for (int i = 0; i < 500000; ++i) {
        // Further on the sums themselves leave the range of an int.
        const int         julian = i % 2 ? Pick(random, -2100000000, 2100000000) : Pick(random, -20000000, 20000000);
        const CalendarDay expected = DateBySums(julian);
        const CalendarDay date = DateOf(static_cast<DWORD>(julian));
        ASSERT_TRUE(Same(expected, date)) << julian << ": " << Text(expected) << ", not " << Text(date);
    }
}

TEST_F(DateModel, EveryDayNumberIsSafeToConvert)
{
    Random random(4);
    for (const DWORD julian : { 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu, 2299160u, 2299161u }) {
        DateOf(julian);
    }
    for (int i = 0; i < 100000; ++i) {
        const CalendarDay date = DateOf(static_cast<DWORD>(random()));
        ASSERT_LE(std::abs(date.month), 14);
    }
}

TEST_F(DateModel, MillisecondsSplitAsTheyWereCounted)
{
    Random random(5);
    for (int i = 0; i < 100000; ++i) {
        const int msec = Pick(random, 0, 86399999);
        int       parts[4] = {};
        MsecToTime(static_cast<DWORD>(msec), &parts[0], &parts[1], &parts[2], &parts[3]);
        ASSERT_EQ(static_cast<DWORD>(msec), TimeToMsec(parts[0], parts[1], parts[2], parts[3]));
        ASSERT_LT(parts[0], 24);
        ASSERT_LT(parts[1], 60);
        ASSERT_LT(parts[2], 60);
        ASSERT_LT(parts[3], 1000);
    }
}

TEST_F(DateModel, EachTypeGivesBackWhatItKeeps)
{
    Random random(6);
    for (const TypeModel& model : typeModels) {
        for (int i = 0; i < 20000; ++i) {
            const DateTimeRec rec = RandomMoment(random, model.firstYear, model.lastYear);
            BYTE              data[36] = {};
            DateTimeRec       back = {};
            ASSERT_EQ(1, DateTimeToData(&rec, data, model.type));
            ASSERT_EQ(1, DataToDateTime(&back, data, model.type));
            ASSERT_EQ(Kept(model, rec), back) << "type " << model.type;
        }
    }
}

TEST_F(DateModel, AnyBytesAreSafeToReadAsAnyType)
{
    Random         random(7);
    constexpr char types[] = "DQTmqsuAadlIit";
    for (int i = 0; i < 200000; ++i) {
        BYTE data[36];
        for (BYTE& part : data) {
            part = static_cast<BYTE>(random());
        }
        const char  type = types[i % 14];
        DateTimeRec rec = {};
        const int   result = DataToDateTime(&rec, data, type);
        ASSERT_TRUE(result == 1 || type == 'T') << type;
        BYTE stored[36];
        DateTimeToData(&rec, stored, type);
    }
}

TEST_F(DateModel, AValidDateIsOneThatTheCalendarHas)
{
    Random random(8);
    for (int i = 0; i < 200000; ++i) {
        const int   year = Pick(random, 1583, 2100);
        const int   month = Pick(random, 0, 14);
        const int   day = Pick(random, 0, 33);
        const bool  good = month >= 1 && month <= 12 && day >= 1 && day <= MonthLength(year, month);
        DateTimeRec rec = Moment(year, month, day);
        ASSERT_EQ(good ? 1 : 0, ValidDate(&rec, 0, 1, 1, 1)) << Text({ year, month, day });
        ASSERT_EQ(Moment(year, month, day), rec);
        ValidDate(&rec, 1, 0, 1, 1);
        ASSERT_EQ(1, ValidDate(&rec, 0, 0, 1, 1)) << Text({ year, month, day });
    }
}

TEST_F(DateModel, APictureOfTokensPrintsThemOneByOne)
{
    struct Token {
        const char* picture;
        std::string (*text)(const DateTimeRec& rec);
    };
    static constexpr Token tokens[] = {
        { "d", [](const DateTimeRec& rec) { return std::to_string(rec.day); } },
        { "dd", [](const DateTimeRec& rec) { return std::to_string(100 + rec.day).substr(1); } },
        { "m", [](const DateTimeRec& rec) { return std::to_string(rec.month); } },
        { "mm", [](const DateTimeRec& rec) { return std::to_string(100 + rec.month).substr(1); } },
        { "yy", [](const DateTimeRec& rec) { return std::to_string(100 + rec.year % 100).substr(1); } },
        { "yyyy", [](const DateTimeRec& rec) { return std::to_string(10000 + rec.year).substr(1); } },
        { "h", [](const DateTimeRec& rec) { return std::to_string(rec.hour); } },
        { "hh:mm",
          [](const DateTimeRec& rec) {
              return std::to_string(100 + rec.hour).substr(1) + ":" + std::to_string(100 + rec.minute).substr(1);
          } },
        { "ss", [](const DateTimeRec& rec) { return std::to_string(100 + rec.second).substr(1); } },
        { "ff", [](const DateTimeRec& rec) { return std::to_string(rec.msec); } },
        { "|", [](const DateTimeRec&) { return std::string("/"); } },
        { "/", [](const DateTimeRec&) { return std::string("."); } },
        { "[x]", [](const DateTimeRec&) { return std::string(); } },
        { "q", [](const DateTimeRec&) { return std::string("q"); } },
    };
    Random random(9);
    for (int i = 0; i < 50000; ++i) {
        const DateTimeRec rec = RandomMoment(random, 1, 9999);
        std::string       picture;
        std::string       text;
        for (int n = Pick(random, 1, 8); n > 0; --n) {
            const Token& token = PickOf(random, tokens);
            picture += std::string(token.picture) + " - "; // far enough from an hour for a month
            text += token.text(rec) + " - ";
        }
        char out[200];
        ASSERT_EQ(static_cast<int>(text.size()),
                  FormatDateTime(&rec, picture.c_str(), out, sizeof out, false, true, true));
        ASSERT_EQ(text, out) << picture;
    }
}

TEST_F(DateModel, TheEditFormReadsBackToWhatItShows)
{
    struct RoundTrip {
        const char* format;
        bool        wantDate;
        bool        wantTime;
        bool        shows[6]; // year, month, day, hour, minute, second
    };
    static constexpr RoundTrip formats[] = {
        { nullptr, true, false, { true, true, true } },
        { "dd.mm.yyyy", true, false, { true, true, true } },
        { "yyyy-mm-dd", true, false, { true, true, true } },
        { "dddd, d. mmmm yyyy", true, false, { true, true, true } },
        { "mm.yyyy", true, false, { true, true, false } },
        { "mm|yyyy", true, false, { true, true, false } },
        { "dd.mm", true, false, { false, true, true } },
        { "yyyy", true, false, { true, false, false } },
        { nullptr, false, true, { false, false, false, true, true, true } },
        { "h:mm:ss", false, true, { false, false, false, true, true, true } },
        { "hh:mm", false, true, { false, false, false, true, true, false } },
        { "hh:mm ap", false, true, { false, false, false, true, true, false } },
        { "hh:mm:ss AP", false, true, { false, false, false, true, true, true } },
        { nullptr, true, true, { true, true, true, true, true, true } },
        { "dd.mm.yyyy hh:mm", true, true, { true, true, true, true, true, false } },
        { "d/m/yyyy h:mm:ss", true, true, { true, true, true, true, true, true } },
    };
    static constexpr const char* dateFormats[] = { "d/m/yyyy", "dd/mm/yyyy", "m/d/yyyy", "yyyy/mm/dd",
                                                   "yyyy/m/d", "dd.mm.yyyy", "d-m-yyyy" };
    static constexpr char        separators[] = { '.', '/', '-' };
    Random                       random(10);
    for (int i = 0; i < 100000; ++i) {
        const RoundTrip&  test = PickOf(random, formats);
        const DateTimeRec rec = RandomMoment(random, 1000, 9999);
        ASSERT_EQ(1, SetDefDateFormat(PickOf(random, dateFormats)));
        ASSERT_EQ(1, SetDateSep(PickOf(random, separators)));
        char text[64];
        FormatDateTime(&rec, test.format, text, sizeof text, true, test.wantDate, test.wantTime);
        DateTimeRec back = {};
        ParseDateTime(&back, text, test.format, test.wantDate, test.wantTime);
        const DateTimeRec shown =
            Moment(test.shows[0] ? rec.year : 0, test.shows[1] ? rec.month : 0, test.shows[2] ? rec.day : 0,
                   test.shows[3] ? rec.hour : 0, test.shows[4] ? rec.minute : 0, test.shows[5] ? rec.second : 0);
        ASSERT_EQ(shown, back) << text << " under " << (test.format ? test.format : "(none)") << " of "
                               << gIntl.szDateFormat << " with " << gIntl.chDateSep;
    }
}

TEST_F(DateModel, TypingNeverLeavesTheText)
{
    static constexpr const char* formats[] = { nullptr,    "dd.mm.yyyy",    "mm|yyyy", "dd.mm", "h:mm ap",
                                               "hh:mm ap", "hh:mm [am]\\x", "hh:mm[",  "h",     "-" };
    static constexpr const char* dateFormats[] = { "d/m/yyyy", "dd/mm/yyyy", "m/d/yy", "yyyy-mm-dd", "dmy",
                                                   "/d/m/y",   " d m y ",    "d[m]y",  "\\d/m/y\\" };
    static constexpr char        separators[] = { '.', '/', ' ', ':', '-', '\0' };
    Random                       random(11);
    for (int round = 0; round < 20000; ++round) {
        ASSERT_EQ(1, SetDefDateFormat(PickOf(random, dateFormats)));
        ASSERT_EQ(1, SetDateSep(PickOf(random, separators)));
        Field field = { PickOf(random, formats), Pick(random, 0, 1) == 1, Pick(random, 0, 1) == 1, "", 0 };
        field.text = round % 2 ? RandomText(random) : RandomShown(random, field);
        field.caret = Pick(random, 0, static_cast<int>(field.text.size()));
        for (int n = 0; n < 20; ++n) {
            ASSERT_NO_FATAL_FAILURE(Press(&field, PickOf(random, keys)));
        }
    }
}
