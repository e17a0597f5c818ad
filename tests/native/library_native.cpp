// Brings the state of the library to its start values for a test program without windows.
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
