// The library's own resources, read as the platform gives them.
#include "foundation/startup.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <cstddef>
#include <set>
#include <string>

namespace {

constexpr COLORREF green = RGB(0, 255, 0);

struct BitmapCase {
    const char* name;
    int         width;
    int         height;
};

// A number in the name stands for the numeric id.
constexpr BitmapCase bitmaps[] = {
    { "#2010", 169, 13 }, { "#2011", 338, 26 }, { "HC1", 13, 13 },  { "HC2", 13, 13 }, { "HC3", 13, 13 },
    { "HC5", 13, 13 },    { "BA", 8, 6 },       { "BF", 7, 5 },     { "BL", 7, 5 },    { "BN", 7, 5 },
    { "#2002", 7, 4 },    { "#2004", 7, 4 },    { "#2003", 9, 5 },  { "#2005", 9, 5 }, { "#2006", 8, 2 },
    { "#2007", 8, 2 },
};

// A bitmap resource as it lies in the program.
const BITMAPINFO* FindDib(const char* name)
{
    const HRSRC found = FindResourceA(hInstance, name, reinterpret_cast<LPCSTR>(RT_BITMAP));
    return found ? static_cast<const BITMAPINFO*>(LockResource(LoadResource(hInstance, found))) : nullptr;
}

COLORREF PaletteColor(const BITMAPINFO& dib, int index)
{
    const RGBQUAD& color = dib.bmiColors[index];
    return RGB(color.rgbRed, color.rgbGreen, color.rgbBlue);
}

// Indexes of the palette that 4-bit pixels use.
std::set<int> UsedIndexes(const BITMAPINFO& dib)
{
    const auto* const pixels = reinterpret_cast<const BYTE*>(&dib) + sizeof(BITMAPINFOHEADER) + 16 * sizeof(RGBQUAD);
    const int         stride = (dib.bmiHeader.biWidth * 4 + 31) / 32 * 4;
    std::set<int>     used;
    for (int y = 0; y < dib.bmiHeader.biHeight; ++y) {
        for (int x = 0; x < dib.bmiHeader.biWidth; ++x) {
            const BYTE pair = pixels[y * stride + x / 2];
            used.insert(x % 2 ? pair & 15 : pair >> 4);
        }
    }
    return used;
}

bool UsesColor(const BITMAPINFO& dib, COLORREF color)
{
    for (const int index : UsedIndexes(dib)) {
        if (PaletteColor(dib, index) == color) {
            return true;
        }
    }
    return false;
}

std::string StringResource(UINT id)
{
    char      text[64] = "";
    const int length = LoadStringA(hInstance, id, text, sizeof text);
    return std::string(text, static_cast<size_t>(length));
}

struct StringCase {
    UINT        id;
    const char* text;
};

constexpr StringCase strings[] = {
    { 1251, "IM0:IM1:IM2:IM3" }, { 1252, "HC1:HC2:HC3:HC4:HC5:HC6" }, { 1253, "333;" },     { 1254, "441;" },
    { 1255, "HBPush" },          { 1258, "HBCheck" },                 { 1259, "HB3State" }, { 1262, "333w;" },
};

struct IconParts {
    ICONINFO info{};
    explicit IconParts(HICON icon) { GetIconInfo(icon, &info); }
    ~IconParts()
    {
        DeleteObject(info.hbmMask);
        DeleteObject(info.hbmColor);
    }
    IconParts(const IconParts&) = delete;
    IconParts& operator=(const IconParts&) = delete;
};

} // namespace

TEST(Resources, HoldEachBitmapInItsSizeWithSixteenColors)
{
    for (const BitmapCase& expected : bitmaps) {
        SCOPED_TRACE(expected.name);
        const BITMAPINFO* const dib = FindDib(expected.name);
        ASSERT_NE(dib, nullptr);
        EXPECT_EQ(dib->bmiHeader.biWidth, expected.width);
        EXPECT_EQ(dib->bmiHeader.biHeight, expected.height);
        EXPECT_EQ(dib->bmiHeader.biBitCount, 4);
    }
}

TEST(Resources, HavePureGreenWhereBitmapsAreTransparent)
{
    for (const char* const name : { "#2010", "#2011", "BA", "BF", "BL", "BN", "#2002", "#2003", "#2004", "#2005",
                                    "#2006", "#2007" }) {
        SCOPED_TRACE(name);
        const BITMAPINFO* const dib = FindDib(name);
        ASSERT_NE(dib, nullptr);
        EXPECT_TRUE(UsesColor(*dib, green));
    }
}

TEST(Resources, HaveNoFourthAndSixthCheckFace)
{
    EXPECT_EQ(FindDib("HC4"), nullptr);
    EXPECT_EQ(FindDib("HC6"), nullptr);
}

TEST(Resources, HoldTheStringsOfButtonDescriptions)
{
    for (const StringCase& expected : strings) {
        EXPECT_EQ(StringResource(expected.id), expected.text);
    }
    EXPECT_EQ(StringResource(1250), "");
}

TEST(Resources, HoldFourCursorsThatPointWithTheirMiddle)
{
    for (const int id : { 4301, 4302, 4303, 4304 }) {
        SCOPED_TRACE(id);
        const HCURSOR cursor = LoadCursorA(hInstance, MAKEINTRESOURCEA(id));
        ASSERT_NE(cursor, nullptr);
        const IconParts parts(cursor);
        EXPECT_EQ(parts.info.fIcon, FALSE);
        EXPECT_EQ(parts.info.xHotspot, 15U);
        EXPECT_EQ(parts.info.yHotspot, 15U);
    }
}

TEST(Resources, HoldAnIconInTwoSizes)
{
    for (const int size : { 16, 32 }) {
        SCOPED_TRACE(size);
        const auto icon = static_cast<HICON>(
            LoadImageA(hInstance, MAKEINTRESOURCEA(3000), IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
        ASSERT_NE(icon, nullptr);
        const IconParts parts(icon);
        BITMAP          bitmap{};
        GetObjectA(parts.info.hbmColor, sizeof bitmap, &bitmap);
        EXPECT_EQ(bitmap.bmWidth, size);
        DestroyIcon(icon);
    }
}
