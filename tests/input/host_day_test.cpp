// A day of a host: a dialog with every control and a grid with a column of every kind, worked by the keyboard alone and
// by the mouse alone.
#include "input/cell_at.h"
#include "input/every_class_dialog.h"

#include "support/pixels.h"

#include <string>

namespace {

constexpr int      columnWidth = 70;
constexpr int      rowHeight = 20;
constexpr int      rowHeader = 30;
constexpr int      records = 4;
constexpr COLORREF markColor = RGB(200, 0, 100);

enum Col { colDay, colName, colCount, colColour, colState, colPlace, colPaid, colMark, columnCount };

const char* const colours[] = { "red", "green", "blue" };
constexpr LONG    codes[] = { 30, 10, 20 };

WNDPROC gGridProc;
WNDPROC gMarkProc;

// The host draws a bar as long as the text: no font comes here any more, only cells to draw.
LRESULT CALLBACK DrawingGrid(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto* const item = reinterpret_cast<const HGDrawItem*>(wParam);
    if (message != WM_SETFONT) {
        return CallWindowProcA(gGridProc, hwnd, message, wParam, lParam);
    }
    RECT bar = item->rc;
    bar.right = bar.left + (item->pValue ? 10 * lstrlenA(static_cast<const char*>(item->pValue)) : 0);
    const HBRUSH brush = CreateSolidBrush(markColor);
    FillRect(item->hDC, &bar, brush);
    DeleteObject(brush);
    return 0;
}

bool LeavesTheEditor(WPARAM vk)
{
    return vk == VK_RETURN || vk == VK_TAB || vk == VK_ESCAPE;
}

// Nobody but the host wraps the editor of its column: the grid hears of its focus and gets the keys that leave it.
LRESULT CALLBACK MarkEditor(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
        SendMessageA(GetParent(hwnd), message == WM_SETFOCUS ? WWM_CHILDFOCUS : WWM_CHILDBLUR, 0, 0);
    }
    if (message == WM_GETDLGCODE || (message == WM_KEYDOWN && LeavesTheEditor(wParam))) {
        return SendMessageA(GetParent(hwnd), message, wParam, lParam);
    }
    return CallWindowProcA(gMarkProc, hwnd, message, wParam, lParam);
}

WNDPROC Subclass(HWND hwnd, WNDPROC proc)
{
    return reinterpret_cast<WNDPROC>(SetWindowLongPtrA(hwnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(proc)));
}

HGField* Column(const char* title, const char* type, const char* code, WORD size, char kind, const char* format)
{
    constexpr short dropHeight = 60;
    return HGFieldCreate(title, *code ? HFF_CODE : 0, columnWidth, dropHeight, type[0], type[1], code[0],
                         *code ? code[1] : '\0', size, kind, 0, format, 0);
}

HGridData* RecordsOfEveryKind()
{
    constexpr DWORD  style = HGS_ROWHEADERS | HGS_COLHEADERS | HGS_COLSIZE | HGS_ROWDELETE;
    HGridData* const data = HGridCreate("Orders", style | WS_VSCROLL | WS_HSCROLL | WS_BORDER | WS_TABSTOP, 0, 0,
                                        rowHeight, rowHeader, rowHeight, 0);
    HGField* const   columns[] = {
          Column("Day", "dl", "", 0, 'e', "dd.mm.yyyy"), Column("Name", "ss", "", 16, 'e', ""),
          Column("Count", "nl", "", 0, 'e', ""),         Column("Colour", "ss", "nl", 16, 'l', ""),
          Column("State", "ss", "nl", 16, 'd', ""),      Column("Place", "ss", "", 16, 'c', ""),
          Column("Paid", "bl", "", 0, 'k', ""),          Column("Mark", "ss", "", 16, 'q', ""),
    };
    short col = 0;
    for (HGField* const column : columns) {
        HGInsertFld(data, column, col++);
    }
    return data;
}

class HostDay : public EveryClassDialog {
protected:
    HostDay() : grid(Item(idGrid))
    {
        SetDecimalSep('.');
        SetThousandsSep(',');
        gGridProc = Subclass(grid, DrawingGrid);
        SendMessageA(grid, HGM_SETDATA, 1, reinterpret_cast<LPARAM>(RecordsOfEveryKind()));
        for (int i = 0; i < records; ++i) {
            SendMessageA(grid, HGM_ADDROW, 0, 0);
        }
        for (int i = 0; i < 3; ++i) {
            HLAddItemEx(EditorOf(colColour), colours[i], &codes[i]);
            HCAddItemEx(EditorOf(colState), colours[i], &codes[i]);
            HCAddItemEx(EditorOf(colPlace), colours[i], nullptr);
        }
        gMarkProc = Subclass(EditorOf(colMark), MarkEditor);
        MakeRoom();
        SendMessageA(grid, HGM_REFRESH, 1, 0);
        PumpPending();
        gTold.clear();
    }

    // For all columns and some records.
    void MakeRoom() const
    {
        constexpr int wider = 330;
        constexpr int higher = 60;
        for (const HWND window : { dialog, page, grid }) {
            RECT rect = {};
            GetWindowRect(window, &rect);
            SetWindowPos(window, nullptr, 0, 0, rect.right - rect.left + wider, rect.bottom - rect.top + higher,
                         SWP_NOMOVE | SWP_NOZORDER);
        }
        for (const int id : { idSave, idAfter }) {
            RECT rect = {};
            GetWindowRect(Item(id), &rect);
            RStoC(dialog, &rect);
            SetWindowPos(Item(id), nullptr, rect.left, rect.top + higher, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        }
        CenterWindow(dialog, 0);
    }

    HWND EditorOf(int col) const
    {
        return reinterpret_cast<HWND>(SendMessageA(grid, HGM_GETFIELDCHILD, static_cast<WPARAM>(col), 0));
    }
    std::string CellText(int col, int row) const
    {
        char text[64] = "";
        HGGetCellText(grid, static_cast<short>(col), static_cast<short>(row), text, sizeof text);
        return text;
    }
    LONG Number(int col, int row) const
    {
        LONG value = -1;
        HGGetCellData(grid, static_cast<short>(col), static_cast<short>(row), &value);
        return value;
    }
    CellAt       Current() const { return UnpackCellAt(SendMessageA(grid, HGM_GETCURSOR, 0, 0)); }
    static POINT MiddleOf(CellAt cell)
    {
        return { cell.col < 0 ? rowHeader / 2 : rowHeader + cell.col * columnWidth + columnWidth / 2,
                 cell.row < 0 ? rowHeight / 2 : rowHeight + cell.row * rowHeight + rowHeight / 2 };
    }
    void ClickCell(CellAt cell) const
    {
        const POINT point = MiddleOf(cell);
        ClickAt(grid, point.x, point.y);
    }
    static int TimesTold(Told told) { return static_cast<int>(std::count(gTold.begin(), gTold.end(), told)); }
    // Opens the list of a combo by its button and takes a row.
    static void Pick(HWND combo, int row)
    {
        RECT client = {};
        GetClientRect(combo, &client);
        ClickAt(combo, client.right - 6, client.bottom / 2);
        ASSERT_TRUE(PumpUntil([&] { return SendMessageA(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; }));
        const HWND list = FindWindowA("HDrop", nullptr);
        ASSERT_NE(nullptr, list);
        RECT rect = {};
        SendMessageA(list, HLM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&rect));
        ClickAt(list, 10, static_cast<int>(rect.top + rect.bottom) / 2);
        EXPECT_EQ(0, SendMessageA(combo, CB_GETDROPPEDSTATE, 0, 0));
    }
    // What stands in a record, column by column.
    std::string Record(int row) const
    {
        std::string text;
        for (int col = 0; col < columnCount; ++col) {
            text += (col ? "|" : "") + CellText(col, row);
        }
        return text;
    }
    int MarkLength(int row) const
    {
        const Pixels shot = ShotOf(grid);
        const POINT  middle = MiddleOf({ colMark, row });
        const RECT   line = { middle.x - columnWidth / 2, middle.y, middle.x + columnWidth / 2 - 1, middle.y + 1 };
        return shot.Count(markColor, line);
    }

    HWND grid;
};

TEST_F(HostDay, ByTheKeyboardAlone)
{
    Type("{Tab}{Tab}");
    ASSERT_EQ(idDay, FocusId());
    Type("17052024{Tab}Ada{Tab}medium{Tab}l{Tab} {Tab} {Tab}");
    EXPECT_EQ("17.05.2024", TextOf(Item(idDay)));
    EXPECT_EQ("Ada", TextOf(Item(idName)));
    EXPECT_EQ(1, SendMessageA(Item(idSize), CB_GETCURSEL, 0, 0));
    EXPECT_EQ(1, HLIsSelected(Item(idSizes), 2));
    EXPECT_EQ(1, SendMessageA(Item(idKeep), BM_GETCHECK, 0, 0));
    EXPECT_EQ(1, TimesTold({ idApply, HBN_CLICKED }));
    ASSERT_EQ(idGrid, FocusId());

    // A value of each kind; from the last column on to the next record.
    EXPECT_EQ((CellAt{ 0, 0 }), Current());
    Type("01022024{Tab}Grace{Tab}42{Tab}g{Tab}b{Tab}red{Tab} {Tab}long{Enter}");
    EXPECT_EQ("01.02.2024|Grace|42|green|blue|red|" + CellText(colPaid, 0) + "|long", Record(0));
    EXPECT_EQ(10, Number(colColour, 0));
    EXPECT_EQ(20, Number(colState, 0));
    EXPECT_EQ(1, Number(colPaid, 0));
    SavePixels(ShotOfWindow(dialog), "keyboard");
    EXPECT_EQ(40, MarkLength(0));

    // The list of a combo by its key, an edit taken back, a record deleted by its header.
    Type("{Ctrl+Home}{Down}{Down}{Right}{Right}{Right}{Right}");
    ASSERT_EQ((CellAt{ colState, 2 }), Current());
    Type("{F4}{Down}{Enter}");
    EXPECT_EQ(0, SendMessageA(EditorOf(colState), CB_GETDROPPEDSTATE, 0, 0));
    Type("{Tab}{Shift+Tab}{Left}{Left}{Left}");
    EXPECT_EQ("red", CellText(colState, 2));
    ASSERT_EQ((CellAt{ colName, 2 }), Current());
    Type("mistake{Esc}");
    EXPECT_EQ("", CellText(colName, 2));

    Type("{Alt+V}");
    EXPECT_EQ(idSave, FocusId());
    Type(" ");
    EXPECT_EQ(1, TimesTold({ idSave, HBN_CLICKED }));
    EXPECT_EQ("01.02.2024|Grace|42|green|blue|red|" + CellText(colPaid, 0) + "|long", Record(0)) << "nothing is lost";
}

TEST_F(HostDay, ByTheMouseAlone)
{
    ClickAt(Item(idDay), 12, 8);
    EXPECT_EQ(idDay, FocusId());
    Pick(Item(idSize), 2);
    EXPECT_EQ(2, SendMessageA(Item(idSize), CB_GETCURSEL, 0, 0));
    EXPECT_EQ("large", TextOf(Item(idSize)));
    RECT item = {};
    SendMessageA(Item(idSizes), HLM_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&item));
    ClickAt(Item(idSizes), 12, static_cast<int>(item.top + item.bottom) / 2);
    EXPECT_EQ(1, HLIsSelected(Item(idSizes), 1));
    ClickAt(Item(idKeep), 12, 8);
    EXPECT_EQ(1, SendMessageA(Item(idKeep), BM_GETCHECK, 0, 0));
    ClickAt(Item(idApply), 12, 8);
    EXPECT_EQ(1, TimesTold({ idApply, HBN_CLICKED }));

    // In the grid: an item of a list, of both combos, a check, all by clicks into the cell and then its control.
    ClickCell({ colColour, 1 });
    EXPECT_EQ((CellAt{ colColour, 1 }), Current());
    ASSERT_TRUE(IsWindowVisible(EditorOf(colColour)));
    ClickCell({ colState, 1 });
    Pick(EditorOf(colState), 1);
    ClickCell({ colPlace, 1 });
    EXPECT_EQ(10, Number(colState, 1));
    Pick(EditorOf(colPlace), 2);
    ClickCell({ colPaid, 1 });
    EXPECT_EQ("blue", CellText(colPlace, 1));
    ClickAt(EditorOf(colPaid), columnWidth / 2, rowHeight / 2);
    ClickCell({ colName, 2 });
    EXPECT_EQ(1, Number(colPaid, 1));
    EXPECT_EQ((CellAt{ colName, 2 }), Current());
    SavePixels(ShotOfWindow(dialog), "mouse");
    const std::string before = Record(1);

    // A column made wider by its edge, records selected over their headers, and back to the dialog.
    const int edge = rowHeader + columnWidth;
    MoveMouse(grid, edge, rowHeight / 2);
    PressButton(grid, edge, rowHeight / 2);
    MoveMouse(grid, edge + 10, rowHeight / 2);
    ReleaseButton(grid, edge + 10, rowHeight / 2);
    EXPECT_EQ(columnWidth + 10, SendMessageA(grid, HGM_GETFIELDWIDTH, 0, 0));
    PressButton(grid, MiddleOf({ -1, 0 }).x, MiddleOf({ -1, 0 }).y);
    MoveMouse(grid, MiddleOf({ -1, 2 }).x, MiddleOf({ -1, 2 }).y);
    ReleaseButton(grid, MiddleOf({ -1, 2 }).x, MiddleOf({ -1, 2 }).y);
    EXPECT_EQ((CellAt{ -1, 2 }), Current());
    ClickAt(Item(idSave), 12, 8);
    EXPECT_EQ(1, TimesTold({ idSave, HBN_CLICKED }));
    EXPECT_EQ(before, Record(1)) << "nothing is lost";
}

} // namespace
