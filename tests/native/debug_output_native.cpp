// Catches what goes to OutputDebugStringA in the native build.
#include "native/native_platform.h"
#include "support/debug_output.h"

DebugOutput::DebugOutput()
{
    Native().debugOutput.clear();
}

DebugOutput::~DebugOutput() = default;

std::vector<std::string> DebugOutput::Texts() const
{
    return Native().debugOutput;
}
