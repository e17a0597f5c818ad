// The main function of all GoogleTest programs, those with the product's objects and those with the DLL alone.
// What a program needs before its first test registers itself as a test environment.
#include <gtest/gtest.h>

#include <cstdio>

int main(int argc, char** argv)
{
    // Output of a test that ends the process must not be lost in a buffer.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
