// The grid's end inside any notification: whatever is under way then ends without touching the record.
#include "gridctl/record_source.h"

#include <cctype>
#include <string>
#include <vector>

namespace {

struct Deed {
    const char* what;
    void (*run)(HWND grid);
};

// A value that the user has entered, in an editor that has the focus.
void Enter(HWND grid)
{
    SetFocus(grid);
    const HWND editor = IsWindow(grid) ? HGFromWindow(grid)->hEditor : nullptr;
    if (editor) {
        SetFocus(editor);
    }
    if (editor && IsWindow(editor)) {
        SendMessageA(editor, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("entered"));
        SendMessageA(editor, WWM_SETCHANGED, 1, 0);
    }
}

// A message that comes while a value is entered.
void During(HWND grid, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    Enter(grid);
    if (IsWindow(grid)) {
        SendMessageA(grid, message, wParam, lParam);
    }
}

// The grid owns a column that it takes. One that it doesn't take goes back.
void DuringField(HWND grid, UINT message)
{
    HGField* const field = Text(16, "new");
    Enter(grid);
    if (!IsWindow(grid)) {
        HGFieldDestroy(field);
        return;
    }
    const LRESULT index = SendMessageA(grid, message, 0, reinterpret_cast<LPARAM>(field));
    if (static_cast<int>(index) == -1) {
        HGFieldDestroy(field);
    }
}

void DuringOrder(HWND grid)
{
    constexpr int order[] = { 5, 4, 3, 2, 1, 0 };
    During(grid, HGM_SETCOLORDER, 0, reinterpret_cast<LPARAM>(order));
}

// The grid owns the record as soon as it is asked to take it.
void DuringData(HWND grid)
{
    HGridData* const data = GridOf({ Text(), Text() });
    Enter(grid);
    if (IsWindow(grid)) {
        SendMessageA(grid, HGM_SETDATA, 1, reinterpret_cast<LPARAM>(data));
    } else {
        HGridDestroy(data);
    }
}

void DuringSameData(HWND grid)
{
    Enter(grid);
    if (IsWindow(grid)) {
        SendMessageA(grid, HGM_SETDATA, 1, reinterpret_cast<LPARAM>(HGFromWindow(grid)->pData));
    }
}

// clang-format off
constexpr Deed deeds[] = {
    { "move",         [](HWND g) { SendMessageA(g, HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(4, 25))); } },
    { "extend",       [](HWND g) { SendMessageA(g, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(9, 25))); } },
    { "anchor",       [](HWND g) { SendMessageA(g, HGM_SETANCHOR, 0, static_cast<LPARAM>(PackCell(3, 20))); } },
    { "first",        [](HWND g) { SendMessageA(g, HGM_KEYFIRST, 0, 0); } },
    { "last",         [](HWND g) { SendMessageA(g, HGM_KEYLAST, 0, 0); } },
    { "new",          [](HWND g) { SendMessageA(g, HGM_KEYNEW, 0, 0); } },
    { "up",           [](HWND g) { SendMessageA(g, HGM_KEYUP, 0, 0); } },
    { "go to",        [](HWND g) { SendMessageA(g, HGM_GOTORECORD, 0, 28); } },
    { "page down",    [](HWND g) { SendMessageA(g, WM_KEYDOWN, VK_NEXT, 0); } },
    { "page up",      [](HWND g) { SendMessageA(g, WM_KEYDOWN, VK_PRIOR, 0); } },
    { "tab",          [](HWND g) { SendMessageA(g, WM_KEYDOWN, VK_TAB, 0); } },
    { "escape",       [](HWND g) { SendMessageA(g, WM_KEYDOWN, VK_ESCAPE, 0); } },
    { "letter",       [](HWND g) { SendMessageA(g, WM_KEYDOWN, 'A', 0); } },
    { "F4",           [](HWND g) { SendMessageA(g, WM_KEYDOWN, VK_F4, 0); } },
    { "delete key",   [](HWND g) { SendMessageA(g, HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(-1, 4)));
                                   SendMessageA(g, WM_KEYDOWN, VK_DELETE, 0); } },
    { "line down",    [](HWND g) { SendMessageA(g, WM_VSCROLL, SB_LINEDOWN, 0); } },
    { "page of bar",  [](HWND g) { SendMessageA(g, WM_VSCROLL, SB_PAGEDOWN, 0); } },
    { "thumb",        [](HWND g) { SendMessageA(g, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 15), 0); } },
    { "page across",  [](HWND g) { SendMessageA(g, WM_HSCROLL, SB_PAGERIGHT, 0); } },
    { "scroll up",    [](HWND g) { HGScrollBy(HGFromWindow(g), 0, -9, true); } },
    { "scroll down",  [](HWND g) { HGScrollBy(HGFromWindow(g), 0, 99, true); } },
    { "wheel",        [](HWND g) { RECT r; GetWindowRect(g, &r);
                                   SendMessageA(g, WM_MOUSEWHEEL, MAKEWPARAM(0, -120), MAKELPARAM(r.left + 9, r.top + 9)); } },
    { "recalculate",  [](HWND g) { SendMessageA(g, HGM_RECALC, 0, 0); } },
    { "refresh",      [](HWND g) { SendMessageA(g, HGM_REFRESH, 1, 0); } },
    { "resize",       [](HWND g) { SetWindowPos(g, nullptr, 0, 0, 300, 150, SWP_NOMOVE | SWP_NOZORDER); } },
    { "shrink rows",  [](HWND g) { HGScrollBy(HGFromWindow(g), 0, 20, true);
                                   if (IsWindow(g)) { HGridEmpty(HGFromWindow(g)->pData); SendMessageA(g, HGM_REFRESH, 1, 0); } } },
    { "add new row",  [](HWND g) { HGridCtl* const c = HGFromWindow(g);
                                   HGChangeNodeFlags(HGRowNode(c->pData, LastRow(c)), 0, HGR_DIRTY);
                                   HGAddRow(c, nullptr, true); } },
    { "insert row",   [](HWND g) { HGInsertRow(HGFromWindow(g), nullptr, 3, true); } },
    { "delete row",   [](HWND g) { HGDeleteRow(HGFromWindow(g), 3, true); } },
    { "press",        [](HWND g) { SendMessageA(g, WM_LBUTTONDOWN, 0, MAKELPARAM(150, 90));
                                   if (IsWindow(g)) { SendMessageA(g, WM_MOUSEMOVE, 0, MAKELPARAM(250, 130)); }
                                   if (IsWindow(g)) { SendMessageA(g, WM_LBUTTONUP, 0, MAKELPARAM(250, 130)); } } },
    { "right press",  [](HWND g) { SendMessageA(g, WM_RBUTTONDOWN, 0, MAKELPARAM(150, 90)); } },
    { "double click", [](HWND g) { SendMessageA(g, WM_LBUTTONDBLCLK, 0, MAKELPARAM(150, 90)); } },
    { "size drag",    [](HWND g) { HGridCtl* const c = HGFromWindow(g); c->wFlags |= HGC_MOUSEDOWN; gSizeZone = 3;
                                   SendMessageA(g, WM_LBUTTONUP, 0, MAKELPARAM(150, 90)); } },
    { "row drag",     [](HWND g) { HGridCtl* const c = HGFromWindow(g); c->wFlags |= HGC_MOUSEDOWN; gSizeZone = -3;
                                   SendMessageA(g, WM_LBUTTONUP, 0, MAKELPARAM(150, 90)); } },
    { "column drag",  [](HWND g) { HGridCtl* const c = HGFromWindow(g); c->wFlags |= HGC_MOUSEDOWN | HGC_COLDRAG;
                                   SendMessageA(g, WM_LBUTTONUP, 0, MAKELPARAM(150, 9)); } },
    { "column drag across", [](HWND g) { HGridCtl* const c = HGFromWindow(g); c->wFlags |= HGC_MOUSEDOWN | HGC_COLDRAG;
                                         SendMessageA(g, WM_MOUSEMOVE, 0, MAKELPARAM(395, 9)); } },
    { "to the last",  [](HWND g) { SendMessageA(g, WM_COMMAND, 4189, 0); } },
    { "to the new",   [](HWND g) { SendMessageA(g, WM_COMMAND, 4190, 0); } },
    { "fourth button", [](HWND g) { SendMessageA(g, WM_COMMAND, 4191, 0); } },
    { "enter, last",    [](HWND g) { During(g, WM_COMMAND, 4189); } },
    { "enter, tab",     [](HWND g) { During(g, WM_KEYDOWN, VK_TAB); } },
    { "enter, press",   [](HWND g) { During(g, WM_LBUTTONDOWN, 0, MAKELPARAM(150, 130)); } },
    { "enter, double",  [](HWND g) { During(g, WM_LBUTTONDBLCLK, 0, MAKELPARAM(150, 130)); } },
    { "enter, add column",    [](HWND g) { SendMessageA(g, HGM_SETBANDS, 0, 2); DuringField(g, HGM_ADDFIELD); } },
    { "enter, insert column", [](HWND g) { DuringField(g, HGM_INSERTFIELD); } },
    { "enter, delete column", [](HWND g) { During(g, HGM_DELETEFIELD, 2); } },
    { "enter, move column",   [](HWND g) { During(g, HGM_MOVEFIELD, 2, 0); } },
    { "enter, order columns", [](HWND g) { DuringOrder(g); } },
    { "enter, insert row",    [](HWND g) { During(g, HGM_INSERTROW, 1); } },
    { "enter, move row",      [](HWND g) { During(g, HGM_MOVEROW, 1, 9); } },
    { "enter, delete row",    [](HWND g) { During(g, HGM_DELETEROW, 1); } },
    { "enter, add row",       [](HWND g) { SendMessageA(g, HGM_KEYNEW, 0, 0);
                                           if (IsWindow(g)) { During(g, HGM_ADDROW); } } },
    { "enter, sort",          [](HWND g) { During(g, HGM_SORT, MAKEWPARAM(1, 1)); } },
    { "enter, other data",    [](HWND g) { DuringData(g); } },
    { "enter, same data",     [](HWND g) { DuringSameData(g); } },
    { "enter, reset",         [](HWND g) { During(g, HGM_RESET, 1); } },
    { "enter, source",        [](HWND g) { During(g, HGM_SETROWSOURCE, 0, reinterpret_cast<LPARAM>(NumberedRecords)); } },
    { "enter, read only",     [](HWND g) { During(g, HGM_SETFIELDFLAGS, 1, MAKELPARAM(1, HFF_READONLY)); } },
    { "enter, fixed columns", [](HWND g) { During(g, HGM_SETFIXEDCOLS, 2); } },
    { "focus",        [](HWND g) { SetFocus(g); } },
    { "total",        [](HWND g) { SendMessageA(g, HGM_SETTOTAL, 0, 500); } },
};
constexpr int codes[] = {
    HGN_SETFOCUS, HGN_MOVED, HGN_DBLCLK, HGN_RBUTTONDOWN, HGN_ABOVETOP, HGN_BELOWEND, HGN_NEWROW, HGN_ROWCHANGED,
    HGN_CELLCHANGED, HGN_ROWDELETING, HGN_COLSMOVED, HGN_HEIGHTCHANGED, HGN_WIDTHCHANGED, HGN_MOVING, HGN_EXTENDING,
    HGN_HSCROLLED, HGN_VSCROLLED, HGN_HRANGE, HGN_LAYOUT, HGN_EDITDONE, HGN_EDITFOCUS, HGN_NAVIGATE, HGN_EDITBLUR,
    HGN_CHILDCHANGE, HGN_NAVEXTRA,
};
// clang-format on

class GridEnd : public SourceWindow, public testing::WithParamInterface<Deed> {
protected:
    void MakeBusyGrid(bool fromSource)
    {
        HGField* const fields[] = { Number(), Text(), Text(), Text(), Text(), Text() };
        MakeGrid(GridOf({ fields[0], fields[1], fields[2], fields[3], fields[4], fields[5] }, gridStyle | HGS_ROWDELETE | HGS_NEWROW | HGS_COLMAP),
                 fromSource ? 0 : 30);
        if (fromSource) {
            source.count = 300;
            SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(NumberedRecords));
        }
        MoveTo(1, 4);
        SetFocus(parent.hwnd());
        Forget();
    }
    // What the deed tells of when nobody ends the grid.
    std::vector<int> CodesOf(bool fromSource)
    {
        gSizeZone = 0;
        MakeBusyGrid(fromSource);
        GetParam().run(grid);
        std::vector<int> told;
        for (const int code : codes) {
            if (parent.Count(code) > 0) {
                told.push_back(code);
            }
        }
        DestroyWindow(grid);
        return told;
    }
};

// A parent may do it at every notification: each must end the call chain at once, without touching the record.
TEST_P(GridEnd, InsideAnyNotificationIsSurvived)
{
    int endings = 0;
    for (const bool fromSource : { false, true }) {
        for (const int code : CodesOf(fromSource)) {
            SCOPED_TRACE(code);
            gSizeZone = 0;
            MakeBusyGrid(fromSource);
            parent.On(code, [&] { DestroyWindow(grid); });
            GetParam().run(grid);
            parent.On(code, nullptr);
            EXPECT_EQ(parent.Count(code) == 0, IsWindow(grid) != 0);
            endings += parent.Count(code) > 0;
            if (IsWindow(grid)) {
                DestroyWindow(grid);
            }
        }
    }
    gSizeZone = 0;
    EXPECT_GT(endings, 0) << "nothing was told at all";
}

std::string NameOf(const testing::TestParamInfo<Deed>& info)
{
    std::string name;
    for (const char* p = info.param.what; *p; ++p) {
        if (std::isalnum(static_cast<unsigned char>(*p))) {
            name += *p;
        }
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(Deeds, GridEnd, testing::ValuesIn(deeds), NameOf);

} // namespace
