// Streams of any kind: what each function hands to the stream's own, and texts and streams written into streams.
#include "foundation/stream_maker.h"

#include "foundation/memory.h"
#include "foundation/stream.h"

#include <gtest/gtest.h>

namespace {

class AnyStream : public testing::Test {
protected:
    BlockLeakCheck leaks;
    HostStream     host;
};

TEST_F(AnyStream, IsReachedThroughItsOwnFunctions)
{
    EXPECT_EQ(3, SWrite(host.Get(), "abc", 3));
    EXPECT_EQ(1, SSeek(host.Get(), 1));
    char out[4] = "";
    EXPECT_EQ(2, SRead(host.Get(), out, 4));
    EXPECT_STREQ("bc", out);
    EXPECT_EQ(2, SSeekRel(host.Get(), -1));
    EXPECT_EQ(5, SClose(host.Get()));
    EXPECT_EQ(1, host.closed);
}

TEST_F(AnyStream, WithoutAFunctionGivesMinusOneForIt)
{
    Stream bare = {};
    char   buffer[4];
    EXPECT_EQ(-1, SRead(&bare, buffer, 4));
    EXPECT_EQ(-1, SWrite(&bare, buffer, 4));
    EXPECT_EQ(-1, SSeek(&bare, 0));
    EXPECT_EQ(-1, SSeekRel(&bare, 0));
    EXPECT_EQ(-1, SClose(&bare));
}

TEST_F(AnyStream, ThatIsNullGivesMinusOneOrNull)
{
    char buffer[4];
    EXPECT_EQ(-1, SClose(nullptr));
    EXPECT_EQ(-1, SRead(nullptr, buffer, 4));
    EXPECT_EQ(-1, SWrite(nullptr, buffer, 4));
    EXPECT_EQ(-1, SSeek(nullptr, 0));
    EXPECT_EQ(-1, SSeekRel(nullptr, 0));
    EXPECT_EQ(-1, SWriteString(nullptr, "abc"));
    EXPECT_EQ(nullptr, SReadString(nullptr));
    EXPECT_EQ(nullptr, SReadStream(nullptr));
    EXPECT_EQ(-1, SWriteStream(nullptr, host.Get()));
    EXPECT_EQ(nullptr, SDupMem(nullptr));
    EXPECT_EQ(-1, SEmpty(nullptr));
    EXPECT_EQ(nullptr, SGetPtr(nullptr));
    EXPECT_EQ(-1, SGetSize(nullptr));
}

TEST_F(AnyStream, OfAnotherKindThanMemoryIsRefusedByTheFunctionsForMemory)
{
    EXPECT_EQ(nullptr, SDupMem(host.Get()));
    EXPECT_EQ(-1, SEmpty(host.Get()));
    EXPECT_EQ(nullptr, SGetPtr(host.Get()));
    EXPECT_EQ(-1, SGetSize(host.Get()));
}

using StreamText = AnyStream;

TEST_F(StreamText, IsItsLengthAndItsCharacters)
{
    EXPECT_EQ(3, SWriteString(host.Get(), "abc"));
    EXPECT_EQ((Bytes{ 0x03, 0x00, 0x61, 0x62, 0x63 }), host.bytes);
    char* const text = SReadString(host.Get());
    EXPECT_STREQ("abc", text);
    EXPECT_EQ(4u, BlockSize(text));
    HBlockFree(text);
}

TEST_F(StreamText, ThatIsNullOrEmptyIsTwoZeroBytesAndReadsAsNull)
{
    EXPECT_EQ(0, SWriteString(host.Get(), nullptr));
    EXPECT_EQ((Bytes{ 0, 0 }), host.bytes);
    EXPECT_EQ(nullptr, SReadString(host.Get()));
    EXPECT_EQ(0, SWriteString(host.Get(), ""));
    EXPECT_EQ((Bytes{ 0, 0, 0, 0 }), host.bytes);
    EXPECT_EQ(nullptr, SReadString(host.Get()));
    EXPECT_EQ(4u, host.at);
}

TEST_F(StreamText, OfManyCharactersIsWrittenByTheLow16BitsOfItsLength)
{
    const std::string longest(0xFFFF, 'x');
    EXPECT_EQ(0xFFFF, SWriteString(host.Get(), longest.c_str()));
    EXPECT_EQ(0xFFFF + 2u, host.bytes.size());
    char* const text = SReadString(host.Get());
    EXPECT_EQ(longest, text);
    HBlockFree(text);
    EXPECT_EQ(4, SWriteString(host.Get(), std::string(0x10004, 'y').c_str()));
    EXPECT_EQ(0xFFFF + 8u, host.bytes.size());
}

TEST_F(StreamText, ThatEndsEarlyReadsAsZerosFromThereOn)
{
    host.bytes = { 5, 0, 'a', 'b' };
    char* const text = SReadString(host.Get());
    EXPECT_STREQ("ab", text);
    EXPECT_EQ(6u, BlockSize(text));
    HBlockFree(text);
    EXPECT_EQ(nullptr, SReadString(host.Get())) << "there is no length any more";
}

TEST_F(StreamText, WithoutMemoryIsNull)
{
    host.bytes = { 1, 0, 'a' };
    FailAllocation(1);
    EXPECT_EQ(nullptr, SReadString(host.Get()));
    FailAllocation(0);
}

TEST_F(StreamText, ReadByTheLibraryTellsWhetherItCameWhole)
{
    struct {
        Bytes       bytes;
        bool        whole;
        const char* text;
    } const rows[] = {
        { {}, false, nullptr },      { { 0 }, false, nullptr },          { { 1 }, false, "" },
        { { 0, 0 }, true, nullptr }, { { 2, 0, 'a', 'b' }, true, "ab" }, { { 2, 0, 'a' }, false, "a" },
        { { 2, 0 }, false, "" },
    };
    for (const auto& row : rows) {
        const StreamPtr stream = StreamOf(row.bytes);
        char*           text = nullptr;
        EXPECT_EQ(row.whole, HReadText(stream.get(), &text)) << row.bytes.size();
        EXPECT_STREQ(row.text, text) << row.bytes.size();
        HBlockFree(text);
    }
}

using StreamInStream = AnyStream;

TEST_F(StreamInStream, IsWrittenAsItsLengthAndPiecesOf256Bytes)
{
    Bytes bytes(600);
    for (size_t i = 0; i < bytes.size(); i++) {
        bytes[i] = static_cast<BYTE>(i * 7);
    }
    const StreamPtr src = StreamOf(bytes);
    SSeek(src.get(), 99);
    EXPECT_EQ(0, SWriteStream(host.Get(), src.get()));
    EXPECT_EQ((std::vector<int>{ 2, 256, 256, 88 }), host.counts);
    EXPECT_EQ((Bytes{ 0x58, 0x02 }), Bytes(host.bytes.begin(), host.bytes.begin() + 2));
    EXPECT_EQ(bytes, Bytes(host.bytes.begin() + 2, host.bytes.end()));
    EXPECT_EQ(600, SSeekRel(src.get(), 0)) << "the source stands at its end";
}

TEST_F(StreamInStream, OfManyBytesIsWrittenByTheLow16BitsOfItsSize)
{
    const StreamPtr src = StreamOf(Bytes(0x10003, 7));
    EXPECT_EQ(0, SWriteStream(host.Get(), src.get()));
    EXPECT_EQ((Bytes{ 3, 0, 7, 7, 7 }), host.bytes);
}

TEST_F(StreamInStream, IsReadIntoAMemoryStreamOfItsOwn)
{
    host.bytes = { 3, 0, 'a', 'b', 'c', 'd' };
    const StreamPtr copy(SReadStream(host.Get()));
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ(BytesFrom("abc"), BytesOf(copy.get()));
    EXPECT_EQ(1, copy->nKind);
    EXPECT_EQ(32u, copy->cbGrow);
    EXPECT_EQ(0u, copy->nPos);
    EXPECT_EQ(5u, host.at);
}

TEST_F(StreamInStream, MayBeEmpty)
{
    const StreamPtr empty(SNewMem(0, 8));
    EXPECT_EQ(0, SWriteStream(host.Get(), empty.get()));
    EXPECT_EQ((Bytes{ 0, 0 }), host.bytes);
    const StreamPtr copy(SReadStream(host.Get()));
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ(0, SGetSize(copy.get()));
}

TEST_F(StreamInStream, ThatIsNoneIsMarkedByItsLength)
{
    EXPECT_EQ(-1, SWriteStream(host.Get(), nullptr));
    EXPECT_EQ((Bytes{ 0xFF, 0xFF }), host.bytes);
    HostStream other;
    EXPECT_EQ(0, SWriteStream(&other.record, StreamOf({ 1 }).get()));
    EXPECT_EQ((Bytes{ 1, 0, 1 }), other.bytes);
}

TEST_F(StreamInStream, MarkedAsNoneGivesNullAndTakesTheTwoBytesOnly)
{
    host.bytes = { 0xFF, 0xFF, 1, 2, 3 };
    EXPECT_EQ(nullptr, SReadStream(host.Get()));
    EXPECT_EQ(2u, host.at);
}

TEST_F(StreamInStream, ThatEndsEarlyGivesNull)
{
    for (const Bytes& bytes : { Bytes{}, Bytes{ 1 }, Bytes{ 1, 0 }, Bytes{ 3, 0, 1, 2 } }) {
        EXPECT_EQ(nullptr, SReadStream(StreamOf(bytes).get())) << bytes.size();
    }
}

TEST_F(StreamInStream, ThatDoesNotFitGivesMinusOne)
{
    const StreamPtr src = StreamOf(Bytes(300));
    for (const size_t limit : { size_t{ 0 }, size_t{ 1 }, size_t{ 2 }, size_t{ 100 }, size_t{ 301 } }) {
        HostStream small;
        small.limit = limit;
        EXPECT_EQ(-1, SWriteStream(small.Get(), src.get())) << limit;
        EXPECT_EQ(limit, small.bytes.size());
    }
    host.limit = 302;
    EXPECT_EQ(0, SWriteStream(host.Get(), src.get()));
}

TEST_F(StreamInStream, WithoutMemoryGivesNull)
{
    const StreamPtr src = StreamOf({ 1, 0, 7 });
    for (FailEachAllocation each; each.Next();) {
        SSeek(src.get(), 0);
        const StreamPtr copy(SReadStream(src.get()));
        EXPECT_EQ(AllocationFailed(), copy == nullptr) << each.Number();
    }
}

} // namespace
