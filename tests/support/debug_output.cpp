// Catches what goes to OutputDebugStringA: the platform raises an exception for a debugger to see, with the length and
// the address of the text.
#include "support/debug_output.h"

#include <windows.h>

namespace {

constexpr DWORD printException = 0x40010006;

std::vector<std::string> gTexts;
PVOID                    gHandler;

LONG CALLBACK Catch(EXCEPTION_POINTERS* exception)
{
    const EXCEPTION_RECORD* const record = exception->ExceptionRecord;
    if (record->ExceptionCode == printException && record->NumberParameters >= 2) {
        gTexts.emplace_back(reinterpret_cast<const char*>(record->ExceptionInformation[1]));
        return EXCEPTION_CONTINUE_EXECUTION;
    }
    return EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

DebugOutput::DebugOutput()
{
    gTexts.clear();
    gHandler = AddVectoredExceptionHandler(1, Catch);
}

DebugOutput::~DebugOutput()
{
    RemoveVectoredExceptionHandler(gHandler);
}

std::vector<std::string> DebugOutput::Texts() const
{
    return gTexts;
}
