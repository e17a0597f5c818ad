// Bounds of an edit control's value: their two forms, and holding the stored value between them.
#include "edit/edit_internal.h"

namespace {

constexpr WORD lowBound = 1;
constexpr WORD highBound = 2;

bool IsNumberClass(char dataClass)
{
    return dataClass == 'n' || dataClass == 'c';
}

} // namespace

// Settled: the texts of bounds of dates are read as day numbers, and this compares them as if they were three words.
void WINAPI BoundMinMax(void* record)
{
    HEditCtl* const ctl = static_cast<HEditCtl*>(record);
    double value = 0;
    if (!ctl || !HToCanon(&value, ctl->pData, ctl->cClass, ctl->cType)) {
        return; // Bounded: nothing is compared with an undefined number.
    }
    const double low = ctl->dMin;
    const double high = ctl->dMax;
    if ((ctl->wBounds & lowBound) && value < low) {
        HFromCanon(&low, ctl->pData, ctl->cClass, ctl->cType);
    } else if ((ctl->wBounds & highBound) && value > high) {
        HFromCanon(&high, ctl->pData, ctl->cClass, ctl->cType);
    }
}

int ReadBound(HEditCtl* ctl, int which, void* data)
{
    const double bound = which == lowBound ? ctl->dMin : ctl->dMax;
    return HFromCanon(&bound, data, ctl->cClass, ctl->cType);
}

void SetBound(HEditCtl* ctl, int which, const void* data)
{
    if (!data) {
        ctl->wBounds = static_cast<WORD>(ctl->wBounds & ~which);
        return;
    }
    double bound = 0;
    if (!HToCanon(&bound, data, ctl->cClass, ctl->cType)) {
        return;
    }
    if (which == lowBound) {
        ctl->dMin = bound;
    } else {
        ctl->dMax = bound;
    }
    ctl->wBounds = static_cast<WORD>(ctl->wBounds | which);
    // A linked buffer is the master: it is bounded too, or the next refresh would bring the old value back.
    const bool linked = ctl->pLinked && ctl->pData;
    if (linked) {
        CopyValue(ctl, ctl->pData, ctl->pLinked);
    }
    BoundMinMax(ctl);
    if (linked) {
        CopyValue(ctl, ctl->pLinked, ctl->pData);
    }
}

bool ComparableValue(const HEditCtl* ctl, double* value)
{
    if (!ctl->pData) {
        return false;
    }
    if (IsNumberClass(ctl->cClass)) {
        *value = NumToDouble(ctl->pData, ctl->cType);
        return true;
    }
    DateTimeRec rec = {};
    return IsDateClass(ctl->cClass) && DataToDateTime(&rec, ctl->pData, ctl->cType) &&
           DateTimeToData(&rec, value, 'u');
}

void StoreComparable(HEditCtl* ctl, double value)
{
    if (ctl->pData && IsNumberClass(ctl->cClass)) {
        DoubleToNum(ctl->pData, ctl->cType, value);
        return;
    }
    // Bounded: a host that made a text of the field meanwhile has no date for it.
    DateTimeRec rec = {};
    if (IsDateClass(ctl->cClass) && DataToDateTime(&rec, &value, 'u')) {
        DateTimeToData(&rec, ctl->pData, ctl->cType);
    }
}

void StoreUnmoved(HEditCtl* ctl, double value)
{
    DateTimeRec before = {};
    DateTimeRec rec = {};
    if (!IsDateClass(ctl->cClass) || !DataToDateTime(&before, ctl->pData, ctl->cType) ||
        !DataToDateTime(&rec, &value, 'u')) {
        return;
    }
    rec.msec = before.msec;
    DateTimeToData(&rec, ctl->pData, ctl->cType);
}
