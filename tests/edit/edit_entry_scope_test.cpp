// Entries during which the host takes the focus: what is committed is never half of a keystroke.
#include "edit_window.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

namespace {

constexpr char before[] = "abcd";

struct Entry {
    const char* what;
    void (*run)(HWND edit);
    const char* after; // of before, all selected
};

void ReplaceAll(HWND edit, const char* text)
{
    SendMessageA(edit, EM_REPLACESEL, 0, AsParam(text));
}

constexpr Entry entries[] = {
    { "a character", [](HWND edit) { SendMessageA(edit, WM_CHAR, 'X', 0); }, "X" },
    { "Delete", [](HWND edit) { SendMessageA(edit, WM_KEYDOWN, VK_DELETE, 0); }, "" },
    { "a cut", [](HWND edit) { SendMessageA(edit, WM_CUT, 0, 0); }, "" },
    { "a longer text", [](HWND edit) { ReplaceAll(edit, "mnopq"); }, "mnopq" },
};

class EditEntryScope : public EditWindow {
protected:
    // A field with the focus and its text selected.
    void Make(DWORD style = 0)
    {
        parent.On(HEN_UPDATE, nullptr);
        parent.On(HEN_CHANGE, nullptr);
        edit = nullptr;
        Create(before, style | HES_AUTOHSCROLL);
        Focus();
        Send(EM_SETSEL, 0, 4);
        seen.Clear();
    }
    int CountOfNotifications(const Entry& entry)
    {
        Make();
        entry.run(edit);
        EXPECT_EQ(entry.after, Text());
        return static_cast<int>(Told().size());
    }
    // Lets something happen at the n-th notification.
    void At(int n, std::function<void()> happens)
    {
        told_ = 0;
        const auto count = [this, n, happens] {
            if (++told_ == n) {
                happens();
            }
        };
        parent.On(HEN_UPDATE, count);
        parent.On(HEN_CHANGE, count);
    }

private:
    int told_ = 0;
};

TEST_F(EditEntryScope, FocusTakenFromTheMiddleFindsTheEntryFinished)
{
    for (const Entry& entry : entries) {
        const int count = CountOfNotifications(entry);
        ASSERT_GT(count, 1) << entry.what;
        for (int n = 1; n <= count; ++n) {
            Make();
            At(n, [this] { SetFocus(parent.hwnd()); });
            entry.run(edit);
            EXPECT_EQ(entry.after, Value()) << entry.what << ", " << n;
            EXPECT_EQ(entry.after, Text()) << entry.what << ", " << n;
            EXPECT_TRUE(IsWindowVisible(edit)) << entry.what << ", " << n;
        }
    }
}

TEST_F(EditEntryScope, HostThatTakesTheFocusHearsOfTheChangeAllTheSame)
{
    for (const Entry& entry : entries) {
        Make();
        entry.run(edit);
        const auto changes = std::ranges::count(Told(), HEN_CHANGE);
        for (const int code : { HEN_UPDATE, HEN_CHANGE }) {
            Make();
            bool first = true;
            parent.On(code, [this, &first] {
                if (std::exchange(first, false)) {
                    SetFocus(parent.hwnd());
                    Focus();
                }
            });
            entry.run(edit);
            EXPECT_EQ(entry.after, Text()) << entry.what;
            // Once for all that is finished at once, and not again for what was told before.
            EXPECT_EQ(code == HEN_UPDATE ? 1 : std::min<std::ptrdiff_t>(changes, 2),
                      std::ranges::count(Told(), HEN_CHANGE))
                << entry.what << ", in " << code;
        }
    }
}

TEST_F(EditEntryScope, FieldThatIsHiddenMeanwhileStaysHidden)
{
    for (const Entry& entry : entries) {
        Make();
        At(1, [this] {
            SetFocus(parent.hwnd());
            ShowWindow(edit, SW_HIDE);
        });
        entry.run(edit);
        EXPECT_FALSE(IsWindowVisible(edit)) << entry.what;
    }
}

TEST_F(EditEntryScope, FieldStaysVisibleWhenTheFocusMovesInAnEntryWithinAnother)
{
    for (const Entry& entry : entries) {
        Make();
        int changes = 0;
        parent.On(HEN_CHANGE, [this, &changes] {
            ++changes;
            if (changes == 1) {
                Send(WM_CHAR, 'z');
            } else if (changes == 2) {
                SetFocus(parent.hwnd());
            }
        });
        entry.run(edit);
        EXPECT_LE(2, changes) << entry.what;
        EXPECT_TRUE(IsWindowVisible(edit)) << entry.what;
    }
}

TEST_F(EditEntryScope, TextOfTheHostIsNotReplacedByTheOldOne)
{
    Make();
    At(1, [this] {
        SendText(HEM_SETDATA, 0, "host");
        SetFocus(parent.hwnd());
    });
    Send(WM_CHAR, 'X');
    EXPECT_EQ(std::string::npos, Value().find('a')) << Value();
}

TEST_F(EditEntryScope, FieldThatIsDestroyedMeanwhileIsSurvived)
{
    for (const Entry& entry : entries) {
        const int count = CountOfNotifications(entry);
        for (int n = 1; n <= count; ++n) {
            Make();
            At(n, [this] {
                SetFocus(parent.hwnd());
                DestroyWindow(edit);
            });
            entry.run(edit);
            EXPECT_FALSE(IsWindow(edit)) << entry.what << ", " << n;
        }
    }
}

} // namespace
