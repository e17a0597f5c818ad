// A row source of numbered records for window tests: record r holds r + 1000 in its first column, a number.
#pragma once

#include "gridctl/grid_window.h"

#include <functional>
#include <vector>

struct SourceCall {
    int operation;
    int record;
};

struct RecordSource {
    int                           count = 1000000;
    std::vector<SourceCall>       calls;
    std::function<int(int, int)>  onCall; // operation and record, before the source answers; non-zero: answers itself
    int                           answer = 0; // what it answers then

    int CountOf(int operation) const
    {
        int found = 0;
        for (const SourceCall& call : calls) {
            found += call.operation == operation;
        }
        return found;
    }
};

inline RecordSource* gRecordSource;

inline int CALLBACK NumberedRecords(HWND, int operation, int record, void* buffer)
{
    RecordSource* const source = gRecordSource;
    source->calls.push_back({ operation, record });
    if (source->onCall && source->onCall(operation, record)) {
        return source->answer;
    }
    const bool exists = record >= 0 && record < source->count;
    if (operation == HGSRC_FETCH && exists) {
        StoreAs<LONG>(buffer, record + 1000);
        return 1;
    }
    return operation == HGSRC_COUNT ? source->count : 0;
}

// A grid window over numbered records.
class SourceWindow : public GridWindow {
protected:
    SourceWindow() { gRecordSource = &source; }
    ~SourceWindow() override { gRecordSource = nullptr; }

    // The owner tells how many records there are.
    void MakeSourceGrid(DWORD style = gridStyle, bool tellTotal = true)
    {
        MakeGrid(GridOf({ Number(), Text() }, style));
        SendPtr(grid, HGM_SETROWSOURCE, 0, reinterpret_cast<const void*>(NumberedRecords));
        if (tellTotal) {
            Send(grid, HGM_SETTOTAL, 0, source.count);
        }
        Forget();
    }
    void Forget()
    {
        PumpPending();
        seen.Clear();
        parent.ClearCounts();
        source.calls.clear();
    }
    LONG CurrentRecord() { return RecordOfRow(ctl, Current().row); }
    LONG TopRecord() { return static_cast<LONG>(Send(grid, HGM_GETTOPRECORD)); }
    // Each loaded row has to be its record.
    void ExpectRowsAreRecords()
    {
        for (int row = 0; row < HGRowCount(ctl->pData); ++row) {
            if ((RowFlags(row) & HGR_NEW) == 0) {
                ASSERT_EQ(RecordOfRow(ctl, row) + 1000, LoadAs<LONG>(HGRowData(ctl->pData, row))) << "row " << row;
            }
        }
    }

    RecordSource source;
};
