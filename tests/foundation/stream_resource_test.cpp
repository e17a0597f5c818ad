// Streams over a resource: one of the library's own bitmaps, which are in the test programs too.
#include "foundation/stream_maker.h"

#include "foundation/stream.h"

#include <gtest/gtest.h>

namespace {

class ResourceStream : public testing::Test {
protected:
    ResourceStream()
    {
        const HRSRC found = FindResourceA(module, name, type);
        const auto* first = static_cast<const BYTE*>(LockResource(LoadResource(module, found)));
        expected.assign(first, first + SizeofResource(module, found));
        stream.reset(SOpenRes(module, name, type));
    }

    const HINSTANCE   module = GetModuleHandleA(nullptr);
    const char* const name = MAKEINTRESOURCEA(2010);
    const char* const type = MAKEINTRESOURCEA(2); // RT_BITMAP
    Bytes             expected;
    StreamPtr         stream;
};

TEST_F(ResourceStream, ReadsTheBytesOfTheResource)
{
    ASSERT_NE(nullptr, stream);
    ASSERT_GT(expected.size(), 40u);
    Bytes bytes(expected.size());
    EXPECT_EQ(16, SRead(stream.get(), bytes.data(), 16));
    const int rest = static_cast<int>(bytes.size()) - 16;
    EXPECT_EQ(rest, SRead(stream.get(), bytes.data() + 16, rest));
    EXPECT_EQ(expected, bytes);
}

TEST_F(ResourceStream, EndsWhereTheResourceEnds)
{
    Bytes bytes(expected.size() + 10);
    EXPECT_EQ(static_cast<int>(expected.size()), SRead(stream.get(), bytes.data(), static_cast<int>(bytes.size())));
    EXPECT_EQ(0, SRead(stream.get(), bytes.data(), 1));
}

TEST_F(ResourceStream, IsWrittenIntoAnotherAsAnEmptyOne)
{
    HostStream host;
    EXPECT_EQ(-1, SWriteStream(host.Get(), stream.get()));
    EXPECT_EQ((Bytes{ 0, 0 }), host.bytes);
}

TEST_F(ResourceStream, IsNullUnderAnotherNameTypeOrModule)
{
    EXPECT_EQ(nullptr, SOpenRes(module, nullptr, type));
    EXPECT_EQ(nullptr, SOpenRes(module, "NOSUCHNAME", type));
    EXPECT_EQ(nullptr, SOpenRes(module, name, MAKEINTRESOURCEA(300)));
    EXPECT_EQ(nullptr, SOpenRes(GetModuleHandleA("kernel32.dll"), name, type));
}

TEST_F(ResourceStream, ClosesWithZero)
{
    EXPECT_EQ(0, SClose(stream.release()));
}

} // namespace
