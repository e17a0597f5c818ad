// What a wrapped cell control hands to the grid, and what it keeps.
#include "gridctl/cell_controls.h"
#include "gridctl/grid_window.h"

namespace {

class CellForward : public GridWindow {
protected:
    void SetUp() override { MakeGrid(GridOf({ Text(), Text() }), 3); }
    void TearDown() override { HoldCtrl(false); }

    void HoldCtrl(bool down)
    {
        BYTE keys[256] = {};
        GetKeyboardState(keys);
        keys[VK_CONTROL] = static_cast<BYTE>(down ? 0x80 : 0);
        SetKeyboardState(keys);
    }
    HWND Child(int col) { return reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, static_cast<WPARAM>(col))); }
    bool Forwards(int kind, UINT vk)
    {
        LRESULT result = 0;
        return HGCellForward(kind, grid, WM_KEYDOWN, vk, 0, &result);
    }
};

struct KeyCase {
    UINT vk;
    bool plain[4]; // for edit, list, check, combo
    bool ctrl[4];
};

// clang-format off
constexpr KeyCase keyCases[] = {
    { VK_TAB,    { true, true, true, true },     { true, true, true, true } },
    { VK_RETURN, { true, true, true, true },     { true, true, true, true } },
    { VK_ESCAPE, { true, true, true, true },     { true, true, true, true } },
    { VK_HOME,   { false, false, false, false }, { true, true, true, true } },
    { VK_END,    { false, false, false, false }, { true, true, true, true } },
    { VK_PRIOR,  { true, false, true, false },   { true, true, true, true } },
    { VK_NEXT,   { true, false, true, false },   { true, true, true, true } },
    { VK_UP,     { true, false, true, false },   { true, true, true, true } },
    { VK_DOWN,   { true, false, true, false },   { true, true, true, true } },
    { VK_LEFT,   { false, true, true, false },   { false, true, true, false } },
    { VK_RIGHT,  { false, true, true, false },   { false, true, true, false } },
    { 'A',       { false, false, false, false }, { false, false, false, false } },
    { VK_F2,     { false, false, false, false }, { false, false, false, false } },
};
// clang-format on
constexpr int kinds[4] = { cellCodeEdit, cellCodeList, cellCodeCheck, cellCodeCombo };

TEST_F(CellForward, KeysGoByKindAndCtrl)
{
    for (const KeyCase& each : keyCases) {
        for (int i = 0; i < 4; ++i) {
            HoldCtrl(false);
            EXPECT_EQ(each.plain[i], Forwards(kinds[i], each.vk)) << each.vk << " kind " << kinds[i];
            HoldCtrl(true);
            EXPECT_EQ(each.ctrl[i], Forwards(kinds[i], each.vk)) << each.vk << " with Ctrl, kind " << kinds[i];
        }
    }
}

// A host's procedure over the grid, which answers one message itself.
struct Answered {
    UINT    message;
    LRESULT answer;
    WPARAM  wParam;
    LPARAM  lParam;
    int     count;
};
Answered gAnswered;
WNDPROC  gGridProc;

LRESULT CALLBACK AnsweringProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != gAnswered.message) {
        return CallWindowProcA(gGridProc, hwnd, message, wParam, lParam);
    }
    gAnswered.wParam = wParam;
    gAnswered.lParam = lParam;
    ++gAnswered.count;
    return gAnswered.answer;
}

void AnswerFor(HWND grid, UINT message, LRESULT answer)
{
    gAnswered = { message, answer, 0, 0, 0 };
    if (GetWindowLongPtrA(grid, GWLP_WNDPROC) != reinterpret_cast<LONG_PTR>(AnsweringProc)) {
        gGridProc = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(grid, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AnsweringProc)));
    }
}

TEST_F(CellForward, ForwardedKeyKeepsItsParametersAndHasTheGridsAnswer)
{
    for (const LRESULT answer : { LRESULT{ 0 }, LRESULT{ 77 } }) {
        AnswerFor(grid, WM_KEYDOWN, answer);
        LRESULT result = -1;
        EXPECT_TRUE(HGCellForward(cellCodeEdit, grid, WM_KEYDOWN, VK_TAB, 0x000F0001, &result));
        EXPECT_EQ(answer, result);
        EXPECT_EQ(WPARAM{ VK_TAB }, gAnswered.wParam);
        EXPECT_EQ(0x000F0001, gAnswered.lParam);
        EXPECT_EQ(answer, SendMessageA(Child(0), WM_KEYDOWN, VK_TAB, 1)) << "through the control's own procedure";
        EXPECT_EQ(2, gAnswered.count);
    }
}

TEST_F(CellForward, SystemKeyStaysWithTheControlUnlessTheGridAnswers)
{
    for (const int kind : kinds) {
        for (const LRESULT answer : { LRESULT{ 0 }, LRESULT{ 5 } }) {
            AnswerFor(grid, WM_SYSKEYDOWN, answer);
            LRESULT result = -1;
            EXPECT_EQ(answer != 0, HGCellForward(kind, grid, WM_SYSKEYDOWN, VK_DOWN, 0x20000001, &result)) << kind;
            EXPECT_EQ(answer, result) << kind;
            EXPECT_EQ(1, gAnswered.count) << kind;
            EXPECT_EQ(WPARAM{ 0 }, gAnswered.wParam) << kind;
            EXPECT_EQ(LPARAM{ 0 }, gAnswered.lParam) << kind;
        }
    }
}

TEST_F(CellForward, FocusEventsAreToldAndNotConsumed)
{
    LRESULT result = 0;
    EXPECT_FALSE(HGCellForward(cellCodeEdit, grid, WM_SETFOCUS, 0, 0, &result));
    EXPECT_EQ(1, parent.Count(HGN_EDITFOCUS));
    EXPECT_FALSE(HGCellForward(cellCodeEdit, grid, WM_KILLFOCUS, 0, 0, &result));
    EXPECT_EQ(1, parent.Count(HGN_EDITBLUR));
}

TEST_F(CellForward, DialogCodeIsTheGrids)
{
    LRESULT result = 0;
    EXPECT_TRUE(HGCellForward(cellCodeEdit, grid, WM_GETDLGCODE, 0, 0, &result));
    EXPECT_EQ(Send(grid, WM_GETDLGCODE), result);
}

TEST_F(CellForward, DoubleClickAndRightButtonAreNotifications)
{
    LRESULT result = 0;
    EXPECT_TRUE(HGCellForward(cellCodeEdit, grid, WM_LBUTTONDBLCLK, 0, 0, &result));
    EXPECT_EQ(1, parent.Count(HGN_DBLCLK));
    EXPECT_TRUE(HGCellForward(cellCodeEdit, grid, WM_RBUTTONDOWN, 0, 0, &result));
    EXPECT_EQ(1, parent.Count(HGN_RBUTTONDOWN));
    EXPECT_EQ(1, result);
}

TEST_F(CellForward, WithoutAGridNothingIsConsumed)
{
    LRESULT result = 0;
    EXPECT_FALSE(HGCellForward(cellCodeEdit, parent.hwnd(), WM_KEYDOWN, VK_TAB, 0, &result));
    EXPECT_EQ(1, result);
}

TEST_F(CellForward, TabInTheChildMovesTheGrid)
{
    MoveTo(0, 0);
    const HWND child = reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 0));
    Send(child, WM_KEYDOWN, VK_TAB, 0);
    EXPECT_EQ((Cell{ 1, 0 }), Current());
}

TEST_F(CellForward, OtherMessagesStayWithTheControl)
{
    const HWND child = reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, 0));
    SendPtr(child, HEM_SETDATA, 0, "inside");
    EXPECT_EQ("inside", TextOf(child));
}

TEST_F(CellForward, AControlThatTheHostDestroysLeavesNoLinkInItsColumn)
{
    const HWND other = Child(1);
    DestroyWindow(Child(0));
    EXPECT_EQ(nullptr, HGGetField(ctl->pData, 0)->pCtl);
    EXPECT_EQ(nullptr, Child(0));
    EXPECT_EQ(other, Child(1));
    InvalidateRect(grid, nullptr, TRUE);
    UpdateWindow(grid);
    EXPECT_EQ(1, Send(grid, HGM_DELETEFIELD, 0));
    EXPECT_EQ(other, Child(0));
}

TEST_F(CellForward, AnEditorThatTheHostDestroysEndsTheEdit)
{
    MoveTo(0, 0);
    const HWND editor = Child(0);
    ASSERT_EQ(editor, ctl->hEditor);
    SetFocus(editor);
    ASSERT_TRUE(ctl->wFlags & HGC_INEDIT);
    DestroyWindow(editor);
    EXPECT_EQ(nullptr, ctl->hEditor);
    EXPECT_EQ(0, ctl->wFlags & (HGC_INEDIT | HGC_EDITORSHOWN));
    MoveTo(1, 2);
    EXPECT_EQ((Cell{ 1, 2 }), Current());
    EXPECT_EQ(Child(1), ctl->hEditor);
}

TEST_F(CellForward, AControlThatIsNotTheEditorsLeavesTheEditAlone)
{
    MoveTo(0, 0);
    SetFocus(Child(0));
    DestroyWindow(Child(1));
    EXPECT_EQ(Child(0), ctl->hEditor);
    EXPECT_TRUE(ctl->wFlags & HGC_INEDIT);
}

} // namespace
