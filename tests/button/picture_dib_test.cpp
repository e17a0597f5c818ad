// The checks on bitmaps: what is right passes, whatever would be read past its end doesn't.
#include "button/picture_dib.h"

#include "button/picture_bytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

// A copy without a spare byte, so that a sanitizer stops what reads past it.
bool ReadFile(const Bytes& file, DibInfo* out = nullptr)
{
    DibInfo                       info{};
    const std::unique_ptr<BYTE[]> copy(new BYTE[file.size()]);
    std::copy(file.begin(), file.end(), copy.get());
    return ReadBitmapFile(copy.get(), file.size(), out ? out : &info);
}

bool ReadResource(const Bytes& dib, DibInfo* out = nullptr)
{
    DibInfo info{};
    return ReadDib(dib.data(), dib.size(), DibSource::Resource, out ? out : &info);
}

TEST(ReadBitmapFile, TakesEachKindOfFile)
{
    for (const DibSpec& spec : GoodFiles()) {
        SCOPED_TRACE(testing::Message() << "header " << spec.headerSize << " bits " << spec.bits << " compression "
                                        << spec.compression);
        DibInfo info{};
        ASSERT_TRUE(ReadFile(MakeBitmapFile(spec), &info));
        EXPECT_EQ(spec.headerSize, info.headerSize);
        EXPECT_EQ(spec.width, info.width);
        EXPECT_EQ(3, info.height);
        EXPECT_EQ(spec.bits, info.bits);
        EXPECT_EQ(static_cast<DWORD>(TableEntries(spec)), info.colors);
        EXPECT_EQ(spec.headerSize, info.tableOffset);
        EXPECT_EQ(spec.headerSize + info.colors * (spec.headerSize == 12 ? 3 : 4), info.pixelOffset);
    }
}

TEST(ReadBitmapFile, RefusesEveryTruncation)
{
    for (const DibSpec& spec : GoodFiles()) {
        Bytes file = MakeBitmapFile(spec);
        while (!file.empty()) {
            file.pop_back();
            EXPECT_FALSE(ReadFile(file)) << spec.bits << " bits, cut to " << file.size();
        }
    }
}

TEST(ReadBitmapFile, CountsColoursByTheHeaderOrByTheBits)
{
    DibSpec three;
    three.colorsUsed = 3;
    DibInfo info{};
    ASSERT_TRUE(ReadFile(MakeBitmapFile(three), &info));
    EXPECT_EQ(3u, info.colors);
    DibSpec many;
    many.bits = 24;
    ASSERT_TRUE(ReadFile(MakeBitmapFile(many), &info));
    EXPECT_EQ(0u, info.colors);
    many.colorsUsed = 7;
    ASSERT_TRUE(ReadFile(MakeBitmapFile(many), &info));
    EXPECT_EQ(7u, info.colors);
}

TEST(DibColor, ReadsBothKindsOfTables)
{
    for (const DWORD headerSize : { 12u, 40u }) {
        DibSpec spec;
        spec.headerSize = headerSize;
        const Bytes dib = MakeDib(spec);
        DibInfo     info{};
        ASSERT_TRUE(ReadResource(dib, &info));
        for (int i = 0; i < 256; ++i) {
            EXPECT_EQ(TableColor(i), DibColor(dib.data(), info, static_cast<DWORD>(i))) << headerSize << ", " << i;
        }
    }
}

TEST(ReadBitmapFile, DoesNotReadTheSizesOfTheFileHeader)
{
    Bytes file = MakeBitmapFile({});
    Patch(&file, 2, DWORD{ 0xFFFFFFFF });
    Patch(&file, 10, DWORD{ 0xFFFFFFFF });
    EXPECT_TRUE(ReadFile(file));
}

// Offsets into a file.
constexpr size_t atHeaderSize = 14;
constexpr size_t atWidth = 18;
constexpr size_t atHeight = 22;
constexpr size_t atPlanes = 26;
constexpr size_t atBits = 28;
constexpr size_t atCompression = 30;
constexpr size_t atSizeImage = 34;
constexpr size_t atColors = 46;

struct DwordRow {
    const char* what;
    size_t      at;
    DWORD       value;
};

// clang-format off
constexpr DwordRow badFields[] = { // of a plain file of 8 bits and 5 by 3 pixels
    { "header of 16 bytes",        atHeaderSize,  16 },
    { "header of 108 bytes",       atHeaderSize,  108 },
    { "header without a size",     atHeaderSize,  0 },
    { "header of all there is",    atHeaderSize,  0xFFFFFFFF },
    { "no width",                  atWidth,       0 },
    { "width below 0",             atWidth,       0xFFFFFFFF },
    { "least width",               atWidth,       0x80000000 },
    { "wider than its data",       atWidth,       9 },
    { "widest",                    atWidth,       0x7FFFFFFF },
    { "no height",                 atHeight,      0 },
    { "higher than its data",      atHeight,      4 },
    { "higher, top row first",     atHeight,      0xFFFFFFFC },
    { "highest",                   atHeight,      0x7FFFFFFF },
    { "least height",              atHeight,      0x80000000 },
    { "no plane, 8 bits",          atPlanes,      0x00080000 },
    { "two planes, 8 bits",        atPlanes,      0x00080002 },
    { "16 bits",                   atPlanes,      0x00100001 },
    { "32 bits",                   atPlanes,      0x00200001 },
    { "no bits",                   atPlanes,      0x00000001 },
    { "runs of 4 bits",            atCompression, 2 },
    { "masks",                     atCompression, 3 },
    { "compression of a photo",    atCompression, 4 },
    { "one colour more than data", atColors,      261 },
    { "most colours",              atColors,      0xFFFFFFFF },
    { "colours times 4 is small",  atColors,      0x40000001 },
};
// clang-format on

TEST(ReadBitmapFile, RefusesFieldsThatLie)
{
    const Bytes good = MakeBitmapFile({});
    ASSERT_TRUE(ReadFile(good));
    for (const DwordRow& row : badFields) {
        Bytes file = good;
        Patch(&file, row.at, row.value);
        EXPECT_FALSE(ReadFile(file)) << row.what;
    }
}

TEST(ReadBitmapFile, RefusesAnotherSignature)
{
    Bytes file = MakeBitmapFile({});
    file[0] = 'b';
    EXPECT_FALSE(ReadFile(file));
}

struct RunRow {
    const char* what;
    Bytes       data;
};

bool ReadRuns(const DibSpec& base, const Bytes& data, DWORD sizeImage = 0)
{
    DibSpec spec = base;
    spec.pixels = data;
    spec.sizeImage = sizeImage;
    return ReadFile(MakeBitmapFile(spec));
}

TEST(ReadBitmapFile, RefusesRunsThatLeaveTheirRowOrTheirData)
{
    const RunRow rows[] = {
        { "run longer than a row", { 6, 1, 0, 1 } },
        { "second run past the row", { 3, 1, 3, 1, 0, 1 } },
        { "pixels past the row", { 0, 6, 1, 2, 3, 4, 5, 6, 0, 1 } },
        { "pixels past the data", { 0, 5, 1, 2 } },
        { "pixels without their padding", { 0, 3, 1, 2, 3 } },
        { "row behind the last", { 0, 0, 0, 0, 0, 0, 0, 0, 0, 1 } },
        { "run below the last row", { 0, 0, 0, 0, 0, 0, 1, 1, 0, 1 } },
        { "move past the row", { 0, 2, 6, 0, 0, 1 } },
        { "move past the last row", { 0, 2, 0, 4, 0, 1 } },
        { "move past the data", { 0, 2, 1 } },
        { "run without its pixel", { 5 } },
        { "no end", { 5, 1, 0, 0 } },
    };
    for (const RunRow& row : rows) {
        EXPECT_FALSE(ReadRuns(RunLength8(), row.data)) << row.what;
    }
    EXPECT_FALSE(ReadRuns(RunLength4(), { 0, 6, 0x12, 0x34, 0x56, 0, 0, 1 })) << "four bits, past the row";
    EXPECT_FALSE(ReadRuns(RunLength4(), { 0, 5, 0x12, 0x34 })) << "four bits, past the data";
}

TEST(ReadBitmapFile, SizeOfRunsMayNotLie)
{
    const DibSpec base = RunLength8();
    const DWORD   size = static_cast<DWORD>(base.pixels.size());
    EXPECT_TRUE(ReadRuns(base, base.pixels, size));
    EXPECT_FALSE(ReadRuns(base, base.pixels, size + 1));
    EXPECT_FALSE(ReadRuns(base, base.pixels, 0xFFFFFFFF));
    EXPECT_FALSE(ReadRuns(base, base.pixels, size - 1)) << "the end lies behind what counts";
}

TEST(ReadBitmapFile, RunsHaveTheirBitsAndTheirRowsFromBelow)
{
    DibSpec topDown = RunLength8();
    topDown.height = -3;
    EXPECT_FALSE(ReadFile(MakeBitmapFile(topDown)));
    DibSpec wide = RunLength8();
    wide.width = maxRunSide + 1;
    EXPECT_FALSE(ReadFile(MakeBitmapFile(wide)));
}

TEST(ReadDib, TakesOfResourcesWhatThePlatformTakes)
{
    for (const WORD bits : { WORD{ 16 }, WORD{ 24 }, WORD{ 32 } }) {
        DibSpec spec;
        spec.bits = bits;
        DibInfo info{};
        EXPECT_TRUE(ReadResource(MakeDib(spec), &info)) << bits;
        EXPECT_EQ(0u, info.colors) << bits;
    }
    DibSpec later;
    later.headerSize = 108;
    DibInfo info{};
    EXPECT_TRUE(ReadResource(MakeDib(later), &info));
    EXPECT_EQ(108u, info.tableOffset);
}

TEST(ReadDib, MasksStandBehindTheHeader)
{
    DibSpec spec;
    spec.bits = 16;
    spec.compression = 3;
    spec.pixels.resize(12 + 3 * 12);
    DibInfo info{};
    ASSERT_TRUE(ReadResource(MakeDib(spec), &info));
    EXPECT_EQ(52u, info.pixelOffset);
    spec.pixels.pop_back();
    EXPECT_FALSE(ReadResource(MakeDib(spec)));
}

TEST(ReadDib, NothingIsNoBitmap)
{
    DibInfo info{};
    EXPECT_FALSE(ReadDib(nullptr, 0, DibSource::Resource, &info));
    EXPECT_FALSE(ReadBitmapFile(nullptr, 0, &info));
}

// Each breaks one check of a file of 8 bits, plain or with runs, in a way that chance picks.
using Breaker = std::function<void(Bytes*, Chance&)>;

const Breaker breakers[] = {
    [](Bytes* file, Chance& chance) { (*file)[chance.Below(2)] ^= static_cast<BYTE>(1 + chance.Below(255)); },
    [](Bytes* file, Chance& chance) { Patch(file, atHeaderSize, DWORD{ 41 + chance.Below(0x00FFFFFF) }); },
    [](Bytes* file, Chance& chance) { Patch(file, atHeaderSize, DWORD{ 13 + chance.Below(27) }); },
    [](Bytes* file, Chance& chance) { Patch(file, atPlanes, static_cast<WORD>(2 + chance.Below(65534))); },
    [](Bytes* file, Chance& chance) { Patch(file, atBits, static_cast<WORD>(25 + chance.Below(65000))); },
    [](Bytes* file, Chance& chance) { Patch(file, atBits, static_cast<WORD>(9 + chance.Below(15))); },
    [](Bytes* file, Chance& chance) { Patch(file, atCompression, DWORD{ 2 + chance.Below(0x00FFFFFF) }); },
    [](Bytes* file, Chance& chance) { Patch(file, atWidth, 0 - DWORD{ chance.Below(0x00FFFFFF) }); },
    [](Bytes* file, Chance& chance) { Patch(file, atHeight, DWORD{ 0x80000000 + chance.Below(0x00FFFFFF) }); },
    [](Bytes* file, Chance& chance) { Patch(file, atColors, DWORD{ 300 + chance.Below(0x00FFFFFF) }); },
    [](Bytes* file, Chance& chance) { file->resize(chance.Below(static_cast<unsigned>(file->size()))); },
};

const Breaker plainBreakers[] = {
    [](Bytes* file, Chance& chance) { Patch(file, atWidth, DWORD{ 9 + chance.Below(0x00FFFFFF) }); },
    [](Bytes* file, Chance& chance) { Patch(file, atHeight, DWORD{ 4 + chance.Below(0x00FFFFFF) }); },
    [](Bytes* file, Chance& chance) { Patch(file, atHeight, 0 - DWORD{ 4 + chance.Below(0x00FFFFFF) }); },
};

const Breaker runBreakers[] = {
    [](Bytes* file, Chance& chance) { Patch(file, atSizeImage, DWORD{ 19 + chance.Below(0x00FFFFFF) }); },
    [](Bytes* file, Chance& chance) { (*file)[file->size() - 18] = static_cast<BYTE>(6 + chance.Below(250)); },
    [](Bytes* file, Chance& chance) { (*file)[file->size() - 13] = static_cast<BYTE>(6 + chance.Below(250)); },
    [](Bytes* file, Chance& chance) { (*file)[file->size() - 1] = static_cast<BYTE>(2 + chance.Below(254)); },
};

const Breaker& PickBreaker(Chance& chance, bool runs)
{
    constexpr unsigned common = std::size(breakers);
    const unsigned     special = static_cast<unsigned>(runs ? std::size(runBreakers) : std::size(plainBreakers));
    const unsigned     which = chance.Below(common + special);
    if (which < common) {
        return breakers[which];
    }
    return runs ? runBreakers[which - common] : plainBreakers[which - common];
}

TEST(ReadBitmapFile, RefusesTenThousandBrokenFiles)
{
    Chance      chance;
    const Bytes plain = MakeBitmapFile({});
    const Bytes runs = MakeBitmapFile(RunLength8());
    for (int i = 0; i < 10000; ++i) {
        Bytes file = i % 2 ? runs : plain;
        PickBreaker(chance, i % 2 != 0)(&file, chance);
        ASSERT_FALSE(ReadFile(file)) << "file " << i;
    }
}

TEST(ReadBitmapFile, SurvivesTenThousandChangesOfAnyBytes)
{
    Chance                     chance;
    const std::vector<DibSpec> specs = GoodFiles();
    int                        taken = 0;
    for (int i = 0; i < 10000; ++i) {
        Bytes file = MakeBitmapFile(specs[chance.Below(static_cast<unsigned>(specs.size()))]);
        for (unsigned change = 0; change <= chance.Below(6); ++change) {
            file[chance.Below(static_cast<unsigned>(file.size()))] = static_cast<BYTE>(chance.Below(256));
        }
        DibInfo info{};
        if (ReadFile(file, &info)) {
            ++taken;
            EXPECT_LE(info.pixelOffset, file.size() - fileHeader);
        }
    }
    EXPECT_GT(taken, 100) << "most changes concern no check";
}

} // namespace
