// A dialog with a page of controls of every class, as a host makes it, for a user at it with the keyboard and the
// mouse.
#pragma once

#include "input/key_script.h"
#include "support/window_test.h"

#include <commctrl.h>

#include <algorithm>
#include <vector>

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

// What the dialog and its page were told: id and code of each WM_COMMAND.
struct Told {
    int  id;
    int  code;
    bool operator==(const Told&) const = default;
};
inline std::vector<Told> gTold;

inline INT_PTR CALLBACK HostDialog(HWND, UINT message, WPARAM wParam, LPARAM)
{
    if (message == WM_COMMAND) {
        gTold.push_back({ LOWORD(wParam), HIWORD(wParam) });
    }
    return FALSE;
}

// A dialog without controls, for a page.
struct EmptyTemplate {
    DLGTEMPLATE header;
    WORD        texts[3]; // no menu, the usual class, no title
};

inline HWND MakePage(HWND dialog)
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
        gTold.clear();
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
inline const std::vector<int> order = { idBefore, idTab,   idDay,  idName, idSize, idSizes,
                                        idKeep,   idApply, idGrid, idSave, idAfter };
