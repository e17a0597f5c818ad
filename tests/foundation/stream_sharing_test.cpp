// Files that several streams are open on, as the platform shares them.
#include "foundation/stream_maker.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

class SharedFile : public testing::Test {
protected:
    ~SharedFile() override { std::remove(name); }

    static constexpr char name[] = "foundation_test_shared.bin";
    BlockLeakCheck        leaks;
};

TEST_F(SharedFile, ThatIsReadMayBeReadByOthersAndWrittenByNobody)
{
    SClose(SNewFile(name));
    const StreamPtr first(SOpenFile(name));
    const StreamPtr second(SOpenFile(name));
    EXPECT_NE(nullptr, first);
    EXPECT_NE(nullptr, second);
    EXPECT_EQ(nullptr, SNewFile(name));
}

TEST_F(SharedFile, ThatIsWrittenHasOneWriterAndLetsOthersRead)
{
    const StreamPtr written(SNewFile(name));
    ASSERT_NE(nullptr, written);
    EXPECT_EQ(nullptr, SNewFile(name));
    const HANDLE reader = CreateFileA(name, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    EXPECT_NE(INVALID_HANDLE_VALUE, reader);
    CloseHandle(reader);
}

} // namespace
