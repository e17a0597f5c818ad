// Grid definitions from resources of type 300, with the resources of the native platform. Native only.
#include "griddata/grid_bytes.h"
#include "griddata/grid_file.h"
#include "griddata/grid_maker.h"
#include "native/native_platform.h"

namespace {

class GridResource : public testing::Test {
protected:
    GridResource()
    {
        NativeReset();
        source = GridOf({ Text("a", 9), Number("b") });
        bytes = SavedBytes(source.get(), 0x484A);
    }
    ~GridResource() override { NativeReset(); }
    void Add(const char* name, const char* type) { Native().resources.push_back({ name, type, bytes }); }

    GridPtr           source;
    std::vector<BYTE> bytes;
};

TEST_F(GridResource, EqualsTheGridOfTheSameBytesInAFile)
{
    Add("ORDERS", "#300");
    const GridPtr fromResource(HGLoadResource(nullptr, "ORDERS"));
    ASSERT_NE(nullptr, fromResource);
    const GridPtr fromBytes(LoadBytes(bytes));
    EXPECT_EQ(0, HGridChanged(fromResource.get(), fromBytes.get()));
    EXPECT_EQ(2, HGColCount(fromResource.get()));
}

TEST_F(GridResource, OfAnotherNameOrTypeIsNotFound)
{
    Add("ORDERS", "#301");
    EXPECT_EQ(nullptr, HGLoadResource(nullptr, "ORDERS"));
    EXPECT_EQ(nullptr, HGLoadResource(nullptr, "OTHERS"));
    EXPECT_EQ(nullptr, HGLoadResource(nullptr, nullptr));
}

TEST_F(GridResource, ThatEndsEarlyIsReadToItsEnd)
{
    bytes.resize(bytes.size() - 3);
    Add("ORDERS", "#300");
    const GridPtr grid(HGLoadResource(nullptr, "ORDERS"));
    ASSERT_NE(nullptr, grid);
    EXPECT_EQ(1, HGColCount(grid.get()));
}

TEST_F(GridResource, ThatIsNoneGivesNothing)
{
    bytes = { 'B', 'M', 0, 0 };
    Add("ORDERS", "#300");
    EXPECT_EQ(nullptr, HGLoadResource(nullptr, "ORDERS"));
}

} // namespace
