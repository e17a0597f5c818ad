// Starts the library that is linked into a test program, as DllMain does for a host.
#include "foundation/startup.h"

#include <gtest/gtest.h>

namespace {

class LibraryStart : public testing::Environment {
public:
    void SetUp() override
    {
        LibraryAttach(GetModuleHandleA(nullptr));
        WidgetsInit();
    }
    void TearDown() override { LibraryDetach(); }
};

testing::Environment* const gStart = testing::AddGlobalTestEnvironment(new LibraryStart);

} // namespace
