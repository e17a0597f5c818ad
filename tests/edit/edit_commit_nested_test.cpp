// Hosts that put another value in, or give the focus back, while a value is being committed.
#include "edit_window.h"

#include "foundation/memory.h"

namespace {

class EditCommitNested : public EditWindow {};

constexpr int own = 7;
HWND          gEdit;

int CALLBACK RefuseAndReplace(HWND, int, void* value)
{
    if (LoadAs<int>(value) == own) {
        return 0;
    }
    SendMessageA(gEdit, HEM_SETDATA, 0, AsParam(&own));
    return 1;
}

TEST_F(EditCommitNested, ValueThatTheHostPutsInWhenToldOfAnotherStays)
{
    struct Case {
        const char* text;
        int         code;
    };
    constexpr Case cases[] = { { "42", HEN_ABOVEMAX }, { "1", HEN_BELOWMIN } };
    for (const Case& c : cases) {
        edit = nullptr;
        Create("%nl|5;10;|");
        Focus();
        parent.On(c.code, [this] { Send(HEM_SETDATA, 0, AsParam(&own)); });
        Replace(c.text);
        Blur();
        EXPECT_EQ(own, Number()) << c.text;
        EXPECT_FALSE(HasFlag(Ctl(), CF_CHANGED)) << c.text;
        parent.On(c.code, nullptr);
    }
}

TEST_F(EditCommitNested, ValueThatTheValidatorPutsInStays)
{
    Create("%nl");
    gEdit = edit;
    Send(HEM_SETVALIDATOR, 0, reinterpret_cast<LPARAM>(RefuseAndReplace));
    Focus();
    Replace("42");
    Blur();
    EXPECT_EQ(own, Number());
    EXPECT_FALSE(HasFlag(Ctl(), CF_CHANGED));
}

TEST_F(EditCommitNested, FocusThatIsToldTwiceLeavesWhatWasTyped)
{
    Create("abc");
    Focus();
    Replace("typed");
    Send(WM_SETFOCUS);
    EXPECT_EQ("typed", Text());
}

} // namespace
