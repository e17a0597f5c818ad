// The stash: keys, names of twelve characters, ownership, and the word beside it.
#include "griddata/grid_maker.h"

namespace {

class Stash : public testing::Test {
protected:
    Stash() { HGCreateStash(); }
    ~Stash() override
    {
        HLListDestroy(HGGetStash());
        FailAllocation(1); // without memory there is no stash again
        HGCreateStash();
        FailAllocation(0);
    }
    static HGridData* Grid(const char* title = "x") { return EmptyGrid(0, title).release(); }
};

TEST(StashBefore, ThereIsNoneUntilAHostMakesOne)
{
    EXPECT_EQ(nullptr, HGGetStash());
    EXPECT_EQ(0u, HGGetFldStash());
    const int     live = LiveBlocks();
    const GridPtr grid = EmptyGrid();
    int           index = -7;
    EXPECT_EQ(-1, StashGrid(grid.get(), 1, "a", nullptr));
    EXPECT_EQ(nullptr, GetStashed(1, "a", &index));
    EXPECT_EQ(0, index);
    EXPECT_EQ(0, RemoveStashed(1, "a"));
    EXPECT_EQ(live + 4, LiveBlocks()) << "the grid, its two lists and its title";
}

TEST_F(Stash, FindsNamesWithoutCaseAndKeysExactly)
{
    HGridData* const grid = Grid();
    EXPECT_EQ(0, StashGrid(grid, 1, "abc", nullptr));
    int index = -7;
    const HGStash* const found = GetStashed(1, "ABC", &index);
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(0, index);
    EXPECT_EQ(grid, found->pGrid);
    EXPECT_EQ(1u, found->dwKey);
    EXPECT_EQ(0u, found->dwReserved);
    EXPECT_EQ(0, found->chFiller);
    EXPECT_STREQ("abc", found->szName);
    EXPECT_EQ(nullptr, GetStashed(2, "ABC", &index));
    EXPECT_EQ(nullptr, GetStashed(1, "ABCD", &index));
    EXPECT_EQ(0, index);
}

TEST_F(Stash, StoresTwelveCharactersOfAName)
{
    StashGrid(Grid(), 1, "abcdefghijklmnopqrst", nullptr);
    const HGStash* const found = GetStashed(1, "abcdefghijklmnopqrst", nullptr);
    ASSERT_NE(nullptr, found);
    EXPECT_STREQ("abcdefghijkl", found->szName);
    EXPECT_EQ(found, GetStashed(1, "abcdefghijkl", nullptr));
    EXPECT_EQ(found, GetStashed(1, "ABCDEFGHIJKLxyz", nullptr));
    EXPECT_EQ(nullptr, GetStashed(1, "abcdefghijk", nullptr));
}

TEST_F(Stash, FindsAShortNameUnderALongerOneOfTwelve)
{
    StashGrid(Grid(), 1, "abcdefghijkl", nullptr);
    EXPECT_NE(nullptr, GetStashed(1, "abcdefghijklm", nullptr));
}

TEST_F(Stash, KeepsTheFileStructure)
{
    OFSTRUCT ofs = {};
    ofs.nErrCode = 17;
    std::strcpy(ofs.szPathName, "C:\\A.GRS");
    StashGrid(Grid(), 1, "a", &ofs);
    StashGrid(Grid(), 1, "b", nullptr);
    EXPECT_EQ(0, std::memcmp(&ofs, GetStashed(1, "a", nullptr)->ofs, sizeof ofs));
    const OFSTRUCT zeros = {};
    EXPECT_EQ(0, std::memcmp(&zeros, GetStashed(1, "b", nullptr)->ofs, sizeof zeros));
}

TEST_F(Stash, RemovingDestroysTheGrid)
{
    const int live = LiveBlocks();
    StashGrid(Grid(), 1, "a", nullptr);
    EXPECT_EQ(1, RemoveStashed(1, "A"));
    EXPECT_EQ(live, LiveBlocks());
    EXPECT_EQ(0, RemoveStashed(1, "A"));
}

TEST_F(Stash, TakesTheSameKeyTwiceAndRemovesTheFirst)
{
    HGridData* const first = Grid("first");
    HGridData* const second = Grid("second");
    EXPECT_EQ(0, StashGrid(first, 5, "a", nullptr));
    EXPECT_EQ(1, StashGrid(second, 5, "a", nullptr));
    EXPECT_EQ(first, GetStashed(5, "a", nullptr)->pGrid);
    EXPECT_EQ(1, RemoveStashed(5, "a"));
    EXPECT_EQ(second, GetStashed(5, "a", nullptr)->pGrid);
}

TEST_F(Stash, KeepsTheOrderOfArrival)
{
    StashGrid(Grid(), 9, "z", nullptr);
    StashGrid(Grid(), 1, "a", nullptr);
    int index = -7;
    GetStashed(1, "a", &index);
    EXPECT_EQ(1, index);
}

TEST_F(Stash, TellsIndexZeroForAnEmptyStash)
{
    int index = -7;
    EXPECT_EQ(nullptr, GetStashed(1, "ABC", &index));
    EXPECT_EQ(0, index);
}

TEST_F(Stash, OrdersKeysWithoutASign)
{
    HLList* const stash = HGGetStash();
    StashGrid(Grid(), 0x80000000, "a", nullptr);
    HGStash key = {};
    key.dwKey = 1;
    EXPECT_EQ(-1, stash->pfnCompare(stash, &key, stash->pHead));
    key.dwKey = 0xFFFFFFFF;
    EXPECT_EQ(1, stash->pfnCompare(stash, &key, stash->pHead));
}

TEST_F(Stash, GivesCopiesAsItems)
{
    HLList* const stash = HGGetStash();
    HGridData*    grid = Grid();
    StashGrid(grid, 1, "a", nullptr);
    const GridPtr copy(static_cast<HGridData*>(stash->pfnItem(stash, stash->pHead)));
    ASSERT_NE(nullptr, copy);
    EXPECT_NE(grid, copy.get());
    EXPECT_EQ(0, HGridChanged(grid, copy.get()));
    EXPECT_EQ(nullptr, stash->pfnItem(stash, nullptr));
    EXPECT_EQ(0, stash->pfnFree(stash, nullptr));
}

TEST_F(Stash, WithoutMemoryLeavesTheGridToItsOwner)
{
    const GridPtr grid = EmptyGrid();
    FailAllocation(1);
    EXPECT_EQ(-1, StashGrid(grid.get(), 1, "a", nullptr));
    FailAllocation(0);
    EXPECT_EQ(nullptr, GetStashed(1, "a", nullptr));
}

TEST_F(Stash, KeepsOneWordForTheHost)
{
    EXPECT_EQ(5u, HGStashFld(5));
    EXPECT_EQ(5u, HGGetFldStash());
    HGStashFld(0);
}

TEST_F(Stash, MadeOnceMoreIsANewOneAndTheOldOneStays)
{
    HGridData* const grid = Grid();
    StashGrid(grid, 1, "a", nullptr);
    HLList* const old = HGGetStash();
    HLList* const made = HGCreateStash();
    EXPECT_EQ(made, HGGetStash());
    EXPECT_NE(old, made);
    EXPECT_EQ(0, HLListCount(made));
    EXPECT_EQ(1, HLListCount(old));
    EXPECT_STREQ("x", grid->pszTitle);
    HLListDestroy(old);
}

} // namespace
