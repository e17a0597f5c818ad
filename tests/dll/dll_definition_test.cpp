// Grid definitions, the stash and grid files through the DLL.
#include <widgets/widgets.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace {

HGField* TextField(const char* title)
{
    return HGFieldCreate(title, 0, 80, 0, 's', 's', 0, 0, 11, 'e', 0, nullptr, 0);
}

HGField* NumberField(const char* title)
{
    return HGFieldCreate(title, 0, 60, 0, 'n', 'l', 0, 0, 0, 'e', HES_RIGHT, "#,##0", 0);
}

HGridData* MakeGrid()
{
    HGridData* const grid = HGridCreate("orders", HGS_COLHEADERS, 0, 0, -1, -1, -1, 0);
    HGInsertFld(grid, TextField("Name"), 0);
    HGInsertFld(grid, NumberField("Amount"), 1);
    return grid;
}

TEST(DllDefinition, HasColumnsInTheOrderOfTheirInsertion)
{
    HGridData* const grid = MakeGrid();
    ASSERT_NE(nullptr, grid);
    EXPECT_EQ(0, HGInsertFld(grid, TextField("First"), 0));
    EXPECT_EQ(3, grid->pFields->cItems);
    HGFixOffsets(grid);
    EXPECT_EQ(1, HGCreateFldMap(grid));
    EXPECT_EQ(0, HGCreateFldMap(grid)) << "it has one";
    EXPECT_EQ(1, HGridDestroy(grid));
}

TEST(DllDefinition, CopiesAndCompares)
{
    HGridData* const grid = MakeGrid();
    HGridData* const copy = HGridDup(grid);
    ASSERT_NE(nullptr, copy);
    EXPECT_EQ(0, HGridChanged(grid, copy));
    EXPECT_EQ(1, HGridCopy(copy, grid));
    EXPECT_EQ(4, copy->pFields->cItems);
    EXPECT_EQ(1, HGridChanged(grid, copy));
    EXPECT_EQ(1, HGridEmpty(copy));
    HGridDestroy(copy);
    HGridDestroy(grid);
}

TEST(DllDefinition, ScalesFromDialogUnits)
{
    HGridData* const grid = HGridCreate("units", 0, HGX_DLGUNITS, 0, 16, 40, 16, 0);
    const int        height = HIWORD(GetBaseUnits(nullptr));
    EXPECT_EQ(1, HGridScale(grid, reinterpret_cast<HFONT>(INT_PTR{ -1 }), nullptr));
    EXPECT_EQ(MulDiv(16, height, 8), grid->nRowHeight);
    HGridDestroy(grid);
}

TEST(DllDefinition, ColumnsAreCopiedAndFreed)
{
    HGField* const field = NumberField("Amount");
    HGField* const copy = HGFldDup(field);
    ASSERT_NE(nullptr, copy);
    EXPECT_STREQ("Amount", copy->pszTitle);
    EXPECT_STREQ("#,##0", copy->pszFormat);
    EXPECT_EQ(1, HGFieldDestroy(copy));
    EXPECT_EQ(1, HGFieldDestroy(field));
    EXPECT_EQ(0, HGFieldDestroy(nullptr));
}

TEST(DllStash, OwnsDefinitionsUntilTheyAreRemoved)
{
    HLList* const stash = HGCreateStash();
    ASSERT_NE(nullptr, stash);
    EXPECT_EQ(stash, HGGetStash());
    HGridData* const grid = MakeGrid();
    EXPECT_EQ(0, StashGrid(grid, 7, "orders", nullptr));
    int                  index = -1;
    const HGStash* const found = GetStashed(7, "ORDERS", &index);
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(grid, found->pGrid);
    EXPECT_EQ(0, index);
    EXPECT_EQ(1, RemoveStashed(7, "orders"));
    EXPECT_EQ(nullptr, GetStashed(7, "orders", nullptr));
    EXPECT_EQ(4711u, HGStashFld(4711));
    EXPECT_EQ(4711u, HGGetFldStash());
}

struct Bytes {
    std::string data;
    size_t      next = 0;
};

int CALLBACK WriteBytes(void* context, void* buffer, int count)
{
    static_cast<Bytes*>(context)->data.append(static_cast<char*>(buffer), static_cast<size_t>(count));
    return 0;
}

int CALLBACK ReadBytes(void* context, void* buffer, int count)
{
    Bytes* const bytes = static_cast<Bytes*>(context);
    const size_t size = static_cast<size_t>(count);
    if (bytes->next + size > bytes->data.size()) {
        return 1;
    }
    std::memcpy(buffer, bytes->data.data() + bytes->next, size);
    bytes->next += size;
    return 0;
}

TEST(DllFile, ADefinitionGoesOutAndComesBack)
{
    HGridData* const grid = MakeGrid();
    // Settled: what is written in version 0x4848 reads back shifted.
    for (const int version : { 0x4847, 0x4849, 0x484A }) {
        Bytes bytes;
        EXPECT_EQ(1, HGSave(WriteBytes, &bytes, version, grid)) << version;
        HGridData* const loaded = HGLoad(ReadBytes, &bytes);
        ASSERT_NE(nullptr, loaded) << version;
        EXPECT_EQ(bytes.data.size(), bytes.next) << version;
        EXPECT_EQ(2, loaded->pFields->cItems) << version;
        HGridDestroy(loaded);
    }
    HGridDestroy(grid);
}

TEST(DllFile, AFileIsFoundByItsNameWithoutEnding)
{
    char folder[MAX_PATH];
    GetTempPathA(MAX_PATH, folder);
    const std::string name = std::string(folder) + "dlltest";
    HGridData* const  grid = MakeGrid();
    Bytes             bytes;
    HGSave(WriteBytes, &bytes, 0x484A, grid);
    std::FILE* const file = std::fopen((name + ".GRS").c_str(), "wb");
    ASSERT_NE(nullptr, file);
    std::fwrite(bytes.data.data(), 1, bytes.data.size(), file);
    std::fclose(file);

    OFSTRUCT         ofs = {};
    HGridData* const loaded = HGridLoad(name.c_str(), &ofs);
    ASSERT_NE(nullptr, loaded);
    EXPECT_EQ(0, HGridChanged(grid, loaded));
    EXPECT_NE('\0', ofs.szPathName[0]);
    EXPECT_EQ(nullptr, HGridLoad((name + "missing").c_str(), nullptr));
    HGridDestroy(loaded);
    HGridDestroy(grid);
    std::remove((name + ".GRS").c_str());
}

} // namespace
