// A grid definition from a resource of this program.
#include "griddata/grid_bytes.h"
#include "griddata/grid_file.h"
#include "griddata/grid_maker.h"

#include <cstdio>

namespace {

std::vector<BYTE> ResourceBytes(const char* name)
{
    const HRSRC       found = FindResourceA(nullptr, name, MAKEINTRESOURCEA(300));
    const BYTE* const first = found ? static_cast<const BYTE*>(LockResource(LoadResource(nullptr, found))) : nullptr;
    return first ? std::vector<BYTE>(first, first + SizeofResource(nullptr, found)) : std::vector<BYTE>();
}

TEST(GridResource, EqualsTheGridOfTheSameBytesInAFile)
{
    const char* const       fileName = "griddata_test_resource.GRS";
    const std::vector<BYTE> bytes = ResourceBytes("TESTGRID");
    std::FILE* const        file = std::fopen(fileName, "wb");
    ASSERT_NE(nullptr, file);
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
    const GridPtr fromFile(HGridLoad("griddata_test_resource", nullptr));
    std::remove(fileName);

    const GridPtr fromResource(HGLoadResource(GetModuleHandleA(nullptr), "TESTGRID"));
    ASSERT_NE(nullptr, fromFile);
    ASSERT_NE(nullptr, fromResource);
    EXPECT_STREQ("Orders", fromResource->pszTitle);
    EXPECT_EQ((std::vector<std::string>{ "Name", "Day" }), Captions(fromResource.get()));
    EXPECT_EQ(0, HGridChanged(fromFile.get(), fromResource.get()));
    EXPECT_EQ(SavedBytes(fromFile.get(), 0x484A), SavedBytes(fromResource.get(), 0x484A));
}

TEST(GridResource, IsNotFoundUnderAnotherNameOrInAnotherModule)
{
    EXPECT_EQ(nullptr, HGLoadResource(GetModuleHandleA(nullptr), "OTHERGRID"));
    EXPECT_EQ(nullptr, HGLoadResource(GetModuleHandleA("kernel32.dll"), "TESTGRID"));
}

} // namespace
