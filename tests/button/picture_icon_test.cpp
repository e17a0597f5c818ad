// The checks on icon files.
#include "button/picture_icon.h"

#include "button/picture_bytes.h"
#include "foundation/memory.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

// As the loader does: the entry, then the image in a block of its own, without a spare byte.
bool ReadIcon(const Bytes& file, IconImage* out = nullptr)
{
    const std::unique_ptr<BYTE[]> copy(new BYTE[file.size()]);
    std::copy(file.begin(), file.end(), copy.get());
    IconEntry entry{};
    if (!FindIconEntry(copy.get(), file.size(), &entry)) {
        return false;
    }
    const std::unique_ptr<BYTE[]> image(new BYTE[entry.size]);
    std::memcpy(image.get(), copy.get() + entry.offset, entry.size);
    IconImage info{};
    if (!ReadIconImage(image.get(), entry, &info)) {
        return false;
    }
    FixIconHeader(image.get(), entry, info);
    FlipRows(image.get() + info.maskOffset, info.maskRow, entry.height);
    if (out) {
        *out = info;
    }
    return true;
}

TEST(IconFile, TakesEachDepthAndItsSizes)
{
    for (const WORD bits : { WORD{ 1 }, WORD{ 4 }, WORD{ 8 } }) {
        IconSpec spec;
        spec.bits = bits;
        IconImage info{};
        ASSERT_TRUE(ReadIcon(MakeIconFile(spec), &info)) << bits;
        EXPECT_EQ(bits, info.bits);
        EXPECT_EQ(40 + (size_t{ 4 } << bits), info.bitsOffset) << bits;
        EXPECT_EQ(info.bitsOffset + 32u * 4u * bits, info.maskOffset) << bits;
        EXPECT_EQ(4u, info.maskRow);
    }
    IconSpec large;
    large.width = 64;
    large.height = 64;
    EXPECT_TRUE(ReadIcon(MakeIconFile(large)));
}

TEST(IconFile, RowsOfFourPlanesGetRoomBehindTheImage)
{
    for (const WORD bits : { WORD{ 1 }, WORD{ 4 }, WORD{ 8 } }) {
        IconSpec spec;
        spec.bits = bits;
        IconImage info{};
        ASSERT_TRUE(ReadIcon(MakeIconFile(spec), &info)) << bits;
        EXPECT_EQ(IconBytes(spec), info.room) << bits << ", all that is read is there";
        spec.planes = 4;
        ASSERT_TRUE(ReadIcon(MakeIconFile(spec), &info)) << bits;
        EXPECT_EQ(info.bitsOffset + 32u * 4u * bits * 4u, info.room) << bits;
    }
}

TEST(IconFile, RowsOfAMaskGetRoomForWholeWords)
{
    IconSpec spec;
    spec.width = 8;
    IconImage info{};
    ASSERT_TRUE(ReadIcon(MakeIconFile(spec), &info));
    EXPECT_EQ(1u, info.maskRow);
    EXPECT_EQ(info.maskOffset + 32u * 2u, info.room);
}

TEST(IconFile, OnlySmallImagesAreNone)
{
    IconSpec small;
    small.width = 16;
    small.height = 16;
    EXPECT_FALSE(ReadIcon(MakeIconFile(small)));
    small.entries = 3;
    EXPECT_FALSE(ReadIcon(MakeIconFile(small)));
}

TEST(IconFile, FirstEntryOfTheRightSizeCounts)
{
    IconSpec spec;
    spec.entries = 4;
    const Bytes file = MakeIconFile(spec);
    IconEntry   entry{};
    ASSERT_TRUE(FindIconEntry(file.data(), file.size(), &entry));
    EXPECT_EQ(32, entry.width);
    EXPECT_EQ(ImageOffset(spec), entry.offset);
}

TEST(IconFile, UnderstatedImageIsReadWhole)
{
    IconSpec spec;
    spec.understates = true;
    Bytes     file = MakeIconFile(spec);
    IconEntry entry{};
    ASSERT_TRUE(FindIconEntry(file.data(), file.size(), &entry));
    EXPECT_EQ(744u, entry.size);
    EXPECT_TRUE(ReadIcon(file));
    file.pop_back();
    EXPECT_FALSE(ReadIcon(file));
}

TEST(IconFile, RefusesEveryTruncation)
{
    for (const WORD bits : { WORD{ 1 }, WORD{ 4 }, WORD{ 8 } }) {
        IconSpec spec;
        spec.bits = bits;
        spec.entries = 2;
        Bytes file = MakeIconFile(spec);
        while (!file.empty()) {
            file.pop_back();
            EXPECT_FALSE(ReadIcon(file)) << bits << " bits, cut to " << file.size();
        }
    }
}

TEST(IconFile, HeaderIsMendedForThePlatform)
{
    const Bytes file = MakeIconFile({});
    IconEntry   entry{};
    IconImage   info{};
    ASSERT_TRUE(FindIconEntry(file.data(), file.size(), &entry));
    Bytes image(file.begin() + static_cast<std::ptrdiff_t>(entry.offset), file.end());
    ASSERT_TRUE(ReadIconImage(image.data(), entry, &info));
    FixIconHeader(image.data(), entry, info);
    EXPECT_EQ(32, LoadAs<LONG>(image.data() + 8));
    EXPECT_EQ(32u * 5 * 32 / 8, LoadAs<DWORD>(image.data() + 20));
}

TEST(FlipRows, TurnsRowsUpsideDown)
{
    Bytes rows = { 1, 2, 3, 4, 5, 6 };
    FlipRows(rows.data(), 2, 3);
    EXPECT_EQ((Bytes{ 5, 6, 3, 4, 1, 2 }), rows);
    FlipRows(rows.data(), 2, 2);
    EXPECT_EQ((Bytes{ 3, 4, 5, 6, 1, 2 }), rows);
    FlipRows(rows.data(), 0, 3);
    EXPECT_EQ((Bytes{ 3, 4, 5, 6, 1, 2 }), rows);
}

// Offsets into a file of one entry.
constexpr size_t atType = 2;
constexpr size_t atCount = 4;
constexpr size_t atEntryWidth = 6;
constexpr size_t atEntryHeight = 7;
constexpr size_t atEntrySize = 14;
constexpr size_t atEntryOffset = 18;
constexpr size_t atHeader = 22;
constexpr size_t atWidth = atHeader + 4;
constexpr size_t atPlanes = atHeader + 12;
constexpr size_t atBits = atHeader + 14;
constexpr size_t atCompression = atHeader + 16;
constexpr size_t atColors = atHeader + 32;

struct Row {
    const char* what;
    size_t      at;
    size_t      bytes;
    DWORD       value;
};

// clang-format off
constexpr Row badFields[] = {
    { "a cursor",                 atType,        2, 2 },
    { "no entries",               atCount,       2, 0 },
    { "no width",                 atEntryWidth,  1, 0 },
    { "another width",            atEntryWidth,  1, 48 },
    { "no height, width 32",      atEntryHeight, 1, 0 },
    { "an image without a byte",  atEntrySize,   4, 0 },
    { "the largest image",        atEntrySize,   4, 0xFFFFFFFF },
    { "65535 bytes",              atEntrySize,   4, 65535 },
    { "a byte more than there is", atEntrySize,  4, 745 },
    { "less than a header",       atEntrySize,   4, 39 },
    { "a byte less than needed",  atEntrySize,   4, 743 },
    { "starts past the end",      atEntryOffset, 4, 767 },
    { "starts a byte late",       atEntryOffset, 4, 23 },
    { "starts far away",          atEntryOffset, 4, 0xFFFFFFFF },
    { "another header",           atHeader,      4, 12 },
    { "wider than its entry",     atWidth,       4, 33 },
    { "widest",                   atWidth,       4, 0x7FFFFFFF },
    { "two planes",               atPlanes,      2, 2 },
    { "24 bits",                  atBits,        2, 24 },
    { "8 bits of 4",              atBits,        2, 8 },
    { "compressed",               atCompression, 4, 2 },
    { "colours past the end",     atColors,      4, 177 },
    { "most colours",             atColors,      4, 0xFFFFFFFF },
    { "colours times 4 is small", atColors,      4, 0x40000001 },
};
// clang-format on

void PatchField(Bytes* file, const Row& row)
{
    std::memcpy(file->data() + row.at, &row.value, row.bytes);
}

TEST(IconFile, RefusesFieldsThatLie)
{
    const Bytes good = MakeIconFile({});
    ASSERT_EQ(766u, good.size());
    ASSERT_TRUE(ReadIcon(good));
    for (const Row& row : badFields) {
        Bytes file = good;
        PatchField(&file, row);
        EXPECT_FALSE(ReadIcon(file)) << row.what;
    }
}

TEST(IconFile, CountOfEntriesMayExceedTheFile)
{
    Bytes file = MakeIconFile({});
    Patch(&file, atCount, WORD{ 65535 });
    EXPECT_TRUE(ReadIcon(file)) << "the first entry is all that counts";
    Patch(&file, atEntryHeight, BYTE{ 16 });
    ReadIcon(file);
}

TEST(IconFile, RefusesTenThousandBrokenFiles)
{
    const std::function<void(Bytes*, Chance&)> breakers[] = {
        [](Bytes* file, Chance& chance) { Patch(file, atType, static_cast<WORD>(2 + chance.Below(65533))); },
        [](Bytes* file, Chance& chance) { Patch(file, atEntrySize, DWORD{ 745 + chance.Below(0x00FFFFFF) }); },
        [](Bytes* file, Chance& chance) { Patch(file, atEntrySize, DWORD{ chance.Below(728) }); },
        [](Bytes* file, Chance& chance) { Patch(file, atEntryOffset, DWORD{ 23 + chance.Below(0x00FFFFFF) }); },
        [](Bytes* file, Chance& chance) { Patch(file, atHeader, DWORD{ 41 + chance.Below(0x00FFFFFF) }); },
        [](Bytes* file, Chance& chance) { Patch(file, atWidth, DWORD{ 33 + chance.Below(0x00FFFFFF) }); },
        [](Bytes* file, Chance& chance) { Patch(file, atPlanes, static_cast<WORD>(5 + chance.Below(65000))); },
        [](Bytes* file, Chance& chance) { Patch(file, atBits, static_cast<WORD>(5 + chance.Below(65000))); },
        [](Bytes* file, Chance& chance) { Patch(file, atCompression, DWORD{ 1 + chance.Below(0x00FFFFFF) }); },
        [](Bytes* file, Chance& chance) { Patch(file, atColors, DWORD{ 17 + chance.Below(0x00FFFFFF) }); },
        [](Bytes* file, Chance& chance) { file->resize(chance.Below(static_cast<unsigned>(file->size()))); },
    };
    Chance      chance;
    const Bytes good = MakeIconFile({});
    for (int i = 0; i < 10000; ++i) {
        Bytes file = good;
        breakers[chance.Below(std::size(breakers))](&file, chance);
        ASSERT_FALSE(ReadIcon(file)) << "file " << i;
    }
}

} // namespace
