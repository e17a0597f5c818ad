// Which bitmap a resolution gets, what is made of it, and the images of the strip.
#include "button/draw.h"

#include "button/drawing_test_support.h"
#include "foundation/gdi_guards.h"
#include "foundation/startup.h"
#include "support/gdi_leaks.h"
#include "support/guarded_memory.h"
#include "support/screen_resolution.h"

#include <gtest/gtest.h>

namespace {

constexpr WORD strip100 = 2010;
constexpr WORD strip200 = 2011;
constexpr int  stripImages = 13;

constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF shadow = RGB(128, 128, 128);
constexpr COLORREF light = RGB(192, 192, 192);
constexpr COLORREF white = RGB(255, 255, 255);

Letters StripLetters()
{
    return { { 'k', black }, { 'd', shadow }, { 'l', light }, { 'w', white }, { 'g', maskColor } };
}

Pixels PixelsOf(HBITMAP bitmap)
{
    BITMAP info{};
    GetObjectA(bitmap, sizeof info, &info);
    const HDC memory = CreateCompatibleDC(nullptr);
    Pixels    pixels;
    {
        const SelectedObject selected(memory, bitmap);
        pixels = ShotOfDC(memory, info.bmWidth, info.bmHeight);
    }
    DeleteDC(memory);
    return pixels;
}

Pixels Resource(WORD id)
{
    const OwnedObject<HBITMAP> bitmap(LoadBitmapA(hInstance, MAKEINTRESOURCEA(id)));
    return PixelsOf(bitmap.h);
}

Pixels Loaded(WORD id, int imageWidth)
{
    HBITMAP bitmap = nullptr;
    if (!BitmapSetLoad(hInstance, &bitmap, id, imageWidth)) {
        return {};
    }
    const OwnedObject<HBITMAP> owned(bitmap);
    return PixelsOf(bitmap);
}

// A bitmap resource stretched by the platform, lines that go being dropped.
Pixels Stretched(WORD id, int width, int height)
{
    const OwnedObject<HBITMAP> bitmap(LoadBitmapA(hInstance, MAKEINTRESOURCEA(id)));
    const Canvas               canvas(width, height);
    BITMAP                     info{};
    GetObjectA(bitmap.h, sizeof info, &info);
    const HDC memory = CreateCompatibleDC(canvas.hdc());
    {
        const SelectedObject selected(memory, bitmap.h);
        SetStretchBltMode(canvas.hdc(), COLORONCOLOR);
        StretchBlt(canvas.hdc(), 0, 0, width, height, memory, 0, 0, info.bmWidth, info.bmHeight, SRCCOPY);
    }
    DeleteDC(memory);
    return canvas.Shot();
}

Pixels Part(const Pixels& strip, int image)
{
    const int size = strip.height;
    Pixels    part{ size, size, {} };
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            part.colors.push_back(strip.At(image * size + x, y));
        }
    }
    return part;
}

std::string ImagePicture(int image)
{
    return AsText(Part(Resource(strip100), image), StripLetters());
}

struct StripCase {
    int  dpi;
    WORD source;
    int  width;
    int  height;
};

constexpr StripCase stripCases[] = {
    { 96, strip100, 169, 13 },  { 120, strip100, 208, 16 }, { 144, strip200, 260, 20 },
    { 192, strip200, 338, 26 }, { 288, strip200, 507, 39 }, { 384, strip200, 676, 52 },
};

// The library's own set stands in the tree again afterwards.
class BitmapSetTree : public testing::Test {
protected:
    BitmapSetTree() { BitmapSetReset(); }
    ~BitmapSetTree() override
    {
        BitmapSetReset();
        BitmapSetRegister(hInstance, strip100, strip200, 0);
    }
};

} // namespace

TEST(ImageStrip, IsMadeAtStartWithThirteenImages)
{
    ASSERT_NE(hCheckImages, nullptr);
    EXPECT_EQ(ImageList_GetImageCount(hCheckImages), stripImages);
}

TEST(ImageStrip, HasImagesOfThirteenUnitsAtEachResolution)
{
    for (const StripCase& expected : stripCases) {
        SCOPED_TRACE(expected.dpi);
        const ScreenResolution dpi(expected.dpi);
        HIMAGELIST             list = nullptr;
        ASSERT_EQ(BitmapSetImageList(hInstance, &list, strip100, imageUnits, maskColor), 1);
        int width = 0;
        int height = 0;
        ImageList_GetIconSize(list, &width, &height);
        EXPECT_EQ(width, ScaleX(13));
        EXPECT_EQ(height, ScaleY(13));
        EXPECT_EQ(ImageList_GetImageCount(list), stripImages);
        ImageList_Destroy(list);
    }
}

TEST(ImageStrip, IsTwentyByTwentyAt144Dpi)
{
    const ScreenResolution dpi(144);
    EXPECT_EQ(ScaleX(13), 20);
    const Pixels strip = Loaded(strip100, imageUnits);
    EXPECT_EQ(strip.width, 20 * stripImages);
    EXPECT_EQ(strip.height, 20);
}

TEST(ImageStrip, ShowsWhatItsImagesAreFor)
{
    EXPECT_EQ(ImagePicture(0), R"(
ddddddddddddw
dkkkkkkkkkklw
dkwwwwwwwwwlw
dkwwwwwwwwwlw
dkwwwwwwwwwlw
dkwwwwwwwwwlw
dkwwwwwwwwwlw
dkwwwwwwwwwlw
dkwwwwwwwwwlw
dkwwwwwwwwwlw
dkwwwwwwwwwlw
dlllllllllllw
wwwwwwwwwwwww)");
    EXPECT_EQ(ImagePicture(11), R"(
ggggggggggggg
ggggggggggggg
ggggggggggggg
ggggggggggggg
ggggggggggggg
gggkkkkkkkggg
ggggkkkkkgggg
gggggkkkggggg
ggggggkgggggg
ggggggggggggg
ggggggggggggg
ggggggggggggg
ggggggggggggg)");
}

TEST(ImageStrip, RepeatsTheCrossedAndTheDitheredBox)
{
    for (const WORD id : { strip100, strip200 }) {
        SCOPED_TRACE(id);
        const Pixels strip = Resource(id);
        EXPECT_TRUE(SamePixels(Part(strip, 1), Part(strip, 2)));
        EXPECT_TRUE(SamePixels(Part(strip, 3), Part(strip, 4)));
        EXPECT_TRUE(SamePixels(Part(strip, 3), Part(strip, 5)));
        EXPECT_TRUE(Part(strip, 0).colors != Part(strip, 1).colors);
        EXPECT_TRUE(Part(strip, 0).colors != Part(strip, 3).colors);
    }
}

TEST(ImageStrip, HasTheGreyMarksInTheShapeOfTheBlackOnes)
{
    for (const WORD id : { strip100, strip200 }) {
        SCOPED_TRACE(id);
        const Pixels strip = Resource(id);
        for (const int image : { 9, 11 }) {
            Pixels grey = Part(strip, image + 1);
            std::replace(grey.colors.begin(), grey.colors.end(), shadow, black);
            EXPECT_TRUE(SamePixels(Part(strip, image), grey));
        }
    }
}

TEST(ImageStrip, LeavesThePaperAroundAMarkAlone)
{
    Canvas canvas(13, 13);
    canvas.Fill(paper);
    ImageList_Draw(hCheckImages, 11, canvas.hdc(), 0, 0, ILD_TRANSPARENT);
    EXPECT_EQ(AsText(canvas.Shot(), StripLetters()), R"(
.............
.............
.............
.............
.............
...kkkkkkk...
....kkkkk....
.....kkk.....
......k......
.............
.............
.............
.............)");
}

TEST(BitmapSetLoad, TakesTheBitmapAsItStandsWhenItsPercentageFits)
{
    {
        const ScreenResolution dpi(96);
        EXPECT_TRUE(SamePixels(Resource(strip100), Loaded(strip100, imageUnits)));
    }
    const ScreenResolution dpi(192);
    EXPECT_TRUE(SamePixels(Resource(strip200), Loaded(strip100, imageUnits)));
}

TEST(BitmapSetLoad, StretchesTheNearestBitmapBelow)
{
    for (const StripCase& expected : stripCases) {
        SCOPED_TRACE(expected.dpi);
        const ScreenResolution dpi(expected.dpi);
        EXPECT_TRUE(SamePixels(Stretched(expected.source, expected.width, expected.height),
                               Loaded(strip100, imageUnits)));
    }
}

TEST(BitmapSetLoad, MixesNoColorsWhenItStretches)
{
    const ScreenResolution dpi(144);
    const std::string picture = AsText(Loaded(strip100, imageUnits), StripLetters());
    EXPECT_EQ(picture.find('?'), std::string::npos);
}

TEST(BitmapSetLoad, StretchesABitmapWithoutASetFromOneHundredPercent)
{
    const ScreenResolution dpi(144);
    const Pixels           marks = Loaded(2007, 0);
    EXPECT_EQ(marks.width, 12);
    EXPECT_EQ(marks.height, 3);
}

TEST(BitmapSetLoad, LeavesTheBitmapAsItIsWhenNoImageFitsIntoIt)
{
    const ScreenResolution dpi(144);
    EXPECT_TRUE(SamePixels(Resource(2007), Loaded(2007, 9)));
}

TEST(BitmapSetLoad, FailsWithoutTheBitmap)
{
    for (const int resolution : { 96, 144 }) {
        const ScreenResolution dpi(resolution);
        HBITMAP     bitmap = nullptr;
        EXPECT_EQ(BitmapSetLoad(hInstance, &bitmap, 9999, 13), 0);
        EXPECT_EQ(bitmap, nullptr);
    }
}

TEST(BitmapSetLoad, KeepsNoGdiObjects)
{
    const GdiLeakCheck check;
    for (const int resolution : { 96, 120, 144 }) {
        const ScreenResolution dpi(resolution);
        EXPECT_GT(Loaded(strip100, imageUnits).width, 0);
    }
}

TEST(BitmapSetImageList, LeavesTheListAloneWithoutTheBitmap)
{
    HIMAGELIST list = hCheckImages;
    EXPECT_EQ(BitmapSetImageList(hInstance, &list, 9999, 13, maskColor), 0);
    EXPECT_EQ(list, hCheckImages);
}

TEST(BitmapSetImageList, HasNoMaskWithoutAMaskColor)
{
    HIMAGELIST list = nullptr;
    ASSERT_EQ(BitmapSetImageList(hInstance, &list, strip100, imageUnits, 0xFFFFFFFF), 1);
    Canvas canvas(13, 13);
    canvas.Fill(paper);
    ImageList_Draw(list, 11, canvas.hdc(), 0, 0, ILD_TRANSPARENT);
    EXPECT_EQ(canvas.Shot().At(0, 0), maskColor);
    ImageList_Destroy(list);
}

int BitsPerPixel(HBITMAP bitmap)
{
    BITMAP info{};
    GetObjectA(bitmap, sizeof info, &info);
    return info.bmBitsPixel;
}

TEST(BitmapSetImageList, HasTheDepthOfTheBitmap)
{
    HBITMAP    bitmap = nullptr;
    HIMAGELIST list = nullptr;
    ASSERT_EQ(BitmapSetLoad(hInstance, &bitmap, strip100, imageUnits), 1);
    ASSERT_EQ(BitmapSetImageList(hInstance, &list, strip100, imageUnits, maskColor), 1);
    const OwnedObject<HBITMAP> owned(bitmap);
    IMAGEINFO                  info{};
    ASSERT_NE(ImageList_GetImageInfo(list, 0, &info), 0);
    EXPECT_EQ(BitsPerPixel(info.hbmImage), BitsPerPixel(bitmap));
    ImageList_Destroy(list);
}

TEST_F(BitmapSetTree, IsEmptyAfterAReset)
{
    const ScreenResolution dpi(192);
    EXPECT_EQ(Loaded(strip100, imageUnits).width, 26 * stripImages);
    EXPECT_TRUE(SamePixels(Stretched(strip100, 338, 26), Loaded(strip100, imageUnits)));
}

TEST_F(BitmapSetTree, WritesASecondSetIntoTheRoot)
{
    BitmapSetRegister(hInstance, strip100, strip200, 0);
    BitmapSetRegister(hInstance, 2002, 2004, 0);
    const ScreenResolution dpi(192);
    EXPECT_TRUE(SamePixels(Resource(2004), Loaded(strip100, imageUnits)));
    EXPECT_EQ(Loaded(2002, 0).width, 14); // its own node stayed empty
}

TEST_F(BitmapSetTree, VariantThatDoesNotExistLeavesTheBitmapAtOneHundredPercent)
{
    BitmapSetRegister(hInstance, 2002, 9999, 0);
    const ScreenResolution dpi(168);
    EXPECT_TRUE(SamePixels(Stretched(2002, ScaleX(7), ScaleY(4)), Loaded(2002, 0)));
}

TEST_F(BitmapSetTree, FreesItsNodes)
{
    const int before = LiveBlocks();
    for (const WORD id : { WORD{ 50 }, WORD{ 20 }, WORD{ 70 }, WORD{ 10 }, WORD{ 30 } }) {
        BitmapSetRegister(hInstance, id, 0, 0);
    }
    EXPECT_EQ(LiveBlocks(), before + 5);
    BitmapSetRegister(hInstance, 30, 0, 0);
    EXPECT_EQ(LiveBlocks(), before + 5);
    BitmapSetFree();
    EXPECT_EQ(LiveBlocks(), before);
}

TEST_F(BitmapSetTree, StaysAsItWasWithoutMemory)
{
    FailAllocation(1);
    BitmapSetRegister(hInstance, strip100, strip200, 0);
    FailAllocation(0);
    const ScreenResolution dpi(192);
    EXPECT_TRUE(SamePixels(Stretched(strip100, 338, 26), Loaded(strip100, imageUnits)));
}

TEST_F(BitmapSetTree, PicksTheBitmapOfFourHundredPercentFromThreeHundredOn)
{
    BitmapSetRegister(hInstance, 2002, 2003, 2010);
    {
        const ScreenResolution dpi(284); // 296 percent
        EXPECT_EQ(Loaded(2002, 0).width, ScaleX(7));
        EXPECT_TRUE(SamePixels(Stretched(2003, ScaleX(7), ScaleY(4)), Loaded(2002, 0)));
    }
    const ScreenResolution dpi(384);
    EXPECT_TRUE(SamePixels(Resource(2010), Loaded(2002, 0)));
}
