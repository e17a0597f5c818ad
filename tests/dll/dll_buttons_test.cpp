// Buttons and pictures through the DLL.
#include "support/window_test.h"

#include <cstring>

namespace {

class DllButton : public WindowTest {
protected:
    HWND Make(const char* text, DWORD style)
    {
        button = Create("HButt", text, style, 7, { 10, 10, 80, 30 });
        return button;
    }
    LRESULT Say(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) { return Send(button, message, wParam, lParam); }
    LRESULT SayTo(UINT message, const void* lParam, WPARAM wParam = 0)
    {
        return SendPtr(button, message, wParam, lParam);
    }

    HWND button = nullptr;
};

TEST_F(DllButton, TellsWhatItsTextSays)
{
    Make("412l;[red]Caption;[blue]IM1:HC1", HBS_CHECK);
    EXPECT_EQ("Caption", TextOf(button));
    EXPECT_EQ(4, Say(HBM_GETTEXTPOS));
    EXPECT_EQ(1, Say(HBM_GETPICPOS));
    EXPECT_EQ(2, Say(HBM_GETRELPOS));
    EXPECT_EQ(0x0000FF, Say(HBM_GETTEXTCOLOR));
    EXPECT_EQ(0xFF0000, Say(HBM_GETPICKEY));
    EXPECT_EQ(HBS_CHECK, Say(HBM_GETKIND));
    EXPECT_EQ(2, Say(HBM_GETPICCOUNT));
    EXPECT_EQ(2, Say(HBM_GETSTATECOUNT));
    EXPECT_EQ(4, Say(HBM_GETVALUESIZE));
    EXPECT_EQ(-1, Say(HBM_GETPIC, 0));
    EXPECT_NE(0, Say(HBM_GETPALETTE, 1));
    EXPECT_EQ(0, Say(HBM_GETSOUND));
    EXPECT_EQ(1, Say(HBM_ISGROUPEND));
    EXPECT_EQ(0, Say(HBM_GETBKBRUSH));
}

TEST_F(DllButton, TakesOtherSettings)
{
    Make("333;x;IM1", HBS_CHECK);
    EXPECT_EQ(1, Say(HBM_SETTEXTPOS, 1));
    EXPECT_EQ(1, Say(HBM_SETPICPOS, 2));
    EXPECT_EQ(1, Say(HBM_SETRELPOS, 4));
    EXPECT_EQ(1, Say(HBM_SETTEXTCOLOR, 0, 5));
    EXPECT_EQ(1, Say(HBM_SETPICKEY, 0, 6));
    EXPECT_EQ(0, Say(HBM_SETBKBRUSH, reinterpret_cast<WPARAM>(GetStockObject(WHITE_BRUSH))));
    EXPECT_EQ(3, Say(HBM_SETPICCOUNT, 3));
    EXPECT_EQ(0, Say(HBM_SETPIC, 1));
    EXPECT_NE(0, Say(HBM_GETPIC, 1));
    EXPECT_EQ(0, SayTo(HBM_SETSOUND, "no such sound"));
    EXPECT_EQ(1, Say(HBM_GETTEXTPOS));
    EXPECT_EQ(2, Say(HBM_GETPICPOS));
    EXPECT_EQ(4, Say(HBM_GETRELPOS));
    EXPECT_EQ(5, Say(HBM_GETTEXTCOLOR));
    EXPECT_EQ(6, Say(HBM_GETPICKEY));
    EXPECT_NE(0, Say(HBM_GETBKBRUSH));
}

TEST_F(DllButton, HoldsItsValueInAVariable)
{
    Make("333l;x", HBS_CHECK | HBS_AUTO);
    LONG value = 1;
    EXPECT_EQ(1, SayTo(HBM_SETLINK, &value));
    EXPECT_EQ(reinterpret_cast<LRESULT>(&value), Say(HBM_GETLINK));
    EXPECT_EQ(1, Say(BM_GETCHECK));
    Say(BM_SETCHECK, 0);
    EXPECT_EQ(0, value);
    EXPECT_EQ(1, Say(HBM_CLICK));
    EXPECT_EQ(1, value);
    EXPECT_EQ(1, parent.Count(HBN_CLICKED));
    LONG read = 9;
    EXPECT_EQ(4, SayTo(HBM_GETVALUE, &read));
    EXPECT_EQ(1, read);
    EXPECT_EQ(1, Say(HBM_SETVALUE));
    EXPECT_EQ(0, SayTo(HBM_GETVALUE, &read));
    EXPECT_EQ(0, Say(BM_GETSTATE));
    EXPECT_EQ(1, Say(BM_SETSTATE, 0));
    EXPECT_EQ(0, Say(BM_SETSTYLE, HBS_PUSH));
    EXPECT_EQ(1, Say(BM_CLICK));
}

LRESULT CALLBACK HostButtonProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return HandleMsg(hwnd, message, wParam, lParam, HButtMsgHandler, sizeof(LONG_PTR));
}

TEST_F(DllButton, ServesClassesOfTheHost)
{
    constexpr const char* names[] = { "HostButton", "HostButtonMsg" };
    const WNDPROC         procs[] = { HButtWnd, HostButtonProc };
    for (int i = 0; i < 2; ++i) {
        RegisterControl(0, procs[i], 0, 2 * sizeof(LONG_PTR), GetModuleHandleA(nullptr), nullptr, nullptr, nullptr,
                        nullptr, names[i]);
        const HWND hwnd = Create(names[i], "333;x", HBS_CHECK);
        EXPECT_EQ(3, Send(hwnd, HBM_GETTEXTPOS)) << names[i];
        DestroyWindow(hwnd);
        UnregisterClassA(names[i], GetModuleHandleA(nullptr));
    }
}

TEST_F(DllButton, LendsItsCaption)
{
    Make("Caption", HBS_PUSH);
    const HDC hdc = GetDC(button);
    EXPECT_EQ(TRUE, HBDrawText(hdc, Say(WWM_GETSTATE), 7));
    EXPECT_EQ(FALSE, HBDrawText(hdc, 0, 7));
    ReleaseDC(button, hdc);
}

TEST(DllPictures, ComeFromTheLibraryWhereTheHostHasNone)
{
    Pic pic = {};
    ASSERT_EQ(1, LoadPic(&pic, GetModuleHandleA(nullptr), "HC1"));
    int width = 0;
    int height = 0;
    EXPECT_EQ(1, GetPicDimensions(&pic, &width, &height));
    EXPECT_EQ(13, width);
    EXPECT_EQ(13, height);
    const HDC     screen = GetDC(nullptr);
    const HDC     memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 20, 20);
    const HGDIOBJ old = SelectObject(memory, bitmap);
    PatBlt(memory, 0, 0, 20, 20, BLACKNESS);
    EXPECT_EQ(1, PaintPic(memory, &pic, 0, 0, 0));
    EXPECT_NE(COLORREF{ 0 }, GetPixel(memory, 6, 6));
    SelectObject(memory, old);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    EXPECT_NE(0, FreePic(&pic, 0));
    EXPECT_EQ(0, LoadPic(&pic, GetModuleHandleA(nullptr), "no such picture"));
}

TEST(DllPictures, AreIconsOfTheLibraryToo)
{
    Pic pic = {};
    ASSERT_EQ(nullptr, FindResourceA(nullptr, "#3000", MAKEINTRESOURCEA(14)))
        << "the program has none"; // RT_GROUP_ICON
    ASSERT_EQ(1, LoadPic(&pic, GetModuleHandleA(nullptr), "#3000"));
    EXPECT_EQ(DWORD{ PIC_ICON }, pic.nKind);
    EXPECT_NE(0, FreePic(&pic, 0));
}

} // namespace
