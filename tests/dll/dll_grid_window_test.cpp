// A grid window, its cells and its appearance through the DLL.
#include "support/pixels.h"
#include "support/window_test.h"

#include <cstdio>
#include <fstream>

namespace {

// Two columns, a text and a number, and three blank rows.
class DllGrid : public WindowTest {
protected:
    DllGrid()
    {
        HGridData* const data = HGridCreate("orders", HGS_COLHEADERS | HGS_ROWHEADERS, 0, 0, 20, 40, 20, 3);
        HGInsertFld(data, HGFieldCreate("Name", 0, 80, 0, 's', 's', 0, 0, 11, 'e', 0, nullptr, 0), 0);
        HGInsertFld(data, HGFieldCreate("Amount", 0, 80, 0, 'n', 'l', 0, 0, 0, 'e', 0, nullptr, 0), 1);
        grid = Create("HGrid", "");
        EXPECT_EQ(1, SendPtr(grid, HGM_SETDATA, 1, data));
        ctl = RecordOf<HGridCtl>(grid);
        PumpPending();
        seen.Clear();
        parent.ClearCounts();
    }
    ~DllGrid() override
    {
        SetGridBckgndColors(0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF);
        SetGridSelectColor(0xFFFFFFFF);
        SetGridDrawPartFnc(nullptr);
        SetBkgndFocusBrush(nullptr);
        SetGridAppDPIScaling(1);
    }

    std::string CellText(int col, int row)
    {
        char text[64] = "";
        HGGetCellText(grid, col, row, text, sizeof text);
        return text;
    }
    bool IsInvalid() { return GetUpdateRect(grid, nullptr, FALSE) != 0; }

    HWND      grid;
    HGridCtl* ctl;
};

TEST_F(DllGrid, ATextGoesInAndOut)
{
    EXPECT_EQ(1, HGSetCellText(grid, 1, 0, "1234"));
    EXPECT_EQ(1, parent.Count(HGN_CELLCHANGED));
    LONG value = 0;
    EXPECT_EQ(1, HGGetCellData(grid, 1, 0, &value));
    EXPECT_EQ(1234, value);
    EXPECT_EQ("1234", CellText(1, 0));
}

TEST_F(DllGrid, AValueGoesInAndOut)
{
    const LONG value = 77;
    EXPECT_EQ(1, HGSetCellData(grid, 1, 1, &value));
    EXPECT_EQ("77", CellText(1, 1));
    EXPECT_EQ(1, HGSetCellString(grid, 0, 1, "abc"));
    EXPECT_EQ("abc", CellText(0, 1));
    EXPECT_EQ(1, HGCopyCellData(grid, 1, 1, 2));
    EXPECT_EQ("77", CellText(1, 2));
}

TEST_F(DllGrid, ACellIsNullUntilItIsWritten)
{
    HGSetCellData(grid, 1, 0, nullptr);
    EXPECT_EQ(1, HGIsCellNull(grid, 1, 0));
    EXPECT_EQ(1, IsCellNull(ctl, 1, 0));
    HGSetCellText(grid, 1, 0, "5");
    EXPECT_EQ(0, HGIsCellNull(grid, 1, 0));
    EXPECT_EQ(0, IsCellNull(ctl, 1, 0));
}

TEST_F(DllGrid, AColumnHasItsPlaceInTheRow)
{
    HGSetCellText(grid, 1, 0, "99");
    char row[64] = {};
    ASSERT_LE(Send(grid, HGM_GETROWSIZE), static_cast<LRESULT>(sizeof row));
    ASSERT_EQ(1, SendPtr(grid, HGM_READROW, 0, row));
    const void* const place = HGOffsetPtr(grid, 1, row);
    ASSERT_NE(nullptr, place);
    LONG value = 0;
    memcpy(&value, place, sizeof value);
    EXPECT_EQ(99, value);
}

TEST_F(DllGrid, CellsAreInvalidatedOneByOneAndInRanges)
{
    ShotOf(grid);
    EXPECT_FALSE(IsInvalid());
    EXPECT_EQ(1, HGridInvalidateCell(grid, 0, 0));
    EXPECT_TRUE(IsInvalid());
    ShotOf(grid);
    EXPECT_EQ(1, HGridInvalidateRange(grid, 0, 0, 1, 2));
    EXPECT_TRUE(IsInvalid());
}

TEST_F(DllGrid, TakesColoursForCellsAndHeaders)
{
    const COLORREF face = RGB(250, 240, 200);
    Send(grid, HGM_SETSTYLEBITS, 1, HGS_FACEBACK);
    SetGridBckgndColor(face, 0xFFFFFFFF);
    InvalidateRect(grid, nullptr, TRUE);
    const Pixels faced = ShotOf(grid);
    EXPECT_GT(faced.Count(face, faced.Bounds()), 500);
    const COLORREF selected = RGB(10, 200, 90);
    SetGridSelectColor(selected);
    SetFocus(grid);
    InvalidateRect(grid, nullptr, TRUE);
    const Pixels headed = ShotOf(grid);
    EXPECT_GT(headed.Count(selected, headed.Bounds()), 100);
}

TEST_F(DllGrid, SettersOfTheAppearanceSucceed)
{
    EXPECT_EQ(1, SetGridAppDPIScaling(0));
    EXPECT_EQ(1, SetGridAppDPIChanged());
    EXPECT_EQ(1, SetGridDrawPartFnc(nullptr));
    EXPECT_EQ(1, SetBkgndFocusBrush(static_cast<HBRUSH>(GetStockObject(LTGRAY_BRUSH))));
}

// A host's own class on the procedure and on the handler of the grid.
LRESULT CALLBACK HostGridProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WM_USER + 900 ? 5 : HandleMsg(hwnd, message, wParam, lParam, HGridMsgHandler, 0);
}

TEST_F(DllGrid, ServesClassesOfTheHost)
{
    constexpr const char* names[] = { "HostGrid", "HostGridMsg" };
    const WNDPROC         procs[] = { HGridWnd, HostGridProc };
    for (int i = 0; i < 2; ++i) {
        RegisterControl(0, procs[i], 0, sizeof(LONG_PTR), GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr,
                        names[i]);
        const HWND hwnd = Create(names[i], "");
        EXPECT_EQ(0, Send(hwnd, HGM_GETCOLCOUNT)) << names[i];
        EXPECT_NE(nullptr, RecordOf<HGridCtl>(hwnd)) << names[i];
        DestroyWindow(hwnd);
        UnregisterClassA(names[i], GetModuleHandleA(nullptr));
    }
    EXPECT_EQ(0, HGridWnd(nullptr, WM_USER, 0, 0)) << "no window";
}

// A definition file of the bytes of this program's resource TESTGRID, for as long as a test runs.
class ResourceInAFile {
public:
    ResourceInAFile()
    {
        const HRSRC found = FindResourceA(nullptr, "TESTGRID", MAKEINTRESOURCEA(300));
        std::ofstream(name, std::ios::binary)
            .write(static_cast<const char*>(LockResource(LoadResource(nullptr, found))),
                   static_cast<std::streamsize>(SizeofResource(nullptr, found)));
    }
    ~ResourceInAFile() { std::remove(name); }

    static constexpr char name[] = "dllgrid.GRS";
};

TEST_F(DllGrid, ATitleThatNamesAResourceOfTheCreatorGivesTheGridOfTheSameFile)
{
    const ResourceInAFile file;
    const HWND            fromResource = Create("HGrid", "TESTGRID");
    const HWND            fromFile = Create("HGrid", "dllgrid");
    HGridData* const      data = RecordOf<HGridCtl>(fromResource)->pData;
    EXPECT_EQ(2, Send(fromResource, HGM_GETCOLCOUNT));
    EXPECT_STREQ("Orders", data->pszTitle);
    EXPECT_EQ(0, HGridChanged(data, RecordOf<HGridCtl>(fromFile)->pData));
}

TEST_F(DllGrid, AResourceOfAnotherModuleIsNotTheCreators)
{
    const HWND other = CreateWindowExA(0, "HGrid", "TESTGRID", WS_CHILD, 0, 0, 100, 100, parent.hwnd(), nullptr,
                                       GetModuleHandleA("widgets.dll"), nullptr);
    ASSERT_NE(nullptr, other);
    EXPECT_EQ(0, Send(other, HGM_GETCOLCOUNT));
}

} // namespace
