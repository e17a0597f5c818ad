// Streams over a resource of the native platform.
#include "foundation/stream_maker.h"

#include "foundation/memory.h"
#include "foundation/stream.h"
#include "native/native_platform.h"

#include <gtest/gtest.h>

namespace {

class ResourceStream : public testing::Test {
protected:
    ResourceStream()
    {
        NativeReset();
        Native().resources.push_back({ "LIST", "#301", { 3, 0, 'a', 'b', 'c', 9 } });
        stream.reset(SOpenRes(nullptr, "LIST", MAKEINTRESOURCEA(301)));
    }
    ~ResourceStream() override { NativeReset(); }

    BlockLeakCheck leaks;
    StreamPtr      stream;
};

TEST_F(ResourceStream, ReadsUpToTheEndOfTheResource)
{
    ASSERT_NE(nullptr, stream);
    char* const text = SReadString(stream.get());
    EXPECT_STREQ("abc", text);
    HBlockFree(text);
    BYTE out[4] = {};
    EXPECT_EQ(0, SRead(stream.get(), out, -1));
    EXPECT_EQ(1, SRead(stream.get(), out, 4));
    EXPECT_EQ(9, out[0]);
    EXPECT_EQ(0, SRead(stream.get(), out, 4));
}

TEST_F(ResourceStream, IsOfTheKindOfMemoryButCanNeitherBeWrittenNorMoved)
{
    EXPECT_EQ(1, stream->nKind);
    EXPECT_EQ(-1, SWrite(stream.get(), "x", 1));
    EXPECT_EQ(-1, SSeek(stream.get(), 0));
    EXPECT_EQ(-1, SSeekRel(stream.get(), 0));
}

TEST_F(ResourceStream, IsTakenForMemoryWithoutBytes)
{
    EXPECT_EQ(0, SGetSize(stream.get()));
    const StreamPtr copy(SDupMem(stream.get()));
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ(0, SGetSize(copy.get()));
    EXPECT_EQ(0, SEmpty(stream.get()));
    const BYTE* const next = static_cast<const BYTE*>(SGetPtr(stream.get()));
    EXPECT_EQ(Native().resources[0].bytes.data(), next) << "where it reads next";
    const StreamPtr inner(SReadStream(stream.get()));
    EXPECT_EQ(BytesFrom("abc"), BytesOf(inner.get())) << "and it can still be read";
}

TEST_F(ResourceStream, IsNullWithoutANameAResourceOrMemory)
{
    EXPECT_EQ(nullptr, SOpenRes(nullptr, nullptr, MAKEINTRESOURCEA(301)));
    EXPECT_EQ(nullptr, SOpenRes(nullptr, "OTHER", MAKEINTRESOURCEA(301)));
    EXPECT_EQ(nullptr, SOpenRes(nullptr, "LIST", MAKEINTRESOURCEA(302)));
    FailAllocation(1);
    EXPECT_EQ(nullptr, SOpenRes(nullptr, "LIST", MAKEINTRESOURCEA(301)));
    FailAllocation(0);
}

TEST_F(ResourceStream, ClosesWithZero)
{
    EXPECT_EQ(0, SClose(stream.release()));
}

} // namespace
