// What a combo asks of its parent: drawn items, brushes.
#include "combo_window.h"
#include "support/pixels.h"

namespace {

constexpr DWORD edits = HCS_DROPDOWN | HCS_EDIT;

class ComboOwner : public ComboWindow {};

TEST_F(ComboOwner, DrawnItemsAreTheParentsUnderTheCombosName)
{
    DRAWITEMSTRUCT drawn = {};
    WPARAM         id = 0;
    int            answer = 5;
    parent.OnMessage(WM_DRAWITEM, [&](WPARAM wParam, LPARAM lParam) {
        drawn = *reinterpret_cast<DRAWITEMSTRUCT*>(lParam);
        id = wParam;
        return answer;
    });
    Make("%120%ss", HCS_DROPDOWN);
    DRAWITEMSTRUCT item = {};
    item.CtlType = 2;
    item.CtlID = 3;
    item.itemID = 4;
    item.hwndItem = List();
    EXPECT_EQ(1, SendPtr(WM_DRAWITEM, 3, &item));
    EXPECT_EQ(7u, id);
    EXPECT_EQ(3u, drawn.CtlType);
    EXPECT_EQ(7u, drawn.CtlID);
    EXPECT_EQ(4u, drawn.itemID);
    EXPECT_EQ(combo, drawn.hwndItem);
    answer = 0;
    EXPECT_EQ(0, SendPtr(WM_DRAWITEM, 3, &item));
}

TEST_F(ComboOwner, ParentMeasuresTheRowsOfTheList)
{
    parent.OnMessage(WM_MEASUREITEM, [](WPARAM, LPARAM lParam) {
        auto* const measure = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
        EXPECT_EQ(3u, measure->CtlType);
        EXPECT_EQ(7u, measure->CtlID);
        measure->itemHeight = 33;
        return 1;
    });
    Make("%120%ss", HCS_DROPDOWN | HLS_OWNERDRAW);
    Add({ "apple" });
    EXPECT_EQ(33, Send(CB_GETITEMHEIGHT, 0));
}

TEST_F(ComboOwner, ParentHearsOfDeletedItems)
{
    int gone = -1;
    parent.OnMessage(WM_DELETEITEM, [&](WPARAM wParam, LPARAM lParam) {
        const auto* const item = reinterpret_cast<DELETEITEMSTRUCT*>(lParam);
        EXPECT_EQ(7u, wParam);
        EXPECT_EQ(3u, item->CtlType);
        EXPECT_EQ(7u, item->CtlID);
        gone = static_cast<int>(item->itemID);
        return 1;
    });
    Make("%120%ss", HCS_DROPDOWN | HLS_OWNERDRAW);
    Add({ "apple", "pear" });
    Send(CB_DELETESTRING, 1);
    EXPECT_EQ(1, gone);
}

TEST_F(ComboOwner, RowsAreDrawnByTheParentOnTheScreen)
{
    int draws = 0;
    parent.OnMessage(WM_DRAWITEM, [&](WPARAM, LPARAM lParam) {
        const auto* const item = reinterpret_cast<DRAWITEMSTRUCT*>(lParam);
        EXPECT_EQ(combo, item->hwndItem);
        ++draws;
        return 1;
    });
    Make("%120%ss", HCS_DROPDOWN | HLS_OWNERDRAW);
    Add({ "apple", "pear" });
    Send(CB_SETCURSEL, 0);
    PumpPending();
    EXPECT_GT(draws, 0) << "the field";
    draws = 0;
    Send(CB_SHOWDROPDOWN, TRUE);
    EXPECT_TRUE(PumpUntil([&] { return draws >= 2; })) << "the list";
}

TEST_F(ComboOwner, BrushOfThePartsIsTheParents)
{
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    HWND         asking = nullptr;
    parent.OnMessage(WM_CTLCOLOREDIT, [&](WPARAM, LPARAM lParam) {
        asking = reinterpret_cast<HWND>(lParam);
        return AsParam(brush);
    });
    for (const DWORD style : { edits, static_cast<DWORD>(HCS_DROPDOWN) }) {
        Make("%120%ss", style);
        for (const UINT message : { WM_CTLCOLOREDIT, WM_CTLCOLORLISTBOX }) {
            asking = nullptr;
            EXPECT_EQ(AsParam(brush), Send(message, 0, AsParam(Face())));
            EXPECT_EQ(combo, asking);
        }
    }
    End();
    DeleteObject(brush);
}

TEST_F(ComboOwner, FocusBrushOfTheFaceIsBothParts)
{
    Make("%120%ss", edits | HCS_FOCUSBRUSH);
    const HBRUSH own = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
    ToFace(HEM_SETFOCUSBRUSH, reinterpret_cast<WPARAM>(own));
    EXPECT_NE(AsParam(own), Send(WM_CTLCOLORLISTBOX, 0, AsParam(List())));
    Focus();
    EXPECT_EQ(AsParam(own), Send(WM_CTLCOLORLISTBOX, 0, AsParam(List())));
    EXPECT_EQ(AsParam(own), Send(WM_CTLCOLOREDIT, 0, AsParam(Face())));
    ToFace(HEM_SETFOCUSBRUSH, 0);
    EXPECT_NE(0, Send(WM_CTLCOLOREDIT, 0, AsParam(Face()))) << "the parent's";
}

TEST_F(ComboOwner, BackgroundIsFilledInTheParentsBrush)
{
    const HBRUSH enabled = CreateSolidBrush(RGB(10, 200, 30));
    const HBRUSH disabled = CreateSolidBrush(RGB(200, 10, 30));
    parent.OnMessage(WM_CTLCOLOREDIT, [&](WPARAM, LPARAM) { return AsParam(enabled); });
    parent.OnMessage(WM_CTLCOLORSTATIC, [&](WPARAM, LPARAM) { return AsParam(disabled); });
    Make("%ss", edits);
    for (const bool on : { true, false }) {
        EnableWindow(combo, on);
        Canvas canvas(160, 24);
        EXPECT_EQ(1, Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.hdc())));
        EXPECT_TRUE(canvas.Shot().IsAll(on ? RGB(10, 200, 30) : RGB(200, 10, 30), { 0, 0, 160, 24 })) << on;
    }
    End();
    DeleteObject(enabled);
    DeleteObject(disabled);
}

TEST_F(ComboOwner, BackgroundIsThePartsUnder3DBorder)
{
    int asked = 0;
    Make("%ss", edits | HCS_3DBORDER);
    parent.OnMessage(WM_CTLCOLOREDIT, [&](WPARAM, LPARAM) {
        ++asked;
        return AsParam(GetStockObject(BLACK_BRUSH));
    });
    Canvas canvas(160, 24);
    EXPECT_EQ(1, Send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(canvas.hdc())));
    EXPECT_EQ(0, asked);
    EXPECT_TRUE(canvas.Shot().IsAll(RGB(255, 255, 255), { 0, 0, 160, 24 }));
}

} // namespace
