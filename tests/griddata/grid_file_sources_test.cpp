// Grid definitions from files by name.
#include "griddata/grid_bytes.h"
#include "griddata/grid_maker.h"

#include <cstdio>

namespace {

class GridFile : public testing::Test {
protected:
    ~GridFile() override
    {
        for (const std::string& name : made) {
            std::remove(name.c_str());
        }
    }
    void Make(const std::string& name, const std::vector<BYTE>& bytes)
    {
        made.push_back(name);
        std::FILE* const file = std::fopen(name.c_str(), "wb");
        ASSERT_NE(nullptr, file) << name;
        ASSERT_EQ(bytes.size(), std::fwrite(bytes.data(), 1, bytes.size(), file));
        std::fclose(file);
    }
    static std::vector<BYTE> Sample()
    {
        const GridPtr grid = GridOf({ Text("a", 9), Number("b") });
        return SavedBytes(grid.get(), 0x484A);
    }
    static bool IsZero(const OFSTRUCT& ofs)
    {
        const OFSTRUCT zeros = {};
        return std::memcmp(&ofs, &zeros, sizeof ofs) == 0;
    }

    std::vector<std::string> made;
};

TEST_F(GridFile, IsFoundUnderANameWithoutAPoint)
{
    Make("griddata_test_1.GRS", Sample());
    OFSTRUCT      ofs = {};
    const GridPtr grid(HGridLoad("griddata_test_1", &ofs));
    ASSERT_NE(nullptr, grid);
    EXPECT_EQ(2, HGColCount(grid.get()));
    EXPECT_FALSE(IsZero(ofs));
}

TEST_F(GridFile, IsOpenedUnderANameWithAnyPointAsItIs)
{
    Make("griddata_test_2.x", Sample());
    EXPECT_NE(nullptr, GridPtr(HGridLoad("griddata_test_2.x", nullptr)));
    Make("griddata_test_3.GRS", Sample());
    EXPECT_EQ(nullptr, HGridLoad("./griddata_test_3", nullptr)) << "a point in the folder counts";
}

TEST_F(GridFile, ThatIsMissingGivesNothingAndAZeroedStructure)
{
    OFSTRUCT ofs;
    std::memset(&ofs, 0x55, sizeof ofs);
    EXPECT_EQ(nullptr, HGridLoad("griddata_test_missing", &ofs));
    EXPECT_TRUE(IsZero(ofs));
    EXPECT_EQ(nullptr, HGridLoad("griddata_test_missing", nullptr));
}

TEST_F(GridFile, NeedsAName)
{
    EXPECT_EQ(nullptr, HGridLoad(nullptr, nullptr));
}

TEST_F(GridFile, WithANameThatHasNoRoomGivesNothingAndAZeroedStructure)
{
    for (size_t length : { size_t{ 116 }, size_t{ 119 }, size_t{ 120 }, size_t{ 5000 } }) {
        OFSTRUCT ofs;
        std::memset(&ofs, 0x55, sizeof ofs);
        EXPECT_EQ(nullptr, HGridLoad(std::string(length, 'x').c_str(), &ofs)) << length;
        EXPECT_TRUE(IsZero(ofs)) << length;
    }
}

// The longest name with its ending that the platform opens from the folder that the tests run in.
size_t LongestName()
{
    size_t longest = 119;
#ifdef _WIN32
    char folder[MAX_PATH] = {};
    const size_t used = GetCurrentDirectoryA(MAX_PATH, folder) + 1;
    longest = std::min<size_t>(longest, OFS_MAXPATHNAME - 1 - used);
#endif
    return longest;
}

TEST_F(GridFile, OpensTheLongestNameThatHasRoom)
{
    const std::string name(LongestName() - 4, 'y');
    Make(name + ".GRS", Sample());
    EXPECT_NE(nullptr, GridPtr(HGridLoad(name.c_str(), nullptr)));
    const std::string withPoint = std::string(LongestName() - 2, 'z') + ".a";
    Make(withPoint, Sample());
    EXPECT_NE(nullptr, GridPtr(HGridLoad(withPoint.c_str(), nullptr)));
}

TEST_F(GridFile, ThatIsNoneGivesNothingButWasFound)
{
    Make("griddata_test_4.GRS", { 'M', 'Z', 0, 0 });
    OFSTRUCT ofs = {};
    EXPECT_EQ(nullptr, HGridLoad("griddata_test_4", &ofs));
    EXPECT_FALSE(IsZero(ofs));
}

TEST_F(GridFile, ThatEndsEarlyGivesTheFieldsRead)
{
    std::vector<BYTE> bytes = Sample();
    bytes.resize(bytes.size() - 3);
    Make("griddata_test_5.GRS", bytes);
    const GridPtr grid(HGridLoad("griddata_test_5", nullptr));
    ASSERT_NE(nullptr, grid);
    EXPECT_EQ(1, HGColCount(grid.get()));
}

} // namespace
