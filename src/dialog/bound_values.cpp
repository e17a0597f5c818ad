// The common form in which bounds of values are compared: a double for numbers, a date and time in three words.
#include "dialog/control_frame.h"

namespace {

constexpr char threeWords = 'd'; // the stored type of dates and times

bool IsNumberClass(char dataClass)
{
    return dataClass == 'c' || dataClass == 'n';
}

bool IsDateClass(char dataClass)
{
    return dataClass == 'd' || dataClass == 'a' || dataClass == 't';
}

} // namespace

int HToCanon(double* out, const void* value, char dataClass, char dataType)
{
    if (!out || !value) {
        return 0;
    }
    if (IsNumberClass(dataClass)) {
        *out = NumToDouble(value, dataType);
        return 1;
    }
    if (!IsDateClass(dataClass)) {
        return 0;
    }
    DateTimeRec rec = {};
    *out = 0;
    DataToDateTime(&rec, value, dataType);
    DateTimeToData(&rec, out, threeWords);
    return 1;
}

int HFromCanon(const double* canon, void* value, char dataClass, char dataType)
{
    if (!canon || !value) {
        return 0;
    }
    if (IsNumberClass(dataClass)) {
        DoubleToNum(value, dataType, *canon);
        return 1;
    }
    if (!IsDateClass(dataClass)) {
        return 0;
    }
    DateTimeRec rec = {};
    DataToDateTime(&rec, canon, threeWords);
    DateTimeToData(&rec, value, dataType);
    return 1;
}
