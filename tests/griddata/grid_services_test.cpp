// What the data side of a grid asks of others, with stand-ins for them: base units, the screen's resolution, the
// editor of a column that goes, the windows of cell controls, and the list behind codes. Native only.
#include "griddata/grid_bytes.h"
#include "griddata/grid_maker.h"

#include "foundation/screen.h"
#include "foundation/startup.h"
#include "griddata/cell_access.h"
#include "native/grid_fakes.h"
#include "native/native_platform.h"

#include <algorithm>
#include <cstring>

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

TEST_F(GridServices, ColumnsFollowTheResolutionOnceMoreWhenTheyAreLoaded)
{
    const GridPtr           grid = GridOf({ HGFieldCreate("a", 0, 40, 60, 's', 's', 0, 0, 5, 'e', 0, "", 0) });
    const std::vector<BYTE> bytes = SavedBytes(grid.get(), 0x484A);
    const int               before = fDpiScaling;
    fDpiScaling = 1;
    Native().dpiX = 192;
    Native().dpiY = 192;
    fDpiRead = 0;
    const GridPtr loaded(LoadBytes(bytes));
    EXPECT_EQ(ScaleX(40), HGGetField(loaded.get(), 0)->nWidth);
    EXPECT_NE(40, HGGetField(loaded.get(), 0)->nWidth);
    fDpiScaling = before;
    fDpiRead = 0;
}

TEST_F(GridServices, RemovingAColumnEndsTheEditOfTheCurrentOneWhicheverItIs)
{
    const GridPtr grid = GridOf({ Number("a"), Number("b") }, 0, 1);
    HGridCtl      ctl = ControlOf(grid.get());
    ctl.nCurCol = 1;
    EXPECT_EQ(1, HGRemoveFld(&ctl, 0));
    EXPECT_EQ(1, Fakes().detaches);
    EXPECT_EQ(1, Fakes().selectionRedraws);
    ctl.nCurCol = 0;
    EXPECT_EQ(1, HGRemoveFld(&ctl, 0));
    EXPECT_EQ(2, Fakes().detaches);
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
        void* const bytes = reinterpret_cast<void*>(lParam);
        const int   index = static_cast<int>(wParam);
        switch (message) {
        case HLM_FINDCODE: EXPECT_EQ(0, index); return IndexOfCode(LoadAs<LONG>(bytes));
        case HLM_FINDDATA: EXPECT_EQ(0, index); return IndexOfData(static_cast<const char*>(bytes));
        case HLM_GETDATA: return CopyData(index, static_cast<char*>(bytes));
        case HLM_GETCODE: return CopyCode(index, bytes);
        default: ADD_FAILURE() << message; return 0;
        }
    }
    bool Has(LONG index) const { return index >= 0 && index < static_cast<LONG>(items.size()); }
    int  IndexOfCode(LONG code) const { return Has(code - firstCode) ? code - firstCode : -1; }
    int  IndexOfData(const std::string& data) const
    {
        const auto found = std::find(items.begin(), items.end(), data);
        return found == items.end() ? -1 : static_cast<int>(found - items.begin());
    }
    // As a list does, which answers the index -1 with its last item.
    int ItemAt(int index) const { return index < 0 ? static_cast<int>(items.size()) - 1 : index; }
    int CopyData(int index, char* out) const
    {
        if (!Has(ItemAt(index))) {
            return 0;
        }
        _fstrnzcpy(out, items[static_cast<size_t>(ItemAt(index))].c_str(), 256);
        return 1;
    }
    int CopyCode(int index, void* out) const
    {
        if (!Has(ItemAt(index))) {
            return 0;
        }
        StoreAs<LONG>(out, ItemAt(index) + firstCode);
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
    LONG                     firstCode = 0; // that of the first item; the others count up
    int                      messages = 0;
};

TEST_F(CodedColumn, SortsByTheDataOfItsItems)
{
    Fill({ 0, 1, 2, 1 });
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ((std::vector<LONG>{ 1, 1, 2, 0 }), Codes());
    EXPECT_EQ(8, messages) << "each row is asked for once";
}

TEST_F(CodedColumn, SortsUnknownCodesAsTheLastItem)
{
    Fill({ 0, 9, 1 });
    HGSortRows(grid.get(), 0, true, nullptr);
    EXPECT_EQ((std::vector<LONG>{ 1, 9, 0 }), Codes()) << "apple, fig for the unknown one, pear";
    items.clear();
    Fill({});
    HGSortRows(grid.get(), 0, false, nullptr);
    EXPECT_EQ((std::vector<LONG>{ 1, 9, 0 }), Codes()) << "without items all are alike";
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

// A column of codes 70, 71 and 72 whose cells are read and written as texts.
class CodedCell : public CodedColumn {
protected:
    void SetUp() override
    {
        CodedColumn::SetUp();
        firstCode = 70;
        AddRows(grid.get(), 1);
        ctl = ControlOf(grid.get());
    }
    HGField* Field() { return HGGetField(grid.get(), 0); }
    LONG     Code() { return CellOf<LONG>(grid.get(), 0, 0); }
    void     SetCode(LONG code) { SetCell<LONG>(grid.get(), 0, 0, code); }
    int      Parse(const char* text) { return HGParseCell(&ctl, 0, 0, text); }
    // The text, which is as long as the result says.
    std::string Format()
    {
        char      out[20] = "?";
        const int length = HGFormatCell(&ctl, 0, 0, out, sizeof out, 0);
        EXPECT_EQ(std::strlen(out), static_cast<size_t>(length));
        return out;
    }

    HGridCtl ctl = {};
};

TEST_F(CodedCell, ShowsTheDataOfItsCode)
{
    SetCode(71);
    for (const char kind : { 'l', 'd', 'c' }) {
        Field()->cKind = kind;
        EXPECT_EQ("apple", Format()) << kind;
    }
}

TEST_F(CodedCell, ShowsAnUnknownCodeAsAnEmptyValue)
{
    SetCode(9);
    EXPECT_EQ("", Format());
    EXPECT_EQ(1, messages) << "nothing is asked for an item that isn't there";
    Field()->cClass = 'n';
    Field()->cType = 'l';
    EXPECT_EQ("0", Format()) << "the empty value of a number is a zero";
}

TEST_F(CodedCell, ShowsItsOwnBytesInAKindWithoutAList)
{
    SetCode(71);
    Field()->cKind = 'e';
    Field()->cClass = 'n';
    Field()->cType = 'l';
    EXPECT_EQ("71", Format());
    EXPECT_EQ(0, messages);
}

TEST_F(CodedCell, StoresTheCodeOfItsData)
{
    for (const char kind : { 'l', 'd' }) {
        SetCode(0);
        Field()->cKind = kind;
        EXPECT_EQ(1, Parse("fig")) << kind;
        EXPECT_EQ(72, Code()) << kind;
    }
}

TEST_F(CodedCell, OfKindCStoresParsedDataAsTheyStandAlthoughTheListKnowsACode)
{
    items = { "12", "13" };
    Field()->cKind = 'c';
    EXPECT_EQ(1, Parse("13"));
    EXPECT_EQ(0, std::memcmp("13\0", CellAt(grid.get(), 0, 0), 4)) << "the text, not code 71";
    EXPECT_EQ(0, messages);
}

TEST_F(CodedCell, StoresTheCodeOfTheLastItemWhereTheListDoesNotKnowTheData)
{
    EXPECT_EQ(1, Parse("plum"));
    EXPECT_EQ(72, Code());
}

TEST_F(CodedCell, StoresTheBytesOfTheDataWhereTheListIsEmpty)
{
    items.clear();
    EXPECT_EQ(1, Parse("fig"));
    EXPECT_EQ(0, std::memcmp("fig", CellAt(grid.get(), 0, 0), 4)) << "nothing overwrote them";
}

TEST_F(CodedCell, IsNotReadOrWrittenWhereItsListTakesTheColumnAway)
{
    SetCode(71);
    Native().onSendMessage = [this](HWND, UINT, WPARAM, LPARAM) {
        child.hWnd = nullptr;
        ctl.pData = nullptr;
        grid.reset();
        return LRESULT{ -1 };
    };
    char      out[20] = "?";
    const int live = LiveBlocks();
    EXPECT_EQ(0, HGFormatCell(&ctl, 0, 0, out, sizeof out, 0));
    EXPECT_STREQ("", out);
    EXPECT_GT(live, LiveBlocks()) << "it went";
}

TEST_F(CodedCell, IsNotWrittenWhereItsListTakesTheDataAway)
{
    Native().onSendMessage = [this](HWND, UINT, WPARAM, LPARAM) {
        child.hWnd = nullptr;
        ctl.pData = nullptr;
        grid.reset();
        return LRESULT{ -1 };
    };
    EXPECT_EQ(0, Parse("fig"));
    EXPECT_EQ(nullptr, grid);
}

TEST_F(CodedCell, WithoutItsListHasNoTextAndTakesNone)
{
    SetCode(71);
    Field()->pCtl = nullptr;
    EXPECT_EQ("", Format());
    EXPECT_EQ(0, Parse("fig"));
    EXPECT_EQ(71, Code());
}

} // namespace
