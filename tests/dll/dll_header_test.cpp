// The header in hosts of either language.
#include <gtest/gtest.h>

extern "C" int CheckHeaderInC11(void);
int            CheckHeaderInCxx17();

namespace {

TEST(Header, ServesAHostInC11)
{
    EXPECT_EQ(0, CheckHeaderInC11()) << "line of dll/host_header.h";
}

TEST(Header, ServesAHostInCxx17)
{
    EXPECT_EQ(0, CheckHeaderInCxx17()) << "line of dll/host_header.h";
}

} // namespace
