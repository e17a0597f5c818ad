// Which items are selected: the modes, the index rules, links and the current item that is held by its code.
#include "list_window.h"

#include <climits>

namespace {

class ListSelect : public ListWindow {};

constexpr DWORD single = 0;
constexpr DWORD multiple = HLS_MULTISEL;
constexpr DWORD extended = HLS_EXTSEL;

TEST_F(ListSelect, SelectItemOfSingleSelectionLeavesTheCurrentItem)
{
    Make("%ni", single);
    AddNumbers({ 1, 2, 3 });
    Send(HLM_SETCURRENT, 1);
    EXPECT_EQ(1, HLSelectItem(list, 2, HLSEL_SET));
    EXPECT_EQ(0, HLSelectItem(list, 1, HLSEL_SET));
    EXPECT_EQ(1, HLSelectItem(list, 1, HLSEL_CLEAR));
    EXPECT_EQ(1, HLSelectItem(list, 0, HLSEL_TOGGLE));
    EXPECT_EQ(1, Current());
    EXPECT_EQ(1, HLIsSelected(list, 1));
    EXPECT_EQ(0, HLIsSelected(list, 2));
}

TEST_F(ListSelect, SelectItemTellsWhetherAnythingChanged)
{
    struct Row {
        int  index;
        int  mode;
        int  result;
        Ints left;
    };
    const Row rows[] = {
        { 1, HLSEL_SET, 1, { 1 } },    { 1, HLSEL_SET, 0, { 1 } },   { 0, HLSEL_TOGGLE, 1, { 0, 1 } },
        { 1, HLSEL_TOGGLE, 1, { 0 } }, { 2, HLSEL_CLEAR, 0, { 0 } }, { 0, HLSEL_CLEAR, 1, {} },
        { 3, HLSEL_SET, 0, {} },       { -1, HLSEL_SET, 0, {} },     { 1, 9, 0, {} },
    };
    for (const DWORD style : { multiple, extended }) {
        Make("%ni", style);
        AddNumbers({ 1, 2, 3 });
        for (const Row& row : rows) {
            EXPECT_EQ(row.result, HLSelectItem(list, row.index, row.mode)) << row.index << " mode " << row.mode;
            EXPECT_EQ(row.left, Selected()) << row.index << " mode " << row.mode;
        }
    }
}

TEST_F(ListSelect, SelectItemsVisitsOneItemWithSingleSelection)
{
    Make("%ni", single);
    AddNumbers({ 1, 2, 3 });
    const int indexes[] = { 0, 2 };
    EXPECT_EQ(1, HLSelectItems(list, HLSEL_SET, HLI_BYINDEX, 2, indexes));
    EXPECT_EQ(0, HLSelectItems(list, HLSEL_SET, HLI_BYINDEX, 0, indexes));
    Make("%ni", multiple);
    AddNumbers({ 1, 2, 3 });
    EXPECT_EQ(2, HLSelectItems(list, HLSEL_SET, HLI_BYINDEX, 2, indexes));
    EXPECT_EQ((Ints{ 0, 2 }), Selected());
    EXPECT_EQ(1, HLSelectItems(list, HLSEL_SET, HLI_UNSELECTED, 0, nullptr));
    EXPECT_EQ((Ints{ 0, 1, 2 }), Selected());
}

TEST_F(ListSelect, IndexOfNoItemIsVisitedAndNotSelected)
{
    Make("%ni", multiple);
    AddNumbers({ 1, 2, 3 });
    const int indexes[] = { 1, 3, 99, INT_MAX };
    EXPECT_EQ(4, HLSelectItems(list, HLSEL_SET, HLI_BYINDEX, 4, indexes));
    EXPECT_EQ((Ints{ 1 }), Selected());
    EXPECT_EQ(4, HLSelectItems(list, HLSEL_TOGGLE, HLI_BYINDEX, 4, indexes));
    EXPECT_EQ(Ints{}, Selected());
}

TEST_F(ListSelect, ValuesAndCodesSelectTheFirstItemThatHasThem)
{
    Make("%ni%ss", multiple);
    const int         values[] = { 10, 20, 10, 30 };
    const char* const codes[] = { "a", "b", "c", "b" };
    ASSERT_EQ(4, HLAddItemsEx(list, 4, values, codes));
    const int wanted[] = { 30, 77, 10 };
    EXPECT_EQ(2, HLSelectItems(list, HLSEL_SET, HLI_BYDATA, 3, wanted));
    EXPECT_EQ((Ints{ 0, 3 }), Selected());
    const char* const wantedCodes[] = { "b", "none", "a" };
    EXPECT_EQ(2, HLSelectItems(list, HLSEL_TOGGLE, HLI_BYCODE, 3, wantedCodes));
    EXPECT_EQ((Ints{ 1, 3 }), Selected());
}

TEST_F(ListSelect, SelectDataMovesTheCurrentItemWithSingleSelection)
{
    Make("%ni%ni", single);
    AddNumbers({ 10, 20 }, { 1, 2 });
    const int data = 20;
    const int code = 1;
    const int none = 99;
    EXPECT_EQ(1, HLSelectData(list, &data, HLSEL_SET));
    EXPECT_EQ(1, Current());
    EXPECT_EQ(1, HLSelectCode(list, &code, HLSEL_SET));
    EXPECT_EQ(0, Current());
    EXPECT_FALSE(Ctl()->wFlags & CF_NULL);
    EXPECT_EQ(0, HLSelectData(list, &none, HLSEL_SET));
    EXPECT_EQ(-1, Current());
    EXPECT_TRUE(Ctl()->wFlags & CF_NULL);
}

TEST_F(ListSelect, DataThatIsNotFoundEntersAMultipleSelection)
{
    Make("%ni", multiple);
    AddNumbers({ 10, 20 });
    const int none = 99;
    EXPECT_EQ(1, HLSelectData(list, &none, HLSEL_SET));
    EXPECT_EQ(1, Send(HLM_GETSELCOUNT));
    EXPECT_EQ(0, HLIsSelected(list, -1));
    EXPECT_EQ((Ints{ -1 }), Selected());
}

TEST_F(ListSelect, RangeIsLimitedAndTurnedRound)
{
    Make("%ni", multiple);
    AddNumbers({ 1, 2, 3, 4 });
    EXPECT_EQ(1, Send(HLM_SELECTRANGE, HLSEL_SET, MAKELPARAM(2, 1)));
    EXPECT_EQ((Ints{ 1, 2 }), Selected());
    EXPECT_EQ(1, Send(HLM_SELECTRANGE, HLSEL_SET, MAKELPARAM(1, 9)));
    EXPECT_EQ((Ints{ 1, 2, 3 }), Selected());
    EXPECT_EQ(1, Send(HLM_SELECTRANGE, HLSEL_TOGGLE, MAKELPARAM(0, 1)));
    EXPECT_EQ((Ints{ 0, 2, 3 }), Selected());
}

TEST_F(ListSelect, RangeThatChangesNothingGivesMinusFour)
{
    Make("%ni", multiple);
    AddNumbers({ 1, 2, 3 });
    Select({ 0, 1, 2 });
    EXPECT_EQ(-4, Send(HLM_SELECTRANGE, HLSEL_SET, MAKELPARAM(0, 2)));
    EXPECT_EQ(1, Send(HLM_SELECTRANGE, HLSEL_CLEAR, MAKELPARAM(0, 2)));
    EXPECT_EQ(-4, Send(HLM_SELECTRANGE, HLSEL_CLEAR, MAKELPARAM(0, 2)));
}

TEST_F(ListSelect, RangeEndsTheRedrawBatch)
{
    Make("%ni", multiple);
    AddNumbers({ 1, 2, 3 });
    Send(HLM_SETREDRAW, 0);
    Send(HLM_SELECTRANGE, HLSEL_SET, MAKELPARAM(0, 2));
    EXPECT_FALSE(Ctl()->wFlags & HLF_NOREDRAW);
}

TEST_F(ListSelect, NewListHasNoCurrentItemOnlyWithSingleSelection)
{
    Make("%ni", single);
    EXPECT_EQ(-1, Current());
    EXPECT_TRUE(Ctl()->wFlags & CF_NULL);
    Make("%ni", multiple);
    EXPECT_EQ(0, Current());
    Make("%ni", extended | multiple);
    EXPECT_EQ(0, Current());
    EXPECT_FALSE(Send(HLM_GETSTYLE) & HLS_MULTISEL);
}

TEST_F(ListSelect, LinksMirrorTheCurrentItem)
{
    Make("%ni%ni");
    AddNumbers({ 10, 20 }, { 1, 2 });
    int data = 77;
    int code = 88;
    EXPECT_EQ(1, HLSetDataLink(list, &data, 0));
    EXPECT_EQ(1, HLSetCodeLink(list, &code, 0));
    EXPECT_EQ(77, data) << "without a current item the buffers stay";
    Send(HLM_SETCURRENT, 1);
    EXPECT_EQ(20, data);
    EXPECT_EQ(2, code);
    Send(HLM_SETCURRENT, static_cast<WPARAM>(-1));
    EXPECT_EQ(20, data);
    HLSetDataLink(list, nullptr, 0);
    HLSetCodeLink(list, nullptr, 0);
}

TEST_F(ListSelect, LinkMayAdoptTheValueOfItsBuffer)
{
    Make("%ni%ni");
    AddNumbers({ 10, 20 }, { 1, 2 });
    int data = 20;
    EXPECT_EQ(1, HLSetDataLink(list, &data, 1));
    EXPECT_EQ(1, Current());
    int code = 1;
    EXPECT_EQ(1, HLSetCodeLink(list, &code, 1));
    EXPECT_EQ(0, Current());
    EXPECT_EQ(10, data);
}

TEST_F(ListSelect, CurrentItemFollowsItsCode)
{
    Make("%ni%ni", HLS_CODECURRENT | HLS_SORTDATA);
    AddNumbers({ 10, 20, 30 }, { 1, 2, 3 });
    Send(HLM_SETCURRENT, 1);
    AddNumbers({ 5, 6 }, { 4, 5 });
    EXPECT_EQ(3, Current());
    const int code = 2;
    HLDeleteItems(list, HLI_BYCODE, 1, &code);
    EXPECT_EQ(-1, Current()) << "its item is gone";
}

TEST_F(ListSelect, CurrentItemIsFoundAgainAfterAReload)
{
    Make("%ni%ni", HLS_CODECURRENT);
    AddNumbers({ 10, 20, 30 }, { 1, 2, 3 });
    Send(HLM_SETCURRENT, 2);
    HLEmptyList(list);
    AddNumbers({ 30, 10 }, { 3, 1 });
    EXPECT_EQ(0, Current());
}

TEST_F(ListSelect, StyleToHoldTheCodeNeedsANumberOrATypeL)
{
    struct Row {
        const char* text;
        bool        kept;
    };
    const Row rows[] = { { "%ss%ni", true },  { "%ss%nW", true }, { "%ss%dl", true }, { "%ss%ti", false },
                         { "%ss%ss", false }, { "%ss", false },   { "%ss%hh", false } };
    for (const Row& row : rows) {
        Make(row.text, HLS_CODECURRENT);
        EXPECT_EQ(row.kept, (Send(HLM_GETSTYLE) & HLS_CODECURRENT) != 0) << row.text;
    }
}

TEST_F(ListSelect, CurrentItemThatGoesLeavesTheNullValue)
{
    struct Row {
        const char*           what;
        DWORD                 style;
        std::function<void()> work;
    };
    const int code = 1;
    const Row rows[] = {
        { "one deletion", 0, [&] { HLDeleteItem(list, 0); } },
        { "many deletions", 0, [&] { HLDeleteItems(list, HLI_ALL, 0, nullptr); } },
        { "by its code", HLS_CODECURRENT, [&] { HLDeleteItems(list, HLI_BYCODE, 1, &code); } },
        { "a reload", HLS_CODECURRENT, [&] { HLEmptyList(list); } },
    };
    for (const Row& row : rows) {
        Make("%ni%ni", row.style);
        AddNumbers({ 10, 20 }, { 1, 2 });
        Send(HLM_SETCURRENT, 0);
        EXPECT_EQ(0, Send(WWM_ISNULL)) << row.what;
        row.work();
        EXPECT_EQ(1, Send(WWM_ISNULL)) << row.what;
        EXPECT_EQ(-1, Current()) << row.what;
        Make("%ni%ni", row.style | multiple);
        AddNumbers({ 10, 20 }, { 1, 2 });
        row.work();
        EXPECT_EQ(-1, Current()) << row.what;
        EXPECT_EQ(0, Send(WWM_ISNULL)) << row.what << ", multiple selection";
    }
}

TEST_F(ListSelect, CodeThatIsNotFoundEntersAMultipleSelection)
{
    Make("%ni%ni", multiple);
    AddNumbers({ 10, 20 }, { 1, 2 });
    const int none = 99;
    EXPECT_EQ(1, HLSelectCode(list, &none, HLSEL_TOGGLE));
    EXPECT_EQ((Ints{ -1 }), Selected());
}

TEST_F(ListSelect, FocusedFieldIsNotToldToChangeByClearing)
{
    Make("%ni", HLS_FIELD | HLS_NOSCROLL, 100, 24);
    AddNumbers({ 1, 2 });
    Send(HLM_SETCURRENT, 1);
    EXPECT_EQ(1, HLSelectItem(list, 1, HLSEL_CLEAR));
    Focus();
    EXPECT_EQ(0, HLSelectItem(list, 1, HLSEL_CLEAR));
}

TEST_F(ListSelect, SelectItemsVisitsAllItemsOfSingleSelectionWhereItCountsNone)
{
    Make("%ni", single);
    AddNumbers({ 1, 2, 3 });
    Send(HLM_SETCURRENT, 0);
    EXPECT_EQ(3, HLSelectItems(list, HLSEL_SET, HLI_ALL, 0, nullptr));
    EXPECT_EQ(2, HLSelectItems(list, HLSEL_SET, HLI_UNSELECTED, 0, nullptr));
    EXPECT_EQ(0, Current());
}

} // namespace
