// Data lists in streams: the bytes of a file, what is refused, and how a list comes back.
#include "datalist/list_maker.h"

#include "typed/data_types.h"

#include <limits>

namespace {

class ListFile : public testing::Test {
protected:
    BlockLeakCheck leaks;
};

TEST_F(ListFile, OfTextsWithoutFormatIsFlagsTwoZeroBytesAndABlock)
{
    const DataListPtr dl = ListOf(unsortedList, textPair, noPair, "");
    Insert(dl, { Value("ab"), {} });
    Insert(dl, { Value(""), {} });
    Insert(dl, { Value("c"), {} });
    const Bytes expected = {
        0,   0,                   // flags
        0,   0,                   // no format
        's', 's', 3,   0,   0, 0, // three texts
        2,   0,   'a', 'b',       //
        0,   0,                   //
        1,   0,   'c',            //
    };
    EXPECT_EQ(expected, Saved(dl));
}

TEST_F(ListFile, WithCodesHasABlockOfThemBehindTheValues)
{
    const DataListPtr dl = ListOf(sortedByCode, datePair, Pair{ 'n', 's' }, "dd.mm");
    Insert(dl, { Value(LONG{ 20240229 }), Value(short{ 7 }) });
    Insert(dl, { Value(LONG{ 0x01020304 }), Value(short{ -2 }) });
    const Bytes expected = {
        5,    0,                               // sorted by code, with codes
        5,    0,    'd',  'd',  '.', 'm', 'm', // format
        'd',  'l',  2,    0,    0,   0,        // two dates
        0x04, 0x03, 0x02, 0x01,                //
        0x65, 0xD7, 0x34, 0x01,                // 20240229
        'n',  's',  2,    0,    0,   0,        // two codes
        0xFE, 0xFF,                            //
        0x07, 0x00,                            //
    };
    EXPECT_EQ(expected, Saved(dl));
}

TEST_F(ListFile, OfAnEmptyListHasACountOfZero)
{
    const Bytes expected = { 2, 0, 0, 0, 't', 'i', 0, 0, 0, 0 };
    EXPECT_EQ(expected, Saved(ListOf(sortedByData, Pair{ 't', 'i' })));
    const DataListPtr dl = Loaded(expected);
    ASSERT_NE(nullptr, dl);
    EXPECT_TRUE(ItemsOf(dl).empty());
}

TEST_F(ListFile, IsWrittenWithoutALookAtTheStream)
{
    const DataListPtr dl = ListOf(unsortedList, textPair, longPair, "x");
    Insert(dl, { Value("abc"), Value(LONG{ 1 }) });
    EXPECT_EQ(0, HDLSave(dl.get(), nullptr));
    HostStream full;
    full.limit = 6;
    EXPECT_EQ(0, HDLSave(dl.get(), full.Get()));
    EXPECT_EQ(-1, HDLSave(nullptr, full.Get()));
}

TEST_F(ListFile, OfADestroyedListIsNotOneToLoad)
{
    DataList        dl = {};
    const StreamPtr stream(SNewMem(16, 16));
    EXPECT_EQ(0, HDLSave(&dl, stream.get()));
    EXPECT_EQ(nullptr, Loaded(BytesOf(stream.get())));
}

TEST_F(ListFile, GivesBackAllOfTheRecord)
{
    const DataListPtr dl = ListOf(sortedByCode, datePair, textPair, "dd.mm");
    Insert(dl, { Value(LONG{ 20240229 }), Value("b") });
    Insert(dl, { Value(LONG{ 20240301 }), Value("a") });
    const DataListPtr loaded = Loaded(Saved(dl));
    ASSERT_NE(nullptr, loaded);
    EXPECT_EQ(dl->wFlags, loaded->wFlags);
    EXPECT_STREQ("dd.mm", loaded->pszFormat);
    EXPECT_EQ(ItemsOf(dl), ItemsOf(loaded));
    EXPECT_EQ(dl->pCodes->wFlags, loaded->pCodes->wFlags);
    EXPECT_EQ(dl->pValues->wFlags, loaded->pValues->wFlags);
    EXPECT_EQ(0, HDLFindCode(loaded.get(), 0, "A"));
    EXPECT_EQ(2, Insert(loaded, { Value(LONG{ 1 }), Value("c") }));
}

TEST_F(ListFile, IsReadUpToTheEndOfTheListAndNoFurther)
{
    Bytes     bytes = Saved(ListOf(unsortedList, textPair, longPair));
    const int size = static_cast<int>(bytes.size());
    bytes.insert(bytes.end(), { 1, 2, 3 });
    const StreamPtr   stream = StreamOf(bytes);
    const DataListPtr dl(HDLCreate(0, 's', 's', 0, 0, nullptr));
    HDLDestroy(dl.get());
    EXPECT_EQ(0, HDLLoad(dl.get(), stream.get()));
    EXPECT_EQ(size, SSeekRel(stream.get(), 0));
}

TEST_F(ListFile, NeedsARecordAndAStream)
{
    const StreamPtr stream = StreamOf(Saved(ListOf(unsortedList, textPair)));
    EXPECT_EQ(-1, HDLLoad(nullptr, stream.get()));
    DataList dl;
    std::memset(static_cast<void*>(&dl), 0x55, sizeof dl);
    EXPECT_EQ(-1, HDLLoad(&dl, nullptr));
    EXPECT_TRUE(IsZero(dl));
}

TEST_F(ListFile, OfAPairThatIsNotValidIsRefused)
{
    EXPECT_EQ(nullptr, Loaded({ 0, 0, 0, 0, 'x', 'y', 0, 0, 0, 0 }));
    EXPECT_EQ(nullptr, Loaded({ 0, 0, 1, 0, 'f', 'd', 's', 0, 0, 0, 0 }));
    const Bytes codes = { 1, 0, 0, 0, 's', 's', 1, 0, 0, 0, 1, 0, 'a', 'n', 'q', 1, 0, 0, 0, 5, 0, 0, 0 };
    EXPECT_EQ(nullptr, Loaded(codes)) << "the pair of the codes counts too";
}

TEST_F(ListFile, WithANegativeCountIsAnEmptyList)
{
    const DataListPtr dl = Loaded({ 0, 0, 0, 0, 's', 's', 0xFF, 0xFF, 0xFF, 0xFF });
    ASSERT_NE(nullptr, dl);
    EXPECT_TRUE(ItemsOf(dl).empty());
}

TEST_F(ListFile, ThatPromisesMoreItemsThanItHasIsRefused)
{
    EXPECT_EQ(nullptr, Loaded({ 0, 0, 0, 0, 's', 's', 0xFF, 0xFF, 0xFF, 0x7F, 1, 0, 'a' }));
    EXPECT_EQ(nullptr, Loaded({ 0, 0, 0, 0, 'n', 'b', 3, 0, 0, 0, 1, 2 }));
}

TEST_F(ListFile, WithAnotherNumberOfCodesThanValuesIsRefused)
{
    const Bytes few = { 1, 0, 0, 0, 'n', 'b', 2, 0, 0, 0, 1, 2, 'n', 'b', 1, 0, 0, 0, 9 };
    EXPECT_EQ(nullptr, Loaded(few));
    const Bytes many = { 1, 0, 0, 0, 'n', 'b', 1, 0, 0, 0, 1, 'n', 'b', 2, 0, 0, 0, 8, 9 };
    EXPECT_EQ(nullptr, Loaded(many));
}

TEST_F(ListFile, TakesTextsOf255CharactersAndRefusesLongerOnes)
{
    for (const size_t length : { size_t{ 255 }, size_t{ 256 }, size_t{ 300 }, size_t{ 0xFFFF } }) {
        const DataListPtr data = ListOf(unsortedList, textPair);
        Insert(data, { Value(std::string(length, 'x')), {} });
        EXPECT_EQ(length == 255, Loaded(Saved(data)) != nullptr) << length;
        const DataListPtr code = ListOf(unsortedList, longPair, textPair);
        Insert(code, { Value(LONG{ 1 }), Value(std::string(length, 'x')) });
        EXPECT_EQ(length == 255, Loaded(Saved(code)) != nullptr) << length;
    }
}

TEST_F(ListFile, WithAZeroInATextGivesTheTextUpToIt)
{
    const DataListPtr dl = Loaded({ 0, 0, 0, 0, 's', 's', 1, 0, 0, 0, 4, 0, 'a', 0, 'b', 'c' });
    ASSERT_NE(nullptr, dl);
    EXPECT_EQ((ListItems{ { Value("a"), {} } }), ItemsOf(dl));
}

TEST_F(ListFile, WithoutMemoryIsRefusedWholly)
{
    const DataListPtr dl = ListOf(sortedByData, textPair, textPair, "format");
    for (const char* const text : { "c", "a", "d", "b" }) {
        Insert(dl, { Value(text), Value(std::string(text) + text) });
    }
    const Bytes bytes = Saved(dl);
    int         refused = 0;
    for (int fails = 1;; fails++) {
        const StreamPtr stream = StreamOf(bytes);
        DataList        loaded;
        FailAllocation(fails);
        const int  result = HDLLoad(&loaded, stream.get());
        const bool failed = AllocationFailed();
        FailAllocation(0);
        EXPECT_TRUE(result == 0 || IsZero(loaded)) << fails;
        refused += result == 0 ? 0 : 1;
        HDLDestroy(&loaded);
        if (!failed) {
            break;
        }
    }
    // The format, two lists and eight items. Sorting does without memory.
    EXPECT_EQ(11, refused);
}

struct FileCase {
    const char* name;
    int         mode;
    Pair        data;
    Pair        code;
};

// Ten items of a pair; texts of several lengths, and bytes that are valid in every fixed type.
Bytes AnyValue(Pair pair, int i)
{
    if (pair.IsText()) {
        return Value(std::string(static_cast<size_t>(i % 4), static_cast<char>('a' + i)));
    }
    Bytes bytes(static_cast<size_t>(GetDataSize(pair.dataClass, pair.dataType)));
    bytes[0] = static_cast<BYTE>(7 * i % 10 + 1);
    return bytes;
}

DataListPtr AnyList(const FileCase& file)
{
    DataListPtr dl = ListOf(file.mode, file.data, file.code, "form");
    for (int i = 0; i < 10; i++) {
        const Bytes code = file.code.dataClass ? AnyValue(file.code, 9 - i) : Bytes();
        EXPECT_LE(0, Insert(dl, { AnyValue(file.data, i), code }));
    }
    return dl;
}

class ListFileOfEachKind : public testing::TestWithParam<FileCase> {
protected:
    BlockLeakCheck leaks;
};

TEST_P(ListFileOfEachKind, ComesBackAsItWas)
{
    const DataListPtr dl = AnyList(GetParam());
    const Bytes       bytes = Saved(dl);
    const DataListPtr loaded = Loaded(bytes);
    ASSERT_NE(nullptr, loaded);
    EXPECT_EQ(ItemsOf(dl), ItemsOf(loaded));
    EXPECT_EQ(bytes, Saved(loaded));
}

TEST_P(ListFileOfEachKind, IsRefusedWhereverItEndsEarly)
{
    const Bytes bytes = Saved(AnyList(GetParam()));
    for (size_t size = 0; size < bytes.size(); size++) {
        EXPECT_EQ(nullptr, Loaded(Bytes(bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(size)))) << size;
    }
}

TEST_P(ListFileOfEachKind, WithAnyByteChangedGivesAListOrIsRefused)
{
    const Bytes bytes = Saved(AnyList(GetParam()));
    for (size_t at = 0; at < bytes.size(); at++) {
        for (const int change : { 0x01, 0x02, 0x04, 0x40, 0x80, 0xFF }) {
            Bytes changed = bytes;
            changed[at] = static_cast<BYTE>(changed[at] ^ change);
            const DataListPtr dl = Loaded(changed);
            if (dl) {
                const ListItems items = ItemsOf(dl);
                EXPECT_GE(10u, items.size());
                EXPECT_NE(-1, Insert(dl, items.empty() ? ListItem{ AnyValue(GetParam().data, 1), {} } : items[0], 0));
            }
        }
    }
}

constexpr Pair numberPair = { 'n', 'd' };
constexpr Pair momentPair = { 'a', 'D' };
constexpr Pair smallPair = { 'h', 'h' };
constexpr Pair maskPair = { 'm', 's' };

constexpr FileCase fileCases[] = {
    { "Texts", unsortedList, textPair, noPair },
    { "SortedTexts", sortedByData, textPair, noPair },
    { "Numbers", unsortedList, numberPair, noPair },
    { "SortedNumbers", sortedByData, numberPair, noPair },
    { "TextsWithNumbers", unsortedList, textPair, longPair },
    { "SortedTextsWithNumbers", sortedByData, textPair, longPair },
    { "TextsSortedByNumbers", sortedByCode, textPair, longPair },
    { "DatesWithTexts", unsortedList, datePair, textPair },
    { "SortedDatesWithTexts", sortedByData, datePair, textPair },
    { "DatesSortedByTexts", sortedByCode, datePair, textPair },
    { "MasksWithMasks", sortedByData, maskPair, maskPair },
    { "MomentsWithCharacters", sortedByCode, momentPair, smallPair },
};

INSTANTIATE_TEST_SUITE_P(Kinds, ListFileOfEachKind, testing::ValuesIn(fileCases),
                         [](const testing::TestParamInfo<FileCase>& each) { return std::string(each.param.name); });

// Every pair of class and type there is.
TEST_F(ListFile, OfEveryPairComesBackAsItWas)
{
    int pairs = 0;
    for (char dataClass = 'a'; dataClass <= 'z'; dataClass++) {
        for (char dataType = 'A'; dataType <= 'z'; dataType++) {
            if (!ValidType(dataClass, dataType)) {
                continue;
            }
            pairs++;
            const Pair        pair = { dataClass, dataType };
            const DataListPtr dl = AnyList({ "", sortedByData, pair, pair });
            const DataListPtr loaded = Loaded(Saved(dl));
            ASSERT_NE(nullptr, loaded) << dataClass << dataType;
            EXPECT_EQ(ItemsOf(dl), ItemsOf(loaded)) << dataClass << dataType;
        }
    }
    EXPECT_EQ(7 + 8 + 11 + 4 + 1 + 1 + 1 + 11 + 1 + 3 + 2, pairs);
}

using SortedListFile = ListFile;

// A file in another order than that of the list: an unsorted list, saved with other flags.
Bytes FileInAnyOrder(int mode, Pair data, Pair code, const ListItems& items)
{
    const DataListPtr dl = ListOf(unsortedList, data, code);
    for (const ListItem& item : items) {
        Insert(dl, item);
    }
    dl->wFlags = static_cast<WORD>(dl->wFlags | mode << 1);
    return Saved(dl);
}

TEST_F(SortedListFile, MayBeInAnyOrder)
{
    const DataListPtr dl = Loaded(
        FileInAnyOrder(sortedByData, textPair, noPair, { { Value("c"), {} }, { Value("a"), {} }, { Value("b"), {} } }));
    ASSERT_NE(nullptr, dl);
    EXPECT_EQ((ListItems{ { Value("a"), {} }, { Value("b"), {} }, { Value("c"), {} } }), ItemsOf(dl));
}

TEST_F(SortedListFile, KeepsValuesAndCodesTogether)
{
    const ListItems   items = { { Value("c"), Value(LONG{ 1 }) },
                                { Value("a"), Value(LONG{ 3 }) },
                                { Value("b"), Value(LONG{ 2 }) } };
    const DataListPtr byData = Loaded(FileInAnyOrder(sortedByData, textPair, longPair, items));
    ASSERT_NE(nullptr, byData);
    EXPECT_EQ((ListItems{ items[1], items[2], items[0] }), ItemsOf(byData));
    const DataListPtr byCode = Loaded(FileInAnyOrder(sortedByCode, textPair, longPair, items));
    ASSERT_NE(nullptr, byCode);
    EXPECT_EQ((ListItems{ items[0], items[2], items[1] }), ItemsOf(byCode));
}

TEST_F(SortedListFile, TurnsEqualTextsRoundThatCanBeToldApart)
{
    const ListItems   items = { { Value("A"), Value(LONG{ 1 }) }, { Value("a"), Value(LONG{ 2 }) } };
    const DataListPtr dl = Loaded(FileInAnyOrder(sortedByData, textPair, longPair, items));
    ASSERT_NE(nullptr, dl);
    EXPECT_EQ((ListItems{ items[1], items[0] }), ItemsOf(dl));
}

TEST_F(SortedListFile, OfEqualKeysDoesNotChangeByBeingSavedAndLoaded)
{
    for (const int mode : { sortedByData, sortedByCode }) {
        const DataListPtr dl = ListOf(mode, longPair, longPair);
        for (LONG i = 0; i < 12; i++) {
            Insert(dl, { Value(mode == sortedByData ? LONG{ i % 3 } : i),
                         Value(mode == sortedByData ? i : LONG{ i % 3 }) });
        }
        const DataListPtr once = Loaded(Saved(dl));
        ASSERT_NE(nullptr, once);
        EXPECT_EQ(ItemsOf(dl), ItemsOf(once)) << mode;
        EXPECT_EQ(Saved(dl), Saved(once)) << mode;
    }
}

TEST_F(SortedListFile, HasWhatIsNoNumberWhereAddingLeavesIt)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    // What isn't a number goes to the end, and so does what is added behind it.
    ListItems items;
    LONG      place = 0;
    for (const double value : { nan, nan, 5.0, 5.0, nan, 1.0 }) {
        items.push_back({ Value(value), Value(place++) });
    }
    const DataListPtr dl = Loaded(FileInAnyOrder(sortedByData, numberPair, longPair, items));
    ASSERT_NE(nullptr, dl);
    EXPECT_EQ(items, ItemsOf(dl));
    items.push_back({ Value(0.5), Value(place) });
    const DataListPtr another = Loaded(FileInAnyOrder(sortedByData, numberPair, longPair, items));
    ASSERT_NE(nullptr, another);
    std::rotate(items.begin() + 2, items.end() - 1, items.end());
    EXPECT_EQ(items, ItemsOf(another)) << "in front of the first number that isn't below";
}

TEST_F(SortedListFile, ToBeSortedByMissingCodesStaysInItsOrder)
{
    const ListItems   items = { { Value("c"), {} }, { Value("a"), {} } };
    const DataListPtr dl = Loaded(FileInAnyOrder(sortedByCode, textPair, noPair, items));
    ASSERT_NE(nullptr, dl);
    EXPECT_EQ(items, ItemsOf(dl));
    EXPECT_EQ(0, dl->pValues->wFlags & HLL_SORTED);
}

TEST_F(ListFile, IsReadFromAnyKindOfStream)
{
    const DataListPtr dl = ListOf(sortedByData, textPair, longPair);
    Insert(dl, { Value("b"), Value(LONG{ 1 }) });
    Insert(dl, { Value("a"), Value(LONG{ 2 }) });
    const char* const name = "datalist_test.bin";
    {
        const StreamPtr file(SNewFile(name));
        EXPECT_EQ(0, HDLSave(dl.get(), file.get()));
    }
    DataListPtr fromFile(HDLCreate(0, 's', 's', 0, 0, nullptr));
    HDLDestroy(fromFile.get());
    {
        const StreamPtr file(SOpenFile(name));
        EXPECT_EQ(0, HDLLoad(fromFile.get(), file.get()));
    }
    std::remove(name);
    EXPECT_EQ(ItemsOf(dl), ItemsOf(fromFile));
    EXPECT_EQ(Saved(dl), Saved(fromFile));
}

} // namespace
