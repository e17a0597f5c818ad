// The child window of a column.
#include "gridctl/cell_controls.h"
#include "gridctl/grid_window.h"

#include <vector>

namespace {

class CellControls : public GridWindow {
protected:
    HWND ChildOf(int col) { return reinterpret_cast<HWND>(Send(grid, HGM_GETFIELDCHILD, static_cast<WPARAM>(col))); }
};

TEST(CellCtlIndex, FollowsTheTableOfKinds)
{
    const char kinds[] = "elcdkq";
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(i, HGCellCtlIndex(kinds[i])) << kinds[i];
    }
    EXPECT_EQ(-1, HGCellCtlIndex('x'));
    EXPECT_EQ(-1, HGCellCtlIndex(0));
}

TEST_F(CellControls, UnknownKindGetsNoChild)
{
    HGField* const odd = Text();
    odd->cKind = 'z';
    MakeGrid(GridOf({ odd }), 1);
    EXPECT_EQ(0, Send(grid, HGM_GETFIELDCHILD, 0));
    EXPECT_EQ(0, HGCreateCellCtl(ctl, ctl->pData, HGGetField(ctl->pData, 0)));
}

TEST_F(CellControls, EditChildCarriesTheTypeAndTheFormat)
{
    MakeGrid(GridOf({ Number("N", 0, "0.00") }), 1);
    const HWND child = ChildOf(0);
    ASSERT_TRUE(IsWindow(child));
    EXPECT_EQ(200, GetDlgCtrlID(child));
    EXPECT_FALSE(IsWindowVisible(child));
    EXPECT_EQ('n', Send(child, HEM_GETCLASS));
    EXPECT_EQ('l', Send(child, HEM_GETTYPE));
    char format[16] = {};
    SendPtr(child, HEM_GETFORMAT, sizeof format, format);
    EXPECT_STREQ("0.00", format);
    char name[16] = {};
    GetClassNameA(child, name, sizeof name);
    EXPECT_STREQ("HEdit_SS", name);
    EXPECT_EQ(reinterpret_cast<LRESULT>(grid), Send(child, WWM_GETPARENT));
    EXPECT_EQ(reinterpret_cast<void*>(HGGetField(ctl->pData, 0)->pCtl),
              reinterpret_cast<void*>(Send(child, WWM_GETSTATE)));
}

TEST_F(CellControls, EditStyleLosesItsBorderAndGainsItsFrame)
{
    HGField* const field = HGFieldCreate("F", 0, 80, 0, 's', 's', 0, 0, 8, 'e', WS_BORDER | HES_UPPERCASE, "", 0);
    MakeGrid(GridOf({ field }), 1);
    const DWORD style = static_cast<DWORD>(Send(ChildOf(0), WWM_GETSTYLE));
    EXPECT_EQ(0u, style & WS_BORDER);
    EXPECT_EQ(DWORD{ WS_CHILD | HES_FRAME | HES_UPPERCASE }, style & (WS_CHILD | HES_FRAME | HES_UPPERCASE));
}

struct ChildCase {
    char  kind;
    DWORD style; // of the column
    int   id;
    DWORD with;
    DWORD without;
};

constexpr ChildCase childCases[] = {
    { 'l', WS_BORDER | HLS_FOCUSBRUSH | HLS_TABS, 201, WS_CHILD | HLS_3DBORDER | HLS_FIELD | HLS_TABS,
      WS_BORDER | HLS_FOCUSBRUSH },
    { 'd', WS_BORDER | HCS_FOCUSBRUSH | HCS_TABS, 203, WS_CHILD | HCS_3DBORDER | HCS_DROPDOWN | HCS_TABS,
      WS_BORDER | HCS_FOCUSBRUSH },
    { 'c', WS_BORDER | HCS_FOCUSBRUSH, 202, WS_CHILD | HCS_3DBORDER | HCS_DROPDOWN | HCS_EDIT,
      WS_BORDER | HCS_FOCUSBRUSH },
    { 'q', WS_BORDER | HES_UPPERCASE, 205, WS_CHILD | HES_FRAME | HES_UPPERCASE, WS_BORDER },
};

TEST_F(CellControls, StyleOfAChildIsTheColumnsLessItsBorderAndWithItsFrame)
{
    for (const ChildCase& each : childCases) {
        HGField* const field = HGFieldCreate("F", 0, 80, 60, 's', 's', 0, 0, 8, each.kind, each.style, "", 0);
        MakeGrid(GridOf({ field }), 1);
        EXPECT_EQ(each.id, GetDlgCtrlID(ChildOf(0))) << each.kind;
        const DWORD style = static_cast<DWORD>(GetWindowLongA(ChildOf(0), GWL_STYLE));
        EXPECT_EQ(each.with, style & each.with) << each.kind;
        EXPECT_EQ(0u, style & each.without) << each.kind;
        DestroyWindow(grid);
    }
}

TEST_F(CellControls, CodeTypeThatIsNoneIsLeftOutOfTheChild)
{
    for (const char kind : { 'l', 'c', 'd' }) {
        HGField* const field = HGFieldCreate("F", 0, 80, 60, 's', 's', 0, 0, 8, kind, HCS_DROPDOWN, "", 0);
        field->cClass2 = 'x';
        field->cType2 = 'y';
        MakeGrid(GridOf({ field }), 1);
        EXPECT_EQ('s', Send(ChildOf(0), HLM_GETDATACLASS)) << kind;
        EXPECT_EQ(0, Send(ChildOf(0), HLM_GETCODECLASS)) << kind;
        EXPECT_EQ(0, Send(ChildOf(0), HLM_GETCODETYPE)) << kind;
        DestroyWindow(grid);
    }
}

TEST_F(CellControls, RightAlignedColumnIsEditedRightAlignedToo)
{
    MakeGrid(GridOf({ Number(), Text() }), 1);
    EXPECT_TRUE(HGGetField(ctl->pData, 0)->dwCtlStyle & HES_EDITRIGHT);
    EXPECT_FALSE(HGGetField(ctl->pData, 1)->dwCtlStyle & HES_EDITRIGHT);
    EXPECT_TRUE(Send(ChildOf(0), WWM_GETSTYLE) & HES_EDITRIGHT);
}

TEST_F(CellControls, TextIsLimitedToTheCell)
{
    MakeGrid(GridOf({ Text(9) }), 1);
    EXPECT_EQ(8, Send(ChildOf(0), HEM_GETLIMIT));
}

// The limits that are sent to any window while it lives.
class LimitWatch {
public:
    LimitWatch() : hook_(SetWindowsHookExA(WH_CALLWNDPROC, Note, nullptr, GetCurrentThreadId())) { sent.clear(); }
    ~LimitWatch() { UnhookWindowsHookEx(hook_); }
    LimitWatch(const LimitWatch&) = delete;
    LimitWatch& operator=(const LimitWatch&) = delete;

    static inline std::vector<int> sent;

private:
    static LRESULT CALLBACK Note(int code, WPARAM wParam, LPARAM lParam)
    {
        const CWPSTRUCT& call = *reinterpret_cast<const CWPSTRUCT*>(lParam);
        if (code >= 0 && call.message == EM_LIMITTEXT) {
            sent.push_back(static_cast<int>(call.wParam));
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }
    HHOOK hook_;
};

TEST_F(CellControls, TextColumnWithoutSizeIsLimitedToZeroNotToMinusOne)
{
    const LimitWatch watch;
    MakeGrid(GridOf({ Text(0), Text(1), Text(9) }), 1);
    EXPECT_EQ((std::vector<int>{ 0, 0, 8 }), LimitWatch::sent);
}

TEST_F(CellControls, ChildTakesTheFontOfTheGrid)
{
    MakeGrid(GridOf({ Text() }), 1);
    const HFONT font = CreateFontA(-18, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    Send(grid, WM_SETFONT, reinterpret_cast<WPARAM>(font));
    SendPtr(grid, HGM_ADDFIELD, 0, Text());
    EXPECT_EQ(reinterpret_cast<LRESULT>(font), Send(ChildOf(1), WM_GETFONT));
    Send(grid, WM_SETFONT, 0);
    DeleteObject(font);
}

TEST_F(CellControls, HostDrawnKindHasAnEditWithoutFormatAndWithoutWrapping)
{
    HGField* const field = HGFieldCreate("Q", 0, 80, 0, 'n', 'l', 0, 0, 0, 'q', 0, "000", 0);
    MakeGrid(GridOf({ field, Text() }), 1);
    const HWND child = ChildOf(0);
    ASSERT_TRUE(IsWindow(child));
    EXPECT_EQ(205, GetDlgCtrlID(child));
    char format[16] = {};
    SendPtr(child, HEM_GETFORMAT, sizeof format, format);
    EXPECT_STREQ("*0", format);
    EXPECT_NE(reinterpret_cast<LONG_PTR>(HGEditCellProc), GetWindowLongPtrA(child, GWLP_WNDPROC));
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(HGEditCellProc), GetWindowLongPtrA(ChildOf(1), GWLP_WNDPROC));
}

TEST_F(CellControls, ChildWithoutARecordIsNone)
{
    WNDCLASSA info = {}; // the host's own class goes before the library's
    info.lpfnWndProc = DefWindowProcA;
    info.hInstance = GetModuleHandleA(nullptr);
    info.lpszClassName = "HButt";
    ASSERT_TRUE(RegisterClassA(&info));
    MakeGrid(GridOf({ HGFieldCreate("K", 0, 80, 0, 'b', 'c', 0, 0, 0, 'k', 0, "", 0) }), 1);
    EXPECT_EQ(nullptr, HGGetField(ctl->pData, 0)->pCtl);
    EXPECT_FALSE(IsWindow(ChildOf(0)));
    EXPECT_EQ(0, HGCreateCellCtl(ctl, ctl->pData, HGGetField(ctl->pData, 0)));
    DestroyWindow(grid);
    UnregisterClassA("HButt", GetModuleHandleA(nullptr));
}

TEST_F(CellControls, LongFormatsAreCarriedWhole)
{
    const std::string format(900, '#');
    MakeGrid(GridOf({ HGFieldCreate("M", 0, 80, 0, 'm', 's', 0, 0, 0, 'e', 0, format.c_str(), 0) }), 1);
    std::string kept(1000, '\0');
    SendPtr(ChildOf(0), HEM_GETFORMAT, kept.size(), kept.data());
    EXPECT_EQ(format, kept.c_str());
}

} // namespace
