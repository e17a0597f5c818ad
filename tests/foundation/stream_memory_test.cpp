// Streams over memory: how they grow, where they end, where they can go.
#include "foundation/stream_maker.h"

#include "foundation/memory.h"

#include <gtest/gtest.h>

#include <random>

namespace {

class MemoryStream : public testing::Test {
protected:
    BlockLeakCheck leaks;
};

TEST_F(MemoryStream, LaysItsFieldsOutAsHostsReadThem)
{
    const size_t word = sizeof(void*);
    EXPECT_EQ(0u, offsetof(Stream, nKind));
    EXPECT_EQ(word, offsetof(Stream, pfnRead));
    EXPECT_EQ(2 * word, offsetof(Stream, pfnWrite));
    EXPECT_EQ(3 * word, offsetof(Stream, pfnClose));
    EXPECT_EQ(4 * word, offsetof(Stream, pfnSeek));
    EXPECT_EQ(5 * word, offsetof(Stream, pfnSeekRel));
    EXPECT_EQ(6 * word, offsetof(Stream, pData));
    EXPECT_EQ(7 * word, offsetof(Stream, nPos));
    EXPECT_EQ(7 * word + 4, offsetof(Stream, cbData));
    EXPECT_EQ(7 * word + 8, offsetof(Stream, cbAlloc));
    EXPECT_EQ(7 * word + 12, offsetof(Stream, cbGrow));
}

TEST_F(MemoryStream, GrowsByWholeStepsUntilAWriteFits)
{
    const StreamPtr stream(SNewMem(0, 16));
    ASSERT_NE(nullptr, stream);
    EXPECT_NE(nullptr, SGetPtr(stream.get())) << "a block without bytes";
    EXPECT_EQ(20, SWrite(stream.get(), "01234567890123456789", 20));
    EXPECT_EQ(32u, stream->cbAlloc);
    EXPECT_EQ(20u, stream->cbData);
    EXPECT_EQ(20u, stream->nPos);
    EXPECT_EQ(BytesFrom("01234567890123456789"), BytesOf(stream.get()));
}

TEST_F(MemoryStream, StaysAsLargeAsItIsWhileWritesFit)
{
    const StreamPtr   stream(SNewMem(8, 3));
    const void* const block = SGetPtr(stream.get());
    EXPECT_EQ(8, SWrite(stream.get(), "abcdefgh", 8));
    EXPECT_EQ(block, SGetPtr(stream.get()));
    EXPECT_EQ(8u, stream->cbAlloc);
    EXPECT_EQ(1, SWrite(stream.get(), "i", 1));
    EXPECT_EQ(11u, stream->cbAlloc);
    EXPECT_EQ(BytesFrom("abcdefghi"), BytesOf(stream.get()));
}

TEST_F(MemoryStream, GrowsNoFurtherThanItHasTo)
{
    struct {
        int size;
        int grow;
        int count;
        int expected;
    } const rows[] = {
        { 0, 16, 1, 16 }, { 0, 16, 16, 16 }, { 0, 16, 17, 32 }, { 8, 16, 9, 24 }, { 8, 16, 24, 24 }, { 8, 16, 25, 40 },
        { 8, 16, 8, 8 },  { 8, 1, 20, 20 },  { 8, 1000, 9, 1008 },
    };
    for (const auto& row : rows) {
        const StreamPtr stream(SNewMem(row.size, row.grow));
        EXPECT_EQ(row.count, SWrite(stream.get(), Bytes(64).data(), row.count));
        EXPECT_EQ(static_cast<DWORD>(row.expected), stream->cbAlloc) << row.size << ' ' << row.grow << ' ' << row.count;
    }
}

TEST_F(MemoryStream, WritesOverWhatIsThere)
{
    const StreamPtr stream = StreamOf(BytesFrom("abcdef"));
    SSeek(stream.get(), 2);
    EXPECT_EQ(2, SWrite(stream.get(), "XY", 2));
    EXPECT_EQ(BytesFrom("abXYef"), BytesOf(stream.get()));
    EXPECT_EQ(4u, stream->nPos);
}

TEST_F(MemoryStream, WithoutAStepTakesWhatFits)
{
    const StreamPtr stream(SNewMem(4, 0));
    EXPECT_EQ(4, SWrite(stream.get(), "abcdef", 6));
    EXPECT_EQ(0, SWrite(stream.get(), "g", 1));
    EXPECT_EQ(BytesFrom("abcd"), BytesOf(stream.get()));
}

TEST_F(MemoryStream, WithoutMemoryToGrowTakesWhatFits)
{
    const StreamPtr stream(SNewMem(4, 4));
    FailAllocation(1);
    EXPECT_EQ(4, SWrite(stream.get(), "abcdef", 6));
    FailAllocation(0);
    EXPECT_EQ(2, SWrite(stream.get(), "ef", 2));
    EXPECT_EQ(BytesFrom("abcdef"), BytesOf(stream.get()));
}

TEST_F(MemoryStream, ThatWouldGrowTooLargeTakesWhatFits)
{
    for (const int grow : { INT32_MAX, -1 }) {
        const StreamPtr stream(SNewMem(4, grow));
        EXPECT_EQ(4, SWrite(stream.get(), "abcdef", 6)) << grow;
        EXPECT_EQ(4u, stream->cbAlloc) << grow;
    }
}

TEST_F(MemoryStream, WritesBytesOfItsOwnBlockWhileItGrows)
{
    const StreamPtr stream = StreamOf(BytesFrom("abcd"));
    SSeek(stream.get(), -1);
    EXPECT_EQ(4, SWrite(stream.get(), SGetPtr(stream.get()), 4));
    EXPECT_EQ(BytesFrom("abcdabcd"), BytesOf(stream.get()));
}

TEST_F(MemoryStream, ReadsUpToTheBytesWritten)
{
    const StreamPtr stream = StreamOf(BytesFrom("abcdefgh"), 64);
    EXPECT_EQ(5, SSeek(stream.get(), 5));
    char out[16] = "";
    EXPECT_EQ(3, SRead(stream.get(), out, 10));
    EXPECT_STREQ("fgh", out);
    EXPECT_EQ(0, SRead(stream.get(), out, 10));
    EXPECT_EQ(0, SRead(stream.get(), out, 0));
}

TEST_F(MemoryStream, MovesNothingForANegativeCountOrWithoutABuffer)
{
    const StreamPtr stream = StreamOf(BytesFrom("abc"));
    char            out[4] = "xyz";
    EXPECT_EQ(0, SRead(stream.get(), out, -1));
    EXPECT_EQ(0, SRead(stream.get(), nullptr, 2));
    EXPECT_EQ(0, SWrite(stream.get(), out, -1));
    EXPECT_EQ(0, SWrite(stream.get(), nullptr, 2));
    EXPECT_STREQ("xyz", out);
    EXPECT_EQ(0u, stream->nPos);
    EXPECT_EQ(BytesFrom("abc"), BytesOf(stream.get()));
}

TEST_F(MemoryStream, GoesToPositionsWithinTheBytesWritten)
{
    struct {
        int position;
        int expected; // from position 5 of 8
    } const rows[] = {
        { 0, 0 }, { 3, 3 }, { 8, 8 }, { 9, 5 }, { 100, 5 }, { -1, 8 }, { -2, 5 }, { INT32_MIN, 5 },
    };
    for (const auto& row : rows) {
        const StreamPtr stream = StreamOf(BytesFrom("abcdefgh"));
        SSeek(stream.get(), 5);
        EXPECT_EQ(row.expected, SSeek(stream.get(), row.position)) << row.position;
        EXPECT_EQ(static_cast<DWORD>(row.expected), stream->nPos) << row.position;
    }
}

TEST_F(MemoryStream, GoesByDistancesWithinTheBytesWritten)
{
    struct {
        int delta;
        int expected; // from position 5 of 8
    } const rows[] = {
        { -6, 5 }, { -5, 0 }, { -2, 3 }, { 0, 5 }, { 3, 8 }, { 4, 5 }, { INT32_MAX, 5 }, { INT32_MIN, 5 },
    };
    for (const auto& row : rows) {
        const StreamPtr stream = StreamOf(BytesFrom("abcdefgh"));
        SSeek(stream.get(), 5);
        EXPECT_EQ(row.expected, SSeekRel(stream.get(), row.delta)) << row.delta;
        EXPECT_EQ(static_cast<DWORD>(row.expected), stream->nPos) << row.delta;
    }
}

TEST_F(MemoryStream, IsCopiedWithItsBytesAndItsStep)
{
    const StreamPtr stream(SNewMem(50, 7));
    SWrite(stream.get(), "abcdef", 6);
    const StreamPtr copy(SDupMem(stream.get()));
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ(BytesFrom("abcdef"), BytesOf(copy.get()));
    EXPECT_NE(SGetPtr(stream.get()), SGetPtr(copy.get()));
    EXPECT_EQ(6u, copy->cbAlloc);
    EXPECT_EQ(7u, copy->cbGrow);
    EXPECT_EQ(0u, copy->nPos);
}

TEST_F(MemoryStream, IsNotCopiedWithoutMemory)
{
    const StreamPtr stream = StreamOf(BytesFrom("abc"));
    for (FailEachAllocation each; each.Next();) {
        const StreamPtr copy(SDupMem(stream.get()));
        EXPECT_EQ(AllocationFailed(), copy == nullptr) << each.Number();
    }
}

TEST_F(MemoryStream, ThatIsEmptiedHasNoBlockAndKeepsItsSize)
{
    const StreamPtr stream = StreamOf(BytesFrom("abcdef"));
    SSeek(stream.get(), 4);
    EXPECT_EQ(0, SEmpty(stream.get()));
    EXPECT_EQ(nullptr, SGetPtr(stream.get()));
    EXPECT_EQ(0u, stream->nPos);
    EXPECT_EQ(0u, stream->cbAlloc);
    EXPECT_EQ(6, SGetSize(stream.get()));
}

TEST_F(MemoryStream, ThatIsEmptiedHasNothingToReadAndCanBeWrittenAgain)
{
    const StreamPtr stream = StreamOf(BytesFrom("abcdef"), 4);
    SEmpty(stream.get());
    char out[8];
    EXPECT_EQ(0, SRead(stream.get(), out, 6));
    const StreamPtr copy(SDupMem(stream.get()));
    EXPECT_EQ(Bytes(6), BytesOf(copy.get()));

    EXPECT_EQ(5, SSeek(stream.get(), 5));
    EXPECT_EQ(2, SWrite(stream.get(), "XY", 2));
    EXPECT_EQ(8u, stream->cbAlloc);
    EXPECT_EQ((Bytes{ 0, 0, 0, 0, 0, 'X', 'Y' }), BytesOf(stream.get()));
}

TEST_F(MemoryStream, IsNullWithoutMemoryForItsRecord)
{
    FailAllocation(1);
    EXPECT_EQ(nullptr, SNewMem(8, 8));
    FailAllocation(0);
}

TEST_F(MemoryStream, WithoutMemoryForItsBlockGetsOneByAWrite)
{
    FailAllocation(2);
    const StreamPtr stream(SNewMem(8, 8));
    FailAllocation(0);
    ASSERT_NE(nullptr, stream);
    EXPECT_EQ(nullptr, SGetPtr(stream.get()));
    EXPECT_EQ(3, SWrite(stream.get(), "abc", 3));
    EXPECT_EQ(8u, stream->cbAlloc);
    EXPECT_EQ(BytesFrom("abc"), BytesOf(stream.get()));
}

TEST_F(MemoryStream, OfANegativeSizeHasNoBlock)
{
    const StreamPtr stream(SNewMem(-1, 8));
    ASSERT_NE(nullptr, stream);
    EXPECT_EQ(nullptr, SGetPtr(stream.get()));
    EXPECT_EQ(0u, stream->cbAlloc);
}

TEST_F(MemoryStream, ClosesWithZero)
{
    EXPECT_EQ(0, SClose(SNewMem(8, 8)));
}

// What a memory stream is: its bytes and a position.
struct Model {
    Bytes  bytes;
    size_t at = 0;

    int Write(const Bytes& piece)
    {
        bytes.resize(std::max(bytes.size(), at + piece.size()));
        std::copy(piece.begin(), piece.end(), bytes.begin() + static_cast<ptrdiff_t>(at));
        at += piece.size();
        return static_cast<int>(piece.size());
    }
    Bytes Read(size_t count)
    {
        const size_t got = std::min(count, bytes.size() - at);
        const auto   from = bytes.begin() + static_cast<ptrdiff_t>(at);
        at += got;
        return Bytes(from, from + static_cast<ptrdiff_t>(got));
    }
    int Seek(int64_t position)
    {
        at = position >= 0 && position <= static_cast<int64_t>(bytes.size()) ? static_cast<size_t>(position) : at;
        return static_cast<int>(at);
    }
};

class MemoryStreamAgainstModel : public testing::TestWithParam<int> {
protected:
    MemoryStreamAgainstModel() : random(static_cast<unsigned>(GetParam())), stream(SNewMem(Pick(0, 20), Pick(1, 40))) {}
    int   Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    Bytes Piece()
    {
        Bytes piece(static_cast<size_t>(Pick(1, 30)));
        std::generate(piece.begin(), piece.end(), [this] { return static_cast<BYTE>(random()); });
        return piece;
    }
    void Step()
    {
        const int size = static_cast<int>(model.bytes.size());
        switch (Pick(0, 3)) {
        case 0: {
            const Bytes piece = Piece();
            ASSERT_EQ(model.Write(piece), SWrite(stream.get(), piece.data(), static_cast<int>(piece.size())));
            break;
        }
        case 1: {
            Bytes       out(static_cast<size_t>(Pick(1, 30)));
            const int   got = SRead(stream.get(), out.data(), static_cast<int>(out.size()));
            const Bytes expected = model.Read(out.size());
            out.resize(static_cast<size_t>(std::max(got, 0)));
            ASSERT_EQ(expected, out);
            break;
        }
        case 2: {
            const int position = Pick(-1, size + 5);
            ASSERT_EQ(model.Seek(position == -1 ? size : position), SSeek(stream.get(), position)) << position;
            break;
        }
        default: {
            const int delta = Pick(-size - 3, size + 3);
            ASSERT_EQ(model.Seek(static_cast<int64_t>(model.at) + delta), SSeekRel(stream.get(), delta)) << delta;
            break;
        }
        }
    }

    BlockLeakCheck leaks;
    std::mt19937   random;
    Model          model;
    StreamPtr      stream;
};

TEST_P(MemoryStreamAgainstModel, AgreesAfterEveryStep)
{
    const DWORD first = stream->cbAlloc;
    for (int step = 0; step < 500; step++) {
        ASSERT_NO_FATAL_FAILURE(Step()) << "step " << step;
        ASSERT_EQ(model.bytes, BytesOf(stream.get())) << "step " << step;
        ASSERT_EQ(model.at, stream->nPos) << "step " << step;
        ASSERT_EQ(0u, (stream->cbAlloc - first) % stream->cbGrow) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, MemoryStreamAgainstModel, testing::Range(1, 13));

} // namespace
