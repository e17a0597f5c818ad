// What pictures look like and how large they are.
#include "button/draw.h"

#include "button/drawing_test_support.h"
#include "button/picture_bytes.h"
#include "foundation/startup.h"
#include "support/gdi_leaks.h"
#include "support/screen_resolution.h"

#include <gtest/gtest.h>

#include <cstdio>

namespace {

constexpr COLORREF white = RGB(255, 255, 255);

struct Loaded {
    Pic pic = {};
    explicit Loaded(const char* name) { EXPECT_EQ(1, LoadPic(&pic, GetModuleHandleA(nullptr), name)) << name; }
    ~Loaded() { FreePic(&pic, 0); }
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;
};

TEST(PaintPic, DrawsABitmapWithAndWithoutItsKey)
{
    const GdiLeakCheck leaks;
    const Loaded       loaded("TESTTRUE");
    Canvas             canvas(6, 4);
    EXPECT_EQ(1, PaintPic(canvas.hdc(), &loaded.pic, 1, 1, 0));
    const Pixels opaque = canvas.Shot();
    EXPECT_EQ(RGB(10, 20, 30), opaque.At(1, 1));
    EXPECT_EQ(RGB(0, 255, 0), opaque.At(4, 1));
    EXPECT_EQ(RGB(1, 2, 3), opaque.At(1, 2));
    EXPECT_EQ(white, opaque.At(0, 0));
    canvas.Fill(white);
    PaintPic(canvas.hdc(), &loaded.pic, 1, 1, RGB(0, 255, 0));
    const Pixels keyed = canvas.Shot();
    EXPECT_EQ(RGB(10, 20, 30), keyed.At(1, 1));
    EXPECT_EQ(white, keyed.At(4, 1));
}

TEST(PaintPic, DrawsAnImageOfTheStrip)
{
    const Loaded loaded("IM6");
    Canvas       canvas(15, 15);
    Canvas       wanted(15, 15);
    EXPECT_EQ(1, PaintPic(canvas.hdc(), &loaded.pic, 1, 1, 0));
    ImageList_Draw(hCheckImages, 6, wanted.hdc(), 1, 1, ILD_TRANSPARENT);
    EXPECT_TRUE(SamePixels(wanted.Shot(), canvas.Shot()));
    EXPECT_FALSE(canvas.Shot().IsAll(white, { 0, 0, 15, 15 }));
}

TEST(PaintPic, StripImagesThatDoNotExistDrawNothing)
{
    for (const char* const name : { "IM-1", "IM99", "IM-7" }) {
        const Loaded loaded(name);
        Canvas       canvas(15, 15);
        EXPECT_EQ(1, PaintPic(canvas.hdc(), &loaded.pic, 0, 0, 0)) << name;
        EXPECT_TRUE(canvas.Shot().IsAll(white, { 0, 0, 15, 15 })) << name;
    }
}

TEST(PaintPic, IconFileShowsItsColoursAndLetsItsMaskThrough)
{
    std::FILE* const file = std::fopen("icotest.ico", "wb");
    ASSERT_NE(nullptr, file);
    const Bytes bytes = MakeIconFile({});
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
    {
        const Loaded loaded("icotest.ico");
        Canvas       canvas(32, 32);
        EXPECT_NE(0, PaintPic(canvas.hdc(), &loaded.pic, 0, 0, 0));
        const Pixels shot = canvas.Shot();
        EXPECT_TRUE(shot.IsAll(RGB(255, 0, 0), { 0, 0, 32, 16 })) << "the upper half";
        EXPECT_EQ(0, shot.Count(RGB(255, 0, 0), { 0, 16, 32, 32 })) << "the lower half, where the mask lets through";
    }
    DeleteFileA("icotest.ico");
}

TEST(PaintPic, UnknownKindsAndNothingAreNoPictures)
{
    Canvas    canvas(4, 4);
    const Pic none = {};
    const Pic odd = { 9, INVALID_HANDLE_VALUE, nullptr, 0 };
    int       width = 7;
    int       height = 7;
    EXPECT_EQ(0, PaintPic(canvas.hdc(), &none, 0, 0, 0));
    EXPECT_EQ(0, PaintPic(canvas.hdc(), &odd, 0, 0, 0));
    EXPECT_EQ(0, PaintPic(canvas.hdc(), nullptr, 0, 0, 0));
    EXPECT_EQ(0, GetPicDimensions(&none, &width, &height));
    EXPECT_EQ(0, GetPicDimensions(&odd, &width, &height));
    EXPECT_EQ(0, GetPicDimensions(nullptr, &width, &height));
    EXPECT_EQ(7, width);
    for (const DWORD kind : { DWORD{ PIC_BITMAP }, DWORD{ PIC_ICON }, DWORD{ PIC_DIB } }) {
        const Pic empty = { kind, nullptr, nullptr, 0 };
        EXPECT_EQ(1, PaintPic(canvas.hdc(), &empty, 0, 0, 0)) << kind;
    }
    EXPECT_TRUE(canvas.Shot().IsAll(white, { 0, 0, 4, 4 }));
}

TEST(GetPicDimensions, TellsTheSizeOfEachKind)
{
    int          width = 0;
    int          height = 0;
    const Loaded bitmap("TESTTRUE");
    EXPECT_EQ(1, GetPicDimensions(&bitmap.pic, &width, &height));
    EXPECT_EQ(4, width);
    EXPECT_EQ(2, height);
    const Loaded icon("TESTICON");
    EXPECT_EQ(1, GetPicDimensions(&icon.pic, &width, &height));
    EXPECT_EQ(GetSystemMetrics(SM_CXICON), width);
    EXPECT_EQ(GetSystemMetrics(SM_CYICON), height);
    const Loaded strip("IM1");
    EXPECT_EQ(1, GetPicDimensions(&strip.pic, &width, &height));
    EXPECT_EQ(13, width);
    EXPECT_EQ(13, height);
    EXPECT_EQ(1, GetPicDimensions(&strip.pic, nullptr, nullptr));
}

TEST(GetPicDimensions, StripGrowsWithTheResolution)
{
    const Loaded           strip("IM1");
    int                    width = 0;
    const ScreenResolution dpi(144);
    GetPicDimensions(&strip.pic, &width, nullptr);
    EXPECT_EQ(20, width);
}

} // namespace
