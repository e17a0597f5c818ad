// Lists through the DLL: each exported function.
#include "support/window_test.h"

namespace {

class DllListControl : public WindowTest {
protected:
    DllListControl() : list(Create("HList", "%ni%nl", HLS_EXTSEL)), ctl(RecordOf<ControlHeader>(list)) {}
    void Fill() { ASSERT_EQ(3, HLAddItemsEx(list, 3, data, codes)); }
    int  DataAt(int index) const
    {
        int value = -1;
        HLGetData(list, index, &value);
        return value;
    }

    static constexpr int  data[] = { 10, 20, 30 };
    static constexpr LONG codes[] = { 1, 2, 3 };
    HWND                  list;
    ControlHeader*        ctl;
};

TEST_F(DllListControl, TakesItemsAtEachPlace)
{
    EXPECT_EQ(0, HLAddItem(list, &data[0]));
    EXPECT_EQ(1, HLAddItemEx(list, &data[1], &codes[1]));
    EXPECT_EQ(0, HLInsertItem(list, 0, &data[2]));
    EXPECT_EQ(1, HLInsertItemEx(list, 1, &data[1], &codes[1]));
    EXPECT_EQ(3, HLAddItems(list, 3, data));
    EXPECT_EQ(3, HLInsertItems(list, 0, 3, data));
    EXPECT_EQ(3, HLInsertItemsEx(list, 0, 3, data, codes));
    EXPECT_EQ(0, HLInsertStringEx(list, 0, "77", "9"));
    EXPECT_EQ(77, DataAt(0));
    EXPECT_EQ(14, Send(list, HLM_GETCOUNT));
}

TEST_F(DllListControl, FindsReadsAndChangesItems)
{
    Fill();
    EXPECT_EQ(1, HLFindData(list, 0, &data[1]));
    EXPECT_EQ(2, HLFindCode(list, 0, &codes[2]));
    LONG code = 5;
    EXPECT_EQ(1, HLSetCode(list, 0, &code));
    code = 0;
    EXPECT_EQ(1, HLGetCode(list, 0, &code));
    EXPECT_EQ(5, code);
    int values[3] = {};
    EXPECT_EQ(3, HLGetItems(list, 0, 1, values, HLI_ALL, values));
    EXPECT_EQ(30, values[2]);
}

TEST_F(DllListControl, DeletesItems)
{
    Fill();
    EXPECT_EQ(1, HLDeleteItem(list, 1));
    EXPECT_EQ(30, DataAt(1));
    EXPECT_EQ(1, HLDeleteItems(list, HLI_BYDATA, 1, &data[0]));
    EXPECT_EQ(1, HLEmptyList(list));
    EXPECT_EQ(0, Send(list, HLM_GETCOUNT));
}

TEST_F(DllListControl, SelectsItems)
{
    Fill();
    EXPECT_EQ(1, HLSelectItem(list, 0, HLSEL_SET));
    EXPECT_EQ(1, HLIsSelected(list, 0));
    EXPECT_EQ(1, HLSelectData(list, &data[1], HLSEL_SET));
    EXPECT_EQ(1, HLSelectCode(list, &codes[2], HLSEL_SET));
    EXPECT_EQ(3, Send(list, HLM_GETSELCOUNT));
    EXPECT_EQ(3, HLSelectItems(list, HLSEL_CLEAR, HLI_ALL, 0, nullptr));
    EXPECT_EQ(0, Send(list, HLM_GETSELCOUNT));
}

TEST_F(DllListControl, MirrorsItsCurrentItem)
{
    const HWND single = Create("HList", "%ni%nl");
    HLAddItemsEx(single, 3, data, codes);
    int  value = 20;
    LONG code = 3;
    EXPECT_EQ(1, HLSetDataLink(single, &value, 1));
    EXPECT_EQ(1, Send(single, HLM_GETCURRENT));
    EXPECT_EQ(1, HLSetCodeLink(single, &code, 0));
    EXPECT_EQ(2, code) << "the current item's";
}

TEST_F(DllListControl, SharesItsItems)
{
    Fill();
    const HWND other = Create("HList", "%ss");
    EXPECT_EQ(1, HLSetList(other, HLGetList(list)));
    EXPECT_EQ(3, Send(other, HLM_GETCOUNT));
    DestroyWindow(other);
    EXPECT_EQ(20, DataAt(1));
}

TEST_F(DllListControl, ProceduresCanBeCalledByAHost)
{
    Fill();
    int wantsDefault = 0;
    EXPECT_EQ(3, HListWnd(list, HLM_GETCOUNT, 0, 0));
    EXPECT_EQ(3, HListMsgHandler(list, HLM_GETCOUNT, 0, 0, &wantsDefault, ctl));
    EXPECT_EQ(0, wantsDefault);
}

} // namespace
