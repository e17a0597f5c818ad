// Prints a broken-down date or time through a picture.
// The entry picture of an edit field comes from date_picture.cpp.
#include "typed/date_time.h"

#include "typed/date_letters.h"
#include "typed/intl.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace {

constexpr const char* monthNames[] = {
    "january", "february", "march",     "april",   "may",      "june",
    "july",    "august",   "september", "october", "november", "december",
};
constexpr const char* weekdayNames[] = {
    "sunday", "monday", "tuesday", "wednesday", "thursday", "friday", "saturday",
};

// A picture on its way to the text.
struct Printer {
    const DateTimeRec* rec;
    const char*        picture;
    size_t             at; // the place in the picture
    char*              out;
    int                outSize;
    int                length;
    int                hour; // as it prints: of twelve where the picture tells am from pm
    bool               sawHour;
};

bool IsMarker(const char* text)
{
    return LowerLetter(text[0]) == 'a' && LowerLetter(text[1]) == 'p';
}

bool HasMarker(const char* picture)
{
    for (; *picture; ++picture) {
        if (IsMarker(picture)) {
            return true;
        }
    }
    return false;
}

// The letter an index back from the place in the picture, lower-cased; 0 in front of the picture.
char LetterBefore(const Printer& printer, size_t back)
{
    return printer.at >= back ? LowerLetter(printer.picture[printer.at - back]) : '\0';
}

bool IsMinute(const Printer& printer)
{
    return printer.sawHour && (LetterBefore(printer, 1) == 'h' || LetterBefore(printer, 2) == 'h');
}

void Put(Printer* printer, char ch)
{
    if (printer->length < printer->outSize - 1) {
        printer->out[printer->length] = ch;
    }
    printer->length++;
}

// A letter that stands for itself, an index behind the place in the picture.
void PutLetter(Printer* printer, size_t index)
{
    Put(printer, printer->picture[printer->at + index]);
}

void PutBlanks(Printer* printer, size_t count)
{
    for (size_t i = 0; i < count; ++i) {
        Put(printer, ' ');
    }
}

// The sign of a negative year counts as one of the places.
void PutNumber(Printer* printer, int value, int places)
{
    char digits[12];
    int  count = 0;
    for (int rest = std::abs(value); rest > 0 || count == 0; rest /= 10) {
        digits[count++] = static_cast<char>('0' + rest % 10);
    }
    if (value < 0) {
        Put(printer, '-');
        --places;
    }
    for (int i = count; i < places; ++i) {
        Put(printer, '0');
    }
    while (count > 0) {
        Put(printer, digits[--count]);
    }
}

// The picture's first letter sets the case of the name's first one, its second letter that of the others.
void PutName(Printer* printer, const char* name, size_t run)
{
    const char*  letters = printer->picture + printer->at;
    const size_t length = run == 3 ? 3 : std::strlen(name);
    for (size_t i = 0; i < length; ++i) {
        const char model = letters[i == 0 ? 0 : 1];
        Put(printer, static_cast<char>(name[i] + (model - LowerLetter(model))));
    }
}

const char* WeekdayName(const DateTimeRec& rec)
{
    return weekdayNames[(DateToJulian(rec.year, rec.month, rec.day) + 1) % std::size(weekdayNames)];
}

// The month is above 0. Bounded: past the table it takes the last name.
const char* MonthName(int month)
{
    return monthNames[std::min(month, static_cast<int>(std::size(monthNames))) - 1];
}

void PrintDay(Printer* printer, size_t run)
{
    if (printer->rec->day == 0) {
        Put(printer, ' ');
    } else if (run > 2) {
        PutName(printer, WeekdayName(*printer->rec), run);
    } else {
        PutNumber(printer, printer->rec->day, static_cast<int>(run));
    }
}

void PrintMonth(Printer* printer, size_t run)
{
    if (printer->rec->month == 0) {
        Put(printer, ' ');
    } else if (run > 2) {
        PutName(printer, MonthName(printer->rec->month), run);
    } else {
        PutNumber(printer, printer->rec->month, static_cast<int>(run));
    }
}

void PrintMinute(Printer* printer, size_t run)
{
    if (run == 1) {
        PutLetter(printer, 0);
    } else {
        PutNumber(printer, printer->rec->minute, 2);
    }
}

void PrintMonthOrMinute(Printer* printer, size_t run)
{
    if (IsMinute(*printer)) {
        PrintMinute(printer, run);
    } else {
        PrintMonth(printer, run);
    }
}

void PrintYear(Printer* printer, size_t run)
{
    const int year = printer->rec->year;
    if (year == 0) {
        PutBlanks(printer, run);
    } else if (run == 4) {
        PutNumber(printer, year, 4);
    } else if (run == 1) {
        PutLetter(printer, 0);
    } else {
        PutNumber(printer, year % 100, 2);
        if (run == 3) {
            PutLetter(printer, 2); // Settled: the third letter stands for itself
        }
    }
}

void PrintHour(Printer* printer, size_t run)
{
    printer->sawHour = true;
    PutNumber(printer, printer->hour, static_cast<int>(run));
}

void PrintSecond(Printer* printer, size_t run)
{
    if (run == 1) {
        PutLetter(printer, 0);
    } else {
        PutNumber(printer, printer->rec->second, 2);
    }
}

void PrintMsec(Printer* printer, size_t run)
{
    if (run == 1) {
        PutLetter(printer, 0);
    } else {
        PutNumber(printer, printer->rec->msec, 1);
    }
}

struct FieldLetter {
    char   letter;
    size_t longestRun;
    void (*print)(Printer* printer, size_t run);
};

constexpr FieldLetter fieldLetters[] = {
    { 'd', 4, PrintDay },  { 'm', 4, PrintMonthOrMinute }, { 'y', 4, PrintYear },
    { 'h', 2, PrintHour }, { 's', 2, PrintSecond },        { 'f', 2, PrintMsec },
};

const FieldLetter* FindField(char letter)
{
    for (const FieldLetter& field : fieldLetters) {
        if (field.letter == letter) {
            return &field;
        }
    }
    return nullptr;
}

size_t CountRun(const char* text, char lower, size_t longest)
{
    size_t count = 0;
    while (count < longest && LowerLetter(text[count]) == lower) {
        ++count;
    }
    return count;
}

void PrintField(Printer* printer, const FieldLetter& field)
{
    constexpr size_t longestMinute = 2;
    const bool       minute = field.letter == 'm' && IsMinute(*printer);
    const size_t     run =
        CountRun(printer->picture + printer->at, field.letter, minute ? longestMinute : field.longestRun);
    field.print(printer, run);
    printer->at += run;
}

// "ap": the a moves to p in the afternoon, the p moves to m.
void PrintMarker(Printer* printer)
{
    const char* marker = printer->picture + printer->at;
    const int   shift = printer->rec->hour >= 12 ? 'p' - 'a' : 0;
    Put(printer, static_cast<char>(marker[0] + shift));
    Put(printer, static_cast<char>(marker[1] - ('p' - 'm')));
    printer->at += 2;
}

void SkipBrackets(Printer* printer)
{
    const char* const from = printer->picture + printer->at;
    const char* const closing = std::strchr(from, ']');
    printer->at += closing ? static_cast<size_t>(closing - from) + 1 : std::strlen(from);
}

char PrintedChar(char ch)
{
    switch (ch) {
    case '/': return gIntl.chDateSep;
    case ':': return gIntl.chTimeSep;
    case '|': return '/';
    default: return ch;
    }
}

void PrintNext(Printer* printer)
{
    const char* const  next = printer->picture + printer->at;
    const FieldLetter* field = FindField(LowerLetter(*next));
    if (field) {
        PrintField(printer, *field);
    } else if (IsMarker(next)) {
        PrintMarker(printer);
    } else if (*next == '[') {
        SkipBrackets(printer);
    } else {
        Put(printer, PrintedChar(*next));
        ++printer->at;
    }
}

bool HasTime(const DateTimeRec& rec)
{
    return rec.hour || rec.minute || rec.second || rec.msec;
}

// The format itself, or the entry picture in the scratch buffer.
const char* ChoosePicture(const DateTimeRec& rec, const char* format, bool editForm, bool wantDate, bool wantTime)
{
    const bool hasFormat = format && *format;
    if (hasFormat && !editForm) {
        return format;
    }
    // Midnight shows as a bare date.
    const bool bareDate = !hasFormat && wantDate && !HasTime(rec);
    NormalizeDateFormat(format, wantDate, wantTime && !bareDate, gScratch);
    return gScratch;
}

int PrintedHour(int hour, const char* picture)
{
    if (!HasMarker(picture)) {
        return hour;
    }
    return hour % 12 == 0 ? 12 : hour % 12;
}

} // namespace

int FormatDateTime(const DateTimeRec* rec, const char* format, char* out, int outSize, bool editForm, bool wantDate,
                   bool wantTime)
{
    if (outSize < 1) {
        return 0;
    }
    const char* const picture = ChoosePicture(*rec, format, editForm, wantDate, wantTime);
    Printer           printer = { rec, picture, 0, out, outSize, 0, PrintedHour(rec->hour, picture), false };
    while (picture[printer.at] && printer.length < outSize) {
        PrintNext(&printer);
    }
    // Bounded: the end of the text never lies past the last byte of out. Settled: what was cut off counts in the
    // result.
    out[std::min(printer.length, outSize - 1)] = 0;
    return printer.length;
}
