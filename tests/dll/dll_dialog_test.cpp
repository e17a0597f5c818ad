// Dialogs in windows through the DLL.
#include "support/window_test.h"

namespace {

class DllDialog : public WindowTest {
protected:
    HWND MakePage(RECT* outRect = nullptr, HFONT* outFont = nullptr)
    {
        return CreateDialogInWin(GetModuleHandleA(nullptr), "TESTPAGE", parent.hwnd(), outRect, outFont);
    }
    HWND Child(int id) const { return GetDlgItem(parent.hwnd(), id); }
};

TEST_F(DllDialog, HasEveryClassThatAHostNames)
{
    constexpr struct {
        int         id;
        const char* className;
    } rows[] = {
        { 101, "HEdit" }, { 102, "HEdit_SS" }, { 103, "HComb" }, { 104, "HList" },
        { 105, "HButt" }, { 106, "HButt" },    { 107, "HGrid" },
    };
    RECT  rect = {};
    HFONT font = nullptr;
    EXPECT_EQ(Child(101), MakePage(&rect, &font));
    for (const auto& row : rows) {
        char name[16] = "";
        GetClassNameA(Child(row.id), name, sizeof name);
        EXPECT_STREQ(row.className, name) << row.id;
        EXPECT_NE(0, Send(Child(row.id), WWM_GETSTATE)) << row.id;
    }
    EXPECT_EQ("Every class", TextOf(parent.hwnd()));
    EXPECT_GT(rect.right, 0);
    EXPECT_EQ(TRUE, ClearDialog(parent.hwnd()));
    EXPECT_EQ(nullptr, GetWindow(parent.hwnd(), GW_CHILD));
    EXPECT_NE(0, DeleteObject(font));
}

TEST_F(DllDialog, BlocksHangOnWindows)
{
    void* const block = CreateDlgInfo(parent.hwnd(), nullptr, 16);
    ASSERT_NE(nullptr, block);
    EXPECT_EQ(block, GetDlgInfo(parent.hwnd()));
    EXPECT_EQ(nullptr, FreeDlgInfo(parent.hwnd(), 1));
    EXPECT_EQ(nullptr, GetDlgInfo(parent.hwnd()));
}

TEST_F(DllDialog, BlockOfTheHostIsTheLibrarysToFree)
{
    void* const block = GlobalAlloc(GMEM_FIXED, 16);
    EXPECT_EQ(block, CreateDlgInfo(parent.hwnd(), block, 0));
    EXPECT_EQ(block, GetDlgInfo(parent.hwnd()));
    EXPECT_EQ(nullptr, FreeDlgInfo(parent.hwnd(), 1));
}

TEST_F(DllDialog, KeysGoThroughItsFilter)
{
    const HWND first = Create("EDIT", "", WS_TABSTOP, 1);
    const HWND second = Create("EDIT", "", WS_TABSTOP, 2);
    SetFocus(first);
    MSG msg = { first, WM_KEYDOWN, VK_TAB, 1, 0, {} };
    EXPECT_NE(0, IsTabDlgMessage(parent.hwnd(), nullptr, 0, &msg));
    EXPECT_EQ(second, GetFocus());
}

TEST_F(DllDialog, MnemonicsAreFoundBehindTheFocus)
{
    const HWND first = Create("EDIT", "", 0, 1);
    const HWND second = Create("HButt", "&Go", 0, 2);
    MSG        msg = { first, WM_SYSKEYDOWN, 'G', 1, 0, {} };
    EXPECT_EQ(TRUE, IsMnemonic(first, reinterpret_cast<LPARAM>(&msg)));
    EXPECT_EQ(FALSE, IsMnemonic(second, reinterpret_cast<LPARAM>(&msg)));
}

TEST_F(DllDialog, WindowsAreMeasuredAndCentred)
{
    EXPECT_EQ(720, WindowWidth(parent.hwnd()));
    EXPECT_EQ(520, WindowHeight(parent.hwnd()));
    EXPECT_NE(0, CenterWindow(parent.hwnd(), 0));
    RECT rect = {};
    GetWindowRect(parent.hwnd(), &rect);
    EXPECT_EQ((GetSystemMetrics(SM_CXSCREEN) - 720) / 2, rect.left);
    SetCursorPos(0, 0);
    EXPECT_NE(0, CenterAboutCursor(parent.hwnd()));
    GetWindowRect(parent.hwnd(), &rect);
    EXPECT_EQ(0, rect.left);
    EXPECT_EQ(0, rect.top);
}

TEST_F(DllDialog, RectanglesGoToTheScreenAndBack)
{
    POINT origin = {};
    ClientToScreen(parent.hwnd(), &origin);
    EXPECT_NE(0, origin.x);
    EXPECT_NE(0, origin.y);
    const RECT inside = { 1, 2, 30, 40 };
    RECT       rect = inside;
    RECT       expected = inside;
    OffsetRect(&expected, origin.x, origin.y);
    RCtoS(parent.hwnd(), &rect);
    EXPECT_TRUE(EqualRect(&expected, &rect));
    RStoC(parent.hwnd(), &rect);
    EXPECT_TRUE(EqualRect(&inside, &rect));
}

} // namespace
