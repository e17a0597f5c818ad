// Lines for the debugger and the end of a process that went wrong. The library's own failures don't come here.
#include "foundation/startup.h"

#include <cstdarg>
#include <cstdlib>

namespace {

constexpr int lineSize = 256;
constexpr int formatSize = 1025; // wvsprintfA writes 1024 characters at the most

DWORD gTimerReference;

} // namespace

void __cdecl WriteDebug(const char* format, ...)
{
    char    line[formatSize];
    va_list args;
    va_start(args, format);
    wvsprintfA(line, format ? format : "", args);
    va_end(args);
    // Bounded: a longer line isn't written past its buffer but cut.
    line[lineSize - 1] = 0;
    OutputDebugStringA(line);
}

void WINAPI AssertFailedLine(void)
{
    std::abort();
}

void DebugTimerStart()
{
    gTimerReference = GetTickCount();
}

void DebugTimerReport(const char* label)
{
    // Settled: the elapsed time replaces the reference, so a second report is measured from that difference.
    gTimerReference = GetTickCount() - gTimerReference;
    if (label) {
        OutputDebugStringA(label);
        OutputDebugStringA("\r\n");
    }
    WriteDebug("%lu msec elapsed", gTimerReference);
    OutputDebugStringA("\r\n");
    OutputDebugStringA("\r\n");
}
