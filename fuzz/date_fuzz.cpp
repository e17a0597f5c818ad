// Pictures, texts and keystrokes of any kind through the printing, reading and editing of dates and times.
// The input is a byte of choices, ten bytes of a record, then texts that end at a zero: format, text, default
// formats; what is left are keystrokes.
#include "typed/date_time.h"
#include "typed/intl.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

struct Input {
    const BYTE* at;
    const BYTE* end;
};

BYTE TakeByte(Input* input)
{
    return input->at < input->end ? *input->at++ : BYTE{ 0 };
}

std::string TakeText(Input* input)
{
    std::string text;
    while (input->at < input->end && *input->at) {
        text += static_cast<char>(*input->at++);
    }
    TakeByte(input);
    return text;
}

DateTimeRec TakeRecord(Input* input)
{
    BYTE        bytes[sizeof(DateTimeRec)];
    DateTimeRec rec;
    for (BYTE& byte : bytes) {
        byte = TakeByte(input);
    }
    std::memcpy(&rec, bytes, sizeof rec);
    return rec;
}

void Require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// The text ends where its room does. The result counts what was cut off, up to the end of the piece that met the end.
void Print(const DateTimeRec& rec, const char* format, bool editForm, bool wantDate, bool wantTime)
{
    constexpr int longestPiece = sizeof "wednesday" - 1;
    for (const int size : { 1, 2, 11, 17, 300 }) {
        std::vector<char> out(static_cast<size_t>(size), '#');
        const int         length = FormatDateTime(&rec, format, out.data(), size, editForm, wantDate, wantTime);
        const auto        end = std::find(out.begin(), out.end(), '\0');
        Require(length >= 0 && length < size + longestPiece);
        Require(end - out.begin() == std::min(length, size - 1));
    }
}

void Convert(const DateTimeRec& rec)
{
    constexpr char types[] = "DQTmqsuAadlIit";
    for (const char* type = types; *type; ++type) {
        BYTE        data[36];
        DateTimeRec back;
        if (DateTimeToData(&rec, data, *type)) {
            DataToDateTime(&back, data, *type);
        }
    }
}

void Check(DateTimeRec rec)
{
    ValidDate(&rec, 1, 1, 1, 1);
    ValidTime(&rec, 1, 0, 1, 1, 1);
    Require(ValidDate(&rec, 0, 1, 1, 1) && ValidTime(&rec, 0, 0, 1, 1, 1));
}

// Types into text, which gets room for one character more at each keystroke, and checks what the filter answers.
void Type(std::string text, const char* format, bool wantDate, bool wantTime, Input* keys)
{
    int caret = 0;
    while (keys->at < keys->end && text.size() < 200) {
        const int         before = static_cast<int>(text.size());
        const char        key = static_cast<char>(TakeByte(keys));
        std::vector<char> room(text.c_str(), text.c_str() + before + 1);
        room.push_back('#');
        int        advance = -1;
        int        repaint = -1;
        const bool refused =
            DateCharFilter(room.data(), format, wantDate, wantTime, caret, key, &advance, &repaint) != 0;
        Require(std::find(room.begin(), room.end(), '\0') != room.end());
        const std::string after = room.data();
        const int         length = static_cast<int>(after.size());
        if (refused) {
            Require(after == text && advance == 0 && repaint == 0);
            caret = before > 0 ? static_cast<BYTE>(key) % (before + 1) : 0;
            continue;
        }
        Require(advance >= 0 && caret + advance <= length && std::abs(length - before) <= 1);
        Require(repaint >= 1 && caret + repaint <= std::max(length, before));
        text = after;
        caret += advance;
    }
}

// The locale is asked once: that is slow.
const IntlSettings& StartSettings()
{
    static const IntlSettings settings = (GetIntlSettings(), *WWGetIntlInfo());
    return settings;
}

void UseSettings(BYTE choices, const std::string& dateFormat, const std::string& timeFormat)
{
    constexpr char dateSeparators[] = { '.', '/', ' ', '-' };
    gIntl = StartSettings();
    SetDateSep(dateSeparators[choices >> 3 & 3]);
    SetTimeSep(choices & 0x20 ? '.' : ':');
    if (choices & 0x40) {
        // A host may write the record itself, in full and without an end.
        std::memcpy(gIntl.szDateFormat, dateFormat.data(), std::min(dateFormat.size(), sizeof gIntl.szDateFormat));
        std::memcpy(gIntl.szTimeFormat, timeFormat.data(), std::min(timeFormat.size(), sizeof gIntl.szTimeFormat));
        return;
    }
    SetDefDateFormat(dateFormat.c_str());
    SetDefTimeFormat(timeFormat.c_str());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const BYTE* data, size_t size)
{
    Input             input = { data, data + size };
    const BYTE        choices = TakeByte(&input);
    const bool        editForm = (choices & 1) != 0;
    const bool        wantDate = (choices & 2) != 0;
    const bool        wantTime = (choices & 4) != 0;
    const DateTimeRec rec = TakeRecord(&input);
    const std::string format = TakeText(&input);
    const std::string text = TakeText(&input);
    const std::string dateFormat = TakeText(&input);
    UseSettings(choices, dateFormat, TakeText(&input));

    DateTimeRec parsed = {};
    Print(rec, format.c_str(), editForm, wantDate, wantTime);
    ParseDateTime(&parsed, text.c_str(), format.c_str(), wantDate, wantTime);
    Convert(rec);
    Convert(parsed);
    Check(rec);
    Check(parsed);
    Type(text, format.c_str(), wantDate, wantTime, &input);
    return 0;
}
