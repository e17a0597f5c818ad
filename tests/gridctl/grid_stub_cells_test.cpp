// How a grid loads and reads the cell controls of the kinds c and d: by stand-ins that record what they are sent.
#include "gridctl/grid_editing.h"

#include <cstring>
#include <string>
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

// A stand-in: a window that knows its record, whether it was changed, its value and its text, and items "one\tI" to
// "three\tIII" with the codes 1 to 3.
struct Stub {
    ControlHeader header = {};
    bool          changed = false;
    LONG          value = 0;
    std::string   text;
};

std::vector<Sent> gSent;

LRESULT CopyItem(WPARAM index, char* out)
{
    constexpr const char* items[] = { "one\tI", "two\tII", "three\tIII" };
    std::strcpy(out, items[index]);
    return static_cast<LRESULT>(std::strlen(out));
}

LRESULT GiveValue(const Stub* stub, LPARAM lParam)
{
    StoreAs<LONG>(reinterpret_cast<void*>(lParam), stub->value);
    return stub->value ? 4 : 0;
}

LRESULT FindCode(LPARAM lParam)
{
    const LONG code = lParam ? LoadAs<LONG>(reinterpret_cast<void*>(lParam)) : 0;
    return code >= 1 && code <= 3 ? code - 1 : -1;
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
    case HEM_SETDATA:
        stub->text = lParam ? reinterpret_cast<const char*>(lParam) : "null";
        gSent.push_back({ message, wParam, 0 });
        return 1;
    case HLM_SELECTDATA:
    case HLM_SELECTCODE: Note(message, wParam, lParam, false); return 1;
    case HEM_GETDATA:
    case HLM_GETCURDATA:
    case HLM_GETCURCODE: Note(message, wParam, lParam, true); return GiveValue(stub, lParam);
    case HLM_FINDCODE: Note(message, wParam, lParam, false); return FindCode(lParam);
    case HLM_GETDATA: return CopyItem(wParam, reinterpret_cast<char*>(lParam));
    default: return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

constexpr const char* stubClasses[] = { "HComb" };

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
    // Three rows of one column that stores a number: the value, or under HFF_CODE its code. Row 1 holds 2.
    void MakeColumn(char kind, bool code)
    {
        HGField* const field = code ? HGFieldCreate("F", HFF_CODE, 80, 60, 's', 's', 'n', 'l', 16, kind, 0, "", 0)
                                    : HGFieldCreate("F", 0, 80, 60, 'n', 'l', 0, 0, 0, kind, 0, "", 0);
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
    std::string EditorText() { return reinterpret_cast<Stub*>(GetWindowLongPtrA(Editor(), GWLP_USERDATA))->text; }
    LONG Value(int row) { return LoadAs<LONG>(HGCellPtr(ctl->pData, 0, row)); }

    static constexpr LONG two = 2;
};

struct KindRow {
    char   kind;
    bool   code;
    Sent   load; // of row 1; for kind c with codes the first message
    Sent   read;
};

// clang-format off
constexpr KindRow kinds[] = {
    { 'd', false, { HLM_SELECTDATA, 1, 2 }, { HLM_GETCURDATA, 4, 0 } },
    { 'd', true,  { HLM_SELECTCODE, 1, 2 }, { HLM_GETCURCODE, 4, 0 } },
    { 'c', false, { HEM_SETDATA,    0, 0 }, { HEM_GETDATA,    4, 0 } },
    { 'c', true,  { HLM_FINDCODE,   0, 2 }, { HLM_GETCURCODE, 4, 0 } },
};
// clang-format on

TEST_F(GridStubCells, EachKindIsLoadedAndReadByItsMessages)
{
    for (const KindRow& row : kinds) {
        SCOPED_TRACE(std::string(1, row.kind) + (row.code ? " with codes" : ""));
        MakeColumn(row.kind, row.code);
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
        SCOPED_TRACE(std::string(1, row.kind) + (row.code ? " with codes" : ""));
        MakeColumn(row.kind, row.code);
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
        SCOPED_TRACE(std::string(1, row.kind) + (row.code ? " with codes" : ""));
        MakeColumn(row.kind, row.code);
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

TEST_F(GridStubCells, ComboWithCodesShowsItsItemAsFarAsTheFirstTab)
{
    MakeColumn('c', true);
    MoveTo(0, 1);
    EXPECT_EQ("two", EditorText());
    // A code that no item has shows nothing.
    constexpr LONG unknown = 9;
    HGSetCellData(grid, 0, 2, &unknown);
    MoveTo(0, 2);
    EXPECT_EQ("", EditorText());
}

} // namespace
