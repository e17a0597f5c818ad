// A navigator beside a million records, worked by the real mouse in the finished library.
#include "input/input_grid.h"

#include "input/hand.h"
#include "support/pixels.h"

#include <cstring>

namespace {

constexpr int firstId = 4188;
constexpr int lastId = 4189;
constexpr int newId = 4190;
constexpr int scrollId = 1;

constexpr int recordCount = 1000000;

int gFetches;

int CALLBACK Records(HWND, int operation, int record, void* buffer)
{
    if (operation == HGSRC_COUNT) {
        return recordCount;
    }
    if (operation != HGSRC_FETCH || record < 0 || record >= recordCount) {
        return operation == HGSRC_APPEND;
    }
    ++gFetches;
    std::memcpy(buffer, &record, sizeof record);
    return 1;
}

class GridNavigatorInput : public InputGrid {
protected:
    ~GridNavigatorInput() override { MoveMouse(parent.hwnd(), 0, 0); }
    void MakeMillion()
    {
        constexpr DWORD style = headers | HGS_NAVIGATOR | HGS_NEWROW;
        grid = Create("HGrid", "", style);
        HGridData* const data = HGridCreate("records", style | WS_VSCROLL, 0, 0, 20, 40, 20, 0);
        HGInsertFld(data, HGFieldCreate("Number", 0, 80, 0, 'n', 'l', 0, 0, 0, 'e', 0, "", 0), 0);
        SendPtr(grid, HGM_SETDATA, 1, data);
        columnCount = 1;
        SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(Records));
        Send(grid, HGM_SETTOTAL, 0, recordCount);
        SetFocus(grid);
        UpdateWindow(grid);
        Clear();
        gFetches = 0;
    }
    void Press(int id)
    {
        const int half = GetSystemMetrics(SM_CXVSCROLL) / 2;
        ClickAt(GetDlgItem(grid, id), half, half);
    }
    long Record() const { return static_cast<long>(Current().row + Send(grid, HGM_GETROWBASE)); }
    void ExpectAt(long record, const char* what)
    {
        EXPECT_EQ(record, Record()) << what;
        EXPECT_LE(TopRow(), record) << what;
        EXPECT_GE(TopRow() + 9, record) << what;
        if (record < recordCount) {
            EXPECT_EQ(std::to_string(record), Text(0, Current().row)) << what;
        }
        EXPECT_EQ(grid, GetFocus()) << what;
    }
    int BarHeight() const
    {
        RECT bar = {};
        GetClientRect(GetDlgItem(grid, scrollId), &bar);
        return bar.bottom;
    }
};

TEST_F(GridNavigatorInput, ButtonsReachBothEndsAndTheNewRecord)
{
    MakeMillion();
    Press(newId);
    ExpectAt(recordCount, "new");
    Press(lastId);
    ExpectAt(recordCount - 1, "last");
    Press(firstId);
    ExpectAt(0, "first");
    EXPECT_EQ(3, parent.Count(HGN_NAVIGATE));
    EXPECT_LT(gFetches, 300);
    SavePixels(ShotOf(grid), "navigator");
}

TEST_F(GridNavigatorInput, BarScrollsByRowsAndPages)
{
    MakeMillion();
    const HWND bar = GetDlgItem(grid, scrollId);
    const int  half = GetSystemMetrics(SM_CXVSCROLL) / 2;
    ClickAt(bar, half, BarHeight() - 3);
    ExpectAt(1, "a row down");
    ClickAt(bar, half, BarHeight() - GetSystemMetrics(SM_CYVSCROLL) - 5);
    EXPECT_EQ(9, TopRow());
    ExpectAt(Record(), "a page down");
    const long before = Record();
    ClickAt(bar, half, 3);
    EXPECT_EQ(8, TopRow());
    ExpectAt(before - 1, "a row up");
}

TEST_F(GridNavigatorInput, ThumbIsDraggedToTheMiddleOfAllRecords)
{
    MakeMillion();
    const HWND    bar = GetDlgItem(grid, scrollId);
    const int     half = GetSystemMetrics(SM_CXVSCROLL) / 2;
    SCROLLBARINFO info = {};
    info.cbSize = sizeof info;
    GetScrollBarInfo(bar, static_cast<LONG>(OBJID_CLIENT), &info);
    POINT middle = { half, BarHeight() / 2 };
    ClientToScreen(bar, &middle);
    const DWORD thread = GetCurrentThreadId();
    const auto  isHeld = [&] {
        GUITHREADINFO state = {};
        state.cbSize = sizeof state;
        return GetGUIThreadInfo(thread, &state) && state.hwndCapture == bar;
    };
    const auto isInTheMiddle = [&] {
        SCROLLINFO track = { sizeof track, SIF_TRACKPOS | SIF_RANGE, 0, 0, 0, 0, 0 };
        return GetScrollInfo(bar, SB_CTL, &track) && track.nTrackPos > track.nMax * 2 / 5;
    };
    Hand hand(isHeld, [&] {
        Hand::MoveTo(middle);
        Hand::WaitFor(isInTheMiddle);
        Hand::Lift(middle);
    });
    PressButton(bar, half, (info.xyThumbTop + info.xyThumbBottom) / 2); // comes back when the drag is over
    EXPECT_TRUE(PumpUntil([&] { return hand.IsDone(); }));
    EXPECT_TRUE(hand.HeldInTime());
    EXPECT_GT(TopRow(), 400000);
    EXPECT_LT(TopRow(), 600000);
    EXPECT_EQ(std::to_string(TopRow()), Text(0, TopRow() - static_cast<int>(Send(grid, HGM_GETROWBASE))));
    EXPECT_LT(gFetches, 300);
}

} // namespace
