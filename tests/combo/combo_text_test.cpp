// The window text of a combo: heads, types of the parts, and what is read back.
#include "combo_window.h"
#include "support/block_leaks.h"

namespace {

class ComboText : public ComboWindow {};

struct HeadCase {
    const char* text;
    int         height;
    int         consumed;
};

TEST_F(ComboText, GetDropHeightReadsAPercentSignAndDigits)
{
    constexpr HeadCase cases[] = {
        { "%120%ss", 120, 4 }, { "%120", 120, 4 }, { "%12", 12, 3 }, { "%1", 0, 0 },     { "", 0, 0 },
        { "%ss", 0, 0 },       { "#120", 0, 0 },   { "120", 0, 0 },  { "%00%ss", 0, 3 }, { "%5x", 5, 2 },
    };
    for (const HeadCase& line : cases) {
        const char* at = line.text;
        EXPECT_EQ(line.height, GetDropHeight(&at)) << line.text;
        EXPECT_EQ(line.consumed, at - line.text) << line.text;
    }
}

TEST_F(ComboText, GetDropHeightBoundsItsNumber)
{
    const char* at = "%99999999999999999999%ss";
    EXPECT_GT(GetDropHeight(&at), 0);
    EXPECT_STREQ("%ss", at);
    EXPECT_EQ(0, GetDropHeight(nullptr));
}

TEST_F(ComboText, NullTextIsAccepted)
{
    Make();
    Add({ "one" });
    Send(CB_SETCURSEL, 0);
    EXPECT_EQ(1, Send(WM_SETTEXT, 0, 0));
    EXPECT_EQ("one", Text());
}

TEST_F(ComboText, HeadSetsTheHeightAndIsNoText)
{
    Make();
    SendPtr(WM_SETTEXT, 0, "%200new");
    EXPECT_EQ(200, Send(HCM_GETDROPHEIGHT));
    EXPECT_EQ("new", Text());
}

TEST_F(ComboText, OnlyTheHeightIsAHeadLaterOn)
{
    Make("%120%300%ss");
    SendPtr(WM_SETTEXT, 0, "%200%400%ni");
    EXPECT_EQ(200, Send(HCM_GETDROPHEIGHT));
    EXPECT_EQ(300, Send(HCM_GETDROPWIDTH)) << "the width stays";
}

TEST_F(ComboText, PlainTextGoesToTheEditAlone)
{
    Make();
    Add({ "one", "two" });
    SendPtr(WM_SETTEXT, 0, "two");
    EXPECT_EQ("two", Text());
    EXPECT_EQ(2, Count());
    EXPECT_EQ(3, Send(WM_GETTEXTLENGTH));
}

TEST_F(ComboText, TypeTextGoesToEditAndList)
{
    Make();
    Add({ "one" });
    SendPtr(WM_SETTEXT, 0, "%ni");
    EXPECT_EQ('i', Send(HLM_GETDATATYPE)) << "of the edit";
    EXPECT_EQ('i', SendMessageA(List(), HLM_GETDATATYPE, 0, 0));
    EXPECT_EQ(0, Count());
    SendPtr(WM_SETTEXT, 0, "%ss%nl");
    EXPECT_EQ(static_cast<DWORD>('l'), Ctl()->chCodeType);
}

TEST_F(ComboText, EditTakesATypeTextWithACode)
{
    Make();
    SendPtr(WM_SETTEXT, 0, "%ni%nl*0*");
    char format[64] = "";
    ToFace(HEM_GETFORMAT, sizeof format, AsParam(format));
    EXPECT_EQ('i', ToFace(HEM_GETTYPE));
    EXPECT_STREQ("*0*", format);
}

TEST_F(ComboText, FieldAndListShareItemsAfterATypeText)
{
    for (const DWORD drop : { HCS_DROPDOWN, 0 }) {
        const BlockLeakCheck blocks;
        Make("%120%ss", static_cast<DWORD>(drop), 160, 120);
        Add({ "one", "two" });
        EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, "%ni%nl*0*"));
        EXPECT_EQ('i', ToFace(HLM_GETDATATYPE));
        EXPECT_EQ('i', SendMessageA(List(), HLM_GETDATATYPE, 0, 0));
        const int value = 42;
        SendPtr(HLM_ADDITEM, 0, &value);
        EXPECT_EQ(1, ToFace(HLM_GETCOUNT));
        EXPECT_EQ(1, SendMessageA(List(), HLM_GETCOUNT, 0, 0));
        Send(CB_SETCURSEL, 0);
        EXPECT_EQ("42", Text());
        End();
    }
}

TEST_F(ComboText, FieldIgnoresATextThatIsNoType)
{
    Make("%120%ss", HCS_DROPDOWN);
    Add({ "one" });
    EXPECT_EQ(1, SendPtr(WM_SETTEXT, 0, "two"));
    EXPECT_EQ(1, Count());
}

TEST_F(ComboText, FieldWithoutAListTakesATypeText)
{
    const BlockLeakCheck blocks;
    Make("%ss", HCS_DROPDOWN);
    SendPtr(WM_SETTEXT, 0, "%ni");
    EXPECT_EQ('i', ToFace(HLM_GETDATATYPE));
    End();
}

TEST_F(ComboText, ParkedListFollowsTheFieldsItems)
{
    const BlockLeakCheck blocks;
    Make("%120%ss", HCS_DROPDOWN);
    Add({ "one", "two" });
    Send(HCM_SETDROP, 0);
    SendPtr(WM_SETTEXT, 0, "%ni");
    Send(HCM_SETDROP, 1);
    EXPECT_EQ(0, Count());
    const int value = 7;
    SendPtr(HLM_ADDITEM, 0, &value);
    EXPECT_EQ(1, ToFace(HLM_GETCOUNT));
    End();
}

TEST_F(ComboText, TextOfAFieldIsThatOfTheCurrentItem)
{
    Make("%120%ss", HCS_DROPDOWN);
    Add({ "first", "second" });
    EXPECT_EQ("", Text());
    EXPECT_EQ(0, Send(WM_GETTEXTLENGTH));
    Send(CB_SETCURSEL, 1);
    EXPECT_EQ("second", Text());
    EXPECT_EQ(6, Send(WM_GETTEXTLENGTH));
}

TEST_F(ComboText, TextOfAFieldIsCutAtTheCallersSize)
{
    Make("%120%ss", HCS_DROPDOWN);
    Add({ "first" });
    Send(CB_SETCURSEL, 0);
    char text[] = "xxxxxxx";
    EXPECT_EQ(3, SendPtr(WM_GETTEXT, 4, text));
    EXPECT_STREQ("fir", text);
    EXPECT_EQ('x', text[4]);
    EXPECT_EQ(0, SendPtr(WM_GETTEXT, 0, text));
    EXPECT_STREQ("fir", text);
}

TEST_F(ComboText, TextOfAnEditIsTheEdits)
{
    Make("%120%ni*0*");
    const int value = 12;
    SendPtr(HEM_SETDATA, 0, &value);
    EXPECT_EQ("12", Text());
    EXPECT_EQ(2, Send(WM_GETTEXTLENGTH));
}

} // namespace
