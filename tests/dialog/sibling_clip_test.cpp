// Siblings are taken out of a clip region.
#include "dialog/test_control.h"

#include "foundation/gdi_guards.h"

namespace {

LRESULT CALLBACK StyledProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WWM_GETSTYLE ? GetWindowLongPtrA(hwnd, GWLP_USERDATA)
                                   : DefWindowProcA(hwnd, message, wParam, lParam);
}

// A window of 100 by 100 draws; siblings cover parts of it.
class SiblingClip : public TestControl {
protected:
    SiblingClip() : drawing_(Create("STATIC", "", 0, 1, { 50, 50, 100, 100 })) {}

    HWND Sibling(const char* name, RECT rect, DWORD style = 0) { return Create(name, "", style, 2, rect); }

    // Whether a point of the drawing window is still drawn on after its siblings were taken out.
    bool IsDrawn(int x, int y)
    {
        const WindowDC dc(drawing_);
        HClipSiblings(drawing_, dc.hdc);
        return PtVisible(dc.hdc, x, y) != 0;
    }

    HWND drawing_;
};

TEST_F(SiblingClip, LeavesAWindowWithoutSiblingsWhole)
{
    EXPECT_TRUE(IsDrawn(0, 0));
    EXPECT_TRUE(IsDrawn(99, 99));
}

TEST_F(SiblingClip, TakesAVisibleSiblingOut)
{
    Sibling("STATIC", { 100, 100, 20, 20 });
    EXPECT_FALSE(IsDrawn(50, 50));
    EXPECT_FALSE(IsDrawn(69, 69));
    EXPECT_TRUE(IsDrawn(49, 50));
    EXPECT_TRUE(IsDrawn(70, 69));
}

TEST_F(SiblingClip, SkipsInvisibleSiblingsAndThoseElsewhere)
{
    ShowWindow(Sibling("STATIC", { 100, 100, 20, 20 }), SW_HIDE);
    Sibling("STATIC", { 150, 50, 20, 20 });
    EXPECT_TRUE(IsDrawn(55, 55));
    EXPECT_TRUE(IsDrawn(99, 10));
}

TEST_F(SiblingClip, SkipsStaticsAndButtonsThatHaveAStyle)
{
    for (const char* name : { "hstat", "HBUTT" }) {
        RegisterControl(0, StyledProc, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr, name);
        const HWND sibling = Sibling(name, { 100, 100, 20, 20 });
        EXPECT_FALSE(IsDrawn(55, 55)) << name << " of style 0";
        SetWindowLongPtrA(sibling, GWLP_USERDATA, 1);
        EXPECT_TRUE(IsDrawn(55, 55)) << name << " with a style";
        DestroyWindow(sibling);
        UnregisterClassA(name, GetModuleHandleA(nullptr));
    }
}

TEST_F(SiblingClip, TakesOtherClassesOutThatBeginAlike)
{
    RegisterControl(0, StyledProc, 0, 0, GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr, "HButton");
    SetWindowLongPtrA(Sibling("HButton", { 100, 100, 20, 20 }), GWLP_USERDATA, 1);
    EXPECT_FALSE(IsDrawn(55, 55));
    DestroyWindow(parent.hwnd());
    UnregisterClassA("HButton", GetModuleHandleA(nullptr));
}

TEST_F(SiblingClip, TakesTheVisibleChildrenOfTheWindowOutToo)
{
    const HWND child =
        CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 50, 50, 20, 20, drawing_, nullptr, nullptr, nullptr);
    EXPECT_FALSE(IsDrawn(55, 55));
    EXPECT_TRUE(IsDrawn(75, 55));
    ShowWindow(child, SW_HIDE);
    EXPECT_TRUE(IsDrawn(55, 55));
}

TEST_F(SiblingClip, AlwaysGoesOn)
{
    struct {
        HDC  hdc;
        HWND hwnd;
        RECT screen;
    } data = { nullptr, drawing_, {} };
    EXPECT_EQ(TRUE, ClipSibs(drawing_, reinterpret_cast<LPARAM>(&data)));
    const HWND sibling = Sibling("STATIC", { 0, 0, 5, 5 });
    EXPECT_EQ(TRUE, ClipSibs(sibling, reinterpret_cast<LPARAM>(&data)));
    EXPECT_EQ(TRUE, ClipSibs(sibling, 0)) << "without a window that draws";
}

} // namespace
