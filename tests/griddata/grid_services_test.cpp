// What the data side of a grid asks of others, with stand-ins for them: base units, the screen's resolution, the
// editor of a column that goes, the windows of cell controls, and the list behind codes. Native only.
#include "griddata/grid_maker.h"

#include "foundation/screen.h"
#include "foundation/startup.h"
#include "griddata/child_messages.h"
#include "native/grid_fakes.h"
#include "native/native_platform.h"

#include <map>

namespace {

class GridServices : public testing::Test {
protected:
    GridServices()
    {
        NativeReset();
        FakesReset();
    }
    ~GridServices() override
    {
        NativeReset();
        FakesReset();
    }
};

const HFONT dialogUnits = reinterpret_cast<HFONT>(static_cast<INT_PTR>(-1));

TEST_F(GridServices, DefaultsInUnitsOfA16PixelFont)
{
    const GridPtr grid(HGridCreate(nullptr, 0, HGX_DLGUNITS, 0, -1, -1, -1, 0));
    EXPECT_EQ(10, grid->nRowHeight);
    EXPECT_EQ(10, grid->nHdrHeight);
    EXPECT_EQ(22, grid->nHdrWidth);
}

TEST_F(GridServices, DefaultsInUnitsWithoutAScreenArePixels)
{
    Native().hasScreen = false;
    const GridPtr grid(HGridCreate(nullptr, 0, HGX_DLGUNITS, 0, -1, -1, -1, 0));
    EXPECT_EQ(20, grid->nRowHeight);
}

TEST_F(GridServices, ScaleFromUnitsToAFont)
{
    Native().charWidth = 7;
    Native().charHeight = 15;
    const GridPtr grid(HGridCreate(nullptr, 0, HGX_DLGUNITS, 0, 10, 22, 11, 0));
    HGAddFld(grid.get(), HGFieldCreate("a", 0, 33, 41, 's', 's', 0, 0, 5, 'e', 0, "", 0));
    EXPECT_EQ(1, HGridScale(grid.get(), dialogUnits, nullptr));
    EXPECT_EQ(20, grid->nMinRowHeight);
    EXPECT_EQ(39, grid->nHdrWidth);  // 22 * 7 / 4 = 38.5
    EXPECT_EQ(21, grid->nHdrHeight); // 11 * 15 / 8 = 20.625
    EXPECT_EQ(20, grid->nRowHeight); // 10 * 15 / 8 = 18.75, raised
    EXPECT_EQ(20, grid->nRowHeightDef);
    EXPECT_EQ(21, grid->nHdrHeightDef);
    EXPECT_EQ(58, HGGetField(grid.get(), 0)->nWidth);  // 57.75
    EXPECT_EQ(77, HGGetField(grid.get(), 0)->nHeight); // 76.875
}

TEST_F(GridServices, ScaleFromAFontToUnits)
{
    Native().charWidth = 8;
    Native().charHeight = 16;
    const GridPtr grid(HGridCreate(nullptr, 0, 0, 0, 40, 45, 30, 0));
    EXPECT_EQ(1, HGridScale(grid.get(), nullptr, dialogUnits));
    EXPECT_EQ(13, grid->nMinRowHeight);
    EXPECT_EQ(20, grid->nRowHeight);
    EXPECT_EQ(20, grid->nRowHeightDef);
    EXPECT_EQ(23, grid->nHdrWidth);
    EXPECT_EQ(15, grid->nHdrHeight);
}

TEST_F(GridServices, ScaleCutsNegativeSizesTowardsZero)
{
    const GridPtr grid(HGridCreate(nullptr, 0, 0, 0, 40, 45, 30, 0));
    grid->nHdrWidth = -3;
    EXPECT_EQ(1, HGridScale(grid.get(), dialogUnits, dialogUnits));
    EXPECT_EQ(-2, grid->nHdrWidth); // -3 + 0.5, cut
}

TEST_F(GridServices, ScaleWithoutBaseUnitsChangesNothing)
{
    const GridPtr grid(HGridCreate(nullptr, 0, 0, 0, 40, 45, 30, 0));
    Native().hasScreen = false;
    EXPECT_EQ(0, HGridScale(grid.get(), nullptr, dialogUnits));
    EXPECT_EQ(0, grid->nMinRowHeight);
    EXPECT_EQ(40, grid->nRowHeight);
    EXPECT_EQ(0, HGridScale(nullptr, dialogUnits, dialogUnits));
}

TEST_F(GridServices, ColumnsFollowTheResolutionOnceMoreWithEachCopy)
{
    const int before = fDpiScaling;
    fDpiScaling = 1;
    Native().dpiX = 192;
    Native().dpiY = 192;
    fDpiRead = 0;
    const FieldPtr field(HGFieldCreate("a", 0, 40, 60, 's', 's', 0, 0, 5, 'e', 0, "", 0));
    const FieldPtr copy(HGFldDup(field.get()));
    EXPECT_EQ(ScaleX(40), field->nWidth);
    EXPECT_EQ(ScaleX(ScaleX(40)), copy->nWidth);
    EXPECT_NE(40, field->nWidth);
    EXPECT_EQ(60, copy->nHeight);
    EXPECT_EQ(ScaleY(50), HGScaleY(50));
    EXPECT_EQ(UnscaleX(50), HGUnscaleX(50));
    EXPECT_EQ(UnscaleY(50), HGUnscaleY(50));
    fDpiScaling = before;
    fDpiRead = 0;
}

TEST_F(GridServices, RemovingTheCurrentColumnEndsItsEdit)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b") }, 0, 1);
    HGridCtl      ctl = ControlOf(grid.get());
    ctl.nCurCol = 1;
    EXPECT_EQ(1, HGRemoveFld(&ctl, 0));
    EXPECT_EQ(0, Fakes().detaches);
    EXPECT_EQ(1, Fakes().selectionRedraws);
    ctl.nCurCol = 0;
    EXPECT_EQ(1, HGRemoveFld(&ctl, 0));
    EXPECT_EQ(1, Fakes().detaches);
    EXPECT_EQ(2, Fakes().selectionRedraws);
}

TEST_F(GridServices, RemovingAColumnStopsIfTheEditTakesTheWindowAway)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b") }, 0, 1);
    HGridCtl      ctl = ControlOf(grid.get());
    ctl.nCurCol = 0;
    ctl.hWnd = NativeCreateWindow();
    Fakes().onDetachEditor = [](HGridCtl* gone) {
        NativeDestroyWindow(gone->hWnd);
        return 0;
    };
    EXPECT_EQ(0, HGRemoveFld(&ctl, 0));
    EXPECT_EQ(2, HGColCount(grid.get()));
    EXPECT_EQ(0, Fakes().selectionRedraws);
}

TEST_F(GridServices, RemovingAColumnStopsIfTheEditTakesTheColumnAway)
{
    const GridPtr grid = GridOf({ Number("a") }, 0, 1);
    HGridCtl      ctl = ControlOf(grid.get());
    ctl.nCurCol = 0;
    Fakes().onDetachEditor = [&](HGridCtl*) {
        HLListEmpty(grid->pFields);
        return 0;
    };
    EXPECT_EQ(0, HGRemoveFld(&ctl, 0));
}

TEST_F(GridServices, DestroyingAColumnDestroysItsWindowIfThereIsOne)
{
    NativeWindow  window;
    ControlHeader child = {};
    child.hWnd = NativeCreateWindow(window);
    HGField* const field = Number("a");
    field->pCtl = &child;
    HGFieldDestroy(field);
    EXPECT_FALSE(IsWindow(child.hWnd));
    HGField* const other = Number("b");
    other->pCtl = &child;
    HGFieldDestroy(other); // the window is gone already
    EXPECT_FALSE(IsWindow(child.hWnd));
}

// A list that knows items: codes, and the data of each.
class CodedColumn : public GridServices {
protected:
    void SetUp() override
    {
        child.hWnd = NativeCreateWindow();
        Native().onSendMessage = [this](HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
            return Answer(hwnd, message, wParam, lParam);
        };
        grid = EmptyGrid();
        HGAddFld(grid.get(), HGFieldCreate("a", HFF_CODE, 50, 50, 's', 's', 'n', 'l', 0, 'l', 0, "", 0));
        HGGetField(grid.get(), 0)->pCtl = &child;
    }
    void TearDown() override
    {
        if (grid && HGColCount(grid.get())) {
            HGGetField(grid.get(), 0)->pCtl = nullptr;
        }
    }
    LRESULT Answer(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
    {
        EXPECT_EQ(child.hWnd, hwnd);
        messages++;
        if (message == HLM_FINDCODE) {
            EXPECT_EQ(0u, wParam);
            const LONG code = LoadAs<LONG>(reinterpret_cast<void*>(lParam));
            return code < static_cast<LONG>(items.size()) ? code : -1;
        }
        EXPECT_EQ(HLM_GETDATA, message);
        if (static_cast<int>(wParam) < 0) {
            return 0;
        }
        _fstrnzcpy(reinterpret_cast<char*>(lParam), items[wParam].c_str(), 256);
        return 1;
    }
    void Fill(const std::vector<LONG>& codes)
    {
        AddRows(grid.get(), static_cast<int>(codes.size()));
        for (int row = 0; row < static_cast<int>(codes.size()); row++) {
            SetCell<LONG>(grid.get(), 0, row, codes[static_cast<size_t>(row)]);
        }
    }
    std::vector<LONG> Codes()
    {
        std::vector<LONG> codes;
        for (int row = 0; row < HGRowCount(grid.get()); row++) {
            codes.push_back(CellOf<LONG>(grid.get(), 0, row));
        }
        return codes;
    }

    ControlHeader            child = {};
    GridPtr                  grid;
    std::vector<std::string> items = { "pear", "apple", "fig" };
    int                      messages = 0;
};

TEST_F(CodedColumn, SortsByTheDataOfItsItems)
{
    Fill({ 0, 1, 2, 1 });
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ((std::vector<LONG>{ 1, 1, 2, 0 }), Codes());
    EXPECT_EQ(8, messages) << "each row is asked for once";
}

TEST_F(CodedColumn, SortsUnknownCodesAsNothing)
{
    Fill({ 0, 9, 1 });
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ((std::vector<LONG>{ 9, 1, 0 }), Codes());
}

TEST_F(CodedColumn, SortsTheSameWithoutMemory)
{
    for (int n = 1; n <= 2; n++) {
        HGridEmpty(grid.get());
        Fill({ 0, 1, 2, 1 });
        FailAllocation(n);
        HGSortRows(grid.get(), 0, true, nullptr);
        FailAllocation(0);
        EXPECT_EQ((std::vector<LONG>{ 1, 1, 2, 0 }), Codes()) << n;
    }
}

TEST_F(CodedColumn, OfAnotherKindSortsByTheStoredBytes)
{
    HGField* const field = HGGetField(grid.get(), 0);
    field->cKind = 'c';
    field->cClass = 'n';
    field->cType = 'l';
    Fill({ 2, 0, 1 });
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ((std::vector<LONG>{ 0, 1, 2 }), Codes());
    EXPECT_EQ(0, messages);
}

TEST_F(CodedColumn, StopsSortingIfTheListTakesRowsAway)
{
    Fill({ 2, 0, 1 });
    Native().onSendMessage = [this](HWND, UINT, WPARAM, LPARAM) {
        HLListRemove(grid->pRows, 0);
        return LRESULT{ 0 };
    };
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ((std::vector<LONG>{ 1 }), Codes());
}

} // namespace
