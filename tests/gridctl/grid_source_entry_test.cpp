// What a user enters over a row source comes to its own record: entry rows, presets, blocks that move under an editor.
#include "gridctl/grid_editing.h"

#include <cstring>
#include <string>
#include <vector>

namespace {

struct Stored {
    LONG number;
    char text[16];
};

// A host's data, which takes what is entered.
std::vector<Stored> gStored;
std::vector<int>    gWrittenBack;
bool                gTakesUpdates = true;

int CALLBACK StoringSource(HWND, int operation, int record, void* buffer)
{
    const int  count = static_cast<int>(gStored.size());
    const bool exists = record >= 0 && record < count;
    switch (operation) {
    case HGSRC_COUNT: return count;
    case HGSRC_FETCH:
        if (exists) {
            std::memcpy(buffer, &gStored[static_cast<size_t>(record)], sizeof(Stored));
        }
        return exists;
    case HGSRC_APPEND: {
        Stored added;
        std::memcpy(&added, buffer, sizeof added);
        gStored.push_back(added);
        return 1;
    }
    case HGSRC_INSERT: {
        Stored added;
        std::memcpy(&added, buffer, sizeof added);
        gStored.insert(gStored.begin() + record, added);
        return 1;
    }
    case HGSRC_UPDATE:
    case HGSRC_WRITEBACK:
        if (operation == HGSRC_WRITEBACK) {
            gWrittenBack.push_back(record);
        } else if (!gTakesUpdates) {
            return 0;
        }
        if (exists) {
            std::memcpy(&gStored[static_cast<size_t>(record)], buffer, sizeof(Stored));
        }
        return exists;
    default: return 0;
    }
}

class GridSourceEntry : public GridEditing {
protected:
    void MakeStoring(int count, DWORD style = gridStyle | HGS_NEWROW)
    {
        gStored.clear();
        gWrittenBack.clear();
        gTakesUpdates = true;
        for (int i = 0; i < count; ++i) {
            Append(i);
        }
        MakeGrid(GridOf({ Number(), Text() }, style));
        SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(StoringSource));
        Send(grid, HGM_SETTOTAL, 0, count);
        PumpPending();
    }
    void Append(int number)
    {
        Stored row = {};
        row.number = number;
        std::strcpy(row.text, ("t" + std::to_string(number)).c_str());
        gStored.push_back(row);
    }
    int Rows() { return HGRowCount(ctl->pData); }
};

TEST_F(GridSourceEntry, NewRecordBehindThePageIsTypedOn)
{
    MakeStoring(1000);
    SetFocus(grid);
    TypeKey(VK_END, withCtrl);
    TypeKey(VK_DOWN);
    MoveTo(0, Rows() - 1);
    ASSERT_TRUE(RowFlags(Current().row) & HGR_NEW);
    TypeText("77");
    TypeKey(VK_TAB);
    PumpPending();
    EXPECT_EQ(1000, RecordOfRow(ctl, Current().row));
    TypeText("next");
    TypeKey(VK_UP);
    PumpPending();
    ASSERT_EQ(1001u, gStored.size());
    EXPECT_EQ(77, gStored.back().number);
    EXPECT_STREQ("next", gStored.back().text);
}

TEST_F(GridSourceEntry, CellThatStaysLoadedKeepsItsEditorWhereverTheBlockMoves)
{
    MakeStoring(1000, gridStyle);
    SetFocus(grid);
    Send(grid, HGM_GOTORECORD, 0, 500);
    for (const LONG top : { 495, 492, 499, 493, 500, 492 }) {
        Send(grid, HGM_SETTOPRECORD, static_cast<WPARAM>(top));
        SCOPED_TRACE(top);
        ASSERT_EQ(500, RecordOfRow(ctl, Current().row));
        ExpectOwnEditor();
    }
    TypeText("5");
    EXPECT_EQ(Editor(), GetFocus());
    Send(grid, HGM_SETTOPRECORD, 499);
    EXPECT_EQ(Editor(), GetFocus()) << "an edit goes on";
    ASSERT_EQ(500, RecordOfRow(ctl, Current().row));
}

TEST_F(GridSourceEntry, EntryRowBecomesTheRecordThatTheSourceHasGotMeanwhile)
{
    for (const bool total : { false, true }) {
        for (const int more : { 1, 3 }) {
            SCOPED_TRACE(testing::Message() << "by the total " << total << ", more " << more);
            MakeStoring(5);
            ASSERT_EQ(6, Rows());
            for (int i = 0; i < more; ++i) {
                Append(5 + i);
            }
            if (total) {
                Send(grid, HGM_SETTOTAL, 0, 5 + more);
            } else {
                Send(grid, HGM_REFRESH, 1);
            }
            ASSERT_EQ(6 + more, Rows());
            for (int row = 0; row < 5 + more; ++row) {
                EXPECT_EQ(std::to_string(row), CellText(0, row));
                EXPECT_FALSE(RowFlags(row) & HGR_NEW) << row;
            }
            EXPECT_TRUE(RowFlags(5 + more) & HGR_NEW);
            SetText(1, 5 + more, "typed");
            ASSERT_EQ(static_cast<size_t>(6 + more), gStored.size());
            EXPECT_STREQ("t5", gStored[5].text);
            EXPECT_STREQ("typed", gStored.back().text);
            DestroyWindow(grid);
        }
    }
}

TEST_F(GridSourceEntry, EntryRowThatIsTypedIntoStaysOne)
{
    MakeStoring(5);
    StandOn(1, 5);
    TypeText("mine");
    Append(5);
    Send(grid, HGM_SETTOTAL, 0, 6);
    EXPECT_EQ("mine", TextOf(Editor()));
    EXPECT_TRUE(RowFlags(5) & HGR_NEW);
}

TEST_F(GridSourceEntry, RecordThatTheBlockLeavesBehindIsReplacedInTheMirrorAndTold)
{
    MakeStoring(1000, gridStyle);
    SetFocus(grid);
    Stored mirror = {};
    SendPtr(grid, HGM_SETROWMIRROR, 0, &mirror);
    Send(grid, HGM_GOTORECORD, 0, 999);
    ASSERT_EQ(999, mirror.number);
    Send(grid, HGM_SETTOPRECORD, 500);
    const LONG now = RecordOfRow(ctl, Current().row);
    ASSERT_NE(999, now);
    EXPECT_EQ(now, mirror.number);
    parent.ClearCounts();
    MoveTo(1, Current().row);
    EXPECT_EQ(1, parent.Count(HGN_ROWCHANGED));
    MoveTo(0, Current().row);
    EXPECT_EQ(1, parent.Count(HGN_ROWCHANGED)) << "once";
    Send(grid, HGM_SETROWMIRROR, 0, 0);
}

TEST_F(GridSourceEntry, OtherColumnsStoreNoBlankRecordsAndLoseNoChanges)
{
    MakeStoring(30);
    gTakesUpdates = false;
    SetText(1, 3, "changed");
    StandOn(1, 4);
    TypeText("typed");
    SendPtr(grid, HGM_SETDATA, 1, GridOf({ Number(), Text() }, gridStyle | HGS_NEWROW, 0, 40));
    PumpPending();
    EXPECT_EQ(30u, gStored.size());
    EXPECT_STREQ("changed", gStored[3].text);
    EXPECT_STREQ("typed", gStored[4].text);
    EXPECT_EQ((std::vector<int>{ 4, 3 }), gWrittenBack);
    EXPECT_EQ("changed", CellText(1, 3));
    EXPECT_EQ("typed", CellText(1, 4));
}

TEST_F(GridSourceEntry, InsertedRowsLeaveTheCurrentRecordAndTheEntryRow)
{
    MakeStoring(30);
    SetFocus(grid);
    Send(grid, HGM_GOTORECORD, 0, 25);
    Send(grid, HGM_KEYLAST);
    Send(grid, HGM_GOTORECORD, 0, 25);
    const LONG current = RecordOfRow(ctl, Current().row);
    ASSERT_TRUE(RowFlags(Rows() - 1) & HGR_NEW);
    for (int i = 0; i < 2; ++i) {
        Stored row = { 500 + i, "inserted" };
        EXPECT_LT(0, SendPtr(grid, HGM_INSERTROW, static_cast<WPARAM>(Current().row + 1), &row));
        Send(grid, HGM_REFRESH, 1);
        EXPECT_EQ(current, RecordOfRow(ctl, Current().row));
        EXPECT_TRUE(RowFlags(Rows() - 1) & HGR_NEW);
    }
}

class GridPresets : public GridSourceEntry {
protected:
    // A host that presets each new record.
    void PresetNewRows()
    {
        parent.On(HGN_NEWROW, [this] {
            const Cell row = UnpackCell(static_cast<DWORD>(Send(grid, HGM_GETPROPOSED)));
            if (++presets < 50) {
                HGSetCellText(grid, 1, row.row, "today");
            }
        });
    }
    int presets = 0;
};

TEST_F(GridPresets, PresetEntryRowStaysOneAndBringsNoOther)
{
    MakeGrid(GridOf({ Number(), Text() }, gridStyle | HGS_NEWROW), 0);
    PresetNewRows();
    HGSetCellText(grid, 0, 0, "1");
    EXPECT_EQ(1, presets);
    EXPECT_EQ(2, Rows());
    EXPECT_EQ("today", CellText(1, 1));
    EXPECT_EQ(HGR_NEW, Send(grid, HGM_GETROWFLAGS, 1));
    HGSetCellText(grid, 0, 1, "2");
    EXPECT_EQ(2, presets);
    EXPECT_EQ(3, Rows());
    EXPECT_EQ("today", CellText(1, 1));
    EXPECT_EQ("2", CellText(0, 1));
}

TEST_F(GridPresets, PresetEntryRowOfASourceIsARecordOnlyOnceItIsEntered)
{
    MakeStoring(5);
    presets = 0;
    PresetNewRows();
    Send(grid, HGM_RESET);
    SetWindowPos(grid, nullptr, 0, 0, 300, 150, SWP_NOMOVE | SWP_NOZORDER);
    Send(grid, HGM_REFRESH, 1);
    EXPECT_EQ(5u, gStored.size());
    EXPECT_EQ(6, Rows());
    EXPECT_EQ("today", CellText(1, 5));
    HGSetCellText(grid, 0, 5, "9");
    ASSERT_EQ(6u, gStored.size());
    EXPECT_EQ(9, gStored[5].number);
    EXPECT_STREQ("today", gStored[5].text);
    EXPECT_EQ(7, Rows());
}

class GridViewReturns : public GridEditing {};

TEST_F(GridViewReturns, FirstAndLastRecordAreShownWhereTheyAreCurrentAlready)
{
    struct Way {
        const char* what;
        int         row;
        void (*run)(HWND grid, int row);
    };
    constexpr Way ways[] = {
        { "Ctrl+Home", 0, [](HWND, int) { TypeKey(VK_HOME, withCtrl); } },
        { "the first message", 0, [](HWND g, int) { SendMessageA(g, HGM_KEYFIRST, 0, 0); } },
        { "a record", 40, [](HWND g, int row) { SendMessageA(g, HGM_GOTORECORD, 0, row); } },
        { "a record above", 3, [](HWND g, int row) { SendMessageA(g, HGM_GOTORECORD, 0, row); } },
    };
    for (const Way& way : ways) {
        SCOPED_TRACE(way.what);
        MakeGrid(GridOf({ Number(), Text() }), 100);
        SetFocus(grid);
        MoveTo(0, way.row);
        Send(grid, HGM_SETTOPRECORD, way.row == 40 ? 0 : 60);
        parent.ClearCounts();
        way.run(grid, way.row);
        EXPECT_LE(ctl->nTopRow, way.row);
        EXPECT_GT(ctl->nTopRow + ctl->cPageRows, way.row);
        EXPECT_CELL(0, way.row);
        EXPECT_EQ(0, parent.Count(HGN_MOVED));
        DestroyWindow(grid);
    }
}

TEST_F(GridViewReturns, RowsThatAreDeletedLeaveAFullPage)
{
    MakeGrid(GridOf({ Number(), Text() }, gridStyle | HGS_ROWDELETE), 100);
    SetFocus(grid);
    Send(grid, HGM_SETCURSOR, 0, static_cast<LPARAM>(PackCell(-1, 99)));
    Send(grid, HGM_SETCURSOR, 1, static_cast<LPARAM>(PackCell(-1, 40)));
    Send(grid, HGM_SETTOPRECORD, 90);
    TypeKey(VK_DELETE);
    EXPECT_EQ(40, HGRowCount(ctl->pData));
    EXPECT_EQ(40 - ctl->cPageRows + PartialRow(ctl), ctl->nTopRow);
}

} // namespace
