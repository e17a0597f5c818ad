// What a window shows, as pixels.
#include "support/pixels.h"

#include "support/pump.h"

#include <algorithm>
#include <cstdio>

namespace {

BITMAPINFO TopDownInfo(int width, int height, WORD bits)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = bits;
    return info;
}

// DIB pixels are 0x00RRGGBB.
COLORREF FromDib(DWORD pixel)
{
    return RGB(pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF);
}

COLORREF Rgb(COLORREF color)
{
    return color & 0x00FFFFFF;
}

void Settle(HWND hwnd)
{
    UpdateWindow(GetAncestor(hwnd, GA_ROOT));
    UpdateWindow(hwnd);
    PumpPending();
}

std::string TestName()
{
    const testing::TestInfo* const info = testing::UnitTest::GetInstance()->current_test_info();
    std::string                    name = info ? std::string(info->test_suite_name()) + "." + info->name() : "pixels";
    std::ranges::replace(name, '/', '_');
    return name;
}

std::string ProgramFolder()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string name = path;
    return name.substr(0, name.find_last_of("\\/") + 1);
}

std::vector<BYTE> BmpRow(const Pixels& pixels, int y, size_t rowSize)
{
    std::vector<BYTE> row(rowSize);
    for (int x = 0; x < pixels.width; ++x) {
        const COLORREF color = pixels.At(x, y);
        BYTE* const    out = &row[static_cast<size_t>(x) * 3];
        out[0] = GetBValue(color);
        out[1] = GetGValue(color);
        out[2] = GetRValue(color);
    }
    return row;
}

} // namespace

COLORREF Pixels::At(int x, int y) const
{
    if (x < 0 || y < 0 || x >= width || y >= height) {
        return CLR_INVALID;
    }
    return colors[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
}

int Pixels::Count(COLORREF color, const RECT& area) const
{
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            count += At(x, y) == Rgb(color);
        }
    }
    return count;
}

bool Pixels::IsAll(COLORREF color, const RECT& area) const
{
    return Count(color, area) == (area.right - area.left) * (area.bottom - area.top);
}

RECT Pixels::InkBounds(COLORREF background, const RECT& area) const
{
    RECT bounds = {};
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            if (At(x, y) != Rgb(background) && At(x, y) != CLR_INVALID) {
                const RECT pixel = { x, y, x + 1, y + 1 };
                UnionRect(&bounds, &bounds, &pixel);
            }
        }
    }
    return bounds;
}

namespace {

Pixels PartOfDC(HDC hdc, POINT corner, int width, int height)
{
    const BITMAPINFO info = TopDownInfo(width, height, 32);
    void*            bits = nullptr;
    const HDC        memory = CreateCompatibleDC(hdc);
    const HBITMAP    bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ    old = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, width, height, hdc, corner.x, corner.y, SRCCOPY);
    GdiFlush();
    Pixels            result = { width, height, {} };
    const auto* const dib = static_cast<const DWORD*>(bits);
    for (int i = 0; i < width * height; ++i) {
        result.colors.push_back(FromDib(dib[i]));
    }
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    return result;
}

} // namespace

Pixels ShotOfDC(HDC hdc, int width, int height)
{
    return PartOfDC(hdc, {}, width, height);
}

Pixels ScreenShotOf(HWND hwnd)
{
    RECT  client = {};
    POINT corner = {};
    GetClientRect(hwnd, &client);
    ClientToScreen(hwnd, &corner);
    const HDC    screen = GetDC(nullptr);
    const Pixels result = PartOfDC(screen, corner, client.right, client.bottom);
    ReleaseDC(nullptr, screen);
    return result;
}

Pixels ShotOf(HWND hwnd)
{
    Settle(hwnd);
    RECT client = {};
    GetClientRect(hwnd, &client);
    const HDC    hdc = GetDC(hwnd);
    const Pixels result = ShotOfDC(hdc, client.right, client.bottom);
    ReleaseDC(hwnd, hdc);
    return result;
}

Pixels ShotOfWindow(HWND hwnd)
{
    Settle(hwnd);
    RECT window = {};
    GetWindowRect(hwnd, &window);
    const HDC    hdc = GetWindowDC(hwnd);
    const Pixels result = ShotOfDC(hdc, window.right - window.left, window.bottom - window.top);
    ReleaseDC(hwnd, hdc);
    return result;
}

testing::AssertionResult SamePixels(const Pixels& expected, const Pixels& seen, const RECT& area)
{
    int  count = 0;
    char first[80] = "";
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            if (expected.At(x, y) != seen.At(x, y) && count++ == 0) {
                std::snprintf(first, sizeof first, "first at %d, %d: expected 0x%06lX, seen 0x%06lX", x, y,
                              expected.At(x, y), seen.At(x, y));
            }
        }
    }
    if (count == 0) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << count << " pixels differ, " << first << "\nsaved as "
                                       << SavePixels(expected, "expected") << " and " << SavePixels(seen, "seen");
}

testing::AssertionResult SamePixels(const Pixels& expected, const Pixels& seen)
{
    if (expected.width != seen.width || expected.height != seen.height) {
        return testing::AssertionFailure() << "sizes differ: expected " << expected.width << " by " << expected.height
                                           << ", seen " << seen.width << " by " << seen.height;
    }
    return SamePixels(expected, seen, expected.Bounds());
}

std::string SavePixels(const Pixels& pixels, const char* label)
{
    const std::string path = ProgramFolder() + TestName() + "." + label + ".bmp";
    std::FILE* const  file = std::fopen(path.c_str(), "wb");
    if (!file) {
        return "nothing: " + path + " can't be written";
    }
    const size_t     rowSize = (static_cast<size_t>(pixels.width) * 3 + 3) & ~size_t{ 3 };
    const BITMAPINFO info = TopDownInfo(pixels.width, -pixels.height, 24); // bottom up, as all viewers read it
    BITMAPFILEHEADER header = {};
    header.bfType = 0x4D42;
    header.bfOffBits = sizeof header + sizeof info.bmiHeader;
    header.bfSize = header.bfOffBits + static_cast<DWORD>(rowSize) * static_cast<DWORD>(pixels.height);
    std::fwrite(&header, sizeof header, 1, file);
    std::fwrite(&info.bmiHeader, sizeof info.bmiHeader, 1, file);
    for (int y = pixels.height - 1; y >= 0; --y) {
        std::fwrite(BmpRow(pixels, y, rowSize).data(), rowSize, 1, file);
    }
    std::fclose(file);
    return path;
}

Canvas::Canvas(int width, int height) : width_(width), height_(height)
{
    const HDC screen = GetDC(nullptr);
    hdc_ = CreateCompatibleDC(screen);
    bitmap_ = CreateCompatibleBitmap(screen, width, height);
    ReleaseDC(nullptr, screen);
    old_ = SelectObject(hdc_, bitmap_);
    Fill(RGB(255, 255, 255));
}

Canvas::~Canvas()
{
    SelectObject(hdc_, old_);
    DeleteObject(bitmap_);
    DeleteDC(hdc_);
}

void Canvas::Fill(COLORREF color)
{
    const RECT   all = { 0, 0, width_, height_ };
    const HBRUSH brush = CreateSolidBrush(color);
    FillRect(hdc_, &all, brush);
    DeleteObject(brush);
}
