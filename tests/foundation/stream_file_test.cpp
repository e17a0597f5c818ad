// Streams over files, in the folder that the tests run in.
#include "foundation/stream_maker.h"

#include "foundation/memory.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

class FileStream : public testing::Test {
protected:
    ~FileStream() override { std::remove(name); }

    static void Make(const Bytes& bytes)
    {
        const StreamPtr stream(SNewFile(name));
        ASSERT_NE(nullptr, stream);
        ASSERT_EQ(static_cast<int>(bytes.size()), SWrite(stream.get(), bytes.data(), static_cast<int>(bytes.size())));
    }
    static Bytes Contents()
    {
        Bytes            bytes(1000);
        std::FILE* const file = std::fopen(name, "rb");
        if (!file) {
            ADD_FAILURE() << "no file";
            return {};
        }
        bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file));
        std::fclose(file);
        return bytes;
    }

    static constexpr char name[] = "foundation_test_stream.bin";
    BlockLeakCheck        leaks;
};

TEST_F(FileStream, WritesAFileOfItsOwn)
{
    Make(BytesFrom("longer than the next"));
    Make({ 1, 2, 0, 3 });
    EXPECT_EQ((Bytes{ 1, 2, 0, 3 }), Contents());
}

TEST_F(FileStream, ReadsAFileToItsEnd)
{
    Make(BytesFrom("abcdef"));
    const StreamPtr stream(SOpenFile(name));
    ASSERT_NE(nullptr, stream);
    char out[8] = "";
    EXPECT_EQ(4, SRead(stream.get(), out, 4));
    EXPECT_STREQ("abcd", out);
    EXPECT_EQ(2, SRead(stream.get(), out, 8));
    EXPECT_EQ(0, SRead(stream.get(), out, 8));
}

TEST_F(FileStream, IsOfKind2AndHasNoPosition)
{
    const StreamPtr stream(SNewFile(name));
    ASSERT_NE(nullptr, stream);
    EXPECT_EQ(2, stream->nKind);
    EXPECT_EQ(-1, SSeek(stream.get(), 0));
    EXPECT_EQ(-1, SSeekRel(stream.get(), 0));
    EXPECT_EQ(-1, SGetSize(stream.get()));
    EXPECT_EQ(-1, SEmpty(stream.get()));
    EXPECT_EQ(nullptr, SGetPtr(stream.get()));
    EXPECT_EQ(nullptr, SDupMem(stream.get()));
}

TEST_F(FileStream, RecordEndsWithTheHandle)
{
    const StreamPtr stream(SNewFile(name));
    EXPECT_EQ(7 * sizeof(void*), BlockSize(stream.get()));
}

TEST_F(FileStream, MovesNothingTheWayItWasNotOpened)
{
    char out[4] = "xyz";
    {
        const StreamPtr written(SNewFile(name));
        EXPECT_EQ(0, SRead(written.get(), out, 3));
    }
    const StreamPtr read(SOpenFile(name));
    EXPECT_EQ(0, SWrite(read.get(), out, 3));
    EXPECT_STREQ("xyz", out);
}

TEST_F(FileStream, ClosesWithMinusTwo)
{
    EXPECT_EQ(-2, SClose(SNewFile(name)));
    EXPECT_EQ(-2, SClose(SOpenFile(name)));
}

TEST_F(FileStream, ClosesWithZeroWhereThePlatformFails)
{
    Stream* const stream = SNewFile(name);
    ASSERT_NE(nullptr, stream);
    CloseHandle(stream->pData);
    EXPECT_EQ(0, SClose(stream)) << "there is no such handle any more";
}

TEST_F(FileStream, ThatCanNotBeOpenedIsNull)
{
    EXPECT_EQ(nullptr, SNewFile("foundation_test_no_folder/stream.bin"));
    EXPECT_EQ(nullptr, SNewFile(nullptr));
    EXPECT_EQ(nullptr, SOpenFile("foundation_test_missing.bin"));
    EXPECT_EQ(nullptr, SOpenFile(nullptr));
}

TEST_F(FileStream, WithoutMemoryLeavesTheFileAlone)
{
    Make(BytesFrom("abc"));
    FailAllocation(1);
    EXPECT_EQ(nullptr, SNewFile(name));
    FailAllocation(1);
    EXPECT_EQ(nullptr, SOpenFile(name));
    FailAllocation(0);
    EXPECT_EQ(BytesFrom("abc"), Contents());
}

TEST_F(FileStream, HasNoSizeToBeWrittenIntoAnother)
{
    Make(BytesFrom("abc"));
    const StreamPtr file(SOpenFile(name));
    HostStream      host;
    EXPECT_EQ(-1, SWriteStream(host.Get(), file.get()));
    EXPECT_EQ((Bytes{ 0xFF, 0xFF }), host.bytes) << "the mark of no stream";
}

TEST_F(FileStream, IsFoundWithItsPath)
{
    Make({ 1 });
    char path[256] = "old";
    ASSERT_EQ(1, SLocateFile(name, path, sizeof path));
    const std::string found(path);
    EXPECT_TRUE(found.ends_with(name)) << found;
    const StreamPtr stream(SOpenFile(path));
    EXPECT_NE(nullptr, stream) << found;

    char cut[9] = "";
    ASSERT_EQ(1, SLocateFile(name, cut, sizeof cut));
    EXPECT_EQ(found.substr(0, 8), cut);
}

TEST_F(FileStream, ThatIsMissingLeavesThePathAlone)
{
    char path[8] = "old";
    EXPECT_EQ(0, SLocateFile("foundation_test_missing.bin", path, sizeof path));
    EXPECT_EQ(0, SLocateFile(nullptr, path, sizeof path));
    EXPECT_STREQ("old", path);
}

TEST_F(FileStream, TakesTextsAndStreams)
{
    {
        const StreamPtr file(SNewFile(name));
        EXPECT_EQ(5, SWriteString(file.get(), "hello"));
        EXPECT_EQ(0, SWriteStream(file.get(), StreamOf(Bytes(300, 7)).get()));
    }
    const StreamPtr file(SOpenFile(name));
    char* const     text = SReadString(file.get());
    EXPECT_STREQ("hello", text);
    HBlockFree(text);
    const StreamPtr inner(SReadStream(file.get()));
    EXPECT_EQ(Bytes(300, 7), BytesOf(inner.get()));
}

} // namespace
