// Records as text.
#include "support/dump.h"

#include "foundation/item_list.h"

#include <gtest/gtest.h>

namespace {

TEST(DumpList, ShowsTextsAndCursor)
{
    HLList* const list = HLListCreate(-1, nullptr, nullptr, nullptr, nullptr, nullptr, 1);
    HLListAdd(list, "one");
    HLListAdd(list, "two");
    HLListGetItem(list, 1);
    EXPECT_EQ("list of 2, item size -1, flags 0001, cursor at 1\n  0: \"one\"\n  1: \"two\" <- cursor\n",
              DumpList(list));
    HLListDestroy(list);
}

TEST(DumpList, SaysThatARingIsBroken)
{
    HLList* const list = HLListCreate(1, nullptr, nullptr, nullptr, nullptr, nullptr, 0);
    const BYTE    bytes[] = { 0x0A, 0xF0 };
    HLListAppend(list, &bytes[0]);
    HLListAppend(list, &bytes[1]);
    HSetNodeLink(list->pTail, list->pTail);
    EXPECT_EQ("list of 2, item size 1, flags 0000, cursor at 0\n  0: 0A <- cursor\n  1: F0\n  the ring isn't closed\n",
              DumpList(list));
    HSetNodeLink(list->pTail, list->pHead);
    HLListDestroy(list);
}

TEST(DumpList, TakesNull)
{
    EXPECT_EQ("no list\n", DumpList(nullptr));
    EXPECT_EQ("no grid\n", DumpGrid(nullptr));
}

TEST(DumpGrid, ShowsColumns)
{
    HGridData* const grid = HGridCreate("title", 0, 0, 0, 20, 45, 20, 0);
    ASSERT_NE(nullptr, grid);
    HGInsertFld(grid, HGFieldCreate("Name", 0, 80, 0, 's', 's', 0, 0, 11, 'e', 0, nullptr, 0), 0);
    const std::string text = DumpGrid(grid);
    EXPECT_NE(std::string::npos, text.find("title \"title\"")) << text;
    EXPECT_NE(std::string::npos, text.find("col 0: pos 0 offset 0 size 11 %ss %-- kind e")) << text;
    EXPECT_NE(std::string::npos, text.find("title \"Name\" format \"\"")) << text;
    HGridDestroy(grid);
}

} // namespace
