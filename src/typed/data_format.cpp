// The two dispatchers that turn a stored value of any class into text and back.
// The converters of the classes do the work.
#include "typed/data_types.h"

#include "typed/date_letters.h"
#include "typed/date_time.h"
#include "typed/masks.h"

#include <cstring>

namespace {

constexpr char moneyType = 'M'; // sized, ordered and accepted, but never converted

// Where the text of a value goes, and how it is to look.
struct Target {
    const char* format;
    char*       out;
    int         outSize;
    int*        outNegative; // may be null
    bool        editForm;
};

void MarkNegative(const Target& target, bool negative)
{
    if (target.outNegative) {
        *target.outNegative = negative ? 1 : 0;
    }
}

bool WantsDate(char dataClass)
{
    return dataClass != 't';
}

bool WantsTime(char dataClass)
{
    return dataClass != 'd';
}

int FormatBool(const void* data, char dataType, const Target& target)
{
    const int value = GetBoolValue(dataType, data);
    MarkNegative(target, !value);
    return BoolToString(value, target.format, target.out, target.outSize);
}

int FormatCharacter(const void* data, const Target& target)
{
    target.out[0] = *static_cast<const char*>(data);
    target.out[1] = 0;
    return 1;
}

int FormatDate(const void* data, char dataClass, char dataType, const Target& target)
{
    DateTimeRec rec = {};
    if (!DataToDateTime(&rec, data, dataType)) {
        return 0;
    }
    return FormatDateTime(&rec, target.format, target.out, target.outSize, target.editForm, WantsDate(dataClass),
                          WantsTime(dataClass));
}

int FormatNumber(const void* data, char dataType, const Target& target)
{
    if (dataType == moneyType) {
        return 0;
    }
    const double value = NumToDouble(data, dataType);
    MarkNegative(target, value < 0.0);
    return DoubleToString(value, target.format, target.out, target.outSize, target.editForm);
}

// Both forms of a field letter count; without a format every field does.
int HasField(const char* format, char lower)
{
    if (!format) {
        return 1;
    }
    for (; *format; ++format) {
        if (LowerLetter(*format) == lower) {
            return 1;
        }
    }
    return 0;
}

// Runs in repairing mode, so that a usable value is stored whatever was typed.
bool IsValidDateTime(DateTimeRec* rec, char dataClass, const char* format)
{
    bool valid = true;
    if (WantsDate(dataClass)) {
        valid = ValidDate(rec, 1, HasField(format, 'y'), HasField(format, 'm'), HasField(format, 'd')) != 0;
    }
    if (WantsTime(dataClass)) {
        // Settled: the twelve-hour clock is required exactly where there is no format.
        const int twelveHour = format ? 0 : 1;
        valid =
            ValidTime(rec, 1, twelveHour, HasField(format, 'h'), HasField(format, 'm'), HasField(format, 's')) && valid;
    }
    return valid;
}

int ParseDate(void* data, char dataClass, char dataType, const char* format, const char* text, bool noCheck)
{
    const char* const given = format && *format ? format : nullptr;
    DateTimeRec       rec = {};
    ParseDateTime(&rec, text, given, WantsDate(dataClass), WantsTime(dataClass));
    const bool valid = noCheck || IsValidDateTime(&rec, dataClass, given);
    const bool stored = DateTimeToData(&rec, data, dataType) > 0;
    return valid && stored ? 0 : 1;
}

int ParseMasked(char* data, const char* mask, const char* text)
{
    MaskToString(text, mask, data, static_cast<int>(std::strlen(text)) + 1, 1);
    return 0;
}

int ParseText(char* data, const char* text)
{
    std::memmove(data, text, std::strlen(text) + 1);
    return 0;
}

int ParseNumber(void* data, char dataType, const char* text)
{
    if (dataType == moneyType) {
        return 0;
    }
    return DoubleToNum(data, dataType, StringToDouble(text)) > 0 ? 0 : 1;
}

} // namespace

int WINAPI FormatData(const void* data, char dataClass, char dataType, const char* format, char* out, int outSize,
                      int* outNegative, int editForm)
{
    if (!data || !out || outSize < 2) {
        return 0;
    }
    const Target target = { format, out, outSize, outNegative, editForm != 0 };
    MarkNegative(target, false);
    switch (dataClass) {
    case 'm': return MaskToString(static_cast<const char*>(data), format, out, outSize, 0);
    case 's': return _fstrnzcpy(out, static_cast<const char*>(data), outSize);
    case 'b': return FormatBool(data, dataType, target);
    case 'h': return FormatCharacter(data, target);
    case 'a':
    case 'd':
    case 'k':
    case 't': return FormatDate(data, dataClass, dataType, target);
    case 'c':
    case 'n':
    case 'z': return FormatNumber(data, dataType, target);
    default: return 0;
    }
}

int WINAPI ParseData(void* data, char dataClass, char dataType, const char* format, const char* text, int noCheck)
{
    if (!data || !text) {
        return 0;
    }
    switch (dataClass) {
    case 'm': return ParseMasked(static_cast<char*>(data), format, text);
    case 's': return ParseText(static_cast<char*>(data), text);
    case 'b': SetBoolValue(dataType, data, BoolFromText(format, text)); return 0;
    case 'h': *static_cast<char*>(data) = text[0]; return 0;
    case 'a':
    case 'd':
    case 'k':
    case 't': return ParseDate(data, dataClass, dataType, format, text, noCheck != 0);
    case 'c':
    case 'n':
    case 'z': return ParseNumber(data, dataType, text);
    default: return 1;
    }
}
