// Data lists, one behaviour a test. Files are in data_list_file_test.cpp, random sequences in data_list_model_test.cpp.
#include "datalist/list_maker.h"

#include "typed/data_types.h"

#include <cmath>

namespace {

class Lists : public testing::Test {
protected:
    static const char* TextOf(const DataListPtr& dl, int index)
    {
        return static_cast<const char*>(HDLGetDataPtr(dl.get(), index));
    }
    static LONG NumberOf(const DataListPtr& dl, int index) { return LoadAs<LONG>(HDLGetDataPtr(dl.get(), index)); }
    static LONG CodeOf(const DataListPtr& dl, int index) { return LoadAs<LONG>(HDLGetCodePtr(dl.get(), index)); }

    // "c" 30, "a" 10, "b" 20
    static DataListPtr ThreeTexts(int mode, Pair code = longPair)
    {
        DataListPtr dl = ListOf(mode, textPair, code);
        Insert(dl, { Value("c"), Value(LONG{ 30 }) });
        Insert(dl, { Value("a"), Value(LONG{ 10 }) });
        Insert(dl, { Value("b"), Value(LONG{ 20 }) });
        return dl;
    }

    BlockLeakCheck leaks;
};

using MakingLists = Lists;

TEST_F(MakingLists, LaysTheRecordOutAsHostsReadIt)
{
    EXPECT_EQ(0u, offsetof(DataList, wFlags));
    EXPECT_EQ(2u, offsetof(DataList, cClass));
    EXPECT_EQ(3u, offsetof(DataList, cType));
    EXPECT_EQ(4u, offsetof(DataList, cClass2));
    EXPECT_EQ(5u, offsetof(DataList, cType2));
    EXPECT_EQ(8u, offsetof(DataList, pszFormat));
    EXPECT_EQ(8 + sizeof(void*), offsetof(DataList, pValues));
    EXPECT_EQ(8 + 2 * sizeof(void*), offsetof(DataList, pCodes));
    EXPECT_EQ(8 + 3 * sizeof(void*), sizeof(DataList));
}

TEST_F(MakingLists, SortsOnlyTheListOfTheSortMode)
{
    struct {
        int  mode;
        WORD flags;
        bool data;
        bool code;
    } const rows[] = {
        { 0, 1, false, false }, { 1, 3, true, false },  { 2, 5, false, true },
        { 3, 7, false, false }, { 4, 1, false, false },
    };
    for (const auto& row : rows) {
        const DataListPtr dl = ListOf(row.mode, datePair, longPair, "yyyy");
        ASSERT_NE(nullptr, dl) << row.mode;
        EXPECT_EQ(row.flags, dl->wFlags) << row.mode;
        EXPECT_EQ(row.data, (dl->pValues->wFlags & HLL_SORTED) != 0) << row.mode;
        EXPECT_EQ(row.code, (dl->pCodes->wFlags & HLL_SORTED) != 0) << row.mode;
    }
}

TEST_F(MakingLists, GivesEachListTheSizeAndTheOrderOfItsPair)
{
    const DataListPtr dl = ListOf(unsortedList, textPair, datePair);
    EXPECT_EQ(-1, dl->pValues->cbItem);
    EXPECT_EQ(4, dl->pCodes->cbItem);
    EXPECT_EQ(GetDataCompare('s', 's'), dl->pValues->pfnDataCompare);
    EXPECT_EQ(GetDataCompare('d', 'l'), dl->pCodes->pfnDataCompare);
    EXPECT_EQ('s', dl->cClass);
    EXPECT_EQ('s', dl->cType);
    EXPECT_EQ('d', dl->cClass2);
    EXPECT_EQ('l', dl->cType2);
}

TEST_F(MakingLists, WithoutAValidSecondPairHasNoCodes)
{
    for (const Pair& code : { noPair, Pair{ 'x', 'y' }, Pair{ 's', 'l' }, Pair{ 'd', 0 } }) {
        const DataListPtr dl = ListOf(sortedByData, textPair, code);
        ASSERT_NE(nullptr, dl) << code.dataClass;
        EXPECT_EQ(2, dl->wFlags);
        EXPECT_EQ(nullptr, dl->pCodes);
        EXPECT_EQ(0, dl->cClass2);
        EXPECT_EQ(0, dl->cType2);
        EXPECT_TRUE(dl->pValues->wFlags & HLL_SORTED);
        EXPECT_EQ(0, Insert(dl, { Value("b"), {} }));
        EXPECT_EQ(0, Insert(dl, { Value("a"), {} }));
        EXPECT_STREQ("a", TextOf(dl, 0));
    }
}

TEST_F(MakingLists, NeedsAValidFirstPair)
{
    EXPECT_EQ(nullptr, HDLCreate(0, 's', 'l', 0, 0, "x"));
    EXPECT_EQ(nullptr, HDLCreate(0, 0, 0, 's', 's', nullptr));
    DataList dl;
    std::memset(static_cast<void*>(&dl), 0x55, sizeof dl);
    EXPECT_EQ(0, HDLInit(&dl, 1, 'd', 's', 's', 's', "x"));
    EXPECT_TRUE(IsZero(dl));
    EXPECT_EQ(0, HDLInit(nullptr, 0, 's', 's', 0, 0, nullptr));
}

TEST_F(MakingLists, TakesARecordOfTheHostWhateverIsInIt)
{
    DataList dl;
    std::memset(static_cast<void*>(&dl), 0x55, sizeof dl);
    ASSERT_EQ(1, HDLInit(&dl, 2, 'n', 'l', 's', 's', "#,##0"));
    EXPECT_STREQ("#,##0", dl.pszFormat);
    EXPECT_EQ(1, HDLDestroy(&dl));
    EXPECT_TRUE(IsZero(dl));
    EXPECT_EQ(1, HDLDestroy(&dl)) << "nothing is left to free";
    EXPECT_EQ(0, HDLDestroy(nullptr));
}

TEST_F(MakingLists, WithoutMemoryGivesNothingAndAZeroRecord)
{
    for (FailEachAllocation each; each.Next();) {
        DataList  dl;
        const int made = HDLInit(&dl, 1, 's', 's', 'n', 'l', "x");
        EXPECT_NE(AllocationFailed(), made == 1) << each.Number();
        EXPECT_TRUE(made || IsZero(dl)) << each.Number();
        HDLDestroy(&dl);
    }
    for (FailEachAllocation each; each.Next();) {
        const DataListPtr dl = ListOf(0, textPair, longPair, "x");
        EXPECT_EQ(AllocationFailed(), dl == nullptr) << each.Number();
    }
}

TEST_F(MakingLists, EmptiesBothLists)
{
    const DataListPtr dl = ThreeTexts(unsortedList);
    EXPECT_EQ(1, HDLEmpty(dl.get()));
    EXPECT_EQ(0, dl->pValues->cItems);
    EXPECT_EQ(0, dl->pCodes->cItems);
    EXPECT_EQ(0, HDLEmpty(nullptr));
}

using InsertingItems = Lists;

TEST_F(InsertingItems, GoesToTheIndexInAnUnsortedList)
{
    const DataListPtr dl = ThreeTexts(unsortedList);
    EXPECT_EQ(1, Insert(dl, { Value("d"), Value(LONG{ 40 }) }, 1));
    EXPECT_EQ(4, Insert(dl, { Value("e"), Value(LONG{ 50 }) }, -7));
    EXPECT_EQ(5, Insert(dl, { Value("f"), Value(LONG{ 60 }) }, 100));
    EXPECT_EQ(0, Insert(dl, { Value("g"), Value(LONG{ 70 }) }, 0));
    const ListItems expected = {
        { Value("g"), Value(LONG{ 70 }) }, { Value("c"), Value(LONG{ 30 }) }, { Value("d"), Value(LONG{ 40 }) },
        { Value("a"), Value(LONG{ 10 }) }, { Value("b"), Value(LONG{ 20 }) }, { Value("e"), Value(LONG{ 50 }) },
        { Value("f"), Value(LONG{ 60 }) },
    };
    EXPECT_EQ(expected, ItemsOf(dl));
}

TEST_F(InsertingItems, OfAListSortedByDataTakesTheCodesAlong)
{
    const DataListPtr dl = ThreeTexts(sortedByData);
    const ListItems   expected = { { Value("a"), Value(LONG{ 10 }) },
                                   { Value("b"), Value(LONG{ 20 }) },
                                   { Value("c"), Value(LONG{ 30 }) } };
    EXPECT_EQ(expected, ItemsOf(dl));
}

TEST_F(InsertingItems, OfAListSortedByCodeTakesTheDataAlong)
{
    const DataListPtr dl = ListOf(sortedByCode, textPair, longPair);
    EXPECT_EQ(0, Insert(dl, { Value("three"), Value(LONG{ 3 }) }));
    EXPECT_EQ(0, Insert(dl, { Value("one"), Value(LONG{ 1 }) }));
    EXPECT_EQ(1, Insert(dl, { Value("two"), Value(LONG{ 2 }) }));
    const ListItems expected = { { Value("one"), Value(LONG{ 1 }) },
                                 { Value("two"), Value(LONG{ 2 }) },
                                 { Value("three"), Value(LONG{ 3 }) } };
    EXPECT_EQ(expected, ItemsOf(dl));
}

TEST_F(InsertingItems, OfEqualsGoesInFrontAndTextsAreOrderedWithoutCase)
{
    const DataListPtr dl = ListOf(sortedByData, textPair, longPair);
    Insert(dl, { Value("b"), Value(LONG{ 1 }) });
    Insert(dl, { Value("B"), Value(LONG{ 2 }) });
    Insert(dl, { Value("a"), Value(LONG{ 3 }) });
    EXPECT_EQ(1, Insert(dl, { Value("b"), Value(LONG{ 4 }) }));
    EXPECT_STREQ("a", TextOf(dl, 0));
    EXPECT_EQ(4, CodeOf(dl, 1));
    EXPECT_STREQ("B", TextOf(dl, 2));
    EXPECT_EQ(1, CodeOf(dl, 3));
}

TEST_F(InsertingItems, WithoutACodeStoresZerosOrAnEmptyText)
{
    const DataListPtr numbers = ListOf(unsortedList, textPair, longPair);
    Insert(numbers, { Value("a"), {} });
    EXPECT_EQ(0, CodeOf(numbers, 0));
    const DataListPtr texts = ListOf(unsortedList, textPair, textPair);
    Insert(texts, { Value("a"), {} });
    EXPECT_STREQ("", static_cast<const char*>(HDLGetCodePtr(texts.get(), 0)));
    const DataListPtr byCode = ListOf(sortedByCode, textPair, longPair);
    Insert(byCode, { Value("minus"), Value(LONG{ -5 }) });
    EXPECT_EQ(0, Insert(byCode, { Value("none"), {} })) << "no code is below all codes";
}

TEST_F(InsertingItems, ToBeSortedByMissingCodesOrInAModeThatIsNoneIsNotDone)
{
    for (const int mode : { 2, 3 }) {
        const DataListPtr dl = ListOf(mode, textPair, mode == 3 ? longPair : noPair);
        EXPECT_EQ(4, Insert(dl, { Value("a"), Value(LONG{ 1 }) }, 4)) << mode;
        EXPECT_EQ(-1, Insert(dl, { Value("a"), Value(LONG{ 1 }) }, -1)) << mode;
        EXPECT_EQ(0, dl->pValues->cItems) << mode;
    }
}

TEST_F(InsertingItems, NeedsAListAndAValue)
{
    const DataListPtr dl = ListOf(unsortedList, textPair, longPair);
    const LONG        code = 1;
    EXPECT_EQ(-1, HDLInsertItem(nullptr, 0, "a", &code));
    EXPECT_EQ(-1, HDLInsertItem(dl.get(), 0, nullptr, &code));
    EXPECT_EQ(0, dl->pCodes->cItems);
}

TEST_F(InsertingItems, WithoutMemoryForEitherHalfInsertsNone)
{
    for (const int mode : { 0, 1, 2 }) {
        const DataListPtr dl = ThreeTexts(mode);
        const ListItems   before = ItemsOf(dl);
        for (const int fails : { 1, 2 }) {
            FailAllocation(fails);
            EXPECT_EQ(-1, Insert(dl, { Value("aa"), Value(LONG{ 15 }) }, 1)) << mode << ' ' << fails;
            FailAllocation(0);
            EXPECT_EQ(before, ItemsOf(dl)) << mode << ' ' << fails;
        }
    }
}

using DeletingItems = Lists;

TEST_F(DeletingItems, TakesThemFromBothLists)
{
    const DataListPtr dl = ThreeTexts(unsortedList);
    EXPECT_NE(0, HDLDeleteItem(dl.get(), 1));
    const ListItems expected = { { Value("c"), Value(LONG{ 30 }) }, { Value("b"), Value(LONG{ 20 }) } };
    EXPECT_EQ(expected, ItemsOf(dl));
}

TEST_F(DeletingItems, OutOfRangeChangesNothing)
{
    const DataListPtr dl = ThreeTexts(unsortedList);
    EXPECT_EQ(0, HDLDeleteItem(dl.get(), 3));
    EXPECT_EQ(0, HDLDeleteItem(dl.get(), -1)) << "the last item by -1 is for reading";
    EXPECT_EQ(0, HDLDeleteItem(nullptr, 0));
    EXPECT_EQ(3, dl->pCodes->cItems);
}

using FindingItems = Lists;

TEST_F(FindingItems, BeginsAtAnIndexAndWraps)
{
    const DataListPtr dl = ListOf(unsortedList, textPair, longPair);
    Insert(dl, { Value("x"), Value(LONG{ 1 }) });
    Insert(dl, { Value("y"), Value(LONG{ 2 }) });
    Insert(dl, { Value("X"), Value(LONG{ 1 }) });
    EXPECT_EQ(0, HDLFindData(dl.get(), 0, "x"));
    EXPECT_EQ(2, HDLFindData(dl.get(), 1, "x")) << "texts without case";
    EXPECT_EQ(1, HDLFindData(dl.get(), 2, "Y"));
    EXPECT_EQ(2, HDLFindData(dl.get(), 5, "x")) << "modulo the count";
    EXPECT_EQ(-1, HDLFindData(dl.get(), 0, "z"));
    const LONG one = 1;
    const LONG three = 3;
    EXPECT_EQ(2, HDLFindCode(dl.get(), 1, &one));
    EXPECT_EQ(-1, HDLFindCode(dl.get(), 0, &three));
}

TEST_F(FindingItems, NeedsAListAndAValue)
{
    const DataListPtr dl = ThreeTexts(unsortedList);
    EXPECT_EQ(-1, HDLFindData(nullptr, 0, "a"));
    EXPECT_EQ(-1, HDLFindData(dl.get(), 0, nullptr));
    EXPECT_EQ(-1, HDLFindCode(nullptr, 0, "a"));
    EXPECT_EQ(-1, HDLFindCode(dl.get(), 0, nullptr));
    EXPECT_EQ(-1, HDLFindData(ListOf(unsortedList, textPair).get(), 0, "a"));
}

TEST_F(FindingItems, ByCodeInAListWithoutCodesLooksAtNothing)
{
    const DataListPtr dl = ListOf(unsortedList, textPair);
    Insert(dl, { Value("a"), {} });
    EXPECT_EQ(-1, HDLFindCode(dl.get(), 0, reinterpret_cast<const void*>(UINT_PTR{ 1 })));
}

using ReadingItems = Lists;

TEST_F(ReadingItems, CopiesValueAndCode)
{
    const DataListPtr dl = ThreeTexts(unsortedList);
    char              text[8] = "";
    LONG              code = 0;
    EXPECT_EQ(1, HDLGetData(dl.get(), 0, text));
    EXPECT_STREQ("c", text);
    EXPECT_EQ(1, HDLGetCode(dl.get(), 0, &code));
    EXPECT_EQ(30, code);
    EXPECT_EQ(1, HDLGetData(dl.get(), -1, text)) << "the last item";
    EXPECT_STREQ("b", text);
    EXPECT_EQ(1, HDLGetCode(dl.get(), -1, &code));
    EXPECT_EQ(20, code);
}

TEST_F(ReadingItems, OutOfRangeOrWithoutAPlaceCopiesNothing)
{
    const DataListPtr dl = ThreeTexts(unsortedList);
    char              text[4] = "xyz";
    EXPECT_EQ(0, HDLGetData(dl.get(), 3, text));
    EXPECT_EQ(0, HDLGetData(dl.get(), -2, text));
    EXPECT_EQ(0, HDLGetCode(dl.get(), 3, text));
    EXPECT_EQ(0, HDLGetData(nullptr, 0, text));
    EXPECT_EQ(0, HDLGetCode(nullptr, 0, text));
    EXPECT_EQ(0, HDLGetData(dl.get(), 0, nullptr));
    EXPECT_EQ(0, HDLGetData(ListOf(unsortedList, textPair).get(), -1, text)) << "an empty list has no last item";
    EXPECT_STREQ("xyz", text);
}

TEST_F(ReadingItems, CountsAnEmptyTextAsNothing)
{
    const DataListPtr dl = ListOf(unsortedList, textPair, textPair);
    Insert(dl, { Value(""), Value("") });
    char text[4] = "xyz";
    EXPECT_EQ(0, HDLGetData(dl.get(), 0, text));
    EXPECT_STREQ("", text);
    EXPECT_EQ(0, HDLGetCode(dl.get(), 0, text));
}

TEST_F(ReadingItems, OfAListWithoutCodesHasNone)
{
    const DataListPtr dl = ListOf(unsortedList, textPair);
    Insert(dl, { Value("a"), {} });
    LONG code = 7;
    EXPECT_EQ(0, HDLGetCode(dl.get(), 0, &code));
    EXPECT_EQ(7, code);
    EXPECT_EQ(nullptr, HDLGetCodePtr(dl.get(), 0));
    EXPECT_EQ(0, HDLGetCodeSize(dl.get(), 0));
}

TEST_F(ReadingItems, GivesTheirPlaceInTheList)
{
    const DataListPtr dl = ThreeTexts(unsortedList);
    EXPECT_EQ(HNodePayload(dl->pValues->pHead), HDLGetDataPtr(dl.get(), 0));
    EXPECT_EQ(HNodePayload(dl->pValues->pTail), HDLGetDataPtr(dl.get(), -1));
    EXPECT_EQ(HNodePayload(dl->pCodes->pHead), HDLGetCodePtr(dl.get(), 0));
    EXPECT_EQ(nullptr, HDLGetDataPtr(dl.get(), 3));
    EXPECT_EQ(nullptr, HDLGetCodePtr(dl.get(), 3));
    EXPECT_EQ(nullptr, HDLGetDataPtr(nullptr, 0));
    EXPECT_EQ(nullptr, HDLGetCodePtr(nullptr, 0));
}

TEST_F(ReadingItems, TellsTheSizeOfAFixedTypeWhateverTheIndex)
{
    const DataListPtr dl = ListOf(unsortedList, datePair, Pair{ 'a', 'm' });
    for (const int index : { -1, 0, 5 }) {
        EXPECT_EQ(4, HDLGetDataSize(dl.get(), index));
        EXPECT_EQ(36, HDLGetCodeSize(dl.get(), index));
    }
    EXPECT_EQ(0, HDLGetDataSize(nullptr, 0));
    EXPECT_EQ(0, HDLGetCodeSize(nullptr, 0));
}

TEST_F(ReadingItems, TellsTheLengthOfATextAndZeroWithoutTheItem)
{
    const DataListPtr dl = ListOf(unsortedList, textPair, Pair{ 'm', 's' });
    Insert(dl, { Value("hello"), Value("12") });
    EXPECT_EQ(5, HDLGetDataSize(dl.get(), 0));
    EXPECT_EQ(5, HDLGetDataSize(dl.get(), -1));
    EXPECT_EQ(0, HDLGetDataSize(dl.get(), 1));
    EXPECT_EQ(2, HDLGetCodeSize(dl.get(), 0));
    EXPECT_EQ(0, HDLGetCodeSize(dl.get(), 1));
}

using SettingCodes = Lists;

TEST_F(SettingCodes, WritesOverTheCodeInPlace)
{
    for (const int mode : { 0, 1 }) {
        const DataListPtr dl = ThreeTexts(mode);
        const void* const place = HDLGetCodePtr(dl.get(), 1);
        const LONG        code = 99;
        EXPECT_EQ(1, HDLSetCode(dl.get(), 1, &code)) << mode;
        EXPECT_EQ(place, HDLGetCodePtr(dl.get(), 1)) << mode;
        EXPECT_EQ(99, CodeOf(dl, 1)) << mode;
    }
}

TEST_F(SettingCodes, IsRefusedInAListSortedByCode)
{
    const DataListPtr dl = ThreeTexts(sortedByCode);
    const LONG        code = 99;
    EXPECT_EQ(0, HDLSetCode(dl.get(), 1, &code));
    EXPECT_EQ(20, CodeOf(dl, 1));
}

TEST_F(SettingCodes, NeedsAListAnItemAndACode)
{
    const DataListPtr dl = ThreeTexts(unsortedList);
    const LONG        code = 99;
    EXPECT_EQ(0, HDLSetCode(nullptr, 0, &code));
    EXPECT_EQ(0, HDLSetCode(dl.get(), 0, nullptr));
    EXPECT_EQ(0, HDLSetCode(dl.get(), 3, &code));
    const DataListPtr bare = ListOf(unsortedList, textPair);
    Insert(bare, { Value("a"), {} });
    EXPECT_EQ(0, HDLSetCode(bare.get(), 0, &code));
}

TEST_F(SettingCodes, OfTextStaysInPlaceWhileItIsNotLonger)
{
    const DataListPtr dl = ListOf(unsortedList, textPair, textPair);
    Insert(dl, { Value("a"), Value("first") });
    const void* const place = HDLGetCodePtr(dl.get(), 0);
    EXPECT_EQ(1, HDLSetCode(dl.get(), 0, "FIRST"));
    EXPECT_EQ(1, HDLSetCode(dl.get(), 0, "1st"));
    EXPECT_EQ(place, HDLGetCodePtr(dl.get(), 0));
    EXPECT_STREQ("1st", static_cast<const char*>(place));
}

TEST_F(SettingCodes, OfLongerTextMovesItToABlockOfItsOwn)
{
    const DataListPtr dl = ListOf(unsortedList, textPair, textPair);
    for (const char* const text : { "a", "b", "c" }) {
        Insert(dl, { Value(text), Value("") });
    }
    const char* const codes[] = { "code of the first", "of the second", "of the third" };
    EXPECT_EQ(1, HDLSetCode(dl.get(), 1, codes[1]));
    EXPECT_EQ(1, HDLSetCode(dl.get(), -1, codes[2]));
    EXPECT_EQ(1, HDLSetCode(dl.get(), 0, codes[0]));
    const ListItems expected = { { Value("a"), Value(codes[0]) },
                                 { Value("b"), Value(codes[1]) },
                                 { Value("c"), Value(codes[2]) } };
    EXPECT_EQ(expected, ItemsOf(dl));
    FailAllocation(1);
    EXPECT_EQ(0, HDLSetCode(dl.get(), 1, "a code for which there is no memory"));
    FailAllocation(0);
    EXPECT_EQ(expected, ItemsOf(dl));
}

using ListFormats = Lists;

TEST_F(ListFormats, AreCopiedIntoABufferAndCut)
{
    const DataListPtr dl = ListOf(unsortedList, datePair, noPair, "yyyy-mm-dd");
    char              out[16];
    EXPECT_EQ(10, HDLGetFormat(dl.get(), out, sizeof out));
    EXPECT_STREQ("yyyy-mm-dd", out);
    EXPECT_EQ(4, HDLGetFormat(dl.get(), out, 5));
    EXPECT_STREQ("yyyy", out);
    EXPECT_EQ(0, HDLGetFormat(ListOf(unsortedList, datePair).get(), out, sizeof out));
    EXPECT_STREQ("", out);
    EXPECT_EQ(0, HDLGetFormat(nullptr, out, sizeof out));
}

TEST_F(ListFormats, AreReplacedInAnyClassButText)
{
    const DataListPtr dates = ListOf(unsortedList, datePair, noPair, "yyyy");
    EXPECT_EQ(1, HDLSetFormat(dates.get(), "dd.mm.yy"));
    EXPECT_STREQ("dd.mm.yy", dates->pszFormat);
    EXPECT_EQ(0, HDLSetFormat(dates.get(), nullptr));
    EXPECT_EQ(0, HDLSetFormat(nullptr, "x"));
    EXPECT_STREQ("dd.mm.yy", dates->pszFormat);
    const DataListPtr texts = ListOf(unsortedList, textPair, noPair, "old");
    EXPECT_EQ(0, HDLSetFormat(texts.get(), "new"));
    EXPECT_STREQ("old", texts->pszFormat);
    const DataListPtr masks = ListOf(unsortedList, Pair{ 'm', 's' }, noPair, "##");
    EXPECT_EQ(1, HDLSetFormat(masks.get(), "##-##"));
}

TEST_F(ListFormats, StayWithoutMemoryForTheNewOne)
{
    const DataListPtr dl = ListOf(unsortedList, datePair, noPair, "yyyy");
    FailAllocation(1);
    EXPECT_EQ(0, HDLSetFormat(dl.get(), "dd.mm.yy"));
    FailAllocation(0);
    EXPECT_STREQ("yyyy", dl->pszFormat);
}

TEST_F(ListFormats, MakeTheTextOfAnItem)
{
    const DataListPtr dl = ListOf(unsortedList, datePair, noPair, "yyyy-mm-dd");
    Insert(dl, { Value(LONG{ 20240229 }), {} });
    char out[32];
    int  negative = 7;
    EXPECT_EQ(10, HDLFormatItem(dl.get(), 0, out, sizeof out, &negative, 0));
    EXPECT_STREQ("2024-02-29", out);
    EXPECT_EQ(0, negative);
    EXPECT_EQ(10, HDLFormatItem(dl.get(), -1, out, sizeof out, nullptr, 0));
}

TEST_F(ListFormats, TellOfNegativeNumbers)
{
    const DataListPtr dl = ListOf(unsortedList, longPair, noPair, "0");
    Insert(dl, { Value(LONG{ -5 }), {} });
    char out[32];
    int  negative = 0;
    EXPECT_LT(0, HDLFormatItem(dl.get(), 0, out, sizeof out, &negative, 0));
    EXPECT_EQ(1, negative);
}

TEST_F(ListFormats, MakeTheTextForEditingWhenAsked)
{
    const DataListPtr dl = ListOf(unsortedList, longPair, noPair, "0000");
    Insert(dl, { Value(LONG{ 5 }), {} });
    char out[32];
    HDLFormatItem(dl.get(), 0, out, sizeof out, nullptr, 0);
    EXPECT_STREQ("0005", out);
    HDLFormatItem(dl.get(), 0, out, sizeof out, nullptr, 1);
    EXPECT_STREQ("5", out);
}

TEST_F(ListFormats, CutATextAtTheSizeOfItsPlace)
{
    const DataListPtr dl = ListOf(unsortedList, datePair, noPair, "yyyy-mm-dd");
    Insert(dl, { Value(LONG{ 20240229 }), {} });
    char out[] = "0123456789";
    HDLFormatItem(dl.get(), 0, out, 5, nullptr, 0);
    EXPECT_STREQ("2024", out);
    EXPECT_EQ('5', out[5]);
}

TEST_F(ListFormats, GiveAnEmptyTextWithoutTheItemOrForWhatHasNoText)
{
    const DataListPtr dl = ListOf(unsortedList, Pair{ 'n', 'M' });
    char              out[8] = "xyz";
    int               negative = 7;
    EXPECT_EQ(0, HDLFormatItem(dl.get(), 0, out, sizeof out, &negative, 0));
    EXPECT_STREQ("", out);
    EXPECT_EQ(0, negative);
    Insert(dl, { Bytes(8), {} });
    std::strcpy(out, "xyz");
    EXPECT_EQ(0, HDLFormatItem(dl.get(), 0, out, sizeof out, &negative, 0));
    EXPECT_STREQ("", out) << "money is never converted";
    std::strcpy(out, "xyz");
    EXPECT_EQ(0, HDLFormatItem(nullptr, 0, out, 0, nullptr, 0));
    EXPECT_EQ(0, HDLFormatItem(nullptr, 0, out, -1, nullptr, 0));
    EXPECT_STREQ("xyz", out) << "there is no room";
    EXPECT_EQ(0, HDLFormatItem(nullptr, 0, nullptr, 8, nullptr, 0));
}

using SecondNames = Lists;

TEST_F(SecondNames, DoTheSame)
{
    DataListPtr dl(HCDLCreate(1, 's', 's', 'n', 'l', nullptr));
    ASSERT_NE(nullptr, dl);
    const LONG ten = 10;
    const LONG twenty = 20;
    EXPECT_EQ(0, HCDLInsertItem(dl.get(), 5, "b", &ten));
    EXPECT_EQ(0, HCDLInsertItem(dl.get(), 5, "a", &twenty));
    EXPECT_EQ(1, HCDLFindData(dl.get(), 0, "b"));
    EXPECT_EQ(0, HCDLFindCode(dl.get(), 0, &twenty));
    char text[4];
    LONG code = 0;
    EXPECT_EQ(1, HCDLGetData(dl.get(), 0, text));
    EXPECT_STREQ("a", text);
    EXPECT_EQ(1, HCDLGetCode(dl.get(), 0, &code));
    EXPECT_EQ(20, code);
    EXPECT_EQ(1, HCDLGetDataSize(dl.get(), 0));
    EXPECT_NE(0, HCDLDeleteItem(dl.get(), 0));
    EXPECT_EQ(1, HCDLEmpty(dl.get()));
    EXPECT_EQ(0, dl->pValues->cItems);
    EXPECT_EQ(1, HCDLDestroy(dl.get()));
    EXPECT_TRUE(IsZero(*dl));
}

} // namespace
