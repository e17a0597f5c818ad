// Columns by themselves: sizes by type pair, limits, copies, and offsets in a row.
#include "griddata/grid_maker.h"

#include "foundation/startup.h"

namespace {

short SizeOf(HGField* field)
{
    const FieldPtr owned(field);
    return owned->cbSize;
}

TEST(FieldCreate, StoresWhatIsGiven)
{
    const FieldPtr field(HGFieldCreate("Caption", 0x8005, 120, 200, 'n', 'd', 's', 's', 9, 'c', 0x40000123, "#,##0", 3));
    ASSERT_NE(nullptr, field);
    EXPECT_STREQ("Caption", field->pszTitle);
    EXPECT_STREQ("Caption", field->pszName);
    EXPECT_NE(Copied(field->pszTitle), Copied(field->pszName));
    EXPECT_STREQ("#,##0", field->pszFormat);
    EXPECT_EQ(0x8005, field->wFlags);
    EXPECT_EQ(120, field->nWidth);
    EXPECT_EQ(200, field->nHeight);
    EXPECT_EQ('n', field->cClass);
    EXPECT_EQ('d', field->cType);
    EXPECT_EQ('s', field->cClass2);
    EXPECT_EQ('s', field->cType2);
    EXPECT_EQ('c', field->cKind);
    EXPECT_EQ(0x40000123u, Copied(field->dwCtlStyle));
    EXPECT_EQ(3, field->nBand);
    EXPECT_EQ(0, field->nOffset);
    EXPECT_EQ(nullptr, Copied(field->pCtl));
    EXPECT_EQ(0, field->fBold);
}

TEST(FieldCreate, TakesTheSizeFromTheTypePair)
{
    EXPECT_EQ(31, SizeOf(AnyField("a", 's', 's', 31)));
    EXPECT_EQ(8, SizeOf(AnyField("a", 'm', 's', 31, "###-###")));
    EXPECT_EQ(1, SizeOf(AnyField("a", 'm', 's', 31, nullptr)));
    EXPECT_EQ(4, SizeOf(AnyField("a", 'd', 'l', 31)));
    EXPECT_EQ(8, SizeOf(AnyField("a", 'n', 'd', 0)));
    EXPECT_EQ(0, SizeOf(AnyField("a", 'x', 'x', 31)));
}

TEST(FieldCreate, TakesTheSizeOfTheCodeUnderItsFlag)
{
    EXPECT_EQ(2, SizeOf(HGFieldCreate("a", HFF_CODE, 9, 9, 's', 's', 'n', 's', 31, 'l', 0, "", 0)));
    EXPECT_EQ(31, SizeOf(HGFieldCreate("a", HFF_CODE, 9, 9, 'n', 'l', 's', 's', 31, 'l', 0, "", 0)));
    EXPECT_EQ(31, SizeOf(HGFieldCreate("a", 0, 9, 9, 's', 's', 'n', 's', 31, 'l', 0, "", 0)));
}

TEST(FieldCreate, IsAtLeastTwoWide)
{
    for (short width : { short{ -5 }, short{ 0 }, short{ 1 }, short{ 2 } }) {
        const FieldPtr field(HGFieldCreate("a", 0, width, 0, 's', 's', 0, 0, 5, 'e', 0, "", 0));
        EXPECT_EQ(2, field->nWidth) << width;
    }
}

TEST(FieldCreate, HasAnEmptyFormatForNone)
{
    const FieldPtr field(AnyField(nullptr, 's', 's', 5));
    EXPECT_STREQ("", field->pszFormat);
    EXPECT_EQ(nullptr, Copied(field->pszTitle));
    EXPECT_EQ(nullptr, Copied(field->pszName));
}

TEST(FieldCreate, WithoutMemoryNeverLacksAFormat)
{
    const int           live = LiveBlocks();
    FailEachAllocation each;
    while (each.Next()) {
        const FieldPtr field(AnyField("title", 's', 's', 5, "format"));
        EXPECT_TRUE(!field || field->pszFormat) << each.Number();
    }
    EXPECT_EQ(live, LiveBlocks());
    EXPECT_EQ(5, each.Number()) << "a record and three texts";
}

TEST(FieldDestroy, FreesItsTexts)
{
    const int live = LiveBlocks();
    EXPECT_EQ(1, HGFieldDestroy(AnyField("title", 's', 's', 5, "format")));
    EXPECT_EQ(live, LiveBlocks());
    EXPECT_EQ(0, HGFieldDestroy(nullptr));
}

TEST(FieldDup, CopiesAllButTheCellControl)
{
    const FieldPtr field(HGFieldCreate("Caption", 5, 120, 200, 's', 's', 'n', 'l', 9, 'c', 0x123, "x", 3));
    ControlHeader  child = {};
    field->nOffset = 17;
    field->pCtl = &child;
    const FieldPtr copy(HGFldDup(field.get()));
    field->pCtl = nullptr;
    EXPECT_EQ(0, HGFldCompare(field.get(), copy.get()));
    EXPECT_EQ(17, copy->nOffset);
    EXPECT_EQ(3, copy->nBand);
    EXPECT_EQ(nullptr, Copied(copy->pCtl));
    EXPECT_EQ(nullptr, HGFldDup(nullptr));
}

TEST(FieldCompare, ANullCaptionEqualsOnlyANullCaption)
{
    const FieldPtr none(AnyField(nullptr, 's', 's', 5));
    const FieldPtr other(AnyField(nullptr, 's', 's', 5));
    const FieldPtr empty(AnyField("", 's', 's', 5));
    EXPECT_EQ(0, HGFldCompare(none.get(), other.get()));
    EXPECT_NE(0, HGFldCompare(none.get(), empty.get()));
    EXPECT_NE(0, HGFldCompare(empty.get(), none.get()));
}

TEST(FixOffsets, WithoutColumnsGivesRowsOfNoBytes)
{
    const GridPtr grid = EmptyGrid();
    grid->pRows->cbItem = 12;
    HGFixOffsets(grid.get());
    EXPECT_EQ(0, grid->pRows->cbItem);
    HGFixOffsets(nullptr);
}

TEST(FixOffsets, LaysValuesInStorageOrderAndFlagsBehind)
{
    const GridPtr grid = GridOf({ Text("a", 5), Number("b"), Text("c", 3) }, HGS_COLMAP);
    HGMoveFld(grid.get(), 2, 0); // storage stays a, b, c
    EXPECT_EQ(9, HGGetField(grid.get(), 0)->nOffset);
    EXPECT_EQ(0, HGGetField(grid.get(), 1)->nOffset);
    EXPECT_EQ(5, HGGetField(grid.get(), 2)->nOffset);
    EXPECT_EQ(5 + 4 + 3 + 3 * 2, grid->pRows->cbItem);
}

TEST(FixOffsets, GrowsRowsThatBecameTooShort)
{
    const GridPtr grid = GridOf({ Text("a", 5), Text("b", 5) }, 0, 2);
    SetText(grid.get(), 0, 1, "left");
    HGGetField(grid.get(), 0)->cbSize = 50;
    HGFixOffsets(grid.get());
    EXPECT_EQ(59, grid->pRows->cbItem);
    EXPECT_EQ(50, HGGetField(grid.get(), 1)->nOffset);
    EXPECT_EQ("left", TextAt(grid.get(), 0, 1));
    SetText(grid.get(), 1, 1, "text"); // within the row, or the guard says so
}

TEST(FixOffsets, KeepsTheLayoutIfTheRowsCannotGrow)
{
    const GridPtr grid = GridOf({ Text("a", 5), Text("b", 5) }, 0, 2);
    HGGetField(grid.get(), 0)->cbSize = 50;
    FailAllocation(2);
    HGFixOffsets(grid.get());
    FailAllocation(0);
    EXPECT_EQ(14, grid->pRows->cbItem);
    EXPECT_EQ(5, HGGetField(grid.get(), 1)->nOffset);
}

TEST(FieldMap, IsMadeOnceAndLeavesTheStyle)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b") });
    EXPECT_EQ(1, HGCreateFldMap(grid.get()));
    EXPECT_EQ(4, grid->pFieldMap->cbItem);
    EXPECT_EQ((std::vector<int>{ 0, 1 }), MapEntries(grid.get()));
    EXPECT_EQ(0u, grid->dwStyle & HGS_COLMAP);
    EXPECT_EQ(0, HGCreateFldMap(grid.get()));
    EXPECT_EQ(0, HGCreateFldMap(nullptr));
}

TEST(FieldMap, WithoutMemoryIsNotMade)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b") });
    const int     live = LiveBlocks();
    for (int n = 1; n <= 3; n++) {
        FailAllocation(n);
        EXPECT_EQ(0, HGCreateFldMap(grid.get())) << n;
        EXPECT_EQ(nullptr, Copied(grid->pFieldMap)) << n;
    }
    FailAllocation(0);
    EXPECT_EQ(live, LiveBlocks());
}

TEST(Scaling, LeavesSizesAloneWhileTheSwitchIsOff)
{
    const int before = fDpiScaling;
    fDpiScaling = 0;
    EXPECT_EQ(100, HGScaleX(100));
    EXPECT_EQ(100, HGScaleY(100));
    EXPECT_EQ(100, HGUnscaleX(100));
    EXPECT_EQ(100, HGUnscaleY(100));
    fDpiScaling = before;
}

TEST(FieldCreate, TakesTheSizeOfAMaskedCodeFromTheFormat)
{
    const FieldPtr field(HGFieldCreate("a", HFF_CODE, 50, 50, 'n', 'd', 'm', 's', 99, 'l', 0, "##-##", 0));
    EXPECT_EQ(6, field->cbSize);
}

TEST(FieldCreate, CutsHeightAndBandToTheirFields)
{
    const FieldPtr field(HGFieldCreate("a", 0, 50, 40000, 'n', 'd', 0, 0, 0, 'e', 0, "", 200));
    EXPECT_EQ(40000 - 65536, field->nHeight);
    EXPECT_EQ(200 - 256, field->nBand);
}

} // namespace
