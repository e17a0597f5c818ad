// Moves whose current cell lies far from what the view shows: they aim at records, not at what is loaded.
#include "gridctl/grid_editing.h"
#include "support/pixels.h"

#include <functional>

namespace {

class GridViewAway : public GridEditing {
protected:
    // The current cell in a record, the view far from it.
    void MakeAway(LONG current, LONG top)
    {
        source.count = 100000;
        MakeSourceGrid();
        SetFocus(grid);
        Send(grid, HGM_GOTORECORD, 0, current);
        Send(grid, HGM_SETTOPRECORD, static_cast<WPARAM>(top));
        Forget();
    }
};

struct Way {
    const char* what;
    LONG        way; // records from the current one on
    void (*run)(HWND grid, LONG record);
};

constexpr Way ways[] = {
    { "Up", -1, [](HWND g, LONG) { SendMessageA(g, WM_KEYDOWN, VK_UP, 1); } },
    { "up message", -1, [](HWND g, LONG) { SendMessageA(g, HGM_KEYUP, 0, 0); } },
    { "one back", -1, [](HWND g, LONG record) { SendMessageA(g, HGM_GOTORECORD, 0, record - 1); } },
    { "the same", 0, [](HWND g, LONG record) { SendMessageA(g, HGM_GOTORECORD, 0, record); } },
    { "one on", 1, [](HWND g, LONG record) { SendMessageA(g, HGM_GOTORECORD, 0, record + 1); } },
    { "far back", -300, [](HWND g, LONG record) { SendMessageA(g, HGM_GOTORECORD, 0, record - 300); } },
    { "farther back", -800, [](HWND g, LONG record) { SendMessageA(g, HGM_GOTORECORD, 0, record - 800); } },
};

// A view that moves takes the current cell along to the block's edge: the record to start from is the one left there.
TEST_F(GridViewAway, EachMoveReachesItsRecord)
{
    for (const LONG top : { 0, 500, 950, 1050, 50000, 99990 }) {
        for (const Way& way : ways) {
            SCOPED_TRACE(std::string(way.what) + " with the view at " + std::to_string(top));
            MakeAway(1000, top);
            const LONG from = CurrentRecord();
            way.run(grid, from);
            EXPECT_EQ(std::max<LONG>(from + way.way, 0), CurrentRecord());
            ExpectRowsAreRecords();
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridViewAway, PagesAndEndsAreReachedFromTheLastRecordsOn)
{
    for (const int height : { 200, 203, 211 }) {
        SCOPED_TRACE(height);
        source.count = 100000;
        MakeSourceGrid();
        SetWindowPos(grid, nullptr, 0, 0, 400, height, SWP_NOMOVE | SWP_NOZORDER);
        SetFocus(grid);
        Send(grid, HGM_KEYLAST);
        EXPECT_EQ(99999, CurrentRecord());
        const int page = std::max(ctl->cPageRows - 1, 1);
        for (LONG record = 99999; record > 99900; record -= page) {
            EXPECT_EQ(record, CurrentRecord());
            Send(grid, WM_KEYDOWN, VK_PRIOR);
        }
        Send(grid, HGM_KEYLAST);
        Send(grid, HGM_KEYFIRST);
        EXPECT_EQ(0, CurrentRecord());
        for (const LONG record : { 99950, 500, 99999, 0, 32765, 32768, 1 }) {
            Send(grid, HGM_GOTORECORD, 0, record);
            EXPECT_EQ(record, CurrentRecord());
        }
        DestroyWindow(grid);
    }
}

// Ways of more than 32765 rows go by a scroll first.
TEST_F(GridViewAway, EntryRowBehindManyRecordsIsReached)
{
    source.count = 100000;
    MakeSourceGrid(gridStyle | HGS_NEWROW);
    SetFocus(grid);
    HGKeyNavigate(ctl, VK_NEXT, false, true);
    EXPECT_EQ(99999, CurrentRecord());
    Send(grid, HGM_KEYFIRST);
    EXPECT_EQ(0, CurrentRecord());
    // Settled: a way that begins with a scroll is taken anew without what keeps it before the entry row.
    HGKeyNavigate(ctl, VK_END, false, true);
    EXPECT_EQ(100000, CurrentRecord());
    Send(grid, HGM_KEYFIRST);
    MoveTo(1, 0);
    HGKeyNavigate(ctl, VK_RETURN, true, false);
    EXPECT_EQ(100000, CurrentRecord());
    EXPECT_EQ(0, Current().col);
    EXPECT_EQ(HGR_NEW, RowFlags(Current().row));
    ExpectRowsAreRecords();
}

// The view is scrolled away across; a move to the same cell brings it back, and the editor with it.
TEST_F(GridViewAway, EditorComesBackWithItsColumn)
{
    MakeGrid(GridOf({ Text(), Text(), Text(), Text(), Text(), Text(), Text() }), 3);
    SetFocus(grid);
    MoveTo(6, 1);
    RECT before;
    GetWindowRect(Editor(), &before);
    for (const bool byKey : { true, false }) {
        Send(grid, WM_HSCROLL, SB_PAGELEFT);
        RECT away;
        GetWindowRect(Editor(), &away);
        ASSERT_FALSE(EqualRect(&before, &away));
        if (byKey) {
            Send(grid, WM_KEYDOWN, VK_RIGHT);
        } else {
            MoveTo(6, 1);
        }
        RECT back;
        GetWindowRect(Editor(), &back);
        EXPECT_TRUE(EqualRect(&before, &back)) << (byKey ? "by key" : "by message");
        EXPECT_TRUE(IsWindowVisible(Editor()));
    }
}

// The thumb leaves the current cell to the block's edge without showing it; the scroll of the next move paints its header.
TEST_F(GridViewAway, MoveLeavesOneRowHeaderCurrent)
{
    struct Case {
        const char* what;
        WORD        thumb;
        UINT        message;
        WPARAM      wParam;
    };
    constexpr Case cases[] = {
        { "Up", 500, WM_KEYDOWN, VK_UP },           { "Down", 100, WM_KEYDOWN, VK_DOWN },
        { "line up", 700, WM_VSCROLL, SB_LINEUP },  { "line down", 300, WM_VSCROLL, SB_LINEDOWN },
        { "Page Up", 600, WM_KEYDOWN, VK_PRIOR },   { "Page Down", 200, WM_KEYDOWN, VK_NEXT },
        { "page up", 800, WM_VSCROLL, SB_PAGEUP },  { "page down", 400, WM_VSCROLL, SB_PAGEDOWN },
        { "Up again", 900, WM_KEYDOWN, VK_UP },     { "Right", 50, WM_KEYDOWN, VK_RIGHT },
    };
    for (const DWORD style : { gridStyle, gridStyle | HGS_READONLY }) {
        source.count = 1000;
        MakeSourceGrid(style);
        SetFocus(grid);
        MoveTo(1, 0);
        for (const Case& c : cases) {
            SCOPED_TRACE(std::string(c.what) + (style & HGS_READONLY ? ", read-only" : ""));
            Send(grid, WM_VSCROLL, MAKEWPARAM(SB_THUMBPOSITION, c.thumb));
            ASSERT_FALSE(IsFlag(HGC_CELLSHOWN));
            ShotOf(grid);
            Send(grid, c.message, c.wParam);
            const Pixels moved = ShotOf(grid);
            InvalidateRect(grid, nullptr, TRUE);
            EXPECT_TRUE(SamePixels(ShotOf(grid), moved));
        }
        DestroyWindow(grid);
    }
}

struct AwayStep {
    UINT     message; // WM_KEYDOWN: a key
    WORD     code;
    unsigned modifiers;
    int      rows; // of a range that is selected before
};

constexpr AwayStep awaySteps[] = {
    { WM_KEYDOWN, VK_NEXT, withNone, 3 },     { WM_KEYDOWN, VK_PRIOR, withNone, 2 },
    { WM_VSCROLL, SB_PAGEDOWN, withNone, 4 }, { WM_VSCROLL, SB_PAGEUP, withNone, 2 },
    { WM_VSCROLL, SB_PAGEUP, withNone, 5 },   { WM_KEYDOWN, VK_NEXT, withShift, 3 },
    { WM_KEYDOWN, VK_NEXT, withShift, 0 },    { WM_KEYDOWN, VK_NEXT, withShift, 0 },
    { WM_KEYDOWN, VK_NEXT, withShift, 0 },    { WM_KEYDOWN, VK_PRIOR, withShift, 0 },
    { WM_KEYDOWN, VK_PRIOR, withShift, 0 },   { WM_KEYDOWN, VK_PRIOR, withShift, 0 },
    { WM_KEYDOWN, VK_PRIOR, withNone, 1 },    { WM_VSCROLL, SB_LINEUP, withNone, 1 },
};

class GridViewPages : public GridViewAway {
protected:
    // A page of nine whole rows, and more pixels under it.
    void MakePages(int more)
    {
        source.count = 1000;
        MakeSourceGrid(gridStyle | HGS_READONLY);
        RECT window;
        GetWindowRect(grid, &window);
        SetWindowPos(grid, nullptr, 0, 0, static_cast<int>(window.right - window.left),
                     static_cast<int>(window.bottom - window.top) + more, SWP_NOMOVE | SWP_NOZORDER);
        SetFocus(grid);
    }
    Pixels ShotBehind(const AwayStep& step)
    {
        if (step.rows > 0) {
            MoveTo(0, Current().row);
            Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(1, Current().row + step.rows)));
        }
        ShotOf(grid);
        if (step.message == WM_KEYDOWN) {
            TypeKey(step.code, step.modifiers);
        } else {
            Send(grid, step.message, step.code);
        }
        return ShotOf(grid);
    }
    void ForEachStep(const std::function<void(const AwayStep& step)>& check)
    {
        for (const LONG record : { 300, 20, 11, 5 }) {
            Send(grid, HGM_GOTORECORD, 0, record);
            for (const AwayStep& step : awaySteps) {
                SCOPED_TRACE(testing::Message() << "from " << record << ", step " << &step - awaySteps);
                check(step);
            }
        }
    }
};

// The page is a whole number of rows, so the line under its last row is the last row of pixels.
TEST_F(GridViewPages, RangeThatTheBlockLeavesBehindLeavesNothingInverted)
{
    MakePages(0);
    ForEachStep([this](const AwayStep& step) {
        const Pixels moved = ShotBehind(step);
        InvalidateRect(grid, nullptr, TRUE);
        EXPECT_TRUE(SamePixels(ShotOf(grid), moved));
    });
}

// What shows under the page is a piece of the next record, or nothing. Each row of the page is once the current one.
TEST_F(GridViewPages, NothingInvertedIsLeftUnderThePage)
{
    MakePages(10);
    for (int row = 0; row < 9; ++row) {
        Send(grid, HGM_GOTORECORD, 0, 300);
        for (int page = 0; page < 6; ++page) {
            SCOPED_TRACE(testing::Message() << "row " << row << ", page " << page);
            MoveTo(0, ctl->nTopRow + row);
            ShotOf(grid);
            TypeKey(VK_PRIOR);
            const Pixels moved = ShotOf(grid);
            const RECT   under = { 40, 200, 120, 210 };
            EXPECT_LT(moved.Count(RGB(0, 0, 0), under), 80 * 10 / 4);
        }
    }
}

} // namespace
