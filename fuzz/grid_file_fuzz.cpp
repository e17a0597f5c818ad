// Loads any bytes as a grid definition. What comes of it has to be a grid that takes rows and changes of its columns,
// and that is the same after saving and loading it again.
#include "griddata/grid_model.h"

#include <widgets/widgets.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

struct Source {
    const uint8_t* at;
    size_t         left;
};

int CALLBACK ReadBytes(void* context, void* buffer, int count)
{
    Source* const source = static_cast<Source*>(context);
    const size_t  wanted = static_cast<size_t>(count);
    const size_t  got = wanted < source->left ? wanted : source->left;
    if (got) {
        std::memcpy(buffer, source->at, got);
    }
    source->at += got;
    source->left -= got;
    return got < wanted ? -1 : 0;
}

int CALLBACK WriteBytes(void* context, void* buffer, int count)
{
    auto* const          bytes = static_cast<std::vector<uint8_t>*>(context);
    const uint8_t* const from = static_cast<const uint8_t*>(buffer);
    bytes->insert(bytes->end(), from, from + count);
    return 0;
}

void Expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void CheckSavedAgain(HGridData* grid)
{
    for (int version = 0x4847; version <= 0x484A; version++) {
        std::vector<uint8_t> bytes;
        Expect(HGSave(WriteBytes, &bytes, version, grid) == 1);
        if (version == 0x4848) {
            continue; // this one reads back shifted
        }
        Source           source = { bytes.data(), bytes.size() };
        HGridData* const again = HGLoad(ReadBytes, &source);
        Expect(again && source.left == 0);
        grid->wVersion = static_cast<WORD>(version);
        Expect(version != 0x484A || HGridChanged(grid, again) == 0);
        HGridDestroy(again);
    }
}

void FillRows(HGridData* grid)
{
    for (int row = 0; row < 3; row++) {
        HLListAppend(grid->pRows, nullptr);
        BYTE* const data = HGRowData(grid, row);
        for (int i = 0; i < grid->pRows->cbItem; i++) {
            data[i] = static_cast<BYTE>(i * 7 + row);
        }
    }
}

// Touches each cell, so that the sanitizer sees one that lies outside its row.
void CheckCells(HGridData* grid)
{
    for (int col = 0; col < HGColCount(grid); col++) {
        const HGField* const field = HGGetField(grid, col);
        const int            size = field->cbSize > 0 ? field->cbSize : 0;
        Expect(field->nOffset >= 0 && field->nOffset + size <= grid->pRows->cbItem);
        for (int row = 0; row < HGRowCount(grid); row++) {
            std::memmove(HGRowData(grid, row) + field->nOffset, HGRowData(grid, row) + field->nOffset,
                         static_cast<size_t>(size));
        }
    }
}

void ChangeColumns(HGridData* grid, unsigned choice)
{
    const int columns = HGColCount(grid);
    const int col = columns ? static_cast<int>(choice % static_cast<unsigned>(columns)) : 0;
    HGSortRows(grid, col, choice % 2 != 0, nullptr);
    HGMoveFld(grid, col, columns - 1 - col);
    CheckCells(grid);
    HGField* const field = HGFieldCreate("new", 0, 50, 50, 's', 's', 0, 0, 9, 'e', 0, "", 0);
    if (HGInsertFld(grid, field, static_cast<short>(col)) < 0) {
        HGFieldDestroy(field);
    }
    CheckCells(grid);
    HGridCtl ctl = {};
    ctl.pData = grid;
    ctl.nCurCol = 0xFFFF;
    HGRemoveFld(&ctl, col);
    CheckCells(grid);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Source           source = { data, size };
    HGridData* const grid = HGLoad(ReadBytes, &source);
    if (!grid) {
        return 0;
    }
    CheckSavedAgain(grid);
    FillRows(grid);
    CheckCells(grid);
    const unsigned choice = size ? data[size - 1] : 0;
    ChangeColumns(grid, choice);
    if (choice % 4 == 0) {
        HGCreateFldMap(grid);
    }
    ChangeColumns(grid, choice / 4);
    HGridDestroy(HGridDup(grid));
    HGridDestroy(grid);
    return 0;
}
