// The fixture of grids that a user works.
#include "input/input_grid.h"

namespace {

constexpr int rowHeader = 40;
constexpr int rowHeight = 20;
constexpr int columnWidth = 80;

HGField* MakeColumn(const ColumnKind& kind)
{
    return HGFieldCreate("Column", kind.flags, columnWidth, 0, kind.type[0], kind.type[1], 0, 0, kind.size, 'e', 0,
                         kind.format, 0);
}

} // namespace

InputGrid::InputGrid()
{
    SetDecimalSep('.');
    SetThousandsSep(',');
    SetDateSep('.');
    SetTimeSep(':');
    SetDefDateFormat("d/m/yyyy");
    SetDefTimeFormat("h:mm:ss");
}

InputGrid::~InputGrid()
{
    SetOverwriteMode(0);
    GetIntlSettings();
}

void InputGrid::Make(const std::vector<ColumnKind>& columns, int rows, DWORD style)
{
    if (grid) {
        DestroyWindow(grid);
    }
    if (!button) {
        button = Create("BUTTON", "push", 0, 8, { 10, 300, 100, 30 });
    }
    HGridData* const data =
        HGridCreate("test grid", style | WS_VSCROLL | WS_HSCROLL, 0, 0, rowHeight, rowHeader, rowHeight, 0);
    columnCount = 0;
    for (const ColumnKind& kind : columns) {
        HGInsertFld(data, MakeColumn(kind), static_cast<short>(columnCount++));
    }
    grid = Create("HGrid", "");
    SendPtr(grid, HGM_SETDATA, 1, data);
    for (int i = 0; i < rows; ++i) {
        Send(grid, HGM_ADDROW);
    }
    Send(grid, HGM_REFRESH, 1);
    SetFocus(grid);
    UpdateWindow(grid);
    Clear();
}

void InputGrid::Clear()
{
    PumpPending();
    seen.Clear();
    parent.ClearCounts();
}

POINT InputGrid::MiddleOf(CellAt cell) const
{
    const int left = cell.col < 0 ? 0 : rowHeader + cell.col * columnWidth - static_cast<int>(Send(grid, HGM_GETHPOS));
    const int top = cell.row < 0 ? 0 : rowHeight + (cell.row - TopRow()) * rowHeight;
    return { left + (cell.col < 0 ? rowHeader : columnWidth) / 2, top + rowHeight / 2 };
}

void InputGrid::Click(CellAt cell, unsigned modifiers)
{
    // Two clicks into a cell are no double click, and needn't wait to be none.
    clickShift_ = -clickShift_;
    const POINT point = MiddleOf(cell);
    ClickAt(grid, point.x + clickShift_, point.y, modifiers);
}

void InputGrid::Press(CellAt cell, unsigned modifiers)
{
    const POINT point = MiddleOf(cell);
    PressButton(grid, point.x, point.y, modifiers);
}

void InputGrid::DragTo(CellAt cell)
{
    const POINT point = MiddleOf(cell);
    MoveMouse(grid, point.x, point.y);
}

void InputGrid::LetGo(CellAt cell)
{
    const POINT point = MiddleOf(cell);
    ReleaseButton(grid, point.x, point.y);
}

CellAt InputGrid::Current() const
{
    return UnpackCellAt(Send(grid, HGM_GETCURSOR));
}

CellAt InputGrid::Anchor() const
{
    return UnpackCellAt(Send(grid, HGM_GETANCHOR));
}

std::string InputGrid::SelectedRows() const
{
    std::string rows;
    for (int row = 0; row < RowCount(); ++row) {
        rows += Send(grid, HGM_ISROWSELECTED, static_cast<WPARAM>(row)) ? std::to_string(row) + " " : "";
    }
    return rows;
}

int InputGrid::RowFlags(int row) const
{
    return static_cast<int>(Send(grid, HGM_GETROWFLAGS, static_cast<WPARAM>(row)));
}

std::string InputGrid::RowBytes(int row) const
{
    std::string bytes(static_cast<size_t>(Send(grid, HGM_GETROWSIZE)), '\0');
    SendPtr(grid, HGM_READROW, static_cast<WPARAM>(row), bytes.data());
    return bytes;
}

std::string InputGrid::Bytes(int col, int row) const
{
    std::string       bytes = RowBytes(row);
    const char* const value = static_cast<const char*>(HGOffsetPtr(grid, col, bytes.data()));
    return std::string(value, static_cast<size_t>(Send(grid, HGM_GETFIELDSIZE, static_cast<WPARAM>(col))));
}

std::string InputGrid::Text(int col, int row) const
{
    char text[256] = {};
    HGGetCellText(grid, col, row, text, sizeof text);
    return text;
}

std::string InputGrid::ColumnTexts(int col) const
{
    std::string texts;
    for (int row = 0; row < RowCount(); ++row) {
        texts += Text(col, row) + " ";
    }
    return texts;
}

void InputGrid::SetText(int col, int row, const char* text)
{
    char value[64] = {};
    _fstrnzcpy(value, text, sizeof value);
    HGSetCellData(grid, col, row, value); // the editor of the cell follows
}

HWND InputGrid::Child(int col) const
{
    return reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, static_cast<WPARAM>(col)));
}

void InputGrid::ExpectEditorStandsBy(const std::string& what) const
{
    const CellAt cell = Current();
    const POINT  middle = MiddleOf(cell);
    const RECT   expected = { middle.x - columnWidth / 2, middle.y - rowHeight / 2, middle.x + columnWidth / 2 - 1,
                              middle.y + rowHeight / 2 - 1 };
    RECT         rect = {};
    GetWindowRect(Editor(), &rect);
    MapWindowPoints(nullptr, grid, reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_TRUE(EqualRect(&expected, &rect))
        << what << ": " << rect.left << " " << rect.top << " " << rect.right << " " << rect.bottom << " at " << cell;
    for (int col = 0; col < columnCount; ++col) {
        EXPECT_EQ(col == cell.col, IsWindowVisible(Child(col)) != 0) << what << ": column " << col << " at " << cell;
    }
    EXPECT_EQ(Text(cell.col, cell.row), TextOf(Editor())) << what << " at " << cell;
    EXPECT_EQ(grid, GetFocus()) << what;
}

void InputGrid::ExpectNoEditor() const
{
    for (int col = 0; col < columnCount; ++col) {
        EXPECT_FALSE(IsWindowVisible(Child(col))) << "column " << col;
    }
}
