// What stands after the library has started.
#include "foundation/startup.h"

#include "foundation/screen.h"
#include "support/screen_resolution.h"
#include "support/window_test.h"

#include <gtest/gtest.h>

#include <array>
#include <utility>

namespace {

LRESULT CALLBACK OtherProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WM_USER ? 77 : DefWindowProcA(hwnd, message, wParam, lParam);
}

int CALLBACK PaintNothing(int, HDC, RECT*, int, int, int)
{
    return 0;
}

HICON StockIcon()
{
    return LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_APPLICATION));
}

TEST(WidgetsInit, LeavesKnownState)
{
    EXPECT_EQ(1, fWidgetsReady);
    EXPECT_EQ(GetModuleHandleA(nullptr), hInstance);
    EXPECT_EQ(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_IBEAM)), hCurIBeam);
    EXPECT_EQ(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)), hCurArrow);
    EXPECT_EQ(nullptr, hFocusBrush);
    EXPECT_EQ(nullptr, hSelectBrush);
    EXPECT_EQ(nullptr, hFaceBrush);
    EXPECT_EQ(nullptr, hSecondBrush);
    EXPECT_EQ(nullptr, hThirdBrush);
    EXPECT_EQ(nullptr, pfnDrawPart);
    EXPECT_EQ(1, fDpiScaling);
    EXPECT_EQ(1, fDpiRead);
}

TEST(WidgetsInit, LoadsTheStripOf13Images)
{
    ASSERT_NE(nullptr, hCheckImages);
    EXPECT_EQ(13, ImageList_GetImageCount(hCheckImages));
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(hCheckImages, &width, &height);
    EXPECT_EQ(ScaleX(13), width);
}

TEST(WidgetsInit, ReadsTheInternationalSettings)
{
    EXPECT_STREQ("d/m/yyyy", WWGetIntlInfo()->szDateFormat);
    EXPECT_EQ('.', WWGetIntlInfo()->chDateSep);
}

TEST(WidgetsInit, ASecondCallKeepsWhatAHostHasSet)
{
    const HBRUSH           brush = static_cast<HBRUSH>(GetStockObject(GRAY_BRUSH));
    const ScreenResolution screen(144);
    const HIMAGELIST       images = hCheckImages;
    const HCURSOR          cursor = hCurGrid;
    SetBkgndFocusBrush(brush);
    SetGridDrawPartFnc(PaintNothing);
    SetGridAppDPIScaling(0);
    SetDateSep('-');
    SetGridBckgndColors(0x010203, 0x040506, 0x070809);
    SetGridSelectColor(0x0A0B0C);
    const std::array<HBRUSH, 4> brushes = { hFaceBrush, hSecondBrush, hThirdBrush, hSelectBrush };

    WidgetsInit();

    EXPECT_EQ(brush, hFocusBrush);
    EXPECT_EQ(&PaintNothing, pfnDrawPart);
    EXPECT_EQ(0, fDpiScaling);
    EXPECT_EQ(144, nDpiX);
    EXPECT_EQ('-', WWGetIntlInfo()->chDateSep);
    EXPECT_EQ((std::array<HBRUSH, 4>{ hFaceBrush, hSecondBrush, hThirdBrush, hSelectBrush }), brushes);
    EXPECT_EQ(images, hCheckImages);
    EXPECT_EQ(cursor, hCurGrid);

    SetBkgndFocusBrush(nullptr);
    SetGridDrawPartFnc(nullptr);
    SetGridAppDPIScaling(1);
    SetDateSep('.');
    SetGridBckgndColors(0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF);
    SetGridSelectColor(0xFFFFFFFF);
}

struct ClassRow {
    const char* name;
    UINT        style;
    WNDPROC     wndProc;
    int         extraWords; // of the size of a pointer
    HCURSOR     cursor;
    bool        hasIcon;
    INT_PTR     background;
};

TEST(WidgetsInit, RegistersTheClassesForTheWholeProcess)
{
    // clang-format off
    const ClassRow rows[] = {
        { "HButt",    0x408B, HButtWnd, 2, hCurArrow, false, 6 },
        { "HEdit_SS", 0x400B, HEditWnd, 1, hCurIBeam, false, 0 },
        { "HEdit",    0x400B, HEditWnd, 1, hCurIBeam, false, 0 },
        { "HList",    0x400B, HListWnd, 1, nullptr,   false, 0 },
        { "HComb",    0x4003, HCombWnd, 2, hCurArrow, false, 6 },
        { "HDrop",    0x480B, HDropWnd, 2, nullptr,   false, 0 },
        { "HGrid",    0x4008, HGridWnd, 1, hCurGrid,  true,  6 },
    };
    // clang-format on
    for (const ClassRow& row : rows) {
        WNDCLASSA info = {};
        ASSERT_NE(0, GetClassInfoA(hInstance, row.name, &info)) << row.name;
        EXPECT_EQ(row.style, info.style) << row.name;
        EXPECT_EQ(row.wndProc, info.lpfnWndProc) << row.name;
        EXPECT_EQ(row.extraWords * static_cast<int>(sizeof(LONG_PTR)), info.cbWndExtra) << row.name;
        EXPECT_EQ(0, info.cbClsExtra) << row.name;
        EXPECT_EQ(row.cursor, info.hCursor) << row.name;
        EXPECT_EQ(row.hasIcon, info.hIcon != nullptr) << row.name;
        EXPECT_EQ(row.background, reinterpret_cast<INT_PTR>(info.hbrBackground)) << row.name;
    }
}

void StartAgain()
{
    const HIMAGELIST images = std::exchange(hCheckImages, nullptr);
    fWidgetsReady = 0;
    WidgetsInit();
    ImageList_Destroy(std::exchange(hCheckImages, images));
}

TEST(WidgetsInit, RegistersTheDropWindowTogetherWithTheCombo)
{
    WNDCLASSA info = {};
    ASSERT_TRUE(UnregisterClassA("HDrop", hInstance));
    StartAgain();
    EXPECT_FALSE(GetClassInfoA(hInstance, "HDrop", &info)) << "the combo stood already";
    ASSERT_TRUE(UnregisterClassA("HComb", hInstance));
    StartAgain();
    EXPECT_TRUE(GetClassInfoA(hInstance, "HComb", &info));
    EXPECT_TRUE(GetClassInfoA(hInstance, "HDrop", &info));
}

TEST(WidgetsInit, KeepsTheCursorOfTheGrid)
{
    EXPECT_NE(nullptr, hCurGrid);
    EXPECT_EQ(LoadCursorA(hInstance, MAKEINTRESOURCEA(4301)), hCurGrid);
}

TEST(WidgetsInit, GivesTheGridItsIcon)
{
    WNDCLASSA info = {};
    ASSERT_NE(0, GetClassInfoA(hInstance, "HGrid", &info));
    EXPECT_EQ(LoadIconA(hInstance, MAKEINTRESOURCEA(3000)), info.hIcon);
}

TEST(RegisterControl, TakesTheFieldsInTheOrderOfTheStructure)
{
    const HBRUSH brush = GetSysColorBrush(COLOR_BTNFACE);
    const int    atom = RegisterControl(CS_DBLCLKS, OtherProc, 4, 8, hInstance, StockIcon(), hCurArrow, brush, nullptr,
                                        "TestRegistered");
    EXPECT_NE(0, atom);
    WNDCLASSA info = {};
    ASSERT_NE(0, GetClassInfoA(hInstance, "TestRegistered", &info));
    EXPECT_EQ(static_cast<UINT>(CS_DBLCLKS), info.style);
    EXPECT_EQ(&OtherProc, info.lpfnWndProc);
    EXPECT_EQ(4, info.cbClsExtra);
    EXPECT_EQ(8, info.cbWndExtra);
    EXPECT_EQ(StockIcon(), info.hIcon);
    EXPECT_EQ(hCurArrow, info.hCursor);
    EXPECT_EQ(brush, info.hbrBackground);
    EXPECT_EQ(0, RegisterControl(CS_DBLCLKS, OtherProc, 0, 0, hInstance, nullptr, nullptr, nullptr, nullptr,
                                 "TestRegistered"))
        << "a class that is there already";
    UnregisterClassA("TestRegistered", hInstance);
}

class Subclass : public WindowTest {};

TEST_F(Subclass, GivesTheOldProcedureAndPutsTheNewInPlace)
{
    const HWND hwnd = Create("STATIC", "");
    const auto old = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(hwnd, GWLP_WNDPROC));
    EXPECT_EQ(old, SubclassWW(hwnd, OtherProc));
    EXPECT_EQ(77, Send(hwnd, WM_USER));
}

TEST_F(Subclass, GivesNullForTheProcedureThatIsThereAlready)
{
    const HWND hwnd = Create("STATIC", "");
    SubclassWW(hwnd, OtherProc);
    EXPECT_EQ(nullptr, SubclassWW(hwnd, OtherProc));
    EXPECT_EQ(77, Send(hwnd, WM_USER));
}

TEST(SetGridAppDPIChanged, MakesTheNextConversionReadTheScreen)
{
    const ScreenResolution screen(nDpiX * 3);
    const int              tripled = nDpiX;
    SetGridAppDPIChanged();
    EXPECT_EQ(tripled, nDpiX) << "the old value stands until the next conversion";
    EXPECT_EQ(tripled / 3, DpiX());
}

TEST(GetHelpName, NamesTheHelpFile)
{
    EXPECT_STREQ("Widgets.hlp", GetHelpName());
}

} // namespace
