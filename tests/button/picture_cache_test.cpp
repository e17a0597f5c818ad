// Pictures by name: where they come from, how often they are loaded, when they go.
#include "button/picture_cache.h"

#include "button/picture_bytes.h"
#include "button/temp_file.h"
#include "foundation/screen.h"
#include "foundation/startup.h"
#include "support/gdi_leaks.h"
#include "support/guarded_memory.h"
#include "support/import_hook.h"

#include <gtest/gtest.h>

#include <string>

namespace {

class PictureCache : public testing::Test {
protected:
    // An empty picture is one that was not found.
    Pic Load(const char* name, HINSTANCE module = GetModuleHandleA(nullptr))
    {
        Pic       pic = { 77, INVALID_HANDLE_VALUE, nullptr, 77 };
        const int result = LoadPic(&pic, module, name);
        EXPECT_EQ(result != 0, pic.hImage != nullptr) << name;
        EXPECT_EQ(result != 0, pic.nKind != PIC_NONE) << name;
        return pic;
    }
    bool Exists(const char* name)
    {
        const Pic pic = Load(name);
        FreePic(&pic, 0);
        return pic.hImage != nullptr;
    }

private:
    GdiLeakCheck leaks_;
};

HMODULE OtherModule()
{
    return GetModuleHandleA("user32.dll");
}

TEST_F(PictureCache, StripPicturesAreNumbersBehindTwoLetters)
{
    struct Row {
        const char* name;
        int         image;
    };
    const Row rows[] = { { "IM7", 7 }, { "IM12", 12 }, { "IM", 0 }, { "IMAGE", 0 }, { "IM-1", -1 }, { "IM3x", 3 } };
    for (const Row& row : rows) {
        const Pic pic = Load(row.name);
        EXPECT_EQ(DWORD{ PIC_STRIP }, pic.nKind) << row.name;
        EXPECT_EQ(row.image, pic.nImage) << row.name;
        EXPECT_EQ(INVALID_HANDLE_VALUE, pic.hImage);
        EXPECT_EQ(nullptr, pic.hPalette);
        FreePic(&pic, 0);
    }
}

TEST_F(PictureCache, StripPictureTouchesNoFile)
{
    const TempFile file("IM7.BMP", MakeBitmapFile({}));
    EXPECT_EQ(DWORD{ PIC_STRIP }, Load("IM7").nKind);
    const Pic pic = Load("IM7");
    FreePic(&pic, 0);
    FreePic(&pic, 0);
}

TEST_F(PictureCache, StripPicturesShareTheCountOfTheFirst)
{
    const Pic one = Load("IM1");
    const Pic two = Load("IM2");
    const Pic again = Load("IM1");
    EXPECT_EQ(2, PicRefs(&two)) << "the first entry's";
    EXPECT_EQ(1, FreePic(&two, 0));
    EXPECT_EQ(0, FreePic(&again, 0)) << "the first entry is gone, and no handle with it";
    EXPECT_EQ(0, FreePic(&one, 0));
    EXPECT_EQ(0, PicRefs(&one));
}

TEST_F(PictureCache, NamesThatDifferInCaseAreOnePicture)
{
    const TempFile file("ok.bmp", MakeBitmapFile({}));
    const Pic      lower = Load("ok.bmp");
    const Pic      upper = Load("OK.BMP");
    EXPECT_EQ(lower.hImage, upper.hImage);
    EXPECT_EQ(lower.hPalette, upper.hPalette);
    EXPECT_EQ(2, PicRefs(&lower));
    EXPECT_EQ(1, FreePic(&lower, 0));
    EXPECT_NE(0, FreePic(&upper, 0));
    EXPECT_EQ(0, PicRefs(&lower));
}

TEST_F(PictureCache, LibrarysPictureIsFoundAgainForAnyModule)
{
    const Pic first = Load("HC1", OtherModule());
    EXPECT_EQ(DWORD{ PIC_DIB }, first.nKind);
    const Pic second = Load("hc1", GetModuleHandleA("gdi32.dll"));
    EXPECT_EQ(first.hImage, second.hImage);
    EXPECT_EQ(2, PicRefs(&first));
    FreePic(&first, 0);
    FreePic(&second, 0);
}

TEST_F(PictureCache, ResourceOfTrueColoursHasNoPalette)
{
    const Pic pic = Load("TESTTRUE");
    EXPECT_EQ(DWORD{ PIC_DIB }, pic.nKind);
    EXPECT_EQ(nullptr, pic.hPalette);
    BITMAP info = {};
    GetObjectA(pic.hImage, sizeof info, &info);
    EXPECT_EQ(4, info.bmWidth);
    EXPECT_EQ(2, info.bmHeight);
    EXPECT_NE(0, FreePic(&pic, 0));
}

DWORD WINAPI OldVersion()
{
    return 0xC0000004;
}

TEST_F(PictureCache, ResourceIsThePlatformsBitmapOnSystemsBeforeNt)
{
    const ImportHook hook("GetVersion", OldVersion);
    const Pic        pic = Load("HC2");
    EXPECT_EQ(DWORD{ PIC_BITMAP }, pic.nKind);
    EXPECT_EQ(nullptr, pic.hPalette);
    EXPECT_EQ(DWORD{ OBJ_BITMAP }, GetObjectType(pic.hImage));
    EXPECT_NE(0, FreePic(&pic, 0));
}

TEST_F(PictureCache, ResourceThatClaimsMorePixelsThanItHasIsNone)
{
    EXPECT_FALSE(Exists("TESTLIE"));
}

TEST_F(PictureCache, IconResourcesComeBehindBitmaps)
{
    const Pic pic = Load("TESTICON");
    EXPECT_EQ(DWORD{ PIC_ICON }, pic.nKind);
    EXPECT_NE(nullptr, pic.hImage);
    FreePic(&pic, 0);
}

TEST_F(PictureCache, NumbersOfResourcesAreNamesToo)
{
    const Pic pic = Load("#2002");
    EXPECT_EQ(DWORD{ PIC_DIB }, pic.nKind);
    FreePic(&pic, 0);
}

TEST_F(PictureCache, ResourcesComeBeforeFiles)
{
    const TempFile file("HC1.BMP", MakeBitmapFile({}));
    const Pic      pic = Load("HC1");
    int            width = 0;
    GetPicDimensions(&pic, &width, nullptr);
    EXPECT_EQ(13, width);
    FreePic(&pic, 0);
}

TEST_F(PictureCache, FilesHaveTheirEndings)
{
    const TempFile bitmap("pictest.BMP", MakeBitmapFile({}));
    const TempFile icon("icotest.ICO", MakeIconFile({}));
    const Pic      byName = Load("pictest");
    EXPECT_EQ(DWORD{ PIC_DIB }, byName.nKind);
    const Pic whole = Load("pictest.bmp");
    EXPECT_NE(byName.hImage, whole.hImage) << "another name is another picture";
    const Pic other = Load("icotest");
    EXPECT_EQ(DWORD{ PIC_ICON }, other.nKind);
    EXPECT_FALSE(Exists("pictest."));
    FreePic(&byName, 0);
    FreePic(&whole, 0);
    FreePic(&other, 0);
}

TEST_F(PictureCache, EachKindOfFileLoads)
{
    for (const DibSpec& spec : GoodFiles()) {
        const TempFile file("pictest.bmp", MakeBitmapFile(spec));
        SCOPED_TRACE(testing::Message() << "header " << spec.headerSize << ", bits " << spec.bits << ", compression "
                                        << spec.compression);
        // Without a table of colours there is no palette, and a file needs one.
        EXPECT_EQ(spec.bits != 24, Exists("pictest.bmp"));
    }
}

TEST_F(PictureCache, TrueColourFileNeedsACountOfColours)
{
    DibSpec spec;
    spec.bits = 24;
    {
        const TempFile file("pictest.bmp", MakeBitmapFile(spec));
        EXPECT_FALSE(Exists("pictest.bmp"));
    }
    spec.colorsUsed = 4;
    const TempFile file("pictest.bmp", MakeBitmapFile(spec));
    EXPECT_TRUE(Exists("pictest.bmp"));
}

TEST_F(PictureCache, PaletteHasAsManyColoursAsTheFileSays)
{
    DibSpec spec;
    spec.colorsUsed = 3;
    const TempFile file("pictest.bmp", MakeBitmapFile(spec));
    const Pic      pic = Load("pictest.bmp");
    PALETTEENTRY   entries[8] = {};
    ASSERT_EQ(3u, GetPaletteEntries(pic.hPalette, 0, 8, entries));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(TableColor(i), RGB(entries[i].peRed, entries[i].peGreen, entries[i].peBlue)) << i;
        EXPECT_EQ(0, entries[i].peFlags);
    }
    FreePic(&pic, 0);
}

TEST_F(PictureCache, FileIsReadInPieces)
{
    DibSpec spec;
    spec.width = 400;
    spec.height = 300;
    const TempFile file("pictest.bmp", MakeBitmapFile(spec));
    EXPECT_TRUE(Exists("pictest.bmp"));
}

TEST_F(PictureCache, IconFilesOfEachDepthLoad)
{
    for (const WORD bits : { WORD{ 1 }, WORD{ 4 }, WORD{ 8 } }) {
        IconSpec spec;
        spec.bits = bits;
        const TempFile file("icotest.ico", MakeIconFile(spec));
        EXPECT_TRUE(Exists("icotest.ico")) << bits;
        spec.planes = 4;
        const TempFile planes("icoplane.ico", MakeIconFile(spec));
        EXPECT_TRUE(Exists("icoplane.ico")) << bits << " bits in four planes";
    }
    IconSpec understated;
    understated.understates = true;
    const TempFile file("icotest.ico", MakeIconFile(understated));
    EXPECT_TRUE(Exists("icotest.ico"));
}

TEST_F(PictureCache, IconFileWithSmallImagesOnlyIsNone)
{
    IconSpec spec;
    spec.width = 16;
    spec.height = 16;
    const TempFile file("icotest.ico", MakeIconFile(spec));
    EXPECT_FALSE(Exists("icotest.ico"));
}

TEST_F(PictureCache, DamagedFilesAreNone)
{
    const int live = LiveBlocks();
    Bytes     cut = MakeBitmapFile({});
    cut.pop_back();
    Bytes cutIcon = MakeIconFile({});
    cutIcon.pop_back();
    const Bytes files[] = { {}, { 'B' }, { 'B', 'M' }, Bytes(14), Bytes(5000, 0xFF), cut, cutIcon };
    for (const Bytes& bytes : files) {
        const TempFile bitmap("pictest.bmp", bytes);
        const TempFile icon("icotest.ico", bytes);
        EXPECT_FALSE(Exists("pictest.bmp")) << bytes.size();
        EXPECT_FALSE(Exists("icotest.ico")) << bytes.size();
    }
    EXPECT_EQ(live, LiveBlocks());
}

TEST_F(PictureCache, FileOfAnotherKindIsRefusedBeforeItIsRead)
{
    const TempFile bitmap("pictest.bmp", Bytes(5000, 0xFF));
    const TempFile icon("icotest.ico", Bytes(5000, 0xFF));
    const int      before = AllocationCount();
    EXPECT_FALSE(Exists("pictest"));
    EXPECT_FALSE(Exists("icotest"));
    EXPECT_EQ(before, AllocationCount());
}

TEST_F(PictureCache, NamesThatLeadNowhereGiveNothing)
{
    EXPECT_FALSE(Exists("no such picture"));
    EXPECT_FALSE(Exists(""));
    EXPECT_FALSE(Exists(std::string(500, 'n').c_str()));
    Pic pic = {};
    EXPECT_EQ(0, LoadPic(&pic, nullptr, nullptr));
    EXPECT_EQ(0, LoadPic(&pic, nullptr, MAKEINTRESOURCEA(2010)));
    EXPECT_EQ(0, LoadPic(nullptr, nullptr, "HC1"));
}

TEST_F(PictureCache, PictureThatWasNeverLoadedIsNotFreed)
{
    const HBITMAP bitmap = CreateBitmap(4, 4, 1, 1, nullptr);
    const Pic     own = { PIC_BITMAP, bitmap, nullptr, 0 };
    EXPECT_EQ(0, FreePic(&own, 0));
    EXPECT_EQ(DWORD{ OBJ_BITMAP }, GetObjectType(bitmap));
    DeleteObject(bitmap);
    const Pic none = {};
    EXPECT_EQ(0, FreePic(&none, 0));
    EXPECT_EQ(0, FreePic(nullptr, 0));
}

TEST_F(PictureCache, LastUseDeletesBitmapAndPalette)
{
    const Pic pic = Load("HC2");
    ASSERT_NE(nullptr, pic.hPalette);
    EXPECT_EQ(1, FreePic(&pic, 0));
    EXPECT_EQ(0u, GetObjectType(pic.hImage));
    EXPECT_EQ(0u, GetObjectType(pic.hPalette));
}

TEST_F(PictureCache, LoadingWithoutMemoryFailsAndLeavesNothing)
{
    const TempFile bitmap("pictest.bmp", MakeBitmapFile({}));
    const TempFile icon("icotest.ico", MakeIconFile({}));
    for (const char* const name : { "HC1", "IM1", "TESTICON", "pictest.bmp", "icotest.ico" }) {
        const int live = LiveBlocks();
        for (FailEachAllocation each; each.Next();) {
            Exists(name);
            EXPECT_EQ(live, LiveBlocks()) << name << ", allocation " << each.Number();
        }
    }
}

TEST_F(PictureCache, EntriesAreBlocksThatAreShared)
{
    const Pic pic = Load("IM5");
    EXPECT_EQ(UINT{ GMEM_SHARE | GMEM_ZEROINIT }, LastBlockFlags());
    FreePic(&pic, 0);
}

} // namespace
