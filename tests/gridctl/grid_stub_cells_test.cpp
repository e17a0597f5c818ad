// How a grid loads and reads the cell controls of kind k: by stand-ins that record what they are sent.
#include "gridctl/grid_editing.h"
#include "griddata/child_messages.h"

#include <vector>

namespace {

struct Sent {
    UINT   message;
    WPARAM wParam;
    LONG   value; // what lParam points to; -1 for null

    bool operator==(const Sent&) const = default;
};

void PrintTo(const Sent& sent, std::ostream* out)
{
    *out << sent.message << " wParam " << sent.wParam << " value " << sent.value;
}

// A stand-in: a window that knows its record, whether it was changed, and its value.
struct Stub {
    ControlHeader header = {};
    bool          changed = false;
    LONG          value = 0;
};

std::vector<Sent> gSent;

LRESULT GiveValue(const Stub* stub, LPARAM lParam)
{
    StoreAs<LONG>(reinterpret_cast<void*>(lParam), stub->value);
    return stub->value ? 4 : 0;
}

void Note(UINT message, WPARAM wParam, LPARAM lParam, bool reads)
{
    const bool pointer = lParam != 0 && !reads;
    gSent.push_back({ message, wParam, pointer ? LoadAs<LONG>(reinterpret_cast<void*>(lParam)) : reads ? 0 : -1 });
}

LRESULT CALLBACK StubProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    Stub* const stub = reinterpret_cast<Stub*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    switch (message) {
    case WM_NCCREATE: {
        Stub* const made = new Stub;
        made->header.hWnd = hwnd;
        SetWindowLongPtrA(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(made));
        return 1;
    }
    case WM_NCDESTROY: delete stub; return 0;
    case WWM_GETSTATE: return reinterpret_cast<LRESULT>(&stub->header);
    case WWM_GETCHANGED: return stub->changed;
    case WWM_SETCHANGED: stub->changed = wParam != 0; return 1;
    case HBM_SETVALUE: Note(message, wParam, lParam, false); return 1;
    case HBM_GETVALUE: Note(message, wParam, lParam, true); return GiveValue(stub, lParam);
    default: return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

constexpr const char* stubClasses[] = { "HButt" };

class GridStubCells : public GridEditing {
protected:
    GridStubCells()
    {
        for (const char* const name : stubClasses) {
            WNDCLASSA info = {};
            info.lpfnWndProc = StubProc;
            info.hInstance = GetModuleHandleA(nullptr);
            info.lpszClassName = name;
            EXPECT_TRUE(RegisterClassA(&info)) << name;
        }
    }
    ~GridStubCells() override
    {
        if (IsWindow(grid)) {
            DestroyWindow(grid);
        }
        for (const char* const name : stubClasses) {
            UnregisterClassA(name, GetModuleHandleA(nullptr));
        }
    }
    // Three rows of one column that stores a number. Row 1 holds 2.
    void MakeColumn(char kind)
    {
        HGField* const field = HGFieldCreate("F", 0, 80, 60, 'n', 'l', 0, 0, 0, kind, 0, "", 0);
        MakeGrid(GridOf({ field }), 3);
        HGSetCellData(grid, 0, 1, &two);
        HGSetNodeFlags(HGRowNode(ctl->pData, 1), 0);
        SetFocus(grid);
        Forget();
        gSent.clear();
    }
    // What the user would have done: another value, and the mark that it was changed.
    void Enter(LONG value)
    {
        Stub* const stub = reinterpret_cast<Stub*>(GetWindowLongPtrA(Editor(), GWLP_USERDATA));
        stub->value = value;
        stub->changed = true;
        ctl->wFlags |= HGC_INEDIT;
        gSent.clear();
    }
    LONG Value(int row) { return LoadAs<LONG>(HGCellPtr(ctl->pData, 0, row)); }

    static constexpr LONG two = 2;
};

struct KindRow {
    char   kind;
    Sent   load; // of row 1
    Sent   read;
};

// clang-format off
constexpr KindRow kinds[] = {
    { 'k', { HBM_SETVALUE, 0, 2 }, { HBM_GETVALUE, 0, 0 } },
};
// clang-format on

TEST_F(GridStubCells, EachKindIsLoadedAndReadByItsMessages)
{
    for (const KindRow& row : kinds) {
        SCOPED_TRACE(row.kind);
        MakeColumn(row.kind);
        MoveTo(0, 1);
        ASSERT_FALSE(gSent.empty());
        EXPECT_EQ(row.load, gSent.front());
        Enter(3);
        MoveTo(0, 2);
        ASSERT_FALSE(gSent.empty());
        EXPECT_EQ(row.read, gSent.front());
        EXPECT_EQ(3, Value(1));
        EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
        DestroyWindow(grid);
    }
}

TEST_F(GridStubCells, ControlWithoutAValueMakesTheCellNull)
{
    for (const KindRow& row : kinds) {
        SCOPED_TRACE(row.kind);
        MakeColumn(row.kind);
        MoveTo(0, 1);
        Enter(0);
        MoveTo(0, 2);
        EXPECT_EQ(1, HGIsCellNull(grid, 0, 1));
        EXPECT_EQ(0, Value(1));
        DestroyWindow(grid);
    }
}

TEST_F(GridStubCells, UnchangedControlIsNotRead)
{
    for (const KindRow& row : kinds) {
        SCOPED_TRACE(row.kind);
        MakeColumn(row.kind);
        MoveTo(0, 1);
        ctl->wFlags |= HGC_INEDIT;
        gSent.clear();
        MoveTo(0, 2);
        for (const Sent& sent : gSent) {
            EXPECT_NE(row.read.message, sent.message);
        }
        EXPECT_EQ(2, Value(1));
        EXPECT_EQ(0, RowFlags(1) & HGR_DIRTY);
        DestroyWindow(grid);
    }
}

} // namespace
