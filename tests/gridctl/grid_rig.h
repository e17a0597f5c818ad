// A grid's record over a bare window of a given client size, for what is arithmetic: no window procedure, no parent.
#pragma once

#include "gridctl/grid_control.h"
#include "support/block_leaks.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>

// A window without a life of its own. On Linux it is one of the native platform.
HWND RigWindow(int width, int height);
void RigWindowEnd(HWND hwnd);
void RigWindowResize(HWND hwnd, int width, int height);
// What HGRecalc does of itself where windows are missing.
void RigStart();

inline HGField* Column(short width, BYTE band = 0, WORD flags = 0)
{
    return HGFieldCreate("c", flags, width, 0, 'n', 'l', 0, 0, 0, 'e', 0, "", band);
}
inline HGField* HiddenColumn(short width)
{
    return Column(width, 0, HFF_HIDDEN);
}

struct RigSettings {
    DWORD style = HGS_ROWHEADERS | HGS_COLHEADERS;
    WORD  fixedCols = 0;
    int   bands = 1;
    int   rows = 0;
    int   width = 400;
    int   height = 200;
};

// Rows 20 high, headers 20 high and 40 wide. A + before a field of the record copies it: fields of packed records have
// no address that an expectation could take.
class GridRig : public testing::Test {
protected:
    GridRig() { RigStart(); }
    ~GridRig() override
    {
        RigWindowEnd(record.hWnd);
        HGridDestroy(record.pData);
    }

    void Make(std::initializer_list<HGField*> fields, const RigSettings& settings = {})
    {
        record.hWnd = RigWindow(settings.width, settings.height);
        record.pData = HGridCreate(nullptr, settings.style, 0, settings.fixedCols, 20, 40, 20, 0);
        for (HGField* const field : fields) {
            HGAddFld(record.pData, field);
        }
        for (int i = 0; i < settings.rows; ++i) {
            HLListAdd(record.pData->pRows, nullptr);
        }
        record.cBands = static_cast<signed char>(settings.bands);
        record.nFirstCol = settings.fixedCols;
        record.nVScale = 1;
        record.cPageRows = 9;
    }

    BlockLeakCheck leaks; // ends after the destructor above
    GridBlock      block = {};
    HGridCtl&      record = block.ctl;
    HGridCtl*      ctl = &record;
};

inline void PrintTo(const Cell& cell, std::ostream* out)
{
    *out << "column " << cell.col << ", row " << cell.row;
}

inline testing::AssertionResult SameRect(const RECT& expected, const RECT& actual)
{
    if (expected.left == actual.left && expected.top == actual.top && expected.right == actual.right &&
        expected.bottom == actual.bottom) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << "expected " << expected.left << ", " << expected.top << ", " << expected.right
                                       << ", " << expected.bottom << ", got " << actual.left << ", " << actual.top
                                       << ", " << actual.right << ", " << actual.bottom;
}
