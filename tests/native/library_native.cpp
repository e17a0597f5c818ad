// The library's start for a test program without windows: its state, and the way to a record by the fake message.
#include "foundation/startup.h"

#include <gtest/gtest.h>

namespace {

class LibraryStart : public testing::Environment {
public:
    void SetUp() override
    {
        LibraryStartState();
        GetIntlSettings();
    }
};

testing::Environment* const gStart = testing::AddGlobalTestEnvironment(new LibraryStart);

} // namespace

void* ControlRecord(HWND hwnd)
{
    return reinterpret_cast<void*>(SendMessageA(hwnd, WWM_GETSTATE, 0, 0));
}
