// An edit control through the DLL.
#include "support/window_test.h"

namespace {

class DllEdit : public WindowTest {
protected:
    HWND MakeEdit(const char* text)
    {
        edit = Create("HEdit", text);
        ctl = RecordOf<ControlHeader>(edit);
        return edit;
    }
    LONG Value()
    {
        LONG value = 0;
        EXPECT_EQ(4, SendPtr(edit, HEM_GETDATA, sizeof value, &value));
        return value;
    }

    HWND           edit = nullptr;
    ControlHeader* ctl = nullptr;
};

TEST_F(DllEdit, ReadsItsDescriptionAndItsValue)
{
    MakeEdit("%nl|0;100;|#,##0");
    EXPECT_EQ('n', Send(edit, HEM_GETCLASS));
    EXPECT_EQ('l', Send(edit, HEM_GETTYPE));
    const LONG value = 42;
    EXPECT_EQ(1, HEditSetData(ctl, &value));
    EXPECT_EQ(42, Value());
    EXPECT_EQ(-2, HEditSetData(nullptr, &value));
}

TEST_F(DllEdit, HoldsItsValueBetweenItsBounds)
{
    MakeEdit("%nl|0;100;|#,##0");
    const LONG value = 500;
    HEditSetData(ctl, &value);
    BoundMinMax(ctl);
    EXPECT_EQ(100, Value());
}

TEST_F(DllEdit, ReadsAnotherDescription)
{
    MakeEdit("%nl");
    EXPECT_NE(0, HEParseWinText(ctl, "%dl"));
    EXPECT_EQ('d', Send(edit, HEM_GETCLASS));
}

TEST(DllBounds, AreReadFromATextThatMovesOn)
{
    char   text[] = "|1;20;|rest";
    char*  next = text;
    double lowest = 0;
    double highest = 0;
    EXPECT_EQ(3, HEFindMinMaxInfo(&next, &lowest, &highest, nullptr, 'n', 'l'));
    EXPECT_DOUBLE_EQ(1.0, lowest);
    EXPECT_DOUBLE_EQ(20.0, highest);
    EXPECT_STREQ("rest", next);
}

LRESULT CALLBACK HostEditProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return HandleMsg(hwnd, message, wParam, lParam, HEditMsgHandler, 0);
}

TEST_F(DllEdit, ServesClassesOfTheHost)
{
    constexpr const char* names[] = { "HostEdit", "HostEditMsg" };
    const WNDPROC         procs[] = { HEditWnd, HostEditProc };
    for (int i = 0; i < 2; ++i) {
        RegisterControl(0, procs[i], 0, sizeof(LONG_PTR), GetModuleHandleA(nullptr), nullptr, nullptr, nullptr, nullptr,
                        names[i]);
        const HWND hwnd = Create(names[i], "%dl");
        EXPECT_EQ('d', Send(hwnd, HEM_GETCLASS)) << names[i];
        DestroyWindow(hwnd);
        UnregisterClassA(names[i], GetModuleHandleA(nullptr));
    }
}

} // namespace
