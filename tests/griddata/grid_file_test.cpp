// The file form of grid definitions: its four versions byte for byte, and every way in which a file can be wrong.
#include "griddata/grid_bytes.h"
#include "griddata/grid_maker.h"

#include <algorithm>

namespace {

using Bytes = std::vector<BYTE>;

Bytes operator+(Bytes a, const Bytes& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// clang-format off
const Bytes settings = {
    0x83, 0x01, 0x20, 0x10, // style 0x10200183
    0x01, 0x00,             // fixed columns
    0x14, 0x00,             // row height 20
    0x2D, 0x00,             // row-header width 45
    0x16, 0x00,             // column-header height 22
};
const Bytes titleLength = { 0x03, 0x00 };
const Bytes title = { 'T', 'i', 't' };
const Bytes rest = {
    0x04, 0x00, 0x00, 0x00, // option word
    0x03, 0x00,             // minimum rows
};
const Bytes fields = {
    0x02, 0x00,             // number of fields

    0x04, 0x80,             // flags
    0x50, 0x00,             // width 80
    0x3C, 0x00,             // height 60
    0x0B, 0x00,             // size 11
    's', 's', 'n', 'l',     // both pairs
    'e',                    // control kind
    0x02, 0x00, 0x80, 0x40, // control style 0x40800002
    0x04, 0x00, 'N', 'a', 'm', 'e',
    0x00, 0x00,             // no format

    0x00, 0x00,
    0x2A, 0x00,             // width 42
    0x00, 0x00,
    0x04, 0x00,             // size 4
    'd', 'l', 0x00, 0x00,
    'c',
    0x00, 0x00, 0x00, 0x00,
    0x00, 0x00,             // no caption
    0x08, 0x00, 'd', 'd', '.', 'm', 'm', '.', 'y', 'y',
};
// clang-format on

const Bytes version47 = Bytes{ 0x47, 0x48 } + settings + titleLength + title + fields;
const Bytes version48Written = Bytes{ 0x48, 0x48 } + settings + titleLength + titleLength + title + fields;
const Bytes version48Read = Bytes{ 0x48, 0x48 } + settings + titleLength + title + title + fields;
const Bytes version49 = Bytes{ 0x49, 0x48 } + settings + titleLength + title + rest + fields;
const Bytes version4A = Bytes{ 0x4A, 0x48 } + settings + titleLength + title + rest + fields;

GridPtr SampleGrid()
{
    GridPtr grid(HGridCreate("Tit", 0x10200183, 4, 1, 20, 45, 22, 3));
    HGAddFld(grid.get(), HGFieldCreate("Name", 0x8004, 80, 60, 's', 's', 'n', 'l', 11, 'e', 0x40800002, "", 1));
    HGAddFld(grid.get(), HGFieldCreate("", 0, 42, 0, 'd', 'l', 0, 0, 0, 'c', 0, "dd.mm.yy", 0));
    return grid;
}

void ExpectSampleFields(HGridData* grid)
{
    ASSERT_EQ(2, HGColCount(grid));
    const HGField* const name = HGGetField(grid, 0);
    EXPECT_EQ(0x8004, name->wFlags);
    EXPECT_EQ(80, name->nWidth);
    EXPECT_EQ(60, name->nHeight);
    EXPECT_EQ(11, name->cbSize);
    EXPECT_EQ('s', name->cClass);
    EXPECT_EQ('s', name->cType);
    EXPECT_EQ('n', name->cClass2);
    EXPECT_EQ('l', name->cType2);
    EXPECT_EQ('e', name->cKind);
    EXPECT_EQ(0x40800002u, Copied(name->dwCtlStyle));
    EXPECT_STREQ("Name", name->pszTitle);
    EXPECT_STREQ("Name", name->pszName);
    EXPECT_STREQ("", name->pszFormat);
    EXPECT_EQ(0, name->nBand) << "bands aren't in a file";
    const HGField* const date = HGGetField(grid, 1);
    EXPECT_STREQ("", date->pszTitle) << "an empty caption is loaded as one";
    EXPECT_STREQ("dd.mm.yy", date->pszFormat);
    EXPECT_EQ('c', date->cKind);
    EXPECT_EQ(4, date->cbSize);
    EXPECT_EQ(11, date->nOffset);
    EXPECT_EQ(11 + 4 + 4, grid->pRows->cbItem);
}

TEST(GridSave, WritesEachVersionByteForByte)
{
    struct {
        int          version;
        const Bytes& expected;
    } const rows[] = {
        { 0x4847, version47 }, { 0x4848, version48Written }, { 0x4849, version49 }, { 0x484A, version4A },
        { 0x1234484A, version4A },
    };
    const GridPtr grid = SampleGrid();
    for (const auto& row : rows) {
        int result = 0;
        EXPECT_EQ(row.expected, SavedBytes(grid.get(), row.version, &result)) << std::hex << row.version;
        EXPECT_EQ(1, result) << std::hex << row.version;
    }
}

TEST(GridSave, RefusesOtherVersionsAndWritesNothing)
{
    const GridPtr grid = SampleGrid();
    for (int version : { 0x4846, 0x484B, 0, 0x4800, 18506 << 8 }) {
        int result = 1;
        EXPECT_TRUE(SavedBytes(grid.get(), version, &result).empty()) << version;
        EXPECT_EQ(0, result) << version;
    }
}

TEST(GridSave, NeedsAGridAndAFunction)
{
    GridBytes target;
    EXPECT_EQ(0, HGSave(GridBytes::Write, &target, 0x484A, nullptr));
    EXPECT_EQ(0, HGSave(nullptr, &target, 0x484A, SampleGrid().get()));
}

TEST(GridSave, StopsAtTheFirstFailedWrite)
{
    const GridPtr grid = SampleGrid();
    GridBytes     whole;
    HGSave(GridBytes::Write, &whole, 0x484A, grid.get());
    for (int n = 1; n <= whole.calls; n++) {
        GridBytes target;
        target.failAt = n;
        EXPECT_EQ(0, HGSave(GridBytes::Write, &target, 0x484A, grid.get())) << n;
        EXPECT_LE(target.calls, n + 2) << "only lengths are written behind a failure, and what follows them stops";
    }
}

// Counts its calls and refuses one of them.
struct Refusal {
    int calls = 0;
    int refused = 0;
    int empty = 0; // calls without a byte

    static int CALLBACK Write(void* context, void*, int count)
    {
        Refusal* const self = static_cast<Refusal*>(context);
        self->empty += count == 0;
        return ++self->calls == self->refused ? 1 : 0;
    }
};

TEST(GridSave, DoesNotLookAtTheResultOfALength)
{
    const GridPtr grid = SampleGrid();
    struct {
        int refused;
        int result;
    } const rows[] = {
        { 6, 0 },  { 7, 1 },  { 8, 0 },  // header height, length of the title, title
        { 22, 1 }, { 23, 0 },            // length of the first caption, caption
        { 24, 1 }, { 36, 1 }, { 37, 0 }, // lengths of both formats, the second format
    };
    for (const auto& row : rows) {
        Refusal target;
        target.refused = row.refused;
        EXPECT_EQ(row.result, HGSave(Refusal::Write, &target, 0x484A, grid.get())) << row.refused;
    }
}

TEST(GridSave, WritesOfAVeryLongTextWhatItsLengthHoldsOfIt)
{
    const std::string longTitle = std::string(65536, 't') + "end";
    const GridPtr     grid = EmptyGrid(0, longTitle.c_str());
    const Bytes       bytes = SavedBytes(grid.get(), 0x484A);
    const GridPtr     loaded(LoadBytes(bytes));
    ASSERT_NE(nullptr, loaded);
    EXPECT_STREQ("ttt", loaded->pszTitle);
    EXPECT_EQ(SavedBytes(EmptyGrid(0, "ttt").get(), 0x484A), bytes);
}

TEST(GridSave, WritesNothingForAnEmptyText)
{
    Refusal target;
    EXPECT_EQ(1, HGSave(Refusal::Write, &target, 0x484A, SampleGrid().get()));
    EXPECT_EQ(0, target.empty);
}

TEST(GridSave, WritesNullTextsAsEmptyOnes)
{
    const GridPtr grid(HGridCreate(nullptr, 0, 0, 0, 1, 1, 1, 0));
    HGAddFld(grid.get(), AnyField(nullptr, 'n', 'l'));
    const GridPtr loaded(LoadBytes(SavedBytes(grid.get(), 0x484A)));
    ASSERT_NE(nullptr, loaded);
    EXPECT_STREQ("", loaded->pszTitle);
    EXPECT_STREQ("", HGGetField(loaded.get(), 0)->pszTitle);
}

TEST(GridLoadBytes, ReadsTheCompleteVersions)
{
    for (const Bytes* const bytes : { &version49, &version4A }) {
        const GridPtr grid(LoadBytes(*bytes));
        ASSERT_NE(nullptr, grid);
        EXPECT_EQ(0x4800 + (*bytes)[0], grid->wVersion);
        EXPECT_EQ(0x10200183u, Copied(grid->dwStyle));
        EXPECT_EQ(4u, Copied(grid->dwStyle2));
        EXPECT_EQ(3, grid->cMinRows);
        EXPECT_EQ(1, grid->cFixedCols);
        EXPECT_EQ(20, grid->nRowHeight);
        EXPECT_EQ(45, grid->nHdrWidth);
        EXPECT_EQ(22, grid->nHdrHeight);
        EXPECT_EQ(22, grid->nHdrHeightDef);
        EXPECT_STREQ("Tit", grid->pszTitle);
        ExpectSampleFields(grid.get());
    }
}

TEST(GridLoadBytes, GivesTheOldestVersionBothScrollBars)
{
    const GridPtr grid(LoadBytes(version47));
    ASSERT_NE(nullptr, grid);
    EXPECT_EQ(0x4847, grid->wVersion);
    EXPECT_EQ(0x10300183u, Copied(grid->dwStyle));
    EXPECT_EQ(0u, Copied(grid->dwStyle2));
    EXPECT_EQ(0, grid->cMinRows);
    EXPECT_STREQ("Tit", grid->pszTitle);
    ExpectSampleFields(grid.get());
}

TEST(GridLoadBytes, ReadsTheTitleOfVersion4848Twice)
{
    const GridPtr grid(LoadBytes(version48Read));
    ASSERT_NE(nullptr, grid);
    EXPECT_EQ(0x4848, grid->wVersion);
    EXPECT_EQ(0x10200183u, Copied(grid->dwStyle)) << "this version gets no scroll bars";
    EXPECT_EQ(0u, Copied(grid->dwStyle2));
    EXPECT_EQ(0, grid->cMinRows);
    EXPECT_STREQ("Tit", grid->pszTitle);
    ExpectSampleFields(grid.get());
}

TEST(GridLoadBytes, ReadsItsOwnVersion4848ShiftedUnlessTheTitleHasTwoCharacters)
{
    const GridPtr shifted(LoadBytes(version48Written));
    EXPECT_TRUE(!shifted || std::string("Tit") != shifted->pszTitle);

    const GridPtr source(HGridCreate("ab", 0, 0, 0, 1, 1, 1, 0));
    HGAddFld(source.get(), Text("x", 5));
    const GridPtr loaded(LoadBytes(SavedBytes(source.get(), 0x4848)));
    ASSERT_NE(nullptr, loaded);
    EXPECT_STREQ("ab", loaded->pszTitle);
    EXPECT_EQ(1, HGColCount(loaded.get()));
}

TEST(GridLoadBytes, RefusesForeignFiles)
{
    for (int version : { 0x4846, 0x484B, 0x0000, 0x4A48, 0x5A4D }) {
        Bytes bytes = version4A;
        bytes[0] = static_cast<BYTE>(version);
        bytes[1] = static_cast<BYTE>(version >> 8);
        EXPECT_EQ(nullptr, LoadBytes(bytes)) << std::hex << version;
    }
    EXPECT_EQ(nullptr, LoadBytes({}));
    EXPECT_EQ(nullptr, HGLoad(nullptr, nullptr));
}

TEST(GridLoadBytes, GivesTheSavedGridBack)
{
    const GridPtr grid = SampleGrid();
    const GridPtr loaded(LoadBytes(SavedBytes(grid.get(), 0x484A)));
    EXPECT_EQ(0, HGridChanged(grid.get(), loaded.get()));
    EXPECT_EQ(4u, Copied(loaded->dwStyle2));
}

TEST(GridLoadBytes, TakesASizeFromTheFileForTextsOnly)
{
    Bytes        bytes = version4A;
    const size_t sizePlace = bytes.size() - 29 + 6; // of the last field
    ASSERT_EQ(4, bytes[sizePlace]);
    bytes[sizePlace] = 77;
    const GridPtr grid(LoadBytes(bytes));
    EXPECT_EQ(4, HGGetField(grid.get(), 1)->cbSize);
}

TEST(GridLoadBytes, GivesAGridWithoutFieldsForACountOfNoneOrLess)
{
    for (int count : { 0, -1, -32768 }) {
        Bytes        bytes = version4A;
        const size_t place = 2 + settings.size() + 2 + title.size() + rest.size();
        bytes[place] = static_cast<BYTE>(count);
        bytes[place + 1] = static_cast<BYTE>(count >> 8);
        const GridPtr grid(LoadBytes(bytes));
        ASSERT_NE(nullptr, grid) << count;
        EXPECT_EQ(0, HGColCount(grid.get())) << count;
    }
}

TEST(GridLoadBytes, CutsTextsAtAZero)
{
    Bytes bytes = version4A;
    bytes[2 + settings.size() + 2 + 1] = 0;
    const GridPtr grid(LoadBytes(bytes));
    EXPECT_STREQ("T", grid->pszTitle);
}

// A file of four columns that ends so many bytes into the last one, whose caption is "four" and its format "@@".
GridPtr LoadedUpTo(size_t bytesOfTheFourth)
{
    constexpr size_t fourthSize = 17 + 2 + 4 + 2 + 2;
    const GridPtr    source =
        GridOf({ Text("one", 9), Text("two", 9), Text("three", 9), AnyField("four", 's', 's', 9, "@@") });
    Bytes bytes = SavedBytes(source.get(), 0x484A);
    bytes.resize(bytes.size() - fourthSize + bytesOfTheFourth);
    return GridPtr(LoadBytes(bytes));
}

TEST(GridLoadBytes, GivesTheWholeFieldsOfAShortFile)
{
    for (const size_t cut : { 0u, 1u, 16u, 18u, 19u, 20u, 22u, 24u, 25u, 26u }) {
        const GridPtr grid = LoadedUpTo(cut);
        ASSERT_NE(nullptr, grid) << cut;
        EXPECT_EQ((std::vector<std::string>{ "one", "two", "three" }), Captions(grid.get())) << cut;
        EXPECT_EQ(3 * (9 + 2), grid->pRows->cbItem) << cut;
    }
}

// A length that can't be read says 0, and a text of that length is whole.
TEST(GridLoadBytes, TakesAFieldForWholeThatEndsBeforeALength)
{
    struct {
        size_t      cut;
        const char* caption;
        const char* format;
    } const rows[] = { { 17, "", "" }, { 19 + 4, "four", "" }, { 17 + 2 + 4 + 2 + 2, "four", "@@" } };
    for (const auto& row : rows) {
        const GridPtr grid = LoadedUpTo(row.cut);
        ASSERT_NE(nullptr, grid) << row.cut;
        ASSERT_EQ(4, HGColCount(grid.get())) << row.cut;
        EXPECT_STREQ(row.caption, HGGetField(grid.get(), 3)->pszTitle) << row.cut;
        EXPECT_STREQ(row.format, HGGetField(grid.get(), 3)->pszFormat) << row.cut;
    }
}

// A file that ends after so many bytes, read as the loader has to: a length is what there is of it.
struct CutFile {
    size_t left;

    bool Fixed(size_t count)
    {
        const bool whole = left >= count;
        left -= whole ? count : left;
        return whole;
    }
    bool TextOf(size_t length, size_t times = 1)
    {
        const size_t there = std::min<size_t>(left, 2);
        const size_t told = there == 2 ? length : there == 1 ? length & 0xFF : 0;
        left -= there;
        return Fixed(told * times);
    }
    // Of one of the sample files: -1 for no grid, else the count of its fields.
    int Fields(BYTE version)
    {
        const bool complete = version >= 0x49;
        if (!Fixed(14) || !TextOf(3, version == 0x48 ? 2 : 1) || (complete && !Fixed(6))) {
            return -1;
        }
        if (!Fixed(2) || !Fixed(17) || !TextOf(4) || !TextOf(0)) {
            return 0;
        }
        return Fixed(17) && TextOf(0) && TextOf(8) ? 2 : 1;
    }
};

TEST(GridLoadBytes, EndsCleanlyAtEveryLengthOfEveryVersion)
{
    const int live = LiveBlocks();
    for (const Bytes* const whole : { &version47, &version48Read, &version49, &version4A }) {
        for (size_t length = 0; length <= whole->size(); length++) {
            Bytes cut = *whole;
            cut.resize(length);
            const GridPtr grid(LoadBytes(cut));
            ASSERT_EQ(CutFile{ length }.Fields(whole->front()), grid ? HGColCount(grid.get()) : -1)
                << "version " << int{ whole->front() } << " cut at " << length;
        }
    }
    EXPECT_EQ(live, LiveBlocks());
}

TEST(GridLoadBytes, WithoutMemoryLeavesNothingBehind)
{
    const int          live = LiveBlocks();
    FailEachAllocation each;
    while (each.Next()) {
        const GridPtr grid(LoadBytes(version4A));
        if (grid && HGColCount(grid.get()) == 2 && !AllocationFailed()) {
            ExpectSampleFields(grid.get());
        }
    }
    EXPECT_LT(15, each.Number());
    EXPECT_EQ(live, LiveBlocks());
}

TEST(GridLoadBytes, RefusesFieldsThatHaveNoRoomInARow)
{
    GridPtr source = EmptyGrid();
    for (int i = 0; i < 3; i++) {
        HGAddFld(source.get(), Text("x", 5));
    }
    Bytes bytes = SavedBytes(source.get(), 0x484A);
    for (size_t i = 0; i + 1 < bytes.size(); i++) {
        if (bytes[i] == 5 && bytes[i + 1] == 0 && bytes[i + 2] == 's') {
            bytes[i] = 0x00;
            bytes[i + 1] = 0x7F; // 32512
        }
    }
    const int live = LiveBlocks();
    {
        const GridPtr grid(LoadBytes(bytes));
        ASSERT_NE(nullptr, grid);
        EXPECT_EQ(2, HGColCount(grid.get())) << "the third would stand at 65024";
    }
    EXPECT_EQ(live, LiveBlocks());
}

// Reads bytes, notes what is asked for, and tells of one call that it failed, which brings nothing.
struct NotingReader {
    GridBytes        source;
    int              refused = 0;
    std::vector<int> counts;

    static int CALLBACK Read(void* context, void* buffer, int count)
    {
        NotingReader* const self = static_cast<NotingReader*>(context);
        self->counts.push_back(count);
        if (static_cast<int>(self->counts.size()) == self->refused) {
            self->source.at += static_cast<size_t>(count);
            return 1;
        }
        return GridBytes::Read(&self->source, buffer, count);
    }
};

TEST(GridLoadBytes, AsksForEachValueByItsSize)
{
    NotingReader reader;
    reader.source.bytes = version4A;
    const GridPtr grid(HGLoad(NotingReader::Read, &reader));
    const std::vector<int> expected = { 2, 4, 2, 2, 2, 2, 2, 3, 4, 2, 2,           // to the number of fields
                                        2, 2, 2, 2, 1, 1, 1, 1, 1, 4, 2, 4, 2,     // a caption, no format
                                        2, 2, 2, 2, 1, 1, 1, 1, 1, 4, 2, 2, 8 };   // no caption, a format
    EXPECT_EQ(expected, reader.counts);
}

TEST(GridLoadBytes, GoesOnBehindALengthThatCannotBeRead)
{
    NotingReader reader;
    reader.source.bytes = version4A;
    reader.refused = 35; // the length of the second caption, which is empty
    const GridPtr grid(HGLoad(NotingReader::Read, &reader));
    ExpectSampleFields(grid.get());
}

TEST(GridLoadBytes, GivesAGridWithoutFieldsIfTheirNumberCannotBeRead)
{
    NotingReader reader;
    reader.source.bytes = version4A;
    reader.refused = 11;
    const GridPtr grid(HGLoad(NotingReader::Read, &reader));
    ASSERT_NE(nullptr, grid);
    EXPECT_EQ(0, HGColCount(grid.get()));
    EXPECT_STREQ("Tit", grid->pszTitle);
}

} // namespace
