// Items of a combo: the exported functions, items shared by lists, and the list that is parked.
#include "combo_window.h"
#include "support/block_leaks.h"

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT;
constexpr DWORD fields = HCS_DROPDOWN;

class ComboItems : public ComboWindow {
protected:
    Texts All() const
    {
        Texts texts;
        for (int i = 0; i < Count(); ++i) {
            texts.push_back(ItemText(i));
        }
        return texts;
    }
};

TEST_F(ComboItems, AreAddedAndInsertedByEachFunction)
{
    Make("%120%ss%ni", fields);
    const char* const texts[] = { "a", "b" };
    const int         codes[] = { 1, 2 };
    EXPECT_EQ(0, HCAddItemEx(combo, "c", &codes[0]));
    EXPECT_EQ(2, HCAddItems(combo, 2, texts));
    EXPECT_EQ(2, HCAddItemsEx(combo, 2, texts, codes));
    EXPECT_EQ(1, HCInsertItemEx(combo, 1, "d", &codes[1]));
    EXPECT_EQ(2, HCInsertItems(combo, 0, 2, texts));
    EXPECT_EQ(2, HCInsertItemsEx(combo, 0, 2, texts, codes));
    EXPECT_EQ(0, HCInsertStringEx(combo, 0, "e", "9"));
    EXPECT_EQ((Texts{ "e", "a", "b", "a", "b", "c", "d", "a", "b", "a", "b" }), All());
    int code = 0;
    SendPtr(HLM_GETCODE, 0, &code);
    EXPECT_EQ(9, code);
    SendPtr(HLM_GETCODE, 2, &code);
    EXPECT_EQ(2, code);
}

TEST_F(ComboItems, AreDeletedAndFetched)
{
    Make("%120%ni%ni", fields);
    AddNumbers({ 10, 20, 30 }, { 1, 2, 3 });
    const int which[] = { 0, 2 };
    int       values[3] = {};
    EXPECT_EQ(2, HCGetItems(combo, 2, 1, values, HLI_BYINDEX, which));
    EXPECT_EQ(10, values[0]);
    EXPECT_EQ(30, values[1]);
    const int code = 2;
    EXPECT_EQ(1, HCDeleteItems(combo, HLI_BYCODE, 1, &code));
    EXPECT_EQ((Texts{ "10", "30" }), All());
}

TEST_F(ComboItems, FunctionsGiveNothingWithoutAList)
{
    Make("%ss", fields);
    const char* const texts[] = { "a" };
    char              out[8];
    EXPECT_EQ(-1, HCAddItemEx(combo, "a", nullptr));
    EXPECT_EQ(-1, HCAddItems(combo, 1, texts));
    EXPECT_EQ(-1, HCAddItemsEx(combo, 1, texts, nullptr));
    EXPECT_EQ(-1, HCInsertItemEx(combo, 0, "a", nullptr));
    EXPECT_EQ(-1, HCInsertItems(combo, 0, 1, texts));
    EXPECT_EQ(-1, HCInsertItemsEx(combo, 0, 1, texts, nullptr));
    EXPECT_EQ(-1, HCInsertStringEx(combo, 0, "a", nullptr));
    EXPECT_EQ(-1, HCGetItems(combo, 1, 1, out, HLI_ALL, out));
    EXPECT_EQ(0, HCDeleteItems(combo, HLI_ALL, 0, nullptr));
    EXPECT_EQ(nullptr, HCGetList(combo));
    DataList list = {};
    EXPECT_EQ(0, HCSetList(combo, &list));
}

TEST_F(ComboItems, FaceFollowsAChangeOfItems)
{
    Make("%120%ss", edits);
    Add({ "a", "b" });
    Send(CB_SETCURSEL, 1);
    EXPECT_EQ("b", Text());
    const int first = 0;
    HCDeleteItems(combo, HLI_BYINDEX, 1, &first);
    EXPECT_EQ("b", Text());
    HCDeleteItems(combo, HLI_BYINDEX, 1, &first);
    EXPECT_EQ("", Text()) << "no item, no text";
    SendPtr(WM_SETTEXT, 0, "typed");
    HCAddItemEx(combo, "c", nullptr);
    EXPECT_EQ("typed", Text()) << "a list that had no current item and has none takes nothing from the edit";
}

// Remembering what was typed, suggesting items for it, and reading them.
TEST_F(ComboItems, TypedTextStaysWhenItemsAreAddedAndRead)
{
    const char* const suggestions[] = { "Zug", "Zollikon" };
    char              first[128];
    Make("%120%ss", edits | HCS_3DBORDER);
    Focus();
    Type("Zurich");
    HCAddItems(combo, 2, suggestions);
    EXPECT_EQ("Zurich", Text());
    HCGetItems(combo, 1, 1, first, HLI_ALL, nullptr);
    EXPECT_EQ("Zurich", Text());
    HCAddItemEx(combo, Text().c_str(), nullptr);
    EXPECT_EQ("Zurich", Text());
}

TEST_F(ComboItems, FieldShowsTheListsItems)
{
    Make("%120%ss", fields);
    Add({ "a", "b" });
    EXPECT_EQ(2, ToFace(HLM_GETCOUNT));
    EXPECT_EQ(Ctl()->pDrop->items.pValues, RecordOf<HListCtl>(Face())->items.pValues);
}

// The field's item by its index, by what it paints first, and by its text.
class ComboFieldItems : public ComboItems {
protected:
    void ExpectShown(int index, const std::string& text, const char* when) const
    {
        EXPECT_EQ(index, Current()) << when;
        EXPECT_EQ(index, FieldCurrent()) << when;
        EXPECT_EQ(index, RecordOf<HListCtl>(Face())->nTop) << when;
        EXPECT_EQ(text, Text()) << when;
    }
};

TEST_F(ComboFieldItems, FieldKeepsItsItemWhenOthersComeAndGoInFrontOfIt)
{
    Make("%120%ss", fields);
    Add({ "b", "c", "d" });
    Send(CB_SETCURSEL, 1);
    SendPtr(CB_INSERTSTRING, 0, "a");
    ExpectShown(2, "c", "inserted in front");
    SendPtr(CB_INSERTSTRING, 3, "cc");
    ExpectShown(2, "c", "inserted behind");
    Send(CB_DELETESTRING, 0);
    ExpectShown(1, "c", "deleted in front");
    Send(CB_DELETESTRING, 3);
    ExpectShown(1, "c", "deleted behind");
    EXPECT_EQ(Ints(), Told()) << "a host that changes the items isn't told of it";
}

TEST_F(ComboFieldItems, FieldKeepsItsItemWhenOthersSortInFrontOfIt)
{
    Make("%120%ss", fields | HLS_SORTDATA);
    Add({ "m", "n" });
    SendPtr(CB_SELECTSTRING, static_cast<WPARAM>(-1), "m");
    Add({ "c", "b", "a" });
    ExpectShown(3, "m", "sorted");
}

TEST_F(ComboFieldItems, FieldShowsTheListsItemAfterItsOwnHasGone)
{
    Make("%120%ss", fields);
    Add({ "a", "b", "c", "d" });
    Send(CB_SETCURSEL, 3);
    Send(CB_DELETESTRING, 3);
    EXPECT_EQ(Current(), FieldCurrent());
    Send(CB_DELETESTRING, 2);
    EXPECT_EQ(Current(), FieldCurrent());
    EXPECT_EQ(Current() < 0 ? "" : ItemText(Current()), Text());
}

TEST_F(ComboFieldItems, RefilledFieldShowsTheListsItem)
{
    Make("%120%ss", fields);
    Add({ "a", "b", "c", "d" });
    Send(CB_SETCURSEL, 3);
    Send(CB_RESETCONTENT);
    Add({ "p", "q", "r", "s", "t" });
    EXPECT_EQ(Current(), FieldCurrent());
    EXPECT_EQ(Current() < 0 ? "" : ItemText(Current()), Text());
}

TEST_F(ComboFieldItems, ChangeByTheUserStaysOneWhenItemsComeInFront)
{
    Make("%120%ss", fields);
    Add({ "b", "c", "d" });
    Focus();
    Key(VK_DOWN);
    ASSERT_EQ(1, Send(WWM_GETCHANGED));
    SendPtr(CB_INSERTSTRING, 0, "a");
    EXPECT_EQ(1, Send(WWM_GETCHANGED));
}

TEST_F(ComboFieldItems, FieldOfAnotherTypeIsPaintedAnew)
{
    Make("%120%ss", fields);
    Add({ "a", "b" });
    Send(CB_SETCURSEL, 1);
    PumpPending();
    ValidateRect(Face(), nullptr);
    SendPtr(WM_SETTEXT, 0, "%ss");
    EXPECT_TRUE(GetUpdateRect(Face(), nullptr, FALSE));
}

TEST_F(ComboItems, AreSharedByTwoCombos)
{
    for (const DWORD style : { edits, fields, static_cast<DWORD>(0), static_cast<DWORD>(HCS_EDIT) }) {
        const BlockLeakCheck blocks;
        Make("%120%ss", fields);
        Add({ "a", "b" });
        const HWND owner = combo;
        combo = nullptr;
        Make("%120%ss", style, 160, 120);
        Add({ "old" });
        Send(CB_SETCURSEL, 0);
        EXPECT_EQ(1, SendPtr(HCM_SETLIST, 0, HCGetList(owner))) << style;
        EXPECT_EQ((Texts{ "a", "b" }), All()) << style;
        EXPECT_EQ(-1, Current()) << style;
        EXPECT_EQ("", Text()) << style;
        EXPECT_TRUE(Ctl()->pDrop->wFlags & HLF_SHAREDLIST) << style;
        Send(CB_SETCURSEL, 1);
        EXPECT_EQ("b", Text()) << style;
        Send(CB_SHOWDROPDOWN, TRUE);
        End();
        EXPECT_EQ(2, SendMessageA(owner, CB_GETCOUNT, 0, 0)) << "the owner's items outlive the one who borrows them";
        DestroyWindow(owner);
    }
}

TEST_F(ComboItems, BorrowedOnesGiveWayToOwnOnesByATypeText)
{
    const BlockLeakCheck blocks;
    Make("%120%ss", fields);
    Add({ "a", "b" });
    const HWND owner = combo;
    combo = nullptr;
    Make("%120%ss", fields);
    HCSetList(combo, HCGetList(owner));
    SendPtr(WM_SETTEXT, 0, "%ss");
    Add({ "own" });
    EXPECT_EQ((Texts{ "own" }), All());
    EXPECT_EQ(1, ToFace(HLM_GETCOUNT));
    EXPECT_EQ(2, SendMessageA(owner, CB_GETCOUNT, 0, 0));
    End();
    DestroyWindow(owner);
}

TEST_F(ComboItems, BorrowingTheOwnListKeepsIt)
{
    for (const DWORD style : { edits, fields }) {
        const BlockLeakCheck blocks;
        Make("%120%ss", style);
        Add({ "a", "b" });
        EXPECT_EQ(1, HCSetList(combo, HCGetList(combo)));
        EXPECT_EQ((Texts{ "a", "b" }), All());
        End();
    }
}

TEST_F(ComboItems, BorrowingTwiceFreesNothing)
{
    const BlockLeakCheck blocks;
    DataList* const      shared = HDLCreate(0, 's', 's', 0, 0, nullptr);
    HDLInsertItem(shared, -1, "x", nullptr);
    Make("%120%ss", fields);
    EXPECT_EQ(1, HCSetList(combo, shared));
    EXPECT_EQ(1, HCSetList(combo, shared));
    EXPECT_EQ((Texts{ "x" }), All());
    End();
    HDLDestroy(shared);
    HBlockFree(shared);
}

TEST_F(ComboItems, FormatOfItsOwnGoesWithTheItemsThatWereBorrowed)
{
    const BlockLeakCheck blocks;
    DataList* const      first = HDLCreate(0, 'n', 'i', 0, 0, "0");
    DataList* const      second = HDLCreate(0, 'n', 'i', 0, 0, "00");
    const int            value = 7;
    HDLInsertItem(first, -1, &value, nullptr);
    HDLInsertItem(second, -1, &value, nullptr);
    Make("%120%ni", fields);
    HCSetList(combo, first);
    EXPECT_EQ(1, SendPtr(HLM_SETFORMAT, 0, "0000"));
    EXPECT_EQ("0007", ItemText(0));
    HCSetList(combo, second);
    EXPECT_EQ("07", ItemText(0));
    EXPECT_EQ(1, SendPtr(HLM_SETFORMAT, 0, "000"));
    End();
    EXPECT_STREQ("0", first->pszFormat);
    EXPECT_STREQ("00", second->pszFormat);
    for (DataList* const list : { first, second }) {
        HDLDestroy(list);
        HBlockFree(list);
    }
}

TEST_F(ComboItems, BorrowedListThatIsGivenAgainIsTakenUpAnew)
{
    DataList* const shared = HDLCreate(0, 'n', 'i', 0, 0, "0");
    const int       value = 7;
    HDLInsertItem(shared, -1, &value, nullptr);
    Make("%120%ni", fields);
    HCSetList(combo, shared);
    Send(HLM_SETCURRENT, 0);
    EXPECT_EQ(0, Current());
    HDLSetFormat(shared, "000");
    EXPECT_EQ(1, HCSetList(combo, shared));
    EXPECT_EQ(-1, Current());
    EXPECT_EQ("007", ItemText(0));
    End();
    HDLDestroy(shared);
    HBlockFree(shared);
}

TEST_F(ComboItems, FaceThatGoesFirstTakesNothingAlongThatIsUsed)
{
    for (const DWORD style : { fields, edits }) {
        Make("%120%ss", style);
        Add({ "x", "y" });
        DestroyWindow(Face());
        EXPECT_EQ(style == fields ? 0 : 2, Count());
        RECT      rect = { 0, 0, 20, 20 };
        const HDC hdc = GetDC(combo);
        EXPECT_EQ(0, HCDrawValue(Ctl(), hdc, &rect, GetSysColorBrush(COLOR_WINDOW), "x", 1, nullptr, 0));
        ReleaseDC(combo, hdc);
        End();
    }
}

TEST_F(ComboItems, SetListWithoutAListLaysOutAnew)
{
    Make("%120%ss", edits);
    MoveWindow(Face(), 0, 0, 5, 5, FALSE);
    Send(HCM_SETLIST, 0, 0);
    EXPECT_NE((Ints{ 0, 0, 5, 5 }), PlaceOf(Face()));
    EXPECT_EQ(0, HCSetList(combo, nullptr));
}

TEST_F(ComboItems, FormatOfFieldAndListIsSetOnce)
{
    const BlockLeakCheck blocks;
    Make("%120%ni*0*", fields);
    AddNumbers({ 5 });
    Send(CB_SETCURSEL, 0);
    for (const char* format : { "*0.0*", "*0.00*" }) {
        EXPECT_EQ(1, SendPtr(HLM_SETFORMAT, 1, format));
    }
    EXPECT_EQ(ItemText(0), Text());
    EXPECT_EQ(4u, Text().size()) << Text();
    Send(HCM_SETDROP, 0);
    EXPECT_EQ(1, SendPtr(HLM_SETFORMAT, 1, "*0.000*"));
    Send(HCM_SETDROP, 1);
    EXPECT_EQ(ItemText(0), Text());
    EXPECT_EQ(5u, Text().size()) << Text();
    End();
}

TEST_F(ComboItems, FormatOfEditAndListIsSetForBoth)
{
    Make("%120%ni*0*", edits);
    AddNumbers({ 5 });
    EXPECT_EQ(1, SendPtr(HLM_SETFORMAT, 1, "*0.0*"));
    Send(CB_SETCURSEL, 0);
    EXPECT_EQ(3u, Text().size()) << Text();
    EXPECT_EQ(Text(), ItemText(0));
}

// A parked list

TEST_F(ComboItems, ParkedListIsNoList)
{
    Make("%120%300%ss%nl", edits);
    Add({ "a" });
    EXPECT_EQ(300, Send(HCM_SETDROP, 0));
    EXPECT_EQ(nullptr, Ctl()->hDrop);
    EXPECT_NE(nullptr, Ctl()->hDropParked);
    EXPECT_FALSE(HCHasDropButton(Ctl()));
    EXPECT_EQ(0, Send(CB_GETCOUNT));
    EXPECT_EQ(0, SendPtr(CB_ADDSTRING, 0, "b"));
    EXPECT_EQ(-1, HCAddItemEx(combo, "b", nullptr));
    EXPECT_EQ(300, Send(HCM_SETDROP, 0)) << "once more changes nothing";
    EXPECT_EQ(300, Send(HCM_SETDROP, 1));
    EXPECT_EQ(nullptr, Ctl()->hDropParked);
    EXPECT_EQ((Texts{ "a" }), All());
    EXPECT_EQ(300, Send(HCM_SETDROP, 1));
    EXPECT_EQ(1, Count());
}

TEST_F(ComboItems, ParkingInvalidatesTheCombo)
{
    Make("%120%ss", edits);
    for (const WPARAM value : { 0, 1 }) {
        PumpPending();
        ValidateRect(combo, nullptr);
        Send(HCM_SETDROP, value);
        EXPECT_TRUE(GetUpdateRect(combo, nullptr, FALSE)) << value;
    }
}

TEST_F(ComboItems, ParkingClosesAnOpenList)
{
    Make("%120%ss", edits);
    Send(CB_SHOWDROPDOWN, TRUE);
    Told();
    Send(HCM_SETDROP, 0);
    EXPECT_EQ((Ints{ HCN_CLOSEUP }), Told());
    EXPECT_FALSE(IsDropped());
}

TEST_F(ComboItems, SetDropTakesAHeight)
{
    Make("%120%ss", edits);
    EXPECT_EQ(1, Send(HCM_SETDROP, 80));
    EXPECT_EQ(80, Send(HCM_GETDROPHEIGHT));
}

TEST_F(ComboItems, WidthIsSetForADropListOnly)
{
    Make("%120%ss", edits);
    EXPECT_EQ(1, Send(HCM_SETDROPWIDTH, 280));
    EXPECT_EQ(280, Send(HCM_GETDROPWIDTH));
    RECT rect = {};
    GetWindowRect(List(), &rect);
    EXPECT_EQ(280, rect.right - rect.left) << "placed at once";
    Make("%120%ss", HCS_EDIT, 160, 120);
    EXPECT_EQ(0, Send(HCM_SETDROPWIDTH, 280));
    EXPECT_EQ(0, Send(HCM_GETDROPWIDTH));
}

TEST_F(ComboItems, NoSizeOfTheListIsBeyondWhatCanBePlaced)
{
    Make("%120%ss", HCS_DROPDOWN);
    EXPECT_EQ(1, Send(HCM_SETDROP, 0x7FFFFFFF));
    EXPECT_EQ(0x00FFFFFF, Send(HCM_GETDROPHEIGHT));
    EXPECT_EQ(1, Send(HCM_SETDROPWIDTH, 0x7FFFFFFF));
    EXPECT_EQ(0x00FFFFFF, Send(HCM_GETDROPWIDTH));
}

TEST_F(ComboItems, NewHeightLaysOutTheFace)
{
    Make("%120%ss", HCS_DROPDOWN | HCS_EDIT);
    for (const bool byText : { false, true }) {
        RECT text = {};
        SendPtr(HEM_GETRECT, 0, &text);
        EXPECT_EQ(2, text.left);
        text.left = 0;
        SendPtr(HEM_SETRECT, 0, &text);
        byText ? SendPtr(WM_SETTEXT, 0, "%90%ss") : Send(HCM_SETDROP, 80);
        SendPtr(HEM_GETRECT, 0, &text);
        EXPECT_EQ(2, text.left) << byText;
    }
}

} // namespace
