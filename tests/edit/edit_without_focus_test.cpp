// Texts that are put into a field while another window has the focus.
#include "edit_window.h"

namespace {

// As a button's handler does: the field hasn't the focus.
class EditWithoutFocus : public EditWindow {
protected:
    void Put(const char* text)
    {
        SendText(EM_REPLACESEL, 0, text);
        EXPECT_EQ(text, Text());
    }
};

TEST_F(EditWithoutFocus, TextThatWasPutInStaysWhenTheFocusComes)
{
    char linked[40] = "";
    Create("");
    SendText(HEM_LINKDATA, 1, linked);
    Put("Smith");
    Focus();
    EXPECT_EQ("Smith", Text());
    Blur();
    EXPECT_EQ("Smith", Text());
    EXPECT_STREQ("Smith", linked);
    EXPECT_EQ(1, Send(WWM_GETCHANGED));
}

TEST_F(EditWithoutFocus, TextThatWasPutInIsTheValueThatIsAskedFor)
{
    Create("");
    Put("Smith");
    EXPECT_EQ("Smith", Value());
}

TEST_F(EditWithoutFocus, TextThatWasPutInIsAChange)
{
    Create("");
    EXPECT_EQ(0, Send(WWM_GETCHANGED));
    Put("Smith");
    EXPECT_EQ(1, Send(WWM_GETCHANGED));
}

TEST_F(EditWithoutFocus, TextThatWasPutIntoANullFieldIsNoNull)
{
    Create("");
    Send(HEM_SETDATA, 0, 0);
    ASSERT_EQ(1, Send(WWM_ISNULL));
    Put("Smith");
    Focus();
    EXPECT_EQ("Smith", Text());
    EXPECT_EQ("Smith", Value());
}

TEST_F(EditWithoutFocus, LinkThatTheHostHasChangedIsStillRead)
{
    char linked[40] = "one";
    Create("");
    SendText(HEM_LINKDATA, 1, linked);
    linked[0] = 'O';
    Focus();
    EXPECT_EQ("One", Text());
}

} // namespace
