// A dialog with a page of controls of every class, as a host makes it, and a user at it with the keyboard and the
// mouse.
#include "input/every_class_dialog.h"

#include "support/pixels.h"

namespace {

TEST_F(EveryClassDialog, StartsAtItsFirstTabStop)
{
    EXPECT_EQ(Item(idDay), first);
}

TEST_F(EveryClassDialog, TabGoesRoundTheDialogAndItsPage)
{
    EXPECT_EQ(order, Round("{Tab}"));
}

TEST_F(EveryClassDialog, ShiftTabGoesRoundFromTheLastControlOfThePage)
{
    SetFocus(Item(idGrid));
    EXPECT_EQ((std::vector<int>{ idGrid, idApply, idKeep, idSizes, idSize, idName, idDay, idTab }),
              Round("{Shift+Tab}"));
    SetFocus(Item(idAfter));
    Type("{Shift+Tab}{Shift+Tab}");
    EXPECT_EQ(idTab, FocusId());
    Type("{Shift+Tab}");
    EXPECT_EQ(idGrid, FocusId()) << "the tab control leads into its page";
}

struct AltRow {
    int  from;
    WORD key;
    int  to;
};

TEST_F(EveryClassDialog, AltAndALetterGoAcrossTheDialogAndItsPage)
{
    constexpr AltRow rows[] = {
        { idDay, 'V', idSave },  { idSave, 'K', idKeep },    { idKeep, 'P', idApply }, { idSize, 'P', idApply },
        { idGrid, 'K', idKeep }, { idBefore, 'P', idApply }, { idAfter, 'V', idSave }, { idName, 'Z', idName },
    };
    for (const AltRow& row : rows) {
        SetFocus(Item(row.from));
        TypeKey(row.key, withAlt);
        EXPECT_EQ(row.to, FocusId()) << row.from << " by " << static_cast<char>(row.key);
    }
}

TEST_F(EveryClassDialog, EachControlTakesWhatIsTyped)
{
    SetFocus(Item(idDay));
    Type("17052024{Tab}Ada{Tab}medium");
    EXPECT_EQ("17.05.2024", TextOf(Item(idDay)));
    EXPECT_EQ("Ada", TextOf(Item(idName)));
    EXPECT_EQ(1, Send(Item(idSize), CB_GETCURSEL));
    Type("{Tab}");
    EXPECT_EQ(idSizes, FocusId());
    Type("l");
    EXPECT_EQ(1, HLIsSelected(Item(idSizes), 2));
    Type("{Tab} ");
    EXPECT_EQ(1, Send(Item(idKeep), BM_GETCHECK));
    Type("{Tab}{Tab}");
    EXPECT_EQ(idGrid, FocusId());
    Type("Grace{Enter}");
    char text[32] = "";
    HGGetCellText(Item(idGrid), 0, 0, text, sizeof text);
    EXPECT_STREQ("Grace", text);
}

TEST_F(EveryClassDialog, MouseReachesEachControl)
{
    for (const int id : { idGrid, idKeep, idSizes, idName, idDay, idAfter, idSize }) {
        ClickAt(Item(id), 12, 8);
        EXPECT_EQ(id, FocusId()) << id;
    }
}

TEST_F(EveryClassDialog, PaintsEachControl)
{
    SetFocus(Item(idDay));
    Type("17052024{Tab}Ada{Tab}medium{Tab}l{Tab}{Tab}");
    for (const int id : { idDay, idName, idSize, idSizes, idKeep, idApply, idGrid, idSave }) {
        const Pixels shot = ShotOf(Item(id));
        EXPECT_FALSE(shot.IsAll(shot.At(1, 1), shot.Bounds())) << id;
    }
    SavePixels(ShotOfWindow(dialog), "dialog");
}

TEST_F(EveryClassDialog, IsClearedAndFilledAgain)
{
    EXPECT_EQ(TRUE, ClearDialog(page));
    EXPECT_EQ(nullptr, GetWindow(page, GW_CHILD));
    HFONT again = nullptr;
    first = CreateDialogInWin(GetModuleHandleA(nullptr), "TESTPAGE", page, nullptr, &again);
    DeleteObject(font);
    font = again;
    SetFocus(Item(idBefore));
    EXPECT_EQ(order, Round("{Tab}"));
}

} // namespace
