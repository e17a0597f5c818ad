// A dialog with a page of controls of every class, as a host makes it, and a user at it with the keyboard and the
// mouse.
#include "input/key_script.h"

#include "support/pixels.h"
#include "support/window_test.h"

#include <commctrl.h>

#include <algorithm>

namespace {

enum Id {
    idBefore = 10,
    idTab = 20,
    idSave = 30,
    idAfter = 40,
    idDay = 101,
    idName = 102,
    idSize = 103,
    idSizes = 104,
    idKeep = 105,
    idApply = 106,
    idGrid = 107,
};

INT_PTR CALLBACK HostDialog(HWND, UINT, WPARAM, LPARAM)
{
    return FALSE;
}

// A dialog without controls, for a page.
struct EmptyTemplate {
    DLGTEMPLATE header;
    WORD        texts[3]; // no menu, the usual class, no title
};

HWND MakePage(HWND dialog)
{
    const EmptyTemplate from = { { WS_CHILD, 0, 0, 0, 0, 10, 10 }, {} };
    return CreateDialogIndirectParamA(GetModuleHandleA(nullptr), &from.header, dialog, HostDialog, 0);
}

class EveryClassDialog : public WindowTest {
protected:
    EveryClassDialog()
        : dialog(CreateDialogParamA(GetModuleHandleA(nullptr), "TESTOUTER", parent.hwnd(), HostDialog, 0)),
          page(MakePage(dialog))
    {
        SetDateSep('.');
        AddTabs();
        RECT rect = {};
        first = CreateDialogInWin(GetModuleHandleA(nullptr), "TESTPAGE", page, &rect, &font);
        PlacePage(rect);
        FillLists();
        PumpThrough([this](MSG* msg) { return IsTabDlgMessage(dialog, page, idTab, msg) != 0; });
        CenterWindow(dialog, 0);
        ShowWindow(dialog, SW_SHOW);
        SetForegroundWindow(dialog);
        SetFocus(Item(idBefore));
        PumpPending();
    }
    ~EveryClassDialog() override
    {
        PumpThrough({});
        DestroyWindow(dialog);
        DeleteObject(font);
        PumpPending();
        GetIntlSettings();
    }

    void AddTabs()
    {
        char text[] = "Every class";
        for (int i = 0; i < 2; ++i) {
            TCITEMA item = {};
            item.mask = TCIF_TEXT;
            item.pszText = text;
            SendDlgItemMessageA(dialog, idTab, TCM_INSERTITEMA, static_cast<WPARAM>(i),
                                reinterpret_cast<LPARAM>(&item));
            lstrcpyA(text, "More");
        }
    }

    void PlacePage(const RECT& rect)
    {
        RECT tab = {};
        GetWindowRect(Item(idTab), &tab);
        RStoC(dialog, &tab);
        SendDlgItemMessageA(dialog, idTab, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&tab));
        SetWindowPos(page, HWND_TOP, tab.left, tab.top, rect.right, rect.bottom, SWP_SHOWWINDOW);
    }

    void FillLists()
    {
        for (const char* size : { "small", "medium", "large" }) {
            HLAddItem(Item(idSizes), size);
            HCAddItemEx(Item(idSize), size, nullptr);
        }
    }

    // A control of the dialog or of its page.
    HWND Item(int id) const
    {
        const HWND onPage = GetDlgItem(page, id);
        return onPage ? onPage : GetDlgItem(dialog, id);
    }

    // Of the control that has the focus, itself or by its child.
    int FocusId() const
    {
        HWND focus = GetFocus();
        while (focus && GetParent(focus) != page && GetParent(focus) != dialog) {
            focus = GetParent(focus);
        }
        return GetDlgCtrlID(focus);
    }

    // The controls that a key goes to, until the first one comes again.
    std::vector<int> Round(const char* key)
    {
        std::vector<int> ids;
        do {
            ids.push_back(FocusId());
            Type(key);
        } while (FocusId() != ids.front() && ids.size() < 20);
        return ids;
    }

    HFONT font = nullptr;
    HWND  dialog;
    HWND  page;
    HWND  first = nullptr;
};

// As a user sees them.
const std::vector<int> order = { idBefore, idTab,   idDay,  idName, idSize, idSizes,
                                 idKeep,   idApply, idGrid, idSave, idAfter };

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
