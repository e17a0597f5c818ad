// Blocks on windows, and the end of a dialog's controls.
#include "dialog/template_window.h"

#include "foundation/memory.h"
#include "support/block_leaks.h"
#include "support/import_hook.h"

namespace {

class DlgInfo : public WindowTest {
protected:
    ~DlgInfo() override { FreeDlgInfo(parent.hwnd(), 1); }

    BlockLeakCheck blocks;
};

TEST_F(DlgInfo, NewBlockReadsAsZeroAndHangsOnTheWindow)
{
    const char* const block = static_cast<const char*>(CreateDlgInfo(parent.hwnd(), nullptr, 40));
    ASSERT_NE(nullptr, block);
    EXPECT_EQ(40u, BlockSize(block));
    EXPECT_EQ(std::string(40, '\0'), std::string(block, 40));
    EXPECT_EQ(block, GetDlgInfo(parent.hwnd()));
    EXPECT_EQ(block, GetPropA(parent.hwnd(), "L"));
    EXPECT_EQ(nullptr, FreeDlgInfo(parent.hwnd(), 1));
}

TEST_F(DlgInfo, TakesABlockOfTheCaller)
{
    int block = 7;
    EXPECT_EQ(&block, CreateDlgInfo(parent.hwnd(), &block, 0));
    EXPECT_EQ(&block, GetDlgInfo(parent.hwnd()));
    EXPECT_EQ(&block, FreeDlgInfo(parent.hwnd(), 0));
}

TEST_F(DlgInfo, KeepsTheFirstBlock)
{
    void* const first = CreateDlgInfo(parent.hwnd(), nullptr, 4);
    int         other = 0;
    EXPECT_EQ(nullptr, CreateDlgInfo(parent.hwnd(), nullptr, 4));
    EXPECT_EQ(nullptr, CreateDlgInfo(parent.hwnd(), &other, 4));
    EXPECT_EQ(first, GetDlgInfo(parent.hwnd()));
    FreeDlgInfo(parent.hwnd(), 1);
}

TEST_F(DlgInfo, OfNothingIsNullAndHangsNothing)
{
    EXPECT_EQ(nullptr, CreateDlgInfo(parent.hwnd(), nullptr, 0));
    EXPECT_EQ(nullptr, CreateDlgInfo(parent.hwnd(), nullptr, -1));
    EXPECT_EQ(nullptr, GetDlgInfo(parent.hwnd()));
    EXPECT_EQ(nullptr, GetPropA(parent.hwnd(), "L"));
}

TEST_F(DlgInfo, WithoutMemoryIsNullAndHangsNothing)
{
    FailAllocation(1);
    EXPECT_EQ(nullptr, CreateDlgInfo(parent.hwnd(), nullptr, 4));
    FailAllocation(0);
    EXPECT_EQ(nullptr, GetDlgInfo(parent.hwnd()));
}

TEST_F(DlgInfo, WithoutAWindowIsNullAndKeepsNoBlock)
{
    int block = 7;
    EXPECT_EQ(nullptr, CreateDlgInfo(nullptr, nullptr, 4));
    EXPECT_EQ(nullptr, CreateDlgInfo(nullptr, &block, 4));
    EXPECT_EQ(nullptr, GetDlgInfo(nullptr));
    EXPECT_EQ(nullptr, FreeDlgInfo(nullptr, 1));
}

TEST_F(DlgInfo, FreeGivesTheBlockToTheCallerWhoKeepsIt)
{
    void* const block = CreateDlgInfo(parent.hwnd(), nullptr, 4);
    EXPECT_EQ(block, FreeDlgInfo(parent.hwnd(), 0));
    EXPECT_EQ(nullptr, GetDlgInfo(parent.hwnd()));
    EXPECT_EQ(4u, BlockSize(block));
    HBlockFree(block);
}

TEST_F(DlgInfo, FreeFreesTheBlock)
{
    CreateDlgInfo(parent.hwnd(), nullptr, 4);
    const int live = LiveBlocks();
    EXPECT_EQ(nullptr, FreeDlgInfo(parent.hwnd(), 1));
    EXPECT_EQ(live - 1, LiveBlocks());
    EXPECT_EQ(nullptr, GetDlgInfo(parent.hwnd()));
    EXPECT_EQ(nullptr, FreeDlgInfo(parent.hwnd(), 1)) << "there is none";
}

TEST_F(DlgInfo, FreeFreesABlockOfTheCallerToo)
{
    void* const block = HBlockAlloc(16);
    EXPECT_EQ(block, CreateDlgInfo(parent.hwnd(), block, 0));
    const int live = LiveBlocks();
    EXPECT_EQ(nullptr, FreeDlgInfo(parent.hwnd(), 1));
    EXPECT_EQ(live - 1, LiveBlocks());
}

TEST_F(DlgInfo, FreeTakesTheSecondPropertyAlong)
{
    SetPropA(parent.hwnd(), "H", reinterpret_cast<HANDLE>(INT_PTR{ 3 }));
    EXPECT_EQ(nullptr, FreeDlgInfo(parent.hwnd(), 0));
    EXPECT_EQ(nullptr, GetPropA(parent.hwnd(), "H"));
}

// The end of a dialog's controls

class ClearedDialog : public TemplateWindow {
protected:
    void Fill()
    {
        for (int id = 1; id <= 3; ++id) {
            const HWND child = Create("STATIC", "", 0, id);
            CreateWindowExA(0, "STATIC", "", WS_CHILD, 0, 0, 5, 5, child, nullptr, nullptr, nullptr);
        }
        UpdateWindow(parent.hwnd());
    }
};

TEST_F(ClearedDialog, HasNoChildren)
{
    Fill();
    EXPECT_EQ(6, ChildCount());
    EXPECT_EQ(TRUE, ClearDialog(parent.hwnd()));
    EXPECT_EQ(0, ChildCount());
    EXPECT_TRUE(IsWindow(parent.hwnd()));
}

int gDestroyed;

BOOL WINAPI DestroyNothing(HWND)
{
    ++gDestroyed;
    return FALSE;
}

TEST_F(ClearedDialog, KeepsWhatStandsBehindAChildThatCanNotBeDestroyed)
{
    Fill();
    gDestroyed = 0;
    {
        const ImportHook hook("DestroyWindow", DestroyNothing);
        EXPECT_EQ(FALSE, ClearDialog(parent.hwnd()));
    }
    EXPECT_EQ(1, gDestroyed);
    EXPECT_EQ(6, ChildCount());
}

TEST_F(ClearedDialog, IsErasedAndPaintedAtOnceAfterRedrawIsOnAgain)
{
    std::vector<UINT> order;
    parent.OnMessage(WM_SETREDRAW, [&](WPARAM redraw, LPARAM) {
        order.push_back(redraw ? 1 : 0);
        return DefWindowProcA(parent.hwnd(), WM_SETREDRAW, redraw, 0);
    });
    parent.OnMessage(WM_ERASEBKGND, [&](WPARAM, LPARAM) {
        order.push_back(WM_ERASEBKGND);
        return 1;
    });
    Fill();
    order.clear();
    ClearDialog(parent.hwnd());
    EXPECT_EQ((std::vector<UINT>{ 0, 1, WM_ERASEBKGND }), order);
    EXPECT_FALSE(GetUpdateRect(parent.hwnd(), nullptr, FALSE));
}

TEST_F(ClearedDialog, WithoutAWindowLeavesTheWindowsOnTheScreen)
{
    EXPECT_EQ(FALSE, ClearDialog(nullptr));
    EXPECT_TRUE(IsWindow(parent.hwnd()));
}

} // namespace
