// The model of the entry step of dates and times, and of how their texts are read. The default formats are
// "d/m/yyyy" with a point and "h:mm:ss" with a colon.
#include "entry_script_shapes.h"

#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

bool IsDigit(char ch)
{
    return ch >= '0' && ch <= '9';
}

bool IsPunctuation(char ch)
{
    return std::ispunct(static_cast<unsigned char>(ch)) != 0;
}

bool IsLetter(char ch)
{
    return std::isalpha(static_cast<unsigned char>(ch)) != 0;
}

bool Holds(const char* letters, char ch)
{
    return ch && std::strchr(letters, ch);
}

char At(const std::string& text, int pos)
{
    return pos >= 0 && pos < static_cast<int>(text.size()) ? text[static_cast<size_t>(pos)] : '\0';
}

struct Moment {
    int  year;
    int  month;
    int  day;
    int  hour;
    int  minute;
    int  second;
    bool sawHour;
};

// Where a place of the text lies in the picture. A field of one letter may show two digits.
struct Spot {
    int walked; // the place of the text, or one behind it where the field in front has two digits
    int place;  // of the picture
};

// clang-format off
struct DateShape {
    char        dataClass;
    const char* types;
    const char* format;
    const char* picture; // of the entry
    const char* blank;   // the entry before anything is typed
};

constexpr DateShape dateShapes[] = {
    { 'd', "laAd",    nullptr,               "d/m/yyyy",         " . .    "         },
    { 'd', "ladA",    "mm/dd/yyyy",          "d/m/yyyy",         " . .    "         },
    { 'd', "lad",     "dddd, d. mmmm yyyy",  "d/m/yyyy",         " . .    "         },
    { 'd', "lad",     "yy",                  "//yyyy",           "..    "           },
    { 'd', "lad",     "mm|yyyy",             "m|yyyy",           " /    "           },
    { 'd', "lad",     "mm.yyyy",             "/m/yyyy",          ". .    "          },
    { 'd', "lad",     "dd.mm",               "d/m/",             " . ."             },
    { 't', "Iit",     nullptr,               "h:mm:ss",          "0:00:00"          },
    { 't', "Iit",     "hh:mm:ss",            "hh:mm:ss",         "00:00:00"         },
    { 't', "Iit",     "hh:mm",               "hh:mm",            "00:00"            },
    { 't', "Iit",     "hh:mm ap",            "hh:mm ap",         "12:00 am"         },
    { 't', "Iit",     "h:mm",                "h:mm",             "0:00"             },
    { 't', "Iit",     "h",                   "h",                "0"                },
    { 'a', "DsQuTmq", nullptr,               "d/m/yyyy h:mm:ss", " . .    "         },
    { 'a', "DsQuTmq", "mm/dd/yyyy hh:mm:ss", "d/m/yyyy h:mm:ss", " . .     0:00:00" },
    { 'a', "DsQuTmq", "dd.mm.yyyy hh:mm",    "d/m/yyyy h:mm",    " . .     0:00"    },
    { 'a', "DsQuTmq", "dd.mm.yyyy",          "d/m/yyyy",         " . .    "         },
    { 'a', "Ds",      "hh:mm:ss",            "hh:mm:ss",         "00:00:00"         },
    { 'k', "T",       nullptr,               "d/m/yyyy h:mm:ss", " . .    "         },
    { 'k', "T",       "dd.mm.yyyy hh:mm",    "d/m/yyyy h:mm",    " . .     0:00"    },
    { 'k', "T",       "hh:mm:ss",            "hh:mm:ss",         "00:00:00"         },
};
// clang-format on

// Days since 1 March 1600, and back. The month 0 is the December before, the day 0 the last one of the month before.
int DaysOf(int year, int month, int day)
{
    const int shifted = (year - 1600) * 12 + month - 3; // months, from March on
    const int years = shifted / 12;
    return years * 365 + years / 4 - years / 100 + years / 400 + (shifted % 12 * 153 + 2) / 5 + day - 1;
}

void SetDays(Moment* moment, int days)
{
    int year = 1600;
    while (DaysOf(year + 1, 3, 1) <= days) {
        ++year;
    }
    int month = 3;
    while (month < 14 && DaysOf(year, month + 1, 1) <= days) {
        ++month;
    }
    moment->day = days - DaysOf(year, month, 1) + 1;
    moment->year = year + (month > 12 ? 1 : 0);
    moment->month = month > 12 ? month - 12 : month;
}

class DateModel : public EntryModel {
public:
    DateModel(const DateShape& shape, char dataType) : shape_(shape), picture_(shape.picture), dataType_(dataType)
    {
        GetLocalTime(&now_);
    }

    ScriptEntered Filter(std::string* text, int pos, char ch) override
    {
        const Spot spot = Align(*text, pos);
        const int  advance = Enter(text, pos, ch, spot);
        return { advance < 0, advance < 0 ? 0 : advance };
    }
    int Delete(std::string* text, int pos) override
    {
        const ScriptEntered entered = Filter(text, pos, ' ');
        return entered.advance > 0 ? 1 : 0;
    }
    std::string Blank() override { return shape_.blank; }
    std::string Value(const std::string& text) const override { return Shown(Stored(text)); }
    // A date goes through a count of days, in which the year 0 is 1992.
    std::string Committed(const std::string& text) const override
    {
        Moment moment = Stored(text);
        if (shape_.dataClass == 'a' || shape_.dataClass == 'd') {
            SetDays(&moment, DaysOf(moment.year ? moment.year : 1992, moment.month, moment.day));
            FitType(&moment);
        }
        return Shown(moment);
    }
    // A clock begins in 1970, wherever that is, and takes the year of another call for one up to 1900.
    bool HoldsValue(const std::string& text) const override
    {
        return !Holds("Tm", dataType_) || Stored(text).year > 1970;
    }
    // A packed year above 2099 reads as one of this century.
    bool ReadsBack(const std::string& text) const override
    {
        return dataType_ != 'A' || std::atoi(Value(text).c_str()) < 2100;
    }

private:
    bool IsShortField(int place) const
    {
        const char letter = At(picture_, place);
        return Holds("dmh", letter) && At(picture_, place - 1) != letter && At(picture_, place + 1) != letter;
    }

    Spot Align(const std::string& text, int pos) const
    {
        Spot spot = { 0, 0 };
        for (; spot.walked < pos && At(picture_, spot.place); ++spot.walked) {
            const char here = At(picture_, spot.place);
            const char under = At(text, spot.walked);
            if (here == ' ' && under != ' ') {
                continue;
            }
            if ((here == '/' || here == ':') && under != '.' && under != ':') {
                ++spot.walked;
            }
            ++spot.place;
        }
        return spot;
    }

    bool CanGrow(const std::string& text, int pos, const Spot& spot) const
    {
        return spot.walked > 0 && !IsDigit(At(text, pos)) && IsShortField(spot.place - 1) &&
               (pos == 1 || !IsDigit(At(text, pos - 2)));
    }

    // How far the caret goes; -1 refuses.
    int Enter(std::string* text, int pos, char ch, const Spot& spot) const
    {
        const bool isBetween = At(picture_, spot.place) == ' ' && spot.walked == pos;
        if (!At(*text, pos) && !(IsDigit(ch) && CanGrow(*text, pos, spot))) {
            return -1;
        }
        if (IsPunctuation(ch)) {
            return Jump(*text, pos, isBetween);
        }
        if (ch == ' ') {
            return Blank(text, pos, spot);
        }
        if (IsDigit(ch)) {
            return Digit(text, pos, ch, spot, isBetween);
        }
        if (IsLetter(ch) && Holds("apAP", At(picture_, spot.place))) {
            (*text)[static_cast<size_t>(pos)] = ch;
            return 1;
        }
        return -1;
    }

    static int Jump(const std::string& text, int pos, bool isBetween)
    {
        if (isBetween) {
            return 1;
        }
        for (int i = pos; i < static_cast<int>(text.size()); ++i) {
            if (IsPunctuation(At(text, i))) {
                return i + 1 - pos;
            }
        }
        return -1;
    }

    int Blank(std::string* text, int pos, const Spot& spot) const
    {
        if (!IsDigit(At(*text, pos))) {
            return 1;
        }
        const bool inField = IsShortField(spot.place) || IsShortField(spot.place - 1);
        if (inField && (IsDigit(At(*text, pos - 1)) || IsDigit(At(*text, pos + 1)))) {
            text->erase(static_cast<size_t>(pos), 1);
            return 0;
        }
        (*text)[static_cast<size_t>(pos)] = ' ';
        return 1;
    }

    int Digit(std::string* text, int pos, char ch, const Spot& spot, bool isBetween) const
    {
        const char under = At(*text, pos);
        const char behind = At(*text, pos + 1);
        if (!IsDigit(under) && CanGrow(*text, pos, spot)) {
            text->insert(static_cast<size_t>(pos), 1, ch);
            return 1;
        }
        if (IsDigit(under) || (under == ' ' && !isBetween)) {
            (*text)[static_cast<size_t>(pos)] = ch;
            return 1;
        }
        if (!(isBetween || IsPunctuation(under)) || !behind || IsLetter(behind)) {
            return -1;
        }
        (*text)[static_cast<size_t>(pos) + 1] = ch;
        return 2;
    }

    void Set(Moment* moment, char letter, int value) const
    {
        switch (letter) {
        case 'd': moment->day = value; break;
        case 'm':
            if (moment->sawHour) {
                moment->minute = value;
            } else {
                moment->month = value == 0 && moment->day > 0 ? now_.wMonth : value;
            }
            break;
        case 'y': moment->year = value == 0 ? now_.wYear : value; break;
        case 'h':
            moment->hour = value;
            moment->sawHour = true;
            break;
        default: moment->second = value; break;
        }
    }

    Moment Stored(const std::string& text) const
    {
        Moment moment = Read(text);
        Repair(&moment);
        FitType(&moment);
        return moment;
    }

    // What the type has no room for goes.
    void FitType(Moment* moment) const
    {
        constexpr int countedDays = 65536;
        switch (dataType_) {
        case 'A': moment->year = 1980 + ((moment->year - 1980) & 127); break;
        case 'I': moment->second -= moment->second % 2; break;
        case 'q':
            moment->second = 0;
            SetDays(moment, DaysOf(1900, 1, 1) +
                                (DaysOf(moment->year, moment->month, moment->day) - DaysOf(1900, 1, 1)) % countedDays);
            break;
        default: break;
        }
    }

    static std::string Shown(const Moment& moment)
    {
        return ScriptDateText(moment.year, moment.month, moment.day, moment.hour, moment.minute, moment.second);
    }

    Moment Read(const std::string& text) const
    {
        Moment moment = {};
        int    t = 0;
        int    p = 0;
        while (At(text, t) && At(picture_, p)) {
            const char letter = At(picture_, p);
            if (letter == 'a') {
                const bool morning = At(text, t) == 'a' || At(text, t) == 'A';
                moment.hour += morning ? (moment.hour == 12 ? -12 : 0) : (moment.hour < 12 ? 12 : 0);
            }
            if (!Holds("dmyhs", letter)) {
                ++t;
                ++p;
                continue;
            }
            std::string digits;
            for (; At(picture_, p) == letter; ++p) {
                digits += At(text, t) ? std::string(1, At(text, t++)) : "";
            }
            if (!Holds("dmyhs", At(picture_, p)) && IsDigit(At(text, t))) {
                digits += At(text, t++);
            }
            Set(&moment, letter, std::atoi(digits.c_str()));
        }
        return moment;
    }

    bool Shows(char letter) const { return Holds(shape_.format ? shape_.format : "dmyhs", letter); }

    int YearOfTwoDigits(int year) const { return now_.wYear / 100 * 100 + year - (year > 40 ? 100 : 0); }

    void RepairDate(Moment* moment) const
    {
        int& year = moment->year;
        if (Shows('y')) {
            year = year >= 0 && year <= 99 ? YearOfTwoDigits(year) : year;
            year = year >= 2100 ? year % 100 + 2000 : year < 1900 ? year % 100 + 1900 : year;
        }
        if (Shows('m')) {
            moment->month = moment->month < 1 ? 1 : moment->month > 12 ? 12 : moment->month;
        }
        if (Shows('d')) {
            constexpr int lengths[] = { 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
            const bool    isLeap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
            const int     month = moment->month;
            const int longest = (month < 1 || month > 12 ? 31 : lengths[month - 1]) + (month == 2 && isLeap ? 1 : 0);
            moment->day = moment->day < 1 ? 1 : moment->day > longest ? longest : moment->day;
        } else if (Shows('y') && Shows('m')) {
            moment->day = 1;
        }
    }

    void RepairTime(Moment* moment) const
    {
        if (Shows('h') && shape_.format) {
            moment->hour = moment->hour > 23 ? 23 : moment->hour;
        } else if (Shows('h')) {
            moment->hour = moment->hour < 1 ? 1 : moment->hour > 12 ? 12 : moment->hour;
        }
        if (Shows('m') && moment->minute > 59) {
            moment->minute = moment->month < 59 ? moment->month : 59;
        }
        if (Shows('s') && moment->second > 59) {
            moment->second = 59;
        }
    }

    void Repair(Moment* moment) const
    {
        if (shape_.dataClass != 't') {
            RepairDate(moment);
        }
        if (shape_.dataClass != 'd') {
            RepairTime(moment);
        }
        if (shape_.dataClass == 't') {
            moment->year = moment->month = moment->day = 0;
        }
    }

    DateShape   shape_;
    std::string picture_;
    char        dataType_;
    SYSTEMTIME  now_ = {};
};

} // namespace

std::string ScriptDateText(int year, int month, int day, int hour, int minute, int second)
{
    char text[96];
    std::snprintf(text, sizeof text, "%d-%02d-%02d %d:%02d:%02d", year, month, day, hour, minute, second);
    return text;
}

std::vector<ScriptShape> DateScriptShapes(char dataClass)
{
    std::vector<ScriptShape> shapes;
    for (const DateShape& shape : dateShapes) {
        for (const char* type = shape.types; shape.dataClass == dataClass && *type; ++type) {
            shapes.push_back({ dataClass,
                               *type,
                               shape.format,
                               std::make_shared<DateModel>(shape, *type),
                               { "", "1", "12.11.2024 10:09:08", "3.2.2001 4:05:06", "10:10", "1/2024" } });
        }
    }
    return shapes;
}
