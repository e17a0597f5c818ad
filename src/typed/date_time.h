// Calendar arithmetic, and the text side of dates and times.
// The conversions of stored types and the validation are exports.
#pragma once

#include <widgets/widgets.h>

// Julian day numbers count days; dates before 15 October 1582 are of the Julian calendar.
DWORD DateToJulian(int year, int month, int day);
void  JulianToDate(DWORD julian, int* outYear, int* outMonth, int* outDay);
// Milliseconds since midnight; each out-argument may be null.
DWORD TimeToMsec(int hour, int minute, int second, int msec);
void  MsecToTime(DWORD msec, int* outHour, int* outMinute, int* outSecond, int* outMsec);

// The entry picture for a format: order and separators of the default formats, fields of the format.
// outPicture holds at least the scratch buffer's size.
void NormalizeDateFormat(const char* format, bool wantDate, bool wantTime, char* outPicture);
// Prints rec; the result is the printed length.
int FormatDateTime(const DateTimeRec* rec, const char* format, char* out, int outSize, bool editForm, bool wantDate,
                   bool wantTime);
// Reads text under the entry picture of format; the result is always 1.
int ParseDateTime(DateTimeRec* rec, const char* text, const char* format, bool wantDate, bool wantTime);
// A typed character at index pos: 0 if taken. Both out-arguments may be null.
int DateCharFilter(char* text, const char* format, bool wantDate, bool wantTime, int pos, char ch, int* outAdvance,
                   int* outRepaint);
