// Deleting characters and selections.
#include "edit_window.h"

#include <algorithm>

namespace {

class EditDelete : public EditWindow {
protected:
    void Make(const char* text, DWORD style = 0, int caret = 0)
    {
        edit = nullptr;
        Create(text, style | HES_AUTOHSCROLL);
        Focus();
        SetSelection(Ctl(), 0, caret, caret);
        seen.Clear();
    }
    void MakeDate(DWORD style)
    {
        Make("%dldd/mm/yyyy", style);
        const int value = 20240517;
        Send(HEM_SETDATA, 0, AsParam(&value));
        seen.Clear();
    }
    int Caret() const { return Ctl()->nCaret; }
};

TEST_F(EditDelete, DeleteCharRemovesTheCharacterAtTheCaret)
{
    Make("abc", 0, 1);
    DeleteChar(Ctl(), true);
    EXPECT_EQ("ac", Text());
    EXPECT_EQ(1, Caret());
    EXPECT_TRUE(HasFlag(Ctl(), HEF_DIRTY));
    EXPECT_EQ((Codes{ HEN_UPDATE, HEN_CHANGE }), Told());
}

TEST_F(EditDelete, CaretStepsOverWhatIsOnlyBlankedIfItIsTold)
{
    Make("%ms##-##", 0, 0);
    SendText(HEM_SETDATA, 0, "1234");
    SetSelection(Ctl(), 0, 0, 0);
    DeleteChar(Ctl(), true);
    EXPECT_EQ("_2-34", Text());
    EXPECT_EQ(1, Caret());
    DeleteChar(Ctl(), false);
    EXPECT_EQ("__-34", Text());
    EXPECT_EQ(1, Caret());
}

TEST_F(EditDelete, RequiredDigitBecomesZero)
{
    Make("%nd0.00");
    const double value = 1.25;
    Send(HEM_SETDATA, 0, AsParam(&value));
    SetSelection(Ctl(), 0, 2, 2);
    DeleteChar(Ctl(), true);
    EXPECT_EQ(WithPoint("1.05"), Text());
    EXPECT_EQ(3, Caret());
}

TEST_F(EditDelete, SelectionOfATextGoesAtOnce)
{
    Make("abcdef");
    Send(EM_SETSEL, 4, 1);
    DeleteSelection(Ctl(), false);
    EXPECT_EQ("aef", Text());
    EXPECT_EQ(MAKELRESULT(1, 1), Send(EM_GETSEL));
}

TEST_F(EditDelete, WithoutASelectionNothingHappens)
{
    Make("abcdef", 0, 3);
    DeleteSelection(Ctl(), true);
    EXPECT_EQ("abcdef", Text());
    EXPECT_EQ(Codes(), Told());
}

TEST_F(EditDelete, WholeDateUnderClearAllBecomesNull)
{
    MakeDate(HES_CLEARALL);
    Send(EM_SETSEL, 0, -1);
    DeleteChar(Ctl(), true);
    EXPECT_EQ("", Text());
    EXPECT_EQ(1, Send(WWM_ISNULL));
    EXPECT_EQ((Codes{ HEN_UPDATE, HEN_CHANGE }), Told());
    Blur();
    EXPECT_EQ("", Text());
    EXPECT_EQ(1, Send(WWM_ISNULL));
    EXPECT_EQ(Codes{ HEN_KILLFOCUS }, Told());
    Focus();
    Send(WM_CHAR, '9');
    EXPECT_EQ('9', Text()[0]);
    Blur();
    EXPECT_EQ(0, Send(WWM_ISNULL));
    EXPECT_EQ("09", Text().substr(0, 2));
}

TEST_F(EditDelete, WholeDateWithoutClearAllLeavesBlanksAndSeparators)
{
    MakeDate(0);
    const std::string before = Text();
    Send(EM_SETSEL, 0, -1);
    DeleteChar(Ctl(), true);
    const std::string after = Text();
    EXPECT_EQ(std::string::npos, after.find_first_of("0123456789")) << after;
    EXPECT_EQ(2, std::count(after.begin(), after.end(), WWGetIntlInfo()->chDateSep)) << before << " became " << after;
    EXPECT_EQ(0, Send(WWM_ISNULL));
}

TEST_F(EditDelete, PartOfATextUnderClearAllIsDeletedByCharacters)
{
    Make("abcdef", HES_CLEARALL);
    Send(EM_SETSEL, 0, 5);
    DeleteChar(Ctl(), true);
    EXPECT_EQ("f", Text());
    EXPECT_EQ(0, Send(WWM_ISNULL));
}

TEST_F(EditDelete, SelectionInAMaskKeepsTheLiterals)
{
    Make("%ms##-##");
    SendText(HEM_SETDATA, 0, "1234");
    Send(EM_SETSEL, 1, 4);
    DeleteSelection(Ctl(), false);
    EXPECT_EQ("1_-_4", Text());
    EXPECT_EQ(1, Caret());
}

TEST_F(EditDelete, EachCharacterTellsOfItselfAndTheSelectionOnceMore)
{
    Make("abcdef");
    Send(EM_SETSEL, 1, 3);
    DeleteSelection(Ctl(), false);
    EXPECT_EQ((Codes{ HEN_UPDATE, HEN_CHANGE, HEN_UPDATE, HEN_CHANGE, HEN_UPDATE, HEN_CHANGE }), Told());
}

constexpr Seen deletedSelection[] = {
    { 0, ToControl, WM_SETREDRAW, FALSE },
    { 0, ToControl, WWM_GETUPDATING },
    { 0, ToControl, WWM_SETUPDATING, 1 },
    { 0, ToParent, HEN_UPDATE },
    { 0, ToParent, HEN_CHANGE },
    { 0, ToControl, WWM_SETUPDATING, 0 },
    { 0, ToParent, HEN_UPDATE },
    { 0, ToControl, WM_SETREDRAW, TRUE },
    { 0, ToParent, HEN_CHANGE },
};

TEST_F(EditDelete, SelectionGoesWhileRepaintingIsOffAndUpdatingIsSet)
{
    Make("abcdef");
    Send(EM_SETSEL, 1, 2);
    HEditCtl* const ctl = Ctl();
    seen.Clear();
    seen.Watch(edit);
    DeleteSelection(ctl, false);
    EXPECT_SEEN(deletedSelection);
}

TEST_F(EditDelete, HiddenFieldStaysHidden)
{
    Make("abcdef");
    ShowWindow(edit, SW_HIDE);
    Send(EM_SETSEL, 1, 3);
    DeleteSelection(Ctl(), false);
    EXPECT_FALSE(IsWindowVisible(edit));
}

TEST_F(EditDelete, VisibleFieldStaysVisible)
{
    Make("abcdef");
    Send(EM_SETSEL, 1, 3);
    DeleteSelection(Ctl(), false);
    EXPECT_TRUE(IsWindowVisible(edit));
}

TEST_F(EditDelete, HostMayDestroyTheFieldAtAnyStep)
{
    for (int step = 1; step <= 6; ++step) {
        Make("abcdef");
        int calls = 0;
        const auto destroy = [&] {
            if (++calls == step) {
                DestroyWindow(edit);
            }
        };
        parent.On(HEN_UPDATE, destroy);
        parent.On(HEN_CHANGE, destroy);
        Send(EM_SETSEL, 1, 3);
        DeleteSelection(Ctl(), false);
        EXPECT_FALSE(IsWindow(edit)) << "step " << step;
        parent.On(HEN_UPDATE, [] {});
        parent.On(HEN_CHANGE, [] {});
    }
}

} // namespace
