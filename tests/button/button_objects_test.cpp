// What ten thousand buttons leave behind, some of them painted and pressed: memory, GDI, USER and kernel objects.
#include "button_window.h"

#include "button/temp_file.h"
#include "support/gdi_leaks.h"
#include "support/guarded_memory.h"

namespace {

BOOL WINAPI PlayNothing(const char*, UINT)
{
    return TRUE;
}

// The number of the next object of a table. What stays behind in it pushes the number up by one step or more each.
ULONG_PTR NextKernelNumber()
{
    const HANDLE probe = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    CloseHandle(probe);
    return reinterpret_cast<ULONG_PTR>(probe);
}

ULONG_PTR NextUserNumber()
{
    const HMENU probe = CreateMenu();
    DestroyMenu(probe);
    return LOWORD(reinterpret_cast<ULONG_PTR>(probe));
}

struct Content {
    const char* text;
    DWORD       style;
};

// clang-format off
constexpr Content contents[] = {
    { "Push",                             HBS_DEFPUSH },
    { "333;x;HC1:IM1:HC2",                HBS_CHECK | HBS_AUTO },
    { "488;[red][blue]two^lines;HC1:HC5", HBS_THREESTATE | HBS_NOFACE | HBS_SHADOWTEXT },
    { "444;x;;%aTESTSOUND",               HBS_TRANSPARENT | HBS_NOFACE },
    { "017;;TESTTRUE:TESTICON;TESTSOUND", HBS_NOFOCUS | WS_DISABLED },
};
constexpr Content files = { "444;x;many.bmp:many.ico:nowhere;many", HBS_PUSH };
// clang-format on

class ButtonObjects : public ButtonWindow {
protected:
    ButtonObjects() : old_(pfnPlaySound) { pfnPlaySound = PlayNothing; }
    ~ButtonObjects() override { pfnPlaySound = old_; }

    testing::AssertionResult LivesAndGoes(const Content& content, bool isPressed)
    {
        const DWORD style = WS_CHILD | content.style | (isPressed ? WS_VISIBLE : 0);
        const HWND  made = CreateWindowExA(0, "HButt", content.text, style, 0, 0, 40, 30, parent.hwnd(), nullptr,
                                           GetModuleHandleA(nullptr), nullptr);
        if (!made) {
            return testing::AssertionFailure() << content.text << " wasn't created";
        }
        if (isPressed) {
            SendMessageA(made, HBM_CLICK, 0, 0); // paints it pressed
            UpdateWindow(made);
        }
        return DestroyWindow(made) ? testing::AssertionSuccess() : testing::AssertionFailure() << "it stays";
    }
    void MakeAndDestroy(int count)
    {
        for (int i = 0; i < count; ++i) {
            const Content& content = i % 16 == 15 ? files : contents[static_cast<size_t>(i) % std::size(contents)];
            ASSERT_TRUE(LivesAndGoes(content, i % 8 == 7)) << i;
        }
    }

private:
    SoundPlayer old_;
};

TEST_F(ButtonObjects, TenThousandButtonsLeaveNothingBehind)
{
    constexpr int       count = 10000;
    constexpr ULONG_PTR others = 400; // steps that the system itself may take meanwhile
    const TempFile      bitmap("many.bmp", MakeBitmapFile({}));
    const TempFile      icon("many.ico", MakeIconFile({}));
    const TempFile      sound("many.wav", { 'R', 'I', 'F', 'F' });
    Make("keeper");
    MakeAndDestroy(20); // what is made once and kept
    const int       blocks = LiveBlocks();
    const int       objects = LiveGdiObjects();
    const ULONG_PTR kernel = NextKernelNumber();
    const ULONG_PTR user = NextUserNumber();
    MakeAndDestroy(count);
    EXPECT_EQ(blocks, LiveBlocks());
    EXPECT_EQ(objects, LiveGdiObjects()) << DescribeGdiObjects();
    EXPECT_LT(NextKernelNumber(), kernel + others);
    EXPECT_LT(NextUserNumber(), user + others);
    EXPECT_EQ(button, GetWindow(parent.hwnd(), GW_CHILD)) << "only the one that was there before";
    EXPECT_EQ(nullptr, GetWindow(button, GW_HWNDNEXT));
}

} // namespace
